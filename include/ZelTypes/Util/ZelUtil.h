#ifndef ZELTYPES_UTIL_ZELUTIL_H
#define ZELTYPES_UTIL_ZELUTIL_H

/// @file
/// The whole utility layer (library ZelTypes::Util, libZelTypesUtil.so):
/// checked construction and text forms of time, signal lookup by RINEX
/// observation code, degree forms of the coordinate conversions.

#include <ZelTypes/Util/ZelCoordUtil.h>
#include <ZelTypes/Util/ZelSignalUtil.h>
#include <ZelTypes/Util/ZelTimeUtil.h>

#endif
