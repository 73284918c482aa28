#include "MediaScan.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "MediaSearchDialog.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <sys/stat.h>
#include <unistd.h>

using QMMultiMedia::MediaScan;
using QMMultiMedia::MediaSearchDialog;

namespace {

/// A scratch folder that the tests fill with files.
class MediaScanTest : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    /// Makes the file with its folders; its bytes are no sound.
    QString touch(const QString &name) const
    {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        EXPECT_TRUE(MediaMaker::writeFile(path(name), "none"));
        return path(name);
    }

    /// Makes as many files as there are numbers below count, in folders of perFolder files.
    void touchMany(int count, int perFolder) const
    {
        for (int i = 0; i < count; ++i) {
            const QString folder = u"f%1/"_qs.arg(i / perFolder);
            if (i % perFolder == 0) {
                QDir().mkpath(path(folder));
            }
            QFile(path(folder + u"%1.mp3"_qs.arg(i))).open(QIODevice::WriteOnly);
        }
    }

    QStringList paths(const QStringList &names) const
    {
        QStringList all;
        for (const QString &name : names) {
            all << path(name);
        }
        return all;
    }

    QList<QUrl> folder() const { return {QUrl::fromLocalFile(m_dir.path())}; }

    QTemporaryDir m_dir;
};

void start(MediaSearchDialog &dialog)
{
    ASSERT_TRUE(QMetaObject::invokeMethod(&dialog, "slotStart", Qt::DirectConnection));
}

}

TEST_F(MediaScanTest, SortsWhatItFindsByKind)
{
    const QString sound = path(u"beep.wav"_qs);
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=d=1"_qs, sound}));
    ASSERT_TRUE(QFile::copy(sound, path(u"LOUD.MP3"_qs)));
    for (const char *name : {"b/one.mp3", "b/.hidden.mp3", "b/.folder/two.flac", "a/clip.mp4",
             "a/broken.ogg", "a/cover.JPG", "a/notes.txt", "a/a.xyz", "a/.hidden"}) {
        touch(QString::fromLatin1(name));
    }
    QDir().mkpath(path(u"c/empty"_qs));
    ASSERT_TRUE(QFile::link(path(u"nowhere"_qs), path(u"a/dangling.mp3"_qs)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"a/pipe.wav"_qs)).constData(), 0600), 0);
    const QByteArray unreadable = QFile::encodeName(path(u"a/"_qs)) + "bad\xff.mp3";
    ASSERT_EQ(::mknod(unreadable.constData(), S_IFREG | 0600, 0), 0);

    MediaScan scan;
    scan.setUrls(QList<QUrl> {QUrl(u"https://velmora.example/x.mp3"_qs),
                     QUrl::fromLocalFile(path(u"a/pipe.wav"_qs)),
                     QUrl::fromLocalFile(path(u"vanished.mp3"_qs))}
        + folder());
    scan.search();
    // Upper case misses the list of known suffixes: the file is opened.
    EXPECT_EQ(scan.audioFiles(),
        paths({u"LOUD.MP3"_qs, u"beep.wav"_qs, u"b/one.mp3"_qs, u"b/.folder/two.flac"_qs}));
    EXPECT_EQ(scan.videoFiles(), paths({u"a/clip.mp4"_qs}));
    EXPECT_EQ(scan.artworkFiles(), paths({u"a/cover.JPG"_qs}));
    EXPECT_EQ(scan.textFiles(), paths({u"a/notes.txt"_qs}));
    EXPECT_EQ(scan.unsuportedFiles(),
        paths({u"a/.hidden"_qs, u"a/a.xyz"_qs, u"a/broken.ogg"_qs, u"b/.hidden.mp3"_qs}));
    EXPECT_EQ(scan.folders(), paths({u"a"_qs, u"b"_qs, u"b/.folder"_qs, u"c"_qs, u"c/empty"_qs}));
    EXPECT_EQ(
        scan.emptyFolders(), QStringList {QFileInfo(path(u"c/empty"_qs)).canonicalFilePath()});
    EXPECT_EQ(scan.unreadableNames(), 1);
    ::unlink(unreadable.constData());
}

TEST_F(MediaScanTest, FollowsLinksButNotToItsOwnAncestors)
{
    touch(u"m/album/one.mp3"_qs);
    touch(u"other/two.mp3"_qs);
    ASSERT_TRUE(QFile::link(path(u"m/album"_qs), path(u"m/album/again"_qs)));
    ASSERT_TRUE(QFile::link(m_dir.path(), path(u"m/album/top"_qs)));
    ASSERT_TRUE(QFile::link(path(u"other"_qs), path(u"m/other"_qs)));
    ASSERT_TRUE(QFile::link(path(u"other"_qs), path(u"m/other twice"_qs)));

    MediaScan scan;
    scan.setUrls({QUrl::fromLocalFile(path(u"m"_qs))});
    scan.search();
    EXPECT_EQ(scan.audioFiles(),
        paths({u"m/album/one.mp3"_qs, u"m/other/two.mp3"_qs, u"m/other twice/two.mp3"_qs}));
    EXPECT_TRUE(scan.emptyFolders().isEmpty());
}

TEST_F(MediaScanTest, CancelKeepsWhatWasFoundAndHoldsBeforeTheBeginning)
{
    touchMany(3000, 10);
    MediaSearchDialog dialog(nullptr);
    QSignalSpy finished(&dialog, &QDialog::finished);
    auto *button = dialog.findChild<QPushButton *>(u"SearchStopButton"_qs);
    ASSERT_NE(button, nullptr);

    dialog.setUrls(folder());
    dialog.open();
    button->click();
    start(dialog);
    EXPECT_TRUE(dialog.audioFiles().isEmpty());
    ASSERT_EQ(finished.size(), 1);
    EXPECT_EQ(dialog.result(), static_cast<int>(QDialog::Rejected));

    // In the middle, by Esc.
    dialog.setUrls(folder());
    dialog.open();
    QElapsedTimer sinceCancel;
    QTimer cancel;
    QObject::connect(&cancel, &QTimer::timeout, &dialog, [&] {
        if (!sinceCancel.isValid() && dialog.audioFiles().size() > 4) {
            sinceCancel.start();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        }
    });
    cancel.start(1);
    start(dialog);
    ASSERT_TRUE(sinceCancel.isValid());
    EXPECT_LT(sinceCancel.elapsed(), 1000);
    EXPECT_GT(dialog.audioFiles().size(), 4);
    EXPECT_LT(dialog.audioFiles().size(), 3000);
    EXPECT_FALSE(dialog.isVisible());

    // The next scan begins anew.
    dialog.setUrls({QUrl::fromLocalFile(path(u"f0/7.mp3"_qs))});
    start(dialog);
    EXPECT_EQ(dialog.audioFiles(), paths({u"f0/7.mp3"_qs}));
    EXPECT_EQ(dialog.result(), static_cast<int>(QDialog::Accepted));
}

TEST_F(MediaScanTest, TheWindowStaysAliveAndCountsWhileItScans)
{
    touchMany(4000, 10);
    MediaSearchDialog dialog(nullptr);
    dialog.setFixedWidth(350);
    dialog.setUrls(folder());
    dialog.open();
    qint64 longest = 0;
    QElapsedTimer sinceTick;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, &dialog,
        [&] { longest = std::max(longest, sinceTick.restart()); });
    sinceTick.start();
    heartbeat.start(5);
    start(dialog);
    longest = std::max(longest, sinceTick.elapsed());
    EXPECT_EQ(dialog.audioFiles().size(), 4000);
    EXPECT_LT(longest, 500) << "ms without an event";
    EXPECT_EQ(dialog.width(), 350);
    bool counted = false;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        counted = counted || label->text().contains(u"<BR>Audio Files: 4000<BR>"_qs);
    }
    EXPECT_TRUE(counted);
    dialog.setUrls(folder());
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        EXPECT_FALSE(label->text().contains(u"4000"_qs)) << "counters of the scan before";
    }
}
