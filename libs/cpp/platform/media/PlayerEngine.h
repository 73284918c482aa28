#pragma once

#include "SoundDecoder.h"
#include "SoundDevice.h"
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

/// The work behind AVAudioPlayer: one thread that decodes and holds the sound device, started by
/// the first play().
///
/// The thread shares the engine's ownership and nobody waits for it: it may hang in the sound
/// server or in a file. All functions return at once.
class PlayerEngine : public SoundDevice::Client, public std::enable_shared_from_this<PlayerEngine>
{
public:
    explicit PlayerEngine(std::unique_ptr<SoundSource> source);

    double duration() const { return m_duration; }
    int channels() const { return m_channels; }

    bool play();
    void pause();
    void stop();
    void quit();
    bool isPlaying() const;
    double currentTime() const;
    void setCurrentTime(double seconds);
    void setVolume(float volume);
    void setPan(float pan);
    void setLoops(int loops);

    void fill(float *samples, int frames) override;

private:
    using Clock = std::chrono::steady_clock;

    void run();
    bool needsWork() const;
    void openDevice(std::unique_lock<std::mutex> &lock);
    void closeDevice(std::unique_lock<std::mutex> &lock);
    void seek(std::unique_lock<std::mutex> &lock);
    void decode(std::unique_lock<std::mutex> &lock);
    void finishIfHeard();
    void watchDevice(std::unique_lock<std::mutex> &lock);
    void reachEnd(std::unique_lock<std::mutex> &lock);
    void clearRing();

    const int m_rate;
    const int m_channels;
    const double m_duration;
    SoundDecoder m_decoder; ///< the thread's alone

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_threadRuns = false;
    bool m_quits = false;
    mutable bool m_playing = false;
    bool m_releases = false; ///< the device is to be closed
    bool m_seekPending = false;
    double m_seekTo = 0.0;
    int m_loops = 0;
    float m_volume = 1.0F;
    float m_pan = 0.0F;
    float m_gains[2] = {1.0F, 1.0F}; ///< of the last frame played

    std::unique_ptr<SoundDevice> m_device; ///< the thread's alone
    int m_latencyFrames = 0;
    bool m_hasDevice = false;
    bool m_devicePaused = true;
    Clock::time_point m_waitingSince; ///< when the device was last heard of, or play() began

    std::vector<float> m_ring;
    std::size_t m_ringBegin = 0; ///< in samples
    std::size_t m_ringSize = 0; ///< in samples
    double m_baseTime = 0.0; ///< time of the first frame since the last seek
    qint64 m_framesPlayed = 0; ///< given to the device since then
    qint64 m_framesHeard = 0; ///< at least, since then
    qint64 m_silentFrames = 0; ///< given after the end of the data
    bool m_dataEnded = false;
    bool m_hasLooped = false; ///< since the last seek
};
