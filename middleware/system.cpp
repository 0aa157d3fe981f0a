/*
 * system.cpp - the system pages: device information, settings and support
 * information.
 */
#include "internal.h"

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
