#include "AudioPoolPlayer.h"

#include <QCoreApplication>
#include <QPointer>

namespace QMMultiMedia {

AudioPoolPlayer::AudioPoolPlayer()
    : m_pool(new AudioPlayersPool(-1, QCoreApplication::instance()))
{
}

AudioPoolPlayer *AudioPoolPlayer::instance()
{
    // The pool goes with the application, this handle with the process.
    static AudioPoolPlayer player;
    return &player;
}

void AudioPoolPlayer::setVolume(int volume)
{
    if (m_pool) {
        m_pool->setVolume(volume);
    }
}

void AudioPoolPlayer::play(const QString &path)
{
    if (m_pool) {
        m_pool->play(path);
    }
}

}
