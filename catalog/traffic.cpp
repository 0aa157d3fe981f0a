#include "catalog.h"

namespace {

void set_region(parking_region_entry &region, const char *name, int x0, int y0, int x1, int y1)
{
    put(region.name, name);
    const int xs[4] = {x0, x1, x1, x0};
    const int ys[4] = {y0, y0, y1, y1};
    for (int j = 0; j < 4; ++j) {
        region.pointX[j] = xs[j];
        region.pointY[j] = ys[j];
    }
}

// Bays watched from 06:00 to 22:00 on working days, all day at the weekend.
week_schedule_block sample_week()
{
    week_schedule_block w{};
    for (int d = 0; d < 7; ++d)
        put(w.schedule[d], d == 0 || d == 6 ? "00:00-24:00" : "06:00-22:00");
    return w;
}

// Four on-street bays, results pushed to the parking operator's server.
lpr_parking_detection_record sample_parking_detection()
{
    lpr_parking_detection_record r{};
    r.enable = 1;
    set_region(r.regions[0], "Bay 1", 40, 420, 300, 700);
    set_region(r.regions[1], "Bay 2", 320, 420, 620, 700);
    set_region(r.regions[2], "Bay 3", 640, 420, 940, 700);
    set_region(r.regions[3], "Bay 4 (disabled)", 960, 420, 1260, 700);
    r.pullEnable = 1;
    r.pullAgain = 1;
    r.afterTime = 30;
    r.periodicEnable = 1;
    r.period = 300;
    r.attachSnap = 1;
    r.postType = 1;
    r.tcpPort = 9010;
    put(r.httpUrl, "http://parking.example.net:8080/api/v1/bays/events");
    put(r.httpUser, "gate-north");
    put(r.httpPwd, "Bays!2026");
    r.saveSnap = 1;
    return r;
}

// The fire lane in front of the entrance: no vehicle but emergency ones.
parking_violation_record sample_parking_violation()
{
    parking_violation_record r{};
    r.enable = 1;
    r.residenceTime = 120;
    r.permitVehicle = 2;
    set_region(r.regions[0], "Fire lane", 200, 380, 1100, 620);
    set_region(r.regions[1], "Loading zone", 1120, 380, 1800, 640);
    return r;
}

const CatalogEntry entries[] = {
    {"ware_get_lpr_parking_detection_json", "licence-plate parking detection: bays, schedule and result posting",
     [](char *dst, int32_t n) {
         static const lpr_parking_detection_record r = sample_parking_detection();
         static const week_schedule_block w = sample_week();
         return ware_get_lpr_parking_detection_json(&r, &w, dst, n);
     }},
    {"ware_get_parking_general_json", "general parking settings and the area list",
     [](char *dst, int32_t n) {
         static const parking_general_record r = [] {
             parking_general_record g{};
             g.countryRegion = 7;
             g.nightModeEnable = 1;
             g.nightModeLevel = 2;
             g.areaType = 1;
             return g;
         }();
         return ware_get_parking_general_json(&r, "North car park,Level -1,Visitor bays", dst, n);
     }},
    {"ware_get_parking_violation_json", "parking-violation detection: regions, permitted vehicles, schedule",
     [](char *dst, int32_t n) {
         static const parking_violation_record r = sample_parking_violation();
         static const week_schedule_block w = sample_week();
         return ware_get_parking_violation_json(&r, &w, dst, n);
     }},
    {"ware_get_auto_export_json", "weekly automatic export of parking results",
     [](char *dst, int32_t n) {
         static const auto_export_record r = [] {
             auto_export_record e{};
             e.enable = 1;
             e.method = 1;
             e.weekday = 1;
             e.hour = 2;
             e.min = 30;
             e.sec = 0;
             e.timeRange = 7;
             return e;
         }();
         return ware_get_auto_export_json(&r, dst, n);
     }},
};

} // namespace

const CatalogGroup catalog_traffic = catalog_group("traffic", entries);
