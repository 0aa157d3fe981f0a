/*
 * system.cpp - the system pages: device information, settings and support
 * information.
 */
#include "internal.h"
#include "zk_platform.h"

/* ---- device information ---- */

MW_READ_ONLY_PAGE(system_information, "device information", [](auto &a, auto &r) {
    a("model", r.model);
    a("mac", r.mac);
    a("firmwareVersion", r.firmwareVersion);
    a("systemBootTime", r.systemBootTime);
    a("wireless", r.wireless);
    a("dhcpEnable", r.dhcpEnable);
    a("ipaddress", r.ipaddress);
    a("netmask", r.netmask);
    a("gateway", r.gateway);
    a("pppoeEnable", r.pppoeEnable);
    a("dns0", r.dns0);
    a("dns1", r.dns1);
    a("ddnsEnable", r.ddnsEnable);
    a("ddnsHostName", r.ddnsHostName);
    a("ddnsStatus", r.ddnsStatus);
    a("wirelessEnable", r.wirelessEnable);
    a("deviceName", r.deviceName);
    a("deviceLacation", r.deviceLacation);
    a("deviceInformation", r.deviceInformation);
    a("deviceVender", r.deviceVender);
    a("hardwareVersion", r.hardwareVersion);
    a("kernelVersion", r.kernelVersion);
    a("sdkVersion", r.sdkVersion);
    a("aiNnieStatus", r.aiNnieStatus);
    a("ioSupport", r.ioSupport);
    a("audioSupport", r.audioSupport);
    a("audioMode", r.audioMode);
    a("audioType", r.audioType);
    a("audioLineInput", r.audioLineInput);
    a("alarmInputSupport", r.alarmInputSupport);
    a("alarmOutputSupport", r.alarmOutputSupport);
    a("fisheyeSupport", r.fisheyeSupport);
    a("vcaSupport", r.vcaSupport);
    a("vcaType", r.vcaType);
    a("anrSupport", r.anrSupport);
    a("speakerSupport", r.speakerSupport);
    a("lprSupport", r.lprSupport);
    a("lprVersion", r.lprVersion);
    a("radarSupport", r.radarSupport);
    a("upgrade", r.upgrade);
    a("faceSupport", r.faceSupport);
    a("polygonFaceSupport", r.polygonFaceSupport);
    a("irSensor", r.irSensor);
    a("dnSensitivitySupport", r.dnSensitivitySupport);
    a("croproiSupport", r.croproiSupport);
    a("dnRefocusSupport", r.dnRefocusSupport);
    a("reduceStutteringSupport", r.reduceStutteringSupport);
    a("polygonSupport", r.polygonSupport);
    a("localDisplaySupport", r.localDisplaySupport);
    a("fanWorkingModeSupport", r.fanWorkingModeSupport);
    a("smartIrLimitType", r.smartIrLimitType);
    a("smartIrLimitSum", r.smartIrLimitSum);
    a("audioFileManagerSupport", r.audioFileManagerSupport);
    a("humanVehicleSupport", r.humanVehicleSupport);
    a("manualSpeedSupport", r.manualSpeedSupport);
    a("snCode", r.snCode);
    a("mosaicSupport", r.mosaicSupport);
    a("antiShakeSupport", r.antiShakeSupport);
    a("corridorModeSupport", r.corridorModeSupport);
    a("imageRotationSupport", r.imageRotationSupport);
    a("humanDetectionSupport", r.humanDetectionSupport);
    a("regionalPeopleSupport", r.regionalPeopleSupport);
    a("heatMapSupport", r.heatMapSupport);
    a("zkChip", r.zkChip);
    a("runtime", r.runtime);
    a("p2pSupport", r.p2pSupport);     // after runtime, though stored before zkChip
    a("ptzSupport", r.ptzSupport);
    a("adminoptions", r.adminoptions);
    a("adminuser", r.adminuser);
    a("miscAnonymous", r.miscAnonymous);
    a("pwdStrengthType", r.pwdStrengthType);
    a("viewerdef", r.viewerdef);
    a("viewerOptions", r.viewerOptions);
    a("oemIndex", r.oemIndex);
    a("audioAlarmSupport", r.audioAlarmSupport);
    a("ledSupport", r.ledSupport);
    a("ledGroupSupport", r.ledGroupSupport);
    a("ptzMaxZoomTimes", r.ptzMaxZoomTimes);
    a("realPtzSupport", r.realPtzSupport);
    a("iotSupport", r.iotSupport);     // before isSpeedDm, though stored after it
    a("isSpeedDm", r.isSpeedDm);
    a("supportOsdLarger", r.supportOsdLarger);
    a.derived("isFaceCustomizeModeExists", 0); // this firmware has no custom face mode
    a("autoTrackSupport", r.autoTrackSupport);
    a("smartStreamSupportInOtherStream", r.smartStreamSupportInOtherStream);
    a("wiperSupport", r.wiperSupport);
    a("oemupdateonline", r.oemupdateonline);
    a("whiteLedSupport", r.whiteLedSupport);
    a("defogSupport", r.defogSupport);
    a("manualTrackingSupport", r.manualTrackingSupport);
    a("manualTrackingDisable", r.manualTrackingDisable);
    a("3DPositionSupport", r.threeDPositionSupport);
    a("rs485Support", r.rs485Support);
    a("ptzStatusSupport", r.ptzStatusSupport);
    a("heaterSupport", r.heaterSupport);
    a("ntFaceMosaicSupport", r.ntFaceMosaicSupport);
    
})

MW_READ_ONLY_PAGE(system_model, "the unit's model", [](auto &a, auto &r) {
    a("devicevEnder", r.devicevEnder);
    a("name", r.name);
    a("deviceModel", r.deviceModel);
})

MW_READ_ONLY_PAGE(system_upgrade_info, "notice from the update service", [](auto &a, auto &r) {
    a("upgradeInfo", r.upgradeInfo);
})

MW_READ_ONLY_PAGE(system_online_heart, "live heartbeat", [](auto &a, auto &r) {
    a("softversion", r.softversion);
})

/* ==== settings and support information ==== */

MW_SETTABLE_PAGE(system_date_time, [](auto &a, auto &r) {
    a("year", r.year);
    a("month", r.month);
    a("day", r.day);
    a("hour", r.hour);
    a("minute", r.minute);
    a("second", r.second);
    a("timeZoneTz", r.timeZoneTz);
    a("zoneNameTz", r.zoneNameTz);
    a("dayLight", r.dayLight);
    a("timeType", r.timeType);
    a("ntpServer", r.ntpServer);
    a("ntpSyncEnable", r.ntpSyncEnable);
    a("ntpInterval", r.ntpInterval);
})

MW_SETTABLE_PAGE(system_user_anonymous, [](auto &a, auto &r) {
    a("miscAnonymous", r.miscAnonymous);
})

MW_SETTABLE_PAGE(system_user, [](auto &a, auto &r) {
    a("miscAnonymous", r.miscAnonymous);
    // Accounts are listed in slot order without an index: a request's
    // elements match the listed accounts by place.
    a.list("userList", nullptr, [&](auto &l) {
        for (auto &user : r.users) {
            if (user.userName[0] == '\0')
                continue; // an unused account slot
            l.item([&](auto &item) {
                item("userName", user.userName);
                item("userLevel", user.userLevel);
                item("privilege", user.privilege);
                // The module keys are the platform's names, whatever module
                // text the account's configuration holds.
                item.object("newModulePermission", [&](auto &permissions) {
                    for (int32_t m = 0; m < 4; ++m)
                        permissions(mw::Name::copied(get_module_permission_string(m)), user.modulePermissions[m].permission);
                });
            });
        }
    });
})

MW_SETTABLE_PAGE(system_auto_reboot, [](auto &a, auto &r) {
    a("rebootEnable", r.rebootEnable);
    a("rebootWeekday", r.rebootWeekday);
    a("rebootHour", r.rebootHour);
    a("rebootMin", r.rebootMin);
    a("rebootSec", r.rebootSec);
})

namespace {
/* No key: nothing to report, and the caller's buffer stays as it was. */
bool has_a_key(void *const *inputs) { return static_cast<const system_aes_key_record *>(inputs[0])->key[0] != '\0'; }
} // namespace

MW_READ_ONLY_RECORD_PAGE(, system_aes_key, system_aes_key_record, "the camera's own key", nullptr,
                         MW_RULES(has_a_key, nullptr, mw::kQuietWhenHidden), [](auto &a, auto &r) {
    a("key", r.key);
    a("keyId", r.keyId);
})

MW_SETTABLE_PAGE(system_sqa_info, [](auto &a, auto &r) {
    // Anything but 1 is off, and an off page shows nothing else.
    a.derived("sqaEnable", r.sqaEnable == 1 ? 1 : 0);
    a.when(r.sqaEnable == 1, [&](auto &o) {
        for (int i = 0; i < 3; ++i) {
            auto &question = r.questions[i];
            o(mw::Key<30>("sqaType_%d", i), question.sqaType);
            o(mw::Key<30>("sqaQuestion_%d", i), question.sqaQuestion);
            o.derived_text(mw::Key<30>("sqaAnswer_%d", i), ""); // answers never leave the camera
        }
    });
})

MW_SETTABLE_PAGE(system_water_mark, [](auto &a, auto &r) {
    a("waterMarkEnable", r.waterMarkEnable);
    a("waterMarkString", r.waterMarkString);
})

MW_SETTABLE_PAGE(system_access_list, [](auto &a, auto &r) {
    a("maxConcurrent", r.maxConcurrent);
    a("filterEnable", r.filterEnable);
    a("filterType", r.filterType);
    a.list("accessList", "accessIndex", [&](auto &l) {
        int32_t written = 0; // entries are numbered as written, not by slot
        for (int i = 0; i < 10; ++i) {
            if (r.accessAddress[i][0] == '\0')
                continue;
            l.item(written++, [&](auto &item) {
                item("accessType", r.accessType[i]);
                item("accessAddress", r.accessAddress[i]);
            });
        }
    });
})

MW_SETTABLE_PAGE(system_ssh, [](auto &a, auto &r) {
    a("sshEnable", r.sshEnable);
    a("sshPort", r.sshPort);
})

MW_SETTABLE_PAGE(system_notify, [](auto &a, auto &r) {
    a("keep", r.keep);
    a("md", r.md);
    a("recording", r.recording);
    a("input", r.input);
    a("output", r.output);
})

MW_SETTABLE_PAGE(system_auto_export, [](auto &a, auto &r) {
    a("autoExportEnable", r.autoExportEnable);
    a("autoExportMethod", r.autoExportMethod);
    a("autoExportWeekday", r.autoExportWeekday);
    a("autoExportTime", r.autoExportTime);
    a("autoExportRange", r.autoExportRange);
})

MW_SETTABLE_PAGE(system_authority, [](auto &a, auto &r) {
    a("userLevel", r.userLevel);
    a("privilege", r.privilege);
    a("userId", r.userId);
})

MW_SETTABLE_PAGE(system_remote_logs, [](auto &a, auto &r) {
    a("remoteLogsEnable", r.remoteLogsEnable);
    a("remoteLogsIpAddress", r.remoteLogsIpAddress);
    a("remoteLogsPort", r.remoteLogsPort);
})

/* ---- support information ---- */

MW_READ_ONLY_PAGE(system_support_info, "support report", [](auto &a, auto &r) {
    a("lessAlarmAudio", r.lessAlarmAudio);
    a("alarmOutput", r.alarmOutput);
    a("supportWhiteledAdjust", r.supportWhiteledAdjust);
    a("lprShowAlgoDebug", r.lprShowAlgoDebug);
    a("isTestVideo", r.isTestVideo);
    a("httpPort", r.httpPort);
    a("upnpEnable", r.upnpEnable);
    a("upnpHttpPort", r.upnpHttpPort);
    a("upnpHttpsPort", r.upnpHttpsPort);
    a("upnpRtspPort", r.upnpRtspPort);
    a("ddnsenable", r.ddns.enable);
    a("ddnshttpport", r.ddns.httpPort);
    a("ddnsrtspport", r.ddns.rtspPort);
    a("ddnsdomain", r.ddns.provider); // the pages build links from the provider's domain
    a("outputNum", r.outputNum);
    a.derived_text("pluginVersion", "1.0.12");
    a("curmaxconn", r.curmaxconn);
    a("lprRedLightSupport", r.lprRedLightSupport);
    a("mainRtspPort", r.mainRtspPort);
    a("isSupportCellular", r.isSupportCellular);
    a("isSupportIndependentGps", r.isSupportIndependentGps);
    a("isCompositeEnable", r.isCompositeEnable);
    a("radarSupport", r.radarSupport);
    a("deviceClass", r.deviceClass);
    a.object("upgradeInfo", [&](auto &upgrade) {
        upgrade("updateState", r.updateState);
        upgrade("url", r.url);
        upgrade("version", r.version);
        upgrade("versionInfo", r.versionInfo);
        upgrade("versionTime", r.versionTime);
    });
})
