#pragma once

/// Which sample rates (Hz) and bit rates (bit/s) AAC carries together.
namespace AacRates {

/// The bit rate itself if the sample rate carries it, else the nearest one that it does.
int bitRateFor(int sampleRate, int bitRate);

/// The sample rate itself if it carries the bit rate, else the one that takes its place.
int sampleRateFor(int bitRate, int sampleRate);

}
