#pragma once

#include "AacEncoder.h"
#include "CoreSpread.h"
#include "PacketRun.h"
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <exception>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

class WavSource;

/// Encodes one sound with several encoders at the same time, to one stream of packets.
///
/// The sound is cut into segments. Each is encoded by a fresh encoder that was brought into the
/// state of a running one, some packets beyond its end, so that the joint can be chosen where the
/// packets of both sides fit. Only a few segments are held at a time, however long the sound is.
class ParallelEncoder
{
public:
    /// Segments that begin with the packets of these numbers (see Segments). The source must
    /// outlive the object.
    ParallelEncoder(const WavSource &source, const AacFormat &format,
        std::vector<std::int64_t> segmentStarts, int threads);
    /// Ends the threads, whether or not all is encoded.
    ~ParallelEncoder();
    ParallelEncoder(const ParallelEncoder &) = delete;
    ParallelEncoder &operator=(const ParallelEncoder &) = delete;

    /// Gives all packets to sink, in order, on the calling thread. To be called once. Throws the
    /// first exception of an encoder or of sink.
    void encode(const AacEncoder::Sink &sink);

private:
    void work(std::size_t thread);
    void encodeSegment(std::size_t segment, std::size_t thread);
    PacketRun collect(std::size_t segment);
    bool fitsNext(std::size_t segment, const PacketRun &run);

    const WavSource &m_source;
    AacFormat m_format;
    std::vector<std::int64_t> m_starts;
    std::int64_t m_packets;
    std::size_t m_threadCount;
    CoreSpread m_spread;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::size_t m_next = 0; ///< segment that the next free thread takes
    std::size_t m_collected = 0; ///< segments that have left m_finished
    std::map<std::size_t, PacketRun> m_finished;
    std::map<std::size_t, PacketRun> m_heads; ///< first packets of segments, for those before them
    std::exception_ptr m_failure;
    std::atomic<bool> m_stop {false};
    std::vector<std::thread> m_threads;
};
