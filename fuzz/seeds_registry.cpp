#include "FuzzSeeds.h"
#include "ZelRecordRegistry.h"

#include <sstream>

namespace
{

// For every kind: its sample's image and, where it has one, its text, each
// behind the two selector bytes of the target.
ZelFuzz::SSeedRegistrar s_Registry("fuzz_registry",
                                   []
                                   {
                                       std::vector<std::string> vecSeeds;
                                       const auto& rvecKinds = ZelTools::RecordKinds();
                                       for (size_t ulKind = 0; ulKind < rvecKinds.size(); ++ulKind)
                                       {
                                           const auto pSample = rvecKinds[ulKind].fnSample();
                                           std::vector<unsigned char> vecImage;
                                           pSample->Save(vecImage);
                                           std::string strSeed(1, static_cast<char>(ulKind));
                                           strSeed += '\0';
                                           strSeed.append(vecImage.begin(), vecImage.end());
                                           vecSeeds.push_back(strSeed);
                                           if (pSample->HasText())
                                           {
                                               std::ostringstream oss;
                                               oss.precision(17);
                                               pSample->WriteText(oss);
                                               vecSeeds.push_back(std::string(1, static_cast<char>(ulKind)) +
                                                                  '\1' + oss.str());
                                           }
                                       }
                                       return vecSeeds;
                                   });

} // namespace
