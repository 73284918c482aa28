#pragma once

#include "AudioConverter.h"
#include "CoreAudioTypes.h"

/// Reading any sound as plain samples, and writing FLAC.
///
/// One file belongs to one thread at a time. All functions return 0 or an error code: -43 no such
/// file (or not a regular one that may be read), 'typ?' not a sound, 'fmt?' no decoder or a format
/// that isn't supported, 'dta?' broken, -50 a wrong parameter.

struct OpaqueExtAudioFile;
using ExtAudioFileRef = OpaqueExtAudioFile *;
using ExtAudioFilePropertyID = UInt32;

/// The format that the caller reads or writes: an AudioStreamBasicDescription.
constexpr ExtAudioFilePropertyID kExtAudioFileProperty_ClientDataFormat = fourCC("cfmt");
/// The encoder of a file that is written: an AudioConverterRef.
constexpr ExtAudioFilePropertyID kExtAudioFileProperty_AudioConverter = fourCC("acnv");

/// Opens a local sound or video file for reading; dispose of *outFile with ExtAudioFileDispose.
///
/// Only regular files are opened: a pipe or device is refused without touching it. On failure
/// *outFile is null.
[[nodiscard]] OSStatus ExtAudioFileOpenURL(const CFURLRef &url, ExtAudioFileRef *outFile);

/// Creates a file of type 'flac' from the stream's description.
///
/// Without kAudioFileFlags_EraseFile an existing file is left alone and the result is -48. The
/// channel layout isn't used.
[[nodiscard]] OSStatus ExtAudioFileCreateWithURL(const CFURLRef &url, UInt32 fileType,
    const AudioStreamBasicDescription *format, const void *channelLayout, UInt32 flags,
    ExtAudioFileRef *outFile);

/// Sets 'cfmt'. For reading: two channels of packed little-endian signed integers of 16, 24 or 32
/// bits or of 32-bit floats, at 1 to 768000 Hz; before the first read. For writing: floats at the
/// file's own rate and channel count.
[[nodiscard]] OSStatus ExtAudioFileSetProperty(
    ExtAudioFileRef file, ExtAudioFilePropertyID id, UInt32 size, const void *data);

/// Gets 'cfmt' or 'acnv'; *ioSize is the room at data and becomes the size of the value.
[[nodiscard]] OSStatus ExtAudioFileGetProperty(
    ExtAudioFileRef file, ExtAudioFilePropertyID id, UInt32 *ioSize, void *data);

/// Reads up to *ioFrames frames of the client format.
///
/// Blocks until all are there or the data ends; then *ioFrames is what came, and 0 with the result
/// 0 from there on. mDataByteSize bounds the read and becomes what was filled. Where reading can't
/// go on before the end the result is -108 (no memory) or 'chk?' (one piece of the file holds so
/// much that it would take all of it).
[[nodiscard]] OSStatus ExtAudioFileRead(
    ExtAudioFileRef file, UInt32 *ioFrames, AudioBufferList *ioData);

/// Writes frames of the client format; 0 frames change nothing.
[[nodiscard]] OSStatus ExtAudioFileWrite(
    ExtAudioFileRef file, UInt32 frames, const AudioBufferList *data);

/// Ends reading or writing and frees the file; null is -50. Tells whether all was written.
OSStatus ExtAudioFileDispose(ExtAudioFileRef file);

/// Tells that this file is read next in this format: it is decoded ahead on a thread of its own, if
/// it fits into what may be kept. A hint costs nothing if it turns out wrong.
void ExtAudioFileHint(const CFURLRef &url, const AudioStreamBasicDescription &clientFormat);

/// Ends all reading ahead of files that aren't open. Never waits, not even for a read that hangs.
void ExtAudioFileDropHints();

/// Forgets everything that was kept for a second reading, hints included; files that are open can
/// be read on.
void ExtAudioFileForgetKept();
