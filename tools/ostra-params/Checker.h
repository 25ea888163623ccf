#pragma once

#include "Input.h"

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace Tool {

/// A line of a file.
struct Place {
    std::filesystem::path file;
    std::size_t line;
};

/// Something wrong with a catalogue.
struct Fault {
    std::optional<Place> place; ///< Nothing when the message names no schema of the catalogue.
    std::string message;
};

/// Reads a catalogue into an engine and remembers where each of its schemas came from.
class Checker {
public:
    /// Registers a schema, or a unit schema, and returns what is wrong with it.
    std::optional<Fault> add(const Source& source);
    /// Resolves all that was added and returns what hinders it.
    std::optional<Fault> resolve();

    Parameters::ParametersEngine& engine() { return engine_; }

private:
    std::optional<Place> placeNamedIn(const std::string& message) const;

    Parameters::ParametersEngine engine_;
    std::map<std::string, Place> places_;
};

} // namespace Tool
