#include "FuzzSeeds.h"

#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <sstream>

namespace
{

std::vector<ZELN::ZelGlonassFrequencies> SampleChannels()
{
    std::vector<ZELN::ZelGlonassFrequencies> vec(3);
    for (int iSlot = 0; iSlot < 24; ++iSlot)
    {
        vec[1].acChannels[iSlot] = static_cast<int8_t>(iSlot % 21 - 7); // every valid channel
    }
    vec[2].acChannels[0] = 1;
    vec[2].acChannels[23] = -4;
    return vec;
}

ZelFuzz::SSeedRegistrar s_Binary("fuzz_glonass_frequencies_load",
                                 []
                                 {
                                     std::vector<std::string> vecSeeds;
                                     for (const auto& rChannels : SampleChannels())
                                     {
                                         vecSeeds.push_back(ZelFuzz::CoreImage(rChannels));
                                     }
                                     return vecSeeds;
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_glonass_frequencies_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   for (const auto& rChannels : SampleChannels())
                                   {
                                       std::ostringstream oss;
                                       oss << rChannels;
                                       vecSeeds.push_back(oss.str());
                                   }
                                   return vecSeeds;
                               });

} // namespace
