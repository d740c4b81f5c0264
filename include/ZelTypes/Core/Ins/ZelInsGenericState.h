#ifndef ZELTYPES_CORE_INS_ZELINSGENERICSTATE_H
#define ZELTYPES_CORE_INS_ZELINSGENERICSTATE_H

/// \file
/// The operations of a working state: accessors with status results, the
/// conversion between covariance and its Cholesky factor, and the tests of
/// definiteness. Sizes are fixed at compile time and the factorisations work
/// on stack copies: nothing here allocates.

#include <ZelTypes/Core/Ins/ZelInsObservable.h>

#include <Eigen/Cholesky>
#include <Eigen/Core>

#include <algorithm>
#include <cmath>

namespace ZELN
{

/// A time-tagged estimate with its operations; adds no member to CZelObservable.
template <class T, int N, class S = double> class CZelGenericState : public CZelObservable<T, N, S>
{
    typedef CZelObservable<T, N, S> Base;

public:
    /// Type of the estimate.
    typedef typename Base::ValueType ValueType;
    /// Type of the uncertainty: an N x N matrix, or the scalar for N = 1.
    typedef typename Base::CovType CovType;

    /// Constructs the default state (for a record: holding no data).
    CZelGenericState() = default;
    /// Uncertainty zero, tag 0.
    explicit CZelGenericState(const T& rValue) : Base(rValue) {}
    /// Estimate with its uncertainty and the tag that says how to read it.
    CZelGenericState(const T& rValue, const CovType& rCov, EZelCovType eCovType)
        : Base(rValue, rCov, eCovType)
    {
    }
    /// Default estimate, zero uncertainty, with the given tag.
    explicit CZelGenericState(EZelCovType eCovType) : Base(eCovType) {}
    /// Copies another object.
    CZelGenericState(const CZelGenericState&) = default;
    /// Copies another object into this one.
    CZelGenericState& operator=(const CZelGenericState&) = default;
    /// Destroys the object.
    ~CZelGenericState() override = default;

    /// Copies the estimate to rValue; returns 0.
    unsigned int GetValue(T& rValue) const
    {
        rValue = this->m_oValue;
        return c_uiINS_OK;
    }
    /// Stores the estimate; returns 0.
    unsigned int SetValue(const T& rValue)
    {
        this->m_oValue = rValue;
        return c_uiINS_OK;
    }

    /// The uncertainty when reCovType is the stored tag (0); else 1000 and rCov untouched.
    unsigned int GetCov(CovType& rCov, const EZelCovType& reCovType) const
    {
        if (reCovType != this->m_eCovType)
        {
            return c_uiINS_FAILURE;
        }
        rCov = this->m_oCov;
        return c_uiINS_OK;
    }
    /// Stores the uncertainty and its tag; returns 0.
    unsigned int SetCov(const CovType& rCov, EZelCovType eCovType)
    {
        this->m_oCov = rCov;
        this->m_eCovType = eCovType;
        return c_uiINS_OK;
    }

    /// Writes the tag and returns 1000 on success: the callers that read the
    /// tag ignore the result, and it stays that way.
    unsigned int GetCovType(EZelCovType& reCovType) const
    {
        reCovType = this->m_eCovType;
        return c_uiINS_FAILURE;
    }
    /// Overwrites the tag alone; the matrix is not touched, so the tag can be made to lie.
    unsigned int SetCovType(EZelCovType eCovType)
    {
        this->m_eCovType = eCovType;
        return c_uiINS_OK;
    }

    /// Time the estimate refers to.
    const SMjdTime& GetTime() const { return this->m_stTime; }
    /// Sets the time the estimate refers to.
    void SetTime(const SMjdTime& rstTime)
    {
        if (&rstTime != &this->m_stTime)
        {
            this->m_stTime = rstTime;
        }
    }

    /// Converts the uncertainty between covariance (1) and its lower Cholesky
    /// factor (2): 0 when done or when eNew is already the tag, 1000 when a
    /// test refuses the matrix, 1001 for any other pair; on failure nothing changes.
    unsigned int ConvertCovType(EZelCovType eNew)
    {
        if (eNew == this->m_eCovType)
        {
            return c_uiINS_OK;
        }
        if (this->m_eCovType == eCOVTYPE_COVCHL && eNew == eCOVTYPE_COV)
        {
            return CholeskyToCov();
        }
        if (this->m_eCovType == eCOVTYPE_COV && eNew == eCOVTYPE_COVCHL)
        {
            return CovToCholesky();
        }
        return c_uiINS_UNSUPPORTED;
    }

    /// Tag 1: LDLT of positive sign with all of D above 0; tags 2 and 3: a
    /// diagonal above 0; any other tag: false.
    bool IsCovPositiveDefinite() const
    {
        switch (this->m_eCovType)
        {
        case eCOVTYPE_COV:
            if constexpr (N == 1)
            {
                return this->m_oCov > S(0);
            }
            else
            {
                const Eigen::LDLT<CovType> oLdlt(this->m_oCov);
                return oLdlt.isPositive() && (oLdlt.vectorD().array() > S(0)).all();
            }
        case eCOVTYPE_COVCHL:
        case eCOVTYPE_COVMODCHL:
            return DiagonalAbove(S(0), false);
        default:
            return false;
        }
    }

    /// Tag 1: LDLT of positive sign (N = 1: not below 0, so a NaN passes);
    /// tags 2 and 3: a diagonal at or above 0; any other tag: false.
    bool IsCovPositiveSemiDefinite() const
    {
        switch (this->m_eCovType)
        {
        case eCOVTYPE_COV:
            if constexpr (N == 1)
            {
                return !(this->m_oCov < S(0));
            }
            else
            {
                const Eigen::LDLT<CovType> oLdlt(this->m_oCov);
                return oLdlt.isPositive();
            }
        case eCOVTYPE_COVCHL:
        case eCOVTYPE_COVMODCHL:
            return DiagonalAbove(S(0), true);
        default:
            return false;
        }
    }

private:
    /// Relative tolerance of the symmetry and reproduction tests of a covariance.
    static constexpr S c_dCOV_PRECISION = S(1e-12);

    bool DiagonalAbove(S dLimit, bool bOrEqual) const
    {
        if constexpr (N == 1)
        {
            return bOrEqual ? this->m_oCov >= dLimit : this->m_oCov > dLimit;
        }
        else
        {
            return bOrEqual ? (this->m_oCov.diagonal().array() >= dLimit).all()
                            : (this->m_oCov.diagonal().array() > dLimit).all();
        }
    }

    /// L * L^T after a test that L is exactly lower triangular; the scalar
    /// form squares without a test.
    unsigned int CholeskyToCov()
    {
        if constexpr (N == 1)
        {
            this->m_oCov = this->m_oCov * this->m_oCov;
        }
        else
        {
            if (!this->m_oCov.isLowerTriangular(S(0)))
            {
                return c_uiINS_FAILURE;
            }
            const CovType oCov = this->m_oCov * this->m_oCov.transpose();
            this->m_oCov = oCov;
        }
        this->m_eCovType = eCOVTYPE_COV;
        return c_uiINS_OK;
    }

    /// The factor of a copy A, after the tests: A symmetric within 1e-12, a
    /// diagonal above 0, LLT succeeds, the factor exactly lower triangular,
    /// and L * L^T equal to A within 1e-12. The scalar form: a above 0 and
    /// (a - s^2)^2 within 1e-24 of the smaller of (s^2)^2 and a^2.
    unsigned int CovToCholesky()
    {
        if constexpr (N == 1)
        {
            const S a = this->m_oCov;
            if (!(a > S(0)))
            {
                return c_uiINS_FAILURE;
            }
            const S s = std::sqrt(a);
            const S dSquare = s * s;
            const S dDiff = a - dSquare;
            const S dMin = std::min(dSquare * dSquare, a * a);
            if (!(dDiff * dDiff <= S(1e-24) * dMin))
            {
                return c_uiINS_FAILURE;
            }
            this->m_oCov = s;
        }
        else
        {
            const CovType oA = this->m_oCov;
            if (!oA.isApprox(oA.transpose(), c_dCOV_PRECISION))
            {
                return c_uiINS_FAILURE;
            }
            if (!(oA.diagonal().array() > S(0)).all())
            {
                return c_uiINS_FAILURE;
            }
            const Eigen::LLT<CovType> oLlt(oA);
            if (oLlt.info() != Eigen::Success)
            {
                return c_uiINS_FAILURE;
            }
            // The triangular view fills the part above the diagonal with zeros.
            const CovType oL = oLlt.matrixL();
            if (!oL.isLowerTriangular(S(0)))
            {
                return c_uiINS_FAILURE;
            }
            if (!(oL * oL.transpose()).isApprox(oA, c_dCOV_PRECISION))
            {
                return c_uiINS_FAILURE;
            }
            this->m_oCov = oL;
        }
        this->m_eCovType = eCOVTYPE_COVCHL;
        return c_uiINS_OK;
    }
};

} // namespace ZELN

#endif
