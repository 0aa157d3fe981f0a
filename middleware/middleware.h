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

/* ===== end events: alarm actions per event type ===== */

/* ===== events: sources, upload servers, global switches ===== */

/* ===== end events: sources, upload servers, global switches ===== */

/* ===== iot: radio, profiles, devices, sensor alarms ===== */

/* ===== end iot: radio, profiles, devices, sensor alarms ===== */

/* ===== iot: alarm actions per rule ===== */

/* ===== end iot: alarm actions per rule ===== */

/* ===== capabilities ===== */

/* ===== end capabilities ===== */

/* ===== vca ===== */

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
