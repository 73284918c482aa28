#include "FileInfo.h"

#include <QDebug>

namespace QMMultiMedia {

FileInfo &FileInfo::operator=(const FileInfo &other) // NOLINT(bugprone-unhandled-self-assignment)
{
    m_strComment = other.m_strComment;
    m_nDataOffset = other.m_nDataOffset;
    m_nNumSamples = other.m_nNumSamples;
    m_nFileSize = other.m_nFileSize;
    m_nDataSize = other.m_nDataSize;
    m_nSizeOffset = other.m_nSizeOffset;
    m_nCompression = other.m_nCompression;
    return *this;
}

void FileInfo::dump() const
{
    qDebug() << "----- File Info Begin ------";
    qDebug().nospace().noquote() << "URI Path = " << m_url.path();
    qDebug().nospace().noquote() << "Comment = " << m_strComment;
    qDebug().nospace() << "Data Offset = " << m_nDataOffset;
    qDebug().nospace() << "Number Of Samples = " << m_nNumSamples;
    qDebug().nospace() << "File Size = " << m_nFileSize;
    qDebug().nospace() << "Data Size = " << m_nDataSize;
    qDebug().nospace() << "Size Offset = " << m_nSizeOffset;
    qDebug().nospace() << "Compression = " << m_nCompression;
    qDebug() << "----- File Info End ------";
}

}
