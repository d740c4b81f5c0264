#include <ZelTypes/Core/Common/ZelObsEpoch.h>

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTimeBlockIO.h>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <string>
#include <utility>
#include <vector>

namespace ZELN
{

namespace
{

constexpr const char* c_aszCorrTypeWords[c_lNB_CORRTYPES] = {"Inv", "PCV", "PCO", "Var", "PCB", "POF"};

// A buffer too short even for the header fails the header's own test too:
// such a call reports twice.
void ReportShortHeader(const void* pBuffer, uint64_t uiBufferLength)
{
    if (pBuffer != nullptr && uiBufferLength < c_ulOBSEPOCH_HEADER_SIZE)
    {
        ZEL_ASSERT(false);
    }
}

// Buckets for at least ulPresize entries, or for the present ones.
template <class TMap> void PresizeMap(TMap& rMap, uint64_t ulPresize)
{
    const double dLoadFactor = static_cast<double>(rMap.max_load_factor());
    const double dForPresize = std::ceil(static_cast<double>(ulPresize) / dLoadFactor);
    const double dForSize = std::ceil(static_cast<double>(rMap.size()) / dLoadFactor);
    rMap.rehash(static_cast<std::size_t>(std::max(dForPresize, dForSize)));
}

// Same size, and every key of the left held by the right with an equal value.
template <class TMap> bool MapsEqual(const TMap& rLeft, const TMap& rRight)
{
    if (rLeft.size() != rRight.size())
    {
        return false;
    }
    for (const auto& rEntry : rLeft)
    {
        const auto itRight = rRight.find(rEntry.first);
        if (itRight == rRight.end() || !(itRight->second == rEntry.second))
        {
            return false;
        }
    }
    return true;
}

// Room for a fixed entry, cleared (reserved bytes are zero); null when the
// entry does not fit. The fields then go straight to their offsets.
unsigned char* ClaimEntry(ZelIo::CBinWriter& stOut, uint64_t ulSize)
{
    unsigned char* pEntry = stOut.Here();
    const uint64_t ulBefore = stOut.Offset();
    stOut.Fill(ulSize);
    return stOut.Offset() == ulBefore + ulSize ? pEntry : nullptr;
}

// Correction entry, 28 bytes: satellite (8), frequency at 8, track mode Y
// at 12 with three reserved bytes, type at 16, value at 20 (unaligned).
void WriteCorrection(ZelIo::CBinWriter& stOut, const SZelCorrectionKey& rstKey, double dValue)
{
    unsigned char* pEntry = ClaimEntry(stOut, c_ulCORRECTION_ENTRY_SIZE);
    if (pEntry == nullptr)
    {
        return;
    }
    ZelIo::PutAt(pEntry, 0, rstKey.stSatId.eSatSystem);
    ZelIo::PutAt(pEntry, 4, rstKey.stSatId.uiSatNumber);
    ZelIo::PutAt(pEntry, 8, rstKey.eFrequency);
    ZelIo::PutAt(pEntry, 12, static_cast<uint8_t>(rstKey.bTrackModeY ? 1 : 0));
    ZelIo::PutAt(pEntry, 16, rstKey.eCorrType);
    ZelIo::PutAt(pEntry, 20, dValue);
}

// Range rate entry, 16 bytes: satellite (8), value at 8.
void WriteRangeRate(ZelIo::CBinWriter& stOut, const SZelSatID& rstSatId, double dValue)
{
    unsigned char* pEntry = ClaimEntry(stOut, c_ulRANGERATE_ENTRY_SIZE);
    if (pEntry == nullptr)
    {
        return;
    }
    ZelIo::PutAt(pEntry, 0, rstSatId.eSatSystem);
    ZelIo::PutAt(pEntry, 4, rstSatId.uiSatNumber);
    ZelIo::PutAt(pEntry, 8, dValue);
}

void DecodeCorrection(const unsigned char (&aucEntry)[c_ulCORRECTION_ENTRY_SIZE], SZelCorrectionKey& rstKey,
                      double& rdValue)
{
    uint64_t ulSatUsed = 0;
    rstKey.stSatId.loadData(aucEntry, sizeof(aucEntry), &ulSatUsed);
    ZelIo::GetAt(aucEntry, 8, rstKey.eFrequency);
    // Any byte other than 0 is true: a bool is never loaded from raw bits.
    uint8_t ucModeY = 0;
    ZelIo::GetAt(aucEntry, 12, ucModeY);
    rstKey.bTrackModeY = ucModeY != 0;
    ZelIo::GetAt(aucEntry, 16, rstKey.eCorrType);
    ZelIo::GetAt(aucEntry, 20, rdValue);
}

// Entries in the order of their keys, for text that does not depend on the
// bucket layout.
template <class TMap> std::vector<const typename TMap::value_type*> SortedEntries(const TMap& rMap)
{
    std::vector<const typename TMap::value_type*> vecEntries;
    vecEntries.reserve(rMap.size());
    for (const auto& rEntry : rMap)
    {
        vecEntries.push_back(&rEntry);
    }
    std::sort(vecEntries.begin(), vecEntries.end(),
              [](const typename TMap::value_type* pA, const typename TMap::value_type* pB)
              { return pA->first < pB->first; });
    return vecEntries;
}

} // namespace

// ---------------------------------------------------------------------------
// SZelObservationEpochHeader
// ---------------------------------------------------------------------------

void SZelObservationEpochHeader::Reset()
{
    ucTag0 = 0;
    ucTag1 = 0;
    stTime.ResetAt(MJDACC_EXACT);
    ucNumSats = 0;
    dClockOffset = 0.0;
    dTimeStampOffset = 0.0;
    ulDopplerRate = 1000;
    ulPositionRate = 1000;
    lSmoothingLength = 0;
    stFirstStaticMarkEpoch.ResetAt(MJDACC_NANOSECOND);
}

// One block as it stands in memory; reserved bytes written as zero.
bool SZelObservationEpochHeader::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset) const
{
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        return false;
    }
    stOut.Raw(ucTag0);
    stOut.Raw(ucTag1);
    stOut.Fill(6);
    ZelIo::WriteTimeBlock(stOut, stTime);
    stOut.Raw(ucNumSats);
    stOut.Fill(7);
    stOut.Raw(dClockOffset);
    stOut.Raw(dTimeStampOffset);
    stOut.Raw(ulDopplerRate);
    stOut.Raw(ulPositionRate);
    stOut.Raw(lSmoothingLength);
    stOut.Fill(4);
    ZelIo::WriteTimeBlock(stOut, stFirstStaticMarkEpoch);
    return stOut.End(getSize());
}

bool SZelObservationEpochHeader::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                          uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    stIn.Raw(ucTag0);
    stIn.Raw(ucTag1);
    stIn.Skip(6);
    ZelIo::ReadTimeBlock(stIn, stTime);
    stIn.Raw(ucNumSats);
    stIn.Skip(7);
    stIn.Raw(dClockOffset);
    stIn.Raw(dTimeStampOffset);
    stIn.Raw(ulDopplerRate);
    stIn.Raw(ulPositionRate);
    stIn.Raw(lSmoothingLength);
    stIn.Skip(4);
    ZelIo::ReadTimeBlock(stIn, stFirstStaticMarkEpoch);
    return stIn.End(getSize());
}

bool SZelObservationEpochHeader::operator==(const SZelObservationEpochHeader& rhs) const
{
    return ucTag0 == rhs.ucTag0 && ucTag1 == rhs.ucTag1 && stTime == rhs.stTime &&
           ucNumSats == rhs.ucNumSats && dClockOffset == rhs.dClockOffset &&
           dTimeStampOffset == rhs.dTimeStampOffset && ulDopplerRate == rhs.ulDopplerRate &&
           ulPositionRate == rhs.ulPositionRate && lSmoothingLength == rhs.lSmoothingLength &&
           stFirstStaticMarkEpoch == rhs.stFirstStaticMarkEpoch;
}

std::ostream& operator<<(std::ostream& os, const SZelObservationEpochHeader& rstHeader)
{
    os << ZelIo::Num(rstHeader.ucTag0) << ", " << ZelIo::Num(rstHeader.ucTag1) << ", ";
    rstHeader.stTime.WriteText(os, MJDTXT_GPS_MILLISECONDS);
    os << ", NumSats, " << ZelIo::Num(rstHeader.ucNumSats) << ", ClkOffs, " << rstHeader.dClockOffset
       << ", TimeStampOffs, " << rstHeader.dTimeStampOffset << ", DoppRate, " << rstHeader.ulDopplerRate
       << ", PosRate, " << rstHeader.ulPositionRate << ", SmooLgth, " << rstHeader.lSmoothingLength
       << ", 1stStatMrkEpoch, ";
    return rstHeader.stFirstStaticMarkEpoch.WriteText(os, MJDTXT_GPS_SECONDS);
}

// A week from 5966 on or a time of week out of range gives day 0, 0 ms at
// nanosecond accuracy, without a report (the time's own reader).
std::istream& operator>>(std::istream& is, SZelObservationEpochHeader& rstHeader)
{
    ZelIo::ReadAs<uint32_t>(is, rstHeader.ucTag0);
    ZelIo::SkipComma(is);
    ZelIo::ReadAs<uint32_t>(is, rstHeader.ucTag1);
    ZelIo::SkipComma(is);
    rstHeader.stTime.ReadText(is, MJDTXT_GPS_MILLISECONDS);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstHeader.ucNumSats);
    ZelIo::SkipSeparator(is);
    is >> rstHeader.dClockOffset;
    ZelIo::SkipSeparator(is);
    is >> rstHeader.dTimeStampOffset;
    ZelIo::SkipSeparator(is);
    is >> rstHeader.ulDopplerRate;
    ZelIo::SkipSeparator(is);
    is >> rstHeader.ulPositionRate;
    ZelIo::SkipSeparator(is);
    is >> rstHeader.lSmoothingLength;
    ZelIo::SkipSeparator(is);
    return rstHeader.stFirstStaticMarkEpoch.ReadText(is, MJDTXT_GPS_SECONDS);
}

// ---------------------------------------------------------------------------
// SZelObservationEpoch
// ---------------------------------------------------------------------------

SZelObservationEpoch::~SZelObservationEpoch() = default;

void SZelObservationEpoch::Reset()
{
    vecSatObs.clear();
    stZelObservationEpochHeader.Reset();
}

uint64_t SZelObservationEpoch::getSize() const
{
    uint64_t ulSize = c_ulOBSEPOCH_FIXED_SIZE;
    for (const SZelSatObservation& rstSat : vecSatObs)
    {
        ulSize += rstSat.getSize();
    }
    return ulSize;
}

bool SZelObservationEpoch::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    const SZelObservationEpoch& self = *this;
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        ReportShortHeader(pBuffer, uiBufferLength);
        return false;
    }
    ZEL_ASSERT(self.stZelObservationEpochHeader.stTime.IsValid());
    if (!stOut.Record(stZelObservationEpochHeader) || !stOut.Sequence(vecSatObs))
    {
        return false;
    }
    return stOut.End(getSize());
}

bool SZelObservationEpoch::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    // Against the present content: a fresh epoch needs 100 bytes, and the
    // counts read are then followed by the satellites' own tests.
    if (!stIn.BeginLeaf(getSize()))
    {
        ReportShortHeader(pBuffer, uiBufferLength);
        return false;
    }
    if (!stIn.Record(stZelObservationEpochHeader, true) || !stIn.Sequence(vecSatObs, true))
    {
        return false;
    }
    return stIn.End(getSize());
}

bool SZelObservationEpoch::operator==(const SZelObservationEpoch& rhs) const
{
    if (stZelObservationEpochHeader != rhs.stZelObservationEpochHeader ||
        vecSatObs.size() != rhs.vecSatObs.size())
    {
        return false;
    }
    for (std::size_t ulIdx = 0; ulIdx < vecSatObs.size(); ++ulIdx)
    {
        if (vecSatObs[ulIdx] != rhs.vecSatObs[ulIdx])
        {
            return false;
        }
    }
    return true;
}

std::ostream& operator<<(std::ostream& os, const SZelObservationEpoch& rstEpoch)
{
    if (rstEpoch.vecSatObs.size() >= 0xFFFFFFFFu)
    {
        ZEL_ASSERT(false);
    }
    os << rstEpoch.stZelObservationEpochHeader << ", NumSats, " << rstEpoch.vecSatObs.size();
    for (const SZelSatObservation& rstSat : rstEpoch.vecSatObs)
    {
        os << ", " << rstSat;
    }
    return os;
}

std::istream& operator>>(std::istream& is, SZelObservationEpoch& rstEpoch)
{
    is >> rstEpoch.stZelObservationEpochHeader;
    ZelIo::SkipSeparator(is);
    uint32_t ulNbSats = 0;
    // The vector is sized by the true count, the second one of the line; a
    // text cut before it leaves the satellites as they were.
    if (!(is >> ulNbSats))
    {
        return is;
    }
    rstEpoch.vecSatObs.resize(ulNbSats);
    for (SZelSatObservation& rstSat : rstEpoch.vecSatObs)
    {
        if (!is)
        {
            break;
        }
        ZelIo::SkipComma(is);
        is >> rstSat;
    }
    return is;
}

// ---------------------------------------------------------------------------
// SZelCorrectionKey
// ---------------------------------------------------------------------------

bool SZelCorrectionKey::operator<(const SZelCorrectionKey& rhs) const
{
    if (eCorrType != rhs.eCorrType)
    {
        return eCorrType < rhs.eCorrType;
    }
    if (eFrequency != rhs.eFrequency)
    {
        return eFrequency < rhs.eFrequency;
    }
    if (bTrackModeY != rhs.bTrackModeY)
    {
        return bTrackModeY < rhs.bTrackModeY;
    }
    return stSatId < rhs.stSatId;
}

std::ostream& operator<<(std::ostream& os, EZelCorrType eCorrType)
{
    return os << ZelIo::EnumWord(eCorrType, c_aszCorrTypeWords, c_lNB_CORRTYPES, "Inv");
}

std::istream& operator>>(std::istream& is, EZelCorrType& reCorrType)
{
    std::string strWord;
    is >> std::setw(3) >> strWord;
    if (is.peek() == ',')
    {
        is.get();
    }
    int32_t lType = ZELCORRTYPE_INV;
    for (int32_t lIdx = 0; lIdx < c_lNB_CORRTYPES; ++lIdx)
    {
        if (strWord == c_aszCorrTypeWords[lIdx])
        {
            lType = lIdx;
        }
    }
    reCorrType = static_cast<EZelCorrType>(lType);
    return is;
}

std::ostream& operator<<(std::ostream& os, const SZelCorrectionKey& rstKey)
{
    return os << "SatId, " << rstKey.stSatId << ", Frq, " << static_cast<int32_t>(rstKey.eFrequency)
              << ", TrckModY, " << rstKey.bTrackModeY << ", CorrTyp, " << rstKey.eCorrType;
}

// The type's reader takes the comma behind it.
std::istream& operator>>(std::istream& is, SZelCorrectionKey& rstKey)
{
    ZelIo::SkipTag(is);
    is >> rstKey.stSatId;
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<int32_t>(is, rstKey.eFrequency);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<int32_t>(is, rstKey.bTrackModeY);
    ZelIo::SkipSeparator(is);
    return is >> rstKey.eCorrType;
}

// ---------------------------------------------------------------------------
// SZelRtmeOutEpochData
// ---------------------------------------------------------------------------

SZelRtmeOutEpochData::SZelRtmeOutEpochData() : stObs(), alStationsUsed{0, 0, 0, 0}, dClock(0.0)
{
    mapCorrections.max_load_factor(1.0f);
    mapRangeRates.max_load_factor(1.0f);
}

SZelRtmeOutEpochData::SZelRtmeOutEpochData(const SZelRtmeOutEpochData& rhs)
    : stObs(rhs.stObs), alStationsUsed{rhs.alStationsUsed[0], rhs.alStationsUsed[1], rhs.alStationsUsed[2],
                                       rhs.alStationsUsed[3]},
      dClock(rhs.dClock), mapCorrections(rhs.mapCorrections), mapRangeRates(rhs.mapRangeRates)
{
    mapCorrections.max_load_factor(1.0f);
    mapRangeRates.max_load_factor(1.0f);
    PresizeMap(mapCorrections, c_ulCORRECTIONS_PRESIZE);
    PresizeMap(mapRangeRates, c_ulRANGERATES_PRESIZE);
}

SZelRtmeOutEpochData::~SZelRtmeOutEpochData() = default;

void SZelRtmeOutEpochData::Reset()
{
    dClock = 0.0;
    mapCorrections.clear();
    mapRangeRates.clear();
}

void SZelRtmeOutEpochData::CountSatsWithPhase(uint32_t (&aulCounts)[NB_SAT_SYSTEM_COUNTERS]) const
{
    std::fill(aulCounts, aulCounts + NB_SAT_SYSTEM_COUNTERS, 0u);
    for (const SZelSatObservation& rstSat : stObs.vecSatObs)
    {
        const int32_t lSys = rstSat.stSatId.eSatSystem;
        // A system outside the counters has no counter to add to.
        if (lSys < 0 || static_cast<uint32_t>(lSys) >= NB_SAT_SYSTEM_COUNTERS)
        {
            continue;
        }
        for (uint32_t ulIdx = 0; ulIdx < rstSat.UsedFreqs(); ++ulIdx)
        {
            if (rstSat.astFreqObs[ulIdx].HasPhase())
            {
                ++aulCounts[lSys];
                break;
            }
        }
    }
}

ZelCorrectionMap::value_type& SZelRtmeOutEpochData::AddCorrection(EZelCorrType eCorrType,
                                                                  const SZelSatID& stSatId,
                                                                  EZelFrequency eFrequency, bool bTrackModeY,
                                                                  double dValue)
{
    const auto stResult = mapCorrections.insert(
        std::make_pair(SZelCorrectionKey(eCorrType, stSatId, eFrequency, bTrackModeY), dValue));
    if (!stResult.second)
    {
        stResult.first->second = dValue;
    }
    return *stResult.first;
}

bool SZelRtmeOutEpochData::GetCorrection(EZelCorrType eCorrType, const SZelSatID& stSatId,
                                         EZelFrequency eFrequency, bool bTrackModeY, double& rdValue) const
{
    const auto it = mapCorrections.find(SZelCorrectionKey(eCorrType, stSatId, eFrequency, bTrackModeY));
    if (it == mapCorrections.end())
    {
        rdValue = 0.0;
        return false;
    }
    rdValue = it->second;
    return true;
}

ZelRangeRateMap::value_type& SZelRtmeOutEpochData::AddRangeRate(const SZelSatID& stSatId, double dValue)
{
    const auto stResult = mapRangeRates.insert(std::make_pair(stSatId, dValue));
    if (!stResult.second)
    {
        stResult.first->second = dValue;
    }
    return *stResult.first;
}

bool SZelRtmeOutEpochData::GetRangeRate(const SZelSatID& stSatId, double& rdValue) const
{
    const auto it = mapRangeRates.find(stSatId);
    if (it == mapRangeRates.end())
    {
        rdValue = 0.0;
        return false;
    }
    rdValue = it->second;
    return true;
}

uint64_t SZelRtmeOutEpochData::getSize() const
{
    return stObs.getSize() + c_ulCORRECTION_ENTRY_SIZE * mapCorrections.size() +
           c_ulRANGERATE_ENTRY_SIZE * (mapRangeRates.size() + 2);
}

bool SZelRtmeOutEpochData::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        return false;
    }
    if (!stOut.Record(stObs))
    {
        return false;
    }
    for (const int32_t lStations : alStationsUsed)
    {
        stOut.Raw(lStations);
    }
    stOut.Raw(dClock);
    // Entries in the map's iteration order.
    stOut.Count(mapCorrections.size());
    for (const auto& rEntry : mapCorrections)
    {
        WriteCorrection(stOut, rEntry.first, rEntry.second);
    }
    stOut.Count(mapRangeRates.size());
    for (const auto& rEntry : mapRangeRates)
    {
        WriteRangeRate(stOut, rEntry.first, rEntry.second);
    }
    return stOut.End(getSize());
}

bool SZelRtmeOutEpochData::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    if (!stIn.Record(stObs))
    {
        return false;
    }
    for (int32_t& rlStations : alStationsUsed)
    {
        stIn.Raw(rlStations);
    }
    stIn.Raw(dClock);
    // Entries are read one by one, each with its own bounds test: a count
    // beyond the buffer fails at the entry where the buffer ends.
    uint32_t ulNbCorrections = 0;
    if (!stIn.Count(ulNbCorrections))
    {
        return false;
    }
    for (uint32_t ulIdx = 0; ulIdx < ulNbCorrections; ++ulIdx)
    {
        unsigned char aucEntry[c_ulCORRECTION_ENTRY_SIZE];
        if (!stIn.RawChecked(aucEntry))
        {
            return false;
        }
        SZelCorrectionKey stKey;
        double dValue = 0.0;
        DecodeCorrection(aucEntry, stKey, dValue);
        mapCorrections[stKey] = dValue;
    }
    uint32_t ulNbRangeRates = 0;
    if (!stIn.Count(ulNbRangeRates))
    {
        return false;
    }
    for (uint32_t ulIdx = 0; ulIdx < ulNbRangeRates; ++ulIdx)
    {
        unsigned char aucEntry[c_ulRANGERATE_ENTRY_SIZE];
        if (!stIn.RawChecked(aucEntry))
        {
            return false;
        }
        SZelSatID stSatId;
        uint64_t ulSatUsed = 0;
        stSatId.loadData(aucEntry, sizeof(aucEntry), &ulSatUsed);
        double dValue = 0.0;
        ZelIo::GetAt(aucEntry, 8, dValue);
        mapRangeRates[stSatId] = dValue;
    }
    return stIn.End(getSize());
}

bool SZelRtmeOutEpochData::operator==(const SZelRtmeOutEpochData& rhs) const
{
    if (stObs != rhs.stObs)
    {
        return false;
    }
    for (uint32_t ulIdx = 0; ulIdx < NB_STATION_SYSTEMS; ++ulIdx)
    {
        if (alStationsUsed[ulIdx] != rhs.alStationsUsed[ulIdx])
        {
            return false;
        }
    }
    return dClock == rhs.dClock && MapsEqual(mapCorrections, rhs.mapCorrections) &&
           MapsEqual(mapRangeRates, rhs.mapRangeRates);
}

std::ostream& operator<<(std::ostream& os, const SZelRtmeOutEpochData& rstData)
{
    os << "Obs, " << rstData.stObs << ", StnUsdG, " << rstData.alStationsUsed[0] << ", StnUsdR, "
       << rstData.alStationsUsed[1] << ", StnUsdC, " << rstData.alStationsUsed[2] << ", StnUsdE, "
       << rstData.alStationsUsed[3] << ", Clk, " << rstData.dClock << ", Corrs, "
       << rstData.mapCorrections.size();
    for (const auto* pEntry : SortedEntries(rstData.mapCorrections))
    {
        os << ", " << pEntry->first << ", " << pEntry->second;
    }
    os << ", RngRates, " << rstData.mapRangeRates.size();
    for (const auto* pEntry : SortedEntries(rstData.mapRangeRates))
    {
        os << ", " << pEntry->first << ", " << pEntry->second;
    }
    return os;
}

std::istream& operator>>(std::istream& is, SZelRtmeOutEpochData& rstData)
{
    ZelIo::SkipTag(is);
    is >> rstData.stObs;
    for (int32_t& rlStations : rstData.alStationsUsed)
    {
        ZelIo::SkipSeparator(is);
        is >> rlStations;
    }
    ZelIo::SkipSeparator(is);
    is >> rstData.dClock;
    ZelIo::SkipSeparator(is);
    uint32_t ulNbCorrections = 0;
    is >> ulNbCorrections;
    // A failed stream ends the loop: nothing more can be read from it.
    for (uint32_t ulIdx = 0; ulIdx < ulNbCorrections && is; ++ulIdx)
    {
        SZelCorrectionKey stKey;
        double dValue = 0.0;
        ZelIo::SkipComma(is);
        is >> stKey >> dValue;
        if (is)
        {
            rstData.mapCorrections[stKey] = dValue;
        }
    }
    ZelIo::SkipSeparator(is);
    uint32_t ulNbRangeRates = 0;
    is >> ulNbRangeRates;
    for (uint32_t ulIdx = 0; ulIdx < ulNbRangeRates && is; ++ulIdx)
    {
        SZelSatID stSatId;
        double dValue = 0.0;
        ZelIo::SkipComma(is);
        is >> stSatId;
        ZelIo::SkipComma(is);
        is >> dValue;
        if (is)
        {
            rstData.mapRangeRates[stSatId] = dValue;
        }
    }
    return is;
}

// ---------------------------------------------------------------------------
// SZelOutObservations
// ---------------------------------------------------------------------------

SZelOutObservations::~SZelOutObservations() = default;

uint64_t SZelOutObservations::getSize() const
{
    uint64_t ulSize = 12;
    for (const SZelRtmeOutEpochData& rstData : vecEpochs)
    {
        ulSize += rstData.getSize();
    }
    return ulSize;
}

// An element that fails ends the call with false and the used bytes left at 0.
bool SZelOutObservations::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    if (pulOffset != nullptr)
    {
        *pulOffset = 0;
    }
    uint64_t ulUsed = 0;
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, &ulUsed);
    if (!stOut.BeginLeaf(getSize()))
    {
        return false;
    }
    stOut.Raw(ulValue0);
    stOut.Raw(ulValue1);
    stOut.Count(vecEpochs.size());
    for (const SZelRtmeOutEpochData& rstData : vecEpochs)
    {
        uint64_t ulLocal = 0;
        if (!rstData.saveData(stOut.Here(), stOut.Remaining(), &ulLocal))
        {
            return false;
        }
        ulUsed += ulLocal;
    }
    if (pulOffset != nullptr)
    {
        *pulOffset = ulUsed;
    }
    return stOut.End(getSize());
}

bool SZelOutObservations::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    if (pulOffset != nullptr)
    {
        *pulOffset = 0;
    }
    uint64_t ulUsed = 0;
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, &ulUsed);
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    stIn.Raw(ulValue0);
    stIn.Raw(ulValue1);
    uint32_t ulNbEpochs = 0;
    stIn.Count(ulNbEpochs);
    vecEpochs.resize(ulNbEpochs);
    for (SZelRtmeOutEpochData& rstData : vecEpochs)
    {
        uint64_t ulLocal = 0;
        if (!rstData.loadData(stIn.Here(), stIn.Remaining(), &ulLocal))
        {
            return false;
        }
        ulUsed += ulLocal;
    }
    if (pulOffset != nullptr)
    {
        *pulOffset = ulUsed;
    }
    return stIn.End(getSize());
}

bool SZelOutObservations::operator==(const SZelOutObservations& rhs) const
{
    if (ulValue0 != rhs.ulValue0 || ulValue1 != rhs.ulValue1 || vecEpochs.size() != rhs.vecEpochs.size())
    {
        return false;
    }
    for (std::size_t ulIdx = 0; ulIdx < vecEpochs.size(); ++ulIdx)
    {
        if (vecEpochs[ulIdx] != rhs.vecEpochs[ulIdx])
        {
            return false;
        }
    }
    return true;
}

IZelNotificationInterface::~IZelNotificationInterface() = default;

} // namespace ZELN
