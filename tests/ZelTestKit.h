#ifndef ZELTYPES_TESTS_ZELTESTKIT_H
#define ZELTYPES_TESTS_ZELTESTKIT_H

// The record contract checked once for every record: a builder of
// hand-made golden images, and the checks of an image (Core and Ext
// families) and of a text line. A record's own tests then hold its golden
// bytes and the rules of its own kind only.

#include "ZelTestHooks.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace ZelTest
{

typedef std::vector<unsigned char> Bytes;

// A golden image built by hand, field after field from the offset table of
// the test: the independent check of a writer. At() states the offset the
// next field has in the table.
class CImage
{
public:
    template <class T> CImage& Put(T tValue)
    {
        static_assert(std::is_trivially_copyable<T>::value, "plain values only");
        const size_t ulAt = m_vecBytes.size();
        m_vecBytes.resize(ulAt + sizeof(T));
        std::memcpy(&m_vecBytes[ulAt], &tValue, sizeof(T));
        return *this;
    }
    CImage& U8(uint32_t ulValue) { return Put(static_cast<uint8_t>(ulValue)); }
    CImage& U16(uint32_t ulValue) { return Put(static_cast<uint16_t>(ulValue)); }
    CImage& U32(uint32_t ulValue) { return Put(static_cast<uint32_t>(ulValue)); }
    CImage& I8(int32_t lValue) { return Put(static_cast<int8_t>(lValue)); }
    CImage& I16(int32_t lValue) { return Put(static_cast<int16_t>(lValue)); }
    CImage& I32(int32_t lValue) { return Put(static_cast<int32_t>(lValue)); }
    CImage& U64(uint64_t ulValue) { return Put(ulValue); }
    CImage& F32(float fValue) { return Put(fValue); }
    CImage& F64(double dValue) { return Put(dValue); }
    CImage& Zero(size_t ulCount) { return Fill(ulCount, 0); }
    CImage& Fill(size_t ulCount, unsigned char ucValue)
    {
        m_vecBytes.insert(m_vecBytes.end(), ulCount, ucValue);
        return *this;
    }
    CImage& Append(const Bytes& rvecBytes)
    {
        m_vecBytes.insert(m_vecBytes.end(), rvecBytes.begin(), rvecBytes.end());
        return *this;
    }
    // A time in its 16-byte packed form: day at 0, milliseconds at 4, accuracy at 12.
    CImage& Time16(int32_t lDay, double dMs, int32_t lAccuracy) { return I32(lDay).F64(dMs).I32(lAccuracy); }
    // A time in a raw block, 24 bytes: day at 0, milliseconds at 8, accuracy at 16.
    CImage& Time24(int32_t lDay, double dMs, int32_t lAccuracy)
    {
        return I32(lDay).Zero(4).F64(dMs).I32(lAccuracy).Zero(4);
    }
    // The offset the next field has in the layout table.
    CImage& At(size_t ulOffset)
    {
        EXPECT_EQ(ulOffset, m_vecBytes.size()) << "offset of the next field";
        return *this;
    }
    // A value put at an offset already built (a patch of a copy).
    template <class T> CImage& PutAt(size_t ulOffset, T tValue)
    {
        if (ulOffset + sizeof(T) > m_vecBytes.size())
        {
            ADD_FAILURE() << "patch beyond the image";
            return *this;
        }
        std::memcpy(&m_vecBytes[ulOffset], &tValue, sizeof(T));
        return *this;
    }
    size_t Size() const { return m_vecBytes.size(); }
    const Bytes& Get() const { return m_vecBytes; }
    operator const Bytes&() const { return m_vecBytes; }

private:
    Bytes m_vecBytes;
};

// How a Core record treats its running count when the bounds test fails:
// a fixed-size leaf clears it before the test, any other record after.
enum ECountRule
{
    eCOUNT_CLEARED,
    eCOUNT_KEPT
};

struct SCoreRules
{
    ECountRule eCountRule = eCOUNT_CLEARED;
    // Reports of "false" for a buffer one byte short, per direction.
    size_t ulShortSaveReports = 1;
    size_t ulShortLoadReports = 1;
    // Whether the short and null reads are checked to leave the target as
    // it was (a record whose reader stores a head before its true test
    // says so in its own tests).
    bool bShortLoadUntouched = true;
    // The count a read one byte short leaves, where a reader reads a head
    // before its whole-length test; -1 for the count rule.
    int64_t lShortLoadCount = -1;
};

inline std::vector<std::string> Falses(size_t ulCount)
{
    return std::vector<std::string>(ulCount, "false");
}

// The whole Core contract of one record and its golden image:
// - getSize is the image's length;
// - saveData into exactly that many bytes writes the golden bytes, with the
//   count equal to the size and no report;
// - loadData of them gives a record equal to the source, count the size;
// - one byte short: false with the report "false" and the count rule, for
//   both directions; the target stays as it was;
// - a null buffer: false with "false"; the target stays as it was.
// rTarget is the record loaded into (a default one unless given). A record
// whose bounds test looks at its present content (a sequence) is given a
// target of the full size, so that one byte short fails at that test.
template <class R>
void ExpectCoreImage(const R& rRecord, const Bytes& rvecExpected, const SCoreRules& rRules = SCoreRules(),
                     const R& rTarget = R())
{
    SCOPED_TRACE("core image");
    EXPECT_EQ(rvecExpected.size(), rRecord.getSize());
    {
        CRecordingHook stHook;
        Bytes vecOut(rvecExpected.size(), 0xAA);
        uint64_t ulCount = 777;
        EXPECT_TRUE(rRecord.saveData(vecOut.data(), vecOut.size(), &ulCount));
        EXPECT_EQ(rvecExpected, vecOut);
        EXPECT_EQ(rvecExpected.size(), ulCount);
        EXPECT_EQ(0u, stHook.Count());
    }
    {
        CRecordingHook stHook;
        R stLoaded = rTarget;
        uint64_t ulCount = 777;
        EXPECT_TRUE(stLoaded.loadData(rvecExpected.data(), rvecExpected.size(), &ulCount));
        EXPECT_TRUE(stLoaded == rRecord);
        EXPECT_EQ(rvecExpected.size(), ulCount);
        EXPECT_EQ(0u, stHook.Count());
    }
    if (rvecExpected.empty())
    {
        return;
    }
    const uint64_t ulKept = rRules.eCountRule == eCOUNT_CLEARED ? 0 : 777;
    {
        CRecordingHook stHook;
        Bytes vecOut(rvecExpected.size() - 1, 0xAA);
        uint64_t ulCount = 777;
        EXPECT_FALSE(rRecord.saveData(vecOut.data(), vecOut.size(), &ulCount));
        EXPECT_EQ(Falses(rRules.ulShortSaveReports), stHook.Texts());
        EXPECT_EQ(ulKept, ulCount);
        EXPECT_EQ(Bytes(rvecExpected.size() - 1, 0xAA), vecOut) << "a refused writer writes nothing";
    }
    {
        CRecordingHook stHook;
        R stLoaded = rTarget;
        uint64_t ulCount = 777;
        EXPECT_FALSE(stLoaded.loadData(rvecExpected.data(), rvecExpected.size() - 1, &ulCount));
        EXPECT_EQ(Falses(rRules.ulShortLoadReports), stHook.Texts());
        EXPECT_EQ(rRules.lShortLoadCount >= 0 ? static_cast<uint64_t>(rRules.lShortLoadCount) : ulKept,
                  ulCount);
        if (rRules.bShortLoadUntouched)
        {
            EXPECT_TRUE(stLoaded == rTarget) << "a refused reader leaves the record as it was";
        }
    }
    {
        CRecordingHook stHook;
        uint64_t ulCount = 777;
        EXPECT_FALSE(rRecord.saveData(nullptr, rvecExpected.size(), &ulCount));
        R stLoaded = rTarget;
        EXPECT_FALSE(stLoaded.loadData(nullptr, rvecExpected.size(), &ulCount));
        EXPECT_EQ(Falses(2), stHook.Texts());
        EXPECT_TRUE(stLoaded == rTarget);
    }
}

struct SExtRules
{
    // The version byte at offset 0, or -1 for an image without one.
    int iVersion = -1;
    // The report of a wrong version: "" for a silent refusal.
    std::string strOldVersionText;
    // The reports of a read one byte short (a reader may name its length
    // check rather than "false"), and whether it leaves the target as it was.
    std::vector<std::string> vecShortLoadReports = {"false"};
    bool bShortLoadUntouched = true;
};

// The Ext contract of one record and its golden image: exact size writes
// the bytes, reads back equal; one byte short and null buffers fail with
// "false"; a wrong version byte is refused with its text (or silently),
// reading nothing.
template <class R>
void ExpectExtImage(const R& rRecord, const Bytes& rvecExpected, const SExtRules& rRules = SExtRules(),
                    const R& rTarget = R())
{
    SCOPED_TRACE("ext image");
    EXPECT_EQ(rvecExpected.size(), rRecord.getSize());
    {
        CRecordingHook stHook;
        Bytes vecOut(rvecExpected.size(), 0xAA);
        EXPECT_TRUE(rRecord.saveData(vecOut.data(), vecOut.size()));
        EXPECT_EQ(rvecExpected, vecOut);
        EXPECT_EQ(0u, stHook.Count());
    }
    {
        CRecordingHook stHook;
        R stLoaded = rTarget;
        EXPECT_TRUE(stLoaded.loadData(rvecExpected.data(), rvecExpected.size()));
        EXPECT_TRUE(stLoaded == rRecord);
        EXPECT_EQ(0u, stHook.Count());
    }
    if (rvecExpected.empty())
    {
        return;
    }
    {
        CRecordingHook stHook;
        Bytes vecOut(rvecExpected.size() - 1, 0xAA);
        EXPECT_FALSE(rRecord.saveData(vecOut.data(), vecOut.size()));
        EXPECT_EQ(Falses(1), stHook.Texts());
        EXPECT_EQ(Bytes(rvecExpected.size() - 1, 0xAA), vecOut);
    }
    {
        CRecordingHook stHook;
        R stLoaded = rTarget;
        EXPECT_FALSE(stLoaded.loadData(rvecExpected.data(), rvecExpected.size() - 1));
        EXPECT_EQ(rRules.vecShortLoadReports, stHook.Texts());
        if (rRules.bShortLoadUntouched)
        {
            EXPECT_TRUE(stLoaded == rTarget);
        }
    }
    {
        CRecordingHook stHook;
        EXPECT_FALSE(rRecord.saveData(nullptr, rvecExpected.size()));
        R stLoaded = rTarget;
        EXPECT_FALSE(stLoaded.loadData(nullptr, rvecExpected.size()));
        EXPECT_EQ(Falses(2), stHook.Texts());
        EXPECT_TRUE(stLoaded == rTarget);
    }
    if (rRules.iVersion >= 0)
    {
        EXPECT_EQ(static_cast<unsigned char>(rRules.iVersion), rvecExpected[0]) << "version byte";
        for (const int iOther : {rRules.iVersion - 1, rRules.iVersion + 1, 0, 255})
        {
            if (iOther < 0 || iOther > 255 || iOther == rRules.iVersion)
            {
                continue;
            }
            Bytes vecWrong = rvecExpected;
            vecWrong[0] = static_cast<unsigned char>(iOther);
            CRecordingHook stHook;
            R stLoaded = rTarget;
            EXPECT_FALSE(stLoaded.loadData(vecWrong.data(), vecWrong.size()));
            if (rRules.strOldVersionText.empty())
            {
                EXPECT_EQ(0u, stHook.Count());
            }
            else
            {
                EXPECT_EQ(std::vector<std::string>{rRules.strOldVersionText}, stHook.Texts());
            }
            EXPECT_TRUE(stLoaded == rTarget) << "nothing is read from an image of another version";
        }
    }
}

// The text line of a record: exact on a fresh stream, with no report; read
// back into tTarget it gives a record that writes the same line again, and
// the stream is good (or at its end).
// Both streams start at the default precision.
template <class R> void ExpectText(const R& rRecord, const std::string& strExpected, const R& rTarget = R())
{
    SCOPED_TRACE("text line");
    CRecordingHook stHook;
    std::ostringstream os;
    os << rRecord;
    EXPECT_EQ(strExpected, os.str());
    std::istringstream is(strExpected);
    R stRead = rTarget;
    is >> stRead;
    EXPECT_FALSE(is.fail()) << "the reader took the whole line";
    std::ostringstream osAgain;
    osAgain << stRead;
    EXPECT_EQ(strExpected, osAgain.str());
    EXPECT_EQ(0u, stHook.Count());
}

// The same, where the line holds the record exactly: the record read back
// is equal to the source.
template <class R>
void ExpectTextExact(const R& rRecord, const std::string& strExpected, const R& rTarget = R())
{
    ExpectText(rRecord, strExpected, rTarget);
    std::istringstream is(strExpected);
    R stRead = rTarget;
    is >> stRead;
    EXPECT_TRUE(stRead == rRecord) << "the line holds the whole record";
}

} // namespace ZelTest

#endif
