// Observation epochs and the measurement engine's output records: header,
// epoch, correction keys and maps, output batches, the station record and the
// external epoch; binary images by the offset tables, text forms, bounds
// tests on the present content, and the partial reset.

#include "ZelTestHooks.h"

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

namespace
{

typedef std::vector<unsigned char> Bytes;

template <class T> void Put(Bytes& vecImage, size_t ulOffset, T tValue)
{
    std::memcpy(&vecImage[ulOffset], &tValue, sizeof(T));
}

template <class T> void Append(Bytes& vecImage, T tValue)
{
    const size_t ulAt = vecImage.size();
    vecImage.resize(ulAt + sizeof(T));
    Put(vecImage, ulAt, tValue);
}

void AppendBytes(Bytes& vecImage, const Bytes& vecMore)
{
    vecImage.insert(vecImage.end(), vecMore.begin(), vecMore.end());
}

SZelFreqObservation MakeSignal(uint32_t ulFlags, int32_t lFrq, int32_t lMode, double dBase)
{
    SZelFreqObservation stObs;
    stObs.ulObsFlags = ulFlags;
    stObs.eFrequency = static_cast<EZelFrequency>(lFrq);
    stObs.eTrackMode = static_cast<EZelTrackMode>(lMode);
    stObs.dPhase = dBase + 0.125;
    stObs.dCode = dBase / 3.0;
    stObs.dDopplerM = -1234.5;
    stObs.dDopplerC = 17.25;
    stObs.unContMeasCount10Msec = 1000;
    stObs.unCNo = 451;
    stObs.unPhaseRms100thMm = 12;
    stObs.unRangeRmsMm = 300;
    stObs.nTimeOffsetRTCM9 = -5;
    stObs.fVelocity = 1.5f;
    stObs.fAcceleration = -0.25f;
    return stObs;
}

SZelSatObservation MakeSat(EZelSatSystem eSys, uint8_t uiNumber, uint8_t uiNumFreq, uint32_t ulFlags = 0x2F)
{
    SZelSatObservation stSat;
    stSat.stSatId = SZelSatID(eSys, uiNumber);
    stSat.ulIOD = 1000u + uiNumber;
    stSat.ucSatFlags = static_cast<uint8_t>(uiNumber * 3);
    stSat.ucChannel = uiNumber;
    stSat.uiNumFreq = uiNumFreq;
    for (uint8_t uiIdx = 0; uiIdx < uiNumFreq && uiIdx < 6; ++uiIdx)
    {
        stSat.astFreqObs[uiIdx] =
            MakeSignal(ulFlags, 1 + uiIdx, 3 + uiIdx, 2.0e7 + 1000.0 * uiNumber + uiIdx);
    }
    return stSat;
}

// A header with every field set.
SZelObservationEpochHeader MakeHeader()
{
    SZelObservationEpochHeader stHeader;
    stHeader.ucTag0 = 0xA5;
    stHeader.ucTag1 = 0x5A;
    stHeader.stTime.m_lMjdDay = 60000;
    stHeader.stTime.m_dMjdFractMilliseconds = 43200000.5;
    stHeader.ucNumSats = 5;
    stHeader.dClockOffset = 0.000125;
    stHeader.dTimeStampOffset = -0.5;
    stHeader.ulDopplerRate = 500;
    stHeader.ulPositionRate = 200;
    stHeader.lSmoothingLength = -100;
    stHeader.stFirstStaticMarkEpoch.m_lMjdDay = 59999;
    stHeader.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds = 1000.0;
    return stHeader;
}

// Several systems, one to six signals each.
SZelObservationEpoch MakeEpoch()
{
    SZelObservationEpoch stEpoch;
    stEpoch.stZelObservationEpochHeader = MakeHeader();
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GPS, 5, 1));
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GLONASS, 24, 2));
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GALILEO, 11, 3));
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_BEIDOU, 38, 6));
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_SBAS, 20, 1, 0x0));
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_QZSS, 3, 4));
    return stEpoch;
}

// ---- hand-built images, by the offset tables

void PutTimeBlock(Bytes& vecImage, size_t ulAt, const SMjdTime& rstTime)
{
    Put<int32_t>(vecImage, ulAt + 0, rstTime.m_lMjdDay);
    Put<double>(vecImage, ulAt + 8, rstTime.m_dMjdFractMilliseconds);
    Put<int32_t>(vecImage, ulAt + 16, rstTime.m_eAccuracy);
}

Bytes HeaderImage(const SZelObservationEpochHeader& rstHeader)
{
    Bytes vecImage(96, 0);
    Put<uint8_t>(vecImage, 0, rstHeader.ucTag0);
    Put<uint8_t>(vecImage, 1, rstHeader.ucTag1);
    PutTimeBlock(vecImage, 8, rstHeader.stTime);
    Put<uint8_t>(vecImage, 32, rstHeader.ucNumSats);
    Put<double>(vecImage, 40, rstHeader.dClockOffset);
    Put<double>(vecImage, 48, rstHeader.dTimeStampOffset);
    Put<uint32_t>(vecImage, 56, rstHeader.ulDopplerRate);
    Put<uint32_t>(vecImage, 60, rstHeader.ulPositionRate);
    Put<int32_t>(vecImage, 64, rstHeader.lSmoothingLength);
    PutTimeBlock(vecImage, 72, rstHeader.stFirstStaticMarkEpoch);
    return vecImage;
}

Bytes SatImage(const SZelSatObservation& rstSat)
{
    Bytes vecImage(15 + 72 * static_cast<size_t>(rstSat.uiNumFreq), 0);
    Put<int32_t>(vecImage, 0, rstSat.stSatId.eSatSystem);
    Put<uint8_t>(vecImage, 4, rstSat.stSatId.uiSatNumber);
    Put<uint32_t>(vecImage, 8, rstSat.ulIOD);
    Put<uint8_t>(vecImage, 12, rstSat.ucSatFlags);
    Put<uint8_t>(vecImage, 13, rstSat.ucChannel);
    Put<uint8_t>(vecImage, 14, rstSat.uiNumFreq);
    for (size_t ulIdx = 0; ulIdx < rstSat.uiNumFreq; ++ulIdx)
    {
        const size_t ulAt = 15 + 72 * ulIdx;
        const SZelFreqObservation& rstObs = rstSat.astFreqObs[ulIdx];
        Put<uint32_t>(vecImage, ulAt + 0, rstObs.ulObsFlags);
        Put<int32_t>(vecImage, ulAt + 4, rstObs.eFrequency);
        Put<int32_t>(vecImage, ulAt + 8, rstObs.eTrackMode);
        Put<double>(vecImage, ulAt + 16, rstObs.dPhase);
        Put<double>(vecImage, ulAt + 24, rstObs.dCode);
        Put<double>(vecImage, ulAt + 32, rstObs.dDopplerM);
        Put<double>(vecImage, ulAt + 40, rstObs.dDopplerC);
        Put<uint16_t>(vecImage, ulAt + 48, rstObs.unContMeasCount10Msec);
        Put<uint16_t>(vecImage, ulAt + 50, rstObs.unCNo);
        Put<uint16_t>(vecImage, ulAt + 52, rstObs.unPhaseRms100thMm);
        Put<uint16_t>(vecImage, ulAt + 54, rstObs.unRangeRmsMm);
        Put<int16_t>(vecImage, ulAt + 56, rstObs.nTimeOffsetRTCM9);
        Put<float>(vecImage, ulAt + 60, rstObs.fVelocity);
        Put<float>(vecImage, ulAt + 64, rstObs.fAcceleration);
    }
    return vecImage;
}

Bytes EpochImage(const SZelObservationEpoch& rstEpoch)
{
    Bytes vecImage = HeaderImage(rstEpoch.stZelObservationEpochHeader);
    Append<uint32_t>(vecImage, static_cast<uint32_t>(rstEpoch.vecSatObs.size()));
    for (const SZelSatObservation& rstSat : rstEpoch.vecSatObs)
    {
        AppendBytes(vecImage, SatImage(rstSat));
    }
    return vecImage;
}

Bytes CorrectionEntry(const SZelCorrectionKey& rstKey, double dValue)
{
    Bytes vecEntry(28, 0);
    Put<int32_t>(vecEntry, 0, rstKey.stSatId.eSatSystem);
    Put<uint8_t>(vecEntry, 4, rstKey.stSatId.uiSatNumber);
    Put<int32_t>(vecEntry, 8, rstKey.eFrequency);
    Put<uint8_t>(vecEntry, 12, rstKey.bTrackModeY ? 1 : 0);
    Put<int32_t>(vecEntry, 16, rstKey.eCorrType);
    Put<double>(vecEntry, 20, dValue); // unaligned
    return vecEntry;
}

Bytes RangeRateEntry(const SZelSatID& rstSatId, double dValue)
{
    Bytes vecEntry(16, 0);
    Put<int32_t>(vecEntry, 0, rstSatId.eSatSystem);
    Put<uint8_t>(vecEntry, 4, rstSatId.uiSatNumber);
    Put<double>(vecEntry, 8, dValue);
    return vecEntry;
}

// Entries follow the map's own iteration order.
Bytes RtmeImage(const SZelRtmeOutEpochData& rstData)
{
    Bytes vecImage = EpochImage(rstData.stObs);
    for (int32_t lStations : rstData.alStationsUsed)
    {
        Append<int32_t>(vecImage, lStations);
    }
    Append<double>(vecImage, rstData.dClock);
    Append<uint32_t>(vecImage, static_cast<uint32_t>(rstData.mapCorrections.size()));
    for (const auto& rEntry : rstData.mapCorrections)
    {
        AppendBytes(vecImage, CorrectionEntry(rEntry.first, rEntry.second));
    }
    Append<uint32_t>(vecImage, static_cast<uint32_t>(rstData.mapRangeRates.size()));
    for (const auto& rEntry : rstData.mapRangeRates)
    {
        AppendBytes(vecImage, RangeRateEntry(rEntry.first, rEntry.second));
    }
    return vecImage;
}

Bytes ObsInfoImage(const SZelObsInfo& rstInfo)
{
    Bytes vecImage(40, 0);
    PutTimeBlock(vecImage, 0, rstInfo.stStaticSince);
    Put<uint8_t>(vecImage, 24, rstInfo.ucTimeStatus);
    Put<uint16_t>(vecImage, 26, rstInfo.unObsFlags);
    Put<uint8_t>(vecImage, 28, rstInfo.ucDataFlags);
    Put<uint8_t>(vecImage, 29, rstInfo.ucStationType);
    Put<uint32_t>(vecImage, 32, rstInfo.ulStationId);
    return vecImage;
}

SZelRtmeOutEpochData MakeRtme()
{
    SZelRtmeOutEpochData stData;
    stData.stObs = MakeEpoch();
    stData.alStationsUsed[0] = 3;
    stData.alStationsUsed[1] = 2;
    stData.alStationsUsed[2] = 1;
    stData.alStationsUsed[3] = -1;
    stData.dClock = 1.5e-7;
    stData.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L1CA, false, 0.0125);
    stData.AddCorrection(ZELCORRTYPE_PCO, SZelSatID(ZELSATSYSTEM_GALILEO, 11), ZELFREQUENCY_E6, true, -0.5);
    stData.AddCorrection(ZELCORRTYPE_POF, SZelSatID(ZELSATSYSTEM_BEIDOU, 38), ZELFREQUENCY_E5B, false, 3.25);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 5), 100.5);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GLONASS, 24), -312.75);
    return stData;
}

SZelObsInfo MakeObsInfo()
{
    SZelObsInfo stInfo;
    stInfo.stStaticSince.m_lMjdDay = 59000;
    stInfo.stStaticSince.m_dMjdFractMilliseconds = 3600000.25;
    stInfo.ucTimeStatus = 160;
    stInfo.unObsFlags = 0xBEEF;
    stInfo.ucDataFlags = 3;
    stInfo.ucStationType = 2;
    stInfo.ulStationId = 123456;
    return stInfo;
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

} // namespace

// ---------------------------------------------------------------------------
// Epoch header
// ---------------------------------------------------------------------------

TEST(EpochHeader, DefaultsAndReset)
{
    SZelObservationEpochHeader stHeader = MakeHeader();
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
    const SZelObservationEpochHeader stHeader = MakeHeader();
    Bytes vecExpected(96, 0);
    vecExpected[0] = 0xA5;
    vecExpected[1] = 0x5A;
    Put<int32_t>(vecExpected, 8, 60000);
    Put<double>(vecExpected, 16, 43200000.5);
    Put<int32_t>(vecExpected, 24, 0);
    vecExpected[32] = 5;
    Put<double>(vecExpected, 40, 0.000125);
    Put<double>(vecExpected, 48, -0.5);
    Put<uint32_t>(vecExpected, 56, 500);
    Put<uint32_t>(vecExpected, 60, 200);
    Put<int32_t>(vecExpected, 64, -100);
    Put<int32_t>(vecExpected, 72, 59999);
    Put<double>(vecExpected, 80, 1000.0);
    Put<int32_t>(vecExpected, 88, 1);

    ZelTest::CRecordingHook stHook;
    Bytes vecOut(96, 0xAA);
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stHeader.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(ulUsed, 96u);
    EXPECT_EQ(vecOut, vecExpected);

    SZelObservationEpochHeader stBack;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), vecExpected.size(), &ulUsed));
    EXPECT_EQ(ulUsed, 96u);
    EXPECT_TRUE(stBack == stHeader);
    EXPECT_EQ(stBack.stTime.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(stBack.stFirstStaticMarkEpoch.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(EpochHeader, ShortAndNullBuffers)
{
    const SZelObservationEpochHeader stHeader = MakeHeader();
    Bytes vecOut(96, 0xAA);
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 7;
    EXPECT_FALSE(stHeader.saveData(vecOut.data(), 95, &ulUsed));
    EXPECT_EQ(ulUsed, 0u);
    EXPECT_EQ(vecOut, Bytes(96, 0xAA));
    EXPECT_FALSE(stHeader.saveData(nullptr, 96, &ulUsed));
    SZelObservationEpochHeader stBack;
    EXPECT_FALSE(stBack.loadData(vecOut.data(), 95, &ulUsed));
    EXPECT_FALSE(stBack.loadData(nullptr, 96, &ulUsed));
    EXPECT_TRUE(stBack == SZelObservationEpochHeader());
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{"false", "false", "false", "false"}));
}

TEST(EpochHeader, AccuracyOutsideTheEnumerationLoadsAsItStands)
{
    Bytes vecImage = HeaderImage(MakeHeader());
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
    const SZelObservationEpochHeader stA = MakeHeader();
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
    const SZelObservationEpochHeader stHeader = MakeHeader();
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
    SZelObservationEpochHeader stHeader = MakeHeader();
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
    stHeader = MakeHeader();
    iss2 >> stHeader;
    EXPECT_EQ(stHeader.stTime.m_lMjdDay, 5965 * 7 + 44244 + 7);
    EXPECT_EQ(stHeader.stTime.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_lMjdDay, 0);
    EXPECT_EQ(stHeader.stFirstStaticMarkEpoch.m_eAccuracy, MJDACC_NANOSECOND);
    std::istringstream iss3("1, 2, 100, -1, NumSats, 3, ClkOffs, 0, TimeStampOffs, 0, DoppRate, 1, "
                            "PosRate, 1, SmooLgth, 0, 1stStatMrkEpoch, 2000, 1");
    stHeader = MakeHeader();
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
    const SZelObservationEpoch stEpoch;
    EXPECT_EQ(stEpoch.getSize(), 100u);
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 0;
    const Bytes vecOut = Save(stEpoch, &ulUsed);
    EXPECT_EQ(ulUsed, 100u);
    uint32_t ulCount = 99;
    std::memcpy(&ulCount, &vecOut[96], 4);
    EXPECT_EQ(ulCount, 0u);
    EXPECT_EQ(vecOut, EpochImage(stEpoch));
    SZelObservationEpoch stBack;
    ulUsed = 0;
    EXPECT_TRUE(stBack.loadData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(ulUsed, 100u);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(Epoch, ResetDefaultsKeepAllocationAndSaveSilently)
{
    SZelObservationEpoch stEpoch = MakeEpoch();
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
    const SZelObservationEpoch stEpoch = MakeEpoch();
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
    const SZelObservationEpoch stEpoch = MakeEpoch();
    // By hand: header, count at 96, satellites from 100.
    Bytes vecExpected(96, 0);
    vecExpected[0] = 0xA5;
    vecExpected[1] = 0x5A;
    Put<int32_t>(vecExpected, 8, 60000);
    Put<double>(vecExpected, 16, 43200000.5);
    vecExpected[32] = 5;
    Put<double>(vecExpected, 40, 0.000125);
    Put<double>(vecExpected, 48, -0.5);
    Put<uint32_t>(vecExpected, 56, 500);
    Put<uint32_t>(vecExpected, 60, 200);
    Put<int32_t>(vecExpected, 64, -100);
    Put<int32_t>(vecExpected, 72, 59999);
    Put<double>(vecExpected, 80, 1000.0);
    Put<int32_t>(vecExpected, 88, 1);
    Append<uint32_t>(vecExpected, 6);
    size_t ulExpectedSize = 100;
    for (const SZelSatObservation& rstSat : stEpoch.vecSatObs)
    {
        AppendBytes(vecExpected, SatImage(rstSat));
        ulExpectedSize += 15 + 72 * rstSat.uiNumFreq;
    }
    EXPECT_EQ(ulExpectedSize, 100u + 6u * 15u + 17u * 72u);
    ASSERT_EQ(vecExpected.size(), ulExpectedSize);
    // Spot checks of the offsets: the BeiDou satellite's head and last signal.
    const size_t ulBeidou = 100 + (15 + 72) + (15 + 144) + (15 + 216);
    EXPECT_EQ(vecExpected[ulBeidou + 4], 38);
    EXPECT_EQ(vecExpected[ulBeidou + 14], 6);
    int32_t lFrq = 0;
    std::memcpy(&lFrq, &vecExpected[ulBeidou + 15 + 5 * 72 + 4], 4);
    EXPECT_EQ(lFrq, 6);

    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(stEpoch.getSize(), ulExpectedSize);
    Bytes vecOut(ulExpectedSize, 0xAA);
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stEpoch.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(ulUsed, ulExpectedSize);
    EXPECT_EQ(vecOut, vecExpected);

    SZelObservationEpoch stBack;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), vecExpected.size(), &ulUsed));
    EXPECT_EQ(ulUsed, ulExpectedSize);
    EXPECT_TRUE(stBack == stEpoch);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(EpochBinary, SaveBoundsReportOnceOrTwice)
{
    const SZelObservationEpoch stEpoch = MakeEpoch();
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
    SZelObservationEpoch stEpoch = MakeEpoch();
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
    SZelObservationEpoch stTarget = MakeEpoch();
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
    const SZelObservationEpoch stEpoch = MakeEpoch();
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

TEST(EpochBinary, ForgedCountResizesAndFailsWhereTheBufferEnds)
{
    SZelObservationEpoch stOne;
    stOne.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GPS, 1, 0));
    Bytes vecImage = EpochImage(stOne);
    Put<uint32_t>(vecImage, 96, 1000);
    ZelTest::CRecordingHook stHook;
    SZelObservationEpoch stTarget;
    uint64_t ulUsed = 0;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    // The second satellite's own bounds test and the epoch's report.
    EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
    EXPECT_EQ(stTarget.vecSatObs.size(), 1000u);
    EXPECT_TRUE(stTarget.vecSatObs[0] == stOne.vecSatObs[0]);
    EXPECT_EQ(ulUsed, 115u);
}

TEST(EpochBinary, SatelliteThatCannotBeWrittenFailsTheEpoch)
{
    SZelObservationEpoch stEpoch = MakeEpoch();
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
    const Bytes vecImage = EpochImage(MakeEpoch());
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
    const SZelObservationEpoch stEpoch = MakeEpoch();
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
    stEpoch.stZelObservationEpochHeader = MakeHeader();
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GPS, 5, 0));
    stEpoch.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GLONASS, 1, 0));
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
    const SZelObservationEpoch stEpoch = MakeEpoch();
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
    const SZelObservationEpoch stEpoch = MakeEpoch();
    const std::string strText = ToText(stEpoch);
    const size_t ulCut = strText.find(", NumSats, 6");
    ASSERT_NE(ulCut, std::string::npos);
    SZelObservationEpoch stTarget = MakeEpoch();
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
    std::ostringstream oss;
    oss << stKey;
    EXPECT_EQ(oss.str(), "SatId, E07, Frq, 9, TrckModY, 1, CorrTyp, Var");
    std::istringstream iss(oss.str());
    SZelCorrectionKey stBack;
    iss >> stBack;
    EXPECT_TRUE(stBack == stKey);
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

    stData = MakeRtme();
    stData.Reset();
    EXPECT_EQ(stData.GetClock(), 0.0);
    EXPECT_TRUE(stData.mapCorrections.empty());
    EXPECT_TRUE(stData.mapRangeRates.empty());
    // Epoch and station counts stay.
    EXPECT_TRUE(stData.stObs == MakeEpoch());
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
    SZelSatObservation stSat = MakeSat(ZELSATSYSTEM_GPS, 1, 3, 0x2);
    stSat.astFreqObs[2].SetPhase(true);
    stData.stObs.vecSatObs.push_back(stSat);                                    // counts
    stData.stObs.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GPS, 2, 3, 0x2));     // no phase
    stData.stObs.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_GLONASS, 5, 2, 0x1)); // counts once
    stData.stObs.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_LOCATA, 5, 1, 0x1));
    stData.stObs.vecSatObs.push_back(MakeSat(ZELSATSYSTEM_NONE, 0, 1, 0x1));
    stData.stObs.vecSatObs.push_back(MakeSat(static_cast<EZelSatSystem>(12), 1, 1, 0x1)); // no counter
    SZelSatObservation stBeyond = MakeSat(ZELSATSYSTEM_GALILEO, 1, 1, 0x0);
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

    SZelRtmeOutEpochData stC = MakeRtme();
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
    const SZelRtmeOutEpochData stData = MakeRtme();
    const Bytes vecEpoch = EpochImage(stData.stObs);
    // By hand, entries in the map's iteration order.
    Bytes vecExpected = vecEpoch;
    Append<int32_t>(vecExpected, 3);
    Append<int32_t>(vecExpected, 2);
    Append<int32_t>(vecExpected, 1);
    Append<int32_t>(vecExpected, -1);
    Append<double>(vecExpected, 1.5e-7);
    Append<uint32_t>(vecExpected, 3);
    for (const auto& rEntry : stData.mapCorrections)
    {
        Bytes vecEntry(28, 0);
        Put<int32_t>(vecEntry, 0, rEntry.first.stSatId.eSatSystem);
        vecEntry[4] = rEntry.first.stSatId.uiSatNumber;
        Put<int32_t>(vecEntry, 8, rEntry.first.eFrequency);
        vecEntry[12] = rEntry.first.bTrackModeY ? 1 : 0;
        Put<int32_t>(vecEntry, 16, rEntry.first.eCorrType);
        Put<double>(vecEntry, 20, rEntry.second);
        AppendBytes(vecExpected, vecEntry);
    }
    Append<uint32_t>(vecExpected, 2);
    for (const auto& rEntry : stData.mapRangeRates)
    {
        Bytes vecEntry(16, 0);
        Put<int32_t>(vecEntry, 0, rEntry.first.eSatSystem);
        vecEntry[4] = rEntry.first.uiSatNumber;
        Put<double>(vecEntry, 8, rEntry.second);
        AppendBytes(vecExpected, vecEntry);
    }
    const size_t ulSize = vecEpoch.size() + 28 * 3 + 16 * (2 + 2);
    ASSERT_EQ(vecExpected.size(), ulSize);

    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(stData.getSize(), ulSize);
    Bytes vecOut(ulSize, 0xAA);
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stData.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(ulUsed, ulSize);
    EXPECT_EQ(vecOut, vecExpected);

    // The unaligned value at 20 of the first correction entry.
    const size_t ulFirstEntry = vecEpoch.size() + 16 + 8 + 4;
    double dValue = 0.0;
    std::memcpy(&dValue, &vecOut[ulFirstEntry + 20], 8);
    EXPECT_EQ(dValue, stData.mapCorrections.begin()->second);

    SZelRtmeOutEpochData stBack;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), vecExpected.size(), &ulUsed));
    EXPECT_EQ(ulUsed, ulSize);
    EXPECT_TRUE(stBack == stData);
    EXPECT_EQ(stHook.Count(), 0u);
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
    const SZelRtmeOutEpochData stData = MakeRtme();
    Bytes vecOut(static_cast<size_t>(stData.getSize()), 0xAA);
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 3;
    EXPECT_FALSE(stData.saveData(vecOut.data(), vecOut.size() - 1, &ulUsed));
    EXPECT_EQ(ulUsed, 0u);
    EXPECT_FALSE(stData.saveData(nullptr, vecOut.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
    EXPECT_EQ(vecOut, Bytes(vecOut.size(), 0xAA));

    stHook.Clear();
    const Bytes vecEmpty = Save(SZelRtmeOutEpochData());
    ASSERT_EQ(vecEmpty.size(), 132u);
    SZelRtmeOutEpochData stTarget = MakeRtme();
    EXPECT_FALSE(stTarget.loadData(vecEmpty.data(), vecEmpty.size(), &ulUsed));
    EXPECT_FALSE(stTarget.loadData(nullptr, 100000, &ulUsed));
    EXPECT_EQ(stHook.Texts(), c_vecTwoFalse);
    EXPECT_TRUE(stTarget == MakeRtme());
}

TEST(RtmeOutBinary, LoadAddsToTheMaps)
{
    const SZelRtmeOutEpochData stData = MakeRtme();
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
    const SZelRtmeOutEpochData stData = MakeRtme();
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
    stData.stObs.stZelObservationEpochHeader = MakeHeader();
    stData.alStationsUsed[0] = 3;
    stData.alStationsUsed[1] = 2;
    stData.alStationsUsed[2] = 1;
    stData.alStationsUsed[3] = 0;
    stData.dClock = 1.5;
    stData.AddCorrection(ZELCORRTYPE_PCO, SZelSatID(ZELSATSYSTEM_GALILEO, 11), ZELFREQUENCY_E6, true, -0.5);
    stData.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L1CA, false, 0.25);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GLONASS, 1), -3.0);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 5), 100.5);
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
    const SZelRtmeOutEpochData stData = MakeRtme();
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
    SZelOutObservations stOut;
    EXPECT_EQ(stOut.getSize(), 12u);
    stOut.ulValue0 = 0xDEADBEEFu;
    stOut.ulValue1 = 42;
    stOut.vecEpochs.push_back(MakeRtme());
    SZelRtmeOutEpochData stSecond;
    stSecond.dClock = -1.0;
    stSecond.AddRangeRate(SZelSatID(ZELSATSYSTEM_QZSS, 2), 0.5);
    stOut.vecEpochs.push_back(stSecond);

    Bytes vecExpected(12, 0);
    Put<uint32_t>(vecExpected, 0, 0xDEADBEEFu);
    Put<uint32_t>(vecExpected, 4, 42);
    Put<uint32_t>(vecExpected, 8, 2);
    AppendBytes(vecExpected, RtmeImage(stOut.vecEpochs[0]));
    AppendBytes(vecExpected, RtmeImage(stOut.vecEpochs[1]));

    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(stOut.getSize(), vecExpected.size());
    Bytes vecOut(vecExpected.size(), 0xAA);
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stOut.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(ulUsed, vecExpected.size());
    EXPECT_EQ(vecOut, vecExpected);

    SZelOutObservations stBack;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), vecExpected.size(), &ulUsed));
    EXPECT_EQ(ulUsed, vecExpected.size());
    EXPECT_TRUE(stBack == stOut);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(OutObservations, ComparisonBoundsAndFailingElements)
{
    SZelOutObservations stOut;
    stOut.vecEpochs.push_back(MakeRtme());
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
    EXPECT_EQ(stDefault.getSize(), 40u);
    EXPECT_EQ(stDefault.stStaticSince.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(stDefault.ucTimeStatus, 0);
    EXPECT_EQ(stDefault.unObsFlags, 0);
    EXPECT_EQ(stDefault.ucDataFlags, 0);
    EXPECT_EQ(stDefault.ucStationType, 0);
    EXPECT_EQ(stDefault.ulStationId, 0u);

    const SZelObsInfo stInfo = MakeObsInfo();
    Bytes vecExpected(40, 0);
    Put<int32_t>(vecExpected, 0, 59000);
    Put<double>(vecExpected, 8, 3600000.25);
    Put<int32_t>(vecExpected, 16, 1);
    vecExpected[24] = 160;
    Put<uint16_t>(vecExpected, 26, 0xBEEF);
    vecExpected[28] = 3;
    vecExpected[29] = 2;
    Put<uint32_t>(vecExpected, 32, 123456);

    ZelTest::CRecordingHook stHook;
    Bytes vecOut(40, 0xAA);
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stInfo.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(ulUsed, 40u);
    EXPECT_EQ(vecOut, vecExpected);
    SZelObsInfo stBack;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), vecExpected.size()));
    EXPECT_TRUE(stBack == stInfo);
    EXPECT_EQ(stHook.Count(), 0u);

    EXPECT_FALSE(stInfo.saveData(vecOut.data(), 39, &ulUsed));
    EXPECT_EQ(ulUsed, 0u);
    EXPECT_FALSE(stInfo.saveData(nullptr, 40));
    EXPECT_FALSE(stBack.loadData(vecExpected.data(), 39));
    EXPECT_FALSE(stBack.loadData(nullptr, 40));
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{"false", "false", "false", "false"}));
}

TEST(ObsInfo, ComparisonWithTimeTolerance)
{
    const SZelObsInfo stInfo = MakeObsInfo();
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
    const SZelObsInfo stInfo = MakeObsInfo();
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
    ZelExtObsEpoch stExt;
    stExt.stObsEpoch = MakeEpoch();
    stExt.stObsInfo = MakeObsInfo();
    EXPECT_EQ(stExt.GetTimeStatus(), 160);
    const Bytes vecEpoch = EpochImage(stExt.stObsEpoch);
    Bytes vecExpected;
    Append<uint32_t>(vecExpected, static_cast<uint32_t>(vecEpoch.size()));
    AppendBytes(vecExpected, vecEpoch);
    AppendBytes(vecExpected, ObsInfoImage(stExt.stObsInfo));
    EXPECT_EQ(vecExpected.size(), vecEpoch.size() + 44);

    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(stExt.getSize(), vecExpected.size());
    Bytes vecOut(vecExpected.size(), 0xAA);
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stExt.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(ulUsed, vecExpected.size());
    EXPECT_EQ(vecOut, vecExpected);
    EXPECT_TRUE(stExt.saveData(vecOut.data(), vecOut.size()));

    ZelExtObsEpoch stBack;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), vecExpected.size(), &ulUsed));
    EXPECT_EQ(ulUsed, vecExpected.size());
    EXPECT_TRUE(stBack == stExt);
    EXPECT_EQ(stHook.Count(), 0u);

    EXPECT_EQ(ZelExtObsEpoch().getSize(), 144u);
}

TEST(ExtObsEpoch, BoundsAndStoredLength)
{
    ZelExtObsEpoch stExt;
    stExt.stObsEpoch = MakeEpoch();
    stExt.stObsInfo = MakeObsInfo();
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
    stExt.stObsEpoch.stZelObservationEpochHeader = MakeHeader();
    stExt.stObsInfo = MakeObsInfo();
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

    stExt.stObsEpoch = MakeEpoch();
    std::istringstream iss2(ToText(stExt));
    iss2 >> stBack;
    EXPECT_FALSE(iss2.fail());
    EXPECT_TRUE(stBack == stExt);
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
