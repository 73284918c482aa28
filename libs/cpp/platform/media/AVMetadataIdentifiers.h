#pragma once

#include <QLatin1String>

/// A constant of 8-bit text; its length is known to the compiler.
template <int Size> constexpr QLatin1String latin1(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

// The identifiers of metadata formats, key spaces and keys.

inline constexpr QLatin1String AVMetadataKeySpaceCommon = latin1("comn");
inline constexpr QLatin1String AVMetadataKeySpaceiTunes = latin1("itsk");
inline constexpr QLatin1String AVMetadataKeySpaceID3 = latin1("org.id3");
inline constexpr QLatin1String AVMetadataKeySpaceQuickTimeMetadata = latin1("mdta");
inline constexpr QLatin1String AVMetadataKeySpaceQuickTimeUserData = latin1("udta");

inline constexpr QLatin1String AVMetadataFormatiTunesMetadata = latin1("com.apple.itunes");
inline constexpr QLatin1String AVMetadataFormatID3Metadata = latin1("org.id3");
inline constexpr QLatin1String AVMetadataFormatQuickTimeMetadata
    = latin1("com.apple.quicktime.mdta");
inline constexpr QLatin1String AVMetadataFormatQuickTimeUserData
    = latin1("com.apple.quicktime.udta");
// Formats without a key space of their own: their items bear iTunes keys.
inline constexpr QLatin1String AVMetadataFormatVorbisComment = latin1("org.xiph.vorbiscomment");
inline constexpr QLatin1String AVMetadataFormatApe = latin1("org.monkeysaudio.ape");
inline constexpr QLatin1String AVMetadataFormatAsf = latin1("com.microsoft.asf");
inline constexpr QLatin1String AVMetadataFormatRiffInfo = latin1("riff.info");
inline constexpr QLatin1String AVMetadataFormatDictionary = latin1("org.ffmpeg.dictionary");

inline constexpr QLatin1String AVMetadataCommonKeyTitle = latin1("title");
inline constexpr QLatin1String AVMetadataCommonKeyCreator = latin1("creator");
inline constexpr QLatin1String AVMetadataCommonKeySubject = latin1("subject");
inline constexpr QLatin1String AVMetadataCommonKeyDescription = latin1("description");
inline constexpr QLatin1String AVMetadataCommonKeyPublisher = latin1("publisher");
inline constexpr QLatin1String AVMetadataCommonKeyContributor = latin1("contributor");
inline constexpr QLatin1String AVMetadataCommonKeyCreationDate = latin1("creationDate");
inline constexpr QLatin1String AVMetadataCommonKeyType = latin1("type");
inline constexpr QLatin1String AVMetadataCommonKeyFormat = latin1("format");
inline constexpr QLatin1String AVMetadataCommonKeyIdentifier = latin1("identifier");
inline constexpr QLatin1String AVMetadataCommonKeySource = latin1("source");
inline constexpr QLatin1String AVMetadataCommonKeyLanguage = latin1("language");
inline constexpr QLatin1String AVMetadataCommonKeyCopyrights = latin1("copyrights");
inline constexpr QLatin1String AVMetadataCommonKeyAlbumName = latin1("albumName");
inline constexpr QLatin1String AVMetadataCommonKeyAuthor = latin1("author");
inline constexpr QLatin1String AVMetadataCommonKeyArtist = latin1("artist");
inline constexpr QLatin1String AVMetadataCommonKeyArtwork = latin1("artwork");
inline constexpr QLatin1String AVMetadataCommonKeySoftware = latin1("software");

inline constexpr QLatin1String AVMetadataiTunesMetadataKeyComposer = latin1("@wrt");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyUserComment = latin1("@cmt");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyBeatsPerMin = latin1("tmpo");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyDiscNumber = latin1("disk");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyEncodingTool = latin1("@too");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyAlbumArtist = latin1("aART");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyGrouping = latin1("grup");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyTrackNumber = latin1("trkn");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyUserGenre = latin1("@gen");

inline constexpr QLatin1String AVMetadataID3MetadataKeyBand = latin1("TPE2");
inline constexpr QLatin1String AVMetadataID3MetadataKeyEncodedWith = latin1("TSSE");
inline constexpr QLatin1String AVMetadataID3MetadataKeyComments = latin1("COMM");
inline constexpr QLatin1String AVMetadataID3MetadataKeyYear = latin1("TYER");
inline constexpr QLatin1String AVMetadataID3MetadataKeyRecordingTime = latin1("TDRC");
inline constexpr QLatin1String AVMetadataID3MetadataKeyBeatsPerMinute = latin1("TBPM");
inline constexpr QLatin1String AVMetadataID3MetadataKeyTrackNumber = latin1("TRCK");
inline constexpr QLatin1String AVMetadataID3MetadataKeyPartOfASet = latin1("TPOS");

inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyDirector
    = latin1("com.apple.quicktime.director");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyProducer
    = latin1("com.apple.quicktime.producer");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyEncodedBy
    = latin1("com.apple.quicktime.encodedby");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyYear
    = latin1("com.apple.quicktime.year");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyGenre
    = latin1("com.apple.quicktime.genre");
