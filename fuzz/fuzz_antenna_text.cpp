#include <ZelTypes/Ext/Gnss/ZelExtAntTypes.h>

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

// First byte, modulo 8, picks the reader: 0 descriptor, 1 set-up offsets,
// 2 calibration, 3 model key, 4 model, 5 antenna, 6 offset table,
// 7 variation table. An antenna read is then moved along its levels.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 8)
    {
    case 0:
        ReadAndWrite<ZELN::SZelAntDescriptor>(iss);
        break;
    case 1:
        ReadAndWrite<ZELN::SZelARPOffsets>(iss);
        break;
    case 2:
        ReadAndWrite<ZELN::SZelAntPCC>(iss);
        break;
    case 3:
        ReadAndWrite<ZELN::SZelAntModelKey>(iss);
        break;
    case 4:
        ReadAndWrite<ZELN::SZelAntModel>(iss);
        break;
    case 5:
    {
        ZELN::SZelAntennaInfo st;
        iss >> st;
        std::ostringstream oss;
        oss << st;
        ZELN::SZelGeoCoords stCoords(0.5, 0.25, 10.0);
        (void)ZELN::ConvertRefLevel(ZELN::ZELANTREFLEVEL_MARK, ZELN::ZELANTREFLEVEL_PC_GPS_B1, st, stCoords);
        break;
    }
    case 6:
        ReadAndWrite<ZELN::SZelAntPCOTable>(iss);
        break;
    default:
        ReadAndWrite<ZELN::SZelAntPCVTable>(iss);
        break;
    }
    return 0;
}
