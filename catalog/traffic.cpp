#include "catalog.h"

namespace {

void set_region(parking_region_entry &region, const char *name, int x0, int y0, int x1, int y1)
{
    put(region.name, name);
    const int xs[4] = {x0, x1, x1, x0};
    const int ys[4] = {y0, y0, y1, y1};
    for (int j = 0; j < 4; ++j) {
        region.pointX[j] = xs[j];
        region.pointY[j] = ys[j];
    }
}

// Bays watched from 06:00 to 22:00 on working days, all day at the weekend.
week_schedule_block sample_week()
{
    week_schedule_block w{};
    for (int d = 0; d < 7; ++d)
        put(w.schedule[d], d == 0 || d == 6 ? "00:00-24:00" : "06:00-22:00");
    return w;
}

// Four on-street bays, results pushed to the parking operator's server.
lpr_parking_detection_record sample_parking_detection()
{
    lpr_parking_detection_record r{};
    r.enable = 1;
    set_region(r.regions[0], "Bay 1", 40, 420, 300, 700);
    set_region(r.regions[1], "Bay 2", 320, 420, 620, 700);
    set_region(r.regions[2], "Bay 3", 640, 420, 940, 700);
    set_region(r.regions[3], "Bay 4 (disabled)", 960, 420, 1260, 700);
    r.pullEnable = 1;
    r.pullAgain = 1;
    r.afterTime = 30;
    r.periodicEnable = 1;
    r.period = 300;
    r.attachSnap = 1;
    r.postType = 1;
    r.tcpPort = 9010;
    put(r.httpUrl, "http://parking.example.net:8080/api/v1/bays/events");
    put(r.httpUser, "gate-north");
    put(r.httpPwd, "Bays!2026");
    r.saveSnap = 1;
    return r;
}

// The fire lane in front of the entrance: no vehicle but emergency ones.
parking_violation_record sample_parking_violation()
{
    parking_violation_record r{};
    r.enable = 1;
    r.residenceTime = 120;
    r.permitVehicle = 2;
    set_region(r.regions[0], "Fire lane", 200, 380, 1100, 620);
    set_region(r.regions[1], "Loading zone", 1120, 380, 1800, 640);
    return r;
}

// Counting both directions of a two-lane road, counts reset at midnight and
// posted every five minutes to the traffic office and a backup server.
vehicle_count_setting_record sample_vehicle_count()
{
    vehicle_count_setting_record r{};
    r.enable = 1;
    r.showInformation = 1;
    r.infoTableLeft = 2;
    r.infoTableTop = 5;
    r.countType = 2;
    r.autoReset = 1;
    r.resetDayType = 0;
    r.resetHour = 0;
    r.resetMin = 0;
    r.resetSec = 0;
    r.enablePost = 1;
    r.postMode = 1;
    r.interval = 300;
    r.attachSnapshot = 0;
    r.postType = 1;
    r.timeHour = 0;
    r.timeMin = 5;
    r.timeSec = 0;
    r.cameraPort = 8090;
    r.httpEnable[0] = 1;
    put(r.httpUrl[0], "http://traffic-office.example.net/counts");
    put(r.httpUser[0], "counter07");
    put(r.httpPassword[0], "Cnt-7f3a");
    r.httpEnable[1] = 1;
    put(r.httpUrl[1], "https://backup.example.net:8443/ingest/vehicle-count");
    put(r.httpUser[1], "camera");
    put(r.httpPassword[1], "b4ckup!");
    r.httpEnable[2] = 0;
    return r;
}

trigger_line line(uint8_t enable, float x0, float y0, float x1, float y1)
{
    trigger_line l{};
    l.enable = enable;
    l.startX = x0;
    l.startY = y0;
    l.endX = x1;
    l.endY = y1;
    return l;
}

// A junction approach with three lanes, a signal controller on the inputs,
// red-light, wrong-way and speed enforcement.
violation_management_record sample_violation_management()
{
    violation_management_record r{};
    const int32_t directions[4] = {1, 0, 2, 0};
    for (int i = 0; i < 4; ++i)
        r.laneDirection[i] = directions[i];
    r.stopLine = line(1, 0.08f, 0.62f, 0.94f, 0.66f);
    r.straightTriggerLine = line(1, 0.35f, 0.41f, 0.68f, 0.42f);
    r.leftTurnTriggerLine = line(1, 0.05f, 0.45f, 0.30f, 0.38f);
    r.rightTurnTriggerLine = line(0, 0.72f, 0.40f, 0.96f, 0.47f);
    r.noPlatesEnable = 1;
    r.redLightRunningEnable = 1;
    r.dockingMode = 1;
    r.straightLaneRedLightInputNum = 1;
    r.straightLaneYellowLightInputNum = 2;
    r.leftTurnLaneRedLightInputNum = 3;
    r.leftTurnLaneYellowLightInputNum = 4;
    r.rightTurnLaneRedLightInputNum = -1;
    r.rightTurnLaneYellowLightInputNum = -1;
    r.delayOnRedLight = 2;
    r.redLightTriggerCondition = 1;
    r.flaseStartEnable = 1;
    r.crossLineEnable = 1;
    r.crossLineTriggerCondition = 0;
    r.reverseDrivingEnable = 1;
    const int32_t reverse[4] = {1, 1, 1, 0};
    for (int i = 0; i < 4; ++i)
        r.reverseTriggerCondition[i] = reverse[i];
    r.speedMonitoringEnable = 1;
    for (int region = 0; region < 4; ++region) {
        const int32_t limits[3][3] = {{0, 10, 60}, {1, 10, 50}, {2, 5, 40}}; // vehicle type, min, max
        for (int k = 0; k < 3; ++k) {
            speed_rule_entry &rule = r.speedRules[region][k];
            rule.vehicleType = limits[k][0];
            rule.minSpeedThr = limits[k][1];
            rule.maxSpeedThr = limits[k][2] + 10 * (region % 2);
            rule.minSpeedEnable = k == 0 ? 1 : 0;
            rule.maxSpeedEnable = 1;
        }
    }
    r.violationCapture = 1;
    r.plateCapture = 1;
    r.targetCapture = 0;
    return r;
}

violation_polygon_record sample_violation_polygons()
{
    violation_polygon_record r{};
    set_region(r.normalPolygons[0], "Lane 1 left turn", 120, 560, 560, 1060);
    set_region(r.normalPolygons[1], "Lane 2 straight", 580, 560, 1040, 1060);
    set_region(r.normalPolygons[2], "Lane 3 straight/right", 1060, 560, 1560, 1060);
    set_region(r.normalPolygons[3], "Junction box", 300, 220, 1600, 540);
    return r;
}

// Two signal heads over the junction, each with red, yellow and green lamps.
traffic_light_area_record sample_traffic_lights()
{
    traffic_light_area_record r{};
    for (int g = 0; g < 2; ++g) {
        traffic_light_group &group = r.groups[g];
        group.id = static_cast<uint8_t>(g + 1);
        group.straightLane = static_cast<int8_t>(g == 0 ? 2 : 3);
        group.leftTurnLane = static_cast<int8_t>(g == 0 ? 1 : -1);
        group.rightTurnLane = static_cast<int8_t>(g == 0 ? -1 : 3);
        const float left = g == 0 ? 0.312f : 0.655f;
        for (int a = 0; a < 3; ++a) {
            group.color[a] = static_cast<uint32_t>(a + 1); // red, yellow, green
            group.area[a].left = left;
            group.area[a].top = 0.05f + 0.03f * static_cast<float>(a);
            group.area[a].right = left + 0.02f;
            group.area[a].bottom = 0.075f + 0.03f * static_cast<float>(a);
        }
    }
    return r;
}

// Plate results pushed to the car park's barrier server and to the city's
// broker; the third HTTP target is unused.
lpr_post_record sample_lpr_post()
{
    lpr_post_record r{};
    r.httpEnable = 1;
    r.postEvents = 1;
    r.tcpEnable = 1;
    r.tcpPort = 7200;
    r.tcpEventMask = 0x7u;
    http_post_target &barrier = r.httpTargets[0];
    put(barrier.user, "barrier");
    put(barrier.password, "Gate#North7");
    put(barrier.url, "http://192.168.1.30:8080/anpr/result");
    barrier.method = 1;
    barrier.enable = 1;
    barrier.snapshotType = 2;
    barrier.eventMask = 0x1fu;
    http_post_target &office = r.httpTargets[1];
    put(office.user, "parking-ops");
    put(office.password, "0ps-2026");
    put(office.url, "https://ops.example.net/api/plates?site=north");
    office.method = 1;
    office.enable = 1;
    office.snapshotType = 0;
    office.eventMask = 0x3u;
    r.httpTargets[2].method = 1;
    r.mqttEnable = 1;
    put(r.mqttTopic, "city/parking/north-gate/plates");
    r.mqttPort = 1883;
    put(r.mqttHost, "mqtt.example.net");
    put(r.mqttUser, "cam-north-gate");
    put(r.mqttPassword, "mq!2026n");
    r.mqttEventMask = 0xffffffffu;
    post_options &o = r.postOptions;
    o.eventType = 1;
    o.deviceInfo = 1;
    o.time = 1;
    o.detectionRegion = 1;
    o.plate = 1;
    o.country = 1;
    o.plateType = 1;
    o.plateColor = 1;
    o.vehicleType = 1;
    o.vehicleColor = 1;
    o.brand = 0;
    o.direction = 1;
    o.eventData = 0;
    o.plateCoordinate = 1;
    o.vehicleCoordinate = 0;
    o.plateImage = 1;
    o.vehicleImage = 0;
    o.fullImage = 1;
    o.violationImage = 0;
    o.gps = 0;
    r.templateMode = 1;
    r.automaticRetransmission = 1;
    r.metadataEnable = 1;
    return r;
}

parking_general_record sample_parking_general()
{
    parking_general_record g{};
    g.countryRegion = 7;
    g.nightModeEnable = 1;
    g.nightModeLevel = 2;
    g.areaType = 1;
    return g;
}

// The general parking page with the area list the web server passes beside
// the record (a text of the configuration's own).
struct ParkingGeneralPage {
    struct State {
        parking_general_record record;
        const char *areaList;
    };
    static State &of(void *state) { return *static_cast<State *>(state); }
    static constexpr const char *kAreas = "North car park,Level -1,Visitor bays";
    static void initial(void *state)
    {
        of(state).record = kept<parking_general_record, sample_parking_general>();
        of(state).areaList = kAreas;
    }
    static int32_t render(void *state, char *dst, int32_t n)
    {
        return ware_get_parking_general_json(&of(state).record, of(state).areaList, dst, n);
    }
    static int32_t schema(void *state, char *dst, int32_t n)
    {
        return ware_schema_parking_general_json(&of(state).record, of(state).areaList, dst, n);
    }
    static int32_t set(void *state, const char *body, int32_t size, char *dst, int32_t n)
    {
        return ware_set_parking_general_json(&of(state).record, of(state).areaList, body, size, dst, n);
    }
    static int32_t sample(char *dst, int32_t n)
    {
        return ware_get_parking_general_json(&kept<parking_general_record, sample_parking_general>(), kAreas, dst, n);
    }
    static void inputs(void *state, void **out)
    {
        out[0] = &of(state).record;
        out[1] = const_cast<char *>(of(state).areaList);
    }
    static constexpr PageOps ops{sizeof(State), initial, render, schema, set};
};

auto_export_record sample_auto_export()
{
    auto_export_record e{};
    e.enable = 1;
    e.method = 1;
    e.weekday = 1;
    e.hour = 2;
    e.min = 30;
    e.sec = 0;
    e.timeRange = 7;
    return e;
}

lpr_post_template_record sample_post_template()
{
    lpr_post_template_record t{};
    t.mode = 1;
    t.eventType = 24;
    put(t.data, "{\"plate\":\"${plate}\",\"time\":\"${time}\",\"lane\":\"${detectionRegion}\","
                "\"list\":\"black\",\"device\":\"${deviceName}\"}");
    return t;
}

#define WARE_ENTRY(resource, description, sample)                                                                 \
    page_entry<RecordPage<resource##_record, sample, ware_get_##resource##_json, ware_schema_##resource##_json,  \
                          ware_set_##resource##_json>>("ware_get_" #resource "_json", description)
#define WARE_ENTRY_WITH(resource, Second, description, sample, secondSample)                                      \
    page_entry<PairPage<resource##_record, sample, Second, secondSample, ware_get_##resource##_json,                \
                        ware_schema_##resource##_json, ware_set_##resource##_json>>("ware_get_" #resource "_json", \
                                                                                    description)

const CatalogEntry entries[] = {
    WARE_ENTRY_WITH(lpr_parking_detection, week_schedule_block,
                    "licence-plate parking detection: bays, schedule and result posting",
                    (kept<lpr_parking_detection_record, sample_parking_detection>),
                    (kept<week_schedule_block, sample_week>)),
    page_entry<ParkingGeneralPage>("ware_get_parking_general_json", "general parking settings and the area list"),
    WARE_ENTRY_WITH(parking_violation, week_schedule_block,
                    "parking-violation detection: regions, permitted vehicles, schedule",
                    (kept<parking_violation_record, sample_parking_violation>),
                    (kept<week_schedule_block, sample_week>)),
    WARE_ENTRY(auto_export, "weekly automatic export of parking results", (kept<auto_export_record, sample_auto_export>)),
    WARE_ENTRY_WITH(vehicle_count_setting, week_schedule_block, "vehicle counting, its posting targets and schedule",
                    (kept<vehicle_count_setting_record, sample_vehicle_count>),
                    (kept<week_schedule_block, sample_week>)),
    WARE_ENTRY_WITH(violation_management, violation_polygon_record,
                    "traffic violation detection: lines, signals, polygons and speed rules",
                    (kept<violation_management_record, sample_violation_management>),
                    (kept<violation_polygon_record, sample_violation_polygons>)),
    WARE_ENTRY(traffic_light_area, "where the traffic lights are in the image",
               (kept<traffic_light_area_record, sample_traffic_lights>)),
    WARE_ENTRY(lpr_post, "where licence-plate results are posted and what they carry",
               (kept<lpr_post_record, sample_lpr_post>)),
    WARE_ENTRY(lpr_post_template, "a stored message template for posted plate results",
               (kept<lpr_post_template_record, sample_post_template>)),
};

#undef WARE_ENTRY
#undef WARE_ENTRY_WITH

} // namespace

const CatalogGroup catalog_traffic = catalog_group("traffic", entries);
