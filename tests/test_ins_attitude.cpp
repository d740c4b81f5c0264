// Attitude and frame tools: local axes, azimuths and angles, tilts and
// headings of body axes with their variances, the move of position and
// velocity along a lever arm with the propagation of their covariances.
// Expected values come from formulas written out here: rotation matrices
// built from the quaternion by hand, products and sums by loops.
#include "ZelSamplesIns.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Core/Ins/ZelInsTypesImpl.h>
#include <ZelTypes/Core/Ins/ZelInsUtilities.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::CRecordingHook;

namespace
{
const double c_dPi = 3.14159265358979323846;
const double c_dNaN = std::numeric_limits<double>::quiet_NaN();

typedef double Mat[3][3];
typedef double Vec[3];

// Rotation matrix of the unit quaternion (w, x, y, z).
void RotationOf(double w, double x, double y, double z, Mat R)
{
    R[0][0] = 1.0 - 2.0 * (y * y + z * z);
    R[0][1] = 2.0 * (x * y - w * z);
    R[0][2] = 2.0 * (x * z + w * y);
    R[1][0] = 2.0 * (x * y + w * z);
    R[1][1] = 1.0 - 2.0 * (x * x + z * z);
    R[1][2] = 2.0 * (y * z - w * x);
    R[2][0] = 2.0 * (x * z - w * y);
    R[2][1] = 2.0 * (y * z + w * x);
    R[2][2] = 1.0 - 2.0 * (x * x + y * y);
}

void Apply(const Mat R, const Vec v, Vec out)
{
    for (int i = 0; i < 3; ++i)
    {
        out[i] = R[i][0] * v[0] + R[i][1] * v[1] + R[i][2] * v[2];
    }
}

void Cross(const Vec a, const Vec b, Vec out)
{
    out[0] = a[1] * b[2] - a[2] * b[1];
    out[1] = a[2] * b[0] - a[0] * b[2];
    out[2] = a[0] * b[1] - a[1] * b[0];
}

double Dot(const Vec a, const Vec b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

// [a x] by its definition: [a x] e_k = a x e_k.
void Skew(const Vec a, Mat S)
{
    for (int k = 0; k < 3; ++k)
    {
        Vec e = {0.0, 0.0, 0.0};
        e[k] = 1.0;
        Vec c;
        Cross(a, e, c);
        for (int i = 0; i < 3; ++i)
        {
            S[i][k] = c[i];
        }
    }
}

void Mul(const Mat A, const Mat B, Mat out)
{
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            out[i][j] = A[i][0] * B[0][j] + A[i][1] * B[1][j] + A[i][2] * B[2][j];
        }
    }
}

// A Q A^T.
void Sandwich(const Mat A, const Mat Q, Mat out)
{
    Mat AQ;
    Mul(A, Q, AQ);
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            out[i][j] = AQ[i][0] * A[j][0] + AQ[i][1] * A[j][1] + AQ[i][2] * A[j][2];
        }
    }
}

// v^T Q v.
double Quadratic(const Vec v, const Mat Q)
{
    Vec Qv;
    Apply(Q, v, Qv);
    return Dot(v, Qv);
}

void ToMat(const Eigen::Matrix3d& m, Mat out)
{
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            out[i][j] = m(i, j);
        }
    }
}

// The quaternion of a rotation by dAngle about the unit axis (nx, ny, nz).
Eigen::Quaterniond AxisAngle(double dAngle, double nx, double ny, double nz)
{
    const double s = std::sin(dAngle / 2.0);
    return Eigen::Quaterniond(std::cos(dAngle / 2.0), s * nx, s * ny, s * nz);
}

// A full attitude covariance with off-diagonal terms (rad^2).
Eigen::Matrix3d AttitudeCov()
{
    Eigen::Matrix3d m;
    m << 4e-4, 1e-5, -2e-5, 1e-5, 9e-4, 3e-5, -2e-5, 3e-5, 1.6e-3;
    return m;
}

const Eigen::Vector3d c_oEast(1.0, 0.0, 0.0);
const Eigen::Vector3d c_oNorth(0.0, 1.0, 0.0);
const Eigen::Vector3d c_oUp(0.0, 0.0, 1.0);
} // namespace

// Runs first in this process: every check that the first pass through its
// site decides is passed here, so that a later failure of it is silent.
TEST(InsChecks, TheFirstPassDecides)
{
    CRecordingHook stHook;
    Eigen::Vector3d oUp;
    Eigen::Vector3d oEast;
    Eigen::Vector3d oNorth;
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(1.0, 2.0, 3.0), oUp, eINSPOSFRAME_LEVEL, c_dINS_E2));
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(6378137.0, 0.0, 0.0), oUp, eINSPOSFRAME_EARTH, c_dINS_E2));
    EXPECT_EQ(0u, GetLocalAxes(Eigen::Vector3d(6378137.0, 0.0, 0.0), oEast, oNorth, oUp, eINSPOSFRAME_EARTH,
                               c_dINS_E2));
    const CZelInsStateVector3d stPos(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond::Identity(), Eigen::Matrix3d::Identity(),
                                            eCOVTYPE_COV);
    CZelInsStateVector3d stOut;
    CZelInsStateVector3d stOutVel;
    EXPECT_EQ(0u, TransferPosition(stPos, stAtt, Eigen::Vector3d(1.0, 0.0, 0.0), stOut));
    EXPECT_EQ(0u, TransferPositionVelocity(stPos, stPos, stAtt, stPos, Eigen::Vector3d(1.0, 0.0, 0.0), stOut,
                                           stOutVel));
    SZelInsAngleVar stAngle;
    EXPECT_EQ(0u, GetBodyAxisHeading(stAtt, c_oNorth, c_oEast, c_oNorth, c_oUp, stAngle));
    EXPECT_EQ(0u, GetVelocityHeading(CZelInsStateVector3d(Eigen::Vector3d(1.0, 1.0, 0.0)), c_oEast, c_oNorth,
                                     c_oUp, stAngle));
    const CZelInsFrameTransform stFirst(Eigen::Vector3d(1.0, 2.0, 3.0), Eigen::Quaterniond::Identity());
    EXPECT_EQ(0u, stHook.Count());

    // Later failures of those checks are silent.
    (void)MakeSkew(Eigen::Vector3d(c_dNaN, 0.0, 0.0));
    const CZelInsStateUnitQuaterniond stZero(Eigen::Quaterniond(0.0, 0.0, 0.0, 0.0),
                                             Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    EXPECT_EQ(0u, TransferPosition(stPos, stZero, Eigen::Vector3d(1.0, 0.0, 0.0), stOut));
    EXPECT_TRUE(std::isnan(stOut.m_oValue.x())) << "a zero quaternion normalises to NaN";
    EXPECT_EQ(0u, TransferPositionVelocity(stPos, stPos, stZero, stPos, Eigen::Vector3d(1.0, 0.0, 0.0), stOut,
                                           stOutVel));
    const CZelInsFrameTransform stLater(Eigen::Vector3d::Zero(), Eigen::Quaterniond(0.0, 0.0, 0.0, 0.0));
    EXPECT_TRUE(std::isnan(stLater.m_q_aB.w()));
    EXPECT_EQ(0u, GetBodyAxisHeading(stAtt, c_oNorth, 2.0 * c_oEast, c_oNorth, c_oUp, stAngle));
    EXPECT_EQ(0u, GetVelocityHeading(CZelInsStateVector3d(Eigen::Vector3d(1.0, 1.0, 0.0)), 2.0 * c_oEast,
                                     c_oNorth, c_oUp, stAngle));
    // A position whose norm overflows gives a zero up vector, unreported.
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(1e200, 1e200, 1e200), oUp, eINSPOSFRAME_EARTH, c_dINS_E2));
    EXPECT_EQ(0u, stHook.Count());
}

// ------------------------------------------------------------------ constants and helpers

TEST(InsUtilities, ConstantsAndDefaults)
{
    EXPECT_EQ(0.00673949674227, c_dINS_E2);
    EXPECT_EQ(0, static_cast<int>(eINSPOSFRAME_NONE));
    EXPECT_EQ(1, static_cast<int>(eINSPOSFRAME_EARTH));
    EXPECT_EQ(2, static_cast<int>(eINSPOSFRAME_LEVEL));
    EXPECT_EQ(4u, sizeof(EZelInsPosFrame));
    const SZelInsAngleVar st;
    EXPECT_EQ(0.0, st.dAngle);
    EXPECT_EQ(0.0, st.dVar);
    EXPECT_TRUE(IsInsSuccess(0));
    EXPECT_TRUE(IsInsSuccess(20));
    EXPECT_FALSE(IsInsSuccess(21));
    EXPECT_FALSE(IsInsSuccess(51));
}

TEST(InsUtilities, UnitNormTest)
{
    EXPECT_TRUE(IsUnitNorm(1.0));
    EXPECT_TRUE(IsUnitNorm(1.0 + 0.5e-9));
    EXPECT_TRUE(IsUnitNorm(1.0 - 0.5e-9));
    EXPECT_FALSE(IsUnitNorm(1.0 + 2e-9));
    EXPECT_FALSE(IsUnitNorm(1.0 - 2e-9));
    EXPECT_FALSE(IsUnitNorm(0.0));
    EXPECT_FALSE(IsUnitNorm(c_dNaN));
    EXPECT_TRUE(IsNormalized(Eigen::Vector3d(0.6, 0.8, 0.0)));
    EXPECT_FALSE(IsNormalized(Eigen::Vector3d(0.6, 0.8, 0.1)));
    EXPECT_TRUE(IsNormalized(Eigen::Quaterniond(0.5, 0.5, -0.5, 0.5)));
    EXPECT_FALSE(IsNormalized(Eigen::Quaterniond(1.0, 0.5, 0.0, 0.0)));
}

TEST(InsUtilities, NormalizeHasNoGuard)
{
    const Eigen::Vector3d v = NormalizeVector(Eigen::Vector3d(3.0, 0.0, 4.0));
    EXPECT_EQ(0.6, v.x());
    EXPECT_EQ(0.8, v.z());
    const Eigen::Vector3d z = NormalizeVector(Eigen::Vector3d::Zero());
    EXPECT_TRUE(std::isnan(z.x()) && std::isnan(z.y()) && std::isnan(z.z()));
    const Eigen::Quaterniond q = NormalizeQuaternion(Eigen::Quaterniond(2.0, 0.0, 0.0, 0.0));
    EXPECT_EQ(1.0, q.w());
    EXPECT_EQ(0.0, q.x());
    const Eigen::Quaterniond qz = NormalizeQuaternion(Eigen::Quaterniond(0.0, 0.0, 0.0, 0.0));
    EXPECT_TRUE(std::isnan(qz.w()));
    // The zero divisor gives what IEEE 754 gives.
    EXPECT_EQ(std::numeric_limits<double>::infinity(), DivideIeee(1.0, 0.0));
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), DivideIeee(1.0, -0.0));
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), DivideIeee(-2.0, 0.0));
    EXPECT_TRUE(std::isnan(DivideIeee(0.0, 0.0)));
    EXPECT_EQ(0.25, DivideIeee(1.0, 4.0));
}

TEST(InsUtilities, SkewAndRotation)
{
    const Eigen::Vector3d a(1.5, -2.0, 0.25);
    const Eigen::Matrix3d A = MakeSkew(a);
    // Columns (0, a2, -a1), (-a2, 0, a0), (a1, -a0, 0).
    EXPECT_TRUE(A.col(0) == Eigen::Vector3d(0.0, 0.25, 2.0));
    EXPECT_TRUE(A.col(1) == Eigen::Vector3d(-0.25, 0.0, 1.5));
    EXPECT_TRUE(A.col(2) == Eigen::Vector3d(-2.0, -1.5, 0.0));
    const Eigen::Vector3d b(0.5, 3.0, -1.0);
    const Vec av = {1.5, -2.0, 0.25};
    const Vec bv = {0.5, 3.0, -1.0};
    Vec c;
    Cross(av, bv, c);
    const Eigen::Vector3d oProduct = A * b;
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(c[i], oProduct(i));
    }

    const Eigen::Quaterniond q = AxisAngle(0.7, 0.6, 0.0, 0.8);
    Mat R;
    RotationOf(q.w(), q.x(), q.y(), q.z(), R);
    Vec r;
    Apply(R, bv, r);
    const Eigen::Vector3d oRotated = RotateVector(q, b);
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_NEAR(r[i], oRotated(i), 1e-14);
    }
}

TEST(InsFrameTransform, DefaultAndNormalisation)
{
    const CZelInsFrameTransform stDefault;
    EXPECT_TRUE(stDefault.m_x_aB == Eigen::Vector3d::Zero());
    EXPECT_EQ(1.0, stDefault.m_q_aB.w());
    EXPECT_EQ(0.0, stDefault.m_q_aB.x());

    CRecordingHook stHook;
    const CZelInsFrameTransform stLong(Eigen::Vector3d(1.0, 2.0, 3.0),
                                       Eigen::Quaterniond(0.0, 0.0, 3.0, 4.0));
    EXPECT_EQ(0.6, stLong.m_q_aB.y());
    EXPECT_EQ(0.8, stLong.m_q_aB.z());
    EXPECT_EQ(3.0, stLong.m_x_aB.z());
    // Of unit norm within 1e-9: kept as given.
    const Eigen::Quaterniond qNear(1.0 + 1e-10, 0.0, 0.0, 0.0);
    const CZelInsFrameTransform stNear(Eigen::Vector3d::Zero(), qNear);
    EXPECT_EQ(1.0 + 1e-10, stNear.m_q_aB.w());
    EXPECT_EQ(0u, stHook.Count()) << "the first construction of the process passed its checks";
}

// ------------------------------------------------------------------ up vector and local axes

TEST(InsLocalAxes, UpVector)
{
    Eigen::Vector3d oUp(9.0, 9.0, 9.0);
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(1.0, 2.0, 3.0), oUp, eINSPOSFRAME_LEVEL, c_dINS_E2));
    EXPECT_TRUE(oUp == Eigen::Vector3d(0.0, 0.0, 1.0));

    // The ellipsoid normal: latitude atan2((1 + e'^2) z, p), longitude atan2(y, x).
    const double x = 3000000.0, y = -2000000.0, z = 5000000.0;
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(x, y, z), oUp, eINSPOSFRAME_EARTH, c_dINS_E2));
    const double dLat = std::atan2((1.0 + c_dINS_E2) * z, std::sqrt(x * x + y * y));
    const double dLon = std::atan2(y, x);
    EXPECT_NEAR(std::cos(dLat) * std::cos(dLon), oUp.x(), 1e-15);
    EXPECT_NEAR(std::cos(dLat) * std::sin(dLon), oUp.y(), 1e-15);
    EXPECT_NEAR(std::sin(dLat), oUp.z(), 1e-15);

    // A sphere: dE2 0 gives the radial direction.
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(0.0, 3.0, 4.0), oUp, eINSPOSFRAME_EARTH, 0.0));
    EXPECT_TRUE(oUp == Eigen::Vector3d(0.0, 0.6, 0.8));

    // Refusals leave the output alone.
    const Eigen::Vector3d oKept(7.0, 7.0, 7.0);
    const struct
    {
        Eigen::Vector3d x;
        int iFrame;
        double dE2;
    } astBad[] = {{Eigen::Vector3d(1.0, 0.0, 0.0), 0, c_dINS_E2},
                  {Eigen::Vector3d(1.0, 0.0, 0.0), 3, c_dINS_E2},
                  {Eigen::Vector3d(1.0, 0.0, 0.0), -1, c_dINS_E2},
                  {Eigen::Vector3d(0.5e-10, 0.0, 0.0), 1, c_dINS_E2},
                  {Eigen::Vector3d(1.0, 0.0, 0.0), 1, -1e-12}};
    for (const auto& rBad : astBad)
    {
        oUp = oKept;
        EXPECT_EQ(1000u, GetUpVector(rBad.x, oUp, static_cast<EZelInsPosFrame>(rBad.iFrame), rBad.dE2));
        EXPECT_TRUE(oUp == oKept);
    }
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(2e-10, 0.0, 0.0), oUp, eINSPOSFRAME_EARTH, c_dINS_E2));
}

TEST(InsLocalAxes, EastNorthUpAgainstTheGeodeticFormulas)
{
    const double adPoints[][3] = {{4500000.0, 0.0, 4500000.0},
                                  {-2000000.0, 5000000.0, -3000000.0},
                                  {6378137.0, 0.0, 0.0},
                                  {100.0, -100.0, 6356752.0}};
    for (const auto& rPoint : adPoints)
    {
        const double x = rPoint[0], y = rPoint[1], z = rPoint[2];
        Eigen::Vector3d oEast, oNorth, oUp;
        ASSERT_EQ(0u,
                  GetLocalAxes(Eigen::Vector3d(x, y, z), oEast, oNorth, oUp, eINSPOSFRAME_EARTH, c_dINS_E2));
        const double dLat = std::atan2((1.0 + c_dINS_E2) * z, std::sqrt(x * x + y * y));
        const double dLon = std::atan2(y, x);
        // Near a pole north is the difference of two nearly equal vectors,
        // normalised from a short one: looser there.
        const double dTolerance = std::sqrt(x * x + y * y) < 1e4 ? 1e-9 : 1e-12;
        const Eigen::Vector3d oExpEast(-std::sin(dLon), std::cos(dLon), 0.0);
        const Eigen::Vector3d oExpNorth(-std::sin(dLat) * std::cos(dLon), -std::sin(dLat) * std::sin(dLon),
                                        std::cos(dLat));
        const Eigen::Vector3d oExpUp(std::cos(dLat) * std::cos(dLon), std::cos(dLat) * std::sin(dLon),
                                     std::sin(dLat));
        for (int i = 0; i < 3; ++i)
        {
            EXPECT_NEAR(oExpEast(i), oEast(i), dTolerance) << x << " " << y << " " << z;
            EXPECT_NEAR(oExpNorth(i), oNorth(i), dTolerance);
            EXPECT_NEAR(oExpUp(i), oUp(i), 1e-12);
        }

        Eigen::Matrix3d R;
        ASSERT_EQ(0u, GetRotationLocalToFrame(Eigen::Vector3d(x, y, z), R, c_dINS_E2));
        EXPECT_TRUE(R.col(0) == oEast);
        EXPECT_TRUE(R.col(1) == oNorth);
        EXPECT_TRUE(R.col(2) == oUp);
        Eigen::Matrix3d RT;
        ASSERT_EQ(0u, GetRotationFrameToLocal(Eigen::Vector3d(x, y, z), RT, c_dINS_E2));
        EXPECT_TRUE(RT == R.transpose());
    }
}

TEST(InsLocalAxes, PoleAndOtherFramesFail)
{
    Eigen::Vector3d oEast(5.0, 5.0, 5.0), oNorth = oEast, oUp = oEast;
    EXPECT_EQ(1000u, GetLocalAxes(Eigen::Vector3d(0.0, 0.0, 6356752.3), oEast, oNorth, oUp,
                                  eINSPOSFRAME_EARTH, c_dINS_E2));
    EXPECT_EQ(1000u, GetLocalAxes(Eigen::Vector3d(0.0, 0.0, -6356752.3), oEast, oNorth, oUp,
                                  eINSPOSFRAME_EARTH, c_dINS_E2));
    // A level frame has an up vector, but no local axes here.
    Eigen::Vector3d oLevelUp;
    EXPECT_EQ(0u, GetUpVector(Eigen::Vector3d(1.0, 0.0, 0.0), oLevelUp, eINSPOSFRAME_LEVEL, c_dINS_E2));
    EXPECT_EQ(1000u, GetLocalAxes(Eigen::Vector3d(1.0, 0.0, 0.0), oEast, oNorth, oUp, eINSPOSFRAME_LEVEL,
                                  c_dINS_E2));
    EXPECT_EQ(1000u,
              GetLocalAxes(Eigen::Vector3d(1.0, 0.0, 0.0), oEast, oNorth, oUp, eINSPOSFRAME_NONE, c_dINS_E2));
    // The up vector's refusal is passed on.
    EXPECT_EQ(1000u,
              GetLocalAxes(Eigen::Vector3d::Zero(), oEast, oNorth, oUp, eINSPOSFRAME_EARTH, c_dINS_E2));
    EXPECT_TRUE(oEast == Eigen::Vector3d(5.0, 5.0, 5.0));
    EXPECT_TRUE(oUp == Eigen::Vector3d(5.0, 5.0, 5.0));
    Eigen::Matrix3d R = Eigen::Matrix3d::Constant(2.0);
    EXPECT_EQ(1000u, GetRotationLocalToFrame(Eigen::Vector3d(0.0, 0.0, 6356752.3), R, c_dINS_E2));
    EXPECT_EQ(1000u, GetRotationFrameToLocal(Eigen::Vector3d(0.0, 0.0, 6356752.3), R, c_dINS_E2));
    EXPECT_TRUE(R == Eigen::Matrix3d::Constant(2.0));
}

// ------------------------------------------------------------------ azimuths and angles

TEST(InsAngles, Azimuth)
{
    SZelInsAngleVar st;
    st.dAngle = 5.0;
    st.dVar = 0.5;
    EXPECT_EQ(1000u, GetAzimuth(0.0, 0.0, st, true));
    EXPECT_EQ(1000u, GetAzimuth(1e-11, 0.0, st, true));
    EXPECT_EQ(5.0, st.dAngle);
    EXPECT_EQ(0u, GetAzimuth(1e-9, 0.0, st, true));
    EXPECT_EQ(0.0, st.dAngle);
    EXPECT_EQ(0.5, st.dVar) << "the variance is not touched";
    EXPECT_EQ(0u, GetAzimuth(1.0, 1.0, st, false));
    EXPECT_EQ(std::atan2(1.0, 1.0), st.dAngle);
    EXPECT_EQ(0u, GetAzimuth(1.0, -1.0, st, false));
    EXPECT_EQ(std::atan2(-1.0, 1.0), st.dAngle);
    EXPECT_EQ(0u, GetAzimuth(1.0, -1.0, st, true));
    EXPECT_NEAR(2.0 * c_dPi - c_dPi / 4.0, st.dAngle, 1e-15);
    EXPECT_EQ(0u, GetAzimuth(-1.0, 0.0, st, true));
    EXPECT_EQ(c_dPi, st.dAngle);
}

TEST(InsAngles, AngleToAUnitVector)
{
    SZelInsAngleVar st;
    st.dAngle = 9.0;
    EXPECT_EQ(1004u, GetAngle(Eigen::Vector3d::Zero(), c_oEast, st));
    EXPECT_EQ(9.0, st.dAngle);
    EXPECT_EQ(0u, GetAngle(Eigen::Vector3d(2.0, 2.0, 0.0), c_oEast, st));
    EXPECT_NEAR(c_dPi / 4.0, st.dAngle, 1e-15);
    EXPECT_EQ(0u, GetAngle(Eigen::Vector3d(-3.0, 0.0, 0.0), c_oEast, st));
    EXPECT_EQ(c_dPi, st.dAngle);
    // A dot product just above 1 is clamped: no NaN.
    EXPECT_EQ(0u, GetAngle(Eigen::Vector3d(5.0, 0.0, 0.0), Eigen::Vector3d(1.0 + 1e-12, 0.0, 0.0), st));
    EXPECT_EQ(0.0, st.dAngle);
    EXPECT_EQ(0u, GetAngle(Eigen::Vector3d(-5.0, 0.0, 0.0), Eigen::Vector3d(1.0 + 1e-12, 0.0, 0.0), st));
    EXPECT_EQ(c_dPi, st.dAngle);
}

TEST(InsAngles, SignedAngle)
{
    SZelInsAngleVar st;
    EXPECT_EQ(0u, GetSignedAngle(c_oEast, c_oNorth, c_oUp, st));
    EXPECT_NEAR(c_dPi / 2.0, st.dAngle, 1e-15);
    EXPECT_EQ(0u, GetSignedAngle(c_oEast, c_oNorth, -c_oUp, st));
    EXPECT_NEAR(3.0 * c_dPi / 2.0, st.dAngle, 1e-15);
    EXPECT_EQ(0u, GetSignedAngle(c_oEast, Eigen::Vector3d(1.0, 1.0, 0.0), c_oUp, st));
    EXPECT_NEAR(c_dPi / 4.0, st.dAngle, 1e-15);
    EXPECT_EQ(1000u, GetSignedAngle(c_oEast, Eigen::Vector3d::Zero(), c_oUp, st));
}

TEST(InsAngles, HeadingCountsFromNorthTowardsEast)
{
    SZelInsAngleVar st;
    EXPECT_EQ(0u, GetHeading(Eigen::Vector3d(1.0, 0.0, 0.0), c_oEast, c_oNorth, c_oUp, st, true));
    EXPECT_NEAR(c_dPi / 2.0, st.dAngle, 1e-15);
    EXPECT_EQ(0u, GetHeading(Eigen::Vector3d(-1.0, 0.0, 0.0), c_oEast, c_oNorth, c_oUp, st, true));
    EXPECT_NEAR(3.0 * c_dPi / 2.0, st.dAngle, 1e-15);
    EXPECT_EQ(0u, GetHeading(Eigen::Vector3d(-1.0, 0.0, 0.0), c_oEast, c_oNorth, c_oUp, st, false));
    EXPECT_NEAR(-c_dPi / 2.0, st.dAngle, 1e-15);
    // The vertical part plays no part.
    EXPECT_EQ(0u, GetHeading(Eigen::Vector3d(0.0, 2.0, 100.0), c_oEast, c_oNorth, c_oUp, st, true));
    EXPECT_EQ(0.0, st.dAngle);
    EXPECT_EQ(1000u, GetHeading(Eigen::Vector3d(0.0, 0.0, 5.0), c_oEast, c_oNorth, c_oUp, st, true));
}

// ------------------------------------------------------------------ tilt

TEST(InsTilt, KnownRotationAgainstTheFormula)
{
    const double dAlpha = 0.3;
    const Eigen::Quaterniond q = AxisAngle(dAlpha, 1.0, 0.0, 0.0);
    const CZelInsStateUnitQuaterniond stAtt(q, AttitudeCov(), eCOVTYPE_COV);
    SZelInsAngleVar st;
    ASSERT_EQ(0u, GetBodyAxisTilt(stAtt, c_oUp, c_oUp, st));
    EXPECT_NEAR(dAlpha, st.dAngle, 1e-15);
    // a = R e_z, c = a x ref normalised, variance c^T Q c.
    Mat R;
    RotationOf(q.w(), q.x(), q.y(), q.z(), R);
    const Vec ez = {0.0, 0.0, 1.0};
    Vec a;
    Apply(R, ez, a);
    Vec c;
    Cross(a, ez, c);
    const double dLen = std::sqrt(Dot(c, c));
    for (double& d : c)
    {
        d /= dLen;
    }
    Mat Q;
    ToMat(AttitudeCov(), Q);
    EXPECT_NEAR(Quadratic(c, Q), st.dVar, 1e-18);
    EXPECT_NEAR(4e-4, st.dVar, 1e-18) << "a tilt about x has the variance of the x error";
}

TEST(InsTilt, GeneralRotation)
{
    const Eigen::Quaterniond q = AxisAngle(1.1, 0.48, 0.6, 0.64);
    const CZelInsStateUnitQuaterniond stAtt(q, AttitudeCov(), eCOVTYPE_COV);
    const Eigen::Vector3d oAxis(0.0, 0.6, 0.8);
    const Eigen::Vector3d oRef(0.36, 0.48, 0.8);
    SZelInsAngleVar st;
    ASSERT_EQ(0u, GetBodyAxisTilt(stAtt, oAxis, oRef, st));
    Mat R;
    RotationOf(q.w(), q.x(), q.y(), q.z(), R);
    const Vec axis = {0.0, 0.6, 0.8};
    const Vec ref = {0.36, 0.48, 0.8};
    Vec a;
    Apply(R, axis, a);
    EXPECT_NEAR(std::acos(Dot(a, ref) / std::sqrt(Dot(a, a))), st.dAngle, 1e-13);
    Vec c;
    Cross(a, ref, c);
    const double dLen = std::sqrt(Dot(c, c));
    for (double& d : c)
    {
        d /= dLen;
    }
    Mat Q;
    ToMat(AttitudeCov(), Q);
    EXPECT_NEAR(Quadratic(c, Q), st.dVar, 1e-17);
}

TEST(InsTilt, AlignedAxisTakesTheMeanOfTheOtherTwo)
{
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond::Identity(), AttitudeCov(), eCOVTYPE_COV);
    SZelInsAngleVar st;
    ASSERT_EQ(0u, GetBodyAxisTilt(stAtt, c_oUp, c_oUp, st));
    EXPECT_EQ(0.0, st.dAngle);
    // (trace Q - a^T Q a) / 2 with a = e_z.
    EXPECT_NEAR((4e-4 + 9e-4 + 1.6e-3 - 1.6e-3) / 2.0, st.dVar, 1e-18);
    // Upside down: aligned the other way.
    const CZelInsStateUnitQuaterniond stFlip(AxisAngle(c_dPi, 1.0, 0.0, 0.0), AttitudeCov(), eCOVTYPE_COV);
    ASSERT_EQ(0u, GetBodyAxisTilt(stFlip, c_oUp, c_oUp, st));
    EXPECT_NEAR(c_dPi, st.dAngle, 1e-7);
    EXPECT_NEAR((4e-4 + 9e-4) / 2.0, st.dVar, 1e-12);
}

TEST(InsTilt, NonUnitInputsReportOncePerKind)
{
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond::Identity(), AttitudeCov(), eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stLong(Eigen::Quaterniond(2.0, 0.0, 0.0, 0.0), AttitudeCov(),
                                             eCOVTYPE_COV);
    SZelInsAngleVar st;
    st.dAngle = 8.0;
    CRecordingHook stHook;
    EXPECT_EQ(1003u, GetBodyAxisTilt(stAtt, 2.0 * c_oUp, c_oUp, st));
    EXPECT_EQ(1003u, GetBodyAxisTilt(stAtt, 2.0 * c_oUp, c_oUp, st));
    EXPECT_EQ(std::vector<std::string>{"(false)"}, stHook.Texts());
    EXPECT_EQ(1003u, GetBodyAxisTilt(stAtt, c_oUp, Eigen::Vector3d::Zero(), st));
    EXPECT_EQ(1003u, GetBodyAxisTilt(stAtt, c_oUp, 0.5 * c_oUp, st));
    EXPECT_EQ((std::vector<std::string>{"(false)", "(false)"}), stHook.Texts());
    EXPECT_EQ(1003u, GetBodyAxisTilt(stLong, c_oUp, c_oUp, st));
    EXPECT_EQ(1003u, GetBodyAxisTilt(stLong, c_oUp, c_oUp, st));
    EXPECT_EQ((std::vector<std::string>{"(false)", "(false)", "(false)"}), stHook.Texts());
    EXPECT_EQ(8.0, st.dAngle);
}

// ------------------------------------------------------------------ headings

TEST(InsHeading, BodyAxisTurnedAboutUp)
{
    const Mat Q = {{4e-4, 1e-5, -2e-5}, {1e-5, 9e-4, 3e-5}, {-2e-5, 3e-5, 1.6e-3}};
    for (const double dPsi : {0.0, 0.4, 1.0, 2.5, 4.0, 5.9})
    {
        // Turning the body north axis clockwise about up by psi points it at heading psi.
        const Eigen::Quaterniond q = AxisAngle(-dPsi, 0.0, 0.0, 1.0);
        const CZelInsStateUnitQuaterniond stAtt(q, AttitudeCov(), eCOVTYPE_COV);
        SZelInsAngleVar st;
        ASSERT_EQ(0u, GetBodyAxisHeading(stAtt, c_oNorth, c_oEast, c_oNorth, c_oUp, st));
        EXPECT_NEAR(dPsi, st.dAngle, 1e-12) << dPsi;
        // e, n of a; P = a x East, R = a x North; (e^2 R^T Q R + n^2 P^T Q P) / d^2.
        Mat Rm;
        RotationOf(q.w(), q.x(), q.y(), q.z(), Rm);
        const Vec en = {0.0, 1.0, 0.0};
        const Vec ee = {1.0, 0.0, 0.0};
        Vec a;
        Apply(Rm, en, a);
        const double e = a[0], n = a[1], d = e * e + n * n;
        Vec P, R;
        Cross(a, ee, P);
        Cross(a, en, R);
        EXPECT_NEAR((e * e * Quadratic(R, Q) + n * n * Quadratic(P, Q)) / (d * d), st.dVar, 1e-17);
    }
}

TEST(InsHeading, GimbalLockNeighbourhood)
{
    // The forward axis pitched up by 90 deg less a small angle: its heading
    // is still defined, its variance grows as the horizontal part shrinks.
    for (const double dGap : {1e-3, 1e-6, 1e-9})
    {
        const Eigen::Quaterniond q = AxisAngle(c_dPi / 2.0 - dGap, 1.0, 0.0, 0.0);
        const CZelInsStateUnitQuaterniond stAtt(q, AttitudeCov(), eCOVTYPE_COV);
        SZelInsAngleVar st;
        CRecordingHook stHook;
        ASSERT_EQ(0u, GetBodyAxisHeading(stAtt, c_oNorth, c_oEast, c_oNorth, c_oUp, st)) << dGap;
        EXPECT_NEAR(0.0, st.dAngle, 1e-12);
        Mat Rm;
        RotationOf(q.w(), q.x(), q.y(), q.z(), Rm);
        const Vec en = {0.0, 1.0, 0.0};
        const Vec ee = {1.0, 0.0, 0.0};
        Vec a;
        Apply(Rm, en, a);
        const double e = a[0], n = a[1], d = e * e + n * n;
        Vec P, R;
        Cross(a, ee, P);
        Cross(a, en, R);
        Mat Q;
        ToMat(AttitudeCov(), Q);
        const double dExpected = (e * e * Quadratic(R, Q) + n * n * Quadratic(P, Q)) / (d * d);
        EXPECT_NEAR(dExpected, st.dVar, std::fabs(dExpected) * 1e-6) << dGap;
        EXPECT_GT(st.dVar, 1e-3) << "the heading of a nearly vertical axis is poorly known";
        EXPECT_EQ(0u, stHook.Count());
    }
    // Exactly vertical: no heading.
    const CZelInsStateUnitQuaterniond stUp(AxisAngle(c_dPi / 2.0, 1.0, 0.0, 0.0), AttitudeCov(),
                                           eCOVTYPE_COV);
    SZelInsAngleVar st;
    st.dAngle = 3.0;
    EXPECT_EQ(1000u, GetBodyAxisHeading(stUp, c_oNorth, c_oEast, c_oNorth, c_oUp, st));
    EXPECT_EQ(3.0, st.dAngle);
}

TEST(InsHeading, NonUnitAttitudeReportsOnce)
{
    const CZelInsStateUnitQuaterniond stLong(Eigen::Quaterniond(1.0, 1.0, 0.0, 0.0), AttitudeCov(),
                                             eCOVTYPE_COV);
    SZelInsAngleVar st;
    CRecordingHook stHook;
    EXPECT_EQ(1003u, GetBodyAxisHeading(stLong, c_oNorth, c_oEast, c_oNorth, c_oUp, st));
    EXPECT_EQ(1003u, GetBodyAxisHeading(stLong, c_oNorth, c_oEast, c_oNorth, c_oUp, st));
    EXPECT_EQ(std::vector<std::string>{"(false)"}, stHook.Texts());
}

TEST(InsHeading, VelocityCourse)
{
    Eigen::Matrix3d oQ;
    oQ << 0.04, 0.01, 0.002, 0.01, 0.09, -0.003, 0.002, -0.003, 0.16;
    const CZelInsStateVector3d stVel(Eigen::Vector3d(3.0, 4.0, 5.0), oQ, eCOVTYPE_COV);
    SZelInsAngleVar st;
    ASSERT_EQ(0u, GetVelocityHeading(stVel, c_oEast, c_oNorth, c_oUp, st));
    EXPECT_EQ(std::atan2(3.0, 4.0), st.dAngle);
    // (e^2 North^T Q North + n^2 East^T Q East) / d^2, e = 3, n = 4, d = 25.
    EXPECT_NEAR((9.0 * 0.09 + 16.0 * 0.04) / 625.0, st.dVar, 1e-17);

    const CZelInsStateVector3d stWest(Eigen::Vector3d(-2.0, 0.0, 1.0), oQ, eCOVTYPE_COV);
    ASSERT_EQ(0u, GetVelocityHeading(stWest, c_oEast, c_oNorth, c_oUp, st));
    EXPECT_NEAR(3.0 * c_dPi / 2.0, st.dAngle, 1e-15);
    EXPECT_NEAR(4.0 * 0.09 / 16.0, st.dVar, 1e-17);

    const CZelInsStateVector3d stClimb(Eigen::Vector3d(0.0, 0.0, 3.0), oQ, eCOVTYPE_COV);
    st.dAngle = 1.0;
    EXPECT_EQ(1000u, GetVelocityHeading(stClimb, c_oEast, c_oNorth, c_oUp, st));
    EXPECT_EQ(1.0, st.dAngle);
}

// ------------------------------------------------------------------ lever arms

TEST(InsTransfer, ZeroLeverKeepsPositionAndCovariance)
{
    const CZelInsStateVector3d stPos(Eigen::Vector3d(1e6, -2e6, 3e6), ZelSample::InsCov3(), eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stAtt(AxisAngle(0.5, 0.6, 0.8, 0.0), AttitudeCov(), eCOVTYPE_COV);
    CZelInsStateVector3d stOut;
    stOut.SetTime(ZelSample::InsTime());
    EXPECT_EQ(0u, TransferPosition(stPos, stAtt, Eigen::Vector3d::Zero(), stOut));
    EXPECT_TRUE(stOut.m_oValue == stPos.m_oValue);
    EXPECT_TRUE(stOut.m_oCov == stPos.m_oCov);
    EXPECT_EQ(eCOVTYPE_COV, stOut.m_eCovType);
    EXPECT_TRUE(stOut.GetTime() == ZelSample::InsTime()) << "SetState leaves the time";
}

TEST(InsTransfer, PositionAndCovarianceAgainstTheFormula)
{
    const Eigen::Quaterniond q = AxisAngle(0.9, 0.0, 0.6, 0.8);
    const CZelInsStateVector3d stPos(Eigen::Vector3d(10.0, 20.0, 30.0), ZelSample::InsCov3(), eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stAtt(q, AttitudeCov(), eCOVTYPE_COV);
    const Eigen::Vector3d oLever(1.5, -0.5, 2.0);
    CZelInsStateVector3d stOut;
    ASSERT_EQ(0u, TransferPosition(stPos, stAtt, oLever, stOut));

    Mat R;
    RotationOf(q.w(), q.x(), q.y(), q.z(), R);
    const Vec l = {1.5, -0.5, 2.0};
    Vec r;
    Apply(R, l, r);
    const Vec x = {10.0, 20.0, 30.0};
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_NEAR(x[i] + r[i], stOut.m_oValue(i), 1e-13);
    }
    Mat A, Qq, Qx, AQA;
    Skew(r, A);
    ToMat(AttitudeCov(), Qq);
    ToMat(ZelSample::InsCov3(), Qx);
    Sandwich(A, Qq, AQA);
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            EXPECT_NEAR(Qx[i][j] + AQA[i][j], stOut.m_oCov(i, j), 1e-14) << i << "," << j;
        }
    }

    // An attitude that is not of unit norm is normalised first.
    const CZelInsStateUnitQuaterniond stLong(Eigen::Quaterniond(q.coeffs() * 3.0), AttitudeCov(),
                                             eCOVTYPE_COV);
    CZelInsStateVector3d stOutLong;
    ASSERT_EQ(0u, TransferPosition(stPos, stLong, oLever, stOutLong));
    EXPECT_TRUE(stOutLong.m_oValue.isApprox(stOut.m_oValue, 1e-15));

    // The output may be the input.
    CZelInsStateVector3d stSame = stPos;
    ASSERT_EQ(0u, TransferPosition(stSame, stAtt, oLever, stSame));
    EXPECT_TRUE(stSame.m_oValue == stOut.m_oValue);
}

TEST(InsTransfer, PositionAndVelocityAgainstTheFormula)
{
    const Eigen::Quaterniond q = AxisAngle(-1.3, 0.36, 0.48, 0.8);
    Eigen::Matrix3d oQv;
    oQv << 0.04, 0.01, 0.0, 0.01, 0.09, 0.002, 0.0, 0.002, 0.01;
    Eigen::Matrix3d oQw;
    oQw << 1e-6, 2e-7, 0.0, 2e-7, 4e-6, -1e-7, 0.0, -1e-7, 9e-6;
    const CZelInsStateVector3d stPos(Eigen::Vector3d(-5.0, 6.0, 7.0), ZelSample::InsCov3(), eCOVTYPE_COV);
    const CZelInsStateVector3d stVel(Eigen::Vector3d(10.0, -1.0, 0.5), oQv, eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stAtt(q, AttitudeCov(), eCOVTYPE_COV);
    const CZelInsStateVector3d stRate(Eigen::Vector3d(0.1, -0.2, 0.3), oQw, eCOVTYPE_COV);
    const Eigen::Vector3d oLever(0.5, 1.0, -1.5);
    CZelInsStateVector3d stOutPos;
    CZelInsStateVector3d stOutVel;
    ASSERT_EQ(0u, TransferPositionVelocity(stPos, stVel, stAtt, stRate, oLever, stOutPos, stOutVel));

    Mat R;
    RotationOf(q.w(), q.x(), q.y(), q.z(), R);
    const Vec l = {0.5, 1.0, -1.5};
    Vec r;
    Apply(R, l, r);
    const Vec w = {0.1, -0.2, 0.3};
    Vec wr;
    Cross(w, r, wr);
    const Vec v = {10.0, -1.0, 0.5};
    const Vec x = {-5.0, 6.0, 7.0};
    Mat A, W, M, Qq, Qx, Qvm, Qwm, AQqA, MQqM, AQwA;
    Skew(r, A);
    Skew(w, W);
    Mul(W, A, M);
    ToMat(AttitudeCov(), Qq);
    ToMat(ZelSample::InsCov3(), Qx);
    ToMat(oQv, Qvm);
    ToMat(oQw, Qwm);
    Sandwich(A, Qq, AQqA);
    Sandwich(M, Qq, MQqM);
    Sandwich(A, Qwm, AQwA);
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_NEAR(x[i] + r[i], stOutPos.m_oValue(i), 1e-13);
        EXPECT_NEAR(v[i] + wr[i], stOutVel.m_oValue(i), 1e-13);
        for (int j = 0; j < 3; ++j)
        {
            EXPECT_NEAR(Qx[i][j] + AQqA[i][j], stOutPos.m_oCov(i, j), 1e-14);
            EXPECT_NEAR(Qvm[i][j] + MQqM[i][j] + AQwA[i][j], stOutVel.m_oCov(i, j), 1e-15);
        }
    }
    EXPECT_EQ(eCOVTYPE_COV, stOutPos.m_eCovType);
    EXPECT_EQ(eCOVTYPE_COV, stOutVel.m_eCovType);

    // The outputs may be inputs.
    CZelInsStateVector3d stPosInOut = stPos;
    CZelInsStateVector3d stVelInOut = stVel;
    ASSERT_EQ(
        0u, TransferPositionVelocity(stPosInOut, stVelInOut, stAtt, stRate, oLever, stPosInOut, stVelInOut));
    EXPECT_TRUE(stPosInOut.m_oValue == stOutPos.m_oValue);
    EXPECT_TRUE(stVelInOut.m_oCov == stOutVel.m_oCov);
}

TEST(InsTransfer, TagsOtherThanCovarianceReportOnce)
{
    const CZelInsStateVector3d stPos(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_COV);
    const CZelInsStateVector3d stChl(Eigen::Vector3d::Zero(), Eigen::Matrix3d::Identity(), eCOVTYPE_COVCHL);
    const CZelInsStateUnitQuaterniond stAtt(Eigen::Quaterniond::Identity(), AttitudeCov(), eCOVTYPE_COV);
    const CZelInsStateUnitQuaterniond stAttInf(Eigen::Quaterniond::Identity(), AttitudeCov(), eCOVTYPE_INF);
    CZelInsStateVector3d stOut(Eigen::Vector3d(9.0, 9.0, 9.0));
    CZelInsStateVector3d stOutVel(Eigen::Vector3d(8.0, 8.0, 8.0));
    const Eigen::Vector3d oLever(1.0, 2.0, 3.0);
    CRecordingHook stHook;
    EXPECT_EQ(1000u, TransferPosition(stChl, stAtt, oLever, stOut));
    EXPECT_EQ(1000u, TransferPosition(stPos, stAttInf, oLever, stOut));
    EXPECT_EQ(std::vector<std::string>{"(false)"}, stHook.Texts());
    EXPECT_TRUE(stOut.m_oValue == Eigen::Vector3d(9.0, 9.0, 9.0));
    EXPECT_EQ(eCOVTYPE_INVALID, stOut.m_eCovType);

    EXPECT_EQ(1000u, TransferPositionVelocity(stChl, stPos, stAtt, stPos, oLever, stOut, stOutVel));
    EXPECT_EQ(1000u, TransferPositionVelocity(stPos, stChl, stAtt, stPos, oLever, stOut, stOutVel));
    EXPECT_EQ(1000u, TransferPositionVelocity(stPos, stPos, stAttInf, stPos, oLever, stOut, stOutVel));
    EXPECT_EQ(1000u, TransferPositionVelocity(stPos, stPos, stAtt, stChl, oLever, stOut, stOutVel));
    EXPECT_EQ((std::vector<std::string>{"(false)", "(false)"}), stHook.Texts());
    EXPECT_TRUE(stOutVel.m_oValue == Eigen::Vector3d(8.0, 8.0, 8.0));
}
