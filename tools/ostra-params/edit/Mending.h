#pragma once

#include "catalogue/Input.h"
#include "edit/Trial.h"

#include <parameters/Fault.h>

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace Tool {

/// Mends the texts of an input: slips of JSON's grammar and what is misspelt, where one thing alone can be meant.
class Mending {
public:
    /// Mends as long as there is something to be mended. A text that cannot be made JSON stays as it is, and so does
    /// what is misspelt if there would be more errors than before.
    explicit Mending(const std::vector<std::string>& paths);

    const Input& input() const { return input_; }
    /// Returns the texts that are mended, by their numbers; those of the input are as they were read.
    const std::map<std::size_t, std::string>& texts() const { return mended_; }
    /// Returns how many errors are left.
    std::size_t errors() const { return errors_; }

private:
    std::vector<Parameters::Fault> faults() const;
    /// Makes JSON of what is none, and returns what was read. Errors are not compared: the text hid its own.
    std::map<std::size_t, std::string> mendSlips(const std::vector<Parameters::Fault>& faults);
    std::vector<Respelling> respellings(const std::vector<Parameters::Fault>& faults);

    Input input_;
    std::size_t errors_ = 0;
    std::map<std::size_t, std::string> mended_;
    // What was proposed: the number of a text, the place in it, what is misspelt and what is meant.
    std::set<std::tuple<std::size_t, std::string, std::string, std::string>> known_;
};

} // namespace Tool
