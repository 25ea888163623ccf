#pragma once

#include "catalogue/Input.h"

#include <parameters/Fault.h>

#include <cstddef>
#include <map>
#include <set>
#include <span>
#include <string>
#include <tuple>
#include <vector>

namespace Tool {

/// Spells what is misspelt in the texts of an input as the hints say, where they offer one text alone.
class Mending {
public:
    /// Mends as long as there is something to be mended. What would lead to more errors than before stays as it is.
    explicit Mending(const std::vector<std::string>& paths);

    const Input& input() const { return input_; }
    /// Returns the texts that are mended, by their numbers; those of the input are as they were read.
    const std::map<std::size_t, std::string>& texts() const { return mended_; }
    /// Returns how many errors are left.
    std::size_t errors() const { return errors_; }

private:
    struct Proposal {
        std::size_t number;
        std::size_t offset;
        std::string misspelt;
        std::string meant;
    };

    std::vector<Parameters::Fault> faults() const;
    std::vector<Proposal> proposals(const std::vector<Parameters::Fault>& faults);
    bool attempt(std::span<const Proposal> proposals);

    Input input_;
    std::size_t errors_ = 0;
    std::map<std::size_t, std::string> mended_;
    // What was proposed: the number of a text, the place in it, what is misspelt and what is meant.
    std::set<std::tuple<std::size_t, std::string, std::string, std::string>> known_;
};

} // namespace Tool
