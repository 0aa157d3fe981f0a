// The alarm actions, read from the same records two ways: one object per alarm
// event type, named by the event table, or a list of the four IoT rules.
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
using Members = std::vector<test::Expected>;
using Render = std::function<std::string(int32_t selector)>;

// The k-th array given (from 1) holds -100 * k + i at index i: negative, so a
// signedness slip shows, and distinct across fields and indexes.
template <typename... Arrays>
void fill(Arrays &...arrays)
{
    int32_t *all[] = {arrays...};
    for (size_t k = 0; k < sizeof...(arrays); ++k)
        for (int32_t i = 0; i < 48; ++i)
            all[k][i] = -100 * static_cast<int32_t>(k + 1) + i;
}

// Number keys in order, the k-th read from the k-th filled array at index i.
Members at(int32_t i, std::initializer_list<const char *> keys)
{
    Members m;
    for (const char *key : keys)
        m.push_back(N(key, -100.0 * static_cast<double>(m.size() + 1) + i));
    return m;
}

Members operator+(Members a, const Members &b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

template <typename Record>
Render renderer(int32_t (*serialize)(const Record *, char *, int32_t), void (*prepare)(Record &))
{
    return [serialize, prepare](int32_t selector) {
        auto record = std::make_unique<Record>();
        prepare(*record);
        record->eventType = selector;
        return test::rendered([&](char *dst, int32_t n) { return serialize(record.get(), dst, n); });
    };
}

void notify(event_notify_record &r)
{
    fill(r.httpNotifyEnable);
    for (int i = 0; i < 48; ++i)
        for (int j = 0; j < 3; ++j) {
            // enable, method and snapshot above 127, interval above INT32_MAX
            event_notify_entry &e = r.notifyList[i][j];
            e = {91, 92, static_cast<uint8_t>(200 + j), static_cast<uint8_t>(210 + j), static_cast<uint8_t>(220 + j),
                 "", "", "", 4000000000u + static_cast<uint32_t>(10 * i + j)};
            snprintf(e.url, sizeof e.url, "http://hook/%d-%d", i, j);
            snprintf(e.user, sizeof e.user, "user %d-%d", i, j);
            snprintf(e.password, sizeof e.password, "pw %d-%d", i, j);
        }
}

void record(event_record_record &r)
{
    fill(r.duration, r.sdInsert, r.nasMountStatus);
    for (int i = 0; i < 48; ++i)
        r.recordSettings[i] = {static_cast<uint8_t>(150 + i), static_cast<uint8_t>(200 + i), {7, 8}};
}

void snop(event_snop_record &r)
{
    fill(r.snapEnable, r.snapWay, r.interval, r.unit, r.imageNum, r.smtpInterval, r.snapType);
    r.snapSmtpEnable = -7;
}

void play_audio(event_play_audio_record &r)
{
    fill(r.playAudioEnable, r.audioInterval);
    for (int i = 0; i < 48; ++i)
        for (int d = 0; d < 6; ++d) // day 6 left empty: still listed
            snprintf(r.schedule[i][d], sizeof r.schedule[i][d], "type %d day %d", i, d);
}

void output(event_extern_output_record &r) { fill(r.externOutputEnable, r.externDuration, r.externOutputExtEnable); }
void sip(event_alarm_sip_phone_record &r) { fill(r.alarmSipPhoneEnable); }
void osd(event_osd_blink_record &r) { fill(r.osdBlinkEnable, r.osdBlinkTime); }
// Filled in emission order: zoom before recovery, the reverse of the record.
void ptz(event_ptz_motion_record &r) { fill(r.ptzMotionEnable, r.ptzZoomTimes, r.ptzRecoveryTime); }
void call(event_event_call_record &r)
{
    fill(r.presetEnable, r.presetId, r.patrolEnable, r.patrolId, r.patternEnable, r.patternId);
}
void led(event_white_led_record &r)
{
    fill(r.whiteLedEnable, r.flashMode, r.flashTime, r.effectiveMode, r.effectiveBright, r.alwaysTime, r.startHour,
         r.startMinute, r.stopHour, r.stopMinute);
}

// Each record: its per-type document and, for most, its per-rule one. The
// per-rule entry holds the per-type keys read at the rule, unless told.
struct Action {
    const char *name;
    Render byType;
    std::function<Members(int32_t i, bool single)> members;
    Render byRule = nullptr;
    const char *list = nullptr;
    Members root = {};                                  // per-rule: root keys before the list
    std::function<Members(int32_t r)> rule = nullptr;   // per-rule: keys after "ruleIndex"
};

const std::vector<Action> &actions()
{
    static const std::vector<Action> cases = {
        {"notify", renderer(get_event_notify_json, notify),
         [](int32_t i, bool) { return at(i, {"httpNotifyEnable"}) + Members{A("notifyList")}; },
         renderer(get_event_iot_notify_json, notify), "iotNotifyActionList", {},
         [](int32_t r) { return at(r, {"httpNotifyEnable"}) + Members{A("notifyInfoList")}; }},
        {"record", renderer(get_event_record_json, record),
         [](int32_t i, bool) {
             return Members{N("recordEnable", 150 + i), N("recordWay", 200 + i)} +
                    at(i, {"duration", "sdInsert", "nasMountStatus"});
         },
         renderer(get_event_iot_record_json, record), "iotRecordActionList",
         {N("sdInsert", -200), N("nasMountStatus", -300)},
         [](int32_t r) { return Members{N("recordEnable", 150 + r), N("recordWay", 200 + r)} + at(r, {"duration"}); }},
        {"snop", renderer(get_event_snop_json, snop),
         [](int32_t i, bool single) {
             return Members{N("snapSmtpEnable", -7)} +
                    at(i, {"snapEnable", "snapWay", "interval", "unit", "imageNum", "smtpInterval"}) +
                    (single ? Members{N("snapType", -700 + i)} : Members{});
         },
         renderer(get_event_iot_snap_json, snop), "iotSnapshotActionList", {N("snapSmtpEnable", -7)},
         [](int32_t r) { return at(r, {"snapEnable", "snapWay", "interval", "unit", "imageNum", "smtpInterval"}); }},
        {"extern output", renderer(get_event_extern_output_json, output),
         [](int32_t i, bool) { return at(i, {"externOutputEnable", "externDuration", "externOutputExtEnable"}); },
         renderer(get_event_extern_iot_output_json, output), "iotOutputActionList"},
        {"play audio", renderer(get_event_play_audio_json, play_audio),
         [](int32_t i, bool) { return at(i, {"playAudioEnable", "audioInterval"}) + Members{A("scheduleList")}; },
         renderer(get_event_iot_play_audio_json, play_audio), "iotPlayAudioActionList"},
        {"sip phone", renderer(get_event_alarm_sip_phone_json, sip),
         [](int32_t i, bool) { return at(i, {"alarmSipPhoneEnable"}); },
         renderer(get_event_iot_alarm_sip_phone_json, sip), "iotAlarmSipActionList"},
        {"osd blink", renderer(get_event_osd_blink_json, osd),
         [](int32_t i, bool) { return at(i, {"osdBlinkEnable", "osdBlinkTime"}); },
         renderer(get_event_iot_osd_blink_json, osd), "iotOsdBlankActionList"},
        {"white led", renderer(get_event_white_led_json, led),
         [](int32_t i, bool) {
             return at(i, {"whiteLedEnable", "flashMode", "flashTime", "effectiveMode", "effectiveBright",
                           "alwaysTime", "startHour", "startMinute", "stopHour", "stopMinute"});
         }},
        {"ptz motion", renderer(get_event_ptz_motion_json, ptz),
         [](int32_t i, bool) { return at(i, {"ptzMotionEnable", "ptzZoomTimes", "ptzRecoveryTime"}); }},
        {"event call", renderer(get_event_event_call_json, call),
         [](int32_t i, bool) {
             return at(i, {"presetEnable", "presetId", "patrolEnable", "patrolId", "patternEnable", "patternId"});
         }},
    };
    return cases;
}

// Alarm event names at some places of the table, first and last included.
const struct { int32_t index; const char *name; } kSpotChecks[] = {
    {0, "motion"}, {13, "vcaLinecrossing"}, {23, "objectLeftRemove"}, {47, "nouser3"}};

TEST(EventActions, AllTypesInTableOrderOrTheSelectedOneAlone)
{
    for (const Action &c : actions()) {
        SCOPED_TRACE(c.name);
        const std::string text = c.byType(-1);
        EXPECT_EQ(c.byType(INT32_MIN), text);
        test::Json all(text);
        ASSERT_EQ(test::keys(all.root()).size(), 48u);
        for (const auto &t : kSpotChecks) {
            SCOPED_TRACE(t.name);
            EXPECT_EQ(test::keys(all.root())[t.index], t.name);
            test::expect_members(all[t.name], c.members(t.index, false)); // never "snapType" here
            test::Json one(c.byType(t.index));
            ASSERT_EQ(test::keys(one.root()), std::vector<std::string>{t.name});
            test::expect_members(one[t.name], c.members(t.index, true));
        }
    }
}

TEST(EventActions, SelectorAboveTheTableIsRefused)
{
    char buffer[64];
    for (const int32_t selector : {48, INT32_MAX}) {
        const event_osd_blink_record r{selector, {}, {}};
        EXPECT_EQ(get_event_osd_blink_json(&r, buffer, sizeof buffer), -1) << selector;
    }
}

// A set request and its reply.
template <typename Record>
int32_t post(int32_t (*set)(Record *, const char *, int32_t, char *, int32_t), Record &record, const std::string &body,
             std::string *reply)
{
    char out[512] = {0};
    const int32_t rc = set(&record, body.data(), static_cast<int32_t>(body.size()), out, sizeof out);
    *reply = out;
    return rc;
}

std::string refused_at(const char *path)
{
    char out[512];
    zk_return_format_error_json(out, sizeof out, path);
    return out;
}

// The selector picks what is shown; a request writes the types it names, for
// any selector, the selector included that no document can show.
TEST(EventActions, SetWritesTheNamedTypesWhateverTheSelector)
{
    for (const int32_t selector : {INT32_MIN, -1, 0, 47, 48, INT32_MAX}) {
        SCOPED_TRACE(selector);
        auto record = std::make_unique<event_notify_record>();
        notify(*record);
        record->eventType = selector;
        auto expected = std::make_unique<event_notify_record>(*record);
        expected->httpNotifyEnable[40] = 77;
        char(&url)[1024] = expected->notifyList[6][2].url;
        memset(url, 0, sizeof url); // a text is stored with the rest of its field cleared
        snprintf(url, sizeof url, "http://moved");
        expected->notifyList[47][0].interval = 0;
        std::string reply;
        ASSERT_EQ(post(set_event_notify_json, *record,
                       R"({"helmet": {"httpNotifyEnable": 77}, "ipConflict": {"notifyList": [{"index": 2, "url": "http://moved"}]},
                           "nouser3": {"notifyList": [{"index": 0, "interval": 0}]}})",
                       &reply),
                  0)
            << reply;
        EXPECT_EQ(memcmp(record.get(), expected.get(), sizeof *record), 0);
    }
}

TEST(EventActions, SchemaRefusesASelectorAboveTheTable)
{
    auto record = std::make_unique<event_play_audio_record>();
    char buffer[64];
    for (const int32_t selector : {48, INT32_MAX}) {
        record->eventType = selector;
        memset(buffer, 'u', sizeof buffer);
        EXPECT_EQ(schema_event_play_audio_json(record.get(), buffer, sizeof buffer), -1) << selector;
        EXPECT_EQ(buffer[0], 'u') << selector;
    }
    record->eventType = 47;
    EXPECT_EQ(schema_event_play_audio_json(record.get(), buffer, sizeof buffer), 0);
}

// The mail switch is one value shown in every object: only the selected
// type's object ("motion" for the overview) writes it, the others may repeat
// it. "snapType" is a key of the single-type page alone.
TEST(EventActions, SnapshotMailSwitchIsWrittenThroughOneObject)
{
    const struct {
        int32_t selector;
        const char *body;
        const char *refusedAt; // nullptr: applied
    } cases[] = {
        {-1, R"({"motion": {"snapSmtpEnable": 9}})", nullptr},
        {-1, R"({"networkLost": {"snapSmtpEnable": 9}})", "networkLost.snapSmtpEnable"},
        {-1, R"({"networkLost": {"snapSmtpEnable": -7}, "motion": {"snapSmtpEnable": 9}})", nullptr},
        {5, R"({"parkingViolation": {"snapSmtpEnable": 9}})", nullptr},
        {5, R"({"motion": {"snapSmtpEnable": 9}})", "motion.snapSmtpEnable"},
        {48, R"({"motion": {"snapSmtpEnable": 9}})", nullptr},
        {-1, R"({"motion": {"snapType": 9}})", "motion.snapType"},
        {5, R"({"motion": {"snapType": 9}})", nullptr},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.body);
        auto record = std::make_unique<event_snop_record>();
        snop(*record);
        record->eventType = c.selector;
        auto before = std::make_unique<event_snop_record>(*record);
        std::string reply;
        const int32_t rc = post(set_event_snop_json, *record, c.body, &reply);
        if (c.refusedAt != nullptr) {
            EXPECT_EQ(rc, -1);
            EXPECT_EQ(reply, refused_at(c.refusedAt));
            EXPECT_EQ(memcmp(record.get(), before.get(), sizeof *record), 0);
            continue;
        }
        ASSERT_EQ(rc, 0) << reply;
        if (strstr(c.body, "snapType") != nullptr) {
            before->snapType[0] = 9;
        } else {
            before->snapSmtpEnable = 9;
        }
        EXPECT_EQ(memcmp(record.get(), before.get(), sizeof *record), 0);
    }
}

TEST(IotActions, FourRulesReadAtZeroToThreeWhateverTheSelector)
{
    for (const Action &c : actions()) {
        if (!c.byRule)
            continue;
        SCOPED_TRACE(c.name);
        const std::string text = c.byRule(-1);
        test::Json doc(text);
        test::expect_members(doc.root(), c.root + Members{A(c.list)});
        ASSERT_EQ(cJSON_GetArraySize(doc[c.list]), 4);
        for (int32_t r = 0; r < 4; ++r)
            test::expect_members(test::element(doc[c.list], r),
                                 Members{N("ruleIndex", r)} + (c.rule ? c.rule(r) : c.members(r, false)));
        for (int32_t selector : {0, 5, 48, INT32_MIN})
            EXPECT_EQ(c.byRule(selector), text) << "selector " << selector;
    }
}

// Notify target j at index i; the per-rule list leaves out method and snapshot.
Members target(int i, int j, bool full)
{
    const std::string tag = std::to_string(i) + "-" + std::to_string(j);
    const Members m{N("index", j), N("enable", 200 + j), N("interval", 4000000000.0 + 10 * i + j),
                    S("url", "http://hook/" + tag), S("user", "user " + tag), S("password", "pw " + tag)};
    return full ? m + Members{N("method", 210 + j), N("snapShot", 220 + j)} : m;
}

// The seven-day list is shared: here only its length and its ends, read at index i.
void expect_week(const cJSON *list, int i)
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    test::expect_members(test::element(list, 0),
                         {N("scheduleIndex", 0), S("schedule", "type " + std::to_string(i) + " day 0")});
    test::expect_members(test::element(list, 6), {N("scheduleIndex", 6), S("schedule", "")});
}

TEST(IotActions, InnerListsReadAtTheTypeOrTheRule)
{
    test::Json byType(renderer(get_event_notify_json, notify)(6));
    test::Json byRule(renderer(get_event_iot_notify_json, notify)(-1));
    const cJSON *typed = test::member(byType["ipConflict"], "notifyList");
    const cJSON *ruled = test::member(test::element(byRule["iotNotifyActionList"], 2), "notifyInfoList");
    ASSERT_EQ(cJSON_GetArraySize(typed), 3);
    ASSERT_EQ(cJSON_GetArraySize(ruled), 3);
    for (int j = 0; j < 3; ++j) {
        test::expect_members(test::element(typed, j), target(6, j, true));
        test::expect_members(test::element(ruled, j), target(2, j, false));
    }
    test::Json audioByType(renderer(get_event_play_audio_json, play_audio)(40));
    test::Json audioByRule(renderer(get_event_iot_play_audio_json, play_audio)(-1));
    expect_week(test::member(audioByType["helmet"], "scheduleList"), 40);
    expect_week(test::member(test::element(audioByRule["iotPlayAudioActionList"], 3), "scheduleList"), 3);
}

TEST(IotActions, AlarmStatus)
{
    const event_iot_alarm_status_record record{-1};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_event_iot_alarm_status_json(&record, d, n); }));
    test::expect_members(doc.root(), {N("iotAlarmStatus", -1)});
}

} // namespace
