#include "FuzzSeeds.h"

#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <sstream>

namespace
{

using namespace ZELN;

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

const SZelSatID c_stG05(ZELSATSYSTEM_GPS, 5);
const SZelSatID c_stC61(ZELSATSYSTEM_BEIDOU, 61);
const SZelSatID c_stE11(ZELSATSYSTEM_GALILEO, 11);

ZelFuzz::SSeedRegistrar
    s_Binary("fuzz_ids_load",
             []
             {
                 return std::vector<std::string>{
                     Prefixed(0, c_stG05),
                     Prefixed(0, c_stC61),
                     Prefixed(1, SZelFrqTMdID(ZELFREQUENCY_GROUP_2, ZELTRACKMODE_W)),
                     Prefixed(2, SZelSatFrqID(c_stE11, ZELFREQUENCY_GROUP_5)),
                     Prefixed(3, SZelSysFrqID(ZELSATSYSTEM_QZSS, ZELFREQUENCY_GROUP_3)),
                     Prefixed(4, SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, 0x804u)),
                     Prefixed(5, SZelSatFrqTMdGroupID(c_stC61, ZELFREQUENCY_GROUP_4, ZELTRACKMODE_P)),
                 };
             });

ZelFuzz::SSeedRegistrar
    s_Text("fuzz_ids_text",
           []
           {
               return std::vector<std::string>{
                   PrefixedText(0, c_stG05),
                   PrefixedText(1, SZelFrqTMdID(ZELFREQUENCY_GROUP_2, ZELTRACKMODE_W)),
                   PrefixedText(2, SZelSatFrqID(c_stE11, ZELFREQUENCY_GROUP_5)),
                   PrefixedText(3, SZelSysFrqID(ZELSATSYSTEM_BEIDOU, ZELFREQUENCY_GROUP_4)),
                   PrefixedText(4, SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_2, 0x804u)),
                   PrefixedText(5, SZelSatFrqTMdGroupID(c_stC61, ZELFREQUENCY_GROUP_4, ZELTRACKMODE_P)),
                   std::string(1, 6) + "C|W|X",
                   std::string(1, 7) + "G|R|E|C",
                   std::string(1, 8) + "E5ab",
                   std::string(1, 9) + "Vrp",
                   std::string(1, 10) + "Z C",
                   std::string(1, 11) + "61 3",
               };
           });

} // namespace
