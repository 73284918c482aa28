#include "MAudioFormat.h"

#include "Literals.h"
#include <algorithm>
#include <QStringList>

namespace QMMultiMedia {

namespace {

const QStringList &codecNames()
{
    static const QStringList names {u"WAV"_qs, u"AIFF"_qs, u"MPEG4ACC"_qs, u"CAF"_qs, u"FLAC"_qs};
    return names;
}

}

QString MAudioFormat::codecName(int index)
{
    return codecNames().value(index);
}

int MAudioFormat::codecIndex(const QString &name)
{
    return std::max(0, codecNames().indexOf(name));
}

int MAudioFormat::platformQuality(int qualityClass)
{
    switch (qualityClass) {
    case 0:
        return 0;
    case 1:
        return 32;
    case 2:
        return 64;
    case 4:
        return 127;
    default:
        return 96;
    }
}

int MAudioFormat::qualityClass(int platformQuality)
{
    if (platformQuality >= 85 && platformQuality <= 127) {
        return 4;
    }
    return platformQuality >= 23 && platformQuality <= 84 ? 2 : 0;
}

}
