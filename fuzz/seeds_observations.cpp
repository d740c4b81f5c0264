#include "FuzzSeeds.h"
#include "ZelSamplesObservations.h"

#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <iomanip>
#include <sstream>

namespace
{

using namespace ZELN;

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
                                     return std::vector<std::string>{
                                         Prefixed(0, ZelSample::SatObs(ZELSATSYSTEM_GLONASS, 7, 3)),
                                         Prefixed(0, SZelSatObservation()),
                                         Prefixed(1, ZelSample::EpochHeader()),
                                         Prefixed(2, ZelSample::ObsEpoch()),
                                         Prefixed(2, SZelObservationEpoch()),
                                         Prefixed(3, ZelSample::RtmeOut()),
                                         Prefixed(4, ZelSample::OutObservations()),
                                         Prefixed(5, ZelSample::ObsInfo()),
                                         Prefixed(6, ZelSample::ExtObsEpoch()),
                                     };
                                 });

ZelFuzz::SSeedRegistrar
    s_Text("fuzz_observations_text",
           []
           {
               return std::vector<std::string>{
                   PrefixedText(0, ZelSample::SatObs(ZELSATSYSTEM_GPS, 1, 1).astFreqObs[0]),
                   PrefixedText(1, ZelSample::SatObs(ZELSATSYSTEM_QZSS, 2, 4)),
                   PrefixedText(2, ZelSample::EpochHeader()),
                   PrefixedText(3, ZelSample::ObsEpoch()),
                   PrefixedText(4, SZelCorrectionKey(ZELCORRTYPE_VAR, SZelSatID(ZELSATSYSTEM_GPS, 5),
                                                     ZELFREQUENCY_L2P, true)),
                   PrefixedText(5, ZELCORRTYPE_PCB),
                   PrefixedText(6, ZelSample::RtmeOut()),
                   PrefixedText(7, ZelSample::ObsInfo()),
                   PrefixedText(8, ZelSample::ExtObsEpoch()),
               };
           });

} // namespace
