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
