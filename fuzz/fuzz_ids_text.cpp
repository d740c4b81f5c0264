#include <ZelTypes/Core/Common/ZelObsInfo.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

namespace
{

// A record read without failure writes a text that reads back to it.
template <class R> void RoundTrip(std::istream& is)
{
    R stRecord;
    is >> stRecord;
    std::ostringstream oss;
    oss << stRecord;
    if (is.fail())
    {
        return;
    }
    std::istringstream issAgain(oss.str());
    R stAgain;
    issAgain >> stAgain;
    if (issAgain.fail() || !(stAgain == stRecord))
    {
        __builtin_trap();
    }
}

} // namespace

// First byte picks the reader.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    std::istringstream iss(std::string(reinterpret_cast<const char*>(pData) + 1, ulSize - 1));
    switch (pData[0] % 12)
    {
    case 0:
        RoundTrip<ZELN::SZelSatID>(iss);
        break;
    case 1:
    {
        ZELN::SZelFrqTMdID stID;
        iss >> stID;
        std::ostringstream oss;
        oss << stID;
        break;
    }
    case 2:
        RoundTrip<ZELN::SZelSatFrqID>(iss);
        break;
    case 3:
        RoundTrip<ZELN::SZelSysFrqID>(iss);
        break;
    case 4:
        RoundTrip<ZELN::SZelSysFrqTMdGroupID>(iss);
        break;
    case 5:
        RoundTrip<ZELN::SZelSatFrqTMdGroupID>(iss);
        break;
    case 6:
    {
        uint32_t ebf = 0;
        ZELN::ReadTMdGroups(iss, ebf);
        std::ostringstream oss;
        ZELN::WriteTMdGroups(oss, ebf);
        break;
    }
    case 7:
    {
        uint32_t ebf = 0;
        ZELN::ReadSatSystems(iss, ebf);
        std::ostringstream oss;
        ZELN::WriteSatSystems(oss, ebf);
        break;
    }
    case 8:
    {
        char szName[ZELN::ulSZFRQ_MAXLGTH];
        if (ZELN::ReadFrqName(iss, szName))
        {
            for (int iSys = 0; iSys <= 9; ++iSys)
            {
                (void)ZELN::GetSysInfo(static_cast<ZELN::EZelSatSystem>(iSys)).GetFrqByName(szName);
            }
        }
        break;
    }
    case 9:
    {
        ZELN::EZelOrbitSource eSource = ZELN::ZELORBITSOURCE_ALM;
        iss >> eSource;
        std::ostringstream oss;
        oss << eSource;
        break;
    }
    case 10:
    {
        ZELN::ETrackComponent eComp = ZELN::TRACKCOMPONENT_U;
        ZELN::EZelSatSystem eSys = ZELN::ZELSATSYSTEM_NONE;
        iss >> eComp >> eSys;
        std::ostringstream oss;
        oss << eComp << eSys;
        break;
    }
    default:
    {
        // Frequency-group names of arbitrary bit sets.
        uint32_t ebf = 0;
        int iSys = 0;
        iss >> ebf >> iSys;
        (void)ZELN::GetFrqGroupsText(static_cast<ZELN::EZelSatSystem>(iSys), ebf);
        break;
    }
    }
    return 0;
}
