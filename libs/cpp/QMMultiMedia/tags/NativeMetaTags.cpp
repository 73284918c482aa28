#include "NativeMetaTags.h"

#include "AVAsset.h"
#include "AVMetadataIdentifiers.h"
#include "Literals.h"

#include <initializer_list>
#include <QDebug>
#include <QtEndian>
#include <QUrl>

namespace QMMultiMedia {

namespace {

bool holdsAny(const QStringList &keys, std::initializer_list<QLatin1String> identifiers)
{
    for (const QString &key : keys) {
        for (const QLatin1String identifier : identifiers) {
            if (key == identifier) {
                return true;
            }
        }
    }
    return false;
}

/// The picture that was decoded last: the files of an album mostly have one and the same.
struct DecodedPicture
{
    QByteArray bytes;
    bool isUnsynchronised = false;
    QImage image;
};
thread_local DecodedPicture lastPicture;
constexpr qsizetype largestRemembered = 40'000'000; // 3,000 times 3,000 pixels

}

NativeMetaTags::NativeMetaTags(QObject *parent)
    : MetaTagsBase(parent)
{
}

bool NativeMetaTags::readFrom(const QString &path)
{
    reset();
    m_pictureUnreadable = false;
    m_strInputFile = path;
    readFromAV(path);
    return true;
}

void NativeMetaTags::readFromAV(const QString &path)
{
    const AVAsset asset = AVAsset::assetWithURL(QUrl::fromLocalFile(path));
    for (const QString &format : asset.availableMetadataFormats()) {
        for (const AVMetadataItem &item : asset.metadataForFormat(format)) {
            takeItem(item);
        }
    }
}

/// The first test that claims an item decides; a later item of a field overwrites an earlier one.
void NativeMetaTags::takeItem(const AVMetadataItem &item)
{
    const QStringList keys {keyString(item.key()), item.commonKey()};
    const auto text = [&] { return nsToQString(item.stringValue()); };
    if (isKeyArtwork(keys)) {
        takePicture(item);
    } else if (isKeyComposer(keys)) {
        m_strComposer = text();
    } else if (isKeyCopyrights(keys)) {
        m_strCopyright = text();
    } else if (isKeyArtist(keys)) {
        m_strArtist = text();
    } else if (isKeyAlbumName(keys)) {
        m_strAlbum = text();
    } else if (isKeyTitle(keys)) {
        m_strTitle = text();
    } else if (isKeyCreator(keys)) {
        m_strCreator = text();
    } else if (isKeyEncodingApplication(keys)) {
        m_strEncodingApplication = text();
    } else if (isKeyAlbumArtist(keys)) {
        m_strAlbumArtist = text();
    } else if (isKeyComments(keys)) {
        m_strComments = text();
    } else if (isKeyYear(keys)) {
        m_strYear = text();
    } else if (isKeyGrouping(keys)) {
        m_strGrouping = text();
    } else if (isKeyTempo(keys)) {
        m_nTempo = item.intValue();
    } else if (isKeyTrackNumber(keys)) {
        constexpr int trackBytes = 8;
        takeNumberPair(item, trackBytes, &m_strTrackNumber);
    } else if (isKeyDiskNumber(keys)) {
        constexpr int discBytes = 6;
        takeNumberPair(item, discBytes, &m_strDiscNumber);
    } else if (isKeyGenre(keys)) {
        takeGenre(item);
    }
}

void NativeMetaTags::takePicture(const AVMetadataItem &item)
{
    const QByteArray bytes = item.dataValue();
    const bool isUnsynchronised = item.keySpace().endsWith(u"id3"_qs);
    m_strPicType = item.dataType().endsWith(u"PNG"_qs) ? u"PNG"_qs : u"JPEG"_qs;
    if (lastPicture.isUnsynchronised != isUnsynchronised || lastPicture.bytes != bytes) {
        lastPicture = {bytes, isUnsynchronised, byteArrayToImage(bytes, isUnsynchronised)};
    }
    m_imgAlbumArtwork = lastPicture.image;
    if (m_imgAlbumArtwork.sizeInBytes() > largestRemembered) {
        lastPicture = {};
    }
    m_pictureUnreadable = m_imgAlbumArtwork.isNull();
}

void NativeMetaTags::takeNumberPair(const AVMetadataItem &item, int length, QString *field) const
{
    const QVariant value = item.value();
    if (value.type() == QVariant::String) {
        *field = nsToQString(value.toString());
    } else if (value.type() == QVariant::ByteArray) {
        const QByteArray bytes = value.toByteArray();
        const bool isPair = bytes.size() == length;
        const int number = isPair ? qFromBigEndian<quint16>(bytes.constData() + 2) : 0;
        const int total = isPair ? qFromBigEndian<quint16>(bytes.constData() + 4) : 0;
        *field = QString::number(number) + QLatin1Char('/') + QString::number(total);
    }
}

void NativeMetaTags::takeGenre(const AVMetadataItem &item)
{
    const QVariant value = item.value();
    qint64 number = -1; // ID3v1's, from 0
    if (value.type() == QVariant::String) {
        const QVariant id3Number
            = item.keySpace() == AVMetadataKeySpaceID3 ? item.numberValue() : QVariant();
        if (!id3Number.isValid()) {
            m_strGenre = nsToQString(value.toString());
            return;
        }
        number = id3Number.toUInt();
    } else if (value.type() == QVariant::ByteArray && value.toByteArray().size() == 2) {
        // The iTunes atom counts from 1.
        number = qFromBigEndian<quint16>(value.toByteArray().constData()) - 1;
    }
    // A number without an entry leaves the genre as it was.
    if (number >= 0 && number < m_lstGenres.size()) {
        m_strGenre = m_lstGenres.at(static_cast<int>(number));
    }
}

QString NativeMetaTags::keyString(const QVariant &key) const
{
    switch (static_cast<QMetaType::Type>(key.type())) {
    case QMetaType::QString:
        return key.toString();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        break;
    default:
        return u"<<unknown>>"_qs;
    }
    const auto number = static_cast<quint32>(key.toULongLong());
    QByteArray code(4, '\0');
    qToBigEndian(number, code.data());
    const int length = number >= 0x1000000 ? 4
        : number >= 0x10000                ? 3
        : number >= 0x100                  ? 2
        : number >= 1                      ? 1
                                           : 0;
    code = code.right(length);
    if (code.startsWith('\xA9')) {
        code[0] = '@';
    }
    return QString::fromUtf8(code);
}

bool NativeMetaTags::isKeyArtwork(const QStringList &keys) const
{
    return holdsAny(keys, {AVMetadataCommonKeyArtwork});
}

bool NativeMetaTags::isKeyComposer(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataiTunesMetadataKeyComposer, AVMetadataCommonKeyCreator,
            AVMetadataQuickTimeMetadataKeyDirector, QLatin1String("@wrt")});
}

bool NativeMetaTags::isKeyCopyrights(const QStringList &keys) const
{
    return holdsAny(keys, {QLatin1String("copyrights")});
}

bool NativeMetaTags::isKeyArtist(const QStringList &keys) const
{
    return holdsAny(keys, {AVMetadataCommonKeyArtist, AVMetadataQuickTimeMetadataKeyProducer});
}

bool NativeMetaTags::isKeyAlbumName(const QStringList &keys) const
{
    return holdsAny(keys, {AVMetadataCommonKeyAlbumName});
}

bool NativeMetaTags::isKeyTitle(const QStringList &keys) const
{
    return holdsAny(keys, {AVMetadataCommonKeyTitle});
}

bool NativeMetaTags::isKeyCreator(const QStringList &keys) const
{
    return holdsAny(keys, {AVMetadataCommonKeyCreator});
}

bool NativeMetaTags::isKeyEncodingApplication(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataQuickTimeMetadataKeyEncodedBy, AVMetadataiTunesMetadataKeyEncodingTool,
            AVMetadataID3MetadataKeyEncodedWith, QLatin1String("software")});
}

bool NativeMetaTags::isKeyAlbumArtist(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataID3MetadataKeyBand, AVMetadataiTunesMetadataKeyAlbumArtist,
            AVMetadataID3MetadataKeyEncodedWith, QLatin1String("TP2"), QLatin1String("aArt")});
}

bool NativeMetaTags::isKeyComments(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataID3MetadataKeyComments, AVMetadataiTunesMetadataKeyUserComment,
            AVMetadataCommonKeyDescription, QLatin1String("ldes"), QLatin1String("COM")});
}

bool NativeMetaTags::isKeyYear(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataCommonKeyCreationDate, AVMetadataID3MetadataKeyYear,
            AVMetadataQuickTimeMetadataKeyYear, AVMetadataID3MetadataKeyRecordingTime,
            QLatin1String("TYE"), QLatin1String("@day")});
}

bool NativeMetaTags::isKeyGrouping(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataiTunesMetadataKeyGrouping, AVMetadataCommonKeySubject, QLatin1String("@grp")});
}

bool NativeMetaTags::isKeyTempo(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataiTunesMetadataKeyBeatsPerMin, AVMetadataID3MetadataKeyBeatsPerMinute,
            QLatin1String("TBP")});
}

bool NativeMetaTags::isKeyTrackNumber(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataiTunesMetadataKeyTrackNumber, AVMetadataID3MetadataKeyTrackNumber,
            QLatin1String("TRK")});
}

bool NativeMetaTags::isKeyDiskNumber(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataiTunesMetadataKeyDiscNumber, AVMetadataID3MetadataKeyPartOfASet,
            QLatin1String("TPA")});
}

bool NativeMetaTags::isKeyGenre(const QStringList &keys) const
{
    return holdsAny(keys,
        {AVMetadataQuickTimeMetadataKeyGenre, AVMetadataiTunesMetadataKeyUserGenre,
            AVMetadataCommonKeyType});
}

QString NativeMetaTags::nsToQString(const QString &text) const
{
    // FF FE: the mark of a UTF-16 text whose bytes were taken for characters in swapped order. The
    // low bytes count; the mark may also lie across the two units.
    const bool isSwapped = text.size() >= 2
        && ((text.at(0).cell() == 0xFF && text.at(1).cell() == 0xFE)
            || (text.at(0) == QChar(0x00FF) && text.at(1) == QChar(0xFE00)));
    if (!isSwapped) {
        return text;
    }
    QByteArray bytes;
    bytes.reserve(2 * text.size());
    bytes.append(static_cast<char>(text.at(1).row()));
    bytes.append('\0');
    for (int i = 2; i < text.size(); ++i) {
        bytes.append(static_cast<char>(text.at(i).row()));
        bytes.append(static_cast<char>(text.at(i).cell()));
    }
    QString rebuilt(bytes.size() / 2, Qt::Uninitialized);
    for (int i = 0; i < rebuilt.size(); ++i) {
        rebuilt[i] = QChar(qFromLittleEndian<quint16>(bytes.constData() + qsizetype(i) * 2));
    }
    return rebuilt;
}

}
