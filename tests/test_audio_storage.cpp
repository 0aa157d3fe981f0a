// The audio and storage documents: key order, signed numbers, the audio file
// slots that keep their numbers, the five NAS objects and the seven days.
#include "support.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

template <size_t Size>
void put(char (&field)[Size], const char *text)
{
    snprintf(field, Size, "%s", text);
}

TEST(AudioInfo, TwelveNumbersInRecordOrderSkippingTheUnreadWords)
{
    audio_info_record r{};
    r.reserved0 = 901;
    r.enable = 1;
    r.codec = 2;
    r.source = 3;
    r.mode = 4;
    r.denoise = 5;
    r.inputGain = -6; // signed: must not come out as 4294967290
    r.alarmLevel = 7;
    r.outputAgc = 8;
    r.outputVolume = 9;
    r.sampleRate = 16000;
    r.bitRate = 11;
    r.reserved1 = 902;
    r.externCodecType = 12;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_audio_info_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("enable", 1), N("codec", 2), N("source", 3), N("mode", 4), N("denoise", 5), N("inputGain", -6),
        N("alarmLevel", 7), N("outputAgc", 8), N("outputVolume", 9), N("sampleRate", 16000), N("bitRate", 11),
        N("externCodecType", 12),
    });
}

TEST(AudioFile, UsedSlotsKeepTheirNumbers)
{
    struct Case {
        const char *what;
        std::vector<int> used; // slots holding a name
        std::vector<std::string> keys;
    };
    const Case cases[] = {
        {"no file", {}, {"audioFileStorageType"}},
        {"slots 1 and 3", {1, 3}, {"audioFileStorageType", "audioFileName_1", "audioFileName_3"}},
        {"first and last", {0, 4}, {"audioFileStorageType", "audioFileName_0", "audioFileName_4"}},
        {"every slot", {0, 1, 2, 3, 4},
         {"audioFileStorageType", "audioFileName_0", "audioFileName_1", "audioFileName_2", "audioFileName_3",
          "audioFileName_4"}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        audio_file_record r{};
        r.audioFileStorageType = -1;
        for (int slot : c.used)
            snprintf(r.audioFileName[slot], sizeof r.audioFileName[slot], "clip%d.wav", slot * 10);
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_audio_file_json(&r, d, n); }));
        EXPECT_EQ(test::keys(doc.root()), c.keys);
        const cJSON *type = doc["audioFileStorageType"];
        ASSERT_TRUE(cJSON_IsNumber(type));
        EXPECT_EQ(type->valuedouble, -1);
        for (int slot : c.used) {
            const std::string key = "audioFileName_" + std::to_string(slot);
            const cJSON *name = doc[key.c_str()];
            ASSERT_TRUE(cJSON_IsString(name)) << key;
            EXPECT_EQ(std::string(name->valuestring), "clip" + std::to_string(slot * 10) + ".wav");
        }
    }
}

TEST(StorageSettings, SdCardMembersThenFiveNasObjects)
{
    storage_settings_record r{};
    r.sdcardStatus = 1;
    r.sdcardDiskStatus = -2;
    r.sdcardFullStatus = 3;
    put(r.sdcardTotalSize, "29.7GB");
    put(r.sdcardFreeSize, "11.2GB");
    put(r.sdcardUseSize, "18.5GB");
    r.sdcardFileSystem = 4;
    for (int n = 0; n < 5; ++n) {
        snprintf(r.nasAddress[n], sizeof r.nasAddress[n], "10.0.0.%d", n + 1);
        snprintf(r.nasFilePath[n], sizeof r.nasFilePath[n], "/share%d", n);
        r.nasRecycle[n] = 10 + n;
        r.nasMountType[n] = 20 + n;
        snprintf(r.nasTotalSize[n], sizeof r.nasTotalSize[n], "%dTB", n + 1);
        snprintf(r.nasFreeSize[n], sizeof r.nasFreeSize[n], "%dGB", 100 + n);
        snprintf(r.nasUserName[n], sizeof r.nasUserName[n], "user%d", n);
        snprintf(r.nasPassword[n], sizeof r.nasPassword[n], "pw%d", n);
        r.nasStatus[n] = -30 - n;
    }
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_storage_settings_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("sdcardStatus", 1), N("sdcardDiskStatus", -2), N("sdcardFullStatus", 3), S("sdcardTotalSize", "29.7GB"),
        S("sdcardFreeSize", "11.2GB"), S("sdcardUseSize", "18.5GB"), N("sdcardFileSystem", 4), A("nasList"),
    });
    const cJSON *list = doc["nasList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 5);
    for (int n = 0; n < 5; ++n) {
        SCOPED_TRACE("NAS slot " + std::to_string(n));
        const std::string k = std::to_string(n);
        test::expect_members(test::element(list, n), {
            N("nasIndex", n), S("nasAddress", "10.0.0." + std::to_string(n + 1)), S("nasFilePath", "/share" + k),
            N("nasRecycle", 10 + n), N("nasMountType", 20 + n), S("nasTotalSize", std::to_string(n + 1) + "TB"),
            S("nasFreeSize", std::to_string(100 + n) + "GB"), S("nasUserName", "user" + k),
            S("nasPassword", "pw" + k), N("nasStatus", -30 - n),
        });
    }
}

TEST(StorageSettings, NoNasConfiguredStillGivesFiveObjects)
{
    const storage_settings_record r{};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_storage_settings_json(&r, d, n); }));
    const cJSON *list = doc["nasList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 5);
    for (int n = 0; n < 5; ++n) {
        SCOPED_TRACE("NAS slot " + std::to_string(n));
        test::expect_members(test::element(list, n), {
            N("nasIndex", n), S("nasAddress", ""), S("nasFilePath", ""), N("nasRecycle", 0), N("nasMountType", 0),
            S("nasTotalSize", ""), S("nasFreeSize", ""), S("nasUserName", ""), S("nasPassword", ""),
            N("nasStatus", 0),
        });
    }
}

TEST(StorageRecordSettings, ThreeNumbersThenSevenDays)
{
    storage_record_settings_record r{};
    r.recycleStorageEnable = 1;
    r.preRecordTime = -5;
    r.stream = 2;
    for (int d = 0; d < 7; ++d)
        if (d != 4) // day 4 left empty: still listed
            snprintf(r.schedule[d], sizeof r.schedule[d], "day%d 0%d:00-1%d:00", d, d, d);
    test::Json doc(
        test::rendered([&](char *d, int32_t n) { return get_storage_record_settings_json(&r, d, n); }));
    test::expect_members(doc.root(),
                         {N("recycleStorageEnable", 1), N("preRecordTime", -5), N("stream", 2), A("scheduleList")});
    const cJSON *list = doc["scheduleList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d) {
        SCOPED_TRACE("day " + std::to_string(d));
        const std::string text =
            d == 4 ? "" : "day" + std::to_string(d) + " 0" + std::to_string(d) + ":00-1" + std::to_string(d) + ":00";
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", text)});
    }
}

} // namespace
