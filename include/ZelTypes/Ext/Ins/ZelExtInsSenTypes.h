#ifndef ZELTYPES_EXT_INS_ZELEXTINSSENTYPES_H
#define ZELTYPES_EXT_INS_ZELEXTINSSENTYPES_H

/// \file
/// Time-tagged sensor measurements with their covariances, one class per kind
/// of sensor, as they cross the library boundary. Images are fixed (count
/// cleared before the bounds test; each member consumes exactly its own
/// size); in the derived classes the members stand first and the common part
/// last. In the texts a time is GPS week and milliseconds of the week.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Ext/Ins/ZelExtInsCfgTypes.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>

#include <cstdint>
#include <istream>
#include <ostream>
#include <type_traits>

namespace ZELN
{

/// A measured vector and its covariance, in the unit of the measurement (and
/// its square). 72 bytes: Value at 0, Covariance at 24. No text of its own:
/// the classes write value and covariance under their own tags.
struct ZELTYPES_API SZelInsVectorObs
{
    /// The measured vector.
    CZelExtVector3d Value;
    /// Its covariance, lower triangle packed.
    CZelExtSymMatrix3d Covariance;

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.Value) && io.Record(r.Covariance);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Value, then covariance, by the relative rule of the numeric records.
ZELTYPES_API bool operator==(const SZelInsVectorObs& a, const SZelInsVectorObs& b);

/// The part common to every observation. 30 bytes: usSensorID at 0, stTime
/// as its 24-byte memory layout at 2, usField1 at 26, usField2 at 28.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS
{
public:
    int16_t usSensorID = -1; ///< the sensor, as in its configuration
    SMjdTime stTime;         ///< time of the measurement
    uint16_t usField1 = 0;   ///< carried through, never interpreted here
    uint16_t usField2 = 0;   ///< carried through, never interpreted here

    /// Constructs the default state (for a record: holding no data).
    CL_ZELX_INS_SENSOR_OBS() = default;
    /// Copies another object.
    CL_ZELX_INS_SENSOR_OBS(const CL_ZELX_INS_SENSOR_OBS&) = default;
    /// Copies another object into this one.
    CL_ZELX_INS_SENSOR_OBS& operator=(const CL_ZELX_INS_SENSOR_OBS&) = default;
    /// Destroys the object.
    virtual ~CL_ZELX_INS_SENSOR_OBS();

    /// The kind of the sensor; a constant of each class.
    virtual EZelInsSensorType GetSensorType() const = 0;

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.usSensorID) && ZelInsIo::TimeBlock(io, r.stTime) && io.Raw(r.usField1) &&
               io.Raw(r.usField2);
    }
    /// Text: the signed identifier, ", ", usField1, ", ", the time (week ", "
    /// milliseconds of the week, fixed with 3 decimals), ", ", usField2.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        auto stTimeText = ZelInsIo::GpsMsText(r.stTime);
        io.template Wide<int32_t>(r.usSensorID).Tag(", ").template Wide<uint32_t>(r.usField1).Tag(", ");
        io.Fixed().Precision(3).Value(stTimeText).Tag(", ").template Wide<uint32_t>(r.usField2);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// usSensorID, the time by the earlier-than test both ways, the two carried fields.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS& a, const CL_ZELX_INS_SENSOR_OBS& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS& rObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS& rObs);

namespace ZelInsIo
{
/// The common part of an observation, as the type of the derived record's
/// statement demands (const or not).
template <class Self>
using TObsBase =
    std::conditional_t<std::is_const<Self>::value, const CL_ZELX_INS_SENSOR_OBS, CL_ZELX_INS_SENSOR_OBS>;
} // namespace ZelInsIo

/// An inertial measurement unit: specific force f_ibB (m/s^2), angular rate
/// w_ibB (rad/s) and magnetic field m_B, body frame, with covariances.
/// 246 bytes: stAcc at 0, stGyr at 72, stMag at 144, common part at 216.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_IMU : public CL_ZELX_INS_SENSOR_OBS
{
public:
    /// Specific force f_ibB (m/s^2) with covariance.
    SZelInsVectorObs stAcc;
    /// Angular rate w_ibB (rad/s) with covariance.
    SZelInsVectorObs stGyr;
    /// Magnetic field m_B (unit of the sensor) with covariance.
    SZelInsVectorObs stMag;

    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_IMU() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_IMU; }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        ZelInsIo::TObsBase<Self>& rBase = r;
        return io.Record(r.stAcc) && io.Record(r.stGyr) && io.Record(r.stMag) && io.Record(rBase);
    }
    /// Text: the common part, then the values and the covariances, each group
    /// at its own precision (8, 16, 3); precision 9 after.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        CL_ZELX_INS_SENSOR_OBS::VisitText(io, r);
        io.Tag(", f_ibB, ")
            .Precision(8)
            .Value(r.stAcc.Value)
            .Tag(", w_ibB, ")
            .Precision(16)
            .Value(r.stGyr.Value);
        io.Tag(", m_B, ").Precision(3).Value(r.stMag.Value);
        io.Tag(", Qf_ibB, ").Precision(8).Value(r.stAcc.Covariance);
        io.Tag(", Qw_ibB, ").Precision(16).Value(r.stGyr.Covariance);
        io.Tag(", Qm_B, ").Precision(3).Value(r.stMag.Covariance).Precision(9);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// The common part, then the three measurements.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_IMU& a, const CL_ZELX_INS_SENSOR_OBS_IMU& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_IMU& rObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_IMU& rObs);

/// A position x_pbP (m, frame P) with its covariance (m^2). 102 bytes: the
/// measurement at 0, common part at 72.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_POS : public CL_ZELX_INS_SENSOR_OBS
{
public:
    /// Position x_pbP (m) with covariance (m^2).
    SZelInsVectorObs stPositionObs;

    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_POS() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_POS; }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        ZelInsIo::TObsBase<Self>& rBase = r;
        return io.Record(r.stPositionObs) && io.Record(rBase);
    }
    /// Text: the common part, ", x_pbP, " at 9 digits, ", Qx_pbP, " at 18; precision 9 after.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        CL_ZELX_INS_SENSOR_OBS::VisitText(io, r);
        io.Tag(", x_pbP, ").Precision(9).Value(r.stPositionObs.Value);
        io.Tag(", Qx_pbP, ").Precision(18).Value(r.stPositionObs.Covariance).Precision(9);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_POS& a, const CL_ZELX_INS_SENSOR_OBS_POS& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_POS& rObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_POS& rObs);

/// A velocity v_pbP (m/s, frame P) with its covariance (m^2/s^2). 102 bytes:
/// the measurement at 0, common part at 72.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_VEL : public CL_ZELX_INS_SENSOR_OBS
{
public:
    /// Velocity v_pbP (m/s) with covariance (m^2/s^2).
    SZelInsVectorObs stVelocityObs;

    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_VEL() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_VEL; }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        ZelInsIo::TObsBase<Self>& rBase = r;
        return io.Record(r.stVelocityObs) && io.Record(rBase);
    }
    /// Text: the common part, ", v_pbP, " at 12 digits, ", Qv_pbP, " at 24; precision 9 after.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        CL_ZELX_INS_SENSOR_OBS::VisitText(io, r);
        io.Tag(", v_pbP, ").Precision(12).Value(r.stVelocityObs.Value);
        io.Tag(", Qv_pbP, ").Precision(24).Value(r.stVelocityObs.Covariance).Precision(9);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_VEL& a, const CL_ZELX_INS_SENSOR_OBS_VEL& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_VEL& rObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_VEL& rObs);

/// A position (m) and a velocity (m/s), frame P, with their covariances; it
/// can be carried forward in time under a constant velocity. 174 bytes:
/// stPositionObs at 0, stVelocityObs at 72, common part at 144.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_PVE : public CL_ZELX_INS_SENSOR_OBS
{
public:
    /// Position (m, frame P) with covariance (m^2).
    SZelInsVectorObs stPositionObs;
    /// Velocity (m/s, frame P) with covariance (m^2/s^2).
    SZelInsVectorObs stVelocityObs;

    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_PVE() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_PVE; }

    /// Carries the position to rstTime: x + dt v, and the position covariance
    /// grows by dt^2 Qv and, on its diagonal, by |dt| dProcessNoise (m^2/s),
    /// in either direction of time. The velocity stays. Nothing changes when
    /// dt is not above 0 in magnitude.
    void PropagateTo(const SMjdTime& rstTime, double dProcessNoise);

    /// Multiplies every element of the position covariance by dPosScale and
    /// of the velocity covariance by dVelScale (dimensionless factors).
    void ScaleCovariance(double dPosScale, double dVelScale);

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        ZelInsIo::TObsBase<Self>& rBase = r;
        return io.Record(r.stPositionObs) && io.Record(r.stVelocityObs) && io.Record(rBase);
    }
    /// Text: the common part, ", x_pbP, " (9 digits), ", v_pbP, " (12),
    /// ", Qx_pbP, " (18), ", Qv_pbP, " (24); precision 9 after.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        CL_ZELX_INS_SENSOR_OBS::VisitText(io, r);
        io.Tag(", x_pbP, ").Precision(9).Value(r.stPositionObs.Value);
        io.Tag(", v_pbP, ").Precision(12).Value(r.stVelocityObs.Value);
        io.Tag(", Qx_pbP, ").Precision(18).Value(r.stPositionObs.Covariance);
        io.Tag(", Qv_pbP, ").Precision(24).Value(r.stVelocityObs.Covariance).Precision(9);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_PVE& a, const CL_ZELX_INS_SENSOR_OBS_PVE& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_OBS_PVE& rObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_OBS_PVE& rObs);

/// An accelerometer triad. Like the three sensors below, one measured vector:
/// image and text are those of the common part; they compare the common part
/// and the measurement.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_IACC : public CL_ZELX_INS_SENSOR_OBS
{
public:
    SZelInsVectorObs stObs; ///< specific force (m/s^2, body frame)
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_IACC() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_IACC; }
};
/// A gyroscope triad: one measured vector, as above.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_IGYR : public CL_ZELX_INS_SENSOR_OBS
{
public:
    SZelInsVectorObs stObs; ///< angular rate (rad/s, body frame)
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_IGYR() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_IGYR; }
};
/// A magnetometer: one measured vector, as above.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_MAG : public CL_ZELX_INS_SENSOR_OBS
{
public:
    SZelInsVectorObs stObs; ///< magnetic field (unit of the sensor, body frame)
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_MAG() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_MAG; }
};
/// An acceleration sensor: one measured vector, as above.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_ACC : public CL_ZELX_INS_SENSOR_OBS
{
public:
    SZelInsVectorObs stObs; ///< acceleration (m/s^2)
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_ACC() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_ACC; }
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_IACC& a, const CL_ZELX_INS_SENSOR_OBS_IACC& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_IGYR& a, const CL_ZELX_INS_SENSOR_OBS_IGYR& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_MAG& a, const CL_ZELX_INS_SENSOR_OBS_MAG& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_ACC& a, const CL_ZELX_INS_SENSOR_OBS_ACC& b);

/// An attitude (quaternion w, x, y, z; default identity) with the covariance
/// of the attitude error (rad^2). Image and text are those of the common part.
class ZELTYPES_API CL_ZELX_INS_SENSOR_OBS_ATT : public CL_ZELX_INS_SENSOR_OBS
{
public:
    /// The attitude, quaternion w, x, y, z.
    CZelExtQuaterniond stAttitude;
    /// Covariance of the attitude error (rad^2), lower triangle packed.
    CZelExtSymMatrix3d stCovariance;
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_OBS_ATT() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_ATT; }
};

/// The common part, the attitude, then its covariance.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_OBS_ATT& a, const CL_ZELX_INS_SENSOR_OBS_ATT& b);

} // namespace ZELN

#endif
