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

/* ===== end events: alarm actions per event type ===== */

/* ===== events: sources, upload servers, global switches ===== */

/* ===== end events: sources, upload servers, global switches ===== */

/* ===== iot: radio, profiles, devices, sensor alarms ===== */

/* ===== end iot: radio, profiles, devices, sensor alarms ===== */

/* ===== iot: alarm actions per rule ===== */

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

/* ===== end vca ===== */

/* ===== lpr ===== */

/* ===== end lpr ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_H */
