/*
 * video.cpp - the video pages: stream profiles, text overlays, frame rates
 * and bit rates; sensor, fisheye, multicast and playback settings; the
 * fisheye stream profiles.
 */
#include "streams.h"


using mw::add;

namespace mw {

void add_nonzero_int_array(cJSON *parent, const char *key, const int32_t *slots, int32_t count)
{
    int values[30];
    int used = 0;
    for (int32_t s = 0; s < count && used < 30; ++s)
        if (slots[s] != 0)
            values[used++] = slots[s];
    cJSON *list = cJSON_CreateIntArray(values, used);
    if (list != nullptr && !cJSON_AddItemToObject(parent, key, list))
        cJSON_Delete(list); // no parent to hold it
}

} // namespace mw

/* ==== stream profiles, overlays, frame rates and bit rates ==== */

namespace {

constexpr int32_t kFiveStreams = 5;

/* A codec's resolutions as the frame-rate page shows them: "availableSize"
   as stored, then "resolution" with the valid entries. */
void add_codec_framerates(cJSON *stream, const char *codec, const video_codec_group_entry &group)
{
    cJSON *o = mw::object(stream, codec);
    add(o, "availableSize", group.availableSize);
    cJSON *list = mw::array(o, "resolution");
    const int32_t size = mw::bounded_count(group.availableSize, 10);
    for (int32_t r = 0; r < size; ++r) {
        cJSON *item = mw::append_object(list);
        add(item, "width", group.resolution[r].width);
        add(item, "height", group.resolution[r].height);
        add(item, "framerate", group.resolution[r].framerate);
    }
}

} // namespace

int32_t get_video_general_json(const video_general_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *streams = mw::object(root, "streamList");
        const int32_t count = mw::bounded_count(in->streamCount, mw::kStreamNameCount);
        for (int32_t i = 0; i < count; ++i) {
            cJSON *s = mw::object(streams, mw::kStreamNames[i]);
            if (i != 0)
                add(s, "enable", in->enable[i]); // the main stream is always on
            add(s, "width", in->width[i]);
            add(s, "height", in->height[i]);
            add(s, "url", in->url[i]);
            add(s, "profileGop", in->profileGop[i]);
            add(s, "rateMode", in->rateMode[i]);
            add(s, "framerate", in->framerate[i]);
            add(s, "bitrate", in->bitrate[i]);
            add(s, "smartStreamEnable", in->smartStreamEnable[i]);
            add(s, "smartStreamLevel", in->smartStreamLevel[i]);
            add(s, "profile", in->profile[i]);
            add(s, "profileCodec", in->profileCodec[i]);
            add(s, "rateQuality", in->rateQuality[i]);
            add(s, "vbrQuality", in->vbrQuality[i]);
        }
        add(root, "rtspPort", in->rtspPort);
    });
}

int32_t get_video_advanced_json(const video_advanced_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *streams = mw::object(root, "streamList");
        const int32_t count = mw::bounded_count(in->streamCount, mw::kStreamNameCount);
        for (int32_t i = 0; i < count; ++i) {
            cJSON *s = mw::object(streams, mw::kStreamNames[i]);
            add(s, "enable", in->enable[i]);
            add(s, "string", in->string[i]);
            add(s, "dateTimeEnable", in->dateTimeEnable[i]);
            add(s, "fontSize", in->fontSize[i]);
            add(s, "fontColor", in->fontColor[i]);
            add(s, "backgroundEnable", in->backgroundEnable[i]);
            add(s, "backgroundColor", in->backgroundColor[i]);
            add(s, "textPosition", in->textPosition[i]);
            add(s, "dateTimePosition", in->dateTimePosition[i]);
            add(s, "dateTimeFormat", in->dateTimeFormat[i]);
        }
        cJSON *sensors = mw::array(root, "sensorList");
        for (int32_t j = 0; j < 2; ++j) {
            cJSON *sensor = mw::append_object(sensors);
            add(sensor, "sensorIndex", j);
            add(sensor, "osdZoomTime", in->osdZoomTime[j]);
        }
    });
}

int32_t get_video_framerate_json(const video_framerate_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "streamCount", in->streamCount);
        const int32_t count = mw::bounded_count(in->streamCount, kFiveStreams);
        for (int32_t i = 0; i < count; ++i) {
            if (in->streamValid[i] == 0)
                continue;
            cJSON *s = mw::object(root, mw::kStreamNames[i]);
            add_codec_framerates(s, "H264", in->streams[i].h264);
            add_codec_framerates(s, "H265", in->streams[i].h265);
            if (in->mjpegSupport[i] != 0)
                add_codec_framerates(s, "Mjpeg", in->streams[i].mjpeg);
        }
    });
}

int32_t get_video_bit_info_json(const video_bit_info_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        for (int32_t i = 0; i < kFiveStreams; ++i) {
            cJSON *s = mw::object(root, mw::kStreamNames[i]);
            mw::add_nonzero_int_array(s, "bitrate", in->bitrate[i], 30);
        }
    });
}

/* ==== sensor, fisheye, multicast and playback settings ==== */

int32_t get_sensor_config_json(const sensor_config_record *in, char *dst, int32_t dstSize)
{
    // The only page of the group that prints whatever buffer it is given.
    return mw::document_without_buffer_test(dst, dstSize, [in](cJSON *root) {
        cJSON *sensors = mw::array(root, "sensorList");
        for (int32_t s = 0; s < 2; ++s) {
            cJSON *sensor = mw::append_object(sensors);
            add(sensor, "sensorIndex", s);
            add(sensor, "outputMode", in->outputMode[s]);
        }
    });
}

int32_t get_video_fisheye_ptz_osd_json(const video_fisheye_ptz_osd_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "presetStatus", in->presetStatus);
        add(root, "patrolStatus", in->patrolStatus);
        add(root, "autoscanStatus", in->autoscanStatus);
        add(root, "zoomStatus", in->zoomStatus);
    });
}

int32_t get_video_ts_multicast_json(const video_ts_multicast_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "enable", in->enable);
        add(root, "addr", in->addr);
        add(root, "port", in->port);
    });
}

int32_t get_video_fish_dewarping_json(const video_fish_dewarping_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "viewField", in->viewField);
        add(root, "correctModel", in->correctModel);
    });
}

int32_t get_playvideo_config_json(const playvideo_config_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "mode", in->mode);
        add(root, "cyclicIndex", in->cyclicIndex);
        add(root, "playIndex", in->playIndex);
        add(root, "interval", in->interval); // last, though stored second
        add(root, "nfsPath", in->nfsPath);
        add(root, "nasPath", in->nasPath);
        cJSON *list = mw::array(root, "videoList");
        for (int32_t i = 0; i < 500; ++i) {
            const playvideo_entry &v = in->videos[i];
            if (v.name[0] == '\0')
                continue; // a free slot; its number stays out of the list
            cJSON *item = mw::append_object(list);
            add(item, "index", i);
            add(item, "name", v.name);
            add(item, "speed", v.speed);
        }
    });
}

int32_t get_playvideo_filename_json(const playvideo_filename_record *in, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        cJSON *list = mw::array(root, "videoList");
        for (int32_t i = 0; i < 500; ++i) {
            if (in->name[i][0] == '\0')
                continue;
            cJSON *item = mw::append_object(list);
            add(item, "index", i);
            add(item, "name", in->name[i]);
        }
    });
}

int32_t get_dehumidifying_info_json(const dehumidifying_info_record *info, const dehumidifying_status_record *status,
                                    char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [info, status](cJSON *root) {
        add(root, "fanWorkingMode", info->fanWorkingMode);
        // Plain degrees with two decimals, no unit.
        mw::add_string(root, "temperature", mw::Text<128>("%.2f", status->temperature));
        add(root, "fan", status->fan);
    });
}

/* ==== fisheye stream profiles ==== */

namespace {

/* One display mode as the document walks it: its name, its stream slots and
   its event stream. */
struct FisheyeMode {
    const char *name;
    const fisheye_stream_entry *const *streams;
    int32_t slots;
    const fisheye_event_stream_entry *event;
};

/* The stored profile letter as the document's number. */
int32_t profile_number(char letter)
{
    if (letter == 'B')
        return 0;
    if (letter == 'M')
        return 1;
    return 2;
}

void add_fisheye_mode(cJSON *root, const FisheyeMode &mode)
{
    cJSON *m = mw::object(root, mode.name);
    if (mode.event != nullptr) {
        const fisheye_event_stream_entry &e = *mode.event;
        add(m, "eventEnable", e.eventEnable);
        add(m, "eventBitrate", e.eventBitrate);
        add(m, "eventFramerate", e.eventFramerate + 1); // stored zero-based
        add(m, "eventGop", e.eventGop);
    }
    cJSON *list = mw::array(m, "streamList");
    for (int32_t j = 0; j < mode.slots; ++j) {
        const fisheye_stream_entry *s = mode.streams[j];
        if (s == nullptr)
            continue; // the mode does not use this slot; its number stays a gap
        cJSON *item = mw::append_object(list);
        add(item, "streamIndex", j);
        if (j != 0)
            add(item, "enable", s->enable); // a mode's first stream is always on
        add(item, "bitrate", s->bitrate);
        add(item, "profileCodec", s->profileCodec);
        add(item, "width", s->width);
        add(item, "height", s->height);
        add(item, "framerate", s->framerate + 1); // stored zero-based
        add(item, "profile", profile_number(s->profile));
        add(item, "profileGop", s->profileGop);
        add(item, "rateMode", s->rateMode);
        add(item, "vbrQuality", s->vbrQuality);
        add(item, "smartStreamLevel", s->smartStreamLevel);
        add(item, "smartStreamEnable", s->smartStreamEnable);
    }
}

} // namespace

int32_t get_video_fisheye_video_general_json(const video_fisheye_video_general_record *in, char *dst,
                                             int32_t dstSize)
{
    return mw::document(dst, dstSize, [in](cJSON *root) {
        add(root, "correctModel", in->correctModel);
        add(root, "displayModel", in->displayModel);
        add(root, "installModel", in->installModel);
        add(root, "viewField", in->viewField);
        add(root, "powerlineFreq", in->powerlineFreq); // last, though stored first

        const FisheyeMode modes[] = {
            {"1OMode", in->mode1O.streams, 2, in->mode1O.event},
            {"1PMode", in->mode1P.streams, 2, in->mode1P.event},
            {"2PMode", in->mode2P.streams, 2, in->mode2P.event},
            {"4RMode", in->mode4R.streams, 4, in->mode4R.event},
            {"1O3RMode", in->mode1O3R.streams, 4, in->mode1O3R.event},
            {"1P3RMode", in->mode1P3R.streams, 4, in->mode1P3R.event},
            {"1O1P3RMode", in->mode1O1P3R.streams, 5, in->mode1O1P3R.event},
        };
        for (const FisheyeMode &mode : modes)
            add_fisheye_mode(root, mode);
    });
}
