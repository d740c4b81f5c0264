#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>

namespace ZELN
{

// The image is the record's layout: its offsets are checked here. The
// polynomials derive from their header, which makes the record other than
// standard-layout; the offsets are those of the platform's one ABI all the same.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
static_assert(sizeof(SZelOrbPoly) == SZelOrbPoly::c_ulImageSize, "the image is the record's layout");
static_assert(std::is_trivially_copyable<SZelOrbPoly>::value, "the image is a copy of the record");
static_assert(offsetof(SZelOrbPoly, stSatId) == 4 && offsetof(SZelOrbPoly, ulEphType) == 12 &&
                  offsetof(SZelOrbPoly, stRefTime) == 16 && offsetof(SZelOrbPoly, stClock) == 40 &&
                  offsetof(SZelOrbPoly, stCoords) == 112 && offsetof(SZelOrbPoly, uiUra) == 424 &&
                  offsetof(SZelOrbPoly, stAddPars) == 432,
              "offsets of the record's image");
static_assert(offsetof(SZelOrbPolyClock, stTime) == 8 && offsetof(SZelOrbPolyClock, dVldHalfSpan) == 32 &&
                  offsetof(SZelOrbPolyClock, uiNumCoeffsToUse) == 40 &&
                  offsetof(SZelOrbPolyClock, adCoeffs) == 48,
              "offsets of the clock polynomial");
static_assert(offsetof(SZelOrbPolyCoords, adCoeffs) == 48 && sizeof(SZelOrbPolyCoords) == 312,
              "offsets of the coordinate polynomials");
static_assert(offsetof(SMjdTime, m_dMjdFractMilliseconds) == 8 && offsetof(SMjdTime, m_eAccuracy) == 16 &&
                  sizeof(SMjdTime) == 24,
              "a time in a block takes 24 bytes");
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

namespace
{

constexpr double c_dCOEFF_TOLERANCE = 1e-10;

// The one check of a count, shared by the setters, the counted
// constructors and the text reader.
uint8_t CheckedCount(uint8_t ucCount, uint8_t ucMax)
{
    if (ucCount > ucMax)
    {
        ZEL_REPORT("uiNumCoeffsToUse must not exceed MAX_NUM_COEFFS");
        return ucMax;
    }
    return ucCount;
}

// The counted coefficients of a row within 1e-10. A count above the row
// (a raw image may hold one) would index past it: only the coefficients
// there are take part.
template <size_t N> bool RowClose(const double (&adA)[N], const double (&adB)[N], uint8_t ucCount)
{
    const size_t ulCount = std::min<size_t>(ucCount, N);
    for (size_t ulIdx = 0; ulIdx < ulCount; ++ulIdx)
    {
        if (!AreCloseAbs(adA[ulIdx], adB[ulIdx], c_dCOEFF_TOLERANCE))
        {
            return false;
        }
    }
    return true;
}

// The rest of the rule of both polynomials, after the coefficients.
bool HeaderClose(const SZelOrbPolyHeader& a, const SZelOrbPolyHeader& b)
{
    return a.iIod == b.iIod && a.stTime == b.stTime &&
           std::fabs(a.dVldHalfSpan - b.dVldHalfSpan) < c_dCOEFF_TOLERANCE;
}

} // namespace

bool operator==(const SZelOrbPolyHeader& a, const SZelOrbPolyHeader& b)
{
    return a.iIod == b.iIod && a.stTime == b.stTime && a.dVldHalfSpan == b.dVldHalfSpan &&
           a.uiNumCoeffsToUse == b.uiNumCoeffsToUse;
}

// The counted forms name their argument as the field they set.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"
#endif

SZelOrbPolyClock::SZelOrbPolyClock(uint8_t uiNumCoeffsToUse)
{
    this->uiNumCoeffsToUse = CheckedCount(uiNumCoeffsToUse, MAX_NUM_COEFFS);
}

void SZelOrbPolyClock::SetNumCoeffsToUse(uint8_t uiNumCoeffsToUse)
{
    this->uiNumCoeffsToUse = CheckedCount(uiNumCoeffsToUse, MAX_NUM_COEFFS);
}

SZelOrbPolyCoords::SZelOrbPolyCoords(uint8_t uiNumCoeffsToUse)
{
    this->uiNumCoeffsToUse = CheckedCount(uiNumCoeffsToUse, MAX_NUM_COEFFS);
}

void SZelOrbPolyCoords::SetNumCoeffsToUse(uint8_t uiNumCoeffsToUse)
{
    this->uiNumCoeffsToUse = CheckedCount(uiNumCoeffsToUse, MAX_NUM_COEFFS);
}

#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

void SZelOrbPolyClock::clear()
{
    const uint8_t ucCount = uiNumCoeffsToUse;
    *this = SZelOrbPolyClock();
    uiNumCoeffsToUse = ucCount;
}

void SZelOrbPolyCoords::clear()
{
    const uint8_t ucCount = uiNumCoeffsToUse;
    *this = SZelOrbPolyCoords();
    uiNumCoeffsToUse = ucCount;
}

bool operator==(const SZelOrbPolyClock& a, const SZelOrbPolyClock& b)
{
    return a.uiNumCoeffsToUse == b.uiNumCoeffsToUse && RowClose(a.adCoeffs, b.adCoeffs, a.uiNumCoeffsToUse) &&
           HeaderClose(a, b);
}

bool operator==(const SZelOrbPolyCoords& a, const SZelOrbPolyCoords& b)
{
    if (a.uiNumCoeffsToUse != b.uiNumCoeffsToUse)
    {
        return false;
    }
    for (size_t ulRow = 0; ulRow < 3; ++ulRow)
    {
        if (!RowClose(a.adCoeffs[ulRow], b.adCoeffs[ulRow], a.uiNumCoeffsToUse))
        {
            return false;
        }
    }
    return HeaderClose(a, b);
}

bool operator==(const SZelOrbPolyAddPars& a, const SZelOrbPolyAddPars& b)
{
    return a.dOdot == b.dOdot && a.dDN == b.dDN && a.dMo == b.dMo && a.dSqrtA == b.dSqrtA &&
           a.dEcc == b.dEcc && a.dTgd == b.dTgd;
}

bool operator==(const SZelOrbPolyAddParsGal& a, const SZelOrbPolyAddParsGal& b)
{
    return a.dOdot == b.dOdot && a.dDN == b.dDN && a.dMo == b.dMo && a.dSqrtA == b.dSqrtA &&
           a.dEcc == b.dEcc && a.dBgdE5a == b.dBgdE5a && a.dBgdE5b == b.dBgdE5b;
}

SZelOrbPoly::SZelOrbPoly(const SZelSatID& rstSatId, uint32_t ulEphTypeValue)
    : stSatId(rstSatId), ulEphType(ulEphTypeValue),
      stCoords(rstSatId.eSatSystem == ZELSATSYSTEM_LOCATA ? SZelOrbPolyCoords::c_ucLOCATA_NUM_COEFFS
                                                          : SZelOrbPolyCoords::c_ucDEFAULT_NUM_COEFFS)
{
}

void SZelOrbPoly::setOrbMode(bool bMode)
{
    if (bMode)
    {
        ucOrbFlgs = static_cast<uint8_t>(ucOrbFlgs & ~c_ucORBFLG_MODE5);
    }
    else
    {
        ucOrbFlgs =
            static_cast<uint8_t>((ucOrbFlgs & ~(c_ucORBFLG_MODE3 | c_ucORBFLG_MODE4)) | c_ucORBFLG_MODE5);
    }
}

void SZelOrbPoly::clear()
{
    ucOrbFlgs = 0;
    stSatId = SZelSatID();
    ulEphType = 0;
    stRefTime = SMjdTime();
    stClock.clear();
    stCoords.clear();
    uiUra = 0;
    clearAddPars();
}

// The Galileo reading: the group delays E1-E5a and E1-E5b stand in the
// sixth and seventh values.
SZelOrbPolyAddParsGal SZelOrbPoly::getAddParsGal() const
{
    SZelOrbPolyAddParsGal stGal;
    stGal.dOdot = stAddPars.dOdot;
    stGal.dDN = stAddPars.dDN;
    stGal.dMo = stAddPars.dMo;
    stGal.dSqrtA = stAddPars.dSqrtA;
    stGal.dEcc = stAddPars.dEcc;
    stGal.dBgdE5a = stAddPars.dTgd;
    stGal.dBgdE5b = stAddPars.dSpare;
    return stGal;
}

void SZelOrbPoly::setAddParsGal(const SZelOrbPolyAddParsGal& rstAddPars)
{
    stAddPars.dOdot = rstAddPars.dOdot;
    stAddPars.dDN = rstAddPars.dDN;
    stAddPars.dMo = rstAddPars.dMo;
    stAddPars.dSqrtA = rstAddPars.dSqrtA;
    stAddPars.dEcc = rstAddPars.dEcc;
    stAddPars.dTgd = rstAddPars.dBgdE5a;
    stAddPars.dSpare = rstAddPars.dBgdE5b;
}

bool SZelOrbPoly::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelOrbPoly::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelOrbPoly& a, const SZelOrbPoly& b)
{
    if (!a.stSatId.isValid() && !b.stSatId.isValid())
    {
        return true;
    }
    if (a.stSatId != b.stSatId || a.ulEphType != b.ulEphType)
    {
        // Polynomials of two different satellites are compared by mistake.
        ZEL_ASSERT(false);
        return false;
    }
    if (a.ucOrbFlgs != b.ucOrbFlgs || !(a.stClock == b.stClock) || !(a.stCoords == b.stCoords))
    {
        return false;
    }
    return (a.ucOrbFlgs & SZelOrbPoly::c_ucORBFLG_URA) == 0 || a.uiUra == b.uiUra;
}

std::ostream& operator<<(std::ostream& os, const SZelOrbPoly& rOrbPoly)
{
    return ZelIo::WriteText(os, rOrbPoly);
}

std::istream& operator>>(std::istream& is, SZelOrbPoly& rOrbPoly)
{
    return ZelIo::ReadText(is, rOrbPoly);
}

void SZelSatGroupValues::setValue(EZelFrequencyGroup eFrqGrp, double dValue)
{
    ZEL_ASSERT(eFrqGrp < ZELFREQUENCY_GROUPS_MAX);
    // No pair holds a group from 7 on, nor a negative one.
    if (eFrqGrp < ZELFREQUENCY_GROUP_NONE || eFrqGrp >= ZELFREQUENCY_GROUPS_MAX)
    {
        return;
    }
    astValues[eFrqGrp].bSet = true;
    astValues[eFrqGrp].dValue = dValue;
    if (eFrqGrp >= ZELFREQUENCY_GROUP_1)
    {
        ulGroupMask |= 1u << (eFrqGrp - 1);
    }
}

void SZelSatGroupValues::setValues(uint32_t ulMask, double dValue)
{
    for (int32_t lBit = 0; lBit < 32; ++lBit)
    {
        if ((ulMask & (1u << lBit)) != 0)
        {
            setValue(static_cast<EZelFrequencyGroup>(lBit + 1), dValue);
        }
    }
    ulGroupMask |= ulMask;
}

bool SZelSatGroupValues::getValue(EZelFrequencyGroup eFrqGrp, double& rdValue) const
{
    if (eFrqGrp < ZELFREQUENCY_GROUP_NONE || eFrqGrp >= ZELFREQUENCY_GROUPS_MAX || !astValues[eFrqGrp].bSet)
    {
        rdValue = 0.0;
        return false;
    }
    rdValue = astValues[eFrqGrp].dValue;
    return true;
}

bool operator==(const SZelSatGroupValues& a, const SZelSatGroupValues& b)
{
    if (a.stSatId != b.stSatId || a.ulGroupMask != b.ulGroupMask)
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < ZELFREQUENCY_GROUPS_MAX; ++ulIdx)
    {
        if (a.astValues[ulIdx].bSet != b.astValues[ulIdx].bSet ||
            a.astValues[ulIdx].dValue != b.astValues[ulIdx].dValue)
        {
            return false;
        }
    }
    return true;
}

} // namespace ZELN
