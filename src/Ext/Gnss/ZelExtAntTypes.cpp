#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Gnss/ZelExtAntTypes.h>

#include <boost/functional/hash.hpp>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace ZELN
{

namespace
{

constexpr double c_dPI = 3.141592653589793;
constexpr double c_dTWO_PI = 6.283185307179586;
constexpr double c_dHALF_PI = 1.5707963267948966;

// WGS 84: polar radius of curvature (m) and second eccentricity squared.
constexpr double c_dPOLAR_RADIUS = 6399593.6257584905;
constexpr double c_dSECOND_ECC2 = 0.006739496742275464;

// The length of a name that may fill its array without a terminator.
template <class TChar, size_t N> size_t NameLength(const TChar (&acName)[N])
{
    size_t ulLen = 0;
    while (ulLen < N && acName[ulLen] != TChar(0))
    {
        ++ulLen;
    }
    return ulLen;
}

// Character by character up to the end of each name.
template <class TChar, size_t N> bool SameName(const TChar (&acA)[N], const TChar (&acB)[N])
{
    const size_t ulLen = NameLength(acA);
    return ulLen == NameLength(acB) && std::equal(acA, acA + ulLen, acB);
}

// A name goes out up to its end, never past its array: a full name has no
// terminator.
template <size_t N> void NameText(ZelIo::CTextWriter& io, const char (&acName)[N])
{
    io.Stream().write(acName, static_cast<std::streamsize>(NameLength(acName)));
}

// A name may hold blanks: the blank behind the tag is taken, then characters
// up to a comma (stored as a zero in place) or until the array is full.
template <size_t N> void NameText(ZelIo::CTextReader& io, char (&acName)[N])
{
    std::istream& is = io.Stream();
    is >> std::noskipws;
    char cChar = 0;
    is >> cChar;
    for (size_t ulIdx = 0; ulIdx < N && (is >> cChar); ++ulIdx)
    {
        if (cChar == ',')
        {
            acName[ulIdx] = '\0';
            break;
        }
        acName[ulIdx] = cChar;
    }
    is >> std::skipws;
}

const SZelAntPCC* FindPCC(const SZelAntennaInfo& rInfo, uint32_t ulBand)
{
    const SZelAntModel::TMapPCCs& rMap = rInfo.stAntModel.mapPCCs;
    const auto it = rMap.find(SZelAntModelKey(ZELSATSYSTEM_GPS, ulBand));
    return it != rMap.end() ? &it->second : nullptr;
}

// Radii of the point's latitude, each plus the height: prime vertical and
// meridian.
void Radii(double dLat, double dHgt, double& rdN, double& rdM)
{
    const double dCosLat = std::cos(dLat);
    const double dV = std::sqrt(1.0 + c_dSECOND_ECC2 * dCosLat * dCosLat);
    rdN = c_dPOLAR_RADIUS / dV + dHgt;
    rdM = c_dPOLAR_RADIUS / (dV * dV * dV) + dHgt;
}

} // namespace

// ------------------------------------------------------------------ SZelAntDescriptor

template <class IO, class Self> void SZelAntDescriptor::VisitText(IO& io, Self& r)
{
    io.Tag("IgsName, ");
    NameText(io, r.acIgsName);
    io.Tag(", SerNr, ");
    NameText(io, r.acSerialNo);
    io.Tag(", SetId, ")
        .template Wide<uint32_t>(r.ucSetupId)
        .Tag(", CreId, ")
        .template Wide<uint32_t>(r.ucCreatorId)
        .Tag(", Type, ")
        .template Wide<uint32_t>(r.ucType);
}

bool SZelAntDescriptor::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelAntDescriptor::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelAntDescriptor& a, const SZelAntDescriptor& b)
{
    return SameName(a.awcName, b.awcName) && SameName(a.acIgsName, b.acIgsName) &&
           SameName(a.acSerialNo, b.acSerialNo) && a.ucSetupId == b.ucSetupId &&
           a.ucCreatorId == b.ucCreatorId && a.ucType == b.ucType;
}

std::ostream& operator<<(std::ostream& os, const SZelAntDescriptor& rDescr)
{
    return ZelIo::WriteText(os, rDescr);
}

std::istream& operator>>(std::istream& is, SZelAntDescriptor& rDescr)
{
    return ZelIo::ReadText(is, rDescr);
}

// ------------------------------------------------------------------ SZelARPOffsets

// The fields after the mode are those of the mode, read after the mode
// itself; an unknown mode has none and is reported in both directions.
template <class IO, class Self> void SZelARPOffsets::VisitText(IO& io, Self& r)
{
    io.Tag("Avl, ")
        .Value(r.m_eAvailability)
        .Tag(", HrzOffs, ")
        .Value(r.m_afHorzOffset)
        .Tag(", VerOffs, ")
        .Value(r.m_dVerticalOffset)
        .Tag(", ReadMode, ")
        .template Wide<int32_t>(r.m_eReadMode);
    if (r.m_eReadMode == ZELANTREADMODE_VERTICAL)
    {
        io.Tag(", HgtRead, ").Value(r.m_dHeightRead);
    }
    else if (r.m_eReadMode == ZELANTREADMODE_SLANT)
    {
        // The slant reading is an inner record whose own first tag repeats
        // the outer one.
        io.Tag(", SlpRead, ")
            .Tag("SlpRead, ")
            .Value(r.m_dSlopeRead)
            .Tag(", HrzOffs, ")
            .Value(r.m_dHorzOffsetRead);
    }
    else
    {
        ZEL_ASSERT(false);
    }
}

bool SZelARPOffsets::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelARPOffsets::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelARPOffsets& a, const SZelARPOffsets& b)
{
    if (a.m_eAvailability != b.m_eAvailability || !(a.m_afHorzOffset == b.m_afHorzOffset) ||
        a.m_dVerticalOffset != b.m_dVerticalOffset || a.m_eReadMode != b.m_eReadMode)
    {
        return false;
    }
    switch (a.m_eReadMode)
    {
    case ZELANTREADMODE_VERTICAL:
        return a.m_dHeightRead == b.m_dHeightRead;
    case ZELANTREADMODE_SLANT:
        return a.m_dSlopeRead == b.m_dSlopeRead && a.m_dHorzOffsetRead == b.m_dHorzOffsetRead;
    default:
        return false;
    }
}

std::ostream& operator<<(std::ostream& os, const SZelARPOffsets& rOffsets)
{
    return ZelIo::WriteText(os, rOffsets);
}

std::istream& operator>>(std::istream& is, SZelARPOffsets& rOffsets)
{
    return ZelIo::ReadText(is, rOffsets);
}

// ------------------------------------------------------------------ SZelAntPCC

// The rows differ between the directions: the reader sizes each sequence
// from its count within the text bound and grows it as values arrive. A row
// without values is written ", PCV" alone; the reader's steps for ", PCV"
// and ", PCV, " are the same (one char, one token, which takes the comma
// in front of the first value).
template <class IO, class Self> void SZelAntPCC::VisitText(IO& io, Self& r)
{
    io.Tag("PCO, ").Value(r.afPCO[0]).Tag(", ").Value(r.afPCO[1]).Tag(", ").Value(r.afPCO[2]);
    io.Tag(", PcvNumAzi, ");
    if constexpr (IO::c_bReading)
    {
        std::istream& is = io.Stream();
        uint32_t ulRows = 0;
        if (!(is >> ulRows))
        {
            return;
        }
        constexpr uint32_t ulMaxRows = ZelIo::TextPresizeMax<std::vector<float>>();
        r.vecPCV.resize(ulRows <= ulMaxRows ? ulRows : ulMaxRows);
        for (uint32_t ulRow = 0; ulRow < ulRows && is; ++ulRow)
        {
            if (ulRow >= r.vecPCV.size())
            {
                r.vecPCV.emplace_back();
            }
            std::vector<float>& rvecRow = r.vecPCV[ulRow];
            io.Tag(", PcvNumElev, ");
            uint32_t ulValues = 0;
            if (!(is >> ulValues))
            {
                return;
            }
            constexpr uint32_t ulMaxValues = ZelIo::TextPresizeMax<float>();
            rvecRow.resize(ulValues <= ulMaxValues ? ulValues : ulMaxValues);
            io.Tag(", PCV");
            for (uint32_t ulVal = 0; ulVal < ulValues && is; ++ulVal)
            {
                if (ulVal >= rvecRow.size())
                {
                    rvecRow.emplace_back();
                }
                if (ulVal != 0)
                {
                    io.Tag(", ");
                }
                is >> rvecRow[ulVal];
            }
        }
    }
    else
    {
        io.Value(r.vecPCV.size());
        for (const std::vector<float>& rvecRow : r.vecPCV)
        {
            io.Tag(", PcvNumElev, ").Value(rvecRow.size()).Tag(", PCV");
            for (const float fValue : rvecRow)
            {
                io.Tag(", ").Value(fValue);
            }
        }
    }
}

uint64_t SZelAntPCC::getSize() const
{
    return ZelIo::SizeOf(*this);
}

bool SZelAntPCC::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelAntPCC::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelAntPCC& a, const SZelAntPCC& b)
{
    // Bit patterns: a sign of zero makes a difference here.
    if (std::memcmp(a.afPCO, b.afPCO, sizeof(a.afPCO)) != 0 || a.vecPCV.size() != b.vecPCV.size())
    {
        return false;
    }
    for (size_t ulRow = 0; ulRow < a.vecPCV.size(); ++ulRow)
    {
        const std::vector<float>& rvecA = a.vecPCV[ulRow];
        const std::vector<float>& rvecB = b.vecPCV[ulRow];
        if (rvecA.size() != rvecB.size())
        {
            return false;
        }
        for (size_t ulVal = 0; ulVal < rvecA.size(); ++ulVal)
        {
            if (!(rvecA[ulVal] == rvecB[ulVal]))
            {
                return false;
            }
        }
    }
    return true;
}

std::ostream& operator<<(std::ostream& os, const SZelAntPCC& rPCC)
{
    return ZelIo::WriteText(os, rPCC);
}

std::istream& operator>>(std::istream& is, SZelAntPCC& rPCC)
{
    return ZelIo::ReadText(is, rPCC);
}

// ------------------------------------------------------------------ SZelAntModelKey

bool SZelAntModelKey::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelAntModelKey::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelAntModelKey& a, const SZelAntModelKey& b)
{
    return a.eSatSystem == b.eSatSystem && a.ulFrqBand == b.ulFrqBand;
}

bool operator<(const SZelAntModelKey& a, const SZelAntModelKey& b)
{
    const int32_t lSysA = static_cast<int32_t>(a.eSatSystem);
    const int32_t lSysB = static_cast<int32_t>(b.eSatSystem);
    if (lSysA != lSysB)
    {
        return lSysA < lSysB;
    }
    return static_cast<int32_t>(a.ulFrqBand) < static_cast<int32_t>(b.ulFrqBand);
}

std::size_t hash_value(const SZelAntModelKey& rKey)
{
    std::size_t ulSeed = 0;
    boost::hash_combine(ulSeed, static_cast<int32_t>(rKey.eSatSystem));
    boost::hash_combine(ulSeed, rKey.ulFrqBand);
    return ulSeed;
}

std::ostream& operator<<(std::ostream& os, const SZelAntModelKey& rKey)
{
    return ZelIo::WriteText(os, rKey);
}

std::istream& operator>>(std::istream& is, SZelAntModelKey& rKey)
{
    return ZelIo::ReadText(is, rKey);
}

// ------------------------------------------------------------------ SZelAntModel

SZelAntModel::SZelAntModel()
{
    mapPCCs.max_load_factor(1.0f);
}

// The entries differ between the directions: the writer walks them in key
// order, the reader replaces the map once its count is read and fills it by
// key (a key read twice keeps the last value), taking an entry only when
// the stream still stands after it.
template <class IO, class Self> void SZelAntModel::VisitText(IO& io, Self& r)
{
    io.template Wide<uint32_t>(r.unModelId)
        .Tag(", AntModelAvail, ")
        .template Wide<uint32_t>(r.ucModelAvail)
        .Tag(", AntAziRad, ")
        .Value(r.fAziRad)
        .Tag(", PCCs, ")
        .Tag("PCCsNum, ");
    if constexpr (IO::c_bReading)
    {
        std::istream& is = io.Stream();
        uint32_t ulCount = 0;
        if (!(is >> ulCount))
        {
            return;
        }
        r.mapPCCs.clear();
        for (uint32_t ulIdx = 0; ulIdx < ulCount && is; ++ulIdx)
        {
            SZelAntModelKey stKey;
            SZelAntPCC stPCC;
            io.Tag(", ").Value(stKey).Tag(", ").Value(stPCC);
            if (is)
            {
                r.mapPCCs[stKey] = std::move(stPCC);
            }
        }
    }
    else
    {
        io.Value(r.mapPCCs.size());
        for (const auto* pEntry : ZelIo::SortedEntries(r.mapPCCs))
        {
            io.Tag(", ").Value(pEntry->first).Tag(", ").Value(pEntry->second);
        }
    }
}

uint64_t SZelAntModel::getSize() const
{
    return ZelIo::SizeOf(*this);
}

bool SZelAntModel::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

// Tested against the size of the model at hand; the count is then compared
// with the size of what was read.
bool SZelAntModel::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelAntModel& a, const SZelAntModel& b)
{
    if (a.unModelId != b.unModelId || a.ucModelAvail != b.ucModelAvail || !(a.fAziRad == b.fAziRad) ||
        a.mapPCCs.size() != b.mapPCCs.size())
    {
        return false;
    }
    for (const auto& rEntry : a.mapPCCs)
    {
        const auto it = b.mapPCCs.find(rEntry.first);
        if (it == b.mapPCCs.end() || !(it->second == rEntry.second))
        {
            return false;
        }
    }
    return true;
}

std::ostream& operator<<(std::ostream& os, const SZelAntModel& rModel)
{
    return ZelIo::WriteText(os, rModel);
}

std::istream& operator>>(std::istream& is, SZelAntModel& rModel)
{
    return ZelIo::ReadText(is, rModel);
}

// ------------------------------------------------------------------ SZelAntennaInfo

uint64_t SZelAntennaInfo::getSize() const
{
    return ZelIo::SizeOf(*this);
}

bool SZelAntennaInfo::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

// Tested against the size of the antenna at hand, as the model is.
bool SZelAntennaInfo::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelAntennaInfo& a, const SZelAntennaInfo& b)
{
    return a.stAntDescr == b.stAntDescr && a.m_ARPOffsets == b.m_ARPOffsets && a.stAntModel == b.stAntModel;
}

std::ostream& operator<<(std::ostream& os, const SZelAntennaInfo& rInfo)
{
    return ZelIo::WriteText(os, rInfo);
}

std::istream& operator>>(std::istream& is, SZelAntennaInfo& rInfo)
{
    return ZelIo::ReadText(is, rInfo);
}

// ------------------------------------------------------------------ SZelAntPCOTable

bool SZelAntPCOTable::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelAntPCOTable::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelAntPCOTable& a, const SZelAntPCOTable& b)
{
    return a.ulValidFrqs == b.ulValidFrqs && AreCloseRel(a.fL1Up, b.fL1Up) && AreCloseRel(a.fL2Up, b.fL2Up) &&
           AreCloseRel(a.fL1East, b.fL1East) && AreCloseRel(a.fL1North, b.fL1North) &&
           AreCloseRel(a.fL2East, b.fL2East) && AreCloseRel(a.fL2North, b.fL2North);
}

std::ostream& operator<<(std::ostream& os, const SZelAntPCOTable& rTable)
{
    return ZelIo::WriteText(os, rTable);
}

std::istream& operator>>(std::istream& is, SZelAntPCOTable& rTable)
{
    return ZelIo::ReadText(is, rTable);
}

// ------------------------------------------------------------------ SZelAntPCVTable

// Every value of the grid, whatever the filled counts say, each behind ", ".
template <class IO, class Self> void SZelAntPCVTable::VisitText(IO& io, Self& r)
{
    io.Tag("VldFrqs, ")
        .Value(r.ulValidFrqs)
        .Tag(", NumAzi, ")
        .template Wide<uint32_t>(r.ucNumAzi)
        .Tag(", NumElev, ")
        .template Wide<uint32_t>(r.ucNumElev)
        .Tag(", Val, ");
    // The token of the tag takes the comma in front of the first value.
    bool bFirst = true;
    for (auto& rFrq : r.anValues)
    {
        for (auto& rAzi : rFrq)
        {
            for (auto& rValue : rAzi)
            {
                if (!bFirst)
                {
                    io.Tag(", ");
                }
                io.Value(rValue);
                bFirst = false;
            }
        }
    }
}

bool SZelAntPCVTable::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelAntPCVTable::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelAntPCVTable& a, const SZelAntPCVTable& b)
{
    return a.ulValidFrqs == b.ulValidFrqs && a.ucNumAzi == b.ucNumAzi && a.ucNumElev == b.ucNumElev &&
           std::memcmp(a.anValues, b.anValues, sizeof(a.anValues)) == 0;
}

std::ostream& operator<<(std::ostream& os, const SZelAntPCVTable& rTable)
{
    return ZelIo::WriteText(os, rTable);
}

std::istream& operator>>(std::istream& is, SZelAntPCVTable& rTable)
{
    return ZelIo::ReadText(is, rTable);
}

// ------------------------------------------------------------------ Reference levels

bool ConvertRefLevel(EZelAntRefLevel eFrom, EZelAntRefLevel eTo, const SZelAntennaInfo& rRefAntInfo,
                     SZelGeoCoords& rRefPtCoords)
{
    ZEL_ASSERT_TEXT(std::fabs(rRefPtCoords.dLat) <= c_dHALF_PI && std::fabs(rRefPtCoords.dLon) < c_dTWO_PI,
                    "fabs( rRefPtCoords.dLat ) <= (PI/2) && fabs( rRefPtCoords.dLon ) < TWO_PI");

    const SZelARPOffsets& rArp = rRefAntInfo.m_ARPOffsets;
    const int32_t lLo = std::min(static_cast<int32_t>(eFrom), static_cast<int32_t>(eTo));
    const int32_t lHi = std::max(static_cast<int32_t>(eFrom), static_cast<int32_t>(eTo));
    float fEast = 0.0f;
    float fNorth = 0.0f;
    double dUp = 0.0;

    // Mark to the end of the height reading.
    if (lLo == ZELANTREFLEVEL_MARK && lHi > ZELANTREFLEVEL_MARK)
    {
        if ((rArp.m_eAvailability & ebHOAVAILABLE) != 0)
        {
            fEast += rArp.m_afHorzOffset.fHrzOffsE;
            fNorth += rArp.m_afHorzOffset.fHrzOffsN;
        }
        if ((rArp.m_eAvailability & ebRDAVAILABLE) == 0)
        {
            return false;
        }
        if (rArp.m_eReadMode == ZELANTREADMODE_VERTICAL)
        {
            dUp += rArp.m_dHeightRead;
        }
        else if (rArp.m_eReadMode == ZELANTREADMODE_SLANT)
        {
            dUp += std::sqrt(rArp.m_dSlopeRead * rArp.m_dSlopeRead -
                             rArp.m_dHorzOffsetRead * rArp.m_dHorzOffsetRead);
        }
        else
        {
            ZEL_ASSERT(false);
            return false;
        }
    }
    // End of the reading to the antenna reference point.
    if (lLo <= ZELANTREFLEVEL_HEIGHT_READ && lHi > ZELANTREFLEVEL_HEIGHT_READ)
    {
        if ((rArp.m_eAvailability & ebVOAVAILABLE) != 0)
        {
            dUp += rArp.m_dVerticalOffset;
        }
        else
        {
            ZEL_ASSERT(false);
        }
    }
    // Reference point to the phase centre of band 0.
    if (lLo <= ZELANTREFLEVEL_ARP && lHi > ZELANTREFLEVEL_ARP)
    {
        if (const SZelAntPCC* pB0 = FindPCC(rRefAntInfo, c_ulANTBAND_F01))
        {
            fNorth += pB0->afPCO[0];
            fEast += pB0->afPCO[1];
            dUp += pB0->afPCO[2];
        }
    }
    // Phase centre of band 0 to that of band 1.
    if (lLo <= ZELANTREFLEVEL_PC_GPS_B0 && lHi > ZELANTREFLEVEL_PC_GPS_B0)
    {
        const SZelAntPCC* pB0 = FindPCC(rRefAntInfo, c_ulANTBAND_F01);
        const SZelAntPCC* pB1 = FindPCC(rRefAntInfo, c_ulANTBAND_F02);
        if (pB0 != nullptr && pB1 != nullptr)
        {
            fNorth += pB1->afPCO[0] - pB0->afPCO[0];
            fEast += pB1->afPCO[1] - pB0->afPCO[1];
            dUp += pB1->afPCO[2] - pB0->afPCO[2];
        }
        else
        {
            ZEL_ASSERT(false);
        }
    }
    // Nothing lies above the last level.
    if (lLo <= ZELANTREFLEVEL_PC_GPS_B1 && lHi > ZELANTREFLEVEL_PC_GPS_B1)
    {
        ZEL_ASSERT(false);
        return false;
    }

    if (eFrom > eTo)
    {
        fEast = -fEast;
        fNorth = -fNorth;
        dUp = -dUp;
    }
    // The height first, so that the local offsets use the new one.
    rRefPtCoords.dHgt += dUp;
    const float afEastNorth[2] = {fEast, fNorth};
    ApplyLocalOffsets(afEastNorth, rRefPtCoords);
    return true;
}

void ApplyLocalOffsets(const float (&afEastNorth)[2], SZelGeoCoords& rRefPtCoords)
{
    double dRadN = 0.0;
    double dRadM = 0.0;
    Radii(rRefPtCoords.dLat, rRefPtCoords.dHgt, dRadN, dRadM);
    // No division by a radius that is not positive (a point at or below the
    // centre of curvature): the coordinate stays as it is.
    if (!(dRadM > 0.0) || !(dRadN > 0.0))
    {
        return;
    }
    const double dCosLat = std::cos(rRefPtCoords.dLat);
    double dLon = rRefPtCoords.dLon;
    double dLat = rRefPtCoords.dLat;
    dLon += dCosLat == 0.0 ? afEastNorth[0] / dRadN : afEastNorth[0] / (dCosLat * dRadN);
    if (dLon > c_dPI)
    {
        dLon = std::fmod(dLon + c_dPI, c_dTWO_PI) - c_dPI;
    }
    else if (dLon < -c_dPI)
    {
        dLon = std::fmod(dLon - c_dPI, c_dTWO_PI) + c_dPI;
    }
    dLat += afEastNorth[1] / dRadM;
    // Past a pole: the latitude is reflected and the longitude turns by half
    // a circle towards zero.
    if (dLat > c_dHALF_PI || dLat < -c_dHALF_PI)
    {
        dLat = dLat > c_dHALF_PI ? c_dPI - dLat : -c_dPI - dLat;
        dLon = dLon >= 0.0 ? dLon - c_dPI : dLon + c_dPI;
    }
    rRefPtCoords.dLat = dLat;
    rRefPtCoords.dLon = dLon;
}

void GetLocalOffsets(const SZelGeoCoords& rFrom, const SZelGeoCoords& rTo, float (&rafEastNorth)[2],
                     float& rfUp)
{
    double dRadN = 0.0;
    double dRadM = 0.0;
    Radii(rFrom.dLat, rFrom.dHgt, dRadN, dRadM);
    double dLon = rTo.dLon - rFrom.dLon;
    if (dLon > c_dPI)
    {
        dLon -= c_dTWO_PI;
    }
    else if (dLon < -c_dPI)
    {
        dLon += c_dTWO_PI;
    }
    rafEastNorth[0] = static_cast<float>(std::cos(rFrom.dLat) * dLon * dRadN);
    rafEastNorth[1] = static_cast<float>((rTo.dLat - rFrom.dLat) * dRadM);
    rfUp = static_cast<float>(rTo.dHgt - rFrom.dHgt);
}

bool SetHeightAtLevel(SZelAntennaInfo& rRefAntInfo, EZelAntRefLevel eLevel, const float* pfHeight,
                      const float* pafEastNorth)
{
    if (eLevel != ZELANTREFLEVEL_ARP && eLevel != ZELANTREFLEVEL_PC_GPS_B0)
    {
        ZEL_ASSERT(false);
        return false;
    }
    SZelARPOffsets& rArp = rRefAntInfo.m_ARPOffsets;
    const SZelAntPCC* pB0 =
        eLevel == ZELANTREFLEVEL_PC_GPS_B0 ? FindPCC(rRefAntInfo, c_ulANTBAND_F01) : nullptr;
    if (pfHeight != nullptr)
    {
        ZEL_ASSERT((rRefAntInfo.m_ARPOffsets.m_eAvailability & ebVOAVAILABLE) ||
                   rRefAntInfo.m_ARPOffsets.m_dVerticalOffset == 0.0);
        double dHeightRead = *pfHeight - rArp.m_dVerticalOffset;
        if (pB0 != nullptr)
        {
            dHeightRead -= pB0->afPCO[2];
        }
        rArp.m_dHeightRead = dHeightRead;
        rArp.m_eReadMode = ZELANTREADMODE_VERTICAL;
        rArp.m_eAvailability |= ebRDAVAILABLE;
    }
    if (pafEastNorth != nullptr)
    {
        rArp.m_afHorzOffset.fHrzOffsE = pafEastNorth[0];
        rArp.m_afHorzOffset.fHrzOffsN = pafEastNorth[1];
        rArp.m_eAvailability |= ebHOAVAILABLE;
        if (pB0 != nullptr)
        {
            rArp.m_afHorzOffset.fHrzOffsN -= pB0->afPCO[0];
            rArp.m_afHorzOffset.fHrzOffsE -= pB0->afPCO[1];
        }
    }
    return true;
}

} // namespace ZELN
