#include "FuzzSeeds.h"
#include "ZelSamplesTime.h"

#include <sstream>

namespace
{

ZelFuzz::SSeedRegistrar s_Binary("fuzz_time_load",
                                 []
                                 {
                                     std::vector<std::string> vecSeeds;
                                     for (const auto& rTime : ZelSample::Times())
                                     {
                                         vecSeeds.push_back(ZelFuzz::CoreImage(rTime));
                                     }
                                     return vecSeeds;
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_time_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   for (const auto& rTime : ZelSample::Times())
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
