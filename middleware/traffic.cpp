/*
 * traffic.cpp - the traffic and parking pages (the ware_ group): parking
 * detection and its settings, vehicle counting, violation management,
 * traffic-light areas and licence-plate result posting.
 */
#include "internal.h"

/* The group's functions are named ware_get_/ware_set_/ware_schema_<resource>. */

namespace {

/* "detectionInfoList": one object per region, "regionIndex" counted from 0,
   the region's name and its corners as the two polygon texts. */
template <typename A, typename Regions>
void detection_regions(A &a, Regions &regions)
{
    a.list("detectionInfoList", "regionIndex", [&](auto &l) {
        for (int32_t i = 0; i < static_cast<int32_t>(sizeof regions / sizeof regions[0]); ++i) {
            auto &region = regions[i];
            l.item(i, [&](auto &item) {
                item("name", region.name);
                item.derived("polygonX", mw::polygon_text(region.pointX, 4).text);
                item.derived("polygonY", mw::polygon_text(region.pointY, 4).text);
            });
        }
    });
}

/* A stop or trigger line as a nested object: its switch and two end points. */
template <typename A, typename Line>
void trigger_line_object(A &a, const char *key, Line &line)
{
    a.object(mw::Name::fixed(key), [&](auto &item) {
        item("enable", line.enable);
        item("startX", line.startX);
        item("startY", line.startY);
        item("endX", line.endX);
        item("endY", line.endY);
    });
}

} // namespace

/* ---- parking detection and parking settings ---- */

MW_SETTABLE_PAGE_WITH(ware_, lpr_parking_detection, lpr_parking_detection_record, week_schedule_block, MW_NO_RULES, [](auto &a, auto &r, auto &week) {
    a("enable", r.enable);
    detection_regions(a, r.regions);
    mw::schedule_list(a, week.schedule);
    a("pullEnable", r.pullEnable);
    a("pullAgain", r.pullAgain);
    a("afterTime", r.afterTime);
    a("periodicEnable", r.periodicEnable);
    a("period", r.period);
    a("attachSnap", r.attachSnap);
    a("postType", r.postType);
    a("tcpPort", r.tcpPort);
    a("httpUrl", r.httpUrl);
    a("httpUser", r.httpUser);
    a("httpPwd", r.httpPwd);
    a("saveSnap", r.saveSnap);
})

/* The area list is the caller's text, shown as it stands. */
MW_SETTABLE_PAGE_WITH_TEXT(ware_, parking_general, parking_general_record, areaList,
                           [](auto &a, auto &r, const char *areaList) {
    a("areaType", r.areaType);
    a("country/region", r.countryRegion);
    a.derived_text("areaList", areaList);
    a("nightModeEnable", r.nightModeEnable);
    a("nightModeLevel", r.nightModeLevel);
})

MW_SETTABLE_PAGE_WITH(ware_, parking_violation, parking_violation_record, week_schedule_block, MW_NO_RULES, [](auto &a, auto &r, auto &week) {
    a("enable", r.enable);
    a("permitVehicle", r.permitVehicle);
    a("residenceTime", r.residenceTime);
    detection_regions(a, r.regions);
    mw::schedule_list(a, week.schedule);
})

MW_SETTABLE_RECORD_PAGE(ware_, auto_export, auto_export_record, nullptr, MW_NO_RULES, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("weekday", r.weekday);
    a("hour", r.hour);
    a("min", r.min);
    a("sec", r.sec);
    a("timeRange", r.timeRange);
    a("method", r.method);
})

/* ---- vehicle counting, violation management, traffic lights ---- */

MW_SETTABLE_PAGE_WITH(ware_, vehicle_count_setting, vehicle_count_setting_record, week_schedule_block, MW_NO_RULES, [](auto &a, auto &r, auto &week) {
    a("enable", r.enable);
    a("showInformation", r.showInformation);
    a("countType", r.countType);
    a("autoReset", r.autoReset);
    a("resetDayType", r.resetDayType);
    a("resetHour", r.resetHour);
    a("resetMin", r.resetMin);
    a("resetSec", r.resetSec);
    a("infoTableLeft", r.infoTableLeft);
    a("infoTableTop", r.infoTableTop);
    a("enablePost", r.enablePost);
    a("postMode", r.postMode);
    a("attachSnapshot", r.attachSnapshot);
    a("postType", r.postType);
    a("timeHour", r.timeHour);
    a("timeMin", r.timeMin);
    a("timeSec", r.timeSec);
    a("cameraPort", r.cameraPort);
    a("interval", r.interval);

    // The first target's texts once more on the root, enabled or not: set
    // them in "httpList".
    a.derived("httpUrl", r.httpUrl[0]);
    a.derived("userName", r.httpUser[0]);
    a.derived("password", r.httpPassword[0]);

    a.list("httpList", "index", [&](auto &l) {
        for (int32_t k = 0; k < 3; ++k) {
            l.item(k, [&](auto &target) {
                target("enable", r.httpEnable[k]);
                target("url", r.httpUrl[k]);
                target("user", r.httpUser[k]);
                target("password", r.httpPassword[k]);
            });
        }
    });
    mw::schedule_list(a, week.schedule);
})

MW_SETTABLE_PAGE_WITH(ware_, violation_management, violation_management_record, violation_polygon_record, MW_NO_RULES, [](auto &a, auto &r, auto &polygons) {
    a.numbers("laneDirection", r.laneDirection);
    trigger_line_object(a, "stopLine", r.stopLine);
    trigger_line_object(a, "straightTriggerLine", r.straightTriggerLine);
    trigger_line_object(a, "leftTurnTriggerLine", r.leftTurnTriggerLine);
    trigger_line_object(a, "rightTurnTriggerLine", r.rightTurnTriggerLine);
    a("noPlatesEnable", r.noPlatesEnable);

    a.object("redLightRunning", [&](auto &redLight) {
        redLight("enable", r.redLightRunningEnable);
        redLight("triggerCondition", r.redLightTriggerCondition);
        redLight("flaseStartEnable", r.flaseStartEnable);
    });
    a.object("crossLineAtRedLight", [&](auto &crossLine) {
        crossLine("enable", r.crossLineEnable);
        crossLine("triggerCondition", r.crossLineTriggerCondition);
    });
    a.object("signalDocking", [&](auto &docking) {
        docking("dockingMode", r.dockingMode);
        docking("straightLaneRedLightInputNum", r.straightLaneRedLightInputNum);
        docking("straightLaneYellowLightInputNum", r.straightLaneYellowLightInputNum);
        docking("leftTurnLaneRedLightInputNum", r.leftTurnLaneRedLightInputNum);
        docking("leftTurnLaneYellowLightInputNum", r.leftTurnLaneYellowLightInputNum);
        docking("rightTurnLaneRedLightInputNum", r.rightTurnLaneRedLightInputNum);
        docking("rightTurnLaneYellowLightInputNum", r.rightTurnLaneYellowLightInputNum);
    });
    a("delayOnRedLight", r.delayOnRedLight); // on the root, not with the docking inputs
    a.object("reverseDriving", [&](auto &reverse) {
        reverse("enable", r.reverseDrivingEnable);
        reverse.numbers("triggerCondition", r.reverseTriggerCondition);
    });
    a("violationCapture", r.violationCapture);
    a("plateCapture", r.plateCapture);
    a("targetCapture", r.targetCapture);

    a.list("normalPolygonList", "polygonIndex", [&](auto &l) {
        for (int32_t p = 0; p < 4; ++p) {
            auto &polygon = polygons.normalPolygons[p];
            l.item(p, [&](auto &item) {
                item("name", polygon.name);
                item.derived("polygonX", mw::polygon_text(polygon.pointX, 4).text);
                item.derived("polygonY", mw::polygon_text(polygon.pointY, 4).text);
            });
        }
    });

    a("speedMonitoringEnable", r.speedMonitoringEnable);
    // The region keys count from 1, their "index" from 0.
    a.object("speedMonitoringListNew", [&](auto &speeds) {
        for (int32_t region = 0; region < 4; ++region) {
            speeds.object(mw::Key<30>("region%d", region + 1), [&](auto &o) {
                o.derived("index", region);
                o.list("rule", nullptr, [&](auto &l) {
                    for (auto &rule : r.speedRules[region]) {
                        l.item([&](auto &item) {
                            item("minSpeedEnable", rule.minSpeedEnable);
                            item("minSpeedThr", rule.minSpeedThr);
                            item("maxSpeedEnable", rule.maxSpeedEnable);
                            item("maxSpeedThr", rule.maxSpeedThr);
                            item("vehicleType", rule.vehicleType);
                        });
                    }
                });
            });
        }
    });
})

MW_SETTABLE_RECORD_PAGE(ware_, traffic_light_area, traffic_light_area_record, nullptr, MW_NO_RULES, [](auto &a, auto &r) {
    a.list("trafficLightAreaList", nullptr, [&](auto &groups) {
        for (auto &group : r.groups) {
            groups.item([&](auto &item) {
                item("id", group.id);
                item("straightLane", group.straightLane);
                item("leftTurnLane", group.leftTurnLane);
                item("rightTurnLane", group.rightTurnLane);
                item.list("areaList", "index", [&](auto &areas) {
                    for (int32_t k = 0; k < 3; ++k) {
                        auto &rect = group.area[k];
                        areas.item(k + 1, [&](auto &area) { // areas count from 1
                            area("color", group.color[k]);
                            area("left", rect.left);
                            area("top", rect.top);
                            area("right", rect.right);
                            area("bottom", rect.bottom);
                        });
                    }
                });
            });
        }
    });
})

/* ---- licence-plate result posting ---- */

MW_SETTABLE_RECORD_PAGE(ware_, lpr_post, lpr_post_record, nullptr, MW_NO_RULES, [](auto &a, auto &r) {
    a("postEvents", r.postEvents);
    a("automaticRetransmission", r.automaticRetransmission);

    a.object("http", [&](auto &http) {
        http("enable", r.httpEnable);
        http.list("httpList", "index", [&](auto &l) {
            for (int32_t k = 0; k < 3; ++k) { // all three, enabled or not
                auto &target = r.httpTargets[k];
                l.item(k, [&](auto &item) {
                    item("enable", target.enable);
                    item("url", target.url);
                    item("user", target.user);
                    item("password", target.password);
                    item("method", target.method);
                    item("snapshotType", target.snapshotType);
                    item("eventMask", target.eventMask);
                });
            }
        });
    });
    a.object("tcp", [&](auto &tcp) {
        tcp("enable", r.tcpEnable);
        tcp("port", r.tcpPort);
        tcp("eventMask", r.tcpEventMask);
    });
    a.object("MQTT", [&](auto &mqtt) {
        mqtt("enable", r.mqttEnable);
        mqtt("topic", r.mqttTopic);
        mqtt("port", r.mqttPort);
        mqtt("host", r.mqttHost);
        mqtt("user", r.mqttUser);
        mqtt("password", r.mqttPassword);
        mqtt("eventMask", r.mqttEventMask);
    });
    auto &options = r.postOptions;
    a.object("postOptions", [&](auto &items) {
        items("eventType", options.eventType);
        items("deviceInfo", options.deviceInfo);
        items("time", options.time);
        items("detectionRegion", options.detectionRegion);
        items("plate", options.plate);
        items("country", options.country);
        items("plateType", options.plateType);
        items("plateColor", options.plateColor);
        items("vehicleType", options.vehicleType);
        items("vehicleColor", options.vehicleColor);
        items("brand", options.brand);
        items("direction", options.direction);
        items("eventData", options.eventData);
        items("plateCoordinate", options.plateCoordinate);
        items("vehicleCoordinate", options.vehicleCoordinate);
        items("gps", options.gps); // before the images, though stored after them
        items("plateImage", options.plateImage);
        items("vehicleImage", options.vehicleImage);
        items("fullImage", options.fullImage);
        items("violationImage", options.violationImage);
    });
    a("templateMode", r.templateMode);
    a.object("more", [&](auto &more) { more("metadataEnable", r.metadataEnable); });
})

MW_SETTABLE_RECORD_PAGE(ware_, lpr_post_template, lpr_post_template_record, nullptr, MW_NO_RULES, [](auto &a, auto &r) {
    a("mode", r.mode);
    a("eventType", r.eventType);
    a("data", r.data);
})
