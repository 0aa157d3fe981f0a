/*
 * middleware_video.h - the video stream pages.
 * Part of <middleware.h>.
 */
#ifndef MIDDLEWARE_VIDEO_H
#define MIDDLEWARE_VIDEO_H

#include "middleware_core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ===== video ===== */

/* The camera encodes up to six streams. The documents name them by index:
   0 "mainStream", 1 "subStream", 2 "thirdStream", 3 "fourthStream",
   4 "fifthStream", 5 "sixthStream"; the frame-rate and bit-rate pages know
   only the first five. */

/* The stream profiles page. Every array holds one element per stream, by
   stream index. */
typedef struct video_general_record {
    int32_t streamCount;               /* streams to report, 0..6 */
    int32_t width[6];                  /* pixels */
    int32_t height[6];
    char url[6][16];                   /* the stream's URL path */
    int32_t profileGop[6];             /* frames between key frames */
    int32_t rateMode[6];
    int32_t framerate[6];              /* frames per second */
    int32_t bitrate[6];                /* kbit/s */
    int32_t smartStreamEnable[6];
    int32_t smartStreamLevel[6];
    int32_t profile[6];
    int32_t profileCodec[6];
    int32_t rateQuality[6];
    int32_t vbrQuality[6];
    int32_t enable[6];                 /* not reported for the main stream, which is always on */
    int32_t rtspPort;
} video_general_record;

/* The text overlay of each stream, and the zoom-time overlay of each of the
   two sensors. */
typedef struct video_advanced_record {
    int32_t streamCount;               /* streams to report, 0..6 */
    int32_t enable[6];
    char string[6][256];               /* the overlay text */
    int32_t dateTimeEnable[6];
    int32_t fontSize[6];
    char fontColor[6][16];
    int32_t backgroundEnable[6];
    char backgroundColor[6][16];
    int32_t textPosition[6];
    int32_t dateTimePosition[6];
    int32_t dateTimeFormat[6];
    int32_t osdZoomTime[2];            /* one per sensor */
} video_advanced_record;

/* One resolution a codec offers, with the frame rate it reaches there. */
typedef struct video_resolution_entry {
    int32_t width;
    int32_t height;
    int32_t framerate;
    int32_t defBitRate;                /* not in the frame-rate document */
    int32_t parityFramerate;           /* not in the frame-rate document */
} video_resolution_entry;

/* The resolutions of one codec: the first availableSize entries are valid. */
typedef struct video_codec_group_entry {
    int32_t availableSize;             /* 0..10 */
    video_resolution_entry resolution[10];
} video_codec_group_entry;

/* What one stream offers, codec by codec. */
typedef struct video_framerate_stream_entry {
    video_codec_group_entry h264;
    video_codec_group_entry h265;
    video_codec_group_entry mjpeg;
    int32_t reserved[2];               /* encoder bookkeeping, not in the document (width ours) */
} video_framerate_stream_entry;

/* The frame rates each codec offers at each resolution, per stream. */
typedef struct video_framerate_record {
    int32_t streamCount;               /* streams to report, 0..5 */
    int32_t streamValid[6];            /* 0: the stream is left out of the document */
    int32_t mjpegSupport[6];           /* non-zero: the stream offers MJPEG too */
    int32_t reserved[6];               /* encoder bookkeeping, not in the document (width ours) */
    video_framerate_stream_entry streams[6]; /* six, like the other per-stream arrays; five are read */
} video_framerate_record;

/* The bit rates each of the first five streams offers, in kbit/s. */
typedef struct video_bit_info_record {
    int32_t bitrate[5][30];            /* 0 marks an empty slot */
} video_bit_info_record;

/* The output mode of each of the two sensors. */
typedef struct sensor_config_record {
    int32_t outputMode[2];
} sensor_config_record;

/* The on-screen status of the fisheye PTZ functions. */
typedef struct video_fisheye_ptz_osd_record {
    int32_t presetStatus;
    int32_t patrolStatus;
    int32_t autoscanStatus;
    int32_t zoomStatus;
} video_fisheye_ptz_osd_record;

/* The transport-stream multicast target. */
typedef struct video_ts_multicast_record {
    uint8_t enable;
    char addr[35];                     /* the multicast group address */
    uint32_t port;
} video_ts_multicast_record;

/* The fisheye dewarping choice. */
typedef struct video_fish_dewarping_record {
    int32_t viewField;
    int32_t correctModel;
} video_fish_dewarping_record;

/* One file of the playback list. */
typedef struct playvideo_entry {
    int32_t reserved;                  /* the player's own bookkeeping, not in the document */
    char name[128];                    /* the file; empty marks a free slot */
    char speed[32];
} playvideo_entry;

/* The video playback page: where the files are, how they are played, and the
   list itself (500 slots, free ones skipped). */
typedef struct playvideo_config_record {
    char nfsPath[256];
    char nasPath[256];
    playvideo_entry videos[500];
    int32_t mode;
    int32_t interval;
    int32_t cyclicIndex;
    int32_t playIndex;
} playvideo_config_record;

/* The file names of the playback list; an empty name marks a free slot. */
typedef struct playvideo_filename_record {
    char name[500][128];
} playvideo_filename_record;

/* The housing's dehumidifier settings. Only the fan mode is reported; the
   members before it (width ours) belong to the housing controller. */
typedef struct dehumidifying_info_record {
    int32_t reserved[4];               /* not in the document */
    int32_t fanWorkingMode;
} dehumidifying_info_record;

/* The housing's measured state. */
typedef struct dehumidifying_status_record {
    double temperature;                /* degrees Celsius */
    uint8_t reserved;                  /* not in the document */
    uint8_t fan;                       /* fan state */
} dehumidifying_status_record;

/* One stream of a fisheye display mode. The first member (width ours) is not
   in the document. */
typedef struct fisheye_stream_entry {
    uint8_t reserved;
    uint8_t enable;
    uint8_t profileCodec;
    uint8_t framerate;                 /* zero-based: 24 means 25 frames per second */
    uint8_t rateMode;
    char profile;                      /* 'B' baseline, 'M' main, anything else high */
    uint8_t profileGop;
    uint32_t width;
    uint32_t height;
    uint32_t bitrate;                  /* kbit/s */
    uint8_t vbrQuality;
    uint8_t smartStreamEnable;
    uint32_t smartStreamLevel;
} fisheye_stream_entry;

/* The event stream of a fisheye display mode (the stream sent while an alarm
   lasts). */
typedef struct fisheye_event_stream_entry {
    uint8_t reserved;                  /* not in the document */
    uint8_t eventEnable;
    uint8_t eventFramerate;            /* zero-based, as above */
    uint8_t eventGop;
    uint32_t eventBitrate;             /* kbit/s */
} fisheye_event_stream_entry;

/* A fisheye display mode: its stream slots and its event stream. A NULL
   pointer marks a stream slot the mode does not use, or a mode without an
   event stream. The pointed entries belong to the caller. */
typedef struct fisheye_mode_2_streams {
    const fisheye_stream_entry *streams[2];
    const fisheye_event_stream_entry *event;
} fisheye_mode_2_streams;

typedef struct fisheye_mode_4_streams {
    const fisheye_stream_entry *streams[4];
    const fisheye_event_stream_entry *event;
} fisheye_mode_4_streams;

typedef struct fisheye_mode_5_streams {
    const fisheye_stream_entry *streams[5];
    const fisheye_event_stream_entry *event;
} fisheye_mode_5_streams;

/* The stream profiles of a fisheye camera: one group per display mode, in the
   order of the document's modes ("1OMode", "1PMode", "2PMode", "4RMode",
   "1O3RMode", "1P3RMode", "1O1P3RMode"), then the lens settings. The group
   names and the reserved block (width ours) are not in the document. */
typedef struct video_fisheye_video_general_record {
    fisheye_mode_2_streams mode1O;
    fisheye_mode_2_streams mode1P;
    fisheye_mode_2_streams mode2P;
    fisheye_mode_4_streams mode4R;
    fisheye_mode_4_streams mode1O3R;
    fisheye_mode_4_streams mode1P3R;
    fisheye_mode_5_streams mode1O1P3R;
    int32_t reserved[4];               /* not in the document */
    int32_t powerlineFreq;
    int32_t correctModel;
    int32_t displayModel;
    int32_t installModel;
    int32_t viewField;
} video_fisheye_video_general_record;

/* "streamList": one object per stream under its name, then "rtspPort". The
   main stream has no "enable". Streams past the sixth are not reported (the
   stream names end there). */
MW_API int32_t get_video_general_json(const video_general_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_video_general_json(const video_general_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_video_general_json(video_general_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
/* "streamList": the overlay of each stream under its name, then "sensorList"
   with both sensors. Streams past the sixth are not reported. */
MW_API int32_t get_video_advanced_json(const video_advanced_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_video_advanced_json(const video_advanced_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_video_advanced_json(video_advanced_record *record, const char *body, int32_t bodySize, char *dst,
                                       int32_t dstSize);
/* "streamCount" as stored, then one object per valid stream with "H264",
   "H265" and, where offered, "Mjpeg". Streams past the fifth and
   resolutions past the tenth are not reported (the names and the record end
   there); "streamCount" and "availableSize" still show the stored values. */
MW_API int32_t get_video_framerate_json(const video_framerate_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_video_framerate_json(const video_framerate_record *in, char *dst, int32_t dstSize);
/* The five streams, each with its non-zero bit rates in slot order. */
MW_API int32_t get_video_bit_info_json(const video_bit_info_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_video_bit_info_json(const video_bit_info_record *in, char *dst, int32_t dstSize);

/* "sensorList" with both sensors. This one never tests its buffer: it always
   prints, and a NULL buffer or a size below 1 copies nothing and yields 0. */
MW_API int32_t get_sensor_config_json(const sensor_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_sensor_config_json(const sensor_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_sensor_config_json(sensor_config_record *record, const char *body, int32_t bodySize, char *dst,
                                      int32_t dstSize);
MW_API int32_t get_video_fisheye_ptz_osd_json(const video_fisheye_ptz_osd_record *in, char *dst,
                                              int32_t dstSize);
MW_API int32_t schema_video_fisheye_ptz_osd_json(const video_fisheye_ptz_osd_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_video_fisheye_ptz_osd_json(video_fisheye_ptz_osd_record *record, const char *body, int32_t bodySize,
                                              char *dst, int32_t dstSize);
MW_API int32_t get_video_ts_multicast_json(const video_ts_multicast_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_video_ts_multicast_json(const video_ts_multicast_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_video_ts_multicast_json(video_ts_multicast_record *record, const char *body, int32_t bodySize,
                                           char *dst, int32_t dstSize);
MW_API int32_t get_video_fish_dewarping_json(const video_fish_dewarping_record *in, char *dst,
                                             int32_t dstSize);
MW_API int32_t schema_video_fish_dewarping_json(const video_fish_dewarping_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_video_fish_dewarping_json(video_fish_dewarping_record *record, const char *body, int32_t bodySize,
                                             char *dst, int32_t dstSize);
/* The play mode and paths, then "videoList" with the used slots, each with
   its slot number as "index". */
MW_API int32_t get_playvideo_config_json(const playvideo_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t schema_playvideo_config_json(const playvideo_config_record *in, char *dst, int32_t dstSize);
MW_API int32_t set_playvideo_config_json(playvideo_config_record *record, const char *body, int32_t bodySize, char *dst,
                                         int32_t dstSize);
MW_API int32_t get_playvideo_filename_json(const playvideo_filename_record *in, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_playvideo_filename_json(const playvideo_filename_record *in, char *dst, int32_t dstSize);
/* The fan mode from the settings, the temperature as text with two decimals
   ("23.50", no unit) and the fan state from the measured state. Neither
   record is tested for NULL; a refused buffer returns before either is read. */
MW_API int32_t get_dehumidifying_info_json(const dehumidifying_info_record *info,
                                           const dehumidifying_status_record *status, char *dst,
                                           int32_t dstSize);
MW_API int32_t schema_dehumidifying_info_json(const dehumidifying_info_record *info,
                                              const dehumidifying_status_record *status, char *dst,
                                              int32_t dstSize);
MW_API int32_t set_dehumidifying_info_json(dehumidifying_info_record *info, dehumidifying_status_record *status,
                                           const char *body, int32_t bodySize, char *dst, int32_t dstSize);

/* The lens settings, then one object per display mode with its event stream
   (when there is one) and its "streamList" of used slots. Frame rates are
   reported one-based. */
MW_API int32_t get_video_fisheye_video_general_json(const video_fisheye_video_general_record *in,
                                                    char *dst, int32_t dstSize);
MW_API int32_t schema_video_fisheye_video_general_json(const video_fisheye_video_general_record *in, char *dst,
                                                       int32_t dstSize);
MW_API int32_t set_video_fisheye_video_general_json(video_fisheye_video_general_record *record, const char *body,
                                                    int32_t bodySize, char *dst, int32_t dstSize);

/* ===== end video ===== */

#ifdef __cplusplus
}
#endif

#endif /* MIDDLEWARE_VIDEO_H */
