#pragma once

namespace QMMultiMedia {

/// The format of one stream of samples.
class Settings
{
public:
    /// Values of fmt: how the samples lie in a file.
    enum Format : short
    {
        Query = 0,
        MuLaw = 1,
        ALaw = 2,
        ImaAdpcm = 4,
        Unsigned8 = 8,
        SignedLittle = 16, ///< 16 or 32 bits
        SignedBig = 32, ///< 16 or 32 bits
        Signed8 = 64,
        UnsignedLittle = 128, ///< 16 or 32 bits
        UnsignedBig = 256, ///< 16 or 32 bits
        Mpeg = 512,
        Ac3 = 1024,
        Signed24Normal = 2048,
        Signed24Swapped = 4096
    };

    /// sampleRate in Hz, bitsPerSample of one sample of one channel.
    Settings(unsigned int sampleRate, short channels, short fmt, short bitsPerSample);
    Settings(const Settings &) = default;
    Settings &operator=(const Settings &) = default;
    virtual ~Settings() = default;

    bool operator==(const Settings &other) const;
    bool operator!=(const Settings &other) const { return !(*this == other); }

    void setSampleRate(unsigned int sampleRate) { m_nSampleRate = sampleRate; }
    void setChannels(short channels) { m_nChannels = channels; }
    void setFmt(short fmt) { m_nFmt = fmt; }
    void setBitsPerSample(short bitsPerSample) { m_nBitsPerSample = bitsPerSample; }

    unsigned int sampleRate() const { return m_nSampleRate; }
    short channels() const { return m_nChannels; }
    short fmt() const { return m_nFmt; }
    short bitsPerSample() const { return m_nBitsPerSample; }
    /// Whole bytes of one sample; 0 below 8 bits.
    int bytesPerSample() const { return m_nBitsPerSample > 0 ? m_nBitsPerSample >> 3 : 0; }

    /// Logs the values.
    void dump() const;

private:
    unsigned int m_nSampleRate = 0;
    short m_nChannels = 0;
    short m_nFmt = 0;
    short m_nBitsPerSample = 0;
};

}
