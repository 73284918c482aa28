#pragma once

#include "PacketRun.h"
#include <cstdint>
#include <optional>

/// Where the packets of two encoders can follow each other.
namespace Seam {

/// Packets that are made by both encoders at a boundary.
constexpr int overlapPackets = 12;

/// The first bits of a packet: how its block was windowed (ISO 14496-3, ics_info).
struct Window
{
    enum class Sequence
    {
        OnlyLong,
        LongStart,
        EightShort,
        LongStop
    };

    bool known = false; ///< false if the channels differ, or the packet isn't of one element
    Sequence sequence = Sequence::OnlyLong;
    int shape = 0; ///< of the window's second half: 0 sine, 1 Kaiser-Bessel

    bool operator==(const Window &other) const
    {
        return known == other.known && sequence == other.sequence && shape == other.shape;
    }
};

Window readWindow(const PacketRun::Packet &packet);

/// The first place where both runs have plain long blocks; none if there isn't one so far.
std::optional<std::int64_t> plainCut(const PacketRun &left, const PacketRun &right);

/// The number of the first packet that is taken from the right run, the packets before it coming
/// from the left one.
///
/// The halves of neighbouring blocks overlap and must have windows that fit each other, so the
/// place is best where both encoders use plain long blocks; else it is where they agree. The runs
/// have at least the packets [right.first(), left.end()) in common.
std::int64_t chooseCut(const PacketRun &left, const PacketRun &right);

}
