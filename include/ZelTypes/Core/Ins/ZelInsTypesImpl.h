#ifndef ZELTYPES_CORE_INS_ZELINSTYPESIMPL_H
#define ZELTYPES_CORE_INS_ZELINSTYPESIMPL_H

/// \file
/// A rigid transformation between a frame a and the body frame B.

#include <ZelTypes/Core/Common/ZelExport.h>

#include <Eigen/Core>
#include <Eigen/Geometry>

namespace ZELN
{

/// Translation m_x_aB (m) and rotation m_q_aB (unit quaternion, coefficients
/// x, y, z, w in memory) between a frame a and the body frame B.
class ZELTYPES_API CZelInsFrameTransform
{
public:
    /// Translation between frame a and the body frame B, in metres.
    Eigen::Vector3d m_x_aB;
    /// Rotation between frame a and the body frame B, a unit quaternion.
    Eigen::Quaterniond m_q_aB;

    /// Zero translation, identity rotation.
    CZelInsFrameTransform();

    /// The rotation is divided by its norm unless it is of unit norm within
    /// 1e-9; the first construction in the process checks it before and
    /// after ("(m_q_aB.isNormalized((1.0e-9)))").
    CZelInsFrameTransform(const Eigen::Vector3d& rx_aB, const Eigen::Quaterniond& rq_aB);
};

} // namespace ZELN

#endif
