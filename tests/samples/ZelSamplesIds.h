#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESIDS_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESIDS_H

// Sample records of the family, shared by tests, benchmarks and seeds:
// satellites, signal keys and GLONASS channels.

#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstdint>
#include <vector>

namespace ZelSample
{

// Satellites of the samples.
inline ZELN::SZelSatID SatG05()
{
    return ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, 5);
}
inline ZELN::SZelSatID SatE11()
{
    return ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GALILEO, 11);
}
inline ZELN::SZelSatID SatC19()
{
    return ZELN::SZelSatID(ZELN::ZELSATSYSTEM_BEIDOU, 19);
}
inline ZELN::SZelSatID SatC61()
{
    return ZELN::SZelSatID(ZELN::ZELSATSYSTEM_BEIDOU, 61);
}

// One identifier of each kind, no field at its default: the records of the
// golden images and lines.
inline ZELN::SZelSatID SatId()
{
    return SatC19();
}
inline ZELN::SZelFrqTMdID FrqTMdId()
{
    return ZELN::SZelFrqTMdID(ZELN::ZELFREQUENCY_GROUP_3, ZELN::ZELTRACKMODE_Q);
}
inline ZELN::SZelSatFrqID SatFrqId()
{
    return ZELN::SZelSatFrqID(SatG05(), ZELN::ZELFREQUENCY_GROUP_2);
}
inline ZELN::SZelSysFrqID SysFrqId()
{
    return ZELN::SZelSysFrqID(ZELN::ZELSATSYSTEM_GALILEO, ZELN::ZELFREQUENCY_GROUP_6);
}
// Track modes C and W.
inline ZELN::SZelSysFrqTMdGroupID SysFrqTMdGroupId()
{
    return ZELN::SZelSysFrqTMdGroupID(ZELN::ZELSATSYSTEM_GPS, ZELN::ZELFREQUENCY_GROUP_2, 0x804u);
}
inline ZELN::SZelSatFrqTMdGroupID SatFrqTMdGroupId()
{
    return ZELN::SZelSatFrqTMdGroupID(SatC61(), ZELN::ZELFREQUENCY_GROUP_4, ZELN::ZELTRACKMODE_P);
}

// Further identifiers, with other systems, groups and modes.
inline ZELN::SZelFrqTMdID FrqTMdIdG2W()
{
    return ZELN::SZelFrqTMdID(ZELN::ZELFREQUENCY_GROUP_2, ZELN::ZELTRACKMODE_W);
}
inline ZELN::SZelSatFrqID SatFrqIdE11G5()
{
    return ZELN::SZelSatFrqID(SatE11(), ZELN::ZELFREQUENCY_GROUP_5);
}
inline ZELN::SZelSysFrqID SysFrqIdQzssG3()
{
    return ZELN::SZelSysFrqID(ZELN::ZELSATSYSTEM_QZSS, ZELN::ZELFREQUENCY_GROUP_3);
}
inline ZELN::SZelSysFrqID SysFrqIdBeidouG4()
{
    return ZELN::SZelSysFrqID(ZELN::ZELSATSYSTEM_BEIDOU, ZELN::ZELFREQUENCY_GROUP_4);
}
// Track modes C and W on group 1.
inline ZELN::SZelSysFrqTMdGroupID SysFrqTMdGroupIdG1()
{
    return ZELN::SZelSysFrqTMdGroupID(ZELN::ZELSATSYSTEM_GPS, ZELN::ZELFREQUENCY_GROUP_1, 0x804u);
}

// Every valid channel, -7 to 13 and again from -7, slot 1 first.
inline ZELN::ZelGlonassFrequencies GlonassChannels()
{
    ZELN::ZelGlonassFrequencies stChannels;
    for (int iSlot = 0; iSlot < 24; ++iSlot)
    {
        stChannels.acChannels[iSlot] = static_cast<int8_t>(iSlot % 21 - 7);
    }
    return stChannels;
}

// All unknown but slot 1 (channel 1) and slot 24 (channel -4).
inline ZELN::ZelGlonassFrequencies GlonassChannelsTwoKnown()
{
    ZELN::ZelGlonassFrequencies stChannels;
    stChannels.acChannels[0] = 1;
    stChannels.acChannels[23] = -4;
    return stChannels;
}

// The default (all unknown), then the two above.
inline std::vector<ZELN::ZelGlonassFrequencies> GlonassChannelSets()
{
    return {ZELN::ZelGlonassFrequencies(), GlonassChannels(), GlonassChannelsTwoKnown()};
}

} // namespace ZelSample

#endif
