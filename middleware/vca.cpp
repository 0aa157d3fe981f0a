/*
 * vca.cpp - the video-analytics pages: the rules with their regions, the
 * analytics configuration and alarm states, counting, faces, line crossing,
 * left or removed objects, heat maps and the live people reports.
 */
#include "internal.h"

#include <cstdio>

namespace {

/* ---- shapes shared by the analytics rules ---- */

/* The object-size filter, "minX" .. "maxHeight". Every rule record names the
   eight fields alike, wherever it keeps them. */
template <typename A, typename Rule>
void size_filter(A &a, Rule &r)
{
    a("minX", r.minX);
    a("minY", r.minY);
    a("minWidth", r.minWidth);
    a("minHeight", r.minHeight);
    a("maxX", r.maxX);
    a("maxY", r.maxY);
    a("maxWidth", r.maxWidth);
    a("maxHeight", r.maxHeight);
}

/* "detectionInfoList": all four regions, disabled ones included. Each holds
   "regionIndex", the rule's own per-region values (`values(region, i)`), its
   polygon and "presetPolygonList" with the four preset polygons. */
template <typename A, typename Rule, typename Values>
void detection_info_list(A &a, Rule &r, Values &&values)
{
    a.list("detectionInfoList", "regionIndex", [&](auto &l) {
        for (int32_t i = 0; i < 4; ++i) {
            l.item(i, [&](auto &region) {
                values(region, i);
                region("polygonX", r.polygonX[i]);
                region("polygonY", r.polygonY[i]);
                region.list("presetPolygonList", "presetPolygonIndex", [&](auto &presets) {
                    for (int32_t p = 0; p < 4; ++p) {
                        presets.item(p, [&](auto &preset) {
                            preset("presetPolygonX", r.presetPolygonX[i][p]);
                            preset("presetPolygonY", r.presetPolygonY[i][p]);
                        });
                    }
                });
            });
        }
    });
}

/* The analytics actions have 13 slots; the configuration page loops over
   them once per group of keys, all keys of slot 0 before any of slot 1. */
constexpr int32_t kActionSlots = 13;

} // namespace

/* ---- rules with regions ---- */

MW_SETTABLE_PAGE(vca_install_mode, [](auto &a, auto &r) { a("Installation", r.Installation); })

namespace {

/* Entering and leaving a region: one rule, its first two keys named after
   the direction. */
template <typename A, typename Rule, typename Member>
void intrusion_rule(A &a, Rule &r, const char *sensitivityKey, Member &sensitivity, const char *trackingKey,
                    Member &tracking)
{
    a(mw::Name::fixed(sensitivityKey), sensitivity);
    a(mw::Name::fixed(trackingKey), tracking);
    a("scene", r.scene);
    size_filter(a, r);
    detection_info_list(a, r, [&](auto &region, int32_t i) {
        region("regionEnable", r.regionEnable[i]);
        region("detectionObject", r.detectionObject[i]);
    });
    mw::schedule_list(a, r.schedule);
}

} // namespace

MW_SETTABLE_PAGE(vca_region_entrance, [](auto &a, auto &r) {
    intrusion_rule(a, r, "intrusionEnterSens", r.intrusionEnterSens, "intrusionEnterTracking",
                   r.intrusionEnterTracking);
})

MW_SETTABLE_PAGE(vca_region_exit, [](auto &a, auto &r) {
    intrusion_rule(a, r, "intrusionExitSens", r.intrusionExitSens, "intrusionExitTracking", r.intrusionExitTracking);
})

MW_SETTABLE_PAGE(vca_advanced_motion, [](auto &a, auto &r) {
    a("advancedMotionSens", r.advancedMotionSens);
    a("advancedMotionTracking", r.advancedMotionTracking);
    a("scene", r.scene);
    a("ignoreShortLived", r.ignoreShortLived);
    size_filter(a, r);
    detection_info_list(a, r, [&](auto &region, int32_t i) {
        region("advancedMotionEnable", r.advancedMotionEnable[i]);
        region("advancedMotionDetectionObject", r.advancedMotionDetectionObject[i]);
    });
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(vca_loitering, [](auto &a, auto &r) {
    // No sensitivity: loitering is decided by the time spent in a region.
    a("loiteringTracking", r.loiteringTracking);
    a("scene", r.scene);
    size_filter(a, r);
    detection_info_list(a, r, [&](auto &region, int32_t i) {
        region("loiteringEnable", r.loiteringEnable[i]);
        region("loiteringDetectionObject", r.loiteringDetectionObject[i]);
        region("minLoiteringTime", r.minLoiteringTime[i]);
    });
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(vca_tamper, [](auto &a, auto &r) {
    a("tamperEnable", r.tamperEnable);
    a("tamperSens", r.tamperSens);
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(vca_human_detection, [](auto &a, auto &r) {
    a("humanEnable", r.humanEnable);
    a("humanShowTrackEnable", r.humanShowTrackEnable);
    a("humanSens", r.humanSens);
    a("humanTracking", r.humanTracking);
    // The days as flat keys on the root, not a "scheduleList".
    for (int32_t d = 0; d < 7; ++d)
        a(mw::Key<32>("humanSchedule_%d", d), r.humanSchedule[d]);
})

/* ---- configuration and alarm states ---- */

MW_SETTABLE_PAGE(vca_configuration, [](auto &a, auto &r) {
    a("vcaId", r.vcaId);
    a("vcaName", r.vcaName);
    a("vcaEnable", r.vcaEnable);
    a("vcaPeriodic", r.vcaPeriodic);
    a("vcaWeekdays", r.vcaWeekdays);
    a("vcaStartTime", r.vcaStartTime);
    a("vcaDuration", r.vcaDuration);
    a("triggerBootEnable", r.triggerBootEnable);
    a("triggerScheduleEnable", r.triggerScheduleEnable);

    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("uploadEnable_%d", s), r.uploadEnable[s]);
    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("uploadFileType_%d", s), r.uploadFileType[s]);
    a("uploadType", r.uploadType);
    a("uploadPostAlarm", r.uploadPostAlarm);

    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("emailEnable_%d", s), r.emailEnable[s]);
    a("emailFileType", r.emailFileType);
    a("emailPostAlarm", r.emailPostAlarm);
    a("email", r.email);
    a("emailSubject", r.emailSubject);
    a("emailInformation", r.emailInformation);
    a("emailUpload", r.emailUpload);

    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("httpEnable_%d", s), r.httpEnable[s]);
    a("httpPostAlarm", r.httpPostAlarm);
    a("httpInterval", r.httpInterval);

    for (int32_t s = 0; s < kActionSlots; ++s) {
        a(mw::Key<32>("recordEnable_%d", s), r.recordEnable[s]);
        a(mw::Key<32>("recordFileType_%d", s), r.recordFileType[s]);
    }
    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("gpoutEnable_%d", s), r.gpoutEnable[s]);
    for (int32_t s = 0; s < kActionSlots; ++s) {
        a(mw::Key<32>("nasEnable_%d", s), r.nasEnable[s]);
        a(mw::Key<32>("nasFileType_%d", s), r.nasFileType[s]);
    }
    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("sipEnable_%d", s), r.sipEnable[s]);
    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("audioEnable_%d", s), r.audioEnable[s]);
    for (int32_t s = 0; s < kActionSlots; ++s)
        a(mw::Key<32>("whitelightEnable_%d", s), r.whitelightEnable[s]);

    for (int32_t s = 0; s < kActionSlots; ++s) {
        a(mw::Key<32>("recordSecond_%d", s), r.recordSecond[s]);
        a(mw::Key<32>("prerecordSecond_%d", s), r.prerecordSecond[s]);
        a(mw::Key<32>("snapShot_%d", s), r.snapShot[s]);
        a(mw::Key<32>("snapShotInterval_%d", s), r.snapShotInterval[s]);
        a(mw::Key<32>("snapShotIntervalUnit_%d", s), r.snapShotIntervalUnit[s]);
        a(mw::Key<32>("triggerDuration_%d", s), r.triggerDuration[s]);
        a(mw::Key<32>("audioInterval_%d", s), r.audioInterval[s]);
        a(mw::Key<32>("emailInterval_%d", s), r.emailInterval[s]);
        a(mw::Key<32>("whiteledFlashMode_%d", s), r.whiteledFlashMode[s]);
        a(mw::Key<32>("whiteledFlashTime_%d", s), r.whiteledFlashTime[s]);
        a(mw::Key<32>("whiteledAlwaysTime_%d", s), r.whiteledAlwaysTime[s]);
        a(mw::Key<32>("whiteledEffectMode_%d", s), r.whiteledEffectMode[s]);
        a(mw::Key<32>("whiteledEffectValue_%d", s), r.whiteledEffectValue[s]);
        a(mw::Key<32>("whiteledStartHour_%d", s), r.whiteledStartHour[s]);
        a(mw::Key<32>("whiteledStartMinute_%d", s), r.whiteledStartMinute[s]);
        a(mw::Key<32>("whiteledStopHour_%d", s), r.whiteledStopHour[s]);
        a(mw::Key<32>("whiteledStopMinute_%d", s), r.whiteledStopMinute[s]);
        a(mw::Key<32>("whiteledGroup_%d", s), r.whiteledGroup[s]);
    }
})

MW_READ_ONLY_PAGE(vca_alarm_status, "live alarm states", [](auto &a, auto &r) {
    a("regionEntranceStatus", r.regionEntranceStatus); // no "Alarm" in this one
    a("regionExitAlarmStatus", r.regionExitAlarmStatus);
    a("advancedMotionAlarmStatus", r.advancedMotionAlarmStatus);
    a("tamperAlarmStatus", r.tamperAlarmStatus);
    a("loiteringAlarmStatus", r.loiteringAlarmStatus);
    a("peopleCountingStatus", r.peopleCountingStatus);
    a("currentCounterAlarmStatus", r.currentCounterAlarmStatus);
    a("humanAlarmStatus", r.humanAlarmStatus);
    a("currentInCount", r.currentInCount);
    a("currentOutCount", r.currentOutCount);
    a("currentSumCount", r.currentSumCount);
    a("currentCapacityCount", r.currentCapacityCount);
    a("objectLeftAlarmStatus", r.objectLeftAlarmStatus);
    a("objectRemoveAlarmStatus", r.objectRemoveAlarmStatus);
    a("vehicleCountingStatus", r.vehicleCountingStatus);
    a("currentVehicleAlarm", r.currentVehicleAlarm);
    a("vehicleInCount", r.vehicleInCount);
    a("vehicleOutCount", r.vehicleOutCount);
    a("vehicleSumCount", r.vehicleSumCount);
    a("vehicleCapacityCount", r.vehicleCapacityCount);
    a("regionalPeopleStatus", r.regionalPeopleStatus);
    a.list("lineCrossAlarmList", "lineIndex", [&](auto &l) {
        for (int32_t i = 0; i < 4; ++i)
            l.item(i, [&](auto &line) { line("alarmStatus", r.lineAlarmStatus[i]); });
    });
})

MW_READ_ONLY_PAGE(vca_all_alarm_status, "live alarm states", [](auto &a, auto &r) {
    a("motionAlarmStatus", r.motionAlarmStatus);
    a("audioAlarmStatus", r.audioAlarmStatus);
    a("networkLostAlarmStatus", r.networkLostAlarmStatus);
    a("ipConflictAlarmStatus", r.ipConflictAlarmStatus);
    a("recordFailedAlarmStatus", r.recordFailedAlarmStatus);
    a("sdFullAlarmStatus", r.sdFullAlarmStatus);
    a("sdUninitAlarmStatus", r.sdUninitAlarmStatus);
    a("sdErrorAlarmStatus", r.sdErrorAlarmStatus);
    a("noSdAlarmStatus", r.noSdAlarmStatus);
    a("subMotionAlarmStatus", r.subMotionAlarmStatus);
    a("thirdMotionAlarmStatus", r.thirdMotionAlarmStatus);
    a("fourthMotionAlarmStatus", r.fourthMotionAlarmStatus);
    a("fifthMotionAlarmStatus", r.fifthMotionAlarmStatus);
    a("alarmArea", r.alarmArea);
    a("lprBlackStatus", r.lprBlackStatus);
    a("lprWhiteStatus", r.lprWhiteStatus);
    a("lprVisitorStatus", r.lprVisitorStatus);
    a("lprAttrStatus", r.lprAttrStatus);
    a.list("inputAlarmList", "inputAlarmIndex", [&](auto &l) {
        for (int32_t i = 0; i < 4; ++i)
            l.item(i, [&](auto &input) { input("status", r.inputAlarmStatus[i]); });
    });
    a.list("outputAlarmList", "outputAlarmIndex", [&](auto &l) {
        for (int32_t o = 0; o < 2; ++o)
            l.item(o, [&](auto &output) { output("status", r.outputAlarmStatus[o]); });
    });
})

MW_READ_ONLY_PAGE_OF(vca_exception_alarm_status, vca_all_alarm_status_record, "live alarm states", [](auto &a, auto &r) {
    a("netlostEnable", r.netlostEnable);
    a("networkLostAlarmStatus", r.networkLostAlarmStatus);
    a("ipconflictEnable", r.ipconflictEnable);
    a("ipconflictAlarmStatus", r.ipConflictAlarmStatus); // lower-case c in this document
    a("recordFailedEnable", r.recordFailedEnable);
    a("recordFailedAlarmStatus", r.recordFailedAlarmStatus);
    a("sdFullEnable", r.sdFullEnable);
    a("sdFullAlarmStatus", r.sdFullAlarmStatus);
    a("sdUninitEnable", r.sdUninitEnable);
    a("sdUninitAlarmStatus", r.sdUninitAlarmStatus);
    a("sdErrorEnable", r.sdErrorEnable);
    a("sdErrorAlarmStatus", r.sdErrorAlarmStatus);
    a("noSdEnable", r.noSdEnable);
    a("noSdAlarmStatus", r.noSdAlarmStatus);
    a("tamperEnable", r.tamperEnable);
    a("tamperAlarmStatus", r.tamperAlarmStatus);
})

/* ---- counting, faces, line crossing, left or removed objects ---- */

namespace {

/* A crossing line's end points x1 y1 x2 y2 as "x1;y1;x2;y2", in 32 bytes: a
   longer text is cut at 31 characters. */
mw::Text<32> line_text(const int32_t (&points)[4])
{
    return mw::Text<32>("%d;%d;%d;%d", static_cast<int>(points[0]), static_cast<int>(points[1]),
                        static_cast<int>(points[2]), static_cast<int>(points[3]));
}

} // namespace

MW_SETTABLE_PAGE(vca_counting, [](auto &a, auto &r) {
    a("peopleCountingSens", r.peopleCountingSens);
    a("scene", r.scene);
    a("showOsdEnable", r.showOsdEnable);
    a("osdType", r.osdType);
    a("osdFontSize", r.osdFontSize);
    a("osdTextPosition", r.osdTextPosition);
    a("osdFontColor", r.osdFontColor);
    a("alarmTriggerEnable", r.alarmTriggerEnable);
    a("countTriggerType", r.countTriggerType);
    a("allLineInAlarmEnable", r.allLineInAlarmEnable);
    a("allLineOutAlarmEnanble", r.allLineOutAlarmEnable); // the pages read this spelling
    a("allLineCapacityAlarmEnable", r.allLineCapacityAlarmEnable);
    a("allLineSumAlarmEnable", r.allLineSumAlarmEnable);
    a("allLineInAlarmThresholds", r.allLineInAlarmThresholds);
    a("allLineOutAlarmThresholds", r.allLineOutAlarmThresholds);
    a("allLineCapacityAlarmThresholds", r.allLineCapacityAlarmThresholds);
    a("allLineSumAlarmThresholds", r.allLineSumAlarmThresholds);
    size_filter(a, r);

    // An array of the counting lines, under a singular name.
    a.list("crossedLine", "lineIndex", [&](auto &lines) {
        for (int32_t l = 0; l < 4; ++l) {
            lines.item(l, [&](auto &line) {
                line("lineEnable", r.lineEnable[l]);
                line("lineInAlarmEnable", r.lineInAlarmEnable[l]);
                line("lineOutAlarmEnable", r.lineOutAlarmEnable[l]);
                line("lineCapacityAlarmEnable", r.lineCapacityAlarmEnable[l]);
                line("lineSumAlarmEnable", r.lineSumAlarmEnable[l]);
                line("lineInAlarmThresholds", r.lineInAlarmThresholds[l]);
                line("lineOutAlarmThresholds", r.lineOutAlarmThresholds[l]);
                line("lineCapacityAlarmThresholds", r.lineCapacityAlarmThresholds[l]);
                line("lineSumAlarmThresholds", r.lineSumAlarmThresholds[l]);
                line("lineShowCountingEnable", r.lineShowCountingEnable[l]);
                line("lineAutoResetEnable", r.lineAutoResetEnable[l]);
                line("lineAutoResetWeekday", r.lineAutoResetWeekday[l]);
                line("lineAutoResetHour", r.lineAutoResetHour[l]);
                line("lineAutoResetMin", r.lineAutoResetMin[l]);
                line("lineAutoResetSec", r.lineAutoResetSec[l]);
                line("lineDirection", r.lineDirection[l]);
                line("countLine", r.countLine[l]);
                line.list("presetLineList", "presetLineIndex", [&](auto &presets) {
                    for (int32_t p = 0; p < 4; ++p) {
                        presets.item(p, [&](auto &preset) {
                            preset("presetDirection", r.presetDirection[l][p]);
                            preset("presetCountLine", r.presetCountLine[l][p]);
                        });
                    }
                });
            });
        }
    });
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(vca_face_detection, [](auto &a, auto &r) {
    a("mosaicModeStatus", r.mosaicModeStatus);
    a("faceEnable", r.faceEnable);
    a("faceMinPixel", r.faceMinPixel);
    a("captureMode", r.captureMode);
    a("snapshotInterval", r.snapshotInterval);
    a("poseRoll", r.poseRoll);
    a("posePitch", r.posePitch);
    a("poseYaw", r.poseYaw);
    a("blurlimit", r.blurlimit);
    a("snapshotType", r.snapshotType);
    a("snapshotBackground", r.snapshotBackground);
    a("postEnable", r.postEnable);
    a("postType", r.postType);
    a("attributeEnable", r.attributeEnable);
    a("attributeType", r.attributeType);
    a("mosaicEnable", r.mosaicEnable);
    a("polygonX", r.polygonX);
    a("polygonY", r.polygonY);
    a.list("shieldRegionList", "shieldIndex", [&](auto &l) {
        for (int32_t s = 0; s < 4; ++s) {
            l.item(s, [&](auto &shield) {
                shield("shieldRegionEnable", r.shieldRegionEnable[s]);
                shield("polygonX", r.shieldPolygonX[s]);
                shield("polygonY", r.shieldPolygonY[s]);
            });
        }
    });
    a.list("captureSettingsList", "captureIndex", [&](auto &l) {
        for (int32_t k = 0; k < 3; ++k) {
            l.item(k, [&](auto &capture) {
                capture("captureQuality", r.captureQuality[k]);
                capture("snapshotMaxPush", r.snapshotMaxPush[k]);
            });
        }
    });
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE_OF(vca_all_linecrossing, vca_line_crossing_record, [](auto &a, auto &r) {
    a("lineCrossingSens", r.lineCrossingSens);
    a("lineCrossingTracking", r.lineCrossingTracking);
    a("scene", r.scene);
    size_filter(a, r);
    a.list("detectionInfoList", "lineIndex", [&](auto &lines) {
        for (int32_t l = 0; l < 4; ++l) {
            auto &entry = r.lines[l];
            lines.item(l, [&](auto &line) {
                line("lineCrossingEnable", r.lineCrossingEnable[l]);
                line("lineCrossingDetectionObject", r.lineCrossingDetectionObject[l]);
                line("direction", entry.direction);
                // The end points are joined into one text: read-only.
                line.derived("crossedLine", line_text(entry.crossedLine));
                line.list("presetLineList", "presetLineIndex", [&](auto &presets) {
                    for (int32_t p = 0; p < 4; ++p) {
                        presets.item(p, [&](auto &preset) {
                            preset("presetDirection", entry.presetDirection[p]);
                            preset.derived("presetCrossedLine", line_text(entry.presetCrossedLine[p]));
                        });
                    }
                });
            });
        }
    });
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(vca_left_remove, [](auto &a, auto &r) {
    a("leftRemoveSens", r.leftRemoveSens);
    a("leftRemoveTracking", r.leftRemoveTracking);
    a("scene", r.scene);
    a("minTime", r.minTime);
    size_filter(a, r);
    detection_info_list(a, r, [&](auto &region, int32_t i) {
        region("leftEnable", r.leftEnable[i]);
        region("removeEnable", r.removeEnable[i]);
    });
    mw::schedule_list(a, r.schedule);
})

/* ---- heat maps and people data ---- */

MW_SETTABLE_PAGE(vca_heat_map, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("sensitivity", r.sensitivity);
    a("minSize", r.minSize);
    a("minDwellTime", r.minDwellTime);
    a("adaptability", r.adaptability);
    a("mask", r.mask);
    a("supportHeatMap", r.supportHeatMap);
    a("supportHeatMapEnable", r.supportHeatMapEnable);
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(vca_auto_export_heat, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("weekday", r.weekday);
    a("hour", r.hour);
    a("min", r.min);
    a("sec", r.sec);
    a("timeRange", r.timeRange);
    a("method", r.method); // last, though stored first: the page reads it so
})

MW_SETTABLE_PAGE(vca_region_people, [](auto &a, auto &r) {
    a("regionPeopleCountingSens", r.regionPeopleCountingSens);
    a("scene", r.scene);
    size_filter(a, r);
    detection_info_list(a, r, [&](auto &region, int32_t i) {
        region("regionEnable", r.regionEnable[i]);
        region("maxStayEnable", r.maxStayEnable[i]);
        region("minStayEnable", r.minStayEnable[i]);
        region("maxStayTimeEnable", r.maxStayTimeEnable[i]);
        region("maxStay", r.maxStay[i]);
        region("minStay", r.minStay[i]);
        region("maxStayTime", r.maxStayTime[i]);
    });
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(vca_regional_auto_export, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("method", r.method);
    a("weekday", r.weekday);
    // The time is joined from three members into one text: read-only.
    a.derived("time", mw::Text<32>("%02d:%02d:%02d", static_cast<int>(r.hour), static_cast<int>(r.minute),
                                   static_cast<int>(r.second)));
    a("timeRange", r.timeRange);
    a("stayType", r.stayType);
    a("stayLength", r.stayLength);
})

MW_READ_ONLY_PAGE(vca_person_point, "live tracking report", [](auto &a, auto &r) {
    a("personNum", r.personNum);
    a.list("personList", nullptr, [&](auto &l) {
        // personNum counts the valid tracks and is printed as stored; the
        // list stops at the arrays whatever it says (0 or below: empty).
        for (int32_t i = 0; i < r.personNum && i < 256; ++i) {
            l.item([&](auto &person) {
                person("id", r.id[i]);
                person("type", r.type[i]);
                person("startX", r.startX[i]);
                person("startY", r.startY[i]);
                person("stopX", r.stopX[i]);
                person("stopY", r.stopY[i]);
                person("alarmRegion", r.alarmRegion[i]);
            });
        }
    });
})

MW_READ_ONLY_PAGE(vca_people_counting_data, "live counters", [](auto &a, auto &r) {
    a.list("peopleList", "index", [&](auto &l) {
        for (int32_t i = 0; i < 4; ++i) {
            l.item(i, [&](auto &line) {
                line("inCount", r.inCount[i]);
                line("outCount", r.outCount[i]);
                line("sumCount", r.sumCount[i]);
                line("capacityCount", r.capacityCount[i]);
            });
        }
    });
})

MW_READ_ONLY_PAGE(vca_regional_people_data, "live people report", [](auto &a, auto &r) {
    a("regionsAlarmStatus", r.regionsAlarmStatus);
    a("regionsStayAlarmStatus", r.regionsStayAlarmStatus);
    a.list("peopleNumList", "region", [&](auto &l) {
        for (int32_t k = 0; k < 4; ++k)
            l.item(k, [&](auto &region) { region("num", r.num[k]); });
    });
    a.list("peopleDataInfo", nullptr, [&](auto &l) {
        // peopleCount counts the valid entries; the list stops at the
        // arrays whatever it says (0 or below: empty).
        for (int32_t i = 0; i < r.peopleCount && i < 50; ++i) {
            l.item([&](auto &person) {
                person("id", r.id[i]);
                person("class", r.class_[i]);
                person("left", r.left[i]);
                person("top", r.top[i]);
                person("right", r.right[i]);
                person("bottom", r.bottom[i]);
                person("stayAlarmStatus", r.stayAlarmStatus[i]);
                person("exsitStatus", r.exsitStatus[i]); // the pages read this spelling
                person.list("peopleStayList", nullptr, [&](auto &stays) {
                    for (int32_t k = 0; k < 4; ++k) // no index key: the position is the region
                        stays.item([&](auto &stay) { stay("stayTime", r.stayTime[i][k]); });
                });
            });
        }
    });
})
