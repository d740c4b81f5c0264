#ifndef ZELTYPES_TOOLS_ZELRECORDREGISTRY_H
#define ZELTYPES_TOOLS_ZELRECORDREGISTRY_H

// The registry of record kinds: every record of the library that has a
// binary form, with its name, its family, and how to make one, write and
// read its image and its text. It drives the record inspector, the
// registry round-trip test and the registry fuzz target. It lives beside
// the library, not in it, so that the library's exported surface stays
// what its records give.

#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ZelTools
{

// Core records take a running count; Ext records (ZELX_...) do not.
enum ERecordFamily
{
    eFAMILY_CORE,
    eFAMILY_EXT
};

// One record of some kind, behind a uniform interface.
class IRecordBox
{
public:
    virtual ~IRecordBox() = default;
    // Bytes of the image, as getSize gives them.
    virtual uint64_t Size() const = 0;
    // The image into a buffer of exactly Size() bytes; false as saveData.
    virtual bool Save(std::vector<unsigned char>& rvecImage) const = 0;
    // loadData from the given bytes; the count of a Core reader in *pulCount.
    virtual bool Load(const unsigned char* pBuffer, uint64_t ulLength, uint64_t* pulCount) = 0;
    // Whether the kind has a text line; the two below do nothing otherwise.
    virtual bool HasText() const = 0;
    virtual void WriteText(std::ostream& os) const = 0;
    virtual void ReadText(std::istream& is) = 0;
    virtual bool Equals(const IRecordBox& rOther) const = 0;
    virtual std::unique_ptr<IRecordBox> Clone() const = 0;
};

struct SRecordKind
{
    std::string strName;
    ERecordFamily eFamily;
    // A default record of the kind.
    std::function<std::unique_ptr<IRecordBox>()> fnMake;
    // A record of the kind with non-default values in its fields.
    std::function<std::unique_ptr<IRecordBox>()> fnSample;
};

// Every kind, in the order of registration.
const std::vector<SRecordKind>& RecordKinds();
// The kind of that name, or nullptr.
const SRecordKind* FindRecordKind(const std::string& strName);

template <class R, class = void> struct SHasText : std::false_type
{
};
template <class R>
struct SHasText<R, std::void_t<decltype(std::declval<std::ostream&>() << std::declval<const R&>()),
                               decltype(std::declval<std::istream&>() >> std::declval<R&>())>>
    : std::true_type
{
};

template <class R> class CRecordBox : public IRecordBox
{
public:
    CRecordBox() = default;
    explicit CRecordBox(const R& rRecord) : m_Record(rRecord) {}

    uint64_t Size() const override { return m_Record.getSize(); }
    bool Save(std::vector<unsigned char>& rvecImage) const override
    {
        rvecImage.assign(static_cast<size_t>(m_Record.getSize()), 0);
        if constexpr (IsCore())
        {
            uint64_t ulCount = 0;
            return m_Record.saveData(rvecImage.data(), rvecImage.size(), &ulCount);
        }
        else
        {
            return m_Record.saveData(rvecImage.data(), rvecImage.size());
        }
    }
    bool Load(const unsigned char* pBuffer, uint64_t ulLength, uint64_t* pulCount) override
    {
        if constexpr (IsCore())
        {
            return m_Record.loadData(pBuffer, ulLength, pulCount);
        }
        else
        {
            if (pulCount != nullptr)
            {
                *pulCount = 0;
            }
            return m_Record.loadData(pBuffer, ulLength);
        }
    }
    bool HasText() const override { return SHasText<R>::value; }
    void WriteText(std::ostream& os) const override
    {
        if constexpr (SHasText<R>::value)
        {
            os << m_Record;
        }
    }
    void ReadText(std::istream& is) override
    {
        if constexpr (SHasText<R>::value)
        {
            is >> m_Record;
        }
    }
    bool Equals(const IRecordBox& rOther) const override
    {
        const auto* pOther = dynamic_cast<const CRecordBox<R>*>(&rOther);
        return pOther != nullptr && m_Record == pOther->m_Record;
    }
    std::unique_ptr<IRecordBox> Clone() const override { return std::make_unique<CRecordBox<R>>(m_Record); }

    static constexpr bool IsCore()
    {
        return std::is_invocable_r<bool, decltype(&R::loadData), R&, const unsigned char*, uint64_t,
                                   uint64_t*>::value;
    }

    R m_Record;
};

// The one line that registers a record: its name and a maker of a sample.
template <class R, class F> SRecordKind Kind(const char* szName, F fnSample)
{
    return {szName, CRecordBox<R>::IsCore() ? eFAMILY_CORE : eFAMILY_EXT,
            [] { return std::unique_ptr<IRecordBox>(new CRecordBox<R>()); },
            [fnSample] { return std::unique_ptr<IRecordBox>(new CRecordBox<R>(fnSample())); }};
}

} // namespace ZelTools

#endif
