// Binary readers of the orbit records. The first byte, modulo 6, picks: 0
// orbit polynomial, 1 satellite status table, 2 frame transformation, 3
// state entry, 4 state epoch, 5 state table; the rest is the image.
#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphStates.h>
#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <sstream>
#include <utility>
#include <vector>

namespace
{

using namespace ZELN;

// A Core record read back must write the same bytes, apart from the byte
// ranges that the writer fills with zero.
template <class R>
void CoreRoundTrip(const R& rRecord, const uint8_t* pData,
                   std::initializer_list<std::pair<size_t, size_t>> lstGaps)
{
    std::vector<unsigned char> vecOut(static_cast<size_t>(rRecord.getSize()), 0xAA);
    uint64_t ulOffset = 0;
    if (!rRecord.saveData(vecOut.data(), vecOut.size(), &ulOffset) || ulOffset != vecOut.size())
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecIn(pData, pData + vecOut.size());
    for (const auto& rGap : lstGaps)
    {
        std::memset(&vecIn[rGap.first], 0, rGap.second);
    }
    if (vecIn != vecOut)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << rRecord;
}

// An Ext record read back writes the bytes it read.
template <class R> void ExtRoundTrip(const R& rRecord, const uint8_t* pData, size_t ulLength)
{
    const size_t ulSize = static_cast<size_t>(rRecord.getSize());
    if (ulSize > ulLength)
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecOut(ulSize, 0xAA);
    if (!rRecord.saveData(vecOut.data(), vecOut.size()) || std::memcmp(vecOut.data(), pData, ulSize) != 0)
    {
        __builtin_trap();
    }
    (void)(rRecord == rRecord);
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
    uint64_t ulOffset = 0;
    switch (pData[0] % 6)
    {
    case 0:
    {
        SZelOrbPoly st;
        if (st.loadData(pImage, ulLength, &ulOffset))
        {
            CoreRoundTrip(st, pImage,
                          {{1, 3},
                           {9, 3},
                           {20, 4},
                           {36, 4},
                           {44, 4},
                           {52, 4},
                           {68, 4},
                           {81, 7},
                           {116, 4},
                           {124, 4},
                           {140, 4},
                           {153, 7},
                           {426, 6}});
            (void)(st == st);
            (void)(st == SZelOrbPoly(st.stSatId, st.ulEphType));
            (void)st.getAddParsGal();
            SZelOrbPoly stCopy = st;
            stCopy.setOrbMode(true);
            stCopy.clear();
        }
        break;
    }
    case 1:
    {
        ZELX_ORBIT_SAT_TABLE st;
        if (st.loadData(pImage, ulLength, &ulOffset))
        {
            CoreRoundTrip(st, pImage, {});
        }
        break;
    }
    case 2:
    {
        ZELX_ORBIT_FRAME_TRANSFORM st;
        if (st.loadData(pImage, ulLength, &ulOffset))
        {
            CoreRoundTrip(st, pImage, {});
            (void)(st == st);
        }
        break;
    }
    case 3:
    {
        ZELX_SAT_STATE_ENTRY st;
        if (st.loadData(pImage, ulLength))
        {
            ExtRoundTrip(st, pImage, ulLength);
        }
        break;
    }
    case 4:
    {
        ZELX_SAT_STATE_EPOCH st;
        if (st.loadData(pImage, ulLength))
        {
            ExtRoundTrip(st, pImage, ulLength);
            (void)st.hasStorage();
        }
        break;
    }
    default:
    {
        ZELX_SAT_STATE_TABLE st;
        if (st.loadData(pImage, ulLength))
        {
            ExtRoundTrip(st, pImage, ulLength);
        }
        break;
    }
    }
    return 0;
}
