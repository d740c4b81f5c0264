#include <ZelTypes/Ext/Ins/ZelExtInsCfgTypes.h>

namespace ZELN
{

const char* GetSensorTypeName(EZelInsSensorType eSensorType)
{
    switch (eSensorType)
    {
    case eINSSENSOR_IMU:
        return "Imu";
    case eINSSENSOR_IACC:
        return "Iac";
    case eINSSENSOR_IGYR:
        return "Igr";
    case eINSSENSOR_MAG:
        return "Mag";
    case eINSSENSOR_POS:
        return "Pos";
    case eINSSENSOR_VEL:
        return "Vel";
    case eINSSENSOR_PVE:
        return "Pve";
    case eINSSENSOR_ACC:
        return "Acc";
    case eINSSENSOR_ATT:
        return "Att";
    case eINSSENSOR_PASS:
        return "Pass";
    default:
        return "";
    }
}

// ------------------------------------------------------------------ CL_ZELX_INS_SENSOR_CFG

CL_ZELX_INS_SENSOR_CFG::~CL_ZELX_INS_SENSOR_CFG() = default;

bool CL_ZELX_INS_SENSOR_CFG::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                      uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_SENSOR_CFG::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                      uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_SENSOR_CFG& a, const CL_ZELX_INS_SENSOR_CFG& b)
{
    return a.usSensorID == b.usSensorID && a.stFrq == b.stFrq && a.x_dbD == b.x_dbD && a.q_bD == b.q_bD;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_CFG& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_CFG& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelInsSensorParams

bool SZelInsSensorParams::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsSensorParams::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsSensorParams& a, const SZelInsSensorParams& b)
{
    return a.stMns == b.stMns && a.stBrw == b.stBrw && a.stBisd == b.stBisd && a.ucAvlPar == b.ucAvlPar &&
           a.stBiasTest == b.stBiasTest && a.stScaleTest == b.stScaleTest && a.stMeasTest == b.stMeasTest &&
           a.bClbFlag == b.bClbFlag && a.b == b.b && a.S == b.S;
}

std::ostream& operator<<(std::ostream& os, const SZelInsSensorParams& rParams)
{
    return ZelIo::WriteText(os, rParams);
}

std::istream& operator>>(std::istream& is, SZelInsSensorParams& rParams)
{
    return ZelIo::ReadText(is, rParams);
}

// ------------------------------------------------------------------ CL_ZELX_INS_SENSOR_CFG_IMU

CL_ZELX_INS_SENSOR_CFG_IMU::~CL_ZELX_INS_SENSOR_CFG_IMU() = default;

bool CL_ZELX_INS_SENSOR_CFG_IMU::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_SENSOR_CFG_IMU::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_SENSOR_CFG_IMU& a, const CL_ZELX_INS_SENSOR_CFG_IMU& b)
{
    return static_cast<const CL_ZELX_INS_SENSOR_CFG&>(a) == static_cast<const CL_ZELX_INS_SENSOR_CFG&>(b) &&
           a.stAcc == b.stAcc && a.stGyr == b.stGyr && a.stMag == b.stMag;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_CFG_IMU& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_CFG_IMU& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ single-triad sensors

CL_ZELX_INS_SENSOR_CFG_IACC::~CL_ZELX_INS_SENSOR_CFG_IACC() = default;
CL_ZELX_INS_SENSOR_CFG_IGYR::~CL_ZELX_INS_SENSOR_CFG_IGYR() = default;
CL_ZELX_INS_SENSOR_CFG_MAG::~CL_ZELX_INS_SENSOR_CFG_MAG() = default;

bool operator==(const CL_ZELX_INS_SENSOR_CFG_IACC& a, const CL_ZELX_INS_SENSOR_CFG_IACC& b)
{
    return static_cast<const CL_ZELX_INS_SENSOR_CFG&>(a) == static_cast<const CL_ZELX_INS_SENSOR_CFG&>(b) &&
           a.stAcc == b.stAcc;
}

bool operator==(const CL_ZELX_INS_SENSOR_CFG_IGYR& a, const CL_ZELX_INS_SENSOR_CFG_IGYR& b)
{
    return static_cast<const CL_ZELX_INS_SENSOR_CFG&>(a) == static_cast<const CL_ZELX_INS_SENSOR_CFG&>(b) &&
           a.stGyr == b.stGyr;
}

bool operator==(const CL_ZELX_INS_SENSOR_CFG_MAG& a, const CL_ZELX_INS_SENSOR_CFG_MAG& b)
{
    return static_cast<const CL_ZELX_INS_SENSOR_CFG&>(a) == static_cast<const CL_ZELX_INS_SENSOR_CFG&>(b) &&
           a.stMag == b.stMag;
}

// ------------------------------------------------------------------ sensors without additions

CL_ZELX_INS_SENSOR_CFG_POS::~CL_ZELX_INS_SENSOR_CFG_POS() = default;
CL_ZELX_INS_SENSOR_CFG_VEL::~CL_ZELX_INS_SENSOR_CFG_VEL() = default;
CL_ZELX_INS_SENSOR_CFG_PVE::~CL_ZELX_INS_SENSOR_CFG_PVE() = default;
CL_ZELX_INS_SENSOR_CFG_ACC::~CL_ZELX_INS_SENSOR_CFG_ACC() = default;
CL_ZELX_INS_SENSOR_CFG_ATT::~CL_ZELX_INS_SENSOR_CFG_ATT() = default;
CL_ZELX_INS_SENSOR_CFG_PASS::~CL_ZELX_INS_SENSOR_CFG_PASS() = default;

// ------------------------------------------------------------------ SZelInsCfg

bool SZelInsCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsCfg& a, const SZelInsCfg& b)
{
    return a.ePosFrame == b.ePosFrame && a.stBodyAxes == b.stBodyAxes && a.dMaxPrdTime == b.dMaxPrdTime &&
           a.dMaxNormInn == b.dMaxNormInn;
}

std::ostream& operator<<(std::ostream& os, const SZelInsCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelInsCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelInsCfgLimits

bool SZelInsCfgLimits::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsCfgLimits::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsCfgLimits& a, const SZelInsCfgLimits& b)
{
    return a.dMaxPrdTime == b.dMaxPrdTime && a.dMaxNormInn == b.dMaxNormInn;
}

std::ostream& operator<<(std::ostream& os, const SZelInsCfgLimits& rLimits)
{
    return ZelIo::WriteText(os, rLimits);
}

std::istream& operator>>(std::istream& is, SZelInsCfgLimits& rLimits)
{
    return ZelIo::ReadText(is, rLimits);
}

} // namespace ZELN
