#include "catalog.h"

namespace {

// An EU868 gateway: radio 0 at 867.5 MHz, radio 1 at 868.5 MHz.
void fill_radios(iot_radios_setting_record &r)
{
    r.iotLoraType = 1;
    r.iotEnable = 1;
    r.cloudModeEnable = 0;
    put(r.cloudVerification, "7F3A91C2");
    r.channelPlan = 1;
    put(r.channelMask, "00FF");
    put(r.centerRadio_0, "867.5");
    put(r.centerRadio_1, "868.5");
    const char *const frequencies[8] = {"868.1", "868.3", "868.5", "867.1", "867.3", "867.5", "867.7", "867.9"};
    for (int32_t c = 0; c < 8; ++c) {
        r.radioChannelEnable[c] = 1;
        r.radioChannelRadio[c] = c < 3 ? 1 : 0;
        put(r.radioChannelFrequency[c], frequencies[c]);
    }
    r.loraEnable = 1;
    r.loraRadio = 1;
    put(r.loraFrequency, "868.3");
    r.loraBandWidth = 250;
    r.loraDataRate = 7;
    r.fskEnable = 1;
    r.fskRadio = 1;
    put(r.fskFrequency, "868.8");
    r.fskBandWidth = 125;
    r.fskDataRate = 50000;
    const char *const extra[6] = {"869.525", "", "", "", "", ""};
    for (int32_t a = 0; a < 6; ++a) {
        put(r.addChannelFrequency[a], extra[a]);
        r.minRate[a] = 0;
        r.maxRate[a] = a == 0 ? 5 : 0;
    }
}

// Two profiles in slots 0 and 2; slot 1 was deleted.
void fill_profiles(iot_profile_setting_record &r)
{
    for (iot_profile_entry &p : r.profiles)
        p.profileState = -1;
    iot_profile_entry &otaa = r.profiles[0];
    otaa.profileState = 1;
    put(otaa.name, "EU868 class A OTAA");
    otaa.maxTxp = 7;
    otaa.joinType = 0;
    otaa.classType = 0;
    otaa.macVersion = 3;
    otaa.paramRevision = 1;
    otaa.rateRx1 = 0;
    otaa.rateRx2 = 0;
    otaa.freRx2 = 869525000;
    put(otaa.freList, "867100000,867300000,867500000");
    otaa.timeoutClassC = 0;
    iot_profile_entry &classC = r.profiles[2];
    classC.profileState = 0;
    put(classC.name, "EU868 class C ABP");
    classC.maxTxp = 5;
    classC.joinType = 1;
    classC.classType = 2;
    classC.macVersion = 2;
    classC.paramRevision = 0;
    classC.rateRx1 = 1;
    classC.rateRx2 = 3;
    classC.freRx2 = 869525000;
    put(classC.freList, "");
    classC.timeoutClassC = 5;
}

void fill_sensor(iot_sensor_entry &s, uint8_t id, int32_t type, const char *name, const char *unit, uint8_t sign,
                 uint8_t decimals, uint32_t high, uint32_t low)
{
    s.sensorType = type;
    put(s.sensorName, name);
    s.portType = 1;
    s.sensorId = id;
    s.showOsd = 1;
    s.sign = sign;
    s.decimalPlace = decimals;
    s.osh = high;
    s.osl = low;
    put(s.unit, unit);
}

// A climate sensor in slot 0 and a door contact in slot 2.
void fill_device_table(iot_device_table &t)
{
    iot_device_entry &climate = t.device[0];
    climate.deviceType = 3;
    climate.deviceProfile = 0;
    fill_sensor(climate.sensors[0], 1, 1, "Temperature", "degC", 1, 1, 0, 215);
    fill_sensor(climate.sensors[1], 2, 2, "Humidity", "%RH", 0, 0, 0, 58);
    climate.deviceStatus = 1;
    put(climate.deviceName, "Server room climate");
    put(climate.deviceEUI, "A84041000181C3E2");
    put(climate.applicationKey, "2B7E151628AED2A6ABF7158809CF4F3C");
    put(climate.deviceAddress, "26011F4A");
    put(climate.networkSessionKey, "1F2E3D4C5B6A79880F1E2D3C4B5A6978");
    put(climate.appSessionKey, "8899AABBCCDDEEFF0011223344556677");
    climate.frameCounterEnable = 1;
    climate.upLinkFrameCnt = 18344;
    climate.downLinkFrameCnt = 12;
    climate.osdFontColor[0] = 255;
    climate.osdFontColor[1] = 255;
    climate.osdFontColor[2] = 0;
    climate.osdFontSize = 24;
    climate.battery = 87;
    climate.seen = 1795820400;
    climate.sensorNum = 2;

    iot_device_entry &door = t.device[2];
    door.deviceType = 5;
    door.deviceProfile = 2;
    fill_sensor(door.sensors[0], 1, 7, "Door", "", 0, 0, 0, 0);
    door.deviceStatus = 0;
    put(door.deviceName, "Loading bay door");
    put(door.deviceEUI, "70B3D57ED0056A1B");
    put(door.applicationKey, "00000000000000000000000000000000");
    put(door.deviceAddress, "260B3C77");
    put(door.networkSessionKey, "5A6B7C8D9E0F1A2B3C4D5E6F7A8B9C0D");
    put(door.appSessionKey, "0D9C8B7A6F5E4D3C2B1A0F9E8D7C6B5A");
    door.frameCounterEnable = 0;
    door.upLinkFrameCnt = 903;
    door.downLinkFrameCnt = 0;
    door.osdFontColor[0] = 0;
    door.osdFontColor[1] = 192;
    door.osdFontColor[2] = 255;
    door.osdFontSize = 16;
    door.battery = 31;
    door.seen = 1795816800;
    door.sensorNum = 1;
}

// Rule 0 watches the server room's temperature and humidity, rule 1 the
// door; rules 2 and 3 are unused.
void fill_alarm_settings(iot_alarm_settings_record &r)
{
    r.isExistSensor = 1;
    r.sensorNum[0] = 2;
    r.sensorNum[2] = 1;
    r.alarmEnable[0] = 1;
    r.alarmEnable[1] = 1;
    r.sensorEnable[0][0][0] = 1;
    r.maxLimitEnable[0][0][0] = 1;
    r.minLimitEnable[0][0][0] = 1;
    put(r.maxLimit[0][0][0], "27.0");
    put(r.minLimit[0][0][0], "15.0");
    r.sensorEnable[0][0][1] = 1;
    r.maxLimitEnable[0][0][1] = 1;
    put(r.maxLimit[0][0][1], "60");
    put(r.minLimit[0][0][1], "20");
    r.sensorEnable[1][2][0] = 1;
    r.maxLimitEnable[1][2][0] = 1;
    put(r.maxLimit[1][2][0], "0");
    put(r.minLimit[1][2][0], "0");
    for (int32_t rule = 0; rule < 4; ++rule)
        for (int32_t d = 0; d < 7; ++d)
            put(r.schedule[rule][d], rule == 1 && d > 0 && d < 6 ? "00:00-07:00;19:00-24:00" : "00:00-24:00");
}

// The page record points at the gateway's own table.
iot_device_table *device_table()
{
    static iot_device_table t{};
    static const bool filled = (fill_device_table(t), true);
    (void)filled;
    return &t;
}

// The devices page points at the gateway's device table, which lives as long
// as the program.
iot_devices_management_record sample_devices()
{
    return iot_devices_management_record{device_table(), 1795820460};
}

const CatalogEntry entries[] = {
    MW_SETTABLE_ENTRY(iot_radios_setting, "LoRaWAN gateway radio front end and channels",
                      (sample_in_place<iot_radios_setting_record, fill_radios>)),
    MW_SETTABLE_ENTRY(iot_profile_setting, "LoRaWAN device profiles in use",
                      (sample_in_place<iot_profile_setting_record, fill_profiles>)),
    MW_READ_ONLY_ENTRY(iot_devices_management, "registered IoT devices with their sensor readings",
                       (kept<iot_devices_management_record, sample_devices>)),
    MW_SETTABLE_ENTRY(iot_alarm_settings, "threshold alarm rules on the IoT sensors",
                      (sample_in_place<iot_alarm_settings_record, fill_alarm_settings>)),
};

} // namespace

const CatalogGroup catalog_iot_devices = catalog_group("iot_devices", entries);
