#pragma once

#include "FileInput.h"

/// Every operation that acts on what a file says of itself.
inline void useInput(QMMultiMedia::FileInput *input)
{
    float samples[1000];
    while (input->read(samples, 1000) == 1000) { }
    input->gotoFrame(3);
    input->readChannel(samples, 50, input->channels() - 1);
    input->createPeakVector();
    for (const float zoom : {0.3f, 1.0f, 17.0f, 256.0f, 1000.0f}) {
        input->peakInfo(2, 0, zoom);
    }
    input->duration();
    input->start();
    input->end();
    if (!input->ebuInfo().isNull()) {
        input->ebuInfo()->umidsString();
        input->ebuInfo()->size();
    }
}
