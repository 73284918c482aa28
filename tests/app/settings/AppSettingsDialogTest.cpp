#include "AppSettingsDialog.h"
#include "App.h"
#include "AppSettings.h"
#include "ConverterResources.h"
#include "FadeIn.h"
#include "FadeOut.h"
#include "FadeWidget.h"
#include "Literals.h"

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

namespace {

class SettingsDialog : public ::testing::Test
{
protected:
    void SetUp() override { QMWidgets::App::settings()->clear(); }
    void TearDown() override { QCoreApplication::setApplicationName(u"Calderin M4A"_qs); }
};

QComboBox *box(const QDialog &dialog, const QString &name)
{
    return dialog.findChild<QComboBox *>(name);
}

int value(const QDialog &dialog, const QString &name)
{
    return box(dialog, name)->currentData().toInt();
}

/// Chooses a row as a user does: by its text in the opened list.
void choose(const QDialog &dialog, const QString &name, int data)
{
    QComboBox *chosen = box(dialog, name);
    chosen->setCurrentIndex(chosen->findData(data));
}

template <typename T> T *withText(const QWidget &parent, const QString &text)
{
    for (T *widget : parent.findChildren<T *>()) {
        if (widget->property("text").toString() == text
            || widget->property("title").toString() == text) {
            return widget;
        }
    }
    return nullptr;
}

const QString Rate = u"m_pcbxSampleRate"_qs;
const QString Bits = u"m_pcbxBitRate"_qs;

}

TEST_F(SettingsDialog, EmptyStoreShowsTheDefaults)
{
    AppSettingsDialog dialog(nullptr);
    EXPECT_EQ(dialog.windowTitle(), u"Calderin M4A Settings"_qs);
    EXPECT_EQ(value(dialog, Rate), 44100);
    EXPECT_EQ(value(dialog, Bits), 128000);
    EXPECT_EQ(value(dialog, u"m_pcbxQuality"_qs), 127);
    EXPECT_EQ(box(dialog, Bits)->count(), 16);
    const auto fades = dialog.findChildren<FadeWidget *>();
    ASSERT_EQ(fades.size(), 2);
    EXPECT_EQ(fades[0]->value(), 3);
    EXPECT_EQ(fades[1]->value(), 3);
    const QPair<const char *, bool> checks[] = {
        {"Preserve folder structure of the source", true},
        {"Copy meta tags (id3) from source", true},
        {"Copy image files from source", false},
        {"Copy text files from source", false},
        {"Copy entire non-converted content from source", false},
        {"Trim silence from start and end", false},
        {"Play sound", true},
        {"Open the destination folder", true},
    };
    for (const auto &[text, checked] : checks) {
        auto *check = withText<QCheckBox>(dialog, QString::fromLatin1(text));
        ASSERT_NE(check, nullptr) << text;
        EXPECT_EQ(check->isChecked(), checked) << text;
    }
    EXPECT_TRUE(withText<QGroupBox>(dialog, u"Volume level normalization (in %)"_qs)->isChecked());
    EXPECT_FALSE(withText<QGroupBox>(dialog, u"Fade In && Out (in seconds)"_qs)->isChecked());
}

// After a choice of the user's, the sound format must be one that the encoder can carry.
TEST_F(SettingsDialog, EveryChoiceEndsInAPairThatTheEncoderCarries)
{
    AppSettingsDialog dialog(nullptr);
    const auto carried = [](int rate, int bits) {
        const int highest = rate <= 11025 ? 64000
            : rate <= 16000               ? 96000
            : rate <= 24000               ? 128000
            : rate <= 32000               ? 192000
                                          : 320000;
        return bits <= highest && (rate < 88200 || bits >= 64000);
    };
    for (const AppSettings::Rate &rate : AppSettings::SampleRates) {
        for (const AppSettings::Rate &bits : AppSettings::BitRates) {
            choose(dialog, Rate, rate.value);
            EXPECT_EQ(value(dialog, Rate), rate.value) << rate.value << ' ' << bits.value;
            choose(dialog, Bits, bits.value);
            EXPECT_EQ(value(dialog, Bits), bits.value) << rate.value << ' ' << bits.value;
            EXPECT_TRUE(carried(value(dialog, Rate), value(dialog, Bits)))
                << rate.value << ' ' << bits.value;
            if (carried(rate.value, bits.value)) {
                EXPECT_EQ(value(dialog, Rate), rate.value) << bits.value;
            }
        }
    }
}

TEST_F(SettingsDialog, ChoicesMoveTheOtherBoxToTheStatedRow)
{
    struct Step
    {
        QString box;
        int choice;
        int rate;
        int bits;
    };
    const Step steps[] = {
        {Rate, 11025, 11025, 64000},
        {Bits, 320000, 44100, 320000},
        {Rate, 32000, 32000, 192000},
        {Rate, 22050, 22050, 128000},
        {Bits, 160000, 32000, 160000},
        {Rate, 16000, 16000, 96000},
        {Bits, 128000, 22050, 128000},
        {Bits, 56000, 22050, 56000},
        {Rate, 96000, 96000, 64000},
        {Bits, 48000, 48000, 48000},
        {Rate, 11025, 11025, 48000},
        {Bits, 80000, 16000, 80000},
        {Bits, 64000, 16000, 64000},
    };
    AppSettingsDialog dialog(nullptr);
    for (const Step &step : steps) {
        choose(dialog, step.box, step.choice);
        EXPECT_EQ(value(dialog, Rate), step.rate) << step.choice;
        EXPECT_EQ(value(dialog, Bits), step.bits) << step.choice;
    }
    QCoreApplication::setApplicationName(u"Calderin MP3"_qs);
    AppSettingsDialog other(nullptr);
    EXPECT_EQ(box(other, Rate)->itemData(0).toInt(), 48000);
    choose(other, Rate, 11025);
    EXPECT_EQ(value(other, Bits), 128000);
}

TEST_F(SettingsDialog, OkWritesWhatTheAccessorsReadAndCancelNothing)
{
    AppSettingsDialog dialog(nullptr);
    dialog.show();
    choose(dialog, Bits, 256000);
    withText<QCheckBox>(dialog, u"Copy text files from source"_qs)->setChecked(true);
    dialog.findChildren<FadeWidget *>()[0]->setValue(12);
    QTest::mouseClick(withText<QPushButton>(dialog, u"Cancel"_qs), Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(QMWidgets::App::settings()->allKeys().isEmpty());
    EXPECT_EQ(AppSettingsDialog::bitRate(), 128000);

    dialog.show();
    EXPECT_EQ(value(dialog, Bits), 128000);
    choose(dialog, Bits, 256000);
    withText<QCheckBox>(dialog, u"Copy text files from source"_qs)->setChecked(true);
    dialog.findChildren<FadeWidget *>()[0]->setValue(12);
    QShowEvent restored; // the window comes back from being minimised
    QSpontaneKeyEvent::setSpontaneous(&restored);
    qApp->notify(&dialog, &restored);
    QTest::mouseClick(withText<QPushButton>(dialog, u"Ok"_qs), Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(AppSettingsDialog::bitRate(), 256000);
    EXPECT_EQ(AppSettingsDialog::fadeIn(), 12);
    EXPECT_TRUE(AppSettingsDialog::copyTextsActive());
    EXPECT_EQ(QMWidgets::App::settingsValue(u"KeyCodec"_qs).toString(), u"WAV"_qs);
    // The store is text that other versions read: the spellings are its format.
    EXPECT_TRUE(QMWidgets::App::settings()->contains(u"Calderin M4A/KeyCopyTextssActive"_qs));
    EXPECT_TRUE(QMWidgets::App::settings()->contains(u"Calderin M4A/KeyChanels"_qs));
}

TEST_F(SettingsDialog, ValuesThatTheBoxesDoNotHold)
{
    const auto store = [](const char *key, const QVariant &stored) {
        QMWidgets::App::setSettingsValue(QLatin1String(key), stored);
    };
    store("KeySampleRate", 12345);
    store("KeyFadeIn", 2.7);
    store("KeyFadeOut", u"nan"_qs);
    store("KeyNormalization", -7);
    AppSettingsDialog dialog(nullptr);
    EXPECT_EQ(box(dialog, Rate)->currentIndex(), -1);
    choose(dialog, Bits, 16000); // no rule can apply without a sample rate
    EXPECT_EQ(box(dialog, Rate)->currentIndex(), -1);
    EXPECT_EQ(dialog.findChildren<FadeWidget *>()[0]->value(), 2);
    EXPECT_EQ(dialog.findChildren<FadeWidget *>()[1]->value(), 0);
    withText<QPushButton>(dialog, u"Ok"_qs)->click();
    EXPECT_EQ(AppSettingsDialog::sampleRate(), 0);
    EXPECT_EQ(AppSettingsDialog::normalization(), 1);
}

TEST_F(SettingsDialog, PagesScrollInsteadOfSqueezingAndTabReachesOkLast)
{
    qApp->setStyleSheet(converterStyleSheet());
    AppSettingsDialog dialog(nullptr);
    dialog.show();
    const QScrollArea *page = nullptr;
    for (const QScrollArea *area : dialog.findChildren<QScrollArea *>()) {
        page = area->isVisible() ? area : page;
    }
    ASSERT_NE(page, nullptr);
    dialog.resize(dialog.width(), 360);
    QCoreApplication::processEvents();
    const auto checks = page->findChildren<QCheckBox *>();
    for (const QCheckBox *check : checks) {
        if (check->isVisible()) {
            EXPECT_GE(check->height(), check->sizeHint().height());
        }
    }
    EXPECT_LE(page->widget()->width(), page->viewport()->width());
    EXPECT_EQ(dialog.focusWidget(), box(dialog, Rate));
    const auto *tabs = dialog.findChild<QTabWidget *>();
    for (const int index : {1, 0}) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), index);
    }
    QWidget *last = withText<QCheckBox>(dialog, u"Open the destination folder"_qs);
    while (!(last = last->nextInFocusChain())->isVisible()
        || (last->focusPolicy() & Qt::TabFocus) == 0) { }
    EXPECT_EQ(last, withText<QPushButton>(dialog, u"Ok"_qs));
    qApp->setStyleSheet(QString());
}

TEST(FadeTest, MouseGivesWholeValuesWithinTheRange)
{
    FadeIn in(nullptr);
    FadeOut out(nullptr);
    for (Fade *fade : {static_cast<Fade *>(&in), static_cast<Fade *>(&out)}) {
        fade->setRange({0, 33});
        fade->resize(330, 90);
        QTest::mousePress(fade, Qt::LeftButton, {}, QPoint(165, 40));
    }
    EXPECT_EQ(in.value(), 16);
    EXPECT_EQ(out.value(), 17);
    for (const int x : {-400, 900}) {
        QMouseEvent drag(QEvent::MouseMove, QPointF(x, 10), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&in, &drag);
        QCoreApplication::sendEvent(&out, &drag);
        EXPECT_EQ(in.value(), x < 0 ? 0 : 33);
        EXPECT_EQ(out.value(), x < 0 ? 33 : 0);
    }
    in.setRange({5, 5});
    in.resize(0, 0);
    QTest::mousePress(&in, Qt::LeftButton);
    EXPECT_EQ(in.value(), 5);
}

TEST(FadeTest, ButtonsStopAtTheEnds)
{
    FadeWidget fade(true, nullptr);
    fade.setRange({0, 33});
    const auto buttons = fade.findChildren<QPushButton *>();
    ASSERT_EQ(buttons.size(), 2);
    fade.setValue(32.5F);
    buttons[0]->click();
    EXPECT_EQ(fade.value(), 33);
    buttons[0]->click();
    EXPECT_EQ(fade.value(), 33);
    fade.setValue(0.5F);
    buttons[1]->click();
    EXPECT_EQ(fade.value(), 0);
    buttons[1]->click();
    EXPECT_EQ(fade.value(), 0);
}

// The marker: darkRed at the value's place, and the ground gone when disabled.
TEST(FadeTest, DrawsTheMarkerAtTheValue)
{
    FadeIn in(nullptr);
    in.setRange({0, 100});
    in.resize(200, 100);
    in.setValue(50);
    QImage image(in.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    in.render(&image, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(image.pixelColor(100, 96), QColor(Qt::darkRed));
    EXPECT_EQ(image.pixelColor(40, 30), QColor(210, 210, 210));
    in.setEnabled(false);
    image.fill(Qt::black);
    in.render(&image, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(image.pixelColor(40, 30), QColor(Qt::black));
}
