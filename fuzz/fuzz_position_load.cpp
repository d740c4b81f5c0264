#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtPosResultTypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <vector>

namespace
{

// Whatever was read must write back, and what was written must read and
// write again to the same bytes (a bool byte other than 0 and 1, and the
// reserved bytes of an observation's time, come back normalised); records
// without such bytes write the input bytes themselves.
template <class R> bool LoadAndRewrite(R& rRecord, const uint8_t* pData, size_t ulSize, bool bExact)
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
    if (!rRecord.saveData(vecOut.data(), vecOut.size(), &ulOffset))
    {
        __builtin_trap();
    }
    if (bExact && std::memcmp(vecOut.data(), pData, vecOut.size()) != 0)
    {
        __builtin_trap();
    }
    R stAgain;
    std::vector<unsigned char> vecAgain(vecOut.size());
    if (!stAgain.loadData(vecOut.data(), vecOut.size(), &ulOffset) ||
        !stAgain.saveData(vecAgain.data(), vecAgain.size(), &ulOffset) || vecAgain != vecOut)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << rRecord;
    return true;
}

// The operations on arbitrary values: reports and NaNs are fine,
// undefined behaviour is not.
void Exercise(const ZELN::SZelGnssAvailability& rAvl)
{
    using namespace ZELN;
    for (const auto& rSys : rAvl.astSysUsage)
    {
        (void)rAvl.GetMaxNumUse(rSys.eSatSystem);
        (void)rAvl.CountUsedSats(rSys.eSatSystem, 0xFFFFFFFFu);
        (void)rAvl.IsSatUsed(SZelSatID(rSys.eSatSystem, 255));
        SZelSysSatUsage stCopy = rSys;
        stCopy.Add(rAvl.astSysUsage[0]);
        stCopy.astUsedPerFreq[0].AddSat(rSys.ucNumAvl - 128);
        stCopy.astUsedPerFreq[1].Add(rSys.astUsedPerFreq[2]);
    }
}

void Exercise(const ZELN::SZelPosQuality& rQuality)
{
    using namespace ZELN;
    (void)rQuality.GetSigma3d();
    (void)rQuality.GetSigma2d();
    (void)rQuality.GetSigma1d();
    (void)rQuality.GetSigmaNorth();
    (void)rQuality.GetSigmaEast();
    (void)rQuality.GetSigmaHeight();
    const double adRot[8] = {rQuality.afQ[0], rQuality.afQ[1], rQuality.afQ[2], rQuality.afQ[3],
                             rQuality.afQ[4], rQuality.afQ[5], rQuality.fMo,    rQuality.fMoUnscaled};
    SZelPosQuality stWork = rQuality;
    stWork.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRot);
    stWork.Transform(ZELCOORDINATESYSTEM_CARTESIAN, adRot);
    stWork.Transform(ZELCOORDINATESYSTEM_LOCGEO, adRot);
}

} // namespace

// First byte, modulo 11, picks the record: 0 DOP, 1 signal usage, 2 system
// usage, 3 availability, 4 network, 5 quality, 6 position, 7 result header,
// 8 result ext, 9 meta data, 10 position observation with meta data.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 11)
    {
    case 0:
    {
        ZELN::SZelDOP st;
        LoadAndRewrite(st, pImage, ulImage, true);
        break;
    }
    case 1:
    {
        ZELN::SZelFrqSatUsage st;
        if (LoadAndRewrite(st, pImage, ulImage, true))
        {
            st.AddSatMask(~st.ullBitMapUse);
            (void)st.IsSatUsed(st.eFrequency);
        }
        break;
    }
    case 2:
    {
        ZELN::SZelSysSatUsage st;
        if (LoadAndRewrite(st, pImage, ulImage, true))
        {
            ZELN::SZelSysSatUsage stOther = st;
            stOther.Add(st);
            st.Add(st);
        }
        break;
    }
    case 3:
    {
        ZELN::SZelGnssAvailability st;
        if (LoadAndRewrite(st, pImage, ulImage, true))
        {
            Exercise(st);
        }
        break;
    }
    case 4:
    {
        ZELN::SZelNrtkInfo st;
        LoadAndRewrite(st, pImage, ulImage, false);
        break;
    }
    case 5:
    {
        ZELN::SZelPosQuality st;
        if (LoadAndRewrite(st, pImage, ulImage, true))
        {
            Exercise(st);
        }
        break;
    }
    case 6:
    {
        ZELN::SZelPosition st;
        if (LoadAndRewrite(st, pImage, ulImage, false))
        {
            Exercise(st.stPosQ);
        }
        break;
    }
    case 7:
    {
        ZELN::SZelPosResultHeader st;
        LoadAndRewrite(st, pImage, ulImage, true);
        break;
    }
    case 8:
    {
        ZELN::SZelPosResultExt st;
        LoadAndRewrite(st, pImage, ulImage, true);
        break;
    }
    case 9:
    {
        ZELN::SZelPosResultMeta st;
        if (LoadAndRewrite(st, pImage, ulImage, false))
        {
            Exercise(st.stGnssAvl);
            ZELN::SZelPosResult stResult;
            stResult.stExt = st.stExt;
            stResult.ullOccTimeMs = st.stHeader.ullOccTimeMs;
            stResult.stTime = st.stHeader.stTimeLastAmbFix;
            ZELN::SMjdTime stTime;
            stResult.GetTimeWithOccupation(stTime);
            (void)(ZELN::SZelPosResultMeta(stResult) == st);
        }
        break;
    }
    default:
    {
        ZELN::ZelExtGnssPveObs st;
        LoadAndRewrite(st, pImage, ulImage, false);
        break;
    }
    }
    return 0;
}
