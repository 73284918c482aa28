#include "App.h"

#include "Literals.h"
#include "ModalFocus.h"
#include "PlatformVersion.h"
#include <QDir>
#include <QFileOpenEvent>
#include <QMutex>
#include <QMutexLocker>
#include <QSettings>
#include <QThread>
#include <utility>

namespace QMWidgets {

QList<void *> App::sm_lstRegisteredFunctions;

namespace {

// One lock for everything that touches the store: the conversion's thread reads it, too.
QRecursiveMutex &storeMutex()
{
    static QRecursiveMutex mutex;
    return mutex;
}

/// The store, whose deferred writing takes the same lock.
class Store : public QSettings
{
public:
    Store(const QString &strFile, QObject *pobj)
        : QSettings(strFile, QSettings::IniFormat, pobj)
    {
    }

protected:
    bool event(QEvent *pe) override
    {
        const QMutexLocker locker(&storeMutex());
        return QSettings::event(pe);
    }
};

QString bundleDirectory()
{
    return QCoreApplication::applicationDirPath().remove(u"MacOS"_qs);
}

}

App::App(int &argc, char **argv, const QString &strOrganization, const QString &strApplication)
    : QApplication(argc, argv)
    , m_bFirstStart(isFirstStartInternal())
    , m_strCurrentLanguage(u"en"_qs)
{
    setOrganizationName(strOrganization);
    setApplicationName(strApplication);
    m_strOpenDirPath = workDirectory(true);
    m_strSaveDirPath = m_strOpenDirPath;
    createStore();
    createLegalNotices();
    for (void *pfunction : std::as_const(sm_lstRegisteredFunctions)) {
        reinterpret_cast<void (*)()>(pfunction)();
    }
    initAppsIds();
    keepFocusInModalDialogs(this);
    if (isSigned()) {
        disableTerminalOuput();
    }
}

App::~App()
{
    if (!m_phelpDialog.isNull() && m_phelpDialog->parent() == nullptr) {
        delete m_phelpDialog;
    }
    const QMutexLocker locker(&storeMutex());
    delete m_psettings;
    m_psettings = nullptr;
}

App *App::theApp()
{
    return qobject_cast<App *>(QCoreApplication::instance());
}

void App::registerFunction(void *pfunction)
{
    sm_lstRegisteredFunctions.append(pfunction);
}

bool App::isFirstStartInternal()
{
    const QStringList lstDirectories {supportDirectory(false), documentsDirectory(false),
        cachesDirectory(false), dataDirectory(false), workDirectory(false),
        picturesDirectory(false), musicDirectory(false), moviesDirectory(false),
        downloadsDirectory(false)};
    bool bFirst = true;
    for (const QString &strDirectory : lstDirectories) {
        bFirst = !QDir(strDirectory).exists() && bFirst;
    }
    return bFirst;
}

// Identity of the build and of the system

QString App::build()
{
    return buildFromCompilerDate(QString::fromLatin1(__DATE__));
}

QString App::buildFromCompilerDate(const QString &strDate)
{
    static const char *const months[]
        = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    QString str = strDate.simplified().replace(u' ', u'/');
    int nMonth = 1;
    for (const char *month : months) {
        str.replace(QLatin1String(month), QString::number(nMonth++));
    }
    return str;
}

QDate App::buildDate()
{
    return QDate::fromString(build(), u"M/d/yyyy"_qs);
}

QString App::osInfo()
{
    const int nVersion = platformVersion();
    constexpr int firstNamed = 7; // 10.5
    constexpr int lastNamed = 14; // 10.12
    const QString strMinor = QString::number(nVersion - 2);
    if (nVersion >= firstNamed && nVersion <= lastNamed) {
        return u"Mac OS X 10."_qs + strMinor;
    }
    return u"Mac OS X (10."_qs + strMinor + u')';
}

QString App::dateFormat()
{
    return u"yyyy-MM-dd"_qs;
}

QDate App::today()
{
    const App *papp = theApp();
    return papp != nullptr && papp->m_clock ? papp->m_clock() : QDate::currentDate();
}

void App::setClock(std::function<QDate()> clock)
{
    if (App *papp = theApp()) {
        papp->m_clock = std::move(clock);
    }
}

bool App::isSigned()
{
    return QDir(bundleDirectory() + u"_CodeSignature/"_qs).exists();
}

bool App::isAppStore()
{
    return !isIndependent();
}

QString App::bundleIdentifier()
{
    const QStringList lstParts = organizationDomain().split(u'.');
    return lstParts.last() + u'.' + lstParts.first() + u'.' + applicationName();
}

QString App::bundleResourcePath()
{
    return bundleDirectory() + u"Resources/"_qs;
}

bool App::isFirstStart() const
{
    return m_bFirstStart;
}

bool App::isAppFirstStart()
{
    const bool bFirst = settingsValue(u"AppFirstStart"_qs, true).toBool();
    if (bFirst) {
        setSettingsValue(u"AppFirstStart"_qs, false);
    }
    return bFirst;
}

bool App::isDeactivated()
{
    const App *papp = theApp();
    return papp != nullptr && papp->m_bDeactivated;
}

// Settings store

void App::createStore()
{
    const QString strDirectory = supportDirectory(true);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, strDirectory);
    m_psettings = new Store(strDirectory + u"settings.plist"_qs, this);
}

QSettings *App::settings()
{
    return held(&App::m_psettings);
}

QString App::fullKey(const QString &strKey)
{
    const App *papp = theApp();
    const bool bOld = papp != nullptr && papp->m_bOldSettingsMode;
    return bOld ? strKey : applicationName() + u'/' + strKey;
}

QVariant App::settingsValue(const QString &strKey, const QVariant &varDefault)
{
    const QMutexLocker locker(&storeMutex());
    const App *papp = theApp();
    if (papp == nullptr || papp->m_psettings == nullptr) {
        return varDefault;
    }
    const QString strFullKey = fullKey(strKey);
    const auto it = papp->m_mapOverrides.constFind(strFullKey);
    if (it != papp->m_mapOverrides.constEnd()) {
        return it.value();
    }
    return papp->m_psettings->value(strFullKey, varDefault);
}

void App::setSettingsValue(const QString &strKey, const QVariant &varValue)
{
    const QMutexLocker locker(&storeMutex());
    const App *papp = theApp();
    if (papp == nullptr || papp->m_psettings == nullptr) {
        return;
    }
    // QSettings writes a float as bytes, and a double as a number that anyone can read.
    const bool bFloat = varValue.userType() == QMetaType::Float;
    papp->m_psettings->setValue(fullKey(strKey), bFloat ? QVariant(varValue.toDouble()) : varValue);
}

void App::overrideSettingsValue(const QString &strKey, const QVariant &varValue)
{
    const QMutexLocker locker(&storeMutex());
    if (App *papp = theApp()) {
        papp->m_mapOverrides.insert(fullKey(strKey), varValue);
    }
}

void App::setOldSettingsMode(bool b)
{
    if (App *papp = theApp()) {
        papp->m_bOldSettingsMode = b;
    }
}

void App::settingsBeginGroup(const QString &strGroup)
{
    const QMutexLocker locker(&storeMutex());
    if (QSettings *psettings = settings()) {
        psettings->beginGroup(strGroup);
    }
}

void App::settingsEndGroup()
{
    const QMutexLocker locker(&storeMutex());
    if (QSettings *psettings = settings()) {
        psettings->endGroup();
    }
}

QStringList App::settingsChildKeys()
{
    const QMutexLocker locker(&storeMutex());
    const QSettings *psettings = settings();
    return psettings != nullptr ? psettings->childKeys() : QStringList();
}

// Events

bool App::notify(QObject *pobj, QEvent *pe)
{
    // Events of every thread come by here; the signals are for the user interface's own.
    if (QThread::currentThread() == thread()) {
        switch (pe->type()) {
        case QEvent::MouseButtonPress:
            emit mouseButtonPress();
            break;
        case QEvent::ApplicationActivate:
            m_bDeactivated = false;
            emit applicationActivated();
            break;
        case QEvent::ApplicationDeactivate:
            m_bDeactivated = true;
            emit applicationDeactivated();
            break;
        case QEvent::Expose:
            emit applicationExposed();
            break;
        default:
            break;
        }
    }
    return QApplication::notify(pobj, pe);
}

bool App::event(QEvent *pe)
{
    if (pe->type() == QEvent::FileOpen) {
        emit fileOpenRequest(static_cast<QFileOpenEvent *>(pe)->file());
        return true;
    }
    return QApplication::event(pe);
}

} // namespace QMWidgets
