#include "CssSyntaxHighlighter.h"

#include "Literals.h"

namespace QMWidgets {

namespace {

bool isQuote(QChar c)
{
    return c == u'"' || c == u'\'';
}

bool isNumber(QChar c)
{
    constexpr ushort firstNonAscii = 128;
    return (c >= u'0' && c <= u'9') || (c.unicode() >= firstNonAscii && c.isNumber());
}

bool standsAt(const QString &strText, int nPos, const QString &str)
{
    return strText.midRef(nPos, str.size()) == str;
}

} // namespace

CssSyntaxHighlighter::CssSyntaxHighlighter(QTextDocument *pdoc)
    : QSyntaxHighlighter(pdoc)
    , m_lstKeywords {u"foreach"_qs, u"bool"_qs, u"int"_qs, u"void"_qs, u"double"_qs, u"float"_qs,
          u"char"_qs, u"delete"_qs, u"class"_qs, u"const"_qs, u"virtual"_qs, u"mutable"_qs,
          u"this"_qs, u"struct"_qs, u"union"_qs, u"throw"_qs, u"for"_qs, u"if"_qs, u"else"_qs,
          u"false"_qs, u"namespace"_qs, u"switch"_qs, u"case"_qs, u"public"_qs, u"private"_qs,
          u"protected"_qs, u"new"_qs, u"return"_qs, u"using"_qs, u"true"_qs, u"->"_qs, u">>"_qs,
          u"<<"_qs, u">"_qs, u"<"_qs, u"("_qs, u")"_qs, u"{"_qs, u"}"_qs, u"["_qs, u"]"_qs, u"+"_qs,
          u"-"_qs, u"*"_qs, u"/"_qs, u"="_qs, u"!"_qs, u"."_qs, u","_qs, u";"_qs, u":"_qs, u"&"_qs,
          u"emit"_qs, u"connect"_qs, u"SIGNAL"_qs, u"|"_qs, u"SLOT"_qs, u"slots"_qs, u"signals"_qs}
{
}

QString CssSyntaxHighlighter::getKeyword(int nPos, const QString &strText) const
{
    for (const QString &str : m_lstKeywords) {
        if (standsAt(strText, nPos, str)) {
            return str;
        }
    }
    return {};
}

void CssSyntaxHighlighter::highlightBlock(const QString &strText)
{
    m_nState = previousBlockState();
    m_nStart = 0;
    int i = 0;
    while (i < strText.size()) {
        if (m_nState == String) {
            i = inString(i, strText);
        } else if (m_nState == Comment) {
            i = inComment(i, strText);
        } else {
            i = inNormalText(i, strText);
        }
    }
    if (m_nState == Comment) {
        setFormat(m_nStart, strText.size() - m_nStart, Qt::darkGray);
    } else if (m_nState == String) {
        setFormat(m_nStart, strText.size() - m_nStart, Qt::cyan);
    }
    setCurrentBlockState(m_nState);
}

int CssSyntaxHighlighter::inString(int nPos, const QString &strText)
{
    const bool bEscaped = nPos > 0 && strText.at(nPos - 1) == u'\\';
    if (isQuote(strText.at(nPos)) && !bEscaped) {
        setFormat(m_nStart, nPos - m_nStart + 1, Qt::cyan);
        m_nState = Normal;
    }
    return nPos + 1;
}

int CssSyntaxHighlighter::inComment(int nPos, const QString &strText)
{
    if (!standsAt(strText, nPos, u"*/"_qs)) {
        return nPos + 1;
    }
    setFormat(m_nStart, nPos - m_nStart + 2, Qt::darkGray);
    m_nState = Normal;
    return nPos + 2;
}

int CssSyntaxHighlighter::inNormalText(int nPos, const QString &strText)
{
    const QChar c = strText.at(nPos);
    if (standsAt(strText, nPos, u"//"_qs)) {
        setFormat(nPos, strText.size() - nPos, Qt::darkGray);
        return strText.size();
    }
    if (c == u'#') {
        setFormat(nPos, strText.size() - nPos, Qt::green);
        return strText.size();
    }
    if (isNumber(c)) {
        setFormat(nPos, 1, Qt::cyan);
    } else if (standsAt(strText, nPos, u"/*"_qs)) {
        m_nStart = nPos;
        m_nState = Comment;
    } else if (isQuote(c)) {
        m_nStart = nPos;
        m_nState = String;
    } else {
        const QString strKeyword = getKeyword(nPos, strText);
        if (!strKeyword.isEmpty()) {
            setFormat(nPos, strKeyword.size(), Qt::white);
            return nPos + strKeyword.size();
        }
    }
    return nPos + 1;
}

} // namespace QMWidgets
