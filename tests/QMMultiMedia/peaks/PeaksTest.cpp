#include "EBUEnvelope.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "PeakInfoCache.h"
#include "PeakVector.h"
#include "Peekmeter.h"

#include <gtest/gtest.h>
#include <limits>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

using namespace QMMultiMedia;

namespace {

std::vector<float> firsts(const PeakVector &peaks, int channel)
{
    std::vector<float> values;
    for (const PeakInfo &peak : peaks.peakInfoVector(channel)) {
        values.push_back(peak.first);
    }
    return values;
}

using Values = std::vector<float>;

}

TEST(PeakVector, GrowsAndMoves)
{
    PeakVector peaks;
    EXPECT_TRUE(peaks.isEmpty());
    peaks.insertPeaks(5, 6, 1, 2, 2);
    EXPECT_EQ(firsts(peaks, 1), (Values {0, 0, 5, 5}));
    EXPECT_EQ(peaks.peakChannels(), 2);
    peaks.insertPeaks(7, 8, 1, 0, 1);
    peaks.addPeak(9, 9, 0);
    EXPECT_EQ(firsts(peaks, 1), (Values {7, 0, 0, 5, 5}));
    EXPECT_EQ(peaks.numPeakFrames(), 5);
    peaks.move(3);
    EXPECT_EQ(firsts(peaks, 1), (Values {5, 5, 0, 0, 0}));
    EXPECT_EQ(firsts(peaks, 0), (Values {0}));
    peaks.move(-4);
    EXPECT_EQ(firsts(peaks, 1), (Values {0, 0, 0, 0, 5}));
    peaks.move(std::numeric_limits<int>::min());
    EXPECT_EQ(firsts(peaks, 1), Values(5));

    peaks.addPeak(1, 1, -1);
    peaks.insertPeaks(1, 1, 0, -1, 1);
    peaks.peakInfo(99, 0).first = 3;
    EXPECT_EQ(peaks.peakInfo(99, 0).first, 0.0f) << "what is out of range stays zero";
    EXPECT_EQ(static_cast<const PeakVector &>(peaks).peakInfo(0, -1).second, 0.0f);
    EXPECT_EQ(PeakVector(3, 2).numPeakFrames(), 3);
    EXPECT_TRUE(peaks.peakInfoVector(7).empty());
}

TEST(EBUEnvelope, ValuesToTheByte)
{
    const QTemporaryDir dir;
    const QString file = dir.filePath(u"levl"_qs);
    const QByteArray path = QFile::encodeName(file);
    PeakVector peaks;
    peaks.addPeak(-1.0f, 0.5f, 0);
    peaks.addPeak(-2.0f, std::numeric_limits<float>::infinity(), 1);
    EBUEnvelope envelope;
    envelope.setPosPeakOfPeaks(77);
    ASSERT_TRUE(envelope.save(path.constData(), peaks, EBUEnvelope::Format16Bit));
    QByteArray bytes = MediaMaker::bytesOf(file);
    EXPECT_EQ(bytes.mid(128), QByteArray::fromHex("ffffff7ffeff0000"));
    ASSERT_TRUE(envelope.save(path.constData(), peaks, EBUEnvelope::Format8Bit));
    bytes = MediaMaker::bytesOf(file);
    EXPECT_EQ(bytes.mid(128), QByteArray::fromHex("ff7ffe00"));
    EXPECT_EQ(bytes.mid(0, 8), QByteArray("levl\x7C\0\0\0", 8));

    // A file without the chunk's header is what load() reads.
    ASSERT_TRUE(MediaMaker::writeFile(file, bytes.mid(8)));
    EBUEnvelope read;
    ASSERT_TRUE(read.load(path.constData(), peaks));
    EXPECT_EQ(read.posPeakOfPeaks(), 77U);
    EXPECT_EQ(read.peakChannels(), 2U);
    EXPECT_EQ(read.timeStamp().size(), 28);
    EXPECT_EQ(read.timeStamp().trimmed(), envelope.timeStamp());
    ASSERT_TRUE(MediaMaker::writeFile(file, bytes.left(100)));
    EXPECT_FALSE(read.load(path.constData(), peaks));
    EXPECT_FALSE(read.load("/nonexistent", peaks));

    EXPECT_FALSE(envelope.save(path.constData(), peaks, 3));
    EXPECT_EQ(MediaMaker::bytesOf(file).size(), 128) << "the header alone";
    PeakVector none;
    ASSERT_TRUE(envelope.save(path.constData(), none, EBUEnvelope::Format16Bit));
    EXPECT_EQ(envelope.chunkSize(), 120U);
    EXPECT_EQ(MediaMaker::bytesOf(file).size(), 128);
    EXPECT_FALSE(envelope.save("/dev/full", peaks, EBUEnvelope::Format16Bit));
}

TEST(PeakInfoCache, TheOldestGoesAndAnotherZoomEmpties)
{
    PeakInfoCache cache(3);
    for (int i = 0; i < 3; ++i) {
        cache.insert(i, 0, 2.0f, {static_cast<float>(i), 0});
    }
    cache.insert(0, 0, 2.0f, {10, 0});
    cache.insert(0, 1, 2.0f, {11, 0});
    EXPECT_EQ(cache.find(0, 0, 2.0f), nullptr) << "the oldest, though it was written again";
    EXPECT_EQ(cache.find(0, 1, 2.0f)->first, 11.0f);
    EXPECT_EQ(cache.find(1, 0, 3.0f), nullptr);
    EXPECT_NE(cache.find(1, 0, 2.0f), nullptr) << "asking at another zoom empties nothing";
    cache.insert(5, 0, 3.0f, {});
    EXPECT_EQ(cache.find(1, 0, 2.0f), nullptr);
    EXPECT_NE(cache.find(5, 0, 3.0f), nullptr);
}

TEST(Peekmeter, FillsFromTheBottom)
{
    Peekmeter meter;
    const int cases[][3]
        = {{-71, -70, 0}, {-30, -30, 50}, {9, 9, 98}, {10, 10, 100}, {99, 10, 100}};
    for (const auto &c : cases) {
        meter.slotSetValue(c[0]);
        EXPECT_EQ(meter.valueDb(), c[1]);
        EXPECT_EQ(meter.value(), c[2]);
    }
    meter.resize(4, 100);
    meter.slotSetValue(-30);
    QImage image(4, 100, QImage::Format_RGB32);
    image.fill(Qt::black);
    meter.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    EXPECT_EQ(image.pixelColor(3, 50), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(0, 99), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(0, 49), QColor(Qt::black));
}
