#include <ZelTypes/Core/Common/ZelFrequencyManager.h>
#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <thread>
#include <vector>

using namespace ZELN;

namespace
{

const double c_dC = 299792458.0;
const int c_iReaders = 4;
const int c_iWrites = 1500;
const long c_lMinReads = 5000;

double G1(int iChannel)
{
    return iChannel * 562500.0 + 1602000000.0;
}

double G2(int iChannel)
{
    return iChannel * 437500.0 + 1246000000.0;
}

// Generation n puts the same channel on every slot.
int ChannelOf(int iGeneration)
{
    return iGeneration % 21 - 7;
}

ZelGlonassFrequencies AllChannels(int iChannel)
{
    ZelGlonassFrequencies stFrequencies;
    for (int8_t& rcChannel : stFrequencies.acChannels)
    {
        rcChannel = static_cast<int8_t>(iChannel);
    }
    return stFrequencies;
}

// A snapshot is whole: every slot of one generation, the wavelengths those
// of its channels. The default table (nothing known) is whole as well.
bool IsWholeTable(const CZelFrequencyTable& rTable)
{
    const int8_t cFirst = rTable.stGlonassFrequencies.acChannels[0];
    for (int iSlot = 0; iSlot < 24; ++iSlot)
    {
        const int8_t cChannel = rTable.stGlonassFrequencies.acChannels[iSlot];
        if (cChannel != cFirst)
        {
            return false;
        }
        if (cChannel == c_cGLONASS_CHANNEL_UNKNOWN)
        {
            if (rTable.adWavelengths[1][iSlot] != 0.0 || rTable.adWavelengths[2][iSlot] != 0.0)
            {
                return false;
            }
            continue;
        }
        if (rTable.adWavelengths[1][iSlot] != c_dC / G1(cChannel) ||
            rTable.adWavelengths[2][iSlot] != c_dC / G2(cChannel) ||
            rTable.adWavelengths[3][iSlot] != c_dGLONASS_G3_WAVELENGTH)
        {
            return false;
        }
    }
    return true;
}

bool IsChannelWavelength(double dWavelength)
{
    if (dWavelength == 0.0)
    {
        return true;
    }
    for (int iChannel = -7; iChannel <= 13; ++iChannel)
    {
        if (dWavelength == c_dC / G1(iChannel))
        {
            return true;
        }
    }
    return false;
}

TEST(FrequencyConcurrency, ReadersSeeWholeTablesWhileWriterSwaps)
{
    CZelMutex stLock;
    CZelFrequencyMgr stMgr(&stLock);
    std::atomic<bool> bDone(false);
    std::atomic<int> iTorn(0);
    std::atomic<long> lReads(0);

    std::vector<std::thread> vecReaders;
    for (int iReader = 0; iReader < c_iReaders; ++iReader)
    {
        vecReaders.emplace_back(
            [&, iReader]
            {
                const SZelSatID stSat(ZELSATSYSTEM_GLONASS, static_cast<uint8_t>(1 + iReader * 5));
                int iLastChannel = -100;
                while (!bDone.load())
                {
                    boost::shared_ptr<const CZelFrequencyTable> pTable;
                    if (!stMgr.GetFrequencyTable(pTable) || !IsWholeTable(*pTable))
                    {
                        ++iTorn;
                    }
                    // The snapshot stays as it was while the writer goes on.
                    const int8_t cChannel = pTable->stGlonassFrequencies.acChannels[0];
                    std::this_thread::yield();
                    if (!IsWholeTable(*pTable) || pTable->stGlonassFrequencies.acChannels[23] != cChannel)
                    {
                        ++iTorn;
                    }
                    // Lookups through the manager see one channel's value.
                    if (!IsChannelWavelength(stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1)))
                    {
                        ++iTorn;
                    }
                    int8_t cNow = 0;
                    if (stMgr.GetGlonassChannel(stSat, cNow))
                    {
                        iLastChannel = cNow;
                    }
                    ++lReads;
                }
                (void)iLastChannel;
            });
    }

    // Write until the readers have had their share too, within half a second.
    const auto tEnd = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
    int iGeneration = 0;
    while (iGeneration < c_iWrites ||
           (lReads.load() < c_lMinReads && std::chrono::steady_clock::now() < tEnd))
    {
        stMgr.SetGlonassFrequencies(AllChannels(ChannelOf(iGeneration)));
        ++iGeneration;
    }
    bDone.store(true);
    for (std::thread& rThread : vecReaders)
    {
        rThread.join();
    }

    EXPECT_EQ(0, iTorn.load());
    EXPECT_GT(lReads.load(), 0);
    boost::shared_ptr<const CZelFrequencyTable> pLast;
    ASSERT_TRUE(stMgr.GetFrequencyTable(pLast));
    EXPECT_TRUE(pLast->stGlonassFrequencies == AllChannels(ChannelOf(iGeneration - 1)));
}

TEST(FrequencyConcurrency, ConcurrentWritersLoseNoUpdate)
{
    CZelMutex stLock;
    CZelFrequencyMgr stMgr(&stLock);
    ZelLocataWavelengthMap mapLocata;
    mapLocata[std::make_pair(uint8_t(3), 1)] = 2.41e9;

    // Each writer owns one slot; a third writer replaces the Locata map.
    std::vector<std::thread> vecWriters;
    for (int iWriter = 0; iWriter < 3; ++iWriter)
    {
        vecWriters.emplace_back(
            [&, iWriter]
            {
                for (int iRound = 0; iRound < 400; ++iRound)
                {
                    if (iWriter == 2)
                    {
                        stMgr.SetLocataWavelengths(mapLocata);
                        continue;
                    }
                    stMgr.SetGlonassChannel(static_cast<uint8_t>(1 + iWriter),
                                            static_cast<int8_t>(iRound % 21 - 7));
                }
            });
    }
    std::atomic<bool> bDone(false);
    std::atomic<int> iBad(0);
    std::thread stReader(
        [&]
        {
            while (!bDone.load())
            {
                boost::shared_ptr<const CZelFrequencyTable> pTable;
                stMgr.GetFrequencyTable(pTable);
                for (int iSlot = 0; iSlot < 2; ++iSlot)
                {
                    const int8_t cChannel = pTable->stGlonassFrequencies.acChannels[iSlot];
                    if (cChannel != c_cGLONASS_CHANNEL_UNKNOWN &&
                        pTable->adWavelengths[1][iSlot] != c_dC / G1(cChannel))
                    {
                        ++iBad;
                    }
                }
            }
        });
    for (std::thread& rThread : vecWriters)
    {
        rThread.join();
    }
    bDone.store(true);
    stReader.join();

    EXPECT_EQ(0, iBad.load());
    boost::shared_ptr<const CZelFrequencyTable> pLast;
    ASSERT_TRUE(stMgr.GetFrequencyTable(pLast));
    // Round 399 wrote 399 % 21 - 7 on both slots.
    EXPECT_EQ(399 % 21 - 7, pLast->stGlonassFrequencies.acChannels[0]);
    EXPECT_EQ(399 % 21 - 7, pLast->stGlonassFrequencies.acChannels[1]);
    EXPECT_EQ(c_dC / G1(399 % 21 - 7), pLast->adWavelengths[1][1]);
    EXPECT_EQ(mapLocata, pLast->mapLocataWavelengths);
}

// The global manager: readers through the stand-alone accessors while the
// host swaps channels.
TEST(FrequencyConcurrency, GlobalManagerReadersAndWriter)
{
    CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    rMgr.SetGlonassFrequencies(AllChannels(0)); // known before the readers start
    std::atomic<bool> bDone(false);
    std::atomic<int> iBad(0);
    std::vector<std::thread> vecReaders;
    for (int iReader = 0; iReader < 2; ++iReader)
    {
        vecReaders.emplace_back(
            [&]
            {
                const SZelSatID stSat(ZELSATSYSTEM_GLONASS, 4);
                while (!bDone.load())
                {
                    double dIono = 0.0;
                    double dCoef1 = 0.0;
                    double dCoef2 = 0.0;
                    if (rMgr.GetCombination(stSat, 1, 4, &dIono, &dCoef1, &dCoef2) &&
                        dCoef1 + dCoef2 != 1.0 && std::abs(dCoef1 + dCoef2 - 1.0) > 1e-12)
                    {
                        ++iBad;
                    }
                    const double dRatio = GetL1FrequencyRatioSquared(stSat, 2);
                    if (std::abs(dRatio - (1602.0 / 1246.0) * (1602.0 / 1246.0)) > 1e-12)
                    {
                        ++iBad;
                    }
                }
            });
    }
    for (int iGeneration = 0; iGeneration < 600; ++iGeneration)
    {
        rMgr.SetGlonassFrequencies(AllChannels(ChannelOf(iGeneration)));
    }
    bDone.store(true);
    for (std::thread& rThread : vecReaders)
    {
        rThread.join();
    }
    EXPECT_EQ(0, iBad.load());
    rMgr.ResetTable();
}

} // namespace
