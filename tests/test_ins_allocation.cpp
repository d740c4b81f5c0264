// The inertial operations run in a filter's inner loop: none of them may
// allocate. Every allocation of this program is counted while counting is on.
#include "ZelSamplesIns.h"

#include <ZelTypes/Core/Ins/ZelInsStates.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace
{
std::atomic<bool> s_bCounting(false);
std::atomic<uint64_t> s_ulAllocations(0);

void* Allocate(std::size_t ulSize, std::size_t ulAlign)
{
    if (s_bCounting.load(std::memory_order_relaxed))
    {
        ++s_ulAllocations;
    }
    void* p = nullptr;
    if (ulAlign > alignof(std::max_align_t))
    {
        const std::size_t ulRounded = (ulSize + ulAlign - 1) / ulAlign * ulAlign;
        p = std::aligned_alloc(ulAlign, ulRounded != 0 ? ulRounded : ulAlign);
    }
    else
    {
        p = std::malloc(ulSize != 0 ? ulSize : 1);
    }
    if (p == nullptr)
    {
        throw std::bad_alloc();
    }
    return p;
}
} // namespace

void* operator new(std::size_t ulSize)
{
    return Allocate(ulSize, alignof(std::max_align_t));
}
void* operator new[](std::size_t ulSize)
{
    return Allocate(ulSize, alignof(std::max_align_t));
}
void* operator new(std::size_t ulSize, std::align_val_t eAlign)
{
    return Allocate(ulSize, static_cast<std::size_t>(eAlign));
}
void* operator new[](std::size_t ulSize, std::align_val_t eAlign)
{
    return Allocate(ulSize, static_cast<std::size_t>(eAlign));
}
void operator delete(void* p) noexcept
{
    std::free(p);
}
void operator delete[](void* p) noexcept
{
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}
void operator delete[](void* p, std::size_t) noexcept
{
    std::free(p);
}
void operator delete(void* p, std::align_val_t) noexcept
{
    std::free(p);
}
void operator delete[](void* p, std::align_val_t) noexcept
{
    std::free(p);
}
void operator delete(void* p, std::size_t, std::align_val_t) noexcept
{
    std::free(p);
}
void operator delete[](void* p, std::size_t, std::align_val_t) noexcept
{
    std::free(p);
}

using namespace ZELN;

namespace
{
// The allocations fnRun makes.
template <class F> uint64_t Allocations(F fnRun)
{
    s_ulAllocations = 0;
    s_bCounting = true;
    fnRun();
    s_bCounting = false;
    return s_ulAllocations.load();
}
} // namespace

TEST(InsAllocation, TheCounterSeesAnAllocation)
{
    // Kept through a volatile pointer, so that the pair cannot be elided.
    EXPECT_EQ(1u, Allocations(
                      []
                      {
                          int* volatile p = new int(3);
                          delete p;
                      }));
}

TEST(InsAllocation, ConvertCovTypeForEveryDimension)
{
    CZelInsStateVector3d st3(Eigen::Vector3d::Zero(), ZelSample::InsCov3(), eCOVTYPE_COV);
    CZelInsStateVector6d st6(ZelVector6d::Zero(), ZelSample::InsCovN<6>(), eCOVTYPE_COV);
    CZelInsStateVector12d st12(ZelVector12d::Zero(), ZelSample::InsCovN<12>(), eCOVTYPE_COV);
    CZelInsStateUnitQuaterniond stQ(Eigen::Quaterniond::Identity(), ZelSample::InsCov3(), eCOVTYPE_COV);
    CZelInsStateScalard st1(0.0, 4.0, eCOVTYPE_COV);
    unsigned int uiSum = 0;
    bool bDefinite = true;
    const uint64_t ulCount = Allocations(
        [&]
        {
            uiSum += st3.ConvertCovType(eCOVTYPE_COVCHL) + st3.ConvertCovType(eCOVTYPE_COV);
            uiSum += st6.ConvertCovType(eCOVTYPE_COVCHL) + st6.ConvertCovType(eCOVTYPE_COV);
            uiSum += st12.ConvertCovType(eCOVTYPE_COVCHL) + st12.ConvertCovType(eCOVTYPE_COV);
            uiSum += stQ.ConvertCovType(eCOVTYPE_COVCHL) + stQ.ConvertCovType(eCOVTYPE_COV);
            uiSum += st1.ConvertCovType(eCOVTYPE_COVCHL) + st1.ConvertCovType(eCOVTYPE_COV);
            bDefinite = bDefinite && st3.IsCovPositiveDefinite() && st6.IsCovPositiveDefinite() &&
                        st12.IsCovPositiveDefinite() && st12.IsCovPositiveSemiDefinite();
        });
    EXPECT_EQ(0u, uiSum);
    EXPECT_TRUE(bDefinite);
    EXPECT_EQ(0u, ulCount);
}

TEST(InsAllocation, TransferPositionVelocity)
{
    const CZelInsStateVector3d stPos(Eigen::Vector3d(1.0, 2.0, 3.0), ZelSample::InsCov3(), eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond(0.5, 0.5, -0.5, 0.5), ZelSample::InsCov3(),
                                            eCOVTYPE_COV);
    CZelInsStateVector3d stOutPos;
    CZelInsStateVector3d stOutVel;
    unsigned int uiStatus = 1;
    const uint64_t ulCount = Allocations(
        [&]
        {
            uiStatus = TransferPositionVelocity(stPos, stPos, stAtt, stPos, Eigen::Vector3d(1.0, 2.0, 3.0),
                                                stOutPos, stOutVel);
            uiStatus += TransferPosition(stPos, stAtt, Eigen::Vector3d(1.0, 2.0, 3.0), stOutPos);
        });
    EXPECT_EQ(0u, uiStatus);
    EXPECT_EQ(0u, ulCount);
}

TEST(InsAllocation, InterpolationShiftAndAttitudeAngles)
{
    CL_ZELX_INS_RES_POS_STATE stA = ZelSample::InsResPosState();
    stA.bShifted = false;
    CL_ZELX_INS_RES_POS_STATE stB = stA;
    stB.stTime.AddSeconds(1.0);
    stB.q_bP = CZelExtQuaterniond(0.5, -0.5, 0.5, 0.5);
    CL_ZELX_INS_RES_POS_STATE stOut;
    SZelInsAngleVar stTilt, stTiltHeading, stYaw, stCourse;
    unsigned int uiStatus = 1;
    SMjdTime stAt = stA.stTime;
    stAt.AddSeconds(0.25);
    const uint64_t ulCount = Allocations(
        [&]
        {
            uiStatus = Interpolate(stA, stAt, stB, stOut);
            uiStatus += stA.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                              stTilt, stTiltHeading, stYaw, stCourse);
            uiStatus += stOut.ShiftToPoint(CZelExtVector3d(0.5, 0.5, 0.5), CZelExtQuaterniond(), 4);
        });
    EXPECT_EQ(0u, uiStatus);
    EXPECT_EQ(0u, ulCount);
}

TEST(InsAllocation, ObservationsAndImages)
{
    CL_ZELX_INS_SENSOR_OBS_PVE st = ZelSample::InsObsPve();
    SMjdTime stLater = st.stTime;
    stLater.AddSeconds(2.0);
    unsigned char aucBuffer[400];
    bool bOk = false;
    const uint64_t ulCount = Allocations(
        [&]
        {
            st.PropagateTo(stLater, 0.1);
            st.ScaleCovariance(2.0, 0.5);
            uint64_t ulOffset = 0;
            bOk = st.saveData(aucBuffer, sizeof(aucBuffer), &ulOffset) &&
                  st.loadData(aucBuffer, sizeof(aucBuffer), &ulOffset);
            const SZelInsResRecord stRecord;
            bOk = bOk && stRecord.saveData(aucBuffer, sizeof(aucBuffer), &ulOffset);
        });
    EXPECT_TRUE(bOk);
    EXPECT_EQ(0u, ulCount);
}
