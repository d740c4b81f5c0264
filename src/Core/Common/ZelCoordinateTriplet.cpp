#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cmath>

namespace ZELN
{

namespace
{

// Smallest positive normal double: below it the scaling to unit length would
// overflow or lose the direction.
constexpr double c_dMinNorm = 2.2250738585072014e-308;

bool IsCartesian(const SZelCoordinateTriplet& rTriplet)
{
    return rTriplet.ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN;
}

} // namespace

const char* ToCoordinateSystemWord(EZelCoordinateSystem eSystem)
{
    return ZelIo::EnumWord(eSystem, c_aszCoordinateSystemWords, c_ulNbCoordinateSystemWords, "Invalid");
}

EZelCoordinateSystem ReadCoordinateSystemWord(std::istream& is)
{
    return static_cast<EZelCoordinateSystem>(ZelIo::ReadEnumWord(
        is, c_aszCoordinateSystemWords, c_ulNbCoordinateSystemWords, ZELCOORDINATESYSTEM_INVALID));
}

// ------------------------------------------------------------------ SZelCoordinateTriplet

// The values of a triplet of unknown type are not copied; they keep their
// defaults.
SZelCoordinateTriplet::SZelCoordinateTriplet(const SZelCoordinateTriplet& rOther)
    : ecoordinatesystem(rOther.ecoordinatesystem)
{
    switch (rOther.ecoordinatesystem)
    {
    case ZELCOORDINATESYSTEM_CARTESIAN:
    case ZELCOORDINATESYSTEM_GEOGRAPHIC:
    case ZELCOORDINATESYSTEM_LOCGEO:
        dCoord1 = rOther.dCoord1;
        dCoord2 = rOther.dCoord2;
        dCoord3 = rOther.dCoord3;
        break;
    default:
        ZEL_ASSERT(false);
        break;
    }
}

SZelCoordinateTriplet& SZelCoordinateTriplet::operator+=(const SZelCoordinateTriplet& rOther)
{
    ZEL_ASSERT(ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN &&
               rOther.ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN);
    if (ecoordinatesystem == rOther.ecoordinatesystem)
    {
        dCoord1 += rOther.dCoord1;
        dCoord2 += rOther.dCoord2;
        dCoord3 += rOther.dCoord3;
    }
    return *this;
}

SZelCoordinateTriplet& SZelCoordinateTriplet::operator-=(const SZelCoordinateTriplet& rOther)
{
    ZEL_ASSERT(ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN &&
               rOther.ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN);
    if (ecoordinatesystem == rOther.ecoordinatesystem)
    {
        dCoord1 -= rOther.dCoord1;
        dCoord2 -= rOther.dCoord2;
        dCoord3 -= rOther.dCoord3;
    }
    return *this;
}

double SZelCoordinateTriplet::Norm() const
{
    if (!IsCartesian(*this))
    {
        ZEL_ASSERT(false);
        return 0.0;
    }
    return std::sqrt(Dot(*this, *this));
}

void SZelCoordinateTriplet::GetNormalized(SZelCoordinateTriplet& rResult) const
{
    rResult = *this;
    if (!IsCartesian(*this))
    {
        ZEL_ASSERT(false);
        return;
    }
    const double dNorm = Norm();
    if (dNorm < c_dMinNorm)
    {
        ZEL_ASSERT(false);
        return;
    }
    rResult = (1.0 / dNorm) * *this;
}

bool SZelCoordinateTriplet::Normalize()
{
    if (!IsCartesian(*this))
    {
        ZEL_ASSERT(false);
        return false;
    }
    const double dNorm = Norm();
    if (dNorm < c_dMinNorm)
    {
        ZEL_ASSERT(false);
        return false;
    }
    *this = (1.0 / dNorm) * *this;
    return true;
}

bool SZelCoordinateTriplet::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                     uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelCoordinateTriplet::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                     uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b)
{
    return a.ecoordinatesystem == b.ecoordinatesystem && a.dCoord1 == b.dCoord1 && a.dCoord2 == b.dCoord2 &&
           a.dCoord3 == b.dCoord3;
}

SZelCoordinateTriplet operator+(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b)
{
    SZelCoordinateTriplet stResult(a);
    if (IsCartesian(a) && IsCartesian(b))
    {
        stResult += b;
    }
    else
    {
        ZEL_ASSERT(false);
    }
    return stResult;
}

SZelCoordinateTriplet operator-(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b)
{
    SZelCoordinateTriplet stResult(a);
    if (IsCartesian(a) && IsCartesian(b))
    {
        stResult += -1.0 * b;
    }
    else
    {
        ZEL_ASSERT(false);
    }
    return stResult;
}

SZelCoordinateTriplet operator*(double dScalar, const SZelCoordinateTriplet& a)
{
    SZelCoordinateTriplet stResult(a);
    if (IsCartesian(a))
    {
        stResult.dCoord1 *= dScalar;
        stResult.dCoord2 *= dScalar;
        stResult.dCoord3 *= dScalar;
    }
    else
    {
        ZEL_ASSERT(false);
    }
    return stResult;
}

double Dot(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b)
{
    if (!IsCartesian(a) || !IsCartesian(b))
    {
        ZEL_ASSERT(false);
        return 0.0;
    }
    return a.dCoord2 * b.dCoord2 + a.dCoord1 * b.dCoord1 + a.dCoord3 * b.dCoord3;
}

// Worked in a local copy, so that rResult may be a or b.
void Cross(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b, SZelCoordinateTriplet& rResult)
{
    SZelCoordinateTriplet stResult(a);
    if (IsCartesian(a) && IsCartesian(b))
    {
        ZEL_ASSERT(stResult.ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN);
        stResult.dCoord1 = a.dCoord2 * b.dCoord3 - a.dCoord3 * b.dCoord2;
        stResult.dCoord2 = a.dCoord3 * b.dCoord1 - a.dCoord1 * b.dCoord3;
        stResult.dCoord3 = a.dCoord1 * b.dCoord2 - a.dCoord2 * b.dCoord1;
    }
    else
    {
        ZEL_ASSERT(false);
    }
    rResult = stResult;
}

std::ostream& operator<<(std::ostream& os, const SZelCoordinateTriplet& rTriplet)
{
    return ZelIo::WriteText(os, rTriplet);
}

std::istream& operator>>(std::istream& is, SZelCoordinateTriplet& rTriplet)
{
    return ZelIo::ReadText(is, rTriplet);
}

} // namespace ZELN
