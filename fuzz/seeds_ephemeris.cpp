#include "FuzzSeeds.h"
#include "ZelSamplesEphemeris.h"

#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

namespace
{

using namespace ZELN;

// Selector byte, then the image that the record's own writer gives.
template <class R> std::string Seed(uint8_t ucSelect, const R& rRecord)
{
    std::string strImage(static_cast<size_t>(rRecord.getSize()) + 1, '\0');
    strImage[0] = static_cast<char>(ucSelect);
    rRecord.saveData(reinterpret_cast<unsigned char*>(&strImage[1]), strImage.size() - 1);
    return strImage;
}

// The shared samples of every class, and the default records of two.
ZelFuzz::SSeedRegistrar
    s_Load("fuzz_ephemeris_load",
           []
           {
               return std::vector<std::string>{
                   Seed(0, ZelSample::KeplerBlock()),      Seed(1, ZelSample::GpsEphemeris()),
                   Seed(1, ZELX_SAT_EPHEMERIS()),          Seed(2, ZelSample::QzssEphemeris()),
                   Seed(3, ZelSample::GlonassEphemeris()), Seed(4, ZelSample::GalileoEphemeris()),
                   Seed(4, ZELX_SAT_EPHEMERIS_GALILEO()),  Seed(5, ZelSample::BeiDouEphemeris()),
                   Seed(6, ZelSample::NavicEphemeris()),
               };
           });

} // namespace
