// INS results: the records and their forms, interpolation between two
// results, the move to another body point and the reduction to attitude
// angles. Expected values come from formulas written out here.
#include "ZelSamplesIns.h"
#include "ZelTestKit.h"

#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{
const double c_dPi = 3.14159265358979323846;
const int32_t c_lSampleDay = 44244 + 2100 * 7 + 4;

typedef double Mat[3][3];
typedef double Vec[3];

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

void Unpack(const CZelExtSymMatrix3d& st, Mat out)
{
    const int aiIndex[3][3] = {{0, 1, 3}, {1, 2, 4}, {3, 4, 5}};
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            out[i][j] = st.m_adElem[aiIndex[i][j]];
        }
    }
}

CL_ZELX_INS_RES_POS_STATE Unshifted()
{
    CL_ZELX_INS_RES_POS_STATE st = ZelSample::InsResPosState();
    st.bShifted = false;
    return st;
}

// The sample state with the two attitude-free fields set apart so that A
// and B of an interpolation are told apart.
CL_ZELX_INS_RES_POS_STATE StateAt(double dSecondsOfWeek, double dOffset)
{
    CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    st.stTime = SMjdTime(2100u, dSecondsOfWeek);
    for (size_t k = 0; k < 3; ++k)
    {
        st.x_pbP.m_adElem[k] += dOffset;
        st.v_pbP.m_adElem[k] -= dOffset;
        st.w_pbP.m_adElem[k] += 0.5 * dOffset;
    }
    return st;
}

CImage StateImage()
{
    CImage st;
    st.At(0).U16(11).At(2).I32(1).At(6).I32(-4).At(10).U16(513).At(12).U8(1);
    st.At(13).F64(4500000.0).F64(0.0).F64(4500000.0);
    st.At(37).F64(0.25).F64(0.0).F64(0.5).F64(0.0).F64(0.0).F64(0.75);
    st.At(85).F64(-2.0).F64(3.0).F64(2.0);
    st.At(109).F64(0.01).F64(0.0).F64(0.02).F64(0.0).F64(0.0).F64(0.03);
    st.At(157).F64(0.5).F64(0.5).F64(-0.5).F64(0.5);
    st.At(189).F64(0.0001).F64(0.0).F64(0.0002).F64(0.0).F64(0.0).F64(0.0004);
    st.At(237).F64(0.125).F64(-0.0625).F64(0.25);
    st.At(261).F64(0.001).F64(0.0).F64(0.002).F64(0.0).F64(0.0).F64(0.003);
    st.At(309).Time24(c_lSampleDay, 125.0, 1).At(333).I16(7).At(335);
    return st;
}

// The line of the sample state on a fresh stream: the time at 3 significant
// digits, the vectors at 6, the covariances at 12.
const char* const c_szStateText =
    "7, 2100, 3.46e+08, 11, 1, -4, 513, 1, x_pbP, 4.5e+06, 0, 4.5e+06, v_pbP, -2, 3, 2, q_bP, 0.5, 0.5, "
    "-0.5, "
    "0.5, w_pbP, 0.125, -0.0625, 0.25, Qx_pbP, 0.25, 0, 0.5, 0, 0, 0.75, Qv_pbP, 0.01, 0, 0.02, 0, 0, 0.03, "
    "Qq_bP, 0.0001, 0, 0.0002, 0, 0, 0.0004, Qw_pbP, 0.001, 0, 0.002, 0, 0, 0.003";

// The body attitude in the local east-north-up frame from heading psi
// (from north towards east), pitch theta (nose up) and roll phi about the
// forward axis; body forward x, body up z. Returned as the quaternion of
// the rotation from the body to the earth-fixed frame at the given axes.
Eigen::Quaterniond BodyToEarth(double dPsi, double dTheta, double dPhi, const Eigen::Vector3d& rEast,
                               const Eigen::Vector3d& rNorth, const Eigen::Vector3d& rUp)
{
    const Eigen::Vector3d f(std::sin(dPsi) * std::cos(dTheta), std::cos(dPsi) * std::cos(dTheta),
                            std::sin(dTheta));
    const Eigen::Vector3d u0(-std::sin(dPsi) * std::sin(dTheta), -std::cos(dPsi) * std::sin(dTheta),
                             std::cos(dTheta));
    const Eigen::Vector3d u = std::cos(dPhi) * u0 + std::sin(dPhi) * f.cross(u0);
    Eigen::Matrix3d oBodyToLocal;
    oBodyToLocal.col(0) = f;
    oBodyToLocal.col(1) = u.cross(f);
    oBodyToLocal.col(2) = u;
    Eigen::Matrix3d oLocalToEarth;
    oLocalToEarth.col(0) = rEast;
    oLocalToEarth.col(1) = rNorth;
    oLocalToEarth.col(2) = rUp;
    return Eigen::Quaterniond(Eigen::Matrix3d(oLocalToEarth * oBodyToLocal));
}
} // namespace

// ------------------------------------------------------------------ records

TEST(InsResult, DefaultsAccessorsImage)
{
    const CL_ZELX_INS_RESULT stDefault;
    EXPECT_EQ(-1, stDefault.usSensorID);
    EXPECT_TRUE(stDefault.stTime == SMjdTime());
    CL_ZELX_INS_RESULT st;
    st.SetSensorID(7);
    st.SetTime(ZelSample::InsTime());
    EXPECT_EQ(7, st.GetSensorID());
    EXPECT_TRUE(st.GetTime() == ZelSample::InsTime());

    CImage stImage;
    stImage.At(0).Time24(c_lSampleDay, 125.0, 1).At(24).I16(7).At(26);
    ZelTest::ExpectCoreImage(ZelSample::InsResult(), stImage);
}

TEST(InsResult, TextAtThreeSignificantDigits)
{
    // The milliseconds of the week go out at precision 3 in the stream's
    // notation: on a fresh stream three significant digits.
    ZelTest::ExpectText(ZelSample::InsResult(), "7, 2100, 3.46e+08");
    CL_ZELX_INS_RESULT stWeekStart;
    stWeekStart.usSensorID = -2;
    stWeekStart.stTime = SMjdTime(2100u, 0.0);
    ZelTest::ExpectTextExact(stWeekStart, "-2, 2100, 0");
    std::ostringstream os;
    os << stWeekStart;
    EXPECT_EQ(9, static_cast<int>(os.precision()));
    // On a stream in fixed notation the three digits are decimals.
    std::ostringstream osFixed;
    osFixed << std::fixed << ZelSample::InsResult();
    EXPECT_EQ("7, 2100, 345600125.000", osFixed.str());
}

TEST(InsResult, Equality)
{
    const CL_ZELX_INS_RESULT a = ZelSample::InsResult();
    CL_ZELX_INS_RESULT b = a;
    b.stTime.m_dMjdFractMilliseconds += 5e-7;
    EXPECT_TRUE(a == b);
    b.stTime.m_dMjdFractMilliseconds += 1e-3;
    EXPECT_FALSE(a == b);
    b = a;
    b.usSensorID = 8;
    EXPECT_TRUE(a != b);
}

TEST(InsResPosState, DefaultsAndAccessors)
{
    const CL_ZELX_INS_RES_POS_STATE st;
    EXPECT_TRUE(st.x_pbP == CZelExtVector3d());
    EXPECT_TRUE(st.Qx_pbP == CZelExtSymMatrix3d());
    EXPECT_TRUE(st.q_bP == CZelExtQuaterniond());
    EXPECT_EQ(0, st.usField1);
    EXPECT_EQ(eINSPOSFRAME_NONE, st.ePosFrame);
    EXPECT_EQ(0, st.eField2);
    EXPECT_EQ(0, st.usField3);
    EXPECT_FALSE(st.bShifted);
    EXPECT_EQ(-1, st.usSensorID);

    CL_ZELX_INS_RES_POS_STATE stSet;
    stSet.SetField1(3);
    stSet.SetPosFrame(eINSPOSFRAME_LEVEL);
    stSet.SetField2(-9);
    stSet.SetField3(65000);
    EXPECT_EQ(3, stSet.GetField1());
    EXPECT_EQ(eINSPOSFRAME_LEVEL, stSet.GetPosFrame());
    EXPECT_EQ(-9, stSet.GetField2());
    EXPECT_EQ(65000, stSet.GetField3());
}

TEST(InsResPosState, ImageAndText)
{
    ZelTest::ExpectCoreImage(ZelSample::InsResPosState(), StateImage());
    ZelTest::ExpectText(ZelSample::InsResPosState(), c_szStateText);
    // All but the time come back as written.
    std::istringstream is(c_szStateText);
    CL_ZELX_INS_RES_POS_STATE st;
    is >> st;
    EXPECT_FALSE(is.fail());
    CL_ZELX_INS_RES_POS_STATE stExpected = ZelSample::InsResPosState();
    stExpected.stTime.SetGpsTimeMs(2100, 346000000.0);
    EXPECT_TRUE(st == stExpected);
}

TEST(InsResPosState, Equality)
{
    const CL_ZELX_INS_RES_POS_STATE a = ZelSample::InsResPosState();
    CL_ZELX_INS_RES_POS_STATE b = a;
    b.x_pbP.m_adElem[0] *= 1.0 + 5e-15;
    b.Qw_pbP(2, 2) *= 1.0 + 5e-15;
    b.q_bP.m_adElem[1] *= 1.0 + 5e-15;
    EXPECT_TRUE(a == b);
    b.Qq_bP(1, 0) = 1e-9;
    EXPECT_FALSE(a == b);
    for (int iField = 0; iField < 5; ++iField)
    {
        b = a;
        switch (iField)
        {
        case 0:
            b.usField1 = 12;
            break;
        case 1:
            b.ePosFrame = eINSPOSFRAME_LEVEL;
            break;
        case 2:
            b.eField2 = 4;
            break;
        case 3:
            b.usField3 = 0;
            break;
        default:
            b.bShifted = false;
            break;
        }
        EXPECT_FALSE(a == b) << iField;
    }
    b = a;
    b.usSensorID = 0;
    EXPECT_FALSE(a == b);
}

TEST(InsResStateEx, ImageAndText)
{
    CImage stImage = StateImage();
    stImage.At(335).U32(4000000000u).At(339);
    ZelTest::ExpectCoreImage(ZelSample::InsResStateEx(), stImage);
    ZelTest::ExpectText(ZelSample::InsResStateEx(), std::string("4000000000, ") + c_szStateText);
    SZelInsResStateEx b = ZelSample::InsResStateEx();
    b.uiExtra = 1;
    EXPECT_FALSE(b == ZelSample::InsResStateEx());
    EXPECT_EQ(0u, SZelInsResStateEx().uiExtra);
}

TEST(InsResHeader, ImageAndText)
{
    CImage stImage;
    stImage.At(0).Time16(c_lSampleDay, 125.0, 1).At(16).I32(9).At(20);
    ZelTest::ExpectCoreImage(ZelSample::InsResHeader(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsResHeader(), "9, 2100, 345600125.000");
    SZelInsResHeader b = ZelSample::InsResHeader();
    b.eKind = 0;
    EXPECT_FALSE(b == ZelSample::InsResHeader());
    EXPECT_EQ(0, SZelInsResHeader().eKind);
}

TEST(InsResRecord, ImageAndText)
{
    CImage stImage;
    stImage.At(0).Time16(c_lSampleDay, 125.0, 1).At(16).I32(9).At(20).Append(StateImage());
    stImage.At(355).U32(4000000000u).At(359);
    ZelTest::ExpectCoreImage(ZelSample::InsResRecord(), stImage);
    // The header leaves the stream in fixed notation: the state follows in it.
    ZelTest::ExpectTextExact(ZelSample::InsResRecord(),
                             "9, 2100, 345600125.000, 4000000000, 7, 2100, 345600125.000, 11, 1, -4, 513, 1, "
                             "x_pbP, 4500000.000000, "
                             "0.000000, 4500000.000000, v_pbP, -2.000000, 3.000000, 2.000000, q_bP, "
                             "0.500000, 0.500000, -0.500000, "
                             "0.500000, w_pbP, 0.125000, -0.062500, 0.250000, Qx_pbP, 0.250000000000, "
                             "0.000000000000, 0.500000000000, "
                             "0.000000000000, 0.000000000000, 0.750000000000, Qv_pbP, 0.010000000000, "
                             "0.000000000000, 0.020000000000, "
                             "0.000000000000, 0.000000000000, 0.030000000000, Qq_bP, 0.000100000000, "
                             "0.000000000000, 0.000200000000, "
                             "0.000000000000, 0.000000000000, 0.000400000000, Qw_pbP, 0.001000000000, "
                             "0.000000000000, 0.002000000000, "
                             "0.000000000000, 0.000000000000, 0.003000000000");
    SZelInsResRecord b = ZelSample::InsResRecord();
    b.stStateEx.stState.v_pbP.m_adElem[0] = 0.0;
    EXPECT_FALSE(b == ZelSample::InsResRecord());
}

TEST(InsResults, NastyInput)
{
    std::mt19937 oGen(31);
    for (int iRound = 0; iRound < 20; ++iRound)
    {
        ZelTest::Bytes vecIn(335);
        for (auto& rucByte : vecIn)
        {
            rucByte = static_cast<unsigned char>(oGen() & 0xFFu);
        }
        vecIn[12] &= 1u;                    // bShifted
        std::memset(&vecIn[309 + 4], 0, 4); // filling of the time
        std::memset(&vecIn[309 + 20], 0, 4);
        CL_ZELX_INS_RES_POS_STATE st;
        uint64_t ulCount = 0;
        ASSERT_TRUE(st.loadData(vecIn.data(), vecIn.size(), &ulCount));
        ZelTest::Bytes vecOut(335);
        ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulCount));
        EXPECT_EQ(vecIn, vecOut);
        // Whatever was read, the computations return a status and no UB.
        SZelInsAngleVar a, b, c, d;
        (void)st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0), a, b, c,
                                   d);
        CL_ZELX_INS_RES_POS_STATE stOut;
        (void)Interpolate(st, ZelSample::InsTime(), st, stOut);
        st.bShifted = false;
        (void)st.ShiftToPoint(CZelExtVector3d(1.0, 2.0, 3.0), CZelExtQuaterniond(), 5);
    }
    CRecordingHook stHook;
    std::istringstream is("7, 2100, x");
    SZelInsResRecord st = ZelSample::InsResRecord();
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_TRUE(st.stStateEx.stState.x_pbP == ZelSample::InsResPosState().x_pbP);
    EXPECT_EQ(0u, stHook.Count());
}

// ------------------------------------------------------------------ interpolation

TEST(InsInterpolate, FrameOrSensorMismatchRefuses)
{
    const CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE bFrame = StateAt(1010.0, 1.0);
    bFrame.ePosFrame = eINSPOSFRAME_LEVEL;
    CL_ZELX_INS_RES_POS_STATE bSensor = StateAt(1010.0, 1.0);
    bSensor.usSensorID = 9;
    CL_ZELX_INS_RES_POS_STATE bBoth = bFrame;
    bBoth.usSensorID = 9;
    const CL_ZELX_INS_RES_POS_STATE stOutBefore = ZelSample::InsResPosState();
    CL_ZELX_INS_RES_POS_STATE stOut = stOutBefore;
    CRecordingHook stHook;
    EXPECT_EQ(1000u, Interpolate(a, SMjdTime(2100u, 1005.0), bFrame, stOut));
    EXPECT_EQ(
        std::vector<std::string>{"Error: cannot interpolate between states in different positioning frames!"},
        stHook.Texts());
    stHook.Clear();
    EXPECT_EQ(1000u, Interpolate(a, SMjdTime(2100u, 1005.0), bSensor, stOut));
    EXPECT_EQ(
        std::vector<std::string>{
            "Error: interpolation between states referring to different sensor IDs not allowed!"},
        stHook.Texts());
    stHook.Clear();
    EXPECT_EQ(1000u, Interpolate(a, SMjdTime(2100u, 1005.0), bBoth, stOut));
    EXPECT_EQ(
        std::vector<std::string>{"Error: cannot interpolate between states in different positioning frames!"},
        stHook.Texts());
    EXPECT_TRUE(stOut == stOutBefore);
}

TEST(InsInterpolate, AtTheEnds)
{
    const CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 2.0);
    b.q_bP = CZelExtQuaterniond(std::cos(0.2), 0.0, 0.0, std::sin(0.2));
    b.Qx_pbP = a.Qx_pbP.GetScaled(2.0); // B the worse position
    b.Qq_bP = a.Qq_bP.GetScaled(0.5);   // A the worse attitude
    CL_ZELX_INS_RES_POS_STATE stOut;
    ASSERT_EQ(0u, Interpolate(a, a.stTime, b, stOut));
    for (size_t k = 0; k < 3; ++k)
    {
        EXPECT_EQ(a.x_pbP.m_adElem[k], stOut.x_pbP.m_adElem[k]);
        EXPECT_EQ(a.v_pbP.m_adElem[k], stOut.v_pbP.m_adElem[k]);
        EXPECT_EQ(a.w_pbP.m_adElem[k], stOut.w_pbP.m_adElem[k]);
    }
    for (size_t k = 0; k < 4; ++k)
    {
        EXPECT_EQ(a.q_bP.m_adElem[k], stOut.q_bP.m_adElem[k]) << k;
    }
    // The covariances still come from the larger trace.
    EXPECT_TRUE(stOut.Qx_pbP == b.Qx_pbP);
    EXPECT_TRUE(stOut.Qq_bP == a.Qq_bP);

    ASSERT_EQ(0u, Interpolate(a, b.stTime, b, stOut));
    for (size_t k = 0; k < 3; ++k)
    {
        EXPECT_EQ(b.x_pbP.m_adElem[k], stOut.x_pbP.m_adElem[k]);
        EXPECT_EQ(b.v_pbP.m_adElem[k], stOut.v_pbP.m_adElem[k]);
    }
    for (size_t k = 0; k < 4; ++k)
    {
        EXPECT_NEAR(b.q_bP.m_adElem[k], stOut.q_bP.m_adElem[k], 1e-15) << k;
    }
}

TEST(InsInterpolate, BetweenTheEnds)
{
    const CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 2.0);
    const double dThetaA = 0.1, dThetaB = 0.7; // rotations about the y axis
    const CZelExtQuaterniond qa(std::cos(dThetaA / 2.0), 0.0, std::sin(dThetaA / 2.0), 0.0);
    const CZelExtQuaterniond qb(std::cos(dThetaB / 2.0), 0.0, std::sin(dThetaB / 2.0), 0.0);
    CL_ZELX_INS_RES_POS_STATE aq = a;
    aq.q_bP = qa;
    b.q_bP = qb;
    CL_ZELX_INS_RES_POS_STATE stOut = ZelSample::InsResPosState();
    stOut.usField1 = 99;
    stOut.eField2 = 98;
    stOut.usField3 = 97;
    stOut.bShifted = true;
    stOut.ePosFrame = eINSPOSFRAME_NONE;
    stOut.usSensorID = 0;
    const SMjdTime stAt(2100u, 1002.5);
    ASSERT_EQ(0u, Interpolate(aq, stAt, b, stOut));
    const double s = 0.25;
    for (size_t k = 0; k < 3; ++k)
    {
        EXPECT_NEAR((1.0 - s) * a.x_pbP.m_adElem[k] + s * b.x_pbP.m_adElem[k], stOut.x_pbP.m_adElem[k], 1e-9);
        EXPECT_NEAR((1.0 - s) * a.v_pbP.m_adElem[k] + s * b.v_pbP.m_adElem[k], stOut.v_pbP.m_adElem[k],
                    1e-15);
        EXPECT_NEAR((1.0 - s) * a.w_pbP.m_adElem[k] + s * b.w_pbP.m_adElem[k], stOut.w_pbP.m_adElem[k],
                    1e-15);
    }
    // Spherical: the rotation of a quarter of the way about y.
    const double dTheta = std::acos(qa.m_adElem[0] * qb.m_adElem[0] + qa.m_adElem[2] * qb.m_adElem[2]);
    const double dW0 = std::sin((1.0 - s) * dTheta) / std::sin(dTheta);
    const double dW1 = std::sin(s * dTheta) / std::sin(dTheta);
    for (size_t k = 0; k < 4; ++k)
    {
        EXPECT_NEAR(dW0 * qa.m_adElem[k] + dW1 * qb.m_adElem[k], stOut.q_bP.m_adElem[k], 1e-15);
    }
    const double dMid = dThetaA + s * (dThetaB - dThetaA);
    EXPECT_NEAR(std::cos(dMid / 2.0), stOut.q_bP.m_adElem[0], 1e-15);
    EXPECT_NEAR(std::sin(dMid / 2.0), stOut.q_bP.m_adElem[2], 1e-15);

    // Frame, sensor and time set; the carried fields of the output stay.
    EXPECT_EQ(eINSPOSFRAME_EARTH, stOut.ePosFrame);
    EXPECT_EQ(7, stOut.usSensorID);
    EXPECT_TRUE(stOut.stTime == stAt);
    EXPECT_EQ(99, stOut.usField1);
    EXPECT_EQ(98, stOut.eField2);
    EXPECT_EQ(97, stOut.usField3);
    EXPECT_TRUE(stOut.bShifted);
}

TEST(InsInterpolate, IdenticalAttitudesTakeTheLinearBranch)
{
    const CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    const CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 1.0);
    CL_ZELX_INS_RES_POS_STATE stOut;
    ASSERT_EQ(0u, Interpolate(a, SMjdTime(2100u, 1003.0), b, stOut));
    // acos of a dot product of 1 would give sin 0 / sin 0: the linear weights instead.
    const double s = 0.3;
    for (size_t k = 0; k < 4; ++k)
    {
        EXPECT_EQ((1.0 - s) * a.q_bP.m_adElem[k] + s * b.q_bP.m_adElem[k], stOut.q_bP.m_adElem[k]);
        EXPECT_FALSE(std::isnan(stOut.q_bP.m_adElem[k]));
    }
}

TEST(InsInterpolate, OppositeSignsTakeTheShortPath)
{
    CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 1.0);
    a.q_bP = CZelExtQuaterniond(1.0, 0.0, 0.0, 0.0);
    // A rotation of 0.2 rad about x, written with the opposite sign.
    b.q_bP = CZelExtQuaterniond(-std::cos(0.1), -std::sin(0.1), 0.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE stOut;
    ASSERT_EQ(0u, Interpolate(a, SMjdTime(2100u, 1005.0), b, stOut));
    EXPECT_NEAR(std::cos(0.05), stOut.q_bP.m_adElem[0], 1e-15);
    EXPECT_NEAR(std::sin(0.05), stOut.q_bP.m_adElem[1], 1e-15);
    EXPECT_EQ(0.0, stOut.q_bP.m_adElem[2]);
    EXPECT_EQ(0.0, stOut.q_bP.m_adElem[3]);
}

TEST(InsInterpolate, ResultIsNotNormalisedAgain)
{
    CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 1.0);
    a.q_bP = CZelExtQuaterniond(2.0, 0.0, 0.0, 0.0);
    b.q_bP = CZelExtQuaterniond(2.0, 0.0, 0.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE stOut;
    ASSERT_EQ(0u, Interpolate(a, SMjdTime(2100u, 1005.0), b, stOut));
    EXPECT_EQ(2.0, stOut.q_bP.m_adElem[0]);
}

TEST(InsInterpolate, OutsideTheSpanExtrapolatesAndEqualTimesDivideByZero)
{
    const CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    const CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 1.0);
    CL_ZELX_INS_RES_POS_STATE stOut;
    ASSERT_EQ(0u, Interpolate(a, SMjdTime(2100u, 1020.0), b, stOut));
    EXPECT_NEAR(a.v_pbP.m_adElem[0] - 2.0, stOut.v_pbP.m_adElem[0], 1e-15) << "s = 2";

    // Across a day: A at the end of one day, B early the next.
    CL_ZELX_INS_RES_POS_STATE aDay = a;
    CL_ZELX_INS_RES_POS_STATE bDay = b;
    aDay.stTime = SMjdTime(2100u, 86399.0);
    bDay.stTime = SMjdTime(2100u, 86401.0);
    ASSERT_EQ(0u, Interpolate(aDay, SMjdTime(2100u, 86400.5), bDay, stOut));
    // s = 1.5 s / 2 s.
    EXPECT_NEAR(0.25 * a.v_pbP.m_adElem[1] + 0.75 * b.v_pbP.m_adElem[1], stOut.v_pbP.m_adElem[1], 1e-15);

    // A and B at one time: s is 0 / 0 at their time, x / 0 elsewhere.
    CL_ZELX_INS_RES_POS_STATE bSame = b;
    bSame.stTime = a.stTime;
    ASSERT_EQ(0u, Interpolate(a, a.stTime, bSame, stOut));
    EXPECT_TRUE(std::isnan(stOut.x_pbP.m_adElem[0]));
    ASSERT_EQ(0u, Interpolate(a, SMjdTime(2100u, 1001.0), bSame, stOut));
    EXPECT_TRUE(std::isnan(stOut.x_pbP.m_adElem[0]) || std::isinf(stOut.x_pbP.m_adElem[0]));
}

TEST(InsInterpolate, CovarianceFromTheLargerTraceBOnATie)
{
    CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 1.0);
    a.Qv_pbP = CZelExtSymMatrix3d(1.0, 2.0, 3.0);
    b.Qv_pbP = CZelExtSymMatrix3d(3.0, 2.0, 1.0); // the same trace
    b.Qv_pbP(1, 0) = 0.5;
    a.Qw_pbP = CZelExtSymMatrix3d(1.0, 1.0, 1.0 + 1e-12);
    b.Qw_pbP = CZelExtSymMatrix3d(1.0, 1.0, 1.0);
    CL_ZELX_INS_RES_POS_STATE stOut;
    ASSERT_EQ(0u, Interpolate(a, SMjdTime(2100u, 1001.0), b, stOut));
    EXPECT_TRUE(stOut.Qv_pbP == b.Qv_pbP);
    EXPECT_TRUE(stOut.Qw_pbP == a.Qw_pbP);
    EXPECT_TRUE(stOut.Qx_pbP == b.Qx_pbP) << "equal samples: from B";
}

TEST(InsInterpolate, OutputMayBeAnInput)
{
    CL_ZELX_INS_RES_POS_STATE a = StateAt(1000.0, 0.0);
    const CL_ZELX_INS_RES_POS_STATE b = StateAt(1010.0, 4.0);
    const double dExpected = 0.5 * a.x_pbP.m_adElem[2] + 0.5 * b.x_pbP.m_adElem[2];
    ASSERT_EQ(0u, Interpolate(a, SMjdTime(2100u, 1005.0), b, a));
    EXPECT_EQ(dExpected, a.x_pbP.m_adElem[2]);
}

// ------------------------------------------------------------------ shift to a body point

TEST(InsShift, MovesPositionAndVelocityAgainstTheFormula)
{
    CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    st.Qq_bP(1, 0) = 2e-5;
    st.Qw_pbP(2, 0) = -1e-4;
    const CL_ZELX_INS_RES_POS_STATE stBefore = st;
    CRecordingHook stHook;
    ASSERT_EQ(0u, st.ShiftToPoint(CZelExtVector3d(1.0, 2.0, 3.0), 42));
    EXPECT_EQ(0u, stHook.Count());
    EXPECT_EQ(42, st.usSensorID);
    EXPECT_TRUE(st.bShifted);

    const CZelExtQuaterniond& q = stBefore.q_bP;
    Mat R;
    RotationOf(q.m_adElem[0], q.m_adElem[1], q.m_adElem[2], q.m_adElem[3], R);
    const Vec l = {1.0, 2.0, 3.0};
    Vec r;
    Apply(R, l, r);
    const Vec w = {0.125, -0.0625, 0.25};
    Vec wr;
    Cross(w, r, wr);
    Mat A, W, M, Qq, Qw, Qx, Qv, AQqA, MQqM, AQwA;
    Skew(r, A);
    Skew(w, W);
    Mul(W, A, M);
    Unpack(stBefore.Qq_bP, Qq);
    Unpack(stBefore.Qw_pbP, Qw);
    Unpack(stBefore.Qx_pbP, Qx);
    Unpack(stBefore.Qv_pbP, Qv);
    Sandwich(A, Qq, AQqA);
    Sandwich(M, Qq, MQqM);
    Sandwich(A, Qw, AQwA);
    for (size_t i = 0; i < 3; ++i)
    {
        EXPECT_NEAR(stBefore.x_pbP.m_adElem[i] + r[i], st.x_pbP.m_adElem[i], 1e-8);
        EXPECT_NEAR(stBefore.v_pbP.m_adElem[i] + wr[i], st.v_pbP.m_adElem[i], 1e-14);
        for (size_t j = 0; j <= i; ++j)
        {
            EXPECT_NEAR(Qx[i][j] + AQqA[i][j], st.Qx_pbP(i, j), 1e-15);
            EXPECT_NEAR(Qv[i][j] + MQqM[i][j] + AQwA[i][j], st.Qv_pbP(i, j), 1e-15);
        }
    }
    EXPECT_TRUE(st.q_bP == stBefore.q_bP);
    EXPECT_TRUE(st.Qq_bP == stBefore.Qq_bP);
    EXPECT_TRUE(st.w_pbP == stBefore.w_pbP);
    EXPECT_TRUE(st.stTime == stBefore.stTime);
}

TEST(InsShift, OnlyOnceAndTheSecondCallKeepsTheSensor)
{
    CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    ASSERT_EQ(0u, st.ShiftToPoint(CZelExtVector3d(1.0, 0.0, 0.0), 5));
    const CL_ZELX_INS_RES_POS_STATE stOnce = st;
    CRecordingHook stHook;
    EXPECT_EQ(1000u, st.ShiftToPoint(CZelExtVector3d(1.0, 0.0, 0.0), 6));
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    EXPECT_EQ(5, st.usSensorID);
    EXPECT_TRUE(st == stOnce);
}

TEST(InsShift, FrameNoneStillWorks)
{
    CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    st.ePosFrame = eINSPOSFRAME_NONE;
    const CL_ZELX_INS_RES_POS_STATE stBefore = st;
    ASSERT_EQ(0u, st.ShiftToPoint(CZelExtVector3d(0.0, 0.0, 0.0), 1));
    EXPECT_TRUE(st.bShifted);
    EXPECT_TRUE(st.x_pbP == stBefore.x_pbP);
    EXPECT_TRUE(st.Qx_pbP == stBefore.Qx_pbP);
    EXPECT_TRUE(st.Qv_pbP == stBefore.Qv_pbP);
}

TEST(InsShift, WithARotationWhateverTheStatus)
{
    const CZelExtQuaterniond stRot(std::cos(0.3), 0.0, std::sin(0.3), 0.0);
    // Hamilton product q (x) r, written out.
    const auto fnProduct = [](const CZelExtQuaterniond& q, const CZelExtQuaterniond& r)
    {
        const double* a = q.m_adElem;
        const double* b = r.m_adElem;
        return CZelExtQuaterniond(a[0] * b[0] - a[1] * b[1] - a[2] * b[2] - a[3] * b[3],
                                  a[0] * b[1] + a[1] * b[0] + a[2] * b[3] - a[3] * b[2],
                                  a[0] * b[2] - a[1] * b[3] + a[2] * b[0] + a[3] * b[1],
                                  a[0] * b[3] + a[1] * b[2] - a[2] * b[1] + a[3] * b[0]);
    };
    CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    const CZelExtQuaterniond stExpected = fnProduct(st.q_bP, stRot);
    ASSERT_EQ(0u, st.ShiftToPoint(CZelExtVector3d(0.5, 0.0, 0.0), stRot, 3));
    EXPECT_TRUE(st.bShifted);
    for (size_t k = 0; k < 4; ++k)
    {
        EXPECT_NEAR(stExpected.m_adElem[k], st.q_bP.m_adElem[k], 1e-15);
    }
    // Already moved: 1000, and the rotation is applied all the same.
    const CZelExtQuaterniond stTwice = fnProduct(st.q_bP, stRot);
    CRecordingHook stHook;
    EXPECT_EQ(1000u, st.ShiftToPoint(CZelExtVector3d(0.5, 0.0, 0.0), stRot, 4));
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    for (size_t k = 0; k < 4; ++k)
    {
        EXPECT_NEAR(stTwice.m_adElem[k], st.q_bP.m_adElem[k], 1e-15);
    }
    EXPECT_EQ(3, st.usSensorID);
}

// ------------------------------------------------------------------ attitude angles

namespace
{
struct SAngles
{
    SZelInsAngleVar stTilt, stTiltHeading, stYaw, stCourse;
};

// A state at latitude/longitude on the ellipsoid's normal, with the body at
// heading, pitch and roll, moving at vE, vN, vU in the local frame.
CL_ZELX_INS_RES_POS_STATE Oriented(double dPsi, double dTheta, double dPhi, double vE, double vN, double vU,
                                   Eigen::Vector3d& rEast, Eigen::Vector3d& rNorth, Eigen::Vector3d& rUp)
{
    CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    const Eigen::Vector3d x(3000000.0, 2000000.0, 5000000.0);
    st.x_pbP = ToExtVector(x);
    const double dLat = std::atan2((1.0 + c_dINS_E2) * x.z(), std::hypot(x.x(), x.y()));
    const double dLon = std::atan2(x.y(), x.x());
    rEast = Eigen::Vector3d(-std::sin(dLon), std::cos(dLon), 0.0);
    rNorth =
        Eigen::Vector3d(-std::sin(dLat) * std::cos(dLon), -std::sin(dLat) * std::sin(dLon), std::cos(dLat));
    rUp = Eigen::Vector3d(std::cos(dLat) * std::cos(dLon), std::cos(dLat) * std::sin(dLon), std::sin(dLat));
    st.q_bP = ToExtQuaternion(BodyToEarth(dPsi, dTheta, dPhi, rEast, rNorth, rUp));
    st.v_pbP = ToExtVector(vE * rEast + vN * rNorth + vU * rUp);
    return st;
}

double Wrap(double dAngle)
{
    return dAngle < 0.0 ? dAngle + 2.0 * c_dPi : dAngle;
}
} // namespace

TEST(InsAttitudeAngles, KnownRotations)
{
    const struct
    {
        double dPsi, dTheta, dPhi;
    } astRows[] = {{0.3, 0.0, 0.01}, {2.0, 0.2, 0.0}, {4.5, -0.3, 0.4}, {5.5, 0.1, -0.7}, {1.0, 1.2, 0.05}};
    for (const auto& rRow : astRows)
    {
        Eigen::Vector3d oEast, oNorth, oUp;
        const CL_ZELX_INS_RES_POS_STATE st =
            Oriented(rRow.dPsi, rRow.dTheta, rRow.dPhi, 3.0, -4.0, 1.0, oEast, oNorth, oUp);
        SAngles stA;
        ASSERT_EQ(0u, st.GetAttitudeAngles(CZelExtVector3d(2.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 0.5),
                                           stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse))
            << rRow.dPsi;
        EXPECT_NEAR(rRow.dPsi, stA.stYaw.dAngle, 1e-9) << rRow.dPsi;
        EXPECT_NEAR(std::acos(std::cos(rRow.dTheta) * std::cos(rRow.dPhi)), stA.stTilt.dAngle, 1e-9);
        EXPECT_NEAR(Wrap(std::atan2(3.0, -4.0)), stA.stCourse.dAngle, 1e-12);
        // The variances are those of the single functions.
        CZelInsStateUnitQuaterniond stAtt;
        ConvertExtToState(st.q_bP, st.Qq_bP, stAtt);
        SZelInsAngleVar stTilt;
        ASSERT_EQ(0u, GetBodyAxisTilt(stAtt, Eigen::Vector3d(0.0, 0.0, 1.0), oUp, stTilt));
        EXPECT_NEAR(stTilt.dVar, stA.stTilt.dVar, 1e-12);
        EXPECT_GT(stA.stYaw.dVar, 0.0);
        EXPECT_GT(stA.stCourse.dVar, 0.0);
    }
    // A pitch alone tilts the up axis backwards: its heading is opposite the yaw.
    Eigen::Vector3d oEast, oNorth, oUp;
    const CL_ZELX_INS_RES_POS_STATE st = Oriented(1.0, 0.3, 0.0, 1.0, 1.0, 0.0, oEast, oNorth, oUp);
    SAngles stA;
    ASSERT_EQ(0u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                       stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    EXPECT_NEAR(1.0 + c_dPi, stA.stTiltHeading.dAngle, 1e-9);
    EXPECT_NEAR(0.3, stA.stTilt.dAngle, 1e-9);
    EXPECT_NEAR(c_dPi / 4.0, stA.stCourse.dAngle, 1e-12);
}

TEST(InsAttitudeAngles, GimbalLockNeighbourhood)
{
    // Nose up by 90 deg less 1e-6: the yaw is still defined.
    Eigen::Vector3d oEast, oNorth, oUp;
    const CL_ZELX_INS_RES_POS_STATE stNear =
        Oriented(0.8, c_dPi / 2.0 - 1e-6, 0.0, 1.0, 0.0, 0.0, oEast, oNorth, oUp);
    SAngles stA;
    ASSERT_EQ(0u, stNear.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                           stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    EXPECT_NEAR(0.8, stA.stYaw.dAngle, 1e-6);
    EXPECT_NEAR(c_dPi / 2.0, stA.stTilt.dAngle, 1e-5);
    EXPECT_GT(stA.stYaw.dVar, 1.0) << "a heading of a nearly vertical axis is poorly known";

    // Exactly up (within rounding): no yaw; the other three are still given.
    const CL_ZELX_INS_RES_POS_STATE stUp = Oriented(0.8, c_dPi / 2.0, 0.0, 1.0, 0.0, 0.0, oEast, oNorth, oUp);
    SAngles stB;
    stB.stYaw.dAngle = -7.0;
    const unsigned int uiStatus =
        stUp.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0), stB.stTilt,
                               stB.stTiltHeading, stB.stYaw, stB.stCourse);
    EXPECT_EQ(51u, uiStatus);
    EXPECT_EQ(-7.0, stB.stYaw.dAngle);
    EXPECT_NEAR(c_dPi / 2.0, stB.stTilt.dAngle, 1e-7);
    EXPECT_NEAR(0.8 + c_dPi, stB.stTiltHeading.dAngle, 1e-7);
    EXPECT_NEAR(c_dPi / 2.0, stB.stCourse.dAngle, 1e-12);
}

TEST(InsAttitudeAngles, LevelBodyHasNoTiltHeading)
{
    Eigen::Vector3d oEast, oNorth, oUp;
    const CL_ZELX_INS_RES_POS_STATE st = Oriented(0.3, 0.0, 0.0, 3.0, -4.0, 1.0, oEast, oNorth, oUp);
    SAngles stA;
    stA.stTiltHeading.dAngle = -5.0;
    EXPECT_EQ(51u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                        stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    EXPECT_EQ(-5.0, stA.stTiltHeading.dAngle);
    EXPECT_NEAR(0.0, stA.stTilt.dAngle, 1e-7);
    EXPECT_NEAR(0.3, stA.stYaw.dAngle, 1e-9);
    EXPECT_NEAR(Wrap(std::atan2(3.0, -4.0)), stA.stCourse.dAngle, 1e-12);
}

TEST(InsAttitudeAngles, AllFourRunWhateverTheEarlierGave)
{
    Eigen::Vector3d oEast, oNorth, oUp;
    CL_ZELX_INS_RES_POS_STATE st = Oriented(0.5, 0.0, 0.0, 0.0, 0.0, 2.0, oEast, oNorth, oUp);
    SAngles stA;
    stA.stCourse.dAngle = -1.0;
    // A vertical velocity has no course.
    EXPECT_EQ(51u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                        stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    EXPECT_NEAR(0.5, stA.stYaw.dAngle, 1e-9);
    EXPECT_EQ(-1.0, stA.stCourse.dAngle);

    // An attitude not of unit norm: tilt and the headings refuse, the course is given.
    st = Oriented(0.5, 0.0, 0.0, 1.0, 0.0, 0.0, oEast, oNorth, oUp);
    for (double& d : st.q_bP.m_adElem)
    {
        d *= 2.0;
    }
    SAngles stB;
    EXPECT_EQ(51u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                        stB.stTilt, stB.stTiltHeading, stB.stYaw, stB.stCourse));
    EXPECT_NEAR(c_dPi / 2.0, stB.stCourse.dAngle, 1e-12);
}

TEST(InsAttitudeAngles, AxesMustBeNonZeroAndOrthogonal)
{
    const CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    SAngles stA;
    stA.stTilt.dAngle = 4.0;
    EXPECT_EQ(1003u, st.GetAttitudeAngles(CZelExtVector3d(0.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                          stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    EXPECT_EQ(1003u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 0.5e-10),
                                          stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    EXPECT_EQ(1003u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 2e-10), CZelExtVector3d(0.0, 0.0, 1.0),
                                          stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    EXPECT_EQ(4.0, stA.stTilt.dAngle);
    // Within 1e-10 they count as orthogonal.
    EXPECT_NE(1003u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.5e-10), CZelExtVector3d(0.0, 0.0, 1.0),
                                          stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
}

TEST(InsAttitudeAngles, EarthFixedFrameOnly)
{
    CL_ZELX_INS_RES_POS_STATE st = Unshifted();
    SAngles stA;
    st.ePosFrame = eINSPOSFRAME_LEVEL;
    EXPECT_EQ(1000u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                          stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
    st.ePosFrame = eINSPOSFRAME_NONE;
    EXPECT_EQ(1000u, st.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0),
                                          stA.stTilt, stA.stTiltHeading, stA.stYaw, stA.stCourse));
}
