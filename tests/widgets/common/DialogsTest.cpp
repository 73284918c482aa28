#include "AboutDialog.h"
#include "App.h"
#include "Browser.h"
#include "DropWidget.h"
#include "MediaMaker.h"
#include "MMessageBox.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

using namespace QMWidgets;

namespace {

QStringList buttonTexts(const QWidget &wgt)
{
    QStringList lst;
    const auto buttons = wgt.findChildren<QPushButton *>();
    for (const QPushButton *pcmd : buttons) {
        lst.append(pcmd->text());
    }
    return lst;
}

QPushButton *button(const QWidget &wgt, const QString &strText)
{
    const auto buttons = wgt.findChildren<QPushButton *>();
    for (QPushButton *pcmd : buttons) {
        if (pcmd->text() == strText) {
            return pcmd;
        }
    }
    return nullptr;
}

TEST(MMessageBox, makesTheButtonsOfItsMask)
{
    const QStringList all {u"Ok"_qs, u"Cancel"_qs, u"No"_qs, u"Yes"_qs, u"Abort"_qs, u"Retry"_qs,
        u"Ignore"_qs, u"YesAll"_qs, u"NoAll"_qs, u"Mine"_qs};
    const int values[] = {0x400, 0x400000, 0x10000, 0x4000, 0x40000, 0x80000, 0x100000, 0x8000,
        0x20000, MMessageBox::UserDefined};
    const struct
    {
        int mask;
        QStringList texts;
    } rows[] = {
        {0x14000, {u"No"_qs, u"Yes"_qs}},
        {0x414000, {u"Cancel"_qs, u"No"_qs, u"Yes"_qs}},
        {0, {}},
    };
    for (const auto &row : rows) {
        const MMessageBox box(MMessageBox::Icon::Question, u"T"_qs, u"t"_qs, row.mask);
        EXPECT_EQ(buttonTexts(box), row.texts);
    }
    for (int i = 0; i < all.size(); ++i) {
        MMessageBox box(
            MMessageBox::Icon::Warning, u"T"_qs, u"t"_qs, 0x5FC400 | 0x20000, nullptr, u"Mine"_qs);
        ASSERT_EQ(buttonTexts(box), all);
        QSignalSpy spy(&box, &QDialog::finished);
        box.open();
        button(box, all.at(i))->click();
        ASSERT_EQ(spy.count(), 1);
        EXPECT_EQ(spy.at(0).at(0).toInt(), values[i]);
    }
}

TEST(MMessageBox, runsModallyAndGivesTheButtonPressed)
{
    const auto answer = [](int nKey) {
        QTimer::singleShot(0, qApp, [nKey] {
            QTest::keyClick(QApplication::activeModalWidget(), static_cast<Qt::Key>(nKey));
        });
    };
    answer(Qt::Key_Return);
    EXPECT_EQ(MMessageBox::question(
                  nullptr, u"T"_qs, u"t"_qs, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes),
        QMessageBox::Yes);
    answer(Qt::Key_Return);
    EXPECT_EQ(MMessageBox::warning(nullptr, u"T"_qs, u"t"_qs, QMessageBox::Yes | QMessageBox::No),
        QMessageBox::No);
    answer(Qt::Key_Escape);
    EXPECT_EQ(MMessageBox::critical(nullptr, u"T"_qs, u"t"_qs), QMessageBox::NoButton);

    // The parent goes while the box is open.
    auto *pparent = new QWidget;
    QTimer::singleShot(0, qApp, [pparent] { delete pparent; });
    EXPECT_EQ(MMessageBox::information(pparent, u"T"_qs, u"t"_qs), QMessageBox::NoButton);
}

TEST(MMessageBox, neverCutsALongText)
{
    qApp->setStyleSheet(u"QPushButton#PushButton { min-width: 20px; }"_qs);
    const QString strLong(60, u'W');
    MMessageBox box(MMessageBox::Icon::Information, u"T"_qs,
        QString(400, u'x').replace(u"xxxx"_qs, u"xxx "_qs), 0x400, nullptr, strLong);
    box.show();
    QPushButton *pcmd = button(box, strLong);
    EXPECT_TRUE(MediaMaker::waitFor([&] {
        return pcmd->width() >= pcmd->fontMetrics().horizontalAdvance(strLong)
            && box.width() >= pcmd->width();
    }));
    qApp->setStyleSheet(QString());
}

TEST(AboutDialog, tellsVersionBuildAndMaker)
{
    const QString str = AboutDialog::infoText(QDate(2019, 9, 25));
    EXPECT_TRUE(str.startsWith(u"<BODY BGCOLOR=#000000><FONT COLOR=#00A0E0 SIZE=2><CENTER>"
                               u"Calderin M4A v1.0.2 Build: 25.09.2019"_qs));
    EXPECT_TRUE(str.contains(u"2019 Velmora"_qs));
    EXPECT_TRUE(str.endsWith(u"</CENTER>"_qs));
}

TEST(AboutDialog, turnsToTheLegalNoticesAndTheLicence)
{
    const Browser browser;
    AboutDialog::addLegalNotices(u"<A HREF=\"file://<!bundlepath!>X\">own notice</A>"_qs);
    EXPECT_TRUE(
        AboutDialog::legalNotices().contains(u"file://"_qs + App::bundleResourcePath() + u'X'));

    AboutDialog dlg;
    dlg.show();
    auto *ptxtInfo = dlg.findChild<QTextBrowser *>(u"AboutInfoLabel"_qs);
    auto *ptxtLegal = dlg.findChild<QTextBrowser *>(u"AboutLegalInfo"_qs);
    EXPECT_TRUE(ptxtInfo->isVisible() && !ptxtLegal->isVisible());
    button(dlg, u"&Legal Notices"_qs)->click();
    EXPECT_TRUE(!ptxtInfo->isVisible() && ptxtLegal->isVisible());
    EXPECT_TRUE(ptxtLegal->toPlainText().contains(u"own notice"_qs));
    EXPECT_TRUE(ptxtLegal->toPlainText().contains(u"LGPLv3"_qs));

    dlg.slotAnchorClicked(QUrl(u"https://www.velmora.example/x"_qs));
    EXPECT_EQ(browser.last.path(), u"/x"_qs);
    const QString strLicence = App::bundleResourcePath() + u"LICENSE.LGPL"_qs;
    const QString strBefore = ptxtLegal->toPlainText();
    dlg.slotAnchorClicked(QUrl::fromLocalFile(strLicence));
    EXPECT_EQ(browser.count, 1);
    EXPECT_EQ(ptxtLegal->toPlainText() == strBefore, !QFile::exists(strLicence));

    button(dlg, u"&Back"_qs)->click();
    EXPECT_TRUE(ptxtInfo->isVisible());
}

bool sendDrag(QWidget *pwgt, QMimeData *pdata)
{
    QDragEnterEvent event(
        QPoint(5, 5), Qt::MoveAction | Qt::CopyAction, pdata, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(pwgt, &event);
    return event.isAccepted();
}

TEST(DropWidget, takesFilesAndRefusesText)
{
    QMimeData text;
    text.setText(u"/home/x.mp3"_qs);
    QMimeData files;
    files.setUrls({QUrl(u"file:///a.mp3"_qs), QUrl(u"file:///b c.mp3"_qs), QUrl(u"file:///d"_qs)});
    for (const bool bHide : {false, true}) {
        DropWidget wgt;
        wgt.setHideAfterDrop(bHide);
        wgt.show();
        QSignalSpy spy(&wgt, &DropWidget::dropped);
        EXPECT_FALSE(sendDrag(&wgt, &text));
        EXPECT_TRUE(sendDrag(&wgt, &files));
        QDropEvent event(
            QPointF(5, 5), Qt::MoveAction | Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&wgt, &event);
        ASSERT_EQ(spy.count(), 1);
        EXPECT_EQ(spy.at(0).at(0).value<QList<QUrl>>(), files.urls());
        EXPECT_EQ(wgt.isVisible(), !bHide);
        // The source would delete what it moved.
        EXPECT_EQ(event.dropAction(), Qt::CopyAction);
    }
}

TEST(DropWidget, asksForFilesOrAFolder)
{
    const QTemporaryDir dir;
    const QString strFile = QDir(dir.path()).canonicalPath() + u"/a b.mp3"_qs;
    ASSERT_TRUE(MediaMaker::writeFile(strFile, "x"));
    qApp->setAttribute(Qt::AA_DontUseNativeDialogs);
    for (const auto mode : {DropWidget::OpenMode::Files, DropWidget::OpenMode::Directory}) {
        const bool bFiles = mode == DropWidget::OpenMode::Files;
        const QString strChosen = bFiles ? strFile : QFileInfo(strFile).path();
        QString strTitle;
        DropWidget wgt;
        wgt.setOpenMode(mode);
        wgt.show();
        QSignalSpy spy(&wgt, &DropWidget::dropped);
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &wgt, [&] {
            auto *pdlg = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (pdlg == nullptr) {
                return;
            }
            pdlg->findChild<QLineEdit *>(u"fileNameEdit"_qs)->setText(strChosen);
            if (pdlg->selectedFiles() == QStringList {strChosen}) {
                timer.stop();
                strTitle = pdlg->windowTitle();
                static_cast<QDialog *>(pdlg)->done(QDialog::Accepted);
            }
        });
        timer.start(20);
        wgt.findChild<QPushButton *>()->click();
        EXPECT_EQ(strTitle, bFiles ? u"Open files"_qs : u"Open folder"_qs);
        ASSERT_EQ(spy.count(), 1);
        EXPECT_EQ(
            spy.at(0).at(0).value<QList<QUrl>>(), QList<QUrl> {QUrl::fromLocalFile(strChosen)});
        EXPECT_EQ(App::openDirPath(), QFileInfo(strFile).path());
    }
}

}
