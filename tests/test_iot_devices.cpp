// The IoT gateway: radio front end, device profiles, devices with their
// sensors, and the threshold alarm rules.
#include "support.h"

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

template <size_t N>
void put(char (&field)[N], const std::string &text)
{
    snprintf(field, N, "%s", text.c_str());
}

TEST(IotRadios, KeysInOrderWithBothFullLists)
{
    auto r = std::make_unique<iot_radios_setting_record>();
    r->iotLoraType = 1;
    r->iotEnable = 2;
    r->cloudModeEnable = 3;
    put(r->cloudVerification, "verify");
    r->channelPlan = 4;
    put(r->channelMask, "mask");
    put(r->centerRadio_0, "867.5");
    put(r->centerRadio_1, "868.5");
    for (int c = 0; c < 8; ++c) {
        r->radioChannelEnable[c] = 10 + c;
        r->radioChannelRadio[c] = -(20 + c);
        put(r->radioChannelFrequency[c], "f" + std::to_string(c));
    }
    r->loraEnable = 5;
    r->loraRadio = 6;
    put(r->loraFrequency, "lora");
    r->loraBandWidth = 7;
    r->loraDataRate = 8;
    r->fskEnable = 9;
    r->fskRadio = 10;
    put(r->fskFrequency, "fsk");
    r->fskBandWidth = 11;
    r->fskDataRate = 12;
    for (int a = 0; a < 6; ++a) {
        put(r->addChannelFrequency[a], a == 4 ? "" : "add" + std::to_string(a));
        r->minRate[a] = 30 + a;
        r->maxRate[a] = 40 + a;
    }
    test::Json doc(render(get_iot_radios_setting_json, *r));
    test::expect_members(doc.root(),
                         {N("iotLoraType", 1), N("iotEnable", 2), N("cloudModeEnable", 3),
                          S("cloudVerification", "verify"), N("channelPlan", 4), S("channelMask", "mask"),
                          S("centerRadio_0", "867.5"), S("centerRadio_1", "868.5"), A("radioChannelList"),
                          N("loraEnable", 5), N("loraRadio", 6), S("loraFrequency", "lora"), N("loraBandWidth", 7),
                          N("loraDataRate", 8), N("fskEnable", 9), N("fskRadio", 10), S("fskFrequency", "fsk"),
                          N("fskBandWidth", 11), N("fskDataRate", 12), A("additionalChannelList")});
    const cJSON *channels = doc["radioChannelList"];
    ASSERT_EQ(cJSON_GetArraySize(channels), 8);
    for (int c = 0; c < 8; ++c)
        test::expect_members(test::element(channels, c), {N("radioChannel", c), N("enable", 10 + c),
                                                          N("radio", -(20 + c)), S("frequency", "f" + std::to_string(c))});
    const cJSON *additional = doc["additionalChannelList"];
    ASSERT_EQ(cJSON_GetArraySize(additional), 6);
    for (int a = 0; a < 6; ++a)
        test::expect_members(test::element(additional, a),
                             {N("addChannel", a), S("frequency", a == 4 ? "" : "add" + std::to_string(a)),
                              N("minRate", 30 + a), N("maxRate", 40 + a)});
}

void fill_profile(iot_profile_entry &p, int32_t state, int slot)
{
    p.profileState = state;
    put(p.name, "profile " + std::to_string(slot));
    p.maxTxp = slot + 1;
    p.joinType = slot + 2;
    p.classType = slot + 3;
    p.macVersion = slot + 4;
    p.paramRevision = slot + 5;
    p.rateRx1 = slot + 6;
    p.rateRx2 = slot + 7;
    p.freRx2 = -(slot + 8);
    put(p.freList, "list " + std::to_string(slot));
    p.timeoutClassC = slot + 9;
}

TEST(IotProfiles, EmptySlotsAreSkippedWithTheirNumbersKept)
{
    auto r = std::make_unique<iot_profile_setting_record>();
    for (int p = 0; p < 64; ++p)
        fill_profile(r->profiles[p], -1, p);
    {
        test::Json doc(render(get_iot_profile_setting_json, *r));
        test::expect_members(doc.root(), {A("profileList")});
        EXPECT_EQ(cJSON_GetArraySize(doc["profileList"]), 0);
    }
    // Only -1 marks an empty slot: other states, 0 and negative ones included, are listed.
    const struct {
        int slot;
        int32_t state;
    } used[] = {{0, 0}, {5, 1}, {40, -2}, {63, 2}};
    for (const auto &u : used)
        r->profiles[u.slot].profileState = u.state;
    test::Json doc(render(get_iot_profile_setting_json, *r));
    const cJSON *list = doc["profileList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    for (int i = 0; i < 4; ++i) {
        const int p = used[i].slot;
        test::expect_members(test::element(list, i),
                             {N("index", p), S("name", "profile " + std::to_string(p)), N("maxTxp", p + 1),
                              N("joinType", p + 2), N("classType", p + 3), N("macVersion", p + 4),
                              N("paramRevision", p + 5), N("rateRx1", p + 6), N("rateRx2", p + 7),
                              N("freRx2", -(p + 8)), S("freList", "list " + std::to_string(p)),
                              N("timeoutClassC", p + 9)});
    }
}

// Sensor s of device d, every emitted field distinct.
void fill_sensor(iot_sensor_entry &e, int d, int s)
{
    e.reserved0 = 99;
    e.sensorType = -(100 * d + s);
    put(e.sensorName, "sensor " + std::to_string(d) + "." + std::to_string(s));
    e.portType = 3000000000u + static_cast<uint32_t>(s);
    e.sensorId = static_cast<uint8_t>(200 + s);
    e.showOsd = static_cast<uint8_t>(150 + s);
    e.sign = static_cast<uint8_t>(160 + s);
    e.decimalPlace = static_cast<uint8_t>(170 + s);
    e.osh = 4000000000u + static_cast<uint32_t>(s);
    e.osl = 3500000000u + static_cast<uint32_t>(s);
    put(e.unit, "unit" + std::to_string(s));
}

std::vector<test::Expected> sensor_members(int d, int s)
{
    return {N("sensorIndex", s),        N("sensorId", 200 + s),       N("decimalPlace", 170 + s),
            N("osh", 4000000000.0 + s), N("osl", 3500000000.0 + s),   N("portType", 3000000000.0 + s),
            S("sensorName", "sensor " + std::to_string(d) + "." + std::to_string(s)),
            N("sensorType", -(100 * d + s)), N("showOsd", 150 + s),   N("sign", 160 + s),
            S("unit", "unit" + std::to_string(s))};
}

void fill_device(iot_device_entry &e, int d, int32_t sensorNum)
{
    e.deviceType = 10 + d;
    e.deviceProfile = 20 + d;
    for (int s = 0; s < 24; ++s)
        fill_sensor(e.sensors[s], d, s);
    e.deviceStatus = static_cast<uint8_t>(230 + d);
    put(e.deviceName, "device " + std::to_string(d));
    put(e.deviceEUI, "0123456789ABCDE" + std::to_string(d));
    put(e.applicationKey, "AK" + std::to_string(d));
    put(e.deviceAddress, "2601000" + std::to_string(d));
    put(e.networkSessionKey, "NSK" + std::to_string(d));
    put(e.appSessionKey, "ASK" + std::to_string(d));
    e.frameCounterEnable = static_cast<uint8_t>(140 + d);
    e.upLinkFrameCnt = 3000000000u + static_cast<uint32_t>(d);
    e.downLinkFrameCnt = 3100000000u + static_cast<uint32_t>(d);
    e.osdFontColor[0] = 255;
    e.osdFontColor[1] = 0;
    e.osdFontColor[2] = 16;
    e.osdFontSize = 3200000000u + static_cast<uint32_t>(d);
    e.battery = static_cast<uint8_t>(180 + d);
    e.seen = 3300000000u + static_cast<uint32_t>(d);
    e.sensorNum = sensorNum;
}

TEST(IotDevices, NamedDevicesWithTheirSensors)
{
    auto table = std::make_unique<iot_device_table>();
    fill_device(table->device[0], 0, 2);
    fill_device(table->device[2], 2, 0);
    fill_device(table->device[7], 7, 1);
    const iot_devices_management_record r{table.get(), -5};
    test::Json doc(render(get_iot_devices_management_json, r));
    test::expect_members(doc.root(), {N("systemTime", -5), A("deviceList")});
    const cJSON *list = doc["deviceList"];
    const struct {
        int slot;
        int sensors;
    } listed[] = {{0, 2}, {2, 0}, {7, 1}};
    ASSERT_EQ(cJSON_GetArraySize(list), 3);
    for (int i = 0; i < 3; ++i) {
        const int d = listed[i].slot;
        SCOPED_TRACE(d);
        const cJSON *device = test::element(list, i);
        test::expect_members(device,
                             {N("index", d), S("deviceName", "device " + std::to_string(d)),
                              S("deviceEUI", "0123456789ABCDE" + std::to_string(d)), N("deviceProfile", 20 + d),
                              N("frameCounterEnable", 140 + d), S("deviceAddress", "2601000" + std::to_string(d)),
                              S("networkSessionKey", "NSK" + std::to_string(d)),
                              S("appSessionKey", "ASK" + std::to_string(d)),
                              S("applicationKey", "AK" + std::to_string(d)), N("upLinkFrameCnt", 3000000000.0 + d),
                              N("downLinkFrameCnt", 3100000000.0 + d), N("deviceType", 10 + d),
                              N("osdFontSize", 3200000000.0 + d), S("osdFontColor", "255:0:16"), O("sensorInfo")});
        const cJSON *info = test::member(device, "sensorInfo");
        test::expect_members(info, {N("deviceStatus", 230 + d), N("battery", 180 + d), N("seen", 3300000000.0 + d),
                                    N("sensorNum", listed[i].sensors), A("sensorList")});
        const cJSON *sensors = test::member(info, "sensorList");
        ASSERT_EQ(cJSON_GetArraySize(sensors), listed[i].sensors);
        for (int s = 0; s < listed[i].sensors; ++s)
            test::expect_members(test::element(sensors, s), sensor_members(d, s));
    }
}

TEST(IotDevices, SensorCountIsSignedAndStopsAtTheSlots)
{
    const struct {
        int32_t count;
        int listed;
    } cases[] = {{-1, 0}, {INT32_MIN, 0}, {24, 24}, {25, 24}, {1000, 24}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.count);
        auto table = std::make_unique<iot_device_table>();
        fill_device(table->device[1], 1, c.count);
        const iot_devices_management_record r{table.get(), 0};
        test::Json doc(render(get_iot_devices_management_json, r));
        const cJSON *info = test::member(test::element(doc["deviceList"], 0), "sensorInfo");
        EXPECT_EQ(test::member(info, "sensorNum")->valuedouble, c.count);
        EXPECT_EQ(cJSON_GetArraySize(test::member(info, "sensorList")), c.listed);
    }
}

TEST(IotDevices, NoDeviceTableGivesAnEmptyList)
{
    const iot_devices_management_record r{nullptr, 77};
    test::Json doc(render(get_iot_devices_management_json, r));
    test::expect_members(doc.root(), {N("systemTime", 77), A("deviceList")});
    EXPECT_EQ(cJSON_GetArraySize(doc["deviceList"]), 0);
}

TEST(IotAlarmSettings, FourRulesOfEightDevicesReadByRuleDeviceSensor)
{
    auto r = std::make_unique<iot_alarm_settings_record>();
    r->isExistSensor = 1;
    const int32_t sensorNum[8] = {2, 0, 3, -1, 0, 0, 0, 1};
    for (int d = 0; d < 8; ++d)
        r->sensorNum[d] = sensorNum[d];
    for (int rule = 0; rule < 4; ++rule) {
        r->alarmEnable[rule] = 50 + rule;
        for (int d = 0; d < 8; ++d)
            for (int s = 0; s < 24; ++s) {
                const int tag = 1000 * rule + 100 * d + s;
                r->sensorEnable[rule][d][s] = tag;
                r->maxLimitEnable[rule][d][s] = -tag;
                r->minLimitEnable[rule][d][s] = tag + 50;
                put(r->maxLimit[rule][d][s], "max" + std::to_string(tag));
                put(r->minLimit[rule][d][s], "min" + std::to_string(tag));
            }
        for (int k = 0; k < 7; ++k)
            put(r->schedule[rule][k], k == 5 ? "" : "rule" + std::to_string(rule) + " day" + std::to_string(k));
    }
    test::Json doc(render(get_iot_alarm_settings_json, *r));
    test::expect_members(doc.root(), {N("isExistSensor", 1), A("rulesList")});
    const cJSON *rules = doc["rulesList"];
    ASSERT_EQ(cJSON_GetArraySize(rules), 4);
    for (int rule = 0; rule < 4; ++rule) {
        SCOPED_TRACE(rule);
        const cJSON *entry = test::element(rules, rule);
        test::expect_members(entry, {N("ruleIndex", rule), N("alarmEnable", 50 + rule), A("deviceList"),
                                     A("scheduleList")});
        const cJSON *devices = test::member(entry, "deviceList");
        ASSERT_EQ(cJSON_GetArraySize(devices), 8);
        for (int d = 0; d < 8; ++d) {
            const cJSON *device = test::element(devices, d);
            test::expect_members(device, {N("deviceIndex", d), N("sensorNum", sensorNum[d]), A("sensorList")});
            const cJSON *sensors = test::member(device, "sensorList");
            const int listed = sensorNum[d] > 0 ? sensorNum[d] : 0;
            ASSERT_EQ(cJSON_GetArraySize(sensors), listed);
            for (int s = 0; s < listed; ++s) {
                const int tag = 1000 * rule + 100 * d + s;
                test::expect_members(test::element(sensors, s),
                                     {N("sensorIndex", s), N("sensorEnable", tag), N("maxLimitEnable", -tag),
                                      N("minLimitEnable", tag + 50), S("maxLimit", "max" + std::to_string(tag)),
                                      S("minLimit", "min" + std::to_string(tag))});
            }
        }
        const cJSON *days = test::member(entry, "scheduleList");
        ASSERT_EQ(cJSON_GetArraySize(days), 7);
        for (int k = 0; k < 7; ++k)
            test::expect_members(test::element(days, k),
                                 {N("scheduleIndex", k),
                                  S("schedule", k == 5 ? "" : "rule" + std::to_string(rule) + " day" + std::to_string(k))});
    }
}

} // namespace
