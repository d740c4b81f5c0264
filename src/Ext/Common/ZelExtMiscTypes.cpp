#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

namespace ZELN
{

// ------------------------------------------------------------------ SZelMasterCoordinate

bool SZelMasterCoordinate::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelMasterCoordinate::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b)
{
    return a.stMstCoo == b.stMstCoo && a.eCooSys == b.eCooSys && a.usStnId == b.usStnId;
}

std::ostream& operator<<(std::ostream& os, const SZelMasterCoordinate& rMaster)
{
    return ZelIo::WriteText(os, rMaster);
}

std::istream& operator>>(std::istream& is, SZelMasterCoordinate& rMaster)
{
    return ZelIo::ReadText(is, rMaster);
}

// ------------------------------------------------------------------ SZelHorizontalOffset

bool SZelHorizontalOffset::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelHorizontalOffset::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b)
{
    return AreCloseRel(a.fHrzOffsE, b.fHrzOffsE) && AreCloseRel(a.fHrzOffsN, b.fHrzOffsN);
}

std::ostream& operator<<(std::ostream& os, const SZelHorizontalOffset& rOffset)
{
    return ZelIo::WriteText(os, rOffset);
}

std::istream& operator>>(std::istream& is, SZelHorizontalOffset& rOffset)
{
    return ZelIo::ReadText(is, rOffset);
}

} // namespace ZELN
