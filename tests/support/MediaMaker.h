#pragma once

#include <functional>
#include <QByteArray>
#include <QString>
#include <QStringList>

/// Makers of real media and runners of independent tools, for the tests.
namespace MediaMaker {

/// What a finished program left.
struct ToolResult
{
    int exitCode = -1; ///< -1: it could not be started, crashed or took longer than the limit
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Runs a program with its arguments (no shell) and waits at most limitMs.
ToolResult runTool(const QString &program, const QStringList &arguments, int limitMs = 60000);

/// Runs `ffmpeg -nostdin -y -v error` with the arguments; true if it ended with 0.
///
/// Its words go to the test's standard error stream if it fails.
bool ffmpeg(const QStringList &arguments);

/// Runs `sox` with the arguments; true if it ended with 0.
bool sox(const QStringList &arguments);

/// A value of one `ffprobe -show_entries` field, e.g. probe(f, "stream=sample_rate"); trimmed.
QString probe(const QString &file, const QString &entries);

/// The file's audio as FFmpeg's own program decodes it: interleaved samples in the raw format
/// ("s16le", "s32le", "f32le"). Empty if it can't be decoded.
QByteArray decode(
    const QString &file, const QString &rawFormat, int sampleRate = 0, int channels = 0);

/// The SHA-256 of a file's bytes, in hexadecimal; empty if it can't be read.
QByteArray hashOfFile(const QString &file);

/// All bytes of a file; empty if it can't be read.
QByteArray bytesOf(const QString &file);

/// Writes the bytes to a new file; false if that fails.
bool writeFile(const QString &file, const QByteArray &bytes);

/// Writes an AVI with one channel of 8 bits at 44100 Hz: a chunk with these samples and, if asked,
/// one of so many more, a hole in the file.
bool writeAvi(const QString &file, const QByteArray &samples, qint64 more = 0);

/// The files below a folder, hidden ones too, as sorted paths relative to it.
QStringList filesBelow(const QString &folder);

/// Runs the event loop until the condition holds, at most limitMs; returns whether it holds.
bool waitFor(const std::function<bool()> &condition, int limitMs = 10000);

}
