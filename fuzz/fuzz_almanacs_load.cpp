// Binary readers of the almanac family. The first byte, modulo 6, picks the
// class: 0 GPS, 1 QZSS, 2 Galileo, 3 BeiDou, 4 NavIC, 5 GLONASS; the rest
// is the image.
#include <ZelTypes/Ext/Gnss/ZelExtAlmanac.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace
{

using namespace ZELN;

// Whatever was read must write back to the same bytes, apart from bool
// bytes (any byte other than 0 reads as true and is written as 1).
template <class R>
void CheckRoundTrip(const R& rRecord, const uint8_t* pData, std::initializer_list<size_t> lstBools)
{
    const size_t ulSize = static_cast<size_t>(rRecord.getSize());
    std::vector<unsigned char> vecOut(ulSize, 0);
    if (!rRecord.saveData(vecOut.data(), vecOut.size()))
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecIn(pData, pData + ulSize);
    for (size_t ulOffset : lstBools)
    {
        vecIn[ulOffset] = vecIn[ulOffset] != 0 ? 1 : 0;
    }
    if (vecIn != vecOut)
    {
        __builtin_trap();
    }
}

// The rules on arbitrary values: reports are fine, undefined behaviour is not.
template <class R> void Exercise(const R& rRecord)
{
    (void)rRecord.getSatId();
    (void)rRecord.getToa();
    (void)rRecord.isValid();
    (void)rRecord.isHealthy();
    (void)rRecord.getInclination();
    (void)rRecord.getA();
    (void)rRecord.hasToa();
    (void)(rRecord == rRecord);
    (void)rRecord.isDifferent(rRecord);
    (void)isNewAlmanac(rRecord, rRecord);
    (void)isNewAlmanac(R(), rRecord);
    (void)isNewAlmanac(rRecord, ZELX_SAT_ALMANAC_GALILEO());
    R stCopy;
    stCopy.assign(rRecord);
    stCopy.assign(static_cast<const ZELX_SAT_ALMANAC_COMMON&>(rRecord));
    stCopy.clear();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulLength = ulSize - 1;
    switch (pData[0] % 6)
    {
    case 0:
    {
        ZELX_SAT_ALMANAC st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {});
            Exercise(st);
        }
        break;
    }
    case 1:
    {
        ZELX_SAT_ALMANAC_QZSS st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {});
            Exercise(st);
        }
        break;
    }
    case 2:
    {
        ZELX_SAT_ALMANAC_GALILEO st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {});
            Exercise(st);
        }
        break;
    }
    case 3:
    {
        ZELX_SAT_ALMANAC_BEIDOU st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {1});
            Exercise(st);
        }
        break;
    }
    case 4:
    {
        ZELX_SAT_ALMANAC_NAVIC st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {7});
            Exercise(st);
        }
        break;
    }
    default:
    {
        ZELX_SAT_ALMANAC_GLONASS st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {8});
            (void)st.getSatId();
            (void)st.isValid();
            (void)st.isHealthy();
            (void)(st == st);
            (void)isNewAlmanacGlonass(st, st);
            (void)isNewAlmanacGlonass(ZELX_SAT_ALMANAC_GLONASS(), st);
        }
        break;
    }
    }
    return 0;
}
