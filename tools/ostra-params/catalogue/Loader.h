#pragma once

#include "catalogue/Source.h"
#include "faults/Fault.h"
#include "faults/Hints.h"

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace Tool {

/// Reads schemas into an engine, and keeps what is wrong with them and where each came from.
class Loader {
public:
    /// Registers a schema, or a unit schema.
    void add(const Source& source);
    /// Resolves what was added and is sound. Nothing is added afterwards.
    void resolve();
    /// Tells whether each sound schema has become an object; false as well when the units library refuses them all.
    bool isResolved() const { return isResolved_; }

    Parameters::ParametersEngine& engine() { return engine_; }
    const Parameters::ParametersEngine& engine() const { return engine_; }
    const Entries& entries() const { return entries_; }
    /// Returns how many schemas were added, faulty ones too.
    std::size_t schemas() const { return schemas_; }
    /// Returns what is wrong with them, in the order in which they were added.
    std::vector<Fault> faults() const;

private:
    void refuse(std::size_t number, const Source& source, const std::string& message, Stage stage);

    Parameters::ParametersEngine engine_;
    Entries entries_;
    Hints hints_{entries_};
    std::multimap<std::size_t, Fault> faults_; // by the number of the schema
    std::size_t schemas_ = 0;
    bool isResolved_ = false;
};

} // namespace Tool
