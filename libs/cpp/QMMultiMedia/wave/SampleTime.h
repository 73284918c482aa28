#pragma once

#include <QString>

namespace QMMultiMedia {

/// The timecode of a count of samples (of one channel).
///
/// A rate of less than one frame a second counts as Production::fps(); a sample rate of 0 gives the
/// frame 0.
QString timecodeOfSamples(float fps, double samples, unsigned int sampleRate);

}
