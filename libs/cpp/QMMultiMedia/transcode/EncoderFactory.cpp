#include "EncoderFactory.h"

namespace QMMultiMedia {

EncoderFactory::~EncoderFactory() = default;

EncoderBase *EncoderFactory::encoder(const QString & /*name*/)
{
    return nullptr;
}

}
