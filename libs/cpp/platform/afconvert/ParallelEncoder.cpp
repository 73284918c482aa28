#include "ParallelEncoder.h"

#include "ConvertError.h"
#include "Seam.h"
#include "WavSource.h"
#include <algorithm>
#include <system_error>
#include <utility>

namespace {

// Packets between two looks at the cores: a few milliseconds.
constexpr std::int64_t lookInterval = 16;

/// A little more than the packets need on average.
std::size_t expectedPacketBytes(const AacFormat &format)
{
    constexpr int margin = 16;
    return static_cast<std::size_t>(format.bitRate) * packetFrames
        / static_cast<std::size_t>(format.sampleRate) / 8
        + margin;
}

}

ParallelEncoder::ParallelEncoder(const WavSource &source, const AacFormat &format,
    std::vector<std::int64_t> segmentStarts, int threads)
    : m_source(source)
    , m_format(format)
    , m_starts(std::move(segmentStarts))
    , m_packets(packetCount(source.frames()))
    , m_threadCount(std::min(static_cast<std::size_t>(std::max(threads, 1)), m_starts.size()))
    , m_spread(m_threadCount)
{
}

ParallelEncoder::~ParallelEncoder()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stop = true;
    }
    m_changed.notify_all();
    for (std::thread &thread : m_threads) {
        thread.join();
    }
}

void ParallelEncoder::encode(const AacEncoder::Sink &sink)
{
    while (m_threads.size() < m_threadCount) {
        try {
            m_threads.emplace_back(&ParallelEncoder::work, this, m_threads.size());
        } catch (const std::system_error &) {
            if (m_threads.empty()) {
                throw;
            }
            break; // fewer will do
        }
    }
    PacketRun left = collect(0);
    std::int64_t from = 0;
    const auto give = [&sink, &left, &from](std::int64_t end) {
        for (; from < end; ++from) {
            const PacketRun::Packet packet = left.at(from);
            sink(packet.bytes, packet.count);
        }
    };
    for (std::size_t segment = 1; segment < m_starts.size(); ++segment) {
        PacketRun right = collect(segment);
        give(Seam::chooseCut(left, right));
        left = std::move(right);
    }
    give(m_packets);
}

PacketRun ParallelEncoder::collect(std::size_t segment)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(
        lock, [this, segment] { return m_failure != nullptr || m_finished.count(segment) > 0; });
    if (m_failure != nullptr) {
        std::rethrow_exception(m_failure);
    }
    PacketRun run = std::move(m_finished.extract(segment).mapped());
    m_heads.erase(segment);
    ++m_collected;
    m_changed.notify_all();
    return run;
}

void ParallelEncoder::work(std::size_t thread)
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        // What is finished waits for its turn: threads that are ahead stop for those behind.
        m_changed.wait(lock, [this] {
            return m_stop || m_next == m_starts.size() || m_next <= m_collected + m_threadCount;
        });
        if (m_stop || m_next == m_starts.size()) {
            return;
        }
        const std::size_t segment = m_next++;
        lock.unlock();
        std::exception_ptr failure;
        try {
            encodeSegment(segment, thread);
        } catch (...) {
            failure = std::current_exception();
        }
        m_spread.leave(thread);
        lock.lock();
        if (failure != nullptr) {
            m_failure = m_failure == nullptr ? failure : m_failure;
            m_stop = true;
        }
        m_changed.notify_all();
    }
}

void ParallelEncoder::encodeSegment(std::size_t segment, std::size_t thread)
{
    const std::int64_t first = m_starts[segment];
    const std::int64_t end = segment + 1 == m_starts.size()
        ? m_packets
        : std::min(m_starts[segment + 1] + Seam::overlapPackets, m_packets);
    const auto packets = static_cast<std::size_t>(end - first);
    PacketRun run(first);
    run.reserve(packets, packets * expectedPacketBytes(m_format));
    AacEncoder encoder(m_format);
    const auto add = [&](const std::uint8_t *bytes, std::size_t count) {
        if (m_stop) {
            throw ConvertError("the conversion was given up");
        }
        if (run.end() % lookInterval == 0) {
            m_spread.look(thread);
        }
        run.add(bytes, count);
        if (run.end() == first + Seam::overlapPackets) {
            const std::lock_guard lock(m_mutex);
            m_heads.emplace(segment, run);
        }
        if (fitsNext(segment, run)) {
            encoder.stop();
        }
    };
    encoder.encode(m_source, first, end, add);
    const std::lock_guard lock(m_mutex);
    m_finished.emplace(segment, std::move(run));
}

/// Whether a run is far enough into the next segment for a joint at the best place. The next
/// segment was mostly begun long before; if not, the run takes all the packets of the overlap.
bool ParallelEncoder::fitsNext(std::size_t segment, const PacketRun &run)
{
    if (segment + 1 == m_starts.size() || run.end() <= m_starts[segment + 1] + 1) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    const auto head = m_heads.find(segment + 1);
    return head != m_heads.end() && Seam::plainCut(run, head->second).has_value();
}
