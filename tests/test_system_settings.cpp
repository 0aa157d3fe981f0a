// The system settings pages and the support-information document.
#include "support.h"
#include "zk_platform.h"

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

using test::A;
using test::N;
using test::O;
using test::S;

namespace {

template <typename Record, typename Fn>
std::string render(Fn fn, const Record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return fn(&r, dst, n); });
}

template <size_t Size>
void set(char (&field)[Size], const char *text)
{
    snprintf(field, Size, "%s", text);
}

// Pages of plain members: every value distinct, bytes above 127 to show the
// unsigned reading, negative words to show the signed one.
TEST(SystemFlatDocuments, KeysTypesAndOrder)
{
    const struct {
        const char *what;
        std::string text;
        std::vector<test::Expected> want;
    } cases[] = {
        {"date and time",
         render(get_system_date_time_json,
                system_date_time_record{2026, 11, 22, 9, 41, 7, "CET-1CEST", "Europe/Berlin", 1, -2, "pool.ntp.org", 3, 60}),
         {N("year", 2026), N("month", 11), N("day", 22), N("hour", 9), N("minute", 41), N("second", 7),
          S("timeZoneTz", "CET-1CEST"), S("zoneNameTz", "Europe/Berlin"), N("dayLight", 1), N("timeType", -2),
          S("ntpServer", "pool.ntp.org"), N("ntpSyncEnable", 3), N("ntpInterval", 60)}},
        {"anonymous", render(get_system_user_anonymous_json, system_user_anonymous_record{-3}),
         {N("miscAnonymous", -3)}},
        {"reboot", render(get_system_auto_reboot_json, system_auto_reboot_record{255, 6, 3, 30, -1}),
         {N("rebootEnable", 255), N("rebootWeekday", 6), N("rebootHour", 3), N("rebootMin", 30), N("rebootSec", -1)}},
        {"water mark", render(get_system_water_mark_json, system_water_mark_record{200, "gate north"}),
         {N("waterMarkEnable", 200), S("waterMarkString", "gate north")}},
        {"ssh", render(get_system_ssh_json, system_ssh_record{-1, 2222}), {N("sshEnable", -1), N("sshPort", 2222)}},
        {"notify", render(get_system_notify_json, system_notify_record{"k", "m", "r", "i", "o"}),
         {S("keep", "k"), S("md", "m"), S("recording", "r"), S("input", "i"), S("output", "o")}},
        {"auto export", render(get_system_auto_export_json, system_auto_export_record{1, 2, -3, "02:00:00", 7}),
         {N("autoExportEnable", 1), N("autoExportMethod", 2), N("autoExportWeekday", -3),
          S("autoExportTime", "02:00:00"), N("autoExportRange", 7)}},
        {"authority", render(get_system_authority_json, system_authority_record{-1, 63, "operator"}),
         {N("userLevel", -1), N("privilege", 63), S("userId", "operator")}},
        // The address comes before the port, although its field comes after.
        {"remote logs", render(get_system_remote_logs_json, system_remote_logs_record{1, 514, "192.168.1.20"}),
         {N("remoteLogsEnable", 1), S("remoteLogsIpAddress", "192.168.1.20"), N("remoteLogsPort", 514)}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        test::Json doc(c.text);
        test::expect_members(doc.root(), c.want);
    }
}

TEST(SystemUser, UsedSlotsOnlyInSlotOrderWithPlatformModuleKeys)
{
    const struct {
        int slot;
        const char *name;
        uint8_t level;
        int32_t privilege;
    } used[] = {{0, "admin", 0, 255}, {2, "operator", 200, -7}, {19, "last", 3, 4}};
    system_user_record r{};
    r.miscAnonymous = -1;
    for (const auto &u : used) {
        system_user_entry &e = r.users[u.slot];
        set(e.userName, u.name);
        set(e.passwordHash, "hash");
        e.userLevel = u.level;
        e.privilege = u.privilege;
        for (int m = 0; m < 4; ++m) {
            set(e.modulePermissions[m].module, "stored module text");
            e.modulePermissions[m].permission = static_cast<uint8_t>(u.level + 10 * m + 1);
        }
    }
    r.users[1].userName[1] = 'x'; // leftovers behind an empty name
    test::Json doc(render(get_system_user_json, r));
    test::expect_members(doc.root(), {N("miscAnonymous", -1), A("userList")});
    const cJSON *list = doc["userList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 3);
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(used[i].name);
        const cJSON *user = test::element(list, i);
        test::expect_members(user, {S("userName", used[i].name), N("userLevel", used[i].level),
                                    N("privilege", used[i].privilege), O("newModulePermission")});
        std::vector<test::Expected> modules;
        for (int32_t m = 0; m < 4; ++m)
            modules.push_back(N(get_module_permission_string(m), used[i].level + 10 * m + 1));
        test::expect_members(test::member(user, "newModulePermission"), modules);
    }
    test::Json none(render(get_system_user_json, system_user_record{}));
    EXPECT_EQ(cJSON_GetArraySize(none["userList"]), 0);
}

TEST(SystemAesKey, KeyAndIdentifierOrNothingAtAll)
{
    test::Json doc(render(get_system_aes_key_json, system_aes_key_record{"00112233aabbccdd", "site-7"}));
    test::expect_members(doc.root(), {S("key", "00112233aabbccdd"), S("keyId", "site-7")});

    // No key: success, and the caller's buffer keeps its old bytes.
    const system_aes_key_record empty{"", "orphan id"};
    char dst[32];
    memcpy(dst, "previous text\0tail", 19);
    EXPECT_EQ(get_system_aes_key_json(&empty, dst, sizeof dst), 0);
    EXPECT_EQ(memcmp(dst, "previous text\0tail", 19), 0);
    EXPECT_EQ(get_system_aes_key_json(&empty, nullptr, 32), -1);
    EXPECT_EQ(get_system_aes_key_json(&empty, dst, 0), -1);
}

TEST(SystemSqaInfo, OnlyExactlyOneEnablesAndAnswersStayEmpty)
{
    system_sqa_info_record r{};
    for (int i = 0; i < 3; ++i) {
        r.questions[i].sqaType = static_cast<uint8_t>(250 + i);
        set(r.questions[i].sqaQuestion, ("question " + std::to_string(i)).c_str());
        set(r.questions[i].sqaAnswer, ("answer " + std::to_string(i)).c_str());
    }
    for (uint8_t off : {0, 2, 255}) {
        r.sqaEnable = off;
        test::Json doc(render(get_system_sqa_info_json, r));
        test::expect_members(doc.root(), {N("sqaEnable", 0)});
    }
    r.sqaEnable = 1;
    test::Json doc(render(get_system_sqa_info_json, r));
    test::expect_members(doc.root(),
                         {N("sqaEnable", 1), N("sqaType_0", 250), S("sqaQuestion_0", "question 0"), S("sqaAnswer_0", ""),
                          N("sqaType_1", 251), S("sqaQuestion_1", "question 1"), S("sqaAnswer_1", ""),
                          N("sqaType_2", 252), S("sqaQuestion_2", "question 2"), S("sqaAnswer_2", "")});
}

TEST(SystemAccessList, UsedSlotsNumberedAsWritten)
{
    system_access_list_record r{10, 1, -1, {}, {}, {}};
    for (int i = 0; i < 10; ++i) {
        r.slotNumbers[i] = 50 + i;
        r.accessType[i] = 20 + i;
    }
    set(r.accessAddress[3], "192.168.1.10");
    set(r.accessAddress[7], "10.0.0.0/8");
    test::Json doc(render(get_system_access_list_json, r));
    test::expect_members(doc.root(), {N("maxConcurrent", 10), N("filterEnable", 1), N("filterType", -1),
                                      A("accessList")});
    const cJSON *list = doc["accessList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 2);
    test::expect_members(test::element(list, 0),
                         {N("accessIndex", 0), N("accessType", 23), S("accessAddress", "192.168.1.10")});
    test::expect_members(test::element(list, 1),
                         {N("accessIndex", 1), N("accessType", 27), S("accessAddress", "10.0.0.0/8")});
}

TEST(SystemSupportInfo, EveryMemberFromItsField)
{
    system_support_info_record r{1, 2, 3, 4, 5, 80, -6, 8080, 8443, 8554, {}, 9, 10, 255, 554, 11, 12, 13, -14,
                                 "https://updates.example.net/fw.bin", "V5.2.16", {}, "2026-10-02", "IPC", 15};
    r.ddns.enable = 201;
    set(r.ddns.userName, "user");
    set(r.ddns.provider, "provider.example.net");
    set(r.ddns.hostName, "host-name");
    r.ddns.httpPort = 4294967295u;
    r.ddns.rtspPort = 3000000000u;
    const std::string notes(4000, 'v'); // long release notes are written whole
    set(r.versionInfo, notes.c_str());
    test::Json doc(render(get_system_support_info_json, r));
    test::expect_members(doc.root(),
                         {N("lessAlarmAudio", 1), N("alarmOutput", 2), N("supportWhiteledAdjust", 3),
                          N("lprShowAlgoDebug", 4), N("isTestVideo", 5), N("httpPort", 80), N("upnpEnable", -6),
                          N("upnpHttpPort", 8080), N("upnpHttpsPort", 8443), N("upnpRtspPort", 8554),
                          N("ddnsenable", 201), N("ddnshttpport", 4294967295.0), N("ddnsrtspport", 3000000000.0),
                          S("ddnsdomain", "provider.example.net"), N("outputNum", 9), S("pluginVersion", "1.0.12"),
                          N("curmaxconn", 10), N("lprRedLightSupport", 255), N("mainRtspPort", 554),
                          N("isSupportCellular", 11), N("isSupportIndependentGps", 12), N("isCompositeEnable", 13),
                          N("radarSupport", 15), S("deviceClass", "IPC"), O("upgradeInfo")});
    test::expect_members(doc["upgradeInfo"], {N("updateState", -14), S("url", "https://updates.example.net/fw.bin"),
                                              S("version", "V5.2.16"), S("versionInfo", notes),
                                              S("versionTime", "2026-10-02")});
    EXPECT_EQ(offsetof(system_support_info_record, radarSupport) - offsetof(system_support_info_record, deviceClass),
              68u);
}

} // namespace
