#include "CommonStyle.h"

#include "App.h"
#include "Literals.h"

namespace QMWidgets {

CommonStyle::CommonStyle(QObject *parent)
    : QObject(parent)
{
}

QString CommonStyle::cssStyle() const
{
    return u""_qs;
}

int CommonStyle::sdp(float fDivisor)
{
    return static_cast<int>(static_cast<float>(App::smallestDimention()) / fDivisor);
}

} // namespace QMWidgets
