#pragma once

#include <QDir>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace QMMultiMedia {

class PlayListModel;

/// Plays a list of files, one after the other, through the application's player.
class AudioListPlayer : public QObject
{
    Q_OBJECT

public:
    static AudioListPlayer *instance();
    ~AudioListPlayer() override;

    /// The files of the folder that the filters name.
    void setPlayList(const QDir &dir, const QStringList &filters);
    void setPlayList(const QList<QUrl> &urls);
    void appendToPlayList(const QList<QUrl> &urls);

    /// Puts the order of play back to list order.
    void regenerateIndexes();

    /// The list index of the n-th sound in the order of play; -1 beyond it.
    int index(int n) const;
    QList<QUrl> playList() const;

    /// Always empty.
    QPixmap currentCover() const;

    /// The place in the order of play, from 0.
    int currentNumber() const;

    /// The list index of the sound at hand; -1 if the list is empty.
    int currentIndex() const;

    /// The file name of the sound at hand.
    QString currentName() const;
    QUrl currentUrl() const;

    void play(const QString &path);
    void play();
    void stop();
    void pause();
    bool isPlaying() const;
    bool isStopped() const;
    bool isPaused() const;
    bool isMuted() const;
    double volume() const;

    /// Kept; the order of play doesn't follow it.
    void setShuffleMode(bool on);
    void setLoopMode(bool on);
    bool isShuffleMode() const;
    bool isLoopMode() const;

    /// The list as a model; owned by this object.
    PlayListModel *playListModel();

public Q_SLOTS:
    void setMuted(bool muted);
    void setVolume(double volume);
    void slotPlayNext();
    void slotPlayPrevious();

    /// Plays the URL if the order of play holds it from the sound at hand on.
    void slotPlayFromList(const QUrl &url);
    void slotFinished();

Q_SIGNALS:
    void stopped();
    void finished();
    void nextTriggered();
    void previousTriggered();
    void listChanged();

private:
    Q_DISABLE_COPY(AudioListPlayer)
    AudioListPlayer();
    void playCurrent() const;
    void updateModel();

    QList<QUrl> m_playList;
    QList<int> m_indexes;
    int m_current = 0;
    bool m_shuffleMode = false;
    bool m_loopMode = false;
    PlayListModel *m_model;
};

}
