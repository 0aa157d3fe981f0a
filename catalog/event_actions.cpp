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

// A per-event-type page: its state is the record, whose eventType selects
// the type shown (or every type, when negative).
template <typename R, void (*Fill)(R &), int32_t (*Get)(const R *, char *, int32_t),
          int32_t (*Schema)(const R *, char *, int32_t), int32_t (*Set)(R *, const char *, int32_t, char *, int32_t)>
struct ActionPage : RecordPage<R, sample_in_place<R, Fill>, Get, Schema, Set> {
    using Base = RecordPage<R, sample_in_place<R, Fill>, Get, Schema, Set>;
    static int32_t *event_type(void *state) { return &static_cast<R *>(state)->eventType; }
    // -1 (any negative selector) asks for every event type, 0 .. the last
    // slot of the record's per-type arrays for that one type.
    static constexpr int32_t kEventTypes = sizeof(event_notify_record::httpNotifyEnable) / sizeof(int32_t);
    static constexpr PageOps ops{sizeof(R), Base::initial, Base::render, Base::schema, Base::set, event_type, "eventType",
                                 -1, kEventTypes - 1};
};

#define ACTION_ENTRY(resource, fill, description)                                                                 \
    page_entry<ActionPage<resource##_record, fill, get_##resource##_json, schema_##resource##_json,               \
                          set_##resource##_json>>("get_" #resource "_json", description)

const CatalogEntry entries[] = {
    ACTION_ENTRY(event_notify, fill_notify, "HTTP notification targets of every alarm event type"),
    ACTION_ENTRY(event_record, fill_record, "recording on every alarm event type"),
    ACTION_ENTRY(event_snop, fill_snop, "snapshots on motion, with the snapshot type"),
    ACTION_ENTRY(event_extern_output, fill_extern_output, "alarm output switched on every alarm event type"),
    ACTION_ENTRY(event_play_audio, fill_play_audio, "audio file played on every alarm event type, with its week"),
    ACTION_ENTRY(event_alarm_sip_phone, fill_alarm_sip_phone, "SIP phone rung on every alarm event type"),
    ACTION_ENTRY(event_white_led, fill_white_led, "white LED lit on every alarm event type"),
    ACTION_ENTRY(event_ptz_motion, fill_ptz_motion, "PTZ zoom and return on every alarm event type"),
    ACTION_ENTRY(event_osd_blink, fill_osd_blink, "on-screen display blinking on every alarm event type"),
    ACTION_ENTRY(event_event_call, fill_event_call, "PTZ preset, patrol or pattern called on every alarm event type"),
};

#undef ACTION_ENTRY

} // namespace

const CatalogGroup catalog_event_actions = catalog_group("event_actions", entries);
