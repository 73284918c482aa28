#include "PlayerEngine.h"

#include <algorithm>
#include <cmath>
#include <system_error>
#include <thread>

namespace {

constexpr int LowestRate = 8000;
constexpr int HighestRate = 192000;
constexpr int UsualRate = 48000;
constexpr std::size_t BlockSamples = 4096;
constexpr double RingSeconds = 0.4;
constexpr std::chrono::milliseconds PollInterval {20};
/// A server that hasn't answered for so long won't: the sound has ended.
constexpr std::chrono::seconds Patience {5};

int deviceRate(int sourceRate)
{
    return sourceRate >= LowestRate && sourceRate <= HighestRate ? sourceRate : UsualRate;
}

}

PlayerEngine::PlayerEngine(std::unique_ptr<SoundSource> source)
    : m_rate(deviceRate(source->sampleRate()))
    , m_channels(source->channels())
    , m_duration(source->duration())
    , m_decoder(std::move(source), {m_rate, ClientSample::Float})
{
}

bool PlayerEngine::play()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_threadRuns) {
        m_ring.resize(2 * static_cast<std::size_t>(m_rate * RingSeconds));
        try {
            std::thread([engine = shared_from_this()] { engine->run(); }).detach();
        } catch (const std::system_error &) {
            return false;
        }
        m_threadRuns = true;
    }
    m_playing = true;
    m_releases = false;
    m_waitingSince = Clock::now();
    m_changed.notify_all();
    return true;
}

void PlayerEngine::pause()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_playing = false;
    m_framesHeard = m_framesPlayed; // what the device still holds sounds on
    m_changed.notify_all();
}

void PlayerEngine::stop()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_playing = false;
    m_releases = true;
    m_changed.notify_all();
}

void PlayerEngine::quit()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_playing = false;
    m_quits = true;
    m_changed.notify_all();
}

bool PlayerEngine::isPlaying() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_playing && Clock::now() - m_waitingSince > Patience) {
        m_playing = false;
    }
    return m_playing;
}

double PlayerEngine::currentTime() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_seekPending) {
        return m_seekTo;
    }
    const qint64 heard = std::max(m_framesHeard, m_framesPlayed + m_silentFrames - m_latencyFrames);
    const double time = m_baseTime + static_cast<double>(std::min(heard, m_framesPlayed)) / m_rate;
    return m_hasLooped ? std::fmod(time, m_duration) : time;
}

void PlayerEngine::setCurrentTime(double seconds)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const double highest = m_duration > 0.0 ? m_duration : seconds;
    m_seekTo = std::isfinite(seconds) ? std::clamp(seconds, 0.0, std::max(highest, 0.0)) : 0.0;
    m_seekPending = true;
    clearRing();
    m_changed.notify_all();
}

void PlayerEngine::setVolume(float volume)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_volume = std::clamp(volume, 0.0F, 1.0F);
}

void PlayerEngine::setPan(float pan)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_pan = std::clamp(pan, -1.0F, 1.0F);
}

void PlayerEngine::setLoops(int loops)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_loops = loops;
}

void PlayerEngine::fill(float *samples, int frames)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_waitingSince = Clock::now();
    const float wanted[2]
        = {m_volume * std::min(1.0F, 1.0F - m_pan), m_volume * std::min(1.0F, 1.0F + m_pan)};
    const int available = m_playing ? std::min(frames, static_cast<int>(m_ringSize / 2)) : 0;
    if (m_framesPlayed == 0) {
        std::copy(wanted, wanted + 2, m_gains);
    }
    // A change of volume is spread over the block: a step would click.
    const auto count = static_cast<float>(std::max(available, 1));
    const float steps[2] = {(wanted[0] - m_gains[0]) / count, (wanted[1] - m_gains[1]) / count};
    for (int i = 0; i < available; ++i) {
        for (int side = 0; side < 2; ++side) {
            m_gains[side] += steps[side];
            samples[2 * i + side] = m_ring[m_ringBegin] * m_gains[side];
            m_ringBegin = m_ringBegin + 1 == m_ring.size() ? 0 : m_ringBegin + 1;
        }
    }
    m_gains[0] = wanted[0];
    m_gains[1] = wanted[1];
    const auto played = static_cast<std::size_t>(available);
    std::fill(samples + 2 * played, samples + 2 * static_cast<std::size_t>(frames), 0.0F);
    m_ringSize -= 2 * played;
    m_framesPlayed += available;
    if (m_dataEnded && m_ringSize == 0) {
        m_silentFrames += frames - available;
    }
    m_changed.notify_all();
}

void PlayerEngine::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_quits) {
        if (!needsWork()) {
            if (m_hasDevice && m_playing) {
                m_changed.wait_for(lock, PollInterval);
            } else {
                m_changed.wait(lock);
            }
        }
        if (m_quits || (m_releases && m_hasDevice)) {
            closeDevice(lock);
        } else if (m_seekPending) {
            seek(lock);
        } else if (m_playing && !m_hasDevice) {
            openDevice(lock);
        } else if (m_playing) {
            decode(lock);
            finishIfHeard();
        }
        watchDevice(lock);
    }
    closeDevice(lock);
}

bool PlayerEngine::needsWork() const
{
    const bool hasRoom = m_ring.size() - m_ringSize >= BlockSamples;
    return m_quits || m_seekPending || (m_releases && m_hasDevice) || (m_playing && !m_hasDevice)
        || (m_playing && !m_dataEnded && hasRoom) || (m_hasDevice && m_playing == m_devicePaused);
}

void PlayerEngine::openDevice(std::unique_lock<std::mutex> &lock)
{
    // The first samples are there before the device asks for them.
    decode(lock);
    lock.unlock();
    std::unique_ptr<SoundDevice> device = SoundDevice::open(m_rate, this);
    lock.lock();
    m_device = std::move(device);
    m_hasDevice = m_device != nullptr;
    m_devicePaused = true;
    m_latencyFrames = m_hasDevice ? m_device->latencyFrames() : 0;
    m_waitingSince = Clock::now();
    if (!m_hasDevice) {
        m_playing = false;
    }
    m_releases = m_releases || !m_playing; // it may have taken too long
}

void PlayerEngine::closeDevice(std::unique_lock<std::mutex> &lock)
{
    std::unique_ptr<SoundDevice> device = std::move(m_device);
    m_hasDevice = false;
    m_releases = false;
    lock.unlock();
    device.reset(); // waits for fill(), which takes the lock
    lock.lock();
}

void PlayerEngine::seek(std::unique_lock<std::mutex> &lock)
{
    const double target = m_seekTo;
    lock.unlock();
    const bool done = m_decoder.seek(target);
    lock.lock();
    if (m_seekTo == target) {
        m_seekPending = false;
        m_baseTime = done ? target : m_baseTime;
        clearRing();
    }
}

void PlayerEngine::decode(std::unique_lock<std::mutex> &lock)
{
    if (m_dataEnded || m_seekPending || m_ring.size() - m_ringSize < BlockSamples) {
        return;
    }
    float samples[BlockSamples];
    lock.unlock();
    const int bytes = m_decoder.read(reinterpret_cast<char *>(samples), sizeof(samples));
    lock.lock();
    if (m_seekPending) {
        return; // what was read is no longer wanted
    }
    const std::size_t count = static_cast<std::size_t>(bytes) / sizeof(float);
    for (std::size_t i = 0; i < count; ++i) {
        m_ring[(m_ringBegin + m_ringSize + i) % m_ring.size()] = samples[i];
    }
    m_ringSize += count;
    if (count < BlockSamples) {
        reachEnd(lock);
    }
}

void PlayerEngine::reachEnd(std::unique_lock<std::mutex> &lock)
{
    m_dataEnded = true;
    if (m_loops == 0 || m_duration <= 0.0) {
        return;
    }
    lock.unlock();
    const bool again = m_decoder.seek(0.0);
    lock.lock();
    if (again && !m_seekPending) {
        m_loops -= m_loops > 0 ? 1 : 0;
        m_hasLooped = true;
        m_dataEnded = false;
    }
}

void PlayerEngine::finishIfHeard()
{
    if (m_dataEnded && m_ringSize == 0 && m_silentFrames >= m_latencyFrames && !m_seekPending) {
        m_playing = false;
        m_releases = true;
        m_seekTo = 0.0;
        m_seekPending = true;
    }
}

/// Keeps the device in step with the state, and notices its loss.
void PlayerEngine::watchDevice(std::unique_lock<std::mutex> &lock)
{
    if (!m_hasDevice) {
        return;
    }
    if (m_playing && (m_device->isLost() || Clock::now() - m_waitingSince > Patience)) {
        m_playing = false;
        m_releases = true;
    }
    if (m_playing == m_devicePaused) {
        m_devicePaused = !m_playing;
        m_waitingSince = Clock::now();
        const bool paused = m_devicePaused;
        lock.unlock(); // the library holds a lock of its own while it calls fill()
        m_device->setPaused(paused);
        lock.lock();
    }
}

void PlayerEngine::clearRing()
{
    m_ringBegin = 0;
    m_ringSize = 0;
    m_framesPlayed = 0;
    m_framesHeard = 0;
    m_silentFrames = 0;
    m_dataEnded = false;
    m_hasLooped = false;
}
