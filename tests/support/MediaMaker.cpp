#include "MediaMaker.h"

#include "Literals.h"
#include <cstdio>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QtEndian>
#include <QThread>

namespace MediaMaker {

namespace {

bool succeeded(const QString &program, const QStringList &arguments)
{
    const ToolResult result = runTool(program, arguments);
    if (result.exitCode != 0) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(program), result.standardError.constData());
    }
    return result.exitCode == 0;
}

}

ToolResult runTool(const QString &program, const QStringList &arguments, int limitMs)
{
    ToolResult result;
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(limitMs)) {
        process.kill();
        process.waitForFinished(5000);
        result.standardError = process.errorString().toUtf8();
        return result;
    }
    result.standardOutput = process.readAllStandardOutput();
    result.standardError = process.readAllStandardError();
    if (process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    return result;
}

bool ffmpeg(const QStringList &arguments)
{
    return succeeded(
        u"ffmpeg"_qs, QStringList {u"-nostdin"_qs, u"-y"_qs, u"-v"_qs, u"error"_qs} + arguments);
}

bool sox(const QStringList &arguments)
{
    return succeeded(u"sox"_qs, arguments);
}

QString probe(const QString &file, const QString &entries)
{
    const ToolResult result = runTool(u"ffprobe"_qs,
        {u"-v"_qs, u"error"_qs, u"-show_entries"_qs, entries, u"-of"_qs,
            u"default=noprint_wrappers=1:nokey=1"_qs, file});
    return QString::fromUtf8(result.standardOutput).trimmed();
}

QByteArray decode(const QString &file, const QString &rawFormat, int sampleRate, int channels)
{
    QStringList arguments {u"-nostdin"_qs, u"-v"_qs, u"error"_qs, u"-i"_qs, file, u"-vn"_qs};
    if (sampleRate > 0) {
        arguments << u"-ar"_qs << QString::number(sampleRate);
    }
    if (channels > 0) {
        arguments << u"-ac"_qs << QString::number(channels);
    }
    arguments << u"-f"_qs << rawFormat << u"-"_qs;
    return runTool(u"ffmpeg"_qs, arguments).standardOutput;
}

QByteArray hashOfFile(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(&input);
    return hash.result().toHex();
}

QByteArray bytesOf(const QString &file)
{
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

bool writeFile(const QString &file, const QByteArray &bytes)
{
    QFile output(file);
    return output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size()
        && output.flush();
}

bool writeAvi(const QString &file, const QByteArray &samples, qint64 more)
{
    const auto chunk = [](const char *name, const QByteArray &content, qint64 further = 0) {
        const quint32 size = qToLittleEndian<quint32>(content.size() + further);
        return QByteArray(name, 4).append(reinterpret_cast<const char *>(&size), 4) + content;
    };
    const QByteArray stream = "auds" + QByteArray(16, '\0') + QByteArray::fromHex("01000000")
        + QByteArray::fromHex("44ac0000") + QByteArray(12, '\0')
        + QByteArray::fromHex("ffffffff01000000") + QByteArray(8, '\0');
    const QByteArray header = "hdrl"
        + chunk("avih", QByteArray(24, '\0') + '\1' + QByteArray(31, '\0'))
        + chunk("LIST",
            "strl" + chunk("strh", stream)
                + chunk("strf", QByteArray::fromHex("0100010044ac000044ac0000010008000000")));
    QByteArray movie = "movi";
    movie += samples.isEmpty() ? QByteArray() : chunk("00wb", samples);
    movie += more == 0 ? QByteArray() : chunk("00wb", {}, more);
    const QByteArray head = "AVI " + chunk("LIST", header) + chunk("LIST", movie, more);
    const QByteArray bytes = chunk("RIFF", head, more);
    return writeFile(file, bytes) && QFile::resize(file, bytes.size() + more);
}

QStringList filesBelow(const QString &folder)
{
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names << QDir(folder).relativeFilePath(files.next());
    }
    names.sort();
    return names;
}

bool waitFor(const std::function<bool()> &condition, int limitMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > limitMs) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    }
    return true;
}

}
