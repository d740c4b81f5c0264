#ifndef ZELTYPES_TESTS_ZELALLOCCOUNTER_H
#define ZELTYPES_TESTS_ZELALLOCCOUNTER_H

// A counting replacement of the global allocation functions, for the tests
// of the readers' allocation bound. It defines the replaceable operator new
// and delete: include it in one source file of a test program only.

#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace ZelTest
{
namespace AllocDetail
{
inline std::atomic<bool> s_bCounting(false);
inline std::atomic<uint64_t> s_ulBytes(0);
inline std::atomic<uint64_t> s_ulCalls(0);
} // namespace AllocDetail

// What a call allocated: bytes requested in all, and the number of requests.
struct SAllocCount
{
    uint64_t ulBytes = 0;
    uint64_t ulCalls = 0;
};

// The allocations made by fnCall.
template <class F> SAllocCount CountAllocations(F fnCall)
{
    AllocDetail::s_ulBytes = 0;
    AllocDetail::s_ulCalls = 0;
    AllocDetail::s_bCounting = true;
    fnCall();
    AllocDetail::s_bCounting = false;
    SAllocCount stCount;
    stCount.ulBytes = AllocDetail::s_ulBytes.load();
    stCount.ulCalls = AllocDetail::s_ulCalls.load();
    return stCount;
}

// The stated bound of a binary reader handed ulLength bytes.
inline uint64_t AllocBound(uint64_t ulLength)
{
    return ZELN::ZelIo::c_ulALLOC_FACTOR * ulLength + ZELN::ZelIo::c_ulALLOC_CONSTANT;
}

} // namespace ZelTest

void* operator new(std::size_t ulSize)
{
    if (ZelTest::AllocDetail::s_bCounting.load(std::memory_order_relaxed))
    {
        ZelTest::AllocDetail::s_ulBytes += ulSize;
        ++ZelTest::AllocDetail::s_ulCalls;
    }
    void* p = std::malloc(ulSize != 0 ? ulSize : 1);
    if (p == nullptr)
    {
        throw std::bad_alloc();
    }
    return p;
}

void operator delete(void* p) noexcept
{
    std::free(p);
}

void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}

#endif
