/*
 * middleware.h - the JSON presentation library of the camera firmware.
 *
 * The web server keeps every configuration page and status report as a plain
 * record. For a request whose query carries "format=json" it fills the page's
 * record and calls the matching serializer, which prints the document into the
 * caller's buffer:
 *
 *     system_information_record info;   // filled from the configuration
 *     char body[16384];
 *     if (get_system_information_json(&info, body, sizeof body) == 0)
 *         send(body);
 *
 * Every serializer returns 0 on success and -1 on failure. It fails for a
 * NULL buffer or a size below 1 without touching the buffer; on success the
 * buffer holds the whole document in cJSON's formatted style (tabs, one member
 * a line) or, when the document is longer, its first size-1 bytes, always
 * followed by a NUL. Nothing reports the cut: compare strlen(dst) with
 * size-1. Records are only read (the capability serializers excepted, which
 * tokenize their option texts in place). Texts in records are NUL-terminated
 * within their arrays. No function keeps state: all may be called
 * concurrently on different buffers.
 *
 * The header is plain C (C11) and C++.
 */
#ifndef MIDDLEWARE_H
#define MIDDLEWARE_H

#include <stdint.h>
#include <cjson/cJSON.h>

#if defined(MIDDLEWARE_BUILD)
#define MW_API __attribute__((visibility("default")))
#else
#define MW_API
#endif

/* A record member that C names `class` is spelled `class_` in C++; the member
   and its place in the record are the same. */
#ifdef __cplusplus
#define MW_CLASS_MEMBER class_
#else
#define MW_CLASS_MEMBER class
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ===== core: reply envelopes, format test, file reader ===== */

/* {} - the answer to a get request that has nothing to report. */
MW_API int32_t zk_return_get_request_empty_json(char *dst, int32_t dstSize);
/* {"setState": "succeed"} */
MW_API int32_t zk_return_set_request_succeed_json(char *dst, int32_t dstSize);
/* {"setState": "failed"} (the function's name keeps its historic spelling) */
MW_API int32_t zk_return_set_request_faild_json(char *dst, int32_t dstSize);
/* {key: "format error"}; the caller names the key, which must not be NULL. */
MW_API int32_t zk_return_format_error_json(char *dst, int32_t dstSize, const char *key);

/* 1 when "format=json" occurs anywhere in the query (case-sensitive), else 0.
   The query must not be NULL. */
MW_API int32_t zk_check_format_json(const char *query);

/* Reads the first `length` bytes of the file behind `fd` (from its start,
   wherever its position stood) into a new buffer of length+1 bytes, the last
   one a NUL. The buffer comes from the platform allocator and belongs to the
   caller. NULL for fd 0 (no file), for a length of 0 or below (a negative
   length is refused too, since it cannot describe a buffer), or when the
   allocation fails. A short read is not reported: the bytes past what was read
   are as the allocator left them. */
MW_API char *getJsonBuff(int32_t fd, int32_t length);

/* ===== core: node building ===== */

/* Creates an object (array) and stores it in *outChild (*outArray) at once,
   NULL included; when it exists, hangs it under `key` in `parent` and returns
   1, else returns -1. The arguments are not tested. */
MW_API int32_t json_set_element_struct(cJSON *parent, cJSON **outChild, const char *key);
MW_API int32_t json_set_array_struct(cJSON *parent, cJSON **outArray, const char *key);

/* ===== core: request reading ===== */
/* Member lookups follow cJSON_GetObjectItem (keys compare case-insensitively);
   type tests compare the node's type with cJSON_Number, cJSON_String or
   cJSON_Array exactly. */

/* The first element of the array (or object) under arrayKey whose member
   memberKey has the integer value `index` (a member that is not a number
   counts as 0), or NULL. */
MW_API cJSON *get_json_array_struct_from_index(cJSON *object, const char *arrayKey,
                                               const char *memberKey, int32_t index);
/* The same, matching the member's text against `value` with strcmp. The
   member must be a string and `value` must not be NULL. */
MW_API cJSON *get_json_array_struct_from_string(cJSON *object, const char *arrayKey,
                                                const char *memberKey, const char *value);
/* The member under key, or NULL (also for a NULL object or key). */
MW_API cJSON *get_json_object(cJSON *object, const char *key);

/* -1: a NULL argument or no such key (*wrongType untouched).
    0: the key is present; *wrongType is 1 when it is not a number (*out
       untouched), else 0 with the value in *out (an integer is cJSON's
       truncation of the double). */
MW_API int32_t get_json_section_type_int(cJSON *object, const char *key, int32_t *out,
                                         int32_t *wrongType);
MW_API int32_t get_json_section_type_double(cJSON *object, const char *key, double *out,
                                            int32_t *wrongType);
/* -1: a NULL argument, no such key, or a string node without text.
    1: not a string (*wrongType 1, out emptied), or the text copied into out
       (cut at outSize-1 bytes, *wrongType 0).
    0: the empty string (out emptied, *wrongType untouched). */
MW_API int32_t get_json_section_type_string(cJSON *object, const char *key, char *out,
                                            int32_t outSize, int32_t *wrongType);
/* Copies up to `max` numbers of the array under key into out.
    1: all read elements were numbers (*wrongType 0);
   -1: a NULL argument (flag untouched), or the key absent, not an array, or
       an element read that is not a number (*wrongType 1; the elements
       before it are already stored). */
MW_API int32_t get_json_section_type_int_array(cJSON *object, const char *key, int32_t *out,
                                               int32_t max, int32_t *wrongType);

/* ===== core: event names ===== */

/* The JSON name of an alarm event type (0..47) or of a VCA event type (0..10):
   constant text, never to be freed. NULL above the last index, and for a
   negative index. */
MW_API const char *getAlarmEventTypeString(int32_t index);
MW_API const char *getVcaEventTypeString(int32_t index);

/* ===== layouts shared by two groups ===== */

/* The DDNS settings from the enable byte on. The network DDNS page record
   starts with one more word; the support-information record embeds the block
   as it stands, so both read the same bytes. The widths of userName and of
   the password no key reads are ours: 64 bytes each; `reserved1` holds the
   provider's bookkeeping (update interval, last result and the like). */
#define MW_NETWORK_DDNS_SETTINGS_FIELDS                                         \
    uint8_t enable;                                                          \
    uint8_t reserved0[2];        /* not in the documents */                  \
    char userName[64];                                                       \
    char password[64];           /* not in the documents */                  \
    char provider[64];                                                       \
    char hostName[128];                                                      \
    char hash[128];                                                          \
    char url[128];                                                           \
    uint32_t httpPort;                                                       \
    uint32_t rtspPort;                                                       \
    uint32_t playbackPort;                                                   \
    char hostIp[128];                                                        \
    int32_t oemzkDisplay;                                                    \
    int32_t oemIndex;                                                        \
    int32_t reserved1[4];        /* not in the documents */                  \
    int32_t status;

typedef struct network_ddns_settings {
    MW_NETWORK_DDNS_SETTINGS_FIELDS
} network_ddns_settings;

typedef struct network_ddns_record {
    int32_t reserved;            /* not in the document */
    MW_NETWORK_DDNS_SETTINGS_FIELDS
} network_ddns_record;

/* A stored preset slot: the position it returns to and its name. Shared by
   the PTZ presets and the fisheye presets. `reserved0` and `reserved1` belong
   to the motor controller (speed and dwell) and are not in the documents. */
typedef struct ptz_preset_entry {
    double firstCoordinate;
    double secondCoordinate;
    int32_t leadingNumber;       /* printed first in the preset text */
    int32_t reserved0;
    int32_t id;                  /* 0 marks an empty slot */
    int32_t reserved1;
    char name[68];
} ptz_preset_entry;

/* ===== end layouts shared by two groups ===== */

/* ===== system: device information ===== */

/* The device-information page: identity, network state and the feature flags
   that tell a client which pages this camera has (1 = supported). */
typedef struct system_information_record {
    char model[32];
    char mac[32];
    char firmwareVersion[32];
    char systemBootTime[32];
    int32_t wireless;                  /* 1 when the camera has a wireless interface */
    int32_t dhcpEnable;
    char ipaddress[32];
    char netmask[32];
    char gateway[32];
    int32_t pppoeEnable;
    char dns0[32];
    char dns1[32];
    int32_t ddnsEnable;
    char ddnsHostName[32];
    int32_t ddnsStatus;
    int32_t wirelessEnable;
    char deviceName[128];
    char deviceLacation[32];           /* the device's location text; the key keeps this spelling */
    char deviceInformation[32];
    char deviceVender[32];
    char hardwareVersion[32];
    char kernelVersion[32];
    char sdkVersion[32];
    int32_t aiNnieStatus;
    int32_t ioSupport;
    int32_t audioSupport;
    int32_t audioMode;
    int32_t audioType;
    int32_t audioLineInput;
    int32_t alarmInputSupport;
    int32_t alarmOutputSupport;
    int32_t fisheyeSupport;
    int32_t vcaSupport;
    int32_t vcaType;
    int32_t anrSupport;
    int32_t speakerSupport;
    int32_t lprSupport;
    int32_t lprVersion;
    int32_t radarSupport;
    int32_t upgrade;
    int32_t faceSupport;
    int32_t polygonFaceSupport;
    int32_t irSensor;
    int32_t dnSensitivitySupport;
    int32_t croproiSupport;
    int32_t dnRefocusSupport;
    int32_t reduceStutteringSupport;
    int32_t polygonSupport;
    int32_t localDisplaySupport;
    int32_t fanWorkingModeSupport;
    int32_t smartIrLimitType;
    int32_t smartIrLimitSum;
    int32_t audioFileManagerSupport;
    int32_t humanVehicleSupport;
    int32_t manualSpeedSupport;
    char snCode[32];                   /* serial number shown on the information page */
    int32_t mosaicSupport;
    int32_t antiShakeSupport;
    int32_t corridorModeSupport;
    int32_t imageRotationSupport;
    int32_t humanDetectionSupport;
    int32_t regionalPeopleSupport;
    int32_t heatMapSupport;
    int32_t p2pSupport;
    int32_t ptzSupport;
    char zkChip[256];                  /* chip description */
    int32_t runtime;                   /* running time */
    int32_t adminoptions;
    char adminuser[128];
    int32_t miscAnonymous;
    int32_t pwdStrengthType;
    int32_t viewerdef;
    int32_t viewerOptions;
    int32_t oemIndex;
    int32_t audioAlarmSupport;
    int32_t ledSupport;
    int32_t ledGroupSupport;
    int32_t ptzMaxZoomTimes;
    int32_t realPtzSupport;
    int32_t isSpeedDm;
    int32_t reserved0;                 /* not in the document */
    int32_t reserved1;                 /* not in the document */
    int32_t iotSupport;
    int32_t supportOsdLarger;
    int32_t autoTrackSupport;
    int32_t smartStreamSupportInOtherStream;
    int32_t wiperSupport;
    int32_t oemupdateonline;
    int32_t whiteLedSupport;
    int32_t defogSupport;
    int32_t manualTrackingSupport;
    int32_t manualTrackingDisable;
    int32_t threeDPositionSupport;     /* key "3DPositionSupport" */
    int32_t rs485Support;
    int32_t ptzStatusSupport;
    int32_t heaterSupport;
    int32_t reserved2;                 /* not in the document */
    int32_t reserved3;                 /* not in the document */
    int32_t ntFaceMosaicSupport;
} system_information_record;

/* Vendor, product name and model. The model text's width is ours to choose:
   64 bytes hold every model name the firmware knows. */
typedef struct system_model_record {
    char devicevEnder[128];
    char name[32];
    char deviceModel[64];
} system_model_record;

/* The notice shown when a newer firmware is available (width chosen: 512). */
typedef struct system_upgrade_info_record {
    char upgradeInfo[512];
} system_upgrade_info_record;

/* The heartbeat answer to an online check: the running software version
   (width chosen: 64). */
typedef struct system_online_heart_record {
    char softversion[64];
} system_online_heart_record;

/* 96 members in a fixed order; "isFaceCustomizeModeExists" is always 0. */
MW_API int32_t get_system_information_json(const system_information_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t get_system_model_json(const system_model_record *in, char *dst, int32_t dstSize);
MW_API int32_t get_system_upgrade_info_json(const system_upgrade_info_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t get_system_online_heart_json(const system_online_heart_record *in, char *dst,
                                            int32_t dstSize);

/* ===== end system: device information ===== */

/* ===== system: settings and support information ===== */

/* ===== end system: settings and support information ===== */

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
/* "httpEnable" comes before "httpPort". */
MW_API int32_t get_network_http_json(const network_http_record *in, char *dst, int32_t dstSize);
/* 16 members: switches, name and type, then the twelve ports and states in
   record order ("upnpPlayBackPort" with a capital B). */
MW_API int32_t get_network_upnp_json(const network_upnp_record *in, char *dst, int32_t dstSize);
/* "vlanEnable", "vlanId", then the three addresses. */
MW_API int32_t get_network_vlan_json(const network_vlan_record *in, char *dst, int32_t dstSize);
/* No password is written. */
MW_API int32_t get_network_pppoe_json(const network_pppoe_record *in, char *dst, int32_t dstSize);
/* 13 members; "httpPort", "rtspPort", "playbackPort" unsigned; "status" comes
   before the two oem members although it is stored last. */
MW_API int32_t get_network_ddns_json(const network_ddns_record *in, char *dst, int32_t dstSize);
/* Always four members multicastPort_0 .. multicastPort_3. */
MW_API int32_t get_network_rtsp_json(const network_rtsp_record *in, char *dst, int32_t dstSize);
/* "enableV3" is written after the two communities. */
MW_API int32_t get_network_snmp_json(const network_snmp_record *in, char *dst, int32_t dstSize);
/* "protocol" is always "EAP-MD5"; "eapolver" is the stored byte plus 1. */
MW_API int32_t get_network_8021x_json(const network_8021x_record *in, char *dst, int32_t dstSize);
/* "enable" (unsigned byte) and "name". */
MW_API int32_t get_network_bonjour_json(const network_bonjour_record *in, char *dst, int32_t dstSize);

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

/* The users logged in now. Only the first onlineUserCount slots are read;
   the producer keeps the count within 0..30 (it is not clamped). */
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
/* "newModulePush" holds one member for module 0, keyed by the platform
   library's name for it (a module the platform does not name adds nothing:
   cJSON refuses a member without a key). */
MW_API int32_t get_network_more_json(const network_more_record *in, char *dst, int32_t dstSize);
/* "enable", "streamType" (unsigned bytes), "server". */
MW_API int32_t get_network_rtmp_json(const network_rtmp_record *in, char *dst, int32_t dstSize);
/* "anrMac", "anrIp", "anrStatus". */
MW_API int32_t get_network_anr_info_json(const network_anr_info_record *in, char *dst, int32_t dstSize);
/* "onlineUserList": one object per user for i < onlineUserCount (none for a
   count of 0 or below). */
MW_API int32_t get_network_online_users_json(const network_online_users_record *in, char *dst,
                                             int32_t dstSize);
/* Server first, then the addresses; "serverSsl" combines the two bits and
   "serverPort" is unsigned. */
MW_API int32_t get_network_smtp_boot_notify_json(const network_smtp_boot_notify_record *in, char *dst,
                                                 int32_t dstSize);
/* Reads *in->settings, then "sipStatus" last. */
MW_API int32_t get_network_sip_settings_json(const network_sip_settings_record *in, char *dst,
                                             int32_t dstSize);
/* "sipAlarmPhoneList": slots from 0 up to the first empty number, each with
   its "phoneIndex" and "phoneDuration" as HHMMHHMM (start, end). */
MW_API int32_t get_network_sip_alarm_phone_list_json(const network_sip_alarm_phone_list_record *in, char *dst,
                                                     int32_t dstSize);
/* "sipWhiteList": every slot with a number, "phoneIndex" the slot (0..4). */
MW_API int32_t get_network_sip_white_list_json(const network_sip_white_list_record *in, char *dst,
                                               int32_t dstSize);

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
/* "mode" follows the texts; "duration" is an unsigned 64-bit number written
   as a JSON number (exact up to 2^53). */
MW_API int32_t get_network_vpn_json(const network_vpn_record *in, char *dst, int32_t dstSize);
/* 25 members; "pingDetection" comes after "billDay". */
MW_API int32_t get_network_cellular_info_json(const network_cellular_info_record *in, char *dst,
                                              int32_t dstSize);

/* ===== end network ===== */

/* ===== audio and storage ===== */

/* ===== end audio and storage ===== */

/* ===== traffic and parking ===== */

/* ===== end traffic and parking ===== */

/* ===== ptz ===== */

/* ===== end ptz ===== */

/* ===== camera image ===== */

/* ===== end camera image ===== */

/* ===== video ===== */

/* ===== end video ===== */

/* ===== events: alarm actions per event type ===== */

/* ===== end events: alarm actions per event type ===== */

/* ===== events: sources, upload servers, global switches ===== */

/* ===== end events: sources, upload servers, global switches ===== */

/* ===== iot: radio, profiles, devices, sensor alarms ===== */

/* ===== end iot: radio, profiles, devices, sensor alarms ===== */

/* ===== iot: alarm actions per rule ===== */

/* ===== end iot: alarm actions per rule ===== */

/* ===== capabilities ===== */

/* ===== end capabilities ===== */

/* ===== vca ===== */

/* ===== end vca ===== */

/* ===== lpr ===== */

/* ===== end lpr ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_H */
