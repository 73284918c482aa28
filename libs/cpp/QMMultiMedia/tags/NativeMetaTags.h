#pragma once

#include "AVMetadataItem.h"
#include "MetaTagsBase.h"
#include "TagReceipt.h"

#include <memory>
#include <QVariant>

struct OpaqueAudioFileID;
using AudioFileID = OpaqueAudioFileID *;

namespace QMMultiMedia {

/// The tag record with its reader, for any file that the platform opens, and its writer, for M4A
/// and MP3 files.
class NativeMetaTags : public MetaTagsBase
{
    Q_OBJECT

public:
    explicit NativeMetaTags(QObject *parent = nullptr);

    /// Fills the record from a file's metadata; always true.
    bool readFrom(const QString &path) override;
    /// Writes the record into an M4A file, or into an MP3 file if the path ends in ".mp3".
    bool writeTo(const QString &path) override;

    /// Adds to the record what the file's metadata items say.
    void readFromAV(const QString &path);
    /// The second reader, through the audio-file layer: its info dictionary and picture. False if
    /// the dictionary can't be had.
    bool readFromCO(const QString &path);

    /// Starts the tagging of an M4A file and returns; the file gets its tags, in one step, when the
    /// export behind it is over (PendingExports, receipt()). False if there is nothing to write,
    /// the template is missing or no temporary file can be made beside the file.
    bool writeToM4A(const QString &path);
    /// Reads the tags of the source and starts the tagging of the destination.
    bool copyAVAssets(const QString &source, const QString &destination);
    /// "a/b" of "number/total" or of a lone number, which is its own total; 0 for what isn't one.
    QString normalizedTrackDiscNumber(const QString &number) const;
    void clearGarbage();

    /// The receipt of the last writeTo() or writeToM4A(); null before the first.
    std::shared_ptr<const TagReceipt> receipt() const { return m_receipt; }

    /// A key as text: a number as its four-character code, with "@" for the copyright sign.
    QString keyString(const QVariant &key) const;

    bool isKeyArtwork(const QStringList &keys) const;
    bool isKeyAlbumName(const QStringList &keys) const;
    bool isKeyTitle(const QStringList &keys) const;
    bool isKeyCreator(const QStringList &keys) const;
    bool isKeyArtist(const QStringList &keys) const;
    bool isKeyEncodingApplication(const QStringList &keys) const;
    bool isKeyAlbumArtist(const QStringList &keys) const;
    bool isKeyComposer(const QStringList &keys) const;
    bool isKeyCopyrights(const QStringList &keys) const;
    bool isKeyComments(const QStringList &keys) const;
    bool isKeyYear(const QStringList &keys) const;
    bool isKeyTempo(const QStringList &keys) const;
    bool isKeyTrackNumber(const QStringList &keys) const;
    bool isKeyDiskNumber(const QStringList &keys) const;
    bool isKeyGrouping(const QStringList &keys) const;
    bool isKeyGenre(const QStringList &keys) const;

    /// A text with its UTF-16 restored, where that was taken for 8-bit bytes in swapped order.
    QString nsToQString(const QString &text) const;
    /// The text at a key of a dictionary; empty if there is none.
    QString getData(const QVariantMap &dictionary, const QString &key) const;
    /// The picture of a file's raw ID3 tag, as it stands there; null if there is none.
    QByteArray imageDataFromID3Tag(AudioFileID file) const;
    /// True for status 0; else emits error() with the status and the operation's text.
    bool checkResult(int status, const char *operation);

signals:
    void error(const QString &message);

private:
    Q_DISABLE_COPY(NativeMetaTags)

    void takeItem(const AVMetadataItem &item);
    void takePicture(const AVMetadataItem &item);
    void takeGenre(const AVMetadataItem &item);
    void takeNumberPair(const AVMetadataItem &item, int length, QString *field) const;
    void takeInfo(const QVariantMap &info);
    void readRawTag(AudioFileID file);
    bool readPicture(AudioFileID file);
    /// The value that the record has for an item of the template; invalid if it has none.
    QVariant valueFor(const AVMetadataItem &item) const;
    QVariant pictureValue() const;
    QByteArray numberPairValue(const QString &number, int length) const;
    QList<AVMetadataItem> itemsFromTemplate(const QString &templatePath) const;
    QStringList lostFields() const;
    bool startExport(const QString &path, const QList<AVMetadataItem> &items);

    /// The last picture that was encoded, shared by all objects: a batch of files with one cover
    /// holds it once. Only used on the worker's thread.
    static QByteArray g_nsImageDataCache;
    static qint64 g_cachedImage; ///< QImage::cacheKey() of what it was made of

    std::shared_ptr<TagReceipt> m_receipt;
    bool m_pictureUnreadable = false;
};

}
