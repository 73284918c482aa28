#include "BatchDialog.h"
#include "BatchRun.h"
#include "MediaMaker.h"
#include "PageFixture.h"
#include "SimpleProgress.h"

#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

using MediaMaker::waitFor;

namespace {

class MainPageRunTest : public PageFixture
{
protected:
    /// Presses Convert; what the page waits for meanwhile is driven from here, so it comes queued.
    void convert()
    {
        QMetaObject::invokeMethod(
            button("RunBatchButton"), &QPushButton::click, Qt::QueuedConnection);
        ASSERT_TRUE(waitForDialog());
    }

    void close()
    {
        QTest::mouseClick(dialogButton(u"Close"_qs), Qt::LeftButton);
        ASSERT_TRUE(waitFor([this] { return dialog() == nullptr; }));
    }

    bool waitForRuns() const
    {
        return waitFor([this] { return m_page->findChildren<BatchRun *>().isEmpty(); }, 30000);
    }

    QStringList filesOfRun(const QString &folder) const
    {
        return QDir(destination() + folder).entryList(QDir::Files);
    }
};

}

TEST_F(MainPageRunTest, ConvertsPausesFromTheFirstMomentAndEnds)
{
    drop({tone(u"one.wav"_qs, 1), tone(u"two.wav"_qs, 1)});
    set(u"KeyFolderStructureActive"_qs, false);
    convert();
    EXPECT_EQ(dialog()->size(), m_page->size());
    // Before the thread has started.
    QTest::mouseClick(dialogButton(u"Pause"_qs), Qt::LeftButton);
    ASSERT_TRUE(waitFor([this] { return runFolders().size() == 1; }));
    EXPECT_FALSE(waitFor(
        [this] {
            return !filesOfRun(runFolders().first()).isEmpty()
                && filesOfRun(runFolders().first()).contains(u"one.m4a"_qs);
        },
        1500));
    QTest::mouseClick(dialogButton(u"Resume"_qs), Qt::LeftButton);
    ASSERT_TRUE(waitForClose());
    EXPECT_EQ(filesOfRun(runFolders().first()), (QStringList {u"one.m4a"_qs, u"two.m4a"_qs}));
    close();
    EXPECT_TRUE(waitForRuns());
    EXPECT_EQ(tracks().size(), 2) << "a run leaves the list as it is";
}

TEST_F(MainPageRunTest, AStopBeforeTheStartHoldsAndTheNextRunWaitsForIt)
{
    drop({tone(u"one.wav"_qs, 1), tone(u"two.wav"_qs, 1)});
    set(u"KeyFolderStructureActive"_qs, false);
    convert();
    QTest::mouseClick(dialogButton(u"Stop"_qs), Qt::LeftButton);
    ASSERT_TRUE(waitFor([this] { return dialog() == nullptr; }));
    ASSERT_EQ(m_page->findChildren<BatchRun *>().size(), 1) << "still to begin";

    convert();
    EXPECT_EQ(m_page->findChildren<BatchRun *>().size(), 2);
    ASSERT_TRUE(waitForClose());
    close();
    EXPECT_TRUE(waitForRuns());
    QStringList converted;
    for (const QString &folder : runFolders()) {
        converted += filesOfRun(folder);
    }
    EXPECT_EQ(converted, (QStringList {u"one.m4a"_qs, u"two.m4a"_qs}));
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
    convert();
    ASSERT_TRUE(waitFor([this] { return !runFolders().isEmpty(); }));
    QTest::mouseClick(dialogButton(u"Stop"_qs), Qt::LeftButton);
    ASSERT_TRUE(waitFor([this] { return dialog() == nullptr; }));
    const QPointer<BatchRun> run = m_page->findChild<BatchRun *>();
    m_page.reset();
    EXPECT_TRUE(run.isNull());
    for (const QString &file : filesOfRun(runFolders().first())) {
        EXPECT_TRUE(file.endsWith(u".m4a"_qs)) << qPrintable(file);
    }
}
