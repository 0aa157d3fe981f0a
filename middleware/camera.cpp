/*
 * camera.cpp - the camera image pages: image settings, day/night, sensors,
 * masks, regions of interest, snapshots, lights, lens, model flags,
 * capability groups and fisheye presets.
 */
#include "internal.h"

#include <cstdio>
#include <cstring>

using mw::add;

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

/* A weekly task list: seven {indexKey: day, "taskday": the day's slots}. */
void add_task_list(cJSON *root, const char *listKey, const char *indexKey, const char (&days)[7][10][256])
{
    cJSON *list = mw::array(root, listKey);
    for (int32_t d = 0; d < 7; ++d) {
        cJSON *day = mw::append_object(list);
        add(day, indexKey, d);
        mw::add_string(day, "taskday", joined_slots(days[d]).text);
    }
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

/* The image modes of a sensor, in the order of the per-mode arrays. */
constexpr const char *kImageModeNames[3] = {"normal", "odd", "even"};

} // namespace

/* ---- image settings, day/night, sensors ---- */

int32_t get_camera_setting_json(const camera_setting_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "powerlineFreq", in->powerlineFreq);
        add(root, "brightness", in->brightness);
        add(root, "colorSaturation", in->colorSaturation);
        add(root, "sharpness", in->sharpness);
        add(root, "contrast", in->contrast);
        add(root, "whiteBalanceMode", in->whiteBalanceMode);
        add(root, "whiteBalanceRedGain", in->whiteBalanceRedGain);
        add(root, "whiteBalanceBlueGain", in->whiteBalanceBlueGain);
        add(root, "doorMode", in->doorMode);
        add(root, "digitalImageStabilisation", in->digitalImageStabilisation);
        add(root, "dayToNight", in->dayToNight);
        add(root, "nightToDay", in->nightToDay);
        add(root, "dayNightSensitivity", in->dayNightSensitivity);
        add(root, "d2nSensitivity", in->d2nSensitivity);
        add(root, "n2dSensitivity", in->n2dSensitivity);
        add(root, "sensorMode", in->sensorMode);
        add(root, "distortCorrect", in->distortCorrect);
        add(root, "fovAdjust", in->fovAdjust);
        add(root, "irBlanceMode", in->irBlanceMode);
        add(root, "enblur", in->enblur);
        add(root, "deblur", in->deblur);
        add(root, "defogMode", in->defogMode);
        add(root, "antiFogIntensity", in->antiFogIntensity);
        add(root, "exposureMode", in->exposureMode);
        add(root, "exposureTime", in->exposureTime);
        add(root, "exposureGain", in->exposureGain);
        add(root, "ledMode", in->ledMode);
        add(root, "nfLevel", in->nfLevel);
        add(root, "dnr2Level", in->dnr2Level);
        add(root, "focusMode", in->focusMode);
        add(root, "aspectRatio", in->aspectRatio);
        add(root, "zoomLimit", in->zoomLimit);
        add(root, "smartIrMode", in->smartIrMode);
        add(root, "nearViewIrLevel", in->nearViewIrLevel);
        add(root, "middleViewIrLevel", in->middleViewIrLevel);
        add(root, "farViewIrLevel", in->farViewIrLevel);
        add(root, "dnSwitchRefocus", in->dnSwitchRefocus);
        add(root, "smokedDomeCover", in->smokedDomeCover);
        add(root, "whiteLedLevel", in->whiteLedLevel);
        add(root, "mirrorCorridor", in->mirrorCorridor);
        add(root, "imageRotation", in->imageRotation);
        add(root, "irCutFilter", in->irCutFilter);
        add(root, "iricrDayHour", in->iricrDayHour);
        add(root, "iricrDayMinute", in->iricrDayMinute);
        add(root, "iricrNightHour", in->iricrNightHour);
        add(root, "iricrNightMinute", in->iricrNightMinute);
        add(root, "iricrGpinStatus", in->iricrGpinStatus);
        add(root, "iricrGpinNumber", in->iricrGpinNumber);
        add(root, "pirDuration", in->pirDuration);
        add(root, "pirSensitivity", in->pirSensitivity);
        add(root, "scheduleMode", in->scheduleMode);
        add(root, "blcRegion", in->blcRegion);
        add(root, "blcExclusive", in->blcExclusive);
        add(root, "blcRegionArea", in->blcRegionArea);
        add(root, "wdrMode", in->wdrMode);
        add(root, "wdrStartHour", in->wdrStartHour);
        add(root, "wdrStartMinute", in->wdrStartMinute);
        add(root, "wdrStopHour", in->wdrStopHour);
        add(root, "wdrStopMinute", in->wdrStopMinute);
        add(root, "wdrLevel", in->wdrLevel);
        add(root, "wdrAflevel", in->wdrAflevel);
        add(root, "hlcMode", in->hlcMode);
        add(root, "hlcLevel", in->hlcLevel);
        add(root, "dayEnhancementMode", in->dayEnhancementMode);
        add(root, "nightEnhancementMode", in->nightEnhancementMode);
        if (in->hasLprNightModeInEffect != 0)
            add(root, "lprNightModeInEffect", in->lprNightModeInEffect);
        add(root, "mediaUrl", in->mediaUrl);
        add(root, "mediaWidth", in->mediaWidth);
        add(root, "mediaHeight", in->mediaHeight);
        add(root, "lprNight", in->lprNight);
        add(root, "inlprNight", in->inlprNight);
        add(root, "fishDisplayMode", in->fishDisplayMode);
        add(root, "fishCorrectMode", in->fishCorrectMode);
        add(root, "dayNightMode", in->dayNightMode);
        add(root, "irSupplemen", in->irSupplemen);
        add(root, "irisType", in->irisType);
        add(root, "irisMode", in->irisMode);
        add_task_list(root, "whiteBalanceTaskdayList", "whiteBalanceIndex", in->whiteBalanceTaskday);
        add_task_list(root, "exposureTaskdayList", "exposureIndex", in->exposureTaskday);
        add_task_list(root, "blcWdrHlcTaskdayList", "blcWdrHlcIndex", in->blcWdrHlcTaskday);
        mw::add_string(root, "dnScheduleTaskday", joined_slots(in->dnScheduleTaskday).text);
    });
}

int32_t get_camera_setting_day_night_json(const camera_setting_day_night_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // The record counts IR-cut intervals from 0, the pages from 1.
        const camera_day_night_profile &day = in->day;
        const camera_day_night_profile &night = in->night;
        add(root, "dayExposureLevel", day.exposureLevel);
        add(root, "dayMinShutter", day.minShutter);
        add(root, "dayMaxShutter", day.maxShutter);
        add(root, "dayLimitGain", day.limitGain);
        add(root, "dayIrCutInterval", int32_t{day.irCutInterval} + 1);
        add(root, "dayIrCutStatus", day.irCutStatus);
        add(root, "dayIrLedStatus", day.irLedStatus);
        add(root, "dayWhiteLedStatus", day.whiteLedStatus);
        add(root, "dayColorMode", day.colorMode);
        add(root, "nightExposureLevel", night.exposureLevel);
        add(root, "nightMinShutter", night.minShutter);
        add(root, "nightMaxShutter", night.maxShutter);
        add(root, "nightLimitGain", night.limitGain);
        add(root, "nightIrCutInterval", int32_t{night.irCutInterval} + 1);
        add(root, "nightIrCutStatus", night.irCutStatus);
        add(root, "nightIrLedStatus", night.irLedStatus);
        add(root, "nightWhiteLedStatus", night.whiteLedStatus);
        add(root, "nightColorMode", night.colorMode);
        add(root, "isSupportWhiteledGroup", in->isSupportWhiteledGroup);
        add(root, "dayWhiteledGroup", in->dayWhiteledGroup);
        add(root, "nightWhiteledGroup", in->nightWhiteledGroup);
    });
}

int32_t get_camera_day_night_schedule_json(const camera_day_night_schedule_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *list = mw::array(root, "dayNightSchedule");
        for (int32_t i = 0; i < 5; ++i) {
            cJSON *entry = mw::append_object(list);
            add(entry, "index", i);
            add(entry, "schedule", in->schedule[i]);
        }
    });
}

int32_t get_camera_sensor_image_json(const camera_sensor_image_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "powerlineFreq", in->powerlineFreq);
        add(root, "imageMode", in->imageMode);
        add(root, "trafficScene", in->trafficScene);
        add(root, "digitalStabilisation", in->digitalStabilisation);
        add(root, "flashIntensity", in->flashIntensity);
        add(root, "parityFlashing", in->parityFlashing);
        add(root, "flashOffsetFirst", in->flashOffsetFirst);
        add(root, "flashOffsetSecond", in->flashOffsetSecond);
        add(root, "flashAeExpTimeFirst", in->flashAeExpTimeFirst);
        add(root, "flashAeExpTimeSecond", in->flashAeExpTimeSecond);
        cJSON *list = mw::array(root, "sensorList");
        for (int32_t i = 0; i < 2; ++i) {
            const camera_sensor_image_entry &s = in->sensors[i];
            cJSON *sensor = mw::append_object(list);
            add(sensor, "sensorIndex", i);
            add(sensor, "irisMode", in->irisMode[i]);
            add(sensor, "daynight", s.daynight);
            add(sensor, "strobelightDay", s.strobelightDay[0]);
            add(sensor, "strobelightNight", s.strobelightNight[0]);
            for (int32_t m = 0; m < 3; ++m) {
                cJSON *mode = mw::object(sensor, kImageModeNames[m]);
                mw::add_string(mode, "maxshutterDay", two_decimals(s.maxshutterDay[m]));
                mw::add_string(mode, "maxshutterNight", two_decimals(s.maxshutterNight[m]));
                add(mode, "limitGainlevelDay", s.limitGainlevelDay[m]);
                add(mode, "limitGainlevelNight", s.limitGainlevelNight[m]);
                add(mode, "targetBrightnessDay", s.targetBrightnessDay[m]);
                add(mode, "targetBrightnessNight", s.targetBrightnessNight[m]);
                mw::add_string(mode, "manualExposetimeDay", two_decimals(s.manualExposetimeDay[m]));
                mw::add_string(mode, "manualExposetimeNight", two_decimals(s.manualExposetimeNight[m]));
                add(mode, "manualGainlevelDay", s.manualGainlevelDay[m]);
                add(mode, "manualGainlevelNight", s.manualGainlevelNight[m]);
                add(mode, "brightness", percent(s.brightness[m]));
                add(mode, "contrast", percent(s.contrast[m]));
                add(mode, "saturation", percent(s.saturation[m]));
            }
        }
    });
}

/* ---- masks, regions of interest, snapshots, lights, lens ---- */

int32_t get_camera_ptz_json(const camera_ptz_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "ptzSpeed", in->ptzSpeed); });
}

int32_t get_camera_mask_json(const camera_mask_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "calibrationEnable", in->calibrationEnable);
        add(root, "maskNum", in->maskNum);
        add(root, "maskMosaicNum", in->maskMosaicNum);
        add(root, "maskMaxRatio", in->maskMaxRatio);
        add(root, "maskColorList", in->maskColorList);
        add(root, "maskDifferentColor", in->maskDifferentColor);
        // Both sensors list the same number of masks. The producer keeps the
        // count within the 24 slots; should it not, the list stops at the
        // last slot rather than read past the record.
        const int32_t slots = static_cast<int32_t>(sizeof in->masks[0] / sizeof in->masks[0][0]);
        const int32_t count = in->maskCount < slots ? in->maskCount : slots;
        cJSON *sensors = mw::array(root, "sensorList");
        for (int32_t s = 0; s < 2; ++s) {
            cJSON *sensor = mw::append_object(sensors);
            add(sensor, "sensorIndex", s);
            add(sensor, "maskEnable", in->maskEnable[s]);
            cJSON *masks = mw::array(sensor, "maskList");
            for (int32_t m = 0; m < count; ++m) {
                const camera_mask_entry &e = in->masks[s][m];
                cJSON *mask = mw::append_object(masks);
                add(mask, "index", m);
                add(mask, "maskX", e.maskX);
                add(mask, "maskY", e.maskY);
                add(mask, "maskWidth", e.maskWidth);
                add(mask, "maskHeight", e.maskHeight);
                add(mask, "maskType", e.maskType);
                add(mask, "maskShow", e.maskShow);
                add(mask, "maskRatio", e.maskRatio);
                add(mask, "isexist", e.isexist);
                add(mask, "maskName", e.maskName);
            }
        }
    });
}

int32_t get_camera_snapshot_settings_json(const camera_snapshot_settings_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "timingSnapshotEnable", in->timingSnapshotEnable);
        add(root, "intervalValue", in->intervalValue);
        add(root, "intervalUnit", in->intervalUnit);
        add(root, "saveIntoStorage", in->saveIntoStorage);
        add(root, "storageFilenameType", in->storageFilenameType);
        add(root, "storageBaseFilename", in->storageBaseFilename);
        add(root, "uploadViaFtp", in->uploadViaFtp);
        add(root, "uploadViaSmtp", in->uploadViaSmtp);
        add(root, "uploadViaHttp", in->uploadViaHttp); // last, though stored first
        cJSON *notify = mw::array(root, "notifyList");
        for (int32_t t = 0; t < 3; ++t) {
            const camera_snapshot_notify_entry &target = in->targets[t];
            cJSON *entry = mw::append_object(notify);
            add(entry, "index", t);
            add(entry, "enable", target.enable);
            add(entry, "url", target.url);
            add(entry, "user", target.user);
            add(entry, "password", target.password);
        }
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_camera_manual_white_led_settings_json(const camera_manual_white_led_settings_record *in, char *dst,
                                                  int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "effectiveGroup", in->effectiveGroup);
        add(root, "flashMode", in->flashMode);
        add(root, "flashTime", in->flashTime);
    });
}

int32_t get_camera_white_led_status_json(const camera_white_led_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "whiteLedStatus", in->whiteLedStatus); });
}

int32_t get_camera_crop_roi_enable_json(const camera_crop_roi_enable_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "cropRoiEnable", in->cropRoiEnable); });
}

int32_t get_camera_roi_settings_json(const camera_roi_settings_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // Slot 0 is the full picture; the regions are 1..5 and named so.
        for (int32_t i = 1; i <= 5; ++i) {
            const camera_crop_roi_entry &r = in->regions[i];
            add(root, mw::Key<32>("cropRoiExist_%d", i), r.exist);
            add(root, mw::Key<32>("cropRoiLeft_%d", i), r.left);
            add(root, mw::Key<32>("cropRoiTop_%d", i), r.top);
            add(root, mw::Key<32>("cropRoiType_%d", i), r.type);
        }
    });
}

int32_t get_camera_crop_roi_track_json(const camera_crop_roi_track_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        for (int32_t i = 1; i <= 5; ++i) {
            add(root, mw::Key<32>("enable_%d", i), in->enable[i]);
            add(root, mw::Key<32>("zoom_%d", i), in->zoom[i]);
        }
        // Areas are numbered from 1 in the keys, their days from 0.
        for (int32_t a = 0; a < 4; ++a)
            for (int32_t k = 0; k < 7; ++k)
                add(root, mw::Key<32>("area_%d_CommSche_%d", a + 1, k), in->areaSchedule[a][k]);
    });
}

int32_t get_camera_white_led_parameter_json(const camera_white_led_parameter_record *in, char *dst,
                                            int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "alarm", in->alarm);
        add(root, "number", in->number);
        add(root, "manual", in->manual);
    });
}

int32_t get_camera_roi_info_json(const camera_roi_info_record *in, char *dst, int32_t dstSize)
{
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
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        for (const Stream &stream : kStreams) {
            cJSON *list = mw::array(root, stream.key);
            for (int32_t i = 0; i < stream.count; ++i) {
                cJSON *entry = mw::append_object(list);
                add(entry, "index", i);
                add(entry, "roiInfo", in->roiInfo[stream.first + i]);
            }
        }
    });
}

int32_t get_camera_lens_json(const camera_lens_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "lensIrisType", in->lensIrisType);
        add(root, "lensIrisMode", in->lensIrisMode);
        add(root, "lensZoomPos", in->lensZoomPos);
    });
}

int32_t get_camera_while_led_json(const camera_while_led_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "lightCtrl", in->lightCtrl);
        add(root, "sensitivity", in->sensitivity);
        add(root, "delayTime", in->delayTime);
        add(root, "startHour", in->startHour);
        add(root, "startMin", in->startMin);
        add(root, "stopHour", in->stopHour);
        add(root, "stopMin", in->stopMin);
        add(root, "brightnessCtrl", in->brightnessCtrl);
        add(root, "brightness", in->brightness);
        add(root, "isWhiteLedExternal", in->isWhiteLedExternal);
    });
}

int32_t get_camera_ir_value_json(const camera_ir_value_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "irSensorValue", in->irSensorValue);
        add(root, "inlprNight", in->inlprNight);
        add(root, "nearIrStrength", in->nearIrStrength);
        add(root, "midIrStrength", in->midIrStrength);
        add(root, "farIrStrength", in->farIrStrength);
        add(root, "smartIrStrengthWhite", in->smartIrStrengthWhite);
        add(root, "smartIrStrengthSupplement", in->smartIrStrengthSupplement);
    });
}

/* ---- model flags, capability groups, fisheye presets ---- */

int32_t get_camera_model_general_json(const camera_model_general_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "ioSupport", in->ioSupport);
        add(root, "audioSupport", in->audioSupport);
        add(root, "fisheyeSupport", in->fisheyeSupport);
        add(root, "vcaSupport", in->vcaSupport);
        add(root, "audioAlarmSupport", in->audioAlarmSupport);
        add(root, "ledSupport", in->ledSupport);
        add(root, "ledGroupSupport", in->ledGroupSupport);
        add(root, "ptzSupport", in->ptzSupport);
        add(root, "ptzMaxZoomTimes", in->ptzMaxZoomTimes);
        add(root, "realPtzSupport", in->realPtzSupport);
        if (in->vcaSupport != 0)
            add(root, "vcaType", in->vcaType);
        add(root, "lprSupport", in->lprSupport);
        if (in->lprSupport != 0)
            add(root, "lprVersion", in->lprVersion);
        add(root, "faceSupport", in->faceSupport); // before iotSupport, though stored after it
        add(root, "iotSupport", in->iotSupport);
        add(root, "isSpeedDm", in->isSpeedDm);
        add(root, "lessAlarmInterface", in->lessAlarmInterface);
        add(root, "lessDeviceInterface", in->lessDeviceInterface);
    });
}

int32_t get_camera_fish_presets_json(const camera_fish_presets_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // No array here: each used slot becomes a root key named after its
        // id, in slot order.
        for (const ptz_preset_entry &p : in->entries) {
            if (p.id == 0)
                continue;
            const mw::Text<128> value("%d:%lf:%lf:%.*s", p.leadingNumber, p.firstCoordinate, p.secondCoordinate,
                                     static_cast<int>(sizeof p.name), p.name);
            mw::add_string(root, mw::Key<32>("preset_%d", p.id), value);
        }
    });
}

int32_t get_camera_fish_view_field_json(const camera_fish_view_field_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "fisheyeViewField", in->fisheyeViewField); });
}

int32_t get_camera_all_capability_json(const camera_all_capability_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        switch (in->group) {
        case 100: // PTZ control
            add(root, "ptzControl", in->ptzControl);
            add(root, "whiteLed", in->whiteLed);
            add(root, "manualTrack", in->manualTrack);
            add(root, "liveAutoTracking", in->liveAutoTracking);
            add(root, "dehumidifying", in->dehumidifying);
            add(root, "3dPosition", in->threeDPosition);
            add(root, "oneTouch", in->oneTouch);
            add(root, "autohome", in->autohome);
            add(root, "preset", in->preset);
            add(root, "patrol", in->patrol);
            add(root, "pattern", in->pattern);
            break;
        case 101: // zoom, focus and iris
            add(root, "zcontrol", in->zcontrol);
            add(root, "zslider", in->zslider);
            add(root, "focus", in->focus);
            add(root, "lensInitialization", in->lensInitialization);
            add(root, "auxiliaryFocus", in->auxiliaryFocus);
            add(root, "autoirisAlwaysOpen", in->autoirisAlwaysOpen);
            add(root, "autoirisClickable", in->autoirisClickable);
            break;
        case 102: // PTZ basics; the PTZ settings page reads autohome and auto tracking here too
            add(root, "basic", in->basic);
            add(root, "manualSpeed", in->manualSpeed);
            add(root, "patrolRecorvery", in->patrolRecorvery);
            add(root, "miniFocusDistance", in->miniFocusDistance);
            add(root, "autohome", in->autohome);
            add(root, "ptzLimits", in->ptzLimits);
            add(root, "topAndBottomLimit", in->topAndBottomLimit);
            add(root, "initialPosition", in->initialPosition);
            add(root, "privacyMask", in->privacyMask);
            add(root, "scheduledTask", in->scheduledTask);
            add(root, "tiltScan", in->tiltScan);
            add(root, "panoramaScan", in->panoramaScan);
            add(root, "autoTracking", in->liveAutoTracking);
            add(root, "configClear", in->configClear);
            add(root, "clearInitialPosition", in->clearInitialPosition);
            add(root, "rs485", in->rs485);
            add(root, "status", in->status);
            add(root, "heater", in->heater);
            break;
        case 103: // plate recognition
            add(root, "lpr", in->lpr);
            add(root, "confidenceLevel", in->confidenceLevel);
            add(root, "dayNightDetection", in->dayNightDetection);
            add(root, "speedDetection", in->speedDetection);
            add(root, "regionFeatures", in->regionFeatures);
            break;
        case 104: // audio, smart IR and lens
            add(root, "audio", in->audio);
            add(root, "smartIrMode", in->smartIrMode);
            add(root, "smartIrModeAuto", in->smartIrModeAuto);
            add(root, "smartIrModeViewLevel", in->smartIrModeViewLevel);
            add(root, "smartIrModeMiddleLevel", in->smartIrModeMiddleLevel);
            add(root, "smartIrModeWhiteLevel", in->smartIrModeWhiteLevel);
            add(root, "localDisplayVideo", in->localDisplayVideo);
            add(root, "smokedDomecover", in->smokedDomecover);
            add(root, "keepAspectRatio", in->keepAspectRatio);
            add(root, "zoomLimit", in->zoomLimit);
            add(root, "lensDistortCorrect", in->lensDistortCorrect);
            break;
        case 105: // stabilisation and focus
            add(root, "digitalImageStabilisation", in->digitalImageStabilisation);
            add(root, "focusMode", in->focusMode);
            add(root, "lensType", in->lensType);
            add(root, "reduceVideoStuttering", in->reduceVideoStuttering);
            break;
        case 106: // day/night
            add(root, "dayNightWhiteLed", in->whiteLed);
            add(root, "dayNightSliderRange_1_10", in->dayNightSliderRange_1_10);
            add(root, "dayNightSliderRange_1_100", in->dayNightSliderRange_1_100);
            add(root, "dayNightSliderDefult_20_60", in->dayNightSliderDefult_20_60);
            break;
        case 107: // image mask
            add(root, "imageMask", in->imageMask);
            break;
        case 108: // events; both alarm keys report the alarm output's flag
            add(root, "audioEvent", in->audioEvent);
            add(root, "alarmInputEvent", in->alarmOutputEvent);
            add(root, "alarmOutputEvent", in->alarmOutputEvent);
            add(root, "vca", in->vca);
            break;
        case 109: // stream preset
            add(root, "streamPreset", in->streamPreset);
            break;
        default: // no such group: nothing to report
            break;
        }
    });
}
