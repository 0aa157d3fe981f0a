/*
 * traffic.cpp - the traffic and parking pages (the ware_ group): parking
 * detection and its settings, vehicle counting, violation management,
 * traffic-light areas and licence-plate result posting.
 */
#include "internal.h"

using mw::add;

namespace {

/* "detectionInfoList": one object per region, "regionIndex" counted from 0,
   the region's name and its corners as the two polygon texts. */
template <size_t Count>
void add_detection_regions(cJSON *root, const parking_region_entry (&regions)[Count])
{
    cJSON *list = mw::array(root, "detectionInfoList");
    for (int32_t i = 0; i < static_cast<int32_t>(Count); ++i) {
        const parking_region_entry &region = regions[i];
        cJSON *item = mw::append_object(list);
        add(item, "regionIndex", i);
        add(item, "name", region.name);
        mw::add_string(item, "polygonX", mw::polygon_text(region.pointX, 4).text);
        mw::add_string(item, "polygonY", mw::polygon_text(region.pointY, 4).text);
    }
}

} // namespace

/* ---- parking detection and parking settings ---- */

int32_t ware_get_lpr_parking_detection_json(const lpr_parking_detection_record *in,
                                            const week_schedule_block *schedule, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, schedule](cJSON *root) {
        add(root, "enable", in->enable);
        add_detection_regions(root, in->regions);
        mw::add_schedule_list(root, schedule->schedule);
        add(root, "pullEnable", in->pullEnable);
        add(root, "pullAgain", in->pullAgain);
        add(root, "afterTime", in->afterTime);
        add(root, "periodicEnable", in->periodicEnable);
        add(root, "period", in->period);
        add(root, "attachSnap", in->attachSnap);
        add(root, "postType", in->postType);
        add(root, "tcpPort", in->tcpPort);
        add(root, "httpUrl", in->httpUrl);
        add(root, "httpUser", in->httpUser);
        add(root, "httpPwd", in->httpPwd);
        add(root, "saveSnap", in->saveSnap);
    });
}

int32_t ware_get_parking_general_json(const parking_general_record *in, const char *areaList, char *dst,
                                      int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, areaList](cJSON *root) {
        add(root, "areaType", in->areaType);
        add(root, "country/region", in->countryRegion);
        mw::add_string(root, "areaList", areaList);
        add(root, "nightModeEnable", in->nightModeEnable);
        add(root, "nightModeLevel", in->nightModeLevel);
    });
}

int32_t ware_get_parking_violation_json(const parking_violation_record *in, const week_schedule_block *schedule,
                                        char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, schedule](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "permitVehicle", in->permitVehicle);
        add(root, "residenceTime", in->residenceTime);
        add_detection_regions(root, in->regions);
        mw::add_schedule_list(root, schedule->schedule);
    });
}

int32_t ware_get_auto_export_json(const auto_export_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "weekday", in->weekday);
        add(root, "hour", in->hour);
        add(root, "min", in->min);
        add(root, "sec", in->sec);
        add(root, "timeRange", in->timeRange);
        add(root, "method", in->method);
    });
}

/* ---- vehicle counting, violation management, traffic lights ---- */

namespace {

/* A stop or trigger line as a nested object: its switch and two end points. */
void add_trigger_line(cJSON *root, const char *key, const trigger_line &line)
{
    cJSON *item = mw::object(root, key);
    add(item, "enable", line.enable);
    add(item, "startX", line.startX);
    add(item, "startY", line.startY);
    add(item, "endX", line.endX);
    add(item, "endY", line.endY);
}

/* Four values as a JSON integer array under `key`. */
void add_int_array(cJSON *parent, const char *key, const int32_t (&values)[4])
{
    cJSON *list = cJSON_CreateIntArray(values, 4);
    if (list != nullptr && !cJSON_AddItemToObject(parent, key, list))
        cJSON_Delete(list);
}

/* An object hung under `key` with cJSON_AddItemToObject directly; NULL (and
   nothing left behind) when it cannot be attached. */
cJSON *plain_object(cJSON *parent, const char *key)
{
    cJSON *item = cJSON_CreateObject();
    if (item != nullptr && !cJSON_AddItemToObject(parent, key, item)) {
        cJSON_Delete(item);
        return nullptr;
    }
    return item;
}

} // namespace

int32_t ware_get_vehicle_count_setting_json(const vehicle_count_setting_record *in,
                                            const week_schedule_block *schedule, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, schedule](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "showInformation", in->showInformation);
        add(root, "countType", in->countType);
        add(root, "autoReset", in->autoReset);
        add(root, "resetDayType", in->resetDayType);
        add(root, "resetHour", in->resetHour);
        add(root, "resetMin", in->resetMin);
        add(root, "resetSec", in->resetSec);
        add(root, "infoTableLeft", in->infoTableLeft);
        add(root, "infoTableTop", in->infoTableTop);
        add(root, "enablePost", in->enablePost);
        add(root, "postMode", in->postMode);
        add(root, "attachSnapshot", in->attachSnapshot);
        add(root, "postType", in->postType);
        add(root, "timeHour", in->timeHour);
        add(root, "timeMin", in->timeMin);
        add(root, "timeSec", in->timeSec);
        add(root, "cameraPort", in->cameraPort);
        add(root, "interval", in->interval);

        // The first target's texts once more on the root, enabled or not.
        add(root, "httpUrl", in->httpUrl[0]);
        add(root, "userName", in->httpUser[0]);
        add(root, "password", in->httpPassword[0]);

        cJSON *targets = mw::array(root, "httpList");
        for (int32_t k = 0; k < 3; ++k) {
            cJSON *target = mw::append_object(targets);
            add(target, "index", k);
            add(target, "enable", in->httpEnable[k]);
            add(target, "url", in->httpUrl[k]);
            add(target, "user", in->httpUser[k]);
            add(target, "password", in->httpPassword[k]);
        }
        mw::add_schedule_list(root, schedule->schedule);
    });
}

int32_t ware_get_violation_management_json(const violation_management_record *in,
                                           const violation_polygon_record *polygons, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, polygons](cJSON *root) {
        add_int_array(root, "laneDirection", in->laneDirection);
        add_trigger_line(root, "stopLine", in->stopLine);
        add_trigger_line(root, "straightTriggerLine", in->straightTriggerLine);
        add_trigger_line(root, "leftTurnTriggerLine", in->leftTurnTriggerLine);
        add_trigger_line(root, "rightTurnTriggerLine", in->rightTurnTriggerLine);
        add(root, "noPlatesEnable", in->noPlatesEnable);

        cJSON *redLight = mw::object(root, "redLightRunning");
        add(redLight, "enable", in->redLightRunningEnable);
        add(redLight, "triggerCondition", in->redLightTriggerCondition);
        add(redLight, "flaseStartEnable", in->flaseStartEnable);

        cJSON *crossLine = mw::object(root, "crossLineAtRedLight");
        add(crossLine, "enable", in->crossLineEnable);
        add(crossLine, "triggerCondition", in->crossLineTriggerCondition);

        cJSON *docking = mw::object(root, "signalDocking");
        add(docking, "dockingMode", in->dockingMode);
        add(docking, "straightLaneRedLightInputNum", in->straightLaneRedLightInputNum);
        add(docking, "straightLaneYellowLightInputNum", in->straightLaneYellowLightInputNum);
        add(docking, "leftTurnLaneRedLightInputNum", in->leftTurnLaneRedLightInputNum);
        add(docking, "leftTurnLaneYellowLightInputNum", in->leftTurnLaneYellowLightInputNum);
        add(docking, "rightTurnLaneRedLightInputNum", in->rightTurnLaneRedLightInputNum);
        add(docking, "rightTurnLaneYellowLightInputNum", in->rightTurnLaneYellowLightInputNum);
        add(root, "delayOnRedLight", in->delayOnRedLight); // on the root, not with the docking inputs

        cJSON *reverse = mw::object(root, "reverseDriving");
        add(reverse, "enable", in->reverseDrivingEnable);
        add_int_array(reverse, "triggerCondition", in->reverseTriggerCondition);

        add(root, "violationCapture", in->violationCapture);
        add(root, "plateCapture", in->plateCapture);
        add(root, "targetCapture", in->targetCapture);

        mw::PolygonText xs[4];
        mw::PolygonText ys[4];
        for (int32_t p = 0; p < 4; ++p) {
            xs[p] = mw::polygon_text(polygons->normalPolygons[p].pointX, 4);
            ys[p] = mw::polygon_text(polygons->normalPolygons[p].pointY, 4);
        }
        cJSON *polygonList = mw::array(root, "normalPolygonList");
        for (int32_t p = 0; p < 4; ++p) {
            cJSON *polygon = mw::append_object(polygonList);
            add(polygon, "polygonIndex", p);
            add(polygon, "name", polygons->normalPolygons[p].name);
            mw::add_string(polygon, "polygonX", xs[p].text);
            mw::add_string(polygon, "polygonY", ys[p].text);
        }

        add(root, "speedMonitoringEnable", in->speedMonitoringEnable);
        // The region keys count from 1, their "index" from 0.
        cJSON *speeds = plain_object(root, "speedMonitoringListNew");
        for (int32_t r = 0; r < 4; ++r) {
            cJSON *region = mw::object(speeds, mw::Key<30>("region%d", r + 1));
            add(region, "index", r);
            cJSON *rules = mw::array(region, "rule");
            for (int32_t k = 0; k < 3; ++k) {
                const speed_rule_entry &rule = in->speedRules[r][k];
                cJSON *item = mw::append_object(rules);
                add(item, "minSpeedEnable", rule.minSpeedEnable);
                add(item, "minSpeedThr", rule.minSpeedThr);
                add(item, "maxSpeedEnable", rule.maxSpeedEnable);
                add(item, "maxSpeedThr", rule.maxSpeedThr);
                add(item, "vehicleType", rule.vehicleType);
            }
        }
    });
}

int32_t ware_get_traffic_light_area_json(const traffic_light_area_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *groups = mw::array(root, "trafficLightAreaList");
        for (int32_t g = 0; g < 2; ++g) {
            const traffic_light_group &group = in->groups[g];
            cJSON *item = mw::append_object(groups);
            add(item, "id", group.id);
            add(item, "straightLane", group.straightLane);
            add(item, "leftTurnLane", group.leftTurnLane);
            add(item, "rightTurnLane", group.rightTurnLane);
            cJSON *areas = mw::array(item, "areaList");
            for (int32_t a = 0; a < 3; ++a) {
                const traffic_light_rect &rect = group.area[a];
                cJSON *area = mw::append_object(areas);
                add(area, "index", a + 1); // areas count from 1
                add(area, "color", group.color[a]);
                add(area, "left", rect.left);
                add(area, "top", rect.top);
                add(area, "right", rect.right);
                add(area, "bottom", rect.bottom);
            }
        }
    });
}

/* ---- licence-plate result posting ---- */

int32_t ware_get_lpr_post_json(const lpr_post_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "postEvents", in->postEvents);
        add(root, "automaticRetransmission", in->automaticRetransmission);

        cJSON *http = mw::object(root, "http");
        add(http, "enable", in->httpEnable);
        cJSON *targets = mw::array(http, "httpList");
        for (int32_t k = 0; k < 3; ++k) { // all three, enabled or not
            const http_post_target &target = in->httpTargets[k];
            cJSON *item = mw::append_object(targets);
            add(item, "index", k);
            add(item, "enable", target.enable);
            add(item, "url", target.url);
            add(item, "user", target.user);
            add(item, "password", target.password);
            add(item, "method", target.method);
            add(item, "snapshotType", target.snapshotType);
            add(item, "eventMask", target.eventMask);
        }

        cJSON *tcp = mw::object(root, "tcp");
        add(tcp, "enable", in->tcpEnable);
        add(tcp, "port", in->tcpPort);
        add(tcp, "eventMask", in->tcpEventMask);

        cJSON *mqtt = mw::object(root, "MQTT");
        add(mqtt, "enable", in->mqttEnable);
        add(mqtt, "topic", in->mqttTopic);
        add(mqtt, "port", in->mqttPort);
        add(mqtt, "host", in->mqttHost);
        add(mqtt, "user", in->mqttUser);
        add(mqtt, "password", in->mqttPassword);
        add(mqtt, "eventMask", in->mqttEventMask);

        const post_options &options = in->postOptions;
        cJSON *items = mw::object(root, "postOptions");
        add(items, "eventType", options.eventType);
        add(items, "deviceInfo", options.deviceInfo);
        add(items, "time", options.time);
        add(items, "detectionRegion", options.detectionRegion);
        add(items, "plate", options.plate);
        add(items, "country", options.country);
        add(items, "plateType", options.plateType);
        add(items, "plateColor", options.plateColor);
        add(items, "vehicleType", options.vehicleType);
        add(items, "vehicleColor", options.vehicleColor);
        add(items, "brand", options.brand);
        add(items, "direction", options.direction);
        add(items, "eventData", options.eventData);
        add(items, "plateCoordinate", options.plateCoordinate);
        add(items, "vehicleCoordinate", options.vehicleCoordinate);
        add(items, "gps", options.gps); // before the images, though stored after them
        add(items, "plateImage", options.plateImage);
        add(items, "vehicleImage", options.vehicleImage);
        add(items, "fullImage", options.fullImage);
        add(items, "violationImage", options.violationImage);

        add(root, "templateMode", in->templateMode);
        cJSON *more = mw::object(root, "more");
        add(more, "metadataEnable", in->metadataEnable);
    });
}

int32_t ware_get_lpr_post_template_json(const lpr_post_template_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "mode", in->mode);
        add(root, "eventType", in->eventType);
        add(root, "data", in->data);
    });
}
