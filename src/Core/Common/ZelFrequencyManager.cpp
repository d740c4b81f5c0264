#include <ZelTypes/Core/Common/ZelFrequencyManager.h>

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelObsInfo.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "ZelStaticOrder.h"

namespace ZELN
{
namespace
{

// Nominal carriers by group index: GPS, Galileo, SBAS, QZSS and NavIC share
// the first table, BeiDou has its own.
constexpr double c_adNOMINAL_FREQUENCY[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 1575420000.0, 1227600000.0, 1176450000.0, 1207140000.0, 1191795000.0, 1278750000.0};
constexpr double c_adNOMINAL_FREQUENCY_BDS[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 1561098000.0, 1207140000.0, 1268520000.0, 1575420000.0, 1176450000.0, 0.0};
constexpr double c_adGLONASS_BASE_FREQUENCY[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, c_dGLONASS_G1_BASE, c_dGLONASS_G2_BASE, c_dGLONASS_G3, 0.0, 0.0, 0.0};

// Stored wavelengths (c over the carriers above); used as they stand, the
// fixed coefficients below were made with them.
constexpr double c_adNOMINAL_WAVELENGTH[ZELFREQUENCY_GROUPS_MAX] = {0.0,
                                                                    0.1902936727983649,
                                                                    0.2442102134245683,
                                                                    0.2548280487908539,
                                                                    0.2483493695843067,
                                                                    0.251547000952345,
                                                                    0.2344418048875855};
constexpr double c_adNOMINAL_WAVELENGTH_BDS[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 0.1920394863102765, 0.2483493695843067, 0.2363324646044209, 0.1902936727983649, 0.2548280487908539,
    0.0};

// GLONASS G1/G2 carriers stand in the ratio 9/7 on every channel.
constexpr double c_dGLONASS_RATIO_G1_G2 = 1.2857142857142858;
constexpr double c_dGLONASS_RATIO_G2_G1 = 0.7777777777777778;
constexpr double c_dGLONASS_RATIO_G1_G2_SQUARED = 1.653061224489796;

// The ionosphere-free combination of two groups, lower group first.
struct SCombinationRow
{
    int iGrp1;
    int iGrp2;
    double dIono;
    double dCoef1;
    double dCoef2;
};

// GPS, SBAS and QZSS; the coefficients are the long-established rounded values.
constexpr SCombinationRow c_astCOMBINATION_GPS[] = {
    {1, 2, -1.54572778016316, 2.54572778016316, -1.54572778016316},
    {1, 3, -1.26060432751883, 2.26060432751883, -1.26060432751883},
    {2, 3, -6.834061213724121, 12.2553191489362, -11.2553191489362},
};

constexpr SCombinationRow c_astCOMBINATION_GALILEO[] = {
    {1, 3, -1.2606043275188257, 2.2606043275188257, -1.2606043275188257},
    {1, 4, -1.4219771241830066, 2.4219771241830066, -1.4219771241830066},
    {1, 5, -1.3379913739987677, 2.3379913739987677, -1.3379913739987677},
    {1, 6, -1.9311580768755405, 2.9311580768755405, -1.9311580768755405},
    {3, 4, 11.108133176301058, -18.919885550786837, 19.919885550786837},
    {3, 5, 21.79534938942112, -38.084953203743765, 39.084953203743765},
    {3, 6, 3.6304714292741886, -5.510416666666667, 6.510416666666667},
    {4, 5, -22.653761167897304, 39.584932480454796, -38.584932480454796},
    {4, 6, 5.39309766788637, -8.185773074661963, 9.185773074661963},
    {5, 6, 4.356065227795341, -6.611740348313236, 7.611740348313236},
};

// BeiDou B1/B2, B1/B3 and B2/B3 keep their rounded values.
constexpr SCombinationRow c_astCOMBINATION_BDS[] = {
    {1, 2, -1.487168314, 2.487168314, -1.487168314},
    {1, 3, -1.94368177, 2.94368177, -1.94368177},
    {1, 4, 55.2511415525111, -54.2511415525111, 55.2511415525111},
    {1, 5, -1.3143823744553642, 2.314382374455364, -1.3143823744553642},
    {2, 3, 6.331865794654131, -9.58953168, 10.58953168},
    {2, 4, 1.4481881325321422, -1.4219771241830066, 2.4219771241830066},
    {2, 5, -11.312887083010086, 19.919885550786837, -18.919885550786837},
    {3, 4, 1.8776286100149424, -1.8436450839328538, 2.843645083932854},
    {3, 5, -4.059659166566361, 7.148303114830312, -6.148303114830312},
    {4, 5, -1.2838407846963884, 2.2606043275188257, -1.2606043275188257},
};

constexpr SCombinationRow c_stCOMBINATION_GLONASS_G1_G2 = {1, 2, -1.53125, 2.53125, -1.53125};

template <size_t N> const SCombinationRow* FindRow(const SCombinationRow (&astRows)[N], int iGrp1, int iGrp2)
{
    for (const SCombinationRow& rRow : astRows)
    {
        if (rRow.iGrp1 == iGrp1 && rRow.iGrp2 == iGrp2)
        {
            return &rRow;
        }
    }
    return nullptr;
}

bool IsGroupIndex(int iIdx)
{
    return iIdx >= 0 && iIdx < ZELFREQUENCY_GROUPS_MAX;
}

// Number 0 wraps round in the unsigned comparison and fails as well.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wsign-compare"
bool CheckGlonassSlot(const SZelSatID& rSatID)
{
    ZEL_ASSERT(rSatID.uiSatNumber - 1 < ZEL_DEF_MAXSATID_GLONASS);
    return rSatID.uiSatNumber - 1 < ZEL_DEF_MAXSATID_GLONASS;
}
#pragma GCC diagnostic pop

// The constant wavelength of a CDMA system; false for GLONASS, Locata and
// unknown systems. The index is in range.
bool NominalWavelength(EZelSatSystem eSys, int iIdx, double& rdWavelength)
{
    switch (eSys)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_GALILEO:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
    case ZELSATSYSTEM_NAVIC:
        rdWavelength = c_adNOMINAL_WAVELENGTH[iIdx];
        return true;
    case ZELSATSYSTEM_BEIDOU:
        rdWavelength = c_adNOMINAL_WAVELENGTH_BDS[iIdx];
        return true;
    default:
        return false;
    }
}

// A Locata value is used as the carrier; its wavelength is c over it.
double LocataWavelength(double dValue)
{
    return dValue != 0.0 ? c_dSPEED_OF_LIGHT / dValue : 0.0;
}

// The group of a bit without a report; 0 for anything but a single group bit.
int GroupOfBit(uint32_t ebfFrq)
{
    for (int iGrp = ZELFREQUENCY_GROUP_1; iGrp <= ZELFREQUENCY_GROUP_6; ++iGrp)
    {
        if (ebfFrq == (1u << (iGrp - 1)))
        {
            return iGrp;
        }
    }
    return 0;
}

bool IsIonoFreeKind(int eCombination)
{
    return eCombination == 12 || (eCombination >= 17 && eCombination <= 21);
}

bool IsWideLaneKind(int eCombination)
{
    return eCombination == 15 || (eCombination >= 22 && eCombination <= 26);
}

} // namespace

// ---------------------------------------------------------------------------
// Construction and the table
// ---------------------------------------------------------------------------

namespace
{

// Every table that a manager installs takes the next number; 0 marks an
// empty entry of a thread's cache.
std::atomic<uint64_t> g_ulTableGenerations(0);

uint64_t NextTableGeneration()
{
    return g_ulTableGenerations.fetch_add(1, std::memory_order_relaxed) + 1;
}

// A thread's cache: the table it used last, one entry per manager, for up to
// this many managers; a further manager takes the entries in turn.
constexpr unsigned int c_uiTHREAD_TABLES = 4;

struct SThreadTableEntry
{
    uintptr_t uiMgr; // the manager's address, compared only
    uint64_t ulGeneration;
    const CZelFrequencyTable* pTable;
};

// Trivially destructible and zero-initialised, so that a lookup reaches it
// without an initialisation guard. The tables are owned by t_stTableOwner.
struct SThreadTables
{
    SThreadTableEntry astEntries[c_uiTHREAD_TABLES];
    unsigned int uiNext;
    // Lookups of this thread under way: a hook called from a check may look
    // up again, and must not let go of a table that the outer lookup reads.
    unsigned int uiInUse;
    // The thread is ending and its tables are gone: lookups from later
    // destructors take the table under the lock.
    bool bClosed;
};

thread_local SThreadTables t_stTables;

// Built at the thread's first refresh; at the thread's end it lets the tables go.
struct SThreadTableOwner
{
    boost::shared_ptr<const CZelFrequencyTable> apTables[c_uiTHREAD_TABLES];

    SThreadTableOwner() = default;
    SThreadTableOwner(const SThreadTableOwner&) = delete;
    SThreadTableOwner& operator=(const SThreadTableOwner&) = delete;
    ~SThreadTableOwner()
    {
        for (SThreadTableEntry& rEntry : t_stTables.astEntries)
        {
            rEntry = SThreadTableEntry();
        }
        t_stTables.bClosed = true;
    }
};

thread_local SThreadTableOwner t_stTableOwner;

} // namespace

// The current table of a manager for the length of one lookup. While the
// thread's own copy is current it costs one atomic load and no write that
// another thread sees; after a swap the thread takes the new table once,
// under the lock.
class CZelThreadTable
{
public:
    explicit CZelThreadTable(const CZelFrequencyMgr& rMgr) : m_pHeld(), m_pTable(Find(rMgr)), m_bInUse(true)
    {
        ++t_stTables.uiInUse;
    }
    // Only GLONASS lookups read the table; the others get none.
    CZelThreadTable(const CZelFrequencyMgr& rMgr, const SZelSatID& rSatID)
        : m_pHeld(), m_pTable(rSatID.eSatSystem == ZELSATSYSTEM_GLONASS ? Find(rMgr) : nullptr),
          m_bInUse(m_pTable != nullptr)
    {
        if (m_bInUse)
        {
            ++t_stTables.uiInUse;
        }
    }
    ~CZelThreadTable()
    {
        if (m_bInUse)
        {
            --t_stTables.uiInUse;
        }
    }
    CZelThreadTable(const CZelThreadTable&) = delete;
    CZelThreadTable& operator=(const CZelThreadTable&) = delete;

    const CZelFrequencyTable* get() const { return m_pTable; }

private:
    const CZelFrequencyTable* Find(const CZelFrequencyMgr& rMgr);

    boost::shared_ptr<const CZelFrequencyTable> m_pHeld; // a table outside the cache
    const CZelFrequencyTable* m_pTable;
    bool m_bInUse;
};

const CZelFrequencyTable* CZelThreadTable::Find(const CZelFrequencyMgr& rMgr)
{
    // Numbers are never reused, so an entry with the current number holds
    // this manager's current table.
    const uint64_t ulGeneration = rMgr.m_ulTableGeneration.load(std::memory_order_acquire);
    SThreadTables& rTables = t_stTables;
    for (const SThreadTableEntry& rEntry : rTables.astEntries)
    {
        if (rEntry.ulGeneration == ulGeneration)
        {
            return rEntry.pTable;
        }
    }
    uint64_t ulTaken = 0;
    {
        CZelGuard stGuard(*rMgr.m_pMutexFreqTable);
        m_pHeld = rMgr.m_pFreqTable;
        ulTaken = rMgr.m_ulTableGeneration.load(std::memory_order_relaxed);
    }
    if (rTables.uiInUse != 0 || rTables.bClosed)
    {
        // An outer lookup may still read an entry, or the entries are gone:
        // this lookup keeps its own reference.
        return m_pHeld.get();
    }
    const uintptr_t uiMgr = reinterpret_cast<uintptr_t>(&rMgr);
    unsigned int uiEntry = c_uiTHREAD_TABLES;
    for (unsigned int ui = 0; ui < c_uiTHREAD_TABLES; ++ui)
    {
        if (rTables.astEntries[ui].uiMgr == uiMgr)
        {
            uiEntry = ui;
            break;
        }
    }
    if (uiEntry == c_uiTHREAD_TABLES)
    {
        uiEntry = rTables.uiNext;
        rTables.uiNext = (rTables.uiNext + 1) % c_uiTHREAD_TABLES;
    }
    const CZelFrequencyTable* pTable = m_pHeld.get();
    // The entry's old table may go here: no lookup of this thread reads it.
    t_stTableOwner.apTables[uiEntry] = std::move(m_pHeld);
    rTables.astEntries[uiEntry].uiMgr = uiMgr;
    rTables.astEntries[uiEntry].ulGeneration = ulTaken;
    rTables.astEntries[uiEntry].pTable = pTable;
    return pTable;
}

CZelFrequencyMgr::CZelFrequencyMgr()
    : m_pFreqTable(boost::make_shared<CZelFrequencyTable>()), m_pMutexFreqTable(new CZelMutex()),
      m_ulTableGeneration(NextTableGeneration())
{
}

CZelFrequencyMgr::CZelFrequencyMgr(CZelLock* pMutexFreqTable)
    : m_pFreqTable(boost::make_shared<CZelFrequencyTable>()), m_pMutexFreqTable(pMutexFreqTable),
      m_ulTableGeneration(NextTableGeneration())
{
    ZEL_ASSERT(m_pMutexFreqTable != NULL);
    if (m_pMutexFreqTable == nullptr)
    {
        // Every access locks: without a lock of the caller's, use one of our own.
        m_pMutexFreqTable = new CZelMutex();
    }
}

// The lock is not freed: the caller owns it, or it is the manager's own,
// which stays for late callers.
CZelFrequencyMgr::~CZelFrequencyMgr() = default;

bool CZelFrequencyMgr::GetFrequencyTable(boost::shared_ptr<const CZelFrequencyTable>& rpTable) const
{
    CZelGuard stGuard(*m_pMutexFreqTable);
    rpTable = m_pFreqTable;
    return rpTable != nullptr;
}

void CZelFrequencyMgr::InstallTable(boost::shared_ptr<CZelFrequencyTable>& rpNew)
{
    m_pFreqTable.swap(rpNew);
    // After the pointer: a reader that sees the number finds the table under the lock.
    m_ulTableGeneration.store(NextTableGeneration(), std::memory_order_release);
}

bool CZelFrequencyMgr::GetLocataValue(const SZelSatID& rSatID, int iIdx, double& rdValue) const
{
    // The map is the one part of a live table that changes in place.
    CZelGuard stGuard(*m_pMutexFreqTable);
    const ZelLocataWavelengthMap& rMap = m_pFreqTable->mapLocataWavelengths;
    const ZelLocataWavelengthMap::const_iterator it = rMap.find(std::make_pair(rSatID.uiSatNumber, iIdx));
    if (it == rMap.end())
    {
        return false;
    }
    rdValue = it->second;
    return true;
}

void CZelFrequencyMgr::SetGlonassFrequencies(const ZelGlonassFrequencies& rstFrequencies)
{
    for (;;)
    {
        boost::shared_ptr<CZelFrequencyTable> pNew = boost::make_shared<CZelFrequencyTable>();
        boost::shared_ptr<CZelFrequencyTable> pOld;
        {
            CZelGuard stGuard(*m_pMutexFreqTable);
            pOld = m_pFreqTable;
        }
        // Channels and wavelengths of a live table never change: no lock.
        pNew->stGlonassFrequencies = pOld->stGlonassFrequencies;
        std::memcpy(pNew->adWavelengths, pOld->adWavelengths, sizeof(pNew->adWavelengths));
        for (unsigned int uiSlot = 0; uiSlot < ZEL_DEF_MAXSATID_GLONASS; ++uiSlot)
        {
            const int8_t cChannel = rstFrequencies.acChannels[uiSlot];
            if (cChannel == c_cGLONASS_CHANNEL_UNKNOWN)
            {
                continue;
            }
            const double dK = static_cast<double>(cChannel);
            pNew->stGlonassFrequencies.acChannels[uiSlot] = cChannel;
            pNew->adWavelengths[ZELFREQUENCY_GROUP_1][uiSlot] =
                c_dSPEED_OF_LIGHT / (dK * c_dGLONASS_G1_STEP + c_dGLONASS_G1_BASE);
            pNew->adWavelengths[ZELFREQUENCY_GROUP_2][uiSlot] =
                c_dSPEED_OF_LIGHT / (dK * c_dGLONASS_G2_STEP + c_dGLONASS_G2_BASE);
            pNew->adWavelengths[ZELFREQUENCY_GROUP_3][uiSlot] = c_dGLONASS_G3_WAVELENGTH;
        }
        {
            CZelGuard stGuard(*m_pMutexFreqTable);
            // Another writer came first: build again on its table, so that
            // neither update is lost.
            if (m_pFreqTable == pOld)
            {
                // The map is copied here, under the lock that guards it.
                pNew->mapLocataWavelengths = pOld->mapLocataWavelengths;
                InstallTable(pNew);
                return; // the old table goes with its last holder
            }
        }
    }
}

void CZelFrequencyMgr::SetGlonassChannel(uint8_t uiSlotId, int8_t cChannel)
{
    if (uiSlotId < 1 || uiSlotId > ZEL_DEF_MAXSATID_GLONASS)
    {
        // No such slot in the table.
        ZEL_ASSERT(false);
        return;
    }
    ZelGlonassFrequencies stFrequencies;
    stFrequencies.acChannels[uiSlotId - 1] = cChannel;
    SetGlonassFrequencies(stFrequencies);
}

void CZelFrequencyMgr::SetLocataWavelengths(const ZelLocataWavelengthMap& rMap)
{
    CZelGuard stGuard(*m_pMutexFreqTable);
    m_pFreqTable->mapLocataWavelengths = rMap;
}

void CZelFrequencyMgr::ResetTable()
{
    boost::shared_ptr<CZelFrequencyTable> pNew = boost::make_shared<CZelFrequencyTable>();
    {
        CZelGuard stGuard(*m_pMutexFreqTable);
        InstallTable(pNew);
    }
}

bool CZelFrequencyMgr::GetGlonassChannel(const SZelSatID& rSatID, int8_t& rcChannel) const
{
    if (rSatID.eSatSystem != ZELSATSYSTEM_GLONASS)
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (rSatID.uiSatNumber < 1 || rSatID.uiSatNumber > ZEL_DEF_MAXSATID_GLONASS)
    {
        // No such slot in the table.
        ZEL_ASSERT(false);
        return false;
    }
    const CZelThreadTable stTable(*this, rSatID);
    rcChannel = stTable.get()->stGlonassFrequencies.acChannels[rSatID.uiSatNumber - 1];
    return rcChannel != c_cGLONASS_CHANNEL_UNKNOWN;
}

// ---------------------------------------------------------------------------
// Frequency and wavelength
// ---------------------------------------------------------------------------

double CZelFrequencyMgr::GetNominalFrequency(EZelSatSystem eSys, int iIdx)
{
    if (!IsGroupIndex(iIdx))
    {
        // No such row in the tables.
        ZEL_ASSERT(false);
        return 0.0;
    }
    double dFrequencyHz = 0.0;
    switch (eSys)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_GALILEO:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
    case ZELSATSYSTEM_NAVIC:
        dFrequencyHz = c_adNOMINAL_FREQUENCY[iIdx];
        break;
    case ZELSATSYSTEM_BEIDOU:
        dFrequencyHz = c_adNOMINAL_FREQUENCY_BDS[iIdx];
        break;
    case ZELSATSYSTEM_GLONASS:
        dFrequencyHz = c_adGLONASS_BASE_FREQUENCY[iIdx];
        break;
    default:
        break;
    }
    ZEL_ASSERT(dFrequencyHz >= 0.0);
    return dFrequencyHz;
}

double CZelFrequencyMgr::FrequencyIn(const CZelFrequencyTable* pTable, const SZelSatID& rSatID,
                                     int iIdx) const
{
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GLONASS:
    {
        if (!CheckGlonassSlot(rSatID))
        {
            return 0.0; // no such slot in the table
        }
        if (!IsGroupIndex(iIdx) || pTable == nullptr)
        {
            // No such row in the table.
            ZEL_ASSERT(false);
            return 0.0;
        }
        const double dWavelength = pTable->adWavelengths[iIdx][rSatID.uiSatNumber - 1];
        return dWavelength != 0.0 ? c_dSPEED_OF_LIGHT / dWavelength : 0.0;
    }
    case ZELSATSYSTEM_LOCATA:
    {
        ZEL_ASSERT(false); // not expected; works when the host filled the map
        ZEL_ASSERT(rSatID.uiSatNumber <= ZEL_DEF_MAXSATID_LOCATA);
        double dValue = 0.0;
        return GetLocataValue(rSatID, iIdx, dValue) ? dValue : 0.0;
    }
    default:
        return GetNominalFrequency(rSatID.eSatSystem, iIdx);
    }
}

double CZelFrequencyMgr::GetFrequency(const SZelSatID& rSatID, int iIdx) const
{
    const CZelThreadTable stTable(*this, rSatID);
    return FrequencyIn(stTable.get(), rSatID, iIdx);
}

double CZelFrequencyMgr::GetFrequency(const SZelSatID& rSatID, EZelFrequencyGroup eFreqIdx) const
{
    return GetFrequency(rSatID, static_cast<int>(eFreqIdx));
}

double CZelFrequencyMgr::GetFrequency(const SZelSatID& rSatID, uint32_t ebfFrq) const
{
    return GetFrequency(rSatID, static_cast<int>(FromFrqGroupBit(ebfFrq)));
}

double CZelFrequencyMgr::GetFrequency(const SZelSatID& rSatID, EZelFrequency eZelFrq) const
{
    return GetFrequency(rSatID, static_cast<int>(getFrequencyGroupIndex(eZelFrq)));
}

double CZelFrequencyMgr::GetWavelength(const SZelSatID& rSatID, EZelFrequencyGroup eFreqIdx) const
{
    ZEL_ASSERT(eFreqIdx < ZELFREQUENCY_GROUPS_MAX);
    if (!IsGroupIndex(eFreqIdx))
    {
        if (eFreqIdx < 0)
        {
            ZEL_ASSERT(false); // no such group
        }
        return 0.0;
    }
    double dWavelength = 0.0;
    if (NominalWavelength(rSatID.eSatSystem, eFreqIdx, dWavelength))
    {
        return dWavelength;
    }
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GLONASS:
    {
        ZEL_ASSERT(rSatID.isValid());
        if (!rSatID.isValid())
        {
            return 0.0; // no such slot in the table
        }
        const CZelThreadTable stTable(*this, rSatID);
        return stTable.get()->adWavelengths[eFreqIdx][rSatID.uiSatNumber - 1];
    }
    case ZELSATSYSTEM_LOCATA:
    {
        ZEL_ASSERT(false); // not expected; works when the host filled the map
        ZEL_ASSERT(rSatID.uiSatNumber <= ZEL_DEF_MAXSATID_LOCATA);
        double dValue = 0.0;
        return GetLocataValue(rSatID, eFreqIdx, dValue) ? LocataWavelength(dValue) : 0.0;
    }
    default:
        ZEL_ASSERT(false);
        return -1.0;
    }
}

double CZelFrequencyMgr::GetWavelength(const SZelSatID& rSatID, int iIdx) const
{
    // Every 32-bit value is a value of the group enumeration; the range is
    // checked there.
    return GetWavelength(rSatID, static_cast<EZelFrequencyGroup>(iIdx));
}

double CZelFrequencyMgr::GetWavelength(const SZelSatID& rSatID, uint32_t ebfFrq) const
{
    return GetWavelength(rSatID, FromFrqGroupBit(ebfFrq));
}

double CZelFrequencyMgr::GetWavelength(const SZelSatID& rSatID, EZelFrequency eZelFrq) const
{
    return GetWavelength(rSatID, getFrequencyGroupIndex(eZelFrq));
}

bool CZelFrequencyMgr::GetWavelengthBool(const SZelSatID& rSatID, EZelFrequencyGroup eFreqIdx,
                                         double& rdWavelength) const
{
    rdWavelength = GetWavelength(rSatID, eFreqIdx);
    return rdWavelength != 0.0;
}

bool CZelFrequencyMgr::GetWavelengthBool(const SZelSatID& rSatID, int iIdx, double& rdWavelength) const
{
    rdWavelength = GetWavelength(rSatID, iIdx);
    return rdWavelength != 0.0;
}

bool CZelFrequencyMgr::GetWavelengthBool(const SZelSatID& rSatID, uint32_t ebfFrq, double& rdWavelength) const
{
    rdWavelength = GetWavelength(rSatID, ebfFrq);
    return rdWavelength != 0.0;
}

bool CZelFrequencyMgr::GetWavelengthBool(const SZelSatID& rSatID, EZelFrequency eZelFrq,
                                         double& rdWavelength) const
{
    rdWavelength = GetWavelength(rSatID, eZelFrq);
    return rdWavelength != 0.0;
}

// ---------------------------------------------------------------------------
// Ratios
// ---------------------------------------------------------------------------

double CZelFrequencyMgr::GetFrequencyRatio(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2) const
{
    // Both carriers from one table.
    const CZelThreadTable stTable(*this, rSatID);
    const double dFrequency1 = FrequencyIn(stTable.get(), rSatID, static_cast<int>(FromFrqGroupBit(ebfFrq1)));
    const double dFrequency2 = FrequencyIn(stTable.get(), rSatID, static_cast<int>(FromFrqGroupBit(ebfFrq2)));
    if (!(dFrequency1 > 0.0) || !(dFrequency2 > 0.0))
    {
        return 0.0;
    }
    return dFrequency1 / dFrequency2;
}

double CZelFrequencyMgr::GetFrequencyRatioSquared(const SZelSatID& rSatID, uint32_t ebfFrq1,
                                                  uint32_t ebfFrq2) const
{
    const double dRatio = GetFrequencyRatio(rSatID, ebfFrq1, ebfFrq2);
    return dRatio * dRatio;
}

double CZelFrequencyMgr::GetFrequencyRatio(EZelSatSystem eSys, uint32_t ebfFrq1, uint32_t ebfFrq2)
{
    const int iIdx1 = FromFrqGroupBit(ebfFrq1);
    const int iIdx2 = FromFrqGroupBit(ebfFrq2);
    double dFrequency1 = 0.0;
    double dFrequency2 = 0.0;
    switch (eSys)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_GALILEO:
    case ZELSATSYSTEM_QZSS:
        dFrequency1 = c_adNOMINAL_FREQUENCY[iIdx1];
        dFrequency2 = c_adNOMINAL_FREQUENCY[iIdx2];
        break;
    case ZELSATSYSTEM_BEIDOU:
        dFrequency1 = c_adNOMINAL_FREQUENCY_BDS[iIdx1];
        dFrequency2 = c_adNOMINAL_FREQUENCY_BDS[iIdx2];
        break;
    case ZELSATSYSTEM_GLONASS:
        if (iIdx1 == ZELFREQUENCY_GROUP_1 && iIdx2 == ZELFREQUENCY_GROUP_2)
        {
            return c_dGLONASS_RATIO_G1_G2;
        }
        if (iIdx1 == ZELFREQUENCY_GROUP_2 && iIdx2 == ZELFREQUENCY_GROUP_1)
        {
            return c_dGLONASS_RATIO_G2_G1;
        }
        ZEL_ASSERT(false);
        return -1.0;
    default:
        ZEL_ASSERT(false);
        return -1.0;
    }
    if (dFrequency1 == 0.0 || dFrequency2 == 0.0)
    {
        // No such carrier in the system's table.
        ZEL_ASSERT(false);
        return -1.0;
    }
    return dFrequency1 / dFrequency2;
}

double CZelFrequencyMgr::GetIonoCoefficient(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2) const
{
    const CZelThreadTable stTable(*this, rSatID);
    const double dFrequency1 = FrequencyIn(stTable.get(), rSatID, static_cast<int>(FromFrqGroupBit(ebfFrq1)));
    const double dFrequency2 = FrequencyIn(stTable.get(), rSatID, static_cast<int>(FromFrqGroupBit(ebfFrq2)));
    if (ebfFrq1 == ebfFrq2 || (dFrequency1 == dFrequency2 && dFrequency1 > 0.0))
    {
        // A message check: the negated literal is the text a handler sees.
        ZEL_ASSERT(!"Iono-coefficient not defined if the two frequencies are the same!");
        return 0.0;
    }
    if (!(dFrequency1 > 0.0) || !(dFrequency2 > 0.0))
    {
        return 0.0; // a carrier is not known (yet)
    }
    const double dRatio = dFrequency2 / dFrequency1;
    return 1.0 / (1.0 - dRatio * dRatio);
}

double CZelFrequencyMgr::GetRelativeIonoFactor(const SZelSatID& rSatID) const
{
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_QZSS:
        return 1.0;
    case ZELSATSYSTEM_GLONASS:
    case ZELSATSYSTEM_GALILEO:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_BEIDOU:
    {
        const double dFrequency = GetFrequency(rSatID, static_cast<int>(ZELFREQUENCY_GROUP_1));
        if (!(dFrequency > 0.0))
        {
            return 0.0; // the GLONASS channel is not known (yet)
        }
        const double dRatio = c_adNOMINAL_FREQUENCY[ZELFREQUENCY_GROUP_1] / dFrequency;
        return dRatio * dRatio;
    }
    default:
        ZEL_ASSERT(false);
        return 1.0;
    }
}

// ---------------------------------------------------------------------------
// Combinations
// ---------------------------------------------------------------------------

bool CZelFrequencyMgr::GetCombination(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2,
                                      double* pdIono, double* pdCoef1, double* pdCoef2) const
{
    if (rSatID.eSatSystem < ZELSATSYSTEM_GPS || rSatID.eSatSystem > ZELSATSYSTEM_QZSS)
    {
        ZEL_ASSERT(false);
        return false;
    }
    const bool bSwapped = ebfFrq1 > ebfFrq2;
    const int iGrpLow = GroupOfBit(bSwapped ? ebfFrq2 : ebfFrq1);
    const int iGrpHigh = GroupOfBit(bSwapped ? ebfFrq1 : ebfFrq2);

    SCombinationRow stRow = {0, 0, 0.0, 0.0, 0.0};
    const SCombinationRow* pRow = nullptr;
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
        pRow = FindRow(c_astCOMBINATION_GPS, iGrpLow, iGrpHigh);
        break;
    case ZELSATSYSTEM_GALILEO:
        pRow = FindRow(c_astCOMBINATION_GALILEO, iGrpLow, iGrpHigh);
        break;
    case ZELSATSYSTEM_BEIDOU:
        pRow = FindRow(c_astCOMBINATION_BDS, iGrpLow, iGrpHigh);
        break;
    case ZELSATSYSTEM_GLONASS:
        if (iGrpLow == ZELFREQUENCY_GROUP_1 && iGrpHigh == ZELFREQUENCY_GROUP_2)
        {
            pRow = &c_stCOMBINATION_GLONASS_G1_G2;
        }
        else if ((iGrpLow == ZELFREQUENCY_GROUP_1 || iGrpLow == ZELFREQUENCY_GROUP_2) &&
                 iGrpHigh == ZELFREQUENCY_GROUP_3)
        {
            // G3 is CDMA; the other carrier is the satellite's channel.
            if (rSatID.uiSatNumber == 0)
            {
                ZEL_ASSERT(false);
                return false;
            }
            const double dFrequency1 = GetFrequency(rSatID, iGrpLow);
            if (!(dFrequency1 > 0.0))
            {
                return false; // the channel is not known (yet)
            }
            const double dFrequency2 = c_dGLONASS_G3;
            stRow.iGrp1 = iGrpLow;
            stRow.iGrp2 = iGrpHigh;
            stRow.dCoef1 =
                dFrequency1 * dFrequency1 / (dFrequency1 * dFrequency1 - dFrequency2 * dFrequency2);
            stRow.dCoef2 = 1.0 - stRow.dCoef1;
            stRow.dIono = iGrpLow == ZELFREQUENCY_GROUP_1 ? stRow.dCoef2
                                                          : stRow.dCoef2 / c_dGLONASS_RATIO_G1_G2_SQUARED;
            pRow = &stRow;
        }
        break;
    default:
        break;
    }
    if (pRow == nullptr)
    {
        // The system lacks the pair.
        ZEL_ASSERT(false);
        return false;
    }
    if (pdIono != nullptr)
    {
        *pdIono = bSwapped ? -pRow->dIono : pRow->dIono;
    }
    if (pdCoef1 != nullptr)
    {
        *pdCoef1 = bSwapped ? pRow->dCoef2 : pRow->dCoef1;
    }
    if (pdCoef2 != nullptr)
    {
        *pdCoef2 = bSwapped ? pRow->dCoef1 : pRow->dCoef2;
    }
    return true;
}

bool CZelFrequencyMgr::GetCombinationFactors(const SZelSatID& rSatID, int eCombination,
                                             unsigned int uiNumFrqs, const EZelFrequency* aeFrqs,
                                             double* adFactors) const
{
    if (adFactors == nullptr || eCombination == 0 || uiNumFrqs < 2)
    {
        return false;
    }
    if (uiNumFrqs >= 3)
    {
        ZEL_ASSERT(false); // combinations of three signals are not offered
        return false;
    }
    if (aeFrqs == nullptr)
    {
        // Nothing to read the two signals from.
        ZEL_ASSERT(false);
        return false;
    }
    // Both carriers from one table.
    const CZelThreadTable stTable(*this, rSatID);
    const double dF1 =
        FrequencyIn(stTable.get(), rSatID, static_cast<int>(getFrequencyGroupIndex(aeFrqs[0])));
    const double dF2 =
        FrequencyIn(stTable.get(), rSatID, static_cast<int>(getFrequencyGroupIndex(aeFrqs[1])));
    const bool bIonoFree = IsIonoFreeKind(eCombination);
    if (!bIonoFree && !IsWideLaneKind(eCombination))
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (AreClose(dF1, dF2, 1e-14))
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (bIonoFree)
    {
        const double dScale = 1.0 / (dF1 * dF1 - dF2 * dF2);
        adFactors[0] = dF1 * dF1 * dScale;
        adFactors[1] = -(dF2 * dF2) * dScale;
    }
    else
    {
        const double dScale = 1.0 / (dF1 - dF2);
        adFactors[0] = dScale * dF1;
        adFactors[1] = -dF2 * dScale;
    }
    const double dSum = adFactors[0] + adFactors[1];
    if (dSum == 1.0 || std::fabs(dSum - 1.0) <= std::max(1.0, std::fabs(dSum)) * 1e-14)
    {
        return true;
    }
    ZEL_ASSERT(false);
    return false;
}

bool CZelFrequencyMgr::GetIonoFreeFactors(EZelSatSystem eSys, uint32_t ebfFrq1, uint32_t ebfFrq2,
                                          double* pdFactor1, double* pdFactor2)
{
    const double dRatio = GetFrequencyRatio(eSys, ebfFrq1, ebfFrq2);
    if (dRatio < 0.0)
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (dRatio == 1.0)
    {
        // One carrier twice: no combination.
        ZEL_ASSERT(false);
        return false;
    }
    const double dFactor2 = 1.0 / (1.0 - dRatio);
    const double dFactor1 = -dRatio * dFactor2;
    if (pdFactor1 != nullptr)
    {
        *pdFactor1 = dFactor1;
    }
    if (pdFactor2 != nullptr)
    {
        *pdFactor2 = dFactor2;
    }
    return true;
}

bool CZelFrequencyMgr::GetNarrowLaneFactors(EZelSatSystem eSys, uint32_t ebfFrq1, uint32_t ebfFrq2,
                                            double* pdFactor1, double* pdFactor2)
{
    const double dRatio = GetFrequencyRatio(eSys, ebfFrq1, ebfFrq2);
    if (dRatio < 0.0)
    {
        ZEL_ASSERT(false);
        return false;
    }
    const double dFactor2 = 1.0 / (dRatio + 1.0);
    const double dFactor1 = dRatio * dFactor2;
    if (pdFactor1 != nullptr)
    {
        *pdFactor1 = dFactor1;
    }
    if (pdFactor2 != nullptr)
    {
        *pdFactor2 = dFactor2;
    }
    return true;
}

// ---------------------------------------------------------------------------
// Inverse wavelength products
// ---------------------------------------------------------------------------

bool CZelFrequencyMgr::WavelengthPair(const SZelSatID& rSatID, int iIdx1, int iIdx2, double& rdWavelength1,
                                      double& rdWavelength2) const
{
    rdWavelength1 = 0.0;
    rdWavelength2 = 0.0;
    if (rSatID.eSatSystem < ZELSATSYSTEM_GPS || rSatID.eSatSystem > ZELSATSYSTEM_LOCATA)
    {
        return false;
    }
    if (!IsGroupIndex(iIdx1) || !IsGroupIndex(iIdx2))
    {
        return true; // reported by the caller's checks; no such wavelength
    }
    if (NominalWavelength(rSatID.eSatSystem, iIdx1, rdWavelength1))
    {
        NominalWavelength(rSatID.eSatSystem, iIdx2, rdWavelength2);
        return true;
    }
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GLONASS:
    {
        if (!CheckGlonassSlot(rSatID))
        {
            return true; // no such slot in the table
        }
        const CZelThreadTable stTable(*this, rSatID);
        rdWavelength1 = stTable.get()->adWavelengths[iIdx1][rSatID.uiSatNumber - 1];
        rdWavelength2 = stTable.get()->adWavelengths[iIdx2][rSatID.uiSatNumber - 1];
        return true;
    }
    case ZELSATSYSTEM_LOCATA:
    {
        double dValue = 0.0;
        rdWavelength1 = GetLocataValue(rSatID, iIdx1, dValue) ? LocataWavelength(dValue) : 0.0;
        dValue = 0.0;
        rdWavelength2 = GetLocataValue(rSatID, iIdx2, dValue) ? LocataWavelength(dValue) : 0.0;
        return true;
    }
    default:
        return false;
    }
}

double CZelFrequencyMgr::GetInverseWavelengthProduct(const SZelSatID& rSatID, uint32_t ebfFrq1,
                                                     uint32_t ebfFrq2) const
{
    const int iIdx1 = FromFrqGroupBit(ebfFrq1);
    const int iIdx2 = FromFrqGroupBit(ebfFrq2);
    ZEL_ASSERT(iIdx1 < ZELFREQUENCY_GROUPS_MAX);
    ZEL_ASSERT(iIdx2 < ZELFREQUENCY_GROUPS_MAX);
    double dWavelength1 = 0.0;
    double dWavelength2 = 0.0;
    if (!WavelengthPair(rSatID, iIdx1, iIdx2, dWavelength1, dWavelength2))
    {
        ZEL_ASSERT(false);
        return -1.0;
    }
    if (dWavelength1 == 0.0 || dWavelength2 == 0.0)
    {
        return 0.0; // a wavelength is not known
    }
    return 1.0 / (dWavelength1 * dWavelength2);
}

double CZelFrequencyMgr::GetInverseWideLaneProduct(const SZelSatID& rSatID, uint32_t ebfFrq1,
                                                   uint32_t ebfFrq2) const
{
    const int iIdx1 = FromFrqGroupBit(ebfFrq1);
    const int iIdx2 = FromFrqGroupBit(ebfFrq2);
    ZEL_ASSERT(iIdx1 < ZELFREQUENCY_GROUPS_MAX);
    ZEL_ASSERT(iIdx2 < ZELFREQUENCY_GROUPS_MAX);
    double dWavelength1 = 0.0;
    double dWavelength2 = 0.0;
    if (!WavelengthPair(rSatID, iIdx1, iIdx2, dWavelength1, dWavelength2))
    {
        ZEL_ASSERT(false);
        return -1.0;
    }
    if (dWavelength1 == 0.0 || dWavelength2 == 0.0)
    {
        return 0.0; // a wavelength is not known
    }
    const double dInverseWideLane = 1.0 / dWavelength1 - 1.0 / dWavelength2;
    if (dInverseWideLane == 0.0)
    {
        return 0.0; // one carrier twice: the wide lane is infinitely long
    }
    const double dWideLane = 1.0 / dInverseWideLane;
    return 1.0 / (dWideLane * dWavelength1);
}

double CZelFrequencyMgr::GetInverseWavelengthSquared(const SZelSatID& rSatID, int iIdx) const
{
    ZEL_ASSERT(iIdx < ZELFREQUENCY_GROUPS_MAX);
    if (iIdx < 0)
    {
        ZEL_ASSERT(false); // no such group
    }
    double dWavelength = 0.0;
    double dUnused = 0.0;
    if (!WavelengthPair(rSatID, iIdx, iIdx, dWavelength, dUnused))
    {
        ZEL_ASSERT(false);
        return -1.0;
    }
    if (dWavelength == 0.0)
    {
        return 0.0; // not known, or no such group
    }
    return 1.0 / (dWavelength * dWavelength);
}

// ---------------------------------------------------------------------------
// The global manager
// ---------------------------------------------------------------------------

namespace
{
CZelFrequencyMgr g_ZelFrequencyMgr ZEL_INIT_PRIORITY(104);
} // namespace

CZelFrequencyMgr& GetFrequencyMgr()
{
    return g_ZelFrequencyMgr;
}

// ---------------------------------------------------------------------------
// Fixed L1/L2 coefficients and related values
// ---------------------------------------------------------------------------

namespace
{

// Group 1 and 2 coefficients of the systems that have the pair.
constexpr double c_dGPS_COEF1 = 2.54572778016316;
constexpr double c_dGPS_COEF2 = -1.54572778016316;
constexpr double c_dGLONASS_COEF1 = 2.53125;
constexpr double c_dGLONASS_COEF2 = -1.53125;
constexpr double c_dBDS_COEF1 = 2.487168314;
constexpr double c_dBDS_COEF2 = -1.487168314;
constexpr double c_dGPS_COEF1_METRES = 0.4844358892320762;
constexpr double c_dGPS_COEF2_METRES = -0.3774825110899295;
constexpr double c_dBDS_COEF1_METRES = 0.47763452538775647;
constexpr double c_dBDS_COEF2_METRES = -0.3693373132476563;
constexpr double c_dGPS_L1_WAVELENGTH_SQUARED = 0.0362116819070908;
constexpr double c_dBDS_B1_WAVELENGTH_SQUARED = 0.03687916430231488;

// By group index; 0.0 where the system has no such group.
constexpr double c_adGPS_L2_RATIO[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 0.7792207792207791, 1.0, 1.0434782608695652, 0.0, 0.0, 0.0};
constexpr double c_adBDS_L2_RATIO[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 0.7732634338138925, 1.0, 0.9516129032258065, 0.7662337662337663, 1.0260869565217392, 0.0};
constexpr double c_adGPS_L1_RATIO_SQUARED[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 1.0, 1.6469444444444448, 1.7932703213610588, 0.0, 0.0, 0.0};
constexpr double c_adGALILEO_L1_RATIO_SQUARED[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 1.0, 0.0, 1.7932703213610588, 1.7032461936225225, 1.7473889738252686, 1.517824};
constexpr double c_adBDS_L1_RATIO_SQUARED[ZELFREQUENCY_GROUPS_MAX] = {
    0.0, 1.0, 1.6724188451594368, 1.5144875130072841, 0.9819008264462811, 1.7608136105860113, 0.0};

// A system that lacks the value: "false" and the GPS value.
double LackingPair(double dGpsValue)
{
    ZEL_ASSERT(false);
    return dGpsValue;
}

// A value of a table by group; a group that the table lacks gives the GPS value.
double ByGroup(const double (&adTable)[ZELFREQUENCY_GROUPS_MAX],
               const double (&adGpsTable)[ZELFREQUENCY_GROUPS_MAX], int iGrp)
{
    if (iGrp < ZELFREQUENCY_GROUP_1 || iGrp >= ZELFREQUENCY_GROUPS_MAX || adTable[iGrp] == 0.0)
    {
        return LackingPair(IsGroupIndex(iGrp) ? adGpsTable[iGrp] : 0.0);
    }
    return adTable[iGrp];
}

// The satellite's GLONASS wavelength of a group; 0.0 when not known. The
// slot and the group are in range.
double GlonassWavelength(const CZelFrequencyTable& rTable, const SZelSatID& rSatID, int iGrp)
{
    return rTable.adWavelengths[iGrp][rSatID.uiSatNumber - 1];
}

} // namespace

namespace
{

// The stored iono-free coefficients of one carrier of a combination, by
// system; SBAS and QZSS share the GPS values.
struct SIonoFreeCoefs
{
    double dGps;
    double dGpsMetres;
    double dGlonass; // times the satellite's wavelength for metres
    double dBeidou;
    double dBeidouMetres;
    EZelFrequencyGroup eGlonassGroup;
};

constexpr SIonoFreeCoefs c_stCOEF1 = {c_dGPS_COEF1, c_dGPS_COEF1_METRES, c_dGLONASS_COEF1,
                                      c_dBDS_COEF1, c_dBDS_COEF1_METRES, ZELFREQUENCY_GROUP_1};
constexpr SIonoFreeCoefs c_stCOEF2 = {c_dGPS_COEF2, c_dGPS_COEF2_METRES, c_dGLONASS_COEF2,
                                      c_dBDS_COEF2, c_dBDS_COEF2_METRES, ZELFREQUENCY_GROUP_2};

double IonoFreeCoef(const SZelSatID& rSatID, const SIonoFreeCoefs& rCoefs)
{
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
        return rCoefs.dGps;
    case ZELSATSYSTEM_GLONASS:
        return rCoefs.dGlonass; // the same on every channel
    case ZELSATSYSTEM_BEIDOU:
        return rCoefs.dBeidou;
    default:
        return LackingPair(rCoefs.dGps);
    }
}

double IonoFreeCoefInMetres(const SZelSatID& rSatID, const SIonoFreeCoefs& rCoefs)
{
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
        return rCoefs.dGpsMetres;
    case ZELSATSYSTEM_GLONASS:
    {
        const double dWL = GetFrequencyMgr().GetWavelength(rSatID, rCoefs.eGlonassGroup);
        ZEL_ASSERT(dWL > 0.0);
        return rCoefs.dGlonass * dWL;
    }
    case ZELSATSYSTEM_BEIDOU:
        return rCoefs.dBeidouMetres;
    default:
        return LackingPair(rCoefs.dGpsMetres);
    }
}

} // namespace

double GetIonoFreeCoef1(const SZelSatID& rSatID)
{
    return IonoFreeCoef(rSatID, c_stCOEF1);
}

double GetIonoFreeCoef2(const SZelSatID& rSatID)
{
    return IonoFreeCoef(rSatID, c_stCOEF2);
}

double GetIonoFreeCoef1InMetres(const SZelSatID& rSatID)
{
    return IonoFreeCoefInMetres(rSatID, c_stCOEF1);
}

double GetIonoFreeCoef2InMetres(const SZelSatID& rSatID)
{
    return IonoFreeCoefInMetres(rSatID, c_stCOEF2);
}

// f(reference group) / f(group) of a GLONASS satellite over one table
// snapshot: the wavelengths the other way round. 0.0 while the channel is
// not known.
static double GlonassRatioTo(const SZelSatID& rSatID, int iGrp, EZelFrequencyGroup eRefGroup)
{
    ZEL_ASSERT(rSatID.isValid());
    if (!rSatID.isValid())
    {
        return 0.0; // no such slot in the table
    }
    const CZelThreadTable stTable(GetFrequencyMgr());
    const double dWL = GlonassWavelength(*stTable.get(), rSatID, eRefGroup);
    ZEL_ASSERT(dWL > 0.0);
    if (!(dWL > 0.0))
    {
        return 0.0; // the channel is not known (yet)
    }
    return GlonassWavelength(*stTable.get(), rSatID, iGrp) / dWL;
}

double GetL2FrequencyRatio(const SZelSatID& rSatID, uint32_t ebfFrq)
{
    const int iGrp = FromFrqGroupBit(ebfFrq);
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
        return ByGroup(c_adGPS_L2_RATIO, c_adGPS_L2_RATIO, iGrp);
    case ZELSATSYSTEM_BEIDOU:
        return ByGroup(c_adBDS_L2_RATIO, c_adGPS_L2_RATIO, iGrp);
    case ZELSATSYSTEM_GLONASS:
        if (iGrp < ZELFREQUENCY_GROUP_1 || iGrp > ZELFREQUENCY_GROUP_3)
        {
            return LackingPair(IsGroupIndex(iGrp) ? c_adGPS_L2_RATIO[iGrp] : 0.0);
        }
        return GlonassRatioTo(rSatID, iGrp, ZELFREQUENCY_GROUP_2);
    default:
        return LackingPair(IsGroupIndex(iGrp) ? c_adGPS_L2_RATIO[iGrp] : 0.0);
    }
}

double GetL1FrequencyRatioSquared(const SZelSatID& rSatID, uint32_t ebfFrq)
{
    const int iGrp = FromFrqGroupBit(ebfFrq);
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
        return ByGroup(c_adGPS_L1_RATIO_SQUARED, c_adGPS_L1_RATIO_SQUARED, iGrp);
    case ZELSATSYSTEM_GALILEO:
        return ByGroup(c_adGALILEO_L1_RATIO_SQUARED, c_adGPS_L1_RATIO_SQUARED, iGrp);
    case ZELSATSYSTEM_BEIDOU:
        return ByGroup(c_adBDS_L1_RATIO_SQUARED, c_adGPS_L1_RATIO_SQUARED, iGrp);
    case ZELSATSYSTEM_GLONASS:
    {
        if (iGrp < ZELFREQUENCY_GROUP_1 || iGrp > ZELFREQUENCY_GROUP_3)
        {
            return LackingPair(IsGroupIndex(iGrp) ? c_adGPS_L1_RATIO_SQUARED[iGrp] : 0.0);
        }
        const double dRatio = GlonassRatioTo(rSatID, iGrp, ZELFREQUENCY_GROUP_1);
        return dRatio * dRatio;
    }
    default:
        return LackingPair(IsGroupIndex(iGrp) ? c_adGPS_L1_RATIO_SQUARED[iGrp] : 0.0);
    }
}

double GetL1WavelengthSquared(const SZelSatID& rSatID)
{
    switch (rSatID.eSatSystem)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_GALILEO:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_QZSS:
        return c_dGPS_L1_WAVELENGTH_SQUARED;
    case ZELSATSYSTEM_BEIDOU:
        return c_dBDS_B1_WAVELENGTH_SQUARED;
    case ZELSATSYSTEM_GLONASS:
    {
        const double dWL = GetFrequencyMgr().GetWavelength(rSatID, ZELFREQUENCY_GROUP_1);
        const double dSquared = dWL * dWL;
        if (dSquared == 0.0)
        {
            ZEL_ASSERT(false);
        }
        return dSquared;
    }
    default:
        return LackingPair(c_dGPS_L1_WAVELENGTH_SQUARED);
    }
}

} // namespace ZELN
