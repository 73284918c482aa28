#include "AudioFloatBuffer.h"
#include "RawBuffer.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using MTools::Handle;
using QMMultiMedia::AudioFloatBuffer;

namespace {

AudioFloatBuffer counting(int frames, int frameSize)
{
    AudioFloatBuffer buffer(frames, frameSize);
    for (int i = 0; i < buffer.size(); ++i) {
        buffer.data()[i] = static_cast<float>(i + 1);
    }
    return buffer;
}

std::vector<float> contents(const AudioFloatBuffer &buffer)
{
    return {buffer.data(), buffer.data() + buffer.size()};
}

using Values = std::vector<float>;

}

TEST(AudioFloatBuffer, MovesByWholeFrames)
{
    const struct
    {
        int frames;
        Values result;
    } cases[] = {{0, {1, 2, 3, 4, 5, 6}}, {1, {3, 4, 5, 6, 0, 0}}, {-1, {0, 0, 1, 2, 3, 4}},
        {2, {5, 6, 0, 0, 0, 0}}, {3, Values(6)}, {-3, Values(6)},
        {std::numeric_limits<int>::min(), Values(6)}};
    for (const auto &c : cases) {
        AudioFloatBuffer buffer = counting(3, 2);
        buffer.move(c.frames);
        EXPECT_EQ(contents(buffer), c.result) << c.frames;
    }
}

TEST(AudioFloatBuffer, SizesAndCopies)
{
    AudioFloatBuffer buffer = counting(3, 2);
    buffer.reverse();
    EXPECT_EQ(contents(buffer), (Values {5, 6, 3, 4, 1, 2}));
    const float *const before = buffer.data();
    buffer.resize(3);
    EXPECT_EQ(buffer.data(), before);
    buffer.resize(4);
    EXPECT_EQ(contents(buffer), (Values {5, 6, 3, 4, 1, 2, 0, 0}));
    buffer.resize(1);
    EXPECT_EQ(contents(buffer), (Values {5, 6}));

    for (const AudioFloatBuffer &empty : {AudioFloatBuffer(0, 2), AudioFloatBuffer(2, -1),
             AudioFloatBuffer(std::numeric_limits<int>::max(), 2)}) {
        EXPECT_EQ(empty.size(), 0);
        EXPECT_EQ(empty.data(), nullptr);
    }

    const Handle<AudioFloatBuffer> mono(new AudioFloatBuffer(counting(3, 1))); // NOLINT: owned
    AudioFloatBuffer stereo = counting(3, 2);
    stereo.copy(mono, 1, 1, 100);
    EXPECT_EQ(contents(stereo), (Values {1, 2, 2, 0, 3, 0})) << "nothing beyond either buffer";
    stereo.copy(mono, 3, 0, 1);
    stereo.copy(mono, 0, 4000000000U, 1);
    EXPECT_EQ(contents(stereo), (Values {1, 2, 2, 0, 3, 0}));
}

TEST(AudioFloatBuffer, SixteenBitsInTheTopOfAnInt)
{
    const float source[] = {1.0f, -1.0f, 9.0f, 0.5f, -0.25f, 9.0f};
    int ints[4];
    AudioFloatBuffer::convertFloatTo32(source, ints, 2, 3, 2);
    EXPECT_EQ(ints[0], 0x7FFF0000);
    EXPECT_EQ(ints[1], -0x7FFF0000);
    EXPECT_EQ(ints[3], -0x20000000);
    int wide[6] = {7, 7, 7, 7, 7, 7};
    AudioFloatBuffer::convertFloatTo32(source, wide, 2, 2, 3);
    EXPECT_EQ(wide[2], 0);
    const Handle<AudioFloatBuffer> back = AudioFloatBuffer::convert32ToFloat(ints, 2, 2, 3);
    EXPECT_EQ(contents(*back), (Values {32767 / 32768.0f, -32767 / 32768.0f, 0, 0.5f, -0.25f, 0}));
}

TEST(RawBuffer, CopiesAreDeepWithADefaultFormat)
{
    QMMultiMedia::RawBuffer first(4);
    std::fill_n(first.data(), 4, 'a');
    first.setSettings({8000, 1, 8, 8});
    QMMultiMedia::RawBuffer second(first);
    EXPECT_EQ(second.settings(), QMMultiMedia::Settings(48000, 2, 1, 16));
    QMMultiMedia::RawBuffer third(0);
    third = second;
    second.data()[0] = 'b';
    EXPECT_EQ(std::string(third.data(), 4), "aaaa");
}
