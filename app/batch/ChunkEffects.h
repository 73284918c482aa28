#pragma once

#include <QtGlobal>

/// What is done to the values of one file on their way to the output, chunk by chunk and in place,
/// in this order: gain, fade-in, fade-out, trimming.
///
/// All positions and lengths count interleaved values. The fades look at a chunk as a whole, by its
/// end: the fade-in ends at the last chunk that lies wholly inside it, the fade-out begins with the
/// chunk that reaches its start.
class ChunkEffects
{
public:
    /// What the settings and the analysis of the file ask for.
    struct Plan
    {
        qint64 numSamples = 0;
        int channels = 2;
        bool normalise = false;
        float gain = 1.0f;
        bool fade = false;
        qint64 fadeInSamples = 0; ///< length asked for; cut to the file's
        qint64 fadeOutSamples = 0;
        bool trim = false;
        qint64 firstAudible = 0;
        qint64 lastAudible = 0;
    };

    /// The part of a chunk that is to be written.
    struct Result
    {
        float *values = nullptr; ///< inside the chunk's buffer
        int count = 0; ///< may be 0
        bool last = false; ///< nothing behind this chunk is to be written
    };

    explicit ChunkEffects(const Plan &plan);

    /// Works on the next count values (count > 0); chunks follow each other without a gap.
    Result process(float *values, int count);

private:
    void fadeIn(float *values, int count, qint64 chunkEnd);
    void fadeOut(float *values, int count, qint64 chunkEnd);
    Result trim(float *values, int count, qint64 chunkStart, qint64 chunkEnd) const;

    Plan m_plan;
    qint64 m_position = 0;
    qint64 m_fadeInFrom = 0;
    qint64 m_fadeInTo = 0;
    qint64 m_fadeInLength = 0;
    qint64 m_fadeOutStart = 0;
    qint64 m_fadeOutLength = 0;
    float m_fadeInStep = 0.0f;
    float m_fadeOutStep = 0.0f;
    float m_fadeInGain = 0.0f;
    float m_fadeOutGain = 1.0f;
};
