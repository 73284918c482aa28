#include "Common.h"

#include "Literals.h"

#include <QEvent>
#include <QPushButton>

namespace QMWidgets {

namespace {

/// Keeps a button as wide as its text.
///
/// A layout may shrink a button whose minimum width the style sheet states down to that width; a
/// long translation would be cut. The sheet's own minimum is known when the button is shown.
class WidthKeeper : public QObject
{
public:
    explicit WidthKeeper(QPushButton *pcmd)
        : QObject(pcmd)
    {
        pcmd->installEventFilter(this);
    }

    bool eventFilter(QObject *pobj, QEvent *pe) override
    {
        // A button that is on its way out still gets events, but isn't one any more.
        auto *pcmd = pe->type() == QEvent::Show ? qobject_cast<QPushButton *>(pobj) : nullptr;
        if (pcmd != nullptr && !pcmd->text().isEmpty()) {
            pcmd->setMinimumWidth(qMax(pcmd->minimumWidth(), pcmd->sizeHint().width()));
        }
        return QObject::eventFilter(pobj, pe);
    }
};

} // namespace

void Common::applyPushButtonDetails(QPushButton *pcmd)
{
    pcmd->setObjectName(u"PushButton"_qs);
    pcmd->setFlat(true);
    pcmd->setMinimumHeight(32);
    new WidthKeeper(pcmd);
}

} // namespace QMWidgets
