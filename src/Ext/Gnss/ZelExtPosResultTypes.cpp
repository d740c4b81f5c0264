#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Gnss/ZelExtPosResultTypes.h>

namespace ZELN
{

// ------------------------------------------------------------------ SZelPosResultHeader

bool SZelPosResultHeader::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelPosResultHeader::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelPosResultHeader& a, const SZelPosResultHeader& b)
{
    return a.stTimeLastAmbFix == b.stTimeLastAmbFix && a.ullOccTimeMs == b.ullOccTimeMs &&
           a.ulAvlFlags == b.ulAvlFlags && a.ulPntFlags == b.ulPntFlags;
}

std::ostream& operator<<(std::ostream& os, const SZelPosResultHeader& rHeader)
{
    return ZelIo::WriteText(os, rHeader);
}

std::istream& operator>>(std::istream& is, SZelPosResultHeader& rHeader)
{
    return ZelIo::ReadText(is, rHeader);
}

// ------------------------------------------------------------------ SZelPosResultExt

bool SZelPosResultExt::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelPosResultExt::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

// stFirstStaticMarkEpoch is not compared.
bool operator==(const SZelPosResultExt& a, const SZelPosResultExt& b)
{
    return a.ulRecType == b.ulRecType && a.bStatic == b.bStatic && a.unLatency == b.unLatency &&
           a.ulStaticEpochs == b.ulStaticEpochs && a.ulRefHandle == b.ulRefHandle &&
           a.ucLinComb == b.ucLinComb && a.lPredTime == b.lPredTime;
}

std::ostream& operator<<(std::ostream& os, const SZelPosResultExt& rExt)
{
    return ZelIo::WriteText(os, rExt);
}

std::istream& operator>>(std::istream& is, SZelPosResultExt& rExt)
{
    return ZelIo::ReadText(is, rExt);
}

// ------------------------------------------------------------------ SZelPosResult

SMjdTime& SZelPosResult::GetTimeWithOccupation(SMjdTime& rstTime) const
{
    rstTime = stTime;
    if (stExt.bStatic != 0)
    {
        rstTime.AddMilliseconds(static_cast<double>(ullOccTimeMs));
    }
    return rstTime;
}

// ------------------------------------------------------------------ SZelPosResultMeta

SZelPosResultMeta::SZelPosResultMeta(const SZelPosResult& rstPosResult)
    : ulPosType(rstPosResult.ulPosType), stDop(rstPosResult.stDop), stExt(rstPosResult.stExt),
      stGnssAvl(rstPosResult.stGnssAvl), stNrtkInfo(rstPosResult.stNrtkInfo), fMoPos(rstPosResult.stPosQ.fMo),
      fMoUnscaledPos(rstPosResult.stPosQ.fMoUnscaled), fMoVel(rstPosResult.stVelQ.fMo),
      fMoUnscaledVel(rstPosResult.stVelQ.fMoUnscaled)
{
    stHeader.stTimeLastAmbFix = rstPosResult.stTimeLastAmbFix;
    stHeader.ullOccTimeMs = rstPosResult.ullOccTimeMs;
    stHeader.ulAvlFlags = rstPosResult.ulAvlFlags;
    stHeader.ulPntFlags = rstPosResult.ulPntFlags;
}

bool SZelPosResultMeta::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelPosResultMeta::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelPosResultMeta& a, const SZelPosResultMeta& b)
{
    return a.stHeader == b.stHeader && a.ulPosType == b.ulPosType && a.stDop == b.stDop &&
           a.stExt == b.stExt && a.stGnssAvl == b.stGnssAvl && a.stNrtkInfo == b.stNrtkInfo &&
           a.fMoPos == b.fMoPos && a.fMoUnscaledPos == b.fMoUnscaledPos && a.fMoVel == b.fMoVel &&
           a.fMoUnscaledVel == b.fMoUnscaledVel;
}

std::ostream& operator<<(std::ostream& os, const SZelPosResultMeta& rMeta)
{
    return ZelIo::WriteText(os, rMeta);
}

std::istream& operator>>(std::istream& is, SZelPosResultMeta& rMeta)
{
    return ZelIo::ReadText(is, rMeta);
}

// ------------------------------------------------------------------ ZelExtGnssPveObs

// No bounds test of the whole: the count starts at 0 and each part tests
// its own room, so that a short buffer fails in the part where it ends.
bool ZelExtGnssPveObs::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    uint64_t ulLocal = 0;
    uint64_t* pulCount = pulOffset != nullptr ? pulOffset : &ulLocal;
    *pulCount = 0;
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulCount);
    return VisitFields(stOut, *this) && stOut.End(getSize());
}

bool ZelExtGnssPveObs::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    uint64_t ulLocal = 0;
    uint64_t* pulCount = pulOffset != nullptr ? pulOffset : &ulLocal;
    *pulCount = 0;
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulCount);
    return VisitFields(stIn, *this) && stIn.End(getSize());
}

bool operator==(const ZelExtGnssPveObs& a, const ZelExtGnssPveObs& b)
{
    return a.stObs == b.stObs && a.stMetaData == b.stMetaData;
}

std::ostream& operator<<(std::ostream& os, const ZelExtGnssPveObs& rObs)
{
    return ZelIo::WriteText(os, rObs);
}

std::istream& operator>>(std::istream& is, ZelExtGnssPveObs& rObs)
{
    return ZelIo::ReadText(is, rObs);
}

} // namespace ZELN
