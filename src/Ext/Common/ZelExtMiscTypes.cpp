#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

namespace ZELN
{

// ------------------------------------------------------------------ SZelMasterCoordinate

bool SZelMasterCoordinate::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelMasterCoordinate::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b)
{
    return a.stMstCoo == b.stMstCoo && a.eCooSys == b.eCooSys && a.usStnId == b.usStnId;
}

std::ostream& operator<<(std::ostream& os, const SZelMasterCoordinate& rMaster)
{
    return ZelIo::WriteText(os, rMaster);
}

std::istream& operator>>(std::istream& is, SZelMasterCoordinate& rMaster)
{
    return ZelIo::ReadText(is, rMaster);
}

// ------------------------------------------------------------------ SZelHorizontalOffset

bool SZelHorizontalOffset::saveData(unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelHorizontalOffset::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b)
{
    return AreCloseRel(a.fHrzOffsE, b.fHrzOffsE) && AreCloseRel(a.fHrzOffsN, b.fHrzOffsN);
}

std::ostream& operator<<(std::ostream& os, const SZelHorizontalOffset& rOffset)
{
    return ZelIo::WriteText(os, rOffset);
}

std::istream& operator>>(std::istream& is, SZelHorizontalOffset& rOffset)
{
    return ZelIo::ReadText(is, rOffset);
}

// ------------------------------------------------------------------ SZelGloCodeBias

namespace
{
bool IsGlonassSat(const SZelSatID& stSatId)
{
    return stSatId.isValid() && stSatId.eSatSystem == ZELSATSYSTEM_GLONASS;
}
} // namespace

bool SZelGloCodeBias::GetBias(const SZelSatID& stSatId, EZelFrequency eFrequency, double& rdBias) const
{
    if (!IsGlonassSat(stSatId) || (ulValidMask & GetFrequencyBit(eFrequency)) == 0)
    {
        return false;
    }
    // A mask bit above the four biases names no stored value: reading it
    // would run past the array, so the answer is no bias.
    if (eFrequency < ZELFREQUENCY_L1CA || eFrequency > ZELFREQUENCY_L2P)
    {
        return false;
    }
    rdBias = adBias[eFrequency - 1];
    return true;
}

void SZelGloCodeBias::SetBias(const SZelSatID& stSatId, EZelFrequency eFrequency, double dBias)
{
    if (IsGlonassSat(stSatId) && eFrequency >= ZELFREQUENCY_L1CA && eFrequency <= ZELFREQUENCY_L2P)
    {
        adBias[eFrequency - 1] = dBias;
        return;
    }
    ZEL_ASSERT(false);
}

bool operator==(const SZelGloCodeBias& a, const SZelGloCodeBias& b)
{
    return a.ulValidMask == b.ulValidMask && a.adBias[0] == b.adBias[0] && a.adBias[1] == b.adBias[1] &&
           a.adBias[2] == b.adBias[2] && a.adBias[3] == b.adBias[3];
}

} // namespace ZELN
