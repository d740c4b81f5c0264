// Binary readers of the ephemeris family. The first byte picks the class, the
// rest is the image.
#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace
{

using namespace ZELN;

// Whatever was read must write back to the same bytes, apart from bool bytes
// (any non-zero byte reads as true and is written as 1).
template <class R>
void CheckRoundTrip(const R& rRecord, const uint8_t* pData, std::initializer_list<size_t> lstBools)
{
    const size_t ulSize = static_cast<size_t>(rRecord.getSize());
    std::vector<unsigned char> vecOut(ulSize, 0);
    if (!rRecord.saveData(vecOut.data(), vecOut.size()))
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecIn(pData, pData + ulSize);
    for (size_t ulOffset : lstBools)
    {
        vecIn[ulOffset] = vecIn[ulOffset] != 0 ? 1 : 0;
    }
    if (vecIn != vecOut)
    {
        __builtin_trap();
    }
}

template <class R> void Interface(const R& rRecord)
{
    (void)rRecord.getSatId();
    (void)rRecord.getToe();
    (void)rRecord.getIod();
    (void)rRecord.isHealthy();
    (void)rRecord.getSatIndex();
    (void)rRecord.getPrn();
    (void)(rRecord == rRecord);
    R stCopy(rRecord);
    stCopy.clear();
    (void)(stCopy != rRecord);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t ucSelect = pData[0];
    const uint8_t* pImage = pData + 1;
    const size_t ulLength = ulSize - 1;
    switch (ucSelect % 7)
    {
    case 0:
    {
        ZELX_SAT_EPHEMERIS_COMMON st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {});
            (void)st.getA();
            (void)(st == st);
        }
        break;
    }
    case 1:
    {
        ZELX_SAT_EPHEMERIS st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {1});
            Interface(st);
            (void)st.getFitIntervalHours();
            (void)st.getTransmissionTimeOfWeek();
            (void)st.getUra();
            (void)isNewEphemerisGps(ZELX_SAT_EPHEMERIS(), st);
            (void)isNewEphemerisGps(st, st);
            (void)ZELX_SAT_EPHEMERIS::checkValidity(st.getToe(), st.getToe(), st.ulToc);
        }
        break;
    }
    case 2:
    {
        ZELX_SAT_EPHEMERIS_QZSS st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {19 + 1});
            Interface(st);
            (void)st.getFitIntervalHours();
            (void)isNewEphemerisQzss(st, st);
            (void)isNewEphemerisQzss(ZELX_SAT_EPHEMERIS_QZSS(), st);
        }
        break;
    }
    case 3:
    {
        ZELX_SAT_EPHEMERIS_GLONASS st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {8, 9});
            Interface(st);
            (void)st.getHealthFlags();
            ZELX_SAT_EPHEMERIS_GLONASS stOther = st;
            stOther.adState[0] += 1.0;
            (void)isNewEphemerisGlonass(st, stOther);
            (void)isNewEphemerisGlonass(stOther, st);
        }
        break;
    }
    case 4:
    {
        ZELX_SAT_EPHEMERIS_GALILEO st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {});
            Interface(st);
            (void)st.getToc();
            (void)st.getPT1Time();
            (void)st.getSisa();
            (void)st.getHealthINav();
            (void)st.getHealthFNav();
            (void)st.getTocSecondsFNav();
            (void)st.getTocSecondsINav();
            (void)isNewEphemerisGalileo(st, st, false);
            (void)isNewEphemerisGalileo(ZELX_SAT_EPHEMERIS_GALILEO(), st, true);
            (void)st.setSisa(st.adKepler[0]);
        }
        break;
    }
    case 5:
    {
        ZELX_SAT_EPHEMERIS_BEIDOU st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {2});
            Interface(st);
            (void)st.getBdsWeek();
            (void)st.getBdsSeconds();
            (void)st.getUraIndex();
            (void)isNewEphemerisBeiDou(st, st);
            (void)isNewEphemerisBeiDou(ZELX_SAT_EPHEMERIS_BEIDOU(), st);
            (void)ZELX_SAT_EPHEMERIS_BASE::checkValidity(ZELSATSYSTEM_BEIDOU, st.stToc, st.stToe);
        }
        break;
    }
    default:
    {
        ZELX_SAT_EPHEMERIS_NAVIC st;
        if (st.loadData(pImage, ulLength))
        {
            CheckRoundTrip(st, pImage, {9});
            Interface(st);
            (void)st.getPT1Time();
            (void)st.getCurveFitSeconds();
            (void)st.getUraIndex();
            (void)isNewEphemerisNavic(st, st);
            (void)isNewEphemerisNavic(ZELX_SAT_EPHEMERIS_NAVIC(), st);
        }
        break;
    }
    }
    return 0;
}
