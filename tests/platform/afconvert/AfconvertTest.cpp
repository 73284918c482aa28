// The program: its sources, what it refuses, and what is left when it is broken off.
#include "ConvertError.h"
#include "Literals.h"
#include "M4aCheck.h"
#include "MediaMaker.h"
#include "OutputFile.h"
#include "TestSound.h"
#include "WavSource.h"

#include <csignal>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using TestSound::Wav;

namespace {

QString program()
{
    return QCoreApplication::applicationDirPath() + u"/afconvert"_qs;
}

class Afconvert : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const QByteArray data = TestSound::rawBytes(TestSound::music(44100, 2, 20000));
        ASSERT_TRUE(MediaMaker::writeFile(path(u"in.wav"_qs), Wav().bytes(data)));
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    static MediaMaker::ToolResult run(const QStringList &arguments)
    {
        return MediaMaker::runTool(program(), arguments);
    }

    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Starts a conversion that takes a while; the process is to be ended by the caller.
    void startLong(QProcess *process)
    {
        // Ten minutes, mostly a hole in the file: noise isn't needed to keep the encoder busy.
        Wav wav;
        wav.statedBytes = qint64 {600} * 44100 * 4;
        const QByteArray data = TestSound::rawBytes(TestSound::music(44100, 2, 300000));
        QFile file(path(u"long.wav"_qs));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(wav.bytes(data));
        ASSERT_TRUE(file.resize(wav.statedBytes + 44));
        process->start(program(), {path(u"long.wav"_qs), u"-o"_qs, path(u"out.m4a"_qs)});
        ASSERT_TRUE(process->waitForStarted());
        // It is at work when it has used some time of the processor.
        ASSERT_TRUE(MediaMaker::waitFor([process] {
            const QByteArray status
                = MediaMaker::bytesOf(QString(u"/proc/%1/stat"_qs).arg(process->processId()));
            const auto fields = status.mid(status.lastIndexOf(')')).split(' ');
            return fields.size() > 12 && fields.at(12).toInt() >= 15;
        }));
    }

    QTemporaryDir m_folder;
};

}

TEST_F(Afconvert, ReadsEveryLayoutOfWav)
{
    const QByteArray oddBext = "bext" + TestSound::number(603, 4) + QByteArray(602, '\0') + "A";
    const QByteArray evenBext = "bext" + TestSound::number(604, 4) + QByteArray(604, '\n');
    const struct
    {
        int tag, bits;
        bool extensible;
        QByteArray before, data; ///< data: frames of one channel
        std::vector<float> expected;
    } cases[] {
        {1, 16, false, oddBext, QByteArray::fromHex("00800040ff7f01"), {-1, 0.5, 32767 / 32768.F}},
        {1, 16, false, oddBext + '\0', QByteArray::fromHex("0040"), {0.5}},
        {1, 8, false, evenBext, QByteArray::fromHex("0080c0"), {-1, 0, 0.5}},
        {1, 24, true, oddBext, QByteArray::fromHex("000080010000"), {-1, 1 / 8388608.F}},
        {1, 32, false, oddBext, QByteArray::fromHex("0000008000000040"), {-1, 0.5}},
        {3, 32, true, {}, QByteArray::fromHex("0000003f0000c07f000000c0"), {0.5, 0, -1}},
        {3, 64, false, {}, QByteArray::fromHex("000000000000e03f"), {0.5}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.bits);
        Wav wav;
        wav.tag = c.tag;
        wav.bits = c.bits;
        wav.channels = 1;
        wav.extensible = c.extensible;
        wav.chunksBefore = c.before;
        ASSERT_TRUE(MediaMaker::writeFile(path(u"x.wav"_qs), wav.bytes(c.data)));
        const WavSource source(path(u"x.wav"_qs).toStdString());
        const auto frames = static_cast<std::int64_t>(c.expected.size());
        ASSERT_EQ(source.frames(), frames);
        // With two frames of silence on either side of the file.
        std::vector<float> read(c.expected.size() + 4, 9);
        std::vector<std::uint8_t> scratch;
        float *plane = read.data();
        source.read(-2, static_cast<int>(frames) + 4, &plane, scratch);
        std::vector<float> expected {0, 0};
        expected.insert(expected.end(), c.expected.begin(), c.expected.end());
        expected.insert(expected.end(), {0, 0});
        EXPECT_EQ(read, expected);
    }
    // Data of more than 4 GiB, whose size field has wrapped.
    Wav wav;
    wav.statedBytes = 4000;
    ASSERT_TRUE(MediaMaker::writeFile(path(u"x.wav"_qs), wav.bytes({})));
    ASSERT_TRUE(QFile::resize(path(u"x.wav"_qs), 44 + (qint64 {1} << 32) + 4000 + 600));
    EXPECT_EQ(WavSource(path(u"x.wav"_qs).toStdString()).frames(), ((qint64 {1} << 32) + 4000) / 4);
}

TEST_F(Afconvert, RefusesByNameAndLeavesNothing)
{
    const QString in = path(u"in.wav"_qs);
    const QString out = path(u"out.m4a"_qs);
    const QByteArray whole = MediaMaker::bytesOf(in);
    Wav wav;
    wav.sampleRate = 44000;
    MediaMaker::writeFile(path(u"rate.wav"_qs), wav.bytes({}));
    wav.sampleRate = 11025;
    MediaMaker::writeFile(path(u"slow.wav"_qs), wav.bytes({}));
    wav.channels = 6;
    MediaMaker::writeFile(path(u"six.wav"_qs), wav.bytes({}));
    MediaMaker::writeFile(path(u"cut.wav"_qs), whole.left(whole.size() - 1));
    MediaMaker::writeFile(path(u"headless.wav"_qs), whole.left(30));
    // Endless empty chunks.
    ASSERT_TRUE(QFile::resize(path(u"headless.wav"_qs), qint64 {1} << 40));
    MediaMaker::writeFile(path(u"text\n.wav"_qs), "RIFF text");
    ASSERT_EQ(::mkfifo(path(u"pipe"_qs).toUtf8().constData(), 0600), 0);
    MediaMaker::writeFile(path(u"there.m4a"_qs), "keep");
    const QStringList before = names();
    const struct
    {
        QStringList arguments;
        const char *named;
    } cases[] {
        {{in, u"-o"_qs, out, u"-x"_qs}, "-x"},
        {{in, u"-o"_qs, out, u"--fast"_qs}, "--fast"},
        {{in, u"-o"_qs, out, u"-q"_qs, u"128"_qs}, "-q 128"},
        {{in, u"-o"_qs, out, u"-b"_qs, u"fast"_qs}, "-b fast"},
        {{in, u"-o"_qs, out, u"-b"_qs, u"529201"_qs}, "529200"},
        {{path(u"slow.wav"_qs), u"-o"_qs, out, u"-b"_qs, u"320000"_qs}, "132300"},
        {{in, u"-o"_qs, out, u"-f"_qs, u"caff"_qs}, "-f caff"},
        {{in, u"-o"_qs, out, u"-d"_qs, u"alac"_qs}, "-d alac"},
        {{in, u"-o"_qs}, "-o"},
        {{in}, "-o"},
        {{in, in, u"-o"_qs, out}, "in.wav"},
        {{u"-o"_qs, out}, "source"},
        {{path(u"none.wav"_qs), u"-o"_qs, out}, "none.wav"},
        {{path(u"rate.wav"_qs), u"-o"_qs, out}, "44000"},
        {{path(u"six.wav"_qs), u"-o"_qs, out}, "6 channels"},
        {{path(u"cut.wav"_qs), u"-o"_qs, out}, "cut.wav"},
        {{path(u"headless.wav"_qs), u"-o"_qs, out}, "headless.wav"},
        {{path(u"text\n.wav"_qs), u"-o"_qs, out}, "text\\n.wav"},
        {{path(u"pipe"_qs), u"-o"_qs, out}, "pipe"},
        {{u"/dev/zero"_qs, u"-o"_qs, out}, "/dev/zero"},
        {{m_folder.path(), u"-o"_qs, out}, "regular"},
        {{in, u"-o"_qs, path(u"there.m4a"_qs)}, "there.m4a"},
        {{in, u"-o"_qs, in}, "in.wav"},
        {{in, u"-o"_qs, m_folder.path() + u"/"_qs}, "exists"},
        {{in, u"-o"_qs, path(u"no/out.m4a"_qs)}, "no"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.arguments.join(u' ').toStdString());
        const auto result = run(c.arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.standardError.count('\n'), 1);
        EXPECT_TRUE(result.standardError.contains(c.named)) << result.standardError.constData();
        EXPECT_EQ(names(), before);
    }
    EXPECT_EQ(MediaMaker::bytesOf(path(u"there.m4a"_qs)), QByteArray("keep"));
    EXPECT_EQ(MediaMaker::bytesOf(in), whole);
}

TEST_F(Afconvert, TakesAnyName)
{
    for (const QString &name :
        {u"a \"b\" 'c'"_qs, u"-o"_qs, u"line\nbreak"_qs, u"Лёд 音楽 ☃"_qs, QString(251, u'n')}) {
        SCOPED_TRACE(name.toStdString());
        ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"sub"_qs));
        QProcess process;
        process.setWorkingDirectory(path(u"sub"_qs));
        ASSERT_TRUE(QFile::copy(path(u"in.wav"_qs), path(u"sub/"_qs + name + u".wav"_qs)));
        process.start(program(), {u"-o"_qs, name + u".m4a"_qs, u"--"_qs, name + u".wav"_qs});
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        EXPECT_EQ(MediaMaker::probe(
                      u"file:"_qs + path(u"sub/"_qs + name + u".m4a"_qs), u"stream=duration_ts"_qs),
            u"20000"_qs);
        ASSERT_TRUE(QDir(path(u"sub"_qs)).removeRecursively());
    }
}

TEST_F(Afconvert, LeavesNothingWhenItIsBrokenOff)
{
    for (const int number : {SIGTERM, SIGINT, SIGKILL}) {
        QProcess process;
        startLong(&process);
        ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), number), 0);
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(names(), (QStringList {u"in.wav"_qs, u"long.wav"_qs}));
    }
    // Where files without a name can't be had.
    const std::string destination = path(u"out.m4a"_qs).toStdString();
    for (const int number : {SIGTERM, SIGQUIT}) {
        const pid_t child = ::fork();
        if (child == 0) {
            const rlimit noCore {0, 0};
            ::setrlimit(RLIMIT_CORE, &noCore);
            OutputFile file(destination, OutputFile::Kind::Named);
            file.write(0, "text", 4);
            ::raise(number);
            ::_exit(1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(names(), (QStringList {u"in.wav"_qs, u"long.wav"_qs}));
    }
}

TEST_F(Afconvert, LeavesNothingOnAFullDisk)
{
    // By a limit of the file size, which everyone may set, and on a small file system where it can
    // be mounted in a space of names of our own.
    const QString limited = u"ulimit -f 8; exec \"$@\""_qs;
    auto result = MediaMaker::runTool(u"bash"_qs,
        {u"-c"_qs, limited, u"-"_qs, program(), path(u"in.wav"_qs), u"-b"_qs, u"320000"_qs,
            u"-o"_qs, path(u"out.m4a"_qs)});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.standardError.contains("out.m4a: File too large"));
    EXPECT_EQ(names(), QStringList {u"in.wav"_qs});

    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"small"_qs));
    const QString mounted = u"mount -t tmpfs -o size=8k none \"$1\" || exit 77; shift; \"$@\";"
                            " s=$?; ls -A \"${!#%/*}\"; exit $s"_qs;
    result = MediaMaker::runTool(u"unshare"_qs,
        {u"-rm"_qs, u"bash"_qs, u"-c"_qs, mounted, u"-"_qs, path(u"small"_qs), program(),
            path(u"in.wav"_qs), u"-b"_qs, u"320000"_qs, u"-o"_qs, path(u"small/out.m4a"_qs)});
    if (result.standardError.contains("No space left")) {
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.standardOutput, QByteArray());
    } else {
        EXPECT_NE(result.exitCode, 0);
        EXPECT_FALSE(result.standardError.contains("afconvert"))
            << result.standardError.constData();
    }
}

TEST_F(Afconvert, PlacesOnlyWhatIsCompleteAndNew)
{
    const std::string taken = path(u"taken.m4a"_qs).toStdString();
    for (const auto kind : {OutputFile::Kind::BestPossible, OutputFile::Kind::Named}) {
        OutputFile file(taken, kind);
        file.write(0, "ours", 4);
        // Another program is first.
        ASSERT_TRUE(MediaMaker::writeFile(path(u"taken.m4a"_qs), "theirs"));
        EXPECT_THROW(file.place(), ConvertError);
        EXPECT_EQ(MediaMaker::bytesOf(path(u"taken.m4a"_qs)), QByteArray("theirs"));
        ASSERT_TRUE(QFile::remove(path(u"taken.m4a"_qs)));
        EXPECT_NO_THROW(file.place());
        EXPECT_EQ(MediaMaker::bytesOf(path(u"taken.m4a"_qs)), QByteArray("ours"));
        ASSERT_TRUE(QFile::remove(path(u"taken.m4a"_qs)));
    }
    ASSERT_EQ(run({path(u"in.wav"_qs), u"-o"_qs, path(u"out.m4a"_qs)}).exitCode, 0);
    EXPECT_EQ(names(), (QStringList {u"in.wav"_qs, u"out.m4a"_qs}));
    const QByteArray whole = MediaMaker::bytesOf(path(u"out.m4a"_qs));
    const std::string copy = path(u"copy.m4a"_qs).toStdString();
    const auto verify = [this, &copy](const QByteArray &bytes) {
        EXPECT_TRUE(MediaMaker::writeFile(path(u"copy.m4a"_qs), bytes));
        M4aCheck::verify(copy, 20000, 21);
    };
    EXPECT_NO_THROW(verify(whole));
    EXPECT_THROW(verify(whole.left(whole.size() - 1)), ConvertError);
    EXPECT_THROW(verify(whole + "x"), ConvertError);
    EXPECT_THROW(M4aCheck::verify(copy, 19999, 21), ConvertError);
    QByteArray damaged = whole;
    damaged[damaged.indexOf("stsz") + 20] = 1;
    EXPECT_THROW(verify(damaged), ConvertError);
}
