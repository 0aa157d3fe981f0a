/*
 * iot.cpp - the IoT gateway pages: the LoRaWAN radio, device profiles,
 * devices with their sensor readings and threshold alarm rules, and the
 * alarm actions per IoT alarm rule.
 */
#include "internal.h"

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
template <typename A>
void sensor_info(A &a, const iot_device_entry &device)
{
    a("deviceStatus", device.deviceStatus);
    a("battery", device.battery);
    a("seen", device.seen);
    a("sensorNum", device.sensorNum);
    a.list("sensorList", "sensorIndex", [&](auto &l) {
        const int32_t count = sensors_in_use(device.sensorNum);
        for (int32_t s = 0; s < count; ++s) {
            const iot_sensor_entry &sensor = device.sensors[s];
            l.item(s, [&](auto &entry) {
                entry("sensorId", sensor.sensorId);
                entry("decimalPlace", sensor.decimalPlace);
                entry("osh", sensor.osh);
                entry("osl", sensor.osl);
                entry("portType", sensor.portType);
                entry("sensorName", sensor.sensorName);
                entry("sensorType", sensor.sensorType);
                entry("showOsd", sensor.showOsd);
                entry("sign", sensor.sign);
                entry("unit", sensor.unit);
            });
        }
    });
}

} // namespace

MW_SETTABLE_PAGE(iot_radios_setting, [](auto &a, auto &r) {
    a("iotLoraType", r.iotLoraType);
    a("iotEnable", r.iotEnable);
    a("cloudModeEnable", r.cloudModeEnable);
    a("cloudVerification", r.cloudVerification);
    a("channelPlan", r.channelPlan);
    a("channelMask", r.channelMask);
    a("centerRadio_0", r.centerRadio_0);
    a("centerRadio_1", r.centerRadio_1);
    a.list("radioChannelList", "radioChannel", [&](auto &l) {
        for (int32_t c = 0; c < 8; ++c) {
            l.item(c, [&](auto &channel) {
                channel("enable", r.radioChannelEnable[c]);
                channel("radio", r.radioChannelRadio[c]);
                channel("frequency", r.radioChannelFrequency[c]);
            });
        }
    });
    a("loraEnable", r.loraEnable);
    a("loraRadio", r.loraRadio);
    a("loraFrequency", r.loraFrequency);
    a("loraBandWidth", r.loraBandWidth);
    a("loraDataRate", r.loraDataRate);
    a("fskEnable", r.fskEnable);
    a("fskRadio", r.fskRadio);
    a("fskFrequency", r.fskFrequency);
    a("fskBandWidth", r.fskBandWidth);
    a("fskDataRate", r.fskDataRate);
    a.list("additionalChannelList", "addChannel", [&](auto &l) {
        for (int32_t k = 0; k < 6; ++k) {
            l.item(k, [&](auto &channel) {
                channel("frequency", r.addChannelFrequency[k]);
                channel("minRate", r.minRate[k]);
                channel("maxRate", r.maxRate[k]);
            });
        }
    });
})

MW_SETTABLE_PAGE(iot_profile_setting, [](auto &a, auto &r) {
    a.list("profileList", "index", [&](auto &l) {
        for (int32_t p = 0; p < 64; ++p) {
            auto &profile = r.profiles[p];
            if (profile.profileState == -1)
                continue; // an empty slot; its number stays visible as a gap
            l.item(p, [&](auto &entry) {
                entry("name", profile.name);
                entry("maxTxp", profile.maxTxp);
                entry("joinType", profile.joinType);
                entry("classType", profile.classType);
                entry("macVersion", profile.macVersion);
                entry("paramRevision", profile.paramRevision);
                entry("rateRx1", profile.rateRx1);
                entry("rateRx2", profile.rateRx2);
                entry("freRx2", profile.freRx2);
                entry("freList", profile.freList);
                entry("timeoutClassC", profile.timeoutClassC);
            });
        }
    });
})

/* The gateway's devices with their live state and sensor readings: a report.
   The device table is the gateway's own, reached through a pointer, and the
   time is the gateway's clock; neither is written through this page. */
MW_READ_ONLY_PAGE(iot_devices_management, "live readings", [](auto &a, auto &r) {
    a("systemTime", r.systemTime);
    a.list("deviceList", "index", [&](auto &l) {
        if (r.devices == nullptr)
            return; // no device table yet: no devices
        for (int32_t d = 0; d < 8; ++d) {
            const iot_device_entry &device = r.devices->device[d];
            if (device.deviceName[0] == '\0')
                continue; // a free slot
            l.item(d, [&](auto &entry) {
                entry("deviceName", device.deviceName);
                entry("deviceEUI", device.deviceEUI);
                entry("deviceProfile", device.deviceProfile);
                entry("frameCounterEnable", device.frameCounterEnable);
                entry("deviceAddress", device.deviceAddress);
                entry("networkSessionKey", device.networkSessionKey);
                entry("appSessionKey", device.appSessionKey);
                entry("applicationKey", device.applicationKey);
                entry("upLinkFrameCnt", device.upLinkFrameCnt);
                entry("downLinkFrameCnt", device.downLinkFrameCnt);
                entry("deviceType", device.deviceType);
                entry("osdFontSize", device.osdFontSize);
                entry.derived("osdFontColor", mw::Text<32>("%d:%d:%d", device.osdFontColor[0], device.osdFontColor[1],
                                                         device.osdFontColor[2]));
                entry.object("sensorInfo", [&](auto &info) { sensor_info(info, device); });
            });
        }
    });
})

MW_SETTABLE_PAGE(iot_alarm_settings, [](auto &a, auto &r) {
    a("isExistSensor", r.isExistSensor);
    a.list("rulesList", "ruleIndex", [&](auto &rules) {
        for (int32_t k = 0; k < kIotAlarmRules; ++k) {
            rules.item(k, [&](auto &rule) {
                rule("alarmEnable", r.alarmEnable[k]);
                rule.list("deviceList", "deviceIndex", [&](auto &devices) {
                    for (int32_t d = 0; d < 8; ++d) {
                        devices.item(d, [&](auto &device) {
                            // The sensor count decides how many sensors are
                            // listed, so it is read-only here.
                            device.derived("sensorNum", r.sensorNum[d]);
                            device.list("sensorList", "sensorIndex", [&](auto &sensors) {
                                const int32_t count = sensors_in_use(r.sensorNum[d]);
                                for (int32_t s = 0; s < count; ++s) {
                                    sensors.item(s, [&](auto &sensor) {
                                        sensor("sensorEnable", r.sensorEnable[k][d][s]);
                                        sensor("maxLimitEnable", r.maxLimitEnable[k][d][s]);
                                        sensor("minLimitEnable", r.minLimitEnable[k][d][s]);
                                        sensor("maxLimit", r.maxLimit[k][d][s]);
                                        sensor("minLimit", r.minLimit[k][d][s]);
                                    });
                                }
                            });
                        });
                    }
                });
                mw::schedule_list(rule, r.schedule[k]);
            });
        }
    });
})

/* ==== alarm actions per IoT alarm rule ==== */

namespace {

/* The per-rule action list: "<listKey>" with one object per IoT alarm rule,
   0..3, each led by "ruleIndex" and filled by `fill(object, rule)` with the
   action's keys read at that rule. The records' eventType is not read. */
template <typename A, typename Fill>
void rule_list(A &a, const char *listKey, Fill &&fill)
{
    a.list(mw::Name::fixed(listKey), "ruleIndex", [&](auto &l) {
        for (int32_t k = 0; k < kIotAlarmRules; ++k)
            l.item(k, [&](auto &rule) { fill(rule, k); });
    });
}

} // namespace

MW_SETTABLE_PAGE_OF(event_iot_record, event_record_record, [](auto &a, auto &r) {
    // The storage state is the camera's, not a rule's: reported once.
    a("sdInsert", r.sdInsert[0]);
    a("nasMountStatus", r.nasMountStatus[0]);
    rule_list(a, "iotRecordActionList", [&](auto &rule, int32_t k) {
        rule("recordEnable", r.recordSettings[k].recordEnable);
        rule("recordWay", r.recordSettings[k].recordWay);
        rule("duration", r.duration[k]);
    });
})

MW_SETTABLE_PAGE_OF(event_iot_snap, event_snop_record, [](auto &a, auto &r) {
    a("snapSmtpEnable", r.snapSmtpEnable);
    rule_list(a, "iotSnapshotActionList", [&](auto &rule, int32_t k) {
        rule("snapEnable", r.snapEnable[k]);
        rule("snapWay", r.snapWay[k]);
        rule("interval", r.interval[k]);
        rule("unit", r.unit[k]);
        rule("imageNum", r.imageNum[k]);
        rule("smtpInterval", r.smtpInterval[k]);
    });
})

MW_SETTABLE_PAGE_OF(event_extern_iot_output, event_extern_output_record, [](auto &a, auto &r) {
    rule_list(a, "iotOutputActionList", [&](auto &rule, int32_t k) {
        rule("externOutputEnable", r.externOutputEnable[k]);
        rule("externDuration", r.externDuration[k]);
        rule("externOutputExtEnable", r.externOutputExtEnable[k]);
    });
})

MW_SETTABLE_PAGE_OF(event_iot_play_audio, event_play_audio_record, [](auto &a, auto &r) {
    rule_list(a, "iotPlayAudioActionList", [&](auto &rule, int32_t k) {
        rule("playAudioEnable", r.playAudioEnable[k]);
        rule("audioInterval", r.audioInterval[k]);
        mw::schedule_list(rule, r.schedule[k]);
    });
})

MW_SETTABLE_PAGE_OF(event_iot_alarm_sip_phone, event_alarm_sip_phone_record, [](auto &a, auto &r) {
    rule_list(a, "iotAlarmSipActionList",
              [&](auto &rule, int32_t k) { rule("alarmSipPhoneEnable", r.alarmSipPhoneEnable[k]); });
})

MW_SETTABLE_PAGE_OF(event_iot_notify, event_notify_record, [](auto &a, auto &r) {
    rule_list(a, "iotNotifyActionList", [&](auto &rule, int32_t k) {
        rule("httpNotifyEnable", r.httpNotifyEnable[k]);
        rule.list("notifyInfoList", "index", [&](auto &l) {
            for (int32_t j = 0; j < 3; ++j) {
                auto &target = r.notifyList[k][j];
                l.item(j, [&](auto &entry) {
                    entry("enable", target.enable);
                    entry("interval", target.interval);
                    entry("url", target.url);
                    entry("user", target.user);
                    entry("password", target.password);
                });
            }
        });
    });
})

MW_SETTABLE_PAGE_OF(event_iot_osd_blink, event_osd_blink_record, [](auto &a, auto &r) {
    // "Blank" in the list key is what clients read.
    rule_list(a, "iotOsdBlankActionList", [&](auto &rule, int32_t k) {
        rule("osdBlinkEnable", r.osdBlinkEnable[k]);
        rule("osdBlinkTime", r.osdBlinkTime[k]);
    });
})

MW_READ_ONLY_PAGE(event_iot_alarm_status, "live alarm states", [](auto &a, auto &r) { a("iotAlarmStatus", r.iotAlarmStatus); })
