#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace QMMultiMedia {

class NativeAudioPlayer;

/// The one player of the application: previews and notification sounds. Times are in ms, the volume
/// is 0 to 100. On the user-interface thread only.
class AudioPlayer : public QObject
{
    Q_OBJECT

public:
    /// Made on first use, with the mute state and the volume of the settings store.
    static AudioPlayer *instance();

    ~AudioPlayer() override;

    void play();

    /// Plays the file, again and again if looped.
    void play(const QString &path, bool looped);
    void setMedia(const QString &path);
    void stop();
    void pause();
    qint64 duration() const;
    qint64 remainingDuration() const;
    qint64 position() const;
    void setPosition(long long ms);
    bool isPlaying() const;
    bool isStopped() const;
    bool isPaused() const;
    QString fileName() const;
    bool isMuted() const;
    double volume() const;

public Q_SLOTS:
    void setMuted(bool muted);
    void setVolume(double volume);

    /// Stops without a signal.
    void slotStop();
    void loopedPlay();

    /// Keeps volume and mute state in the settings store and stops.
    void slotSetAboutToQuit();

Q_SIGNALS:
    /// stop() ended a sound that was playing or paused.
    void stopped();

    /// The sound ran out by itself.
    void finished();
    void positionChanged(qint64 ms);

private:
    Q_DISABLE_COPY(AudioPlayer)
    AudioPlayer();
    void startLoopTimer();

    NativeAudioPlayer *m_player;
    bool m_stopLoop = false;
    bool m_aboutToQuit = false;
    QTimer m_loopTimer;
};

}
