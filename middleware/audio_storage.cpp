/*
 * audio_storage.cpp - the audio pages (channel settings, stored alarm audio
 * files) and the storage pages (SD card and NAS state, recording settings).
 */
#include "internal.h"

/* ---- audio ---- */

MW_SETTABLE_PAGE(audio_info, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("codec", r.codec);
    a("source", r.source);
    a("mode", r.mode);
    a("denoise", r.denoise);
    a("inputGain", r.inputGain);
    a("alarmLevel", r.alarmLevel);
    a("outputAgc", r.outputAgc);
    a("outputVolume", r.outputVolume);
    a("sampleRate", r.sampleRate);
    a("bitRate", r.bitRate);
    a("externCodecType", r.externCodecType);
})

MW_READ_ONLY_PAGE(audio_file, "the files stored on the camera", [](auto &a, auto &r) {
    a("audioFileStorageType", r.audioFileStorageType);
    // Free slots are left out; the used ones keep their slot number.
    for (int32_t i = 0; i < 5; ++i)
        a.when(r.audioFileName[i][0] != '\0',
               [&](auto &o) { o(mw::Key<32>("audioFileName_%d", i), r.audioFileName[i]); });
})

/* ---- storage ---- */

MW_SETTABLE_PAGE(storage_settings, [](auto &a, auto &r) {
    a("sdcardStatus", r.sdcardStatus);
    a("sdcardDiskStatus", r.sdcardDiskStatus);
    a("sdcardFullStatus", r.sdcardFullStatus);
    a("sdcardTotalSize", r.sdcardTotalSize);
    a("sdcardFreeSize", r.sdcardFreeSize);
    a("sdcardUseSize", r.sdcardUseSize);
    a("sdcardFileSystem", r.sdcardFileSystem);
    // All five NAS slots, configured or not.
    a.list("nasList", "nasIndex", [&](auto &l) {
        for (int32_t n = 0; n < 5; ++n) {
            l.item(n, [&](auto &nas) {
                nas("nasAddress", r.nasAddress[n]);
                nas("nasFilePath", r.nasFilePath[n]);
                nas("nasRecycle", r.nasRecycle[n]);
                nas("nasMountType", r.nasMountType[n]);
                nas("nasTotalSize", r.nasTotalSize[n]);
                nas("nasFreeSize", r.nasFreeSize[n]);
                nas("nasUserName", r.nasUserName[n]);
                nas("nasPassword", r.nasPassword[n]);
                nas("nasStatus", r.nasStatus[n]);
            });
        }
    });
})

MW_SETTABLE_PAGE(storage_record_settings, [](auto &a, auto &r) {
    a("recycleStorageEnable", r.recycleStorageEnable);
    a("preRecordTime", r.preRecordTime);
    a("stream", r.stream);
    mw::schedule_list(a, r.schedule);
})
