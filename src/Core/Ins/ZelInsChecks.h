#ifndef ZELTYPES_SRC_CORE_INS_ZELINSCHECKS_H
#define ZELTYPES_SRC_CORE_INS_ZELINSCHECKS_H

// Checks of the inertial computations, which run at filter rate and must not
// flood a host: each check site has its own latch and reports at most once
// per process. Two kinds:
// - ZEL_ASSERT_ONCE (ZelAssert.h): the first failure reports;
// - ZEL_INS_CHECK_FIRST: the first pass through the site decides; the
//   condition is evaluated on that pass only, and a later failure is silent.
// The latches are atomic: under several threads exactly one of them passes
// first, and a race costs no second report.

#include <ZelTypes/Core/Common/ZelAssert.h>

#define ZEL_INS_CHECK_FIRST(bCondition, szText)                                                              \
    do                                                                                                       \
    {                                                                                                        \
        static ::ZELN::CZelOnceLatch s_zelFirstPass;                                                         \
        if (s_zelFirstPass.First())                                                                          \
        {                                                                                                    \
            ZEL_ASSERT_TEXT(bCondition, szText);                                                             \
        }                                                                                                    \
    } while (false)

#endif
