#include "NativeResult.h"

#include "Literals.h"

namespace QMMultiMedia {

QString nativeResultMessage(int status, const char *text)
{
    QString message = u"%1 : %2 "_qs.arg(QString::number(status), QString::fromUtf8(text));
    QString code;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const auto byte = static_cast<unsigned char>(static_cast<unsigned>(status) >> shift);
        if (byte < 0x20 || byte > 0x7E) {
            return message;
        }
        code += QLatin1Char(static_cast<char>(byte));
    }
    return message + u"'"_qs + code + u"'"_qs;
}

}
