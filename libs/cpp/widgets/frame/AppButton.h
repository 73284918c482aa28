#pragma once

#include <QPushButton>

namespace QMWidgets {

class AppMenu;

/// The strip's button that opens the application's own menu.
class AppButton : public QPushButton
{
    Q_OBJECT

public:
    explicit AppButton(QWidget *parent = nullptr);

    /// The menu that the button opens; owned by the button, never null.
    AppMenu *appMenu() const;

    void hideIntroAction();
    void hideRateAction();
    void hideMoreAppsAction();
    void hideShareAction();
    void hideJoinAction();
    void hideSupportPageAction();

signals:
    void quitPressed();

private:
    AppMenu *m_pmenu = nullptr;
};

} // namespace QMWidgets
