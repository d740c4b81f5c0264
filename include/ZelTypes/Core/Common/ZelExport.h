#ifndef ZELTYPES_CORE_COMMON_ZELEXPORT_H
#define ZELTYPES_CORE_COMMON_ZELEXPORT_H

// The library is built with hidden visibility; everything a host may call
// carries this one macro.
#if defined(_WIN32)
#if defined(ZELTYPES_BUILDING)
#define ZELTYPES_API __declspec(dllexport)
#else
#define ZELTYPES_API __declspec(dllimport)
#endif
#else
#define ZELTYPES_API __attribute__((visibility("default")))
#endif

#endif
