#include "CssEditor.h"

#include "CssDoc.h"
#include "Literals.h"

#include <algorithm>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QSet>
#include <QStatusBar>
#include <QToolBar>

namespace QMWidgets {

CssEditor::CssEditor(QWidget *parent)
    : QMainWindow(parent)
    , m_pdoc(new CssDoc(this))
{
    setWindowTitle(tr("CSS Style Editor"));
    // The program ends with its main window, not with the last of these.
    setAttribute(Qt::WA_QuitOnClose, false);
    resize(640, 480);
    setCentralWidget(m_pdoc);
    connect(m_pdoc, &CssDoc::changeWindowTitle, this, &CssEditor::slotChangeWindowTitle);
    createActions();
    statusBar()->showMessage(tr("Ready"));
    m_pdoc->setFocus();
}

void CssEditor::createActions()
{
    QMenu *pmenuFile = menuBar()->addMenu(tr("&File"));
    QMenu *pmenuHelp = menuBar()->addMenu(tr("&Help"));
    QToolBar *ptool = addToolBar(tr("Operations"));
    ptool->setObjectName(u"Operations"_qs);

    pmenuFile->addAction(tr("&Open..."), m_pdoc, &CssDoc::slotLoad, QKeySequence(u"CTRL+O"_qs));
    pmenuFile->addAction(tr("&Save"), m_pdoc, &CssDoc::slotSave, QKeySequence(u"CTRL+S"_qs));
    pmenuFile->addAction(
        tr("&SetInfo"), this, &CssEditor::slotApplyToolTipsInfo, QKeySequence(u"CTRL+I"_qs));
    pmenuFile->addAction(tr("&Apply"), this, &CssEditor::slotApply, QKeySequence(u"CTRL+A"_qs));
    pmenuFile->addAction(tr("S&ave As..."), m_pdoc, &CssDoc::slotSaveAs);
    ptool->addActions(pmenuFile->actions());
    pmenuFile->addSeparator();

    pmenuHelp->addAction(tr("&About"), this, &CssEditor::slotAbout);
    pmenuHelp->addAction(tr("&Reset"), this, &CssEditor::slotReset);
}

void CssEditor::slotChangeWindowTitle(const QString &strTitle)
{
    setWindowTitle(strTitle);
}

void CssEditor::slotApply()
{
    qApp->setStyleSheet(m_pdoc->toPlainText());
    m_pdoc->applyOwnPalette();
}

void CssEditor::slotReset()
{
    qApp->setStyleSheet(u""_qs);
}

void CssEditor::slotApplyToolTipsInfo()
{
    // A dialog is a top-level widget and a descendant of its parent's window: it counts once.
    QSet<QWidget *> visited;
    const auto apply = [&visited](QWidget *pwgt) {
        if (!pwgt->objectName().isEmpty() && !visited.contains(pwgt)) {
            pwgt->setToolTip(QString::fromLatin1(pwgt->metaObject()->className()) + u'\n'
                + pwgt->objectName() + u'\n' + pwgt->toolTip());
        }
        visited.insert(pwgt);
    };
    const QWidgetList lstTop = QApplication::topLevelWidgets();
    for (QWidget *pwgtTop : lstTop) {
        apply(pwgtTop);
        const QWidgetList lst = pwgtTop->findChildren<QWidget *>();
        std::for_each(lst.cbegin(), lst.cend(), apply);
    }
}

void CssEditor::slotAbout()
{
    QMessageBox::about(this, tr("About"), tr("CSS Style Editor"));
}

} // namespace QMWidgets
