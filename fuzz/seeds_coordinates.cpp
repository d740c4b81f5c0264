#include "FuzzSeeds.h"
#include "ZelSamplesCoordinates.h"

#include <sstream>

namespace
{

// The selector byte, then the record's image.
template <class R> std::string Image(char cSelector, const R& rRecord)
{
    return std::string(1, cSelector) + ZelFuzz::CoreImage(rRecord);
}

// The selector byte, then the record's text.
template <class R> std::string Text(char cSelector, const R& rRecord)
{
    std::ostringstream oss;
    oss << cSelector << rRecord;
    return oss.str();
}

ZelFuzz::SSeedRegistrar s_Binary("fuzz_coordinates_load",
                                 []
                                 {
                                     std::vector<std::string> vecSeeds;
                                     for (const auto& rTriplet : ZelSample::Triplets())
                                     {
                                         vecSeeds.push_back(Image('\0', rTriplet));
                                     }
                                     for (const auto& rSet : ZelSample::CoordinateSets())
                                     {
                                         vecSeeds.push_back(Image('\1', rSet));
                                     }
                                     vecSeeds.push_back(Image('\2', ZelSample::Vector3dLine()));
                                     vecSeeds.push_back(Image('\3', ZelSample::MasterCoordinateLine()));
                                     vecSeeds.push_back(Image('\4', ZelSample::HorizontalOffsetLine()));
                                     vecSeeds.push_back(Image('\5', ZelSample::SatPosVelInOrbit()));
                                     return vecSeeds;
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_coordinates_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   for (const auto& rTriplet : ZelSample::Triplets())
                                   {
                                       vecSeeds.push_back(Text('\0', rTriplet));
                                   }
                                   for (const auto& rSet : ZelSample::CoordinateSets())
                                   {
                                       vecSeeds.push_back(Text('\1', rSet));
                                   }
                                   vecSeeds.push_back(Text('\2', ZelSample::Vector3dLine()));
                                   vecSeeds.push_back(Text('\3', ZelSample::MasterCoordinateLine()));
                                   vecSeeds.push_back(Text('\4', ZelSample::HorizontalOffsetLine()));
                                   vecSeeds.push_back(Text('\5', ZelSample::SatPosVelInOrbit()));
                                   vecSeeds.push_back(std::string(1, '\6') + "LocGeo,");
                                   return vecSeeds;
                               });

} // namespace
