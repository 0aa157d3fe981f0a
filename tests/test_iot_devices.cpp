// The IoT gateway: radio front end, device profiles, devices with their
// sensors, and the threshold alarm rules.
#include "support.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;

template <typename Record>
std::string render(int32_t (*serialize)(const Record *, char *, int32_t), const Record &record)
{
    return test::rendered([&](char *dst, int32_t n) { return serialize(&record, dst, n); });
}

TEST(IotRadios, KeysInOrderWithBothFullLists)
{
    const iot_radios_setting_record r{1, 2, 3, "verify", 4, "mask", "867.5", "868.5",
                                      {10, 11, 12, 13, 14, 15, 16, 17}, {-20, -21, -22, -23, -24, -25, -26, -27},
                                      {"f0", "f1", "f2", "f3", "f4", "f5", "f6", "f7"},
                                      5, 6, "lora", 7, 8, 9, 10, "fsk", 11, 12,
                                      {"add0", "add1", "add2", "add3", "", "add5"}, {30, 31, 32, 33, 34, 35},
                                      {40, 41, 42, 43, 44, 45}};
    test::Json doc(render(get_iot_radios_setting_json, r));
    test::expect_members(doc.root(),
                         {N("iotLoraType", 1), N("iotEnable", 2), N("cloudModeEnable", 3),
                          S("cloudVerification", "verify"), N("channelPlan", 4), S("channelMask", "mask"),
                          S("centerRadio_0", "867.5"), S("centerRadio_1", "868.5"), A("radioChannelList"),
                          N("loraEnable", 5), N("loraRadio", 6), S("loraFrequency", "lora"), N("loraBandWidth", 7),
                          N("loraDataRate", 8), N("fskEnable", 9), N("fskRadio", 10), S("fskFrequency", "fsk"),
                          N("fskBandWidth", 11), N("fskDataRate", 12), A("additionalChannelList")});
    ASSERT_EQ(cJSON_GetArraySize(doc["radioChannelList"]), 8);
    for (int c = 0; c < 8; ++c)
        test::expect_members(test::element(doc["radioChannelList"], c),
                             {N("radioChannel", c), N("enable", 10 + c), N("radio", -20 - c),
                              S("frequency", "f" + std::to_string(c))});
    ASSERT_EQ(cJSON_GetArraySize(doc["additionalChannelList"]), 6);
    for (int a = 0; a < 6; ++a)
        test::expect_members(test::element(doc["additionalChannelList"], a),
                             {N("addChannel", a), S("frequency", a == 4 ? "" : "add" + std::to_string(a)),
                              N("minRate", 30 + a), N("maxRate", 40 + a)});
}

TEST(IotProfiles, EmptySlotsAreSkippedWithTheirNumbersKept)
{
    auto r = std::make_unique<iot_profile_setting_record>();
    for (int p = 0; p < 64; ++p)
        r->profiles[p] = {-1, "name", p + 1, p + 2, p + 3, p + 4, p + 5, p + 6, p + 7, -(p + 8), "list", p + 9};
    // Only -1 marks an empty slot: other states, 0 and negative ones included, are listed.
    const struct { int slot; int32_t state; } used[] = {{0, 0}, {5, 1}, {40, -2}, {63, 2}};
    for (const auto &u : used)
        r->profiles[u.slot].profileState = u.state;
    test::Json doc(render(get_iot_profile_setting_json, *r));
    test::expect_members(doc.root(), {A("profileList")});
    ASSERT_EQ(cJSON_GetArraySize(doc["profileList"]), 4);
    for (int i = 0; i < 4; ++i) {
        const int p = used[i].slot;
        test::expect_members(test::element(doc["profileList"], i),
                             {N("index", p), S("name", "name"), N("maxTxp", p + 1), N("joinType", p + 2),
                              N("classType", p + 3), N("macVersion", p + 4), N("paramRevision", p + 5),
                              N("rateRx1", p + 6), N("rateRx2", p + 7), N("freRx2", -(p + 8)), S("freList", "list"),
                              N("timeoutClassC", p + 9)});
    }
}

TEST(IotDevices, NamedDevicesWithTheirSensorsCountedSignedWithinTheSlots)
{
    const struct { int slot; int32_t sensorNum; int listed; } devices[] = {
        {0, 2, 2}, {2, 0, 0}, {3, -1, 0}, {5, 25, 24}, {7, 1, 1}};
    // Numbers distinct per device and sensor, above INT32_MAX where unsigned, above 127 where a byte.
    auto table = std::make_unique<iot_device_table>();
    for (const auto &dev : devices) {
        const int d = dev.slot;
        iot_device_entry &e = table->device[d];
        e = {10 + d, 20 + d, 99, {}, static_cast<uint8_t>(230 + d), "", "0123456789ABCDEF", "AK", "26010001", "NSK",
             "ASK", static_cast<uint8_t>(140 + d), 3000000000u + d, 3100000000u + d, {255, 0, 16}, 3200000000u + d,
             static_cast<uint8_t>(180 + d), 3300000000u + d, dev.sensorNum};
        snprintf(e.deviceName, sizeof e.deviceName, "device %d", d);
        for (int s = 0; s < 24; ++s)
            e.sensors[s] = {99, -(100 * d + s), "name", 3000000000u + s, static_cast<uint8_t>(200 + s),
                            static_cast<uint8_t>(150 + s), static_cast<uint8_t>(160 + s),
                            static_cast<uint8_t>(170 + s), 4000000000u + s, 3500000000u + s, {98, 97}, "unit"};
    }
    const iot_devices_management_record r{table.get(), -5};
    test::Json doc(render(get_iot_devices_management_json, r));
    test::expect_members(doc.root(), {N("systemTime", -5), A("deviceList")});
    ASSERT_EQ(cJSON_GetArraySize(doc["deviceList"]), 5);
    for (int i = 0; i < 5; ++i) {
        const int d = devices[i].slot;
        SCOPED_TRACE(d);
        const cJSON *device = test::element(doc["deviceList"], i);
        test::expect_members(device, {N("index", d), S("deviceName", "device " + std::to_string(d)),
                                      S("deviceEUI", "0123456789ABCDEF"), N("deviceProfile", 20 + d),
                                      N("frameCounterEnable", 140 + d), S("deviceAddress", "26010001"),
                                      S("networkSessionKey", "NSK"), S("appSessionKey", "ASK"),
                                      S("applicationKey", "AK"), N("upLinkFrameCnt", 3000000000.0 + d),
                                      N("downLinkFrameCnt", 3100000000.0 + d), N("deviceType", 10 + d),
                                      N("osdFontSize", 3200000000.0 + d), S("osdFontColor", "255:0:16"),
                                      O("sensorInfo")});
        const cJSON *info = test::member(device, "sensorInfo");
        test::expect_members(info, {N("deviceStatus", 230 + d), N("battery", 180 + d), N("seen", 3300000000.0 + d),
                                    N("sensorNum", devices[i].sensorNum), A("sensorList")});
        ASSERT_EQ(cJSON_GetArraySize(test::member(info, "sensorList")), devices[i].listed);
        for (int s = 0; s < devices[i].listed; ++s)
            test::expect_members(test::element(test::member(info, "sensorList"), s),
                                 {N("sensorIndex", s), N("sensorId", 200 + s), N("decimalPlace", 170 + s),
                                  N("osh", 4000000000.0 + s), N("osl", 3500000000.0 + s),
                                  N("portType", 3000000000.0 + s), S("sensorName", "name"),
                                  N("sensorType", -(100 * d + s)), N("showOsd", 150 + s), N("sign", 160 + s),
                                  S("unit", "unit")});
    }
    // No device table yet: no devices.
    test::Json none(render(get_iot_devices_management_json, iot_devices_management_record{nullptr, 77}));
    test::expect_members(none.root(), {N("systemTime", 77), A("deviceList")});
    EXPECT_EQ(cJSON_GetArraySize(none["deviceList"]), 0);
}

TEST(IotAlarmSettings, FourRulesOfEightDevicesReadByRuleDeviceSensor)
{
    auto r = std::make_unique<iot_alarm_settings_record>();
    r->isExistSensor = 1;
    // Counts above a device's 24 sensor slots list the 24 and are shown as stored.
    const int32_t sensorNum[8] = {2, 0, 3, -1, 25, INT32_MAX, 0, 1};
    std::copy(sensorNum, sensorNum + 8, r->sensorNum);
    for (int rule = 0; rule < 4; ++rule) {
        r->alarmEnable[rule] = 50 + rule;
        for (int d = 0; d < 8; ++d)
            for (int s = 0; s < 24; ++s) {
                const int tag = 1000 * rule + 100 * d + s;
                r->sensorEnable[rule][d][s] = tag;
                r->maxLimitEnable[rule][d][s] = -tag;
                r->minLimitEnable[rule][d][s] = tag + 50;
                snprintf(r->maxLimit[rule][d][s], sizeof r->maxLimit[rule][d][s], "max%d", tag);
                snprintf(r->minLimit[rule][d][s], sizeof r->minLimit[rule][d][s], "min%d", tag);
            }
        snprintf(r->schedule[rule][0], sizeof r->schedule[rule][0], "rule %d", rule); // day 6 empty: still listed
    }
    test::Json doc(render(get_iot_alarm_settings_json, *r));
    test::expect_members(doc.root(), {N("isExistSensor", 1), A("rulesList")});
    ASSERT_EQ(cJSON_GetArraySize(doc["rulesList"]), 4);
    for (int rule = 0; rule < 4; ++rule) {
        SCOPED_TRACE(rule);
        const cJSON *entry = test::element(doc["rulesList"], rule);
        test::expect_members(entry, {N("ruleIndex", rule), N("alarmEnable", 50 + rule), A("deviceList"),
                                     A("scheduleList")});
        const cJSON *devices = test::member(entry, "deviceList");
        ASSERT_EQ(cJSON_GetArraySize(devices), 8);
        for (int d = 0; d < 8; ++d) {
            const cJSON *device = test::element(devices, d);
            test::expect_members(device, {N("deviceIndex", d), N("sensorNum", sensorNum[d]), A("sensorList")});
            const int listed = sensorNum[d] < 1 ? 0 : std::min(sensorNum[d], 24);
            ASSERT_EQ(cJSON_GetArraySize(test::member(device, "sensorList")), listed);
            for (int s = 0; s < listed; ++s) {
                const int tag = 1000 * rule + 100 * d + s;
                test::expect_members(test::element(test::member(device, "sensorList"), s),
                                     {N("sensorIndex", s), N("sensorEnable", tag), N("maxLimitEnable", -tag),
                                      N("minLimitEnable", tag + 50), S("maxLimit", "max" + std::to_string(tag)),
                                      S("minLimit", "min" + std::to_string(tag))});
            }
        }
        const cJSON *days = test::member(entry, "scheduleList");
        ASSERT_EQ(cJSON_GetArraySize(days), 7);
        test::expect_members(test::element(days, 0),
                             {N("scheduleIndex", 0), S("schedule", "rule " + std::to_string(rule))});
        test::expect_members(test::element(days, 6), {N("scheduleIndex", 6), S("schedule", "")});
    }
}

} // namespace
