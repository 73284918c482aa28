#include "ConverterResources.h"

#include "Literals.h"

#include <QFile>

void initConverterResources()
{
    Q_INIT_RESOURCE(converter);
}

QString converterStyleSheet()
{
    initConverterResources();
    QFile sheet(u":/style/calderin.qss"_qs);
    return sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
}
