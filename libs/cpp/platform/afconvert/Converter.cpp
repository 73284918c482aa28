#include "Converter.h"

#include "AacEncoder.h"
#include "M4aCheck.h"
#include "M4aWriter.h"
#include "OutputFile.h"
#include "WavSource.h"

namespace {

// Up to here the quick search is meant: the lowest class of a scale of four.
constexpr int lastFastQuality = 31;

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
    AacEncoder encoder(format);
    encoder.encode(source, 0, packets,
        [&writer](const std::uint8_t *bytes, std::size_t count) { writer.add(bytes, count); });
    writer.finish();
    M4aCheck::verify(file.temporaryPath(), source.frames(), packets);
    file.place();
}
