// The traffic and parking documents: polygon texts with their trailing
// colon, region and day counts, reordered keys, signed and unsigned widths,
// floats widened to double, the index bases, and the result posting.
#include "support.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;

template <typename Fn, typename... In>
std::string render(Fn fn, const In &...in)
{
    return test::rendered([&](char *dst, int32_t n) { return fn(&in..., dst, n); });
}

week_schedule_block distinct_week()
{
    week_schedule_block w{};
    for (int d = 0; d < 7; ++d)
        snprintf(w.schedule[d], sizeof w.schedule[d], "%02d:00-%02d:00", d, d + 12);
    return w;
}

void expect_week(const cJSON *list, const week_schedule_block &w)
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", w.schedule[d])});
}

// Region i: X corners i1..i4, Y corners -i1..-i4 (i counted from 1), so the
// texts differ between regions, axes and corners.
void fill_regions(parking_region_entry *regions, int count)
{
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < 4; ++j) {
            regions[i].reserved[j] = 7000 + j;
            regions[i].pointX[j] = 10 * (i + 1) + j + 1;
            regions[i].pointY[j] = -regions[i].pointX[j];
        }
        snprintf(regions[i].name, sizeof regions[i].name, "zone %d", i);
    }
}

const char *const kPolygonX[] = {"11:12:13:14:", "21:22:23:24:", "31:32:33:34:", "41:42:43:44:"};
const char *const kPolygonY[] = {"-11:-12:-13:-14:", "-21:-22:-23:-24:", "-31:-32:-33:-34:", "-41:-42:-43:-44:"};

void expect_regions(const cJSON *list, const char *indexKey, int count)
{
    ASSERT_EQ(cJSON_GetArraySize(list), count);
    for (int i = 0; i < count; ++i)
        test::expect_members(test::element(list, i), {N(indexKey, i), S("name", "zone " + std::to_string(i)),
                                                      S("polygonX", kPolygonX[i]), S("polygonY", kPolygonY[i])});
}

TEST(ParkingDetection, EveryMemberInOrder)
{
    lpr_parking_detection_record r{201, {}, 202, 3, -4, 5, -6, 7, 208, 9010, "http://receiver/park", "poster",
                                   "secret", 255};
    fill_regions(r.regions, 4);
    const week_schedule_block w = distinct_week();
    test::Json doc(render(ware_get_lpr_parking_detection_json, r, w));
    test::expect_members(doc.root(), {
        N("enable", 201), A("detectionInfoList"), A("scheduleList"), N("pullEnable", 202), N("pullAgain", 3),
        N("afterTime", -4), N("periodicEnable", 5), N("period", -6), N("attachSnap", 7), N("postType", 208),
        N("tcpPort", 9010), S("httpUrl", "http://receiver/park"), S("httpUser", "poster"), S("httpPwd", "secret"),
        N("saveSnap", 255),
    });
    expect_regions(doc["detectionInfoList"], "regionIndex", 4);
    expect_week(doc["scheduleList"], w);
}

TEST(ParkingDetection, PolygonTexts)
{
    const struct {
        int32_t points[4];
        const char *text;
    } cases[] = {
        {{1, -2, 300, 0}, "1:-2:300:0:"},
        // 48 characters: the widest four values are written whole.
        {{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN}, "-2147483648:-2147483648:-2147483648:-2147483648:"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        lpr_parking_detection_record r{};
        memcpy(r.regions[3].pointX, c.points, sizeof c.points); // X of the last region only
        memcpy(r.regions[0].pointY, c.points, sizeof c.points); // Y of the first only
        test::Json doc(render(ware_get_lpr_parking_detection_json, r, week_schedule_block{}));
        const cJSON *list = doc["detectionInfoList"];
        test::expect_members(test::element(list, 0), {N("regionIndex", 0), S("name", ""),
                                                      S("polygonX", "0:0:0:0:"), S("polygonY", c.text)});
        test::expect_members(test::element(list, 3), {N("regionIndex", 3), S("name", ""),
                                                      S("polygonX", c.text), S("polygonY", "0:0:0:0:")});
    }
}

TEST(ParkingSettings, ReorderedKeys)
{
    parking_violation_record violation{250, 120, -3, {}};
    fill_regions(violation.regions, 2);
    const week_schedule_block w = distinct_week();
    test::Json doc(render(ware_get_parking_violation_json, violation, w));
    test::expect_members(doc.root(), {N("enable", 250), N("permitVehicle", -3), N("residenceTime", 120),
                                      A("detectionInfoList"), A("scheduleList")});
    expect_regions(doc["detectionInfoList"], "regionIndex", 2);
    expect_week(doc["scheduleList"], w);

    const parking_general_record general{99, 201, 2, 3, 98, 4};
    for (const char *areaList : {"North,South,Level -1", ""}) {
        test::Json g(test::rendered(
            [&](char *dst, int32_t n) { return ware_get_parking_general_json(&general, areaList, dst, n); }));
        test::expect_members(g.root(), {N("areaType", 4), N("country/region", 201), S("areaList", areaList),
                                        N("nightModeEnable", 2), N("nightModeLevel", 3)});
    }
    test::Json e(render(ware_get_auto_export_json, auto_export_record{77, 200, -1, 2, 3, 4, 5, 6}));
    test::expect_members(e.root(), {N("enable", 200), N("weekday", 2), N("hour", 3), N("min", 4), N("sec", 5),
                                    N("timeRange", 6), N("method", -1)});
}

TEST(VehicleCount, EveryMemberInEmissionOrder)
{
    vehicle_count_setting_record r{201, 2, 203, 4, 4000000005u, -6, 7, 8, 9, 10, 211, 12, 3000000013u, 14, 15, 16,
                                   17, 218, -19, {0, 1, 250}, {}, {}, {}};
    for (int k = 0; k < 3; ++k) {
        snprintf(r.httpUrl[k], sizeof r.httpUrl[k], "http://target%d/counts", k);
        snprintf(r.httpUser[k], sizeof r.httpUser[k], "user%d", k);
        snprintf(r.httpPassword[k], sizeof r.httpPassword[k], "pass%d", k);
    }
    const week_schedule_block w = distinct_week();
    test::Json doc(render(ware_get_vehicle_count_setting_json, r, w));
    test::expect_members(doc.root(), {
        N("enable", 201), N("showInformation", 2), N("countType", 4000000005.0), N("autoReset", -6),
        N("resetDayType", 7), N("resetHour", 8), N("resetMin", 9), N("resetSec", 10), N("infoTableLeft", 203),
        N("infoTableTop", 4), N("enablePost", 211), N("postMode", 12), N("attachSnapshot", 14), N("postType", 15),
        N("timeHour", 16), N("timeMin", 17), N("timeSec", 218), N("cameraPort", -19), N("interval", 3000000013.0),
        // The first target's texts, though that target is disabled.
        S("httpUrl", "http://target0/counts"), S("userName", "user0"), S("password", "pass0"), A("httpList"),
        A("scheduleList"),
    });
    for (int k = 0; k < 3; ++k) {
        const std::string n = std::to_string(k);
        test::expect_members(test::element(doc["httpList"], k), {
            N("index", k), N("enable", r.httpEnable[k]), S("url", "http://target" + n + "/counts"),
            S("user", "user" + n), S("password", "pass" + n)});
    }
    EXPECT_EQ(cJSON_GetArraySize(doc["httpList"]), 3);
    expect_week(doc["scheduleList"], w);
}

void expect_int_array(const cJSON *array, const std::vector<double> &values)
{
    ASSERT_TRUE(cJSON_IsArray(array));
    ASSERT_EQ(cJSON_GetArraySize(array), static_cast<int>(values.size()));
    for (int i = 0; i < cJSON_GetArraySize(array); ++i)
        EXPECT_EQ(test::element(array, i)->valuedouble, values[i]) << "element " << i;
}

TEST(ViolationManagement, EveryMemberInEmissionOrder)
{
    violation_management_record r{{3, -1, 0, 2}, {1, 0.1f, 0.25f, 0.75f, 0.5f}, {2, 1.5f, 1.25f, 1.75f, 1.125f},
                                  {3, 2.5f, 2.25f, 2.75f, 2.125f}, {204, -3.5f, 3.25f, 3.75f, 3.125f},
                                  205, 6, 207, -1, 8, -128, 127, 9, -10, -11, 12, 13, 214, -15, 16,
                                  {-4, 5, 6, 7}, {9000, 9001, 9002, 9003}, 217, {}, 18, 219, 20};
    for (int reg = 0; reg < 4; ++reg)
        for (int k = 0; k < 3; ++k) {
            const int base = 100 * reg + 10 * k;
            r.speedRules[reg][k] = speed_rule_entry{static_cast<uint8_t>(200 + base / 10), static_cast<uint8_t>(base / 10),
                                                    base + 1, -(base + 2), base + 3};
        }
    violation_polygon_record p{{8000, 8001, 8002, 8003}, {}};
    fill_regions(p.normalPolygons, 4);
    test::Json doc(render(ware_get_violation_management_json, r, p));
    test::expect_members(doc.root(), {
        A("laneDirection"), O("stopLine"), O("straightTriggerLine"), O("leftTurnTriggerLine"),
        O("rightTurnTriggerLine"), N("noPlatesEnable", 205), O("redLightRunning"), O("crossLineAtRedLight"),
        O("signalDocking"), N("delayOnRedLight", -11), O("reverseDriving"), N("violationCapture", 18),
        N("plateCapture", 219), N("targetCapture", 20), A("normalPolygonList"), N("speedMonitoringEnable", 217),
        O("speedMonitoringListNew"),
    });
    expect_int_array(doc["laneDirection"], {3, -1, 0, 2});
    const struct {
        const char *key;
        std::vector<test::Expected> members;
    } objects[] = {
        // A float is widened to the double nearest to it, not rounded to 0.1.
        {"stopLine",
         {N("enable", 1), N("startX", 0.10000000149011612), N("startY", 0.25), N("endX", 0.75), N("endY", 0.5)}},
        {"straightTriggerLine",
         {N("enable", 2), N("startX", 1.5), N("startY", 1.25), N("endX", 1.75), N("endY", 1.125)}},
        {"leftTurnTriggerLine",
         {N("enable", 3), N("startX", 2.5), N("startY", 2.25), N("endX", 2.75), N("endY", 2.125)}},
        {"rightTurnTriggerLine",
         {N("enable", 204), N("startX", -3.5), N("startY", 3.25), N("endX", 3.75), N("endY", 3.125)}},
        {"redLightRunning", {N("enable", 6), N("triggerCondition", 12), N("flaseStartEnable", 13)}},
        {"crossLineAtRedLight", {N("enable", 214), N("triggerCondition", -15)}},
        {"signalDocking",
         {N("dockingMode", 207), N("straightLaneRedLightInputNum", -1), N("straightLaneYellowLightInputNum", 8),
          N("leftTurnLaneRedLightInputNum", -128), N("leftTurnLaneYellowLightInputNum", 127),
          N("rightTurnLaneRedLightInputNum", 9), N("rightTurnLaneYellowLightInputNum", -10)}},
        {"reverseDriving", {N("enable", 16), A("triggerCondition")}},
    };
    for (const auto &o : objects) {
        SCOPED_TRACE(o.key);
        test::expect_members(doc[o.key], o.members);
    }
    expect_int_array(test::member(doc["reverseDriving"], "triggerCondition"), {-4, 5, 6, 7});
    expect_regions(doc["normalPolygonList"], "polygonIndex", 4);

    // The region keys count from 1, their "index" from 0.
    const cJSON *speeds = doc["speedMonitoringListNew"];
    EXPECT_EQ(test::keys(speeds), (std::vector<std::string>{"region1", "region2", "region3", "region4"}));
    for (int reg = 0; reg < 4; ++reg) {
        const cJSON *region = test::member(speeds, ("region" + std::to_string(reg + 1)).c_str());
        test::expect_members(region, {N("index", reg), A("rule")});
        const cJSON *rules = test::member(region, "rule");
        ASSERT_EQ(cJSON_GetArraySize(rules), 3);
        for (int k = 0; k < 3; ++k) {
            const int base = 100 * reg + 10 * k;
            test::expect_members(test::element(rules, k), {
                N("minSpeedEnable", 200 + base / 10), N("minSpeedThr", base + 1), N("maxSpeedEnable", base / 10),
                N("maxSpeedThr", -(base + 2)), N("vehicleType", base + 3)});
        }
    }
}

TEST(TrafficLightArea, TwoGroupsOfThreeAreasNumberedFromOne)
{
    const traffic_light_area_record r{{
        {7, 1, 2, 3, {1, 2, 3}, {{0.5f, 0.25f, 0.75f, 0.125f}, {1.5f, 1.25f, 1.75f, 1.125f}, {2.5f, 2, 3, 4}}},
        {200, -1, -128, 127, {4294967295u, 0, 2147483648u}, {{-1, -2, -3, -4}, {5, 6, 7, 8}, {9, 10, 11, 12.5f}}},
    }};
    test::Json doc(render(ware_get_traffic_light_area_json, r));
    test::expect_members(doc.root(), {A("trafficLightAreaList")});
    const cJSON *groups = doc["trafficLightAreaList"];
    ASSERT_EQ(cJSON_GetArraySize(groups), 2);
    test::expect_members(test::element(groups, 0),
                         {N("id", 7), N("straightLane", 1), N("leftTurnLane", 2), N("rightTurnLane", 3), A("areaList")});
    test::expect_members(test::element(groups, 1), {N("id", 200), N("straightLane", -1), N("leftTurnLane", -128),
                                                    N("rightTurnLane", 127), A("areaList")});
    for (int g = 0; g < 2; ++g) {
        const cJSON *areas = test::member(test::element(groups, g), "areaList");
        ASSERT_EQ(cJSON_GetArraySize(areas), 3);
        for (int a = 0; a < 3; ++a) {
            const traffic_light_rect &rect = r.groups[g].area[a];
            test::expect_members(test::element(areas, a), {
                N("index", a + 1), N("color", r.groups[g].color[a]), N("left", rect.left), N("top", rect.top),
                N("right", rect.right), N("bottom", rect.bottom)});
        }
    }
}

TEST(LprPost, EveryMemberInEmissionOrder)
{
    lpr_post_record r{-1, 555, 2, 203, -4, 4294967295u, {}, 205, "site/plates", -6, "broker.local", "mqttUser",
                      "mqttPass", 2147483655u, 99, {}, 4000000008u, 209, -10};
    for (int k = 0; k < 3; ++k) { // the first target disabled: still listed
        http_post_target &t = r.httpTargets[k];
        snprintf(t.user, sizeof t.user, "user%d", k);
        snprintf(t.password, sizeof t.password, "pass%d", k);
        snprintf(t.url, sizeof t.url, "http://receiver%d/plates", k);
        t.method = 3000000000u + static_cast<uint32_t>(k);
        t.enable = static_cast<uint8_t>(k == 0 ? 0 : 250 - k);
        t.snapshotType = static_cast<uint8_t>(10 + k);
        t.eventMask = 0x80000000u | static_cast<uint32_t>(k);
    }
    static_assert(sizeof(post_options) == 20, "twenty byte switches");
    for (int i = 0; i < 20; ++i) // numbered 1 to 20 in their stored order
        reinterpret_cast<uint8_t *>(&r.postOptions)[i] = static_cast<uint8_t>(i + 1);
    test::Json doc(render(ware_get_lpr_post_json, r));
    test::expect_members(doc.root(), {N("postEvents", 2), N("automaticRetransmission", 209), O("http"), O("tcp"),
                                      O("MQTT"), O("postOptions"), N("templateMode", 4000000008.0), O("more")});
    test::expect_members(doc["http"], {N("enable", -1), A("httpList")});
    test::expect_members(doc["tcp"], {N("enable", 203), N("port", -4), N("eventMask", 4294967295.0)});
    test::expect_members(doc["MQTT"], {N("enable", 205), S("topic", "site/plates"), N("port", -6),
                                       S("host", "broker.local"), S("user", "mqttUser"), S("password", "mqttPass"),
                                       N("eventMask", 2147483655.0)});
    // "gps", stored last, is written sixteenth, before the four images.
    test::expect_members(doc["postOptions"], {
        N("eventType", 1), N("deviceInfo", 2), N("time", 3), N("detectionRegion", 4), N("plate", 5),
        N("country", 6), N("plateType", 7), N("plateColor", 8), N("vehicleType", 9), N("vehicleColor", 10),
        N("brand", 11), N("direction", 12), N("eventData", 13), N("plateCoordinate", 14),
        N("vehicleCoordinate", 15), N("gps", 20), N("plateImage", 16), N("vehicleImage", 17), N("fullImage", 18),
        N("violationImage", 19)});
    test::expect_members(doc["more"], {N("metadataEnable", -10)});
    const cJSON *targets = test::member(doc["http"], "httpList");
    ASSERT_EQ(cJSON_GetArraySize(targets), 3);
    for (int k = 0; k < 3; ++k) {
        const std::string n = std::to_string(k);
        test::expect_members(test::element(targets, k), {
            N("index", k), N("enable", k == 0 ? 0 : 250 - k), S("url", "http://receiver" + n + "/plates"),
            S("user", "user" + n), S("password", "pass" + n), N("method", 3000000000.0 + k),
            N("snapshotType", 10 + k), N("eventMask", 2147483648.0 + k)});
    }
}

TEST(LprPostTemplate, ModeEventTypeAndText)
{
    for (const std::string &data : {std::string("{\"plate\":\"${plate}\"}"), std::string(4095, 'x')}) {
        lpr_post_template_record r{250, -3, {}};
        snprintf(r.data, sizeof r.data, "%s", data.c_str());
        test::Json doc(render(ware_get_lpr_post_template_json, r));
        test::expect_members(doc.root(), {N("mode", 250), N("eventType", -3), S("data", data)});
    }
}

} // namespace
