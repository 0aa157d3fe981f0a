/*
 * middleware_ptz.h - the pan/tilt/zoom pages.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_PTZ_H
#define MIDDLEWARE_PTZ_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

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

/* Schemas of every PTZ page, set functions of the configuration pages (see
   "set requests and schemas" in middleware_core.h). */
MW_API int32_t schema_ptz_panel_status_json(const ptz_panel_status_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_status_json(const ptz_status_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_presets_json(const ptz_presets_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_others_json(const ptz_others_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_run_status_json(const ptz_run_status_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_auto_home_json(const ptz_auto_home_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_track_point_json(const ptz_track_point_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_zoom_pos_json(const ptz_zoom_pos_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_rs485_json(const ptz_rs485_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_wiper_json(const ptz_wiper_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_basic_json(const ptz_basic_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_limit_json(const ptz_limit_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_scheduled_tasks_json(const ptz_scheduled_tasks_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_control_json(const ptz_control_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_ptz_auto_tracking_json(const ptz_auto_tracking_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_ptz_others_json(ptz_others_record *record, const char *body, int32_t bodySize, char *dst,
                                   int32_t dstSize);
MW_API int32_t set_ptz_auto_home_json(ptz_auto_home_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
MW_API int32_t set_ptz_rs485_json(ptz_rs485_record *record, const char *body, int32_t bodySize, char *dst,
                                  int32_t dstSize);
MW_API int32_t set_ptz_wiper_json(ptz_wiper_record *record, const char *body, int32_t bodySize, char *dst,
                                  int32_t dstSize);
MW_API int32_t set_ptz_basic_json(ptz_basic_record *record, const char *body, int32_t bodySize, char *dst,
                                  int32_t dstSize);
MW_API int32_t set_ptz_limit_json(ptz_limit_record *record, const char *body, int32_t bodySize, char *dst,
                                  int32_t dstSize);
MW_API int32_t set_ptz_scheduled_tasks_json(ptz_scheduled_tasks_record *record, const char *body, int32_t bodySize, char *dst,
                                            int32_t dstSize);
MW_API int32_t set_ptz_auto_tracking_json(ptz_auto_tracking_record *record, const char *body, int32_t bodySize, char *dst,
                                          int32_t dstSize);

/* ===== end ptz ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_PTZ_H */
