#pragma once

#include <functional>
#include <QByteArray>
#include <QIODevice>
#include <QString>

/// What kind of container a file is, by its own bytes.
enum class FileKind
{
    Mp4, ///< MPEG-4 and QuickTime
    Mpeg, ///< MPEG audio, and whatever else has an ID3v2 tag in front
    Flac,
    OggVorbis,
    OggOpus,
    OggFlac,
    OggSpeex,
    Ape,
    Asf,
    Aiff,
    Wave,
    Other
};

/// The kind of an open file; its suffix only decides where an MPEG stream begins with other bytes.
FileKind fileKind(QIODevice &device, const QString &suffix);

/// Whether a path is that of a regular file that may be read. Pipes, sockets and devices aren't:
/// they would block.
bool isReadableFile(const QString &path);

/// Calls the function for every chunk of a RIFF or AIFF file, with its first 12 bytes and the place
/// of its content, until it returns false.
void forEachChunk(QIODevice &device, bool isBigEndian,
    const std::function<bool(const QByteArray &head, qint64 body)> &visit);
