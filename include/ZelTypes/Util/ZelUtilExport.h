#ifndef ZELTYPES_UTIL_ZELUTILEXPORT_H
#define ZELTYPES_UTIL_ZELUTILEXPORT_H

// The utility layer is built with hidden visibility, as the core library;
// everything a caller may use carries this macro.
#if defined(_WIN32)
#if defined(ZELTYPES_UTIL_BUILDING)
#define ZELTYPES_UTIL_API __declspec(dllexport)
#else
#define ZELTYPES_UTIL_API __declspec(dllimport)
#endif
#else
#define ZELTYPES_UTIL_API __attribute__((visibility("default")))
#endif

#endif
