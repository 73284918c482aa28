#include "TagReceipt.h"

namespace QMMultiMedia {

TagReceipt::State TagReceipt::state() const
{
    const std::lock_guard lock(m_mutex);
    return m_state;
}

QString TagReceipt::error() const
{
    const std::lock_guard lock(m_mutex);
    return m_error;
}

QStringList TagReceipt::lost() const
{
    const std::lock_guard lock(m_mutex);
    return m_lost;
}

void TagReceipt::setState(State state, const QString &error)
{
    const std::lock_guard lock(m_mutex);
    m_state = state;
    m_error = error;
}

void TagReceipt::setLost(const QStringList &fields)
{
    const std::lock_guard lock(m_mutex);
    m_lost = fields;
}

}
