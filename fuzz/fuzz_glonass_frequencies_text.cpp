#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

// Whatever a text gives, the written form of it reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData), ulSize));
    ZELN::ZelGlonassFrequencies stChannels;
    iss >> stChannels;

    std::ostringstream oss;
    oss << stChannels;
    std::istringstream issBack(oss.str());
    ZELN::ZelGlonassFrequencies stBack;
    issBack >> stBack;
    if (issBack.fail() || stBack != stChannels)
    {
        __builtin_trap();
    }
    return 0;
}
