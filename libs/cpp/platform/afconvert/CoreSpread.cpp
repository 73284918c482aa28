#include "CoreSpread.h"

#include <algorithm>
#include <sched.h>

namespace {

constexpr int noCore = -1;

void moveTo(int core, const cpu_set_t &allowed)
{
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(core, &one);
    if (::sched_setaffinity(0, sizeof one, &one) == 0) {
        ::sched_setaffinity(0, sizeof allowed, &allowed);
    }
}

}

CoreSpread::CoreSpread(std::size_t threads)
    : m_cores(threads)
{
    for (std::atomic<int> &core : m_cores) {
        core = noCore;
    }
}

void CoreSpread::look(std::size_t thread)
{
    const int mine = ::sched_getcpu();
    m_cores[thread] = mine;
    cpu_set_t allowed;
    if (mine < 0 || !isTaken(mine, thread)
        || ::sched_getaffinity(0, sizeof allowed, &allowed) != 0) {
        return;
    }
    for (int core = 0; core < CPU_SETSIZE; ++core) {
        if (CPU_ISSET(core, &allowed) && !isTaken(core, m_cores.size())) {
            moveTo(core, allowed);
            m_cores[thread] = core;
            return;
        }
    }
}

void CoreSpread::leave(std::size_t thread)
{
    m_cores[thread] = noCore;
}

/// Whether one of the first threads, so many of them, is on the core.
bool CoreSpread::isTaken(int core, std::size_t threads) const
{
    return std::any_of(m_cores.begin(), m_cores.begin() + static_cast<std::ptrdiff_t>(threads),
        [core](const std::atomic<int> &other) { return other == core; });
}
