/*
 * lpr.cpp - the plate-recognition pages: recognition settings, overlay and
 * caption layout, plate lists and their schedules, upload status, wildcards,
 * recent plates, the speed radar and the plate-attribute alarm rules.
 */
#include "internal.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>

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
constexpr auto describe_list_settings = [](auto &a, auto &r, auto &direction) {
    a("enable", r.enable);
    a("detectionDirection", direction.detectionDirection);
    mw::schedule_list(a, r.schedule);
};

} // namespace

/* ---- recognition settings, layout and plate lists ---- */

namespace {
constexpr auto describe_settings = [](auto &a, auto &r, auto &ext) {
    // The engine version decides whether the polygons are shown: read-only.
    a.derived("lprVersion", r.lprVersion);
    a("lprEnable", r.lprEnable);
    a("optimalPushMechanism", r.optimalPushMechanism);
    a("areaList", r.areaList);
    a("noSupportSerialformatList", r.noSupportSerialformatList);
    a("curArea", r.curArea);
    a("country", r.country);
    a("nightModeEnable", r.nightModeEnable);
    a("dayToNight", r.dayToNight);
    a("nightToDay", r.nightToDay);
    a("nightModeEffectiveTime", r.nightModeEffectiveTime);
    a("nightModeStartHour", r.nightModeStartHour);
    a("nightModeStartMinute", r.nightModeStartMinute);
    a("nightModeStopHour", r.nightModeStopHour);
    a("nightModeStopMinute", r.nightModeStopMinute);
    a("nightModeLevel", r.nightModeLevel);
    a("inputNo", ext.inputNo);
    a("lprWidth", r.lprWidth);
    a("lprHeight", r.lprHeight);
    a("processMode", r.processMode);
    a("repeatCheckTimeVal", r.repeatCheckTimeVal);
    a("repeatCheckTimeUnit", r.repeatCheckTimeUnit);
    a("dayNightModeEnable", r.dayNightModeEnable);
    a("speedDetect", r.speedDetect);
    a("cameraHeight", r.cameraHeight);
    a("lineDistance1", r.lineDistance1);
    a("lineDistance2", r.lineDistance2);
    a("linePixel1", r.linePixel1);
    a("linePixel2", r.linePixel2);
    a("plateColorEnable", r.plateColorEnable);
    a("vehicleTypeEnable", r.vehicleTypeEnable);
    a("vehicleColorEnable", r.vehicleColorEnable);
    a("roiIdEnable", r.roiIdEnable);
    a("directionEnable", r.directionEnable);
    a("regionEnable", r.regionEnable);
    a("vehicleBrandEnable", ext.vehicleBrandEnable);
    a("effectivePresetsScene", r.effectivePresetsScene);
    // Engine 4 detects within polygons instead of the full frame.
    a.when(r.lprVersion == 4, [&](auto &o) {
        o.list("normalPolygonList", "polygonIndex", [&](auto &l) {
            for (int32_t i = 0; i < 4; ++i) {
                auto &polygon = ext.polygons[i];
                l.item(i, [&](auto &item) {
                    item("name", polygon.name);
                    item.derived("polygonX", mw::polygon_text(polygon.x, 4).text);
                    item.derived("polygonY", mw::polygon_text(polygon.y, 4).text);
                });
            }
        });
    });
    a("confidence", r.confidence);
    a("encryptionChip", r.encryptionChip);
    a("areaType", r.areaType);
    a("whiteLedExternal", r.whiteLedExternal);
    a("irLedExternal", r.irLedExternal);
    a("detectionMode", ext.detectionMode);
    a("vehicleEnhancement", ext.vehicleEnhancement);
    mw::schedule_list(a, r.schedule);
};
} // namespace

MW_SETTABLE_PAGE_WITH(, lpr_settings, lpr_settings_record, lpr_settings_ext_record, MW_NO_RULES, describe_settings)

MW_SETTABLE_PAGE(lpr_advanced, [](auto &a, auto &r) {
    a("osdSort", r.osdSort);
    a("osdFontSize", r.osdFontSize);
    a("osdFontColor", r.osdFontColor);
    a("osdBkgEnable", r.osdBkgEnable);
    a("osdBkgColor", r.osdBkgColor);
    a("osdPosition", r.osdPosition);
    // The field names are the library's and the spaces are read from their
    // texts as numbers: the list is shown read-only.
    a.list("osdSpaceList", nullptr, [&](auto &l) {
        for (size_t k = 0; k < 20; ++k) {
            if (strcmp(kPostFields[k], "lineBreak") == 0)
                continue;
            l.item([&](auto &item) {
                item.derived_text("fileName", kPostFields[k]); // the key's spelling is the page's
                item.derived("spaces", spaces_value(r.spaces[k]));
            });
        }
    });
    a("osdPositionName", r.osdPositionName);
    a("osdDeviceId", r.osdDeviceId);
    a("snapSeparator", r.snapSeparator);
    a("snapSort", r.snapSort);
    a("snapPosition", r.snapPosition);
    a("snapDeviceId", r.snapDeviceId);
    a("snapshotResolution", r.snapshotResolution);
})

MW_SETTABLE_PAGE_WITH(, lpr_black_settings, lpr_list_settings_record, lpr_list_direction_record, MW_NO_RULES, describe_list_settings)
MW_SETTABLE_PAGE_WITH(, lpr_white_settings, lpr_list_settings_record, lpr_list_direction_record, MW_NO_RULES, describe_list_settings)
MW_SETTABLE_PAGE_WITH(, lpr_visitor_settings, lpr_list_settings_record, lpr_list_direction_record, MW_NO_RULES, describe_list_settings)

MW_SETTABLE_PAGE(lpr_list_sche, [](auto &a, auto &r) {
    for (int rule = 0; rule < 4; ++rule)
        for (int d = 0; d < 7; ++d)
            a(mw::Key<32>("ruleTaskday_%d_%d", rule, d), r.ruleTaskday[rule][d]);
})

MW_READ_ONLY_PAGE(lpr_upload_status, "live upload state", [](auto &a, auto &r) { a("lprUploadStatus", r.lprUploadStatus); })

MW_SETTABLE_PAGE(lpr_wildcards, [](auto &a, auto &r) {
    a("filter", r.filter);
    a.list("filterList", "index", [&](auto &l) {
        for (int32_t i = 0; i < 30; ++i) {
            l.item(i, [&](auto &item) {
                item("enable", r.enable[i]);
                item("characterCount", r.characterCount[i]);
                item("format", r.format[i]);
            });
        }
    });
})

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

int32_t lane_region_word(const lpr_radar_config_record &r, size_t lane)
{
    int32_t word;
    memcpy(&word, reinterpret_cast<const unsigned char *>(&r) + kLaneRegionAt + lane * sizeof word, sizeof word);
    return word;
}

/* The four attribute rules and their weekly schedules. */
constexpr auto describe_attr_event = [](auto &a, auto &rules, auto &schedule) {
    a.list("enableList", "index", [&](auto &l) {
        for (int32_t k = 0; k < 4; ++k)
            l.item(k, [&](auto &item) { item("enable", rules[k].enable); });
    });
    a.list("alarmTriggerList", "index", [&](auto &l) {
        for (int32_t k = 0; k < 4; ++k) {
            l.item(k, [&](auto &item) {
                item("noPlate", rules[k].noPlate);
                item("plateColor", rules[k].plateColor);
                item("vehicleType", rules[k].vehicleType);
                item("vehicleColor", rules[k].vehicleColor);
                item("detectRegion", rules[k].detectRegion);
                item("direction", rules[k].direction);
            });
        }
    });
    a.list("scheduleList", "index", [&](auto &l) {
        for (int32_t k = 0; k < 4; ++k) {
            l.item(k, [&](auto &item) {
                item.list("LprAttrList", "scheduleIndex", [&](auto &days) { // capital L, as the page reads it
                    for (int32_t d = 0; d < 7; ++d)
                        days.item(d, [&](auto &day) { day("schedule", schedule.schedule[k][d]); });
                });
            });
        }
    });
};

/* The four rules the caller's pointer holds, as one array. */
using AttrRules = lpr_attr_event_entry[4];

} // namespace

/* The recent plate reads: the caller's `count` entries as numbered keys. */
MW_READ_ONLY_ENTRIES_PAGE(lpr_last_data, lpr_last_data_entry, "recent plate reads",
                          [](auto &a, int32_t count, const lpr_last_data_entry *entries) {
    for (int32_t i = 0; i < count; ++i) {
        const lpr_last_data_entry &e = entries[i];
        a.derived(mw::Key<32>("time_%d", i), e.time);
        a.derived(mw::Key<32>("plate_%d", i), e.plate);
        a.derived(mw::Key<32>("path_%d", i), e.path);
        a.derived(mw::Key<32>("region_%d", i), e.region);
        a.derived(mw::Key<32>("direction_%d", i), e.direction);
        a.derived(mw::Key<32>("roiId_%d", i), e.roiId);
        a.derived(mw::Key<32>("plateLeft_%d", i), e.plateLeft);
        a.derived(mw::Key<32>("plateTop_%d", i), e.plateTop);
        a.derived(mw::Key<32>("plateRight_%d", i), e.plateRight);
        a.derived(mw::Key<32>("plateBottom_%d", i), e.plateBottom);
    }
})

MW_SETTABLE_PAGE(lpr_radar_config, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("height", r.height);
    a("angle", r.angle);
    a("angleCom", r.angleCom);
    // The lane count decides how many lanes are listed: read-only.
    a.derived("lanesNum", r.lanesNum);
    a("laneWidth", r.laneWidth);
    a("installLocation", r.installLocation);
    a("speedUnit", r.speedUnit);
    a.list("laneMatchRoiList", "index", [&](auto &l) {
        for (int32_t lane = 0; lane < r.lanesNum && static_cast<size_t>(lane) < kLaneWords; ++lane) {
            l.item(lane, [&](auto &item) {
                // Lanes past the fourth show the words after laneRegion,
                // which the page shows again under their own keys.
                if (lane < 4)
                    item("region", r.laneRegion[lane]);
                else
                    item.derived("region", lane_region_word(r, static_cast<size_t>(lane)));
            });
        }
    });
    a.list("laneDirection", "index", [&](auto &l) {
        for (int32_t lane = 0; lane < r.lanesNum && lane <= 3; ++lane)
            l.item(lane, [&](auto &item) { item("direction", r.laneDirection[lane]); });
    });
    a("triggerLine", r.triggerLine);
    a("triggerDistance", r.triggerDistance);
    a("showSpeedEnable", r.showSpeedEnable);
    a("showDirectionEnable", r.showDirectionEnable);
    a("showDistanceEnable", r.showDistanceEnable);
    a("showAzimuthEnable", r.showAzimuthEnable);
    a("showCountingEnable", r.showCountingEnable);
    a("showLicensePlateEnable", r.showLicensePlateEnable);
    a("showDetectionRegionEnable", r.showDetectionRegionEnable);
    a("fontSize", r.fontSize);
    a("fontColor", r.fontColor);
    a("osdAutoReset", r.osdAutoReset);
    a("osdResetWeekday", r.osdResetWeekday);
    a("osdResetHour", r.osdResetHour);
    a("osdResetMin", r.osdResetMin);
    a("osdResetSec", r.osdResetSec);
    a("maxSpeedAlarmEnable", r.maxSpeedAlarmEnable);
    a("minSpeedAlarmEnable", r.minSpeedAlarmEnable);
    a("maxSpeedThreshold", r.maxSpeedThreshold);
    a("minSpeedThreshold", r.minSpeedThreshold);
    a("drivingDirAlarmEnable", r.drivingDirAlarmEnable);
    a("drivingDir", r.drivingDir);
    a("countAlarm", r.countAlarm);
    a("countThreshold", r.countThreshold);
    a("radarLevel", r.radarLevel);
    a("debug", r.debug);
    a("upgrade", r.upgrade);
    a("exportEnable", r.exportEnable);
    a("exportMethod", r.exportMethod);
    a("exportWeekday", r.exportWeekday);
    a("exportResetHour", r.exportResetHour);
    a("exportResetMin", r.exportResetMin);
    a("exportResetSec", r.exportResetSec);
    a("exportTimeRange", r.exportTimeRange);
    mw::schedule_list(a, r.schedule);
})

MW_READ_ONLY_VALUE_PAGE(lpr_radar_test, radarTest, "a test's result",
                        [](auto &a, int32_t radarTest) { a.derived("radarTest", radarTest); })

/* The targets the radar tracks now: the caller's `count` entries. */
MW_READ_ONLY_ENTRIES_PAGE(lpr_radar_detect_data, lpr_radar_detect_entry, "live radar targets",
                          [](auto &a, int32_t count, const lpr_radar_detect_entry *entries) {
    a.list("radarDetectData", nullptr, [&](auto &l) {
        for (int32_t i = 0; i < count; ++i) {
            const lpr_radar_detect_entry &e = entries[i];
            l.item([&](auto &target) {
                target.derived("id", e.id);
                target.derived("speed", e.speed);
                target.derived("xpos", e.xpos);
                target.derived("distance", e.distance);
                target.derived("direction", e.direction);
            });
        }
    });
})

/* The four attribute rules and their weekly schedules, over the caller's
   pointer to the first rule. Its serializer prints whatever buffer it is
   given: a size below 1 copies nothing and still yields 0. */
MW_PAGE_OBJECT_(, lpr_attr_event, nullptr, nullptr, MW_RULES(nullptr, nullptr, mw::kPrintsAnyBuffer), 2,
                (sizeof(AttrRules), sizeof(lpr_attr_schedule)), (AttrRules, lpr_attr_schedule), describe_attr_event)
MW_PAGE_FUNCTIONS_(, lpr_attr_event, (const lpr_attr_event_entry *rules, const lpr_attr_schedule *schedule),
                   (rules, schedule))
MW_SET_FUNCTION_(, lpr_attr_event, (lpr_attr_event_entry *rules, lpr_attr_schedule *schedule), (rules, schedule))
