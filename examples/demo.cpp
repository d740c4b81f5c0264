// ZelTypes example: a host installs its assertion hook and walks a time
// through every form the library offers, then an observation epoch, an
// ephemeris, SSR corrections and inertial results.
//
//   zeltypes_demo [gps-week seconds-of-week]
//
// Exit code 0 when every round trip held and the library reported nothing;
// 1 on bad arguments, when a check of the library failed or when a round
// trip differed.
#include "demo_ins.h"
#include "demo_ssr.h"

#include <ZelTypes/ZelTypesAll.h>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <vector>

using namespace ZELN;

namespace
{

// Failed checks seen so far; a hook may run on several threads at once.
std::atomic<int> g_iReports{0};

// A host's hook: print every failed check of the library and count it.
bool PrintingHook(const char* szExpression, const char* szFile, int iLine)
{
    ++g_iReports;
    std::cerr << "check failed: " << szExpression << " (" << szFile << ":" << iLine << ")\n";
    return true;
}

const char* YesNo(bool b)
{
    return b ? "yes" : "no";
}

void Usage(std::ostream& os)
{
    os << "usage: zeltypes_demo [gps-week seconds-of-week]\n"
          "  gps-week         full GPS week, 0 to 65535 (default 2345)\n"
          "  seconds-of-week  0 to below 604800 (default 302400.125)\n";
}

// A whole number or a decimal, nothing else behind it.
bool ParseNumber(const char* sz, double& rdValue)
{
    char* pEnd = nullptr;
    rdValue = std::strtod(sz, &pEnd);
    return pEnd != sz && *pEnd == '\0' && std::isfinite(rdValue);
}

void ShowTime(const SMjdTime& stTime)
{
    std::cout << "MJD                  " << std::setprecision(15) << stTime.GetMjd() << "\n";
    std::cout << "Julian date          " << stTime.GetJulianDate() << "\n";
    int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
    double dSeconds = 0.0;
    stTime.GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
    char szIso[48];
    std::snprintf(szIso, sizeof(szIso), "%04d-%02d-%02dT%02d:%02d:%06.3f", iYear, iMonth, iDay, iHour,
                  iMinute, dSeconds);
    std::cout << "calendar (ISO 8601)  " << szIso << "\n";
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

// The road of an ephemeris: a decoder fills a set, the orbit store decides
// whether the new set replaces the held one, the image crosses a boundary.
void ShowEphemerisRoad()
{
    std::cout << "\n== ephemerides\n";
    ZELX_SAT_EPHEMERIS stGpsHeld;
    stGpsHeld.setSvId(5); // the running number of a GPS satellite is its PRN
    stGpsHeld.setGPSWeek(2300);
    stGpsHeld.setToe(345600);
    stGpsHeld.setToc(345600);
    stGpsHeld.setIodc(77);
    stGpsHeld.setSqrtA(5153.6);
    stGpsHeld.setKepler(ZELEPHKEPLER_ECC, 0.01);
    stGpsHeld.setHealth(0);
    stGpsHeld.setUra(2.0f);
    stGpsHeld.setFitIntervalFlag(0);
    stGpsHeld.setValid(true);

    // Two hours later the satellite broadcasts a new issue of data.
    ZELX_SAT_EPHEMERIS stGpsNew = stGpsHeld;
    stGpsNew.setToe(345600 + 7200);
    stGpsNew.setToc(345600 + 7200);
    stGpsNew.setIodc(78);
    const bool bGpsTaken = isNewEphemerisGps(stGpsHeld, stGpsNew);
    std::cout << "GPS new set taken    " << YesNo(bGpsTaken) << "\n";
    if (bGpsTaken)
    {
        stGpsHeld = stGpsNew;
    }
    std::cout << "GPS held             " << stGpsHeld.getSatId() << " iodc " << stGpsHeld.getIod() << ", fit "
              << static_cast<int>(stGpsHeld.getFitIntervalHours()) << " h, healthy "
              << YesNo(stGpsHeld.isHealthy()) << "\n";
    std::cout << "same set again taken " << YesNo(isNewEphemerisGps(stGpsHeld, stGpsNew)) << "\n";

    // A Galileo I/NAV set.
    ZELX_SAT_EPHEMERIS_GALILEO stGalHeld(4);
    stGalHeld.setSvId(POS_OFFSET_PRN_GAL + 11); // E11
    stGalHeld.setEphSource(1);
    stGalHeld.setIodNav(93);
    stGalHeld.setHealthINav(0);
    stGalHeld.setSisa(3.12);
    stGalHeld.setToe(345600);
    stGalHeld.setToc(345600);
    stGalHeld.setRefTimeApprox(SMjdTime(2300u, 345000.0));
    ZELX_SAT_EPHEMERIS_GALILEO stGalNew = stGalHeld;
    stGalNew.setIodNav(94);
    stGalNew.setToe(345600 + 600);
    stGalNew.setToc(345600 + 600);
    std::cout << "Galileo " << stGalNew.getSatId() << " new set taken "
              << YesNo(isNewEphemerisGalileo(stGalHeld, stGalNew, false)) << ", SISA " << stGalNew.getSisa()
              << " m\n";

    // The image starts with its layout version.
    std::vector<unsigned char> vecImage(stGalNew.getSize());
    const bool bSaved = stGalNew.saveData(vecImage.data(), vecImage.size());
    ZELX_SAT_EPHEMERIS_GALILEO stGalCopy;
    const bool bLoaded = stGalCopy.loadData(vecImage.data(), vecImage.size());
    std::cout << "Galileo image        " << vecImage.size() << " bytes, version "
              << static_cast<int>(vecImage[0]) << ", round trip "
              << (bSaved && bLoaded && stGalCopy == stGalNew ? "equal" : "DIFFERENT") << "\n";
}

// The road of an observation epoch: a receiver fills signal records per
// satellite, the epoch crosses a boundary as bytes and is logged as text.
bool ShowObservationRoad()
{
    std::cout << "\n== observation epoch\n";
    SZelObservationEpoch stEpoch;
    stEpoch.stZelObservationEpochHeader.stTime.SetGpsTimeMs(2300, 345600000.0);
    stEpoch.stZelObservationEpochHeader.ucNumSats = 2;
    SZelSatObservation stSat;
    stSat.stSatId = SZelSatID(ZELSATSYSTEM_GPS, 5);
    stSat.ulIOD = 42;
    stSat.uiNumFreq = 2;
    stSat.astFreqObs[0].eFrequency = ZELFREQUENCY_L1CA;
    stSat.astFreqObs[0].dPhase = 118561234.125;
    stSat.astFreqObs[0].SetPhase(true);
    stSat.astFreqObs[0].dCode = 22561234.5;
    stSat.astFreqObs[0].SetCode(true);
    stSat.astFreqObs[1].eFrequency = ZELFREQUENCY_L2P;
    stSat.astFreqObs[1].dCode = 22561236.25;
    stSat.astFreqObs[1].SetCode(true);
    stEpoch.vecSatObs.push_back(stSat);
    stSat.Reset();
    stSat.stSatId = SZelSatID(ZELSATSYSTEM_GALILEO, 11);
    stSat.uiNumFreq = 1;
    stSat.astFreqObs[0].eFrequency = ZELFREQUENCY_E5A;
    stSat.astFreqObs[0].dCode = 24123456.75;
    stSat.astFreqObs[0].SetCode(true);
    stEpoch.vecSatObs.push_back(stSat);

    // Bytes, and back.
    std::vector<unsigned char> vecBytes(static_cast<size_t>(stEpoch.getSize()));
    uint64_t ulUsed = 0;
    const bool bSaved = stEpoch.saveData(vecBytes.data(), vecBytes.size(), &ulUsed);
    SZelObservationEpoch stFromBytes;
    const bool bLoaded = stFromBytes.loadData(vecBytes.data(), vecBytes.size(), &ulUsed);

    // Text, and back; the caller chooses the precision.
    std::ostringstream oss;
    oss << std::setprecision(17) << stEpoch;
    std::istringstream iss(oss.str());
    SZelObservationEpoch stFromText;
    iss >> stFromText;

    const bool bBytesEqual = bSaved && bLoaded && stFromBytes == stEpoch;
    const bool bTextEqual = !iss.fail() && stFromText == stEpoch;
    // The log line of the epoch holds every satellite; shown here one per line.
    std::ostringstream ossHeader;
    ossHeader << std::setprecision(17) << stEpoch.stZelObservationEpochHeader;
    std::cout << "header               " << ossHeader.str() << "\n";
    for (const SZelSatObservation& rstSat : stEpoch.vecSatObs)
    {
        std::ostringstream ossSat;
        ossSat << std::setprecision(17) << rstSat;
        std::cout << "satellite " << rstSat.stSatId << "        " << ossSat.str() << "\n";
    }
    std::cout << "bytes                " << vecBytes.size() << ", read back "
              << (bBytesEqual ? "equal" : "DIFFERENT") << "\n";
    std::cout << "text read back       " << (bTextEqual ? "equal" : "DIFFERENT") << "\n";
    return bBytesEqual && bTextEqual;
}

} // namespace

int main(int argc, char** argv)
{
    SetAssertHandler(&PrintingHook);

    unsigned int uiWeek = 2345;
    double dSeconds = 302400.125;
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0))
    {
        Usage(std::cout);
        return 0;
    }
    if (argc == 3)
    {
        double dWeek = 0.0;
        if (!ParseNumber(argv[1], dWeek) || !ParseNumber(argv[2], dSeconds) || dWeek < 0.0 ||
            dWeek > 65535.0 || dWeek != std::floor(dWeek))
        {
            std::cerr << "ERROR: bad arguments\n";
            Usage(std::cerr);
            return 1;
        }
        uiWeek = static_cast<unsigned int>(dWeek);
    }
    else if (argc != 1)
    {
        Usage(std::cerr);
        return 1;
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
    const bool bTimeOk = bSaved && bLoaded && stBack == stTime;

    const bool bObsOk = ShowObservationRoad();
    ShowEphemerisRoad();

    // The satellite texts above leave the fill character at '0' on the
    // stream, as every record writer leaves its settings; the roads below
    // lay out columns with blanks.
    std::cout << std::setfill(' ') << std::right;
    std::cout << "\n== SSR road\n";
    DemoSsr(std::cout);

    std::cout << "\n== inertial road\n";
    DemoIns(std::cout);
    if (g_iReports > 0)
    {
        std::cerr << "ERROR: the library reported " << g_iReports << " failed check(s)\n";
        return 1;
    }
    return bTimeOk && bObsOk ? 0 : 1;
}
