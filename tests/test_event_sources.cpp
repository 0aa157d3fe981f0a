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

// The seven-day list is shared: here only its length and its ends.
void expect_week(const cJSON *list)
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    test::expect_members(test::element(list, 0), {N("scheduleIndex", 0), S("schedule", "sun 00:00-24:00")});
    test::expect_members(test::element(list, 6), {N("scheduleIndex", 6), S("schedule", "sat")});
}

TEST(EventSources, MotionAndAudioAlarm)
{
    const event_motion_record motion{{55, 56}, {"sun 00:00-24:00", "mon", "", "wed", "", "", "sat"}, "0:0:352:288",
                                     11, 12, 13, {99, 99, 99, 99, 99, 99, 99, 99}, 14, -15, {21, 22, 23, 24},
                                     {"door", "", "yard", ""}};
    test::Json doc(render(get_event_motion_json, motion));
    test::expect_members(doc.root(), {N("triggerSensitivity", 11), N("motionEnable", 12),
                                      N("dynamicAnalysisEnable", -15), N("activecell", 13), N("detectionMode", 14),
                                      S("windowRectangle", "0:0:352:288"), A("regionInfoList"), A("scheduleList")});
    const char *const areas[4] = {"door", "", "yard", ""};
    ASSERT_EQ(cJSON_GetArraySize(doc["regionInfoList"]), 4);
    for (int i = 0; i < 4; ++i)
        test::expect_members(test::element(doc["regionInfoList"], i),
                             {N("regionIndex", i), N("sensitivity", 21 + i), S("areaRegion", areas[i])});
    expect_week(doc["scheduleList"]);

    const event_audio_info_record audio{1, 2, 3, -4, 99, {"sun 00:00-24:00", "", "", "", "", "", "sat"}};
    test::Json audioDoc(render(get_event_audio_info_json, audio));
    test::expect_members(audioDoc.root(), {N("audioEnable", 1), N("audioAlarmEnable", 2), N("audioMode", 3),
                                           N("audioAlarmThreshold", -4), A("scheduleList")});
    expect_week(audioDoc["scheduleList"]);
}

// Counts are signed; the lists never reach past the record's slots (2 outputs, 4 inputs).
TEST(EventSources, AlarmOutputsAndInputsByCount)
{
    const struct { int32_t count; int outputs, inputs; } cases[] = {
        {INT32_MIN, 0, 0}, {-1, 0, 0}, {0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {3, 2, 3}, {4, 2, 4}, {5, 2, 4}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.count);
        const event_io_info_record io{c.count, {99, 99, 99, 99}, {10, 11}, {20, -21}};
        test::Json out(render(get_event_io_info_json, io));
        test::expect_members(out.root(), {N("outputNum", c.count), A("outputIoList")});
        ASSERT_EQ(cJSON_GetArraySize(out["outputIoList"]), c.outputs);
        for (int o = 0; o < c.outputs; ++o)
            test::expect_members(test::element(out["outputIoList"], o),
                                 {N("index", o), N("propertiesIdlestate", 10 + o), N("logicalState", o ? -21 : 20)});
        const event_extern_input_info_record inputs{
            c.count, {100, 101, 102, 103}, {200, 201, 202, 203}, {-300, -301, -302, -303}};
        test::Json in(render(get_event_extern_input_info_json, inputs));
        test::expect_members(in.root(), {N("supportInputNum", c.count), A("inputList")});
        ASSERT_EQ(cJSON_GetArraySize(in["inputList"]), c.inputs);
        for (int n = 0; n < c.inputs; ++n)
            test::expect_members(test::element(in["inputList"], n),
                                 {N("index", n), N("enable", 100 + n), N("normal", 200 + n), N("status", -300 - n)});
    }
}

TEST(EventSources, SmtpTestIsAWordOnSuccessAndACodeOtherwise)
{
    const struct { event_test_smtp_record record; test::Expected expected; } cases[] = {
        {{1, 535}, S("setState", "succeed")}, {{0, 535}, N("setState", 535)}, {{2, -110}, N("setState", -110)}};
    for (const auto &c : cases)
        test::expect_members(test::Json(render(get_event_test_smtp_json, c.record)).root(), {c.expected});
}

TEST(EventSources, SmtpServerInItsOrderWithoutPassword)
{
    const event_server_smtp_record r{99, 201, "user", "from@x", "mail.x", "secret", 3000000025u, 99, 31, "imgpre",
                                     "imgname", 32, "snappre", "snapname", {99, 99}, -33, {99, 99}, "to@x;cc@x"};
    const std::string text = render(get_event_server_smtp_json, r);
    test::expect_members(test::Json(text).root(),
                         {N("smtpEnable", 201), S("smtpAddress", "mail.x"), N("smtpPort", 3000000025.0),
                          S("smtpUserName", "user"), N("smtpSsl", -33), S("smtpFromAddress", "from@x"),
                          S("smtpToAddress", "to@x;cc@x"), N("smtpImgType", 31), S("smtpImgPrefix", "imgpre"),
                          S("smtpImgName", "imgname"), N("smtpSnapType", 32), S("smtpSnapPrefix", "snappre"),
                          S("smtpSnapName", "snapname")});
    EXPECT_EQ(text.find("secret"), std::string::npos);
}

// Server s: numbers distinct per server, above INT32_MAX where unsigned;
// texts distinct per field.
ftp_server_entry server(int s)
{
    const uint32_t big = 3000000000u + 100 * s;
    return {static_cast<uint8_t>(240 + s), big + 1, "addr", big + 2, "user", "secret", "/path", 99, big + 3,
            big + 4, "parent", big + 5, "child", big + 6, big + 7, "vpre", "vname", big + 8, "ipre", "iname",
            "spre", "sname", big + 9, static_cast<uint8_t>(250 + s), -10 - s, "shot", -20 - s};
}

std::vector<test::Expected> server_members(int s)
{
    const double big = 3000000000.0 + 100 * s;
    return {S("ftpAddress", "addr"),     N("ftpPort", big + 2),         S("ftpPath", "/path"),
            S("ftpUserName", "user"),    N("ftpPathType", big + 3),     N("ftpParentDirType", big + 4),
            S("ftpParentDir", "parent"), N("ftpChildDirType", big + 5), S("ftpChildDir", "child"),
            N("ftpAlarmDirType", big + 6), N("ftpVideoDirType", big + 7), S("ftpVideoPrefix", "vpre"),
            S("ftpVideoName", "vname"),  N("ftpImgDirType", big + 8),   S("ftpImgPrefix", "ipre"),
            S("ftpImgName", "iname"),    N("ftpProtocol", 250 + s),     N("ftpPreRecordTime", big + 9),
            S("ftpSnapPrefix", "spre"),  S("ftpSnapName", "sname"),     N("ftpSnapShotDirType", -10 - s),
            S("ftpSnapShotName", "shot"), N("ftpSnapFileFormat", -20 - s), N("videoType", big + 1)};
}

TEST(EventSources, BothUploadServersWhicheverIsInUse)
{
    auto r = std::make_unique<event_server_ftp_record>();
    r->servers[0] = server(0);
    r->servers[1] = server(1);
    for (int32_t current : {0, 1}) {
        SCOPED_TRACE(current);
        r->currentType = current;
        const std::string text = render(get_event_server_ftp_json, *r);
        test::Json doc(text);
        test::expect_members(doc.root(),
                             {N("currentType", current), N("ftpEnable", 240 + current), O("ftpInfo"), O("sftpInfo")});
        test::expect_members(doc["ftpInfo"], server_members(0));
        test::expect_members(doc["sftpInfo"], server_members(1));
        EXPECT_EQ(text.find("secret"), std::string::npos);
    }
    char buffer[64];
    for (const int32_t current : {-1, 2}) {
        r->currentType = current;
        EXPECT_EQ(get_event_server_ftp_json(r.get(), buffer, sizeof buffer), -1) << current;
    }
}

template <typename Record>
int32_t post(int32_t (*set)(Record *, const char *, int32_t, char *, int32_t), Record &record, const std::string &body,
             std::string *reply)
{
    char out[512] = {0};
    const int32_t rc = set(&record, body.data(), static_cast<int32_t>(body.size()), out, sizeof out);
    *reply = out;
    return rc;
}

std::string refused_at(const std::string &path)
{
    char out[512];
    zk_return_format_error_json(out, sizeof out, path.c_str());
    return out;
}

// "ftpEnable" is the enable byte of the server in use; a currentType naming
// no server leaves nothing to show, describe or write.
TEST(EventSources, UploadServerInUseTakesFtpEnable)
{
    for (const int32_t current : {-1, 0, 1, 2}) {
        SCOPED_TRACE(current);
        auto r = std::make_unique<event_server_ftp_record>();
        r->servers[0] = server(0);
        r->servers[1] = server(1);
        r->currentType = current;
        auto expected = std::make_unique<event_server_ftp_record>(*r);
        std::string reply;
        const int32_t rc = post(set_event_server_ftp_json, *r, R"({"ftpEnable": 7})", &reply);
        char buffer[64];
        memset(buffer, 'u', sizeof buffer);
        const int32_t schema = schema_event_server_ftp_json(r.get(), buffer, sizeof buffer);
        if (current == 0 || current == 1) {
            ASSERT_EQ(rc, 0) << reply;
            expected->servers[current].enable = 7;
            EXPECT_EQ(schema, 0);
        } else {
            char failed[64];
            zk_return_set_request_faild_json(failed, sizeof failed);
            EXPECT_EQ(rc, -1);
            EXPECT_EQ(reply, failed);
            EXPECT_EQ(schema, -1);
            EXPECT_EQ(buffer[0], 'u');
        }
        EXPECT_EQ(memcmp(r.get(), expected.get(), sizeof *r), 0);
    }
}

// A request reaches the slots the count shows and no further, whatever the
// count says: the last shown slot is written, the next index is refused.
TEST(EventSources, AlarmOutputsAndInputsAreWrittenUpToTheirListsEnd)
{
    const struct { int32_t count; int outputs, inputs; } cases[] = {
        {INT32_MIN, 0, 0}, {0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {3, 2, 3}, {INT32_MAX, 2, 4}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.count);
        std::string reply;
        event_io_info_record io{c.count, {99, 99, 99, 99}, {10, 11}, {20, 21}};
        event_io_info_record ioExpected = io;
        const std::string past = "outputIoList[" + std::to_string(c.outputs) + "]";
        EXPECT_EQ(post(set_event_io_info_json, io,
                       R"({"outputIoList": [{"index": )" + std::to_string(c.outputs) + R"(, "logicalState": 5}]})",
                       &reply),
                  -1);
        EXPECT_EQ(reply, refused_at(past));
        if (c.outputs > 0) {
            const int last = c.outputs - 1;
            ASSERT_EQ(post(set_event_io_info_json, io,
                           R"({"outputIoList": [{"index": )" + std::to_string(last) + R"(, "logicalState": 5}]})",
                           &reply),
                      0)
                << reply;
            ioExpected.logicalState[last] = 5;
        }
        EXPECT_EQ(memcmp(&io, &ioExpected, sizeof io), 0);

        event_extern_input_info_record in{c.count, {100, 101, 102, 103}, {200, 201, 202, 203}, {300, 301, 302, 303}};
        event_extern_input_info_record inExpected = in;
        EXPECT_EQ(post(set_event_extern_input_info_json, in,
                       R"({"inputList": [{"index": )" + std::to_string(c.inputs) + R"(, "enable": 5}]})", &reply),
                  -1);
        EXPECT_EQ(reply, refused_at("inputList[" + std::to_string(c.inputs) + "]"));
        if (c.inputs > 0) {
            const int last = c.inputs - 1;
            ASSERT_EQ(post(set_event_extern_input_info_json, in,
                           R"({"inputList": [{"index": )" + std::to_string(last) + R"(, "enable": 5}]})", &reply),
                      0)
                << reply;
            inExpected.enable[last] = 5;
        }
        EXPECT_EQ(memcmp(&in, &inExpected, sizeof in), 0);
    }
}

TEST(EventSources, GlobalSwitchesInRecordOrderWithTheShortNasKey)
{
    const event_global_enable_record r{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, -15, 16};
    test::expect_members(test::Json(render(get_event_global_enable_json, r)).root(),
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
