#include "catalog.h"

#include <cstring>

namespace {

// Business hours on weekdays, the whole day at the weekend.
template <size_t N>
void put_week(char (&days)[7][N], const char *weekday, const char *weekend)
{
    for (int d = 0; d < 7; ++d)
        snprintf(days[d], N, "%s", (d == 0 || d == 6) ? weekend : weekday);
}

// A plate camera at a car-park barrier running the polygon engine, with speed
// measurement over two painted lines and night mode on a timer.
lpr_settings_record sample_settings()
{
    lpr_settings_record r{};
    r.lprEnable = 1;
    r.lprWidth = 1920;
    r.lprHeight = 1080;
    r.dayNightModeEnable = 1;
    r.effectivePresetsScene = 2;
    r.lprVersion = 4;
    r.speedDetect = 1;
    put(r.cameraHeight, "4.5");
    r.linePixel1 = 420;
    r.linePixel2 = 860;
    put(r.lineDistance1, "12.0");
    put(r.lineDistance2, "6.5");
    put(r.areaList, "Europe,North America,Middle East,Asia Pacific");
    put(r.noSupportSerialformatList, "Middle East");
    put(r.curArea, "Europe");
    r.directionEnable = 1;
    r.regionEnable = 1;
    r.roiIdEnable = 0;
    r.plateColorEnable = 1;
    r.vehicleTypeEnable = 1;
    r.vehicleColorEnable = 1;
    r.processMode = 1;
    r.repeatCheckTimeVal = 30;
    r.repeatCheckTimeUnit = 1;
    r.confidence = 75;
    r.nightModeEnable = 1;
    r.nightModeEffectiveTime = 2;
    r.nightModeStartHour = 19;
    r.nightModeStartMinute = 30;
    r.nightModeStopHour = 6;
    r.nightModeStopMinute = 45;
    r.nightModeLevel = 3;
    r.dayToNight = 12;
    r.nightToDay = 40;
    r.country = 44;
    r.encryptionChip = 1;
    r.areaType = 2;
    r.whiteLedExternal = 0;
    r.irLedExternal = 1;
    put_week(r.schedule, "0700-2000", "0000-2400");
    r.optimalPushMechanism = 1;
    return r;
}

lpr_settings_ext_record sample_settings_ext()
{
    lpr_settings_ext_record e{};
    e.vehicleBrandEnable = 1;
    e.vehicleEnhancement = 1;
    e.inputNo = 1;
    const char *names[4] = {"Entry lane", "Exit lane", "Barrier queue", "Kerb side"};
    for (int i = 0; i < 4; ++i) {
        const int32_t left = 120 + 440 * i;
        e.polygons[i] = lpr_polygon_entry{{left, left + 400, left + 420, left - 20}, {380, 380, 980, 980}, {}};
        put(e.polygons[i].name, names[i]);
    }
    e.detectionMode = 2;
    return e;
}

// Plate text on the lower left of the picture, and a caption strip on the
// snapshots with the device name and the read.
lpr_advanced_record sample_advanced()
{
    lpr_advanced_record r{};
    r.snapSeparator = 1;
    put(r.snapSort, "0,1,2,3,4,9,10,11,12");
    put(r.snapPosition, "bottom");
    put(r.snapDeviceId, "GATE-N-01");
    put(r.osdSort, "0,1,3,4,9,7");
    put(r.osdPositionName, "Car park, north gate");
    put(r.osdDeviceId, "GATE-N-01");
    r.osdFontSize = 32;
    put(r.osdFontColor, "#FFFFFF");
    r.osdBkgEnable = 1;
    put(r.osdBkgColor, "#000000");
    r.osdPosition = 2;
    const char *spaces[20] = {"2", "4", "1", "2", "1", "0", "0", "3", "3", "",
                              "1", "1", "1", "2", "0", "1", "1", "0", "0", "2"};
    for (int k = 0; k < 20; ++k)
        put(r.spaces[k], spaces[k]);
    r.snapshotResolution = 1;
    return r;
}

lpr_list_settings_record sample_list(int32_t enable, const char *weekday)
{
    lpr_list_settings_record r{};
    r.enable = enable;
    put_week(r.schedule, weekday, "0000-2400");
    return r;
}

// The last three reads at the north gate, the newest first.
const lpr_last_data_entry kLastReads[3] = {
    {"2026-11-21 18:42:07", "KX71 ZRD", "/mnt/sd/lpr/20261121/184207_1.jpg", "Entry lane", 1, 0, 812, 644, 1004, 692},
    {"2026-11-21 18:39:55", "WP19 HNA", "/mnt/sd/lpr/20261121/183955_1.jpg", "Exit lane", 2, 1, 1288, 602, 1470, 648},
    {"2026-11-21 18:31:12", "BD68 TUV", "/mnt/sd/lpr/20261121/183112_1.jpg", "Entry lane", 1, 0, 790, 660, 985, 707},
};

// A two-lane speed radar under the gantry, reporting in km/h, with speed
// limits and a weekly count export.
lpr_radar_config_record sample_radar()
{
    lpr_radar_config_record r{};
    r.enable = 1;
    put(r.height, "5.2");
    put(r.angle, "18");
    put(r.angleCom, "0.5");
    r.lanesNum = 2;
    put(r.laneWidth, "3.5");
    put(r.installLocation, "Gantry, lane centre");
    r.speedUnit = 0;
    r.laneRegion[0] = 1;
    r.laneRegion[1] = 2;
    r.triggerLine = 540;
    put(r.triggerDistance, "25");
    r.showLicensePlateEnable = 1;
    r.showDetectionRegionEnable = 0;
    r.showSpeedEnable = 1;
    r.showDirectionEnable = 1;
    r.showDistanceEnable = 0;
    r.showAzimuthEnable = 0;
    r.showCountingEnable = 1;
    r.fontSize = 24;
    put(r.fontColor, "#FFFF00");
    r.osdAutoReset = 1;
    r.osdResetWeekday = 1;
    r.osdResetHour = 0;
    r.osdResetMin = 0;
    r.osdResetSec = 0;
    r.maxSpeedAlarmEnable = 1;
    r.minSpeedAlarmEnable = 0;
    r.maxSpeedThreshold = 30;
    r.minSpeedThreshold = 5;
    r.drivingDirAlarmEnable = 1;
    r.drivingDir = 1;
    r.radarLevel = 3;
    r.countAlarm = 0;
    r.countThreshold = 500;
    r.debug = 0;
    r.upgrade = 0;
    put_week(r.schedule, "0600-2200", "0000-2400");
    r.exportEnable = 1;
    r.exportMethod = 1;
    r.exportWeekday = 1;
    r.exportResetHour = 2;
    r.exportResetMin = 30;
    r.exportResetSec = 0;
    r.exportTimeRange = 7;
    r.laneDirection[0] = 1;
    r.laneDirection[1] = 2;
    return r;
}

const lpr_radar_detect_entry kRadarTargets[2] = {
    {17, "28.4", "-1.6", "31.2", "approaching"},
    {18, "22.9", "1.9", "46.7", "leaving"},
};

// Rule 0 raises an alarm for vehicles without a plate entering through
// region 1; rule 1 for one plate colour, vehicle type and colour; rules 2
// and 3 are unused.
const lpr_attr_event_entry kAttrRules[4] = {
    {1, 1, 1, 1, 0, 0, 0},
    {1, 0, 0, 0, 2, 3, 1},
    {0, 0, 0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0, 0, 0},
};

lpr_attr_schedule sample_attr_schedule()
{
    lpr_attr_schedule s{};
    put_week(s.schedule[0], "0000-2400", "0000-2400");
    put_week(s.schedule[1], "0700-1900", "");
    return s;
}

lpr_list_settings_record black_list() { return sample_list(1, "0000-2400"); }
lpr_list_settings_record white_list() { return sample_list(1, "0600-2200"); }
lpr_list_settings_record visitor_list() { return sample_list(0, "0800-1800"); }
lpr_list_direction_record both_ways() { return lpr_list_direction_record{0, 0}; }
lpr_list_direction_record inbound() { return lpr_list_direction_record{0, 1}; }

lpr_list_sche_record sample_list_sche()
{
    lpr_list_sche_record s{};
    const char *tasks[4] = {"0000-2400", "0700-1900", "0800-1800", "2200-0600"};
    for (int rule = 0; rule < 4; ++rule)
        for (int d = 0; d < 7; ++d)
            put(s.ruleTaskday[rule][d], (rule == 2 && (d == 0 || d == 6)) ? "" : tasks[rule]);
    return s;
}

lpr_upload_status_record sample_upload_status() { return lpr_upload_status_record{1}; }

lpr_wildcards_record sample_wildcards()
{
    lpr_wildcards_record w{};
    w.filter = 1;
    const char *formats[4] = {"AA99AAA", "A999AAA", "AA9999", "99AAA9"};
    for (int i = 0; i < 4; ++i) {
        w.enable[i] = i < 3 ? 1 : 0;
        w.characterCount[i] = static_cast<int32_t>(strlen(formats[i]));
        put(w.format[i], formats[i]);
    }
    return w;
}

// A report page over the caller's entries and their count: the state holds
// the entries and the count, the page's argument. The web server passes no
// more entries than it holds, so a larger count lists the entries held.
template <typename Entry, size_t N, const Entry (&Sample)[N], int32_t SampleCount,
          int32_t (*Get)(int32_t, const Entry *, char *, int32_t),
          int32_t (*Schema)(int32_t, const Entry *, char *, int32_t)>
struct CountPage {
    struct State {
        int32_t count;
        Entry entries[N];
    };
    static State &of(void *state) { return *static_cast<State *>(state); }
    static int32_t held(void *state) { return of(state).count < static_cast<int32_t>(N) ? of(state).count : N; }
    static void initial(void *state)
    {
        of(state).count = SampleCount;
        memcpy(of(state).entries, Sample, sizeof Sample);
    }
    static int32_t render(void *state, char *dst, int32_t n) { return Get(held(state), of(state).entries, dst, n); }
    static int32_t schema(void *state, char *dst, int32_t n) { return Schema(held(state), of(state).entries, dst, n); }
    static int32_t *count(void *state) { return &of(state).count; }
    static int32_t sample(char *dst, int32_t n) { return Get(SampleCount, Sample, dst, n); }
    static void inputs(void *state, void **out)
    {
        of(state).count = held(state);
        out[0] = &of(state).count;
        out[1] = of(state).entries;
    }
    static constexpr PageOps ops{sizeof(State), initial, render, schema, nullptr, count, "count", 0,
                                 static_cast<int32_t>(N)};
};

// The radar self-test state: its one value is the page's argument.
struct RadarTestPage {
    static void initial(void *state) { *static_cast<int32_t *>(state) = 1; }
    static int32_t render(void *state, char *dst, int32_t n)
    {
        return get_lpr_radar_test_json(*static_cast<int32_t *>(state), dst, n);
    }
    static int32_t schema(void *state, char *dst, int32_t n)
    {
        return schema_lpr_radar_test_json(*static_cast<int32_t *>(state), dst, n);
    }
    static int32_t *value(void *state) { return static_cast<int32_t *>(state); }
    static int32_t sample(char *dst, int32_t n) { return get_lpr_radar_test_json(1, dst, n); }
    static void inputs(void *state, void **out) { out[0] = state; }
    // Any state the radar reports: the whole range of its int32_t.
    static constexpr PageOps ops{sizeof(int32_t), initial, render, schema, nullptr, value, "radarTest", INT32_MIN,
                                 INT32_MAX};
};

// The attribute rules: four rules the caller holds in an array, and their
// schedules. The page prints whatever buffer it is given.
struct AttrEventPage {
    struct State {
        lpr_attr_event_entry rules[4];
        lpr_attr_schedule schedule;
    };
    static State &of(void *state) { return *static_cast<State *>(state); }
    static void initial(void *state)
    {
        memcpy(of(state).rules, kAttrRules, sizeof kAttrRules);
        of(state).schedule = kept<lpr_attr_schedule, sample_attr_schedule>();
    }
    static int32_t render(void *state, char *dst, int32_t n)
    {
        return get_lpr_attr_event_json(of(state).rules, &of(state).schedule, dst, n);
    }
    static int32_t schema(void *state, char *dst, int32_t n)
    {
        return schema_lpr_attr_event_json(of(state).rules, &of(state).schedule, dst, n);
    }
    static int32_t set(void *state, const char *body, int32_t size, char *dst, int32_t n)
    {
        return set_lpr_attr_event_json(of(state).rules, &of(state).schedule, body, size, dst, n);
    }
    static int32_t sample(char *dst, int32_t n)
    {
        return get_lpr_attr_event_json(kAttrRules, &kept<lpr_attr_schedule, sample_attr_schedule>(), dst, n);
    }
    static void inputs(void *state, void **out)
    {
        out[0] = of(state).rules;
        out[1] = &of(state).schedule;
    }
    static constexpr PageOps ops{sizeof(State), initial, render, schema, set};
};

#define LPR_PAIR_ENTRY(resource, Record, Second, description, sample, secondSample)                            \
    page_entry<PairPage<Record, kept<Record, sample>, Second, kept<Second, secondSample>, get_##resource##_json, \
                        schema_##resource##_json, set_##resource##_json>>("get_" #resource "_json", description)

const CatalogEntry entries[] = {
    LPR_PAIR_ENTRY(lpr_settings, lpr_settings_record, lpr_settings_ext_record,
                   "plate recognition settings with the detection polygons and schedule", sample_settings,
                   sample_settings_ext),
    MW_SETTABLE_ENTRY(lpr_advanced, "layout of the plate overlay and of the snapshot caption",
                      (kept<lpr_advanced_record, sample_advanced>)),
    LPR_PAIR_ENTRY(lpr_black_settings, lpr_list_settings_record, lpr_list_direction_record,
                   "black list switch, direction and weekly schedule", black_list, both_ways),
    LPR_PAIR_ENTRY(lpr_white_settings, lpr_list_settings_record, lpr_list_direction_record,
                   "white list switch, direction and weekly schedule", white_list, inbound),
    LPR_PAIR_ENTRY(lpr_visitor_settings, lpr_list_settings_record, lpr_list_direction_record,
                   "visitor list switch, direction and weekly schedule", visitor_list, inbound),
    MW_SETTABLE_ENTRY(lpr_list_sche, "task schedules of the four plate list rules per weekday",
                      (kept<lpr_list_sche_record, sample_list_sche>)),
    MW_READ_ONLY_ENTRY(lpr_upload_status, "state of the plate result upload",
                       (kept<lpr_upload_status_record, sample_upload_status>)),
    MW_SETTABLE_ENTRY(lpr_wildcards, "plate-format wildcards of the plate filter",
                      (kept<lpr_wildcards_record, sample_wildcards>)),
    page_entry<CountPage<lpr_last_data_entry, 3, kLastReads, 3, get_lpr_last_data_json, schema_lpr_last_data_json>>(
        "get_lpr_last_data_json", "the most recent plate reads as numbered keys"),
    MW_SETTABLE_ENTRY(lpr_radar_config, "speed radar installation, overlay, alarms and export",
                      (kept<lpr_radar_config_record, sample_radar>)),
    page_entry<RadarTestPage>("get_lpr_radar_test_json", "state of the radar self-test"),
    page_entry<CountPage<lpr_radar_detect_entry, 2, kRadarTargets, 2, get_lpr_radar_detect_data_json,
                         schema_lpr_radar_detect_data_json>>("get_lpr_radar_detect_data_json",
                                                             "targets the speed radar currently tracks"),
    // The attribute rules print whatever buffer they are given.
    CatalogEntry{"get_lpr_attr_event_json", "plate-attribute alarm rules with their switches and schedules",
                 AttrEventPage::sample, false, &AttrEventPage::ops, AttrEventPage::inputs},
};

#undef LPR_PAIR_ENTRY

} // namespace

const CatalogGroup catalog_lpr = catalog_group("lpr", entries);
