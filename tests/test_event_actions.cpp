// The alarm actions per event type: one object per requested event type,
// named by the alarm-event table, each holding its action's keys read at
// that type.
#include "support.h"

#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

// Every per-type value is made from its field's base and the event type, so
// that reading a neighbouring field or a neighbouring type shows.
void fill(int32_t (&values)[48], int32_t base)
{
    for (int32_t i = 0; i < 48; ++i)
        values[i] = base + i;
}

// A document renderer for one record, given the selector to put in it.
using Render = std::function<std::string(int32_t eventType)>;

template <typename Record>
Render renderer(int32_t (*serialize)(const Record *, char *, int32_t), void (*prepare)(Record &))
{
    return [serialize, prepare](int32_t eventType) {
        auto record = std::make_unique<Record>();
        prepare(*record);
        record->eventType = eventType;
        return test::rendered([&](char *dst, int32_t n) { return serialize(record.get(), dst, n); });
    };
}

void prepare_notify(event_notify_record &r)
{
    fill(r.notifyReserved, 900);
    fill(r.httpNotifyEnable, 100);
    for (int32_t i = 0; i < 48; ++i)
        for (int32_t j = 0; j < 3; ++j) {
            event_notify_entry &e = r.notifyList[i][j];
            e.entryReserved1 = 91;
            e.entryReserved2 = 92;
            e.enable = static_cast<uint8_t>(200 + j);        // above 127: a signed byte would go negative
            e.method = static_cast<uint8_t>(210 + j);
            e.snapShot = static_cast<uint8_t>(220 + j);
            snprintf(e.url, sizeof e.url, "http://10.0.0.%d/hook/%d", static_cast<int>(i), static_cast<int>(j));
            snprintf(e.user, sizeof e.user, "user-%d-%d", static_cast<int>(i), static_cast<int>(j));
            snprintf(e.password, sizeof e.password, "pw-%d-%d", static_cast<int>(i), static_cast<int>(j));
            e.interval = 4000000000u + static_cast<uint32_t>(10 * i + j);   // above INT32_MAX
        }
}

void prepare_record(event_record_record &r)
{
    fill(r.recordReserved, 900);
    fill(r.duration, -1000);          // negative: signed numbers
    fill(r.sdInsert, 100);
    fill(r.nasMountStatus, 200);
    for (int32_t i = 0; i < 48; ++i) {
        r.recordSettings[i].recordEnable = static_cast<uint8_t>(150 + i);
        r.recordSettings[i].recordWay = static_cast<uint8_t>(200 + i);
        r.recordSettings[i].reserved[0] = 7;
        r.recordSettings[i].reserved[1] = 8;
    }
}

void prepare_snop(event_snop_record &r)
{
    fill(r.interval, 100);
    fill(r.unit, 200);
    fill(r.snapEnable, 300);
    fill(r.snapWay, 400);
    fill(r.imageNum, 500);
    fill(r.smtpInterval, 600);
    r.snapSmtpEnable = -7;
    fill(r.snapType, 700);
}

void prepare_extern_output(event_extern_output_record &r)
{
    fill(r.externOutputEnable, 100);
    fill(r.externDuration, 200);
    fill(r.externOutputExtEnable, 300);
}

void prepare_play_audio(event_play_audio_record &r)
{
    fill(r.playAudioEnable, 100);
    fill(r.audioInterval, 200);
    for (int32_t i = 0; i < 48; ++i)
        for (int32_t d = 0; d < 7; ++d)
            snprintf(r.schedule[i][d], sizeof r.schedule[i][d], "type %d day %d", static_cast<int>(i),
                     static_cast<int>(d));
}

void prepare_sip(event_alarm_sip_phone_record &r) { fill(r.alarmSipPhoneEnable, 100); }

void prepare_white_led(event_white_led_record &r)
{
    fill(r.whiteLedEnable, 100);
    fill(r.flashMode, 200);
    fill(r.flashTime, 300);
    fill(r.effectiveMode, 400);
    fill(r.effectiveBright, 500);
    fill(r.alwaysTime, 600);
    fill(r.startHour, 700);
    fill(r.startMinute, 800);
    fill(r.stopHour, 900);
    fill(r.stopMinute, 1000);
}

void prepare_ptz_motion(event_ptz_motion_record &r)
{
    fill(r.ptzMotionEnable, 100);
    fill(r.ptzRecoveryTime, 200);
    fill(r.ptzZoomTimes, 300);
}

void prepare_osd_blink(event_osd_blink_record &r)
{
    fill(r.osdBlinkEnable, 100);
    fill(r.osdBlinkTime, -200);
}

void prepare_event_call(event_event_call_record &r)
{
    fill(r.presetEnable, 100);
    fill(r.presetId, 200);
    fill(r.patrolEnable, 300);
    fill(r.patrolId, 400);
    fill(r.patternEnable, 500);
    fill(r.patternId, 600);
}

// The members of one per-type object at event type i; "snapType" only when
// a single type was asked for.
using Members = std::function<std::vector<test::Expected>(int32_t i, bool single)>;

struct ActionCase {
    const char *name;
    Render render;
    Members members;
};

std::vector<ActionCase> action_cases()
{
    return {
        {"notify", renderer(get_event_notify_json, prepare_notify),
         [](int32_t i, bool) { return std::vector<test::Expected>{N("httpNotifyEnable", 100 + i), A("notifyList")}; }},
        {"record", renderer(get_event_record_json, prepare_record),
         [](int32_t i, bool) {
             return std::vector<test::Expected>{N("recordEnable", 150 + i), N("recordWay", 200 + i),
                                                N("duration", -1000 + i), N("sdInsert", 100 + i),
                                                N("nasMountStatus", 200 + i)};
         }},
        {"snop", renderer(get_event_snop_json, prepare_snop),
         [](int32_t i, bool single) {
             std::vector<test::Expected> m{N("snapSmtpEnable", -7),     N("snapEnable", 300 + i),
                                           N("snapWay", 400 + i),       N("interval", 100 + i),
                                           N("unit", 200 + i),          N("imageNum", 500 + i),
                                           N("smtpInterval", 600 + i)};
             if (single)
                 m.push_back(N("snapType", 700 + i));
             return m;
         }},
        {"extern output", renderer(get_event_extern_output_json, prepare_extern_output),
         [](int32_t i, bool) {
             return std::vector<test::Expected>{N("externOutputEnable", 100 + i), N("externDuration", 200 + i),
                                                N("externOutputExtEnable", 300 + i)};
         }},
        {"play audio", renderer(get_event_play_audio_json, prepare_play_audio),
         [](int32_t i, bool) {
             return std::vector<test::Expected>{N("playAudioEnable", 100 + i), N("audioInterval", 200 + i),
                                                A("scheduleList")};
         }},
        {"sip phone", renderer(get_event_alarm_sip_phone_json, prepare_sip),
         [](int32_t i, bool) { return std::vector<test::Expected>{N("alarmSipPhoneEnable", 100 + i)}; }},
        {"white led", renderer(get_event_white_led_json, prepare_white_led),
         [](int32_t i, bool) {
             return std::vector<test::Expected>{
                 N("whiteLedEnable", 100 + i), N("flashMode", 200 + i),   N("flashTime", 300 + i),
                 N("effectiveMode", 400 + i),  N("effectiveBright", 500 + i), N("alwaysTime", 600 + i),
                 N("startHour", 700 + i),      N("startMinute", 800 + i), N("stopHour", 900 + i),
                 N("stopMinute", 1000 + i)};
         }},
        {"ptz motion", renderer(get_event_ptz_motion_json, prepare_ptz_motion),
         [](int32_t i, bool) {
             // zoom before recovery, the reverse of the record
             return std::vector<test::Expected>{N("ptzMotionEnable", 100 + i), N("ptzZoomTimes", 300 + i),
                                                N("ptzRecoveryTime", 200 + i)};
         }},
        {"osd blink", renderer(get_event_osd_blink_json, prepare_osd_blink),
         [](int32_t i, bool) {
             return std::vector<test::Expected>{N("osdBlinkEnable", 100 + i), N("osdBlinkTime", -200 + i)};
         }},
        {"event call", renderer(get_event_event_call_json, prepare_event_call),
         [](int32_t i, bool) {
             return std::vector<test::Expected>{N("presetEnable", 100 + i), N("presetId", 200 + i),
                                                N("patrolEnable", 300 + i), N("patrolId", 400 + i),
                                                N("patternEnable", 500 + i), N("patternId", 600 + i)};
         }},
    };
}

// The alarm event names in table order, written out for the places checked.
struct NamedType {
    int32_t index;
    const char *name;
};
const NamedType kSpotChecks[] = {{0, "motion"},          {4, "tamper"},       {13, "vcaLinecrossing"},
                                 {23, "objectLeftRemove"}, {44, "douput"},     {47, "nouser3"}};

TEST(EventActions, AnySelectorBelowZeroGivesAllTypesInTableOrder)
{
    for (const ActionCase &c : action_cases())
        for (int32_t selector : {-1, -48, INT32_MIN}) {
            SCOPED_TRACE(std::string(c.name) + ", selector " + std::to_string(selector));
            test::Json doc(c.render(selector));
            const std::vector<std::string> names = test::keys(doc.root());
            ASSERT_EQ(names.size(), 48u);
            for (const NamedType &t : kSpotChecks) {
                EXPECT_EQ(names[t.index], t.name);
                test::expect_members(doc[t.name], c.members(t.index, false));
            }
        }
}

TEST(EventActions, ASelectedTypeGivesItsObjectAlone)
{
    for (const ActionCase &c : action_cases())
        for (const NamedType &t : kSpotChecks) {
            SCOPED_TRACE(std::string(c.name) + ", type " + t.name);
            test::Json doc(c.render(t.index));
            ASSERT_EQ(test::keys(doc.root()), std::vector<std::string>{t.name});
            test::expect_members(doc[t.name], c.members(t.index, true));
        }
}

TEST(EventActions, SnapTypeOnlyInTheSingleTypeDocument)
{
    const Render render = renderer(get_event_snop_json, prepare_snop);
    test::Json all(render(-1));
    for (int32_t i = 0; i < 48; ++i)
        EXPECT_EQ(test::member(all[getAlarmEventTypeString(i)], "snapType"), nullptr) << i;
    test::Json one(render(30));
    EXPECT_EQ(test::keys(one["motionFourth"]).back(), "snapType");
}

TEST(EventActions, NotifyListHoldsThreeTargetsOfTheType)
{
    test::Json doc(renderer(get_event_notify_json, prepare_notify)(6));
    const cJSON *list = test::member(doc["ipConflict"], "notifyList");
    ASSERT_EQ(cJSON_GetArraySize(list), 3);
    for (int j = 0; j < 3; ++j) {
        SCOPED_TRACE(j);
        const std::string tag = "6-" + std::to_string(j);
        test::expect_members(test::element(list, j),
                             {N("index", j), N("enable", 200 + j), N("interval", 4000000060.0 + j),
                              S("url", "http://10.0.0.6/hook/" + std::to_string(j)), S("user", "user-" + tag),
                              S("password", "pw-" + tag), N("method", 210 + j), N("snapShot", 220 + j)});
    }
}

TEST(EventActions, PlayAudioListsSevenDaysEmptyOnesIncluded)
{
    auto record = std::make_unique<event_play_audio_record>();
    prepare_play_audio(*record);
    record->eventType = 40;
    record->schedule[40][2][0] = '\0';
    record->schedule[40][6][0] = '\0';
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_event_play_audio_json(record.get(), d, n); }));
    const cJSON *list = test::member(doc["helmet"], "scheduleList");
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d) {
        const std::string text = d == 2 || d == 6 ? "" : "type 40 day " + std::to_string(d);
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", text)});
    }
}

TEST(EventActions, SelectorAboveTheTableIsRefused)
{
    for (const int32_t selector : {48, 1000, INT32_MAX}) {
        auto record = std::make_unique<event_osd_blink_record>();
        record->eventType = selector;
        char buffer[16];
        memset(buffer, 'x', sizeof buffer);
        EXPECT_EQ(get_event_osd_blink_json(record.get(), buffer, sizeof buffer), -1) << selector;
        EXPECT_EQ(buffer[0], 'x') << selector;
    }
}

} // namespace
