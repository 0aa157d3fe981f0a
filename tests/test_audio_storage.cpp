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

template <typename Record, typename Fn>
std::string render(Fn fn, const Record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return fn(&r, dst, n); });
}

TEST(AudioInfo, TwelveNumbersInRecordOrderSkippingTheUnreadWords)
{
    const audio_info_record r{901, 1, 2, 3, 4, 5, -6, 7, 8, 9, 16000, 11, 902, 12};
    test::Json doc(render(get_audio_info_json, r));
    test::expect_members(doc.root(), {
        N("enable", 1), N("codec", 2), N("source", 3), N("mode", 4), N("denoise", 5), N("inputGain", -6),
        N("alarmLevel", 7), N("outputAgc", 8), N("outputVolume", 9), N("sampleRate", 16000), N("bitRate", 11),
        N("externCodecType", 12)});
}

TEST(AudioFile, UsedSlotsKeepTheirNumbers)
{
    const std::vector<std::vector<int>> cases = {{}, {1, 3}, {0, 4}, {0, 1, 2, 3, 4}};
    for (const std::vector<int> &used : cases) {
        audio_file_record r{-1, {}};
        std::vector<test::Expected> want = {N("audioFileStorageType", -1)};
        for (int slot : used) {
            snprintf(r.audioFileName[slot], sizeof r.audioFileName[slot], "clip%d.wav", slot * 10);
            want.push_back(S(("audioFileName_" + std::to_string(slot)).c_str(),
                             "clip" + std::to_string(slot * 10) + ".wav"));
        }
        test::Json doc(render(get_audio_file_json, r));
        test::expect_members(doc.root(), want);
    }
}

TEST(StorageSettings, SdCardMembersThenFiveNasObjects)
{
    storage_settings_record r{1, -2, 3, "29.7GB", "11.2GB", "18.5GB", 4, {}, {}, {}, {}, {}, {}, {}, {}, {}};
    for (int n = 0; n < 4; ++n) { // the last slot stays unconfigured
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
    test::Json doc(render(get_storage_settings_json, r));
    test::expect_members(doc.root(), {
        N("sdcardStatus", 1), N("sdcardDiskStatus", -2), N("sdcardFullStatus", 3), S("sdcardTotalSize", "29.7GB"),
        S("sdcardFreeSize", "11.2GB"), S("sdcardUseSize", "18.5GB"), N("sdcardFileSystem", 4), A("nasList")});
    const cJSON *list = doc["nasList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 5);
    for (int n = 0; n < 4; ++n) {
        const std::string k = std::to_string(n);
        test::expect_members(test::element(list, n), {
            N("nasIndex", n), S("nasAddress", "10.0.0." + std::to_string(n + 1)), S("nasFilePath", "/share" + k),
            N("nasRecycle", 10 + n), N("nasMountType", 20 + n), S("nasTotalSize", std::to_string(n + 1) + "TB"),
            S("nasFreeSize", std::to_string(100 + n) + "GB"), S("nasUserName", "user" + k),
            S("nasPassword", "pw" + k), N("nasStatus", -30 - n)});
    }
    test::expect_members(test::element(list, 4), {
        N("nasIndex", 4), S("nasAddress", ""), S("nasFilePath", ""), N("nasRecycle", 0), N("nasMountType", 0),
        S("nasTotalSize", ""), S("nasFreeSize", ""), S("nasUserName", ""), S("nasPassword", ""), N("nasStatus", 0)});
}

TEST(StorageRecordSettings, ThreeNumbersThenSevenDays)
{
    storage_record_settings_record r{1, -5, 2, {}};
    for (int d = 0; d < 7; ++d)
        if (d != 4) // day 4 left empty: still listed
            snprintf(r.schedule[d], sizeof r.schedule[d], "day%d 0%d:00-1%d:00", d, d, d);
    test::Json doc(render(get_storage_record_settings_json, r));
    test::expect_members(doc.root(),
                         {N("recycleStorageEnable", 1), N("preRecordTime", -5), N("stream", 2), A("scheduleList")});
    const cJSON *list = doc["scheduleList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", r.schedule[d])});
}

} // namespace
