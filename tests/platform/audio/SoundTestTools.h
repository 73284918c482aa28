#pragma once

#include "ExtAudioFile.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <vector>

/// What the tests of this room share.
namespace SoundTestTools {

struct Read
{
    OSStatus status = noErr;
    qint64 frames = 0;
    QByteArray bytes;

    std::vector<double> samples(int bits, int channel) const;
};

/// The client format of 16, 24 or 32 bits; bits 1 stands for floats.
AudioStreamBasicDescription clientFormat(int rate, int bits);

/// Opens, reads to the end in odd portions, looks twice at the end, disposes.
Read readAll(const QString &path, int rate, int bits);

/// Deterministic noise of this many bytes.
QByteArray noise(int bytes, quint32 seed);

/// Writes a WAV of 32 bits with AudioFile…; the channels are interleaved, full scale is 1.0.
bool writeWave(const QString &path, int rate, int channels, const std::vector<double> &samples);

}
