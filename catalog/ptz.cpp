#include "catalog.h"

namespace {

// A speed dome on a car-park pole: 25x zoom, heater and wiper, eight tours,
// four patterns, auto tracking of people.

// A weekly schedule as the pages write it: the hours of each day, per slot.
template <size_t N>
void weekly_schedule(char (&days)[7][N], const char *weekday, const char *weekend)
{
    for (int d = 0; d < 7; ++d)
        put(days[d], d == 0 || d == 6 ? weekend : weekday);
}

ptz_presets_record sample_presets()
{
    ptz_presets_record r{};
    struct Preset {
        int32_t slot, id, leading;
        double first, second;
        const char *name;
    };
    const Preset presets[] = {
        {0, 1, 1, 12.5, -3.25, "Gate"},
        {1, 2, 2, 97.75, -10.5, "Barrier lane 1"},
        {2, 3, 3, 185.0, -22.0, "Pay station"},
        {5, 6, 6, 270.125, -5.0, "Entrance ramp"},
        {31, 32, 32, 330.5, -45.0, "Bicycle shed"},
    };
    for (const Preset &p : presets) {
        ptz_preset_entry &e = r.entries[p.slot];
        e.firstCoordinate = p.first;
        e.secondCoordinate = p.second;
        e.leadingNumber = p.leading;
        e.id = p.id;
        put(e.name, p.name);
    }
    return r;
}

ptz_others_record sample_others()
{
    ptz_others_record r{};
    r.limitingFlag = 1;
    r.inittilePos = 0;
    r.limittilePos = 90;
    r.trackEnable = 1;
    r.trackManualEnable = 0;
    r.pos3dEnable = 1;
    put(r.presetId, "1,2,3,6,32");
    r.curposinPreset = 3;
    r.presetIsLimit[0] = 1;
    r.presetIsLimit[1] = 0;
    r.presetIsLimit[2] = 0;
    r.presetIsLimit[3] = 1;
    return r;
}

ptz_run_status_record sample_run_status()
{
    ptz_run_status_record r{};
    r.isFisheye = 0;
    r.ptzRunStatus = 1;
    r.ptzTourStatus[1] = 1; // tour 2 is running
    r.ptzPatternStatus[0] = 0;
    return r;
}

ptz_track_point_record sample_track_points()
{
    ptz_track_point_record r{};
    r.frameWidth = 1920;
    r.frameHeight = 1080;
    r.personNum = 3;
    const int32_t boxes[3][6] = {
        {17, 1, 412, 300, 520, 610},
        {18, 1, 905, 280, 990, 560},
        {21, 2, 1400, 350, 1530, 700},
    };
    for (int p = 0; p < 3; ++p) {
        r.id[p] = boxes[p][0];
        r.type[p] = boxes[p][1];
        r.startX[p] = boxes[p][2];
        r.startY[p] = boxes[p][3];
        r.stopX[p] = boxes[p][4];
        r.stopY[p] = boxes[p][5];
    }
    return r;
}

ptz_basic_record sample_basic()
{
    ptz_basic_record r{};
    r.zoomStatus = 1;
    r.tiltStatus = 1;
    r.presetStatus = 1;
    r.focusMode = 1;
    r.focusDistance = 3;
    r.presetFreezing = 1;
    r.presetSpeed = 6;
    r.manualSpeed = 4;
    r.autoscanStatus = 0;
    r.patrolStatus = 1;
    r.patternStatus = 0;
    r.patrolRecovering = 1;
    r.patrolRecoveryTime = 30;
    r.resumeTime = 60;
    r.autoScanEnbale = 0;
    return r;
}

ptz_tour_info sample_tour()
{
    ptz_tour_info t{};
    t.tourNumber = 2;
    t.tourPointCount = 4;
    const int32_t stops[4][3] = {{1, 6, 10}, {2, 6, 15}, {3, 4, 20}, {6, 8, 10}};
    for (int p = 0; p < 4; ++p) {
        t.points[p].slot = p;
        t.points[p].ptzTourPresetPoint = stops[p][0];
        t.points[p].ptzTourPresetSpeed = stops[p][1];
        t.points[p].ptzTourPresetTime = stops[p][2];
    }
    t.ptzTourStatus = 1;
    return t;
}

ptz_auto_tracking_record sample_auto_tracking()
{
    ptz_auto_tracking_record r{};
    r.trackEnable = 1;
    r.reportMotion = 1;
    r.sensitivity = 60;
    r.maxTime = 120;
    r.showAutoEnable = 1;
    r.zoomMode = 1;
    r.zoomNumber = 8;
    r.object = 1;
    put(r.trackMap, "0,0,1920,1080;200,150,1700,950");
    r.zoomState = 0;
    weekly_schedule(r.schedule, "00:00-06:30,19:00-24:00", "00:00-24:00");
    return r;
}

// Samples kept as the web server keeps a page's record.
ptz_panel_status_record panel_status() { return ptz_panel_status_record{0, 1, 1, 0, 1, 1, 1, 1}; }
ptz_status_record status() { return ptz_status_record{4.5, 1, 0}; }
ptz_auto_home_record auto_home() { return ptz_auto_home_record{0, 1, 1, 1, 0, 180}; }
ptz_zoom_pos_record zoom_pos() { return ptz_zoom_pos_record{{1830, 2410}}; }
ptz_rs485_record rs485() { return ptz_rs485_record{1, 9600, 8, 1, 0, 0}; }
ptz_wiper_record wiper() { return ptz_wiper_record{1, 0}; }
ptz_scheduled_tasks_record scheduled_tasks()
{
    ptz_scheduled_tasks_record t{};
    t.enable = 1;
    t.recoveryTime = 300;
    weekly_schedule(t.schedule, "1:07:00-19:00,2:19:00-24:00", "2:00:00-24:00");
    return t;
}
ptz_limit_record limit()
{
    static const ptz_limit_settings settings{0, 1, 0, 1, 1, 0};
    return ptz_limit_record{&settings, 0, 0};
}
ptz_control_record control()
{
    static const ptz_tour_info tour = sample_tour();
    return ptz_control_record{2, &tour, nullptr, nullptr, nullptr, nullptr, 0, nullptr};
}

const CatalogEntry entries[] = {
    MW_READ_ONLY_ENTRY(ptz_panel_status, "which functions the PTZ control panel offers",
                       (kept<ptz_panel_status_record, panel_status>)),
    MW_READ_ONLY_ENTRY(ptz_status, "housing temperature, heater and fan",
                       (kept<ptz_status_record, status>)),
    MW_READ_ONLY_ENTRY(ptz_presets, "the stored presets with their positions and names", (kept<ptz_presets_record, sample_presets>)),
    MW_SETTABLE_ENTRY(ptz_others, "tilt limits, tracking switches and the preset list",
                      (kept<ptz_others_record, sample_others>)),
    MW_READ_ONLY_ENTRY(ptz_run_status, "which tour or pattern is running",
                       (kept<ptz_run_status_record, sample_run_status>)),
    MW_SETTABLE_ENTRY(ptz_auto_home, "return to a preset after a spell without control",
                      (kept<ptz_auto_home_record, auto_home>)),
    MW_READ_ONLY_ENTRY(ptz_track_point, "the people being tracked and their boxes",
                       (kept<ptz_track_point_record, sample_track_points>)),
    MW_READ_ONLY_ENTRY(ptz_zoom_pos, "the zoom motor positions",
                       (kept<ptz_zoom_pos_record, zoom_pos>)),
    MW_SETTABLE_ENTRY(ptz_rs485, "the RS-485 control line", (kept<ptz_rs485_record, rs485>)),
    MW_SETTABLE_ENTRY(ptz_wiper, "wiper mode and state", (kept<ptz_wiper_record, wiper>)),
    MW_SETTABLE_ENTRY(ptz_basic, "motion, focus and recovery settings", (kept<ptz_basic_record, sample_basic>)),
    MW_SETTABLE_ENTRY(ptz_limit, "manual and scan movement limits", (kept<ptz_limit_record, limit>)),
    MW_SETTABLE_ENTRY(ptz_scheduled_tasks, "the weekly scheduled tasks",
                      (kept<ptz_scheduled_tasks_record, scheduled_tasks>)),
    MW_READ_ONLY_ENTRY(ptz_control, "the state of the last control request (here a running tour)", (kept<ptz_control_record, control>)),
    MW_SETTABLE_ENTRY(ptz_auto_tracking, "auto tracking settings and schedule",
                      (kept<ptz_auto_tracking_record, sample_auto_tracking>)),
};

} // namespace

const CatalogGroup catalog_ptz = catalog_group("ptz", entries);
