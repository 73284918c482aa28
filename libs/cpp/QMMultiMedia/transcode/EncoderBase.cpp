#include "EncoderBase.h"

#include <QDebug>
#include <utility>

namespace QMMultiMedia {

EncoderBase::EncoderBase(QObject *parent)
    : QObject(parent)
{
}

int EncoderBase::status() const
{
    return m_nStatus;
}

void EncoderBase::setMetaInfoFile(const QString &file)
{
    m_strMetaInfoFile = file;
}

void EncoderBase::setFile(const QString &file)
{
    m_strFile = file;
}

void EncoderBase::setFormat(MAudioFormat format)
{
    m_format = std::move(format);
}

void EncoderBase::setCopyMetaTags(bool copy)
{
    m_copyMetaTags = copy;
}

void EncoderBase::write(float * /*samples*/, long long /*count*/)
{
    if (m_nStatus < 0) {
        qDebug() << "Error Status:" << m_nStatus;
    }
}

void EncoderBase::close() { }

}
