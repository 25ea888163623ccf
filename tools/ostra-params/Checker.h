#pragma once

#include "Input.h"

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Tool {

/// A line of a file.
struct Place {
    std::filesystem::path file;
    std::size_t line;
};

/// Something wrong with a catalogue.
struct Fault {
    std::optional<Place> place; ///< Nothing for what is wrong with no schema in particular.
    std::string message;
};

/// Reads a catalogue into an engine and remembers where each of its schemas came from.
class Checker {
public:
    /// Registers a schema, or a unit schema, and returns what is wrong with it.
    std::optional<Fault> add(const Source& source);
    /// Resolves what was added and is sound. Returns what is wrong with the rest, in the order in which it was added.
    std::vector<Fault> resolve();

    Parameters::ParametersEngine& engine() { return engine_; }

private:
    struct Added {
        Place place;
        std::size_t number; // in the order of adding
    };

    Parameters::ParametersEngine engine_;
    std::map<std::string, Added> added_; // by typeid
};

} // namespace Tool
