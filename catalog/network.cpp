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

network_platform_record sample_platform()
{
    network_platform_record r{};
    r.enable = 1;
    r.localPort = 5060;
    put(r.serverId, "34020000002000000001");
    put(r.serverRegion, "3402000000");
    put(r.serverAddress, "203.0.113.10");
    r.serverPort = 5060;
    put(r.deviceId, "34020000001320000064");
    put(r.password, "Reg1ster#64");
    r.validity = 3600;
    r.heartBeatPeriod = 60;
    r.videoStream = 0;
    r.registerInterval = 60;
    r.maxTimeout = 3;
    put(r.alarmInput, "34020000001340000001");
    put(r.videoChannel, "34020000001310000001");
    put(r.audioOutput, "34020000001370000001");
    return r;
}

// Five users looking at the camera: the site administrator, two control-room
// operators and two viewers on the gate's tablets.
network_online_users_record sample_online_users()
{
    network_online_users_record r{};
    const struct {
        const char *name;
        int32_t level;
        const char *ip;
        const char *time;
    } users[] = {
        {"admin", 0, "192.168.1.20", "2026-11-22 07:58:12"},
        {"control1", 1, "192.168.1.31", "2026-11-22 06:00:03"},
        {"control2", 1, "192.168.1.32", "2026-11-22 06:01:47"},
        {"gate-tablet-a", 2, "192.168.1.101", "2026-11-22 07:12:30"},
        {"gate-tablet-b", 2, "192.168.1.102", "2026-11-22 07:13:05"},
    };
    int32_t count = 0;
    for (const auto &u : users) {
        put(r.onlineUserName[count], u.name);
        r.onlineUserLevel[count] = u.level;
        put(r.onlineUserIp[count], u.ip);
        put(r.onlineUserTime[count], u.time);
        ++count;
    }
    r.onlineUserCount = count;
    return r;
}

network_smtp_boot_notify_record sample_smtp_boot_notify()
{
    network_smtp_boot_notify_record r{};
    r.bootNotifyEnable = 1;
    put(r.emailTarcertAddress, "facilities@northfield-carparks.example");
    put(r.serverUserName, "cameras@northfield-carparks.example");
    put(r.serverFromAddress, "gate-north@northfield-carparks.example");
    put(r.serverAddress, "smtp.northfield-carparks.example");
    put(r.serverToAddress, "security@northfield-carparks.example");
    r.serverPort = 465;
    r.serverSslHigh = 0;
    r.serverSslLow = 1;
    return r;
}

sip_settings sample_sip()
{
    sip_settings s{};
    s.enable = 1;
    s.registerMode = 1;
    s.sipAudioEnable = 1;
    s.videoStream = 1;
    s.serverPort = 5060;
    s.reserved0 = 5062;
    s.maxDuration = 180;
    put(s.userId, "6401");
    put(s.password, "Intercom64!");
    put(s.userName, "Gate North");
    put(s.serverAddress, "192.168.1.5");
    s.connectionProtocol = 0;
    return s;
}

// The gatehouse, the duty manager's mobile through the PBX trunk, and the
// night guard; the last two slots are free.
network_sip_alarm_phone_list_record sample_sip_alarm_phones()
{
    network_sip_alarm_phone_list_record r{};
    const struct {
        uint8_t type;
        uint32_t port;
        uint8_t from[2], to[2];
        const char *number, *name;
    } phones[] = {
        {0, 5060, {0, 0}, {23, 59}, "6001", "Gatehouse"},
        {1, 5060, {8, 0}, {17, 30}, "907700900123", "Duty manager"},
        {0, 5062, {18, 0}, {6, 30}, "6010", "Night guard"},
    };
    for (size_t i = 0; i < sizeof phones / sizeof phones[0]; ++i) {
        sip_alarm_phone_entry &e = r.phones[i];
        e.phoneType = phones[i].type;
        e.phonePort = phones[i].port;
        e.durationStartHour = phones[i].from[0];
        e.durationStartMinute = phones[i].from[1];
        e.durationEndHour = phones[i].to[0];
        e.durationEndMinute = phones[i].to[1];
        put(e.phoneNumber, phones[i].number);
        put(e.phoneName, phones[i].name);
    }
    return r;
}

// Four streams in use (main, sub, third and the analytics stream); the last
// two profiles are disabled and have no address.
network_stream_url_record sample_stream_url()
{
    network_stream_url_record r{};
    const char *const paths[] = {"main", "sub", "third", "fourth"};
    for (int i = 0; i < 4; ++i) {
        snprintf(r.rtspStreamUrl[i], sizeof r.rtspStreamUrl[i], "rtsp://192.168.1.64:554/live/%s", paths[i]);
        snprintf(r.httpStreamUrl[i], sizeof r.httpStreamUrl[i], "http://192.168.1.64:80/livestream/%s.flv",
                 paths[i]);
    }
    return r;
}

// The tunnel to the operator's office has been up for nine days.
network_vpn_record sample_vpn()
{
    network_vpn_record r{};
    r.mode = 1;
    put(r.server, "vpn.northfield-carparks.example");
    r.port = 1194;
    put(r.reserved1, "gate-north");
    put(r.reserved2, "Tunn3l#64");
    put(r.authCode, "NF-7Q2K-9XWD");
    put(r.deviceName, "Gate North Entry");
    r.connected = 1;
    put(r.localIp, "10.8.0.14");
    put(r.remoteIp, "10.8.0.1");
    r.duration = 786432;
    r.errorCode = 0;
    return r;
}

// A 4G modem on a business SIM with a monthly allowance.
network_cellular_info_record sample_cellular()
{
    network_cellular_info_record r{};
    r.enable = 1;
    r.pingDetection = 1;
    put(r.apn, "internet.business.example");
    put(r.userName, "web");
    put(r.password, "web");
    put(r.pinCode, "4821");
    put(r.accessNumber, "*99#");
    r.authenticationType = 2;
    r.networkType = 4;
    r.redialInterval = 30;
    r.billDay = 1;
    put(r.pingAddr, "8.8.8.8");
    r.mtu = 1428;
    put(r.isp, "Example Mobile");
    put(r.simStatus, "ready");
    r.signal = 23;
    put(r.connect, "connected");
    put(r.imei, "861234050123456");
    put(r.imsi, "234150123456789");
    put(r.iccid, "8944150123456789012");
    put(r.ipaddr, "100.72.14.203");
    put(r.subNetmask, "255.255.255.252");
    put(r.gateway, "100.72.14.201");
    put(r.dns, "100.72.0.53");
    put(r.dataUsage, "12.7 GB");
    return r;
}

network_vlan_record sample_network_vlan()
{
    network_vlan_record v{};
    v.vlanEnable = 1;
    v.vlanId = 120;
    put(v.vlanIp, "10.120.0.64");
    put(v.vlanNetmask, "255.255.255.0");
    put(v.vlanGateway, "10.120.0.1");
    return v;
}

network_pppoe_record sample_network_pppoe()
{
    network_pppoe_record p{};
    p.pppoeEnable = 1;
    put(p.pppoeUsername, "northfield@broadband.example");
    put(p.pppoeIp, "198.51.100.23");
    p.pppoeReload = 0;
    return p;
}

network_bonjour_record sample_network_bonjour()
{
    network_bonjour_record b{};
    b.enable = 1;
    put(b.name, "Gate North Entry");
    return b;
}

network_rtmp_record sample_network_rtmp()
{
    network_rtmp_record m{};
    m.enable = 1;
    m.streamType = 1;
    put(m.server, "rtmp://live.northfield-carparks.example/gates/north-entry");
    return m;
}

network_anr_info_record sample_network_anr_info()
{
    network_anr_info_record a{};
    put(a.anrMac, "00:1c:27:10:02:5e");
    put(a.anrIp, "192.168.1.200");
    a.anrStatus = 1;
    return a;
}

network_rtsp_record sample_network_rtsp()
{
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
}

network_8021x_record sample_network_8021x()
{
    network_8021x_record x{};
    x.enable = 1;
    put(x.username, "cam-gate-north");
    put(x.password, "Md5Secret!");
    x.eapolver = 1;
    return x;
}

network_more_record sample_network_more()
{
    network_more_record m{};
    m.onvifEnable = 1;
    m.pushEnable = 1;
    m.pushType = 2;
    put(m.modulePush[0].moduleName, "alarm");
    m.modulePush[0].push = 1;
    return m;
}

network_sip_white_list_record sample_network_sip_white_list()
{
    network_sip_white_list_record w{};
    w.enable = 1;
    w.phoneType[0] = 0;
    put(w.phoneNumber[0], "6001");
    w.phoneType[1] = 0;
    put(w.phoneNumber[1], "6010");
    // slot 2 was freed when the old gatehouse extension went
    w.phoneType[3] = 1;
    put(w.phoneNumber[3], "907700900123");
    return w;
}

// The page points at the SIP service's own settings, which live as long as
// the program.
network_sip_settings_record sample_sip_settings()
{
    static const sip_settings settings = sample_sip();
    return network_sip_settings_record{&settings, 1};
}

const CatalogEntry entries[] = {
    MW_SETTABLE_ENTRY(network_tcp, "IPv4 and IPv6 addresses, DNS and MTU",
                      (kept<network_tcp_record, sample_tcp>)),
    MW_SETTABLE_ENTRY(network_http, "HTTP and HTTPS ports and the installed certificate",
                      (kept<network_http_record, sample_http>)),
    MW_SETTABLE_ENTRY(network_upnp, "UPnP port mapping: external and internal ports and their states",
                      (kept<network_upnp_record, sample_upnp>)),
    MW_SETTABLE_ENTRY(network_vlan, "VLAN tag and the address inside the VLAN",
                      (kept<network_vlan_record, sample_network_vlan>)),
    MW_SETTABLE_ENTRY(network_pppoe, "PPPoE account and the address of the link",
                      (kept<network_pppoe_record, sample_network_pppoe>)),
    MW_SETTABLE_ENTRY(network_ddns, "dynamic DNS account, host name and published ports",
                      (kept<network_ddns_record, sample_ddns>)),
    MW_SETTABLE_ENTRY(network_rtsp, "RTSP ports, multicast group and ports, QoS mark",
                      (kept<network_rtsp_record, sample_network_rtsp>)),
    MW_SETTABLE_ENTRY(network_snmp, "SNMP communities and v3 users",
                      (kept<network_snmp_record, sample_snmp>)),
    MW_SETTABLE_ENTRY(network_8021x, "IEEE 802.1X port authentication",
                      (kept<network_8021x_record, sample_network_8021x>)),
    MW_SETTABLE_ENTRY(network_bonjour, "Bonjour announcement and its name",
                      (kept<network_bonjour_record, sample_network_bonjour>)),
    MW_SETTABLE_ENTRY(network_platform, "registration with the remote video platform",
                      (kept<network_platform_record, sample_platform>)),
    MW_SETTABLE_ENTRY(network_more, "ONVIF, push service and the per-module push switches",
                      (kept<network_more_record, sample_network_more>)),
    MW_SETTABLE_ENTRY(network_rtmp, "publishing a stream to an RTMP server",
                      (kept<network_rtmp_record, sample_network_rtmp>)),
    MW_READ_ONLY_ENTRY(network_anr_info, "peer that refills recording gaps after a network loss",
                       (kept<network_anr_info_record, sample_network_anr_info>)),
    MW_READ_ONLY_ENTRY(network_online_users, "users logged in now, with level, address and login time",
                       (kept<network_online_users_record, sample_online_users>)),
    MW_SETTABLE_ENTRY(network_smtp_boot_notify, "mail sent when the camera boots",
                      (kept<network_smtp_boot_notify_record, sample_smtp_boot_notify>)),
    MW_SETTABLE_ENTRY(network_sip_settings, "SIP intercom account, call settings and registration state",
                      (kept<network_sip_settings_record, sample_sip_settings>)),
    MW_SETTABLE_ENTRY(network_sip_alarm_phone_list, "phones called on an alarm, with their time windows",
                      (kept<network_sip_alarm_phone_list_record, sample_sip_alarm_phones>)),
    MW_SETTABLE_ENTRY(network_sip_white_list, "numbers allowed to call the camera",
                      (kept<network_sip_white_list_record, sample_network_sip_white_list>)),
    MW_READ_ONLY_ENTRY(network_stream_url, "RTSP and HTTP addresses of the six streams",
                       (kept<network_stream_url_record, sample_stream_url>)),
    MW_SETTABLE_ENTRY(network_vpn, "VPN client settings and the state of the tunnel",
                      (kept<network_vpn_record, sample_vpn>)),
    MW_READ_ONLY_ENTRY(network_cellular_info, "cellular modem settings and status",
                       (kept<network_cellular_info_record, sample_cellular>)),
};

} // namespace

const CatalogGroup catalog_network = catalog_group("network", entries);
