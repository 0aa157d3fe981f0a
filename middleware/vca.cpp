/*
 * vca.cpp - the video-analytics pages: the rules with their regions, the
 * analytics configuration and alarm states, counting, faces, line crossing,
 * left or removed objects, heat maps and the live people reports.
 */
#include "internal.h"

#include <cstdio>

using mw::add;

namespace {

/* ---- shapes shared by the analytics rules ---- */

/* The object-size filter, "minX" .. "maxHeight". Every rule record names the
   eight fields alike, wherever it keeps them. */
template <typename Rule>
void add_size_filter(cJSON *o, const Rule *in)
{
    add(o, "minX", in->minX);
    add(o, "minY", in->minY);
    add(o, "minWidth", in->minWidth);
    add(o, "minHeight", in->minHeight);
    add(o, "maxX", in->maxX);
    add(o, "maxY", in->maxY);
    add(o, "maxWidth", in->maxWidth);
    add(o, "maxHeight", in->maxHeight);
}

/* A per-region value reported in each region object: its key and the rule's
   four-element array it comes from. */
struct RegionValue {
    const char *key;
    const int32_t (*values)[4];
};

/* "detectionInfoList": all four regions, disabled ones included. Each holds
   "regionIndex", the rule's own per-region values in the given order, its
   polygon and "presetPolygonList" with the four preset polygons. */
template <typename Rule, size_t N>
void add_detection_info_list(cJSON *root, const Rule *in, const RegionValue (&perRegion)[N])
{
    cJSON *list = mw::array(root, "detectionInfoList");
    for (int32_t r = 0; r < 4; ++r) {
        cJSON *region = mw::append_object(list);
        add(region, "regionIndex", r);
        for (const RegionValue &v : perRegion)
            add(region, v.key, (*v.values)[r]);
        add(region, "polygonX", in->polygonX[r]);
        add(region, "polygonY", in->polygonY[r]);
        cJSON *presets = mw::array(region, "presetPolygonList");
        for (int32_t p = 0; p < 4; ++p) {
            cJSON *preset = mw::append_object(presets);
            add(preset, "presetPolygonIndex", p);
            add(preset, "presetPolygonX", in->presetPolygonX[r][p]);
            add(preset, "presetPolygonY", in->presetPolygonY[r][p]);
        }
    }
}

} // namespace

/* ---- rules with regions ---- */

int32_t get_vca_install_mode_json(const vca_install_mode_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "Installation", in->Installation); });
}

int32_t get_vca_region_entrance_json(const vca_region_entrance_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "intrusionEnterSens", in->intrusionEnterSens);
        add(root, "intrusionEnterTracking", in->intrusionEnterTracking);
        add(root, "scene", in->scene);
        add_size_filter(root, in);
        const RegionValue perRegion[] = {
            {"regionEnable", &in->regionEnable},
            {"detectionObject", &in->detectionObject},
        };
        add_detection_info_list(root, in, perRegion);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_region_exit_json(const vca_region_exit_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "intrusionExitSens", in->intrusionExitSens);
        add(root, "intrusionExitTracking", in->intrusionExitTracking);
        add(root, "scene", in->scene);
        add_size_filter(root, in);
        const RegionValue perRegion[] = {
            {"regionEnable", &in->regionEnable},
            {"detectionObject", &in->detectionObject},
        };
        add_detection_info_list(root, in, perRegion);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_advanced_motion_json(const vca_advanced_motion_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "advancedMotionSens", in->advancedMotionSens);
        add(root, "advancedMotionTracking", in->advancedMotionTracking);
        add(root, "scene", in->scene);
        add(root, "ignoreShortLived", in->ignoreShortLived);
        add_size_filter(root, in);
        const RegionValue perRegion[] = {
            {"advancedMotionEnable", &in->advancedMotionEnable},
            {"advancedMotionDetectionObject", &in->advancedMotionDetectionObject},
        };
        add_detection_info_list(root, in, perRegion);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_loitering_json(const vca_loitering_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        // No sensitivity: loitering is decided by the time spent in a region.
        add(root, "loiteringTracking", in->loiteringTracking);
        add(root, "scene", in->scene);
        add_size_filter(root, in);
        const RegionValue perRegion[] = {
            {"loiteringEnable", &in->loiteringEnable},
            {"loiteringDetectionObject", &in->loiteringDetectionObject},
            {"minLoiteringTime", &in->minLoiteringTime},
        };
        add_detection_info_list(root, in, perRegion);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_tamper_json(const vca_tamper_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "tamperEnable", in->tamperEnable);
        add(root, "tamperSens", in->tamperSens);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_human_detection_json(const vca_human_detection_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "humanEnable", in->humanEnable);
        add(root, "humanShowTrackEnable", in->humanShowTrackEnable);
        add(root, "humanSens", in->humanSens);
        add(root, "humanTracking", in->humanTracking);
        // The days as flat keys on the root, not a "scheduleList".
        for (int32_t d = 0; d < 7; ++d)
            add(root, mw::Key<32>("humanSchedule_%d", d), in->humanSchedule[d]);
    });
}

/* ---- configuration and alarm states ---- */

namespace {

/* A slot-indexed key: its format ("uploadEnable_%d") and the [13] array it
   reports, slot s under the key formatted with s. */
struct SlotValue {
    const char *format;
    const int32_t (*values)[13];
};

/* One loop over the 13 action slots; within a slot the formats alternate in
   the order given, so all keys of slot 0 come before any of slot 1. */
template <size_t N>
void add_slot_loop(cJSON *root, const SlotValue (&formats)[N])
{
    for (int32_t s = 0; s < 13; ++s)
        for (const SlotValue &f : formats)
            add(root, mw::Key<32>(f.format, s), (*f.values)[s]);
}

} // namespace

int32_t get_vca_configuration_json(const vca_configuration_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "vcaId", in->vcaId);
        add(root, "vcaName", in->vcaName);
        add(root, "vcaEnable", in->vcaEnable);
        add(root, "vcaPeriodic", in->vcaPeriodic);
        add(root, "vcaWeekdays", in->vcaWeekdays);
        add(root, "vcaStartTime", in->vcaStartTime);
        add(root, "vcaDuration", in->vcaDuration);
        add(root, "triggerBootEnable", in->triggerBootEnable);
        add(root, "triggerScheduleEnable", in->triggerScheduleEnable);

        const SlotValue upload[] = {{"uploadEnable_%d", &in->uploadEnable}};
        add_slot_loop(root, upload);
        const SlotValue uploadFile[] = {{"uploadFileType_%d", &in->uploadFileType}};
        add_slot_loop(root, uploadFile);
        add(root, "uploadType", in->uploadType);
        add(root, "uploadPostAlarm", in->uploadPostAlarm);

        const SlotValue email[] = {{"emailEnable_%d", &in->emailEnable}};
        add_slot_loop(root, email);
        add(root, "emailFileType", in->emailFileType);
        add(root, "emailPostAlarm", in->emailPostAlarm);
        add(root, "email", in->email);
        add(root, "emailSubject", in->emailSubject);
        add(root, "emailInformation", in->emailInformation);
        add(root, "emailUpload", in->emailUpload);

        const SlotValue http[] = {{"httpEnable_%d", &in->httpEnable}};
        add_slot_loop(root, http);
        add(root, "httpPostAlarm", in->httpPostAlarm);
        add(root, "httpInterval", in->httpInterval);

        const SlotValue record[] = {
            {"recordEnable_%d", &in->recordEnable},
            {"recordFileType_%d", &in->recordFileType},
        };
        add_slot_loop(root, record);
        const SlotValue gpout[] = {{"gpoutEnable_%d", &in->gpoutEnable}};
        add_slot_loop(root, gpout);
        const SlotValue nas[] = {
            {"nasEnable_%d", &in->nasEnable},
            {"nasFileType_%d", &in->nasFileType},
        };
        add_slot_loop(root, nas);
        const SlotValue sip[] = {{"sipEnable_%d", &in->sipEnable}};
        add_slot_loop(root, sip);
        const SlotValue audio[] = {{"audioEnable_%d", &in->audioEnable}};
        add_slot_loop(root, audio);
        const SlotValue whitelight[] = {{"whitelightEnable_%d", &in->whitelightEnable}};
        add_slot_loop(root, whitelight);

        const SlotValue timing[] = {
            {"recordSecond_%d", &in->recordSecond},
            {"prerecordSecond_%d", &in->prerecordSecond},
            {"snapShot_%d", &in->snapShot},
            {"snapShotInterval_%d", &in->snapShotInterval},
            {"snapShotIntervalUnit_%d", &in->snapShotIntervalUnit},
            {"triggerDuration_%d", &in->triggerDuration},
            {"audioInterval_%d", &in->audioInterval},
            {"emailInterval_%d", &in->emailInterval},
            {"whiteledFlashMode_%d", &in->whiteledFlashMode},
            {"whiteledFlashTime_%d", &in->whiteledFlashTime},
            {"whiteledAlwaysTime_%d", &in->whiteledAlwaysTime},
            {"whiteledEffectMode_%d", &in->whiteledEffectMode},
            {"whiteledEffectValue_%d", &in->whiteledEffectValue},
            {"whiteledStartHour_%d", &in->whiteledStartHour},
            {"whiteledStartMinute_%d", &in->whiteledStartMinute},
            {"whiteledStopHour_%d", &in->whiteledStopHour},
            {"whiteledStopMinute_%d", &in->whiteledStopMinute},
            {"whiteledGroup_%d", &in->whiteledGroup},
        };
        add_slot_loop(root, timing);
    });
}

int32_t get_vca_alarm_status_json(const vca_alarm_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "regionEntranceStatus", in->regionEntranceStatus); // no "Alarm" in this one
        add(root, "regionExitAlarmStatus", in->regionExitAlarmStatus);
        add(root, "advancedMotionAlarmStatus", in->advancedMotionAlarmStatus);
        add(root, "tamperAlarmStatus", in->tamperAlarmStatus);
        add(root, "loiteringAlarmStatus", in->loiteringAlarmStatus);
        add(root, "peopleCountingStatus", in->peopleCountingStatus);
        add(root, "currentCounterAlarmStatus", in->currentCounterAlarmStatus);
        add(root, "humanAlarmStatus", in->humanAlarmStatus);
        add(root, "currentInCount", in->currentInCount);
        add(root, "currentOutCount", in->currentOutCount);
        add(root, "currentSumCount", in->currentSumCount);
        add(root, "currentCapacityCount", in->currentCapacityCount);
        add(root, "objectLeftAlarmStatus", in->objectLeftAlarmStatus);
        add(root, "objectRemoveAlarmStatus", in->objectRemoveAlarmStatus);
        add(root, "vehicleCountingStatus", in->vehicleCountingStatus);
        add(root, "currentVehicleAlarm", in->currentVehicleAlarm);
        add(root, "vehicleInCount", in->vehicleInCount);
        add(root, "vehicleOutCount", in->vehicleOutCount);
        add(root, "vehicleSumCount", in->vehicleSumCount);
        add(root, "vehicleCapacityCount", in->vehicleCapacityCount);
        add(root, "regionalPeopleStatus", in->regionalPeopleStatus);
        cJSON *lines = mw::array(root, "lineCrossAlarmList");
        for (int32_t l = 0; l < 4; ++l) {
            cJSON *line = mw::append_object(lines);
            add(line, "lineIndex", l);
            add(line, "alarmStatus", in->lineAlarmStatus[l]);
        }
    });
}

int32_t get_vca_all_alarm_status_json(const vca_all_alarm_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "motionAlarmStatus", in->motionAlarmStatus);
        add(root, "audioAlarmStatus", in->audioAlarmStatus);
        add(root, "networkLostAlarmStatus", in->networkLostAlarmStatus);
        add(root, "ipConflictAlarmStatus", in->ipConflictAlarmStatus);
        add(root, "recordFailedAlarmStatus", in->recordFailedAlarmStatus);
        add(root, "sdFullAlarmStatus", in->sdFullAlarmStatus);
        add(root, "sdUninitAlarmStatus", in->sdUninitAlarmStatus);
        add(root, "sdErrorAlarmStatus", in->sdErrorAlarmStatus);
        add(root, "noSdAlarmStatus", in->noSdAlarmStatus);
        add(root, "subMotionAlarmStatus", in->subMotionAlarmStatus);
        add(root, "thirdMotionAlarmStatus", in->thirdMotionAlarmStatus);
        add(root, "fourthMotionAlarmStatus", in->fourthMotionAlarmStatus);
        add(root, "fifthMotionAlarmStatus", in->fifthMotionAlarmStatus);
        add(root, "alarmArea", in->alarmArea);
        add(root, "lprBlackStatus", in->lprBlackStatus);
        add(root, "lprWhiteStatus", in->lprWhiteStatus);
        add(root, "lprVisitorStatus", in->lprVisitorStatus);
        add(root, "lprAttrStatus", in->lprAttrStatus);
        cJSON *inputs = mw::array(root, "inputAlarmList");
        for (int32_t i = 0; i < 4; ++i) {
            cJSON *input = mw::append_object(inputs);
            add(input, "inputAlarmIndex", i);
            add(input, "status", in->inputAlarmStatus[i]);
        }
        cJSON *outputs = mw::array(root, "outputAlarmList");
        for (int32_t o = 0; o < 2; ++o) {
            cJSON *output = mw::append_object(outputs);
            add(output, "outputAlarmIndex", o);
            add(output, "status", in->outputAlarmStatus[o]);
        }
    });
}

int32_t get_vca_exception_alarm_status_json(const vca_all_alarm_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "netlostEnable", in->netlostEnable);
        add(root, "networkLostAlarmStatus", in->networkLostAlarmStatus);
        add(root, "ipconflictEnable", in->ipconflictEnable);
        add(root, "ipconflictAlarmStatus", in->ipConflictAlarmStatus); // lower-case c in this document
        add(root, "recordFailedEnable", in->recordFailedEnable);
        add(root, "recordFailedAlarmStatus", in->recordFailedAlarmStatus);
        add(root, "sdFullEnable", in->sdFullEnable);
        add(root, "sdFullAlarmStatus", in->sdFullAlarmStatus);
        add(root, "sdUninitEnable", in->sdUninitEnable);
        add(root, "sdUninitAlarmStatus", in->sdUninitAlarmStatus);
        add(root, "sdErrorEnable", in->sdErrorEnable);
        add(root, "sdErrorAlarmStatus", in->sdErrorAlarmStatus);
        add(root, "noSdEnable", in->noSdEnable);
        add(root, "noSdAlarmStatus", in->noSdAlarmStatus);
        add(root, "tamperEnable", in->tamperEnable);
        add(root, "tamperAlarmStatus", in->tamperAlarmStatus);
    });
}

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

int32_t get_vca_counting_json(const vca_counting_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "peopleCountingSens", in->peopleCountingSens);
        add(root, "scene", in->scene);
        add(root, "showOsdEnable", in->showOsdEnable);
        add(root, "osdType", in->osdType);
        add(root, "osdFontSize", in->osdFontSize);
        add(root, "osdTextPosition", in->osdTextPosition);
        add(root, "osdFontColor", in->osdFontColor);
        add(root, "alarmTriggerEnable", in->alarmTriggerEnable);
        add(root, "countTriggerType", in->countTriggerType);
        add(root, "allLineInAlarmEnable", in->allLineInAlarmEnable);
        add(root, "allLineOutAlarmEnanble", in->allLineOutAlarmEnable); // the pages read this spelling
        add(root, "allLineCapacityAlarmEnable", in->allLineCapacityAlarmEnable);
        add(root, "allLineSumAlarmEnable", in->allLineSumAlarmEnable);
        add(root, "allLineInAlarmThresholds", in->allLineInAlarmThresholds);
        add(root, "allLineOutAlarmThresholds", in->allLineOutAlarmThresholds);
        add(root, "allLineCapacityAlarmThresholds", in->allLineCapacityAlarmThresholds);
        add(root, "allLineSumAlarmThresholds", in->allLineSumAlarmThresholds);
        add_size_filter(root, in);

        // An array of the counting lines, under a singular name.
        cJSON *lines = mw::array(root, "crossedLine");
        for (int32_t l = 0; l < 4; ++l) {
            cJSON *line = mw::append_object(lines);
            add(line, "lineIndex", l);
            add(line, "lineEnable", in->lineEnable[l]);
            add(line, "lineInAlarmEnable", in->lineInAlarmEnable[l]);
            add(line, "lineOutAlarmEnable", in->lineOutAlarmEnable[l]);
            add(line, "lineCapacityAlarmEnable", in->lineCapacityAlarmEnable[l]);
            add(line, "lineSumAlarmEnable", in->lineSumAlarmEnable[l]);
            add(line, "lineInAlarmThresholds", in->lineInAlarmThresholds[l]);
            add(line, "lineOutAlarmThresholds", in->lineOutAlarmThresholds[l]);
            add(line, "lineCapacityAlarmThresholds", in->lineCapacityAlarmThresholds[l]);
            add(line, "lineSumAlarmThresholds", in->lineSumAlarmThresholds[l]);
            add(line, "lineShowCountingEnable", in->lineShowCountingEnable[l]);
            add(line, "lineAutoResetEnable", in->lineAutoResetEnable[l]);
            add(line, "lineAutoResetWeekday", in->lineAutoResetWeekday[l]);
            add(line, "lineAutoResetHour", in->lineAutoResetHour[l]);
            add(line, "lineAutoResetMin", in->lineAutoResetMin[l]);
            add(line, "lineAutoResetSec", in->lineAutoResetSec[l]);
            add(line, "lineDirection", in->lineDirection[l]);
            add(line, "countLine", in->countLine[l]);
            cJSON *presets = mw::array(line, "presetLineList");
            for (int32_t p = 0; p < 4; ++p) {
                cJSON *preset = mw::append_object(presets);
                add(preset, "presetLineIndex", p);
                add(preset, "presetDirection", in->presetDirection[l][p]);
                add(preset, "presetCountLine", in->presetCountLine[l][p]);
            }
        }
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_face_detection_json(const vca_face_detection_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "mosaicModeStatus", in->mosaicModeStatus);
        add(root, "faceEnable", in->faceEnable);
        add(root, "faceMinPixel", in->faceMinPixel);
        add(root, "captureMode", in->captureMode);
        add(root, "snapshotInterval", in->snapshotInterval);
        add(root, "poseRoll", in->poseRoll);
        add(root, "posePitch", in->posePitch);
        add(root, "poseYaw", in->poseYaw);
        add(root, "blurlimit", in->blurlimit);
        add(root, "snapshotType", in->snapshotType);
        add(root, "snapshotBackground", in->snapshotBackground);
        add(root, "postEnable", in->postEnable);
        add(root, "postType", in->postType);
        add(root, "attributeEnable", in->attributeEnable);
        add(root, "attributeType", in->attributeType);
        add(root, "mosaicEnable", in->mosaicEnable);
        add(root, "polygonX", in->polygonX);
        add(root, "polygonY", in->polygonY);
        cJSON *shields = mw::array(root, "shieldRegionList");
        for (int32_t s = 0; s < 4; ++s) {
            cJSON *shield = mw::append_object(shields);
            add(shield, "shieldIndex", s);
            add(shield, "shieldRegionEnable", in->shieldRegionEnable[s]);
            add(shield, "polygonX", in->shieldPolygonX[s]);
            add(shield, "polygonY", in->shieldPolygonY[s]);
        }
        cJSON *captures = mw::array(root, "captureSettingsList");
        for (int32_t k = 0; k < 3; ++k) {
            cJSON *capture = mw::append_object(captures);
            add(capture, "captureIndex", k);
            add(capture, "captureQuality", in->captureQuality[k]);
            add(capture, "snapshotMaxPush", in->snapshotMaxPush[k]);
        }
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_all_linecrossing_json(const vca_line_crossing_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "lineCrossingSens", in->lineCrossingSens);
        add(root, "lineCrossingTracking", in->lineCrossingTracking);
        add(root, "scene", in->scene);
        add_size_filter(root, in);
        cJSON *lines = mw::array(root, "detectionInfoList");
        for (int32_t l = 0; l < 4; ++l) {
            const vca_crossing_line_entry &entry = in->lines[l];
            cJSON *line = mw::append_object(lines);
            add(line, "lineIndex", l);
            add(line, "lineCrossingEnable", in->lineCrossingEnable[l]);
            add(line, "lineCrossingDetectionObject", in->lineCrossingDetectionObject[l]);
            add(line, "direction", entry.direction);
            mw::add_string(line, "crossedLine", line_text(entry.crossedLine));
            cJSON *presets = mw::array(line, "presetLineList");
            for (int32_t p = 0; p < 4; ++p) {
                cJSON *preset = mw::append_object(presets);
                add(preset, "presetLineIndex", p);
                add(preset, "presetDirection", entry.presetDirection[p]);
                mw::add_string(preset, "presetCrossedLine", line_text(entry.presetCrossedLine[p]));
            }
        }
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_left_remove_json(const vca_left_remove_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "leftRemoveSens", in->leftRemoveSens);
        add(root, "leftRemoveTracking", in->leftRemoveTracking);
        add(root, "scene", in->scene);
        add(root, "minTime", in->minTime);
        add_size_filter(root, in);
        const RegionValue perRegion[] = {
            {"leftEnable", &in->leftEnable},
            {"removeEnable", &in->removeEnable},
        };
        add_detection_info_list(root, in, perRegion);
        mw::add_schedule_list(root, in->schedule);
    });
}

/* ---- heat maps and people data ---- */

int32_t get_vca_heat_map_json(const vca_heat_map_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "sensitivity", in->sensitivity);
        add(root, "minSize", in->minSize);
        add(root, "minDwellTime", in->minDwellTime);
        add(root, "adaptability", in->adaptability);
        add(root, "mask", in->mask);
        add(root, "supportHeatMap", in->supportHeatMap);
        add(root, "supportHeatMapEnable", in->supportHeatMapEnable);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_auto_export_heat_json(const vca_auto_export_heat_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "weekday", in->weekday);
        add(root, "hour", in->hour);
        add(root, "min", in->min);
        add(root, "sec", in->sec);
        add(root, "timeRange", in->timeRange);
        add(root, "method", in->method); // last, though stored first: the page reads it so
    });
}

int32_t get_vca_region_people_json(const vca_region_people_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "regionPeopleCountingSens", in->regionPeopleCountingSens);
        add(root, "scene", in->scene);
        add_size_filter(root, in);
        const RegionValue perRegion[] = {
            {"regionEnable", &in->regionEnable},
            {"maxStayEnable", &in->maxStayEnable},
            {"minStayEnable", &in->minStayEnable},
            {"maxStayTimeEnable", &in->maxStayTimeEnable},
            {"maxStay", &in->maxStay},
            {"minStay", &in->minStay},
            {"maxStayTime", &in->maxStayTime},
        };
        add_detection_info_list(root, in, perRegion);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_vca_regional_auto_export_json(const vca_regional_auto_export_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "method", in->method);
        add(root, "weekday", in->weekday);
        mw::add_string(root, "time", mw::Text<32>("%02d:%02d:%02d", static_cast<int>(in->hour),
                                                  static_cast<int>(in->minute), static_cast<int>(in->second)));
        add(root, "timeRange", in->timeRange);
        add(root, "stayType", in->stayType);
        add(root, "stayLength", in->stayLength);
    });
}

int32_t get_vca_person_point_json(const vca_person_point_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "personNum", in->personNum);
        cJSON *people = mw::array(root, "personList");
        // personNum counts the valid tracks and is printed as stored; the
        // list stops at the arrays whatever it says (0 or below: empty).
        for (int32_t i = 0; i < in->personNum && i < 256; ++i) {
            cJSON *person = mw::append_object(people);
            add(person, "id", in->id[i]);
            add(person, "type", in->type[i]);
            add(person, "startX", in->startX[i]);
            add(person, "startY", in->startY[i]);
            add(person, "stopX", in->stopX[i]);
            add(person, "stopY", in->stopY[i]);
            add(person, "alarmRegion", in->alarmRegion[i]);
        }
    });
}

int32_t get_vca_people_counting_data_json(const vca_people_counting_data_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *lines = mw::array(root, "peopleList");
        for (int32_t l = 0; l < 4; ++l) {
            cJSON *line = mw::append_object(lines);
            add(line, "index", l);
            add(line, "inCount", in->inCount[l]);
            add(line, "outCount", in->outCount[l]);
            add(line, "sumCount", in->sumCount[l]);
            add(line, "capacityCount", in->capacityCount[l]);
        }
    });
}

int32_t get_vca_regional_people_data_json(const vca_regional_people_data_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "regionsAlarmStatus", in->regionsAlarmStatus);
        add(root, "regionsStayAlarmStatus", in->regionsStayAlarmStatus);
        cJSON *regions = mw::array(root, "peopleNumList");
        for (int32_t r = 0; r < 4; ++r) {
            cJSON *region = mw::append_object(regions);
            add(region, "region", r);
            add(region, "num", in->num[r]);
        }
        cJSON *people = mw::array(root, "peopleDataInfo");
        // peopleCount counts the valid entries; the list stops at the
        // arrays whatever it says (0 or below: empty).
        for (int32_t i = 0; i < in->peopleCount && i < 50; ++i) {
            cJSON *person = mw::append_object(people);
            add(person, "id", in->id[i]);
            add(person, "class", in->class_[i]);
            add(person, "left", in->left[i]);
            add(person, "top", in->top[i]);
            add(person, "right", in->right[i]);
            add(person, "bottom", in->bottom[i]);
            add(person, "stayAlarmStatus", in->stayAlarmStatus[i]);
            add(person, "exsitStatus", in->exsitStatus[i]); // the pages read this spelling
            cJSON *stays = mw::array(person, "peopleStayList");
            for (int32_t r = 0; r < 4; ++r) {
                cJSON *stay = mw::append_object(stays);
                add(stay, "stayTime", in->stayTime[i][r]); // no index key: the position is the region
            }
        }
    });
}
