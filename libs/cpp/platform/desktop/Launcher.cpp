#include "Launcher.h"

#include "Bus.h"
#include "Literals.h"
#include <QDBusMessage>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

namespace Desktop {

namespace {

QString autostartFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + u"/autostart/"_qs + desktopEntryName();
}

// A program's path as one quoted argument of an Exec line: first the quoting of the argument, then
// the escaping of the value.
QString execValue(const QString &strProgram)
{
    QString str = strProgram;
    str.replace(QRegularExpression(u"([\"`$\\\\])"_qs), u"\\\\1"_qs);
    str.replace(u'%', u"%%"_qs);
    str = u'"' + str + u'"';
    return str.replace(u'\\', u"\\\\"_qs);
}

QString line(const char *key, const QString &strValue)
{
    return QString::fromLatin1(key) + u'=' + strValue + u'\n';
}

}

QString applicationId()
{
    QString strId = QGuiApplication::desktopFileName();
    const QString strSuffix = u".desktop"_qs;
    if (strId.endsWith(strSuffix)) {
        strId.chop(strSuffix.size());
    }
    if (!strId.isEmpty()) {
        return strId;
    }
    const QStringList lstDomain = QCoreApplication::organizationDomain().split(u'.');
    for (const QString &strPart : lstDomain) {
        strId.prepend(strPart + u'.');
    }
    strId += QCoreApplication::applicationName();
    return strId.remove(QRegularExpression(u"[^A-Za-z0-9_.-]"_qs));
}

QString desktopEntryName()
{
    return applicationId() + u".desktop"_qs;
}

void setBadge(int nNumber)
{
    auto message = QDBusMessage::createSignal(u"/com/canonical/unity/launcherentry/calderin"_qs,
        u"com.canonical.Unity.LauncherEntry"_qs, u"Update"_qs);
    const QVariantMap properties {{u"count"_qs, static_cast<qlonglong>(qMax(nNumber, 0))},
        {u"count-visible"_qs, nNumber >= 0}};
    message << u"application://"_qs + desktopEntryName() << properties;
    Bus::session()->send(message);
}

bool isAutostarted()
{
    QFile file(autostartFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    constexpr qint64 limitBytes = 65536;
    const QStringList lstLines = QString::fromUtf8(file.read(limitBytes)).split(u'\n');
    return lstLines.contains(u"Exec="_qs + execValue(QCoreApplication::applicationFilePath()))
        && !lstLines.contains(u"Hidden=true"_qs)
        && !lstLines.contains(u"X-GNOME-Autostart-enabled=false"_qs);
}

bool setAutostarted(bool bAutostart)
{
    const QString strFile = autostartFile();
    bool bDone = !QFile::exists(strFile) || QFile::remove(strFile);
    if (bAutostart) {
        const QString strText = u"[Desktop Entry]\n"_qs + line("Type", u"Application"_qs)
            + line("Name", QCoreApplication::applicationName())
            + line("Exec", execValue(QCoreApplication::applicationFilePath()))
            + line("Terminal", u"false"_qs);
        const QByteArray text = strText.toUtf8();
        QDir().mkpath(QFileInfo(strFile).absolutePath());
        QSaveFile file(strFile);
        bDone = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
    }
    if (!bDone) {
        qWarning().noquote() << "Can not change the autostart entry:" << strFile;
    }
    return bDone;
}

} // namespace Desktop
