#include <ZelTypes/Core/Common/ZelFrequencyManager.h>
#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <gtest/gtest.h>

#include <boost/weak_ptr.hpp>

#include <atomic>
#include <chrono>
#include <cmath>
#include <memory>
#include <new>
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

// A lock that counts how often it is taken.
class CCountingLock : public CZelLock
{
public:
    void Lock() override
    {
        m_stMutex.Lock();
        ++m_lLocks;
    }
    void Unlock() override { m_stMutex.Unlock(); }
    long Locks() const { return m_lLocks.load(); }

private:
    CZelMutex m_stMutex;
    std::atomic<long> m_lLocks{0};
};

// After a thread's first lookup, lookups take neither the lock nor a count
// on the table until the table is swapped; then the lock once more.
TEST(FrequencyConcurrency, LookupsTakeNoLockAndNoCountUntilASwap)
{
    CCountingLock stLock;
    CZelFrequencyMgr stMgr(&stLock);
    stMgr.SetGlonassFrequencies(AllChannels(2));
    const SZelSatID stSat(ZELSATSYSTEM_GLONASS, 9);
    ASSERT_EQ(c_dC / G1(2), stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1));

    boost::shared_ptr<const CZelFrequencyTable> pTable;
    ASSERT_TRUE(stMgr.GetFrequencyTable(pTable));
    const long lCount = pTable.use_count();
    const long lLocks = stLock.Locks();
    double dSum = 0.0;
    int8_t cChannel = 0;
    for (int i = 0; i < 1000; ++i)
    {
        dSum += stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_2);
        dSum += stMgr.GetFrequency(stSat, 1);
        dSum += stMgr.GetFrequencyRatio(stSat, 1u, 2u);
        dSum += stMgr.GetInverseWavelengthProduct(stSat, 1u, 2u);
        EXPECT_TRUE(stMgr.GetGlonassChannel(stSat, cChannel));
    }
    EXPECT_GT(dSum, 0.0);
    EXPECT_EQ(2, cChannel);
    EXPECT_EQ(lLocks, stLock.Locks());
    EXPECT_EQ(lCount, pTable.use_count());

    // A swap is seen by the next lookup, at the price of one lock.
    stMgr.SetGlonassFrequencies(AllChannels(-3));
    const long lLocksAfterSwap = stLock.Locks();
    EXPECT_EQ(c_dC / G1(-3), stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1));
    EXPECT_EQ(lLocksAfterSwap + 1, stLock.Locks());
    EXPECT_EQ(c_dC / G2(-3), stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_2));
    EXPECT_EQ(lLocksAfterSwap + 1, stLock.Locks());
    // The snapshot taken before keeps the old table.
    EXPECT_EQ(2, pTable->stGlonassFrequencies.acChannels[8]);
    EXPECT_EQ(c_dC / G1(2), pTable->adWavelengths[1][8]);

    // A reset is a swap as well.
    stMgr.ResetTable();
    EXPECT_EQ(0.0, stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1));
    EXPECT_FALSE(stMgr.GetGlonassChannel(stSat, cChannel));
}

// Lock step: the writer swaps, then waits until every reader has looked up
// once; each of those lookups must see the new table, although the readers
// kept the old one between the swaps.
TEST(FrequencyConcurrency, EverySwapIsSeenByTheNextLookupOfEveryThread)
{
    CZelMutex stLock;
    CZelFrequencyMgr stMgr(&stLock);
    const int iReaders = 2;
    const int iRounds = 300;
    std::atomic<int> iPublished(-1);
    std::atomic<int> aiSeen[iReaders];
    std::atomic<int> iStale(0);
    for (std::atomic<int>& rSeen : aiSeen)
    {
        rSeen.store(-1);
    }
    std::vector<std::thread> vecReaders;
    for (int iReader = 0; iReader < iReaders; ++iReader)
    {
        vecReaders.emplace_back(
            [&, iReader]
            {
                const SZelSatID stSat(ZELSATSYSTEM_GLONASS, static_cast<uint8_t>(3 + iReader));
                for (int iRound = 0; iRound < iRounds; ++iRound)
                {
                    while (iPublished.load() < iRound)
                    {
                        // Lookups on the table of the round before.
                        (void)stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1);
                        std::this_thread::yield();
                    }
                    const int iChannel = ChannelOf(iRound);
                    int8_t cChannel = 0;
                    if (stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1) != c_dC / G1(iChannel) ||
                        stMgr.GetFrequency(stSat, 2) != c_dC / (c_dC / G2(iChannel)) ||
                        !stMgr.GetGlonassChannel(stSat, cChannel) || cChannel != iChannel)
                    {
                        ++iStale;
                    }
                    aiSeen[iReader].store(iRound);
                }
            });
    }
    for (int iRound = 0; iRound < iRounds; ++iRound)
    {
        stMgr.SetGlonassFrequencies(AllChannels(ChannelOf(iRound)));
        iPublished.store(iRound);
        for (std::atomic<int>& rSeen : aiSeen)
        {
            while (rSeen.load() < iRound)
            {
                std::this_thread::yield();
            }
        }
    }
    for (std::thread& rThread : vecReaders)
    {
        rThread.join();
    }
    EXPECT_EQ(0, iStale.load());
}

// A thread that looks up on more managers than it keeps tables for, and on
// managers that come and go at the same address, always gets the values of
// the manager it asks.
TEST(FrequencyConcurrency, ManyManagersAndManagersAtAReusedAddress)
{
    const SZelSatID stSat(ZELSATSYSTEM_GLONASS, 12);
    CZelMutex stLock;
    std::vector<std::unique_ptr<CZelFrequencyMgr>> vecMgrs;
    for (int iMgr = 0; iMgr < 9; ++iMgr)
    {
        vecMgrs.emplace_back(new CZelFrequencyMgr(&stLock));
        vecMgrs.back()->SetGlonassFrequencies(AllChannels(iMgr - 7));
    }
    for (int iPass = 0; iPass < 3; ++iPass)
    {
        for (int iMgr = 0; iMgr < 9; ++iMgr)
        {
            EXPECT_EQ(c_dC / G1(iMgr - 7), vecMgrs[iMgr]->GetWavelength(stSat, ZELFREQUENCY_GROUP_1));
        }
    }

    alignas(CZelFrequencyMgr) unsigned char aucStorage[sizeof(CZelFrequencyMgr)];
    for (int iLife = 0; iLife < 30; ++iLife)
    {
        CZelFrequencyMgr* pMgr = new (aucStorage) CZelFrequencyMgr(&stLock);
        if (iLife % 3 != 0)
        {
            pMgr->SetGlonassFrequencies(AllChannels(iLife % 21 - 7));
            EXPECT_EQ(c_dC / G1(iLife % 21 - 7), pMgr->GetWavelength(stSat, ZELFREQUENCY_GROUP_1));
        }
        else
        {
            // A new manager knows no channel, whatever the one before knew.
            EXPECT_EQ(0.0, pMgr->GetWavelength(stSat, ZELFREQUENCY_GROUP_1));
        }
        pMgr->~CZelFrequencyMgr();
    }
}

// The tables that a thread kept go with the thread.
TEST(FrequencyConcurrency, AThreadLetsGoOfItsTablesWhenItEnds)
{
    CZelMutex stLock;
    CZelFrequencyMgr stMgr(&stLock);
    stMgr.SetGlonassFrequencies(AllChannels(5));
    boost::weak_ptr<const CZelFrequencyTable> pWeak;
    {
        boost::shared_ptr<const CZelFrequencyTable> pTable;
        ASSERT_TRUE(stMgr.GetFrequencyTable(pTable));
        pWeak = pTable;
    }
    double dSeen = 0.0;
    std::thread stReader([&] { dSeen = stMgr.GetWavelength(SZelSatID(ZELSATSYSTEM_GLONASS, 1), 1); });
    stReader.join();
    EXPECT_EQ(c_dC / G1(5), dSeen);
    stMgr.SetGlonassFrequencies(AllChannels(6));
    EXPECT_TRUE(pWeak.expired());
}

// Looks up in its destructor, which runs at the end of its thread after the
// thread's own tables are gone.
struct SLateReader
{
    CZelFrequencyMgr* pMgr = nullptr;
    std::atomic<double>* pdSeen = nullptr;
    ~SLateReader()
    {
        if (pMgr != nullptr)
        {
            pdSeen->store(pMgr->GetWavelength(SZelSatID(ZELSATSYSTEM_GLONASS, 2), 1));
        }
    }
};

TEST(FrequencyConcurrency, LookupsFromDestructorsAtTheEndOfAThread)
{
    CZelMutex stLock;
    CZelFrequencyMgr stMgr(&stLock);
    stMgr.SetGlonassFrequencies(AllChannels(-1));
    std::atomic<double> dSeen(-1.0);
    std::atomic<double> dFirst(-1.0);
    std::thread stReader(
        [&]
        {
            // Built before the thread's first lookup: destroyed after the
            // thread's tables.
            thread_local SLateReader t_stLate;
            t_stLate.pMgr = &stMgr;
            t_stLate.pdSeen = &dSeen;
            dFirst.store(stMgr.GetWavelength(SZelSatID(ZELSATSYSTEM_GLONASS, 2), 1));
            stMgr.SetGlonassFrequencies(AllChannels(4));
        });
    stReader.join();
    EXPECT_EQ(c_dC / G1(-1), dFirst.load());
    EXPECT_EQ(c_dC / G1(4), dSeen.load());
}

} // namespace
