// The record contract, exercised through test-local records that use the
// shared helpers the way every record of the library does.
#include "ZelAllocCounter.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <iomanip>
#include <map>
#include <new>
#include <sstream>
#include <thread>
#include <vector>

using namespace ZELN;

namespace
{

// A fixed-size leaf: 2 + 8 bytes.
struct STestLeaf
{
    uint16_t unKey = 0;
    double dValue = 0.0;

    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.unKey) && io.Raw(r.dValue);
    }
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Leaf, ").Value(r.unKey).Tag(", D, ").Value(r.dValue);
    }

    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    bool operator==(const STestLeaf& r) const { return unKey == r.unKey && dValue == r.dValue; }
    bool operator<(const STestLeaf& r) const { return unKey < r.unKey; }
};

std::ostream& operator<<(std::ostream& os, const STestLeaf& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, STestLeaf& r)
{
    return ZelIo::ReadText(is, r);
}

enum ETestKind : int32_t
{
    TESTKIND_INVALID = -1,
    TESTKIND_ALPHA = 0,
    TESTKIND_BETA = 1,
    TESTKIND_GAMMA = 2
};
constexpr const char* c_aszKindWords[] = {"Alpha", "Beta", "Gamma"};

// A record with every kind of field: an 8-bit number, a nested time, an
// enumeration, a bit field, a fixed array and a sorted sequence of leaves.
struct STestRecord
{
    uint8_t ucSmall = 0;
    SMjdTime stTime;
    ETestKind eKind = TESTKIND_ALPHA;
    uint32_t ebfBits = 0;
    double adArr[3] = {0.0, 0.0, 0.0};
    std::vector<STestLeaf> vecLeaves; // kept sorted by key

    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ucSmall);
        if (!io.Record(r.stTime))
        {
            return false;
        }
        io.template RawAs<int32_t>(r.eKind);
        io.Raw(r.ebfBits);
        io.Raw(r.adArr);
        return io.SortedSequence(r.vecLeaves);
    }
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Small, ").template Wide<unsigned int>(r.ucSmall).Tag(", Time, ").Value(r.stTime);
        io.Tag(", Kind, ").Word(r.eKind, c_aszKindWords, "Invalid", TESTKIND_INVALID);
        io.Tag(", Bits, ").template Hex<uint64_t>(r.ebfBits);
        io.Tag(", Arr, ").Precision(3).Array(r.adArr).Sequence(r.vecLeaves, ", VecSize, ");
    }

    // The bounds test looks at the present content; the size is worked out
    // again after loading.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }

    bool operator==(const STestRecord& r) const
    {
        return ucSmall == r.ucSmall && stTime == r.stTime && eKind == r.eKind && ebfBits == r.ebfBits &&
               adArr[0] == r.adArr[0] && adArr[1] == r.adArr[1] && adArr[2] == r.adArr[2] &&
               vecLeaves == r.vecLeaves;
    }
};

std::ostream& operator<<(std::ostream& os, const STestRecord& r)
{
    return ZelIo::WriteText(os, r);
}

std::istream& operator>>(std::istream& is, STestRecord& r)
{
    return ZelIo::ReadText(is, r);
}

STestRecord Sample()
{
    STestRecord st;
    st.ucSmall = 200;
    st.stTime = SMjdTime(2100u, 43200.5);
    st.eKind = TESTKIND_GAMMA;
    st.ebfBits = 0x8001;
    st.adArr[0] = 1.25;
    st.adArr[1] = -2.5;
    st.adArr[2] = 3.0;
    st.vecLeaves = {{1, 0.5}, {2, 1.5}, {7, -4.0}};
    return st;
}

// The image of Sample(), built by hand: offsets 0 small, 1 time (16),
// 17 kind, 21 bits, 25 array (24), 49 count, 53 leaves of 10 bytes.
std::vector<unsigned char> SampleImage()
{
    std::vector<unsigned char> vec(83, 0);
    vec[0] = 200;
    const int32_t lDay = 2100 * 7 + 44244;
    const double dMs = 43200500.0;
    const int32_t lAcc = 1;
    std::memcpy(&vec[1], &lDay, 4);
    std::memcpy(&vec[5], &dMs, 8);
    std::memcpy(&vec[13], &lAcc, 4);
    const int32_t lKind = 2;
    std::memcpy(&vec[17], &lKind, 4);
    const uint32_t ulBits = 0x8001;
    std::memcpy(&vec[21], &ulBits, 4);
    const double adArr[3] = {1.25, -2.5, 3.0};
    std::memcpy(&vec[25], adArr, 24);
    const uint32_t ulCount = 3;
    std::memcpy(&vec[49], &ulCount, 4);
    const uint16_t aunKeys[3] = {1, 2, 7};
    const double adValues[3] = {0.5, 1.5, -4.0};
    for (int i = 0; i < 3; ++i)
    {
        std::memcpy(&vec[53 + 10 * i], &aunKeys[i], 2);
        std::memcpy(&vec[55 + 10 * i], &adValues[i], 8);
    }
    return vec;
}

} // namespace

TEST(RecordContract, GoldenImageAndExactBuffer)
{
    ZelTest::CRecordingHook Hook;
    const STestRecord st = Sample();
    ASSERT_EQ(st.getSize(), 83u);
    std::vector<unsigned char> vecOut(83, 0xCC);
    uint64_t ulOffset = 12345;
    ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulOffset));
    EXPECT_EQ(ulOffset, 83u);
    EXPECT_EQ(vecOut, SampleImage());

    STestRecord stBack;
    const std::vector<unsigned char> vecImage = SampleImage();
    ulOffset = 0;
    // The reader's bounds test looks at the empty target (53 bytes).
    ASSERT_TRUE(stBack.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    EXPECT_EQ(ulOffset, 83u);
    EXPECT_TRUE(stBack == st);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(RecordContract, OneByteShortAndNullBuffer)
{
    ZelTest::CRecordingHook Hook;
    const STestRecord st = Sample();
    std::vector<unsigned char> vecOut(83, 0xCC);
    uint64_t ulOffset = 777;
    EXPECT_FALSE(st.saveData(vecOut.data(), 82, &ulOffset));
    EXPECT_EQ(ulOffset, 777u); // a record that is not a leaf sets the count after the test
    EXPECT_EQ(vecOut, std::vector<unsigned char>(83, 0xCC));
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");
    EXPECT_FALSE(st.saveData(nullptr, 83, &ulOffset));
    EXPECT_EQ(Hook.Count(), 2u);

    STestRecord stTarget = Sample();
    stTarget.ucSmall = 9;
    const std::vector<unsigned char> vecImage = SampleImage();
    EXPECT_FALSE(stTarget.loadData(nullptr, 83, &ulOffset));
    EXPECT_EQ(stTarget.ucSmall, 9);
    // The target holds three leaves, so its own size (83) is the bound.
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 82, &ulOffset));
    EXPECT_EQ(stTarget.ucSmall, 9);
    EXPECT_EQ(Hook.Count(), 4u);
    EXPECT_EQ(Hook.Texts()[3], "false");
}

TEST(RecordContract, ReaderStopsInsideANestedRecord)
{
    ZelTest::CRecordingHook Hook;
    const std::vector<unsigned char> vecImage = SampleImage();
    STestRecord st;
    uint64_t ulOffset = 0;
    // Ends five bytes into the second leaf.
    EXPECT_FALSE(st.loadData(vecImage.data(), 68, &ulOffset));
    EXPECT_EQ(ulOffset, 63u);
    EXPECT_EQ(st.ucSmall, 200);
    // 15 bytes cannot hold three leaves: sized to the one they hold, the
    // sequence grows by the second, which fails.
    ASSERT_EQ(st.vecLeaves.size(), 2u);
    EXPECT_EQ(st.vecLeaves[0].unKey, 1);
    EXPECT_EQ(st.vecLeaves[1].unKey, 0); // not read
    // The leaf reports its own bound test; this reader only returns.
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");
}

TEST(RecordContract, ForgedCountFailsWhereTheBufferEnds)
{
    std::vector<unsigned char> vecImage = SampleImage();
    const uint32_t ulForged = 1000;
    std::memcpy(&vecImage[49], &ulForged, 4);
    STestRecord st;
    uint64_t ulOffset = 0;
    ZelTest::CRecordingHook Hook;
    EXPECT_FALSE(st.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    // 30 bytes hold three leaves: the sequence grows past them only as a
    // fourth is read, and that one fails where the buffer ends.
    EXPECT_EQ(st.vecLeaves.size(), 4u);
    EXPECT_EQ(st.vecLeaves[2].unKey, 7);
    EXPECT_EQ(ulOffset, 83u);
    EXPECT_EQ(Hook.Texts(), std::vector<std::string>{"false"});
}

TEST(RecordContract, SequenceShrinksAndSortedReaderSorts)
{
    STestRecord stSource = Sample();
    stSource.vecLeaves = {{9, 1.0}, {3, 2.0}}; // written unsorted
    std::vector<unsigned char> vec(stSource.getSize());
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stSource.saveData(vec.data(), vec.size(), &ulOffset));
    STestRecord stTarget;
    stTarget.vecLeaves = {{1, 1.0}};
    ASSERT_TRUE(stTarget.loadData(vec.data(), vec.size(), &ulOffset));
    ASSERT_EQ(stTarget.vecLeaves.size(), 2u);
    EXPECT_EQ(stTarget.vecLeaves[0].unKey, 3);
    EXPECT_EQ(stTarget.vecLeaves[1].unKey, 9);
}

TEST(RecordContract, NestedWriterFailureReportsAtEachLevel)
{
    // A record whose stated size is too small for its nested time.
    struct SLying
    {
        SMjdTime stTime;
        uint64_t getSize() const { return 10; }
        bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
        {
            ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
            if (!stOut.Begin(getSize()))
            {
                return false;
            }
            if (!stOut.Record(stTime))
            {
                return false;
            }
            return stOut.End(getSize());
        }
    };
    ZelTest::CRecordingHook Hook;
    SLying st;
    unsigned char aucBuffer[10];
    uint64_t ulOffset = 0;
    EXPECT_FALSE(st.saveData(aucBuffer, sizeof(aucBuffer), &ulOffset));
    EXPECT_EQ(ulOffset, 0u);
    EXPECT_EQ(Hook.Count(), 2u);
}

TEST(RecordContract, NullOffsetPointerIsTolerated)
{
    const STestRecord st = Sample();
    std::vector<unsigned char> vec(st.getSize());
    EXPECT_TRUE(st.saveData(vec.data(), vec.size(), nullptr));
    STestRecord stBack;
    EXPECT_TRUE(stBack.loadData(vec.data(), vec.size(), nullptr));
    EXPECT_TRUE(stBack == st);
}

TEST(RecordContract, TextExactAndReadBack)
{
    const STestRecord st = Sample();
    std::ostringstream oss;
    oss << st;
    EXPECT_EQ(oss.str(), "Small, 200, Time, 2100, 43200.5, Kind, Gamma, Bits, 8001, Arr, 1.25, -2.5, 3, "
                         "VecSize, 3, Leaf, 1, D, 0.5, Leaf, 2, D, 1.5, Leaf, 7, D, -4");
    std::istringstream iss(oss.str());
    STestRecord stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == st);
}

TEST(RecordContract, TagWordsAreNotCompared)
{
    const std::string strText = "Foo, 200, Bar, 2100, 43200.5, Baz, Gamma, Qux, 8001, Quux, 1.25, -2.5, 3, "
                                "N, 3, X, 1, Y, 0.5, X, 2, Y, 1.5, Z, 7, W, -4";
    std::istringstream iss(strText);
    STestRecord stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == Sample());
}

TEST(RecordContract, UnknownEnumerationWordGivesInvalidAndGoesOn)
{
    std::istringstream iss("Small, 5, Time, 2100, 1.0, Kind, Delta, Bits, ff, Arr, 1, 2, 3, VecSize, 0");
    STestRecord st;
    iss >> st;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(st.eKind, TESTKIND_INVALID);
    EXPECT_EQ(st.ebfBits, 0xFFu);
    EXPECT_EQ(st.adArr[2], 3.0);
    std::ostringstream oss;
    oss << st;
    EXPECT_NE(oss.str().find("Kind, Invalid, Bits, ff"), std::string::npos);
}

TEST(RecordContract, CutTextFailsAndLaterFieldsKeepTheirValues)
{
    STestRecord st = Sample();
    std::istringstream iss("Small, 17, Time, 2000, 100.0, Kind, Beta, Bits, 1f, Arr, 9.5,");
    iss >> st;
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(st.ucSmall, 17);
    EXPECT_EQ(st.stTime.GetGpsWeek(), 2000u);
    EXPECT_EQ(st.eKind, TESTKIND_BETA);
    EXPECT_EQ(st.ebfBits, 0x1Fu);
    EXPECT_EQ(st.adArr[0], 9.5);
    EXPECT_EQ(st.adArr[1], -2.5); // after the cut
    EXPECT_EQ(st.adArr[2], 3.0);
    EXPECT_EQ(st.vecLeaves.size(), 3u);
}

TEST(RecordContract, PrecisionStaysOnTheStream)
{
    std::ostringstream oss;
    oss << Sample();
    const STestLeaf stLeaf{4, 3.14159265};
    oss.str("");
    oss << stLeaf; // sets no precision of its own
    EXPECT_EQ(oss.str(), "Leaf, 4, D, 3.14");
}

TEST(RecordContract, NarrowingHexAndEightBitHelpers)
{
    std::ostringstream oss;
    const uint8_t ucValue = 65;
    ZelIo::CTextWriter stOut(oss);
    stOut.Wide<unsigned int>(ucValue).Tag(" ").Hex<uint32_t>(255u).Tag(" ").Value(255);
    EXPECT_EQ(oss.str(), "65 ff 255");
    EXPECT_EQ(65u, ZelIo::Num(ucValue));

    std::istringstream iss("300 1a 12");
    ZelIo::CTextReader stIn(iss);
    uint8_t ucNarrow = 0;
    uint16_t unHex = 0;
    int iDecimal = 0;
    stIn.Wide<unsigned int>(ucNarrow).Hex<unsigned long>(unHex).Value(iDecimal);
    EXPECT_EQ(ucNarrow, static_cast<uint8_t>(300));
    EXPECT_EQ(unHex, 0x1A);
    EXPECT_EQ(iDecimal, 12); // base is back to decimal

    // A failed extraction gives the temporary's zero.
    std::istringstream issBad("x");
    uint8_t ucBad = 7;
    ZelIo::CTextReader(issBad).Wide<unsigned int>(ucBad);
    EXPECT_TRUE(issBad.fail());
    EXPECT_EQ(ucBad, 0);
}

TEST(RecordContract, EnumWordReaderConsumesTheComma)
{
    std::istringstream iss("Beta, Next, 5");
    EXPECT_EQ(ZelIo::ReadEnumWord(iss, c_aszKindWords, 3, -1), 1);
    // The usual char read then takes the first letter of the next tag.
    int i = 0;
    ZelIo::CTextReader(iss).Tag(", Next, ").Value(i);
    EXPECT_EQ(i, 5);
    EXPECT_STREQ(ZelIo::EnumWord(2, c_aszKindWords, 3, "Invalid"), "Gamma");
    EXPECT_STREQ(ZelIo::EnumWord(3, c_aszKindWords, 3, "Invalid"), "Invalid");
    EXPECT_STREQ(ZelIo::EnumWord(-1, c_aszKindWords, 3, "Invalid"), "Invalid");
}

TEST(RecordContract, RawSequenceElementsHaveTheirOwnBoundTest)
{
    std::vector<uint16_t> vecValues = {1, 2, 3};
    unsigned char aucBuffer[10];
    uint64_t ulOffset = 0;
    ZelIo::CBinWriter stOut(aucBuffer, sizeof(aucBuffer), &ulOffset);
    ASSERT_TRUE(stOut.Begin(10));
    stOut.RawSequence(vecValues);
    EXPECT_TRUE(stOut.End(10));
    const uint32_t ulCount = 3;
    EXPECT_EQ(std::memcmp(aucBuffer, &ulCount, 4), 0);

    ZelTest::CRecordingHook Hook;
    std::vector<uint16_t> vecBack;
    ZelIo::CBinReader stIn(aucBuffer, 9, &ulOffset);
    ASSERT_TRUE(stIn.Begin(4));
    EXPECT_FALSE(stIn.RawSequence(vecBack));
    EXPECT_EQ(vecBack.size(), 3u);
    EXPECT_EQ(vecBack[1], 2);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");
    EXPECT_EQ(ulOffset, 8u);
}

TEST(RecordContract, ExtHelpers)
{
    ZelTest::CRecordingHook Hook;
    unsigned char aucImage[12] = {};
    EXPECT_TRUE(ZelIo::ExtFits(aucImage, 12, 12));
    EXPECT_FALSE(ZelIo::ExtFits(aucImage, 11, 12));
    EXPECT_FALSE(ZelIo::ExtFits(nullptr, 12, 12));
    EXPECT_EQ(Hook.Texts(), ZelTest::Falses(2));
}

namespace
{
enum EFixed : int32_t
{
    FIXED_A = 0
};
enum ELoose
{
    LOOSE_A = 0
};
} // namespace

TEST(RecordContract, RawBoolAndEnumerationsTakeAnyImageValue)
{
    static_assert(ZelIo::IsFixedEnum<EFixed>(), "fixed");
    static_assert(!ZelIo::IsFixedEnum<ELoose>(), "loose");
    static_assert(ZelIo::IsFixedEnum<double>(), "not an enumeration");
    const unsigned char aucImage[5] = {2, 45, 0, 0, 0};
    uint64_t ulOffset = 0;
    ZelIo::CBinReader stIn(aucImage, sizeof(aucImage), &ulOffset);
    bool bFlag = false;
    EFixed eValue = FIXED_A;
    EXPECT_TRUE(stIn.Raw(bFlag));
    EXPECT_TRUE(stIn.Raw(eValue));
    EXPECT_TRUE(bFlag);
    EXPECT_EQ(static_cast<int32_t>(eValue), 45);
}

// ------------------------------------------------------------------ one statement, both directions

TEST(RecordStatement, SizeIsDerivedFromTheStatement)
{
    EXPECT_EQ(10u, STestLeaf().getSize());
    EXPECT_EQ(53u, STestRecord().getSize());
    EXPECT_EQ(83u, Sample().getSize());
}

TEST(RecordStatement, TestKitOnTheSampleRecord)
{
    // Offsets 0 small, 1 time (16), 17 kind, 21 bits, 25 array (24), 49
    // count, 53 leaves of 10 bytes.
    ZelTest::CImage stImage;
    stImage.At(0).U8(200).At(1).Time16(2100 * 7 + 44244, 43200500.0, 1).At(17).I32(2).At(21).U32(0x8001);
    stImage.At(25).F64(1.25).F64(-2.5).F64(3.0).At(49).U32(3);
    stImage.At(53).U16(1).F64(0.5).U16(2).F64(1.5).U16(7).F64(-4.0).At(83);
    EXPECT_EQ(SampleImage(), stImage.Get());
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    STestRecord stTarget = Sample();
    stTarget.ucSmall = 9;
    ZelTest::ExpectCoreImage(Sample(), stImage, stRules, stTarget);
    ZelTest::ExpectTextExact(Sample(),
                             "Small, 200, Time, 2100, 43200.5, Kind, Gamma, Bits, 8001, Arr, 1.25, "
                             "-2.5, 3, VecSize, 3, Leaf, 1, D, 0.5, Leaf, 2, D, 1.5, Leaf, 7, D, -4");
}

TEST(RecordStatement, TagStepsAreDerivedFromTheTagString)
{
    // "A, " is one token; ", B, " a char and a token; ", " a char alone.
    std::istringstream is("Xyz, 1, Wq, 2, 3");
    ZelIo::CTextReader stIn(is);
    int a = 0, b = 0, c = 0;
    stIn.Tag("A, ").Value(a).Tag(", B, ").Value(b).Tag(", ").Value(c);
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(1, a);
    EXPECT_EQ(2, b);
    EXPECT_EQ(3, c);

    // The writer puts the tag strings as they stand.
    std::ostringstream os;
    ZelIo::CTextWriter stOut(os);
    stOut.Tag("A, ").Value(1).Tag(", B, ").Value(2).Tag(", ").Value(3);
    EXPECT_EQ("A, 1, B, 2, 3", os.str());
}

TEST(RecordStatement, WordAfterWhichTheNextTagIsReadByPosition)
{
    // The word takes its comma; the next tag's char read takes the 'N' of
    // "Next," and its token read the rest: the position stays right.
    std::istringstream is("Beta, Next, 5");
    ZelIo::CTextReader stIn(is);
    ETestKind eKind = TESTKIND_ALPHA;
    int i = 0;
    stIn.Word(eKind, c_aszKindWords, "Invalid", TESTKIND_INVALID).Tag(", Next, ").Value(i);
    EXPECT_EQ(TESTKIND_BETA, eKind);
    EXPECT_EQ(5, i);

    std::ostringstream os;
    ZelIo::CTextWriter stOut(os);
    stOut.Word(static_cast<ETestKind>(3), c_aszKindWords, "Invalid")
        .Tag(", ")
        .Word(TESTKIND_INVALID, c_aszKindWords, "Invalid");
    EXPECT_EQ("Invalid, Invalid", os.str());
}

TEST(RecordStatement, VersionGate)
{
    ZelTest::CRecordingHook Hook;
    const unsigned char aucImage[4] = {5, 1, 2, 3};
    EXPECT_TRUE(ZelIo::ExtVersionGate(aucImage, 4, 5, "old", 4));
    EXPECT_TRUE(Hook.Texts().empty());
    EXPECT_FALSE(ZelIo::ExtVersionGate(aucImage, 4, 6, "loadData(X) received old version.", 4));
    EXPECT_EQ(std::vector<std::string>{"loadData(X) received old version."}, Hook.Texts());
    Hook.Clear();
    EXPECT_FALSE(ZelIo::ExtVersionGate(aucImage, 4, 6, nullptr, 4)); // refused silently
    EXPECT_TRUE(Hook.Texts().empty());
    EXPECT_FALSE(ZelIo::ExtVersionGate(aucImage, 0, 5, "old", 4)); // no version byte to look at
    EXPECT_FALSE(ZelIo::ExtVersionGate(aucImage, 3, 5, "old", 4)); // short after the version
    EXPECT_FALSE(ZelIo::ExtVersionGate(nullptr, 4, 5, "old", 4));
    EXPECT_EQ(ZelTest::Falses(3), Hook.Texts());
}

namespace
{
// A map of leaves by a two-field key, and a small Ext record with a version.
struct STestKey
{
    uint8_t ucA = 0;
    uint16_t unB = 0;
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ucA) && io.Reserved(1) && io.Raw(r.unB);
    }
    bool operator<(const STestKey& r) const { return ucA != r.ucA ? ucA < r.ucA : unB < r.unB; }
    bool operator==(const STestKey& r) const { return ucA == r.ucA && unB == r.unB; }
};

struct STestExt
{
    static constexpr uint8_t c_ucVersion = 3;
    float fValue = 0.0f;
    bool bFlag = false;
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Version(c_ucVersion) && io.Raw(r.fValue) && io.Raw(r.bFlag);
    }
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
    {
        return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
    }
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
    {
        return ZelIo::LoadExtVersioned(*this, pBuffer, uiBufferLength, c_ucVersion,
                                       "loadData(STestExt) received old version.");
    }
    bool operator==(const STestExt& r) const { return fValue == r.fValue && bFlag == r.bFlag; }
};
} // namespace

TEST(RecordStatement, ExtRecordThroughTheKit)
{
    STestExt st;
    st.fValue = 1.5f;
    st.bFlag = true;
    ZelTest::CImage stImage;
    stImage.At(0).U8(3).At(1).F32(1.5f).At(5).U8(1).At(6);
    ZelTest::SExtRules stRules;
    stRules.iVersion = 3;
    stRules.strOldVersionText = "loadData(STestExt) received old version.";
    ZelTest::ExpectExtImage(st, stImage, stRules);
}

TEST(RecordStatement, MapEntriesHaveTheirOwnBoundTestAndTheLastValueWins)
{
    std::map<STestKey, double> mapIn;
    EXPECT_EQ(12u, (ZelIo::CBinReader::EntrySize<STestKey, double>()));
    // Two entries with the same key: count 2, then 12 bytes each.
    ZelTest::CImage stImage;
    stImage.U32(2).U8(1).U8(0xEE).U16(7).F64(1.0).U8(1).U8(0).U16(7).F64(2.0);
    uint64_t ulOffset = 0;
    {
        ZelIo::CBinReader stIn(stImage.Get().data(), stImage.Size(), &ulOffset);
        ASSERT_TRUE(stIn.Begin(0));
        EXPECT_TRUE(stIn.Map(mapIn));
        EXPECT_EQ(28u, ulOffset);
    }
    ASSERT_EQ(1u, mapIn.size());
    EXPECT_EQ(2.0, (mapIn[STestKey{1, 7}]));

    // Written back: reserved bytes are zero.
    std::vector<unsigned char> vecOut(16, 0xAA);
    ZelIo::CBinWriter stOut(vecOut.data(), vecOut.size(), &ulOffset);
    ASSERT_TRUE(stOut.Begin(16));
    EXPECT_TRUE(stOut.Map(mapIn));
    EXPECT_EQ(ZelTest::Bytes(ZelTest::CImage().U32(1).U8(1).U8(0).U16(7).F64(2.0)), vecOut);

    // A count beyond the buffer: "false" at the entry where it ends.
    ZelTest::CRecordingHook Hook;
    std::map<STestKey, double> mapShort;
    ZelIo::CBinReader stIn(stImage.Get().data(), 20, &ulOffset);
    ASSERT_TRUE(stIn.Begin(0));
    EXPECT_FALSE(stIn.Map(mapShort));
    EXPECT_EQ(ZelTest::Falses(1), Hook.Texts());
    EXPECT_EQ(16u, ulOffset);
    EXPECT_EQ(1u, mapShort.size());
}

TEST(RecordStatement, OnceOnlyReportUnderThreads)
{
    ZelTest::CRecordingHook Hook;
    std::atomic<int> iReady(0);
    auto fnCheck = [&iReady]
    {
        ++iReady;
        while (iReady.load() < 4)
        {
        }
        for (int i = 0; i < 100; ++i)
        {
            const int iValue = i;
            ZEL_ASSERT_ONCE(iValue < 0);
        }
    };
    // The hook records under no lock: the latch lets one report through.
    std::thread t1(fnCheck), t2(fnCheck), t3(fnCheck), t4(fnCheck);
    t1.join();
    t2.join();
    t3.join();
    t4.join();
    EXPECT_EQ(std::vector<std::string>{"iValue < 0"}, Hook.Texts());
}

TEST(RecordStatement, CheckWithAGivenText)
{
    ZelTest::CRecordingHook Hook;
    const double dDays = 2.0;
    ZEL_ASSERT_TEXT(dDays < 1.0, "std::fabs( DiffAsDays( a, b ) ) < 1.0");
    ZEL_ASSERT_TEXT(dDays > 1.0, "never");
    EXPECT_EQ(std::vector<std::string>{"std::fabs( DiffAsDays( a, b ) ) < 1.0"}, Hook.Texts());
}

TEST(RecordStatement, NotEqualIsTheNegationOfEqual)
{
    STestLeaf a{1, 2.0};
    STestLeaf b{1, 2.0};
    EXPECT_FALSE(a != b);
    b.dValue = 3.0;
    EXPECT_TRUE(a != b);
}

TEST(RecordStatement, ComparisonStyles)
{
    EXPECT_TRUE(AreCloseRel(1.0, 1.0 + 5e-15));
    EXPECT_FALSE(AreCloseRel(1.0, 1.0 + 5e-14));
    EXPECT_TRUE(AreCloseRel(1.0f, 1.0f + 5e-7f));
    EXPECT_FALSE(AreCloseRel(1.0f, 1.0f + 5e-6f));
    EXPECT_TRUE(AreCloseAbs(1.0, 1.0 + 5e-8, 1e-7));
    EXPECT_FALSE(AreCloseAbs(1.0, 1.0 + 2e-7, 1e-7));
    const double dNaN = std::nan("");
    EXPECT_FALSE(AreCloseAbs(dNaN, dNaN, 1.0));
    EXPECT_FALSE(AreClose(dNaN, dNaN, 1.0));
}

// ------------------------------------------------------------------ allocation in proportion to the input

namespace
{
// Bytes allocated by fnRead.
template <class F> uint64_t Allocated(F fnRead)
{
    return ZelTest::CountAllocations(fnRead).ulBytes;
}

uint64_t Bound(uint64_t ulBytes)
{
    return ZelTest::AllocBound(ulBytes);
}
} // namespace

TEST(ReaderAllocation, ForgedCountOfASequence)
{
    std::vector<unsigned char> vecImage = SampleImage();
    const uint32_t ulForged = 0xFFFFFFFFu;
    std::memcpy(&vecImage[49], &ulForged, 4);
    STestRecord st;
    uint64_t ulOffset = 0;
    ZelTest::CRecordingHook Hook;
    bool bOk = true;
    const uint64_t ulBytes =
        Allocated([&] { bOk = st.loadData(vecImage.data(), vecImage.size(), &ulOffset); });
    EXPECT_FALSE(bOk);
    EXPECT_LE(ulBytes, Bound(vecImage.size()));
    EXPECT_EQ(83u, ulOffset);
    EXPECT_EQ(ZelTest::Falses(1), Hook.Texts());
}

TEST(ReaderAllocation, ForgedCountOfRawValues)
{
    const unsigned char aucImage[8] = {0xFF, 0xFF, 0xFF, 0xFF, 1, 0, 2, 0};
    std::vector<uint16_t> vecValues;
    uint64_t ulOffset = 0;
    ZelTest::CRecordingHook Hook;
    bool bOk = true;
    const uint64_t ulBytes = Allocated(
        [&]
        {
            ZelIo::CBinReader stIn(aucImage, sizeof(aucImage), &ulOffset);
            bOk = stIn.RawSequence(vecValues);
        });
    EXPECT_FALSE(bOk);
    EXPECT_LE(ulBytes, Bound(sizeof(aucImage)));
    EXPECT_EQ(8u, ulOffset);
    EXPECT_EQ(3u, vecValues.size());
    EXPECT_EQ(ZelTest::Falses(1), Hook.Texts());
}

TEST(ReaderAllocation, HoldableCountResizesExactly)
{
    // Four leaves announced, three there: 40 bytes would hold four, so the
    // sequence takes the count and the read fails inside the fourth.
    std::vector<unsigned char> vecImage = SampleImage();
    const uint32_t ulCount = 4;
    std::memcpy(&vecImage[49], &ulCount, 4);
    vecImage.resize(vecImage.size() + 5, 0);
    STestRecord st;
    uint64_t ulOffset = 0;
    ZelTest::CRecordingHook Hook;
    EXPECT_FALSE(st.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    EXPECT_EQ(4u, st.vecLeaves.size());
    EXPECT_EQ(83u, ulOffset);
}

TEST(ReaderAllocation, ForgedCountOfATextSequence)
{
    std::istringstream is(
        "Small, 1, Time, 2100, 1.0, Kind, Beta, Bits, 1, Arr, 1, 2, 3, VecSize, 4294967295, "
        "Leaf, 1, D, 0.5");
    STestRecord st;
    const uint64_t ulBytes = Allocated([&] { is >> st; });
    EXPECT_TRUE(is.fail());
    EXPECT_LE(ulBytes, Bound(is.str().size()));
    ASSERT_EQ(ZelIo::TextPresizeMax<STestLeaf>(), st.vecLeaves.size());
    EXPECT_EQ(4096u, ZelIo::TextPresizeMax<STestLeaf>());
    EXPECT_EQ(1, st.vecLeaves[0].unKey);
}

TEST(ReaderAllocation, ForgedCountOfAnExtSequence)
{
    // A 64-bit count of 2^64-1, then two 6-byte Ext images.
    ZelTest::CImage stImage;
    stImage.U64(0xFFFFFFFFFFFFFFFFull).U8(3).F32(1.5f).U8(1).U8(3).F32(2.5f).U8(0);
    std::vector<STestExt> vecRecords;
    uint64_t ulOffset = 0;
    ZelTest::CRecordingHook Hook;
    bool bOk = true;
    const uint64_t ulBytes = Allocated(
        [&]
        {
            ZelIo::CBinReader stIn(stImage.Get().data(), stImage.Size(), &ulOffset);
            bOk = stIn.Begin(0) && stIn.ExtSequence<uint64_t>(vecRecords);
        });
    EXPECT_FALSE(bOk);
    EXPECT_LE(ulBytes, Bound(stImage.Size()));
    // Two read, the third fails where the buffer ends: its own "false" and
    // the sequence's.
    ASSERT_EQ(3u, vecRecords.size());
    EXPECT_EQ(2.5f, vecRecords[1].fValue);
    EXPECT_EQ(ZelTest::Falses(2), Hook.Texts());
    EXPECT_EQ(20u, ulOffset);

    // Written back with its count, sized by the statement.
    vecRecords.pop_back();
    std::vector<unsigned char> vecOut(20, 0xAA);
    ZelIo::CBinWriter stOut(vecOut.data(), vecOut.size(), &ulOffset);
    ASSERT_TRUE(stOut.Begin(20));
    EXPECT_TRUE(stOut.ExtSequence<uint64_t>(vecRecords));
    EXPECT_EQ(ZelTest::Bytes(ZelTest::CImage().U64(2).U8(3).F32(1.5f).U8(1).U8(3).F32(2.5f).U8(0)), vecOut);
    ZelIo::CBinSizer stSizer;
    stSizer.ExtSequence<uint64_t>(vecRecords);
    EXPECT_EQ(20u, stSizer.Size());
}
