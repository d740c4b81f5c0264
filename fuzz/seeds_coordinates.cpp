#include "FuzzSeeds.h"

#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <sstream>

namespace
{

std::vector<ZELN::SZelCoordinateTriplet> SampleTriplets()
{
    using ZELN::SZelCoordinateTriplet;
    return {
        SZelCoordinateTriplet(),
        SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_CARTESIAN, 4517590.8788, 123456.789, 4487348.4087),
        SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.8, -1.2, 250.0),
        SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_LOCGEO, 0.1, 0.2, -30.0),
        SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 0.0, 6356752.3142)};
}

std::vector<ZELN::SZelCoordinateSet> SampleSets()
{
    std::vector<ZELN::SZelCoordinateSet> vec(1);
    for (const auto& rTriplet : SampleTriplets())
    {
        ZELN::SZelCoordinateSet st;
        st.Set(rTriplet);
        vec.push_back(st);
    }
    return vec;
}

ZELN::SZelMasterCoordinate SampleMaster()
{
    ZELN::SZelMasterCoordinate st;
    st.eCooSys = ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC;
    st.usStnId = 4095;
    st.stMstCoo = ZELN::SZelVector3d(0.5, 0.25, 100.0);
    return st;
}

ZELN::SZelSatPosVel SampleSat()
{
    ZELN::SZelSatPosVel st;
    st.adPos[0] = 15000000.0;
    st.adPos[1] = 5000000.0;
    st.adPos[2] = 20000000.0;
    st.adVel[0] = -1500.0;
    st.adVel[1] = 2800.0;
    st.adVel[2] = 600.0;
    st.dRange = 21000000.0;
    st.dRangeRate = -300.0;
    return st;
}

// The selector byte, then the record's text.
template <class R> std::string Text(char cSelector, const R& rRecord)
{
    std::ostringstream oss;
    oss << cSelector << rRecord;
    return oss.str();
}

ZelFuzz::SSeedRegistrar s_Binary(
    "fuzz_coordinates_load",
    []
    {
        std::vector<std::string> vecSeeds;
        for (const auto& rTriplet : SampleTriplets())
        {
            vecSeeds.push_back(std::string(1, '\0') + ZelFuzz::CoreImage(rTriplet));
        }
        for (const auto& rSet : SampleSets())
        {
            vecSeeds.push_back(std::string(1, '\1') + ZelFuzz::CoreImage(rSet));
        }
        vecSeeds.push_back(std::string(1, '\2') + ZelFuzz::CoreImage(ZELN::SZelVector3d(1.5, -2.0, 3.25)));
        vecSeeds.push_back(std::string(1, '\3') + ZelFuzz::CoreImage(SampleMaster()));
        vecSeeds.push_back(std::string(1, '\4') +
                           ZelFuzz::CoreImage(ZELN::SZelHorizontalOffset(0.25f, -1.5f)));
        vecSeeds.push_back(std::string(1, '\5') + ZelFuzz::CoreImage(SampleSat()));
        return vecSeeds;
    });

ZelFuzz::SSeedRegistrar s_Text("fuzz_coordinates_text",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   for (const auto& rTriplet : SampleTriplets())
                                   {
                                       vecSeeds.push_back(Text('\0', rTriplet));
                                   }
                                   for (const auto& rSet : SampleSets())
                                   {
                                       vecSeeds.push_back(Text('\1', rSet));
                                   }
                                   vecSeeds.push_back(Text('\2', ZELN::SZelVector3d(1.5, -2.0, 3.25)));
                                   vecSeeds.push_back(Text('\3', SampleMaster()));
                                   vecSeeds.push_back(Text('\4', ZELN::SZelHorizontalOffset(0.25f, -1.5f)));
                                   vecSeeds.push_back(Text('\5', SampleSat()));
                                   vecSeeds.push_back(std::string(1, '\6') + "LocGeo,");
                                   return vecSeeds;
                               });

} // namespace
