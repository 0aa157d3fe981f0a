/*
 * middleware_traffic.h - the traffic and parking pages (the ware_ functions).
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_TRAFFIC_H
#define MIDDLEWARE_TRAFFIC_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

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
MW_API int32_t ware_schema_lpr_parking_detection_json(const lpr_parking_detection_record *in,
                                                      const week_schedule_block *schedule, char *dst, int32_t dstSize);
MW_API int32_t ware_set_lpr_parking_detection_json(lpr_parking_detection_record *record, week_schedule_block *schedule,
                                                   const char *body, int32_t bodySize, char *dst, int32_t dstSize);
/* "areaType", "country/region", "areaList" (the `areaList` text as it stands,
   which must not be NULL), "nightModeEnable", "nightModeLevel". */
MW_API int32_t ware_get_parking_general_json(const parking_general_record *in, const char *areaList, char *dst,
                                             int32_t dstSize);
MW_API int32_t ware_schema_parking_general_json(const parking_general_record *in, const char *areaList, char *dst,
                                                int32_t dstSize);
MW_API int32_t ware_set_parking_general_json(parking_general_record *record, const char *areaList, const char *body,
                                             int32_t bodySize, char *dst, int32_t dstSize);
/* "enable", "permitVehicle", "residenceTime" (the reverse of the record's
   order), "detectionInfoList" (two regions, 0 and 1) and "scheduleList".
   Neither `in` nor `schedule` is tested for NULL. */
MW_API int32_t ware_get_parking_violation_json(const parking_violation_record *in,
                                               const week_schedule_block *schedule, char *dst, int32_t dstSize);
MW_API int32_t ware_schema_parking_violation_json(const parking_violation_record *in,
                                                  const week_schedule_block *schedule, char *dst, int32_t dstSize);
MW_API int32_t ware_set_parking_violation_json(parking_violation_record *record, week_schedule_block *schedule,
                                               const char *body, int32_t bodySize, char *dst, int32_t dstSize);
/* "enable", "weekday", "hour", "min", "sec", "timeRange", then "method" last. */
MW_API int32_t ware_get_auto_export_json(const auto_export_record *in, char *dst, int32_t dstSize);
MW_API int32_t ware_schema_auto_export_json(const auto_export_record *in, char *dst, int32_t dstSize);
MW_API int32_t ware_set_auto_export_json(auto_export_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);

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
MW_API int32_t ware_schema_vehicle_count_setting_json(const vehicle_count_setting_record *in,
                                                      const week_schedule_block *schedule, char *dst, int32_t dstSize);
MW_API int32_t ware_set_vehicle_count_setting_json(vehicle_count_setting_record *record, week_schedule_block *schedule,
                                                   const char *body, int32_t bodySize, char *dst, int32_t dstSize);
/* The violation-management document. Line ends are floats widened to double
   (0.1f prints as 0.10000000149011612). "normalPolygonList" is read from
   `polygons` ("polygonIndex" 0 to 3), which is not tested for NULL.
   "speedMonitoringListNew" holds "region1" to "region4", each with "index"
   counted from 0 (so one less than its key's number) and three rules. */
MW_API int32_t ware_get_violation_management_json(const violation_management_record *in,
                                                  const violation_polygon_record *polygons, char *dst,
                                                  int32_t dstSize);
MW_API int32_t ware_schema_violation_management_json(const violation_management_record *in,
                                                     const violation_polygon_record *polygons, char *dst,
                                                     int32_t dstSize);
MW_API int32_t ware_set_violation_management_json(violation_management_record *record,
                                                  violation_polygon_record *polygons, const char *body,
                                                  int32_t bodySize, char *dst, int32_t dstSize);
/* "trafficLightAreaList": the two groups, each with "areaList" of three
   areas numbered 1 to 3. */
MW_API int32_t ware_get_traffic_light_area_json(const traffic_light_area_record *in, char *dst,
                                                int32_t dstSize);
MW_API int32_t ware_schema_traffic_light_area_json(const traffic_light_area_record *in, char *dst, int32_t dstSize);
MW_API int32_t ware_set_traffic_light_area_json(traffic_light_area_record *record, const char *body, int32_t bodySize,
                                                char *dst, int32_t dstSize);

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
MW_API int32_t ware_schema_lpr_post_json(const lpr_post_record *in, char *dst, int32_t dstSize);
MW_API int32_t ware_set_lpr_post_json(lpr_post_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
/* "mode", "eventType", "data". */
MW_API int32_t ware_get_lpr_post_template_json(const lpr_post_template_record *in, char *dst, int32_t dstSize);
MW_API int32_t ware_schema_lpr_post_template_json(const lpr_post_template_record *in, char *dst, int32_t dstSize);
MW_API int32_t ware_set_lpr_post_template_json(lpr_post_template_record *record, const char *body, int32_t bodySize,
                                               char *dst, int32_t dstSize);

/* ===== end traffic and parking ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_TRAFFIC_H */
