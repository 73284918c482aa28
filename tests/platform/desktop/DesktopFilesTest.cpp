// Trash, autostart entry and bookmarks: what lies in the user's folders.
#include "FileManager.h"
#include "FolderBookmark.h"
#include "Launcher.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

TEST(DesktopFiles, movesIntoTheTrashOfTheHome)
{
    const QString strFile = QDir::home().filePath(u"gone.wav"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(strFile, "x"));
    EXPECT_TRUE(Desktop::moveToTrash(strFile));
    EXPECT_FALSE(QFile::exists(strFile));
    EXPECT_TRUE(QFile::exists(QDir::homePath() + u"/.local/share/Trash/files/gone.wav"_qs));
    EXPECT_TRUE(
        MediaMaker::bytesOf(QDir::homePath() + u"/.local/share/Trash/info/gone.wav.trashinfo"_qs)
            .contains("gone.wav"));
    EXPECT_FALSE(Desktop::moveToTrash(strFile));
    EXPECT_FALSE(Desktop::moveToTrash(QString()));
}

TEST(DesktopFiles, startsAtLogonByAnEntryOfItsOwn)
{
    QCoreApplication::setOrganizationDomain(u"velmora.example"_qs);
    EXPECT_EQ(Desktop::applicationId(), u"example.velmora.CalderinM4A"_qs);
    const QString strFile
        = QDir::homePath() + u"/.config/autostart/example.velmora.CalderinM4A.desktop"_qs;
    EXPECT_FALSE(Desktop::isAutostarted());
    EXPECT_TRUE(Desktop::setAutostarted(true));
    EXPECT_TRUE(Desktop::isAutostarted());
    QByteArray text = MediaMaker::bytesOf(strFile);
    EXPECT_TRUE(text.contains("\nExec=\"" + QCoreApplication::applicationFilePath().toUtf8()));
    ASSERT_TRUE(MediaMaker::writeFile(strFile, text + "Hidden=true\n"));
    EXPECT_FALSE(Desktop::isAutostarted());
    ASSERT_TRUE(MediaMaker::writeFile(strFile, text.replace("DesktopFiles", "Another")));
    EXPECT_FALSE(Desktop::isAutostarted());
    EXPECT_TRUE(Desktop::setAutostarted(false));
    EXPECT_FALSE(QFile::exists(strFile));
    EXPECT_TRUE(Desktop::setAutostarted(false));
}

TEST(DesktopFiles, bookmarksLeadBackToTheirFolder)
{
    const QTemporaryDir dir;
    const QString strFolder = dir.filePath(u"Müsik \u2013 1"_qs);
    ASSERT_TRUE(QDir().mkpath(strFolder));
    const QByteArray bookmark = Desktop::createFolderBookmark(strFolder);
    EXPECT_EQ(Desktop::resolveFolderBookmark(bookmark), strFolder);
    EXPECT_TRUE(Desktop::isFolderAccessible(strFolder));
    ASSERT_TRUE(QDir().rmdir(strFolder));
    EXPECT_EQ(Desktop::resolveFolderBookmark(bookmark), strFolder);
    EXPECT_FALSE(Desktop::isFolderAccessible(strFolder));

    EXPECT_TRUE(Desktop::createFolderBookmark(strFolder).isEmpty());
    EXPECT_TRUE(Desktop::createFolderBookmark(QString()).isEmpty());
    for (int nBytes = 0; nBytes < bookmark.size(); ++nBytes) {
        EXPECT_EQ(Desktop::resolveFolderBookmark(bookmark.left(nBytes)), QString());
    }
    EXPECT_EQ(Desktop::resolveFolderBookmark(QByteArray(64, '\xff')), QString());
}

}
