#pragma once

#include "MediaMaker.h"
#include "WaveOutput.h"

#include <cstdint>
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QtEndian>
#include <vector>

/// Little helpers to look at the bytes of sound files, and to make them.
namespace WaveBytes {

inline std::uint32_t u32(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<std::uint32_t>(bytes.mid(at, 4).leftJustified(4, '\0').constData());
}

inline int u16(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<std::uint16_t>(bytes.mid(at, 2).leftJustified(2, '\0').constData());
}

inline QByteArray le32(std::uint32_t value)
{
    const std::uint32_t little = qToLittleEndian(value);
    return {reinterpret_cast<const char *>(&little), 4};
}

inline QByteArray be32(std::uint32_t value)
{
    const std::uint32_t big = qToBigEndian(value);
    return {reinterpret_cast<const char *>(&big), 4};
}

inline QByteArray le16(int value)
{
    return le32(static_cast<std::uint32_t>(value)).left(2);
}

/// A chunk with its stated size, padded to an even length.
inline QByteArray chunk(const char *id, const QByteArray &body, bool bigEndian = false)
{
    const auto size = static_cast<std::uint32_t>(body.size());
    QByteArray bytes = QByteArray(id) + (bigEndian ? be32(size) : le32(size)) + body;
    return body.size() % 2 == 0 ? bytes : bytes + '\0';
}

inline QByteArray riff(const QByteArray &chunks)
{
    return "RIFF" + le32(static_cast<std::uint32_t>(chunks.size() + 4)) + "WAVE" + chunks;
}

inline QByteArray fmtBody(int channels, std::uint32_t rate, int bits, int tag = 1)
{
    const int align = bits / 8 * channels;
    return le16(tag) + le16(channels) + le32(rate) + le32(rate * static_cast<std::uint32_t>(align))
        + le16(align) + le16(bits);
}

/// A sound that differs from sample to sample, a bit beyond full scale.
inline std::vector<float> signal(int samples)
{
    std::vector<float> values(static_cast<std::size_t>(samples));
    std::uint32_t state = 1;
    for (float &value : values) {
        state = state * 1664525U + 1013904223U;
        value = static_cast<float>(static_cast<std::int32_t>(state)) / 2147483648.0f * 1.05f;
    }
    return values;
}

/// Writes a file in pieces of an odd size, as a caller would; whether it closed cleanly.
inline bool writeWave(const QString &path, const QMMultiMedia::Settings &settings,
    std::vector<float> samples, const QString &comment = QString(), bool ebu = true)
{
    QMMultiMedia::WaveOutput output(
        QFile::encodeName(path).constData(), settings, comment, nullptr, ebu);
    const std::size_t piece = 731 * static_cast<std::size_t>(settings.channels());
    for (std::size_t i = 0; i < samples.size(); i += piece) {
        output.write(samples.data() + i, static_cast<int>(std::min(piece, samples.size() - i)));
    }
    return output.close();
}

}
