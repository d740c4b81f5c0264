#include "FuzzSeeds.h"

#include "ZelSamplesIonoUtc.h"

#include <ZelTypes/Core/Common/ZelTypesKlob.h>
#include <ZelTypes/Platform/OmtTime.h>

#include <cstring>
#include <sstream>

namespace
{

ZelFuzz::SSeedRegistrar s_Load("fuzz_iono_load",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   vecSeeds.push_back(ZelFuzz::CoreImage(ZelSample::SampleKlobuchar()));
                                   vecSeeds.push_back(ZelFuzz::CoreImage(ZELN::SZelKlobucharCoefficients()));
                                   vecSeeds.push_back(
                                       ZelFuzz::CoreImage(ZelSample::SampleIonoBeiDou().stKlobuchar));
                                   return vecSeeds;
                               });

ZelFuzz::SSeedRegistrar s_Text("fuzz_iono_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   std::ostringstream oss;
                                   oss << '\0' << ZELN::ZELIONREGIONCODE_WIDE_AREA << ' '
                                       << ZELN::ZELIONREGIONCODE_JAPAN;
                                   vecSeeds.push_back(oss.str());
                                   vecSeeds.push_back(std::string("\1J"));
                                   vecSeeds.push_back(std::string("\1?"));
                                   return vecSeeds;
                               });

// The built-in list, and the same with a leap second announced, as the
// fuzz target reads them: 8 bytes an event, then a time system.
std::string EventBytes(const TYR::TIM::LeapSecondEvents& rvecEvents, char cTimeSystem)
{
    std::string str;
    for (const TYR::TIM::SLeapSecondEvent& rEvent : rvecEvents)
    {
        char acBytes[8];
        std::memcpy(acBytes, &rEvent.lUtcMjdDay, 4);
        std::memcpy(acBytes + 4, &rEvent.lGpsMinusUtc, 4);
        str.append(acBytes, 8);
    }
    str.push_back(cTimeSystem);
    return str;
}

ZelFuzz::SSeedRegistrar s_Set("fuzz_leapseconds_set",
                              []
                              {
                                  std::vector<std::string> vecSeeds;
                                  TYR::TIM::LeapSecondEvents vecEvents =
                                      TYR::TIM::GetEmbeddedLeapSecondEvents();
                                  vecSeeds.push_back(EventBytes(vecEvents, 0));
                                  vecSeeds.push_back(EventBytes(vecEvents, 8));
                                  vecEvents.push_back(TYR::TIM::SLeapSecondEvent(84417, 19));
                                  vecSeeds.push_back(EventBytes(vecEvents, 8));
                                  vecSeeds.push_back(EventBytes(TYR::TIM::LeapSecondEvents(), 0));
                                  return vecSeeds;
                              });

} // namespace
