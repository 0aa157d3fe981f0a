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

// The accounts of a camera run by a car-park operator: the administrator,
// an operator who may steer the dome and a viewer.
system_user_record sample_users()
{
    system_user_record r{};
    r.miscAnonymous = 0;
    struct Account {
        int slot;
        const char *name;
        uint8_t level;
        int32_t privilege;
        uint8_t permissions[4];
    };
    const Account accounts[] = {
        {0, "admin", 0, 255, {1, 1, 1, 1}},
        {1, "operator", 1, 63, {1, 1, 0, 1}},
        {3, "gatehouse", 2, 1, {1, 0, 0, 0}},
    };
    const char *modules[4] = {"live", "playback", "setup", "ptz"};
    for (const Account &a : accounts) {
        system_user_entry &u = r.users[a.slot];
        put(u.userName, a.name);
        put(u.passwordHash, "$6$c0ffee$3f9a1c...");
        u.userLevel = a.level;
        u.privilege = a.privilege;
        for (int m = 0; m < 4; ++m) {
            put(u.modulePermissions[m].module, modules[m]);
            u.modulePermissions[m].permission = a.permissions[m];
        }
    }
    return r;
}

system_support_info_record sample_support_info()
{
    system_support_info_record r{};
    r.lessAlarmAudio = 0;
    r.alarmOutput = 1;
    r.supportWhiteledAdjust = 1;
    r.lprShowAlgoDebug = 0;
    r.isTestVideo = 0;
    r.httpPort = 80;
    r.upnpEnable = 1;
    r.upnpHttpPort = 8080;
    r.upnpHttpsPort = 8443;
    r.upnpRtspPort = 8554;
    r.ddns.enable = 1;
    put(r.ddns.userName, "northfield-carpark");
    put(r.ddns.provider, "gate-north.example-ddns.net");
    put(r.ddns.hostName, "gate-north");
    r.ddns.httpPort = 18080;
    r.ddns.rtspPort = 18554;
    r.ddns.playbackPort = 18555;
    r.ddns.status = 1;
    r.outputNum = 2;
    r.curmaxconn = 10;
    r.lprRedLightSupport = 1;
    r.mainRtspPort = 554;
    r.isSupportCellular = 0;
    r.isSupportIndependentGps = 0;
    r.isCompositeEnable = 0;
    r.updateState = 1;
    put(r.url, "https://updates.example.net/ipc/b4240/V5.2.16.bin");
    put(r.version, "V5.2.16 build 241002");
    put(r.versionInfo, "Improves night-time plate reading under infrared light.\n"
                       "Fixes RTSP reconnection after a network loss.\n"
                       "Adds the weekly reboot schedule to the maintenance page.");
    put(r.versionTime, "2026-10-02");
    put(r.deviceClass, "IPC");
    r.radarSupport = 0;
    return r;
}

system_model_record sample_system_model()
{
    system_model_record m{};
    put(m.devicevEnder, "Northfield Vision");
    put(m.name, "Bullet 4MP LPR");
    put(m.deviceModel, "IPC-B4240-LPR");
    return m;
}

system_date_time_record sample_system_date_time()
{
    system_date_time_record t{};
    t.year = 2026;
    t.month = 11;
    t.day = 22;
    t.hour = 9;
    t.minute = 41;
    t.second = 7;
    put(t.timeZoneTz, "CET-1CEST,M3.5.0,M10.5.0/3");
    put(t.zoneNameTz, "Europe/Berlin");
    t.dayLight = 1;
    t.timeType = 1;
    put(t.ntpServer, "pool.ntp.org");
    t.ntpSyncEnable = 1;
    t.ntpInterval = 60;
    return t;
}

system_water_mark_record sample_system_water_mark()
{
    system_water_mark_record w{};
    w.waterMarkEnable = 1;
    put(w.waterMarkString, "Northfield car park - gate north");
    return w;
}

system_notify_record sample_system_notify()
{
    system_notify_record t{};
    put(t.keep, "Keep alive");
    put(t.md, "Motion detected");
    put(t.recording, "Recording started");
    put(t.input, "Alarm input 1 triggered");
    put(t.output, "Barrier relay closed");
    return t;
}

system_auto_export_record sample_system_auto_export()
{
    system_auto_export_record e{};
    e.autoExportEnable = 1;
    e.autoExportMethod = 1;
    e.autoExportWeekday = 1;
    put(e.autoExportTime, "02:00:00");
    e.autoExportRange = 7;
    return e;
}

system_authority_record sample_system_authority()
{
    system_authority_record a{};
    a.userLevel = 1;
    a.privilege = 63;
    put(a.userId, "operator");
    return a;
}

system_remote_logs_record sample_system_remote_logs()
{
    system_remote_logs_record l{};
    l.remoteLogsEnable = 1;
    l.remoteLogsPort = 514;
    put(l.remoteLogsIpAddress, "192.168.1.20");
    return l;
}

system_upgrade_info_record sample_system_upgrade_info()
{
    system_upgrade_info_record u{};
    put(u.upgradeInfo, "V5.2.16 is available: improves night-time plate reading and fixes RTSP "
                       "reconnection after a network loss.");
    return u;
}

system_online_heart_record sample_system_online_heart()
{
    system_online_heart_record h{};
    put(h.softversion, "V5.2.14 build 240611");
    return h;
}

system_sqa_info_record sample_system_sqa_info()
{
    system_sqa_info_record q{};
    q.sqaEnable = 1;
    const char *questions[3] = {"Name of your first school?", "City where you were born?",
                                "Model of your first car?"};
    for (int i = 0; i < 3; ++i) {
        q.questions[i].sqaType = static_cast<uint8_t>(i + 1);
        put(q.questions[i].sqaQuestion, questions[i]);
        put(q.questions[i].sqaAnswer, "(stored answer)");
    }
    return q;
}

system_access_list_record sample_system_access_list()
{
    system_access_list_record a{};
    a.maxConcurrent = 10;
    a.filterEnable = 1;
    a.filterType = 0;
    const char *addresses[3] = {"192.168.1.10", "192.168.1.0/24", "10.20.0.5"};
    const int slots[3] = {0, 1, 4};
    for (int i = 0; i < 3; ++i) {
        a.slotNumbers[slots[i]] = slots[i];
        a.accessType[slots[i]] = i == 1 ? 1 : 0;
        put(a.accessAddress[slots[i]], addresses[i]);
    }
    return a;
}

system_user_anonymous_record sample_system_user_anonymous()
{
    return system_user_anonymous_record{0};
}

system_auto_reboot_record sample_system_auto_reboot()
{
    return system_auto_reboot_record{1, 2, 3, 30, 0};
}

system_ssh_record sample_system_ssh()
{
    return system_ssh_record{0, 22};
}

system_aes_key_record sample_aes_key()
{
    system_aes_key_record k{};
    put(k.key, "9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08");
    put(k.keyId, "carpark-2026-11");
    return k;
}

const CatalogEntry entries[] = {
    MW_READ_ONLY_ENTRY(system_information, "device identity, network state and supported features",
                       (kept<system_information_record, sample_information>)),
    MW_READ_ONLY_ENTRY(system_model, "vendor, product name and model",
                       (kept<system_model_record, sample_system_model>)),
    MW_READ_ONLY_ENTRY(system_upgrade_info, "notice of a newer firmware",
                       (kept<system_upgrade_info_record, sample_system_upgrade_info>)),
    MW_READ_ONLY_ENTRY(system_online_heart, "heartbeat answer with the running software version",
                       (kept<system_online_heart_record, sample_system_online_heart>)),
    MW_SETTABLE_ENTRY(system_date_time, "date, time zone and NTP",
                      (kept<system_date_time_record, sample_system_date_time>)),
    MW_SETTABLE_ENTRY(system_user_anonymous, "whether visitors may watch without an account",
                      (kept<system_user_anonymous_record, sample_system_user_anonymous>)),
    MW_SETTABLE_ENTRY(system_user, "the accounts with their levels and module permissions",
                      (kept<system_user_record, sample_users>)),
    MW_SETTABLE_ENTRY(system_auto_reboot, "the weekly automatic reboot",
                      (kept<system_auto_reboot_record, sample_system_auto_reboot>)),
    MW_READ_ONLY_ENTRY(system_aes_key, "the stream-encryption key",
                       (kept<system_aes_key_record, sample_aes_key>)),
    MW_SETTABLE_ENTRY(system_sqa_info, "the administrator's security questions",
                      (kept<system_sqa_info_record, sample_system_sqa_info>)),
    MW_SETTABLE_ENTRY(system_water_mark, "the video watermark",
                      (kept<system_water_mark_record, sample_system_water_mark>)),
    MW_SETTABLE_ENTRY(system_access_list, "the IP access list",
                      (kept<system_access_list_record, sample_system_access_list>)),
    MW_SETTABLE_ENTRY(system_ssh, "SSH service",
                      (kept<system_ssh_record, sample_system_ssh>)),
    MW_SETTABLE_ENTRY(system_notify, "the notification texts",
                      (kept<system_notify_record, sample_system_notify>)),
    MW_SETTABLE_ENTRY(system_auto_export, "automatic export of recordings",
                      (kept<system_auto_export_record, sample_system_auto_export>)),
    MW_SETTABLE_ENTRY(system_authority, "the logged-in user's authority",
                      (kept<system_authority_record, sample_system_authority>)),
    MW_SETTABLE_ENTRY(system_remote_logs, "sending the log to a remote server",
                      (kept<system_remote_logs_record, sample_system_remote_logs>)),
    MW_READ_ONLY_ENTRY(system_support_info, "optional pages, ports and the firmware upgrade notice",
                       (kept<system_support_info_record, sample_support_info>)),
};

} // namespace

const CatalogGroup catalog_system = catalog_group("system", entries);
