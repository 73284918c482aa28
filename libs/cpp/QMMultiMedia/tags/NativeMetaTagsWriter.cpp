// The part of the tag record that writes M4A files.

#include "App.h"
#include "AVAsset.h"
#include "AVAssetExportSession.h"
#include "Literals.h"
#include "NativeMetaTags.h"
#include "NSFileManager.h"

#include <functional>
#include <QBuffer>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <QUrl>

namespace QMMultiMedia {

namespace {

constexpr int trackBytes = 8;
constexpr int discBytes = 6;

QVariant textValue(const QString &text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

/// Takes a free name beside the file for the output of an export. False if there is none.
bool reserveBeside(const QString &path, AVAssetExportSession *session, QString *temporary)
{
    constexpr int maximumNameBytes = 255;
    constexpr int maximumTries = 10'000;
    const QFileInfo info(path);
    QString name = info.completeBaseName() + u"_temp"_qs;
    if (QFile::encodeName(name).size() + 12 > maximumNameBytes) {
        name = u"calderin_temp"_qs;
    }
    const QString start = info.absolutePath() + u"/"_qs + name;
    for (int n = 1; n < maximumTries; ++n) {
        *temporary = start + (n == 1 ? u""_qs : u" "_qs + QString::number(n)) + u".m4a"_qs;
        session->setOutputURL(QUrl::fromLocalFile(*temporary));
        if (session->reserveOutput()) {
            return true;
        }
        if (!QFileInfo::exists(*temporary) && !QFileInfo(*temporary).isSymLink()) {
            break; // not taken: it can't be made
        }
    }
    return false;
}

}

QByteArray NativeMetaTags::g_nsImageDataCache;
qint64 NativeMetaTags::g_cachedImage = 0;

bool NativeMetaTags::writeTo(const QString &path)
{
    if (!path.toLower().endsWith(u".mp3"_qs)) {
        return writeToM4A(path);
    }
    m_receipt = std::make_shared<TagReceipt>();
    const bool isWritten = writeToMP3(path);
    m_receipt->setState(isWritten ? TagReceipt::State::Written : TagReceipt::State::Failed);
    return isWritten;
}

bool NativeMetaTags::copyAVAssets(const QString &source, const QString &destination)
{
    readFrom(source);
    return writeToM4A(destination);
}

void NativeMetaTags::clearGarbage() { }

QString NativeMetaTags::normalizedTrackDiscNumber(const QString &number) const
{
    const QStringList parts = number.split(QLatin1Char('/'));
    return QString::number(parts.first().toInt()) + QLatin1Char('/')
        + QString::number(parts.last().toInt());
}

bool NativeMetaTags::writeToM4A(const QString &path)
{
    m_receipt = std::make_shared<TagReceipt>();
    m_receipt->setLost(lostFields());
    if (!isMetaDataAvailable()) {
        qDebug() << "!!!NMO METADATA";
        return false;
    }
    const QString templatePath = QMWidgets::App::bundleResourcePath() + u"dummy.m4a"_qs;
    if (!QFileInfo::exists(templatePath)) {
        qDebug() << "ERROR: \"dummy.m4a\" does not exist";
        m_receipt->setState(TagReceipt::State::Failed, u"\"dummy.m4a\" does not exist"_qs);
        return false;
    }
    return startExport(path, itemsFromTemplate(templatePath));
}

QList<AVMetadataItem> NativeMetaTags::itemsFromTemplate(const QString &templatePath) const
{
    QList<AVMetadataItem> items;
    const AVAsset asset = AVAsset::assetWithURL(QUrl::fromLocalFile(templatePath));
    for (const QString &format : asset.availableMetadataFormats()) {
        for (const AVMetadataItem &item : asset.metadataForFormat(format)) {
            const QVariant value = valueFor(item);
            if (value.isValid()) {
                AVMetadataItem copy = item.mutableCopy();
                copy.setValue(value);
                items.append(copy);
            }
        }
    }
    return items;
}

QVariant NativeMetaTags::valueFor(const AVMetadataItem &item) const
{
    struct Row
    {
        QString common; ///< compared with the common key, or
        QString key; ///< with the key
        std::function<QVariant()> value;
    };
    const auto text = [](const QString &source) { return [&source] { return textValue(source); }; };
    const auto pair = [this](const QString &source, int length) {
        return [this, &source, length]() -> QVariant {
            return source.isEmpty() ? QVariant() : numberPairValue(source, length);
        };
    };
    const QString none;
    const Row rows[] = {{u"artwork"_qs, none, [this] { return pictureValue(); }},
        {u"copyrights"_qs, none, text(m_strCopyright)}, {u"artist"_qs, none, text(m_strArtist)},
        {u"albumName"_qs, none, text(m_strAlbum)}, {u"title"_qs, none, text(m_strTitle)},
        {u"software"_qs, none, text(m_strEncodingApplication)},
        {none, u"@wrt"_qs, text(m_strComposer)}, {none, u"@cmt"_qs, text(m_strComments)},
        {none, u"trkn"_qs, pair(m_strTrackNumber, trackBytes)},
        {none, u"disk"_qs, pair(m_strDiscNumber, discBytes)}, {none, u"@day"_qs, text(m_strYear)},
        {none, u"tmpo"_qs, [this] { return m_nTempo < 0 ? QVariant() : QVariant(m_nTempo); }},
        {none, u"@gen"_qs, text(m_strGenre)}, {none, u"@grp"_qs, text(m_strGrouping)}};
    const QString commonKey = item.commonKey();
    const QString key = keyString(item.key());
    for (const Row &row : rows) {
        if (row.common.isNull() ? row.key == key : row.common == commonKey) {
            return row.value();
        }
    }
    return {};
}

QVariant NativeMetaTags::pictureValue() const
{
    if (m_imgAlbumArtwork.isNull()) {
        return {};
    }
    if (m_imgAlbumArtwork.cacheKey() == g_cachedImage) {
        return g_nsImageDataCache;
    }
    constexpr int maximumSide = 65'500; // what the JPEG library writes
    QImage picture = m_imgAlbumArtwork;
    if (qMax(picture.width(), picture.height()) > maximumSide) {
        picture = picture.scaled(
            maximumSide, maximumSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "JPEG", -1)) {
        return {};
    }
    if (g_nsImageDataCache != buffer.data()) {
        g_nsImageDataCache = buffer.data();
    }
    g_cachedImage = m_imgAlbumArtwork.cacheKey();
    return g_nsImageDataCache;
}

QByteArray NativeMetaTags::numberPairValue(const QString &number, int length) const
{
    const QStringList parts = normalizedTrackDiscNumber(number).split(QLatin1Char('/'));
    QByteArray bytes(length, '\0');
    qToBigEndian(static_cast<quint16>(parts.value(0).toInt()), bytes.data() + 2);
    qToBigEndian(static_cast<quint16>(parts.value(1).toInt()), bytes.data() + 4);
    return bytes;
}

/// What the record has and an M4A file of ours doesn't get.
QStringList NativeMetaTags::lostFields() const
{
    struct Field
    {
        const QString &value;
        const char16_t *name;
    };
    const Field fields[] = {{m_strAlbumArtist, u"album artist"}, {m_strCreator, u"creator"},
        {m_strLyricist, u"lyricist"}, {m_strSubTitle, u"subtitle"}, {m_strISRC, u"ISRC"},
        {m_strKeySignature, u"key"}, {m_strTimeSignature, u"time signature"},
        {m_strRecordedDate, u"recording date"}};
    QStringList lost;
    for (const Field &field : fields) {
        if (!field.value.isEmpty()) {
            lost.append(QString::fromUtf16(field.name));
        }
    }
    if (m_imgAlbumArtwork.isNull() ? m_pictureUnreadable : !pictureValue().isValid()) {
        lost.append(u"picture"_qs);
    }
    return lost;
}

bool NativeMetaTags::startExport(const QString &path, const QList<AVMetadataItem> &items)
{
    const QUrl url = QUrl::fromLocalFile(path);
    AVAssetExportSession session(AVAsset::assetWithURL(url), AVAssetExportPresetPassthrough);
    QString temporary;
    if (!reserveBeside(path, &session, &temporary)) {
        qDebug() << "No temporary file can be made beside" << path << session.error();
        m_receipt->setState(TagReceipt::State::Failed, session.error());
        return false;
    }
    session.setOutputFileType(AVFileTypeAppleM4A);
    session.setMetadata(items);
    m_receipt->setState(TagReceipt::State::Pending);

    // Runs on the export's thread, perhaps after this object is gone: it holds what it needs.
    session.exportAsynchronouslyWithCompletionHandler(
        [session, url, temporary = QUrl::fromLocalFile(temporary), receipt = m_receipt] {
            QString error = session.error();
            bool isWritten = session.status() == AVAssetExportSessionStatusCompleted;
            if (isWritten) {
                const NSFileManager &files = NSFileManager::defaultManager();
                isWritten = files.replaceItemAtURL(url, temporary, &error);
                if (!isWritten && !files.removeItemAtURL(temporary)) {
                    qDebug() << "It stays behind:" << temporary;
                }
            }
            if (!isWritten) {
                qDebug() << "The tags can't be written:" << url << error;
            }
            receipt->setState(
                isWritten ? TagReceipt::State::Written : TagReceipt::State::Failed, error);
        });
    return true;
}

}
