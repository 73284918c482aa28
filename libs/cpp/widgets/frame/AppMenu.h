#pragma once

#include <QMenu>

namespace QMWidgets {

/// The application's own menu: rating, introduction, sharing, support, about, quit.
class AppMenu : public QMenu
{
    Q_OBJECT

public:
    explicit AppMenu(QWidget *parent = nullptr);

    void hideIntroAction();
    void hideRateAction();
    void hideMoreAppsAction();
    void hideShareAction();
    void hideJoinAction();
    void hideSupportPageAction();

signals:
    void quitPressed();

private:
    QAction *m_pactRate = nullptr;
    QAction *m_pactIntro = nullptr;
    QAction *m_pactShare = nullptr;
    QAction *m_pactJoin = nullptr;
    QAction *m_pactMoreApps = nullptr;
    QAction *m_pactSupportPage = nullptr;
};

} // namespace QMWidgets
