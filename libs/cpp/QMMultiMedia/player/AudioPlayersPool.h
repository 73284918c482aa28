#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace QMMultiMedia {

class NativeAudioPlayer;

/// Plays short sounds side by side.
class AudioPlayersPool : public QObject
{
    Q_OBJECT

public:
    /// With maxPlayers below 1 there is no limit.
    explicit AudioPlayersPool(int maxPlayers, QObject *parent = nullptr);
    ~AudioPlayersPool() override;

    /// Plays the file; with all players busy the sound is dropped.
    void play(const QString &path);

    /// 0 to 100, for players made from now on.
    void setVolume(int volume);

    /// How many players there are.
    int count() const { return m_players.size(); }

private Q_SLOTS:
    void slotPlayerFinished();

private:
    Q_DISABLE_COPY(AudioPlayersPool)
    NativeAudioPlayer *createPlayer();
    NativeAudioPlayer *findFreePlayer();

    QList<NativeAudioPlayer *> m_players;
    int m_maxPlayers;
    int m_volume = 1;
};

}
