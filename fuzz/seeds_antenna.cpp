#include "FuzzSeeds.h"
#include "ZelSamplesAntenna.h"

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

ZelFuzz::SSeedRegistrar s_Binary("fuzz_antenna_load",
                                 []
                                 {
                                     std::vector<std::string> vecSeeds;
                                     vecSeeds.push_back(Image('\0', ZelSample::AntDescriptor()));
                                     vecSeeds.push_back(Image('\1', ZelSample::ARPOffsetsVertical()));
                                     vecSeeds.push_back(Image('\1', ZelSample::ARPOffsetsSlant()));
                                     vecSeeds.push_back(Image('\2', ZelSample::AntPCCBand0()));
                                     vecSeeds.push_back(
                                         Image('\3', ZELN::SZelAntModelKey(ZELN::ZELSATSYSTEM_GPS, 1)));
                                     vecSeeds.push_back(Image('\4', ZelSample::AntModel()));
                                     vecSeeds.push_back(Image('\5', ZelSample::AntennaInfo()));
                                     vecSeeds.push_back(Image('\6', ZelSample::AntPCOTable()));
                                     vecSeeds.push_back(Image('\7', ZelSample::AntPCVTable()));
                                     return vecSeeds;
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_antenna_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   vecSeeds.push_back(Text('\0', ZelSample::AntDescriptor()));
                                   vecSeeds.push_back(Text('\1', ZelSample::ARPOffsetsVertical()));
                                   vecSeeds.push_back(Text('\1', ZelSample::ARPOffsetsSlant()));
                                   vecSeeds.push_back(Text('\2', ZelSample::AntPCCBand1()));
                                   vecSeeds.push_back(
                                       Text('\3', ZELN::SZelAntModelKey(ZELN::ZELSATSYSTEM_GALILEO, 4)));
                                   vecSeeds.push_back(Text('\4', ZelSample::AntModel()));
                                   vecSeeds.push_back(Text('\5', ZelSample::AntennaInfo()));
                                   vecSeeds.push_back(Text('\6', ZelSample::AntPCOTable()));
                                   vecSeeds.push_back(Text('\7', ZelSample::AntPCVTable()));
                                   return vecSeeds;
                               });

} // namespace
