// The plain numeric records of the inertial family: vector, quaternion, full
// and packed symmetric matrix, and the small parameter groups.
#include "ZelSamplesIns.h"
#include "ZelTestKit.h"

#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{
const double c_dNaN = std::numeric_limits<double>::quiet_NaN();

// Random bytes of a record's length load and write back the same bytes.
template <class R> void ExpectRandomBytesRoundTrip(unsigned int uiSeed)
{
    std::mt19937 oGen(uiSeed);
    const R stDefault;
    const size_t ulSize = static_cast<size_t>(stDefault.getSize());
    for (int iRound = 0; iRound < 20; ++iRound)
    {
        ZelTest::Bytes vecIn(ulSize);
        for (auto& rucByte : vecIn)
        {
            rucByte = static_cast<unsigned char>(oGen() & 0xFFu);
        }
        R st;
        uint64_t ulCount = 0;
        ASSERT_TRUE(st.loadData(vecIn.data(), vecIn.size(), &ulCount));
        EXPECT_EQ(ulSize, ulCount);
        ZelTest::Bytes vecOut(ulSize, 0);
        ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulCount));
        EXPECT_EQ(vecIn, vecOut);
    }
}

// A text that is not the record's fails the stream and crashes nothing.
template <class R> void ExpectGarbageTextFails(const std::string& strText)
{
    CRecordingHook stHook;
    std::istringstream is(strText);
    R st;
    is >> st;
    EXPECT_TRUE(is.fail()) << strText;
    EXPECT_EQ(0u, stHook.Count()) << "a bad text is not reported";
}
} // namespace

// ------------------------------------------------------------------ CZelExtVector3d

TEST(InsVector, DefaultAndConstructors)
{
    const CZelExtVector3d stDefault;
    EXPECT_EQ(0.0, stDefault.m_adElem[0]);
    EXPECT_EQ(0.0, stDefault.m_adElem[1]);
    EXPECT_EQ(0.0, stDefault.m_adElem[2]);

    const CZelExtVector3d stAll(2.5);
    EXPECT_EQ(2.5, stAll.m_adElem[0]);
    EXPECT_EQ(2.5, stAll.m_adElem[1]);
    EXPECT_EQ(2.5, stAll.m_adElem[2]);

    const CZelExtVector3d stThree(1.0, -2.0, 3.5);
    EXPECT_EQ(1.0, stThree.m_adElem[0]);
    EXPECT_EQ(-2.0, stThree.m_adElem[1]);
    EXPECT_EQ(3.5, stThree.m_adElem[2]);

    const double adSource[3] = {7.0, 8.0, -9.0};
    CRecordingHook stHook;
    const CZelExtVector3d stFromPointer(adSource);
    EXPECT_EQ(7.0, stFromPointer.m_adElem[0]);
    EXPECT_EQ(8.0, stFromPointer.m_adElem[1]);
    EXPECT_EQ(-9.0, stFromPointer.m_adElem[2]);
    const CZelExtVector3d stCopy(stFromPointer);
    EXPECT_EQ(-9.0, stCopy.m_adElem[2]);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(InsVector, NullPointerReportsAndGivesZeros)
{
    CRecordingHook stHook;
    const double* pdNull = nullptr;
    const CZelExtVector3d st(pdNull);
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    EXPECT_EQ(0.0, st.m_adElem[0]);
    EXPECT_EQ(0.0, st.m_adElem[1]);
    EXPECT_EQ(0.0, st.m_adElem[2]);
}

TEST(InsVector, ImageAndText)
{
    CImage stImage;
    stImage.At(0).F64(1.5).At(8).F64(-2.25).At(16).F64(3.0).At(24);
    ZelTest::ExpectCoreImage(ZelSample::InsVector(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsVector(), "1.5, -2.25, 3");
    EXPECT_EQ(24u, CZelExtVector3d().getSize());
}

TEST(InsVector, TextUsesTheStreamFormat)
{
    std::ostringstream os;
    os << std::setprecision(3) << CZelExtVector3d(1.23456, 2.0, -0.5);
    EXPECT_EQ("1.23, 2, -0.5", os.str());
    std::ostringstream osFixed;
    osFixed << std::fixed << std::setprecision(2) << CZelExtVector3d(1.0, 2.5, 3.125);
    EXPECT_EQ("1.00, 2.50, 3.12", osFixed.str());
}

TEST(InsVector, EqualityIsRelativeAt1em14)
{
    const CZelExtVector3d a(1.0, -2.0, 1e300);
    CZelExtVector3d b = a;
    EXPECT_TRUE(a == b);
    b.m_adElem[0] = 1.0 + 5e-15;
    EXPECT_TRUE(a == b);
    b.m_adElem[0] = 1.0 + 5e-14;
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    b = a;
    b.m_adElem[2] = 1e300 * (1.0 + 5e-15);
    EXPECT_TRUE(a == b);

    CZelExtVector3d stNaN(c_dNaN, 0.0, 0.0);
    EXPECT_FALSE(stNaN == stNaN);
    EXPECT_TRUE(stNaN != stNaN);
}

TEST(InsVector, NastyInput)
{
    ExpectRandomBytesRoundTrip<CZelExtVector3d>(1);
    ExpectGarbageTextFails<CZelExtVector3d>("x, y, z");
    ExpectGarbageTextFails<CZelExtVector3d>("");
    // A text cut after the second value: the third keeps its value.
    CZelExtVector3d st(9.0, 9.0, 9.0);
    std::istringstream is("1, 2,");
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(1.0, st.m_adElem[0]);
    EXPECT_EQ(2.0, st.m_adElem[1]);
    EXPECT_EQ(9.0, st.m_adElem[2]);
}

// ------------------------------------------------------------------ CZelExtQuaterniond

TEST(InsQuaternion, DefaultIsIdentityInTheOrderWXYZ)
{
    const CZelExtQuaterniond st;
    EXPECT_EQ(1.0, st.m_adElem[0]);
    EXPECT_EQ(0.0, st.m_adElem[1]);
    EXPECT_EQ(0.0, st.m_adElem[2]);
    EXPECT_EQ(0.0, st.m_adElem[3]);
    const CZelExtQuaterniond stFour(0.1, 0.2, 0.3, 0.4);
    EXPECT_EQ(0.1, stFour.m_adElem[0]);
    EXPECT_EQ(0.4, stFour.m_adElem[3]);
    // No unit norm is enforced.
    const CZelExtQuaterniond stLong(2.0, 0.0, 0.0, 0.0);
    EXPECT_EQ(2.0, stLong.m_adElem[0]);
}

TEST(InsQuaternion, ImageAndText)
{
    CImage stImage;
    stImage.At(0).F64(0.5).At(8).F64(0.5).At(16).F64(-0.5).At(24).F64(0.5).At(32);
    ZelTest::ExpectCoreImage(ZelSample::InsQuaternion(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsQuaternion(), "0.5, 0.5, -0.5, 0.5");
    ZelTest::ExpectTextExact(CZelExtQuaterniond(), "1, 0, 0, 0");
}

TEST(InsQuaternion, FifteenthDigitIsEqual)
{
    const CZelExtQuaterniond a(0.123456789012345, -0.234567890123456, 0.345678901234567, 0.876543210987654);
    const CZelExtQuaterniond b(0.123456789012346, -0.234567890123457, 0.345678901234568, 0.876543210987655);
    EXPECT_TRUE(a == b);
    const CZelExtQuaterniond c(0.12345678901235, -0.234567890123456, 0.345678901234567, 0.876543210987654);
    EXPECT_FALSE(a == c); // a difference in the fourteenth digit
}

TEST(InsQuaternion, NastyInput)
{
    ExpectRandomBytesRoundTrip<CZelExtQuaterniond>(2);
    ExpectGarbageTextFails<CZelExtQuaterniond>("1, 0, q");
}

// ------------------------------------------------------------------ CZelExtMatrix3d

TEST(InsMatrix, Constructors)
{
    const CZelExtMatrix3d stDefault;
    for (const double d : stDefault.m_adElem)
    {
        EXPECT_EQ(0.0, d);
    }
    const CZelExtMatrix3d stAll(-1.5);
    for (const double d : stAll.m_adElem)
    {
        EXPECT_EQ(-1.5, d);
    }
    const CZelExtMatrix3d stDiag(1.0, 2.0, 3.0);
    const double adDiag[9] = {1.0, 0.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 3.0};
    for (size_t k = 0; k < 9; ++k)
    {
        EXPECT_EQ(adDiag[k], stDiag.m_adElem[k]) << k;
    }
    const CZelExtMatrix3d stRows = ZelSample::InsMatrix();
    EXPECT_EQ(2.0, stRows.m_adElem[1]); // row 0, column 1
    EXPECT_EQ(4.0, stRows.m_adElem[3]); // row 1, column 0
    EXPECT_EQ(9.5, stRows.m_adElem[8]);

    CRecordingHook stHook;
    const double* pdNull = nullptr;
    const CZelExtMatrix3d stNull(pdNull);
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    for (const double d : stNull.m_adElem)
    {
        EXPECT_EQ(0.0, d);
    }
}

TEST(InsMatrix, ImageAndText)
{
    CImage stImage;
    stImage.At(0).F64(1.0).F64(2.0).F64(3.0).At(24).F64(4.0).F64(5.0).F64(6.0).At(48).F64(7.0).F64(8.0).F64(
        9.5);
    stImage.At(72);
    ZelTest::ExpectCoreImage(ZelSample::InsMatrix(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsMatrix(), "1, 2, 3, 4, 5, 6, 7, 8, 9.5");
}

TEST(InsMatrix, EqualityAndNastyInput)
{
    CZelExtMatrix3d a = ZelSample::InsMatrix();
    CZelExtMatrix3d b = a;
    b.m_adElem[8] = 9.5 * (1.0 + 4e-15);
    EXPECT_TRUE(a == b);
    b.m_adElem[8] = 9.5 * (1.0 + 4e-13);
    EXPECT_FALSE(a == b);
    ExpectRandomBytesRoundTrip<CZelExtMatrix3d>(3);
    ExpectGarbageTextFails<CZelExtMatrix3d>("1, 2, 3, 4, five");
}

// ------------------------------------------------------------------ CZelExtSymMatrix3d

TEST(InsSymMatrix, PackedIndexRowByRow)
{
    // (i, j) -> index, the lower triangle row after row, and its mirror.
    const size_t aulExpected[3][3] = {{0, 1, 3}, {1, 2, 4}, {3, 4, 5}};
    for (size_t i = 0; i < 3; ++i)
    {
        for (size_t j = 0; j < 3; ++j)
        {
            EXPECT_EQ(aulExpected[i][j], CZelExtSymMatrix3d::PackedIndex(i, j)) << i << "," << j;
        }
    }
    EXPECT_EQ(6u, static_cast<size_t>(CZelExtSymMatrix3d::eNumElems));
    EXPECT_EQ(3u, static_cast<size_t>(CZelExtSymMatrix3d::eNumCols));
}

TEST(InsSymMatrix, TwoZeroAndZeroTwoAreElementThree)
{
    CZelExtSymMatrix3d st;
    st(2, 0) = 42.0;
    EXPECT_EQ(42.0, st.m_adElem[3]);
    EXPECT_EQ(42.0, st(0, 2));
    st(0, 2) = -1.0;
    EXPECT_EQ(-1.0, st(2, 0));
    EXPECT_EQ(-1.0, st.m_adElem[3]);
}

TEST(InsSymMatrix, Constructors)
{
    const CZelExtSymMatrix3d stDefault;
    for (const double d : stDefault.m_adElem)
    {
        EXPECT_EQ(0.0, d);
    }
    const CZelExtSymMatrix3d stAll(0.5);
    for (const double d : stAll.m_adElem)
    {
        EXPECT_EQ(0.5, d);
    }
    const CZelExtSymMatrix3d stDiag(1.0, 2.0, 3.0);
    EXPECT_EQ(1.0, stDiag(0, 0));
    EXPECT_EQ(2.0, stDiag(1, 1));
    EXPECT_EQ(3.0, stDiag(2, 2));
    EXPECT_EQ(0.0, stDiag(1, 0));
    EXPECT_EQ(0.0, stDiag(2, 0));
    EXPECT_EQ(0.0, stDiag(2, 1));

    const double adPacked[6] = {11.0, 21.0, 22.0, 31.0, 32.0, 33.0};
    const CZelExtSymMatrix3d stPacked(adPacked);
    EXPECT_EQ(11.0, stPacked(0, 0));
    EXPECT_EQ(21.0, stPacked(1, 0));
    EXPECT_EQ(21.0, stPacked(0, 1));
    EXPECT_EQ(22.0, stPacked(1, 1));
    EXPECT_EQ(31.0, stPacked(2, 0));
    EXPECT_EQ(32.0, stPacked(1, 2));
    EXPECT_EQ(33.0, stPacked(2, 2));

    CRecordingHook stHook;
    const double* pdNull = nullptr;
    const CZelExtSymMatrix3d stNull(pdNull);
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    for (const double d : stNull.m_adElem)
    {
        EXPECT_EQ(0.0, d);
    }
}

TEST(InsSymMatrix, IndexOfSixOrMoreReports)
{
    CZelExtSymMatrix3d st = ZelSample::InsSymMatrix();
    const CZelExtSymMatrix3d stBefore = st;
    CRecordingHook stHook;
    // (3, 0): 3 * 4 / 2 + 0 = 6.
    const CZelExtSymMatrix3d& rConst = st;
    EXPECT_EQ(0.0, rConst(3, 0));
    st(0, 3) = 99.0;
    EXPECT_EQ((std::vector<std::string>{"ulIndex < eNumElems", "ulIndex < eNumElems"}), stHook.Texts());
    EXPECT_TRUE(st == stBefore) << "the record is not written past its elements";
    for (size_t k = 0; k < 6; ++k)
    {
        EXPECT_EQ(stBefore.m_adElem[k], st.m_adElem[k]);
    }
    // Indices within the triangle are silent.
    stHook.Clear();
    (void)rConst(2, 2);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(InsSymMatrix, TraceAndScaledCopies)
{
    const CZelExtSymMatrix3d st = ZelSample::InsSymMatrix();
    EXPECT_EQ(4.0 + 9.0 + 16.0, st.GetTrace());
    const CZelExtSymMatrix3d stScaled = st.GetScaled(-2.0);
    const CZelExtSymMatrix3d stSquare = st.GetScaledBySquare(-2.0);
    const double adPacked[6] = {4.0, 0.5, 9.0, -0.25, 1.5, 16.0};
    for (size_t k = 0; k < 6; ++k)
    {
        EXPECT_EQ(adPacked[k] * -2.0, stScaled.m_adElem[k]);
        EXPECT_EQ(adPacked[k] * 4.0, stSquare.m_adElem[k]);
        EXPECT_EQ(adPacked[k], st.m_adElem[k]) << "the source stays";
    }
}

TEST(InsSymMatrix, ImageAndText)
{
    CImage stImage;
    stImage.At(0)
        .F64(4.0)
        .At(8)
        .F64(0.5)
        .At(16)
        .F64(9.0)
        .At(24)
        .F64(-0.25)
        .At(32)
        .F64(1.5)
        .At(40)
        .F64(16.0)
        .At(48);
    ZelTest::ExpectCoreImage(ZelSample::InsSymMatrix(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsSymMatrix(), "4, 0.5, 9, -0.25, 1.5, 16");
}

TEST(InsSymMatrix, EqualityAndNastyInput)
{
    const CZelExtSymMatrix3d a = ZelSample::InsSymMatrix();
    CZelExtSymMatrix3d b = a;
    b(2, 1) = 1.5 * (1.0 + 5e-15);
    EXPECT_TRUE(a == b);
    b(2, 1) = 1.5 * (1.0 + 5e-13);
    EXPECT_FALSE(a == b);
    ExpectRandomBytesRoundTrip<CZelExtSymMatrix3d>(4);
    ExpectGarbageTextFails<CZelExtSymMatrix3d>("1, 2, 3, 4, 5, x");
    // The separator is read as one character and never compared.
    std::istringstream is("1; 2; 3; 4; 5; 6");
    CZelExtSymMatrix3d st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(6.0, st(2, 2));
}

// ------------------------------------------------------------------ parameter groups

TEST(InsBodyAxes, ImageTextEquality)
{
    CImage stImage;
    stImage.At(0).F64(1.0).F64(0.0).F64(0.0).At(24).F64(0.0).F64(0.0).F64(-1.0).At(48);
    ZelTest::ExpectCoreImage(ZelSample::InsBodyAxes(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsBodyAxes(), "Fw_B, 1, 0, 0, Up_B, 0, 0, -1");
    SZelInsBodyAxes st = ZelSample::InsBodyAxes();
    st.Up_B.m_adElem[2] = -1.0 - 4e-15;
    EXPECT_TRUE(st == ZelSample::InsBodyAxes()) << "by the vector rule";
    st.Fw_B.m_adElem[1] = 1e-3;
    EXPECT_FALSE(st == ZelSample::InsBodyAxes());
    ExpectRandomBytesRoundTrip<SZelInsBodyAxes>(5);
    ExpectGarbageTextFails<SZelInsBodyAxes>("Fw_B, 1, 0, 0, Up_B, zero");
}

TEST(InsVarLever, ImageTextEquality)
{
    CImage stImage;
    stImage.At(0).F64(0.0625).At(8).F64(0.125).F64(-0.25).F64(0.5).At(32);
    ZelTest::ExpectCoreImage(ZelSample::InsVarLever(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsVarLever(), "Var, 0.0625, x_dcD, 0.125, -0.25, 0.5");

    // dVar compares exactly, the lever by the vector rule.
    SZelInsVarLever a;
    a.dVar = 1.234567890123456;
    a.x_dcD = CZelExtVector3d(1.234567890123456, 0.0, 0.0);
    SZelInsVarLever b = a;
    b.x_dcD.m_adElem[0] = 1.234567890123457;
    EXPECT_TRUE(a == b);
    b.dVar = 1.234567890123457;
    EXPECT_FALSE(a == b);
    ExpectRandomBytesRoundTrip<SZelInsVarLever>(6);
}

TEST(InsTrTest, ImageTextEquality)
{
    CImage stImage;
    stImage.At(0).F64(1.0).F64(2.0).F64(3.0).At(24).F64(0.5).F64(0.75).F64(1.25).At(48);
    stImage.F64(0.01).F64(0.02).F64(0.03).At(72);
    ZelTest::ExpectCoreImage(ZelSample::InsTrTest(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsTrTest(),
                             "TrTest, Exp, 1, 2, 3, Thr, 0.5, 0.75, 1.25, Sig, 0.01, 0.02, 0.03");
    SZelInsTrTest st = ZelSample::InsTrTest();
    st.stSig.m_adElem[2] = 0.03 * (1.0 + 5e-15);
    EXPECT_TRUE(st == ZelSample::InsTrTest());
    st.stThr.m_adElem[0] = 0.5000001;
    EXPECT_FALSE(st == ZelSample::InsTrTest());
    ExpectRandomBytesRoundTrip<SZelInsTrTest>(7);
}

TEST(InsTrTest, ReaderSkipsTheGluedNameAndTheFirstTag)
{
    // The caller writes the group's name in front of "TrTest": one word.
    std::istringstream is("BiasTrTest, Exp, 1, 2, 3, Thr, 0.5, 0.75, 1.25, Sig, 0.01, 0.02, 0.03");
    SZelInsTrTest st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == ZelSample::InsTrTest());
}

TEST(InsExpMinMax, ImageTextEquality)
{
    CImage stImage;
    stImage.At(0).F64(100.0).At(8).F64(90.0).At(16).F64(110.0).At(24);
    ZelTest::ExpectCoreImage(ZelSample::InsExpMinMax(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsExpMinMax(), "Exp, 100, Min, 90, Max, 110");
    ExpectRandomBytesRoundTrip<SZelInsExpMinMax>(8);
    ExpectGarbageTextFails<SZelInsExpMinMax>("Exp, 1, Min, Max, 3");
}

TEST(InsExpMinMax, SixteenthDigitIsUnequalWhereAVectorIsEqual)
{
    const SZelInsExpMinMax a(1.234567890123456, 0.0, 0.0);
    const SZelInsExpMinMax b(1.234567890123457, 0.0, 0.0);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(CZelExtVector3d(1.234567890123456, 0.0, 0.0) == CZelExtVector3d(1.234567890123457, 0.0, 0.0));
    EXPECT_TRUE(a == SZelInsExpMinMax(1.234567890123456, 0.0, 0.0));
    const SZelInsExpMinMax stNaN(c_dNaN, 0.0, 0.0);
    EXPECT_FALSE(stNaN == stNaN);
}

TEST(InsMisc, SizesAreConstants)
{
    EXPECT_EQ(24u, CZelExtVector3d().getSize());
    EXPECT_EQ(32u, CZelExtQuaterniond().getSize());
    EXPECT_EQ(72u, CZelExtMatrix3d().getSize());
    EXPECT_EQ(48u, CZelExtSymMatrix3d().getSize());
    EXPECT_EQ(48u, SZelInsBodyAxes().getSize());
    EXPECT_EQ(32u, SZelInsVarLever().getSize());
    EXPECT_EQ(72u, SZelInsTrTest().getSize());
    EXPECT_EQ(24u, SZelInsExpMinMax().getSize());
}

TEST(InsMisc, ExactLengthSucceedsOneByteFewerFailsAndReports)
{
    // The same through a composite, by hand: 48 bytes pass, 47 report once.
    const SZelInsBodyAxes st = ZelSample::InsBodyAxes();
    unsigned char aucBuffer[48];
    uint64_t ulCount = 5;
    CRecordingHook stHook;
    EXPECT_TRUE(st.saveData(aucBuffer, 48, &ulCount));
    EXPECT_EQ(48u, ulCount);
    SZelInsBodyAxes stBack;
    EXPECT_TRUE(stBack.loadData(aucBuffer, 48, &ulCount));
    EXPECT_TRUE(stBack == st);
    EXPECT_EQ(0u, stHook.Count());
    EXPECT_FALSE(stBack.loadData(aucBuffer, 47, &ulCount));
    EXPECT_EQ(0u, ulCount);
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
}

TEST(InsMisc, TagWordsAreNotCompared)
{
    std::istringstream is("A, 1, B, 90, C, 110");
    SZelInsExpMinMax st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == SZelInsExpMinMax(1.0, 90.0, 110.0));
}

TEST(InsGpsMsText, ReaderAcceptsTheWeekRangeOnly)
{
    // Week 5965 and the end of the week are accepted.
    SMjdTime stTime = ZelSample::InsTime();
    auto stText = ZelInsIo::GpsMsText(stTime);
    {
        std::istringstream is("5965, 604800000.0");
        is >> stText;
        EXPECT_FALSE(is.fail());
        EXPECT_EQ(5966 * 7 + 44244, stTime.m_lMjdDay);
        EXPECT_EQ(0.0, stTime.m_dMjdFractMilliseconds);
    }
    // Week 5966, a week beyond 16 bits, negative or too large milliseconds:
    // the default time, no report, the stream good.
    for (const char* szText : {"5966, 0.0", "70000, 1.0", "2100, -1.0", "2100, 604800000.5"})
    {
        CRecordingHook stHook;
        stTime = ZelSample::InsTime();
        std::istringstream is(szText);
        is >> stText;
        EXPECT_FALSE(is.fail()) << szText;
        EXPECT_TRUE(stTime.m_lMjdDay == 0 && stTime.m_dMjdFractMilliseconds == 0.0 &&
                    stTime.m_eAccuracy == MJDACC_NANOSECOND)
            << szText;
        EXPECT_EQ(0u, stHook.Count());
    }
    // A cut text leaves the time as it was.
    stTime = ZelSample::InsTime();
    std::istringstream isCut("2100,");
    isCut >> stText;
    EXPECT_TRUE(isCut.fail());
    EXPECT_TRUE(stTime == ZelSample::InsTime());
}
