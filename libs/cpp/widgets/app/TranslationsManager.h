#pragma once

#include <QObject>

class QTranslator;

namespace QMWidgets {

/// Decides the language of the user interface, and loads its translators: one for Qt, one for the
/// libraries, one for the application. A file that is missing leaves the English texts.
class TranslationsManager : public QObject
{
    Q_OBJECT

public:
    /// The one object; made on first use, after the App. It then chooses the language from the
    /// store or, at the first start, from the system.
    static TranslationsManager *instance();

    /// Activates a language code and stores it. "en" needs no translators.
    void setTranslation(const QString &strLanguage);

    /// Loads the current language anew, for instance after a change of the bases.
    void retranslate();

    QString currentLanguage() const;

    /// Path parts in front of the files, empty by default.
    void setAppTranslationsBase(const QString &strBase);
    void setLibsTranslationsBase(const QString &strBase);
    void setQtTranslationsBase(const QString &strBase);

    /// The first language of the table whose code the text contains, e.g. "pt" for "pt_BR"; else
    /// "en".
    static QString languageOf(const QString &strLocale);

private:
    Q_DISABLE_COPY(TranslationsManager)
    TranslationsManager();

    static TranslationsManager *m_pUniqueInstance;

    QTranslator *m_ptranslatorQt = nullptr;
    QTranslator *m_ptranslatorLibs = nullptr;
    QTranslator *m_ptranslatorApp = nullptr;
    QString m_strLanguage;
    QString m_strAppBase;
    QString m_strLibsBase;
    QString m_strQtBase;
};

} // namespace QMWidgets
