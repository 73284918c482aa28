#include "ContainerLimits.h"

#include <cerrno>
#include <cstddef>
#include <mutex>
#include <string>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/avstring.h>
}

namespace {

/// Formats that are known by their content and open files or sockets themselves, past io_open:
/// lists of parts (concat, dash, hls, imf, vobsub) and descriptions of streams (sdp). And those
/// that compute sound from a script or program, which need not end: brain wave scripts (sbg), code
/// for a game console (libgme), scripts of a frame server (avisynth, vapoursynth).
///
/// Formats that read no bytes of their own (image sequences, devices, streams by their address)
/// bear a flag. Texts and pictures open nothing, and are refused for want of sound.
constexpr const char *refusedFormats
    = "concat,dash,hls,applehttp,imf,vobsub,webm_dash_manifest,sdp,rtp,rtsp,sap,sbg,libgme,"
      "avisynth,vapoursynth";

/// Stands in the place of a protocol's name; there is none with it.
constexpr const char *noProtocol = "none";

/// Nothing is allocated in one piece beyond this: far above the tables of a recording of days, and
/// below what the lengths in a damaged or hostile file may ask for.
constexpr std::size_t maxAllocation = std::size_t(256) * 1024 * 1024;

const std::string &allowedFormats()
{
    static const std::string names = [] {
        std::string list;
        void *position = nullptr;
        while (const AVInputFormat *format = av_demuxer_iterate(&position)) {
            if (ContainerLimits::allow(format)) {
                list += list.empty() ? "" : ",";
                list += format->name;
            }
        }
        return list;
    }();
    return names;
}

int refuseToOpen(AVFormatContext * /*context*/, AVIOContext ** /*io*/, const char * /*url*/,
    int /*flags*/, AVDictionary ** /*options*/)
{
    return AVERROR(EPERM);
}

}

bool ContainerLimits::allow(const AVInputFormat *format)
{
    return (format->flags & AVFMT_NOFILE) == 0
        && av_match_list(format->name, refusedFormats, ',') == 0;
}

void ContainerLimits::apply(AVFormatContext *container)
{
    static std::once_flag once;
    std::call_once(once, [] {
        av_log_set_level(AV_LOG_QUIET);
        av_max_alloc(maxAllocation);
    });
    container->io_open = refuseToOpen;
    // Containers within containers get these two lists, but not the function.
    container->protocol_whitelist = av_strdup(noProtocol);
    container->format_whitelist = av_strdup(allowedFormats().c_str());
}
