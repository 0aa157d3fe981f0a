/*
 * middleware_iot.h - the IoT pages: radio, profiles, devices, sensor alarms and alarm actions per rule.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_IOT_H
#define MIDDLEWARE_IOT_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ===== iot: radio, profiles, devices, sensor alarms ===== */

/* The LoRaWAN gateway's radio front end: two radios, eight multi-rate
   channels, one LoRa and one FSK service channel and six additional
   channels. Frequencies are texts as the radio page shows them. */
typedef struct iot_radios_setting_record {
    int32_t iotLoraType;
    int32_t iotEnable;
    int32_t cloudModeEnable;
    char cloudVerification[32];
    int32_t channelPlan;               /* the regional channel plan */
    char channelMask[64];
    char centerRadio_0[32];            /* centre frequency of radio 0 */
    char centerRadio_1[32];
    int32_t radioChannelEnable[8];
    int32_t radioChannelRadio[8];      /* which radio (0 or 1) serves the channel */
    char radioChannelFrequency[8][32];
    int32_t loraEnable;
    int32_t loraRadio;
    char loraFrequency[32];
    int32_t loraBandWidth;
    int32_t loraDataRate;
    int32_t fskEnable;
    int32_t fskRadio;
    char fskFrequency[32];
    int32_t fskBandWidth;
    int32_t fskDataRate;
    char addChannelFrequency[6][32];
    int32_t minRate[6];                /* lowest data rate of the additional channel */
    int32_t maxRate[6];
} iot_radios_setting_record;

/* One LoRaWAN device profile slot. */
typedef struct iot_profile_entry {
    int32_t profileState;              /* -1 marks an empty slot */
    char name[128];
    int32_t maxTxp;                    /* highest transmit power index */
    int32_t joinType;                  /* over the air or by personalisation */
    int32_t classType;                 /* device class A, B or C */
    int32_t macVersion;
    int32_t paramRevision;             /* regional parameters revision */
    int32_t rateRx1;
    int32_t rateRx2;
    int32_t freRx2;                    /* second receive window frequency */
    char freList[64];
    int32_t timeoutClassC;
} iot_profile_entry;

/* The 64 profile slots. `reserved` is the profile store's bookkeeping and is
   not in the document. */
typedef struct iot_profile_setting_record {
    int32_t reserved[2];               /* not in the document */
    iot_profile_entry profiles[64];
} iot_profile_setting_record;

/* One sensor of a device, with its reading's presentation. */
typedef struct iot_sensor_entry {
    int32_t reserved0;                 /* not in the document */
    int32_t sensorType;
    char sensorName[52];
    uint32_t portType;
    uint8_t sensorId;
    uint8_t showOsd;                   /* 1: the reading is shown on the video */
    uint8_t sign;                      /* 1: the value is signed */
    uint8_t decimalPlace;              /* digits after the decimal point */
    uint32_t osh;
    uint32_t osl;
    int32_t reserved1[2];              /* not in the document */
    char unit[36];
} iot_sensor_entry;

/* One registered device. The EUI, keys and address are hexadecimal texts of
   16, 32 and 8 characters. An empty deviceName marks a free slot. */
typedef struct iot_device_entry {
    int32_t deviceType;
    int32_t deviceProfile;             /* index of its profile slot */
    int32_t reserved;                  /* not in the document */
    iot_sensor_entry sensors[24];
    uint8_t deviceStatus;              /* 1 while the device is online */
    char deviceName[128];
    char deviceEUI[17];
    char applicationKey[33];
    char deviceAddress[9];
    char networkSessionKey[33];
    char appSessionKey[33];
    uint8_t frameCounterEnable;
    uint32_t upLinkFrameCnt;
    uint32_t downLinkFrameCnt;
    uint8_t osdFontColor[3];           /* red, green, blue */
    uint32_t osdFontSize;
    uint8_t battery;                   /* percent */
    uint32_t seen;                     /* time of the last frame heard */
    int32_t sensorNum;                 /* sensors in use, from sensors[0] */
} iot_device_entry;

/* The device table as the gateway keeps it. `reserved` is not in the
   document. */
typedef struct iot_device_table {
    int32_t reserved[2];               /* not in the document */
    iot_device_entry device[8];
} iot_device_table;

/* The devices page: the gateway's device table, reached through a pointer,
   and the current time for judging the devices' "seen" times. */
typedef struct iot_devices_management_record {
    iot_device_table *devices;
    int32_t systemTime;
} iot_devices_management_record;

/* The threshold alarm rules: four rules, each with limits for every sensor of
   the eight devices (rule, device, sensor) and its week's schedule. Limits
   are decimal texts. */
typedef struct iot_alarm_settings_record {
    int32_t isExistSensor;             /* 1 when any device has a sensor */
    int32_t sensorNum[8];              /* sensors per device */
    int32_t alarmEnable[4];            /* per rule */
    int32_t sensorEnable[4][8][24];
    int32_t maxLimitEnable[4][8][24];
    int32_t minLimitEnable[4][8][24];
    char maxLimit[4][8][24][16];
    char minLimit[4][8][24][16];
    char schedule[4][7][256];          /* per rule, one text per day, day 0 first */
} iot_alarm_settings_record;

/* The radio settings with "radioChannelList" (always 8 channels) and
   "additionalChannelList" (always 6). */
MW_API int32_t get_iot_radios_setting_json(const iot_radios_setting_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_iot_radios_setting_json(const iot_radios_setting_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_iot_radios_setting_json(iot_radios_setting_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);
/* "profileList": the used slots only, each with its slot number as "index". */
MW_API int32_t get_iot_profile_setting_json(const iot_profile_setting_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_iot_profile_setting_json(const iot_profile_setting_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_iot_profile_setting_json(iot_profile_setting_record *record, const char *body, int32_t bodySize,
                                            char *dst, int32_t dstSize);
/* "systemTime" and "deviceList": the named devices only, each with its slot
   number as "index", its settings, and "sensorInfo" with the readings of
   sensors 0..sensorNum-1 (none for 0 or a negative count). The sensor list
   stops at a device's 24 sensors, whatever a larger count says. A NULL
   device table gives an empty "deviceList". A report: no set function. */
MW_API int32_t get_iot_devices_management_json(const iot_devices_management_record *in, char *dst,
                                               int32_t dstSize);
MW_API int32_t schema_iot_devices_management_json(const iot_devices_management_record *in, char *dst, int32_t dstSize);
/* "isExistSensor" and "rulesList": all four rules, each with all eight devices
   (present or not) and seven schedule days. A device's "sensorList" holds
   sensors 0..sensorNum-1 and stops at 24, whatever a larger count says. */
MW_API int32_t get_iot_alarm_settings_json(const iot_alarm_settings_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_iot_alarm_settings_json(const iot_alarm_settings_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_iot_alarm_settings_json(iot_alarm_settings_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);

/* ===== end iot: radio, profiles, devices, sensor alarms ===== */

/* ===== iot: alarm actions per rule ===== */

/* The actions of the four IoT alarm rules use the alarm-action records of the
   events section: element r (0..3) of each per-type array holds rule r's
   setting, and the eventType selector is not read. Each document lists the
   four rules in "...ActionList", each entry led by "ruleIndex" 0..3. */

/* The IoT alarm state. */
typedef struct event_iot_alarm_status_record {
    int32_t iotAlarmStatus;
} event_iot_alarm_status_record;

/* "sdInsert" and "nasMountStatus" once, from element 0, then
   "iotRecordActionList" ("recordEnable", "recordWay", "duration"). */
MW_API int32_t get_event_iot_record_json(const event_record_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_iot_record_json(const event_record_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_event_iot_record_json(event_record_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* "snapSmtpEnable", then "iotSnapshotActionList" (no "snapType"). */
MW_API int32_t get_event_iot_snap_json(const event_snop_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_iot_snap_json(const event_snop_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_event_iot_snap_json(event_snop_record *record, const char *body, int32_t bodySize, char *dst,
                                       int32_t dstSize);
/* "iotOutputActionList". */
MW_API int32_t get_event_extern_iot_output_json(const event_extern_output_record *in, char *dst,
                                                int32_t dstSize);
MW_API int32_t schema_event_extern_iot_output_json(const event_extern_output_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_event_extern_iot_output_json(event_extern_output_record *record, const char *body, int32_t bodySize,
                                                char *dst, int32_t dstSize);
/* "iotPlayAudioActionList", each rule with its seven-day "scheduleList". */
MW_API int32_t get_event_iot_play_audio_json(const event_play_audio_record *in, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_event_iot_play_audio_json(const event_play_audio_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_event_iot_play_audio_json(event_play_audio_record *record, const char *body, int32_t bodySize,
                                             char *dst, int32_t dstSize);
/* "iotAlarmSipActionList". */
MW_API int32_t get_event_iot_alarm_sip_phone_json(const event_alarm_sip_phone_record *in, char *dst,
                                                  int32_t dstSize);
MW_API int32_t schema_event_iot_alarm_sip_phone_json(const event_alarm_sip_phone_record *in, char *dst,
                                                     int32_t dstSize);
MW_API int32_t set_event_iot_alarm_sip_phone_json(event_alarm_sip_phone_record *record, const char *body,
                                                  int32_t bodySize, char *dst, int32_t dstSize);
/* "iotNotifyActionList", each rule with "notifyInfoList": the three targets
   without their method and snapshot bytes. */
MW_API int32_t get_event_iot_notify_json(const event_notify_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_event_iot_notify_json(const event_notify_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_event_iot_notify_json(event_notify_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* "iotOsdBlankActionList" (the list key says Blank; its entries' keys say
   Blink). */
MW_API int32_t get_event_iot_osd_blink_json(const event_osd_blink_record *in, char *dst,
                                            int32_t dstSize);
MW_API int32_t schema_event_iot_osd_blink_json(const event_osd_blink_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_event_iot_osd_blink_json(event_osd_blink_record *record, const char *body, int32_t bodySize,
                                            char *dst, int32_t dstSize);
/* {"iotAlarmStatus": state}. */
MW_API int32_t get_event_iot_alarm_status_json(const event_iot_alarm_status_record *in, char *dst,
                                               int32_t dstSize);
MW_API int32_t schema_event_iot_alarm_status_json(const event_iot_alarm_status_record *in, char *dst, int32_t dstSize);

/* ===== end iot: alarm actions per rule ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_IOT_H */
