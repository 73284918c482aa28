#pragma once

#include "AVMetadataItem.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace TagLib {
class String;
namespace ID3v1 {
class Tag;
}
namespace ID3v2 {
class Tag;
}
}

/// The items of an ID3v2 tag in its frames' order, one a field; frames bear their v2.4 ids.
QList<AVMetadataItem> id3Items(const TagLib::ID3v2::Tag &tag);

/// The items of an ID3v1 tag, under the ids of ID3v2.
QList<AVMetadataItem> id3v1Items(const TagLib::ID3v1::Tag &tag);

/// Bytes with the unsynchronisation of ID3 put in: readers of this layer's ID3 pictures take it
/// out.
QByteArray unsynchronised(const QByteArray &bytes);

/// A library's text; broken surrogates are replaced, and it ends at the first zero character.
QString toQString(const TagLib::String &text);
