// Locks and guards: recursion, mutual exclusion, unlocking on unwinding.
#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/ZelLock.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

using namespace ZELN;

namespace
{

// Gives another thread time to reach its lock call; a blocked thread must
// still be blocked after it.
void Settle()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

} // namespace

TEST(Locks, MutexIsRecursiveAndNeedsAllUnlocks)
{
    ZelTest::CRecordingHook Hook;
    CZelMutex Mutex;
    Mutex.Lock();
    Mutex.Lock();
    std::atomic<bool> bEntered(false);
    std::thread Other(
        [&]
        {
            Mutex.Lock();
            bEntered = true;
            Mutex.Unlock();
        });
    Settle();
    EXPECT_FALSE(bEntered);
    Mutex.Unlock();
    Settle();
    EXPECT_FALSE(bEntered) << "one Unlock of two must keep the other thread out";
    Mutex.Unlock();
    Other.join();
    EXPECT_TRUE(bEntered);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(Locks, ReadersExcludeEachOther)
{
    CZelReaderWriterLock Lock;
    Lock.ReadLock();
    std::atomic<bool> bEntered(false);
    std::thread Reader(
        [&]
        {
            Lock.ReadLock();
            bEntered = true;
            Lock.ReadUnlock();
        });
    Settle();
    EXPECT_FALSE(bEntered);
    Lock.ReadUnlock();
    Reader.join();
    EXPECT_TRUE(bEntered);
}

TEST(Locks, ReadAndWriteAreTheSameRecursiveLock)
{
    CZelReaderWriterLock Lock;
    IZelReaderWriterLock& rInterface = Lock;
    rInterface.WriteLock();
    rInterface.ReadLock(); // recursive for the owner
    std::atomic<bool> bEntered(false);
    std::thread Writer(
        [&]
        {
            rInterface.WriteLock();
            bEntered = true;
            rInterface.WriteUnlock();
        });
    Settle();
    EXPECT_FALSE(bEntered);
    rInterface.ReadUnlock();
    Settle();
    EXPECT_FALSE(bEntered);
    rInterface.WriteUnlock();
    Writer.join();
    EXPECT_TRUE(bEntered);
}

TEST(Locks, GuardLocksAndUnlocksThroughTheInterface)
{
    CZelMutex Mutex;
    CZelLock& rLock = Mutex;
    std::atomic<bool> bEntered(false);
    std::thread Other;
    {
        CZelGuard Guard(rLock);
        Other = std::thread(
            [&]
            {
                CZelGuard Inner(rLock);
                bEntered = true;
            });
        Settle();
        EXPECT_FALSE(bEntered);
    }
    Other.join();
    EXPECT_TRUE(bEntered);
}

TEST(Locks, GuardUnlocksWhenAnExceptionPasses)
{
    CZelMutex Mutex;
    EXPECT_THROW(
        {
            CZelGuard Guard(Mutex);
            throw std::runtime_error("through the guard");
        },
        std::runtime_error);
    std::atomic<bool> bEntered(false);
    std::thread Other(
        [&]
        {
            Mutex.Lock();
            bEntered = true;
            Mutex.Unlock();
        });
    Other.join();
    EXPECT_TRUE(bEntered);
}

TEST(Locks, CountingUnderContention)
{
    CZelMutex Mutex;
    long lCounter = 0;
    auto Work = [&]
    {
        for (int i = 0; i < 20000; ++i)
        {
            CZelGuard Guard(Mutex);
            CZelGuard Again(Mutex); // recursive
            ++lCounter;
        }
    };
    std::thread A(Work);
    std::thread B(Work);
    A.join();
    B.join();
    EXPECT_EQ(lCounter, 40000);
}

TEST(Locks, LibraryStaticLockIsUsable)
{
    CZelMutex& rLock = GetZelStaticLock();
    EXPECT_EQ(&rLock, &GetZelStaticLock());
    CZelGuard Guard(rLock);
    SUCCEED();
}
