/*
 * event.cpp - the event pages: the alarm actions per event type, and the
 * event sources, upload servers and global switches.
 */
#include "internal.h"

using mw::add;

/* ==== alarm actions per event type ==== */

namespace {

/* The alarm event types of the event-name table: 0..47. */
constexpr int32_t kLastAlarmEventType = 47;

/* The per-event-type action document. A negative selector asks for every
   event type: one object per type, in table order, named by the event-name
   table; 0..47 asks for that type's object alone. Each object is filled by
   `fill(object, type)` with the member's keys read at that type. A selector
   above 47 has neither a name nor a slot and is refused. */
template <typename Record, typename Fill>
int32_t per_event_type_document(const Record *in, char *dst, int32_t dstSize, Fill &&fill)
{
    if (!mw::buffer_usable(dst, dstSize) || in->eventType > kLastAlarmEventType)
        return -1;
    const int32_t selected = in->eventType;
    return mw::document(dst, dstSize, [selected, &fill](cJSON *root) {
        if (selected < 0) {
            for (int32_t type = 0; type <= kLastAlarmEventType; ++type)
                fill(mw::object(root, getAlarmEventTypeString(type)), type);
        } else {
            fill(mw::object(root, getAlarmEventTypeString(selected)), selected);
        }
    });
}

} // namespace

int32_t get_event_notify_json(const event_notify_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "httpNotifyEnable", in->httpNotifyEnable[i]);
        cJSON *list = mw::array(type, "notifyList");
        for (int32_t j = 0; j < 3; ++j) {
            const event_notify_entry &target = in->notifyList[i][j];
            cJSON *entry = mw::append_object(list);
            add(entry, "index", j);
            add(entry, "enable", target.enable);
            add(entry, "interval", target.interval);
            add(entry, "url", target.url);
            add(entry, "user", target.user);
            add(entry, "password", target.password);
            add(entry, "method", target.method);
            add(entry, "snapShot", target.snapShot);
        }
    });
}

int32_t get_event_record_json(const event_record_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "recordEnable", in->recordSettings[i].recordEnable);
        add(type, "recordWay", in->recordSettings[i].recordWay);
        add(type, "duration", in->duration[i]);
        add(type, "sdInsert", in->sdInsert[i]);
        add(type, "nasMountStatus", in->nasMountStatus[i]);
    });
}

int32_t get_event_snop_json(const event_snop_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "snapSmtpEnable", in->snapSmtpEnable);
        add(type, "snapEnable", in->snapEnable[i]);
        add(type, "snapWay", in->snapWay[i]);
        add(type, "interval", in->interval[i]);
        add(type, "unit", in->unit[i]);
        add(type, "imageNum", in->imageNum[i]);
        add(type, "smtpInterval", in->smtpInterval[i]);
        // The snapshot type belongs to the page of a single event type; the
        // overview of all types leaves it out.
        if (in->eventType >= 0)
            add(type, "snapType", in->snapType[i]);
    });
}

int32_t get_event_extern_output_json(const event_extern_output_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "externOutputEnable", in->externOutputEnable[i]);
        add(type, "externDuration", in->externDuration[i]);
        add(type, "externOutputExtEnable", in->externOutputExtEnable[i]);
    });
}

int32_t get_event_play_audio_json(const event_play_audio_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "playAudioEnable", in->playAudioEnable[i]);
        add(type, "audioInterval", in->audioInterval[i]);
        mw::add_schedule_list(type, in->schedule[i]);
    });
}

int32_t get_event_alarm_sip_phone_json(const event_alarm_sip_phone_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "alarmSipPhoneEnable", in->alarmSipPhoneEnable[i]);
    });
}

int32_t get_event_white_led_json(const event_white_led_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "whiteLedEnable", in->whiteLedEnable[i]);
        add(type, "flashMode", in->flashMode[i]);
        add(type, "flashTime", in->flashTime[i]);
        add(type, "effectiveMode", in->effectiveMode[i]);
        add(type, "effectiveBright", in->effectiveBright[i]);
        add(type, "alwaysTime", in->alwaysTime[i]);
        add(type, "startHour", in->startHour[i]);
        add(type, "startMinute", in->startMinute[i]);
        add(type, "stopHour", in->stopHour[i]);
        add(type, "stopMinute", in->stopMinute[i]);
    });
}

int32_t get_event_ptz_motion_json(const event_ptz_motion_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "ptzMotionEnable", in->ptzMotionEnable[i]);
        add(type, "ptzZoomTimes", in->ptzZoomTimes[i]);   // zoom first, though stored after recovery
        add(type, "ptzRecoveryTime", in->ptzRecoveryTime[i]);
    });
}

int32_t get_event_osd_blink_json(const event_osd_blink_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "osdBlinkEnable", in->osdBlinkEnable[i]);
        add(type, "osdBlinkTime", in->osdBlinkTime[i]);
    });
}

int32_t get_event_event_call_json(const event_event_call_record *in, char *dst, int32_t dstSize)
{
    return per_event_type_document(in, dst, dstSize, [in](cJSON *type, int32_t i) {
        add(type, "presetEnable", in->presetEnable[i]);
        add(type, "presetId", in->presetId[i]);
        add(type, "patrolEnable", in->patrolEnable[i]);
        add(type, "patrolId", in->patrolId[i]);
        add(type, "patternEnable", in->patternEnable[i]);
        add(type, "patternId", in->patternId[i]);
    });
}

/* ==== end alarm actions per event type ==== */


/* ==== event sources, upload servers and global switches ==== */

namespace {

/* The number of list entries a stored count asks for, read as a signed
   value: none for 0 or below, and never more than `slots`, the record's
   array, has room for. */
template <typename T, size_t Capacity>
int32_t entries_in_use(int32_t count, const T (&)[Capacity])
{
    if (count <= 0)
        return 0;
    return count < static_cast<int32_t>(Capacity) ? count : static_cast<int32_t>(Capacity);
}

/* One upload server's settings, without its enable byte (only the server in
   use reports that, at the root). */
void add_ftp_server(cJSON *server, const ftp_server_entry &s)
{
    add(server, "ftpAddress", s.ftpAddress);
    add(server, "ftpPort", s.ftpPort);
    add(server, "ftpPath", s.ftpPath);
    add(server, "ftpUserName", s.ftpUserName);
    add(server, "ftpPathType", s.ftpPathType);
    add(server, "ftpParentDirType", s.ftpParentDirType);
    add(server, "ftpParentDir", s.ftpParentDir);
    add(server, "ftpChildDirType", s.ftpChildDirType);
    add(server, "ftpChildDir", s.ftpChildDir);
    add(server, "ftpAlarmDirType", s.ftpAlarmDirType);
    add(server, "ftpVideoDirType", s.ftpVideoDirType);
    add(server, "ftpVideoPrefix", s.ftpVideoPrefix);
    add(server, "ftpVideoName", s.ftpVideoName);
    add(server, "ftpImgDirType", s.ftpImgDirType);
    add(server, "ftpImgPrefix", s.ftpImgPrefix);
    add(server, "ftpImgName", s.ftpImgName);
    add(server, "ftpProtocol", s.ftpProtocol);
    add(server, "ftpPreRecordTime", s.ftpPreRecordTime);
    add(server, "ftpSnapPrefix", s.ftpSnapPrefix);
    add(server, "ftpSnapName", s.ftpSnapName);
    add(server, "ftpSnapShotDirType", s.ftpSnapShotDirType);
    add(server, "ftpSnapShotName", s.ftpSnapShotName);
    add(server, "ftpSnapFileFormat", s.ftpSnapFileFormat);
    add(server, "videoType", s.videoType);
}

} // namespace

int32_t get_event_auto_tracking_json(const event_auto_tracking_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "ptzAutoTrackingEnable", in->ptzAutoTrackingEnable);
    });
}

int32_t get_event_audio_sample_value_json(const event_audio_sample_value_record *in, char *dst,
                                          int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) { add(root, "audiosampleValue", in->audiosampleValue); });
}

int32_t get_cal_region_json(const cal_region_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "startX", in->startX);
        add(root, "startY", in->startY);
        add(root, "width", in->width);
        add(root, "height", in->height);
    });
}

int32_t get_event_motion_json(const event_motion_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "triggerSensitivity", in->triggerSensitivity);
        add(root, "motionEnable", in->motionEnable);
        add(root, "dynamicAnalysisEnable", in->dynamicAnalysisEnable);
        add(root, "activecell", in->activecell);
        add(root, "detectionMode", in->detectionMode);
        add(root, "windowRectangle", in->windowRectangle);
        cJSON *regions = mw::array(root, "regionInfoList");
        for (int32_t r = 0; r < 4; ++r) {
            cJSON *region = mw::append_object(regions);
            add(region, "regionIndex", r);
            add(region, "sensitivity", in->sensitivity[r]);
            add(region, "areaRegion", in->areaRegion[r]);
        }
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_event_audio_info_json(const event_audio_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "audioEnable", in->audioEnable);
        add(root, "audioAlarmEnable", in->audioAlarmEnable);
        add(root, "audioMode", in->audioMode);
        add(root, "audioAlarmThreshold", in->audioAlarmThreshold);
        mw::add_schedule_list(root, in->schedule);
    });
}

int32_t get_event_io_info_json(const event_io_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "outputNum", in->outputNum);
        cJSON *outputs = mw::array(root, "outputIoList");
        const int32_t count = entries_in_use(in->outputNum, in->logicalState);
        for (int32_t o = 0; o < count; ++o) {
            cJSON *output = mw::append_object(outputs);
            add(output, "index", o);
            add(output, "propertiesIdlestate", in->propertiesIdlestate[o]);
            add(output, "logicalState", in->logicalState[o]);
        }
    });
}

int32_t get_event_extern_input_info_json(const event_extern_input_info_record *in, char *dst,
                                         int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "supportInputNum", in->supportInputNum);
        cJSON *inputs = mw::array(root, "inputList");
        const int32_t count = entries_in_use(in->supportInputNum, in->status);
        for (int32_t n = 0; n < count; ++n) {
            cJSON *input = mw::append_object(inputs);
            add(input, "index", n);
            add(input, "enable", in->enable[n]);
            add(input, "normal", in->normal[n]);
            add(input, "status", in->status[n]);
        }
    });
}

int32_t get_event_test_smtp_json(const event_test_smtp_record *in, char *dst, int32_t dstSize)
{
    // The page shows a word when the test mail went out and the mail
    // client's error code when it did not.
    return mw::document(dst, dstSize, [in](cJSON *root) {
        if (in->testState == 1)
            mw::add_string(root, "setState", "succeed");
        else
            add(root, "setState", in->errorCode);
    });
}

int32_t get_event_server_smtp_json(const event_server_smtp_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "smtpEnable", in->smtpEnable);
        add(root, "smtpAddress", in->smtpAddress);
        add(root, "smtpPort", in->smtpPort);
        add(root, "smtpUserName", in->smtpUserName);
        add(root, "smtpSsl", in->smtpSsl);
        add(root, "smtpFromAddress", in->smtpFromAddress);
        add(root, "smtpToAddress", in->smtpToAddress);
        add(root, "smtpImgType", in->smtpImgType);
        add(root, "smtpImgPrefix", in->smtpImgPrefix);
        add(root, "smtpImgName", in->smtpImgName);
        add(root, "smtpSnapType", in->smtpSnapType);
        add(root, "smtpSnapPrefix", in->smtpSnapPrefix);
        add(root, "smtpSnapName", in->smtpSnapName);
    });
}

int32_t get_event_server_ftp_json(const event_server_ftp_record *in, char *dst, int32_t dstSize)
{
    // currentType picks the server in use; any other value names none.
    if (!mw::buffer_usable(dst, dstSize) || in->currentType < 0 || in->currentType > 1)
        return -1;
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "currentType", in->currentType);
        add(root, "ftpEnable", in->servers[in->currentType].enable);
        add_ftp_server(mw::object(root, "ftpInfo"), in->servers[0]);
        add_ftp_server(mw::object(root, "sftpInfo"), in->servers[1]);
    });
}

int32_t get_event_global_enable_json(const event_global_enable_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "motionEnable", in->motionEnable);
        add(root, "trackEnable", in->trackEnable);
        add(root, "faceEnable", in->faceEnable);
        add(root, "helmetEnable", in->helmetEnable);
        add(root, "vehicleCountEnable", in->vehicleCountEnable);
        add(root, "lprEnable", in->lprEnable);
        add(root, "enablePtzMotion", in->enablePtzMotion);
        add(root, "enablePtzMotionVca", in->enablePtzMotionVca);
        add(root, "smartEventEnable", in->smartEventEnable);
        add(root, "sipEnable", in->sipEnable);
        add(root, "smtpEnable", in->smtpEnable);
        add(root, "audioEnable", in->audioEnable);
        add(root, "ftpEnable", in->ftpEnable);
        add(root, "sdInsert", in->sdInsert);
        add(root, "nasMountStatu", in->nasMountStatus);   // the key clients read, one letter short
        add(root, "heatmapEnable", in->heatmapEnable);
    });
}

/* ==== end event sources, upload servers and global switches ==== */
