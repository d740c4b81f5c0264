#ifndef ZELTYPES_FUZZ_FUZZMEMORYBUDGET_H
#define ZELTYPES_FUZZ_FUZZMEMORYBUDGET_H

// A forged sequence count makes a reader resize its sequence to that count;
// where memory runs out, the container throws std::bad_alloc, which is the
// documented outcome. Under the sanitizer allocator a failed operator new
// aborts instead of throwing, so a fuzz target that includes this header (in
// one unit only) replaces the global allocation functions: a request above
// the budget throws std::bad_alloc as an exhausted heap would, everything
// else goes to malloc, which the sanitizer still watches.

#include <cstddef>
#include <cstdlib>
#include <new>

namespace ZelFuzz
{
constexpr std::size_t c_ulALLOC_BUDGET = std::size_t(16) << 20;

inline bool& BudgetActive()
{
    static bool s_bActive = false;
    return s_bActive;
}

class CBudgetScope
{
public:
    CBudgetScope() { BudgetActive() = true; }
    ~CBudgetScope() { BudgetActive() = false; }
    CBudgetScope(const CBudgetScope&) = delete;
    CBudgetScope& operator=(const CBudgetScope&) = delete;
};

inline void* BudgetAlloc(std::size_t ulSize)
{
    if (BudgetActive() && ulSize > c_ulALLOC_BUDGET)
    {
        return nullptr;
    }
    return std::malloc(ulSize != 0 ? ulSize : 1);
}
} // namespace ZelFuzz

void* operator new(std::size_t ulSize)
{
    void* p = ZelFuzz::BudgetAlloc(ulSize);
    if (p == nullptr)
    {
        throw std::bad_alloc();
    }
    return p;
}
void* operator new[](std::size_t ulSize)
{
    return operator new(ulSize);
}
void* operator new(std::size_t ulSize, const std::nothrow_t&) noexcept
{
    return ZelFuzz::BudgetAlloc(ulSize);
}
void* operator new[](std::size_t ulSize, const std::nothrow_t&) noexcept
{
    return ZelFuzz::BudgetAlloc(ulSize);
}
void operator delete(void* p) noexcept
{
    std::free(p);
}
void operator delete[](void* p) noexcept
{
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}
void operator delete[](void* p, std::size_t) noexcept
{
    std::free(p);
}
void operator delete(void* p, const std::nothrow_t&) noexcept
{
    std::free(p);
}
void operator delete[](void* p, const std::nothrow_t&) noexcept
{
    std::free(p);
}

#endif
