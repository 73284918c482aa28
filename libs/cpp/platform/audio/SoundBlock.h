#pragma once

/// How the samples of a block are held: full scale is 2^31 for integers, 1.0 for the others.
enum class SampleKind
{
    Int32,
    Float,
    Double
};

/// Samples on their way from the decoder to the client format, one array per channel; one channel
/// stands for two equal ones. The memory belongs to whoever made the block.
struct SoundBlock
{
    SampleKind kind = SampleKind::Int32;
    int channels = 0; ///< 1 or 2
    int frames = 0;
    const void *planes[2] = {nullptr, nullptr};
};

/// The sample formats that a reader can ask for, two channels interleaved, little-endian.
enum class ClientSample
{
    Int16,
    Int24,
    Int32,
    Float
};

/// Bytes of one stereo frame.
int bytesPerFrame(ClientSample sample);

/// Writes a block as interleaved stereo: rounded to the nearest value and limited, without dither;
/// what isn't a number becomes 0. Floats stay as they are. A value that fits is never changed.
///
/// out has room for block.frames * bytesPerFrame(sample) bytes.
void packBlock(const SoundBlock &block, ClientSample sample, char *out);
