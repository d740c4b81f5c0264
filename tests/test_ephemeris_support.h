#ifndef ZELTYPES_TESTS_TEST_EPHEMERIS_SUPPORT_H
#define ZELTYPES_TESTS_TEST_EPHEMERIS_SUPPORT_H

// Shared pieces of the ephemeris tests: the recording hook, the golden
// images of the sample records, built by hand from the offset tables of the
// layouts, and the traits of the family's typed tests.

#include "ZelSamplesEphemeris.h"
#include "ZelTestKit.h"

#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace EphTest
{

using ZelTest::Bytes;
using ZelTest::CImage;

// The shared recording hook, with the text of one report by index.
class CReportRecorder : public ZelTest::CRecordingHook
{
public:
    std::string Text(size_t ulIdx = 0) const
    {
        return ulIdx < Reports().size() ? Reports()[ulIdx].strExpression : std::string();
    }
};

// Saves into a buffer pre-filled with a pattern, so that an unwritten byte
// shows; empty when the writer refuses.
template <class R> Bytes Save(const R& rRecord, size_t ulLength)
{
    Bytes vecImage(ulLength, 0xAA);
    if (!rRecord.saveData(vecImage.data(), vecImage.size()))
    {
        vecImage.clear();
    }
    return vecImage;
}

inline ZELN::SMjdTime GpsTime(unsigned int uiWeek, double dSeconds)
{
    return ZELN::SMjdTime(uiWeek, dSeconds, ZELN::MJDACC_NANOSECOND);
}

// ------------------------------------------------------------------ golden images

// The two sample blocks at their offset: adKepler at +0, afHarmonics at +72.
inline void PutKeplerGps(CImage& rImage, size_t ulAt)
{
    rImage.At(ulAt).F64(1.1).F64(0.01).F64(5153.6).F64(-2.5).F64(0.96).F64(0.7);
    rImage.F64(4.5e-9).F64(-8.0e-9).F64(1.0e-10);
    rImage.At(ulAt + 72).F32(1.0e-6f).F32(2.0e-6f).F32(200.5f).F32(-30.25f).F32(3.0e-8f).F32(-4.0e-8f);
}

inline void PutKeplerOther(CImage& rImage, size_t ulAt)
{
    rImage.At(ulAt).F64(-0.5).F64(0.002).F64(5440.6).F64(1.25).F64(0.98).F64(-1.5);
    rImage.F64(3.2e-9).F64(-5.5e-9).F64(-2.0e-10);
    rImage.At(ulAt + 72).F32(-2.0e-6f).F32(8.0e-6f).F32(150.25f).F32(12.5f).F32(-6.0e-8f).F32(1.0e-8f);
}

inline Bytes GoldenKeplerBlock()
{
    CImage stImage;
    PutKeplerGps(stImage, 0);
    stImage.At(96);
    return stImage;
}

inline Bytes GoldenGps()
{
    CImage st;
    st.At(0).U8(5).At(1).U8(1).At(2).U32(338400).At(6).U16(2300).At(8).U16(2);
    st.At(10).U16(11).U16(22).U16(33).U16(44).U16(55);
    st.At(20).U16(77).At(22).F32(-1.1e-8f).At(26).U32(345600).At(30).U32(345600);
    st.At(34).F32(1.5e-4f).F32(-2.5e-12f).F32(0.0f);
    st.At(46).U8(0).At(47).U16(0);
    PutKeplerGps(st, 49);
    st.At(145);
    return st;
}

inline Bytes GoldenQzss()
{
    CImage st;
    st.At(0).U8(3).At(1).U8(1).At(2).U8(2).At(3).U16(0x0303).At(5).F64(-4.5e-3);
    st.At(13).U16(0x0505).At(15).U32(0x06060606);
    // The GPS image from offset 19.
    st.At(19 + 0).U8(157).At(19 + 1).U8(1).At(19 + 2).U32(340000).At(19 + 6).U16(2300).At(19 + 8).U16(1);
    st.At(19 + 10).U16(100).U16(101).U16(102).U16(103).U16(104);
    st.At(19 + 20).U16(300).At(19 + 22).F32(2.5e-9f).At(19 + 26).U32(345600).At(19 + 30).U32(345600);
    st.At(19 + 34).F32(-3.0e-5f).F32(1.0e-12f).F32(0.0f);
    st.At(19 + 46).U8(0).At(19 + 47).U16(1);
    PutKeplerOther(st, 19 + 49);
    st.At(164);
    return st;
}

inline Bytes GoldenGlonass()
{
    CImage st;
    st.At(0).U8(40).At(1).U8(7).At(2).U16(0x1234).At(4).U32(0xDEADBEEF).At(8).U8(1).At(9).U8(1);
    st.At(10).U16(0x55AA).At(12).U16(2300).At(14).U32(346500000).At(18).U32(123456).At(22).U32(42);
    st.At(26).F64(1.1e7).F64(-2.2e7).F64(3.3e6).F64(1234.5).F64(-2345.25).F64(3456.125);
    st.F64(1e-6).F64(-2e-6).F64(3e-6).F64(4.5e-9).F64(-1.25e-5).F64(7.0);
    st.At(122).U32(1).U32(2).U32(3).U32(4).U32(5);
    st.At(142);
    return st;
}

inline Bytes GoldenGalileo()
{
    CImage st;
    st.At(0).U8(5).At(1).U32(4).At(5).U8(60).At(6).U8(1).At(7).U8(0x11).At(8).U16(93).At(10).U8(107);
    st.At(11).U8(0).U8(0).U8(0).At(14).U8(0).U8(0).U8(0);
    st.At(17).U32(345600).At(21).U32(345600);
    st.At(25).F64(-5.5e-4).F64(-7.5e-12).F64(0.0).F64(2.3e-9).F64(2.6e-9);
    st.At(65).Time16(ZelSample::c_lEphDay4, 1000.0, 1);
    st.At(81).U16(1276).At(83).U32(345000);
    PutKeplerOther(st, 87);
    st.At(183);
    return st;
}

inline Bytes GoldenBeiDou()
{
    CImage st;
    st.At(0).U8(6).At(1).U8(100).At(2).U8(1).At(3).U32(0xA1A2A3A4).At(7).U16(2300).At(9).U32(345614000);
    st.At(13).F32(2.8f).At(17).U8(0xB2).At(18).F64(4.25e-4).F64(-1.5e-11);
    st.At(34).Time16(ZelSample::c_lEphDay4, 14000.0, 1);
    st.At(50).F32(1.0e-9f).F32(-2.0e-9f).F32(3.0e-20f).At(62).U8(0xC4);
    st.At(63).Time16(ZelSample::c_lEphDay4, 14000.0, 1);
    st.At(79).U8(0);
    PutKeplerOther(st, 80);
    st.At(176);
    return st;
}

inline Bytes GoldenNavic()
{
    CImage st;
    st.At(0).U8(3).At(1).U32(188).At(5).U32(0x01020304).At(9).U8(1);
    st.At(10).F64(1.25e-4).F64(2.5e-12).F64(-1.0e-18).At(34).F32(4.0f);
    st.At(38).Time16(ZelSample::c_lEphDay4, 7200000.0, 1);
    st.At(54).F64(-9.5e-9).At(62).U8(77).At(63).U8(0).U8(1);
    st.At(65).Time16(ZelSample::c_lEphDay4, 7200000.0, 1);
    st.At(81).U8(0).At(82).U8(0x33).At(83).U16(1276).At(85).U32(352800);
    PutKeplerOther(st, 89);
    st.At(185);
    return st;
}

// ------------------------------------------------------------------ traits of the typed tests

// The sample of each class of the family.
template <class R> R SampleOf();
template <> inline ZELN::ZELX_SAT_EPHEMERIS_COMMON SampleOf()
{
    return ZelSample::KeplerBlock();
}
template <> inline ZELN::ZELX_SAT_EPHEMERIS SampleOf()
{
    return ZelSample::GpsEphemeris();
}
template <> inline ZELN::ZELX_SAT_EPHEMERIS_QZSS SampleOf()
{
    return ZelSample::QzssEphemeris();
}
template <> inline ZELN::ZELX_SAT_EPHEMERIS_GLONASS SampleOf()
{
    return ZelSample::GlonassEphemeris();
}
template <> inline ZELN::ZELX_SAT_EPHEMERIS_GALILEO SampleOf()
{
    return ZelSample::GalileoEphemeris();
}
template <> inline ZELN::ZELX_SAT_EPHEMERIS_BEIDOU SampleOf()
{
    return ZelSample::BeiDouEphemeris();
}
template <> inline ZELN::ZELX_SAT_EPHEMERIS_NAVIC SampleOf()
{
    return ZelSample::NavicEphemeris();
}
template <> inline ZELN::ZELX_SAT_EPHEMERIS_SBAS SampleOf()
{
    return ZelSample::SbasEphemeris();
}

// Per class with an image: the golden image of its sample, the stated size,
// the version rules, the offsets of its bool bytes (any non-zero byte reads
// as true and is written back as 1) and the report of an image with another
// version that is too short: the version is looked at first, except by NavIC
// and by the images that have none.
template <class R> struct SImaged;

template <> struct SImaged<ZELN::ZELX_SAT_EPHEMERIS_COMMON>
{
    static Bytes Golden() { return GoldenKeplerBlock(); }
    static constexpr uint64_t c_ulSize = 96;
    static ZelTest::SExtRules Rules() { return {}; }
    static std::vector<size_t> Bools() { return {}; }
    static const char* ShortOldImageReport() { return "false"; }
};

template <> struct SImaged<ZELN::ZELX_SAT_EPHEMERIS>
{
    static Bytes Golden() { return GoldenGps(); }
    static constexpr uint64_t c_ulSize = 145;
    static ZelTest::SExtRules Rules() { return {}; }
    static std::vector<size_t> Bools() { return {1}; }
    static const char* ShortOldImageReport() { return "false"; }
};

template <> struct SImaged<ZELN::ZELX_SAT_EPHEMERIS_QZSS>
{
    static Bytes Golden() { return GoldenQzss(); }
    static constexpr uint64_t c_ulSize = 164;
    static ZelTest::SExtRules Rules()
    {
        return {3, "loadData(ZELX_SAT_EPHEMERIS_QZSS) received old version."};
    }
    static std::vector<size_t> Bools() { return {19 + 1}; }
    static const char* ShortOldImageReport()
    {
        return "loadData(ZELX_SAT_EPHEMERIS_QZSS) received old version.";
    }
};

template <> struct SImaged<ZELN::ZELX_SAT_EPHEMERIS_GLONASS>
{
    static Bytes Golden() { return GoldenGlonass(); }
    static constexpr uint64_t c_ulSize = 142;
    static ZelTest::SExtRules Rules() { return {}; }
    static std::vector<size_t> Bools() { return {8, 9}; }
    static const char* ShortOldImageReport() { return "false"; }
};

template <> struct SImaged<ZELN::ZELX_SAT_EPHEMERIS_GALILEO>
{
    static Bytes Golden() { return GoldenGalileo(); }
    static constexpr uint64_t c_ulSize = 183;
    static ZelTest::SExtRules Rules()
    {
        return {5, "loadData(ZELX_SAT_EPHEMERIS_GALILEO) received old version."};
    }
    static std::vector<size_t> Bools() { return {}; }
    static const char* ShortOldImageReport()
    {
        return "loadData(ZELX_SAT_EPHEMERIS_GALILEO) received old version.";
    }
};

template <> struct SImaged<ZELN::ZELX_SAT_EPHEMERIS_BEIDOU>
{
    static Bytes Golden() { return GoldenBeiDou(); }
    static constexpr uint64_t c_ulSize = 176;
    static ZelTest::SExtRules Rules()
    {
        return {6, "loadData(ZELX_SAT_EPHEMERIS_BEIDOU) received old version."};
    }
    static std::vector<size_t> Bools() { return {2}; }
    static const char* ShortOldImageReport()
    {
        return "loadData(ZELX_SAT_EPHEMERIS_BEIDOU) received old version.";
    }
};

template <> struct SImaged<ZELN::ZELX_SAT_EPHEMERIS_NAVIC>
{
    static Bytes Golden() { return GoldenNavic(); }
    static constexpr uint64_t c_ulSize = 185;
    static ZelTest::SExtRules Rules()
    {
        return {3, "loadData(ZELX_SAT_EPHEMERIS_NAVIC) received old version."};
    }
    static std::vector<size_t> Bools() { return {9}; }
    // Length before version: a short old image is short.
    static const char* ShortOldImageReport() { return "false"; }
};

} // namespace EphTest

#endif
