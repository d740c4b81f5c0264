#include "FuzzSeeds.h"
#include "ZelSamplesSsr.h"

#include <ZelTypes/Core/Common/ZelSSRTypes.h>

#include <sstream>

namespace
{

template <class R> std::string Prefixed(char cSelector, const R& rRecord)
{
    return std::string(1, cSelector) + ZelFuzz::CoreImage(rRecord);
}

template <class R> std::string PrefixedText(char cSelector, const R& rRecord)
{
    std::ostringstream oss;
    oss << cSelector << rRecord;
    return oss.str();
}

ZelFuzz::SSeedRegistrar s_Binary("fuzz_ssr_load",
                                 []
                                 {
                                     return std::vector<std::string>{
                                         Prefixed(0, ZelSample::SsrOrbitMsg()),
                                         Prefixed(1, ZelSample::SsrClockMsg()),
                                         Prefixed(2, ZelSample::SsrHighRateClockMsg()),
                                         Prefixed(3, ZelSample::SsrCodeBiasMsg()),
                                         Prefixed(4, ZelSample::SsrPhaseBiasMsg()),
                                         Prefixed(5, ZelSample::SsrUraMsg()),
                                         Prefixed(6, ZelSample::SsrSignalMsg()),
                                         Prefixed(7, ZelSample::SsrPcvMsg()),
                                         Prefixed(7, ZELN::SSRPCVMsgT()),
                                         Prefixed(0, ZELN::SSROrbitCorrMsgT()),
                                     };
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_ssr_text",
                               []
                               {
                                   return std::vector<std::string>{
                                       PrefixedText(0, ZelSample::SsrOrbitMsg()),
                                       PrefixedText(1, ZelSample::SsrClockMsg()),
                                       PrefixedText(2, ZelSample::SsrHighRateClockMsg()),
                                       PrefixedText(3, ZelSample::SsrCodeBiasMsg()),
                                       PrefixedText(4, ZelSample::SsrPhaseBiasMsg()),
                                       PrefixedText(5, ZelSample::SsrUraMsg()),
                                       PrefixedText(6, ZelSample::SsrSignalMsg()),
                                       PrefixedText(7, ZelSample::SsrPcvMsg()),
                                       PrefixedText(8, ZelSample::SsrHeader()),
                                       PrefixedText(9, ZelSample::SsrOrbitCorr()),
                                       PrefixedText(10, ZelSample::SsrClockCorr()),
                                       PrefixedText(11, ZelSample::SsrHighRateClock()),
                                       PrefixedText(12, ZelSample::SsrUra()),
                                       PrefixedText(13, ZelSample::SsrBias()),
                                       PrefixedText(14, ZelSample::SsrPhaseBias()),
                                       PrefixedText(15, ZelSample::SsrPcv()),
                                   };
                               });

} // namespace
