#pragma once

namespace QMMultiMedia {

/// The pair of values of one block of samples of one channel.
///
/// Which of the two is the larger depends on where the pair comes from: who draws it takes both.
struct PeakInfo
{
    float first = 0.0f;
    float second = 0.0f;
};

}
