#pragma once

#include "AudioFloatBuffer.h"
#include "BaseInput.h"
#include "EBUEnvelope.h"
#include "EBUInfo.h"
#include "FileInfo.h"
#include "Handle.h"
#include "LTCData.h"
#include "PeakInfoCache.h"
#include "PeakVector.h"
#include "RawBuffer.h"
#include <array>
#include <cstdint>
#include <cstdio>
#include <QList>
#include <QString>
#include <vector>

namespace QMMultiMedia {

/// The 8-byte header of a chunk.
struct Chunk
{
    std::array<char, 4> id {};
    std::uint32_t size = 0; ///< bytes of the body, without a pad byte

    bool is(const char *name) const;
    /// The size with its pad byte.
    std::int64_t paddedSize() const { return (static_cast<std::int64_t>(size) + 1) & ~1LL; }
};

/// A sound file that is read without the platform: samples, peaks at any zoom, metadata, timecode.
///
/// Whatever the bytes of a file say: nothing is read outside of a buffer, no loop goes on without
/// end, and no more memory is taken than the file's real size justifies. An input belongs to one
/// thread; the list of live inputs and the path for cached data are process-wide and unguarded.
class FileInput : public BaseInput
{
public:
    FileInput();
    ~FileInput() override;

    // Files and their folder for cached data

    /// The inputs that exist at the moment.
    static QList<FileInput *> filesInUse();
    /// The folder for cached peaks; empty, as it is at first: nothing is cached.
    static void setTempPath(const QString &path);
    static QString tempPath();
    /// tempPath() and "/AudioTemp/".
    static QString tempFilePath();
    /// A file in that folder, which is made, named after this file's path; empty without a
    /// tempPath().
    QString tempFilePathAndName() const;
    /// The file of the cached peaks.
    QString envelopeLocation() const;

    // Opening

    /// Reads a chunk's header at the stream's position; swap as in FileUtil. False at the end.
    virtual bool readChunk(Chunk *chunk, int swap);
    /// Opens and parses a file; use load().
    virtual bool open(const char *path) = 0;
    /// Fills the peak vector from the file's own peaks, the cached ones or the samples.
    virtual void createPeakVector();
    /// The peaks of a pixel: zoom is samples per peak. Valid until the next call.
    virtual const PeakInfo &peakInfo(int index, int channel, float zoom);
    /// Opens a regular file of at least 40 bytes whose name ends as extentions() says; force takes
    /// any name. The file that was open is closed first.
    virtual bool load(const char *path, bool force);

    // Reading: samples count all channels; the result is what was delivered, 0 at the end

    /// Bytes of the data from the stream's position.
    virtual int read(char *bytes, int n);
    virtual int read(const MTools::Handle<RawBuffer> &buffer);
    /// Gives frames.
    virtual int read(const MTools::Handle<AudioFloatBuffer> &buffer);
    /// Gives frames, from a frame on.
    virtual int read(const MTools::Handle<AudioFloatBuffer> &buffer, unsigned long frame);
    /// Gives samples. What isn't delivered stays as it was.
    virtual int read(float *samples, int n);
    /// Reads frames of all channels and keeps one; gives frames, or -1 if there is no such channel.
    virtual int readChannel(float *samples, int numFrames, int channel);

    // Places, in bytes from the first sample; -1 without a file

    virtual int seek(int offset);
    virtual long tell();
    virtual int flush();
    virtual int rewind();
    /// The stream's own position.
    virtual long position() const;
    /// To a frame of so many channels.
    virtual int gotoFrame(const int &frame, const int &channels);
    virtual int gotoFrame(const int &frame);
    /// Read frames of so many channels (from a frame on); give frames.
    virtual int readFrames(
        const int &frame, float *samples, const int &numFrames, const int &channels);
    virtual int readFrames(float *samples, const int &numFrames, const int &channels);

    // Metadata

    virtual bool saveEnvelope(const char *path, const EBUEnvelope::Format &format);
    virtual bool loadEnvelope(const char *path);
    virtual bool saveEbuInfo(const char *path);
    virtual bool loadEbuInfo(const char *path);
    /// Null until a chunk was found or loaded.
    virtual MTools::Handle<EBUInfo> ebuInfo() const;
    virtual MTools::Handle<EBUEnvelope> ebuEnvelope() const;
    virtual const FileInfo &fileInfo() const;
    /// The name endings of the format, separated by blanks.
    virtual QString extentions() const;
    virtual MTools::Handle<PeakVector> peakVector() const;
    /// The stream, or null; it stays this object's.
    virtual std::FILE *filePointer();
    /// Gives fclose's result, or 0.
    virtual int close();

    // Timecode in the sound. There is no decoder: they give what an absent one gives

    virtual void createLTCData(const int &track);
    virtual QString getLTC(const int &frame) const;
    virtual long long getAudioFrameLTC(int hours, int minutes, int seconds, int frames) const;
    virtual long long getAudioFrameLTC(const QString &timecode) const;
    virtual bool isLTCDataAvailable();
    virtual int getLTCTrack();
    virtual QString ltcTimeCode(const int &frame, bool absolute);
    virtual float ltcFps();

    // Time and place of the sound

    /// Frames a second of the metadata; 0 without metadata.
    float fps() const;
    QString duration() const;
    QString start() const;
    QString end() const;
    /// The timecode of a sample of one channel, from the start of the file and from midnight.
    QString timecode(const long long &sample) const;
    QString absoluteTimecode(const long long &sample) const;
    QString scene() const;
    QString take() const;
    /// Samples per peak at which the whole file fits into so many pixels.
    float calculateZoom(int width) const;

    void dump() const override;

protected:
    /// Samples of a channel in one stored peak.
    static constexpr int peakBlockSize = 256;

    /// Opens the stream and learns the file's length.
    bool openStream(const char *path);
    bool seekStream(std::int64_t offset);
    std::int64_t streamPosition() const;
    /// Bytes in the file behind a place; 0 behind its end.
    std::int64_t bytesBehind(std::int64_t offset) const;
    /// Whether the samples can be laid out: at least one channel and whole bytes.
    bool hasUsableFormat() const;
    /// Sets the number of samples from the size of the data.
    void countSamples();
    /// Reads text of a file; at most a megabyte of it counts. False if the file ends before.
    bool readText(std::int64_t size, QString *text);

    FileInfo m_fileInfo;
    MTools::Handle<EBUInfo> m_ebuInfo;
    MTools::Handle<EBUEnvelope> m_ebuEnvelope;
    MTools::Handle<LTCData> m_ltcData;
    std::FILE *m_pFile = nullptr;
    std::int64_t m_nEndOfData = 0;
    int m_nBlockSize = peakBlockSize;
    MTools::Handle<PeakVector> m_peakVector;
    PeakInfo m_lastPeak;
    PeakInfoCache m_peakInfoCache {6000};
    std::int64_t m_nPosition = 0;
    QString m_strEnvelopesDirectory;
    std::int64_t m_nFileLength = 0;
    /// The place of the file's own "levl" chunk; 0 if it has none.
    std::int64_t m_nEnvelopeOffset = 0;

private:
    Q_DISABLE_COPY(FileInput)

    bool seekData(std::int64_t offset);
    bool convert(const char *raw, float *samples, int n);
    bool loadCachedEnvelope(const QString &location);
    bool envelopeFits() const;
    bool buildPeakVectorFromChunk(std::FILE *file, const long &offset);
    void buildPeakVectorFromAudioData();
    PeakInfo peakOfSamples(std::int64_t frame, int numFrames, int channel);
    std::int64_t numFrames() const;

    // Kept from call to call, so that reading doesn't allocate.
    std::vector<char> m_raw;
    std::vector<int> m_ints;
    std::vector<float> m_frames;
};

}
