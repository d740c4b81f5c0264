#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelFrequencyManager.h>

namespace ZELN
{
namespace
{

// -1 where the system has no signal on the slot; index by EZelFrequency.
constexpr int8_t c_acNO = -1;
constexpr int8_t c_aacFREQUENCY_INDEX[ZELSATSYSTEM_LOCATA + 1][ZELFREQUENCY_MAX] = {
    // -    L1CA   L1P    L2C    L2P    L5     L1C    E5A    E5B    E5AB   E6
    {c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO}, // none
    {c_acNO, 0, 1, 3, 2, 4, 5, c_acNO, c_acNO, c_acNO, c_acNO},                               // GPS
    {c_acNO, 0, 1, 3, 2, 4, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO},                          // GLONASS
    {c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, 0, 1, 2, 3, 4},                          // Galileo
    {c_acNO, 0, 0, c_acNO, c_acNO, 3, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO},                // SBAS
    {c_acNO, 0, 0, 1, 1, 2, c_acNO, c_acNO, 3, 4, c_acNO},                                    // BeiDou
    {c_acNO, 0, 1, 3, 2, 4, 5, c_acNO, c_acNO, c_acNO, c_acNO},                               // QZSS
    {c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, 0, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO},      // NavIC
    {c_acNO, 0, 0, 1, 1, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO, c_acNO},                     // Locata
};

} // namespace

uint32_t CZelFrequencyMgr::GetFrequencyIndex(EZelFrequency eZelFrq, EZelSatSystem eSys)
{
    if (eSys < ZELSATSYSTEM_GPS || eSys > ZELSATSYSTEM_LOCATA)
    {
        ZEL_ASSERT(false);
        return 0;
    }
    if (eZelFrq < ZELFREQUENCY_UNKNOWN || eZelFrq >= ZELFREQUENCY_MAX ||
        c_aacFREQUENCY_INDEX[eSys][eZelFrq] < 0)
    {
        // The system has no signal on this slot.
        ZEL_ASSERT(false);
        return 0;
    }
    return static_cast<uint32_t>(c_aacFREQUENCY_INDEX[eSys][eZelFrq]);
}

} // namespace ZELN
