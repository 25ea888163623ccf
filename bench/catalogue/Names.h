#pragma once

#include "catalogue/Catalogue.h"

#include <cstddef>
#include <string>

namespace Bench {

/// A typeid and a display name, as it stands between the quotes of JSON.
struct Name {
    std::string typeId;
    std::string display;
};

/// Returns what the schema with an index of its kind is called; no two of a catalogue have the same typeid.
Name nameOf(Kind kind, std::size_t index);

} // namespace Bench
