#include "Production.h"

#include "ProductionParameters.h"

namespace QMMultiMedia {

float Production::fps()
{
    return ProductionParameters::instance()->fps();
}

int Production::sampleRate()
{
    return ProductionParameters::instance()->sampleRate();
}

int Production::bitsPerSample()
{
    return ProductionParameters::instance()->bitsPerSample();
}

QString Production::projectName()
{
    return ProductionParameters::instance()->projectName();
}

}
