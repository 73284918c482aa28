#pragma once

#include <QString>

namespace MTools {

/// Counted character fields of files.
class QByteArrayExtensions
{
public:
    /// The field's first `size` bytes in the local 8-bit encoding, up to the first zero byte.
    ///
    /// No zero byte is needed; a null field or a size below 1 gives an empty string.
    static QString arrToString(const char *field, int size);
};

}
