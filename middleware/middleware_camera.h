/*
 * middleware_camera.h - the camera image pages.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_CAMERA_H
#define MIDDLEWARE_CAMERA_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

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
MW_API int32_t schema_camera_setting_json(const camera_setting_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_setting_json(camera_setting_record *record, const char *body, int32_t bodySize, char *dst,
                                       int32_t dstSize);
/* The day and night profiles; the IR-cut intervals are reported one-based
   (stored value + 1, so 255 reports 256). */
MW_API int32_t get_camera_setting_day_night_json(const camera_setting_day_night_record *in, char *dst,
                                                 int32_t dstSize);
MW_API int32_t schema_camera_setting_day_night_json(const camera_setting_day_night_record *in, char *dst,
                                                    int32_t dstSize);
MW_API int32_t set_camera_setting_day_night_json(camera_setting_day_night_record *record, const char *body,
                                                 int32_t bodySize, char *dst, int32_t dstSize);
/* "dayNightSchedule": five {"index", "schedule"}, empty texts included. */
MW_API int32_t get_camera_day_night_schedule_json(const camera_day_night_schedule_record *in, char *dst,
                                                  int32_t dstSize);
MW_API int32_t schema_camera_day_night_schedule_json(const camera_day_night_schedule_record *in, char *dst,
                                                     int32_t dstSize);
MW_API int32_t set_camera_day_night_schedule_json(camera_day_night_schedule_record *record, const char *body,
                                                  int32_t bodySize, char *dst, int32_t dstSize);
/* Flash settings and "sensorList": two sensors, each with the mode objects
   "normal", "odd" and "even". Shutter and exposure times are texts with two
   decimals; brightness, contrast and saturation are percentages rounded half
   up. */
MW_API int32_t get_camera_sensor_image_json(const camera_sensor_image_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_camera_sensor_image_json(const camera_sensor_image_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_sensor_image_json(camera_sensor_image_record *record, const char *body, int32_t bodySize,
                                            char *dst, int32_t dstSize);

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
MW_API int32_t schema_camera_ptz_json(const camera_ptz_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_ptz_json(camera_ptz_record *record, const char *body, int32_t bodySize, char *dst,
                                   int32_t dstSize);
/* The mask settings and "sensorList": two sensors, each with its first
   maskCount masks as "maskList" (index from 0). A maskCount below 1 lists no
   mask; one above 24 would run past the slots and is listed as 24. */
MW_API int32_t get_camera_mask_json(const camera_mask_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_camera_mask_json(const camera_mask_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_mask_json(camera_mask_record *record, const char *body, int32_t bodySize, char *dst,
                                    int32_t dstSize);
/* Snapshot timing and storage, "uploadViaFtp", "uploadViaSmtp",
   "uploadViaHttp" in that order, "notifyList" (3) and "scheduleList" (7). */
MW_API int32_t get_camera_snapshot_settings_json(const camera_snapshot_settings_record *in, char *dst,
                                                 int32_t dstSize);
MW_API int32_t schema_camera_snapshot_settings_json(const camera_snapshot_settings_record *in, char *dst,
                                                    int32_t dstSize);
MW_API int32_t set_camera_snapshot_settings_json(camera_snapshot_settings_record *record, const char *body,
                                                 int32_t bodySize, char *dst, int32_t dstSize);
/* "effectiveGroup", "flashMode", "flashTime". */
MW_API int32_t get_camera_manual_white_led_settings_json(const camera_manual_white_led_settings_record *in,
                                                         char *dst, int32_t dstSize);
MW_API int32_t schema_camera_manual_white_led_settings_json(const camera_manual_white_led_settings_record *in,
                                                            char *dst, int32_t dstSize);
MW_API int32_t set_camera_manual_white_led_settings_json(camera_manual_white_led_settings_record *record,
                                                         const char *body, int32_t bodySize, char *dst,
                                                         int32_t dstSize);
/* {"whiteLedStatus"} */
MW_API int32_t get_camera_white_led_status_json(const camera_white_led_status_record *in, char *dst,
                                                int32_t dstSize);
MW_API int32_t schema_camera_white_led_status_json(const camera_white_led_status_record *in, char *dst,
                                                   int32_t dstSize);
MW_API int32_t set_camera_white_led_status_json(camera_white_led_status_record *record, const char *body,
                                                int32_t bodySize, char *dst, int32_t dstSize);
/* {"cropRoiEnable"} */
MW_API int32_t get_camera_crop_roi_enable_json(const camera_crop_roi_enable_record *in, char *dst,
                                               int32_t dstSize);
MW_API int32_t schema_camera_crop_roi_enable_json(const camera_crop_roi_enable_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_crop_roi_enable_json(camera_crop_roi_enable_record *record, const char *body,
                                               int32_t bodySize, char *dst, int32_t dstSize);
/* "cropRoiExist_%d", "cropRoiLeft_%d", "cropRoiTop_%d", "cropRoiType_%d" for
   regions 1..5, named by the region's slot number. */
MW_API int32_t get_camera_roi_settings_json(const camera_roi_settings_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_camera_roi_settings_json(const camera_roi_settings_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_roi_settings_json(camera_roi_settings_record *record, const char *body, int32_t bodySize,
                                            char *dst, int32_t dstSize);
/* "enable_%d" and "zoom_%d" for regions 1..5, then "area_%d_CommSche_%d" for
   areas 1..4 (numbered from 1) and days 0..6 (numbered from 0). */
MW_API int32_t get_camera_crop_roi_track_json(const camera_crop_roi_track_record *in, char *dst,
                                              int32_t dstSize);
MW_API int32_t schema_camera_crop_roi_track_json(const camera_crop_roi_track_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_crop_roi_track_json(camera_crop_roi_track_record *record, const char *body, int32_t bodySize,
                                              char *dst, int32_t dstSize);
/* "alarm", "number", "manual". */
MW_API int32_t get_camera_white_led_parameter_json(const camera_white_led_parameter_record *in, char *dst,
                                                   int32_t dstSize);
MW_API int32_t schema_camera_white_led_parameter_json(const camera_white_led_parameter_record *in, char *dst,
                                                      int32_t dstSize);
MW_API int32_t set_camera_white_led_parameter_json(camera_white_led_parameter_record *record, const char *body,
                                                   int32_t bodySize, char *dst, int32_t dstSize);
/* "enable" and the lists "mainList", "subList", "thirdList", "fourthList"
   (8 texts each) and "fifthList" (7), each indexed from 0 within its list. */
MW_API int32_t get_camera_roi_info_json(const camera_roi_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_camera_roi_info_json(const camera_roi_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_roi_info_json(camera_roi_info_record *record, const char *body, int32_t bodySize, char *dst,
                                        int32_t dstSize);
/* "lensIrisType", "lensIrisMode", "lensZoomPos". */
MW_API int32_t get_camera_lens_json(const camera_lens_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_camera_lens_json(const camera_lens_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_lens_json(camera_lens_record *record, const char *body, int32_t bodySize, char *dst,
                                    int32_t dstSize);
/* The white-light control settings (the exported name keeps its spelling). */
MW_API int32_t get_camera_while_led_json(const camera_while_led_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_camera_while_led_json(const camera_while_led_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_while_led_json(camera_while_led_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* The IR sensor value and strengths. */
MW_API int32_t get_camera_ir_value_json(const camera_ir_value_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_camera_ir_value_json(const camera_ir_value_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_ir_value_json(camera_ir_value_record *record, const char *body, int32_t bodySize, char *dst,
                                        int32_t dstSize);

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
MW_API int32_t schema_camera_model_general_json(const camera_model_general_record *in, char *dst, int32_t dstSize);
/* One root key "preset_<id>" per used slot, in slot order, its value
   "leadingNumber:firstCoordinate:secondCoordinate:name" (the coordinates with
   six decimals) cut at 127 characters. Two slots with one id give two keys of
   that name. A name is read no further than its 68 bytes. */
MW_API int32_t get_camera_fish_presets_json(const camera_fish_presets_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_camera_fish_presets_json(const camera_fish_presets_record *in, char *dst, int32_t dstSize);
/* {"fisheyeViewField"} */
MW_API int32_t get_camera_fish_view_field_json(const camera_fish_view_field_record *in, char *dst,
                                               int32_t dstSize);
MW_API int32_t schema_camera_fish_view_field_json(const camera_fish_view_field_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_camera_fish_view_field_json(camera_fish_view_field_record *record, const char *body,
                                               int32_t bodySize, char *dst, int32_t dstSize);
/* The keys of the group named by `group`; {} for any other code. */
MW_API int32_t get_camera_all_capability_json(const camera_all_capability_record *in, char *dst,
                                              int32_t dstSize);
MW_API int32_t schema_camera_all_capability_json(const camera_all_capability_record *in, char *dst, int32_t dstSize);

/* ---- end model flags, capability groups, fisheye presets ---- */

/* ===== end camera image ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_CAMERA_H */
