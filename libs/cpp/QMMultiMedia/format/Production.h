#pragma once

#include <QString>

namespace QMMultiMedia {

/// Short ways to the values of ProductionParameters.
class Production
{
public:
    static float fps();
    static int sampleRate();
    static int bitsPerSample();
    static QString projectName();
};

}
