#include <ZelTypes/Core/Common/ZelObsInfo.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ZELN;

// Its own process: the catalogue is built at the first GetSysInfo of this
// test, with a recording hook in place, and the tables must be free of defects.
TEST(CatalogueBuild, BuildingReportsNothing)
{
    std::vector<std::string> vecTexts;
    const ZelAssertHandler fnOld = SetAssertHandler(
        [&vecTexts](const char* szExpression, const char*, int)
        {
            vecTexts.push_back(szExpression);
            return true;
        });
    const SSysInfo& rGps = GetSysInfo(ZELSATSYSTEM_GPS);
    SetAssertHandler(fnOld);

    EXPECT_TRUE(vecTexts.empty()) << (vecTexts.empty() ? std::string() : vecTexts.front());
    EXPECT_EQ(ZELSATSYSTEM_GPS, rGps.eSysID);
    EXPECT_EQ(3u, rGps.GetNbFrqs());
    // Built once: the same rows on every later call.
    EXPECT_EQ(&rGps, &GetSysInfo(ZELSATSYSTEM_GPS));
}
