#pragma once

#include "Label.h"

#include <QList>
#include <QUrl>

class QPushButton;

namespace QMWidgets {

/// The area that files are dropped on, with a button that asks for them instead.
class DropWidget : public Label
{
    Q_OBJECT

public:
    enum class OpenMode
    {
        Files = 0,
        Directory = 1
    };

    explicit DropWidget(QWidget *parent = nullptr);

    /// What the button asks for; a directory at first.
    void setOpenMode(const OpenMode &mode);
    void setButtonText(const QString &str);
    void setAreaText(const QString &str);

    /// Whether the widget hides when something was dropped; true at first.
    void setHideAfterDrop(bool b);

    /// What was dropped or chosen last.
    QList<QUrl> urls() const;

    // Those of the text and the button, not of a label's own contents.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void dropped(QList<QUrl> lst);

public slots:
    void slotOpenClicked();

protected:
    void dragEnterEvent(QDragEnterEvent *pe) override;
    void dropEvent(QDropEvent *pe) override;

private:
    QList<QUrl> m_lstUrls;
    QLabel *m_plblArea = nullptr;
    QPushButton *m_pcmdOpen = nullptr;
    bool m_bHideAfterDrop = true;
    OpenMode m_mode = OpenMode::Directory;
};

} // namespace QMWidgets
