#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLES_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLES_H

// Sample records with non-default values in every field, shared by the
// tests, the benchmarks and the fuzzers' seed corpora, so that a record is
// described once. One header per family.

#include "ZelSamplesAlmanacs.h"
#include "ZelSamplesAntenna.h"
#include "ZelSamplesBestPos.h"
#include "ZelSamplesConfig.h"
#include "ZelSamplesCoordinates.h"
#include "ZelSamplesEphemeris.h"
#include "ZelSamplesIds.h"
#include "ZelSamplesIns.h"
#include "ZelSamplesIonoUtc.h"
#include "ZelSamplesNrtk.h"
#include "ZelSamplesObservations.h"
#include "ZelSamplesOrbits.h"
#include "ZelSamplesPosition.h"
#include "ZelSamplesSsr.h"
#include "ZelSamplesTime.h"

#endif
