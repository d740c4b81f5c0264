#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

// First byte picks the reader: '3' or '4' for ReadText forms, anything else operator>>.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    ZELN::SMjdTime stTime;
    if (pData[0] == '3' || pData[0] == '4')
    {
        stTime.ReadText(iss, static_cast<ZELN::EMjdTimeTextForm>(pData[0] - '0'));
    }
    else
    {
        iss >> stTime;
    }
    std::ostringstream oss;
    oss << stTime;
    return 0;
}
