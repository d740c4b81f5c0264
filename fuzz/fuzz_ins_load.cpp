// Binary readers of the inertial records. The first byte, modulo 24, picks
// the record; the rest is the image. What was read must write back to the
// same bytes as a second reading of those bytes, and the computations on it
// must run without undefined behaviour.
#include "ZelSamplesIns.h"

#include <ZelTypes/Core/Ins/ZelInsStates.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Core/Ins/ZelInsTypesImpl.h>
#include <ZelTypes/Ext/Ins/ZelExtInsCfgTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <vector>

namespace
{

using namespace ZELN;

// Reads, writes, reads the written bytes again and writes once more: the
// two images must agree (bool and filling bytes are normalised by the
// first pass). The text must be writable.
template <class R> bool LoadAndRewrite(R& rRecord, const uint8_t* pData, size_t ulSize)
{
    uint64_t ulOffset = 0;
    if (!rRecord.loadData(pData, ulSize, &ulOffset))
    {
        return false;
    }
    if (ulOffset != rRecord.getSize())
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecFirst(static_cast<size_t>(rRecord.getSize()));
    if (!rRecord.saveData(vecFirst.data(), vecFirst.size(), &ulOffset))
    {
        __builtin_trap();
    }
    R stAgain;
    std::vector<unsigned char> vecSecond(vecFirst.size());
    if (!stAgain.loadData(vecFirst.data(), vecFirst.size(), &ulOffset) ||
        !stAgain.saveData(vecSecond.data(), vecSecond.size(), &ulOffset) || vecFirst != vecSecond)
    {
        __builtin_trap();
    }
    return true;
}

template <class R> void Text(const R& rRecord)
{
    std::ostringstream oss;
    oss << rRecord;
}

void Exercise(const CZelExtSymMatrix3d& rCov)
{
    (void)rCov.GetTrace();
    (void)rCov.GetScaledBySquare(rCov.m_adElem[1]);
    CZelInsStateVector3d st;
    ConvertExtToState(CZelExtVector3d(rCov.m_adElem), rCov, st);
    (void)st.IsCovPositiveDefinite();
    (void)st.IsCovPositiveSemiDefinite();
    (void)st.ConvertCovType(eCOVTYPE_COVCHL);
    (void)st.ConvertCovType(eCOVTYPE_COV);
    CZelExtVector3d stValue;
    CZelExtSymMatrix3d stBack;
    (void)ConvertStateToExt(st, stValue, stBack);
    CZelInsStateScalard stScalar(0.0, rCov.m_adElem[0], eCOVTYPE_COV);
    (void)stScalar.ConvertCovType(eCOVTYPE_COVCHL);
    (void)stScalar.IsCovPositiveSemiDefinite();
}

void Exercise(const CL_ZELX_INS_RES_POS_STATE& rState)
{
    SZelInsAngleVar a, b, c, d;
    (void)rState.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0), a, b, c,
                                   d);
    (void)rState.GetAttitudeAngles(rState.w_pbP, rState.v_pbP, a, b, c, d);
    CL_ZELX_INS_RES_POS_STATE stOut;
    (void)Interpolate(rState, ZelSample::InsTime(), ZelSample::InsResPosState(), stOut);
    CL_ZELX_INS_RES_POS_STATE stOther = rState;
    stOther.stTime = ZelSample::InsTime();
    (void)Interpolate(rState, rState.stTime, stOther, stOut);
    CL_ZELX_INS_RES_POS_STATE stShift = rState;
    (void)stShift.ShiftToPoint(rState.w_pbP, rState.q_bP, 1);
    Exercise(rState.Qq_bP);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 24)
    {
    case 0:
    {
        CZelExtVector3d st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            (void)(st == CZelExtVector3d(st.m_adElem[2], st.m_adElem[1], st.m_adElem[0]));
        }
        break;
    }
    case 1:
    {
        CZelExtQuaterniond st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            CZelInsStateUnitQuaterniond stState;
            ConvertExtToState(st, ZelSample::InsSymMatrix(), stState);
            SZelInsAngleVar stAngle;
            (void)GetBodyAxisTilt(stState, Eigen::Vector3d(0.0, 0.0, 1.0), Eigen::Vector3d(0.0, 0.0, 1.0),
                                  stAngle);
            (void)GetBodyAxisHeading(stState, Eigen::Vector3d(1.0, 0.0, 0.0), Eigen::Vector3d(1.0, 0.0, 0.0),
                                     Eigen::Vector3d(0.0, 1.0, 0.0), Eigen::Vector3d(0.0, 0.0, 1.0), stAngle);
            const CZelInsFrameTransform stTransform(Eigen::Vector3d::Zero(), stState.m_oValue);
            (void)stTransform;
        }
        break;
    }
    case 2:
    {
        CZelExtMatrix3d st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 3:
    {
        CZelExtSymMatrix3d st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            Exercise(st);
        }
        break;
    }
    case 4:
    {
        SZelInsBodyAxes st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            Eigen::Vector3d oEast, oNorth, oUp;
            (void)GetLocalAxes(ToEigenVector(st.Fw_B), oEast, oNorth, oUp, eINSPOSFRAME_EARTH,
                               st.Up_B.m_adElem[0]);
            SZelInsAngleVar stAngle;
            (void)GetSignedAngle(ToEigenVector(st.Fw_B), ToEigenVector(st.Up_B), oUp, stAngle);
            (void)GetAngle(ToEigenVector(st.Fw_B), ToEigenVector(st.Up_B), stAngle);
        }
        break;
    }
    case 5:
    {
        SZelInsVarLever st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 6:
    {
        SZelInsTrTest st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 7:
    {
        SZelInsExpMinMax st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 8:
    {
        CL_ZELX_INS_SENSOR_CFG_POS st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            (void)GetSensorTypeName(static_cast<EZelInsSensorType>(st.usSensorID));
        }
        break;
    }
    case 9:
    {
        SZelInsSensorParams st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 10:
    {
        CL_ZELX_INS_SENSOR_CFG_IMU st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            (void)(st == ZelSample::InsCfgImu());
        }
        break;
    }
    case 11:
    {
        SZelInsCfg st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 12:
    {
        SZelInsCfgLimits st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 13:
    {
        SZelInsVectorObs st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st == st);
            Exercise(st.Covariance);
        }
        break;
    }
    case 14:
    {
        CL_ZELX_INS_SENSOR_OBS_ACC st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 15:
    {
        CL_ZELX_INS_SENSOR_OBS_IMU st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 16:
    {
        CL_ZELX_INS_SENSOR_OBS_POS st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 17:
    {
        CL_ZELX_INS_SENSOR_OBS_VEL st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 18:
    {
        CL_ZELX_INS_SENSOR_OBS_PVE st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            CL_ZELX_INS_SENSOR_OBS_PVE stCopy = st;
            stCopy.PropagateTo(ZelSample::InsTime(), st.stVelocityObs.Value.m_adElem[0]);
            stCopy.ScaleCovariance(st.stPositionObs.Value.m_adElem[0], st.stPositionObs.Value.m_adElem[1]);
            (void)(stCopy == st);
        }
        break;
    }
    case 19:
    {
        CL_ZELX_INS_RESULT st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 20:
    {
        CL_ZELX_INS_RES_POS_STATE st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            Exercise(st);
        }
        break;
    }
    case 21:
    {
        SZelInsResStateEx st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    case 22:
    {
        SZelInsResHeader st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
        }
        break;
    }
    default:
    {
        SZelInsResRecord st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Text(st);
            Exercise(st.stStateEx.stState);
        }
        break;
    }
    }
    return 0;
}
