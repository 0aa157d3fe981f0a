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

/* ===== end lpr ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_H */
