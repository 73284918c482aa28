#include "EBUInfo.h"

#include "Literals.h"
#include "ProductionParameters.h"
#include "WaveBytes.h"
#include <gtest/gtest.h>
#include <QDate>

using namespace WaveBytes;
using QMMultiMedia::EBUInfo;

namespace {

QByteArray saved(const EBUInfo &info)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(u"bext"_qs);
    return info.save(QFile::encodeName(path).constData()) ? MediaMaker::bytesOf(path)
                                                          : QByteArray();
}

}

TEST(EBUInfo, LayoutToTheByte)
{
    EBUInfo info(0x0102030405060708LL, 25.0f);
    info.setOriginator(u"origin"_qs);
    info.setOriginationRef(QString(40, u'r'));
    info.setOriginationDate(u"2024-12-31"_qs);
    info.setVersion(1);
    info.setUMID(0, 'U');
    info.setUMID(63, 'Z');
    info.setUMID(64, 'x');
    info.setUMID(-1, 'x');
    info.setCodingHistory(u"odd"_qs);
    EXPECT_EQ(info.umid(64), 0);

    const QByteArray expected = "bext" + le32(605)
        + QByteArray("sSPEED=25").leftJustified(256, '\0')
        + QByteArray("origin").leftJustified(32, '\0') + QByteArray(32, 'r') + "2024-12-31"
        + "00:00:00" + le32(0x05060708) + le32(0x01020304) + le16(1)
        + ("U" + QByteArray(62, '\0') + "Z") + QByteArray(190, '\0') + "odd";
    EXPECT_EQ(saved(info), expected);
    EXPECT_TRUE(info.umidsString().startsWith(u"55 00 00 00 00 00 00 00\n00 "_qs));
    EXPECT_EQ(info.originationRef().size(), 40) << "cut only when it is written";
}

TEST(EBUInfo, FilledForANewFile)
{
    const struct
    {
        int rate, bits, channels;
        const char *history;
    } cases[] = {{48000, 24, 2, "A=PCM,F=48000,W=24,M=stereo,T=\r\n"},
        {44100, 16, 1, "A=PCM,F=44100,W=16,M=mono,T=\r\n"},
        {8000, 8, 4, "A=PCM,F=8000,W=8,M=4CH,T=\r\n"}};
    for (const auto &c : cases) {
        EBUInfo info;
        info.fill(u"/a.wav"_qs, c.rate, c.bits, c.channels);
        EXPECT_EQ(info.codingHistory(), QLatin1String(c.history));
        EXPECT_EQ(info.size(), 602 + static_cast<int>(qstrlen(c.history)));
    }
    QMMultiMedia::ProductionParameters::instance()->setProjectName(u"my big project"_qs);
    EBUInfo info(0, 25.0f);
    info.fill(u"/a.wav"_qs, 48000, 24, 2);
    QMMultiMedia::ProductionParameters::instance()->setProjectName(QString());
    const QStringList lines
        = info.description().left(info.description().indexOf(QChar(0))).split(u"\r\n"_qs);
    ASSERT_EQ(lines.size(), 8);
    EXPECT_EQ(lines[0], u"sUBITS=$"_qs + QDate::currentDate().toString(u"ddMMyyyy"_qs));
    EXPECT_EQ(lines[1], u"sSPEED=25.000-ND"_qs);
    EXPECT_TRUE(lines[2].startsWith(u"sSWVER="_qs));
    EXPECT_EQ(
        lines.mid(3, 5).join(u'|'), u"sFILENAME=|sPROJECTNAME=my_big_project|sTRK=|sNOTE=|"_qs);
    EXPECT_TRUE(info.originator().startsWith(u"VELMORA"_qs));
    EXPECT_TRUE(info.originationRef().startsWith(u"Calderin M4A:"_qs));

    EBUInfo noRate;
    noRate.fill(u"/a.wav"_qs, 48000, 24, 2);
    EXPECT_TRUE(noRate.description().contains(u"sSPEED=-1.000-ND\r\n"_qs));
}

TEST(EBUInfo, StandAloneFilesComeBackAndDamagedOnesDont)
{
    const QTemporaryDir dir;
    const QByteArray path = QFile::encodeName(dir.filePath(u"bext"_qs));
    EBUInfo info(1LL << 40, 25.0f);
    info.fill(QString(), 96000, 32, 2);
    info.setUMID(5, '\xAB');
    const QByteArray bytes = saved(info);
    ASSERT_TRUE(MediaMaker::writeFile(QFile::decodeName(path), bytes));
    EBUInfo read;
    ASSERT_TRUE(read.load(path.constData()));
    EXPECT_EQ(saved(read), bytes);
    EXPECT_EQ(read.timeReference(), 1LL << 40);

    EXPECT_FALSE(read.load("/nonexistent"));
    // A history of 2 GB that isn't there; a body that ends early; a size below the fixed part.
    for (const auto &damaged : {bytes.left(4) + le32(0x7FFFFFFF) + bytes.mid(8), bytes.left(300),
             bytes.left(4) + le32(602) + bytes.mid(8), bytes.left(4) + le32(0xFFFFFFFF)}) {
        ASSERT_TRUE(MediaMaker::writeFile(QFile::decodeName(path), damaged));
        EBUInfo hostile;
        EXPECT_TRUE(hostile.load(path.constData()));
        EXPECT_LE(hostile.codingHistory().size(), 32);
    }
    ASSERT_TRUE(MediaMaker::writeFile(QFile::decodeName(path), "RIFF" + bytes));
    EXPECT_FALSE(read.load(path.constData()));
}
