// Binary reader of the Klobuchar coefficients; the whole input is the image.
// Whatever was read also feeds the ionosphere records and their equality.
#include <ZelTypes/Core/Common/ZelTypesKlob.h>
#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    SZelKlobucharCoefficients st;
    uint64_t ulOffset = 0;
    if (!st.loadData(pData, ulSize, &ulOffset))
    {
        return 0;
    }
    if (ulOffset != st.getSize())
    {
        __builtin_trap();
    }
    // The image written back: the flag byte as 0 or 1, the reserved bytes as zero.
    std::vector<unsigned char> vecOut(static_cast<size_t>(st.getSize()), 0xAA);
    if (!st.saveData(vecOut.data(), vecOut.size(), &ulOffset))
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecIn(pData, pData + vecOut.size());
    vecIn[0] = vecIn[0] != 0 ? 1 : 0;
    std::memset(&vecIn[1], 0, 3);
    std::memset(&vecIn[76], 0, 4);
    if (vecIn != vecOut)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << st;
    ZELX_IONO_UTC stIono;
    stIono.stKlobuchar = st;
    (void)(stIono == ZELX_IONO_UTC());
    ZELX_IONO_BEIDOU stBds;
    stBds.stKlobuchar = st;
    (void)(stBds == ZELX_IONO_BEIDOU());
    (void)(st == SZelKlobucharCoefficients());
    return 0;
}
