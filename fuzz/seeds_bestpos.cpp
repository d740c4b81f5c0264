#include "FuzzSeeds.h"
#include "ZelSamplesBestPos.h"

#include <sstream>

namespace
{

ZelFuzz::SSeedRegistrar s_Binary("fuzz_bestpos_load",
                                 []
                                 {
                                     return std::vector<std::string>{
                                         ZelFuzz::CoreImage(ZelSample::BestPos()),
                                         ZelFuzz::CoreImage(ZELN::SZelNovAtelBestPos())};
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_bestpos_text",
                               []
                               {
                                   std::ostringstream oss;
                                   oss << ZelSample::BestPos();
                                   std::ostringstream ossDefault;
                                   ossDefault << ZELN::SZelNovAtelBestPos();
                                   return std::vector<std::string>{oss.str(), ossDefault.str()};
                               });

} // namespace
