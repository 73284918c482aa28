#include "NativeAudioPlayerInternal.h"

#include "AVAudioPlayer.h"
#include "CFURL.h"
#include <algorithm>
#include <cmath>

namespace QMMultiMedia {

namespace {

constexpr int PollMs = 500;

}

NativeAudioPlayerInternal::NativeAudioPlayerInternal(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(PollMs);
    connect(&m_timer, &QTimer::timeout, this, &NativeAudioPlayerInternal::slotPositionChanged);
}

NativeAudioPlayerInternal::~NativeAudioPlayerInternal() = default;

void NativeAudioPlayerInternal::setMedia(const QString &path)
{
    if (m_player) {
        m_player->stop();
    }
    m_player = AVAudioPlayer::initWithContentsOfURL(
        CFURLCreateWithFileSystemPath(nullptr, path, CFURLPathStyle::kCFURLPOSIXPathStyle, false));
    if (m_player) {
        m_player->setPan(m_balance);
    }
}

void NativeAudioPlayerInternal::play()
{
    if (!m_player) {
        return;
    }
    m_player->setNumberOfLoops(0);
    m_player->setVolume(static_cast<float>(m_volume));
    m_player->play();
    m_timer.start();
    m_state = Playing;
}

void NativeAudioPlayerInternal::play(const QString &path)
{
    setMedia(path);
    play();
}

void NativeAudioPlayerInternal::stop()
{
    if (!m_player) {
        return;
    }
    m_timer.stop();
    m_player->stop();
    m_player->setCurrentTime(0.0);
    m_state = Stopped;
}

void NativeAudioPlayerInternal::pause()
{
    if (!m_player) {
        return;
    }
    m_player->pause();
    m_state = Paused;
}

bool NativeAudioPlayerInternal::isPlaying() const
{
    return m_player && m_player->isPlaying();
}

bool NativeAudioPlayerInternal::isPaused() const
{
    return m_state == Paused;
}

bool NativeAudioPlayerInternal::isStopped() const
{
    return m_state == Stopped;
}

qint64 NativeAudioPlayerInternal::duration() const
{
    return m_player ? static_cast<qint64>(m_player->duration() * 1000.0) : 0;
}

qint64 NativeAudioPlayerInternal::position() const
{
    return m_player ? std::lround(m_player->currentTime() * 1000.0) : 0;
}

void NativeAudioPlayerInternal::setPosition(long long ms)
{
    if (m_player) {
        m_player->setCurrentTime(static_cast<double>(ms) / 1000.0);
    }
}

void NativeAudioPlayerInternal::setBalance(float balance)
{
    m_balance = balance;
    if (m_player) {
        m_player->setPan(balance);
    }
}

int NativeAudioPlayerInternal::numberOfChannels() const
{
    return m_player ? m_player->numberOfChannels() : 0;
}

void NativeAudioPlayerInternal::setVolume(int volume)
{
    m_volume = std::clamp(volume, 0, 100) / 100.0;
    if (m_player) {
        m_player->setVolume(static_cast<float>(m_volume));
    }
}

int NativeAudioPlayerInternal::volume() const
{
    // Hundredths aren't exact: without rounding 29 would read as 28.
    return static_cast<int>(std::lround(m_volume * 100.0));
}

void NativeAudioPlayerInternal::slotPositionChanged()
{
    if (!m_player) {
        return;
    }
    if (m_player->isPlaying()) {
        Q_EMIT positionChanged(position());
        return;
    }
    if (m_state == Stopped || m_state == Paused) {
        return;
    }
    m_timer.stop();
    m_player.reset();
    Q_EMIT finished();
}

}
