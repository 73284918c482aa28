#include "SampleTime.h"

#include "FrameCount.h"
#include "Production.h"
#include <cmath>
#include <limits>

namespace QMMultiMedia {

QString timecodeOfSamples(float fps, double samples, unsigned int sampleRate)
{
    const float rate = std::fabs(fps) >= 1.0f ? fps : Production::fps();
    double frames = sampleRate != 0 ? static_cast<double>(rate) * samples / sampleRate : 0.0;
    constexpr double limit = std::numeric_limits<int>::max();
    frames = frames > -limit ? frames : -limit;
    frames = frames < limit ? frames : limit;
    return MTools::FrameCount(static_cast<int>(frames), rate).timecodeFromFrameCount();
}

}
