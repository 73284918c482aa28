#pragma once

#include <map>
#include <QtGlobal>

class InputFile;

/// The part of a track's samples that is to be heard, in units of the track's time scale.
struct MovEdit
{
    qint64 begin = 0;
    qint64 end = 0; ///< exclusive
    quint32 timeScale = 0; ///< units per second
    bool toTheEnd = false; ///< the end is that of the media, not a cut
    double tolerance = 1.0; ///< how far the stated end may be off, in units
};

/// The edits of the sound tracks of an MP4 or QuickTime file (ISO 14496-12, 8.6.6).
struct MovEdits
{
    /// By track number; only tracks that have an edit list.
    std::map<quint32, MovEdit> tracks;

    /// Whether each edit list is a single span in normal speed, possibly after an empty one. If
    /// not, tracks is of no use.
    bool areSimple = false;
};

/// Reads the edits; not simple for files of another kind as well.
///
/// A span's length is stated in the movie's time scale, often no finer than a millisecond: a span
/// that ends within one such unit of the end of the media goes on to the end.
MovEdits readMovEdits(const InputFile &file);
