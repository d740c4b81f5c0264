// The registry of record kinds: every public record with a binary form is
// in it, and every registered kind round-trips a default and a sample
// through its image and its text.

#include "ZelRecordRegistry.h"
#include "ZelTestHooks.h"

#include <gtest/gtest.h>

#include <dirent.h>

#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using ZelTools::IRecordBox;
using ZelTools::RecordKinds;

// The image of a record read back into a default one gives an equal record,
// with the count of a Core reader equal to the size.
void ExpectImageRoundTrip(const IRecordBox& rRecord, const ZelTools::SRecordKind& rKind)
{
    std::vector<unsigned char> vecImage;
    ASSERT_TRUE(rRecord.Save(vecImage));
    ASSERT_EQ(rRecord.Size(), vecImage.size());
    std::unique_ptr<IRecordBox> pBack = rKind.fnMake();
    uint64_t ulCount = 0;
    EXPECT_TRUE(pBack->Load(vecImage.data(), vecImage.size(), &ulCount));
    if (rKind.eFamily == ZelTools::eFAMILY_CORE)
    {
        EXPECT_EQ(vecImage.size(), ulCount);
    }
    EXPECT_TRUE(pBack->Equals(rRecord));
}

// The text read back into a default record writes the same line again.
void ExpectTextRoundTrip(const IRecordBox& rRecord, const ZelTools::SRecordKind& rKind)
{
    if (!rRecord.HasText())
    {
        return;
    }
    std::ostringstream os;
    rRecord.WriteText(os);
    ASSERT_FALSE(os.str().empty());
    std::istringstream is(os.str());
    std::unique_ptr<IRecordBox> pBack = rKind.fnMake();
    pBack->ReadText(is);
    EXPECT_FALSE(is.fail()) << os.str();
    std::ostringstream osAgain;
    pBack->WriteText(osAgain);
    EXPECT_EQ(os.str(), osAgain.str());
}

} // namespace

TEST(Registry, EveryKindRoundTripsADefaultAndASample)
{
    ASSERT_FALSE(RecordKinds().empty());
    for (const ZelTools::SRecordKind& rKind : RecordKinds())
    {
        SCOPED_TRACE(rKind.strName);
        ZelTest::CRecordingHook stHook;
        const std::unique_ptr<IRecordBox> pDefault = rKind.fnMake();
        const std::unique_ptr<IRecordBox> pSample = rKind.fnSample();
        ExpectImageRoundTrip(*pSample, rKind);
        ExpectTextRoundTrip(*pSample, rKind);
        EXPECT_EQ(0u, stHook.Count()) << ::testing::PrintToString(stHook.Texts());
        // Some equalities report a comparison of two different satellites.
        EXPECT_FALSE(pSample->Equals(*pDefault)) << "the sample differs from the default";
        // A default record may be one whose writer reports (a satellite of
        // no system, say): only its reading back is asked of it.
        std::vector<unsigned char> vecImage;
        if (pDefault->Save(vecImage))
        {
            std::unique_ptr<IRecordBox> pBack = rKind.fnMake();
            uint64_t ulCount = 0;
            EXPECT_TRUE(pBack->Load(vecImage.data(), vecImage.size(), &ulCount));
        }
    }
}

TEST(Registry, NamesAreUniqueAndFound)
{
    std::set<std::string> setNames;
    for (const ZelTools::SRecordKind& rKind : RecordKinds())
    {
        EXPECT_TRUE(setNames.insert(rKind.strName).second) << rKind.strName;
        EXPECT_EQ(&rKind, ZelTools::FindRecordKind(rKind.strName));
    }
    EXPECT_EQ(nullptr, ZelTools::FindRecordKind("NoSuchRecord"));
}

namespace
{
// The public headers under a directory, recursively.
void ListHeaders(const std::string& strDir, std::vector<std::string>& rvecFiles)
{
    DIR* pDir = opendir(strDir.c_str());
    if (pDir == nullptr)
    {
        return;
    }
    while (const dirent* pEntry = readdir(pDir))
    {
        const std::string strName = pEntry->d_name;
        if (strName == "." || strName == "..")
        {
            continue;
        }
        const std::string strPath = strDir + "/" + strName;
        if (strName.size() > 2 && strName.compare(strName.size() - 2, 2, ".h") == 0)
        {
            rvecFiles.push_back(strPath);
        }
        else
        {
            ListHeaders(strPath, rvecFiles);
        }
    }
    closedir(pDir);
}
} // namespace

TEST(Registry, EveryPublicRecordWithAnImageIsRegistered)
{
    std::vector<std::string> vecHeaders;
    ListHeaders(ZELTYPES_INCLUDE_DIR, vecHeaders);
    ASSERT_FALSE(vecHeaders.empty());
    // The class or structure a saveData declaration belongs to is the last
    // exported one opened before it.
    const std::regex reType(R"(^(?:class|struct)\s+ZELTYPES_API\s+(\w+))");
    const std::regex reSave(R"(\bbool\s+saveData\s*\()");
    std::set<std::string> setWithImage;
    for (const std::string& strFile : vecHeaders)
    {
        std::ifstream ifs(strFile);
        std::string strLine;
        std::string strCurrent;
        std::smatch m;
        while (std::getline(ifs, strLine))
        {
            if (std::regex_search(strLine, m, reType))
            {
                strCurrent = m[1];
            }
            else if (std::regex_search(strLine, reSave) && !strCurrent.empty())
            {
                setWithImage.insert(strCurrent);
            }
        }
    }
    EXPECT_GE(setWithImage.size(), 20u);
    // Abstract common parts: no record of them can be made; their images
    // stand inside every registered record derived from them.
    const std::set<std::string> setAbstract = {"CL_ZELX_INS_SENSOR_CFG", "CL_ZELX_INS_SENSOR_OBS",
                                              "ZELX_SAT_ALMANAC_COMMON"};
    for (const std::string& strName : setWithImage)
    {
        if (setAbstract.count(strName) != 0)
        {
            continue;
        }
        EXPECT_NE(nullptr, ZelTools::FindRecordKind(strName)) << strName << " is missing from the registry";
    }
}
