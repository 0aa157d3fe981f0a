// The PTZ configuration documents: serial line, wiper, motion, limits,
// scheduled tasks, the control state and auto tracking.
#include "support.h"

#include <cstdio>
#include <string>
#include <vector>

using test::A;
using test::N;
using test::S;

namespace {

template <typename Record, typename Fn>
std::string render(Fn fn, const Record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return fn(&r, dst, n); });
}

// "scheduleList": day d from 0 with its text.
void expect_schedule_list(const cJSON *list, const char (&days)[7][256])
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", days[d])});
}

template <size_t N>
void fill_week(char (&days)[7][N])
{
    for (int d = 0; d < 7; ++d)
        snprintf(days[d], N, "day%d:%02d:00-%02d:00", d, d, d + 10);
}

TEST(PtzFlatDocuments, Rs485SkipsTheLeadingWord)
{
    const ptz_rs485_record r{-1, 9600, 8, 2, 3, 4};
    test::Json doc(render(get_ptz_rs485_json, r));
    test::expect_members(doc.root(), {N("baudrate", 9600), N("dataBit", 8), N("stopBit", 2), N("checkBit", 3),
                                      N("flowCtrl", 4)});
}

TEST(PtzFlatDocuments, Wiper)
{
    const ptz_wiper_record r{1, -2};
    test::Json doc(render(get_ptz_wiper_json, r));
    test::expect_members(doc.root(), {N("autoWiper", 1), N("status", -2)});
}

TEST(PtzFlatDocuments, BasicInPageOrderWithUnsignedFields)
{
    ptz_basic_record r{};
    r.zoomStatus = 1;
    r.tiltStatus = 2;
    r.presetStatus = 3;
    r.reserved0 = -100;
    r.focusMode = 4294967295u;
    r.focusDistance = 4000000000u;
    r.reserved1 = 201;
    r.presetFreezing = 255;
    r.presetSpeed = 3000000000u;
    r.manualSpeed = 9;
    r.reserved2 = -101;
    r.autoscanStatus = 10;
    r.patrolStatus = 11;
    r.patternStatus = -12;
    r.patrolRecovering = 200;
    r.patrolRecoveryTime = 13;
    r.reserved3 = -102;
    r.resumeTime = 14;
    r.autoScanEnbale = 15;
    test::Json doc(render(get_ptz_basic_json, r));
    test::expect_members(doc.root(),
                         {N("zoomStatus", 1), N("tiltStatus", 2), N("presetStatus", 3), N("patrolStatus", 11),
                          N("patternStatus", -12), N("autoscanStatus", 10), N("presetFreezing", 255),
                          N("presetSpeed", 3000000000.0), N("manualSpeed", 9), N("patrolRecovering", 200),
                          N("patrolRecoveryTime", 13), N("focusMode", 4294967295.0),
                          N("focusDistance", 4000000000.0), N("resumeTime", 14), N("autoScanEnbale", 15)});
}

TEST(PtzFlatDocuments, LimitReadsModesThroughTheSettings)
{
    const ptz_limit_settings settings{-5, 1, 2, 4294967295u, 3, 4000000000u};
    const ptz_limit_record r{&settings, 5, -6};
    test::Json doc(render(get_ptz_limit_json, r));
    test::expect_members(doc.root(),
                         {N("mode", 4294967295.0), N("manualLimitEnable", 1), N("manualLimitStatus", 3),
                          N("manualLimited", 5), N("scanLimitEnable", 2), N("scanLimitStatus", 4000000000.0),
                          N("scanLimited", -6)});
}

TEST(PtzScheduledTasks, SevenDaysFromZero)
{
    ptz_scheduled_tasks_record r{};
    r.enable = 1;
    r.recoveryTime = 300;
    fill_week(r.schedule);
    test::Json doc(render(get_ptz_scheduled_tasks_json, r));
    test::expect_members(doc.root(), {N("enable", 1), N("recoveryTime", 300), A("scheduleList")});
    expect_schedule_list(doc["scheduleList"], r.schedule);
}

TEST(PtzAutoTracking, PageOrderMapAndSchedule)
{
    ptz_auto_tracking_record r{};
    r.trackEnable = 1;
    r.reportMotion = 250;
    r.sensitivity = -3;
    r.maxTime = 120;
    r.showAutoEnable = 4;
    r.zoomMode = 5;
    r.zoomNumber = 6;
    r.object = 207;
    snprintf(r.trackMap, sizeof r.trackMap, "%s", "0,0,1920,1080");
    r.zoomState = 8;
    fill_week(r.schedule);
    test::Json doc(render(get_ptz_auto_tracking_json, r));
    test::expect_members(doc.root(),
                         {N("trackEnable", 1), N("showAutoEnable", 4), N("reportMotion", 250), N("sensitivity", -3),
                          N("maxTime", 120), N("object", 207), N("zoomMode", 5), N("zoomNumber", 6),
                          N("zoomState", 8), S("trackMap", "0,0,1920,1080"), A("scheduleList")});
    expect_schedule_list(doc["scheduleList"], r.schedule);
}

// ---- the control state: only the first group that applies ----

struct ControlFixture {
    ptz_tour_info tour{};
    double position[3] = {12.5, -45.25, 3.14159};
    int32_t threeD = 7;
    int32_t dehumidify = -8;
    ptz_pattern_info pattern{};

    ControlFixture()
    {
        tour.tourNumber = 99;
        tour.tourPointCount = 2;
        for (int p = 0; p < 3; ++p) // the third stop is beyond the count
            tour.points[p] = ptz_tour_point_entry{-1, 10 + p, 20 + p, 30 + p};
        tour.ptzTourStatus = 4;
        pattern = ptz_pattern_info{1, 99, 7, 98, -2};
    }
};

const std::vector<test::Expected> kTour = {N("ptzTourPoint", 3), N("ptzTourStatus", 4), A("tourPresetInfo")};
const std::vector<test::Expected> kPosition = {S("ptzPanPos", "12.50"), S("ptzTiltPos", "-45.25"),
                                               S("ptzZoomPos", "3.14")};
const std::vector<test::Expected> kThreeD = {N("ptz3dPositionEnable", 7)};
const std::vector<test::Expected> kDehumidify = {N("ptzDehumidifyEnable", -8)};
const std::vector<test::Expected> kPattern = {N("ptzPatternPoint", 2), N("ptzPatternIsRecord", 1),
                                              N("ptzPatternPatStatus", 1), N("ptzPatternPlayStatus", -2)};

TEST(PtzControl, FirstFilledGroupWins)
{
    ControlFixture f;
    struct Case {
        const char *what;
        ptz_control_record record;
        std::vector<test::Expected> want;
    };
    const Case cases[] = {
        {"everything set", {3, &f.tour, &f, f.position, &f.threeD, &f.dehumidify, 2, &f.pattern}, kTour},
        {"tour point 0", {0, &f.tour, nullptr, f.position, &f.threeD, nullptr, 2, &f.pattern}, kPosition},
        {"negative tour point", {-3, &f.tour, nullptr, f.position, nullptr, nullptr, 0, nullptr}, kPosition},
        {"tour point without a tour", {3, nullptr, nullptr, f.position, nullptr, nullptr, 0, nullptr}, kPosition},
        {"3D after position", {0, nullptr, nullptr, nullptr, &f.threeD, &f.dehumidify, 2, &f.pattern}, kThreeD},
        {"dehumidifier", {0, nullptr, nullptr, nullptr, nullptr, &f.dehumidify, 2, &f.pattern}, kDehumidify},
        {"pattern", {0, nullptr, nullptr, nullptr, nullptr, nullptr, 2, &f.pattern}, kPattern},
        {"pattern point 0", {0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &f.pattern}, {}},
        {"pattern point without a pattern", {0, nullptr, nullptr, nullptr, nullptr, nullptr, 2, nullptr}, {}},
        {"nothing set", {0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr}, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        test::Json doc(render(get_ptz_control_json, c.record));
        test::expect_members(doc.root(), c.want);
    }
}

TEST(PtzControl, TourStopsUpToTheCount)
{
    ControlFixture f;
    for (int32_t count : {0, -1, 2, 3}) {
        f.tour.tourPointCount = count;
        const ptz_control_record r{3, &f.tour, nullptr, nullptr, nullptr, nullptr, 0, nullptr};
        test::Json doc(render(get_ptz_control_json, r));
        const cJSON *list = doc["tourPresetInfo"];
        ASSERT_TRUE(cJSON_IsArray(list));
        const int32_t shown = count > 0 ? count : 0;
        ASSERT_EQ(cJSON_GetArraySize(list), shown) << "count " << count;
        for (int p = 0; p < shown; ++p)
            test::expect_members(test::element(list, p), {N("ptzTourPresetPoint", 10 + p),
                                                          N("ptzTourPresetSpeed", 20 + p),
                                                          N("ptzTourPresetTime", 30 + p)});
    }
}

TEST(PtzControl, PatternStatusIsZeroOrOne)
{
    ControlFixture f;
    struct Case {
        int32_t patStatus;
        int32_t shown;
    };
    for (const Case &c : {Case{0, 0}, Case{1, 1}, Case{7, 1}, Case{-3, 1}}) {
        f.pattern.patStatus = c.patStatus;
        const ptz_control_record r{0, nullptr, nullptr, nullptr, nullptr, nullptr, 5, &f.pattern};
        test::Json doc(render(get_ptz_control_json, r));
        test::expect_members(doc.root(), {N("ptzPatternPoint", 5), N("ptzPatternIsRecord", 1),
                                          N("ptzPatternPatStatus", c.shown), N("ptzPatternPlayStatus", -2)});
    }
}

} // namespace
