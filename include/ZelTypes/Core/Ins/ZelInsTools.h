#ifndef ZELTYPES_CORE_INS_ZELINSTOOLS_H
#define ZELTYPES_CORE_INS_ZELINSTOOLS_H

/// \file
/// Geometry of the inertial results with first-order propagation of their
/// uncertainty: local axes of a positioning frame, azimuths, tilts and
/// headings of body axes, and the move of a position and velocity along a
/// lever arm. Notation: _P marks a vector in the positioning frame P, _B one
/// in the body frame. Every function returns a status, 0 to 20 being
/// success (see ZelInsObservable.h); the states are expected with the tag
/// eCOVTYPE_COV. The checks of these functions report at most once per
/// process each.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Ins/ZelInsStates.h>

#include <Eigen/Core>

#include <cstdint>

namespace ZELN
{

/// The positioning frame P of a result or configuration.
enum EZelInsPosFrame : int32_t
{
    eINSPOSFRAME_NONE = 0,  ///< no frame
    eINSPOSFRAME_EARTH = 1, ///< earth-fixed cartesian; up is the ellipsoid normal at the position
    eINSPOSFRAME_LEVEL = 2  ///< local frame whose third axis is up
};

/// An angle in radians and its variance in rad^2.
struct ZELTYPES_API SZelInsAngleVar
{
    /// The angle, in radians.
    double dAngle = 0.0;
    /// Its variance, in rad^2.
    double dVar = 0.0;
};

/// Squared second eccentricity of the reference ellipsoid (dimensionless).
constexpr double c_dINS_E2 = 0.00673949674227;

/// The up direction (unit vector in P) at x_P (m): (0, 0, 1) in a level frame,
/// the ellipsoid normal of squared second eccentricity dE2 in an earth-fixed
/// one; 1000 for another frame, |x_P| below 1e-10 m or dE2 below 0.
ZELTYPES_API unsigned int GetUpVector(const Eigen::Vector3d& x_P, Eigen::Vector3d& rUp_P,
                                      EZelInsPosFrame eFrame, double dE2);

/// East, north and up unit vectors in P at x_P (m); earth-fixed frames only
/// (1000 otherwise), and 1000 at a pole, where north is undefined.
ZELTYPES_API unsigned int GetLocalAxes(const Eigen::Vector3d& x_P, Eigen::Vector3d& rEast_P,
                                       Eigen::Vector3d& rNorth_P, Eigen::Vector3d& rUp_P,
                                       EZelInsPosFrame eFrame, double dE2);

/// The rotation from the local east-north-up frame at x_P (m) to the
/// earth-fixed frame: the columns east, north, up.
ZELTYPES_API unsigned int GetRotationLocalToFrame(const Eigen::Vector3d& x_P, Eigen::Matrix3d& rR,
                                                  double dE2);

/// The rotation from the earth-fixed frame to the local frame at x_P (m):
/// the transpose of GetRotationLocalToFrame.
ZELTYPES_API unsigned int GetRotationFrameToLocal(const Eigen::Vector3d& x_P, Eigen::Matrix3d& rR,
                                                  double dE2);

/// atan2(dY, dX) in radians into dAngle, raised by 2 pi when negative and
/// bPositive; 1000 when dX^2 + dY^2 is below 1e-20. dVar is not touched.
ZELTYPES_API unsigned int GetAzimuth(double dX, double dY, SZelInsAngleVar& rstAngle, bool bPositive);

/// The angle (rad) between rVec1 and the unit vector rUnit; 1004 for a zero rVec1.
ZELTYPES_API unsigned int GetAngle(const Eigen::Vector3d& rVec1, const Eigen::Vector3d& rUnit,
                                   SZelInsAngleVar& rstAngle);

/// The angle (rad, 0 to 2 pi) from rVec1 to rVec2, positive about rAxis.
ZELTYPES_API unsigned int GetSignedAngle(const Eigen::Vector3d& rVec1, const Eigen::Vector3d& rVec2,
                                         const Eigen::Vector3d& rAxis, SZelInsAngleVar& rstAngle);

/// The heading (rad) of v projected on the horizontal plane, counted from
/// north towards east.
ZELTYPES_API unsigned int GetHeading(const Eigen::Vector3d& v, const Eigen::Vector3d& rEast_P,
                                     const Eigen::Vector3d& rNorth_P, const Eigen::Vector3d& rUp_P,
                                     SZelInsAngleVar& rstAngle, bool bPositive);

/// The angle (rad) between the body axis rAxis_B turned by the attitude and
/// the reference direction rRef_P, with its variance (rad^2) from the
/// attitude covariance; 1003 when an input is not of unit length.
ZELTYPES_API unsigned int GetBodyAxisTilt(const CZelInsStateUnitQuaterniond& stAttitude,
                                          const Eigen::Vector3d& rAxis_B, const Eigen::Vector3d& rRef_P,
                                          SZelInsAngleVar& rstAngle);

/// The heading (rad, 0 to 2 pi) of the body axis rAxis_B turned by the
/// attitude, with its variance (rad^2); 1003 for an attitude not of unit norm.
ZELTYPES_API unsigned int GetBodyAxisHeading(const CZelInsStateUnitQuaterniond& stAttitude,
                                             const Eigen::Vector3d& rAxis_B, const Eigen::Vector3d& rEast_P,
                                             const Eigen::Vector3d& rNorth_P, const Eigen::Vector3d& rUp_P,
                                             SZelInsAngleVar& rstAngle);

/// The course (rad, 0 to 2 pi) of a velocity state (m/s) with its variance (rad^2).
ZELTYPES_API unsigned int GetVelocityHeading(const CZelInsStateVector3d& stVelocity,
                                             const Eigen::Vector3d& rEast_P, const Eigen::Vector3d& rNorth_P,
                                             const Eigen::Vector3d& rUp_P, SZelInsAngleVar& rstAngle);

/// The position (m) of the point at the lever arm rLever_B (m, body frame),
/// with its covariance Qx + [r x] Qq [r x]^T, delivered through rOut's
/// SetState with tag 1; 1000 unless both states have tag 1.
ZELTYPES_API unsigned int TransferPosition(const CZelInsStateVector3d& stPos,
                                           const CZelInsStateUnitQuaterniond& stAttitude,
                                           const Eigen::Vector3d& rLever_B, CZelInsStateVector3d& rOut);

/// Position (m) and velocity (m/s) of the point at the lever arm rLever_B
/// (m, body frame), stRate being the angular rate (rad/s) in P, with the
/// propagated covariances; 1000 unless all four states have tag 1.
ZELTYPES_API unsigned int
TransferPositionVelocity(const CZelInsStateVector3d& stPos, const CZelInsStateVector3d& stVel,
                         const CZelInsStateUnitQuaterniond& stAttitude, const CZelInsStateVector3d& stRate,
                         const Eigen::Vector3d& rLever_B, CZelInsStateVector3d& rOutPos,
                         CZelInsStateVector3d& rOutVel);

} // namespace ZELN

#endif
