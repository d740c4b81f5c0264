#include <ZelTypes/Core/Common/ZelTypesKlob.h>

namespace ZELN
{

std::ostream& operator<<(std::ostream& os, EZelIonRegionCode eCode)
{
    switch (eCode)
    {
    case ZELIONREGIONCODE_WIDE_AREA:
        return os << 'W';
    case ZELIONREGIONCODE_JAPAN:
        return os << 'J';
    default:
        ZEL_ASSERT(false);
        return os << '?';
    }
}

std::istream& operator>>(std::istream& is, EZelIonRegionCode& reCode)
{
    char cLetter = 0;
    if (!(is >> cLetter))
    {
        return is;
    }
    switch (cLetter)
    {
    case 'W':
        reCode = ZELIONREGIONCODE_WIDE_AREA;
        break;
    case 'J':
        reCode = ZELIONREGIONCODE_JAPAN;
        break;
    default:
        ZEL_ASSERT(false);
        reCode = ZELIONREGIONCODE_WIDE_AREA;
        break;
    }
    return is;
}

bool SZelKlobucharCoefficients::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                         uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelKlobucharCoefficients::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                         uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelKlobucharCoefficients& a, const SZelKlobucharCoefficients& b)
{
    if (!a.bValid && !b.bValid)
    {
        return true;
    }
    for (size_t ulIdx = 0; ulIdx < 4; ++ulIdx)
    {
        if (!AreCloseRel(a.adAlpha[ulIdx], b.adAlpha[ulIdx]) ||
            !AreCloseRel(a.adBeta[ulIdx], b.adBeta[ulIdx]))
        {
            return false;
        }
    }
    return a.bValid == b.bValid && a.eSatSystem == b.eSatSystem && a.eIonRegionCode == b.eIonRegionCode;
}

std::ostream& operator<<(std::ostream& os, const SZelKlobucharCoefficients& rCoefficients)
{
    return ZelIo::WriteText(os, rCoefficients);
}

} // namespace ZELN
