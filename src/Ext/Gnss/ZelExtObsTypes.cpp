#include <ZelTypes/Ext/Gnss/ZelExtObsTypes.h>

#include <ZelTypes/Core/Common/ZelRecordIO.h>

namespace ZELN
{

bool SZelObsInfo::operator==(const SZelObsInfo& rhs) const
{
    return stStaticSince == rhs.stStaticSince && ucTimeStatus == rhs.ucTimeStatus &&
           unObsFlags == rhs.unObsFlags && ucDataFlags == rhs.ucDataFlags &&
           ucStationType == rhs.ucStationType && ulStationId == rhs.ulStationId;
}

std::ostream& operator<<(std::ostream& os, const SZelObsInfo& rstObsInfo)
{
    return ZelIo::WriteText(os, rstObsInfo);
}

std::istream& operator>>(std::istream& is, SZelObsInfo& rstObsInfo)
{
    return ZelIo::ReadText(is, rstObsInfo);
}

std::ostream& operator<<(std::ostream& os, const ZelExtObsEpoch& rstExtEpoch)
{
    return ZelIo::WriteText(os, rstExtEpoch);
}

std::istream& operator>>(std::istream& is, ZelExtObsEpoch& rstExtEpoch)
{
    return ZelIo::ReadText(is, rstExtEpoch);
}

} // namespace ZELN
