#include <ZelTypes/Ext/Gnss/ZelExtAuxTypes.h>

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

// First byte, modulo 12, picks the reader, in the order of fuzz_nrtk_load.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 12)
    {
    case 0:
        ReadAndWrite<SZelNetAuxStation>(iss);
        break;
    case 1:
        ReadAndWrite<SZelNetMsgHeader>(iss);
        break;
    case 2:
        ReadAndWrite<SZelNetIonoMsg>(iss);
        break;
    case 3:
        ReadAndWrite<SZelNetGeoMsg>(iss);
        break;
    case 4:
        ReadAndWrite<SZelNetCombMsg>(iss);
        break;
    case 5:
        ReadAndWrite<MsgGNSS17T>(iss);
        break;
    case 6:
        ReadAndWrite<SZelNetCombMsgD>(iss);
        break;
    case 7:
        ReadAndWrite<SZelNetCorrPair>(iss);
        break;
    case 8:
        ReadAndWrite<SZelNetGridMsg>(iss);
        break;
    case 9:
        ReadAndWrite<SZelNetGridSysMsg>(iss);
        break;
    case 10:
        ReadAndWrite<SZelNetResidualEntry>(iss);
        break;
    default:
        ReadAndWrite<SZelNetResidualMsg>(iss);
        break;
    }
    return 0;
}
