/*
 * middleware.h - the JSON presentation library of the camera firmware.
 *
 * The web server keeps every configuration page and status report as a plain
 * record. For a request whose query carries "format=json" it fills the page's
 * record and calls the matching serializer, which prints the document into the
 * caller's buffer:
 *
 *     system_information_record info;   // filled from the configuration
 *     char body[16384];
 *     if (get_system_information_json(&info, body, sizeof body) == 0)
 *         send(body);
 *
 * Every serializer returns 0 on success and -1 on failure. It fails for a
 * NULL buffer or a size below 1 without touching the buffer; on success the
 * buffer holds the whole document in cJSON's formatted style (tabs, one member
 * a line) or, when the document is longer, its first size-1 bytes, always
 * followed by a NUL. Nothing reports the cut: compare strlen(dst) with
 * size-1. Records are only read (the capability serializers excepted, which
 * tokenize their option texts in place). Texts in records are NUL-terminated
 * within their arrays. No function keeps state: all may be called
 * concurrently on different buffers.
 *
 * The header is plain C (C11) and C++.
 */
#ifndef MIDDLEWARE_H
#define MIDDLEWARE_H

#include <stdint.h>
#include <cjson/cJSON.h>

#if defined(MIDDLEWARE_BUILD)
#define MW_API __attribute__((visibility("default")))
#else
#define MW_API
#endif

/* A record member that C names `class` is spelled `class_` in C++; the member
   and its place in the record are the same. */
#ifdef __cplusplus
#define MW_CLASS_MEMBER class_
#else
#define MW_CLASS_MEMBER class
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ===== core: reply envelopes, format test, file reader ===== */

/* {} - the answer to a get request that has nothing to report. */
MW_API int32_t zk_return_get_request_empty_json(char *dst, int32_t dstSize);
/* {"setState": "succeed"} */
MW_API int32_t zk_return_set_request_succeed_json(char *dst, int32_t dstSize);
/* {"setState": "failed"} (the function's name keeps its historic spelling) */
MW_API int32_t zk_return_set_request_faild_json(char *dst, int32_t dstSize);
/* {key: "format error"}; the caller names the key, which must not be NULL. */
MW_API int32_t zk_return_format_error_json(char *dst, int32_t dstSize, const char *key);

/* 1 when "format=json" occurs anywhere in the query (case-sensitive), else 0.
   The query must not be NULL. */
MW_API int32_t zk_check_format_json(const char *query);

/* Reads the first `length` bytes of the file behind `fd` (from its start,
   wherever its position stood) into a new buffer of length+1 bytes, the last
   one a NUL. The buffer comes from the platform allocator and belongs to the
   caller. NULL for fd 0 (no file), for a length of 0 or below (a negative
   length is refused too, since it cannot describe a buffer), or when the
   allocation fails. A short read is not reported: the bytes past what was read
   are as the allocator left them. */
MW_API char *getJsonBuff(int32_t fd, int32_t length);

/* ===== core: node building ===== */

/* Creates an object (array) and stores it in *outChild (*outArray) at once,
   NULL included; when it exists, hangs it under `key` in `parent` and returns
   1, else returns -1. The arguments are not tested. */
MW_API int32_t json_set_element_struct(cJSON *parent, cJSON **outChild, const char *key);
MW_API int32_t json_set_array_struct(cJSON *parent, cJSON **outArray, const char *key);

/* ===== core: request reading ===== */
/* Member lookups follow cJSON_GetObjectItem (keys compare case-insensitively);
   type tests compare the node's type with cJSON_Number, cJSON_String or
   cJSON_Array exactly. */

/* The first element of the array (or object) under arrayKey whose member
   memberKey has the integer value `index` (a member that is not a number
   counts as 0), or NULL. */
MW_API cJSON *get_json_array_struct_from_index(cJSON *object, const char *arrayKey,
                                               const char *memberKey, int32_t index);
/* The same, matching the member's text against `value` with strcmp. The
   member must be a string and `value` must not be NULL. */
MW_API cJSON *get_json_array_struct_from_string(cJSON *object, const char *arrayKey,
                                                const char *memberKey, const char *value);
/* The member under key, or NULL (also for a NULL object or key). */
MW_API cJSON *get_json_object(cJSON *object, const char *key);

/* -1: a NULL argument or no such key (*wrongType untouched).
    0: the key is present; *wrongType is 1 when it is not a number (*out
       untouched), else 0 with the value in *out (an integer is cJSON's
       truncation of the double). */
MW_API int32_t get_json_section_type_int(cJSON *object, const char *key, int32_t *out,
                                         int32_t *wrongType);
MW_API int32_t get_json_section_type_double(cJSON *object, const char *key, double *out,
                                            int32_t *wrongType);
/* -1: a NULL argument, no such key, or a string node without text.
    1: not a string (*wrongType 1, out emptied), or the text copied into out
       (cut at outSize-1 bytes, *wrongType 0).
    0: the empty string (out emptied, *wrongType untouched). */
MW_API int32_t get_json_section_type_string(cJSON *object, const char *key, char *out,
                                            int32_t outSize, int32_t *wrongType);
/* Copies up to `max` numbers of the array under key into out.
    1: all read elements were numbers (*wrongType 0);
   -1: a NULL argument (flag untouched), or the key absent, not an array, or
       an element read that is not a number (*wrongType 1; the elements
       before it are already stored). */
MW_API int32_t get_json_section_type_int_array(cJSON *object, const char *key, int32_t *out,
                                               int32_t max, int32_t *wrongType);

/* ===== core: event names ===== */

/* The JSON name of an alarm event type (0..47) or of a VCA event type (0..10):
   constant text, never to be freed. NULL above the last index, and for a
   negative index. */
MW_API const char *getAlarmEventTypeString(int32_t index);
MW_API const char *getVcaEventTypeString(int32_t index);

/* ===== layouts shared by two groups ===== */

/* The DDNS settings from the enable byte on. The network DDNS page record
   starts with one more word; the support-information record embeds the block
   as it stands, so both read the same bytes. The widths of userName and of
   the password no key reads are ours: 64 bytes each; `reserved1` holds the
   provider's bookkeeping (update interval, last result and the like). */
#define MW_NETWORK_DDNS_SETTINGS_FIELDS                                         \
    uint8_t enable;                                                          \
    uint8_t reserved0[2];        /* not in the documents */                  \
    char userName[64];                                                       \
    char password[64];           /* not in the documents */                  \
    char provider[64];                                                       \
    char hostName[128];                                                      \
    char hash[128];                                                          \
    char url[128];                                                           \
    uint32_t httpPort;                                                       \
    uint32_t rtspPort;                                                       \
    uint32_t playbackPort;                                                   \
    char hostIp[128];                                                        \
    int32_t oemzkDisplay;                                                    \
    int32_t oemIndex;                                                        \
    int32_t reserved1[4];        /* not in the documents */                  \
    int32_t status;

typedef struct network_ddns_settings {
    MW_NETWORK_DDNS_SETTINGS_FIELDS
} network_ddns_settings;

typedef struct network_ddns_record {
    int32_t reserved;            /* not in the document */
    MW_NETWORK_DDNS_SETTINGS_FIELDS
} network_ddns_record;

/* A stored preset slot: the position it returns to and its name. Shared by
   the PTZ presets and the fisheye presets. `reserved0` and `reserved1` belong
   to the motor controller (speed and dwell) and are not in the documents. */
typedef struct ptz_preset_entry {
    double firstCoordinate;
    double secondCoordinate;
    int32_t leadingNumber;       /* printed first in the preset text */
    int32_t reserved0;
    int32_t id;                  /* 0 marks an empty slot */
    int32_t reserved1;
    char name[68];
} ptz_preset_entry;

/* ===== end layouts shared by two groups ===== */

/* ===== system: device information ===== */

/* The device-information page: identity, network state and the feature flags
   that tell a client which pages this camera has (1 = supported). */
typedef struct system_information_record {
    char model[32];
    char mac[32];
    char firmwareVersion[32];
    char systemBootTime[32];
    int32_t wireless;                  /* 1 when the camera has a wireless interface */
    int32_t dhcpEnable;
    char ipaddress[32];
    char netmask[32];
    char gateway[32];
    int32_t pppoeEnable;
    char dns0[32];
    char dns1[32];
    int32_t ddnsEnable;
    char ddnsHostName[32];
    int32_t ddnsStatus;
    int32_t wirelessEnable;
    char deviceName[128];
    char deviceLacation[32];           /* the device's location text; the key keeps this spelling */
    char deviceInformation[32];
    char deviceVender[32];
    char hardwareVersion[32];
    char kernelVersion[32];
    char sdkVersion[32];
    int32_t aiNnieStatus;
    int32_t ioSupport;
    int32_t audioSupport;
    int32_t audioMode;
    int32_t audioType;
    int32_t audioLineInput;
    int32_t alarmInputSupport;
    int32_t alarmOutputSupport;
    int32_t fisheyeSupport;
    int32_t vcaSupport;
    int32_t vcaType;
    int32_t anrSupport;
    int32_t speakerSupport;
    int32_t lprSupport;
    int32_t lprVersion;
    int32_t radarSupport;
    int32_t upgrade;
    int32_t faceSupport;
    int32_t polygonFaceSupport;
    int32_t irSensor;
    int32_t dnSensitivitySupport;
    int32_t croproiSupport;
    int32_t dnRefocusSupport;
    int32_t reduceStutteringSupport;
    int32_t polygonSupport;
    int32_t localDisplaySupport;
    int32_t fanWorkingModeSupport;
    int32_t smartIrLimitType;
    int32_t smartIrLimitSum;
    int32_t audioFileManagerSupport;
    int32_t humanVehicleSupport;
    int32_t manualSpeedSupport;
    char snCode[32];                   /* serial number shown on the information page */
    int32_t mosaicSupport;
    int32_t antiShakeSupport;
    int32_t corridorModeSupport;
    int32_t imageRotationSupport;
    int32_t humanDetectionSupport;
    int32_t regionalPeopleSupport;
    int32_t heatMapSupport;
    int32_t p2pSupport;
    int32_t ptzSupport;
    char zkChip[256];                  /* chip description */
    int32_t runtime;                   /* running time */
    int32_t adminoptions;
    char adminuser[128];
    int32_t miscAnonymous;
    int32_t pwdStrengthType;
    int32_t viewerdef;
    int32_t viewerOptions;
    int32_t oemIndex;
    int32_t audioAlarmSupport;
    int32_t ledSupport;
    int32_t ledGroupSupport;
    int32_t ptzMaxZoomTimes;
    int32_t realPtzSupport;
    int32_t isSpeedDm;
    int32_t reserved0;                 /* not in the document */
    int32_t reserved1;                 /* not in the document */
    int32_t iotSupport;
    int32_t supportOsdLarger;
    int32_t autoTrackSupport;
    int32_t smartStreamSupportInOtherStream;
    int32_t wiperSupport;
    int32_t oemupdateonline;
    int32_t whiteLedSupport;
    int32_t defogSupport;
    int32_t manualTrackingSupport;
    int32_t manualTrackingDisable;
    int32_t threeDPositionSupport;     /* key "3DPositionSupport" */
    int32_t rs485Support;
    int32_t ptzStatusSupport;
    int32_t heaterSupport;
    int32_t reserved2;                 /* not in the document */
    int32_t reserved3;                 /* not in the document */
    int32_t ntFaceMosaicSupport;
} system_information_record;

/* Vendor, product name and model. The model text's width is ours to choose:
   64 bytes hold every model name the firmware knows. */
typedef struct system_model_record {
    char devicevEnder[128];
    char name[32];
    char deviceModel[64];
} system_model_record;

/* The notice shown when a newer firmware is available (width chosen: 512). */
typedef struct system_upgrade_info_record {
    char upgradeInfo[512];
} system_upgrade_info_record;

/* The heartbeat answer to an online check: the running software version
   (width chosen: 64). */
typedef struct system_online_heart_record {
    char softversion[64];
} system_online_heart_record;

/* 96 members in a fixed order; "isFaceCustomizeModeExists" is always 0. */
MW_API int32_t get_system_information_json(const system_information_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t get_system_model_json(const system_model_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_system_upgrade_info_json(const system_upgrade_info_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t get_system_online_heart_json(const system_online_heart_record *in, char *dst,
                                            int32_t dstSize);

/* ===== end system: device information ===== */

/* ===== system: settings and support information ===== */

/* ===== end system: settings and support information ===== */

/* ===== network ===== */

/* ===== end network ===== */

/* ===== audio and storage ===== */

/* ===== end audio and storage ===== */

/* ===== traffic and parking ===== */

/* ===== end traffic and parking ===== */

/* ===== ptz ===== */

/* ===== end ptz ===== */

/* ===== camera image ===== */

/* ===== end camera image ===== */

/* ===== video ===== */

/* ===== end video ===== */

/* ===== events: alarm actions per event type ===== */

/* The alarm actions: for each alarm event type (0..47, the numbering of
   getAlarmEventTypeString) what the camera does when that event fires. Every
   record starts with the `eventType` selector and then holds its settings as
   arrays indexed by event type. The same records carry the actions of the
   four IoT alarm rules in elements 0..3 (see the iot section).

   eventType: below 0 asks for every event type (the document holds 48
   objects, named in table order); 0..47 asks for that one type (one object).
   The serializers refuse a selector above 47 with -1 and leave the buffer
   untouched: there is no event of that number and no slot to read. */

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

/* ===== end events: sources, upload servers, global switches ===== */

/* ===== iot: radio, profiles, devices, sensor alarms ===== */

/* The LoRaWAN gateway's radio front end: two radios, eight multi-rate
   channels, one LoRa and one FSK service channel and six additional
   channels. Frequencies are texts as the radio page shows them. */
typedef struct iot_radios_setting_record {
    int32_t iotLoraType;
    int32_t iotEnable;
    int32_t cloudModeEnable;
    char cloudVerification[32];
    int32_t channelPlan;               /* the regional channel plan */
    char channelMask[64];
    char centerRadio_0[32];            /* centre frequency of radio 0 */
    char centerRadio_1[32];
    int32_t radioChannelEnable[8];
    int32_t radioChannelRadio[8];      /* which radio (0 or 1) serves the channel */
    char radioChannelFrequency[8][32];
    int32_t loraEnable;
    int32_t loraRadio;
    char loraFrequency[32];
    int32_t loraBandWidth;
    int32_t loraDataRate;
    int32_t fskEnable;
    int32_t fskRadio;
    char fskFrequency[32];
    int32_t fskBandWidth;
    int32_t fskDataRate;
    char addChannelFrequency[6][32];
    int32_t minRate[6];                /* lowest data rate of the additional channel */
    int32_t maxRate[6];
} iot_radios_setting_record;

/* One LoRaWAN device profile slot. */
typedef struct iot_profile_entry {
    int32_t profileState;              /* -1 marks an empty slot */
    char name[128];
    int32_t maxTxp;                    /* highest transmit power index */
    int32_t joinType;                  /* over the air or by personalisation */
    int32_t classType;                 /* device class A, B or C */
    int32_t macVersion;
    int32_t paramRevision;             /* regional parameters revision */
    int32_t rateRx1;
    int32_t rateRx2;
    int32_t freRx2;                    /* second receive window frequency */
    char freList[64];
    int32_t timeoutClassC;
} iot_profile_entry;

/* The 64 profile slots. `reserved` is the profile store's bookkeeping and is
   not in the document. */
typedef struct iot_profile_setting_record {
    int32_t reserved[2];               /* not in the document */
    iot_profile_entry profiles[64];
} iot_profile_setting_record;

/* One sensor of a device, with its reading's presentation. */
typedef struct iot_sensor_entry {
    int32_t reserved0;                 /* not in the document */
    int32_t sensorType;
    char sensorName[52];
    uint32_t portType;
    uint8_t sensorId;
    uint8_t showOsd;                   /* 1: the reading is shown on the video */
    uint8_t sign;                      /* 1: the value is signed */
    uint8_t decimalPlace;              /* digits after the decimal point */
    uint32_t osh;
    uint32_t osl;
    int32_t reserved1[2];              /* not in the document */
    char unit[36];
} iot_sensor_entry;

/* One registered device. The EUI, keys and address are hexadecimal texts of
   16, 32 and 8 characters. An empty deviceName marks a free slot. */
typedef struct iot_device_entry {
    int32_t deviceType;
    int32_t deviceProfile;             /* index of its profile slot */
    int32_t reserved;                  /* not in the document */
    iot_sensor_entry sensors[24];
    uint8_t deviceStatus;              /* 1 while the device is online */
    char deviceName[128];
    char deviceEUI[17];
    char applicationKey[33];
    char deviceAddress[9];
    char networkSessionKey[33];
    char appSessionKey[33];
    uint8_t frameCounterEnable;
    uint32_t upLinkFrameCnt;
    uint32_t downLinkFrameCnt;
    uint8_t osdFontColor[3];           /* red, green, blue */
    uint32_t osdFontSize;
    uint8_t battery;                   /* percent */
    uint32_t seen;                     /* time of the last frame heard */
    int32_t sensorNum;                 /* sensors in use, from sensors[0] */
} iot_device_entry;

/* The device table as the gateway keeps it. `reserved` is not in the
   document. */
typedef struct iot_device_table {
    int32_t reserved[2];               /* not in the document */
    iot_device_entry device[8];
} iot_device_table;

/* The devices page: the gateway's device table, reached through a pointer,
   and the current time for judging the devices' "seen" times. */
typedef struct iot_devices_management_record {
    iot_device_table *devices;
    int32_t systemTime;
} iot_devices_management_record;

/* The threshold alarm rules: four rules, each with limits for every sensor of
   the eight devices (rule, device, sensor) and its week's schedule. Limits
   are decimal texts. */
typedef struct iot_alarm_settings_record {
    int32_t isExistSensor;             /* 1 when any device has a sensor */
    int32_t sensorNum[8];              /* sensors per device */
    int32_t alarmEnable[4];            /* per rule */
    int32_t sensorEnable[4][8][24];
    int32_t maxLimitEnable[4][8][24];
    int32_t minLimitEnable[4][8][24];
    char maxLimit[4][8][24][16];
    char minLimit[4][8][24][16];
    char schedule[4][7][256];          /* per rule, one text per day, day 0 first */
} iot_alarm_settings_record;

/* The radio settings with "radioChannelList" (always 8 channels) and
   "additionalChannelList" (always 6). */
MW_API int32_t get_iot_radios_setting_json(const iot_radios_setting_record *in, char *dst,
                                           int32_t dstSize);
/* "profileList": the used slots only, each with its slot number as "index". */
MW_API int32_t get_iot_profile_setting_json(const iot_profile_setting_record *in, char *dst,
                                            int32_t dstSize);
/* "systemTime" and "deviceList": the named devices only, each with its slot
   number as "index", its settings, and "sensorInfo" with the readings of
   sensors 0..sensorNum-1 (none for 0 or a negative count). The sensor list
   stops at a device's 24 sensors, whatever a larger count says. A NULL
   device table gives an empty "deviceList". */
MW_API int32_t get_iot_devices_management_json(const iot_devices_management_record *in, char *dst,
                                               int32_t dstSize);
/* "isExistSensor" and "rulesList": all four rules, each with all eight devices
   (present or not) and seven schedule days. A device's "sensorList" holds
   sensors 0..sensorNum-1 and stops at 24, whatever a larger count says. */
MW_API int32_t get_iot_alarm_settings_json(const iot_alarm_settings_record *in, char *dst,
                                           int32_t dstSize);

/* ===== end iot: radio, profiles, devices, sensor alarms ===== */

/* ===== iot: alarm actions per rule ===== */

/* The actions of the four IoT alarm rules use the alarm-action records of the
   events section: element r (0..3) of each per-type array holds rule r's
   setting, and the eventType selector is not read. Each document lists the
   four rules in "...ActionList", each entry led by "ruleIndex" 0..3. */

/* The IoT alarm state. */
typedef struct event_iot_alarm_status_record {
    int32_t iotAlarmStatus;
} event_iot_alarm_status_record;

/* "sdInsert" and "nasMountStatus" once, from element 0, then
   "iotRecordActionList" ("recordEnable", "recordWay", "duration"). */
MW_API int32_t get_event_iot_record_json(const event_record_record *in, char *dst, int32_t dstSize);
/* "snapSmtpEnable", then "iotSnapshotActionList" (no "snapType"). */
MW_API int32_t get_event_iot_snap_json(const event_snop_record *in, char *dst, int32_t dstSize);
/* "iotOutputActionList". */
MW_API int32_t get_event_extern_iot_output_json(const event_extern_output_record *in, char *dst,
                                                int32_t dstSize);
/* "iotPlayAudioActionList", each rule with its seven-day "scheduleList". */
MW_API int32_t get_event_iot_play_audio_json(const event_play_audio_record *in, char *dst,
                                             int32_t dstSize);
/* "iotAlarmSipActionList". */
MW_API int32_t get_event_iot_alarm_sip_phone_json(const event_alarm_sip_phone_record *in, char *dst,
                                                  int32_t dstSize);
/* "iotNotifyActionList", each rule with "notifyInfoList": the three targets
   without their method and snapshot bytes. */
MW_API int32_t get_event_iot_notify_json(const event_notify_record *in, char *dst, int32_t dstSize);
/* "iotOsdBlankActionList" (the list key says Blank; its entries' keys say
   Blink). */
MW_API int32_t get_event_iot_osd_blink_json(const event_osd_blink_record *in, char *dst,
                                            int32_t dstSize);
/* {"iotAlarmStatus": state}. */
MW_API int32_t get_event_iot_alarm_status_json(const event_iot_alarm_status_record *in, char *dst,
                                               int32_t dstSize);

/* ===== end iot: alarm actions per rule ===== */

/* ===== capabilities ===== */

/* ===== end capabilities ===== */

/* ===== vca ===== */

/* ===== end vca ===== */

/* ===== lpr ===== */

/* ===== end lpr ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_H */
