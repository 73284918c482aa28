#include "Seam.h"

#include <algorithm>

namespace {

/// Bits of a packet from its beginning on; behind its end there are zeros.
class BitReader
{
public:
    explicit BitReader(const PacketRun::Packet &packet)
        : m_packet(packet)
    {
    }

    unsigned take(int bits)
    {
        unsigned value = 0;
        for (; bits > 0; --bits, ++m_position) {
            const std::size_t byte = m_position / 8;
            const unsigned bit
                = byte < m_packet.count ? m_packet.bytes[byte] >> (7 - m_position % 8) & 1U : 0U;
            value = value << 1 | bit;
        }
        return value;
    }

private:
    PacketRun::Packet m_packet;
    std::size_t m_position = 0;
};

bool isPlainSeries(const Seam::Window &before, const Seam::Window &after)
{
    constexpr auto plain = Seam::Window::Sequence::OnlyLong;
    return before.sequence == plain && after.sequence == plain && before.shape == after.shape;
}

/// The first place at which both runs have the same known windows before and behind it, and these
/// are a series that fits.
template <typename Fits>
std::optional<std::int64_t> firstCut(const PacketRun &left, const PacketRun &right, Fits fits)
{
    const std::int64_t end = std::min(left.end(), right.end());
    for (std::int64_t cut = right.first() + 1; cut < end; ++cut) {
        const Seam::Window before = Seam::readWindow(left.at(cut - 1));
        const Seam::Window after = Seam::readWindow(left.at(cut));
        if (before.known && after.known && before == Seam::readWindow(right.at(cut - 1))
            && after == Seam::readWindow(right.at(cut)) && fits(before, after)) {
            return cut;
        }
    }
    return std::nullopt;
}

}

Seam::Window Seam::readWindow(const PacketRun::Packet &packet)
{
    constexpr unsigned singleChannel = 0;
    constexpr unsigned channelPair = 1;
    BitReader bits(packet);
    const unsigned element = bits.take(3);
    bits.take(4); // number of the element
    Window window;
    if (element == singleChannel) {
        bits.take(8); // gain
    } else if (element != channelPair || bits.take(1) == 0) {
        return window; // each channel has a window of its own
    }
    bits.take(1);
    window.known = true;
    window.sequence = static_cast<Window::Sequence>(bits.take(2));
    window.shape = static_cast<int>(bits.take(1));
    return window;
}

std::optional<std::int64_t> Seam::plainCut(const PacketRun &left, const PacketRun &right)
{
    return firstCut(left, right, isPlainSeries);
}

std::int64_t Seam::chooseCut(const PacketRun &left, const PacketRun &right)
{
    if (const auto cut = plainCut(left, right)) {
        return *cut;
    }
    const auto anySeries = [](const Seam::Window &, const Seam::Window &) { return true; };
    const std::int64_t end = std::min(left.end(), right.end());
    return firstCut(left, right, anySeries).value_or((right.first() + end) / 2);
}
