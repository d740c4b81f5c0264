#include "ZelInsChecks.h"

#include <ZelTypes/Core/Ins/ZelInsUtilities.h>

namespace ZELN
{

Eigen::Vector3d NormalizeVector(const Eigen::Vector3d& rVector)
{
    const double dNorm = rVector.norm();
    return Eigen::Vector3d(DivideIeee(rVector.x(), dNorm), DivideIeee(rVector.y(), dNorm),
                           DivideIeee(rVector.z(), dNorm));
}

Eigen::Quaterniond NormalizeQuaternion(const Eigen::Quaterniond& rQuaternion)
{
    const double dNorm = rQuaternion.norm();
    return Eigen::Quaterniond(DivideIeee(rQuaternion.w(), dNorm), DivideIeee(rQuaternion.x(), dNorm),
                              DivideIeee(rQuaternion.y(), dNorm), DivideIeee(rQuaternion.z(), dNorm));
}

Eigen::Vector3d RotateVector(const Eigen::Quaterniond& rQuaternion, const Eigen::Vector3d& rVector)
{
    const Eigen::Vector3d u = rQuaternion.vec();
    const Eigen::Vector3d t = 2.0 * u.cross(rVector);
    return rVector + rQuaternion.w() * t + u.cross(t);
}

Eigen::Matrix3d MakeSkew(const Eigen::Vector3d& a)
{
    Eigen::Matrix3d A;
    A << 0.0, -a(2), a(1), a(2), 0.0, -a(0), -a(1), a(0), 0.0;
    ZEL_INS_CHECK_FIRST(IsSkewSymmetric(A, 0.0), "A.isSkewSymmetric(0.0)");
    return A;
}

} // namespace ZELN
