#include "CoreSpread.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <sched.h>
#include <thread>

TEST(CoreSpread, MovesAThreadAwayFromAnothersCore)
{
    cpu_set_t allowed;
    ASSERT_EQ(::sched_getaffinity(0, sizeof allowed, &allowed), 0);
    if (CPU_COUNT(&allowed) < 2) {
        GTEST_SKIP() << "one core only";
    }
    CoreSpread spread(2);
    std::atomic<int> core {-1};
    std::atomic<bool> done {false};
    std::thread first([&] {
        // Stays on its core.
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(::sched_getcpu(), &one);
        EXPECT_EQ(::sched_setaffinity(0, sizeof one, &one), 0);
        spread.look(0);
        core = ::sched_getcpu();
        while (!done) {
            std::this_thread::yield();
        }
        spread.leave(0);
    });
    while (core < 0) {
        std::this_thread::yield();
    }
    std::thread second([&] {
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(core, &one);
        EXPECT_EQ(::sched_setaffinity(0, sizeof one, &one), 0);
        EXPECT_EQ(::sched_setaffinity(0, sizeof allowed, &allowed), 0);
        // The system may bring it back at any time, but not always.
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        int now = core;
        while (now == core && std::chrono::steady_clock::now() < limit) {
            spread.look(1);
            now = ::sched_getcpu();
        }
        EXPECT_NE(now, core);
        cpu_set_t after;
        EXPECT_EQ(::sched_getaffinity(0, sizeof after, &after), 0);
        EXPECT_TRUE(CPU_EQUAL(&after, &allowed));
        spread.leave(1);
    });
    second.join();
    done = true;
    first.join();
}
