#pragma once

#include <QFrame>
#include <QPointer>

namespace QMWidgets {

class PromoAdsBar;
class PromoMenuBar;

/// Base class of an application's main page: it brings the strip of buttons at the page's top and,
/// on demand, the banner. The subclass puts both into its own layout.
class PromoMainPage : public QFrame
{
    Q_OBJECT

public:
    /// bQuitSignal: the menu's Quit reaches the page as quitApp() and nothing else happens; else
    /// Quit ends the event loop.
    explicit PromoMainPage(QWidget *parent = nullptr, bool bQuitSignal = false);

    /// The strip; a child of the page, never null.
    PromoMenuBar *promoMenuBar() const;

    /// The banner; a child of the page, made by the first call.
    PromoAdsBar *promoAdsBar();

signals:
    void quitApp();

public slots:
    /// The user has opened an advertised application. Nothing happens here; subclasses may react.
    virtual void slotAdClicked();

private:
    PromoMenuBar *m_pmenuBar = nullptr;
    QPointer<PromoAdsBar> m_padsBar;
};

} // namespace QMWidgets
