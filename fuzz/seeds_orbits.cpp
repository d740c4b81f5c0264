#include "FuzzSeeds.h"

#include "ZelSamplesOrbits.h"

#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphStates.h>
#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>

#include <sstream>

namespace
{

// Selector byte, then an Ext record's image.
template <class R> std::string ExtSeed(char cSelect, const R& rRecord)
{
    std::string strImage(static_cast<size_t>(rRecord.getSize()) + 1, '\0');
    strImage[0] = cSelect;
    rRecord.saveData(reinterpret_cast<unsigned char*>(&strImage[1]), strImage.size() - 1);
    return strImage;
}

// Selector byte, then the record's text.
template <class R> std::string Text(char cSelect, const R& rRecord)
{
    std::ostringstream oss;
    oss << cSelect << rRecord;
    return oss.str();
}

ZelFuzz::SSeedRegistrar
    s_Load("fuzz_orbits_load",
           []
           {
               std::vector<std::string> vecSeeds;
               vecSeeds.push_back('\0' + ZelFuzz::CoreImage(ZelSample::SampleOrbPoly()));
               vecSeeds.push_back('\0' + ZelFuzz::CoreImage(ZelSample::SampleOrbPolyGalileo()));
               vecSeeds.push_back('\1' + ZelFuzz::CoreImage(ZelSample::SampleOrbitSatTable()));
               vecSeeds.push_back('\2' + ZelFuzz::CoreImage(ZelSample::SampleFrameTransform()));
               vecSeeds.push_back(ExtSeed('\3', ZelSample::SampleStateEntry(5)));
               vecSeeds.push_back(ExtSeed('\4', ZelSample::SampleStateEpoch(900.0)));
               vecSeeds.push_back(ExtSeed('\5', ZelSample::SampleStateTable()));
               vecSeeds.push_back(ExtSeed('\5', ZELN::ZELX_SAT_STATE_TABLE()));
               return vecSeeds;
           });

ZelFuzz::SSeedRegistrar s_Text("fuzz_orbits_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   vecSeeds.push_back(Text('\0', ZelSample::SampleOrbPoly()));
                                   vecSeeds.push_back(Text('\0', ZelSample::SampleOrbPolyGalileo()));
                                   vecSeeds.push_back(Text('\0', ZELN::SZelOrbPoly()));
                                   vecSeeds.push_back(Text('\1', ZelSample::SampleOrbitSatTable()));
                                   vecSeeds.push_back(Text('\2', ZelSample::SampleFrameTransform()));
                                   return vecSeeds;
                               });

} // namespace
