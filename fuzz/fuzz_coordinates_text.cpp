#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

namespace
{

// Read, then write what was read: neither may crash on any text.
template <class R> void ReadAndWrite(std::istream& is)
{
    R stRecord;
    is >> stRecord;
    std::ostringstream oss;
    oss << stRecord;
}

} // namespace

// First byte, modulo 7, picks the reader: 0 triplet, 1 coordinate set, 2 vector,
// 3 master coordinate, 4 horizontal offset, 5 satellite position,
// 6 a coordinate-system word.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 7)
    {
    case 0:
        ReadAndWrite<ZELN::SZelCoordinateTriplet>(iss);
        break;
    case 1:
        ReadAndWrite<ZELN::SZelCoordinateSet>(iss);
        break;
    case 2:
        ReadAndWrite<ZELN::SZelVector3d>(iss);
        break;
    case 3:
        ReadAndWrite<ZELN::SZelMasterCoordinate>(iss);
        break;
    case 4:
        ReadAndWrite<ZELN::SZelHorizontalOffset>(iss);
        break;
    case 5:
        ReadAndWrite<ZELN::SZelSatPosVel>(iss);
        break;
    default:
        (void)ZELN::ToCoordinateSystemWord(ZELN::ReadCoordinateSystemWord(iss));
        break;
    }
    return 0;
}
