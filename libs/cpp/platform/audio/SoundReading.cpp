#include "SoundReading.h"

#include "KeptRoom.h"
#include "KeptSounds.h"
#include <algorithm>
#include <cstring>
#include <ctime>
#include <exception>
#include <limits>
#include <sys/resource.h>

namespace {

/// How many chunks a reading that isn't kept is ahead.
constexpr std::size_t QueueChunks = 8;

/// Processor time of a tail: about that by which one encoder is done before the other.
constexpr double TailSeconds = 0.08;

/// How much processor time the calling thread will still need, going by what it has needed.
class Pace
{
public:
    explicit Pace(double bytes)
        : m_bytes(bytes)
        , m_start(used())
    {
    }

    /// Unlimited as long as nothing is done.
    double secondsLeft(double done) const
    {
        return done > 0 ? (used() - m_start) * (m_bytes - done) / done
                        : std::numeric_limits<double>::infinity();
    }

private:
    static double used()
    {
        timespec time {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    }

    double m_bytes;
    double m_start;
};

}

SoundReading::SoundReading(const ClientFormat &format)
    : m_format(format)
{
}

SoundReading::~SoundReading()
{
    KeptRoom::instance().release(m_reserved);
}

std::shared_ptr<SoundReading> SoundReading::start(
    std::unique_ptr<SoundSource> source, const ClientFormat &format)
{
    std::shared_ptr<SoundReading> reading(new SoundReading(format));
    reading->m_key = source->file().key();
    reading->m_hasKey = true;
    reading->m_hasReader = true;
    reading->m_keeps = reading->mayFit(*source);
    reading->m_thread = std::thread([reading, opened = std::move(source)]() mutable {
        reading->runSafely([&] { reading->run(std::move(opened)); });
    });
    return reading;
}

std::shared_ptr<SoundReading> SoundReading::startHint(const QUrl &url, const ClientFormat &format)
{
    std::shared_ptr<SoundReading> reading(new SoundReading(format));
    reading->m_isHint = true;
    std::thread([reading, url] { reading->runSafely([&] { reading->runHint(url); }); }).detach();
    return reading;
}

bool SoundReading::matches(const FileKey &key, const ClientFormat &format) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_hasKey && m_key == key && m_format == format;
}

bool SoundReading::provesReadable(const FileKey &key) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_hasKey && m_key == key && (m_whole || !m_chunks.empty());
}

bool SoundReading::isWhole() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_whole;
}

bool SoundReading::isUseless() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return isUselessNow();
}

bool SoundReading::beginPass(bool last)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (isUselessNow()) {
        return false;
    }
    m_readChunk = 0;
    m_readOffset = 0;
    m_hasReader = true;
    m_dropsRead = last;
    KeptRoom::instance().wake();
    return true;
}

OSStatus SoundReading::failure() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_failure;
}

void SoundReading::stopKeeping()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_dropsRead = true;
    m_keeps = false;
    m_whole = false;
}

void SoundReading::cancel()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_cancelled = true;
    if (m_decoder != nullptr) {
        m_decoder->source().cancel();
    }
    m_changed.notify_all();
    KeptRoom::instance().wake();
}

void SoundReading::join()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

int SoundReading::read(char *out, int bytes)
{
    int filled = 0;
    std::unique_lock<std::mutex> lock(m_mutex);
    while (filled < bytes) {
        m_changed.wait(
            lock, [this] { return m_readChunk < m_chunks.size() || m_ended || m_cancelled; });
        if (m_cancelled || m_readChunk >= m_chunks.size()) {
            break;
        }
        // Only the reader takes a chunk away that isn't read yet, so the copy needs no lock.
        const Chunk &chunk = m_chunks[m_readChunk];
        const int count = std::min(bytes - filled, chunk.size - m_readOffset);
        const char *from = chunk.data.get() + m_readOffset;
        lock.unlock();
        std::memcpy(out + filled, from, static_cast<std::size_t>(count));
        lock.lock();
        filled += count;
        m_readOffset += count;
        if (m_readOffset == m_chunks[m_readChunk].size) {
            ++m_readChunk;
            m_readOffset = 0;
            dropRead();
        }
    }
    return filled;
}

/// Lets go of the chunks behind the reader, unless they are kept for another pass. Under the lock.
void SoundReading::dropRead()
{
    if (m_keeps && !m_dropsRead) {
        return;
    }
    while (m_readChunk > 0) {
        if (m_reserved > 0) {
            --m_reserved;
            KeptRoom::instance().release();
        }
        if (m_keeps || !m_ended) {
            KeptRoom::instance().putBy(std::move(m_chunks.front().data));
        }
        m_chunks.pop_front();
        --m_readChunk;
    }
    m_changed.notify_all();
}

/// The whole work of a thread: what is thrown on the way ends the reading, not the program.
template <typename Work> void SoundReading::runSafely(Work work)
{
    try {
        work();
    } catch (const std::exception &) { // no memory before there was a decoder
        fail(kAudioMemoryFullError);
        end(false);
    }
}

/// Decodes beside the encoders, and the tail with what they leave of the cores: they don't end at
/// the same time, and the core of the first one is to have some work then.
void SoundReading::runHint(const QUrl &url)
{
    const auto decoder = openHint(url);
    if (decoder == nullptr) {
        return;
    }
    Progress progress = decode(*decoder, Until::Tail);
    if (progress == Progress::Interrupted) {
        const auto decodeTail = [this, &decoder, &progress] {
            constexpr int leastPriority = 19;
            ::setpriority(PRIO_PROCESS, 0, leastPriority); // of this thread alone
            progress = decode(*decoder, Until::Reader);
        };
        try {
            // A thread can't go back to its priority: this one takes over.
            std::thread(decodeTail).join();
        } catch (const std::exception &) { // then it does it all
        }
    }
    if (progress == Progress::Interrupted) {
        progress = decode(*decoder, Until::End);
    }
    finish(*decoder, progress);
}

/// Null if the file isn't to be decoded ahead, or not any more.
std::unique_ptr<SoundDecoder> SoundReading::openHint(const QUrl &url)
{
    OSStatus status = noErr;
    std::unique_ptr<SoundSource> source = SoundSource::open(url, &status);
    const bool wanted = source && mayFit(*source);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!wanted || m_cancelled) {
            m_ended = true;
            return nullptr;
        }
        m_key = source->file().key();
        m_hasKey = true;
    }
    return attach(std::move(source));
}

bool SoundReading::mayFit(const SoundSource &source) const
{
    return expectedBytes(source) + KeptRoom::BlockBytes <= static_cast<double>(KeptRoom::Limit);
}

double SoundReading::expectedBytes(const SoundSource &source) const
{
    return source.duration() * m_format.rate * bytesPerFrame(m_format.sample);
}

void SoundReading::run(std::unique_ptr<SoundSource> source)
{
    const auto decoder = attach(std::move(source));
    finish(*decoder, decode(*decoder, Until::End));
}

/// Makes the decoder, so that it can be cancelled from now on.
std::unique_ptr<SoundDecoder> SoundReading::attach(std::unique_ptr<SoundSource> source)
{
    auto decoder = std::make_unique<SoundDecoder>(std::move(source), m_format);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_decoder = decoder.get();
    if (m_cancelled) {
        decoder->source().cancel();
    }
    return decoder;
}

void SoundReading::finish(SoundDecoder &decoder, Progress progress)
{
    end(progress == Progress::Complete && decoder.source().file().isUnchanged());
}

void SoundReading::end(bool complete)
{
    bool isLast = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_decoder = nullptr;
        m_ended = true;
        m_whole = complete && m_keeps && !m_cancelled;
        if (!m_hasReader && (m_cancelled || m_failure != noErr)) {
            m_chunks.clear();
            KeptRoom::instance().release(m_reserved);
            m_reserved = 0;
        }
        isLast = m_isHint || !m_keeps;
        m_changed.notify_all();
    }
    if (isLast) {
        KeptRoom::instance().freeSpare(); // nothing else is going to be read soon
    }
}

/// Before end(): whoever sees the end has to see this as well.
void SoundReading::fail(OSStatus status)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_failure = status;
}

/// Decodes on, from where the last one ended.
SoundReading::Progress SoundReading::decode(SoundDecoder &decoder, Until until)
{
    try {
        return decodeChunks(decoder, until);
    } catch (const std::exception &) { // no memory; the decoder lives on until finish()
        fail(kAudioMemoryFullError);
        return Progress::Failed;
    }
}

SoundReading::Progress SoundReading::decodeChunks(SoundDecoder &decoder, Until until)
{
    const Pace pace(expectedBytes(decoder.source()));
    double done = 0;
    for (;;) {
        if (until != Until::End) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_hasReader || (until == Until::Tail && pace.secondsLeft(done) < TailSeconds)) {
                return Progress::Interrupted;
            }
        }
        Chunk chunk {KeptRoom::instance().take(), 0};
        chunk.size = decoder.read(chunk.data.get(), KeptRoom::BlockBytes);
        done += chunk.size;
        const bool last = chunk.size < KeptRoom::BlockBytes;
        if (chunk.size > 0 && !push(std::move(chunk))) {
            return Progress::Failed;
        }
        if (last) {
            const OSStatus failure = decoder.source().failure();
            if (failure != noErr) {
                fail(failure);
            }
            const bool isEnd = failure == noErr && !decoder.source().file().isCancelled();
            return isEnd ? Progress::Complete : Progress::Failed;
        }
    }
}

/// Appends a chunk; false if the reading is to end.
bool SoundReading::push(Chunk chunk)
{
    const bool reserved = makeRoom();
    std::unique_lock<std::mutex> lock(m_mutex);
    if (reserved) {
        ++m_reserved;
    } else {
        if (!m_hasReader) {
            m_cancelled = true; // before anybody can begin to read what will never be whole
            return false;
        }
        m_keeps = false;
        dropRead();
        m_changed.wait(lock, [this] { return m_cancelled || m_chunks.size() < QueueChunks; });
    }
    if (m_cancelled) {
        return false;
    }
    m_chunks.push_back(std::move(chunk));
    m_changed.notify_all();
    return true;
}

/// Reserves the room of a chunk that is to be kept; false if it isn't. Ahead of any reader it waits
/// for the room that others still need.
bool SoundReading::makeRoom()
{
    KeptRoom &room = KeptRoom::instance();
    for (;;) {
        const std::uint64_t seen = room.changes();
        bool waits = false;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (!m_keeps || m_cancelled) {
                return false;
            }
            waits = m_isHint && !m_hasReader
                && (m_reserved + 1) * KeptRoom::BlockBytes <= KeptRoom::Limit;
        }
        if (room.reserve()) {
            return true;
        }
        if (waits) {
            room.waitForChange(seen);
        } else if (m_isHint || !KeptSounds::instance().forgetOldest()) {
            return false;
        }
    }
}
