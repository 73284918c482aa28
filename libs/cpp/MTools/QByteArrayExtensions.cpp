#include "QByteArrayExtensions.h"

#include <cstring>

namespace MTools {

QString QByteArrayExtensions::arrToString(const char *field, int size)
{
    if (field == nullptr || size < 1) {
        return {};
    }
    const std::size_t length = strnlen(field, static_cast<std::size_t>(size));
    return QString::fromLocal8Bit(field, static_cast<int>(length));
}

}
