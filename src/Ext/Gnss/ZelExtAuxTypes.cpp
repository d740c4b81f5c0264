#include <ZelTypes/Ext/Gnss/ZelExtAuxTypes.h>

#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cmath>

namespace ZELN
{

// ------------------------------------------------------------------ comparison

namespace
{
bool SameHead(const SZelNetSatEntry& a, const SZelNetSatEntry& b)
{
    return a.ucSatNumber == b.ucSatNumber && a.eSatSystem == b.eSatSystem && a.ucAmbFlag == b.ucAmbFlag &&
           a.ucNonSyncCnt == b.ucNonSyncCnt;
}

// Apart by less than the residual tolerance; a NaN is never close.
bool ResidualClose(double a, double b)
{
    return std::fabs(a - b) < c_dNET_RESIDUAL_TOLERANCE;
}
} // namespace

uint32_t SZelNetSatEntry::GetGlobalSatIndex() const
{
    switch (eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
        return ucSatNumber;
    case ZELSATSYSTEM_GLONASS:
        return ucSatNumber + 32u;
    default:
        ZEL_ASSERT(0);
        return 0;
    }
}

bool operator==(const SZelNetAuxStation& a, const SZelNetAuxStation& b)
{
    return a.unMsgNr == b.unMsgNr && a.ucNetId == b.ucNetId && a.ucSubNetId == b.ucSubNetId &&
           a.ucNumAux == b.ucNumAux && a.unMasterId == b.unMasterId && a.unAuxId == b.unAuxId &&
           a.lDeltaLat == b.lDeltaLat && a.lDeltaLon == b.lDeltaLon && a.lDeltaHgt == b.lDeltaHgt;
}

bool operator==(const SZelNetMsgHeader& a, const SZelNetMsgHeader& b)
{
    return a.unMsgNr == b.unMsgNr && a.ucNetId == b.ucNetId && a.ucSubNetId == b.ucSubNetId &&
           a.ulTime == b.ulTime && a.ucMMI == b.ucMMI && a.unMasterId == b.unMasterId &&
           a.unAuxId == b.unAuxId && a.ucNumSats == b.ucNumSats && a.ucClkBiasInd == b.ucClkBiasInd &&
           a.cGloL1PCDiffOff == b.cGloL1PCDiffOff && a.cGloL1L2PCDiffOff == b.cGloL1L2PCDiffOff;
}

bool operator==(const SZelNetSatEntry& a, const SZelNetSatEntry& b)
{
    return SameHead(a, b);
}

bool operator==(const SZelNetIonoEntry& a, const SZelNetIonoEntry& b)
{
    return SameHead(a, b) && a.lCorrDiff == b.lCorrDiff;
}

bool operator==(const SZelNetGeoEntry& a, const SZelNetGeoEntry& b)
{
    return SameHead(a, b) && a.lCorrDiff == b.lCorrDiff && a.ucIODE == b.ucIODE;
}

bool operator==(const SZelNetCombEntry& a, const SZelNetCombEntry& b)
{
    return SameHead(a, b) && a.lGeoCorrDiff == b.lGeoCorrDiff && a.lIonoCorrDiff == b.lIonoCorrDiff &&
           a.ucIODE == b.ucIODE;
}

bool operator==(const SZelNetGeoMsg& a, const SZelNetGeoMsg& b)
{
    return a.stHeader == b.stHeader && a.eSatSystem == b.eSatSystem &&
           ZelNetIo::ArraysEqual(a.astEntries, b.astEntries);
}

bool operator==(const SZelNetIonoMsg& a, const SZelNetIonoMsg& b)
{
    return a.stHeader == b.stHeader && a.eSatSystem == b.eSatSystem &&
           ZelNetIo::ArraysEqual(a.astEntries, b.astEntries);
}

bool operator==(const SZelNetCombMsg& a, const SZelNetCombMsg& b)
{
    return a.stHeader == b.stHeader && ZelNetIo::ArraysEqual(a.astEntries, b.astEntries);
}

bool operator==(const MsgGNSS17T& a, const MsgGNSS17T& b)
{
    return ZelNetIo::ArraysEqual(a.astCombMsgs, b.astCombMsgs) && a.ucFilled == b.ucFilled;
}

bool operator==(const SZelNetCombEntryD& a, const SZelNetCombEntryD& b)
{
    return SameHead(a, b) && a.dGeoCorrDiff == b.dGeoCorrDiff && a.ucIODE == b.ucIODE &&
           a.dIonoCorrDiff == b.dIonoCorrDiff;
}

bool operator==(const SZelNetCombMsgD& a, const SZelNetCombMsgD& b)
{
    return ZelNetIo::ArraysEqual(a.astEntries, b.astEntries);
}

bool operator==(const SZelNetCorrPair& a, const SZelNetCorrPair& b)
{
    return a.stIonoMsg == b.stIonoMsg && a.stGeoMsg == b.stGeoMsg && a.stSatId == b.stSatId &&
           a.ulPairFlags == b.ulPairFlags;
}

bool operator==(const SZelNetGridEntry& a, const SZelNetGridEntry& b)
{
    return a.stSatId == b.stSatId && a.ulIOD == b.ulIOD && a.nIonoN == b.nIonoN && a.nIonoE == b.nIonoE &&
           a.nGeoN == b.nGeoN && a.nGeoE == b.nGeoE;
}

bool operator==(const SZelNetGridMsg& a, const SZelNetGridMsg& b)
{
    return ZelNetIo::ArraysEqual(a.astEntries, b.astEntries) && a.unNetFlags == b.unNetFlags &&
           a.ulType == b.ulType && a.stTime == b.stTime && a.stCoords == b.stCoords &&
           a.ulNumSats == b.ulNumSats;
}

bool operator==(const SZelNetGridSysMsg& a, const SZelNetGridSysMsg& b)
{
    return a.eSatSystem == b.eSatSystem && a.stMsg == b.stMsg;
}

bool operator==(const SZelNetResidualEntry& a, const SZelNetResidualEntry& b)
{
    return a.stSatId == b.stSatId && ResidualClose(a.dSoc, b.dSoc) && ResidualClose(a.dSod, b.dSod) &&
           ResidualClose(a.dSoh, b.dSoh) && ResidualClose(a.dSic, b.dSic) && ResidualClose(a.dSid, b.dSid);
}

bool operator==(const SZelNetResidualMsg& a, const SZelNetResidualMsg& b)
{
    return a.ulRefStationId == b.ulRefStationId && a.stTime == b.stTime && a.vecEntries == b.vecEntries;
}

// ------------------------------------------------------------------ MsgGNSS17T

MsgGNSS17T::~MsgGNSS17T() = default;

bool MsgGNSS17T::SplitCombMsg(const SZelNetCombMsg& rstComb, SZelNetIonoMsg& rstIono, SZelNetGeoMsg& rstGeo)
{
    rstIono.stHeader = rstComb.stHeader;
    rstGeo.stHeader = rstComb.stHeader;
    for (uint32_t ulIdx = 0; ulIdx < c_ulNET_MAX_SATS; ++ulIdx)
    {
        const SZelNetCombEntry& rComb = rstComb.astEntries[ulIdx];
        SZelNetIonoEntry& rIono = rstIono.astEntries[ulIdx];
        SZelNetGeoEntry& rGeo = rstGeo.astEntries[ulIdx];
        static_cast<SZelNetSatEntry&>(rIono) = rComb;
        static_cast<SZelNetSatEntry&>(rGeo) = rComb;
        rIono.lCorrDiff = rComb.lIonoCorrDiff;
        rGeo.lCorrDiff = rComb.lGeoCorrDiff;
        rGeo.ucIODE = rComb.ucIODE;
    }
    return true;
}

// ------------------------------------------------------------------ SZelNetAuxStation

bool SZelNetAuxStation::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetAuxStation::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetAuxStation& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetAuxStation& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetMsgHeader

bool SZelNetMsgHeader::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetMsgHeader::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetMsgHeader& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetMsgHeader& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetSatEntry

bool SZelNetSatEntry::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetSatEntry::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetSatEntry& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetSatEntry& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetIonoEntry

bool SZelNetIonoEntry::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetIonoEntry::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetIonoEntry& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetIonoEntry& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetGeoEntry

bool SZelNetGeoEntry::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetGeoEntry::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetGeoEntry& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetGeoEntry& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetCombEntry

bool SZelNetCombEntry::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetCombEntry::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetCombEntry& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetCombEntry& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetGeoMsg

bool SZelNetGeoMsg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetGeoMsg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetGeoMsg& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetGeoMsg& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetIonoMsg

bool SZelNetIonoMsg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetIonoMsg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetIonoMsg& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetIonoMsg& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetCombMsg

bool SZelNetCombMsg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetCombMsg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetCombMsg& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetCombMsg& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ MsgGNSS17T

bool MsgGNSS17T::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool MsgGNSS17T::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const MsgGNSS17T& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, MsgGNSS17T& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetCombEntryD

bool SZelNetCombEntryD::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetCombEntryD::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetCombEntryD& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetCombEntryD& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetCombMsgD

bool SZelNetCombMsgD::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetCombMsgD::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetCombMsgD& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetCombMsgD& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetCorrPair

bool SZelNetCorrPair::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetCorrPair::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetCorrPair& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetCorrPair& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetGridEntry

bool SZelNetGridEntry::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetGridEntry::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetGridEntry& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetGridEntry& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetGridMsg

bool SZelNetGridMsg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetGridMsg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetGridMsg& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetGridMsg& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetGridSysMsg

bool SZelNetGridSysMsg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetGridSysMsg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetGridSysMsg& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetGridSysMsg& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetResidualEntry

bool SZelNetResidualEntry::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetResidualEntry::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetResidualEntry& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetResidualEntry& r)
{
    return ZelIo::ReadText(is, r);
}

// ------------------------------------------------------------------ SZelNetResidualMsg

// The count is cleared after the bounds test: the record has a sequence.
bool SZelNetResidualMsg::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNetResidualMsg::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

std::ostream& operator<<(std::ostream& os, const SZelNetResidualMsg& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, SZelNetResidualMsg& r)
{
    return ZelIo::ReadText(is, r);
}
} // namespace ZELN
