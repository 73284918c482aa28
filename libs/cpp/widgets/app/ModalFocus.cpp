#include "ModalFocus.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace QMWidgets {

namespace {

bool isWithin(const QWidget *pwgt, const QWidget *pwgtOuter)
{
    for (; pwgt != nullptr; pwgt = pwgt->parentWidget()) {
        if (pwgt == pwgtOuter) {
            return true;
        }
    }
    return false;
}

bool isBlocked(const QWidget *pwgtWindow, const QWidget *pwgtModal)
{
    if (isWithin(pwgtWindow, pwgtModal)) {
        return false;
    }
    return pwgtModal->windowModality() == Qt::ApplicationModal || isWithin(pwgtModal, pwgtWindow);
}

void giveFocusOn()
{
    const QWidget *pwgtActive = QApplication::activeWindow();
    QWidget *pwgtModal = QApplication::activeModalWidget();
    if (pwgtActive != nullptr && pwgtModal != nullptr && pwgtModal->isVisible()
        && QApplication::activePopupWidget() == nullptr && isBlocked(pwgtActive, pwgtModal)) {
        pwgtModal->activateWindow();
    }
}

}

void keepFocusInModalDialogs(QObject *pcontext)
{
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, pcontext, [pcontext] {
        // Not before the window system and the dialog that closes have had their say.
        QTimer::singleShot(0, pcontext, &giveFocusOn);
    });
}

} // namespace QMWidgets
