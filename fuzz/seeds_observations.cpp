#include "FuzzSeeds.h"

#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <iomanip>
#include <sstream>

namespace
{

using namespace ZELN;

SZelSatObservation SampleSat(EZelSatSystem eSys, uint8_t uiNumber, uint8_t uiNumFreq)
{
    SZelSatObservation stSat;
    stSat.stSatId = SZelSatID(eSys, uiNumber);
    stSat.ulIOD = 74565;
    stSat.ucSatFlags = 0x1f;
    stSat.ucChannel = uiNumber;
    stSat.uiNumFreq = uiNumFreq;
    for (uint8_t uiIdx = 0; uiIdx < uiNumFreq; ++uiIdx)
    {
        SZelFreqObservation& rstObs = stSat.astFreqObs[uiIdx];
        rstObs.ulObsFlags = 0x102F;
        rstObs.eFrequency = static_cast<EZelFrequency>(1 + uiIdx);
        rstObs.eTrackMode = static_cast<EZelTrackMode>(uiIdx * 2);
        rstObs.dPhase = 1.1e8 + uiIdx;
        rstObs.dCode = 2.2e7 - uiIdx;
        rstObs.dDopplerM = -1234.5;
        rstObs.unCNo = 450;
        rstObs.nTimeOffsetRTCM9 = -3;
        rstObs.fVelocity = 0.5f;
    }
    return stSat;
}

SZelObservationEpoch SampleEpoch()
{
    SZelObservationEpoch stEpoch;
    stEpoch.stZelObservationEpochHeader.stTime.SetGpsTimeMs(2300, 345600000.0);
    stEpoch.stZelObservationEpochHeader.ucNumSats = 3;
    stEpoch.vecSatObs.push_back(SampleSat(ZELSATSYSTEM_GPS, 5, 2));
    stEpoch.vecSatObs.push_back(SampleSat(ZELSATSYSTEM_GALILEO, 11, 6));
    stEpoch.vecSatObs.push_back(SampleSat(ZELSATSYSTEM_BEIDOU, 38, 1));
    return stEpoch;
}

SZelRtmeOutEpochData SampleOutput()
{
    SZelRtmeOutEpochData stData;
    stData.stObs = SampleEpoch();
    stData.alStationsUsed[0] = 3;
    stData.dClock = 1e-7;
    stData.AddCorrection(ZELCORRTYPE_PCV, SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L1CA, false, 0.25);
    stData.AddCorrection(ZELCORRTYPE_POF, SZelSatID(ZELSATSYSTEM_GALILEO, 11), ZELFREQUENCY_E6, true, -0.5);
    stData.AddRangeRate(SZelSatID(ZELSATSYSTEM_GPS, 5), 100.5);
    return stData;
}

SZelObsInfo SampleInfo()
{
    SZelObsInfo stInfo;
    stInfo.stStaticSince.SetGpsTime(2300, 1000.5);
    stInfo.ucTimeStatus = 160;
    stInfo.unObsFlags = 0xBEEF;
    stInfo.ulStationId = 4711;
    return stInfo;
}

ZelExtObsEpoch SampleExt()
{
    ZelExtObsEpoch stExt;
    stExt.stObsEpoch = SampleEpoch();
    stExt.stObsInfo = SampleInfo();
    return stExt;
}

template <class R> std::string Prefixed(char cSelector, const R& rRecord)
{
    return std::string(1, cSelector) + ZelFuzz::CoreImage(rRecord);
}

template <class R> std::string PrefixedText(char cSelector, const R& rRecord)
{
    std::ostringstream oss;
    oss << cSelector << std::setprecision(17) << rRecord;
    return oss.str();
}

ZelFuzz::SSeedRegistrar s_Binary("fuzz_observations_load",
                                 []
                                 {
                                     SZelOutObservations stOut;
                                     stOut.ulValue0 = 1;
                                     stOut.vecEpochs.push_back(SampleOutput());
                                     stOut.vecEpochs.push_back(SZelRtmeOutEpochData());
                                     return std::vector<std::string>{
                                         Prefixed(0, SampleSat(ZELSATSYSTEM_GLONASS, 7, 3)),
                                         Prefixed(0, SZelSatObservation()),
                                         Prefixed(1, SampleEpoch().stZelObservationEpochHeader),
                                         Prefixed(2, SampleEpoch()),
                                         Prefixed(2, SZelObservationEpoch()),
                                         Prefixed(3, SampleOutput()),
                                         Prefixed(4, stOut),
                                         Prefixed(5, SampleInfo()),
                                         Prefixed(6, SampleExt()),
                                     };
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_observations_text",
                               []
                               {
                                   return std::vector<std::string>{
                                       PrefixedText(0, SampleSat(ZELSATSYSTEM_GPS, 1, 1).astFreqObs[0]),
                                       PrefixedText(1, SampleSat(ZELSATSYSTEM_QZSS, 2, 4)),
                                       PrefixedText(2, SampleEpoch().stZelObservationEpochHeader),
                                       PrefixedText(3, SampleEpoch()),
                                       PrefixedText(4, SZelCorrectionKey(ZELCORRTYPE_VAR,
                                                                         SZelSatID(ZELSATSYSTEM_GPS, 5),
                                                                         ZELFREQUENCY_L2P, true)),
                                       PrefixedText(5, ZELCORRTYPE_PCB),
                                       PrefixedText(6, SampleOutput()),
                                       PrefixedText(7, SampleInfo()),
                                       PrefixedText(8, SampleExt()),
                                   };
                               });

} // namespace
