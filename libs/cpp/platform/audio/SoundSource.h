#pragma once

#include "CoreAudioTypes.h"
#include "InputFile.h"
#include "MovEdit.h"
#include <limits>
#include <memory>
#include <QUrl>

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;
struct AVStream;

/// A span of decoded frames; the memory is the source's and lasts until the next call.
struct SoundPiece
{
    const AVFrame *frame = nullptr; ///< null: the end of the data
    int begin = 0; ///< first frame of the span
    int end = 0; ///< exclusive
};

/// The default sound stream of a media file, demuxed and decoded.
///
/// Other streams and attached pictures are never decoded. Delay and padding that the file states
/// are cut. A damaged packet is left out, and so is an encrypted one: there's no key to it here.
/// Rate and channels may change from piece to piece.
class SoundSource
{
public:
    /// Null with *status set to an error code of ExtAudioFileOpenURL.
    static std::unique_ptr<SoundSource> open(const QUrl &url, OSStatus *status);

    /// The same on a file that is open already; takes it over.
    static std::unique_ptr<SoundSource> open(std::unique_ptr<InputFile> file, OSStatus *status);

    ~SoundSource();

    const InputFile &file() const { return *m_file; }

    /// From any thread: ends decoding soon.
    void cancel() { m_file->cancel(); }

    /// As the file states it; what comes may differ.
    int sampleRate() const;
    int channels() const;

    /// Stated or estimated length in seconds; 0 if it isn't known.
    double duration() const;

    /// The next span, never an empty one; with a null frame at the end of the data, again and
    /// again.
    SoundPiece next();

    /// An error code if the data hasn't really come to its end there.
    OSStatus failure() const { return m_failure; }

    /// Goes on at this time (seconds from the first frame that is heard), to the frame; false if
    /// the file can't be sought.
    bool seek(double seconds);

private:
    struct Deleter
    {
        void operator()(AVFormatContext *context) const;
        void operator()(AVCodecContext *context) const;
        void operator()(AVPacket *packet) const;
        void operator()(AVFrame *frame) const;
    };

    static constexpr qint64 UnknownTime = std::numeric_limits<qint64>::min();

    SoundSource() = default;
    Q_DISABLE_COPY(SoundSource)

    OSStatus openContainer();
    OSStatus chooseStream();
    OSStatus openDecoder();
    void readGaplessInformation();
    bool receiveFrame();
    void feedDecoder();
    void noticeNewLink();
    bool readPacket();
    void fail(OSStatus status);
    SoundPiece trim();
    SoundPiece trimToEdit(SoundPiece piece);
    /// The counts are the side data of skipped samples, little-endian.
    SoundPiece trimPadding(SoundPiece piece, const unsigned char *counts) const;
    qint64 timeOfFrame() const;

    std::unique_ptr<InputFile> m_file;
    std::unique_ptr<AVFormatContext, Deleter> m_container;
    std::unique_ptr<AVCodecContext, Deleter> m_decoder;
    std::unique_ptr<AVPacket, Deleter> m_packet;
    std::unique_ptr<AVFrame, Deleter> m_frame;
    AVStream *m_stream = nullptr;
    MovEdits m_movEdits;
    MovEdit m_edit;
    bool m_hasEdit = false;
    bool m_trimsItself = false; ///< the decoder leaves skipping to us
    bool m_drained = false;
    bool m_atEnd = false;
    OSStatus m_failure = noErr;
    int m_failuresInARow = 0;
    qint64 m_firstPacketTime = UnknownTime;
    /// A Vorbis stream of one page can't tell where it begins; its first packet, which gives no
    /// sound, is counted then, and all times are late by this.
    qint64 m_lead = 0;
    bool m_leadKnown = false;
    int m_framesToSkip = 0; ///< at the beginning of a link of a chain
    qint64 m_zero = 0; ///< time of the first frame that is heard, in the stream's time base
    bool m_zeroKnown = false;
    qint64 m_seekTo = 0; ///< frames before this time are left out after a seek, in the time base
    bool m_seeking = false;
    qint64 m_nextTime = 0; ///< where the next frame begins if it doesn't say so itself
};
