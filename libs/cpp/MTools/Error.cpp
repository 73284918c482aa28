#include "Error.h"

namespace MTools {

Error::Error(const QString &message)
    : m_strMessage(message)
    , m_utf8(message.toUtf8())
{
}

const char *Error::what() const noexcept
{
    return m_utf8.constData();
}

}
