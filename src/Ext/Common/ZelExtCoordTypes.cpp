#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>

namespace ZELN
{

bool SZelVector3d::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelVector3d::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelVector3d& a, const SZelVector3d& b)
{
    return AreCloseRel(a.dX, b.dX) && AreCloseRel(a.dY, b.dY) && AreCloseRel(a.dZ, b.dZ);
}

std::ostream& operator<<(std::ostream& os, const SZelVector3d& rVector)
{
    return ZelIo::WriteText(os, rVector);
}

std::istream& operator>>(std::istream& is, SZelVector3d& rVector)
{
    return ZelIo::ReadText(is, rVector);
}

} // namespace ZELN
