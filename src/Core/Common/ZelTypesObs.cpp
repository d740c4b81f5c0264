#include <ZelTypes/Core/Common/ZelTypesObs.h>

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

namespace ZELN
{

namespace
{

// One latch per system for the pairs that the default table lacks; GPS and
// QZSS share theirs.
CZelOnceLatch s_stGpsQzssUnknownLatch;
CZelOnceLatch s_stGpsQzssPRowLatch;
CZelOnceLatch s_stGlonassUnknownLatch;
CZelOnceLatch s_stGalileoUnknownLatch;
CZelOnceLatch s_stSbasUnknownLatch;
CZelOnceLatch s_stBeidouUnknownLatch;
CZelOnceLatch s_stNavicUnknownLatch;
CZelOnceLatch s_stOtherSystemUnknownLatch;

EZelTrackMode UnknownPairOnce(CZelOnceLatch& rstLatch)
{
    if (rstLatch.First())
    {
        ZEL_ASSERT_TEXT(false, "(false)");
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
            if (s_stGpsQzssPRowLatch.First())
            {
                ZEL_ASSERT_TEXT(eSys != ZELSATSYSTEM_QZSS, "(eSys != ZELSATSYSTEM_QZSS)");
            }
            return (ulObsFlags & c_ulOBSFLAG_TRACKMODEW) != 0 ? ZELTRACKMODE_W : ZELTRACKMODE_P;
        case ZELFREQUENCY_L2C:
            return ZELTRACKMODE_S;
        case ZELFREQUENCY_L5:
            return ZELTRACKMODE_Q;
        case ZELFREQUENCY_L1C:
            return ZELTRACKMODE_L;
        default:
            return UnknownPairOnce(s_stGpsQzssUnknownLatch);
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
            return UnknownPairOnce(s_stGlonassUnknownLatch);
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
            return UnknownPairOnce(s_stGalileoUnknownLatch);
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
            return UnknownPairOnce(s_stBeidouUnknownLatch);
        }
    case ZELSATSYSTEM_SBAS:
        switch (eFrequency)
        {
        case ZELFREQUENCY_L1CA:
            return ZELTRACKMODE_C;
        case ZELFREQUENCY_L5:
            return ZELTRACKMODE_I;
        default:
            return UnknownPairOnce(s_stSbasUnknownLatch);
        }
    case ZELSATSYSTEM_NAVIC:
        if (eFrequency == ZELFREQUENCY_L5)
        {
            return ZELTRACKMODE_A;
        }
        return UnknownPairOnce(s_stNavicUnknownLatch);
    case ZELSATSYSTEM_LOCATA:
        return ZELTRACKMODE_I;
    default:
        return UnknownPairOnce(s_stOtherSystemUnknownLatch);
    }
}

EZelTrackMode SZelFreqObservation::TrackModeOfLetter(char cLetter)
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
    return ZelIo::WriteText(os, rstFreqObs);
}

std::istream& operator>>(std::istream& is, SZelFreqObservation& rstFreqObs)
{
    return ZelIo::ReadText(is, rstFreqObs);
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
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelSatObservation::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    // Tested against the count the record holds before the load: a record
    // filled earlier needs the room of its old content.
    if (!stIn.BeginLeaf(getSize()))
    {
        return false;
    }
    // Only the second bounds test fails the visitor: no bytes counted.
    if (!VisitFields(stIn, *this))
    {
        if (pulOffset != nullptr)
        {
            *pulOffset = 0;
        }
        return false;
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
    return ZelIo::WriteText(os, rstSatObs);
}

std::istream& operator>>(std::istream& is, SZelSatObservation& rstSatObs)
{
    return ZelIo::ReadText(is, rstSatObs);
}

} // namespace ZELN
