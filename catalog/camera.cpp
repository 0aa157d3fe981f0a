#include "catalog.h"

namespace {

// A four-megapixel varifocal bullet on a car-park entrance: 50 Hz mains,
// automatic exposure, smart IR, WDR by schedule, and plate reading at night.
camera_setting_record sample_setting()
{
    camera_setting_record r{};
    r.blcRegion = 2;
    r.blcExclusive = 0;
    r.doorMode = 0;
    r.powerlineFreq = 50;
    r.dayToNight = 18;
    r.nightToDay = 42;
    r.d2nSensitivity = 5;
    r.n2dSensitivity = 6;
    r.mirrorCorridor = 0;
    r.imageRotation = 0;
    r.brightness = 52;
    r.contrast = 48;
    r.colorSaturation = 55;
    r.sharpness = 60;
    r.nfLevel = 3;
    r.dnr2Level = 4;
    r.smartIrMode = 1;
    r.irBlanceMode = 2;
    r.nearViewIrLevel = 35;
    r.farViewIrLevel = 80;
    r.middleViewIrLevel = 60;
    r.whiteLedLevel = 70;
    r.exposureMode = 0;
    r.exposureTime = 7;
    r.exposureGain = 30;
    r.whiteBalanceMode = 1;
    r.whiteBalanceRedGain = 128;
    r.whiteBalanceBlueGain = 121;
    r.defogMode = 1;
    r.antiFogIntensity = 40;
    r.digitalImageStabilisation = 0;
    r.dnSwitchRefocus = 1;
    r.hlcMode = 1;
    r.hlcLevel = 65;
    r.dayEnhancementMode = 2;
    r.nightEnhancementMode = 3;
    r.scheduleMode = 1;
    r.wdrLevel = 5;
    r.wdrAflevel = 3;
    r.sensorMode = 2;
    r.distortCorrect = 1;
    r.fovAdjust = 90;
    r.enblur = 1;
    r.deblur = 2;
    r.aspectRatio = 1;
    r.zoomLimit = 16;
    r.dayNightSensitivity = 4;
    r.ledMode = 2;
    r.focusMode = 1;
    r.smokedDomeCover = 0;
    r.iricrDayHour = 6;
    r.iricrDayMinute = 30;
    r.iricrNightHour = 19;
    r.iricrNightMinute = 45;
    r.irCutFilter = 1;
    r.iricrGpinStatus = 0;
    r.iricrGpinNumber = 1;
    r.pirDuration = 15;
    r.wdrMode = 2;
    r.wdrStartHour = 7;
    r.wdrStartMinute = 0;
    r.wdrStopHour = 18;
    r.wdrStopMinute = 30;
    r.pirSensitivity = 3;
    r.hasLprNightModeInEffect = 1;
    r.lprNightModeInEffect = 1;
    put(r.mediaUrl, "/live/main");
    r.mediaWidth = 2560;
    r.mediaHeight = 1440;
    r.lprNight = 1;
    r.inlprNight = 0;
    r.fishDisplayMode = 0;
    r.fishCorrectMode = 0;
    r.dayNightMode = 2;
    put(r.blcRegionArea, "480:270:1600:900");
    r.irSupplemen = 1;
    r.irisType = 1;
    r.irisMode = 0;
    for (int d = 1; d <= 5; ++d) { // working days
        put(r.whiteBalanceTaskday[d][0], "07:00-18:00,1");
        put(r.whiteBalanceTaskday[d][1], "18:00-23:59,3");
        put(r.exposureTaskday[d][0], "06:30-19:45,0");
        put(r.blcWdrHlcTaskday[d][0], "07:00-09:30,2");
        put(r.blcWdrHlcTaskday[d][1], "16:30-19:00,2");
    }
    put(r.whiteBalanceTaskday[0][0], "00:00-23:59,1");
    put(r.whiteBalanceTaskday[6][0], "00:00-23:59,1");
    put(r.dnScheduleTaskday[0], "06:30-19:45,day");
    put(r.dnScheduleTaskday[1], "19:45-23:59,night");
    put(r.dnScheduleTaskday[2], "00:00-06:30,night");
    return r;
}

// A dual-sensor traffic camera: flash synchronised on odd and even frames,
// shorter shutters by night for moving plates.
camera_sensor_image_record sample_sensor_image()
{
    camera_sensor_image_record r{};
    r.powerlineFreq = 50;
    r.digitalStabilisation = 0;
    r.trafficScene = 1;
    r.flashIntensity = 80;
    r.parityFlashing = 1;
    r.flashOffsetFirst = -120;
    r.flashOffsetSecond = 240;
    r.flashAeExpTimeFirst = 2000;
    r.flashAeExpTimeSecond = 1000;
    r.imageMode = 1;
    r.irisMode[0] = 1;
    r.irisMode[1] = 0;
    for (int i = 0; i < 2; ++i) {
        camera_sensor_image_entry &s = r.sensors[i];
        s.daynight = static_cast<uint8_t>(i == 0 ? 0 : 2);
        for (int m = 0; m < 3; ++m) {
            s.maxshutterDay[m] = 33.333;
            s.maxshutterNight[m] = 8.0 + m;
            s.limitGainlevelDay[m] = static_cast<uint8_t>(40 + m);
            s.limitGainlevelNight[m] = static_cast<uint8_t>(70 + m);
            s.strobelightDay[m] = 0;
            s.strobelightNight[m] = 1;
            s.targetBrightnessDay[m] = 50;
            s.targetBrightnessNight[m] = 45 - i;
            s.manualExposetimeDay[m] = 4.0;
            s.manualExposetimeNight[m] = 2.5;
            s.manualGainlevelDay[m] = 20;
            s.manualGainlevelNight[m] = 55;
            s.brightness[m] = 128;
            s.contrast[m] = static_cast<uint8_t>(120 + 10 * m);
            s.saturation[m] = 140;
        }
    }
    return r;
}

// Privacy masks of a dual-sensor camera facing a residential street: two
// windows and a doorway hidden on each view.
camera_mask_record sample_mask()
{
    camera_mask_record r{};
    r.maskEnable[0] = 1;
    r.maskEnable[1] = 1;
    r.maskCount = 3;
    r.maskNum = 8;
    r.maskMosaicNum = 4;
    r.maskMaxRatio = 30;
    put(r.maskColorList, "0,1,2,3");
    r.maskDifferentColor = 1;
    r.calibrationEnable = 0;
    const char *names[3] = {"Window, house 12", "Window, house 14", "Doorway, house 14"};
    for (int s = 0; s < 2; ++s) {
        for (int m = 0; m < 3; ++m) {
            camera_mask_entry &e = r.masks[s][m];
            e.maskType = static_cast<uint8_t>(m == 2 ? 1 : 0);
            e.maskX = static_cast<uint32_t>(320 + 560 * m + 40 * s);
            e.maskY = static_cast<uint32_t>(180 + 60 * m);
            e.maskWidth = 240;
            e.maskHeight = static_cast<uint32_t>(m == 2 ? 420 : 200);
            e.isexist = 1;
            e.maskShow = 1;
            e.maskRatio = 12 + 4 * m;
            put(e.maskName, names[m]);
        }
    }
    return r;
}

// Hourly snapshots of a loading bay, kept on the card and mailed to the
// depot office on working days.
camera_snapshot_settings_record sample_snapshot()
{
    camera_snapshot_settings_record r{};
    r.timingSnapshotEnable = 1;
    r.intervalValue = 60;
    r.intervalUnit = 1;
    r.saveIntoStorage = 1;
    r.storageFilenameType = 2;
    put(r.storageBaseFilename, "bay3_snapshot");
    r.uploadViaHttp = 1;
    r.targets[0].enable = 1;
    put(r.targets[0].url, "http://10.20.0.15:8080/snapshots/upload");
    put(r.targets[0].user, "bay3cam");
    put(r.targets[0].password, "Sn4p!upload");
    r.targets[1].enable = 0;
    put(r.targets[1].url, "ftp://10.20.0.16/incoming");
    put(r.targets[1].user, "ftpcam");
    put(r.targets[1].password, "ftp-pass-22");
    r.uploadViaFtp = 0;
    r.uploadViaSmtp = 1;
    for (int d = 1; d <= 5; ++d)
        put(r.schedule[d], "07:00-19:00");
    return r;
}

// Crop tracking over four loading areas, the first two around the clock.
camera_crop_roi_track_record sample_crop_roi_track()
{
    camera_crop_roi_track_record r{};
    for (int i = 1; i <= 5; ++i) {
        r.enable[i] = i <= 3 ? 1 : 0;
        r.zoom[i] = 2 * i;
    }
    for (int a = 0; a < 4; ++a)
        for (int k = 0; k < 7; ++k)
            put(r.areaSchedule[a][k], a < 2 ? "00:00-23:59" : (k == 0 || k == 6 ? "" : "06:00-20:00"));
    return r;
}

// Region-of-interest texts: two regions on the main stream, one on the sub
// stream and one on the fifth.
camera_roi_info_record sample_roi_info()
{
    camera_roi_info_record r{};
    r.enable = 1;
    put(r.roiInfo[0], "1:2:120:80:640:360");
    put(r.roiInfo[1], "1:1:900:400:1280:720");
    put(r.roiInfo[8], "1:2:60:40:320:180");
    put(r.roiInfo[32], "0:1:0:0:176:144");
    return r;
}

// A 12-megapixel fisheye over a shop floor: four presets on the tills, the
// entrance and the stock-room door, stored in the first free slots.
camera_fish_presets_record sample_fish_presets()
{
    camera_fish_presets_record r{};
    struct Preset {
        int slot;
        int32_t id;
        double pan;
        double tilt;
        const char *name;
    } presets[] = {
        {0, 1, 35.5, 62.25, "Till 1"},
        {1, 2, 118.0, 58.75, "Till 2"},
        {2, 5, 241.125, 40.5, "Entrance"},
        {4, 7, 302.0, 71.0, "Stock-room door"},
    };
    for (const Preset &p : presets) {
        ptz_preset_entry &e = r.entries[p.slot];
        e.firstCoordinate = p.pan;
        e.secondCoordinate = p.tilt;
        e.leadingNumber = 1;
        e.id = p.id;
        put(e.name, p.name);
    }
    return r;
}

// A PTZ dome's capability flags; the sample asks for the PTZ basics group.
camera_all_capability_record sample_all_capability()
{
    camera_all_capability_record r{};
    r.group = 102;
    r.ptzControl = 1;
    r.whiteLed = 0;
    r.manualTrack = 1;
    r.liveAutoTracking = 1;
    r.dehumidifying = 0;
    r.threeDPosition = 1;
    r.oneTouch = 1;
    r.autohome = 1;
    r.preset = 1;
    r.patrol = 1;
    r.pattern = 1;
    r.zcontrol = 1;
    r.zslider = 1;
    r.focus = 1;
    r.lensInitialization = 1;
    r.auxiliaryFocus = 1;
    r.autoirisAlwaysOpen = 0;
    r.autoirisClickable = 1;
    r.basic = 1;
    r.manualSpeed = 1;
    r.patrolRecorvery = 1;
    r.miniFocusDistance = 1;
    r.ptzLimits = 1;
    r.topAndBottomLimit = 1;
    r.initialPosition = 1;
    r.privacyMask = 1;
    r.scheduledTask = 1;
    r.tiltScan = 1;
    r.panoramaScan = 1;
    r.configClear = 1;
    r.clearInitialPosition = 1;
    r.rs485 = 1;
    r.status = 1;
    r.heater = 0;
    r.audio = 1;
    r.smartIrMode = 1;
    r.smartIrModeAuto = 1;
    r.smartIrModeViewLevel = 1;
    r.smartIrModeMiddleLevel = 1;
    r.smokedDomecover = 1;
    r.zoomLimit = 1;
    r.digitalImageStabilisation = 1;
    r.focusMode = 1;
    r.lensType = 2;
    r.dayNightSliderRange_1_100 = 1;
    r.dayNightSliderDefult_20_60 = 1;
    r.imageMask = 1;
    r.audioEvent = 1;
    r.alarmInputEvent = 1;
    r.alarmOutputEvent = 1;
    r.vca = 1;
    r.streamPreset = 1;
    return r;
}

camera_manual_white_led_settings_record sample_camera_manual_white_led_settings()
{
    camera_manual_white_led_settings_record w{};
    w.flashTime = 40;
    w.flashMode = 1;
    w.effectiveGroup = 2;
    return w;
}

camera_white_led_parameter_record sample_camera_white_led_parameter()
{
    return camera_white_led_parameter_record{1, 2, 0};
}

camera_lens_record sample_camera_lens()
{
    camera_lens_record l{};
    l.lensIrisType = 1;
    l.lensIrisMode = 2;
    l.lensZoomPos = 37;
    return l;
}

camera_while_led_record sample_camera_while_led()
{
    return camera_while_led_record{2, 3, 30, 19, 30, 6, 15, 1, 70, 0};
}

camera_ir_value_record sample_camera_ir_value()
{
    return camera_ir_value_record{412, 0, 35, 60, 85, 40, 55};
}

camera_setting_day_night_record sample_camera_setting_day_night()
{
    camera_setting_day_night_record p{};
    p.day = camera_day_night_profile{{0, 0}, 50, 1, 30, 40, 2, 0, 0, 1, 0, 0};
    p.night = camera_day_night_profile{{0, 0}, 60, 1, 8, 80, 4, 1, 1, 0, 1, 0};
    p.isSupportWhiteledGroup = 1;
    p.dayWhiteledGroup = 0;
    p.nightWhiteledGroup = 2;
    return p;
}

camera_day_night_schedule_record sample_camera_day_night_schedule()
{
    camera_day_night_schedule_record s{};
    put(s.schedule[0], "06:30-19:45");
    put(s.schedule[1], "19:45-23:59");
    put(s.schedule[2], "00:00-06:30");
    return s;
}

camera_ptz_record sample_camera_ptz()
{
    camera_ptz_record p{};
    p.ptzSpeed = 6;
    return p;
}

camera_white_led_status_record sample_camera_white_led_status()
{
    return camera_white_led_status_record{1};
}

camera_crop_roi_enable_record sample_camera_crop_roi_enable()
{
    return camera_crop_roi_enable_record{1};
}

camera_roi_settings_record sample_camera_roi_settings()
{
    camera_roi_settings_record c{};
    c.regions[0] = camera_crop_roi_entry{1, 0, 0, 0, 0};
    c.regions[1] = camera_crop_roi_entry{1, 12, 20, 0, 1};
    c.regions[2] = camera_crop_roi_entry{1, 55, 30, 0, 2};
    c.regions[3] = camera_crop_roi_entry{0, 0, 0, 0, 1};
    return c;
}

camera_model_general_record sample_camera_model_general()
{
    return camera_model_general_record{1, 1, 0, 1, 1, 1, 0, 1, 30, 1, 3, 1, 4, 1, 0, 0, 0, 1};
}

camera_fish_view_field_record sample_camera_fish_view_field()
{
    return camera_fish_view_field_record{180};
}

// The capability flags page shows the group its record selects (100 to 109):
// the selector is the page's argument.
struct AllCapabilityPage
    : ReadOnlyRecordPage<camera_all_capability_record, kept<camera_all_capability_record, sample_all_capability>,
                         get_camera_all_capability_json, schema_camera_all_capability_json> {
    static int32_t *group(void *state) { return &static_cast<camera_all_capability_record *>(state)->group; }
    // The groups the record's header names: 100 (PTZ control) to 109 (stream
    // preset); any other selects nothing.
    static constexpr int32_t kFirstGroup = 100, kLastGroup = 109;
    static constexpr PageOps ops{sizeof(camera_all_capability_record), initial, render, schema, nullptr, group,
                                 "group", kFirstGroup, kLastGroup};
};

const CatalogEntry entries[] = {
    MW_SETTABLE_ENTRY(camera_setting, "image settings, weekly image-mode task lists and day/night schedule",
                      (kept<camera_setting_record, sample_setting>)),
    MW_SETTABLE_ENTRY(camera_setting_day_night, "day and night exposure profiles",
                      (kept<camera_setting_day_night_record, sample_camera_setting_day_night>)),
    MW_SETTABLE_ENTRY(camera_day_night_schedule, "the five day/night schedule texts",
                      (kept<camera_day_night_schedule_record, sample_camera_day_night_schedule>)),
    MW_SETTABLE_ENTRY(camera_sensor_image, "traffic flash settings and per-sensor exposure by image mode",
                      (kept<camera_sensor_image_record, sample_sensor_image>)),
    MW_SETTABLE_ENTRY(camera_ptz, "PTZ speed seen from the image page",
                      (kept<camera_ptz_record, sample_camera_ptz>)),
    MW_SETTABLE_ENTRY(camera_mask, "privacy masks of both sensors",
                      (kept<camera_mask_record, sample_mask>)),
    MW_SETTABLE_ENTRY(camera_snapshot_settings, "timed snapshots: storage, uploads, notifications, schedule",
                      (kept<camera_snapshot_settings_record, sample_snapshot>)),
    MW_SETTABLE_ENTRY(camera_manual_white_led_settings, "white-light flash set by hand",
                      (kept<camera_manual_white_led_settings_record, sample_camera_manual_white_led_settings>)),
    MW_SETTABLE_ENTRY(camera_white_led_status, "white light on or off",
                      (kept<camera_white_led_status_record, sample_camera_white_led_status>)),
    MW_SETTABLE_ENTRY(camera_crop_roi_enable, "crop regions of interest switched on",
                      (kept<camera_crop_roi_enable_record, sample_camera_crop_roi_enable>)),
    MW_SETTABLE_ENTRY(camera_roi_settings, "the five crop regions of interest",
                      (kept<camera_roi_settings_record, sample_camera_roi_settings>)),
    MW_SETTABLE_ENTRY(camera_crop_roi_track, "crop-region tracking and the areas' weekly schedules",
                      (kept<camera_crop_roi_track_record, sample_crop_roi_track>)),
    MW_SETTABLE_ENTRY(camera_white_led_parameter, "white light on alarm, group number, manual mode",
                      (kept<camera_white_led_parameter_record, sample_camera_white_led_parameter>)),
    MW_SETTABLE_ENTRY(camera_roi_info, "region-of-interest texts per stream",
                      (kept<camera_roi_info_record, sample_roi_info>)),
    MW_SETTABLE_ENTRY(camera_lens, "iris type and mode, zoom position",
                      (kept<camera_lens_record, sample_camera_lens>)),
    MW_SETTABLE_ENTRY(camera_while_led, "white-light control: mode, sensitivity, timed window, brightness",
                      (kept<camera_while_led_record, sample_camera_while_led>)),
    MW_SETTABLE_ENTRY(camera_ir_value, "IR light sensor reading and illuminator strengths",
                      (kept<camera_ir_value_record, sample_camera_ir_value>)),
    MW_READ_ONLY_ENTRY(camera_model_general, "what the camera model supports",
                       (kept<camera_model_general_record, sample_camera_model_general>)),
    MW_READ_ONLY_ENTRY(camera_fish_presets, "the fisheye views' presets, one key per preset id",
                       (kept<camera_fish_presets_record, sample_fish_presets>)),
    MW_SETTABLE_ENTRY(camera_fish_view_field, "the fisheye's field of view",
                      (kept<camera_fish_view_field_record, sample_camera_fish_view_field>)),
    page_entry<AllCapabilityPage>("get_camera_all_capability_json",
                                  "one group of capability flags, selected by its code"),
};

} // namespace

const CatalogGroup catalog_camera = catalog_group("camera", entries);
