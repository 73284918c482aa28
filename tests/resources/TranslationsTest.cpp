#include "Literals.h"
#include "TranslationResources.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>
#include <QVector>
#include <QXmlStreamReader>

namespace {

const char *const languages[]
    = {"de", "ru", "fr", "nl", "it", "pt", "es", "ko", "ja", "zh_CN", "zh_TW", "hi", "ar"};

struct Text
{
    QString context;
    QString source;
    QString translation;
    bool isFinished = false;
};

/// The texts of a .ts file in its order; none when it is missing or isn't well-formed.
QVector<Text> textsOf(const QString &name)
{
    QFile file(QStringLiteral(TRANSLATIONS_DIR "/") + name + u".ts"_qs);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QVector<Text> texts;
    Text text;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == u"name"_qs) {
            text.context = reader.readElementText();
        } else if (reader.name() == u"source"_qs) {
            text.source = reader.readElementText();
        } else if (reader.name() == u"translation"_qs) {
            text.isFinished = !reader.attributes().hasAttribute(u"type"_qs);
            text.translation = reader.readElementText();
            texts << text;
        }
    }
    return reader.hasError() ? QVector<Text>() : texts;
}

QVector<Text> textsOfLanguage(const QString &language)
{
    return textsOf(u"libs_"_qs + language) + textsOf(u"app_"_qs + language);
}

/// The parts that a translation has to have as well: places, tags (in this order) and line breaks.
QStringList marksOf(const QString &text)
{
    QStringList places;
    QStringList others;
    auto it = QRegularExpression(u"%\\d|<[^>]+>|\n"_qs).globalMatch(text);
    while (it.hasNext()) {
        const QString mark = it.next().captured();
        (mark.startsWith(u'%') ? places : others) << mark;
    }
    places.sort();
    return places + others;
}

/// The letter after the ampersand, in lower case; null without one.
QChar mnemonicOf(const QString &text)
{
    const auto match = QRegularExpression(u"(?<!&)&([^&])"_qs).match(text);
    return match.hasMatch() ? match.captured(1).at(0).toLower() : QChar();
}

bool keepsBlanks(const Text &text)
{
    const auto isBlank = [](QChar c) { return c == u' '; };
    const QString &from = text.source;
    const QString &to = text.translation;
    // A part of a sentence may begin with its full stop in a language that puts the verb first.
    const bool mayLackBlank = to.at(0).isPunct() && isBlank(from.at(0));
    return (isBlank(from.at(0)) == isBlank(to.at(0)) || mayLackBlank)
        && isBlank(from.back()) == isBlank(to.back());
}

std::string inWords(const QString &language, const Text &text)
{
    return (language + u": "_qs + text.context + u": \""_qs + text.source + u"\" -> \""_qs
        + text.translation + u'"')
        .toStdString();
}

}

TEST(Translations, EveryLanguageHasAllTexts)
{
    const auto names = [](const QVector<Text> &texts) {
        QStringList found;
        for (const Text &text : texts) {
            found << text.context + u": "_qs + text.source;
        }
        return found;
    };
    for (const auto &part : {u"libs_"_qs, u"app_"_qs}) {
        const QStringList expected = names(textsOf(part + u"de"_qs));
        EXPECT_GT(expected.size(), 80);
        for (const char *language : languages) {
            const QVector<Text> texts = textsOf(part + QLatin1String(language));
            const QStringList found = names(texts);
            for (const QString &name : expected) {
                EXPECT_TRUE(found.contains(name)) << language << ": " << name.toStdString();
            }
            for (const Text &text : texts) {
                EXPECT_TRUE(text.isFinished && !text.translation.isEmpty())
                    << inWords(QLatin1String(language), text);
            }
        }
    }
}

TEST(Translations, PlacesTagsBlanksAndMnemonicsAreKept)
{
    const auto check = [](const QString &language, const QVector<Text> &texts) {
        EXPECT_FALSE(texts.isEmpty()) << language.toStdString();
        for (const Text &text : texts) {
            if (text.translation.isEmpty()) {
                continue;
            }
            EXPECT_EQ(marksOf(text.source), marksOf(text.translation)) << inWords(language, text);
            EXPECT_EQ(mnemonicOf(text.source).isNull(), mnemonicOf(text.translation).isNull())
                << inWords(language, text);
            EXPECT_TRUE(keepsBlanks(text)) << inWords(language, text);
        }
    };
    for (const char *language : languages) {
        check(QLatin1String(language), textsOfLanguage(QLatin1String(language)));
    }
    check(u"qt_hi"_qs, textsOf(u"qt_hi"_qs));
}

// Two buttons with one letter: the letter only moves the focus between them, and presses neither.
TEST(Translations, MnemonicsOfOneWindowDiffer)
{
    struct Window
    {
        QStringList contexts;
        QStringList only; ///< These texts of them; all when empty.
    };
    const QString state = u"QMWidgets::ReminderStateDialog"_qs;
    const Window windows[] = {
        {{u"QMWidgets::AboutDialog"_qs}, {}},
        {{u"QMWidgets::HelpDialog"_qs}, {}},
        {{u"QMWidgets::RateAppStoreDialog"_qs, state}, {}},
        {{u"QMWidgets::RateMailDialog"_qs, state}, {}},
        {{u"QMWidgets::ReminderDialog"_qs, state}, {}},
        {{u"QMWidgets::CssEditor"_qs}, {u"&File"_qs, u"&Help"_qs}},
        {{u"QMWidgets::CssEditor"_qs},
            {u"&Open..."_qs, u"&Save"_qs, u"&SetInfo"_qs, u"&Apply"_qs, u"S&ave As..."_qs,
                u"&About"_qs, u"&Reset"_qs}},
    };
    for (const char *language : languages) {
        const QVector<Text> texts = textsOfLanguage(QLatin1String(language));
        for (const Window &window : windows) {
            QMap<QChar, QString> taken;
            for (const Text &text : texts) {
                const QChar letter = mnemonicOf(text.translation);
                if (letter.isNull() || !window.contexts.contains(text.context)
                    || !(window.only.isEmpty() || window.only.contains(text.source))) {
                    continue;
                }
                EXPECT_FALSE(taken.contains(letter)) << inWords(QLatin1String(language), text)
                                                     << " and " << taken[letter].toStdString();
                taken[letter] = text.translation;
            }
            EXPECT_GE(taken.size(), 2) << language << window.contexts.first().toStdString();
        }
    }
}

TEST(Translations, CompiledTextsLoad)
{
    initTranslationResources();
    for (const char *code : languages) {
        const QString language = QLatin1String(code);
        const auto translated = [](const QString &file, const char *context, const char *source) {
            QTranslator translator;
            EXPECT_TRUE(translator.load(file)) << file.toStdString();
            return translator.translate(context, source);
        };
        QString expected;
        for (const Text &text : textsOf(u"app_"_qs + language)) {
            if (text.context == u"MainPage"_qs && text.source == u"Convert"_qs) {
                expected = text.translation;
            }
        }
        EXPECT_FALSE(expected.isEmpty()) << code;
        EXPECT_EQ(translated(u":/Translations/Calderin M4A_"_qs + language, "MainPage", "Convert"),
            expected);
        EXPECT_NE(translated(u"://Translations/libs_"_qs + language, "QMWidgets::AppMenu", "Share"),
            QString());
        EXPECT_NE(
            translated(u":/Translations/qt_"_qs + language, "QPlatformTheme", "Cancel"), QString());
    }
}
