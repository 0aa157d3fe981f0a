/*
 * lpr.cpp - the plate-recognition pages: recognition settings, overlay and
 * caption layout, plate lists and their schedules, upload status, wildcards,
 * recent plates, the speed radar and the plate-attribute alarm rules.
 */
#include "internal.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>

using mw::add;

namespace {

/* The layout record is packed by its odd text widths: the words after the
   texts start where the texts end. */
static_assert(offsetof(lpr_advanced_record, osdFontSize) == 480, "overlay layout texts are packed");
static_assert(offsetof(lpr_advanced_record, spaces) == 560, "spaces follow the overlay settings");

/* The fields of a plate report, in the order the overlay and the caption
   print them. "lineBreak" is not a field: it marks where the text wraps. */
const char *const kPostFields[20] = {
    "time",          "licensePlate",  "plateType",        "vehicleSpeed", "direction",
    "detectionRegion", "position",    "deviceName",       "deviceID",     "lineBreak",
    "plateColor",    "vehicleType",   "vehicleColor",     "eventType",    "redLightDuration",
    "countryRegion", "vehicleBrand",  "gps",              "imageSource",  "plateConfidence",
};

/* A spaces text as a number: leading blanks, an optional sign, digits up to
   the first non-digit, 0 when there are none. Read within its own bytes, so
   a text that fills them without a NUL does not run into the next one. */
template <size_t N>
int32_t spaces_value(const char (&text)[N])
{
    char bounded[N + 1];
    memcpy(bounded, text, N);
    bounded[N] = '\0';
    return atoi(bounded);
}

/* The switch, direction and schedule of a plate list: the black, white and
   visitor lists print alike. */
int32_t list_settings(const lpr_list_settings_record *in, const lpr_list_direction_record *direction,
                      char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, direction](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "detectionDirection", direction->detectionDirection);
        mw::add_schedule_list(root, in->schedule);
    });
}

} // namespace

/* ---- recognition settings, layout and plate lists ---- */

int32_t get_lpr_settings_json(const lpr_settings_record *in, const lpr_settings_ext_record *ext, char *dst,
                              int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, ext](cJSON *root) {
        add(root, "lprVersion", in->lprVersion);
        add(root, "lprEnable", in->lprEnable);
        add(root, "optimalPushMechanism", in->optimalPushMechanism);
        add(root, "areaList", in->areaList);
        add(root, "noSupportSerialformatList", in->noSupportSerialformatList);
        add(root, "curArea", in->curArea);
        add(root, "country", in->country);
        add(root, "nightModeEnable", in->nightModeEnable);
        add(root, "dayToNight", in->dayToNight);
        add(root, "nightToDay", in->nightToDay);
        add(root, "nightModeEffectiveTime", in->nightModeEffectiveTime);
        add(root, "nightModeStartHour", in->nightModeStartHour);
        add(root, "nightModeStartMinute", in->nightModeStartMinute);
        add(root, "nightModeStopHour", in->nightModeStopHour);
        add(root, "nightModeStopMinute", in->nightModeStopMinute);
        add(root, "nightModeLevel", in->nightModeLevel);
        add(root, "inputNo", ext->inputNo);
        add(root, "lprWidth", in->lprWidth);
        add(root, "lprHeight", in->lprHeight);
        add(root, "processMode", in->processMode);
        add(root, "repeatCheckTimeVal", in->repeatCheckTimeVal);
        add(root, "repeatCheckTimeUnit", in->repeatCheckTimeUnit);
        add(root, "dayNightModeEnable", in->dayNightModeEnable);
        add(root, "speedDetect", in->speedDetect);
        add(root, "cameraHeight", in->cameraHeight);
        add(root, "lineDistance1", in->lineDistance1);
        add(root, "lineDistance2", in->lineDistance2);
        add(root, "linePixel1", in->linePixel1);
        add(root, "linePixel2", in->linePixel2);
        add(root, "plateColorEnable", in->plateColorEnable);
        add(root, "vehicleTypeEnable", in->vehicleTypeEnable);
        add(root, "vehicleColorEnable", in->vehicleColorEnable);
        add(root, "roiIdEnable", in->roiIdEnable);
        add(root, "directionEnable", in->directionEnable);
        add(root, "regionEnable", in->regionEnable);
        add(root, "vehicleBrandEnable", ext->vehicleBrandEnable);
        add(root, "effectivePresetsScene", in->effectivePresetsScene);
        if (in->lprVersion == 4) {
            // Engine 4 detects within polygons instead of the full frame.
            cJSON *list = mw::array(root, "normalPolygonList");
            for (int32_t i = 0; i < 4; ++i) {
                const lpr_polygon_entry &polygon = ext->polygons[i];
                cJSON *item = mw::append_object(list);
                add(item, "polygonIndex", i);
                add(item, "name", polygon.name);
                mw::add_string(item, "polygonX", mw::polygon_text(polygon.x, 4).text);
                mw::add_string(item, "polygonY", mw::polygon_text(polygon.y, 4).text);
            }
        }
        add(root, "confidence", in->confidence);
        add(root, "encryptionChip", in->encryptionChip);
        add(root, "areaType", in->areaType);
        add(root, "whiteLedExternal", in->whiteLedExternal);
        add(root, "irLedExternal", in->irLedExternal);
        add(root, "detectionMode", ext->detectionMode);
        add(root, "vehicleEnhancement", ext->vehicleEnhancement);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_lpr_advanced_json(const lpr_advanced_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "osdSort", in->osdSort);
        add(root, "osdFontSize", in->osdFontSize);
        add(root, "osdFontColor", in->osdFontColor);
        add(root, "osdBkgEnable", in->osdBkgEnable);
        add(root, "osdBkgColor", in->osdBkgColor);
        add(root, "osdPosition", in->osdPosition);
        cJSON *list = mw::array(root, "osdSpaceList");
        for (size_t k = 0; k < 20; ++k) {
            if (strcmp(kPostFields[k], "lineBreak") == 0)
                continue;
            cJSON *item = mw::append_object(list);
            mw::add_string(item, "fileName", kPostFields[k]); // the key's spelling is the page's
            add(item, "spaces", spaces_value(in->spaces[k]));
        }
        add(root, "osdPositionName", in->osdPositionName);
        add(root, "osdDeviceId", in->osdDeviceId);
        add(root, "snapSeparator", in->snapSeparator);
        add(root, "snapSort", in->snapSort);
        add(root, "snapPosition", in->snapPosition);
        add(root, "snapDeviceId", in->snapDeviceId);
        add(root, "snapshotResolution", in->snapshotResolution);
    });
}

int32_t get_lpr_black_settings_json(const lpr_list_settings_record *in, const lpr_list_direction_record *direction,
                                    char *dst, int32_t dstSize)
{
    return list_settings(in, direction, dst, dstSize);
}

int32_t get_lpr_white_settings_json(const lpr_list_settings_record *in, const lpr_list_direction_record *direction,
                                    char *dst, int32_t dstSize)
{
    return list_settings(in, direction, dst, dstSize);
}

int32_t get_lpr_visitor_settings_json(const lpr_list_settings_record *in,
                                      const lpr_list_direction_record *direction, char *dst, int32_t dstSize)
{
    return list_settings(in, direction, dst, dstSize);
}

int32_t get_lpr_list_sche_json(const lpr_list_sche_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        for (int r = 0; r < 4; ++r)
            for (int d = 0; d < 7; ++d)
                add(root, mw::Key<32>("ruleTaskday_%d_%d", r, d), in->ruleTaskday[r][d]);
    });
}

int32_t get_lpr_upload_status_json(const lpr_upload_status_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "lprUploadStatus", in->lprUploadStatus); });
}

int32_t get_lpr_wildcards_json(const lpr_wildcards_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "filter", in->filter);
        cJSON *list = mw::array(root, "filterList");
        for (int32_t i = 0; i < 30; ++i) {
            cJSON *item = mw::append_object(list);
            add(item, "index", i);
            add(item, "enable", in->enable[i]);
            add(item, "characterCount", in->characterCount[i]);
            add(item, "format", in->format[i]);
        }
    });
}

/* ---- recent plates, speed radar and plate-attribute rules ---- */

namespace {

/* The lane list reads on from laneRegion through the words that follow it:
   lane 4 is triggerLine, lane 5 the first four bytes of triggerDistance, and
   so on. The words are taken from the record's bytes, never past its end. */
constexpr size_t kLaneRegionAt = offsetof(lpr_radar_config_record, laneRegion);
constexpr size_t kLaneWords = (sizeof(lpr_radar_config_record) - kLaneRegionAt) / sizeof(int32_t);
static_assert(offsetof(lpr_radar_config_record, triggerLine) == kLaneRegionAt + 4 * sizeof(int32_t),
              "triggerLine follows the four lane regions");
static_assert(offsetof(lpr_radar_config_record, triggerDistance) ==
                  offsetof(lpr_radar_config_record, triggerLine) + sizeof(int32_t),
              "triggerDistance follows triggerLine");

int32_t lane_region_word(const lpr_radar_config_record *in, size_t lane)
{
    int32_t word;
    memcpy(&word, reinterpret_cast<const unsigned char *>(in) + kLaneRegionAt + lane * sizeof word, sizeof word);
    return word;
}

} // namespace

int32_t get_lpr_last_data_json(int32_t count, const lpr_last_data_entry *entries, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [count, entries](cJSON *root) {
        for (int32_t i = 0; i < count; ++i) {
            const lpr_last_data_entry &e = entries[i];
            add(root, mw::Key<32>("time_%d", i), e.time);
            add(root, mw::Key<32>("plate_%d", i), e.plate);
            add(root, mw::Key<32>("path_%d", i), e.path);
            add(root, mw::Key<32>("region_%d", i), e.region);
            add(root, mw::Key<32>("direction_%d", i), e.direction);
            add(root, mw::Key<32>("roiId_%d", i), e.roiId);
            add(root, mw::Key<32>("plateLeft_%d", i), e.plateLeft);
            add(root, mw::Key<32>("plateTop_%d", i), e.plateTop);
            add(root, mw::Key<32>("plateRight_%d", i), e.plateRight);
            add(root, mw::Key<32>("plateBottom_%d", i), e.plateBottom);
        }
    });
}

int32_t get_lpr_radar_config_json(const lpr_radar_config_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "height", in->height);
        add(root, "angle", in->angle);
        add(root, "angleCom", in->angleCom);
        add(root, "lanesNum", in->lanesNum);
        add(root, "laneWidth", in->laneWidth);
        add(root, "installLocation", in->installLocation);
        add(root, "speedUnit", in->speedUnit);
        cJSON *regions = mw::array(root, "laneMatchRoiList");
        for (int32_t l = 0; l < in->lanesNum && static_cast<size_t>(l) < kLaneWords; ++l) {
            cJSON *lane = mw::append_object(regions);
            add(lane, "index", l);
            add(lane, "region", lane_region_word(in, static_cast<size_t>(l)));
        }
        cJSON *directions = mw::array(root, "laneDirection");
        for (int32_t l = 0; l < in->lanesNum && l <= 3; ++l) {
            cJSON *lane = mw::append_object(directions);
            add(lane, "index", l);
            add(lane, "direction", in->laneDirection[l]);
        }
        add(root, "triggerLine", in->triggerLine);
        add(root, "triggerDistance", in->triggerDistance);
        add(root, "showSpeedEnable", in->showSpeedEnable);
        add(root, "showDirectionEnable", in->showDirectionEnable);
        add(root, "showDistanceEnable", in->showDistanceEnable);
        add(root, "showAzimuthEnable", in->showAzimuthEnable);
        add(root, "showCountingEnable", in->showCountingEnable);
        add(root, "showLicensePlateEnable", in->showLicensePlateEnable);
        add(root, "showDetectionRegionEnable", in->showDetectionRegionEnable);
        add(root, "fontSize", in->fontSize);
        add(root, "fontColor", in->fontColor);
        add(root, "osdAutoReset", in->osdAutoReset);
        add(root, "osdResetWeekday", in->osdResetWeekday);
        add(root, "osdResetHour", in->osdResetHour);
        add(root, "osdResetMin", in->osdResetMin);
        add(root, "osdResetSec", in->osdResetSec);
        add(root, "maxSpeedAlarmEnable", in->maxSpeedAlarmEnable);
        add(root, "minSpeedAlarmEnable", in->minSpeedAlarmEnable);
        add(root, "maxSpeedThreshold", in->maxSpeedThreshold);
        add(root, "minSpeedThreshold", in->minSpeedThreshold);
        add(root, "drivingDirAlarmEnable", in->drivingDirAlarmEnable);
        add(root, "drivingDir", in->drivingDir);
        add(root, "countAlarm", in->countAlarm);
        add(root, "countThreshold", in->countThreshold);
        add(root, "radarLevel", in->radarLevel);
        add(root, "debug", in->debug);
        add(root, "upgrade", in->upgrade);
        add(root, "exportEnable", in->exportEnable);
        add(root, "exportMethod", in->exportMethod);
        add(root, "exportWeekday", in->exportWeekday);
        add(root, "exportResetHour", in->exportResetHour);
        add(root, "exportResetMin", in->exportResetMin);
        add(root, "exportResetSec", in->exportResetSec);
        add(root, "exportTimeRange", in->exportTimeRange);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_lpr_radar_test_json(int32_t radarTest, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [radarTest](cJSON *root) { add(root, "radarTest", radarTest); });
}

int32_t get_lpr_radar_detect_data_json(int32_t count, const lpr_radar_detect_entry *entries, char *dst,
                                       int32_t dstSize)
{
    return mw::document(dst, dstSize, [count, entries](cJSON *root) {
        cJSON *list = mw::array(root, "radarDetectData");
        for (int32_t i = 0; i < count; ++i) {
            const lpr_radar_detect_entry &e = entries[i];
            cJSON *target = mw::append_object(list);
            add(target, "id", e.id);
            add(target, "speed", e.speed);
            add(target, "xpos", e.xpos);
            add(target, "distance", e.distance);
            add(target, "direction", e.direction);
        }
    });
}

/* Never tests its buffer: it always builds and prints, and the bounded copy
   writes nothing for a size below 1. */
int32_t get_lpr_attr_event_json(const lpr_attr_event_entry *rules, const lpr_attr_schedule *schedule, char *dst,
                                int32_t dstSize)
{
    return mw::document_without_buffer_test(dst, dstSize, [rules, schedule](cJSON *root) {
        cJSON *enables = mw::array(root, "enableList");
        for (int32_t r = 0; r < 4; ++r) {
            cJSON *item = mw::append_object(enables);
            add(item, "index", r);
            add(item, "enable", rules[r].enable);
        }
        cJSON *triggers = mw::array(root, "alarmTriggerList");
        for (int32_t r = 0; r < 4; ++r) {
            cJSON *item = mw::append_object(triggers);
            add(item, "index", r);
            add(item, "noPlate", rules[r].noPlate);
            add(item, "plateColor", rules[r].plateColor);
            add(item, "vehicleType", rules[r].vehicleType);
            add(item, "vehicleColor", rules[r].vehicleColor);
            add(item, "detectRegion", rules[r].detectRegion);
            add(item, "direction", rules[r].direction);
        }
        cJSON *schedules = mw::array(root, "scheduleList");
        for (int32_t r = 0; r < 4; ++r) {
            cJSON *item = mw::append_object(schedules);
            add(item, "index", r);
            cJSON *days = mw::array(item, "LprAttrList"); // capital L, as the page reads it
            for (int32_t d = 0; d < 7; ++d) {
                cJSON *day = mw::append_object(days);
                add(day, "scheduleIndex", d);
                add(day, "schedule", schedule->schedule[r][d]);
            }
        }
    });
}
