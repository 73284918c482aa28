#include "XaniImageData.h"

namespace MGraphX {

QString XaniImageData::baseName() const
{
    return m_strName.section(QLatin1Char('.'), 0, 0);
}

}
