#pragma once

#include <QTextEdit>

namespace QMWidgets {

/// The text of the style editor and its file.
class CssDoc : public QTextEdit
{
    Q_OBJECT

public:
    explicit CssDoc(QWidget *parent = nullptr);

    /// Gives the editor its own look, whatever the application's style sheet does to the others.
    void applyOwnPalette();

signals:
    /// Carries the path of the file that was read or written.
    void changeWindowTitle(const QString &strTitle);

public slots:
    // A file that can't be read or written is passed over.
    void slotLoad();
    void slotSave();
    void slotSaveAs();

protected:
    bool event(QEvent *event) override;

private:
    QString m_strFileName;
};

} // namespace QMWidgets
