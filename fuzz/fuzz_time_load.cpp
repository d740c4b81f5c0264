#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    ZELN::SMjdTime stTime;
    uint64_t ulOffset = 0;
    if (stTime.loadData(pData, ulSize, &ulOffset))
    {
        // Whatever was read must write back to the same bytes.
        unsigned char aucOut[16];
        stTime.saveData(aucOut, sizeof(aucOut), &ulOffset);
        if (__builtin_memcmp(aucOut, pData, 16) != 0)
        {
            __builtin_trap();
        }
        // Exercise the arithmetic and getters on arbitrary values.
        unsigned short unWeek = 0;
        unsigned int uiMs = 0;
        stTime.GetGpsTimeMs(unWeek, uiMs);
        (void)stTime.GetDayOfYear();
        stTime.AddMilliseconds(1.5);
        stTime.RoundToMilliseconds(1000.0);
        char szText[64];
        stTime.GetTextEpoch(szText, sizeof(szText));
    }
    return 0;
}
