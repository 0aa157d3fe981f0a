// Licence-plate result posting: the nested receivers, unsigned event masks,
// the three HTTP targets always listed, and the twenty item switches with
// "gps" moved ahead of the images.
#include "support.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;

template <size_t Size>
void put(char (&field)[Size], const char *text)
{
    snprintf(field, Size, "%s", text);
}

lpr_post_record distinct_post()
{
    lpr_post_record r{};
    r.httpEnable = -1;
    r.reserved0 = 555;
    r.postEvents = 2;
    r.tcpEnable = 203;
    r.tcpPort = -4;
    r.tcpEventMask = 4294967295u;
    for (int k = 0; k < 3; ++k) {
        http_post_target &t = r.httpTargets[k];
        snprintf(t.user, sizeof t.user, "user%d", k);
        snprintf(t.password, sizeof t.password, "pass%d", k);
        snprintf(t.url, sizeof t.url, "http://receiver%d/plates", k);
        t.method = 3000000000u + static_cast<uint32_t>(k);
        t.enable = static_cast<uint8_t>(250 - k);
        t.snapshotType = static_cast<uint8_t>(10 + k);
        t.eventMask = 0x80000000u | static_cast<uint32_t>(k);
    }
    r.mqttEnable = 205;
    put(r.mqttTopic, "site/plates");
    r.mqttPort = -6;
    put(r.mqttHost, "broker.local");
    put(r.mqttUser, "mqttUser");
    put(r.mqttPassword, "mqttPass");
    r.mqttEventMask = 2147483655u;
    r.reserved1 = 99;
    // Switches numbered 1 to 20 in their stored order.
    static_assert(sizeof(post_options) == 20, "twenty byte switches");
    uint8_t switches[20];
    for (int i = 0; i < 20; ++i)
        switches[i] = static_cast<uint8_t>(i + 1);
    memcpy(&r.postOptions, switches, sizeof switches);
    r.templateMode = 4000000008u;
    r.automaticRetransmission = 209;
    r.metadataEnable = -10;
    return r;
}

TEST(LprPost, EveryMemberInEmissionOrder)
{
    const lpr_post_record r = distinct_post();
    test::Json doc(test::rendered([&](char *d, int32_t n) { return ware_get_lpr_post_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("postEvents", 2), N("automaticRetransmission", 209), O("http"), O("tcp"), O("MQTT"), O("postOptions"),
        N("templateMode", 4000000008.0), O("more"),
    });
    test::expect_members(doc["http"], {N("enable", -1), A("httpList")});
    test::expect_members(doc["tcp"], {N("enable", 203), N("port", -4), N("eventMask", 4294967295.0)});
    test::expect_members(doc["MQTT"], {
        N("enable", 205), S("topic", "site/plates"), N("port", -6), S("host", "broker.local"), S("user", "mqttUser"),
        S("password", "mqttPass"), N("eventMask", 2147483655.0),
    });
    test::expect_members(doc["more"], {N("metadataEnable", -10)});

    const cJSON *targets = test::member(doc["http"], "httpList");
    ASSERT_EQ(cJSON_GetArraySize(targets), 3);
    for (int k = 0; k < 3; ++k) {
        SCOPED_TRACE("target " + std::to_string(k));
        const std::string n = std::to_string(k);
        test::expect_members(test::element(targets, k), {
            N("index", k), N("enable", 250 - k), S("url", "http://receiver" + n + "/plates"), S("user", "user" + n),
            S("password", "pass" + n), N("method", 3000000000.0 + k), N("snapshotType", 10 + k),
            N("eventMask", 2147483648.0 + k),
        });
    }
}

TEST(LprPost, GpsIsSixteenthOfTheTwentySwitches)
{
    const lpr_post_record r = distinct_post();
    test::Json doc(test::rendered([&](char *d, int32_t n) { return ware_get_lpr_post_json(&r, d, n); }));
    // Values are the switches' stored positions, 1 to 20.
    test::expect_members(doc["postOptions"], {
        N("eventType", 1), N("deviceInfo", 2), N("time", 3), N("detectionRegion", 4), N("plate", 5),
        N("country", 6), N("plateType", 7), N("plateColor", 8), N("vehicleType", 9), N("vehicleColor", 10),
        N("brand", 11), N("direction", 12), N("eventData", 13), N("plateCoordinate", 14),
        N("vehicleCoordinate", 15), N("gps", 20), N("plateImage", 16), N("vehicleImage", 17), N("fullImage", 18),
        N("violationImage", 19),
    });
}

TEST(LprPost, DisabledTargetsAreStillListed)
{
    const lpr_post_record r{};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return ware_get_lpr_post_json(&r, d, n); }));
    const cJSON *targets = test::member(doc["http"], "httpList");
    ASSERT_EQ(cJSON_GetArraySize(targets), 3);
    for (int k = 0; k < 3; ++k)
        test::expect_members(test::element(targets, k), {
            N("index", k), N("enable", 0), S("url", ""), S("user", ""), S("password", ""), N("method", 0),
            N("snapshotType", 0), N("eventMask", 0),
        });
}

TEST(LprPostTemplate, ModeEventTypeAndText)
{
    struct Case {
        uint8_t mode;
        int32_t eventType;
        std::string data;
    };
    const Case cases[] = {
        {250, -3, "{\"plate\":\"${plate}\"}"},
        {0, 24, ""},
        {1, 7, std::string(4095, 'x')}, // the widest text, written whole
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.data.substr(0, 24));
        lpr_post_template_record r{};
        r.mode = c.mode;
        r.eventType = c.eventType;
        put(r.data, c.data.c_str());
        test::Json doc(
            test::rendered([&](char *d, int32_t n) { return ware_get_lpr_post_template_json(&r, d, n); }));
        test::expect_members(doc.root(), {N("mode", c.mode), N("eventType", c.eventType), S("data", c.data)});
    }
}

} // namespace
