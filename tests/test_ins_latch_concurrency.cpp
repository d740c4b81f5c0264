// The once-only checks of the inertial tools under several threads: each
// check site reports at most once per process, however many threads fail it
// at the same moment. The tests run in order: each one makes the first
// pass through its check sites, all threads at once.
#include "ZelSamplesIns.h"

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Core/Ins/ZelInsTypesImpl.h>
#include <ZelTypes/Core/Ins/ZelInsUtilities.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

using namespace ZELN;

namespace
{
const double c_dNaN = std::numeric_limits<double>::quiet_NaN();
const int c_iTHREADS = 8;
const int c_iCALLS = 50;

// A hook that records under a lock: reports of different sites may come
// from different threads at once.
class CLockedHook
{
public:
    CLockedHook()
    {
        m_Previous = SetAssertHandler(
            [this](const char* szExpression, const char*, int)
            {
                std::lock_guard<std::mutex> oLock(m_oMutex);
                m_vecTexts.push_back(szExpression);
                return true;
            });
    }
    ~CLockedHook() { SetAssertHandler(m_Previous); }
    CLockedHook(const CLockedHook&) = delete;
    CLockedHook& operator=(const CLockedHook&) = delete;

    // The texts in sorted order: which thread reported first is open.
    std::vector<std::string> Sorted()
    {
        std::lock_guard<std::mutex> oLock(m_oMutex);
        std::vector<std::string> vec = m_vecTexts;
        std::sort(vec.begin(), vec.end());
        return vec;
    }

private:
    ZelAssertHandler m_Previous;
    std::mutex m_oMutex;
    std::vector<std::string> m_vecTexts;
};

// Runs fnCall c_iCALLS times on each of c_iTHREADS threads released together.
template <class F> void RunTogether(F fnCall)
{
    std::atomic<int> iReady(0);
    std::vector<std::thread> vecThreads;
    for (int i = 0; i < c_iTHREADS; ++i)
    {
        vecThreads.emplace_back(
            [&iReady, &fnCall]
            {
                ++iReady;
                while (iReady.load() < c_iTHREADS)
                {
                    std::this_thread::yield();
                }
                for (int k = 0; k < c_iCALLS; ++k)
                {
                    fnCall();
                }
            });
    }
    for (auto& rThread : vecThreads)
    {
        rThread.join();
    }
}

const Eigen::Vector3d c_oEast(1.0, 0.0, 0.0);
const Eigen::Vector3d c_oNorth(0.0, 1.0, 0.0);
const Eigen::Vector3d c_oUp(0.0, 0.0, 1.0);

std::vector<std::string> Texts(std::initializer_list<const char*> lst)
{
    std::vector<std::string> vec(lst.begin(), lst.end());
    std::sort(vec.begin(), vec.end());
    return vec;
}
} // namespace

TEST(InsLatchConcurrency, SkewMatrixCheck)
{
    CLockedHook oHook;
    RunTogether([] { (void)MakeSkew(Eigen::Vector3d(c_dNaN, 1.0, 2.0)); });
    EXPECT_EQ(Texts({"A.isSkewSymmetric(0.0)"}), oHook.Sorted());
}

TEST(InsLatchConcurrency, SymmetricMatrixCheck)
{
    CZelExtSymMatrix3d stPacked = ZelSample::InsSymMatrix();
    stPacked(2, 1) = c_dNaN;
    CLockedHook oHook;
    RunTogether([&stPacked] { (void)MakeSymmetric(stPacked); });
    EXPECT_EQ(Texts({"oSymMat.isSymmetric(0.0)"}), oHook.Sorted());
}

TEST(InsLatchConcurrency, UpVectorAndLocalAxesChecks)
{
    // A position of NaN passes the length test and gives NaN axes: every
    // check of the up vector and of the three axes fails on the first pass.
    CLockedHook oHook;
    RunTogether(
        []
        {
            Eigen::Vector3d oEast, oNorth, oUp;
            (void)GetLocalAxes(Eigen::Vector3d(c_dNaN, 0.0, 1.0), oEast, oNorth, oUp, eINSPOSFRAME_EARTH,
                               c_dINS_E2);
        });
    EXPECT_EQ(
        Texts({"(oUpUnitVector.isNormalized((1.0e-9)))", "(Up_P.isNormalized((1.0e-9)))",
               "(oNorthUnitVector_P.isNormalized((1.0e-9)))", "(oEastUnitVector_P.isNormalized((1.0e-9)))"}),
        oHook.Sorted());
}

TEST(InsLatchConcurrency, FrameTransformFirstConstruction)
{
    CLockedHook oHook;
    std::atomic<int> iNormalised(0);
    RunTogether(
        [&iNormalised]
        {
            const CZelInsFrameTransform st(Eigen::Vector3d(1.0, 2.0, 3.0),
                                           Eigen::Quaterniond(2.0, 0.0, 0.0, 0.0));
            if (st.m_q_aB.w() == 1.0)
            {
                ++iNormalised;
            }
        });
    // The incoming quaternion fails once; the normalised one passes.
    EXPECT_EQ(Texts({"(m_q_aB.isNormalized((1.0e-9)))"}), oHook.Sorted());
    EXPECT_EQ(c_iTHREADS * c_iCALLS, iNormalised.load()) << "every construction normalises";
}

TEST(InsLatchConcurrency, TransferPositionChecks)
{
    const CZelInsStateVector3d stPos(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    const CZelInsStateVector3d stWrong(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_INF);
    const CZelInsStateUnitQuaterniond stZero(Eigen::Quaterniond(0.0, 0.0, 0.0, 0.0),
                                             Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    {
        CLockedHook oHook;
        RunTogether(
            [&]
            {
                CZelInsStateVector3d stOut;
                (void)TransferPosition(stPos, stZero, Eigen::Vector3d(1.0, 0.0, 0.0), stOut);
            });
        EXPECT_EQ(Texts({"(q_rP.isNormalized((1.0e-9)))"}), oHook.Sorted());
    }
    {
        CLockedHook oHook;
        RunTogether(
            [&]
            {
                CZelInsStateVector3d stOut;
                (void)TransferPosition(stWrong, stZero, Eigen::Vector3d(1.0, 0.0, 0.0), stOut);
            });
        EXPECT_EQ(Texts({"(false)"}), oHook.Sorted());
    }
}

TEST(InsLatchConcurrency, TransferPositionVelocityChecks)
{
    const CZelInsStateVector3d stPos(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    const CZelInsStateVector3d stWrong(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_COVCHL);
    const CZelInsStateUnitQuaterniond stZero(Eigen::Quaterniond(0.0, 0.0, 0.0, 0.0),
                                             Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    {
        CLockedHook oHook;
        RunTogether(
            [&]
            {
                CZelInsStateVector3d stOutPos, stOutVel;
                (void)TransferPositionVelocity(stPos, stPos, stZero, stPos, Eigen::Vector3d(1.0, 0.0, 0.0),
                                               stOutPos, stOutVel);
            });
        EXPECT_EQ(Texts({"(q_rP.isNormalized((1.0e-9)))"}), oHook.Sorted());
    }
    {
        CLockedHook oHook;
        RunTogether(
            [&]
            {
                CZelInsStateVector3d stOutPos, stOutVel;
                (void)TransferPositionVelocity(stPos, stPos, stZero, stWrong, Eigen::Vector3d(1.0, 0.0, 0.0),
                                               stOutPos, stOutVel);
            });
        EXPECT_EQ(Texts({"(false)"}), oHook.Sorted());
    }
}

TEST(InsLatchConcurrency, HeadingChecks)
{
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond::Identity(), Eigen::Matrix3d::Identity(),
                                            eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stLong(Eigen::Quaterniond(3.0, 0.0, 0.0, 0.0),
                                             Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    const CZelInsStateVector3d stVel(Eigen::Vector3d(1.0, 1.0, 0.0), Eigen::Matrix3d::Identity(),
                                     eCOVTYPE_COV);
    const char* const szAxes = "(roEast_P.isNormalized((1.0e-9)) && roNorth_P.isNormalized((1.0e-9)) && "
                               "roUp_P.isNormalized((1.0e-9)))";
    {
        CLockedHook oHook;
        RunTogether(
            [&]
            {
                SZelInsAngleVar st;
                (void)GetBodyAxisHeading(stAtt, c_oNorth, c_oEast, 2.0 * c_oNorth, c_oUp, st);
            });
        EXPECT_EQ(Texts({szAxes}), oHook.Sorted());
    }
    {
        CLockedHook oHook;
        RunTogether(
            [&]
            {
                SZelInsAngleVar st;
                (void)GetVelocityHeading(stVel, c_oEast, c_oNorth, 0.5 * c_oUp, st);
            });
        EXPECT_EQ(Texts({szAxes}), oHook.Sorted()) << "a site of its own";
    }
    {
        CLockedHook oHook;
        RunTogether(
            [&]
            {
                SZelInsAngleVar st;
                (void)GetBodyAxisHeading(stLong, c_oNorth, c_oEast, c_oNorth, c_oUp, st);
            });
        EXPECT_EQ(Texts({"(false)"}), oHook.Sorted());
    }
}

TEST(InsLatchConcurrency, TiltChecksOncePerKind)
{
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond::Identity(), Eigen::Matrix3d::Identity(),
                                            eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stLong(Eigen::Quaterniond(0.0, 0.0, 2.0, 0.0),
                                             Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    CLockedHook oHook;
    RunTogether(
        [&]
        {
            SZelInsAngleVar st;
            (void)GetBodyAxisTilt(stAtt, 3.0 * c_oUp, c_oUp, st);
            (void)GetBodyAxisTilt(stAtt, c_oUp, 3.0 * c_oUp, st);
            (void)GetBodyAxisTilt(stLong, c_oUp, c_oUp, st);
        });
    EXPECT_EQ(Texts({"(false)", "(false)", "(false)"}), oHook.Sorted());
}

TEST(InsLatchConcurrency, LaterFailuresAreSilent)
{
    CLockedHook oHook;
    RunTogether(
        []
        {
            (void)MakeSkew(Eigen::Vector3d(c_dNaN, 0.0, 0.0));
            Eigen::Vector3d oEast, oNorth, oUp;
            (void)GetLocalAxes(Eigen::Vector3d(c_dNaN, 0.0, 0.0), oEast, oNorth, oUp, eINSPOSFRAME_EARTH,
                               c_dINS_E2);
            const CZelInsFrameTransform st(Eigen::Vector3d::Zero(), Eigen::Quaterniond(0.0, 0.0, 0.0, 0.0));
            SZelInsAngleVar stAngle;
            const CZelInsStateUnitQuaterniond stAtt;
            (void)GetBodyAxisTilt(stAtt, 3.0 * c_oUp, c_oUp, stAngle);
        });
    EXPECT_TRUE(oHook.Sorted().empty());
}
