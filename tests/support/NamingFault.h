#pragma once

#include <gtest/gtest.h>

#include <string>

namespace Support {

/// A row of a table of parameters that name something that is not there: what they name, and the messages of the two
/// ways to look for it.
struct NamingFault {
    const char* name;
    const char* group;
    const char* spec;
    const char* third; // what this kind of parameter names besides
    const char* whenBound;
    const char* whenResolved;
};

} // namespace Support
