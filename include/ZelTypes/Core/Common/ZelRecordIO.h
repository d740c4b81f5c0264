#ifndef ZELTYPES_CORE_COMMON_ZELRECORDIO_H
#define ZELTYPES_CORE_COMMON_ZELRECORDIO_H

/// \file
/// The steps every record takes in its binary and text forms, written once:
/// a record states its image in VisitFields and its line in VisitText, and
/// these helpers run each statement in both directions.

#include <ZelTypes/Core/Common/ZelAssert.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <istream>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ZELN
{
namespace ZelIo
{

/// An enumeration declared with a fixed underlying type may hold any value of
/// that type; one without may not, so a raw image or a narrowed text value
/// could give it an invalid value. Readers accept only the former.
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
// Binary form: one statement of the image for both directions.
//
// A record states its image once, in a static member
//     template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
// that names its fields in image order:
//     io.Raw(r.dX);                         a raw field or fixed array
//     io.template RawAs<int32_t>(r.eSys);   a field stored in another width
//     io.Reserved(3);                       reserved bytes (zero out, skipped in)
//     io.Version(5);                        the version byte of an Ext image
//     io.Record(r.stTime);                  a nested record through its own test
//     io.ExtRecord(rCommonPart);            a nested Ext image
//     io.Inline(r.stKey);                   a nested record's fields, no own test
//     io.Sequence(r.vecSats);               count, then each element
//     io.template ExtSequence<uint64_t>(v); count, then each Ext element
//     io.SortedSequence(r.vecRecs);         the same, sorted after reading
//     io.RawSequence(r.vecValues);          count, then plain values
//     io.Map(r.mapValues);                  count, then key and value per entry
//     io.Block(r, 16);                      bytes of the record's memory layout
// and returns false where a nested step failed. The same visitor runs with
// CBinWriter (saveData), CBinReader (loadData) and CBinSizer (getSize of a
// fixed record). Where the two directions really differ, the visitor says
// so with `if constexpr (IO::c_bLoading)`.
//
// Allocation bound: a reader handed n bytes allocates at most
// c_ulALLOC_FACTOR * n + c_ulALLOC_CONSTANT bytes, whatever counts the image
// holds. A sequence is sized to its count only when the remaining bytes can
// hold that many elements at the smallest element image; otherwise it is
// sized to what they can hold and grows by one element as each is read, so
// that the read fails where the buffer ends. The factor covers the largest
// ratio of an element's memory to its smallest image (a satellite record,
// 448 bytes for a 16-byte image) and the growth of a vector's capacity.
// ---------------------------------------------------------------------------

constexpr uint64_t c_ulALLOC_FACTOR = 64;
constexpr uint64_t c_ulALLOC_CONSTANT = 65536;

template <class T, class = void> struct SHasVisitFields : std::false_type
{
};
template <class T>
struct SHasVisitFields<T, std::void_t<decltype(&T::template VisitFields<int, T>)>> : std::true_type
{
};

template <class T, class = void> struct SHasGetSize : std::false_type
{
};
/// Size of the byte image, in bytes.
template <class T>
struct SHasGetSize<T, std::void_t<decltype(std::declval<const T&>().getSize())>> : std::true_type
{
};

class CBinSizer;

/// The bytes of the smallest image of an element: a default record's image,
/// or the width of a plain value. Never 0, so that it can divide.
template <class T> inline uint64_t MinImageSize()
{
    if constexpr (SHasGetSize<T>::value)
    {
        const uint64_t ulSize = T().getSize();
        return ulSize != 0 ? ulSize : 1;
    }
    else
    {
        return sizeof(T);
    }
}

/// The elements a sequence is given before its elements are read: the count
/// when the remaining bytes can hold it, else what they can hold.
inline uint64_t PresizeCount(uint64_t ulCount, uint64_t ulRemaining, uint64_t ulMinImage)
{
    const uint64_t ulCanHold = ulRemaining / ulMinImage;
    return ulCount <= ulCanHold ? ulCount : ulCanHold;
}

/// The entries of a map in the order of its keys (operator<), for the
/// written forms of hash maps: equal maps then give equal images and texts
/// whatever the order of their buckets.
template <class TMap> inline std::vector<const typename TMap::value_type*> SortedEntries(const TMap& rMap)
{
    std::vector<const typename TMap::value_type*> vecEntries;
    vecEntries.reserve(rMap.size());
    for (const auto& rEntry : rMap)
    {
        vecEntries.push_back(&rEntry);
    }
    std::sort(vecEntries.begin(), vecEntries.end(),
              [](const auto* pA, const auto* pB) { return pA->first < pB->first; });
    return vecEntries;
}

/// Shared state of the two directions: the buffer, its length and the running count.
template <class TByte> class CBinCursor
{
public:
    CBinCursor(TByte* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
        : m_pBuffer(pBuffer), m_uiLength(uiBufferLength),
          m_pulOffset(pulOffset != nullptr ? pulOffset : &m_ulLocal), m_ulOffset(*m_pulOffset)
    {
    }

    /// Bounds test of a fixed-size leaf record: the count is cleared first.
    bool BeginLeaf(uint64_t ulExpected)
    {
        SetOffset(0);
        return Fits(ulExpected);
    }

    /// Bounds test of any other record: the count is cleared after the test.
    bool Begin(uint64_t ulExpected)
    {
        if (!Fits(ulExpected))
        {
            return false;
        }
        SetOffset(0);
        return true;
    }

    /// Returns m_ulOffset.
    uint64_t Offset() const { return m_ulOffset; }
    /// A count beyond the length (left there by a caller's earlier use) leaves no room.
    uint64_t Remaining() const { return m_ulOffset < m_uiLength ? m_uiLength - m_ulOffset : 0; }
    TByte* Here() const { return m_pBuffer + m_ulOffset; }
    /// Returns m_bOverrun.
    bool Failed() const { return m_bOverrun; }
    void Fail() { m_bOverrun = true; }

    /// The result of a record: every step fitted and the count is the size.
    bool End(uint64_t ulExpected) const { return !m_bOverrun && m_ulOffset == ulExpected; }

protected:
    /// The caller's count follows every step; the cursor reads its own copy,
    /// which the bytes it copies cannot alias.
    void SetOffset(uint64_t ulOffset)
    {
        m_ulOffset = ulOffset;
        *m_pulOffset = ulOffset;
    }

    /// Null buffer or short image: "false" and no access.
    bool Fits(uint64_t ulExpected)
    {
        if (m_pBuffer == nullptr || ulExpected > m_uiLength)
        {
            ZEL_ASSERT(false);
            return false;
        }
        return true;
    }

    /// Claims ulSize bytes at the running count; false, and nothing claimed,
    /// when they are not there.
    bool Claim(uint64_t ulSize, TByte*& rpAt)
    {
        if (ulSize > Remaining())
        {
            m_bOverrun = true;
            return false;
        }
        rpAt = Here();
        SetOffset(m_ulOffset + ulSize);
        return true;
    }

    /// Adds the count of a nested call, then reports its failure if asked.
    bool Nested(bool bOk, uint64_t ulUsed, bool bReport)
    {
        SetOffset(m_ulOffset + ulUsed);
        if (!bOk)
        {
            if (bReport)
            {
                ZEL_ASSERT(false);
            }
            m_bOverrun = true;
        }
        return bOk;
    }

    TByte* m_pBuffer;
    uint64_t m_uiLength;
    uint64_t m_ulLocal = 0;
    uint64_t* m_pulOffset;
    uint64_t m_ulOffset;
    bool m_bOverrun = false;
};

/// Writer side. The running count is an output: the record sets it to 0 and
/// leaves in it the number of bytes handled. A record whose size was
/// misstated stops writing where the buffer ends instead of running past it.
class CBinWriter : public CBinCursor<unsigned char>
{
public:
    static constexpr bool c_bLoading = false;
    static constexpr bool c_bSizing = false;

    using CBinCursor::CBinCursor;

    template <class T> bool Raw(const T& rValue)
    {
        static_assert(std::is_trivially_copyable<T>::value, "raw fields must be trivially copyable");
        if constexpr (std::is_array<T>::value)
        {
            for (const auto& rElem : rValue)
            {
                Raw(rElem);
            }
            return !m_bOverrun;
        }
        else
        {
            return Bytes(&rValue, sizeof(T));
        }
    }

    /// A field stored in another width than in memory (an enumeration in 1 byte, say).
    template <class TStored, class T> bool RawAs(const T& rValue)
    {
        return Raw(static_cast<TStored>(rValue));
    }

    bool Bytes(const void* pSource, uint64_t ulSize)
    {
        unsigned char* pAt = nullptr;
        if (!Claim(ulSize, pAt))
        {
            return false;
        }
        if (ulSize != 0)
        {
            std::memcpy(pAt, pSource, static_cast<size_t>(ulSize));
        }
        return true;
    }

    /// Reserved and filling bytes go out as zero: images are deterministic.
    bool Reserved(uint64_t ulSize)
    {
        unsigned char* pAt = nullptr;
        if (!Claim(ulSize, pAt))
        {
            return false;
        }
        std::memset(pAt, 0, static_cast<size_t>(ulSize));
        return true;
    }
    bool Fill(uint64_t ulSize) { return Reserved(ulSize); }

    bool Version(uint8_t ucVersion) { return Raw(ucVersion); }

    /// A nested record through its own writer; its count is added first, then
    /// a failure is reported here as well, unless the record says otherwise.
    template <class R> bool Record(const R& rRecord, bool bReport = true)
    {
        uint64_t ulLocal = 0;
        const bool bOk = rRecord.saveData(Here(), Remaining(), &ulLocal);
        return Nested(bOk, ulLocal, bReport);
    }

    /// A nested Ext image (no count of its own): it takes its getSize bytes,
    /// and a failure is reported here once more.
    template <class R> bool ExtRecord(const R& rRecord)
    {
        const bool bOk = rRecord.saveData(Here(), Remaining());
        return Nested(bOk, bOk ? rRecord.getSize() : 0, true);
    }

    /// A nested record's fields in place, with no bounds test of its own.
    template <class R> bool Inline(const R& rRecord) { return R::VisitFields(*this, rRecord); }

    /// A nested record's fields in place, or a plain value raw.
    template <class T> bool Field(const T& rValue)
    {
        if constexpr (SHasVisitFields<T>::value)
        {
            return Inline(rValue);
        }
        else
        {
            return Raw(rValue);
        }
    }

    /// The bytes of a record's memory layout, for records whose image is it.
    template <class R> bool Block(const R& rRecord, uint64_t ulSize)
    {
        static_assert(std::is_trivially_copyable<R>::value, "a block is a byte copy");
        return ulSize <= sizeof(R) ? Bytes(&rRecord, ulSize) : (Fail(), false);
    }

    /// The 32-bit element count of a sequence.
    bool Count(uint64_t ulCount) { return Raw(static_cast<uint32_t>(ulCount)); }

    /// A sequence of records: count, then each element's own image.
    template <class Seq> bool Sequence(const Seq& rSeq, bool bReport = true)
    {
        Count(rSeq.size());
        for (const auto& rElem : rSeq)
        {
            if (!Record(rElem, bReport))
            {
                return false;
            }
        }
        return !m_bOverrun;
    }

    template <class TCount = uint32_t, class Seq> bool ExtSequence(const Seq& rSeq)
    {
        Raw(static_cast<TCount>(rSeq.size()));
        for (const auto& rElem : rSeq)
        {
            if (!ExtRecord(rElem))
            {
                return false;
            }
        }
        return !m_bOverrun;
    }

    /// A sequence kept sorted: written as it stands.
    template <class Seq> bool SortedSequence(const Seq& rSeq, bool bReport = true)
    {
        return Sequence(rSeq, bReport);
    }

    /// A sequence of plain values: count, then each value raw.
    template <class Seq> bool RawSequence(const Seq& rSeq)
    {
        Count(rSeq.size());
        for (const auto& rElem : rSeq)
        {
            Raw(rElem);
        }
        return !m_bOverrun;
    }

    /// A map: count, then per entry the key's fields and the value, in the
    /// map's iteration order.
    template <class TMap> bool Map(const TMap& rMap)
    {
        Count(rMap.size());
        for (const auto& rEntry : rMap)
        {
            Field(rEntry.first);
            Field(rEntry.second);
        }
        return !m_bOverrun;
    }

    /// Rows of plain values: the row count, then per row its count and values.
    template <class Rows> bool RawRows(const Rows& rRows)
    {
        Count(rRows.size());
        for (const auto& rRow : rRows)
        {
            RawSequence(rRow);
        }
        return !m_bOverrun;
    }

    /// A hash map in the order of its keys: count, then per entry the key's
    /// fields and the value's own image. A value that fails ends the map
    /// without an outer report.
    template <class TMap> bool SortedMap(const TMap& rMap)
    {
        Count(rMap.size());
        for (const auto* pEntry : SortedEntries(rMap))
        {
            if (!Field(pEntry->first) || !Record(pEntry->second, false))
            {
                return false;
            }
        }
        return !m_bOverrun;
    }
};

/// Reader side, the mirror of CBinWriter. Raw reads are checked against the
/// remaining length, so that a forged count fails at the element where the
/// buffer ends instead of reading past it.
class CBinReader : public CBinCursor<const unsigned char>
{
public:
    static constexpr bool c_bLoading = true;
    static constexpr bool c_bSizing = false;

    using CBinCursor::CBinCursor;

    /// False, and nothing read, when the buffer ends. A bool comes in through
    /// a byte: any value but 0 is true, since a raw byte other than 0 or 1 is
    /// no valid bool. Enumerations read this way have a fixed underlying
    /// type, so that every image value is valid.
    template <class T> bool Raw(T& rValue)
    {
        static_assert(std::is_trivially_copyable<T>::value, "raw fields must be trivially copyable");
        if constexpr (std::is_array<T>::value)
        {
            for (auto& rElem : rValue)
            {
                if (!Raw(rElem))
                {
                    return false;
                }
            }
            return true;
        }
        else if constexpr (std::is_same<T, bool>::value)
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
            static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
            return Bytes(&rValue, sizeof(T));
        }
    }

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

    /// A short leaf item inside a sequence: its own bound test, reported.
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
        const unsigned char* pAt = nullptr;
        if (!Claim(ulSize, pAt))
        {
            return false;
        }
        if (ulSize != 0)
        {
            std::memcpy(pTarget, pAt, static_cast<size_t>(ulSize));
        }
        return true;
    }

    /// Reserved and filling bytes are passed over.
    bool Reserved(uint64_t ulSize)
    {
        const unsigned char* pAt = nullptr;
        return Claim(ulSize, pAt);
    }
    bool Skip(uint64_t ulSize) { return Reserved(ulSize); }

    /// The version byte was looked at by the gate before any field.
    bool Version(uint8_t) { return Reserved(1); }

    /// A nested record through its own reader; its count is added first.
    /// Most readers only return on failure; bReport adds the outer "false".
    template <class R> bool Record(R& rRecord, bool bReport = false)
    {
        uint64_t ulLocal = 0;
        const bool bOk = rRecord.loadData(Here(), Remaining(), &ulLocal);
        return Nested(bOk, ulLocal, bReport);
    }

    template <class R> bool ExtRecord(R& rRecord)
    {
        const bool bOk = rRecord.loadData(Here(), Remaining());
        return Nested(bOk, bOk ? rRecord.getSize() : 0, true);
    }

    template <class R> bool Inline(R& rRecord) { return R::VisitFields(*this, rRecord); }

    template <class T> bool Field(T& rValue)
    {
        if constexpr (SHasVisitFields<T>::value)
        {
            return Inline(rValue);
        }
        else
        {
            return Raw(rValue);
        }
    }

    template <class R> bool Block(R& rRecord, uint64_t ulSize)
    {
        static_assert(std::is_trivially_copyable<R>::value, "a block is a byte copy");
        return ulSize <= sizeof(R) ? Bytes(&rRecord, ulSize) : (Fail(), false);
    }

    bool Count(uint32_t& rulCount)
    {
        rulCount = 0;
        return Raw(rulCount);
    }

    /// A sequence of records. A count the remaining bytes can hold resizes
    /// the sequence to it (shrinking drops the tail, growing default-
    /// constructs) and each element reads itself; a read that ends inside an
    /// element leaves the sequence at the count. A larger count cannot be
    /// read whole: the sequence is sized to what the bytes can hold and
    /// grows as elements are read, up to the one where the buffer ends.
    template <class Seq> bool Sequence(Seq& rSeq, bool bReport = false)
    {
        uint32_t ulCount = 0;
        if (!Count(ulCount))
        {
            return false;
        }
        return Elements(rSeq, ulCount, [this, bReport](auto& rElem) { return this->Record(rElem, bReport); });
    }

    /// A sequence of Ext records behind a count of TCount (32 or 64 bits);
    /// an element that fails is reported here once more.
    template <class TCount = uint32_t, class Seq> bool ExtSequence(Seq& rSeq)
    {
        TCount tCount = 0;
        if (!Raw(tCount))
        {
            return false;
        }
        return Elements(rSeq, static_cast<uint64_t>(tCount),
                        [this](auto& rElem) { return this->ExtRecord(rElem); });
    }

    /// A sorted sequence sorts itself after its last element, so that its
    /// order holds whatever the source did.
    template <class Seq> bool SortedSequence(Seq& rSeq, bool bReport = false)
    {
        if (!Sequence(rSeq, bReport))
        {
            return false;
        }
        std::sort(rSeq.begin(), rSeq.end());
        return true;
    }

    /// A sequence of plain values, each with its own reported bound test.
    template <class Seq> bool RawSequence(Seq& rSeq)
    {
        using T = typename Seq::value_type;
        uint32_t ulCount = 0;
        if (!Count(ulCount))
        {
            return false;
        }
        const uint64_t ulPresize = PresizeCount(ulCount, Remaining(), sizeof(T));
        ReserveForOneMore(rSeq, ulCount, ulPresize);
        rSeq.resize(static_cast<size_t>(ulPresize));
        for (uint64_t ulIdx = 0; ulIdx < ulCount; ++ulIdx)
        {
            if (ulIdx >= rSeq.size())
            {
                rSeq.emplace_back();
            }
            if (!RawChecked(rSeq[static_cast<size_t>(ulIdx)]))
            {
                return false;
            }
        }
        return true;
    }

    /// A map: entries are inserted as they are read, each with its own
    /// reported bound test; a key read twice keeps the last value.
    template <class TMap> bool Map(TMap& rMap)
    {
        using K = typename TMap::key_type;
        using V = typename TMap::mapped_type;
        uint32_t ulCount = 0;
        if (!Count(ulCount))
        {
            return false;
        }
        const uint64_t ulEntry = EntrySize<K, V>();
        for (uint32_t ulIdx = 0; ulIdx < ulCount; ++ulIdx)
        {
            if (ulEntry > Remaining())
            {
                ZEL_ASSERT(false);
                m_bOverrun = true;
                return false;
            }
            K tKey{};
            V tValue{};
            Field(tKey);
            Field(tValue);
            rMap[tKey] = tValue;
        }
        return true;
    }

    /// Rows of plain values. Rows and values are presized by what the bytes
    /// can hold and grow beyond, as a sequence. A count or value that is not
    /// there fails without a report: the record's own size test is the check.
    template <class Rows> bool RawRows(Rows& rRows)
    {
        uint32_t ulRows = 0;
        if (!Count(ulRows))
        {
            return false;
        }
        return Grow(rRows, ulRows, sizeof(uint32_t),
                    [this](auto& rRow)
                    {
                        uint32_t ulValues = 0;
                        return Count(ulValues) &&
                               Grow(rRow, ulValues, sizeof(typename std::decay_t<decltype(rRow)>::value_type),
                                    [this](auto& rValue) { return this->Raw(rValue); });
                    });
    }

    /// A map written in key order: the map is replaced by the entries read,
    /// each taken once whole; a key read twice keeps the last value. A value
    /// that fails ends the map without an outer report.
    template <class TMap> bool SortedMap(TMap& rMap)
    {
        uint32_t ulCount = 0;
        if (!Count(ulCount))
        {
            return false;
        }
        rMap.clear();
        for (uint32_t ulIdx = 0; ulIdx < ulCount; ++ulIdx)
        {
            typename TMap::key_type tKey{};
            typename TMap::mapped_type tValue{};
            if (!Field(tKey) || !Record(tValue, false))
            {
                return false;
            }
            rMap[tKey] = std::move(tValue);
        }
        return true;
    }

    template <class K, class V> static uint64_t EntrySize();

private:
    /// A count beyond what the bytes hold can add one element after the
    /// presized ones (the one where the buffer ends); room for it is made at
    /// once, so that the vector never grows by reallocation.
    /// The elements of a sequence after its count, sized as Sequence says.
    template <class Seq, class F> bool Elements(Seq& rSeq, uint64_t ulCount, F fnRead)
    {
        return Grow(rSeq, ulCount, MinImageSize<typename Seq::value_type>(), fnRead);
    }

    /// The same with the smallest image of an element given.
    template <class Seq, class F> bool Grow(Seq& rSeq, uint64_t ulCount, uint64_t ulMinImage, F fnRead)
    {
        const uint64_t ulPresize = PresizeCount(ulCount, Remaining(), ulMinImage);
        ReserveForOneMore(rSeq, ulCount, ulPresize);
        rSeq.resize(static_cast<size_t>(ulPresize));
        for (uint64_t ulIdx = 0; ulIdx < ulCount; ++ulIdx)
        {
            if (ulIdx >= rSeq.size())
            {
                rSeq.emplace_back();
            }
            if (!fnRead(rSeq[static_cast<size_t>(ulIdx)]))
            {
                return false;
            }
        }
        return true;
    }

    template <class Seq> static void ReserveForOneMore(Seq& rSeq, uint64_t ulCount, uint64_t ulPresize)
    {
        if (ulCount > ulPresize && rSeq.capacity() < ulPresize + 1)
        {
            rSeq.reserve(static_cast<size_t>(ulPresize + 1));
        }
    }
};

/// Counts the bytes of an image without a buffer: getSize of a record whose
/// image is fixed, derived from the same statement.
class CBinSizer
{
public:
    static constexpr bool c_bLoading = false;
    static constexpr bool c_bSizing = true;

    /// Returns m_ulSize.
    uint64_t Size() const { return m_ulSize; }

    template <class T> bool Raw(const T&) { return Add(sizeof(T)); }
    template <class TStored, class T> bool RawAs(const T&) { return Add(sizeof(TStored)); }
    bool Bytes(const void*, uint64_t ulSize) { return Add(ulSize); }
    bool Reserved(uint64_t ulSize) { return Add(ulSize); }
    bool Fill(uint64_t ulSize) { return Add(ulSize); }
    bool Skip(uint64_t ulSize) { return Add(ulSize); }
    bool Version(uint8_t) { return Add(1); }
    template <class R> bool Record(const R& rRecord, bool = true) { return Add(rRecord.getSize()); }
    template <class R> bool ExtRecord(const R& rRecord) { return Add(rRecord.getSize()); }
    template <class R> bool Inline(const R& rRecord) { return R::VisitFields(*this, rRecord); }
    template <class T> bool Field(const T& rValue)
    {
        if constexpr (SHasVisitFields<T>::value)
        {
            return Inline(rValue);
        }
        else
        {
            return Raw(rValue);
        }
    }
    template <class R> bool Block(const R&, uint64_t ulSize) { return Add(ulSize); }
    bool Count(uint64_t) { return Add(4); }
    template <class Seq> bool Sequence(const Seq& rSeq, bool = true)
    {
        Add(4);
        for (const auto& rElem : rSeq)
        {
            Add(rElem.getSize());
        }
        return true;
    }
    template <class Seq> bool SortedSequence(const Seq& rSeq, bool = true) { return Sequence(rSeq); }
    template <class TCount = uint32_t, class Seq> bool ExtSequence(const Seq& rSeq)
    {
        Add(sizeof(TCount));
        for (const auto& rElem : rSeq)
        {
            Add(rElem.getSize());
        }
        return true;
    }
    template <class Seq> bool RawSequence(const Seq& rSeq)
    {
        return Add(4 + rSeq.size() * sizeof(typename Seq::value_type));
    }
    template <class TMap> bool Map(const TMap& rMap)
    {
        return Add(4 + rMap.size() *
                           CBinReader::EntrySize<typename TMap::key_type, typename TMap::mapped_type>());
    }
    template <class Rows> bool RawRows(const Rows& rRows)
    {
        Add(4);
        for (const auto& rRow : rRows)
        {
            RawSequence(rRow);
        }
        return true;
    }
    template <class TMap> bool SortedMap(const TMap& rMap)
    {
        Add(4);
        for (const auto& rEntry : rMap)
        {
            Field(rEntry.first);
            Record(rEntry.second);
        }
        return true;
    }

private:
    bool Add(uint64_t ulSize)
    {
        m_ulSize += ulSize;
        return true;
    }

    uint64_t m_ulSize = 0;
};

template <class K, class V> inline uint64_t CBinReader::EntrySize()
{
    CBinSizer stSizer;
    const K tKey{};
    const V tValue{};
    stSizer.Field(tKey);
    stSizer.Field(tValue);
    return stSizer.Size();
}

/// The visitor of a record's own static VisitFields.
struct SMemberVisitor
{
    template <class IO, class R> bool operator()(IO& io, R& r) const
    {
        return std::remove_const_t<R>::VisitFields(io, r);
    }
};

/// The size of a record's image from its statement.
template <class R> inline uint64_t SizeOf(const R& rRecord)
{
    CBinSizer stSizer;
    R::VisitFields(stSizer, rRecord);
    return stSizer.Size();
}

/// Core saveData and loadData in one call each. A leaf clears the count
/// before the bounds test, any other record after it; the count is compared
/// with the size at the end (worked out again after loading).
template <class R, class V = SMemberVisitor>
inline bool SaveLeaf(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                     V fnVisit = V())
{
    CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    return stOut.BeginLeaf(rRecord.getSize()) && fnVisit(stOut, rRecord) && stOut.End(rRecord.getSize());
}

template <class R, class V = SMemberVisitor>
inline bool LoadLeaf(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                     V fnVisit = V())
{
    CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    return stIn.BeginLeaf(rRecord.getSize()) && fnVisit(stIn, rRecord) && stIn.End(rRecord.getSize());
}

template <class R, class V = SMemberVisitor>
inline bool SaveFixed(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                      V fnVisit = V())
{
    CBinWriter stOut(pBuffer, uiBufferLength, pulOffset);
    return stOut.Begin(rRecord.getSize()) && fnVisit(stOut, rRecord) && stOut.End(rRecord.getSize());
}

template <class R, class V = SMemberVisitor>
inline bool LoadFixed(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset,
                      V fnVisit = V())
{
    CBinReader stIn(pBuffer, uiBufferLength, pulOffset);
    return stIn.Begin(rRecord.getSize()) && fnVisit(stIn, rRecord) && stIn.End(rRecord.getSize());
}

/// Null buffer or short image: "false" and no access.
inline bool ExtFits(const void* pBuffer, uint64_t uiBufferLength, uint64_t ulExpected)
{
    if (pBuffer == nullptr || ulExpected > uiBufferLength)
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

/// The gate of a versioned Ext image, looked at before its length: buffer,
/// then version (refused with the class's own text, or silently when there
/// is none), then length. An empty buffer has no version byte to look at:
/// it fails as a short one.
inline bool ExtVersionGate(const unsigned char* pBuffer, uint64_t uiBufferLength, uint8_t ucVersion,
                           const char* szOldVersion, uint64_t ulImageSize)
{
    if (pBuffer == nullptr || uiBufferLength == 0)
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (pBuffer[0] != ucVersion)
    {
        if (szOldVersion != nullptr)
        {
            ZEL_REPORT(szOldVersion);
        }
        return false;
    }
    return ExtFits(pBuffer, uiBufferLength, ulImageSize);
}

/// Ext saveData and loadData in one call each: the length test, then the
/// fields; true when all of them fitted.
template <class R, class V = SMemberVisitor>
inline bool SaveExt(const R& rRecord, unsigned char* pBuffer, uint64_t uiBufferLength, V fnVisit = V())
{
    if (!ExtFits(pBuffer, uiBufferLength, rRecord.getSize()))
    {
        return false;
    }
    CBinWriter stOut(pBuffer, uiBufferLength, nullptr);
    return fnVisit(stOut, rRecord) && !stOut.Failed();
}

template <class R, class V = SMemberVisitor>
inline bool LoadExt(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength, V fnVisit = V())
{
    if (!ExtFits(pBuffer, uiBufferLength, rRecord.getSize()))
    {
        return false;
    }
    CBinReader stIn(pBuffer, uiBufferLength, nullptr);
    return fnVisit(stIn, rRecord) && !stIn.Failed();
}

/// A versioned Ext image: the gate with the version of the layout and the
/// class's "received old version." text (nullptr: refused silently).
template <class R, class V = SMemberVisitor>
inline bool LoadExtVersioned(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength,
                             uint8_t ucVersion, const char* szOldVersion, V fnVisit = V())
{
    if (!ExtVersionGate(pBuffer, uiBufferLength, ucVersion, szOldVersion, rRecord.getSize()))
    {
        return false;
    }
    CBinReader stIn(pBuffer, uiBufferLength, nullptr);
    return fnVisit(stIn, rRecord) && !stIn.Failed();
}

// ---------------------------------------------------------------------------
// Text form, the small pieces: a comma costs one char extraction (which
// skips whitespace first); 8-bit numbers print as numbers; enumeration words.
// ---------------------------------------------------------------------------

inline std::istream& SkipComma(std::istream& is)
{
    char cComma = 0;
    is >> cComma;
    return is;
}

/// Printable form of an 8-bit number (never a character).
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

/// An enumeration word: one token; one trailing comma is removed, so the
/// comma after the word is consumed with it. Unknown words give iInvalid.
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

/// The word of an enumeration value from a table indexed by value.
inline const char* EnumWord(int iValue, const char* const* aszWords, size_t ulNbWords, const char* szInvalid)
{
    if (iValue < 0 || static_cast<size_t>(iValue) >= ulNbWords)
    {
        return szInvalid;
    }
    return aszWords[iValue];
}

// ---------------------------------------------------------------------------
// Text form: one statement of the line for both directions.
//
// A record states its line once, in a static member
//     template <class IO, class Self> static void VisitText(IO& io, Self& r)
// with the tag strings as they stand in the line:
//     io.Tag("SatId, ").Value(r.stSatId).Tag(", Frq, ").Wide<int32_t>(r.eFrq);
// The reader's steps are derived from each tag string: every "," of it
// costs one char extraction (which skips whitespace first), every other
// word one token read into a scratch string; so ", Frq, " is one char read
// and one token read, and "SatId, " one token read. Tags are never compared.
// Where a record's line really differs between the two directions, the
// visitor says so with `if constexpr (IO::c_bReading)`.
// ---------------------------------------------------------------------------

/// Elements of a text sequence given in advance from its count: at most 4096,
/// and at most c_ulALLOC_CONSTANT bytes of them; a larger count grows as its
/// elements are read, so that a forged count costs no more than that.
constexpr uint32_t c_ulTEXT_PRESIZE_MAX = 4096;
template <class T> constexpr uint32_t TextPresizeMax()
{
    return c_ulALLOC_CONSTANT / sizeof(T) < c_ulTEXT_PRESIZE_MAX
               ? static_cast<uint32_t>(c_ulALLOC_CONSTANT / sizeof(T) > 0 ? c_ulALLOC_CONSTANT / sizeof(T)
                                                                          : 1)
               : c_ulTEXT_PRESIZE_MAX;
}

class CTextWriter
{
public:
    static constexpr bool c_bReading = false;

    explicit CTextWriter(std::ostream& os) : m_os(os) {}
    std::ostream& Stream() { return m_os; }

    CTextWriter& Tag(const char* szTag)
    {
        m_os << szTag;
        return *this;
    }

    /// A plain insertion: numbers, nested records, words.
    template <class T> CTextWriter& Value(const T& rValue)
    {
        m_os << rValue;
        return *this;
    }

    /// Small integers, bools and enumerations through a wider type, so that
    /// an 8-bit value prints as a number and not as a character.
    template <class TWide, class T> CTextWriter& Wide(const T& rValue)
    {
        m_os << static_cast<TWide>(rValue);
        return *this;
    }

    /// A bit field in hexadecimal; the base goes back to decimal after it.
    template <class TWide, class T> CTextWriter& Hex(const T& rValue)
    {
        m_os << std::hex << static_cast<TWide>(rValue) << std::dec;
        return *this;
    }

    /// An enumeration as its word from a table indexed by value; szInvalid
    /// for a value outside the table.
    template <class T, size_t N>
    CTextWriter& Word(const T& rValue, const char* const (&aszWords)[N], const char* szInvalid, int = -1)
    {
        const int iValue = static_cast<int>(rValue);
        m_os << ((iValue < 0 || static_cast<size_t>(iValue) >= N) ? szInvalid : aszWords[iValue]);
        return *this;
    }

    /// A fixed array: elements separated by ", ", no tag per element.
    template <class T, size_t N> CTextWriter& Array(const T (&aValues)[N])
    {
        for (size_t ulIdx = 0; ulIdx < N; ++ulIdx)
        {
            if (ulIdx != 0)
            {
                m_os << ", ";
            }
            m_os << aValues[ulIdx];
        }
        return *this;
    }

    /// A sequence: its count under its tag, then ", " and each element.
    template <class Seq> CTextWriter& Sequence(const Seq& rSeq, const char* szCountTag)
    {
        m_os << szCountTag << rSeq.size();
        for (const auto& rElem : rSeq)
        {
            m_os << ", " << rElem;
        }
        return *this;
    }

    /// A nested value with a form of its own (a time in milliseconds, say).
    template <class T, class F> CTextWriter& Form(const T& rValue, F eForm)
    {
        rValue.WriteText(m_os, eForm);
        return *this;
    }

    /// Stream settings; set and not restored, as every writer does.
    CTextWriter& Precision(int iDigits)
    {
        m_os << std::setprecision(iDigits);
        return *this;
    }
    CTextWriter& Scientific()
    {
        m_os << std::scientific;
        return *this;
    }
    CTextWriter& Fixed()
    {
        m_os << std::fixed;
        return *this;
    }
    CTextWriter& ShowBase()
    {
        m_os << std::showbase;
        return *this;
    }

private:
    std::ostream& m_os;
};

class CTextReader
{
public:
    static constexpr bool c_bReading = true;

    explicit CTextReader(std::istream& is) : m_is(is) {}
    std::istream& Stream() { return m_is; }

    /// The steps of a tag string: a char read per ",", a token read per word.
    CTextReader& Tag(const char* szTag)
    {
        const char* pc = szTag;
        while (*pc != '\0')
        {
            if (IsBlank(*pc))
            {
                ++pc;
                continue;
            }
            if (*pc == ',')
            {
                char cComma = 0;
                m_is >> cComma;
                ++pc;
                continue;
            }
            std::string strTag;
            m_is >> strTag;
            while (*pc != '\0' && !IsBlank(*pc))
            {
                ++pc;
            }
        }
        return *this;
    }

    template <class T> CTextReader& Value(T& rValue)
    {
        m_is >> rValue;
        return *this;
    }

    /// On a failed extraction the value gets the temporary's zero.
    template <class TWide, class T> CTextReader& Wide(T& rValue)
    {
        static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
        TWide tWide{};
        m_is >> tWide;
        rValue = static_cast<T>(tWide);
        return *this;
    }

    template <class TWide, class T> CTextReader& Hex(T& rValue)
    {
        static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
        TWide tWide{};
        m_is >> std::hex >> tWide >> std::dec;
        rValue = static_cast<T>(tWide);
        return *this;
    }

    /// A word: one token, trailing blanks and one trailing comma cut off, so
    /// that the comma after the word goes with it; an unknown word gives
    /// iInvalid.
    template <class T, size_t N>
    CTextReader& Word(T& rValue, const char* const (&aszWords)[N], const char*, int iInvalid = -1)
    {
        static_assert(IsFixedEnum<T>(), "enumerations need a fixed underlying type");
        rValue = static_cast<T>(ReadEnumWordOf(m_is, aszWords, N, iInvalid));
        return *this;
    }

    /// The loop counts so that no comma is read after the last element.
    template <class T, size_t N> CTextReader& Array(T (&aValues)[N])
    {
        for (size_t ulIdx = 0; ulIdx < N; ++ulIdx)
        {
            if (ulIdx != 0)
            {
                char cComma = 0;
                m_is >> cComma;
            }
            m_is >> aValues[ulIdx];
        }
        return *this;
    }

    /// The count after its tag sizes the sequence (within the text bound),
    /// then each element is read after its ", ". A text cut before the count
    /// leaves the sequence as it was; a failed stream ends the loop.
    template <class Seq> CTextReader& Sequence(Seq& rSeq, const char* szCountTag)
    {
        Tag(szCountTag);
        uint32_t ulCount = 0;
        if (!(m_is >> ulCount))
        {
            return *this;
        }
        constexpr uint32_t ulMax = TextPresizeMax<typename Seq::value_type>();
        rSeq.resize(ulCount <= ulMax ? ulCount : ulMax);
        for (uint32_t ulIdx = 0; ulIdx < ulCount && m_is; ++ulIdx)
        {
            if (ulIdx >= rSeq.size())
            {
                rSeq.emplace_back();
            }
            char cComma = 0;
            m_is >> cComma;
            m_is >> rSeq[ulIdx];
        }
        return *this;
    }

    template <class T, class F> CTextReader& Form(T& rValue, F eForm)
    {
        rValue.ReadText(m_is, eForm);
        return *this;
    }

    CTextReader& Precision(int) { return *this; }
    CTextReader& Scientific() { return *this; }
    CTextReader& Fixed() { return *this; }
    CTextReader& ShowBase() { return *this; }

    static int ReadEnumWordOf(std::istream& is, const char* const* aszWords, size_t ulNbWords, int iInvalid)
    {
        return ReadEnumWord(is, aszWords, ulNbWords, iInvalid);
    }

private:
    static bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

    std::istream& m_is;
};

/// operator<< and operator>> of a record with a static VisitText.
template <class R> inline std::ostream& WriteText(std::ostream& os, const R& rRecord)
{
    CTextWriter stOut(os);
    R::VisitText(stOut, rRecord);
    return os;
}

template <class R> inline std::istream& ReadText(std::istream& is, R& rRecord)
{
    CTextReader stIn(is);
    R::VisitText(stIn, rRecord);
    return is;
}

} // namespace ZelIo
} // namespace ZELN

#endif
