#include "FileManager.h"

#include "Bus.h"
#include "Literals.h"
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace Desktop {

namespace {

bool openFolderOf(const QString &strPath)
{
    const QFileInfo info(strPath);
    const QString strFolder = info.isDir() ? info.absoluteFilePath() : info.absolutePath();
    const bool bOpened = QDesktopServices::openUrl(QUrl::fromLocalFile(strFolder));
    if (!bOpened) {
        qWarning().noquote() << "Can not show in a file manager:" << strPath;
    }
    return bOpened;
}

}

bool showInFileManager(const QString &strPath)
{
    const QString strClean = QDir::cleanPath(QFileInfo(strPath).absoluteFilePath());
    if (strPath.isEmpty() || !QFileInfo::exists(strClean)) {
        qWarning().noquote() << "Can not show what doesn't exist:" << strPath;
        return false;
    }
    if (!Bus::session()->isPossible()) {
        return openFolderOf(strClean);
    }
    auto message = QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_qs,
        u"/org/freedesktop/FileManager1"_qs, u"org.freedesktop.FileManager1"_qs, u"ShowItems"_qs);
    message << QStringList {QString::fromLatin1(QUrl::fromLocalFile(strClean).toEncoded())}
            << QString();
    const auto answered = [strClean](const QDBusMessage &answer) {
        // One that is merely slow will still show it; a second window would be too much.
        const bool bSlow = answer.errorName() == QDBusError::errorString(QDBusError::NoReply)
            || answer.errorName() == QDBusError::errorString(QDBusError::Timeout);
        if (answer.type() != QDBusMessage::ReplyMessage) {
            logBusFailure("Showing an item in the file manager", answer);
            if (!bSlow) {
                openFolderOf(strClean);
            }
        }
    };
    Bus::session()->call(message, answered, Bus::startLimitMs);
    return true;
}

bool moveToTrash(const QString &strPath)
{
    // Without this folder the trash would be made in the current one.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const bool bMoved = !strPath.isEmpty() && QFile::moveToTrash(strPath);
    if (!bMoved) {
        qWarning().noquote() << "Can not move to the trash:" << strPath;
    }
    return bMoved;
}

} // namespace Desktop
