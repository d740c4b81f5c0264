#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Ins/ZelInsUtilities.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>

#include <cmath>

namespace ZELN
{

// ------------------------------------------------------------------ CL_ZELX_INS_RESULT

CL_ZELX_INS_RESULT::~CL_ZELX_INS_RESULT() = default;

bool CL_ZELX_INS_RESULT::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_RESULT::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_RESULT& a, const CL_ZELX_INS_RESULT& b)
{
    return a.stTime == b.stTime && a.usSensorID == b.usSensorID;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_RESULT& rResult)
{
    return ZelIo::WriteText(os, rResult);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_RESULT& rResult)
{
    return ZelIo::ReadText(is, rResult);
}

// ------------------------------------------------------------------ CL_ZELX_INS_RES_POS_STATE

CL_ZELX_INS_RES_POS_STATE::~CL_ZELX_INS_RES_POS_STATE() = default;

unsigned int CL_ZELX_INS_RES_POS_STATE::ShiftToPoint(const CZelExtVector3d& rLever_B, int16_t usNewSensorID)
{
    if (bShifted)
    {
        ZEL_ASSERT(false);
        return c_uiINS_FAILURE;
    }
    usSensorID = usNewSensorID;

    CZelInsStateVector3d stPos;
    CZelInsStateVector3d stVel;
    CZelInsStateUnitQuaterniond stAttitude;
    CZelInsStateVector3d stRate;
    ConvertExtToState(x_pbP, Qx_pbP, stPos);
    ConvertExtToState(v_pbP, Qv_pbP, stVel);
    ConvertExtToState(q_bP, Qq_bP, stAttitude);
    ConvertExtToState(w_pbP, Qw_pbP, stRate);

    CZelInsStateVector3d stNewPos;
    CZelInsStateVector3d stNewVel;
    unsigned int uiStatus = TransferPositionVelocity(stPos, stVel, stAttitude, stRate,
                                                     ToEigenVector(rLever_B), stNewPos, stNewVel);
    if (IsInsSuccess(uiStatus))
    {
        uiStatus = ConvertStateToExt(stNewPos, x_pbP, Qx_pbP);
        if (IsInsSuccess(uiStatus))
        {
            ConvertStateToExt(stNewVel, v_pbP, Qv_pbP);
            bShifted = true;
        }
    }
    return uiStatus;
}

unsigned int CL_ZELX_INS_RES_POS_STATE::ShiftToPoint(const CZelExtVector3d& rLever_B,
                                                     const CZelExtQuaterniond& rRot_B, int16_t usNewSensorID)
{
    const unsigned int uiStatus = ShiftToPoint(rLever_B, usNewSensorID);
    q_bP = ToExtQuaternion(ToEigenQuaternion(q_bP) * ToEigenQuaternion(rRot_B));
    return uiStatus;
}

unsigned int
CL_ZELX_INS_RES_POS_STATE::GetAttitudeAngles(const CZelExtVector3d& rFw_B, const CZelExtVector3d& rUp_B,
                                             SZelInsAngleVar& rstTilt, SZelInsAngleVar& rstTiltHeading,
                                             SZelInsAngleVar& rstYaw, SZelInsAngleVar& rstCourse) const
{
    // The two body axes must be non-zero and orthogonal (m or dimensionless).
    constexpr double c_dMIN_AXIS = 1e-10;
    const Eigen::Vector3d oFw_B = ToEigenVector(rFw_B);
    const Eigen::Vector3d oUp_B = ToEigenVector(rUp_B);
    if (oFw_B.norm() < c_dMIN_AXIS || oUp_B.norm() < c_dMIN_AXIS || std::fabs(oFw_B.dot(oUp_B)) > c_dMIN_AXIS)
    {
        return c_uiINS_NOT_UNIT;
    }
    const Eigen::Vector3d oFwUnit_B = NormalizeVector(oFw_B);
    const Eigen::Vector3d oUpUnit_B = NormalizeVector(oUp_B);

    Eigen::Vector3d oEast_P;
    Eigen::Vector3d oNorth_P;
    Eigen::Vector3d oUp_P;
    const unsigned int uiAxes =
        GetLocalAxes(ToEigenVector(x_pbP), oEast_P, oNorth_P, oUp_P, ePosFrame, c_dINS_E2);
    if (!IsInsSuccess(uiAxes))
    {
        return uiAxes;
    }

    CZelInsStateUnitQuaterniond stAttitude;
    CZelInsStateVector3d stVelocity;
    ConvertExtToState(q_bP, Qq_bP, stAttitude);
    ConvertExtToState(v_pbP, Qv_pbP, stVelocity);

    // All four are tried, whatever the earlier ones gave.
    const unsigned int uiTilt = GetBodyAxisTilt(stAttitude, oUpUnit_B, oUp_P, rstTilt);
    const unsigned int uiTiltHeading =
        GetBodyAxisHeading(stAttitude, oUpUnit_B, oEast_P, oNorth_P, oUp_P, rstTiltHeading);
    const unsigned int uiYaw = GetBodyAxisHeading(stAttitude, oFwUnit_B, oEast_P, oNorth_P, oUp_P, rstYaw);
    const unsigned int uiCourse = GetVelocityHeading(stVelocity, oEast_P, oNorth_P, oUp_P, rstCourse);
    if (uiTilt != c_uiINS_OK || uiTiltHeading != c_uiINS_OK || uiYaw != c_uiINS_OK || uiCourse != c_uiINS_OK)
    {
        return c_uiINS_PARTIAL;
    }
    return uiCourse;
}

bool CL_ZELX_INS_RES_POS_STATE::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                         uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CL_ZELX_INS_RES_POS_STATE::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                         uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CL_ZELX_INS_RES_POS_STATE& a, const CL_ZELX_INS_RES_POS_STATE& b)
{
    return static_cast<const CL_ZELX_INS_RESULT&>(a) == static_cast<const CL_ZELX_INS_RESULT&>(b) &&
           a.usField1 == b.usField1 && a.ePosFrame == b.ePosFrame && a.eField2 == b.eField2 &&
           a.usField3 == b.usField3 && a.bShifted == b.bShifted && a.x_pbP == b.x_pbP &&
           a.Qx_pbP == b.Qx_pbP && a.v_pbP == b.v_pbP && a.Qv_pbP == b.Qv_pbP && a.q_bP == b.q_bP &&
           a.Qq_bP == b.Qq_bP && a.w_pbP == b.w_pbP && a.Qw_pbP == b.Qw_pbP;
}

std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_RES_POS_STATE& rState)
{
    return ZelIo::WriteText(os, rState);
}

std::istream& operator>>(std::istream& is, CL_ZELX_INS_RES_POS_STATE& rState)
{
    return ZelIo::ReadText(is, rState);
}

// ------------------------------------------------------------------ interpolation

namespace
{
// y - x in seconds: the milliseconds of the day, then the day difference,
// which is taken in 32 bits as the time's own arithmetic does.
double SecondsBetween(const SMjdTime& y, const SMjdTime& x)
{
    const int32_t lDayDiff = MjdDetail::AddWrap(y.m_lMjdDay, -static_cast<int64_t>(x.m_lMjdDay));
    return (y.m_dMjdFractMilliseconds - x.m_dMjdFractMilliseconds) / 1000.0 + lDayDiff * 86400.0;
}

CZelExtVector3d Linear(const CZelExtVector3d& a, const CZelExtVector3d& b, double s)
{
    CZelExtVector3d stOut;
    for (size_t k = 0; k < 3; ++k)
    {
        stOut.m_adElem[k] = (1.0 - s) * a.m_adElem[k] + s * b.m_adElem[k];
    }
    return stOut;
}

// The covariance of the worse neighbour; B on a tie.
const CZelExtSymMatrix3d& Larger(const CZelExtSymMatrix3d& a, const CZelExtSymMatrix3d& b)
{
    return a.GetTrace() > b.GetTrace() ? a : b;
}
} // namespace

unsigned int Interpolate(const CL_ZELX_INS_RES_POS_STATE& rstStateA, const SMjdTime& rstTime,
                         const CL_ZELX_INS_RES_POS_STATE& rstStateB, CL_ZELX_INS_RES_POS_STATE& rstOut)
{
    if (rstStateA.ePosFrame != rstStateB.ePosFrame)
    {
        ZEL_REPORT("Error: cannot interpolate between states in different positioning frames!");
        return c_uiINS_FAILURE;
    }
    if (rstStateA.usSensorID != rstStateB.usSensorID)
    {
        ZEL_REPORT("Error: interpolation between states referring to different sensor IDs not allowed!");
        return c_uiINS_FAILURE;
    }
    // Worked out on a copy: rstOut may be one of the two states.
    CL_ZELX_INS_RES_POS_STATE stOut = rstOut;
    stOut.ePosFrame = rstStateA.ePosFrame;
    stOut.usSensorID = rstStateA.usSensorID;
    stOut.stTime = rstTime;

    // No test of the ratio: times outside the span extrapolate.
    const double s = DivideIeee(SecondsBetween(rstTime, rstStateA.stTime),
                                SecondsBetween(rstStateB.stTime, rstStateA.stTime));
    stOut.x_pbP = Linear(rstStateA.x_pbP, rstStateB.x_pbP, s);
    stOut.v_pbP = Linear(rstStateA.v_pbP, rstStateB.v_pbP, s);
    stOut.w_pbP = Linear(rstStateA.w_pbP, rstStateB.w_pbP, s);
    // The result of the spherical interpolation is not normalised again.
    stOut.q_bP =
        ToExtQuaternion(ToEigenQuaternion(rstStateA.q_bP).slerp(s, ToEigenQuaternion(rstStateB.q_bP)));

    // Covariances are not interpolated: the result never claims more
    // accuracy than the worse neighbour.
    stOut.Qx_pbP = Larger(rstStateA.Qx_pbP, rstStateB.Qx_pbP);
    stOut.Qv_pbP = Larger(rstStateA.Qv_pbP, rstStateB.Qv_pbP);
    stOut.Qq_bP = Larger(rstStateA.Qq_bP, rstStateB.Qq_bP);
    stOut.Qw_pbP = Larger(rstStateA.Qw_pbP, rstStateB.Qw_pbP);

    rstOut = stOut;
    return c_uiINS_OK;
}

// ------------------------------------------------------------------ SZelInsResStateEx

bool SZelInsResStateEx::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsResStateEx::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsResStateEx& a, const SZelInsResStateEx& b)
{
    return a.stState == b.stState && a.uiExtra == b.uiExtra;
}

std::ostream& operator<<(std::ostream& os, const SZelInsResStateEx& rStateEx)
{
    return ZelIo::WriteText(os, rStateEx);
}

std::istream& operator>>(std::istream& is, SZelInsResStateEx& rStateEx)
{
    return ZelIo::ReadText(is, rStateEx);
}

// ------------------------------------------------------------------ SZelInsResHeader

bool SZelInsResHeader::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsResHeader::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsResHeader& a, const SZelInsResHeader& b)
{
    return a.stTime == b.stTime && a.eKind == b.eKind;
}

std::ostream& operator<<(std::ostream& os, const SZelInsResHeader& rHeader)
{
    return ZelIo::WriteText(os, rHeader);
}

std::istream& operator>>(std::istream& is, SZelInsResHeader& rHeader)
{
    return ZelIo::ReadText(is, rHeader);
}

// ------------------------------------------------------------------ SZelInsResRecord

bool SZelInsResRecord::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsResRecord::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsResRecord& a, const SZelInsResRecord& b)
{
    return a.stHeader == b.stHeader && a.stStateEx == b.stStateEx;
}

std::ostream& operator<<(std::ostream& os, const SZelInsResRecord& rRecord)
{
    return ZelIo::WriteText(os, rRecord);
}

std::istream& operator>>(std::istream& is, SZelInsResRecord& rRecord)
{
    return ZelIo::ReadText(is, rRecord);
}

} // namespace ZELN
