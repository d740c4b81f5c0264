#include <ZelTypes/Core/Common/ZelFrequencyManager.h>
#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

// Any 24 bytes are channels: they must write back the same, and the manager
// must take them and answer every lookup.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    static ZELN::CZelMutex s_stLock;
    static ZELN::CZelFrequencyMgr s_stMgr(&s_stLock);

    ZELN::ZelGlonassFrequencies stChannels;
    uint64_t ulOffset = 0;
    if (!stChannels.loadData(pData, ulSize, &ulOffset))
    {
        return 0;
    }
    unsigned char aucOut[24];
    stChannels.saveData(aucOut, sizeof(aucOut), &ulOffset);
    if (ulOffset != 24 || std::memcmp(aucOut, pData, 24) != 0)
    {
        __builtin_trap();
    }

    s_stMgr.ResetTable(); // each input on its own: unknown slots keep nothing
    s_stMgr.SetGlonassFrequencies(stChannels);
    for (int iSlot = 0; iSlot <= 25; ++iSlot)
    {
        const ZELN::SZelSatID stSat(ZELN::ZELSATSYSTEM_GLONASS, static_cast<uint8_t>(iSlot));
        for (int iGrp = -1; iGrp <= 7; ++iGrp)
        {
            (void)s_stMgr.GetFrequency(stSat, iGrp);
            (void)s_stMgr.GetWavelength(stSat, static_cast<ZELN::EZelFrequencyGroup>(iGrp));
            (void)s_stMgr.GetInverseWavelengthSquared(stSat, iGrp);
        }
        double adCoef[3];
        (void)s_stMgr.GetCombination(stSat, 1, 4, &adCoef[0], &adCoef[1], &adCoef[2]);
        (void)s_stMgr.GetCombination(stSat, 4, 2, &adCoef[0], &adCoef[1], &adCoef[2]);
        (void)s_stMgr.GetIonoCoefficient(stSat, 1, 2);
        (void)s_stMgr.GetInverseWideLaneProduct(stSat, 1, 2);
        (void)s_stMgr.GetRelativeIonoFactor(stSat);
        const ZELN::EZelFrequency aeFrqs[2] = {ZELN::ZELFREQUENCY_L1CA, ZELN::ZELFREQUENCY_L2P};
        (void)s_stMgr.GetCombinationFactors(stSat, 12, 2, aeFrqs, adCoef);
        int8_t cChannel = 0;
        if (iSlot >= 1 && iSlot <= 24)
        {
            const int8_t cExpected = stChannels.acChannels[iSlot - 1];
            const bool bKnown = s_stMgr.GetGlonassChannel(stSat, cChannel);
            if (bKnown != (cExpected != ZELN::c_cGLONASS_CHANNEL_UNKNOWN) || cChannel != cExpected)
            {
                __builtin_trap();
            }
        }
    }
    return 0;
}
