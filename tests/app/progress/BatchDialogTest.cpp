#include "BatchDialog.h"
#include "App.h"
#include "ConverterResources.h"
#include "ErrorsDialog.h"
#include "Label.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "RoundProgress.h"
#include "SimpleProgress.h"

#include <gtest/gtest.h>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

namespace {

/// The dialog with its parts, by the text that they start with, and what it told.
struct RunView
{
    RunView()
    {
        const auto buttons = dialog.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            const QString text = button->text();
            (text == u"Pause"_qs          ? pause
                    : text == u"Stop"_qs  ? stop
                    : text == u"Close"_qs ? close
                                          : errors)
                = button;
        }
        bar = dialog.findChild<QMWidgets::SimpleProgress *>();
        round = dialog.findChild<QMWidgets::RoundProgress *>();
        dialog.open();
    }

    BatchDialog dialog {nullptr};
    QPushButton *pause = nullptr;
    QPushButton *stop = nullptr;
    QPushButton *close = nullptr;
    QPushButton *errors = nullptr;
    QMWidgets::SimpleProgress *bar = nullptr;
    QMWidgets::RoundProgress *round = nullptr;
    QSignalSpy stops {&dialog, &BatchDialog::stop};
    QSignalSpy pauses {&dialog, &BatchDialog::paused};
    QSignalSpy rejects {&dialog, &BatchDialog::rejected};
};

/// What the window system does with a window that comes back from being minimised.
void restore(QWidget *window)
{
    QShowEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window, &event);
}

QString plainSummary(const BatchDialog &dialog)
{
    QTextEdit text;
    text.setHtml(dialog.findChild<QMWidgets::Label *>(u"PreviewLabel"_qs)->text());
    return text.toPlainText();
}

/// Waits for a modal dialog of the class and hands it over.
template <typename T> void whenOpen(const std::function<void(T *)> &action)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [timer, action] {
        if (auto *box = qobject_cast<T *>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            action(box);
        }
    });
    timer->start(5);
}

}

TEST(BatchDialogTest, SummaryTellsTheStoredSettings)
{
    const auto store = [](const char *key, const QVariant &value) {
        QMWidgets::App::setSettingsValue(QLatin1String(key), value);
    };
    const QPair<int, const char *> words[]
        = {{0, "Low"}, {31, "Low"}, {32, "Medium"}, {64, "Medium"}, {85, "Medium"}, {86, "High"}};
    for (const auto &[quality, word] : words) {
        store("KeyQuality", quality);
        const RunView run;
        EXPECT_TRUE(plainSummary(run.dialog).contains(u": "_qs + QLatin1String(word))) << quality;
    }
    store("KeySampleRate", 22050);
    store("KeyNormalizationActive", false);
    store("KeyTrimSilenceActive", true);
    const QString encoded = plainSummary(RunView().dialog);
    for (const auto &part : {u"Conversion Settings"_qs, u": 22050 Hz"_qs, u": 128 kbps"_qs}) {
        EXPECT_TRUE(encoded.contains(part)) << qPrintable(part);
    }
    EXPECT_EQ(encoded.count(u": OFF"_qs), 2);
    EXPECT_EQ(encoded.count(u": ON"_qs), 1);
    for (const auto &[name, part] : {QPair<QString, QString> {u"Some WAV tool"_qs, u"Channels"_qs},
             QPair<QString, QString> {u"Some tool"_qs, QString()}}) {
        QCoreApplication::setApplicationName(name);
        const QString text = plainSummary(RunView().dialog);
        EXPECT_EQ(text.isEmpty(), part.isEmpty());
        EXPECT_TRUE(text.contains(part));
    }
    QCoreApplication::setApplicationName(u"Calderin M4A"_qs);
    QMWidgets::App::settings()->clear();
}

TEST(BatchDialogTest, StatesOfARun)
{
    RunView run;
    EXPECT_EQ(run.bar->text(), u"ANALYZING"_qs);
    run.dialog.slotShowCurrentFile(u"first"_qs);
    run.dialog.slotProgressChanged(50);
    run.dialog.slotFileProgressChanged(20);
    EXPECT_EQ(run.bar->value(), 20);
    EXPECT_EQ(run.round->value(), 50);
    run.dialog.slotProgressChanged(99);
    EXPECT_EQ(run.bar->value(), 99);
    EXPECT_FALSE(run.close->isVisible());
    QTest::mouseClick(run.pause, Qt::LeftButton);
    restore(&run.dialog);
    EXPECT_EQ(run.pause->text(), u"Resume"_qs);
    EXPECT_EQ(run.bar->value(), 99);
    QTest::mouseClick(run.pause, Qt::LeftButton);
    EXPECT_EQ(run.pause->text(), u"Pause"_qs);
    ASSERT_EQ(run.pauses.size(), 2);
    EXPECT_TRUE(run.pauses[0][0].toBool());
    EXPECT_FALSE(run.pauses[1][0].toBool());
    // Enter in a run presses nothing; after it, it closes.
    EXPECT_FALSE(run.stop->isDefault() || run.pause->isDefault() || run.stop->autoDefault());

    EXPECT_FALSE(run.errors->isVisible());
    run.dialog.slotSetErrors(u"Can not convert: a\n"_qs);
    EXPECT_TRUE(run.errors->isVisible());
    run.dialog.slotProgressChanged(100);
    EXPECT_EQ(run.bar->text(), u"DONE"_qs);
    EXPECT_TRUE(run.close->isVisible() && run.errors->isVisible());
    EXPECT_FALSE(run.stop->isVisible() || run.pause->isVisible());
    QTest::keyClick(&run.dialog, Qt::Key_Return);
    EXPECT_FALSE(run.dialog.isVisible());
    EXPECT_TRUE(run.stops.isEmpty());
    EXPECT_EQ(run.dialog.result(), QDialog::Accepted);
}

TEST(BatchDialogTest, EveryWayOutTellsStopOnce)
{
    const std::function<void(RunView &)> ways[] = {
        [](RunView &run) { QTest::mouseClick(run.stop, Qt::LeftButton); },
        [](RunView &run) { QTest::keyClick(&run.dialog, Qt::Key_Escape); },
        [](RunView &run) { run.dialog.close(); },
        // A stop from the pause, and one that comes twice before the events are handled.
        [](RunView &run) {
            run.pause->click();
            run.stop->click();
            run.dialog.slotProgressChanged(100);
            run.dialog.slotShowCurrentFile(u"late"_qs);
        },
    };
    for (const auto &way : ways) {
        RunView run;
        bool visibleAtStop = true;
        QObject::connect(&run.dialog, &BatchDialog::stop, &run.dialog,
            [&] { visibleAtStop = run.dialog.isVisible(); });
        way(run);
        EXPECT_EQ(run.stops.size(), 1);
        EXPECT_FALSE(visibleAtStop);
        EXPECT_FALSE(run.dialog.isVisible());
    }
}

TEST(BatchDialogTest, OutOfSpaceWaitsForResume)
{
    RunView run;
    run.dialog.slotShowCurrentFile(u"first"_qs);
    QString text;
    bool delivered = false;
    whenOpen<QMessageBox>([&](QMessageBox *box) {
        text = box->windowTitle() + box->text();
        // What the run sends while the warning is up still arrives.
        run.dialog.slotFileProgressChanged(7);
        delivered = run.bar->value() == 7;
        box->accept();
    });
    run.dialog.slotNotEnoughtFreeSpace();
    EXPECT_TRUE(delivered);
    EXPECT_TRUE(text.startsWith(u"Not enough free space<H3>"_qs)) << qPrintable(text);
    EXPECT_EQ(run.bar->text(), u"NOT ENOUGH FREE SPACE"_qs);
    EXPECT_EQ(run.pause->text(), u"Resume"_qs);
    EXPECT_TRUE(run.pause->isChecked());
    EXPECT_TRUE(run.pauses.isEmpty());
    QTest::mouseClick(run.pause, Qt::LeftButton);
    ASSERT_EQ(run.pauses.size(), 1);
    EXPECT_FALSE(run.pauses[0][0].toBool());
    EXPECT_EQ(run.pause->text(), u"Pause"_qs);
    run.dialog.slotShowCurrentFile(u"second"_qs);
    EXPECT_EQ(run.bar->text(), u"second"_qs);
}

TEST(BatchDialogTest, ErrorsAreShownAsTheyAre)
{
    QWidget page;
    page.resize(640, 480);
    QMWidgets::App::setMainWidget(&page);
    RunView run;
    run.dialog.slotSetErrors(u"old"_qs);
    const QString log = u"Can not convert: /music/<b>x</b> & y.mp3\n"_qs;
    run.dialog.slotSetErrors(log);
    QString shown;
    QSize size;
    whenOpen<ErrorsDialog>([&](ErrorsDialog *box) {
        shown = box->findChild<QTextEdit *>(u"ErrorsText"_qs)->toPlainText();
        size = box->size();
        QTest::mouseClick(box->findChild<QPushButton *>(), Qt::LeftButton);
    });
    QTest::mouseClick(run.errors, Qt::LeftButton);
    EXPECT_EQ(shown, log);
    EXPECT_EQ(size, QSize(640, 160));
    QMWidgets::App::setMainWidget(nullptr);
}

// The dialog is as wide as the page, which may be narrow, and texts grow in translation.
TEST(BatchDialogTest, NothingIsCutInANarrowDialog)
{
    qApp->setStyleSheet(converterStyleSheet());
    {
        RunView run;
        run.dialog.setFixedSize(420, 600);
        run.errors->setText(u"Bei der Umwandlung sind ein oder mehrere Fehler aufgetreten!"_qs);
        run.stop->setText(u"Anhalten"_qs);
        run.pause->setText(u"Fortsetzen"_qs);
        run.dialog.slotSetErrors(u"x"_qs);
        QCoreApplication::processEvents();
        const auto check = [&](const QList<QWidget *> &widgets) {
            int right = 0;
            for (const QWidget *widget : widgets) {
                EXPECT_GE(widget->x(), right);
                right = widget->geometry().right();
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width());
            }
            EXPECT_LT(right, run.dialog.width());
            EXPECT_GE(run.errors->height(), run.errors->heightForWidth(run.errors->width()));
        };
        check({run.pause, run.stop, run.errors});
        run.dialog.slotProgressChanged(100);
        QCoreApplication::processEvents();
        check({run.errors, run.close});
    }
    qApp->setStyleSheet(QString());
}
