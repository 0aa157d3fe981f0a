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
