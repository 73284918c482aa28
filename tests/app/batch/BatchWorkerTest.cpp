#include "BatchWorker.h"
#include "App.h"
#include "BatchThread.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "PendingExports.h"

#include <cmath>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <sys/stat.h>

using MediaMaker::filesBelow;
using MediaMaker::waitFor;

namespace {

/// What a spy has noted may be read only when the thread is over.
void runToTheEnd(BatchThread &thread)
{
    QObject::connect(thread.worker(), &BatchWorker::finished, &thread, &QThread::quit);
    thread.begin();
    EXPECT_TRUE(waitFor([&thread] { return thread.isFinished(); }, 60000));
}

/// A scratch folder with sources, the settings of a run, and the run itself on its own thread.
class BatchWorkerTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QMWidgets::App::theApp()->settings()->clear();
        set(u"DestinationPath"_qs, destination());
        QDir().mkpath(destination());
        QDir().mkpath(in(QString()));
    }

    static void set(const QString &key, const QVariant &value)
    {
        QMWidgets::App::setSettingsValue(key, value);
    }

    QString destination() const { return m_scratch.path() + u"/out/"_qs; }
    QString in(const QString &name) const { return m_scratch.path() + u"/in/"_qs + name; }

    QString tone(const QString &name, double seconds = 1.0, double volume = 0.5)
    {
        const QString file = in(name);
        QDir().mkpath(QFileInfo(file).path());
        EXPECT_TRUE(MediaMaker::sox({u"-n"_qs, u"-r"_qs, u"44100"_qs, u"-c"_qs, u"2"_qs, u"-b"_qs,
            u"16"_qs, file, u"synth"_qs, QString::number(seconds), u"sine"_qs, u"440"_qs, u"vol"_qs,
            QString::number(volume)}));
        return file;
    }

    /// Runs the worker to its end; returns the run's folder.
    QString run(const QVector<QString> &files)
    {
        m_worker->setSettings({u"WAV"_qs, 44100, 2, 16, 128000, 3});
        m_worker->setInputFiles(files);
        if (m_urls.isEmpty()) {
            m_urls.append(QUrl::fromLocalFile(in(QString())));
        }
        m_worker->setDroppedUrls(m_urls);
        for (QSignalSpy *spy : {&m_finished, &m_errors, &m_total, &m_current}) {
            EXPECT_TRUE(spy->isValid());
        }
        runToTheEnd(m_thread);
        PendingExports::waitForAll();
        return m_finished.isEmpty() ? QString() : m_finished.first().first().toString();
    }

    QString log() const
    {
        return m_errors.isEmpty() ? QString() : m_errors.first().first().toString();
    }

    QTemporaryDir m_scratch;
    BatchThread m_thread;
    BatchWorker *m_worker = m_thread.worker();
    QSignalSpy m_finished {m_worker, &BatchWorker::finished};
    QSignalSpy m_errors {m_worker, &BatchWorker::errorsLog};
    QSignalSpy m_total {m_worker, &BatchWorker::totalProgress};
    QSignalSpy m_current {m_worker, &BatchWorker::currentFile};
    QList<QUrl> m_urls;
};

}

TEST_F(BatchWorkerTest, MapsFoldersAsTheLastDroppedUrlHasThem)
{
    const QString album = in(u"album"_qs);
    const QString single = tone(u"b.wav"_qs, 0.1);
    QDir().mkpath(album + u"/cd1"_qs);
    struct Case
    {
        QList<QUrl> urls;
        QString file;
        QString expected;
    };
    const QUrl albumUrl = QUrl::fromLocalFile(album + u"/"_qs);
    const QUrl parentUrl = QUrl::fromLocalFile(in(QString()));
    const QUrl singleUrl = QUrl::fromLocalFile(single);
    const QString folder = QFileInfo(single).absolutePath();
    const std::vector<Case> cases {
        {{albumUrl}, album + u"/cd1/a.mp3"_qs, u"/d/album//cd1/"_qs},
        {{albumUrl}, album + u"/a.mp3"_qs, u"/d/album//"_qs},
        {{singleUrl}, single, u"/d//"_qs},
        {{parentUrl, albumUrl}, album + u"/a.mp3"_qs, u"/d/album//"_qs},
        {{albumUrl, parentUrl}, album + u"/a.mp3"_qs, u"/d/in//album/"_qs},
        {{singleUrl, albumUrl}, album + u"/a.mp3"_qs, u"/d/album//"_qs},
        {{singleUrl, albumUrl}, u"/elsewhere/x.mp3"_qs, u"/d//elsewhere/"_qs},
        {{albumUrl, singleUrl}, album + u"/a.mp3"_qs, u"/d//album/"_qs},
        {{QUrl::fromLocalFile(u"/"_qs)}, u"/x/a.mp3"_qs, u"/d///x/"_qs},
        {{singleUrl}, u"/elsewhere/x.mp3"_qs, u"/d//elsewhere/"_qs},
        {{QUrl::fromLocalFile(in(u"al"_qs))}, album + u"/a.mp3"_qs, u"/d/al/bum/"_qs},
        {{}, single, QString()},
        {{albumUrl}, u"/elsewhere/x.mp3"_qs, QString()},
    };
    for (const Case &c : cases) {
        m_worker->setDroppedUrls(c.urls);
        EXPECT_EQ(m_worker->newPathForForlderStructure(c.file, u"/d/"_qs), c.expected)
            << c.file.toStdString();
    }
}

TEST_F(BatchWorkerTest, TellsOfSourcesThatChangeBetweenTheReadings)
{
    const QVector<QString> files {tone(u"gone.wav"_qs), tone(u"cut.wav"_qs), tone(u"kept.wav"_qs)};
    const auto change = [&files](const QString &text) {
        if (text == u"gone"_qs) {
            QFile::remove(files.at(0));
        } else if (text == u"cut"_qs) {
            QFile::resize(files.at(1), 44 + 88200);
        }
    };
    QObject::connect(m_worker, &BatchWorker::currentFile, m_worker, change, Qt::DirectConnection);
    const QString folder = run(files);
    EXPECT_EQ(log(), u"Can not convert: "_qs + files.at(0) + u"\n"_qs);
    EXPECT_EQ(filesBelow(folder), QStringList({u"in/cut.m4a"_qs, u"in/kept.m4a"_qs}));
    ASSERT_EQ(m_worker->receipts().size(), 3);
    EXPECT_TRUE(m_worker->receipts().at(0).output.isEmpty());
    EXPECT_TRUE(m_worker->receipts().at(1).isCut);
    EXPECT_FALSE(m_worker->receipts().at(2).isCut);
}

TEST_F(BatchWorkerTest, ConvertsWithCollisionsSubfoldersErrorsAndSideFiles)
{
    set(u"KeyCopyTextssActive"_qs, true);
    set(u"KeyCopyImagesActive"_qs, true);
    const QVector<QString> files {tone(u"x/a.wav"_qs), tone(u"x/a.flac"_qs), in(u"broken.mp3"_qs),
        tone(u"b \"q\" $(x).wav"_qs), tone(u"-dash\n.flac"_qs)};
    ASSERT_TRUE(MediaMaker::writeFile(in(u"broken.mp3"_qs), QByteArray(5000, 'x')));
    ASSERT_TRUE(MediaMaker::writeFile(in(u"x/n.txt"_qs), "note"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(in(u"x/pipe.txt"_qs)).constData(), 0600), 0);
    m_worker->setTextFiles({in(u"x/n.txt"_qs), in(u"x/pipe.txt"_qs)});
    const QByteArray before = MediaMaker::hashOfFile(files.at(0));

    const QString folder = run(files);
    EXPECT_EQ(filesBelow(folder),
        QStringList({u"in/-dash\n.m4a"_qs, u"in/b \"q\" $(x).m4a"_qs, u"in/x/a 2.m4a"_qs,
            u"in/x/a.m4a"_qs, u"in/x/n.txt"_qs}));
    EXPECT_EQ(log(), u"Can not convert: "_qs + in(u"broken.mp3"_qs) + u"\n"_qs);
    EXPECT_EQ(MediaMaker::hashOfFile(files.at(0)), before);
    QVector<int> percents;
    for (const QList<QVariant> &call : m_total) {
        percents << call.first().toInt();
    }
    EXPECT_EQ(percents, QVector<int>({16, 33, 50, 66, 83, 100, 100}));
    EXPECT_EQ(m_current.first().first().toString(), u"ANALYZING"_qs);
    EXPECT_EQ(m_current.at(1).first().toString(), u"a"_qs);
    EXPECT_EQ(m_current.last().first().toString(), u"COPYING TEXT FILES"_qs);
    ASSERT_EQ(m_worker->receipts().size(), 5);
    EXPECT_EQ(m_worker->receipts().at(0).lengthMs, 1000);
    EXPECT_NEAR(m_worker->receipts().at(0).gainDb, 6.02, 0.05);
    EXPECT_TRUE(m_worker->receipts().at(2).output.isEmpty());
    // The sound is there, normalised, and of the source's length.
    const QString output = m_worker->receipts().at(0).output;
    EXPECT_EQ(MediaMaker::probe(output, u"stream=duration_ts"_qs), u"44100"_qs);
    const QByteArray pcm = MediaMaker::decode(output, u"f32le"_qs);
    ASSERT_GE(pcm.size(), 44100 * 2 * 4);
    const auto *values = reinterpret_cast<const float *>(pcm.constData());
    EXPECT_NEAR(*std::max_element(values + 20000, values + 60000), 1.0f, 0.1f);
}

TEST_F(BatchWorkerTest, AStopBeforeTheStartHoldsAndAPauseWaits)
{
    m_worker->stop();
    const QString folder = run({tone(u"a.wav"_qs), tone(u"b.wav"_qs)});
    EXPECT_TRUE(QFileInfo::exists(folder));
    EXPECT_EQ(filesBelow(folder), QStringList());
    EXPECT_EQ(m_total.last().first().toInt(), 100);
}

TEST_F(BatchWorkerTest, ResumesAfterAPauseAndStopsBehindTheFileAtHand)
{
    m_worker->pause(true);
    const QString a = tone(u"a.wav"_qs);
    const QString b = tone(u"b.wav"_qs);
    // On the worker's own thread, so that it comes while that file is at hand.
    QObject::connect(
        m_worker, &BatchWorker::currentFile, m_worker,
        [this](const QString &text) {
            if (text == u"a"_qs) {
                m_worker->stop();
                m_worker->pause(false);
            }
        },
        Qt::DirectConnection);
    const QString folder = run({a, b});
    EXPECT_EQ(filesBelow(folder), QStringList({u"in/a.m4a"_qs}));
}

TEST_F(BatchWorkerTest, KeepsTheWavAndTellsWhereTheConverterRefuses)
{
    set(u"KeyBitRate"_qs, 3);
    const QString folder = run({tone(u"a.wav"_qs)});
    EXPECT_EQ(filesBelow(folder), QStringList({u"in/a.wav"_qs}));
    EXPECT_EQ(log(), u"Settings error, can not create: "_qs + folder + u"in//a.m4a\n"_qs);
}

TEST_F(BatchWorkerTest, GoesOnWhereTheRunFolderCannotBeMade)
{
    ASSERT_TRUE(MediaMaker::writeFile(m_scratch.path() + u"/file"_qs, "x"));
    set(u"DestinationPath"_qs, m_scratch.path() + u"/file/"_qs);
    set(u"KeyFolderStructureActive"_qs, false);
    run({tone(u"a.wav"_qs), tone(u"b.wav"_qs)});
    EXPECT_EQ(log().count(u'\n'), 2);
    EXPECT_TRUE(log().startsWith(u"Settings error, can not create: "_qs));
}

TEST_F(BatchWorkerTest, TrimmedSilenceStillGivesAFile)
{
    set(u"KeyTrimSilenceActive"_qs, true);
    set(u"KeyFolderStructureActive"_qs, false);
    const QString folder = run({tone(u"silent.wav"_qs, 1.0, 0.0), tone(u"a.wav"_qs)});
    EXPECT_EQ(filesBelow(folder), QStringList({u"a.m4a"_qs, u"silent.m4a"_qs}));
    EXPECT_EQ(log(), QString());
}

namespace {

/// Every signal of a run with its argument, and the files of the run at that moment.
QStringList recordOfRun(const QVector<QString> &files, const QString &destination, bool readAhead)
{
    QStringList record;
    BatchThread thread;
    BatchWorker *worker = thread.worker();
    worker->setSettings({u"WAV"_qs, 44100, 2, 16, 128000, 3});
    worker->setInputFiles(files);
    worker->setReadAhead(readAhead);
    const auto note = [&record, destination](const QString &what) {
        // The run's folder bears the time and differs from run to run.
        static const QRegularExpression runFolder(u"20[0-9_-]+/"_qs);
        record << what + u": "_qs + filesBelow(destination).join(u", "_qs).remove(runFolder);
    };
    // On the worker's thread, so that nothing moves on meanwhile.
    const auto noteNumber = [note](const QString &name) {
        return [note, name](int number) { note(name + QString::number(number)); };
    };
    QObject::connect(worker, &BatchWorker::fileProgress, worker, noteNumber(u"file "_qs));
    QObject::connect(worker, &BatchWorker::totalProgress, worker, noteNumber(u"total "_qs));
    QObject::connect(worker, &BatchWorker::currentFile, worker, note);
    QObject::connect(worker, &BatchWorker::errorsLog, worker, note);
    QObject::connect(worker, &BatchWorker::finished, worker, [note] { note(u"finished"_qs); });
    runToTheEnd(thread);
    return record;
}

}

TEST_F(BatchWorkerTest, TakesNoPartOfASourceForTheWhole)
{
    const QString file = in(u"a.avi"_qs);
    ASSERT_TRUE(MediaMaker::writeAvi(file, QByteArray(100000, 'x'), 100'000'000));
    const QString folder = run({file}); // the second chunk is more than is read in one piece
    EXPECT_EQ(log(), u"Can not convert: "_qs + file + u"\n"_qs);
    EXPECT_EQ(filesBelow(folder), QStringList());
}

TEST_F(BatchWorkerTest, IsFinishedWhereNoThreadCanStart)
{
    m_worker->setInputFiles({in(u"a.wav"_qs), in(u"b.wav"_qs)});
    m_thread.setStackSize(1); // the system refuses that
    m_thread.begin();
    EXPECT_TRUE(m_finished.isEmpty()); // who asked is not called back within the call
    ASSERT_TRUE(waitFor([this] { return !m_finished.isEmpty(); }));
    EXPECT_EQ(m_finished.first().first().toString(), QString());
    EXPECT_EQ(log().count(u"Can not convert: "_qs), 2);
    EXPECT_EQ(m_total.last().first().toInt(), 100);
}

TEST_F(BatchWorkerTest, ReadingAheadChangesNeitherSignalsNorEffects)
{
    set(u"KeyFolderStructureActive"_qs, false);
    set(u"KeyCopyMetaTagsActive"_qs, false); // tags arrive on a thread of their own
    ASSERT_TRUE(MediaMaker::writeFile(in(u"broken.mp3"_qs), QByteArray(3000, 'y')));
    const QVector<QString> files {tone(u"a.flac"_qs, 2), tone(u"b.wav"_qs, 3), in(u"broken.mp3"_qs),
        in(u"gone.wav"_qs), tone(u"c.flac"_qs, 2), tone(u"sub/a.flac"_qs, 1)};
    const QString plain = m_scratch.path() + u"/plain/"_qs;
    const QString ahead = m_scratch.path() + u"/ahead/"_qs;
    set(u"DestinationPath"_qs, plain);
    const QStringList expected = recordOfRun(files, plain, false);
    set(u"DestinationPath"_qs, ahead);
    const QStringList record = recordOfRun(files, ahead, true);
    EXPECT_GT(record.size(), 30);
    EXPECT_EQ(record.size(), expected.size());
    for (int i = 0; i < std::min(record.size(), expected.size()); ++i) {
        ASSERT_EQ(record.at(i), expected.at(i)) << i;
    }
    const QStringList outputs = filesBelow(plain);
    EXPECT_EQ(outputs.size(), 4);
}
