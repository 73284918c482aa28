#include "App.h"
#include "AudioPlayer.h"
#include "ListView.h"
#include "MediaMaker.h"
#include "MediaSearchDialog.h"
#include "PageFixture.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QScreen>
#include <QSlider>
#include <QTest>
#include <QTimer>

using MediaMaker::waitFor;
using QMWidgets::App;

namespace {

class MainPageTest : public PageFixture
{
protected:
    QComboBox *destinationBox() const { return m_page->findChild<QComboBox *>(); }

    /// What the user's choice of a row does.
    void choose(int row)
    {
        destinationBox()->setCurrentIndex(row);
        emit destinationBox()->activated(row);
    }

    /// Acts once as soon as the dialog is on the screen: the page waits in a loop of its own.
    void whileShown(const QDialog &dialog, const std::function<void()> &act)
    {
        auto *poll = new QTimer(m_page.get());
        QObject::connect(poll, &QTimer::timeout, m_page.get(), [poll, &dialog, act] {
            if (dialog.isVisible()) {
                poll->deleteLater();
                poll->stop();
                act();
            }
        });
        poll->start(10);
    }
};

}

TEST_F(MainPageTest, AnIntakeReplacesTheJobBefore)
{
    EXPECT_FALSE(button("RunBatchButton")->isEnabled());
    EXPECT_EQ(infoText(), u"<H2><CENTER>0 media files</CENTER></H2>"_qs);

    const QString video = touch(u"album/a.mp4"_qs);
    const QString audio = touch(u"album/z.mp3"_qs);
    touch(u"album/cover.jpg"_qs);
    drop({path(u"album"_qs)});
    EXPECT_EQ(tracks(), (QStringList {audio, video})) << "audio before video";
    EXPECT_TRUE(button("RunBatchButton")->isEnabled());
    EXPECT_EQ(infoText(), u"<H2><CENTER>2 media files</CENTER></H2>"_qs);

    const QString other = touch(u"b.mp3"_qs);
    drop({other});
    EXPECT_EQ(tracks(), QStringList {other});
    EXPECT_EQ(infoText(), u"<H2><CENTER>1 media file</CENTER></H2>"_qs);
    drop({});
    EXPECT_TRUE(tracks().isEmpty());
    EXPECT_FALSE(button("RunBatchButton")->isEnabled());
}

TEST_F(MainPageTest, OpenRequestsAreCollectedAndNoneIsLost)
{
    QStringList files;
    for (int i = 0; i < 10; ++i) {
        files << touch(u"%1.mp3"_qs.arg(i));
    }
    const QString late = touch(u"late.mp3"_qs);
    auto *scan = m_page->findChild<QMMultiMedia::MediaSearchDialog *>();
    QList<QStringList> intakes;
    QObject::connect(list()->model(), &QAbstractItemModel::modelReset, m_page.get(),
        [&] { intakes << tracks(); });
    for (const QString &file : qAsConst(files)) {
        emit App::theApp()->fileOpenRequest(file);
    }
    // The first request that comes in during the scan is taken behind it.
    whileShown(*scan, [&] { emit App::theApp()->fileOpenRequest(late); });
    ASSERT_TRUE(waitFor([&] { return intakes.size() == 2; }));
    EXPECT_EQ(intakes, (QList<QStringList> {files, {late}}));

    // A scan that is cancelled before it begins finds nothing and leaves no other behind.
    emit list()->dropped({QUrl::fromLocalFile(files.first())});
    whileShown(*scan, [&] { QTest::keyClick(scan, Qt::Key_Escape); });
    ASSERT_TRUE(waitFor([&] { return intakes.size() == 3; }));
    EXPECT_FALSE(waitFor([&] { return intakes.size() > 3; }, 500));
    EXPECT_TRUE(tracks().isEmpty());
}

TEST_F(MainPageTest, TheDestinationIsChosenKeptAndReset)
{
    m_page->setDestinationPath(u"/Users/u/Library/Containers/com.velmora.calderin/Data/Music/x"_qs);
    EXPECT_TRUE(m_page->destinationPath().endsWith(u"/Data/Music/x/"_qs));
    m_page->setDestinationPath(m_page->destinationPath());
    EXPECT_TRUE(m_page->destinationPath().endsWith(u"/Data/Music/x/"_qs));
    showPage();
    EXPECT_EQ(destinationBox()->itemText(0), u"/Users/u/Music/x/"_qs);

    for (const bool accepted : {false, true}) {
        m_page->setDestinationPath(destination());
        const QString chosen = path(accepted ? u"chosen"_qs : u"cancelled"_qs);
        QDir().mkpath(chosen);
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, m_page.get(), [&] {
            if (auto *asked = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                asked->findChild<QLineEdit *>(u"fileNameEdit"_qs)->setText(chosen);
                accepted ? static_cast<QDialog *>(asked)->accept() : asked->reject();
            }
        });
        answer.start(50);
        choose(1);
        EXPECT_EQ(m_page->destinationPath(), accepted ? chosen + u'/' : destination());
        EXPECT_EQ(destinationBox()->currentIndex(), 0);
        EXPECT_EQ(destinationBox()->itemText(0), m_page->destinationPath());
    }
    choose(2);
    EXPECT_EQ(m_page->destinationPath(), QDir::homePath() + u"/Music/Calderin M4A/"_qs);
    EXPECT_EQ(destinationBox()->itemText(0), m_page->destinationPath());
    EXPECT_EQ(destinationBox()->currentIndex(), 0);
}

TEST_F(MainPageTest, TheSizeIsKeptUnlessItIsThatOfTheFullScreen)
{
    EXPECT_EQ(m_page->size(), QSize(420, 600));
    m_page->resize(500, 640);
    showPage();
    EXPECT_EQ(m_page->size(), QSize(500, 640));
    m_page->showFullScreen();
    showPage();
    EXPECT_EQ(m_page->size(), QSize(500, 640));

    // A size from a larger screen.
    const QRect room = m_page->screen()->availableGeometry();
    App::setSettingsValue(u"Width"_qs, room.width() + 900);
    App::setSettingsValue(u"Height"_qs, room.height() + 300);
    showPage();
    EXPECT_TRUE(
        waitFor([&] { return room.adjusted(-8, -8, 8, 8).contains(m_page->frameGeometry()); }));
}

TEST_F(MainPageTest, TheKeysOfTheListPlayAndRemoveTracks)
{
    const QString first = tone(u"1.wav"_qs, 2);
    const QString second = tone(u"2.wav"_qs, 3);
    drop({first, second});
    QWidget *dropArea = shownMode();
    list()->setCurrentIndex(list()->model()->index(1, 0));
    QTest::keyClick(list(), Qt::Key_Space);
    EXPECT_EQ(shownMode()->objectName(), u"m_pwgtPlayPage"_qs);
    auto *player = QMMultiMedia::AudioPlayer::instance();
    EXPECT_EQ(player->fileName(), second);
    EXPECT_EQ(m_page->findChild<QLabel *>(u"m_plblFileName"_qs)->text(), u"<H2>2.wav</H2>"_qs);

    auto *pause = button("m_pcmdPlayAndPause");
    QTest::mouseClick(pause, Qt::LeftButton);
    EXPECT_TRUE(player->isPaused());
    auto *slider = m_page->findChild<QSlider *>();
    slider->setValue(99);
    EXPECT_NEAR(player->position(), 3000, 60);
    slider->setValue(0);
    EXPECT_NEAR(player->position(), 30, 60);

    // Another track takes the panel over, and plays.
    list()->setCurrentIndex(list()->model()->index(0, 0));
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(player->fileName(), first);
    EXPECT_FALSE(pause->isChecked());
    EXPECT_EQ(shownMode()->objectName(), u"m_pwgtPlayPage"_qs);
    QTest::mouseClick(button("m_pcmdStop"), Qt::LeftButton);
    EXPECT_EQ(shownMode(), dropArea);
    EXPECT_FALSE(player->isPlaying());

    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_EQ(tracks(), QStringList {second});
    QTest::keyClick(list(), Qt::Key_Delete);
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_TRUE(tracks().isEmpty());
    EXPECT_FALSE(button("RunBatchButton")->isEnabled());
}
