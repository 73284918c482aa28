#include "ConsoleArguments.h"
#include "ConsoleProgress.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <csignal>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <sys/stat.h>

using MediaMaker::filesBelow;
using MediaMaker::runTool;
using MediaMaker::ToolResult;

namespace {

class ConsoleTest : public ::testing::Test
{
protected:
    void SetUp() override { QDir().mkpath(in(QString())); }

    QString in(const QString &name) const { return m_scratch.path() + u"/in/"_qs + name; }
    QString out() const { return m_scratch.path() + u"/out"_qs; }

    static QString program()
    {
        return QCoreApplication::applicationDirPath() + u"/calderin-m4a-batch"_qs;
    }

    QString tone(const QString &name, int seconds = 1)
    {
        QDir().mkpath(QFileInfo(in(name)).path());
        EXPECT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs,
            u"sine=frequency=440:sample_rate=44100:duration="_qs + QString::number(seconds),
            u"-ac"_qs, u"2"_qs, u"-metadata"_qs, u"title=Tone"_qs, in(name)}));
        return in(name);
    }

    ToolResult convert(const QStringList &paths)
    {
        return runTool(program(), QStringList {u"--destination"_qs, out()} + paths, 120000);
    }

    static QString lastLine(const QByteArray &text)
    {
        return QString::fromUtf8(text).trimmed().section(u'\n', -1);
    }

    /// Every packet decodes, and the length is that of the source to the sample.
    static bool isWhole(const QString &file, int seconds)
    {
        return MediaMaker::probe(file, u"stream=duration_ts"_qs) == QString::number(seconds * 44100)
            && MediaMaker::decode(file, u"s16le"_qs).size() >= seconds * 44100 * 4;
    }

    QTemporaryDir m_scratch;
};

}

TEST(ConsoleArguments, TellsPathsFromOptions)
{
    struct Case
    {
        QStringList arguments;
        ConsoleArguments::Action action;
        QStringList paths;
        QString destination;
    };
    using Action = ConsoleArguments::Action;
    const std::vector<Case> cases {
        {{u"/a"_qs, u"/b c"_qs}, Action::Run, {u"/a"_qs, u"/b c"_qs}, {}},
        {{u"--destination"_qs, u"/d"_qs, u"/a"_qs}, Action::Run, {u"/a"_qs}, u"/d/"_qs},
        {{u"--destination=/d/"_qs, u"/a"_qs}, Action::Run, {u"/a"_qs}, u"/d/"_qs},
        {{u"--"_qs, u"--help"_qs}, Action::Run, {QDir::currentPath() + u"/--help"_qs}, {}},
        {{u"/a"_qs, u"--help"_qs}, Action::Help, {u"/a"_qs}, {}},
        {{u"--version"_qs}, Action::Version, {}, {}},
        {{u"--destination"_qs}, Action::Wrong, {}, {}},
        {{u"--fast"_qs, u"/a"_qs}, Action::Wrong, {}, {}},
        {{}, Action::Wrong, {}, {}},
        {{QString()}, Action::Wrong, {}, {}},
    };
    for (const Case &c : cases) {
        const ConsoleArguments result = ConsoleArguments::parse(c.arguments);
        EXPECT_EQ(result.action, c.action) << c.arguments.join(u' ').toStdString();
        EXPECT_EQ(result.message.isEmpty(), c.action != Action::Wrong);
        EXPECT_EQ(result.paths, c.paths);
        EXPECT_EQ(result.destination, c.destination);
    }
    EXPECT_EQ(ConsoleProgress::clock(187), u"3:07"_qs);
    EXPECT_EQ(ConsoleProgress::clock(3909), u"1:05:09"_qs);
}

TEST_F(ConsoleTest, ConvertsAFolderAndSaysWhatCameOfIt)
{
    tone(u"album/a.flac"_qs);
    tone(u"album/sub/b.mp3"_qs);
    tone(QString::fromUtf8("album/\xd0\xbf\xd0\xb5\xd1\x81\xd0\xbd\xd1\x8f \xf0\x9f\x8e\xb5.ogg"));
    ASSERT_TRUE(MediaMaker::writeFile(in(u"album/broken.mp3"_qs), "ID3 not sound"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(in(u"album/pipe.wav"_qs)).constData(), 0600), 0);

    const ToolResult result = convert({in(u"album"_qs)});
    EXPECT_EQ(result.exitCode, 1);
    const QString folder = lastLine(result.standardOutput);
    EXPECT_EQ(QString::fromUtf8(result.standardOutput), folder + u"\n"_qs);
    EXPECT_EQ(filesBelow(folder),
        QStringList({u"album/a.m4a"_qs, u"album/sub/b.m4a"_qs,
            QString::fromUtf8(
                "album/\xd0\xbf\xd0\xb5\xd1\x81\xd0\xbd\xd1\x8f \xf0\x9f\x8e\xb5.m4a")}));
    const QString words = QString::fromUtf8(result.standardError);
    EXPECT_TRUE(words.startsWith(u"Converting "_qs)) << words.toStdString();
    EXPECT_TRUE(words.contains(u"Can not convert: "_qs + in(u"album/broken.mp3"_qs)))
        << words.toStdString();
    EXPECT_TRUE(words.contains(u"/a.m4a  0:01  +"_qs)) << words.toStdString();
    EXPECT_EQ(MediaMaker::probe(folder + u"/album/a.m4a"_qs, u"format_tags=title"_qs), u"Tone"_qs);
    EXPECT_EQ(MediaMaker::probe(folder + u"/album/a.m4a"_qs, u"stream=codec_name"_qs), u"aac"_qs);
}

TEST_F(ConsoleTest, TellsOfACoverThatIsTheOnlyTagAndCantBeRead)
{
    const QString plain = in(u"plain.mp3"_qs);
    ASSERT_TRUE(MediaMaker::ffmpeg(
        {u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=d=1"_qs, u"-id3v2_version"_qs, u"0"_qs, plain}));
    const QByteArray frame = QByteArray("APIC\0\0\0\x16\0\0\0image/jpeg\0\3\0", 24) + "no image";
    const QByteArray head = QByteArray("ID3\3\0\0\0\0\0", 9) + char(frame.size());
    ASSERT_TRUE(MediaMaker::writeFile(in(u"a.mp3"_qs), head + frame + MediaMaker::bytesOf(plain)));
    const ToolResult result = convert({in(u"a.mp3"_qs)});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.standardError.contains("  tags lost: picture\n"))
        << result.standardError.constData();
}

TEST_F(ConsoleTest, RefusesBeforeAnythingIsMade)
{
    const QString file = tone(u"a.wav"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(in(u"note.txt"_qs), "x"));
    const std::vector<QStringList> cases {
        {u"--destination"_qs, file, file},
        {u"--destination"_qs, u"/proc/none"_qs, file},
        {u"--destination"_qs, out(), in(u"missing.wav"_qs)},
        {u"--destination"_qs, out(), in(u"note.txt"_qs)},
        {u"--bogus"_qs, file},
        {},
    };
    for (const QStringList &arguments : cases) {
        const ToolResult result = runTool(program(), arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments.join(u' ').toStdString();
        EXPECT_EQ(result.standardError.count('\n'), 1) << result.standardError.constData();
        EXPECT_TRUE(result.standardOutput.isEmpty());
    }
    EXPECT_FALSE(QFileInfo::exists(out()));
    EXPECT_EQ(runTool(program(), {u"--help"_qs}).exitCode, 0);
    EXPECT_EQ(runTool(program(), {u"--version"_qs}).standardOutput,
        "Calderin M4A " CALDERIN_VERSION "\n");
}

TEST_F(ConsoleTest, FinishesTheFileAtHandOnAnInterrupt)
{
    for (int i = 0; i < 40; ++i) {
        ASSERT_TRUE(QFile::copy(tone(u"a.wav"_qs, 20), in(QString::asprintf("f%02d.wav", i))));
    }
    std::signal(SIGINT, SIG_DFL); // a script's background job has it ignored, and so its children
    QProcess process;
    process.start(program(), {u"--destination"_qs, out(), in(QString())});
    // The first finished file shows that the run is in the middle.
    ASSERT_TRUE(MediaMaker::waitFor(
        [this] { return !filesBelow(out()).filter(u".m4a"_qs).isEmpty(); }, 60000));
    ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 130);
    const QStringList files = filesBelow(out());
    EXPECT_LT(files.size(), 40);
    for (const QString &file : files) {
        EXPECT_TRUE(file.endsWith(u".m4a"_qs)) << file.toStdString();
        EXPECT_TRUE(isWhole(out() + u"/"_qs + file, 20)) << file.toStdString();
    }
}

TEST_F(ConsoleTest, LeavesNoDamagedFileWhenItIsKilled)
{
    tone(u"long.wav"_qs, 60);
    const QByteArray before = MediaMaker::hashOfFile(in(u"long.wav"_qs));
    // Killed after ever more time, so that it happens in different stages.
    for (int delay = 100; delay <= 1600; delay *= 2) {
        QProcess process;
        process.start(program(), {u"--destination"_qs, out(), in(QString())});
        ASSERT_TRUE(process.waitForStarted());
        process.waitForFinished(delay);
        process.kill();
        process.waitForFinished();
    }
    EXPECT_EQ(MediaMaker::hashOfFile(in(u"long.wav"_qs)), before);
    // The converter is a process of its own: what it still finishes is complete as well.
    for (const QString &file : filesBelow(out()).filter(u".m4a"_qs)) {
        const QString path = out() + u"/"_qs + file;
        if (QFileInfo(path).size() > 0) {
            EXPECT_TRUE(isWhole(path, 60)) << file.toStdString();
        }
    }
}

TEST_F(ConsoleTest, NamesARunTheSameWayInEveryLanguage)
{
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "ar_EG.UTF-8"); // it has digits of its own
    const ToolResult result = convert({tone(u"a.wav"_qs)});
    if (before.isEmpty()) {
        qunsetenv("LC_ALL");
    } else {
        qputenv("LC_ALL", before);
    }
    const QRegularExpression form(u"/\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d/$"_qs);
    EXPECT_TRUE(form.match(lastLine(result.standardOutput)).hasMatch())
        << result.standardOutput.constData();
}

TEST_F(ConsoleTest, ReplacesNonsenseInTheStoreAndGoesOn)
{
    tone(u"a.wav"_qs);
    const QString support = QDir::homePath() + u"/Library/Application Support/Calderin M4A/"_qs;
    QDir().mkpath(support);
    ASSERT_TRUE(MediaMaker::writeFile(support + u"settings.plist"_qs,
        "[Calderin%20M4A]\nKeySampleRate=banana\nKeyChanels=77\nKeyBitsPersample=-3\n"
        "KeyFadeIn=@Variant(junk\nKeyFadeInOutActive=maybe\n"));
    const ToolResult result = convert({in(QString())});
    EXPECT_TRUE(QFile::remove(support + u"settings.plist"_qs));
    EXPECT_EQ(result.exitCode, 0) << result.standardError.constData();
    const QStringList files = filesBelow(lastLine(result.standardOutput));
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(MediaMaker::probe(lastLine(result.standardOutput) + u"/"_qs + files.first(),
                  u"stream=sample_rate,channels"_qs),
        u"44100\n2"_qs);
}
