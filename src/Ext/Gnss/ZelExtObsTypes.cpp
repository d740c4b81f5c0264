#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTimeBlockIO.h>

namespace ZELN
{

// ---------------------------------------------------------------------------
// SZelObsInfo
// ---------------------------------------------------------------------------

void SZelObsInfo::Reset()
{
    stStaticSince.ResetAt(MJDACC_NANOSECOND);
    ucTimeStatus = 0;
    unObsFlags = 0;
    ucDataFlags = 0;
    ucStationType = 0;
    ulStationId = 0;
}

// Time block at 0, status at 24, flags at 26, data flags at 28, station
// type at 29, station id at 32; reserved bytes written as zero.
bool SZelObsInfo::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        return false;
    }
    ZelIo::WriteTimeBlock(stOut, stStaticSince);
    stOut.Raw(ucTimeStatus);
    stOut.Fill(1);
    stOut.Raw(unObsFlags);
    stOut.Raw(ucDataFlags);
    stOut.Raw(ucStationType);
    stOut.Fill(2);
    stOut.Raw(ulStationId);
    stOut.Fill(4);
    return stOut.End(getSize());
}

bool SZelObsInfo::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    ZelIo::ReadTimeBlock(stIn, stStaticSince);
    stIn.Raw(ucTimeStatus);
    stIn.Skip(1);
    stIn.Raw(unObsFlags);
    stIn.Raw(ucDataFlags);
    stIn.Raw(ucStationType);
    stIn.Skip(2);
    stIn.Raw(ulStationId);
    stIn.Skip(4);
    return stIn.End(getSize());
}

bool SZelObsInfo::operator==(const SZelObsInfo& rhs) const
{
    return stStaticSince == rhs.stStaticSince && ucTimeStatus == rhs.ucTimeStatus &&
           unObsFlags == rhs.unObsFlags && ucDataFlags == rhs.ucDataFlags &&
           ucStationType == rhs.ucStationType && ulStationId == rhs.ulStationId;
}

std::ostream& operator<<(std::ostream& os, const SZelObsInfo& rstObsInfo)
{
    os << "StatSince, ";
    rstObsInfo.stStaticSince.WriteText(os, MJDTXT_GPS_SECONDS);
    return os << ", TimeStatus, " << ZelIo::Num(rstObsInfo.ucTimeStatus) << ", ObsFlgs, "
              << rstObsInfo.unObsFlags << ", DataFlgs, " << ZelIo::Num(rstObsInfo.ucDataFlags) << ", StnTyp, "
              << ZelIo::Num(rstObsInfo.ucStationType) << ", StnId, " << rstObsInfo.ulStationId;
}

// A week from 5966 on or seconds of week out of range give day 0, 0 ms at
// nanosecond accuracy, without a report (the time's own reader).
std::istream& operator>>(std::istream& is, SZelObsInfo& rstObsInfo)
{
    ZelIo::SkipTag(is);
    rstObsInfo.stStaticSince.ReadText(is, MJDTXT_GPS_SECONDS);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstObsInfo.ucTimeStatus);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstObsInfo.unObsFlags);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstObsInfo.ucDataFlags);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstObsInfo.ucStationType);
    ZelIo::SkipSeparator(is);
    return is >> rstObsInfo.ulStationId;
}

// ---------------------------------------------------------------------------
// ZelExtObsEpoch
// ---------------------------------------------------------------------------

bool ZelExtObsEpoch::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        return false;
    }
    // The length field has 32 bits.
    const uint64_t ulEpochSize = stObsEpoch.getSize();
    if (ulEpochSize >= 0xFFFFFFFFu)
    {
        ZEL_ASSERT(false);
        return false;
    }
    stOut.Raw(static_cast<uint32_t>(ulEpochSize));
    if (!stOut.Record(stObsEpoch) || !stOut.Record(stObsInfo))
    {
        return false;
    }
    return stOut.End(getSize());
}

bool ZelExtObsEpoch::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    // Against the present content first; then the stored length decides.
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    uint32_t ulEpochSize = 0;
    stIn.Raw(ulEpochSize);
    if (static_cast<uint64_t>(ulEpochSize) + c_ulEXTOBSEPOCH_EXTRA_SIZE > uiBufferLength)
    {
        ZEL_ASSERT(false);
        return false;
    }
    // The epoch reads within its stored length; an epoch image shorter or
    // longer than that length is a failed nested record.
    uint64_t ulEpochUsed = 0;
    if (!stObsEpoch.loadData(stIn.Here(), ulEpochSize, &ulEpochUsed) || ulEpochUsed != ulEpochSize)
    {
        ZEL_ASSERT(false);
        return false;
    }
    stIn.Skip(ulEpochSize);
    if (!stIn.Record(stObsInfo, true))
    {
        return false;
    }
    return stIn.End(getSize());
}

std::ostream& operator<<(std::ostream& os, const ZelExtObsEpoch& rstExtEpoch)
{
    return os << rstExtEpoch.stObsEpoch << ", ObsInfo, " << rstExtEpoch.stObsInfo;
}

std::istream& operator>>(std::istream& is, ZelExtObsEpoch& rstExtEpoch)
{
    is >> rstExtEpoch.stObsEpoch;
    ZelIo::SkipSeparator(is);
    return is >> rstExtEpoch.stObsInfo;
}

} // namespace ZELN
