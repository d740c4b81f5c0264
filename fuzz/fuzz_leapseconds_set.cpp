// The time library's table replaced by arbitrary lists: 8 bytes an event
// (MJD day, then GPS minus UTC, 32 bits each), the last byte a time system.
// Every list is either refused or answers in range; the records read from it.
#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>
#include <ZelTypes/Platform/OmtTime.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    using namespace ZELN;
    TYR::TIM::LeapSecondEvents vecEvents;
    size_t ulAt = 0;
    for (; ulAt + 8 <= ulSize; ulAt += 8)
    {
        TYR::TIM::SLeapSecondEvent stEvent;
        std::memcpy(&stEvent.lUtcMjdDay, pData + ulAt, 4);
        std::memcpy(&stEvent.lGpsMinusUtc, pData + ulAt + 4, 4);
        vecEvents.push_back(stEvent);
    }
    const int32_t lTimeSystem = ulAt < ulSize ? static_cast<int8_t>(pData[ulAt]) : 0;
    const bool bTaken = TYR::TIM::SetLeapSecondEvents(vecEvents) == TYR::TIM::RC_OK;
    if (bTaken && TYR::TIM::GetLeapSecondEvents() != vecEvents)
    {
        __builtin_trap();
    }
    TYR::TIM::utcLeapSecond stInfo;
    stInfo.m_TimeSystem = lTimeSystem;
    if (TYR::TIM::GetLeapSecondInfo(stInfo) == TYR::TIM::RC_OK &&
        (stInfo.m_EventGpsDay < 1 || stInfo.m_EventGpsDay > 7))
    {
        __builtin_trap();
    }
    for (const TYR::TIM::SLeapSecondEvent& rEvent : vecEvents)
    {
        const TYR::TIM::COmtTime stTime(static_cast<double>(rEvent.lUtcMjdDay));
        (void)stTime.GetLeapSecond(stInfo);
    }
    ZELX_LEAPSEC_UTC stLeap;
    stLeap.loadFromTimeLibrary();
    (void)stLeap.isValid();
    (void)isNewLeapSecUtc(ZELX_LEAPSEC_UTC(), stLeap);
    stInfo.m_TimeSystem = lTimeSystem;
    (void)ZELX_LEAPSEC_UTC::getLeapSecondInfo(stInfo);
    TYR::TIM::SetLeapSecondEvents(TYR::TIM::GetEmbeddedLeapSecondEvents());
    return 0;
}
