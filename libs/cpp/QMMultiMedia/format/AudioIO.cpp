#include "AudioIO.h"

#include <QDebug>

namespace QMMultiMedia {

const Settings &AudioIO::settings() const
{
    return m_settings;
}

void AudioIO::setSettings(const Settings &settings)
{
    m_settings = settings;
}

void AudioIO::dump() const
{
    qDebug() << "AudioIO";
}

const char *AudioIO::name() const
{
    return "AudioIO";
}

}
