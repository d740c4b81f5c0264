#ifndef ZELTYPES_SRC_CORE_COMMON_ZELSTATICORDER_H
#define ZELTYPES_SRC_CORE_COMMON_ZELSTATICORDER_H

// Static objects of the library come up in a fixed order across translation
// units: the assertion hook (101), the trace hook (102), the static lock
// (103), then the global frequency manager (104). init_priority orders them
// at load and reverses them at unloading, so a check that fails while
// another static is built reaches a valid hook.
#if defined(__GNUC__) || defined(__clang__)
#define ZEL_INIT_PRIORITY(n) __attribute__((init_priority(n)))
#else
#define ZEL_INIT_PRIORITY(n)
#endif

#endif
