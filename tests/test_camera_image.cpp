// The image-settings, day/night and sensor pages: every key in its place,
// the weekly task texts and their 31-character slot cut, the one-based IR-cut
// intervals, the two-decimal times and the percentage levels.
#include "support.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

std::unique_ptr<camera_setting_record> blank_setting()
{
    return std::unique_ptr<camera_setting_record>(new camera_setting_record{});
}

// Every read member distinct, unsigned members above the signed range of
// their width where a slip would show, signed members negative.
std::unique_ptr<camera_setting_record> distinct_setting()
{
    auto r = blank_setting();
    r->blcRegion = 1;
    r->blcExclusive = 2;
    r->doorMode = 3;
    r->powerlineFreq = 200;
    r->dayToNight = 4000000001u;
    r->nightToDay = 4000000002u;
    r->d2nSensitivity = 4000000003u;
    r->n2dSensitivity = 4000000004u;
    r->mirrorCorridor = 5;
    r->imageRotation = 6;
    r->brightness = 7;
    r->contrast = 8;
    r->colorSaturation = 9;
    r->sharpness = 10;
    r->nfLevel = 11;
    r->dnr2Level = 12;
    r->smartIrMode = 13;
    r->irBlanceMode = 14;
    r->nearViewIrLevel = 15;
    r->farViewIrLevel = 16;
    r->middleViewIrLevel = 17;
    r->whiteLedLevel = 18;
    r->exposureMode = 19;
    r->exposureTime = 20;
    r->reserved0 = 99;
    r->exposureGain = 21;
    r->whiteBalanceMode = 22;
    r->whiteBalanceRedGain = 23;
    r->whiteBalanceBlueGain = 255;
    r->reserved1 = 98;
    r->defogMode = 24;
    r->antiFogIntensity = 25;
    r->digitalImageStabilisation = 26;
    r->dnSwitchRefocus = 27;
    r->hlcMode = 28;
    r->hlcLevel = 29;
    r->dayEnhancementMode = 30;
    r->nightEnhancementMode = 31;
    r->scheduleMode = 32;
    r->wdrLevel = 33;
    r->wdrAflevel = 34;
    r->sensorMode = 3000000000u;
    r->distortCorrect = 35;
    r->fovAdjust = 3000000001u;
    r->enblur = 36;
    r->deblur = 37;
    r->aspectRatio = 38;
    r->zoomLimit = 39;
    r->dayNightSensitivity = -1;
    r->ledMode = -2;
    r->focusMode = -3;
    r->smokedDomeCover = -4;
    r->iricrDayHour = -5;
    r->iricrDayMinute = -6;
    r->iricrNightHour = -7;
    r->iricrNightMinute = -8;
    r->irCutFilter = -9;
    r->iricrGpinStatus = -10;
    r->iricrGpinNumber = -11;
    r->pirDuration = -12;
    r->wdrMode = -13;
    r->wdrStartHour = -14;
    r->wdrStartMinute = -15;
    r->wdrStopHour = -16;
    r->wdrStopMinute = -17;
    r->pirSensitivity = -18;
    r->hasLprNightModeInEffect = 1;
    r->lprNightModeInEffect = -19;
    snprintf(r->mediaUrl, sizeof r->mediaUrl, "/live/main");
    r->mediaWidth = -20;
    r->mediaHeight = -21;
    r->lprNight = -22;
    r->inlprNight = -23;
    r->fishDisplayMode = -24;
    r->fishCorrectMode = -25;
    r->dayNightMode = -26;
    snprintf(r->blcRegionArea, sizeof r->blcRegionArea, "10:20:300:400");
    r->irSupplemen = -27;
    r->irisType = -28;
    r->irisMode = -29;
    return r;
}

TEST(CameraSetting, RootMembersInEmissionOrder)
{
    auto r = distinct_setting();
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_setting_json(r.get(), d, n); }));
    test::expect_members(doc.root(), {
        N("powerlineFreq", 200), N("brightness", 7), N("colorSaturation", 9), N("sharpness", 10),
        N("contrast", 8), N("whiteBalanceMode", 22), N("whiteBalanceRedGain", 23),
        N("whiteBalanceBlueGain", 255), N("doorMode", 3), N("digitalImageStabilisation", 26),
        N("dayToNight", 4000000001.0), N("nightToDay", 4000000002.0), N("dayNightSensitivity", -1),
        N("d2nSensitivity", 4000000003.0), N("n2dSensitivity", 4000000004.0), N("sensorMode", 3000000000.0),
        N("distortCorrect", 35), N("fovAdjust", 3000000001.0), N("irBlanceMode", 14), N("enblur", 36),
        N("deblur", 37), N("defogMode", 24), N("antiFogIntensity", 25), N("exposureMode", 19),
        N("exposureTime", 20), N("exposureGain", 21), N("ledMode", -2), N("nfLevel", 11), N("dnr2Level", 12),
        N("focusMode", -3), N("aspectRatio", 38), N("zoomLimit", 39), N("smartIrMode", 13),
        N("nearViewIrLevel", 15), N("middleViewIrLevel", 17), N("farViewIrLevel", 16),
        N("dnSwitchRefocus", 27), N("smokedDomeCover", -4), N("whiteLedLevel", 18), N("mirrorCorridor", 5),
        N("imageRotation", 6), N("irCutFilter", -9), N("iricrDayHour", -5), N("iricrDayMinute", -6),
        N("iricrNightHour", -7), N("iricrNightMinute", -8), N("iricrGpinStatus", -10),
        N("iricrGpinNumber", -11), N("pirDuration", -12), N("pirSensitivity", -18), N("scheduleMode", 32),
        N("blcRegion", 1), N("blcExclusive", 2), S("blcRegionArea", "10:20:300:400"), N("wdrMode", -13),
        N("wdrStartHour", -14), N("wdrStartMinute", -15), N("wdrStopHour", -16), N("wdrStopMinute", -17),
        N("wdrLevel", 33), N("wdrAflevel", 34), N("hlcMode", 28), N("hlcLevel", 29),
        N("dayEnhancementMode", 30), N("nightEnhancementMode", 31), N("lprNightModeInEffect", -19),
        S("mediaUrl", "/live/main"), N("mediaWidth", -20), N("mediaHeight", -21), N("lprNight", -22),
        N("inlprNight", -23), N("fishDisplayMode", -24), N("fishCorrectMode", -25), N("dayNightMode", -26),
        N("irSupplemen", -27), N("irisType", -28), N("irisMode", -29), A("whiteBalanceTaskdayList"),
        A("exposureTaskdayList"), A("blcWdrHlcTaskdayList"), S("dnScheduleTaskday", ""),
    });
}

TEST(CameraSetting, LprNightModeOnlyWhenFlagged)
{
    struct Case {
        int32_t has;
        bool present;
    } cases[] = {{0, false}, {1, true}, {-1, true}, {256, true}};
    for (const Case &c : cases) {
        auto r = blank_setting();
        r->hasLprNightModeInEffect = c.has;
        r->lprNightModeInEffect = 7;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_setting_json(r.get(), d, n); }));
        const cJSON *m = test::member(doc.root(), "lprNightModeInEffect");
        if (!c.present) {
            EXPECT_EQ(m, nullptr) << "has " << c.has;
            // Its neighbours close up around the gap.
            std::vector<std::string> k = test::keys(doc.root());
            auto at = std::find(k.begin(), k.end(), "nightEnhancementMode");
            ASSERT_NE(at, k.end());
            EXPECT_EQ(*(at + 1), "mediaUrl");
            EXPECT_EQ(k.size(), 80u);
        } else {
            ASSERT_NE(m, nullptr) << "has " << c.has;
            EXPECT_EQ(m->valuedouble, 7);
            EXPECT_STREQ(m->prev->string, "nightEnhancementMode");
        }
    }
}

// One slot's contribution to a day's text.
TEST(CameraSetting, TaskSlotIsCutAtThirtyOneCharacters)
{
    const std::string thirty(30, 'a');
    const std::string thirtyOne = std::string(30, 'b') + "c";
    const std::string forty = std::string(31, 'd') + "EEEEEEEEE";
    struct Case {
        std::string slot;
        std::string text;
    } cases[] = {
        {"", ""},
        {"1", "1;"},
        {"08:00-12:00,2", "08:00-12:00,2;"},
        {thirty, thirty + ";"},
        {thirtyOne, thirtyOne},
        {forty, std::string(31, 'd')},
        {std::string(255, 'f'), std::string(31, 'f')},
    };
    for (const Case &c : cases) {
        auto r = blank_setting();
        snprintf(r->exposureTaskday[2][0], 256, "%s", c.slot.c_str());
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_setting_json(r.get(), d, n); }));
        const cJSON *day = test::element(doc["exposureTaskdayList"], 2);
        const cJSON *text = test::member(day, "taskday");
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(std::string(text->valuestring), c.text) << "slot of " << c.slot.size() << " characters";
    }
}

TEST(CameraSetting, DaySlotsJoinInSlotOrderSkippingEmptyOnes)
{
    auto r = blank_setting();
    snprintf(r->whiteBalanceTaskday[4][0], 256, "A");
    snprintf(r->whiteBalanceTaskday[4][3], 256, "%s", std::string(40, 'B').c_str());
    snprintf(r->whiteBalanceTaskday[4][9], 256, "C");
    // Text after an empty first byte is not a task.
    snprintf(r->whiteBalanceTaskday[4][5], 256, "hidden");
    r->whiteBalanceTaskday[4][5][0] = '\0';
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_setting_json(r.get(), d, n); }));
    test::expect_members(test::element(doc["whiteBalanceTaskdayList"], 4),
                         {N("whiteBalanceIndex", 4), S("taskday", "A;" + std::string(31, 'B') + "C;")});
}

// Each list reads its own array and numbers its days 0..6.
TEST(CameraSetting, TaskListsReadTheirOwnSchedules)
{
    auto r = blank_setting();
    snprintf(r->whiteBalanceTaskday[0][0], 256, "wb");
    snprintf(r->exposureTaskday[3][1], 256, "ex");
    snprintf(r->blcWdrHlcTaskday[6][9], 256, "blc");
    snprintf(r->dnScheduleTaskday[0], 256, "dn0");
    snprintf(r->dnScheduleTaskday[7], 256, "dn7");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_setting_json(r.get(), d, n); }));
    struct List {
        const char *key;
        const char *index;
        int day;
        const char *text;
    } lists[] = {
        {"whiteBalanceTaskdayList", "whiteBalanceIndex", 0, "wb;"},
        {"exposureTaskdayList", "exposureIndex", 3, "ex;"},
        {"blcWdrHlcTaskdayList", "blcWdrHlcIndex", 6, "blc;"},
    };
    for (const List &l : lists) {
        const cJSON *list = doc[l.key];
        ASSERT_NE(list, nullptr) << l.key;
        ASSERT_EQ(cJSON_GetArraySize(list), 7) << l.key;
        for (int d = 0; d < 7; ++d)
            test::expect_members(test::element(list, d), {N(l.index, d), S("taskday", d == l.day ? l.text : "")});
    }
    EXPECT_STREQ(doc["dnScheduleTaskday"]->valuestring, "dn0;dn7;");
}

camera_day_night_profile profile(uint8_t first)
{
    camera_day_night_profile p{};
    p.reserved0[0] = p.reserved0[1] = 250;
    p.exposureLevel = first;
    p.minShutter = static_cast<uint8_t>(first + 1);
    p.maxShutter = static_cast<uint8_t>(first + 2);
    p.limitGain = static_cast<uint8_t>(first + 3);
    p.irCutInterval = static_cast<uint8_t>(first + 4);
    p.irCutStatus = static_cast<uint8_t>(first + 5);
    p.irLedStatus = static_cast<uint8_t>(first + 6);
    p.colorMode = static_cast<uint8_t>(first + 7);
    p.whiteLedStatus = static_cast<uint8_t>(first + 8);
    p.reserved1 = 251;
    return p;
}

TEST(CameraDayNight, ProfilesInEmissionOrder)
{
    camera_setting_day_night_record r{};
    r.day = profile(10);
    r.night = profile(140); // above 127: a signed byte would go negative
    r.isSupportWhiteledGroup = -1;
    r.dayWhiteledGroup = 3;
    r.nightWhiteledGroup = -5;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_setting_day_night_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("dayExposureLevel", 10), N("dayMinShutter", 11), N("dayMaxShutter", 12), N("dayLimitGain", 13),
        N("dayIrCutInterval", 15), N("dayIrCutStatus", 15), N("dayIrLedStatus", 16), N("dayWhiteLedStatus", 18),
        N("dayColorMode", 17), N("nightExposureLevel", 140), N("nightMinShutter", 141),
        N("nightMaxShutter", 142), N("nightLimitGain", 143), N("nightIrCutInterval", 145),
        N("nightIrCutStatus", 145), N("nightIrLedStatus", 146), N("nightWhiteLedStatus", 148),
        N("nightColorMode", 147), N("isSupportWhiteledGroup", -1), N("dayWhiteledGroup", 3),
        N("nightWhiteledGroup", -5),
    });
}

TEST(CameraDayNight, IrCutIntervalsCountFromOne)
{
    struct Case {
        uint8_t stored;
        double reported;
    } cases[] = {{0, 1}, {1, 2}, {127, 128}, {128, 129}, {254, 255}, {255, 256}};
    for (const Case &c : cases) {
        camera_setting_day_night_record r{};
        r.day.irCutInterval = c.stored;
        r.night.irCutInterval = static_cast<uint8_t>(255 - c.stored);
        test::Json doc(
            test::rendered([&](char *d, int32_t n) { return get_camera_setting_day_night_json(&r, d, n); }));
        EXPECT_EQ(doc["dayIrCutInterval"]->valuedouble, c.reported) << "stored " << int{c.stored};
        EXPECT_EQ(doc["nightIrCutInterval"]->valuedouble, 256 - c.reported + 1) << "stored " << 255 - c.stored;
    }
}

TEST(CameraDayNightSchedule, FiveEntriesEmptyOnesIncluded)
{
    camera_day_night_schedule_record r{};
    snprintf(r.schedule[0], 256, "06:00-18:00");
    snprintf(r.schedule[3], 256, "18:00-23:59");
    snprintf(r.schedule[4], 256, "%s", std::string(255, 's').c_str());
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_day_night_schedule_json(&r, d, n); }));
    test::expect_members(doc.root(), {A("dayNightSchedule")});
    const cJSON *list = doc["dayNightSchedule"];
    ASSERT_EQ(cJSON_GetArraySize(list), 5);
    const std::string texts[5] = {"06:00-18:00", "", "", "18:00-23:59", std::string(255, 's')};
    for (int i = 0; i < 5; ++i)
        test::expect_members(test::element(list, i), {N("index", i), S("schedule", texts[i])});
}

// Sensor i's mode m holds values built from (i, m) so that a wrong sensor,
// mode or array shows.
camera_sensor_image_record distinct_sensor_image()
{
    camera_sensor_image_record r{};
    r.powerlineFreq = 60;
    r.digitalStabilisation = 1;
    r.trafficScene = 2;
    r.flashIntensity = 201;
    r.parityFlashing = 3;
    r.flashOffsetFirst = -100;
    r.flashOffsetSecond = -200;
    r.flashAeExpTimeFirst = 3000;
    r.flashAeExpTimeSecond = -4000;
    r.imageMode = 4;
    r.irisMode[0] = -7;
    r.irisMode[1] = 8;
    for (int i = 0; i < 2; ++i) {
        camera_sensor_image_entry &s = r.sensors[i];
        s.reserved0 = -99;
        s.daynight = static_cast<uint8_t>(130 + i);
        for (int m = 0; m < 3; ++m) {
            const int k = 10 * i + m; // 0..2 and 10..12
            s.maxshutterDay[m] = 1.25 + k;
            s.maxshutterNight[m] = 100.5 + k;
            s.limitGainlevelDay[m] = static_cast<uint8_t>(20 + k);
            s.limitGainlevelNight[m] = static_cast<uint8_t>(150 + k);
            s.strobelightDay[m] = static_cast<uint8_t>(40 + k);
            s.strobelightNight[m] = static_cast<uint8_t>(60 + k);
            s.targetBrightnessDay[m] = -(k + 1);
            s.targetBrightnessNight[m] = 1000 + k;
            s.manualExposetimeDay[m] = 0.5 + k;
            s.manualExposetimeNight[m] = 2.75 + k;
            s.manualGainlevelDay[m] = static_cast<uint8_t>(80 + k);
            s.manualGainlevelNight[m] = static_cast<uint8_t>(220 + k);
            s.brightness[m] = 0;
            s.contrast[m] = 128;
            s.saturation[m] = 255;
        }
    }
    return r;
}

// k + 0.25 etc. with two decimals: the whole part, then the fixed fraction.
std::string decimals(int whole, const char *fraction)
{
    return std::to_string(whole) + fraction;
}

TEST(CameraSensorImage, RootAndSensorsInEmissionOrder)
{
    const camera_sensor_image_record r = distinct_sensor_image();
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_sensor_image_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("powerlineFreq", 60), N("imageMode", 4), N("trafficScene", 2), N("digitalStabilisation", 1),
        N("flashIntensity", 201), N("parityFlashing", 3), N("flashOffsetFirst", -100),
        N("flashOffsetSecond", -200), N("flashAeExpTimeFirst", 3000), N("flashAeExpTimeSecond", -4000),
        A("sensorList"),
    });
    const cJSON *list = doc["sensorList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 2);
    const double iris[2] = {-7, 8};
    for (int i = 0; i < 2; ++i) {
        const cJSON *sensor = test::element(list, i);
        test::expect_members(sensor, {
            N("sensorIndex", i), N("irisMode", iris[i]), N("daynight", 130 + i),
            N("strobelightDay", 40 + 10 * i), N("strobelightNight", 60 + 10 * i),
            test::O("normal"), test::O("odd"), test::O("even"),
        });
        const char *modes[3] = {"normal", "odd", "even"};
        for (int m = 0; m < 3; ++m) {
            SCOPED_TRACE(std::string("sensor ") + std::to_string(i) + " " + modes[m]);
            const int k = 10 * i + m;
            test::expect_members(test::member(sensor, modes[m]), {
                S("maxshutterDay", decimals(1 + k, ".25")), S("maxshutterNight", decimals(100 + k, ".50")),
                N("limitGainlevelDay", 20 + k), N("limitGainlevelNight", 150 + k),
                N("targetBrightnessDay", -(k + 1)), N("targetBrightnessNight", 1000 + k),
                S("manualExposetimeDay", decimals(k, ".50")), S("manualExposetimeNight", decimals(2 + k, ".75")),
                N("manualGainlevelDay", 80 + k), N("manualGainlevelNight", 220 + k),
                N("brightness", 0), N("contrast", 50), N("saturation", 100),
            });
        }
    }
}

TEST(CameraSensorImage, LevelsAsRoundedPercentages)
{
    struct Case {
        uint8_t level;
        double percent;
    } cases[] = {{0, 0}, {1, 0}, {2, 1}, {3, 1}, {64, 25}, {127, 50}, {128, 50},
                 {191, 75}, {200, 78}, {254, 100}, {255, 100}};
    for (const Case &c : cases) {
        camera_sensor_image_record r{};
        r.sensors[1].brightness[2] = c.level;
        r.sensors[1].contrast[2] = c.level;
        r.sensors[1].saturation[2] = c.level;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_sensor_image_json(&r, d, n); }));
        const cJSON *even = test::member(test::element(doc["sensorList"], 1), "even");
        for (const char *key : {"brightness", "contrast", "saturation"})
            EXPECT_EQ(test::member(even, key)->valuedouble, c.percent) << key << " at level " << int{c.level};
    }
}

TEST(CameraSensorImage, TimesAsTwoDecimalTexts)
{
    struct Case {
        double value;
        const char *text;
    } cases[] = {{33.333, "33.33"}, {8, "8.00"}, {0, "0.00"}, {12.346, "12.35"}, {-1.5, "-1.50"},
                 {1e30, "1000000000000000019884624838656"}}; // 31 characters: the buffer is full
    for (const Case &c : cases) {
        camera_sensor_image_record r{};
        r.sensors[0].maxshutterNight[1] = c.value;
        r.sensors[0].manualExposetimeDay[1] = c.value;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_sensor_image_json(&r, d, n); }));
        const cJSON *odd = test::member(test::element(doc["sensorList"], 0), "odd");
        EXPECT_STREQ(test::member(odd, "maxshutterNight")->valuestring, c.text);
        EXPECT_STREQ(test::member(odd, "manualExposetimeDay")->valuestring, c.text);
    }
}

} // namespace
