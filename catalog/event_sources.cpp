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

const CatalogEntry entries[] = {
    {"get_event_auto_tracking_json", "PTZ auto tracking switch",
     [](char *dst, int32_t n) {
         static const event_auto_tracking_record r{1};
         return get_event_auto_tracking_json(&r, dst, n);
     }},
    {"get_event_motion_json", "motion detection with its regions and week",
     [](char *dst, int32_t n) {
         static const event_motion_record r = [] {
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
         }();
         return get_event_motion_json(&r, dst, n);
     }},
    {"get_event_server_ftp_json", "FTP and SFTP alarm upload servers",
     [](char *dst, int32_t n) {
         static const event_server_ftp_record r = [] {
             event_server_ftp_record f{};
             f.currentType = 0;
             fill_ftp_server(f.servers[0], false);
             fill_ftp_server(f.servers[1], true);
             return f;
         }();
         return get_event_server_ftp_json(&r, dst, n);
     }},
    {"get_event_server_smtp_json", "mail server for alarm mails",
     [](char *dst, int32_t n) {
         static const event_server_smtp_record r = [] {
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
         }();
         return get_event_server_smtp_json(&r, dst, n);
     }},
    {"get_event_test_smtp_json", "outcome of a test mail that was refused",
     [](char *dst, int32_t n) {
         static const event_test_smtp_record r{0, 535};
         return get_event_test_smtp_json(&r, dst, n);
     }},
    {"get_event_io_info_json", "alarm outputs and their states",
     [](char *dst, int32_t n) {
         static const event_io_info_record r = [] {
             event_io_info_record io{};
             io.outputNum = 2;
             io.propertiesIdlestate[0] = 0;
             io.propertiesIdlestate[1] = 1;
             io.logicalState[0] = 1;
             io.logicalState[1] = 0;
             return io;
         }();
         return get_event_io_info_json(&r, dst, n);
     }},
    {"get_event_audio_info_json", "audio-level alarm with its week",
     [](char *dst, int32_t n) {
         static const event_audio_info_record r = [] {
             event_audio_info_record a{};
             a.audioEnable = 1;
             a.audioAlarmEnable = 1;
             a.audioMode = 1;
             a.audioAlarmThreshold = 70;
             for (int32_t d = 0; d < 7; ++d)
                 put(a.schedule[d], kOfficeWeek[d]);
             return a;
         }();
         return get_event_audio_info_json(&r, dst, n);
     }},
    {"get_event_audio_sample_value_json", "current level of the audio input",
     [](char *dst, int32_t n) {
         static const event_audio_sample_value_record r{42};
         return get_event_audio_sample_value_json(&r, dst, n);
     }},
    {"get_cal_region_json", "calibration rectangle in image pixels",
     [](char *dst, int32_t n) {
         static const cal_region_record r{0, 640, 360, 1280, 720};
         return get_cal_region_json(&r, dst, n);
     }},
    {"get_event_extern_input_info_json", "alarm inputs and their states",
     [](char *dst, int32_t n) {
         static const event_extern_input_info_record r = [] {
             event_extern_input_info_record in{};
             in.supportInputNum = 2;
             in.enable[0] = 1;
             in.enable[1] = 1;
             in.normal[0] = 0;
             in.normal[1] = 1;
             in.status[0] = 0;
             in.status[1] = 1;
             return in;
         }();
         return get_event_extern_input_info_json(&r, dst, n);
     }},
    {"get_event_global_enable_json", "global feature switches and storage state",
     [](char *dst, int32_t n) {
         static const event_global_enable_record r{1, 0, 0, 0, 1, 1, 0, 0, 1, 1, 1, 1, 1, 1, 0, 1};
         return get_event_global_enable_json(&r, dst, n);
     }},
};

} // namespace

const CatalogGroup catalog_event_sources = catalog_group("event_sources", entries);
