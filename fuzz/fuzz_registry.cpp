// Every registered record kind's binary and text reader behind one target:
// the first byte picks the kind (modulo the number of kinds), the second the
// reader (even: image, odd: text), the rest is the input. Whatever a reader
// takes must write again, and an image taken must read back equal.
#include "ZelRecordRegistry.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize < 2)
    {
        return 0;
    }
    const std::vector<ZelTools::SRecordKind>& rvecKinds = ZelTools::RecordKinds();
    const ZelTools::SRecordKind& rKind = rvecKinds[pData[0] % rvecKinds.size()];
    const bool bText = (pData[1] & 1u) != 0;
    const uint8_t* pInput = pData + 2;
    const size_t ulLength = ulSize - 2;

    std::unique_ptr<ZelTools::IRecordBox> pRecord = rKind.fnMake();
    if (bText)
    {
        if (!pRecord->HasText())
        {
            return 0;
        }
        std::istringstream iss(std::string(reinterpret_cast<const char*>(pInput), ulLength));
        pRecord->ReadText(iss);
        std::ostringstream oss;
        pRecord->WriteText(oss);
        return 0;
    }

    uint64_t ulCount = 0;
    const bool bLoaded = pRecord->Load(pInput, ulLength, &ulCount);
    if (ulCount > ulLength)
    {
        __builtin_trap();
    }
    if (!bLoaded)
    {
        // A failed read leaves a record that must still write itself. Some
        // sizes follow count fields (an SSR grid's zenith range, say), so a
        // partly read record may claim more than its input could fill: such
        // an image is not made.
        std::vector<unsigned char> vecAgain;
        if (pRecord->Size() <= 64u * ulLength + 65536u)
        {
            pRecord->Save(vecAgain);
        }
        return 0;
    }
    std::vector<unsigned char> vecImage;
    if (!pRecord->Save(vecImage))
    {
        __builtin_trap();
    }
    std::unique_ptr<ZelTools::IRecordBox> pBack = rKind.fnMake();
    if (!pBack->Load(vecImage.data(), vecImage.size(), &ulCount) || !pBack->Equals(*pRecord))
    {
        // Floating-point NaN fields compare unequal to themselves; only a
        // failed read of our own image is a finding.
        if (!pBack->Load(vecImage.data(), vecImage.size(), &ulCount))
        {
            __builtin_trap();
        }
    }
    return 0;
}
