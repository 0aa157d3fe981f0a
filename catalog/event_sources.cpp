#include "catalog.h"

namespace {

const char *const kOfficeWeek[7] = {"00:00-24:00",       "00:00-08:00;18:00-24:00", "00:00-08:00;18:00-24:00",
                                    "00:00-08:00;18:00-24:00", "00:00-08:00;18:00-24:00",
                                    "00:00-08:00;18:00-24:00", "00:00-24:00"};

// The loading bay's upload server, FTP in use, with the SFTP server of the
// head office configured beside it.
void fill_ftp_server(ftp_server_entry &s, bool secure)
{
    s.enable = secure ? 0 : 1;
    s.videoType = 1;
    put(s.ftpAddress, secure ? "sftp.northfield.example" : "192.168.1.30");
    s.ftpPort = secure ? 22 : 21;
    put(s.ftpUserName, secure ? "cam-upload" : "ftpcam");
    put(s.ftpPassword, secure ? "Upl0ad!" : "ftp2026");
    put(s.ftpPath, secure ? "/srv/alarms" : "/alarms");
    s.ftpPathType = 1;
    s.ftpParentDirType = 2;
    put(s.ftpParentDir, "gate-north");
    s.ftpChildDirType = 3;
    put(s.ftpChildDir, "by-date");
    s.ftpAlarmDirType = 1;
    s.ftpVideoDirType = 1;
    put(s.ftpVideoPrefix, "clip_");
    put(s.ftpVideoName, "gate-north");
    s.ftpImgDirType = 1;
    put(s.ftpImgPrefix, "alarm_");
    put(s.ftpImgName, "gate-north");
    put(s.ftpSnapPrefix, "snap_");
    put(s.ftpSnapName, "gate-north");
    s.ftpPreRecordTime = 5;
    s.ftpProtocol = secure ? 1 : 0;
    s.ftpSnapShotDirType = 2;
    put(s.ftpSnapShotName, "timed");
    s.ftpSnapFileFormat = 0;
}

event_auto_tracking_record auto_tracking() { return event_auto_tracking_record{1}; }

event_motion_record motion()
{
    event_motion_record m{};
    for (int32_t d = 0; d < 7; ++d)
        put(m.schedule[d], kOfficeWeek[d]);
    put(m.windowRectangle, "0:0:704:576:1;120:80:400:300:2");
    m.triggerSensitivity = 3;
    m.motionEnable = 1;
    m.activecell = 396;
    m.detectionMode = 1;
    m.dynamicAnalysisEnable = 1;
    const int32_t sensitivity[4] = {60, 75, 50, 50};
    const char *const areas[4] = {"driveway", "gate", "", ""};
    for (int32_t i = 0; i < 4; ++i) {
        m.sensitivity[i] = sensitivity[i];
        put(m.areaRegion[i], areas[i]);
    }
    return m;
}

event_server_ftp_record server_ftp()
{
    event_server_ftp_record f{};
    f.currentType = 0;
    fill_ftp_server(f.servers[0], false);
    fill_ftp_server(f.servers[1], true);
    return f;
}

event_server_smtp_record server_smtp()
{
    event_server_smtp_record s{};
    s.smtpEnable = 1;
    put(s.smtpUserName, "camera@northfield.example");
    put(s.smtpFromAddress, "gate-north@northfield.example");
    put(s.smtpAddress, "smtp.northfield.example");
    put(s.smtpPassword, "M4il-Pass");
    s.smtpPort = 587;
    s.smtpImgType = 1;
    put(s.smtpImgPrefix, "alarm_");
    put(s.smtpImgName, "gate-north");
    s.smtpSnapType = 0;
    put(s.smtpSnapPrefix, "snap_");
    put(s.smtpSnapName, "gate-north");
    s.smtpSsl = 2;
    put(s.smtpToAddress, "security@northfield.example;facility@northfield.example");
    return s;
}

event_test_smtp_record test_smtp() { return event_test_smtp_record{0, 535}; }

event_io_info_record io_info()
{
    event_io_info_record io{};
    io.outputNum = 2;
    io.propertiesIdlestate[0] = 0;
    io.propertiesIdlestate[1] = 1;
    io.logicalState[0] = 1;
    io.logicalState[1] = 0;
    return io;
}

event_audio_info_record audio_info()
{
    event_audio_info_record a{};
    a.audioEnable = 1;
    a.audioAlarmEnable = 1;
    a.audioMode = 1;
    a.audioAlarmThreshold = 70;
    for (int32_t d = 0; d < 7; ++d)
        put(a.schedule[d], kOfficeWeek[d]);
    return a;
}

event_audio_sample_value_record audio_sample_value() { return event_audio_sample_value_record{42}; }
cal_region_record cal_region() { return cal_region_record{0, 640, 360, 1280, 720}; }

event_extern_input_info_record extern_input_info()
{
    event_extern_input_info_record in{};
    in.supportInputNum = 2;
    in.enable[0] = 1;
    in.enable[1] = 1;
    in.normal[0] = 0;
    in.normal[1] = 1;
    in.status[0] = 0;
    in.status[1] = 1;
    return in;
}

event_global_enable_record global_enable()
{
    return event_global_enable_record{1, 0, 0, 0, 1, 1, 0, 0, 1, 1, 1, 1, 1, 1, 0, 1};
}

// A settable page over one record. Its ops name the set function directly:
// a sanitizer build does not take "Set != nullptr" (RecordPage's test) for a
// constant.
template <typename R, const R &(*Sample)(), int32_t (*Get)(const R *, char *, int32_t),
          int32_t (*Schema)(const R *, char *, int32_t), int32_t (*Set)(R *, const char *, int32_t, char *, int32_t)>
struct SettablePage : RecordPage<R, Sample, Get, Schema, Set> {
    using Base = RecordPage<R, Sample, Get, Schema, Set>;
    static constexpr PageOps ops{sizeof(R), Base::initial, Base::render, Base::schema, Base::set};
};

#define SETTABLE_ENTRY(resource, description, sample)                                                             \
    page_entry<SettablePage<resource##_record, sample, get_##resource##_json, schema_##resource##_json,           \
                            set_##resource##_json>>("get_" #resource "_json", description)

const CatalogEntry entries[] = {
    SETTABLE_ENTRY(event_auto_tracking, "PTZ auto tracking switch",
                      (kept<event_auto_tracking_record, auto_tracking>)),
    SETTABLE_ENTRY(event_motion, "motion detection with its regions and week",
                      (kept<event_motion_record, motion>)),
    SETTABLE_ENTRY(event_server_ftp, "FTP and SFTP alarm upload servers",
                      (kept<event_server_ftp_record, server_ftp>)),
    SETTABLE_ENTRY(event_server_smtp, "mail server for alarm mails", (kept<event_server_smtp_record, server_smtp>)),
    MW_READ_ONLY_ENTRY(event_test_smtp, "outcome of a test mail that was refused",
                       (kept<event_test_smtp_record, test_smtp>)),
    SETTABLE_ENTRY(event_io_info, "alarm outputs and their states", (kept<event_io_info_record, io_info>)),
    SETTABLE_ENTRY(event_audio_info, "audio-level alarm with its week", (kept<event_audio_info_record, audio_info>)),
    MW_READ_ONLY_ENTRY(event_audio_sample_value, "current level of the audio input",
                       (kept<event_audio_sample_value_record, audio_sample_value>)),
    SETTABLE_ENTRY(cal_region, "calibration rectangle in image pixels", (kept<cal_region_record, cal_region>)),
    SETTABLE_ENTRY(event_extern_input_info, "alarm inputs and their states",
                      (kept<event_extern_input_info_record, extern_input_info>)),
    MW_READ_ONLY_ENTRY(event_global_enable, "global feature switches and storage state",
                       (kept<event_global_enable_record, global_enable>)),
};

#undef SETTABLE_ENTRY

} // namespace

const CatalogGroup catalog_event_sources = catalog_group("event_sources", entries);
