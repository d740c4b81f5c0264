// Every text reader of the SSR family: the eight messages, the header and
// the seven correction records; the first byte picks the reader.
#include <ZelTypes/Core/Common/ZelSSRTypes.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <sstream>
#include <string>

namespace
{

template <class R> void Check(const std::string& strText)
{
    std::istringstream iss(strText);
    R stRecord;
    iss >> stRecord;
    std::ostringstream oss;
    oss << stRecord;
    // A second read into the filled record (a message appends to what it holds).
    std::istringstream iss2(strText);
    iss2 >> stRecord;
    oss << stRecord;
}

// A message read from text is left in the text's order: the merge's walk
// must cope with it.
template <class M> void CheckMessage(const std::string& strText)
{
    Check<M>(strText);
    std::istringstream iss(strText);
    M stMsg;
    iss >> stMsg;
    M stCopy = stMsg;
    stCopy.MergeMsg(stMsg, true);
    stMsg.MergeMsg(stMsg, false);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const std::string strText(reinterpret_cast<const char*>(pData) + 1, ulSize - 1);
    {
        switch (pData[0] % 16)
        {
        case 0:
            CheckMessage<ZELN::SSROrbitCorrMsgT>(strText);
            break;
        case 1:
            CheckMessage<ZELN::SSRClockCorrMsgT>(strText);
            break;
        case 2:
            CheckMessage<ZELN::SSRHighRateClockMsgT>(strText);
            break;
        case 3:
            CheckMessage<ZELN::SSRCodeBiasMsgT>(strText);
            break;
        case 4:
            CheckMessage<ZELN::SSRPhaseBiasMsgT>(strText);
            break;
        case 5:
            CheckMessage<ZELN::SSRURAMsgT>(strText);
            break;
        case 6:
            CheckMessage<ZELN::SSRSignalMsgT>(strText);
            break;
        case 7:
            CheckMessage<ZELN::SSRPCVMsgT>(strText);
            break;
        case 8:
            Check<ZELN::SSRCorrMsgHeader>(strText);
            break;
        case 9:
            Check<ZELN::SSROrbitCorr>(strText);
            break;
        case 10:
            Check<ZELN::SSRClockCorr>(strText);
            break;
        case 11:
            Check<ZELN::SSRHighRateClock>(strText);
            break;
        case 12:
            Check<ZELN::SSRURA>(strText);
            break;
        case 13:
            Check<ZELN::SSRBias>(strText);
            break;
        case 14:
            Check<ZELN::SSRPhaseBias>(strText);
            break;
        default:
        {
            ZELN::SSRPCV stPcv;
            std::istringstream iss(strText);
            iss >> stPcv;
            std::ostringstream oss;
            oss << stPcv;
            stPcv.GetPCV(stPcv.uiEndZenith * 0.5);
            stPcv.GetPCV(stPcv.uiEndZenith + 7.5);
            break;
        }
        }
    }
    return 0;
}
