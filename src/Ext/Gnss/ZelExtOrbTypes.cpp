#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>

#include <cstring>

namespace ZELN
{

bool ZELX_ORBIT_SAT_TABLE::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool ZELX_ORBIT_SAT_TABLE::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const ZELX_ORBIT_SAT_TABLE& a, const ZELX_ORBIT_SAT_TABLE& b)
{
    return std::memcmp(a.acTable, b.acTable, sizeof(a.acTable)) == 0;
}

std::ostream& operator<<(std::ostream& os, const ZELX_ORBIT_SAT_TABLE& rTable)
{
    return ZelIo::WriteText(os, rTable);
}

std::istream& operator>>(std::istream& is, ZELX_ORBIT_SAT_TABLE& rTable)
{
    return ZelIo::ReadText(is, rTable);
}

bool ZELX_ORBIT_FRAME_TRANSFORM::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool ZELX_ORBIT_FRAME_TRANSFORM::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const ZELX_ORBIT_FRAME_TRANSFORM& a, const ZELX_ORBIT_FRAME_TRANSFORM& b)
{
    return std::memcmp(a.adTrans, b.adTrans, sizeof(a.adTrans)) == 0 &&
           std::memcmp(a.adUpper, b.adUpper, sizeof(a.adUpper)) == 0;
}

std::ostream& operator<<(std::ostream& os, const ZELX_ORBIT_FRAME_TRANSFORM& rTransform)
{
    return ZelIo::WriteText(os, rTransform);
}

std::istream& operator>>(std::istream& is, ZELX_ORBIT_FRAME_TRANSFORM& rTransform)
{
    return ZelIo::ReadText(is, rTransform);
}

} // namespace ZELN
