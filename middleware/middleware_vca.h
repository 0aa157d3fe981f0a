/*
 * middleware_vca.h - the video-analytics pages.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_VCA_H
#define MIDDLEWARE_VCA_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

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
MW_API int32_t schema_vca_install_mode_json(const vca_install_mode_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_install_mode_json(vca_install_mode_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* Sensitivity, tracking, scene and size filter, then "detectionInfoList"
   (all 4 regions, each with its 4 preset polygons) and "scheduleList". */
MW_API int32_t get_vca_region_entrance_json(const vca_region_entrance_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_vca_region_entrance_json(const vca_region_entrance_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_region_entrance_json(vca_region_entrance_record *record, const char *body, int32_t bodySize,
                                            char *dst, int32_t dstSize);
MW_API int32_t get_vca_region_exit_json(const vca_region_exit_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_vca_region_exit_json(const vca_region_exit_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_region_exit_json(vca_region_exit_record *record, const char *body, int32_t bodySize, char *dst,
                                        int32_t dstSize);
/* As region entrance, with "ignoreShortLived" after "scene". */
MW_API int32_t get_vca_advanced_motion_json(const vca_advanced_motion_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_vca_advanced_motion_json(const vca_advanced_motion_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_advanced_motion_json(vca_advanced_motion_record *record, const char *body, int32_t bodySize,
                                            char *dst, int32_t dstSize);
/* As region entrance without a sensitivity key; each region also carries its
   "minLoiteringTime". */
MW_API int32_t get_vca_loitering_json(const vca_loitering_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_vca_loitering_json(const vca_loitering_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_loitering_json(vca_loitering_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
/* "tamperEnable", "tamperSens", "scheduleList". */
MW_API int32_t get_vca_tamper_json(const vca_tamper_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_vca_tamper_json(const vca_tamper_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_tamper_json(vca_tamper_record *record, const char *body, int32_t bodySize, char *dst,
                                   int32_t dstSize);
/* The four values, then the schedule as seven flat keys "humanSchedule_0" ..
   "humanSchedule_6" (no "scheduleList"). */
MW_API int32_t get_vca_human_detection_json(const vca_human_detection_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_vca_human_detection_json(const vca_human_detection_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_human_detection_json(vca_human_detection_record *record, const char *body, int32_t bodySize,
                                            char *dst, int32_t dstSize);

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
MW_API int32_t schema_vca_configuration_json(const vca_configuration_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_configuration_json(vca_configuration_record *record, const char *body, int32_t bodySize,
                                          char *dst, int32_t dstSize);
/* The rule states and counters, then "lineCrossAlarmList" (4 lines). */
MW_API int32_t get_vca_alarm_status_json(const vca_alarm_status_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_vca_alarm_status_json(const vca_alarm_status_record *in, char *dst, int32_t dstSize);
/* The alarm states, then "inputAlarmList" (4) and "outputAlarmList" (2); the
   exception switches and the tamper pair are not in this document. */
MW_API int32_t get_vca_all_alarm_status_json(const vca_all_alarm_status_record *in, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_vca_all_alarm_status_json(const vca_all_alarm_status_record *in, char *dst, int32_t dstSize);
/* The exception alarms from the same record, switch then state; the IP
   conflict state is "ipconflictAlarmStatus" here, "ipConflictAlarmStatus" in
   the document above. */
MW_API int32_t get_vca_exception_alarm_status_json(const vca_all_alarm_status_record *in, char *dst,
                                                   int32_t dstSize);
MW_API int32_t schema_vca_exception_alarm_status_json(const vca_all_alarm_status_record *in, char *dst,
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
MW_API int32_t schema_vca_counting_json(const vca_counting_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_counting_json(vca_counting_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* Settings, detection area, "shieldRegionList" (4), "captureSettingsList" (3)
   and "scheduleList". */
MW_API int32_t get_vca_face_detection_json(const vca_face_detection_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_vca_face_detection_json(const vca_face_detection_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_face_detection_json(vca_face_detection_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);
/* All four lines in "detectionInfoList"; end points are written as the text
   "x1;y1;x2;y2", cut at 31 characters. */
MW_API int32_t get_vca_all_linecrossing_json(const vca_line_crossing_record *in, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_vca_all_linecrossing_json(const vca_line_crossing_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_all_linecrossing_json(vca_line_crossing_record *record, const char *body, int32_t bodySize,
                                             char *dst, int32_t dstSize);
/* The region-rule shape with "leftEnable" and "removeEnable" per region. */
MW_API int32_t get_vca_left_remove_json(const vca_left_remove_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_vca_left_remove_json(const vca_left_remove_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_left_remove_json(vca_left_remove_record *record, const char *body, int32_t bodySize, char *dst,
                                        int32_t dstSize);

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
   track i; the first personNum tracks are valid. */
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
   the seconds person i has spent in region r. The first peopleCount entries
   are valid. `class` is the person's class code. */
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
MW_API int32_t schema_vca_heat_map_json(const vca_heat_map_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_heat_map_json(vca_heat_map_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* "enable", the time, "timeRange", and "method" last. */
MW_API int32_t get_vca_auto_export_heat_json(const vca_auto_export_heat_record *in, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_vca_auto_export_heat_json(const vca_auto_export_heat_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_auto_export_heat_json(vca_auto_export_heat_record *record, const char *body, int32_t bodySize,
                                             char *dst, int32_t dstSize);
/* Sensitivity, scene, size filter, "detectionInfoList" (4 regions with their
   stay limits and preset polygons) and "scheduleList". */
MW_API int32_t get_vca_region_people_json(const vca_region_people_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_vca_region_people_json(const vca_region_people_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_vca_region_people_json(vca_region_people_record *record, const char *body, int32_t bodySize,
                                          char *dst, int32_t dstSize);
/* The export time as one text "hh:mm:ss" ("%02d" each, signed). */
MW_API int32_t get_vca_regional_auto_export_json(const vca_regional_auto_export_record *in, char *dst,
                                                 int32_t dstSize);
MW_API int32_t schema_vca_regional_auto_export_json(const vca_regional_auto_export_record *in, char *dst,
                                                    int32_t dstSize);
MW_API int32_t set_vca_regional_auto_export_json(vca_regional_auto_export_record *record, const char *body,
                                                 int32_t bodySize, char *dst, int32_t dstSize);
/* "personNum" as stored and "personList" with the first personNum tracks,
   at most the 256 the arrays hold (none when it is 0 or negative). */
MW_API int32_t get_vca_person_point_json(const vca_person_point_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_vca_person_point_json(const vca_person_point_record *in, char *dst, int32_t dstSize);
/* "peopleList": the counters of the 4 lines. */
MW_API int32_t get_vca_people_counting_data_json(const vca_people_counting_data_record *in, char *dst,
                                                 int32_t dstSize);
MW_API int32_t schema_vca_people_counting_data_json(const vca_people_counting_data_record *in, char *dst,
                                                    int32_t dstSize);
/* Region states, "peopleNumList" (4), then "peopleDataInfo" with the first
   peopleCount people, at most the 50 the arrays hold (none when 0 or
   negative), each with its 4 stay times.
   "exsitStatus" keeps its historic spelling. */
MW_API int32_t get_vca_regional_people_data_json(const vca_regional_people_data_record *in, char *dst,
                                                 int32_t dstSize);
MW_API int32_t schema_vca_regional_people_data_json(const vca_regional_people_data_record *in, char *dst,
                                                    int32_t dstSize);

/* ===== end vca ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_VCA_H */
