#include "FreeName.h"

#include "Literals.h"
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int maxNameBytes = 255;

QString fittingName(QString base, const QString &tail)
{
    const int room = maxNameBytes - static_cast<int>(QFile::encodeName(tail).size());
    while (!base.isEmpty() && QFile::encodeName(base).size() > room) {
        base.chop(base.at(base.size() - 1).isLowSurrogate() && base.size() > 1 ? 2 : 1);
    }
    return base + tail;
}

bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

}

QString freeName(const QString &folder, const QString &base, const QString &extension)
{
    QString path = folder + fittingName(base, extension);
    for (int n = 2; isTaken(path); ++n) {
        path = folder + fittingName(base, u" "_qs + QString::number(n) + extension);
    }
    return path;
}
