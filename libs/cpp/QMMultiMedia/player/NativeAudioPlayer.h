#pragma once

#include <QObject>
#include <QString>

namespace QMMultiMedia {

class NativeAudioPlayerInternal;

/// Plays one sound at a time; also serves to ask a file for its length and channels, which opens no
/// sound device. Times are in ms, the volume is 0 to 100.
class NativeAudioPlayer : public QObject
{
    Q_OBJECT

public:
    explicit NativeAudioPlayer(QObject *parent = nullptr);
    ~NativeAudioPlayer() override;

    void setMedia(const QString &path);
    void play();
    void play(const QString &path);
    void stop();
    void pause();
    bool isPlaying() const;
    bool isPaused() const;
    bool isStopped() const;
    qint64 duration() const;
    qint64 position() const;
    void setPosition(long long ms);

    /// -1.0 (left) to 1.0 (right).
    void setBalance(float balance);
    int numberOfChannels() const;

    /// The path of the last setMedia.
    QString fileName() const;

    /// Truncated to a whole number.
    void setVolume(double volume);
    double volume() const;

    /// Muting keeps the volume for unmuting.
    void setMuted(bool muted);

    /// Whether the volume is below 1.
    bool isMuted() const;

Q_SIGNALS:
    void finished();
    void positionChanged(qint64 ms);

private:
    Q_DISABLE_COPY(NativeAudioPlayer)
    NativeAudioPlayerInternal *m_internal;
    QString m_fileName;
    double m_savedVolume = 50.0;
};

}
