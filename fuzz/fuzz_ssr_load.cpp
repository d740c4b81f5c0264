// The dispatched binary reader of the SSR messages, all eight classes; the
// first byte picks the class. Readers allocate in proportion to the input,
// so the target runs under libFuzzer's default memory limits.
#include <ZelTypes/Core/Common/ZelSSRTypes.h>
#include <ZelTypes/Core/Common/ZelSSRTypesSerialization.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <sstream>
#include <vector>

namespace
{

// Whatever the reader accepts must write back through the dispatch, and the
// image written must read again into a message of the same size. A second
// load into the filled message exercises the bounds test on the present
// content; a merge of the message into a copy of itself exercises the walk
// on whatever order the image left.
template <class M> void Check(const uint8_t* pData, size_t ulSize)
{
    M stMsg;
    ZELN::SSRCorrMsgBaseT& rMsg = stMsg;
    uint64_t ulOffset = 0;
    const bool bLoaded = ZELN::loadData(rMsg, pData, ulSize, &ulOffset);
    if (ulOffset > ulSize)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << stMsg;
    if (!bLoaded)
    {
        ZELN::loadData(rMsg, pData, ulSize, &ulOffset);
        return;
    }
    if (ulOffset != ZELN::getSize(rMsg))
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecOut(static_cast<size_t>(ZELN::getSize(rMsg)));
    if (!ZELN::saveData(rMsg, vecOut.data(), vecOut.size(), &ulOffset) || ulOffset != vecOut.size())
    {
        __builtin_trap();
    }
    M stAgain;
    if (!stAgain.loadData(vecOut.data(), vecOut.size(), &ulOffset) || stAgain.getSize() != stMsg.getSize())
    {
        __builtin_trap();
    }
    (void)(stAgain == stMsg);
    M stCopy = stMsg;
    stCopy.MergeMsg(stMsg, (pData[0] & 1) != 0);
    stMsg.MergeMsg(stMsg, true);
    ZELN::loadData(rMsg, pData, ulSize, &ulOffset);
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
    {
        switch (pData[0] % 8)
        {
        case 0:
            Check<ZELN::SSROrbitCorrMsgT>(pImage, ulImage);
            break;
        case 1:
            Check<ZELN::SSRClockCorrMsgT>(pImage, ulImage);
            break;
        case 2:
            Check<ZELN::SSRHighRateClockMsgT>(pImage, ulImage);
            break;
        case 3:
            Check<ZELN::SSRCodeBiasMsgT>(pImage, ulImage);
            break;
        case 4:
            Check<ZELN::SSRPhaseBiasMsgT>(pImage, ulImage);
            break;
        case 5:
            Check<ZELN::SSRURAMsgT>(pImage, ulImage);
            break;
        case 6:
            Check<ZELN::SSRSignalMsgT>(pImage, ulImage);
            break;
        default:
            Check<ZELN::SSRPCVMsgT>(pImage, ulImage);
            break;
        }
    }
    return 0;
}
