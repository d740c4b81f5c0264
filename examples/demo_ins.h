#ifndef ZELTYPES_EXAMPLES_DEMO_INS_H
#define ZELTYPES_EXAMPLES_DEMO_INS_H

#include <ostream>

// The road of an inertial result: two results of the filter are
// interpolated to a time between them, the result is moved to an antenna on
// the body, and reduced to tilt, heading and course.
void DemoIns(std::ostream& os);

#endif
