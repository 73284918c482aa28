#include "KeptRoom.h"
#include "SoundTestTools.h"

#include <array>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace SoundTestTools;

namespace {

/// Files as they lie on a disk: not changed in the very tick in which they are read.
class KeptSoundsTest : public ::testing::Test
{
protected:
    void SetUp() override { ExtAudioFileForgetKept(); }
    void TearDown() override { ExtAudioFileForgetKept(); }

    QString file(const QString &name) const { return m_folder.filePath(name); }

    /// A WAV of 16 bits with noise.
    QByteArray makeWave(const QString &name, int frames, quint32 seed) const
    {
        QByteArray raw = noise(frames * 4, seed);
        EXPECT_TRUE(MediaMaker::writeFile(file(u"raw"_qs), raw));
        EXPECT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"s16le"_qs, u"-ar"_qs, u"44100"_qs, u"-ac"_qs,
            u"2"_qs, u"-i"_qs, file(u"raw"_qs), file(name)}));
        settle(name);
        return raw;
    }

    void settle(const QString &name) const
    {
        EXPECT_TRUE(MediaMaker::waitFor([&] {
            return QFileInfo(file(name)).metadataChangeTime().msecsTo(QDateTime::currentDateTime())
                > 40;
        }));
    }

    static bool keeps(qint64 bytes) { return KeptRoom::instance().bytes() >= bytes; }

    QTemporaryDir m_folder;
};

/// As long as it lives the process gets this much more memory at most.
class MemoryLimit
{
public:
    explicit MemoryLimit(rlim_t more)
    {
        getrlimit(RLIMIT_AS, &m_before);
        const qulonglong pages
            = MediaMaker::bytesOf(u"/proc/self/statm"_qs).split(' ').first().toULongLong();
        rlimit now = m_before;
        now.rlim_cur = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + more;
        setrlimit(RLIMIT_AS, &now);
    }
    ~MemoryLimit() { setrlimit(RLIMIT_AS, &m_before); }
    Q_DISABLE_COPY(MemoryLimit)

private:
    rlimit m_before {};
};

}

TEST_F(KeptSoundsTest, KeepsOneReadingForASecondPassOnly)
{
    const QByteArray raw = makeWave(u"a.wav"_qs, 200000, 1);
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
        EXPECT_TRUE(keeps(raw.size()));
        // Another format isn't served from it, and doesn't take it away.
        EXPECT_EQ(readAll(file(u"a.wav"_qs), 44100, 24).frames, 200000);
        EXPECT_EQ(readAll(file(u"a.wav"_qs), 44100, 24).frames, 200000);
        EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
        EXPECT_EQ(KeptRoom::instance().bytes(), 0);
    }
    readAll(file(u"a.wav"_qs), 44100, 16);
    ExtAudioFileForgetKept();
    EXPECT_EQ(KeptRoom::instance().bytes(), 0);
}

TEST_F(KeptSoundsTest, NeverGivesWhatIsNoLongerInTheFile)
{
    makeWave(u"a.wav"_qs, 50000, 1);
    const QByteArray other = makeWave(u"b.wav"_qs, 50000, 2);
    readAll(file(u"a.wav"_qs), 44100, 16);
    ASSERT_TRUE(MediaMaker::writeFile(file(u"a.wav"_qs), MediaMaker::bytesOf(file(u"b.wav"_qs))));
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == other);
    // Read in the very moment of the change: another change of the same size could look the same.
    const QByteArray third = makeWave(u"c.wav"_qs, 50000, 3);
    ASSERT_TRUE(MediaMaker::writeFile(file(u"a.wav"_qs), MediaMaker::bytesOf(file(u"c.wav"_qs))));
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == third);
    ASSERT_TRUE(MediaMaker::writeFile(file(u"a.wav"_qs), MediaMaker::bytesOf(file(u"b.wav"_qs))));
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == other);
    settle(u"a.wav"_qs);
    readAll(file(u"a.wav"_qs), 44100, 16);
    ASSERT_TRUE(QFile::remove(file(u"a.wav"_qs)));
    EXPECT_EQ(readAll(file(u"a.wav"_qs), 44100, 16).status, -43);
}

TEST_F(KeptSoundsTest, StaysBelowTheLimitAndReadsOnBeyondIt)
{
    // 16 minutes: 169 MB as two channels of 16 bits; stated by one file, hidden by the other.
    ASSERT_TRUE(
        MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"anoisesrc=d=960:r=44100:a=0.1"_qs,
            u"-ac"_qs, u"1"_qs, u"-c:a"_qs, u"pcm_u8"_qs, file(u"long.wav"_qs)}));
    const QByteArray bytes = MediaMaker::bytesOf(file(u"long.wav"_qs));
    ASSERT_TRUE(MediaMaker::writeFile(file(u"unknown.au"_qs),
        QByteArray::fromHex("2e736e640000001cffffffff000000020000ac44000000010000000000000000")
            + bytes.mid(100)));
    for (const char *name : {"long.wav", "unknown.au"}) {
        settle(QLatin1String(name));
        ExtAudioFileHint(QUrl::fromLocalFile(file(QLatin1String(name))), clientFormat(44100, 16));
        ExtAudioFileRef opened = nullptr;
        ASSERT_EQ(
            ExtAudioFileOpenURL(QUrl::fromLocalFile(file(QLatin1String(name))), &opened), noErr);
        const AudioStreamBasicDescription format = clientFormat(44100, 16);
        ASSERT_EQ(ExtAudioFileSetProperty(opened, fourCC("cfmt"), sizeof(format), &format), noErr);
        qint64 total = 0;
        qint64 highest = 0;
        std::vector<char> buffer(400000);
        UInt32 frames = 1;
        while (frames > 0) {
            AudioBufferList list;
            list.mNumberBuffers = 1;
            list.mBuffers[0] = {2, static_cast<UInt32>(buffer.size()), buffer.data()};
            frames = 100000;
            ASSERT_EQ(ExtAudioFileRead(opened, &frames, &list), noErr);
            total += frames;
            highest = std::max(highest, KeptRoom::instance().bytes());
        }
        ExtAudioFileDispose(opened);
        EXPECT_GT(total, 959 * 44100) << name;
        EXPECT_LE(highest, KeptRoom::Limit);
        ExtAudioFileForgetKept();
        EXPECT_TRUE(MediaMaker::waitFor([] { return KeptRoom::instance().bytes() == 0; })) << name;
    }
}

TEST_F(KeptSoundsTest, WaitsAheadForTheRoomOfTheSoundBefore)
{
    constexpr int frames = 18'000'000; // 72 MB: two of them are too much
    const QByteArray first = makeWave(u"a.wav"_qs, frames, 1);
    const QByteArray second = makeWave(u"b.wav"_qs, frames, 2);
    const AudioStreamBasicDescription format = clientFormat(44100, 16);
    const auto hintWhileKept = [&] {
        EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == first);
        ExtAudioFileHint(QUrl::fromLocalFile(file(u"b.wav"_qs)), format);
        EXPECT_TRUE(
            MediaMaker::waitFor([] { return keeps(KeptRoom::Limit - KeptRoom::BlockBytes); }));
    };
    hintWhileKept();
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == first);
    EXPECT_TRUE(MediaMaker::waitFor([&] { return keeps(second.size()); }));
    EXPECT_TRUE(readAll(file(u"b.wav"_qs), 44100, 16).bytes == second);
    EXPECT_TRUE(keeps(second.size()));
    EXPECT_TRUE(readAll(file(u"b.wav"_qs), 44100, 16).bytes == second);
    EXPECT_EQ(KeptRoom::instance().bytes(), 0);

    // Dropped while it waits, and read while it waits: then it isn't kept.
    hintWhileKept();
    ExtAudioFileDropHints();
    EXPECT_TRUE(
        MediaMaker::waitFor([&] { return !keeps(first.size() + 2 * KeptRoom::BlockBytes); }));
    ExtAudioFileForgetKept();
    hintWhileKept();
    EXPECT_TRUE(readAll(file(u"b.wav"_qs), 44100, 16).bytes == second);
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == first);
}

TEST_F(KeptSoundsTest, ReadsAheadOnAHintAndDropsItAtOnce)
{
    const QByteArray raw = makeWave(u"a.wav"_qs, 300000, 1);
    const QUrl url = QUrl::fromLocalFile(file(u"a.wav"_qs));
    const AudioStreamBasicDescription format = clientFormat(44100, 16);
    ExtAudioFileHint(url, format);
    ExtAudioFileHint(url, format);
    EXPECT_TRUE(MediaMaker::waitFor([&] { return keeps(raw.size()); }));
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
    EXPECT_TRUE(keeps(raw.size())); // for the second pass
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
    EXPECT_EQ(KeptRoom::instance().bytes(), 0);

    // Reading begins while the hint is still at work, in all kinds of moments.
    for (int i = 0; i < 20; ++i) {
        ExtAudioFileHint(url, format);
        EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
        EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
        ExtAudioFileHint(url, format);
        ExtAudioFileDropHints();
    }
    EXPECT_TRUE(MediaMaker::waitFor([] { return KeptRoom::instance().bytes() == 0; }));

    // In the middle of a long file, so that another thread has to go on with it.
    const QByteArray all = makeWave(u"long.wav"_qs, 6000000, 2);
    settle(u"long.wav"_qs);
    for (int i = 0; i < 5; ++i) {
        ExtAudioFileHint(QUrl::fromLocalFile(file(u"long.wav"_qs)), format);
        EXPECT_TRUE(MediaMaker::waitFor([] { return KeptRoom::instance().bytes() > 0; }));
        EXPECT_TRUE(readAll(file(u"long.wav"_qs), 44100, 16).bytes == all);
        EXPECT_TRUE(readAll(file(u"long.wav"_qs), 44100, 16).bytes == all);
    }
    EXPECT_EQ(KeptRoom::instance().bytes(), 0);
    ExtAudioFileHint(QUrl::fromLocalFile(file(u"missing"_qs)), format);
    ExtAudioFileHint(QUrl::fromLocalFile(u"/dev/zero"_qs), format);
    ExtAudioFileDropHints();
}

TEST_F(KeptSoundsTest, TellsThatMemoryEndedBeforeTheSound)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer needs memory of its own";
#endif
    constexpr int frames = 18'000'000; // 72 MB
    const QByteArray raw = makeWave(u"a.wav"_qs, frames, 1);
    const QUrl url = QUrl::fromLocalFile(file(u"a.wav"_qs));
    const AudioStreamBasicDescription format = clientFormat(44100, 16);
    std::vector<char> buffer(400000);
    for (const bool ahead : {false, true}) {
        ExtAudioFileRef opened = nullptr;
        ASSERT_EQ(ExtAudioFileOpenURL(url, &opened), noErr);
        ASSERT_EQ(ExtAudioFileSetProperty(opened, fourCC("cfmt"), sizeof(format), &format), noErr);
        OSStatus status = noErr;
        {
            const MemoryLimit limit(40'000'000);
            if (ahead) {
                ExtAudioFileHint(url, format);
            }
            UInt32 count = 1;
            while (status == noErr && count > 0) {
                AudioBufferList list;
                list.mNumberBuffers = 1;
                list.mBuffers[0] = {2, static_cast<UInt32>(buffer.size()), buffer.data()};
                count = 100000;
                status = ExtAudioFileRead(opened, &count, &list);
            }
        }
        EXPECT_EQ(status, -108) << ahead;
        ExtAudioFileDispose(opened);
        ExtAudioFileDropHints();
        EXPECT_TRUE(MediaMaker::waitFor([] { return KeptRoom::instance().bytes() == 0; }));
    }
    EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
}

TEST_F(KeptSoundsTest, GoesFromThreadToThread)
{
    const QByteArray raw = makeWave(u"a.wav"_qs, 2000, 1);
    const auto work = [&] {
        for (int i = 0; i < 1000; ++i) {
            EXPECT_TRUE(readAll(file(u"a.wav"_qs), 44100, 16).bytes == raw);
        }
    };
    std::array<std::thread, 3> threads;
    for (std::thread &thread : threads) {
        thread = std::thread(work);
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
}
