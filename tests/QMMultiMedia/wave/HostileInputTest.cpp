#include "AiffInput.h"
#include "GeneralFileInput.h"
#include "Literals.h"
#include "WaveBytes.h"
#include "WaveInput.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>

using namespace WaveBytes;

namespace {

/// Every operation that looks at the file's numbers.
void useEverything(QMMultiMedia::FileInput *input)
{
    float samples[1000];
    input->rewind();
    EXPECT_LE(input->read(samples, 1000), 1000);
    input->gotoFrame(1);
    input->readChannel(samples, 100, 0);
    input->createPeakVector();
    for (const float zoom : {0.5f, 1.0f, 20.0f, 256.0f, 4000.0f}) {
        input->peakInfo(1, 0, zoom);
    }
    input->duration();
    input->end();
}

QByteArray bext(std::uint32_t stated, int real)
{
    return "bext" + le32(stated) + QByteArray(real, 'b');
}

QByteArray levl(std::uint32_t channels, std::uint32_t frames, std::uint32_t offset, int real)
{
    return chunk("levl",
        le32(0) + le32(2) + le32(2) + le32(256) + le32(channels) + le32(frames) + le32(0)
            + le32(offset) + QByteArray(88, 'l') + QByteArray(real, '\x7F'));
}

QByteArray comm(int channels, int bits, const QByteArray &rate)
{
    return chunk("COMM",
        QByteArray(1, '\0') + static_cast<char>(channels) + be32(100) + QByteArray(1, '\0')
            + static_cast<char>(bits) + rate.leftJustified(10, '\0'),
        true);
}

QByteArray form(const QByteArray &chunks)
{
    return "FORM" + be32(static_cast<std::uint32_t>(chunks.size() + 4)) + "AIFF" + chunks;
}

class HostileInputTest : public ::testing::Test
{
protected:
    struct Case
    {
        const char *what;
        bool loads;
        QByteArray bytes;
    };

    void check(const std::vector<Case> &cases)
    {
        const QByteArray path = QFile::encodeName(m_dir.filePath(u"a"_qs));
        for (const Case &c : cases) {
            ASSERT_TRUE(MediaMaker::writeFile(m_dir.filePath(u"a"_qs), c.bytes.leftJustified(40)));
            QElapsedTimer timer;
            timer.start();
            QMMultiMedia::GeneralFileInput input;
            EXPECT_EQ(input.load(path.constData(), true), c.loads) << c.what;
            useEverything(&input);
            EXPECT_LT(timer.elapsed(), 5000) << c.what;
        }
    }

    QTemporaryDir m_dir;
    const QByteArray m_fmt = chunk("fmt ", fmtBody(2, 8000, 16));
    const QByteArray m_data = chunk("data", QByteArray(4000, 'd'));
    const QByteArray m_rate = QByteArray::fromHex("400eac44");
    const QByteArray m_ssnd = chunk("SSND", QByteArray(8 + 800, '\0'), true);
};

}

TEST_F(HostileInputTest, Wave)
{
    const QByteArray tail = m_fmt + m_data;
    check({
        {"whole", true, riff(tail)},
        {"no data", false, riff(m_fmt)},
        {"no fmt", false, riff(m_data)},
        {"size 0", false, "RIFF" + le32(0) + "WAVE" + tail},
        {"size that wraps", true, "RIFF" + le32(0xFFFFFFFF) + "WAVE" + tail},
        {"data beyond the file", true,
            riff(m_fmt + "data" + le32(0xFFFFFFFF) + QByteArray(64, 'd'))},
        {"data of no bytes", true, riff(m_fmt + "data" + le32(0))},
        {"chunk beyond the file", false, riff("junk" + le32(0xFFFFFFF0) + tail)},
        {"odd chunk", true, riff(chunk("junk", "odd") + tail)},
        {"odd bext without a pad", true, riff(bext(603, 603) + tail)},
        {"odd bext with a pad", true, riff(bext(603, 603) + '\0' + tail)},
        {"bext too short", true, riff(bext(20, 20) + tail)},
        {"bext of 2 GB", false, riff(bext(0x7FFFFFFF, 700) + tail)},
        {"bext beyond an int", false, riff(bext(0xFFFFFFFF, 700) + tail)},
        {"chunks of no bytes", true, riff(QByteArray("junk\0\0\0\0", 8).repeated(50000) + tail)},
        {"LIST in LIST", true,
            riff(chunk("LIST", "INFO" + chunk("LIST", "INFO" + chunk("ICMT", "x"))) + tail)},
        {"LIST of another kind", true, riff(chunk("LIST", "adtl" + QByteArray(11, 'x')) + tail)},
        {"LIST without a kind", false, riff("LIST" + le32(2) + "IN" + tail)},
        {"comment beyond its list", true,
            riff("LIST" + le32(14) + "INFOICMT" + le32(0xFFFFFFFF) + "xx" + tail)},
        {"comment beyond the file", false,
            riff(tail + "LIST" + le32(0xFFFFFFF0) + "INFOICMT" + le32(0xFFFFFF00))},
        {"fmt too short", false, riff(chunk("fmt ", fmtBody(2, 8000, 16).left(14)) + m_data)},
        {"float", false, riff(chunk("fmt ", fmtBody(2, 8000, 32, 3)) + m_data)},
        {"no channels", false, riff(chunk("fmt ", fmtBody(0, 8000, 16)) + m_data)},
        {"65,535 channels", false, riff(chunk("fmt ", fmtBody(65535, 8000, 16)) + m_data)},
        {"32,767 channels", true, riff(chunk("fmt ", fmtBody(32767, 8000, 32)) + m_data)},
        {"no bits", false, riff(chunk("fmt ", fmtBody(2, 8000, 0)) + m_data)},
        {"65,535 bits", false, riff(chunk("fmt ", fmtBody(2, 8000, 65535)) + m_data)},
        {"4,096 bits", true, riff(chunk("fmt ", fmtBody(2, 8000, 4096)) + m_data)},
        {"no rate", true, riff(chunk("fmt ", fmtBody(2, 0, 16)) + m_data)},
        {"levl of 2^32 channels", true, riff(tail + levl(0xFFFFFFFF, 0xFFFFFFFF, 128, 8))},
        {"levl of no channels", true, riff(tail + levl(0, 0xFFFFFFFF, 128, 8))},
        {"levl far away", true, riff(tail + levl(2, 4, 0xFFFFFFFF, 32))},
        {"levl too short", true, riff(tail + chunk("levl", QByteArray(40, 'l')))},
    });
}

TEST_F(HostileInputTest, Aiff)
{
    const QByteArray good = comm(2, 16, m_rate);
    check({
        {"whole", true, form(good + m_ssnd)},
        {"samples first", true, form(m_ssnd + good)},
        {"no samples", false, form(good + chunk("junk", QByteArray(30, 'x'), true))},
        {"no description", false, form(m_ssnd)},
        {"rate infinity", false, form(comm(2, 16, QByteArray::fromHex("7fff80")) + m_ssnd)},
        {"rate 1e300", false,
            form(comm(2, 16, QByteArray::fromHex("43e3bf21e44003acdd2d")) + m_ssnd)},
        {"rate negative", false, form(comm(2, 16, QByteArray::fromHex("c00eac44")) + m_ssnd)},
        {"rate 0", true, form(comm(2, 16, QByteArray()) + m_ssnd)},
        {"no channels", false, form(comm(0, 16, m_rate) + m_ssnd)},
        {"no bits", false, form(comm(2, 0, m_rate) + m_ssnd)},
        {"12 bits", true, form(comm(2, 12, m_rate) + m_ssnd)},
        {"offset beyond the samples", false,
            form(good + chunk("SSND", be32(0xFFFFFFF0) + QByteArray(800, 's'), true))},
        {"samples beyond the file", true,
            form(good + "SSND" + be32(0xFFFFFFFF) + be32(0) + be32(0) + QByteArray(80, 's'))},
        {"samples of no size", false, form(good + chunk("SSND", QByteArray(), true))},
        {"comment beyond its chunk", true,
            form(chunk("COMT", QByteArray::fromHex("0001ffffffffffffffff"), true) + good + m_ssnd)},
        {"no comments", true, form(chunk("COMT", QByteArray(2, '\0'), true) + good + m_ssnd)},
        {"cut in the description", false, "FORM" + be32(900) + "AIFFCOMM" + be32(18) + "12345678"},
    });
}

TEST_F(HostileInputTest, NamesKindsAndLeftovers)
{
    QMMultiMedia::WaveInput input;
    const QByteArray good = QFile::encodeName(m_dir.filePath(u"good.WAV"_qs));
    ASSERT_TRUE(
        MediaMaker::writeFile(QFile::decodeName(good), riff(m_fmt + bext(602, 602) + m_data)));
    ASSERT_TRUE(input.load(good.constData(), false));
    EXPECT_FALSE(input.ebuInfo().isNull());
    input.createPeakVector();

    const QByteArray plain = QFile::encodeName(m_dir.filePath(u"plain"_qs));
    ASSERT_TRUE(MediaMaker::writeFile(QFile::decodeName(plain), riff(m_fmt + m_data)));
    EXPECT_FALSE(input.load(plain.constData(), false)) << "another ending";
    ASSERT_TRUE(input.load(plain.constData(), true));
    EXPECT_TRUE(input.ebuInfo().isNull()) << "nothing is left of the file before";
    EXPECT_TRUE(input.peakVector()->isEmpty());

    ASSERT_TRUE(MediaMaker::writeFile(QFile::decodeName(plain), riff(m_fmt + m_data).left(39)));
    EXPECT_FALSE(input.load(plain.constData(), true)) << "39 bytes";
    EXPECT_FALSE(input.load("/dev/zero", true));
    EXPECT_FALSE(input.load(QFile::encodeName(m_dir.path()).constData(), true));
    EXPECT_FALSE(input.load("/nonexistent.wav", false));

    QMMultiMedia::GeneralFileInput general;
    EXPECT_EQ(general.fileFormat(), 0);
    EXPECT_FALSE(general.load("/nonexistent.wav", false));
    ASSERT_TRUE(general.load(good.constData(), false));
    EXPECT_EQ(general.fileFormat(), 3);
    EXPECT_TRUE(general.load("/nonexistent.wav", false)) << "the reader from before stays";
    EXPECT_EQ(general.fileInfo().numSamples(), 2000U);
}
