#pragma once

#include <QtGlobal>

/// Measures a signal block by block: its peak and where it is first and last audible.
///
/// Positions count interleaved values from 0 over all blocks. A value is audible if it is greater
/// than 0.02; the test is on the signed value, so a negative value never is.
class SignalScan
{
public:
    /// Takes the next block of count values (count >= 0).
    void add(const float *values, int count);

    qint64 numSamples() const { return m_numSamples; }
    /// The largest magnitude of any value; 0 before the first block.
    float maxPeak() const { return m_highest > -m_lowest ? m_highest : -m_lowest; }
    /// 0 if nothing is audible.
    qint64 firstAudible() const { return m_firstAudible; }
    /// 0 if nothing is audible.
    qint64 lastAudible() const { return m_lastAudible; }

private:
    void addLimits(const float *values, int count);
    void addAudible(const float *values, int count);

    qint64 m_numSamples = 0;
    qint64 m_firstAudible = 0;
    qint64 m_lastAudible = 0;
    float m_lowest = 0.0f;
    float m_highest = 0.0f;
    bool m_firstFound = false;
};
