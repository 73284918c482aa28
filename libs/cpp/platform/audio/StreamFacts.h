#pragma once

struct AVFormatContext;
struct AVPacket;
struct AVStream;

/// What a container tells of its streams before anything is decoded.
namespace StreamFacts {

bool isSound(const AVStream *stream);

/// Whether codec, rate and channels are known.
bool isComplete(const AVStream *stream);

/// Whether the header alone told what is needed of every sound, length included.
bool headerTellsAll(const AVFormatContext *container);

/// Whether the header says that the sound is encrypted: what decoders make of it without the key is
/// noise.
bool isEncrypted(const AVFormatContext *container, const AVStream *stream);

bool isEncrypted(const AVPacket &packet);

}
