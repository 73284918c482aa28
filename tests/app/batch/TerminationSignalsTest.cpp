#include "TerminationSignals.h"
#include "MediaMaker.h"

#include <csignal>
#include <gtest/gtest.h>
#include <QSignalSpy>

namespace {

bool isIgnored(int number)
{
    struct sigaction action
    {
    };
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}

TEST(TerminationSignals, LeavesAloneWhatIsIgnoredFromOutside)
{
    std::signal(SIGHUP, SIG_IGN);
    std::signal(SIGTERM, SIG_DFL);
    {
        const TerminationSignals termination(nullptr);
        QSignalSpy requested(&termination, &TerminationSignals::requested);
        ASSERT_EQ(std::raise(SIGHUP), 0);
        ASSERT_EQ(std::raise(SIGTERM), 0);
        ASSERT_TRUE(MediaMaker::waitFor([&requested] { return !requested.isEmpty(); }));
        EXPECT_EQ(requested.size(), 1);
        EXPECT_EQ(requested[0][0].toInt(), SIGTERM);
    }
    EXPECT_TRUE(isIgnored(SIGHUP));
    EXPECT_FALSE(isIgnored(SIGTERM));
    std::signal(SIGHUP, SIG_DFL);

    // A terminal may hang up twice.
    const TerminationSignals termination(nullptr);
    QSignalSpy requested(&termination, &TerminationSignals::requested);
    for (int count = 1; count <= 2; ++count) {
        ASSERT_EQ(std::raise(SIGHUP), 0);
        ASSERT_TRUE(MediaMaker::waitFor([&] { return requested.size() == count; }));
    }
}
