#include "NativeAudioPlayer.h"

#include "NativeAudioPlayerInternal.h"

namespace QMMultiMedia {

NativeAudioPlayer::NativeAudioPlayer(QObject *parent)
    : QObject(parent)
    , m_internal(new NativeAudioPlayerInternal(this))
{
    connect(m_internal, &NativeAudioPlayerInternal::finished, this, &NativeAudioPlayer::finished);
    connect(m_internal, &NativeAudioPlayerInternal::positionChanged, this,
        &NativeAudioPlayer::positionChanged);
}

NativeAudioPlayer::~NativeAudioPlayer() = default;

void NativeAudioPlayer::setMedia(const QString &path)
{
    m_fileName = path;
    m_internal->setMedia(path);
}

void NativeAudioPlayer::play()
{
    m_internal->play();
}

void NativeAudioPlayer::play(const QString &path)
{
    m_fileName = path;
    m_internal->play(path);
}

void NativeAudioPlayer::stop()
{
    m_internal->stop();
}

void NativeAudioPlayer::pause()
{
    m_internal->pause();
}

bool NativeAudioPlayer::isPlaying() const
{
    return m_internal->isPlaying();
}

bool NativeAudioPlayer::isPaused() const
{
    return m_internal->isPaused();
}

bool NativeAudioPlayer::isStopped() const
{
    return m_internal->isStopped();
}

qint64 NativeAudioPlayer::duration() const
{
    return m_internal->duration();
}

qint64 NativeAudioPlayer::position() const
{
    return m_internal->position();
}

void NativeAudioPlayer::setPosition(long long ms)
{
    m_internal->setPosition(ms);
}

void NativeAudioPlayer::setBalance(float balance)
{
    m_internal->setBalance(balance);
}

int NativeAudioPlayer::numberOfChannels() const
{
    return m_internal->numberOfChannels();
}

QString NativeAudioPlayer::fileName() const
{
    return m_fileName;
}

void NativeAudioPlayer::setVolume(double volume)
{
    m_internal->setVolume(static_cast<int>(volume));
}

double NativeAudioPlayer::volume() const
{
    return m_internal->volume();
}

void NativeAudioPlayer::setMuted(bool muted)
{
    if (muted) {
        m_savedVolume = volume();
        setVolume(0.0);
    } else {
        setVolume(m_savedVolume);
    }
}

bool NativeAudioPlayer::isMuted() const
{
    return volume() < 1.0;
}

}
