#ifndef ZELTYPES_FUZZ_FUZZSEEDS_H
#define ZELTYPES_FUZZ_FUZZSEEDS_H

// Seed corpora are produced by the library's own writers: each seeds_*.cpp
// registers, per fuzz target, a function that returns valid images or texts.

#include <functional>
#include <string>
#include <vector>

namespace ZelFuzz
{

typedef std::function<std::vector<std::string>()> SeedMaker;

struct SSeedEntry
{
    std::string strTarget;
    SeedMaker fnMake;
};

inline std::vector<SSeedEntry>& SeedRegistry()
{
    static std::vector<SSeedEntry> s_vecEntries;
    return s_vecEntries;
}

struct SSeedRegistrar
{
    SSeedRegistrar(const char* szTarget, SeedMaker fnMake)
    {
        SeedRegistry().push_back({szTarget, std::move(fnMake)});
    }
};

// The image a record's saveData writes, as a string of bytes.
template <class R> std::string CoreImage(const R& rRecord)
{
    std::string strImage(static_cast<size_t>(rRecord.getSize()), '\0');
    uint64_t ulOffset = 0;
    rRecord.saveData(reinterpret_cast<unsigned char*>(&strImage[0]), strImage.size(), &ulOffset);
    return strImage;
}

} // namespace ZelFuzz

#endif
