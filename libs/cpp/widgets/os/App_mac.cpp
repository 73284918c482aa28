#include "App_mac.h"

#include "App.h"
#include "ApplicationService.h"
#include "Launcher.h"
#include <QDebug>
#include <QFileOpenEvent>

namespace {

Desktop::ApplicationService *service()
{
    static auto *const pservice
        = new Desktop::ApplicationService(Desktop::applicationId(), App_mac::instance());
    return pservice;
}

// Brings the program in front of the others, from the dock as well.
void raiseMainWidget()
{
    if (QWidget *pwgt = QMWidgets::App::mainWidget()) {
        pwgt->setWindowState(pwgt->windowState() & ~Qt::WindowMinimized);
        pwgt->show();
        pwgt->raise();
        pwgt->activateWindow();
    }
}

}

App_mac *App_mac::instance()
{
    static App_mac *papp = nullptr;
    if (papp == nullptr) {
        papp = new App_mac; // it lasts as long as the process
        connect(service(), &Desktop::ApplicationService::activated, papp, &App_mac::slotActivated);
        connect(service(), &Desktop::ApplicationService::openRequested, papp,
            &App_mac::slotOpenRequested);
        connect(service(), &Desktop::ApplicationService::failed, papp,
            [] { qWarning("MyPrivate::MyPrivate() : class_addMethod failed!"); });
    }
    return papp;
}

App_mac::App_mac() = default;

bool App_mac::handOverToRunningInstance(const QStringList &lstPaths)
{
    constexpr int limitMs = 1000;
    instance();
    return service()->handOver(lstPaths, limitMs);
}

void App_mac::withdraw()
{
    service()->withdraw();
}

void App_mac::slotActivated()
{
    raiseMainWidget();
    emit dockClicked();
    if (auto *papp = QMWidgets::App::theApp()) {
        emit papp->dockClicked();
    }
}

void App_mac::slotOpenRequested(const QStringList &lstPaths)
{
    raiseMainWidget();
    for (const QString &strPath : lstPaths) {
        QCoreApplication::postEvent(
            QCoreApplication::instance(), new QFileOpenEvent(QUrl::fromLocalFile(strPath)));
    }
}
