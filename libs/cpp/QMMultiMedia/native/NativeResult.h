#pragma once

#include <QString>

namespace QMMultiMedia {

/// The message for a failed operation: "status : text ", and the status as a four-character code
/// between single quotes if all its bytes are printable.
QString nativeResultMessage(int status, const char *text);

}
