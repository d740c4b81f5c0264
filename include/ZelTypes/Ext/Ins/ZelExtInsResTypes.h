#ifndef ZELTYPES_EXT_INS_ZELEXTINSRESTYPES_H
#define ZELTYPES_EXT_INS_ZELEXTINSRESTYPES_H

/// \file
/// What the integration filter hands out: position, velocity, attitude and
/// angular rate with their covariances, at one time, for one sensor point;
/// with interpolation between two results, the move of a result to another
/// body point and its reduction to tilt, heading and course. Images are fixed
/// (count cleared before the bounds test; each member consumes exactly its
/// own size).

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Core/Ins/ZelInsTools.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>

#include <cstdint>
#include <istream>
#include <ostream>
#include <type_traits>

namespace ZELN
{

/// The time and the sensor point of a result. 26 bytes: stTime as its
/// 24-byte memory layout at 0, usSensorID at 24.
class ZELTYPES_API CL_ZELX_INS_RESULT
{
public:
    SMjdTime stTime;         ///< time of the result
    int16_t usSensorID = -1; ///< the sensor point the result refers to

    /// Constructs the default state (for a record: holding no data).
    CL_ZELX_INS_RESULT() = default;
    /// Copies another object.
    CL_ZELX_INS_RESULT(const CL_ZELX_INS_RESULT&) = default;
    /// Copies another object into this one.
    CL_ZELX_INS_RESULT& operator=(const CL_ZELX_INS_RESULT&) = default;
    /// Destroys the object.
    virtual ~CL_ZELX_INS_RESULT();

    /// Returns stTime.
    const SMjdTime& GetTime() const { return stTime; }
    /// Sets stTime.
    void SetTime(const SMjdTime& rstTime) { stTime = rstTime; }
    /// Returns usSensorID.
    int16_t GetSensorID() const { return usSensorID; }
    /// Sets usSensorID.
    void SetSensorID(int16_t usNewSensorID) { usSensorID = usNewSensorID; }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return ZelInsIo::TimeBlock(io, r.stTime) && io.Raw(r.usSensorID);
    }
    /// Text: the signed identifier, ", ", and at precision 3 the GPS week,
    /// ", " and the milliseconds of the week (no fixed notation of its own);
    /// precision 9 after.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        auto stTimeText = ZelInsIo::GpsMsText(r.stTime);
        io.template Wide<int32_t>(r.usSensorID).Tag(", ").Precision(3).Value(stTimeText).Precision(9);
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

/// The time by the earlier-than test both ways, usSensorID exactly.
ZELTYPES_API bool operator==(const CL_ZELX_INS_RESULT& a, const CL_ZELX_INS_RESULT& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_RESULT& rResult);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_RESULT& rResult);

/// The navigation state of a result in the positioning frame P. 335 bytes:
/// usField1 at 0, ePosFrame at 2, eField2 at 6, usField3 at 10, bShifted at
/// 12, then x_pbP 13, Qx_pbP 37, v_pbP 85, Qv_pbP 109, q_bP 157, Qq_bP 189,
/// w_pbP 237, Qw_pbP 261, and the common part at 309.
class ZELTYPES_API CL_ZELX_INS_RES_POS_STATE : public CL_ZELX_INS_RESULT
{
public:
    CZelExtVector3d x_pbP;                         ///< position of the body (m, frame P)
    CZelExtSymMatrix3d Qx_pbP;                     ///< its covariance (m^2)
    CZelExtVector3d v_pbP;                         ///< velocity (m/s, frame P)
    CZelExtSymMatrix3d Qv_pbP;                     ///< its covariance (m^2/s^2)
    CZelExtQuaterniond q_bP;                       ///< attitude, w, x, y, z
    CZelExtSymMatrix3d Qq_bP;                      ///< covariance of the attitude error (rad^2)
    CZelExtVector3d w_pbP;                         ///< angular rate (rad/s, frame P)
    CZelExtSymMatrix3d Qw_pbP;                     ///< its covariance (rad^2/s^2)
    uint16_t usField1 = 0;                         ///< carried through
    EZelInsPosFrame ePosFrame = eINSPOSFRAME_NONE; ///< the frame P
    int32_t eField2 = 0;                           ///< carried through
    uint16_t usField3 = 0;                         ///< carried through
    bool bShifted = false;                         ///< true once moved to another point by ShiftToPoint

    /// Destroys the object.
    ~CL_ZELX_INS_RES_POS_STATE() override;

    /// Returns usField1.
    uint16_t GetField1() const { return usField1; }
    /// Sets usField1.
    void SetField1(uint16_t usValue) { usField1 = usValue; }
    /// Returns ePosFrame.
    EZelInsPosFrame GetPosFrame() const { return ePosFrame; }
    /// Sets ePosFrame.
    void SetPosFrame(EZelInsPosFrame eFrame) { ePosFrame = eFrame; }
    /// Returns eField2.
    int32_t GetField2() const { return eField2; }
    /// Sets eField2.
    void SetField2(int32_t eValue) { eField2 = eValue; }
    /// Returns usField3.
    uint16_t GetField3() const { return usField3; }
    /// Sets usField3.
    void SetField3(uint16_t usValue) { usField3 = usValue; }

    /// Moves the result to the point at the lever arm rLever_B (m, body
    /// frame) and names it usNewSensorID: position and velocity with their
    /// covariances as TransferPositionVelocity gives them. A result moves
    /// once: a second call reports "false" and returns 1000 with nothing
    /// changed. The sensor identifier is set before anything can fail.
    unsigned int ShiftToPoint(const CZelExtVector3d& rLever_B, int16_t usNewSensorID);

    /// The same, then, whatever the status, the attitude becomes the
    /// Hamilton product q_bP (x) rRot_B. Returns the status of the move.
    unsigned int ShiftToPoint(const CZelExtVector3d& rLever_B, const CZelExtQuaterniond& rRot_B,
                              int16_t usNewSensorID);

    /// Tilt of the up axis rUp_B from the local up direction, heading of that
    /// tilt, heading (yaw) of the forward axis rFw_B and course of the
    /// velocity, in radians with their variances (rad^2). 1003 unless the two
    /// body axes are non-zero and orthogonal; the status of the local axes
    /// when above 20 (earth-fixed frames only); 51 when any of the four
    /// failed (all four are tried); else 0.
    unsigned int GetAttitudeAngles(const CZelExtVector3d& rFw_B, const CZelExtVector3d& rUp_B,
                                   SZelInsAngleVar& rstTilt, SZelInsAngleVar& rstTiltHeading,
                                   SZelInsAngleVar& rstYaw, SZelInsAngleVar& rstCourse) const;

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        std::conditional_t<std::is_const<Self>::value, const CL_ZELX_INS_RESULT, CL_ZELX_INS_RESULT>& rBase =
            r;
        return io.Raw(r.usField1) && io.Raw(r.ePosFrame) && io.Raw(r.eField2) && io.Raw(r.usField3) &&
               io.Raw(r.bShifted) && io.Record(r.x_pbP) && io.Record(r.Qx_pbP) && io.Record(r.v_pbP) &&
               io.Record(r.Qv_pbP) && io.Record(r.q_bP) && io.Record(r.Qq_bP) && io.Record(r.w_pbP) &&
               io.Record(r.Qw_pbP) && io.Record(rBase);
    }
    /// Text: the common part, the five plain fields (the frame and eField2 as
    /// short, bShifted as 0 or 1) joined by ", ", the four vectors at 6 digits
    /// and the four covariances at 12, each after its tag; precision 9 after.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        CL_ZELX_INS_RESULT::VisitText(io, r);
        io.Tag(", ").template Wide<uint32_t>(r.usField1).Tag(", ").template Wide<int16_t>(r.ePosFrame);
        io.Tag(", ").template Wide<int16_t>(r.eField2).Tag(", ").template Wide<uint32_t>(r.usField3);
        io.Tag(", ").template Wide<int32_t>(r.bShifted);
        io.Tag(", x_pbP, ").Precision(6).Value(r.x_pbP).Tag(", v_pbP, ").Value(r.v_pbP);
        io.Tag(", q_bP, ").Value(r.q_bP).Tag(", w_pbP, ").Value(r.w_pbP);
        io.Tag(", Qx_pbP, ").Precision(12).Value(r.Qx_pbP).Tag(", Qv_pbP, ").Value(r.Qv_pbP);
        io.Tag(", Qq_bP, ").Value(r.Qq_bP).Tag(", Qw_pbP, ").Value(r.Qw_pbP).Precision(9);
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

/// The common part, the five plain fields exactly, then the eight vectors
/// and matrices by the relative rule of the numeric records.
ZELTYPES_API bool operator==(const CL_ZELX_INS_RES_POS_STATE& a, const CL_ZELX_INS_RES_POS_STATE& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CL_ZELX_INS_RES_POS_STATE& rState);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CL_ZELX_INS_RES_POS_STATE& rState);

/// The state at rstTime between (or beyond) A and B: frame, sensor
/// identifier and time of rstOut set, position, velocity and rate linear in
/// the time ratio, the attitude by spherical interpolation, each covariance
/// taken whole from the neighbour of the larger trace (B on a tie). No other
/// field of rstOut is written. 1000 with a report when the frames or the
/// sensor identifiers differ, rstOut unchanged. Equal times of A and B give
/// the NaN and infinities of a division by zero.
ZELTYPES_API unsigned int Interpolate(const CL_ZELX_INS_RES_POS_STATE& rstStateA, const SMjdTime& rstTime,
                                      const CL_ZELX_INS_RES_POS_STATE& rstStateB,
                                      CL_ZELX_INS_RES_POS_STATE& rstOut);

/// A state with a number the module that fills it defines. 339 bytes: the state, then uiExtra.
struct ZELTYPES_API SZelInsResStateEx
{
    /// The result state.
    CL_ZELX_INS_RES_POS_STATE stState;
    /// The number, defined by the module that fills it.
    uint32_t uiExtra = 0;

    /// Constructs the default state (for a record: holding no data).
    SZelInsResStateEx() = default;
    /// From a state and the number.
    SZelInsResStateEx(const CL_ZELX_INS_RES_POS_STATE& rstState, uint32_t uiExtraValue)
        : stState(rstState), uiExtra(uiExtraValue)
    {
    }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stState) && io.Raw(r.uiExtra);
    }
    /// Text: uiExtra, ", ", the state.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Value(r.uiExtra).Tag(", ").Value(r.stState);
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
ZELTYPES_API bool operator==(const SZelInsResStateEx& a, const SZelInsResStateEx& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsResStateEx& rStateEx);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsResStateEx& rStateEx);

/// The time and kind of a stored result. 20 bytes: stTime in its 16-byte
/// packed form at 0, eKind at 16.
struct ZELTYPES_API SZelInsResHeader
{
    /// Time of the result.
    SMjdTime stTime;
    int32_t eKind = 0; ///< defined by the module that fills it

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stTime) && io.Raw(r.eKind);
    }
    /// Text: eKind as short, ", ", the time (week ", " milliseconds of the
    /// week, fixed with 3 decimals).
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        auto stTimeText = ZelInsIo::GpsMsText(r.stTime);
        io.template Wide<int16_t>(r.eKind).Tag(", ").Fixed().Precision(3).Value(stTimeText);
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

/// The time by the earlier-than test both ways, eKind exactly.
ZELTYPES_API bool operator==(const SZelInsResHeader& a, const SZelInsResHeader& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsResHeader& rHeader);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsResHeader& rHeader);

/// A stored result: header and extended state. 359 bytes.
struct ZELTYPES_API SZelInsResRecord
{
    /// Time and kind.
    SZelInsResHeader stHeader;
    /// State and number.
    SZelInsResStateEx stStateEx;

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stHeader) && io.Record(r.stStateEx);
    }
    /// Text: header, ", ", uiExtra, ", ", state.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Value(r.stHeader).Tag(", ").Value(r.stStateEx.uiExtra).Tag(", ").Value(r.stStateEx.stState);
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
ZELTYPES_API bool operator==(const SZelInsResRecord& a, const SZelInsResRecord& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsResRecord& rRecord);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsResRecord& rRecord);

} // namespace ZELN

#endif
