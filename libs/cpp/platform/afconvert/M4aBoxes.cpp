#include "M4aBoxes.h"

#include "AacEncoder.h"
#include <algorithm>
#include <array>
#include <cstdio>
#include <numeric>

namespace {

/// Bytes of boxes, with the sizes of the open boxes filled in as they are closed.
class Boxes
{
public:
    template <typename Content> void box(const char *type, Content content)
    {
        const std::size_t start = m_bytes.size();
        u32(0);
        tag(type);
        content();
        const auto size = static_cast<std::uint32_t>(m_bytes.size() - start);
        for (int i = 0; i < 4; ++i) {
            m_bytes[start + i] = static_cast<std::uint8_t>(size >> (24 - 8 * i));
        }
    }

    template <typename Content>
    void fullBox(const char *type, unsigned version, std::uint32_t flags, Content content)
    {
        box(type, [&] {
            u32(version << 24 | flags);
            content();
        });
    }

    void u8(std::uint32_t value) { m_bytes.push_back(static_cast<std::uint8_t>(value)); }

    void u16(std::uint32_t value)
    {
        u8(value >> 8 & 0xff);
        u8(value & 0xff);
    }

    void u32(std::uint32_t value)
    {
        u16(value >> 16);
        u16(value & 0xffff);
    }

    void u64(std::int64_t value)
    {
        u32(static_cast<std::uint32_t>(value >> 32));
        u32(static_cast<std::uint32_t>(value & 0xffffffff));
    }

    /// A time in 64 bits for version 1 of a box, else in 32.
    void time(unsigned version, std::int64_t value)
    {
        if (version == 1) {
            u64(value);
        } else {
            u32(static_cast<std::uint32_t>(value));
        }
    }

    void zeros(int count) { m_bytes.insert(m_bytes.end(), count, 0); }

    void tag(const char *type) { m_bytes.insert(m_bytes.end(), type, type + 4); }

    void text(const std::string &value)
    {
        m_bytes.insert(m_bytes.end(), value.begin(), value.end());
    }

    void bytes(const std::vector<std::uint8_t> &value)
    {
        m_bytes.insert(m_bytes.end(), value.begin(), value.end());
    }

    void reserve(std::size_t count) { m_bytes.reserve(count); }

    std::vector<std::uint8_t> take() { return std::move(m_bytes); }

private:
    std::vector<std::uint8_t> m_bytes;
};

std::int64_t mediaFrames(const M4aTrack &track)
{
    return M4aBoxes::primingFrames + track.frames;
}

unsigned timeVersion(const M4aTrack &track)
{
    return mediaFrames(track) > UINT32_MAX ? 1 : 0;
}

void matrix(Boxes &out)
{
    for (const std::uint32_t value : {0x10000U, 0U, 0U, 0U, 0x10000U, 0U, 0U, 0U, 0x40000000U}) {
        out.u32(value);
    }
}

void movieHeader(Boxes &out, const M4aTrack &track)
{
    const unsigned version = timeVersion(track);
    out.fullBox("mvhd", version, 0, [&] {
        out.time(version, 0); // no dates: the same sound gives the same file
        out.time(version, 0);
        out.u32(static_cast<std::uint32_t>(track.sampleRate));
        out.time(version, track.frames);
        out.u32(0x10000); // rate 1
        out.u16(0x100); // volume 1
        out.zeros(10);
        matrix(out);
        out.zeros(24);
        out.u32(2); // next track
    });
}

void trackHeader(Boxes &out, const M4aTrack &track)
{
    constexpr std::uint32_t enabledInMovie = 3;
    const unsigned version = timeVersion(track);
    out.fullBox("tkhd", version, enabledInMovie, [&] {
        out.time(version, 0);
        out.time(version, 0);
        out.u32(1); // track number
        out.zeros(4);
        out.time(version, track.frames);
        out.zeros(8);
        out.u16(0); // layer
        out.u16(1); // alternate group
        out.u16(0x100); // volume 1
        out.zeros(2);
        matrix(out);
        out.zeros(8); // no picture
    });
}

void editList(Boxes &out, const M4aTrack &track)
{
    const unsigned version = timeVersion(track);
    out.box("edts", [&] {
        out.fullBox("elst", version, 0, [&] {
            out.u32(1);
            out.time(version, track.frames);
            out.time(version, M4aBoxes::primingFrames);
            out.u32(0x10000); // rate 1
        });
    });
}

void mediaInformation(Boxes &out, const M4aTrack &track)
{
    const unsigned version = timeVersion(track);
    out.fullBox("mdhd", version, 0, [&] {
        out.time(version, 0);
        out.time(version, 0);
        out.u32(static_cast<std::uint32_t>(track.sampleRate));
        out.time(version, mediaFrames(track));
        out.u16(0x55c4); // language undetermined
        out.zeros(2);
    });
    out.fullBox("hdlr", 0, 0, [&] {
        out.zeros(4);
        out.tag("soun");
        out.zeros(12);
        out.text("SoundHandler");
        out.u8(0);
    });
}

std::uint32_t averageBitRate(const M4aTrack &track)
{
    const auto bytes
        = std::accumulate(track.packetBytes.begin(), track.packetBytes.end(), std::int64_t {0});
    const auto frames = static_cast<std::int64_t>(track.packetBytes.size()) * packetFrames;
    return frames == 0 ? 0 : static_cast<std::uint32_t>(bytes * 8 * track.sampleRate / frames);
}

std::uint32_t highestBitRate(const M4aTrack &track)
{
    const auto window = static_cast<std::size_t>(std::max(1, track.sampleRate / packetFrames));
    std::int64_t bytes = 0;
    std::int64_t highest = 0;
    for (std::size_t i = 0; i < track.packetBytes.size(); ++i) {
        bytes += track.packetBytes[i];
        bytes -= i >= window ? track.packetBytes[i - window] : 0;
        highest = std::max(highest, bytes);
    }
    return static_cast<std::uint32_t>(
        highest * 8 * track.sampleRate / (static_cast<std::int64_t>(window) * packetFrames));
}

// Descriptors of ISO 14496-1: a tag, the size in the long form, the body.
void descriptor(Boxes &out, unsigned tag, std::size_t size)
{
    out.u8(tag);
    out.u8(0x80);
    out.u8(0x80);
    out.u8(0x80);
    out.u8(static_cast<std::uint32_t>(size));
}

void elementaryStream(Boxes &out, const M4aTrack &track)
{
    constexpr std::size_t headerBytes = 5;
    const std::size_t configBytes = track.decoderConfig.size();
    const std::size_t decoderBytes = 13 + headerBytes + configBytes;
    out.fullBox("esds", 0, 0, [&] {
        descriptor(out, 3, 3 + headerBytes + decoderBytes + headerBytes + 1);
        out.u16(1); // stream number
        out.u8(0);
        descriptor(out, 4, decoderBytes);
        out.u8(0x40); // MPEG-4 audio
        out.u8(0x15); // sound stream
        out.u8(0);
        out.u16(static_cast<std::uint32_t>(768 * track.channels)); // decoder's buffer
        out.u32(highestBitRate(track));
        out.u32(averageBitRate(track));
        descriptor(out, 5, configBytes);
        out.bytes(track.decoderConfig);
        descriptor(out, 6, 1);
        out.u8(2); // as MP4 files have it
    });
}

void sampleDescription(Boxes &out, const M4aTrack &track)
{
    out.fullBox("stsd", 0, 0, [&] {
        out.u32(1);
        out.box("mp4a", [&] {
            out.zeros(6);
            out.u16(1); // data reference
            out.zeros(8);
            out.u16(static_cast<std::uint32_t>(track.channels));
            out.u16(16); // bits, always stated so
            out.zeros(4);
            // 16.16 bits: rates beyond 65,535 Hz stand in the decoder's description only.
            out.u32(
                track.sampleRate > 0xffff ? 0 : static_cast<std::uint32_t>(track.sampleRate) << 16);
            elementaryStream(out, track);
        });
    });
}

void packetTimes(Boxes &out, const M4aTrack &track)
{
    // The last packet counts as far as the sound goes.
    const auto packets = static_cast<std::uint32_t>(track.packetBytes.size());
    const auto last = static_cast<std::uint32_t>(
        mediaFrames(track) - static_cast<std::int64_t>(packets - 1) * packetFrames);
    const bool uniform = packets == 1 || last == packetFrames;
    out.fullBox("stts", 0, 0, [&] {
        out.u32(uniform ? 1 : 2);
        out.u32(uniform ? packets : packets - 1);
        out.u32(packetFrames);
        if (!uniform) {
            out.u32(1);
            out.u32(last);
        }
    });
}

void packetPlaces(Boxes &out, const M4aTrack &track)
{
    const auto packets = static_cast<std::uint32_t>(track.packetBytes.size());
    const std::uint32_t perChunk = track.packetsPerChunk();
    const std::uint32_t wholeChunks = packets / perChunk;
    const std::uint32_t rest = packets % perChunk;
    out.fullBox("stsc", 0, 0, [&] {
        out.u32((wholeChunks > 0 ? 1 : 0) + (rest > 0 ? 1 : 0));
        for (const auto &[chunk, count] :
            {std::pair {1U, wholeChunks > 0 ? perChunk : 0U}, std::pair {wholeChunks + 1, rest}}) {
            if (count > 0) {
                out.u32(chunk);
                out.u32(count);
                out.u32(1); // sample description
            }
        }
    });
    out.fullBox("stsz", 0, 0, [&] {
        out.u32(0);
        out.u32(packets);
        for (const std::uint32_t size : track.packetBytes) {
            out.u32(size);
        }
    });
    const bool large = track.isLarge();
    out.fullBox(large ? "co64" : "stco", 0, 0, [&] {
        out.u32(wholeChunks + (rest > 0 ? 1 : 0));
        std::int64_t position = track.mediaPosition;
        for (std::uint32_t i = 0; i < packets; ++i) {
            if (i % perChunk == 0) {
                out.time(large ? 1 : 0, position);
            }
            position += track.packetBytes[i];
        }
    });
}

void rollGroup(Boxes &out, const M4aTrack &track)
{
    // A decoder needs the packet before the one that it starts at.
    out.fullBox("sgpd", 1, 0, [&] {
        out.tag("roll");
        out.u32(2); // bytes per entry
        out.u32(1);
        out.u16(0xffff); // -1
    });
    out.fullBox("sbgp", 0, 0, [&] {
        out.tag("roll");
        out.u32(1);
        out.u32(static_cast<std::uint32_t>(track.packetBytes.size()));
        out.u32(1);
    });
}

void sampleTables(Boxes &out, const M4aTrack &track)
{
    out.box("minf", [&] {
        out.fullBox("smhd", 0, 0, [&] { out.zeros(4); });
        out.box("dinf", [&] {
            out.fullBox("dref", 0, 0, [&] {
                out.u32(1);
                out.fullBox("url ", 0, 1, [] {});
            });
        });
        out.box("stbl", [&] {
            sampleDescription(out, track);
            packetTimes(out, track);
            packetPlaces(out, track);
            rollGroup(out, track);
        });
    });
}

void gaplessItem(Boxes &out, const M4aTrack &track)
{
    out.box("udta", [&] {
        out.fullBox("meta", 0, 0, [&] {
            out.fullBox("hdlr", 0, 0, [&] {
                out.zeros(4);
                out.tag("mdir");
                out.tag("appl");
                out.zeros(9);
            });
            out.box("ilst", [&] {
                out.box("----", [&] {
                    out.fullBox("mean", 0, 0, [&] { out.text("com.apple.iTunes"); });
                    out.fullBox("name", 0, 0, [&] { out.text("iTunSMPB"); });
                    out.fullBox("data", 0, 1, [&] {
                        out.zeros(4);
                        out.text(M4aBoxes::gaplessValue(track));
                    });
                });
            });
        });
    });
}

}

std::uint32_t M4aTrack::packetsPerChunk() const
{
    // About half a second.
    return static_cast<std::uint32_t>(std::max(1, sampleRate / (2 * packetFrames)));
}

bool M4aTrack::isLarge() const
{
    constexpr std::int64_t largestPacket = 768 + 8;
    constexpr std::int64_t largestHeaders = std::int64_t {1} << 28;
    return static_cast<std::int64_t>(packetBytes.size()) * channels * largestPacket
        > UINT32_MAX - largestHeaders;
}

namespace M4aBoxes {

std::vector<std::uint8_t> fileType()
{
    Boxes out;
    out.box("ftyp", [&] {
        out.tag("M4A ");
        out.u32(0x200);
        for (const char *brand : {"M4A ", "mp42", "isom", "iso2"}) {
            out.tag(brand);
        }
    });
    return out.take();
}

std::vector<std::uint8_t> movie(const M4aTrack &track)
{
    Boxes out;
    out.reserve(4096 + track.packetBytes.size() * 5);
    out.box("moov", [&] {
        movieHeader(out, track);
        out.box("trak", [&] {
            trackHeader(out, track);
            editList(out, track);
            out.box("mdia", [&] {
                mediaInformation(out, track);
                sampleTables(out, track);
            });
        });
        gaplessItem(out, track);
    });
    return out.take();
}

std::vector<std::uint8_t> mediaHeader(const M4aTrack &track, std::int64_t bytes)
{
    Boxes out;
    out.u32(track.isLarge() ? 1 : static_cast<std::uint32_t>(bytes + 8));
    out.tag("mdat");
    if (track.isLarge()) {
        out.u64(bytes + 16);
    }
    return out.take();
}

std::string gaplessValue(const M4aTrack &track)
{
    const std::int64_t padding
        = static_cast<std::int64_t>(track.packetBytes.size()) * packetFrames - mediaFrames(track);
    std::array<char, 160> text {};
    std::snprintf(text.data(), text.size(),
        " 00000000 %08X %08X %016llX 00000000 00000000 00000000 00000000 00000000 00000000 00000000"
        " 00000000",
        static_cast<unsigned>(primingFrames), static_cast<unsigned>(padding),
        static_cast<unsigned long long>(track.frames));
    return text.data();
}

}
