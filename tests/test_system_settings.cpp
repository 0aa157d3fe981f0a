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

template <size_t N>
void set(char (&field)[N], const char *text)
{
    snprintf(field, N, "%s", text);
}

TEST(SystemDateTime, RecordOrder)
{
    system_date_time_record r{};
    r.year = 2026;
    r.month = 11;
    r.day = 22;
    r.hour = 9;
    r.minute = 41;
    r.second = 7;
    set(r.timeZoneTz, "CET-1CEST,M3.5.0,M10.5.0/3");
    set(r.zoneNameTz, "Europe/Berlin");
    r.dayLight = 1;
    r.timeType = -2;
    set(r.ntpServer, "pool.ntp.org");
    r.ntpSyncEnable = 3;
    r.ntpInterval = 60;
    test::Json doc(render(get_system_date_time_json, r));
    test::expect_members(doc.root(), {N("year", 2026), N("month", 11), N("day", 22), N("hour", 9), N("minute", 41),
                                      N("second", 7), S("timeZoneTz", "CET-1CEST,M3.5.0,M10.5.0/3"),
                                      S("zoneNameTz", "Europe/Berlin"), N("dayLight", 1), N("timeType", -2),
                                      S("ntpServer", "pool.ntp.org"), N("ntpSyncEnable", 3), N("ntpInterval", 60)});
}

// ---- accounts ----

void fill_user(system_user_entry &u, const char *name, uint8_t level, int32_t privilege, uint8_t firstPermission)
{
    set(u.userName, name);
    set(u.passwordHash, "secret");
    u.userLevel = level;
    u.privilege = privilege;
    for (int m = 0; m < 4; ++m) {
        set(u.modulePermissions[m].module, "stored module text");
        u.modulePermissions[m].permission = static_cast<uint8_t>(firstPermission + m);
    }
}

// The account object: the module keys are the platform's texts, m = 0..3.
void expect_user(const cJSON *user, const char *name, uint8_t level, int32_t privilege, uint8_t firstPermission)
{
    test::expect_members(user, {S("userName", name), N("userLevel", level), N("privilege", privilege),
                                O("newModulePermission")});
    std::vector<test::Expected> modules;
    for (int32_t m = 0; m < 4; ++m)
        modules.push_back(N(get_module_permission_string(m), firstPermission + m));
    test::expect_members(test::member(user, "newModulePermission"), modules);
}

TEST(SystemUser, UsedSlotsOnlyInSlotOrder)
{
    system_user_record r{};
    r.miscAnonymous = 1;
    fill_user(r.users[0], "admin", 0, 255, 1);
    fill_user(r.users[2], "operator", 200, -7, 250);
    fill_user(r.users[19], "last", 3, 4, 10);
    r.users[1].userLevel = 9; // an unused slot with leftovers
    r.users[1].userName[1] = 'x';
    test::Json doc(render(get_system_user_json, r));
    test::expect_members(doc.root(), {N("miscAnonymous", 1), A("userList")});
    const cJSON *list = doc["userList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 3);
    expect_user(test::element(list, 0), "admin", 0, 255, 1);
    expect_user(test::element(list, 1), "operator", 200, -7, 250);
    expect_user(test::element(list, 2), "last", 3, 4, 10);
}

TEST(SystemUser, NoAccountsGiveAnEmptyList)
{
    const system_user_record r{};
    test::Json doc(render(get_system_user_json, r));
    test::expect_members(doc.root(), {N("miscAnonymous", 0), A("userList")});
    EXPECT_EQ(cJSON_GetArraySize(doc["userList"]), 0);
}

TEST(SystemUser, Anonymous)
{
    const system_user_anonymous_record r{-3};
    test::Json doc(render(get_system_user_anonymous_json, r));
    test::expect_members(doc.root(), {N("miscAnonymous", -3)});
}

// ---- the AES key ----

TEST(SystemAesKey, KeyAndIdentifier)
{
    system_aes_key_record r{};
    set(r.key, "00112233445566778899aabbccddeeff");
    set(r.keyId, "site-7");
    test::Json doc(render(get_system_aes_key_json, r));
    test::expect_members(doc.root(), {S("key", "00112233445566778899aabbccddeeff"), S("keyId", "site-7")});
}

TEST(SystemAesKey, NoKeyLeavesTheBufferAsItWas)
{
    system_aes_key_record r{};
    set(r.keyId, "orphan id");
    char dst[32];
    memcpy(dst, "previous text\0tail", 19);
    EXPECT_EQ(get_system_aes_key_json(&r, dst, sizeof dst), 0);
    EXPECT_EQ(memcmp(dst, "previous text\0tail", 19), 0);
    // The buffer test still comes first.
    EXPECT_EQ(get_system_aes_key_json(&r, nullptr, 32), -1);
    EXPECT_EQ(get_system_aes_key_json(&r, dst, 0), -1);
}

// ---- security questions ----

TEST(SystemSqaInfo, OnlyExactlyOneEnables)
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

// ---- access list ----

TEST(SystemAccessList, EntriesNumberedAsWritten)
{
    system_access_list_record r{};
    r.maxConcurrent = 10;
    r.filterEnable = 1;
    r.filterType = -1;
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

TEST(SystemAccessList, NoAddressesGiveAnEmptyList)
{
    system_access_list_record r{};
    r.accessType[0] = 1;
    test::Json doc(render(get_system_access_list_json, r));
    EXPECT_EQ(cJSON_GetArraySize(doc["accessList"]), 0);
}

// ---- the small flat pages ----

TEST(SystemFlatDocuments, KeysTypesAndOrder)
{
    system_notify_record notify{};
    set(notify.keep, "k");
    set(notify.md, "m");
    set(notify.recording, "r");
    set(notify.input, "i");
    set(notify.output, "o");
    system_auto_export_record exportRecord{};
    exportRecord.autoExportEnable = 1;
    exportRecord.autoExportMethod = 2;
    exportRecord.autoExportWeekday = -3;
    set(exportRecord.autoExportTime, "02:00:00");
    exportRecord.autoExportRange = 7;
    system_authority_record authority{};
    authority.userLevel = -1;
    authority.privilege = 63;
    set(authority.userId, "operator");
    system_remote_logs_record logs{};
    logs.remoteLogsEnable = 1;
    logs.remoteLogsPort = 514;
    set(logs.remoteLogsIpAddress, "192.168.1.20");
    system_water_mark_record mark{};
    mark.waterMarkEnable = 200;
    set(mark.waterMarkString, "gate north");

    struct Case {
        const char *what;
        std::string text;
        std::vector<test::Expected> want;
    };
    const Case cases[] = {
        {"reboot", render(get_system_auto_reboot_json, system_auto_reboot_record{255, 6, 3, 30, -1}),
         {N("rebootEnable", 255), N("rebootWeekday", 6), N("rebootHour", 3), N("rebootMin", 30), N("rebootSec", -1)}},
        {"water mark", render(get_system_water_mark_json, mark),
         {N("waterMarkEnable", 200), S("waterMarkString", "gate north")}},
        {"ssh", render(get_system_ssh_json, system_ssh_record{-1, 2222}), {N("sshEnable", -1), N("sshPort", 2222)}},
        {"notify", render(get_system_notify_json, notify),
         {S("keep", "k"), S("md", "m"), S("recording", "r"), S("input", "i"), S("output", "o")}},
        {"auto export", render(get_system_auto_export_json, exportRecord),
         {N("autoExportEnable", 1), N("autoExportMethod", 2), N("autoExportWeekday", -3),
          S("autoExportTime", "02:00:00"), N("autoExportRange", 7)}},
        {"authority", render(get_system_authority_json, authority),
         {N("userLevel", -1), N("privilege", 63), S("userId", "operator")}},
        {"remote logs", render(get_system_remote_logs_json, logs),
         {N("remoteLogsEnable", 1), S("remoteLogsIpAddress", "192.168.1.20"), N("remoteLogsPort", 514)}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        test::Json doc(c.text);
        test::expect_members(doc.root(), c.want);
    }
}

// ---- support information ----

TEST(SystemSupportInfo, EveryMemberFromItsField)
{
    system_support_info_record r{};
    r.lessAlarmAudio = 1;
    r.alarmOutput = 2;
    r.supportWhiteledAdjust = 3;
    r.lprShowAlgoDebug = 4;
    r.isTestVideo = 5;
    r.httpPort = 80;
    r.upnpEnable = -6;
    r.upnpHttpPort = 8080;
    r.upnpHttpsPort = 8443;
    r.upnpRtspPort = 8554;
    r.ddns.enable = 201;
    set(r.ddns.userName, "user");
    set(r.ddns.provider, "provider.example.net");
    set(r.ddns.hostName, "host-name");
    r.ddns.httpPort = 4294967295u;
    r.ddns.rtspPort = 3000000000u;
    r.ddns.playbackPort = 7;
    r.outputNum = 9;
    r.curmaxconn = 10;
    r.lprRedLightSupport = 255;
    r.mainRtspPort = 554;
    r.isSupportCellular = 11;
    r.isSupportIndependentGps = 12;
    r.isCompositeEnable = 13;
    r.updateState = -14;
    set(r.url, "https://updates.example.net/fw.bin");
    set(r.version, "V5.2.16");
    set(r.versionInfo, "release notes");
    set(r.versionTime, "2026-10-02");
    set(r.deviceClass, "IPC");
    r.radarSupport = 15;
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
                                              S("version", "V5.2.16"), S("versionInfo", "release notes"),
                                              S("versionTime", "2026-10-02")});
}

TEST(SystemSupportInfo, ZeroedRecord)
{
    const system_support_info_record r{};
    test::Json doc(render(get_system_support_info_json, r));
    EXPECT_EQ(test::keys(doc.root()).size(), 25u);
    const cJSON *version = doc["pluginVersion"];
    ASSERT_TRUE(cJSON_IsString(version));
    EXPECT_STREQ(version->valuestring, "1.0.12");
    test::expect_members(doc["upgradeInfo"], {N("updateState", 0), S("url", ""), S("version", ""),
                                              S("versionInfo", ""), S("versionTime", "")});
}

TEST(SystemSupportInfo, LongReleaseNotesWhole)
{
    system_support_info_record r{};
    const std::string notes(4000, 'v');
    set(r.versionInfo, notes.c_str());
    test::Json doc(render(get_system_support_info_json, r));
    const cJSON *info = test::member(doc["upgradeInfo"], "versionInfo");
    ASSERT_TRUE(cJSON_IsString(info));
    EXPECT_EQ(std::string(info->valuestring), notes);
}

TEST(SystemSupportInfo, DeviceClassHolds68Bytes)
{
    EXPECT_EQ(offsetof(system_support_info_record, radarSupport) - offsetof(system_support_info_record, deviceClass),
              68u);
    // The DDNS block is the network DDNS page's record without its leading word.
    EXPECT_EQ(sizeof(network_ddns_settings), sizeof(network_ddns_record) - offsetof(network_ddns_record, enable));
}

} // namespace
