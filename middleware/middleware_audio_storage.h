/*
 * middleware_audio_storage.h - the audio-file and storage pages.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_AUDIO_STORAGE_H
#define MIDDLEWARE_AUDIO_STORAGE_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ===== audio and storage ===== */

/* The audio page: input and output settings of the camera's audio channel.
   Codec, source and mode are the page's option codes. */
typedef struct audio_info_record {
    int32_t reserved0;           /* not in the document */
    int32_t enable;
    int32_t codec;
    int32_t source;              /* microphone or line input */
    int32_t mode;
    int32_t denoise;
    int32_t inputGain;
    int32_t alarmLevel;          /* input level that raises the audio alarm */
    int32_t outputAgc;
    int32_t outputVolume;
    int32_t sampleRate;
    int32_t bitRate;
    int32_t reserved1;           /* not in the document */
    int32_t externCodecType;
} audio_info_record;

/* The alarm audio files stored on the camera: five slots, an empty name marks
   a free one. */
typedef struct audio_file_record {
    int32_t audioFileStorageType;
    char audioFileName[5][128];
} audio_file_record;

/* The storage page: the SD card's state and the five network-storage (NAS)
   slots, held as parallel arrays indexed by slot (0 to 4). Sizes are display
   texts ("29.7GB"); the NAS password is written to the document as stored. */
typedef struct storage_settings_record {
    int32_t sdcardStatus;
    int32_t sdcardDiskStatus;
    int32_t sdcardFullStatus;
    char sdcardTotalSize[32];
    char sdcardFreeSize[32];
    char sdcardUseSize[32];
    int32_t sdcardFileSystem;
    char nasAddress[5][64];
    char nasFilePath[5][256];
    int32_t nasRecycle[5];
    int32_t nasMountType[5];
    char nasTotalSize[5][32];
    char nasFreeSize[5][32];
    char nasUserName[5][64];
    char nasPassword[5][32];
    int32_t nasStatus[5];
} storage_settings_record;

/* The recording page: overwrite when full, pre-record time in seconds, the
   recorded stream, and one schedule text per day (0 = first day of the
   week, 6 = last). */
typedef struct storage_record_settings_record {
    int32_t recycleStorageEnable;
    int32_t preRecordTime;
    int32_t stream;
    char schedule[7][256];
} storage_record_settings_record;

/* Twelve numbers, "enable" to "externCodecType", in the record's order. */
MW_API int32_t get_audio_info_json(const audio_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_audio_info_json(const audio_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_audio_info_json(audio_info_record *record, const char *body, int32_t bodySize, char *dst,
                                   int32_t dstSize);
/* "audioFileStorageType", then one "audioFileName_<slot>" per used slot: the
   key keeps the slot number (0 to 4), so free slots leave gaps. */
MW_API int32_t get_audio_file_json(const audio_file_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_audio_file_json(const audio_file_record *in, char *dst, int32_t dstSize);
/* The SD card members, then "nasList": always five objects, "nasIndex" 0 to
   4, configured or not. */
MW_API int32_t get_storage_settings_json(const storage_settings_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_storage_settings_json(const storage_settings_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_storage_settings_json(storage_settings_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
/* Three numbers, then "scheduleList": seven days, "scheduleIndex" 0 to 6. */
MW_API int32_t get_storage_record_settings_json(const storage_record_settings_record *in, char *dst,
                                                int32_t dstSize);
MW_API int32_t schema_storage_record_settings_json(const storage_record_settings_record *in, char *dst,
                                                   int32_t dstSize);
MW_API int32_t set_storage_record_settings_json(storage_record_settings_record *record, const char *body,
                                                int32_t bodySize, char *dst, int32_t dstSize);

/* ===== end audio and storage ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_AUDIO_STORAGE_H */
