// Inertial sensors: configuration of each kind of sensor and of the filter,
// and the time-tagged observations with the propagation and scaling of the
// combined position and velocity observation.
#include "ZelSamplesIns.h"
#include "ZelTestKit.h"

#include <ZelTypes/Ext/Ins/ZelExtInsCfgTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>

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
// GPS week 2100, 345600.125 s: MJD 44244 + 2100 * 7 + 4, 125 ms into the day.
const int32_t c_lSampleDay = 44244 + 2100 * 7 + 4;
const double c_dSampleMs = 125.0;

void PutVector(CImage& rImage, double a, double b, double c)
{
    rImage.F64(a).F64(b).F64(c);
}

// The sensor parameter set of ZelSample::InsSensorParams(dScale), offsets
// relative to the set: stochastic vectors at 0, 24, 48, ucAvlPar at 72, the
// test groups at 73, 145, 217, bClbFlag at 289, b at 290, S at 314.
void PutParams(CImage& rImage, size_t ulAt, double s)
{
    rImage.At(ulAt);
    PutVector(rImage, 0.5 * s, 0.25 * s, 0.125 * s);
    PutVector(rImage, 1.0 * s, 2.0 * s, 4.0 * s);
    PutVector(rImage, 3.0 * s, 5.0 * s, 7.0 * s);
    rImage.At(ulAt + 72).U8(7).At(ulAt + 73);
    PutVector(rImage, 1.0, 2.0, 3.0);
    PutVector(rImage, 0.5, 0.75, 1.25);
    PutVector(rImage, 0.01, 0.02, 0.03);
    rImage.At(ulAt + 145);
    PutVector(rImage, 4.0, 5.0, 6.0);
    PutVector(rImage, 0.25, 0.25, 0.25);
    PutVector(rImage, 0.5, 0.5, 0.5);
    rImage.At(ulAt + 217);
    PutVector(rImage, -1.0, -2.0, -3.0);
    PutVector(rImage, 8.0, 9.0, 10.0);
    PutVector(rImage, 0.75, 1.5, 2.25);
    rImage.At(ulAt + 289).U8(1).At(ulAt + 290);
    PutVector(rImage, -0.5, 0.5, 1.5);
    rImage.At(ulAt + 314);
    PutVector(rImage, 1.0, 2.0, 3.0);
    PutVector(rImage, 4.0, 5.0, 6.0);
    PutVector(rImage, 7.0, 8.0, 9.5);
    rImage.At(ulAt + 386);
}

// The common part of the sample configuration at ulAt.
void PutCfgBase(CImage& rImage, size_t ulAt)
{
    rImage.At(ulAt).I16(12).At(ulAt + 2);
    PutVector(rImage, 100.0, 95.5, 104.0);
    rImage.At(ulAt + 26);
    PutVector(rImage, 0.25, -0.5, 1.75);
    rImage.At(ulAt + 50).F64(0.5).F64(0.5).F64(-0.5).F64(0.5).At(ulAt + 82);
}

// The measurement ZelSample::InsVectorObs(s) at ulAt: value, packed covariance.
void PutVectorObs(CImage& rImage, size_t ulAt, double s)
{
    rImage.At(ulAt);
    PutVector(rImage, 1.5 * s, -2.25 * s, 3.0 * s);
    rImage.At(ulAt + 24);
    for (const double d : {4.0, 0.5, 9.0, -0.25, 1.5, 16.0})
    {
        rImage.F64(d * s);
    }
    rImage.At(ulAt + 72);
}

// The common part of the sample observation at ulAt.
void PutObsBase(CImage& rImage, size_t ulAt)
{
    rImage.At(ulAt).I16(3).At(ulAt + 2).Time24(c_lSampleDay, c_dSampleMs, 1).At(ulAt + 26).U16(17);
    rImage.At(ulAt + 28).U16(65535).At(ulAt + 30);
}

const char* const c_szParamsText = "StoPar, Mns, 0.5, 0.25, 0.125, Brw, 1, 2, 4, Bisd, 3, 5, 7, AvlPar, 7, "
                                   "IntPar, BiasTrTest, Exp, 1, 2, 3, "
                                   "Thr, 0.5, 0.75, 1.25, Sig, 0.01, 0.02, 0.03, ScaleTrTest, Exp, 4, 5, 6, "
                                   "Thr, 0.25, 0.25, 0.25, Sig, 0.5, "
                                   "0.5, 0.5, MeasTrTest, Exp, -1, -2, -3, Thr, 8, 9, 10, Sig, 0.75, 1.5, "
                                   "2.25, ClbPar, 1, b, -0.5, 0.5, 1.5, "
                                   "S, 1, 2, 3, 4, 5, 6, 7, 8, 9.5";

const char* const c_szCfgBaseText =
    "12, x_dbD, 0.25, -0.5, 1.75, q_bD, 0.5, 0.5, -0.5, 0.5, Frq, Exp, 100, Min, "
    "95.5, Max, 104";

// Random bytes of a record's length load and write back the same bytes,
// once bool bytes are 0 or 1 and the filling bytes of a time are zero.
template <class R>
void ExpectRandomBytesRoundTrip(unsigned int uiSeed, std::initializer_list<size_t> lstBools,
                                std::initializer_list<size_t> lstFills = {})
{
    std::mt19937 oGen(uiSeed);
    const R stDefault;
    const size_t ulSize = static_cast<size_t>(stDefault.getSize());
    for (int iRound = 0; iRound < 10; ++iRound)
    {
        ZelTest::Bytes vecIn(ulSize);
        for (auto& rucByte : vecIn)
        {
            rucByte = static_cast<unsigned char>(oGen() & 0xFFu);
        }
        for (const size_t ulBool : lstBools)
        {
            vecIn[ulBool] = static_cast<unsigned char>(vecIn[ulBool] & 1u);
        }
        for (const size_t ulFill : lstFills)
        {
            std::memset(&vecIn[ulFill], 0, 4);
        }
        R st;
        uint64_t ulCount = 0;
        ASSERT_TRUE(st.loadData(vecIn.data(), vecIn.size(), &ulCount));
        EXPECT_EQ(ulSize, ulCount);
        ZelTest::Bytes vecOut(ulSize, 0);
        ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulCount));
        EXPECT_EQ(vecIn, vecOut);
    }
}
} // namespace

// ------------------------------------------------------------------ sensor kinds

TEST(InsSensorType, NamesRowByRow)
{
    const struct
    {
        int iValue;
        const char* szName;
    } astRows[] = {{1, "Imu"}, {2, "Iac"}, {3, "Igr"},   {4, "Mag"}, {5, "Pos"}, {6, "Vel"}, {7, "Pve"},
                   {8, "Acc"}, {9, "Att"}, {10, "Pass"}, {0, ""},    {11, ""},   {-1, ""}};
    for (const auto& rRow : astRows)
    {
        EXPECT_STREQ(rRow.szName, GetSensorTypeName(static_cast<EZelInsSensorType>(rRow.iValue)))
            << rRow.iValue;
    }
}

TEST(InsSensorType, EachClassKnowsItsKind)
{
    EXPECT_EQ(eINSSENSOR_IMU, CL_ZELX_INS_SENSOR_CFG_IMU().GetSensorType());
    EXPECT_EQ(eINSSENSOR_IACC, CL_ZELX_INS_SENSOR_CFG_IACC().GetSensorType());
    EXPECT_EQ(eINSSENSOR_IGYR, CL_ZELX_INS_SENSOR_CFG_IGYR().GetSensorType());
    EXPECT_EQ(eINSSENSOR_MAG, CL_ZELX_INS_SENSOR_CFG_MAG().GetSensorType());
    EXPECT_EQ(eINSSENSOR_POS, CL_ZELX_INS_SENSOR_CFG_POS().GetSensorType());
    EXPECT_EQ(eINSSENSOR_VEL, CL_ZELX_INS_SENSOR_CFG_VEL().GetSensorType());
    EXPECT_EQ(eINSSENSOR_PVE, CL_ZELX_INS_SENSOR_CFG_PVE().GetSensorType());
    EXPECT_EQ(eINSSENSOR_ACC, CL_ZELX_INS_SENSOR_CFG_ACC().GetSensorType());
    EXPECT_EQ(eINSSENSOR_ATT, CL_ZELX_INS_SENSOR_CFG_ATT().GetSensorType());
    EXPECT_EQ(eINSSENSOR_PASS, CL_ZELX_INS_SENSOR_CFG_PASS().GetSensorType());

    EXPECT_EQ(eINSSENSOR_IMU, CL_ZELX_INS_SENSOR_OBS_IMU().GetSensorType());
    EXPECT_EQ(eINSSENSOR_IACC, CL_ZELX_INS_SENSOR_OBS_IACC().GetSensorType());
    EXPECT_EQ(eINSSENSOR_IGYR, CL_ZELX_INS_SENSOR_OBS_IGYR().GetSensorType());
    EXPECT_EQ(eINSSENSOR_MAG, CL_ZELX_INS_SENSOR_OBS_MAG().GetSensorType());
    EXPECT_EQ(eINSSENSOR_POS, CL_ZELX_INS_SENSOR_OBS_POS().GetSensorType());
    EXPECT_EQ(eINSSENSOR_VEL, CL_ZELX_INS_SENSOR_OBS_VEL().GetSensorType());
    EXPECT_EQ(eINSSENSOR_PVE, CL_ZELX_INS_SENSOR_OBS_PVE().GetSensorType());
    EXPECT_EQ(eINSSENSOR_ACC, CL_ZELX_INS_SENSOR_OBS_ACC().GetSensorType());
    EXPECT_EQ(eINSSENSOR_ATT, CL_ZELX_INS_SENSOR_OBS_ATT().GetSensorType());

    // Through the common part.
    const CL_ZELX_INS_SENSOR_CFG_MAG stMag;
    const CL_ZELX_INS_SENSOR_CFG& rCfg = stMag;
    EXPECT_EQ(eINSSENSOR_MAG, rCfg.GetSensorType());
    const CL_ZELX_INS_SENSOR_OBS_PVE stPve;
    const CL_ZELX_INS_SENSOR_OBS& rObs = stPve;
    EXPECT_EQ(eINSSENSOR_PVE, rObs.GetSensorType());
}

// ------------------------------------------------------------------ configuration

TEST(InsSensorCfg, DefaultBase)
{
    const CL_ZELX_INS_SENSOR_CFG_POS st;
    EXPECT_EQ(-1, st.usSensorID);
    EXPECT_EQ(-1.0, st.stFrq.dExp);
    EXPECT_EQ(-1.0, st.stFrq.dMin);
    EXPECT_EQ(-1.0, st.stFrq.dMax);
    EXPECT_TRUE(st.x_dbD == CZelExtVector3d());
    EXPECT_TRUE(st.q_bD == CZelExtQuaterniond());
    // The unset rates compare exactly, so two defaults are equal.
    EXPECT_TRUE(st == CL_ZELX_INS_SENSOR_CFG_POS());
    std::ostringstream os;
    os << st;
    EXPECT_EQ("-1, x_dbD, 0, 0, 0, q_bD, 1, 0, 0, 0, Frq, Exp, -1, Min, -1, Max, -1", os.str());
    EXPECT_EQ(9, static_cast<int>(os.precision())) << "precision 9 after the record";
}

TEST(InsSensorCfg, BaseImageAndText)
{
    CImage stImage;
    PutCfgBase(stImage, 0);
    ZelTest::ExpectCoreImage(ZelSample::InsCfgPos(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsCfgPos(), c_szCfgBaseText);
    EXPECT_EQ(82u, CL_ZELX_INS_SENSOR_CFG_POS().getSize());
    EXPECT_EQ(82u, CL_ZELX_INS_SENSOR_CFG_IACC().getSize()) << "no form of its own";
    EXPECT_EQ(82u, CL_ZELX_INS_SENSOR_CFG_PASS().getSize());
}

TEST(InsSensorCfg, BaseEquality)
{
    const CL_ZELX_INS_SENSOR_CFG_POS a = ZelSample::InsCfgPos();
    CL_ZELX_INS_SENSOR_CFG_POS b = a;
    b.x_dbD.m_adElem[0] = 0.25 * (1.0 + 5e-15);
    b.q_bD.m_adElem[3] = 0.5 * (1.0 + 5e-15);
    EXPECT_TRUE(a == b) << "vector and quaternion by the relative rule";
    b = a;
    b.stFrq.dMax = 104.0 * (1.0 + 5e-15);
    EXPECT_FALSE(a == b) << "rates exactly";
    b = a;
    b.usSensorID = 13;
    EXPECT_TRUE(a != b);
}

TEST(InsSensorParams, ImageAndText)
{
    CImage stImage;
    PutParams(stImage, 0, 1.0);
    ZelTest::ExpectCoreImage(ZelSample::InsSensorParams(1.0), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsSensorParams(1.0), c_szParamsText);
    const SZelInsSensorParams stDefault;
    EXPECT_EQ(0, stDefault.ucAvlPar);
    EXPECT_FALSE(stDefault.bClbFlag);
    EXPECT_TRUE(stDefault.S == CZelExtMatrix3d(0.0));
}

TEST(InsSensorParams, PrecisionTwelveForTheStochasticPartThenNine)
{
    SZelInsSensorParams st;
    st.stMns = CZelExtVector3d(0.1234567890123, 0.0, 0.0);
    st.b = CZelExtVector3d(0.1234567890123, 0.0, 0.0);
    std::ostringstream os;
    os << st;
    EXPECT_EQ(0u, os.str().find("StoPar, Mns, 0.123456789012, 0, 0, Brw"));
    EXPECT_NE(std::string::npos, os.str().find("ClbPar, 0, b, 0.123456789, 0, 0, S"));
}

TEST(InsSensorParams, EqualityMemberByMember)
{
    const SZelInsSensorParams a = ZelSample::InsSensorParams(1.0);
    SZelInsSensorParams b = a;
    b.S.m_adElem[4] = 5.0 * (1.0 + 5e-15);
    b.stMeasTest.stSig.m_adElem[1] = 1.5 * (1.0 + 5e-15);
    EXPECT_TRUE(a == b);
    b = a;
    b.ucAvlPar = 8;
    EXPECT_FALSE(a == b);
    b = a;
    b.bClbFlag = false;
    EXPECT_FALSE(a == b);
    b = a;
    b.stBrw.m_adElem[2] = 4.001;
    EXPECT_FALSE(a == b);
}

TEST(InsSensorCfgImu, ParameterSetsFirstThenTheCommonPart)
{
    CImage stImage;
    PutParams(stImage, 0, 1.0);
    PutParams(stImage, 386, 2.0);
    PutParams(stImage, 772, 4.0);
    PutCfgBase(stImage, 1158);
    stImage.At(1240);
    ZelTest::ExpectCoreImage(ZelSample::InsCfgImu(), stImage);

    // The sets of the gyroscope and magnetometer differ in the stochastic part alone.
    const std::string strParams = c_szParamsText;
    const std::string strRest = strParams.substr(strParams.find(", AvlPar, "));
    const std::string strGyr = "StoPar, Mns, 1, 0.5, 0.25, Brw, 2, 4, 8, Bisd, 6, 10, 14" + strRest;
    const std::string strMag = "StoPar, Mns, 2, 1, 0.5, Brw, 4, 8, 16, Bisd, 12, 20, 28" + strRest;
    ZelTest::ExpectTextExact(ZelSample::InsCfgImu(), std::string(c_szCfgBaseText) + ", Acc, " +
                                                         c_szParamsText + ", Gyr, " + strGyr + ", Mag, " +
                                                         strMag);

    CL_ZELX_INS_SENSOR_CFG_IMU b = ZelSample::InsCfgImu();
    b.stMag.ucAvlPar = 0;
    EXPECT_FALSE(b == ZelSample::InsCfgImu());
    b = ZelSample::InsCfgImu();
    b.usSensorID = 1;
    EXPECT_FALSE(b == ZelSample::InsCfgImu());
}

TEST(InsSensorCfgSingle, CompareTheCommonPartAndTheirSet)
{
    CL_ZELX_INS_SENSOR_CFG_IACC a;
    ZelSample::FillInsCfgBase(a);
    a.stAcc = ZelSample::InsSensorParams(1.0);
    CL_ZELX_INS_SENSOR_CFG_IACC b = a;
    EXPECT_TRUE(a == b);
    b.stAcc.ucAvlPar = 1;
    EXPECT_FALSE(a == b);
    CL_ZELX_INS_SENSOR_CFG_IGYR c;
    c.stGyr.bClbFlag = true;
    EXPECT_FALSE(c == CL_ZELX_INS_SENSOR_CFG_IGYR());
    CL_ZELX_INS_SENSOR_CFG_MAG d;
    d.stMag.stMns = CZelExtVector3d(1.0);
    EXPECT_FALSE(d == CL_ZELX_INS_SENSOR_CFG_MAG());
    // Their image and text are the common part's.
    std::ostringstream os;
    os << a;
    EXPECT_EQ(c_szCfgBaseText, os.str());
}

TEST(InsFilterCfg, ImageTextEquality)
{
    CImage stImage;
    stImage.At(0).U32(1).At(4);
    PutVector(stImage, 1.0, 0.0, 0.0);
    PutVector(stImage, 0.0, 0.0, -1.0);
    stImage.At(52).F64(2.5).At(60).F64(4.75).At(68);
    ZelTest::ExpectCoreImage(ZelSample::InsCfg(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsCfg(),
                             "PosFrame, 1, Fw_B, 1, 0, 0, Up_B, 0, 0, -1, MaxPrdTime, 2.5, MaxNormInn, 4.75");
    const SZelInsCfg stDefault;
    EXPECT_EQ(eINSPOSFRAME_NONE, stDefault.ePosFrame);
    EXPECT_TRUE(stDefault.stBodyAxes == SZelInsBodyAxes());
    EXPECT_EQ(0.0, stDefault.dMaxPrdTime);
    EXPECT_EQ(0.0, stDefault.dMaxNormInn);

    SZelInsCfg b = ZelSample::InsCfg();
    b.stBodyAxes.Fw_B.m_adElem[0] = 1.0 + 4e-15;
    EXPECT_TRUE(b == ZelSample::InsCfg());
    b.dMaxNormInn = 4.75 * (1.0 + 4e-15);
    EXPECT_FALSE(b == ZelSample::InsCfg());
    b = ZelSample::InsCfg();
    b.ePosFrame = eINSPOSFRAME_LEVEL;
    EXPECT_FALSE(b == ZelSample::InsCfg());

    // The frame travels as a signed short in the text.
    std::istringstream is("PosFrame, -3, Fw_B, 1, 0, 0, Up_B, 0, 0, 1, MaxPrdTime, 1, MaxNormInn, 2");
    SZelInsCfg stRead;
    is >> stRead;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(-3, static_cast<int>(stRead.ePosFrame));
}

TEST(InsFilterCfgLimits, ImageTextEquality)
{
    CImage stImage;
    stImage.At(0).F64(1.5).At(8).F64(3.25).At(16);
    ZelTest::ExpectCoreImage(ZelSample::InsCfgLimits(), stImage);
    ZelTest::ExpectTextExact(ZelSample::InsCfgLimits(), "MaxPrdTime, 1.5, MaxNormInn, 3.25");
    SZelInsCfgLimits b = ZelSample::InsCfgLimits();
    b.dMaxPrdTime = 1.5 * (1.0 + 4e-15);
    EXPECT_FALSE(b == ZelSample::InsCfgLimits());
}

TEST(InsSensorCfg, NastyInput)
{
    ExpectRandomBytesRoundTrip<CL_ZELX_INS_SENSOR_CFG_POS>(11, {});
    ExpectRandomBytesRoundTrip<SZelInsSensorParams>(12, {289});
    ExpectRandomBytesRoundTrip<CL_ZELX_INS_SENSOR_CFG_IMU>(13, {289, 386 + 289, 772 + 289});
    ExpectRandomBytesRoundTrip<SZelInsCfg>(14, {});
    // A text cut inside the second parameter set: the stream fails, the
    // values of the third set keep what they had; its small numbers pass
    // through a temporary and get its zero.
    const CL_ZELX_INS_SENSOR_CFG_IMU stSource = ZelSample::InsCfgImu();
    std::ostringstream os;
    os << stSource;
    const std::string strText = os.str();
    const size_t ulGyr = strText.find(", Gyr, ");
    ASSERT_NE(std::string::npos, ulGyr);
    std::istringstream is(strText.substr(0, ulGyr + 60));
    CL_ZELX_INS_SENSOR_CFG_IMU st;
    st.stMag.stMns = CZelExtVector3d(9.0);
    st.stMag.ucAvlPar = 99;
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_TRUE(st.stAcc == stSource.stAcc);
    EXPECT_TRUE(st.stMag.stMns == CZelExtVector3d(9.0));
    EXPECT_EQ(0, st.stMag.ucAvlPar);
}

// ------------------------------------------------------------------ observations

TEST(InsSensorObs, DefaultsAndTheVectorObservation)
{
    const CL_ZELX_INS_SENSOR_OBS_POS st;
    EXPECT_EQ(-1, st.usSensorID);
    EXPECT_TRUE(st.stTime == SMjdTime());
    EXPECT_EQ(0, st.usField1);
    EXPECT_EQ(0, st.usField2);
    EXPECT_TRUE(st.stPositionObs.Value == CZelExtVector3d());
    EXPECT_TRUE(st.stPositionObs.Covariance == CZelExtSymMatrix3d());
    EXPECT_TRUE(CL_ZELX_INS_SENSOR_OBS_ATT().stAttitude == CZelExtQuaterniond());

    CImage stImage;
    PutVectorObs(stImage, 0, 1.0);
    ZelTest::ExpectCoreImage(ZelSample::InsVectorObs(1.0), stImage);
    SZelInsVectorObs b = ZelSample::InsVectorObs(1.0);
    b.Covariance(2, 2) = 16.0 * (1.0 + 5e-15);
    EXPECT_TRUE(b == ZelSample::InsVectorObs(1.0));
    b.Value.m_adElem[1] = 0.0;
    EXPECT_FALSE(b == ZelSample::InsVectorObs(1.0));
}

TEST(InsSensorObs, CommonPartImageAndText)
{
    CL_ZELX_INS_SENSOR_OBS_ACC st;
    ZelSample::FillInsObsBase(st);
    CImage stImage;
    PutObsBase(stImage, 0);
    ZelTest::ExpectCoreImage(st, stImage);
    ZelTest::ExpectText(st, "3, 17, 2100, 345600125.000, 65535");
}

TEST(InsSensorObs, ImuImageAndText)
{
    CImage stImage;
    PutVectorObs(stImage, 0, 1.0);
    PutVectorObs(stImage, 72, 0.5);
    PutVectorObs(stImage, 144, 2.0);
    PutObsBase(stImage, 216);
    stImage.At(246);
    ZelTest::ExpectCoreImage(ZelSample::InsObsImu(), stImage);
    ZelTest::ExpectTextExact(
        ZelSample::InsObsImu(),
        "3, 17, 2100, 345600125.000, 65535, f_ibB, 1.50000000, -2.25000000, 3.00000000, w_ibB, "
        "0.7500000000000000, -1.1250000000000000, 1.5000000000000000, m_B, 3.000, -4.500, 6.000, Qf_ibB, "
        "4.00000000, 0.50000000, 9.00000000, -0.25000000, 1.50000000, 16.00000000, Qw_ibB, "
        "2.0000000000000000, "
        "0.2500000000000000, 4.5000000000000000, -0.1250000000000000, 0.7500000000000000, "
        "8.0000000000000000, "
        "Qm_B, 8.000, 1.000, 18.000, -0.500, 3.000, 32.000");
}

TEST(InsSensorObs, PositionAndVelocityImagesAndTexts)
{
    CImage stPos;
    PutVectorObs(stPos, 0, 1.0);
    PutObsBase(stPos, 72);
    stPos.At(102);
    ZelTest::ExpectCoreImage(ZelSample::InsObsPos(), stPos);
    ZelTest::ExpectTextExact(
        ZelSample::InsObsPos(),
        "3, 17, 2100, 345600125.000, 65535, x_pbP, 1.500000000, -2.250000000, 3.000000000, "
        "Qx_pbP, 4.000000000000000000, 0.500000000000000000, 9.000000000000000000, "
        "-0.250000000000000000, 1.500000000000000000, 16.000000000000000000");

    CImage stVel;
    PutVectorObs(stVel, 0, 0.25);
    PutObsBase(stVel, 72);
    stVel.At(102);
    ZelTest::ExpectCoreImage(ZelSample::InsObsVel(), stVel);
    ZelTest::ExpectTextExact(
        ZelSample::InsObsVel(),
        "3, 17, 2100, 345600125.000, 65535, v_pbP, 0.375000000000, -0.562500000000, "
        "0.750000000000, Qv_pbP, 1.000000000000000000000000, 0.125000000000000000000000, "
        "2.250000000000000000000000, -0.062500000000000000000000, "
        "0.375000000000000000000000, 4.000000000000000000000000");

    CImage stPve;
    PutVectorObs(stPve, 0, 1.0);
    PutVectorObs(stPve, 72, 0.25);
    PutObsBase(stPve, 144);
    stPve.At(174);
    ZelTest::ExpectCoreImage(ZelSample::InsObsPve(), stPve);
    ZelTest::ExpectTextExact(
        ZelSample::InsObsPve(),
        "3, 17, 2100, 345600125.000, 65535, x_pbP, 1.500000000, -2.250000000, 3.000000000, "
        "v_pbP, 0.375000000000, -0.562500000000, 0.750000000000, Qx_pbP, "
        "4.000000000000000000, 0.500000000000000000, 9.000000000000000000, "
        "-0.250000000000000000, 1.500000000000000000, 16.000000000000000000, Qv_pbP, "
        "1.000000000000000000000000, 0.125000000000000000000000, 2.250000000000000000000000, "
        "-0.062500000000000000000000, 0.375000000000000000000000, 4.000000000000000000000000");
    std::ostringstream os;
    os << ZelSample::InsObsPve();
    EXPECT_EQ(9, static_cast<int>(os.precision()));
}

TEST(InsSensorObs, TextTimeOutsideTheWeekRangeIsTheDefault)
{
    CL_ZELX_INS_SENSOR_OBS_POS st = ZelSample::InsObsPos();
    CRecordingHook stHook;
    std::istringstream is("3, 17, 5966, 1000.000, 65535, x_pbP, 1, 2, 3, Qx_pbP, 1, 0, 1, 0, 0, 1");
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st.stTime.m_lMjdDay == 0 && st.stTime.m_dMjdFractMilliseconds == 0.0);
    EXPECT_EQ(65535, st.usField2) << "the reading goes on";
    EXPECT_EQ(3.0, st.stPositionObs.Value.m_adElem[2]);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(InsSensorObs, EqualityUsesTheTimeTolerance)
{
    const CL_ZELX_INS_SENSOR_OBS_PVE a = ZelSample::InsObsPve();
    CL_ZELX_INS_SENSOR_OBS_PVE b = a;
    b.stTime.m_dMjdFractMilliseconds += 5e-7; // within a nanosecond
    EXPECT_TRUE(a == b);
    b.stTime.m_dMjdFractMilliseconds += 2e-6;
    EXPECT_FALSE(a == b);
    b = a;
    b.usField2 = 1;
    EXPECT_FALSE(a == b);
    b = a;
    b.stVelocityObs.Covariance(1, 0) = 0.2;
    EXPECT_FALSE(a == b);

    CL_ZELX_INS_SENSOR_OBS_ATT c;
    c.stAttitude = ZelSample::InsQuaternion();
    EXPECT_FALSE(c == CL_ZELX_INS_SENSOR_OBS_ATT());
    CL_ZELX_INS_SENSOR_OBS_IGYR d;
    d.stObs = ZelSample::InsVectorObs(1.0);
    EXPECT_FALSE(d == CL_ZELX_INS_SENSOR_OBS_IGYR());
    EXPECT_TRUE(CL_ZELX_INS_SENSOR_OBS_MAG() == CL_ZELX_INS_SENSOR_OBS_MAG());
    EXPECT_TRUE(CL_ZELX_INS_SENSOR_OBS_IACC() == CL_ZELX_INS_SENSOR_OBS_IACC());
}

TEST(InsSensorObs, NastyInput)
{
    // The time of the common part at 216 + 2 (IMU) and 144 + 2 (PVE): filling at 4 and 20.
    ExpectRandomBytesRoundTrip<CL_ZELX_INS_SENSOR_OBS_IMU>(21, {}, {222, 238});
    ExpectRandomBytesRoundTrip<CL_ZELX_INS_SENSOR_OBS_PVE>(22, {}, {150, 166});
    CRecordingHook stHook;
    std::istringstream is("garbage in, garbage out");
    CL_ZELX_INS_SENSOR_OBS_IMU st = ZelSample::InsObsImu();
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_TRUE(st.stAcc == ZelSample::InsObsImu().stAcc) << "fields after the failure keep their values";
    EXPECT_EQ(0u, stHook.Count());
}

// ------------------------------------------------------------------ propagation and scaling

TEST(InsPropagate, OwnTimeChangesNothing)
{
    CL_ZELX_INS_SENSOR_OBS_PVE st = ZelSample::InsObsPve();
    st.PropagateTo(st.stTime, 5.0);
    EXPECT_TRUE(st == ZelSample::InsObsPve());
    const SMjdTime stCopy = st.stTime;
    st.PropagateTo(stCopy, 5.0);
    for (size_t k = 0; k < 6; ++k)
    {
        EXPECT_EQ(ZelSample::InsObsPve().stPositionObs.Covariance.m_adElem[k],
                  st.stPositionObs.Covariance.m_adElem[k]);
    }
}

TEST(InsPropagate, BackwardsByTwoSecondsGrowsTheCovariance)
{
    const CL_ZELX_INS_SENSOR_OBS_PVE stBefore = ZelSample::InsObsPve();
    CL_ZELX_INS_SENSOR_OBS_PVE st = stBefore;
    SMjdTime stEarlier = stBefore.stTime;
    stEarlier.SubSeconds(2.0); // 125 ms into the day minus 2 s: the previous day
    ASSERT_EQ(stBefore.stTime.m_lMjdDay - 1, stEarlier.m_lMjdDay);
    CRecordingHook stHook;
    st.PropagateTo(stEarlier, 0.5);
    const double adPos[3] = {1.5, -2.25, 3.0};
    const double adVel[3] = {0.375, -0.5625, 0.75};
    for (size_t k = 0; k < 3; ++k)
    {
        EXPECT_EQ(adPos[k] - 2.0 * adVel[k], st.stPositionObs.Value.m_adElem[k]);
        EXPECT_EQ(adVel[k], st.stVelocityObs.Value.m_adElem[k]) << "the velocity stays";
    }
    for (size_t i = 0; i < 3; ++i)
    {
        for (size_t j = 0; j <= i; ++j)
        {
            const double dExpected = stBefore.stPositionObs.Covariance(i, j) +
                                     4.0 * stBefore.stVelocityObs.Covariance(i, j) +
                                     (i == j ? 2.0 * 0.5 : 0.0);
            EXPECT_EQ(dExpected, st.stPositionObs.Covariance(i, j)) << i << "," << j;
        }
    }
    EXPECT_TRUE(st.stVelocityObs.Covariance == stBefore.stVelocityObs.Covariance);
    EXPECT_TRUE(st.stTime == stEarlier);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(InsPropagate, ForwardOverMidnight)
{
    CL_ZELX_INS_SENSOR_OBS_PVE st;
    st.stTime.m_lMjdDay = 60000;
    st.stTime.m_dMjdFractMilliseconds = 86399000.0;
    st.stPositionObs.Value = CZelExtVector3d(0.0, 0.0, 0.0);
    st.stVelocityObs.Value = CZelExtVector3d(1.0, -1.0, 0.5);
    st.stVelocityObs.Covariance = CZelExtSymMatrix3d(1.0, 1.0, 1.0);
    SMjdTime stLater;
    stLater.m_lMjdDay = 60001;
    stLater.m_dMjdFractMilliseconds = 1000.0;
    st.PropagateTo(stLater, 0.0);
    // dt = (1000 - 86399000) / 1000 + 86400 = 2 s.
    EXPECT_EQ(2.0, st.stPositionObs.Value.m_adElem[0]);
    EXPECT_EQ(-2.0, st.stPositionObs.Value.m_adElem[1]);
    EXPECT_EQ(4.0, st.stPositionObs.Covariance(1, 1));
    EXPECT_EQ(0.0, st.stPositionObs.Covariance(1, 0));
    EXPECT_EQ(60001, st.stTime.m_lMjdDay);
}

TEST(InsPropagate, NotANumberOfSecondsChangesNothing)
{
    CL_ZELX_INS_SENSOR_OBS_PVE st = ZelSample::InsObsPve();
    SMjdTime stOdd = st.stTime;
    stOdd.m_dMjdFractMilliseconds = std::numeric_limits<double>::quiet_NaN();
    st.PropagateTo(stOdd, 1.0);
    EXPECT_TRUE(st == ZelSample::InsObsPve());
}

TEST(InsScale, PositionByZeroVelocityByOne)
{
    CL_ZELX_INS_SENSOR_OBS_PVE st = ZelSample::InsObsPve();
    CRecordingHook stHook;
    st.ScaleCovariance(0.0, 1.0);
    for (size_t k = 0; k < 6; ++k)
    {
        EXPECT_EQ(0.0, st.stPositionObs.Covariance.m_adElem[k]);
        EXPECT_EQ(ZelSample::InsObsPve().stVelocityObs.Covariance.m_adElem[k],
                  st.stVelocityObs.Covariance.m_adElem[k]);
    }
    st = ZelSample::InsObsPve();
    st.ScaleCovariance(2.0, 0.5);
    for (size_t k = 0; k < 6; ++k)
    {
        EXPECT_EQ(2.0 * ZelSample::InsObsPve().stPositionObs.Covariance.m_adElem[k],
                  st.stPositionObs.Covariance.m_adElem[k]);
        EXPECT_EQ(0.5 * ZelSample::InsObsPve().stVelocityObs.Covariance.m_adElem[k],
                  st.stVelocityObs.Covariance.m_adElem[k]);
    }
    EXPECT_TRUE(st.stPositionObs.Value == ZelSample::InsObsPve().stPositionObs.Value);
    EXPECT_EQ(0u, stHook.Count());
}
