#include "RunFolder.h"

#include "App.h"
#include "Literals.h"
#include <cerrno>
#include <fcntl.h>
#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QThread>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr unsigned long pollMs = 50;

}

RunFolder::RunFolder(const QString &destination)
{
    for (;;) {
        // The system's language may have digits of its own.
        m_path = destination
            + QLocale::c().toString(QDateTime::currentDateTime(), u"yyyy-MM-dd_hh-mm-ss"_qs)
            + u"/"_qs;
        QMWidgets::App::ensureDirExists(m_path);
        if (hold()) {
            return;
        }
        QThread::msleep(pollMs);
    }
}

RunFolder::~RunFolder()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

/// False only while another run holds the folder: a file system without locks is no obstacle.
bool RunFolder::hold()
{
    m_descriptor
        = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_descriptor < 0 || ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) {
        return true;
    }
    ::close(m_descriptor);
    m_descriptor = -1;
    return false;
}
