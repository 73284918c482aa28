// Exports: refusals, waiting, and the end of the process.

#include "AVAssetExportSession.h"
#include "AVMetadataIdentifiers.h"
#include "FieldTable.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "NSFileManager.h"
#include "PendingExports.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <sys/stat.h>

namespace {

QString made(const QString &path)
{
    EXPECT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=d=1"_qs,
        u"-metadata"_qs, u"title=old"_qs, u"-metadata"_qs, u"artist=old"_qs, path}));
    return path;
}

AVAssetExportSession session(const QString &source, const QString &output)
{
    AVAssetExportSession result(
        AVAsset::assetWithURL(QUrl::fromLocalFile(source)), AVAssetExportPresetPassthrough);
    result.setOutputFileType(AVFileTypeAppleM4A);
    result.setOutputURL(QUrl::fromLocalFile(output));
    result.setMetadata(
        {FieldTable::item(FieldTable::Field::Title, u"new"_qs, MetadataType::text())});
    return result;
}

TEST(ExportSession, ReplacesAllMetadataAndNeverAFile)
{
    const QTemporaryDir dir;
    const QString source = made(dir.filePath(u"a.m4a"_qs));
    ASSERT_EQ(::chmod(QFile::encodeName(source).constData(), 0640), 0);
    const QString output = dir.filePath(u"b.m4a"_qs);
    AVAssetExportSession good = session(source, output);
    int calls = 0;
    good.exportAsynchronouslyWithCompletionHandler([&calls] { ++calls; });
    AVAssetExportSession second = session(source, output); // the name is taken already
    second.exportAsynchronouslyWithCompletionHandler([&calls] { ++calls; });
    EXPECT_FALSE(second.reserveOutput());
    int asked = 0;
    PendingExports::waitForAll([&asked](int, qint64) { ++asked; });
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(good.status(), AVAssetExportSessionStatusCompleted);
    EXPECT_EQ(second.status(), AVAssetExportSessionStatusFailed);
    EXPECT_FALSE(second.error().isEmpty());
    EXPECT_EQ(MediaMaker::probe(output, u"format_tags=title,artist,encoder"_qs), u"new"_qs);
    EXPECT_EQ(QFile(output).permissions() & 0x0FFF, QFile(source).permissions() & 0x0FFF);

    for (const auto &[preset, type] : {std::pair(u"other"_qs, QString(AVFileTypeAppleM4A)),
             std::pair(QString(AVAssetExportPresetPassthrough), u"other"_qs)}) {
        AVAssetExportSession bad(AVAsset::assetWithURL(QUrl::fromLocalFile(source)), preset);
        bad.setOutputFileType(type);
        bad.setOutputURL(QUrl::fromLocalFile(dir.filePath(u"c.m4a"_qs)));
        bad.exportAsynchronouslyWithCompletionHandler({});
        PendingExports::waitForAll();
        EXPECT_EQ(bad.status(), AVAssetExportSessionStatusFailed);
        EXPECT_FALSE(QFile::exists(dir.filePath(u"c.m4a"_qs)));
    }

    // Encrypted samples are found through offsets that would point elsewhere afterwards.
    const QString key(32, QLatin1Char('7'));
    const QString locked = dir.filePath(u"locked.m4a"_qs);
    ASSERT_TRUE(
        MediaMaker::ffmpeg({u"-i"_qs, source, u"-c"_qs, u"copy"_qs, u"-encryption_scheme"_qs,
            u"cenc-aes-ctr"_qs, u"-encryption_key"_qs, key, u"-encryption_kid"_qs, key, locked}));
    AVAssetExportSession refused = session(locked, dir.filePath(u"d.m4a"_qs));
    refused.exportAsynchronouslyWithCompletionHandler({});
    PendingExports::waitForAll();
    EXPECT_EQ(refused.status(), AVAssetExportSessionStatusFailed);
    EXPECT_FALSE(QFile::exists(dir.filePath(u"d.m4a"_qs)));
}

TEST(ExportSession, LeavesNothingOnAFullDisk)
{
    const auto result = MediaMaker::runTool(u"sh"_qs,
        {u"-c"_qs,
            u"ulimit -f 4; trap '' XFSZ; exec \"$0\" --gtest_also_run_disabled_tests "
            "--gtest_filter=ExportSession.DISABLED_OnALimitedDisk"_qs,
            QCoreApplication::applicationFilePath()});
    EXPECT_EQ(result.exitCode, 0) << result.standardOutput.constData();
}

/// Started by the test above, where no file may grow beyond some kilobytes.
TEST(ExportSession, DISABLED_OnALimitedDisk)
{
    const QTemporaryDir dir;
    const QString source = QCoreApplication::applicationDirPath() + u"/../Resources/dummy.m4a"_qs;
    const QString output = dir.filePath(u"b.m4a"_qs);
    AVAssetExportSession full = session(source, output);
    full.setMetadata({FieldTable::item(
        FieldTable::Field::Comment, QString(100'000, QLatin1Char('x')), MetadataType::text())});
    full.exportAsynchronouslyWithCompletionHandler({});
    PendingExports::waitForAll();
    EXPECT_EQ(full.status(), AVAssetExportSessionStatusFailed);
    EXPECT_FALSE(QFile::exists(output));
}

TEST(ExportSessionDeathTest, IsFinishedAtTheEndOfTheProcess)
{
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    // The process that dies runs this test again from its start: both need the same folder.
    const QTemporaryDir dir;
    if (!qEnvironmentVariableIsSet("EXPORT_TEST_DIR")) {
        qputenv("EXPORT_TEST_DIR", QFile::encodeName(dir.path()));
        made(dir.filePath(u"a.m4a"_qs));
    }
    const QString folder = QFile::decodeName(qgetenv("EXPORT_TEST_DIR"));
    const QString output = folder + u"/b.m4a"_qs;
    const auto start = [&] {
        for (int i = 0; i < 20; ++i) {
            const QString name = folder + u"/b%1.m4a"_qs.arg(i);
            AVAssetExportSession one = session(folder + u"/a.m4a"_qs, name);
            one.exportAsynchronouslyWithCompletionHandler([name, i, folder] {
                const bool isMoved = NSFileManager::defaultManager().moveItemAtURL(
                    QUrl::fromLocalFile(name), QUrl::fromLocalFile(folder + u"/done%1"_qs.arg(i)));
                Q_UNUSED(isMoved)
            });
        }
        std::exit(0);
    };
    EXPECT_EXIT(start(), ::testing::ExitedWithCode(0), "");
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(
            MediaMaker::probe(folder + u"/done%1"_qs.arg(i), u"format_tags=title"_qs), u"new"_qs);
    }
    qunsetenv("EXPORT_TEST_DIR");
}

TEST(NSFileManager, MovesWithoutReplacing)
{
    const QTemporaryDir dir;
    const QUrl a = QUrl::fromLocalFile(dir.filePath(u"a"_qs));
    const QUrl b = QUrl::fromLocalFile(dir.filePath(u"b"_qs));
    ASSERT_TRUE(MediaMaker::writeFile(a.toLocalFile(), "a"));
    ASSERT_TRUE(MediaMaker::writeFile(b.toLocalFile(), "b"));
    const NSFileManager &files = NSFileManager::defaultManager();
    QString error;
    EXPECT_FALSE(files.moveItemAtURL(a, b, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(MediaMaker::bytesOf(b.toLocalFile()), "b");
    EXPECT_TRUE(files.replaceItemAtURL(b, a));
    EXPECT_EQ(MediaMaker::bytesOf(b.toLocalFile()), "a");
    EXPECT_TRUE(files.moveItemAtURL(b, a));
    EXPECT_TRUE(files.removeItemAtURL(a));
    EXPECT_FALSE(files.removeItemAtURL(a));
}

}
