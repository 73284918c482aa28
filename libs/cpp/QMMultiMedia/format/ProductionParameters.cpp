#include "ProductionParameters.h"

#include <QDebug>

namespace QMMultiMedia {

ProductionParameters *ProductionParameters::instance()
{
    // Outlives every static object that may still ask for it at exit.
    static auto *const parameters = new ProductionParameters;
    return parameters;
}

void ProductionParameters::dump() const
{
    qDebug() << "---Production Parameters Begin ---";
    qDebug() << "Fps:" << m_fps;
    qDebug() << "SampleRate:" << m_nSampleRate;
    qDebug() << "BitsPerSample:" << m_nBitsPerSample;
    qDebug() << "ProjectName:" << m_strProjectName;
    qDebug() << "---Production Parameters End ---";
}

}
