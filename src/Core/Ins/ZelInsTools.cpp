#include "ZelInsChecks.h"

#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Core/Ins/ZelInsUtilities.h>

#include <algorithm>
#include <cmath>

namespace ZELN
{

namespace
{
constexpr double c_dTWO_PI = 6.283185307179586;
// Shortest vector (m, or dimensionless for directions) taken as non-zero.
constexpr double c_dMIN_LENGTH = 1e-10;
// Smallest squared horizontal length of a direction that has a heading.
constexpr double c_dMIN_SQUARED = 1e-20;
} // namespace

unsigned int GetUpVector(const Eigen::Vector3d& x_P, Eigen::Vector3d& rUp_P, EZelInsPosFrame eFrame,
                         double dE2)
{
    switch (eFrame)
    {
    case eINSPOSFRAME_LEVEL:
    {
        const Eigen::Vector3d oUpUnitVector(0.0, 0.0, 1.0);
        ZEL_INS_CHECK_FIRST(IsNormalized(oUpUnitVector), "(oUpUnitVector.isNormalized((1.0e-9)))");
        rUp_P = oUpUnitVector;
        return c_uiINS_OK;
    }
    case eINSPOSFRAME_EARTH:
    {
        if (x_P.norm() < c_dMIN_LENGTH || dE2 < 0.0)
        {
            return c_uiINS_FAILURE;
        }
        // The ellipsoid normal.
        const Eigen::Vector3d oUpUnitVector =
            NormalizeVector(Eigen::Vector3d(x_P.x(), x_P.y(), (1.0 + dE2) * x_P.z()));
        ZEL_INS_CHECK_FIRST(IsNormalized(oUpUnitVector), "(oUpUnitVector.isNormalized((1.0e-9)))");
        rUp_P = oUpUnitVector;
        return c_uiINS_OK;
    }
    default:
        return c_uiINS_FAILURE;
    }
}

unsigned int GetLocalAxes(const Eigen::Vector3d& x_P, Eigen::Vector3d& rEast_P, Eigen::Vector3d& rNorth_P,
                          Eigen::Vector3d& rUp_P, EZelInsPosFrame eFrame, double dE2)
{
    if (eFrame != eINSPOSFRAME_EARTH)
    {
        return c_uiINS_FAILURE;
    }
    Eigen::Vector3d Up_P;
    const unsigned int uiStatus = GetUpVector(x_P, Up_P, eFrame, dE2);
    if (!IsInsSuccess(uiStatus))
    {
        return uiStatus;
    }
    ZEL_INS_CHECK_FIRST(IsNormalized(Up_P), "(Up_P.isNormalized((1.0e-9)))");

    // North: the earth axis without its component along up; none at a pole.
    const Eigen::Vector3d oAxis(0.0, 0.0, 1.0);
    const Eigen::Vector3d oNorth_P = oAxis - oAxis.dot(Up_P) * Up_P;
    if (oNorth_P.norm() < c_dMIN_LENGTH)
    {
        return c_uiINS_FAILURE;
    }
    const Eigen::Vector3d oNorthUnitVector_P = NormalizeVector(oNorth_P);
    ZEL_INS_CHECK_FIRST(IsNormalized(oNorthUnitVector_P), "(oNorthUnitVector_P.isNormalized((1.0e-9)))");

    const Eigen::Vector3d oEastUnitVector_P = oNorthUnitVector_P.cross(Up_P);
    ZEL_INS_CHECK_FIRST(IsNormalized(oEastUnitVector_P), "(oEastUnitVector_P.isNormalized((1.0e-9)))");

    rEast_P = oEastUnitVector_P;
    rNorth_P = oNorthUnitVector_P;
    rUp_P = Up_P;
    return c_uiINS_OK;
}

unsigned int GetRotationLocalToFrame(const Eigen::Vector3d& x_P, Eigen::Matrix3d& rR, double dE2)
{
    Eigen::Vector3d oEast_P;
    Eigen::Vector3d oNorth_P;
    Eigen::Vector3d oUp_P;
    const unsigned int uiStatus = GetLocalAxes(x_P, oEast_P, oNorth_P, oUp_P, eINSPOSFRAME_EARTH, dE2);
    if (!IsInsSuccess(uiStatus))
    {
        return uiStatus;
    }
    rR.col(0) = oEast_P;
    rR.col(1) = oNorth_P;
    rR.col(2) = oUp_P;
    return uiStatus;
}

unsigned int GetRotationFrameToLocal(const Eigen::Vector3d& x_P, Eigen::Matrix3d& rR, double dE2)
{
    Eigen::Matrix3d oR;
    const unsigned int uiStatus = GetRotationLocalToFrame(x_P, oR, dE2);
    if (!IsInsSuccess(uiStatus))
    {
        return uiStatus;
    }
    rR = oR.transpose();
    return uiStatus;
}

unsigned int GetAzimuth(double dX, double dY, SZelInsAngleVar& rstAngle, bool bPositive)
{
    if (dX * dX + dY * dY < c_dMIN_SQUARED)
    {
        return c_uiINS_FAILURE;
    }
    double dAngle = std::atan2(dY, dX);
    if (bPositive && dAngle < 0.0)
    {
        dAngle += c_dTWO_PI;
    }
    rstAngle.dAngle = dAngle;
    return c_uiINS_OK;
}

unsigned int GetAngle(const Eigen::Vector3d& rVec1, const Eigen::Vector3d& rUnit, SZelInsAngleVar& rstAngle)
{
    // A zero vector normalises to NaN, which is not of unit length.
    const Eigen::Vector3d oUnit1 = NormalizeVector(rVec1);
    if (!IsNormalized(oUnit1))
    {
        return c_uiINS_ZERO_VECTOR;
    }
    const double dCos = std::min(1.0, std::max(-1.0, oUnit1.dot(rUnit)));
    rstAngle.dAngle = std::acos(dCos);
    return c_uiINS_OK;
}

unsigned int GetSignedAngle(const Eigen::Vector3d& rVec1, const Eigen::Vector3d& rVec2,
                            const Eigen::Vector3d& rAxis, SZelInsAngleVar& rstAngle)
{
    return GetAzimuth(rVec1.dot(rVec2), rVec1.cross(rVec2).dot(rAxis), rstAngle, true);
}

unsigned int GetHeading(const Eigen::Vector3d& v, const Eigen::Vector3d& rEast_P,
                        const Eigen::Vector3d& rNorth_P, const Eigen::Vector3d& rUp_P,
                        SZelInsAngleVar& rstAngle, bool bPositive)
{
    const Eigen::Vector3d h = v - v.dot(rUp_P) * rUp_P;
    return GetAzimuth(h.dot(rNorth_P), h.dot(rEast_P), rstAngle, bPositive);
}

unsigned int GetBodyAxisTilt(const CZelInsStateUnitQuaterniond& stAttitude, const Eigen::Vector3d& rAxis_B,
                             const Eigen::Vector3d& rRef_P, SZelInsAngleVar& rstAngle)
{
    if (!IsNormalized(rAxis_B))
    {
        ZEL_ASSERT_ONCE((false));
        return c_uiINS_NOT_UNIT;
    }
    if (!IsNormalized(rRef_P))
    {
        ZEL_ASSERT_ONCE((false));
        return c_uiINS_NOT_UNIT;
    }
    if (!IsNormalized(stAttitude.m_oValue))
    {
        ZEL_ASSERT_ONCE((false));
        return c_uiINS_NOT_UNIT;
    }
    const Eigen::Matrix3d& Q = stAttitude.m_oCov;
    const Eigen::Vector3d a = RotateVector(stAttitude.m_oValue, rAxis_B);
    const unsigned int uiStatus = GetAngle(a, rRef_P, rstAngle);
    if (!IsInsSuccess(uiStatus))
    {
        return uiStatus;
    }
    const Eigen::Vector3d c = a.cross(rRef_P);
    if (c.norm() > c_dMIN_LENGTH)
    {
        const Eigen::Vector3d oUnitC = NormalizeVector(c);
        rstAngle.dVar = oUnitC.dot(Q * oUnitC);
    }
    else
    {
        // Axis and reference aligned: the mean variance of the two tilt directions.
        rstAngle.dVar = (Q.trace() - a.dot(Q * a)) / 2.0;
    }
    return uiStatus;
}

namespace
{
// The heading variance (rad^2), (e^2 dWeightedByE + n^2 dWeightedByN) / d^2
// with e, n the east and north components of the direction and d = e^2 + n^2.
// A direction without a horizontal part reports and goes on; d = 0 gives the
// NaN of 0 / 0 without dividing.
double HeadingVariance(double e, double n, double dWeightedByE, double dWeightedByN)
{
    const double d = e * e + n * n;
    if (d < c_dMIN_SQUARED)
    {
        ZEL_ASSERT_ONCE(false);
    }
    return DivideIeee(e * e * dWeightedByE + n * n * dWeightedByN, d * d);
}
} // namespace

unsigned int GetBodyAxisHeading(const CZelInsStateUnitQuaterniond& stAttitude, const Eigen::Vector3d& rAxis_B,
                                const Eigen::Vector3d& rEast_P, const Eigen::Vector3d& rNorth_P,
                                const Eigen::Vector3d& rUp_P, SZelInsAngleVar& rstAngle)
{
    if (!IsNormalized(stAttitude.m_oValue))
    {
        ZEL_ASSERT_ONCE((false));
        return c_uiINS_NOT_UNIT;
    }
    ZEL_INS_CHECK_FIRST(IsNormalized(rEast_P) && IsNormalized(rNorth_P) && IsNormalized(rUp_P),
                        "(roEast_P.isNormalized((1.0e-9)) && roNorth_P.isNormalized((1.0e-9)) && "
                        "roUp_P.isNormalized((1.0e-9)))");
    const Eigen::Vector3d a = RotateVector(stAttitude.m_oValue, rAxis_B);
    const unsigned int uiStatus = GetHeading(a, rEast_P, rNorth_P, rUp_P, rstAngle, true);
    if (!IsInsSuccess(uiStatus))
    {
        return uiStatus;
    }
    const Eigen::Matrix3d& Q = stAttitude.m_oCov;
    const Eigen::Vector3d h = a - a.dot(rUp_P) * rUp_P;
    const double e = h.dot(rEast_P);
    const double n = h.dot(rNorth_P);
    const Eigen::Vector3d P = a.cross(rEast_P);
    const Eigen::Vector3d R = a.cross(rNorth_P);
    rstAngle.dVar = HeadingVariance(e, n, R.dot(Q * R), P.dot(Q * P));
    return uiStatus;
}

unsigned int GetVelocityHeading(const CZelInsStateVector3d& stVelocity, const Eigen::Vector3d& rEast_P,
                                const Eigen::Vector3d& rNorth_P, const Eigen::Vector3d& rUp_P,
                                SZelInsAngleVar& rstAngle)
{
    ZEL_INS_CHECK_FIRST(IsNormalized(rEast_P) && IsNormalized(rNorth_P) && IsNormalized(rUp_P),
                        "(roEast_P.isNormalized((1.0e-9)) && roNorth_P.isNormalized((1.0e-9)) && "
                        "roUp_P.isNormalized((1.0e-9)))");
    const Eigen::Vector3d& v = stVelocity.m_oValue;
    const Eigen::Matrix3d& Q = stVelocity.m_oCov;
    const Eigen::Vector3d h = v - v.dot(rUp_P) * rUp_P;
    const double n = h.dot(rNorth_P);
    const double e = h.dot(rEast_P);
    const unsigned int uiStatus = GetAzimuth(n, e, rstAngle, true);
    if (!IsInsSuccess(uiStatus))
    {
        return uiStatus;
    }
    rstAngle.dVar = HeadingVariance(e, n, rNorth_P.dot(Q * rNorth_P), rEast_P.dot(Q * rEast_P));
    return uiStatus;
}

unsigned int TransferPosition(const CZelInsStateVector3d& stPos,
                              const CZelInsStateUnitQuaterniond& stAttitude, const Eigen::Vector3d& rLever_B,
                              CZelInsStateVector3d& rOut)
{
    if (stPos.m_eCovType != eCOVTYPE_COV || stAttitude.m_eCovType != eCOVTYPE_COV)
    {
        ZEL_ASSERT_ONCE((false));
        return c_uiINS_FAILURE;
    }
    Eigen::Quaterniond q_rP = stAttitude.m_oValue;
    if (!IsNormalized(q_rP))
    {
        q_rP = NormalizeQuaternion(q_rP);
    }
    ZEL_INS_CHECK_FIRST(IsNormalized(q_rP), "(q_rP.isNormalized((1.0e-9)))");

    const Eigen::Vector3d r = RotateVector(q_rP, rLever_B);
    const Eigen::Vector3d oPos = stPos.m_oValue + r;
    const Eigen::Matrix3d A = MakeSkew(r);
    const Eigen::Matrix3d oPosCov = stPos.m_oCov + A * stAttitude.m_oCov * A.transpose();
    return rOut.SetState(oPos, oPosCov, eCOVTYPE_COV);
}

unsigned int TransferPositionVelocity(const CZelInsStateVector3d& stPos, const CZelInsStateVector3d& stVel,
                                      const CZelInsStateUnitQuaterniond& stAttitude,
                                      const CZelInsStateVector3d& stRate, const Eigen::Vector3d& rLever_B,
                                      CZelInsStateVector3d& rOutPos, CZelInsStateVector3d& rOutVel)
{
    if (stPos.m_eCovType != eCOVTYPE_COV || stVel.m_eCovType != eCOVTYPE_COV ||
        stAttitude.m_eCovType != eCOVTYPE_COV || stRate.m_eCovType != eCOVTYPE_COV)
    {
        ZEL_ASSERT_ONCE((false));
        return c_uiINS_FAILURE;
    }
    Eigen::Quaterniond q_rP = stAttitude.m_oValue;
    if (!IsNormalized(q_rP))
    {
        q_rP = NormalizeQuaternion(q_rP);
    }
    ZEL_INS_CHECK_FIRST(IsNormalized(q_rP), "(q_rP.isNormalized((1.0e-9)))");

    const Eigen::Matrix3d& Qq = stAttitude.m_oCov;
    const Eigen::Vector3d r = RotateVector(q_rP, rLever_B);
    const Eigen::Vector3d oPos = stPos.m_oValue + r;
    const Eigen::Matrix3d A = MakeSkew(r);
    const Eigen::Matrix3d oPosCov = stPos.m_oCov + A * Qq * A.transpose();

    const Eigen::Vector3d& w = stRate.m_oValue;
    const Eigen::Vector3d oVel = stVel.m_oValue + w.cross(r);
    const Eigen::Matrix3d W = MakeSkew(w);
    const Eigen::Matrix3d M = W * A;
    const Eigen::Matrix3d oVelCov = stVel.m_oCov + M * Qq * M.transpose() + A * stRate.m_oCov * A.transpose();

    // Everything is worked out before the outputs are written: an output may
    // be one of the inputs.
    rOutPos.SetState(oPos, oPosCov, eCOVTYPE_COV);
    rOutVel.SetState(oVel, oVelCov, eCOVTYPE_COV);
    return c_uiINS_OK;
}

} // namespace ZELN
