#include "catalog.h"

namespace {

// The camera of the system samples on its static address in the north-gate
// car park, dual-stack, reachable through the site router's port mapping.

network_tcp_record sample_tcp()
{
    network_tcp_record r{};
    put(r.ipv4Ipaddress, "192.168.1.64");
    put(r.ipv4netmask, "255.255.255.0");
    put(r.ipv4gateway, "192.168.1.1");
    r.ipv4DhcpEnable = 0;
    put(r.dns0, "192.168.1.1");
    r.ipv6Mode = 1;
    put(r.ipv6Ipaddress, "2001:db8:4a:10::64");
    r.ipv6netmask = 64;
    put(r.ipv6gateway, "2001:db8:4a:10::1");
    r.mtuByte = 1500;
    return r;
}

network_http_record sample_http()
{
    network_http_record r{};
    r.httpPort = 80;
    r.httpEnable = 1;
    r.httpsEnable = 1;
    r.httpsPort = 443;
    put(r.certDate, "2026-03-02 09:15:44");
    put(r.certSubject, "C=GB, ST=Yorkshire, O=Northfield Car Parks, CN=gate-north.local");
    r.certResult = 0;
    put(r.requestSubject, "");
    r.certUpdateFlag = 1;
    put(r.ipv4Ipaddress, "192.168.1.64");
    put(r.ipv6Ipaddress, "2001:db8:4a:10::64");
    put(r.notBefore, "Mar  2 09:15:44 2026 GMT");
    put(r.notAfter, "Mar  1 09:15:44 2029 GMT");
    put(r.country, "GB");
    put(r.ST, "Yorkshire");
    put(r.O, "Northfield Car Parks");
    put(r.CN, "gate-north.local");
    return r;
}

network_upnp_record sample_upnp()
{
    network_upnp_record r{};
    r.scanUpnpEnable = 1;
    r.upnpEnable = 1;
    put(r.upnpName, "Gate North Entry");
    r.upnpType = 1;
    r.upnpHttpPort = 8064;
    r.upnpHttpsPort = 8443;
    r.upnpRtspPort = 8554;
    r.upnpPlayBackPort = 8555;
    r.upnpHttpInterPort = 80;
    r.upnpHttpsInterPort = 443;
    r.upnpRtspInterPort = 554;
    r.upnpPlaybackInterPort = 555;
    r.upnpHttpStatus = 1;
    r.upnpHttpsStatus = 1;
    r.upnpRtspStatus = 1;
    r.upnpPlaybackStatus = 0;
    return r;
}

network_ddns_record sample_ddns()
{
    network_ddns_record r{};
    r.enable = 1;
    put(r.userName, "northfield-ops");
    put(r.password, "k7#Rw2pQ");
    put(r.provider, "dyndns");
    put(r.hostName, "gate-north.example-ddns.net");
    put(r.hash, "");
    put(r.url, "members.example-ddns.net");
    r.httpPort = 8064;
    r.rtspPort = 8554;
    r.playbackPort = 8555;
    put(r.hostIp, "203.0.113.47");
    r.oemzkDisplay = 1;
    r.oemIndex = 0;
    r.status = 1;
    return r;
}

network_snmp_record sample_snmp()
{
    network_snmp_record r{};
    r.enableV1 = 0;
    r.enableV2 = 1;
    r.enableV3 = 1;
    put(r.wrCommunity, "private");
    put(r.rdCommunity, "public");
    put(r.rdSecurityName, "nms-reader");
    r.rdSecurityLevel = 2;
    r.rdAuthenticationAlgorithm = 1;
    put(r.rdAuthenticationPassword, "ReadAuth#2026");
    r.rdPrivateKeyAlgorithm = 1;
    put(r.rdPrivatePassword, "ReadPriv#2026");
    put(r.wrSecurityName, "nms-writer");
    r.wrSecurityLevel = 2;
    r.wrAuthenticationAlgorithm = 1;
    put(r.wrAuthenticationPassword, "WriteAuth#2026");
    r.wrPrivateKeyAlgorithm = 0;
    put(r.wrPrivatePassword, "WritePriv#2026");
    r.snmpPort = 161;
    return r;
}

const CatalogEntry entries[] = {
    {"get_network_tcp_json", "IPv4 and IPv6 addresses, DNS and MTU",
     [](char *dst, int32_t n) {
         static const network_tcp_record r = sample_tcp();
         return get_network_tcp_json(&r, dst, n);
     }},
    {"get_network_http_json", "HTTP and HTTPS ports and the installed certificate",
     [](char *dst, int32_t n) {
         static const network_http_record r = sample_http();
         return get_network_http_json(&r, dst, n);
     }},
    {"get_network_upnp_json", "UPnP port mapping: external and internal ports and their states",
     [](char *dst, int32_t n) {
         static const network_upnp_record r = sample_upnp();
         return get_network_upnp_json(&r, dst, n);
     }},
    {"get_network_vlan_json", "VLAN tag and the address inside the VLAN",
     [](char *dst, int32_t n) {
         static const network_vlan_record r = [] {
             network_vlan_record v{};
             v.vlanEnable = 1;
             v.vlanId = 120;
             put(v.vlanIp, "10.120.0.64");
             put(v.vlanNetmask, "255.255.255.0");
             put(v.vlanGateway, "10.120.0.1");
             return v;
         }();
         return get_network_vlan_json(&r, dst, n);
     }},
    {"get_network_pppoe_json", "PPPoE account and the address of the link",
     [](char *dst, int32_t n) {
         static const network_pppoe_record r = [] {
             network_pppoe_record p{};
             p.pppoeEnable = 1;
             put(p.pppoeUsername, "northfield@broadband.example");
             put(p.pppoeIp, "198.51.100.23");
             p.pppoeReload = 0;
             return p;
         }();
         return get_network_pppoe_json(&r, dst, n);
     }},
    {"get_network_ddns_json", "dynamic DNS account, host name and published ports",
     [](char *dst, int32_t n) {
         static const network_ddns_record r = sample_ddns();
         return get_network_ddns_json(&r, dst, n);
     }},
    {"get_network_rtsp_json", "RTSP ports, multicast group and ports, QoS mark",
     [](char *dst, int32_t n) {
         static const network_rtsp_record r = [] {
             network_rtsp_record s{};
             put(s.multicastGroupAddress, "239.1.1.64");
             s.multicastPort[0] = 20000;
             s.multicastPort[1] = 20002;
             s.multicastPort[2] = 20004;
             s.multicastPort[3] = 20006;
             s.rtspPort = 554;
             s.rtspPlaybackPort = 555;
             s.qosDscp = 46;
             s.rtpPacketSize = 1400;
             return s;
         }();
         return get_network_rtsp_json(&r, dst, n);
     }},
    {"get_network_snmp_json", "SNMP communities and v3 users",
     [](char *dst, int32_t n) {
         static const network_snmp_record r = sample_snmp();
         return get_network_snmp_json(&r, dst, n);
     }},
    {"get_network_8021x_json", "IEEE 802.1X port authentication",
     [](char *dst, int32_t n) {
         static const network_8021x_record r = [] {
             network_8021x_record x{};
             x.enable = 1;
             put(x.username, "cam-gate-north");
             put(x.password, "Md5Secret!");
             x.eapolver = 1;
             return x;
         }();
         return get_network_8021x_json(&r, dst, n);
     }},
    {"get_network_bonjour_json", "Bonjour announcement and its name",
     [](char *dst, int32_t n) {
         static const network_bonjour_record r = [] {
             network_bonjour_record b{};
             b.enable = 1;
             put(b.name, "Gate North Entry");
             return b;
         }();
         return get_network_bonjour_json(&r, dst, n);
     }},
};

} // namespace

const CatalogGroup catalog_network = catalog_group("network", entries);
