#include "catalog.h"

namespace {

// The action records are the alarm-action records of the event pages, with
// the four IoT rules in elements 0..3. The event-type selector is left at
// "all"; these documents do not read it.

// Rule 0: server-room climate, rule 1: loading-bay door; rules 2 and 3 unused.
bool rule_in_use(int32_t rule) { return rule < 2; }

void fill_record(event_record_record &r)
{
    r.eventType = -1;
    r.sdInsert[0] = 1;
    r.nasMountStatus[0] = 1;
    for (int32_t rule = 0; rule < 4; ++rule) {
        r.duration[rule] = rule == 1 ? 60 : 30;
        r.recordSettings[rule].recordEnable = rule_in_use(rule) ? 1 : 0;
        r.recordSettings[rule].recordWay = 1;
    }
}

void fill_snap(event_snop_record &r)
{
    r.eventType = -1;
    r.snapSmtpEnable = 1;
    for (int32_t rule = 0; rule < 4; ++rule) {
        r.interval[rule] = 5;
        r.unit[rule] = 0;
        r.snapEnable[rule] = rule_in_use(rule) ? 1 : 0;
        r.snapWay[rule] = 1;
        r.imageNum[rule] = rule == 1 ? 4 : 2;
        r.smtpInterval[rule] = 300;
        r.snapType[rule] = 1;
    }
}

void fill_output(event_extern_output_record &r)
{
    r.eventType = -1;
    for (int32_t rule = 0; rule < 4; ++rule) {
        r.externOutputEnable[rule] = rule == 1 ? 1 : 0;
        r.externDuration[rule] = 10;
        r.externOutputExtEnable[rule] = 0;
    }
}

void fill_play_audio(event_play_audio_record &r)
{
    r.eventType = -1;
    for (int32_t rule = 0; rule < 4; ++rule) {
        r.playAudioEnable[rule] = rule == 1 ? 1 : 0;
        r.audioInterval[rule] = 30;
        for (int32_t d = 0; d < 7; ++d)
            put(r.schedule[rule][d], d == 0 || d == 6 ? "00:00-24:00" : "00:00-07:00;19:00-24:00");
    }
}

void fill_sip_phone(event_alarm_sip_phone_record &r)
{
    r.eventType = -1;
    r.alarmSipPhoneEnable[0] = 1;
}

void fill_notify(event_notify_record &r)
{
    r.eventType = -1;
    for (int32_t rule = 0; rule < 4; ++rule) {
        r.httpNotifyEnable[rule] = rule_in_use(rule) ? 1 : 0;
        event_notify_entry &bms = r.notifyList[rule][0];
        bms.enable = 1;
        bms.method = 1;
        bms.snapShot = 0;
        snprintf(bms.url, sizeof bms.url, "http://192.168.1.25/bms/iot-alarm?rule=%d", static_cast<int>(rule));
        put(bms.user, "bms");
        put(bms.password, "Bms-2026");
        bms.interval = 60;
    }
}

void fill_osd_blink(event_osd_blink_record &r)
{
    r.eventType = -1;
    for (int32_t rule = 0; rule < 4; ++rule) {
        r.osdBlinkEnable[rule] = rule_in_use(rule) ? 1 : 0;
        r.osdBlinkTime[rule] = 15;
    }
}

// The action pages read the event records; their functions keep the IoT
// names.
#define IOT_ENTRY(resource, Record, description, fill)                                                          \
    page_entry<RecordPage<Record, sample_in_place<Record, fill>, get_##resource##_json, schema_##resource##_json, \
                          set_##resource##_json>>("get_" #resource "_json", description)

event_iot_alarm_status_record sample_alarm_status()
{
    return event_iot_alarm_status_record{1};
}

const CatalogEntry entries[] = {
    IOT_ENTRY(event_iot_record, event_record_record, "recording on each IoT alarm rule", fill_record),
    IOT_ENTRY(event_iot_snap, event_snop_record, "snapshots on each IoT alarm rule", fill_snap),
    IOT_ENTRY(event_extern_iot_output, event_extern_output_record, "alarm output switched on each IoT alarm rule",
              fill_output),
    IOT_ENTRY(event_iot_play_audio, event_play_audio_record, "audio file played on each IoT alarm rule, with its week",
              fill_play_audio),
    IOT_ENTRY(event_iot_alarm_sip_phone, event_alarm_sip_phone_record, "SIP phone rung on each IoT alarm rule",
              fill_sip_phone),
    IOT_ENTRY(event_iot_notify, event_notify_record, "HTTP notification targets of each IoT alarm rule", fill_notify),
    IOT_ENTRY(event_iot_osd_blink, event_osd_blink_record, "on-screen display blinking on each IoT alarm rule",
              fill_osd_blink),
    MW_READ_ONLY_ENTRY(event_iot_alarm_status, "current IoT alarm state",
                       (kept<event_iot_alarm_status_record, sample_alarm_status>)),
};

#undef IOT_ENTRY

} // namespace

const CatalogGroup catalog_iot_actions = catalog_group("iot_actions", entries);
