#pragma once

#include "FileInput.h"

namespace QMMultiMedia {

/// Reads AIFF files with integer samples of 8, 16 and 24 bits.
class AiffInput : public FileInput
{
public:
    bool open(const char *path) override;
    /// 0 for other widths: their samples aren't read.
    short fmt() const override;
    const char *name() const override;
    QString extentions() const override;

private:
    bool parse();
    bool readCommChunk();
    bool readSsndChunk();
    bool readComtChunk();

    Chunk m_chunk;
    bool m_bCommon = false;
};

}
