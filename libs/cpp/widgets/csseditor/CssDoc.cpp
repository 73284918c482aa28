#include "CssDoc.h"

#include "CssSyntaxHighlighter.h"
#include "FileDialog.h"
#include "Literals.h"

#include <QKeyEvent>
#include <QPointer>
#include <QSaveFile>
#include <QTextStream>

namespace QMWidgets {

CssDoc::CssDoc(QWidget *parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setAccessibleName(tr("Style sheet"));
    new CssSyntaxHighlighter(document());
    applyOwnPalette();
}

/// Leaves Ctrl+A to the menu of the editor, where it applies the sheet; a text would select all.
bool CssDoc::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::SelectAll)) {
        event->ignore();
        return true;
    }
    return QTextEdit::event(event);
}

void CssDoc::applyOwnPalette()
{
    document()->setDefaultFont(QFont(u"Lucida Console"_qs, 12, 50, false));
    setStyleSheet(u"QTextEdit{background: #000060; color: yellow;}"_qs);
}

void CssDoc::slotLoad()
{
    // The dialog runs an event loop of its own, in which the window may go.
    const QPointer<CssDoc> guard(this);
    const QString strFile = FileDialog::getOpenFileName(this);
    if (guard.isNull() || strFile.isEmpty()) {
        return;
    }
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    setPlainText(stream.readAll());
    file.close();
    m_strFileName = strFile;
    emit changeWindowTitle(m_strFileName);
}

void CssDoc::slotSave()
{
    if (m_strFileName.isEmpty()) {
        slotSaveAs();
        return;
    }
    QSaveFile file(m_strFileName);
    // A file in a folder that can't be written to is still saved, in place.
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly)) {
        return;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << toPlainText();
    stream.flush();
    if (stream.status() == QTextStream::Ok && file.commit()) {
        emit changeWindowTitle(m_strFileName);
    }
}

void CssDoc::slotSaveAs()
{
    const QPointer<CssDoc> guard(this);
    const QString strFile = FileDialog::getSaveFileName(this, QString(), m_strFileName);
    if (!guard.isNull() && !strFile.isEmpty()) {
        m_strFileName = strFile;
        slotSave();
    }
}

} // namespace QMWidgets
