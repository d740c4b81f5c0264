#ifndef ZELTYPES_CORE_COMMON_ZELASSERT_H
#define ZELTYPES_CORE_COMMON_ZELASSERT_H

#include <ZelTypes/Core/Common/ZelExport.h>

#include <boost/function.hpp>

#include <atomic>

namespace ZELN
{

/// Called on every failed check with the expression text, source path and line.
/// The result is part of the signature only: no caller looks at it.
typedef boost::function<bool(const char* szExpression, const char* szFile, int iLine)> ZelAssertHandler;

/// Shared trace entry point of the modules that load the library; never called from inside it.
typedef boost::function<void(const char*, int, int, const char*, int)> ZelTraceHandler;

/// The global assertion hook itself (a reference, not a copy); assigning through it is the same as
/// SetAssertHandler.
ZELTYPES_API ZelAssertHandler& GetAssertHandler();
/// The global trace hook itself (a reference, not a copy).
ZELTYPES_API ZelTraceHandler& GetTraceHandler();
/// Installs rHandler as the assertion hook and returns the previous one; an exception while copying either
/// leaves the hook as it was. Call before starting threads: the hooks have no lock.
ZELTYPES_API ZelAssertHandler SetAssertHandler(const ZelAssertHandler& rHandler);
/// Installs rHandler as the trace hook and returns the previous one; same rules as SetAssertHandler.
ZELTYPES_API ZelTraceHandler SetTraceHandler(const ZelTraceHandler& rHandler);

/// Once-only latch of a report that must not flood a host. Atomic, so that
/// two threads failing the same check at once are well defined; exactly one
/// of them reports.
class CZelOnceLatch
{
public:
    /// True for the first caller only.
    bool First() { return !m_bDone.exchange(true, std::memory_order_relaxed); }

private:
    std::atomic<bool> m_bDone{false};
};

} // namespace ZELN

// The expression text is handed over exactly as written; variadic so that
// expressions with commas (template arguments, calls) pass through whole.
// An empty hook raises boost::bad_function_call from the failing function.
#define ZEL_ASSERT(...)                                                                                      \
    do                                                                                                       \
    {                                                                                                        \
        if (!(__VA_ARGS__))                                                                                  \
        {                                                                                                    \
            (void)::ZELN::GetAssertHandler()(#__VA_ARGS__, __FILE__, __LINE__);                              \
        }                                                                                                    \
    } while (false)

// A check reported once per process: one latch per check site.
#define ZEL_ASSERT_ONCE(...)                                                                                 \
    do                                                                                                       \
    {                                                                                                        \
        if (!(__VA_ARGS__))                                                                                  \
        {                                                                                                    \
            static ::ZELN::CZelOnceLatch s_zelOnceLatch;                                                     \
            if (s_zelOnceLatch.First())                                                                      \
            {                                                                                                \
                (void)::ZELN::GetAssertHandler()(#__VA_ARGS__, __FILE__, __LINE__);                          \
            }                                                                                                \
        }                                                                                                    \
    } while (false)

// A check whose condition is written naturally and whose report carries a
// given text: the text a host sees stays fixed however the code is laid out.
#define ZEL_ASSERT_TEXT(bCondition, szText)                                                                  \
    do                                                                                                       \
    {                                                                                                        \
        if (!(bCondition))                                                                                   \
        {                                                                                                    \
            (void)::ZELN::GetAssertHandler()((szText), __FILE__, __LINE__);                                  \
        }                                                                                                    \
    } while (false)

// The once-only form of ZEL_ASSERT_TEXT.
#define ZEL_ASSERT_ONCE_TEXT(bCondition, szText)                                                             \
    do                                                                                                       \
    {                                                                                                        \
        if (!(bCondition))                                                                                   \
        {                                                                                                    \
            static ::ZELN::CZelOnceLatch s_zelOnceLatch;                                                     \
            if (s_zelOnceLatch.First())                                                                      \
            {                                                                                                \
                (void)::ZELN::GetAssertHandler()((szText), __FILE__, __LINE__);                              \
            }                                                                                                \
        }                                                                                                    \
    } while (false)

// A report whose text is a message rather than an expression (such as the
// refusal of an image of another version): the hook gets the text as given.
#define ZEL_REPORT(szText) ((void)::ZELN::GetAssertHandler()((szText), __FILE__, __LINE__))

#endif
