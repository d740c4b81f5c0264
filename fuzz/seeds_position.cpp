#include "FuzzSeeds.h"
#include "ZelSamplesPosition.h"

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

// The same selectors in both targets, for the records both have.
template <class F> std::vector<std::string> Seeds(F fnSeed)
{
    return {fnSeed('\0', ZelSample::Dop()),           fnSeed('\1', ZelSample::FrqSatUsage()),
            fnSeed('\2', ZelSample::SysSatUsage()),   fnSeed('\3', ZelSample::GnssAvailability()),
            fnSeed('\4', ZelSample::NrtkInfo()),      fnSeed('\5', ZelSample::PosQuality()),
            fnSeed('\6', ZelSample::Position()),      fnSeed('\7', ZelSample::PosResultHeader()),
            fnSeed('\10', ZelSample::PosResultExt()), fnSeed('\11', ZelSample::PosResultMeta()),
            fnSeed('\12', ZelSample::GnssPveObs()),   fnSeed('\11', ZELN::SZelPosResultMeta())};
}

struct SImageSeed
{
    template <class R> std::string operator()(char cSelector, const R& rRecord) const
    {
        return Image(cSelector, rRecord);
    }
};

struct STextSeed
{
    template <class R> std::string operator()(char cSelector, const R& rRecord) const
    {
        return Text(cSelector, rRecord);
    }
};

ZelFuzz::SSeedRegistrar s_Binary("fuzz_position_load", [] { return Seeds(SImageSeed()); });

ZelFuzz::SSeedRegistrar s_Text("fuzz_position_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds = Seeds(STextSeed());
                                   vecSeeds.push_back(std::string(1, '\13') + "iTEV,");
                                   vecSeeds.push_back(std::string(1, '\14') + "IProdRov,");
                                   return vecSeeds;
                               });

} // namespace
