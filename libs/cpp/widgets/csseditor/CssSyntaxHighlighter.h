#pragma once

#include <QStringList>
#include <QSyntaxHighlighter>

namespace QMWidgets {

/// Colours the text of the style editor: comments, strings, numbers and keywords.
class CssSyntaxHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// pdoc becomes the parent.
    explicit CssSyntaxHighlighter(QTextDocument *pdoc);

protected:
    void highlightBlock(const QString &strText) override;

private:
    /// What a line, or the place in it, lies in; the values are kept as the states of the blocks.
    enum State
    {
        Normal = -1,
        Comment = 0,
        String = 1
    };

    /// The first word of the list that stands at nPos; empty for none.
    QString getKeyword(int nPos, const QString &strText) const;

    /// The steps of one place: each returns the next place to look at.
    int inString(int nPos, const QString &strText);
    int inComment(int nPos, const QString &strText);
    int inNormalText(int nPos, const QString &strText);

    QStringList m_lstKeywords;
    int m_nState = Normal;
    /// Where the open comment or string begins in the line.
    int m_nStart = 0;
};

} // namespace QMWidgets
