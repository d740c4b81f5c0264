#include "FuzzSeeds.h"
#include "ZelSamplesIds.h"

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

ZelFuzz::SSeedRegistrar
    s_Binary("fuzz_ids_load",
             []
             {
                 return std::vector<std::string>{
                     Prefixed(0, ZelSample::SatG05()),           Prefixed(0, ZelSample::SatC61()),
                     Prefixed(1, ZelSample::FrqTMdIdG2W()),      Prefixed(2, ZelSample::SatFrqIdE11G5()),
                     Prefixed(3, ZelSample::SysFrqIdQzssG3()),   Prefixed(4, ZelSample::SysFrqTMdGroupIdG1()),
                     Prefixed(5, ZelSample::SatFrqTMdGroupId()),
                 };
             });

ZelFuzz::SSeedRegistrar s_Text("fuzz_ids_text",
                               []
                               {
                                   return std::vector<std::string>{
                                       PrefixedText(0, ZelSample::SatG05()),
                                       PrefixedText(1, ZelSample::FrqTMdIdG2W()),
                                       PrefixedText(2, ZelSample::SatFrqIdE11G5()),
                                       PrefixedText(3, ZelSample::SysFrqIdBeidouG4()),
                                       PrefixedText(4, ZelSample::SysFrqTMdGroupId()),
                                       PrefixedText(5, ZelSample::SatFrqTMdGroupId()),
                                       std::string(1, 6) + "C|W|X",
                                       std::string(1, 7) + "G|R|E|C",
                                       std::string(1, 8) + "E5ab",
                                       std::string(1, 9) + "Vrp",
                                       std::string(1, 10) + "Z C",
                                       std::string(1, 11) + "61 3",
                                   };
                               });

} // namespace
