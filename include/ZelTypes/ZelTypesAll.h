#ifndef ZELTYPES_ZELTYPESALL_H
#define ZELTYPES_ZELTYPESALL_H

// Every public header of the library.
#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>
#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelFrequencyManager.h>
#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>
#include <ZelTypes/Core/Common/ZelLock.h>
#include <ZelTypes/Core/Common/ZelNovAtelBestPos.h>
#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/ZelObsInfo.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelSSRTypes.h>
#include <ZelTypes/Core/Common/ZelSSRTypesSerialization.h>
#include <ZelTypes/Core/Common/ZelTimeBlockIO.h>
#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/ZelTypesKlob.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>
#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Core/Ins/ZelInsGenericState.h>
#include <ZelTypes/Core/Ins/ZelInsObservable.h>
#include <ZelTypes/Core/Ins/ZelInsStates.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Core/Ins/ZelInsTypesImpl.h>
#include <ZelTypes/Core/Ins/ZelInsUtilities.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtAlmTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtAuxTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtPosResultTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsCfgTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>
#include <ZelTypes/Platform/OmtTime.h>

#endif
