/*
 * camera.cpp - the camera image pages: image settings, day/night, sensors,
 * masks, regions of interest, snapshots, lights, lens, model flags,
 * capability groups and fisheye presets.
 */
#include "internal.h"

#include <cstdio>
#include <cstring>
#include <type_traits>

namespace {

/* ---- shapes shared by the image documents ---- */

/* Ten task slots joined into one text: each non-empty slot is printed as
   "slot;" into a 32-byte scratch buffer, so a slot keeps at most 31
   characters and one of 31 or more loses its ";". The cut is what the web
   pages parse, so it stays. A slot is read no further than its 256 bytes. */
struct TaskText {
    char text[1024];
};

TaskText joined_slots(const char (&slots)[10][256])
{
    TaskText joined;
    memset(joined.text, 0, sizeof joined.text);
    for (const char(&slot)[256] : slots) {
        char scratch[32];
        memset(scratch, 0, sizeof scratch);
        if (slot[0] == '\0')
            continue;
        if (snprintf(scratch, sizeof scratch, "%.*s;", static_cast<int>(sizeof slot), slot) < 0)
            continue;
        strcat(joined.text, scratch);
    }
    return joined;
}

/* A weekly task list: seven {indexKey: day, "taskday": the day's slots}.
   The joined text is made from the slots, so it is read-only. */
template <typename A, typename Days>
void task_list(A &a, const char *listKey, const char *indexKey, Days &days)
{
    a.list(mw::Name::fixed(listKey), indexKey, [&](auto &l) {
        for (int32_t d = 0; d < 7; ++d)
            l.item(d, [&](auto &day) { day.derived("taskday", joined_slots(days[d]).text); });
    });
}

/* A shutter or exposure time as the pages show it: two decimals, in a
   32-byte text. */
mw::Text<32> two_decimals(double value)
{
    return mw::Text<32>("%0.2f", value);
}

/* A raw 0..255 level as a percentage, rounded half up. */
int32_t percent(uint8_t level)
{
    return static_cast<int32_t>(level * 100 / 255.0 + 0.5);
}

/* The snapshot interval is a 4-byte member of a byte-packed record, which no
   reference may bind: it is read through a copy and, while a request is
   applied, written back. */
template <typename A, typename R>
void packed_interval(A &a, R &r)
{
    uint32_t value = r.intervalValue;
    a("intervalValue", value);
    if (a.writes())
        r.intervalValue = value;
}

/* The image modes of a sensor, in the order of the per-mode arrays. */
constexpr const char *kImageModeNames[3] = {"normal", "odd", "even"};

} // namespace

/* ---- image settings, day/night, sensors ---- */

MW_SETTABLE_PAGE(camera_setting, [](auto &a, auto &r) {
    a("powerlineFreq", r.powerlineFreq);
    a("brightness", r.brightness);
    a("colorSaturation", r.colorSaturation);
    a("sharpness", r.sharpness);
    a("contrast", r.contrast);
    a("whiteBalanceMode", r.whiteBalanceMode);
    a("whiteBalanceRedGain", r.whiteBalanceRedGain);
    a("whiteBalanceBlueGain", r.whiteBalanceBlueGain);
    a("doorMode", r.doorMode);
    a("digitalImageStabilisation", r.digitalImageStabilisation);
    a("dayToNight", r.dayToNight);
    a("nightToDay", r.nightToDay);
    a("dayNightSensitivity", r.dayNightSensitivity);
    a("d2nSensitivity", r.d2nSensitivity);
    a("n2dSensitivity", r.n2dSensitivity);
    a("sensorMode", r.sensorMode);
    a("distortCorrect", r.distortCorrect);
    a("fovAdjust", r.fovAdjust);
    a("irBlanceMode", r.irBlanceMode);
    a("enblur", r.enblur);
    a("deblur", r.deblur);
    a("defogMode", r.defogMode);
    a("antiFogIntensity", r.antiFogIntensity);
    a("exposureMode", r.exposureMode);
    a("exposureTime", r.exposureTime);
    a("exposureGain", r.exposureGain);
    a("ledMode", r.ledMode);
    a("nfLevel", r.nfLevel);
    a("dnr2Level", r.dnr2Level);
    a("focusMode", r.focusMode);
    a("aspectRatio", r.aspectRatio);
    a("zoomLimit", r.zoomLimit);
    a("smartIrMode", r.smartIrMode);
    a("nearViewIrLevel", r.nearViewIrLevel);
    a("middleViewIrLevel", r.middleViewIrLevel);
    a("farViewIrLevel", r.farViewIrLevel);
    a("dnSwitchRefocus", r.dnSwitchRefocus);
    a("smokedDomeCover", r.smokedDomeCover);
    a("whiteLedLevel", r.whiteLedLevel);
    a("mirrorCorridor", r.mirrorCorridor);
    a("imageRotation", r.imageRotation);
    a("irCutFilter", r.irCutFilter);
    a("iricrDayHour", r.iricrDayHour);
    a("iricrDayMinute", r.iricrDayMinute);
    a("iricrNightHour", r.iricrNightHour);
    a("iricrNightMinute", r.iricrNightMinute);
    a("iricrGpinStatus", r.iricrGpinStatus);
    a("iricrGpinNumber", r.iricrGpinNumber);
    a("pirDuration", r.pirDuration);
    a("pirSensitivity", r.pirSensitivity);
    a("scheduleMode", r.scheduleMode);
    a("blcRegion", r.blcRegion);
    a("blcExclusive", r.blcExclusive);
    a("blcRegionArea", r.blcRegionArea);
    a("wdrMode", r.wdrMode);
    a("wdrStartHour", r.wdrStartHour);
    a("wdrStartMinute", r.wdrStartMinute);
    a("wdrStopHour", r.wdrStopHour);
    a("wdrStopMinute", r.wdrStopMinute);
    a("wdrLevel", r.wdrLevel);
    a("wdrAflevel", r.wdrAflevel);
    a("hlcMode", r.hlcMode);
    a("hlcLevel", r.hlcLevel);
    a("dayEnhancementMode", r.dayEnhancementMode);
    a("nightEnhancementMode", r.nightEnhancementMode);
    a.when(r.hasLprNightModeInEffect != 0, [&](auto &o) { o("lprNightModeInEffect", r.lprNightModeInEffect); });
    a("mediaUrl", r.mediaUrl);
    a("mediaWidth", r.mediaWidth);
    a("mediaHeight", r.mediaHeight);
    a("lprNight", r.lprNight);
    a("inlprNight", r.inlprNight);
    a("fishDisplayMode", r.fishDisplayMode);
    a("fishCorrectMode", r.fishCorrectMode);
    a("dayNightMode", r.dayNightMode);
    a("irSupplemen", r.irSupplemen);
    a("irisType", r.irisType);
    a("irisMode", r.irisMode);
    task_list(a, "whiteBalanceTaskdayList", "whiteBalanceIndex", r.whiteBalanceTaskday);
    task_list(a, "exposureTaskdayList", "exposureIndex", r.exposureTaskday);
    task_list(a, "blcWdrHlcTaskdayList", "blcWdrHlcIndex", r.blcWdrHlcTaskday);
    a.derived("dnScheduleTaskday", joined_slots(r.dnScheduleTaskday).text);
    
})

MW_SETTABLE_PAGE(camera_setting_day_night, [](auto &a, auto &r) {
    // The record counts IR-cut intervals from 0, the pages from 1.
    auto &day = r.day;
    auto &night = r.night;
    a("dayExposureLevel", day.exposureLevel);
    a("dayMinShutter", day.minShutter);
    a("dayMaxShutter", day.maxShutter);
    a("dayLimitGain", day.limitGain);
    a.derived("dayIrCutInterval", int32_t{day.irCutInterval} + 1);
    a("dayIrCutStatus", day.irCutStatus);
    a("dayIrLedStatus", day.irLedStatus);
    a("dayWhiteLedStatus", day.whiteLedStatus);
    a("dayColorMode", day.colorMode);
    a("nightExposureLevel", night.exposureLevel);
    a("nightMinShutter", night.minShutter);
    a("nightMaxShutter", night.maxShutter);
    a("nightLimitGain", night.limitGain);
    a.derived("nightIrCutInterval", int32_t{night.irCutInterval} + 1);
    a("nightIrCutStatus", night.irCutStatus);
    a("nightIrLedStatus", night.irLedStatus);
    a("nightWhiteLedStatus", night.whiteLedStatus);
    a("nightColorMode", night.colorMode);
    a("isSupportWhiteledGroup", r.isSupportWhiteledGroup);
    a("dayWhiteledGroup", r.dayWhiteledGroup);
    a("nightWhiteledGroup", r.nightWhiteledGroup);
    
})

MW_SETTABLE_PAGE(camera_day_night_schedule, [](auto &a, auto &r) {
    a.list("dayNightSchedule", "index", [&](auto &l) {
        for (int32_t i = 0; i < 5; ++i)
            l.item(i, [&](auto &entry) { entry("schedule", r.schedule[i]); });
    });
    
})

MW_SETTABLE_PAGE(camera_sensor_image, [](auto &a, auto &r) {
    a("powerlineFreq", r.powerlineFreq);
    a("imageMode", r.imageMode);
    a("trafficScene", r.trafficScene);
    a("digitalStabilisation", r.digitalStabilisation);
    a("flashIntensity", r.flashIntensity);
    a("parityFlashing", r.parityFlashing);
    a("flashOffsetFirst", r.flashOffsetFirst);
    a("flashOffsetSecond", r.flashOffsetSecond);
    a("flashAeExpTimeFirst", r.flashAeExpTimeFirst);
    a("flashAeExpTimeSecond", r.flashAeExpTimeSecond);
    a.list("sensorList", "sensorIndex", [&](auto &l) {
        for (int32_t i = 0; i < 2; ++i) {
            auto &s = r.sensors[i];
            l.item(i, [&](auto &sensor) {
                sensor("irisMode", r.irisMode[i]);
                sensor("daynight", s.daynight);
                sensor("strobelightDay", s.strobelightDay[0]);
                sensor("strobelightNight", s.strobelightNight[0]);
                // Shutter times are shown with two decimals and levels as
                // percentages: both are made from the stored values.
                for (int32_t m = 0; m < 3; ++m) {
                    sensor.object(mw::Name::fixed(kImageModeNames[m]), [&](auto &mode) {
                        mode.derived("maxshutterDay", two_decimals(s.maxshutterDay[m]));
                        mode.derived("maxshutterNight", two_decimals(s.maxshutterNight[m]));
                        mode("limitGainlevelDay", s.limitGainlevelDay[m]);
                        mode("limitGainlevelNight", s.limitGainlevelNight[m]);
                        mode("targetBrightnessDay", s.targetBrightnessDay[m]);
                        mode("targetBrightnessNight", s.targetBrightnessNight[m]);
                        mode.derived("manualExposetimeDay", two_decimals(s.manualExposetimeDay[m]));
                        mode.derived("manualExposetimeNight", two_decimals(s.manualExposetimeNight[m]));
                        mode("manualGainlevelDay", s.manualGainlevelDay[m]);
                        mode("manualGainlevelNight", s.manualGainlevelNight[m]);
                        mode.derived("brightness", percent(s.brightness[m]));
                        mode.derived("contrast", percent(s.contrast[m]));
                        mode.derived("saturation", percent(s.saturation[m]));
                    });
                }
            });
        }
    });
    
})

/* ---- masks, regions of interest, snapshots, lights, lens ---- */

MW_SETTABLE_PAGE(camera_ptz, [](auto &a, auto &r) {
    a("ptzSpeed", r.ptzSpeed);
})

MW_SETTABLE_PAGE(camera_mask, [](auto &a, auto &r) {
    a("calibrationEnable", r.calibrationEnable);
    a("maskNum", r.maskNum);
    a("maskMosaicNum", r.maskMosaicNum);
    a("maskMaxRatio", r.maskMaxRatio);
    a("maskColorList", r.maskColorList);
    a("maskDifferentColor", r.maskDifferentColor);
    // Both sensors list the same number of masks; the list stops at the 24
    // slots whatever the count says.
    const int32_t slots = static_cast<int32_t>(sizeof r.masks[0] / sizeof r.masks[0][0]);
    const int32_t count = r.maskCount < slots ? r.maskCount : slots;
    a.list("sensorList", "sensorIndex", [&](auto &sensors) {
        for (int32_t s = 0; s < 2; ++s) {
            sensors.item(s, [&](auto &sensor) {
                sensor("maskEnable", r.maskEnable[s]);
                sensor.list("maskList", "index", [&](auto &masks) {
                    for (int32_t m = 0; m < count; ++m) {
                        auto &e = r.masks[s][m];
                        masks.item(m, [&](auto &mask) {
                            mask("maskX", e.maskX);
                            mask("maskY", e.maskY);
                            mask("maskWidth", e.maskWidth);
                            mask("maskHeight", e.maskHeight);
                            mask("maskType", e.maskType);
                            mask("maskShow", e.maskShow);
                            mask("maskRatio", e.maskRatio);
                            mask("isexist", e.isexist);
                            mask("maskName", e.maskName);
                        });
                    }
                });
            });
        }
    });
    
})

MW_SETTABLE_PAGE(camera_snapshot_settings, [](auto &a, auto &r) {
    a("timingSnapshotEnable", r.timingSnapshotEnable);
    packed_interval(a, r);
    a("intervalUnit", r.intervalUnit);
    a("saveIntoStorage", r.saveIntoStorage);
    a("storageFilenameType", r.storageFilenameType);
    a("storageBaseFilename", r.storageBaseFilename);
    a("uploadViaFtp", r.uploadViaFtp);
    a("uploadViaSmtp", r.uploadViaSmtp);
    a("uploadViaHttp", r.uploadViaHttp); // last, though stored first
    a.list("notifyList", "index", [&](auto &l) {
        for (int32_t t = 0; t < 3; ++t) {
            auto &target = r.targets[t];
            l.item(t, [&](auto &entry) {
                entry("enable", target.enable);
                entry("url", target.url);
                entry("user", target.user);
                entry("password", target.password);
            });
        }
    });
    mw::schedule_list(a, r.schedule);
    
})

MW_SETTABLE_PAGE(camera_manual_white_led_settings, [](auto &a, auto &r) {
    a("effectiveGroup", r.effectiveGroup);
    a("flashMode", r.flashMode);
    a("flashTime", r.flashTime);
})

MW_SETTABLE_PAGE(camera_white_led_status, [](auto &a, auto &r) {
    a("whiteLedStatus", r.whiteLedStatus);
})

MW_SETTABLE_PAGE(camera_crop_roi_enable, [](auto &a, auto &r) {
    a("cropRoiEnable", r.cropRoiEnable);
})

MW_SETTABLE_PAGE(camera_roi_settings, [](auto &a, auto &r) {
    // Slot 0 is the full picture; the regions are 1..5 and named so.
    for (int32_t i = 1; i <= 5; ++i) {
        auto &region = r.regions[i];
        a(mw::Key<32>("cropRoiExist_%d", i), region.exist);
        a(mw::Key<32>("cropRoiLeft_%d", i), region.left);
        a(mw::Key<32>("cropRoiTop_%d", i), region.top);
        a(mw::Key<32>("cropRoiType_%d", i), region.type);
    }
})

MW_SETTABLE_PAGE(camera_crop_roi_track, [](auto &a, auto &r) {
    for (int32_t i = 1; i <= 5; ++i) {
        a(mw::Key<32>("enable_%d", i), r.enable[i]);
        a(mw::Key<32>("zoom_%d", i), r.zoom[i]);
    }
    // Areas are numbered from 1 in the keys, their days from 0.
    for (int32_t area = 0; area < 4; ++area)
        for (int32_t k = 0; k < 7; ++k)
            a(mw::Key<32>("area_%d_CommSche_%d", area + 1, k), r.areaSchedule[area][k]);
})

MW_SETTABLE_PAGE(camera_white_led_parameter, [](auto &a, auto &r) {
    a("alarm", r.alarm);
    a("number", r.number);
    a("manual", r.manual);
})

MW_SETTABLE_PAGE(camera_roi_info, [](auto &a, auto &r) {
    // The region texts of the five streams, one stretch of roiInfo each; the
    // fifth stream has one region fewer.
    struct Stream {
        const char *key;
        int32_t first;
        int32_t count;
    };
    static constexpr Stream kStreams[] = {
        {"mainList", 0, 8}, {"subList", 8, 8}, {"thirdList", 16, 8}, {"fourthList", 24, 8}, {"fifthList", 32, 7},
    };
    a("enable", r.enable);
    for (const Stream &stream : kStreams) {
        a.list(mw::Name::fixed(stream.key), "index", [&](auto &l) {
            for (int32_t i = 0; i < stream.count; ++i)
                l.item(i, [&](auto &entry) { entry("roiInfo", r.roiInfo[stream.first + i]); });
        });
    }
})

MW_SETTABLE_PAGE(camera_lens, [](auto &a, auto &r) {
    a("lensIrisType", r.lensIrisType);
    a("lensIrisMode", r.lensIrisMode);
    a("lensZoomPos", r.lensZoomPos);
})

MW_SETTABLE_PAGE(camera_while_led, [](auto &a, auto &r) {
    a("lightCtrl", r.lightCtrl);
    a("sensitivity", r.sensitivity);
    a("delayTime", r.delayTime);
    a("startHour", r.startHour);
    a("startMin", r.startMin);
    a("stopHour", r.stopHour);
    a("stopMin", r.stopMin);
    a("brightnessCtrl", r.brightnessCtrl);
    a("brightness", r.brightness);
    a("isWhiteLedExternal", r.isWhiteLedExternal);
})

MW_SETTABLE_PAGE(camera_ir_value, [](auto &a, auto &r) {
    a("irSensorValue", r.irSensorValue);
    a("inlprNight", r.inlprNight);
    a("nearIrStrength", r.nearIrStrength);
    a("midIrStrength", r.midIrStrength);
    a("farIrStrength", r.farIrStrength);
    a("smartIrStrengthWhite", r.smartIrStrengthWhite);
    a("smartIrStrengthSupplement", r.smartIrStrengthSupplement);
})

/* ---- model flags, capability groups, fisheye presets ---- */

MW_READ_ONLY_PAGE(camera_model_general, "what the model offers", [](auto &a, auto &r) {
    a("ioSupport", r.ioSupport);
    a("audioSupport", r.audioSupport);
    a("fisheyeSupport", r.fisheyeSupport);
    a("vcaSupport", r.vcaSupport);
    a("audioAlarmSupport", r.audioAlarmSupport);
    a("ledSupport", r.ledSupport);
    a("ledGroupSupport", r.ledGroupSupport);
    a("ptzSupport", r.ptzSupport);
    a("ptzMaxZoomTimes", r.ptzMaxZoomTimes);
    a("realPtzSupport", r.realPtzSupport);
    a.when(r.vcaSupport != 0, [&](auto &o) { o("vcaType", r.vcaType); });
    a("lprSupport", r.lprSupport);
    a.when(r.lprSupport != 0, [&](auto &o) { o("lprVersion", r.lprVersion); });
    a("faceSupport", r.faceSupport); // before iotSupport, though stored after it
    a("iotSupport", r.iotSupport);
    a("isSpeedDm", r.isSpeedDm);
    a("lessAlarmInterface", r.lessAlarmInterface);
    a("lessDeviceInterface", r.lessDeviceInterface);
})

MW_READ_ONLY_PAGE(camera_fish_presets, "presets are stored by the PTZ pages", [](auto &a, auto &r) {
    // No array here: each used slot becomes a root key named after its
    // id, in slot order.
    for (const ptz_preset_entry &p : r.entries) {
        if (p.id == 0)
            continue;
        const mw::Text<128> value("%d:%lf:%lf:%.*s", p.leadingNumber, p.firstCoordinate, p.secondCoordinate,
                                 static_cast<int>(sizeof p.name), p.name);
        a.derived(mw::Key<32>("preset_%d", p.id), value);
    }
})

MW_SETTABLE_PAGE(camera_fish_view_field, [](auto &a, auto &r) {
    a("fisheyeViewField", r.fisheyeViewField);
})

MW_READ_ONLY_RECORD_PAGE(, camera_all_capability, camera_all_capability_record, "what the camera offers", "group", MW_NO_RULES,
                         [](auto &a, auto &r) {
    switch (r.group) {
    case 100: // PTZ control
        a("ptzControl", r.ptzControl);
        a("whiteLed", r.whiteLed);
        a("manualTrack", r.manualTrack);
        a("liveAutoTracking", r.liveAutoTracking);
        a("dehumidifying", r.dehumidifying);
        a("3dPosition", r.threeDPosition);
        a("oneTouch", r.oneTouch);
        a("autohome", r.autohome);
        a("preset", r.preset);
        a("patrol", r.patrol);
        a("pattern", r.pattern);
        break;
    case 101: // zoom, focus and iris
        a("zcontrol", r.zcontrol);
        a("zslider", r.zslider);
        a("focus", r.focus);
        a("lensInitialization", r.lensInitialization);
        a("auxiliaryFocus", r.auxiliaryFocus);
        a("autoirisAlwaysOpen", r.autoirisAlwaysOpen);
        a("autoirisClickable", r.autoirisClickable);
        break;
    case 102: // PTZ basics; the PTZ settings page reads autohome and auto tracking here too
        a("basic", r.basic);
        a("manualSpeed", r.manualSpeed);
        a("patrolRecorvery", r.patrolRecorvery);
        a("miniFocusDistance", r.miniFocusDistance);
        a("autohome", r.autohome);
        a("ptzLimits", r.ptzLimits);
        a("topAndBottomLimit", r.topAndBottomLimit);
        a("initialPosition", r.initialPosition);
        a("privacyMask", r.privacyMask);
        a("scheduledTask", r.scheduledTask);
        a("tiltScan", r.tiltScan);
        a("panoramaScan", r.panoramaScan);
        a("autoTracking", r.liveAutoTracking);
        a("configClear", r.configClear);
        a("clearInitialPosition", r.clearInitialPosition);
        a("rs485", r.rs485);
        a("status", r.status);
        a("heater", r.heater);
        break;
    case 103: // plate recognition
        a("lpr", r.lpr);
        a("confidenceLevel", r.confidenceLevel);
        a("dayNightDetection", r.dayNightDetection);
        a("speedDetection", r.speedDetection);
        a("regionFeatures", r.regionFeatures);
        break;
    case 104: // audio, smart IR and lens
        a("audio", r.audio);
        a("smartIrMode", r.smartIrMode);
        a("smartIrModeAuto", r.smartIrModeAuto);
        a("smartIrModeViewLevel", r.smartIrModeViewLevel);
        a("smartIrModeMiddleLevel", r.smartIrModeMiddleLevel);
        a("smartIrModeWhiteLevel", r.smartIrModeWhiteLevel);
        a("localDisplayVideo", r.localDisplayVideo);
        a("smokedDomecover", r.smokedDomecover);
        a("keepAspectRatio", r.keepAspectRatio);
        a("zoomLimit", r.zoomLimit);
        a("lensDistortCorrect", r.lensDistortCorrect);
        break;
    case 105: // stabilisation and focus
        a("digitalImageStabilisation", r.digitalImageStabilisation);
        a("focusMode", r.focusMode);
        a("lensType", r.lensType);
        a("reduceVideoStuttering", r.reduceVideoStuttering);
        break;
    case 106: // day/night
        a("dayNightWhiteLed", r.whiteLed);
        a("dayNightSliderRange_1_10", r.dayNightSliderRange_1_10);
        a("dayNightSliderRange_1_100", r.dayNightSliderRange_1_100);
        a("dayNightSliderDefult_20_60", r.dayNightSliderDefult_20_60);
        break;
    case 107: // image mask
        a("imageMask", r.imageMask);
        break;
    case 108: // events; both alarm keys report the alarm output's flag
        a("audioEvent", r.audioEvent);
        a("alarmInputEvent", r.alarmOutputEvent);
        a("alarmOutputEvent", r.alarmOutputEvent);
        a("vca", r.vca);
        break;
    case 109: // stream preset
        a("streamPreset", r.streamPreset);
        break;
    default: // no such group: nothing to report
        break;
    }
})
