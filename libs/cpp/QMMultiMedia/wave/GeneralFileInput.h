#pragma once

#include "FileInput.h"

namespace QMMultiMedia {

/// Reads whatever format a file has: it holds the reader that could load it, and passes all on.
///
/// Without a reader everything gives what a closed input gives.
class GeneralFileInput : public FileInput
{
public:
    /// Values of fileFormat().
    enum Format : int
    {
        None = 0,
        Wave = 1,
        Aiff = 2,
        BroadcastWave = 3
    };

    /// Tries each format; a reader from before stays if none loads. Whether a reader is held.
    bool load(const char *path, bool force) override;
    bool open(const char *path) override;

    /// "WAVE", "BWF" (with broadcast metadata), "AIFF" or "UNKNOWN".
    QString formatString() const;
    /// One of Format.
    int fileFormat() const;

    const Settings &settings() const override;
    void setSettings(const Settings &settings) override;
    void dump() const override;
    const char *name() const override;
    short fmt() const override;
    bool readChunk(Chunk *chunk, int swap) override;
    void createPeakVector() override;
    const PeakInfo &peakInfo(int index, int channel, float zoom) override;
    int read(char *bytes, int n) override;
    int read(const MTools::Handle<RawBuffer> &buffer) override;
    int read(const MTools::Handle<AudioFloatBuffer> &buffer) override;
    int read(const MTools::Handle<AudioFloatBuffer> &buffer, unsigned long frame) override;
    int read(float *samples, int n) override;
    int readChannel(float *samples, int numFrames, int channel) override;
    int seek(int offset) override;
    long tell() override;
    int flush() override;
    int rewind() override;
    long position() const override;
    int gotoFrame(const int &frame, const int &channels) override;
    int gotoFrame(const int &frame) override;
    int readFrames(
        const int &frame, float *samples, const int &numFrames, const int &channels) override;
    int readFrames(float *samples, const int &numFrames, const int &channels) override;
    bool saveEnvelope(const char *path, const EBUEnvelope::Format &format) override;
    bool loadEnvelope(const char *path) override;
    bool saveEbuInfo(const char *path) override;
    bool loadEbuInfo(const char *path) override;
    MTools::Handle<EBUInfo> ebuInfo() const override;
    MTools::Handle<EBUEnvelope> ebuEnvelope() const override;
    const FileInfo &fileInfo() const override;
    QString extentions() const override;
    MTools::Handle<PeakVector> peakVector() const override;
    std::FILE *filePointer() override;
    int close() override;
    void createLTCData(const int &track) override;
    QString getLTC(const int &frame) const override;
    long long getAudioFrameLTC(int hours, int minutes, int seconds, int frames) const override;
    long long getAudioFrameLTC(const QString &timecode) const override;
    bool isLTCDataAvailable() override;
    int getLTCTrack() override;
    QString ltcTimeCode(const int &frame, bool absolute) override;
    float ltcFps() override;

private:
    /// Calls an operation on the held reader, or gives the value for none.
    template <typename Result, typename Operation>
    Result forward(Result none, Operation operation) const
    {
        return m_reader.isNull() ? none : static_cast<Result>(operation(*m_reader));
    }

    MTools::Handle<FileInput> m_reader;
};

}
