#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <algorithm>
#include <cmath>

namespace ZELN
{

// ------------------------------------------------------------------ SZelMasterCoordinate

bool SZelMasterCoordinate::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.Begin(getSize()))
    {
        return false;
    }
    stOut.RawAs<int32_t>(eCooSys);
    stOut.Raw(usStnId);
    stOut.Raw(usReserved);
    if (!stOut.Record(stMstCoo))
    {
        return false;
    }
    return stOut.End(getSize());
}

bool SZelMasterCoordinate::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.Begin(getSize()))
    {
        return false;
    }
    stIn.RawAs<int32_t>(eCooSys);
    stIn.Raw(usStnId);
    stIn.Raw(usReserved);
    if (!stIn.Record(stMstCoo))
    {
        return false;
    }
    return stIn.End(getSize());
}

bool operator==(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b)
{
    return a.stMstCoo == b.stMstCoo && a.eCooSys == b.eCooSys && a.usStnId == b.usStnId;
}

bool operator!=(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b)
{
    return !(a == b);
}

std::ostream& operator<<(std::ostream& os, const SZelMasterCoordinate& rMaster)
{
    return os << ", CooSys, " << ToCoordinateSystemWord(rMaster.eCooSys) << ", StnId, " << rMaster.usStnId
              << ", MstCoo, " << rMaster.stMstCoo;
}

// The word swallows its comma; the char read after it takes the first
// letter of the next tag.
std::istream& operator>>(std::istream& is, SZelMasterCoordinate& rMaster)
{
    ZelIo::SkipSeparator(is);
    rMaster.eCooSys = ReadCoordinateSystemWord(is);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rMaster.usStnId);
    ZelIo::SkipSeparator(is);
    return is >> rMaster.stMstCoo;
}

// ------------------------------------------------------------------ SZelHorizontalOffset

namespace
{

bool AreCloseRelF(float a, float b)
{
    return a == b || std::fabs(a - b) <= 1e-6f * std::max(std::fabs(a), std::fabs(b));
}

} // namespace

bool SZelHorizontalOffset::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        return false;
    }
    stOut.Raw(fHrzOffsE);
    stOut.Raw(fHrzOffsN);
    return stOut.End(getSize());
}

bool SZelHorizontalOffset::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    stIn.Raw(fHrzOffsE);
    stIn.Raw(fHrzOffsN);
    return stIn.End(getSize());
}

bool operator==(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b)
{
    return AreCloseRelF(a.fHrzOffsE, b.fHrzOffsE) && AreCloseRelF(a.fHrzOffsN, b.fHrzOffsN);
}

bool operator!=(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b)
{
    return !(a == b);
}

std::ostream& operator<<(std::ostream& os, const SZelHorizontalOffset& rOffset)
{
    return os << "HrzOffsE, " << rOffset.fHrzOffsE << ", HrzOffsN, " << rOffset.fHrzOffsN;
}

std::istream& operator>>(std::istream& is, SZelHorizontalOffset& rOffset)
{
    ZelIo::SkipTag(is);
    is >> rOffset.fHrzOffsE;
    ZelIo::SkipSeparator(is);
    return is >> rOffset.fHrzOffsN;
}

} // namespace ZELN
