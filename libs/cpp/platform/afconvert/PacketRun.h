#pragma once

#include <cstdint>
#include <vector>

/// Successive packets of a stream.
class PacketRun
{
public:
    /// One packet; the bytes belong to the run.
    struct Packet
    {
        const std::uint8_t *bytes = nullptr;
        std::size_t count = 0;
    };

    /// An empty run that begins with the packet of this number.
    explicit PacketRun(std::int64_t first = 0)
        : m_first(first)
    {
    }

    /// Takes the memory for so many packets and bytes beforehand.
    void reserve(std::size_t packets, std::size_t bytes)
    {
        m_bytes.reserve(bytes);
        m_ends.reserve(packets);
    }

    void add(const std::uint8_t *bytes, std::size_t count)
    {
        m_bytes.insert(m_bytes.end(), bytes, bytes + count);
        m_ends.push_back(m_bytes.size());
    }

    std::int64_t first() const { return m_first; }
    std::int64_t end() const { return m_first + static_cast<std::int64_t>(m_ends.size()); }

    /// The packet of a number from first() to end() - 1.
    Packet at(std::int64_t number) const
    {
        const auto i = static_cast<std::size_t>(number - m_first);
        const std::size_t start = i == 0 ? 0 : m_ends[i - 1];
        return {m_bytes.data() + start, m_ends[i] - start};
    }

private:
    std::int64_t m_first;
    std::vector<std::uint8_t> m_bytes;
    std::vector<std::size_t> m_ends;
};
