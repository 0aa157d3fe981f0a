// The analytics documents: the rules built on the four-region model, tamper,
// human detection, counting lines, crossing lines, faces, the configuration
// with its slot-indexed keys, the alarm states, heat maps and people reports.
#include "support.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::Expected;
using test::N;
using test::S;
using Members = std::vector<Expected>;

Members operator+(Members a, const Members &b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

template <size_t Size>
void put(char (&field)[Size], const std::string &text)
{
    snprintf(field, Size, "%s", text.c_str());
}

template <typename T, typename Serialize>
std::string render(const T &in, Serialize serialize)
{
    return test::rendered([&](char *dst, int32_t n) { return serialize(&in, dst, n); });
}

// A value no other field of the run holds; every third one negative.
int32_t fresh()
{
    static int32_t n = 1000000;
    ++n;
    return n % 3 ? n : -n;
}

struct Num { const char *key; int32_t *field; };

// Gives each field a fresh value; the members expected for them, in order.
Members numbers(std::initializer_list<Num> table)
{
    Members want;
    for (const Num &f : table)
        want.push_back(N(f.key, *f.field = fresh()));
    return want;
}

template <size_t Count>
struct Column { const char *key; int32_t (*values)[Count]; };

// Fills every element of every column, element `off` of the first column with
// 0 (switched off); row i holds the members expected for element i.
template <size_t Count>
std::vector<Members> columns(std::initializer_list<Column<Count>> table, size_t off = Count)
{
    std::vector<Members> rows(Count);
    for (const Column<Count> &c : table)
        for (size_t i = 0; i < Count; ++i)
            rows[i].push_back(N(c.key, (*c.values)[i] = &c == table.begin() && i == off ? 0 : fresh()));
    return rows;
}

// A record whose int32 word w holds value(w): a member read that the test
// did not set shows up, and a record made only of int32 words needs no more.
int32_t value(int w) { return w % 3 == 1 ? -(w + 1000) : w + 1000; }

template <typename T>
std::unique_ptr<T> filled()
{
    static_assert(sizeof(T) % sizeof(int32_t) == 0, "a record of int32 words");
    std::vector<int32_t> words(sizeof(T) / sizeof(int32_t));
    for (size_t w = 0; w < words.size(); ++w)
        words[w] = value(static_cast<int>(w));
    std::unique_ptr<T> r(new T);
    memcpy(static_cast<void *>(r.get()), words.data(), sizeof(T));
    return r;
}

// n objects, object i built by item(i).
template <typename Item>
std::vector<Members> items(int n, Item item)
{
    std::vector<Members> all;
    for (int i = 0; i < n; ++i)
        all.push_back(item(i));
    return all;
}

// An array of exactly these objects, in order.
void expect_list(const cJSON *list, const std::vector<Members> &want)
{
    ASSERT_EQ(cJSON_GetArraySize(list), static_cast<int>(want.size()));
    for (size_t i = 0; i < want.size(); ++i)
        test::expect_members(test::element(list, static_cast<int>(i)), want[i]);
}

template <typename Rule>
Members size_filter(Rule &in)
{
    return numbers({{"minX", &in.minX}, {"minY", &in.minY}, {"minWidth", &in.minWidth}, {"minHeight", &in.minHeight},
                    {"maxX", &in.maxX}, {"maxY", &in.maxY}, {"maxWidth", &in.maxWidth}, {"maxHeight", &in.maxHeight}});
}

// ---- the weekly schedule and the region model ----

// Day 6 has no schedule: it is still emitted, as "".
std::string day(int d) { return d == 6 ? "" : "day" + std::to_string(d) + " 08:00-18:00"; }

template <size_t Size>
void fill_schedule(char (&days)[7][Size])
{
    for (int d = 0; d < 7; ++d)
        put(days[d], day(d));
}

void expect_schedule_list(const cJSON *list)
{
    expect_list(list, items(7, [](int d) { return Members{N("scheduleIndex", d), S("schedule", day(d))}; }));
}

// Region 3 is left undrawn: its polygon texts are "".
std::string polygon(char axis, int r) { return r == 3 ? "" : std::string(1, axis) + std::to_string(r) + ":10:20:"; }
std::string preset(char axis, int r, int p)
{
    return std::string("p") + axis + std::to_string(r) + "." + std::to_string(p);
}

struct RegionRule {
    std::string text;
    Members root;                // before "detectionInfoList"
    std::vector<Members> region; // per region, between "regionIndex" and "polygonX"
};

// `fill` sets the rule's own root values and per-region arrays (region 1
// switched off: it must still be emitted in full).
template <typename Rule, typename Fill>
RegionRule region_rule(int32_t (*serialize)(const Rule *, char *, int32_t), Fill fill)
{
    auto in = filled<Rule>();
    for (int r = 0; r < 4; ++r) {
        put(in->polygonX[r], polygon('x', r));
        put(in->polygonY[r], polygon('y', r));
        for (int p = 0; p < 4; ++p) {
            put(in->presetPolygonX[r][p], preset('x', r, p));
            put(in->presetPolygonY[r][p], preset('y', r, p));
        }
    }
    fill_schedule(in->schedule);
    RegionRule rule;
    fill(*in, rule);
    rule.root = rule.root + size_filter(*in);
    rule.text = render(*in, serialize);
    return rule;
}

TEST(VcaRegionRules, EveryRuleOnTheRegionModel)
{
    const RegionRule rules[] = {
        region_rule(get_vca_region_entrance_json, [](auto &in, RegionRule &c) {
            c.root = numbers({{"intrusionEnterSens", &in.intrusionEnterSens},
                              {"intrusionEnterTracking", &in.intrusionEnterTracking}, {"scene", &in.scene}});
            c.region = columns<4>({{"regionEnable", &in.regionEnable}, {"detectionObject", &in.detectionObject}}, 1);
        }),
        region_rule(get_vca_region_exit_json, [](auto &in, RegionRule &c) {
            c.root = numbers({{"intrusionExitSens", &in.intrusionExitSens},
                              {"intrusionExitTracking", &in.intrusionExitTracking}, {"scene", &in.scene}});
            c.region = columns<4>({{"regionEnable", &in.regionEnable}, {"detectionObject", &in.detectionObject}}, 1);
        }),
        region_rule(get_vca_advanced_motion_json, [](auto &in, RegionRule &c) {
            c.root = numbers({{"advancedMotionSens", &in.advancedMotionSens},
                              {"advancedMotionTracking", &in.advancedMotionTracking}, {"scene", &in.scene},
                              {"ignoreShortLived", &in.ignoreShortLived}});
            c.region = columns<4>({{"advancedMotionEnable", &in.advancedMotionEnable},
                                   {"advancedMotionDetectionObject", &in.advancedMotionDetectionObject}}, 1);
        }),
        // No sensitivity key, though the record keeps a word in its place.
        region_rule(get_vca_loitering_json, [](auto &in, RegionRule &c) {
            c.root = numbers({{"loiteringTracking", &in.loiteringTracking}, {"scene", &in.scene}});
            c.region = columns<4>({{"loiteringEnable", &in.loiteringEnable},
                                   {"loiteringDetectionObject", &in.loiteringDetectionObject},
                                   {"minLoiteringTime", &in.minLoiteringTime}}, 1);
        }),
        region_rule(get_vca_left_remove_json, [](auto &in, RegionRule &c) {
            c.root = numbers({{"leftRemoveSens", &in.leftRemoveSens}, {"leftRemoveTracking", &in.leftRemoveTracking},
                              {"scene", &in.scene}, {"minTime", &in.minTime}});
            c.region = columns<4>({{"leftEnable", &in.leftEnable}, {"removeEnable", &in.removeEnable}}, 1);
        }),
        region_rule(get_vca_region_people_json, [](auto &in, RegionRule &c) {
            c.root = numbers({{"regionPeopleCountingSens", &in.regionPeopleCountingSens}, {"scene", &in.scene}});
            c.region = columns<4>({{"regionEnable", &in.regionEnable}, {"maxStayEnable", &in.maxStayEnable},
                                   {"minStayEnable", &in.minStayEnable}, {"maxStayTimeEnable", &in.maxStayTimeEnable},
                                   {"maxStay", &in.maxStay}, {"minStay", &in.minStay},
                                   {"maxStayTime", &in.maxStayTime}}, 1);
        }),
    };
    for (const RegionRule &rule : rules) {
        SCOPED_TRACE(rule.root.front().key);
        test::Json doc(rule.text);
        test::expect_members(doc.root(), rule.root + Members{A("detectionInfoList"), A("scheduleList")});
        expect_list(doc["detectionInfoList"], items(4, [&](int r) {
                        return Members{N("regionIndex", r)} + rule.region[r] +
                               Members{S("polygonX", polygon('x', r)), S("polygonY", polygon('y', r)),
                                       A("presetPolygonList")};
                    }));
        for (int r = 0; r < 4; ++r)
            expect_list(test::member(test::element(doc["detectionInfoList"], r), "presetPolygonList"),
                        items(4, [&](int p) {
                            return Members{N("presetPolygonIndex", p), S("presetPolygonX", preset('x', r, p)),
                                           S("presetPolygonY", preset('y', r, p))};
                        }));
        expect_schedule_list(doc["scheduleList"]);
    }
}

// The exit record is the entrance record behind eleven more leading words.
TEST(VcaRegionRules, ExitStandsElevenWordsBehindEntrance)
{
#define PLACES(member) {offsetof(vca_region_entrance_record, member), offsetof(vca_region_exit_record, member)}
    const size_t places[][2] = {PLACES(regionEnable), PLACES(detectionObject), PLACES(minX),
                                PLACES(polygonX),     PLACES(scene),           PLACES(schedule)};
#undef PLACES
    EXPECT_EQ(places[0][0], 2 * sizeof(int32_t));
    for (const auto &p : places)
        EXPECT_EQ(p[1], p[0] + 11 * sizeof(int32_t));
    EXPECT_EQ(sizeof(vca_region_exit_record), sizeof(vca_region_entrance_record) + 11 * sizeof(int32_t));
}

TEST(VcaRules, InstallationTamperAndHumanDetection)
{
    vca_install_mode_record mode{};
    const Members modeWant = numbers({{"Installation", &mode.Installation}}); // with its capital
    test::expect_members(test::Json(render(mode, get_vca_install_mode_json)).root(), modeWant);

    auto tamper = filled<vca_tamper_record>();
    const Members tamperWant = numbers({{"tamperEnable", &tamper->tamperEnable}, {"tamperSens", &tamper->tamperSens}});
    fill_schedule(tamper->schedule);
    test::Json tamperDoc(render(*tamper, get_vca_tamper_json));
    test::expect_members(tamperDoc.root(), tamperWant + Members{A("scheduleList")});
    expect_schedule_list(tamperDoc["scheduleList"]);

    // The days as seven flat keys, numbered from 0, and no "scheduleList".
    auto human = filled<vca_human_detection_record>();
    const Members humanWant =
        numbers({{"humanEnable", &human->humanEnable}, {"humanShowTrackEnable", &human->humanShowTrackEnable},
                 {"humanSens", &human->humanSens}, {"humanTracking", &human->humanTracking}});
    fill_schedule(human->humanSchedule);
    test::expect_members(test::Json(render(*human, get_vca_human_detection_json)).root(),
                         humanWant + Members{S("humanSchedule_0", day(0)), S("humanSchedule_1", day(1)),
                                             S("humanSchedule_2", day(2)), S("humanSchedule_3", day(3)),
                                             S("humanSchedule_4", day(4)), S("humanSchedule_5", day(5)),
                                             S("humanSchedule_6", "")});
}

TEST(VcaCounting, TotalsLinesAndPresetLines)
{
    auto in = filled<vca_counting_record>();
    put(in->osdFontColor, "#00FF00");
    const Members root =
        numbers({{"peopleCountingSens", &in->peopleCountingSens}, {"scene", &in->scene},
                 {"showOsdEnable", &in->showOsdEnable}, {"osdType", &in->osdType}, {"osdFontSize", &in->osdFontSize},
                 {"osdTextPosition", &in->osdTextPosition}}) +
        Members{S("osdFontColor", "#00FF00")} +
        numbers({{"alarmTriggerEnable", &in->alarmTriggerEnable}, {"countTriggerType", &in->countTriggerType},
                 {"allLineInAlarmEnable", &in->allLineInAlarmEnable},
                 {"allLineOutAlarmEnanble", &in->allLineOutAlarmEnable}, // spelled so on purpose
                 {"allLineCapacityAlarmEnable", &in->allLineCapacityAlarmEnable},
                 {"allLineSumAlarmEnable", &in->allLineSumAlarmEnable},
                 {"allLineInAlarmThresholds", &in->allLineInAlarmThresholds},
                 {"allLineOutAlarmThresholds", &in->allLineOutAlarmThresholds},
                 {"allLineCapacityAlarmThresholds", &in->allLineCapacityAlarmThresholds},
                 {"allLineSumAlarmThresholds", &in->allLineSumAlarmThresholds}}) +
        size_filter(*in);
    // "lineShowCountingEnable" is emitted after the thresholds, though it is
    // stored after the directions. Line 1 is switched off.
    const std::vector<Members> lines = columns<4>(
        {{"lineEnable", &in->lineEnable}, {"lineInAlarmEnable", &in->lineInAlarmEnable},
         {"lineOutAlarmEnable", &in->lineOutAlarmEnable}, {"lineCapacityAlarmEnable", &in->lineCapacityAlarmEnable},
         {"lineSumAlarmEnable", &in->lineSumAlarmEnable}, {"lineInAlarmThresholds", &in->lineInAlarmThresholds},
         {"lineOutAlarmThresholds", &in->lineOutAlarmThresholds},
         {"lineCapacityAlarmThresholds", &in->lineCapacityAlarmThresholds},
         {"lineSumAlarmThresholds", &in->lineSumAlarmThresholds},
         {"lineShowCountingEnable", &in->lineShowCountingEnable}, {"lineAutoResetEnable", &in->lineAutoResetEnable},
         {"lineAutoResetWeekday", &in->lineAutoResetWeekday}, {"lineAutoResetHour", &in->lineAutoResetHour},
         {"lineAutoResetMin", &in->lineAutoResetMin}, {"lineAutoResetSec", &in->lineAutoResetSec},
         {"lineDirection", &in->lineDirection}},
        1);
    for (int l = 0; l < 4; ++l) {
        put(in->countLine[l], "line" + std::to_string(l));
        for (int p = 0; p < 4; ++p) {
            in->presetDirection[l][p] = 10 * l + p;
            put(in->presetCountLine[l][p], "preset" + std::to_string(10 * l + p));
        }
    }
    fill_schedule(in->schedule);

    test::Json doc(render(*in, get_vca_counting_json));
    test::expect_members(doc.root(), root + Members{A("crossedLine"), A("scheduleList")});
    expect_list(doc["crossedLine"], items(4, [&](int l) {
                    return Members{N("lineIndex", l)} + lines[l] +
                           Members{S("countLine", "line" + std::to_string(l)), A("presetLineList")};
                }));
    for (int l = 0; l < 4; ++l)
        expect_list(test::member(test::element(doc["crossedLine"], l), "presetLineList"), items(4, [&](int p) {
                        return Members{N("presetLineIndex", p), N("presetDirection", 10 * l + p),
                                       S("presetCountLine", "preset" + std::to_string(10 * l + p))};
                    }));
    expect_schedule_list(doc["scheduleList"]);
}

// The end points as "x1;y1;x2;y2" in a 32-byte text.
struct LineText { int32_t points[4]; const char *text; };
const LineText kLineTexts[] = {
    {{100, 200, -1, 0}, "100;200;-1;0"},
    {{0, 0, 0, 0}, "0;0;0;0"},
    {{1920, 1080, 7, 65536}, "1920;1080;7;65536"},
    {{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN}, "-2147483648;-2147483648;-214748"}, // 47 cut to 31
};

TEST(VcaLineCrossing, LinesAndPresetLinesAsText)
{
    auto in = filled<vca_line_crossing_record>();
    const Members root = numbers({{"lineCrossingSens", &in->lineCrossingSens},
                                  {"lineCrossingTracking", &in->lineCrossingTracking}, {"scene", &in->scene}}) +
                         size_filter(*in);
    const std::vector<Members> lines = columns<4>({{"lineCrossingEnable", &in->lineCrossingEnable},
                                                   {"lineCrossingDetectionObject", &in->lineCrossingDetectionObject}});
    fill_schedule(in->schedule);
    for (int l = 0; l < 4; ++l) {
        in->lines[l].direction = -(30 + l);
        memcpy(in->lines[l].crossedLine, kLineTexts[l].points, sizeof kLineTexts[l].points);
        // Preset p of line l draws the points of case (l + p + 1) % 4.
        for (int p = 0; p < 4; ++p) {
            in->lines[l].presetDirection[p] = 40 + 4 * l + p;
            memcpy(in->lines[l].presetCrossedLine[p], kLineTexts[(l + p + 1) % 4].points, sizeof(int32_t[4]));
        }
    }

    test::Json doc(render(*in, get_vca_all_linecrossing_json));
    test::expect_members(doc.root(), root + Members{A("detectionInfoList"), A("scheduleList")});
    expect_list(doc["detectionInfoList"], items(4, [&](int l) {
                    return Members{N("lineIndex", l)} + lines[l] +
                           Members{N("direction", -(30 + l)), S("crossedLine", kLineTexts[l].text),
                                   A("presetLineList")};
                }));
    for (int l = 0; l < 4; ++l)
        expect_list(test::member(test::element(doc["detectionInfoList"], l), "presetLineList"),
                    items(4, [&](int p) {
                        return Members{N("presetLineIndex", p), N("presetDirection", 40 + 4 * l + p),
                                       S("presetCrossedLine", kLineTexts[(l + p + 1) % 4].text)};
                    }));
    expect_schedule_list(doc["scheduleList"]);
}

TEST(VcaFaceDetection, FourShieldRegionsAndThreeCaptureSettings)
{
    auto in = filled<vca_face_detection_record>();
    const Members root = numbers({{"mosaicModeStatus", &in->mosaicModeStatus}, {"faceEnable", &in->faceEnable},
                                  {"faceMinPixel", &in->faceMinPixel}, {"captureMode", &in->captureMode},
                                  {"snapshotInterval", &in->snapshotInterval}, {"poseRoll", &in->poseRoll},
                                  {"posePitch", &in->posePitch}, {"poseYaw", &in->poseYaw},
                                  {"blurlimit", &in->blurlimit}, {"snapshotType", &in->snapshotType},
                                  {"snapshotBackground", &in->snapshotBackground}, {"postEnable", &in->postEnable},
                                  {"postType", &in->postType}, {"attributeEnable", &in->attributeEnable},
                                  {"attributeType", &in->attributeType}, {"mosaicEnable", &in->mosaicEnable}});
    const std::vector<Members> shields = columns<4>({{"shieldRegionEnable", &in->shieldRegionEnable}});
    const std::vector<Members> captures = columns<3>(
        {{"captureQuality", &in->captureQuality}, {"snapshotMaxPush", &in->snapshotMaxPush}});
    for (int s = 0; s < 4; ++s) {
        put(in->shieldPolygonX[s], "sx" + std::to_string(s));
        put(in->shieldPolygonY[s], "sy" + std::to_string(s));
    }
    put(in->polygonX, "10:20:30:40:");
    put(in->polygonY, "50:60:70:80:");
    fill_schedule(in->schedule);

    test::Json doc(render(*in, get_vca_face_detection_json));
    test::expect_members(doc.root(), root + Members{S("polygonX", "10:20:30:40:"), S("polygonY", "50:60:70:80:"),
                                                    A("shieldRegionList"), A("captureSettingsList"),
                                                    A("scheduleList")});
    expect_list(doc["shieldRegionList"], items(4, [&](int s) {
                    return Members{N("shieldIndex", s)} + shields[s] +
                           Members{S("polygonX", "sx" + std::to_string(s)), S("polygonY", "sy" + std::to_string(s))};
                }));
    expect_list(doc["captureSettingsList"],
                items(3, [&](int k) { return Members{N("captureIndex", k)} + captures[k]; }));
    expect_schedule_list(doc["scheduleList"]);
}

// ---- configuration and alarm states ----

TEST(VcaConfiguration, SlotKeysGroupedByLoop)
{
    auto in = filled<vca_configuration_record>();
    put(in->vcaName, "Dock");
    put(in->email, "guard@example.com");
    put(in->emailSubject, "Alarm");
    put(in->emailInformation, "Dock door");
    const std::vector<Members> slots = columns<13>({
        {"uploadEnable", &in->uploadEnable}, {"uploadFileType", &in->uploadFileType}, {"emailEnable", &in->emailEnable},
        {"httpEnable", &in->httpEnable}, {"recordEnable", &in->recordEnable}, {"recordFileType", &in->recordFileType},
        {"gpoutEnable", &in->gpoutEnable}, {"nasEnable", &in->nasEnable}, {"nasFileType", &in->nasFileType},
        {"sipEnable", &in->sipEnable}, {"audioEnable", &in->audioEnable}, {"whitelightEnable", &in->whitelightEnable},
        {"recordSecond", &in->recordSecond}, {"prerecordSecond", &in->prerecordSecond}, {"snapShot", &in->snapShot},
        {"snapShotInterval", &in->snapShotInterval}, {"snapShotIntervalUnit", &in->snapShotIntervalUnit},
        {"triggerDuration", &in->triggerDuration}, {"audioInterval", &in->audioInterval},
        {"emailInterval", &in->emailInterval}, {"whiteledFlashMode", &in->whiteledFlashMode},
        {"whiteledFlashTime", &in->whiteledFlashTime}, {"whiteledAlwaysTime", &in->whiteledAlwaysTime},
        {"whiteledEffectMode", &in->whiteledEffectMode}, {"whiteledEffectValue", &in->whiteledEffectValue},
        {"whiteledStartHour", &in->whiteledStartHour}, {"whiteledStartMinute", &in->whiteledStartMinute},
        {"whiteledStopHour", &in->whiteledStopHour}, {"whiteledStopMinute", &in->whiteledStopMinute},
        {"whiteledGroup", &in->whiteledGroup},
    });
    // One loop over the slots 0..12 through `count` arrays from `first` (in
    // the table's order): their keys "<name>_<slot>" alternate within a slot.
    auto loop = [&](const std::string &first, size_t count) {
        size_t k = 0;
        while (k < slots[0].size() && slots[0][k].key != first)
            ++k;
        Members keys;
        for (int s = 0; s < 13; ++s)
            for (size_t c = k; c < k + count; ++c)
                keys.push_back(N((slots[s].at(c).key + "_" + std::to_string(s)).c_str(), slots[s].at(c).number));
        return keys;
    };
    const Members want =
        numbers({{"vcaId", &in->vcaId}}) + Members{S("vcaName", "Dock")} +
        numbers({{"vcaEnable", &in->vcaEnable}, {"vcaPeriodic", &in->vcaPeriodic}, {"vcaWeekdays", &in->vcaWeekdays},
                 {"vcaStartTime", &in->vcaStartTime}, {"vcaDuration", &in->vcaDuration},
                 {"triggerBootEnable", &in->triggerBootEnable},
                 {"triggerScheduleEnable", &in->triggerScheduleEnable}}) +
        loop("uploadEnable", 1) + loop("uploadFileType", 1) +
        numbers({{"uploadType", &in->uploadType}, {"uploadPostAlarm", &in->uploadPostAlarm}}) +
        loop("emailEnable", 1) +
        numbers({{"emailFileType", &in->emailFileType}, {"emailPostAlarm", &in->emailPostAlarm}}) +
        Members{S("email", "guard@example.com"), S("emailSubject", "Alarm"), S("emailInformation", "Dock door")} +
        numbers({{"emailUpload", &in->emailUpload}}) + loop("httpEnable", 1) +
        numbers({{"httpPostAlarm", &in->httpPostAlarm}, {"httpInterval", &in->httpInterval}}) +
        loop("recordEnable", 2) + loop("gpoutEnable", 1) + loop("nasEnable", 2) + loop("sipEnable", 1) +
        loop("audioEnable", 1) + loop("whitelightEnable", 1) + loop("recordSecond", 18);
    test::expect_members(test::Json(render(*in, get_vca_configuration_json)).root(), want);
}

// The status records are int32 words in declaration order: a key names the
// word it reports.
struct Word { const char *key; int w; };

Members words(std::initializer_list<Word> table)
{
    Members want;
    for (const Word &k : table)
        want.push_back(N(k.key, value(k.w)));
    return want;
}

TEST(VcaAlarmStatus, RuleStatesThenFourLines)
{
    // Words 5..8 are the four line states.
    static_assert(sizeof(vca_alarm_status_record) == 25 * sizeof(int32_t), "25 words");
    auto in = filled<vca_alarm_status_record>();
    test::Json doc(render(*in, get_vca_alarm_status_json));
    test::expect_members(
        doc.root(),
        words({{"regionEntranceStatus", 0}, {"regionExitAlarmStatus", 1}, {"advancedMotionAlarmStatus", 2},
               {"tamperAlarmStatus", 3}, {"loiteringAlarmStatus", 4}, {"peopleCountingStatus", 9},
               {"currentCounterAlarmStatus", 10}, {"humanAlarmStatus", 11}, {"currentInCount", 12},
               {"currentOutCount", 13}, {"currentSumCount", 14}, {"currentCapacityCount", 15},
               {"objectLeftAlarmStatus", 16}, {"objectRemoveAlarmStatus", 17}, {"vehicleCountingStatus", 18},
               {"currentVehicleAlarm", 19}, {"vehicleInCount", 20}, {"vehicleOutCount", 21},
               {"vehicleSumCount", 22}, {"vehicleCapacityCount", 23}, {"regionalPeopleStatus", 24}}) +
            Members{A("lineCrossAlarmList")});
    expect_list(doc["lineCrossAlarmList"],
                items(4, [](int l) { return Members{N("lineIndex", l), N("alarmStatus", value(5 + l))}; }));
}

// One record, two documents: the other alarms without the switches and the
// tamper pair (inputs are words 1..4, outputs 5..6), then the exception
// pairs, words 8..23. The IP-conflict state is spelled two ways.
TEST(VcaAlarmStatus, OtherAndExceptionAlarmsFromOneRecord)
{
    static_assert(sizeof(vca_all_alarm_status_record) == 33 * sizeof(int32_t), "33 words");
    auto in = filled<vca_all_alarm_status_record>();
    test::Json other(render(*in, get_vca_all_alarm_status_json));
    test::expect_members(
        other.root(),
        words({{"motionAlarmStatus", 0}, {"audioAlarmStatus", 7}, {"networkLostAlarmStatus", 9},
               {"ipConflictAlarmStatus", 11}, {"recordFailedAlarmStatus", 13}, {"sdFullAlarmStatus", 15},
               {"sdUninitAlarmStatus", 17}, {"sdErrorAlarmStatus", 19}, {"noSdAlarmStatus", 21},
               {"subMotionAlarmStatus", 24}, {"thirdMotionAlarmStatus", 25}, {"fourthMotionAlarmStatus", 26},
               {"fifthMotionAlarmStatus", 27}, {"alarmArea", 28}, {"lprBlackStatus", 29}, {"lprWhiteStatus", 30},
               {"lprVisitorStatus", 31}, {"lprAttrStatus", 32}}) +
            Members{A("inputAlarmList"), A("outputAlarmList")});
    expect_list(other["inputAlarmList"],
                items(4, [](int i) { return Members{N("inputAlarmIndex", i), N("status", value(1 + i))}; }));
    expect_list(other["outputAlarmList"], // counted from 0 again
                items(2, [](int o) { return Members{N("outputAlarmIndex", o), N("status", value(5 + o))}; }));

    test::expect_members(
        test::Json(render(*in, get_vca_exception_alarm_status_json)).root(),
        words({{"netlostEnable", 8}, {"networkLostAlarmStatus", 9}, {"ipconflictEnable", 10},
               {"ipconflictAlarmStatus", 11}, {"recordFailedEnable", 12}, {"recordFailedAlarmStatus", 13},
               {"sdFullEnable", 14}, {"sdFullAlarmStatus", 15}, {"sdUninitEnable", 16}, {"sdUninitAlarmStatus", 17},
               {"sdErrorEnable", 18}, {"sdErrorAlarmStatus", 19}, {"noSdEnable", 20}, {"noSdAlarmStatus", 21},
               {"tamperEnable", 22}, {"tamperAlarmStatus", 23}}));
}

// ---- heat maps and people reports ----

TEST(VcaHeatMap, SettingsFullMaskAndSchedule)
{
    auto in = filled<vca_heat_map_record>();
    const std::string mask = std::string(sizeof in->mask - 4, 'm') + "end"; // the longest the record holds
    put(in->mask, mask);
    fill_schedule(in->schedule);
    const Members want = numbers({{"enable", &in->enable}, {"sensitivity", &in->sensitivity}, {"minSize", &in->minSize},
                                  {"minDwellTime", &in->minDwellTime}, {"adaptability", &in->adaptability}}) +
                         Members{S("mask", mask)} +
                         numbers({{"supportHeatMap", &in->supportHeatMap},
                                  {"supportHeatMapEnable", &in->supportHeatMapEnable}}) +
                         Members{A("scheduleList")};
    test::Json doc(render(*in, get_vca_heat_map_json));
    test::expect_members(doc.root(), want);
    expect_schedule_list(doc["scheduleList"]);
}

// The switch is an unsigned byte (200 stays 200); "method" comes last.
TEST(VcaAutoExport, HeatMapExportPutsMethodLast)
{
    auto in = filled<vca_auto_export_heat_record>();
    in->enable = 200;
    const Members want = numbers({{"weekday", &in->weekday}, {"hour", &in->hour}, {"min", &in->min},
                                  {"sec", &in->sec}, {"timeRange", &in->timeRange}, {"method", &in->method}});
    test::expect_members(test::Json(render(*in, get_vca_auto_export_heat_json)).root(),
                         Members{N("enable", 200)} + want);
}

TEST(VcaAutoExport, RegionalExportTimeText)
{
    struct Case { int32_t hour, minute, second; const char *text; };
    const Case cases[] = {
        {8, 5, 0, "08:05:00"},
        {23, 59, 59, "23:59:59"},
        {-1, 5, -30, "-1:05:-30"},
        {100, 7, 1234, "100:07:1234"},
        {INT32_MIN, INT32_MIN, INT32_MIN, "-2147483648:-2147483648:-214748"}, // 35 cut to 31
    };
    auto in = filled<vca_regional_auto_export_record>();
    in->enable = 255;
    const Members head = numbers({{"method", &in->method}, {"weekday", &in->weekday}});
    const Members tail = numbers({{"timeRange", &in->timeRange}, {"stayType", &in->stayType},
                                  {"stayLength", &in->stayLength}});
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        in->hour = c.hour;
        in->minute = c.minute;
        in->second = c.second;
        test::expect_members(test::Json(render(*in, get_vca_regional_auto_export_json)).root(),
                             Members{N("enable", 255)} + head + Members{S("time", c.text)} + tail);
    }
}

// Word 2 is personNum, then seven arrays of 256 from word 3. The list holds
// personNum tracks, none when it is 0 or negative, and stops at the arrays
// for a larger count, which is still printed as stored.
TEST(VcaPersonPoints, ListFollowsPersonNum)
{
    const char *const keys[] = {"id", "type", "startX", "startY", "stopX", "stopY", "alarmRegion"};
    auto in = filled<vca_person_point_record>();
    for (int32_t count : {INT32_MIN, -1, 0, 1, 255, 256, 257, INT32_MAX}) {
        SCOPED_TRACE(count);
        in->personNum = count;
        test::Json doc(render(*in, get_vca_person_point_json));
        test::expect_members(doc.root(), {N("personNum", count), A("personList")});
        expect_list(doc["personList"], items(std::min(std::max(count, 0), 256), [&](int i) {
                        Members want;
                        for (int k = 0; k < 7; ++k)
                            want.push_back(N(keys[k], value(3 + 256 * k + i)));
                        return want;
                    }));
    }
}

TEST(VcaPeopleCountingData, FourLines)
{
    auto in = filled<vca_people_counting_data_record>(); // four arrays of 4
    test::Json doc(render(*in, get_vca_people_counting_data_json));
    test::expect_members(doc.root(), {A("peopleList")});
    expect_list(doc["peopleList"], items(4, [](int l) {
                    return Members{N("index", l), N("inCount", value(l)), N("outCount", value(4 + l)),
                                   N("sumCount", value(8 + l)), N("capacityCount", value(12 + l))};
                }));
}

// Words: two states, num[4] from 2, eight arrays of 50 from 6, stayTime[50][4]
// from 406, then peopleCount. Each person has four stays, without index. The
// list stops at the 50 entries whatever peopleCount says.
TEST(VcaRegionalPeopleData, RegionsThenPeopleWithFourStays)
{
    const char *const keys[] = {"id", "class", "left", "top", "right", "bottom", "stayAlarmStatus", "exsitStatus"};
    auto in = filled<vca_regional_people_data_record>();
    for (int32_t count : {-5, 0, 1, 49, 50, 51, INT32_MAX}) {
        SCOPED_TRACE(count);
        in->peopleCount = count;
        test::Json doc(render(*in, get_vca_regional_people_data_json));
        test::expect_members(doc.root(), {N("regionsAlarmStatus", value(0)), N("regionsStayAlarmStatus", value(1)),
                                          A("peopleNumList"), A("peopleDataInfo")});
        expect_list(doc["peopleNumList"],
                    items(4, [](int r) { return Members{N("region", r), N("num", value(2 + r))}; }));
        const int people = std::min(std::max(count, 0), 50);
        expect_list(doc["peopleDataInfo"], items(people, [&](int i) {
                        Members want;
                        for (int k = 0; k < 8; ++k)
                            want.push_back(N(keys[k], value(6 + 50 * k + i)));
                        return want + Members{A("peopleStayList")};
                    }));
        for (int i = 0; i < people; ++i)
            expect_list(test::member(test::element(doc["peopleDataInfo"], i), "peopleStayList"),
                        items(4, [&](int r) { return Members{N("stayTime", value(406 + 4 * i + r))}; }));
    }
}

} // namespace
