// The main widget of an App, the screen, and the scripted use of widgets.
#include "App.h"

#include "BlenderWidget.h"
#include "Literals.h"
#include <algorithm>
#include <QIcon>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScreen>

namespace QMWidgets {

namespace {

QSize desktopSize()
{
    const QScreen *pscreen = QGuiApplication::primaryScreen();
    return pscreen != nullptr ? pscreen->size() : QSize(0, 0);
}

void sendMouse(QWidget *pwgt, const QPoint &pt, QEvent::Type type, Qt::MouseButtons buttons)
{
    if (pwgt == nullptr) {
        return;
    }
    QMouseEvent event(type, pt, pwgt->mapToGlobal(pt), Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(pwgt, &event);
}

}

QWidget *App::mainWidget()
{
    const App *papp = theApp();
    return papp != nullptr ? papp->m_pwgtMain.data() : nullptr;
}

void App::setMainWidget(QWidget *pwgt)
{
    App *papp = theApp();
    if (papp == nullptr) {
        return;
    }
    papp->m_pwgtMain = pwgt;
    delete papp->m_pblender;
    if (pwgt == nullptr) {
        return;
    }
    papp->m_pblender = new BlenderWidget(pwgt);
    papp->m_pblender->setObjectName(u"MainWidgetBlender"_qs);
    papp->m_pblender->setAutoFillBackground(true);
    papp->m_pblender->hide();

    auto *pmenuBar = new QMenuBar(pwgt);
    auto *pmenu = new QMenu(applicationName(), pwgt);
    pmenu->addAction(QIcon(u":/appicon.png"_qs), tr("About"), papp, &App::slotAbout);
    pmenuBar->addMenu(pmenu);
    if (pwgt->layout() != nullptr) {
        // Beside the layout the bar would lie over the widget's first row.
        pwgt->layout()->setMenuBar(pmenuBar);
    }
    pmenuBar->show();
}

void App::slotSetBlendMainWidget(bool b)
{
    if (m_pblender.isNull() || m_pwgtMain.isNull()) {
        return;
    }
    if (b) {
        m_pblender->setGeometry(m_pwgtMain->rect());
        m_pblender->show();
        m_pblender->raise();
    } else {
        m_pblender->hide();
    }
}

// Scripted use of widgets

bool App::isChildOf(QObject *pobj, QObject *pparent)
{
    while (pobj != nullptr && pobj != pparent) {
        pobj = pobj->parent();
    }
    return pobj != nullptr;
}

QWidget *App::getWidgetByClassName(const QString &strClass)
{
    QWidget *pwgtHidden = nullptr;
    const QWidgetList lstWidgets = QApplication::allWidgets();
    for (QWidget *pwgt : lstWidgets) {
        if (QString::fromLatin1(pwgt->metaObject()->className()) == strClass) {
            if (pwgt->isVisible()) {
                return pwgt;
            }
            pwgtHidden = pwgt;
        }
    }
    return pwgtHidden;
}

void App::mousePress(QWidget *pwgt, const QPoint &pt)
{
    sendMouse(pwgt, pt, QEvent::MouseButtonPress, Qt::LeftButton);
}

void App::mouseRelease(QWidget *pwgt, const QPoint &pt)
{
    sendMouse(pwgt, pt, QEvent::MouseButtonRelease, Qt::NoButton);
}

void App::mouseClick(QWidget *pwgt, const QPoint &pt)
{
    const QPointer<QWidget> pwgtAlive(pwgt);
    mousePress(pwgt, pt);
    mouseRelease(pwgtAlive, pt);
}

QPoint App::calculateMousePosition(const QWidget *pwgt, double dX, double dY)
{
    return pwgt == nullptr
        ? QPoint()
        : QPoint(qRound(dX * (pwgt->width() - 1)), qRound(dY * (pwgt->height() - 1)));
}

// The screen

double App::devicePixelRatio()
{
    const QScreen *pscreen = QGuiApplication::primaryScreen();
    return pscreen != nullptr ? pscreen->devicePixelRatio() : 1.0;
}

bool App::isPocketDevice()
{
    constexpr int pocketSize = 480;
    return smallestDimention() < pocketSize;
}

int App::smallestDimention()
{
    return std::min(desktopSize().width(), desktopSize().height());
}

int App::biggestDimention()
{
    return std::max(desktopSize().width(), desktopSize().height());
}

bool App::isLandscape()
{
    return desktopSize().width() > desktopSize().height();
}

bool App::isPortrait()
{
    return !isLandscape();
}

} // namespace QMWidgets
