// The road of an SSR message. A decoder fills messages of one update
// interval, split over several parts (the multiple-message indicator); each
// message crosses the module boundary as an image through the dispatch on
// its base; the consumer keeps one current message per kind and system and
// folds every later message of the same interval into it. A message of the
// next interval closes the current one.
#include "demo_ssr.h"

#include <ZelTypes/Core/Common/ZelSSRTypes.h>
#include <ZelTypes/Core/Common/ZelSSRTypesSerialization.h>

#include <iomanip>
#include <map>
#include <vector>

using namespace ZELN;

namespace
{

constexpr unsigned short c_unWEEK = 2300;

// The header every message of the demo's service carries: 5-second
// intervals on the GPS week grid, intervals compared on merging.
SSRCorrMsgHeader DemoHeader(EZelSatSystem eSys, int32_t lMsgNum, double dSecOfWeek, uint32_t ulMMID)
{
    SSRCorrMsgHeader st;
    st.eSatSys = eSys;
    st.iMsgNum = lMsgNum;
    st.stRefTime = SMjdTime(c_unWEEK, dSecOfWeek);
    st.dUpdRate = 5.0;
    st.uiMMID = ulMMID;
    st.uiProvID = 1;
    st.uiSSRID = 2;
    st.stSSRUICfg.ucSsrIntervalDefinition = 0;
    st.stSSRUICfg.ucUIRefTime = c_ucSSR_UIREF_GPS_WEEK_SECONDS;
    return st;
}

SSROrbitCorrMsgT OrbitMsg(EZelSatSystem eSys, double dSecOfWeek, uint32_t ulMMID, std::vector<int> vecSats,
                          double dScale)
{
    SSROrbitCorrMsgT st(eZELSSRCORRECTIONTYPE_ORBIT_RAC);
    st.oHeader = DemoHeader(eSys, eSys == ZELSATSYSTEM_GPS ? 1060 : 1066, dSecOfWeek, ulMMID);
    for (const int iSat : vecSats)
    {
        st.vCorrs.emplace_back(SZelSatID(eSys, static_cast<uint8_t>(iSat)), 40u + iSat, 0u,
                               st.oHeader.stRefTime, dScale * 0.01 * iSat, -dScale * 0.02 * iSat,
                               dScale * 0.005, 0.0001 * iSat, 0.0, 0.0, false);
    }
    return st;
}

SSRClockCorrMsgT ClockMsg(EZelSatSystem eSys, double dSecOfWeek, uint32_t ulMMID, std::vector<int> vecSats,
                          double dScale)
{
    SSRClockCorrMsgT st(eZELSSRCORRECTIONTYPE_CLOCK_DELTA);
    st.oHeader = DemoHeader(eSys, eSys == ZELSATSYSTEM_GPS ? 1061 : 1067, dSecOfWeek, ulMMID);
    for (const int iSat : vecSats)
    {
        st.vCorrs.emplace_back(SZelSatID(eSys, static_cast<uint8_t>(iSat)), st.oHeader.stRefTime,
                               dScale * 0.1 * iSat, 0.0, 0.0);
    }
    return st;
}

// The image of a message, as a decoder hands it over: the dispatch on the base.
std::vector<unsigned char> ImageOf(const SSRCorrMsgBaseT& rstMsg)
{
    std::vector<unsigned char> vec(static_cast<size_t>(getSize(rstMsg)));
    uint64_t ulUsed = 0;
    saveData(rstMsg, vec.data(), vec.size(), &ulUsed);
    return vec;
}

// The current corrections of one kind: a message per system.
template <class M> class CCurrent
{
public:
    // Folds a received message in; a message of a later interval replaces the
    // current one, which is then complete.
    void Receive(std::ostream& os, const std::vector<unsigned char>& rvecImage)
    {
        M stMsg;
        uint64_t ulUsed = 0;
        if (!loadData(stMsg, rvecImage.data(), rvecImage.size(), &ulUsed))
        {
            os << "  unreadable image of " << rvecImage.size() << " bytes\n";
            return;
        }
        os << "  " << std::left << std::setw(13) << GetSSRCorrTypeName(stMsg.eSSRCorrType) << std::right
           << stMsg.oHeader.eSatSys << " part " << stMsg.oHeader.uiMMID << ", " << stMsg.vCorrs.size()
           << " records at " << std::setprecision(1) << RefSeconds(stMsg) << " s: ";
        const auto it = m_mapCurrent.find(stMsg.oHeader.eSatSys);
        if (it == m_mapCurrent.end())
        {
            os << "first of its interval\n";
            m_mapCurrent.emplace(stMsg.oHeader.eSatSys, stMsg);
            return;
        }
        switch (it->second.CompareUpdIntv(stMsg))
        {
        case SSRCorrMsgBaseT::eConstEqual:
            it->second.MergeMsg(stMsg, true);
            os << "merged, now " << it->second.vCorrs.size() << " records\n";
            break;
        case SSRCorrMsgBaseT::eConstBefore:
            os << "next interval; the current one is complete\n";
            m_vecComplete.push_back(it->second);
            it->second = stMsg;
            break;
        default:
            os << "late or overlapping, dropped\n";
            break;
        }
    }

    const std::map<EZelSatSystem, M>& Current() const { return m_mapCurrent; }
    const std::vector<M>& Complete() const { return m_vecComplete; }

    static double RefSeconds(const M& rstMsg)
    {
        unsigned short unWeek = 0;
        double dSeconds = 0.0;
        rstMsg.oHeader.stRefTime.GetGpsTime(unWeek, dSeconds);
        return dSeconds;
    }

private:
    std::map<EZelSatSystem, M> m_mapCurrent;
    std::vector<M> m_vecComplete;
};

void PrintOrbits(std::ostream& os, const SSROrbitCorrMsgT& rstMsg)
{
    SMjdTime stStart, stEnd;
    rstMsg.GetUpdIntv(stStart, stEnd);
    os << "  orbit " << rstMsg.oHeader.eSatSys << ", interval " << std::setprecision(1)
       << stStart.GetGpsSeconds() << " to " << stEnd.GetGpsSeconds() << " s\n";
    for (const SSROrbitCorr& r : rstMsg.vCorrs)
    {
        os << "    " << r.stSatID << std::setfill(' ') << "  IODE " << std::setw(3) << r.uiIODBE
           << std::setprecision(4) << "  radial " << std::setw(8) << r.dDRDX << "  along " << std::setw(8)
           << r.dDADY << "  cross " << std::setw(8) << r.dDCDZ << "\n";
    }
}

void PrintClocks(std::ostream& os, const SSRClockCorrMsgT& rstMsg)
{
    os << "  clock " << rstMsg.oHeader.eSatSys << "\n";
    for (const SSRClockCorr& r : rstMsg.vCorrs)
    {
        os << "    " << r.stSatID << std::setfill(' ') << "  C0 " << std::setprecision(4) << std::setw(8)
           << r.dC0 << "\n";
    }
}

} // namespace

void DemoSsr(std::ostream& os)
{
    os << "\n== SSR stream\n";
    const std::ios::fmtflags eFlags = os.flags();
    const char cFill = os.fill();
    const std::streamsize lPrecision = os.precision();
    os << std::fixed;

    // Interval 345600 to 345605 s: GPS orbits in two parts, a GLONASS part,
    // clocks; then a correction part for G05; then the next interval starts.
    const double t0 = 345600.0;
    std::vector<std::vector<unsigned char>> vecOrbitImages, vecClockImages;
    vecOrbitImages.push_back(ImageOf(OrbitMsg(ZELSATSYSTEM_GPS, t0, 1, {2, 5, 9}, 1.0)));
    vecOrbitImages.push_back(ImageOf(OrbitMsg(ZELSATSYSTEM_GPS, t0, 0, {12, 17, 25}, 1.0)));
    vecOrbitImages.push_back(ImageOf(OrbitMsg(ZELSATSYSTEM_GLONASS, t0, 0, {3, 8}, 1.0)));
    vecClockImages.push_back(ImageOf(ClockMsg(ZELSATSYSTEM_GPS, t0 + 1.0, 0, {2, 5, 9, 12, 17, 25}, 1.0)));
    vecOrbitImages.push_back(ImageOf(OrbitMsg(ZELSATSYSTEM_GPS, t0 + 2.0, 0, {5}, 2.0)));
    vecClockImages.push_back(ImageOf(ClockMsg(ZELSATSYSTEM_GPS, t0 + 3.0, 0, {5, 9}, 1.5)));
    vecOrbitImages.push_back(ImageOf(OrbitMsg(ZELSATSYSTEM_GPS, t0 + 5.0, 0, {2, 5}, 3.0)));
    vecClockImages.push_back(ImageOf(ClockMsg(ZELSATSYSTEM_GPS, t0 + 6.0, 0, {2, 5}, 3.0)));
    vecOrbitImages.push_back(ImageOf(OrbitMsg(ZELSATSYSTEM_GPS, t0 + 4.0, 0, {31}, 1.0))); // late

    CCurrent<SSROrbitCorrMsgT> oOrbits;
    CCurrent<SSRClockCorrMsgT> oClocks;
    os << "received\n";
    for (const auto& rvecImage : vecOrbitImages)
    {
        oOrbits.Receive(os, rvecImage);
    }
    for (const auto& rvecImage : vecClockImages)
    {
        oClocks.Receive(os, rvecImage);
    }

    os << "complete interval\n";
    for (const SSROrbitCorrMsgT& rstMsg : oOrbits.Complete())
    {
        PrintOrbits(os, rstMsg);
    }
    for (const SSRClockCorrMsgT& rstMsg : oClocks.Complete())
    {
        PrintClocks(os, rstMsg);
    }
    os << "current corrections\n";
    for (const auto& rEntry : oOrbits.Current())
    {
        PrintOrbits(os, rEntry.second);
    }
    for (const auto& rEntry : oClocks.Current())
    {
        PrintClocks(os, rEntry.second);
    }
    // The tagged line of the current GPS clocks; the records leave their
    // 17-digit scientific format on the stream, which is restored after.
    os.flags(eFlags);
    os.fill(cFill);
    os.precision(lPrecision);
    os << "as text\n  " << std::right << oClocks.Current().at(ZELSATSYSTEM_GPS) << "\n";
    os.flags(eFlags);
    os.fill(cFill);
    os.precision(lPrecision);
}
