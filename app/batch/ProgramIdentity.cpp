#include "ProgramIdentity.h"

#include "Literals.h"
#include <clocale>
#include <cstring>
#include <langinfo.h>
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
    QCoreApplication::setApplicationVersion(QStringLiteral(CALDERIN_VERSION));
    QCoreApplication::setOrganizationDomain(u"velmora.example"_qs);
    const QByteArray own = QFile::encodeName(QCoreApplication::applicationDirPath());
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", path.isEmpty() ? own : own + ":" + path);
}

void ensureUtf8FileNames()
{
    if (std::setlocale(LC_ALL, "") != nullptr
        && std::strcmp(::nl_langinfo(CODESET), "UTF-8") == 0) {
        return;
    }
    // LC_ALL rules over the rest; what it said for the other categories stays.
    const QByteArray all = qgetenv("LC_ALL");
    if (!all.isEmpty()) {
        qunsetenv("LC_ALL");
        qputenv("LANG", all);
    }
    qputenv("LC_CTYPE", "C.UTF-8");
}
