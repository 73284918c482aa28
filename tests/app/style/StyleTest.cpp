#include "ConverterResources.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QRegularExpression>

namespace {

QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    auto it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext()) {
        found << it.next().captured(1);
    }
    return found;
}

}

// A picture that the sheet names and the resources lack shows as nothing at all.
TEST(StyleTest, EveryPictureOfTheSheetIsThereTwice)
{
    const QString sheet = converterStyleSheet();
    EXPECT_EQ(sheet.toUtf8().size(), 27130);
    const QStringList names = matches(sheet, u"url\\((:/[^)]+)\\.png\\)"_qs);
    EXPECT_GT(names.size(), 40);
    for (const QString &name : names) {
        const QImage one(name + u".png"_qs);
        const QImage two(name + u"@2x.png"_qs);
        EXPECT_FALSE(one.isNull()) << qPrintable(name);
        EXPECT_EQ(two.width(), 2 * one.width()) << qPrintable(name);
        EXPECT_EQ(two.height(), 2 * one.height()) << qPrintable(name);
    }
}

TEST(StyleTest, EveryPictureOfTheProgramsSourceIsThere)
{
    initConverterResources();
    QStringList missing;
    for (const auto &folder : {u"/app"_qs, u"/libs"_qs}) {
        QDirIterator it(QStringLiteral(CALDERIN_SOURCE_DIR) + folder, {u"*.cpp"_qs}, QDir::Files,
            QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile file(it.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QStringList names
                = matches(QString::fromUtf8(file.readAll()), u"\"(:/[^\"%]+\\.png)\""_qs);
            for (const QString &name : names) {
                if (QImage(name).isNull()) {
                    missing << name;
                }
            }
        }
    }
    EXPECT_TRUE(missing.isEmpty()) << qPrintable(missing.join(u' '));
}

TEST(StyleTest, PicturesOfFixedSizes)
{
    initConverterResources();
    const QPair<const char *, QSize> sizes[] = {
        {":/PlayPause.png", {68, 35}},
        {":/PlayStopPressed.png", {68, 35}},
        {":/exportsettingsbutton.png", {35, 35}},
        {":/BrowseButton_chk_hvr.png", {24, 24}},
        {":/PopupButton.png", {96, 96}}, // drawn at a quarter of its pixels
        {":/catalogue/wav.png", {64, 64}},
        {":/icons/app-16.png", {16, 16}},
        {":/icons/app-512.png", {512, 512}},
    };
    for (const auto &[name, size] : sizes) {
        EXPECT_EQ(QImage(QString::fromLatin1(name)).size(), size) << name;
    }
    EXPECT_FALSE(QFile::exists(u":/PopupButton@2x.png"_qs));
}

// Qt passes over a rule that it can't read without a word; a wrong brace takes all that follow.
TEST(StyleTest, TheSheetIsReadToItsEnd)
{
    const QString sheet = converterStyleSheet();
    EXPECT_EQ(sheet.count(u'{'), sheet.count(u'}'));
    QPushButton button;
    button.setObjectName(u"LastRuleOfTheSheet"_qs);
    button.setStyleSheet(sheet
        + u"\nQPushButton#LastRuleOfTheSheet { min-width: 321px; border: none; padding: 0px; }"_qs);
    button.ensurePolished();
    EXPECT_EQ(button.minimumWidth(), 321);
}

// A clipped or cut sound is an unpleasant end of a run.
TEST(StyleTest, TheBellIsSoftAndRingsOut)
{
    const QString bell = QCoreApplication::applicationDirPath() + u"/../Resources/bell.wav"_qs;
    const QByteArray bytes = MediaMaker::decode(bell, u"f32le"_qs);
    const auto *samples = reinterpret_cast<const float *>(bytes.constData());
    const int count = bytes.size() / static_cast<int>(sizeof(float));
    ASSERT_GT(count, 2 * 44100);
    float peak = 0;
    float step = 0;
    for (int i = 2; i < count; ++i) {
        peak = std::max(peak, std::abs(samples[i]));
        step = std::max(step, std::abs(samples[i] - samples[i - 2]));
    }
    EXPECT_NEAR(peak, 0.4F, 0.01F);
    EXPECT_LT(step, 0.15F);
    EXPECT_LT(std::abs(samples[0]) + std::abs(samples[count - 1]), 0.001F);
}
