#include "FuzzSeeds.h"
#include "ZelSamplesIns.h"

#include <sstream>

namespace
{

using namespace ZELN;

// The selector byte, then the record's image.
template <class R> std::string Image(char cSelector, const R& rRecord)
{
    return std::string(1, cSelector) + ZelFuzz::CoreImage(rRecord);
}

// The selector byte, then the record's text.
template <class R> std::string Line(char cSelector, const R& rRecord)
{
    std::ostringstream oss;
    oss << cSelector << rRecord;
    return oss.str();
}

CL_ZELX_INS_SENSOR_OBS_ACC SampleAcc()
{
    CL_ZELX_INS_SENSOR_OBS_ACC st;
    ZelSample::FillInsObsBase(st);
    st.stObs = ZelSample::InsVectorObs(1.0);
    return st;
}

// Selectors as in fuzz_ins_load.cpp and fuzz_ins_text.cpp.
ZelFuzz::SSeedRegistrar s_Load("fuzz_ins_load",
                               []
                               {
                                   std::vector<std::string> vec;
                                   vec.push_back(Image(0, ZelSample::InsVector()));
                                   vec.push_back(Image(1, ZelSample::InsQuaternion()));
                                   vec.push_back(Image(2, ZelSample::InsMatrix()));
                                   vec.push_back(Image(3, ZelSample::InsSymMatrix()));
                                   vec.push_back(Image(4, ZelSample::InsBodyAxes()));
                                   vec.push_back(Image(5, ZelSample::InsVarLever()));
                                   vec.push_back(Image(6, ZelSample::InsTrTest()));
                                   vec.push_back(Image(7, ZelSample::InsExpMinMax()));
                                   vec.push_back(Image(8, ZelSample::InsCfgPos()));
                                   vec.push_back(Image(9, ZelSample::InsSensorParams(1.0)));
                                   vec.push_back(Image(10, ZelSample::InsCfgImu()));
                                   vec.push_back(Image(11, ZelSample::InsCfg()));
                                   vec.push_back(Image(12, ZelSample::InsCfgLimits()));
                                   vec.push_back(Image(13, ZelSample::InsVectorObs(1.0)));
                                   vec.push_back(Image(14, SampleAcc()));
                                   vec.push_back(Image(15, ZelSample::InsObsImu()));
                                   vec.push_back(Image(16, ZelSample::InsObsPos()));
                                   vec.push_back(Image(17, ZelSample::InsObsVel()));
                                   vec.push_back(Image(18, ZelSample::InsObsPve()));
                                   vec.push_back(Image(19, ZelSample::InsResult()));
                                   vec.push_back(Image(20, ZelSample::InsResPosState()));
                                   vec.push_back(Image(21, ZelSample::InsResStateEx()));
                                   vec.push_back(Image(22, ZelSample::InsResHeader()));
                                   vec.push_back(Image(23, ZelSample::InsResRecord()));
                                   return vec;
                               });

ZelFuzz::SSeedRegistrar s_Text("fuzz_ins_text",
                               []
                               {
                                   std::vector<std::string> vec;
                                   vec.push_back(Line(0, ZelSample::InsVector()));
                                   vec.push_back(Line(1, ZelSample::InsQuaternion()));
                                   vec.push_back(Line(2, ZelSample::InsMatrix()));
                                   vec.push_back(Line(3, ZelSample::InsSymMatrix()));
                                   vec.push_back(Line(4, ZelSample::InsBodyAxes()));
                                   vec.push_back(Line(5, ZelSample::InsVarLever()));
                                   vec.push_back(Line(6, ZelSample::InsTrTest()));
                                   vec.push_back(Line(7, ZelSample::InsExpMinMax()));
                                   vec.push_back(Line(8, ZelSample::InsCfgPos()));
                                   vec.push_back(Line(9, ZelSample::InsSensorParams(1.0)));
                                   vec.push_back(Line(10, ZelSample::InsCfgImu()));
                                   vec.push_back(Line(11, ZelSample::InsCfg()));
                                   vec.push_back(Line(12, ZelSample::InsCfgLimits()));
                                   vec.push_back(Line(13, SampleAcc()));
                                   vec.push_back(Line(14, ZelSample::InsObsImu()));
                                   vec.push_back(Line(15, ZelSample::InsObsPos()));
                                   vec.push_back(Line(16, ZelSample::InsObsVel()));
                                   vec.push_back(Line(17, ZelSample::InsObsPve()));
                                   vec.push_back(Line(18, ZelSample::InsResult()));
                                   vec.push_back(Line(19, ZelSample::InsResPosState()));
                                   vec.push_back(Line(20, ZelSample::InsResStateEx()));
                                   vec.push_back(Line(21, ZelSample::InsResHeader()));
                                   vec.push_back(Line(22, ZelSample::InsResRecord()));
                                   return vec;
                               });

} // namespace
