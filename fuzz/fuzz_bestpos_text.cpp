#include <ZelTypes/Core/Common/ZelNovAtelBestPos.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

// Read, then write what was read: neither may crash on any text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData), ulSize));
    ZELN::SZelNovAtelBestPos st;
    iss >> st;
    std::ostringstream oss;
    oss << st;
    return 0;
}
