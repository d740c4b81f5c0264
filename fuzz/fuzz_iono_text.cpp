// Text readers of the ionosphere records: the region code letter. The first
// byte, modulo 2, picks: 0 one letter after another to the end, 1 a letter
// into the region code of coefficients that are then written.
#include <ZelTypes/Core/Common/ZelTypesKlob.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    std::ostringstream oss;
    if (pData[0] % 2 == 0)
    {
        EZelIonRegionCode eCode = ZELIONREGIONCODE_JAPAN;
        while (iss >> eCode)
        {
            oss << eCode;
        }
    }
    else
    {
        SZelKlobucharCoefficients st;
        iss >> st.eIonRegionCode;
        oss << st;
    }
    return 0;
}
