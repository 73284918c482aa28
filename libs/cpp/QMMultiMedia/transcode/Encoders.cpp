#include "Encoders.h"

namespace QMMultiMedia {

EncoderFactory *Encoders::sm_pFactory = nullptr;

void Encoders::setFactory(EncoderFactory *factory)
{
    sm_pFactory = factory;
}

EncoderFactory *Encoders::factory()
{
    return sm_pFactory;
}

}
