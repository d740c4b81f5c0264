// Text readers of the orbit records. The first byte, modulo 3, picks: 0
// orbit polynomial, 1 satellite status table, 2 frame transformation.
#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>
#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>

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
    (void)(stRecord == stRecord);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 3)
    {
    case 0:
        ReadAndWrite<ZELN::SZelOrbPoly>(iss);
        break;
    case 1:
        ReadAndWrite<ZELN::ZELX_ORBIT_SAT_TABLE>(iss);
        break;
    default:
        ReadAndWrite<ZELN::ZELX_ORBIT_FRAME_TRANSFORM>(iss);
        break;
    }
    return 0;
}
