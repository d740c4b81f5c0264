#include <ZelTypes/Ext/Gnss/ZelExtEphStates.h>

#include <cmath>

namespace ZELN
{

namespace
{

// Heads of the two sequence records: what a reader needs before the first element.
constexpr uint64_t c_ulEPOCH_HEAD_SIZE = 24;
constexpr uint64_t c_ulTABLE_HEAD_SIZE = 12;

// The writer of a record with a sequence: the whole image must fit; after
// it the running position is compared with the size, a report only.
template <class R> bool SaveState(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength)
{
    const uint64_t ulSize = rRecord.getSize();
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, ulSize))
    {
        return false;
    }
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, nullptr);
    if (!R::VisitFields(stOut, rRecord))
    {
        return false;
    }
    ZEL_ASSERT_TEXT(stOut.Offset() == ulSize, "ulPos == getSize(data)");
    return true;
}

// The reader: the head must fit, each element tests its own image; the
// elements read so far stay when one fails.
template <class R>
bool LoadState(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t ulHead)
{
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, ulHead))
    {
        return false;
    }
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, nullptr);
    if (!R::VisitFields(stIn, rRecord))
    {
        return false;
    }
    ZEL_ASSERT_TEXT(stIn.Offset() == rRecord.getSize(), "ulPos == getSize(data)");
    return true;
}

} // namespace

bool ZELX_SAT_STATE_ENTRY::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_STATE_ENTRY::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExt(*this, pBuffer, uiBufferLength);
}

bool operator==(const ZELX_SAT_STATE_ENTRY& a, const ZELX_SAT_STATE_ENTRY& b)
{
    if (a.ucSatellite != b.ucSatellite || a.ulContent != b.ulContent)
    {
        return false;
    }
    if ((a.ulContent & ZELX_SAT_STATE_ENTRY::c_ulCONTENT_POSITION) != 0 &&
        (!AreCloseRel(a.stPosition.dCoord1, b.stPosition.dCoord1) ||
         !AreCloseRel(a.stPosition.dCoord2, b.stPosition.dCoord2) ||
         !AreCloseRel(a.stPosition.dCoord3, b.stPosition.dCoord3)))
    {
        return false;
    }
    return (a.ulContent & ZELX_SAT_STATE_ENTRY::c_ulCONTENT_CLOCK) == 0 || AreCloseRel(a.dClock, b.dClock);
}

ZELX_SAT_STATE_EPOCH::ZELX_SAT_STATE_EPOCH(EZelSatSystem eSatSystem, const SMjdTime& rstTime)
    : stTime(rstTime),
      vecEntries(eSatSystem == ZELSATSYSTEM_NONE ? 0u : static_cast<size_t>(GetMaxSatNumber(eSatSystem)) + 1u)
{
}

bool ZELX_SAT_STATE_EPOCH::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return SaveState(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_STATE_EPOCH::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return LoadState(*this, pBuffer, uiBufferLength, c_ulEPOCH_HEAD_SIZE);
}

bool operator==(const ZELX_SAT_STATE_EPOCH& a, const ZELX_SAT_STATE_EPOCH& b)
{
    return std::fabs(SMjdTime::DiffAsMilliseconds(a.stTime, b.stTime)) < 1.0 && a.vecEntries == b.vecEntries;
}

ZELX_SAT_STATE_TABLE::ZELX_SAT_STATE_TABLE(uint32_t ulSatSystemValue, size_t ulNbEpochs)
    : ulSatSystem(ulSatSystemValue), vecEpochs(ulNbEpochs)
{
}

bool ZELX_SAT_STATE_TABLE::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return SaveState(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_STATE_TABLE::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return LoadState(*this, pBuffer, uiBufferLength, c_ulTABLE_HEAD_SIZE);
}

bool operator==(const ZELX_SAT_STATE_TABLE& a, const ZELX_SAT_STATE_TABLE& b)
{
    return a.vecEpochs == b.vecEpochs;
}

} // namespace ZELN
