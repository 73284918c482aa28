// What the demultiplexers are asked about a file.

#include "AVAsset.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QTemporaryDir>

TEST(MediaProbe, SeesSoundAndPicturesButNothingBesideTheFile)
{
    const QTemporaryDir dir;
    const auto asset = [&dir](const QString &name) {
        return AVAsset::assetWithURL(QUrl::fromLocalFile(dir.filePath(name)));
    };
    ASSERT_TRUE(MediaMaker::ffmpeg(
        {u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=d=2"_qs, dir.filePath(u"a.wav"_qs)}));
    EXPECT_TRUE(asset(u"a.wav"_qs).isPlayable());
    EXPECT_EQ(asset(u"a.wav"_qs).duration().value, 2'000'000);
    const QByteArray texts[] = {"ffconcat version 1.0\nfile 'a.wav'\n",
        "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=a\nc=IN IP4 127.0.0.1\nt=0 0\n"
        "m=audio 45678 RTP/AVP 0\n",
        "allon: 100+5/50\nNOW allon\n"};
    QElapsedTimer timer;
    timer.start();
    for (const QByteArray &text : texts) {
        ASSERT_TRUE(MediaMaker::writeFile(dir.filePath(u"b.mp3"_qs), text));
        EXPECT_FALSE(asset(u"b.mp3"_qs).isPlayable()) << text.constData();
    }
    EXPECT_LT(timer.elapsed(), 5000); // it waited for no address
}
