#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstring>

namespace ZELN
{

ZelGlonassFrequencies::ZelGlonassFrequencies()
{
    for (int8_t& rcChannel : acChannels)
    {
        rcChannel = c_cGLONASS_CHANNEL_UNKNOWN;
    }
}

namespace
{
// The fields of the image, in order, for both directions.
const auto VisitChannelFields = [](auto& io, auto& r)
{
    io.Raw(r.acChannels);
    return true;
};
} // namespace

bool ZelGlonassFrequencies::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                     uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset, VisitChannelFields);
}

bool ZelGlonassFrequencies::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                     uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset, VisitChannelFields);
}

bool operator==(const ZelGlonassFrequencies& a, const ZelGlonassFrequencies& b)
{
    return std::memcmp(a.acChannels, b.acChannels, sizeof(a.acChannels)) == 0;
}

std::ostream& operator<<(std::ostream& os, const ZelGlonassFrequencies& rstFrequencies)
{
    os << "Channels";
    for (const int8_t cChannel : rstFrequencies.acChannels)
    {
        os << ", " << static_cast<int>(cChannel);
    }
    return os;
}

std::istream& operator>>(std::istream& is, ZelGlonassFrequencies& rstFrequencies)
{
    ZelIo::SkipTag(is);
    for (unsigned int uiIdx = 0; uiIdx < ZEL_DEF_MAXSATID_GLONASS; ++uiIdx)
    {
        if (uiIdx != 0)
        {
            ZelIo::SkipComma(is);
        }
        ZelIo::ReadAs<int>(is, rstFrequencies.acChannels[uiIdx]);
    }
    return is;
}

} // namespace ZELN
