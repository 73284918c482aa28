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

bool isPlain(const Seam::Window &window)
{
    return window.known && window.sequence == Seam::Window::Sequence::OnlyLong;
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

std::int64_t Seam::chooseCut(const PacketRun &left, const PacketRun &right)
{
    const std::int64_t first = right.first() + 1;
    const std::int64_t end = std::min(left.end(), right.end());
    std::int64_t agreed = end;
    for (std::int64_t cut = first; cut < end; ++cut) {
        const Window leftBefore = readWindow(left.at(cut - 1));
        const Window leftAfter = readWindow(left.at(cut));
        const bool agree = leftBefore.known && leftAfter.known
            && leftBefore == readWindow(right.at(cut - 1))
            && leftAfter == readWindow(right.at(cut));
        if (agree && isPlain(leftBefore) && isPlain(leftAfter)
            && leftBefore.shape == leftAfter.shape) {
            return cut;
        }
        if (agree && agreed == end) {
            agreed = cut;
        }
    }
    return agreed < end ? agreed : (right.first() + end) / 2;
}
