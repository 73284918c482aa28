#pragma once

#include <QString>

class QUrl;

/// The operating system's side of Os: each operation as one call of the desktop's services.
class Os_Mac
{
public:
    Os_Mac() = delete;

    /// Passes the system's notices on as signals of Os.
    static void initNotifications();

    /// nNumber: the badge; a negative one removes it.
    static void setBadge(int nNumber);
    static bool isAutorunAtLogon();
    static void changeAutorunAtLogon(bool bAutorun);
    static bool openFolderAndSelectFile(const QString &strPath);
    static bool moveToTrash(const QString &strPath);
    static float scaleFactor();
    static void setDisableSleepMode(bool bDisable);

    /// There is no store here: shows the program's own dialog.
    static void requestReview();
};
