#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstddef>
#include <cstdint>
#include <sstream>

namespace
{

// Whatever a reader accepts must write back to the same bytes (the filling
// bytes of a satellite excepted, which are written as zero) and must be usable.
template <class R> void Check(const uint8_t* pData, size_t ulSize, size_t ulSatAt)
{
    R stRecord;
    uint64_t ulOffset = 0;
    if (!stRecord.loadData(pData, ulSize, &ulOffset))
    {
        return;
    }
    if (ulOffset != stRecord.getSize())
    {
        __builtin_trap();
    }
    unsigned char aucOut[16] = {};
    if (!stRecord.saveData(aucOut, sizeof(aucOut), &ulOffset) || ulOffset != stRecord.getSize())
    {
        __builtin_trap();
    }
    for (size_t ulIdx = 0; ulIdx < stRecord.getSize(); ++ulIdx)
    {
        const bool bFilling = ulSatAt != SIZE_MAX && ulIdx >= ulSatAt + 5 && ulIdx < ulSatAt + 8;
        if (bFilling ? aucOut[ulIdx] != 0 : aucOut[ulIdx] != pData[ulIdx])
        {
            __builtin_trap();
        }
    }
    R stAgain;
    if (!stAgain.loadData(aucOut, sizeof(aucOut), &ulOffset) || !(stAgain == stRecord) || stAgain < stRecord)
    {
        __builtin_trap();
    }
    (void)stRecord.isValid();
    std::ostringstream oss;
    oss << stRecord;
}

} // namespace

// First byte picks the record.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 6)
    {
    case 0:
    {
        Check<ZELN::SZelSatID>(pImage, ulImage, 0);
        ZELN::SZelSatID stSat;
        uint64_t ulOffset = 0;
        if (stSat.loadData(pImage, ulImage, &ulOffset))
        {
            (void)stSat.IsGeoOrIgso();
            (void)stSat.IsBeidou3();
            (void)ZELN::ToGlobalSatNumber(stSat);
        }
        break;
    }
    case 1:
        Check<ZELN::SZelFrqTMdID>(pImage, ulImage, SIZE_MAX);
        break;
    case 2:
        Check<ZELN::SZelSatFrqID>(pImage, ulImage, 0);
        break;
    case 3:
        Check<ZELN::SZelSysFrqID>(pImage, ulImage, SIZE_MAX);
        break;
    case 4:
        Check<ZELN::SZelSysFrqTMdGroupID>(pImage, ulImage, SIZE_MAX);
        break;
    default:
    {
        Check<ZELN::SZelSatFrqTMdGroupID>(pImage, ulImage, 0);
        ZELN::SZelSatFrqTMdGroupID stSig;
        uint64_t ulOffset = 0;
        if (stSig.loadData(pImage, ulImage, &ulOffset) && ZELN::FromTMdGroup(stSig.ebfTMdGrps) != 0)
        {
            (void)stSig.ToTrackMode(); // single modes only: a set would print its line
        }
        break;
    }
    }
    return 0;
}
