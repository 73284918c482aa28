#pragma once

#include <QString>

/// The folder of a run, below the destination and named by the time of its start.
///
/// Held for the life of the object: a run of another process that begins in the same second takes
/// the next second's name, since both would choose the same free names for their files. A run that
/// is over doesn't hold its folder any more, and nothing is left behind by a process that was
/// killed.
class RunFolder
{
public:
    /// Makes the folder and waits, up to a second for each run that is in the way, until it is
    /// ours.
    /// @param destination ends in "/"
    explicit RunFolder(const QString &destination);
    ~RunFolder();

    /// Ends in "/"; a folder that couldn't be made isn't there.
    QString path() const { return m_path; }

private:
    Q_DISABLE_COPY(RunFolder)
    bool hold();

    QString m_path;
    int m_descriptor = -1;
};
