#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtPosResultTypes.h>

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

// First byte, modulo 13, picks the reader: 0 DOP, 1 signal usage, 2 system
// usage, 3 availability, 4 network, 5 quality, 6 position, 7 result header,
// 8 result ext, 9 meta data, 10 position observation with meta data,
// 11 a network word, 12 a coordinate-kind word.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 13)
    {
    case 0:
        ReadAndWrite<ZELN::SZelDOP>(iss);
        break;
    case 1:
        ReadAndWrite<ZELN::SZelFrqSatUsage>(iss);
        break;
    case 2:
        ReadAndWrite<ZELN::SZelSysSatUsage>(iss);
        break;
    case 3:
        ReadAndWrite<ZELN::SZelGnssAvailability>(iss);
        break;
    case 4:
        ReadAndWrite<ZELN::SZelNrtkInfo>(iss);
        break;
    case 5:
        ReadAndWrite<ZELN::SZelPosQuality>(iss);
        break;
    case 6:
        ReadAndWrite<ZELN::SZelPosition>(iss);
        break;
    case 7:
        ReadAndWrite<ZELN::SZelPosResultHeader>(iss);
        break;
    case 8:
        ReadAndWrite<ZELN::SZelPosResultExt>(iss);
        break;
    case 9:
        ReadAndWrite<ZELN::SZelPosResultMeta>(iss);
        break;
    case 10:
        ReadAndWrite<ZELN::ZelExtGnssPveObs>(iss);
        break;
    case 11:
        (void)ZELN::ToNetTypeWord(ZELN::ReadNetTypeWord(iss));
        break;
    default:
        (void)ZELN::ToCoordTypeWord(ZELN::ReadCoordTypeWord(iss));
        break;
    }
    return 0;
}
