#include "BaseOutput.h"

#include <QDebug>

namespace QMMultiMedia {

int BaseOutput::write(const MTools::Handle<AudioFloatBuffer> &buffer, int n)
{
    Q_ASSERT(n <= buffer->numFrames());
    return write(buffer->data(), n * buffer->frameSize());
}

bool BaseOutput::write(const MTools::Handle<RawBuffer> &buffer, int n)
{
    Q_ASSERT(n <= buffer->size());
    return write(buffer->data(), n);
}

bool BaseOutput::setFragmentSize(int size)
{
    m_nFragmentSize = size;
    return true;
}

int BaseOutput::fragmentSize() const
{
    return m_nFragmentSize;
}

bool BaseOutput::test()
{
    qDebug() << "Test";
    return true;
}

}
