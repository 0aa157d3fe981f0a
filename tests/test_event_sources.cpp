// The event sources, the upload servers and the global switches.
#include "support.h"

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;

template <typename Record>
std::string render(int32_t (*serialize)(const Record *, char *, int32_t), const Record &record)
{
    return test::rendered([&](char *dst, int32_t n) { return serialize(&record, dst, n); });
}

void expect_schedule(const cJSON *list, const char *const (&days)[7])
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", days[d])});
}

const char *const kWeek[7] = {"sun 00:00-24:00", "mon 08:00-18:00", "", "wed 08:00-18:00", "", "", "sat"};

TEST(EventSources, MotionKeysRegionsAndSchedule)
{
    event_motion_record r{};
    r.reserved0[0] = 55;
    for (int d = 0; d < 7; ++d)
        snprintf(r.schedule[d], sizeof r.schedule[d], "%s", kWeek[d]);
    snprintf(r.windowRectangle, sizeof r.windowRectangle, "0:0:352:288");
    r.triggerSensitivity = 11;
    r.motionEnable = 12;
    r.activecell = 13;
    for (int32_t &v : r.reserved1)
        v = 99;
    r.detectionMode = 14;
    r.dynamicAnalysisEnable = -15;
    const int32_t sensitivity[4] = {21, 22, 23, 24};
    const char *const areas[4] = {"door", "", "yard", ""};
    for (int i = 0; i < 4; ++i) {
        r.sensitivity[i] = sensitivity[i];
        snprintf(r.areaRegion[i], sizeof r.areaRegion[i], "%s", areas[i]);
    }
    test::Json doc(render(get_event_motion_json, r));
    test::expect_members(doc.root(), {N("triggerSensitivity", 11), N("motionEnable", 12),
                                      N("dynamicAnalysisEnable", -15), N("activecell", 13), N("detectionMode", 14),
                                      S("windowRectangle", "0:0:352:288"), A("regionInfoList"), A("scheduleList")});
    const cJSON *regions = doc["regionInfoList"];
    ASSERT_EQ(cJSON_GetArraySize(regions), 4);
    for (int i = 0; i < 4; ++i)
        test::expect_members(test::element(regions, i),
                             {N("regionIndex", i), N("sensitivity", sensitivity[i]), S("areaRegion", areas[i])});
    expect_schedule(doc["scheduleList"], kWeek);
}

TEST(EventSources, AudioAlarmAndSchedule)
{
    event_audio_info_record r{};
    r.audioEnable = 1;
    r.audioAlarmEnable = 2;
    r.audioMode = 3;
    r.audioAlarmThreshold = -4;
    r.reserved = 99;
    for (int d = 0; d < 7; ++d)
        snprintf(r.schedule[d], sizeof r.schedule[d], "%s", kWeek[d]);
    test::Json doc(render(get_event_audio_info_json, r));
    test::expect_members(doc.root(), {N("audioEnable", 1), N("audioAlarmEnable", 2), N("audioMode", 3),
                                      N("audioAlarmThreshold", -4), A("scheduleList")});
    expect_schedule(doc["scheduleList"], kWeek);
}

// Counts are signed; the list never reaches past the record's slots.
struct CountCase {
    int32_t count;
    int listed;
};

TEST(EventSources, AlarmOutputsByCount)
{
    const CountCase cases[] = {{-1, 0}, {INT32_MIN, 0}, {0, 0}, {1, 1}, {2, 2}, {3, 2}, {INT32_MAX, 2}};
    for (const CountCase &c : cases) {
        SCOPED_TRACE(c.count);
        event_io_info_record r{};
        r.outputNum = c.count;
        for (int32_t &v : r.reserved)
            v = 99;
        r.propertiesIdlestate[0] = 10;
        r.propertiesIdlestate[1] = 11;
        r.logicalState[0] = 20;
        r.logicalState[1] = -21;
        test::Json doc(render(get_event_io_info_json, r));
        test::expect_members(doc.root(), {N("outputNum", c.count), A("outputIoList")});
        const cJSON *list = doc["outputIoList"];
        ASSERT_EQ(cJSON_GetArraySize(list), c.listed);
        for (int o = 0; o < c.listed; ++o)
            test::expect_members(test::element(list, o),
                                 {N("index", o), N("propertiesIdlestate", 10 + o), N("logicalState", o ? -21 : 20)});
    }
}

TEST(EventSources, AlarmInputsByCount)
{
    const CountCase cases[] = {{-3, 0}, {0, 0}, {1, 1}, {3, 3}, {4, 4}, {5, 4}};
    for (const CountCase &c : cases) {
        SCOPED_TRACE(c.count);
        event_extern_input_info_record r{};
        r.supportInputNum = c.count;
        for (int i = 0; i < 4; ++i) {
            r.enable[i] = 100 + i;
            r.normal[i] = 200 + i;
            r.status[i] = -(300 + i);
        }
        test::Json doc(render(get_event_extern_input_info_json, r));
        test::expect_members(doc.root(), {N("supportInputNum", c.count), A("inputList")});
        const cJSON *list = doc["inputList"];
        ASSERT_EQ(cJSON_GetArraySize(list), c.listed);
        for (int n = 0; n < c.listed; ++n)
            test::expect_members(test::element(list, n),
                                 {N("index", n), N("enable", 100 + n), N("normal", 200 + n), N("status", -(300 + n))});
    }
}

TEST(EventSources, SmtpTestIsAWordOnSuccessAndACodeOtherwise)
{
    struct Case {
        event_test_smtp_record record;
        test::Expected expected;
    };
    const Case cases[] = {
        {{1, 535}, S("setState", "succeed")},
        {{0, 535}, N("setState", 535)},
        {{2, -110}, N("setState", -110)},
        {{-1, 7}, N("setState", 7)},
    };
    for (const Case &c : cases) {
        test::Json doc(render(get_event_test_smtp_json, c.record));
        test::expect_members(doc.root(), {c.expected});
    }
}

TEST(EventSources, SmtpServerInItsOrderWithoutPassword)
{
    auto r = std::make_unique<event_server_smtp_record>();
    r->reserved0 = 99;
    r->smtpEnable = 201;
    snprintf(r->smtpUserName, sizeof r->smtpUserName, "user");
    snprintf(r->smtpFromAddress, sizeof r->smtpFromAddress, "from@x");
    snprintf(r->smtpAddress, sizeof r->smtpAddress, "mail.x");
    snprintf(r->smtpPassword, sizeof r->smtpPassword, "secret");
    r->smtpPort = 3000000025u;
    r->smtpImgType = 31;
    snprintf(r->smtpImgPrefix, sizeof r->smtpImgPrefix, "imgpre");
    snprintf(r->smtpImgName, sizeof r->smtpImgName, "imgname");
    r->smtpSnapType = 32;
    snprintf(r->smtpSnapPrefix, sizeof r->smtpSnapPrefix, "snappre");
    snprintf(r->smtpSnapName, sizeof r->smtpSnapName, "snapname");
    r->smtpSsl = -33;
    snprintf(r->smtpToAddress, sizeof r->smtpToAddress, "to@x;cc@x");
    const std::string text = render(get_event_server_smtp_json, *r);
    test::Json doc(text);
    test::expect_members(doc.root(),
                         {N("smtpEnable", 201), S("smtpAddress", "mail.x"), N("smtpPort", 3000000025.0),
                          S("smtpUserName", "user"), N("smtpSsl", -33), S("smtpFromAddress", "from@x"),
                          S("smtpToAddress", "to@x;cc@x"), N("smtpImgType", 31), S("smtpImgPrefix", "imgpre"),
                          S("smtpImgName", "imgname"), N("smtpSnapType", 32), S("smtpSnapPrefix", "snappre"),
                          S("smtpSnapName", "snapname")});
    EXPECT_EQ(text.find("secret"), std::string::npos);
}

// Every emitted field of server s made distinct from the other server's.
void fill_server(ftp_server_entry &e, int s)
{
    const uint32_t big = 3000000000u + 100u * static_cast<uint32_t>(s);
    e.enable = static_cast<uint8_t>(240 + s);
    e.videoType = big + 1;
    snprintf(e.ftpAddress, sizeof e.ftpAddress, "addr%d", s);
    e.ftpPort = big + 2;
    snprintf(e.ftpUserName, sizeof e.ftpUserName, "user%d", s);
    snprintf(e.ftpPassword, sizeof e.ftpPassword, "secret%d", s);
    snprintf(e.ftpPath, sizeof e.ftpPath, "/path%d", s);
    e.ftpPathType = big + 3;
    e.ftpParentDirType = big + 4;
    snprintf(e.ftpParentDir, sizeof e.ftpParentDir, "parent%d", s);
    e.ftpChildDirType = big + 5;
    snprintf(e.ftpChildDir, sizeof e.ftpChildDir, "child%d", s);
    e.ftpAlarmDirType = big + 6;
    e.ftpVideoDirType = big + 7;
    snprintf(e.ftpVideoPrefix, sizeof e.ftpVideoPrefix, "vpre%d", s);
    snprintf(e.ftpVideoName, sizeof e.ftpVideoName, "vname%d", s);
    e.ftpImgDirType = big + 8;
    snprintf(e.ftpImgPrefix, sizeof e.ftpImgPrefix, "ipre%d", s);
    snprintf(e.ftpImgName, sizeof e.ftpImgName, "iname%d", s);
    snprintf(e.ftpSnapPrefix, sizeof e.ftpSnapPrefix, "spre%d", s);
    snprintf(e.ftpSnapName, sizeof e.ftpSnapName, "sname%d", s);
    e.ftpPreRecordTime = big + 9;
    e.ftpProtocol = static_cast<uint8_t>(250 + s);
    e.ftpSnapShotDirType = -(10 + s);
    snprintf(e.ftpSnapShotName, sizeof e.ftpSnapShotName, "shot%d", s);
    e.ftpSnapFileFormat = -(20 + s);
}

std::vector<test::Expected> server_members(int s)
{
    const double big = 3000000000.0 + 100 * s;
    const std::string n = std::to_string(s);
    return {S("ftpAddress", "addr" + n),     N("ftpPort", big + 2),          S("ftpPath", "/path" + n),
            S("ftpUserName", "user" + n),    N("ftpPathType", big + 3),      N("ftpParentDirType", big + 4),
            S("ftpParentDir", "parent" + n), N("ftpChildDirType", big + 5),  S("ftpChildDir", "child" + n),
            N("ftpAlarmDirType", big + 6),   N("ftpVideoDirType", big + 7),  S("ftpVideoPrefix", "vpre" + n),
            S("ftpVideoName", "vname" + n),  N("ftpImgDirType", big + 8),    S("ftpImgPrefix", "ipre" + n),
            S("ftpImgName", "iname" + n),    N("ftpProtocol", 250 + s),      N("ftpPreRecordTime", big + 9),
            S("ftpSnapPrefix", "spre" + n),  S("ftpSnapName", "sname" + n),  N("ftpSnapShotDirType", -(10 + s)),
            S("ftpSnapShotName", "shot" + n), N("ftpSnapFileFormat", -(20 + s)), N("videoType", big + 1)};
}

TEST(EventSources, BothUploadServersWhicheverIsInUse)
{
    for (int32_t current : {0, 1}) {
        SCOPED_TRACE(current);
        auto r = std::make_unique<event_server_ftp_record>();
        r->currentType = current;
        fill_server(r->servers[0], 0);
        fill_server(r->servers[1], 1);
        const std::string text = render(get_event_server_ftp_json, *r);
        test::Json doc(text);
        test::expect_members(doc.root(),
                             {N("currentType", current), N("ftpEnable", 240 + current), O("ftpInfo"), O("sftpInfo")});
        test::expect_members(doc["ftpInfo"], server_members(0));
        test::expect_members(doc["sftpInfo"], server_members(1));
        EXPECT_EQ(text.find("secret"), std::string::npos);
    }
}

TEST(EventSources, UploadServerTypeThatNamesNoServerIsRefused)
{
    for (int32_t current : {-1, 2, INT32_MAX}) {
        auto r = std::make_unique<event_server_ftp_record>();
        r->currentType = current;
        char buffer[16];
        memset(buffer, 'x', sizeof buffer);
        EXPECT_EQ(get_event_server_ftp_json(r.get(), buffer, sizeof buffer), -1) << current;
        EXPECT_EQ(buffer[0], 'x') << current;
    }
}

TEST(EventSources, GlobalSwitchesInRecordOrderWithTheShortNasKey)
{
    const event_global_enable_record r{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, -15, 16};
    test::Json doc(render(get_event_global_enable_json, r));
    test::expect_members(doc.root(),
                         {N("motionEnable", 1), N("trackEnable", 2), N("faceEnable", 3), N("helmetEnable", 4),
                          N("vehicleCountEnable", 5), N("lprEnable", 6), N("enablePtzMotion", 7),
                          N("enablePtzMotionVca", 8), N("smartEventEnable", 9), N("sipEnable", 10),
                          N("smtpEnable", 11), N("audioEnable", 12), N("ftpEnable", 13), N("sdInsert", 14),
                          N("nasMountStatu", -15), N("heatmapEnable", 16)});
}

TEST(EventSources, SmallDocuments)
{
    const cal_region_record region{99, 4000000001u, 4000000002u, 4000000003u, 4000000004u};
    test::expect_members(test::Json(render(get_cal_region_json, region)).root(),
                         {N("startX", 4000000001.0), N("startY", 4000000002.0), N("width", 4000000003.0),
                          N("height", 4000000004.0)});
    const event_auto_tracking_record tracking{-2};
    test::expect_members(test::Json(render(get_event_auto_tracking_json, tracking)).root(),
                         {N("ptzAutoTrackingEnable", -2)});
    const event_audio_sample_value_record level{-37};
    test::expect_members(test::Json(render(get_event_audio_sample_value_json, level)).root(),
                         {N("audiosampleValue", -37)});
}

} // namespace
