#include "demo_ins.h"

#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>
#include <ZelTypes/Ext/Ins/ZelExtInsResTypes.h>

#include <Eigen/Geometry>

#include <cmath>
#include <iomanip>

using namespace ZELN;

namespace
{

constexpr double c_dDeg = 3.14159265358979323846 / 180.0;

// A result of the filter at a position near Zurich (earth-fixed, m), with
// the body at heading dHeadingDeg, nose up by 2 deg, moving at 15 m/s along
// its heading.
CL_ZELX_INS_RES_POS_STATE MakeResult(const SMjdTime& rstTime, double dNorthOffset, double dHeadingDeg)
{
    const Eigen::Vector3d oPos(4283000.0, 654000.0, 4663000.0 + dNorthOffset);
    Eigen::Vector3d oEast, oNorth, oUp;
    GetLocalAxes(oPos, oEast, oNorth, oUp, eINSPOSFRAME_EARTH, c_dINS_E2);

    // Body forward x, up z; the heading counts from north towards east.
    const double dPsi = dHeadingDeg * c_dDeg;
    const double dPitch = 2.0 * c_dDeg;
    const Eigen::Vector3d oHorizontal = std::sin(dPsi) * oEast + std::cos(dPsi) * oNorth;
    const Eigen::Vector3d oForward = std::cos(dPitch) * oHorizontal + std::sin(dPitch) * oUp;
    const Eigen::Vector3d oBodyUp = std::cos(dPitch) * oUp - std::sin(dPitch) * oHorizontal;
    Eigen::Matrix3d oBodyToEarth;
    oBodyToEarth.col(0) = oForward;
    oBodyToEarth.col(1) = oBodyUp.cross(oForward);
    oBodyToEarth.col(2) = oBodyUp;

    CL_ZELX_INS_RES_POS_STATE st;
    st.stTime = rstTime;
    st.usSensorID = 1;
    st.ePosFrame = eINSPOSFRAME_EARTH;
    st.x_pbP = ToExtVector(oPos);
    st.Qx_pbP = CZelExtSymMatrix3d(0.04, 0.04, 0.09);
    st.v_pbP = ToExtVector(15.0 * oHorizontal);
    st.Qv_pbP = CZelExtSymMatrix3d(0.0004, 0.0004, 0.0009);
    st.q_bP = ToExtQuaternion(Eigen::Quaterniond(oBodyToEarth));
    st.Qq_bP = CZelExtSymMatrix3d(1e-6, 1e-6, 4e-6);
    st.w_pbP = CZelExtVector3d(0.0, 0.0, 0.0);
    st.Qw_pbP = CZelExtSymMatrix3d(1e-8, 1e-8, 1e-8);
    return st;
}

void ShowAngle(std::ostream& os, const char* szName, const SZelInsAngleVar& rstAngle)
{
    os << "  " << std::left << std::setw(13) << szName << std::right << std::fixed << std::setprecision(3)
       << std::setw(9) << rstAngle.dAngle / c_dDeg << " deg  sigma " << std::setprecision(4)
       << std::sqrt(rstAngle.dVar) / c_dDeg << " deg\n";
}

} // namespace

void DemoIns(std::ostream& os)
{
    os << "\n== inertial results\n";
    const SMjdTime stTimeA(2300u, 345600.0);
    SMjdTime stTimeB = stTimeA;
    stTimeB.AddSeconds(1.0);
    CL_ZELX_INS_RES_POS_STATE stA = MakeResult(stTimeA, 0.0, 30.0);
    CL_ZELX_INS_RES_POS_STATE stB = MakeResult(stTimeB, 11.0, 40.0);
    stB.Qx_pbP = stB.Qx_pbP.GetScaled(2.0); // the later result is the less certain one

    SMjdTime stAt = stTimeA;
    stAt.AddSeconds(0.25);
    CL_ZELX_INS_RES_POS_STATE stMid;
    const unsigned int uiInterpolated = Interpolate(stA, stAt, stB, stMid);
    os << "interpolated a quarter of the way (status " << uiInterpolated << "):\n  " << std::fixed << stMid
       << "\n";

    // The antenna sits 1.2 m ahead of the body origin and 0.8 m above it.
    const unsigned int uiShifted = stMid.ShiftToPoint(CZelExtVector3d(1.2, 0.0, 0.8), 2);
    os << "moved to the antenna (status " << uiShifted << "), sensor " << stMid.usSensorID << ", position "
       << std::setprecision(3) << stMid.x_pbP << " m\n";

    SZelInsAngleVar stTilt, stTiltHeading, stYaw, stCourse;
    const unsigned int uiAngles =
        stMid.GetAttitudeAngles(CZelExtVector3d(1.0, 0.0, 0.0), CZelExtVector3d(0.0, 0.0, 1.0), stTilt,
                                stTiltHeading, stYaw, stCourse);
    os << "attitude angles (status " << uiAngles << "):\n";
    ShowAngle(os, "tilt", stTilt);
    ShowAngle(os, "tilt heading", stTiltHeading);
    ShowAngle(os, "yaw", stYaw);
    ShowAngle(os, "course", stCourse);
    os << std::defaultfloat;
}
