#include "catalog.h"

namespace {

// A four-megapixel bullet camera with analytics, plate recognition and an
// audio input, seen on its information page after eleven days of running.
system_information_record sample_information()
{
    system_information_record r{};
    put(r.model, "IPC-B4240-LPR");
    put(r.mac, "00:1c:27:4a:9e:31");
    put(r.firmwareVersion, "V5.2.14 build 240611");
    put(r.systemBootTime, "2026-11-11 06:42:17");
    r.wireless = 0;
    r.dhcpEnable = 0;
    put(r.ipaddress, "192.168.1.64");
    put(r.netmask, "255.255.255.0");
    put(r.gateway, "192.168.1.1");
    r.pppoeEnable = 0;
    put(r.dns0, "192.168.1.1");
    put(r.dns1, "8.8.8.8");
    r.ddnsEnable = 1;
    put(r.ddnsHostName, "gate-north.example-ddns.net");
    r.ddnsStatus = 1;
    r.wirelessEnable = 0;
    put(r.deviceName, "Gate North Entry");
    put(r.deviceLacation, "Car park, north gate");
    put(r.deviceInformation, "Entry lane 1");
    put(r.deviceVender, "Northfield Vision");
    put(r.hardwareVersion, "HW-B42-03");
    put(r.kernelVersion, "4.9.37 #1 SMP PREEMPT");
    put(r.sdkVersion, "SDK 3.1.8");
    r.aiNnieStatus = 1;
    r.ioSupport = 1;
    r.audioSupport = 1;
    r.audioMode = 0;
    r.audioType = 2;
    r.audioLineInput = 1;
    r.alarmInputSupport = 1;
    r.alarmOutputSupport = 1;
    r.fisheyeSupport = 0;
    r.vcaSupport = 1;
    r.vcaType = 3;
    r.anrSupport = 1;
    r.speakerSupport = 1;
    r.lprSupport = 1;
    r.lprVersion = 4;
    r.radarSupport = 0;
    r.upgrade = 1;
    r.faceSupport = 0;
    r.polygonFaceSupport = 0;
    r.irSensor = 1;
    r.dnSensitivitySupport = 1;
    r.croproiSupport = 1;
    r.dnRefocusSupport = 0;
    r.reduceStutteringSupport = 1;
    r.polygonSupport = 1;
    r.localDisplaySupport = 0;
    r.fanWorkingModeSupport = 0;
    r.smartIrLimitType = 1;
    r.smartIrLimitSum = 3;
    r.audioFileManagerSupport = 1;
    r.humanVehicleSupport = 1;
    r.manualSpeedSupport = 0;
    put(r.snCode, "NV4240B2611000387");
    r.mosaicSupport = 1;
    r.antiShakeSupport = 0;
    r.corridorModeSupport = 1;
    r.imageRotationSupport = 1;
    r.humanDetectionSupport = 1;
    r.regionalPeopleSupport = 1;
    r.heatMapSupport = 1;
    r.p2pSupport = 1;
    r.ptzSupport = 0;
    put(r.zkChip, "quad-core A53 1.2 GHz, 2 TOPS NPU");
    r.runtime = 953281;
    r.adminoptions = 7;
    put(r.adminuser, "admin");
    r.miscAnonymous = 0;
    r.pwdStrengthType = 2;
    r.viewerdef = 1;
    r.viewerOptions = 3;
    r.oemIndex = 0;
    r.audioAlarmSupport = 1;
    r.ledSupport = 1;
    r.ledGroupSupport = 2;
    r.ptzMaxZoomTimes = 0;
    r.realPtzSupport = 0;
    r.isSpeedDm = 0;
    r.iotSupport = 0;
    r.supportOsdLarger = 1;
    r.autoTrackSupport = 0;
    r.smartStreamSupportInOtherStream = 1;
    r.wiperSupport = 0;
    r.oemupdateonline = 1;
    r.whiteLedSupport = 1;
    r.defogSupport = 1;
    r.manualTrackingSupport = 0;
    r.manualTrackingDisable = 0;
    r.threeDPositionSupport = 0;
    r.rs485Support = 1;
    r.ptzStatusSupport = 0;
    r.heaterSupport = 0;
    r.ntFaceMosaicSupport = 0;
    return r;
}

const CatalogEntry entries[] = {
    {"get_system_information_json", "device identity, network state and supported features",
     [](char *dst, int32_t n) {
         static const system_information_record r = sample_information();
         return get_system_information_json(&r, dst, n);
     }},
    {"get_system_model_json", "vendor, product name and model",
     [](char *dst, int32_t n) {
         static const system_model_record r = [] {
             system_model_record m{};
             put(m.devicevEnder, "Northfield Vision");
             put(m.name, "Bullet 4MP LPR");
             put(m.deviceModel, "IPC-B4240-LPR");
             return m;
         }();
         return get_system_model_json(&r, dst, n);
     }},
    {"get_system_upgrade_info_json", "notice of a newer firmware",
     [](char *dst, int32_t n) {
         static const system_upgrade_info_record r = [] {
             system_upgrade_info_record u{};
             put(u.upgradeInfo, "V5.2.16 is available: improves night-time plate reading and fixes RTSP "
                                "reconnection after a network loss.");
             return u;
         }();
         return get_system_upgrade_info_json(&r, dst, n);
     }},
    {"get_system_online_heart_json", "heartbeat answer with the running software version",
     [](char *dst, int32_t n) {
         static const system_online_heart_record r = [] {
             system_online_heart_record h{};
             put(h.softversion, "V5.2.14 build 240611");
             return h;
         }();
         return get_system_online_heart_json(&r, dst, n);
     }},
};

} // namespace

const CatalogGroup catalog_system = catalog_group("system", entries);
