/*
 * audio_storage.cpp - the audio pages (channel settings, stored alarm audio
 * files) and the storage pages (SD card and NAS state, recording settings).
 */
#include "internal.h"

using mw::add;

/* ---- audio ---- */

int32_t get_audio_info_json(const audio_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "codec", in->codec);
        add(root, "source", in->source);
        add(root, "mode", in->mode);
        add(root, "denoise", in->denoise);
        add(root, "inputGain", in->inputGain);
        add(root, "alarmLevel", in->alarmLevel);
        add(root, "outputAgc", in->outputAgc);
        add(root, "outputVolume", in->outputVolume);
        add(root, "sampleRate", in->sampleRate);
        add(root, "bitRate", in->bitRate);
        add(root, "externCodecType", in->externCodecType);
    });
}

int32_t get_audio_file_json(const audio_file_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "audioFileStorageType", in->audioFileStorageType);
        // Free slots are left out; the used ones keep their slot number.
        for (int32_t i = 0; i < 5; ++i) {
            if (in->audioFileName[i][0] == '\0')
                continue;
            add(root, mw::Key<32>("audioFileName_%d", i), in->audioFileName[i]);
        }
    });
}

/* ---- storage ---- */

int32_t get_storage_settings_json(const storage_settings_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "sdcardStatus", in->sdcardStatus);
        add(root, "sdcardDiskStatus", in->sdcardDiskStatus);
        add(root, "sdcardFullStatus", in->sdcardFullStatus);
        add(root, "sdcardTotalSize", in->sdcardTotalSize);
        add(root, "sdcardFreeSize", in->sdcardFreeSize);
        add(root, "sdcardUseSize", in->sdcardUseSize);
        add(root, "sdcardFileSystem", in->sdcardFileSystem);

        // All five NAS slots, configured or not.
        cJSON *list = mw::array(root, "nasList");
        for (int32_t n = 0; n < 5; ++n) {
            cJSON *nas = mw::append_object(list);
            add(nas, "nasIndex", n);
            add(nas, "nasAddress", in->nasAddress[n]);
            add(nas, "nasFilePath", in->nasFilePath[n]);
            add(nas, "nasRecycle", in->nasRecycle[n]);
            add(nas, "nasMountType", in->nasMountType[n]);
            add(nas, "nasTotalSize", in->nasTotalSize[n]);
            add(nas, "nasFreeSize", in->nasFreeSize[n]);
            add(nas, "nasUserName", in->nasUserName[n]);
            add(nas, "nasPassword", in->nasPassword[n]);
            add(nas, "nasStatus", in->nasStatus[n]);
        }
    });
}

int32_t get_storage_record_settings_json(const storage_record_settings_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "recycleStorageEnable", in->recycleStorageEnable);
        add(root, "preRecordTime", in->preRecordTime);
        add(root, "stream", in->stream);
        mw::add_schedule_list(root, in->schedule);
    });
}
