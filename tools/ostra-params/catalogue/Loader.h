#pragma once

#include "catalogue/Describe.h"
#include "catalogue/Input.h"
#include "faults/Finding.h"

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace Tool {

/// A schema was registered and became no object: a fault of this program, not of the catalogue.
struct Loss : std::logic_error {
    using std::logic_error::logic_error;
};

/// Reads schemas into an engine, and keeps what is wrong with them and where each came from.
class Loader {
public:
    /// Reads files, folders and standard input.
    /// @throws InputError as Input does.
    explicit Loader(const std::vector<std::string>& paths);
    explicit Loader(const std::vector<KnownFile>& files);

    Parameters::ParametersEngine& engine() { return engine_; }
    const Parameters::ParametersEngine& engine() const { return engine_; }
    const Input& input() const { return input_; }
    const Headings& headings() const { return headings_; }
    const Source& source(std::size_t number) const { return input_.sources()[number]; }

    /// Returns how many schemas were read, faulty ones too.
    std::size_t schemas() const { return input_.sources().size(); }
    std::size_t files() const { return input_.files(); }
    /// Returns how many of them, and of files that cannot be read, are left out.
    std::size_t leftOut() const;
    /// Returns how many errors the library found in the texts.
    std::size_t errors() const { return errors_; }
    /// Returns how many objects there are in each section, which costs time in proportion to the number of units.
    /// @throws Loss if there are fewer objects than sound schemas.
    std::vector<std::size_t> counts();
    /// Returns what is wrong with the files and the schemas, in the order in which they were read.
    const std::vector<Finding>& findings() const { return findings_; }

protected:
    /// Makes sure that each sound schema is one of the objects, so that no verb passes a catalogue on with less in it.
    /// @throws Loss if one is not. Its message names them.
    void mustHaveAll(const std::vector<Object>& objects) const;

private:
    void load();

    Input input_;
    Parameters::ParametersEngine engine_;
    std::size_t errors_ = 0;
    std::vector<bool> isFaulty_; // by the number of the schema
    Headings headings_{input_.sources(), isFaulty_};
    std::vector<Finding> findings_;
};

} // namespace Tool
