// The record contract, exercised through test-local records that use the
// shared helpers the way every record of the library does.
#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <vector>

using namespace ZELN;

namespace
{

// A fixed-size leaf: 2 + 8 bytes.
struct STestLeaf
{
    uint16_t unKey = 0;
    double dValue = 0.0;

    uint64_t getSize() const { return 10; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
        if (!stOut.BeginLeaf(getSize()))
        {
            return false;
        }
        stOut.Raw(unKey);
        stOut.Raw(dValue);
        return stOut.End(getSize());
    }
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
        if (!stIn.BeginLeaf(getSize()))
        {
            return false;
        }
        stIn.Raw(unKey);
        stIn.Raw(dValue);
        return stIn.End(getSize());
    }
    bool operator==(const STestLeaf& r) const { return unKey == r.unKey && dValue == r.dValue; }
    bool operator<(const STestLeaf& r) const { return unKey < r.unKey; }
};

std::ostream& operator<<(std::ostream& os, const STestLeaf& r)
{
    return os << "Leaf, " << r.unKey << ", D, " << r.dValue;
}

std::istream& operator>>(std::istream& is, STestLeaf& r)
{
    ZelIo::SkipTag(is);
    is >> r.unKey;
    ZelIo::SkipSeparator(is);
    return is >> r.dValue;
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

    uint64_t getSize() const
    {
        uint64_t ulSize = 1 + stTime.getSize() + 4 + 4 + 3 * 8 + 4;
        for (const auto& r : vecLeaves)
        {
            ulSize += r.getSize();
        }
        return ulSize;
    }

    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        ZelIo::CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
        if (!stOut.Begin(getSize()))
        {
            return false;
        }
        stOut.Raw(ucSmall);
        if (!stOut.Record(stTime))
        {
            return false;
        }
        stOut.RawAs<int32_t>(eKind);
        stOut.Raw(ebfBits);
        stOut.Raw(adArr);
        if (!stOut.Sequence(vecLeaves))
        {
            return false;
        }
        return stOut.End(getSize());
    }

    // The bounds test looks at the present content; the size is worked out
    // again after loading.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        ZelIo::CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
        if (!stIn.Begin(getSize()))
        {
            return false;
        }
        stIn.Raw(ucSmall);
        if (!stIn.Record(stTime))
        {
            return false;
        }
        stIn.RawAs<int32_t>(eKind);
        stIn.Raw(ebfBits);
        stIn.Raw(adArr);
        if (!stIn.Sequence(vecLeaves))
        {
            return false;
        }
        std::sort(vecLeaves.begin(), vecLeaves.end());
        return stIn.End(getSize());
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
    os << "Small, " << ZelIo::Num(r.ucSmall) << ", Time, " << r.stTime << ", Kind, "
       << ZelIo::EnumWord(r.eKind, c_aszKindWords, 3, "Invalid") << ", Bits, ";
    ZelIo::WriteHex(os, r.ebfBits);
    os << ", Arr, " << std::setprecision(3);
    ZelIo::WriteArray(os, r.adArr, 3);
    os << ", VecSize, " << r.vecLeaves.size();
    for (const auto& rLeaf : r.vecLeaves)
    {
        os << ", " << rLeaf;
    }
    return os;
}

std::istream& operator>>(std::istream& is, STestRecord& r)
{
    ZelIo::SkipTag(is);
    ZelIo::ReadAs<unsigned int>(is, r.ucSmall);
    ZelIo::SkipSeparator(is);
    is >> r.stTime;
    ZelIo::SkipSeparator(is);
    r.eKind = static_cast<ETestKind>(ZelIo::ReadEnumWord(is, c_aszKindWords, 3, TESTKIND_INVALID));
    ZelIo::SkipSeparator(is);
    ZelIo::ReadHex<uint64_t>(is, r.ebfBits);
    ZelIo::SkipSeparator(is);
    ZelIo::ReadArray(is, r.adArr, 3);
    ZelIo::SkipSeparator(is);
    size_t ulCount = 0;
    is >> ulCount;
    if (is.fail())
    {
        return is;
    }
    r.vecLeaves.resize(std::min<size_t>(ulCount, 1000));
    for (auto& rLeaf : r.vecLeaves)
    {
        ZelIo::SkipComma(is);
        is >> rLeaf;
    }
    return is;
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
    ASSERT_EQ(st.vecLeaves.size(), 3u); // resized to the count
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
    EXPECT_EQ(st.vecLeaves.size(), 1000u);
    EXPECT_EQ(ulOffset, 83u);
    EXPECT_EQ(Hook.Count(), 1u);
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
    oss << ZelIo::Num(ucValue) << " ";
    ZelIo::WriteHex(oss, 255u);
    oss << " " << 255;
    EXPECT_EQ(oss.str(), "65 ff 255");

    std::istringstream iss("300 1a 12");
    uint8_t ucNarrow = 0;
    ZelIo::ReadAs<unsigned int>(iss, ucNarrow);
    EXPECT_EQ(ucNarrow, static_cast<uint8_t>(300));
    uint16_t unHex = 0;
    ZelIo::ReadHex<unsigned long>(iss, unHex);
    EXPECT_EQ(unHex, 0x1A);
    int iDecimal = 0;
    iss >> iDecimal; // base is back to decimal
    EXPECT_EQ(iDecimal, 12);

    // A failed extraction gives the temporary's zero.
    std::istringstream issBad("x");
    uint8_t ucBad = 7;
    ZelIo::ReadAs<unsigned int>(issBad, ucBad);
    EXPECT_TRUE(issBad.fail());
    EXPECT_EQ(ucBad, 0);
}

TEST(RecordContract, EnumWordReaderConsumesTheComma)
{
    std::istringstream iss("Beta, Next, 5");
    EXPECT_EQ(ZelIo::ReadEnumWord(iss, c_aszKindWords, 3, -1), 1);
    // The usual char read then takes the first letter of the next tag.
    ZelIo::SkipSeparator(iss);
    int i = 0;
    iss >> i;
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
    EXPECT_EQ(Hook.Count(), 2u);
    ZelIo::PutAt(aucImage, 0, static_cast<uint8_t>(6));
    ZelIo::PutAt(aucImage, 1, 2.5);
    ZelIo::PutAt(aucImage, 9, static_cast<uint16_t>(0x1234));
    EXPECT_EQ(aucImage[0], 6);
    EXPECT_EQ(aucImage[9], 0x34);
    EXPECT_EQ(aucImage[10], 0x12);
    double d = 0.0;
    ZelIo::GetAt(aucImage, 1, d);
    EXPECT_EQ(d, 2.5);
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
    bool bAt = false;
    ZelIo::GetAt(aucImage, 0, bAt);
    EXPECT_TRUE(bAt);
}
