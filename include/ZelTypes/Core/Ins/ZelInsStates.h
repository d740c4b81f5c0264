#ifndef ZELTYPES_CORE_INS_ZELINSSTATES_H
#define ZELTYPES_CORE_INS_ZELINSSTATES_H

// The five working states of the inertial filters. They fix the value's
// type and add only constructors; the default of each sets its value.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Ins/ZelInsGenericState.h>

#include <Eigen/Core>
#include <Eigen/Geometry>

namespace ZELN
{

typedef Eigen::Matrix<double, 6, 1> ZelVector6d;
typedef Eigen::Matrix<double, 12, 1> ZelVector12d;

// The instances are built once, in the library.
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

// A scalar estimate with its variance; default 0.0.
class ZELTYPES_API CZelInsStateScalard : public CZelGenericState<double, 1, double>
{
public:
    CZelInsStateScalard();
    explicit CZelInsStateScalard(const double& rValue);
    CZelInsStateScalard(const double& rValue, const double& rCov, EZelCovType eCovType);
    CZelInsStateScalard(const CZelInsStateScalard& rOther);
    CZelInsStateScalard& operator=(const CZelInsStateScalard& rOther);
    ~CZelInsStateScalard() override;
};

// A 3-vector with its 3 x 3 uncertainty (a position in m, a velocity in m/s,
// an angular rate in rad/s, as the filter sets them); default zero.
class ZELTYPES_API CZelInsStateVector3d : public CZelGenericState<Eigen::Vector3d, 3, double>
{
public:
    CZelInsStateVector3d();
    explicit CZelInsStateVector3d(const Eigen::Vector3d& rValue);
    CZelInsStateVector3d(const Eigen::Vector3d& rValue, const Eigen::Matrix3d& rCov, EZelCovType eCovType);
    CZelInsStateVector3d(const CZelInsStateVector3d& rOther);
    CZelInsStateVector3d& operator=(const CZelInsStateVector3d& rOther);
    ~CZelInsStateVector3d() override;
};

// A 6-vector with its 6 x 6 uncertainty; default zero.
class ZELTYPES_API CZelInsStateVector6d : public CZelGenericState<ZelVector6d, 6, double>
{
public:
    CZelInsStateVector6d();
    explicit CZelInsStateVector6d(const ZelVector6d& rValue);
    CZelInsStateVector6d(const ZelVector6d& rValue, const CovType& rCov, EZelCovType eCovType);
    CZelInsStateVector6d(const CZelInsStateVector6d& rOther);
    CZelInsStateVector6d& operator=(const CZelInsStateVector6d& rOther);
    ~CZelInsStateVector6d() override;
};

// A 12-vector with its 12 x 12 uncertainty; default zero.
class ZELTYPES_API CZelInsStateVector12d : public CZelGenericState<ZelVector12d, 12, double>
{
public:
    CZelInsStateVector12d();
    explicit CZelInsStateVector12d(const ZelVector12d& rValue);
    CZelInsStateVector12d(const ZelVector12d& rValue, const CovType& rCov, EZelCovType eCovType);
    CZelInsStateVector12d(const CZelInsStateVector12d& rOther);
    CZelInsStateVector12d& operator=(const CZelInsStateVector12d& rOther);
    ~CZelInsStateVector12d() override;
};

// An attitude quaternion (coefficients x, y, z, w in memory) with the 3 x 3
// uncertainty of the attitude error in rad^2, not of the four coefficients;
// default identity.
class ZELTYPES_API CZelInsStateUnitQuaterniond : public CZelGenericState<Eigen::Quaterniond, 3, double>
{
public:
    CZelInsStateUnitQuaterniond();
    explicit CZelInsStateUnitQuaterniond(const Eigen::Quaterniond& rValue);
    CZelInsStateUnitQuaterniond(const Eigen::Quaterniond& rValue, const Eigen::Matrix3d& rCov,
                                EZelCovType eCovType);
    CZelInsStateUnitQuaterniond(const CZelInsStateUnitQuaterniond& rOther);
    CZelInsStateUnitQuaterniond& operator=(const CZelInsStateUnitQuaterniond& rOther);
    ~CZelInsStateUnitQuaterniond() override;
};

} // namespace ZELN

#endif
