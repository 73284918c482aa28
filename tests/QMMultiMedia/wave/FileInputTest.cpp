#include "AiffInput.h"
#include "GeneralFileInput.h"
#include "Literals.h"
#include "WaveBytes.h"
#include "WaveInput.h"

#include <cmath>
#include <gtest/gtest.h>
#include <QDateTime>
#include <QDir>

using namespace WaveBytes;
using QMMultiMedia::AiffInput;
using QMMultiMedia::FileInput;
using QMMultiMedia::GeneralFileInput;
using QMMultiMedia::WaveInput;

namespace {

class FileInputTest : public ::testing::Test
{
protected:
    ~FileInputTest() override { FileInput::setTempPath(QString()); }
    QByteArray path(const QString &name) const { return QFile::encodeName(m_dir.filePath(name)); }

    QTemporaryDir m_dir;
};

/// All samples of an open input, read in pieces of an odd size.
std::vector<float> allSamples(FileInput *input)
{
    std::vector<float> samples;
    float piece[777];
    int got = 0;
    while ((got = input->read(piece, 777)) > 0) {
        samples.insert(samples.end(), piece, piece + got);
    }
    return samples;
}

}

TEST_F(FileInputTest, OtherProgramsFilesSampleForSample)
{
    const struct
    {
        const char *name;
        const char *format;
    } formats[] = {{"a.wav", "WAVE"}, {"a.aiff", "AIFF"}};
    for (const auto &format : formats) {
        for (const int bits : {8, 16, 24, 32}) {
            const QString name = QLatin1String(format.name);
            const QString file = QFile::decodeName(path(name));
            QStringList arguments {u"-R"_qs, u"-n"_qs, u"-r"_qs, u"22050"_qs, u"-c"_qs, u"3"_qs,
                u"-b"_qs, QString::number(bits)};
            if (name.endsWith(u".wav"_qs)) {
                arguments << u"-t"_qs << u"wavpcm"_qs;
            }
            arguments << u"--comment"_qs << u"a comment"_qs << file << u"synth"_qs << u"0.5"_qs
                      << u"whitenoise"_qs << u"sine"_qs << u"300-3000"_qs;
            ASSERT_TRUE(MediaMaker::sox(arguments));
            GeneralFileInput input;
            ASSERT_TRUE(input.load(path(name).constData(), false)) << format.name << bits;
            EXPECT_EQ(input.formatString(), QLatin1String(format.format));
            EXPECT_EQ(input.sampleRate(), 22050U);
            EXPECT_EQ(input.channels(), 3);
            EXPECT_EQ(input.bitsPerSample(), bits);
            if (name == u"a.aiff"_qs) {
                EXPECT_EQ(input.fileInfo().comment().trimmed(), u"a comment"_qs);
            }
            EXPECT_EQ(input.fileInfo().numSamples(), 33075U);
            const std::vector<float> samples = allSamples(&input);
            if (bits == 32 && name.endsWith(u".aiff"_qs)) {
                EXPECT_EQ(input.fmt(), 0);
                EXPECT_TRUE(samples.empty());
                continue;
            }
            const QByteArray decoded = MediaMaker::decode(file, u"s32le"_qs);
            ASSERT_EQ(decoded.size(), static_cast<int>(samples.size()) * 4) << format.name << bits;
            for (std::size_t i = 0; i < samples.size(); ++i) {
                const auto value = static_cast<std::int32_t>(u32(decoded, static_cast<int>(i) * 4));
                ASSERT_EQ(samples[i], static_cast<float>(value) / 2147483648.0f)
                    << format.name << bits << " sample " << i;
            }
        }
    }
    // The same by another writer, with other chunks around.
    const QString source = QFile::decodeName(path(u"a.wav"_qs));
    for (const QString &name : {u"b.wav"_qs, u"b.aif"_qs}) {
        ASSERT_TRUE(MediaMaker::ffmpeg({u"-i"_qs, source, u"-c:a"_qs,
            name == u"b.wav"_qs ? u"pcm_s16le"_qs : u"pcm_s16be"_qs, u"-ac"_qs, u"2"_qs,
            u"-write_bext"_qs, u"1"_qs, u"-metadata"_qs, u"description=odd"_qs, u"-metadata"_qs,
            u"coding_history=odd"_qs, QFile::decodeName(path(name))}));
        GeneralFileInput input;
        ASSERT_TRUE(input.load(path(name).constData(), false));
        EXPECT_EQ(input.fileInfo().numSamples(), 22050U);
        EXPECT_EQ(allSamples(&input).size(), 22050U);
        if (name == u"b.wav"_qs) {
            EXPECT_EQ(input.formatString(), u"BWF"_qs);
            EXPECT_TRUE(input.ebuInfo()->description().startsWith(u"odd"_qs));
        }
    }
}

TEST_F(FileInputTest, OwnFilesComeBackToTheBit)
{
    for (const int bits : {8, 16, 24, 32}) {
        for (const int channels : {1, 2, 5}) {
            // At 8 bits mono the broadcast chunk has an odd size and no pad byte.
            const std::vector<float> samples = signal(700 * channels);
            const QMMultiMedia::Settings settings(
                44100, static_cast<short>(channels), 1, static_cast<short>(bits));
            ASSERT_TRUE(
                writeWave(QFile::decodeName(path(u"a.wav"_qs)), settings, samples, u"odd"_qs));
            WaveInput input;
            ASSERT_TRUE(input.load(path(u"a.wav"_qs).constData(), false)) << bits << channels;
            EXPECT_EQ(input.fileInfo().comment(), u"odd"_qs);
            ASSERT_FALSE(input.ebuInfo().isNull());
            EXPECT_TRUE(input.ebuInfo()->codingHistory().startsWith(u"A=PCM,F=44100"_qs));
            ASSERT_FALSE(input.ebuEnvelope().isNull());

            const std::vector<float> read = allSamples(&input);
            ASSERT_EQ(read.size(), samples.size());
            ASSERT_TRUE(writeWave(QFile::decodeName(path(u"b.wav"_qs)), settings, read, u"odd"_qs));
            const QByteArray first = MediaMaker::bytesOf(QFile::decodeName(path(u"a.wav"_qs)));
            const QByteArray second = MediaMaker::bytesOf(QFile::decodeName(path(u"b.wav"_qs)));
            const auto data = static_cast<int>(input.fileInfo().dataOffset());
            const auto size = static_cast<int>(input.fileInfo().dataSize()) + 8;
            if (bits == 16 || bits == 24) {
                EXPECT_EQ(first.mid(data, size), second.mid(data, size)) << bits;
            }
            for (std::size_t i = 0; i < read.size(); ++i) {
                const float limited = std::max(-1.0f, std::min(1.0f, samples[i]));
                ASSERT_NEAR(read[i], limited, std::ldexp(1.001, std::max(1 - bits, -23)));
            }

            input.createPeakVector();
            EXPECT_EQ(input.peakVector()->numPeakFrames(), 3);
            EXPECT_EQ(input.peakVector()->peakChannels(), channels);
        }
    }
}

TEST_F(FileInputTest, PlacesChannelsAndEnds)
{
    std::vector<float> samples(2000);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<float>(i) / 32768.0f * (i % 2 == 0 ? 1.0f : -1.0f);
    }
    ASSERT_TRUE(writeWave(QFile::decodeName(path(u"a.wav"_qs)), {1000, 2, 1, 16}, samples));
    WaveInput input;
    EXPECT_EQ(input.rewind(), -1);
    EXPECT_EQ(input.tell(), -1);
    EXPECT_EQ(input.close(), 0);
    ASSERT_TRUE(input.load(path(u"a.wav"_qs).constData(), false));
    EXPECT_EQ(FileInput::filesInUse().count(&input), 1);
    EXPECT_EQ(input.tell(), 0);
    EXPECT_EQ(input.gotoFrame(10), 0);
    EXPECT_EQ(input.tell(), 40);
    float values[6] = {9, 9, 9, 9, 9, 9};
    EXPECT_EQ(input.readFrames(998, values, 3, 2), 2);
    EXPECT_EQ(values[0], samples[1996]);
    EXPECT_EQ(values[4], 9.0f) << "what isn't there stays";
    EXPECT_EQ(input.read(values, 6), 0);
    char byte = 'x';
    EXPECT_EQ(input.read(&byte, 1), 0);
    EXPECT_EQ(byte, 'x');
    input.gotoFrame(500);
    EXPECT_EQ(input.readChannel(values, 3, 1), 3);
    EXPECT_EQ(values[2], samples[1005]);
    EXPECT_EQ(input.readChannel(values, 3, 2), -1);
    EXPECT_EQ(input.gotoFrame(-1), -1);
    const MTools::Handle<QMMultiMedia::AudioFloatBuffer> buffer(
        std::make_unique<QMMultiMedia::AudioFloatBuffer>(4, 2).release());
    EXPECT_EQ(input.read(buffer, 997UL), 3);
    EXPECT_EQ(input.read(buffer, ~0UL), 0);
    EXPECT_EQ(input.duration(), QString(input.timecode(1000)));
    EXPECT_EQ(input.calculateZoom(100), 10.0f);

    EXPECT_TRUE(input.saveEbuInfo(path(u"bext"_qs).constData()));
    EXPECT_TRUE(input.loadEbuInfo(path(u"bext"_qs).constData()));
    EXPECT_FALSE(input.loadEbuInfo("/nonexistent"));
    EXPECT_TRUE(input.ebuInfo()->codingHistory().startsWith(u"A=PCM"_qs));
    EXPECT_FALSE(input.isLTCDataAvailable());
    EXPECT_EQ(input.getLTCTrack(), -1);
}

TEST_F(FileInputTest, PeaksAtEveryZoom)
{
    std::vector<float> samples = signal(2 * 1000);
    for (float &sample : samples) {
        sample *= 0.9f;
    }
    ASSERT_TRUE(
        writeWave(QFile::decodeName(path(u"a.wav"_qs)), {8000, 2, 1, 32}, samples, {}, false));
    WaveInput input;
    ASSERT_TRUE(input.load(path(u"a.wav"_qs).constData(), false));
    const auto range = [&samples](int from, int count, int channel) {
        float min = 0.0f, max = 0.0f;
        for (int i = from; i < std::min(1000, from + count); ++i) {
            const float value = samples[static_cast<std::size_t>(2 * i + channel)];
            min = std::min(min, std::max(value, -1.0f));
            max = std::max(max, std::min(value, 1.0f));
        }
        return std::make_pair(min, max);
    };
    for (const int channel : {0, 1}) {
        for (const int zoom : {2, 100, 255}) {
            for (const int index : {0, 3, 2}) {
                for (int again = 0; again < 2; ++again) {
                    const auto peak = input.peakInfo(index, channel, static_cast<float>(zoom));
                    const auto expected = range(index * zoom, zoom, channel);
                    ASSERT_NEAR(peak.first, expected.first, 1e-6) << zoom << " " << index;
                    ASSERT_NEAR(peak.second, expected.second, 1e-6);
                }
            }
        }
        EXPECT_NEAR(input.peakInfo(7, channel, 1).first,
            range(7, 1, channel).first + range(7, 1, channel).second, 1e-6);
        EXPECT_EQ(input.peakInfo(14, channel, 0.5f).first, input.peakInfo(7, channel, 1).first);
        // The file's own peaks: the smallest came first, and is positive.
        EXPECT_NEAR(input.peakInfo(1, channel, 256).first, -range(256, 256, channel).first, 1e-4);
        EXPECT_EQ(input.peakInfo(1, channel, 512).first, input.peakInfo(2, channel, 256).first);
    }
    for (const float zoom : {0.0f, -1.0f, 1e30f, std::nanf("")}) {
        input.peakInfo(2000000000, 1, zoom);
        input.peakInfo(-5, -1, zoom);
    }
}

TEST_F(FileInputTest, PeaksOfSamplesAreCachedAndStaleOnesAreNot)
{
    FileInput::setTempPath(m_dir.filePath(u"cache"_qs));
    ASSERT_TRUE(QDir().mkpath(m_dir.filePath(u"d.x:y"_qs)));
    const QString file = m_dir.filePath(u"d.x:y/a.wav"_qs);
    const QByteArray encoded = QFile::encodeName(file);
    const auto makeSound = [&file](float loudest) {
        const QByteArray samples = le16(static_cast<int>(loudest * 32767)).repeated(600);
        return MediaMaker::writeFile(
            file, riff(chunk("fmt ", fmtBody(1, 8000, 16)) + chunk("data", samples)));
    };
    ASSERT_TRUE(makeSound(0.5f));
    const auto firstPeak = [&encoded] {
        WaveInput input;
        EXPECT_TRUE(input.load(encoded.constData(), false));
        return input.peakInfo(2, 0, 256).first;
    };
    EXPECT_NEAR(firstPeak(), 0.5f, 1e-3);
    WaveInput named;
    ASSERT_TRUE(named.load(encoded.constData(), false));
    const QString cached = named.envelopeLocation();
    EXPECT_TRUE(cached.endsWith(u"_d_x_y_a_wav.bef"_qs));
    QByteArray bytes = MediaMaker::bytesOf(cached);
    EXPECT_EQ(bytes.size(), 128 + 3 * 2);
    EXPECT_EQ(bytes.at(128), '\x7F');

    // The cache is what counts the second time.
    bytes[132] = '\xFF';
    ASSERT_TRUE(MediaMaker::writeFile(cached, bytes));
    EXPECT_EQ(firstPeak(), 1.0f);
    WaveInput direct;
    ASSERT_TRUE(direct.load(encoded.constData(), false));
    EXPECT_TRUE(direct.loadEnvelope(QFile::encodeName(cached).constData()));
    ASSERT_TRUE(MediaMaker::writeFile(cached, bytes.left(131)));
    EXPECT_FALSE(direct.loadEnvelope(QFile::encodeName(cached).constData()));
    EXPECT_EQ(direct.peakInfo(2, 0, 256).first, 1.0f) << "what was there stays";
    // Cut short, of other channels, of another sound, not a cache at all: built anew.
    QByteArray channels = bytes;
    channels[24] = 3;
    QByteArray endless = bytes;
    endless.replace(24, 8, QByteArray(8, '\xFF'));
    for (const QByteArray &damaged : {bytes.left(131), channels, endless, bytes.left(60),
             QByteArray("RIFF") + bytes.mid(4), QByteArray()}) {
        ASSERT_TRUE(MediaMaker::writeFile(cached, damaged));
        EXPECT_NEAR(firstPeak(), 0.5f, 1e-3);
        EXPECT_EQ(MediaMaker::bytesOf(cached).size(), 134);
    }
    // A sound that changed later than its cache.
    ASSERT_TRUE(makeSound(0.25f));
    QFile sound(file);
    ASSERT_TRUE(sound.open(QIODevice::ReadWrite));
    ASSERT_TRUE(sound.setFileTime(
        QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    sound.close();
    EXPECT_NEAR(firstPeak(), 0.25f, 1e-3);
}
