/*
 * middleware_event.h - the event pages: alarm actions per event type, sources, upload servers, switches.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_EVENT_H
#define MIDDLEWARE_EVENT_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ===== events: alarm actions per event type ===== */

/* The alarm actions: for each alarm event type (0..47, the numbering of
   getAlarmEventTypeString) what the camera does when that event fires. Every
   record starts with the `eventType` selector and then holds its settings as
   arrays indexed by event type. The same records carry the actions of the
   four IoT alarm rules in elements 0..3 (see the iot section).

   eventType: below 0 asks for every event type (the document holds 48
   objects, named in table order); 0..47 asks for that one type (one object).
   The serializers and the schema functions refuse a selector above 47 with -1
   and leave the buffer untouched: there is no event of that number and no
   slot to read. A set request applies every event-type object it names,
   whatever the selector, and never changes the selector. */

/* One HTTP notification target of an event type. */
typedef struct event_notify_entry {
    uint8_t entryReserved1;            /* not in the documents */
    uint8_t entryReserved2;            /* not in the documents */
    uint8_t enable;
    uint8_t method;                    /* HTTP method of the request */
    uint8_t snapShot;                  /* 1: the request carries a snapshot */
    char url[1024];
    char user[94];
    char password[64];                 /* sent as stored */
    uint32_t interval;                 /* minimum time between two notifications */
} event_notify_entry;

typedef struct event_notify_record {
    int32_t eventType;
    int32_t notifyReserved[48];        /* not in the documents */
    int32_t httpNotifyEnable[48];
    event_notify_entry notifyList[48][3];  /* three targets per event type */
} event_notify_record;

/* How one event type records. Only the first two bytes are in the documents;
   the other two belong to the recorder and pad the entry to a word. */
typedef struct event_record_entry {
    uint8_t recordEnable;
    uint8_t recordWay;                 /* which stream or storage the clip goes to */
    uint8_t reserved[2];               /* not in the documents */
} event_record_entry;

typedef struct event_record_record {
    int32_t eventType;
    int32_t recordReserved[48];        /* not in the documents */
    int32_t duration[48];              /* seconds recorded after the event */
    int32_t sdInsert[48];              /* 1 while an SD card is inserted */
    int32_t nasMountStatus[48];        /* 1 while the NAS share is mounted */
    event_record_entry recordSettings[48];
} event_record_record;

/* Snapshots taken on an event ("snop" is the page's historic name). */
typedef struct event_snop_record {
    int32_t eventType;
    int32_t interval[48];              /* time between two snapshots, in `unit` */
    int32_t unit[48];
    int32_t snapEnable[48];
    int32_t snapWay[48];
    int32_t imageNum[48];              /* snapshots per event */
    int32_t smtpInterval[48];
    int32_t snapSmtpEnable;            /* one switch for all types: mail the snapshots */
    int32_t snapType[48];
} event_snop_record;

/* The alarm output switched on an event. */
typedef struct event_extern_output_record {
    int32_t eventType;
    int32_t externOutputEnable[48];
    int32_t externDuration[48];        /* how long the output stays switched */
    int32_t externOutputExtEnable[48]; /* the second (extra) output */
} event_extern_output_record;

/* An audio file played on an event, within the week's schedule. */
typedef struct event_play_audio_record {
    int32_t eventType;
    int32_t playAudioEnable[48];
    int32_t audioInterval[48];
    char schedule[48][7][256];         /* per type, one text per day, day 0 first */
} event_play_audio_record;

/* A SIP phone rung on an event. */
typedef struct event_alarm_sip_phone_record {
    int32_t eventType;
    int32_t alarmSipPhoneEnable[48];
} event_alarm_sip_phone_record;

/* The white LED lit on an event, and the hours in which it may be. */
typedef struct event_white_led_record {
    int32_t eventType;
    int32_t whiteLedEnable[48];
    int32_t flashMode[48];
    int32_t flashTime[48];
    int32_t effectiveMode[48];
    int32_t effectiveBright[48];
    int32_t alwaysTime[48];
    int32_t startHour[48];
    int32_t startMinute[48];
    int32_t stopHour[48];
    int32_t stopMinute[48];
} event_white_led_record;

/* The PTZ head's move on an event: zoom in, then return after a while. */
typedef struct event_ptz_motion_record {
    int32_t eventType;
    int32_t ptzMotionEnable[48];
    int32_t ptzRecoveryTime[48];       /* emitted after ptzZoomTimes */
    int32_t ptzZoomTimes[48];
} event_ptz_motion_record;

/* The on-screen display blinking on an event. */
typedef struct event_osd_blink_record {
    int32_t eventType;
    int32_t osdBlinkEnable[48];
    int32_t osdBlinkTime[48];
} event_osd_blink_record;

/* A PTZ preset, patrol or pattern called on an event. */
typedef struct event_event_call_record {
    int32_t eventType;
    int32_t presetEnable[48];
    int32_t presetId[48];
    int32_t patrolEnable[48];
    int32_t patrolId[48];
    int32_t patternEnable[48];
    int32_t patternId[48];
} event_event_call_record;

/* Each document is one object per requested event type, named by
   getAlarmEventTypeString; every object holds all of its keys, disabled
   types included. */

/* "httpNotifyEnable" and "notifyList": the three targets, "index" 0..2. */
MW_API int32_t get_event_notify_json(const event_notify_record *in, char *dst, int32_t dstSize);
/* "recordEnable", "recordWay", "duration", "sdInsert", "nasMountStatus". */
MW_API int32_t get_event_record_json(const event_record_record *in, char *dst, int32_t dstSize);
/* The snapshot settings, led by the common "snapSmtpEnable". Only a document
   for one selected type carries "snapType" (last); the all-types document
   never does. */
MW_API int32_t get_event_snop_json(const event_snop_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_event_extern_output_json(const event_extern_output_record *in, char *dst,
                                            int32_t dstSize);
/* "playAudioEnable", "audioInterval" and the seven-day "scheduleList". */
MW_API int32_t get_event_play_audio_json(const event_play_audio_record *in, char *dst,
                                         int32_t dstSize);
MW_API int32_t get_event_alarm_sip_phone_json(const event_alarm_sip_phone_record *in, char *dst,
                                              int32_t dstSize);
MW_API int32_t get_event_white_led_json(const event_white_led_record *in, char *dst,
                                        int32_t dstSize);
/* "ptzMotionEnable", "ptzZoomTimes", "ptzRecoveryTime" (zoom first). */
MW_API int32_t get_event_ptz_motion_json(const event_ptz_motion_record *in, char *dst,
                                         int32_t dstSize);
MW_API int32_t get_event_osd_blink_json(const event_osd_blink_record *in, char *dst,
                                        int32_t dstSize);
MW_API int32_t get_event_event_call_json(const event_event_call_record *in, char *dst,
                                         int32_t dstSize);

/* The schema of each document; the set functions take the event-type
   objects a request names (see the selector above). In "event_snop" the
   common "snapSmtpEnable" is written through the selected type's object
   ("motion"'s when every type is shown); the other objects repeat it and
   are read-only there. */
MW_API int32_t schema_event_notify_json(const event_notify_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_record_json(const event_record_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_snop_json(const event_snop_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_extern_output_json(const event_extern_output_record *in,
                                               char *dst, int32_t dstSize);
MW_API int32_t schema_event_play_audio_json(const event_play_audio_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_alarm_sip_phone_json(const event_alarm_sip_phone_record *in,
                                                 char *dst, int32_t dstSize);
MW_API int32_t schema_event_white_led_json(const event_white_led_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_ptz_motion_json(const event_ptz_motion_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_osd_blink_json(const event_osd_blink_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_event_call_json(const event_event_call_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_event_notify_json(event_notify_record *record,
                                     const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_record_json(event_record_record *record,
                                     const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_snop_json(event_snop_record *record,
                                   const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_extern_output_json(event_extern_output_record *record,
                                            const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_play_audio_json(event_play_audio_record *record,
                                         const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_alarm_sip_phone_json(event_alarm_sip_phone_record *record,
                                              const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_white_led_json(event_white_led_record *record,
                                        const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_ptz_motion_json(event_ptz_motion_record *record,
                                         const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_osd_blink_json(event_osd_blink_record *record,
                                        const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_event_call_json(event_event_call_record *record,
                                         const char *body, int32_t bodySize, char *dst, int32_t dstSize);

/* ===== end events: alarm actions per event type ===== */

/* ===== events: sources, upload servers, global switches ===== */

/* PTZ auto tracking of a moving target. */
typedef struct event_auto_tracking_record {
    int32_t ptzAutoTrackingEnable;
} event_auto_tracking_record;

/* Motion detection: the detection grid, four sensitivity regions and the
   week's schedule. */
typedef struct event_motion_record {
    int32_t reserved0[2];              /* channel bookkeeping, not in the document */
    char schedule[7][256];             /* one text per day, day 0 first */
    char windowRectangle[320];         /* the detection grid as text */
    int32_t triggerSensitivity;
    int32_t motionEnable;
    int32_t activecell;
    int32_t reserved1[8];              /* not in the document */
    int32_t detectionMode;
    int32_t dynamicAnalysisEnable;
    int32_t sensitivity[4];            /* per region, region 0 first */
    char areaRegion[4][32];
} event_motion_record;

/* One upload server (FTP or SFTP). The widths of ftpUserName (64) and ftpPath
   (256) are ours; the password and `reserved0` are not in the document. */
typedef struct ftp_server_entry {
    uint8_t enable;                    /* emitted only for the server in use, as "ftpEnable" */
    uint32_t videoType;
    char ftpAddress[64];
    uint32_t ftpPort;
    char ftpUserName[64];
    char ftpPassword[64];              /* never in the document */
    char ftpPath[256];
    int32_t reserved0;                 /* not in the document */
    uint32_t ftpPathType;
    uint32_t ftpParentDirType;
    char ftpParentDir[384];
    uint32_t ftpChildDirType;
    char ftpChildDir[384];
    uint32_t ftpAlarmDirType;
    uint32_t ftpVideoDirType;
    char ftpVideoPrefix[384];
    char ftpVideoName[32];
    uint32_t ftpImgDirType;
    char ftpImgPrefix[384];
    char ftpImgName[32];
    char ftpSnapPrefix[384];
    char ftpSnapName[32];
    uint32_t ftpPreRecordTime;         /* seconds recorded before the alarm */
    uint8_t ftpProtocol;
    int32_t ftpSnapShotDirType;
    char ftpSnapShotName[256];
    int32_t ftpSnapFileFormat;
} ftp_server_entry;

/* The alarm upload servers: servers[0] is the FTP server, servers[1] the
   SFTP server; currentType says which one is in use (0 or 1). */
typedef struct event_server_ftp_record {
    int32_t currentType;
    ftp_server_entry servers[2];
} event_server_ftp_record;

/* The mail server that alarm mails go through. The widths of smtpAddress
   (128) and smtpToAddress (256, several addresses) are ours; the password and
   the reserved words are not in the document. */
typedef struct event_server_smtp_record {
    int32_t reserved0;                 /* not in the document */
    uint8_t smtpEnable;
    char smtpUserName[64];
    char smtpFromAddress[96];
    char smtpAddress[128];             /* server name or address */
    char smtpPassword[64];             /* never in the document */
    uint32_t smtpPort;
    int32_t reserved1;                 /* not in the document */
    int32_t smtpImgType;
    char smtpImgPrefix[128];
    char smtpImgName[32];
    int32_t smtpSnapType;
    char smtpSnapPrefix[128];
    char smtpSnapName[32];
    int32_t reserved2[2];              /* not in the document */
    int32_t smtpSsl;
    int32_t reserved3[2];              /* not in the document */
    char smtpToAddress[256];
} event_server_smtp_record;

/* The outcome of sending a test mail. */
typedef struct event_test_smtp_record {
    int32_t testState;                 /* 1: the test mail went out */
    int32_t errorCode;                 /* the reason otherwise */
} event_test_smtp_record;

/* The alarm outputs: room for two. */
typedef struct event_io_info_record {
    int32_t outputNum;
    int32_t reserved[4];               /* not in the document */
    int32_t propertiesIdlestate[2];
    int32_t logicalState[2];
} event_io_info_record;

/* The audio-level alarm and its week's schedule. */
typedef struct event_audio_info_record {
    int32_t audioEnable;
    int32_t audioAlarmEnable;
    int32_t audioMode;
    int32_t audioAlarmThreshold;
    int32_t reserved;                  /* not in the document */
    char schedule[7][256];             /* one text per day, day 0 first */
} event_audio_info_record;

/* The audio input's current level. */
typedef struct event_audio_sample_value_record {
    int32_t audiosampleValue;
} event_audio_sample_value_record;

/* A calibration rectangle in image pixels. */
typedef struct cal_region_record {
    uint32_t reserved;                 /* not in the document */
    uint32_t startX;
    uint32_t startY;
    uint32_t width;
    uint32_t height;
} cal_region_record;

/* The alarm inputs: room for four. */
typedef struct event_extern_input_info_record {
    int32_t supportInputNum;
    int32_t enable[4];
    int32_t normal[4];                 /* the input's idle state */
    int32_t status[4];
} event_extern_input_info_record;

/* The global feature switches and storage state. */
typedef struct event_global_enable_record {
    int32_t motionEnable;
    int32_t trackEnable;
    int32_t faceEnable;
    int32_t helmetEnable;
    int32_t vehicleCountEnable;
    int32_t lprEnable;
    int32_t enablePtzMotion;
    int32_t enablePtzMotionVca;
    int32_t smartEventEnable;
    int32_t sipEnable;
    int32_t smtpEnable;
    int32_t audioEnable;
    int32_t ftpEnable;
    int32_t sdInsert;
    int32_t nasMountStatus;            /* key "nasMountStatu", as clients read it */
    int32_t heatmapEnable;
} event_global_enable_record;

MW_API int32_t get_event_auto_tracking_json(const event_auto_tracking_record *in, char *dst,
                                            int32_t dstSize);
/* The settings, "regionInfoList" (always four regions) and "scheduleList"
   (always seven days), empty texts included. */
MW_API int32_t get_event_motion_json(const event_motion_record *in, char *dst, int32_t dstSize);
/* "currentType" and "ftpEnable" (the enable byte of the server in use), then
   both servers, "ftpInfo" and "sftpInfo", whichever is in use. A
   currentType other than 0 or 1 names no server: the call returns -1 and
   leaves the buffer untouched. */
MW_API int32_t get_event_server_ftp_json(const event_server_ftp_record *in, char *dst,
                                         int32_t dstSize);
/* The mail server settings; the password is never emitted. */
MW_API int32_t get_event_server_smtp_json(const event_server_smtp_record *in, char *dst,
                                          int32_t dstSize);
/* {"setState": "succeed"} when the test mail went out, else
   {"setState": errorCode} with the code as a number. */
MW_API int32_t get_event_test_smtp_json(const event_test_smtp_record *in, char *dst,
                                        int32_t dstSize);
/* "outputNum" as stored, then "outputIoList" with outputs 0..outputNum-1
   ("index" 0-based); empty for 0 or a negative count. The list stops at the
   record's two outputs, whatever a larger count says. */
MW_API int32_t get_event_io_info_json(const event_io_info_record *in, char *dst, int32_t dstSize);
/* The audio alarm settings and the seven-day "scheduleList". */
MW_API int32_t get_event_audio_info_json(const event_audio_info_record *in, char *dst,
                                         int32_t dstSize);
/* {"audiosampleValue": level} (the key has a lower-case s). */
MW_API int32_t get_event_audio_sample_value_json(const event_audio_sample_value_record *in,
                                                 char *dst, int32_t dstSize);
MW_API int32_t get_cal_region_json(const cal_region_record *in, char *dst, int32_t dstSize);
/* "supportInputNum" as stored, then "inputList" with inputs
   0..supportInputNum-1 ("index" 0-based); empty for 0 or a negative count.
   The list stops at the record's four inputs, whatever a larger count says. */
MW_API int32_t get_event_extern_input_info_json(const event_extern_input_info_record *in,
                                                char *dst, int32_t dstSize);
/* The sixteen switches in record order; the NAS state's key is
   "nasMountStatu". */
MW_API int32_t get_event_global_enable_json(const event_global_enable_record *in, char *dst,
                                            int32_t dstSize);

/* Schemas of every page, and set functions of the settable ones. The SMTP
   test result, the audio level and the global switches (a summary of
   switches set on their own pages, with the storage state) are read-only.
   Read-only keys: "currentType" (it chooses whose enable byte "ftpEnable"
   is), "outputNum" and "supportInputNum" (they bound their lists). The FTP
   page's three functions refuse a currentType other than 0 or 1 with -1 (a
   set request is answered "failed" and changes nothing). */
MW_API int32_t schema_event_auto_tracking_json(const event_auto_tracking_record *in,
                                               char *dst, int32_t dstSize);
MW_API int32_t schema_event_motion_json(const event_motion_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_server_ftp_json(const event_server_ftp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_server_smtp_json(const event_server_smtp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_test_smtp_json(const event_test_smtp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_io_info_json(const event_io_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_audio_info_json(const event_audio_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_audio_sample_value_json(const event_audio_sample_value_record *in,
                                                    char *dst, int32_t dstSize);
MW_API int32_t schema_cal_region_json(const cal_region_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_extern_input_info_json(const event_extern_input_info_record *in,
                                                   char *dst, int32_t dstSize);
MW_API int32_t schema_event_global_enable_json(const event_global_enable_record *in,
                                               char *dst, int32_t dstSize);
MW_API int32_t set_event_auto_tracking_json(event_auto_tracking_record *record,
                                            const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_motion_json(event_motion_record *record,
                                     const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_server_ftp_json(event_server_ftp_record *record,
                                         const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_server_smtp_json(event_server_smtp_record *record,
                                          const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_io_info_json(event_io_info_record *record,
                                      const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_audio_info_json(event_audio_info_record *record,
                                         const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_cal_region_json(cal_region_record *record,
                                   const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t set_event_extern_input_info_json(event_extern_input_info_record *record,
                                                const char *body, int32_t bodySize, char *dst, int32_t dstSize);

/* ===== end events: sources, upload servers, global switches ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_EVENT_H */
