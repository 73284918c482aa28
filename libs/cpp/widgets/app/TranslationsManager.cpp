#include "TranslationsManager.h"

#include "App.h"
#include "Literals.h"
#include <QLocale>
#include <QTranslator>

namespace QMWidgets {

TranslationsManager *TranslationsManager::m_pUniqueInstance = nullptr;

namespace {

// In the order in which they are tried.
const char *const languages[]
    = {"de", "ru", "fr", "nl", "it", "pt", "es", "ko", "ja", "zh_CN", "zh_TW", "hi", "ar"};

QString languageKey()
{
    return u"Language"_qs;
}

void loadAndInstall(QTranslator *ptranslator, const QString &strFile)
{
    // Empty, but not null: null ones stand for the current directory and for "_.".
    const QString strNone = u""_qs;
    // Without its file a translator knows no text, and does no harm.
    (void)ptranslator->load(strFile, strNone, strNone, strNone);
    QCoreApplication::installTranslator(ptranslator);
}

}

TranslationsManager *TranslationsManager::instance()
{
    if (m_pUniqueInstance == nullptr) {
        m_pUniqueInstance = new TranslationsManager; // it lasts as long as the process
    }
    return m_pUniqueInstance;
}

TranslationsManager::TranslationsManager()
    : m_ptranslatorQt(new QTranslator(this))
    , m_ptranslatorLibs(new QTranslator(this))
    , m_ptranslatorApp(new QTranslator(this))
{
    const QString strLocale = QLocale::system().name();
    m_strLanguage = languageOf(App::settingsValue(languageKey(), strLocale).toString());
    setTranslation(m_strLanguage);
}

QString TranslationsManager::languageOf(const QString &strLocale)
{
    for (const char *language : languages) {
        if (strLocale.indexOf(QLatin1String(language)) >= 0) {
            return QString::fromLatin1(language);
        }
    }
    return u"en"_qs;
}

void TranslationsManager::setTranslation(const QString &strLanguage)
{
    for (QTranslator *ptranslator : {m_ptranslatorQt, m_ptranslatorLibs, m_ptranslatorApp}) {
        QCoreApplication::removeTranslator(ptranslator);
    }
    if (strLanguage != u"en"_qs) {
        loadAndInstall(
            m_ptranslatorQt, u":/"_qs + m_strQtBase + u"Translations/qt_"_qs + strLanguage);
        loadAndInstall(
            m_ptranslatorLibs, u":/"_qs + m_strLibsBase + u"/Translations/libs_"_qs + strLanguage);
        loadAndInstall(m_ptranslatorApp,
            u":/"_qs + m_strAppBase + u"Translations/"_qs + QCoreApplication::applicationName()
                + u'_' + strLanguage);
    }
    m_strLanguage = strLanguage;
    QGuiApplication::setLayoutDirection(
        strLanguage == u"ar"_qs ? Qt::RightToLeft : Qt::LeftToRight);
    if (App::settingsValue(languageKey(), QString()).toString() != strLanguage) {
        // A start that only hands its files over would wait for its turn to write the store.
        App::setSettingsValue(languageKey(), strLanguage);
    }
    App::setCurrentLanguage(strLanguage);
}

void TranslationsManager::retranslate()
{
    setTranslation(currentLanguage());
}

QString TranslationsManager::currentLanguage() const
{
    return m_strLanguage;
}

void TranslationsManager::setAppTranslationsBase(const QString &strBase)
{
    m_strAppBase = strBase;
}

void TranslationsManager::setLibsTranslationsBase(const QString &strBase)
{
    m_strLibsBase = strBase;
}

void TranslationsManager::setQtTranslationsBase(const QString &strBase)
{
    m_strQtBase = strBase;
}

} // namespace QMWidgets
