#pragma once

#include <memory>
#include <QObject>
#include <QString>
#include <QTimer>

class AVAudioPlayer;

namespace QMMultiMedia {

/// The platform's player, with the end of a sound found by a poll of 500 ms.
///
/// A file that can't be played leaves no player: then every operation does nothing and every getter
/// gives 0 or false.
class NativeAudioPlayerInternal : public QObject
{
    Q_OBJECT

public:
    explicit NativeAudioPlayerInternal(QObject *parent = nullptr);
    ~NativeAudioPlayerInternal() override;

    void setMedia(const QString &path);
    void play();
    void play(const QString &path);
    void stop();
    void pause();
    bool isPlaying() const;
    bool isPaused() const;
    bool isStopped() const;

    /// In ms, truncated.
    qint64 duration() const;

    /// In ms, rounded.
    qint64 position() const;
    void setPosition(long long ms);

    /// -1.0 (left) to 1.0 (right).
    void setBalance(float balance);
    int numberOfChannels() const;

    /// 0 to 100; above counts as 100.
    void setVolume(int volume);
    int volume() const;

Q_SIGNALS:
    /// The sound ran out by itself.
    void finished();
    void positionChanged(qint64 ms);

private Q_SLOTS:
    void slotPositionChanged();

private:
    Q_DISABLE_COPY(NativeAudioPlayerInternal)
    enum State
    {
        Playing,
        Stopped,
        Paused
    };

    float m_balance = 0.0F;
    std::unique_ptr<AVAudioPlayer> m_player;
    QTimer m_timer;
    int m_state = Playing;
    double m_volume = 0.5;
};

}
