// The network service documents: TCP/IP, HTTP, UPnP, VLAN, PPPoE, DDNS,
// RTSP, SNMP, 802.1X and Bonjour. Each record is filled with values that are
// all different, so that a swapped field or a key out of place shows.
#include "catalog.h"
#include "support.h"

#include <cstddef>
#include <cstring>

namespace {

using test::N;
using test::S;

TEST(NetworkTcp, MembersInPageOrder)
{
    network_tcp_record r{};
    put(r.ipv4Ipaddress, "10.0.0.7");
    put(r.ipv4netmask, "255.255.0.0");
    put(r.ipv4gateway, "10.0.0.1");
    r.ipv4DhcpEnable = 1;
    put(r.dns0, "10.0.0.53");
    r.ipv6Mode = 2;
    put(r.ipv6Ipaddress, "fd00::7");
    r.ipv6netmask = 64;
    put(r.ipv6gateway, "fd00::1");
    r.mtuByte = 1492;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_tcp_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        S("ipv4Ipaddress", "10.0.0.7"), S("ipv4netmask", "255.255.0.0"), N("ipv4DhcpEnable", 1),
        S("ipv4gateway", "10.0.0.1"), S("dns0", "10.0.0.53"), N("mtuByte", 1492), N("ipv6Mode", 2),
        S("ipv6Ipaddress", "fd00::7"), N("ipv6netmask", 64), S("ipv6gateway", "fd00::1"),
    });
}

TEST(NetworkHttp, MembersInPageOrder)
{
    network_http_record r{};
    r.httpPort = 8080;
    r.httpEnable = 1;
    r.httpsEnable = 2;
    r.httpsPort = 8443;
    put(r.certDate, "date");
    put(r.certSubject, "subject");
    r.certResult = -3;
    put(r.requestSubject, "request");
    r.certUpdateFlag = 4;
    put(r.ipv4Ipaddress, "v4");
    put(r.ipv6Ipaddress, "v6");
    put(r.notBefore, "before");
    put(r.notAfter, "after");
    put(r.country, "DE");
    put(r.ST, "Bavaria");
    put(r.O, "Org");
    put(r.CN, "cam.example");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_http_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("httpEnable", 1), N("httpPort", 8080), N("httpsEnable", 2), N("httpsPort", 8443),
        S("certSubject", "subject"), S("certDate", "date"), N("certResult", -3), S("requestSubject", "request"),
        N("certUpdateFlag", 4), S("ipv4Ipaddress", "v4"), S("ipv6Ipaddress", "v6"), S("notBefore", "before"),
        S("notAfter", "after"), S("country", "DE"), S("ST", "Bavaria"), S("O", "Org"), S("CN", "cam.example"),
    });
}

TEST(NetworkUpnp, MembersInPageOrder)
{
    network_upnp_record r{};
    r.scanUpnpEnable = 1;
    r.upnpEnable = 2;
    put(r.upnpName, "lobby");
    r.upnpType = 3;
    r.upnpHttpPort = 101;
    r.upnpHttpsPort = 102;
    r.upnpRtspPort = 103;
    r.upnpPlayBackPort = 104;
    r.upnpHttpInterPort = 201;
    r.upnpHttpsInterPort = 202;
    r.upnpRtspInterPort = 203;
    r.upnpPlaybackInterPort = 204;
    r.upnpHttpStatus = -1;
    r.upnpHttpsStatus = 5;
    r.upnpRtspStatus = 6;
    r.upnpPlaybackStatus = 7;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_upnp_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("scanUpnpEnable", 1), N("upnpEnable", 2), S("upnpName", "lobby"), N("upnpType", 3),
        N("upnpHttpPort", 101), N("upnpHttpsPort", 102), N("upnpRtspPort", 103), N("upnpPlayBackPort", 104),
        N("upnpHttpInterPort", 201), N("upnpHttpsInterPort", 202), N("upnpRtspInterPort", 203),
        N("upnpPlaybackInterPort", 204), N("upnpHttpStatus", -1), N("upnpHttpsStatus", 5),
        N("upnpRtspStatus", 6), N("upnpPlaybackStatus", 7),
    });
}

// The three small documents, each with every member distinct.
TEST(NetworkSmallDocuments, MembersInPageOrder)
{
    network_vlan_record vlan{};
    vlan.vlanEnable = 1;
    vlan.vlanId = 4094;
    put(vlan.vlanIp, "10.9.0.2");
    put(vlan.vlanNetmask, "255.255.255.128");
    put(vlan.vlanGateway, "10.9.0.1");

    network_pppoe_record pppoe{};
    pppoe.pppoeEnable = 1;
    put(pppoe.pppoeUsername, "user@isp");
    put(pppoe.pppoeIp, "198.51.100.9");
    pppoe.pppoeReload = 2;

    network_bonjour_record bonjour{};
    bonjour.enable = 250; // unsigned byte
    put(bonjour.name, "Front door");

    {
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_vlan_json(&vlan, d, n); }));
        test::expect_members(doc.root(), {N("vlanEnable", 1), N("vlanId", 4094), S("vlanIp", "10.9.0.2"),
                                          S("vlanNetmask", "255.255.255.128"), S("vlanGateway", "10.9.0.1")});
    }
    {
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_pppoe_json(&pppoe, d, n); }));
        test::expect_members(doc.root(), {N("pppoeEnable", 1), S("pppoeUsername", "user@isp"),
                                          S("pppoeIp", "198.51.100.9"), N("pppoeReload", 2)});
    }
    {
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_bonjour_json(&bonjour, d, n); }));
        test::expect_members(doc.root(), {N("enable", 250), S("name", "Front door")});
    }
}

TEST(NetworkDdns, MembersInPageOrder)
{
    network_ddns_record r{};
    r.reserved = 77;
    r.enable = 255;            // unsigned byte
    put(r.userName, "user");
    put(r.password, "secret");
    put(r.provider, "provider");
    put(r.hostName, "host");
    put(r.hash, "hash");
    put(r.url, "url");
    r.httpPort = 4294967295u;  // the three ports are unsigned words
    r.rtspPort = 2147483648u;
    r.playbackPort = 555;
    put(r.hostIp, "203.0.113.5");
    r.oemzkDisplay = 2;
    r.oemIndex = 3;
    r.status = -4;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_ddns_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 255), S("hostName", "host"), S("userName", "user"), S("provider", "provider"), S("hash", "hash"),
        S("url", "url"), N("httpPort", 4294967295.0), N("rtspPort", 2147483648.0), N("playbackPort", 555),
        S("hostIp", "203.0.113.5"), N("status", -4), N("oemzkDisplay", 2), N("oemIndex", 3),
    });
}

// The support-information page embeds the DDNS block from its enable byte on:
// both types must place every field at the same distance from that byte.
TEST(NetworkDdns, BlockLayoutSharedWithSupportInformation)
{
#define SAME_PLACE(field)                                                                                  \
    EXPECT_EQ(offsetof(network_ddns_record, field) - offsetof(network_ddns_record, enable),                \
              offsetof(network_ddns_settings, field))                                                      \
        << #field
    SAME_PLACE(enable);
    SAME_PLACE(userName);
    SAME_PLACE(provider);
    SAME_PLACE(hostName);
    SAME_PLACE(hash);
    SAME_PLACE(url);
    SAME_PLACE(httpPort);
    SAME_PLACE(rtspPort);
    SAME_PLACE(playbackPort);
    SAME_PLACE(hostIp);
    SAME_PLACE(oemzkDisplay);
    SAME_PLACE(oemIndex);
    SAME_PLACE(status);
#undef SAME_PLACE
    EXPECT_GT(offsetof(network_ddns_record, enable), 0u) << "the page record starts with a word of its own";
}

TEST(NetworkRtsp, FourMulticastPortsFromZeroThenThePorts)
{
    network_rtsp_record r{};
    put(r.multicastGroupAddress, "239.0.0.9");
    r.multicastPort[0] = 5000;
    r.multicastPort[1] = 5002;
    r.multicastPort[2] = 5004;
    r.multicastPort[3] = -1; // any port but the DDNS ones is signed
    r.rtspPort = 554;
    r.rtspPlaybackPort = 555;
    r.qosDscp = 46;
    r.rtpPacketSize = 1400;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_rtsp_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        S("multicastGroupAddress", "239.0.0.9"), N("multicastPort_0", 5000), N("multicastPort_1", 5002),
        N("multicastPort_2", 5004), N("multicastPort_3", -1), N("rtspPort", 554), N("rtspPlaybackPort", 555),
        N("qosDscp", 46), N("rtpPacketSize", 1400),
    });
}

TEST(NetworkSnmp, MembersInPageOrder)
{
    network_snmp_record r{};
    r.enableV1 = 1;
    r.enableV2 = 2;
    r.enableV3 = 3;
    put(r.wrCommunity, "wrc");
    put(r.rdCommunity, "rdc");
    put(r.rdSecurityName, "rdn");
    r.rdSecurityLevel = 11;
    r.rdAuthenticationAlgorithm = 12;
    put(r.rdAuthenticationPassword, "rdap");
    r.rdPrivateKeyAlgorithm = 13;
    put(r.rdPrivatePassword, "rdpp");
    put(r.wrSecurityName, "wrn");
    r.wrSecurityLevel = 21;
    r.wrAuthenticationAlgorithm = 22;
    put(r.wrAuthenticationPassword, "wrap");
    r.wrPrivateKeyAlgorithm = 23;
    put(r.wrPrivatePassword, "wrpp");
    r.snmpPort = 1161;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_snmp_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("enableV1", 1), N("enableV2", 2), S("wrCommunity", "wrc"), S("rdCommunity", "rdc"), N("enableV3", 3),
        S("rdSecurityName", "rdn"), N("rdSecurityLevel", 11), N("rdAuthenticationAlgorithm", 12),
        S("rdAuthenticationPassword", "rdap"), N("rdPrivateKeyAlgorithm", 13), S("rdPrivatePassword", "rdpp"),
        S("wrSecurityName", "wrn"), N("wrSecurityLevel", 21), N("wrAuthenticationAlgorithm", 22),
        S("wrAuthenticationPassword", "wrap"), N("wrPrivateKeyAlgorithm", 23), S("wrPrivatePassword", "wrpp"),
        N("snmpPort", 1161),
    });
}

// The stored EAPOL version counts from 0 and is written counted from 1,
// without wrapping at the byte's end.
TEST(Network8021x, VersionIsWrittenFromOne)
{
    struct { uint8_t stored; double written; } cases[] = {{0, 1}, {1, 2}, {2, 3}, {127, 128}, {254, 255}, {255, 256}};
    for (const auto &c : cases) {
        network_8021x_record r{};
        r.enable = 200; // unsigned byte
        r.reserved0 = 9;
        put(r.username, "supplicant");
        put(r.password, "hidden");
        r.eapolver = c.stored;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_network_8021x_json(&r, d, n); }));
        SCOPED_TRACE(testing::Message() << "stored " << int(c.stored));
        test::expect_members(doc.root(), {N("enable", 200), S("protocol", "EAP-MD5"), N("eapolver", c.written),
                                          S("username", "supplicant")});
    }
}

} // namespace
