#include "AudioPlayersPool.h"

#include "NativeAudioPlayer.h"

namespace QMMultiMedia {

AudioPlayersPool::AudioPlayersPool(int maxPlayers, QObject *parent)
    : QObject(parent)
    , m_maxPlayers(maxPlayers)
{
}

AudioPlayersPool::~AudioPlayersPool() = default;

void AudioPlayersPool::play(const QString &path)
{
    if (m_maxPlayers < 1) {
        NativeAudioPlayer *player = createPlayer();
        player->play(path);
        connect(player, &NativeAudioPlayer::finished, this, &AudioPlayersPool::slotPlayerFinished);
        if (!player->isPlaying()) {
            m_players.removeOne(player); // what can't be played never finishes
            player->deleteLater();
        }
    } else if (NativeAudioPlayer *player = findFreePlayer()) {
        player->play(path);
    }
}

void AudioPlayersPool::setVolume(int volume)
{
    m_volume = volume;
}

void AudioPlayersPool::slotPlayerFinished()
{
    if (auto *player = qobject_cast<NativeAudioPlayer *>(sender())) {
        m_players.removeOne(player);
        player->deleteLater();
    }
}

NativeAudioPlayer *AudioPlayersPool::createPlayer()
{
    auto *player = new NativeAudioPlayer(this);
    player->setVolume(m_volume);
    m_players << player;
    return player;
}

NativeAudioPlayer *AudioPlayersPool::findFreePlayer()
{
    if (m_players.size() < m_maxPlayers) {
        return createPlayer();
    }
    NativeAudioPlayer *found = nullptr;
    for (NativeAudioPlayer *player : qAsConst(m_players)) {
        found = player->isPlaying() ? found : player;
    }
    return found;
}

}
