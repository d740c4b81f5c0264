// ZelTypes example: a host installs its assertion hook and walks a time
// through every form the library offers.
//
//   zeltypes_demo [gps-week seconds-of-week]
#include "demo_ins.h"
#include "demo_ssr.h"

#include <ZelTypes/ZelTypesAll.h>

#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <vector>

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
    std::cout << "GPS new set taken    " << bGpsTaken << "\n";
    if (bGpsTaken)
    {
        stGpsHeld = stGpsNew;
    }
    std::cout << "GPS held             G" << static_cast<int>(stGpsHeld.getPrn()) << " iodc "
              << stGpsHeld.getIod() << ", fit " << static_cast<int>(stGpsHeld.getFitIntervalHours())
              << " h, healthy " << stGpsHeld.isHealthy() << "\n";
    std::cout << "same set again taken " << isNewEphemerisGps(stGpsHeld, stGpsNew) << "\n";

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
    std::cout << "Galileo E" << static_cast<int>(stGalNew.getSatId().uiSatNumber) << " new set taken "
              << isNewEphemerisGalileo(stGalHeld, stGalNew, false) << ", SISA " << stGalNew.getSisa()
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
    std::cout << "text                 " << oss.str() << "\n";
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
    const bool bTimeOk = bSaved && bLoaded && stBack == stTime;

    const bool bObsOk = ShowObservationRoad();
    ShowEphemerisRoad();

    std::cout << "\n== SSR road\n";
    DemoSsr(std::cout);

    std::cout << "\n== inertial road\n";
    DemoIns(std::cout);
    return bTimeOk && bObsOk ? 0 : 1;
}
