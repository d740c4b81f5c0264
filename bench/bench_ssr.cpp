// SSR messages: the merge of sorted messages at growing lengths (records per
// second, which stays level when the merge is linear), and the binary forms
// of the eight message classes beside a plain copy of the same bytes.
//
// BM_Ssr_MergeOverwrite/N merges a message of N code biases whose keys are
// all held into a message of N: the target keeps its size, so no copy is
// made between runs. BM_Ssr_MergeInsert/N merges N records of which half are
// new keys, interleaved with the held ones; each run starts from a fresh copy
// of the target, whose cost is measured apart (BM_Ssr_MergeCopyOnly/N) so
// that the merge alone can be told. "records_per_s" counts the records of the
// new message. "x_memcpy" is the time of one call divided by the time of one
// memcpy of the same number of bytes, both measured in the same process.
#include "ZelSamplesSsr.h"

#include <ZelTypes/Core/Common/ZelSSRTypes.h>

#include "ZelBenchMemcpy.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <vector>

namespace
{

using namespace ZELN;
using ZelBench::RunBinary;

constexpr int c_iNB_IMAGE_RECORDS = 40;

// A signal key of index i: 32 satellites, 6 groups, 12 mode sets.
SZelSatFrqTMdGroupID SignalOf(int i)
{
    const int iSat = 1 + i % 32;
    const int iGroup = 1 + (i / 32) % 6;
    const uint32_t ulModes = 1u << ((i / 192) % 12);
    const int iSys = 1 + i / 2304;
    return SZelSatFrqTMdGroupID(SZelSatID(static_cast<EZelSatSystem>(iSys), static_cast<uint8_t>(iSat)),
                                static_cast<EZelFrequencyGroup>(iGroup), ulModes);
}

// A sorted code-bias message of the records of keys iFirst, iFirst + iStep, ...
SSRCodeBiasMsgT BiasMsg(int iNb, int iFirst, int iStep)
{
    SSRCodeBiasMsgT st(eZELSSRCORRECTIONTYPE_CODEBIAS, static_cast<uint64_t>(iNb));
    st.oHeader.eSatSys = ZELSATSYSTEM_GPS;
    std::vector<SSRBias> vec;
    for (int i = 0; i < iNb; ++i)
    {
        vec.emplace_back(SignalOf(iFirst + i * iStep), 0.001 * i);
    }
    std::sort(vec.begin(), vec.end());
    st.vCorrs = vec;
    return st;
}

void BM_Ssr_MergeOverwrite(benchmark::State& rState)
{
    const int iNb = static_cast<int>(rState.range(0));
    SSRCodeBiasMsgT stCur = BiasMsg(iNb, 0, 1);
    const SSRCodeBiasMsgT stNew = BiasMsg(iNb, 0, 1);
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(stCur.MergeMsg(stNew, true));
        benchmark::ClobberMemory();
    }
    rState.SetItemsProcessed(static_cast<int64_t>(rState.iterations()) * iNb);
    rState.counters["records_per_s"] =
        benchmark::Counter(static_cast<double>(iNb), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_Ssr_MergeOverwrite)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);

void BM_Ssr_MergeInsert(benchmark::State& rState)
{
    const int iNb = static_cast<int>(rState.range(0));
    // Held: the even keys; new: every other key from the middle of the held
    // range on, half of them held, half new.
    const SSRCodeBiasMsgT stHeld = BiasMsg(iNb, 0, 2);
    const SSRCodeBiasMsgT stNew = BiasMsg(iNb, iNb / 2, 1);
    for (auto _ : rState)
    {
        SSRCodeBiasMsgT stCur = stHeld;
        benchmark::DoNotOptimize(stCur.MergeMsg(stNew, true));
        benchmark::ClobberMemory();
    }
    rState.SetItemsProcessed(static_cast<int64_t>(rState.iterations()) * iNb);
    rState.counters["records_per_s"] =
        benchmark::Counter(static_cast<double>(iNb), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_Ssr_MergeInsert)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);

void BM_Ssr_MergeCopyOnly(benchmark::State& rState)
{
    const int iNb = static_cast<int>(rState.range(0));
    const SSRCodeBiasMsgT stHeld = BiasMsg(iNb, 0, 2);
    for (auto _ : rState)
    {
        SSRCodeBiasMsgT stCur = stHeld;
        benchmark::DoNotOptimize(stCur.vCorrs.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_Ssr_MergeCopyOnly)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);

// A message of the sample's class with 40 records made from its first one,
// each on its own key.
template <class M, class FKey> M ImageMsg(const M& rstSample, FKey fnSetKey)
{
    M st = rstSample;
    st.vCorrs.clear();
    for (int i = 0; i < c_iNB_IMAGE_RECORDS; ++i)
    {
        auto tRecord = rstSample.vCorrs[0];
        fnSetKey(tRecord, i);
        st.vCorrs.push_back(tRecord);
    }
    return st;
}

template <class M> void SaveImage(benchmark::State& rState, const M& rstMsg)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(rstMsg.getSize()));
    RunBinary(rState, vecBuffer.size(),
              [&]
              {
                  uint64_t ulUsed = 0;
                  return rstMsg.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
              });
}

template <class M> void LoadImage(benchmark::State& rState, const M& rstMsg)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(rstMsg.getSize()));
    uint64_t ulUsed = 0;
    rstMsg.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
    M stTarget = rstMsg; // holds as many records: the load keeps its allocation
    RunBinary(rState, vecBuffer.size(),
              [&] { return stTarget.loadData(vecBuffer.data(), vecBuffer.size(), &ulUsed); });
}

void SatKey(SZelSatID& rstSat, int i)
{
    rstSat = SZelSatID(static_cast<EZelSatSystem>(1 + i / 32), static_cast<uint8_t>(1 + i % 32));
}

SSROrbitCorrMsgT OrbitImageMsg()
{
    return ImageMsg(ZelSample::SsrOrbitMsg(), [](SSROrbitCorr& r, int i) { SatKey(r.stSatID, i); });
}
SSRClockCorrMsgT ClockImageMsg()
{
    return ImageMsg(ZelSample::SsrClockMsg(), [](SSRClockCorr& r, int i) { SatKey(r.stSatID, i); });
}
SSRHighRateClockMsgT HighRateImageMsg()
{
    return ImageMsg(ZelSample::SsrHighRateClockMsg(),
                    [](SSRHighRateClock& r, int i) { SatKey(r.stSatID, i); });
}
SSRCodeBiasMsgT CodeBiasImageMsg()
{
    return ImageMsg(ZelSample::SsrCodeBiasMsg(), [](SSRBias& r, int i) { r.stSigID = SignalOf(i); });
}
SSRPhaseBiasMsgT PhaseBiasImageMsg()
{
    return ImageMsg(ZelSample::SsrPhaseBiasMsg(), [](SSRPhaseBias& r, int i) { r.stSigID = SignalOf(i); });
}
SSRURAMsgT UraImageMsg()
{
    return ImageMsg(ZelSample::SsrUraMsg(), [](SSRURA& r, int i) { SatKey(r.stSatID, i); });
}
SSRSignalMsgT SignalImageMsg()
{
    return ImageMsg(ZelSample::SsrSignalMsg(), [](SZelSatFrqTMdGroupID& r, int i) { r = SignalOf(i); });
}
SSRPCVMsgT PcvImageMsg()
{
    return ImageMsg(ZelSample::SsrPcvMsg(), [](SSRPCV& r, int i) { r.stSatSigID = SignalOf(i); });
}

#define ZEL_SSR_IMAGE_BENCH(Name, Make)                                                                      \
    void BM_Ssr_##Name##Save(benchmark::State& rState)                                                       \
    {                                                                                                        \
        SaveImage(rState, Make());                                                                           \
    }                                                                                                        \
    BENCHMARK(BM_Ssr_##Name##Save);                                                                          \
    void BM_Ssr_##Name##Load(benchmark::State& rState)                                                       \
    {                                                                                                        \
        LoadImage(rState, Make());                                                                           \
    }                                                                                                        \
    BENCHMARK(BM_Ssr_##Name##Load)

ZEL_SSR_IMAGE_BENCH(Orbit, OrbitImageMsg);
ZEL_SSR_IMAGE_BENCH(Clock, ClockImageMsg);
ZEL_SSR_IMAGE_BENCH(HighRateClock, HighRateImageMsg);
ZEL_SSR_IMAGE_BENCH(CodeBias, CodeBiasImageMsg);
ZEL_SSR_IMAGE_BENCH(PhaseBias, PhaseBiasImageMsg);
ZEL_SSR_IMAGE_BENCH(Ura, UraImageMsg);
ZEL_SSR_IMAGE_BENCH(Signal, SignalImageMsg);
ZEL_SSR_IMAGE_BENCH(Pcv, PcvImageMsg);

} // namespace
