#ifndef ZELTYPES_CORE_COMMON_ZELSSRTYPESSERIALIZATION_H
#define ZELTYPES_CORE_COMMON_ZELSSRTYPESSERIALIZATION_H

/// \file
/// The binary form of an SSR message known only by its base: the concrete
/// classes are tried in the order SSRPCVMsgT, SSRHighRateClockMsgT,
/// SSRURAMsgT, SSRPhaseBiasMsgT, SSRCodeBiasMsgT, SSRSignalMsgT,
/// SSRClockCorrMsgT, SSROrbitCorrMsgT, and the first that matches serves. Any
/// other class reports "Unsupported Type!".

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelSSRTypes.h>

#include <cstdint>

namespace ZELN
{

/// Bytes of the message's image; 0 for an unsupported class.
ZELTYPES_API uint64_t getSize(const SSRCorrMsgBaseT& rstMsg);

/// The message's own writer; false for an unsupported class.
ZELTYPES_API bool saveData(const SSRCorrMsgBaseT& rstMsg, unsigned char* pBuffer, uint64_t uiBufferLength,
                           uint64_t* pulOffset);

/// The message's own reader; false for an unsupported class.
ZELTYPES_API bool loadData(SSRCorrMsgBaseT& rstMsg, const unsigned char* pBuffer, uint64_t uiBufferLength,
                           uint64_t* pulOffset);

} // namespace ZELN

#endif
