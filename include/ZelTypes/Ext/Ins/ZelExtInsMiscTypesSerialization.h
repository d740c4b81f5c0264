#ifndef ZELTYPES_EXT_INS_ZELEXTINSMISCTYPESSERIALIZATION_H
#define ZELTYPES_EXT_INS_ZELEXTINSMISCTYPESSERIALIZATION_H

/// \file
/// The working states cross the library boundary as exchange records: these
/// functions put a state into its records and take it back, and convert
/// single values between the records and the math library. Quaternions are
/// w, x, y, z in the records and x, y, z, w inside the states; a symmetric
/// matrix travels as its lower triangle. Units pass through unchanged.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Ins/ZelInsStates.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>

#include <Eigen/Core>
#include <Eigen/Geometry>

namespace ZELN
{

/// The full matrix of a packed symmetric one; checks "oSymMat.isSymmetric(0.0)"
/// on the first call in the process.
ZELTYPES_API Eigen::Matrix3d MakeSymmetric(const CZelExtSymMatrix3d& stPacked);

/// The lower triangle of rMatrix, row after row; the part above the diagonal is not read.
ZELTYPES_API CZelExtSymMatrix3d MakePacked(const Eigen::Matrix3d& rMatrix);

/// A vector of the records as a math-library vector, and back.
ZELTYPES_API Eigen::Vector3d ToEigenVector(const CZelExtVector3d& rVector);
/// A math-library vector as a vector of the records.
ZELTYPES_API CZelExtVector3d ToExtVector(const Eigen::Vector3d& rVector);

/// A quaternion of the records (w, x, y, z) as a math-library quaternion, and back.
ZELTYPES_API Eigen::Quaterniond ToEigenQuaternion(const CZelExtQuaterniond& rQuaternion);
/// A math-library quaternion as a quaternion of the records, coefficients turned to w, x, y, z.
ZELTYPES_API CZelExtQuaterniond ToExtQuaternion(const Eigen::Quaterniond& rQuaternion);

/// The value and the lower triangle of the covariance of a state of tag 1;
/// 1000 and nothing written for any other tag.
ZELTYPES_API unsigned int ConvertStateToExt(const CZelInsStateVector3d& stState, CZelExtVector3d& rValue,
                                            CZelExtSymMatrix3d& rCov);
/// Attitude form: the quaternion in the order w, x, y, z and the lower triangle of the attitude-error
/// covariance; 1000 and nothing written unless the tag is 1.
ZELTYPES_API unsigned int ConvertStateToExt(const CZelInsStateUnitQuaterniond& stState,
                                            CZelExtQuaterniond& rValue, CZelExtSymMatrix3d& rCov);

/// A state of tag 1 from a value and a packed covariance, assigned whole to
/// rState: its time becomes the default time too, so a caller sets it
/// afterwards. Always 0.
ZELTYPES_API unsigned int ConvertExtToState(const CZelExtVector3d& stValue, const CZelExtSymMatrix3d& stCov,
                                            CZelInsStateVector3d& rState);
/// Attitude form: a state of tag 1 from a quaternion (w, x, y, z) and a packed covariance; the time of rState
/// is reset too. Always 0.
ZELTYPES_API unsigned int ConvertExtToState(const CZelExtQuaterniond& stValue,
                                            const CZelExtSymMatrix3d& stCov,
                                            CZelInsStateUnitQuaterniond& rState);

} // namespace ZELN

#endif
