#include "FuzzSeeds.h"
#include "ZelSamplesIds.h"

#include <sstream>

namespace
{

ZelFuzz::SSeedRegistrar s_Binary("fuzz_glonass_frequencies_load",
                                 []
                                 {
                                     std::vector<std::string> vecSeeds;
                                     for (const auto& rChannels : ZelSample::GlonassChannelSets())
                                     {
                                         vecSeeds.push_back(ZelFuzz::CoreImage(rChannels));
                                     }
                                     return vecSeeds;
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_glonass_frequencies_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   for (const auto& rChannels : ZelSample::GlonassChannelSets())
                                   {
                                       std::ostringstream oss;
                                       oss << rChannels;
                                       vecSeeds.push_back(oss.str());
                                   }
                                   return vecSeeds;
                               });

} // namespace
