// Writing tags into M4A files: what changes, what stays, and what happens when it can't be done.

#include "AtomReader.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "NativeMetaTags.h"
#include "PendingExports.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <QBuffer>
#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

using QMMultiMedia::NativeMetaTags;
using QMMultiMedia::TagReceipt;

class TagWriter : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const QString wave = m_dir.filePath(u"a.wav"_qs);
        ASSERT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs,
            u"sine=f=300:d=3:r=44100"_qs, u"-ac"_qs, u"2"_qs, wave}));
        ASSERT_EQ(MediaMaker::runTool(QCoreApplication::applicationDirPath() + u"/afconvert"_qs,
                      {wave, u"-o"_qs, m_file, u"-q"_qs, u"64"_qs, u"-b"_qs, u"128000"_qs, u"-f"_qs,
                          u"m4af"_qs, u"-d"_qs, u"aac "_qs})
                      .exitCode,
            0);
        ASSERT_TRUE(MediaMaker::ffmpeg({u"-i"_qs, wave, u"-metadata"_qs, u"title=T"_qs,
            u"-metadata"_qs, u"TPE2=Choir"_qs, u"-id3v2_version"_qs, u"4"_qs, m_source}));
        QFile::remove(wave);
    }

    QStringList names() const { return QDir(m_dir.path()).entryList(QDir::Files, QDir::Name); }

    const QTemporaryDir m_dir;
    const QString m_file = m_dir.filePath(u"b.c.m4a"_qs);
    const QString m_source = m_dir.filePath(u"source.mp3"_qs);
};

/// The bytes of the first track of a file, less the entries of its chunk table, and what its
/// gapless item says.
struct Sound
{
    QByteArray track;
    QByteArray gapless;
    bool isIndexInFront = false;
};

Sound soundOf(const QString &file)
{
    Sound sound;
    QByteArray bytes = MediaMaker::bytesOf(file);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    AtomReader atoms(buffer);
    const auto inside = [&atoms](const Atom &atom, quint32 type) {
        const auto found = atoms.find(atom.body, atom.end, type);
        return found ? *found : Atom();
    };
    const Atom moov = inside(atoms.root(), atomType("moov"));
    sound.isIndexInFront = moov.start < inside(atoms.root(), atomType("mdat")).start;
    const Atom trak = inside(moov, atomType("trak"));
    const Atom stbl
        = inside(inside(inside(trak, atomType("mdia")), atomType("minf")), atomType("stbl"));
    const Atom stco = inside(stbl, atomType("stco"));
    sound.track = atoms.bytes(trak.start, stco.body + 8) + atoms.bytes(stco.end, trak.end);
    const int place = bytes.indexOf("iTunSMPB");
    sound.gapless = place < 0 ? QByteArray() : bytes.mid(place, 8 + 16 + 4 * 9);
    return sound;
}

QByteArray packets(const QString &file)
{
    return MediaMaker::runTool(u"ffmpeg"_qs,
        {u"-v"_qs, u"error"_qs, u"-i"_qs, file, u"-map"_qs, u"0:a"_qs, u"-c"_qs, u"copy"_qs,
            u"-f"_qs, u"framehash"_qs, u"-"_qs})
        .standardOutput;
}

TEST_F(TagWriter, LeavesTheSoundBitForBit)
{
    const Sound before = soundOf(m_file);
    const QByteArray packetsBefore = packets(m_file);
    ASSERT_GT(packetsBefore.count('\n'), 100);
    ASSERT_FALSE(before.gapless.isEmpty());
    for (int round = 0; round < 2; ++round) {
        NativeMetaTags tags;
        ASSERT_TRUE(tags.copyAVAssets(m_source, m_file));
        PendingExports::waitForAll();
        ASSERT_EQ(tags.receipt()->state(), TagReceipt::State::Written)
            << qPrintable(tags.receipt()->error());
        EXPECT_EQ(tags.receipt()->lost(), QStringList(u"album artist"_qs));
        const Sound after = soundOf(m_file);
        EXPECT_TRUE(after.isIndexInFront);
        EXPECT_EQ(after.track, before.track);
        EXPECT_EQ(after.gapless, before.gapless);
        EXPECT_EQ(packets(m_file), packetsBefore);
        EXPECT_EQ(MediaMaker::probe(m_file, u"format_tags=title"_qs), u"T"_qs);
    }
    EXPECT_EQ(names(), (QStringList {u"b.c.m4a"_qs, u"source.mp3"_qs}));
}

TEST_F(TagWriter, TakesAFreeTemporaryNameAndLeavesTheOthersAlone)
{
    const QString first = m_dir.filePath(u"b.c_temp.m4a"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(first, "mine"));
    NativeMetaTags tags;
    ASSERT_TRUE(tags.copyAVAssets(m_source, m_file));
    // The name is taken when the call returns, or the export is over already.
    EXPECT_TRUE(QFile::exists(m_dir.filePath(u"b.c_temp 2.m4a"_qs))
        || tags.receipt()->state() == TagReceipt::State::Written);
    PendingExports::waitForOutput(m_dir.filePath(u"b.c_temp 2.m4a"_qs));
    EXPECT_EQ(tags.receipt()->state(), TagReceipt::State::Written);
    EXPECT_EQ(MediaMaker::bytesOf(first), "mine");
    EXPECT_EQ(names().size(), 3);

    const QString longName = m_dir.filePath(QString(125, QChar(u'ä')) + u".m4a"_qs);
    ASSERT_TRUE(QFile::rename(m_file, longName));
    ASSERT_TRUE(tags.copyAVAssets(m_source, longName));
    PendingExports::waitForAll();
    EXPECT_EQ(tags.receipt()->state(), TagReceipt::State::Written);
    EXPECT_EQ(names().size(), 3);
}

TEST_F(TagWriter, LeavesAFileThatCantBeTaggedAsItWas)
{
    const QByteArray whole = MediaMaker::bytesOf(m_file);
    const QString fragmented = m_dir.filePath(u"fragmented.m4a"_qs);
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-i"_qs, m_file, u"-c"_qs, u"copy"_qs, u"-movflags"_qs,
        u"frag_keyframe+empty_moov"_qs, fragmented}));
    const struct
    {
        const char *name;
        QByteArray bytes;
        const char16_t *error;
    } cases[] = {
        {"cut", whole.left(whole.size() - 1), u"it is damaged or cut"},
        {"cut in an atom's header", whole + "abc", u"it is damaged or cut"},
        {"fragmented", MediaMaker::bytesOf(fragmented), u"it is a fragmented file"},
        {"no MPEG-4", "RIFF", u"it is damaged or cut"},
        {"empty", "", u"it is not an MPEG-4 file with one index"},
        {"offsets outside", QByteArray(whole).replace("mdat", "free"),
            u"its index points outside the sound"},
        {"no track", QByteArray(whole).replace("trak", "free"), u"it has no sound"},
        {"no table", QByteArray(whole).replace("stbl", "free"), u"a track of it is damaged"},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.name);
        const QString file = m_dir.filePath(u"bad.m4a"_qs);
        ASSERT_TRUE(MediaMaker::writeFile(file, one.bytes));
        NativeMetaTags tags;
        EXPECT_TRUE(tags.copyAVAssets(m_source, file));
        PendingExports::waitForAll();
        EXPECT_EQ(tags.receipt()->state(), TagReceipt::State::Failed);
        EXPECT_EQ(tags.receipt()->error(), QString::fromUtf16(one.error));
        EXPECT_EQ(MediaMaker::bytesOf(file), one.bytes);
        EXPECT_EQ(names().size(), 4) << "no temporary file stays";
    }
}

TEST_F(TagWriter, WritesNothingWithoutTags)
{
    const QByteArray before = MediaMaker::bytesOf(m_file);
    const QString plain = m_dir.filePath(u"plain.txt"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(plain, "no sound"));
    NativeMetaTags tags;
    EXPECT_FALSE(tags.copyAVAssets(plain, m_file));
    EXPECT_EQ(tags.receipt()->state(), TagReceipt::State::Nothing);
    EXPECT_FALSE(tags.copyAVAssets(m_dir.filePath(u"missing.mp3"_qs), m_file));
    EXPECT_EQ(PendingExports::count(), 0);
    EXPECT_EQ(MediaMaker::bytesOf(m_file), before);
}

TEST_F(TagWriter, GivesEachFileItsOwnPicture)
{
    // What is remembered of the last picture is another one's, the same one's, and too large. One
    // is wider than a JPEG picture can be.
    struct Cover
    {
        const char *colour;
        int width;
        int height;
    };
    for (const Cover &cover : {Cover {"#ff0000", 300, 300}, Cover {"#0000ff", 300, 300},
             Cover {"#0000ff", 300, 300}, Cover {"#00ff00", 3600, 3600},
             Cover {"#ff0000", 300, 300}, Cover {"#0000ff", 70'000, 16}, Cover {"", 0, 0}}) {
        const QString source = m_dir.filePath(u"cover.mp3"_qs);
        const QString file = m_dir.filePath(u"covered.m4a"_qs);
        ASSERT_TRUE(QFile::copy(m_file, file));
        if (cover.width == 0) {
            ASSERT_TRUE(QFile::copy(m_source, source));
        } else {
            const QString picture = m_dir.filePath(u"cover.png"_qs);
            QImage image(cover.width, cover.height, QImage::Format_RGB32);
            image.fill(QColor(QLatin1String(cover.colour)));
            ASSERT_TRUE(image.save(picture));
            ASSERT_TRUE(MediaMaker::ffmpeg(
                {u"-i"_qs, m_source, u"-i"_qs, picture, u"-map"_qs, u"0"_qs, u"-map"_qs, u"1"_qs,
                    u"-c:v"_qs, u"copy"_qs, u"-disposition:v"_qs, u"attached_pic"_qs, source}));
        }
        NativeMetaTags tags;
        ASSERT_TRUE(tags.copyAVAssets(source, file));
        PendingExports::waitForOutput(m_dir.filePath(u"covered_temp.m4a"_qs));
        const QByteArray bytes
            = MediaMaker::runTool(u"exiftool"_qs, {u"-b"_qs, u"-CoverArt"_qs, file}).standardOutput;
        const QImage picture = QImage::fromData(bytes);
        EXPECT_EQ(picture.width(), qMin(cover.width, 65'500)) << cover.colour;
        EXPECT_FALSE(tags.receipt()->lost().contains(u"picture"_qs));
        if (cover.width > 0) {
            const QColor wanted {QLatin1String(cover.colour)};
            const QColor got = picture.pixelColor(9, 9);
            EXPECT_LT(std::abs(wanted.red() - got.red()) + std::abs(wanted.green() - got.green())
                    + std::abs(wanted.blue() - got.blue()),
                20)
                << cover.colour;
        }
        QFile::remove(source);
        QFile::remove(file);
    }
}

long residentKb()
{
    const QByteArray status = MediaMaker::bytesOf(u"/proc/self/status"_qs);
    return status.mid(status.indexOf("VmRSS:") + 6, 20).trimmed().split(' ').first().toLong();
}

TEST_F(TagWriter, FiveHundredFilesWithOneCoverTakeConstantMemory)
{
    const QString cover = m_dir.filePath(u"cover.png"_qs);
    const QString source = m_dir.filePath(u"cover.flac"_qs);
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"testsrc2=s=320x320"_qs,
        u"-frames:v"_qs, u"1"_qs, cover}));
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-i"_qs, m_source, source}));
    ASSERT_EQ(MediaMaker::runTool(u"metaflac"_qs, {u"--import-picture-from="_qs + cover, source})
                  .exitCode,
        0);
    long afterFifty = 0;
    for (int i = 0; i < 500; ++i) {
        const QString file = m_dir.filePath(u"%1.m4a"_qs.arg(i));
        ASSERT_TRUE(QFile::copy(m_file, file));
        NativeMetaTags tags;
        ASSERT_TRUE(tags.copyAVAssets(source, file));
        PendingExports::waitForOutput(m_dir.filePath(u"%1_temp.m4a"_qs.arg(i)));
        ASSERT_EQ(tags.receipt()->state(), TagReceipt::State::Written);
        QFile::remove(file);
        if (i == 50) {
            afterFifty = residentKb();
        }
    }
#ifdef __SANITIZE_ADDRESS__ // which keeps freed memory for a while
    constexpr long limitKb = 512 * 1024;
#else
    constexpr long limitKb = 4096;
#endif
    EXPECT_LT(residentKb() - afterFifty, limitKb);
}

}
