/*
 * ptz.cpp - the pan/tilt/zoom pages: live status, presets, run states, and
 * the configuration pages (serial line, wiper, motion, limits, tasks,
 * control state, auto tracking).
 */
#include "internal.h"

namespace {

/* A list of {"index": i, valueKey: values[i]} for every slot. */
template <typename A, typename T, size_t N>
void indexed_values(A &a, const char *listKey, const char *valueKey, T (&values)[N])
{
    a.list(mw::Name::fixed(listKey), "index", [&](auto &l) {
        for (int32_t i = 0; i < static_cast<int32_t>(N); ++i)
            l.item(i, [&](auto &item) { item(mw::Name::fixed(valueKey), values[i]); });
    });
}

/* The name is read no further than its array, even without a NUL. */
constexpr int kPresetNameWidth = static_cast<int>(sizeof(ptz_preset_entry{}.name));

/* Lists of people stop at the record's arrays; the count is shown as stored. */
template <typename T, size_t N>
int32_t slots_in_use(int32_t count, const T (&)[N])
{
    return count < 0 ? 0 : (count < static_cast<int32_t>(N) ? count : static_cast<int32_t>(N));
}

} // namespace

/* ---- status and presets ---- */

MW_READ_ONLY_PAGE(ptz_panel_status, "what the dome offers", [](auto &a, auto &r) {
    a("irisMode", r.irisMode);
    a("onePatrol", r.onePatrol);
    a("autoHome", r.autoHome);
    a("manualDefog", r.manualDefog);
    a("manualWiper", r.manualWiper);
    a("lightMode", r.lightMode);
    a("3DPosition", r.threeDPosition);
    a("manualTrack", r.manualTrack);
})

MW_READ_ONLY_PAGE(ptz_status, "live readings", [](auto &a, auto &r) {
    // The web page shows the text as it stands; the degree sign is an HTML
    // entity on purpose.
    a.derived("temperature", mw::Text<128>("%02f&#176;C", r.temperature));
    a("heater", r.heater);
    a("fan", r.fan);
})

MW_READ_ONLY_PAGE(ptz_presets, "presets are stored by moving the dome", [](auto &a, auto &r) {
    a.list("presetInfoList", nullptr, [&](auto &l) {
        for (auto &preset : r.entries) {
            if (preset.id == 0)
                continue; // an empty slot leaves no trace
            l.item([&](auto &item) {
                item("id", preset.id);
                item.derived("preset", mw::Text<128>("%d:%lf:%lf:%.*s", preset.leadingNumber, preset.firstCoordinate,
                                                     preset.secondCoordinate, kPresetNameWidth, preset.name));
            });
        }
    });
})

MW_SETTABLE_PAGE(ptz_others, [](auto &a, auto &r) {
    a("limitingFlag", r.limitingFlag);
    a("pos3dEnable", r.pos3dEnable);
    a("inittilePos", r.inittilePos);
    a("limittilePos", r.limittilePos);
    a("trackEnable", r.trackEnable);
    a("trackManualEnable", r.trackManualEnable);
    a("presetId", r.presetId);
    a("curposinPreset", r.curposinPreset);
    indexed_values(a, "presetLimitList", "presetIsLimit", r.presetIsLimit);
})

MW_READ_ONLY_PAGE(ptz_run_status, "live state", [](auto &a, auto &r) {
    // Fisheye views and their tours count from 0.
    a.when(r.isFisheye != 0, [&](auto &o) {
        for (int i = 0; i < 6; ++i)
            o(mw::Key<32>("fish_%d_PtzRunStatus", i), r.fishPtzRunStatus[i]);
        for (int i = 0; i < 6; ++i)
            for (int j = 0; j < 8; ++j)
                o(mw::Key<32>("fish_%d_PtzTourStatus_%d", i, j), r.fishPtzTourStatus[i][j]);
    });
    // The unit's own tours and patterns count from 1, as the panel numbers
    // them.
    a.when(r.isFisheye == 0, [&](auto &o) {
        o("ptzRunStatus", r.ptzRunStatus);
        for (int i = 0; i < 8; ++i)
            o(mw::Key<32>("ptzTourStatus_%d", i + 1), r.ptzTourStatus[i]);
        for (int i = 0; i < 4; ++i)
            o(mw::Key<32>("ptzPatternStatus_%d", i + 1), r.ptzPatternStatus[i]);
    });
})

MW_SETTABLE_PAGE(ptz_auto_home, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("latencyTime", r.latencyTime);
    a("mode", r.mode);
    a("modeNumber", r.modeNumber);
})

MW_READ_ONLY_PAGE(ptz_track_point, "live tracking report", [](auto &a, auto &r) {
    a("personNum", r.personNum);
    a.list("personList", nullptr, [&](auto &l) {
        for (int32_t p = 0; p < slots_in_use(r.personNum, r.id); ++p) {
            l.item([&](auto &person) {
                person("id", r.id[p]);
                person("type", r.type[p]);
                person("startX", r.startX[p]);
                person("startY", r.startY[p]);
                person("stopX", r.stopX[p]);
                person("stopY", r.stopY[p]);
            });
        }
    });
})

MW_READ_ONLY_PAGE(ptz_zoom_pos, "live motor positions", [](auto &a, auto &r) { indexed_values(a, "zoomposList", "zoompos", r.zoompos); })

/* ---- configuration ---- */

MW_SETTABLE_PAGE(ptz_rs485, [](auto &a, auto &r) {
    a("baudrate", r.baudrate);
    a("dataBit", r.dataBit);
    a("stopBit", r.stopBit);
    a("checkBit", r.checkBit);
    a("flowCtrl", r.flowCtrl);
})

MW_SETTABLE_PAGE(ptz_wiper, [](auto &a, auto &r) {
    a("autoWiper", r.autoWiper);
    a("status", r.status);
})

MW_SETTABLE_PAGE(ptz_basic, [](auto &a, auto &r) {
    a("zoomStatus", r.zoomStatus);
    a("tiltStatus", r.tiltStatus);
    a("presetStatus", r.presetStatus);
    a("patrolStatus", r.patrolStatus);
    a("patternStatus", r.patternStatus);
    a("autoscanStatus", r.autoscanStatus);
    a("presetFreezing", r.presetFreezing);
    a("presetSpeed", r.presetSpeed);
    a("manualSpeed", r.manualSpeed);
    a("patrolRecovering", r.patrolRecovering);
    a("patrolRecoveryTime", r.patrolRecoveryTime);
    a("focusMode", r.focusMode);
    a("focusDistance", r.focusDistance);
    a("resumeTime", r.resumeTime);
    a("autoScanEnbale", r.autoScanEnbale);
})

/* The limit settings are the motor controller's, behind a const pointer:
   the page shows them and sets only its own two flags. */
MW_SETTABLE_PAGE(ptz_limit, [](auto &a, auto &r) {
    const ptz_limit_settings &settings = *r.settings;
    a.derived("mode", settings.mode);
    a.derived("manualLimitEnable", settings.manualLimitEnable);
    a.derived("manualLimitStatus", settings.manualLimitStatus);
    a("manualLimited", r.manualLimited);
    a.derived("scanLimitEnable", settings.scanLimitEnable);
    a.derived("scanLimitStatus", settings.scanLimitStatus);
    a("scanLimited", r.scanLimited);
})

MW_SETTABLE_PAGE(ptz_scheduled_tasks, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("recoveryTime", r.recoveryTime);
    mw::schedule_list(a, r.schedule);
})

/* The state of the last control request: only the first group that applies
   is reported; a NULL pointer just moves on to the next. */
MW_READ_ONLY_PAGE(ptz_control, "the answer to a control request", [](auto &a, auto &r) {
    const bool tour = r.ptzTourPoint > 0 && r.tour != nullptr;
    const bool position = !tour && r.position != nullptr;
    const bool threeD = !tour && !position && r.threeDPositionEnable != nullptr;
    const bool dehumidify = !tour && !position && !threeD && r.dehumidifyEnable != nullptr;
    const bool pattern = !tour && !position && !threeD && !dehumidify && r.ptzPatternPoint > 0 && r.pattern != nullptr;
    a.when_held(tour, [&](auto &o) {
        o("ptzTourPoint", r.ptzTourPoint);
        o.derived("ptzTourStatus", r.tour->ptzTourStatus);
        o.list("tourPresetInfo", nullptr, [&](auto &l) {
            for (int32_t p = 0; p < slots_in_use(r.tour->tourPointCount, r.tour->points); ++p) {
                l.item([&](auto &stop) {
                    stop.derived("ptzTourPresetPoint", r.tour->points[p].ptzTourPresetPoint);
                    stop.derived("ptzTourPresetSpeed", r.tour->points[p].ptzTourPresetSpeed);
                    stop.derived("ptzTourPresetTime", r.tour->points[p].ptzTourPresetTime);
                });
            }
        });
    });
    a.when_held(position, [&](auto &o) {
        o.derived("ptzPanPos", mw::Text<32>("%0.2f", r.position[0]));
        o.derived("ptzTiltPos", mw::Text<32>("%0.2f", r.position[1]));
        o.derived("ptzZoomPos", mw::Text<32>("%0.2f", r.position[2]));
    });
    a.when_held(threeD, [&](auto &o) { o.derived("ptz3dPositionEnable", *r.threeDPositionEnable); });
    a.when_held(dehumidify, [&](auto &o) { o.derived("ptzDehumidifyEnable", *r.dehumidifyEnable); });
    a.when_held(pattern, [&](auto &o) {
        o("ptzPatternPoint", r.ptzPatternPoint);
        o.derived("ptzPatternIsRecord", r.pattern->ptzPatternIsRecord);
        o.derived("ptzPatternPatStatus", r.pattern->patStatus != 0 ? 1 : 0);
        o.derived("ptzPatternPlayStatus", r.pattern->ptzPatternPlayStatus);
    });
})

MW_SETTABLE_PAGE(ptz_auto_tracking, [](auto &a, auto &r) {
    a("trackEnable", r.trackEnable);
    a("showAutoEnable", r.showAutoEnable);
    a("reportMotion", r.reportMotion);
    a("sensitivity", r.sensitivity);
    a("maxTime", r.maxTime);
    a("object", r.object);
    a("zoomMode", r.zoomMode);
    a("zoomNumber", r.zoomNumber);
    a("zoomState", r.zoomState);
    a("trackMap", r.trackMap);
    mw::schedule_list(a, r.schedule);
})
