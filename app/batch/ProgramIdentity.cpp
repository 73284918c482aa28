#include "ProgramIdentity.h"

#include "Literals.h"
#include <QCoreApplication>
#include <QFile>

QString programOrganisation()
{
    return u"Velmora"_qs;
}

QString programName()
{
    return u"Calderin M4A"_qs;
}

void initProgramIdentity()
{
    QCoreApplication::setApplicationVersion(u"1.0.2"_qs);
    QCoreApplication::setOrganizationDomain(u"velmora.example"_qs);
    const QByteArray own = QFile::encodeName(QCoreApplication::applicationDirPath());
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", path.isEmpty() ? own : own + ":" + path);
}
