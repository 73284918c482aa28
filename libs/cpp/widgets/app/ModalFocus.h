#pragma once

class QObject;

namespace QMWidgets {

/// Gives the focus on to the modal dialog whenever a window gets it that the dialog blocks.
///
/// When a dialog over another one closes, the window manager may hand the focus to the parent of
/// both: the keys would then reach nobody. Lasts as long as the context.
void keepFocusInModalDialogs(QObject *pcontext);

} // namespace QMWidgets
