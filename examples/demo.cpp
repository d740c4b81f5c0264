// ZelTypes example: a host installs its assertion hook and walks a time
// through every form the library offers.
//
//   zeltypes_demo [gps-week seconds-of-week]
#include <ZelTypes/ZelTypesAll.h>

#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <sstream>

using namespace ZELN;

namespace
{

// A host's hook: print every failed check of the library.
bool PrintingHook(const char* szExpression, const char* szFile, int iLine)
{
    std::cerr << "check failed: " << szExpression << " (" << szFile << ":" << iLine << ")\n";
    return true;
}

void ShowTime(const SMjdTime& stTime)
{
    std::cout << "MJD                  " << std::setprecision(15) << stTime.GetMjd() << "\n";
    std::cout << "Julian date          " << stTime.GetJulianDate() << "\n";
    int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
    double dSeconds = 0.0;
    stTime.GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
    std::cout << "calendar             " << iYear << "-" << iMonth << "-" << iDay << " " << iHour << ":"
              << iMinute << ":" << dSeconds << "\n";
    unsigned short unWeek = 0;
    double dGpsSeconds = 0.0;
    unsigned int uiMs = 0;
    stTime.GetGpsTime(unWeek, dGpsSeconds);
    std::cout << "GPS week, seconds    " << unWeek << ", " << dGpsSeconds << "\n";
    stTime.GetGpsTimeMs(unWeek, uiMs);
    std::cout << "GPS week, ms         " << unWeek << ", " << uiMs << "\n";
    unsigned int uiBdsWeek = 0;
    double dBdsSeconds = 0.0;
    stTime.GetBdsTime(uiBdsWeek, dBdsSeconds);
    std::cout << "BeiDou week, seconds " << uiBdsWeek << ", " << dBdsSeconds << "\n";
    std::cout << "day of year          " << stTime.GetDayOfYear() << "\n";

    char szText[64];
    stTime.GetTextEpoch(szText, sizeof(szText));
    std::cout << "GetTextEpoch         \"" << szText << "\"\n";
    stTime.GetTextMjd(szText, sizeof(szText));
    std::cout << "GetTextMjd           \"" << szText << "\"\n";
    stTime.GetTextGps(szText, sizeof(szText));
    std::cout << "GetTextGps           \"" << szText << "\"\n";

    const char* const aszForms[] = {"MONTHYEAR", "DATETIME", "MJD", "GPS_SECONDS", "GPS_MILLISECONDS"};
    for (int iForm = 0; iForm < 5; ++iForm)
    {
        std::ostringstream oss;
        oss << std::setprecision(12);
        stTime.WriteText(oss, static_cast<EMjdTimeTextForm>(iForm));
        std::cout << "stream " << std::left << std::setw(17) << aszForms[iForm] << "\"" << oss.str()
                  << "\"\n";
    }
}

} // namespace

int main(int argc, char** argv)
{
    SetAssertHandler(&PrintingHook);

    unsigned int uiWeek = 2345;
    double dSeconds = 302400.125;
    if (argc >= 3)
    {
        uiWeek = static_cast<unsigned int>(std::strtoul(argv[1], nullptr, 10));
        dSeconds = std::strtod(argv[2], nullptr);
    }

    std::cout << std::setprecision(15) << "== time: GPS week " << uiWeek << ", " << dSeconds << " s\n";
    const SMjdTime stTime(uiWeek, dSeconds);
    ShowTime(stTime);

    // Binary form: 16 bytes, read back equal.
    unsigned char aucImage[16];
    uint64_t ulOffset = 0;
    SMjdTime stBack;
    const bool bSaved = stTime.saveData(aucImage, sizeof(aucImage), &ulOffset);
    const bool bLoaded = stBack.loadData(aucImage, sizeof(aucImage), &ulOffset);
    std::cout << "binary round trip    " << (bSaved && bLoaded && stBack == stTime ? "equal" : "DIFFERENT")
              << " (" << ulOffset << " bytes)\n";
    return bSaved && bLoaded && stBack == stTime ? 0 : 1;
}
