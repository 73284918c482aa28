#pragma once

#include "KeptRoom.h"
#include "SoundDecoder.h"
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <QUrl>
#include <thread>

/// One decoding of a file on a thread of its own, ahead of the one who reads it.
///
/// Either a short queue that the decoder fills as it is emptied, or, as long as there is room for
/// it, all samples are kept so that they can be read again. The room is shared by all readings.
class SoundReading : public std::enable_shared_from_this<SoundReading>
{
public:
    /// Starts decoding a file that is open. The thread belongs to the reading: end it with cancel()
    /// and join().
    static std::shared_ptr<SoundReading> start(
        std::unique_ptr<SoundSource> source, const ClientFormat &format);

    /// Starts decoding a file that nobody has opened yet; gives up if it can't be kept. Nobody ever
    /// waits for its thread.
    static std::shared_ptr<SoundReading> startHint(const QUrl &url, const ClientFormat &format);

    ~SoundReading();

    /// Whether it reads this state of this file in this format.
    bool matches(const FileKey &key, const ClientFormat &format) const;

    /// Whether it reads this state of this file in some format, and it has come to samples.
    bool provesReadable(const FileKey &key) const;

    /// Whether all samples are there and the file was the same from the beginning to the end.
    bool isWhole() const;

    /// Whether it ended without being whole, or will.
    bool isUseless() const;

    const ClientFormat &format() const { return m_format; }

    /// Begins a pass at the first sample; in the last one what was read is let go at once. False if
    /// it is useless.
    bool beginPass(bool last);

    /// Fills up to `bytes` bytes; waits for them unless the data ends or the reading is cancelled.
    int read(char *out, int bytes);

    /// An error code if the data ended before its time.
    OSStatus failure() const;

    /// What was read is let go at once from here on.
    void stopKeeping();

    /// Ends decoding soon; never waits.
    void cancel();

    /// Waits for the end of a thread that belongs to the reading.
    void join();

private:
    struct Chunk
    {
        KeptRoom::Block data;
        int size = 0;
    };

    explicit SoundReading(const ClientFormat &format);
    Q_DISABLE_COPY(SoundReading)

    /// When decoding ends before the end of the sound.
    enum class Until
    {
        End, ///< not at all
        Reader, ///< somebody reads
        Tail ///< somebody reads, or little is left
    };

    enum class Progress
    {
        Complete,
        Interrupted, ///< by a reader, or the tail has come
        Failed ///< or cancelled, or there was no room
    };

    template <typename Work> void runSafely(Work work);
    void run(std::unique_ptr<SoundSource> source);
    void runHint(const QUrl &url);
    std::unique_ptr<SoundDecoder> openHint(const QUrl &url);
    std::unique_ptr<SoundDecoder> attach(std::unique_ptr<SoundSource> source);
    Progress decode(SoundDecoder &decoder, Until until);
    Progress decodeChunks(SoundDecoder &decoder, Until until);
    void end(bool complete);
    void fail(OSStatus status);
    void finish(SoundDecoder &decoder, Progress progress);
    bool mayFit(const SoundSource &source) const;
    double expectedBytes(const SoundSource &source) const;
    bool push(Chunk chunk);
    bool makeRoom();
    void dropRead();
    bool isUselessNow() const { return m_cancelled || m_failure != noErr || (m_ended && !m_whole); }

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    const ClientFormat m_format;
    FileKey m_key;
    bool m_hasKey = false;
    bool m_isHint = false;
    SoundDecoder *m_decoder = nullptr; ///< while the thread decodes
    std::deque<Chunk> m_chunks;
    std::size_t m_readChunk = 0; ///< index of the chunk that is read now
    int m_readOffset = 0;
    qint64 m_reserved = 0; ///< chunks that are counted as kept
    bool m_keeps = true;
    bool m_hasReader = false;
    bool m_dropsRead = false;
    bool m_ended = false;
    bool m_whole = false;
    bool m_cancelled = false;
    OSStatus m_failure = noErr;
    std::thread m_thread;
};
