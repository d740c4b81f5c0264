#ifndef ZELTYPES_CORE_COMMON_ZELRECORDIO_H
#define ZELTYPES_CORE_COMMON_ZELRECORDIO_H

// The steps every record takes in its binary and text forms, written once:
// bounds test, running offset, raw field copy, nested record, sequence count,
// tag / comma / enumeration-word reading and hexadecimal bit fields.

#include <ZelTypes/Core/Common/ZelAssert.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <istream>
#include <ostream>
#include <string>
#include <type_traits>

namespace ZELN
{
namespace ZelIo
{

// An enumeration declared with a fixed underlying type may hold any value of
// that type; one without may not, so a raw image or a narrowed text value
// could give it an invalid value. Readers accept only the former.
template <class T, class = void> struct SHasFixedType : std::false_type
{
};
template <class T>
struct SHasFixedType<T, std::void_t<decltype(T{std::underlying_type_t<T>{}})>> : std::true_type
{
};
template <class T> constexpr bool IsFixedEnum()
{
    if constexpr (std::is_enum<T>::value)
    {
        return SHasFixedType<T>::value;
    }
    else
    {
        return true;
    }
}

// ---------------------------------------------------------------------------
// Binary form, Core family: pBuffer, uiBufferLength and a running count.
// ---------------------------------------------------------------------------

// Writer side. The running count is an output: the record sets it to 0 and
// leaves in it the number of bytes handled.
class CBinWriter
{
public:
    CBinWriter(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
        : m_pBuffer(pBuffer), m_uiLength(uiBufferLength),
          m_pulOffset(pulOffset != nullptr ? pulOffset : &m_ulLocal)
    {
    }

    // Bounds test of a fixed-size leaf record: the count is cleared first.
    bool BeginLeaf(uint64_t ulExpected)
    {
        *m_pulOffset = 0;
        return Fits(ulExpected);
    }

    // Bounds test of any other record: the count is cleared after the test.
    bool Begin(uint64_t ulExpected)
    {
        if (!Fits(ulExpected))
        {
            return false;
        }
        *m_pulOffset = 0;
        return true;
    }

    uint64_t Offset() const { return *m_pulOffset; }
    uint64_t Remaining() const { return m_uiLength - *m_pulOffset; }
    unsigned char* Here() const { return m_pBuffer + *m_pulOffset; }

    // Raw copy of a field in the host's byte order. The bounds test at the
    // start covers it; a record whose size was misstated stops writing here
    // instead of running past the caller's buffer.
    template <class T> void Raw(const T& rValue)
    {
        static_assert(std::is_trivially_copyable<T>::value, "raw fields must be trivially copyable");
        Bytes(&rValue, sizeof(T));
    }

    // A field stored narrower than in memory (an enumeration in 1 byte, say).
    template <class TStored, class T> void RawAs(const T& rValue) { Raw(static_cast<TStored>(rValue)); }

    void Bytes(const void* pSource, uint64_t ulSize)
    {
        if (ulSize > Remaining())
        {
            m_bOverrun = true;
            return;
        }
        if (ulSize != 0)
        {
            std::memcpy(Here(), pSource, static_cast<size_t>(ulSize));
        }
        *m_pulOffset += ulSize;
    }

    // Reserved bytes of a layout: zero on the way out, passed over on the way in.
    void Reserved(uint64_t ulSize) { Fill(ulSize); }

    // Filling bytes, written as zero.
    void Fill(uint64_t ulSize)
    {
        if (ulSize > Remaining())
        {
            m_bOverrun = true;
            return;
        }
        std::memset(Here(), 0, static_cast<size_t>(ulSize));
        *m_pulOffset += ulSize;
    }

    // A nested record through its own writer; its count is added first, then
    // a failure is reported here as well, unless the record says otherwise.
    template <class R> bool Record(const R& rRecord, bool bReport = true)
    {
        uint64_t ulLocal = 0;
        const bool bOk = rRecord.saveData(Here(), Remaining(), &ulLocal);
        *m_pulOffset += ulLocal;
        if (!bOk)
        {
            if (bReport)
            {
                ZEL_ASSERT(false);
            }
            m_bOverrun = true;
            return false;
        }
        return true;
    }

    // The 32-bit element count of a sequence.
    void Count(uint64_t ulCount) { Raw(static_cast<uint32_t>(ulCount)); }

    // A sequence of records: count, then each element's own image.
    template <class Seq> bool Sequence(const Seq& rSeq)
    {
        Count(rSeq.size());
        for (const auto& rElem : rSeq)
        {
            if (!Record(rElem))
            {
                return false;
            }
        }
        return true;
    }

    // A sequence of plain values: count, then each value raw.
    template <class Seq> void RawSequence(const Seq& rSeq)
    {
        Count(rSeq.size());
        for (const auto& rElem : rSeq)
        {
            Raw(rElem);
        }
    }

    bool End(uint64_t ulExpected) const { return !m_bOverrun && *m_pulOffset == ulExpected; }

private:
    bool Fits(uint64_t ulExpected)
    {
        if (m_pBuffer == nullptr || ulExpected > m_uiLength)
        {
            ZEL_ASSERT(false);
            return false;
        }
        return true;
    }

    unsigned char* m_pBuffer;
    uint64_t m_uiLength;
    uint64_t m_ulLocal = 0;
    uint64_t* m_pulOffset;
    bool m_bOverrun = false;
};

// Reader side, the mirror of CBinWriter. Raw reads are checked against the
// remaining length, so that a forged sequence count fails at the element
// where the buffer ends instead of reading past it.
class CBinReader
{
public:
    CBinReader(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
        : m_pBuffer(pBuffer), m_uiLength(uiBufferLength),
          m_pulOffset(pulOffset != nullptr ? pulOffset : &m_ulLocal)
    {
    }

    bool BeginLeaf(uint64_t ulExpected)
    {
        *m_pulOffset = 0;
        return Fits(ulExpected);
    }

    bool Begin(uint64_t ulExpected)
    {
        if (!Fits(ulExpected))
        {
            return false;
        }
        *m_pulOffset = 0;
        return true;
    }

    uint64_t Offset() const { return *m_pulOffset; }
    uint64_t Remaining() const { return m_uiLength - *m_pulOffset; }
    const unsigned char* Here() const { return m_pBuffer + *m_pulOffset; }
    bool Failed() const { return m_bOverrun; }

    // Raw copy of a field; false (and nothing read) when the buffer ends.
    // A bool comes in through a byte: any value but 0 is true, since a raw
    // byte other than 0 or 1 is no valid bool. Enumerations read this way
    // have a fixed underlying type, so that every image value is valid.
    template <class T> bool Raw(T& rValue)
    {
        static_assert(std::is_trivially_copyable<T>::value, "raw fields must be trivially copyable");
        static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
        if constexpr (std::is_same<T, bool>::value)
        {
            uint8_t ucByte = 0;
            if (!Bytes(&ucByte, 1))
            {
                return false;
            }
            rValue = ucByte != 0;
            return true;
        }
        else
        {
            return Bytes(&rValue, sizeof(T));
        }
    }

    // A field stored narrower than in memory.
    template <class TStored, class T> bool RawAs(T& rValue)
    {
        static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
        TStored tStored{};
        if (!Raw(tStored))
        {
            return false;
        }
        rValue = static_cast<T>(tStored);
        return true;
    }

    // A short leaf item inside a sequence: its own bound test, reported.
    template <class T> bool RawChecked(T& rValue)
    {
        if (sizeof(T) > Remaining())
        {
            ZEL_ASSERT(false);
            m_bOverrun = true;
            return false;
        }
        return Raw(rValue);
    }

    bool Bytes(void* pTarget, uint64_t ulSize)
    {
        if (ulSize > Remaining())
        {
            m_bOverrun = true;
            return false;
        }
        if (ulSize != 0)
        {
            std::memcpy(pTarget, Here(), static_cast<size_t>(ulSize));
        }
        *m_pulOffset += ulSize;
        return true;
    }

    bool Reserved(uint64_t ulSize) { return Skip(ulSize); }

    // Filling bytes, passed over.
    bool Skip(uint64_t ulSize)
    {
        if (ulSize > Remaining())
        {
            m_bOverrun = true;
            return false;
        }
        *m_pulOffset += ulSize;
        return true;
    }

    // A nested record through its own reader; its count is added first.
    // Most readers only return on failure; bReport adds the outer "false".
    template <class R> bool Record(R& rRecord, bool bReport = false)
    {
        uint64_t ulLocal = 0;
        const bool bOk = rRecord.loadData(Here(), Remaining(), &ulLocal);
        *m_pulOffset += ulLocal;
        if (!bOk)
        {
            if (bReport)
            {
                ZEL_ASSERT(false);
            }
            m_bOverrun = true;
            return false;
        }
        return true;
    }

    // The 32-bit element count of a sequence.
    bool Count(uint32_t& rulCount)
    {
        rulCount = 0;
        return Raw(rulCount);
    }

    // A sequence of records: the count resizes the sequence (shrinking drops
    // the tail, growing default-constructs), then each element reads itself.
    // A count beyond the buffer is not detected in advance: the read fails at
    // the element where the remaining length ends.
    template <class Seq> bool Sequence(Seq& rSeq, bool bReport = false)
    {
        uint32_t ulCount = 0;
        if (!Count(ulCount))
        {
            return false;
        }
        rSeq.resize(ulCount);
        for (auto& rElem : rSeq)
        {
            if (!Record(rElem, bReport))
            {
                return false;
            }
        }
        return true;
    }

    // A sequence of plain values, each with its own reported bound test.
    template <class Seq> bool RawSequence(Seq& rSeq)
    {
        uint32_t ulCount = 0;
        if (!Count(ulCount))
        {
            return false;
        }
        rSeq.resize(ulCount);
        for (auto& rElem : rSeq)
        {
            if (!RawChecked(rElem))
            {
                return false;
            }
        }
        return true;
    }

    bool End(uint64_t ulExpected) const { return !m_bOverrun && *m_pulOffset == ulExpected; }

private:
    bool Fits(uint64_t ulExpected)
    {
        if (m_pBuffer == nullptr || ulExpected > m_uiLength)
        {
            ZEL_ASSERT(false);
            return false;
        }
        return true;
    }

    const unsigned char* m_pBuffer;
    uint64_t m_uiLength;
    uint64_t m_ulLocal = 0;
    uint64_t* m_pulOffset;
    bool m_bOverrun = false;
};

// A fixed-size record states its fields once, for both directions, in a
// visitor: either a static member
//     template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
// or a generic lambda handed to the calls below, with a body such as
//     io.Raw(r.field1); io.template RawAs<int32_t>(r.field2); io.Reserved(3); return true;
// (a nested record: `if (!io.Record(r.nested)) return false;`). Its saveData
// and loadData are then one call each. A leaf clears the count before the
// bounds test, any other record after it; the count is compared with the
// size at the end.
template <class R, class V>
inline bool SaveLeaf(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                     V fnVisit)
{
    CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    return stOut.BeginLeaf(rRecord.getSize()) && fnVisit(stOut, rRecord) && stOut.End(rRecord.getSize());
}

template <class R, class V>
inline bool LoadLeaf(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                     V fnVisit)
{
    CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    return stIn.BeginLeaf(rRecord.getSize()) && fnVisit(stIn, rRecord) && stIn.End(rRecord.getSize());
}

template <class R, class V>
inline bool SaveFixed(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                      V fnVisit)
{
    CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    return stOut.Begin(rRecord.getSize()) && fnVisit(stOut, rRecord) && stOut.End(rRecord.getSize());
}

template <class R, class V>
inline bool LoadFixed(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                      V fnVisit)
{
    CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    return stIn.Begin(rRecord.getSize()) && fnVisit(stIn, rRecord) && stIn.End(rRecord.getSize());
}

// The same with the record's own static VisitFields.
struct SMemberVisitor
{
    template <class IO, class R> bool operator()(IO& io, R& r) const
    {
        return std::remove_const_t<R>::VisitFields(io, r);
    }
};

template <class R>
inline bool SaveLeaf(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return SaveLeaf(rRecord, pBuffer, uiBufferLength, pulOffset, SMemberVisitor());
}

template <class R>
inline bool LoadLeaf(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return LoadLeaf(rRecord, pBuffer, uiBufferLength, pulOffset, SMemberVisitor());
}

template <class R>
inline bool SaveFixed(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return SaveFixed(rRecord, pBuffer, uiBufferLength, pulOffset, SMemberVisitor());
}

template <class R>
inline bool LoadFixed(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return LoadFixed(rRecord, pBuffer, uiBufferLength, pulOffset, SMemberVisitor());
}

// ---------------------------------------------------------------------------
// Binary form, Ext family: fields at fixed offsets of an image whose first
// byte may be a version.
// ---------------------------------------------------------------------------

// The image is known to hold ulOffset + sizeof(T) bytes (the caller tested it).
template <class T> inline void PutAt(unsigned char* pBuffer, uint64_t ulOffset, const T& rValue)
{
    static_assert(std::is_trivially_copyable<T>::value, "raw fields must be trivially copyable");
    std::memcpy(pBuffer + ulOffset, &rValue, sizeof(T));
}

template <class T> inline void GetAt(const unsigned char* pBuffer, uint64_t ulOffset, T& rValue)
{
    static_assert(std::is_trivially_copyable<T>::value, "raw fields must be trivially copyable");
    static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
    if constexpr (std::is_same<T, bool>::value)
    {
        rValue = pBuffer[ulOffset] != 0; // a byte other than 0 or 1 is no valid bool
    }
    else
    {
        std::memcpy(&rValue, pBuffer + ulOffset, sizeof(T));
    }
}

// Null buffer or short image: "false" and no access.
inline bool ExtFits(const void* pBuffer, uint64_t uiBufferLength, uint64_t ulExpected)
{
    if (pBuffer == nullptr || ulExpected > uiBufferLength)
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

// ---------------------------------------------------------------------------
// Text form. Readers go by position: tags are read and thrown away, a comma
// costs one char extraction (which skips whitespace first).
// ---------------------------------------------------------------------------

inline std::istream& SkipTag(std::istream& is)
{
    std::string strTag;
    is >> strTag;
    return is;
}

inline std::istream& SkipComma(std::istream& is)
{
    char cComma = 0;
    is >> cComma;
    return is;
}

// ", Tag, " between two values: one char read and one token read.
inline std::istream& SkipSeparator(std::istream& is)
{
    SkipComma(is);
    return SkipTag(is);
}

// Small integers, bools and enumerations go through a wider temporary and
// are then narrowed; on a failed extraction they get the temporary's zero.
template <class TWide, class T> inline std::istream& ReadAs(std::istream& is, T& rValue)
{
    static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
    TWide tWide{};
    is >> tWide;
    rValue = static_cast<T>(tWide);
    return is;
}

// Bit fields travel in hexadecimal; the base goes back to decimal after.
template <class T> inline std::ostream& WriteHex(std::ostream& os, const T& rValue)
{
    return os << std::hex << static_cast<uint64_t>(rValue) << std::dec;
}

template <class TWide, class T> inline std::istream& ReadHex(std::istream& is, T& rValue)
{
    static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
    TWide tWide{};
    is >> std::hex >> tWide >> std::dec;
    rValue = static_cast<T>(tWide);
    return is;
}

// Printable form of an 8-bit number (never a character).
inline unsigned int Num(unsigned char uc)
{
    return uc;
}
inline int Num(signed char c)
{
    return c;
}
inline int Num(char c)
{
    return c;
}

// An enumeration word: one token; one trailing comma is removed, so the
// comma after the word is consumed with it. Unknown words give iInvalid.
inline int ReadEnumWord(std::istream& is, const char* const* aszWords, size_t ulNbWords, int iInvalid)
{
    std::string strWord;
    is >> strWord;
    while (!strWord.empty() && (strWord.back() == ' ' || strWord.back() == '\t' || strWord.back() == '\n' ||
                                strWord.back() == '\r'))
    {
        strWord.pop_back();
    }
    if (!strWord.empty() && strWord.back() == ',')
    {
        strWord.pop_back();
    }
    for (size_t ulIdx = 0; ulIdx < ulNbWords; ++ulIdx)
    {
        if (strWord == aszWords[ulIdx])
        {
            return static_cast<int>(ulIdx);
        }
    }
    return iInvalid;
}

// The word of an enumeration value from a table indexed by value.
inline const char* EnumWord(int iValue, const char* const* aszWords, size_t ulNbWords, const char* szInvalid)
{
    if (iValue < 0 || static_cast<size_t>(iValue) >= ulNbWords)
    {
        return szInvalid;
    }
    return aszWords[iValue];
}

// Fixed arrays: elements separated by ", ", no tag per element.
template <class T> inline std::ostream& WriteArray(std::ostream& os, const T* pValues, size_t ulNb)
{
    for (size_t ulIdx = 0; ulIdx < ulNb; ++ulIdx)
    {
        if (ulIdx != 0)
        {
            os << ", ";
        }
        os << pValues[ulIdx];
    }
    return os;
}

// The reader counts so that no comma is read after the last element.
template <class T> inline std::istream& ReadArray(std::istream& is, T* pValues, size_t ulNb)
{
    for (size_t ulIdx = 0; ulIdx < ulNb; ++ulIdx)
    {
        if (ulIdx != 0)
        {
            SkipComma(is);
        }
        is >> pValues[ulIdx];
    }
    return is;
}

} // namespace ZelIo
} // namespace ZELN

#endif
