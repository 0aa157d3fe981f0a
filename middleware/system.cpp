/*
 * system.cpp - the system pages: device information, settings and support
 * information.
 */
#include "internal.h"
#include "zk_platform.h"

using mw::add;

/* ---- device information ---- */

int32_t get_system_information_json(const system_information_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "model", in->model);
        add(root, "mac", in->mac);
        add(root, "firmwareVersion", in->firmwareVersion);
        add(root, "systemBootTime", in->systemBootTime);
        add(root, "wireless", in->wireless);
        add(root, "dhcpEnable", in->dhcpEnable);
        add(root, "ipaddress", in->ipaddress);
        add(root, "netmask", in->netmask);
        add(root, "gateway", in->gateway);
        add(root, "pppoeEnable", in->pppoeEnable);
        add(root, "dns0", in->dns0);
        add(root, "dns1", in->dns1);
        add(root, "ddnsEnable", in->ddnsEnable);
        add(root, "ddnsHostName", in->ddnsHostName);
        add(root, "ddnsStatus", in->ddnsStatus);
        add(root, "wirelessEnable", in->wirelessEnable);
        add(root, "deviceName", in->deviceName);
        add(root, "deviceLacation", in->deviceLacation);
        add(root, "deviceInformation", in->deviceInformation);
        add(root, "deviceVender", in->deviceVender);
        add(root, "hardwareVersion", in->hardwareVersion);
        add(root, "kernelVersion", in->kernelVersion);
        add(root, "sdkVersion", in->sdkVersion);
        add(root, "aiNnieStatus", in->aiNnieStatus);
        add(root, "ioSupport", in->ioSupport);
        add(root, "audioSupport", in->audioSupport);
        add(root, "audioMode", in->audioMode);
        add(root, "audioType", in->audioType);
        add(root, "audioLineInput", in->audioLineInput);
        add(root, "alarmInputSupport", in->alarmInputSupport);
        add(root, "alarmOutputSupport", in->alarmOutputSupport);
        add(root, "fisheyeSupport", in->fisheyeSupport);
        add(root, "vcaSupport", in->vcaSupport);
        add(root, "vcaType", in->vcaType);
        add(root, "anrSupport", in->anrSupport);
        add(root, "speakerSupport", in->speakerSupport);
        add(root, "lprSupport", in->lprSupport);
        add(root, "lprVersion", in->lprVersion);
        add(root, "radarSupport", in->radarSupport);
        add(root, "upgrade", in->upgrade);
        add(root, "faceSupport", in->faceSupport);
        add(root, "polygonFaceSupport", in->polygonFaceSupport);
        add(root, "irSensor", in->irSensor);
        add(root, "dnSensitivitySupport", in->dnSensitivitySupport);
        add(root, "croproiSupport", in->croproiSupport);
        add(root, "dnRefocusSupport", in->dnRefocusSupport);
        add(root, "reduceStutteringSupport", in->reduceStutteringSupport);
        add(root, "polygonSupport", in->polygonSupport);
        add(root, "localDisplaySupport", in->localDisplaySupport);
        add(root, "fanWorkingModeSupport", in->fanWorkingModeSupport);
        add(root, "smartIrLimitType", in->smartIrLimitType);
        add(root, "smartIrLimitSum", in->smartIrLimitSum);
        add(root, "audioFileManagerSupport", in->audioFileManagerSupport);
        add(root, "humanVehicleSupport", in->humanVehicleSupport);
        add(root, "manualSpeedSupport", in->manualSpeedSupport);
        add(root, "snCode", in->snCode);
        add(root, "mosaicSupport", in->mosaicSupport);
        add(root, "antiShakeSupport", in->antiShakeSupport);
        add(root, "corridorModeSupport", in->corridorModeSupport);
        add(root, "imageRotationSupport", in->imageRotationSupport);
        add(root, "humanDetectionSupport", in->humanDetectionSupport);
        add(root, "regionalPeopleSupport", in->regionalPeopleSupport);
        add(root, "heatMapSupport", in->heatMapSupport);
        add(root, "zkChip", in->zkChip);
        add(root, "runtime", in->runtime);
        add(root, "p2pSupport", in->p2pSupport);     // after runtime, though stored before zkChip
        add(root, "ptzSupport", in->ptzSupport);
        add(root, "adminoptions", in->adminoptions);
        add(root, "adminuser", in->adminuser);
        add(root, "miscAnonymous", in->miscAnonymous);
        add(root, "pwdStrengthType", in->pwdStrengthType);
        add(root, "viewerdef", in->viewerdef);
        add(root, "viewerOptions", in->viewerOptions);
        add(root, "oemIndex", in->oemIndex);
        add(root, "audioAlarmSupport", in->audioAlarmSupport);
        add(root, "ledSupport", in->ledSupport);
        add(root, "ledGroupSupport", in->ledGroupSupport);
        add(root, "ptzMaxZoomTimes", in->ptzMaxZoomTimes);
        add(root, "realPtzSupport", in->realPtzSupport);
        add(root, "iotSupport", in->iotSupport);     // before isSpeedDm, though stored after it
        add(root, "isSpeedDm", in->isSpeedDm);
        add(root, "supportOsdLarger", in->supportOsdLarger);
        add(root, "isFaceCustomizeModeExists", 0);   // this firmware has no custom face mode
        add(root, "autoTrackSupport", in->autoTrackSupport);
        add(root, "smartStreamSupportInOtherStream", in->smartStreamSupportInOtherStream);
        add(root, "wiperSupport", in->wiperSupport);
        add(root, "oemupdateonline", in->oemupdateonline);
        add(root, "whiteLedSupport", in->whiteLedSupport);
        add(root, "defogSupport", in->defogSupport);
        add(root, "manualTrackingSupport", in->manualTrackingSupport);
        add(root, "manualTrackingDisable", in->manualTrackingDisable);
        add(root, "3DPositionSupport", in->threeDPositionSupport);
        add(root, "rs485Support", in->rs485Support);
        add(root, "ptzStatusSupport", in->ptzStatusSupport);
        add(root, "heaterSupport", in->heaterSupport);
        add(root, "ntFaceMosaicSupport", in->ntFaceMosaicSupport);
    });
}

int32_t get_system_model_json(const system_model_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "devicevEnder", in->devicevEnder);
        add(root, "name", in->name);
        add(root, "deviceModel", in->deviceModel);
    });
}

int32_t get_system_upgrade_info_json(const system_upgrade_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "upgradeInfo", in->upgradeInfo); });
}

int32_t get_system_online_heart_json(const system_online_heart_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "softversion", in->softversion); });
}

/* ==== settings and support information ==== */

int32_t get_system_date_time_json(const system_date_time_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "year", in->year);
        add(root, "month", in->month);
        add(root, "day", in->day);
        add(root, "hour", in->hour);
        add(root, "minute", in->minute);
        add(root, "second", in->second);
        add(root, "timeZoneTz", in->timeZoneTz);
        add(root, "zoneNameTz", in->zoneNameTz);
        add(root, "dayLight", in->dayLight);
        add(root, "timeType", in->timeType);
        add(root, "ntpServer", in->ntpServer);
        add(root, "ntpSyncEnable", in->ntpSyncEnable);
        add(root, "ntpInterval", in->ntpInterval);
    });
}

int32_t get_system_user_anonymous_json(const system_user_anonymous_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "miscAnonymous", in->miscAnonymous); });
}

int32_t get_system_user_json(const system_user_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "miscAnonymous", in->miscAnonymous);
        cJSON *list = mw::array(root, "userList");
        for (const system_user_entry &user : in->users) {
            if (user.userName[0] == '\0')
                continue; // an unused account slot
            cJSON *item = mw::append_object(list);
            add(item, "userName", user.userName);
            add(item, "userLevel", user.userLevel);
            add(item, "privilege", user.privilege);
            // The module keys are the platform's names, whatever module
            // text the account's configuration holds.
            cJSON *permissions = mw::object(item, "newModulePermission");
            for (int32_t m = 0; m < 4; ++m)
                add(permissions, get_module_permission_string(m), user.modulePermissions[m].permission);
        }
    });
}

int32_t get_system_auto_reboot_json(const system_auto_reboot_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "rebootEnable", in->rebootEnable);
        add(root, "rebootWeekday", in->rebootWeekday);
        add(root, "rebootHour", in->rebootHour);
        add(root, "rebootMin", in->rebootMin);
        add(root, "rebootSec", in->rebootSec);
    });
}

int32_t get_system_aes_key_json(const system_aes_key_record *in, char *dst, int32_t dstSize)
{
    if (!mw::buffer_usable(dst, dstSize))
        return -1;
    // No key: nothing to report, and the caller's buffer stays as it was.
    if (in->key[0] == '\0')
        return 0;
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "key", in->key);
        add(root, "keyId", in->keyId);
    });
}

int32_t get_system_sqa_info_json(const system_sqa_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        if (in->sqaEnable != 1) {
            add(root, "sqaEnable", 0); // anything but 1 is off
            return;
        }
        add(root, "sqaEnable", in->sqaEnable);
        for (int i = 0; i < 3; ++i) {
            const sqa_entry &question = in->questions[i];
            add(root, mw::Key<30>("sqaType_%d", i), question.sqaType);
            add(root, mw::Key<30>("sqaQuestion_%d", i), question.sqaQuestion);
            mw::add_string(root, mw::Key<30>("sqaAnswer_%d", i), ""); // answers never leave the camera
        }
    });
}

int32_t get_system_water_mark_json(const system_water_mark_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "waterMarkEnable", in->waterMarkEnable);
        add(root, "waterMarkString", in->waterMarkString);
    });
}

int32_t get_system_access_list_json(const system_access_list_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "maxConcurrent", in->maxConcurrent);
        add(root, "filterEnable", in->filterEnable);
        add(root, "filterType", in->filterType);
        cJSON *list = mw::array(root, "accessList");
        int32_t written = 0; // entries are numbered as written, not by slot
        for (int i = 0; i < 10; ++i) {
            if (in->accessAddress[i][0] == '\0')
                continue;
            cJSON *item = mw::append_object(list);
            add(item, "accessIndex", written++);
            add(item, "accessType", in->accessType[i]);
            add(item, "accessAddress", in->accessAddress[i]);
        }
    });
}

int32_t get_system_ssh_json(const system_ssh_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "sshEnable", in->sshEnable);
        add(root, "sshPort", in->sshPort);
    });
}

int32_t get_system_notify_json(const system_notify_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "keep", in->keep);
        add(root, "md", in->md);
        add(root, "recording", in->recording);
        add(root, "input", in->input);
        add(root, "output", in->output);
    });
}

int32_t get_system_auto_export_json(const system_auto_export_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "autoExportEnable", in->autoExportEnable);
        add(root, "autoExportMethod", in->autoExportMethod);
        add(root, "autoExportWeekday", in->autoExportWeekday);
        add(root, "autoExportTime", in->autoExportTime);
        add(root, "autoExportRange", in->autoExportRange);
    });
}

int32_t get_system_authority_json(const system_authority_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "userLevel", in->userLevel);
        add(root, "privilege", in->privilege);
        add(root, "userId", in->userId);
    });
}

int32_t get_system_remote_logs_json(const system_remote_logs_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "remoteLogsEnable", in->remoteLogsEnable);
        add(root, "remoteLogsIpAddress", in->remoteLogsIpAddress);
        add(root, "remoteLogsPort", in->remoteLogsPort);
    });
}

/* ---- support information ---- */

int32_t get_system_support_info_json(const system_support_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "lessAlarmAudio", in->lessAlarmAudio);
        add(root, "alarmOutput", in->alarmOutput);
        add(root, "supportWhiteledAdjust", in->supportWhiteledAdjust);
        add(root, "lprShowAlgoDebug", in->lprShowAlgoDebug);
        add(root, "isTestVideo", in->isTestVideo);
        add(root, "httpPort", in->httpPort);
        add(root, "upnpEnable", in->upnpEnable);
        add(root, "upnpHttpPort", in->upnpHttpPort);
        add(root, "upnpHttpsPort", in->upnpHttpsPort);
        add(root, "upnpRtspPort", in->upnpRtspPort);
        add(root, "ddnsenable", in->ddns.enable);
        add(root, "ddnshttpport", in->ddns.httpPort);
        add(root, "ddnsrtspport", in->ddns.rtspPort);
        add(root, "ddnsdomain", in->ddns.provider); // the pages build links from the provider's domain
        add(root, "outputNum", in->outputNum);
        mw::add_string(root, "pluginVersion", "1.0.12");
        add(root, "curmaxconn", in->curmaxconn);
        add(root, "lprRedLightSupport", in->lprRedLightSupport);
        add(root, "mainRtspPort", in->mainRtspPort);
        add(root, "isSupportCellular", in->isSupportCellular);
        add(root, "isSupportIndependentGps", in->isSupportIndependentGps);
        add(root, "isCompositeEnable", in->isCompositeEnable);
        add(root, "radarSupport", in->radarSupport);
        add(root, "deviceClass", in->deviceClass);
        cJSON *upgrade = mw::object(root, "upgradeInfo");
        add(upgrade, "updateState", in->updateState);
        add(upgrade, "url", in->url);
        add(upgrade, "version", in->version);
        add(upgrade, "versionInfo", in->versionInfo);
        add(upgrade, "versionTime", in->versionTime);
    });
}
