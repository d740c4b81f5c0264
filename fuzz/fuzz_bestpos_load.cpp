#include <ZelTypes/Core/Common/ZelNovAtelBestPos.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <vector>

// The best-position record: whatever was read writes an image that reads
// back to the same image (a flag byte other than 0 or 1 goes out as 1), and
// its text can be written and read again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    ZELN::SZelNovAtelBestPos st;
    uint64_t ulOffset = 0;
    if (!st.loadData(pData, ulSize, &ulOffset))
    {
        return 0;
    }
    if (ulOffset != st.getSize())
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecOut(static_cast<size_t>(st.getSize()));
    ZELN::SZelNovAtelBestPos stAgain;
    std::vector<unsigned char> vecAgain(vecOut.size());
    if (!st.saveData(vecOut.data(), vecOut.size(), &ulOffset) ||
        !stAgain.loadData(vecOut.data(), vecOut.size(), &ulOffset) ||
        !stAgain.saveData(vecAgain.data(), vecAgain.size(), &ulOffset) || vecAgain != vecOut)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << st;
    std::istringstream iss(oss.str());
    ZELN::SZelNovAtelBestPos stText;
    iss >> stText;
    (void)(stText == st);
    return 0;
}
