// Every binary reader of the observation records; the first byte picks the
// record. Readers allocate in proportion to their input, so the target runs
// under the fuzzer's own memory limits.
#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <vector>

namespace
{

// Whatever a reader accepts must write back, and the image written must read
// again into a record of the same size. A second load into the filled record
// exercises the bounds tests on the present content.
template <class R> void Check(const uint8_t* pData, size_t ulSize)
{
    R stRecord;
    uint64_t ulOffset = 0;
    const bool bLoaded = stRecord.loadData(pData, ulSize, &ulOffset);
    if (ulOffset > ulSize)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << stRecord;
    if (!bLoaded)
    {
        stRecord.loadData(pData, ulSize, &ulOffset);
        return;
    }
    if (ulOffset != stRecord.getSize())
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecOut(static_cast<size_t>(stRecord.getSize()));
    if (!stRecord.saveData(vecOut.data(), vecOut.size(), &ulOffset) || ulOffset != vecOut.size())
    {
        __builtin_trap();
    }
    R stAgain;
    if (!stAgain.loadData(vecOut.data(), vecOut.size(), &ulOffset) || stAgain.getSize() != stRecord.getSize())
    {
        __builtin_trap();
    }
    (void)(stAgain == stRecord);
    stRecord.loadData(pData, ulSize, &ulOffset);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 7)
    {
    case 0:
        Check<ZELN::SZelSatObservation>(pImage, ulImage);
        break;
    case 1:
        Check<ZELN::SZelObservationEpochHeader>(pImage, ulImage);
        break;
    case 2:
        Check<ZELN::SZelObservationEpoch>(pImage, ulImage);
        break;
    case 3:
        Check<ZELN::SZelRtmeOutEpochData>(pImage, ulImage);
        break;
    case 4:
    {
        // No text form: the binary checks only.
        ZELN::SZelOutObservations stOut;
        uint64_t ulOffset = 0;
        if (stOut.loadData(pImage, ulImage, &ulOffset))
        {
            std::vector<unsigned char> vecOut(static_cast<size_t>(stOut.getSize()));
            if (ulOffset != vecOut.size() || !stOut.saveData(vecOut.data(), vecOut.size(), &ulOffset))
            {
                __builtin_trap();
            }
        }
        break;
    }
    case 5:
        Check<ZELN::SZelObsInfo>(pImage, ulImage);
        break;
    default:
        Check<ZELN::ZelExtObsEpoch>(pImage, ulImage);
        break;
    }
    return 0;
}
