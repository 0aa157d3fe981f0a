#include "catalog.h"

namespace {

// A four-megapixel camera watching a warehouse loading bay: region 0 is the
// dock door, region 1 the forklift lane, regions 2 and 3 are not drawn.
// Coordinates are on the 1920 x 1080 grid of the analytics.

const char *const kWorkingWeek[7] = {
    "00:00-24:00",             // Sunday
    "00:00-07:00,19:00-24:00", // Monday .. Friday: outside working hours
    "00:00-07:00,19:00-24:00",
    "00:00-07:00,19:00-24:00",
    "00:00-07:00,19:00-24:00",
    "00:00-07:00,19:00-24:00",
    "00:00-24:00", // Saturday
};

template <size_t N>
void sample_schedule(char (&days)[7][N])
{
    for (int d = 0; d < 7; ++d)
        snprintf(days[d], N, "%s", kWorkingWeek[d]);
}

// The dock door and the forklift lane, the door also drawn for the two PTZ
// presets that look at it.
template <typename Rule>
void sample_regions(Rule &r)
{
    put(r.polygonX[0], "412:1180:1204:398:");
    put(r.polygonY[0], "236:220:872:890:");
    put(r.polygonX[1], "1260:1880:1880:1300:");
    put(r.polygonY[1], "540:520:1060:1070:");
    put(r.presetPolygonX[0][0], "380:1150:1170:370:");
    put(r.presetPolygonY[0][0], "250:232:880:900:");
    put(r.presetPolygonX[0][1], "520:1320:1340:500:");
    put(r.presetPolygonY[0][1], "200:190:820:840:");
    put(r.presetPolygonX[1][0], "1240:1860:1870:1280:");
    put(r.presetPolygonY[1][0], "560:540:1070:1075:");
}

// People and vehicles larger than a cat, smaller than a lorry.
template <typename Rule>
void sample_size_filter(Rule &r)
{
    r.minX = 0;
    r.minY = 0;
    r.minWidth = 48;
    r.minHeight = 96;
    r.maxX = 0;
    r.maxY = 0;
    r.maxWidth = 960;
    r.maxHeight = 1000;
}

template <typename Rule>
void sample_region_rule(Rule &r)
{
    sample_regions(r);
    sample_size_filter(r);
    sample_schedule(r.schedule);
    r.scene = 1;
}

vca_region_entrance_record sample_region_entrance()
{
    vca_region_entrance_record r{};
    sample_region_rule(r);
    r.regionEnable[0] = 1;
    r.regionEnable[1] = 1;
    r.intrusionEnterSens = 6;
    r.intrusionEnterTracking = 1;
    r.detectionObject[0] = 1; // people
    r.detectionObject[1] = 3; // people and vehicles
    return r;
}

vca_region_exit_record sample_region_exit()
{
    vca_region_exit_record r{};
    sample_region_rule(r);
    r.regionEnable[0] = 1;
    r.intrusionExitSens = 5;
    r.intrusionExitTracking = 1;
    r.detectionObject[0] = 1;
    r.detectionObject[1] = 1;
    return r;
}

vca_advanced_motion_record sample_advanced_motion()
{
    vca_advanced_motion_record r{};
    sample_region_rule(r);
    r.advancedMotionEnable[0] = 1;
    r.advancedMotionEnable[1] = 1;
    r.advancedMotionSens = 7;
    r.advancedMotionTracking = 0;
    r.advancedMotionDetectionObject[0] = 3;
    r.advancedMotionDetectionObject[1] = 2;
    r.ignoreShortLived = 1;
    return r;
}

vca_loitering_record sample_loitering()
{
    vca_loitering_record r{};
    sample_region_rule(r);
    r.loiteringEnable[0] = 1;
    r.loiteringTracking = 1;
    r.loiteringDetectionObject[0] = 1;
    r.loiteringDetectionObject[1] = 1;
    r.minLoiteringTime[0] = 30;
    r.minLoiteringTime[1] = 120;
    r.minLoiteringTime[2] = 10;
    r.minLoiteringTime[3] = 10;
    return r;
}

// Analytics on around the clock; slot 0 (region entrance) records, mails and
// lights the white LED, slot 4 (line crossing) uploads a snapshot and rings
// the alarm output; the other slots keep the factory timings.
vca_configuration_record sample_configuration()
{
    vca_configuration_record r{};
    r.vcaId = 1;
    put(r.vcaName, "Loading bay");
    r.vcaEnable = 1;
    r.vcaPeriodic = 1;
    r.vcaWeekdays = 127; // every day
    r.vcaStartTime = 0;
    r.vcaDuration = 1440; // minutes
    r.triggerBootEnable = 0;
    r.triggerScheduleEnable = 1;
    r.uploadType = 1;
    r.uploadPostAlarm = 5;
    r.emailFileType = 1;
    r.emailPostAlarm = 5;
    put(r.email, "security@warehouse-7.example.com");
    put(r.emailSubject, "Loading bay alarm");
    put(r.emailInformation, "Movement at dock door 2");
    r.emailUpload = 1;
    r.httpPostAlarm = 0;
    r.httpInterval = 10;
    for (int s = 0; s < 13; ++s) {
        r.uploadFileType[s] = 1;
        r.recordFileType[s] = 0;
        r.nasFileType[s] = 1;
        r.recordSecond[s] = 30;
        r.prerecordSecond[s] = 5;
        r.snapShot[s] = 1;
        r.snapShotInterval[s] = 2;
        r.snapShotIntervalUnit[s] = 0;
        r.triggerDuration[s] = 10;
        r.audioInterval[s] = 5;
        r.emailInterval[s] = 60;
        r.whiteledFlashMode[s] = 1;
        r.whiteledFlashTime[s] = 10;
        r.whiteledAlwaysTime[s] = 30;
        r.whiteledEffectMode[s] = 0;
        r.whiteledEffectValue[s] = 3;
        r.whiteledStartHour[s] = 18;
        r.whiteledStartMinute[s] = 30;
        r.whiteledStopHour[s] = 6;
        r.whiteledStopMinute[s] = 0;
        r.whiteledGroup[s] = 1;
    }
    r.recordEnable[0] = 1;
    r.emailEnable[0] = 1;
    r.whitelightEnable[0] = 1;
    r.nasEnable[0] = 1;
    r.uploadEnable[4] = 1;
    r.gpoutEnable[4] = 1;
    r.audioEnable[4] = 1;
    r.httpEnable[4] = 1;
    r.recordEnable[4] = 1;
    r.recordSecond[4] = 60;
    return r;
}

// Someone is loitering at the dock door; the entrance counter has run all day.
vca_alarm_status_record sample_alarm_status()
{
    vca_alarm_status_record r{};
    r.regionEntranceStatus = 0;
    r.loiteringAlarmStatus = 1;
    r.lineAlarmStatus[1] = 1;
    r.peopleCountingStatus = 1;
    r.humanAlarmStatus = 1;
    r.currentInCount = 214;
    r.currentOutCount = 198;
    r.currentSumCount = 412;
    r.currentCapacityCount = 16;
    r.vehicleCountingStatus = 1;
    r.vehicleInCount = 37;
    r.vehicleOutCount = 35;
    r.vehicleSumCount = 72;
    r.vehicleCapacityCount = 2;
    return r;
}

// Input 1 (the dock door contact) is open and output 0 drives the siren; the
// SD card is full, which is reported because its switch is on.
vca_all_alarm_status_record sample_all_alarm_status()
{
    vca_all_alarm_status_record r{};
    r.motionAlarmStatus = 1;
    r.inputAlarmStatus[1] = 1;
    r.outputAlarmStatus[0] = 1;
    r.netlostEnable = 1;
    r.ipconflictEnable = 1;
    r.recordFailedEnable = 1;
    r.sdFullEnable = 1;
    r.sdFullAlarmStatus = 1;
    r.sdUninitEnable = 1;
    r.sdErrorEnable = 1;
    r.noSdEnable = 0;
    r.tamperEnable = 1;
    r.subMotionAlarmStatus = 1;
    r.alarmArea = 2;
    r.lprWhiteStatus = 1;
    return r;
}

const CatalogEntry entries[] = {
    {"get_vca_install_mode_json", "how the analytics camera is mounted",
     [](char *dst, int32_t n) {
         static const vca_install_mode_record r = [] {
             vca_install_mode_record m{};
             m.Installation = 1; // wall mount, looking down at an angle
             return m;
         }();
         return get_vca_install_mode_json(&r, dst, n);
     }},
    {"get_vca_region_entrance_json", "region entrance rule with its regions and schedule",
     [](char *dst, int32_t n) {
         static const vca_region_entrance_record r = sample_region_entrance();
         return get_vca_region_entrance_json(&r, dst, n);
     }},
    {"get_vca_region_exit_json", "region exit rule with its regions and schedule",
     [](char *dst, int32_t n) {
         static const vca_region_exit_record r = sample_region_exit();
         return get_vca_region_exit_json(&r, dst, n);
     }},
    {"get_vca_advanced_motion_json", "advanced motion rule with its regions and schedule",
     [](char *dst, int32_t n) {
         static const vca_advanced_motion_record r = sample_advanced_motion();
         return get_vca_advanced_motion_json(&r, dst, n);
     }},
    {"get_vca_loitering_json", "loitering rule with per-region dwell times",
     [](char *dst, int32_t n) {
         static const vca_loitering_record r = sample_loitering();
         return get_vca_loitering_json(&r, dst, n);
     }},
    {"get_vca_tamper_json", "tamper detection switch, sensitivity and schedule",
     [](char *dst, int32_t n) {
         static const vca_tamper_record r = [] {
             vca_tamper_record t{};
             t.tamperEnable = 1;
             t.tamperSens = 4;
             sample_schedule(t.schedule);
             return t;
         }();
         return get_vca_tamper_json(&r, dst, n);
     }},
    {"get_vca_human_detection_json", "human detection settings with a flat weekly schedule",
     [](char *dst, int32_t n) {
         static const vca_human_detection_record r = [] {
             vca_human_detection_record h{};
             h.humanEnable = 1;
             h.humanShowTrackEnable = 1;
             h.humanSens = 5;
             h.humanTracking = 1;
             sample_schedule(h.humanSchedule);
             return h;
         }();
         return get_vca_human_detection_json(&r, dst, n);
     }},
    {"get_vca_configuration_json", "analytics identity, period and the actions of its 13 slots",
     [](char *dst, int32_t n) {
         static const vca_configuration_record r = sample_configuration();
         return get_vca_configuration_json(&r, dst, n);
     }},
    {"get_vca_alarm_status_json", "live state and counters of the analytics rules",
     [](char *dst, int32_t n) {
         static const vca_alarm_status_record r = sample_alarm_status();
         return get_vca_alarm_status_json(&r, dst, n);
     }},
    {"get_vca_all_alarm_status_json", "live state of motion, inputs, outputs, storage and plate lists",
     [](char *dst, int32_t n) {
         static const vca_all_alarm_status_record r = sample_all_alarm_status();
         return get_vca_all_alarm_status_json(&r, dst, n);
     }},
    {"get_vca_exception_alarm_status_json", "exception alarms with their enable switches",
     [](char *dst, int32_t n) {
         static const vca_all_alarm_status_record r = sample_all_alarm_status();
         return get_vca_exception_alarm_status_json(&r, dst, n);
     }},
};

} // namespace

const CatalogGroup catalog_vca = catalog_group("vca", entries);
