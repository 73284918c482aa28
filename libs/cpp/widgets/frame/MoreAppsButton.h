#pragma once

#include <QPushButton>

class QPixmap;
class QSignalMapper;

namespace QMWidgets {

/// A button with a catalogue menu of its own, for pages that have no strip.
class MoreAppsButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MoreAppsButton(QWidget *parent = nullptr);

    /// Adds an entry that opens strLink by way of the application's store address; nothing is added
    /// when there is no such address.
    void addMenuLink(const QPixmap &pixmap, const QString &strText, const QString &strLink);

    /// Adds an entry for the store page of the product strName with the identifier strId.
    void addMenuAppLink(const QPixmap &pixmap, const QString &strText, const QString &strName,
        const QString &strId);

    /// Adds an action that its owner has connected.
    void addMenuAction(QAction *pact);

    void addMenuSeparator();

public slots:
    /// Opens an address with the desktop's program for it.
    void slotCallUrl(const QString &strUrl);

private:
    QMenu *m_pmenu = nullptr;
    QSignalMapper *m_pmapper = nullptr;
};

} // namespace QMWidgets
