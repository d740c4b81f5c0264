// Inertial operations per call: the covariance conversions of the working
// states (each iteration restores the input with SetCov, whose cost alone is
// the SetCov line), the move along a lever arm, interpolation of two results
// and their reduction to attitude angles, and the image of a result.
#include "ZelSamplesIns.h"

#include <ZelTypes/Core/Ins/ZelInsStates.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>

#include <benchmark/benchmark.h>

using namespace ZELN;

namespace
{
template <int N> struct SStateOf;
template <> struct SStateOf<3>
{
    typedef CZelInsStateVector3d Type;
};
template <> struct SStateOf<6>
{
    typedef CZelInsStateVector6d Type;
};
template <> struct SStateOf<12>
{
    typedef CZelInsStateVector12d Type;
};

template <int N> Eigen::Matrix<double, N, N> Covariance()
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
} // namespace

template <int N> static void BM_Ins_SetCov(benchmark::State& state)
{
    typename SStateOf<N>::Type st;
    const Eigen::Matrix<double, N, N> A = Covariance<N>();
    for (auto _ : state)
    {
        st.SetCov(A, eCOVTYPE_COV);
        benchmark::DoNotOptimize(st);
    }
}
BENCHMARK_TEMPLATE(BM_Ins_SetCov, 3);
BENCHMARK_TEMPLATE(BM_Ins_SetCov, 6);
BENCHMARK_TEMPLATE(BM_Ins_SetCov, 12);

template <int N> static void BM_Ins_ConvertCovToCholesky(benchmark::State& state)
{
    typename SStateOf<N>::Type st;
    const Eigen::Matrix<double, N, N> A = Covariance<N>();
    for (auto _ : state)
    {
        st.SetCov(A, eCOVTYPE_COV);
        benchmark::DoNotOptimize(st.ConvertCovType(eCOVTYPE_COVCHL));
        benchmark::DoNotOptimize(st);
    }
}
BENCHMARK_TEMPLATE(BM_Ins_ConvertCovToCholesky, 3);
BENCHMARK_TEMPLATE(BM_Ins_ConvertCovToCholesky, 6);
BENCHMARK_TEMPLATE(BM_Ins_ConvertCovToCholesky, 12);

template <int N> static void BM_Ins_ConvertCholeskyToCov(benchmark::State& state)
{
    typename SStateOf<N>::Type st;
    st.SetCov(Covariance<N>(), eCOVTYPE_COV);
    st.ConvertCovType(eCOVTYPE_COVCHL);
    const Eigen::Matrix<double, N, N> L = st.m_oCov;
    for (auto _ : state)
    {
        st.SetCov(L, eCOVTYPE_COVCHL);
        benchmark::DoNotOptimize(st.ConvertCovType(eCOVTYPE_COV));
        benchmark::DoNotOptimize(st);
    }
}
BENCHMARK_TEMPLATE(BM_Ins_ConvertCholeskyToCov, 3);
BENCHMARK_TEMPLATE(BM_Ins_ConvertCholeskyToCov, 6);
BENCHMARK_TEMPLATE(BM_Ins_ConvertCholeskyToCov, 12);

static void BM_Ins_TransferPositionVelocity(benchmark::State& state)
{
    const CZelInsStateVector3d stPos(Eigen::Vector3d(4500000.0, 0.0, 4500000.0), ZelSample::InsCov3(),
                                     eCOVTYPE_COV);
    const CZelInsStateVector3d stVel(Eigen::Vector3d(-2.0, 3.0, 2.0), ZelSample::InsCov3(), eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond(0.5, 0.5, -0.5, 0.5), ZelSample::InsCov3(),
                                            eCOVTYPE_COV);
    const CZelInsStateVector3d stRate(Eigen::Vector3d(0.1, -0.05, 0.2), ZelSample::InsCov3(), eCOVTYPE_COV);
    const Eigen::Vector3d oLever(1.0, -0.5, 2.0);
    CZelInsStateVector3d stOutPos;
    CZelInsStateVector3d stOutVel;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(
            TransferPositionVelocity(stPos, stVel, stAtt, stRate, oLever, stOutPos, stOutVel));
        benchmark::DoNotOptimize(stOutPos);
        benchmark::DoNotOptimize(stOutVel);
    }
}
BENCHMARK(BM_Ins_TransferPositionVelocity);

static void BM_Ins_Interpolate(benchmark::State& state)
{
    CL_ZELX_INS_RES_POS_STATE stA = ZelSample::InsResPosState();
    CL_ZELX_INS_RES_POS_STATE stB = stA;
    stB.stTime.AddSeconds(0.01);
    stB.q_bP = CZelExtQuaterniond(0.5, 0.5, -0.5 + 1e-3, 0.5);
    stB.x_pbP.m_adElem[0] += 0.5;
    SMjdTime stAt = stA.stTime;
    stAt.AddSeconds(0.004);
    CL_ZELX_INS_RES_POS_STATE stOut;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(Interpolate(stA, stAt, stB, stOut));
        benchmark::DoNotOptimize(stOut);
    }
}
BENCHMARK(BM_Ins_Interpolate);

static void BM_Ins_GetAttitudeAngles(benchmark::State& state)
{
    const CL_ZELX_INS_RES_POS_STATE st = ZelSample::InsResPosState();
    const CZelExtVector3d stFw(1.0, 0.0, 0.0);
    const CZelExtVector3d stUp(0.0, 0.0, 1.0);
    SZelInsAngleVar stTilt, stTiltHeading, stYaw, stCourse;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(st.GetAttitudeAngles(stFw, stUp, stTilt, stTiltHeading, stYaw, stCourse));
        benchmark::DoNotOptimize(stYaw);
    }
}
BENCHMARK(BM_Ins_GetAttitudeAngles);

static void BM_Ins_ResPosStateSaveLoad(benchmark::State& state)
{
    const CL_ZELX_INS_RES_POS_STATE st = ZelSample::InsResPosState();
    CL_ZELX_INS_RES_POS_STATE stBack;
    unsigned char aucBuffer[335];
    uint64_t ulOffset = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(st.saveData(aucBuffer, sizeof(aucBuffer), &ulOffset));
        benchmark::DoNotOptimize(stBack.loadData(aucBuffer, sizeof(aucBuffer), &ulOffset));
        benchmark::DoNotOptimize(stBack);
    }
}
BENCHMARK(BM_Ins_ResPosStateSaveLoad);
