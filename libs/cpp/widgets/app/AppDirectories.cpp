// Where an App keeps its files.
#include "App.h"

#include "Literals.h"
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace QMWidgets {

namespace {

QString prepared(const QString &strDirectory, bool bCreate)
{
    if (bCreate) {
        App::ensureDirExists(strDirectory);
    }
    return strDirectory;
}

QString belowHome(const QString &strPlace, bool bCreate)
{
    return prepared(
        QDir::homePath() + strPlace + QCoreApplication::applicationName() + u'/', bCreate);
}

QString standardLocation(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::standardLocations(location).value(0) + u'/';
}

bool copyContents(QIODevice &source, QIODevice &target)
{
    constexpr int blockBytes = 1 << 20;
    QByteArray block(blockBytes, Qt::Uninitialized);
    for (;;) {
        const qint64 nRead = source.read(block.data(), block.size());
        if (nRead <= 0) {
            return nRead == 0;
        }
        if (target.write(block.constData(), nRead) != nRead) {
            return false;
        }
    }
}

}

QString App::supportDirectory(bool b)
{
    return belowHome(u"/Library/Application Support/"_qs, b);
}

QString App::workDirectory(bool b)
{
    return belowHome(u"/Library/"_qs, b);
}

QString App::cachesDirectory(bool b)
{
    return belowHome(u"/Library/Caches/"_qs, b);
}

QString App::dataDirectory(bool b)
{
    return prepared(standardLocation(QStandardPaths::DataLocation), b);
}

QString App::documentsDirectory(bool b)
{
    return prepared(standardLocation(QStandardPaths::DocumentsLocation) + organizationName() + u'/'
            + applicationName() + u'/',
        b);
}

QString App::picturesDirectory(bool b)
{
    return belowHome(u"/Pictures/"_qs, b);
}

QString App::musicDirectory(bool b)
{
    return belowHome(u"/Music/"_qs, b);
}

QString App::moviesDirectory(bool b)
{
    return belowHome(u"/Movies/"_qs, b);
}

QString App::downloadsDirectory(bool b)
{
    return belowHome(u"/Downloads/"_qs, b);
}

void App::ensureDirExists(const QString &strDir)
{
    if (!strDir.isEmpty()) {
        QDir().mkpath(strDir);
    }
}

void App::printAppDirectories()
{
    qDebug().noquote() << "supportDirectory:" << supportDirectory(false);
    qDebug().noquote() << "dataDirectory:" << dataDirectory(false);
    qDebug().noquote() << "cachesDirectory:" << cachesDirectory(false);
    qDebug().noquote() << "documentsDirectory:" << documentsDirectory(false);
    qDebug().noquote() << "workDirectory:" << workDirectory(false);
    qDebug().noquote() << "picturesDirectory:" << picturesDirectory(false);
    qDebug().noquote() << "musicDirectory:" << musicDirectory(false);
    qDebug().noquote() << "moviesDirectory:" << moviesDirectory(false);
    qDebug().noquote() << "downloadsDirectory:" << downloadsDirectory(false);
}

QString App::openDirPath()
{
    return held(&App::m_strOpenDirPath, workDirectory(false));
}

void App::setOpenDirPath(const QString &strPath)
{
    hold(&App::m_strOpenDirPath, QFileInfo(strPath).absolutePath());
}

QString App::saveDirPath()
{
    return held(&App::m_strSaveDirPath, workDirectory(false));
}

void App::setSaveDirPath(const QString &strPath)
{
    hold(&App::m_strSaveDirPath, QFileInfo(strPath).absolutePath());
}

bool App::copyTo(const QString &strFile, const QString &strDir, const QString &strNewName)
{
    ensureDirExists(strDir);
    const QString strName = strNewName.isEmpty() ? QFileInfo(strFile).fileName() : strNewName;
    const QString strTarget = strDir + u'/' + strName;
    if (QFileInfo::exists(strTarget)) {
        return true;
    }
    QFile source(strFile);
    if (!source.open(QIODevice::ReadOnly)) {
        return false;
    }
    QSaveFile target(strTarget);
    return target.open(QIODevice::WriteOnly) && copyContents(source, target) && target.commit();
}

bool App::copyToSupportDirectory(const QString &strFile, const QString &strNewName)
{
    return copyTo(strFile, supportDirectory(true), strNewName);
}

} // namespace QMWidgets
