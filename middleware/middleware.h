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
   1, else returns -1. Should it not attach (memory ran out for the key, or a
   NULL parent or key), it is released, *outChild becomes NULL and the result
   is -1: nothing is left behind that the tree does not own. The arguments are
   otherwise not tested. */
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
/* "miscAnonymous". */
MW_API int32_t get_system_user_anonymous_json(const system_user_anonymous_record *in, char *dst,
                                              int32_t dstSize);
/* "miscAnonymous" and "userList": the used slots in slot order, each with
   "userName", "userLevel", "privilege" and "newModulePermission", whose four
   keys are the platform's module permission texts (modules 0..3). */
MW_API int32_t get_system_user_json(const system_user_record *in, char *dst, int32_t dstSize);
/* "rebootEnable", "rebootWeekday", "rebootHour", "rebootMin", "rebootSec". */
MW_API int32_t get_system_auto_reboot_json(const system_auto_reboot_record *in, char *dst,
                                           int32_t dstSize);
/* "key", "keyId". With an empty key it returns 0 and leaves dst exactly as
   it was: the caller clears dst itself. A NULL dst or a size below 1 is still
   -1. */
MW_API int32_t get_system_aes_key_json(const system_aes_key_record *in, char *dst, int32_t dstSize);
/* "sqaEnable" alone (0) unless sqaEnable is exactly 1; then also, per
   question 0..2, "sqaType_<i>", "sqaQuestion_<i>" and an empty
   "sqaAnswer_<i>". */
MW_API int32_t get_system_sqa_info_json(const system_sqa_info_record *in, char *dst, int32_t dstSize);
/* "waterMarkEnable", "waterMarkString". */
MW_API int32_t get_system_water_mark_json(const system_water_mark_record *in, char *dst,
                                          int32_t dstSize);
/* "maxConcurrent", "filterEnable", "filterType" and "accessList": the used
   slots, "accessIndex" counting them from 0. */
MW_API int32_t get_system_access_list_json(const system_access_list_record *in, char *dst,
                                           int32_t dstSize);
/* "sshEnable", "sshPort". */
MW_API int32_t get_system_ssh_json(const system_ssh_record *in, char *dst, int32_t dstSize);
/* "keep", "md", "recording", "input", "output". */
MW_API int32_t get_system_notify_json(const system_notify_record *in, char *dst, int32_t dstSize);
/* Five members in record order. */
MW_API int32_t get_system_auto_export_json(const system_auto_export_record *in, char *dst,
                                           int32_t dstSize);
/* "userLevel", "privilege", "userId". */
MW_API int32_t get_system_authority_json(const system_authority_record *in, char *dst,
                                         int32_t dstSize);
/* "remoteLogsEnable", "remoteLogsIpAddress", "remoteLogsPort" (the address
   first). */
MW_API int32_t get_system_remote_logs_json(const system_remote_logs_record *in, char *dst,
                                           int32_t dstSize);

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

/* ===== end system: settings and support information ===== */

/* ===== network ===== */

/* ---- network services ---- */

/* TCP/IP: the IPv4 address (or DHCP), the IPv6 settings, DNS and MTU. */
typedef struct network_tcp_record {
    char ipv4Ipaddress[32];
    char ipv4netmask[32];              /* dotted text, e.g. 255.255.255.0 */
    char ipv4gateway[32];
    int32_t ipv4DhcpEnable;
    char dns0[64];
    int32_t ipv6Mode;
    char ipv6Ipaddress[64];
    int32_t ipv6netmask;               /* IPv6 prefix length (e.g. 64): a number, not a mask text */
    char ipv6gateway[64];
    int32_t mtuByte;                   /* MTU in bytes */
} network_tcp_record;

/* HTTP and HTTPS ports and switches, and the installed HTTPS certificate:
   its validity dates and subject parts (country, state `ST`, organisation `O`,
   common name `CN`). `certResult` and `certUpdateFlag` are the state of the
   last certificate request and installation. Width chosen for CN: 64. */
typedef struct network_http_record {
    int32_t httpPort;
    int32_t httpEnable;
    int32_t httpsEnable;
    int32_t httpsPort;
    char certDate[256];
    char certSubject[256];
    int32_t certResult;
    char requestSubject[256];          /* subject of a pending certificate request */
    int32_t certUpdateFlag;
    char ipv4Ipaddress[32];
    char ipv6Ipaddress[32];
    char notBefore[64];
    char notAfter[64];
    char country[64];
    char ST[64];
    char O[64];
    char CN[64];
} network_http_record;

/* UPnP port mapping: for HTTP, HTTPS, RTSP and playback, the external port
   announced to the router, the camera's internal port and the mapping's
   state as the router reported it. */
typedef struct network_upnp_record {
    int32_t scanUpnpEnable;
    int32_t upnpEnable;
    char upnpName[256];                /* friendly name announced on the network */
    int32_t upnpType;                  /* mapping mode: automatic or manual */
    int32_t upnpHttpPort;              /* external ports */
    int32_t upnpHttpsPort;
    int32_t upnpRtspPort;
    int32_t upnpPlayBackPort;
    int32_t upnpHttpInterPort;         /* internal ports */
    int32_t upnpHttpsInterPort;
    int32_t upnpRtspInterPort;
    int32_t upnpPlaybackInterPort;
    int32_t upnpHttpStatus;            /* mapping states */
    int32_t upnpHttpsStatus;
    int32_t upnpRtspStatus;
    int32_t upnpPlaybackStatus;
} network_upnp_record;

/* 802.1Q VLAN tagging and the address the camera uses inside the VLAN.
   Width chosen for vlanGateway: 32, as the other two addresses. */
typedef struct network_vlan_record {
    int32_t vlanEnable;
    int32_t vlanId;                    /* VLAN tag, 1..4094 */
    char vlanIp[32];
    char vlanNetmask[32];
    char vlanGateway[32];
} network_vlan_record;

/* PPPoE dial-up: the account name and the address the link obtained. The
   password is kept elsewhere and never written out. */
typedef struct network_pppoe_record {
    int32_t pppoeEnable;
    char pppoeUsername[128];
    char pppoeIp[64];
    int32_t pppoeReload;               /* 1 asks for a redial */
} network_pppoe_record;

/* RTSP ports and multicast: the group address, one multicast port per
   stream (main stream first), QoS DSCP mark and RTP packet size. */
typedef struct network_rtsp_record {
    char multicastGroupAddress[64];
    int32_t multicastPort[4];          /* keys multicastPort_0 .. multicastPort_3 */
    int32_t rtspPort;
    int32_t rtspPlaybackPort;
    int32_t qosDscp;
    int32_t rtpPacketSize;
} network_rtsp_record;

/* SNMP: the v1/v2c communities and the v3 users for reading (rd...) and
   writing (wr...) with their security level and algorithms. Communities and
   passwords are the user's settings and are written out as they stand. */
typedef struct network_snmp_record {
    int32_t enableV1;
    int32_t enableV2;
    int32_t enableV3;
    char wrCommunity[128];
    char rdCommunity[128];
    char rdSecurityName[128];
    int32_t rdSecurityLevel;
    int32_t rdAuthenticationAlgorithm;
    char rdAuthenticationPassword[128];
    int32_t rdPrivateKeyAlgorithm;
    char rdPrivatePassword[128];
    char wrSecurityName[128];
    int32_t wrSecurityLevel;
    int32_t wrAuthenticationAlgorithm;
    char wrAuthenticationPassword[128];
    int32_t wrPrivateKeyAlgorithm;
    char wrPrivatePassword[128];
    int32_t snmpPort;
} network_snmp_record;

/* IEEE 802.1X port authentication (EAP-MD5 only). Widths chosen: username
   and the password no key reads, 64 bytes each. */
typedef struct network_8021x_record {
    uint8_t enable;
    uint8_t reserved0;                 /* not in the document */
    char username[64];
    char password[64];                 /* not in the document */
    uint8_t eapolver;                  /* EAPOL version counted from 0: 0 is version 1 */
} network_8021x_record;

/* Bonjour (mDNS) announcement and the name it announces (width chosen: 64). */
typedef struct network_bonjour_record {
    uint8_t enable;
    char name[64];
} network_bonjour_record;

/* The DDNS page reads network_ddns_record, declared with the layouts shared
   by two groups above. Its three ports are unsigned. */

/* One flat object each, keys in the page's order (which is not always the
   record's). "ipv6netmask" is a number, "ipv4netmask" a string. */
MW_API int32_t get_network_tcp_json(const network_tcp_record *in, char *dst, int32_t dstSize);
/* "httpEnable" comes before "httpPort". */
MW_API int32_t get_network_http_json(const network_http_record *in, char *dst, int32_t dstSize);
/* 16 members: switches, name and type, then the twelve ports and states in
   record order ("upnpPlayBackPort" with a capital B). */
MW_API int32_t get_network_upnp_json(const network_upnp_record *in, char *dst, int32_t dstSize);
/* "vlanEnable", "vlanId", then the three addresses. */
MW_API int32_t get_network_vlan_json(const network_vlan_record *in, char *dst, int32_t dstSize);
/* No password is written. */
MW_API int32_t get_network_pppoe_json(const network_pppoe_record *in, char *dst, int32_t dstSize);
/* 13 members; "httpPort", "rtspPort", "playbackPort" unsigned; "status" comes
   before the two oem members although it is stored last. */
MW_API int32_t get_network_ddns_json(const network_ddns_record *in, char *dst, int32_t dstSize);
/* Always four members multicastPort_0 .. multicastPort_3. */
MW_API int32_t get_network_rtsp_json(const network_rtsp_record *in, char *dst, int32_t dstSize);
/* "enableV3" is written after the two communities. */
MW_API int32_t get_network_snmp_json(const network_snmp_record *in, char *dst, int32_t dstSize);
/* "protocol" is always "EAP-MD5"; "eapolver" is the stored byte plus 1. */
MW_API int32_t get_network_8021x_json(const network_8021x_record *in, char *dst, int32_t dstSize);
/* "enable" (unsigned byte) and "name". */
MW_API int32_t get_network_bonjour_json(const network_bonjour_record *in, char *dst, int32_t dstSize);

/* ---- platform, push, online users, mail and SIP ---- */

/* Registration with a remote video platform: the camera's local signalling
   port, the platform server and the identifiers it assigned, the timers
   (in seconds) and the channel identifiers of the alarm input, video and
   audio output. Width chosen for audioOutput: 64, as its neighbours. */
typedef struct network_platform_record {
    uint8_t enable;
    int32_t localPort;
    char serverId[64];
    char serverRegion[64];
    char serverAddress[64];
    int32_t serverPort;
    char deviceId[64];
    char password[64];
    int32_t validity;                  /* registration validity */
    int32_t heartBeatPeriod;
    int32_t videoStream;               /* stream sent to the platform, 0 = main */
    int32_t registerInterval;
    int32_t maxTimeout;                /* heartbeats missed before going offline */
    char alarmInput[64];
    char videoChannel[64];
    char audioOutput[64];
} network_platform_record;

/* One push module's switch. The key it is written under comes from the
   platform library (get_new_module_push_name), not from the record. */
typedef struct module_push_entry {
    char moduleName[64];               /* not in the document */
    uint8_t push;                      /* 1: the module pushes its alarms */
} module_push_entry;

/* ONVIF and the push service; one push module so far. */
typedef struct network_more_record {
    int32_t onvifEnable;
    int32_t pushEnable;
    int32_t pushType;
    module_push_entry modulePush[1];
} network_more_record;

/* Publishing one stream to an RTMP server (width chosen for server: 256, a
   full rtmp:// address with its stream key). */
typedef struct network_rtmp_record {
    uint8_t enable;
    uint8_t streamType;                /* 0 = main stream */
    char server[256];
} network_rtmp_record;

/* The peer that fills recording gaps after a network loss (automatic
   network replenishment) and the state of the link to it. */
typedef struct network_anr_info_record {
    char anrMac[64];
    char anrIp[64];
    int32_t anrStatus;
} network_anr_info_record;

/* The users logged in now. Only the first onlineUserCount slots are read;
   the producer keeps the count within 0..30 (it is not clamped). */
typedef struct network_online_users_record {
    int32_t onlineUserCount;
    char onlineUserName[30][128];
    int32_t onlineUserLevel[30];       /* user level (administrator, operator, viewer) */
    char onlineUserIp[30][64];
    char onlineUserTime[30][64];       /* login time as text */
} network_online_users_record;

/* The mail sent when the camera boots. The SSL mode is stored as two bits:
   "serverSsl" is 2 * serverSslHigh + serverSslLow. Widths chosen: 128 bytes
   for every address and the user name. */
typedef struct network_smtp_boot_notify_record {
    uint8_t bootNotifyEnable;
    char emailTarcertAddress[128];     /* the key keeps this spelling */
    char serverUserName[128];
    char serverFromAddress[128];
    char serverAddress[128];
    char serverToAddress[128];
    uint32_t serverPort;
    uint8_t serverSslHigh;
    uint8_t serverSslLow;
} network_smtp_boot_notify_record;

/* SIP intercom account and call settings. Width chosen for userName: 64. */
typedef struct sip_settings {
    uint8_t enable;
    uint8_t registerMode;
    uint8_t sipAudioEnable;
    uint8_t videoStream;
    uint32_t serverPort;
    uint32_t reserved0;                /* not in the document */
    uint32_t maxDuration;              /* longest call, in seconds */
    char userId[64];
    char password[32];
    char userName[64];
    char serverAddress[64];
    uint8_t connectionProtocol;        /* 0 = UDP, 1 = TCP */
} sip_settings;

/* The SIP page: the settings, owned by the caller and read through the
   pointer, and the registration state. */
typedef struct network_sip_settings_record {
    const sip_settings *settings;      /* must not be NULL: it is not tested */
    int32_t sipStatus;
} network_sip_settings_record;

/* A phone the camera calls on an alarm, within a daily time window (hours
   and minutes, 24-hour clock). An empty phoneNumber marks an empty slot.
   Width chosen for phoneName: 64. */
typedef struct sip_alarm_phone_entry {
    uint32_t reserved0;                /* not in the document */
    uint8_t phoneType;
    uint32_t phonePort;
    uint8_t reserved1;                 /* not in the document */
    uint8_t durationStartHour;
    uint8_t durationStartMinute;
    uint8_t durationEndHour;
    uint8_t durationEndMinute;
    char phoneNumber[64];
    char phoneName[64];
} sip_alarm_phone_entry;

/* Five alarm phones, filled from slot 0 on: the first empty number ends the
   list. */
typedef struct network_sip_alarm_phone_list_record {
    sip_alarm_phone_entry phones[5];
} network_sip_alarm_phone_list_record;

/* The numbers allowed to call the camera: five slots, an empty phoneNumber
   marks an unused one (later slots still count). */
typedef struct network_sip_white_list_record {
    int32_t enable;
    int32_t reserved0[5];              /* not in the document */
    int32_t phoneType[5];
    char phoneNumber[5][64];
} network_sip_white_list_record;

/* 16 members in record order; the password is written as stored. */
MW_API int32_t get_network_platform_json(const network_platform_record *in, char *dst, int32_t dstSize);
/* "newModulePush" holds one member for module 0, keyed by the platform
   library's name for it (a module the platform does not name adds nothing:
   cJSON refuses a member without a key). */
MW_API int32_t get_network_more_json(const network_more_record *in, char *dst, int32_t dstSize);
/* "enable", "streamType" (unsigned bytes), "server". */
MW_API int32_t get_network_rtmp_json(const network_rtmp_record *in, char *dst, int32_t dstSize);
/* "anrMac", "anrIp", "anrStatus". */
MW_API int32_t get_network_anr_info_json(const network_anr_info_record *in, char *dst, int32_t dstSize);
/* "onlineUserList": one object per user for i < onlineUserCount (none for a
   count of 0 or below). */
MW_API int32_t get_network_online_users_json(const network_online_users_record *in, char *dst,
                                             int32_t dstSize);
/* Server first, then the addresses; "serverSsl" combines the two bits and
   "serverPort" is unsigned. */
MW_API int32_t get_network_smtp_boot_notify_json(const network_smtp_boot_notify_record *in, char *dst,
                                                 int32_t dstSize);
/* Reads *in->settings, then "sipStatus" last. */
MW_API int32_t get_network_sip_settings_json(const network_sip_settings_record *in, char *dst,
                                             int32_t dstSize);
/* "sipAlarmPhoneList": slots from 0 up to the first empty number, each with
   its "phoneIndex" and "phoneDuration" as HHMMHHMM (start, end). */
MW_API int32_t get_network_sip_alarm_phone_list_json(const network_sip_alarm_phone_list_record *in, char *dst,
                                                     int32_t dstSize);
/* "sipWhiteList": every slot with a number, "phoneIndex" the slot (0..4). */
MW_API int32_t get_network_sip_white_list_json(const network_sip_white_list_record *in, char *dst,
                                               int32_t dstSize);

/* ---- stream addresses, VPN and cellular ---- */

/* The RTSP and HTTP address of each of the six streams, main stream first;
   an unused stream holds an empty text. */
typedef struct network_stream_url_record {
    char rtspStreamUrl[6][256];
    char httpStreamUrl[6][256];
} network_stream_url_record;

/* The VPN client: its server and the identity it registers with, and the
   state of the tunnel. The reserved members hold the client's own settings
   (32 bytes each, our choice) and are not in the document; width chosen for
   remoteIp: 64, as localIp. */
typedef struct network_vpn_record {
    uint8_t reserved0;                 /* not in the document */
    uint8_t mode;
    char server[64];
    int32_t port;
    char reserved1[32];                /* not in the document */
    char reserved2[32];                /* not in the document */
    char authCode[32];
    char deviceName[32];
    uint8_t connected;                 /* 1 while the tunnel is up */
    char localIp[64];                  /* tunnel addresses */
    char remoteIp[64];
    uint64_t duration;                 /* connection time of the tunnel */
    uint32_t errorCode;                /* last error of the client, 0 = none */
} network_vpn_record;

/* The cellular modem: dial-up settings (APN, account, PIN, access number),
   the link check by ping, and the modem's status texts. Password and PIN are
   the user's settings and are written out as they stand. The reserved members
   are not in the document (two words each, our choice); width chosen for
   dataUsage: 32, as the status texts before it. */
typedef struct network_cellular_info_record {
    int32_t enable;
    int32_t pingDetection;             /* 1: check the link by pinging pingAddr */
    char apn[256];
    char userName[256];
    char password[128];
    char pinCode[256];
    char accessNumber[256];
    int32_t authenticationType;
    int32_t networkType;
    int32_t redialInterval;
    int32_t billDay;                   /* day of the month the data allowance restarts */
    int32_t reserved0[2];              /* not in the document */
    char pingAddr[256];
    int32_t mtu;
    int32_t reserved1[2];              /* not in the document */
    char isp[32];
    char simStatus[32];
    int32_t signal;                    /* signal strength */
    char connect[32];
    char imei[32];
    char imsi[32];
    char iccid[32];
    char ipaddr[32];
    char subNetmask[32];
    char gateway[32];
    char dns[32];
    char dataUsage[32];
} network_cellular_info_record;

/* "rtspStreamUrl" and "httpStreamUrl": six objects each, {"url"}, empty
   addresses included. */
MW_API int32_t get_network_stream_url_json(const network_stream_url_record *in, char *dst, int32_t dstSize);
/* "mode" follows the texts; "duration" is an unsigned 64-bit number written
   as a JSON number (exact up to 2^53). */
MW_API int32_t get_network_vpn_json(const network_vpn_record *in, char *dst, int32_t dstSize);
/* 25 members; "pingDetection" comes after "billDay". */
MW_API int32_t get_network_cellular_info_json(const network_cellular_info_record *in, char *dst,
                                              int32_t dstSize);

/* ===== end network ===== */

/* ===== audio and storage ===== */

/* The audio page: input and output settings of the camera's audio channel.
   Codec, source and mode are the page's option codes. */
typedef struct audio_info_record {
    int32_t reserved0;           /* not in the document */
    int32_t enable;
    int32_t codec;
    int32_t source;              /* microphone or line input */
    int32_t mode;
    int32_t denoise;
    int32_t inputGain;
    int32_t alarmLevel;          /* input level that raises the audio alarm */
    int32_t outputAgc;
    int32_t outputVolume;
    int32_t sampleRate;
    int32_t bitRate;
    int32_t reserved1;           /* not in the document */
    int32_t externCodecType;
} audio_info_record;

/* The alarm audio files stored on the camera: five slots, an empty name marks
   a free one. */
typedef struct audio_file_record {
    int32_t audioFileStorageType;
    char audioFileName[5][128];
} audio_file_record;

/* The storage page: the SD card's state and the five network-storage (NAS)
   slots, held as parallel arrays indexed by slot (0 to 4). Sizes are display
   texts ("29.7GB"); the NAS password is written to the document as stored. */
typedef struct storage_settings_record {
    int32_t sdcardStatus;
    int32_t sdcardDiskStatus;
    int32_t sdcardFullStatus;
    char sdcardTotalSize[32];
    char sdcardFreeSize[32];
    char sdcardUseSize[32];
    int32_t sdcardFileSystem;
    char nasAddress[5][64];
    char nasFilePath[5][256];
    int32_t nasRecycle[5];
    int32_t nasMountType[5];
    char nasTotalSize[5][32];
    char nasFreeSize[5][32];
    char nasUserName[5][64];
    char nasPassword[5][32];
    int32_t nasStatus[5];
} storage_settings_record;

/* The recording page: overwrite when full, pre-record time in seconds, the
   recorded stream, and one schedule text per day (0 = first day of the
   week, 6 = last). */
typedef struct storage_record_settings_record {
    int32_t recycleStorageEnable;
    int32_t preRecordTime;
    int32_t stream;
    char schedule[7][256];
} storage_record_settings_record;

/* Twelve numbers, "enable" to "externCodecType", in the record's order. */
MW_API int32_t get_audio_info_json(const audio_info_record *in, char *dst, int32_t dstSize);
/* "audioFileStorageType", then one "audioFileName_<slot>" per used slot: the
   key keeps the slot number (0 to 4), so free slots leave gaps. */
MW_API int32_t get_audio_file_json(const audio_file_record *in, char *dst, int32_t dstSize);
/* The SD card members, then "nasList": always five objects, "nasIndex" 0 to
   4, configured or not. */
MW_API int32_t get_storage_settings_json(const storage_settings_record *in, char *dst, int32_t dstSize);
/* Three numbers, then "scheduleList": seven days, "scheduleIndex" 0 to 6. */
MW_API int32_t get_storage_record_settings_json(const storage_record_settings_record *in, char *dst,
                                                int32_t dstSize);

/* ===== end audio and storage ===== */

/* ===== traffic and parking ===== */

/* One detection region of the parking pages: a quadrilateral given by its
   four corners (pointX[j], pointY[j], j = 0 to 3, in image coordinates) and
   a name. The four leading words are kept for the detector (our layout). The region's document holds the corners as two polygon texts,
   "polygonX" and "polygonY": each value followed by a colon, the last one
   included ("10:20:30:40:"), cut at 63 characters. */
typedef struct parking_region_entry {
    int32_t reserved[4];         /* kept for the detector; not in the documents */
    int32_t pointX[4];
    int32_t pointY[4];
    char name[100];
} parking_region_entry;

/* The weekly schedule handed beside a detection record: one text per day,
   index 0 to 6. */
typedef struct week_schedule_block {
    char schedule[7][256];
} week_schedule_block;

/* Licence-plate parking detection: four regions, then how results are
   posted: again after `afterTime`, every `period` when periodic, to the TCP
   port or the HTTP address as `postType` says. The HTTP password is written
   to the document as stored. */
typedef struct lpr_parking_detection_record {
    uint8_t enable;
    parking_region_entry regions[4];
    uint8_t pullEnable;
    uint8_t pullAgain;
    int32_t afterTime;
    uint8_t periodicEnable;
    int32_t period;
    uint8_t attachSnap;
    uint8_t postType;
    int32_t tcpPort;
    char httpUrl[1024];
    char httpUser[94];
    char httpPwd[64];
    uint8_t saveSnap;
} lpr_parking_detection_record;

/* Parking-violation detection: a vehicle that stays longer than
   `residenceTime` in one of the two regions raises the alarm;
   `permitVehicle` selects the vehicles allowed to stay. */
typedef struct parking_violation_record {
    uint8_t enable;
    int32_t residenceTime;
    int32_t permitVehicle;
    parking_region_entry regions[2];
} parking_violation_record;

/* The parking group's general settings. The area list travels beside the
   record as its own text. The unread members are ours to lay out: a leading
   word and a byte before `areaType`, kept for the recognition engine and not
   in the document. */
typedef struct parking_general_record {
    int32_t reserved0;           /* not in the document */
    uint8_t countryRegion;       /* key "country/region" */
    uint8_t nightModeEnable;
    uint8_t nightModeLevel;
    uint8_t reserved1;           /* not in the document */
    uint8_t areaType;
} parking_general_record;

/* Automatic export of the parking results: on `weekday` at hour:min:sec,
   by `method`, over the span `timeRange`. */
typedef struct auto_export_record {
    uint8_t reserved;            /* not in the document */
    uint8_t enable;
    int32_t method;
    int32_t weekday;
    int32_t hour;
    int32_t min;
    int32_t sec;
    int32_t timeRange;
} auto_export_record;

/* "enable", "detectionInfoList" (four regions, "regionIndex" 0 to 3),
   "scheduleList" (the seven days of `schedule`), then the posting settings.
   Neither `in` nor `schedule` is tested for NULL. */
MW_API int32_t ware_get_lpr_parking_detection_json(const lpr_parking_detection_record *in,
                                                   const week_schedule_block *schedule, char *dst,
                                                   int32_t dstSize);
/* "areaType", "country/region", "areaList" (the `areaList` text as it stands,
   which must not be NULL), "nightModeEnable", "nightModeLevel". */
MW_API int32_t ware_get_parking_general_json(const parking_general_record *in, const char *areaList, char *dst,
                                             int32_t dstSize);
/* "enable", "permitVehicle", "residenceTime" (the reverse of the record's
   order), "detectionInfoList" (two regions, 0 and 1) and "scheduleList".
   Neither `in` nor `schedule` is tested for NULL. */
MW_API int32_t ware_get_parking_violation_json(const parking_violation_record *in,
                                               const week_schedule_block *schedule, char *dst, int32_t dstSize);
/* "enable", "weekday", "hour", "min", "sec", "timeRange", then "method" last. */
MW_API int32_t ware_get_auto_export_json(const auto_export_record *in, char *dst, int32_t dstSize);

/* Vehicle counting on a traffic camera: the on-screen counter table (its
   left and top position), the automatic reset of the counts (day type and
   time of day), and how counts are posted: the camera's own port and up to
   three HTTP targets held as parallel arrays indexed by target (0 to 2).
   Passwords are written to the document as stored. */
typedef struct vehicle_count_setting_record {
    uint8_t enable;
    uint8_t showInformation;     /* draw the counter table on the video */
    uint8_t infoTableLeft;
    uint8_t infoTableTop;
    uint32_t countType;
    int32_t autoReset;
    uint8_t resetDayType;
    uint8_t resetHour;
    uint8_t resetMin;
    uint8_t resetSec;
    uint8_t enablePost;
    uint32_t postMode;
    uint32_t interval;           /* posting interval */
    uint8_t attachSnapshot;
    uint8_t postType;
    uint8_t timeHour;
    uint8_t timeMin;
    uint8_t timeSec;
    int32_t cameraPort;
    uint8_t httpEnable[3];
    char httpUrl[3][1024];
    char httpUser[3][94];
    char httpPassword[3][64];
} vehicle_count_setting_record;

/* A line drawn across the lanes: its two end points in image coordinates. */
typedef struct trigger_line {
    uint8_t enable;
    float startX;
    float startY;
    float endX;
    float endY;
} trigger_line;

/* One speed rule of a detection region: the vehicle type it applies to and
   its lower and upper thresholds, each with its own switch. */
typedef struct speed_rule_entry {
    uint8_t minSpeedEnable;
    uint8_t maxSpeedEnable;
    int32_t minSpeedThr;
    int32_t maxSpeedThr;
    int32_t vehicleType;
} speed_rule_entry;

/* Violation management: lane directions (lanes 0 to 3), stop and trigger
   lines, red-light running, wrong-way driving, signal docking, the speed
   rules of the four detection regions (three rules each) and what is
   captured. The signal inputs name the input that carries each lane's red or
   yellow light; -1 means no input is assigned. `reverseTriggerCondition`
   holds one condition per lane. The members between it and
   `speedMonitoringEnable` are ours to lay out: four words kept for the
   detector, not in the document. */
typedef struct violation_management_record {
    int32_t laneDirection[4];
    trigger_line stopLine;
    trigger_line straightTriggerLine;
    trigger_line leftTurnTriggerLine;
    trigger_line rightTurnTriggerLine;
    uint8_t noPlatesEnable;      /* report vehicles without a readable plate */
    uint8_t redLightRunningEnable;
    uint8_t dockingMode;
    int8_t straightLaneRedLightInputNum;
    int8_t straightLaneYellowLightInputNum;
    int8_t leftTurnLaneRedLightInputNum;
    int8_t leftTurnLaneYellowLightInputNum;
    int8_t rightTurnLaneRedLightInputNum;
    int8_t rightTurnLaneYellowLightInputNum;
    int32_t delayOnRedLight;
    int32_t redLightTriggerCondition;
    int32_t flaseStartEnable;    /* false-start detection; the key keeps this spelling */
    uint8_t crossLineEnable;
    int32_t crossLineTriggerCondition;
    uint8_t reverseDrivingEnable;
    int32_t reverseTriggerCondition[4];
    int32_t reserved[4];         /* not in the document */
    uint8_t speedMonitoringEnable;
    speed_rule_entry speedRules[4][3]; /* [region 0..3][rule 0..2] */
    uint8_t violationCapture;
    uint8_t plateCapture;
    uint8_t targetCapture;
} violation_management_record;

/* The detection polygons handed beside the violation-management record.
   The leading members are ours to lay out: four words kept for the detector,
   not in the document. */
typedef struct violation_polygon_record {
    int32_t reserved[4];         /* not in the document */
    parking_region_entry normalPolygons[4];
} violation_polygon_record;

/* One rectangle of a traffic light in the image. */
typedef struct traffic_light_rect {
    float left;
    float top;
    float right;
    float bottom;
} traffic_light_rect;

/* A group of traffic lights: the lanes it controls (signed bytes, written
   as stored) and three light areas, each with its colour code and rectangle.
   The document numbers the areas from 1. */
typedef struct traffic_light_group {
    uint8_t id;
    int8_t straightLane;
    int8_t leftTurnLane;
    int8_t rightTurnLane;
    uint32_t color[3];
    traffic_light_rect area[3];
} traffic_light_group;

typedef struct traffic_light_area_record {
    traffic_light_group groups[2];
} traffic_light_area_record;

/* The counting settings, then the first HTTP target's texts again on the
   root ("httpUrl", "userName", "password", enabled or not), "httpList" (three
   targets, "index" 0 to 2) and "scheduleList" (the seven days of
   `schedule`, which is not tested for NULL). */
MW_API int32_t ware_get_vehicle_count_setting_json(const vehicle_count_setting_record *in,
                                                   const week_schedule_block *schedule, char *dst,
                                                   int32_t dstSize);
/* The violation-management document. Line ends are floats widened to double
   (0.1f prints as 0.10000000149011612). "normalPolygonList" is read from
   `polygons` ("polygonIndex" 0 to 3), which is not tested for NULL.
   "speedMonitoringListNew" holds "region1" to "region4", each with "index"
   counted from 0 (so one less than its key's number) and three rules. */
MW_API int32_t ware_get_violation_management_json(const violation_management_record *in,
                                                  const violation_polygon_record *polygons, char *dst,
                                                  int32_t dstSize);
/* "trafficLightAreaList": the two groups, each with "areaList" of three
   areas numbered 1 to 3. */
MW_API int32_t ware_get_traffic_light_area_json(const traffic_light_area_record *in, char *dst,
                                                int32_t dstSize);

/* One HTTP receiver of licence-plate results. `eventMask` has one bit per
   event type posted to it; the password is written to the document as
   stored. */
typedef struct http_post_target {
    char user[128];
    char password[64];
    char url[2560];
    uint32_t method;
    uint8_t enable;
    uint8_t snapshotType;
    uint32_t eventMask;
} http_post_target;

/* Which items a posted result carries: 1 = include. The document lists "gps"
   before the four image switches, though it is stored last. */
typedef struct post_options {
    uint8_t eventType;
    uint8_t deviceInfo;
    uint8_t time;
    uint8_t detectionRegion;
    uint8_t plate;
    uint8_t country;
    uint8_t plateType;
    uint8_t plateColor;
    uint8_t vehicleType;
    uint8_t vehicleColor;
    uint8_t brand;
    uint8_t direction;
    uint8_t eventData;
    uint8_t plateCoordinate;
    uint8_t vehicleCoordinate;
    uint8_t plateImage;
    uint8_t vehicleImage;
    uint8_t fullImage;
    uint8_t violationImage;
    uint8_t gps;
} post_options;

/* Where licence-plate results are pushed: three HTTP targets, a TCP
   listener and an MQTT broker, each with its event mask (one bit per event
   type), the items a result carries and the template mode. Passwords are
   written to the document as stored. */
typedef struct lpr_post_record {
    int32_t httpEnable;
    int32_t reserved0;           /* not in the document */
    int32_t postEvents;
    uint8_t tcpEnable;
    int32_t tcpPort;
    uint32_t tcpEventMask;
    http_post_target httpTargets[3];
    uint8_t mqttEnable;
    char mqttTopic[256];
    int32_t mqttPort;
    char mqttHost[256];
    char mqttUser[64];
    char mqttPassword[64];
    uint32_t mqttEventMask;
    uint8_t reserved1;           /* not in the document */
    post_options postOptions;
    uint32_t templateMode;
    uint8_t automaticRetransmission; /* resend results the receiver did not take */
    int32_t metadataEnable;
} lpr_post_record;

/* One stored message template for posted results. The template text's
   width is ours to choose: 4096 bytes, read up to its NUL. */
typedef struct lpr_post_template_record {
    uint8_t mode;
    int32_t eventType;
    char data[4096];
} lpr_post_template_record;

/* "postEvents", "automaticRetransmission", then the nested "http" (with
   "httpList": always three targets, "index" 0 to 2, enabled or not), "tcp",
   "MQTT" and "postOptions" objects, "templateMode" and "more". */
MW_API int32_t ware_get_lpr_post_json(const lpr_post_record *in, char *dst, int32_t dstSize);
/* "mode", "eventType", "data". */
MW_API int32_t ware_get_lpr_post_template_json(const lpr_post_template_record *in, char *dst, int32_t dstSize);

/* ===== end traffic and parking ===== */

/* ===== ptz ===== */

/* ---- status and presets ---- */

/* Which functions the PTZ control panel offers (1 = available). */
typedef struct ptz_panel_status_record {
    int32_t irisMode;
    int32_t onePatrol;
    int32_t autoHome;
    int32_t manualDefog;
    int32_t manualWiper;
    int32_t lightMode;
    int32_t threeDPosition;            /* key "3DPosition" */
    int32_t manualTrack;
} ptz_panel_status_record;

/* The housing's climate: temperature in degrees Celsius, heater and fan
   states (1 = running). */
typedef struct ptz_status_record {
    double temperature;
    uint8_t heater;
    uint8_t fan;
} ptz_status_record;

/* The unit's 300 preset slots; a slot whose id is 0 is empty. */
typedef struct ptz_presets_record {
    ptz_preset_entry entries[300];
} ptz_presets_record;

/* Movement limits, tracking switches and the preset list of the PTZ page. */
typedef struct ptz_others_record {
    int32_t limitingFlag;
    int32_t inittilePos;               /* initial tilt position */
    int32_t limittilePos;              /* tilt limit position */
    int32_t trackEnable;
    int32_t trackManualEnable;
    int32_t pos3dEnable;               /* printed second, after limitingFlag */
    char presetId[1200];               /* the preset list as text, as the motor controller keeps it */
    int32_t curposinPreset;
    int32_t presetIsLimit[4];          /* listed with "index" 0..3 */
} ptz_others_record;

/* Tour and pattern run states. A fisheye camera runs up to six virtual PTZ
   views with eight tours each; its keys count views and tours from 0. A
   plain PTZ unit has one run state, eight tours and four patterns, whose keys
   count from 1. */
typedef struct ptz_run_status_record {
    int32_t isFisheye;                 /* non-zero: report the fisheye views only */
    int32_t fishPtzRunStatus[6];
    int32_t fishPtzTourStatus[6][8];
    int32_t ptzRunStatus;
    int32_t ptzTourStatus[8];
    int32_t ptzPatternStatus[4];
} ptz_run_status_record;

/* Return to a home position after a spell without control. The channel word
   in front and the word after modeNumber (the unit's last home position
   number) are ours and are not in the document. */
typedef struct ptz_auto_home_record {
    int32_t channel;                   /* not in the document */
    int32_t enable;
    uint32_t mode;                     /* what to return to: preset, tour, pattern or scan */
    int32_t modeNumber;                /* which preset, tour or pattern */
    int32_t lastModeNumber;            /* not in the document */
    int32_t latencyTime;               /* seconds without control before returning */
} ptz_auto_home_record;

/* The people the tracker follows, in six parallel arrays of 256: person p
   has id[p], type[p] and the box from (startX[p], startY[p]) to (stopX[p],
   stopY[p]). The two leading words (the analysed frame's width and height)
   are ours and are not in the document. personNum must not exceed 256. */
typedef struct ptz_track_point_record {
    int32_t frameWidth;                /* not in the document */
    int32_t frameHeight;               /* not in the document */
    int32_t personNum;
    int32_t id[256];
    int32_t type[256];
    int32_t startX[256];
    int32_t startY[256];
    int32_t stopX[256];
    int32_t stopY[256];
} ptz_track_point_record;

/* The zoom motor's two positions (index 0 and 1). */
typedef struct ptz_zoom_pos_record {
    int32_t zoompos[2];
} ptz_zoom_pos_record;

/* Panel availability: eight numbers; threeDPosition prints as "3DPosition". */
MW_API int32_t get_ptz_panel_status_json(const ptz_panel_status_record *in, char *dst, int32_t dstSize);
/* "temperature" as the text "%02f&#176;C" (23.5 gives 23.500000&#176;C),
   then "heater" and "fan". */
MW_API int32_t get_ptz_status_json(const ptz_status_record *in, char *dst, int32_t dstSize);
/* "presetInfoList": one {"id", "preset"} per used slot, in slot order; the
   preset text is "leadingNumber:first:second:name" with six decimals, cut at
   127 characters. A name that fills its 68 bytes without a NUL is read no
   further than its array. */
MW_API int32_t get_ptz_presets_json(const ptz_presets_record *in, char *dst, int32_t dstSize);
/* Limit and tracking flags, "presetId" and "presetLimitList" (index 0..3). */
MW_API int32_t get_ptz_others_json(const ptz_others_record *in, char *dst, int32_t dstSize);
/* Fisheye: fish_<view>_PtzRunStatus and fish_<view>_PtzTourStatus_<tour>,
   from 0. Otherwise: ptzRunStatus, ptzTourStatus_1..8, ptzPatternStatus_1..4. */
MW_API int32_t get_ptz_run_status_json(const ptz_run_status_record *in, char *dst, int32_t dstSize);
/* "enable", "latencyTime", "mode", "modeNumber". */
MW_API int32_t get_ptz_auto_home_json(const ptz_auto_home_record *in, char *dst, int32_t dstSize);
/* "personNum" and "personList" of the first personNum people (none when
   personNum is 0 or negative). */
MW_API int32_t get_ptz_track_point_json(const ptz_track_point_record *in, char *dst, int32_t dstSize);
/* "zoomposList": {"index": 0|1, "zoompos"}. */
MW_API int32_t get_ptz_zoom_pos_json(const ptz_zoom_pos_record *in, char *dst, int32_t dstSize);

/* ---- configuration ---- */

/* The RS-485 control line. The leading word (the unit's bus address) is not
   in the document. */
typedef struct ptz_rs485_record {
    int32_t address;                   /* not in the document */
    int32_t baudrate;
    int32_t dataBit;
    int32_t stopBit;
    int32_t checkBit;                  /* parity */
    int32_t flowCtrl;
} ptz_rs485_record;

typedef struct ptz_wiper_record {
    int32_t autoWiper;
    int32_t status;
} ptz_wiper_record;

/* The basic motion settings. The members marked "not in the document" are
   the motor controller's own and their widths are ours. */
typedef struct ptz_basic_record {
    int32_t zoomStatus;
    int32_t tiltStatus;
    int32_t presetStatus;
    int32_t reserved0;                 /* not in the document */
    uint32_t focusMode;
    uint32_t focusDistance;
    uint8_t reserved1;                 /* not in the document */
    uint8_t presetFreezing;
    uint32_t presetSpeed;
    uint32_t manualSpeed;
    int32_t reserved2;                 /* not in the document */
    int32_t autoscanStatus;
    int32_t patrolStatus;
    int32_t patternStatus;
    uint8_t patrolRecovering;
    int32_t patrolRecoveryTime;
    int32_t reserved3;                 /* not in the document */
    int32_t resumeTime;
    int32_t autoScanEnbale;            /* the key keeps this spelling */
} ptz_basic_record;

/* The limit settings kept by the motor controller. The leading word is not
   in the document. */
typedef struct ptz_limit_settings {
    int32_t reserved;                  /* not in the document */
    int32_t manualLimitEnable;
    int32_t scanLimitEnable;
    uint32_t mode;
    uint32_t manualLimitStatus;
    uint32_t scanLimitStatus;
} ptz_limit_settings;

/* The movement limits: the settings (never NULL) and whether the manual and
   scan limits are currently reached. */
typedef struct ptz_limit_record {
    const ptz_limit_settings *settings;
    int32_t manualLimited;
    int32_t scanLimited;
} ptz_limit_record;

/* Scheduled tasks: one schedule text per weekday, day 0 first. */
typedef struct ptz_scheduled_tasks_record {
    int32_t enable;
    int32_t recoveryTime;
    char schedule[7][256];
} ptz_scheduled_tasks_record;

/* One stop of a tour: the preset to visit, the speed to get there and the
   dwell time. The leading word (the stop's slot) is not in the document. */
typedef struct ptz_tour_point_entry {
    int32_t slot;                      /* not in the document */
    int32_t ptzTourPresetPoint;
    int32_t ptzTourPresetSpeed;
    int32_t ptzTourPresetTime;
} ptz_tour_point_entry;

/* A tour: up to 32 stops (the firmware's limit); tourPointCount of them are
   used and must not exceed 32. The leading tour number is not in the
   document. The placement of the stops and of the status is ours. */
typedef struct ptz_tour_info {
    int32_t tourNumber;                /* not in the document */
    int32_t tourPointCount;
    ptz_tour_point_entry points[32];
    int32_t ptzTourStatus;
} ptz_tour_info;

/* A pattern: whether it is being recorded, whether it holds a recording
   (patStatus, any non-zero value) and its play state. The two words not in
   the document are the pattern number and its recorded length. */
typedef struct ptz_pattern_info {
    int32_t ptzPatternIsRecord;
    int32_t patternNumber;             /* not in the document */
    int32_t patStatus;
    int32_t recordedLength;            /* not in the document */
    int32_t ptzPatternPlayStatus;
} ptz_pattern_info;

/* What the last control request concerned. Normally one group is filled;
   a NULL pointer (or a point of 0) marks an unused group. `scan` is not read
   here. `position` points to three doubles: pan, tilt, zoom. */
typedef struct ptz_control_record {
    int32_t ptzTourPoint;
    const ptz_tour_info *tour;
    const void *scan;                  /* not in the document */
    const double *position;
    const int32_t *threeDPositionEnable;
    const int32_t *dehumidifyEnable;
    int32_t ptzPatternPoint;
    const ptz_pattern_info *pattern;
} ptz_control_record;

/* Auto tracking: switches, the tracking map as text and the weekly schedule
   (day 0 first). */
typedef struct ptz_auto_tracking_record {
    int32_t trackEnable;
    uint8_t reportMotion;
    int32_t sensitivity;
    int32_t maxTime;                   /* longest time to follow one target */
    int32_t showAutoEnable;
    uint8_t zoomMode;
    uint8_t zoomNumber;
    uint8_t object;                    /* what to track */
    char trackMap[2853];
    int32_t zoomState;
    char schedule[7][256];
} ptz_auto_tracking_record;

/* "baudrate", "dataBit", "stopBit", "checkBit", "flowCtrl". */
MW_API int32_t get_ptz_rs485_json(const ptz_rs485_record *in, char *dst, int32_t dstSize);
/* "autoWiper", "status". */
MW_API int32_t get_ptz_wiper_json(const ptz_wiper_record *in, char *dst, int32_t dstSize);
/* Fifteen numbers, in the page's order rather than the record's. */
MW_API int32_t get_ptz_basic_json(const ptz_basic_record *in, char *dst, int32_t dstSize);
/* Seven numbers; all but "manualLimited" and "scanLimited" come through
   `settings`. */
MW_API int32_t get_ptz_limit_json(const ptz_limit_record *in, char *dst, int32_t dstSize);
/* "enable", "recoveryTime", "scheduleList". */
MW_API int32_t get_ptz_scheduled_tasks_json(const ptz_scheduled_tasks_record *in, char *dst,
                                            int32_t dstSize);
/* Only the first group that applies, tried in order: tour (ptzTourPoint > 0
   and a tour), position (texts "%0.2f"), 3D positioning, dehumidifier,
   pattern (ptzPatternPoint > 0 and a pattern; "ptzPatternPatStatus" is 0 or
   1). With none, the empty object. */
MW_API int32_t get_ptz_control_json(const ptz_control_record *in, char *dst, int32_t dstSize);
/* Nine numbers, "trackMap" and "scheduleList". */
MW_API int32_t get_ptz_auto_tracking_json(const ptz_auto_tracking_record *in, char *dst,
                                          int32_t dstSize);

/* ===== end ptz ===== */

/* ===== camera image ===== */

/* ---- image settings, day/night, sensors ---- */

/* The image-settings page: exposure, white balance, IR, wide dynamic range,
   back-light compensation and the weekly task schedules of the image modes.
   The unread bytes keep the places of settings this page does not show. */
typedef struct camera_setting_record {
    uint8_t blcRegion;                 /* back-light compensation region */
    uint8_t blcExclusive;
    uint8_t doorMode;
    uint8_t powerlineFreq;
    uint32_t dayToNight;               /* day/night switching thresholds */
    uint32_t nightToDay;
    uint32_t d2nSensitivity;
    uint32_t n2dSensitivity;
    uint8_t mirrorCorridor;
    uint8_t imageRotation;
    uint8_t brightness;
    uint8_t contrast;
    uint8_t colorSaturation;
    uint8_t sharpness;
    uint8_t nfLevel;
    uint8_t dnr2Level;
    uint8_t smartIrMode;
    uint8_t irBlanceMode;              /* IR balance; the key keeps this spelling */
    uint8_t nearViewIrLevel;
    uint8_t farViewIrLevel;
    uint8_t middleViewIrLevel;
    uint8_t whiteLedLevel;
    uint8_t exposureMode;
    uint8_t exposureTime;
    uint8_t reserved0;                 /* not in the document */
    uint8_t exposureGain;
    uint8_t whiteBalanceMode;
    uint8_t whiteBalanceRedGain;
    uint8_t whiteBalanceBlueGain;
    uint8_t reserved1;                 /* not in the document */
    uint8_t defogMode;
    uint8_t antiFogIntensity;
    uint8_t digitalImageStabilisation;
    uint8_t dnSwitchRefocus;
    uint8_t hlcMode;
    uint8_t hlcLevel;
    uint8_t dayEnhancementMode;
    uint8_t nightEnhancementMode;
    uint8_t scheduleMode;
    uint8_t wdrLevel;
    uint8_t wdrAflevel;
    uint32_t sensorMode;
    uint8_t distortCorrect;
    uint32_t fovAdjust;
    uint8_t enblur;
    uint8_t deblur;
    uint8_t aspectRatio;
    uint8_t zoomLimit;
    int32_t dayNightSensitivity;
    int32_t ledMode;
    int32_t focusMode;
    int32_t smokedDomeCover;
    int32_t iricrDayHour;              /* the IR-cut filter's timed switch points */
    int32_t iricrDayMinute;
    int32_t iricrNightHour;
    int32_t iricrNightMinute;
    int32_t irCutFilter;
    int32_t iricrGpinStatus;
    int32_t iricrGpinNumber;
    int32_t pirDuration;
    int32_t wdrMode;
    int32_t wdrStartHour;
    int32_t wdrStartMinute;
    int32_t wdrStopHour;
    int32_t wdrStopMinute;
    int32_t pirSensitivity;
    int32_t hasLprNightModeInEffect;   /* non-zero: lprNightModeInEffect is reported */
    int32_t lprNightModeInEffect;
    char mediaUrl[32];
    int32_t mediaWidth;
    int32_t mediaHeight;
    int32_t lprNight;
    int32_t inlprNight;
    int32_t fishDisplayMode;
    int32_t fishCorrectMode;
    int32_t dayNightMode;
    char blcRegionArea[36];            /* the back-light region as text */
    int32_t irSupplemen;
    int32_t irisType;
    int32_t irisMode;
    /* Per day of the week (0..6), ten task slots; a slot whose first byte is
       NUL is empty. */
    char whiteBalanceTaskday[7][10][256];
    char exposureTaskday[7][10][256];
    char blcWdrHlcTaskday[7][10][256];
    char dnScheduleTaskday[10][256];   /* the day/night schedule's ten slots */
} camera_setting_record;

/* One day/night profile: the sensor's behaviour by day or by night. The
   profile's type and the members `day` and `night` that hold it are our
   names; the two leading bytes and the last one are not in the document. */
typedef struct camera_day_night_profile {
    uint8_t reserved0[2];              /* not in the document */
    uint8_t exposureLevel;
    uint8_t minShutter;
    uint8_t maxShutter;
    uint8_t limitGain;
    uint8_t irCutInterval;             /* zero-based; the document counts from 1 */
    uint8_t irCutStatus;
    uint8_t irLedStatus;
    uint8_t colorMode;
    uint8_t whiteLedStatus;
    uint8_t reserved1;                 /* not in the document */
} camera_day_night_profile;

/* The day/night profile page: the day profile, the night profile, and the
   white-light groups used by each. */
typedef struct camera_setting_day_night_record {
    camera_day_night_profile day;
    camera_day_night_profile night;
    int32_t isSupportWhiteledGroup;
    int32_t dayWhiteledGroup;
    int32_t nightWhiteledGroup;
} camera_setting_day_night_record;

/* The day/night schedule page: five schedule texts. */
typedef struct camera_day_night_schedule_record {
    char schedule[5][256];
} camera_day_night_schedule_record;

/* One sensor of a multi-sensor camera. Every per-mode array is indexed by the
   image mode: 0 normal, 1 odd frames, 2 even frames. */
typedef struct camera_sensor_image_entry {
    int32_t reserved0;                 /* not in the document */
    uint8_t daynight;
    double maxshutterDay[3];           /* shutter limits, reported with two decimals */
    double maxshutterNight[3];
    uint8_t limitGainlevelDay[3];
    uint8_t limitGainlevelNight[3];
    uint8_t strobelightDay[3];         /* only element 0 is reported */
    uint8_t strobelightNight[3];       /* only element 0 is reported */
    int32_t targetBrightnessDay[3];
    int32_t targetBrightnessNight[3];
    double manualExposetimeDay[3];     /* reported with two decimals */
    double manualExposetimeNight[3];
    uint8_t manualGainlevelDay[3];
    uint8_t manualGainlevelNight[3];
    uint8_t brightness[3];             /* raw 0..255 levels, reported as 0..100 % */
    uint8_t contrast[3];
    uint8_t saturation[3];
} camera_sensor_image_entry;

/* The per-sensor image page: the traffic flash settings shared by the
   sensors, then each sensor's day/night exposure per image mode. The unread
   stretches (two bytes after powerlineFreq, two after digitalStabilisation,
   widths of our choosing) are not in the document. */
typedef struct camera_sensor_image_record {
    uint8_t powerlineFreq;
    uint8_t reserved0[2];              /* not in the document */
    uint8_t digitalStabilisation;      /* the same setting as digitalImageStabilisation */
    uint8_t reserved1[2];              /* not in the document */
    uint8_t trafficScene;
    uint8_t flashIntensity;
    uint8_t parityFlashing;
    int32_t flashOffsetFirst;
    int32_t flashOffsetSecond;
    int32_t flashAeExpTimeFirst;
    int32_t flashAeExpTimeSecond;
    uint8_t imageMode;
    int32_t irisMode[2];               /* one per sensor */
    camera_sensor_image_entry sensors[2];
} camera_sensor_image_record;

/* The image-settings page, its three weekly task lists (seven days each,
   every day's non-empty slots joined as "slot;" with each slot cut at 31
   characters, so a longer slot loses its ";") and the joined day/night
   schedule slots as one text. "lprNightModeInEffect" is present only when
   hasLprNightModeInEffect is non-zero. A slot is read no further than its
   256 bytes, even when it lacks its NUL. */
MW_API int32_t get_camera_setting_json(const camera_setting_record *in, char *dst, int32_t dstSize);
/* The day and night profiles; the IR-cut intervals are reported one-based
   (stored value + 1, so 255 reports 256). */
MW_API int32_t get_camera_setting_day_night_json(const camera_setting_day_night_record *in, char *dst,
                                                 int32_t dstSize);
/* "dayNightSchedule": five {"index", "schedule"}, empty texts included. */
MW_API int32_t get_camera_day_night_schedule_json(const camera_day_night_schedule_record *in, char *dst,
                                                  int32_t dstSize);
/* Flash settings and "sensorList": two sensors, each with the mode objects
   "normal", "odd" and "even". Shutter and exposure times are texts with two
   decimals; brightness, contrast and saturation are percentages rounded half
   up. */
MW_API int32_t get_camera_sensor_image_json(const camera_sensor_image_record *in, char *dst,
                                            int32_t dstSize);

/* ---- end image settings, day/night, sensors ---- */

/* ---- masks, regions of interest, snapshots, lights, lens ---- */

/* The PTZ speed as the image page shows it. The leading member (width of our
   choosing) is not in the document. */
typedef struct camera_ptz_record {
    int32_t reserved0;                 /* not in the document */
    int32_t ptzSpeed;
} camera_ptz_record;

/* One privacy mask of a sensor. Coordinates and size are in the sensor's
   pixels. The unread members (widths of our choosing) are not in the
   document. */
typedef struct camera_mask_entry {
    int32_t reserved0;                 /* not in the document */
    uint8_t maskType;
    uint32_t maskX;
    uint32_t maskY;
    uint32_t maskWidth;
    uint32_t maskHeight;
    uint32_t reserved1;                /* not in the document */
    uint8_t isexist;                   /* non-zero: the mask is drawn */
    uint8_t maskShow;
    int32_t maskRatio;
    int32_t reserved2;                 /* not in the document */
    char maskName[128];
} camera_mask_entry;

/* The privacy-mask page: per sensor an enable flag and 24 mask slots, of
   which the first maskCount (the same for both sensors) are listed. */
typedef struct camera_mask_record {
    int32_t maskEnable[2];             /* one per sensor */
    int32_t maskCount;                 /* masks listed per sensor, 0..24 */
    int32_t maskNum;
    int32_t maskMosaicNum;
    int32_t maskMaxRatio;
    char maskColorList[16];
    int32_t maskDifferentColor;
    int32_t calibrationEnable;
    camera_mask_entry masks[2][24];    /* [sensor][mask] */
} camera_mask_record;

/* One place a timed snapshot is announced to. The record is packed byte-wise
   as the snapshot task stores it; the text widths are ours (URL 128, user
   name 64, password 64). */
typedef struct __attribute__((packed)) camera_snapshot_notify_entry {
    uint8_t enable;
    char url[128];
    char user[64];
    char password[64];
} camera_snapshot_notify_entry;

/* The timed-snapshot page: interval, local storage, the upload channels, the
   three notification targets and the weekly schedule. Packed byte-wise (no
   member is aligned); the base file name's width (64) is ours. */
typedef struct __attribute__((packed)) camera_snapshot_settings_record {
    uint8_t timingSnapshotEnable;
    uint32_t intervalValue;
    uint8_t intervalUnit;
    uint8_t saveIntoStorage;
    uint8_t storageFilenameType;
    char storageBaseFilename[64];
    uint8_t uploadViaHttp;
    camera_snapshot_notify_entry targets[3];
    uint8_t uploadViaFtp;
    uint8_t uploadViaSmtp;
    char schedule[7][256];             /* day 0..6 */
} camera_snapshot_settings_record;

/* The white-light flash set by hand. The leading member is not in the
   document, which lists the three settings in the reverse order. */
typedef struct camera_manual_white_led_settings_record {
    uint32_t reserved0;                /* not in the document */
    uint32_t flashTime;
    uint32_t flashMode;
    uint32_t effectiveGroup;
} camera_manual_white_led_settings_record;

typedef struct camera_white_led_status_record {
    int32_t whiteLedStatus;
} camera_white_led_status_record;

typedef struct camera_crop_roi_enable_record {
    int32_t cropRoiEnable;
} camera_crop_roi_enable_record;

/* One crop region of interest. */
typedef struct camera_crop_roi_entry {
    uint8_t exist;                     /* non-zero: the region is set */
    uint8_t left;
    uint8_t top;
    uint8_t reserved0;                 /* not in the document */
    uint32_t type;
} camera_crop_roi_entry;

/* The crop regions: slots 1..5 are the regions the page shows; slot 0 is the
   full picture and never reported. */
typedef struct camera_roi_settings_record {
    int32_t reserved0;                 /* not in the document */
    camera_crop_roi_entry regions[6];
} camera_roi_settings_record;

/* Tracking of the crop regions: per region (slots 1..5; slot 0 unused) an
   enable flag and a zoom, and each tracking area's weekly schedule. */
typedef struct camera_crop_roi_track_record {
    int32_t enable[6];
    int32_t zoom[6];
    char areaSchedule[4][7][256];      /* [area 0..3][day 0..6] */
} camera_crop_roi_track_record;

/* The white light's alarm, number and manual settings. */
typedef struct camera_white_led_parameter_record {
    int32_t alarm;
    int32_t number;
    int32_t manual;
} camera_white_led_parameter_record;

/* The region-of-interest texts per stream: entries 0..7 belong to the main
   stream, 8..15 to the sub stream, 16..23 to the third, 24..31 to the fourth
   and 32..38 (seven only) to the fifth. */
typedef struct camera_roi_info_record {
    int32_t enable;
    int32_t reserved0;                 /* not in the document */
    char roiInfo[39][64];
} camera_roi_info_record;

/* The motorised lens. The unread stretches (a 32-bit member first, two bytes
   before the zoom position; widths of our choosing) are not in the
   document. */
typedef struct camera_lens_record {
    int32_t reserved0;                 /* not in the document */
    uint8_t lensIrisType;
    uint8_t lensIrisMode;
    uint8_t reserved1[2];              /* not in the document */
    uint8_t lensZoomPos;
} camera_lens_record;

/* The white-light control: mode, light sensitivity, switch-off delay, the
   timed window and the brightness. */
typedef struct camera_while_led_record {
    int32_t lightCtrl;
    int32_t sensitivity;
    int32_t delayTime;
    int32_t startHour;
    int32_t startMin;
    int32_t stopHour;
    int32_t stopMin;
    int32_t brightnessCtrl;
    int32_t brightness;
    int32_t isWhiteLedExternal;        /* 1: an external lamp is wired */
} camera_while_led_record;

/* The IR illuminator: the light sensor's reading and the strengths. */
typedef struct camera_ir_value_record {
    int32_t irSensorValue;
    int32_t inlprNight;
    int32_t nearIrStrength;
    int32_t midIrStrength;
    int32_t farIrStrength;
    int32_t smartIrStrengthWhite;
    int32_t smartIrStrengthSupplement;
} camera_ir_value_record;

/* {"ptzSpeed"} */
MW_API int32_t get_camera_ptz_json(const camera_ptz_record *in, char *dst, int32_t dstSize);
/* The mask settings and "sensorList": two sensors, each with its first
   maskCount masks as "maskList" (index from 0). A maskCount below 1 lists no
   mask; one above 24 would run past the slots and is listed as 24. */
MW_API int32_t get_camera_mask_json(const camera_mask_record *in, char *dst, int32_t dstSize);
/* Snapshot timing and storage, "uploadViaFtp", "uploadViaSmtp",
   "uploadViaHttp" in that order, "notifyList" (3) and "scheduleList" (7). */
MW_API int32_t get_camera_snapshot_settings_json(const camera_snapshot_settings_record *in, char *dst,
                                                 int32_t dstSize);
/* "effectiveGroup", "flashMode", "flashTime". */
MW_API int32_t get_camera_manual_white_led_settings_json(const camera_manual_white_led_settings_record *in,
                                                         char *dst, int32_t dstSize);
/* {"whiteLedStatus"} */
MW_API int32_t get_camera_white_led_status_json(const camera_white_led_status_record *in, char *dst,
                                                int32_t dstSize);
/* {"cropRoiEnable"} */
MW_API int32_t get_camera_crop_roi_enable_json(const camera_crop_roi_enable_record *in, char *dst,
                                               int32_t dstSize);
/* "cropRoiExist_%d", "cropRoiLeft_%d", "cropRoiTop_%d", "cropRoiType_%d" for
   regions 1..5, named by the region's slot number. */
MW_API int32_t get_camera_roi_settings_json(const camera_roi_settings_record *in, char *dst,
                                            int32_t dstSize);
/* "enable_%d" and "zoom_%d" for regions 1..5, then "area_%d_CommSche_%d" for
   areas 1..4 (numbered from 1) and days 0..6 (numbered from 0). */
MW_API int32_t get_camera_crop_roi_track_json(const camera_crop_roi_track_record *in, char *dst,
                                              int32_t dstSize);
/* "alarm", "number", "manual". */
MW_API int32_t get_camera_white_led_parameter_json(const camera_white_led_parameter_record *in, char *dst,
                                                   int32_t dstSize);
/* "enable" and the lists "mainList", "subList", "thirdList", "fourthList"
   (8 texts each) and "fifthList" (7), each indexed from 0 within its list. */
MW_API int32_t get_camera_roi_info_json(const camera_roi_info_record *in, char *dst, int32_t dstSize);
/* "lensIrisType", "lensIrisMode", "lensZoomPos". */
MW_API int32_t get_camera_lens_json(const camera_lens_record *in, char *dst, int32_t dstSize);
/* The white-light control settings (the exported name keeps its spelling). */
MW_API int32_t get_camera_while_led_json(const camera_while_led_record *in, char *dst, int32_t dstSize);
/* The IR sensor value and strengths. */
MW_API int32_t get_camera_ir_value_json(const camera_ir_value_record *in, char *dst, int32_t dstSize);

/* ---- end masks, regions of interest, snapshots, lights, lens ---- */

/* ---- model flags, capability groups, fisheye presets ---- */

/* What this camera model has, as the web pages test it (1 = supported). */
typedef struct camera_model_general_record {
    int32_t ioSupport;
    int32_t audioSupport;
    int32_t fisheyeSupport;
    int32_t vcaSupport;
    int32_t audioAlarmSupport;
    int32_t ledSupport;
    int32_t ledGroupSupport;
    int32_t ptzSupport;
    int32_t ptzMaxZoomTimes;
    int32_t realPtzSupport;
    int32_t vcaType;                   /* reported only when vcaSupport is non-zero */
    int32_t lprSupport;
    int32_t lprVersion;                /* reported only when lprSupport is non-zero */
    int32_t isSpeedDm;
    int32_t lessAlarmInterface;
    int32_t lessDeviceInterface;
    int32_t iotSupport;
    int32_t faceSupport;
} camera_model_general_record;

/* The presets of the fisheye views: 300 preset slots, a slot with id 0 is
   empty. */
typedef struct camera_fish_presets_record {
    ptz_preset_entry entries[300];
} camera_fish_presets_record;

/* The fisheye's field of view. */
typedef struct camera_fish_view_field_record {
    int32_t fisheyeViewField;
} camera_fish_view_field_record;

/* The capability flags of the image, PTZ and event pages, of which one group
   is reported per request. `group` picks it: 100 PTZ control, 101 zoom, focus
   and iris, 102 PTZ basics, 103 plate recognition, 104 audio, smart IR and
   lens, 105 stabilisation and focus, 106 day/night, 107 image mask,
   108 events and analytics, 109 stream preset. */
typedef struct camera_all_capability_record {
    int32_t group;
    int32_t ptzControl;
    int32_t whiteLed;
    int32_t manualTrack;
    int32_t liveAutoTracking;
    int32_t dehumidifying;
    int32_t threeDPosition;            /* key "3dPosition" */
    int32_t oneTouch;
    int32_t autohome;
    int32_t preset;
    int32_t patrol;
    int32_t pattern;
    int32_t zcontrol;
    int32_t zslider;
    int32_t focus;
    int32_t lensInitialization;
    int32_t auxiliaryFocus;
    int32_t autoirisAlwaysOpen;
    int32_t autoirisClickable;
    int32_t basic;
    int32_t manualSpeed;
    int32_t patrolRecorvery;           /* patrol recovery; the key keeps this spelling */
    int32_t miniFocusDistance;
    int32_t ptzLimits;
    int32_t topAndBottomLimit;
    int32_t initialPosition;
    int32_t privacyMask;
    int32_t scheduledTask;
    int32_t tiltScan;
    int32_t panoramaScan;
    int32_t configClear;
    int32_t clearInitialPosition;
    int32_t rs485;
    int32_t status;
    int32_t heater;
    int32_t lpr;
    int32_t confidenceLevel;
    int32_t dayNightDetection;
    int32_t speedDetection;
    int32_t regionFeatures;
    int32_t audio;
    int32_t smartIrMode;
    int32_t smartIrModeAuto;
    int32_t smartIrModeViewLevel;
    int32_t smartIrModeMiddleLevel;
    int32_t smartIrModeWhiteLevel;
    int32_t localDisplayVideo;
    int32_t smokedDomecover;
    int32_t keepAspectRatio;
    int32_t zoomLimit;
    int32_t lensDistortCorrect;
    int32_t digitalImageStabilisation;
    int32_t focusMode;
    int32_t lensType;
    int32_t reduceVideoStuttering;
    int32_t dayNightSliderRange_1_10;
    int32_t dayNightSliderRange_1_100;
    int32_t dayNightSliderDefult_20_60;
    int32_t imageMask;
    int32_t audioEvent;
    int32_t alarmInputEvent;           /* never reported: "alarmInputEvent" carries alarmOutputEvent */
    int32_t alarmOutputEvent;
    int32_t vca;
    int32_t streamPreset;
} camera_all_capability_record;

/* The model flags; "vcaType" only when vcaSupport is non-zero, "lprVersion"
   only when lprSupport is non-zero, "faceSupport" before "iotSupport". */
MW_API int32_t get_camera_model_general_json(const camera_model_general_record *in, char *dst,
                                             int32_t dstSize);
/* One root key "preset_<id>" per used slot, in slot order, its value
   "leadingNumber:firstCoordinate:secondCoordinate:name" (the coordinates with
   six decimals) cut at 127 characters. Two slots with one id give two keys of
   that name. A name is read no further than its 68 bytes. */
MW_API int32_t get_camera_fish_presets_json(const camera_fish_presets_record *in, char *dst, int32_t dstSize);
/* {"fisheyeViewField"} */
MW_API int32_t get_camera_fish_view_field_json(const camera_fish_view_field_record *in, char *dst,
                                               int32_t dstSize);
/* The keys of the group named by `group`; {} for any other code. */
MW_API int32_t get_camera_all_capability_json(const camera_all_capability_record *in, char *dst,
                                              int32_t dstSize);

/* ---- end model flags, capability groups, fisheye presets ---- */

/* ===== end camera image ===== */

/* ===== video ===== */

/* The camera encodes up to six streams. The documents name them by index:
   0 "mainStream", 1 "subStream", 2 "thirdStream", 3 "fourthStream",
   4 "fifthStream", 5 "sixthStream"; the frame-rate and bit-rate pages know
   only the first five. */

/* The stream profiles page. Every array holds one element per stream, by
   stream index. */
typedef struct video_general_record {
    int32_t streamCount;               /* streams to report, 0..6 */
    int32_t width[6];                  /* pixels */
    int32_t height[6];
    char url[6][16];                   /* the stream's URL path */
    int32_t profileGop[6];             /* frames between key frames */
    int32_t rateMode[6];
    int32_t framerate[6];              /* frames per second */
    int32_t bitrate[6];                /* kbit/s */
    int32_t smartStreamEnable[6];
    int32_t smartStreamLevel[6];
    int32_t profile[6];
    int32_t profileCodec[6];
    int32_t rateQuality[6];
    int32_t vbrQuality[6];
    int32_t enable[6];                 /* not reported for the main stream, which is always on */
    int32_t rtspPort;
} video_general_record;

/* The text overlay of each stream, and the zoom-time overlay of each of the
   two sensors. */
typedef struct video_advanced_record {
    int32_t streamCount;               /* streams to report, 0..6 */
    int32_t enable[6];
    char string[6][256];               /* the overlay text */
    int32_t dateTimeEnable[6];
    int32_t fontSize[6];
    char fontColor[6][16];
    int32_t backgroundEnable[6];
    char backgroundColor[6][16];
    int32_t textPosition[6];
    int32_t dateTimePosition[6];
    int32_t dateTimeFormat[6];
    int32_t osdZoomTime[2];            /* one per sensor */
} video_advanced_record;

/* One resolution a codec offers, with the frame rate it reaches there. */
typedef struct video_resolution_entry {
    int32_t width;
    int32_t height;
    int32_t framerate;
    int32_t defBitRate;                /* not in the frame-rate document */
    int32_t parityFramerate;           /* not in the frame-rate document */
} video_resolution_entry;

/* The resolutions of one codec: the first availableSize entries are valid. */
typedef struct video_codec_group_entry {
    int32_t availableSize;             /* 0..10 */
    video_resolution_entry resolution[10];
} video_codec_group_entry;

/* What one stream offers, codec by codec. */
typedef struct video_framerate_stream_entry {
    video_codec_group_entry h264;
    video_codec_group_entry h265;
    video_codec_group_entry mjpeg;
    int32_t reserved[2];               /* encoder bookkeeping, not in the document (width ours) */
} video_framerate_stream_entry;

/* The frame rates each codec offers at each resolution, per stream. */
typedef struct video_framerate_record {
    int32_t streamCount;               /* streams to report, 0..5 */
    int32_t streamValid[6];            /* 0: the stream is left out of the document */
    int32_t mjpegSupport[6];           /* non-zero: the stream offers MJPEG too */
    int32_t reserved[6];               /* encoder bookkeeping, not in the document (width ours) */
    video_framerate_stream_entry streams[6]; /* six, like the other per-stream arrays; five are read */
} video_framerate_record;

/* The bit rates each of the first five streams offers, in kbit/s. */
typedef struct video_bit_info_record {
    int32_t bitrate[5][30];            /* 0 marks an empty slot */
} video_bit_info_record;

/* The output mode of each of the two sensors. */
typedef struct sensor_config_record {
    int32_t outputMode[2];
} sensor_config_record;

/* The on-screen status of the fisheye PTZ functions. */
typedef struct video_fisheye_ptz_osd_record {
    int32_t presetStatus;
    int32_t patrolStatus;
    int32_t autoscanStatus;
    int32_t zoomStatus;
} video_fisheye_ptz_osd_record;

/* The transport-stream multicast target. */
typedef struct video_ts_multicast_record {
    uint8_t enable;
    char addr[35];                     /* the multicast group address */
    uint32_t port;
} video_ts_multicast_record;

/* The fisheye dewarping choice. */
typedef struct video_fish_dewarping_record {
    int32_t viewField;
    int32_t correctModel;
} video_fish_dewarping_record;

/* One file of the playback list. */
typedef struct playvideo_entry {
    int32_t reserved;                  /* the player's own bookkeeping, not in the document */
    char name[128];                    /* the file; empty marks a free slot */
    char speed[32];
} playvideo_entry;

/* The video playback page: where the files are, how they are played, and the
   list itself (500 slots, free ones skipped). */
typedef struct playvideo_config_record {
    char nfsPath[256];
    char nasPath[256];
    playvideo_entry videos[500];
    int32_t mode;
    int32_t interval;
    int32_t cyclicIndex;
    int32_t playIndex;
} playvideo_config_record;

/* The file names of the playback list; an empty name marks a free slot. */
typedef struct playvideo_filename_record {
    char name[500][128];
} playvideo_filename_record;

/* The housing's dehumidifier settings. Only the fan mode is reported; the
   members before it (width ours) belong to the housing controller. */
typedef struct dehumidifying_info_record {
    int32_t reserved[4];               /* not in the document */
    int32_t fanWorkingMode;
} dehumidifying_info_record;

/* The housing's measured state. */
typedef struct dehumidifying_status_record {
    double temperature;                /* degrees Celsius */
    uint8_t reserved;                  /* not in the document */
    uint8_t fan;                       /* fan state */
} dehumidifying_status_record;

/* One stream of a fisheye display mode. The first member (width ours) is not
   in the document. */
typedef struct fisheye_stream_entry {
    uint8_t reserved;
    uint8_t enable;
    uint8_t profileCodec;
    uint8_t framerate;                 /* zero-based: 24 means 25 frames per second */
    uint8_t rateMode;
    char profile;                      /* 'B' baseline, 'M' main, anything else high */
    uint8_t profileGop;
    uint32_t width;
    uint32_t height;
    uint32_t bitrate;                  /* kbit/s */
    uint8_t vbrQuality;
    uint8_t smartStreamEnable;
    uint32_t smartStreamLevel;
} fisheye_stream_entry;

/* The event stream of a fisheye display mode (the stream sent while an alarm
   lasts). */
typedef struct fisheye_event_stream_entry {
    uint8_t reserved;                  /* not in the document */
    uint8_t eventEnable;
    uint8_t eventFramerate;            /* zero-based, as above */
    uint8_t eventGop;
    uint32_t eventBitrate;             /* kbit/s */
} fisheye_event_stream_entry;

/* A fisheye display mode: its stream slots and its event stream. A NULL
   pointer marks a stream slot the mode does not use, or a mode without an
   event stream. The pointed entries belong to the caller. */
typedef struct fisheye_mode_2_streams {
    const fisheye_stream_entry *streams[2];
    const fisheye_event_stream_entry *event;
} fisheye_mode_2_streams;

typedef struct fisheye_mode_4_streams {
    const fisheye_stream_entry *streams[4];
    const fisheye_event_stream_entry *event;
} fisheye_mode_4_streams;

typedef struct fisheye_mode_5_streams {
    const fisheye_stream_entry *streams[5];
    const fisheye_event_stream_entry *event;
} fisheye_mode_5_streams;

/* The stream profiles of a fisheye camera: one group per display mode, in the
   order of the document's modes ("1OMode", "1PMode", "2PMode", "4RMode",
   "1O3RMode", "1P3RMode", "1O1P3RMode"), then the lens settings. The group
   names and the reserved block (width ours) are not in the document. */
typedef struct video_fisheye_video_general_record {
    fisheye_mode_2_streams mode1O;
    fisheye_mode_2_streams mode1P;
    fisheye_mode_2_streams mode2P;
    fisheye_mode_4_streams mode4R;
    fisheye_mode_4_streams mode1O3R;
    fisheye_mode_4_streams mode1P3R;
    fisheye_mode_5_streams mode1O1P3R;
    int32_t reserved[4];               /* not in the document */
    int32_t powerlineFreq;
    int32_t correctModel;
    int32_t displayModel;
    int32_t installModel;
    int32_t viewField;
} video_fisheye_video_general_record;

/* "streamList": one object per stream under its name, then "rtspPort". The
   main stream has no "enable". Streams past the sixth are not reported (the
   stream names end there). */
MW_API int32_t get_video_general_json(const video_general_record *in, char *dst, int32_t dstSize);
/* "streamList": the overlay of each stream under its name, then "sensorList"
   with both sensors. Streams past the sixth are not reported. */
MW_API int32_t get_video_advanced_json(const video_advanced_record *in, char *dst, int32_t dstSize);
/* "streamCount" as stored, then one object per valid stream with "H264",
   "H265" and, where offered, "Mjpeg". Streams past the fifth and
   resolutions past the tenth are not reported (the names and the record end
   there); "streamCount" and "availableSize" still show the stored values. */
MW_API int32_t get_video_framerate_json(const video_framerate_record *in, char *dst, int32_t dstSize);
/* The five streams, each with its non-zero bit rates in slot order. */
MW_API int32_t get_video_bit_info_json(const video_bit_info_record *in, char *dst, int32_t dstSize);

/* "sensorList" with both sensors. This one never tests its buffer: it always
   prints, and a NULL buffer or a size below 1 copies nothing and yields 0. */
MW_API int32_t get_sensor_config_json(const sensor_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_video_fisheye_ptz_osd_json(const video_fisheye_ptz_osd_record *in, char *dst,
                                              int32_t dstSize);
MW_API int32_t get_video_ts_multicast_json(const video_ts_multicast_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t get_video_fish_dewarping_json(const video_fish_dewarping_record *in, char *dst,
                                             int32_t dstSize);
/* The play mode and paths, then "videoList" with the used slots, each with
   its slot number as "index". */
MW_API int32_t get_playvideo_config_json(const playvideo_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_playvideo_filename_json(const playvideo_filename_record *in, char *dst,
                                           int32_t dstSize);
/* The fan mode from the settings, the temperature as text with two decimals
   ("23.50", no unit) and the fan state from the measured state. Neither
   record is tested for NULL; a refused buffer returns before either is read. */
MW_API int32_t get_dehumidifying_info_json(const dehumidifying_info_record *info,
                                           const dehumidifying_status_record *status, char *dst,
                                           int32_t dstSize);

/* The lens settings, then one object per display mode with its event stream
   (when there is one) and its "streamList" of used slots. Frame rates are
   reported one-based. */
MW_API int32_t get_video_fisheye_video_general_json(const video_fisheye_video_general_record *in,
                                                    char *dst, int32_t dstSize);

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

/* A section of the general capability document. Sections nest by parent
   name; a section's parent must appear earlier in the entry list. */
typedef struct cap_group {
    char parentName[64];               /* the enclosing section; empty: under the root */
    char name[128];                    /* the section's key (width ours; up to 127 characters are used) */
} cap_group;

/* One capability: its key and the values a client may choose from.
   `values` is an option list: tokens separated by ';', each token an
   opening angle bracket, a decimal number, a closing angle bracket and a
   label, e.g. "<0>Off;<1>On;<2>Auto", which the document shows as
   {"Off": 0, "On": 1, "Auto": 2}. Text before the opening bracket is
   ignored; a token without both brackets is dropped. A number past the
   32-bit range is held at the range's end (our choice). When `range` is
   not empty it is shown instead, as {"range": range}.
   Serializing tokenizes `values` in place: the text is changed by the call,
   so refill the entry before serializing it again, and never share one
   between concurrent calls. */
typedef struct cap_entry {
    const cap_group *group;            /* general document only; NULL: directly under the root */
    char name[128];                    /* the entry's key */
    char values[512];
    char range[32];                    /* a free range text, e.g. "1~100" */
} cap_entry;

/* One resolution a codec offers: frame rate and default bit rate there. */
typedef struct video_resolution_cap {
    int32_t width;
    int32_t height;
    int32_t framerate;
    int32_t defBitRate;                /* kbit/s */
    int32_t parityFramerate;
} video_resolution_cap;

/* The resolutions of one codec; the first is the default. */
typedef struct video_codec_cap {
    int32_t availableSize;             /* valid resolutions, 0..10 */
    video_resolution_cap resolutions[10];
} video_codec_cap;

typedef struct video_stream_cap {
    video_codec_cap h264;
    video_codec_cap h265;
    video_codec_cap mjpeg;
    int32_t reserved[2];               /* encoder bookkeeping, not in the document (width ours) */
} video_stream_cap;

/* What the encoder can do: the capability entries, then per stream (index as
   in the video section: 0 "mainStream" .. 5 "sixthStream") the codecs, bit
   rates and the key-frame interval range. */
typedef struct cap_general_video_record {
    cap_entry entries[20];
    int32_t streamCount;               /* 0..6 */
    int32_t streamEnable[6];           /* 0: the stream is left out */
    int32_t mjpegSupport[6];           /* non-zero: the stream offers MJPEG */
    int32_t bitrates[6][30];           /* kbit/s; 0 marks an unused slot */
    int32_t reserved0[4];              /* not in the document (width ours) */
    int32_t gopMin;                    /* one key-frame interval range for all streams */
    int32_t gopMax;
    int32_t reserved1[4];              /* not in the document (width ours) */
    video_stream_cap streams[6];
} cap_general_video_record;

/* The sample rates one audio encoder offers. */
typedef struct audio_encoder_cap {
    int32_t encodeType;                /* 1 AAC LC, 2 G.711 u-law, 3 G.711 a-law, 4 G.722, 5 G.726 */
    int32_t sampleRateCount;
    int32_t sampleRates[10];           /* 0 8 kHz, 1 16 kHz, 2 32 kHz, 3 44.1 kHz, 4 48 kHz */
} audio_encoder_cap;

/* The bit rates offered at one sample rate. */
typedef struct audio_bitrate_cap {
    int32_t reserved;                  /* not in the document */
    int32_t bitrateCount;
    int32_t bitrates[10];              /* kbit/s: 16, 24, 32, 48, 64, 96, 128, 144, 192 or 256 */
} audio_bitrate_cap;

typedef struct cap_audio_record {
    cap_entry entries[13];
    audio_encoder_cap encoders[5];
    audio_bitrate_cap bitrateTables[5]; /* table i: sample-rate code i */
} cap_audio_record;

/* A preset number the dome reserves for a function. */
typedef struct special_preset_entry {
    int32_t id;                        /* 0 or less marks an unused slot */
    int32_t isExist;
    char name[64];
} special_preset_entry;

typedef struct cap_ptz_record {
    cap_entry entries[9];
    special_preset_entry specialPresets[21];
} cap_ptz_record;

/* The capability serializers take the number of valid entries after the
   record and tokenize the entries' option lists in place (see cap_entry).
   They refuse a NULL buffer or a size below 1 before touching the record.
   An entry's name filling its whole field is used as far as the field goes.
   Labels are cut to 31 characters (63 in the general document). */

/* The entries, each under its section: up to ten sections, nested by parent
   name, created on first use. An entry whose section is the eleventh, or
   whose parent section has not appeared yet, is left out. `entries` may be
   NULL (an empty document). */
MW_API int32_t get_cap_common_json(cap_entry *entries, int32_t count, char *dst, int32_t dstSize);
/* The entries, "streamCount", then each enabled stream with "H264", "H265",
   "Mjpeg" where offered, its non-zero "bitrate" values and "gopRange"
   ("min~max"). At most 20 entries, 6 streams and 10 resolutions a codec are
   read, whatever the counts say ("streamCount" and "availableSize" show the
   stored values). */
MW_API int32_t get_cap_general_video_json(cap_general_video_record *in, int32_t count, char *dst,
                                          int32_t dstSize);
/* The entries, one sample-rate array per encoder (named after its encoder
   type; an unknown type has none), then the bit rates of the five sample
   rates. At most 13 entries and 10 rates per list are read. */
MW_API int32_t get_cap_audio_json(cap_audio_record *in, int32_t count, char *dst, int32_t dstSize);
/* The entries, then "specialPresetList" with the used slots. At most 9
   entries are read. */
MW_API int32_t get_cap_ptz_json(cap_ptz_record *in, int32_t count, char *dst, int32_t dstSize);

/* ===== end capabilities ===== */

/* ===== vca ===== */

/*
 * The analytics rules. Every number is a signed 32-bit value unless its field
 * says otherwise; every text is copied into the document as stored (polygon
 * and schedule syntax belong to the web pages, the library neither parses nor
 * checks them).
 *
 * The region model shared by region entrance, region exit, advanced motion,
 * loitering, object left/removed and regional people counting: 4 detection
 * regions, indexed 0..3, each drawn as a polygon (`polygonX[r]` holds the X
 * coordinates of its points as one text, `polygonY[r]` the Y coordinates) and
 * once more for each of up to 4 PTZ presets (`presetPolygonX[r][p]`, region
 * first, preset polygon second, both 0-based). A region whose enable flag is 0
 * is still reported in full. The object-size filter `minX` .. `maxHeight` is
 * the smallest and the largest box of an object that may trigger the rule;
 * `schedule[d]` is the day's arming text, d 0..6.
 *
 * Members named reserved... are not in any document. Where their number was
 * ours to choose, region entrance and exit keep four words after the
 * detection objects and two after `scene`, and the advanced motion and
 * loitering records fill their gaps so that their polygons stand where region
 * exit keeps them. Region exit stands exactly eleven words behind region
 * entrance from its enable flags on.
 */

/* The installation mode of the analytics (ceiling, wall and the like). */
typedef struct vca_install_mode_record {
    int32_t Installation;
} vca_install_mode_record;

/* Region entrance: an object entering one of the regions. */
typedef struct vca_region_entrance_record {
    int32_t reserved0[2];
    int32_t regionEnable[4];             /* per region, 1 = armed */
    int32_t intrusionEnterSens;
    int32_t intrusionEnterTracking;
    int32_t detectionObject[4];          /* per region: which objects count */
    int32_t reserved1[4];
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
    int32_t reserved2[2];
    char polygonX[4][64];
    char polygonY[4][64];
    char presetPolygonX[4][4][64];
    char presetPolygonY[4][4][64];
    int32_t scene;
    int32_t reserved3[2];
    char schedule[7][256];
} vca_region_entrance_record;

/* Region exit: the entrance layout behind eleven more leading words. */
typedef struct vca_region_exit_record {
    int32_t reserved0[13];
    int32_t regionEnable[4];
    int32_t intrusionExitSens;
    int32_t intrusionExitTracking;
    int32_t detectionObject[4];
    int32_t reserved1[4];
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
    int32_t reserved2[2];
    char polygonX[4][64];
    char polygonY[4][64];
    char presetPolygonX[4][4][64];
    char presetPolygonY[4][4][64];
    int32_t scene;
    int32_t reserved3[2];
    char schedule[7][256];
} vca_region_exit_record;

/* Advanced motion: motion inside a region. Sensitivity, tracking, detection
   objects and the size filter follow the schedule in this record. */
typedef struct vca_advanced_motion_record {
    int32_t reserved0[13];
    int32_t advancedMotionEnable[4];     /* per region */
    int32_t reserved1[20];               /* where region exit keeps its values and size filter */
    char polygonX[4][64];
    char polygonY[4][64];
    char presetPolygonX[4][4][64];
    char presetPolygonY[4][4][64];
    int32_t scene;
    int32_t reserved2[2];
    char schedule[7][256];
    int32_t advancedMotionSens;
    int32_t advancedMotionTracking;
    int32_t advancedMotionDetectionObject[4];   /* per region */
    int32_t ignoreShortLived;            /* 1 = ignore objects seen only briefly */
    int32_t reserved3[3];
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
} vca_advanced_motion_record;

/* Loitering: an object staying in a region longer than minLoiteringTime. The
   rule has no sensitivity: the word where the other rules keep it is not read,
   and the size filter comes last. */
typedef struct vca_loitering_record {
    int32_t reserved0[13];
    int32_t loiteringEnable[4];          /* per region */
    int32_t reservedSensitivity;         /* not in the document */
    int32_t loiteringTracking;
    int32_t loiteringDetectionObject[4]; /* per region */
    int32_t reserved1[14];               /* where region exit keeps its size filter */
    char polygonX[4][64];
    char polygonY[4][64];
    char presetPolygonX[4][4][64];
    char presetPolygonY[4][4][64];
    int32_t scene;
    int32_t reserved2[2];
    char schedule[7][256];
    int32_t minLoiteringTime[4];         /* per region, seconds */
    int32_t reserved3[4];
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
} vca_loitering_record;

/* Tamper (defocus, cover, scene change): one switch for the whole picture. */
typedef struct vca_tamper_record {
    int32_t tamperEnable;
    int32_t tamperSens;
    char schedule[7][256];
} vca_tamper_record;

/* Human detection. */
typedef struct vca_human_detection_record {
    int32_t humanEnable;
    int32_t humanShowTrackEnable;        /* 1 = draw the tracks on the live view */
    int32_t humanSens;
    int32_t humanTracking;
    char humanSchedule[7][256];          /* per day, 0..6 */
} vca_human_detection_record;

/* {"Installation"} - the key keeps its capital letter. */
MW_API int32_t get_vca_install_mode_json(const vca_install_mode_record *in, char *dst, int32_t dstSize);
/* Sensitivity, tracking, scene and size filter, then "detectionInfoList"
   (all 4 regions, each with its 4 preset polygons) and "scheduleList". */
MW_API int32_t get_vca_region_entrance_json(const vca_region_entrance_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t get_vca_region_exit_json(const vca_region_exit_record *in, char *dst, int32_t dstSize);
/* As region entrance, with "ignoreShortLived" after "scene". */
MW_API int32_t get_vca_advanced_motion_json(const vca_advanced_motion_record *in, char *dst,
                                            int32_t dstSize);
/* As region entrance without a sensitivity key; each region also carries its
   "minLoiteringTime". */
MW_API int32_t get_vca_loitering_json(const vca_loitering_record *in, char *dst, int32_t dstSize);
/* "tamperEnable", "tamperSens", "scheduleList". */
MW_API int32_t get_vca_tamper_json(const vca_tamper_record *in, char *dst, int32_t dstSize);
/* The four values, then the schedule as seven flat keys "humanSchedule_0" ..
   "humanSchedule_6" (no "scheduleList"). */
MW_API int32_t get_vca_human_detection_json(const vca_human_detection_record *in, char *dst,
                                            int32_t dstSize);

/* The analytics configuration: identity, activation period, and what the
   camera does when an analytics event fires. Every [13] array is indexed by
   action slot 0..12; the document numbers the slots, it does not name them.
   The period fields and the file types are codes of the web pages, passed
   through. */
typedef struct vca_configuration_record {
    int32_t vcaId;
    char vcaName[32];
    int32_t vcaEnable;
    int32_t vcaPeriodic;
    int32_t vcaWeekdays;
    int32_t vcaStartTime;
    int32_t vcaDuration;
    int32_t triggerBootEnable;
    int32_t triggerScheduleEnable;
    int32_t uploadEnable[13];
    int32_t uploadFileType[13];
    int32_t uploadType;
    int32_t uploadPostAlarm;
    int32_t emailEnable[13];
    int32_t emailFileType;
    int32_t emailPostAlarm;
    char email[256];                     /* recipient address(es) */
    char emailSubject[32];
    char emailInformation[32];           /* message body */
    int32_t emailUpload;
    int32_t httpEnable[13];
    int32_t httpPostAlarm;
    int32_t httpInterval;
    int32_t recordEnable[13];
    int32_t recordFileType[13];
    int32_t gpoutEnable[13];             /* alarm output */
    int32_t nasEnable[13];
    int32_t nasFileType[13];
    int32_t sipEnable[13];
    int32_t audioEnable[13];
    int32_t whitelightEnable[13];
    int32_t recordSecond[13];
    int32_t prerecordSecond[13];
    int32_t snapShot[13];
    int32_t snapShotInterval[13];
    int32_t snapShotIntervalUnit[13];
    int32_t triggerDuration[13];
    int32_t audioInterval[13];
    int32_t emailInterval[13];
    int32_t whiteledFlashMode[13];
    int32_t whiteledFlashTime[13];
    int32_t whiteledAlwaysTime[13];
    int32_t whiteledEffectMode[13];
    int32_t whiteledEffectValue[13];
    int32_t whiteledStartHour[13];
    int32_t whiteledStartMinute[13];
    int32_t whiteledStopHour[13];
    int32_t whiteledStopMinute[13];
    int32_t whiteledGroup[13];
} vca_configuration_record;

/* The live state of the analytics rules and their counters. */
typedef struct vca_alarm_status_record {
    int32_t regionEntranceStatus;
    int32_t regionExitAlarmStatus;
    int32_t advancedMotionAlarmStatus;
    int32_t tamperAlarmStatus;
    int32_t loiteringAlarmStatus;
    int32_t lineAlarmStatus[4];          /* per crossing line, 0..3 */
    int32_t peopleCountingStatus;
    int32_t currentCounterAlarmStatus;
    int32_t humanAlarmStatus;
    int32_t currentInCount;
    int32_t currentOutCount;
    int32_t currentSumCount;
    int32_t currentCapacityCount;
    int32_t objectLeftAlarmStatus;
    int32_t objectRemoveAlarmStatus;
    int32_t vehicleCountingStatus;
    int32_t currentVehicleAlarm;
    int32_t vehicleInCount;
    int32_t vehicleOutCount;
    int32_t vehicleSumCount;
    int32_t vehicleCapacityCount;
    int32_t regionalPeopleStatus;
} vca_alarm_status_record;

/* The state of the camera's other alarms. The exception alarms come as pairs,
   switch first and state second. */
typedef struct vca_all_alarm_status_record {
    int32_t motionAlarmStatus;
    int32_t inputAlarmStatus[4];         /* per alarm input, 0..3 */
    int32_t outputAlarmStatus[2];        /* per alarm output, 0..1 */
    int32_t audioAlarmStatus;
    int32_t netlostEnable;
    int32_t networkLostAlarmStatus;
    int32_t ipconflictEnable;
    int32_t ipConflictAlarmStatus;
    int32_t recordFailedEnable;
    int32_t recordFailedAlarmStatus;
    int32_t sdFullEnable;
    int32_t sdFullAlarmStatus;
    int32_t sdUninitEnable;
    int32_t sdUninitAlarmStatus;
    int32_t sdErrorEnable;
    int32_t sdErrorAlarmStatus;
    int32_t noSdEnable;
    int32_t noSdAlarmStatus;
    int32_t tamperEnable;
    int32_t tamperAlarmStatus;
    int32_t subMotionAlarmStatus;        /* motion on the second .. fifth motion area */
    int32_t thirdMotionAlarmStatus;
    int32_t fourthMotionAlarmStatus;
    int32_t fifthMotionAlarmStatus;
    int32_t alarmArea;
    int32_t lprBlackStatus;              /* plate on the block list seen */
    int32_t lprWhiteStatus;
    int32_t lprVisitorStatus;
    int32_t lprAttrStatus;
} vca_all_alarm_status_record;

/* A flat document: identity and period, then the slot keys "uploadEnable_0"
   .. "whiteledGroup_12", grouped by loop as the pages expect them. */
MW_API int32_t get_vca_configuration_json(const vca_configuration_record *in, char *dst, int32_t dstSize);
/* The rule states and counters, then "lineCrossAlarmList" (4 lines). */
MW_API int32_t get_vca_alarm_status_json(const vca_alarm_status_record *in, char *dst, int32_t dstSize);
/* The alarm states, then "inputAlarmList" (4) and "outputAlarmList" (2); the
   exception switches and the tamper pair are not in this document. */
MW_API int32_t get_vca_all_alarm_status_json(const vca_all_alarm_status_record *in, char *dst,
                                             int32_t dstSize);
/* The exception alarms from the same record, switch then state; the IP
   conflict state is "ipconflictAlarmStatus" here, "ipConflictAlarmStatus" in
   the document above. */
MW_API int32_t get_vca_exception_alarm_status_json(const vca_all_alarm_status_record *in, char *dst,
                                                   int32_t dstSize);

/* People counting across up to 4 counting lines (l 0..3), each drawn once more
   for each of up to 4 PTZ presets (p 0..3). Thresholds are people counts;
   the auto-reset fields say when a line's counters go back to 0. */
typedef struct vca_counting_record {
    int32_t showOsdEnable;               /* counters drawn on the video */
    int32_t osdType;
    int32_t osdFontSize;
    int32_t osdTextPosition;
    char osdFontColor[16];
    int32_t alarmTriggerEnable;
    int32_t peopleCountingSens;
    int32_t scene;
    int32_t countTriggerType;
    int32_t allLineInAlarmEnable;        /* the totals over all lines */
    int32_t allLineOutAlarmEnable;
    int32_t allLineCapacityAlarmEnable;
    int32_t allLineSumAlarmEnable;
    int32_t allLineInAlarmThresholds;
    int32_t allLineOutAlarmThresholds;
    int32_t allLineCapacityAlarmThresholds;
    int32_t allLineSumAlarmThresholds;
    int32_t lineEnable[4];               /* per line from here on */
    int32_t lineInAlarmEnable[4];
    int32_t lineOutAlarmEnable[4];
    int32_t lineCapacityAlarmEnable[4];
    int32_t lineSumAlarmEnable[4];
    int32_t lineInAlarmThresholds[4];
    int32_t lineOutAlarmThresholds[4];
    int32_t lineCapacityAlarmThresholds[4];
    int32_t lineSumAlarmThresholds[4];
    int32_t lineAutoResetEnable[4];
    int32_t lineAutoResetWeekday[4];
    int32_t lineAutoResetHour[4];
    int32_t lineAutoResetMin[4];
    int32_t lineAutoResetSec[4];
    int32_t lineDirection[4];
    int32_t presetDirection[4][4];       /* [line][preset line] */
    int32_t lineShowCountingEnable[4];
    char countLine[4][32];               /* the line's end points as text */
    char presetCountLine[4][4][32];      /* [line][preset line] */
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
    char schedule[7][256];
} vca_counting_record;

/* Face detection and capture. captureQuality and snapshotMaxPush are per
   capture setting, 0..2; the shield regions (0..3) are areas where faces are
   ignored; polygonX/polygonY is the detection area. Pose and blur limits are
   the analytics' own values, passed through. */
typedef struct vca_face_detection_record {
    int32_t reserved0;                   /* not in the document */
    int32_t mosaicModeStatus;
    int32_t faceEnable;
    int32_t faceMinPixel;                /* smallest face, in pixels */
    int32_t captureMode;
    int32_t snapshotInterval;
    int32_t poseRoll;
    int32_t posePitch;
    int32_t poseYaw;
    int32_t blurlimit;
    int32_t snapshotType;
    int32_t snapshotBackground;
    int32_t captureQuality[3];
    int32_t snapshotMaxPush[3];
    int32_t postEnable;
    int32_t postType;
    int32_t reserved1[2];                /* not in the document; two words, our choice */
    int32_t shieldRegionEnable[4];
    char shieldPolygonX[4][64];
    char shieldPolygonY[4][64];
    int32_t attributeEnable;
    int32_t attributeType;
    int32_t mosaicEnable;
    char polygonX[64];
    char polygonY[64];
    char schedule[7][256];
} vca_face_detection_record;

/* One crossing line: its two end points x1 y1 x2 y2, the same for each of 4
   PTZ preset lines, and the crossing direction (also per preset line). */
typedef struct vca_crossing_line_entry {
    int32_t crossedLine[4];
    int32_t presetCrossedLine[4][4];     /* [preset line][x1 y1 x2 y2] */
    int32_t direction;
    int32_t presetDirection[4];
} vca_crossing_line_entry;

/* Line crossing over up to 4 lines, 0..3. */
typedef struct vca_line_crossing_record {
    int32_t lineCrossingSens;
    int32_t lineCrossingTracking;
    int32_t lineCrossingEnable[4];
    int32_t lineCrossingDetectionObject[4];
    vca_crossing_line_entry lines[4];
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
    int32_t scene;
    char schedule[7][256];
} vca_line_crossing_record;

/* Object left behind or removed, on the region model; minTime is how long
   (seconds) an object must be left or missing. There is no detection-object
   array in this rule. The counts of reserved2 (one word) and reserved3 (two,
   as in the other region rules) are our choice. */
typedef struct vca_left_remove_record {
    int32_t reserved0[13];
    int32_t leftEnable[4];               /* per region */
    int32_t removeEnable[4];             /* per region */
    int32_t leftRemoveTracking;
    int32_t reserved1[14];
    int32_t leftRemoveSens;
    int32_t reserved2;
    char polygonX[4][64];
    char polygonY[4][64];
    char presetPolygonX[4][4][64];
    char presetPolygonY[4][4][64];
    int32_t scene;
    int32_t reserved3[2];
    char schedule[7][256];
    int32_t minTime;
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
} vca_left_remove_record;

/* Totals and size filter, then "crossedLine" (an array of the 4 lines, each
   with "presetLineList" of 4) and "scheduleList". "allLineOutAlarmEnanble"
   keeps its historic spelling. */
MW_API int32_t get_vca_counting_json(const vca_counting_record *in, char *dst, int32_t dstSize);
/* Settings, detection area, "shieldRegionList" (4), "captureSettingsList" (3)
   and "scheduleList". */
MW_API int32_t get_vca_face_detection_json(const vca_face_detection_record *in, char *dst,
                                           int32_t dstSize);
/* All four lines in "detectionInfoList"; end points are written as the text
   "x1;y1;x2;y2", cut at 31 characters. */
MW_API int32_t get_vca_all_linecrossing_json(const vca_line_crossing_record *in, char *dst,
                                             int32_t dstSize);
/* The region-rule shape with "leftEnable" and "removeEnable" per region. */
MW_API int32_t get_vca_left_remove_json(const vca_left_remove_record *in, char *dst, int32_t dstSize);

/* Heat-map settings. `mask` is the masked-out area as drawn by the page. */
typedef struct vca_heat_map_record {
    int32_t enable;
    int32_t sensitivity;
    int32_t minSize;
    int32_t minDwellTime;
    int32_t adaptability;
    char mask[1468];
    int32_t supportHeatMap;              /* this camera can make heat maps */
    int32_t supportHeatMapEnable;
    char schedule[7][256];
} vca_heat_map_record;

/* Automatic export of the heat map: when (weekday, hour:min:sec) and over
   which time range; method and range are codes of the page. */
typedef struct vca_auto_export_heat_record {
    uint8_t reserved;                    /* not in the document */
    uint8_t enable;
    int32_t method;
    int32_t weekday;
    int32_t hour;
    int32_t min;
    int32_t sec;
    int32_t timeRange;
} vca_auto_export_heat_record;

/* Regional people counting on the region model: per region (0..3) an enable
   flag and the stay limits (maxStay/minStay people, maxStayTime seconds) with
   their switches. The reserved words are ours: four after the per-region
   values and two after the preset polygons. */
typedef struct vca_region_people_record {
    int32_t regionPeopleCountingSens;
    int32_t scene;
    int32_t minX;
    int32_t minY;
    int32_t minWidth;
    int32_t minHeight;
    int32_t maxX;
    int32_t maxY;
    int32_t maxWidth;
    int32_t maxHeight;
    char polygonX[4][64];
    char polygonY[4][64];
    int32_t regionEnable[4];
    int32_t maxStayEnable[4];
    int32_t minStayEnable[4];
    int32_t maxStayTimeEnable[4];
    int32_t maxStay[4];
    int32_t minStay[4];
    int32_t maxStayTime[4];
    int32_t reserved0[4];                /* not in the document */
    char presetPolygonX[4][4][64];
    char presetPolygonY[4][4][64];
    int32_t reserved1[2];                /* not in the document */
    char schedule[7][256];
} vca_region_people_record;

/* Automatic export of the regional people report, at hour:minute:second on
   the weekday; stayType and stayLength select the stays reported. */
typedef struct vca_regional_auto_export_record {
    uint8_t reserved;                    /* not in the document */
    uint8_t enable;
    int32_t method;
    int32_t weekday;
    int32_t hour;
    int32_t minute;
    int32_t second;
    int32_t timeRange;
    int32_t stayType;
    int32_t stayLength;
} vca_regional_auto_export_record;

/* Person tracks of the last interval: element i of each array belongs to
   track i; personNum tracks are valid (the producer keeps it within 256). */
typedef struct vca_person_point_record {
    int32_t reserved[2];                 /* not in the document */
    int32_t personNum;
    int32_t id[256];
    int32_t type[256];
    int32_t startX[256];
    int32_t startY[256];
    int32_t stopX[256];
    int32_t stopY[256];
    int32_t alarmRegion[256];
} vca_person_point_record;

/* Live counters per counting line, 0..3. */
typedef struct vca_people_counting_data_record {
    int32_t inCount[4];
    int32_t outCount[4];
    int32_t sumCount[4];
    int32_t capacityCount[4];
} vca_people_counting_data_record;

/* The people now in the regions: num[r] per region (0..3), then per person
   (0..49) the box left/top/right/bottom, the stay states and stayTime[i][r],
   the seconds person i has spent in region r. peopleCount entries are valid
   (the producer keeps it within 50). `class` is the person's class code. */
typedef struct vca_regional_people_data_record {
    int32_t regionsAlarmStatus;
    int32_t regionsStayAlarmStatus;
    int32_t num[4];
    int32_t id[50];
    int32_t MW_CLASS_MEMBER[50];
    int32_t left[50];
    int32_t top[50];
    int32_t right[50];
    int32_t bottom[50];
    int32_t stayAlarmStatus[50];
    int32_t exsitStatus[50];
    int32_t stayTime[50][4];
    int32_t peopleCount;
} vca_regional_people_data_record;

/* Settings, "mask", support flags and "scheduleList". */
MW_API int32_t get_vca_heat_map_json(const vca_heat_map_record *in, char *dst, int32_t dstSize);
/* "enable", the time, "timeRange", and "method" last. */
MW_API int32_t get_vca_auto_export_heat_json(const vca_auto_export_heat_record *in, char *dst,
                                             int32_t dstSize);
/* Sensitivity, scene, size filter, "detectionInfoList" (4 regions with their
   stay limits and preset polygons) and "scheduleList". */
MW_API int32_t get_vca_region_people_json(const vca_region_people_record *in, char *dst, int32_t dstSize);
/* The export time as one text "hh:mm:ss" ("%02d" each, signed). */
MW_API int32_t get_vca_regional_auto_export_json(const vca_regional_auto_export_record *in, char *dst,
                                                 int32_t dstSize);
/* "personNum" and "personList" with the first personNum tracks (none when it
   is 0 or negative). */
MW_API int32_t get_vca_person_point_json(const vca_person_point_record *in, char *dst, int32_t dstSize);
/* "peopleList": the counters of the 4 lines. */
MW_API int32_t get_vca_people_counting_data_json(const vca_people_counting_data_record *in, char *dst,
                                                 int32_t dstSize);
/* Region states, "peopleNumList" (4), then "peopleDataInfo" with the first
   peopleCount people (none when 0 or negative), each with its 4 stay times.
   "exsitStatus" keeps its historic spelling. */
MW_API int32_t get_vca_regional_people_data_json(const vca_regional_people_data_record *in, char *dst,
                                                 int32_t dstSize);

/* ===== end vca ===== */

/* ===== lpr ===== */

/* ---- recognition settings, layout and plate lists ---- */

/* A detection polygon of the newest recognition engine: four corners in
   image coordinates, then its name. The name's width is ours: 64 bytes. */
typedef struct lpr_polygon_entry {
    int32_t x[4];
    int32_t y[4];
    char name[64];
} lpr_polygon_entry;

/* The plate-recognition page. The speed measurement uses the camera's mounting
   height and two reference lines, each with its real distance (a text, as the
   installer typed it) and its image row in pixels (linePixel1/2). `schedule`
   holds one text per weekday, index 0 to 6. The numeric codes
   (country, areaType, processMode, repeatCheckTimeUnit) are passed through.
   The reserved words are the engine's own bookkeeping and are not in the
   document; how many there are is ours to choose: one at the start, two after
   dayNightModeEnable, one after effectivePresetsScene, one after
   repeatCheckTimeUnit, one after nightModeLevel and one after nightToDay. */
typedef struct lpr_settings_record {
    int32_t reserved0;                  /* not in the document */
    int32_t lprEnable;
    int32_t lprWidth;
    int32_t lprHeight;
    int32_t dayNightModeEnable;
    int32_t reserved1[2];               /* not in the document */
    int32_t effectivePresetsScene;
    int32_t reserved2;                  /* not in the document */
    int32_t lprVersion;                 /* engine version; 4 adds "normalPolygonList" */
    int32_t speedDetect;
    char cameraHeight[32];
    int32_t linePixel1;
    int32_t linePixel2;
    char lineDistance1[32];
    char lineDistance2[32];
    char areaList[256];
    char noSupportSerialformatList[256];
    char curArea[32];
    int32_t directionEnable;
    int32_t regionEnable;
    int32_t roiIdEnable;
    int32_t plateColorEnable;
    int32_t vehicleTypeEnable;
    int32_t vehicleColorEnable;
    int32_t processMode;
    int32_t repeatCheckTimeVal;
    int32_t repeatCheckTimeUnit;
    int32_t reserved3;                  /* not in the document */
    int32_t confidence;
    int32_t nightModeEnable;
    int32_t nightModeEffectiveTime;
    int32_t nightModeStartHour;
    int32_t nightModeStartMinute;
    int32_t nightModeStopHour;
    int32_t nightModeStopMinute;
    int32_t nightModeLevel;
    int32_t reserved4;                  /* not in the document */
    int32_t dayToNight;
    int32_t nightToDay;
    int32_t reserved5;                  /* not in the document */
    int32_t country;
    int32_t encryptionChip;
    int32_t areaType;
    int32_t whiteLedExternal;
    int32_t irLedExternal;
    char schedule[7][256];
    int32_t optimalPushMechanism;
} lpr_settings_record;

/* The second half of the recognition settings: the engine's extra switches,
   the video input it reads and its four detection polygons. The unread
   members and their widths are ours: a leading word, the three bytes after
   each switch byte (spelled out, so the record has no hidden padding), a word
   before the polygons and a word before detectionMode; none is in the
   document. */
typedef struct lpr_settings_ext_record {
    int32_t reserved0;                  /* not in the document */
    uint8_t vehicleBrandEnable;
    uint8_t reserved1[3];               /* not in the document */
    uint8_t vehicleEnhancement;
    uint8_t reserved2[3];               /* not in the document */
    int32_t inputNo;
    int32_t reserved3;                  /* not in the document */
    lpr_polygon_entry polygons[4];
    int32_t reserved4;                  /* not in the document */
    uint32_t detectionMode;             /* passed through unsigned */
} lpr_settings_ext_record;

/* The text layout of the plate overlay (osd...) and of the snapshot caption
   (snap...). The odd text widths keep every member packed in place, with no
   padding. `spaces` holds one decimal text per field of the plate report, in
   the report's field order ("time", "licensePlate", ... "plateConfidence"):
   the blanks printed after that field. The entry for the line-break marker
   (index 9) is never read. The word after osdPosition and the two words
   before snapshotResolution (our count) are not in the document. */
typedef struct lpr_advanced_record {
    int32_t snapSeparator;
    char snapSort[59];
    char snapPosition[96];
    char snapDeviceId[96];
    char osdSort[32];
    char osdPositionName[96];
    char osdDeviceId[97];
    int32_t osdFontSize;
    char osdFontColor[32];
    int32_t osdBkgEnable;
    char osdBkgColor[32];
    int32_t osdPosition;
    int32_t reserved0;                  /* not in the document */
    char spaces[20][10];
    int32_t reserved1[2];               /* not in the document */
    int32_t snapshotResolution;
} lpr_advanced_record;

/* A plate list's switch and weekly schedule (black, white and visitor lists
   share the layout); day index 0 to 6. */
typedef struct lpr_list_settings_record {
    int32_t enable;
    char schedule[7][256];
} lpr_list_settings_record;

/* The direction of travel a plate list applies to. */
typedef struct lpr_list_direction_record {
    int32_t reserved0;                  /* not in the document */
    int32_t detectionDirection;
} lpr_list_direction_record;

/* The task texts of the four list rules, seven days each: [rule][day], both
   counted from 0. */
typedef struct lpr_list_sche_record {
    char ruleTaskday[4][7][32];
} lpr_list_sche_record;

typedef struct lpr_upload_status_record {
    int32_t lprUploadStatus;
} lpr_upload_status_record;

/* Thirty plate-format wildcards: slot i is enable[i], characterCount[i] and
   format[i]; `filter` switches the whole filter. */
typedef struct lpr_wildcards_record {
    int32_t filter;
    int32_t enable[30];
    int32_t characterCount[30];
    char format[30][12];
} lpr_wildcards_record;

/* The recognition settings from both records. "normalPolygonList" (four
   polygons, their corners as "x:x:x:x:" texts) is there only when lprVersion
   is exactly 4. */
MW_API int32_t get_lpr_settings_json(const lpr_settings_record *in, const lpr_settings_ext_record *ext,
                                     char *dst, int32_t dstSize);
/* The overlay and caption layout. "osdSpaceList" lists the nineteen report
   fields other than the line-break marker, each with its spaces text read as
   a number (leading blanks, a sign, digits; 0 when there are none). A spaces
   text is read within its ten bytes even when it lacks its NUL. */
MW_API int32_t get_lpr_advanced_json(const lpr_advanced_record *in, char *dst, int32_t dstSize);
/* A plate list's switch, direction and seven-day "scheduleList"; the three
   lists print alike. */
MW_API int32_t get_lpr_black_settings_json(const lpr_list_settings_record *in,
                                           const lpr_list_direction_record *direction, char *dst,
                                           int32_t dstSize);
MW_API int32_t get_lpr_white_settings_json(const lpr_list_settings_record *in,
                                           const lpr_list_direction_record *direction, char *dst,
                                           int32_t dstSize);
MW_API int32_t get_lpr_visitor_settings_json(const lpr_list_settings_record *in,
                                             const lpr_list_direction_record *direction, char *dst,
                                             int32_t dstSize);
/* 28 flat keys "ruleTaskday_<rule>_<day>", rule 0 day 0 first. */
MW_API int32_t get_lpr_list_sche_json(const lpr_list_sche_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_lpr_upload_status_json(const lpr_upload_status_record *in, char *dst, int32_t dstSize);
/* "filter" and all thirty wildcard slots, enabled or not, index from 0. */
MW_API int32_t get_lpr_wildcards_json(const lpr_wildcards_record *in, char *dst, int32_t dstSize);

/* ---- recent plates, speed radar and plate-attribute rules ---- */

/* One recent plate read: when, what, where its snapshot is stored, the
   region it was read in, the direction of travel, the region-of-interest id
   and the plate's box in the image (pixels). */
typedef struct lpr_last_data_entry {
    char time[32];
    char plate[64];
    char path[48];
    char region[32];
    int32_t direction;
    int32_t roiId;
    int32_t plateLeft;
    int32_t plateTop;
    int32_t plateRight;
    int32_t plateBottom;
} lpr_last_data_entry;

/* The speed radar beside the plate camera. Distances, angles and widths are
   texts as the installer typed them; the codes (speedUnit, drivingDir,
   radarLevel, exportMethod, exportTimeRange) are passed through. laneRegion[l]
   is the detection region matched to lane l, laneDirection[l] its direction
   of travel; lanes count from 0. The document lists lanesNum lane regions
   reading on past laneRegion into triggerLine, triggerDistance and the
   members after them, so the order of this record is part of the document
   and must not change. `reserved0` (eight words) and `reserved1` are not in
   the document. */
typedef struct lpr_radar_config_record {
    int32_t enable;
    char height[32];
    char angle[32];
    char angleCom[32];
    int32_t lanesNum;
    char laneWidth[32];
    char installLocation[32];
    int32_t speedUnit;
    int32_t laneRegion[4];
    int32_t triggerLine;
    char triggerDistance[32];
    int32_t showLicensePlateEnable;
    int32_t showDetectionRegionEnable;
    int32_t showSpeedEnable;
    int32_t showDirectionEnable;
    int32_t showDistanceEnable;
    int32_t showAzimuthEnable;
    int32_t showCountingEnable;
    int32_t fontSize;
    char fontColor[32];
    int32_t osdAutoReset;
    int32_t osdResetWeekday;
    int32_t osdResetHour;
    int32_t osdResetMin;
    int32_t osdResetSec;
    int32_t reserved0[8];               /* not in the document */
    int32_t maxSpeedAlarmEnable;
    int32_t minSpeedAlarmEnable;
    int32_t maxSpeedThreshold;
    int32_t minSpeedThreshold;
    int32_t drivingDirAlarmEnable;
    int32_t drivingDir;
    int32_t radarLevel;
    int32_t countAlarm;
    int32_t countThreshold;
    int32_t debug;
    int32_t reserved1;                  /* not in the document */
    int32_t upgrade;
    char schedule[7][256];
    int32_t exportEnable;
    int32_t exportMethod;
    int32_t exportWeekday;
    int32_t exportResetHour;
    int32_t exportResetMin;
    int32_t exportResetSec;
    int32_t exportTimeRange;
    int32_t laneDirection[4];
} lpr_radar_config_record;

/* One target the radar currently tracks; its measures are texts. */
typedef struct lpr_radar_detect_entry {
    int32_t id;
    char speed[32];
    char xpos[32];
    char distance[32];
    char direction[32];
} lpr_radar_detect_entry;

/* One plate-attribute alarm rule (there are four): it fires for a read
   without a plate (noPlate) or one matching the colour, type and region
   codes, travelling in `direction`. */
typedef struct lpr_attr_event_entry {
    uint8_t enable;
    uint8_t noPlate;
    uint8_t direction;
    int32_t detectRegion;
    int32_t plateColor;
    int32_t vehicleType;
    int32_t vehicleColor;
} lpr_attr_event_entry;

/* The day texts of the four attribute rules: schedule[rule][day], both from 0.
   The block is the bare char[4][7][256]; the struct only names it. */
typedef struct lpr_attr_schedule {
    char schedule[4][7][256];
} lpr_attr_schedule;

/* The last `count` plate reads as flat keys "time_<i>" ... "plateBottom_<i>",
   i from 0, all ten keys of a read before the next. A count of 0 or below
   gives an empty object; `entries` must hold `count` reads. */
MW_API int32_t get_lpr_last_data_json(int32_t count, const lpr_last_data_entry *entries, char *dst,
                                      int32_t dstSize);
/* The radar configuration. "laneMatchRoiList" holds lanesNum lanes, not
   capped at four: lanes 4 and up read the words that follow laneRegion in the
   record. Our choice: the list stops at the record's last whole word, so a
   lanesNum beyond the record never reads past it. "laneDirection" holds at
   most four lanes. */
MW_API int32_t get_lpr_radar_config_json(const lpr_radar_config_record *in, char *dst, int32_t dstSize);
/* {"radarTest": radarTest} - the radar self-test state. */
MW_API int32_t get_lpr_radar_test_json(int32_t radarTest, char *dst, int32_t dstSize);
/* "radarDetectData": the first `count` targets (none for a count of 0 or
   below); `entries` must hold `count` targets. */
MW_API int32_t get_lpr_radar_detect_data_json(int32_t count, const lpr_radar_detect_entry *entries, char *dst,
                                              int32_t dstSize);
/* The four attribute rules (`rules` holds four) with their switches, triggers
   and day texts. This one does not test its buffer: a NULL buffer or a size
   below 1 copies nothing and still returns 0; only a failed print gives -1. */
MW_API int32_t get_lpr_attr_event_json(const lpr_attr_event_entry *rules, const lpr_attr_schedule *schedule,
                                       char *dst, int32_t dstSize);

/* ===== end lpr ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_H */
