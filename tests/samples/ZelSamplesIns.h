#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESINS_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESINS_H

// Inertial sample records with non-default values in every field. Values
// are short binary fractions, so that texts and images can be written down
// by hand.

#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Core/Ins/ZelInsStates.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Ext/Ins/ZelExtInsCfgTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>

#include <Eigen/Core>
#include <Eigen/Geometry>

namespace ZelSample
{

// ------------------------------------------------------------------ numeric records

inline ZELN::CZelExtVector3d InsVector()
{
    return ZELN::CZelExtVector3d(1.5, -2.25, 3.0);
}

// A unit quaternion, w, x, y, z.
inline ZELN::CZelExtQuaterniond InsQuaternion()
{
    return ZELN::CZelExtQuaterniond(0.5, 0.5, -0.5, 0.5);
}

// Rows (1, 2, 3), (4, 5, 6), (7, 8, 9.5).
inline ZELN::CZelExtMatrix3d InsMatrix()
{
    const double adElem[9] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.5};
    return ZELN::CZelExtMatrix3d(adElem);
}

// A positive definite matrix; packed (0,0), (1,0), (1,1), (2,0), (2,1), (2,2).
inline ZELN::CZelExtSymMatrix3d InsSymMatrix()
{
    const double adElem[6] = {4.0, 0.5, 9.0, -0.25, 1.5, 16.0};
    return ZELN::CZelExtSymMatrix3d(adElem);
}

inline ZELN::SZelInsBodyAxes InsBodyAxes()
{
    ZELN::SZelInsBodyAxes st;
    st.Fw_B = ZELN::CZelExtVector3d(1.0, 0.0, 0.0);
    st.Up_B = ZELN::CZelExtVector3d(0.0, 0.0, -1.0);
    return st;
}

inline ZELN::SZelInsVarLever InsVarLever()
{
    ZELN::SZelInsVarLever st;
    st.dVar = 0.0625;
    st.x_dcD = ZELN::CZelExtVector3d(0.125, -0.25, 0.5);
    return st;
}

inline ZELN::SZelInsTrTest InsTrTest()
{
    ZELN::SZelInsTrTest st;
    st.stExp = ZELN::CZelExtVector3d(1.0, 2.0, 3.0);
    st.stThr = ZELN::CZelExtVector3d(0.5, 0.75, 1.25);
    st.stSig = ZELN::CZelExtVector3d(0.01, 0.02, 0.03);
    return st;
}

inline ZELN::SZelInsExpMinMax InsExpMinMax()
{
    return ZELN::SZelInsExpMinMax(100.0, 90.0, 110.0);
}

// ------------------------------------------------------------------ sensor configuration

inline ZELN::SZelInsSensorParams InsSensorParams(double dScale)
{
    ZELN::SZelInsSensorParams st;
    st.stMns = ZELN::CZelExtVector3d(0.5 * dScale, 0.25 * dScale, 0.125 * dScale);
    st.stBrw = ZELN::CZelExtVector3d(1.0 * dScale, 2.0 * dScale, 4.0 * dScale);
    st.stBisd = ZELN::CZelExtVector3d(3.0 * dScale, 5.0 * dScale, 7.0 * dScale);
    st.ucAvlPar = 7;
    st.stBiasTest = InsTrTest();
    st.stScaleTest.stExp = ZELN::CZelExtVector3d(4.0, 5.0, 6.0);
    st.stScaleTest.stThr = ZELN::CZelExtVector3d(0.25, 0.25, 0.25);
    st.stScaleTest.stSig = ZELN::CZelExtVector3d(0.5, 0.5, 0.5);
    st.stMeasTest.stExp = ZELN::CZelExtVector3d(-1.0, -2.0, -3.0);
    st.stMeasTest.stThr = ZELN::CZelExtVector3d(8.0, 9.0, 10.0);
    st.stMeasTest.stSig = ZELN::CZelExtVector3d(0.75, 1.5, 2.25);
    st.bClbFlag = true;
    st.b = ZELN::CZelExtVector3d(-0.5, 0.5, 1.5);
    st.S = InsMatrix();
    return st;
}

inline void FillInsCfgBase(ZELN::CL_ZELX_INS_SENSOR_CFG& rCfg)
{
    rCfg.usSensorID = 12;
    rCfg.stFrq = ZELN::SZelInsExpMinMax(100.0, 95.5, 104.0);
    rCfg.x_dbD = ZELN::CZelExtVector3d(0.25, -0.5, 1.75);
    rCfg.q_bD = InsQuaternion();
}

inline ZELN::CL_ZELX_INS_SENSOR_CFG_IMU InsCfgImu()
{
    ZELN::CL_ZELX_INS_SENSOR_CFG_IMU st;
    FillInsCfgBase(st);
    st.stAcc = InsSensorParams(1.0);
    st.stGyr = InsSensorParams(2.0);
    st.stMag = InsSensorParams(4.0);
    return st;
}

inline ZELN::CL_ZELX_INS_SENSOR_CFG_POS InsCfgPos()
{
    ZELN::CL_ZELX_INS_SENSOR_CFG_POS st;
    FillInsCfgBase(st);
    return st;
}

inline ZELN::SZelInsCfg InsCfg()
{
    ZELN::SZelInsCfg st;
    st.ePosFrame = ZELN::eINSPOSFRAME_EARTH;
    st.stBodyAxes = InsBodyAxes();
    st.dMaxPrdTime = 2.5;
    st.dMaxNormInn = 4.75;
    return st;
}

inline ZELN::SZelInsCfgLimits InsCfgLimits()
{
    ZELN::SZelInsCfgLimits st;
    st.dMaxPrdTime = 1.5;
    st.dMaxNormInn = 3.25;
    return st;
}

// ------------------------------------------------------------------ sensor observations

// GPS week 2100, 345600.125 s of the week: day 44244 + 14704, 125 ms.
inline ZELN::SMjdTime InsTime()
{
    return ZELN::SMjdTime(2100u, 345600.125);
}

inline ZELN::SZelInsVectorObs InsVectorObs(double dScale)
{
    ZELN::SZelInsVectorObs st;
    st.Value = ZELN::CZelExtVector3d(1.5 * dScale, -2.25 * dScale, 3.0 * dScale);
    st.Covariance = InsSymMatrix().GetScaled(dScale);
    return st;
}

inline void FillInsObsBase(ZELN::CL_ZELX_INS_SENSOR_OBS& rObs)
{
    rObs.usSensorID = 3;
    rObs.stTime = InsTime();
    rObs.usField1 = 17;
    rObs.usField2 = 65535;
}

inline ZELN::CL_ZELX_INS_SENSOR_OBS_IMU InsObsImu()
{
    ZELN::CL_ZELX_INS_SENSOR_OBS_IMU st;
    FillInsObsBase(st);
    st.stAcc = InsVectorObs(1.0);
    st.stGyr = InsVectorObs(0.5);
    st.stMag = InsVectorObs(2.0);
    return st;
}

inline ZELN::CL_ZELX_INS_SENSOR_OBS_POS InsObsPos()
{
    ZELN::CL_ZELX_INS_SENSOR_OBS_POS st;
    FillInsObsBase(st);
    st.stPositionObs = InsVectorObs(1.0);
    return st;
}

inline ZELN::CL_ZELX_INS_SENSOR_OBS_VEL InsObsVel()
{
    ZELN::CL_ZELX_INS_SENSOR_OBS_VEL st;
    FillInsObsBase(st);
    st.stVelocityObs = InsVectorObs(0.25);
    return st;
}

inline ZELN::CL_ZELX_INS_SENSOR_OBS_PVE InsObsPve()
{
    ZELN::CL_ZELX_INS_SENSOR_OBS_PVE st;
    FillInsObsBase(st);
    st.stPositionObs = InsVectorObs(1.0);
    st.stVelocityObs = InsVectorObs(0.25);
    return st;
}

// ------------------------------------------------------------------ results

inline ZELN::CL_ZELX_INS_RESULT InsResult()
{
    ZELN::CL_ZELX_INS_RESULT st;
    st.stTime = InsTime();
    st.usSensorID = 7;
    return st;
}

// An earth-fixed state at latitude 45 deg, longitude 0 (on the sphere of the
// position; the ellipsoid normal is a little steeper), moving north-east.
inline ZELN::CL_ZELX_INS_RES_POS_STATE InsResPosState()
{
    ZELN::CL_ZELX_INS_RES_POS_STATE st;
    st.stTime = InsTime();
    st.usSensorID = 7;
    st.x_pbP = ZELN::CZelExtVector3d(4500000.0, 0.0, 4500000.0);
    st.Qx_pbP = ZELN::CZelExtSymMatrix3d(0.25, 0.5, 0.75);
    st.v_pbP = ZELN::CZelExtVector3d(-2.0, 3.0, 2.0);
    st.Qv_pbP = ZELN::CZelExtSymMatrix3d(0.01, 0.02, 0.03);
    st.q_bP = InsQuaternion();
    st.Qq_bP = ZELN::CZelExtSymMatrix3d(0.0001, 0.0002, 0.0004);
    st.w_pbP = ZELN::CZelExtVector3d(0.125, -0.0625, 0.25);
    st.Qw_pbP = ZELN::CZelExtSymMatrix3d(0.001, 0.002, 0.003);
    st.usField1 = 11;
    st.ePosFrame = ZELN::eINSPOSFRAME_EARTH;
    st.eField2 = -4;
    st.usField3 = 513;
    st.bShifted = true;
    return st;
}

inline ZELN::SZelInsResStateEx InsResStateEx()
{
    return ZELN::SZelInsResStateEx(InsResPosState(), 4000000000u);
}

inline ZELN::SZelInsResHeader InsResHeader()
{
    ZELN::SZelInsResHeader st;
    st.stTime = InsTime();
    st.eKind = 9;
    return st;
}

inline ZELN::SZelInsResRecord InsResRecord()
{
    ZELN::SZelInsResRecord st;
    st.stHeader = InsResHeader();
    st.stStateEx = InsResStateEx();
    return st;
}

// ------------------------------------------------------------------ working states

// A 3 x 3 covariance, symmetric positive definite, with every entry set.
inline Eigen::Matrix3d InsCov3()
{
    Eigen::Matrix3d m;
    m << 4.0, 0.5, -0.25, 0.5, 9.0, 1.5, -0.25, 1.5, 16.0;
    return m;
}

// An N x N covariance, symmetric positive definite: B B^T + N I with B a
// fixed pattern of small integers.
template <int N> inline Eigen::Matrix<double, N, N> InsCovN()
{
    Eigen::Matrix<double, N, N> B;
    for (int i = 0; i < N; ++i)
    {
        for (int j = 0; j < N; ++j)
        {
            B(i, j) = static_cast<double>((3 * i + 5 * j) % 7) - 3.0;
        }
    }
    Eigen::Matrix<double, N, N> A = B * B.transpose();
    A += static_cast<double>(N) * Eigen::Matrix<double, N, N>::Identity();
    return A;
}

} // namespace ZelSample

#endif
