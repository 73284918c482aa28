#include "ScratchHome.h"

#include "Literals.h"
#include <QDir>
#include <QFile>

ScratchHome::ScratchHome()
    : m_dir(QDir::tempPath() + u"/calderin-test-XXXXXX"_qs)
{
    const QByteArray home = QFile::encodeName(m_dir.path());
    const QString runtime = m_dir.filePath(u"run"_qs);
    QDir().mkpath(runtime);
    QDir().mkpath(m_dir.filePath(u"tmp"_qs));
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("HOME", home);
    qputenv("TMPDIR", home + "/tmp");
    qputenv("XDG_CONFIG_HOME", home + "/.config");
    qputenv("XDG_DATA_HOME", home + "/.local/share");
    qputenv("XDG_CACHE_HOME", home + "/.cache");
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
    // Nobody's own session is asked to open folders; a test that needs a bus starts one.
    if (!qEnvironmentVariableIsSet("CALDERIN_TEST_BUS")) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}
