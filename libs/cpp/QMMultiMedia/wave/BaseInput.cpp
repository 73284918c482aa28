#include "BaseInput.h"

namespace QMMultiMedia {

short BaseInput::fmt() const
{
    return settings().fmt();
}

const char *BaseInput::name() const
{
    return "BaseInput";
}

}
