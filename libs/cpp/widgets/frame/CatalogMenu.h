#pragma once

#include <QPixmap>
#include <QString>

class QMenu;
class QSignalMapper;
class QWidget;

namespace QMWidgets {

/// What the strip's catalogue button and its stand-alone twin have in common.

/// Adds an entry whose trigger makes the mapper give the store address of strLink. Without such an
/// address nothing is added.
void addMappedLink(QMenu *pmenu, QSignalMapper *pmapper, const QPixmap &pixmap,
    const QString &strText, const QString &strLink);

/// The store's web address of a product and its identifier ("id" and digits).
QString storePage(const QString &strName, const QString &strId);

/// Shows a menu's icons in this size (pixels). A style sheet's "icon-size" alone gives them the
/// room, but not the size.
void setMenuIconSize(QMenu *pmenu, int nSize);

/// Opens a menu below a button, at its leading edge. Returns at once.
void popupBelow(QMenu *pmenu, const QWidget *pwgt);

} // namespace QMWidgets
