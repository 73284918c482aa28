#include "Variant.h"

#include <QCoreApplication>

Variant currentVariant()
{
    const QString name = QCoreApplication::applicationName().toLower();
    if (name.contains(QLatin1String("wav"))) {
        return Variant::Wav;
    }
    if (name.contains(QLatin1String("m4a"))) {
        return Variant::M4a;
    }
    return name.contains(QLatin1String("mp3")) ? Variant::Mp3 : Variant::Unknown;
}
