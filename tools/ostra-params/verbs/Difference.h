#pragma once

#include "catalogue/Catalogue.h"

#include <string>
#include <vector>

namespace Tool {

struct PropertyChange {
    std::string name;
    std::string before;
    std::string after;
};

struct Change {
    const Object* object; ///< As it is now.
    std::vector<PropertyChange> properties;
};

/// What changed from one catalogue to another, each list in the order of its objects.
struct Difference {
    std::vector<const Object*> added;
    std::vector<const Object*> removed;
    std::vector<Change> changed;

    bool isNone() const { return added.empty() && removed.empty() && changed.empty(); }
};

/// Compares two catalogues, which must outlive the result.
Difference compare(const Catalogue& before, const Catalogue& after);

} // namespace Tool
