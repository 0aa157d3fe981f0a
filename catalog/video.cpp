#include "catalog.h"

#include <cstring>

namespace {

// A four-megapixel bullet camera with three streams: H.265 main, H.264 sub
// and a small MJPEG third stream for the mobile viewer.
video_general_record sample_general()
{
    video_general_record r{};
    r.streamCount = 3;
    const int32_t width[] = {2560, 704, 640};
    const int32_t height[] = {1440, 576, 360};
    const char *url[] = {"/stream1", "/stream2", "/stream3"};
    const int32_t gop[] = {50, 50, 25};
    const int32_t rateMode[] = {1, 0, 1};
    const int32_t framerate[] = {25, 25, 12};
    const int32_t bitrate[] = {4096, 1024, 512};
    const int32_t codec[] = {1, 0, 2};
    for (int i = 0; i < 3; ++i) {
        r.width[i] = width[i];
        r.height[i] = height[i];
        put(r.url[i], url[i]);
        r.profileGop[i] = gop[i];
        r.rateMode[i] = rateMode[i];
        r.framerate[i] = framerate[i];
        r.bitrate[i] = bitrate[i];
        r.smartStreamEnable[i] = i == 0 ? 1 : 0;
        r.smartStreamLevel[i] = 3;
        r.profile[i] = 2;
        r.profileCodec[i] = codec[i];
        r.rateQuality[i] = 4;
        r.vbrQuality[i] = 3;
        r.enable[i] = 1;
    }
    r.enable[2] = 0;
    r.rtspPort = 554;
    return r;
}

// Overlays: the site name with the clock on the main stream, the lane name on
// the sub stream.
video_advanced_record sample_advanced()
{
    video_advanced_record r{};
    r.streamCount = 3;
    const char *text[] = {"Gate North Entry", "Lane 1", ""};
    for (int i = 0; i < 3; ++i) {
        r.enable[i] = i < 2 ? 1 : 0;
        put(r.string[i], text[i]);
        r.dateTimeEnable[i] = i == 0 ? 1 : 0;
        r.fontSize[i] = i == 0 ? 32 : 16;
        put(r.fontColor[i], "#FFFFFF");
        r.backgroundEnable[i] = i == 1 ? 1 : 0;
        put(r.backgroundColor[i], "#000000");
        r.textPosition[i] = 2;
        r.dateTimePosition[i] = 0;
        r.dateTimeFormat[i] = 1;
    }
    r.osdZoomTime[0] = 3;
    r.osdZoomTime[1] = 0;
    return r;
}

void fill_group(video_codec_group_entry &g, std::initializer_list<video_resolution_entry> resolutions)
{
    g.availableSize = static_cast<int32_t>(resolutions.size());
    int32_t r = 0;
    for (const video_resolution_entry &e : resolutions)
        g.resolution[r++] = e;
}

video_framerate_record sample_framerate()
{
    video_framerate_record r{};
    r.streamCount = 3;
    r.streamValid[0] = 1;
    r.streamValid[1] = 1;
    r.streamValid[2] = 1;
    r.mjpegSupport[2] = 1;
    fill_group(r.streams[0].h264, {{2560, 1440, 25, 4096, 25}, {1920, 1080, 30, 4096, 30}, {1280, 720, 30, 2048, 30}});
    fill_group(r.streams[0].h265, {{2560, 1440, 25, 3072, 25}, {1920, 1080, 30, 2048, 30}});
    fill_group(r.streams[1].h264, {{704, 576, 25, 1024, 25}, {640, 360, 30, 768, 30}});
    fill_group(r.streams[1].h265, {{704, 576, 25, 768, 25}});
    fill_group(r.streams[2].h264, {{640, 360, 15, 512, 15}});
    fill_group(r.streams[2].h265, {{640, 360, 15, 384, 15}});
    fill_group(r.streams[2].mjpeg, {{640, 360, 12, 2048, 12}, {352, 288, 15, 1024, 15}});
    return r;
}

video_bit_info_record sample_bit_info()
{
    video_bit_info_record r{};
    const int32_t main[] = {1024, 2048, 3072, 4096, 6144, 8192};
    const int32_t sub[] = {256, 512, 768, 1024};
    const int32_t third[] = {128, 256, 512};
    for (int s = 0; s < 6; ++s)
        r.bitrate[0][s] = main[s];
    for (int s = 0; s < 4; ++s)
        r.bitrate[1][s * 2] = sub[s]; // spread over the slots as the encoder fills them
    for (int s = 0; s < 3; ++s)
        r.bitrate[2][s] = third[s];
    return r;
}

playvideo_config_record sample_playvideo()
{
    playvideo_config_record r{};
    put(r.nfsPath, "192.168.1.20:/export/adverts");
    put(r.nasPath, "//192.168.1.20/adverts");
    const char *names[] = {"welcome.mp4", "opening-hours.mp4", "parking-rules.mp4"};
    const char *speeds[] = {"1x", "1x", "2x"};
    const int slots[] = {0, 1, 4};
    for (int k = 0; k < 3; ++k) {
        put(r.videos[slots[k]].name, names[k]);
        put(r.videos[slots[k]].speed, speeds[k]);
    }
    r.mode = 1;
    r.interval = 30;
    r.cyclicIndex = 1;
    r.playIndex = 4;
    return r;
}

// A fisheye ceiling camera: the O and P modes carry two streams, the
// multi-view modes their panes; event streams only where the installer set
// them up.
struct FisheyeSample {
    fisheye_stream_entry main{0, 1, 1, 24, 1, 'H', 50, 2592, 1944, 6144, 3, 1, 3};
    fisheye_stream_entry sub{0, 1, 0, 14, 0, 'M', 30, 704, 576, 1024, 3, 0, 2};
    fisheye_stream_entry pane{0, 0, 0, 14, 0, 'B', 25, 640, 480, 768, 2, 0, 1};
    fisheye_event_stream_entry event{0, 1, 24, 25, 8192};
    video_fisheye_video_general_record record{};
    FisheyeSample()
    {
        record.mode1O = {{&main, &sub}, &event};
        record.mode1P = {{&main, &sub}, nullptr};
        record.mode2P = {{&main, nullptr}, nullptr};
        record.mode4R = {{&main, &pane, &pane, &pane}, nullptr};
        record.mode1O3R = {{&main, &pane, &pane, &pane}, &event};
        record.mode1P3R = {{&main, &pane, nullptr, &pane}, nullptr};
        record.mode1O1P3R = {{&main, &sub, &pane, &pane, &pane}, &event};
        record.powerlineFreq = 50;
        record.correctModel = 1;
        record.displayModel = 6;
        record.installModel = 0;
        record.viewField = 180;
    }
};

video_fisheye_ptz_osd_record sample_video_fisheye_ptz_osd()
{
    return video_fisheye_ptz_osd_record{1, 0, 0, 1};
}

video_ts_multicast_record sample_video_ts_multicast()
{
    video_ts_multicast_record m{};
    m.enable = 1;
    put(m.addr, "239.255.42.99");
    m.port = 5004;
    return m;
}

video_fish_dewarping_record sample_video_fish_dewarping()
{
    return video_fish_dewarping_record{180, 1};
}

playvideo_filename_record sample_playvideo_filename()
{
    playvideo_filename_record f{};
    put(f.name[0], "welcome.mp4");
    put(f.name[1], "opening-hours.mp4");
    put(f.name[4], "parking-rules.mp4");
    return f;
}

// The record points at the encoder's entries, which live as long as the
// program.
video_fisheye_video_general_record sample_fisheye()
{
    static const FisheyeSample sample;
    return sample.record;
}

sensor_config_record sample_sensor_config()
{
    return sensor_config_record{{2, 0}};
}

using SensorConfigPage = RecordPage<sensor_config_record, kept<sensor_config_record, sample_sensor_config>,
                                    get_sensor_config_json, schema_sensor_config_json, set_sensor_config_json>;

dehumidifying_info_record sample_dehumidifying_info()
{
    return dehumidifying_info_record{{45, 70, 5, 0}, 2};
}

dehumidifying_status_record sample_dehumidifying_status()
{
    return dehumidifying_status_record{31.75, 0, 1};
}

const CatalogEntry entries[] = {
    MW_SETTABLE_ENTRY(video_general, "stream profiles: resolution, codec, rate control and URL per stream",
                      (kept<video_general_record, sample_general>)),
    MW_SETTABLE_ENTRY(video_advanced, "text overlay per stream and zoom-time overlay per sensor",
                      (kept<video_advanced_record, sample_advanced>)),
    MW_READ_ONLY_ENTRY(video_framerate, "frame rates each codec offers at each resolution, per stream",
                       (kept<video_framerate_record, sample_framerate>)),
    MW_READ_ONLY_ENTRY(video_bit_info, "bit rates each of the five streams offers",
                       (kept<video_bit_info_record, sample_bit_info>)),
    // The sensor page prints whatever buffer it is given.
    CatalogEntry{"get_sensor_config_json", "output mode of both sensors", SensorConfigPage::sample, false,
                 &SensorConfigPage::ops, SensorConfigPage::inputs},
    MW_SETTABLE_ENTRY(video_fisheye_ptz_osd, "on-screen status of the fisheye PTZ functions",
                      (kept<video_fisheye_ptz_osd_record, sample_video_fisheye_ptz_osd>)),
    MW_SETTABLE_ENTRY(video_ts_multicast, "transport-stream multicast address and port",
                      (kept<video_ts_multicast_record, sample_video_ts_multicast>)),
    MW_SETTABLE_ENTRY(video_fish_dewarping, "fisheye dewarping view field and correction model",
                      (kept<video_fish_dewarping_record, sample_video_fish_dewarping>)),
    MW_SETTABLE_ENTRY(playvideo_config, "video playback mode, share paths and play list",
                      (kept<playvideo_config_record, sample_playvideo>)),
    MW_READ_ONLY_ENTRY(playvideo_filename, "file names of the video play list",
                       (kept<playvideo_filename_record, sample_playvideo_filename>)),
    page_entry<PairPage<dehumidifying_info_record, kept<dehumidifying_info_record, sample_dehumidifying_info>,
                        dehumidifying_status_record, kept<dehumidifying_status_record, sample_dehumidifying_status>,
                        get_dehumidifying_info_json, schema_dehumidifying_info_json, set_dehumidifying_info_json>>(
        "get_dehumidifying_info_json", "housing fan mode, temperature and fan state"),
    MW_SETTABLE_ENTRY(video_fisheye_video_general, "fisheye lens settings and stream profiles per display mode",
                      (kept<video_fisheye_video_general_record, sample_fisheye>)),
};

} // namespace

const CatalogGroup catalog_video = catalog_group("video", entries);
