#include "FuzzSeeds.h"

#include <ZelTypes/Core/Common/mjdTime.h>

#include <sstream>

namespace
{

std::vector<ZELN::SMjdTime> SampleTimes()
{
    return {ZELN::SMjdTime(), ZELN::SMjdTime(2024, 2, 29, 12, 30, 15.25), ZELN::SMjdTime(2345u, 345600.5),
            ZELN::SMjdTime(59000.75, ZELN::MJDACC_EXACT)};
}

ZelFuzz::SSeedRegistrar s_Binary("fuzz_time_load",
                                 []
                                 {
                                     std::vector<std::string> vecSeeds;
                                     for (const auto& rTime : SampleTimes())
                                     {
                                         vecSeeds.push_back(ZelFuzz::CoreImage(rTime));
                                     }
                                     return vecSeeds;
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_time_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   for (const auto& rTime : SampleTimes())
                                   {
                                       for (int iForm = 3; iForm <= 4; ++iForm)
                                       {
                                           std::ostringstream oss;
                                           oss << static_cast<char>('0' + iForm);
                                           rTime.WriteText(oss, static_cast<ZELN::EMjdTimeTextForm>(iForm));
                                           vecSeeds.push_back(oss.str());
                                       }
                                   }
                                   return vecSeeds;
                               });

} // namespace
