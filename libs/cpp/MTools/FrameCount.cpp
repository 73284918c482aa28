#include "FrameCount.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QByteArray>
#include <QDebug>

namespace MTools {

namespace {

constexpr float dropVideoFps = 29.97f;
constexpr float dropFilmFps = 23.98f;
constexpr int filmRows = 24;
constexpr int videoRows = 30;
constexpr int phases = 4;

// 3:2 pulldown, a column for each phase: the video frame of a film frame, and twice the film frame
// plus the field of a video frame (-1: the field before film frame 0).
constexpr std::array<std::array<int, phases>, filmRows> videoOfFilm {
    {{0, 0, 1, 1}, {1, 2, 2, 2}, {3, 3, 3, 3}, {4, 4, 4, 5}, {5, 5, 6, 6}, {6, 7, 7, 7},
        {8, 8, 8, 8}, {9, 9, 9, 10}, {10, 10, 11, 11}, {11, 12, 12, 12}, {13, 13, 13, 13},
        {14, 14, 14, 15}, {15, 15, 16, 16}, {16, 17, 17, 17}, {18, 18, 18, 18}, {19, 19, 19, 20},
        {20, 20, 21, 21}, {21, 22, 22, 22}, {23, 23, 23, 23}, {24, 24, 24, 25}, {25, 25, 26, 26},
        {26, 27, 27, 27}, {28, 28, 28, 28}, {29, 29, 29, 0}}};
constexpr std::array<std::array<int, phases>, videoRows> filmFieldOfVideo {
    {{0, 0, -1, -1}, {2, 1, 0, 0}, {3, 2, 2, 2}, {4, 4, 4, 4}, {6, 6, 6, 5}, {8, 8, 7, 6},
        {10, 9, 8, 8}, {11, 10, 10, 10}, {12, 12, 12, 12}, {14, 14, 14, 13}, {16, 16, 15, 14},
        {18, 17, 16, 16}, {19, 18, 18, 18}, {20, 20, 20, 20}, {22, 22, 22, 21}, {24, 24, 23, 22},
        {26, 25, 24, 24}, {27, 26, 26, 26}, {28, 28, 28, 28}, {30, 30, 30, 29}, {32, 32, 31, 30},
        {34, 33, 32, 32}, {35, 34, 34, 34}, {36, 36, 36, 36}, {38, 38, 38, 37}, {40, 40, 39, 38},
        {42, 41, 40, 40}, {43, 42, 42, 42}, {44, 44, 44, 44}, {46, 46, 46, 45}}};

bool isDropRate(float fps)
{
    return fps == dropVideoFps || fps == dropFilmFps;
}

/// The whole number of frames counted in a second; 0 for a rate that can't be counted.
int nominalRate(float fps)
{
    if (fps == dropVideoFps) {
        return 30;
    }
    if (fps == dropFilmFps) {
        return 24;
    }
    const float magnitude = std::fabs(fps);
    return magnitude < 1e6f ? static_cast<int>(magnitude) : 0;
}

void logUnknown(int line)
{
    qDebug().nospace().noquote() << "unexpected ERROR in libs/cpp/MTools/FrameCount:" << line;
}

int column(int phase)
{
    return std::clamp(phase, 1, phases) - 1;
}

/// Twice the film frame plus the field; out of range the nearest entry.
int filmField(int videoFrame, int phase)
{
    const int row = std::clamp(videoFrame, 0, videoRows - 1);
    return filmFieldOfVideo[static_cast<std::size_t>(row)][static_cast<std::size_t>(column(phase))];
}

/// Brings a count into one day of `day` frames.
long long withinDay(long long count, long long day, bool allowFullDay)
{
    if (count < 0) {
        count %= day;
        return count < 0 ? count + day : count;
    }
    if (allowFullDay) {
        return count > day ? (count - 1) % day + 1 : count;
    }
    return count % day;
}

/// Puts the dropped frame numbers back in.
long long withDroppedNumbers(long long count, bool film)
{
    const long long tenMinutes = film ? 14382 : 17982;
    const long long firstMinute = film ? 1440 : 1800;
    const long long minute = film ? 1438 : 1798;
    const long long rest = count % tenMinutes;
    long long minutes = count / tenMinutes * 10;
    if (rest >= firstMinute) {
        minutes += 1 + (rest - firstMinute) / minute;
    }
    return count + 2 * (minutes - minutes / 10);
}

struct Timecode
{
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    int frames = 0;

    void borrowSecond()
    {
        if (--seconds >= 0) {
            return;
        }
        seconds = 59;
        if (--minutes >= 0) {
            return;
        }
        minutes = 59;
        if (--hours < 0) {
            hours = 23;
        }
    }

    void carrySecond()
    {
        if (++seconds < 60) {
            return;
        }
        seconds = 0;
        if (++minutes < 60) {
            return;
        }
        minutes = 0;
        hours = (hours + 1) % 24;
    }
};

/// Turns the film frame into a video frame.
void applyPulldown(Timecode *timecode, int offset, int phase)
{
    if (phase < 1 || phase > phases) {
        qDebug().nospace().noquote()
            << "FrameCount::timecodeFromFrameCount wrong pulldown phase value: " << phase;
        return;
    }
    const int film = timecode->frames;
    const int row = std::clamp(film, 0, filmRows - 1);
    const int video
        = videoOfFilm[static_cast<std::size_t>(row)][static_cast<std::size_t>(column(phase))];
    const long long sum = static_cast<long long>(offset) + video;
    if (video >= film && sum < videoRows) {
        timecode->frames = static_cast<int>(sum);
        if (sum < 0) {
            timecode->frames += videoRows;
            timecode->borrowSecond();
        }
        return;
    }
    timecode->frames = static_cast<int>(sum - videoRows);
    timecode->carrySecond();
}

QString formatted(
    int hours, char first, int minutes, char second, int seconds, char third, int frames)
{
    return QString::asprintf(
        "%02d%c%02d%c%02d%c%02d", hours, first, minutes, second, seconds, third, frames);
}

}

FrameCount::FrameCount(long long count, float fps)
    : m_frameCount(count)
    , m_fps(fps)
{
}

FrameCount::FrameCount(int hours, int minutes, int seconds, int frames, float fps, bool pulldown,
    int phase, int *field)
    : m_fps(fps)
{
    m_frameCount = frameCountFromTimecode(hours, minutes, seconds, frames, pulldown, phase, field);
}

FrameCount::FrameCount(float fps, unsigned int smpte, bool pulldown, int phase, int *field)
{
    setSmpteTimecode(smpte, fps, pulldown, phase, field);
}

long long FrameCount::frame() const
{
    if (!m_bKnown) {
        logUnknown(__LINE__);
        return -1;
    }
    return m_frameCount;
}

void FrameCount::setFrameCount(long long count)
{
    m_frameCount = count;
    m_bKnown = true;
    m_bSmpteValid = false;
}

void FrameCount::unsetFrameCount()
{
    m_frameCount = unknownCount;
    m_bKnown = false;
    m_bSmpteValid = false;
}

long long FrameCount::frameCountFromTimecode(
    int hours, int minutes, int seconds, int frames, bool pulldown, int phase, int *field) const
{
    if (m_fps == 0.0f) {
        return unknownCount;
    }
    long long nominal = nominalRate(m_fps);
    if (pulldown) {
        const int entry = filmField(frames, phase);
        frames = entry / 2;
        if (field != nullptr) {
            *field = entry % 2;
        }
        nominal = 24;
    }
    const long long totalMinutes = hours * 60LL + minutes;
    long long count = frames + seconds * nominal + totalMinutes * nominal * 60;
    if (isDropRate(m_fps)) {
        count -= 2 * (totalMinutes - totalMinutes / 10);
    }
    return count;
}

long long FrameCount::frameCountFromTimecode(
    const QString &timecode, bool pulldown, int phase) const
{
    if (timecode.size() != 11) {
        return unknownCount;
    }
    const auto number = [&timecode](int position) { return timecode.mid(position, 2).toInt(); };
    return frameCountFromTimecode(
        number(0), number(3), number(6), number(9), pulldown, phase, nullptr);
}

void FrameCount::timecodeFromFrameCount(int *hours, int *minutes, int *seconds, int *frames,
    bool allowFullDay, int offset, bool pulldown, int phase) const
{
    Timecode result;
    const int nominal = nominalRate(m_fps);
    if (nominal != 0) {
        if (!m_bKnown) {
            logUnknown(__LINE__);
        }
        const bool drop = isDropRate(m_fps);
        const bool film = nominal == 24 || (nominal == 30 && pulldown);
        const long long dropDay = film ? 2071008 : 2589408;
        const long long day = drop ? dropDay : nominal * 86400LL;
        long long count = withinDay(m_frameCount, day, allowFullDay);
        if (drop) {
            count = withDroppedNumbers(count, film);
        }
        const long long totalSeconds = count / nominal;
        result.frames = static_cast<int>(count % nominal);
        result.seconds = static_cast<int>(totalSeconds % 60);
        result.minutes = static_cast<int>(totalSeconds / 60 % 60);
        result.hours = static_cast<int>(totalSeconds / 3600);
        if (pulldown) {
            applyPulldown(&result, offset, phase);
        }
    }
    *hours = result.hours;
    *minutes = result.minutes;
    *seconds = result.seconds;
    *frames = result.frames;
}

QString FrameCount::timecodeFromFrameCount(
    bool allowFullDay, bool pulldown, int phase, bool /*rateMark*/) const
{
    if (m_fps == 0.0f) {
        return {};
    }
    Timecode timecode;
    timecodeFromFrameCount(&timecode.hours, &timecode.minutes, &timecode.seconds, &timecode.frames,
        allowFullDay, 0, pulldown, phase);
    return timecodeToString(
        timecode.hours, timecode.minutes, timecode.seconds, timecode.frames, isDropRate(m_fps));
}

QString FrameCount::timecodeToString(
    int hours, int minutes, int seconds, int frames, bool drop) const
{
    const char separator = drop ? ';' : ':';
    return formatted(hours, separator, minutes, separator, seconds, separator, frames);
}

QString FrameCount::timecodeToString(
    int hours, int minutes, int seconds, int frames, bool drop, float fps, bool rateMark)
{
    const char separator = drop ? ';' : ':';
    if (!rateMark || drop) {
        return formatted(hours, separator, minutes, separator, seconds, separator, frames);
    }
    if (fps == 24.0f) {
        return formatted(hours, separator, minutes, separator, seconds, '+', frames);
    }
    if (fps == 25.0f || fps == 30.0f) {
        return formatted(hours, separator, minutes, separator, seconds, ':', frames);
    }
    return QString::asprintf("%02d%c%02d%c%02d", hours, separator, minutes, separator, seconds);
}

void FrameCount::setSmpteTimecode(
    unsigned int smpte, float fps, bool pulldown, int phase, int *field)
{
    constexpr std::array<float, 5> rates {24.0f, dropFilmFps, 25.0f, dropVideoFps, 30.0f};
    m_fps = std::find(rates.begin(), rates.end(), fps) != rates.end() ? fps : 0.0f;
    const bool dropFlag = (smpte & 0x40U) != 0;
    if (isDropRate(m_fps) && !dropFlag) {
        m_fps = static_cast<float>(nominalRate(m_fps));
    }
    m_smpte = smpte;
    m_bSmpteValid = true;
    m_bKnown = true;
    const auto digits = [smpte](int shift, unsigned int tensMask) {
        const unsigned int bits = smpte >> static_cast<unsigned int>(shift);
        return static_cast<int>((bits & 0xFU) + 10 * ((bits >> 4U) & tensMask));
    };
    m_frameCount = frameCountFromTimecode(
        digits(24, 3), digits(16, 7), digits(8, 7), digits(0, 3), pulldown, phase, field);
}

unsigned int FrameCount::smpteTimecode()
{
    return m_bSmpteValid ? m_smpte : calcSmpteTimecode();
}

unsigned int FrameCount::calcSmpteTimecode()
{
    if (!m_bKnown || m_frameCount == unknownCount) {
        qDebug() << "FrameCount::smpteTimecode() wille framecount is unkonwn";
        return 0;
    }
    Timecode timecode;
    timecodeFromFrameCount(
        &timecode.hours, &timecode.minutes, &timecode.seconds, &timecode.frames, false);
    const QByteArray text = QString::asprintf(
        "%02d:%02d:%02d:%02d", timecode.hours, timecode.minutes, timecode.seconds, timecode.frames)
                                .toLatin1();
    const auto digit = [&text](int position, unsigned int mask, unsigned int shift) {
        return (static_cast<unsigned int>(text.at(position) - '0') & mask) << shift;
    };
    m_smpte = digit(0, 3, 28) | digit(1, 15, 24) | digit(3, 7, 20) | digit(4, 15, 16)
        | digit(6, 7, 12) | digit(7, 15, 8) | digit(9, 3, 4) | digit(10, 15, 0);
    m_bSmpteValid = true;
    return m_smpte;
}

void FrameCount::updateFps(float newFps)
{
    const long long count = convertFrame(newFps);
    setFrameCount(count);
    m_fps = newFps;
}

long long FrameCount::convertFrame(float newFps)
{
    if (!m_bKnown) {
        logUnknown(__LINE__);
        return unknownCount;
    }
    m_fps = std::fabs(m_fps);
    if (m_fps == 0.0f) {
        return unknownCount;
    }
    const float frames = std::fabs(newFps) / m_fps * static_cast<float>(m_frameCount) + 0.5f;
    // Beyond what a count can hold (2^63), or not a number: not known.
    constexpr float limit = 9223372036854775808.0f;
    return frames > -limit && frames < limit ? static_cast<long long>(frames) : unknownCount;
}

bool FrameCount::isReadableWith(const FrameCount &other, int line) const
{
    if (m_bKnown && other.m_bKnown) {
        return true;
    }
    logUnknown(line);
    return false;
}

bool FrameCount::operator==(const FrameCount &other) const
{
    return isReadableWith(other, __LINE__) && m_frameCount == other.m_frameCount;
}

bool FrameCount::operator<(const FrameCount &other) const
{
    return isReadableWith(other, __LINE__) && m_frameCount < other.m_frameCount;
}

bool FrameCount::operator>(const FrameCount &other) const
{
    return isReadableWith(other, __LINE__) && m_frameCount > other.m_frameCount;
}

void FrameCount::print() const
{
    qDebug().nospace().noquote() << "frame = " << m_frameCount;
}

}
