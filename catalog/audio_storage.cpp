#include "catalog.h"

namespace {

// The SD card page of a camera recording to a 32 GB card and to one NAS
// share in the building's server room; the other four NAS slots are unused.
storage_settings_record sample_storage()
{
    storage_settings_record r{};
    r.sdcardStatus = 1;
    r.sdcardDiskStatus = 0;
    r.sdcardFullStatus = 0;
    put(r.sdcardTotalSize, "29.7GB");
    put(r.sdcardFreeSize, "11.2GB");
    put(r.sdcardUseSize, "18.5GB");
    r.sdcardFileSystem = 1;
    put(r.nasAddress[0], "192.168.1.20");
    put(r.nasFilePath[0], "/volume1/cctv/gate-north");
    r.nasRecycle[0] = 1;
    r.nasMountType[0] = 0;
    put(r.nasTotalSize[0], "3.6TB");
    put(r.nasFreeSize[0], "1.9TB");
    put(r.nasUserName[0], "cctv");
    put(r.nasPassword[0], "Nas#2026cctv");
    r.nasStatus[0] = 1;
    for (int n = 1; n < 5; ++n) {
        r.nasRecycle[n] = 1;
        r.nasMountType[n] = 0;
        r.nasStatus[n] = 0;
    }
    return r;
}

// Continuous recording on weekdays' working hours, all day at the weekend.
storage_record_settings_record sample_record_settings()
{
    storage_record_settings_record r{};
    r.recycleStorageEnable = 1;
    r.preRecordTime = 5;
    r.stream = 1;
    for (int d = 0; d < 7; ++d)
        put(r.schedule[d], d == 0 || d == 6 ? "00:00-24:00" : "07:00-19:30");
    return r;
}

audio_info_record sample_audio_info()
{
    audio_info_record a{};
    a.enable = 1;
    a.codec = 1;
    a.source = 0;
    a.mode = 2;
    a.denoise = 1;
    a.inputGain = 60;
    a.alarmLevel = 75;
    a.outputAgc = 1;
    a.outputVolume = 80;
    a.sampleRate = 16000;
    a.bitRate = 64;
    a.externCodecType = 0;
    return a;
}

audio_file_record sample_audio_file()
{
    audio_file_record a{};
    a.audioFileStorageType = 0;
    put(a.audioFileName[0], "warning_private_property.wav");
    put(a.audioFileName[1], "please_leave_the_area.wav");
    put(a.audioFileName[3], "gate_closing.wav");
    return a;
}

const CatalogEntry entries[] = {
    MW_SETTABLE_ENTRY(audio_info, "audio input and output settings",
                      (kept<audio_info_record, sample_audio_info>)),
    MW_READ_ONLY_ENTRY(audio_file, "the stored alarm audio files",
                       (kept<audio_file_record, sample_audio_file>)),
    MW_SETTABLE_ENTRY(storage_settings, "SD card state and network storage slots",
                      (kept<storage_settings_record, sample_storage>)),
    MW_SETTABLE_ENTRY(storage_record_settings, "recording settings and the weekly recording schedule",
                      (kept<storage_record_settings_record, sample_record_settings>)),
};

} // namespace

const CatalogGroup catalog_audio_storage = catalog_group("audio_storage", entries);
