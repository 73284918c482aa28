#pragma once

#include "ExtAudioFile.h"
#include "NativeAudioDecoderBase.h"
#include <vector>

namespace QMMultiMedia {

/// Decodes any file that the platform can open, to two channels or folded to one.
class NativeAudioDecoder : public NativeAudioDecoderBase
{
    Q_OBJECT

public:
    explicit NativeAudioDecoder(QObject *parent = nullptr);
    ~NativeAudioDecoder() override;

    /// A file that is open is closed first. Widths other than 32 and 24 bits mean 16.
    bool setFile(const QString &path, const int &sampleRate, const int &bitsPerSample,
        const int &channels) override;

    /// n is the capacity, counted as for two channels: n / 2 frames are read. With one channel
    /// wanted a frame gives one float, so half as many come.
    int read(float *samples, int n) override;

    void finish() override;

    /// The format asked of the platform; all zero before setFile.
    const AudioStreamBasicDescription &clientFormat() const { return m_clientFormat; }

    /// The format that setFile asks for at this rate (Hz) and width (bits).
    static AudioStreamBasicDescription createClientFormat(int sampleRate, int bitsPerSample);

    /// Frames delivered since setFile.
    qint64 position() const { return m_position; }

    /// Whether what was read since setFile ended with an error, as without memory: the file itself
    /// may go on.
    bool endedEarly() const { return m_endedEarly; }

    /// Channels of the source; 0 if it can't be played.
    int inputChannels() const { return m_inputChannels; }

    /// Adds each pair of samples of frames to one, in place, without a step beyond full scale: what
    /// is added is lessened by the product where both have the same sign. frames floats are left.
    static void foldToMono(float *samples, int frames);

private:
    Q_DISABLE_COPY(NativeAudioDecoder)
    void initInputInfo(const QString &path);
    [[nodiscard]] bool checkResult(int status, const char *text);
    void convertSamples(float *samples, int count) const;

    AudioStreamBasicDescription m_clientFormat;
    ExtAudioFileRef m_audioFile = nullptr;
    qint64 m_position = 0;
    bool m_endedEarly = false;
    int m_bitsPerSample = 16;
    int m_inputChannels = 0;
    int m_channels = 0;
    std::vector<char> m_buffer;
};

}
