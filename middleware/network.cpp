/*
 * network.cpp - the network pages: services (TCP/IP, HTTP, UPnP, VLAN,
 * PPPoE, DDNS, RTSP, SNMP, 802.1X, Bonjour), platform registration, push,
 * online users, boot mail and SIP, stream addresses, VPN and cellular.
 */
#include "internal.h"

#include "zk_platform.h"

using mw::add;

namespace {

/* A list of the six streams' addresses under `key`: one {"url"} object per
   stream, main stream first, empty addresses kept. */
void add_stream_urls(cJSON *root, const char *key, const char (&urls)[6][256])
{
    cJSON *list = mw::array(root, key);
    for (int32_t i = 0; i <= 5; ++i)
        add(mw::append_object(list), "url", urls[i]);
}

} // namespace

/* ---- network services ---- */

int32_t get_network_tcp_json(const network_tcp_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "ipv4Ipaddress", in->ipv4Ipaddress);
        add(root, "ipv4netmask", in->ipv4netmask);
        add(root, "ipv4DhcpEnable", in->ipv4DhcpEnable);
        add(root, "ipv4gateway", in->ipv4gateway);
        add(root, "dns0", in->dns0);
        add(root, "mtuByte", in->mtuByte);
        add(root, "ipv6Mode", in->ipv6Mode);
        add(root, "ipv6Ipaddress", in->ipv6Ipaddress);
        add(root, "ipv6netmask", in->ipv6netmask); // a prefix length, so a number
        add(root, "ipv6gateway", in->ipv6gateway);
    });
}

int32_t get_network_http_json(const network_http_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "httpEnable", in->httpEnable);
        add(root, "httpPort", in->httpPort);
        add(root, "httpsEnable", in->httpsEnable);
        add(root, "httpsPort", in->httpsPort);
        add(root, "certSubject", in->certSubject);
        add(root, "certDate", in->certDate);
        add(root, "certResult", in->certResult);
        add(root, "requestSubject", in->requestSubject);
        add(root, "certUpdateFlag", in->certUpdateFlag);
        add(root, "ipv4Ipaddress", in->ipv4Ipaddress);
        add(root, "ipv6Ipaddress", in->ipv6Ipaddress);
        add(root, "notBefore", in->notBefore);
        add(root, "notAfter", in->notAfter);
        add(root, "country", in->country);
        add(root, "ST", in->ST);
        add(root, "O", in->O);
        add(root, "CN", in->CN);
    });
}

int32_t get_network_upnp_json(const network_upnp_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "scanUpnpEnable", in->scanUpnpEnable);
        add(root, "upnpEnable", in->upnpEnable);
        add(root, "upnpName", in->upnpName);
        add(root, "upnpType", in->upnpType);
        add(root, "upnpHttpPort", in->upnpHttpPort);
        add(root, "upnpHttpsPort", in->upnpHttpsPort);
        add(root, "upnpRtspPort", in->upnpRtspPort);
        add(root, "upnpPlayBackPort", in->upnpPlayBackPort); // capital B, unlike the internal port
        add(root, "upnpHttpInterPort", in->upnpHttpInterPort);
        add(root, "upnpHttpsInterPort", in->upnpHttpsInterPort);
        add(root, "upnpRtspInterPort", in->upnpRtspInterPort);
        add(root, "upnpPlaybackInterPort", in->upnpPlaybackInterPort);
        add(root, "upnpHttpStatus", in->upnpHttpStatus);
        add(root, "upnpHttpsStatus", in->upnpHttpsStatus);
        add(root, "upnpRtspStatus", in->upnpRtspStatus);
        add(root, "upnpPlaybackStatus", in->upnpPlaybackStatus);
    });
}

int32_t get_network_vlan_json(const network_vlan_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "vlanEnable", in->vlanEnable);
        add(root, "vlanId", in->vlanId);
        add(root, "vlanIp", in->vlanIp);
        add(root, "vlanNetmask", in->vlanNetmask);
        add(root, "vlanGateway", in->vlanGateway);
    });
}

int32_t get_network_pppoe_json(const network_pppoe_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "pppoeEnable", in->pppoeEnable);
        add(root, "pppoeUsername", in->pppoeUsername);
        add(root, "pppoeIp", in->pppoeIp);
        add(root, "pppoeReload", in->pppoeReload);
    });
}

int32_t get_network_ddns_json(const network_ddns_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "hostName", in->hostName);
        add(root, "userName", in->userName);
        add(root, "provider", in->provider);
        add(root, "hash", in->hash);
        add(root, "url", in->url);
        add(root, "httpPort", in->httpPort); // the three ports are unsigned words
        add(root, "rtspPort", in->rtspPort);
        add(root, "playbackPort", in->playbackPort);
        add(root, "hostIp", in->hostIp);
        add(root, "status", in->status);
        add(root, "oemzkDisplay", in->oemzkDisplay);
        add(root, "oemIndex", in->oemIndex);
    });
}

int32_t get_network_rtsp_json(const network_rtsp_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "multicastGroupAddress", in->multicastGroupAddress);
        for (int32_t i = 0; i <= 3; ++i)
            add(root, mw::Key<30>("multicastPort_%d", i), in->multicastPort[i]);
        add(root, "rtspPort", in->rtspPort);
        add(root, "rtspPlaybackPort", in->rtspPlaybackPort);
        add(root, "qosDscp", in->qosDscp);
        add(root, "rtpPacketSize", in->rtpPacketSize);
    });
}

int32_t get_network_snmp_json(const network_snmp_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enableV1", in->enableV1);
        add(root, "enableV2", in->enableV2);
        add(root, "wrCommunity", in->wrCommunity);
        add(root, "rdCommunity", in->rdCommunity);
        add(root, "enableV3", in->enableV3); // after the communities, though stored before them
        add(root, "rdSecurityName", in->rdSecurityName);
        add(root, "rdSecurityLevel", in->rdSecurityLevel);
        add(root, "rdAuthenticationAlgorithm", in->rdAuthenticationAlgorithm);
        add(root, "rdAuthenticationPassword", in->rdAuthenticationPassword);
        add(root, "rdPrivateKeyAlgorithm", in->rdPrivateKeyAlgorithm);
        add(root, "rdPrivatePassword", in->rdPrivatePassword);
        add(root, "wrSecurityName", in->wrSecurityName);
        add(root, "wrSecurityLevel", in->wrSecurityLevel);
        add(root, "wrAuthenticationAlgorithm", in->wrAuthenticationAlgorithm);
        add(root, "wrAuthenticationPassword", in->wrAuthenticationPassword);
        add(root, "wrPrivateKeyAlgorithm", in->wrPrivateKeyAlgorithm);
        add(root, "wrPrivatePassword", in->wrPrivatePassword);
        add(root, "snmpPort", in->snmpPort);
    });
}

int32_t get_network_8021x_json(const network_8021x_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        mw::add_string(root, "protocol", "EAP-MD5"); // the only method the supplicant speaks
        // The stored byte counts versions from 0; the page shows them from 1.
        add(root, "eapolver", static_cast<int32_t>(in->eapolver) + 1);
        add(root, "username", in->username);
    });
}

int32_t get_network_bonjour_json(const network_bonjour_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "name", in->name);
    });
}

/* ---- platform, push, online users, mail and SIP ---- */

int32_t get_network_platform_json(const network_platform_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "localPort", in->localPort);
        add(root, "serverId", in->serverId);
        add(root, "serverRegion", in->serverRegion);
        add(root, "serverAddress", in->serverAddress);
        add(root, "serverPort", in->serverPort);
        add(root, "deviceId", in->deviceId);
        add(root, "password", in->password);
        add(root, "validity", in->validity);
        add(root, "heartBeatPeriod", in->heartBeatPeriod);
        add(root, "videoStream", in->videoStream);
        add(root, "registerInterval", in->registerInterval);
        add(root, "maxTimeout", in->maxTimeout);
        add(root, "alarmInput", in->alarmInput);
        add(root, "videoChannel", in->videoChannel);
        add(root, "audioOutput", in->audioOutput);
    });
}

int32_t get_network_more_json(const network_more_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "onvifEnable", in->onvifEnable);
        add(root, "pushEnable", in->pushEnable);
        add(root, "pushType", in->pushType);
        cJSON *push = mw::object(root, "newModulePush");
        // One module today; raise the bound with the record's array when the
        // platform names more. The platform owns the key texts.
        for (int32_t m = 0; m <= 0; ++m)
            add(push, get_new_module_push_name(m), in->modulePush[m].push);
    });
}

int32_t get_network_rtmp_json(const network_rtmp_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "streamType", in->streamType);
        add(root, "server", in->server);
    });
}

int32_t get_network_anr_info_json(const network_anr_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "anrMac", in->anrMac);
        add(root, "anrIp", in->anrIp);
        add(root, "anrStatus", in->anrStatus);
    });
}

int32_t get_network_online_users_json(const network_online_users_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *list = mw::array(root, "onlineUserList");
        // The list stops at the 30 slots whatever the count says.
        for (int32_t i = 0; i < in->onlineUserCount && i < 30; ++i) {
            cJSON *user = mw::append_object(list);
            add(user, "onlineUserName", in->onlineUserName[i]);
            add(user, "onlineUserLevel", in->onlineUserLevel[i]);
            add(user, "onlineUserIp", in->onlineUserIp[i]);
            add(user, "onlineUserTime", in->onlineUserTime[i]);
        }
    });
}

int32_t get_network_smtp_boot_notify_json(const network_smtp_boot_notify_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "bootNotifyEnable", in->bootNotifyEnable);
        add(root, "serverAddress", in->serverAddress);
        add(root, "serverPort", in->serverPort);
        add(root, "serverUserName", in->serverUserName);
        // The SSL mode is kept as two bits: 0 none, 1 and 2 the two secure modes.
        add(root, "serverSsl", 2 * static_cast<int32_t>(in->serverSslHigh) + static_cast<int32_t>(in->serverSslLow));
        add(root, "serverFromAddress", in->serverFromAddress);
        add(root, "serverToAddress", in->serverToAddress);
        add(root, "emailTarcertAddress", in->emailTarcertAddress);
    });
}

int32_t get_network_sip_settings_json(const network_sip_settings_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        const sip_settings *sip = in->settings;
        add(root, "enable", sip->enable);
        add(root, "registerMode", sip->registerMode);
        add(root, "userId", sip->userId);
        add(root, "userName", sip->userName);
        add(root, "password", sip->password);
        add(root, "serverAddress", sip->serverAddress);
        add(root, "serverPort", sip->serverPort);
        add(root, "connectionProtocol", sip->connectionProtocol);
        add(root, "videoStream", sip->videoStream);
        add(root, "maxDuration", sip->maxDuration);
        add(root, "sipAudioEnable", sip->sipAudioEnable);
        add(root, "sipStatus", in->sipStatus);
    });
}

int32_t get_network_sip_alarm_phone_list_json(const network_sip_alarm_phone_list_record *in, char *dst,
                                              int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *list = mw::array(root, "sipAlarmPhoneList");
        // The phones are kept packed from slot 0: the first empty number ends
        // the list, whatever the later slots hold.
        for (int32_t i = 0; i <= 4 && in->phones[i].phoneNumber[0] != '\0'; ++i) {
            const sip_alarm_phone_entry &phone = in->phones[i];
            cJSON *item = mw::append_object(list);
            add(item, "phoneIndex", i);
            add(item, "phoneType", phone.phoneType);
            add(item, "phoneNumber", phone.phoneNumber);
            add(item, "phoneName", phone.phoneName);
            // Start and end of the daily window as HHMMHHMM; a value above 99
            // widens its field rather than being cut.
            mw::add_string(item, "phoneDuration",
                           mw::Text<32>("%02d%02d%02d%02d", phone.durationStartHour, phone.durationStartMinute,
                                       phone.durationEndHour, phone.durationEndMinute));
            add(item, "phonePort", phone.phonePort);
        }
    });
}

int32_t get_network_sip_white_list_json(const network_sip_white_list_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        cJSON *list = mw::array(root, "sipWhiteList");
        // Unused slots are left out but the others keep their slot numbers.
        for (int32_t i = 0; i <= 4; ++i) {
            if (in->phoneNumber[i][0] == '\0')
                continue;
            cJSON *item = mw::append_object(list);
            add(item, "phoneIndex", i);
            add(item, "phoneType", in->phoneType[i]);
            add(item, "phoneNumber", in->phoneNumber[i]);
        }
    });
}

/* ---- stream addresses, VPN and cellular ---- */

int32_t get_network_stream_url_json(const network_stream_url_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add_stream_urls(root, "rtspStreamUrl", in->rtspStreamUrl);
        add_stream_urls(root, "httpStreamUrl", in->httpStreamUrl);
    });
}

int32_t get_network_vpn_json(const network_vpn_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "server", in->server);
        add(root, "port", in->port);
        add(root, "authCode", in->authCode);
        add(root, "deviceName", in->deviceName);
        add(root, "mode", in->mode); // after the texts, though stored first
        add(root, "connected", in->connected);
        add(root, "localIp", in->localIp);
        add(root, "remoteIp", in->remoteIp);
        add(root, "duration", in->duration);
        add(root, "errorCode", in->errorCode);
    });
}

int32_t get_network_cellular_info_json(const network_cellular_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "apn", in->apn);
        add(root, "userName", in->userName);
        add(root, "password", in->password);
        add(root, "pinCode", in->pinCode);
        add(root, "accessNumber", in->accessNumber);
        add(root, "authenticationType", in->authenticationType);
        add(root, "networkType", in->networkType);
        add(root, "redialInterval", in->redialInterval);
        add(root, "billDay", in->billDay);
        add(root, "pingDetection", in->pingDetection); // beside its address, though stored second
        add(root, "pingAddr", in->pingAddr);
        add(root, "mtu", in->mtu);
        add(root, "isp", in->isp);
        add(root, "simStatus", in->simStatus);
        add(root, "signal", in->signal);
        add(root, "connect", in->connect);
        add(root, "imei", in->imei);
        add(root, "imsi", in->imsi);
        add(root, "iccid", in->iccid);
        add(root, "ipaddr", in->ipaddr);
        add(root, "subNetmask", in->subNetmask);
        add(root, "gateway", in->gateway);
        add(root, "dns", in->dns);
        add(root, "dataUsage", in->dataUsage);
    });
}
