#pragma once

#include <mutex>
#include <QString>
#include <QStringList>

namespace QMMultiMedia {

/// What became of the tags of one written file, to be asked after the writing.
///
/// Shared between who wrote and who wants to know; safe to be used from several threads. The state
/// is final once PendingExports::waitForAll() has returned.
class TagReceipt
{
public:
    enum class State
    {
        Nothing, ///< nothing was written: the source had no tags but what lost() tells
        Pending, ///< the export isn't over
        Written, ///< the file has its tags
        Failed ///< the file is as it was, without tags
    };

    State state() const;
    /// Why it failed, in plain words; empty if it didn't.
    QString error() const;
    /// The names of the fields that the source has and the file can't hold, or whose content
    /// couldn't be read or encoded ("picture"); empty if nothing was lost.
    QStringList lost() const;

    void setState(State state, const QString &error = {});
    void setLost(const QStringList &fields);

private:
    mutable std::mutex m_mutex;
    State m_state = State::Nothing;
    QString m_error;
    QStringList m_lost;
};

}
