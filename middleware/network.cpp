/*
 * network.cpp - the network pages: services (TCP/IP, HTTP, UPnP, VLAN,
 * PPPoE, DDNS, RTSP, SNMP, 802.1X, Bonjour).
 */
#include "internal.h"

using mw::add;

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
