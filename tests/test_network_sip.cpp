// The platform, push, online-user, boot-mail and SIP documents: members in
// page order with distinct values, unsigned bytes and words, the user count
// compared as a signed value, the alarm-phone list that ends at the first
// empty number against the white list that skips gaps and keeps slot numbers.
#include "catalog.h"
#include "support.h"
#include "zk_platform.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;

TEST(NetworkPlatform, MembersInPageOrder)
{
    network_platform_record r{};
    r.enable = 200; // unsigned byte
    r.localPort = 5061;
    put(r.serverId, "sid");
    put(r.serverRegion, "region");
    put(r.serverAddress, "addr");
    r.serverPort = -5062;
    put(r.deviceId, "did");
    put(r.password, "pw");
    r.validity = 1;
    r.heartBeatPeriod = 2;
    r.videoStream = 3;
    r.registerInterval = 4;
    r.maxTimeout = 5;
    put(r.alarmInput, "ai");
    put(r.videoChannel, "vc");
    put(r.audioOutput, "ao");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_platform_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 200), N("localPort", 5061), S("serverId", "sid"), S("serverRegion", "region"),
        S("serverAddress", "addr"), N("serverPort", -5062), S("deviceId", "did"), S("password", "pw"),
        N("validity", 1), N("heartBeatPeriod", 2), N("videoStream", 3), N("registerInterval", 4),
        N("maxTimeout", 5), S("alarmInput", "ai"), S("videoChannel", "vc"), S("audioOutput", "ao"),
    });
}

TEST(NetworkMore, PushSwitchUnderThePlatformsModuleName)
{
    network_more_record r{};
    r.onvifEnable = 1;
    r.pushEnable = 2;
    r.pushType = -3;
    put(r.modulePush[0].moduleName, "not a key");
    r.modulePush[0].push = 255; // unsigned byte
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_more_json(&r, d, n); }));
    test::expect_members(doc.root(), {N("onvifEnable", 1), N("pushEnable", 2), N("pushType", -3),
                                      O("newModulePush")});
    const char *name = get_new_module_push_name(0);
    ASSERT_NE(name, nullptr);
    test::expect_members(doc["newModulePush"], {N(name, 255)});
}

TEST(NetworkSmallDocuments, RtmpAndAnr)
{
    network_rtmp_record rtmp{};
    rtmp.enable = 129; // both bytes unsigned
    rtmp.streamType = 254;
    put(rtmp.server, "rtmp://example/live");
    {
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_rtmp_json(&rtmp, d, n); }));
        test::expect_members(doc.root(), {N("enable", 129), N("streamType", 254), S("server", "rtmp://example/live")});
    }

    network_anr_info_record anr{};
    put(anr.anrMac, "aa:bb");
    put(anr.anrIp, "10.1.1.1");
    anr.anrStatus = -2;
    {
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_anr_info_json(&anr, d, n); }));
        test::expect_members(doc.root(), {S("anrMac", "aa:bb"), S("anrIp", "10.1.1.1"), N("anrStatus", -2)});
    }
}

// Every slot filled with values of its own, so that the count alone decides
// how many objects appear.
network_online_users_record all_users()
{
    network_online_users_record r{};
    for (int i = 0; i < 30; ++i) {
        put(r.onlineUserName[i], ("user" + std::to_string(i)).c_str());
        r.onlineUserLevel[i] = 100 + i;
        put(r.onlineUserIp[i], ("10.0.0." + std::to_string(i)).c_str());
        put(r.onlineUserTime[i], ("t" + std::to_string(i)).c_str());
    }
    return r;
}

TEST(NetworkOnlineUsers, CountDecidesTheListLength)
{
    struct { int32_t count; int objects; } cases[] = {
        {INT32_MIN, 0}, {-1, 0}, {0, 0}, {1, 1}, {2, 2}, {29, 29}, {30, 30},
    };
    network_online_users_record r = all_users();
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "count " << c.count);
        r.onlineUserCount = c.count;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_online_users_json(&r, d, n); }));
        test::expect_members(doc.root(), {A("onlineUserList")});
        const cJSON *list = doc["onlineUserList"];
        ASSERT_EQ(cJSON_GetArraySize(list), c.objects);
        for (int i = 0; i < c.objects; ++i)
            test::expect_members(test::element(list, i), {
                S("onlineUserName", "user" + std::to_string(i)), N("onlineUserLevel", 100 + i),
                S("onlineUserIp", "10.0.0." + std::to_string(i)), S("onlineUserTime", "t" + std::to_string(i)),
            });
    }
}

TEST(NetworkSmtpBootNotify, MembersInPageOrder)
{
    network_smtp_boot_notify_record r{};
    r.bootNotifyEnable = 1;
    put(r.emailTarcertAddress, "target@x");
    put(r.serverUserName, "login");
    put(r.serverFromAddress, "from@x");
    put(r.serverAddress, "smtp.x");
    put(r.serverToAddress, "to@x");
    r.serverPort = 4294967295u; // unsigned word
    r.serverSslHigh = 1;
    r.serverSslLow = 0;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_smtp_boot_notify_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("bootNotifyEnable", 1), S("serverAddress", "smtp.x"), N("serverPort", 4294967295.0),
        S("serverUserName", "login"), N("serverSsl", 2), S("serverFromAddress", "from@x"),
        S("serverToAddress", "to@x"), S("emailTarcertAddress", "target@x"),
    });
}

TEST(NetworkSmtpBootNotify, SslModeIsTwiceHighPlusLow)
{
    struct { uint8_t high, low; double ssl; } cases[] = {
        {0, 0, 0}, {0, 1, 1}, {1, 0, 2}, {1, 1, 3}, {2, 1, 5}, {255, 255, 765},
    };
    for (const auto &c : cases) {
        network_smtp_boot_notify_record r{};
        r.serverSslHigh = c.high;
        r.serverSslLow = c.low;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_smtp_boot_notify_json(&r, d, n); }));
        ASSERT_NE(doc["serverSsl"], nullptr);
        EXPECT_EQ(doc["serverSsl"]->valuedouble, c.ssl) << int(c.high) << ", " << int(c.low);
    }
}

TEST(NetworkSipSettings, ReadThroughThePointerStatusLast)
{
    sip_settings s{};
    s.enable = 201; // the bytes and words are all unsigned
    s.registerMode = 202;
    s.sipAudioEnable = 203;
    s.videoStream = 204;
    s.serverPort = 4294967295u;
    s.reserved0 = 77;
    s.maxDuration = 3000000000u;
    put(s.userId, "uid");
    put(s.password, "pw");
    put(s.userName, "uname");
    put(s.serverAddress, "sip.x");
    s.connectionProtocol = 205;
    const network_sip_settings_record r = {&s, -6};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_sip_settings_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 201), N("registerMode", 202), S("userId", "uid"), S("userName", "uname"), S("password", "pw"),
        S("serverAddress", "sip.x"), N("serverPort", 4294967295.0), N("connectionProtocol", 205),
        N("videoStream", 204), N("maxDuration", 3000000000.0), N("sipAudioEnable", 203), N("sipStatus", -6),
    });
}

// Numbers in the given slots; every slot carries distinct other values.
network_sip_alarm_phone_list_record alarm_phones(std::initializer_list<int> filled)
{
    network_sip_alarm_phone_list_record r{};
    for (int i = 0; i < 5; ++i) {
        sip_alarm_phone_entry &e = r.phones[i];
        e.reserved0 = 90 + i;
        e.phoneType = static_cast<uint8_t>(250 + i); // unsigned byte and word
        e.phonePort = 4294967290u + i;
        e.reserved1 = 1;
        e.durationStartHour = static_cast<uint8_t>(i);
        e.durationStartMinute = static_cast<uint8_t>(10 + i);
        e.durationEndHour = static_cast<uint8_t>(20 + i);
        e.durationEndMinute = static_cast<uint8_t>(30 + i);
        put(e.phoneName, ("name" + std::to_string(i)).c_str());
    }
    for (int i : filled)
        put(r.phones[i].phoneNumber, ("60" + std::to_string(i)).c_str());
    return r;
}

TEST(NetworkSipAlarmPhones, ListEndsAtTheFirstEmptyNumber)
{
    struct { std::initializer_list<int> filled; int objects; } cases[] = {
        {{}, 0}, {{1, 2, 3, 4}, 0}, {{0}, 1}, {{0, 1, 3}, 2}, {{0, 1, 3, 4}, 2}, {{0, 1, 2, 3}, 4},
        {{0, 1, 2, 3, 4}, 5},
    };
    for (const auto &c : cases) {
        const network_sip_alarm_phone_list_record r = alarm_phones(c.filled);
        SCOPED_TRACE(testing::Message() << "expecting " << c.objects);
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_sip_alarm_phone_list_json(&r, d, n); }));
        test::expect_members(doc.root(), {A("sipAlarmPhoneList")});
        const cJSON *list = doc["sipAlarmPhoneList"];
        ASSERT_EQ(cJSON_GetArraySize(list), c.objects);
        // Slot i's window is i:10+i to 20+i:30+i.
        const char *durations[] = {"00102030", "01112131", "02122232", "03132333", "04142434"};
        for (int i = 0; i < c.objects; ++i) {
            test::expect_members(test::element(list, i), {
                N("phoneIndex", i), N("phoneType", 250 + i), S("phoneNumber", "60" + std::to_string(i)),
                S("phoneName", "name" + std::to_string(i)), S("phoneDuration", durations[i]), N("phonePort", 4294967290.0 + i),
            });
        }
    }
}

TEST(NetworkSipAlarmPhones, DurationIsStartThenEndTwoDigitsOrMore)
{
    struct { uint8_t startHour, startMinute, endHour, endMinute; const char *text; } cases[] = {
        {8, 0, 17, 30, "08001730"},
        {0, 0, 23, 59, "00002359"},
        {0, 5, 9, 7, "00050907"},
        {23, 1, 2, 45, "23010245"},
        {100, 0, 0, 0, "100000000"},     // a field wider than two digits is not cut
        {255, 255, 255, 255, "255255255255"},
    };
    for (const auto &c : cases) {
        network_sip_alarm_phone_list_record r = alarm_phones({0});
        r.phones[0].durationStartHour = c.startHour;
        r.phones[0].durationStartMinute = c.startMinute;
        r.phones[0].durationEndHour = c.endHour;
        r.phones[0].durationEndMinute = c.endMinute;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_sip_alarm_phone_list_json(&r, d, n); }));
        const cJSON *duration = test::member(test::element(doc["sipAlarmPhoneList"], 0), "phoneDuration");
        ASSERT_NE(duration, nullptr) << c.text;
        ASSERT_TRUE(cJSON_IsString(duration)) << c.text;
        EXPECT_STREQ(duration->valuestring, c.text);
    }
}

TEST(NetworkSipWhiteList, GapsAreSkippedAndSlotNumbersKept)
{
    struct { std::initializer_list<int> filled; std::vector<int> indexes; } cases[] = {
        {{}, {}},          {{0, 1, 3}, {0, 1, 3}},       {{4}, {4}},
        {{1, 2}, {1, 2}},  {{0, 1, 2, 3, 4}, {0, 1, 2, 3, 4}}, {{0, 4}, {0, 4}},
    };
    for (const auto &c : cases) {
        network_sip_white_list_record r{};
        r.enable = -1;
        for (int i = 0; i < 5; ++i) {
            r.reserved0[i] = 50 + i;
            r.phoneType[i] = -10 - i; // signed
        }
        for (int i : c.filled)
            put(r.phoneNumber[i], ("70" + std::to_string(i)).c_str());
        SCOPED_TRACE(testing::Message() << c.indexes.size() << " numbers");
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_sip_white_list_json(&r, d, n); }));
        test::expect_members(doc.root(), {N("enable", -1), A("sipWhiteList")});
        const cJSON *list = doc["sipWhiteList"];
        ASSERT_EQ(cJSON_GetArraySize(list), static_cast<int>(c.indexes.size()));
        for (size_t k = 0; k < c.indexes.size(); ++k) {
            const int slot = c.indexes[k];
            test::expect_members(test::element(list, static_cast<int>(k)), {
                N("phoneIndex", slot), N("phoneType", -10 - slot), S("phoneNumber", "70" + std::to_string(slot)),
            });
        }
    }
}

} // namespace
