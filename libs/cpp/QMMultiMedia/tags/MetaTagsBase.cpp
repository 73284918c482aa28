#include "MetaTagsBase.h"

#include "GenreTable.h"
#include "Literals.h"

#include <QBuffer>
#include <QDebug>
#include <QImageReader>

namespace QMMultiMedia {

namespace {

constexpr qint64 maximumPixels = 100'000'000;

/// Decodes a picture; one that claims more pixels than the limit isn't even begun. Vector formats
/// are left out: they are programs more than pictures, and can name other files.
QImage decodedPicture(const QByteArray &data)
{
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > maximumPixels
        || reader.format().startsWith("svg")) {
        return {};
    }
    QImage image;
    image.loadFromData(data);
    return image;
}

}

MetaTagsBase::MetaTagsBase(QObject *parent)
    : QObject(parent)
    , m_lstGenres(id3Genres())
    , m_lstVideoGenres(videoGenres())
{
}

void MetaTagsBase::reset()
{
    const QString empty = u""_qs;
    for (QString *text : {&m_strInputFile, &m_strArtist, &m_strAlbum, &m_strAlbumArtist,
             &m_strKeySignature, &m_strCreator, &m_strTimeSignature, &m_strTrackNumber,
             &m_strDiscNumber, &m_strYear, &m_strComposer, &m_strLyricist, &m_strGenre,
             &m_strGrouping, &m_strTitle, &m_strRecordedDate, &m_strComments, &m_strCopyright,
             &m_strSourceEncoder, &m_strEncodingApplication, &m_strNominalBitRate,
             &m_strChannelLayout, &m_strApproximateDurationInSeconds, &m_strSourceBitDepth,
             &m_strISRC, &m_strSubTitle, &m_strPicType}) {
        *text = empty;
    }
    m_nTempo = -1;
    m_imgAlbumArtwork = QImage();
}

void MetaTagsBase::setEncodingApplication(const QString &application)
{
    m_strEncodingApplication = application;
}

bool MetaTagsBase::isMetaDataAvailable() const
{
    for (const QString *text :
        {&m_strArtist, &m_strAlbum, &m_strAlbumArtist, &m_strKeySignature, &m_strCreator,
            &m_strTimeSignature, &m_strTrackNumber, &m_strDiscNumber, &m_strYear, &m_strComposer,
            &m_strLyricist, &m_strGenre, &m_strGrouping, &m_strTitle, &m_strRecordedDate,
            &m_strComments, &m_strCopyright, &m_strSourceEncoder, &m_strEncodingApplication,
            &m_strNominalBitRate, &m_strChannelLayout, &m_strApproximateDurationInSeconds,
            &m_strSourceBitDepth, &m_strISRC, &m_strSubTitle}) {
        if (!text->isEmpty()) {
            return true;
        }
    }
    return m_nTempo >= 0 || !m_imgAlbumArtwork.isNull();
}

QByteArray MetaTagsBase::decodeMp3Pic(const QByteArray &data) const
{
    QByteArray result(data.size(), Qt::Uninitialized);
    char *out = result.data();
    const char *in = data.constData();
    for (int i = 0; i < data.size(); ++i) {
        if (i == 0 || in[i] != '\0' || in[i - 1] != '\xFF') {
            *out++ = in[i];
        }
    }
    result.truncate(static_cast<int>(out - result.constData()));
    return result;
}

QImage MetaTagsBase::byteArrayToImage(const QByteArray &data, bool bUnsynchronised) const
{
    if (bUnsynchronised) {
        const QByteArray plain = decodeMp3Pic(data);
        if (plain.size() < data.size()) {
            QImage image = decodedPicture(plain);
            if (!image.isNull()) {
                return image;
            }
        }
    }
    return decodedPicture(data);
}

void MetaTagsBase::dump() const
{
    qDebug() << "Begin";
    const auto line = [](const char *label, const auto &value) { qDebug() << label << value; };
    line("m_strInputFile:", m_strInputFile);
    line("m_strTitle: ", m_strTitle);
    line("m_strCreator: ", m_strCreator);
    line("m_strArtist: ", m_strArtist);
    line("m_strAlbum: ", m_strAlbum);
    line("m_strAlbumArtist: ", m_strAlbumArtist);
    line("m_nTempo: ", m_nTempo);
    line("m_strKeySignature: ", m_strKeySignature);
    line("m_strTimeSignature: ", m_strTimeSignature);
    line("m_strTrackNumber: ", m_strTrackNumber);
    line("m_strDiscNumber: ", m_strDiscNumber);
    line("m_strYear: ", m_strYear);
    line("m_strComposer: ", m_strComposer);
    line("m_strLyricist: ", m_strLyricist);
    line("m_strGenre: ", m_strGenre);
    line("m_strGrouping: ", m_strGrouping);
    line("m_strRecordedDate: ", m_strRecordedDate);
    line("m_strComments: ", m_strComments);
    line("m_strCopyright: ", m_strCopyright);
    line("m_strSourceEncoder: ", m_strSourceEncoder);
    line("m_strEncodingApplication: ", m_strEncodingApplication);
    line("m_strNominalBitRate: ", m_strNominalBitRate);
    line("m_strChannelLayout: ", m_strChannelLayout);
    line("m_strApproximateDurationInSeconds: ", m_strApproximateDurationInSeconds);
    line("m_strSourceBitDepth: ", m_strSourceBitDepth);
    line("m_strISRC: ", m_strISRC);
    line("m_strPicType: ", m_strPicType);
    line("m_strSubTitle: ", m_strSubTitle);
    qDebug() << "End";
}

}
