#include <ZelTypes/Core/Common/ZelTypesObs.h>

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstddef>
#include <cstring>

namespace ZELN
{

namespace
{

// One latch per system for the pairs that the default table lacks; GPS and
// QZSS share theirs. Plain flags: a lost race costs one more report.
bool s_bGpsQzssUnknownLatch = false;
bool s_bGpsQzssPRowLatch = false;
bool s_bGlonassUnknownLatch = false;
bool s_bGalileoUnknownLatch = false;
bool s_bSbasUnknownLatch = false;
bool s_bBeidouUnknownLatch = false;
bool s_bNavicUnknownLatch = false;
bool s_bOtherSystemUnknownLatch = false;

EZelTrackMode UnknownPairOnce(bool& rbLatch)
{
    if (!rbLatch)
    {
        rbLatch = true;
        ZEL_ASSERT((false));
    }
    return ZELTRACKMODE_UNKNOWN;
}

bool IsFrequencySlot(EZelFrequency eFrequency)
{
    return eFrequency >= ZELFREQUENCY_L1CA && eFrequency <= ZELFREQUENCY_E6;
}

// The memory layouts of the head and of a signal record are their images
// (the offsets are checked here), so both go as one block each. Reserved and
// filling bytes travel as they stand on reading and go out as zero.
static_assert(offsetof(SZelSatObservation, stSatId) == 0 && offsetof(SZelSatObservation, ulIOD) == 8 &&
                  offsetof(SZelSatObservation, ucSatFlags) == 12 &&
                  offsetof(SZelSatObservation, ucChannel) == 13 &&
                  offsetof(SZelSatObservation, uiNumFreq) == 14 && offsetof(SZelSatID, uiSatNumber) == 4 &&
                  sizeof(SZelSatID) == 8,
              "head layout");
static_assert(offsetof(SZelFreqObservation, eFrequency) == 4 &&
                  offsetof(SZelFreqObservation, eTrackMode) == 8 &&
                  offsetof(SZelFreqObservation, dPhase) == 16 && offsetof(SZelFreqObservation, dCode) == 24 &&
                  offsetof(SZelFreqObservation, dDopplerM) == 32 &&
                  offsetof(SZelFreqObservation, dDopplerC) == 40 &&
                  offsetof(SZelFreqObservation, unContMeasCount10Msec) == 48 &&
                  offsetof(SZelFreqObservation, unCNo) == 50 &&
                  offsetof(SZelFreqObservation, unPhaseRms100thMm) == 52 &&
                  offsetof(SZelFreqObservation, unRangeRmsMm) == 54 &&
                  offsetof(SZelFreqObservation, nTimeOffsetRTCM9) == 56 &&
                  offsetof(SZelFreqObservation, fVelocity) == 60 &&
                  offsetof(SZelFreqObservation, fAcceleration) == 64 &&
                  sizeof(SZelFreqObservation) == c_ulFREQOBS_SIZE,
              "signal record layout");

// A block of constant size; null when it did not fit.
template <uint64_t ulSize> unsigned char* WriteBlock(ZelIo::CBinWriter& stOut, const void* pBlock)
{
    unsigned char* pOut = stOut.Here();
    const uint64_t ulBefore = stOut.Offset();
    stOut.Bytes(pBlock, ulSize);
    return stOut.Offset() == ulBefore + ulSize ? pOut : nullptr;
}

void WriteHead(ZelIo::CBinWriter& stOut, const SZelSatObservation& rstSat)
{
    unsigned char* pOut = WriteBlock<c_ulSATOBS_HEAD_SIZE>(stOut, &rstSat);
    if (pOut != nullptr)
    {
        std::memset(pOut + 5, 0, 3);
    }
}

void WriteFreqObs(ZelIo::CBinWriter& stOut, const SZelFreqObservation& rstObs)
{
    unsigned char* pOut = WriteBlock<c_ulFREQOBS_SIZE>(stOut, &rstObs);
    if (pOut != nullptr)
    {
        std::memset(pOut + 12, 0, 4);
        std::memset(pOut + 58, 0, 2);
        std::memset(pOut + 68, 0, 4);
    }
}

// A letter of the text form; an unknown letter gives 0 without a report,
// since a text reader never reports.
EZelTrackMode TrackModeOfLetter(char cLetter)
{
    for (int32_t lMode = ZELTRACKMODE_UNKNOWN; lMode <= ZELTRACKMODE_Z; ++lMode)
    {
        if (ToTrackModeLetter(static_cast<EZelTrackMode>(lMode)) == cLetter)
        {
            return static_cast<EZelTrackMode>(lMode);
        }
    }
    return ZELTRACKMODE_UNKNOWN;
}

} // namespace

// ---------------------------------------------------------------------------
// SZelFreqObservation
// ---------------------------------------------------------------------------

EZelTrackMode SZelFreqObservation::GetTrackMode(EZelSatSystem eSys, bool* pbDefaulted) const
{
    if (eTrackMode != ZELTRACKMODE_UNKNOWN)
    {
        if (pbDefaulted != nullptr)
        {
            *pbDefaulted = false;
        }
        return eTrackMode;
    }
    if (pbDefaulted != nullptr)
    {
        *pbDefaulted = true;
    }
    return GetDefaultTrackMode(eSys, eFrequency, ulObsFlags);
}

EZelTrackMode SZelFreqObservation::GetDefaultTrackMode(EZelSatSystem eSys, EZelFrequency eFrequency,
                                                       uint32_t ulObsFlags)
{
    switch (eSys)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_QZSS:
        switch (eFrequency)
        {
        case ZELFREQUENCY_L1CA:
            return ZELTRACKMODE_C;
        case ZELFREQUENCY_L1P:
        case ZELFREQUENCY_L2P:
            // The P row is a GPS row; QZSS reaching it first is worth one report.
            if (!s_bGpsQzssPRowLatch)
            {
                s_bGpsQzssPRowLatch = true;
                ZEL_ASSERT((eSys != ZELSATSYSTEM_QZSS));
            }
            return (ulObsFlags & c_ulOBSFLAG_TRACKMODEW) != 0 ? ZELTRACKMODE_W : ZELTRACKMODE_P;
        case ZELFREQUENCY_L2C:
            return ZELTRACKMODE_S;
        case ZELFREQUENCY_L5:
            return ZELTRACKMODE_Q;
        case ZELFREQUENCY_L1C:
            return ZELTRACKMODE_L;
        default:
            return UnknownPairOnce(s_bGpsQzssUnknownLatch);
        }
    case ZELSATSYSTEM_GLONASS:
        switch (eFrequency)
        {
        case ZELFREQUENCY_L1CA:
        case ZELFREQUENCY_L2C:
            return ZELTRACKMODE_C;
        case ZELFREQUENCY_L1P:
        case ZELFREQUENCY_L2P:
            return ZELTRACKMODE_P;
        case ZELFREQUENCY_L5:
            return ZELTRACKMODE_Q;
        default:
            return UnknownPairOnce(s_bGlonassUnknownLatch);
        }
    case ZELSATSYSTEM_GALILEO:
        switch (eFrequency)
        {
        case ZELFREQUENCY_L1C:
        case ZELFREQUENCY_E6:
            return ZELTRACKMODE_C;
        case ZELFREQUENCY_E5A:
        case ZELFREQUENCY_E5B:
        case ZELFREQUENCY_E5AB:
            return ZELTRACKMODE_Q;
        default:
            return UnknownPairOnce(s_bGalileoUnknownLatch);
        }
    case ZELSATSYSTEM_BEIDOU:
        switch (eFrequency)
        {
        case ZELFREQUENCY_L1CA:
        case ZELFREQUENCY_L2P:
        case ZELFREQUENCY_L5:
            return ZELTRACKMODE_I;
        case ZELFREQUENCY_L2C:
            return ZELTRACKMODE_D;
        case ZELFREQUENCY_E5B:
        case ZELFREQUENCY_E5AB:
            return ZELTRACKMODE_P;
        default:
            return UnknownPairOnce(s_bBeidouUnknownLatch);
        }
    case ZELSATSYSTEM_SBAS:
        switch (eFrequency)
        {
        case ZELFREQUENCY_L1CA:
            return ZELTRACKMODE_C;
        case ZELFREQUENCY_L5:
            return ZELTRACKMODE_I;
        default:
            return UnknownPairOnce(s_bSbasUnknownLatch);
        }
    case ZELSATSYSTEM_NAVIC:
        if (eFrequency == ZELFREQUENCY_L5)
        {
            return ZELTRACKMODE_A;
        }
        return UnknownPairOnce(s_bNavicUnknownLatch);
    case ZELSATSYSTEM_LOCATA:
        return ZELTRACKMODE_I;
    default:
        return UnknownPairOnce(s_bOtherSystemUnknownLatch);
    }
}

bool SZelFreqObservation::operator==(const SZelFreqObservation& rhs) const
{
    if (eFrequency != rhs.eFrequency || eTrackMode != rhs.eTrackMode || ulObsFlags != rhs.ulObsFlags)
    {
        return false;
    }
    // Flags are equal now: a value whose bit is clear is not looked at.
    if ((HasPhase() && !(dPhase == rhs.dPhase)) || (HasCode() && !(dCode == rhs.dCode)) ||
        (HasDopplerM() && !(dDopplerM == rhs.dDopplerM)) ||
        (HasDopplerC() && !(dDopplerC == rhs.dDopplerC)) || (HasCNo() && unCNo != rhs.unCNo) ||
        (HasVelocity() && !(fVelocity == rhs.fVelocity)) ||
        (HasAcceleration() && !(fAcceleration == rhs.fAcceleration)))
    {
        return false;
    }
    // Secondary values: a difference shows in a diagnostic run and leaves
    // the records equal.
    ZEL_ASSERT(unContMeasCount10Msec == rhs.unContMeasCount10Msec);
    ZEL_ASSERT(unPhaseRms100thMm == rhs.unPhaseRms100thMm);
    ZEL_ASSERT(unRangeRmsMm == rhs.unRangeRmsMm);
    ZEL_ASSERT(nTimeOffsetRTCM9 == rhs.nTimeOffsetRTCM9);
    return true;
}

std::ostream& operator<<(std::ostream& os, const SZelFreqObservation& rstFreqObs)
{
    return os << "Flgs, " << rstFreqObs.ulObsFlags << ", Frq, " << static_cast<int32_t>(rstFreqObs.eFrequency)
              << ", TrkMode, " << ToTrackModeLetter(rstFreqObs.eTrackMode) << ", Phs, " << rstFreqObs.dPhase
              << ", Cod, " << rstFreqObs.dCode << ", DoppM, " << rstFreqObs.dDopplerM << ", DoppC, "
              << rstFreqObs.dDopplerC << ", ContMeas, " << rstFreqObs.unContMeasCount10Msec << ", CNo, "
              << rstFreqObs.unCNo << ", PhsRms, " << rstFreqObs.unPhaseRms100thMm << ", CodRms, "
              << rstFreqObs.unRangeRmsMm << ", TimOffs, " << rstFreqObs.nTimeOffsetRTCM9 << ", Vel, "
              << rstFreqObs.fVelocity << ", Acc, " << rstFreqObs.fAcceleration;
}

std::istream& operator>>(std::istream& is, SZelFreqObservation& rstFreqObs)
{
    ZelIo::SkipTag(is);
    is >> rstFreqObs.ulObsFlags;
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<int32_t>(is, rstFreqObs.eFrequency);
    ZelIo::SkipSeparator(is);
    char cLetter = 0;
    if (is >> cLetter)
    {
        rstFreqObs.eTrackMode = TrackModeOfLetter(cLetter);
    }
    ZelIo::SkipSeparator(is);
    is >> rstFreqObs.dPhase;
    ZelIo::SkipSeparator(is);
    is >> rstFreqObs.dCode;
    ZelIo::SkipSeparator(is);
    is >> rstFreqObs.dDopplerM;
    ZelIo::SkipSeparator(is);
    is >> rstFreqObs.dDopplerC;
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstFreqObs.unContMeasCount10Msec);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstFreqObs.unCNo);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstFreqObs.unPhaseRms100thMm);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<uint32_t>(is, rstFreqObs.unRangeRmsMm);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadAs<int32_t>(is, rstFreqObs.nTimeOffsetRTCM9);
    ZelIo::SkipSeparator(is);
    is >> rstFreqObs.fVelocity;
    ZelIo::SkipSeparator(is);
    is >> rstFreqObs.fAcceleration;
    return is;
}

// ---------------------------------------------------------------------------
// SZelSatObservation
// ---------------------------------------------------------------------------

bool SZelSatObservation::GetIOD(uint16_t& runIod) const
{
    if (ulIOD >= 0xFFFFFFFEu)
    {
        return false;
    }
    runIod = static_cast<uint16_t>(ulIOD);
    return true;
}

void SZelSatObservation::SetState4ForAllFreqs(bool bSet)
{
    for (uint32_t ulIdx = 0; ulIdx < UsedFreqs(); ++ulIdx)
    {
        astFreqObs[ulIdx].SetState4(bSet);
    }
}

bool SZelSatObservation::HasState4() const
{
    for (uint32_t ulIdx = 0; ulIdx < UsedFreqs(); ++ulIdx)
    {
        if (astFreqObs[ulIdx].HasState4())
        {
            return true;
        }
    }
    return false;
}

void SZelSatObservation::MarkSignalClasses()
{
    for (uint32_t ulIdx = 0; ulIdx < UsedFreqs(); ++ulIdx)
    {
        SZelFreqObservation& rstObs = astFreqObs[ulIdx];
        const EZelFrequency eFrq = rstObs.eFrequency;
        bool bClass = false;
        switch (stSatId.eSatSystem)
        {
        case ZELSATSYSTEM_GPS:
        case ZELSATSYSTEM_QZSS:
            bClass = eFrq == ZELFREQUENCY_L1C;
            break;
        case ZELSATSYSTEM_GLONASS:
            bClass = eFrq == ZELFREQUENCY_L5;
            break;
        case ZELSATSYSTEM_GALILEO:
            bClass = eFrq == ZELFREQUENCY_E6;
            break;
        case ZELSATSYSTEM_BEIDOU:
            bClass = eFrq == ZELFREQUENCY_L2C || eFrq == ZELFREQUENCY_E5B;
            break;
        case ZELSATSYSTEM_NAVIC:
            bClass = true;
            break;
        case ZELSATSYSTEM_SBAS:
            bClass = true;
            rstObs.ulObsFlags |= c_ulOBSFLAG_SBAS;
            break;
        default:
            break;
        }
        if (bClass)
        {
            rstObs.ulObsFlags |= c_ulOBSFLAG_SIGCLASS;
        }
    }
}

bool SZelSatObservation::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    const SZelSatObservation& self = *this;
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.BeginLeaf(getSize()))
    {
        return false;
    }
    if (!stSatId.isValid())
    {
        ZEL_ASSERT(false);
    }
    WriteHead(stOut, *this);
    // A count above the array writes the six records there are; the size
    // written then differs from getSize() and the result is false.
    ZEL_ASSERT(self.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED);
    for (uint32_t ulIdx = 0; ulIdx < UsedFreqs(); ++ulIdx)
    {
        if (!IsFrequencySlot(astFreqObs[ulIdx].eFrequency))
        {
            ZEL_ASSERT(false);
        }
        WriteFreqObs(stOut, astFreqObs[ulIdx]);
    }
    return stOut.End(getSize());
}

bool SZelSatObservation::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    SZelSatObservation& self = *this;
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    // Tested against the count the record holds before the load: a record
    // filled earlier needs the room of its old content.
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    stIn.Bytes(this, c_ulSATOBS_HEAD_SIZE);
    if (!stSatId.isValid())
    {
        ZEL_ASSERT(false);
    }
    ZEL_ASSERT(self.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED);
    // The true test, on the count read: silent, the head stays stored.
    if (getSize() > uiBufferLength)
    {
        if (pulOffset != nullptr)
        {
            *pulOffset = 0;
        }
        return false;
    }
    for (uint32_t ulIdx = 0; ulIdx < UsedFreqs(); ++ulIdx)
    {
        stIn.Bytes(&astFreqObs[ulIdx], c_ulFREQOBS_SIZE);
        if (!IsFrequencySlot(astFreqObs[ulIdx].eFrequency))
        {
            ZEL_ASSERT(false);
        }
    }
    return stIn.End(getSize());
}

bool SZelSatObservation::operator==(const SZelSatObservation& rhs) const
{
    if (stSatId != rhs.stSatId || ucSatFlags != rhs.ucSatFlags || ucChannel != rhs.ucChannel ||
        uiNumFreq != rhs.uiNumFreq)
    {
        return false;
    }
    for (uint32_t ulIdx = 0; ulIdx < UsedFreqs(); ++ulIdx)
    {
        if (astFreqObs[ulIdx] != rhs.astFreqObs[ulIdx])
        {
            return false;
        }
    }
    ZEL_ASSERT(ulIOD == rhs.ulIOD);
    return true;
}

std::ostream& operator<<(std::ostream& os, const SZelSatObservation& rstSatObs)
{
    os << "SatId, " << rstSatObs.stSatId << ", IOD, " << rstSatObs.ulIOD << ", SatFlgs, " << std::showbase;
    // Back to decimal after the flags; the base prefix stays on the stream.
    ZelIo::WriteHex(os, rstSatObs.ucSatFlags);
    os << ", ChnNum, " << ZelIo::Num(rstSatObs.ucChannel) << ", NumFrqs, " << ZelIo::Num(rstSatObs.uiNumFreq);
    ZEL_ASSERT(rstSatObs.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED);
    for (uint32_t ulIdx = 0; ulIdx < rstSatObs.UsedFreqs(); ++ulIdx)
    {
        os << ", " << rstSatObs.astFreqObs[ulIdx];
    }
    return os;
}

std::istream& operator>>(std::istream& is, SZelSatObservation& rstSatObs)
{
    uint32_t ulSatFlags = 0;
    uint32_t ulChannel = 0;
    uint32_t ulNumFreq = 0;
    ZelIo::SkipTag(is);
    is >> rstSatObs.stSatId;
    ZelIo::SkipSeparator(is);
    is >> rstSatObs.ulIOD;
    ZelIo::SkipSeparator(is);
    ZelIo::ReadHex<uint32_t>(is, ulSatFlags);
    ZelIo::SkipSeparator(is);
    is >> ulChannel;
    ZelIo::SkipSeparator(is);
    is >> ulNumFreq;
    rstSatObs.ucSatFlags = static_cast<uint8_t>(ulSatFlags);
    rstSatObs.ucChannel = static_cast<uint8_t>(ulChannel);
    rstSatObs.uiNumFreq = static_cast<uint8_t>(ulNumFreq);
    // A count above the array reads six records and keeps the value read.
    ZEL_ASSERT(rstSatObs.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED);
    for (uint32_t ulIdx = 0; ulIdx < rstSatObs.UsedFreqs(); ++ulIdx)
    {
        ZelIo::SkipComma(is);
        is >> rstSatObs.astFreqObs[ulIdx];
    }
    return is;
}

} // namespace ZELN
