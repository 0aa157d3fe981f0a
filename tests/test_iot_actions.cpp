// The alarm actions per IoT rule: the alarm-action records read at rules
// 0..3, listed with "ruleIndex", whatever the records' selector says.
#include "support.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

// Values made from the field's base and the index, so that a neighbouring
// field or a neighbouring rule shows. Indexes 4..47 are event types only.
void fill(int32_t (&values)[48], int32_t base)
{
    for (int32_t i = 0; i < 48; ++i)
        values[i] = base + i;
}

struct RuleListCase {
    const char *name;
    std::function<std::string(int32_t eventType)> render;
    std::vector<test::Expected> root;                       // root keys before the list
    const char *listKey;
    std::function<std::vector<test::Expected>(int32_t r)> rule; // members after "ruleIndex"
};

template <typename Record>
std::function<std::string(int32_t)> renderer(int32_t (*serialize)(const Record *, char *, int32_t),
                                             void (*prepare)(Record &))
{
    return [serialize, prepare](int32_t eventType) {
        auto record = std::make_unique<Record>();
        prepare(*record);
        record->eventType = eventType;
        return test::rendered([&](char *dst, int32_t n) { return serialize(record.get(), dst, n); });
    };
}

void prepare_record(event_record_record &r)
{
    fill(r.duration, -100);
    fill(r.sdInsert, 200);
    fill(r.nasMountStatus, 300);
    for (int32_t i = 0; i < 48; ++i) {
        r.recordSettings[i].recordEnable = static_cast<uint8_t>(130 + i);
        r.recordSettings[i].recordWay = static_cast<uint8_t>(230 + i);
    }
}

void prepare_snap(event_snop_record &r)
{
    fill(r.interval, 100);
    fill(r.unit, 200);
    fill(r.snapEnable, 300);
    fill(r.snapWay, 400);
    fill(r.imageNum, 500);
    fill(r.smtpInterval, 600);
    r.snapSmtpEnable = 42;
    fill(r.snapType, 700);
}

void prepare_output(event_extern_output_record &r)
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
            snprintf(r.schedule[i][d], sizeof r.schedule[i][d], "r%d d%d", static_cast<int>(i), static_cast<int>(d));
}

void prepare_sip(event_alarm_sip_phone_record &r) { fill(r.alarmSipPhoneEnable, -100); }

void prepare_notify(event_notify_record &r)
{
    fill(r.httpNotifyEnable, 100);
    for (int32_t i = 0; i < 48; ++i)
        for (int32_t j = 0; j < 3; ++j) {
            event_notify_entry &e = r.notifyList[i][j];
            e.enable = static_cast<uint8_t>(250 - j);
            e.method = 1;
            e.snapShot = 1;
            e.interval = 3000000000u + static_cast<uint32_t>(10 * i + j);
            snprintf(e.url, sizeof e.url, "http://bms/%d/%d", static_cast<int>(i), static_cast<int>(j));
            snprintf(e.user, sizeof e.user, "u%d%d", static_cast<int>(i), static_cast<int>(j));
            snprintf(e.password, sizeof e.password, "p%d%d", static_cast<int>(i), static_cast<int>(j));
        }
}

void prepare_osd(event_osd_blink_record &r)
{
    fill(r.osdBlinkEnable, 100);
    fill(r.osdBlinkTime, 200);
}

std::vector<RuleListCase> rule_list_cases()
{
    return {
        {"record", renderer(get_event_iot_record_json, prepare_record),
         {N("sdInsert", 200), N("nasMountStatus", 300)}, "iotRecordActionList",
         [](int32_t r) {
             return std::vector<test::Expected>{N("recordEnable", 130 + r), N("recordWay", 230 + r),
                                                N("duration", -100 + r)};
         }},
        {"snap", renderer(get_event_iot_snap_json, prepare_snap), {N("snapSmtpEnable", 42)}, "iotSnapshotActionList",
         [](int32_t r) {
             return std::vector<test::Expected>{N("snapEnable", 300 + r), N("snapWay", 400 + r),
                                                N("interval", 100 + r),   N("unit", 200 + r),
                                                N("imageNum", 500 + r),   N("smtpInterval", 600 + r)};
         }},
        {"output", renderer(get_event_extern_iot_output_json, prepare_output), {}, "iotOutputActionList",
         [](int32_t r) {
             return std::vector<test::Expected>{N("externOutputEnable", 100 + r), N("externDuration", 200 + r),
                                                N("externOutputExtEnable", 300 + r)};
         }},
        {"play audio", renderer(get_event_iot_play_audio_json, prepare_play_audio), {}, "iotPlayAudioActionList",
         [](int32_t r) {
             return std::vector<test::Expected>{N("playAudioEnable", 100 + r), N("audioInterval", 200 + r),
                                                A("scheduleList")};
         }},
        {"sip phone", renderer(get_event_iot_alarm_sip_phone_json, prepare_sip), {}, "iotAlarmSipActionList",
         [](int32_t r) { return std::vector<test::Expected>{N("alarmSipPhoneEnable", -100 + r)}; }},
        {"notify", renderer(get_event_iot_notify_json, prepare_notify), {}, "iotNotifyActionList",
         [](int32_t r) {
             return std::vector<test::Expected>{N("httpNotifyEnable", 100 + r), A("notifyInfoList")};
         }},
        {"osd blink", renderer(get_event_iot_osd_blink_json, prepare_osd), {}, "iotOsdBlankActionList",
         [](int32_t r) {
             return std::vector<test::Expected>{N("osdBlinkEnable", 100 + r), N("osdBlinkTime", 200 + r)};
         }},
    };
}

TEST(IotActions, FourRulesReadAtIndexesZeroToThree)
{
    for (const RuleListCase &c : rule_list_cases()) {
        SCOPED_TRACE(c.name);
        test::Json doc(c.render(-1));
        std::vector<test::Expected> root = c.root;
        root.push_back(A(c.listKey));
        test::expect_members(doc.root(), root);
        const cJSON *list = doc[c.listKey];
        ASSERT_EQ(cJSON_GetArraySize(list), 4);
        for (int32_t r = 0; r < 4; ++r) {
            std::vector<test::Expected> rule{N("ruleIndex", r)};
            for (const test::Expected &e : c.rule(r))
                rule.push_back(e);
            test::expect_members(test::element(list, r), rule);
        }
    }
}

TEST(IotActions, TheEventTypeSelectorIsNotRead)
{
    for (const RuleListCase &c : rule_list_cases()) {
        const std::string reference = c.render(-1);
        for (int32_t selector : {0, 5, 47, 48, INT32_MIN})
            EXPECT_EQ(c.render(selector), reference) << c.name << ", selector " << selector;
    }
}

TEST(IotActions, NotifyTargetsWithoutMethodAndSnapshot)
{
    test::Json doc(renderer(get_event_iot_notify_json, prepare_notify)(-1));
    const cJSON *targets = test::member(test::element(doc["iotNotifyActionList"], 2), "notifyInfoList");
    ASSERT_EQ(cJSON_GetArraySize(targets), 3);
    for (int j = 0; j < 3; ++j) {
        const std::string tag = "2" + std::to_string(j);
        test::expect_members(test::element(targets, j),
                             {N("index", j), N("enable", 250 - j), N("interval", 3000000020.0 + j),
                              S("url", "http://bms/2/" + std::to_string(j)), S("user", "u" + tag),
                              S("password", "p" + tag)});
    }
}

TEST(IotActions, PlayAudioScheduleOfEachRule)
{
    test::Json doc(renderer(get_event_iot_play_audio_json, prepare_play_audio)(-1));
    const cJSON *days = test::member(test::element(doc["iotPlayAudioActionList"], 3), "scheduleList");
    ASSERT_EQ(cJSON_GetArraySize(days), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(days, d), {N("scheduleIndex", d), S("schedule", "r3 d" + std::to_string(d))});
}

TEST(IotActions, AlarmStatus)
{
    for (int32_t state : {0, 1, -1}) {
        const event_iot_alarm_status_record record{state};
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_event_iot_alarm_status_json(&record, d, n); }));
        test::expect_members(doc.root(), {N("iotAlarmStatus", state)});
    }
}

} // namespace
