#include <ZelTypes/ZelTypesAll.h>

#include <gtest/gtest.h>

// The umbrella header compiles on its own, as the first include of a unit.
TEST(Umbrella, CompilesAlone)
{
    ZELN::SMjdTime stTime;
    EXPECT_TRUE(stTime.isValid());
}
