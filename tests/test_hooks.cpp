// Diagnostic hooks: defaults, setters, the assertion macro and its texts.
#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <boost/function.hpp>
#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <type_traits>

using namespace ZELN;

namespace
{

typedef bool (*AssertFn)(const char*, const char*, int);

bool HostHandlerA(const char*, const char*, int)
{
    return true;
}

bool HostHandlerB(const char*, const char*, int)
{
    return false;
}

int s_iTraceCalls = 0;
void CountingTrace(const char*, int, int, const char*, int)
{
    ++s_iTraceCalls;
}

// A function object whose copy can be made to throw.
struct SThrowingCopy
{
    static bool s_bThrow;
    SThrowingCopy() = default;
    SThrowingCopy(const SThrowingCopy&)
    {
        if (s_bThrow)
        {
            throw std::runtime_error("copy");
        }
    }
    bool operator()(const char*, const char*, int) const { return true; }
    char acPayload[64] = {}; // too large for the small-object buffer
};
bool SThrowingCopy::s_bThrow = false;

} // namespace

TEST(Hooks, DefaultsArePlainFunctionsAndSilent)
{
    // Both hooks are set when the library is loaded, to non-allocating function pointers.
    ASSERT_FALSE(GetAssertHandler().empty());
    ASSERT_FALSE(GetTraceHandler().empty());
    EXPECT_NE(GetAssertHandler().target<AssertFn>(), nullptr);
    EXPECT_NE((GetTraceHandler().target<void (*)(const char*, int, int, const char*, int)>()), nullptr);
    EXPECT_TRUE(GetAssertHandler()("x", "y", 1));

    // A failed check with the default hook gives the documented value and no output.
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    SMjdTime stTime;
    uint64_t ulOffset = 7;
    EXPECT_FALSE(stTime.saveData(nullptr, 16, &ulOffset));
    EXPECT_EQ(ulOffset, 0u);
    stTime.SetMjdDay(-5);
    EXPECT_EQ(stTime.m_lMjdDay, -5);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Hooks, MacroPassesExpressionTextFileAndLine)
{
    ZelTest::CRecordingHook Hook;
    const int iValue = 3;
    const int iExpectedLine = __LINE__ + 1;
    ZEL_ASSERT(iValue < 2);
    ASSERT_EQ(Hook.Count(), 1u);
    // Runs of blanks collapse to one, as the preprocessor spells the text.
    EXPECT_EQ(Hook.Reports()[0].strExpression, "iValue < 2");
    EXPECT_EQ(Hook.Reports()[0].strFile, __FILE__);
    EXPECT_EQ(Hook.Reports()[0].iLine, iExpectedLine);

    // Commas inside the expression pass through whole.
    ZEL_ASSERT(std::is_same<int, long>::value);
    ZEL_ASSERT(std::map<int, int>().size() == 1);
    ZEL_ASSERT(false);
    ZEL_ASSERT(!"Ephemeris parameter change detected for GLO M-Type satellite");
    ASSERT_EQ(Hook.Count(), 5u);
    EXPECT_EQ(Hook.Reports()[1].strExpression, "std::is_same<int, long>::value");
    EXPECT_EQ(Hook.Reports()[2].strExpression, "std::map<int, int>().size() == 1");
    EXPECT_EQ(Hook.Reports()[3].strExpression, "false");
    EXPECT_EQ(Hook.Reports()[4].strExpression,
              "!\"Ephemeris parameter change detected for GLO M-Type satellite\"");
}

TEST(Hooks, PassingCheckEvaluatesOnlyTheExpression)
{
    ZelTest::CRecordingHook Hook;
    int iEvaluations = 0;
    ZEL_ASSERT(++iEvaluations == 1);
    EXPECT_EQ(iEvaluations, 1);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(Hooks, HandlerResultIsIgnored)
{
    // The same failing operation under a handler returning true and one returning false.
    SMjdTime stTrue;
    SMjdTime stFalse;
    {
        ZelTest::CRecordingHook Hook(true);
        stTrue.SetMjdDayMilliseconds(-3, 1e9);
        EXPECT_EQ(Hook.Count(), 2u);
    }
    {
        ZelTest::CRecordingHook Hook(false);
        stFalse.SetMjdDayMilliseconds(-3, 1e9);
        EXPECT_EQ(Hook.Count(), 2u);
    }
    EXPECT_EQ(stTrue.m_lMjdDay, stFalse.m_lMjdDay);
    EXPECT_EQ(stTrue.m_dMjdFractMilliseconds, stFalse.m_dMjdFractMilliseconds);
    EXPECT_EQ(stFalse.m_lMjdDay, -3);
}

TEST(Hooks, EmptyHookRaisesOnFailedCheckOnly)
{
    ZelAssertHandler Previous = SetAssertHandler(ZelAssertHandler());
    EXPECT_TRUE(GetAssertHandler().empty());
    SMjdTime stTime;
    EXPECT_NO_THROW(stTime.SetMjdDay(100)); // passing check
    EXPECT_EQ(stTime.m_lMjdDay, 100);
    bool bCaught = false;
    try
    {
        stTime.SetMjdDay(-1);
    }
    catch (const boost::bad_function_call& rEx)
    {
        bCaught = true;
        EXPECT_STREQ(rEx.what(), "call to empty boost::function");
    }
    EXPECT_TRUE(bCaught);
    // The record keeps what the function had written before the check: the
    // day is assigned after the checks, so it is unchanged.
    EXPECT_EQ(stTime.m_lMjdDay, 100);

    ZelAssertHandler Empty = SetAssertHandler(Previous);
    EXPECT_TRUE(Empty.empty());
    EXPECT_NO_THROW(stTime.SetMjdDay(-1));
    EXPECT_EQ(stTime.m_lMjdDay, -1);
}

TEST(Hooks, SetterReturnsPreviousHooks)
{
    ZelAssertHandler First = SetAssertHandler(&HostHandlerA);
    ASSERT_NE(First.target<AssertFn>(), nullptr);
    EXPECT_NE(*First.target<AssertFn>(), &HostHandlerA);
    ZelAssertHandler Second = SetAssertHandler(&HostHandlerB);
    ASSERT_NE(Second.target<AssertFn>(), nullptr);
    EXPECT_EQ(*Second.target<AssertFn>(), &HostHandlerA);
    ZelAssertHandler Third = SetAssertHandler(First);
    EXPECT_EQ(*Third.target<AssertFn>(), &HostHandlerB);
    EXPECT_EQ(*GetAssertHandler().target<AssertFn>(), *First.target<AssertFn>());
}

TEST(Hooks, GetterReturnsTheGlobalObject)
{
    ZelAssertHandler& rFirst = GetAssertHandler();
    ZelAssertHandler& rSecond = GetAssertHandler();
    EXPECT_EQ(&rFirst, &rSecond);
    EXPECT_EQ(&GetTraceHandler(), &GetTraceHandler());

    ZelAssertHandler Saved = rFirst;
    int iCalls = 0;
    rFirst = [&iCalls](const char*, const char*, int)
    {
        ++iCalls;
        return true;
    };
    SMjdTime stTime;
    stTime.SetMjdDay(-1); // fails both of its checks
    EXPECT_EQ(iCalls, 2);
    rFirst = Saved;
    stTime.SetMjdDay(-1);
    EXPECT_EQ(iCalls, 2);
}

TEST(Hooks, SetterLeavesHookWhenCopyThrows)
{
    ZelAssertHandler Saved = SetAssertHandler(&HostHandlerA);
    SThrowingCopy::s_bThrow = false;
    ZelAssertHandler Throwing{SThrowingCopy()};
    SThrowingCopy::s_bThrow = true;
    EXPECT_THROW(SetAssertHandler(Throwing), std::runtime_error);
    SThrowingCopy::s_bThrow = false;
    ASSERT_NE(GetAssertHandler().target<AssertFn>(), nullptr);
    EXPECT_EQ(*GetAssertHandler().target<AssertFn>(), &HostHandlerA);
    SetAssertHandler(Saved);
}

TEST(Hooks, TraceHookSetterAndNeverCalled)
{
    ZelTraceHandler Previous = SetTraceHandler(&CountingTrace);
    EXPECT_NE((Previous.target<void (*)(const char*, int, int, const char*, int)>()), nullptr);
    s_iTraceCalls = 0;
    {
        ZelTest::CRecordingHook Hook;
        // A spread of operations, passing and failing.
        SMjdTime stTime(2020, 5, 17, 10, 11, 12.5);
        stTime.AddMilliseconds(-1e12);
        stTime.SetGpsTime(9999, -1.0);
        unsigned char aucBuffer[16];
        uint64_t ulOffset = 0;
        stTime.saveData(aucBuffer, 3, &ulOffset);
        stTime.loadData(nullptr, 16, &ulOffset);
        EXPECT_GT(Hook.Count(), 0u);
    }
    EXPECT_EQ(s_iTraceCalls, 0);
    ZelTraceHandler Mine = SetTraceHandler(Previous);
    ASSERT_NE((Mine.target<void (*)(const char*, int, int, const char*, int)>()), nullptr);
    EXPECT_EQ((*Mine.target<void (*)(const char*, int, int, const char*, int)>()), &CountingTrace);
    // The hook itself is callable by the modules that share it.
    GetTraceHandler()("module", 1, 2, "text", 3);
}

TEST(Hooks, HandlerExceptionPassesToCaller)
{
    ZelAssertHandler Previous =
        SetAssertHandler([](const char*, const char*, int) -> bool { throw std::logic_error("host"); });
    SMjdTime stTime;
    EXPECT_THROW(stTime.AddDays(-10), std::logic_error);
    // AddDays adds before it checks.
    EXPECT_EQ(stTime.m_lMjdDay, -10);
    SetAssertHandler(Previous);
}
