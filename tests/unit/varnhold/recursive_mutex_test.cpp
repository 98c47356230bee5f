#include "varnhold/recursive_mutex.h"

#include <gtest/gtest.h>

#include <thread>

TEST(RecursiveMutex, CarriesTheNameGivenAtConstruction) { EXPECT_EQ(xrecursive_mutex("a name").getPrompt(), "a name"); }

TEST(RecursiveMutex, SetPromptReplacesTheName) {
    xrecursive_mutex mutex;
    EXPECT_EQ(mutex.getPrompt(), "");
    mutex.setPrompt("later");
    EXPECT_EQ(mutex.getPrompt(), "later");
}

TEST(RecursiveMutex, IsTakenAgainByItsHolderAndRefusedToOthersUntilReleased) {
    xrecursive_mutex mutex;
    const auto otherThreadGetsIt = [&mutex] {
        bool got = false;
        std::thread([&] {
            got = mutex.try_lock();
            if (got) {
                mutex.unlock();
            }
        }).join();
        return got;
    };
    {
        xrecursive_mutex::scoped_lock outer(mutex);
        {
            xrecursive_mutex::scoped_lock inner(mutex);
            EXPECT_FALSE(otherThreadGetsIt());
        }
        EXPECT_FALSE(otherThreadGetsIt());
    }
    EXPECT_TRUE(otherThreadGetsIt());
}
