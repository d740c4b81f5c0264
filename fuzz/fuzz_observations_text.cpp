// Every text reader of the observation records; the first byte picks the
// record. A forged count presizes a sequence within a fixed bound, so the
// target runs under the fuzzer's own memory limits.
#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <cstddef>
#include <cstdint>
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
    // A second read into the filled record.
    std::istringstream iss2(strText);
    iss2 >> stRecord;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const std::string strText(reinterpret_cast<const char*>(pData) + 1, ulSize - 1);
    switch (pData[0] % 9)
    {
    case 0:
        Check<ZELN::SZelFreqObservation>(strText);
        break;
    case 1:
        Check<ZELN::SZelSatObservation>(strText);
        break;
    case 2:
        Check<ZELN::SZelObservationEpochHeader>(strText);
        break;
    case 3:
        Check<ZELN::SZelObservationEpoch>(strText);
        break;
    case 4:
        Check<ZELN::SZelCorrectionKey>(strText);
        break;
    case 5:
    {
        std::istringstream iss(strText);
        ZELN::EZelCorrType eType = ZELN::ZELCORRTYPE_INV;
        iss >> eType;
        std::ostringstream oss;
        oss << eType;
        break;
    }
    case 6:
        Check<ZELN::SZelRtmeOutEpochData>(strText);
        break;
    case 7:
        Check<ZELN::SZelObsInfo>(strText);
        break;
    default:
        Check<ZELN::ZelExtObsEpoch>(strText);
        break;
    }
    return 0;
}
