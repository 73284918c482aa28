#include "Settings.h"

#include <QDebug>

namespace QMMultiMedia {

namespace {

const char *formatText(short fmt)
{
    switch (fmt) {
    case Settings::Query:
        return "Query";
    case Settings::MuLaw:
        return "Mu-Law";
    case Settings::ALaw:
        return "A-Law";
    case Settings::ImaAdpcm:
        return "Ima ADPCM";
    case Settings::Unsigned8:
        return "Unsigned 8";
    case Settings::SignedLittle:
        return "Little endian signed 16 or 32";
    case Settings::SignedBig:
        return "Big endian signed 16 or 32";
    case Settings::Signed8:
        return "Signed 8";
    case Settings::UnsignedLittle:
        return "Little endian unsigned 16 or 32";
    case Settings::UnsignedBig:
        return "Big endian unsigned 16 or 32";
    case Settings::Mpeg:
        return "MPEG";
    case Settings::Ac3:
        return "AC3";
    case Settings::Signed24Normal:
        return "Signed 24 Normal";
    case Settings::Signed24Swapped:
        return "Signed 24 Swapped";
    default:
        return "Unknown";
    }
}

}

Settings::Settings(unsigned int sampleRate, short channels, short fmt, short bitsPerSample)
    : m_nSampleRate(sampleRate)
    , m_nChannels(channels)
    , m_nFmt(fmt)
    , m_nBitsPerSample(bitsPerSample)
{
}

bool Settings::operator==(const Settings &other) const
{
    return m_nSampleRate == other.m_nSampleRate && m_nChannels == other.m_nChannels
        && m_nFmt == other.m_nFmt && m_nBitsPerSample == other.m_nBitsPerSample;
}

void Settings::dump() const
{
    qDebug() << "---- Settings Info Begin -----";
    qDebug().nospace() << "Channels = " << m_nChannels;
    qDebug().nospace() << "Bits Per Sample = " << m_nBitsPerSample;
    qDebug().nospace() << "Sample Rate = " << m_nSampleRate;
    qDebug().nospace() << "Format = " << m_nFmt << " (" << formatText(m_nFmt) << ")";
    qDebug() << "---- Settings Info End-----";
}

}
