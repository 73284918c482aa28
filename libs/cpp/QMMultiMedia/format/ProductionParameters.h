#pragma once

#include <QString>

namespace QMMultiMedia {

/// What a production works with, where a file states nothing of its own; one for the process.
class ProductionParameters
{
public:
    /// Made on first use, never destroyed.
    static ProductionParameters *instance();

    void setFPS(float fps) { m_fps = fps; }
    void setSampleRate(int sampleRate) { m_nSampleRate = sampleRate; }
    void setBitsPerSample(int bitsPerSample) { m_nBitsPerSample = bitsPerSample; }
    void setProjectName(const QString &projectName) { m_strProjectName = projectName; }

    float fps() const { return m_fps; }
    int sampleRate() const { return m_nSampleRate; }
    int bitsPerSample() const { return m_nBitsPerSample; }
    QString projectName() const { return m_strProjectName; }

    /// Logs the values.
    void dump() const;

private:
    ProductionParameters() = default;
    Q_DISABLE_COPY(ProductionParameters)

    float m_fps = 30.0f;
    int m_nSampleRate = 48000;
    int m_nBitsPerSample = 24;
    QString m_strProjectName;
};

}
