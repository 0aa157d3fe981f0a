// The network documents: services, platform and push, online users, boot
// mail, SIP, stream addresses, VPN and cellular. Every record holds values
// that are all different, so that a swapped field or a key out of place shows;
// bytes above 127 and words above 2^31 show a signed slip.
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

// Sets a field and returns the member it must give, under the key written.
template <typename T>
test::Expected set(T &field, const char *key, double value)
{
    field = static_cast<T>(value);
    return N(key, value);
}
template <size_t M>
test::Expected set(char (&field)[M], const char *key, const char *text)
{
    put(field, text);
    return S(key, text);
}
#define F(field, value) set(r.field, #field, value)

template <typename Fn, typename R>
std::string render(Fn serialize, const R &record)
{
    return test::rendered([&](char *d, int32_t n) { return serialize(&record, d, n); });
}

// The record is filled while the expected members are built, in page order.
template <typename Fn, typename R>
void check(Fn serialize, const R &record, const std::vector<test::Expected> &want)
{
    test::expect_members(test::Json(render(serialize, record)).root(), want);
}

std::string str(int i) { return std::to_string(i); }

TEST(NetworkServices, MembersInPageOrder)
{
    { network_tcp_record r{};
      check(get_network_tcp_json, r, {
          F(ipv4Ipaddress, "10.0.0.7"), F(ipv4netmask, "255.255.0.0"), F(ipv4DhcpEnable, 1),
          F(ipv4gateway, "10.0.0.1"), F(dns0, "10.0.0.53"), F(mtuByte, 1492), F(ipv6Mode, 2),
          F(ipv6Ipaddress, "fd00::7"), F(ipv6netmask, 64), F(ipv6gateway, "fd00::1")}); }
    { network_http_record r{};
      check(get_network_http_json, r, {
          F(httpEnable, 1), F(httpPort, 8080), F(httpsEnable, 2), F(httpsPort, 8443), F(certSubject, "subject"),
          F(certDate, "date"), F(certResult, -3), F(requestSubject, "request"), F(certUpdateFlag, 4),
          F(ipv4Ipaddress, "v4"), F(ipv6Ipaddress, "v6"), F(notBefore, "before"), F(notAfter, "after"),
          F(country, "DE"), F(ST, "Bavaria"), F(O, "Org"), F(CN, "cam.example")}); }
    { network_upnp_record r{};
      check(get_network_upnp_json, r, {
          F(scanUpnpEnable, 1), F(upnpEnable, 2), F(upnpName, "lobby"), F(upnpType, 3), F(upnpHttpPort, 101),
          F(upnpHttpsPort, 102), F(upnpRtspPort, 103), F(upnpPlayBackPort, 104), F(upnpHttpInterPort, 201),
          F(upnpHttpsInterPort, 202), F(upnpRtspInterPort, 203), F(upnpPlaybackInterPort, 204),
          F(upnpHttpStatus, -1), F(upnpHttpsStatus, 5), F(upnpRtspStatus, 6), F(upnpPlaybackStatus, 7)}); }
    { network_vlan_record r{};
      check(get_network_vlan_json, r, {F(vlanEnable, 1), F(vlanId, 4094), F(vlanIp, "10.9.0.2"),
                                       F(vlanNetmask, "255.255.255.128"), F(vlanGateway, "10.9.0.1")}); }
    { network_pppoe_record r{};
      check(get_network_pppoe_json, r, {F(pppoeEnable, 1), F(pppoeUsername, "user@isp"),
                                        F(pppoeIp, "198.51.100.9"), F(pppoeReload, 2)}); }
    { network_bonjour_record r{};
      check(get_network_bonjour_json, r, {F(enable, 250), F(name, "Front door")}); }
    { network_ddns_record r{}; // the three ports are unsigned words
      r.reserved = 77; put(r.password, "secret");
      check(get_network_ddns_json, r, {
          F(enable, 255), F(hostName, "host"), F(userName, "user"), F(provider, "provider"), F(hash, "hash"),
          F(url, "url"), F(httpPort, 4294967295.0), F(rtspPort, 2147483648.0), F(playbackPort, 555),
          F(hostIp, "203.0.113.5"), F(status, -4), F(oemzkDisplay, 2), F(oemIndex, 3)}); }
    { network_rtsp_record r{}; // four ports keyed from 0, signed
      r.multicastPort[0] = 5000; r.multicastPort[1] = 5002; r.multicastPort[2] = 5004; r.multicastPort[3] = -1;
      check(get_network_rtsp_json, r, {
          F(multicastGroupAddress, "239.0.0.9"), N("multicastPort_0", 5000), N("multicastPort_1", 5002),
          N("multicastPort_2", 5004), N("multicastPort_3", -1), F(rtspPort, 554), F(rtspPlaybackPort, 555),
          F(qosDscp, 46), F(rtpPacketSize, 1400)}); }
    { network_snmp_record r{};
      check(get_network_snmp_json, r, {
          F(enableV1, 1), F(enableV2, 2), F(wrCommunity, "wrc"), F(rdCommunity, "rdc"), F(enableV3, 3),
          F(rdSecurityName, "rdn"), F(rdSecurityLevel, 11), F(rdAuthenticationAlgorithm, 12),
          F(rdAuthenticationPassword, "rdap"), F(rdPrivateKeyAlgorithm, 13), F(rdPrivatePassword, "rdpp"),
          F(wrSecurityName, "wrn"), F(wrSecurityLevel, 21), F(wrAuthenticationAlgorithm, 22),
          F(wrAuthenticationPassword, "wrap"), F(wrPrivateKeyAlgorithm, 23), F(wrPrivatePassword, "wrpp"),
          F(snmpPort, 1161)}); }
}

// The stored EAPOL version counts from 0 and is written from 1, not wrapping.
TEST(Network8021x, VersionIsWrittenFromOne)
{
    struct { uint8_t stored; double written; } cases[] = {{0, 1}, {1, 2}, {254, 255}, {255, 256}};
    for (const auto &c : cases) {
        network_8021x_record r{};
        r.reserved0 = 9; put(r.password, "hidden"); r.eapolver = c.stored;
        check(get_network_8021x_json, r,
              {F(enable, 200), S("protocol", "EAP-MD5"), N("eapolver", c.written), F(username, "supplicant")});
    }
}

TEST(NetworkPlatform, PlatformRtmpAnrAndPush)
{
    { network_platform_record r{};
      check(get_network_platform_json, r, {
          F(enable, 200), F(localPort, 5061), F(serverId, "sid"), F(serverRegion, "region"),
          F(serverAddress, "addr"), F(serverPort, -5062), F(deviceId, "did"), F(password, "pw"), F(validity, 1),
          F(heartBeatPeriod, 2), F(videoStream, 3), F(registerInterval, 4), F(maxTimeout, 5),
          F(alarmInput, "ai"), F(videoChannel, "vc"), F(audioOutput, "ao")}); }
    { network_rtmp_record r{};
      check(get_network_rtmp_json, r, {F(enable, 129), F(streamType, 254), F(server, "rtmp://example/live")}); }
    { network_anr_info_record r{};
      check(get_network_anr_info_json, r, {F(anrMac, "aa:bb"), F(anrIp, "10.1.1.1"), F(anrStatus, -2)}); }

    // The push switch sits under the platform library's name for module 0.
    network_more_record r{};
    put(r.modulePush[0].moduleName, "not a key");
    r.modulePush[0].push = 255;
    check(get_network_more_json, r, {F(onvifEnable, 1), F(pushEnable, 2), F(pushType, -3), O("newModulePush")});
    ASSERT_NE(get_new_module_push_name(0), nullptr);
    test::expect_members(test::Json(render(get_network_more_json, r))["newModulePush"],
                         {N(get_new_module_push_name(0), 255)});
}

TEST(NetworkOnlineUsers, CountDecidesTheListLength)
{
    network_online_users_record r{};
    for (int i = 0; i < 30; ++i) {
        put(r.onlineUserName[i], ("user" + str(i)).c_str());
        r.onlineUserLevel[i] = 100 + i;
        put(r.onlineUserIp[i], ("10.0.0." + str(i)).c_str());
        put(r.onlineUserTime[i], ("t" + str(i)).c_str());
    }
    // A count above the 30 slots lists the 30 and no more.
    struct { int32_t count; int objects; } cases[] = {{INT32_MIN, 0}, {-1, 0}, {0, 0}, {1, 1}, {29, 29}, {30, 30},
                                                      {31, 30}, {INT32_MAX, 30}};
    for (const auto &c : cases) {
        SCOPED_TRACE("count " + str(c.count));
        r.onlineUserCount = c.count;
        test::Json doc(render(get_network_online_users_json, r));
        test::expect_members(doc.root(), {A("onlineUserList")});
        ASSERT_EQ(cJSON_GetArraySize(doc["onlineUserList"]), c.objects);
        for (int i = 0; i < c.objects; ++i)
            test::expect_members(test::element(doc["onlineUserList"], i), {
                S("onlineUserName", "user" + str(i)), N("onlineUserLevel", 100 + i),
                S("onlineUserIp", "10.0.0." + str(i)), S("onlineUserTime", "t" + str(i))});
    }
}

// serverSsl is twice the high byte plus the low one.
TEST(NetworkSmtpBootNotify, MembersInPageOrderAndSslMode)
{
    struct { uint8_t high, low; double ssl; } cases[] = {{1, 0, 2}, {0, 1, 1}, {1, 1, 3}, {255, 255, 765}};
    for (const auto &c : cases) {
        network_smtp_boot_notify_record r{};
        r.serverSslHigh = c.high; r.serverSslLow = c.low;
        check(get_network_smtp_boot_notify_json, r, {
            F(bootNotifyEnable, 1), F(serverAddress, "smtp.x"), F(serverPort, 4294967295.0),
            F(serverUserName, "login"), N("serverSsl", c.ssl), F(serverFromAddress, "from@x"),
            F(serverToAddress, "to@x"), F(emailTarcertAddress, "target@x")});
    }
}

TEST(NetworkSipSettings, ReadThroughThePointerStatusLast)
{
    sip_settings s{};
    s.reserved0 = 77;
    network_sip_settings_record p = {&s, -6};
    sip_settings &r = s;
    check(get_network_sip_settings_json, p, {
        F(enable, 201), F(registerMode, 202), F(userId, "uid"), F(userName, "uname"), F(password, "pw"),
        F(serverAddress, "sip.x"), F(serverPort, 4294967295.0), F(connectionProtocol, 205), F(videoStream, 204),
        F(maxDuration, 3000000000.0), F(sipAudioEnable, 203), N("sipStatus", -6)});
}

// Numbers in the given slots; slot i's window is i:10+i to 20+i:30+i.
network_sip_alarm_phone_list_record alarm_phones(std::initializer_list<int> filled)
{
    network_sip_alarm_phone_list_record r{};
    for (int i = 0; i < 5; ++i) {
        sip_alarm_phone_entry &e = r.phones[i];
        e.reserved0 = 90 + i; e.phoneType = uint8_t(250 + i); e.phonePort = 4294967290u + i; e.reserved1 = 1;
        e.durationStartHour = uint8_t(i); e.durationStartMinute = uint8_t(10 + i);
        e.durationEndHour = uint8_t(20 + i); e.durationEndMinute = uint8_t(30 + i);
        put(e.phoneName, ("name" + str(i)).c_str());
    }
    for (int i : filled)
        put(r.phones[i].phoneNumber, ("60" + str(i)).c_str());
    return r;
}

TEST(NetworkSipAlarmPhones, ListEndsAtTheFirstEmptyNumber)
{
    struct { std::initializer_list<int> filled; int objects; } cases[] = {
        {{}, 0}, {{1, 2, 3, 4}, 0}, {{0, 1, 3, 4}, 2}, {{0, 1, 2, 3, 4}, 5}};
    const char *durations[] = {"00102030", "01112131", "02122232", "03132333", "04142434"};
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "expecting " << c.objects);
        test::Json doc(render(get_network_sip_alarm_phone_list_json, alarm_phones(c.filled)));
        test::expect_members(doc.root(), {A("sipAlarmPhoneList")});
        ASSERT_EQ(cJSON_GetArraySize(doc["sipAlarmPhoneList"]), c.objects);
        for (int i = 0; i < c.objects; ++i)
            test::expect_members(test::element(doc["sipAlarmPhoneList"], i), {
                N("phoneIndex", i), N("phoneType", 250 + i), S("phoneNumber", "60" + str(i)),
                S("phoneName", "name" + str(i)), S("phoneDuration", durations[i]), N("phonePort", 4294967290.0 + i)});
    }
}

// Start then end, two digits each or more: a wider field is not cut.
TEST(NetworkSipAlarmPhones, DurationText)
{
    struct { uint8_t sh, sm, eh, em; const char *text; } cases[] = {
        {8, 0, 17, 30, "08001730"}, {0, 5, 9, 7, "00050907"}, {100, 0, 0, 0, "100000000"},
        {255, 255, 255, 255, "255255255255"}};
    for (const auto &c : cases) {
        network_sip_alarm_phone_list_record r = alarm_phones({0});
        sip_alarm_phone_entry &e = r.phones[0];
        e.durationStartHour = c.sh; e.durationStartMinute = c.sm; e.durationEndHour = c.eh; e.durationEndMinute = c.em;
        test::Json doc(render(get_network_sip_alarm_phone_list_json, r));
        EXPECT_STREQ(cJSON_GetStringValue(test::member(test::element(doc["sipAlarmPhoneList"], 0), "phoneDuration")),
                     c.text);
    }
}

// Clearing a number drops that phone; one with listed phones after it would
// hide them as well, so the request is refused there and nothing changes.
TEST(NetworkSipAlarmPhones, ClearingANumberMayNotHideTheNextPhones)
{
    struct {
        std::initializer_list<int> filled;
        std::vector<int> cleared;
        int refusedAt; // -1: accepted
        int listedAfter;
    } cases[] = {
        {{0, 1, 2}, {0}, 0, 3},       {{0, 1, 2}, {1}, 1, 3},       {{0, 1, 2}, {2}, -1, 2},
        {{0, 1, 2}, {1, 2}, -1, 1},   {{0, 1, 2}, {0, 1, 2}, -1, 0}, {{0, 1, 2}, {0, 2}, 0, 3},
        {{0, 1, 2, 3, 4}, {3}, 3, 5}, {{0, 1, 2, 3, 4}, {4}, -1, 4}, {{0, 1, 2, 3, 4}, {2, 4}, 2, 5},
        // Slot 3 is behind a gap already: clearing slot 1 hides nothing more.
        {{0, 1, 3}, {1}, -1, 1},      {{0, 1, 3}, {0}, 0, 2},
    };
    for (const auto &c : cases) {
        network_sip_alarm_phone_list_record r = alarm_phones(c.filled);
        network_sip_alarm_phone_list_record expected = r;
        std::string body = R"({"sipAlarmPhoneList": [)";
        for (size_t k = 0; k < c.cleared.size(); ++k)
            body += (k ? ", " : "") + std::string(R"({"phoneIndex": )") + str(c.cleared[k]) +
                    R"(, "phoneNumber": "", "phoneName": "renamed"})";
        body += "]}";
        SCOPED_TRACE(body);
        char out[512] = {0};
        const int32_t rc =
            set_network_sip_alarm_phone_list_json(&r, body.data(), static_cast<int32_t>(body.size()), out, sizeof out);
        if (c.refusedAt >= 0) {
            char refused[512];
            zk_return_format_error_json(refused, sizeof refused,
                                        ("sipAlarmPhoneList[" + str(c.refusedAt) + "].phoneNumber").c_str());
            EXPECT_EQ(rc, -1);
            EXPECT_STREQ(out, refused);
        } else {
            char succeed[512];
            zk_return_set_request_succeed_json(succeed, sizeof succeed);
            EXPECT_EQ(rc, 0);
            EXPECT_STREQ(out, succeed);
            for (int i : c.cleared) {
                memset(expected.phones[i].phoneNumber, 0, sizeof expected.phones[i].phoneNumber);
                put(expected.phones[i].phoneName, "renamed");
            }
        }
        EXPECT_EQ(memcmp(&r, &expected, sizeof r), 0);
        test::Json doc(render(get_network_sip_alarm_phone_list_json, r));
        ASSERT_EQ(cJSON_GetArraySize(doc["sipAlarmPhoneList"]), c.listedAfter);
        for (int i = 0; i < c.listedAfter; ++i)
            EXPECT_EQ(cJSON_GetNumberValue(test::member(test::element(doc["sipAlarmPhoneList"], i), "phoneIndex")), i);
    }
}

TEST(NetworkSipWhiteList, GapsAreSkippedAndSlotNumbersKept)
{
    const std::vector<int> cases[] = {{}, {0, 1, 3}, {4}, {1, 2}, {0, 1, 2, 3, 4}};
    for (const auto &slots : cases) {
        network_sip_white_list_record r{};
        r.enable = -1;
        for (int i = 0; i < 5; ++i) {
            r.reserved0[i] = 50 + i;
            r.phoneType[i] = -10 - i; // signed
        }
        for (int i : slots)
            put(r.phoneNumber[i], ("70" + str(i)).c_str());
        SCOPED_TRACE(testing::Message() << slots.size() << " numbers");
        test::Json doc(render(get_network_sip_white_list_json, r));
        test::expect_members(doc.root(), {N("enable", -1), A("sipWhiteList")});
        ASSERT_EQ(cJSON_GetArraySize(doc["sipWhiteList"]), int(slots.size()));
        for (size_t k = 0; k < slots.size(); ++k)
            test::expect_members(test::element(doc["sipWhiteList"], int(k)), {
                N("phoneIndex", slots[k]), N("phoneType", -10 - slots[k]), S("phoneNumber", "70" + str(slots[k]))});
    }
}

// Six addresses per list, main stream first; empty ones are kept.
TEST(NetworkStreamUrl, SixAddressesEachEmptyOnesKept)
{
    network_stream_url_record r{};
    const char *const rtsp[6] = {"rtsp://a/0", "rtsp://a/1", "", "rtsp://a/3", "rtsp://a/4", ""};
    const char *const http[6] = {"", "http://a/1", "http://a/2", "http://a/3", "", "http://a/5"};
    for (int i = 0; i < 6; ++i) {
        put(r.rtspStreamUrl[i], rtsp[i]);
        put(r.httpStreamUrl[i], http[i]);
    }
    test::Json doc(render(get_network_stream_url_json, r));
    test::expect_members(doc.root(), {A("rtspStreamUrl"), A("httpStreamUrl")});
    ASSERT_EQ(cJSON_GetArraySize(doc["rtspStreamUrl"]), 6);
    ASSERT_EQ(cJSON_GetArraySize(doc["httpStreamUrl"]), 6);
    for (int i = 0; i < 6; ++i) {
        test::expect_members(test::element(doc["rtspStreamUrl"], i), {S("url", rtsp[i])});
        test::expect_members(test::element(doc["httpStreamUrl"], i), {S("url", http[i])});
    }
}

// duration is a 64-bit unsigned word, errorCode a 32-bit one, mode and
// connected unsigned bytes: none may come out negative or cut to 32 bits.
TEST(NetworkVpnAndCellular, MembersInPageOrder)
{
    { network_vpn_record r{};
      r.reserved0 = 9; put(r.reserved1, "skip1"); put(r.reserved2, "skip2");
      check(get_network_vpn_json, r, {
          F(server, "vpn.x"), F(port, -1194), F(authCode, "code"), F(deviceName, "dev"), F(mode, 255),
          F(connected, 128), F(localIp, "10.8.0.2"), F(remoteIp, "10.8.0.1"), F(duration, 4294967297.0),
          F(errorCode, 4294967295.0)});
      // The largest stays positive and keeps its size (about 15 digits print).
      r.duration = UINT64_MAX;
      test::Json doc(render(get_network_vpn_json, r));
      EXPECT_NEAR(cJSON_GetNumberValue(doc["duration"]) / 18446744073709551616.0, 1.0, 1e-12); }
    { network_cellular_info_record r{};
      r.reserved0[0] = 70; r.reserved0[1] = 71; r.reserved1[0] = 80; r.reserved1[1] = 81;
      check(get_network_cellular_info_json, r, {
          F(enable, 1), F(apn, "apn"), F(userName, "user"), F(password, "pass"), F(pinCode, "1234"),
          F(accessNumber, "*99#"), F(authenticationType, 3), F(networkType, 4), F(redialInterval, 5),
          F(billDay, 6), F(pingDetection, 2), F(pingAddr, "ping.x"), F(mtu, 1400), F(isp, "isp"),
          F(simStatus, "ready"), F(signal, -87), F(connect, "up"), F(imei, "imei"), F(imsi, "imsi"),
          F(iccid, "iccid"), F(ipaddr, "ip"), F(subNetmask, "mask"), F(gateway, "gw"), F(dns, "dns"),
          F(dataUsage, "1 GB")}); }
}

} // namespace
