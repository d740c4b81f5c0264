// Orbit polynomials: the header, the clock and coordinate polynomials with
// their count check, the record with its flags, its image and its text,
// the equality rules, and the per-group values of a satellite.

#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>

#include "ZelSamplesOrbits.h"
#include "ZelTestKit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::Bytes;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{

typedef std::vector<std::string> Texts;

const char* const c_szCOUNT = "uiNumCoeffsToUse must not exceed MAX_NUM_COEFFS";

// Day of GPS week w at second s (a whole day's multiple apart from ms).
int32_t GpsDay(uint32_t ulWeek, uint32_t ulSecond)
{
    return static_cast<int32_t>(ulWeek * 7 + 44244 + ulSecond / 86400);
}
double GpsMs(uint32_t ulSecond)
{
    return static_cast<double>(ulSecond % 86400) * 1000.0;
}

// A value in scientific notation with 17 digits, as printf writes it.
std::string Sci(double d)
{
    char szBuffer[64];
    std::snprintf(szBuffer, sizeof(szBuffer), "%.17e", d);
    return szBuffer;
}

double Coord(size_t ulRow, size_t ulIdx)
{
    return static_cast<double>((ulRow + 1) * 1000 + ulIdx) + 0.5;
}

// The image of the sample, field by field from the layout.
Bytes SampleImage()
{
    CImage st;
    st.At(0).U8(0x29).Zero(3).At(4).I32(1).At(8).U8(7).Zero(3).At(12).U32(3);
    st.At(16).Time24(GpsDay(2300, 345600), GpsMs(345600), 1);
    st.At(40).I32(77).Zero(4).At(48).Time24(GpsDay(2300, 345630), GpsMs(345630), 1);
    st.At(72).F64(150.0).At(80).U8(2).Zero(7).At(88).F64(1.25e-4).F64(-3.5e-12).F64(7.0e-19);
    st.At(112).I32(78).Zero(4).At(120).Time24(GpsDay(2300, 345660), GpsMs(345660), 1);
    st.At(144).F64(300.0).At(152).U8(9).Zero(7).At(160);
    for (size_t ulRow = 0; ulRow < 3; ++ulRow)
    {
        for (size_t ulIdx = 0; ulIdx < 11; ++ulIdx)
        {
            st.F64(Coord(ulRow, ulIdx));
        }
    }
    st.At(424).U16(12).Zero(6).At(432);
    st.F64(-8.25e-9).F64(4.5e-9).F64(1.125).F64(5153.5).F64(0.0078125).F64(-1.0e-8).F64(42.0).At(488);
    return st.Get();
}

// The text of the sample up to ", AddPars, ", from a fresh stream.
std::string SampleTextHead(const char* szSat)
{
    std::string str = "OrbFlgs, 0x29, Sat, ";
    str += szSat;
    str += ", EphTyp, 3, RefTime, 2300, 345600, CoeffsClk, NumToUse, 2, IOD, 77, Time, 2300, 345630, "
           "VldHalfSpan, 150, Coeffs, ";
    str += Sci(1.25e-4) + ", " + Sci(-3.5e-12) + ", " + Sci(7.0e-19);
    // From here on the stream writes in scientific notation with 17 digits.
    str += ", CoeffsCoo, NumToUse, 9, IOD, 78, Time, 2300, " + Sci(345660.0) + ", VldHalfSpan, " +
           Sci(300.0) + ", Coeffs, ";
    for (size_t ulRow = 0; ulRow < 3; ++ulRow)
    {
        for (size_t ulIdx = 0; ulIdx < 11; ++ulIdx)
        {
            str += (ulRow + ulIdx == 0 ? "" : ", ") + Sci(Coord(ulRow, ulIdx));
        }
    }
    str += ", Ura, 12, AddPars, Odot, " + Sci(-8.25e-9) + ", DN, " + Sci(4.5e-9) + ", Mo, " + Sci(1.125) +
           ", sqrtA, " + Sci(5153.5) + ", Ecc, " + Sci(0.0078125);
    return str;
}

std::string Write(const SZelOrbPoly& rOrbPoly)
{
    std::ostringstream os;
    os << rOrbPoly;
    return os.str();
}

} // namespace

// ------------------------------------------------------------------ polynomials

TEST(OrbPolyPolynomials, DefaultsAndLimits)
{
    EXPECT_EQ(3, SZelOrbPolyClock::MAX_NUM_COEFFS);
    EXPECT_EQ(11, SZelOrbPolyCoords::MAX_NUM_COEFFS);
    const SZelOrbPolyHeader stHeader;
    EXPECT_EQ(-1, stHeader.iIod);
    EXPECT_FALSE(stHeader.stTime.IsSet());
    EXPECT_EQ(0.0, stHeader.dVldHalfSpan);
    const SZelOrbPolyClock stClock;
    EXPECT_EQ(3, stClock.GetNumCoeffsToUse());
    EXPECT_EQ(-1, stClock.iIod);
    for (double d : stClock.adCoeffs)
    {
        EXPECT_EQ(0.0, d);
    }
    const SZelOrbPolyCoords stCoords;
    EXPECT_EQ(8, stCoords.GetNumCoeffsToUse());
    for (const auto& rRow : stCoords.adCoeffs)
    {
        for (double d : rRow)
        {
            EXPECT_EQ(0.0, d);
        }
    }
}

TEST(OrbPolyPolynomials, CountCheck)
{
    CRecordingHook stHook;
    SZelOrbPolyClock stClock;
    stClock.SetNumCoeffsToUse(0);
    EXPECT_EQ(0, stClock.GetNumCoeffsToUse());
    stClock.SetNumCoeffsToUse(3);
    EXPECT_EQ(3, stClock.GetNumCoeffsToUse());
    SZelOrbPolyCoords stCoords;
    stCoords.SetNumCoeffsToUse(11);
    EXPECT_EQ(11, stCoords.GetNumCoeffsToUse());
    EXPECT_EQ(0u, stHook.Count());
    stClock.SetNumCoeffsToUse(4);
    EXPECT_EQ(3, stClock.GetNumCoeffsToUse());
    stCoords.SetNumCoeffsToUse(12);
    EXPECT_EQ(11, stCoords.GetNumCoeffsToUse());
    EXPECT_EQ(Texts(2, c_szCOUNT), stHook.Texts());
    stHook.Clear();
    const SZelOrbPolyClock stClock2(200);
    const SZelOrbPolyCoords stCoords2(12);
    EXPECT_EQ(3, stClock2.GetNumCoeffsToUse());
    EXPECT_EQ(11, stCoords2.GetNumCoeffsToUse());
    const SZelOrbPolyCoords stCoords3(5);
    EXPECT_EQ(5, stCoords3.GetNumCoeffsToUse());
    EXPECT_EQ(Texts(2, c_szCOUNT), stHook.Texts());
}

TEST(OrbPolyPolynomials, ClearKeepsTheCount)
{
    SZelOrbPoly st = ZelSample::SampleOrbPoly();
    st.stClock.clear();
    EXPECT_EQ(2, st.stClock.uiNumCoeffsToUse);
    EXPECT_EQ(-1, st.stClock.iIod);
    EXPECT_EQ(0.0, st.stClock.adCoeffs[0]);
    EXPECT_EQ(0.0, st.stClock.dVldHalfSpan);
    EXPECT_FALSE(st.stClock.stTime.IsSet());
    st.stCoords.clear();
    EXPECT_EQ(9, st.stCoords.uiNumCoeffsToUse);
    EXPECT_EQ(0.0, st.stCoords.adCoeffs[2][10]);
    EXPECT_EQ(-1, st.stCoords.iIod);
}

TEST(OrbPolyPolynomials, HeaderEqualityIsExact)
{
    SZelOrbPolyHeader stA;
    stA.iIod = 5;
    stA.stTime = SMjdTime(2300u, 10.0);
    stA.dVldHalfSpan = 60.0;
    stA.uiNumCoeffsToUse = 4;
    SZelOrbPolyHeader stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.dVldHalfSpan = 60.0 + 1e-12;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.iIod = 6;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.uiNumCoeffsToUse = 5;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stTime.AddSeconds(1.0);
    EXPECT_FALSE(stA == stB);
}

TEST(OrbPolyPolynomials, EqualityOverTheCountedCoefficients)
{
    SZelOrbPolyClock stA(2);
    stA.adCoeffs[0] = 1.0;
    stA.adCoeffs[1] = 2.0;
    stA.adCoeffs[2] = 3.0;
    SZelOrbPolyClock stB = stA;
    stB.adCoeffs[2] = -7.0;
    EXPECT_TRUE(stA == stB) << "the third coefficient takes no part with a count of 2";
    stB.adCoeffs[1] = 2.0 + 1e-10 * 0.5;
    EXPECT_TRUE(stA == stB);
    stB.adCoeffs[1] = 2.0 + 3e-10;
    EXPECT_FALSE(stA == stB);
    // Apart by exactly 1e-10: equal.
    SZelOrbPolyClock stZero(1);
    SZelOrbPolyClock stTenth(1);
    stTenth.adCoeffs[0] = 1e-10;
    EXPECT_TRUE(stZero == stTenth);
    // The span apart by exactly 1e-10: unequal.
    stTenth.adCoeffs[0] = 0.0;
    stTenth.dVldHalfSpan = 1e-10;
    EXPECT_FALSE(stZero == stTenth);
    stTenth.dVldHalfSpan = 0.5e-10;
    EXPECT_TRUE(stZero == stTenth);
    // Count, issue of data and time.
    stB = stA;
    stB.uiNumCoeffsToUse = 3;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.iIod = 4;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stTime.AddSeconds(1.0);
    EXPECT_FALSE(stA == stB);

    SZelOrbPolyCoords stCa(2);
    SZelOrbPolyCoords stCb(2);
    stCb.adCoeffs[1][5] = 99.0;
    EXPECT_TRUE(stCa == stCb);
    stCb.adCoeffs[2][1] = 1e-9;
    EXPECT_FALSE(stCa == stCb);
    stCb = stCa;
    stCb.adCoeffs[0][0] = std::nan("");
    EXPECT_FALSE(stCa == stCb);
}

TEST(OrbPolyPolynomials, CountsBeyondTheRowsFromARawImage)
{
    // An image may carry any count; the comparison stays within the rows.
    SZelOrbPolyCoords stA;
    stA.uiNumCoeffsToUse = 200;
    SZelOrbPolyCoords stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.adCoeffs[2][10] = 1.0;
    EXPECT_FALSE(stA == stB);
    SZelOrbPolyClock stC;
    stC.uiNumCoeffsToUse = 255;
    SZelOrbPolyClock stD = stC;
    stD.adCoeffs[2] = 1.0;
    EXPECT_FALSE(stC == stD);
}

// ------------------------------------------------------------------ the record

TEST(OrbPoly, ConstructionByTheSystem)
{
    const SZelOrbPoly stDefault;
    EXPECT_EQ(0, stDefault.ucOrbFlgs);
    EXPECT_EQ(SZelSatID(), stDefault.stSatId);
    EXPECT_EQ(0u, stDefault.ulEphType);
    EXPECT_FALSE(stDefault.stRefTime.IsSet());
    EXPECT_EQ(3, stDefault.stClock.uiNumCoeffsToUse);
    EXPECT_EQ(8, stDefault.stCoords.uiNumCoeffsToUse);
    EXPECT_EQ(0, stDefault.uiUra);
    EXPECT_TRUE(stDefault.stAddPars == SZelOrbPolyAddPars());
    EXPECT_EQ(0.0, stDefault.stAddPars.dSpare);

    for (int32_t lSys = 0; lSys <= 9; ++lSys)
    {
        const SZelOrbPoly st(SZelSatID(static_cast<EZelSatSystem>(lSys), 1), 4);
        EXPECT_EQ(lSys == 8 ? 1 : 8, st.stCoords.uiNumCoeffsToUse) << lSys;
        EXPECT_EQ(3, st.stClock.uiNumCoeffsToUse);
        EXPECT_EQ(4u, st.ulEphType);
        EXPECT_EQ(lSys, st.stSatId.eSatSystem);
    }
}

TEST(OrbPoly, OrbitModeBits)
{
    SZelOrbPoly st;
    st.ucOrbFlgs = 0xFF;
    st.setOrbMode(false);
    EXPECT_EQ(0xE7, st.ucOrbFlgs);
    st.ucOrbFlgs = 0x00;
    st.setOrbMode(false);
    EXPECT_EQ(0x20, st.ucOrbFlgs);
    st.ucOrbFlgs = 0xFF;
    st.setOrbMode(true);
    EXPECT_EQ(0xDF, st.ucOrbFlgs);
    st.ucOrbFlgs = 0x19;
    st.setOrbMode(true);
    EXPECT_EQ(0x19, st.ucOrbFlgs);
}

TEST(OrbPoly, ClearAndClearAddPars)
{
    SZelOrbPoly st = ZelSample::SampleOrbPoly();
    st.clearAddPars();
    EXPECT_TRUE(st.stAddPars == SZelOrbPolyAddPars());
    EXPECT_EQ(0.0, st.stAddPars.dSpare);
    EXPECT_EQ(12, st.uiUra) << "the rest stays";
    st = ZelSample::SampleOrbPoly();
    st.clear();
    EXPECT_EQ(0, st.ucOrbFlgs);
    EXPECT_EQ(SZelSatID(), st.stSatId);
    EXPECT_EQ(0u, st.ulEphType);
    EXPECT_FALSE(st.stRefTime.IsSet());
    EXPECT_EQ(2, st.stClock.uiNumCoeffsToUse) << "the counts stay";
    EXPECT_EQ(9, st.stCoords.uiNumCoeffsToUse);
    EXPECT_EQ(0.0, st.stClock.adCoeffs[0]);
    EXPECT_EQ(-1, st.stCoords.iIod);
    EXPECT_EQ(0, st.uiUra);
    EXPECT_EQ(0.0, st.stAddPars.dSqrtA);
}

TEST(OrbPoly, AdditionalParametersInTwoReadings)
{
    SZelOrbPoly st = ZelSample::SampleOrbPolyGalileo();
    const SZelOrbPolyAddParsGal stGal = st.getAddParsGal();
    EXPECT_EQ(-8.25e-9, stGal.dOdot);
    EXPECT_EQ(4.5e-9, stGal.dDN);
    EXPECT_EQ(1.125, stGal.dMo);
    EXPECT_EQ(5153.5, stGal.dSqrtA);
    EXPECT_EQ(0.0078125, stGal.dEcc);
    EXPECT_EQ(2.5e-9, stGal.dBgdE5a);
    EXPECT_EQ(-3.0e-9, stGal.dBgdE5b);
    // The sixth and seventh values are the same storage in both readings.
    EXPECT_EQ(2.5e-9, st.stAddPars.dTgd);
    EXPECT_EQ(-3.0e-9, st.stAddPars.dSpare);

    // Each reading has its own equality: six values, or seven.
    SZelOrbPolyAddPars stA = ZelSample::SampleOrbPoly().stAddPars;
    SZelOrbPolyAddPars stB = stA;
    stB.dSpare = -1.0;
    EXPECT_TRUE(stA == stB) << "the seventh value takes no part";
    double SZelOrbPolyAddPars::*apValues[] = {&SZelOrbPolyAddPars::dOdot, &SZelOrbPolyAddPars::dDN,
                                              &SZelOrbPolyAddPars::dMo,   &SZelOrbPolyAddPars::dSqrtA,
                                              &SZelOrbPolyAddPars::dEcc,  &SZelOrbPolyAddPars::dTgd};
    for (auto pValue : apValues)
    {
        stB = stA;
        stB.*pValue = std::nextafter(stA.*pValue, 1e300);
        EXPECT_FALSE(stA == stB) << "exact";
    }
    SZelOrbPolyAddParsGal stGa = stGal;
    SZelOrbPolyAddParsGal stGb = stGal;
    EXPECT_TRUE(stGa == stGb);
    stGb.dBgdE5b = 0.0;
    EXPECT_FALSE(stGa == stGb);
    stGb = stGal;
    stGb.dBgdE5a = 0.0;
    EXPECT_FALSE(stGa == stGb);
}

TEST(OrbPoly, Image)
{
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT; // the count is set on success only
    ZelTest::ExpectCoreImage(ZelSample::SampleOrbPoly(), SampleImage(), stRules);
}

TEST(OrbPoly, ImageCarriesEveryFieldAndPassesTheGapsOver)
{
    Bytes vecImage = SampleImage();
    // Gaps hold anything in an image.
    for (const size_t ulGap : {1u, 9u, 20u, 36u, 44u, 81u, 116u, 153u, 430u})
    {
        vecImage[ulGap] = 0xEE;
    }
    SZelOrbPoly st;
    uint64_t ulCount = 0;
    CRecordingHook stHook;
    ASSERT_TRUE(st.loadData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_EQ(488u, ulCount);
    EXPECT_EQ(0u, stHook.Count());
    const SZelOrbPoly stSample = ZelSample::SampleOrbPoly();
    EXPECT_TRUE(st == stSample);
    // Fields that the equality passes over came in as well.
    EXPECT_EQ(stSample.stRefTime, st.stRefTime);
    EXPECT_EQ(MJDACC_NANOSECOND, st.stRefTime.GetAccuracy());
    EXPECT_TRUE(st.stAddPars == stSample.stAddPars);
    EXPECT_EQ(42.0, st.stAddPars.dSpare);
    EXPECT_EQ(7.0e-19, st.stClock.adCoeffs[2]);
    // A count beyond the limit comes in as it stands.
    vecImage[80] = 200;
    ASSERT_TRUE(st.loadData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_EQ(200, st.stClock.uiNumCoeffsToUse);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(OrbPoly, NastyImagesNeverCrash)
{
    std::mt19937 stRandom(4242u);
    for (int iRound = 0; iRound < 300; ++iRound)
    {
        Bytes vecBytes(stRandom() % 600);
        for (unsigned char& ruc : vecBytes)
        {
            ruc = static_cast<unsigned char>(stRandom());
        }
        CRecordingHook stHook;
        SZelOrbPoly st;
        uint64_t ulCount = 3;
        const bool bOk = st.loadData(vecBytes.data(), vecBytes.size(), &ulCount);
        EXPECT_EQ(vecBytes.size() >= 488, bOk);
        EXPECT_EQ(bOk ? 488u : 3u, ulCount);
        (void)(st == ZelSample::SampleOrbPoly());
        std::ostringstream os;
        os << st;
        std::istringstream is(os.str());
        SZelOrbPoly stBack;
        is >> stBack;
    }
}

TEST(OrbPoly, Equality)
{
    CRecordingHook stHook;
    const SZelOrbPoly stA = ZelSample::SampleOrbPoly();
    SZelOrbPoly stB = stA;
    EXPECT_TRUE(stA == stB);
    // stRefTime and the additional parameters take no part.
    stB.stRefTime.AddDays(3);
    stB.stAddPars.dMo = -1.0;
    EXPECT_TRUE(stA == stB);
    stB = stA;
    stB.ucOrbFlgs = 0x28;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stClock.adCoeffs[0] += 1e-9;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stCoords.adCoeffs[1][8] += 1e-9;
    EXPECT_FALSE(stA == stB);
    stB.stCoords.adCoeffs[1][8] = stA.stCoords.adCoeffs[1][8];
    stB.stCoords.adCoeffs[1][9] += 1.0; // beyond the count of 9
    EXPECT_TRUE(stA == stB);
    // uiUra counts where bit 0 says it holds.
    stB = stA;
    stB.uiUra = 13;
    EXPECT_FALSE(stA == stB);
    SZelOrbPoly stNoUraA = stA;
    stNoUraA.ucOrbFlgs = 0x28;
    SZelOrbPoly stNoUraB = stNoUraA;
    stNoUraB.uiUra = 13;
    EXPECT_TRUE(stNoUraA == stNoUraB);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(OrbPoly, InvalidSatellitesAreEqualAndDifferentOnesAreAMistake)
{
    CRecordingHook stHook;
    SZelOrbPoly stA = ZelSample::SampleOrbPoly();
    SZelOrbPoly stB = stA;
    stA.stSatId = SZelSatID();
    stB.stSatId = SZelSatID(ZELSATSYSTEM_GPS, 0);
    stB.stClock.adCoeffs[0] = 5.0;
    stB.ucOrbFlgs = 0;
    EXPECT_TRUE(stA == stB) << "two records with invalid satellites are equal";
    EXPECT_EQ(0u, stHook.Count());
    // One valid, one not: different satellites.
    stA = ZelSample::SampleOrbPoly();
    EXPECT_FALSE(stA == stB);
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    stHook.Clear();
    stB = stA;
    stB.stSatId.uiSatNumber = 8;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulEphType = 4;
    EXPECT_FALSE(stA == stB);
    EXPECT_EQ(Texts({"false", "false"}), stHook.Texts());
    stHook.Clear();
    EXPECT_TRUE(stA != stB);
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
}

TEST(OrbPoly, TextOfAGpsRecord)
{
    const std::string strExpected = SampleTextHead("G07") + ", Tgd, " + Sci(-1.0e-8);
    EXPECT_EQ(strExpected, Write(ZelSample::SampleOrbPoly()));
    ZelTest::ExpectTextExact(ZelSample::SampleOrbPoly(), strExpected);
    // The seventh value is not in the text.
    std::istringstream is(strExpected);
    SZelOrbPoly stRead;
    is >> stRead;
    EXPECT_EQ(0.0, stRead.stAddPars.dSpare);
    EXPECT_EQ(-1.0e-8, stRead.stAddPars.dTgd);
    EXPECT_EQ(ZelSample::SampleOrbPoly().stAddPars, stRead.stAddPars);
    EXPECT_EQ(ZelSample::SampleOrbPoly().stRefTime, stRead.stRefTime);
}

TEST(OrbPoly, TextOfAGalileoRecord)
{
    const std::string strExpected =
        SampleTextHead("E12") + ", BgdE5a, " + Sci(2.5e-9) + ", BgdE5b, " + Sci(-3.0e-9);
    EXPECT_EQ(strExpected, Write(ZelSample::SampleOrbPolyGalileo()));
    ZelTest::ExpectTextExact(ZelSample::SampleOrbPolyGalileo(), strExpected);
    std::istringstream is(strExpected);
    SZelOrbPoly stRead;
    is >> stRead;
    EXPECT_TRUE(stRead.getAddParsGal() == ZelSample::SampleOrbPolyGalileo().getAddParsGal());
}

TEST(OrbPoly, TextOfTheDefault)
{
    // A default time lies before the GPS epoch: its week is the unsigned
    // day count from the epoch over 7, cut to 16 bits.
    const std::string strWeek = std::to_string(static_cast<uint16_t>((0u - 44244u) / 7u));
    std::string strExpected = "OrbFlgs, 0, Sat, N00, EphTyp, 0, RefTime, " + strWeek +
                              ", 0, CoeffsClk, NumToUse, 3, IOD, 4294967295, Time, " + strWeek +
                              ", 0, VldHalfSpan, 0, Coeffs, ";
    strExpected += Sci(0.0) + ", " + Sci(0.0) + ", " + Sci(0.0);
    strExpected += ", CoeffsCoo, NumToUse, 8, IOD, 4294967295, Time, " + strWeek + ", " + Sci(0.0) +
                   ", VldHalfSpan, " + Sci(0.0) + ", Coeffs";
    for (int i = 0; i < 33; ++i)
    {
        strExpected += ", " + Sci(0.0);
    }
    strExpected += ", Ura, 0, AddPars, Odot, " + Sci(0.0) + ", DN, " + Sci(0.0) + ", Mo, " + Sci(0.0) +
                   ", sqrtA, " + Sci(0.0) + ", Ecc, " + Sci(0.0) + ", Tgd, " + Sci(0.0);
    EXPECT_EQ(strExpected, Write(SZelOrbPoly()));
    // The week out of range is read back as a default time; the issue of
    // data comes back as -1.
    std::istringstream is(strExpected);
    SZelOrbPoly stRead = ZelSample::SampleOrbPoly();
    is >> stRead;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(-1, stRead.stClock.iIod);
    EXPECT_EQ(-1, stRead.stCoords.iIod);
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_NONE, 0), stRead.stSatId);
}

TEST(OrbPoly, TextLeavesTheBaseDecimal)
{
    std::ostringstream os;
    SZelOrbPoly st;
    st.ucOrbFlgs = 0x10;
    os << st;
    os << " " << 255 << " " << std::hex << 255;
    const std::string str = os.str();
    EXPECT_EQ(0u, str.find("OrbFlgs, 0x10, Sat"));
    EXPECT_EQ(" 255 ff", str.substr(str.size() - 7)) << "decimal again, and no base prefix left";
}

TEST(OrbPoly, TextReaderChecksTheCounts)
{
    std::string strText = Write(ZelSample::SampleOrbPoly());
    const size_t ulClock = strText.find("NumToUse, 2");
    ASSERT_NE(std::string::npos, ulClock);
    strText.replace(ulClock, 11, "NumToUse, 7");
    const size_t ulCoords = strText.find("NumToUse, 9");
    ASSERT_NE(std::string::npos, ulCoords);
    strText.replace(ulCoords, 11, "NumToUse, 300");
    CRecordingHook stHook;
    std::istringstream is(strText);
    SZelOrbPoly st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(Texts(2, c_szCOUNT), stHook.Texts());
    EXPECT_EQ(3, st.stClock.uiNumCoeffsToUse);
    EXPECT_EQ(11, st.stCoords.uiNumCoeffsToUse);
    EXPECT_EQ(Coord(2, 10), st.stCoords.adCoeffs[2][10]) << "every coefficient is read whatever the count";
}

TEST(OrbPoly, TextWithOtherTagWordsAndCut)
{
    std::string strText = Write(ZelSample::SampleOrbPoly());
    for (const char* szTag : {"OrbFlgs,", "EphTyp,", "VldHalfSpan,", "CoeffsCoo,", "sqrtA,", "Tgd,"})
    {
        const size_t ulAt = strText.find(szTag);
        ASSERT_NE(std::string::npos, ulAt);
        strText.replace(ulAt, std::strlen(szTag) - 1, "Xx");
    }
    std::istringstream is(strText);
    SZelOrbPoly st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == ZelSample::SampleOrbPoly());
    EXPECT_EQ(-1.0e-8, st.stAddPars.dTgd);

    // Cut inside the coordinates: the fields after the cut keep their values.
    const std::string strFull = Write(ZelSample::SampleOrbPoly());
    std::istringstream isCut(strFull.substr(0, strFull.find("CoeffsCoo") + 20));
    SZelOrbPoly stCut;
    isCut >> stCut;
    EXPECT_TRUE(isCut.fail());
    EXPECT_EQ(77, stCut.stClock.iIod);
    EXPECT_EQ(0, stCut.uiUra);
    EXPECT_EQ(0.0, stCut.stCoords.adCoeffs[0][0]);
}

// ------------------------------------------------------------------ values per frequency group

TEST(SatGroupValues, DefaultsAndConstruction)
{
    const SZelSatGroupValues stDefault;
    EXPECT_EQ(SZelSatID(), stDefault.stSatId);
    EXPECT_EQ(0u, stDefault.getGroupMask());
    for (const SZelGroupValue& rValue : stDefault.astValues)
    {
        EXPECT_FALSE(rValue.bSet);
        EXPECT_EQ(0.0, rValue.dValue);
    }
    const SZelSatGroupValues st(SZelSatID(ZELSATSYSTEM_GPS, 4), 0x5);
    EXPECT_EQ(0x5u, st.getGroupMask());
    double dValue = 9.0;
    EXPECT_FALSE(st.getValue(ZELFREQUENCY_GROUP_1, dValue)) << "the pairs stay unset";
    EXPECT_EQ(0.0, dValue);
}

TEST(SatGroupValues, SetAndGet)
{
    CRecordingHook stHook;
    SZelSatGroupValues st = ZelSample::SampleSatGroupValues();
    EXPECT_EQ(0x5u, st.getGroupMask());
    double dValue = 0.0;
    EXPECT_TRUE(st.getValue(ZELFREQUENCY_GROUP_1, dValue));
    EXPECT_EQ(0.25, dValue);
    EXPECT_TRUE(st.getValue(ZELFREQUENCY_GROUP_3, dValue));
    EXPECT_EQ(-1.5, dValue);
    EXPECT_FALSE(st.getValue(ZELFREQUENCY_GROUP_2, dValue));
    EXPECT_EQ(0.0, dValue);
    // Group 0 has a pair but no bit.
    st.setValue(ZELFREQUENCY_GROUP_NONE, 4.0);
    EXPECT_EQ(0x5u, st.getGroupMask());
    EXPECT_TRUE(st.getValue(ZELFREQUENCY_GROUP_NONE, dValue));
    EXPECT_EQ(4.0, dValue);
    st.setValue(ZELFREQUENCY_GROUP_6, 6.0);
    EXPECT_EQ(0x25u, st.getGroupMask());
    EXPECT_EQ(0u, stHook.Count());
    // From 7 on: reported, no pair, no bit.
    st.setValue(ZELFREQUENCY_GROUPS_MAX, 7.0);
    st.setValue(static_cast<EZelFrequencyGroup>(40), 7.0);
    EXPECT_EQ(Texts(2, "eFrqGrp < ZELFREQUENCY_GROUPS_MAX"), stHook.Texts());
    EXPECT_EQ(0x25u, st.getGroupMask());
    EXPECT_FALSE(st.getValue(ZELFREQUENCY_GROUPS_MAX, dValue));
    EXPECT_FALSE(st.getValue(static_cast<EZelFrequencyGroup>(-1), dValue));
    stHook.Clear();
    // A negative group has no pair either.
    st.setValue(static_cast<EZelFrequencyGroup>(-3), 1.0);
    EXPECT_EQ(0x25u, st.getGroupMask());
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SatGroupValues, SetValuesByMask)
{
    CRecordingHook stHook;
    SZelSatGroupValues st(SZelSatID(ZELSATSYSTEM_GALILEO, 1), 0);
    st.setValues(0, 3.0);
    EXPECT_EQ(0u, st.getGroupMask());
    EXPECT_TRUE(st == SZelSatGroupValues(SZelSatID(ZELSATSYSTEM_GALILEO, 1), 0))
        << "a mask of 0 changes nothing";
    st.setValues(0x12, 3.0); // groups 2 and 5
    EXPECT_EQ(0x12u, st.getGroupMask());
    double dValue = 0.0;
    EXPECT_TRUE(st.getValue(ZELFREQUENCY_GROUP_2, dValue));
    EXPECT_EQ(3.0, dValue);
    EXPECT_TRUE(st.getValue(ZELFREQUENCY_GROUP_5, dValue));
    EXPECT_FALSE(st.getValue(ZELFREQUENCY_GROUP_1, dValue));
    EXPECT_EQ(0u, stHook.Count());
    // Bits of groups from 7 on join the mask, with a report each.
    st.setValues(0x41, -2.0);
    EXPECT_EQ(0x53u, st.getGroupMask());
    EXPECT_TRUE(st.getValue(ZELFREQUENCY_GROUP_1, dValue));
    EXPECT_EQ(-2.0, dValue);
    EXPECT_EQ(Texts{"eFrqGrp < ZELFREQUENCY_GROUPS_MAX"}, stHook.Texts());
}

TEST(SatGroupValues, Equality)
{
    const SZelSatGroupValues stA = ZelSample::SampleSatGroupValues();
    SZelSatGroupValues stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.setValue(ZELFREQUENCY_GROUP_1, 0.5);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulGroupMask = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stSatId.uiSatNumber = 4;
    EXPECT_TRUE(stA != stB);
}
