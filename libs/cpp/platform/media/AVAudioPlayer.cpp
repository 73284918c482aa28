#include "AVAudioPlayer.h"

#include "PlayerEngine.h"
#include "SoundSource.h"

AVAudioPlayer::AVAudioPlayer(std::shared_ptr<PlayerEngine> engine)
    : m_engine(std::move(engine))
{
}

std::unique_ptr<AVAudioPlayer> AVAudioPlayer::initWithContentsOfURL(const QUrl &url)
{
    OSStatus status = noErr;
    std::unique_ptr<SoundSource> source = SoundSource::open(url, &status);
    if (!source) {
        return nullptr;
    }
    return std::unique_ptr<AVAudioPlayer>(
        new AVAudioPlayer(std::make_shared<PlayerEngine>(std::move(source))));
}

AVAudioPlayer::~AVAudioPlayer()
{
    m_engine->quit();
}

bool AVAudioPlayer::play()
{
    return m_engine->play();
}

void AVAudioPlayer::pause()
{
    m_engine->pause();
}

void AVAudioPlayer::stop()
{
    m_engine->stop();
}

bool AVAudioPlayer::isPlaying() const
{
    return m_engine->isPlaying();
}

double AVAudioPlayer::currentTime() const
{
    return m_engine->currentTime();
}

void AVAudioPlayer::setCurrentTime(double seconds)
{
    m_engine->setCurrentTime(seconds);
}

double AVAudioPlayer::duration() const
{
    return m_engine->duration();
}

int AVAudioPlayer::numberOfChannels() const
{
    return m_engine->channels();
}

void AVAudioPlayer::setVolume(float volume)
{
    m_engine->setVolume(volume);
}

void AVAudioPlayer::setPan(float pan)
{
    m_engine->setPan(pan);
}

void AVAudioPlayer::setNumberOfLoops(int loops)
{
    m_engine->setLoops(loops);
}
