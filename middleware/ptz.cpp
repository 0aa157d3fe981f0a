/*
 * ptz.cpp - the pan/tilt/zoom pages: live status, presets, run states, and
 * the configuration pages (serial line, wiper, motion, limits, tasks,
 * control state, auto tracking).
 */
#include "internal.h"

using mw::add;

namespace {

/* A list of {"index": i, valueKey: values[i]} for i from 0, every slot. */
void add_indexed_list(cJSON *root, const char *listKey, const char *valueKey, const int32_t *values,
                      int32_t count)
{
    cJSON *list = mw::array(root, listKey);
    for (int32_t i = 0; i < count; ++i) {
        cJSON *item = mw::append_object(list);
        add(item, "index", i);
        add(item, valueKey, values[i]);
    }
}

/* The name is read no further than its array, even without a NUL. */
constexpr int kPresetNameWidth = static_cast<int>(sizeof(ptz_preset_entry{}.name));

} // namespace

/* ---- status and presets ---- */

int32_t get_ptz_panel_status_json(const ptz_panel_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "irisMode", in->irisMode);
        add(root, "onePatrol", in->onePatrol);
        add(root, "autoHome", in->autoHome);
        add(root, "manualDefog", in->manualDefog);
        add(root, "manualWiper", in->manualWiper);
        add(root, "lightMode", in->lightMode);
        add(root, "3DPosition", in->threeDPosition);
        add(root, "manualTrack", in->manualTrack);
    });
}

int32_t get_ptz_status_json(const ptz_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // The web page shows the text as it stands; the degree sign is an
        // HTML entity on purpose.
        mw::add_string(root, "temperature", mw::Text<128>("%02f&#176;C", in->temperature));
        add(root, "heater", in->heater);
        add(root, "fan", in->fan);
    });
}

int32_t get_ptz_presets_json(const ptz_presets_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *list = mw::array(root, "presetInfoList");
        for (const ptz_preset_entry &preset : in->entries) {
            if (preset.id == 0)
                continue; // an empty slot leaves no trace
            cJSON *item = mw::append_object(list);
            add(item, "id", preset.id);
            mw::add_string(item, "preset",
                           mw::Text<128>("%d:%lf:%lf:%.*s", preset.leadingNumber,
                                     preset.firstCoordinate, preset.secondCoordinate, kPresetNameWidth,
                                     preset.name));
        }
    });
}

int32_t get_ptz_others_json(const ptz_others_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "limitingFlag", in->limitingFlag);
        add(root, "pos3dEnable", in->pos3dEnable);
        add(root, "inittilePos", in->inittilePos);
        add(root, "limittilePos", in->limittilePos);
        add(root, "trackEnable", in->trackEnable);
        add(root, "trackManualEnable", in->trackManualEnable);
        add(root, "presetId", in->presetId);
        add(root, "curposinPreset", in->curposinPreset);
        add_indexed_list(root, "presetLimitList", "presetIsLimit", in->presetIsLimit, 4);
    });
}

int32_t get_ptz_run_status_json(const ptz_run_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        if (in->isFisheye != 0) {
            // Fisheye views and their tours count from 0.
            for (int i = 0; i < 6; ++i)
                add(root, mw::Key<32>("fish_%d_PtzRunStatus", i), in->fishPtzRunStatus[i]);
            for (int i = 0; i < 6; ++i)
                for (int j = 0; j < 8; ++j)
                    add(root, mw::Key<32>("fish_%d_PtzTourStatus_%d", i, j), in->fishPtzTourStatus[i][j]);
            return;
        }
        // The unit's own tours and patterns count from 1, as the panel
        // numbers them.
        add(root, "ptzRunStatus", in->ptzRunStatus);
        for (int i = 0; i < 8; ++i)
            add(root, mw::Key<32>("ptzTourStatus_%d", i + 1), in->ptzTourStatus[i]);
        for (int i = 0; i < 4; ++i)
            add(root, mw::Key<32>("ptzPatternStatus_%d", i + 1), in->ptzPatternStatus[i]);
    });
}

int32_t get_ptz_auto_home_json(const ptz_auto_home_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "latencyTime", in->latencyTime);
        add(root, "mode", in->mode);
        add(root, "modeNumber", in->modeNumber);
    });
}

int32_t get_ptz_track_point_json(const ptz_track_point_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "personNum", in->personNum);
        cJSON *list = mw::array(root, "personList");
        for (int32_t p = 0; p < in->personNum; ++p) {
            cJSON *person = mw::append_object(list);
            add(person, "id", in->id[p]);
            add(person, "type", in->type[p]);
            add(person, "startX", in->startX[p]);
            add(person, "startY", in->startY[p]);
            add(person, "stopX", in->stopX[p]);
            add(person, "stopY", in->stopY[p]);
        }
    });
}

int32_t get_ptz_zoom_pos_json(const ptz_zoom_pos_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize,
                        [in](cJSON *root) { add_indexed_list(root, "zoomposList", "zoompos", in->zoompos, 2); });
}

/* ---- configuration ---- */

int32_t get_ptz_rs485_json(const ptz_rs485_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "baudrate", in->baudrate);
        add(root, "dataBit", in->dataBit);
        add(root, "stopBit", in->stopBit);
        add(root, "checkBit", in->checkBit);
        add(root, "flowCtrl", in->flowCtrl);
    });
}

int32_t get_ptz_wiper_json(const ptz_wiper_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "autoWiper", in->autoWiper);
        add(root, "status", in->status);
    });
}

int32_t get_ptz_basic_json(const ptz_basic_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "zoomStatus", in->zoomStatus);
        add(root, "tiltStatus", in->tiltStatus);
        add(root, "presetStatus", in->presetStatus);
        add(root, "patrolStatus", in->patrolStatus);
        add(root, "patternStatus", in->patternStatus);
        add(root, "autoscanStatus", in->autoscanStatus);
        add(root, "presetFreezing", in->presetFreezing);
        add(root, "presetSpeed", in->presetSpeed);
        add(root, "manualSpeed", in->manualSpeed);
        add(root, "patrolRecovering", in->patrolRecovering);
        add(root, "patrolRecoveryTime", in->patrolRecoveryTime);
        add(root, "focusMode", in->focusMode);
        add(root, "focusDistance", in->focusDistance);
        add(root, "resumeTime", in->resumeTime);
        add(root, "autoScanEnbale", in->autoScanEnbale);
    });
}

int32_t get_ptz_limit_json(const ptz_limit_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        const ptz_limit_settings *settings = in->settings;
        add(root, "mode", settings->mode);
        add(root, "manualLimitEnable", settings->manualLimitEnable);
        add(root, "manualLimitStatus", settings->manualLimitStatus);
        add(root, "manualLimited", in->manualLimited);
        add(root, "scanLimitEnable", settings->scanLimitEnable);
        add(root, "scanLimitStatus", settings->scanLimitStatus);
        add(root, "scanLimited", in->scanLimited);
    });
}

int32_t get_ptz_scheduled_tasks_json(const ptz_scheduled_tasks_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "recoveryTime", in->recoveryTime);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_ptz_control_json(const ptz_control_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // Only the first group that applies is reported; a NULL pointer just
        // moves on to the next.
        if (in->ptzTourPoint > 0 && in->tour != nullptr) {
            const ptz_tour_info *tour = in->tour;
            add(root, "ptzTourPoint", in->ptzTourPoint);
            add(root, "ptzTourStatus", tour->ptzTourStatus);
            cJSON *list = mw::array(root, "tourPresetInfo");
            for (int32_t p = 0; p < tour->tourPointCount; ++p) {
                cJSON *stop = mw::append_object(list);
                add(stop, "ptzTourPresetPoint", tour->points[p].ptzTourPresetPoint);
                add(stop, "ptzTourPresetSpeed", tour->points[p].ptzTourPresetSpeed);
                add(stop, "ptzTourPresetTime", tour->points[p].ptzTourPresetTime);
            }
        } else if (in->position != nullptr) {
            mw::add_string(root, "ptzPanPos", mw::Text<32>("%0.2f", in->position[0]));
            mw::add_string(root, "ptzTiltPos", mw::Text<32>("%0.2f", in->position[1]));
            mw::add_string(root, "ptzZoomPos", mw::Text<32>("%0.2f", in->position[2]));
        } else if (in->threeDPositionEnable != nullptr) {
            add(root, "ptz3dPositionEnable", *in->threeDPositionEnable);
        } else if (in->dehumidifyEnable != nullptr) {
            add(root, "ptzDehumidifyEnable", *in->dehumidifyEnable);
        } else if (in->ptzPatternPoint > 0 && in->pattern != nullptr) {
            const ptz_pattern_info *pattern = in->pattern;
            add(root, "ptzPatternPoint", in->ptzPatternPoint);
            add(root, "ptzPatternIsRecord", pattern->ptzPatternIsRecord);
            add(root, "ptzPatternPatStatus", pattern->patStatus != 0 ? 1 : 0);
            add(root, "ptzPatternPlayStatus", pattern->ptzPatternPlayStatus);
        }
    });
}

int32_t get_ptz_auto_tracking_json(const ptz_auto_tracking_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "trackEnable", in->trackEnable);
        add(root, "showAutoEnable", in->showAutoEnable);
        add(root, "reportMotion", in->reportMotion);
        add(root, "sensitivity", in->sensitivity);
        add(root, "maxTime", in->maxTime);
        add(root, "object", in->object);
        add(root, "zoomMode", in->zoomMode);
        add(root, "zoomNumber", in->zoomNumber);
        add(root, "zoomState", in->zoomState);
        add(root, "trackMap", in->trackMap);
        mw::add_schedule_list(root, in->schedule);
    });
}
