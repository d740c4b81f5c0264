#include "ZelRecordRegistry.h"

#include <ZelTypes/ZelTypesAll.h>

#include "ZelSamples.h"

namespace ZelTools
{

using namespace ZELN;

const std::vector<SRecordKind>& RecordKinds()
{
    // One line per record with a binary form.
    static const std::vector<SRecordKind> s_vecKinds = {
        Kind<SMjdTime>("SMjdTime", [] { return ZelSample::Times()[2]; }),
        Kind<SZelSatID>("SZelSatID", ZelSample::SatId),
        Kind<SZelFrqTMdID>("SZelFrqTMdID", ZelSample::FrqTMdId),
        Kind<SZelSatFrqID>("SZelSatFrqID", ZelSample::SatFrqId),
        Kind<SZelSysFrqID>("SZelSysFrqID", ZelSample::SysFrqId),
        Kind<SZelSysFrqTMdGroupID>("SZelSysFrqTMdGroupID", ZelSample::SysFrqTMdGroupId),
        Kind<SZelSatFrqTMdGroupID>("SZelSatFrqTMdGroupID", ZelSample::SatFrqTMdGroupId),
        Kind<ZelGlonassFrequencies>("ZelGlonassFrequencies", ZelSample::GlonassChannels),
        Kind<SZelCoordinateTriplet>("SZelCoordinateTriplet", ZelSample::Triplet),
        Kind<SZelCoordinateSet>("SZelCoordinateSet", ZelSample::CoordinateSet),
        Kind<SZelSatPosVel>("SZelSatPosVel", ZelSample::SatPosVel),
        Kind<SZelVector3d>("SZelVector3d", [] { return SZelVector3d(1.5, -2.25, 6378137.0); }),
        Kind<SZelMasterCoordinate>("SZelMasterCoordinate", ZelSample::MasterCoordinate),
        Kind<SZelHorizontalOffset>("SZelHorizontalOffset", ZelSample::HorizontalOffset),
        Kind<SZelSatObservation>("SZelSatObservation",
                                 [] { return ZelSample::SatObs(ZELSATSYSTEM_GPS, 5, 3); }),
        Kind<SZelObservationEpochHeader>("SZelObservationEpochHeader", ZelSample::EpochHeader),
        Kind<SZelObservationEpoch>("SZelObservationEpoch", [] { return ZelSample::ObsEpoch(); }),
        Kind<SZelRtmeOutEpochData>("SZelRtmeOutEpochData", [] { return ZelSample::RtmeOut(); }),
        Kind<SZelOutObservations>("SZelOutObservations", ZelSample::OutObservations),
        Kind<SZelObsInfo>("SZelObsInfo", ZelSample::ObsInfo),
        Kind<ZelExtObsEpoch>("ZelExtObsEpoch", ZelSample::ExtObsEpoch),
        Kind<ZELX_SAT_EPHEMERIS_COMMON>("ZELX_SAT_EPHEMERIS_COMMON", ZelSample::KeplerBlock),
        Kind<ZELX_SAT_EPHEMERIS>("ZELX_SAT_EPHEMERIS", ZelSample::GpsEphemeris),
        Kind<ZELX_SAT_EPHEMERIS_QZSS>("ZELX_SAT_EPHEMERIS_QZSS", ZelSample::QzssEphemeris),
        Kind<ZELX_SAT_EPHEMERIS_GLONASS>("ZELX_SAT_EPHEMERIS_GLONASS", ZelSample::GlonassEphemeris),
        Kind<ZELX_SAT_EPHEMERIS_GALILEO>("ZELX_SAT_EPHEMERIS_GALILEO", ZelSample::GalileoEphemeris),
        Kind<ZELX_SAT_EPHEMERIS_BEIDOU>("ZELX_SAT_EPHEMERIS_BEIDOU", ZelSample::BeiDouEphemeris),
        Kind<ZELX_SAT_EPHEMERIS_NAVIC>("ZELX_SAT_EPHEMERIS_NAVIC", ZelSample::NavicEphemeris),
        Kind<SSRCorrMsgHeader>("SSRCorrMsgHeader", ZelSample::SsrHeader),
        Kind<SSROrbitCorr>("SSROrbitCorr", [] { return ZelSample::SsrOrbitCorr(); }),
        Kind<SSRClockCorr>("SSRClockCorr", [] { return ZelSample::SsrClockCorr(); }),
        Kind<SSRHighRateClock>("SSRHighRateClock", [] { return ZelSample::SsrHighRateClock(); }),
        Kind<SSRURA>("SSRURA", [] { return ZelSample::SsrUra(); }),
        Kind<SSRBias>("SSRBias", [] { return ZelSample::SsrBias(); }),
        Kind<SSRPhaseBias>("SSRPhaseBias", [] { return ZelSample::SsrPhaseBias(); }),
        Kind<SSRPCV>("SSRPCV", [] { return ZelSample::SsrPcv(); }),
        Kind<SSROrbitCorrMsgT>("SSROrbitCorrMsgT", ZelSample::SsrOrbitMsg),
        Kind<SSRClockCorrMsgT>("SSRClockCorrMsgT", ZelSample::SsrClockMsg),
        Kind<SSRHighRateClockMsgT>("SSRHighRateClockMsgT", ZelSample::SsrHighRateClockMsg),
        Kind<SSRCodeBiasMsgT>("SSRCodeBiasMsgT", ZelSample::SsrCodeBiasMsg),
        Kind<SSRPhaseBiasMsgT>("SSRPhaseBiasMsgT", ZelSample::SsrPhaseBiasMsg),
        Kind<SSRURAMsgT>("SSRURAMsgT", ZelSample::SsrUraMsg),
        Kind<SSRSignalMsgT>("SSRSignalMsgT", ZelSample::SsrSignalMsg),
        Kind<SSRPCVMsgT>("SSRPCVMsgT", ZelSample::SsrPcvMsg),
        Kind<CZelExtVector3d>("CZelExtVector3d", ZelSample::InsVector),
        Kind<CZelExtQuaterniond>("CZelExtQuaterniond", ZelSample::InsQuaternion),
        Kind<CZelExtMatrix3d>("CZelExtMatrix3d", ZelSample::InsMatrix),
        Kind<CZelExtSymMatrix3d>("CZelExtSymMatrix3d", ZelSample::InsSymMatrix),
        Kind<SZelInsBodyAxes>("SZelInsBodyAxes", ZelSample::InsBodyAxes),
        Kind<SZelInsVarLever>("SZelInsVarLever", ZelSample::InsVarLever),
        Kind<SZelInsTrTest>("SZelInsTrTest", ZelSample::InsTrTest),
        Kind<SZelInsExpMinMax>("SZelInsExpMinMax", ZelSample::InsExpMinMax),
        Kind<SZelInsSensorParams>("SZelInsSensorParams", [] { return ZelSample::InsSensorParams(1.0); }),
        Kind<CL_ZELX_INS_SENSOR_CFG_IMU>("CL_ZELX_INS_SENSOR_CFG_IMU", ZelSample::InsCfgImu),
        Kind<SZelInsCfg>("SZelInsCfg", ZelSample::InsCfg),
        Kind<SZelInsCfgLimits>("SZelInsCfgLimits", ZelSample::InsCfgLimits),
        Kind<SZelInsVectorObs>("SZelInsVectorObs", [] { return ZelSample::InsVectorObs(1.0); }),
        Kind<CL_ZELX_INS_SENSOR_OBS_IMU>("CL_ZELX_INS_SENSOR_OBS_IMU", ZelSample::InsObsImu),
        Kind<CL_ZELX_INS_SENSOR_OBS_POS>("CL_ZELX_INS_SENSOR_OBS_POS", ZelSample::InsObsPos),
        Kind<CL_ZELX_INS_SENSOR_OBS_VEL>("CL_ZELX_INS_SENSOR_OBS_VEL", ZelSample::InsObsVel),
        Kind<CL_ZELX_INS_SENSOR_OBS_PVE>("CL_ZELX_INS_SENSOR_OBS_PVE", ZelSample::InsObsPve),
        Kind<CL_ZELX_INS_RESULT>("CL_ZELX_INS_RESULT", ZelSample::InsResult),
        Kind<CL_ZELX_INS_RES_POS_STATE>("CL_ZELX_INS_RES_POS_STATE", ZelSample::InsResPosState),
        Kind<SZelInsResStateEx>("SZelInsResStateEx", ZelSample::InsResStateEx),
        Kind<SZelInsResHeader>("SZelInsResHeader", ZelSample::InsResHeader),
        Kind<SZelInsResRecord>("SZelInsResRecord", ZelSample::InsResRecord),
        Kind<ZELX_SAT_ALMANAC>("ZELX_SAT_ALMANAC", ZelSample::SampleAlmanacGps),
        Kind<ZELX_SAT_ALMANAC_QZSS>("ZELX_SAT_ALMANAC_QZSS", ZelSample::SampleAlmanacQzss),
        Kind<ZELX_SAT_ALMANAC_GALILEO>("ZELX_SAT_ALMANAC_GALILEO", ZelSample::SampleAlmanacGalileo),
        Kind<ZELX_SAT_ALMANAC_BEIDOU>("ZELX_SAT_ALMANAC_BEIDOU", ZelSample::SampleAlmanacBeiDou),
        Kind<ZELX_SAT_ALMANAC_NAVIC>("ZELX_SAT_ALMANAC_NAVIC", ZelSample::SampleAlmanacNavic),
        Kind<ZELX_SAT_ALMANAC_GLONASS>("ZELX_SAT_ALMANAC_GLONASS", ZelSample::SampleAlmanacGlonass),
        Kind<SZelKlobucharCoefficients>("SZelKlobucharCoefficients", ZelSample::SampleKlobuchar),
        Kind<SZelOrbPoly>("SZelOrbPoly", ZelSample::SampleOrbPoly),
        Kind<ZELX_ORBIT_SAT_TABLE>("ZELX_ORBIT_SAT_TABLE", ZelSample::SampleOrbitSatTable),
        Kind<ZELX_ORBIT_FRAME_TRANSFORM>("ZELX_ORBIT_FRAME_TRANSFORM", ZelSample::SampleFrameTransform),
        Kind<ZELX_SAT_STATE_ENTRY>("ZELX_SAT_STATE_ENTRY", [] { return ZelSample::SampleStateEntry(3); }),
        Kind<ZELX_SAT_STATE_EPOCH>("ZELX_SAT_STATE_EPOCH", [] { return ZelSample::SampleStateEpoch(900.0); }),
        Kind<ZELX_SAT_STATE_TABLE>("ZELX_SAT_STATE_TABLE", ZelSample::SampleStateTable),
        Kind<SZelDOP>("SZelDOP", ZelSample::Dop),
        Kind<SZelFrqSatUsage>("SZelFrqSatUsage", ZelSample::FrqSatUsage),
        Kind<SZelSysSatUsage>("SZelSysSatUsage", [] { return ZelSample::SysSatUsage(); }),
        Kind<SZelGnssAvailability>("SZelGnssAvailability", ZelSample::GnssAvailability),
        Kind<SZelNrtkInfo>("SZelNrtkInfo", ZelSample::NrtkInfo),
        Kind<SZelPosQuality>("SZelPosQuality", ZelSample::PosQuality),
        Kind<SZelPosition>("SZelPosition", ZelSample::Position),
        Kind<SZelPosResultHeader>("SZelPosResultHeader", ZelSample::PosResultHeader),
        Kind<SZelPosResultExt>("SZelPosResultExt", ZelSample::PosResultExt),
        Kind<SZelPosResultMeta>("SZelPosResultMeta", ZelSample::PosResultMeta),
        Kind<ZelExtGnssPveObs>("ZelExtGnssPveObs", ZelSample::GnssPveObs),
        Kind<SZelNovAtelBestPos>("SZelNovAtelBestPos", ZelSample::BestPos),
        Kind<SZelNetAuxStation>("SZelNetAuxStation", ZelSample::NetAuxStation),
        Kind<SZelNetMsgHeader>("SZelNetMsgHeader", [] { return ZelSample::NetMsgHeader(); }),
        Kind<SZelNetSatEntry>("SZelNetSatEntry",
                              []
                              {
                                  SZelNetSatEntry stEntry;
                                  ZelSample::FillNetHead(stEntry, 3);
                                  return stEntry;
                              }),
        Kind<SZelNetIonoEntry>("SZelNetIonoEntry", [] { return ZelSample::NetIonoEntry(); }),
        Kind<SZelNetGeoEntry>("SZelNetGeoEntry", [] { return ZelSample::NetGeoEntry(); }),
        Kind<SZelNetCombEntry>("SZelNetCombEntry", [] { return ZelSample::NetCombEntry(); }),
        Kind<SZelNetGeoMsg>("SZelNetGeoMsg", ZelSample::NetGeoMsg),
        Kind<SZelNetIonoMsg>("SZelNetIonoMsg", ZelSample::NetIonoMsg),
        Kind<SZelNetCombMsg>("SZelNetCombMsg", ZelSample::NetCombMsg),
        Kind<MsgGNSS17T>("MsgGNSS17T", ZelSample::MsgGnss17),
        Kind<SZelNetCombEntryD>("SZelNetCombEntryD", [] { return ZelSample::NetCombEntryD(); }),
        Kind<SZelNetCombMsgD>("SZelNetCombMsgD", ZelSample::NetCombMsgD),
        Kind<SZelNetCorrPair>("SZelNetCorrPair", ZelSample::NetCorrPair),
        Kind<SZelNetGridEntry>("SZelNetGridEntry", [] { return ZelSample::NetGridEntry(); }),
        Kind<SZelNetGridMsg>("SZelNetGridMsg", ZelSample::NetGridMsg),
        Kind<SZelNetGridSysMsg>("SZelNetGridSysMsg", ZelSample::NetGridSysMsg),
        Kind<SZelNetResidualEntry>("SZelNetResidualEntry", [] { return ZelSample::NetResidualEntry(); }),
        Kind<SZelNetResidualMsg>("SZelNetResidualMsg", ZelSample::NetResidualMsg),
        Kind<SZelAntDescriptor>("SZelAntDescriptor", ZelSample::AntDescriptor),
        Kind<SZelARPOffsets>("SZelARPOffsets", ZelSample::ARPOffsetsSlant),
        Kind<SZelAntPCC>("SZelAntPCC", ZelSample::AntPCCBand0),
        Kind<SZelAntModelKey>("SZelAntModelKey", [] { return SZelAntModelKey(ZELSATSYSTEM_GALILEO, 5); }),
        Kind<SZelAntModel>("SZelAntModel", ZelSample::AntModel),
        Kind<SZelAntennaInfo>("SZelAntennaInfo", ZelSample::AntennaInfo),
        Kind<SZelAntPCOTable>("SZelAntPCOTable", ZelSample::AntPCOTable),
        Kind<SZelAntPCVTable>("SZelAntPCVTable", ZelSample::AntPCVTable),
        Kind<SZelDopLimit>("SZelDopLimit", ZelSample::DopLimit),
        Kind<SZelSatLimit>("SZelSatLimit", ZelSample::SatLimit),
        Kind<SZelPrePrcCfg>("SZelPrePrcCfg", ZelSample::PrePrcCfg),
        Kind<SZelGenCfg>("SZelGenCfg", ZelSample::GenCfg),
        Kind<SZelDiffCfg>("SZelDiffCfg", ZelSample::DiffCfg),
        Kind<SZelRtkCfg>("SZelRtkCfg", ZelSample::RtkCfg),
        Kind<SZelRtkCfgV1>("SZelRtkCfgV1", ZelSample::RtkCfgV1),
        Kind<SZelProcCfg>("SZelProcCfg", ZelSample::ProcCfg),
        Kind<SZelProcCfgV1>("SZelProcCfgV1", ZelSample::ProcCfgV1),
        Kind<SZelMacCfg>("SZelMacCfg", ZelSample::MacCfg),
        Kind<SZelRefCfg>("SZelRefCfg", ZelSample::RefCfg),
        Kind<SZelNetCfg>("SZelNetCfg", ZelSample::NetCfg),
        Kind<SZelStationCfg>("SZelStationCfg", ZelSample::StationCfg),
        Kind<SZelRtHandle>("SZelRtHandle", ZelSample::RtHandle),
        Kind<SZelRecAntCfg>("SZelRecAntCfg", ZelSample::RecAntCfg),
        Kind<SZelRtHandleBias>("SZelRtHandleBias", ZelSample::RtHandleBias),
        Kind<SZelRtHandleCoords>("SZelRtHandleCoords", ZelSample::RtHandleCoords),
    };
    return s_vecKinds;
}

const SRecordKind* FindRecordKind(const std::string& strName)
{
    for (const SRecordKind& rKind : RecordKinds())
    {
        if (rKind.strName == strName)
        {
            return &rKind;
        }
    }
    return nullptr;
}

} // namespace ZelTools
