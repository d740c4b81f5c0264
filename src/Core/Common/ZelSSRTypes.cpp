#include <ZelTypes/Core/Common/ZelSSRTypes.h>
#include <ZelTypes/Core/Common/ZelSSRTypesSerialization.h>

#include <cmath>
#include <type_traits>

namespace ZELN
{

namespace
{

constexpr const char* c_aszCorrTypeNames[] = {
    "SSR Unknown",  "SSR OrbitXYZ", "SSR OrbitRAC", "SSR ClkMod",
    "SSR ClkDelta", "SSR PhBias",   "SSR CdBias",   "SSR CdBias_DEPRECATED",
    "SSR URA",      "SSR HRClkMod", "SSR HRClkDlt", "SSR VIono",
    "SSR SIono",    "SSR VTropo",   "SSR STropo",   "SSR OrbitRfn",
    "SSR BaseCrd",  "SSR SatSig",   "SSR NetGeom",  "SSR PCV"};
constexpr int c_iNB_CORR_TYPE_NAMES =
    static_cast<int>(sizeof(c_aszCorrTypeNames) / sizeof(c_aszCorrTypeNames[0]));

constexpr double c_dSEC_PER_WEEK = 604800.0;

// A time as the interval grid sees it: days since the GPS epoch (unsigned,
// so a time before the epoch gives a large count), the week in 16 bits and
// the millisecond of the week, rounded to a whole millisecond; a rounding
// that reaches the end of the week moves to the next week.
struct SGridTime
{
    uint32_t ulDays = 0;
    uint16_t unGPSWeek = 0;
    uint32_t ulMsOfWeek = 0;
};

SGridTime GridTime(const SMjdTime& rstTime)
{
    SGridTime stGrid;
    stGrid.ulDays = static_cast<uint32_t>(rstTime.m_lMjdDay) - static_cast<uint32_t>(c_lGPS_EPOCH_MJD);
    stGrid.unGPSWeek = static_cast<uint16_t>(stGrid.ulDays / c_ulDAYS_PER_WEEK);
    // A millisecond count far outside the day (only after a failed check)
    // wraps in 32 bits instead of converting out of range.
    const uint32_t ulMs = static_cast<uint32_t>(
        static_cast<uint64_t>(MjdDetail::TruncToInt64(rstTime.m_dMjdFractMilliseconds + 0.5)));
    stGrid.ulMsOfWeek = ulMs + (stGrid.ulDays % c_ulDAYS_PER_WEEK) * c_ulMSEC_PER_DAY;
    if (stGrid.ulMsOfWeek >= c_ulMSEC_PER_WEEK)
    {
        stGrid.ulMsOfWeek -= c_ulMSEC_PER_WEEK;
        stGrid.unGPSWeek = static_cast<uint16_t>(stGrid.unGPSWeek + 1);
    }
    return stGrid;
}

// The concrete message classes in the order the dispatch tries them. fnServe
// is called with the first class that matches; any other class is reported.
template <class TBase, class F, class R> R DispatchMsg(TBase& rstMsg, F fnServe, R tUnsupported)
{
    constexpr bool bConst = std::is_const<TBase>::value;
    auto fnAs = [&rstMsg](auto* pTag)
    {
        typedef std::remove_pointer_t<decltype(pTag)> TMsg;
        typedef std::conditional_t<bConst, const TMsg, TMsg> TTarget;
        return dynamic_cast<TTarget*>(&rstMsg);
    };
    if (auto* p = fnAs(static_cast<SSRPCVMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    if (auto* p = fnAs(static_cast<SSRHighRateClockMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    if (auto* p = fnAs(static_cast<SSRURAMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    if (auto* p = fnAs(static_cast<SSRPhaseBiasMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    if (auto* p = fnAs(static_cast<SSRCodeBiasMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    if (auto* p = fnAs(static_cast<SSRSignalMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    if (auto* p = fnAs(static_cast<SSRClockCorrMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    if (auto* p = fnAs(static_cast<SSROrbitCorrMsgT*>(nullptr)))
    {
        return fnServe(*p);
    }
    ZEL_REPORT("Unsupported Type!");
    return tUnsupported;
}

} // namespace

std::string GetSSRCorrTypeName(int iCorrType)
{
    if (iCorrType < 1 || iCorrType >= c_iNB_CORR_TYPE_NAMES)
    {
        return c_aszCorrTypeNames[0];
    }
    return c_aszCorrTypeNames[iCorrType];
}

// ---------------------------------------------------------------------------
// Time text
// ---------------------------------------------------------------------------

std::ostream& operator<<(std::ostream& os, const SZelSsrTimeText<const SMjdTime>& rText)
{
    return rText.rstTime.WriteText(os, MJDTXT_GPS_SECONDS);
}

std::istream& operator>>(std::istream& is, const SZelSsrTimeText<SMjdTime>& rText)
{
    uint32_t ulWeek = 0;
    char cComma = 0;
    double dSeconds = 0.0;
    is >> ulWeek >> cComma >> dSeconds;
    if (is.fail())
    {
        // A text cut here leaves the time as it was.
        return is;
    }
    if (ulWeek < c_ulMAX_GPS_WEEK + 1 && dSeconds >= 0.0 && dSeconds <= c_dSEC_PER_WEEK)
    {
        rText.rstTime.SetGpsTime(static_cast<unsigned short>(ulWeek), dSeconds);
    }
    else
    {
        rText.rstTime.Reset();
    }
    return is;
}

// ---------------------------------------------------------------------------
// Header
// ---------------------------------------------------------------------------

bool operator==(const SSRCorrMsgHeader& a, const SSRCorrMsgHeader& b)
{
    return a.eSatSys == b.eSatSys && a.iMsgNum == b.iMsgNum && a.stRefTime == b.stRefTime &&
           AreCloseRel(a.dUpdRate, b.dUpdRate) && a.uiRefDat == b.uiRefDat && a.uiSSRID == b.uiSSRID &&
           a.uiProvID == b.uiProvID && a.iSolID == b.iSolID;
}

std::ostream& operator<<(std::ostream& os, const SSRCorrMsgHeader& rstHeader)
{
    return ZelIo::WriteText(os, rstHeader);
}

std::istream& operator>>(std::istream& is, SSRCorrMsgHeader& rstHeader)
{
    return ZelIo::ReadText(is, rstHeader);
}

// ---------------------------------------------------------------------------
// Abstract message and the interval arithmetic
// ---------------------------------------------------------------------------

SSRCorrMsgBaseT::~SSRCorrMsgBaseT() = default;

void SSRCorrMsgBaseT::Clear()
{
    oHeader = SSRCorrMsgHeader();
}

bool SSRCorrMsgBaseT::IsCollection() const
{
    return false;
}

bool SSRCorrMsgBaseT::MergeMsg(const SSRCorrMsgBaseT& rstNewMsg, bool)
{
    // The check text is spelt as it stands.
    ZEL_ASSERT_TEXT(CompareUpdIntv(rstNewMsg) == ZELN::SSRCorrMsgBaseT::eConstEqual,
                    "CompareUpdIntv( rstNewMsg ) == ZELN::SSRCorrMsgBaseT::eConstEqual");
    return false;
}

SSRCorrMsgBaseT::ECompareUpdIntv SSRCorrMsgBaseT::CompareUpdIntv(const SSRCorrMsgBaseT& rstNewMsg) const
{
    const SSRCorrMsgBaseT& rhs = rstNewMsg;
    ZEL_ASSERT(oHeader.eSSRFormat == rhs.oHeader.eSSRFormat);
    const uint8_t ucRef = oHeader.stSSRUICfg.ucUIRefTime;
    SMjdTime stA0, stA1, stB0, stB1;
    GetUpdIntvBounds(oHeader.stRefTime, GetUpdRateSeconds(oHeader.dUpdRate), ucRef, stA0, stA1);
    GetUpdIntvBounds(rhs.oHeader.stRefTime, GetUpdRateSeconds(rhs.oHeader.dUpdRate), ucRef, stB0, stB1);
    return RelateIntervals(stA0, stA1, stB0, stB1);
}

SSRCorrMsgBaseT::ECompareUpdIntv SSRCorrMsgBaseT::CompareUpdIntv(const SMjdTime& rstTime) const
{
    const uint8_t ucRef = oHeader.stSSRUICfg.ucUIRefTime;
    SMjdTime stA0, stA1, stB0, stB1;
    GetUpdIntvBounds(oHeader.stRefTime, GetUpdRateSeconds(oHeader.dUpdRate), ucRef, stA0, stA1);
    GetUpdIntvBounds(rstTime, 1, ucRef, stB0, stB1);
    return RelateIntervals(stA0, stA1, stB0, stB1);
}

void SSRCorrMsgBaseT::GetUpdIntv(SMjdTime& rstStart, SMjdTime& rstEnd) const
{
    GetUpdIntvBounds(oHeader.stRefTime, GetUpdRateSeconds(oHeader.dUpdRate), oHeader.stSSRUICfg.ucUIRefTime,
                     rstStart, rstEnd);
}

uint32_t SSRCorrMsgBaseT::GetUpdRateSeconds(double dUpdRate)
{
    // Truncated through 64 bits and wrapped to 32: a negative rate wraps, and
    // a rate beyond the 64-bit range (or not a number) gives 0 instead of an
    // out-of-range conversion.
    return static_cast<uint32_t>(static_cast<uint64_t>(MjdDetail::TruncToInt64(dUpdRate)));
}

uint32_t SSRCorrMsgBaseT::GetRefSeconds(const SMjdTime& rstTime, uint8_t ucUIRefTime)
{
    const SGridTime stGrid = GridTime(rstTime);
    const uint16_t unGPSWeek = stGrid.unGPSWeek;
    uint32_t ulResult = 0;
    switch (ucUIRefTime)
    {
    case c_ucSSR_UIREF_GPS_WEEK_SECONDS:
        // A week count from 7101 on does not fit 32-bit seconds: reported,
        // and the wrapped value is used.
        ZEL_ASSERT_TEXT(~ulResult / (c_ulSEC_PER_WEEK + 1) > unGPSWeek,
                        "~ulResult / (c_ulSEC_PER_WEEK+1) > unGPSWeek");
        ulResult = unGPSWeek * c_ulSEC_PER_WEEK + stGrid.ulMsOfWeek / 1000u;
        return ulResult;
    case c_ucSSR_UIREF_DAY_SECONDS:
        return (stGrid.ulMsOfWeek % c_ulMSEC_PER_DAY) / 1000u;
    default:
        ZEL_ASSERT(false);
        return 0;
    }
}

void SSRCorrMsgBaseT::GetUpdIntvBounds(const SMjdTime& rstTime, uint32_t uiRate, uint8_t ucUIRefTime,
                                       SMjdTime& rstStart, SMjdTime& rstEnd)
{
    // Everything of rstTime is taken before rstStart is set: they may be one object.
    const SGridTime stGrid = GridTime(rstTime);
    uint32_t ulSeconds = GetRefSeconds(rstTime, ucUIRefTime);
    if (uiRate != 0)
    {
        ulSeconds -= ulSeconds % uiRate;
    }
    switch (ucUIRefTime)
    {
    case c_ucSSR_UIREF_GPS_WEEK_SECONDS:
        rstStart.SetGpsTime(static_cast<unsigned short>(ulSeconds / c_ulSEC_PER_WEEK),
                            static_cast<double>(ulSeconds % c_ulSEC_PER_WEEK));
        break;
    case c_ucSSR_UIREF_DAY_SECONDS:
    {
        // The week is the one of the day count, not raised by a rounding
        // across the week's end; the days come from the reduced millisecond.
        const uint16_t unWeek = static_cast<uint16_t>(stGrid.ulDays / c_ulDAYS_PER_WEEK);
        const uint32_t ulSecOfWeek = (stGrid.ulMsOfWeek / c_ulMSEC_PER_DAY) * 86400u + ulSeconds;
        rstStart.SetGpsTime(unWeek, static_cast<double>(ulSecOfWeek));
        break;
    }
    default:
        ZEL_ASSERT(false);
        break;
    }
    if (&rstStart != &rstEnd)
    {
        rstEnd = rstStart;
    }
    rstEnd.AddMilliseconds(uiRate * 1000.0);
}

SSRCorrMsgBaseT::ECompareUpdIntv SSRCorrMsgBaseT::RelateIntervals(const SMjdTime& a0, const SMjdTime& a1,
                                                                  const SMjdTime& b0, const SMjdTime& b1)
{
    if (!(a0 < b0) && !(b0 < a0))
    {
        if (!(a1 < b1) && !(b1 < a1))
        {
            return eConstEqual;
        }
        return a1 < b1 ? eConstContained : eConstContains;
    }
    if (a0 < b0)
    {
        if (a1 < b1)
        {
            return b0 < a1 ? eConstOverlap : eConstBefore;
        }
        return eConstContains;
    }
    if (!(b1 < a1))
    {
        return eConstContained;
    }
    return a0 < b1 ? eConstOverlap : eConstAfter;
}

// ---------------------------------------------------------------------------
// Correction records
// ---------------------------------------------------------------------------

SSROrbitCorr::SSROrbitCorr(const SZelSatID& rstSatID) : stSatID(rstSatID) {}

SSROrbitCorr::SSROrbitCorr(const SZelSatID& rstSatID, uint32_t _uiIODBE, uint32_t _uiIODPE,
                           const SMjdTime& rstRefTime, double _dDRDX, double _dDADY, double _dDCDZ,
                           double _dDRDXdot, double _dDADYdot, double _dDCDZdot, bool _bScale)
    : stSatID(rstSatID), uiIODBE(_uiIODBE), uiIODPE(_uiIODPE), bScale(_bScale), dDRDX(_dDRDX), dDADY(_dDADY),
      dDCDZ(_dDCDZ), dDRDXdot(_dDRDXdot), dDADYdot(_dDADYdot), dDCDZdot(_dDCDZdot), stRefTime(rstRefTime)
{
}

SSROrbitCorr::~SSROrbitCorr() = default;

SSRClockCorr::SSRClockCorr(const SZelSatID& rstSatID, const SMjdTime& rstRefTime, double _dC0, double _dC1,
                           double _dC2)
    : stSatID(rstSatID), dC0(_dC0), dC1(_dC1), dC2(_dC2), stRefTime(rstRefTime)
{
}

SSRClockCorr::~SSRClockCorr() = default;

SSRHighRateClock::SSRHighRateClock(const SZelSatID& rstSatID, double _dCorr)
    : stSatID(rstSatID), dCorr(_dCorr)
{
}

SSRHighRateClock::~SSRHighRateClock() = default;

SSRURA::SSRURA(const SZelSatID& rstSatID, int32_t _iSsrUra) : stSatID(rstSatID), iSsrUra(_iSsrUra) {}

SSRURA::~SSRURA() = default;

SSRBias::SSRBias(const SZelSatFrqTMdGroupID& rstSigID, double _dBias) : stSigID(rstSigID), dBias(_dBias) {}

SSRBias::SSRBias(const SZelSatID& rstSatID, EZelFrequencyGroup eFrqGrp, uint32_t ebfTMdGrps, double _dBias)
    : stSigID(rstSatID, eFrqGrp, ebfTMdGrps), dBias(_dBias)
{
}

SSRBias::~SSRBias() = default;

SSRPhaseBias::SSRPhaseBias(const SZelSatFrqTMdGroupID& rstSigID, double _dBias, uint32_t _uiLckTimeCnt)
    : SSRBias(rstSigID, _dBias), uiLckTimeCnt(_uiLckTimeCnt)
{
}

SSRPhaseBias::SSRPhaseBias(const SZelSatID& rstSatID, EZelFrequencyGroup eFrqGrp, uint32_t ebfTMdGrps,
                           double _dBias, uint32_t _uiLckTimeCnt)
    : SSRBias(rstSatID, eFrqGrp, ebfTMdGrps, _dBias), uiLckTimeCnt(_uiLckTimeCnt)
{
}

SSRPhaseBias::~SSRPhaseBias() = default;

bool operator==(const SSROrbitCorr& a, const SSROrbitCorr& b)
{
    return a.stSatID == b.stSatID && a.uiIODBE == b.uiIODBE && a.uiIODPE == b.uiIODPE &&
           a.bScale == b.bScale && a.dDRDX == b.dDRDX && a.dDADY == b.dDADY && a.dDCDZ == b.dDCDZ &&
           a.dDRDXdot == b.dDRDXdot && a.dDADYdot == b.dDADYdot && a.dDCDZdot == b.dDCDZdot &&
           a.stRefTime == b.stRefTime;
}

bool operator==(const SSRClockCorr& a, const SSRClockCorr& b)
{
    return a.stSatID == b.stSatID && a.dC0 == b.dC0 && a.dC1 == b.dC1 && a.dC2 == b.dC2 &&
           a.stRefTime == b.stRefTime;
}

bool operator==(const SSRHighRateClock& a, const SSRHighRateClock& b)
{
    return a.stSatID == b.stSatID && a.dCorr == b.dCorr;
}

bool operator==(const SSRURA& a, const SSRURA& b)
{
    return a.stSatID == b.stSatID && a.iSsrUra == b.iSsrUra;
}

bool operator==(const SSRBias& a, const SSRBias& b)
{
    return a.stSigID == b.stSigID && a.dBias == b.dBias;
}

bool operator==(const SSRPhaseBias& a, const SSRPhaseBias& b)
{
    return a.stSigID == b.stSigID && a.dBias == b.dBias && a.uiLckTimeCnt == b.uiLckTimeCnt;
}

bool operator==(const SSRPCV& a, const SSRPCV& b)
{
    return a.stSatSigID == b.stSatSigID && a.uiEndZenith == b.uiEndZenith &&
           a.uiZenithStep == b.uiZenithStep && a.vcValues == b.vcValues;
}

std::ostream& operator<<(std::ostream& os, const SSROrbitCorr& rstData)
{
    return ZelIo::WriteText(os, rstData);
}
std::istream& operator>>(std::istream& is, SSROrbitCorr& rstData)
{
    return ZelIo::ReadText(is, rstData);
}
std::ostream& operator<<(std::ostream& os, const SSRClockCorr& rstData)
{
    return ZelIo::WriteText(os, rstData);
}
std::istream& operator>>(std::istream& is, SSRClockCorr& rstData)
{
    return ZelIo::ReadText(is, rstData);
}
std::ostream& operator<<(std::ostream& os, const SSRHighRateClock& rstData)
{
    return ZelIo::WriteText(os, rstData);
}
std::istream& operator>>(std::istream& is, SSRHighRateClock& rstData)
{
    return ZelIo::ReadText(is, rstData);
}
std::ostream& operator<<(std::ostream& os, const SSRURA& rstData)
{
    return ZelIo::WriteText(os, rstData);
}
std::istream& operator>>(std::istream& is, SSRURA& rstData)
{
    return ZelIo::ReadText(is, rstData);
}
std::ostream& operator<<(std::ostream& os, const SSRBias& rstData)
{
    return ZelIo::WriteText(os, rstData);
}
std::istream& operator>>(std::istream& is, SSRBias& rstData)
{
    return ZelIo::ReadText(is, rstData);
}
std::ostream& operator<<(std::ostream& os, const SSRPhaseBias& rstData)
{
    return ZelIo::WriteText(os, rstData);
}
std::istream& operator>>(std::istream& is, SSRPhaseBias& rstData)
{
    return ZelIo::ReadText(is, rstData);
}
std::ostream& operator<<(std::ostream& os, const SSRPCV& rstData)
{
    return ZelIo::WriteText(os, rstData);
}
std::istream& operator>>(std::istream& is, SSRPCV& rstData)
{
    return ZelIo::ReadText(is, rstData);
}

// ---------------------------------------------------------------------------
// Phase-centre grid
// ---------------------------------------------------------------------------

SSRPCV::SSRPCV(const SZelSatFrqTMdGroupID& rstSatSigID, const int8_t* pcValues, uint32_t _uiEndZenith,
               uint32_t _uiZenithStep)
    : stSatSigID(rstSatSigID), uiEndZenith(_uiEndZenith), uiZenithStep(_uiZenithStep)
{
    if (_uiZenithStep == 0 || pcValues == nullptr)
    {
        ZEL_ASSERT(false);
        return;
    }
    vcValues.assign(pcValues, pcValues + GetNbGridValues());
}

SSRPCV::~SSRPCV() = default;

uint64_t SSRPCV::GetNbGridValues() const
{
    // A zero step has no grid: the division is not made.
    if (uiZenithStep == 0)
    {
        return 0;
    }
    return static_cast<uint64_t>(uiEndZenith / uiZenithStep) + 1;
}

uint64_t SSRPCV::getSize() const
{
    return c_ulHEAD_SIZE + GetNbGridValues();
}

double SSRPCV::GetPCV(double dZenithDistDeg) const
{
    ZEL_ASSERT(dZenithDistDeg > 0.0 && dZenithDistDeg < uiEndZenith);
    // A zero step has no grid to interpolate: the division would fault.
    if (uiZenithStep == 0)
    {
        ZEL_ASSERT(uiZenithStep != 0);
        return 0.0;
    }
    const double p = std::fabs(dZenithDistDeg) / uiZenithStep;
    // A distance beyond the stored values (past the end of the grid, or an
    // array shorter than the grid, or not a number) would read past the
    // array: reported, and 0.0.
    if (!(p < static_cast<double>(vcValues.size())))
    {
        ZEL_REPORT("invalid vector subscript");
        return 0.0;
    }
    const size_t i = static_cast<size_t>(p);
    const double f = p - static_cast<double>(i);
    const size_t j = i < uiEndZenith / uiZenithStep ? i + 1 : i;
    if (j >= vcValues.size())
    {
        ZEL_REPORT("invalid vector subscript");
        return 0.0;
    }
    return -(vcValues[j] * f + vcValues[i] * (1.0 - f)) / 1000.0;
}

bool SSRPCV::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    // A zero step cannot size the image: the division would fault.
    if (uiZenithStep == 0)
    {
        ZEL_ASSERT(uiZenithStep != 0);
        return false;
    }
    ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    if (!stOut.Begin(getSize()) || !VisitHead(stOut, *this))
    {
        return false;
    }
    // Fewer values than the grid numbers imply: the writer stops where the
    // array ends instead of reading past it.
    const uint64_t ulNbValues = GetNbGridValues();
    const uint64_t ulNbStored = vcValues.size();
    stOut.Bytes(vcValues.data(), ulNbValues <= ulNbStored ? ulNbValues : ulNbStored);
    if (ulNbValues > ulNbStored)
    {
        ZEL_REPORT("invalid vector subscript");
        return false;
    }
    return stOut.End(getSize());
}

bool SSRPCV::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.Begin(c_ulHEAD_SIZE) || !VisitHead(stIn, *this))
    {
        return false;
    }
    // A zero step cannot size the image: the division would fault.
    if (uiZenithStep == 0)
    {
        ZEL_ASSERT(uiZenithStep != 0);
        return false;
    }
    if (getSize() > uiBufferLength)
    {
        ZEL_ASSERT(false);
        return false;
    }
    // Bounded by the length just tested.
    vcValues.resize(static_cast<size_t>(GetNbGridValues()));
    stIn.Bytes(vcValues.data(), vcValues.size());
    return stIn.End(getSize());
}

void SSRPCV::WriteValues(std::ostream& os, const SSRPCV& rstData)
{
    // A zero step has no grid to write: the division would fault.
    if (rstData.uiZenithStep == 0)
    {
        ZEL_ASSERT(rstData.uiZenithStep != 0);
        return;
    }
    const uint64_t ulNbValues = rstData.GetNbGridValues();
    for (uint64_t ulIdx = 0; ulIdx < ulNbValues; ++ulIdx)
    {
        // Fewer values than the grid numbers imply: the line stops where the
        // array ends instead of reading past it.
        if (ulIdx >= rstData.vcValues.size())
        {
            ZEL_REPORT("invalid vector subscript");
            return;
        }
        os << ", " << static_cast<int>(rstData.vcValues[static_cast<size_t>(ulIdx)]);
    }
}

void SSRPCV::ReadValues(std::istream& is, SSRPCV& rstData)
{
    ZEL_ASSERT(rstData.uiZenithStep != 0);
    // A zero step has no grid: dividing by it would fault, so no value is read.
    if (rstData.uiZenithStep == 0)
    {
        return;
    }
    const uint64_t ulNbValues = rstData.GetNbGridValues();
    for (uint64_t ulIdx = 0; ulIdx < ulNbValues && is; ++ulIdx)
    {
        char cComma = 0;
        int32_t lValue = 0;
        is >> cComma >> lValue;
        if (is.fail())
        {
            break;
        }
        rstData.vcValues.push_back(static_cast<int8_t>(lValue));
    }
}

// ---------------------------------------------------------------------------
// Collection messages
// ---------------------------------------------------------------------------

SSROrbitCorrMsgT::SSROrbitCorrMsgT(EZelSSRCorrectionType _eSSRCorrType, uint64_t ulReserve)
    : Collection(_eSSRCorrType, ulReserve)
{
    ZEL_ASSERT(_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_ORBIT_XYZ ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_ORBIT_RAC ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_REORBIT_XYZ);
}

SSROrbitCorrMsgT::~SSROrbitCorrMsgT() = default;

void SSROrbitCorrMsgT::Clear()
{
    Collection::Clear();
    bChangeRatVal = false;
}

bool SSROrbitCorrMsgT::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.Begin(getSize()))
    {
        return false;
    }
    uint64_t ulUsed = 0;
    // Whatever the collection's outcome, the flag is read where it stopped.
    (void)Collection::loadData(pBuffer, uiBufferLength, &ulUsed);
    stIn.Skip(ulUsed);
    // A collection that grew to the end of the buffer leaves no byte for the
    // flag: reading it would read past the buffer.
    if (!stIn.Raw(bChangeRatVal))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return stIn.End(getSize());
}

SSRClockCorrMsgT::SSRClockCorrMsgT(EZelSSRCorrectionType _eSSRCorrType, uint64_t ulReserve)
    : SSRCorrCollctnMsgT<SSRClockCorr>(_eSSRCorrType, ulReserve)
{
    ZEL_ASSERT(_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_CLOCK_DELTA ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_CLOCK_MOD);
}

SSRClockCorrMsgT::~SSRClockCorrMsgT() = default;

SSRHighRateClockMsgT::SSRHighRateClockMsgT(EZelSSRCorrectionType _eSSRCorrType, uint64_t ulReserve)
    : Collection(_eSSRCorrType, ulReserve)
{
    ZEL_ASSERT(_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_HRCLOCK_DELTA ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_HRCLOCK_MOD);
}

SSRHighRateClockMsgT::~SSRHighRateClockMsgT() = default;

bool SSRHighRateClockMsgT::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength,
                                    uint64_t* pulOffset)
{
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    if (!stIn.Begin(getSize()))
    {
        return false;
    }
    uint64_t ulUsed = 0;
    const bool bLoaded = Collection::loadData(pBuffer, uiBufferLength, &ulUsed);
    stIn.Skip(ulUsed);
    if (!bLoaded || ulUsed != Collection::getSize())
    {
        ZEL_ASSERT(false);
        return false;
    }
    // A collection that grew to the end of the buffer leaves no byte for the
    // extra field: reading it would read past the buffer.
    if (!stIn.Raw(ucTimSinceBaseMsg))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return stIn.End(getSize());
}

SSRCodeBiasMsgT::SSRCodeBiasMsgT(EZelSSRCorrectionType _eSSRCorrType, uint64_t ulReserve)
    : SSRCorrCollctnMsgT<SSRBias>(_eSSRCorrType, ulReserve)
{
    ZEL_ASSERT(_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL ||
               _eSSRCorrType == eZELSSRCORRECTIONTYPE_CODEBIAS);
}

SSRCodeBiasMsgT::~SSRCodeBiasMsgT() = default;

SSRPhaseBiasMsgT::SSRPhaseBiasMsgT(bool bSetFormat, uint64_t ulReserve)
    : SSRCorrCollctnMsgT<SSRPhaseBias>(eZELSSRCORRECTIONTYPE_PHASEBIAS, ulReserve)
{
    if (bSetFormat)
    {
        oHeader.eSSRFormat = c_lSSR_FORMAT_PHASEBIAS;
    }
}

SSRPhaseBiasMsgT::~SSRPhaseBiasMsgT() = default;

SSRURAMsgT::SSRURAMsgT(uint64_t ulReserve) : SSRCorrCollctnMsgT<SSRURA>(eZELSSRCORRECTIONTYPE_URA, ulReserve)
{
}

SSRURAMsgT::~SSRURAMsgT() = default;

SSRSignalMsgT::SSRSignalMsgT(uint64_t ulReserve)
    : SSRCorrCollctnMsgT<SZelSatFrqTMdGroupID>(eZELSSRCORRECTIONTYPE_SATSIG, ulReserve)
{
}

SSRSignalMsgT::~SSRSignalMsgT() = default;

SSRPCVMsgT::SSRPCVMsgT() : SSRCorrCollctnMsgT<SSRPCV>(eZELSSRCORRECTIONTYPE_PCV) {}

SSRPCVMsgT::~SSRPCVMsgT() = default;

bool operator==(const SSROrbitCorrMsgT& a, const SSROrbitCorrMsgT& b)
{
    return static_cast<const SSROrbitCorrMsgT::Collection&>(a) ==
               static_cast<const SSROrbitCorrMsgT::Collection&>(b) &&
           a.bChangeRatVal == b.bChangeRatVal;
}

bool operator==(const SSRHighRateClockMsgT& a, const SSRHighRateClockMsgT& b)
{
    return static_cast<const SSRHighRateClockMsgT::Collection&>(a) ==
               static_cast<const SSRHighRateClockMsgT::Collection&>(b) &&
           a.ucTimSinceBaseMsg == b.ucTimSinceBaseMsg;
}

std::ostream& operator<<(std::ostream& os, const SSROrbitCorrMsgT& rstMsg)
{
    return ZelIo::WriteText(os, rstMsg);
}
std::istream& operator>>(std::istream& is, SSROrbitCorrMsgT& rstMsg)
{
    return ZelIo::ReadText(is, rstMsg);
}
std::ostream& operator<<(std::ostream& os, const SSRHighRateClockMsgT& rstMsg)
{
    return ZelIo::WriteText(os, rstMsg);
}
std::istream& operator>>(std::istream& is, SSRHighRateClockMsgT& rstMsg)
{
    return ZelIo::ReadText(is, rstMsg);
}

// ---------------------------------------------------------------------------
// Dispatch on the dynamic type
// ---------------------------------------------------------------------------

uint64_t getSize(const SSRCorrMsgBaseT& rstMsg)
{
    return DispatchMsg(
        rstMsg, [](const auto& rstConcrete) { return rstConcrete.getSize(); }, uint64_t(0));
}

bool saveData(const SSRCorrMsgBaseT& rstMsg, unsigned char* pBuffer, uint64_t uiBufferLength,
              uint64_t* pulOffset)
{
    return DispatchMsg(
        rstMsg,
        [&](const auto& rstConcrete) { return rstConcrete.saveData(pBuffer, uiBufferLength, pulOffset); },
        false);
}

bool loadData(SSRCorrMsgBaseT& rstMsg, const unsigned char* pBuffer, uint64_t uiBufferLength,
              uint64_t* pulOffset)
{
    return DispatchMsg(
        rstMsg, [&](auto& rstConcrete) { return rstConcrete.loadData(pBuffer, uiBufferLength, pulOffset); },
        false);
}

} // namespace ZELN
