#include "XaniIndex.h"

#include <QHash>

namespace MGraphX {

namespace {

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

constexpr const char *wholeTemplate
    = "<Xani loop = \"<!LOOP!>\" frameduration=\"<!FRAMEDURATION!>\" "
      "framecount=\"<!FRAMECOUNT!>\">\n<!CONTENT!></Xani>";
constexpr const char *imageTemplate
    = "<Image index=\"<!INDEX!>\" name=\"<!NAME!>\" format=\"<!FORMAT!>\" "
      "duration=\"<!DIRATION!>\" background=\"<!BACKGROUND!>\">\n"
      "  <data start=\"<!START!>\" size=\"<!SIZE!>\">\n</Image>\n";

/// The template with its marks replaced, in one pass: nothing is replaced inside of a value.
QString filled(const char *pattern, const QHash<QString, QString> &values)
{
    const QString text = latin1(pattern);
    const QString open = latin1("<!");
    const QString close = latin1("!>");
    QString result;
    int at = 0;
    while (at < text.size()) {
        const int mark = text.indexOf(open, at);
        const int end = mark < 0 ? -1 : text.indexOf(close, mark);
        if (end < 0) {
            break;
        }
        result += text.midRef(at, mark - at) + values.value(text.mid(mark + 2, end - mark - 2));
        at = end + close.size();
    }
    return result + text.midRef(at);
}

/// Quotes and what Latin-1 lacks become references; an ampersand only where it would look like one.
QString escaped(const QString &value)
{
    QString result;
    const QVector<uint> codes = value.toUcs4();
    for (int i = 0; i < codes.size(); ++i) {
        const uint code = codes.at(i);
        const bool looksLikeReference = code == '&' && codes.value(i + 1) == '#';
        if (code == '"' || code > 0xFF || looksLikeReference) {
            result += QLatin1String("&#") + QString::number(code) + QLatin1Char(';');
        } else {
            result += QChar(code);
        }
    }
    return result;
}

/// The character of a reference without its "&" and ";"; null if it is none.
QString referenced(const QString &reference)
{
    if (!reference.startsWith(QLatin1Char('#'))) {
        return {};
    }
    const bool hexadecimal = reference.mid(1, 1).toLower() == QLatin1String("x");
    bool ok = false;
    const uint code = reference.mid(hexadecimal ? 2 : 1).toUInt(&ok, hexadecimal ? 16 : 10);
    return ok && code <= 0x10FFFF ? QString::fromUcs4(&code, 1) : QString();
}

QString unescaped(const QString &value)
{
    constexpr int longestReference = 12; // with zeros in front
    QString result;
    int at = 0;
    while (at < value.size()) {
        const int begin = value.indexOf(QLatin1Char('&'), at);
        if (begin < 0) {
            break;
        }
        const QStringRef rest = value.midRef(begin, longestReference);
        const int end = begin + rest.indexOf(QLatin1Char(';'));
        const QString character
            = end > begin ? referenced(value.mid(begin + 1, end - begin - 1)) : QString();
        result += value.midRef(at, begin - at);
        result += character.isNull() ? value.mid(begin, 1) : character;
        at = character.isNull() ? begin + 1 : end + 1;
    }
    return result + value.midRef(at);
}

/// Looks for the end of a tag, which isn't a ">" inside of quotes; -1 if there is none.
int endOfTag(const QString &text, int from)
{
    bool quoted = false;
    for (int i = from; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('"')) {
            quoted = !quoted;
        } else if (text.at(i) == QLatin1Char('>') && !quoted) {
            return i;
        }
    }
    return -1;
}

/// The attributes of a tag; blanks around "=" don't matter.
QHash<QString, QString> attributesOf(const QString &tag)
{
    QHash<QString, QString> attributes;
    int at = 0;
    while (true) {
        const int begin = tag.indexOf(QLatin1Char('"'), at);
        const int end = begin < 0 ? -1 : tag.indexOf(QLatin1Char('"'), begin + 1);
        if (end < 0) {
            return attributes;
        }
        QString name = tag.mid(at, begin - at).simplified();
        name.remove(QLatin1Char('=')).remove(QLatin1Char(' '));
        attributes.insert(name.toLower(), unescaped(tag.mid(begin + 1, end - begin - 1)));
        at = end + 1;
    }
}

/// Takes a number over, if it is one.
template <typename Setter>
void takeNumber(const QHash<QString, QString> &attributes, const char *name, Setter set)
{
    bool ok = false;
    const qint64 value = attributes.value(latin1(name)).toLongLong(&ok);
    if (ok) {
        set(value);
    }
}

int toInt(qint64 value)
{
    return static_cast<int>(qBound<qint64>(-2147483647, value, 2147483647));
}

}

QByteArray XaniIndex::text() const
{
    QString content;
    for (int i = 0; i < frames.size(); ++i) {
        const XaniImageData &frame = frames.at(i);
        content += filled(imageTemplate,
            {{latin1("INDEX"), QString::number(i)}, {latin1("NAME"), escaped(frame.name())},
                {latin1("FORMAT"), escaped(frame.format())},
                {latin1("DIRATION"), QString::number(frame.duration())},
                {latin1("BACKGROUND"), latin1(frame.isBackground() ? "true" : "false")},
                {latin1("START"), QString::number(frame.start())},
                {latin1("SIZE"), QString::number(frame.size())}});
    }
    return filled(wholeTemplate,
        {{latin1("LOOP"), QString::number(loop)},
            {latin1("FRAMEDURATION"), QString::number(frameDuration)},
            {latin1("FRAMECOUNT"), QString::number(frames.size())}, {latin1("CONTENT"), content}})
        .toLatin1();
}

XaniIndex XaniIndex::fromText(const QByteArray &text)
{
    XaniIndex index;
    const QString characters = QString::fromLatin1(text.constData(), text.size());
    XaniImageData frame;
    int at = 0;
    while (true) {
        const int begin = characters.indexOf(QLatin1Char('<'), at);
        const int end = begin < 0 ? -1 : endOfTag(characters, begin);
        if (end < 0) {
            return index;
        }
        index.readTag(characters.mid(begin + 1, end - begin - 1), &frame);
        at = end + 1;
    }
}

/// Takes an element over; frame is the one that the last Image element began.
void XaniIndex::readTag(const QString &tag, XaniImageData *frame)
{
    const QString element = tag.section(QLatin1Char(' '), 0, 0).trimmed().toLower();
    const QHash<QString, QString> attributes = attributesOf(tag.mid(element.size()));
    if (element == QLatin1String("xani")) {
        takeNumber(attributes, "loop", [this](qint64 value) { loop = toInt(value); });
        takeNumber(
            attributes, "frameduration", [this](qint64 value) { frameDuration = toInt(value); });
    } else if (element == QLatin1String("image")) {
        *frame = XaniImageData();
        frame->setName(attributes.value(latin1("name")));
        if (attributes.contains(latin1("format"))) {
            frame->setFormat(attributes.value(latin1("format")));
        }
        takeNumber(attributes, "duration", [frame](qint64 v) { frame->setDuration(toInt(v)); });
        frame->setBackground(
            attributes.value(latin1("background")).toLower() == QLatin1String("true"));
    } else if (element == QLatin1String("data")) {
        takeNumber(attributes, "start", [frame](qint64 value) { frame->setStart(value); });
        takeNumber(attributes, "size", [frame](qint64 value) { frame->setSize(value); });
        frames.append(*frame);
        *frame = XaniImageData();
    }
}

}
