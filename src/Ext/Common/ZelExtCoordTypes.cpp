#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>

#include <algorithm>
#include <cmath>
#include <iomanip>

namespace ZELN
{

namespace
{

bool AreCloseRel(double a, double b)
{
    return a == b || std::max(std::fabs(a), std::fabs(b)) * 1e-14 >= std::fabs(a - b);
}

} // namespace

namespace
{
// The fields of the image, in order, for both directions.
const auto VisitVectorFields = [](auto& io, auto& r)
{
    io.Raw(r.dX);
    io.Raw(r.dY);
    io.Raw(r.dZ);
    return true;
};
} // namespace

bool SZelVector3d::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset, VisitVectorFields);
}

bool SZelVector3d::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset, VisitVectorFields);
}

bool operator==(const SZelVector3d& a, const SZelVector3d& b)
{
    return AreCloseRel(a.dX, b.dX) && AreCloseRel(a.dY, b.dY) && AreCloseRel(a.dZ, b.dZ);
}

bool operator!=(const SZelVector3d& a, const SZelVector3d& b)
{
    return !(a == b);
}

std::ostream& operator<<(std::ostream& os, const SZelVector3d& rVector)
{
    return os << std::setprecision(12) << rVector.dX << ", " << rVector.dY << ", " << rVector.dZ;
}

std::istream& operator>>(std::istream& is, SZelVector3d& rVector)
{
    is >> rVector.dX;
    ZelIo::SkipComma(is);
    is >> rVector.dY;
    ZelIo::SkipComma(is);
    return is >> rVector.dZ;
}

} // namespace ZELN
