/*
 * event.cpp - the event pages: the alarm actions per event type, and the
 * event sources, upload servers and global switches.
 */
#include "internal.h"

/* ==== alarm actions per event type ==== */

namespace {

/* The per-event-type action document: one object per event type, named by
   the event-name table, filled by `fill(object, type)` with the member's keys
   read at that type. A negative selector shows every type in table order,
   0..47 that type alone. A selector above 47 has neither a name nor a slot:
   the serializer and the schema refuse it before describing, so only the
   document a set request compares its read-only keys with is built for one,
   and that shows every type. A set request takes the types it names,
   whatever the selector. */
template <typename A, typename Record, typename F>
void action_per_event_type(A &a, const Record &r, F &&fill)
{
    a.per_event_type(r.eventType <= mw::kLastAlarmEventType ? r.eventType : -1, fill);
}

} // namespace

MW_EVENT_TYPE_PAGE(event_notify, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("httpNotifyEnable", r.httpNotifyEnable[i]);
        type.list("notifyList", "index", [&](auto &l) {
            for (int32_t j = 0; j < 3; ++j) {
                l.item(j, [&](auto &target) {
                    auto &t = r.notifyList[i][j];
                    target("enable", t.enable);
                    target("interval", t.interval);
                    target("url", t.url);
                    target("user", t.user);
                    target("password", t.password);
                    target("method", t.method);
                    target("snapShot", t.snapShot);
                });
            }
        });
    });
})

MW_EVENT_TYPE_PAGE(event_record, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("recordEnable", r.recordSettings[i].recordEnable);
        type("recordWay", r.recordSettings[i].recordWay);
        type("duration", r.duration[i]);
        type("sdInsert", r.sdInsert[i]);
        type("nasMountStatus", r.nasMountStatus[i]);
    });
})

/* The mail switch is one value for every type, shown in each type's object.
   It is written through the object of the selected type (of "motion" when
   every type is shown); the other objects repeat it. */
MW_EVENT_TYPE_PAGE(event_snop, [](auto &a, auto &r) {
    const int32_t mailSlot = r.eventType >= 0 && r.eventType <= mw::kLastAlarmEventType ? r.eventType : 0;
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        if (i == mailSlot)
            type("snapSmtpEnable", r.snapSmtpEnable);
        else
            type.derived("snapSmtpEnable", r.snapSmtpEnable);
        type("snapEnable", r.snapEnable[i]);
        type("snapWay", r.snapWay[i]);
        type("interval", r.interval[i]);
        type("unit", r.unit[i]);
        type("imageNum", r.imageNum[i]);
        type("smtpInterval", r.smtpInterval[i]);
        // The snapshot type belongs to the page of a single event type; the
        // overview of all types leaves it out.
        type.when(r.eventType >= 0, [&](auto &single) { single("snapType", r.snapType[i]); });
    });
})

MW_EVENT_TYPE_PAGE(event_extern_output, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("externOutputEnable", r.externOutputEnable[i]);
        type("externDuration", r.externDuration[i]);
        type("externOutputExtEnable", r.externOutputExtEnable[i]);
    });
})

MW_EVENT_TYPE_PAGE(event_play_audio, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("playAudioEnable", r.playAudioEnable[i]);
        type("audioInterval", r.audioInterval[i]);
        mw::schedule_list(type, r.schedule[i]);
    });
})

MW_EVENT_TYPE_PAGE(event_alarm_sip_phone, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) { type("alarmSipPhoneEnable", r.alarmSipPhoneEnable[i]); });
})

MW_EVENT_TYPE_PAGE(event_white_led, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("whiteLedEnable", r.whiteLedEnable[i]);
        type("flashMode", r.flashMode[i]);
        type("flashTime", r.flashTime[i]);
        type("effectiveMode", r.effectiveMode[i]);
        type("effectiveBright", r.effectiveBright[i]);
        type("alwaysTime", r.alwaysTime[i]);
        type("startHour", r.startHour[i]);
        type("startMinute", r.startMinute[i]);
        type("stopHour", r.stopHour[i]);
        type("stopMinute", r.stopMinute[i]);
    });
})

MW_EVENT_TYPE_PAGE(event_ptz_motion, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("ptzMotionEnable", r.ptzMotionEnable[i]);
        type("ptzZoomTimes", r.ptzZoomTimes[i]); // zoom first, though stored after recovery
        type("ptzRecoveryTime", r.ptzRecoveryTime[i]);
    });
})

MW_EVENT_TYPE_PAGE(event_osd_blink, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("osdBlinkEnable", r.osdBlinkEnable[i]);
        type("osdBlinkTime", r.osdBlinkTime[i]);
    });
})

MW_EVENT_TYPE_PAGE(event_event_call, [](auto &a, auto &r) {
    action_per_event_type(a, r, [&](auto &type, int32_t i) {
        type("presetEnable", r.presetEnable[i]);
        type("presetId", r.presetId[i]);
        type("patrolEnable", r.patrolEnable[i]);
        type("patrolId", r.patrolId[i]);
        type("patternEnable", r.patternEnable[i]);
        type("patternId", r.patternId[i]);
    });
})


/* ==== end alarm actions per event type ==== */


/* ==== event sources, upload servers and global switches ==== */

namespace {

/* The number of list entries a stored count asks for, read as a signed
   value: none for 0 or below, and never more than the record's array has
   room for. */
template <typename T, size_t Capacity>
int32_t entries_in_use(int32_t count, const T (&)[Capacity])
{
    if (count <= 0)
        return 0;
    return count < static_cast<int32_t>(Capacity) ? count : static_cast<int32_t>(Capacity);
}

/* One upload server's settings, without its enable byte (only the server in
   use reports that, at the root). */
template <typename A, typename Server>
void ftp_server(A &a, Server &s)
{
    a("ftpAddress", s.ftpAddress);
    a("ftpPort", s.ftpPort);
    a("ftpPath", s.ftpPath);
    a("ftpUserName", s.ftpUserName);
    a("ftpPathType", s.ftpPathType);
    a("ftpParentDirType", s.ftpParentDirType);
    a("ftpParentDir", s.ftpParentDir);
    a("ftpChildDirType", s.ftpChildDirType);
    a("ftpChildDir", s.ftpChildDir);
    a("ftpAlarmDirType", s.ftpAlarmDirType);
    a("ftpVideoDirType", s.ftpVideoDirType);
    a("ftpVideoPrefix", s.ftpVideoPrefix);
    a("ftpVideoName", s.ftpVideoName);
    a("ftpImgDirType", s.ftpImgDirType);
    a("ftpImgPrefix", s.ftpImgPrefix);
    a("ftpImgName", s.ftpImgName);
    a("ftpProtocol", s.ftpProtocol);
    a("ftpPreRecordTime", s.ftpPreRecordTime);
    a("ftpSnapPrefix", s.ftpSnapPrefix);
    a("ftpSnapName", s.ftpSnapName);
    a("ftpSnapShotDirType", s.ftpSnapShotDirType);
    a("ftpSnapShotName", s.ftpSnapShotName);
    a("ftpSnapFileFormat", s.ftpSnapFileFormat);
    a("videoType", s.videoType);
}

/* currentType picks the server in use; any other value names none, and a
   record that names none cannot be shown, described or written. */
bool names_a_server(void *const *inputs)
{
    const int32_t type = static_cast<const event_server_ftp_record *>(inputs[0])->currentType;
    return type == 0 || type == 1;
}

} // namespace

MW_SETTABLE_PAGE(event_auto_tracking, [](auto &a, auto &r) { a("ptzAutoTrackingEnable", r.ptzAutoTrackingEnable); })

MW_READ_ONLY_PAGE(event_audio_sample_value, "live readings", [](auto &a, auto &r) { a("audiosampleValue", r.audiosampleValue); })

MW_SETTABLE_PAGE(cal_region, [](auto &a, auto &r) {
    a("startX", r.startX);
    a("startY", r.startY);
    a("width", r.width);
    a("height", r.height);
})

MW_SETTABLE_PAGE(event_motion, [](auto &a, auto &r) {
    a("triggerSensitivity", r.triggerSensitivity);
    a("motionEnable", r.motionEnable);
    a("dynamicAnalysisEnable", r.dynamicAnalysisEnable);
    a("activecell", r.activecell);
    a("detectionMode", r.detectionMode);
    a("windowRectangle", r.windowRectangle);
    a.list("regionInfoList", "regionIndex", [&](auto &l) {
        for (int32_t region = 0; region < 4; ++region) {
            l.item(region, [&](auto &item) {
                item("sensitivity", r.sensitivity[region]);
                item("areaRegion", r.areaRegion[region]);
            });
        }
    });
    mw::schedule_list(a, r.schedule);
})

MW_SETTABLE_PAGE(event_audio_info, [](auto &a, auto &r) {
    a("audioEnable", r.audioEnable);
    a("audioAlarmEnable", r.audioAlarmEnable);
    a("audioMode", r.audioMode);
    a("audioAlarmThreshold", r.audioAlarmThreshold);
    mw::schedule_list(a, r.schedule);
})

/* The number of outputs is the hardware's; the list shows that many, up to
   the record's two. */
MW_SETTABLE_PAGE(event_io_info, [](auto &a, auto &r) {
    a.derived("outputNum", r.outputNum);
    a.list("outputIoList", "index", [&](auto &l) {
        for (int32_t o = 0; o < entries_in_use(r.outputNum, r.logicalState); ++o) {
            l.item(o, [&](auto &output) {
                output("propertiesIdlestate", r.propertiesIdlestate[o]);
                output("logicalState", r.logicalState[o]);
            });
        }
    });
})

/* The number of inputs is the hardware's; the list shows that many, up to
   the record's four. */
MW_SETTABLE_PAGE(event_extern_input_info, [](auto &a, auto &r) {
    a.derived("supportInputNum", r.supportInputNum);
    a.list("inputList", "index", [&](auto &l) {
        for (int32_t n = 0; n < entries_in_use(r.supportInputNum, r.status); ++n) {
            l.item(n, [&](auto &input) {
                input("enable", r.enable[n]);
                input("normal", r.normal[n]);
                input("status", r.status[n]);
            });
        }
    });
})

/* The page shows a word when the test mail went out and the mail client's
   error code when it did not. */
MW_READ_ONLY_PAGE(event_test_smtp, "the outcome of a test mail", [](auto &a, auto &r) {
    if (r.testState == 1)
        a.derived_text("setState", "succeed");
    else
        a("setState", r.errorCode);
})

MW_SETTABLE_PAGE(event_server_smtp, [](auto &a, auto &r) {
    a("smtpEnable", r.smtpEnable);
    a("smtpAddress", r.smtpAddress);
    a("smtpPort", r.smtpPort);
    a("smtpUserName", r.smtpUserName);
    a("smtpSsl", r.smtpSsl);
    a("smtpFromAddress", r.smtpFromAddress);
    a("smtpToAddress", r.smtpToAddress);
    a("smtpImgType", r.smtpImgType);
    a("smtpImgPrefix", r.smtpImgPrefix);
    a("smtpImgName", r.smtpImgName);
    a("smtpSnapType", r.smtpSnapType);
    a("smtpSnapPrefix", r.smtpSnapPrefix);
    a("smtpSnapName", r.smtpSnapName);
})

/* The server in use is chosen elsewhere (it decides whose enable byte
   "ftpEnable" is); this page sets that server's enable byte and both
   servers' settings. */
MW_SETTABLE_RECORD_PAGE(, event_server_ftp, event_server_ftp_record, nullptr,
                        MW_RULES(names_a_server, nullptr, mw::kSetOnlyWhenShown), [](auto &a, auto &r) {
    a.derived("currentType", r.currentType);
    a("ftpEnable", r.servers[r.currentType].enable);
    a.object("ftpInfo", [&](auto &server) { ftp_server(server, r.servers[0]); });
    a.object("sftpInfo", [&](auto &server) { ftp_server(server, r.servers[1]); });
})

/* A summary of switches set on their own pages and of the storage state. */
MW_READ_ONLY_PAGE(event_global_enable, "a summary of switches set on their own pages, and storage state", [](auto &a, auto &r) {
    a("motionEnable", r.motionEnable);
    a("trackEnable", r.trackEnable);
    a("faceEnable", r.faceEnable);
    a("helmetEnable", r.helmetEnable);
    a("vehicleCountEnable", r.vehicleCountEnable);
    a("lprEnable", r.lprEnable);
    a("enablePtzMotion", r.enablePtzMotion);
    a("enablePtzMotionVca", r.enablePtzMotionVca);
    a("smartEventEnable", r.smartEventEnable);
    a("sipEnable", r.sipEnable);
    a("smtpEnable", r.smtpEnable);
    a("audioEnable", r.audioEnable);
    a("ftpEnable", r.ftpEnable);
    a("sdInsert", r.sdInsert);
    a("nasMountStatu", r.nasMountStatus); // the key clients read, one letter short
    a("heatmapEnable", r.heatmapEnable);
})

/* ==== end event sources, upload servers and global switches ==== */
