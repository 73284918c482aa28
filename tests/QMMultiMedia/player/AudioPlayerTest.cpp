#include "AudioPlayer.h"

#include "App.h"
#include "AudioListPlayer.h"
#include "AudioPlayersPool.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "NativeAudioPlayer.h"
#include "NativeAudioPlayerInternal.h"
#include "PlayListModel.h"
#include "SoundServer.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace QMMultiMedia;

namespace {

/// What a stretch of the recording holds. A busy machine leaves gaps in it: they don't count.
struct Heard
{
    double seconds = 0.0; ///< with sound
    double lowSeconds = 0.0; ///< with a tone below 1 kHz
    double amplitude[2] = {0.0, 0.0}; ///< of the sines in the left and right channel
};

/// What 10 ms of it hold, where nothing need have sounded all the time.
Heard analyseBlock(const float *samples, int frames)
{
    constexpr double Silence = 1e-3;
    int first = frames;
    int last = -1;
    int crossing = -1;
    int shortestPeriod = 0; // of the left channel, in frames
    Heard heard;
    for (int i = 0; i < frames; ++i) {
        const float *frame = samples + 2 * i;
        for (int side = 0; side < 2; ++side) {
            const double size = std::abs(frame[side]);
            heard.amplitude[side] = std::max(heard.amplitude[side], size);
            first = size > Silence ? std::min(first, i) : first;
            last = size > Silence ? i : last;
        }
        if (i > 0 && frame[-2] < 0 && frame[0] >= 0) {
            const int period = crossing < 0 ? 0 : i - crossing;
            shortestPeriod = shortestPeriod == 0 ? period : std::min(shortestPeriod, period);
            crossing = i;
        }
    }
    heard.seconds = std::max(0, last - first + 1) / double(SoundServer::Rate);
    heard.lowSeconds = shortestPeriod > SoundServer::Rate / 1000 ? heard.seconds : 0.0;
    return heard;
}

Heard analyse(const std::vector<float> &samples)
{
    constexpr int BlockFrames = SoundServer::Rate / 100;
    constexpr std::size_t Block = 2 * BlockFrames;
    std::vector<double> peaks[2];
    Heard heard;
    for (std::size_t begin = 0; begin + Block <= samples.size(); begin += Block) {
        const Heard block = analyseBlock(samples.data() + begin, BlockFrames);
        heard.seconds += block.seconds;
        heard.lowSeconds += block.lowSeconds;
        for (int side = 0; side < 2 && block.seconds > 0.0; ++side) {
            peaks[side].push_back(block.amplitude[side]);
        }
    }
    for (int side = 0; side < 2 && !peaks[side].empty(); ++side) {
        std::sort(peaks[side].begin(), peaks[side].end());
        heard.amplitude[side] = peaks[side][peaks[side].size() / 2];
    }
    return heard;
}

class AudioPlayerTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { SoundServer::setEnvironment(); }

    QString file(const QString &name) const { return m_folder.filePath(name); }

    /// A sine of amplitude 0.5 in both channels.
    bool makeTone(const QString &name, int frequency, double seconds) const
    {
        return MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs,
            u"aevalsrc=0.5*sin(2*PI*%1*t)|0.5*sin(2*PI*%1*t):s=44100:d=%2"_qs.arg(frequency).arg(
                seconds),
            file(name)});
    }

    /// Five seconds of 500 Hz, then five of 2 kHz.
    bool makeSteps(const QString &name, const QStringList &options) const
    {
        return MediaMaker::ffmpeg(
            QStringList {u"-f"_qs, u"lavfi"_qs, u"-i"_qs,
                u"aevalsrc=0.5*sin(2*PI*(500+1500*gte(t\\,5))*t):s=44100:d=10"_qs}
            + options + QStringList {file(name)});
    }

    /// Records until so much sound was heard, at most 10 s.
    static std::vector<float> record(SoundServer &server, double seconds)
    {
        std::vector<float> all;
        EXPECT_TRUE(MediaMaker::waitFor([&] {
            const std::vector<float> more = server.takeRecording();
            all.insert(all.end(), more.begin(), more.end());
            return analyse(all).seconds >= seconds;
        }));
        return all;
    }

    /// Waits until nothing has sounded for 0.2 s, and adds what did.
    static bool becomesSilent(SoundServer &server, std::vector<float> *heard = nullptr)
    {
        constexpr std::ptrdiff_t Pause = SoundServer::Rate / 5 * 2;
        std::vector<float> all;
        const bool silent = MediaMaker::waitFor([&] {
            const std::vector<float> more = server.takeRecording();
            all.insert(all.end(), more.begin(), more.end());
            return static_cast<std::ptrdiff_t>(all.size()) > Pause
                && analyse({all.end() - Pause, all.end()}).seconds == 0.0;
        });
        if (heard != nullptr) {
            heard->insert(heard->end(), all.begin(), all.end());
        }
        return silent;
    }

    QTemporaryDir m_folder {QDir::tempPath() + u"/player-XXXXXX"_qs};
};

}

TEST_F(AudioPlayerTest, CountsVolumeMuteAndPositionToTheNumber)
{
    NativeAudioPlayerInternal internal;
    EXPECT_EQ(internal.volume(), 50);
    for (const int volume : {0, 1, 29, 57, 58, 100}) {
        internal.setVolume(volume);
        EXPECT_EQ(internal.volume(), volume);
    }
    internal.setVolume(150);
    EXPECT_EQ(internal.volume(), 100);

    NativeAudioPlayer player;
    player.setMuted(true);
    player.setMuted(false);
    EXPECT_EQ(player.volume(), 50.0);
    player.setMuted(true);
    player.setMuted(true);
    player.setMuted(false);
    EXPECT_EQ(player.volume(), 0.0); // muted twice, the zero was kept
    player.setVolume(0.5);
    EXPECT_TRUE(player.isMuted());

    ASSERT_TRUE(makeTone(u"a.flac"_qs, 440, 1.2345));
    player.setMedia(file(u"a.flac"_qs));
    EXPECT_EQ(player.duration(), 1234);
    EXPECT_EQ(player.numberOfChannels(), 2);
    player.setPosition(777);
    EXPECT_EQ(player.position(), 777);
    player.setPosition(-5);
    EXPECT_EQ(player.position(), 0);
    player.setMedia(file(u"missing"_qs));
    player.play();
    EXPECT_FALSE(player.isPlaying());
    EXPECT_EQ(player.duration() + player.position() + player.numberOfChannels(), 0);
}

TEST_F(AudioPlayerTest, KeepsVolumeAndMuteInTheSettings)
{
    delete AudioListPlayer::instance();
    delete AudioPlayer::instance();
    QMWidgets::App::setSettingsValue(u"/SoundVolume"_qs, 0.5);
    AudioPlayer *player = AudioPlayer::instance();
    EXPECT_EQ(player->volume(), 0.0); // truncated
    QSignalSpy stopped(player, &AudioPlayer::stopped);
    player->setVolume(73.0);
    player->stop();
    player->slotSetAboutToQuit();
    EXPECT_EQ(QMWidgets::App::settingsValue(u"/SoundVolume"_qs).toDouble(), 73.0);
    EXPECT_FALSE(QMWidgets::App::settingsValue(u"/SoundMute"_qs).toBool());
    EXPECT_EQ(stopped.count(), 0);
}

TEST_F(AudioPlayerTest, StepsThroughAList)
{
    ASSERT_TRUE(makeTone(u"a.wav"_qs, 440, 0.1));
    ASSERT_TRUE(makeTone(u"b.wav"_qs, 440, 0.1));
    ASSERT_TRUE(MediaMaker::writeFile(file(u"c.txt"_qs), "x"));
    AudioListPlayer *list = AudioListPlayer::instance();
    QSignalSpy changed(list, &AudioListPlayer::listChanged);
    QSignalSpy finished(list, &AudioListPlayer::finished);
    QSignalSpy next(list, &AudioListPlayer::nextTriggered);
    QSignalSpy previous(list, &AudioListPlayer::previousTriggered);
    list->setPlayList(QDir(m_folder.path()), {u"*.wav"_qs});
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(list->currentName(), u"a.wav"_qs);
    EXPECT_EQ(list->playListModel()->rowCount(), 2);
    list->slotPlayPrevious();
    EXPECT_EQ(list->currentNumber(), 0);
    list->slotPlayNext();
    list->slotPlayNext();
    EXPECT_EQ(list->currentNumber(), 1);
    EXPECT_EQ(AudioPlayer::instance()->fileName(), file(u"b.wav"_qs));
    EXPECT_EQ(next.count(), 1);
    list->slotFinished();
    EXPECT_EQ(list->currentNumber(), 0);
    EXPECT_EQ(finished.count(), 1);
    list->slotPlayFromList(QUrl::fromLocalFile(file(u"b.wav"_qs)));
    EXPECT_EQ(list->currentNumber(), 1);
    list->slotPlayPrevious();
    EXPECT_EQ(previous.count(), 1);
    list->setPlayList(QList<QUrl>());
    EXPECT_EQ(list->currentIndex(), -1);
    list->stop();
}

TEST_F(AudioPlayerTest, SoundsAsAskedAndEndsByItself)
{
    SoundServer server;
    ASSERT_TRUE(server.isReady());
    ASSERT_TRUE(makeTone(u"tone.mp3"_qs, 440, 20));
    NativeAudioPlayer player;
    const struct
    {
        double volume;
        float balance;
        double left;
        double right;
    } cases[] = {
        {100, 0.0F, 0.5, 0.5}, {40, 0.0F, 0.2, 0.2}, {100, -1.0F, 0.5, 0.0}, {80, 0.5F, 0.2, 0.4}};
    QElapsedTimer timer;
    for (const auto &test : cases) {
        SCOPED_TRACE(test.balance);
        ASSERT_TRUE(becomesSilent(server));
        player.setVolume(test.volume);
        player.setBalance(test.balance);
        timer.start();
        player.play(file(u"tone.mp3"_qs));
        EXPECT_LT(timer.elapsed(), 100); // the press returns at once
        EXPECT_TRUE(player.isPlaying());
        const Heard heard = analyse(record(server, 0.3));
        EXPECT_NEAR(heard.amplitude[0], test.left, 0.03);
        EXPECT_NEAR(heard.amplitude[1], test.right, 0.03);
        player.stop();
        EXPECT_EQ(player.position(), 0);
    }

    ASSERT_TRUE(makeTone(u"short.wav"_qs, 440, 0.6));
    ASSERT_TRUE(becomesSilent(server));
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    QSignalSpy moved(&player, &NativeAudioPlayer::positionChanged);
    player.play(file(u"short.wav"_qs));
    EXPECT_TRUE(MediaMaker::waitFor([&] { return finished.count() == 1; }));
    EXPECT_NEAR(analyse(record(server, 0.55)).seconds, 0.6, 0.05);
    EXPECT_GE(moved.count(), 1);
    EXPECT_EQ(player.duration(), 0); // the player is gone

    AudioPlayersPool pool(1);
    pool.setVolume(100);
    pool.play(file(u"tone.mp3"_qs));
    pool.play(file(u"short.wav"_qs)); // dropped: the one player is busy
    EXPECT_EQ(pool.count(), 1);
    EXPECT_GT(analyse(record(server, 0.7)).seconds, 0.65);
    AudioPlayersPool free(0);
    free.play(file(u"short.wav"_qs));
    EXPECT_EQ(free.count(), 1);
    EXPECT_TRUE(MediaMaker::waitFor([&] { return free.count() == 0; }));
}

TEST_F(AudioPlayerTest, PausesGoesOnAndSeeksToThePlace)
{
    SoundServer server;
    ASSERT_TRUE(server.isReady());
    const struct
    {
        const char *name;
        QStringList options;
    } cases[] = {{"a.flac", {}}, {"a.mp3", {u"-c:a"_qs, u"libmp3lame"_qs}},
        {"a.m4a", {u"-c:a"_qs, u"aac"_qs}}, {"a.ogg", {u"-c:a"_qs, u"libvorbis"_qs}}};
    AudioPlayer *player = AudioPlayer::instance();
    player->setVolume(100);
    QSignalSpy stopped(player, &AudioPlayer::stopped);
    for (const auto &test : cases) {
        SCOPED_TRACE(test.name);
        ASSERT_TRUE(makeSteps(QLatin1String(test.name), test.options));
        ASSERT_TRUE(becomesSilent(server));
        player->play(file(QLatin1String(test.name)), false);
        player->setPosition(4300);
        std::vector<float> heard = record(server, 0.25);
        player->pause();
        EXPECT_TRUE(player->isPaused());
        const qint64 paused = player->position();
        ASSERT_TRUE(becomesSilent(server, &heard));
        EXPECT_EQ(player->position(), paused);
        EXPECT_NEAR(double(paused), 4300 + 1000 * analyse(heard).seconds, 60.0);
        player->play();
        const std::vector<float> rest = record(server, 0.8);
        // 0.7 s from the sought place to the change of the tone, nothing lost by the pause.
        EXPECT_NEAR(analyse(heard).lowSeconds + analyse(rest).lowSeconds, 0.7, 0.05);
        player->setPosition(1000);
        EXPECT_EQ(player->position(), 1000);
        stopped.clear();
        player->stop();
        player->stop();
        EXPECT_EQ(stopped.count(), 1);
    }
    ASSERT_TRUE(makeTone(u"loop.wav"_qs, 440, 0.3));
    ASSERT_TRUE(becomesSilent(server));
    player->play(file(u"loop.wav"_qs), true);
    EXPECT_GT(analyse(record(server, 0.8)).seconds, 0.75);
    player->slotStop();
    EXPECT_EQ(stopped.count(), 1);
    EXPECT_TRUE(becomesSilent(server));
}

TEST_F(AudioPlayerTest, EndsQuietlyWithoutOrWithALostServer)
{
    ASSERT_TRUE(makeTone(u"tone.wav"_qs, 440, 60));
    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    {
        SoundServer server;
        ASSERT_TRUE(server.isReady());
        player.setVolume(100);
        player.play(file(u"tone.wav"_qs));
        record(server, 0.2);
        server.kill();
        EXPECT_TRUE(MediaMaker::waitFor([&] { return finished.count() == 1; }));
        player.play(file(u"tone.wav"_qs)); // nobody is there any more
        EXPECT_TRUE(MediaMaker::waitFor([&] { return finished.count() == 2; }));
    }
    SoundServer another;
    ASSERT_TRUE(another.isReady());
    player.play(file(u"tone.wav"_qs));
    EXPECT_GT(analyse(record(another, 0.2)).amplitude[0], 0.4);
}

using StuckSoundServerTest = AudioPlayerTest;

TEST_F(StuckSoundServerTest, HoldsNobodyUp)
{
    // In a process of its own: the thread that waits for the server never comes back.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto playAtDeafServer = [this] {
        const QByteArray path = QFile::encodeName(file(u"deaf"_qs));
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
        const int deaf = socket(AF_UNIX, SOCK_STREAM, 0);
        if (bind(deaf, reinterpret_cast<sockaddr *>(&address), sizeof(address)) != 0
            || listen(deaf, 5) != 0 || !makeTone(u"tone.wav"_qs, 440, 60)) {
            _exit(2);
        }
        qputenv("PULSE_SERVER", "unix:" + path);
        NativeAudioPlayer player;
        QSignalSpy finished(&player, &NativeAudioPlayer::finished);
        QElapsedTimer timer;
        timer.start();
        player.play(file(u"tone.wav"_qs));
        player.setPosition(100);
        player.pause();
        player.play();
        const bool playing = player.isPlaying();
        const bool quick = timer.elapsed() < 200;
        int ticks = 0;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&ticks] { ++ticks; });
        clock.start(50);
        const bool ended = MediaMaker::waitFor([&] { return finished.count() == 1; }, 20000);
        _exit(playing && quick && ended && ticks > 50 ? 0 : 3);
    };
    EXPECT_EXIT(playAtDeafServer(), testing::ExitedWithCode(0), "");
}
