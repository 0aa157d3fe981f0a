#include "catalog.h"

namespace {

// The event types this camera reacts to in its samples: motion, the alarm
// input, tampering, intrusion, line crossing and the black-listed plate.
bool armed(int32_t type)
{
    return type == 0 || type == 3 || type == 4 || type == 9 || type == 13 || type == 24;
}

const char *const kWeekdays[7] = {"00:00-24:00", "18:00-24:00;00:00-07:30", "18:00-24:00;00:00-07:30",
                                  "18:00-24:00;00:00-07:30", "18:00-24:00;00:00-07:30",
                                  "18:00-24:00;00:00-07:30", "00:00-24:00"};

// Every event type posts to the video management server; the armed ones
// also to the site's alarm receiver. The third target is unused.
void fill_notify(event_notify_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.notifyReserved[i] = 0;
        r.httpNotifyEnable[i] = armed(i) ? 1 : 0;
        const char *name = getAlarmEventTypeString(i);
        event_notify_entry &vms = r.notifyList[i][0];
        vms.enable = 1;
        vms.method = 1;
        vms.snapShot = 1;
        snprintf(vms.url, sizeof vms.url, "http://192.168.1.20:8080/api/alarm?event=%s&camera=gate-north", name);
        put(vms.user, "vms-ingest");
        put(vms.password, "Ingest#2026");
        vms.interval = 10;
        event_notify_entry &receiver = r.notifyList[i][1];
        receiver.enable = armed(i) ? 1 : 0;
        receiver.method = 0;
        receiver.snapShot = 0;
        snprintf(receiver.url, sizeof receiver.url, "https://alarms.northfield.example/hook/%s", name);
        put(receiver.user, "site-07");
        put(receiver.password, "r3ceiv3r");
        receiver.interval = 60;
    }
}

void fill_record(event_record_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.duration[i] = armed(i) ? 30 : 10;
        r.sdInsert[i] = 1;
        r.nasMountStatus[i] = 0;
        r.recordSettings[i].recordEnable = armed(i) ? 1 : 0;
        r.recordSettings[i].recordWay = i == 24 ? 2 : 1;
    }
}

// The motion page asks for its own type, so the document shows "snapType".
void fill_snop(event_snop_record &r)
{
    r.eventType = 0;
    r.snapSmtpEnable = 1;
    for (int32_t i = 0; i < 48; ++i) {
        r.interval[i] = 2;
        r.unit[i] = 0;
        r.snapEnable[i] = armed(i) ? 1 : 0;
        r.snapWay[i] = 1;
        r.imageNum[i] = 3;
        r.smtpInterval[i] = 120;
        r.snapType[i] = 1;
    }
}

void fill_extern_output(event_extern_output_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.externOutputEnable[i] = armed(i) ? 1 : 0;
        r.externDuration[i] = 5;
        r.externOutputExtEnable[i] = i == 3 ? 1 : 0;
    }
}

void fill_play_audio(event_play_audio_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.playAudioEnable[i] = i == 9 || i == 13 ? 1 : 0;
        r.audioInterval[i] = 15;
        for (int32_t d = 0; d < 7; ++d)
            put(r.schedule[i][d], kWeekdays[d]);
    }
}

void fill_alarm_sip_phone(event_alarm_sip_phone_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i)
        r.alarmSipPhoneEnable[i] = i == 3 || i == 4 ? 1 : 0;
}

void fill_white_led(event_white_led_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.whiteLedEnable[i] = i == 9 || i == 13 ? 1 : 0;
        r.flashMode[i] = 1;
        r.flashTime[i] = 10;
        r.effectiveMode[i] = 2;
        r.effectiveBright[i] = 80;
        r.alwaysTime[i] = 30;
        r.startHour[i] = 18;
        r.startMinute[i] = 30;
        r.stopHour[i] = 6;
        r.stopMinute[i] = 15;
    }
}

void fill_ptz_motion(event_ptz_motion_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.ptzMotionEnable[i] = i == 9 ? 1 : 0;
        r.ptzRecoveryTime[i] = 20;
        r.ptzZoomTimes[i] = 4;
    }
}

void fill_osd_blink(event_osd_blink_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.osdBlinkEnable[i] = armed(i) ? 1 : 0;
        r.osdBlinkTime[i] = 10;
    }
}

void fill_event_call(event_event_call_record &r)
{
    r.eventType = -1;
    for (int32_t i = 0; i < 48; ++i) {
        r.presetEnable[i] = i == 3 ? 1 : 0;
        r.presetId[i] = 2;
        r.patrolEnable[i] = i == 4 ? 1 : 0;
        r.patrolId[i] = 1;
        r.patternEnable[i] = 0;
        r.patternId[i] = 3;
    }
}

const CatalogEntry entries[] = {
    {"get_event_notify_json", "HTTP notification targets of every alarm event type",
     [](char *dst, int32_t n) { return get_event_notify_json(&sample_in_place<event_notify_record, fill_notify>(), dst, n); }},
    {"get_event_record_json", "recording on every alarm event type",
     [](char *dst, int32_t n) { return get_event_record_json(&sample_in_place<event_record_record, fill_record>(), dst, n); }},
    {"get_event_snop_json", "snapshots on motion, with the snapshot type",
     [](char *dst, int32_t n) { return get_event_snop_json(&sample_in_place<event_snop_record, fill_snop>(), dst, n); }},
    {"get_event_extern_output_json", "alarm output switched on every alarm event type",
     [](char *dst, int32_t n) {
         return get_event_extern_output_json(&sample_in_place<event_extern_output_record, fill_extern_output>(), dst, n);
     }},
    {"get_event_play_audio_json", "audio file played on every alarm event type, with its week",
     [](char *dst, int32_t n) {
         return get_event_play_audio_json(&sample_in_place<event_play_audio_record, fill_play_audio>(), dst, n);
     }},
    {"get_event_alarm_sip_phone_json", "SIP phone rung on every alarm event type",
     [](char *dst, int32_t n) {
         return get_event_alarm_sip_phone_json(&sample_in_place<event_alarm_sip_phone_record, fill_alarm_sip_phone>(), dst,
                                               n);
     }},
    {"get_event_white_led_json", "white LED lit on every alarm event type",
     [](char *dst, int32_t n) {
         return get_event_white_led_json(&sample_in_place<event_white_led_record, fill_white_led>(), dst, n);
     }},
    {"get_event_ptz_motion_json", "PTZ zoom and return on every alarm event type",
     [](char *dst, int32_t n) {
         return get_event_ptz_motion_json(&sample_in_place<event_ptz_motion_record, fill_ptz_motion>(), dst, n);
     }},
    {"get_event_osd_blink_json", "on-screen display blinking on every alarm event type",
     [](char *dst, int32_t n) {
         return get_event_osd_blink_json(&sample_in_place<event_osd_blink_record, fill_osd_blink>(), dst, n);
     }},
    {"get_event_event_call_json", "PTZ preset, patrol or pattern called on every alarm event type",
     [](char *dst, int32_t n) {
         return get_event_event_call_json(&sample_in_place<event_event_call_record, fill_event_call>(), dst, n);
     }},
};

} // namespace

const CatalogGroup catalog_event_actions = catalog_group("event_actions", entries);
