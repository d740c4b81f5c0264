#include <ZelTypes/Core/Common/ZelObsEpoch.h>

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <string>
#include <utility>

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

// The steps of a batch in either direction, with its count rule: the count
// is 0 until every record has been handled, and the bytes used then.
template <class IO, class R> bool BatchCount(IO& io, R& rBatch, uint64_t* pulOffset)
{
    if (pulOffset != nullptr)
    {
        *pulOffset = 0;
    }
    if (!io.BeginLeaf(rBatch.getSize()) || !R::VisitFields(io, rBatch))
    {
        return false;
    }
    if (pulOffset != nullptr)
    {
        *pulOffset = io.Offset();
    }
    return io.End(rBatch.getSize());
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

} // namespace

// ---------------------------------------------------------------------------
// SZelObservationEpochHeader
// ---------------------------------------------------------------------------

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
    return ZelIo::WriteText(os, rstHeader);
}

std::istream& operator>>(std::istream& is, SZelObservationEpochHeader& rstHeader)
{
    return ZelIo::ReadText(is, rstHeader);
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

bool SZelObservationEpoch::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        ReportShortHeader(pBuffer, uiBufferLength);
        return false;
    }
    ZEL_ASSERT_TEXT(stZelObservationEpochHeader.stTime.IsValid(),
                    "self.stZelObservationEpochHeader.stTime.IsValid()");
    return VisitFields(stOut, *this) && stOut.End(getSize());
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
    return VisitFields(stIn, *this) && stIn.End(getSize());
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
    return ZelIo::WriteText(os, rstEpoch);
}

// A text cut before the second count leaves the satellites as they were.
std::istream& operator>>(std::istream& is, SZelObservationEpoch& rstEpoch)
{
    return ZelIo::ReadText(is, rstEpoch);
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
    return ZelIo::WriteText(os, rstKey);
}

std::istream& operator>>(std::istream& is, SZelCorrectionKey& rstKey)
{
    return ZelIo::ReadText(is, rstKey);
}

// ---------------------------------------------------------------------------
// SZelRtmeOutEpochData
// ---------------------------------------------------------------------------

SZelRtmeOutEpochData::SZelRtmeOutEpochData()
{
    mapCorrections.max_load_factor(1.0f);
    mapRangeRates.max_load_factor(1.0f);
}

SZelRtmeOutEpochData::SZelRtmeOutEpochData(const SZelRtmeOutEpochData& rhs)
    : stObs(rhs.stObs), dClock(rhs.dClock), mapCorrections(rhs.mapCorrections),
      mapRangeRates(rhs.mapRangeRates)
{
    std::copy(rhs.alStationsUsed, rhs.alStationsUsed + NB_STATION_SYSTEMS, alStationsUsed);
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
    return ZelIo::WriteText(os, rstData);
}

std::istream& operator>>(std::istream& is, SZelRtmeOutEpochData& rstData)
{
    return ZelIo::ReadText(is, rstData);
}

// ---------------------------------------------------------------------------
// SZelOutObservations
// ---------------------------------------------------------------------------

SZelOutObservations::~SZelOutObservations() = default;

bool SZelOutObservations::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    uint64_t ulUsed = 0;
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, &ulUsed);
    return BatchCount(stOut, *this, pulOffset);
}

bool SZelOutObservations::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    uint64_t ulUsed = 0;
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, &ulUsed);
    return BatchCount(stIn, *this, pulOffset);
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
