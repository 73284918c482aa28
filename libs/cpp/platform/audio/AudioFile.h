#pragma once

#include "CoreAudioTypes.h"

/// An open file of the audio-file layer; what kind it is only its maker knows.
struct OpaqueAudioFileID
{
    OpaqueAudioFileID() = default;
    OpaqueAudioFileID(const OpaqueAudioFileID &) = delete;
    OpaqueAudioFileID &operator=(const OpaqueAudioFileID &) = delete;
    virtual ~OpaqueAudioFileID() = default;

    /// Writes packets at a packet index; see AudioFileWritePackets. Refused unless overridden.
    virtual OSStatus writePackets(
        SInt64 /*startingPacket*/, UInt32 * /*ioPackets*/, UInt32 /*bytes*/, const void * /*data*/)
    {
        return kAudioParamError;
    }

    /// Completes the file; its result is that of AudioFileClose.
    virtual OSStatus close() { return noErr; }
};
using AudioFileID = OpaqueAudioFileID *;

/// Creates a file of type 'WAVE' of packed little-endian linear samples; close it with
/// AudioFileClose. Without kAudioFileFlags_EraseFile an existing file gives -48.
[[nodiscard]] OSStatus AudioFileCreateWithURL(const CFURLRef &url, UInt32 fileType,
    const AudioStreamBasicDescription *format, UInt32 flags, AudioFileID *outFile);

/// Writes *ioPackets packets of `bytes` bytes in all at the packet index; the cache flag and the
/// packet descriptions aren't used. *ioPackets becomes what was written.
[[nodiscard]] OSStatus AudioFileWritePackets(AudioFileID file, bool useCache, UInt32 bytes,
    const void *packetDescriptions, SInt64 startingPacket, UInt32 *ioPackets, const void *data);

/// Completes and frees the file, one opened for reading as well; null is -50.
OSStatus AudioFileClose(AudioFileID file);
