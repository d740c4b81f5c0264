// Images of a position fix: the result leaves the core as its meta data
// (779 bytes), built from the result and written, or read back; each
// against a plain copy of the same number of bytes.
#include "ZelSamplesPosition.h"

#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtPosResultTypes.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace
{

// The meta data of a fix, built from the result and written.
void BM_Position_ResultToImage(benchmark::State& state)
{
    const ZELN::SZelPosResult stResult = ZelSample::PosResult();
    std::vector<unsigned char> vecBuf(static_cast<size_t>(ZELN::SZelPosResultMeta().getSize()));
    for (auto _ : state)
    {
        const ZELN::SZelPosResultMeta stMeta(stResult);
        uint64_t ulCount = 0;
        benchmark::DoNotOptimize(stMeta.saveData(vecBuf.data(), vecBuf.size(), &ulCount));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(vecBuf.size()));
}
BENCHMARK(BM_Position_ResultToImage);

void BM_Position_MetaSave(benchmark::State& state)
{
    const ZELN::SZelPosResultMeta stMeta = ZelSample::PosResultMeta();
    std::vector<unsigned char> vecBuf(static_cast<size_t>(stMeta.getSize()));
    for (auto _ : state)
    {
        uint64_t ulCount = 0;
        benchmark::DoNotOptimize(stMeta.saveData(vecBuf.data(), vecBuf.size(), &ulCount));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(vecBuf.size()));
}
BENCHMARK(BM_Position_MetaSave);

void BM_Position_MetaLoad(benchmark::State& state)
{
    const ZELN::SZelPosResultMeta stSample = ZelSample::PosResultMeta();
    std::vector<unsigned char> vecBuf(static_cast<size_t>(stSample.getSize()));
    uint64_t ulCount = 0;
    stSample.saveData(vecBuf.data(), vecBuf.size(), &ulCount);
    ZELN::SZelPosResultMeta stMeta;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(stMeta.loadData(vecBuf.data(), vecBuf.size(), &ulCount));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(vecBuf.size()));
}
BENCHMARK(BM_Position_MetaLoad);

// The floor: a copy of the same 779 bytes.
void BM_Position_Memcpy(benchmark::State& state)
{
    const size_t ulSize = static_cast<size_t>(ZELN::SZelPosResultMeta().getSize());
    std::vector<unsigned char> vecSrc(ulSize, 0x5A);
    std::vector<unsigned char> vecDst(ulSize);
    for (auto _ : state)
    {
        std::memcpy(vecDst.data(), vecSrc.data(), ulSize);
        benchmark::DoNotOptimize(vecDst.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(ulSize));
}
BENCHMARK(BM_Position_Memcpy);

// The position observation with its meta data (953 bytes), both directions.
void BM_Position_PveObsSaveLoad(benchmark::State& state)
{
    const ZELN::ZelExtGnssPveObs stSample = ZelSample::GnssPveObs();
    std::vector<unsigned char> vecBuf(static_cast<size_t>(stSample.getSize()));
    ZELN::ZelExtGnssPveObs stRead;
    for (auto _ : state)
    {
        uint64_t ulCount = 0;
        benchmark::DoNotOptimize(stSample.saveData(vecBuf.data(), vecBuf.size(), &ulCount));
        benchmark::DoNotOptimize(stRead.loadData(vecBuf.data(), vecBuf.size(), &ulCount));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * 2 *
                            static_cast<int64_t>(vecBuf.size()));
}
BENCHMARK(BM_Position_PveObsSaveLoad);

void BM_Position_PveObsMemcpy(benchmark::State& state)
{
    const size_t ulSize = static_cast<size_t>(ZelSample::GnssPveObs().getSize());
    std::vector<unsigned char> vecSrc(ulSize, 0x5A);
    std::vector<unsigned char> vecDst(ulSize);
    for (auto _ : state)
    {
        std::memcpy(vecDst.data(), vecSrc.data(), ulSize);
        std::memcpy(vecSrc.data(), vecDst.data(), ulSize);
        benchmark::DoNotOptimize(vecSrc.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * 2 * static_cast<int64_t>(ulSize));
}
BENCHMARK(BM_Position_PveObsMemcpy);

} // namespace
