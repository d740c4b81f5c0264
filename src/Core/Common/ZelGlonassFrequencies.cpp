#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstring>

namespace ZELN
{

bool ZelGlonassFrequencies::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                     uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool ZelGlonassFrequencies::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                     uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const ZelGlonassFrequencies& a, const ZelGlonassFrequencies& b)
{
    return std::memcmp(a.acChannels, b.acChannels, sizeof(a.acChannels)) == 0;
}

std::ostream& operator<<(std::ostream& os, const ZelGlonassFrequencies& rstFrequencies)
{
    return ZelIo::WriteText(os, rstFrequencies);
}

std::istream& operator>>(std::istream& is, ZelGlonassFrequencies& rstFrequencies)
{
    return ZelIo::ReadText(is, rstFrequencies);
}

} // namespace ZELN
