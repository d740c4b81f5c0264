// Binary readers of the processing configuration. The first byte, modulo
// 17, picks the record; the rest is the image. What was read must write
// back to the same bytes as a second reading of those bytes.
#include <ZelTypes/Ext/Gnss/ZelExtCfgTypes.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <vector>

namespace
{

using namespace ZELN;

// Reads, writes, reads the written bytes again and writes once more: the
// two images must agree (bool and reserved bytes are normalised by the
// first pass). The record must equal itself unless it holds a NaN, and its
// text must be writable.
template <class R> bool LoadAndRewrite(R& rRecord, const uint8_t* pData, size_t ulSize)
{
    uint64_t ulOffset = 0;
    if (!rRecord.loadData(pData, ulSize, &ulOffset))
    {
        return false;
    }
    if (ulOffset != rRecord.getSize())
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
    (void)(stAgain == rRecord);
    (void)(stAgain != R());
    return true;
}

template <class R> void LoadWriteText(const uint8_t* pData, size_t ulSize)
{
    R st;
    if (LoadAndRewrite(st, pData, ulSize))
    {
        std::ostringstream oss;
        oss << st;
    }
}

} // namespace

// 0 dilution limit, 1 satellite limit, 2 preprocessing, 3 general, 4
// differential, 5 kinematic, 6 older kinematic, 7 main, 8 older main, 9
// network cell, 10 reference, 11 network, 12 station, 13 handle, 14
// receiver antenna, 15 handle biases, 16 handle coordinates.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 17)
    {
    case 0:
        LoadWriteText<SZelDopLimit>(pImage, ulImage);
        break;
    case 1:
        LoadWriteText<SZelSatLimit>(pImage, ulImage);
        break;
    case 2:
        LoadWriteText<SZelPrePrcCfg>(pImage, ulImage);
        break;
    case 3:
        LoadWriteText<SZelGenCfg>(pImage, ulImage);
        break;
    case 4:
        LoadWriteText<SZelDiffCfg>(pImage, ulImage);
        break;
    case 5:
        LoadWriteText<SZelRtkCfg>(pImage, ulImage);
        break;
    case 6:
        LoadWriteText<SZelRtkCfgV1>(pImage, ulImage);
        break;
    case 7:
        LoadWriteText<SZelProcCfg>(pImage, ulImage);
        break;
    case 8:
    {
        SZelProcCfgV1 st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            SZelProcCfg stNew;
            UpgradeProcCfg(st, stNew);
            std::ostringstream oss;
            oss << st << stNew;
        }
        break;
    }
    case 9:
        LoadWriteText<SZelMacCfg>(pImage, ulImage);
        break;
    case 10:
        LoadWriteText<SZelRefCfg>(pImage, ulImage);
        break;
    case 11:
        LoadWriteText<SZelNetCfg>(pImage, ulImage);
        break;
    case 12:
        LoadWriteText<SZelStationCfg>(pImage, ulImage);
        break;
    case 13:
    {
        SZelRtHandle st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 14:
        LoadWriteText<SZelRecAntCfg>(pImage, ulImage);
        break;
    case 15:
        LoadWriteText<SZelRtHandleBias>(pImage, ulImage);
        break;
    default:
        LoadWriteText<SZelRtHandleCoords>(pImage, ulImage);
        break;
    }
    return 0;
}
