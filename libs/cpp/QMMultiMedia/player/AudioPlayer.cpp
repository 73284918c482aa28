#include "AudioPlayer.h"

#include "App.h"
#include "Literals.h"
#include "NativeAudioPlayer.h"
#include <limits>
#include <QCoreApplication>
#include <QPointer>

namespace QMMultiMedia {

namespace {

QString muteKey()
{
    return u"/SoundMute"_qs;
}

QString volumeKey()
{
    return u"/SoundVolume"_qs;
}

}

AudioPlayer::AudioPlayer()
    : m_player(new NativeAudioPlayer(this))
{
    m_loopTimer.setSingleShot(true);
    m_loopTimer.setTimerType(Qt::PreciseTimer);
    connect(m_player, &NativeAudioPlayer::finished, this, &AudioPlayer::finished);
    connect(m_player, &NativeAudioPlayer::positionChanged, this, &AudioPlayer::positionChanged);
    connect(&m_loopTimer, &QTimer::timeout, this, &AudioPlayer::loopedPlay);
}

AudioPlayer *AudioPlayer::instance()
{
    static QPointer<AudioPlayer> player;
    if (!player) {
        player = new AudioPlayer;
        player->setParent(QCoreApplication::instance());
        player->setMuted(QMWidgets::App::settingsValue(muteKey(), false).toBool());
        player->setVolume(QMWidgets::App::settingsValue(volumeKey(), 0.5).toDouble());
    }
    return player;
}

AudioPlayer::~AudioPlayer()
{
    AudioPlayer::slotSetAboutToQuit();
}

void AudioPlayer::play()
{
    m_player->play();
}

void AudioPlayer::play(const QString &path, bool looped)
{
    m_loopTimer.stop();
    m_player->setMedia(path);
    if (looped) {
        m_stopLoop = false;
        startLoopTimer();
    }
    m_player->stop();
    m_player->play();
}

void AudioPlayer::setMedia(const QString &path)
{
    m_loopTimer.stop();
    m_player->setMedia(path);
}

void AudioPlayer::stop()
{
    const bool wasActive = isPlaying() || isPaused();
    slotStop();
    if (wasActive) {
        Q_EMIT stopped();
    }
}

void AudioPlayer::slotStop()
{
    m_stopLoop = true;
    m_loopTimer.stop();
    m_player->stop();
}

void AudioPlayer::pause()
{
    m_player->pause();
}

qint64 AudioPlayer::duration() const
{
    return m_player->duration();
}

qint64 AudioPlayer::remainingDuration() const
{
    return duration() - position();
}

qint64 AudioPlayer::position() const
{
    return m_player->position();
}

void AudioPlayer::setPosition(long long ms)
{
    m_player->setPosition(ms);
}

bool AudioPlayer::isPlaying() const
{
    return m_player->isPlaying();
}

bool AudioPlayer::isStopped() const
{
    return m_player->isStopped();
}

bool AudioPlayer::isPaused() const
{
    return m_player->isPaused();
}

QString AudioPlayer::fileName() const
{
    return m_player->fileName();
}

bool AudioPlayer::isMuted() const
{
    return m_player->isMuted();
}

double AudioPlayer::volume() const
{
    return m_player->volume();
}

void AudioPlayer::setMuted(bool muted)
{
    m_player->setMuted(muted);
}

void AudioPlayer::setVolume(double volume)
{
    m_player->setVolume(volume);
}

void AudioPlayer::loopedPlay()
{
    if (!m_stopLoop) {
        startLoopTimer();
        m_player->stop();
        m_player->play();
    }
}

void AudioPlayer::slotSetAboutToQuit()
{
    if (!m_aboutToQuit) {
        QMWidgets::App::setSettingsValue(volumeKey(), volume());
        QMWidgets::App::setSettingsValue(muteKey(), isMuted());
    }
    m_aboutToQuit = true;
    slotStop();
}

void AudioPlayer::startLoopTimer()
{
    const qint64 length = duration();
    if (length > 0) {
        m_loopTimer.start(static_cast<int>(qMin<qint64>(length, std::numeric_limits<int>::max())));
    }
}

}
