// The time record: fields, limits, arithmetic, rounding, comparison, binary form.
#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/mjdTime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

using namespace ZELN;

namespace
{

SMjdTime At(int32_t lDay, double dMs, EMjdTimeAccuracy eAcc = MJDACC_NANOSECOND)
{
    SMjdTime st(eAcc);
    st.m_lMjdDay = lDay;
    st.m_dMjdFractMilliseconds = dMs;
    return st;
}

const char* const c_szDayPositive = "m_lMjdDay >= 0";
const char* const c_szDayRange = "static_cast<unsigned int>(m_lMjdDay) < c_ulMAX_MJD_DAY";
const char* const c_szMsRange =
    "m_dMjdFractMilliseconds < static_cast<double>(c_ulMSEC_PER_DAY) && m_dMjdFractMilliseconds >= 0.0";

} // namespace

TEST(MjdTime, Constants)
{
    EXPECT_EQ(c_ulMAX_MJD_DAY, 86000u);
    EXPECT_EQ(c_ulMSEC_PER_DAY, 86400000u);
    EXPECT_EQ(c_ulMSEC_PER_WEEK, 604800000u);
    EXPECT_EQ(c_ulSEC_PER_WEEK, 604800u);
    EXPECT_EQ(c_ulDAYS_PER_WEEK, 7u);
    EXPECT_EQ(c_ulMAX_GPS_WEEK, 5965u);
    EXPECT_EQ(static_cast<int>(MJDACC_EXACT), 0);
    EXPECT_EQ(static_cast<int>(MJDACC_NANOSECOND), 1);
    EXPECT_EQ(static_cast<int>(MJDACC_MICROSECOND), 2);
    EXPECT_EQ(static_cast<int>(MJDACC_MILLISECOND), 3);
    EXPECT_EQ(static_cast<int>(MJDACC_SECOND), 4);
    EXPECT_EQ(static_cast<int>(MJDACC_MINUTE), 5);
    EXPECT_EQ(static_cast<int>(MJDACC_HOUR), 6);
}

TEST(MjdTime, DefaultAndReset)
{
    SMjdTime st;
    EXPECT_EQ(st.m_lMjdDay, 0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(st.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_TRUE(st.isValid());

    SMjdTime stAcc(MJDACC_HOUR);
    EXPECT_EQ(stAcc.m_lMjdDay, 0);
    EXPECT_EQ(stAcc.m_eAccuracy, MJDACC_HOUR);

    SMjdTime stSet = At(500, 12.0, MJDACC_SECOND);
    stSet.Reset();
    EXPECT_EQ(stSet.m_lMjdDay, 0);
    EXPECT_EQ(stSet.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stSet.m_eAccuracy, MJDACC_NANOSECOND);
    stSet = At(500, 12.0);
    stSet.ResetAt(MJDACC_MINUTE);
    EXPECT_EQ(stSet.m_lMjdDay, 0);
    EXPECT_EQ(stSet.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stSet.m_eAccuracy, MJDACC_MINUTE);
}

TEST(MjdTime, IsValidInvariant)
{
    EXPECT_TRUE(At(0, 0.0).isValid());
    EXPECT_TRUE(At(85999, 86399999.999).isValid());
    EXPECT_FALSE(At(86000, 0.0).isValid());
    EXPECT_FALSE(At(-1, 0.0).isValid());
    EXPECT_FALSE(At(10, 86400000.0).isValid());
    EXPECT_FALSE(At(10, -0.001).isValid());
    EXPECT_FALSE(At(10, std::nan("")).isValid());
    // The accuracy takes no part.
    EXPECT_TRUE(At(10, 5.0, static_cast<EMjdTimeAccuracy>(99)).isValid());
}

TEST(MjdTime, GettersAndSetters)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetMjdDay(51544);
    st.SetMjdFractMilliseconds(1234.5);
    st.SetAccuracy(MJDACC_SECOND);
    EXPECT_EQ(st.GetMjdDay(), 51544);
    EXPECT_EQ(st.GetMjdFractMilliseconds(), 1234.5);
    EXPECT_EQ(st.GetAccuracy(), MJDACC_SECOND);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(MjdTime, SetMjdDayReportsAndStillAssigns)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetMjdDay(-2);
    EXPECT_EQ(st.m_lMjdDay, -2);
    ASSERT_EQ(Hook.Count(), 2u); // a negative value fails both
    EXPECT_EQ(Hook.Texts()[0], "lMjdDay>=0");
    EXPECT_EQ(Hook.Texts()[1], "static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY");
    Hook.Clear();
    st.SetMjdDay(86000);
    EXPECT_EQ(st.m_lMjdDay, 86000);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY");
}

TEST(MjdTime, SetMjdFractMillisecondsChecksUpperBoundOnly)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetMjdFractMilliseconds(-5.0); // a negative value passes
    EXPECT_EQ(Hook.Count(), 0u);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, -5.0);
    st.SetMjdFractMilliseconds(86400000.0);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "dMjdMilliseconds < c_ulMSEC_PER_DAY");
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 86400000.0);
}

TEST(MjdTime, SetMjdDayMillisecondsAndDayFract)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetMjdDayMilliseconds(100, 5.0);
    EXPECT_EQ(Hook.Count(), 0u);
    EXPECT_EQ(st.m_lMjdDay, 100);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 5.0);
    st.SetMjdDayMilliseconds(-1, 90000000.0);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(Hook.Texts()[0], "lMjdDay>=0");
    EXPECT_EQ(
        Hook.Texts()[1],
        "(static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY) && (dMjdMilliseconds < c_ulMSEC_PER_DAY)");
    EXPECT_EQ(st.m_lMjdDay, -1);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 90000000.0);

    Hook.Clear();
    st.SetMjdDayFract(200, 0.5);
    EXPECT_EQ(Hook.Count(), 0u);
    EXPECT_EQ(st.m_lMjdDay, 200);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 43200000.0);
    st.SetMjdDayFract(200, 1.0);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(
        Hook.Texts()[0],
        "(static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY) && dFractDay < 1.0 && dFractDay >= 0.0");
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 86400000.0);
    st.SetMjdDayFract(200, -0.25);
    EXPECT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, -21600000.0);
}

TEST(MjdTime, AddMillisecondsZeroCarriesWholeDays)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(100, 2 * 86400000.0 + 5.0);
    st.AddMilliseconds(0.0);
    EXPECT_EQ(st.m_lMjdDay, 102);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 5.0);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(MjdTime, AddMinusOneAtMidnight)
{
    SMjdTime st = At(100, 0.0);
    st.AddMilliseconds(-1.0);
    EXPECT_EQ(st.m_lMjdDay, 99);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 86399999.0);
}

TEST(MjdTime, AddOneDayGivesExactZero)
{
    SMjdTime st = At(100, 0.0);
    st.AddMilliseconds(86400000.0);
    EXPECT_EQ(st.m_lMjdDay, 101);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_FALSE(std::signbit(st.m_dMjdFractMilliseconds));
}

TEST(MjdTime, SubtractFromDayZeroReportsTwoOfThree)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(0, 0.0);
    st.SubMilliseconds(1.0);
    EXPECT_EQ(st.m_lMjdDay, -1);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 86399999.0);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(Hook.Texts()[0], c_szDayPositive);
    EXPECT_EQ(Hook.Texts()[1], c_szDayRange);
}

TEST(MjdTime, AddMillisecondsMillisecondsCheckText)
{
    ZelTest::CRecordingHook Hook;
    // Not a number: no carry can be made; the sum stays and the third check reports.
    SMjdTime st = At(100, 0.0);
    st.AddMilliseconds(std::nan(""));
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], c_szMsRange);
    EXPECT_EQ(st.m_lMjdDay, 100);
    EXPECT_TRUE(std::isnan(st.m_dMjdFractMilliseconds));
}

TEST(MjdTime, AddMillisecondsBeyondThirtyTwoBitDays)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(100, 0.0);
    st.AddMilliseconds(1e300);
    EXPECT_EQ(st.m_lMjdDay, 100);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 1e300);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], c_szMsRange);
}

TEST(MjdTime, AddDaysAtTheEndOfRange)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(85999, 0.0);
    EXPECT_TRUE(st.isValid());
    st.AddDays(1);
    EXPECT_EQ(st.m_lMjdDay, 86000);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "static_cast<unsigned int>(m_lMjdDay) <c_ulMAX_MJD_DAY");
    Hook.Clear();
    st = At(3, 0.0);
    st.AddDays(-4);
    EXPECT_EQ(st.m_lMjdDay, -1);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(Hook.Texts()[0], "m_lMjdDay>=0");
}

TEST(MjdTime, SubDaysHasNoCheck)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(3, 0.0);
    st.SubDays(10);
    EXPECT_EQ(st.m_lMjdDay, -7);
    st.SubDays(-100000);
    EXPECT_EQ(st.m_lMjdDay, 99993);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(MjdTime, UnitArithmetic)
{
    SMjdTime st = At(1000, 0.0);
    st.AddSeconds(1.5);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 1500.0);
    st.AddMinutes(2.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 121500.0);
    st.AddHours(1.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 3721500.0);
    st.SubHours(1.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 121500.0);
    st.SubMinutes(2.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 1500.0);
    st.SubSeconds(1.5);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    st.AddHours(-25.0);
    EXPECT_EQ(st.m_lMjdDay, 998);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 82800000.0);
    st.SubMilliseconds(-3600000.0);
    EXPECT_EQ(st.m_lMjdDay, 999);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
}

TEST(MjdTime, Differences)
{
    const SMjdTime a = At(101, 1000.0);
    const SMjdTime b = At(100, 86399000.0);
    EXPECT_EQ(SMjdTime::DiffAsMilliseconds(a, b), 2000.0);
    EXPECT_EQ(SMjdTime::DiffAsMilliseconds(b, a), -2000.0);
    EXPECT_NEAR(SMjdTime::DiffAsDays(a, b), 2000.0 / 86400000.0, 1e-12);
    EXPECT_EQ(SMjdTime::DiffAsDays(At(10, 0.0), At(7, 0.0)), 3.0);
}

TEST(MjdTime, DefaultAccuracyTolerance)
{
    const SMjdTime a = At(500, 1000.0);
    EXPECT_TRUE(a == At(500, 1000.0 + 0.5e-6));
    EXPECT_FALSE(a != At(500, 1000.0 + 0.5e-6));
    EXPECT_FALSE(a == At(500, 1000.0 + 2e-6));
    EXPECT_TRUE(a != At(500, 1000.0 + 2e-6));
    EXPECT_TRUE(a < At(500, 1000.0 + 2e-6));
    const SMjdTime e = At(500, 1000.0, MJDACC_EXACT);
    EXPECT_FALSE(e == At(500, 1000.0 + 0.5e-6, MJDACC_EXACT));
    EXPECT_TRUE(e < At(500, std::nextafter(1000.0, 2000.0), MJDACC_EXACT));
}

TEST(MjdTime, MidnightAlwaysSeparates)
{
    for (int iAcc = 0; iAcc <= 6; ++iAcc)
    {
        const auto eAcc = static_cast<EMjdTimeAccuracy>(iAcc);
        const SMjdTime a = At(600, 86399999.9999, eAcc);
        const SMjdTime b = At(601, 0.0, eAcc);
        EXPECT_TRUE(a != b) << iAcc;
        EXPECT_TRUE(a < b) << iAcc;
        EXPECT_TRUE(b > a) << iAcc;
        EXPECT_FALSE(a == b) << iAcc;
    }
}

TEST(MjdTime, AccuracyTableRowByRow)
{
    // Each row: the limit itself is not earlier (except for milliseconds), a bit above is.
    struct SRow
    {
        EMjdTimeAccuracy eAcc;
        double dLimit;
        bool bLimitCounts;
    };
    const SRow astRows[] = {{MJDACC_EXACT, 0.0, false},         {MJDACC_NANOSECOND, 1e-6, false},
                            {MJDACC_MICROSECOND, 0.001, false}, {MJDACC_MILLISECOND, 1.0, true},
                            {MJDACC_SECOND, 1000.0, false},     {MJDACC_MINUTE, 60000.0, false},
                            {MJDACC_HOUR, 3600000.0, false}};
    for (const auto& r : astRows)
    {
        const double dBase = 0.0;
        const SMjdTime a = At(700, dBase);
        const SMjdTime bAtLimit = At(700, dBase + r.dLimit);
        const SMjdTime bAbove = At(700, dBase + r.dLimit * 1.5 + 1e-7);
        EXPECT_EQ(SMjdTime::IsEarlier(r.eAcc, a, bAtLimit), r.bLimitCounts) << r.eAcc;
        EXPECT_TRUE(SMjdTime::IsEarlier(r.eAcc, a, bAbove)) << r.eAcc;
        EXPECT_FALSE(SMjdTime::IsEarlier(r.eAcc, bAbove, a)) << r.eAcc;
    }
    // Milliseconds: a difference of 0.999 truncates to 0.
    EXPECT_FALSE(SMjdTime::IsEarlier(MJDACC_MILLISECOND, At(1, 10.0), At(1, 10.999)));
    // Any other value behaves as exact.
    EXPECT_TRUE(SMjdTime::IsEarlier(static_cast<EMjdTimeAccuracy>(42), At(1, 10.0), At(1, 10.0 + 1e-9)));
    EXPECT_FALSE(SMjdTime::IsEarlier(static_cast<EMjdTimeAccuracy>(42), At(1, 10.0), At(1, 10.0)));
}

TEST(MjdTime, MillisecondAndSecondLimits)
{
    const SMjdTime a = At(800, 5000.0, MJDACC_MILLISECOND);
    EXPECT_TRUE(a != At(800, 5001.0, MJDACC_MILLISECOND));
    const SMjdTime s = At(800, 5000.0, MJDACC_SECOND);
    EXPECT_TRUE(s == At(800, 6000.0, MJDACC_SECOND));
}

TEST(MjdTime, OperatorsTakeTheLeftAccuracyOfEachTest)
{
    // The same two instants, once with the earlier one exact and once with it coarse.
    const SMjdTime aE = At(900, 0.0, MJDACC_EXACT);
    const SMjdTime bH = At(900, 1000.0, MJDACC_HOUR);
    const SMjdTime aH = At(900, 0.0, MJDACC_HOUR);
    const SMjdTime bE = At(900, 1000.0, MJDACC_EXACT);
    EXPECT_TRUE(aE < bH);
    EXPECT_FALSE(aH < bE);
    EXPECT_TRUE(bH > aE);
    EXPECT_FALSE(bE > aH);
    EXPECT_FALSE(aE >= bH);
    EXPECT_TRUE(aH >= bE);
    EXPECT_FALSE(bH <= aE);
    EXPECT_TRUE(bE <= aH);
    EXPECT_FALSE(aE == bH);
    EXPECT_TRUE(aH == bE);
    EXPECT_TRUE(aE != bH);
    EXPECT_FALSE(aH != bE);
}

TEST(MjdTime, IsSet)
{
    EXPECT_FALSE(SMjdTime().IsSet());
    EXPECT_TRUE(At(0, 1.0).IsSet());
    EXPECT_TRUE(At(1, 0.0).IsSet());
    EXPECT_TRUE(At(-1, 0.0).IsSet());
    EXPECT_FALSE(At(0, 0.5e-6).IsSet());
    // Earlier than the default at the record's own accuracy.
    EXPECT_FALSE(At(0, -0.5, MJDACC_MILLISECOND).IsSet());
    EXPECT_TRUE(At(0, -0.5, MJDACC_EXACT).IsSet());
}

TEST(MjdTime, RoundToMillisecondsCarriesIntoNextDay)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(1234, 86399600.0);
    st.RoundToMilliseconds(1000.0);
    EXPECT_EQ(st.m_lMjdDay, 1235);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(MjdTime, RoundFloorCeil)
{
    SMjdTime st = At(10, 1234.5678);
    st.RoundToMilliseconds(10.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 1230.0);
    st = At(10, 1235.0);
    st.RoundToMilliseconds(10.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 1240.0);
    st = At(10, 1239.9);
    st.FloorToMilliseconds(10.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 1230.0);
    st = At(10, 1230.1);
    st.CeilToMilliseconds(10.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 1240.0);
    st = At(10, 86399999.5);
    st.CeilToMilliseconds(1.0);
    EXPECT_EQ(st.m_lMjdDay, 11);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    // Floor has no carry at all.
    st = At(10, 2 * 86400000.0 + 0.5);
    st.FloorToMilliseconds(1.0);
    EXPECT_EQ(st.m_lMjdDay, 10);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 2 * 86400000.0);
    // Round carries as often as needed.
    st = At(10, 2 * 86400000.0 + 0.2);
    st.RoundToMilliseconds(1.0);
    EXPECT_EQ(st.m_lMjdDay, 12);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
}

TEST(MjdTime, ZeroStepReportsAndFlowsOn)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(10, 1234.0);
    st.RoundToMilliseconds(0.0);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "dMilliSeconds > 0.0");
    EXPECT_FALSE(std::isfinite(st.m_dMjdFractMilliseconds));
    EXPECT_EQ(st.m_lMjdDay, 10);

    st = At(10, 0.0);
    st.FloorToMilliseconds(0.0);
    EXPECT_TRUE(std::isnan(st.m_dMjdFractMilliseconds)); // 0/0
    st = At(10, 5.0);
    st.CeilToMilliseconds(-1.0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 5.0);
    EXPECT_EQ(Hook.Count(), 3u);
    EXPECT_EQ(Hook.Texts()[2], "dMilliSeconds > 0.0");
}

TEST(MjdTime, RoundStepTable)
{
    const double adSteps[] = {1.0, 10.0, 100.0, 1000.0, 60000.0, 3600000.0, 0.001, 1e-06};
    for (int i = 0; i < 8; ++i)
    {
        const double dMs = 3 * adSteps[i] + 0.4 * adSteps[i];
        SMjdTime st = At(20, dMs);
        st.FloorTo(static_cast<EMjdTimeRoundStep>(i));
        EXPECT_DOUBLE_EQ(st.m_dMjdFractMilliseconds, 3 * adSteps[i]) << i;
        st = At(20, dMs);
        st.CeilTo(static_cast<EMjdTimeRoundStep>(i));
        EXPECT_DOUBLE_EQ(st.m_dMjdFractMilliseconds, 4 * adSteps[i]) << i;
        st = At(20, dMs);
        st.RoundTo(static_cast<EMjdTimeRoundStep>(i));
        EXPECT_DOUBLE_EQ(st.m_dMjdFractMilliseconds, 3 * adSteps[i]) << i;
    }
}

TEST(MjdTime, RoundToCarriesOnceWithoutCheck)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st = At(30, 2 * 86400000.0 + 100.0);
    st.RoundTo(MJDSTEP_1S);
    EXPECT_EQ(st.m_lMjdDay, 31);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 86400000.0);
    st = At(30, 86399999.7);
    st.CeilTo(MJDSTEP_1MS);
    EXPECT_EQ(st.m_lMjdDay, 31);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
    // An index outside the table leaves the record as it is.
    st = At(30, 12.3);
    st.RoundTo(static_cast<EMjdTimeRoundStep>(8));
    st.FloorTo(static_cast<EMjdTimeRoundStep>(-1));
    st.CeilTo(static_cast<EMjdTimeRoundStep>(1000));
    EXPECT_EQ(st.m_lMjdDay, 30);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 12.3);
}

// ---------------------------------------------------------------- binary form

namespace
{

std::vector<unsigned char> GoldenImage(int32_t lDay, double dMs, int32_t lAcc)
{
    std::vector<unsigned char> vec(16, 0xEE);
    std::memcpy(&vec[0], &lDay, 4);
    std::memcpy(&vec[4], &dMs, 8);
    std::memcpy(&vec[12], &lAcc, 4);
    return vec;
}

} // namespace

TEST(MjdTimeBinary, GoldenImage)
{
    const SMjdTime st = At(60369, 45015250.125, MJDACC_MICROSECOND);
    EXPECT_EQ(st.getSize(), 16u);
    const std::vector<unsigned char> vecExpected = GoldenImage(60369, 45015250.125, 2);
    // Byte by byte as well: the day 60369 = 0x0000EBD1, little-endian.
    EXPECT_EQ(vecExpected[0], 0xD1);
    EXPECT_EQ(vecExpected[1], 0xEB);
    EXPECT_EQ(vecExpected[12], 0x02);

    ZelTest::CRecordingHook Hook;
    std::vector<unsigned char> vecOut(16, 0);
    uint64_t ulOffset = 99;
    ASSERT_TRUE(st.saveData(vecOut.data(), 16, &ulOffset));
    EXPECT_EQ(ulOffset, 16u);
    EXPECT_EQ(vecOut, vecExpected);

    SMjdTime stBack;
    ulOffset = 99;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), 16, &ulOffset));
    EXPECT_EQ(ulOffset, 16u);
    EXPECT_EQ(stBack.m_lMjdDay, 60369);
    EXPECT_EQ(stBack.m_dMjdFractMilliseconds, 45015250.125);
    EXPECT_EQ(stBack.m_eAccuracy, MJDACC_MICROSECOND);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(MjdTimeBinary, ShortAndNullBuffers)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime st = At(51544, 1.0);
    std::vector<unsigned char> vecOut(16, 0xAB);
    uint64_t ulOffset = 55;
    EXPECT_FALSE(st.saveData(vecOut.data(), 15, &ulOffset));
    EXPECT_EQ(ulOffset, 0u); // a leaf sets the count before the test
    EXPECT_EQ(vecOut, std::vector<unsigned char>(16, 0xAB));
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");

    ulOffset = 55;
    EXPECT_FALSE(st.saveData(nullptr, 16, &ulOffset));
    EXPECT_EQ(ulOffset, 0u);
    EXPECT_EQ(Hook.Count(), 2u);

    SMjdTime stTarget = At(7, 7.0, MJDACC_HOUR);
    const std::vector<unsigned char> vecImage = GoldenImage(1, 2.0, 3);
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 15, &ulOffset));
    EXPECT_FALSE(stTarget.loadData(nullptr, 16, &ulOffset));
    EXPECT_EQ(ulOffset, 0u);
    EXPECT_EQ(Hook.Count(), 4u);
    EXPECT_EQ(Hook.Texts()[3], "false");
    EXPECT_EQ(stTarget.m_lMjdDay, 7);
    EXPECT_EQ(stTarget.m_dMjdFractMilliseconds, 7.0);
    EXPECT_EQ(stTarget.m_eAccuracy, MJDACC_HOUR);

    // A longer buffer is fine; the count stops at 16.
    std::vector<unsigned char> vecLong(40, 0);
    EXPECT_TRUE(st.saveData(vecLong.data(), vecLong.size(), &ulOffset));
    EXPECT_EQ(ulOffset, 16u);
}

TEST(MjdTimeBinary, LoadDoesNotValidate)
{
    ZelTest::CRecordingHook Hook;
    const std::vector<unsigned char> vecImage = GoldenImage(-77, -1.5, 9);
    SMjdTime st;
    uint64_t ulOffset = 0;
    EXPECT_TRUE(st.loadData(vecImage.data(), 16, &ulOffset));
    EXPECT_EQ(st.m_lMjdDay, -77);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, -1.5);
    EXPECT_EQ(static_cast<int>(st.m_eAccuracy), 9);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(MjdTimeBinary, RoundTripKeepsEveryBit)
{
    const SMjdTime astTimes[] = {SMjdTime(), At(44244, 0.1), At(85999, 86399999.999999, MJDACC_EXACT),
                                 At(51544, std::numeric_limits<double>::denorm_min(), MJDACC_HOUR)};
    for (const auto& st : astTimes)
    {
        unsigned char aucBuffer[16];
        uint64_t ulOffset = 0;
        ASSERT_TRUE(st.saveData(aucBuffer, sizeof(aucBuffer), &ulOffset));
        SMjdTime stBack;
        ASSERT_TRUE(stBack.loadData(aucBuffer, sizeof(aucBuffer), &ulOffset));
        EXPECT_EQ(ulOffset, st.getSize());
        EXPECT_EQ(stBack.m_lMjdDay, st.m_lMjdDay);
        EXPECT_EQ(std::memcmp(&stBack.m_dMjdFractMilliseconds, &st.m_dMjdFractMilliseconds, 8), 0);
        EXPECT_EQ(stBack.m_eAccuracy, st.m_eAccuracy);
        EXPECT_TRUE(stBack == st);
    }
}
