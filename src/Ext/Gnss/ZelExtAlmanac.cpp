#include <ZelTypes/Ext/Gnss/ZelExtAlmanac.h>

#include <algorithm>
#include <cstring>

namespace ZELN
{

namespace
{

// The satellite of a record whose own condition holds: a satellite that is
// not valid is reported.
bool SatelliteHolds(const SZelSatID& rSatId)
{
    if (!rSatId.isValid())
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

bool CommonEqual(const ZELX_SAT_ALMANAC_COMMON& a, const ZELX_SAT_ALMANAC_COMMON& b)
{
    if (a.stSatId != b.stSatId || a.stToa != b.stToa)
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < ZELALMKEPLER_COUNT; ++ulIdx)
    {
        if (!AreCloseRel(a.adKepler[ulIdx], b.adKepler[ulIdx]))
        {
            return false;
        }
    }
    return true;
}

// The other record as the class asked for; another class is reported.
template <class T> const T* AsClass(const ZELX_SAT_ALMANAC_COMMON& rOther)
{
    const T* pOther = dynamic_cast<const T*>(&rOther);
    if (pOther == nullptr)
    {
        ZEL_ASSERT(false);
    }
    return pOther;
}

// The GPS and QZSS rule: the broadcast words and the second of the week of
// the reference time against ulToa, compared exactly.
bool GpsWordsHold(const ZELX_SAT_ALMANAC& r)
{
    return r.ulSource == ZELX_SAT_ALMANAC::c_ulSOURCE_BROADCAST &&
           r.stToa.GetGpsSeconds() == static_cast<double>(r.ulToa);
}

} // namespace

IZELX_SAT_ALMANAC_BASE::~IZELX_SAT_ALMANAC_BASE() = default;

// ---------------------------------------------------------------------------
// COMMON
// ---------------------------------------------------------------------------

ZELX_SAT_ALMANAC_COMMON::~ZELX_SAT_ALMANAC_COMMON() = default;

SZelSatID ZELX_SAT_ALMANAC_COMMON::getSatId() const
{
    return stSatId;
}

SMjdTime ZELX_SAT_ALMANAC_COMMON::getToa() const
{
    return stToa;
}

bool ZELX_SAT_ALMANAC_COMMON::isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const
{
    return CommonEqual(*this, rOther);
}

bool ZELX_SAT_ALMANAC_COMMON::isDifferent(const ZELX_SAT_ALMANAC_COMMON& rOther) const
{
    return !isEqual(rOther);
}

void ZELX_SAT_ALMANAC_COMMON::clear()
{
    stSatId = SZelSatID();
    stToa = SMjdTime();
    std::fill(adKepler, adKepler + ZELALMKEPLER_COUNT, 0.0);
}

void ZELX_SAT_ALMANAC_COMMON::assign(const ZELX_SAT_ALMANAC_COMMON& rOther)
{
    ZELX_SAT_ALMANAC_COMMON::operator=(rOther);
}

bool ZELX_SAT_ALMANAC_COMMON::isValid() const
{
    return stSatId.isValid();
}

double ZELX_SAT_ALMANAC_COMMON::getInclination() const
{
    ZEL_ASSERT(isValid());
    if (stSatId.eSatSystem == ZELSATSYSTEM_BEIDOU && !stSatId.IsGeo())
    {
        return adKepler[ZELALMKEPLER_INCL] + c_dBDS_NOMINAL_INCLINATION;
    }
    return adKepler[ZELALMKEPLER_INCL];
}

bool ZELX_SAT_ALMANAC_COMMON::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_ALMANAC_COMMON::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelAlmIo::LoadVersioned(*this, pBuffer, uiBufferLength);
}

// ---------------------------------------------------------------------------
// GPS
// ---------------------------------------------------------------------------

ZELX_SAT_ALMANAC::~ZELX_SAT_ALMANAC() = default;

bool ZELX_SAT_ALMANAC::isHealthy() const
{
    ZEL_ASSERT(isValid());
    return ucHealth == 0;
}

bool ZELX_SAT_ALMANAC::isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const
{
    const ZELX_SAT_ALMANAC* pOther = AsClass<ZELX_SAT_ALMANAC>(rOther);
    if (pOther == nullptr)
    {
        return false;
    }
    return CommonEqual(*this, *pOther) && ulSource == pOther->ulSource && ulToa == pOther->ulToa &&
           ucHealth == pOther->ucHealth && ucConfig == pOther->ucConfig && ucAux1 == pOther->ucAux1 &&
           AreCloseRel(dAux2, pOther->dAux2);
}

void ZELX_SAT_ALMANAC::clear()
{
    *this = ZELX_SAT_ALMANAC();
}

bool ZELX_SAT_ALMANAC::isValid() const
{
    if (!GpsWordsHold(*this) || ucConfig == c_ucCONFIG_NONE)
    {
        return false;
    }
    return SatelliteHolds(stSatId);
}

void ZELX_SAT_ALMANAC::assign(const ZELX_SAT_ALMANAC& rOther)
{
    ZELX_SAT_ALMANAC::operator=(rOther);
}

bool ZELX_SAT_ALMANAC::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_ALMANAC::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelAlmIo::LoadVersioned(*this, pBuffer, uiBufferLength);
}

// ---------------------------------------------------------------------------
// QZSS
// ---------------------------------------------------------------------------

ZELX_SAT_ALMANAC_QZSS::ZELX_SAT_ALMANAC_QZSS()
{
    stSatId.eSatSystem = ZELSATSYSTEM_QZSS;
}

ZELX_SAT_ALMANAC_QZSS::~ZELX_SAT_ALMANAC_QZSS() = default;

bool ZELX_SAT_ALMANAC_QZSS::isHealthy() const
{
    ZEL_ASSERT(isValid());
    return ucHealth < 2;
}

bool ZELX_SAT_ALMANAC_QZSS::isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const
{
    const ZELX_SAT_ALMANAC_QZSS* pOther = AsClass<ZELX_SAT_ALMANAC_QZSS>(rOther);
    if (pOther == nullptr)
    {
        return false;
    }
    // The GPS rule; the two QZSS words take no part.
    return ZELX_SAT_ALMANAC::isEqual(*pOther);
}

void ZELX_SAT_ALMANAC_QZSS::clear()
{
    *this = ZELX_SAT_ALMANAC_QZSS();
}

bool ZELX_SAT_ALMANAC_QZSS::isValid() const
{
    if (!GpsWordsHold(*this))
    {
        return false;
    }
    return SatelliteHolds(stSatId);
}

void ZELX_SAT_ALMANAC_QZSS::assign(const ZELX_SAT_ALMANAC_QZSS& rOther)
{
    ZELX_SAT_ALMANAC_QZSS::operator=(rOther);
}

bool ZELX_SAT_ALMANAC_QZSS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_ALMANAC_QZSS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelAlmIo::LoadVersioned(*this, pBuffer, uiBufferLength);
}

// ---------------------------------------------------------------------------
// Galileo
// ---------------------------------------------------------------------------

ZELX_SAT_ALMANAC_GALILEO::ZELX_SAT_ALMANAC_GALILEO()
{
    stSatId.eSatSystem = ZELSATSYSTEM_GALILEO;
}

ZELX_SAT_ALMANAC_GALILEO::~ZELX_SAT_ALMANAC_GALILEO() = default;

bool ZELX_SAT_ALMANAC_GALILEO::isHealthy() const
{
    ZEL_ASSERT(isValid());
    // The second signal's status decides where it describes the satellite
    // and is good; else the first signal's.
    if ((ucSignalMask & 0x02) != 0 && (ucStatusB & 0x36) == 0)
    {
        return true;
    }
    return (ucSignalMask & 0x01) != 0 && (ucStatusA & 0x06) == 0;
}

bool ZELX_SAT_ALMANAC_GALILEO::isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const
{
    const ZELX_SAT_ALMANAC_GALILEO* pOther = AsClass<ZELX_SAT_ALMANAC_GALILEO>(rOther);
    if (pOther == nullptr)
    {
        return false;
    }
    return CommonEqual(*this, *pOther) && ucAux1 == pOther->ucAux1 && bPresent == pOther->bPresent &&
           ucSignalMask == pOther->ucSignalMask && ucStatusA == pOther->ucStatusA &&
           ucStatusB == pOther->ucStatusB;
}

void ZELX_SAT_ALMANAC_GALILEO::clear()
{
    *this = ZELX_SAT_ALMANAC_GALILEO();
}

bool ZELX_SAT_ALMANAC_GALILEO::isValid() const
{
    if (bPresent == 0)
    {
        return false;
    }
    return SatelliteHolds(stSatId);
}

void ZELX_SAT_ALMANAC_GALILEO::assign(const ZELX_SAT_ALMANAC_GALILEO& rOther)
{
    ZELX_SAT_ALMANAC_GALILEO::operator=(rOther);
}

bool ZELX_SAT_ALMANAC_GALILEO::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_ALMANAC_GALILEO::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelAlmIo::LoadVersioned(*this, pBuffer, uiBufferLength);
}

// ---------------------------------------------------------------------------
// BeiDou
// ---------------------------------------------------------------------------

ZELX_SAT_ALMANAC_BEIDOU::ZELX_SAT_ALMANAC_BEIDOU()
{
    stSatId.eSatSystem = ZELSATSYSTEM_BEIDOU;
}

ZELX_SAT_ALMANAC_BEIDOU::~ZELX_SAT_ALMANAC_BEIDOU() = default;

bool ZELX_SAT_ALMANAC_BEIDOU::isHealthy() const
{
    ZEL_ASSERT(isValid());
    return (unHealth & 0x102) == 0;
}

bool ZELX_SAT_ALMANAC_BEIDOU::isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const
{
    const ZELX_SAT_ALMANAC_BEIDOU* pOther = AsClass<ZELX_SAT_ALMANAC_BEIDOU>(rOther);
    if (pOther == nullptr)
    {
        return false;
    }
    // unAux1 and ulAux2 take no part.
    return CommonEqual(*this, *pOther) && bPresent == pOther->bPresent && unHealth == pOther->unHealth;
}

void ZELX_SAT_ALMANAC_BEIDOU::clear()
{
    *this = ZELX_SAT_ALMANAC_BEIDOU();
}

bool ZELX_SAT_ALMANAC_BEIDOU::isValid() const
{
    if (!bPresent)
    {
        return false;
    }
    return SatelliteHolds(stSatId);
}

void ZELX_SAT_ALMANAC_BEIDOU::assign(const ZELX_SAT_ALMANAC_BEIDOU& rOther)
{
    ZELX_SAT_ALMANAC_BEIDOU::operator=(rOther);
}

bool ZELX_SAT_ALMANAC_BEIDOU::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_ALMANAC_BEIDOU::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelAlmIo::LoadVersioned(*this, pBuffer, uiBufferLength);
}

// ---------------------------------------------------------------------------
// NavIC
// ---------------------------------------------------------------------------

ZELX_SAT_ALMANAC_NAVIC::ZELX_SAT_ALMANAC_NAVIC()
{
    stSatId.eSatSystem = ZELSATSYSTEM_NAVIC;
}

ZELX_SAT_ALMANAC_NAVIC::~ZELX_SAT_ALMANAC_NAVIC() = default;

bool ZELX_SAT_ALMANAC_NAVIC::isHealthy() const
{
    ZEL_ASSERT(isValid());
    return true;
}

bool ZELX_SAT_ALMANAC_NAVIC::isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const
{
    const ZELX_SAT_ALMANAC_NAVIC* pOther = AsClass<ZELX_SAT_ALMANAC_NAVIC>(rOther);
    if (pOther == nullptr)
    {
        return false;
    }
    // unAux1, ulAux2 and ulAux3 take no part.
    return CommonEqual(*this, *pOther) && bPresent == pOther->bPresent && ulAux4 == pOther->ulAux4;
}

void ZELX_SAT_ALMANAC_NAVIC::clear()
{
    *this = ZELX_SAT_ALMANAC_NAVIC();
}

bool ZELX_SAT_ALMANAC_NAVIC::isValid() const
{
    if (!bPresent)
    {
        return false;
    }
    return SatelliteHolds(stSatId);
}

void ZELX_SAT_ALMANAC_NAVIC::assign(const ZELX_SAT_ALMANAC_NAVIC& rOther)
{
    ZELX_SAT_ALMANAC_NAVIC::operator=(rOther);
}

bool ZELX_SAT_ALMANAC_NAVIC::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_ALMANAC_NAVIC::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelAlmIo::LoadVersioned(*this, pBuffer, uiBufferLength);
}

// ---------------------------------------------------------------------------
// GLONASS
// ---------------------------------------------------------------------------

ZELX_SAT_ALMANAC_GLONASS::~ZELX_SAT_ALMANAC_GLONASS() = default;

SZelSatID ZELX_SAT_ALMANAC_GLONASS::getSatId() const
{
    return SZelSatID(ZELSATSYSTEM_GLONASS, ucSlot);
}

SMjdTime ZELX_SAT_ALMANAC_GLONASS::getToa() const
{
    return stToa;
}

bool ZELX_SAT_ALMANAC_GLONASS::isHealthy() const
{
    ZEL_ASSERT(isValid());
    // 1 is the healthy value here, unlike the other systems.
    ZEL_ASSERT(ulHealth <= 1);
    return ulHealth == 1;
}

bool ZELX_SAT_ALMANAC_GLONASS::isValid() const
{
    if (!bPresent)
    {
        return false;
    }
    if (ucSlot < 1 || ucSlot > ZEL_DEF_MAXSATID_GLONASS || cChannel < -7 || cChannel > 6)
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

bool ZELX_SAT_ALMANAC_GLONASS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_ALMANAC_GLONASS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExt(*this, pBuffer, uiBufferLength);
}

bool operator==(const ZELX_SAT_ALMANAC_GLONASS& a, const ZELX_SAT_ALMANAC_GLONASS& b)
{
    // unAux1 and ulAux2 take no part.
    if (a.ucSlot != b.ucSlot || a.ucAux3 != b.ucAux3 || a.bPresent != b.bPresent ||
        a.cChannel != b.cChannel || a.stToa != b.stToa || a.ucAux4 != b.ucAux4 || a.unAux5 != b.unAux5 ||
        a.ulHealth != b.ulHealth)
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < ZELALMGLONASS_COUNT; ++ulIdx)
    {
        if (!AreCloseRel(a.adElements[ulIdx], b.adElements[ulIdx]))
        {
            return false;
        }
    }
    return true;
}

// ---------------------------------------------------------------------------
// Raw frame
// ---------------------------------------------------------------------------

ZELX_NAV_SUBFRAME::ZELX_NAV_SUBFRAME(uint32_t ulAux1Value, uint16_t unAux2Value, uint8_t ucAux3Value,
                                     const uint8_t* pData, size_t ulLength, uint8_t ucAux4Value)
    : ulAux1(ulAux1Value), unAux2(unAux2Value), ucAux3(ucAux3Value), aucData(), ucAux4(ucAux4Value)
{
    // A null pointer has nothing to copy, whatever length comes with it:
    // reported as a short frame.
    if (ulLength != c_ulDATA_SIZE || pData == nullptr)
    {
        ZEL_ASSERT(false);
    }
    const size_t ulCopy = pData != nullptr ? std::min(ulLength, c_ulDATA_SIZE) : 0;
    if (ulCopy != 0)
    {
        std::memcpy(aucData, pData, ulCopy);
    }
}

bool operator==(const ZELX_NAV_SUBFRAME& a, const ZELX_NAV_SUBFRAME& b)
{
    return a.ulAux1 == b.ulAux1 && a.unAux2 == b.unAux2 && a.ucAux3 == b.ucAux3 &&
           std::memcmp(a.aucData, b.aucData, ZELX_NAV_SUBFRAME::c_ulDATA_SIZE) == 0 && a.ucAux4 == b.ucAux4;
}

// ---------------------------------------------------------------------------
// Update decisions
// ---------------------------------------------------------------------------

bool isNewAlmanac(const ZELX_SAT_ALMANAC_COMMON& rCurrent, const ZELX_SAT_ALMANAC_COMMON& rNew)
{
    if (!rNew.isValid())
    {
        return false;
    }
    if (!rCurrent.isValid())
    {
        return true;
    }
    if (rNew.stToa < rCurrent.stToa)
    {
        return false;
    }
    return rCurrent.isDifferent(rNew);
}

bool isNewAlmanacGlonass(const ZELX_SAT_ALMANAC_GLONASS& rCurrent, const ZELX_SAT_ALMANAC_GLONASS& rNew)
{
    if (!rNew.isValid())
    {
        return false;
    }
    if (!rCurrent.isValid())
    {
        return true;
    }
    if (rNew.stToa < rCurrent.stToa)
    {
        return false;
    }
    return !(rCurrent == rNew);
}

} // namespace ZELN
