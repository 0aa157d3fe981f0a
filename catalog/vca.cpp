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

// Two counting lines across the staff entrance (line 0) and the side door
// (line 1); counters reset every night at 03:00, the entrance alarms when more
// than 40 people are inside.
vca_counting_record sample_counting()
{
    vca_counting_record r{};
    r.showOsdEnable = 1;
    r.osdType = 0;
    r.osdFontSize = 2;
    r.osdTextPosition = 1;
    put(r.osdFontColor, "#FFFFFF");
    r.alarmTriggerEnable = 1;
    r.peopleCountingSens = 5;
    r.scene = 0;
    r.countTriggerType = 1;
    r.allLineCapacityAlarmEnable = 1;
    r.allLineInAlarmThresholds = 500;
    r.allLineOutAlarmThresholds = 500;
    r.allLineCapacityAlarmThresholds = 60;
    r.allLineSumAlarmThresholds = 1000;
    const char *const lines[2] = {"640;300;1280;300", "200;820;520;1040"};
    for (int l = 0; l < 4; ++l) {
        const bool drawn = l < 2;
        r.lineEnable[l] = drawn ? 1 : 0;
        r.lineCapacityAlarmEnable[l] = l == 0 ? 1 : 0;
        r.lineInAlarmThresholds[l] = 300;
        r.lineOutAlarmThresholds[l] = 300;
        r.lineCapacityAlarmThresholds[l] = 40;
        r.lineSumAlarmThresholds[l] = 600;
        r.lineAutoResetEnable[l] = drawn ? 1 : 0;
        r.lineAutoResetWeekday[l] = 7; // every day
        r.lineAutoResetHour[l] = 3;
        r.lineAutoResetMin[l] = 0;
        r.lineAutoResetSec[l] = 0;
        r.lineDirection[l] = l == 1 ? 1 : 0;
        r.lineShowCountingEnable[l] = drawn ? 1 : 0;
        if (drawn) {
            put(r.countLine[l], lines[l]);
            put(r.presetCountLine[l][0], lines[l]);
            r.presetDirection[l][0] = r.lineDirection[l];
        }
    }
    put(r.presetCountLine[0][1], "600;320;1240;310");
    r.presetDirection[0][1] = 0;
    sample_size_filter(r);
    sample_schedule(r.schedule);
    return r;
}

// Faces at the reception desk: best-shot capture, the monitor behind the desk
// shielded, three capture profiles (full frame, face, face with margin).
vca_face_detection_record sample_face_detection()
{
    vca_face_detection_record r{};
    r.mosaicModeStatus = 0;
    r.faceEnable = 1;
    r.faceMinPixel = 64;
    r.captureMode = 1;
    r.snapshotInterval = 3;
    r.poseRoll = 30;
    r.posePitch = 30;
    r.poseYaw = 45;
    r.blurlimit = 60;
    r.snapshotType = 2;
    r.snapshotBackground = 1;
    const int32_t quality[3] = {80, 90, 85};
    const int32_t maxPush[3] = {1, 3, 2};
    for (int k = 0; k < 3; ++k) {
        r.captureQuality[k] = quality[k];
        r.snapshotMaxPush[k] = maxPush[k];
    }
    r.postEnable = 1;
    r.postType = 0;
    r.shieldRegionEnable[0] = 1;
    put(r.shieldPolygonX[0], "1500:1800:1800:1500:");
    put(r.shieldPolygonY[0], "100:100:400:400:");
    r.attributeEnable = 1;
    r.attributeType = 3;
    r.mosaicEnable = 0;
    put(r.polygonX, "300:1620:1620:300:");
    put(r.polygonY, "120:120:980:980:");
    sample_schedule(r.schedule);
    return r;
}

// The fence line along the yard (line 0) and the gate (line 1), the gate
// also drawn for the PTZ preset that faces it.
vca_line_crossing_record sample_line_crossing()
{
    vca_line_crossing_record r{};
    r.lineCrossingSens = 6;
    r.lineCrossingTracking = 1;
    r.lineCrossingEnable[0] = 1;
    r.lineCrossingEnable[1] = 1;
    r.lineCrossingDetectionObject[0] = 1;
    r.lineCrossingDetectionObject[1] = 3;
    const int32_t fence[4] = {80, 620, 1840, 560};
    const int32_t gate[4] = {900, 900, 1300, 1010};
    const int32_t gatePreset[4] = {860, 880, 1260, 1000};
    for (int i = 0; i < 4; ++i) {
        r.lines[0].crossedLine[i] = fence[i];
        r.lines[1].crossedLine[i] = gate[i];
        r.lines[1].presetCrossedLine[0][i] = gatePreset[i];
    }
    r.lines[0].direction = 2; // both ways
    r.lines[1].direction = 0;
    r.lines[1].presetDirection[0] = 0;
    sample_size_filter(r);
    r.scene = 1;
    sample_schedule(r.schedule);
    return r;
}

// Parcels left at the dock door, pallets taken from the forklift lane.
vca_left_remove_record sample_left_remove()
{
    vca_left_remove_record r{};
    sample_region_rule(r);
    r.leftEnable[0] = 1;
    r.removeEnable[1] = 1;
    r.leftRemoveTracking = 1;
    r.leftRemoveSens = 5;
    r.minTime = 60;
    return r;
}

// The shop floor heat map, the tills masked out.
vca_heat_map_record sample_heat_map()
{
    vca_heat_map_record r{};
    r.enable = 1;
    r.sensitivity = 5;
    r.minSize = 40;
    r.minDwellTime = 3;
    r.adaptability = 2;
    put(r.mask, "0:1600:1920:1600:1920:1080:0:1080:");
    r.supportHeatMap = 1;
    r.supportHeatMapEnable = 1;
    sample_schedule(r.schedule);
    return r;
}

// Queue areas at the tills (region 0) and the fitting rooms (region 1):
// alarm above 8 people waiting or a stay longer than ten minutes.
vca_region_people_record sample_region_people()
{
    vca_region_people_record r{};
    sample_region_rule(r);
    r.regionPeopleCountingSens = 6;
    r.scene = 2;
    const int32_t enable[4] = {1, 1, 0, 0};
    for (int g = 0; g < 4; ++g) {
        r.regionEnable[g] = enable[g];
        r.maxStayEnable[g] = enable[g];
        r.minStayEnable[g] = 0;
        r.maxStayTimeEnable[g] = g == 1 ? 1 : 0;
        r.maxStay[g] = 8;
        r.minStay[g] = 1;
        r.maxStayTime[g] = 600;
    }
    return r;
}

// Six people tracked over the last minute, two of them through region 1.
vca_person_point_record sample_person_points()
{
    vca_person_point_record r{};
    r.personNum = 6;
    const int32_t track[6][7] = {
        // id, type, startX, startY, stopX, stopY, alarmRegion
        {1041, 1, 212, 980, 640, 410, 0},   {1042, 1, 1880, 760, 1310, 700, 1},
        {1043, 1, 560, 1060, 590, 240, 0},  {1045, 2, 1020, 1070, 1030, 300, 0},
        {1047, 1, 1500, 600, 1720, 880, 1}, {1048, 1, 90, 400, 380, 420, 0},
    };
    for (int i = 0; i < 6; ++i) {
        r.id[i] = track[i][0];
        r.type[i] = track[i][1];
        r.startX[i] = track[i][2];
        r.startY[i] = track[i][3];
        r.stopX[i] = track[i][4];
        r.stopY[i] = track[i][5];
        r.alarmRegion[i] = track[i][6];
    }
    return r;
}

// Three shoppers in the queue area (region 0), one of them waiting too long.
vca_regional_people_data_record sample_regional_people_data()
{
    vca_regional_people_data_record r{};
    r.regionsAlarmStatus = 0;
    r.regionsStayAlarmStatus = 1;
    r.num[0] = 3;
    r.num[1] = 0;
    r.peopleCount = 3;
    const int32_t person[3][8] = {
        // id, class, left, top, right, bottom, stayAlarmStatus, exsitStatus
        {311, 1, 402, 218, 498, 520, 1, 1},
        {317, 1, 560, 240, 640, 530, 0, 1},
        {322, 1, 700, 260, 790, 560, 0, 1},
    };
    const int32_t stay[3] = {742, 95, 12};
    for (int i = 0; i < 3; ++i) {
        r.id[i] = person[i][0];
        r.class_[i] = person[i][1];
        r.left[i] = person[i][2];
        r.top[i] = person[i][3];
        r.right[i] = person[i][4];
        r.bottom[i] = person[i][5];
        r.stayAlarmStatus[i] = person[i][6];
        r.exsitStatus[i] = person[i][7];
        r.stayTime[i][0] = stay[i];
    }
    return r;
}

vca_tamper_record sample_vca_tamper()
{
    vca_tamper_record t{};
    t.tamperEnable = 1;
    t.tamperSens = 4;
    sample_schedule(t.schedule);
    return t;
}

vca_auto_export_heat_record sample_vca_auto_export_heat()
{
    vca_auto_export_heat_record e{};
    e.enable = 1;
    e.method = 1; // to the FTP server
    e.weekday = 1;
    e.hour = 6;
    e.min = 30;
    e.sec = 0;
    e.timeRange = 7; // the past week
    return e;
}

vca_install_mode_record sample_vca_install_mode()
{
    vca_install_mode_record m{};
    m.Installation = 1; // wall mount, looking down at an angle
    return m;
}

vca_human_detection_record sample_vca_human_detection()
{
    vca_human_detection_record h{};
    h.humanEnable = 1;
    h.humanShowTrackEnable = 1;
    h.humanSens = 5;
    h.humanTracking = 1;
    sample_schedule(h.humanSchedule);
    return h;
}

vca_regional_auto_export_record sample_vca_regional_auto_export()
{
    vca_regional_auto_export_record e{};
    e.enable = 1;
    e.method = 0; // by mail
    e.weekday = 0;
    e.hour = 22;
    e.minute = 5;
    e.second = 0;
    e.timeRange = 1; // the past day
    e.stayType = 1;
    e.stayLength = 300;
    return e;
}

vca_people_counting_data_record sample_vca_people_counting_data()
{
    vca_people_counting_data_record c{};
    c.inCount[0] = 214;
    c.outCount[0] = 198;
    c.sumCount[0] = 412;
    c.capacityCount[0] = 16;
    c.inCount[1] = 37;
    c.outCount[1] = 41;
    c.sumCount[1] = 78;
    c.capacityCount[1] = -4; // more left by the side door than came in
    return c;
}

const CatalogEntry entries[] = {
    MW_SETTABLE_ENTRY(vca_install_mode, "how the analytics camera is mounted",
                      (kept<vca_install_mode_record, sample_vca_install_mode>)),
    MW_SETTABLE_ENTRY(vca_region_entrance, "region entrance rule with its regions and schedule",
                      (kept<vca_region_entrance_record, sample_region_entrance>)),
    MW_SETTABLE_ENTRY(vca_region_exit, "region exit rule with its regions and schedule",
                      (kept<vca_region_exit_record, sample_region_exit>)),
    MW_SETTABLE_ENTRY(vca_advanced_motion, "advanced motion rule with its regions and schedule",
                      (kept<vca_advanced_motion_record, sample_advanced_motion>)),
    MW_SETTABLE_ENTRY(vca_loitering, "loitering rule with per-region dwell times",
                      (kept<vca_loitering_record, sample_loitering>)),
    MW_SETTABLE_ENTRY(vca_tamper, "tamper detection switch, sensitivity and schedule",
                      (kept<vca_tamper_record, sample_vca_tamper>)),
    MW_SETTABLE_ENTRY(vca_human_detection, "human detection settings with a flat weekly schedule",
                      (kept<vca_human_detection_record, sample_vca_human_detection>)),
    MW_SETTABLE_ENTRY(vca_configuration, "analytics identity, period and the actions of its 13 slots",
                      (kept<vca_configuration_record, sample_configuration>)),
    MW_READ_ONLY_ENTRY(vca_alarm_status, "live state and counters of the analytics rules",
                       (kept<vca_alarm_status_record, sample_alarm_status>)),
    MW_READ_ONLY_ENTRY(vca_all_alarm_status, "live state of motion, inputs, outputs, storage and plate lists",
                       (kept<vca_all_alarm_status_record, sample_all_alarm_status>)),
    page_entry<ReadOnlyRecordPage<vca_all_alarm_status_record, kept<vca_all_alarm_status_record, sample_all_alarm_status>,
                                  get_vca_exception_alarm_status_json, schema_vca_exception_alarm_status_json>>(
        "get_vca_exception_alarm_status_json", "exception alarms with their enable switches"),
    MW_SETTABLE_ENTRY(vca_counting, "people counting lines with thresholds, resets and presets",
                      (kept<vca_counting_record, sample_counting>)),
    MW_SETTABLE_ENTRY(vca_face_detection, "face detection, shield regions and capture settings",
                      (kept<vca_face_detection_record, sample_face_detection>)),
    page_entry<RecordPage<vca_line_crossing_record, kept<vca_line_crossing_record, sample_line_crossing>,
                          get_vca_all_linecrossing_json, schema_vca_all_linecrossing_json,
                          set_vca_all_linecrossing_json>>("get_vca_all_linecrossing_json",
                                                          "line crossing rule over all four lines"),
    MW_SETTABLE_ENTRY(vca_left_remove, "object left or removed rule with its regions",
                      (kept<vca_left_remove_record, sample_left_remove>)),
    MW_SETTABLE_ENTRY(vca_heat_map, "heat-map settings, mask and schedule",
                      (kept<vca_heat_map_record, sample_heat_map>)),
    MW_SETTABLE_ENTRY(vca_auto_export_heat, "weekly automatic export of the heat map",
                      (kept<vca_auto_export_heat_record, sample_vca_auto_export_heat>)),
    MW_SETTABLE_ENTRY(vca_region_people, "regional people counting rule with stay limits",
                      (kept<vca_region_people_record, sample_region_people>)),
    MW_SETTABLE_ENTRY(vca_regional_auto_export, "daily automatic export of the regional people report",
                      (kept<vca_regional_auto_export_record, sample_vca_regional_auto_export>)),
    MW_READ_ONLY_ENTRY(vca_person_point, "person tracks with their start and stop points",
                       (kept<vca_person_point_record, sample_person_points>)),
    MW_READ_ONLY_ENTRY(vca_people_counting_data, "live in, out, sum and capacity counts per line",
                       (kept<vca_people_counting_data_record, sample_vca_people_counting_data>)),
    MW_READ_ONLY_ENTRY(vca_regional_people_data, "people now in each region and how long they stay",
                       (kept<vca_regional_people_data_record, sample_regional_people_data>)),
};

} // namespace

const CatalogGroup catalog_vca = catalog_group("vca", entries);
