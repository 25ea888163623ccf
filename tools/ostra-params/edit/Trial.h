#pragma once

#include "catalogue/Input.h"

#include <parameters/Fault.h>

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <vector>

namespace Tool {

/// Something that is misspelt in a text of an input, and the one thing that can be meant.
struct Respelling {
    std::size_t number; ///< Of the text.
    std::size_t offset; ///< Where it stands, or the value of the member that has this name.
    std::string misspelt;
    std::string meant;

    bool operator<(const Respelling& other) const {
        return std::tie(number, offset, misspelt, meant) <
               std::tie(other.number, other.offset, other.misspelt, other.meant);
    }
};

/// Changes the texts of an input as long as that makes nothing worse.
class Trial {
public:
    /// Takes an input, which must outlive it, and how many errors there are in its texts.
    Trial(Input& input, std::size_t errors) : input_(input), errors_(errors) {}

    /// Makes respellings, and takes back those after which there would be more errors than before: all of them, or else
    /// a half of them, and so on. Returns those that stay; none of something else than what is misspelt.
    std::vector<Respelling> keep(std::vector<Respelling> all);

    std::size_t errors() const { return errors_; }
    /// Returns what the texts were that are changed, by their numbers.
    const std::map<std::size_t, std::string>& originals() const { return originals_; }

private:
    std::vector<Respelling> attempt(std::span<const Respelling> some);

    Input& input_;
    std::size_t errors_;
    std::map<std::size_t, std::string> originals_;
};

std::size_t errorsAmong(const std::vector<Parameters::Fault>& faults);

} // namespace Tool
