#include "FuzzSeeds.h"

#include "ZelSamplesAlmanacs.h"

#include <ZelTypes/Ext/Gnss/ZelExtAlmanac.h>

namespace
{

// Selector byte, then the image that the record's own writer gives.
template <class R> std::string Seed(uint8_t ucSelect, const R& rRecord)
{
    std::string strImage(static_cast<size_t>(rRecord.getSize()) + 1, '\0');
    strImage[0] = static_cast<char>(ucSelect);
    rRecord.saveData(reinterpret_cast<unsigned char*>(&strImage[1]), strImage.size() - 1);
    return strImage;
}

ZelFuzz::SSeedRegistrar s_Load("fuzz_almanacs_load",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   vecSeeds.push_back(Seed(0, ZelSample::SampleAlmanacGps()));
                                   vecSeeds.push_back(Seed(0, ZELN::ZELX_SAT_ALMANAC()));
                                   vecSeeds.push_back(Seed(1, ZelSample::SampleAlmanacQzss()));
                                   vecSeeds.push_back(Seed(2, ZelSample::SampleAlmanacGalileo()));
                                   vecSeeds.push_back(Seed(3, ZelSample::SampleAlmanacBeiDou()));
                                   vecSeeds.push_back(Seed(4, ZelSample::SampleAlmanacNavic()));
                                   vecSeeds.push_back(Seed(5, ZelSample::SampleAlmanacGlonass()));
                                   return vecSeeds;
                               });

} // namespace
