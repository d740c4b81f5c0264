// Observation epochs and the measurement engine's output records: header,
// epoch, correction keys and maps, output batches, the station record and the
// external epoch; binary images by the offset tables, text forms, bounds
// tests on the present content, the partial reset, and the readers'
// allocation in proportion to their input.

#include "ZelAllocCounter.h"
#include "ZelSamplesObservations.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <gtest/gtest.h>

#include <cstring>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

using namespace ZELN;
using ZelSample::SatObs;
using ZelTest::Bytes;
using ZelTest::CImage;

namespace
{

// A value patched into an image at an offset.
template <class T> void Put(Bytes& vecImage, size_t ulOffset, T tValue)
{
    std::memcpy(&vecImage[ulOffset], &tValue, sizeof(T));
}

// ---- hand-made images, by the offset tables

// The header, 96 bytes: times as 24-byte blocks at 8 and 72.
Bytes HeaderImage(const SZelObservationEpochHeader& r)
{
    const SMjdTime& rT = r.stTime;
    const SMjdTime& rF = r.stFirstStaticMarkEpoch;
    CImage stImage;
    stImage.At(0).U8(r.ucTag0).At(1).U8(r.ucTag1).Zero(6);
    stImage.At(8).Time24(rT.m_lMjdDay, rT.m_dMjdFractMilliseconds, rT.m_eAccuracy);
    stImage.At(32).U8(r.ucNumSats).Zero(7).At(40).F64(r.dClockOffset).At(48).F64(r.dTimeStampOffset);
    stImage.At(56).U32(r.ulDopplerRate).At(60).U32(r.ulPositionRate).At(64).I32(r.lSmoothingLength).Zero(4);
    stImage.At(72).Time24(rF.m_lMjdDay, rF.m_dMjdFractMilliseconds, rF.m_eAccuracy).At(96);
    return stImage;
}

// One signal record, 72 bytes.
Bytes SignalImage(const SZelFreqObservation& r)
{
    CImage stImage;
    stImage.At(0).U32(r.ulObsFlags).At(4).I32(r.eFrequency).At(8).I32(r.eTrackMode).Zero(4);
    stImage.At(16).F64(r.dPhase).At(24).F64(r.dCode).At(32).F64(r.dDopplerM).At(40).F64(r.dDopplerC);
    stImage.At(48).U16(r.unContMeasCount10Msec).At(50).U16(r.unCNo).At(52).U16(r.unPhaseRms100thMm);
    stImage.At(54).U16(r.unRangeRmsMm).At(56).I16(r.nTimeOffsetRTCM9).Zero(2);
    stImage.At(60).F32(r.fVelocity).At(64).F32(r.fAcceleration).Zero(4).At(72);
    return stImage;
}

// A satellite: the 15-byte head, then the filled signal records.
Bytes SatImage(const SZelSatObservation& r)
{
    CImage stImage;
    stImage.At(0).I32(r.stSatId.eSatSystem).At(4).U8(r.stSatId.uiSatNumber).Zero(3).At(8).U32(r.ulIOD);
    stImage.At(12).U8(r.ucSatFlags).At(13).U8(r.ucChannel).At(14).U8(r.uiNumFreq).At(15);
    for (size_t ulIdx = 0; ulIdx < r.uiNumFreq; ++ulIdx)
    {
        stImage.Append(SignalImage(r.astFreqObs[ulIdx]));
    }
    return stImage;
}

// The header, the count at 96, the satellites from 100.
Bytes EpochImage(const SZelObservationEpoch& r)
{
    CImage stImage;
    stImage.Append(HeaderImage(r.stZelObservationEpochHeader)).At(96).U32(r.vecSatObs.size()).At(100);
    for (const SZelSatObservation& rstSat : r.vecSatObs)
    {
        stImage.Append(SatImage(rstSat));
    }
    return stImage;
}

// Correction entry, 28 bytes, the value unaligned at 20.
Bytes CorrectionEntry(const SZelCorrectionKey& rstKey, double dValue)
{
    CImage stImage;
    stImage.At(0).I32(rstKey.stSatId.eSatSystem).At(4).U8(rstKey.stSatId.uiSatNumber).Zero(3);
    stImage.At(8).I32(rstKey.eFrequency).At(12).U8(rstKey.bTrackModeY ? 1 : 0).Zero(3);
    stImage.At(16).I32(rstKey.eCorrType).At(20).F64(dValue).At(28);
    return stImage;
}

// Range rate entry, 16 bytes.
Bytes RangeRateEntry(const SZelSatID& rstSatId, double dValue)
{
    return CImage().At(0).I32(rstSatId.eSatSystem).At(4).U8(rstSatId.uiSatNumber).Zero(3).At(8).F64(dValue);
}

// The epoch, station counts, clock, then the entries in the map's own
// iteration order.
Bytes RtmeImage(const SZelRtmeOutEpochData& r)
{
    CImage stImage;
    stImage.Append(EpochImage(r.stObs));
    const size_t ulAt = stImage.Size();
    stImage.At(ulAt).I32(r.alStationsUsed[0]).I32(r.alStationsUsed[1]).I32(r.alStationsUsed[2]);
    stImage.I32(r.alStationsUsed[3]).At(ulAt + 16).F64(r.dClock).At(ulAt + 24).U32(r.mapCorrections.size());
    for (const auto& rEntry : r.mapCorrections)
    {
        stImage.Append(CorrectionEntry(rEntry.first, rEntry.second));
    }
    stImage.U32(r.mapRangeRates.size());
    for (const auto& rEntry : r.mapRangeRates)
    {
        stImage.Append(RangeRateEntry(rEntry.first, rEntry.second));
    }
    return stImage;
}

// The station record, 40 bytes.
Bytes ObsInfoImage(const SZelObsInfo& r)
{
    const SMjdTime& rT = r.stStaticSince;
    CImage stImage;
    stImage.At(0).Time24(rT.m_lMjdDay, rT.m_dMjdFractMilliseconds, rT.m_eAccuracy);
    stImage.At(24).U8(r.ucTimeStatus).Zero(1).At(26).U16(r.unObsFlags).At(28).U8(r.ucDataFlags);
    stImage.At(29).U8(r.ucStationType).Zero(2).At(32).U32(r.ulStationId).Zero(4).At(40);
    return stImage;
}

// ---- targets of the same shape as a sample with other values: one byte
// short fails at their first bounds test, and a load overwrites them whole.

void Perturb(SZelObservationEpoch& r)
{
    r.stZelObservationEpochHeader.ucTag0 = 1;
    r.stZelObservationEpochHeader.stTime.m_lMjdDay = 12;
    for (SZelSatObservation& rstSat : r.vecSatObs)
    {
        rstSat.ucChannel = static_cast<uint8_t>(rstSat.ucChannel + 1);
        for (SZelFreqObservation& rstObs : rstSat.astFreqObs)
        {
            rstObs.dPhase += 1.0;
        }
    }
}

void Perturb(SZelRtmeOutEpochData& r)
{
    Perturb(r.stObs);
    r.alStationsUsed[2] = 77;
    r.dClock += 1.0;
    for (auto& rEntry : r.mapCorrections)
    {
        rEntry.second += 1.0;
    }
    for (auto& rEntry : r.mapRangeRates)
    {
        rEntry.second += 1.0;
    }
}

template <class R> R Perturbed(R tRecord)
{
    Perturb(tRecord);
    return tRecord;
}

template <class R> Bytes Save(const R& rRecord, uint64_t* pulUsed = nullptr)
{
    Bytes vecOut(static_cast<size_t>(rRecord.getSize()), 0xAA);
    uint64_t ulUsed = 99;
    EXPECT_TRUE(rRecord.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    if (pulUsed != nullptr)
    {
        *pulUsed = ulUsed;
    }
    return vecOut;
}

template <class R> std::string ToText(const R& rRecord)
{
    std::ostringstream oss;
    oss << std::setprecision(17) << rRecord;
    return oss.str();
}

const std::vector<std::string> c_vecOneFalse = {"false"};
const std::vector<std::string> c_vecTwoFalse = {"false", "false"};

// The header's line at the default precision of a fresh stream.
const std::string c_strHeaderText =
    "165, 90, 2250, 5.616e+08, NumSats, 5, ClkOffs, 0.000125, TimeStampOffs, -0.5, "
    "DoppRate, 500, PosRate, 200, SmooLgth, -100, 1stStatMrkEpoch, 2250, 432001";

} // namespace

// ---------------------------------------------------------------------------
// Epoch header
// ---------------------------------------------------------------------------

TEST(EpochHeader, DefaultsAndReset)
{
    SZelObservationEpochHeader stHeader = ZelSample::EpochHeader();
    stHeader.stTime.m_eAccuracy = MJDACC_HOUR;
    stHeader.Reset();
    EXPECT_EQ(stHeader.ucTag0, 0);
    EXPECT_EQ(stHeader.ucTag1, 0);
    EXPECT_EQ(stHeader.stTime.m_lMjdDay, 0);
    EXPECT_EQ(stHeader.stTime.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stHeader.stTime.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(stHeader.ucNumSats, 0);
    EXPECT_EQ(stHeader.dClockOffset, 0.0);
    EXPECT_EQ(stHeader.dTimeStampOffset, 0.0);
    EXPECT_EQ(stHeader.ulDopplerRate, 1000u);
    EXPECT_EQ(stHeader.ulPositionRate, 1000u);
    EXPECT_EQ(stHeader.lSmoothingLength, 0);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_lMjdDay, 0);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(stHeader.getSize(), 96u);
    EXPECT_FALSE(std::is_polymorphic<SZelObservationEpochHeader>::value);
}

TEST(EpochHeader, GoldenImage)
{
    CImage stExpected;
    stExpected.At(0).U8(0xA5).U8(0x5A).Zero(6).At(8).Time24(60000, 43200000.5, 0);
    stExpected.At(32).U8(5).Zero(7).At(40).F64(0.000125).At(48).F64(-0.5);
    stExpected.At(56).U32(500).At(60).U32(200).At(64).I32(-100).Zero(4);
    stExpected.At(72).Time24(59999, 1000.0, 1).At(96);
    ZelTest::ExpectCoreImage(ZelSample::EpochHeader(), stExpected);
    EXPECT_EQ(c_ulOBSEPOCH_HEADER_SIZE, SZelObservationEpochHeader().getSize());

    SZelObservationEpochHeader stBack;
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stBack.loadData(stExpected.Get().data(), stExpected.Size(), &ulUsed));
    EXPECT_EQ(stBack.stTime.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(stBack.stFirstStaticMarkEpoch.m_eAccuracy, MJDACC_NANOSECOND);
}

TEST(EpochHeader, AccuracyOutsideTheEnumerationLoadsAsItStands)
{
    Bytes vecImage = HeaderImage(ZelSample::EpochHeader());
    Put<int32_t>(vecImage, 24, 77);
    Put<int32_t>(vecImage, 88, -1);
    vecImage[2] = 0xFF; // reserved bytes are passed over
    vecImage[70] = 0xFF;
    SZelObservationEpochHeader stBack;
    uint64_t ulUsed = 0;
    EXPECT_TRUE(stBack.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    // Accuracies come in as they stand, like any time read from an image.
    EXPECT_EQ(static_cast<int32_t>(stBack.stTime.m_eAccuracy), 77);
    EXPECT_EQ(static_cast<int32_t>(stBack.stFirstStaticMarkEpoch.m_eAccuracy), -1);
    EXPECT_EQ(stBack.stTime.m_lMjdDay, 60000);
}

TEST(EpochHeader, ComparisonFieldByFieldAndTimesWithTolerance)
{
    const SZelObservationEpochHeader stA = ZelSample::EpochHeader();
    SZelObservationEpochHeader stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.ucTag0 = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucTag1 = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucNumSats = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.dClockOffset = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.dTimeStampOffset = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulDopplerRate = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulPositionRate = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.lSmoothingLength = 1;
    EXPECT_FALSE(stA != stA);
    EXPECT_TRUE(stA != stB);
    // stTime is exact on both sides: half a nanosecond is a difference.
    stB = stA;
    stB.stTime.m_dMjdFractMilliseconds += 5e-7;
    EXPECT_FALSE(stA == stB);
    // At nanosecond accuracy on both sides it is not.
    SZelObservationEpochHeader stC = stA;
    SZelObservationEpochHeader stD = stB;
    stC.stTime.m_eAccuracy = MJDACC_NANOSECOND;
    stD.stTime.m_eAccuracy = MJDACC_NANOSECOND;
    EXPECT_TRUE(stC == stD);
    // An exact side sees it when it is the earlier one, in either order.
    stC.stTime.m_eAccuracy = MJDACC_EXACT;
    EXPECT_FALSE(stC == stD);
    EXPECT_FALSE(stD == stC);
    stC.stTime.m_eAccuracy = MJDACC_NANOSECOND;
    stD.stTime.m_eAccuracy = MJDACC_EXACT;
    EXPECT_TRUE(stC == stD);
    stB = stA;
    stB.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds += 5e-7; // within a nanosecond
    EXPECT_TRUE(stA == stB);
    stB.stFirstStaticMarkEpoch.m_lMjdDay += 1;
    EXPECT_FALSE(stA == stB);
}

TEST(EpochHeaderText, ExactStringAndReadBack)
{
    const SZelObservationEpochHeader stHeader = ZelSample::EpochHeader();
    ZelTest::ExpectText(stHeader, c_strHeaderText);
    // At 12 digits the line holds the record.
    std::ostringstream oss;
    oss << std::setprecision(12) << stHeader;
    EXPECT_EQ(oss.str(), "165, 90, 2250, 561600000.5, NumSats, 5, ClkOffs, 0.000125, TimeStampOffs, -0.5, "
                         "DoppRate, 500, PosRate, 200, SmooLgth, -100, 1stStatMrkEpoch, 2250, 432001");
    std::istringstream iss(oss.str());
    SZelObservationEpochHeader stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stHeader);
    EXPECT_EQ(stBack.stTime.m_lMjdDay, 60000);
    EXPECT_EQ(stBack.stTime.m_dMjdFractMilliseconds, 43200000.5);
    EXPECT_EQ(stBack.stTime.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(stBack.stFirstStaticMarkEpoch.m_lMjdDay, 59999);
}

TEST(EpochHeaderText, WeekLimitsOfTheReader)
{
    ZelTest::CRecordingHook stHook;
    SZelObservationEpochHeader stHeader = ZelSample::EpochHeader();
    std::istringstream iss(
        "1, 2, 5966, 1000, NumSats, 3, ClkOffs, 0, TimeStampOffs, 0, DoppRate, 1, PosRate, 1, "
        "SmooLgth, 0, 1stStatMrkEpoch, 5965, 604800");
    iss >> stHeader;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(stHeader.stTime.m_lMjdDay, 0);
    EXPECT_EQ(stHeader.stTime.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stHeader.stTime.m_eAccuracy, MJDACC_NANOSECOND);
    // The last week below the limit with the end of the week is accepted.
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_lMjdDay, 5965 * 7 + 44244 + 7);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stHeader.ucNumSats, 3);
    EXPECT_EQ(stHook.Count(), 0u);

    std::istringstream iss2("1, 2, 5965, 604800000, NumSats, 3, ClkOffs, 0, TimeStampOffs, 0, DoppRate, 1, "
                            "PosRate, 1, SmooLgth, 0, 1stStatMrkEpoch, 2000, 604800.5");
    stHeader = ZelSample::EpochHeader();
    iss2 >> stHeader;
    EXPECT_EQ(stHeader.stTime.m_lMjdDay, 5965 * 7 + 44244 + 7);
    EXPECT_EQ(stHeader.stTime.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_lMjdDay, 0);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_eAccuracy, MJDACC_NANOSECOND);
    std::istringstream iss3("1, 2, 100, -1, NumSats, 3, ClkOffs, 0, TimeStampOffs, 0, DoppRate, 1, "
                            "PosRate, 1, SmooLgth, 0, 1stStatMrkEpoch, 2000, 1");
    stHeader = ZelSample::EpochHeader();
    iss3 >> stHeader;
    EXPECT_EQ(stHeader.stTime.m_lMjdDay, 0);
    EXPECT_EQ(stHeader.stTime.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(stHook.Count(), 0u);
}

// ---------------------------------------------------------------------------
// Epoch
// ---------------------------------------------------------------------------

TEST(Epoch, EmptyEpochIsHundredBytes)
{
    // The default header: rates 1000 at 56 and 60, accuracies 0 and 1; the count 0 at 96.
    CImage stExpected;
    stExpected.At(0).Zero(8).At(8).Time24(0, 0.0, 0).At(32).Zero(24);
    stExpected.At(56).U32(1000).At(60).U32(1000).Zero(8).At(72).Time24(0, 0.0, 1);
    stExpected.At(96).U32(0).At(100);
    ZelTest::ExpectCoreImage(SZelObservationEpoch(), stExpected);
    EXPECT_EQ(c_ulOBSEPOCH_FIXED_SIZE, SZelObservationEpoch().getSize());
}

TEST(Epoch, ResetDefaultsKeepAllocationAndSaveSilently)
{
    SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    stEpoch.vecSatObs.reserve(40);
    const size_t ulCapacity = stEpoch.vecSatObs.capacity();
    stEpoch.Reset();
    EXPECT_TRUE(stEpoch.vecSatObs.empty());
    EXPECT_EQ(stEpoch.vecSatObs.capacity(), ulCapacity);
    const SZelObservationEpochHeader& rstHeader = stEpoch.stZelObservationEpochHeader;
    EXPECT_EQ(rstHeader.ulDopplerRate, 1000u);
    EXPECT_EQ(rstHeader.ulPositionRate, 1000u);
    EXPECT_EQ(rstHeader.lSmoothingLength, 0);
    EXPECT_EQ(rstHeader.stTime.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(rstHeader.stFirstStaticMarkEpoch.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(rstHeader.ucTag0, 0);
    ZelTest::CRecordingHook stHook;
    Save(stEpoch);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(Epoch, VirtualDestructorAndDeepCopy)
{
    EXPECT_TRUE(std::has_virtual_destructor<SZelObservationEpoch>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SZelRtmeOutEpochData>::value);
    EXPECT_TRUE(std::has_virtual_destructor<SZelOutObservations>::value);
    const SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    SZelObservationEpoch stCopy(stEpoch);
    EXPECT_TRUE(stCopy == stEpoch);
    EXPECT_NE(stCopy.vecSatObs.data(), stEpoch.vecSatObs.data());
    stCopy.vecSatObs[0].ucChannel = 99;
    EXPECT_FALSE(stCopy == stEpoch);
    SZelObservationEpoch stAssigned;
    stAssigned = stEpoch;
    EXPECT_TRUE(stAssigned == stEpoch);
}

TEST(EpochBinary, GoldenImageOfSeveralSystems)
{
    const SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    // The header as in its own golden image, the count at 96, satellites from 100.
    CImage stExpected;
    stExpected.At(0).U8(0xA5).U8(0x5A).Zero(6).At(8).Time24(60000, 43200000.5, 0);
    stExpected.At(32).U8(5).Zero(7).At(40).F64(0.000125).At(48).F64(-0.5);
    stExpected.At(56).U32(500).At(60).U32(200).At(64).I32(-100).Zero(4);
    stExpected.At(72).Time24(59999, 1000.0, 1).At(96).U32(6).At(100);
    for (const SZelSatObservation& rstSat : stEpoch.vecSatObs)
    {
        stExpected.Append(SatImage(rstSat));
    }
    ASSERT_EQ(stExpected.Size(), 100u + 6u * 15u + 17u * 72u);
    // Spot checks of the offsets: the BeiDou satellite's head and last signal.
    const Bytes& vecExpected = stExpected;
    const size_t ulBeidou = 100 + (15 + 72) + (15 + 144) + (15 + 216);
    EXPECT_EQ(vecExpected[ulBeidou + 4], 38);
    EXPECT_EQ(vecExpected[ulBeidou + 14], 6);
    int32_t lFrq = 0;
    std::memcpy(&lFrq, &vecExpected[ulBeidou + 15 + 5 * 72 + 4], 4);
    EXPECT_EQ(lFrq, 6);

    ZelTest::ExpectCoreImage(stEpoch, vecExpected, ZelTest::SCoreRules(), Perturbed(stEpoch));
}

TEST(EpochBinary, SaveBoundsReportOnceOrTwice)
{
    const SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    Bytes vecOut(static_cast<size_t>(stEpoch.getSize()), 0xAA);
    uint64_t ulUsed = 5;
    {
        ZelTest::CRecordingHook stHook;
        EXPECT_FALSE(stEpoch.saveData(nullptr, vecOut.size(), &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
        EXPECT_EQ(ulUsed, 0u);
    }
    {
        ZelTest::CRecordingHook stHook;
        EXPECT_FALSE(stEpoch.saveData(vecOut.data(), vecOut.size() - 1, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
        EXPECT_FALSE(stEpoch.saveData(vecOut.data(), 96, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
    }
    {
        ZelTest::CRecordingHook stHook;
        EXPECT_FALSE(stEpoch.saveData(vecOut.data(), 95, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
        EXPECT_EQ(ulUsed, 0u);
    }
    EXPECT_EQ(vecOut, Bytes(vecOut.size(), 0xAA));
}

TEST(EpochBinary, InvalidTimeReportsAndGoesOn)
{
    SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    const std::string strCheck = "self.stZelObservationEpochHeader.stTime.IsValid()";
    for (const auto& rTime : {std::make_pair(-1, 0.0), std::make_pair(86000, 0.0),
                              std::make_pair(5, 86400000.0), std::make_pair(5, -0.5)})
    {
        stEpoch.stZelObservationEpochHeader.stTime.m_lMjdDay = rTime.first;
        stEpoch.stZelObservationEpochHeader.stTime.m_dMjdFractMilliseconds = rTime.second;
        ZelTest::CRecordingHook stHook;
        uint64_t ulUsed = 0;
        const Bytes vecOut = Save(stEpoch, &ulUsed);
        EXPECT_EQ(stHook.Texts(), std::vector<std::string>{strCheck});
        EXPECT_EQ(vecOut, EpochImage(stEpoch));
    }
    stEpoch.stZelObservationEpochHeader.stTime.m_lMjdDay = 85999;
    stEpoch.stZelObservationEpochHeader.stTime.m_dMjdFractMilliseconds = 86399999.9;
    ZelTest::CRecordingHook stHook;
    Save(stEpoch);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(EpochBinary, LoadBoundsLookAtThePresentContent)
{
    const Bytes vecEmpty = EpochImage(SZelObservationEpoch());
    SZelObservationEpoch stTarget = ZelSample::ObsEpoch();
    const SZelObservationEpoch stBefore = stTarget;
    uint64_t ulUsed = 5;
    {
        ZelTest::CRecordingHook stHook;
        // A filled target needs room for its own content first.
        EXPECT_FALSE(stTarget.loadData(vecEmpty.data(), vecEmpty.size(), &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
        EXPECT_EQ(ulUsed, 0u);
        EXPECT_TRUE(stTarget == stBefore);
        EXPECT_FALSE(stTarget.loadData(nullptr, 100000, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
    }
    {
        ZelTest::CRecordingHook stHook;
        SZelObservationEpoch stFresh;
        EXPECT_FALSE(stFresh.loadData(vecEmpty.data(), 95, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
        stHook.Clear();
        EXPECT_FALSE(stFresh.loadData(vecEmpty.data(), 99, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
    }
    {
        ZelTest::CRecordingHook stHook;
        Bytes vecLarge = vecEmpty;
        vecLarge.resize(static_cast<size_t>(stTarget.getSize()), 0);
        EXPECT_TRUE(stTarget.loadData(vecLarge.data(), vecLarge.size(), &ulUsed));
        EXPECT_EQ(ulUsed, 100u);
        EXPECT_TRUE(stTarget.vecSatObs.empty());
        EXPECT_EQ(stHook.Count(), 0u);
    }
}

TEST(EpochBinary, FailingSatelliteLeavesTheVectorResized)
{
    const SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    const Bytes vecImage = EpochImage(stEpoch);
    ZelTest::CRecordingHook stHook;
    SZelObservationEpoch stTarget;
    uint64_t ulUsed = 0;
    // Cut inside the last satellite's signals: that satellite fails silently
    // on its count, the epoch reports.
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size() - 10, &ulUsed));
    EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
    ASSERT_EQ(stTarget.vecSatObs.size(), 6u);
    for (size_t ulIdx = 0; ulIdx < 5; ++ulIdx)
    {
        EXPECT_TRUE(stTarget.vecSatObs[ulIdx] == stEpoch.vecSatObs[ulIdx]) << ulIdx;
    }
    EXPECT_EQ(stTarget.vecSatObs[5].stSatId, stEpoch.vecSatObs[5].stSatId);
    EXPECT_EQ(ulUsed, 100u + (vecImage.size() - 100 - SatImage(stEpoch.vecSatObs[5]).size()));
}

TEST(EpochBinary, SatelliteThatCannotBeWrittenFailsTheEpoch)
{
    SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    stEpoch.vecSatObs[3].uiNumFreq = 7; // six signals filled
    ZelTest::CRecordingHook stHook;
    Bytes vecOut(static_cast<size_t>(stEpoch.getSize()));
    uint64_t ulUsed = 0;
    EXPECT_FALSE(stEpoch.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{
                                  "self.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED", "false"}));
}

TEST(EpochBinary, RandomAndTruncatedInputSurvive)
{
    const Bytes vecImage = EpochImage(ZelSample::ObsEpoch());
    ZelTest::CRecordingHook stHook;
    for (size_t ulLength = 0; ulLength < vecImage.size(); ulLength += 7)
    {
        SZelObservationEpoch stTarget;
        uint64_t ulUsed = 0;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), ulLength, &ulUsed)) << ulLength;
    }
    uint32_t ulSeed = 4242;
    Bytes vecRandom(700);
    for (int iRound = 0; iRound < 300; ++iRound)
    {
        for (unsigned char& rucByte : vecRandom)
        {
            ulSeed = ulSeed * 1103515245u + 12345u;
            rucByte = static_cast<unsigned char>(ulSeed >> 16);
        }
        Put<uint32_t>(vecRandom, 96, ulSeed % 9); // a count that stays small
        SZelObservationEpoch stTarget;
        uint64_t ulUsed = 0;
        stTarget.loadData(vecRandom.data(), vecRandom.size(), &ulUsed);
        EXPECT_LE(ulUsed, vecRandom.size());
    }
}

TEST(EpochCompare, HeaderLengthAndOrderMatter)
{
    const SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    SZelObservationEpoch stOther = stEpoch;
    EXPECT_TRUE(stOther == stEpoch);
    std::swap(stOther.vecSatObs[0], stOther.vecSatObs[1]);
    EXPECT_FALSE(stOther == stEpoch);
    EXPECT_TRUE(stOther != stEpoch);
    stOther = stEpoch;
    stOther.vecSatObs.pop_back();
    EXPECT_FALSE(stOther == stEpoch);
    stOther = stEpoch;
    stOther.stZelObservationEpochHeader.ulPositionRate = 1;
    EXPECT_FALSE(stOther == stEpoch);
    // The header's satellite count is not tied to the vector.
    stOther = stEpoch;
    EXPECT_NE(stOther.stZelObservationEpochHeader.ucNumSats, stOther.vecSatObs.size());
}

TEST(EpochText, ExactStringNumSatsTwiceAndReadBack)
{
    SZelObservationEpoch stEpoch;
    stEpoch.stZelObservationEpochHeader = ZelSample::EpochHeader();
    stEpoch.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, 5, 0));
    stEpoch.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GLONASS, 1, 0));
    ZelTest::ExpectText(stEpoch, c_strHeaderText +
                                     ", NumSats, 2, SatId, G05, IOD, 1005, SatFlgs, 0xf, ChnNum, 5, "
                                     "NumFrqs, 0, SatId, R01, IOD, 1001, SatFlgs, 0x3, ChnNum, 1, "
                                     "NumFrqs, 0");
    std::ostringstream oss;
    oss << std::setprecision(12) << stEpoch;
    EXPECT_EQ(oss.str(),
              "165, 90, 2250, 561600000.5, NumSats, 5, ClkOffs, 0.000125, TimeStampOffs, -0.5, "
              "DoppRate, 500, PosRate, 200, SmooLgth, -100, 1stStatMrkEpoch, 2250, 432001, NumSats, 2, "
              "SatId, G05, IOD, 1005, SatFlgs, 0xf, ChnNum, 5, NumFrqs, 0, "
              "SatId, R01, IOD, 1001, SatFlgs, 0x3, ChnNum, 1, NumFrqs, 0");
    std::istringstream iss(oss.str());
    SZelObservationEpoch stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stEpoch);
    EXPECT_EQ(stBack.stZelObservationEpochHeader.ucNumSats, 5);
}

TEST(EpochText, FullEpochRoundTrip)
{
    const SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    const std::string strText = ToText(stEpoch);
    std::istringstream iss(strText);
    SZelObservationEpoch stBack;
    stBack.vecSatObs.resize(20); // sized by the count read
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stEpoch);
    EXPECT_EQ(ToText(stBack), strText);
}

TEST(EpochText, CutTextKeepsTheSatellites)
{
    const SZelObservationEpoch stEpoch = ZelSample::ObsEpoch();
    const std::string strText = ToText(stEpoch);
    const size_t ulCut = strText.find(", NumSats, 6");
    ASSERT_NE(ulCut, std::string::npos);
    SZelObservationEpoch stTarget = ZelSample::ObsEpoch();
    stTarget.vecSatObs.resize(2);
    std::istringstream iss(strText.substr(0, ulCut));
    iss >> stTarget;
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(stTarget.vecSatObs.size(), 2u);
}

TEST(EpochText, RandomTextNeverCrashes)
{
    const std::string strAlphabet = "0123456789,. -xGRE\n";
    uint32_t ulSeed = 7;
    for (int iRound = 0; iRound < 200; ++iRound)
    {
        std::string strText;
        for (int iChar = 0; iChar < 300; ++iChar)
        {
            ulSeed = ulSeed * 1103515245u + 12345u;
            strText.push_back(strAlphabet[(ulSeed >> 16) % strAlphabet.size()]);
        }
        std::istringstream iss(strText);
        SZelObservationEpoch stEpoch;
        iss >> stEpoch;
        std::istringstream iss2(strText);
        SZelRtmeOutEpochData stData;
        iss2 >> stData;
        std::istringstream iss3(strText);
        ZelExtObsEpoch stExt;
        iss3 >> stExt;
    }
    SUCCEED();
}

// ---------------------------------------------------------------------------
// Correction keys and types
// ---------------------------------------------------------------------------

TEST(CorrectionKey, HashPacksTheKey)
{
    const SZelCorrectionKeyHash stHash;
    // ((((5 << 8 | 3) << 8 | 2) << 7 | 1) << 1) | 1
    EXPECT_EQ(
        stHash(SZelCorrectionKey(ZELCORRTYPE_PCO, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L2C, false)),
        84083203u);
    EXPECT_EQ(
        stHash(SZelCorrectionKey(ZELCORRTYPE_PCO, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L2C, true)),
        84083202u);
    // C63, E6, POF, mode Y: ((((63 << 8 | 10) << 8 | 5) << 7 | 5) << 1) | 0
    EXPECT_EQ(
        stHash(SZelCorrectionKey(ZELCORRTYPE_POF, SZelSatID(ZELSATSYSTEM_BEIDOU, 63), ZELFREQUENCY_E6, true)),
        1057621258u);
    EXPECT_EQ(stHash(SZelCorrectionKey()), 1u);
    EXPECT_TRUE((std::is_same<ZelCorrectionMap::hasher, SZelCorrectionKeyHash>::value));
    // Satellites hash to their global number.
    const SZelSatIDHash stSatHash;
    EXPECT_EQ(stSatHash(SZelSatID(ZELSATSYSTEM_GLONASS, 1)), 33u);
    EXPECT_EQ(stSatHash(SZelSatID(ZELSATSYSTEM_NAVIC, 1)), 226u);
    EXPECT_EQ(stSatHash(SZelSatID(ZELSATSYSTEM_LOCATA, 1)), 186u);
    EXPECT_TRUE((std::is_same<ZelRangeRateMap::hasher, SZelSatIDHash>::value));
}

TEST(CorrectionKey, EqualityAndOrder)
{
    const SZelCorrectionKey stKey(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L1CA, false);
    SZelCorrectionKey stOther = stKey;
    EXPECT_TRUE(stKey == stOther);
    stOther.stSatId.uiSatNumber = 6;
    EXPECT_FALSE(stKey == stOther);
    stOther = stKey;
    stOther.stSatId.eSatSystem = ZELSATSYSTEM_QZSS;
    EXPECT_FALSE(stKey == stOther);
    stOther = stKey;
    stOther.eFrequency = ZELFREQUENCY_L1P;
    EXPECT_TRUE(stKey != stOther);
    stOther = stKey;
    stOther.bTrackModeY = true;
    EXPECT_FALSE(stKey == stOther);
    stOther = stKey;
    stOther.eCorrType = ZELCORRTYPE_PCB;
    EXPECT_FALSE(stKey == stOther);

    // Type first, then frequency, then mode Y, then the satellite.
    const SZelCorrectionKey stLowType(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_LOCATA, 40), ZELFREQUENCY_E6,
                                      true);
    EXPECT_TRUE(stLowType < stKey);
    EXPECT_FALSE(stKey < stLowType);
    const SZelCorrectionKey stLowFrq(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_LOCATA, 40),
                                     ZELFREQUENCY_UNKNOWN, true);
    EXPECT_TRUE(stLowFrq < stKey);
    const SZelCorrectionKey stModeY(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA, true);
    EXPECT_TRUE(stKey < stModeY);
    const SZelCorrectionKey stLowSat(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_GPS, 4), ZELFREQUENCY_L1CA,
                                     false);
    EXPECT_TRUE(stLowSat < stKey);
    EXPECT_FALSE(stKey < stKey);
}

TEST(CorrType, WordsRowByRow)
{
    const char* const aszWords[] = {"Inv", "PCV", "PCO", "Var", "PCB", "POF"};
    EXPECT_EQ(ZELCORRTYPE_INV, 0);
    EXPECT_EQ(ZELCORRTYPE_PCV, 1);
    EXPECT_EQ(ZELCORRTYPE_PCO, 2);
    EXPECT_EQ(ZELCORRTYPE_VAR, 3);
    EXPECT_EQ(ZELCORRTYPE_PCB, 4);
    EXPECT_EQ(ZELCORRTYPE_POF, 5);
    for (int32_t lType = 0; lType < 6; ++lType)
    {
        std::ostringstream oss;
        oss << static_cast<EZelCorrType>(lType);
        EXPECT_EQ(oss.str(), aszWords[lType]);
        std::istringstream iss(std::string(aszWords[lType]) + ", 1.5");
        EZelCorrType eType = ZELCORRTYPE_POF;
        iss >> eType;
        EXPECT_EQ(eType, lType);
        double dNext = 0.0;
        iss >> dNext; // the comma went with the word
        EXPECT_EQ(dNext, 1.5);
    }
    for (int32_t lOther : {6, -1, 1000})
    {
        std::ostringstream oss;
        oss << static_cast<EZelCorrType>(lOther);
        EXPECT_EQ(oss.str(), "Inv");
    }
}

TEST(CorrType, ReaderTakesThreeCharactersAndGivesZeroForOthers)
{
    EZelCorrType eType = ZELCORRTYPE_PCB;
    std::istringstream iss("XYZ, 2");
    iss >> eType;
    EXPECT_EQ(eType, ZELCORRTYPE_INV);
    double dNext = 0.0;
    iss >> dNext;
    EXPECT_EQ(dNext, 2.0);
    std::istringstream iss2("PCVX");
    iss2 >> eType;
    EXPECT_EQ(eType, ZELCORRTYPE_PCV);
    std::string strRest;
    iss2 >> strRest;
    EXPECT_EQ(strRest, "X");
    std::istringstream iss3("pcv,");
    iss3 >> eType;
    EXPECT_EQ(eType, ZELCORRTYPE_INV);
}

TEST(CorrectionKeyText, ExactStringAndReadBack)
{
    const SZelCorrectionKey stKey(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_GALILEO, 7), ZELFREQUENCY_E5AB,
                                  true);
    ZelTest::ExpectTextExact(stKey, "SatId, E07, Frq, 9, TrckModY, 1, CorrTyp, Var");
    // Any number but 0 reads as track mode Y.
    std::istringstream iss("SatId, E07, Frq, 9, TrckModY, 7, CorrTyp, Var");
    SZelCorrectionKey stBack;
    iss >> stBack;
    EXPECT_TRUE(stBack == stKey);
    // The key's image is 20 bytes, its entry 28 with the value.
    EXPECT_EQ(ZelIo::SizeOf(stKey) + 8, c_ulCORRECTION_ENTRY_SIZE);
}

// ---------------------------------------------------------------------------
// Output epoch
// ---------------------------------------------------------------------------

TEST(RtmeOut, DefaultsAndPartialReset)
{
    SZelRtmeOutEpochData stData;
    EXPECT_EQ(stData.dClock, 0.0);
    for (int32_t lStations : stData.alStationsUsed)
    {
        EXPECT_EQ(lStations, 0);
    }
    EXPECT_TRUE(stData.mapCorrections.empty());
    EXPECT_TRUE(stData.mapRangeRates.empty());
    EXPECT_EQ(stData.mapCorrections.max_load_factor(), 1.0f);
    EXPECT_EQ(stData.mapRangeRates.max_load_factor(), 1.0f);
    EXPECT_EQ(stData.getSize(), 132u);

    stData = ZelSample::RtmeOut();
    stData.Reset();
    EXPECT_EQ(stData.GetClock(), 0.0);
    EXPECT_TRUE(stData.mapCorrections.empty());
    EXPECT_TRUE(stData.mapRangeRates.empty());
    // Epoch and station counts stay.
    EXPECT_TRUE(stData.stObs == ZelSample::ObsEpoch());
    EXPECT_EQ(stData.alStationsUsed[0], 3);
    EXPECT_EQ(stData.alStationsUsed[3], -1);
}

TEST(RtmeOut, ClockAccessors)
{
    SZelRtmeOutEpochData stData;
    stData.SetClock(-2.5e-9);
    EXPECT_EQ(stData.GetClock(), -2.5e-9);
    EXPECT_EQ(stData.dClock, -2.5e-9);
}

TEST(RtmeOut, CountSatsWithPhase)
{
    SZelRtmeOutEpochData stData;
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GPS, 1, 3, 0x2);
    stSat.astFreqObs[2].SetPhase(true);
    stData.stObs.vecSatObs.push_back(stSat);                                   // counts
    stData.stObs.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, 2, 3, 0x2));     // no phase
    stData.stObs.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GLONASS, 5, 2, 0x1)); // counts once
    stData.stObs.vecSatObs.push_back(SatObs(ZELSATSYSTEM_LOCATA, 5, 1, 0x1));
    stData.stObs.vecSatObs.push_back(SatObs(ZELSATSYSTEM_NONE, 0, 1, 0x1));
    stData.stObs.vecSatObs.push_back(SatObs(static_cast<EZelSatSystem>(12), 1, 1, 0x1)); // no counter
    SZelSatObservation stBeyond = SatObs(ZELSATSYSTEM_GALILEO, 1, 1, 0x0);
    stBeyond.astFreqObs[1].SetPhase(true); // beyond the count
    stData.stObs.vecSatObs.push_back(stBeyond);
    uint32_t aulCounts[9];
    std::fill(aulCounts, aulCounts + 9, 77u);
    stData.CountSatsWithPhase(aulCounts);
    const uint32_t aulExpected[9] = {1, 1, 1, 0, 0, 0, 0, 0, 1};
    for (size_t ulIdx = 0; ulIdx < 9; ++ulIdx)
    {
        EXPECT_EQ(aulCounts[ulIdx], aulExpected[ulIdx]) << ulIdx;
    }
}

TEST(RtmeOut, CorrectionsInsertReplaceAndLookUp)
{
    SZelRtmeOutEpochData stData;
    double dValue = 7.0;
    EXPECT_FALSE(stData.GetCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA,
                                      false, dValue));
    EXPECT_EQ(dValue, 0.0);
    auto& rEntry =
        stData.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA, false, 2.5);
    EXPECT_TRUE(rEntry.first ==
                SZelCorrectionKey(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA, false));
    EXPECT_EQ(rEntry.second, 2.5);
    auto& rSame =
        stData.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA, false, 3.5);
    EXPECT_EQ(&rSame, &rEntry);
    EXPECT_EQ(stData.mapCorrections.size(), 1u);
    EXPECT_TRUE(stData.GetCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA,
                                     false, dValue));
    EXPECT_EQ(dValue, 3.5);
    rSame.second = 4.5;
    EXPECT_TRUE(stData.GetCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA,
                                     false, dValue));
    EXPECT_EQ(dValue, 4.5);
    // Any differing key part is another entry.
    EXPECT_FALSE(stData.GetCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA,
                                      true, dValue));
    EXPECT_EQ(dValue, 0.0);
    EXPECT_FALSE(stData.GetCorrection(ZELCORRTYPE_PCO, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA,
                                      false, dValue));
    EXPECT_EQ(&stData.GetCorrections(), &stData.mapCorrections);
    const SZelRtmeOutEpochData& rstConst = stData;
    EXPECT_EQ(&rstConst.GetRangeRates(), &stData.mapRangeRates);
}

TEST(RtmeOut, RangeRatesInsertReplaceAndLookUp)
{
    SZelRtmeOutEpochData stData;
    double dValue = 7.0;
    EXPECT_FALSE(stData.GetRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 1), dValue));
    EXPECT_EQ(dValue, 0.0);
    auto& rEntry = stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 1), -1.25);
    EXPECT_EQ(rEntry.second, -1.25);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 1), 8.0);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_BEIDOU, 1), 9.0);
    EXPECT_EQ(stData.mapRangeRates.size(), 2u);
    EXPECT_TRUE(stData.GetRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 1), dValue));
    EXPECT_EQ(dValue, 8.0);
    EXPECT_TRUE(stData.GetRangeRate(SZelSatID(ZELSATSYSTEM_BEIDOU, 1), dValue));
    EXPECT_EQ(dValue, 9.0);
}

TEST(RtmeOutCompare, MapsInAnyOrderAndExactValues)
{
    SZelRtmeOutEpochData stA;
    SZelRtmeOutEpochData stB;
    for (int iIdx = 0; iIdx < 30; ++iIdx)
    {
        stA.AddCorrection(static_cast<EZelCorrType>(iIdx % 6),
                          SZelSatID(ZELSATSYSTEM_GPS, static_cast<uint8_t>(1 + iIdx)), ZELFREQUENCY_L1CA,
                          (iIdx & 1) != 0, iIdx * 0.5);
        stB.AddCorrection(static_cast<EZelCorrType>((29 - iIdx) % 6),
                          SZelSatID(ZELSATSYSTEM_GPS, static_cast<uint8_t>(30 - iIdx)), ZELFREQUENCY_L1CA,
                          ((29 - iIdx) & 1) != 0, (29 - iIdx) * 0.5);
        stA.AddRangeRate(SZelSatID(ZELSATSYSTEM_GALILEO, static_cast<uint8_t>(1 + iIdx)), iIdx);
        stB.AddRangeRate(SZelSatID(ZELSATSYSTEM_GALILEO, static_cast<uint8_t>(30 - iIdx)), 29 - iIdx);
    }
    stB.mapCorrections.rehash(1000);
    EXPECT_TRUE(stA == stB);
    EXPECT_FALSE(stA != stB);
    stB.AddRangeRate(SZelSatID(ZELSATSYSTEM_GALILEO, 3), 2.5);
    EXPECT_FALSE(stA == stB);
    stB.AddRangeRate(SZelSatID(ZELSATSYSTEM_GALILEO, 3), 2.0);
    EXPECT_TRUE(stA == stB);
    stB.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA, true, 0.0);
    EXPECT_FALSE(stA == stB);

    SZelRtmeOutEpochData stC = ZelSample::RtmeOut();
    SZelRtmeOutEpochData stD = stC;
    EXPECT_TRUE(stC == stD);
    stD.alStationsUsed[2] = 9;
    EXPECT_FALSE(stC == stD);
    stD = stC;
    stD.dClock = 0.0;
    EXPECT_FALSE(stC == stD);
    stD = stC;
    stD.stObs.vecSatObs.pop_back();
    EXPECT_FALSE(stC == stD);
    stD = stC;
    stD.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L1CA, false,
                      std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(stD == stD);
}

TEST(RtmeOut, CopyIsPresizedAssignmentIsNot)
{
    SZelRtmeOutEpochData stSource;
    for (uint8_t uiIdx = 1; uiIdx <= 10; ++uiIdx)
    {
        stSource.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, uiIdx), ZELFREQUENCY_L1CA, false,
                               uiIdx);
    }
    stSource.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 1), 1.0);
    EXPECT_LT(stSource.mapCorrections.bucket_count(), 400u);
    EXPECT_LT(stSource.mapRangeRates.bucket_count(), 60u);

    const SZelRtmeOutEpochData stCopy(stSource);
    EXPECT_GE(stCopy.mapCorrections.bucket_count(), 400u);
    EXPECT_GE(stCopy.mapRangeRates.bucket_count(), 60u);
    EXPECT_EQ(stCopy.mapCorrections.max_load_factor(), 1.0f);
    EXPECT_TRUE(stCopy == stSource);

    SZelRtmeOutEpochData stAssigned;
    stAssigned = stSource;
    EXPECT_LT(stAssigned.mapCorrections.bucket_count(), 400u);
    EXPECT_TRUE(stAssigned == stSource);

    SZelRtmeOutEpochData stLarge;
    for (int iIdx = 0; iIdx < 700; ++iIdx)
    {
        stLarge.AddCorrection(static_cast<EZelCorrType>(iIdx % 6),
                              SZelSatID(ZELSATSYSTEM_BEIDOU, static_cast<uint8_t>(iIdx % 63 + 1)),
                              static_cast<EZelFrequency>(iIdx / 63), false, iIdx);
    }
    ASSERT_EQ(stLarge.mapCorrections.size(), 700u);
    const SZelRtmeOutEpochData stLargeCopy(stLarge);
    EXPECT_GE(stLargeCopy.mapCorrections.bucket_count(), 700u);
    EXPECT_TRUE(stLargeCopy == stLarge);
}

TEST(RtmeOutBinary, GoldenImageWithCorrectionsAndRangeRates)
{
    const SZelRtmeOutEpochData stData = ZelSample::RtmeOut();
    const Bytes vecEpoch = EpochImage(stData.stObs);
    // Entries in the map's iteration order.
    CImage stExpected;
    stExpected.Append(vecEpoch).At(vecEpoch.size()).I32(3).I32(2).I32(1).I32(-1).F64(1.5e-7).U32(3);
    for (const auto& rEntry : stData.mapCorrections)
    {
        stExpected.Append(CorrectionEntry(rEntry.first, rEntry.second));
    }
    stExpected.U32(2);
    for (const auto& rEntry : stData.mapRangeRates)
    {
        stExpected.Append(RangeRateEntry(rEntry.first, rEntry.second));
    }
    stExpected.At(vecEpoch.size() + 28 * 3 + 16 * (2 + 2));
    ZelTest::ExpectCoreImage(stData, stExpected, ZelTest::SCoreRules(), Perturbed(stData));

    // The unaligned value at 20 of the first correction entry.
    const size_t ulFirstEntry = vecEpoch.size() + 16 + 8 + 4;
    double dValue = 0.0;
    std::memcpy(&dValue, &stExpected.Get()[ulFirstEntry + 20], 8);
    EXPECT_EQ(dValue, stData.mapCorrections.begin()->second);
    EXPECT_EQ(c_ulCORRECTION_ENTRY_SIZE, 28u);
    EXPECT_EQ(c_ulRANGERATE_ENTRY_SIZE, 16u);
}

TEST(RtmeOutBinary, EntryBoolAndReservedBytes)
{
    SZelRtmeOutEpochData stData;
    stData.AddCorrection(ZELCORRTYPE_PCB, SZelSatID(ZELSATSYSTEM_SBAS, 3), ZELFREQUENCY_L5, true, 1.0);
    Bytes vecImage = Save(stData);
    const size_t ulEntry = 100 + 16 + 8 + 4;
    EXPECT_EQ(vecImage[ulEntry + 12], 1);
    for (size_t ulReserved : {5u, 6u, 7u, 13u, 14u, 15u})
    {
        EXPECT_EQ(vecImage[ulEntry + ulReserved], 0) << ulReserved;
        vecImage[ulEntry + ulReserved] = 0x5C;
    }
    vecImage[ulEntry + 12] = 0x80; // any byte other than 0 is true
    SZelRtmeOutEpochData stBack;
    uint64_t ulUsed = 0;
    EXPECT_TRUE(stBack.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_TRUE(stBack == stData);
}

TEST(RtmeOutBinary, BoundsOnThePresentContent)
{
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 3;
    const Bytes vecEmpty = Save(SZelRtmeOutEpochData());
    ASSERT_EQ(vecEmpty.size(), 132u);
    SZelRtmeOutEpochData stTarget = ZelSample::RtmeOut();
    EXPECT_FALSE(stTarget.loadData(vecEmpty.data(), vecEmpty.size(), &ulUsed));
    EXPECT_EQ(ulUsed, 0u);
    EXPECT_FALSE(stTarget.loadData(nullptr, 100000, &ulUsed));
    EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
    EXPECT_TRUE(stTarget == ZelSample::RtmeOut());
}

TEST(RtmeOutBinary, LoadAddsToTheMaps)
{
    const SZelRtmeOutEpochData stData = ZelSample::RtmeOut();
    Bytes vecImage = Save(stData);
    SZelRtmeOutEpochData stTarget;
    stTarget.AddCorrection(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_NAVIC, 2), ZELFREQUENCY_L5, false, 9.0);
    vecImage.resize(vecImage.size() + 28, 0);
    uint64_t ulUsed = 0;
    ZelTest::CRecordingHook stHook;
    // The held entry stays: the map ends one entry larger than the image says.
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_EQ(ulUsed, stData.getSize());
    EXPECT_EQ(stTarget.mapCorrections.size(), 4u);
    double dValue = 0.0;
    EXPECT_TRUE(stTarget.GetCorrection(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_NAVIC, 2), ZELFREQUENCY_L5,
                                       false, dValue));
    // Into a reset record it loads whole.
    stTarget.Reset();
    stTarget.stObs.Reset();
    EXPECT_TRUE(stTarget.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_TRUE(stTarget == stData);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(RtmeOutBinary, InnerEpochAndEntriesFail)
{
    const SZelRtmeOutEpochData stData = ZelSample::RtmeOut();
    const Bytes vecImage = Save(stData);
    const size_t ulEpochSize = static_cast<size_t>(stData.stObs.getSize());
    {
        // Cut inside the epoch: the epoch reports, this level does not.
        ZelTest::CRecordingHook stHook;
        SZelRtmeOutEpochData stTarget;
        uint64_t ulUsed = 0;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), ulEpochSize - 5, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
    }
    {
        // Cut inside the second correction entry: its own bounds test reports.
        ZelTest::CRecordingHook stHook;
        SZelRtmeOutEpochData stTarget;
        uint64_t ulUsed = 0;
        const size_t ulCut = ulEpochSize + 28 + 28 + 10;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), ulCut, &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
        EXPECT_EQ(stTarget.mapCorrections.size(), 1u);
        EXPECT_EQ(ulUsed, ulEpochSize + 28 + 28);
    }
    {
        // A forged count of range rates reads to the end of the buffer.
        ZelTest::CRecordingHook stHook;
        Bytes vecForged = vecImage;
        Put<uint32_t>(vecForged, vecForged.size() - 2 * 16 - 4, 0xFFFFFFFFu);
        SZelRtmeOutEpochData stTarget;
        uint64_t ulUsed = 0;
        EXPECT_FALSE(stTarget.loadData(vecForged.data(), vecForged.size(), &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
        EXPECT_EQ(stTarget.mapRangeRates.size(), 2u);
        EXPECT_EQ(ulUsed, vecForged.size());
    }
}

TEST(RtmeOutText, ExactStringSortedAndReadBack)
{
    SZelRtmeOutEpochData stData;
    stData.stObs.stZelObservationEpochHeader = ZelSample::EpochHeader();
    stData.alStationsUsed[0] = 3;
    stData.alStationsUsed[1] = 2;
    stData.alStationsUsed[2] = 1;
    stData.alStationsUsed[3] = 0;
    stData.dClock = 1.5;
    stData.AddCorrection(ZELCORRTYPE_PCO, SZelSatID(ZELSATSYSTEM_GALILEO, 11), ZELFREQUENCY_E6, true, -0.5);
    stData.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L1CA, false, 0.25);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GLONASS, 1), -3.0);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 5), 100.5);
    ZelTest::ExpectText(stData, "Obs, " + c_strHeaderText +
                                    ", NumSats, 0, StnUsdG, 3, StnUsdR, 2, StnUsdC, 1, StnUsdE, 0, Clk, 1.5, "
                                    "Corrs, 2, SatId, G05, Frq, 1, TrckModY, 0, CorrTyp, PCV, 0.25, "
                                    "SatId, E11, Frq, 10, TrckModY, 1, CorrTyp, PCO, -0.5, "
                                    "RngRates, 2, G05, 100.5, R01, -3");
    std::ostringstream oss;
    oss << std::setprecision(12) << stData;
    EXPECT_EQ(oss.str(),
              "Obs, 165, 90, 2250, 561600000.5, NumSats, 5, ClkOffs, 0.000125, TimeStampOffs, -0.5, "
              "DoppRate, 500, PosRate, 200, SmooLgth, -100, 1stStatMrkEpoch, 2250, 432001, NumSats, 0, "
              "StnUsdG, 3, StnUsdR, 2, StnUsdC, 1, StnUsdE, 0, Clk, 1.5, Corrs, 2, "
              "SatId, G05, Frq, 1, TrckModY, 0, CorrTyp, PCV, 0.25, "
              "SatId, E11, Frq, 10, TrckModY, 1, CorrTyp, PCO, -0.5, "
              "RngRates, 2, G05, 100.5, R01, -3");
    std::istringstream iss(oss.str());
    SZelRtmeOutEpochData stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stData);
}

TEST(RtmeOutText, FullRecordRoundTrip)
{
    const SZelRtmeOutEpochData stData = ZelSample::RtmeOut();
    const std::string strText = ToText(stData);
    std::istringstream iss(strText);
    SZelRtmeOutEpochData stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stData);
    EXPECT_EQ(ToText(stBack), strText);
    // A copy (pre-sized, other bucket layout) writes the same line.
    const SZelRtmeOutEpochData stCopy(stData);
    EXPECT_EQ(ToText(stCopy), strText);
}

// ---------------------------------------------------------------------------
// Output batch
// ---------------------------------------------------------------------------

TEST(OutObservations, GoldenImageAndRoundTrip)
{
    EXPECT_EQ(SZelOutObservations().getSize(), 12u);
    const SZelOutObservations stOut = ZelSample::OutObservations();
    CImage stExpected;
    stExpected.At(0).U32(0xDEADBEEFu).At(4).U32(42).At(8).U32(2).At(12);
    stExpected.Append(RtmeImage(stOut.vecEpochs[0])).Append(RtmeImage(stOut.vecEpochs[1]));
    SZelOutObservations stTarget = stOut;
    Perturb(stTarget.vecEpochs[0]);
    Perturb(stTarget.vecEpochs[1]);
    ZelTest::ExpectCoreImage(stOut, stExpected, ZelTest::SCoreRules(), stTarget);
}

TEST(OutObservations, ComparisonBoundsAndFailingElements)
{
    SZelOutObservations stOut;
    stOut.vecEpochs.push_back(ZelSample::RtmeOut());
    SZelOutObservations stOther = stOut;
    EXPECT_TRUE(stOther == stOut);
    stOther.ulValue1 = 1;
    EXPECT_FALSE(stOther == stOut);
    stOther = stOut;
    stOther.ulValue0 = 1;
    EXPECT_TRUE(stOther != stOut);
    stOther = stOut;
    stOther.vecEpochs[0].dClock = 5.0;
    EXPECT_FALSE(stOther == stOut);
    stOther = stOut;
    stOther.vecEpochs.clear();
    EXPECT_FALSE(stOther == stOut);

    const Bytes vecImage = Save(stOut);
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 9;
    Bytes vecShort(vecImage.size(), 0xAA);
    EXPECT_FALSE(stOut.saveData(vecShort.data(), vecShort.size() - 1, &ulUsed));
    EXPECT_EQ(ulUsed, 0u);
    EXPECT_FALSE(stOut.saveData(nullptr, vecShort.size(), &ulUsed));
    SZelOutObservations stTarget = stOut;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 100, &ulUsed));
    EXPECT_FALSE(stTarget.loadData(nullptr, vecImage.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{"false", "false", "false", "false"}));
    EXPECT_TRUE(stTarget == stOut);

    // An element that fails: false and no bytes reported.
    stHook.Clear();
    SZelOutObservations stFresh;
    ulUsed = 9;
    EXPECT_FALSE(stFresh.loadData(vecImage.data(), vecImage.size() - 1, &ulUsed));
    EXPECT_EQ(ulUsed, 0u);
    EXPECT_EQ(stFresh.vecEpochs.size(), 1u);
    SZelOutObservations stBad = stOut;
    stBad.vecEpochs[0].stObs.vecSatObs[0].uiNumFreq = 7;
    Bytes vecBad(static_cast<size_t>(stBad.getSize()));
    ulUsed = 9;
    EXPECT_FALSE(stBad.saveData(vecBad.data(), vecBad.size(), &ulUsed));
    EXPECT_EQ(ulUsed, 0u);
}

// ---------------------------------------------------------------------------
// Station record and external epoch
// ---------------------------------------------------------------------------

TEST(ObsInfo, DefaultsGoldenImageAndBounds)
{
    const SZelObsInfo stDefault;
    EXPECT_EQ(stDefault.getSize(), c_ulOBSINFO_SIZE);
    EXPECT_EQ(stDefault.stStaticSince.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(stDefault.ucTimeStatus, 0);
    EXPECT_EQ(stDefault.unObsFlags, 0);
    EXPECT_EQ(stDefault.ucDataFlags, 0);
    EXPECT_EQ(stDefault.ucStationType, 0);
    EXPECT_EQ(stDefault.ulStationId, 0u);
    SZelObsInfo stReset = ZelSample::ObsInfo();
    stReset.Reset();
    EXPECT_TRUE(stReset == stDefault);

    CImage stExpected;
    stExpected.At(0).Time24(59000, 3600000.25, 1).At(24).U8(160).Zero(1).At(26).U16(0xBEEF);
    stExpected.At(28).U8(3).At(29).U8(2).Zero(2).At(32).U32(123456).Zero(4).At(40);
    ZelTest::ExpectCoreImage(ZelSample::ObsInfo(), stExpected);
    // The used-bytes output is optional.
    SZelObsInfo stBack;
    EXPECT_TRUE(stBack.loadData(stExpected.Get().data(), stExpected.Size()));
    EXPECT_TRUE(stBack == ZelSample::ObsInfo());
}

TEST(ObsInfo, ComparisonWithTimeTolerance)
{
    const SZelObsInfo stInfo = ZelSample::ObsInfo();
    SZelObsInfo stOther = stInfo;
    stOther.stStaticSince.m_dMjdFractMilliseconds += 5e-7;
    EXPECT_TRUE(stOther == stInfo);
    EXPECT_TRUE(stInfo == stOther);
    // An exact time earlier than the other sees the half nanosecond.
    SZelObsInfo stExact = stInfo;
    stExact.stStaticSince.m_eAccuracy = MJDACC_EXACT;
    EXPECT_FALSE(stOther == stExact);
    EXPECT_FALSE(stExact == stOther);
    stOther = stInfo;
    stOther.ucTimeStatus = 1;
    EXPECT_FALSE(stOther == stInfo);
    stOther = stInfo;
    stOther.unObsFlags = 1;
    EXPECT_FALSE(stOther == stInfo);
    stOther = stInfo;
    stOther.ucDataFlags = 1;
    EXPECT_FALSE(stOther == stInfo);
    stOther = stInfo;
    stOther.ucStationType = 1;
    EXPECT_FALSE(stOther == stInfo);
    stOther = stInfo;
    stOther.ulStationId = 1;
    EXPECT_TRUE(stOther != stInfo);
}

TEST(ObsInfoText, ExactStringAndReadBack)
{
    const SZelObsInfo stInfo = ZelSample::ObsInfo();
    ZelTest::ExpectText(stInfo, "StatSince, 2108, 3600, TimeStatus, 160, ObsFlgs, 48879, DataFlgs, 3, "
                                "StnTyp, 2, StnId, 123456");
    std::ostringstream oss;
    oss << std::setprecision(12) << stInfo;
    EXPECT_EQ(oss.str(),
              "StatSince, 2108, 3600.00025, TimeStatus, 160, ObsFlgs, 48879, DataFlgs, 3, StnTyp, 2, "
              "StnId, 123456");
    std::istringstream iss(oss.str());
    SZelObsInfo stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stInfo);
    // Seconds beyond the week give the default time, silently.
    ZelTest::CRecordingHook stHook;
    std::istringstream iss2(
        "StatSince, 2108, 604800.5, TimeStatus, 1, ObsFlgs, 2, DataFlgs, 3, StnTyp, 4, StnId, 5");
    iss2 >> stBack;
    EXPECT_EQ(stBack.stStaticSince.m_lMjdDay, 0);
    EXPECT_EQ(stBack.stStaticSince.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(stBack.ulStationId, 5u);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(ExtObsEpoch, GoldenImageAndTimeStatus)
{
    const ZelExtObsEpoch stExt = ZelSample::ExtObsEpoch();
    EXPECT_EQ(stExt.GetTimeStatus(), 160);
    const Bytes vecEpoch = EpochImage(stExt.stObsEpoch);
    CImage stExpected;
    stExpected.At(0).U32(static_cast<uint32_t>(vecEpoch.size())).At(4).Append(vecEpoch);
    stExpected.At(4 + vecEpoch.size()).Append(ObsInfoImage(stExt.stObsInfo)).At(vecEpoch.size() + 44);
    ZelExtObsEpoch stTarget = stExt;
    Perturb(stTarget.stObsEpoch);
    stTarget.stObsInfo.ulStationId = 1;
    ZelTest::ExpectCoreImage(stExt, stExpected, ZelTest::SCoreRules(), stTarget);
    // The used-bytes output is optional.
    Bytes vecOut(stExpected.Size(), 0xAA);
    EXPECT_TRUE(stExt.saveData(vecOut.data(), vecOut.size()));
    EXPECT_EQ(vecOut, stExpected.Get());
    EXPECT_EQ(ZelExtObsEpoch().getSize(), 144u);
    EXPECT_EQ(c_ulEXTOBSEPOCH_EXTRA_SIZE, 44u);
}

TEST(ExtObsEpoch, BoundsAndStoredLength)
{
    ZelExtObsEpoch stExt;
    stExt.stObsEpoch = ZelSample::ObsEpoch();
    stExt.stObsInfo = ZelSample::ObsInfo();
    const Bytes vecImage = Save(stExt);
    uint64_t ulUsed = 0;
    {
        ZelTest::CRecordingHook stHook;
        Bytes vecOut(vecImage.size(), 0xAA);
        EXPECT_FALSE(stExt.saveData(vecOut.data(), vecOut.size() - 1, &ulUsed));
        EXPECT_FALSE(stExt.saveData(nullptr, vecOut.size(), &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
        EXPECT_EQ(vecOut, Bytes(vecOut.size(), 0xAA));
    }
    {
        // The target's present size first.
        ZelTest::CRecordingHook stHook;
        ZelExtObsEpoch stTarget = stExt;
        const Bytes vecEmpty = Save(ZelExtObsEpoch());
        EXPECT_FALSE(stTarget.loadData(vecEmpty.data(), vecEmpty.size(), &ulUsed));
        EXPECT_FALSE(stTarget.loadData(nullptr, vecImage.size(), &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
        EXPECT_TRUE(stTarget == stExt);
    }
    {
        // The stored length plus 44 beyond the room.
        ZelTest::CRecordingHook stHook;
        Bytes vecForged = vecImage;
        Put<uint32_t>(vecForged, 0, static_cast<uint32_t>(vecImage.size() - 43));
        ZelExtObsEpoch stTarget;
        EXPECT_FALSE(stTarget.loadData(vecForged.data(), vecForged.size(), &ulUsed));
        EXPECT_EQ(stHook.Texts(), c_vecOneFalse);
        Put<uint32_t>(vecForged, 0, 0xFFFFFFFFu);
        EXPECT_FALSE(stTarget.loadData(vecForged.data(), vecForged.size(), &ulUsed));
        EXPECT_EQ(stHook.Count(), 2u);
    }
    {
        // A stored length shorter than the epoch's image.
        ZelTest::CRecordingHook stHook;
        Bytes vecForged = vecImage;
        Put<uint32_t>(vecForged, 0, static_cast<uint32_t>(vecImage.size() - 45));
        ZelExtObsEpoch stTarget;
        EXPECT_FALSE(stTarget.loadData(vecForged.data(), vecForged.size(), &ulUsed));
        EXPECT_GE(stHook.Count(), 1u);
    }
}

TEST(ExtObsEpochText, ExactStringAndReadBack)
{
    ZelExtObsEpoch stExt;
    stExt.stObsEpoch.stZelObservationEpochHeader = ZelSample::EpochHeader();
    stExt.stObsInfo = ZelSample::ObsInfo();
    ZelTest::ExpectText(stExt, c_strHeaderText +
                                   ", NumSats, 0, ObsInfo, StatSince, 2108, 3600, TimeStatus, 160, "
                                   "ObsFlgs, 48879, DataFlgs, 3, StnTyp, 2, StnId, 123456");
    std::ostringstream oss;
    oss << std::setprecision(12) << stExt;
    EXPECT_EQ(oss.str(),
              "165, 90, 2250, 561600000.5, NumSats, 5, ClkOffs, 0.000125, TimeStampOffs, -0.5, "
              "DoppRate, 500, PosRate, 200, SmooLgth, -100, 1stStatMrkEpoch, 2250, 432001, NumSats, 0, "
              "ObsInfo, StatSince, 2108, 3600.00025, TimeStatus, 160, ObsFlgs, 48879, DataFlgs, 3, "
              "StnTyp, 2, StnId, 123456");
    std::istringstream iss(oss.str());
    ZelExtObsEpoch stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stExt);

    stExt.stObsEpoch = ZelSample::ObsEpoch();
    std::istringstream iss2(ToText(stExt));
    iss2 >> stBack;
    EXPECT_FALSE(iss2.fail());
    EXPECT_TRUE(stBack == stExt);
}

// ---------------------------------------------------------------------------
// Allocation in proportion to the input: a forged count of 0xFFFFFFFF in a
// short buffer, for every reader with a sequence
// ---------------------------------------------------------------------------

namespace
{

// 145 bytes: a header, the count 0xFFFFFFFF at 96, three empty satellites.
SZelObservationEpoch ThreeEmptySats()
{
    SZelObservationEpoch stEpoch;
    stEpoch.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, 1, 0));
    stEpoch.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, 2, 0));
    stEpoch.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, 3, 0));
    return stEpoch;
}

Bytes ForgedEpochImage()
{
    Bytes vecImage = EpochImage(ThreeEmptySats());
    Put<uint32_t>(vecImage, 96, 0xFFFFFFFFu);
    return vecImage;
}

// A binary read under the counter: its result, count, reports and bytes.
struct SCountedRead
{
    bool bOk = true;
    uint64_t ulUsed = 777;
    std::vector<std::string> vecReports;
    ZelTest::SAllocCount stAlloc;
};

template <class R> SCountedRead CountedLoad(const std::string& strWhat, R& rTarget, const Bytes& rvecImage)
{
    SCountedRead stRead;
    ZelTest::CRecordingHook stHook;
    stRead.stAlloc = ZelTest::CountAllocations(
        [&] { stRead.bOk = rTarget.loadData(rvecImage.data(), rvecImage.size(), &stRead.ulUsed); });
    stRead.vecReports = stHook.Texts();
    ::testing::Test::RecordProperty(strWhat + "Allocated", std::to_string(stRead.stAlloc.ulBytes));
    ::testing::Test::RecordProperty(strWhat + "Input", std::to_string(rvecImage.size()));
    return stRead;
}

// A text read under the counter: the bytes allocated.
template <class R>
ZelTest::SAllocCount CountedTextRead(const std::string& strWhat, R& rTarget, std::istringstream& is)
{
    const ZelTest::SAllocCount stAlloc = ZelTest::CountAllocations([&] { is >> rTarget; });
    ::testing::Test::RecordProperty(strWhat + "Allocated", std::to_string(stAlloc.ulBytes));
    ::testing::Test::RecordProperty(strWhat + "Input", std::to_string(is.str().size()));
    return stAlloc;
}

// A text sequence is given at most c_ulALLOC_CONSTANT bytes of elements from
// its count: a short line stays within the bound of its own length.
template <class T> uint64_t TextPresizeBound(size_t ulTextBytes)
{
    return ZelTest::AllocBound(ulTextBytes);
}

// The text of the three empty satellites with the count 4294967295.
std::string ForgedEpochText()
{
    std::string strText = ToText(ThreeEmptySats());
    const std::string strCount = ", NumSats, 3, SatId";
    const size_t ulAt = strText.find(strCount);
    EXPECT_NE(ulAt, std::string::npos);
    return strText.replace(ulAt, strCount.size(), ", NumSats, 4294967295, SatId");
}

} // namespace

TEST(ReaderAllocation, EpochSatelliteCount)
{
    const Bytes vecImage = ForgedEpochImage();
    ASSERT_EQ(vecImage.size(), 145u);
    SZelObservationEpoch stTarget;
    const SCountedRead stRead = CountedLoad("Epoch", stTarget, vecImage);
    EXPECT_FALSE(stRead.bOk);
    EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(vecImage.size()));
    // The fourth satellite's own bounds test, then the epoch's report.
    EXPECT_EQ(stRead.vecReports, c_vecTwoFalse);
    EXPECT_EQ(stRead.ulUsed, 145u);
    // Sized to the three the bytes can hold, grown by the one where they end.
    ASSERT_EQ(stTarget.vecSatObs.size(), 4u);
    EXPECT_TRUE(stTarget.vecSatObs[2] == SatObs(ZELSATSYSTEM_GPS, 3, 0));
}

TEST(ReaderAllocation, EpochSatelliteCountTheBufferCanHold)
{
    // Five satellites announced and 75 bytes behind the count, which would
    // hold five empty ones: the vector takes the count, and the read ends
    // inside the fifth, whose head asks for a signal.
    SZelObservationEpoch stFive = ThreeEmptySats();
    stFive.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, 4, 0));
    stFive.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, 5, 0));
    Bytes vecImage = EpochImage(stFive);
    vecImage.back() = 1;
    SZelObservationEpoch stTarget;
    const SCountedRead stRead = CountedLoad("EpochHoldable", stTarget, vecImage);
    EXPECT_FALSE(stRead.bOk);
    // The fifth satellite fails silently on its count, the epoch reports.
    EXPECT_EQ(stRead.vecReports, c_vecOneFalse);
    ASSERT_EQ(stTarget.vecSatObs.size(), 5u);
    EXPECT_EQ(stTarget.vecSatObs[4].uiNumFreq, 1);
    EXPECT_EQ(stRead.ulUsed, 160u);
}

// The worst case of the satellite vector: a long run of the smallest
// satellite images behind a forged count. The vector is sized to the 2000
// satellites the bytes hold, with room for the one where they end, so it
// never reallocates.
TEST(ReaderAllocation, EpochOfManyEmptySatellites)
{
    SZelObservationEpoch stMany;
    for (int iSat = 0; iSat < 2000; ++iSat)
    {
        stMany.vecSatObs.push_back(SatObs(ZELSATSYSTEM_GPS, static_cast<uint8_t>(1 + iSat % 32), 0));
    }
    Bytes vecImage = EpochImage(stMany);
    Put<uint32_t>(vecImage, 96, 0xFFFFFFFFu);
    SZelObservationEpoch stTarget;
    const SCountedRead stRead = CountedLoad("EpochManyEmpty", stTarget, vecImage);
    EXPECT_FALSE(stRead.bOk);
    EXPECT_EQ(stRead.vecReports, c_vecTwoFalse);
    EXPECT_EQ(stRead.ulUsed, vecImage.size());
    EXPECT_EQ(stTarget.vecSatObs.size(), 2001u);
    EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(vecImage.size()));
}

TEST(ReaderAllocation, ExtEpochSatelliteCountAndStoredLength)
{
    const Bytes vecEpoch = ForgedEpochImage();
    CImage stImage;
    stImage.At(0)
        .U32(static_cast<uint32_t>(vecEpoch.size()))
        .Append(vecEpoch)
        .Append(ObsInfoImage(SZelObsInfo()));
    {
        ZelExtObsEpoch stTarget;
        const SCountedRead stRead = CountedLoad("ExtEpochSats", stTarget, stImage);
        EXPECT_FALSE(stRead.bOk);
        EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(stImage.Size()));
        // The satellite, the epoch and the external record each report.
        EXPECT_EQ(stRead.vecReports, std::vector<std::string>(3, "false"));
        EXPECT_EQ(stRead.ulUsed, 4u);
        EXPECT_EQ(stTarget.stObsEpoch.vecSatObs.size(), 4u);
    }
    {
        Bytes vecForged = stImage;
        Put<uint32_t>(vecForged, 0, 0xFFFFFFFFu);
        ZelExtObsEpoch stTarget;
        const SCountedRead stRead = CountedLoad("ExtEpochLength", stTarget, vecForged);
        EXPECT_FALSE(stRead.bOk);
        EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(vecForged.size()));
        EXPECT_EQ(stRead.vecReports, c_vecOneFalse);
        EXPECT_EQ(stRead.ulUsed, 4u);
    }
}

TEST(ReaderAllocation, OutputSatelliteCorrectionAndRangeRateCounts)
{
    {
        SZelRtmeOutEpochData stSource;
        stSource.stObs = ThreeEmptySats();
        Bytes vecImage = RtmeImage(stSource);
        Put<uint32_t>(vecImage, 96, 0xFFFFFFFFu);
        SZelRtmeOutEpochData stTarget;
        const SCountedRead stRead = CountedLoad("OutputSats", stTarget, vecImage);
        EXPECT_FALSE(stRead.bOk);
        EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(vecImage.size()));
        // The 32 bytes behind the satellites read as two satellites of no
        // system, each reported; the sixth fails on its own test, the epoch
        // reports, this level does not.
        EXPECT_EQ(stRead.vecReports, std::vector<std::string>(4, "false"));
        EXPECT_EQ(stRead.ulUsed, 175u);
        EXPECT_EQ(stTarget.stObs.vecSatObs.size(), 6u);
    }
    SZelRtmeOutEpochData stSource;
    stSource.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_L1CA, false, 1.0);
    stSource.AddCorrection(ZELCORRTYPE_PCO, SZelSatID(ZELSATSYSTEM_GPS, 2), ZELFREQUENCY_L1CA, true, 2.0);
    stSource.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 1), 3.0);
    stSource.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 2), 4.0);
    const Bytes vecImage = RtmeImage(stSource);
    ASSERT_EQ(vecImage.size(), 100u + 24u + 4u + 56u + 4u + 32u);
    {
        // A third correction reads from the 36 bytes of the range rates; the
        // fourth finds 8 bytes, and its own bounds test reports.
        Bytes vecForged = vecImage;
        Put<uint32_t>(vecForged, 124, 0xFFFFFFFFu);
        SZelRtmeOutEpochData stTarget;
        const SCountedRead stRead = CountedLoad("OutputCorrections", stTarget, vecForged);
        EXPECT_FALSE(stRead.bOk);
        EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(vecForged.size()));
        EXPECT_EQ(stRead.vecReports, c_vecOneFalse);
        EXPECT_EQ(stRead.ulUsed, 212u);
        EXPECT_EQ(stTarget.mapCorrections.size(), 3u);
    }
    {
        Bytes vecForged = vecImage;
        Put<uint32_t>(vecForged, 184, 0xFFFFFFFFu);
        SZelRtmeOutEpochData stTarget;
        const SCountedRead stRead = CountedLoad("OutputRangeRates", stTarget, vecForged);
        EXPECT_FALSE(stRead.bOk);
        EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(vecForged.size()));
        EXPECT_EQ(stRead.vecReports, c_vecOneFalse);
        EXPECT_EQ(stRead.ulUsed, vecForged.size());
        EXPECT_EQ(stTarget.mapRangeRates.size(), 2u);
    }
}

TEST(ReaderAllocation, BatchRecordCount)
{
    {
        // One empty output record behind the count: the second one's own
        // bounds test reports, the batch does not and counts nothing.
        CImage stImage;
        stImage.At(0).U32(1).U32(2).At(8).U32(0xFFFFFFFFu).At(12).Append(RtmeImage(SZelRtmeOutEpochData()));
        SZelOutObservations stTarget;
        const SCountedRead stRead = CountedLoad("BatchRecords", stTarget, stImage);
        EXPECT_FALSE(stRead.bOk);
        EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(stImage.Size()));
        EXPECT_EQ(stRead.vecReports, c_vecOneFalse);
        EXPECT_EQ(stRead.ulUsed, 0u);
        EXPECT_EQ(stTarget.vecEpochs.size(), 2u);
        EXPECT_EQ(stTarget.ulValue1, 2u);
    }
    {
        // A forged satellite count inside the record: the epoch's four
        // reports as above, none from the two outer levels.
        SZelRtmeOutEpochData stData;
        stData.stObs = ThreeEmptySats();
        Bytes vecRecord = RtmeImage(stData);
        Put<uint32_t>(vecRecord, 96, 0xFFFFFFFFu);
        CImage stImage;
        stImage.At(0).U32(1).U32(2).At(8).U32(1).At(12).Append(vecRecord);
        SZelOutObservations stTarget;
        const SCountedRead stRead = CountedLoad("BatchSats", stTarget, stImage);
        EXPECT_FALSE(stRead.bOk);
        EXPECT_LE(stRead.stAlloc.ulBytes, ZelTest::AllocBound(stImage.Size()));
        EXPECT_EQ(stRead.vecReports, std::vector<std::string>(4, "false"));
        EXPECT_EQ(stRead.ulUsed, 0u);
    }
}

TEST(ReaderAllocation, TextSatelliteCounts)
{
    const std::string strEpoch = ForgedEpochText();
    {
        std::istringstream iss(strEpoch);
        SZelObservationEpoch stTarget;
        const ZelTest::SAllocCount stAlloc = CountedTextRead("EpochText", stTarget, iss);
        EXPECT_TRUE(iss.fail());
        EXPECT_LE(stAlloc.ulBytes, TextPresizeBound<SZelSatObservation>(iss.str().size()));
        ASSERT_EQ(stTarget.vecSatObs.size(), ZelIo::TextPresizeMax<SZelSatObservation>());
        EXPECT_EQ(146u, ZelIo::TextPresizeMax<SZelSatObservation>()); // 65536 / 448
        EXPECT_TRUE(stTarget.vecSatObs[2] == SatObs(ZELSATSYSTEM_GPS, 3, 0));
    }
    {
        std::istringstream iss(strEpoch + ", ObsInfo, StatSince, 2108, 3600, TimeStatus, 1");
        ZelExtObsEpoch stTarget;
        const ZelTest::SAllocCount stAlloc = CountedTextRead("ExtEpochText", stTarget, iss);
        EXPECT_TRUE(iss.fail());
        EXPECT_LE(stAlloc.ulBytes, TextPresizeBound<SZelSatObservation>(iss.str().size()));
    }
    {
        std::istringstream iss("Obs, " + strEpoch + ", StnUsdG, 1");
        SZelRtmeOutEpochData stTarget;
        const ZelTest::SAllocCount stAlloc = CountedTextRead("OutputText", stTarget, iss);
        EXPECT_TRUE(iss.fail());
        EXPECT_LE(stAlloc.ulBytes, TextPresizeBound<SZelSatObservation>(iss.str().size()));
    }
}

TEST(ReaderAllocation, TextMapCounts)
{
    // Entries are added as they are read: two of each.
    std::istringstream iss("Obs, " + c_strHeaderText +
                           ", NumSats, 0, StnUsdG, 3, StnUsdR, 2, StnUsdC, 1, StnUsdE, 0, Clk, 1.5, "
                           "Corrs, 4294967295, SatId, G05, Frq, 1, TrckModY, 0, CorrTyp, PCV, 0.25, "
                           "SatId, E11, Frq, 10, TrckModY, 1, CorrTyp, PCO, -0.5");
    SZelRtmeOutEpochData stTarget;
    const ZelTest::SAllocCount stAlloc = CountedTextRead("OutputCorrectionsText", stTarget, iss);
    EXPECT_TRUE(iss.fail());
    EXPECT_LE(stAlloc.ulBytes, ZelTest::AllocBound(iss.str().size()));
    EXPECT_EQ(stTarget.mapCorrections.size(), 2u);

    std::istringstream iss2("Obs, " + c_strHeaderText +
                            ", NumSats, 0, StnUsdG, 3, StnUsdR, 2, StnUsdC, 1, StnUsdE, 0, Clk, 1.5, "
                            "Corrs, 0, RngRates, 4294967295, G05, 100.5, R01, -3");
    SZelRtmeOutEpochData stTarget2;
    const ZelTest::SAllocCount stAlloc2 = CountedTextRead("OutputRangeRatesText", stTarget2, iss2);
    EXPECT_TRUE(iss2.fail());
    EXPECT_LE(stAlloc2.ulBytes, ZelTest::AllocBound(iss2.str().size()));
    EXPECT_EQ(stTarget2.mapRangeRates.size(), 2u);
}

// ---------------------------------------------------------------------------
// Notification interface
// ---------------------------------------------------------------------------

namespace
{

class CCountingListener : public IZelNotificationInterface
{
public:
    void OnObservations(const SZelOutObservations& rstObservations) override
    {
        m_ulEpochs += rstObservations.vecEpochs.size();
    }
    void OnNotification(uint32_t ulCode, const char* /*szText*/) override { m_ulLastCode = ulCode; }

    size_t m_ulEpochs = 0;
    uint32_t m_ulLastCode = 0;
};

} // namespace

TEST(NotificationInterface, AbstractWithVirtualDestructor)
{
    EXPECT_TRUE(std::is_abstract<IZelNotificationInterface>::value);
    EXPECT_TRUE(std::has_virtual_destructor<IZelNotificationInterface>::value);
    EXPECT_EQ(sizeof(IZelNotificationInterface), sizeof(void*));
    CCountingListener stListener;
    IZelNotificationInterface& rInterface = stListener;
    SZelOutObservations stOut;
    stOut.vecEpochs.resize(3);
    rInterface.OnObservations(stOut);
    rInterface.OnNotification(17, "text");
    EXPECT_EQ(stListener.m_ulEpochs, 3u);
    EXPECT_EQ(stListener.m_ulLastCode, 17u);
}
