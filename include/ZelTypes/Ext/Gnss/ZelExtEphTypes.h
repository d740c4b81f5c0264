#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHTYPES_H

/// \file
/// The broadcast ephemeris family as a whole.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphBeiDou.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphGalileo.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphGlonass.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphGps.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphNavic.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphStates.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphQzss.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphSbas.h>

#endif
