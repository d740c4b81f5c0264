#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypes.h>

#include <algorithm>
#include <bitset>
#include <cmath>
#include <limits>

namespace ZELN
{

namespace
{

// Bit of a satellite number in a usage map: the number modulo 64, taken on
// the two's complement so that a negative number gives no negative shift.
uint64_t SatBit(int iSatNumber)
{
    return uint64_t{1} << (static_cast<unsigned int>(iSatNumber) & 63u);
}

uint8_t CountBits(uint64_t ullBits)
{
    return static_cast<uint8_t>(std::bitset<64>(ullBits).count());
}

// The entries of an availability record that count.
size_t NbSystems(const SZelGnssAvailability& rAvl)
{
    return std::min<size_t>(rAvl.ucNumSysObs, c_ulNB_USAGE_SYSTEMS);
}

// The first slot of the system holding the signal, or null.
const SZelFrqSatUsage* FindSlot(const SZelSysSatUsage& rSys, EZelFrequency eFrequency)
{
    for (const SZelFrqSatUsage& rSlot : rSys.astUsedPerFreq)
    {
        if (rSlot.eFrequency == eFrequency)
        {
            return &rSlot;
        }
    }
    return nullptr;
}

// The slot of the first entry of the system that holds the signal, or null.
const SZelFrqSatUsage* FindSlot(const SZelGnssAvailability& rAvl, EZelSatSystem eSatSystem,
                                EZelFrequency eFrequency)
{
    for (size_t ulIdx = 0; ulIdx < NbSystems(rAvl); ++ulIdx)
    {
        const SZelSysSatUsage& rSys = rAvl.astSysUsage[ulIdx];
        if (rSys.eSatSystem != eSatSystem)
        {
            continue;
        }
        if (const SZelFrqSatUsage* pSlot = FindSlot(rSys, eFrequency))
        {
            return pSlot;
        }
    }
    return nullptr;
}

// A double rounded to float as the hardware rounds it, written out where the
// value lies beyond the float range (a conversion the language leaves
// undefined): from 2^128 - 2^103 on, round-to-nearest gives infinity.
float RoundToFloat(double dValue)
{
    constexpr double c_dFloatOverflow = 0x1.ffffffp127;
    if (dValue >= c_dFloatOverflow)
    {
        return std::numeric_limits<float>::infinity();
    }
    if (dValue <= -c_dFloatOverflow)
    {
        return -std::numeric_limits<float>::infinity();
    }
    return static_cast<float>(dValue);
}

} // namespace

// ------------------------------------------------------------------ SZelDOP

bool SZelDOP::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelDOP::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelDOP& a, const SZelDOP& b)
{
    return a.unHDOP == b.unHDOP && a.unVDOP == b.unVDOP && a.unTDOP == b.unTDOP && a.unGDOP == b.unGDOP &&
           a.unPDOP == b.unPDOP && a.unNumSats == b.unNumSats;
}

std::ostream& operator<<(std::ostream& os, const SZelDOP& rDop)
{
    return ZelIo::WriteText(os, rDop);
}

std::istream& operator>>(std::istream& is, SZelDOP& rDop)
{
    return ZelIo::ReadText(is, rDop);
}

// ------------------------------------------------------------------ SZelFrqSatUsage

void SZelFrqSatUsage::AddSat(int iSatNumber)
{
    const uint64_t ullBit = SatBit(iSatNumber);
    if ((ullBitMapUse & ullBit) == 0)
    {
        ullBitMapUse |= ullBit;
        ++ucNumUse;
    }
}

void SZelFrqSatUsage::AddSatMask(uint64_t ullMask)
{
    const uint64_t ullNew = ullMask & ~ullBitMapUse;
    ullBitMapUse |= ullNew;
    ucNumUse = static_cast<uint8_t>(ucNumUse + CountBits(ullNew));
}

void SZelFrqSatUsage::Add(const SZelFrqSatUsage& rstOther)
{
    if (eFrequency != rstOther.eFrequency)
    {
        ZEL_REPORT("You are trying to add different frequencies, you fool!");
        return;
    }
    AddSatMask(rstOther.ullBitMapUse);
}

bool SZelFrqSatUsage::IsSatUsed(int iSatNumber) const
{
    return (ullBitMapUse & SatBit(iSatNumber)) != 0;
}

bool SZelFrqSatUsage::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelFrqSatUsage::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelFrqSatUsage& a, const SZelFrqSatUsage& b)
{
    return a.eFrequency == b.eFrequency && a.ucNumUse == b.ucNumUse && a.ullBitMapUse == b.ullBitMapUse;
}

std::ostream& operator<<(std::ostream& os, const SZelFrqSatUsage& rUsage)
{
    return ZelIo::WriteText(os, rUsage);
}

std::istream& operator>>(std::istream& is, SZelFrqSatUsage& rUsage)
{
    return ZelIo::ReadText(is, rUsage);
}

// ------------------------------------------------------------------ SZelSysSatUsage

// The largest and not the sum of the per-signal gains is added: one new
// satellite may be new on several signals.
void SZelSysSatUsage::Add(const SZelSysSatUsage& rstOther)
{
    if (&rstOther == this)
    {
        return;
    }
    int iMaxAdded = 0;
    for (const SZelFrqSatUsage& rOtherSlot : rstOther.astUsedPerFreq)
    {
        if (rOtherSlot.eFrequency == ZELFREQUENCY_UNKNOWN)
        {
            break;
        }
        for (SZelFrqSatUsage& rSlot : astUsedPerFreq)
        {
            if (rSlot.eFrequency != rOtherSlot.eFrequency)
            {
                continue;
            }
            const int iBefore = rSlot.ucNumUse;
            rSlot.Add(rOtherSlot);
            const int iNumSatsAddedThisFreq = static_cast<int>(rSlot.ucNumUse) - iBefore;
            ZEL_ASSERT(iNumSatsAddedThisFreq >= 0);
            iMaxAdded = std::max(iMaxAdded, iNumSatsAddedThisFreq);
        }
    }
    ucNumUse = static_cast<uint8_t>(ucNumUse + iMaxAdded);
}

bool SZelSysSatUsage::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelSysSatUsage::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelSysSatUsage& a, const SZelSysSatUsage& b)
{
    for (size_t ulIdx = 0; ulIdx < c_ulNB_USAGE_FREQUENCIES; ++ulIdx)
    {
        if (!(a.astUsedPerFreq[ulIdx] == b.astUsedPerFreq[ulIdx]))
        {
            return false;
        }
    }
    return a.eSatSystem == b.eSatSystem && a.ucNumAvl == b.ucNumAvl && a.ucNumUse == b.ucNumUse;
}

std::ostream& operator<<(std::ostream& os, const SZelSysSatUsage& rUsage)
{
    return ZelIo::WriteText(os, rUsage);
}

std::istream& operator>>(std::istream& is, SZelSysSatUsage& rUsage)
{
    return ZelIo::ReadText(is, rUsage);
}

// ------------------------------------------------------------------ SZelGnssAvailability

uint64_t SZelGnssAvailability::GetBitMapUse(EZelFrequency eFrequency, EZelSatSystem eSatSystem) const
{
    const SZelFrqSatUsage* pSlot = FindSlot(*this, eSatSystem, eFrequency);
    return pSlot != nullptr ? pSlot->ullBitMapUse : 0;
}

uint8_t SZelGnssAvailability::GetNumUse(EZelSatSystem eSatSystem, EZelFrequency eFrequency) const
{
    const SZelFrqSatUsage* pSlot = FindSlot(*this, eSatSystem, eFrequency);
    return pSlot != nullptr ? pSlot->ucNumUse : 0;
}

uint8_t SZelGnssAvailability::GetMaxNumUse(EZelSatSystem eSatSystem) const
{
    uint8_t ucMax = 0;
    for (int32_t lFrq = ZELFREQUENCY_UNKNOWN; lFrq <= ZELFREQUENCY_E6; ++lFrq)
    {
        ucMax = std::max(ucMax, GetNumUse(eSatSystem, static_cast<EZelFrequency>(lFrq)));
    }
    return ucMax;
}

uint32_t SZelGnssAvailability::CountUsedSats(EZelSatSystem eSatSystem, uint32_t ulFrqMask) const
{
    uint64_t ullUnion = 0;
    for (int32_t lFrq = ZELFREQUENCY_L1CA; lFrq <= ZELFREQUENCY_E6; ++lFrq)
    {
        if ((ulFrqMask & (uint32_t{1} << (lFrq - 1))) == 0)
        {
            continue;
        }
        ullUnion |= GetBitMapUse(static_cast<EZelFrequency>(lFrq), eSatSystem);
    }
    return CountBits(ullUnion);
}

bool SZelGnssAvailability::IsSatUsed(const SZelSatID& stSatId) const
{
    for (size_t ulIdx = 0; ulIdx < NbSystems(*this); ++ulIdx)
    {
        const SZelSysSatUsage& rSys = astSysUsage[ulIdx];
        if (rSys.eSatSystem != stSatId.eSatSystem)
        {
            continue;
        }
        uint64_t ullUnion = 0;
        for (const SZelFrqSatUsage& rSlot : rSys.astUsedPerFreq)
        {
            ullUnion |= rSlot.ullBitMapUse;
        }
        return (ullUnion & SatBit(stSatId.uiSatNumber)) != 0;
    }
    return false;
}

bool SZelGnssAvailability::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelGnssAvailability::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelGnssAvailability& a, const SZelGnssAvailability& b)
{
    for (size_t ulIdx = 0; ulIdx < c_ulNB_USAGE_SYSTEMS; ++ulIdx)
    {
        if (!(a.astSysUsage[ulIdx] == b.astSysUsage[ulIdx]))
        {
            return false;
        }
    }
    return a.ucNumSysObs == b.ucNumSysObs;
}

std::ostream& operator<<(std::ostream& os, const SZelGnssAvailability& rAvl)
{
    return ZelIo::WriteText(os, rAvl);
}

std::istream& operator>>(std::istream& is, SZelGnssAvailability& rAvl)
{
    return ZelIo::ReadText(is, rAvl);
}

// ------------------------------------------------------------------ SZelNrtkInfo

const char* ToNetTypeWord(EZelNetType eNetType)
{
    return ZelIo::EnumWord(eNetType, c_aszNetTypeWords, c_ulNbNetTypeWords, "Invalid");
}

EZelNetType ReadNetTypeWord(std::istream& is)
{
    return static_cast<EZelNetType>(
        ZelIo::ReadEnumWord(is, c_aszNetTypeWords, c_ulNbNetTypeWords, ZELNETTYPE_INVALID));
}

bool SZelNrtkInfo::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelNrtkInfo::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelNrtkInfo& a, const SZelNrtkInfo& b)
{
    return a.ucNumRefStations == b.ucNumRefStations && a.bInsideNetwork == b.bInsideNetwork &&
           a.eNetType == b.eNetType;
}

std::ostream& operator<<(std::ostream& os, const SZelNrtkInfo& rInfo)
{
    return ZelIo::WriteText(os, rInfo);
}

std::istream& operator>>(std::istream& is, SZelNrtkInfo& rInfo)
{
    return ZelIo::ReadText(is, rInfo);
}

// ------------------------------------------------------------------ SZelPosQuality

double SZelPosQuality::GetSigmaNorth() const
{
    ZEL_ASSERT_TEXT(eCoordSystem == ZELCOORDINATESYSTEM_GEOGRAPHIC,
                    "ecoordinatesystem == ZELCOORDINATESYSTEM_GEOGRAPHIC");
    return std::sqrt(static_cast<double>(fMo * fMo * afQ[0]));
}

double SZelPosQuality::GetSigmaEast() const
{
    ZEL_ASSERT_TEXT(eCoordSystem == ZELCOORDINATESYSTEM_GEOGRAPHIC,
                    "ecoordinatesystem == ZELCOORDINATESYSTEM_GEOGRAPHIC");
    return std::sqrt(static_cast<double>(fMo * fMo * afQ[2]));
}

double SZelPosQuality::GetSigmaHeight() const
{
    ZEL_ASSERT_TEXT(eCoordSystem == ZELCOORDINATESYSTEM_GEOGRAPHIC,
                    "ecoordinatesystem == ZELCOORDINATESYSTEM_GEOGRAPHIC");
    return std::sqrt(static_cast<double>(fMo * fMo * afQ[5]));
}

// The products run in double from the float values and each new value is
// rounded once to float. The element R[1][2] is zero by construction, so
// its terms are left out.
void SZelPosQuality::Transform(EZelCoordinateSystem eTarget, const double* adRotation)
{
    if (adRotation == nullptr || eTarget == eCoordSystem)
    {
        return;
    }
    const double a = adRotation[0], b = adRotation[1], c = adRotation[2];
    const double d = adRotation[3], e = adRotation[4];
    const double f = adRotation[5], g = adRotation[6], h = adRotation[7];
    const double xx = afQ[0], xy = afQ[1], yy = afQ[2], xz = afQ[3], yz = afQ[4], zz = afQ[5];

    double dXX = 0.0, dXY = 0.0, dYY = 0.0, dXZ = 0.0, dYZ = 0.0, dZZ = 0.0;
    if (eCoordSystem == ZELCOORDINATESYSTEM_CARTESIAN && eTarget == ZELCOORDINATESYSTEM_GEOGRAPHIC)
    {
        // R Q R^T: rows (a, b, c), (d, e, 0), (f, g, h).
        dXX = a * a * xx + b * b * yy + c * c * zz + 2.0 * a * b * xy + 2.0 * a * c * xz + 2.0 * b * c * yz;
        dXY = a * d * xx + (a * e + b * d) * xy + b * e * yy + c * d * xz + c * e * yz;
        dYY = d * d * xx + e * e * yy + 2.0 * d * e * xy;
        dXZ = a * f * xx + (a * g + b * f) * xy + b * g * yy + (a * h + c * f) * xz + (b * h + c * g) * yz +
              c * h * zz;
        dYZ = d * f * xx + (d * g + e * f) * xy + e * g * yy + d * h * xz + e * h * yz;
        dZZ = f * f * xx + g * g * yy + h * h * zz + 2.0 * f * g * xy + 2.0 * f * h * xz + 2.0 * g * h * yz;
    }
    else if (eCoordSystem == ZELCOORDINATESYSTEM_GEOGRAPHIC && eTarget == ZELCOORDINATESYSTEM_CARTESIAN)
    {
        // R^T Q R: the columns (a, d, f), (b, e, g), (c, 0, h) take the place of the rows.
        dXX = a * a * xx + d * d * yy + f * f * zz + 2.0 * a * d * xy + 2.0 * a * f * xz + 2.0 * d * f * yz;
        dXY = a * b * xx + (a * e + d * b) * xy + d * e * yy + (a * g + f * b) * xz + (d * g + f * e) * yz +
              f * g * zz;
        dYY = b * b * xx + e * e * yy + g * g * zz + 2.0 * b * e * xy + 2.0 * b * g * xz + 2.0 * e * g * yz;
        dXZ = a * c * xx + d * c * xy + (a * h + f * c) * xz + d * h * yz + f * h * zz;
        dYZ = b * c * xx + e * c * xy + (b * h + g * c) * xz + e * h * yz + g * h * zz;
        dZZ = c * c * xx + h * h * zz + 2.0 * c * h * xz;
    }
    else
    {
        return;
    }
    afQ[0] = RoundToFloat(dXX);
    afQ[1] = RoundToFloat(dXY);
    afQ[2] = RoundToFloat(dYY);
    afQ[3] = RoundToFloat(dXZ);
    afQ[4] = RoundToFloat(dYZ);
    afQ[5] = RoundToFloat(dZZ);
    eCoordSystem = eTarget;
}

bool SZelPosQuality::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelPosQuality::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelPosQuality& a, const SZelPosQuality& b)
{
    if (a.eCoordSystem != b.eCoordSystem || a.fMo != b.fMo || a.fMoUnscaled != b.fMoUnscaled)
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < c_ulNB_POSQ_VALUES; ++ulIdx)
    {
        if (a.afQ[ulIdx] != b.afQ[ulIdx])
        {
            return false;
        }
    }
    return true;
}

std::ostream& operator<<(std::ostream& os, const SZelPosQuality& rQuality)
{
    return ZelIo::WriteText(os, rQuality);
}

std::istream& operator>>(std::istream& is, SZelPosQuality& rQuality)
{
    return ZelIo::ReadText(is, rQuality);
}

// ------------------------------------------------------------------ SZelPosition

const char* ToCoordTypeWord(EZelCoordType eCoordType)
{
    return ZelIo::EnumWord(eCoordType, c_aszCoordTypeWords, c_ulNbCoordTypeWords, "Invalid");
}

EZelCoordType ReadCoordTypeWord(std::istream& is)
{
    return static_cast<EZelCoordType>(
        ZelIo::ReadEnumWord(is, c_aszCoordTypeWords, c_ulNbCoordTypeWords, ZELCOORDTYPE_INVALID));
}

bool SZelPosition::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelPosition::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelPosition& a, const SZelPosition& b)
{
    return a.eCoordType == b.eCoordType && a.ucAvail == b.ucAvail && a.stPos == b.stPos &&
           a.stPosQ == b.stPosQ && a.bNonPhysical == b.bNonPhysical;
}

std::ostream& operator<<(std::ostream& os, const SZelPosition& rPosition)
{
    return ZelIo::WriteText(os, rPosition);
}

std::istream& operator>>(std::istream& is, SZelPosition& rPosition)
{
    return ZelIo::ReadText(is, rPosition);
}

} // namespace ZELN
