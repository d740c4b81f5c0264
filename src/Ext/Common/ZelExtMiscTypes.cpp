#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <algorithm>
#include <cmath>

namespace ZELN
{

// ------------------------------------------------------------------ SZelMasterCoordinate

namespace
{
// The fields of the image, in order, for both directions.
const auto VisitMasterFields = [](auto& io, auto& r)
{
    io.template RawAs<int32_t>(r.eCooSys);
    io.Raw(r.usStnId);
    io.Raw(r.usReserved);
    return io.Record(r.stMstCoo);
};
} // namespace

bool SZelMasterCoordinate::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset, VisitMasterFields);
}

bool SZelMasterCoordinate::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset, VisitMasterFields);
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

namespace
{
// The fields of the image, in order, for both directions.
const auto VisitOffsetFields = [](auto& io, auto& r)
{
    io.Raw(r.fHrzOffsE);
    io.Raw(r.fHrzOffsN);
    return true;
};
} // namespace

bool SZelHorizontalOffset::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset, VisitOffsetFields);
}

bool SZelHorizontalOffset::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset, VisitOffsetFields);
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
