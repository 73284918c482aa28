#pragma once

#include "FileOutput.h"
#include <vector>

namespace QMMultiMedia {

/// Writes float samples to a RIFF WAVE file with a "bext" chunk before and a "levl" chunk behind
/// the samples.
///
/// All sizes in the file are 32 bits wide: beyond 4 GiB they wrap. Used by one thread; not
/// reopened.
class WaveOutput : public FileOutput
{
public:
    /// Creates the file; isOpen() tells whether that worked.
    ///
    /// path is in the local 8-bit encoding. comment becomes a "LIST" chunk unless it is empty. With
    /// ebu, ebuInfo (a new one if it is null) is filled in for this file; without it, it is written
    /// as it stands, or not at all if it is null.
    WaveOutput(const char *path, const Settings &settings, const QString &comment,
        const MTools::Handle<EBUInfo> &ebuInfo, bool ebu);
    ~WaveOutput() override;

    using BaseOutput::write;
    /// Writes n bytes as they are; false if not all were written, now or before, or the file isn't
    /// open. The size of the data grows by n in any case.
    bool write(char *bytes, int n) override;
    /// Converts n samples, all channels counted, to the file's width and writes them; gives 0.
    int write(float *samples, int n) override;
    const char *name() const override;
    void dump() const override;

    /// Makes the file and writes everything before the samples.
    virtual bool create(const char *path);
    /// Finishes the file: pads, appends the peaks, sets the sizes. False if something couldn't be
    /// written or the file isn't open. It is closed afterwards in any case.
    virtual bool close();
    /// 0.
    virtual int version() const;
    /// Timecodes of the length, of a sample of one channel, and of the start.
    virtual QString duration() const;
    virtual QString timecode(int sample) const;
    virtual QString start() const;

    /// Whether samples can be written.
    bool isOpen() const { return m_pFile != nullptr; }
    /// Samples so far, all channels counted.
    quint64 numSamples() const;
    /// Frames a second of the metadata; 0 without metadata.
    float fps() const;
    /// The width of the peaks' values in the file.
    void setEnvelopeFormat(const EBUEnvelope::Format &format) { m_nEnvelopeFormat = format; }
    /// Writes the peaks to a file of their own.
    bool saveEnvelope(const char *path);

private:
    Q_DISABLE_COPY(WaveOutput)

    bool writeHeader();
    bool writeComment();
    bool writeFormat();
    bool patchSizes();
    void dropStream();

    EBUEnvelope::Format m_nEnvelopeFormat = EBUEnvelope::Format16Bit;
    // Kept from call to call, so that writing allocates nothing once they have grown.
    std::vector<int> m_ints;
    std::vector<char> m_bytes;
    std::vector<char> m_streamBuffer;
    bool m_bFailed = false; ///< samples were lost, as on a disk that was full for a moment
};

}
