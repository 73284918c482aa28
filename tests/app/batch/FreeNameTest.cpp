#include "FreeName.h"

#include "Literals.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

TEST(FreeName, NeverGivesATakenNameNorOneTooLongForAFileSystem)
{
    const QTemporaryDir scratch;
    const QString folder = scratch.path() + u"/"_qs;
    EXPECT_EQ(freeName(folder, u"a"_qs, u".wav"_qs), folder + u"a.wav"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(folder + u"a.wav"_qs, "x"));
    ASSERT_TRUE(QFile::link(u"/nowhere/at/all"_qs, folder + u"a 2.wav"_qs));
    EXPECT_EQ(freeName(folder, u"a"_qs, u".wav"_qs), folder + u"a 3.wav"_qs);

    const QString wide = QString::fromUtf8("\xe9\x9f\xb3").repeated(90); // 3 bytes each
    for (const QString &base :
        {QString(252, u'n'), wide, QString::fromUcs4(U"\U0001F3B5").repeated(70)}) {
        for (int n = 0; n < 3; ++n) {
            const QString path = freeName(folder, base, u".wav"_qs);
            EXPECT_LE(QFile::encodeName(QFileInfo(path).fileName()).size(), 255);
            // No half of a surrogate pair is left: the name survives the way to bytes and back.
            EXPECT_EQ(QFile::decodeName(QFile::encodeName(path)), path);
            EXPECT_TRUE(MediaMaker::writeFile(path, "x")) << path.toStdString();
        }
    }
    EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(), 1 + 9);
}
