// Text readers of the processing configuration. The first byte, modulo 17,
// picks the reader; the rest is the text. Reading, then writing what was
// read, must not crash on any text.
#include <ZelTypes/Ext/Gnss/ZelExtCfgTypes.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

namespace
{

template <class R> void ReadAndWrite(std::istream& is)
{
    R stRecord;
    is >> stRecord;
    std::ostringstream oss;
    oss << stRecord;
}

} // namespace

// 0 dilution limit, 1 satellite limit, 2 preprocessing, 3 general, 4
// differential, 5 kinematic, 6 older kinematic, 7 main, 8 older main, 9
// network cell, 10 reference, 11 network, 12 station, 13 a network-mode
// word, 14 receiver antenna, 15 handle biases, 16 handle coordinates.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 17)
    {
    case 0:
        ReadAndWrite<SZelDopLimit>(iss);
        break;
    case 1:
        ReadAndWrite<SZelSatLimit>(iss);
        break;
    case 2:
        ReadAndWrite<SZelPrePrcCfg>(iss);
        break;
    case 3:
        ReadAndWrite<SZelGenCfg>(iss);
        break;
    case 4:
        ReadAndWrite<SZelDiffCfg>(iss);
        break;
    case 5:
        ReadAndWrite<SZelRtkCfg>(iss);
        break;
    case 6:
        ReadAndWrite<SZelRtkCfgV1>(iss);
        break;
    case 7:
        ReadAndWrite<SZelProcCfg>(iss);
        break;
    case 8:
        ReadAndWrite<SZelProcCfgV1>(iss);
        break;
    case 9:
        ReadAndWrite<SZelMacCfg>(iss);
        break;
    case 10:
        ReadAndWrite<SZelRefCfg>(iss);
        break;
    case 11:
        ReadAndWrite<SZelNetCfg>(iss);
        break;
    case 12:
        ReadAndWrite<SZelStationCfg>(iss);
        break;
    case 13:
        (void)ToNetModeWord(ReadNetModeWord(iss));
        break;
    case 14:
        ReadAndWrite<SZelRecAntCfg>(iss);
        break;
    case 15:
        ReadAndWrite<SZelRtHandleBias>(iss);
        break;
    default:
        ReadAndWrite<SZelRtHandleCoords>(iss);
        break;
    }
    return 0;
}
