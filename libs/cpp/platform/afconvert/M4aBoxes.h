#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// What the boxes of a one-track AAC file tell (ISO 14496-12, 14496-14).
struct M4aTrack
{
    int sampleRate = 0; ///< Hz; the time scale of the movie and of the track
    int channels = 0;
    std::int64_t frames = 0; ///< of the sound, without priming and padding
    std::vector<std::uint8_t> decoderConfig;
    std::vector<std::uint32_t> packetBytes; ///< size of each packet
    std::int64_t mediaPosition = 0; ///< of the first packet in the file

    std::uint32_t packetsPerChunk() const;
    /// Whether positions and sizes may need 64 bits: told by the largest packets that AAC can have,
    /// so that the sizes of the boxes are known before the packets are.
    bool isLarge() const;
};

namespace M4aBoxes {

/// Length of the priming that every stream begins with, in samples.
constexpr std::int64_t primingFrames = 1024;

/// The file type box.
std::vector<std::uint8_t> fileType();

/// The movie box with the sample tables, the edit list that cuts priming and padding, the roll
/// group and the gapless item. Its size depends on the number of packets, not on their sizes.
std::vector<std::uint8_t> movie(const M4aTrack &track);

/// The header of the media data box with so many bytes of packets.
std::vector<std::uint8_t> mediaHeader(const M4aTrack &track, std::int64_t bytes);

/// The value of the gapless item (iTunSMPB).
std::string gaplessValue(const M4aTrack &track);

}
