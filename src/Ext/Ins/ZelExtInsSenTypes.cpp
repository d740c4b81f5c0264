#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>

#include <ZelTypes/Core/Common/ZelAssert.h>

#include <cmath>

namespace ZELN
{

namespace
{
const CL_ZELX_INS_SENSOR_OBS& Common(const CL_ZELX_INS_SENSOR_OBS& rObs)
{
    return rObs;
}
} // namespace

// ------------------------------------------------------------------ SZelInsVectorObs

bool SZelInsVectorObs::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsVectorObs::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsVectorObs& a, const SZelInsVectorObs& b)
{
    return a.Value == b.Value && a.Covariance == b.Covariance;
}

// ------------------------------------------------------------------ CL_ZELX_INS_SENSOR_OBS

CL_ZELX_INS_SENSOR_OBS::~CL_ZELX_INS_SENSOR_OBS() = default;

bool CL_ZELX_INS_SENSOR_OBS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                      uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_SENSOR_OBS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                      uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS& a, const CL_ZELX_INS_SENSOR_OBS& b)
{
    return a.usSensorID == b.usSensorID && a.stTime == b.stTime && a.usField1 == b.usField1 &&
           a.usField2 == b.usField2;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS& rObs)
{
    return ZelIo::WriteText(os, rObs);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS& rObs)
{
    return ZelIo::ReadText(is, rObs);
}

// ------------------------------------------------------------------ CL_ZELX_INS_SENSOR_OBS_IMU

CL_ZELX_INS_SENSOR_OBS_IMU::~CL_ZELX_INS_SENSOR_OBS_IMU() = default;

bool CL_ZELX_INS_SENSOR_OBS_IMU::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_SENSOR_OBS_IMU::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_IMU& a, const CL_ZELX_INS_SENSOR_OBS_IMU& b)
{
    return Common(a) == Common(b) && a.stAcc == b.stAcc && a.stGyr == b.stGyr && a.stMag == b.stMag;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_IMU& rObs)
{
    return ZelIo::WriteText(os, rObs);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_IMU& rObs)
{
    return ZelIo::ReadText(is, rObs);
}

// ------------------------------------------------------------------ CL_ZELX_INS_SENSOR_OBS_POS

CL_ZELX_INS_SENSOR_OBS_POS::~CL_ZELX_INS_SENSOR_OBS_POS() = default;

bool CL_ZELX_INS_SENSOR_OBS_POS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_SENSOR_OBS_POS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_POS& a, const CL_ZELX_INS_SENSOR_OBS_POS& b)
{
    return Common(a) == Common(b) && a.stPositionObs == b.stPositionObs;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_POS& rObs)
{
    return ZelIo::WriteText(os, rObs);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_POS& rObs)
{
    return ZelIo::ReadText(is, rObs);
}

// ------------------------------------------------------------------ CL_ZELX_INS_SENSOR_OBS_VEL

CL_ZELX_INS_SENSOR_OBS_VEL::~CL_ZELX_INS_SENSOR_OBS_VEL() = default;

bool CL_ZELX_INS_SENSOR_OBS_VEL::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_SENSOR_OBS_VEL::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_VEL& a, const CL_ZELX_INS_SENSOR_OBS_VEL& b)
{
    return Common(a) == Common(b) && a.stVelocityObs == b.stVelocityObs;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_VEL& rObs)
{
    return ZelIo::WriteText(os, rObs);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_VEL& rObs)
{
    return ZelIo::ReadText(is, rObs);
}

// ------------------------------------------------------------------ CL_ZELX_INS_SENSOR_OBS_PVE

CL_ZELX_INS_SENSOR_OBS_PVE::~CL_ZELX_INS_SENSOR_OBS_PVE() = default;

void CL_ZELX_INS_SENSOR_OBS_PVE::PropagateTo(const SMjdTime& rstTime, double dProcessNoise)
{
    // The day difference is taken in 32 bits, wrapping as the time's own arithmetic does.
    const int32_t lDayDiff = MjdDetail::AddWrap(rstTime.m_lMjdDay, -static_cast<int64_t>(stTime.m_lMjdDay));
    const double dt =
        (rstTime.m_dMjdFractMilliseconds - stTime.m_dMjdFractMilliseconds) / 1000.0 + lDayDiff * 86400.0;
    if (!(std::fabs(dt) > 0.0))
    {
        return;
    }
    for (size_t k = 0; k < 3; ++k)
    {
        stPositionObs.Value.m_adElem[k] =
            stPositionObs.Value.m_adElem[k] + dt * stVelocityObs.Value.m_adElem[k];
    }
    const double dDt2 = dt * dt;
    const double dAbsDt = std::fabs(dt);
    for (size_t i = 0; i < CZelExtSymMatrix3d::eNumCols; ++i)
    {
        for (size_t j = 0; j <= i; ++j)
        {
            ZEL_ASSERT(j < stPositionObs.Covariance.eNumCols);
            double& rdQx = stPositionObs.Covariance(i, j);
            rdQx = rdQx + dDt2 * stVelocityObs.Covariance(i, j);
            if (i == j)
            {
                rdQx = rdQx + dAbsDt * dProcessNoise;
            }
        }
    }
    if (&rstTime != &stTime)
    {
        stTime = rstTime;
    }
}

void CL_ZELX_INS_SENSOR_OBS_PVE::ScaleCovariance(double dPosScale, double dVelScale)
{
    for (size_t i = 0; i < CZelExtSymMatrix3d::eNumCols; ++i)
    {
        for (size_t j = 0; j <= i; ++j)
        {
            ZEL_ASSERT(j < stPositionObs.Covariance.eNumCols);
            stPositionObs.Covariance(i, j) *= dPosScale;
        }
    }
    for (size_t i = 0; i < CZelExtSymMatrix3d::eNumCols; ++i)
    {
        for (size_t j = 0; j <= i; ++j)
        {
            ZEL_ASSERT(j < stVelocityObs.Covariance.eNumCols);
            stVelocityObs.Covariance(i, j) *= dVelScale;
        }
    }
}

bool CL_ZELX_INS_SENSOR_OBS_PVE::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_SENSOR_OBS_PVE::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_PVE& a, const CL_ZELX_INS_SENSOR_OBS_PVE& b)
{
    return Common(a) == Common(b) && a.stPositionObs == b.stPositionObs && a.stVelocityObs == b.stVelocityObs;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_PVE& rObs)
{
    return ZelIo::WriteText(os, rObs);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_PVE& rObs)
{
    return ZelIo::ReadText(is, rObs);
}

// ------------------------------------------------------------------ single-vector sensors

CL_ZELX_INS_SENSOR_OBS_IACC::~CL_ZELX_INS_SENSOR_OBS_IACC() = default;
CL_ZELX_INS_SENSOR_OBS_IGYR::~CL_ZELX_INS_SENSOR_OBS_IGYR() = default;
CL_ZELX_INS_SENSOR_OBS_MAG::~CL_ZELX_INS_SENSOR_OBS_MAG() = default;
CL_ZELX_INS_SENSOR_OBS_ACC::~CL_ZELX_INS_SENSOR_OBS_ACC() = default;
CL_ZELX_INS_SENSOR_OBS_ATT::~CL_ZELX_INS_SENSOR_OBS_ATT() = default;

bool operator==(const CL_ZELX_INS_SENSOR_OBS_IACC& a, const CL_ZELX_INS_SENSOR_OBS_IACC& b)
{
    return Common(a) == Common(b) && a.stObs == b.stObs;
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_IGYR& a, const CL_ZELX_INS_SENSOR_OBS_IGYR& b)
{
    return Common(a) == Common(b) && a.stObs == b.stObs;
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_MAG& a, const CL_ZELX_INS_SENSOR_OBS_MAG& b)
{
    return Common(a) == Common(b) && a.stObs == b.stObs;
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_ACC& a, const CL_ZELX_INS_SENSOR_OBS_ACC& b)
{
    return Common(a) == Common(b) && a.stObs == b.stObs;
}

bool operator==(const CL_ZELX_INS_SENSOR_OBS_ATT& a, const CL_ZELX_INS_SENSOR_OBS_ATT& b)
{
    return Common(a) == Common(b) && a.stAttitude == b.stAttitude && a.stCovariance == b.stCovariance;
}

} // namespace ZELN
