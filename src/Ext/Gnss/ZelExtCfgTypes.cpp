#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Gnss/ZelExtCfgTypes.h>

#include <cstddef>

namespace ZELN
{

// The raw blocks are the records' memory layouts on the 64-bit hosts the
// library runs on; the images are stated field by field with their reserved
// bytes, and these checks keep the two in step.
static_assert(sizeof(SZelGenCfg) == 64 && offsetof(SZelGenCfg, unFrqsToUse) == 26 &&
                  offsetof(SZelGenCfg, stPrePrcCfg) == 32 && offsetof(SZelGenCfg, dMinElev) == 40 &&
                  offsetof(SZelGenCfg, ucGnssPveUsage) == 52 && offsetof(SZelGenCfg, ulMode) == 56 &&
                  offsetof(SZelGenCfg, ucGnssToUse) == 61,
              "general block layout");
static_assert(sizeof(SZelDiffCfg) == 24 && offsetof(SZelDiffCfg, dMaxBaseline) == 8 &&
                  offsetof(SZelDiffCfg, bImproveIono) == 20,
              "differential block layout");
static_assert(sizeof(SZelRtkCfg) == 144 && offsetof(SZelRtkCfg, dMaxPredHpn) == 8 &&
                  offsetof(SZelRtkCfg, ucNumRestBefAmbFix) == 48 &&
                  offsetof(SZelRtkCfg, ulFltLngthBitMask) == 52 &&
                  offsetof(SZelRtkCfg, nFltLngthFstSrc) == 56 && offsetof(SZelRtkCfg, dMaxAlphSrc) == 64 &&
                  offsetof(SZelRtkCfg, bUseDopplerInPos) == 136,
              "kinematic block layout");
static_assert(sizeof(SZelRtkCfgV1) == 120 && offsetof(SZelRtkCfgV1, ucNumRestBefAmbFix) == 24 &&
                  offsetof(SZelRtkCfgV1, ulFltLngthBitMask) == 28 &&
                  offsetof(SZelRtkCfgV1, dMaxAlphSrc) == 40 &&
                  offsetof(SZelRtkCfgV1, bUseDopplerInPos) == 112,
              "older kinematic block layout");
static_assert(sizeof(SZelProcCfg) == 232 && offsetof(SZelProcCfg, stDiffCfg) == 64 &&
                  offsetof(SZelProcCfg, stRtkCfg) == 88,
              "main record layout");
static_assert(sizeof(SZelProcCfgV1) == 208 && offsetof(SZelProcCfgV1, stRtkCfg) == 88,
              "older main record layout");
static_assert(sizeof(SZelMacCfg) == 32 && offsetof(SZelMacCfg, dMaxDistance) == 16, "network cell layout");
static_assert(sizeof(SZelRefCfg) == 56 && offsetof(SZelRefCfg, lSystemFix) == 12 &&
                  offsetof(SZelRefCfg, stMacCfg) == 24,
              "reference data layout");
// The network block's last 8 bytes are reserved beyond the record's memory.
static_assert(offsetof(SZelNetCfg, bDropbackClSB) == 32 && offsetof(SZelNetCfg, dMinDistMaster) == 40 &&
                  offsetof(SZelNetCfg, bImmediateFallforward) == 57 && offsetof(SZelNetCfg, stMacCfg) == 64,
              "network handling layout");
static_assert(sizeof(SZelStationCfg) == 88 && offsetof(SZelStationCfg, stStationCoords) == 8,
              "station layout");
static_assert(sizeof(SZelRtHandleBias) == 48 && offsetof(SZelRtHandleBias, dL1CA) == 16,
              "handle bias layout");
static_assert(sizeof(SZelRtHandleCoords) == 40 && offsetof(SZelRtHandleCoords, adCoords) == 8 &&
                  offsetof(SZelRtHandleCoords, bValid) == 33,
              "handle coordinates layout");

namespace
{

// The fields the two layouts of the kinematic block share, in declaration
// order: up to the a-priori fields, then after them.
template <class A, class B> bool EqualRtk(const A& a, const B& b)
{
    return a.ulProcOpt == b.ulProcOpt && a.unSmoothWindow == b.unSmoothWindow &&
           AreCloseRel(a.dMaxPredHpn, b.dMaxPredHpn) && AreCloseRel(a.dMaxPredSsr, b.dMaxPredSsr);
}

template <class A, class B> bool EqualRtkTail(const A& a, const B& b)
{
    return a.ucNumRestBefAmbFix == b.ucNumRestBefAmbFix &&
           a.ucNumRestBefAmbFixStat == b.ucNumRestBefAmbFixStat &&
           a.ulFltLngthBitMask == b.ulFltLngthBitMask && a.nFltLngthFstSrc == b.nFltLngthFstSrc &&
           a.nFltLngthSrcIntFix == b.nFltLngthSrcIntFix && a.nFltLngthSrcInt == b.nFltLngthSrcInt &&
           a.nFltLngthResInt == b.nFltLngthResInt && AreCloseRel(a.dMaxAlphSrc, b.dMaxAlphSrc) &&
           AreCloseRel(a.dMaxAlphRes, b.dMaxAlphRes) && AreCloseRel(a.dPosTskCooPN, b.dPosTskCooPN) &&
           AreCloseRel(a.dPosTskAmbPN, b.dPosTskAmbPN) && AreCloseRel(a.dAmbTskCooPN, b.dAmbTskCooPN) &&
           AreCloseRel(a.dPosTskFltCooPN, b.dPosTskFltCooPN) && AreCloseRel(a.dQuasStatPN, b.dQuasStatPN) &&
           AreCloseRel(a.dIonoPN, b.dIonoPN) && AreCloseRel(a.dIonoIV, b.dIonoIV) &&
           a.bUseDopplerInPos == b.bUseDopplerInPos;
}

// The shared fields of the kinematic block, from one layout to the other.
void CopyRtkShared(const SZelRtkCfgV1& rOld, SZelRtkCfg& rNew)
{
    rNew.ulProcOpt = rOld.ulProcOpt;
    rNew.unSmoothWindow = rOld.unSmoothWindow;
    rNew.dMaxPredHpn = rOld.dMaxPredHpn;
    rNew.dMaxPredSsr = rOld.dMaxPredSsr;
    rNew.ucNumRestBefAmbFix = rOld.ucNumRestBefAmbFix;
    rNew.ucNumRestBefAmbFixStat = rOld.ucNumRestBefAmbFixStat;
    rNew.ulFltLngthBitMask = rOld.ulFltLngthBitMask;
    rNew.nFltLngthFstSrc = rOld.nFltLngthFstSrc;
    rNew.nFltLngthSrcIntFix = rOld.nFltLngthSrcIntFix;
    rNew.nFltLngthSrcInt = rOld.nFltLngthSrcInt;
    rNew.nFltLngthResInt = rOld.nFltLngthResInt;
    rNew.dMaxAlphSrc = rOld.dMaxAlphSrc;
    rNew.dMaxAlphRes = rOld.dMaxAlphRes;
    rNew.dPosTskCooPN = rOld.dPosTskCooPN;
    rNew.dPosTskAmbPN = rOld.dPosTskAmbPN;
    rNew.dAmbTskCooPN = rOld.dAmbTskCooPN;
    rNew.dPosTskFltCooPN = rOld.dPosTskFltCooPN;
    rNew.dQuasStatPN = rOld.dQuasStatPN;
    rNew.dIonoPN = rOld.dIonoPN;
    rNew.dIonoIV = rOld.dIonoIV;
    rNew.bUseDopplerInPos = rOld.bUseDopplerInPos;
}

} // namespace

// ------------------------------------------------------------------ SZelDopLimit

bool SZelDopLimit::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelDopLimit::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelDopLimit& a, const SZelDopLimit& b)
{
    return a.ulType == b.ulType && AreCloseRel(a.fLimit, b.fLimit);
}

std::ostream& operator<<(std::ostream& os, const SZelDopLimit& rLimit)
{
    return ZelIo::WriteText(os, rLimit);
}

std::istream& operator>>(std::istream& is, SZelDopLimit& rLimit)
{
    return ZelIo::ReadText(is, rLimit);
}

// ------------------------------------------------------------------ SZelSatLimit

bool SZelSatLimit::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelSatLimit::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelSatLimit& a, const SZelSatLimit& b)
{
    return a.ulRate == b.ulRate && a.ulMaxSats == b.ulMaxSats;
}

std::ostream& operator<<(std::ostream& os, const SZelSatLimit& rLimit)
{
    return ZelIo::WriteText(os, rLimit);
}

std::istream& operator>>(std::istream& is, SZelSatLimit& rLimit)
{
    return ZelIo::ReadText(is, rLimit);
}

// ------------------------------------------------------------------ SZelPrePrcCfg

bool SZelPrePrcCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelPrePrcCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelPrePrcCfg& a, const SZelPrePrcCfg& b)
{
    return a.ulSmoothInterval == b.ulSmoothInterval && a.bIfCycleSlipDetect == b.bIfCycleSlipDetect;
}

std::ostream& operator<<(std::ostream& os, const SZelPrePrcCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelPrePrcCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelGenCfg

bool SZelGenCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelGenCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelGenCfg& a, const SZelGenCfg& b)
{
    return a.stDopLimitKin == b.stDopLimitKin && a.stDopLimit == b.stDopLimit &&
           a.stSatLimit == b.stSatLimit && a.bL1Only == b.bL1Only && a.unFrqsToUse == b.unFrqsToUse &&
           a.bStatic == b.bStatic && a.bLevelPhase == b.bLevelPhase && a.stPrePrcCfg == b.stPrePrcCfg &&
           AreCloseRel(a.dMinElev, b.dMinElev) && a.ulPosRate == b.ulPosRate &&
           a.ucGnssPveUsage == b.ucGnssPveUsage && a.ulMode == b.ulMode && a.bEnableSsr == b.bEnableSsr &&
           a.ucGnssToUse == b.ucGnssToUse;
}

std::ostream& operator<<(std::ostream& os, const SZelGenCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelGenCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelDiffCfg

bool SZelDiffCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelDiffCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelDiffCfg& a, const SZelDiffCfg& b)
{
    return a.lPredMode == b.lPredMode && AreCloseRel(a.dMaxBaseline, b.dMaxBaseline) &&
           a.lDelimiter == b.lDelimiter && a.bImproveIono == b.bImproveIono;
}

std::ostream& operator<<(std::ostream& os, const SZelDiffCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelDiffCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelRtkCfg

bool SZelRtkCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelRtkCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelRtkCfg& a, const SZelRtkCfg& b)
{
    return EqualRtk(a, b) && AreCloseRel(a.dAPrioriPosPredVarPosScaling, b.dAPrioriPosPredVarPosScaling) &&
           AreCloseRel(a.dAPrioriPosPredVarVelScaling, b.dAPrioriPosPredVarVelScaling) &&
           AreCloseRel(a.dAPrioriPosPredProcNoisePerSec, b.dAPrioriPosPredProcNoisePerSec) &&
           EqualRtkTail(a, b);
}

std::ostream& operator<<(std::ostream& os, const SZelRtkCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelRtkCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelRtkCfgV1

bool SZelRtkCfgV1::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelRtkCfgV1::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelRtkCfgV1& a, const SZelRtkCfgV1& b)
{
    return EqualRtk(a, b) && EqualRtkTail(a, b);
}

std::ostream& operator<<(std::ostream& os, const SZelRtkCfgV1& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelRtkCfgV1& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelProcCfg

bool SZelProcCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelProcCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelProcCfg& a, const SZelProcCfg& b)
{
    return a.stGenCfg == b.stGenCfg && a.stDiffCfg == b.stDiffCfg && a.stRtkCfg == b.stRtkCfg;
}

std::ostream& operator<<(std::ostream& os, const SZelProcCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelProcCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelProcCfgV1

bool SZelProcCfgV1::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelProcCfgV1::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelProcCfgV1& a, const SZelProcCfgV1& b)
{
    return a.stGenCfg == b.stGenCfg && a.stDiffCfg == b.stDiffCfg && a.stRtkCfg == b.stRtkCfg;
}

std::ostream& operator<<(std::ostream& os, const SZelProcCfgV1& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelProcCfgV1& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelMacCfg

bool SZelMacCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelMacCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelMacCfg& a, const SZelMacCfg& b)
{
    return AreCloseRel(a.dMaxAge, b.dMaxAge) && a.bPolygonCheck == b.bPolygonCheck &&
           AreCloseRel(a.dMaxDistance, b.dMaxDistance) && AreCloseRel(a.dBufferWidth, b.dBufferWidth);
}

std::ostream& operator<<(std::ostream& os, const SZelMacCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelMacCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelRefCfg

bool SZelRefCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelRefCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelRefCfg& a, const SZelRefCfg& b)
{
    return a.bRefAvailable == b.bRefAvailable && a.lNetType == b.lNetType && a.bAmbSource == b.bAmbSource &&
           a.lSystemFix == b.lSystemFix && a.bNewAR == b.bNewAR && a.stMacCfg == b.stMacCfg;
}

std::ostream& operator<<(std::ostream& os, const SZelRefCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelRefCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ EZelNetMode

const char* ToNetModeWord(EZelNetMode eNetMode)
{
    return ZelIo::EnumWord(eNetMode, c_aszNetModeWords, c_ulNbNetModeWords, "Invalid");
}

EZelNetMode ReadNetModeWord(std::istream& is)
{
    return static_cast<EZelNetMode>(
        ZelIo::ReadEnumWord(is, c_aszNetModeWords, c_ulNbNetModeWords, ZELNETMODE_INVALID));
}

// ------------------------------------------------------------------ SZelNetCfg

bool SZelNetCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelNetCfg& a, const SZelNetCfg& b)
{
    return a.eNetType == b.eNetType && a.eNetMode == b.eNetMode && a.lRequestFlags == b.lRequestFlags &&
           a.bCreatePredCoeff == b.bCreatePredCoeff && a.lMinGps == b.lMinGps && a.lMinGlo == b.lMinGlo &&
           a.lMinOther == b.lMinOther && a.bCodeCorr == b.bCodeCorr &&
           a.bImmediateDropback == b.bImmediateDropback &&
           a.bImmediateDistDropback == b.bImmediateDistDropback && a.bDropbackSB == b.bDropbackSB &&
           a.bDropbackClSB == b.bDropbackClSB && AreCloseRel(a.dMinDistMaster, b.dMinDistMaster) &&
           AreCloseRel(a.dSatAvailTimeout, b.dSatAvailTimeout) &&
           a.bFallforwardToNet == b.bFallforwardToNet && a.bImmediateFallforward == b.bImmediateFallforward &&
           a.stMacCfg == b.stMacCfg;
}

std::ostream& operator<<(std::ostream& os, const SZelNetCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelNetCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelStationCfg

bool SZelStationCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelStationCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelStationCfg& a, const SZelStationCfg& b)
{
    return a.lMode == b.lMode && a.lTimeOutMs == b.lTimeOutMs && a.stStationCoords == b.stStationCoords;
}

std::ostream& operator<<(std::ostream& os, const SZelStationCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelStationCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelRecAntCfg

bool SZelRecAntCfg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelRecAntCfg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelRecAntCfg& a, const SZelRecAntCfg& b)
{
    return a.ulRtHandle == b.ulRtHandle && a.lRecType == b.lRecType && a.stAntInfo == b.stAntInfo;
}

std::ostream& operator<<(std::ostream& os, const SZelRecAntCfg& rCfg)
{
    return ZelIo::WriteText(os, rCfg);
}

std::istream& operator>>(std::istream& is, SZelRecAntCfg& rCfg)
{
    return ZelIo::ReadText(is, rCfg);
}

// ------------------------------------------------------------------ SZelRtHandle

bool SZelRtHandle::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelRtHandle::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelRtHandle& a, const SZelRtHandle& b)
{
    return a.ulRtHandle == b.ulRtHandle;
}

// ------------------------------------------------------------------ SZelRtHandleBias

bool SZelRtHandleBias::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelRtHandleBias::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelRtHandleBias& a, const SZelRtHandleBias& b)
{
    return a.ulRtHandle == b.ulRtHandle && a.ulIncluded == b.ulIncluded && a.bApply == b.bApply &&
           a.dL1CA == b.dL1CA && a.dL1P == b.dL1P && a.dL2C == b.dL2C && a.dL2P == b.dL2P;
}

std::ostream& operator<<(std::ostream& os, const SZelRtHandleBias& rBias)
{
    return ZelIo::WriteText(os, rBias);
}

std::istream& operator>>(std::istream& is, SZelRtHandleBias& rBias)
{
    return ZelIo::ReadText(is, rBias);
}

// ------------------------------------------------------------------ SZelRtHandleCoords

bool SZelRtHandleCoords::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelRtHandleCoords::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelRtHandleCoords& a, const SZelRtHandleCoords& b)
{
    return a.ulRtHandle == b.ulRtHandle && a.adCoords[0] == b.adCoords[0] && a.adCoords[1] == b.adCoords[1] &&
           a.adCoords[2] == b.adCoords[2] && a.bNonPhysical == b.bNonPhysical && a.bValid == b.bValid;
}

std::ostream& operator<<(std::ostream& os, const SZelRtHandleCoords& rCoords)
{
    return ZelIo::WriteText(os, rCoords);
}

std::istream& operator>>(std::istream& is, SZelRtHandleCoords& rCoords)
{
    return ZelIo::ReadText(is, rCoords);
}

// ------------------------------------------------------------------ upgrade

void UpgradeProcCfg(const SZelProcCfgV1& rstOld, SZelProcCfg& rstNew)
{
    rstNew.stGenCfg = rstOld.stGenCfg;
    rstNew.stDiffCfg = rstOld.stDiffCfg;
    CopyRtkShared(rstOld.stRtkCfg, rstNew.stRtkCfg);
    rstNew.stRtkCfg.dAPrioriPosPredVarPosScaling = 1.0;
    rstNew.stRtkCfg.dAPrioriPosPredVarVelScaling = 1.0;
    rstNew.stRtkCfg.dAPrioriPosPredProcNoisePerSec = 0.0;
}

} // namespace ZELN
