#pragma once

#include <QString>

namespace Desktop {

/// The name of the program's desktop entry with ".desktop": QGuiApplication::desktopFileName(), or
/// the organisation's domain turned round and the application's name without what a bus name can't
/// hold, e.g. "example.velmora.CalderinM4A.desktop".
QString desktopEntryName();

/// The same without ".desktop": the program's name on the session bus.
QString applicationId();

/// Shows a number on the program's icon in docks that know it; a negative one removes it.
void setBadge(int nNumber);

/// Whether the user's autostart folder holds an entry that starts this very program.
bool isAutostarted();

/// Removes the program's autostart entry, and writes it anew if bAutostart. False if that failed.
bool setAutostarted(bool bAutostart);

} // namespace Desktop
