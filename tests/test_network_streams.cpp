// The stream-address list, the VPN client and the cellular modem documents.
#include "catalog.h"
#include "support.h"

#include <cstring>
#include <string>

namespace {

using test::A;
using test::N;
using test::S;

void expect_urls(const cJSON *list, const char *const (&urls)[6])
{
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(cJSON_GetArraySize(list), 6);
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(testing::Message() << "stream " << i);
        test::expect_members(test::element(list, i), {S("url", urls[i])});
    }
}

TEST(NetworkStreamUrl, SixAddressesEachMainStreamFirst)
{
    network_stream_url_record r{};
    const char *const rtsp[6] = {"rtsp://a/0", "rtsp://a/1", "", "rtsp://a/3", "rtsp://a/4", ""};
    const char *const http[6] = {"", "http://a/1", "http://a/2", "http://a/3", "", "http://a/5"};
    for (int i = 0; i < 6; ++i) {
        put(r.rtspStreamUrl[i], rtsp[i]);
        put(r.httpStreamUrl[i], http[i]);
    }
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_stream_url_json(&r, d, n); }));
    test::expect_members(doc.root(), {A("rtspStreamUrl"), A("httpStreamUrl")});
    expect_urls(doc["rtspStreamUrl"], rtsp);
    expect_urls(doc["httpStreamUrl"], http);
}

TEST(NetworkStreamUrl, EmptyAddressesAreKept)
{
    const network_stream_url_record r{};
    const char *const empty[6] = {"", "", "", "", "", ""};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_stream_url_json(&r, d, n); }));
    test::expect_members(doc.root(), {A("rtspStreamUrl"), A("httpStreamUrl")});
    expect_urls(doc["rtspStreamUrl"], empty);
    expect_urls(doc["httpStreamUrl"], empty);
}

network_vpn_record distinct_vpn()
{
    network_vpn_record r{};
    r.reserved0 = 9;
    r.mode = 2;
    put(r.server, "vpn.x");
    r.port = -1194; // signed
    put(r.reserved1, "skip1");
    put(r.reserved2, "skip2");
    put(r.authCode, "code");
    put(r.deviceName, "dev");
    r.connected = 1;
    put(r.localIp, "10.8.0.2");
    put(r.remoteIp, "10.8.0.1");
    r.duration = 3600;
    r.errorCode = 7;
    return r;
}

TEST(NetworkVpn, MembersInPageOrder)
{
    const network_vpn_record r = distinct_vpn();
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_vpn_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        S("server", "vpn.x"), N("port", -1194), S("authCode", "code"), S("deviceName", "dev"), N("mode", 2),
        N("connected", 1), S("localIp", "10.8.0.2"), S("remoteIp", "10.8.0.1"), N("duration", 3600),
        N("errorCode", 7),
    });
}

// duration is a 64-bit unsigned word, errorCode a 32-bit one, mode and
// connected unsigned bytes: none of them may come out negative or cut to 32
// bits.
TEST(NetworkVpn, UnsignedWidths)
{
    struct {
        uint64_t duration;
        uint32_t errorCode;
        uint8_t mode, connected;
        double durationWritten, errorWritten;
    } cases[] = {
        {4294967296ull, 4294967295u, 255, 128, 4294967296.0, 4294967295.0},
        {4294967297ull, 2147483648u, 200, 255, 4294967297.0, 2147483648.0},
        {281474976710656ull, 1u, 0, 0, 281474976710656.0, 1.0}, // 2^48
    };
    for (const auto &c : cases) {
        network_vpn_record r = distinct_vpn();
        r.duration = c.duration;
        r.errorCode = c.errorCode;
        r.mode = c.mode;
        r.connected = c.connected;
        SCOPED_TRACE(testing::Message() << "duration " << c.duration);
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_vpn_json(&r, d, n); }));
        test::expect_members(doc.root(), {
            S("server", "vpn.x"), N("port", -1194), S("authCode", "code"), S("deviceName", "dev"),
            N("mode", c.mode), N("connected", c.connected), S("localIp", "10.8.0.2"), S("remoteIp", "10.8.0.1"),
            N("duration", c.durationWritten), N("errorCode", c.errorWritten),
        });
    }
}

// The largest duration stays positive and keeps its magnitude. (The printed
// number carries about 15 significant digits, so only its size is checked.)
TEST(NetworkVpn, LargestDurationIsNotNegative)
{
    network_vpn_record r = distinct_vpn();
    r.duration = UINT64_MAX;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_vpn_json(&r, d, n); }));
    const cJSON *duration = doc["duration"];
    ASSERT_NE(duration, nullptr);
    ASSERT_TRUE(cJSON_IsNumber(duration));
    EXPECT_NEAR(duration->valuedouble / 18446744073709551616.0, 1.0, 1e-12);
}

TEST(NetworkCellular, MembersInPageOrder)
{
    network_cellular_info_record r{};
    r.enable = 1;
    r.pingDetection = 2;
    put(r.apn, "apn");
    put(r.userName, "user");
    put(r.password, "pass");
    put(r.pinCode, "1234");
    put(r.accessNumber, "*99#");
    r.authenticationType = 3;
    r.networkType = 4;
    r.redialInterval = 5;
    r.billDay = 6;
    r.reserved0[0] = 70;
    r.reserved0[1] = 71;
    put(r.pingAddr, "ping.x");
    r.mtu = 1400;
    r.reserved1[0] = 80;
    r.reserved1[1] = 81;
    put(r.isp, "isp");
    put(r.simStatus, "ready");
    r.signal = -87; // signed: dBm
    put(r.connect, "up");
    put(r.imei, "imei");
    put(r.imsi, "imsi");
    put(r.iccid, "iccid");
    put(r.ipaddr, "ip");
    put(r.subNetmask, "mask");
    put(r.gateway, "gw");
    put(r.dns, "dns");
    put(r.dataUsage, "1 GB");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_cellular_info_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 1), S("apn", "apn"), S("userName", "user"), S("password", "pass"), S("pinCode", "1234"),
        S("accessNumber", "*99#"), N("authenticationType", 3), N("networkType", 4), N("redialInterval", 5),
        N("billDay", 6), N("pingDetection", 2), S("pingAddr", "ping.x"), N("mtu", 1400), S("isp", "isp"),
        S("simStatus", "ready"), N("signal", -87), S("connect", "up"), S("imei", "imei"), S("imsi", "imsi"),
        S("iccid", "iccid"), S("ipaddr", "ip"), S("subNetmask", "mask"), S("gateway", "gw"), S("dns", "dns"),
        S("dataUsage", "1 GB"),
    });
}

} // namespace
