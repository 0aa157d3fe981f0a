// The device-information documents, key by key.
#include "support.h"

#include <cstdio>
#include <cstring>

namespace {

using test::N;
using test::S;

template <size_t Size>
void put(char (&field)[Size], const char *text)
{
    snprintf(field, Size, "%s", text);
}

// Every read field holds its own value: numbers count up in record order
// (with a negative, the largest and the smallest int32 among them), texts
// name their field. The words no key reads hold 9999.
system_information_record distinct_record()
{
    system_information_record r;
    memset(&r, 0, sizeof r);
    put(r.model, "model-t");
    put(r.mac, "mac-t");
    put(r.firmwareVersion, "firmwareVersion-t");
    put(r.systemBootTime, "systemBootTime-t");
    r.wireless = -1;
    r.dhcpEnable = 102;
    put(r.ipaddress, "ipaddress-t");
    put(r.netmask, "netmask-t");
    put(r.gateway, "gateway-t");
    r.pppoeEnable = 103;
    put(r.dns0, "dns0-t");
    put(r.dns1, "dns1-t");
    r.ddnsEnable = 104;
    put(r.ddnsHostName, "ddnsHostName-t");
    r.ddnsStatus = 105;
    r.wirelessEnable = 106;
    put(r.deviceName, "deviceName-t");
    put(r.deviceLacation, "deviceLacation-t");
    put(r.deviceInformation, "deviceInformation-t");
    put(r.deviceVender, "deviceVender-t");
    put(r.hardwareVersion, "hardwareVersion-t");
    put(r.kernelVersion, "kernelVersion-t");
    put(r.sdkVersion, "sdkVersion-t");
    int32_t *first_words[] = {
        &r.aiNnieStatus, &r.ioSupport, &r.audioSupport, &r.audioMode, &r.audioType, &r.audioLineInput,
        &r.alarmInputSupport, &r.alarmOutputSupport, &r.fisheyeSupport, &r.vcaSupport, &r.vcaType,
        &r.anrSupport, &r.speakerSupport, &r.lprSupport, &r.lprVersion, &r.radarSupport, &r.upgrade,
        &r.faceSupport, &r.polygonFaceSupport, &r.irSensor, &r.dnSensitivitySupport, &r.croproiSupport,
        &r.dnRefocusSupport, &r.reduceStutteringSupport, &r.polygonSupport, &r.localDisplaySupport,
        &r.fanWorkingModeSupport, &r.smartIrLimitType, &r.smartIrLimitSum, &r.audioFileManagerSupport,
        &r.humanVehicleSupport, &r.manualSpeedSupport,
    };
    int32_t value = 200;
    for (int32_t *word : first_words)
        *word = value++; // 200 .. 231
    put(r.snCode, "snCode-t");
    int32_t *middle_words[] = {&r.mosaicSupport, &r.antiShakeSupport, &r.corridorModeSupport,
                               &r.imageRotationSupport, &r.humanDetectionSupport, &r.regionalPeopleSupport,
                               &r.heatMapSupport, &r.p2pSupport, &r.ptzSupport};
    value = 300;
    for (int32_t *word : middle_words)
        *word = value++; // 300 .. 308
    put(r.zkChip, "zkChip-t");
    r.runtime = INT32_MAX;
    r.adminoptions = 401;
    put(r.adminuser, "adminuser-t");
    int32_t *last_words[] = {
        &r.miscAnonymous, &r.pwdStrengthType, &r.viewerdef, &r.viewerOptions, &r.oemIndex,
        &r.audioAlarmSupport, &r.ledSupport, &r.ledGroupSupport, &r.ptzMaxZoomTimes, &r.realPtzSupport,
        &r.isSpeedDm, &r.reserved0, &r.reserved1, &r.iotSupport, &r.supportOsdLarger, &r.autoTrackSupport,
        &r.smartStreamSupportInOtherStream, &r.wiperSupport, &r.oemupdateonline, &r.whiteLedSupport,
        &r.defogSupport, &r.manualTrackingSupport, &r.manualTrackingDisable, &r.threeDPositionSupport,
        &r.rs485Support, &r.ptzStatusSupport, &r.heaterSupport, &r.reserved2, &r.reserved3,
        &r.ntFaceMosaicSupport,
    };
    value = 500;
    for (int32_t *word : last_words)
        *word = value++; // 500 .. 529
    r.reserved0 = r.reserved1 = r.reserved2 = r.reserved3 = 9999;
    r.ntFaceMosaicSupport = INT32_MIN;
    return r;
}

std::string render_information(const system_information_record &r)
{
    return test::rendered([&r](char *dst, int32_t n) { return get_system_information_json(&r, dst, n); });
}

TEST(SystemInformation, EveryMemberInEmissionOrder)
{
    const system_information_record r = distinct_record();
    test::Json doc(render_information(r));
    test::expect_members(doc.root(), {
        S("model", "model-t"), S("mac", "mac-t"), S("firmwareVersion", "firmwareVersion-t"),
        S("systemBootTime", "systemBootTime-t"), N("wireless", -1), N("dhcpEnable", 102),
        S("ipaddress", "ipaddress-t"), S("netmask", "netmask-t"), S("gateway", "gateway-t"),
        N("pppoeEnable", 103), S("dns0", "dns0-t"), S("dns1", "dns1-t"), N("ddnsEnable", 104),
        S("ddnsHostName", "ddnsHostName-t"), N("ddnsStatus", 105), N("wirelessEnable", 106),
        S("deviceName", "deviceName-t"), S("deviceLacation", "deviceLacation-t"),
        S("deviceInformation", "deviceInformation-t"), S("deviceVender", "deviceVender-t"),
        S("hardwareVersion", "hardwareVersion-t"), S("kernelVersion", "kernelVersion-t"),
        S("sdkVersion", "sdkVersion-t"),
        N("aiNnieStatus", 200), N("ioSupport", 201), N("audioSupport", 202), N("audioMode", 203),
        N("audioType", 204), N("audioLineInput", 205), N("alarmInputSupport", 206),
        N("alarmOutputSupport", 207), N("fisheyeSupport", 208), N("vcaSupport", 209), N("vcaType", 210),
        N("anrSupport", 211), N("speakerSupport", 212), N("lprSupport", 213), N("lprVersion", 214),
        N("radarSupport", 215), N("upgrade", 216), N("faceSupport", 217), N("polygonFaceSupport", 218),
        N("irSensor", 219), N("dnSensitivitySupport", 220), N("croproiSupport", 221),
        N("dnRefocusSupport", 222), N("reduceStutteringSupport", 223), N("polygonSupport", 224),
        N("localDisplaySupport", 225), N("fanWorkingModeSupport", 226), N("smartIrLimitType", 227),
        N("smartIrLimitSum", 228), N("audioFileManagerSupport", 229), N("humanVehicleSupport", 230),
        N("manualSpeedSupport", 231),
        S("snCode", "snCode-t"),
        N("mosaicSupport", 300), N("antiShakeSupport", 301), N("corridorModeSupport", 302),
        N("imageRotationSupport", 303), N("humanDetectionSupport", 304), N("regionalPeopleSupport", 305),
        N("heatMapSupport", 306),
        S("zkChip", "zkChip-t"), N("runtime", 2147483647),
        N("p2pSupport", 307), N("ptzSupport", 308), // stored before zkChip, written after runtime
        N("adminoptions", 401), S("adminuser", "adminuser-t"),
        N("miscAnonymous", 500), N("pwdStrengthType", 501), N("viewerdef", 502), N("viewerOptions", 503),
        N("oemIndex", 504), N("audioAlarmSupport", 505), N("ledSupport", 506), N("ledGroupSupport", 507),
        N("ptzMaxZoomTimes", 508), N("realPtzSupport", 509),
        N("iotSupport", 513), N("isSpeedDm", 510), // stored after isSpeedDm, written before it
        N("supportOsdLarger", 514), N("isFaceCustomizeModeExists", 0),
        N("autoTrackSupport", 515), N("smartStreamSupportInOtherStream", 516), N("wiperSupport", 517),
        N("oemupdateonline", 518), N("whiteLedSupport", 519), N("defogSupport", 520),
        N("manualTrackingSupport", 521), N("manualTrackingDisable", 522), N("3DPositionSupport", 523),
        N("rs485Support", 524), N("ptzStatusSupport", 525), N("heaterSupport", 526),
        N("ntFaceMosaicSupport", -2147483648.0),
    });
    EXPECT_EQ(test::keys(doc.root()).size(), 96u);
}

TEST(SystemInformation, ZeroRecord)
{
    system_information_record r;
    memset(&r, 0, sizeof r);
    test::Json doc(render_information(r));
    int numbers = 0, strings = 0;
    for (const cJSON *m = doc.root()->child; m != nullptr; m = m->next) {
        if (cJSON_IsNumber(m)) {
            ++numbers;
            EXPECT_EQ(m->valuedouble, 0) << m->string;
        } else {
            ASSERT_TRUE(cJSON_IsString(m)) << m->string;
            ++strings;
            EXPECT_STREQ(m->valuestring, "") << m->string;
        }
    }
    EXPECT_EQ(numbers, 76);
    EXPECT_EQ(strings, 20);
}

TEST(SystemInformation, IotSupportPrintedBeforeIsSpeedDm)
{
    system_information_record r;
    memset(&r, 0, sizeof r);
    r.isSpeedDm = 5;
    r.iotSupport = 6;
    const std::string text = render_information(r);
    const size_t iot = text.find("\t\"iotSupport\":\t6,\n");
    const size_t speed = text.find("\t\"isSpeedDm\":\t5,\n");
    ASSERT_NE(iot, std::string::npos);
    ASSERT_NE(speed, std::string::npos);
    EXPECT_LT(iot, speed);
}

TEST(SystemInformation, ChipTextToTheEndOfItsArray)
{
    system_information_record r;
    memset(&r, 0, sizeof r);
    memset(r.zkChip, 'c', 255); // 255 characters and the NUL
    test::Json full(render_information(r));
    EXPECT_EQ(std::string(test::member(full.root(), "zkChip")->valuestring), std::string(255, 'c'));
    // A caller error, an unterminated text: nothing past the array is read.
    memset(r.zkChip, 'c', 256);
    r.runtime = 0x41414141; // would read as "AAAA" if the text ran on
    test::Json cut(render_information(r));
    EXPECT_EQ(std::string(test::member(cut.root(), "zkChip")->valuestring), std::string(256, 'c'));
}

TEST(SystemSmallDocuments, KeysAndValues)
{
    system_model_record model;
    memset(&model, 0, sizeof model);
    put(model.devicevEnder, "vendor-t");
    put(model.name, "name-t");
    put(model.deviceModel, "deviceModel-t");
    test::Json m(test::rendered([&](char *d, int32_t n) { return get_system_model_json(&model, d, n); }));
    test::expect_members(m.root(), {S("devicevEnder", "vendor-t"), S("name", "name-t"),
                                    S("deviceModel", "deviceModel-t")});

    system_upgrade_info_record upgrade;
    put(upgrade.upgradeInfo, "V2 \"quoted\"\nnext line");
    test::Json u(test::rendered([&](char *d, int32_t n) { return get_system_upgrade_info_json(&upgrade, d, n); }));
    test::expect_members(u.root(), {S("upgradeInfo", "V2 \"quoted\"\nnext line")});

    system_online_heart_record heart;
    put(heart.softversion, "V5.2.14");
    const std::string text =
        test::rendered([&](char *d, int32_t n) { return get_system_online_heart_json(&heart, d, n); });
    EXPECT_EQ(text, "{\n\t\"softversion\":\t\"V5.2.14\"\n}");
}

} // namespace
