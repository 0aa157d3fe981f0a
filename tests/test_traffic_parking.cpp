// The parking documents of the traffic group: polygon texts with their
// trailing colon, region and day counts, the reversed and reordered keys,
// unsigned bytes, and the second inputs given before the buffer.
#include "support.h"

#include <climits>
#include <cstdio>
#include <string>

namespace {

using test::A;
using test::N;
using test::S;

template <size_t Size>
void put(char (&field)[Size], const char *text)
{
    snprintf(field, Size, "%s", text);
}

// Region i gets corners that differ between regions, between X and Y, and
// between corners.
void fill_region(parking_region_entry &region, int i)
{
    for (int w = 0; w < 4; ++w)
        region.reserved[w] = 7000 + w; // must appear nowhere
    for (int j = 0; j < 4; ++j) {
        region.pointX[j] = 100 * i + j + 1;
        region.pointY[j] = -(100 * i + 10 * (j + 1));
    }
    snprintf(region.name, sizeof region.name, "zone %c", 'A' + i);
}

std::string polygon_x(int i)
{
    return std::to_string(100 * i + 1) + ":" + std::to_string(100 * i + 2) + ":" + std::to_string(100 * i + 3) + ":" +
           std::to_string(100 * i + 4) + ":";
}

std::string polygon_y(int i)
{
    return "-" + std::to_string(100 * i + 10) + ":-" + std::to_string(100 * i + 20) + ":-" +
           std::to_string(100 * i + 30) + ":-" + std::to_string(100 * i + 40) + ":";
}

week_schedule_block distinct_week()
{
    week_schedule_block w{};
    for (int d = 0; d < 7; ++d)
        snprintf(w.schedule[d], sizeof w.schedule[d], "%02d:00-%02d:00", d, d + 12);
    return w;
}

void expect_regions(const cJSON *list, int count)
{
    ASSERT_TRUE(cJSON_IsArray(list));
    ASSERT_EQ(cJSON_GetArraySize(list), count);
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE("region " + std::to_string(i));
        test::expect_members(test::element(list, i), {
            N("regionIndex", i), S("name", std::string("zone ") + static_cast<char>('A' + i)),
            S("polygonX", polygon_x(i)), S("polygonY", polygon_y(i)),
        });
    }
}

void expect_week(const cJSON *list, const week_schedule_block &w)
{
    ASSERT_TRUE(cJSON_IsArray(list));
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d) {
        SCOPED_TRACE("day " + std::to_string(d));
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", w.schedule[d])});
    }
}

TEST(ParkingDetection, EveryMemberInOrder)
{
    lpr_parking_detection_record r{};
    r.enable = 201; // bytes above 127 show an unsigned reading
    for (int i = 0; i < 4; ++i)
        fill_region(r.regions[i], i);
    r.pullEnable = 202;
    r.pullAgain = 3;
    r.afterTime = -4;
    r.periodicEnable = 5;
    r.period = -6;
    r.attachSnap = 7;
    r.postType = 208;
    r.tcpPort = 9010;
    put(r.httpUrl, "http://receiver/park");
    put(r.httpUser, "poster");
    put(r.httpPwd, "secret");
    r.saveSnap = 255;
    const week_schedule_block w = distinct_week();

    test::Json doc(test::rendered(
        [&](char *d, int32_t n) { return ware_get_lpr_parking_detection_json(&r, &w, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 201), A("detectionInfoList"), A("scheduleList"), N("pullEnable", 202), N("pullAgain", 3),
        N("afterTime", -4), N("periodicEnable", 5), N("period", -6), N("attachSnap", 7), N("postType", 208),
        N("tcpPort", 9010), S("httpUrl", "http://receiver/park"), S("httpUser", "poster"), S("httpPwd", "secret"),
        N("saveSnap", 255),
    });
    expect_regions(doc["detectionInfoList"], 4);
    expect_week(doc["scheduleList"], w);
}

TEST(ParkingDetection, PolygonTexts)
{
    struct Case {
        int32_t points[4];
        const char *text;
    };
    const Case cases[] = {
        {{10, 20, 30, 40}, "10:20:30:40:"},
        {{1, -2, 300, 0}, "1:-2:300:0:"},
        {{0, 0, 0, 0}, "0:0:0:0:"},
        {{INT32_MAX, 1, INT32_MAX, 2}, "2147483647:1:2147483647:2:"},
        // 48 characters: the widest four values fit the 63 whole.
        {{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN}, "-2147483648:-2147483648:-2147483648:-2147483648:"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        lpr_parking_detection_record r{};
        // X in region 2 only, Y in region 1 only: the others stay at zero.
        for (int j = 0; j < 4; ++j) {
            r.regions[2].pointX[j] = c.points[j];
            r.regions[1].pointY[j] = c.points[j];
        }
        const week_schedule_block w{};
        test::Json doc(test::rendered(
            [&](char *d, int32_t n) { return ware_get_lpr_parking_detection_json(&r, &w, d, n); }));
        const cJSON *list = doc["detectionInfoList"];
        const struct {
            int region;
            const char *key;
            std::string text;
        } expected[] = {
            {1, "polygonX", "0:0:0:0:"}, {1, "polygonY", c.text}, {2, "polygonX", c.text}, {2, "polygonY", "0:0:0:0:"},
        };
        for (const auto &e : expected) {
            const cJSON *text = test::member(test::element(list, e.region), e.key);
            ASSERT_TRUE(cJSON_IsString(text)) << "region " << e.region << " " << e.key;
            EXPECT_EQ(std::string(text->valuestring), e.text) << "region " << e.region << " " << e.key;
        }
    }
}

TEST(ParkingDetection, EmptyScheduleTextsStillGiveSevenDays)
{
    const lpr_parking_detection_record r{};
    const week_schedule_block w{};
    test::Json doc(test::rendered(
        [&](char *d, int32_t n) { return ware_get_lpr_parking_detection_json(&r, &w, d, n); }));
    expect_week(doc["scheduleList"], w);
    EXPECT_EQ(cJSON_GetArraySize(doc["detectionInfoList"]), 4);
}

TEST(ParkingViolation, ReversedNumbersThenTwoRegionsAndSevenDays)
{
    parking_violation_record r{};
    r.enable = 250;
    r.residenceTime = 120;
    r.permitVehicle = -3;
    for (int i = 0; i < 2; ++i)
        fill_region(r.regions[i], i);
    const week_schedule_block w = distinct_week();
    test::Json doc(
        test::rendered([&](char *d, int32_t n) { return ware_get_parking_violation_json(&r, &w, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 250), N("permitVehicle", -3), N("residenceTime", 120), A("detectionInfoList"),
        A("scheduleList"),
    });
    expect_regions(doc["detectionInfoList"], 2);
    expect_week(doc["scheduleList"], w);
}

TEST(ParkingGeneral, FiveSettingsWithTheAreaListBetween)
{
    parking_general_record r{};
    r.reserved0 = 99;
    r.countryRegion = 201;
    r.nightModeEnable = 2;
    r.nightModeLevel = 3;
    r.reserved1 = 98;
    r.areaType = 4;
    const struct {
        const char *areaList;
    } cases[] = {{"North,South,Level -1"}, {""}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.areaList);
        test::Json doc(test::rendered(
            [&](char *d, int32_t n) { return ware_get_parking_general_json(&r, c.areaList, d, n); }));
        test::expect_members(doc.root(), {
            N("areaType", 4), N("country/region", 201), S("areaList", c.areaList), N("nightModeEnable", 2),
            N("nightModeLevel", 3),
        });
    }
}

TEST(AutoExport, MethodComesLast)
{
    auto_export_record r{};
    r.reserved = 77;
    r.enable = 200;
    r.method = -1;
    r.weekday = 2;
    r.hour = 3;
    r.min = 4;
    r.sec = 5;
    r.timeRange = 6;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return ware_get_auto_export_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 200), N("weekday", 2), N("hour", 3), N("min", 4), N("sec", 5), N("timeRange", 6),
        N("method", -1),
    });
}

} // namespace
