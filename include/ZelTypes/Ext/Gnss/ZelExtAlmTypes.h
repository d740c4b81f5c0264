#ifndef ZELTYPES_EXT_GNSS_ZELEXTALMTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTALMTYPES_H

/// \file
/// The almanac family and the system-wide broadcast data beside it: UTC
/// parameters, leap seconds, time offsets and ionosphere coefficients.

#include <ZelTypes/Ext/Gnss/ZelExtAlmanac.h>
#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>

#endif
