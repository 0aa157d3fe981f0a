// Heat maps, the automatic exports and the live people reports: the byte-wide
// switch, the order of the export keys, the export time text, and the lists
// whose length comes from a count in the record.
#include "support.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

template <typename T>
std::unique_ptr<T> poisoned()
{
    std::unique_ptr<T> r(new T);
    memset(static_cast<void *>(r.get()), 0xA5, sizeof(T));
    return r;
}

template <size_t N>
void put(char (&field)[N], const std::string &text)
{
    snprintf(field, N, "%s", text.c_str());
}

TEST(VcaHeatMap, SettingsMaskAndSchedule)
{
    auto in = poisoned<vca_heat_map_record>();
    in->enable = 1;
    in->sensitivity = 2;
    in->minSize = 3;
    in->minDwellTime = 4;
    in->adaptability = -5;
    const std::string mask = std::string(1200, 'm') + "end";
    put(in->mask, mask);
    in->supportHeatMap = 6;
    in->supportHeatMapEnable = 7;
    for (int d = 0; d < 7; ++d)
        put(in->schedule[d], "day" + std::to_string(d));

    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_vca_heat_map_json(in.get(), dst, n); }));
    test::expect_members(doc.root(), {N("enable", 1), N("sensitivity", 2), N("minSize", 3), N("minDwellTime", 4),
                                      N("adaptability", -5), S("mask", mask), N("supportHeatMap", 6),
                                      N("supportHeatMapEnable", 7), A("scheduleList")});
    const cJSON *days = doc["scheduleList"];
    ASSERT_EQ(cJSON_GetArraySize(days), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(days, d),
                             {N("scheduleIndex", d), S("schedule", "day" + std::to_string(d))});
}

// The switch is an unsigned byte: 200 stays 200.
TEST(VcaAutoExport, HeatMapExportPutsMethodLast)
{
    auto in = poisoned<vca_auto_export_heat_record>();
    in->enable = 200;
    in->method = 1;
    in->weekday = 2;
    in->hour = 3;
    in->min = 4;
    in->sec = 5;
    in->timeRange = -6;
    test::Json doc(
        test::rendered([&](char *dst, int32_t n) { return get_vca_auto_export_heat_json(in.get(), dst, n); }));
    test::expect_members(doc.root(), {N("enable", 200), N("weekday", 2), N("hour", 3), N("min", 4), N("sec", 5),
                                      N("timeRange", -6), N("method", 1)});
}

struct TimeCase {
    int32_t hour, minute, second;
    const char *text;
};

TEST(VcaAutoExport, RegionalExportTimeText)
{
    const TimeCase cases[] = {
        {8, 5, 0, "08:05:00"},
        {23, 59, 59, "23:59:59"},
        {0, 0, 0, "00:00:00"},
        {-1, 5, -30, "-1:05:-30"},
        {100, 7, 1234, "100:07:1234"},
        // 35 characters in full, cut to the first 31.
        {INT32_MIN, INT32_MIN, INT32_MIN, "-2147483648:-2147483648:-214748"},
    };
    for (const TimeCase &c : cases) {
        SCOPED_TRACE(c.text);
        auto in = poisoned<vca_regional_auto_export_record>();
        in->enable = 255;
        in->method = 1;
        in->weekday = 2;
        in->hour = c.hour;
        in->minute = c.minute;
        in->second = c.second;
        in->timeRange = 3;
        in->stayType = -4;
        in->stayLength = 5;
        test::Json doc(test::rendered(
            [&](char *dst, int32_t n) { return get_vca_regional_auto_export_json(in.get(), dst, n); }));
        test::expect_members(doc.root(), {N("enable", 255), N("method", 1), N("weekday", 2), S("time", c.text),
                                          N("timeRange", 3), N("stayType", -4), N("stayLength", 5)});
    }
}

// ---- person tracks ----

// Track i of array k holds 1000 * k + i; type is negative to catch a
// signed slip.
TEST(VcaPersonPoints, ListFollowsPersonNum)
{
    const int32_t counts[] = {0, -1, INT32_MIN, 1, 3, 256};
    for (int32_t count : counts) {
        SCOPED_TRACE("personNum " + std::to_string(count));
        auto in = poisoned<vca_person_point_record>();
        in->personNum = count;
        for (int i = 0; i < 256; ++i) {
            in->id[i] = 1000 + i;
            in->type[i] = -(2000 + i);
            in->startX[i] = 3000 + i;
            in->startY[i] = 4000 + i;
            in->stopX[i] = 5000 + i;
            in->stopY[i] = 6000 + i;
            in->alarmRegion[i] = 7000 + i;
        }
        test::Json doc(
            test::rendered([&](char *dst, int32_t n) { return get_vca_person_point_json(in.get(), dst, n); }));
        test::expect_members(doc.root(), {N("personNum", count), A("personList")});
        const cJSON *people = doc["personList"];
        const int expected = count > 0 ? count : 0;
        ASSERT_EQ(cJSON_GetArraySize(people), expected);
        for (int i = 0; i < expected; ++i)
            test::expect_members(test::element(people, i),
                                 {N("id", 1000 + i), N("type", -(2000 + i)), N("startX", 3000 + i),
                                  N("startY", 4000 + i), N("stopX", 5000 + i), N("stopY", 6000 + i),
                                  N("alarmRegion", 7000 + i)});
    }
}

TEST(VcaPeopleCountingData, FourLines)
{
    auto in = poisoned<vca_people_counting_data_record>();
    for (int l = 0; l < 4; ++l) {
        in->inCount[l] = 10 + l;
        in->outCount[l] = 20 + l;
        in->sumCount[l] = 30 + l;
        in->capacityCount[l] = -(40 + l);
    }
    test::Json doc(
        test::rendered([&](char *dst, int32_t n) { return get_vca_people_counting_data_json(in.get(), dst, n); }));
    test::expect_members(doc.root(), {A("peopleList")});
    const cJSON *lines = doc["peopleList"];
    ASSERT_EQ(cJSON_GetArraySize(lines), 4);
    for (int l = 0; l < 4; ++l)
        test::expect_members(test::element(lines, l), {N("index", l), N("inCount", 10 + l), N("outCount", 20 + l),
                                                       N("sumCount", 30 + l), N("capacityCount", -(40 + l))});
}

// ---- people per region ----

TEST(VcaRegionalPeopleData, RegionsThenPeopleWithFourStays)
{
    const int32_t counts[] = {0, -5, 1, 2, 50};
    for (int32_t count : counts) {
        SCOPED_TRACE("peopleCount " + std::to_string(count));
        auto in = poisoned<vca_regional_people_data_record>();
        in->regionsAlarmStatus = 1;
        in->regionsStayAlarmStatus = -2;
        for (int r = 0; r < 4; ++r)
            in->num[r] = 5 + r;
        for (int i = 0; i < 50; ++i) {
            in->id[i] = 100 + i;
            in->class_[i] = 200 + i;
            in->left[i] = 300 + i;
            in->top[i] = 400 + i;
            in->right[i] = 500 + i;
            in->bottom[i] = 600 + i;
            in->stayAlarmStatus[i] = 700 + i;
            in->exsitStatus[i] = -(800 + i);
            for (int r = 0; r < 4; ++r)
                in->stayTime[i][r] = 10000 + 10 * i + r;
        }
        in->peopleCount = count;

        test::Json doc(test::rendered(
            [&](char *dst, int32_t n) { return get_vca_regional_people_data_json(in.get(), dst, n); }));
        test::expect_members(doc.root(), {N("regionsAlarmStatus", 1), N("regionsStayAlarmStatus", -2),
                                          A("peopleNumList"), A("peopleDataInfo")});
        const cJSON *regions = doc["peopleNumList"];
        ASSERT_EQ(cJSON_GetArraySize(regions), 4);
        for (int r = 0; r < 4; ++r)
            test::expect_members(test::element(regions, r), {N("region", r), N("num", 5 + r)});

        const cJSON *people = doc["peopleDataInfo"];
        const int expected = count > 0 ? count : 0;
        ASSERT_EQ(cJSON_GetArraySize(people), expected);
        for (int i = 0; i < expected; ++i) {
            const cJSON *person = test::element(people, i);
            test::expect_members(person, {N("id", 100 + i), N("class", 200 + i), N("left", 300 + i),
                                          N("top", 400 + i), N("right", 500 + i), N("bottom", 600 + i),
                                          N("stayAlarmStatus", 700 + i), N("exsitStatus", -(800 + i)),
                                          A("peopleStayList")});
            const cJSON *stays = test::member(person, "peopleStayList");
            ASSERT_EQ(cJSON_GetArraySize(stays), 4);
            for (int r = 0; r < 4; ++r)
                test::expect_members(test::element(stays, r), {N("stayTime", 10000 + 10 * i + r)});
        }
    }
}

} // namespace
