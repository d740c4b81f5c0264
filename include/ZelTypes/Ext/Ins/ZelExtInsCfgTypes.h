#ifndef ZELTYPES_EXT_INS_ZELEXTINSCFGTYPES_H
#define ZELTYPES_EXT_INS_ZELEXTINSCFGTYPES_H

/// \file
/// What an integration filter knows of each sensor that feeds it (where it
/// sits on the body, how it is turned, how fast it reports, how noisy it is,
/// its calibration and the tests of its data), one class per kind of sensor,
/// and the settings of the integration itself. The library does not test a
/// configuration for sense. Images are fixed (count cleared before the bounds
/// test; each member consumes exactly its own size).

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>

#include <cstdint>
#include <istream>
#include <ostream>
#include <type_traits>

namespace ZELN
{

/// The kind of a sensor; numbers the configuration and observation classes alike.
enum EZelInsSensorType : int32_t
{
    eINSSENSOR_IMU = 1,  ///< inertial measurement unit: accelerometer, gyroscope, magnetometer
    eINSSENSOR_IACC = 2, ///< accelerometer triad
    eINSSENSOR_IGYR = 3, ///< gyroscope triad
    eINSSENSOR_MAG = 4,  ///< magnetometer
    eINSSENSOR_POS = 5,  ///< position
    eINSSENSOR_VEL = 6,  ///< velocity
    eINSSENSOR_PVE = 7,  ///< position and velocity
    eINSSENSOR_ACC = 8,  ///< acceleration
    eINSSENSOR_ATT = 9,  ///< attitude
    eINSSENSOR_PASS = 10 ///< passed through, no observation class
};

/// The display name of a sensor kind ("Imu", "Iac", ...); "" for any other value.
ZELTYPES_API const char* GetSensorTypeName(EZelInsSensorType eSensorType);

/// The part common to every sensor's configuration. 82 bytes: usSensorID at
/// 0, stFrq at 2, x_dbD at 26, q_bD at 50.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG
{
public:
    int16_t usSensorID = -1;                  ///< the sensor among the filter's inputs
    SZelInsExpMinMax stFrq{-1.0, -1.0, -1.0}; ///< expected, lowest and highest rate (Hz); -1 unset
    CZelExtVector3d x_dbD;                    ///< position of the device relative to the body (m, body frame)
    CZelExtQuaterniond q_bD;                  ///< rotation between the body and the device frame

    /// Constructs the default state (for a record: holding no data).
    CL_ZELX_INS_SENSOR_CFG() = default;
    /// Copies another object.
    CL_ZELX_INS_SENSOR_CFG(const CL_ZELX_INS_SENSOR_CFG&) = default;
    /// Copies another object into this one.
    CL_ZELX_INS_SENSOR_CFG& operator=(const CL_ZELX_INS_SENSOR_CFG&) = default;
    /// Destroys the object.
    virtual ~CL_ZELX_INS_SENSOR_CFG();

    /// The kind of the sensor; a constant of each class.
    virtual EZelInsSensorType GetSensorType() const = 0;

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.usSensorID) && io.Record(r.stFrq) && io.Record(r.x_dbD) && io.Record(r.q_bD);
    }
    /// Text: the signed identifier, ", x_dbD, " vector at 6 digits,
    /// ", q_bD, " quaternion at 12, ", Frq, " rates at 3; precision 9 after.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.template Wide<int32_t>(r.usSensorID).Tag(", x_dbD, ").Precision(6).Value(r.x_dbD);
        io.Tag(", q_bD, ")
            .Precision(12)
            .Value(r.q_bD)
            .Tag(", Frq, ")
            .Precision(3)
            .Value(r.stFrq)
            .Precision(9);
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

/// usSensorID and stFrq exactly, x_dbD and q_bD by the relative rule of the numeric records.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_CFG& a, const CL_ZELX_INS_SENSOR_CFG& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_CFG& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_CFG& rCfg);

/// The parameters of one measuring axis triad; units those of the sensor's
/// measurements, as the filter defines them. 386 bytes: stochastic vectors at
/// 0, ucAvlPar at 72, test groups at 73, bClbFlag at 289, b at 290, S at 314.
struct ZELTYPES_API SZelInsSensorParams
{
    CZelExtVector3d stMns;     ///< measurement noise
    CZelExtVector3d stBrw;     ///< bias random walk
    CZelExtVector3d stBisd;    ///< bias instability
    uint8_t ucAvlPar = 0;      ///< availability
    SZelInsTrTest stBiasTest;  ///< integrity test of the bias
    SZelInsTrTest stScaleTest; ///< integrity test of the scale
    SZelInsTrTest stMeasTest;  ///< integrity test of the measurement
    bool bClbFlag = false;     ///< calibration present
    CZelExtVector3d b;         ///< calibration bias
    CZelExtMatrix3d S;         ///< calibration matrix

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stMns) && io.Record(r.stBrw) && io.Record(r.stBisd) && io.Raw(r.ucAvlPar) &&
               io.Record(r.stBiasTest) && io.Record(r.stScaleTest) && io.Record(r.stMeasTest) &&
               io.Raw(r.bClbFlag) && io.Record(r.b) && io.Record(r.S);
    }
    /// Text: "StoPar, Mns, " ... at 12 digits, then 9; ", AvlPar, " number;
    /// ", IntPar, " and the three test groups named Bias, Scale, Meas;
    /// ", ClbPar, " flag ", b, " vector ", S, " matrix. A group's name stands
    /// glued in front of its "TrTest", and the group's reader skips that word
    /// itself: the reader takes only the separator before it.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("StoPar, Mns, ").Precision(12).Value(r.stMns).Tag(", Brw, ").Value(r.stBrw);
        io.Tag(", Bisd, ").Value(r.stBisd).Precision(9);
        io.Tag(", AvlPar, ").template Wide<uint32_t>(r.ucAvlPar);
        io.Tag(IO::c_bReading ? ", IntPar, " : ", IntPar, Bias").Value(r.stBiasTest);
        io.Tag(IO::c_bReading ? ", " : ", Scale").Value(r.stScaleTest);
        io.Tag(IO::c_bReading ? ", " : ", Meas").Value(r.stMeasTest);
        io.Tag(", ClbPar, ")
            .template Wide<int32_t>(r.bClbFlag)
            .Tag(", b, ")
            .Value(r.b)
            .Tag(", S, ")
            .Value(r.S);
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

/// Each member by the rule of its type.
ZELTYPES_API bool operator==(const SZelInsSensorParams& a, const SZelInsSensorParams& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsSensorParams& rParams);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsSensorParams& rParams);

/// An inertial measurement unit. 1240 bytes: the parameter sets at 0, 386 and
/// 772, the common part at 1158; the text has the common part first.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_IMU : public CL_ZELX_INS_SENSOR_CFG
{
public:
    SZelInsSensorParams stAcc; ///< accelerometer
    SZelInsSensorParams stGyr; ///< gyroscope
    SZelInsSensorParams stMag; ///< magnetometer

    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_IMU() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_IMU; }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        std::conditional_t<std::is_const<Self>::value, const CL_ZELX_INS_SENSOR_CFG, CL_ZELX_INS_SENSOR_CFG>&
            rBase = r;
        return io.Record(r.stAcc) && io.Record(r.stGyr) && io.Record(r.stMag) && io.Record(rBase);
    }
    /// Text: the common part, then ", Acc, ", ", Gyr, ", ", Mag, " each with its parameter set.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        CL_ZELX_INS_SENSOR_CFG::VisitText(io, r);
        io.Tag(", Acc, ").Value(r.stAcc).Tag(", Gyr, ").Value(r.stGyr).Tag(", Mag, ").Value(r.stMag);
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

/// The common part, then the three parameter sets.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_CFG_IMU& a, const CL_ZELX_INS_SENSOR_CFG_IMU& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_SENSOR_CFG_IMU& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_SENSOR_CFG_IMU& rCfg);

/// An accelerometer triad; image and text are those of the common part.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_IACC : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Parameters of the accelerometer triad; compared, not part of image or text.
    SZelInsSensorParams stAcc;
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_IACC() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_IACC; }
};

/// A gyroscope triad; image and text are those of the common part.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_IGYR : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Parameters of the gyroscope triad; compared, not part of image or text.
    SZelInsSensorParams stGyr;
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_IGYR() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_IGYR; }
};

/// A magnetometer; image and text are those of the common part.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_MAG : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Parameters of the magnetometer; compared, not part of image or text.
    SZelInsSensorParams stMag;
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_MAG() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_MAG; }
};

/// The common part, then the parameter set.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_CFG_IACC& a, const CL_ZELX_INS_SENSOR_CFG_IACC& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_CFG_IGYR& a, const CL_ZELX_INS_SENSOR_CFG_IGYR& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const CL_ZELX_INS_SENSOR_CFG_MAG& a, const CL_ZELX_INS_SENSOR_CFG_MAG& b);

/// A position sensor; like the classes below, its configuration is the common part alone.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_POS : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_POS() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_POS; }
};
/// A velocity sensor; the common part alone.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_VEL : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_VEL() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_VEL; }
};
/// A position and velocity sensor; the common part alone.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_PVE : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_PVE() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_PVE; }
};
/// An acceleration sensor; the common part alone.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_ACC : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_ACC() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_ACC; }
};
/// An attitude sensor; the common part alone.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_ATT : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_ATT() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_ATT; }
};
/// A sensor passed through, with no observation class; the common part alone.
class ZELTYPES_API CL_ZELX_INS_SENSOR_CFG_PASS : public CL_ZELX_INS_SENSOR_CFG
{
public:
    /// Destroys the object.
    ~CL_ZELX_INS_SENSOR_CFG_PASS() override;
    EZelInsSensorType GetSensorType() const override { return eINSSENSOR_PASS; }
};

/// The settings of the integration filter. 68 bytes: ePosFrame as u32 at 0,
/// stBodyAxes at 4, dMaxPrdTime at 52, dMaxNormInn at 60.
struct ZELTYPES_API SZelInsCfg
{
    EZelInsPosFrame ePosFrame = eINSPOSFRAME_NONE; ///< the positioning frame
    SZelInsBodyAxes stBodyAxes;                    ///< forward and up axes of the body
    double dMaxPrdTime = 0.0;                      ///< longest prediction time (s)
    double dMaxNormInn = 0.0;                      ///< largest normalised innovation (dimensionless)

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.template RawAs<uint32_t>(r.ePosFrame) && io.Record(r.stBodyAxes) && io.Raw(r.dMaxPrdTime) &&
               io.Raw(r.dMaxNormInn);
    }
    /// Text: "PosFrame, " signed short, ", " and the axes ("Fw_B, " vector
    /// ", Up_B, " vector), ", MaxPrdTime, " value ", MaxNormInn, " value.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("PosFrame, ").template Wide<int16_t>(r.ePosFrame).Tag(", ").Value(r.stBodyAxes);
        io.Tag(", MaxPrdTime, ").Value(r.dMaxPrdTime).Tag(", MaxNormInn, ").Value(r.dMaxNormInn);
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

/// ePosFrame, the axes by the vector rule, the two doubles exactly.
ZELTYPES_API bool operator==(const SZelInsCfg& a, const SZelInsCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsCfg& rCfg);

/// The two limits of the filter on their own. 16 bytes.
struct ZELTYPES_API SZelInsCfgLimits
{
    double dMaxPrdTime = 0.0; ///< longest prediction time (s)
    double dMaxNormInn = 0.0; ///< largest normalised innovation (dimensionless)

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.dMaxPrdTime) && io.Raw(r.dMaxNormInn);
    }
    /// Text: "MaxPrdTime, " value ", MaxNormInn, " value.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("MaxPrdTime, ").Value(r.dMaxPrdTime).Tag(", MaxNormInn, ").Value(r.dMaxNormInn);
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

/// Both exactly.
ZELTYPES_API bool operator==(const SZelInsCfgLimits& a, const SZelInsCfgLimits& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsCfgLimits& rLimits);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsCfgLimits& rLimits);

} // namespace ZELN

#endif
