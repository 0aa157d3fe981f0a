/*
 * middleware_lpr.h - the licence-plate recognition pages.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_LPR_H
#define MIDDLEWARE_LPR_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

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
MW_API int32_t schema_lpr_settings_json(const lpr_settings_record *in, const lpr_settings_ext_record *ext, char *dst,
                                        int32_t dstSize);
MW_API int32_t set_lpr_settings_json(lpr_settings_record *record, lpr_settings_ext_record *ext, const char *body,
                                     int32_t bodySize, char *dst, int32_t dstSize);
/* The overlay and caption layout. "osdSpaceList" lists the nineteen report
   fields other than the line-break marker, each with its spaces text read as
   a number (leading blanks, a sign, digits; 0 when there are none). A spaces
   text is read within its ten bytes even when it lacks its NUL. */
MW_API int32_t get_lpr_advanced_json(const lpr_advanced_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_lpr_advanced_json(const lpr_advanced_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_lpr_advanced_json(lpr_advanced_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* A plate list's switch, direction and seven-day "scheduleList"; the three
   lists print alike. */
MW_API int32_t get_lpr_black_settings_json(const lpr_list_settings_record *in,
                                           const lpr_list_direction_record *direction, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_lpr_black_settings_json(const lpr_list_settings_record *in,
                                              const lpr_list_direction_record *direction, char *dst, int32_t dstSize);
MW_API int32_t set_lpr_black_settings_json(lpr_list_settings_record *record, lpr_list_direction_record *direction,
                                           const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t get_lpr_white_settings_json(const lpr_list_settings_record *in,
                                           const lpr_list_direction_record *direction, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_lpr_white_settings_json(const lpr_list_settings_record *in,
                                              const lpr_list_direction_record *direction, char *dst, int32_t dstSize);
MW_API int32_t set_lpr_white_settings_json(lpr_list_settings_record *record, lpr_list_direction_record *direction,
                                           const char *body, int32_t bodySize, char *dst, int32_t dstSize);
MW_API int32_t get_lpr_visitor_settings_json(const lpr_list_settings_record *in,
                                             const lpr_list_direction_record *direction, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_lpr_visitor_settings_json(const lpr_list_settings_record *in,
                                                const lpr_list_direction_record *direction, char *dst, int32_t dstSize);
MW_API int32_t set_lpr_visitor_settings_json(lpr_list_settings_record *record, lpr_list_direction_record *direction,
                                             const char *body, int32_t bodySize, char *dst, int32_t dstSize);
/* 28 flat keys "ruleTaskday_<rule>_<day>", rule 0 day 0 first. */
MW_API int32_t get_lpr_list_sche_json(const lpr_list_sche_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_lpr_list_sche_json(const lpr_list_sche_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_lpr_list_sche_json(lpr_list_sche_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
MW_API int32_t get_lpr_upload_status_json(const lpr_upload_status_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_lpr_upload_status_json(const lpr_upload_status_record *in, char *dst, int32_t dstSize);
/* "filter" and all thirty wildcard slots, enabled or not, index from 0. */
MW_API int32_t get_lpr_wildcards_json(const lpr_wildcards_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_lpr_wildcards_json(const lpr_wildcards_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_lpr_wildcards_json(lpr_wildcards_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);

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
MW_API int32_t schema_lpr_last_data_json(int32_t count, const lpr_last_data_entry *entries, char *dst, int32_t dstSize);
/* The radar configuration. "laneMatchRoiList" holds lanesNum lanes, not
   capped at four: lanes 4 and up read the words that follow laneRegion in the
   record. Our choice: the list stops at the record's last whole word, so a
   lanesNum beyond the record never reads past it. "laneDirection" holds at
   most four lanes. */
MW_API int32_t get_lpr_radar_config_json(const lpr_radar_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_lpr_radar_config_json(const lpr_radar_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_lpr_radar_config_json(lpr_radar_config_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* {"radarTest": radarTest} - the radar self-test state. */
MW_API int32_t get_lpr_radar_test_json(int32_t radarTest, char *dst, int32_t dstSize);
MW_API int32_t schema_lpr_radar_test_json(int32_t radarTest, char *dst, int32_t dstSize);
/* "radarDetectData": the first `count` targets (none for a count of 0 or
   below); `entries` must hold `count` targets. */
MW_API int32_t get_lpr_radar_detect_data_json(int32_t count, const lpr_radar_detect_entry *entries, char *dst,
                                              int32_t dstSize);
MW_API int32_t schema_lpr_radar_detect_data_json(int32_t count, const lpr_radar_detect_entry *entries, char *dst,
                                                 int32_t dstSize);
/* The four attribute rules (`rules` holds four) with their switches, triggers
   and day texts. This one does not test its buffer: a NULL buffer or a size
   below 1 copies nothing and still returns 0; only a failed print gives -1. */
MW_API int32_t get_lpr_attr_event_json(const lpr_attr_event_entry *rules, const lpr_attr_schedule *schedule,
                                       char *dst, int32_t dstSize);
MW_API int32_t schema_lpr_attr_event_json(const lpr_attr_event_entry *rules, const lpr_attr_schedule *schedule,
                                          char *dst, int32_t dstSize);
MW_API int32_t set_lpr_attr_event_json(lpr_attr_event_entry *rules, lpr_attr_schedule *schedule, const char *body,
                                       int32_t bodySize, char *dst, int32_t dstSize);

/* ===== end lpr ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_LPR_H */
