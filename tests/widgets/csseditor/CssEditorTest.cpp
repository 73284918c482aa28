#include "CssEditor.h"
#include "CssDoc.h"
#include "CssSyntaxHighlighter.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "PromoMainPage.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTimer>
#include <QToolBar>

using namespace QMWidgets;

namespace {

/// The colours of a text, a letter a character: g gray, c cyan, G green, w white, "." none.
QString colors(const QTextDocument &doc)
{
    QStringList lst;
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next()) {
        QString str(block.length() - 1, u'.');
        const auto formats = block.layout()->formats();
        for (const QTextLayout::FormatRange &range : formats) {
            const QColor color = range.format.foreground().color();
            const QChar c = color == QColor(Qt::darkGray) ? u'g'
                : color == QColor(Qt::cyan)               ? u'c'
                : color == QColor(Qt::green)              ? u'G'
                                                          : u'w';
            str.replace(range.start, range.length, QString(range.length, c));
        }
        lst.append(str);
    }
    return lst.join(u'\n');
}

TEST(CssSyntaxHighlighter, coloursWhatItKnows)
{
    const struct
    {
        QString text;
        QString colors;
    } rows[] = {
        {u"a // if 1"_qs, u"..ggggggg"_qs},
        {u"Q#P { 1"_qs, u".GGGGGG"_qs},
        {u"a1\u0663x"_qs, u".cc."_qs},
        {u"format foreach"_qs, u"www... wwwwwww"_qs},
        {u"a/*b*/c"_qs, u".ggggg."_qs},
        {u"/*/ x"_qs, u"ggg.."_qs},
        {u"/*a\n\nb*/if\n/"_qs, u"ggg\n\ngggww\nw"_qs},
        {u"'a\"b"_qs, u"ccc."_qs},
        {u"\"a\\\"b\" x"_qs, u"cccccc.."_qs},
        {u"'a\nb' /"_qs, u"cc\ncc.w"_qs},
        {u"x>>>"_qs, u".www"_qs},
        {u"\U0001F3B5\U0001F3B5;"_qs, u"....w"_qs},
    };
    for (const auto &row : rows) {
        QTextDocument doc;
        CssSyntaxHighlighter highlighter(&doc);
        doc.setPlainText(row.text);
        highlighter.rehighlight();
        QString strExpected = row.colors;
        EXPECT_EQ(colors(doc).toStdString(), strExpected.replace(u' ', u'.').toStdString())
            << row.text.toStdString();
    }
    QTextDocument doc;
    CssSyntaxHighlighter highlighter(&doc);
    doc.setPlainText(u"/*\n\n*/\n'\n'"_qs);
    highlighter.rehighlight();
    QList<int> states;
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next()) {
        states.append(block.userState());
    }
    EXPECT_EQ(states, (QList<int> {0, 0, -1, 1, -1}));
}

QAction *action(const CssEditor &editor, const QString &strText)
{
    const auto lst = editor.findChildren<QAction *>();
    for (QAction *pact : lst) {
        if (pact->text() == strText) {
            return pact;
        }
    }
    return nullptr;
}

TEST(CssEditor, hasItsActionsInOrder)
{
    const CssEditor editor;
    const auto menus = editor.menuBar()->actions();
    ASSERT_EQ(menus.size(), 2);
    QStringList lst;
    for (const QAction *pmenu : menus) {
        lst.append(pmenu->text());
        for (const QAction *pact : pmenu->menu()->actions()) {
            lst.append(pact->isSeparator() ? u"-"_qs : pact->text() + pact->shortcut().toString());
        }
    }
    EXPECT_EQ(lst,
        (QStringList {u"&File"_qs, u"&Open...Ctrl+O"_qs, u"&SaveCtrl+S"_qs, u"&SetInfoCtrl+I"_qs,
            u"&ApplyCtrl+A"_qs, u"S&ave As..."_qs, u"-"_qs, u"&Help"_qs, u"&About"_qs,
            u"&Reset"_qs}));
    EXPECT_EQ(editor.findChild<QToolBar *>()->windowTitle(), u"Operations"_qs);
    EXPECT_EQ(editor.findChild<QToolBar *>()->actions().size(), 5);
    EXPECT_EQ(editor.findChild<QStatusBar *>()->currentMessage(), u"Ready"_qs);
}

TEST(CssEditor, opensByAKeyOfTheMainPage)
{
    PromoMainPage page;
    page.show();
    QApplication::setActiveWindow(&page);
    QTest::keyClick(&page, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    const auto lst = QApplication::topLevelWidgets();
    const auto it = std::find_if(lst.cbegin(), lst.cend(),
        [](QWidget *pwgt) { return qobject_cast<CssEditor *>(pwgt) != nullptr; });
    ASSERT_NE(it, lst.cend());
    EXPECT_TRUE((*it)->isVisible());
    const QPointer<QWidget> pwgt(*it);
    pwgt->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(pwgt.isNull());
}

TEST(CssEditor, appliesAndResetsTheSheet)
{
    CssEditor editor;
    CssEditor other;
    auto *pdoc = editor.findChild<CssDoc *>();
    pdoc->setPlainText(u"QLabel { color: red; }"_qs);
    action(editor, u"&Apply"_qs)->trigger();
    EXPECT_EQ(qApp->styleSheet(), u"QLabel { color: red; }"_qs);
    // By its key as well, which a text would take for itself.
    pdoc->setPlainText(u"QLabel { color: blue; }"_qs);
    editor.show();
    QApplication::setActiveWindow(&editor);
    pdoc->setFocus();
    QTest::keyClick(pdoc, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(qApp->styleSheet(), u"QLabel { color: blue; }"_qs);
    EXPECT_TRUE(pdoc->styleSheet().contains(u"#000060"_qs));
    EXPECT_EQ(pdoc->document()->defaultFont().pointSize(), 12);
    EXPECT_TRUE(other.findChild<CssDoc *>()->toPlainText().isEmpty());
    action(editor, u"&Reset"_qs)->trigger();
    EXPECT_TRUE(qApp->styleSheet().isEmpty());
}

TEST(CssEditor, tellsTheSelectorsInToolTips)
{
    QWidget top;
    top.setObjectName(u"Top"_qs);
    auto *pnamed = new QLabel(&top);
    pnamed->setObjectName(u"InfoLabel"_qs);
    pnamed->setToolTip(u"own"_qs);
    const auto *pplain = new QLabel(&top);
    QDialog dlg(&top);
    dlg.setObjectName(u"Dialog"_qs);
    CssEditor editor;
    action(editor, u"&SetInfo"_qs)->trigger();
    EXPECT_EQ(top.toolTip(), u"QWidget\nTop\n"_qs);
    EXPECT_EQ(pnamed->toolTip(), u"QLabel\nInfoLabel\nown"_qs);
    EXPECT_TRUE(pplain->toolTip().isEmpty());
    EXPECT_EQ(dlg.toolTip(), u"QDialog\nDialog\n"_qs);
    action(editor, u"&SetInfo"_qs)->trigger();
    EXPECT_EQ(pnamed->toolTip(), u"QLabel\nInfoLabel\nQLabel\nInfoLabel\nown"_qs);
}

/// Answers the next file dialog; an empty file cancels it.
void answer(QTimer *ptimer, const QString &strFile)
{
    ptimer->disconnect();
    QObject::connect(ptimer, &QTimer::timeout, ptimer, [ptimer, strFile] {
        auto *pdlg = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (pdlg == nullptr) {
            return;
        }
        if (!strFile.isEmpty()) {
            auto *pedit = pdlg->findChild<QLineEdit *>(u"fileNameEdit"_qs);
            pedit->clear(); // a changed text takes the selection in the list away
            pedit->setText(strFile);
            if (pdlg->selectedFiles() != QStringList {strFile}) {
                return; // the dialog is still reading its folder
            }
        }
        ptimer->stop();
        static_cast<QDialog *>(pdlg)->done(
            strFile.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
    });
    ptimer->start(20);
}

TEST(CssEditor, loadsAndSavesItsText)
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(u"a.qss"_qs);
    const QString strOther = dir.filePath(u"b.qss"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(strFile, "a { \xC3\xA4 }"));
    qApp->setAttribute(Qt::AA_DontUseNativeDialogs);
    QTimer timer;
    CssEditor editor;
    editor.show();
    auto *pdoc = editor.findChild<CssDoc *>();

    answer(&timer, QString());
    pdoc->slotLoad();
    EXPECT_TRUE(pdoc->toPlainText().isEmpty());
    answer(&timer, strFile);
    pdoc->slotLoad();
    EXPECT_EQ(pdoc->toPlainText(), u"a { ä }"_qs);
    EXPECT_EQ(editor.windowTitle(), strFile);

    pdoc->setPlainText(u"b { ö }\n"_qs);
    pdoc->slotSave();
    EXPECT_EQ(MediaMaker::bytesOf(strFile), QByteArray("b { \xC3\xB6 }\n"));
    answer(&timer, strOther);
    pdoc->slotSaveAs();
    EXPECT_EQ(MediaMaker::bytesOf(strOther), QByteArray("b { \xC3\xB6 }\n"));
    EXPECT_EQ(editor.windowTitle(), strOther);

    answer(&timer, dir.filePath(u"none/c.qss"_qs));
    pdoc->slotSaveAs();
    EXPECT_EQ(editor.windowTitle(), strOther);
}

}
