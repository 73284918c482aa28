#include "Xani.h"

#include "Literals.h"
#include "MediaMaker.h"
#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTemporaryDir>

using MGraphX::Xani;
using MGraphX::XaniImageData;

namespace {

XaniImageData frame(const QString &name, QColor colour, int side = 3)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(colour);
    XaniImageData data;
    data.setImage(image);
    data.setName(name);
    return data;
}

class XaniTest : public ::testing::Test
{
protected:
    QTemporaryDir m_dir;
    QString m_file = m_dir.filePath(u"a.xani"_qs);
};

QByteArray number(qint64 value)
{
    return QByteArray::number(value, 16).leftJustified(16, ' ');
}

}

TEST_F(XaniTest, WithoutFrames)
{
    Xani empty;
    ASSERT_TRUE(empty.save(m_file, -1));
    const QByteArray text = "<Xani loop = \"1\" frameduration=\"1000\" framecount=\"0\">\n</Xani>";
    EXPECT_EQ(MediaMaker::bytesOf(m_file),
        "XANI" + number(60 + text.size()) + "BIND" + number(0) + "XMLD" + number(text.size())
            + text);
    EXPECT_TRUE(Xani().load(m_file));
}

TEST_F(XaniTest, LayoutToTheByteAndBack)
{
    const QStringList names {u"plain.tar.png"_qs, u"<b>\"it's\" & <!SIZE!> &#34; > </Xani>"_qs,
        u"äé \u4E2D\U0001F3B5 / end"_qs, QString(), u"line\nbreak"_qs};
    Xani animation;
    animation.setLoop(-3);
    animation.setFrameDuration(40);
    for (int i = 0; i < names.size(); ++i) {
        XaniImageData data = frame(names.at(i), QColor(i, 100, 200), i + 1);
        data.setDuration(i * 10 - 1);
        data.setBackground(i % 2 == 1);
        animation.appendFrame(data);
    }
    ASSERT_TRUE(animation.save(m_file, 100));

    const QByteArray bytes = MediaMaker::bytesOf(m_file);
    EXPECT_EQ(bytes.mid(4, 16), number(bytes.size()));
    const auto imageBytes = bytes.mid(24, 16).trimmed().toInt(nullptr, 16);
    EXPECT_EQ(bytes.mid(40, 4), QByteArray("\x89PNG"));
    EXPECT_EQ(bytes.mid(40 + imageBytes, 4), "XMLD");
    const QByteArray text = bytes.mid(60 + imageBytes);
    EXPECT_EQ(bytes.mid(44 + imageBytes, 16), number(text.size()));
    EXPECT_TRUE(
        text.startsWith("<Xani loop = \"-3\" frameduration=\"40\" framecount=\"5\">\n"
                        "<Image index=\"0\" name=\"plain.tar.png\" format=\"PNG\" duration=\"-1\" "
                        "background=\"false\">\n  <data start=\"40\" size=\""));
    EXPECT_TRUE(text.contains("name=\"<b>&#34;it's&#34; & <!SIZE!> &#38;#34; > </Xani>\""));
    EXPECT_TRUE(text.contains("name=\"\xE4\xE9 &#20013;&#127925; / end\""));
    EXPECT_TRUE(text.endsWith("\">\n</Image>\n</Xani>"));

    Xani read;
    ASSERT_TRUE(read.load(m_file));
    EXPECT_EQ(read.loop(), -3);
    EXPECT_EQ(read.frameDuration(), 40);
    ASSERT_EQ(read.count(), names.size());
    qint64 start = 40;
    for (int i = 0; i < names.size(); ++i) {
        const XaniImageData data = read.frame(i);
        EXPECT_EQ(data.name(), names.at(i));
        EXPECT_EQ(data.image().convertToFormat(QImage::Format_RGB32), animation.frame(i).image());
        EXPECT_EQ(data.duration(), i * 10 - 1);
        EXPECT_EQ(data.isBackground(), i % 2 == 1);
        EXPECT_EQ(data.start(), start);
        start += data.size();
    }
    EXPECT_EQ(read.frame(0).baseName(), u"plain"_qs);
    EXPECT_EQ(animation.frame(0).start(), -1) << "saving changes nothing";
}

TEST_F(XaniTest, PlaysRoundAndRound)
{
    Xani animation;
    QSignalSpy changes(&animation, &Xani::frameChanged);
    animation.appendFrame(frame(u"a"_qs, Qt::red));
    animation.appendFrame(frame(u"b"_qs, Qt::blue));
    for (const Qt::GlobalColor colour : {Qt::red, Qt::blue, Qt::red}) {
        animation.nextFrame();
        EXPECT_EQ(animation.currentImage().pixelColor(0, 0), QColor(colour));
    }
    animation.setCurrentIndex(7);
    EXPECT_EQ(animation.currentImage().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(changes.count(), 4);
    animation.setFrame(2, frame(u"c"_qs, Qt::green));
    EXPECT_EQ(animation.count(), 2);

    animation.start();
    EXPECT_TRUE(MediaMaker::waitFor([&changes] { return changes.count() > 4; }));
    const Xani copy(animation);
    EXPECT_EQ(copy.count(), 2);
    animation.clearFrames();
    animation.nextFrame();
    const int played = changes.count();
    EXPECT_FALSE(MediaMaker::waitFor([&] { return changes.count() > played; }, 1200));
}

TEST_F(XaniTest, HostileFiles)
{
    Xani animation;
    animation.appendFrame(frame(u"a"_qs, Qt::red));
    ASSERT_TRUE(animation.save(m_file, -1));
    const QByteArray good = MediaMaker::bytesOf(m_file);
    const int n = good.mid(24, 16).trimmed().toInt(nullptr, 16);
    const auto with = [&good](int at, const QByteArray &bytes) {
        QByteArray changed = good;
        return changed.replace(at, bytes.size(), bytes);
    };
    for (const QByteArray &bytes : {QByteArray(), good.left(39), good.left(70 + n), with(0, "RIFF"),
             with(24, number(0x7FFFFFFFFFFFFFFF)), with(24, "-1"), with(24, "zz"),
             with(44 + n, number(0x7FFFFFFFFFFFFFFF)), with(40 + n, "XXXX")}) {
        ASSERT_TRUE(MediaMaker::writeFile(m_file, bytes));
        EXPECT_FALSE(animation.load(m_file));
        EXPECT_EQ(animation.count(), 1) << "the frames stay";
    }
    // Frames outside of the images, too large, of unknown formats: there, but without an image.
    const auto indexed = [](const QByteArray &images, const QByteArray &text) {
        return "XANI" + QByteArray(16, ' ') + "BIND" + number(images.size()) + images + "XMLD"
            + number(text.size()) + text;
    };
    const QByteArray huge = "P6\n100000 100000\n255\n";
    for (const QByteArray &place : {QByteArray("start=\"0\" size=\"40\""),
             QByteArray("start=\"40\" size=\"9999\""), QByteArray("start=\"-5\" size=\"5\""),
             QByteArray("start=\"9223372036854775807\" size=\"9223372036854775807\""),
             QByteArray("size=\"x\""),
             "start=\"40\" size=\"" + QByteArray::number(huge.size()) + '"'}) {
        for (const char *format : {"ppm", "svg", ""}) {
            ASSERT_TRUE(MediaMaker::writeFile(m_file,
                indexed(huge,
                    "<Image name=\"x\" format=\"" + QByteArray(format) + "\"><data " + place
                        + "><data " + place + "></Image")));
            ASSERT_TRUE(animation.load(m_file));
            ASSERT_EQ(animation.count(), 2);
            EXPECT_TRUE(animation.frame(0).image().isNull());
        }
    }
    // A name of nothing but signs that begin references.
    const QByteArray signs(1 << 20, '&');
    ASSERT_TRUE(MediaMaker::writeFile(m_file,
        indexed(huge, "<Image name=\"" + signs + ";\" format=\"ppm\"><data start=\"0\"></Image")));
    ASSERT_TRUE(animation.load(m_file));
    EXPECT_EQ(animation.frame(0).name().size(), signs.size() + 1);
    EXPECT_FALSE(animation.load(m_dir.path()));
    EXPECT_FALSE(animation.save(u"/nonexistent/a.xani"_qs, -1));
    animation.clearFrames();
    animation.appendFrame(frame(u"a"_qs, Qt::red));
    XaniImageData unknown = frame(u"b"_qs, Qt::red);
    unknown.setFormat(u"nothing"_qs);
    animation.appendFrame(unknown);
    const QByteArray before = MediaMaker::bytesOf(m_file);
    EXPECT_FALSE(animation.save(m_file, -1));
    EXPECT_EQ(MediaMaker::bytesOf(m_file), before) << "a failed save leaves the file from before";
}
