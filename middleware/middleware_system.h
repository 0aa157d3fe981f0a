/*
 * middleware_system.h - the system pages: device information, settings and support information.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_SYSTEM_H
#define MIDDLEWARE_SYSTEM_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

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
MW_API int32_t schema_system_information_json(const system_information_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_system_model_json(const system_model_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_system_model_json(const system_model_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_system_upgrade_info_json(const system_upgrade_info_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_system_upgrade_info_json(const system_upgrade_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_system_online_heart_json(const system_online_heart_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_system_online_heart_json(const system_online_heart_record *in, char *dst, int32_t dstSize);

/* ===== end system: device information ===== */

/* ===== system: settings and support information ===== */

/* ---- settings ---- */

/* Date, time and NTP. timeZoneTz is the time-zone rule text (as in TZ),
   zoneNameTz the zone's display name. */
typedef struct system_date_time_record {
    int32_t year;
    int32_t month;
    int32_t day;
    int32_t hour;
    int32_t minute;
    int32_t second;
    char timeZoneTz[256];
    char zoneNameTz[32];
    int32_t dayLight;
    int32_t timeType;
    char ntpServer[64];
    int32_t ntpSyncEnable;
    int32_t ntpInterval;
} system_date_time_record;

/* Whether live view is open to visitors without an account. */
typedef struct system_user_anonymous_record {
    int32_t miscAnonymous;
} system_user_anonymous_record;

/* One module permission of an account. The module text is the
   configuration's own; the document names the module with the platform's
   key text instead. */
typedef struct module_permission_entry {
    char module[64];                   /* not in the document */
    uint8_t permission;
} module_permission_entry;

/* An account slot; an empty userName marks an unused slot. The stored
   password hash and the bookkeeping words after privilege are not in the
   document (their widths are ours). */
typedef struct system_user_entry {
    char userName[32];
    char passwordHash[64];             /* not in the document */
    uint8_t userLevel;
    int32_t privilege;
    int32_t reserved[4];               /* not in the document: creation time, lock state */
    module_permission_entry modulePermissions[4];
} system_user_entry;

/* The account table: twenty slots. */
typedef struct system_user_record {
    int32_t miscAnonymous;
    system_user_entry users[20];
} system_user_record;

/* Weekly automatic reboot. */
typedef struct system_auto_reboot_record {
    uint8_t rebootEnable;
    int32_t rebootWeekday;
    int32_t rebootHour;
    int32_t rebootMin;
    int32_t rebootSec;
} system_auto_reboot_record;

/* The stream-encryption key and its identifier, written as they stand. An
   empty key means there is none (width of keyId chosen: 64). */
typedef struct system_aes_key_record {
    char key[1024];
    char keyId[64];
} system_aes_key_record;

/* A security question. The stored answer is never written to any document.
   The question and answer widths are ours: 128 bytes each. */
typedef struct sqa_entry {
    uint8_t sqaType;                   /* which of the predefined questions, or a custom one */
    char sqaQuestion[128];
    char sqaAnswer[128];               /* not in the document */
} sqa_entry;

/* The three security questions of the administrator account; only an
   sqaEnable of exactly 1 turns them on. */
typedef struct system_sqa_info_record {
    uint8_t sqaEnable;
    sqa_entry questions[3];
} system_sqa_info_record;

/* The video watermark (text width chosen: 128). */
typedef struct system_water_mark_record {
    uint8_t waterMarkEnable;
    char waterMarkString[128];
} system_water_mark_record;

/* The IP access list: ten slots, an empty address marking an unused one.
   The stored slot numbers are not in the document, which numbers the used
   entries itself from 0. */
typedef struct system_access_list_record {
    int32_t maxConcurrent;
    int32_t filterEnable;
    int32_t filterType;
    int32_t slotNumbers[10];           /* not in the document */
    int32_t accessType[10];
    char accessAddress[10][64];
} system_access_list_record;

typedef struct system_ssh_record {
    int32_t sshEnable;
    int32_t sshPort;
} system_ssh_record;

/* The texts of the notification page (width of output chosen: 32, like the
   others). */
typedef struct system_notify_record {
    char keep[32];
    char md[32];
    char recording[32];
    char input[32];
    char output[32];
} system_notify_record;

/* Automatic export of recordings and logs. */
typedef struct system_auto_export_record {
    int32_t autoExportEnable;
    int32_t autoExportMethod;
    int32_t autoExportWeekday;
    char autoExportTime[32];
    int32_t autoExportRange;
} system_auto_export_record;

/* The logged-in user's authority (width of userId chosen: 64). */
typedef struct system_authority_record {
    int32_t userLevel;
    int32_t privilege;
    char userId[64];
} system_authority_record;

/* Sending the log to a remote server (width of the address chosen: 128, a
   host name or an IPv6 address). */
typedef struct system_remote_logs_record {
    int32_t remoteLogsEnable;
    int32_t remoteLogsPort;
    char remoteLogsIpAddress[128];
} system_remote_logs_record;

/* Thirteen members in record order. */
MW_API int32_t get_system_date_time_json(const system_date_time_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_system_date_time_json(const system_date_time_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_date_time_json(system_date_time_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* "miscAnonymous". */
MW_API int32_t get_system_user_anonymous_json(const system_user_anonymous_record *in, char *dst,
                                              int32_t dstSize);
MW_API int32_t schema_system_user_anonymous_json(const system_user_anonymous_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_user_anonymous_json(system_user_anonymous_record *record, const char *body, int32_t bodySize,
                                              char *dst, int32_t dstSize);
/* "miscAnonymous" and "userList": the used slots in slot order, each with
   "userName", "userLevel", "privilege" and "newModulePermission", whose four
   keys are the platform's module permission texts (modules 0..3). */
MW_API int32_t get_system_user_json(const system_user_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_system_user_json(const system_user_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_user_json(system_user_record *record, const char *body, int32_t bodySize, char *dst,
                                    int32_t dstSize);
/* "rebootEnable", "rebootWeekday", "rebootHour", "rebootMin", "rebootSec". */
MW_API int32_t get_system_auto_reboot_json(const system_auto_reboot_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_system_auto_reboot_json(const system_auto_reboot_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_auto_reboot_json(system_auto_reboot_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);
/* "key", "keyId". With an empty key it returns 0 and leaves dst exactly as
   it was: the caller clears dst itself. A NULL dst or a size below 1 is still
   -1. */
MW_API int32_t get_system_aes_key_json(const system_aes_key_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_system_aes_key_json(const system_aes_key_record *in, char *dst, int32_t dstSize);
/* "sqaEnable" alone (0) unless sqaEnable is exactly 1; then also, per
   question 0..2, "sqaType_<i>", "sqaQuestion_<i>" and an empty
   "sqaAnswer_<i>". */
MW_API int32_t get_system_sqa_info_json(const system_sqa_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_system_sqa_info_json(const system_sqa_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_sqa_info_json(system_sqa_info_record *record, const char *body, int32_t bodySize, char *dst,
                                        int32_t dstSize);
/* "waterMarkEnable", "waterMarkString". */
MW_API int32_t get_system_water_mark_json(const system_water_mark_record *in, char *dst,
                                          int32_t dstSize);
MW_API int32_t schema_system_water_mark_json(const system_water_mark_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_water_mark_json(system_water_mark_record *record, const char *body, int32_t bodySize,
                                          char *dst, int32_t dstSize);
/* "maxConcurrent", "filterEnable", "filterType" and "accessList": the used
   slots, "accessIndex" counting them from 0. */
MW_API int32_t get_system_access_list_json(const system_access_list_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_system_access_list_json(const system_access_list_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_access_list_json(system_access_list_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);
/* "sshEnable", "sshPort". */
MW_API int32_t get_system_ssh_json(const system_ssh_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_system_ssh_json(const system_ssh_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_ssh_json(system_ssh_record *record, const char *body, int32_t bodySize, char *dst,
                                   int32_t dstSize);
/* "keep", "md", "recording", "input", "output". */
MW_API int32_t get_system_notify_json(const system_notify_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_system_notify_json(const system_notify_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_notify_json(system_notify_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
/* Five members in record order. */
MW_API int32_t get_system_auto_export_json(const system_auto_export_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_system_auto_export_json(const system_auto_export_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_auto_export_json(system_auto_export_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);
/* "userLevel", "privilege", "userId". */
MW_API int32_t get_system_authority_json(const system_authority_record *in, char *dst,
                                         int32_t dstSize);
MW_API int32_t schema_system_authority_json(const system_authority_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_authority_json(system_authority_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* "remoteLogsEnable", "remoteLogsIpAddress", "remoteLogsPort" (the address
   first). */
MW_API int32_t get_system_remote_logs_json(const system_remote_logs_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_system_remote_logs_json(const system_remote_logs_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_system_remote_logs_json(system_remote_logs_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);

/* ---- support information ---- */

/* What the web pages need to decide which optional pages and controls to
   show. `ddns` is the DDNS block as the network DDNS page keeps it, from its
   enable byte on. The upgrade notice: updateState, the download url, the new
   version, its release notes and its date. deviceClass holds 68 bytes. */
typedef struct system_support_info_record {
    int32_t lessAlarmAudio;
    int32_t alarmOutput;
    int32_t supportWhiteledAdjust;
    int32_t lprShowAlgoDebug;
    int32_t isTestVideo;
    int32_t httpPort;
    int32_t upnpEnable;
    int32_t upnpHttpPort;
    int32_t upnpHttpsPort;
    int32_t upnpRtspPort;
    network_ddns_settings ddns;
    int32_t outputNum;                 /* number of alarm outputs */
    int32_t curmaxconn;                /* connection limit */
    uint8_t lprRedLightSupport;
    int32_t mainRtspPort;
    int32_t isSupportCellular;
    int32_t isSupportIndependentGps;
    int32_t isCompositeEnable;
    int32_t updateState;
    char url[128];
    char version[128];
    char versionInfo[4096];
    char versionTime[128];
    char deviceClass[68];
    int32_t radarSupport;
} system_support_info_record;

/* Every member always: the ports, the DDNS block's "ddnsenable",
   "ddnshttpport", "ddnsrtspport" and "ddnsdomain" (its provider text), the
   constant "pluginVersion" "1.0.12", "radarSupport" and "deviceClass", then
   the "upgradeInfo" object. */
MW_API int32_t get_system_support_info_json(const system_support_info_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_system_support_info_json(const system_support_info_record *in, char *dst, int32_t dstSize);

/* ===== end system: settings and support information ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_SYSTEM_H */
