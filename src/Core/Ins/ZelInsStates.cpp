#include <ZelTypes/Core/Ins/ZelInsStates.h>

namespace ZELN
{

template class CZelObservable<double, 1, double>;
template class CZelObservable<Eigen::Vector3d, 3, double>;
template class CZelObservable<ZelVector6d, 6, double>;
template class CZelObservable<ZelVector12d, 12, double>;
template class CZelObservable<Eigen::Quaterniond, 3, double>;
template class CZelGenericState<double, 1, double>;
template class CZelGenericState<Eigen::Vector3d, 3, double>;
template class CZelGenericState<ZelVector6d, 6, double>;
template class CZelGenericState<ZelVector12d, 12, double>;
template class CZelGenericState<Eigen::Quaterniond, 3, double>;

std::ostream& operator<<(std::ostream& os, EZelCovType eCovType)
{
    switch (eCovType)
    {
    case eCOVTYPE_COV:
        return os << "Cov";
    case eCOVTYPE_COVCHL:
        return os << "CovChl";
    case eCOVTYPE_COVMODCHL:
        return os << "CovModChl";
    case eCOVTYPE_INF:
        return os << "Inf";
    case eCOVTYPE_INFCHL:
        return os << "InfChl";
    case eCOVTYPE_INFMODCHL:
        return os << "InfModChl";
    default:
        return os << "INVALID";
    }
}

// ------------------------------------------------------------------ CZelInsStateScalard

CZelInsStateScalard::CZelInsStateScalard() : CZelGenericState(0.0) {}
CZelInsStateScalard::CZelInsStateScalard(const double& rValue) : CZelGenericState(rValue) {}
CZelInsStateScalard::CZelInsStateScalard(const double& rValue, const double& rCov, EZelCovType eCovType)
    : CZelGenericState(rValue, rCov, eCovType)
{
}
CZelInsStateScalard::CZelInsStateScalard(const CZelInsStateScalard& rOther) = default;
CZelInsStateScalard& CZelInsStateScalard::operator=(const CZelInsStateScalard& rOther) = default;
CZelInsStateScalard::~CZelInsStateScalard() = default;

// ------------------------------------------------------------------ CZelInsStateVector3d

CZelInsStateVector3d::CZelInsStateVector3d() : CZelGenericState(Eigen::Vector3d::Zero()) {}
CZelInsStateVector3d::CZelInsStateVector3d(const Eigen::Vector3d& rValue) : CZelGenericState(rValue) {}
CZelInsStateVector3d::CZelInsStateVector3d(const Eigen::Vector3d& rValue, const Eigen::Matrix3d& rCov,
                                           EZelCovType eCovType)
    : CZelGenericState(rValue, rCov, eCovType)
{
}
CZelInsStateVector3d::CZelInsStateVector3d(const CZelInsStateVector3d& rOther) = default;
CZelInsStateVector3d& CZelInsStateVector3d::operator=(const CZelInsStateVector3d& rOther) = default;
CZelInsStateVector3d::~CZelInsStateVector3d() = default;

// ------------------------------------------------------------------ CZelInsStateVector6d

CZelInsStateVector6d::CZelInsStateVector6d() : CZelGenericState(ZelVector6d::Zero()) {}
CZelInsStateVector6d::CZelInsStateVector6d(const ZelVector6d& rValue) : CZelGenericState(rValue) {}
CZelInsStateVector6d::CZelInsStateVector6d(const ZelVector6d& rValue, const CovType& rCov,
                                           EZelCovType eCovType)
    : CZelGenericState(rValue, rCov, eCovType)
{
}
CZelInsStateVector6d::CZelInsStateVector6d(const CZelInsStateVector6d& rOther) = default;
CZelInsStateVector6d& CZelInsStateVector6d::operator=(const CZelInsStateVector6d& rOther) = default;
CZelInsStateVector6d::~CZelInsStateVector6d() = default;

// ------------------------------------------------------------------ CZelInsStateVector12d

CZelInsStateVector12d::CZelInsStateVector12d() : CZelGenericState(ZelVector12d::Zero()) {}
CZelInsStateVector12d::CZelInsStateVector12d(const ZelVector12d& rValue) : CZelGenericState(rValue) {}
CZelInsStateVector12d::CZelInsStateVector12d(const ZelVector12d& rValue, const CovType& rCov,
                                             EZelCovType eCovType)
    : CZelGenericState(rValue, rCov, eCovType)
{
}
CZelInsStateVector12d::CZelInsStateVector12d(const CZelInsStateVector12d& rOther) = default;
CZelInsStateVector12d& CZelInsStateVector12d::operator=(const CZelInsStateVector12d& rOther) = default;
CZelInsStateVector12d::~CZelInsStateVector12d() = default;

// ------------------------------------------------------------------ CZelInsStateUnitQuaterniond

CZelInsStateUnitQuaterniond::CZelInsStateUnitQuaterniond() : CZelGenericState(Eigen::Quaterniond::Identity())
{
}
CZelInsStateUnitQuaterniond::CZelInsStateUnitQuaterniond(const Eigen::Quaterniond& rValue)
    : CZelGenericState(rValue)
{
}
CZelInsStateUnitQuaterniond::CZelInsStateUnitQuaterniond(const Eigen::Quaterniond& rValue,
                                                         const Eigen::Matrix3d& rCov, EZelCovType eCovType)
    : CZelGenericState(rValue, rCov, eCovType)
{
}
CZelInsStateUnitQuaterniond::CZelInsStateUnitQuaterniond(const CZelInsStateUnitQuaterniond& rOther) = default;
CZelInsStateUnitQuaterniond&
CZelInsStateUnitQuaterniond::operator=(const CZelInsStateUnitQuaterniond& rOther) = default;
CZelInsStateUnitQuaterniond::~CZelInsStateUnitQuaterniond() = default;

} // namespace ZELN
