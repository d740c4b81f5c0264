#include "FuzzSeeds.h"
#include "ZelSamplesConfig.h"

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

// The sample and the default of every record, by the selectors of the two targets.
template <class F> std::vector<std::string> Seeds(F fnMake, bool bText)
{
    std::vector<std::string> vecSeeds;
    vecSeeds.push_back(fnMake('\0', ZelSample::DopLimit()));
    vecSeeds.push_back(fnMake('\1', ZelSample::SatLimit()));
    vecSeeds.push_back(fnMake('\2', ZelSample::PrePrcCfg()));
    vecSeeds.push_back(fnMake('\3', ZelSample::GenCfg()));
    vecSeeds.push_back(fnMake('\3', ZELN::SZelGenCfg()));
    vecSeeds.push_back(fnMake('\4', ZelSample::DiffCfg()));
    vecSeeds.push_back(fnMake('\5', ZelSample::RtkCfg()));
    vecSeeds.push_back(fnMake('\6', ZelSample::RtkCfgV1()));
    vecSeeds.push_back(fnMake('\7', ZelSample::ProcCfg()));
    vecSeeds.push_back(fnMake('\7', ZELN::SZelProcCfg()));
    vecSeeds.push_back(fnMake('\10', ZelSample::ProcCfgV1()));
    vecSeeds.push_back(fnMake('\11', ZelSample::MacCfg()));
    vecSeeds.push_back(fnMake('\12', ZelSample::RefCfg()));
    vecSeeds.push_back(fnMake('\13', ZelSample::NetCfg()));
    vecSeeds.push_back(fnMake('\13', ZELN::SZelNetCfg()));
    vecSeeds.push_back(fnMake('\14', ZelSample::StationCfg()));
    vecSeeds.push_back(fnMake('\16', ZelSample::RecAntCfg()));
    vecSeeds.push_back(fnMake('\16', ZELN::SZelRecAntCfg()));
    vecSeeds.push_back(fnMake('\17', ZelSample::RtHandleBias()));
    vecSeeds.push_back(fnMake('\20', ZelSample::RtHandleCoords()));
    if (bText)
    {
        vecSeeds.push_back(std::string(1, '\15') + "SSR,");
    }
    return vecSeeds;
}

ZelFuzz::SSeedRegistrar s_Binary("fuzz_config_load",
                                 []
                                 {
                                     std::vector<std::string> vecSeeds =
                                         Seeds([](char c, const auto& r) { return Image(c, r); }, false);
                                     vecSeeds.push_back(Image('\15', ZelSample::RtHandle()));
                                     return vecSeeds;
                                 });

ZelFuzz::SSeedRegistrar s_Text("fuzz_config_text",
                               [] { return Seeds([](char c, const auto& r) { return Text(c, r); }, true); });

} // namespace
