/*
 * middleware_network.h - the network pages: services, platform access, push, online users, mail, SIP, stream addresses, VPN, cellular.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_NETWORK_H
#define MIDDLEWARE_NETWORK_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ===== network ===== */

/* ---- network services ---- */

/* TCP/IP: the IPv4 address (or DHCP), the IPv6 settings, DNS and MTU. */
typedef struct network_tcp_record {
    char ipv4Ipaddress[32];
    char ipv4netmask[32];              /* dotted text, e.g. 255.255.255.0 */
    char ipv4gateway[32];
    int32_t ipv4DhcpEnable;
    char dns0[64];
    int32_t ipv6Mode;
    char ipv6Ipaddress[64];
    int32_t ipv6netmask;               /* IPv6 prefix length (e.g. 64): a number, not a mask text */
    char ipv6gateway[64];
    int32_t mtuByte;                   /* MTU in bytes */
} network_tcp_record;

/* HTTP and HTTPS ports and switches, and the installed HTTPS certificate:
   its validity dates and subject parts (country, state `ST`, organisation `O`,
   common name `CN`). `certResult` and `certUpdateFlag` are the state of the
   last certificate request and installation. Width chosen for CN: 64. */
typedef struct network_http_record {
    int32_t httpPort;
    int32_t httpEnable;
    int32_t httpsEnable;
    int32_t httpsPort;
    char certDate[256];
    char certSubject[256];
    int32_t certResult;
    char requestSubject[256];          /* subject of a pending certificate request */
    int32_t certUpdateFlag;
    char ipv4Ipaddress[32];
    char ipv6Ipaddress[32];
    char notBefore[64];
    char notAfter[64];
    char country[64];
    char ST[64];
    char O[64];
    char CN[64];
} network_http_record;

/* UPnP port mapping: for HTTP, HTTPS, RTSP and playback, the external port
   announced to the router, the camera's internal port and the mapping's
   state as the router reported it. */
typedef struct network_upnp_record {
    int32_t scanUpnpEnable;
    int32_t upnpEnable;
    char upnpName[256];                /* friendly name announced on the network */
    int32_t upnpType;                  /* mapping mode: automatic or manual */
    int32_t upnpHttpPort;              /* external ports */
    int32_t upnpHttpsPort;
    int32_t upnpRtspPort;
    int32_t upnpPlayBackPort;
    int32_t upnpHttpInterPort;         /* internal ports */
    int32_t upnpHttpsInterPort;
    int32_t upnpRtspInterPort;
    int32_t upnpPlaybackInterPort;
    int32_t upnpHttpStatus;            /* mapping states */
    int32_t upnpHttpsStatus;
    int32_t upnpRtspStatus;
    int32_t upnpPlaybackStatus;
} network_upnp_record;

/* 802.1Q VLAN tagging and the address the camera uses inside the VLAN.
   Width chosen for vlanGateway: 32, as the other two addresses. */
typedef struct network_vlan_record {
    int32_t vlanEnable;
    int32_t vlanId;                    /* VLAN tag, 1..4094 */
    char vlanIp[32];
    char vlanNetmask[32];
    char vlanGateway[32];
} network_vlan_record;

/* PPPoE dial-up: the account name and the address the link obtained. The
   password is kept elsewhere and never written out. */
typedef struct network_pppoe_record {
    int32_t pppoeEnable;
    char pppoeUsername[128];
    char pppoeIp[64];
    int32_t pppoeReload;               /* 1 asks for a redial */
} network_pppoe_record;

/* RTSP ports and multicast: the group address, one multicast port per
   stream (main stream first), QoS DSCP mark and RTP packet size. */
typedef struct network_rtsp_record {
    char multicastGroupAddress[64];
    int32_t multicastPort[4];          /* keys multicastPort_0 .. multicastPort_3 */
    int32_t rtspPort;
    int32_t rtspPlaybackPort;
    int32_t qosDscp;
    int32_t rtpPacketSize;
} network_rtsp_record;

/* SNMP: the v1/v2c communities and the v3 users for reading (rd...) and
   writing (wr...) with their security level and algorithms. Communities and
   passwords are the user's settings and are written out as they stand. */
typedef struct network_snmp_record {
    int32_t enableV1;
    int32_t enableV2;
    int32_t enableV3;
    char wrCommunity[128];
    char rdCommunity[128];
    char rdSecurityName[128];
    int32_t rdSecurityLevel;
    int32_t rdAuthenticationAlgorithm;
    char rdAuthenticationPassword[128];
    int32_t rdPrivateKeyAlgorithm;
    char rdPrivatePassword[128];
    char wrSecurityName[128];
    int32_t wrSecurityLevel;
    int32_t wrAuthenticationAlgorithm;
    char wrAuthenticationPassword[128];
    int32_t wrPrivateKeyAlgorithm;
    char wrPrivatePassword[128];
    int32_t snmpPort;
} network_snmp_record;

/* IEEE 802.1X port authentication (EAP-MD5 only). Widths chosen: username
   and the password no key reads, 64 bytes each. */
typedef struct network_8021x_record {
    uint8_t enable;
    uint8_t reserved0;                 /* not in the document */
    char username[64];
    char password[64];                 /* not in the document */
    uint8_t eapolver;                  /* EAPOL version counted from 0: 0 is version 1 */
} network_8021x_record;

/* Bonjour (mDNS) announcement and the name it announces (width chosen: 64). */
typedef struct network_bonjour_record {
    uint8_t enable;
    char name[64];
} network_bonjour_record;

/* The DDNS page reads network_ddns_record, declared with the layouts shared
   by two groups above. Its three ports are unsigned. */

/* One flat object each, keys in the page's order (which is not always the
   record's). "ipv6netmask" is a number, "ipv4netmask" a string. */
MW_API int32_t get_network_tcp_json(const network_tcp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_tcp_json(const network_tcp_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_tcp_json(network_tcp_record *record, const char *body, int32_t bodySize, char *dst,
                                    int32_t dstSize);
/* "httpEnable" comes before "httpPort". */
MW_API int32_t get_network_http_json(const network_http_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_http_json(const network_http_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_http_json(network_http_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* 16 members: switches, name and type, then the twelve ports and states in
   record order ("upnpPlayBackPort" with a capital B). */
MW_API int32_t get_network_upnp_json(const network_upnp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_upnp_json(const network_upnp_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_upnp_json(network_upnp_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* "vlanEnable", "vlanId", then the three addresses. */
MW_API int32_t get_network_vlan_json(const network_vlan_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_vlan_json(const network_vlan_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_vlan_json(network_vlan_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* No password is written. */
MW_API int32_t get_network_pppoe_json(const network_pppoe_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_pppoe_json(const network_pppoe_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_pppoe_json(network_pppoe_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
/* 13 members; "httpPort", "rtspPort", "playbackPort" unsigned; "status" comes
   before the two oem members although it is stored last. */
MW_API int32_t get_network_ddns_json(const network_ddns_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_ddns_json(const network_ddns_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_ddns_json(network_ddns_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* Always four members multicastPort_0 .. multicastPort_3. */
MW_API int32_t get_network_rtsp_json(const network_rtsp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_rtsp_json(const network_rtsp_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_rtsp_json(network_rtsp_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* "enableV3" is written after the two communities. */
MW_API int32_t get_network_snmp_json(const network_snmp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_snmp_json(const network_snmp_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_snmp_json(network_snmp_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* "protocol" is always "EAP-MD5"; "eapolver" is the stored byte plus 1. */
MW_API int32_t get_network_8021x_json(const network_8021x_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_8021x_json(const network_8021x_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_8021x_json(network_8021x_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
/* "enable" (unsigned byte) and "name". */
MW_API int32_t get_network_bonjour_json(const network_bonjour_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_bonjour_json(const network_bonjour_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_bonjour_json(network_bonjour_record *record, const char *body, int32_t bodySize, char *dst,
                                        int32_t dstSize);

/* ---- platform, push, online users, mail and SIP ---- */

/* Registration with a remote video platform: the camera's local signalling
   port, the platform server and the identifiers it assigned, the timers
   (in seconds) and the channel identifiers of the alarm input, video and
   audio output. Width chosen for audioOutput: 64, as its neighbours. */
typedef struct network_platform_record {
    uint8_t enable;
    int32_t localPort;
    char serverId[64];
    char serverRegion[64];
    char serverAddress[64];
    int32_t serverPort;
    char deviceId[64];
    char password[64];
    int32_t validity;                  /* registration validity */
    int32_t heartBeatPeriod;
    int32_t videoStream;               /* stream sent to the platform, 0 = main */
    int32_t registerInterval;
    int32_t maxTimeout;                /* heartbeats missed before going offline */
    char alarmInput[64];
    char videoChannel[64];
    char audioOutput[64];
} network_platform_record;

/* One push module's switch. The key it is written under comes from the
   platform library (get_new_module_push_name), not from the record. */
typedef struct module_push_entry {
    char moduleName[64];               /* not in the document */
    uint8_t push;                      /* 1: the module pushes its alarms */
} module_push_entry;

/* ONVIF and the push service; one push module so far. */
typedef struct network_more_record {
    int32_t onvifEnable;
    int32_t pushEnable;
    int32_t pushType;
    module_push_entry modulePush[1];
} network_more_record;

/* Publishing one stream to an RTMP server (width chosen for server: 256, a
   full rtmp:// address with its stream key). */
typedef struct network_rtmp_record {
    uint8_t enable;
    uint8_t streamType;                /* 0 = main stream */
    char server[256];
} network_rtmp_record;

/* The peer that fills recording gaps after a network loss (automatic
   network replenishment) and the state of the link to it. */
typedef struct network_anr_info_record {
    char anrMac[64];
    char anrIp[64];
    int32_t anrStatus;
} network_anr_info_record;

/* The users logged in now: the first onlineUserCount slots. */
typedef struct network_online_users_record {
    int32_t onlineUserCount;
    char onlineUserName[30][128];
    int32_t onlineUserLevel[30];       /* user level (administrator, operator, viewer) */
    char onlineUserIp[30][64];
    char onlineUserTime[30][64];       /* login time as text */
} network_online_users_record;

/* The mail sent when the camera boots. The SSL mode is stored as two bits:
   "serverSsl" is 2 * serverSslHigh + serverSslLow. Widths chosen: 128 bytes
   for every address and the user name. */
typedef struct network_smtp_boot_notify_record {
    uint8_t bootNotifyEnable;
    char emailTarcertAddress[128];     /* the key keeps this spelling */
    char serverUserName[128];
    char serverFromAddress[128];
    char serverAddress[128];
    char serverToAddress[128];
    uint32_t serverPort;
    uint8_t serverSslHigh;
    uint8_t serverSslLow;
} network_smtp_boot_notify_record;

/* SIP intercom account and call settings. Width chosen for userName: 64. */
typedef struct sip_settings {
    uint8_t enable;
    uint8_t registerMode;
    uint8_t sipAudioEnable;
    uint8_t videoStream;
    uint32_t serverPort;
    uint32_t reserved0;                /* not in the document */
    uint32_t maxDuration;              /* longest call, in seconds */
    char userId[64];
    char password[32];
    char userName[64];
    char serverAddress[64];
    uint8_t connectionProtocol;        /* 0 = UDP, 1 = TCP */
} sip_settings;

/* The SIP page: the settings, owned by the caller and read through the
   pointer, and the registration state. */
typedef struct network_sip_settings_record {
    const sip_settings *settings;      /* must not be NULL: it is not tested */
    int32_t sipStatus;
} network_sip_settings_record;

/* A phone the camera calls on an alarm, within a daily time window (hours
   and minutes, 24-hour clock). An empty phoneNumber marks an empty slot.
   Width chosen for phoneName: 64. */
typedef struct sip_alarm_phone_entry {
    uint32_t reserved0;                /* not in the document */
    uint8_t phoneType;
    uint32_t phonePort;
    uint8_t reserved1;                 /* not in the document */
    uint8_t durationStartHour;
    uint8_t durationStartMinute;
    uint8_t durationEndHour;
    uint8_t durationEndMinute;
    char phoneNumber[64];
    char phoneName[64];
} sip_alarm_phone_entry;

/* Five alarm phones, filled from slot 0 on: the first empty number ends the
   list. */
typedef struct network_sip_alarm_phone_list_record {
    sip_alarm_phone_entry phones[5];
} network_sip_alarm_phone_list_record;

/* The numbers allowed to call the camera: five slots, an empty phoneNumber
   marks an unused one (later slots still count). */
typedef struct network_sip_white_list_record {
    int32_t enable;
    int32_t reserved0[5];              /* not in the document */
    int32_t phoneType[5];
    char phoneNumber[5][64];
} network_sip_white_list_record;

/* 16 members in record order; the password is written as stored. */
MW_API int32_t get_network_platform_json(const network_platform_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_platform_json(const network_platform_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_platform_json(network_platform_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* "newModulePush" holds one member for module 0, keyed by the platform
   library's name for it (a module the platform does not name adds nothing:
   cJSON refuses a member without a key). */
MW_API int32_t get_network_more_json(const network_more_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_more_json(const network_more_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_more_json(network_more_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* "enable", "streamType" (unsigned bytes), "server". */
MW_API int32_t get_network_rtmp_json(const network_rtmp_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_rtmp_json(const network_rtmp_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_rtmp_json(network_rtmp_record *record, const char *body, int32_t bodySize, char *dst,
                                     int32_t dstSize);
/* "anrMac", "anrIp", "anrStatus". */
MW_API int32_t get_network_anr_info_json(const network_anr_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_anr_info_json(const network_anr_info_record *in, char *dst, int32_t dstSize);
/* "onlineUserList": one object per user for i < onlineUserCount, at most the
   30 slots (none for a count of 0 or below). */
MW_API int32_t get_network_online_users_json(const network_online_users_record *in, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_network_online_users_json(const network_online_users_record *in, char *dst, int32_t dstSize);
/* Server first, then the addresses; "serverSsl" combines the two bits and
   "serverPort" is unsigned. */
MW_API int32_t get_network_smtp_boot_notify_json(const network_smtp_boot_notify_record *in, char *dst,
                                                 int32_t dstSize);
MW_API int32_t schema_network_smtp_boot_notify_json(const network_smtp_boot_notify_record *in, char *dst,
                                                    int32_t dstSize);
MW_API int32_t set_network_smtp_boot_notify_json(network_smtp_boot_notify_record *record, const char *body,
                                                 int32_t bodySize, char *dst, int32_t dstSize);
/* Reads *in->settings, then "sipStatus" last. */
MW_API int32_t get_network_sip_settings_json(const network_sip_settings_record *in, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_network_sip_settings_json(const network_sip_settings_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_sip_settings_json(network_sip_settings_record *record, const char *body, int32_t bodySize,
                                             char *dst, int32_t dstSize);
/* "sipAlarmPhoneList": slots from 0 up to the first empty number, each with
   its "phoneIndex" and "phoneDuration" as HHMMHHMM (start, end). */
MW_API int32_t get_network_sip_alarm_phone_list_json(const network_sip_alarm_phone_list_record *in, char *dst,
                                                     int32_t dstSize);
MW_API int32_t schema_network_sip_alarm_phone_list_json(const network_sip_alarm_phone_list_record *in, char *dst,
                                                        int32_t dstSize);
/* A request may clear a phone's number only where no listed phone follows
   it (clearing would end the list there and hide them): otherwise -1 and
   {"sipAlarmPhoneList[<i>].phoneNumber": "format error"}, record unchanged. */
MW_API int32_t set_network_sip_alarm_phone_list_json(network_sip_alarm_phone_list_record *record, const char *body,
                                                     int32_t bodySize, char *dst, int32_t dstSize);
/* "sipWhiteList": every slot with a number, "phoneIndex" the slot (0..4). */
MW_API int32_t get_network_sip_white_list_json(const network_sip_white_list_record *in, char *dst,
                                               int32_t dstSize);
MW_API int32_t schema_network_sip_white_list_json(const network_sip_white_list_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_sip_white_list_json(network_sip_white_list_record *record, const char *body,
                                               int32_t bodySize, char *dst, int32_t dstSize);

/* ---- stream addresses, VPN and cellular ---- */

/* The RTSP and HTTP address of each of the six streams, main stream first;
   an unused stream holds an empty text. */
typedef struct network_stream_url_record {
    char rtspStreamUrl[6][256];
    char httpStreamUrl[6][256];
} network_stream_url_record;

/* The VPN client: its server and the identity it registers with, and the
   state of the tunnel. The reserved members hold the client's own settings
   (32 bytes each, our choice) and are not in the document; width chosen for
   remoteIp: 64, as localIp. */
typedef struct network_vpn_record {
    uint8_t reserved0;                 /* not in the document */
    uint8_t mode;
    char server[64];
    int32_t port;
    char reserved1[32];                /* not in the document */
    char reserved2[32];                /* not in the document */
    char authCode[32];
    char deviceName[32];
    uint8_t connected;                 /* 1 while the tunnel is up */
    char localIp[64];                  /* tunnel addresses */
    char remoteIp[64];
    uint64_t duration;                 /* connection time of the tunnel */
    uint32_t errorCode;                /* last error of the client, 0 = none */
} network_vpn_record;

/* The cellular modem: dial-up settings (APN, account, PIN, access number),
   the link check by ping, and the modem's status texts. Password and PIN are
   the user's settings and are written out as they stand. The reserved members
   are not in the document (two words each, our choice); width chosen for
   dataUsage: 32, as the status texts before it. */
typedef struct network_cellular_info_record {
    int32_t enable;
    int32_t pingDetection;             /* 1: check the link by pinging pingAddr */
    char apn[256];
    char userName[256];
    char password[128];
    char pinCode[256];
    char accessNumber[256];
    int32_t authenticationType;
    int32_t networkType;
    int32_t redialInterval;
    int32_t billDay;                   /* day of the month the data allowance restarts */
    int32_t reserved0[2];              /* not in the document */
    char pingAddr[256];
    int32_t mtu;
    int32_t reserved1[2];              /* not in the document */
    char isp[32];
    char simStatus[32];
    int32_t signal;                    /* signal strength */
    char connect[32];
    char imei[32];
    char imsi[32];
    char iccid[32];
    char ipaddr[32];
    char subNetmask[32];
    char gateway[32];
    char dns[32];
    char dataUsage[32];
} network_cellular_info_record;

/* "rtspStreamUrl" and "httpStreamUrl": six objects each, {"url"}, empty
   addresses included. */
MW_API int32_t get_network_stream_url_json(const network_stream_url_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_stream_url_json(const network_stream_url_record *in, char *dst, int32_t dstSize);
/* "mode" follows the texts; "duration" is an unsigned 64-bit number written
   as a JSON number (exact up to 2^53). */
MW_API int32_t get_network_vpn_json(const network_vpn_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_network_vpn_json(const network_vpn_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_network_vpn_json(network_vpn_record *record, const char *body, int32_t bodySize, char *dst,
                                    int32_t dstSize);
/* 25 members; "pingDetection" comes after "billDay". */
MW_API int32_t get_network_cellular_info_json(const network_cellular_info_record *in, char *dst,
                                              int32_t dstSize);
MW_API int32_t schema_network_cellular_info_json(const network_cellular_info_record *in, char *dst, int32_t dstSize);

/* ===== end network ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_NETWORK_H */
