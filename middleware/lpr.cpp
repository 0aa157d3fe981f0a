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
