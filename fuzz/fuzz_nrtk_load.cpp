#include <ZelTypes/Ext/Gnss/ZelExtAuxTypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <vector>

namespace
{

// Whatever was read must write back to the same bytes (the reserved bytes
// excepted, which go out as zero), and its text must be writable.
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
    std::vector<unsigned char> vecOut(static_cast<size_t>(rRecord.getSize()));
    if (!rRecord.saveData(vecOut.data(), vecOut.size(), &ulOffset) || ulOffset != vecOut.size())
    {
        __builtin_trap();
    }
    R stAgain;
    if (!stAgain.loadData(vecOut.data(), vecOut.size()))
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << rRecord;
    std::istringstream iss(oss.str());
    iss >> stAgain;
    return true;
}

} // namespace

// First byte, modulo 12, picks the record: 0 auxiliary station, 1 header,
// 2 ionospheric, 3 geometric, 4 combined message, 5 MsgGNSS17T, 6 unscaled
// combined message, 7 correction pair, 8 grid message, 9 grid message with
// system, 10 residual entry, 11 residual message.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 12)
    {
    case 0:
    {
        SZelNetAuxStation st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 1:
    {
        SZelNetMsgHeader st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 2:
    {
        SZelNetIonoMsg st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            for (const auto& rEntry : st.astEntries)
            {
                (void)rEntry.GetGlobalSatIndex();
            }
        }
        break;
    }
    case 3:
    {
        SZelNetGeoMsg st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 4:
    {
        SZelNetCombMsg st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            SZelNetIonoMsg stIono;
            SZelNetGeoMsg stGeo;
            (void)MsgGNSS17T::SplitCombMsg(st, stIono, stGeo);
        }
        break;
    }
    case 5:
    {
        MsgGNSS17T st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)st.IsFilled(st.ucFilled);
        }
        break;
    }
    case 6:
    {
        SZelNetCombMsgD st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 7:
    {
        SZelNetCorrPair st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 8:
    {
        SZelNetGridMsg st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 9:
    {
        SZelNetGridSysMsg st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    case 10:
    {
        SZelNetResidualEntry st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    default:
    {
        SZelNetResidualMsg st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st == SZelNetResidualMsg());
        }
        break;
    }
    }
    return 0;
}
