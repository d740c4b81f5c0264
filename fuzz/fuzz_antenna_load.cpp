#include <ZelTypes/Ext/Gnss/ZelExtAntTypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <vector>

namespace
{

// What was read writes an image that reads back to the same image (the
// written form is canonical: reserved bytes zero, model entries in key
// order), and its text can be written.
template <class R> bool LoadAndRewrite(R& rRecord, const uint8_t* pData, size_t ulSize)
{
    uint64_t ulOffset = 0;
    if (!rRecord.loadData(pData, ulSize, &ulOffset))
    {
        return false;
    }
    if (ulOffset != rRecord.getSize() || ulOffset > ulSize)
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecFirst(static_cast<size_t>(rRecord.getSize()));
    if (!rRecord.saveData(vecFirst.data(), vecFirst.size(), &ulOffset))
    {
        __builtin_trap();
    }
    R stAgain;
    std::vector<unsigned char> vecSecond(vecFirst.size());
    if (!stAgain.loadData(vecFirst.data(), vecFirst.size(), &ulOffset) ||
        !stAgain.saveData(vecSecond.data(), vecSecond.size(), &ulOffset) || vecFirst != vecSecond)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << rRecord;
    return true;
}

// The level moves on arbitrary antennas and coordinates: reports and NaNs
// are fine, undefined behaviour is not.
void Exercise(ZELN::SZelAntennaInfo& rInfo, const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    double adValues[3] = {0.5, -0.25, 100.0};
    std::memcpy(adValues, pData, ulSize < sizeof(adValues) ? ulSize : sizeof(adValues));
    const int iFrom = ulSize > 24 ? static_cast<int8_t>(pData[24]) % 8 : 0;
    const int iTo = ulSize > 25 ? static_cast<int8_t>(pData[25]) % 8 : 4;
    SZelGeoCoords stCoords(adValues[0], adValues[1], adValues[2]);
    (void)ConvertRefLevel(static_cast<EZelAntRefLevel>(iFrom), static_cast<EZelAntRefLevel>(iTo), rInfo,
                          stCoords);
    const float afEN[2] = {static_cast<float>(adValues[2]), static_cast<float>(adValues[0])};
    ApplyLocalOffsets(afEN, stCoords);
    float afBack[2] = {0.0f, 0.0f};
    float fUp = 0.0f;
    GetLocalOffsets(SZelGeoCoords(adValues[0], adValues[1], adValues[2]), stCoords, afBack, fUp);
    const float fHeight = static_cast<float>(adValues[1]);
    (void)SetHeightAtLevel(rInfo, static_cast<EZelAntRefLevel>(iTo), &fHeight, afEN);
}

} // namespace

// First byte, modulo 8, picks the record: 0 descriptor, 1 set-up offsets,
// 2 calibration, 3 model key, 4 model, 5 antenna, 6 offset table,
// 7 variation table.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 8)
    {
    case 0:
    {
        ZELN::SZelAntDescriptor st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 1:
    {
        ZELN::SZelAntennaInfo stInfo;
        if (LoadAndRewrite(stInfo.m_ARPOffsets, pImage, ulImage))
        {
            Exercise(stInfo, pImage, ulImage);
        }
        break;
    }
    case 2:
    {
        ZELN::SZelAntPCC st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st == ZELN::SZelAntPCC());
        }
        break;
    }
    case 3:
    {
        ZELN::SZelAntModelKey st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st < ZELN::SZelAntModelKey());
        }
        break;
    }
    case 4:
    {
        ZELN::SZelAntModel st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            const ZELN::SZelAntModel stCopy(st);
            (void)(stCopy == st);
        }
        break;
    }
    case 5:
    {
        ZELN::SZelAntennaInfo st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Exercise(st, pImage, ulImage);
        }
        break;
    }
    case 6:
    {
        ZELN::SZelAntPCOTable st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    default:
    {
        ZELN::SZelAntPCVTable st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st == ZELN::SZelAntPCVTable());
        }
        break;
    }
    }
    return 0;
}
