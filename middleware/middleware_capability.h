/*
 * middleware_capability.h - the capability documents.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_CAPABILITY_H
#define MIDDLEWARE_CAPABILITY_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ===== capabilities ===== */

/* A section of the general capability document. Sections nest by parent
   name; a section's parent must appear earlier in the entry list. */
typedef struct cap_group {
    char parentName[64];               /* the enclosing section; empty: under the root */
    char name[128];                    /* the section's key (width ours; up to 127 characters are used) */
} cap_group;

/* One capability: its key and the values a client may choose from.
   `values` is an option list: tokens separated by ';', each token an
   opening angle bracket, a decimal number, a closing angle bracket and a
   label, e.g. "<0>Off;<1>On;<2>Auto", which the document shows as
   {"Off": 0, "On": 1, "Auto": 2}. Text before the opening bracket is
   ignored; a token without both brackets is dropped. A number past the
   32-bit range is held at the range's end (our choice). When `range` is
   not empty it is shown instead, as {"range": range}.
   Serializing tokenizes `values` in place: the text is changed by the call,
   so refill the entry before serializing it again, and never share one
   between concurrent calls. */
typedef struct cap_entry {
    const cap_group *group;            /* general document only; NULL: directly under the root */
    char name[128];                    /* the entry's key */
    char values[512];
    char range[32];                    /* a free range text, e.g. "1~100" */
} cap_entry;

/* One resolution a codec offers: frame rate and default bit rate there. */
typedef struct video_resolution_cap {
    int32_t width;
    int32_t height;
    int32_t framerate;
    int32_t defBitRate;                /* kbit/s */
    int32_t parityFramerate;
} video_resolution_cap;

/* The resolutions of one codec; the first is the default. */
typedef struct video_codec_cap {
    int32_t availableSize;             /* valid resolutions, 0..10 */
    video_resolution_cap resolutions[10];
} video_codec_cap;

typedef struct video_stream_cap {
    video_codec_cap h264;
    video_codec_cap h265;
    video_codec_cap mjpeg;
    int32_t reserved[2];               /* encoder bookkeeping, not in the document (width ours) */
} video_stream_cap;

/* What the encoder can do: the capability entries, then per stream (index as
   in the video section: 0 "mainStream" .. 5 "sixthStream") the codecs, bit
   rates and the key-frame interval range. */
typedef struct cap_general_video_record {
    cap_entry entries[20];
    int32_t streamCount;               /* 0..6 */
    int32_t streamEnable[6];           /* 0: the stream is left out */
    int32_t mjpegSupport[6];           /* non-zero: the stream offers MJPEG */
    int32_t bitrates[6][30];           /* kbit/s; 0 marks an unused slot */
    int32_t reserved0[4];              /* not in the document (width ours) */
    int32_t gopMin;                    /* one key-frame interval range for all streams */
    int32_t gopMax;
    int32_t reserved1[4];              /* not in the document (width ours) */
    video_stream_cap streams[6];
} cap_general_video_record;

/* The sample rates one audio encoder offers. */
typedef struct audio_encoder_cap {
    int32_t encodeType;                /* 1 AAC LC, 2 G.711 u-law, 3 G.711 a-law, 4 G.722, 5 G.726 */
    int32_t sampleRateCount;
    int32_t sampleRates[10];           /* 0 8 kHz, 1 16 kHz, 2 32 kHz, 3 44.1 kHz, 4 48 kHz */
} audio_encoder_cap;

/* The bit rates offered at one sample rate. */
typedef struct audio_bitrate_cap {
    int32_t reserved;                  /* not in the document */
    int32_t bitrateCount;
    int32_t bitrates[10];              /* kbit/s: 16, 24, 32, 48, 64, 96, 128, 144, 192 or 256 */
} audio_bitrate_cap;

typedef struct cap_audio_record {
    cap_entry entries[13];
    audio_encoder_cap encoders[5];
    audio_bitrate_cap bitrateTables[5]; /* table i: sample-rate code i */
} cap_audio_record;

/* A preset number the dome reserves for a function. */
typedef struct special_preset_entry {
    int32_t id;                        /* 0 or less marks an unused slot */
    int32_t isExist;
    char name[64];
} special_preset_entry;

typedef struct cap_ptz_record {
    cap_entry entries[9];
    special_preset_entry specialPresets[21];
} cap_ptz_record;

/* The capability serializers take the number of valid entries after the
   record and tokenize the entries' option lists in place (see cap_entry).
   They refuse a NULL buffer or a size below 1 before touching the record.
   An entry's name filling its whole field is used as far as the field goes.
   Labels are cut to 31 characters (63 in the general document). */

/* The entries, each under its section: up to ten sections, nested by parent
   name, created on first use. An entry whose section is the eleventh, or
   whose parent section has not appeared yet, is left out. `entries` may be
   NULL (an empty document). */
MW_API int32_t get_cap_common_json(cap_entry *entries, int32_t count, char *dst, int32_t dstSize);
MW_API int32_t schema_cap_common_json(cap_entry *entries, int32_t count, char *dst, int32_t dstSize);
/* The entries, "streamCount", then each enabled stream with "H264", "H265",
   "Mjpeg" where offered, its non-zero "bitrate" values and "gopRange"
   ("min~max"). At most 20 entries, 6 streams and 10 resolutions a codec are
   read, whatever the counts say ("streamCount" and "availableSize" show the
   stored values). */
MW_API int32_t get_cap_general_video_json(cap_general_video_record *in, int32_t count, char *dst,
                                          int32_t dstSize);
MW_API int32_t schema_cap_general_video_json(cap_general_video_record *in, int32_t count, char *dst, int32_t dstSize);
/* The entries, one sample-rate array per encoder (named after its encoder
   type; an unknown type has none), then the bit rates of the five sample
   rates. At most 13 entries and 10 rates per list are read. */
MW_API int32_t get_cap_audio_json(cap_audio_record *in, int32_t count, char *dst, int32_t dstSize);
MW_API int32_t schema_cap_audio_json(cap_audio_record *in, int32_t count, char *dst, int32_t dstSize);
/* The entries, then "specialPresetList" with the used slots. At most 9
   entries are read. */
MW_API int32_t get_cap_ptz_json(cap_ptz_record *in, int32_t count, char *dst, int32_t dstSize);
MW_API int32_t schema_cap_ptz_json(cap_ptz_record *in, int32_t count, char *dst, int32_t dstSize);

/* ===== end capabilities ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_CAPABILITY_H */
