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
