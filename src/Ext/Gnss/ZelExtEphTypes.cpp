#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

#include "ZelExtEphIO.h"

#include <cmath>

namespace ZELN
{

// ------------------------------------------------------------------ interface

ZELX_SAT_EPHEMERIS_BASE::~ZELX_SAT_EPHEMERIS_BASE() = default;

EZelEphValidity ZELX_SAT_EPHEMERIS_BASE::checkSpan(const SMjdTime& stTime, const SMjdTime& stToe,
                                                   int32_t lUpper, int32_t lLower)
{
    // The day difference is taken in 32 bits, as everywhere in the time record.
    const int32_t lDayDiff = MjdDetail::AddWrap(stTime.m_lMjdDay, -static_cast<int64_t>(stToe.m_lMjdDay));
    const double d =
        (stTime.m_dMjdFractMilliseconds - stToe.m_dMjdFractMilliseconds) / 1000.0 + lDayDiff * 86400.0;
    if (d > lUpper)
    {
        return ZELEPHVALIDITY_EXPIRED;
    }
    if (lLower > d)
    {
        return ZELEPHVALIDITY_NOT_YET_VALID;
    }
    return ZELEPHVALIDITY_VALID;
}

EZelEphValidity ZELX_SAT_EPHEMERIS_BASE::checkSpanMargin(const SMjdTime& stTime, const SMjdTime& stToe,
                                                         uint32_t ulSpan, uint32_t ulSpanBack,
                                                         uint32_t ulMarginSeconds)
{
    // Formed in 32 bits: a huge margin wraps instead of overflowing.
    const int32_t lUpper = static_cast<int32_t>(ulSpan + ulMarginSeconds);
    const int32_t lLower = static_cast<int32_t>(0u - ulSpanBack - ulMarginSeconds);
    return checkSpan(stTime, stToe, lUpper, lLower);
}

EZelEphValidity ZELX_SAT_EPHEMERIS_BASE::checkValidity(EZelSatSystem eSatSystem, const SMjdTime& stTime,
                                                       const SMjdTime& stToe)
{
    const uint32_t ulMarginSeconds = 60;
    switch (eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
        return ZELX_SAT_EPHEMERIS::checkValidity(stTime, stToe, ulMarginSeconds);
    case ZELSATSYSTEM_GALILEO:
        return ZELX_SAT_EPHEMERIS_GALILEO::checkValidity(stTime, stToe, ulMarginSeconds);
    case ZELSATSYSTEM_GLONASS:
        return ZELX_SAT_EPHEMERIS_GLONASS::checkValidity(stTime, stToe, ulMarginSeconds);
    case ZELSATSYSTEM_BEIDOU:
        return ZELX_SAT_EPHEMERIS_BEIDOU::checkValidity(stTime, stToe, ulMarginSeconds);
    case ZELSATSYSTEM_QZSS:
        return ZELX_SAT_EPHEMERIS_QZSS::checkValidity(stTime, stToe, ulMarginSeconds);
    case ZELSATSYSTEM_NAVIC:
        return ZELX_SAT_EPHEMERIS_NAVIC::checkValidity(stTime, stToe, ulMarginSeconds);
    default:
        break;
    }
    ZEL_ASSERT(false);
    return ZELEPHVALIDITY_NO_SPAN;
}

// ------------------------------------------------------------------ accuracy in metres

float ConvUraIndexToMetres(uint8_t ucIndex)
{
    if (ucIndex >= 15)
    {
        return 9999.9f;
    }
    if (ucIndex >= 6)
    {
        return static_cast<float>(std::pow(2.0, static_cast<double>(ucIndex - 2)));
    }
    switch (ucIndex)
    {
    case 1:
        return 2.8f;
    case 3:
        return 5.7f;
    case 5:
        return 11.3f;
    default:
        break;
    }
    return static_cast<float>(std::pow(2.0, static_cast<double>(ucIndex / 2 + 1)));
}

uint8_t ConvUraMetresToIndex(float fMetres)
{
    // Lower limit of each index from the top; index 0 takes the rest. The
    // limits are 32-bit like the value, so that a limit itself stays below.
    static constexpr float c_afLimits[] = {6144.0f, 3072.0f, 1536.0f, 768.0f, 384.0f, 192.0f, 96.0f, 48.0f,
                                           24.0f,   13.65f,  9.65f,   6.85f,  4.85f,  3.4f,   2.4f};
    uint8_t ucIndex = 15;
    for (const float fLimit : c_afLimits)
    {
        if (fMetres > fLimit)
        {
            return ucIndex;
        }
        --ucIndex;
    }
    return 0;
}

// ------------------------------------------------------------------ Keplerian block

ZELX_SAT_EPHEMERIS_COMMON::~ZELX_SAT_EPHEMERIS_COMMON() = default;

// Assigns the block part only: a derived record keeps its own fields.
void ZELX_SAT_EPHEMERIS_COMMON::clear()
{
    *this = ZELX_SAT_EPHEMERIS_COMMON();
}

void ZELX_SAT_EPHEMERIS_COMMON::setKepler(size_t ulIndex, double dValue)
{
    ZelIo::SetElement(adKepler, ulIndex, dValue);
}

void ZELX_SAT_EPHEMERIS_COMMON::setHarmonic(size_t ulIndex, float fValue)
{
    ZelIo::SetElement(afHarmonics, ulIndex, fValue);
}

bool ZELX_SAT_EPHEMERIS_COMMON::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_EPHEMERIS_COMMON::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExt(*this, pBuffer, uiBufferLength);
}

bool operator==(const ZELX_SAT_EPHEMERIS_COMMON& a, const ZELX_SAT_EPHEMERIS_COMMON& b)
{
    for (size_t ulIdx = 0; ulIdx < ZELEPHKEPLER_COUNT; ++ulIdx)
    {
        const double dTolerance = ulIdx < ZELEPHKEPLER_DELTAN ? c_dREL_TOLERANCE_64 : 1e-6;
        if (!AreClose(a.adKepler[ulIdx], b.adKepler[ulIdx], dTolerance))
        {
            return false;
        }
    }
    for (size_t ulIdx = 0; ulIdx < ZELEPHHARMONIC_COUNT; ++ulIdx)
    {
        if (!AreCloseRel(a.afHarmonics[ulIdx], b.afHarmonics[ulIdx]))
        {
            return false;
        }
    }
    return true;
}

// ------------------------------------------------------------------ block with two values

ZELX_SAT_EPHEMERIS_PARAMS::~ZELX_SAT_EPHEMERIS_PARAMS() = default;

bool operator==(const ZELX_SAT_EPHEMERIS_PARAMS& a, const ZELX_SAT_EPHEMERIS_PARAMS& b)
{
    return static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(a) ==
               static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(b) &&
           a.ucAux1 == b.ucAux1 && AreCloseRel(a.dAux2, b.dAux2);
}

} // namespace ZELN
