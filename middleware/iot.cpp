/*
 * iot.cpp - the IoT gateway pages: the LoRaWAN radio, device profiles,
 * devices with their sensor readings and threshold alarm rules, and the
 * alarm actions per IoT alarm rule.
 */
#include "internal.h"

using mw::add;

/* ==== radio, profiles, devices and sensor alarms ==== */

namespace {

/* The gateway's four threshold alarm rules. */
constexpr int32_t kIotAlarmRules = 4;

/* How many sensors a stored count asks for, read as a signed value: none for
   0 or below, and never more than a device's 24 sensor slots. */
int32_t sensors_in_use(int32_t sensorNum)
{
    constexpr int32_t kSensorSlots = 24;
    if (sensorNum <= 0)
        return 0;
    return sensorNum < kSensorSlots ? sensorNum : kSensorSlots;
}

/* A device's state and the readings of its sensors in use. */
void add_sensor_info(cJSON *info, const iot_device_entry &device)
{
    add(info, "deviceStatus", device.deviceStatus);
    add(info, "battery", device.battery);
    add(info, "seen", device.seen);
    add(info, "sensorNum", device.sensorNum);
    cJSON *list = mw::array(info, "sensorList");
    const int32_t count = sensors_in_use(device.sensorNum);
    for (int32_t s = 0; s < count; ++s) {
        const iot_sensor_entry &sensor = device.sensors[s];
        cJSON *entry = mw::append_object(list);
        add(entry, "sensorIndex", s);
        add(entry, "sensorId", sensor.sensorId);
        add(entry, "decimalPlace", sensor.decimalPlace);
        add(entry, "osh", sensor.osh);
        add(entry, "osl", sensor.osl);
        add(entry, "portType", sensor.portType);
        add(entry, "sensorName", sensor.sensorName);
        add(entry, "sensorType", sensor.sensorType);
        add(entry, "showOsd", sensor.showOsd);
        add(entry, "sign", sensor.sign);
        add(entry, "unit", sensor.unit);
    }
}

} // namespace

int32_t get_iot_radios_setting_json(const iot_radios_setting_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "iotLoraType", in->iotLoraType);
        add(root, "iotEnable", in->iotEnable);
        add(root, "cloudModeEnable", in->cloudModeEnable);
        add(root, "cloudVerification", in->cloudVerification);
        add(root, "channelPlan", in->channelPlan);
        add(root, "channelMask", in->channelMask);
        add(root, "centerRadio_0", in->centerRadio_0);
        add(root, "centerRadio_1", in->centerRadio_1);
        cJSON *channels = mw::array(root, "radioChannelList");
        for (int32_t c = 0; c < 8; ++c) {
            cJSON *channel = mw::append_object(channels);
            add(channel, "radioChannel", c);
            add(channel, "enable", in->radioChannelEnable[c]);
            add(channel, "radio", in->radioChannelRadio[c]);
            add(channel, "frequency", in->radioChannelFrequency[c]);
        }
        add(root, "loraEnable", in->loraEnable);
        add(root, "loraRadio", in->loraRadio);
        add(root, "loraFrequency", in->loraFrequency);
        add(root, "loraBandWidth", in->loraBandWidth);
        add(root, "loraDataRate", in->loraDataRate);
        add(root, "fskEnable", in->fskEnable);
        add(root, "fskRadio", in->fskRadio);
        add(root, "fskFrequency", in->fskFrequency);
        add(root, "fskBandWidth", in->fskBandWidth);
        add(root, "fskDataRate", in->fskDataRate);
        cJSON *additional = mw::array(root, "additionalChannelList");
        for (int32_t a = 0; a < 6; ++a) {
            cJSON *channel = mw::append_object(additional);
            add(channel, "addChannel", a);
            add(channel, "frequency", in->addChannelFrequency[a]);
            add(channel, "minRate", in->minRate[a]);
            add(channel, "maxRate", in->maxRate[a]);
        }
    });
}

int32_t get_iot_profile_setting_json(const iot_profile_setting_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *list = mw::array(root, "profileList");
        for (int32_t p = 0; p < 64; ++p) {
            const iot_profile_entry &profile = in->profiles[p];
            if (profile.profileState == -1)
                continue; // an empty slot; its number stays visible as a gap
            cJSON *entry = mw::append_object(list);
            add(entry, "index", p);
            add(entry, "name", profile.name);
            add(entry, "maxTxp", profile.maxTxp);
            add(entry, "joinType", profile.joinType);
            add(entry, "classType", profile.classType);
            add(entry, "macVersion", profile.macVersion);
            add(entry, "paramRevision", profile.paramRevision);
            add(entry, "rateRx1", profile.rateRx1);
            add(entry, "rateRx2", profile.rateRx2);
            add(entry, "freRx2", profile.freRx2);
            add(entry, "freList", profile.freList);
            add(entry, "timeoutClassC", profile.timeoutClassC);
        }
    });
}

int32_t get_iot_devices_management_json(const iot_devices_management_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "systemTime", in->systemTime);
        cJSON *list = mw::array(root, "deviceList");
        if (in->devices == nullptr)
            return; // no device table yet: no devices
        for (int32_t d = 0; d < 8; ++d) {
            const iot_device_entry &device = in->devices->device[d];
            if (device.deviceName[0] == '\0')
                continue; // a free slot
            cJSON *entry = mw::append_object(list);
            add(entry, "index", d);
            add(entry, "deviceName", device.deviceName);
            add(entry, "deviceEUI", device.deviceEUI);
            add(entry, "deviceProfile", device.deviceProfile);
            add(entry, "frameCounterEnable", device.frameCounterEnable);
            add(entry, "deviceAddress", device.deviceAddress);
            add(entry, "networkSessionKey", device.networkSessionKey);
            add(entry, "appSessionKey", device.appSessionKey);
            add(entry, "applicationKey", device.applicationKey);
            add(entry, "upLinkFrameCnt", device.upLinkFrameCnt);
            add(entry, "downLinkFrameCnt", device.downLinkFrameCnt);
            add(entry, "deviceType", device.deviceType);
            add(entry, "osdFontSize", device.osdFontSize);
            mw::add_string(entry, "osdFontColor",
                           mw::Text<32>("%d:%d:%d", device.osdFontColor[0], device.osdFontColor[1],
                                       device.osdFontColor[2]));
            add_sensor_info(mw::object(entry, "sensorInfo"), device);
        }
    });
}

int32_t get_iot_alarm_settings_json(const iot_alarm_settings_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "isExistSensor", in->isExistSensor);
        cJSON *rules = mw::array(root, "rulesList");
        for (int32_t r = 0; r < kIotAlarmRules; ++r) {
            cJSON *rule = mw::append_object(rules);
            add(rule, "ruleIndex", r);
            add(rule, "alarmEnable", in->alarmEnable[r]);
            cJSON *devices = mw::array(rule, "deviceList");
            for (int32_t d = 0; d < 8; ++d) {
                cJSON *device = mw::append_object(devices);
                add(device, "deviceIndex", d);
                add(device, "sensorNum", in->sensorNum[d]);
                cJSON *sensors = mw::array(device, "sensorList");
                const int32_t count = sensors_in_use(in->sensorNum[d]);
                for (int32_t s = 0; s < count; ++s) {
                    cJSON *sensor = mw::append_object(sensors);
                    add(sensor, "sensorIndex", s);
                    add(sensor, "sensorEnable", in->sensorEnable[r][d][s]);
                    add(sensor, "maxLimitEnable", in->maxLimitEnable[r][d][s]);
                    add(sensor, "minLimitEnable", in->minLimitEnable[r][d][s]);
                    add(sensor, "maxLimit", in->maxLimit[r][d][s]);
                    add(sensor, "minLimit", in->minLimit[r][d][s]);
                }
            }
            mw::add_schedule_list(rule, in->schedule[r]);
        }
    });
}

/* ==== end radio, profiles, devices and sensor alarms ==== */


/* ==== alarm actions per IoT alarm rule ==== */

namespace {

/* The per-rule action list: "<listKey>" with one object per IoT alarm rule,
   0..3, each led by "ruleIndex" and filled by `fill(object, rule)` with the
   action's keys read at that rule. The records' eventType is not read. */
template <typename Fill>
void add_rule_list(cJSON *root, const char *listKey, Fill &&fill)
{
    cJSON *list = mw::array(root, listKey);
    for (int32_t r = 0; r < kIotAlarmRules; ++r) {
        cJSON *rule = mw::append_object(list);
        add(rule, "ruleIndex", r);
        fill(rule, r);
    }
}

} // namespace

int32_t get_event_iot_record_json(const event_record_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // The storage state is the camera's, not a rule's: reported once.
        add(root, "sdInsert", in->sdInsert[0]);
        add(root, "nasMountStatus", in->nasMountStatus[0]);
        add_rule_list(root, "iotRecordActionList", [in](cJSON *rule, int32_t r) {
            add(rule, "recordEnable", in->recordSettings[r].recordEnable);
            add(rule, "recordWay", in->recordSettings[r].recordWay);
            add(rule, "duration", in->duration[r]);
        });
    });
}

int32_t get_event_iot_snap_json(const event_snop_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "snapSmtpEnable", in->snapSmtpEnable);
        add_rule_list(root, "iotSnapshotActionList", [in](cJSON *rule, int32_t r) {
            add(rule, "snapEnable", in->snapEnable[r]);
            add(rule, "snapWay", in->snapWay[r]);
            add(rule, "interval", in->interval[r]);
            add(rule, "unit", in->unit[r]);
            add(rule, "imageNum", in->imageNum[r]);
            add(rule, "smtpInterval", in->smtpInterval[r]);
        });
    });
}

int32_t get_event_extern_iot_output_json(const event_extern_output_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add_rule_list(root, "iotOutputActionList", [in](cJSON *rule, int32_t r) {
            add(rule, "externOutputEnable", in->externOutputEnable[r]);
            add(rule, "externDuration", in->externDuration[r]);
            add(rule, "externOutputExtEnable", in->externOutputExtEnable[r]);
        });
    });
}

int32_t get_event_iot_play_audio_json(const event_play_audio_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add_rule_list(root, "iotPlayAudioActionList", [in](cJSON *rule, int32_t r) {
            add(rule, "playAudioEnable", in->playAudioEnable[r]);
            add(rule, "audioInterval", in->audioInterval[r]);
            mw::add_schedule_list(rule, in->schedule[r]);
        });
    });
}

int32_t get_event_iot_alarm_sip_phone_json(const event_alarm_sip_phone_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add_rule_list(root, "iotAlarmSipActionList", [in](cJSON *rule, int32_t r) {
            add(rule, "alarmSipPhoneEnable", in->alarmSipPhoneEnable[r]);
        });
    });
}

int32_t get_event_iot_notify_json(const event_notify_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add_rule_list(root, "iotNotifyActionList", [in](cJSON *rule, int32_t r) {
            add(rule, "httpNotifyEnable", in->httpNotifyEnable[r]);
            cJSON *targets = mw::array(rule, "notifyInfoList");
            for (int32_t j = 0; j < 3; ++j) {
                const event_notify_entry &target = in->notifyList[r][j];
                cJSON *entry = mw::append_object(targets);
                add(entry, "index", j);
                add(entry, "enable", target.enable);
                add(entry, "interval", target.interval);
                add(entry, "url", target.url);
                add(entry, "user", target.user);
                add(entry, "password", target.password);
            }
        });
    });
}

int32_t get_event_iot_osd_blink_json(const event_osd_blink_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // "Blank" in the list key is what clients read.
        add_rule_list(root, "iotOsdBlankActionList", [in](cJSON *rule, int32_t r) {
            add(rule, "osdBlinkEnable", in->osdBlinkEnable[r]);
            add(rule, "osdBlinkTime", in->osdBlinkTime[r]);
        });
    });
}

int32_t get_event_iot_alarm_status_json(const event_iot_alarm_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "iotAlarmStatus", in->iotAlarmStatus); });
}

/* ==== end alarm actions per IoT alarm rule ==== */
