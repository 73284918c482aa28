#pragma once

#include "FileInput.h"

namespace QMMultiMedia {

/// Reads RIFF WAVE files with integer samples.
class WaveInput : public FileInput
{
public:
    bool open(const char *path) override;
    short fmt() const override;
    const char *name() const override;
    QString extentions() const override;

private:
    bool parse();
    bool readFmtChunk();
    bool readListChunk();
    void initDataChunk();
    void readBextChunk();
    void readLevlChunk();
    std::int64_t endOfBext(std::int64_t body);

    Chunk m_chunk;
    int m_nFormatTag = 0;
};

}
