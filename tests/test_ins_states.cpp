// The working states of the inertial filters: accessors with their status
// codes, the conversion between a covariance and its Cholesky factor, the
// tests of definiteness, and the conversions to and from the exchange records.
#include "ZelSamplesIns.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Ins/ZelInsStates.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::CRecordingHook;

namespace
{
const double c_dNaN = std::numeric_limits<double>::quiet_NaN();
const double c_dInf = std::numeric_limits<double>::infinity();

// Cholesky-Banachiewicz, written out: the factor the conversion must give.
template <int N> Eigen::Matrix<double, N, N> HandCholesky(const Eigen::Matrix<double, N, N>& A)
{
    Eigen::Matrix<double, N, N> L = Eigen::Matrix<double, N, N>::Zero();
    for (int i = 0; i < N; ++i)
    {
        for (int j = 0; j <= i; ++j)
        {
            double dSum = A(i, j);
            for (int k = 0; k < j; ++k)
            {
                dSum -= L(i, k) * L(j, k);
            }
            L(i, j) = i == j ? std::sqrt(dSum) : dSum / L(j, j);
        }
    }
    return L;
}

// L * L^T by the sum of products.
template <int N> Eigen::Matrix<double, N, N> HandOuter(const Eigen::Matrix<double, N, N>& L)
{
    Eigen::Matrix<double, N, N> C;
    for (int i = 0; i < N; ++i)
    {
        for (int j = 0; j < N; ++j)
        {
            double dSum = 0.0;
            for (int k = 0; k < N; ++k)
            {
                dSum += L(i, k) * L(j, k);
            }
            C(i, j) = dSum;
        }
    }
    return C;
}

// Frobenius distance relative to the norm of b.
template <class M> double RelativeDistance(const M& a, const M& b)
{
    double dDiff = 0.0;
    double dNorm = 0.0;
    for (int i = 0; i < a.rows(); ++i)
    {
        for (int j = 0; j < a.cols(); ++j)
        {
            dDiff += (a(i, j) - b(i, j)) * (a(i, j) - b(i, j));
            dNorm += b(i, j) * b(i, j);
        }
    }
    return std::sqrt(dDiff / dNorm);
}

template <int N> Eigen::Matrix<double, N, N> SampleCov()
{
    if constexpr (N == 3)
    {
        return ZelSample::InsCov3();
    }
    else
    {
        return ZelSample::InsCovN<N>();
    }
}

template <class TState, int N> void ExpectCholeskyRoundTrip(const typename TState::ValueType& rValue)
{
    const Eigen::Matrix<double, N, N> A = SampleCov<N>();
    TState st(rValue, A, eCOVTYPE_COV);
    ASSERT_EQ(0u, st.ConvertCovType(eCOVTYPE_COVCHL));
    EXPECT_EQ(eCOVTYPE_COVCHL, st.m_eCovType);
    const Eigen::Matrix<double, N, N> L = st.m_oCov;
    for (int i = 0; i < N; ++i)
    {
        for (int j = i + 1; j < N; ++j)
        {
            EXPECT_EQ(0.0, L(i, j)) << "exactly zero above the diagonal";
        }
        EXPECT_GT(L(i, i), 0.0);
    }
    EXPECT_LT(RelativeDistance(L, HandCholesky<N>(A)), 1e-13);
    EXPECT_LT(RelativeDistance(HandOuter<N>(L), A), 1e-13);

    ASSERT_EQ(0u, st.ConvertCovType(eCOVTYPE_COV));
    EXPECT_EQ(eCOVTYPE_COV, st.m_eCovType);
    EXPECT_LT(RelativeDistance(Eigen::Matrix<double, N, N>(st.m_oCov), HandOuter<N>(L)), 1e-15);
    EXPECT_LT(RelativeDistance(Eigen::Matrix<double, N, N>(st.m_oCov), A), 1e-13);
}
} // namespace

// ------------------------------------------------------------------ tag labels

TEST(InsCovType, LabelsRowByRow)
{
    const struct
    {
        int iValue;
        const char* szLabel;
    } astRows[] = {{0, "INVALID"}, {1, "Cov"},       {2, "CovChl"},  {3, "CovModChl"}, {4, "Inf"},
                   {5, "InfChl"},  {6, "InfModChl"}, {7, "INVALID"}, {-1, "INVALID"},  {1000, "INVALID"}};
    for (const auto& rRow : astRows)
    {
        std::ostringstream os;
        os << static_cast<EZelCovType>(rRow.iValue);
        EXPECT_EQ(rRow.szLabel, os.str()) << rRow.iValue;
    }
    EXPECT_EQ(0, static_cast<int>(eCOVTYPE_INVALID));
    EXPECT_EQ(1, static_cast<int>(eCOVTYPE_COV));
    EXPECT_EQ(2, static_cast<int>(eCOVTYPE_COVCHL));
    EXPECT_EQ(3, static_cast<int>(eCOVTYPE_COVMODCHL));
    EXPECT_EQ(4, static_cast<int>(eCOVTYPE_INF));
    EXPECT_EQ(5, static_cast<int>(eCOVTYPE_INFCHL));
    EXPECT_EQ(6, static_cast<int>(eCOVTYPE_INFMODCHL));
    EXPECT_EQ(4u, sizeof(EZelCovType));
}

// ------------------------------------------------------------------ construction

TEST(InsStates, DefaultsOfTheFiveClasses)
{
    const SMjdTime stDefaultTime;
    const CZelInsStateScalard stScalar;
    EXPECT_EQ(0.0, stScalar.m_oValue);
    EXPECT_EQ(0.0, stScalar.m_oCov);
    EXPECT_EQ(eCOVTYPE_INVALID, stScalar.m_eCovType);
    EXPECT_TRUE(stScalar.m_stTime == stDefaultTime);
    EXPECT_EQ(MJDACC_NANOSECOND, stScalar.m_stTime.m_eAccuracy);

    const CZelInsStateVector3d st3;
    EXPECT_TRUE(st3.m_oValue == Eigen::Vector3d::Zero());
    EXPECT_TRUE(st3.m_oCov == Eigen::Matrix3d::Zero());
    EXPECT_EQ(eCOVTYPE_INVALID, st3.m_eCovType);

    const CZelInsStateVector6d st6;
    EXPECT_TRUE(st6.m_oValue == ZelVector6d::Zero());
    EXPECT_TRUE(st6.m_oCov == (Eigen::Matrix<double, 6, 6>::Zero()));
    EXPECT_EQ(eCOVTYPE_INVALID, st6.m_eCovType);

    const CZelInsStateVector12d st12;
    EXPECT_TRUE(st12.m_oValue == ZelVector12d::Zero());
    EXPECT_TRUE(st12.m_oCov == (Eigen::Matrix<double, 12, 12>::Zero()));
    EXPECT_EQ(eCOVTYPE_INVALID, st12.m_eCovType);

    const CZelInsStateUnitQuaterniond stQ;
    EXPECT_EQ(0.0, stQ.m_oValue.x());
    EXPECT_EQ(0.0, stQ.m_oValue.y());
    EXPECT_EQ(0.0, stQ.m_oValue.z());
    EXPECT_EQ(1.0, stQ.m_oValue.w());
    EXPECT_TRUE(stQ.m_oCov == Eigen::Matrix3d::Zero());
    EXPECT_EQ(eCOVTYPE_INVALID, stQ.m_eCovType);
    EXPECT_EQ(3, CZelInsStateUnitQuaterniond::c_iDim) << "the uncertainty is over the attitude error";
}

TEST(InsStates, Constructors)
{
    const Eigen::Vector3d oValue(1.0, 2.0, 3.0);
    const CZelInsStateVector3d stValue(oValue);
    EXPECT_TRUE(stValue.m_oValue == oValue);
    EXPECT_TRUE(stValue.m_oCov == Eigen::Matrix3d::Zero());
    EXPECT_EQ(eCOVTYPE_INVALID, stValue.m_eCovType);

    const CZelInsStateVector3d stFull(oValue, ZelSample::InsCov3(), eCOVTYPE_INF);
    EXPECT_TRUE(stFull.m_oCov == ZelSample::InsCov3());
    EXPECT_EQ(eCOVTYPE_INF, stFull.m_eCovType);

    CZelInsStateVector3d stCopy(stFull);
    EXPECT_TRUE(stCopy.m_oValue == oValue);
    EXPECT_EQ(eCOVTYPE_INF, stCopy.m_eCovType);
    stCopy = stValue;
    EXPECT_EQ(eCOVTYPE_INVALID, stCopy.m_eCovType);

    // The template's own constructor from a tag alone.
    const CZelGenericState<Eigen::Vector3d, 3, double> stTag(eCOVTYPE_INFCHL);
    EXPECT_EQ(eCOVTYPE_INFCHL, stTag.m_eCovType);
    EXPECT_TRUE(stTag.m_oCov == Eigen::Matrix3d::Zero());
    const CZelGenericState<double, 1, double> stScalarTag(eCOVTYPE_COV);
    EXPECT_EQ(eCOVTYPE_COV, stScalarTag.m_eCovType);
    EXPECT_EQ(0.0, stScalarTag.m_oCov);

    const CZelInsStateScalard stScalar(2.5, 0.25, eCOVTYPE_COV);
    EXPECT_EQ(2.5, stScalar.m_oValue);
    EXPECT_EQ(0.25, stScalar.m_oCov);
    const CZelInsStateUnitQuaterniond stQ(Eigen::Quaterniond(0.5, 0.5, -0.5, 0.5));
    EXPECT_EQ(0.5, stQ.m_oValue.w());
    EXPECT_EQ(-0.5, stQ.m_oValue.y());
}

// ------------------------------------------------------------------ accessors

TEST(InsStates, DefaultStateRefusesTagOne)
{
    CZelInsStateVector3d st;
    st.m_oValue = Eigen::Vector3d(4.0, 5.0, 6.0);
    EXPECT_EQ(1001u, st.ConvertCovType(eCOVTYPE_COV));
    EXPECT_EQ(eCOVTYPE_INVALID, st.m_eCovType);

    Eigen::Vector3d oValue(0.0, 0.0, 0.0);
    Eigen::Matrix3d oCov = Eigen::Matrix3d::Constant(7.0);
    const EZelCovType eExpected = eCOVTYPE_COV;
    EXPECT_EQ(1000u, st.GetState(oValue, oCov, eExpected));
    EXPECT_TRUE(oValue == Eigen::Vector3d(4.0, 5.0, 6.0)) << "the value is delivered in every case";
    EXPECT_TRUE(oCov == Eigen::Matrix3d::Constant(7.0)) << "the uncertainty is not";
}

TEST(InsStates, GetStateSetStateThroughTheBase)
{
    CZelInsStateVector3d st;
    CZelObservable<Eigen::Vector3d, 3, double>& rBase = st;
    // SetState makes no test: an asymmetric matrix under the tag of a factor.
    Eigen::Matrix3d oOdd;
    oOdd << 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0;
    EXPECT_EQ(0u, rBase.SetState(Eigen::Vector3d(1.0, 1.0, 1.0), oOdd, eCOVTYPE_COVCHL));
    EXPECT_TRUE(st.m_oCov == oOdd);
    EXPECT_EQ(eCOVTYPE_COVCHL, st.m_eCovType);

    Eigen::Vector3d oValue;
    Eigen::Matrix3d oCov = Eigen::Matrix3d::Zero();
    EXPECT_EQ(0u, rBase.GetState(oValue, oCov, eCOVTYPE_COVCHL));
    EXPECT_TRUE(oCov == oOdd);
    EXPECT_TRUE(oValue == Eigen::Vector3d(1.0, 1.0, 1.0));
}

TEST(InsStates, ValueCovAndTagAccessors)
{
    CZelInsStateVector6d st;
    ZelVector6d oValue;
    oValue << 1, 2, 3, 4, 5, 6;
    EXPECT_EQ(0u, st.SetValue(oValue));
    ZelVector6d oBack = ZelVector6d::Zero();
    EXPECT_EQ(0u, st.GetValue(oBack));
    EXPECT_TRUE(oBack == oValue);

    const Eigen::Matrix<double, 6, 6> oCov = ZelSample::InsCovN<6>();
    EXPECT_EQ(0u, st.SetCov(oCov, eCOVTYPE_COV));
    Eigen::Matrix<double, 6, 6> oCovBack = Eigen::Matrix<double, 6, 6>::Zero();
    EXPECT_EQ(1000u, st.GetCov(oCovBack, eCOVTYPE_INF));
    EXPECT_TRUE(oCovBack == (Eigen::Matrix<double, 6, 6>::Zero())) << "untouched on a tag mismatch";
    EXPECT_EQ(0u, st.GetCov(oCovBack, eCOVTYPE_COV));
    EXPECT_TRUE(oCovBack == oCov);

    // GetCovType reports 1000 on success, with the right tag.
    EZelCovType eTag = eCOVTYPE_INVALID;
    EXPECT_EQ(1000u, st.GetCovType(eTag));
    EXPECT_EQ(eCOVTYPE_COV, eTag);

    // SetCovType changes the tag alone, so it can be made to lie.
    EXPECT_EQ(0u, st.SetCovType(eCOVTYPE_COVCHL));
    EXPECT_EQ(1000u, st.GetCovType(eTag));
    EXPECT_EQ(eCOVTYPE_COVCHL, eTag);
    EXPECT_TRUE(st.m_oCov == oCov);
    EXPECT_EQ(1000u, st.ConvertCovType(eCOVTYPE_COV)) << "a full matrix is no lower factor";
}

TEST(InsStates, Time)
{
    CZelInsStateScalard st;
    EXPECT_TRUE(st.GetTime() == SMjdTime());
    const SMjdTime stTime = ZelSample::InsTime();
    st.SetTime(stTime);
    EXPECT_TRUE(st.GetTime() == stTime);
    EXPECT_EQ(stTime.m_lMjdDay, st.GetTime().m_lMjdDay);
    st.SetTime(st.GetTime()); // the member itself: nothing happens
    EXPECT_EQ(stTime.m_lMjdDay, st.GetTime().m_lMjdDay);
    EXPECT_EQ(stTime.m_dMjdFractMilliseconds, st.GetTime().m_dMjdFractMilliseconds);
}

// ------------------------------------------------------------------ ConvertCovType

TEST(InsConvertCovType, CholeskyBothWaysForEveryDimension)
{
    ExpectCholeskyRoundTrip<CZelInsStateVector3d, 3>(Eigen::Vector3d(1.0, 2.0, 3.0));
    ExpectCholeskyRoundTrip<CZelInsStateVector6d, 6>(ZelVector6d::Constant(0.5));
    ExpectCholeskyRoundTrip<CZelInsStateVector12d, 12>(ZelVector12d::Constant(-1.0));
    ExpectCholeskyRoundTrip<CZelInsStateUnitQuaterniond, 3>(Eigen::Quaterniond(0.5, 0.5, -0.5, 0.5));
}

TEST(InsConvertCovType, TheSameTagSucceedsWhateverItIs)
{
    for (const EZelCovType eTag : {eCOVTYPE_INVALID, eCOVTYPE_COV, eCOVTYPE_COVCHL, eCOVTYPE_INFCHL})
    {
        Eigen::Matrix3d oOdd;
        oOdd << 1.0, 2.0, 3.0, 4.0, -5.0, 6.0, 7.0, 8.0, 0.0;
        CZelInsStateVector3d st(Eigen::Vector3d::Zero(), oOdd, eTag);
        EXPECT_EQ(0u, st.ConvertCovType(eTag)) << eTag;
        EXPECT_TRUE(st.m_oCov == oOdd);
        EXPECT_EQ(eTag, st.m_eCovType);
        CZelInsStateScalard stScalar(1.0, -4.0, eTag);
        EXPECT_EQ(0u, stScalar.ConvertCovType(eTag));
        EXPECT_EQ(-4.0, stScalar.m_oCov);
    }
}

TEST(InsConvertCovType, ZeroOnTheDiagonalFailsThoughSemiDefinite)
{
    Eigen::Matrix3d oCov = Eigen::Matrix3d::Zero();
    oCov(1, 1) = 1.0;
    oCov(2, 2) = 2.0;
    CZelInsStateVector3d st(Eigen::Vector3d::Zero(), oCov, eCOVTYPE_COV);
    EXPECT_TRUE(st.IsCovPositiveSemiDefinite());
    EXPECT_FALSE(st.IsCovPositiveDefinite());
    EXPECT_EQ(1000u, st.ConvertCovType(eCOVTYPE_COVCHL));
    EXPECT_TRUE(st.m_oCov == oCov);
    EXPECT_EQ(eCOVTYPE_COV, st.m_eCovType);
}

TEST(InsConvertCovType, AsymmetryBelowTheBoundConverts)
{
    // ||A - A^T||^2 = 2 d^2 against 1e-24 ||A||^2 (about 3.6e-22): d = 2e-12 passes.
    Eigen::Matrix3d A = ZelSample::InsCov3();
    A(0, 1) += 2e-12;
    CZelInsStateVector3d st(Eigen::Vector3d::Zero(), A, eCOVTYPE_COV);
    ASSERT_EQ(0u, st.ConvertCovType(eCOVTYPE_COVCHL));
    const Eigen::Matrix3d L = st.m_oCov;
    // The factor reproduces A within the same bound.
    const Eigen::Matrix3d oOuter = HandOuter<3>(L);
    double dDiff = 0.0;
    double dNorm = 0.0;
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            dDiff += (oOuter(i, j) - A(i, j)) * (oOuter(i, j) - A(i, j));
            dNorm += A(i, j) * A(i, j);
        }
    }
    EXPECT_LE(dDiff, 1e-24 * dNorm);

    // d = 1e-9 is far above it: refused, nothing changed.
    Eigen::Matrix3d B = ZelSample::InsCov3();
    B(0, 1) += 1e-9;
    CZelInsStateVector3d stB(Eigen::Vector3d::Zero(), B, eCOVTYPE_COV);
    EXPECT_EQ(1000u, stB.ConvertCovType(eCOVTYPE_COVCHL));
    EXPECT_TRUE(stB.m_oCov == B);
    EXPECT_EQ(eCOVTYPE_COV, stB.m_eCovType);
}

TEST(InsConvertCovType, RefusedCovariances)
{
    Eigen::Matrix3d oIndefinite;
    oIndefinite << 1.0, 2.0, 0.0, 2.0, 1.0, 0.0, 0.0, 0.0, 1.0; // positive diagonal, eigenvalue -1
    Eigen::Matrix3d oNegative = ZelSample::InsCov3();
    oNegative(2, 2) = -16.0;
    Eigen::Matrix3d oNaN = ZelSample::InsCov3();
    oNaN(1, 1) = c_dNaN;
    Eigen::Matrix3d oInf = ZelSample::InsCov3();
    oInf(0, 0) = c_dInf;
    for (const Eigen::Matrix3d& rCov : {oIndefinite, oNegative, oNaN, oInf})
    {
        CZelInsStateVector3d st(Eigen::Vector3d::Zero(), rCov, eCOVTYPE_COV);
        EXPECT_EQ(1000u, st.ConvertCovType(eCOVTYPE_COVCHL));
        EXPECT_EQ(eCOVTYPE_COV, st.m_eCovType);
        for (int k = 0; k < 9; ++k)
        {
            EXPECT_TRUE(st.m_oCov(k) == rCov(k) || (std::isnan(st.m_oCov(k)) && std::isnan(rCov(k))));
        }
    }
}

TEST(InsConvertCovType, FactorWithAnythingAboveTheDiagonalFails)
{
    Eigen::Matrix3d L = HandCholesky<3>(ZelSample::InsCov3());
    L(0, 2) = 1e-300;
    CZelInsStateVector3d st(Eigen::Vector3d::Zero(), L, eCOVTYPE_COVCHL);
    EXPECT_EQ(1000u, st.ConvertCovType(eCOVTYPE_COV));
    EXPECT_EQ(eCOVTYPE_COVCHL, st.m_eCovType);
    EXPECT_TRUE(st.m_oCov == L);
    // Below the diagonal anything goes.
    L(0, 2) = 0.0;
    L(2, 0) = -7.0;
    CZelInsStateVector3d stLower(Eigen::Vector3d::Zero(), L, eCOVTYPE_COVCHL);
    EXPECT_EQ(0u, stLower.ConvertCovType(eCOVTYPE_COV));
    EXPECT_LT(RelativeDistance(Eigen::Matrix3d(stLower.m_oCov), HandOuter<3>(L)), 1e-15);
}

TEST(InsConvertCovType, OtherPairsAreUnsupported)
{
    const struct
    {
        EZelCovType eFrom;
        EZelCovType eTo;
    } astPairs[] = {{eCOVTYPE_INVALID, eCOVTYPE_COV},      {eCOVTYPE_COV, eCOVTYPE_INF},
                    {eCOVTYPE_COVCHL, eCOVTYPE_COVMODCHL}, {eCOVTYPE_INF, eCOVTYPE_COV},
                    {eCOVTYPE_INFCHL, eCOVTYPE_COVCHL},    {eCOVTYPE_COVMODCHL, eCOVTYPE_COV},
                    {eCOVTYPE_COV, eCOVTYPE_INVALID},      {eCOVTYPE_INFMODCHL, eCOVTYPE_INF}};
    for (const auto& rPair : astPairs)
    {
        CZelInsStateVector3d st(Eigen::Vector3d::Zero(), ZelSample::InsCov3(), rPair.eFrom);
        EXPECT_EQ(1001u, st.ConvertCovType(rPair.eTo)) << rPair.eFrom << " to " << rPair.eTo;
        EXPECT_EQ(rPair.eFrom, st.m_eCovType);
        EXPECT_TRUE(st.m_oCov == ZelSample::InsCov3());
        CZelInsStateScalard stScalar(0.0, 4.0, rPair.eFrom);
        EXPECT_EQ(1001u, stScalar.ConvertCovType(rPair.eTo));
        EXPECT_EQ(4.0, stScalar.m_oCov);
    }
}

TEST(InsConvertCovType, ScalarForm)
{
    CZelInsStateScalard st(0.0, 9.0, eCOVTYPE_COV);
    EXPECT_EQ(0u, st.ConvertCovType(eCOVTYPE_COVCHL));
    EXPECT_EQ(3.0, st.m_oCov);
    EXPECT_EQ(eCOVTYPE_COVCHL, st.m_eCovType);
    EXPECT_EQ(0u, st.ConvertCovType(eCOVTYPE_COV));
    EXPECT_EQ(9.0, st.m_oCov);

    // From the factor the value is squared with no test, a negative one too.
    CZelInsStateScalard stNegative(0.0, -3.0, eCOVTYPE_COVCHL);
    EXPECT_EQ(0u, stNegative.ConvertCovType(eCOVTYPE_COV));
    EXPECT_EQ(9.0, stNegative.m_oCov);

    // The value must exceed 0, and s^2 must reproduce it.
    for (const double dBad : {0.0, -1.0, c_dNaN, c_dInf})
    {
        CZelInsStateScalard stBad(0.0, dBad, eCOVTYPE_COV);
        EXPECT_EQ(1000u, stBad.ConvertCovType(eCOVTYPE_COVCHL)) << dBad;
        EXPECT_EQ(eCOVTYPE_COV, stBad.m_eCovType);
    }
    CZelInsStateScalard stTwo(0.0, 2.0, eCOVTYPE_COV);
    EXPECT_EQ(0u, stTwo.ConvertCovType(eCOVTYPE_COVCHL));
    EXPECT_EQ(std::sqrt(2.0), stTwo.m_oCov);
}

// ------------------------------------------------------------------ definiteness

TEST(InsDefiniteness, CovarianceTag)
{
    CZelInsStateVector3d st(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    EXPECT_TRUE(st.IsCovPositiveDefinite());
    EXPECT_TRUE(st.IsCovPositiveSemiDefinite());
    st.m_oCov = ZelSample::InsCov3();
    EXPECT_TRUE(st.IsCovPositiveDefinite());
    st.m_oCov = Eigen::Vector3d(1.0, -1.0, 1.0).asDiagonal();
    EXPECT_FALSE(st.IsCovPositiveDefinite());
    EXPECT_FALSE(st.IsCovPositiveSemiDefinite());
    st.m_oCov = Eigen::Matrix3d::Zero();
    EXPECT_FALSE(st.IsCovPositiveDefinite());
    EXPECT_TRUE(st.IsCovPositiveSemiDefinite());

    CZelInsStateVector12d st12(ZelVector12d::Zero(), ZelSample::InsCovN<12>(), eCOVTYPE_COV);
    EXPECT_TRUE(st12.IsCovPositiveDefinite());
    st12.m_oCov(5, 5) = -1000.0;
    EXPECT_FALSE(st12.IsCovPositiveDefinite());
}

TEST(InsDefiniteness, FactorTagsLookAtTheDiagonal)
{
    for (const EZelCovType eTag : {eCOVTYPE_COVCHL, eCOVTYPE_COVMODCHL})
    {
        Eigen::Matrix3d oFactor;
        oFactor << 1.0, 0.0, 0.0, -5.0, 2.0, 0.0, 9.0, -9.0, 3.0;
        CZelInsStateVector3d st(Eigen::Vector3d::Zero(), oFactor, eTag);
        EXPECT_TRUE(st.IsCovPositiveDefinite());
        EXPECT_TRUE(st.IsCovPositiveSemiDefinite());
        st.m_oCov(1, 1) = 0.0;
        EXPECT_FALSE(st.IsCovPositiveDefinite());
        EXPECT_TRUE(st.IsCovPositiveSemiDefinite());
        st.m_oCov(1, 1) = -0.5;
        EXPECT_FALSE(st.IsCovPositiveDefinite());
        EXPECT_FALSE(st.IsCovPositiveSemiDefinite());
    }
}

TEST(InsDefiniteness, OtherTagsAreFalseEvenForTheIdentity)
{
    for (const EZelCovType eTag : {eCOVTYPE_INVALID, eCOVTYPE_INF, eCOVTYPE_INFCHL, eCOVTYPE_INFMODCHL})
    {
        const CZelInsStateVector3d st(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eTag);
        EXPECT_FALSE(st.IsCovPositiveSemiDefinite()) << eTag;
        EXPECT_FALSE(st.IsCovPositiveDefinite()) << eTag;
        const CZelInsStateScalard stScalar(0.0, 1.0, eTag);
        EXPECT_FALSE(stScalar.IsCovPositiveSemiDefinite());
        EXPECT_FALSE(stScalar.IsCovPositiveDefinite());
    }
}

TEST(InsDefiniteness, ScalarForm)
{
    const struct
    {
        EZelCovType eTag;
        double dCov;
        bool bDefinite;
        bool bSemiDefinite;
    } astRows[] = {{eCOVTYPE_COV, 2.0, true, true},          {eCOVTYPE_COV, 0.0, false, true},
                   {eCOVTYPE_COV, -1.0, false, false},       {eCOVTYPE_COV, c_dNaN, false, true},
                   {eCOVTYPE_COVCHL, 0.5, true, true},       {eCOVTYPE_COVCHL, 0.0, false, true},
                   {eCOVTYPE_COVMODCHL, -2.0, false, false}, {eCOVTYPE_COVCHL, c_dNaN, false, false}};
    for (const auto& rRow : astRows)
    {
        const CZelInsStateScalard st(0.0, rRow.dCov, rRow.eTag);
        EXPECT_EQ(rRow.bDefinite, st.IsCovPositiveDefinite()) << rRow.eTag << " " << rRow.dCov;
        EXPECT_EQ(rRow.bSemiDefinite, st.IsCovPositiveSemiDefinite()) << rRow.eTag << " " << rRow.dCov;
    }
}

// ------------------------------------------------------------------ exchange records

TEST(InsStateConversion, VectorStateToRecords)
{
    Eigen::Matrix3d oCov;
    oCov << 11.0, 12.0, 13.0, 21.0, 22.0, 23.0, 31.0, 32.0, 33.0; // the lower triangle is taken
    const CZelInsStateVector3d st(Eigen::Vector3d(1.0, -2.0, 3.5), oCov, eCOVTYPE_COV);
    CZelExtVector3d stValue;
    CZelExtSymMatrix3d stCov;
    EXPECT_EQ(0u, ConvertStateToExt(st, stValue, stCov));
    EXPECT_EQ(1.0, stValue.m_adElem[0]);
    EXPECT_EQ(-2.0, stValue.m_adElem[1]);
    EXPECT_EQ(3.5, stValue.m_adElem[2]);
    const double adPacked[6] = {11.0, 21.0, 22.0, 31.0, 32.0, 33.0};
    for (size_t k = 0; k < 6; ++k)
    {
        EXPECT_EQ(adPacked[k], stCov.m_adElem[k]) << k;
    }

    for (const EZelCovType eTag : {eCOVTYPE_INVALID, eCOVTYPE_COVCHL, eCOVTYPE_INF})
    {
        const CZelInsStateVector3d stOther(Eigen::Vector3d(1.0, 1.0, 1.0), oCov, eTag);
        CZelExtVector3d stUntouched(9.0);
        CZelExtSymMatrix3d stCovUntouched(9.0);
        EXPECT_EQ(1000u, ConvertStateToExt(stOther, stUntouched, stCovUntouched));
        EXPECT_TRUE(stUntouched == CZelExtVector3d(9.0));
        EXPECT_TRUE(stCovUntouched == CZelExtSymMatrix3d(9.0));
    }
}

TEST(InsStateConversion, QuaternionOrderTurnsBothWays)
{
    // Eigen stores x, y, z, w; the record w, x, y, z.
    const Eigen::Quaterniond q(0.1, 0.2, 0.3, 0.4); // w, x, y, z
    EXPECT_EQ(0.2, q.coeffs()(0));
    const CZelInsStateUnitQuaterniond st(q, ZelSample::InsCov3(), eCOVTYPE_COV);
    CZelExtQuaterniond stQ;
    CZelExtSymMatrix3d stCov;
    EXPECT_EQ(0u, ConvertStateToExt(st, stQ, stCov));
    EXPECT_EQ(0.1, stQ.m_adElem[0]);
    EXPECT_EQ(0.2, stQ.m_adElem[1]);
    EXPECT_EQ(0.3, stQ.m_adElem[2]);
    EXPECT_EQ(0.4, stQ.m_adElem[3]);
    EXPECT_EQ(1.5, stCov(2, 1));

    CZelInsStateUnitQuaterniond stBack;
    stBack.SetTime(ZelSample::InsTime());
    EXPECT_EQ(0u, ConvertExtToState(stQ, stCov, stBack));
    EXPECT_EQ(0.1, stBack.m_oValue.w());
    EXPECT_EQ(0.2, stBack.m_oValue.x());
    EXPECT_EQ(0.4, stBack.m_oValue.z());
    EXPECT_TRUE(stBack.m_oCov == ZelSample::InsCov3());
    EXPECT_EQ(eCOVTYPE_COV, stBack.m_eCovType);
    EXPECT_TRUE(stBack.GetTime() == SMjdTime()) << "the time of the temporary comes along";

    CZelInsStateUnitQuaterniond stWrongTag(q, ZelSample::InsCov3(), eCOVTYPE_COVCHL);
    EXPECT_EQ(1000u, ConvertStateToExt(stWrongTag, stQ, stCov));
}

TEST(InsStateConversion, RecordsToVectorStateResetTheTime)
{
    CZelInsStateVector3d st(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_INF);
    st.SetTime(ZelSample::InsTime());
    CRecordingHook stHook;
    EXPECT_EQ(0u, ConvertExtToState(ZelSample::InsVector(), ZelSample::InsSymMatrix(), st));
    EXPECT_EQ(0u, stHook.Count());
    EXPECT_TRUE(st.m_oValue == Eigen::Vector3d(1.5, -2.25, 3.0));
    Eigen::Matrix3d oExpected;
    oExpected << 4.0, 0.5, -0.25, 0.5, 9.0, 1.5, -0.25, 1.5, 16.0;
    EXPECT_TRUE(st.m_oCov == oExpected);
    EXPECT_EQ(eCOVTYPE_COV, st.m_eCovType);
    EXPECT_EQ(0, st.GetTime().m_lMjdDay);
    EXPECT_EQ(0.0, st.GetTime().m_dMjdFractMilliseconds);
}

TEST(InsStateConversion, MakeSymmetricAndMakePacked)
{
    CRecordingHook stHook;
    const Eigen::Matrix3d oFull = MakeSymmetric(ZelSample::InsSymMatrix());
    EXPECT_TRUE(oFull == ZelSample::InsCov3());
    EXPECT_TRUE(MakePacked(oFull) == ZelSample::InsSymMatrix());
    // The check "oSymMat.isSymmetric(0.0)" is made on the first call in the
    // process only, which passed above: a NaN later is silent.
    CZelExtSymMatrix3d stNaN = ZelSample::InsSymMatrix();
    stNaN(1, 0) = c_dNaN;
    const Eigen::Matrix3d oNaN = MakeSymmetric(stNaN);
    EXPECT_TRUE(std::isnan(oNaN(0, 1)) && std::isnan(oNaN(1, 0)));
    EXPECT_EQ(0u, stHook.Count());
}
