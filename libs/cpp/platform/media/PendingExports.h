#pragma once

#include <functional>
#include <QString>

/// The exports of this process that aren't over yet, handlers included.
namespace PendingExports {

/// How many run or wait.
int count();

/// Waits until none is left; returns at once if there is none.
///
/// While it waits, the progress function is called about ten times a second on the caller's thread
/// with the number of exports that are left and the milliseconds waited so far; it may process
/// events. Not to be called from an export's handler.
void waitForAll(const std::function<void(int left, qint64 elapsedMs)> &progress = {});

/// Waits until no export writes to this path any more. Whoever looks for a free name in a folder
/// asks it first, so that a name in flight doesn't count as taken.
void waitForOutput(const QString &path);

}
