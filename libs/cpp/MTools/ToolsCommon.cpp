#include "ToolsCommon.h"

#include "Literals.h"

namespace MTools {

QString ToolsCommon::normalizePath(const QString &path)
{
    QString result = path + u'/';
    // What is removed is the folder ".": one separator stays, or two names would run together.
    const QString separator = u"/"_qs;
    for (const QString &surplus : {u"/./"_qs, u"//"_qs}) {
        while (result.contains(surplus)) {
            result.replace(surplus, separator);
        }
    }
    result.chop(1);
    return result;
}

}
