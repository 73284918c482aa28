#pragma once

#include <QLatin1String>

// The identifiers of metadata formats, key spaces and keys.

inline constexpr QLatin1String AVMetadataKeySpaceCommon("comn");
inline constexpr QLatin1String AVMetadataKeySpaceiTunes("itsk");
inline constexpr QLatin1String AVMetadataKeySpaceID3("org.id3");
inline constexpr QLatin1String AVMetadataKeySpaceQuickTimeMetadata("mdta");
inline constexpr QLatin1String AVMetadataKeySpaceQuickTimeUserData("udta");

inline constexpr QLatin1String AVMetadataFormatiTunesMetadata("com.apple.itunes");
inline constexpr QLatin1String AVMetadataFormatID3Metadata("org.id3");
inline constexpr QLatin1String AVMetadataFormatQuickTimeMetadata("com.apple.quicktime.mdta");
inline constexpr QLatin1String AVMetadataFormatQuickTimeUserData("com.apple.quicktime.udta");
// Formats without a key space of their own: their items bear iTunes keys.
inline constexpr QLatin1String AVMetadataFormatVorbisComment("org.xiph.vorbiscomment");
inline constexpr QLatin1String AVMetadataFormatApe("org.monkeysaudio.ape");
inline constexpr QLatin1String AVMetadataFormatAsf("com.microsoft.asf");
inline constexpr QLatin1String AVMetadataFormatRiffInfo("riff.info");
inline constexpr QLatin1String AVMetadataFormatDictionary("org.ffmpeg.dictionary");

inline constexpr QLatin1String AVMetadataCommonKeyTitle("title");
inline constexpr QLatin1String AVMetadataCommonKeyCreator("creator");
inline constexpr QLatin1String AVMetadataCommonKeySubject("subject");
inline constexpr QLatin1String AVMetadataCommonKeyDescription("description");
inline constexpr QLatin1String AVMetadataCommonKeyPublisher("publisher");
inline constexpr QLatin1String AVMetadataCommonKeyContributor("contributor");
inline constexpr QLatin1String AVMetadataCommonKeyCreationDate("creationDate");
inline constexpr QLatin1String AVMetadataCommonKeyType("type");
inline constexpr QLatin1String AVMetadataCommonKeyFormat("format");
inline constexpr QLatin1String AVMetadataCommonKeyIdentifier("identifier");
inline constexpr QLatin1String AVMetadataCommonKeySource("source");
inline constexpr QLatin1String AVMetadataCommonKeyLanguage("language");
inline constexpr QLatin1String AVMetadataCommonKeyCopyrights("copyrights");
inline constexpr QLatin1String AVMetadataCommonKeyAlbumName("albumName");
inline constexpr QLatin1String AVMetadataCommonKeyAuthor("author");
inline constexpr QLatin1String AVMetadataCommonKeyArtist("artist");
inline constexpr QLatin1String AVMetadataCommonKeyArtwork("artwork");
inline constexpr QLatin1String AVMetadataCommonKeySoftware("software");

inline constexpr QLatin1String AVMetadataiTunesMetadataKeyComposer("@wrt");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyUserComment("@cmt");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyBeatsPerMin("tmpo");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyDiscNumber("disk");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyEncodingTool("@too");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyAlbumArtist("aART");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyGrouping("grup");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyTrackNumber("trkn");
inline constexpr QLatin1String AVMetadataiTunesMetadataKeyUserGenre("@gen");

inline constexpr QLatin1String AVMetadataID3MetadataKeyBand("TPE2");
inline constexpr QLatin1String AVMetadataID3MetadataKeyEncodedWith("TSSE");
inline constexpr QLatin1String AVMetadataID3MetadataKeyComments("COMM");
inline constexpr QLatin1String AVMetadataID3MetadataKeyYear("TYER");
inline constexpr QLatin1String AVMetadataID3MetadataKeyRecordingTime("TDRC");
inline constexpr QLatin1String AVMetadataID3MetadataKeyBeatsPerMinute("TBPM");
inline constexpr QLatin1String AVMetadataID3MetadataKeyTrackNumber("TRCK");
inline constexpr QLatin1String AVMetadataID3MetadataKeyPartOfASet("TPOS");

inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyDirector(
    "com.apple.quicktime.director");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyProducer(
    "com.apple.quicktime.producer");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyEncodedBy(
    "com.apple.quicktime.encodedby");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyYear("com.apple.quicktime.year");
inline constexpr QLatin1String AVMetadataQuickTimeMetadataKeyGenre("com.apple.quicktime.genre");
