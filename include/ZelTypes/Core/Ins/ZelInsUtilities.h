#ifndef ZELTYPES_CORE_INS_ZELINSUTILITIES_H
#define ZELTYPES_CORE_INS_ZELINSUTILITIES_H

/// \file
/// Small numeric helpers of the inertial tools: unit-length tests, plain
/// normalisation, the rotation of a vector by a quaternion and the skew matrix.

#include <ZelTypes/Core/Common/ZelExport.h>

#include <Eigen/Core>
#include <Eigen/Geometry>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZELN
{

/// Tolerance of the unit-length tests of the inertial tools.
constexpr double c_dINS_UNIT_PRECISION = 1.0e-9;

/// dNum / dDen with the IEEE 754 outcome of a zero divisor (an infinity of
/// the sign of the quotient, or NaN for 0 / 0), without dividing by zero.
inline double DivideIeee(double dNum, double dDen)
{
    if (dDen != 0.0)
    {
        return dNum / dDen;
    }
    if (std::isnan(dNum) || dNum == 0.0)
    {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return std::signbit(dNum) != std::signbit(dDen) ? -std::numeric_limits<double>::infinity()
                                                    : std::numeric_limits<double>::infinity();
}

/// The norm n is 1 in the relative sense: |n - 1| <= 1e-9 * min(n, 1). NaN fails.
inline bool IsUnitNorm(double dNorm)
{
    return std::fabs(dNorm - 1.0) <= std::min(std::fabs(dNorm), 1.0) * c_dINS_UNIT_PRECISION;
}

/// A vector of unit length (dimensionless), by IsUnitNorm of its norm.
template <class Derived> inline bool IsNormalized(const Eigen::MatrixBase<Derived>& rVector)
{
    return IsUnitNorm(rVector.norm());
}

/// A quaternion of unit norm over its four coefficients.
inline bool IsNormalized(const Eigen::Quaterniond& rQuaternion)
{
    return IsUnitNorm(rQuaternion.norm());
}

/// Every pair (i, j) and (j, i) apart by at most dPrecision times the larger
/// of the two magnitudes; with 0.0 exactly symmetric. A NaN fails.
template <class Derived> inline bool IsSymmetric(const Eigen::MatrixBase<Derived>& rMatrix, double dPrecision)
{
    for (Eigen::Index i = 0; i < rMatrix.rows(); ++i)
    {
        for (Eigen::Index j = 0; j <= i && j < rMatrix.cols(); ++j)
        {
            const double a = rMatrix(i, j);
            const double b = rMatrix(j, i);
            if (!(std::fabs(a - b) <= dPrecision * std::max(std::fabs(a), std::fabs(b))))
            {
                return false;
            }
        }
    }
    return true;
}

/// Every pair (i, j) and (j, i) sums to at most dPrecision times the larger
/// magnitude, the diagonal included; with 0.0 exactly skew-symmetric.
template <class Derived>
inline bool IsSkewSymmetric(const Eigen::MatrixBase<Derived>& rMatrix, double dPrecision)
{
    for (Eigen::Index i = 0; i < rMatrix.rows(); ++i)
    {
        for (Eigen::Index j = 0; j <= i && j < rMatrix.cols(); ++j)
        {
            const double a = rMatrix(i, j);
            const double b = rMatrix(j, i);
            if (!(std::fabs(a + b) <= dPrecision * std::max(std::fabs(a), std::fabs(b))))
            {
                return false;
            }
        }
    }
    return true;
}

/// v divided by its norm, with no guard: a zero vector gives NaN (dimensionless result).
ZELTYPES_API Eigen::Vector3d NormalizeVector(const Eigen::Vector3d& rVector);

/// q divided by its norm over the four coefficients, with no guard.
ZELTYPES_API Eigen::Quaterniond NormalizeQuaternion(const Eigen::Quaterniond& rQuaternion);

/// q (x) v: v rotated by the quaternion q, as t = 2 (u x v), v + w t + u x t
/// with u the vector part and w the scalar part; v keeps its unit.
ZELTYPES_API Eigen::Vector3d RotateVector(const Eigen::Quaterniond& rQuaternion,
                                          const Eigen::Vector3d& rVector);

/// [a x]: the skew matrix of a, so that [a x] b = a x b; a keeps its unit.
/// Checks "A.isSkewSymmetric(0.0)" on the first call in the process.
ZELTYPES_API Eigen::Matrix3d MakeSkew(const Eigen::Vector3d& a);

} // namespace ZELN

#endif
