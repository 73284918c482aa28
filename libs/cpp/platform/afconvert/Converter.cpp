#include "Converter.h"

#include "AacEncoder.h"
#include "M4aCheck.h"
#include "M4aWriter.h"
#include "OutputFile.h"
#include "ParallelEncoder.h"
#include "Segments.h"
#include "WavSource.h"
#include <algorithm>
#include <sched.h>
#include <thread>

namespace {

// Up to here the quick search is meant: the lowest class of a scale of four.
constexpr int lastFastQuality = 31;

/// The cores that this process may use.
int usableCores()
{
    cpu_set_t cores;
    if (::sched_getaffinity(0, sizeof cores, &cores) == 0) {
        return std::max(1, CPU_COUNT(&cores));
    }
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

}

void Converter::convert(const Job &job)
{
    const WavSource source(job.source);
    AacFormat format;
    format.sampleRate = source.sampleRate();
    format.channels = source.channels();
    format.bitRate = job.bitRate;
    format.fastSearch = job.quality <= lastFastQuality;
    format.check();

    OutputFile file(job.destination);
    const std::int64_t packets = packetCount(source.frames());
    M4aTrack track;
    track.sampleRate = format.sampleRate;
    track.channels = format.channels;
    track.frames = source.frames();
    track.decoderConfig = format.decoderConfig();
    M4aWriter writer(file, std::move(track), packets);
    const AacEncoder::Sink sink
        = [&writer](const std::uint8_t *bytes, std::size_t count) { writer.add(bytes, count); };
    const int threads = job.threads > 0 ? job.threads : usableCores();
    const auto starts = Segments::evenStarts(packets, format, threads);
    if (threads == 1 || starts.size() == 1) {
        AacEncoder(format).encode(source, 0, packets, sink);
    } else {
        ParallelEncoder(
            source, format, Segments::steadyStarts(source, format, packets, starts), threads)
            .encode(sink);
    }
    writer.finish();
    M4aCheck::verify(file.temporaryPath(), source.frames(), packets);
    file.place();
}
