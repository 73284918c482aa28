#include "Handle.h"

#include <gtest/gtest.h>

namespace {

struct Counted
{
    explicit Counted(int *alive)
        : m_pAlive(alive)
    {
        ++*m_pAlive;
    }
    virtual ~Counted() { --*m_pAlive; }
    int *m_pAlive;
};

struct Derived : Counted
{
    using Counted::Counted;
};

}

TEST(Handle, TheLastOneDeletes)
{
    int alive = 0;
    {
        MTools::Handle<Counted> first(new Derived(&alive)); // NOLINT: the handle takes it over
        MTools::Handle<Counted> second = first;
        MTools::Handle<Counted> third;
        third = second;
        const auto &same = third;
        third = same;
        EXPECT_EQ(first.count(), 3);
        first = MTools::Handle<Counted>(new Derived(&alive)); // NOLINT: the handle takes it over
        EXPECT_EQ(alive, 2);
        second = nullptr;
        third = std::move(first);
        EXPECT_EQ(third->m_pAlive, &alive);
    }
    EXPECT_EQ(alive, 0);
}

TEST(Handle, NullThrows)
{
    const MTools::Handle<int> null(static_cast<int *>(nullptr));
    EXPECT_TRUE(null.isNull());
    try {
        ++*null;
        FAIL() << "dereferenced";
    } catch (const MTools::Error &error) {
        EXPECT_STREQ(error.what(), "Null handle");
    }
}
