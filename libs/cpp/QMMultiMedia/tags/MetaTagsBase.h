#pragma once

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>

namespace QMMultiMedia {

/// The tag record of one audio file, with everything about tags that needs no help from the
/// platform: picture decoding, ID3v2 writing, and the tagging of MP3 files.
///
/// Belongs to one thread.
class MetaTagsBase : public QObject
{
    Q_OBJECT

public:
    explicit MetaTagsBase(QObject *parent);
    ~MetaTagsBase() override = default;

    /// Fills the record from a file; what it finds is told by isMetaDataAvailable().
    virtual bool readFrom(const QString &path) = 0;
    /// Writes the record into a file; false if that can't be begun.
    virtual bool writeTo(const QString &path) = 0;

    /// Empties the record; the genre tables stay.
    void reset();
    void setEncodingApplication(const QString &application);

    QString artist() const { return m_strArtist; }
    QString album() const { return m_strAlbum; }
    /// Beats per minute; negative if there is none.
    int tempo() const { return m_nTempo; }
    QString keySignature() const { return m_strKeySignature; }
    QString timeSignature() const { return m_strTimeSignature; }
    /// Usually number, slash, total.
    QString trackNumber() const { return m_strTrackNumber; }
    /// Usually number, slash, total.
    QString discNumber() const { return m_strDiscNumber; }
    QString year() const { return m_strYear; }
    QString composer() const { return m_strComposer; }
    QString lyricist() const { return m_strLyricist; }
    QString genre() const { return m_strGenre; }
    QString title() const { return m_strTitle; }
    QString recordedDate() const { return m_strRecordedDate; }
    QString comments() const { return m_strComments; }
    QString copyright() const { return m_strCopyright; }
    QString sourceEncoder() const { return m_strSourceEncoder; }
    QString encodingApplication() const { return m_strEncodingApplication; }
    QString nominalBitRate() const { return m_strNominalBitRate; }
    QString channelLayout() const { return m_strChannelLayout; }
    QString approximateDurationInSeconds() const { return m_strApproximateDurationInSeconds; }
    QString sourceBitDepth() const { return m_strSourceBitDepth; }
    QString isrc() const { return m_strISRC; }
    QString subTitle() const { return m_strSubTitle; }
    QImage albumArtwork() const { return m_imgAlbumArtwork; }

    /// Whether any field, the tempo or the picture is set; path and picture format don't count.
    bool isMetaDataAvailable() const;

    /// Removes the unsynchronisation of ID3: every 0x00 that follows a 0xFF of the input.
    QByteArray decodeMp3Pic(const QByteArray &data) const;
    /// Decodes a picture of any raster format; with the flag its unsynchronisation is removed
    /// first, unless only the bytes as they are can be decoded. A null image if it can't be decoded
    /// or claims more than 100 megapixels.
    QImage byteArrayToImage(const QByteArray &data, bool bUnsynchronised) const;

    /// One frame in binary form: header, the byte 0x00, the data. The caller frees it with free();
    /// *pnSize receives its bytes. The id has four characters.
    char *id3v2Frame(const char *id, const char *data, unsigned long length, int *pnSize) const;
    /// One frame in text form: header, the data. Else as id3v2Frame.
    char *id3v3Frame(const char *id, const char *data, unsigned long length, int *pnSize) const;
    /// Appends a frame in binary form to a malloc'ed block of *pnSize bytes; returns the block,
    /// which may have moved, and adds the frame's size to *pnSize.
    char *addId3v2Frame(
        char *buffer, const char *id, const char *data, unsigned long length, int *pnSize) const;
    /// Appends a frame in text form. Else as addId3v2Frame.
    char *addId3v3Frame(
        char *buffer, const char *id, const char *data, unsigned long length, int *pnSize) const;
    /// The complete ID3v2.4 tag of the record as a malloc'ed block that the caller owns; *pnSize
    /// receives its bytes.
    char *saveId3v2(int *pnSize) const;
    /// Puts the record's tag in front of an MP3 file; a tag that it has stays behind it. The file
    /// is replaced in one step. True also if it can't be opened for reading, and then nothing is
    /// changed; false if the new file can't be written, and then the old one is as it was.
    bool writeToMP3(const QString &path) const;

    /// Logs every member.
    void dump() const;

protected:
    QString m_strInputFile;
    QString m_strArtist;
    QString m_strAlbum;
    QString m_strAlbumArtist;
    qint32 m_nTempo = -1;
    QString m_strKeySignature;
    QString m_strCreator;
    QString m_strTimeSignature;
    QString m_strTrackNumber;
    QString m_strDiscNumber;
    QString m_strYear;
    QString m_strComposer;
    QString m_strLyricist;
    QString m_strGenre;
    QString m_strGrouping;
    QString m_strTitle;
    QString m_strRecordedDate;
    QString m_strComments;
    QString m_strCopyright;
    QString m_strSourceEncoder;
    QString m_strEncodingApplication;
    QString m_strNominalBitRate;
    QString m_strChannelLayout;
    QString m_strApproximateDurationInSeconds;
    QString m_strSourceBitDepth;
    QString m_strISRC;
    QString m_strSubTitle;
    QImage m_imgAlbumArtwork;
    QString m_strPicType; ///< "PNG" or "JPEG", as QImage::save takes it
    QStringList m_lstGenres; ///< by ID3v1 number, 0 to 125
    QStringList m_lstVideoGenres;

private:
    Q_DISABLE_COPY(MetaTagsBase)
};

}
