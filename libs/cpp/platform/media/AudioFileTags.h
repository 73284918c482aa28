#pragma once

#include "AudioFile.h"
#include "CoreAudioTypes.h"

/// The tags of a file through the audio-file layer.
///
/// Texts of dictionaries are QString, pictures QByteArray; a dictionary is a QVariantMap. One file
/// belongs to one thread at a time.

/// The file's raw ID3 tag as bytes, header included.
constexpr UInt32 kAudioFilePropertyID3Tag = fourCC("id3t");
/// The file's fields: a QVariantMap, by words such as "title" and "track number".
constexpr UInt32 kAudioFilePropertyInfoDictionary = fourCC("info");
/// The file's picture, where that doesn't stand in an ID3 tag: a QByteArray.
constexpr UInt32 kAudioFilePropertyAlbumArtwork = fourCC("aart");

/// Of the raw tag that is given as specifier: its bytes in all, as a UInt32.
constexpr UInt32 kAudioFormatProperty_ID3TagSize = fourCC("id3s");
/// Of the raw tag that is given as specifier: a QVariantMap by frame id. Texts are QString. "APIC"
/// is a map of pictures, the last one of which is the one to be shown, each a map with its bytes,
/// still unsynchronised, under "data".
constexpr UInt32 kAudioFormatProperty_ID3TagToDictionary = fourCC("id3d");

constexpr OSStatus kAudioFormatUnsupportedPropertyError = statusCode("prop");
constexpr OSStatus kAudioFormatBadPropertySizeError = statusCode("!siz");
constexpr OSStatus kAudioFormatUnknownFormatError = statusCode("!fmt");
constexpr OSStatus kAudioFormatBadSpecifierSizeError = statusCode("!spc");
constexpr OSStatus kAudioFormatUnsupportedDataFormatError = statusCode("fmt?");
constexpr OSStatus kAudioFormatUnspecifiedError = statusCode("what");

/// The permission to read.
constexpr int kAudioFileReadPermission = 1;

/// Opens a local file for reading; close it with AudioFileClose. The hint of its type isn't used.
/// -43 if there is no such regular file or it can't be read, 'typ?' if it holds neither sound nor
/// tags.
[[nodiscard]] OSStatus AudioFileOpenURL(
    const CFURLRef &url, int permissions, UInt32 typeHint, AudioFileID *outFile);

/// The bytes that a property takes: the length of raw data, the size of the object for a dictionary
/// or a picture. 'pty?' if the file doesn't have it.
[[nodiscard]] OSStatus AudioFileGetPropertyInfo(
    AudioFileID file, UInt32 property, UInt32 *outSize, UInt32 *isWritable);

/// Fills `data`, which has room for *ioSize bytes, with a property: raw bytes, or an object of the
/// property's type that is there already. '!siz' if there isn't room enough.
[[nodiscard]] OSStatus AudioFileGetProperty(
    AudioFileID file, UInt32 property, UInt32 *ioSize, void *data);

/// Tells something of a raw ID3 tag of `specifierSize` bytes.
[[nodiscard]] OSStatus AudioFormatGetProperty(
    UInt32 property, UInt32 specifierSize, const void *specifier, UInt32 *ioSize, void *data);
