#pragma once

#include "AudioPlayersPool.h"
#include <QPointer>

namespace QMMultiMedia {

/// The application's pool of players, without a limit.
class AudioPoolPlayer
{
public:
    static AudioPoolPlayer *instance();

    /// 0 to 100, for sounds that begin from now on.
    void setVolume(int volume);
    void play(const QString &path);

private:
    Q_DISABLE_COPY(AudioPoolPlayer)
    AudioPoolPlayer();

    QPointer<AudioPlayersPool> m_pool;
};

}
