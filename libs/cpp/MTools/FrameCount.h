#pragma once

#include <limits>
#include <QString>

namespace MTools {

/// A position in video time: a count of frames at a frame rate.
///
/// Converts to and from hours, minutes, seconds and frames, their text and the packed SMPTE form.
/// 29.97 and 23.98 frames a second are counted drop-frame. "Pulldown" is the 3:2 pulldown between
/// 24 film frames and 30 video frames; its phase is 1 to 4.
class FrameCount
{
public:
    /// The count that stands for "not known".
    static constexpr long long unknownCount = std::numeric_limits<long long>::min();

    /// A count that isn't known, at 30 frames a second.
    FrameCount() = default;
    FrameCount(long long count, float fps);
    /// The count of a timecode; field (may be null) receives the field with pulldown.
    FrameCount(int hours, int minutes, int seconds, int frames, float fps, bool pulldown = false,
        int phase = 1, int *field = nullptr);
    /// The count of a packed SMPTE timecode; see setSmpteTimecode.
    FrameCount(
        float fps, unsigned int smpte, bool pulldown = false, int phase = 1, int *field = nullptr);

    /// The count in frames; -1, with a line in the log, if it may not be read.
    long long frame() const;
    float fps() const { return m_fps; }
    void setFrameCount(long long count);
    /// From here on the count may not be read.
    void unsetFrameCount();

    /// The count in frames of a timecode at this object's rate; unknownCount at a rate of 0.
    long long frameCountFromTimecode(int hours, int minutes, int seconds, int frames,
        bool pulldown = false, int phase = 1, int *field = nullptr) const;
    /// The same of a text of exactly 11 characters, whatever its separators; else unknownCount.
    long long frameCountFromTimecode(
        const QString &timecode, bool pulldown = false, int phase = 1) const;

    /// The timecode of the count; four zeros at a rate of 0.
    ///
    /// Counts outside of one day are brought into it; allowFullDay lets 24:00:00:00 stand. offset
    /// is added to the frame number with pulldown only.
    void timecodeFromFrameCount(int *hours, int *minutes, int *seconds, int *frames,
        bool allowFullDay, int offset = 0, bool pulldown = false, int phase = 1) const;
    /// The timecode as text, "hh:mm:ss:ff", or "hh;mm;ss;ff" at a drop rate; empty at a rate of 0.
    ///
    /// The last argument has no effect: the separators are the same in all three places.
    QString timecodeFromFrameCount(bool allowFullDay = false, bool pulldown = false, int phase = 1,
        bool rateMark = false) const;

    QString timecodeToString(int hours, int minutes, int seconds, int frames, bool drop) const;
    /// With rateMark the last separator shows the rate: ";" drop, "+" 24, ":" 25 and 30; at any
    /// other rate the text ends behind the seconds.
    static QString timecodeToString(
        int hours, int minutes, int seconds, int frames, bool drop, float fps, bool rateMark);

    /// Takes rate and count from a packed timecode (bit 6: drop-frame).
    ///
    /// Other rates than 24, 23.98, 25, 29.97 and 30 count as 0, at which the count isn't known.
    void setSmpteTimecode(
        unsigned int smpte, float fps, bool pulldown = false, int phase = 1, int *field = nullptr);
    /// The packed form, computed when needed; 0, with a line in the log, if the count isn't known.
    unsigned int smpteTimecode();
    /// Computes the packed form anew. The drop-frame flag isn't set by it.
    unsigned int calcSmpteTimecode();

    /// Keeps the time and takes a new rate.
    void updateFps(float newFps);
    /// The count at another rate, rounded; unknownCount at a rate of 0.
    long long convertFrame(float newFps);

    /// Comparisons of the counts alone; false if one of them may not be read.
    bool operator==(const FrameCount &other) const;
    bool operator<(const FrameCount &other) const;
    bool operator>(const FrameCount &other) const;

    /// Logs "frame = " and the count.
    void print() const;

private:
    bool isReadableWith(const FrameCount &other, int line) const;

    long long m_frameCount = unknownCount;
    bool m_bKnown = true;
    float m_fps = 30.0f;
    unsigned int m_smpte = 0;
    bool m_bSmpteValid = false;
};

}
