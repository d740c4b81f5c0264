#ifndef ZELTYPES_CORE_COMMON_ZELTYPESOBS_H
#define ZELTYPES_CORE_COMMON_ZELTYPESOBS_H

// What a receiver tracked for one satellite in one epoch: the measurements of
// each signal with the validity bits that say which of them count, and the
// satellite's record holding up to six signals inline. Both records are plain
// and trivially copyable, so that an epoch can keep them in one contiguous
// array and move them with block copies.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstdint>
#include <istream>
#include <ostream>
#include <type_traits>

namespace ZELN
{

// Bits of SZelFreqObservation::ulObsFlags that the library acts on.
constexpr uint32_t c_ulOBSFLAG_PHASE = 0x1;          // dPhase valid
constexpr uint32_t c_ulOBSFLAG_CODE = 0x2;           // dCode valid
constexpr uint32_t c_ulOBSFLAG_DOPPLERM = 0x4;       // dDopplerM valid
constexpr uint32_t c_ulOBSFLAG_CNO = 0x8;            // unCNo valid
constexpr uint32_t c_ulOBSFLAG_STATE4 = 0x10;        // state bit, tested per satellite
constexpr uint32_t c_ulOBSFLAG_DOPPLERC = 0x20;      // dDopplerC valid
constexpr uint32_t c_ulOBSFLAG_STATE6 = 0x40;        // state bit
constexpr uint32_t c_ulOBSFLAG_VELOCITY = 0x80;      // fVelocity valid
constexpr uint32_t c_ulOBSFLAG_ACCELERATION = 0x100; // fAcceleration valid
constexpr uint32_t c_ulOBSFLAG_STATE9 = 0x200;       // state bit, only carried
constexpr uint32_t c_ulOBSFLAG_TRACKMODEW = 0x1000;  // default track mode W instead of P
constexpr uint32_t c_ulOBSFLAG_STATE13 = 0x2000;     // accompanies the unCNo value
constexpr uint32_t c_ulOBSFLAG_STATE14 = 0x4000;     // state bit, only carried
constexpr uint32_t c_ulOBSFLAG_SIGCLASS = 0x20000;   // set by SZelSatObservation::MarkSignalClasses
constexpr uint32_t c_ulOBSFLAG_SBAS = 0x40000;       // set by SZelSatObservation::MarkSignalClasses

// Binary sizes: one signal record, the head of a satellite record.
constexpr uint64_t c_ulFREQOBS_SIZE = 72;
constexpr uint64_t c_ulSATOBS_HEAD_SIZE = 15;

// The observation of one signal.
struct ZELTYPES_API SZelFreqObservation
{
    uint32_t ulObsFlags;
    EZelFrequency eFrequency;
    EZelTrackMode eTrackMode; // 0: the default of the system and signal applies
    double dPhase;
    double dCode;
    double dDopplerM;
    double dDopplerC;
    uint16_t unContMeasCount10Msec; // continuous tracking, in units of 10 ms
    uint16_t unCNo;
    uint16_t unPhaseRms100thMm;
    uint16_t unRangeRmsMm;
    int16_t nTimeOffsetRTCM9;
    float fVelocity;
    float fAcceleration;

    SZelFreqObservation() { Reset(); }

    void Reset()
    {
        ulObsFlags = 0;
        eFrequency = ZELFREQUENCY_UNKNOWN;
        eTrackMode = ZELTRACKMODE_UNKNOWN;
        dPhase = 0.0;
        dCode = 0.0;
        dDopplerM = 0.0;
        dDopplerC = 0.0;
        unContMeasCount10Msec = 0;
        unCNo = 0;
        unPhaseRms100thMm = 0;
        unRangeRmsMm = 0;
        nTimeOffsetRTCM9 = 0;
        fVelocity = 0.0f;
        fAcceleration = 0.0f;
    }

    // ---------------------------------------------------------------- flag tests and setters

    bool HasPhase() const { return (ulObsFlags & c_ulOBSFLAG_PHASE) != 0; }
    bool HasCode() const { return (ulObsFlags & c_ulOBSFLAG_CODE) != 0; }
    bool HasDopplerM() const { return (ulObsFlags & c_ulOBSFLAG_DOPPLERM) != 0; }
    bool HasCNo() const { return (ulObsFlags & c_ulOBSFLAG_CNO) != 0; }
    bool HasState4() const { return (ulObsFlags & c_ulOBSFLAG_STATE4) != 0; }
    bool HasDopplerC() const { return (ulObsFlags & c_ulOBSFLAG_DOPPLERC) != 0; }
    bool HasVelocity() const { return (ulObsFlags & c_ulOBSFLAG_VELOCITY) != 0; }
    bool HasAcceleration() const { return (ulObsFlags & c_ulOBSFLAG_ACCELERATION) != 0; }
    bool HasState9() const { return (ulObsFlags & c_ulOBSFLAG_STATE9) != 0; }
    bool HasTrackModeW() const { return (ulObsFlags & c_ulOBSFLAG_TRACKMODEW) != 0; }
    bool HasState13() const { return (ulObsFlags & c_ulOBSFLAG_STATE13) != 0; }
    bool HasState14() const { return (ulObsFlags & c_ulOBSFLAG_STATE14) != 0; }
    bool HasSignalClassMark() const { return (ulObsFlags & c_ulOBSFLAG_SIGCLASS) != 0; }
    bool IsSbasSignal() const { return (ulObsFlags & c_ulOBSFLAG_SBAS) != 0; }

    // Combined tests, read from the low 16 bits of the word.
    bool HasAnyObservable() const { return (LowFlags() & 0x23u) != 0; }
    bool HasState6() const { return (LowFlags() & c_ulOBSFLAG_STATE6) != 0; }
    bool HasPhaseAndState4() const { return (static_cast<uint8_t>(LowFlags()) & 0x11u) >= 17u; }
    bool HasPhaseAndState4Or8() const { return HasPhase() && (LowFlags() & 0x110u) != 0; }
    bool HasPhaseAndState4Or7() const { return HasPhase() && (LowFlags() & 0x90u) != 0; }

    void SetPhase(bool bSet) { SetFlag(c_ulOBSFLAG_PHASE, bSet); }
    void SetCode(bool bSet) { SetFlag(c_ulOBSFLAG_CODE, bSet); }
    void SetDopplerM(bool bSet) { SetFlag(c_ulOBSFLAG_DOPPLERM, bSet); }
    // Bit 3 and the state bit 13 that goes with the value.
    void SetCNo(bool bSet, bool bState13)
    {
        SetFlag(c_ulOBSFLAG_CNO, bSet);
        SetFlag(c_ulOBSFLAG_STATE13, bState13);
    }
    void SetState4(bool bSet) { SetFlag(c_ulOBSFLAG_STATE4, bSet); }
    void SetVelocity(bool bSet) { SetFlag(c_ulOBSFLAG_VELOCITY, bSet); }
    void SetAcceleration(bool bSet) { SetFlag(c_ulOBSFLAG_ACCELERATION, bSet); }
    void SetState9(bool bSet) { SetFlag(c_ulOBSFLAG_STATE9, bSet); }
    void SetTrackModeW(bool bSet) { SetFlag(c_ulOBSFLAG_TRACKMODEW, bSet); }

    // True exactly for 4; kept for the modules that test it.
    static bool IsFour(int eValue) { return eValue == 4; }

    // ---------------------------------------------------------------- values

    uint16_t GetContMeasCount10Msec() const { return unContMeasCount10Msec; }

    // The stored mode, or the default of the system and signal when it is 0.
    EZelTrackMode GetTrackMode(EZelSatSystem eSys, bool* pbDefaulted = nullptr) const;

    // The track mode a system uses by default on a frequency slot. A pair
    // the table lacks reports once per system (GPS and QZSS share one
    // latch) and gives 0.
    static EZelTrackMode GetDefaultTrackMode(EZelSatSystem eSys, EZelFrequency eFrequency,
                                             uint32_t ulObsFlags);

    // A field whose validity bit is clear takes no part; the secondary
    // values are only reported when they differ.
    bool operator==(const SZelFreqObservation& rhs) const;
    bool operator!=(const SZelFreqObservation& rhs) const { return !(*this == rhs); }

private:
    uint32_t LowFlags() const { return ulObsFlags & 0xFFFFu; }
    void SetFlag(uint32_t ulMask, bool bSet)
    {
        if (bSet)
        {
            ulObsFlags |= ulMask;
        }
        else
        {
            ulObsFlags &= ~ulMask;
        }
    }
};

// The observation of one satellite.
struct ZELTYPES_API SZelSatObservation
{
    static constexpr uint32_t MAX_FREQUENCIESOBSERVED = 6;

    SZelSatID stSatId;
    uint32_t ulIOD; // 0xFFFFFFFF and 0xFFFFFFFE: none
    uint8_t ucSatFlags;
    uint8_t ucChannel;
    uint8_t uiNumFreq; // filled records of astFreqObs
    SZelFreqObservation astFreqObs[MAX_FREQUENCIESOBSERVED];

    // The signal records reset themselves.
    SZelSatObservation() : stSatId(), ulIOD(0xFFFFFFFFu), ucSatFlags(0), ucChannel(0), uiNumFreq(0) {}

    void Reset()
    {
        stSatId = SZelSatID();
        ulIOD = 0xFFFFFFFFu;
        ucSatFlags = 0;
        ucChannel = 0;
        uiNumFreq = 0;
        for (SZelFreqObservation& rstObs : astFreqObs)
        {
            rstObs.Reset();
        }
    }

    // The low 16 bits of ulIOD; false, output untouched, when there is none.
    bool GetIOD(uint16_t& runIod) const;

    void SetState4ForAllFreqs(bool bSet);
    bool HasState4() const;

    // ORs the signal-class bits 17 and 18 into the filled signal records.
    void MarkSignalClasses();

    uint64_t getSize() const { return c_ulSATOBS_HEAD_SIZE + c_ulFREQOBS_SIZE * uiNumFreq; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    // The first bounds test looks at the record's present uiNumFreq, the
    // second one at the count read.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    // The ulIOD is compared last and only reported.
    bool operator==(const SZelSatObservation& rhs) const;
    bool operator!=(const SZelSatObservation& rhs) const { return !(*this == rhs); }

    // Number of filled records that exist in the array.
    uint32_t UsedFreqs() const
    {
        return uiNumFreq < MAX_FREQUENCIESOBSERVED ? uiNumFreq : MAX_FREQUENCIESOBSERVED;
    }
};

static_assert(std::is_trivially_copyable<SZelFreqObservation>::value, "block copies of signal records");
static_assert(std::is_trivially_copyable<SZelSatObservation>::value, "block copies of satellite records");

ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelFreqObservation& rstFreqObs);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelFreqObservation& rstFreqObs);
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatObservation& rstSatObs);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatObservation& rstSatObs);

} // namespace ZELN

#endif
