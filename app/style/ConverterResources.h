#pragma once

#include <QString>

/// Makes the compiled artwork and the style sheet reachable under ":/".
///
/// The resources lie in a static library, which the linker would leave out of a program that only
/// names them by path: every program and test that shows a window calls this once, after the
/// application object is made. A second call does nothing.
void initConverterResources();

/// The style sheet of the whole application, for QApplication::setStyleSheet.
///
/// Makes the resources reachable first, since the sheet names them.
QString converterStyleSheet();
