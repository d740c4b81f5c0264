#ifndef ZELTYPES_CORE_INS_ZELINSOBSERVABLE_H
#define ZELTYPES_CORE_INS_ZELINSOBSERVABLE_H

/// \file
/// The data of every working state of the inertial filters: a time-tagged
/// estimate, a dense uncertainty matrix and the tag that says how to read it.
/// States are the working form only; they cross the library boundary in the
/// exchange records of Ext/Ins.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <Eigen/Core>

#include <cstdint>
#include <ostream>

namespace ZELN
{

/// How the uncertainty matrix of a state is to be read. Only 1 and 2 are
/// converted into each other; 3 to 6 can be stored and read.
enum EZelCovType : int32_t
{
    eCOVTYPE_INVALID = 0,   ///< no uncertainty set
    eCOVTYPE_COV = 1,       ///< covariance matrix
    eCOVTYPE_COVCHL = 2,    ///< lower Cholesky factor L of the covariance, covariance = L * L^T
    eCOVTYPE_COVMODCHL = 3, ///< modified Cholesky form of the covariance
    eCOVTYPE_INF = 4,       ///< information matrix
    eCOVTYPE_INFCHL = 5,    ///< Cholesky factor of the information matrix
    eCOVTYPE_INFMODCHL = 6  ///< modified Cholesky form of the information matrix
};

/// The label of a tag: "Cov", "CovChl", ...; "INVALID" for 0 and any value outside 1 to 6.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, EZelCovType eCovType);

/// Status of the inertial computations: up to c_uiINS_SUCCESS_MAX is success,
/// anything above a failure. Callers test for a status above 20, not for 0.
constexpr unsigned int c_uiINS_OK = 0;
/// Highest status that counts as success.
constexpr unsigned int c_uiINS_SUCCESS_MAX = 20;
constexpr unsigned int c_uiINS_PARTIAL = 51;       ///< some of the attitude angles failed
constexpr unsigned int c_uiINS_FAILURE = 1000;     ///< tags differ, a test failed, a degenerate input
constexpr unsigned int c_uiINS_UNSUPPORTED = 1001; ///< no conversion between the two tags
constexpr unsigned int c_uiINS_NOT_UNIT = 1003;    ///< an input that should be of unit length is not
constexpr unsigned int c_uiINS_ZERO_VECTOR = 1004; ///< a zero vector where a direction is needed

/// True for a status that counts as success (0 to 20).
inline bool IsInsSuccess(unsigned int uiStatus)
{
    return uiStatus <= c_uiINS_SUCCESS_MAX;
}

namespace ZelInsDetail
{
/// The uncertainty of dimension N: a fixed-size N x N matrix, a plain scalar for N = 1.
template <int N, class S> struct SCovOf
{
    typedef Eigen::Matrix<S, N, N> Type;
    static Type Zero() { return Type::Zero(); }
};
template <class S> struct SCovOf<1, S>
{
    typedef S Type;
    static Type Zero() { return S(0); }
};
} // namespace ZelInsDetail

/// A time-tagged estimate of type T with an N x N uncertainty of scalar S.
/// Units and frames of value and uncertainty are those of the filter that
/// fills the state; the library never scales them.
template <class T, int N, class S = double> class CZelObservable
{
public:
    /// Type of the estimate.
    typedef T ValueType;
    /// Type of the uncertainty: an N x N matrix, or the scalar for N = 1.
    typedef typename ZelInsDetail::SCovOf<N, S>::Type CovType;
    /// Dimension of the uncertainty.
    static constexpr int c_iDim = N;

    T m_oValue;             ///< the estimate
    CovType m_oCov;         ///< the uncertainty, column-major, read as m_eCovType says
    EZelCovType m_eCovType; ///< how m_oCov is to be read
    SMjdTime m_stTime;      ///< the time the estimate refers to

    /// The value of a matrix or quaternion type is left unset here; the
    /// concrete states set it.
    CZelObservable() : m_oValue(), m_oCov(ZelInsDetail::SCovOf<N, S>::Zero()), m_eCovType(eCOVTYPE_INVALID) {}
    /// Estimate with zero uncertainty and the invalid tag.
    explicit CZelObservable(const T& rValue)
        : m_oValue(rValue), m_oCov(ZelInsDetail::SCovOf<N, S>::Zero()), m_eCovType(eCOVTYPE_INVALID)
    {
    }
    /// Estimate with its uncertainty and the tag that says how to read it.
    CZelObservable(const T& rValue, const CovType& rCov, EZelCovType eCovType)
        : m_oValue(rValue), m_oCov(rCov), m_eCovType(eCovType)
    {
    }
    /// Default estimate, zero uncertainty, with the given tag.
    explicit CZelObservable(EZelCovType eCovType)
        : m_oValue(), m_oCov(ZelInsDetail::SCovOf<N, S>::Zero()), m_eCovType(eCovType)
    {
    }
    /// Copies another object.
    CZelObservable(const CZelObservable&) = default;
    /// Copies another object into this one.
    CZelObservable& operator=(const CZelObservable&) = default;

    /// Destroys the object.
    virtual ~CZelObservable() = default;

    /// Delivers the value in every case; the uncertainty only when reCovType,
    /// the form the caller expects, is the stored tag (0), else 1000.
    virtual unsigned int GetState(T& rValue, CovType& rCov, const EZelCovType& reCovType) const
    {
        rValue = m_oValue;
        if (reCovType != m_eCovType)
        {
            return c_uiINS_FAILURE;
        }
        rCov = m_oCov;
        return c_uiINS_OK;
    }

    /// Stores the three without any test; 0.
    virtual unsigned int SetState(const T& rValue, const CovType& rCov, EZelCovType eCovType)
    {
        m_oValue = rValue;
        m_oCov = rCov;
        m_eCovType = eCovType;
        return c_uiINS_OK;
    }
};

} // namespace ZELN

#endif
