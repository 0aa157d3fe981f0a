/*
 * network.cpp - the network pages: services (TCP/IP, HTTP, UPnP, VLAN,
 * PPPoE, DDNS, RTSP, SNMP, 802.1X, Bonjour), platform registration, push,
 * online users, boot mail and SIP, stream addresses, VPN and cellular.
 */
#include "internal.h"

#include <cstdio>

#include "zk_platform.h"

namespace {

/* A list of the six streams' addresses under `key`: one {"url"} object per
   stream, main stream first, empty addresses kept. */
template <typename A, typename Urls>
void stream_urls(A &a, const char *key, Urls &urls)
{
    a.list(mw::Name::fixed(key), nullptr, [&](auto &l) {
        for (int32_t i = 0; i <= 5; ++i)
            l.item([&](auto &item) { item("url", urls[i]); });
    });
}

} // namespace

/* ---- network services ---- */

MW_SETTABLE_PAGE(network_tcp, [](auto &a, auto &r) {
    a("ipv4Ipaddress", r.ipv4Ipaddress);
    a("ipv4netmask", r.ipv4netmask);
    a("ipv4DhcpEnable", r.ipv4DhcpEnable);
    a("ipv4gateway", r.ipv4gateway);
    a("dns0", r.dns0);
    a("mtuByte", r.mtuByte);
    a("ipv6Mode", r.ipv6Mode);
    a("ipv6Ipaddress", r.ipv6Ipaddress);
    a("ipv6netmask", r.ipv6netmask); // a prefix length, so a number
    a("ipv6gateway", r.ipv6gateway);
})

MW_SETTABLE_PAGE(network_http, [](auto &a, auto &r) {
    a("httpEnable", r.httpEnable);
    a("httpPort", r.httpPort);
    a("httpsEnable", r.httpsEnable);
    a("httpsPort", r.httpsPort);
    a("certSubject", r.certSubject);
    a("certDate", r.certDate);
    a("certResult", r.certResult);
    a("requestSubject", r.requestSubject);
    a("certUpdateFlag", r.certUpdateFlag);
    a("ipv4Ipaddress", r.ipv4Ipaddress);
    a("ipv6Ipaddress", r.ipv6Ipaddress);
    a("notBefore", r.notBefore);
    a("notAfter", r.notAfter);
    a("country", r.country);
    a("ST", r.ST);
    a("O", r.O);
    a("CN", r.CN);
})

MW_SETTABLE_PAGE(network_upnp, [](auto &a, auto &r) {
    a("scanUpnpEnable", r.scanUpnpEnable);
    a("upnpEnable", r.upnpEnable);
    a("upnpName", r.upnpName);
    a("upnpType", r.upnpType);
    a("upnpHttpPort", r.upnpHttpPort);
    a("upnpHttpsPort", r.upnpHttpsPort);
    a("upnpRtspPort", r.upnpRtspPort);
    a("upnpPlayBackPort", r.upnpPlayBackPort); // capital B, unlike the internal port
    a("upnpHttpInterPort", r.upnpHttpInterPort);
    a("upnpHttpsInterPort", r.upnpHttpsInterPort);
    a("upnpRtspInterPort", r.upnpRtspInterPort);
    a("upnpPlaybackInterPort", r.upnpPlaybackInterPort);
    a("upnpHttpStatus", r.upnpHttpStatus);
    a("upnpHttpsStatus", r.upnpHttpsStatus);
    a("upnpRtspStatus", r.upnpRtspStatus);
    a("upnpPlaybackStatus", r.upnpPlaybackStatus);
})

MW_SETTABLE_PAGE(network_vlan, [](auto &a, auto &r) {
    a("vlanEnable", r.vlanEnable);
    a("vlanId", r.vlanId);
    a("vlanIp", r.vlanIp);
    a("vlanNetmask", r.vlanNetmask);
    a("vlanGateway", r.vlanGateway);
})

MW_SETTABLE_PAGE(network_pppoe, [](auto &a, auto &r) {
    a("pppoeEnable", r.pppoeEnable);
    a("pppoeUsername", r.pppoeUsername);
    a("pppoeIp", r.pppoeIp);
    a("pppoeReload", r.pppoeReload);
})

MW_SETTABLE_PAGE(network_ddns, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("hostName", r.hostName);
    a("userName", r.userName);
    a("provider", r.provider);
    a("hash", r.hash);
    a("url", r.url);
    a("httpPort", r.httpPort); // the three ports are unsigned words
    a("rtspPort", r.rtspPort);
    a("playbackPort", r.playbackPort);
    a("hostIp", r.hostIp);
    a("status", r.status);
    a("oemzkDisplay", r.oemzkDisplay);
    a("oemIndex", r.oemIndex);
})

MW_SETTABLE_PAGE(network_rtsp, [](auto &a, auto &r) {
    a("multicastGroupAddress", r.multicastGroupAddress);
    for (int32_t i = 0; i <= 3; ++i)
        a(mw::Key<30>("multicastPort_%d", i), r.multicastPort[i]);
    a("rtspPort", r.rtspPort);
    a("rtspPlaybackPort", r.rtspPlaybackPort);
    a("qosDscp", r.qosDscp);
    a("rtpPacketSize", r.rtpPacketSize);
})

MW_SETTABLE_PAGE(network_snmp, [](auto &a, auto &r) {
    a("enableV1", r.enableV1);
    a("enableV2", r.enableV2);
    a("wrCommunity", r.wrCommunity);
    a("rdCommunity", r.rdCommunity);
    a("enableV3", r.enableV3); // after the communities, though stored before them
    a("rdSecurityName", r.rdSecurityName);
    a("rdSecurityLevel", r.rdSecurityLevel);
    a("rdAuthenticationAlgorithm", r.rdAuthenticationAlgorithm);
    a("rdAuthenticationPassword", r.rdAuthenticationPassword);
    a("rdPrivateKeyAlgorithm", r.rdPrivateKeyAlgorithm);
    a("rdPrivatePassword", r.rdPrivatePassword);
    a("wrSecurityName", r.wrSecurityName);
    a("wrSecurityLevel", r.wrSecurityLevel);
    a("wrAuthenticationAlgorithm", r.wrAuthenticationAlgorithm);
    a("wrAuthenticationPassword", r.wrAuthenticationPassword);
    a("wrPrivateKeyAlgorithm", r.wrPrivateKeyAlgorithm);
    a("wrPrivatePassword", r.wrPrivatePassword);
    a("snmpPort", r.snmpPort);
})

MW_SETTABLE_PAGE(network_8021x, [](auto &a, auto &r) {
    a("enable", r.enable);
    a.derived_text("protocol", "EAP-MD5"); // the only method the supplicant speaks
    // The stored byte counts versions from 0; the page shows them from 1.
    a.derived("eapolver", static_cast<int32_t>(r.eapolver) + 1);
    a("username", r.username);
})

MW_SETTABLE_PAGE(network_bonjour, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("name", r.name);
})

/* ---- platform, push, online users, mail and SIP ---- */

MW_SETTABLE_PAGE(network_platform, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("localPort", r.localPort);
    a("serverId", r.serverId);
    a("serverRegion", r.serverRegion);
    a("serverAddress", r.serverAddress);
    a("serverPort", r.serverPort);
    a("deviceId", r.deviceId);
    a("password", r.password);
    a("validity", r.validity);
    a("heartBeatPeriod", r.heartBeatPeriod);
    a("videoStream", r.videoStream);
    a("registerInterval", r.registerInterval);
    a("maxTimeout", r.maxTimeout);
    a("alarmInput", r.alarmInput);
    a("videoChannel", r.videoChannel);
    a("audioOutput", r.audioOutput);
})

MW_SETTABLE_PAGE(network_more, [](auto &a, auto &r) {
    a("onvifEnable", r.onvifEnable);
    a("pushEnable", r.pushEnable);
    a("pushType", r.pushType);
    a.object("newModulePush", [&](auto &push) {
        // One module today; raise the bound with the record's array when the
        // platform names more. The platform owns the key texts.
        for (int32_t m = 0; m <= 0; ++m)
            push(mw::Name::copied(get_new_module_push_name(m)), r.modulePush[m].push);
    });
})

MW_SETTABLE_PAGE(network_rtmp, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("streamType", r.streamType);
    a("server", r.server);
})

MW_READ_ONLY_PAGE(network_anr_info, "live recorder link state", [](auto &a, auto &r) {
    a("anrMac", r.anrMac);
    a("anrIp", r.anrIp);
    a("anrStatus", r.anrStatus);
})

MW_READ_ONLY_PAGE(network_online_users, "who is logged in now", [](auto &a, auto &r) {
    a.list("onlineUserList", nullptr, [&](auto &l) {
        // The list stops at the 30 slots whatever the count says.
        for (int32_t i = 0; i < r.onlineUserCount && i < 30; ++i) {
            l.item([&](auto &user) {
                user("onlineUserName", r.onlineUserName[i]);
                user("onlineUserLevel", r.onlineUserLevel[i]);
                user("onlineUserIp", r.onlineUserIp[i]);
                user("onlineUserTime", r.onlineUserTime[i]);
            });
        }
    });
})

MW_SETTABLE_PAGE(network_smtp_boot_notify, [](auto &a, auto &r) {
    a("bootNotifyEnable", r.bootNotifyEnable);
    a("serverAddress", r.serverAddress);
    a("serverPort", r.serverPort);
    a("serverUserName", r.serverUserName);
    // The SSL mode is kept as two bits: 0 none, 1 and 2 the two secure modes.
    a.derived("serverSsl", 2 * static_cast<int32_t>(r.serverSslHigh) + static_cast<int32_t>(r.serverSslLow));
    a("serverFromAddress", r.serverFromAddress);
    a("serverToAddress", r.serverToAddress);
    a("emailTarcertAddress", r.emailTarcertAddress);
})

MW_SETTABLE_PAGE(network_sip_settings, [](auto &a, auto &r) {
    // The account settings are shared with the SIP service and read through
    // a const pointer: the page shows them and a request may only repeat them.
    const sip_settings *sip = r.settings;
    a.derived("enable", sip->enable);
    a.derived("registerMode", sip->registerMode);
    a.derived("userId", sip->userId);
    a.derived("userName", sip->userName);
    a.derived("password", sip->password);
    a.derived("serverAddress", sip->serverAddress);
    a.derived("serverPort", sip->serverPort);
    a.derived("connectionProtocol", sip->connectionProtocol);
    a.derived("videoStream", sip->videoStream);
    a.derived("maxDuration", sip->maxDuration);
    a.derived("sipAudioEnable", sip->sipAudioEnable);
    a("sipStatus", r.sipStatus);
})

namespace {

/* The slots the page lists: those before the first empty number. */
int32_t listed_phones(const network_sip_alarm_phone_list_record &r)
{
    int32_t n = 0;
    while (n <= 4 && r.phones[n].phoneNumber[0] != '\0')
        ++n;
    return n;
}

/* Clearing a phone's number removes that phone from the list, and since the
   list ends at the first empty number, clearing one with listed phones after
   it would hide them too. Such a request is refused at the first cleared
   number that still has a listed phone after it; clearing the last phones
   (or every phone) is accepted. */
bool keeps_listed_phones(void *const *before, void *const *staged, char *path, size_t size)
{
    const auto &old = *static_cast<const network_sip_alarm_phone_list_record *>(before[0]);
    const auto &now = *static_cast<const network_sip_alarm_phone_list_record *>(staged[0]);
    // Only listed slots can be written, so the list can only have shrunk.
    const int32_t after = listed_phones(now);
    for (int32_t j = after + 1; j < listed_phones(old); ++j) {
        if (now.phones[j].phoneNumber[0] != '\0') {
            snprintf(path, size, "sipAlarmPhoneList[%d].phoneNumber", static_cast<int>(after));
            return false;
        }
    }
    return true;
}

} // namespace

MW_SETTABLE_RECORD_PAGE(, network_sip_alarm_phone_list, network_sip_alarm_phone_list_record, nullptr,
                        MW_RULES(nullptr, keeps_listed_phones, 0), [](auto &a, auto &r) {
    a.list("sipAlarmPhoneList", "phoneIndex", [&](auto &l) {
        // The phones are kept packed from slot 0: the first empty number ends
        // the list, whatever the later slots hold.
        for (int32_t i = 0; i <= 4 && r.phones[i].phoneNumber[0] != '\0'; ++i) {
            auto &phone = r.phones[i];
            l.item(i, [&](auto &item) {
                item("phoneType", phone.phoneType);
                item("phoneNumber", phone.phoneNumber);
                item("phoneName", phone.phoneName);
                // Start and end of the daily window as HHMMHHMM; a value
                // above 99 widens its field rather than being cut.
                item.derived("phoneDuration",
                             mw::Text<32>("%02d%02d%02d%02d", phone.durationStartHour, phone.durationStartMinute,
                                          phone.durationEndHour, phone.durationEndMinute));
                item("phonePort", phone.phonePort);
            });
        }
    });
})

MW_SETTABLE_PAGE(network_sip_white_list, [](auto &a, auto &r) {
    a("enable", r.enable);
    a.list("sipWhiteList", "phoneIndex", [&](auto &l) {
        // Unused slots are left out but the others keep their slot numbers.
        for (int32_t i = 0; i <= 4; ++i) {
            if (r.phoneNumber[i][0] == '\0')
                continue;
            l.item(i, [&](auto &item) {
                item("phoneType", r.phoneType[i]);
                item("phoneNumber", r.phoneNumber[i]);
            });
        }
    });
})

/* ---- stream addresses, VPN and cellular ---- */

MW_READ_ONLY_PAGE(network_stream_url, "addresses the camera serves", [](auto &a, auto &r) {
    stream_urls(a, "rtspStreamUrl", r.rtspStreamUrl);
    stream_urls(a, "httpStreamUrl", r.httpStreamUrl);
})

MW_SETTABLE_PAGE(network_vpn, [](auto &a, auto &r) {
    a("server", r.server);
    a("port", r.port);
    a("authCode", r.authCode);
    a("deviceName", r.deviceName);
    a("mode", r.mode); // after the texts, though stored first
    a("connected", r.connected);
    a("localIp", r.localIp);
    a("remoteIp", r.remoteIp);
    a("duration", r.duration);
    a("errorCode", r.errorCode);
})

MW_READ_ONLY_PAGE(network_cellular_info, "live cellular state", [](auto &a, auto &r) {
    a("enable", r.enable);
    a("apn", r.apn);
    a("userName", r.userName);
    a("password", r.password);
    a("pinCode", r.pinCode);
    a("accessNumber", r.accessNumber);
    a("authenticationType", r.authenticationType);
    a("networkType", r.networkType);
    a("redialInterval", r.redialInterval);
    a("billDay", r.billDay);
    a("pingDetection", r.pingDetection); // beside its address, though stored second
    a("pingAddr", r.pingAddr);
    a("mtu", r.mtu);
    a("isp", r.isp);
    a("simStatus", r.simStatus);
    a("signal", r.signal);
    a("connect", r.connect);
    a("imei", r.imei);
    a("imsi", r.imsi);
    a("iccid", r.iccid);
    a("ipaddr", r.ipaddr);
    a("subNetmask", r.subNetmask);
    a("gateway", r.gateway);
    a("dns", r.dns);
    a("dataUsage", r.dataUsage);
})
