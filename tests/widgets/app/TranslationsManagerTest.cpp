#include "TranslationsManager.h"
#include "App.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QResource>
#include <QTemporaryDir>

using QMWidgets::App;
using QMWidgets::TranslationsManager;

namespace {

// A compiled resource with the three files of each language, each with one text of its own.
bool registerTranslations(const QTemporaryDir &dir, const QStringList &lstLanguages)
{
    QString strEntries;
    for (const QString &strLanguage : lstLanguages) {
        for (const QString &strPart : {u"qt"_qs, u"libs"_qs, u"Calderin M4A"_qs}) {
            const QString strName = strPart + u'_' + strLanguage;
            const QString strSource = dir.filePath(strName + u".ts"_qs);
            MediaMaker::writeFile(strSource,
                u"<!DOCTYPE TS><TS version=\"2.1\"><context><name>Test</name><message>"
                "<source>%1</source><translation>%2</translation></message></context></TS>"_qs
                    .arg(strPart, strName)
                    .toUtf8());
            MediaMaker::runTool(QStringLiteral(LRELEASE), {strSource});
            strEntries += u"<file alias=\"%1Translations/%2\">%2.qm</file>"_qs.arg(
                strLanguage == u"it"_qs ? u"base/"_qs : QString(), strName);
        }
    }
    MediaMaker::writeFile(dir.filePath(u"test.qrc"_qs),
        u"<RCC><qresource prefix=\"/\">%1</qresource></RCC>"_qs.arg(strEntries).toUtf8());
    const QString strResource = dir.filePath(u"test.rcc"_qs);
    MediaMaker::runTool(
        QStringLiteral(RCC), {u"--binary"_qs, dir.filePath(u"test.qrc"_qs), u"-o"_qs, strResource});
    return QResource::registerResource(strResource);
}

QStringList texts()
{
    QStringList lst;
    for (const char *text : {"qt", "libs", "Calderin M4A"}) {
        lst << QCoreApplication::translate("Test", text);
    }
    return lst;
}

TEST(TranslationsManager, findsTheLanguageInALocale)
{
    const QVector<QPair<QString, QString>> table {{u"de_AT"_qs, u"de"_qs}, {u"pt_BR"_qs, u"pt"_qs},
        {u"zh_CN"_qs, u"zh_CN"_qs}, {u"zh_TW"_qs, u"zh_TW"_qs}, {u"zh_HK"_qs, u"en"_qs},
        {u"en_GB"_qs, u"en"_qs}, {u"es_ru"_qs, u"ru"_qs}, {u"C"_qs, u"en"_qs},
        {QString(), u"en"_qs}, {u"DE"_qs, u"en"_qs}};
    for (const auto &each : table) {
        EXPECT_EQ(TranslationsManager::languageOf(each.first), each.second)
            << qPrintable(each.first);
    }
}

TEST(TranslationsManager, loadsThreeFilesAndTakesThemAwayAgain)
{
    const QTemporaryDir dir;
    ASSERT_TRUE(registerTranslations(dir, {u"de"_qs, u"ar"_qs, u"it"_qs}));
    App::setSettingsValue(u"Language"_qs, u"ar"_qs);
    TranslationsManager *pmanager = TranslationsManager::instance();
    EXPECT_EQ(pmanager->currentLanguage(), u"ar"_qs);
    EXPECT_EQ(texts(), (QStringList {u"qt_ar"_qs, u"libs_ar"_qs, u"Calderin M4A_ar"_qs}));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);

    pmanager->setTranslation(u"de"_qs);
    EXPECT_EQ(texts(), (QStringList {u"qt_de"_qs, u"libs_de"_qs, u"Calderin M4A_de"_qs}));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(App::currentLanguage(), u"de"_qs);
    EXPECT_EQ(App::settingsValue(u"Language"_qs).toString(), u"de"_qs);

    const QStringList lstEnglish {u"qt"_qs, u"libs"_qs, u"Calderin M4A"_qs};
    pmanager->setTranslation(u"en"_qs);
    EXPECT_EQ(texts(), lstEnglish);
    pmanager->setTranslation(u"fr"_qs); // no files
    EXPECT_EQ(texts(), lstEnglish);
    EXPECT_EQ(App::settingsValue(u"Language"_qs).toString(), u"fr"_qs);

    pmanager->setTranslation(u"it"_qs);
    EXPECT_EQ(texts(), lstEnglish);
    pmanager->setQtTranslationsBase(u"base/"_qs);
    pmanager->setLibsTranslationsBase(u"base"_qs);
    pmanager->setAppTranslationsBase(u"base/"_qs);
    pmanager->retranslate();
    EXPECT_EQ(texts(), (QStringList {u"qt_it"_qs, u"libs_it"_qs, u"Calderin M4A_it"_qs}));
    pmanager->setTranslation(u"en"_qs);
}

}
