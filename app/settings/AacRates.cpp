#include "AacRates.h"

#include <limits>

namespace {

/// The bit rates that a sample rate carries; 0 for no limit.
struct SampleRateRule
{
    int sampleRate;
    int lowestBitRate;
    int highestBitRate;
};

constexpr SampleRateRule SampleRateRules[] = {
    {11025, 0, 64000},
    {16000, 0, 96000},
    {22050, 0, 128000},
    {24000, 0, 128000},
    {32000, 0, 192000},
    {88200, 64000, 0},
    {96000, 64000, 0},
};

/// What the bit rates of a range do to sample rates that can't carry them: those from
/// tooHighSampleRate, or those up to tooLowSampleRate, become the new one.
struct BitRateRule
{
    int lowestBitRate;
    int highestBitRate;
    int tooHighSampleRate;
    int tooLowSampleRate;
    int newSampleRate;
};

constexpr int NoLimit = std::numeric_limits<int>::max();

constexpr BitRateRule BitRateRules[] = {
    {0, 63999, 88200, 0, 48000},
    {192001, NoLimit, NoLimit, 32000, 44100},
    {128001, 192000, NoLimit, 24000, 32000},
    {96001, 128000, NoLimit, 16000, 22050},
    {64001, 96000, NoLimit, 11025, 16000},
};

}

int AacRates::bitRateFor(int sampleRate, int bitRate)
{
    for (const SampleRateRule &rule : SampleRateRules) {
        if (rule.sampleRate != sampleRate) {
            continue;
        }
        if (rule.highestBitRate > 0 && bitRate > rule.highestBitRate) {
            return rule.highestBitRate;
        }
        return bitRate < rule.lowestBitRate ? rule.lowestBitRate : bitRate;
    }
    return bitRate;
}

int AacRates::sampleRateFor(int bitRate, int sampleRate)
{
    for (const BitRateRule &rule : BitRateRules) {
        if (bitRate < rule.lowestBitRate || bitRate > rule.highestBitRate) {
            continue;
        }
        const bool isCarried
            = sampleRate < rule.tooHighSampleRate && sampleRate > rule.tooLowSampleRate;
        return isCarried ? sampleRate : rule.newSampleRate;
    }
    return sampleRate;
}
