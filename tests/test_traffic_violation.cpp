// Vehicle counting, violation management and traffic-light areas: emission
// order against record order, signed and unsigned widths, floats widened to
// double, the repeated first target, and the index bases (region keys from 1
// with indexes from 0, light areas from 1, polygons from 0).
#include "support.h"

#include <cstdio>
#include <string>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;

void expect_int_array(const cJSON *array, const std::vector<double> &values)
{
    ASSERT_TRUE(cJSON_IsArray(array));
    ASSERT_EQ(cJSON_GetArraySize(array), static_cast<int>(values.size()));
    for (size_t i = 0; i < values.size(); ++i) {
        const cJSON *item = test::element(array, static_cast<int>(i));
        ASSERT_TRUE(cJSON_IsNumber(item));
        EXPECT_EQ(item->valuedouble, values[i]) << "element " << i;
    }
}

TEST(VehicleCount, EveryMemberInEmissionOrder)
{
    vehicle_count_setting_record r{};
    r.enable = 201;
    r.showInformation = 2;
    r.infoTableLeft = 203;
    r.infoTableTop = 4;
    r.countType = 4000000005u; // above INT32_MAX: unsigned
    r.autoReset = -6;
    r.resetDayType = 7;
    r.resetHour = 8;
    r.resetMin = 9;
    r.resetSec = 10;
    r.enablePost = 211;
    r.postMode = 12;
    r.interval = 3000000013u;
    r.attachSnapshot = 14;
    r.postType = 15;
    r.timeHour = 16;
    r.timeMin = 17;
    r.timeSec = 218;
    r.cameraPort = -19;
    const uint8_t enables[3] = {0, 1, 250}; // the first target is disabled
    for (int k = 0; k < 3; ++k) {
        r.httpEnable[k] = enables[k];
        snprintf(r.httpUrl[k], sizeof r.httpUrl[k], "http://target%d/counts", k);
        snprintf(r.httpUser[k], sizeof r.httpUser[k], "user%d", k);
        snprintf(r.httpPassword[k], sizeof r.httpPassword[k], "pass%d", k);
    }
    week_schedule_block w{};
    for (int d = 0; d < 7; ++d)
        snprintf(w.schedule[d], sizeof w.schedule[d], "day %d", d * 3);

    test::Json doc(test::rendered(
        [&](char *d, int32_t n) { return ware_get_vehicle_count_setting_json(&r, &w, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 201), N("showInformation", 2), N("countType", 4000000005.0), N("autoReset", -6),
        N("resetDayType", 7), N("resetHour", 8), N("resetMin", 9), N("resetSec", 10), N("infoTableLeft", 203),
        N("infoTableTop", 4), N("enablePost", 211), N("postMode", 12), N("attachSnapshot", 14), N("postType", 15),
        N("timeHour", 16), N("timeMin", 17), N("timeSec", 218), N("cameraPort", -19), N("interval", 3000000013.0),
        // The first target's texts, though that target is disabled.
        S("httpUrl", "http://target0/counts"), S("userName", "user0"), S("password", "pass0"), A("httpList"),
        A("scheduleList"),
    });
    const cJSON *targets = doc["httpList"];
    ASSERT_EQ(cJSON_GetArraySize(targets), 3);
    for (int k = 0; k < 3; ++k) {
        SCOPED_TRACE("target " + std::to_string(k));
        const std::string n = std::to_string(k);
        test::expect_members(test::element(targets, k), {
            N("index", k), N("enable", enables[k]), S("url", "http://target" + n + "/counts"), S("user", "user" + n),
            S("password", "pass" + n),
        });
    }
    const cJSON *days = doc["scheduleList"];
    ASSERT_EQ(cJSON_GetArraySize(days), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(days, d), {N("scheduleIndex", d), S("schedule", "day " + std::to_string(d * 3))});
}

trigger_line make_line(uint8_t enable, float x0, float y0, float x1, float y1)
{
    trigger_line l{};
    l.enable = enable;
    l.startX = x0;
    l.startY = y0;
    l.endX = x1;
    l.endY = y1;
    return l;
}

// A violation record whose read fields all differ, with floats that a double
// holds exactly, and polygons whose texts differ per polygon and axis.
struct ViolationSample {
    violation_management_record r{};
    violation_polygon_record p{};

    ViolationSample()
    {
        const int32_t lanes[4] = {3, -1, 0, 2};
        const int32_t reverse[4] = {-4, 5, 6, 7};
        for (int i = 0; i < 4; ++i) {
            r.laneDirection[i] = lanes[i];
            r.reverseTriggerCondition[i] = reverse[i];
            r.reserved[i] = 9000 + i;
        }
        r.stopLine = make_line(1, 0.5f, 0.25f, 0.75f, 0.125f);
        r.straightTriggerLine = make_line(2, 1.5f, 1.25f, 1.75f, 1.125f);
        r.leftTurnTriggerLine = make_line(3, 2.5f, 2.25f, 2.75f, 2.125f);
        r.rightTurnTriggerLine = make_line(204, -3.5f, 3.25f, 3.75f, 3.125f);
        r.noPlatesEnable = 205;
        r.redLightRunningEnable = 6;
        r.dockingMode = 207;
        r.straightLaneRedLightInputNum = -1;
        r.straightLaneYellowLightInputNum = 8;
        r.leftTurnLaneRedLightInputNum = -128;
        r.leftTurnLaneYellowLightInputNum = 127;
        r.rightTurnLaneRedLightInputNum = 9;
        r.rightTurnLaneYellowLightInputNum = -10;
        r.delayOnRedLight = -11;
        r.redLightTriggerCondition = 12;
        r.flaseStartEnable = 13;
        r.crossLineEnable = 214;
        r.crossLineTriggerCondition = -15;
        r.reverseDrivingEnable = 16;
        r.speedMonitoringEnable = 217;
        for (int reg = 0; reg < 4; ++reg)
            for (int k = 0; k < 3; ++k) {
                speed_rule_entry &rule = r.speedRules[reg][k];
                const int base = 100 * reg + 10 * k;
                rule.minSpeedEnable = static_cast<uint8_t>(200 + 10 * reg + k);
                rule.maxSpeedEnable = static_cast<uint8_t>(10 * reg + k);
                rule.minSpeedThr = base + 1;
                rule.maxSpeedThr = -(base + 2);
                rule.vehicleType = base + 3;
            }
        r.violationCapture = 18;
        r.plateCapture = 219;
        r.targetCapture = 20;
        for (int i = 0; i < 4; ++i)
            p.reserved[i] = 8000 + i;
        for (int q = 0; q < 4; ++q) {
            for (int j = 0; j < 4; ++j) {
                p.normalPolygons[q].pointX[j] = 10 * q + j;
                p.normalPolygons[q].pointY[j] = -(10 * q + j);
            }
            snprintf(p.normalPolygons[q].name, sizeof p.normalPolygons[q].name, "lane %d", q + 1);
        }
    }
};

TEST(ViolationManagement, RootMembersInEmissionOrder)
{
    const ViolationSample s;
    test::Json doc(test::rendered(
        [&](char *d, int32_t n) { return ware_get_violation_management_json(&s.r, &s.p, d, n); }));
    test::expect_members(doc.root(), {
        A("laneDirection"), O("stopLine"), O("straightTriggerLine"), O("leftTurnTriggerLine"),
        O("rightTurnTriggerLine"), N("noPlatesEnable", 205), O("redLightRunning"), O("crossLineAtRedLight"),
        O("signalDocking"), N("delayOnRedLight", -11), O("reverseDriving"), N("violationCapture", 18),
        N("plateCapture", 219), N("targetCapture", 20), A("normalPolygonList"), N("speedMonitoringEnable", 217),
        O("speedMonitoringListNew"),
    });
    expect_int_array(doc["laneDirection"], {3, -1, 0, 2});
}

TEST(ViolationManagement, LinesSignalsAndSwitches)
{
    const ViolationSample s;
    test::Json doc(test::rendered(
        [&](char *d, int32_t n) { return ware_get_violation_management_json(&s.r, &s.p, d, n); }));
    const struct {
        const char *key;
        std::vector<test::Expected> members;
    } objects[] = {
        {"stopLine", {N("enable", 1), N("startX", 0.5), N("startY", 0.25), N("endX", 0.75), N("endY", 0.125)}},
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
}

TEST(ViolationManagement, PolygonsComeFromTheSecondInput)
{
    const ViolationSample s;
    test::Json doc(test::rendered(
        [&](char *d, int32_t n) { return ware_get_violation_management_json(&s.r, &s.p, d, n); }));
    const char *const xs[4] = {"0:1:2:3:", "10:11:12:13:", "20:21:22:23:", "30:31:32:33:"};
    const char *const ys[4] = {"0:-1:-2:-3:", "-10:-11:-12:-13:", "-20:-21:-22:-23:", "-30:-31:-32:-33:"};
    const cJSON *list = doc["normalPolygonList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    for (int q = 0; q < 4; ++q) {
        SCOPED_TRACE("polygon " + std::to_string(q));
        test::expect_members(test::element(list, q), {
            N("polygonIndex", q), S("name", "lane " + std::to_string(q + 1)), S("polygonX", xs[q]),
            S("polygonY", ys[q]),
        });
    }
}

TEST(ViolationManagement, SpeedRegionsCountFromOneWithIndexesFromZero)
{
    const ViolationSample s;
    test::Json doc(test::rendered(
        [&](char *d, int32_t n) { return ware_get_violation_management_json(&s.r, &s.p, d, n); }));
    const cJSON *speeds = doc["speedMonitoringListNew"];
    EXPECT_EQ(test::keys(speeds), (std::vector<std::string>{"region1", "region2", "region3", "region4"}));
    for (int reg = 0; reg < 4; ++reg) {
        const std::string key = "region" + std::to_string(reg + 1);
        SCOPED_TRACE(key);
        const cJSON *region = test::member(speeds, key.c_str());
        test::expect_members(region, {N("index", reg), A("rule")});
        const cJSON *rules = test::member(region, "rule");
        ASSERT_EQ(cJSON_GetArraySize(rules), 3);
        for (int k = 0; k < 3; ++k) {
            SCOPED_TRACE("rule " + std::to_string(k));
            const int base = 100 * reg + 10 * k;
            test::expect_members(test::element(rules, k), {
                N("minSpeedEnable", 200 + 10 * reg + k), N("minSpeedThr", base + 1),
                N("maxSpeedEnable", 10 * reg + k), N("maxSpeedThr", -(base + 2)), N("vehicleType", base + 3),
            });
        }
    }
}

TEST(ViolationManagement, FloatIsWidenedNotRounded)
{
    violation_management_record r{};
    r.stopLine.startX = 0.1f;
    const violation_polygon_record p{};
    const std::string text = test::rendered(
        [&](char *d, int32_t n) { return ware_get_violation_management_json(&r, &p, d, n); });
    test::Json doc(text);
    const cJSON *startX = test::member(doc["stopLine"], "startX");
    ASSERT_TRUE(cJSON_IsNumber(startX));
    EXPECT_EQ(startX->valuedouble, 0.10000000149011612);
    EXPECT_NE(text.find("0.10000000149011612"), std::string::npos);
}

TEST(TrafficLightArea, TwoGroupsOfThreeAreasNumberedFromOne)
{
    traffic_light_area_record r{};
    const uint32_t colors[2][3] = {{1, 2, 3}, {4294967295u, 0, 2147483648u}};
    for (int g = 0; g < 2; ++g) {
        traffic_light_group &group = r.groups[g];
        group.id = static_cast<uint8_t>(g == 0 ? 7 : 200);
        group.straightLane = static_cast<int8_t>(g == 0 ? 1 : -1);
        group.leftTurnLane = static_cast<int8_t>(g == 0 ? 2 : -128);
        group.rightTurnLane = static_cast<int8_t>(g == 0 ? 3 : 127);
        for (int a = 0; a < 3; ++a) {
            group.color[a] = colors[g][a];
            const float base = static_cast<float>(10 * g + a);
            group.area[a].left = base + 0.5f;
            group.area[a].top = base + 0.25f;
            group.area[a].right = base + 0.75f;
            group.area[a].bottom = base + 0.125f;
        }
    }
    test::Json doc(test::rendered([&](char *d, int32_t n) { return ware_get_traffic_light_area_json(&r, d, n); }));
    test::expect_members(doc.root(), {A("trafficLightAreaList")});
    const cJSON *groups = doc["trafficLightAreaList"];
    ASSERT_EQ(cJSON_GetArraySize(groups), 2);
    const double lanes[2][4] = {{7, 1, 2, 3}, {200, -1, -128, 127}};
    for (int g = 0; g < 2; ++g) {
        SCOPED_TRACE("group " + std::to_string(g));
        const cJSON *group = test::element(groups, g);
        test::expect_members(group, {
            N("id", lanes[g][0]), N("straightLane", lanes[g][1]), N("leftTurnLane", lanes[g][2]),
            N("rightTurnLane", lanes[g][3]), A("areaList"),
        });
        const cJSON *areas = test::member(group, "areaList");
        ASSERT_EQ(cJSON_GetArraySize(areas), 3);
        for (int a = 0; a < 3; ++a) {
            SCOPED_TRACE("area " + std::to_string(a));
            const double base = 10 * g + a;
            test::expect_members(test::element(areas, a), {
                N("index", a + 1), N("color", colors[g][a]), N("left", base + 0.5), N("top", base + 0.25),
                N("right", base + 0.75), N("bottom", base + 0.125),
            });
        }
    }
}

} // namespace
