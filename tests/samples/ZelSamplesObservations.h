#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESOBSERVATIONS_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESOBSERVATIONS_H

// Sample records of the family, shared by tests, benchmarks and seeds.

#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <cstdint>

namespace ZelSample
{

// A signal record with every field set, the measurements drawn from dBase.
inline ZELN::SZelFreqObservation FreqObs(uint32_t ulFlags, int32_t lFrq, int32_t lMode, double dBase)
{
    ZELN::SZelFreqObservation stObs;
    stObs.ulObsFlags = ulFlags;
    stObs.eFrequency = static_cast<ZELN::EZelFrequency>(lFrq);
    stObs.eTrackMode = static_cast<ZELN::EZelTrackMode>(lMode);
    stObs.dPhase = dBase + 0.125;
    stObs.dCode = dBase / 7.0;
    stObs.dDopplerM = -1234.5 - dBase / 1e6;
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

// A satellite with uiNumFreq signals: IOD 1000 + number, flags 3 x number,
// channel = number; signal i on frequency 1 + i with track mode 3 + i.
inline ZELN::SZelSatObservation SatObs(ZELN::EZelSatSystem eSys, uint8_t uiNumber, uint8_t uiNumFreq,
                                       uint32_t ulFlags = 0x2F)
{
    ZELN::SZelSatObservation stSat;
    stSat.stSatId = ZELN::SZelSatID(eSys, uiNumber);
    stSat.ulIOD = 1000u + uiNumber;
    stSat.ucSatFlags = static_cast<uint8_t>(uiNumber * 3);
    stSat.ucChannel = uiNumber;
    stSat.uiNumFreq = uiNumFreq;
    for (uint8_t uiIdx = 0; uiIdx < uiNumFreq && uiIdx < ZELN::SZelSatObservation::MAX_FREQUENCIESOBSERVED;
         ++uiIdx)
    {
        stSat.astFreqObs[uiIdx] = FreqObs(ulFlags, 1 + uiIdx, 3 + uiIdx, 2.0e7 + 1000.0 * uiNumber + uiIdx);
    }
    return stSat;
}

// A header with every field set: GPS week 2250, 561600000.5 ms of week.
inline ZELN::SZelObservationEpochHeader EpochHeader()
{
    ZELN::SZelObservationEpochHeader stHeader;
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

// Six systems, one to six signals each (17 signals).
inline ZELN::SZelObservationEpoch ObsEpoch()
{
    ZELN::SZelObservationEpoch stEpoch;
    stEpoch.stZelObservationEpochHeader = EpochHeader();
    stEpoch.vecSatObs.push_back(SatObs(ZELN::ZELSATSYSTEM_GPS, 5, 1));
    stEpoch.vecSatObs.push_back(SatObs(ZELN::ZELSATSYSTEM_GLONASS, 24, 2));
    stEpoch.vecSatObs.push_back(SatObs(ZELN::ZELSATSYSTEM_GALILEO, 11, 3));
    stEpoch.vecSatObs.push_back(SatObs(ZELN::ZELSATSYSTEM_BEIDOU, 38, 6));
    stEpoch.vecSatObs.push_back(SatObs(ZELN::ZELSATSYSTEM_SBAS, 20, 1, 0x0));
    stEpoch.vecSatObs.push_back(SatObs(ZELN::ZELSATSYSTEM_QZSS, 3, 4));
    return stEpoch;
}

// An epoch of iNbSats satellites of four systems with iNbSignals signals each.
inline ZELN::SZelObservationEpoch ObsEpoch(int iNbSats, int iNbSignals)
{
    const ZELN::EZelSatSystem aeSys[] = {ZELN::ZELSATSYSTEM_GPS, ZELN::ZELSATSYSTEM_GLONASS,
                                         ZELN::ZELSATSYSTEM_GALILEO, ZELN::ZELSATSYSTEM_BEIDOU};
    ZELN::SZelObservationEpoch stEpoch;
    stEpoch.stZelObservationEpochHeader = EpochHeader();
    stEpoch.stZelObservationEpochHeader.ucNumSats = static_cast<uint8_t>(iNbSats);
    for (int iSat = 0; iSat < iNbSats; ++iSat)
    {
        stEpoch.vecSatObs.push_back(
            SatObs(aeSys[iSat % 4], static_cast<uint8_t>(1 + iSat / 4), static_cast<uint8_t>(iNbSignals)));
    }
    return stEpoch;
}

// The epoch above with station counts, a clock, three corrections and two
// range rates.
inline ZELN::SZelRtmeOutEpochData RtmeOut()
{
    ZELN::SZelRtmeOutEpochData stData;
    stData.stObs = ObsEpoch();
    stData.alStationsUsed[0] = 3;
    stData.alStationsUsed[1] = 2;
    stData.alStationsUsed[2] = 1;
    stData.alStationsUsed[3] = -1;
    stData.dClock = 1.5e-7;
    stData.AddCorrection(ZELN::ZELCORRTYPE_PCV, ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, 5),
                         ZELN::ZELFREQUENCY_L1CA, false, 0.0125);
    stData.AddCorrection(ZELN::ZELCORRTYPE_PCO, ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GALILEO, 11),
                         ZELN::ZELFREQUENCY_E6, true, -0.5);
    stData.AddCorrection(ZELN::ZELCORRTYPE_POF, ZELN::SZelSatID(ZELN::ZELSATSYSTEM_BEIDOU, 38),
                         ZELN::ZELFREQUENCY_E5B, false, 3.25);
    stData.AddRangeRate(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, 5), 100.5);
    stData.AddRangeRate(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GLONASS, 24), -312.75);
    return stData;
}

// An output record with an empty epoch, iNbCorrections distinct corrections
// (at most 400) and iNbRangeRates range rates (at most 32).
inline ZELN::SZelRtmeOutEpochData RtmeOut(int iNbCorrections, int iNbRangeRates)
{
    ZELN::SZelRtmeOutEpochData stData;
    for (int iIdx = 0; iIdx < iNbCorrections; ++iIdx)
    {
        stData.AddCorrection(static_cast<ZELN::EZelCorrType>(1 + iIdx % 5),
                             ZELN::SZelSatID(ZELN::ZELSATSYSTEM_BEIDOU, static_cast<uint8_t>(1 + iIdx % 40)),
                             static_cast<ZELN::EZelFrequency>(1 + (iIdx / 40) % 10), (iIdx & 1) != 0,
                             iIdx * 0.001);
    }
    for (int iIdx = 0; iIdx < iNbRangeRates; ++iIdx)
    {
        stData.AddRangeRate(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, static_cast<uint8_t>(1 + iIdx)),
                            iIdx * 1.5);
    }
    return stData;
}

// Two output records: the one above and one with a clock and a range rate.
inline ZELN::SZelOutObservations OutObservations()
{
    ZELN::SZelOutObservations stOut;
    stOut.ulValue0 = 0xDEADBEEFu;
    stOut.ulValue1 = 42;
    stOut.vecEpochs.push_back(RtmeOut());
    ZELN::SZelRtmeOutEpochData stSecond;
    stSecond.dClock = -1.0;
    stSecond.AddRangeRate(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_QZSS, 2), 0.5);
    stOut.vecEpochs.push_back(stSecond);
    return stOut;
}

// A station record with every field set: GPS week 2108, 3600.00025 s of week.
inline ZELN::SZelObsInfo ObsInfo()
{
    ZELN::SZelObsInfo stInfo;
    stInfo.stStaticSince.m_lMjdDay = 59000;
    stInfo.stStaticSince.m_dMjdFractMilliseconds = 3600000.25;
    stInfo.ucTimeStatus = 160;
    stInfo.unObsFlags = 0xBEEF;
    stInfo.ucDataFlags = 3;
    stInfo.ucStationType = 2;
    stInfo.ulStationId = 123456;
    return stInfo;
}

inline ZELN::ZelExtObsEpoch ExtObsEpoch()
{
    ZELN::ZelExtObsEpoch stExt;
    stExt.stObsEpoch = ObsEpoch();
    stExt.stObsInfo = ObsInfo();
    return stExt;
}

} // namespace ZelSample

#endif
