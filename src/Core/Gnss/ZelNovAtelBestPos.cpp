#include <ZelTypes/Core/Common/ZelNovAtelBestPos.h>

#include <ZelTypes/Core/Common/ZelRecordIO.h>

namespace ZELN
{

bool SZelNovAtelBestPos::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNovAtelBestPos::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelNovAtelBestPos& a, const SZelNovAtelBestPos& b)
{
    for (size_t ulIdx = 0; ulIdx < c_ulBESTPOS_NB_SYSTEMS; ++ulIdx)
    {
        if (!(a.astSatAvail[ulIdx] == b.astSatAvail[ulIdx]))
        {
            return false;
        }
    }
    return a.stTime == b.stTime && a.ulType == b.ulType && a.stCoordSet == b.stCoordSet &&
           a.stCoordQuality == b.stCoordQuality && a.stStaticSince == b.stStaticSince &&
           a.bStatic == b.bStatic && a.dAge == b.dAge && a.stVelTime == b.stVelTime &&
           a.dLatency == b.dLatency && a.dVelAge == b.dVelAge && a.stVelSet == b.stVelSet &&
           a.stDopTime == b.stDopTime && a.stDop == b.stDop;
}

std::ostream& operator<<(std::ostream& os, const SZelNovAtelBestPos& rBestPos)
{
    return ZelIo::WriteText(os, rBestPos);
}

std::istream& operator>>(std::istream& is, SZelNovAtelBestPos& rBestPos)
{
    return ZelIo::ReadText(is, rBestPos);
}

} // namespace ZELN
