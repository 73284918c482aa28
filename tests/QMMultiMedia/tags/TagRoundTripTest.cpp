// Tags of real files of many formats, written by independent tools, carried into an M4A file that
// our converter made, and read back by independent tools.

#include "Literals.h"
#include "MediaMaker.h"
#include "NativeMetaTags.h"
#include "PendingExports.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>

namespace {

using Fields = QMap<QString, QString>; ///< by the words that exiftool has for them

const QString otherScripts = u"Пластинка 音楽 עברית 🎵"_qs;

/// All that can travel.
Fields allFields()
{
    return {{u"Title"_qs, otherScripts}, {u"Artist"_qs, u"Ana; Бо; 陳"_qs},
        {u"Album"_qs, u"Käse & Söhne"_qs}, {u"Composer"_qs, u"Dvořák"_qs},
        {u"Genre"_qs, u"Trance"_qs}, {u"ContentCreateDate"_qs, u"2003"_qs},
        {u"Comment"_qs, u"one, two"_qs}, {u"Copyright"_qs, u"℗ 2003 Ana"_qs},
        {u"Grouping"_qs, u"Suite"_qs}, {u"TrackNumber"_qs, u"5 of 12"_qs},
        {u"DiskNumber"_qs, u"1 of 2"_qs}, {u"BeatsPerMinute"_qs, u"97"_qs}};
}

struct Source
{
    const char *name;
    const char16_t *suffix;
    std::function<bool(const QString &file, const QString &cover)> make;
    QStringList missing; ///< the fields that the format or the tool can't carry
    Fields other; ///< values that differ from the usual ones
    bool hasCover = true;
};

class TagRoundTrip : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_dir = new QTemporaryDir;
        s_wave = s_dir->filePath(u"plain.wav"_qs);
        s_converted = s_dir->filePath(u"converted.m4a"_qs);
        s_png = s_dir->filePath(u"cover.png"_qs);
        s_jpeg = s_dir->filePath(u"cover.jpg"_qs);
        ASSERT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs,
            u"sine=f=440:d=0.5:r=44100"_qs, u"-ac"_qs, u"2"_qs, u"-bitexact"_qs, s_wave}));
        ASSERT_EQ(MediaMaker::runTool(QCoreApplication::applicationDirPath() + u"/afconvert"_qs,
                      {s_wave, u"-o"_qs, s_converted, u"-q"_qs, u"64"_qs, u"-b"_qs, u"128000"_qs,
                          u"-f"_qs, u"m4af"_qs, u"-d"_qs, u"aac "_qs})
                      .exitCode,
            0);
        QImage picture(48, 48, QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                picture.setPixel(x, y, qRgb(5 * x, 5 * y, 200 - 2 * x));
            }
        }
        ASSERT_TRUE(picture.save(s_png) && picture.save(s_jpeg, "JPEG", 95));
    }
    static void TearDownTestSuite() { delete s_dir; }

    static QString wave() { return s_wave; }

    /// ffmpeg's arguments for all fields, under its own names.
    static QStringList metadata(const QString &tempoName = u"TBPM"_qs)
    {
        const Fields f = allFields();
        QStringList result;
        const auto add = [&result](const QString &key, const QString &value) {
            result << u"-metadata"_qs << key + u"="_qs + value;
        };
        add(u"title"_qs, f[u"Title"_qs]);
        add(u"artist"_qs, f[u"Artist"_qs]);
        add(u"album"_qs, f[u"Album"_qs]);
        add(u"composer"_qs, f[u"Composer"_qs]);
        add(u"genre"_qs, f[u"Genre"_qs]);
        add(u"date"_qs, f[u"ContentCreateDate"_qs]);
        add(u"comment"_qs, f[u"Comment"_qs]);
        add(u"copyright"_qs, f[u"Copyright"_qs]);
        add(u"grouping"_qs, f[u"Grouping"_qs]);
        add(u"track"_qs, u"5/12"_qs);
        add(u"disc"_qs, u"1/2"_qs);
        add(tempoName, f[u"BeatsPerMinute"_qs]);
        return result;
    }

    /// Makes a tagged file with ffmpeg.
    static bool encode(const QString &file, const QStringList &options, const QString &cover = {},
        const QString &tempoName = u"TBPM"_qs)
    {
        QStringList arguments {u"-i"_qs, s_wave};
        if (!cover.isEmpty()) {
            arguments << u"-i"_qs << cover << u"-map"_qs << u"0"_qs << u"-map"_qs << u"1"_qs
                      << u"-c:v"_qs << u"copy"_qs << u"-disposition:v"_qs << u"attached_pic"_qs;
        }
        return MediaMaker::ffmpeg(arguments + metadata(tempoName) + options + QStringList(file));
    }

    static bool tool(const QString &name, const QStringList &arguments)
    {
        const auto result = MediaMaker::runTool(name, arguments);
        EXPECT_EQ(result.exitCode, 0) << result.standardError.constData();
        return result.exitCode == 0;
    }

    /// Vorbis comments as lines, the artists one by one.
    static QStringList comments()
    {
        const Fields f = allFields();
        QStringList lines;
        for (const QString &artist : f[u"Artist"_qs].split(u"; "_qs)) {
            lines << u"ARTIST="_qs + artist;
        }
        return lines << u"TITLE="_qs + f[u"Title"_qs] << u"ALBUM="_qs + f[u"Album"_qs]
                     << u"COMPOSER="_qs + f[u"Composer"_qs] << u"GENRE="_qs + f[u"Genre"_qs]
                     << u"YEAR=1999"_qs << u"DATE=2003"_qs << u"DESCRIPTION=not this"_qs
                     << u"COMMENT="_qs + f[u"Comment"_qs] << u"COPYRIGHT="_qs + f[u"Copyright"_qs]
                     << u"CONTENTGROUP="_qs + f[u"Grouping"_qs] << u"TRACKNUMBER=5"_qs
                     << u"TRACKTOTAL=12"_qs << u"discnumber=1"_qs << u"TOTALDISCS=2"_qs
                     << u"BPM=97"_qs;
    }

    static QList<Source> sources();

    static QTemporaryDir *s_dir;
    static QString s_wave;
    static QString s_converted;
    static QString s_png;
    static QString s_jpeg;
};

QTemporaryDir *TagRoundTrip::s_dir = nullptr;
QString TagRoundTrip::s_wave;
QString TagRoundTrip::s_converted;
QString TagRoundTrip::s_png;
QString TagRoundTrip::s_jpeg;

bool flacWithMetaflac(
    const QString &file, const QString &cover, const QStringList &lines, const QString &wave)
{
    if (!MediaMaker::ffmpeg({u"-i"_qs, wave, file})) {
        return false;
    }
    QStringList arguments {u"--remove-all-tags"_qs, u"--import-picture-from="_qs + cover};
    for (const QString &line : lines) {
        arguments << u"--set-tag="_qs + line;
    }
    const auto result = MediaMaker::runTool(
        u"metaflac"_qs, QStringList {u"--no-utf8-convert"_qs} + arguments + QStringList(file));
    return result.exitCode == 0;
}

/// A WAV file with both an INFO list (by ffmpeg) and a chunk with the ID3 tag of an MP3 file.
bool waveWithId3(const QString &file, const QString &mp3)
{
    const QByteArray tagged = MediaMaker::bytesOf(mp3);
    qint64 size = 0;
    for (int i = 6; i < 10; ++i) {
        size = size << 7 | tagged.at(i);
    }
    QByteArray tag = tagged.left(static_cast<int>(size) + 10);
    tag += QByteArray(tag.size() % 2, '\0');
    QByteArray wave = MediaMaker::bytesOf(file);
    const auto little = [](int number) {
        return QByteArray {}
            .append(char(number))
            .append(char(number >> 8))
            .append(char(number >> 16))
            .append(char(number >> 24));
    };
    wave += "id3 " + little(tag.size()) + tag;
    return MediaMaker::writeFile(file, wave.replace(4, 4, little(wave.size() - 8)));
}

QList<Source> TagRoundTrip::sources()
{
    const QStringList none;
    const QString tempo = u"BeatsPerMinute"_qs;
    const QString grouping = u"Grouping"_qs;
    const QString disc = u"DiskNumber"_qs;
    const auto with = [](const QStringList &options, const QString &tempoName = u"TBPM"_qs) {
        return [=](const QString &file, const QString &cover) {
            return encode(file, options, cover, tempoName);
        };
    };
    const auto without = [](const QStringList &options, const QString &tempoName = u"TBPM"_qs) {
        return [=](const QString &file, const QString &) {
            return encode(file, options, {}, tempoName);
        };
    };
    const QStringList id3v3 {u"-id3v2_version"_qs, u"3"_qs};
    const QStringList id3v4 {u"-id3v2_version"_qs, u"4"_qs};
    const QStringList writeId3 {u"-write_id3v2"_qs, u"1"_qs};
    return {
        {"MP3, ID3v2.3", u"mp3", with(id3v3), none, {}},
        {"MP3, ID3v2.4", u"mp3", with(id3v4), none, {}},
        {"MP3, ID3v2.3 by id3v2, genre by number", u"mp3",
            [](const QString &file, const QString &) {
                return MediaMaker::ffmpeg({u"-i"_qs, wave(), u"-id3v2_version"_qs, u"0"_qs, file})
                    && tool(u"id3v2"_qs,
                        {u"--TIT2"_qs, u"Title"_qs, u"--TPE1"_qs, u"Ana"_qs, u"--TCON"_qs,
                            u"(31)"_qs, u"--TRCK"_qs, u"5/12"_qs, u"--TPOS"_qs, u"1/2"_qs,
                            u"--TBPM"_qs, u"97"_qs, u"--TYER"_qs, u"2003"_qs, u"-c"_qs,
                            u"0000 00AB:iTunNORM:eng"_qs, u"-c"_qs, u"one, two"_qs, file});
            },
            {u"Album"_qs, u"Composer"_qs, u"Copyright"_qs, grouping},
            {{u"Title"_qs, u"Title"_qs}, {u"Artist"_qs, u"Ana"_qs}}, false},
        {"MP3, ID3v1 alone", u"mp3",
            [](const QString &file, const QString &) {
                return MediaMaker::ffmpeg({u"-i"_qs, wave(), u"-id3v2_version"_qs, u"0"_qs, file})
                    && tool(u"id3v2"_qs,
                        {u"-1"_qs, u"-t"_qs, u"Title"_qs, u"-a"_qs, u"Ana"_qs, u"-A"_qs,
                            u"Album"_qs, u"-y"_qs, u"2003"_qs, u"-c"_qs, u"one, two"_qs, u"-T"_qs,
                            u"5"_qs, u"-g"_qs, u"31"_qs, file});
            },
            {u"Composer"_qs, u"Copyright"_qs, grouping, disc, tempo},
            {{u"Title"_qs, u"Title"_qs}, {u"Artist"_qs, u"Ana"_qs}, {u"Album"_qs, u"Album"_qs},
                {u"TrackNumber"_qs, u"5 of 5"_qs}},
            false},
        {"FLAC by metaflac", u"flac",
            [](const QString &file, const QString &cover) {
                return flacWithMetaflac(file, cover, comments(), wave());
            },
            none, {}},
        {"Vorbis by vorbiscomment", u"ogg",
            [](const QString &file, const QString &) {
                const QString list = file + u".txt"_qs;
                return MediaMaker::ffmpeg({u"-i"_qs, wave(), file})
                    && MediaMaker::writeFile(list, comments().join(u"\n"_qs).toUtf8())
                    && tool(u"vorbiscomment"_qs, {u"-R"_qs, u"-w"_qs, u"-c"_qs, list, file});
            },
            none, {}, false},
        {"Opus by opusenc", u"opus",
            [](const QString &file, const QString &cover) {
                QStringList arguments {u"--quiet"_qs, u"--picture"_qs, cover};
                for (const QString &line : comments()) {
                    arguments << u"--comment"_qs << line;
                }
                return tool(u"opusenc"_qs, arguments + QStringList {wave(), file});
            },
            none, {}},
        {"M4A by AtomicParsley, genre by number", u"m4a",
            [](const QString &file, const QString &cover) {
                const Fields f = allFields();
                return MediaMaker::ffmpeg({u"-i"_qs, wave(), file})
                    && tool(u"AtomicParsley"_qs,
                        {file, u"--title"_qs, f[u"Title"_qs], u"--artist"_qs, f[u"Artist"_qs],
                            u"--album"_qs, f[u"Album"_qs], u"--composer"_qs, f[u"Composer"_qs],
                            u"--genre"_qs, f[u"Genre"_qs], u"--year"_qs, u"2003"_qs,
                            u"--comment"_qs, f[u"Comment"_qs], u"--copyright"_qs,
                            f[u"Copyright"_qs], u"--grouping"_qs, f[u"Grouping"_qs],
                            u"--tracknum"_qs, u"5/12"_qs, u"--disk"_qs, u"1/2"_qs, u"--bpm"_qs,
                            u"97"_qs, u"--artwork"_qs, cover, u"--overWrite"_qs});
            },
            none, {}},
        {"MOV, user data", u"mov", without({}),
            {u"Composer"_qs, grouping, u"TrackNumber"_qs, disc, tempo}, {}, false},
        {"MOV, keyed metadata by exiftool", u"mov",
            [](const QString &file, const QString &) {
                const Fields f = allFields();
                QStringList arguments {u"-overwrite_original"_qs};
                for (const char16_t *key :
                    {u"Title", u"Artist", u"Album", u"Genre", u"Copyright", u"Comment"}) {
                    const QString name = QString::fromUtf16(key);
                    arguments << u"-Keys:"_qs + name + u"="_qs + f[name];
                }
                arguments << u"-Keys:Year=2003"_qs;
                return MediaMaker::ffmpeg({u"-i"_qs, wave(), file})
                    && tool(u"exiftool"_qs, arguments + QStringList(file));
            },
            {u"Composer"_qs, grouping, u"TrackNumber"_qs, disc, tempo}, {}, false},
        {"MOV, keyed metadata by ffmpeg", u"mov",
            without({u"-movflags"_qs, u"use_metadata_tags"_qs}), none, {}, false},
        {"3GP", u"3gp", without({u"-c:a"_qs, u"aac"_qs}),
            {u"Composer"_qs, grouping, u"TrackNumber"_qs, disc, tempo}, {}, false},
        {"WAV, INFO list", u"wav", without({}), {u"Composer"_qs, grouping, disc, tempo}, {}, false},
        {"WAV, INFO list and ID3 chunk", u"wav",
            [](const QString &file, const QString &cover) {
                const QString mp3 = file + u".mp3"_qs;
                return encode(mp3, {}, cover)
                    && MediaMaker::ffmpeg(
                        {u"-i"_qs, wave(), u"-metadata"_qs, u"title=Info"_qs, file})
                    && waveWithId3(file, mp3);
            },
            none, {}},
        {"AIFF, ID3 chunk", u"aiff", with(writeId3), none, {}},
        {"AIFF, texts of its own", u"aiff",
            without({u"-metadata"_qs, u"author="_qs + allFields()[u"Artist"_qs]}),
            {u"Album"_qs, u"Composer"_qs, u"Genre"_qs, u"ContentCreateDate"_qs, grouping,
                u"TrackNumber"_qs, disc, tempo},
            {}, false},
        {"WMA", u"wma", without({}, u"WM/BeatsPerMinute"_qs), none, {}, false},
        {"APE tag", u"ape",
            [](const QString &file, const QString &) {
                // The header of a sound that nobody here writes, with the tag of one of another
                // kind.
                const QString other = file + u".wv"_qs;
                const bool isMade = encode(other, {}, {}, u"BPM"_qs);
                const QByteArray bytes = MediaMaker::bytesOf(other);
                return isMade
                    && MediaMaker::writeFile(file,
                        "MAC " + QByteArray(2000, '\0') + bytes.mid(bytes.indexOf("APETAGEX")));
            },
            none, {}, false},
        {"CAF", u"caf", without({}), none, {}, false},
        {"Matroska", u"mka", without({}), none, {}, false},
        {"AAC in ADTS", u"aac", without(writeId3), none, {}, false},
        {"AVI", u"avi", without({}), {u"Composer"_qs, grouping, disc, tempo}, {}, false},
    };
}

QJsonObject readBack(const QString &file)
{
    const auto result
        = MediaMaker::runTool(u"exiftool"_qs, {u"-j"_qs, u"-b"_qs, u"-ItemList:all"_qs, file});
    // exiftool tells numbers as numbers and texts as texts.
    return QJsonDocument::fromJson(result.standardOutput).array().first().toObject();
}

/// The mean difference of the pictures' colours; above any limit if their sizes differ.
double difference(const QImage &a, const QImage &b)
{
    if (a.isNull() || a.size() != b.size()) {
        return 1000.0;
    }
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            sum += std::abs(p.red() - q.red()) + std::abs(p.green() - q.green())
                + std::abs(p.blue() - q.blue());
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

TEST_F(TagRoundTrip, FieldsAndCoverTravelFromEveryFormat)
{
    const QByteArray sound = MediaMaker::decode(s_converted, u"s16le"_qs);
    int number = 0;
    for (const Source &source : sources()) {
        SCOPED_TRACE(source.name);
        const QString name = s_dir->filePath(QString::number(++number));
        const QString file = name + u"."_qs + QString::fromUtf16(source.suffix);
        const QString cover = number % 2 == 0 ? s_png : s_jpeg;
        ASSERT_TRUE(source.make(file, cover));
        const QString result = name + u"_result.m4a"_qs;
        ASSERT_TRUE(QFile::copy(s_converted, result));

        QMMultiMedia::NativeMetaTags tags;
        tags.readFrom(file);
        ASSERT_TRUE(tags.writeTo(result));
        PendingExports::waitForAll();
        EXPECT_EQ(tags.receipt()->state(), QMMultiMedia::TagReceipt::State::Written);

        Fields expected = allFields();
        for (const QString &field : source.missing) {
            expected.remove(field);
        }
        for (auto other = source.other.begin(); other != source.other.end(); ++other) {
            expected[other.key()] = other.value();
        }
        const QJsonObject found = readBack(result);
        for (const QString &field : allFields().keys()) {
            EXPECT_EQ(found.value(field).toVariant().toString().toStdString(),
                expected.value(field).toStdString())
                << field.toStdString();
        }
        QImage picture;
        const QByteArray cover64 = found.value(u"CoverArt"_qs).toString().toLatin1();
        picture.loadFromData(QByteArray::fromBase64(cover64.mid(qstrlen("base64:"))));
        EXPECT_EQ(!picture.isNull(), source.hasCover);
        if (source.hasCover) {
            EXPECT_LT(difference(picture, QImage(cover)), 6.0);
        }
        EXPECT_EQ(MediaMaker::decode(result, u"s16le"_qs), sound);
    }
}

TEST_F(TagRoundTrip, ATempoThatIsNoNumberIsNone)
{
    for (const auto &[suffix, name] :
        {std::pair {u"mp3", u"TBPM"}, {u"flac", u"BPM"}, {u"wv", u"BPM"},
            {u"wma", u"WM/BeatsPerMinute"}, {u"mka", u"BPM"}, {u"mov", u"TBPM"}}) {
        for (const auto &[text, tempo] : {std::pair {u"fast", -1}, {u"97.5 a minute", 97}}) {
            const QString file = s_dir->filePath(u"tempo."_qs + QString::fromUtf16(suffix));
            ASSERT_TRUE(MediaMaker::ffmpeg(
                {u"-i"_qs, s_wave, u"-movflags"_qs, u"use_metadata_tags"_qs, u"-metadata"_qs,
                    QString::fromUtf16(name) + u"="_qs + QString::fromUtf16(text), file}));
            QMMultiMedia::NativeMetaTags tags;
            tags.readFrom(file);
            EXPECT_EQ(tags.tempo(), tempo) << file.toStdString();
            QFile::remove(file);
        }
    }
}

TEST_F(TagRoundTrip, AnEmptyFieldHidesNoOther)
{
    const QString file = s_dir->filePath(u"empty.flac"_qs);
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-i"_qs, s_wave, file}));
    ASSERT_EQ(MediaMaker::runTool(u"metaflac"_qs,
                  {u"--set-tag=COMMENT="_qs, u"--set-tag=DESCRIPTION=real"_qs, file})
                  .exitCode,
        0);
    QMMultiMedia::NativeMetaTags tags;
    tags.readFrom(file);
    EXPECT_EQ(tags.comments(), u"real"_qs);
}

/// The second reader, through the audio-file layer, finds the fields that its dictionary has.
TEST_F(TagRoundTrip, TheAudioFileLayerSaysTheSame)
{
    const QString mp3 = s_dir->filePath(u"layer.mp3"_qs);
    ASSERT_TRUE(encode(mp3, {u"-id3v2_version"_qs, u"4"_qs}, s_png));
    const QString flac = s_dir->filePath(u"layer.flac"_qs);
    ASSERT_TRUE(flacWithMetaflac(flac, s_png, comments(), wave()));
    const Fields expected = allFields();
    for (const QString &file : {mp3, flac}) {
        SCOPED_TRACE(file.toStdString());
        QMMultiMedia::NativeMetaTags tags;
        ASSERT_TRUE(tags.readFromCO(file));
        EXPECT_EQ(tags.title(), expected[u"Title"_qs]);
        EXPECT_EQ(tags.artist(), expected[u"Artist"_qs]);
        EXPECT_EQ(tags.album(), expected[u"Album"_qs]);
        EXPECT_EQ(tags.composer(), expected[u"Composer"_qs]);
        EXPECT_EQ(tags.genre(), expected[u"Genre"_qs]);
        EXPECT_EQ(tags.trackNumber(), u"5/12"_qs);
        EXPECT_NEAR(tags.approximateDurationInSeconds().toDouble(), 0.5, 0.1);
        EXPECT_LT(difference(tags.albumArtwork(), QImage(s_png)), 0.01);
    }
    QMMultiMedia::NativeMetaTags tags;
    QStringList errors;
    QObject::connect(&tags, &QMMultiMedia::NativeMetaTags::error, &tags,
        [&errors](const QString &line) { errors.append(line); });
    EXPECT_FALSE(tags.readFromCO(s_dir->filePath(u"none.mp3"_qs)));
    EXPECT_EQ(errors, QStringList(u"-43 : ExtAudioFileOpenURL failed "_qs));
}

}
