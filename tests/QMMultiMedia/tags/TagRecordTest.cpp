// The record alone: its ID3 writer, byte by byte, and its decoding of what files say.

#include "AVMetadataIdentifiers.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "NativeMetaTags.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <sys/stat.h>

namespace {

using QMMultiMedia::NativeMetaTags;

/// A record that tests may fill.
class Record : public NativeMetaTags
{
public:
    using NativeMetaTags::m_imgAlbumArtwork;
    using NativeMetaTags::m_lstGenres;
    using NativeMetaTags::m_nTempo;
    using NativeMetaTags::m_strArtist;
    using NativeMetaTags::m_strComments;
    using NativeMetaTags::m_strGenre;
    using NativeMetaTags::m_strInputFile;
    using NativeMetaTags::m_strPicType;
    using NativeMetaTags::m_strSubTitle;
    using NativeMetaTags::m_strTitle;

    QByteArray tag() const
    {
        int size = 0;
        char *const block = saveId3v2(&size);
        const QByteArray bytes(block, size);
        std::free(block);
        return bytes;
    }
};

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

TEST(TagRecord, KnowsWhetherThereIsMetadata)
{
    Record record;
    EXPECT_FALSE(record.isMetaDataAvailable());
    record.m_strInputFile = u"/a"_qs;
    record.m_strPicType = u"PNG"_qs;
    EXPECT_FALSE(record.isMetaDataAvailable());
    record.m_nTempo = 0;
    EXPECT_TRUE(record.isMetaDataAvailable());
    record.reset();
    EXPECT_EQ(record.tempo(), -1);
    EXPECT_FALSE(record.isMetaDataAvailable());
    record.m_strSubTitle = u"x"_qs;
    EXPECT_TRUE(record.isMetaDataAvailable());
    ASSERT_EQ(record.m_lstGenres.size(), 126);
    EXPECT_EQ(record.m_lstGenres.at(79), u"Hard Rock"_qs);
    EXPECT_EQ(record.m_lstGenres.at(125), u"Dance Hall"_qs);
}

TEST(TagRecord, RemovesUnsynchronisationByTheInput)
{
    const Record record;
    EXPECT_EQ(record.decodeMp3Pic(hex("FF00E0")), hex("FFE0"));
    EXPECT_EQ(record.decodeMp3Pic(hex("FF0000")), hex("FF00"));
    EXPECT_EQ(record.decodeMp3Pic(hex("FFE0")), hex("FFE0"));
    EXPECT_EQ(record.decodeMp3Pic(hex("00FF00FF00")), hex("00FFFF"));
    EXPECT_TRUE(record.decodeMp3Pic({}).isEmpty());
}

TEST(TagRecord, WritesId3ByteForByte)
{
    Record record;
    const QByteArray name = QCoreApplication::applicationName().toUtf8();
    const auto frame = [](const char *id, const QByteArray &body) {
        return QByteArray(id) + hex("000000") + QByteArray(1, char(body.size())) + hex("0000")
            + body;
    };
    const QByteArray encoder = frame("TENC", '\x03' + name);
    EXPECT_EQ(record.tag(),
        hex("49443304000000000000").replace(9, 1, QByteArray(1, char(encoder.size()))) + encoder);

    record.m_strTitle = u"Ä"_qs;
    record.m_strArtist = QString(200, QLatin1Char('a'));
    record.m_strComments = u"c"_qs;
    record.m_strGenre = u"Trance"_qs;
    const QByteArray expected = encoder + frame("TCON", QByteArray(1, '\0') + "Trance")
        + frame("COMM", hex("03") + "eng" + hex("00") + "c") + QByteArray("TPE1")
        + hex("000000C90000") + '\x03' + QByteArray(200, 'a') + frame("TIT2", hex("03C384"));
    const QByteArray tag = record.tag();
    EXPECT_EQ(tag.mid(10), expected);
    const int size = expected.size();
    EXPECT_EQ(tag.mid(6, 4), QByteArray(2, '\0') + char(size >> 7) + char(size & 0x7F));

    record.m_strGenre = u"trance"_qs; // a name in another case isn't in the table
    EXPECT_FALSE(record.tag().contains("TCON"));
    EXPECT_TRUE(record.tag().contains("TIT2"));

    record.m_imgAlbumArtwork = QImage(4, 4, QImage::Format_RGB32);
    record.m_imgAlbumArtwork.fill(Qt::red);
    for (const char *type : {"PNG", "JPEG"}) {
        record.m_strPicType = QString::fromLatin1(type);
        const QByteArray mime = "image/" + QByteArray(type).toLower();
        const QByteArray all = record.tag();
        const int place = all.indexOf("APIC");
        ASSERT_GT(place, 0);
        EXPECT_EQ(
            all.mid(place + 8, 3 + mime.size() + 3), hex("000000") + mime + QByteArray(3, '\0'));
        QImage read;
        EXPECT_TRUE(read.loadFromData(all.mid(place + 14 + mime.size()), type));
    }
    record.m_strPicType.clear(); // not told: there is nothing to encode it as
    EXPECT_FALSE(record.tag().contains("APIC"));
}

TEST(TagRecord, PutsTheTagBeforeAnMp3AndKeepsTheFile)
{
    const QTemporaryDir dir;
    const QString file = dir.filePath(u"a.MP3"_qs);
    Record record;
    record.m_strTitle = u"T"_qs;
    EXPECT_TRUE(record.writeTo(file)) << "nothing to open is nothing to change";
    EXPECT_FALSE(QFileInfo::exists(file));
    ASSERT_TRUE(MediaMaker::writeFile(file, "sound"));
    EXPECT_TRUE(record.writeTo(file));
    EXPECT_EQ(MediaMaker::bytesOf(file), record.tag() + "sound");
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 1);
}

/// The most memory that this process ever had.
long peakKb()
{
    const QByteArray status = MediaMaker::bytesOf(u"/proc/self/status"_qs);
    return status.mid(status.indexOf("VmHWM:") + 6, 20).trimmed().split(' ').first().toLong();
}

TEST(TagRecord, DecodesPicturesWithinLimits)
{
    const Record record;
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QBuffer png;
    picture.save(&png, "PNG");
    EXPECT_EQ(record.byteArrayToImage(png.data(), true).size(), picture.size());
    // Bytes that only seem to be unsynchronised count as they are.
    QByteArray comment = png.data();
    comment.append(hex("FF00"));
    EXPECT_EQ(record.byteArrayToImage(comment, true).size(), picture.size());
    // 20,000 by 20,000 pixels claimed in a few bytes.
    QByteArray bomb = png.data();
    bomb.replace(8, 25, hex("0000000D4948445200004E2000004E2008020000006C12D16E"));
    const long before = peakKb();
    EXPECT_TRUE(record.byteArrayToImage(bomb, false).isNull());
    EXPECT_LT(peakKb() - before, 50'000);
    EXPECT_TRUE(record.byteArrayToImage("<svg width='5' height='5'/>", false).isNull());
    EXPECT_TRUE(record.byteArrayToImage({}, true).isNull());
}

TEST(TagRecord, RepairsTextAndReadsKeysAndNumbers)
{
    const Record record;
    EXPECT_EQ(record.nsToQString(u"plain"_qs), u"plain"_qs);
    EXPECT_EQ(record.nsToQString(u"\u00FFx"_qs), u"\u00FFx"_qs);
    const auto text = [](std::initializer_list<ushort> units) {
        QString result;
        for (const ushort unit : units) {
            result.append(QChar(unit));
        }
        return result;
    };
    // The low bytes of the first two units are the mark; all bytes behind it come in pairs.
    EXPECT_EQ(record.nsToQString(text({0x01FF, 0x41FE, 0x4200})), text({0x0041, 0x0042}));
    EXPECT_EQ(record.nsToQString(text({0x00FF, 0xFE00, 0x4200})), text({0x00FE, 0x0042}));

    EXPECT_EQ(record.keyString(0xA9646179U), u"@day"_qs);
    EXPECT_EQ(record.keyString(0x74726BU), u"trk"_qs);
    EXPECT_EQ(record.keyString(0U), u""_qs);
    EXPECT_EQ(record.keyString(u"TIT2"_qs), u"TIT2"_qs);
    EXPECT_EQ(record.keyString(1.5), u"<<unknown>>"_qs);

    const struct
    {
        const char16_t *given;
        const char16_t *result;
    } cases[] = {{u"3", u"3/3"}, {u"3/12", u"3/12"}, {u"3/", u"3/0"}, {u"/12", u"0/12"},
        {u"x/y", u"0/0"}, {u"a", u"0/0"}, {u"1/2/3", u"1/3"}};
    for (const auto &one : cases) {
        EXPECT_EQ(record.normalizedTrackDiscNumber(QString::fromUtf16(one.given)),
            QString::fromUtf16(one.result));
    }

    Record reporter;
    QStringList errors;
    QObject::connect(&reporter, &NativeMetaTags::error, &reporter,
        [&errors](const QString &line) { errors.append(line); });
    EXPECT_TRUE(reporter.checkResult(0, "opened"));
    EXPECT_FALSE(reporter.checkResult(0x7479703F, "opening failed"));
    EXPECT_FALSE(reporter.checkResult(-43, "opening failed"));
    EXPECT_EQ(errors,
        (QStringList {u"1954115647 : opening failed 'typ?'"_qs, u"-43 : opening failed "_qs}));
}

}
