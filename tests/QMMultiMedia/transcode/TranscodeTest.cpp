#include "AFTransCoder.h"
#include "App.h"
#include "EncoderBase.h"
#include "EncoderFactory.h"
#include "Encoders.h"
#include "LameTransCoder.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <unistd.h>

namespace {

/// A stand-in that comes first on the search path and writes down what it was started with.
class StandIn
{
public:
    StandIn(const QString &program, const QByteArray &script)
        : m_path(qgetenv("PATH"))
    {
        const QString file = m_folder.filePath(program);
        EXPECT_TRUE(MediaMaker::writeFile(file, "#!/bin/bash\n" + script));
        EXPECT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner));
        qputenv("PATH", m_folder.path().toLocal8Bit() + ':' + m_path);
        qputenv("STANDIN", m_folder.path().toLocal8Bit());
    }
    ~StandIn() { qputenv("PATH", m_path); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QList<QByteArray> said() const { return MediaMaker::bytesOf(path(u"said"_qs)).split('\n'); }

private:
    QTemporaryDir m_folder;
    QByteArray m_path;
};

}

TEST(AFTransCoder, StartsTheConverterWithItsArguments)
{
    const StandIn standIn(u"afconvert"_qs,
        "printf '%s\\n' \"$@\" >\"$STANDIN/said\"; cut -d' ' -f5 /proc/$$/stat "
        ">\"$STANDIN/group\"\n");
    QMMultiMedia::AFTransCoder coder;
    for (const QString &name : {u"plain"_qs, u"two  blanks"_qs, u"x\" -o \"y"_qs, u"Лёд 'é'"_qs}) {
        const QString source = u"/in/"_qs + name + u".wav"_qs;
        const QString destination = u"/out/"_qs + name + u".m4a"_qs;
        coder.convert(source, destination);
        EXPECT_EQ(standIn.said().mid(0, 10),
            (QList<QByteArray> {source.toUtf8(), "-o", destination.toUtf8(), "-q", "127", "-b",
                "128000", "-f", "m4af", "-d"}));
    }
    coder.setQuality(5);
    coder.setBitrate(64000);
    coder.convert(u"a"_qs, u"b"_qs);
    EXPECT_EQ(standIn.said().value(4), "5");
    EXPECT_EQ(standIn.said().value(6), "64000");
    // An interrupt of our group must not reach it.
    const int group = MediaMaker::bytesOf(standIn.path(u"group"_qs)).trimmed().toInt();
    EXPECT_GT(group, 1);
    EXPECT_NE(group, ::getpgrp());
}

TEST(AFTransCoder, MakesTheFileOrNone)
{
    const QByteArray searchPath = qgetenv("PATH");
    const QTemporaryDir folder;
    const QString source = folder.filePath(u"a \" b.wav"_qs);
    const QString destination = folder.filePath(u"a \" b.m4a"_qs);
    ASSERT_TRUE(
        MediaMaker::ffmpeg({u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=duration=1"_qs, source}));
    QMMultiMedia::AFTransCoder coder;
    coder.convert(source, destination);
    EXPECT_EQ(MediaMaker::probe(destination, u"stream=duration_ts"_qs), u"44100"_qs);
    coder.setBitrate(900000);
    coder.convert(source, folder.filePath(u"refused.m4a"_qs));
    qputenv("PATH", "/nowhere");
    coder.setBitrate(64000);
    coder.convert(source, folder.filePath(u"missing.m4a"_qs));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2);
    qputenv("PATH", searchPath);

    EXPECT_EQ(coder.extensions(), (QStringList {u"m4a"_qs, u"m4r"_qs}));
    EXPECT_EQ(coder.dataFormats().size(), 13);
    EXPECT_EQ(coder.dataFormats().value(8), u"alac"_qs);
}

TEST(LameTransCoder, RunsTheToolInAShell)
{
    const StandIn standIn(u"encoder"_qs,
        "printf '%s\\n' \"$@\" >\"$STANDIN/part\"; mv \"$STANDIN/part\" \"$STANDIN/said\"\n");
    QMMultiMedia::LameTransCoder(u"encoder"_qs, u"cover.png"_qs, u"in.wav"_qs).start();
    ASSERT_TRUE(
        MediaMaker::waitFor([&standIn] { return QFile::exists(standIn.path(u"said"_qs)); }));
    EXPECT_EQ(standIn.said(),
        (QList<QByteArray> {"--ti", "cover.png", "-b", "8", "--cbr", "in.wav",
            QMWidgets::App::supportDirectory(false).toUtf8() + "test.mp3", ""}));
}

TEST(Encoders, KeepOneFactoryAndEncodeNothingByThemselves)
{
    EXPECT_EQ(QMMultiMedia::Encoders::factory(), nullptr);
    QMMultiMedia::EncoderFactory factory;
    QMMultiMedia::Encoders::setFactory(&factory);
    EXPECT_EQ(QMMultiMedia::Encoders::factory(), &factory);
    EXPECT_EQ(factory.encoder(u"mp3"_qs), nullptr);
    QMMultiMedia::Encoders::setFactory(nullptr);
    EXPECT_EQ(QMMultiMedia::EncoderBase().status(), 0);
}
