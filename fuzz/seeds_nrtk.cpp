#include "FuzzSeeds.h"
#include "ZelSamplesNrtk.h"

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

// One sample of every record, in the selector order of the targets.
template <class F> std::vector<std::string> Seeds(F fnMake)
{
    return {fnMake('\0', ZelSample::NetAuxStation()),     fnMake('\1', ZelSample::NetMsgHeader()),
            fnMake('\2', ZelSample::NetIonoMsg()),        fnMake('\3', ZelSample::NetGeoMsg()),
            fnMake('\4', ZelSample::NetCombMsg()),        fnMake('\5', ZelSample::MsgGnss17()),
            fnMake('\6', ZelSample::NetCombMsgD()),       fnMake('\7', ZelSample::NetCorrPair()),
            fnMake('\10', ZelSample::NetGridMsg()),       fnMake('\11', ZelSample::NetGridSysMsg()),
            fnMake('\12', ZelSample::NetResidualEntry()), fnMake('\13', ZelSample::NetResidualMsg())};
}

ZelFuzz::SSeedRegistrar s_Binary("fuzz_nrtk_load",
                                 [] { return Seeds([](char c, const auto& r) { return Image(c, r); }); });

ZelFuzz::SSeedRegistrar s_Text("fuzz_nrtk_text",
                               [] { return Seeds([](char c, const auto& r) { return Text(c, r); }); });

} // namespace
