#ifndef ZELTYPES_CORE_COMMON_ZELTYPESKLOB_H
#define ZELTYPES_CORE_COMMON_ZELTYPESKLOB_H

/// \file
/// SZelKlobucharCoefficients: the broadcast coefficients of the single-layer
/// ionosphere model. The library carries them; a client evaluates the model.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// The region the coefficients were made for; 32 bits in the image.
enum EZelIonRegionCode : int32_t
{
    ZELIONREGIONCODE_WIDE_AREA = 0,
    ZELIONREGIONCODE_JAPAN = 1
};

/// One letter: "W", "J"; another value reports "false" and prints "?".
ZELTYPES_API std::ostream& operator<<(std::ostream& os, EZelIonRegionCode eCode);
/// One character: W gives 0, J gives 1; any other character reports "false"
/// and gives 0. A stream that has no character left changes nothing.
ZELTYPES_API std::istream& operator>>(std::istream& is, EZelIonRegionCode& reCode);

/// The coefficients as broadcast; their units (seconds per semicircle to the
/// power of the index) are the broadcasting system's, never scaled here.
struct ZELTYPES_API SZelKlobucharCoefficients
{
    bool bValid = false;                          ///< the coefficients are present
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE; ///< the broadcasting system
    double adAlpha[4] = {0.0, 0.0, 0.0, 0.0};     ///< amplitude terms: s, s/sc, s/sc^2, s/sc^3
    double adBeta[4] = {0.0, 0.0, 0.0, 0.0};      ///< period terms: s, s/sc, s/sc^2, s/sc^3
    /// Region the coefficients apply to: wide area or Japan.
    EZelIonRegionCode eIonRegionCode = ZELIONREGIONCODE_WIDE_AREA;

    /// Resets the record to its default state.
    void clear() { *this = SZelKlobucharCoefficients(); }

    /// 80 bytes, the layout of the record: bValid at 0, 3 reserved, system
    /// at 4, alphas at 8, betas at 40, region at 72, 4 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.bValid);
        io.Reserved(3);
        io.Raw(r.eSatSystem);
        io.Raw(r.adAlpha);
        io.Raw(r.adBeta);
        io.Raw(r.eIonRegionCode);
        return io.Reserved(4);
    }

    /// Written only: "Vld, " flag ", SatSys, " letter ", Alpha, " four values
    /// ", Beta, " four values ", IonRegionCode, " letter.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Vld, ").Value(r.bValid).Tag(", SatSys, ").Value(r.eSatSystem);
        io.Tag(", Alpha, ").Array(r.adAlpha).Tag(", Beta, ").Array(r.adBeta);
        io.Tag(", IonRegionCode, ").Value(r.eIonRegionCode);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// The count is set only on success; a refused call leaves it as it was.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Two records without coefficients are equal whatever they hold; otherwise
/// the alphas and betas at a relative 1e-14, then flag, system and region.
ZELTYPES_API bool operator==(const SZelKlobucharCoefficients& a, const SZelKlobucharCoefficients& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelKlobucharCoefficients& rCoefficients);

} // namespace ZELN

#endif
