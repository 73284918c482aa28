#pragma once

#include <QMainWindow>

namespace QMWidgets {

class CssDoc;

/// A window in which a style sheet for the running application is written and tried out.
class CssEditor : public QMainWindow
{
    Q_OBJECT

public:
    explicit CssEditor(QWidget *parent = nullptr);

public slots:
    void slotChangeWindowTitle(const QString &strTitle);

    /// Gives the text to the application as its style sheet.
    void slotApply();

    /// Takes the application's style sheet away.
    void slotReset();

    /// Puts class name and object name into the tool tips of all named widgets.
    void slotApplyToolTipsInfo();
    void slotAbout();

private:
    void createActions();

    CssDoc *m_pdoc = nullptr;
};

} // namespace QMWidgets
