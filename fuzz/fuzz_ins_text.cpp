// Text readers of the inertial records. The first byte, modulo 23, picks
// the reader; the rest is the text. Reading and writing what was read may
// not crash on any text.
#include <ZelTypes/Ext/Ins/ZelExtInsCfgTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>

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

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 23)
    {
    case 0:
        ReadAndWrite<CZelExtVector3d>(iss);
        break;
    case 1:
        ReadAndWrite<CZelExtQuaterniond>(iss);
        break;
    case 2:
        ReadAndWrite<CZelExtMatrix3d>(iss);
        break;
    case 3:
        ReadAndWrite<CZelExtSymMatrix3d>(iss);
        break;
    case 4:
        ReadAndWrite<SZelInsBodyAxes>(iss);
        break;
    case 5:
        ReadAndWrite<SZelInsVarLever>(iss);
        break;
    case 6:
        ReadAndWrite<SZelInsTrTest>(iss);
        break;
    case 7:
        ReadAndWrite<SZelInsExpMinMax>(iss);
        break;
    case 8:
        ReadAndWrite<CL_ZELX_INS_SENSOR_CFG_POS>(iss);
        break;
    case 9:
        ReadAndWrite<SZelInsSensorParams>(iss);
        break;
    case 10:
        ReadAndWrite<CL_ZELX_INS_SENSOR_CFG_IMU>(iss);
        break;
    case 11:
        ReadAndWrite<SZelInsCfg>(iss);
        break;
    case 12:
        ReadAndWrite<SZelInsCfgLimits>(iss);
        break;
    case 13:
        ReadAndWrite<CL_ZELX_INS_SENSOR_OBS_ACC>(iss);
        break;
    case 14:
        ReadAndWrite<CL_ZELX_INS_SENSOR_OBS_IMU>(iss);
        break;
    case 15:
        ReadAndWrite<CL_ZELX_INS_SENSOR_OBS_POS>(iss);
        break;
    case 16:
        ReadAndWrite<CL_ZELX_INS_SENSOR_OBS_VEL>(iss);
        break;
    case 17:
        ReadAndWrite<CL_ZELX_INS_SENSOR_OBS_PVE>(iss);
        break;
    case 18:
        ReadAndWrite<CL_ZELX_INS_RESULT>(iss);
        break;
    case 19:
        ReadAndWrite<CL_ZELX_INS_RES_POS_STATE>(iss);
        break;
    case 20:
        ReadAndWrite<SZelInsResStateEx>(iss);
        break;
    case 21:
        ReadAndWrite<SZelInsResHeader>(iss);
        break;
    default:
        ReadAndWrite<SZelInsResRecord>(iss);
        break;
    }
    return 0;
}
