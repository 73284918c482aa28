#pragma once

#include <cstdint>
#include <QUrl>

/// The plain types that the audio layer shares with its callers.

using OSStatus = int;
using UInt32 = std::uint32_t;
using SInt64 = std::int64_t;
using Float64 = double;

/// A file's address; only local files are opened.
using CFURLRef = QUrl;

/// A four-character code, most significant character first: fourCC("lpcm").
constexpr UInt32 fourCC(const char (&text)[5])
{
    UInt32 code = 0;
    for (int i = 0; i < 4; ++i) {
        code = code << 8 | static_cast<unsigned char>(text[i]);
    }
    return code;
}

/// A four-character code as a result; the same bits.
constexpr OSStatus statusCode(const char (&text)[5])
{
    return static_cast<OSStatus>(fourCC(text));
}

constexpr OSStatus noErr = 0;
constexpr OSStatus kAudioFileFileNotFoundError = -43;
constexpr OSStatus kAudioParamError = -50;
constexpr OSStatus kAudioFileExistsError = -48; ///< creating without the erase flag
constexpr OSStatus kAudioFileWriteError = -36; ///< a write or close that failed, e.g. a full disk
constexpr OSStatus kAudioMemoryFullError = -108; ///< no memory or thread to read with
constexpr OSStatus kAudioFileInvalidChunkError = statusCode("chk?"); ///< too much in one piece
constexpr OSStatus kAudioFileUnsupportedFileTypeError = statusCode("typ?");
constexpr OSStatus kAudioFileUnsupportedDataFormatError = statusCode("fmt?");
constexpr OSStatus kAudioFileInvalidFileError = statusCode("dta?");
constexpr OSStatus kAudioFileUnsupportedPropertyError = statusCode("pty?");
constexpr OSStatus kAudioConverterPropertyNotSupported = statusCode("prop");

constexpr UInt32 kAudioFormatLinearPCM = fourCC("lpcm");
constexpr UInt32 kAudioFormatFLAC = fourCC("flac");
constexpr UInt32 kAudioFileFLACType = fourCC("flac");
constexpr UInt32 kAudioFileWAVEType = fourCC("WAVE");

constexpr UInt32 kAudioFormatFlagIsFloat = 1;
constexpr UInt32 kAudioFormatFlagIsBigEndian = 2;
constexpr UInt32 kAudioFormatFlagIsSignedInteger = 4;
constexpr UInt32 kAudioFormatFlagIsPacked = 8;

/// Flag of the functions that create a file: an existing one is erased.
constexpr UInt32 kAudioFileFlags_EraseFile = 1;

/// One stream's sample format. A frame is one sample of every channel.
struct AudioStreamBasicDescription
{
    Float64 mSampleRate = 0.0; ///< frames per second
    UInt32 mFormatID = 0;
    UInt32 mFormatFlags = 0;
    UInt32 mBytesPerPacket = 0;
    UInt32 mFramesPerPacket = 0;
    UInt32 mBytesPerFrame = 0;
    UInt32 mChannelsPerFrame = 0;
    UInt32 mBitsPerChannel = 0;
    UInt32 mReserved = 0;
};

/// One piece of interleaved samples; the memory is the caller's.
struct AudioBuffer
{
    UInt32 mNumberChannels = 0;
    UInt32 mDataByteSize = 0; ///< capacity when reading, afterwards what was filled
    void *mData = nullptr;
};

/// The buffers of one call. This layer works on exactly one, interleaved.
struct AudioBufferList
{
    UInt32 mNumberBuffers = 0;
    AudioBuffer mBuffers[1];
};
