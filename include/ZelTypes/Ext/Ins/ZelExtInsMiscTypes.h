#ifndef ZELTYPES_EXT_INS_ZELEXTINSMISCTYPES_H
#define ZELTYPES_EXT_INS_ZELEXTINSMISCTYPES_H

/// \file
/// The plain numeric records from which every inertial exchange record is
/// built: a 3-vector, a quaternion, a full and a packed symmetric 3 x 3
/// matrix, and small parameter groups. They hold plain arrays of doubles, not
/// math-library types, since they cross module boundaries. Units follow the
/// records that embed them. Binary images are fixed (count cleared before the
/// bounds test); texts are written in the stream's current format. Elements
/// compare equal when identical or apart by at most 1e-14 of the larger
/// magnitude; a NaN is unequal to everything.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// Three doubles; unit and frame as the embedding record says. 24 bytes.
class ZELTYPES_API CZelExtVector3d
{
public:
    /// The three elements, in order.
    double m_adElem[3] = {0.0, 0.0, 0.0};

    /// Constructs the default state (for a record: holding no data).
    CZelExtVector3d() = default;
    /// Copies another object.
    CZelExtVector3d(const CZelExtVector3d&) = default;
    /// Copies another object into this one.
    CZelExtVector3d& operator=(const CZelExtVector3d&) = default;
    /// All three set to dValue.
    explicit CZelExtVector3d(double dValue);
    /// From the three elements, in order.
    CZelExtVector3d(double dElem0, double dElem1, double dElem2);
    /// Three doubles from pdElem; a null pointer reports "false" and gives zeros.
    explicit CZelExtVector3d(const double* pdElem);
    /// Destroys the object.
    virtual ~CZelExtVector3d();

    /// Image: the three doubles in order.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r) { return io.Raw(r.m_adElem); }
    /// Text: the three values joined by ", ".
    template <class IO, class Self> static void VisitText(IO& io, Self& r) { io.Array(r.m_adElem); }

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
ZELTYPES_API bool operator==(const CZelExtVector3d& a, const CZelExtVector3d& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CZelExtVector3d& rVector);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CZelExtVector3d& rVector);

/// A quaternion, coefficients in the order w, x, y, z; default identity.
/// Unit norm is not enforced. 32 bytes.
class ZELTYPES_API CZelExtQuaterniond
{
public:
    /// The coefficients w, x, y, z.
    double m_adElem[4] = {1.0, 0.0, 0.0, 0.0};

    /// Constructs the default state (for a record: holding no data).
    CZelExtQuaterniond() = default;
    /// Copies another object.
    CZelExtQuaterniond(const CZelExtQuaterniond&) = default;
    /// Copies another object into this one.
    CZelExtQuaterniond& operator=(const CZelExtQuaterniond&) = default;
    /// From the coefficients w, x, y, z, unnormalised.
    CZelExtQuaterniond(double dW, double dX, double dY, double dZ);
    /// Destroys the object.
    virtual ~CZelExtQuaterniond();

    /// Image: w, x, y, z.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r) { return io.Raw(r.m_adElem); }
    /// Text: w, x, y, z joined by ", ".
    template <class IO, class Self> static void VisitText(IO& io, Self& r) { io.Array(r.m_adElem); }

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
ZELTYPES_API bool operator==(const CZelExtQuaterniond& a, const CZelExtQuaterniond& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CZelExtQuaterniond& rQuaternion);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CZelExtQuaterniond& rQuaternion);

/// A full 3 x 3 matrix, nine doubles row after row. 72 bytes.
struct ZELTYPES_API CZelExtMatrix3d
{
    /// The nine elements, row after row.
    double m_adElem[9] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};

    /// Constructs the default state (for a record: holding no data).
    CZelExtMatrix3d() = default;
    /// All nine set to dValue.
    explicit CZelExtMatrix3d(double dValue);
    /// The diagonal; all else 0.0.
    CZelExtMatrix3d(double dElem00, double dElem11, double dElem22);
    /// Nine doubles row after row; a null pointer reports "false" and gives zeros.
    explicit CZelExtMatrix3d(const double* pdElem);

    /// Image: the nine doubles row after row.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r) { return io.Raw(r.m_adElem); }
    /// Text: the nine values row after row joined by ", ".
    template <class IO, class Self> static void VisitText(IO& io, Self& r) { io.Array(r.m_adElem); }

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
ZELTYPES_API bool operator==(const CZelExtMatrix3d& a, const CZelExtMatrix3d& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CZelExtMatrix3d& rMatrix);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CZelExtMatrix3d& rMatrix);

/// A symmetric 3 x 3 matrix as its lower triangle row after row: (0,0),
/// (1,0), (1,1), (2,0), (2,1), (2,2). (i, j) and (j, i) share one element.
/// 48 bytes.
struct ZELTYPES_API CZelExtSymMatrix3d
{
    enum : size_t
    {
        eNumElems = 6,
        eNumCols = 3
    };

    /// The lower triangle, packed as the class says.
    double m_adElem[eNumElems] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0};

    /// Constructs the default state (for a record: holding no data).
    CZelExtSymMatrix3d() = default;
    /// All six set to dValue.
    explicit CZelExtSymMatrix3d(double dValue);
    /// The diagonal; all else 0.0.
    CZelExtSymMatrix3d(double dElem00, double dElem11, double dElem22);
    /// Six packed doubles, read through the index rule; a null pointer
    /// reports "false" and gives zeros.
    explicit CZelExtSymMatrix3d(const double* pdElem);

    /// The packed index of (i, j): with r the larger and c the smaller of the
    /// two, r (r + 1) / 2 + c. Not checked here.
    static size_t PackedIndex(size_t i, size_t j);

    /// The element (i, j). A packed index of 6 or more reports
    /// "ulIndex < eNumElems"; the caller must not pass indices above 2.
    double operator()(size_t i, size_t j) const;
    /// Writable element (i, j); a packed index of 6 or more reports "ulIndex < eNumElems" and hands out a
    /// scratch element, leaving the matrix as it was.
    double& operator()(size_t i, size_t j);

    /// Sum of the three diagonal elements.
    double GetTrace() const;
    /// A copy with all six elements multiplied by dFactor.
    CZelExtSymMatrix3d GetScaled(double dFactor) const;
    /// A copy with all six elements multiplied by dFactor squared (a
    /// covariance of a quantity scaled by dFactor).
    CZelExtSymMatrix3d GetScaledBySquare(double dFactor) const;

    /// Image: the six packed doubles as in memory.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r) { return io.Raw(r.m_adElem); }
    /// Text: the six packed values joined by ", ".
    template <class IO, class Self> static void VisitText(IO& io, Self& r) { io.Array(r.m_adElem); }

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
ZELTYPES_API bool operator==(const CZelExtSymMatrix3d& a, const CZelExtSymMatrix3d& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const CZelExtSymMatrix3d& rMatrix);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, CZelExtSymMatrix3d& rMatrix);

/// The forward and the up axis of the body, unit vectors in the body frame. 48 bytes.
struct ZELTYPES_API SZelInsBodyAxes
{
    /// Forward axis, a unit vector in the body frame.
    CZelExtVector3d Fw_B;
    /// Up axis, a unit vector in the body frame.
    CZelExtVector3d Up_B;

    /// Image: Fw_B at 0, Up_B at 24.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.Fw_B) && io.Record(r.Up_B);
    }
    /// Text: "Fw_B, " vector ", Up_B, " vector.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Fw_B, ").Value(r.Fw_B).Tag(", Up_B, ").Value(r.Up_B);
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

/// Member by member, by the vector rule.
ZELTYPES_API bool operator==(const SZelInsBodyAxes& a, const SZelInsBodyAxes& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsBodyAxes& rAxes);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsBodyAxes& rAxes);

/// A variance and a position offset; units as the embedding record says. 32 bytes.
struct ZELTYPES_API SZelInsVarLever
{
    /// The variance.
    double dVar = 0.0;
    /// The position offset.
    CZelExtVector3d x_dcD;

    /// Image: dVar at 0, x_dcD at 8.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.dVar) && io.Record(r.x_dcD);
    }
    /// Text: "Var, " value ", x_dcD, " vector.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Var, ").Value(r.dVar).Tag(", x_dcD, ").Value(r.x_dcD);
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

/// dVar exactly, x_dcD by the vector rule.
ZELTYPES_API bool operator==(const SZelInsVarLever& a, const SZelInsVarLever& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsVarLever& rVarLever);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsVarLever& rVarLever);

/// One test group of a sensor's data: expected value, threshold and sigma
/// per axis, in the unit of the tested quantity. 72 bytes.
struct ZELTYPES_API SZelInsTrTest
{
    /// Expected value per axis.
    CZelExtVector3d stExp;
    /// Threshold per axis.
    CZelExtVector3d stThr;
    /// Sigma per axis.
    CZelExtVector3d stSig;

    /// Image: stExp at 0, stThr at 24, stSig at 48.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stExp) && io.Record(r.stThr) && io.Record(r.stSig);
    }
    /// Text: "TrTest" ", Exp, " vector ", Thr, " vector ", Sig, " vector. The
    /// caller writes the group's name right in front of "TrTest", so the
    /// reader skips two tokens, that glued word and "Exp,".
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        if constexpr (IO::c_bReading)
        {
            io.Tag("NameTrTest Exp,");
        }
        else
        {
            io.Tag("TrTest").Tag(", Exp, ");
        }
        io.Value(r.stExp).Tag(", Thr, ").Value(r.stThr).Tag(", Sig, ").Value(r.stSig);
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

/// Member by member, by the vector rule.
ZELTYPES_API bool operator==(const SZelInsTrTest& a, const SZelInsTrTest& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsTrTest& rTest);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsTrTest& rTest);

/// An expected value and its limits, in the unit of the quantity (a sensor
/// rate in Hz, say). 24 bytes.
struct ZELTYPES_API SZelInsExpMinMax
{
    /// Expected value.
    double dExp = 0.0;
    /// Lowest value.
    double dMin = 0.0;
    /// Highest value.
    double dMax = 0.0;

    /// Constructs the default state (for a record: holding no data).
    SZelInsExpMinMax() = default;
    /// From expected, lowest and highest value, unchecked.
    SZelInsExpMinMax(double dExpected, double dMinimum, double dMaximum)
        : dExp(dExpected), dMin(dMinimum), dMax(dMaximum)
    {
    }

    /// Image: dExp at 0, dMin at 8, dMax at 16.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.dExp) && io.Raw(r.dMin) && io.Raw(r.dMax);
    }
    /// Text: "Exp, " value ", Min, " value ", Max, " value.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Exp, ").Value(r.dExp).Tag(", Min, ").Value(r.dMin).Tag(", Max, ").Value(r.dMax);
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

/// All three exactly.
ZELTYPES_API bool operator==(const SZelInsExpMinMax& a, const SZelInsExpMinMax& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelInsExpMinMax& rExpMinMax);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelInsExpMinMax& rExpMinMax);

// ---------------------------------------------------------------------------
// Steps shared by the inertial sensor and result records.
// ---------------------------------------------------------------------------

namespace ZelInsIo
{

/// A time in an inertial image: the 24 bytes of its memory layout, day at 0,
/// milliseconds of the day at 8, accuracy code at 16; the filling bytes at 4
/// and 20 go out as zero and are passed over.
template <class IO, class TTime> inline bool TimeBlock(IO& io, TTime& rstTime)
{
    return io.Raw(rstTime.m_lMjdDay) && io.Reserved(4) && io.Raw(rstTime.m_dMjdFractMilliseconds) &&
           io.Raw(rstTime.m_eAccuracy) && io.Reserved(4);
}

/// A time in an inertial text: GPS week, ", " and the milliseconds of the
/// week, in the stream's current format (the record sets it). The reader
/// takes the week as an unsigned integer and accepts a week below 5966 with
/// milliseconds from 0 to 604800000; anything else gives the default time,
/// without a report. A failed extraction leaves the time as it was.
template <class TTime> struct SGpsMsText
{
    TTime* pstTime;
};

inline SGpsMsText<const SMjdTime> GpsMsText(const SMjdTime& rstTime)
{
    return SGpsMsText<const SMjdTime>{&rstTime};
}
inline SGpsMsText<SMjdTime> GpsMsText(SMjdTime& rstTime)
{
    return SGpsMsText<SMjdTime>{&rstTime};
}

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SGpsMsText<const SMjdTime>& rText);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SGpsMsText<SMjdTime>& rText);

} // namespace ZelInsIo

} // namespace ZELN

#endif
