#pragma once

#include <atomic>
#include <cstddef>
#include <vector>

/// Keeps threads that compute without a pause on different cores.
///
/// Left alone, the system may start two of them on one core and leave them there for up to a tenth
/// of a second while another core has nothing to do.
class CoreSpread
{
public:
    explicit CoreSpread(std::size_t threads);

    /// To be called by each of the threads, with its number, every few milliseconds: moves the
    /// caller to a free core if a thread of a lower number is on its own. Where it may run stays as
    /// it was; if it can't be moved, nothing happens.
    void look(std::size_t thread);

    /// The thread computes no more.
    void leave(std::size_t thread);

private:
    bool isTaken(int core, std::size_t threads) const;

    std::vector<std::atomic<int>> m_cores; ///< of each thread; negative if it has none
};
