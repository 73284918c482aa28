#include "WaveOutput.h"

#include "Literals.h"
#include "Production.h"
#include "WaveBytes.h"
#include <cmath>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace WaveBytes;
using QMMultiMedia::Settings;
using QMMultiMedia::WaveOutput;

namespace {

class WaveOutputTest : public ::testing::Test
{
protected:
    QString path(const QString &name = u"a.wav"_qs) const { return m_dir.filePath(name); }
    QByteArray bytes() const { return MediaMaker::bytesOf(path()); }

    QTemporaryDir m_dir;
};

}

TEST_F(WaveOutputTest, LayoutToTheByte)
{
    for (const QString &comment : {QString(), u"abc"_qs, u"abcd"_qs}) {
        ASSERT_TRUE(writeWave(path(), {44100, 2, 1, 16}, signal(2000), comment));
        const QByteArray file = bytes();
        const int history = 32;
        EXPECT_EQ(file.mid(0, 4), "RIFF");
        EXPECT_EQ(file.mid(8, 8), "WAVEbext");
        EXPECT_EQ(u32(file, 16), 602U + history);
        int at = 20 + 602 + history;
        if (!comment.isEmpty()) {
            const int length = comment.size();
            EXPECT_EQ(file.mid(at, 4), "LIST");
            EXPECT_EQ(u32(file, at + 4), length == 3 ? 16U : 18U);
            EXPECT_EQ(file.mid(at + 8, 8), "INFOICMT");
            EXPECT_EQ(u32(file, at + 16), static_cast<unsigned>(length + 1));
            const QByteArray text = comment.toLatin1() + QByteArray(length == 3 ? 1 : 2, '\0');
            EXPECT_EQ(file.mid(at + 20, text.size()), text);
            at += 20 + text.size();
        }
        EXPECT_EQ(file.mid(at, 24), chunk("fmt ", fmtBody(2, 44100, 16)));
        EXPECT_EQ(file.mid(at + 24, 8), "data" + le32(4000));
        at += 32 + 4000;
        EXPECT_EQ(file.mid(at, 4), "levl");
        EXPECT_EQ(u32(file, at + 4), 152U) << "4 peak frames of 2 channels";
        const unsigned fields[] = {0, 2, 2, 256, 2, 4};
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(u32(file, at + 8 + 4 * i), fields[i]) << i;
        }
        EXPECT_EQ(u32(file, at + 36), 128U);
        EXPECT_EQ(file.at(at + 44), '-');
        EXPECT_EQ(file.mid(at + 63, 65), QByteArray(65, '\0'));
        EXPECT_EQ(file.size(), at + 128 + 32);
        EXPECT_EQ(u32(file, 4) + 8, static_cast<unsigned>(file.size()));
    }
}

TEST_F(WaveOutputTest, OddDataIsPaddedAndOldFormsStay)
{
    ASSERT_TRUE(writeWave(path(), {8000, 1, 1, 8}, {1.0f, -1.0f, 0.0f}, QString(), false));
    const QByteArray file = bytes();
    EXPECT_EQ(file.left(52),
        "RIFF" + le32(4 + 24 + 8 + 4 + 128 + 4) + "WAVE" + chunk("fmt ", fmtBody(1, 8000, 8))
            + "data" + le32(3) + "\xFF" + '\0' + "\x80" + '\0' + "levl");
    EXPECT_EQ(u32(file, 4) + 8, static_cast<unsigned>(file.size()));
}

TEST_F(WaveOutputTest, EveryWidthAsOthersReadIt)
{
    for (const int bits : {8, 16, 24, 32}) {
        const std::vector<float> samples = signal(3 * 1001);
        // Without "bext": other programs don't expect an odd chunk without a pad byte.
        ASSERT_TRUE(
            writeWave(path(), {48000, 3, 99, static_cast<short>(bits)}, samples, {}, false));
        const QByteArray decoded = MediaMaker::decode(path(), u"s32le"_qs);
        ASSERT_EQ(decoded.size(), static_cast<int>(samples.size() * 4)) << bits;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const auto value = static_cast<std::int32_t>(u32(decoded, static_cast<int>(i) * 4));
            const double scale = std::ldexp(1.0, bits - 1);
            const double top = scale - 1;
            double expected = std::trunc(static_cast<double>(samples[i]) * scale);
            if (bits == 8) {
                expected = std::trunc((samples[i] + 1.0) * scale) - scale;
            }
            const double bottom = bits == 8 || bits == 32 ? -scale : -top;
            expected = std::max(bottom, std::min(top, expected));
            ASSERT_EQ(value / std::ldexp(1.0, 32 - bits), bits == 32 ? value : expected)
                << bits << " bits, sample " << i;
            if (bits == 32) {
                ASSERT_EQ(value, static_cast<std::int32_t>(expected));
            }
        }
        EXPECT_EQ(MediaMaker::probe(path(), u"stream=channels"_qs), u"3"_qs);
    }
}

/// The rule of the peaks, one sample at a time.
TEST_F(WaveOutputTest, PeaksFollowTheRuleSampleBySample)
{
    for (const int channels : {1, 2, 3}) {
        for (const int frames : {0, 255, 256, 512, 5000}) {
            const std::vector<float> samples = signal(frames * channels);
            ASSERT_TRUE(
                writeWave(path(), {8000, static_cast<short>(channels), 1, 16}, samples, {}, false));
            const QByteArray file = bytes();
            const int levl = 44 + frames * channels * 2;
            const int peakFrames = frames / 256 + 1;
            ASSERT_EQ(u32(file, levl + 28), static_cast<unsigned>(peakFrames));

            float loudest = 0.0f;
            unsigned place = 0;
            // Pieces of 731 frames, as writeWave cuts them: channel by channel within each.
            for (int piece = 0; piece < frames; piece += 731) {
                for (int channel = 0; channel < channels; ++channel) {
                    for (int i = piece; i < std::min(frames, piece + 731); ++i) {
                        const float magnitude
                            = std::fabs(samples[static_cast<std::size_t>(i * channels + channel)]);
                        if (magnitude > loudest) {
                            loudest = magnitude;
                            place = static_cast<unsigned>(i);
                        }
                    }
                }
            }
            ASSERT_EQ(u32(file, levl + 32), place) << channels << " channels, " << frames;
            for (int block = 0; block < peakFrames; ++block) {
                for (int channel = 0; channel < channels; ++channel) {
                    float min = 0.0f, max = 0.0f;
                    for (int i = block * 256; i < std::min(frames, block * 256 + 256); ++i) {
                        const float s = samples[static_cast<std::size_t>(i * channels + channel)];
                        min = std::min(min, s);
                        max = std::max(max, s);
                    }
                    const int at = levl + 128 + (block * channels + channel) * 4;
                    const auto steps
                        = [](float v) { return static_cast<int>(std::fabs(v * 65535.0)) & 0xFFFF; };
                    ASSERT_EQ(u16(file, at), steps(min)) << block;
                    ASSERT_EQ(u16(file, at + 2), steps(max)) << block;
                }
            }
        }
    }
}

TEST_F(WaveOutputTest, TimesCountsAndBuffers)
{
    const MTools::Handle<QMMultiMedia::EBUInfo> info(
        std::make_unique<QMMultiMedia::EBUInfo>(48000LL * 3600, 25.0f).release());
    WaveOutput output(QFile::encodeName(path()).constData(), {48000, 2, 1, 24}, {}, info, true);
    const MTools::Handle<QMMultiMedia::AudioFloatBuffer> buffer(
        std::make_unique<QMMultiMedia::AudioFloatBuffer>(48000, 2).release());
    std::fill_n(buffer->data(), buffer->size(), 0.25f);
    output.write(buffer, 48000);
    EXPECT_EQ(output.settings().fmt(), 2048);
    EXPECT_EQ(output.numSamples(), 96000U);
    EXPECT_EQ(output.duration(), u"00:00:01:00"_qs);
    EXPECT_EQ(output.timecode(24000), u"00:00:00:12"_qs);
    EXPECT_EQ(output.start(), u"01:00:00:00"_qs);
    const MTools::Handle<QMMultiMedia::RawBuffer> raw(
        std::make_unique<QMMultiMedia::RawBuffer>(3).release());
    std::fill_n(raw->data(), 3, '\x7F');
    EXPECT_TRUE(output.write(raw, 3));
    EXPECT_EQ(output.fileInfo().dataSize(), 288003U);
    EXPECT_TRUE(output.close());
    EXPECT_FALSE(output.close()) << "once";
    EXPECT_TRUE(output.saveEnvelope(QFile::encodeName(path(u"a.bef"_qs)).constData()));
    EXPECT_EQ(MediaMaker::bytesOf(path(u"a.bef"_qs)).left(8), "levl" + le32(188 * 2 * 4 + 120));
}

TEST_F(WaveOutputTest, FailuresShow)
{
    WaveOutput nowhere("/nonexistent/a.wav", {48000, 2, 1, 16}, {}, nullptr, true);
    EXPECT_FALSE(nowhere.isOpen());
    std::vector<float> samples = signal(100);
    EXPECT_EQ(nowhere.write(samples.data(), 100), 0);
    EXPECT_FALSE(nowhere.close());
    // A device without room: the header can't be written.
    WaveOutput full("/dev/full", {48000, 2, 1, 16}, {}, nullptr, true);
    EXPECT_FALSE(full.isOpen());
    EXPECT_EQ(full.write(samples.data(), 100), 0);
    EXPECT_FALSE(full.close());

    WaveOutput odd(QFile::encodeName(path()).constData(), {48000, 2, 1, 16}, {}, nullptr, false);
    odd.setSettings({48000, 2, 512, 16});
    odd.write(samples.data(), 100);
    EXPECT_TRUE(odd.close());
    EXPECT_EQ(odd.numSamples(), 0U) << "a format that isn't known writes nothing";

    WaveOutput raw(QFile::encodeName(path()).constData(), {48000, 1, 1, 16}, {}, nullptr, false);
    raw.setSettings({48000, 1, 32, 16});
    raw.write(samples.data(), 100);
    EXPECT_TRUE(raw.close());
    EXPECT_EQ(bytes().mid(44, 400), QByteArray(reinterpret_cast<char *>(samples.data()), 400))
        << "floats as they are, whatever the width";
}

// A disk that fills up in the middle, for good or for a moment: the header tells how much there
// should be, so that nobody takes what is there for the whole.
TEST_F(WaveOutputTest, AFullDiskLeavesAFileThatSaysSo)
{
    rlimit before {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    std::vector<float> samples = signal(1 << 20);
    for (const bool forGood : {true, false}) {
        WaveOutput output(
            QFile::encodeName(path()).constData(), {48000, 2, 1, 16}, {}, nullptr, false);
        const rlimit small {600000, before.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        output.write(samples.data(), 1 << 20);
        if (!forGood) {
            setrlimit(RLIMIT_FSIZE, &before);
        }
        output.write(samples.data(), 10);
        EXPECT_FALSE(output.close());
        setrlimit(RLIMIT_FSIZE, &before);
        const QByteArray file = bytes();
        EXPECT_LE(file.size(), 600000);
        EXPECT_EQ(u32(file, 40), (1U << 21) + 20);
        EXPECT_GT(u32(file, 4), 1U << 21);
    }
    std::signal(SIGXFSZ, oldHandler);
}
