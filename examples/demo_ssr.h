#ifndef ZELTYPES_EXAMPLES_DEMO_SSR_H
#define ZELTYPES_EXAMPLES_DEMO_SSR_H

#include <ostream>

// The road of an SSR message: a short stream of orbit and clock messages
// crosses a module boundary as bytes and is folded, per kind and system and
// update interval, into current corrections, which are printed on os.
void DemoSsr(std::ostream& os);

#endif
