#pragma once

namespace QMMultiMedia {

/// Timecode found in a track of sound.
///
/// Nothing decodes timecode here: there is the track that was asked for, and no positions.
struct LTCData
{
    int track = -1;
};

}
