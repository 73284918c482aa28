#include "AudioListPlayer.h"

#include "AudioPlayer.h"
#include "PlayListModel.h"
#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

namespace QMMultiMedia {

AudioListPlayer::AudioListPlayer()
    : m_model(new PlayListModel(this))
{
    AudioPlayer *player = AudioPlayer::instance();
    connect(player, &AudioPlayer::stopped, this, &AudioListPlayer::stopped);
    connect(player, &AudioPlayer::finished, this, &AudioListPlayer::slotFinished);
}

AudioListPlayer::~AudioListPlayer() = default;

AudioListPlayer *AudioListPlayer::instance()
{
    static QPointer<AudioListPlayer> player;
    if (!player) {
        player = new AudioListPlayer;
        player->setParent(QCoreApplication::instance());
    }
    return player;
}

void AudioListPlayer::setPlayList(const QDir &dir, const QStringList &filters)
{
    QList<QUrl> urls;
    const QStringList names = dir.entryList(filters, QDir::Files);
    for (const QString &name : names) {
        urls << QUrl::fromLocalFile(dir.absoluteFilePath(name));
    }
    setPlayList(urls);
}

void AudioListPlayer::setPlayList(const QList<QUrl> &urls)
{
    m_playList = urls;
    m_current = m_current < urls.size() ? m_current : 0;
    regenerateIndexes();
    updateModel();
    Q_EMIT listChanged();
}

void AudioListPlayer::appendToPlayList(const QList<QUrl> &urls)
{
    m_playList += urls;
    regenerateIndexes();
    updateModel();
}

void AudioListPlayer::regenerateIndexes()
{
    m_indexes.clear();
    for (int i = 0; i < m_playList.size(); ++i) {
        m_indexes << i;
    }
}

void AudioListPlayer::updateModel()
{
    QStringList files;
    for (const QUrl &url : qAsConst(m_playList)) {
        files << url.toLocalFile();
    }
    m_model->setPlayList(files);
}

int AudioListPlayer::index(int n) const
{
    return m_indexes.value(n, -1);
}

QList<QUrl> AudioListPlayer::playList() const
{
    return m_playList;
}

QPixmap AudioListPlayer::currentCover() const
{
    return {};
}

int AudioListPlayer::currentNumber() const
{
    return m_current;
}

int AudioListPlayer::currentIndex() const
{
    return index(m_current);
}

QString AudioListPlayer::currentName() const
{
    return currentUrl().fileName();
}

QUrl AudioListPlayer::currentUrl() const
{
    return m_playList.value(currentIndex());
}

void AudioListPlayer::play(const QString &path)
{
    AudioPlayer::instance()->play(path, false);
}

void AudioListPlayer::play()
{
    AudioPlayer::instance()->play();
}

void AudioListPlayer::stop()
{
    AudioPlayer::instance()->stop();
}

void AudioListPlayer::pause()
{
    AudioPlayer::instance()->pause();
}

bool AudioListPlayer::isPlaying() const
{
    return AudioPlayer::instance()->isPlaying();
}

bool AudioListPlayer::isStopped() const
{
    return AudioPlayer::instance()->isStopped();
}

bool AudioListPlayer::isPaused() const
{
    return AudioPlayer::instance()->isPaused();
}

bool AudioListPlayer::isMuted() const
{
    return AudioPlayer::instance()->isMuted();
}

double AudioListPlayer::volume() const
{
    return AudioPlayer::instance()->volume();
}

void AudioListPlayer::setMuted(bool muted)
{
    AudioPlayer::instance()->setMuted(muted);
}

void AudioListPlayer::setVolume(double volume)
{
    AudioPlayer::instance()->setVolume(volume);
}

void AudioListPlayer::setShuffleMode(bool on)
{
    m_shuffleMode = on;
}

void AudioListPlayer::setLoopMode(bool on)
{
    m_loopMode = on;
}

bool AudioListPlayer::isShuffleMode() const
{
    return m_shuffleMode;
}

bool AudioListPlayer::isLoopMode() const
{
    return m_loopMode;
}

PlayListModel *AudioListPlayer::playListModel()
{
    return m_model;
}

void AudioListPlayer::slotPlayNext()
{
    if (m_current + 1 >= m_playList.size()) {
        return;
    }
    ++m_current;
    AudioPlayer::instance()->stop();
    playCurrent();
    Q_EMIT nextTriggered();
}

void AudioListPlayer::slotPlayPrevious()
{
    if (m_current <= 0) {
        return;
    }
    --m_current;
    AudioPlayer::instance()->stop();
    playCurrent();
    Q_EMIT previousTriggered();
}

void AudioListPlayer::slotPlayFromList(const QUrl &url)
{
    for (int i = m_current; i < m_indexes.size(); ++i) {
        if (m_playList.value(m_indexes.at(i)) == url) {
            m_current = i;
            playCurrent();
            Q_EMIT nextTriggered();
            return;
        }
    }
}

void AudioListPlayer::slotFinished()
{
    ++m_current;
    if (m_current >= m_playList.size()) {
        m_current = 0;
        Q_EMIT finished();
        return;
    }
    playCurrent();
    Q_EMIT nextTriggered();
}

void AudioListPlayer::playCurrent() const
{
    AudioPlayer::instance()->play(currentUrl().toLocalFile(), false);
}

}
