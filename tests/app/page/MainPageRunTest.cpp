#include "BatchDialog.h"
#include "BatchRun.h"
#include "MediaMaker.h"
#include "PageFixture.h"

#include <functional>
#include <QDir>
#include <QDirIterator>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

using MediaMaker::waitFor;

namespace {

class MainPageRunTest : public PageFixture
{
protected:
    /// Presses Convert, which returns when the dialog is closed: the script runs meanwhile.
    void convert(const std::function<void()> &script)
    {
        QTimer::singleShot(0, m_page.get(), [this, script] {
            ASSERT_TRUE(waitFor([this] { return dialog() && dialog()->isVisible(); }));
            script();
        });
        button("RunBatchButton")->click();
        EXPECT_EQ(dialog(), nullptr);
    }

    void press(const QString &text)
    {
        QPushButton *found = dialogButton(text);
        ASSERT_NE(found, nullptr) << qPrintable(text);
        QTest::mouseClick(found, Qt::LeftButton);
    }

    void closeWhenDone()
    {
        EXPECT_TRUE(waitFor([this] { return dialogButton(u"Close"_qs) != nullptr; }, 30000));
        press(u"Close"_qs);
    }

    bool waitForRuns() const
    {
        return waitFor([this] { return m_page->findChildren<BatchRun *>().isEmpty(); }, 30000);
    }

    /// The names of all files that the runs have left.
    QStringList filesOfRuns() const
    {
        QStringList names;
        QDirIterator files(destination(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            names << QFileInfo(files.next()).fileName();
        }
        names.sort();
        return names;
    }
};

}

TEST_F(MainPageRunTest, ConvertsPausesFromTheFirstMomentAndEnds)
{
    drop({tone(u"one.wav"_qs, 1), tone(u"two.wav"_qs, 1)});
    convert([this] {
        EXPECT_EQ(dialog()->size(), m_page->size());
        press(u"Pause"_qs); // the thread hasn't started yet
        EXPECT_TRUE(waitFor([this] { return runFolders().size() == 1; }));
        EXPECT_FALSE(waitFor([this] { return filesOfRuns().contains(u"one.m4a"_qs); }, 1500));
        press(u"Resume"_qs);
        closeWhenDone();
    });
    EXPECT_TRUE(waitForRuns());
    EXPECT_EQ(filesOfRuns(), (QStringList {u"one.m4a"_qs, u"two.m4a"_qs}));
    EXPECT_EQ(tracks().size(), 2) << "a run leaves the list as it is";
}

TEST_F(MainPageRunTest, AStopBeforeTheStartHoldsAndTheNextRunWaitsForIt)
{
    drop({tone(u"one.wav"_qs, 1), tone(u"two.wav"_qs, 1)});
    convert([this] { press(u"Stop"_qs); });
    ASSERT_EQ(m_page->findChildren<BatchRun *>().size(), 1) << "still to begin";
    convert([this] {
        EXPECT_EQ(m_page->findChildren<BatchRun *>().size(), 2);
        closeWhenDone();
    });
    EXPECT_TRUE(waitForRuns());
    EXPECT_EQ(filesOfRuns(), (QStringList {u"one.m4a"_qs, u"two.m4a"_qs}));
}

TEST_F(MainPageRunTest, AMissingDestinationIsToldAndNothingRuns)
{
    drop({tone(u"one.wav"_qs, 1)});
    QDir(destination()).removeRecursively();
    QString told;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, m_page.get(), [&told] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            told = box->text();
            box->accept();
        }
    });
    answer.start(20);
    button("RunBatchButton")->click();
    EXPECT_EQ(told, u"Can not access the destination folder.\nPlease verify the destination."_qs);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_FALSE(QDir(destination()).exists());
}

TEST_F(MainPageRunTest, ThePageWaitsForTheFileAtHandWhenItGoes)
{
    drop({tone(u"one.wav"_qs, 20), tone(u"two.wav"_qs, 20)});
    convert([this] {
        EXPECT_TRUE(waitFor([this] { return filesOfRuns().contains(u"one.wav"_qs); }));
        press(u"Stop"_qs);
    });
    const QPointer<BatchRun> run = m_page->findChild<BatchRun *>();
    m_page.reset();
    EXPECT_TRUE(run.isNull());
    EXPECT_EQ(filesOfRuns(), QStringList {u"one.m4a"_qs});
}
