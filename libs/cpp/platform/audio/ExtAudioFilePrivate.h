#pragma once

#include "ExtAudioFile.h"
#include <memory>

/// What the functions of ExtAudioFile.h work on: a reader or a writer.
struct OpaqueExtAudioFile
{
    OpaqueExtAudioFile() = default;
    OpaqueExtAudioFile(const OpaqueExtAudioFile &) = delete;
    OpaqueExtAudioFile &operator=(const OpaqueExtAudioFile &) = delete;
    virtual ~OpaqueExtAudioFile() = default;

    virtual OSStatus setClientFormat(const AudioStreamBasicDescription &format) = 0;
    virtual AudioStreamBasicDescription clientFormat() const = 0;
    virtual OSStatus read(UInt32 * /*ioFrames*/, AudioBufferList * /*ioData*/)
    {
        return kAudioParamError;
    }
    virtual OSStatus write(UInt32 /*frames*/, const AudioBufferList * /*data*/)
    {
        return kAudioParamError;
    }
    /// The encoder of a file that is written, else null.
    virtual AudioConverterRef converter() { return nullptr; }
    /// Completes the file.
    virtual OSStatus close() { return noErr; }
};

/// An encoder that belongs to a file.
struct OpaqueAudioConverter
{
    bool isLossless = true;
};

/// Creates a FLAC file; see ExtAudioFileCreateWithURL.
std::unique_ptr<OpaqueExtAudioFile> createFlacFile(
    const CFURLRef &url, const AudioStreamBasicDescription &format, UInt32 flags, OSStatus *status);
