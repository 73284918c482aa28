#pragma once

#include <QString>
#include <QTemporaryDir>

/// A HOME of its own for one test process, so that tests neither see nor touch the user's files and
/// run in any order and in parallel.
///
/// Construct it before the application object. Sets HOME, TMPDIR, the XDG folders, XDG_RUNTIME_DIR
/// (mode 0700) and, unless the environment says otherwise, QT_QPA_PLATFORM=offscreen; the folder is
/// removed with it.
class ScratchHome
{
public:
    ScratchHome();

    /// The folder, without a trailing separator.
    QString path() const { return m_dir.path(); }

private:
    Q_DISABLE_COPY(ScratchHome)
    QTemporaryDir m_dir;
};
