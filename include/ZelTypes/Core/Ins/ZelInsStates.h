#ifndef ZELTYPES_CORE_INS_ZELINSSTATES_H
#define ZELTYPES_CORE_INS_ZELINSSTATES_H

/// \file
/// The five working states of the inertial filters. They fix the value's
/// type and add only constructors; the default of each sets its value.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Ins/ZelInsGenericState.h>

#include <Eigen/Core>
#include <Eigen/Geometry>

namespace ZELN
{

/// Column vector of 6 doubles, the value of CZelInsStateVector6d.
typedef Eigen::Matrix<double, 6, 1> ZelVector6d;
/// Column vector of 12 doubles, the value of CZelInsStateVector12d.
typedef Eigen::Matrix<double, 12, 1> ZelVector12d;

/// The instances are built once, in the library.
extern template class ZELTYPES_API CZelObservable<double, 1, double>;
extern template class ZELTYPES_API CZelObservable<Eigen::Vector3d, 3, double>;
extern template class ZELTYPES_API CZelObservable<ZelVector6d, 6, double>;
extern template class ZELTYPES_API CZelObservable<ZelVector12d, 12, double>;
extern template class ZELTYPES_API CZelObservable<Eigen::Quaterniond, 3, double>;
extern template class ZELTYPES_API CZelGenericState<double, 1, double>;
extern template class ZELTYPES_API CZelGenericState<Eigen::Vector3d, 3, double>;
extern template class ZELTYPES_API CZelGenericState<ZelVector6d, 6, double>;
extern template class ZELTYPES_API CZelGenericState<ZelVector12d, 12, double>;
extern template class ZELTYPES_API CZelGenericState<Eigen::Quaterniond, 3, double>;

/// A scalar estimate with its variance; default 0.0.
class ZELTYPES_API CZelInsStateScalard : public CZelGenericState<double, 1, double>
{
public:
    /// Constructs the default state (for a record: holding no data).
    CZelInsStateScalard();
    /// From a value alone: variance 0.0, tag eCOVTYPE_INVALID.
    explicit CZelInsStateScalard(const double& rValue);
    /// From value, variance (or its square root, by eCovType) and tag, unchecked.
    CZelInsStateScalard(const double& rValue, const double& rCov, EZelCovType eCovType);
    /// Copies another object.
    CZelInsStateScalard(const CZelInsStateScalard& rOther);
    /// Copies another object into this one.
    CZelInsStateScalard& operator=(const CZelInsStateScalard& rOther);
    /// Destroys the object.
    ~CZelInsStateScalard() override;
};

/// A 3-vector with its 3 x 3 uncertainty (a position in m, a velocity in m/s,
/// an angular rate in rad/s, as the filter sets them); default zero.
class ZELTYPES_API CZelInsStateVector3d : public CZelGenericState<Eigen::Vector3d, 3, double>
{
public:
    /// Constructs the default state (for a record: holding no data).
    CZelInsStateVector3d();
    /// From a value alone: uncertainty zero, tag eCOVTYPE_INVALID.
    explicit CZelInsStateVector3d(const Eigen::Vector3d& rValue);
    /// From value, uncertainty matrix and its tag, unchecked.
    CZelInsStateVector3d(const Eigen::Vector3d& rValue, const Eigen::Matrix3d& rCov, EZelCovType eCovType);
    /// Copies another object.
    CZelInsStateVector3d(const CZelInsStateVector3d& rOther);
    /// Copies another object into this one.
    CZelInsStateVector3d& operator=(const CZelInsStateVector3d& rOther);
    /// Destroys the object.
    ~CZelInsStateVector3d() override;
};

/// A 6-vector with its 6 x 6 uncertainty; default zero.
class ZELTYPES_API CZelInsStateVector6d : public CZelGenericState<ZelVector6d, 6, double>
{
public:
    /// Constructs the default state (for a record: holding no data).
    CZelInsStateVector6d();
    /// From a value alone: uncertainty zero, tag eCOVTYPE_INVALID.
    explicit CZelInsStateVector6d(const ZelVector6d& rValue);
    /// From value, uncertainty matrix and its tag, unchecked.
    CZelInsStateVector6d(const ZelVector6d& rValue, const CovType& rCov, EZelCovType eCovType);
    /// Copies another object.
    CZelInsStateVector6d(const CZelInsStateVector6d& rOther);
    /// Copies another object into this one.
    CZelInsStateVector6d& operator=(const CZelInsStateVector6d& rOther);
    /// Destroys the object.
    ~CZelInsStateVector6d() override;
};

/// A 12-vector with its 12 x 12 uncertainty; default zero.
class ZELTYPES_API CZelInsStateVector12d : public CZelGenericState<ZelVector12d, 12, double>
{
public:
    /// Constructs the default state (for a record: holding no data).
    CZelInsStateVector12d();
    /// From a value alone: uncertainty zero, tag eCOVTYPE_INVALID.
    explicit CZelInsStateVector12d(const ZelVector12d& rValue);
    /// From value, uncertainty matrix and its tag, unchecked.
    CZelInsStateVector12d(const ZelVector12d& rValue, const CovType& rCov, EZelCovType eCovType);
    /// Copies another object.
    CZelInsStateVector12d(const CZelInsStateVector12d& rOther);
    /// Copies another object into this one.
    CZelInsStateVector12d& operator=(const CZelInsStateVector12d& rOther);
    /// Destroys the object.
    ~CZelInsStateVector12d() override;
};

/// An attitude quaternion (coefficients x, y, z, w in memory) with the 3 x 3
/// uncertainty of the attitude error in rad^2, not of the four coefficients;
/// default identity.
class ZELTYPES_API CZelInsStateUnitQuaterniond : public CZelGenericState<Eigen::Quaterniond, 3, double>
{
public:
    /// Constructs the default state (for a record: holding no data).
    CZelInsStateUnitQuaterniond();
    /// From a quaternion alone: uncertainty zero, tag eCOVTYPE_INVALID.
    explicit CZelInsStateUnitQuaterniond(const Eigen::Quaterniond& rValue);
    /// From quaternion, attitude-error uncertainty (rad^2 as a covariance) and its tag, unchecked.
    CZelInsStateUnitQuaterniond(const Eigen::Quaterniond& rValue, const Eigen::Matrix3d& rCov,
                                EZelCovType eCovType);
    /// Copies another object.
    CZelInsStateUnitQuaterniond(const CZelInsStateUnitQuaterniond& rOther);
    /// Copies another object into this one.
    CZelInsStateUnitQuaterniond& operator=(const CZelInsStateUnitQuaterniond& rOther);
    /// Destroys the object.
    ~CZelInsStateUnitQuaterniond() override;
};

} // namespace ZELN

#endif
