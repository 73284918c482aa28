#pragma once

#include <QString>

namespace QMMultiMedia {

/// What a conversion is to produce; a plain value.
struct MAudioFormat
{
    QString codec = codecName(0); ///< one of the names of codecName()
    int sampleRate = 44100; ///< frames per second
    int channels = 2;
    int bitsPerSample = 16; ///< sample width of the intermediate WAV
    int bitRate = 128000; ///< bits per second of a compressed target
    int quality = 3; ///< quality class, 0 to 4

    /// "WAV", "AIFF", "MPEG4ACC", "CAF", "FLAC" for 0 to 4; any other index gives an empty text.
    static QString codecName(int index);
    /// The index of a codec's name; 0 for a name that isn't in the table.
    static int codecIndex(const QString &name);
    /// The place of a quality class on the platform's scale of 0 to 127.
    static int platformQuality(int qualityClass);
    /// The quality class, 0, 2 or 4, of a place on the platform's scale of 0 to 127.
    static int qualityClass(int platformQuality);
};

}
