#pragma once

#include "catalogue/Source.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Tool {

/// What a schema text says of itself; what it does not say is empty.
struct Heading {
    std::string typeId;
    std::string base;
};

/// The headings of all texts, which are read when the first one is asked for: few need them.
class Headings {
public:
    /// Takes the texts and which of them are faulty; both must outlive it.
    Headings(const std::vector<Source>& sources, const std::vector<bool>& isFaulty)
        : sources_(sources), isFaulty_(isFaulty) {}

    const std::vector<Heading>& all() const;
    const Heading& of(std::size_t number) const { return all()[number]; }
    bool isSound(std::size_t number) const { return !isFaulty_[number]; }

    /// Returns the number of the text of a typeid, a sound one rather than a faulty one; nothing when there is none.
    std::optional<std::size_t> find(const std::string& typeId) const;

private:
    const std::vector<Source>& sources_;
    const std::vector<bool>& isFaulty_;
    mutable std::vector<Heading> headings_;
    mutable std::unordered_map<std::string_view, std::size_t> index_;
};

} // namespace Tool
