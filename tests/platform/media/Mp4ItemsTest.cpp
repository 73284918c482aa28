// Atoms built by hand: the items that come of them, and what atoms that lie do.

#include "Mp4Items.h"
#include "AVAsset.h"
#include "AVMetadataIdentifiers.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "Mp4Rewriter.h"

#include <gtest/gtest.h>
#include <QBuffer>
#include <QElapsedTimer>
#include <QTemporaryDir>

namespace {

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

/// An item with one value; the type as eight digits.
QByteArray item(const QByteArray &name, const char *type, const QByteArray &value)
{
    const auto code = [](const QByteArray &text) { return text.toHex().toUInt(nullptr, 16); };
    return atomBytes(
        code(name), atomBytes(atomType("data"), hex(type) + QByteArray(4, '\0') + value));
}

QByteArray file(const QByteArray &userData)
{
    return atomBytes(atomType("ftyp"), "M4A ") + atomBytes(atomType("moov"), userData);
}

QList<MetadataFormat> read(const QByteArray &bytes)
{
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    return mp4Metadata(buffer);
}

TEST(Mp4Items, ComeInTheFilesOrderWithTheirTypes)
{
    const QByteArray name("\xA9nam");
    const QByteArray artist("\xA9"
                            "ART");
    const QByteArray ilst = item("zzzz", "00000000", "?") + item(artist, "00000001", "A")
        + item("trkn", "00000000", hex("000000050000000C")) + item("gnre", "00000000", hex("0001"))
        + item("tmpo", "00000015", hex("FFFE")) + item(name, "00000002", hex("0416D83DDE00"))
        + item("covr", "0000000D", "\x89PNG") + item(artist, "00000001", "B")
        + item(artist, "00000001", "A")
        + atomBytes(atomType("----"),
            atomBytes(atomType("mean"), QByteArray(4, '\0') + "com.apple.iTunes")
                + atomBytes(atomType("name"), QByteArray(4, '\0') + "ISRC")
                + atomBytes(atomType("data"), hex("0000000100000000") + "DE"));
    const QByteArray oldStyle = atomBytes(0xA9636D74, hex("000455C4") + "note");
    const QList<MetadataFormat> formats
        = read(file(atomBytes(atomType("udta"), oldStyle) + userDataWithItems(ilst)));
    ASSERT_EQ(formats.size(), 2);
    EXPECT_EQ(formats.at(0).name, AVMetadataFormatQuickTimeUserData);
    EXPECT_EQ(formats.at(0).items.first().stringValue(), u"note"_qs);
    const QList<AVMetadataItem> &items = formats.at(1).items;
    ASSERT_EQ(items.size(), 8);
    EXPECT_EQ(items.at(0).key(), QVariant(0x7A7A7A7AU));
    EXPECT_EQ(items.at(0).dataValue(), "?");
    EXPECT_TRUE(items.at(0).commonKey().isNull());
    EXPECT_EQ(items.at(1).stringValue(), u"A; B"_qs);
    EXPECT_EQ(items.at(1).commonKey(), AVMetadataCommonKeyArtist);
    EXPECT_EQ(items.at(2).dataValue(), hex("000000050000000C"));
    EXPECT_EQ(items.at(3).commonKey(), AVMetadataCommonKeyType);
    EXPECT_EQ(items.at(4).intValue(), -2);
    EXPECT_EQ(items.at(5).stringValue(), u"Ж😀"_qs);
    EXPECT_TRUE(items.at(6).dataType().endsWith(u"PNG"_qs)) << "the bytes count, not the label";
    EXPECT_EQ(items.at(7).key(), u"com.apple.iTunes.ISRC"_qs);

    // What was read is written again, atom by atom, but for the order of the second artist.
    EXPECT_EQ(read(file(userDataWithItems(encodedItems(items)))).first().items.size(), 8);
}

TEST(Mp4Items, SurviveAtomsThatLie)
{
    const QByteArray good = file(userDataWithItems(item("\xA9nam", "00000001", "title")));
    const int place = good.indexOf("\xA9nam") - 4;
    const auto with = [&](int at, const char *digits) {
        const QByteArray bytes = hex(digits);
        return QByteArray(good).replace(at, bytes.size(), bytes);
    };
    QByteArray nested;
    for (int i = 0; i < 5000; ++i) {
        nested = atomBytes(atomType("udta"), nested);
    }
    QByteArray longSize = hex("00000001") + "moov" + hex("FFFFFFFFFFFFFFFF") + good.mid(12);
    const struct
    {
        const char *name;
        QByteArray bytes;
        bool isRead; ///< the title is found
    } cases[] = {
        {"size 0 goes to the end", with(place, "00000000"), true},
        {"4 GB claimed", with(place, "FFFFFFFF"), true},
        {"4 GB claimed by the value", with(place + 8, "FFFFFFFF"), true},
        {"64 bits of nonsense", with(place, "00000001"), false},
        {"64 bits claimed by the index", longSize, false},
        {"size below a header", with(place, "00000007"), false},
        {"index of size 0", with(12, "00000000"), true},
        {"nested", file(nested), false},
        {"nothing but a header", good.left(20), false},
        {"cut in the value", good.left(good.size() - 3), true},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.name);
        const QList<MetadataFormat> formats = read(one.bytes);
        EXPECT_EQ(
            !formats.isEmpty() && formats.first().items.first().stringValue().startsWith(u"ti"_qs),
            one.isRead);
    }
}

TEST(Mp4Items, AreReadInBoundedTime)
{
    QElapsedTimer timer;
    timer.start();
    // Many empty atoms, a thousand pictures, one name again and again, a text of 10 MB.
    QByteArray empty;
    for (int i = 0; i < 1'000'000; ++i) {
        empty += hex("0000000866726565");
    }
    QByteArray pictures;
    for (int i = 0; i < 1000; ++i) {
        pictures += atomBytes(atomType("data"), hex("0000000E00000000") + QByteArray(20'000, 'p'));
    }
    QByteArray names;
    for (int i = 0; i < 100'000; ++i) {
        names += item("\xA9"
                      "ART",
            "00000001", QByteArray::number(i).leftJustified(100, 'a'));
    }
    EXPECT_TRUE(read(empty + file(userDataWithItems(names))).isEmpty());
    const auto covers = read(file(userDataWithItems(atomBytes(atomType("covr"), pictures))));
    EXPECT_EQ(covers.first().items.size(), 1);
    EXPECT_LT(
        read(file(userDataWithItems(names))).first().items.first().stringValue().size(), 200'000);
    const auto text
        = read(file(userDataWithItems(item("\xA9nam", "00000001", QByteArray(10'000'000, 't')))));
    EXPECT_EQ(text.first().items.first().stringValue().size(), 10'000'000);
    EXPECT_LT(timer.elapsed(), 20'000);
}

/// An ID3v2 tag of frames, with a size that may lie.
QByteArray id3(char version, const QByteArray &frames, int size = -1)
{
    const int bytes = size < 0 ? frames.size() : size;
    QByteArray head = QByteArray("ID3") + version + QByteArray(2, '\0');
    for (int shift = 21; shift >= 0; shift -= 7) {
        head += static_cast<char>(bytes >> shift & 0x7F);
    }
    return head + frames;
}

QByteArray frame(const char *id, const QByteArray &body, const char *size = nullptr)
{
    const QByteArray plain = hex("000000") + static_cast<char>(body.size());
    return QByteArray(id) + (size == nullptr ? plain : hex(size)) + QByteArray(2, '\0') + body;
}

/// The item of a frame id in a file with this tag.
AVMetadataItem first(const QByteArray &tag, const QString &id)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(u"a.mp3"_qs);
    EXPECT_TRUE(MediaMaker::writeFile(path, tag + hex("FFFB9064") + QByteArray(2000, '\0')));
    const AVAsset asset = AVAsset::assetWithURL(QUrl::fromLocalFile(path));
    AVMetadataItem found;
    for (const AVMetadataItem &one : asset.metadataForFormat(AVMetadataFormatID3Metadata)) {
        if (one.key() == id) {
            found = one;
        }
    }
    return found;
}

TEST(Id3Tags, OneItemAFieldAndNumbersOfGenres)
{
    const auto genre = [&](char version, const QByteArray &text) {
        return first(id3(version, frame("TCON", text)), u"TCON"_qs);
    };
    EXPECT_EQ(genre(3, QByteArray("\0(31)", 5)).numberValue(), QVariant(31U));
    EXPECT_EQ(genre(3, QByteArray("\0(31)Mine", 9)).numberValue(), QVariant(31U));
    EXPECT_EQ(genre(4,
                  QByteArray("\0"
                             "31\0Mine",
                      8))
                  .numberValue(),
        QVariant(31U));
    EXPECT_EQ(genre(4, QByteArray("\0One\0Two", 8)).stringValue(), u"One; Two"_qs);
    EXPECT_FALSE(genre(4, QByteArray("\0One", 4)).numberValue().isValid());

    const QByteArray comments = frame("COMM", QByteArray("\0engiTunNORM\0 00", 16))
        + frame("COMM", QByteArray("\0eng\0real", 9))
        + frame("TBPM",
            QByteArray("\0"
                       "120.5",
                6));
    EXPECT_EQ(first(id3(4, comments), u"COMM"_qs).stringValue(), u"real"_qs);
    EXPECT_EQ(first(id3(4, comments), u"TBPM"_qs).value(), QVariant(120));
    // A UTF-16 text that is cut, half a surrogate pair in it.
    EXPECT_EQ(first(id3(4,
                        frame("TIT2",
                            hex("01FFFE410000D8"
                                "42"))),
                  u"TIT2"_qs)
                  .stringValue(),
        u"A\uFFFD"_qs);
    // The front cover, unsynchronised again; the whole tag may be unsynchronised as well.
    const QByteArray pictures = frame("APIC", QByteArray("\0image/png\0\0\0", 13) + hex("01FF0002"))
        + frame("APIC", QByteArray("\0image/png\0\3\0", 13) + hex("FF00FFE0FF"));
    EXPECT_EQ(first(id3(3, pictures), u"APIC"_qs).dataValue(), hex("FF0000FF00E0FF00"));
    // Frames that claim more than there is.
    EXPECT_EQ(first(id3(4,
                        frame("TIT2", QByteArray("\0T", 2))
                            + frame("TPE1", QByteArray("\0A", 2), "7F7F7F7F")),
                  u"TIT2"_qs)
                  .stringValue(),
        u"T"_qs);
    EXPECT_NO_FATAL_FAILURE(first(id3(4, frame("TIT2", "\0T"), 0x0FFFFFFF), u"TIT2"_qs));
}

TEST(Id3Tags, PassOverEmptyEqualAndLinkedValues)
{
    const auto text
        = [](const char *id, const QByteArray &value) { return frame(id, '\3' + value); };
    const QByteArray note = text("COMM", QByteArray("eng\0", 4));
    const QByteArray user = text("TXXX", QByteArray("comment\0mine", 12));
    const QByteArray noUser = text("TXXX", QByteArray("comment\0", 8));
    const QByteArray picture = frame("APIC", QByteArray("\0image/png\0\0\0", 13) + "picture");
    const QByteArray link = frame("APIC", QByteArray("\0-->\0\3\0", 7) + "http://example.org");
    const struct
    {
        const char *name;
        QByteArray tag;
        const char16_t *id;
        const char16_t *value;
    } cases[] = {
        {"comment", id3(4, note + note + text("COMM", QByteArray("XXX\0real", 8))), u"COMM",
            u"real"},
        {"comment of the user's", id3(4, note + user + noUser), u"COMM", u"mine"},
        {"title", id3(4, text("TIT2", QByteArray(2, '\0')) + text("TIT2", "second")), u"TIT2",
            u"second"},
        {"year", id3(4, text("TDRC", "") + text("TYER", "1999")), u"TYER", u"1999"},
        {"equal artists",
            id3(4, text("TPE1", QByteArray("X\0X\0Y", 5)) + text("TPE1", "Y") + text("TPE1", "Z")),
            u"TPE1", u"X; Y; Z"},
    };
    for (const auto &one : cases) {
        EXPECT_EQ(
            first(one.tag, QString::fromUtf16(one.id)).stringValue(), QString::fromUtf16(one.value))
            << one.name;
    }
    EXPECT_EQ(first(id3(4, picture + link), u"APIC"_qs).dataValue(), "picture");
    const QByteArray oldLink = "PIC" + hex("000009") + QByteArray("\0-->\3\0abc", 9);
    EXPECT_TRUE(first(id3(2, oldLink), u"APIC"_qs).dataValue().isEmpty());
}

TEST(AVAsset, RefusesWhatIsNoRegularFile)
{
    const QTemporaryDir dir;
    const QString pipe = dir.filePath(u"pipe.mp3"_qs);
    ASSERT_EQ(MediaMaker::runTool(u"mkfifo"_qs, {pipe}).exitCode, 0);
    const QString sound = dir.filePath(u"a.mp3"_qs);
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=d=2"_qs, sound}));
    // A list of other files is no sound, even if those are.
    const QString list = dir.filePath(u"list.m3u8"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(list,
        "#EXTM3U\n#EXT-X-TARGETDURATION:5\n#EXTINF:5,\n" + sound.toUtf8() + "\n#EXT-X-ENDLIST\n"));
    for (const QString &path :
        {pipe, u"/dev/zero"_qs, list, dir.path(), dir.filePath(u"none"_qs)}) {
        const AVAsset asset = AVAsset::assetWithURL(QUrl::fromLocalFile(path));
        EXPECT_FALSE(asset.isPlayable());
        EXPECT_TRUE(asset.availableMetadataFormats().isEmpty());
    }
    const AVAsset asset = AVAsset::assetWithURL(QUrl::fromLocalFile(sound));
    EXPECT_TRUE(asset.isPlayable());
    EXPECT_NEAR(CMTimeGetSeconds(asset.duration()), 2.0, 0.1);
}

}
