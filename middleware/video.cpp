/*
 * video.cpp - the video pages: stream profiles, text overlays, frame rates
 * and bit rates; sensor, fisheye, multicast and playback settings; the
 * fisheye stream profiles.
 */
#include "streams.h"

/* ==== stream profiles, overlays, frame rates and bit rates ==== */

namespace {

constexpr int32_t kFiveStreams = 5;

/* A codec's resolutions as the frame-rate page shows them: "availableSize"
   as stored, then "resolution" with the valid entries. */
template <typename A, typename Group>
void codec_framerates(A &a, const char *codec, Group &group)
{
    a.object(mw::Name::fixed(codec), [&](auto &o) {
        o("availableSize", group.availableSize);
        o.list("resolution", nullptr, [&](auto &l) {
            const int32_t size = mw::bounded_count(group.availableSize, 10);
            for (int32_t r = 0; r < size; ++r) {
                l.item([&](auto &item) {
                    item("width", group.resolution[r].width);
                    item("height", group.resolution[r].height);
                    item("framerate", group.resolution[r].framerate);
                });
            }
        });
    });
}

} // namespace

MW_SETTABLE_PAGE(video_general, [](auto &a, auto &r) {
    a.object("streamList", [&](auto &streams) {
        const int32_t count = mw::bounded_count(r.streamCount, mw::kStreamNameCount);
        for (int32_t i = 0; i < mw::kStreamNameCount; ++i) {
            // A stream past the count is left out.
            streams.listed_if(i < count, [&](auto &stream) {
                stream.object(mw::Name::fixed(mw::kStreamNames[i]), [&](auto &s) {
                    if (i != 0)
                        s("enable", r.enable[i]); // the main stream is always on
                    s("width", r.width[i]);
                    s("height", r.height[i]);
                    s("url", r.url[i]);
                    s("profileGop", r.profileGop[i]);
                    s("rateMode", r.rateMode[i]);
                    s("framerate", r.framerate[i]);
                    s("bitrate", r.bitrate[i]);
                    s("smartStreamEnable", r.smartStreamEnable[i]);
                    s("smartStreamLevel", r.smartStreamLevel[i]);
                    s("profile", r.profile[i]);
                    s("profileCodec", r.profileCodec[i]);
                    s("rateQuality", r.rateQuality[i]);
                    s("vbrQuality", r.vbrQuality[i]);
                });
            });
        }
    });
    a("rtspPort", r.rtspPort);
})

MW_SETTABLE_PAGE(video_advanced, [](auto &a, auto &r) {
    a.object("streamList", [&](auto &streams) {
        const int32_t count = mw::bounded_count(r.streamCount, mw::kStreamNameCount);
        for (int32_t i = 0; i < mw::kStreamNameCount; ++i) {
            // A stream past the count is left out.
            streams.listed_if(i < count, [&](auto &stream) {
                stream.object(mw::Name::fixed(mw::kStreamNames[i]), [&](auto &s) {
                    s("enable", r.enable[i]);
                    s("string", r.string[i]);
                    s("dateTimeEnable", r.dateTimeEnable[i]);
                    s("fontSize", r.fontSize[i]);
                    s("fontColor", r.fontColor[i]);
                    s("backgroundEnable", r.backgroundEnable[i]);
                    s("backgroundColor", r.backgroundColor[i]);
                    s("textPosition", r.textPosition[i]);
                    s("dateTimePosition", r.dateTimePosition[i]);
                    s("dateTimeFormat", r.dateTimeFormat[i]);
                });
            });
        }
    });
    a.list("sensorList", "sensorIndex", [&](auto &l) {
        for (int32_t j = 0; j < 2; ++j)
            l.item(j, [&](auto &sensor) { sensor("osdZoomTime", r.osdZoomTime[j]); });
    });
})

MW_READ_ONLY_PAGE(video_framerate, "what the encoder offers", [](auto &a, auto &r) {
    a("streamCount", r.streamCount);
    const int32_t count = mw::bounded_count(r.streamCount, kFiveStreams);
    for (int32_t i = 0; i < kFiveStreams; ++i) {
        a.listed_if(i < count && r.streamValid[i] != 0, [&](auto &stream) {
            stream.object(mw::Name::fixed(mw::kStreamNames[i]), [&](auto &s) {
                codec_framerates(s, "H264", r.streams[i].h264);
                codec_framerates(s, "H265", r.streams[i].h265);
                s.listed_if(r.mjpegSupport[i] != 0, [&](auto &m) { codec_framerates(m, "Mjpeg", r.streams[i].mjpeg); });
            });
        });
    }
})

MW_READ_ONLY_PAGE(video_bit_info, "what the encoder offers", [](auto &a, auto &r) {
    for (int32_t i = 0; i < kFiveStreams; ++i) {
        a.object(mw::Name::fixed(mw::kStreamNames[i]), [&](auto &s) {
            const mw::NonzeroValues rates = mw::nonzero_values(r.bitrate[i]);
            s.derived_numbers("bitrate", rates.values, rates.count);
        });
    }
})

/* ==== sensor, fisheye, multicast and playback settings ==== */

/* The only page of the group that prints whatever buffer it is given. */
MW_SETTABLE_RECORD_PAGE(, sensor_config, sensor_config_record, nullptr,
                        MW_RULES(nullptr, nullptr, mw::kPrintsAnyBuffer), [](auto &a, auto &r) {
    a.list("sensorList", "sensorIndex", [&](auto &l) {
        for (int32_t s = 0; s < 2; ++s)
            l.item(s, [&](auto &sensor) { sensor("outputMode", r.outputMode[s]); });
    });
})

MW_SETTABLE_PAGE(video_fisheye_ptz_osd, [](auto &a, auto &r) {
    a("presetStatus", r.presetStatus);
    a("patrolStatus", r.patrolStatus);
    a("autoscanStatus", r.autoscanStatus);
    a("zoomStatus", r.zoomStatus);
})

MW_SETTABLE_PAGE(video_ts_multicast, [](auto &a, auto &r) {
    a("enable", r.enable);
    a("addr", r.addr);
    a("port", r.port);
})

MW_SETTABLE_PAGE(video_fish_dewarping, [](auto &a, auto &r) {
    a("viewField", r.viewField);
    a("correctModel", r.correctModel);
})

MW_SETTABLE_PAGE(playvideo_config, [](auto &a, auto &r) {
    a("mode", r.mode);
    a("cyclicIndex", r.cyclicIndex);
    a("playIndex", r.playIndex);
    a("interval", r.interval); // last, though stored second
    a("nfsPath", r.nfsPath);
    a("nasPath", r.nasPath);
    a.list("videoList", "index", [&](auto &l) {
        for (int32_t i = 0; i < 500; ++i) {
            auto &v = r.videos[i];
            if (v.name[0] == '\0')
                continue; // a free slot; its number stays out of the list
            l.item(i, [&](auto &item) {
                item("name", v.name);
                item("speed", v.speed);
            });
        }
    });
})

MW_READ_ONLY_PAGE(playvideo_filename, "the files stored on the camera", [](auto &a, auto &r) {
    a.list("videoList", "index", [&](auto &l) {
        for (int32_t i = 0; i < 500; ++i) {
            if (r.name[i][0] != '\0')
                l.item(i, [&](auto &item) { item("name", r.name[i]); });
        }
    });
})

MW_SETTABLE_PAGE_WITH(, dehumidifying_info, dehumidifying_info_record, dehumidifying_status_record, MW_NO_RULES,
                      [](auto &a, auto &info, auto &status) {
    a("fanWorkingMode", info.fanWorkingMode);
    // Plain degrees with two decimals, no unit.
    a.derived("temperature", mw::Text<128>("%.2f", status.temperature));
    a("fan", status.fan);
})

/* ==== fisheye stream profiles ==== */

namespace {

/* The stored profile letter as the document's number. */
int32_t profile_number(char letter)
{
    if (letter == 'B')
        return 0;
    if (letter == 'M')
        return 1;
    return 2;
}

/* One display mode: its event stream and its stream slots. Both are the
   encoder's own entries, reached through const pointers, so the mode's keys
   are shown read-only. */
template <typename A, typename Mode>
void fisheye_mode(A &a, const char *name, Mode &mode)
{
    constexpr int32_t slots = static_cast<int32_t>(sizeof mode.streams / sizeof mode.streams[0]);
    a.object(mw::Name::fixed(name), [&](auto &m) {
        if (mode.event != nullptr) {
            const fisheye_event_stream_entry &e = *mode.event;
            m.derived("eventEnable", e.eventEnable);
            m.derived("eventBitrate", e.eventBitrate);
            m.derived("eventFramerate", e.eventFramerate + 1); // stored zero-based
            m.derived("eventGop", e.eventGop);
        }
        m.list("streamList", "streamIndex", [&](auto &l) {
            for (int32_t j = 0; j < slots; ++j) {
                const fisheye_stream_entry *s = mode.streams[j];
                if (s == nullptr)
                    continue; // the mode does not use this slot; its number stays a gap
                l.item(j, [&](auto &item) {
                    if (j != 0)
                        item.derived("enable", s->enable); // a mode's first stream is always on
                    item.derived("bitrate", s->bitrate);
                    item.derived("profileCodec", s->profileCodec);
                    item.derived("width", s->width);
                    item.derived("height", s->height);
                    item.derived("framerate", s->framerate + 1); // stored zero-based
                    item.derived("profile", profile_number(s->profile));
                    item.derived("profileGop", s->profileGop);
                    item.derived("rateMode", s->rateMode);
                    item.derived("vbrQuality", s->vbrQuality);
                    item.derived("smartStreamLevel", s->smartStreamLevel);
                    item.derived("smartStreamEnable", s->smartStreamEnable);
                });
            }
        });
    });
}

} // namespace

MW_SETTABLE_PAGE(video_fisheye_video_general, [](auto &a, auto &r) {
    a("correctModel", r.correctModel);
    a("displayModel", r.displayModel);
    a("installModel", r.installModel);
    a("viewField", r.viewField);
    a("powerlineFreq", r.powerlineFreq); // last, though stored first
    fisheye_mode(a, "1OMode", r.mode1O);
    fisheye_mode(a, "1PMode", r.mode1P);
    fisheye_mode(a, "2PMode", r.mode2P);
    fisheye_mode(a, "4RMode", r.mode4R);
    fisheye_mode(a, "1O3RMode", r.mode1O3R);
    fisheye_mode(a, "1P3RMode", r.mode1P3R);
    fisheye_mode(a, "1O1P3RMode", r.mode1O1P3R);
})
