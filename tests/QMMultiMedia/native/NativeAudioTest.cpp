#include "Literals.h"
#include "MediaMaker.h"
#include "NativeAudioConverter.h"
#include "NativeAudioDecoder.h"
#include "NativeAudioEncoder.h"
#include "NativeAudioTools.h"

#include <cstring>
#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace QMMultiMedia;

namespace {

constexpr int Frames = 44100;

class NativeAudioTest : public ::testing::Test
{
protected:
    QString file(const QString &name) const { return m_folder.filePath(name); }

    /// A second of two tones, 24 bits.
    bool makeTones(const QString &name) const
    {
        return MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs,
            u"aevalsrc=0.8*sin(2765*t)|0.5*sin(5000*t):s=44100:d=1"_qs, u"-c:a"_qs, u"pcm_s24le"_qs,
            file(name)});
    }

    static std::vector<float> readAll(NativeAudioDecoder &decoder)
    {
        std::vector<float> all;
        float chunk[2001];
        while (const int count = decoder.read(chunk, 2001)) {
            all.insert(all.end(), chunk, chunk + count);
        }
        EXPECT_EQ(decoder.read(chunk, 2001), 0);
        return all;
    }

    QTemporaryDir m_folder;
};

}

TEST_F(NativeAudioTest, DecodesToFloatsAtEveryWidthAndFoldsToMono)
{
    ASSERT_TRUE(makeTones(u"a.wav"_qs));
    const QByteArray raw = MediaMaker::decode(file(u"a.wav"_qs), u"s32le"_qs);
    NativeAudioDecoder decoder;
    for (const int bits : {16, 24, 32, 8}) {
        SCOPED_TRACE(bits);
        ASSERT_TRUE(decoder.setFile(file(u"a.wav"_qs), 44100, bits, 2));
        const int width = bits == 8 ? 16 : bits;
        EXPECT_EQ(decoder.clientFormat().mBytesPerPacket, static_cast<UInt32>(width / 4));
        EXPECT_EQ(decoder.inputChannels(), 2);
        const std::vector<float> all = readAll(decoder);
        EXPECT_EQ(decoder.position(), Frames);
        ASSERT_EQ(all.size(), 2U * Frames);
        for (std::size_t i = 0; i < all.size(); ++i) {
            qint32 wanted = 0;
            std::memcpy(&wanted, raw.constData() + 4 * i, 4);
            ASSERT_NEAR(all[i], wanted / 2147483648.0, width == 16 ? 0.6 / 32768 : 1e-7) << i;
        }
        decoder.finish();
        EXPECT_EQ(decoder.read(nullptr, 100), 0);
    }
    ASSERT_TRUE(decoder.setFile(file(u"a.wav"_qs), 22050, 16, 1));
    EXPECT_EQ(readAll(decoder).size(), 22050U);

    float pairs[] = {0.5F, 0.5F, -0.5F, -0.5F, 0.5F, -0.5F, 1.0F, 1.0F, 0.9F, -0.1F, 0.0F, 0.25F};
    const float wanted[] = {0.75F, -0.75F, 0.0F, 1.0F, 0.8F, 0.25F};
    NativeAudioDecoder::foldToMono(pairs, 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_FLOAT_EQ(pairs[i], wanted[i]);
    }
}

TEST_F(NativeAudioTest, TellsWhatFailed)
{
    ASSERT_TRUE(MediaMaker::writeFile(file(u"text.txt"_qs), QByteArray(3000, 'x')));
    NativeAudioDecoder decoder;
    QSignalSpy error(&decoder, &NativeAudioDecoderBase::error);
    float value[2];
    EXPECT_EQ(decoder.read(value, 2), 0);
    EXPECT_FALSE(decoder.setFile(file(u"missing"_qs), 44100, 16, 2));
    EXPECT_FALSE(decoder.setFile(file(u"text.txt"_qs), 44100, 16, 2));
    ASSERT_EQ(error.count(), 2);
    EXPECT_EQ(error.at(0).at(0).toString(), u"-43 : ExtAudioFileOpenURL failed "_qs);
    EXPECT_EQ(error.at(1).at(0).toString(), u"1954115647 : ExtAudioFileOpenURL failed 'typ?'"_qs);
    EXPECT_EQ(decoder.read(value, 2), 0);
    const QUrl missing = QUrl::fromLocalFile(file(u"missing"_qs));
    EXPECT_FALSE(NativeAudioTools::isPlayable(missing));
    EXPECT_EQ(NativeAudioTools::duration(missing), -1);
}

TEST_F(NativeAudioTest, EncodesToFlacAndConvertsToAFixedWave)
{
    ASSERT_TRUE(makeTones(u"a.wav"_qs));
    EXPECT_TRUE(NativeAudioTools::isPlayable(QUrl::fromLocalFile(file(u"a.wav"_qs))));
    EXPECT_EQ(NativeAudioTools::duration(QUrl::fromLocalFile(file(u"a.wav"_qs))), 1);
    NativeAudioDecoder decoder;
    ASSERT_TRUE(decoder.setFile(file(u"a.wav"_qs), 44100, 24, 2));
    std::vector<float> samples = readAll(decoder);
    MAudioFormat format;
    format.bitsPerSample = 24;
    NativeAudioEncoder encoder(file(u"b.flac"_qs), format);
    QSignalSpy error(&encoder, &NativeAudioEncoder::error);
    EXPECT_EQ(encoder.write(samples.data(), static_cast<int>(samples.size())), 1);
    encoder.finish();
    EXPECT_EQ(error.count(), 0);
    ASSERT_TRUE(decoder.setFile(file(u"b.flac"_qs), 44100, 24, 2));
    EXPECT_TRUE(readAll(decoder) == samples);
    NativeAudioEncoder nowhere(file(u"no/such/folder.flac"_qs), format);
    QSignalSpy failed(&nowhere, &NativeAudioEncoder::error);
    EXPECT_EQ(nowhere.write(samples.data(), 64), 1);
    EXPECT_EQ(failed.count(), 1);

    NativeAudioConverter converter;
    EXPECT_EQ(converter.duration(file(u"b.flac"_qs)), 1000);
    converter.doIt(file(u"b.flac"_qs), file(u"c.wav"_qs));
    EXPECT_EQ(MediaMaker::probe(file(u"c.wav"_qs), u"stream=codec_name"_qs), u"pcm_s32le"_qs);
    EXPECT_TRUE(MediaMaker::decode(file(u"c.wav"_qs), u"s32le"_qs)
        == MediaMaker::decode(file(u"a.wav"_qs), u"s32le"_qs));

    // A source is never its own destination, by no name.
    ASSERT_TRUE(QFile::link(file(u"c.wav"_qs), file(u"link.wav"_qs)));
    const QByteArray before = MediaMaker::bytesOf(file(u"c.wav"_qs));
    converter.doIt(file(u"link.wav"_qs), file(u"c.wav"_qs));
    EXPECT_EQ(MediaMaker::bytesOf(file(u"c.wav"_qs)), before);
}
