#pragma once

#include "catalogue/Heading.h"
#include "catalogue/Sections.h"
#include "catalogue/Source.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tool {

/// What was read of a catalogue so far, by typeid.
struct Entry {
    Source source;
    std::string base;
    std::size_t number; ///< In the order of reading.
    bool isSound = true;
};
using Entries = std::map<std::string, Entry, std::less<>>;

/// Says what may help the author of a faulty schema.
class Hints {
public:
    explicit Hints(const Entries& entries) : entries_(entries) {}

    /// Returns a hint for a message of the library; empty when there is nothing to say.
    std::string hintFor(const Source& source, const Heading& heading, const std::string& message);

private:
    std::string forBase(const std::string& base) const;
    std::string forTakenTypeId(const std::string& typeId) const;
    std::string forMissing(const Source& source, const Heading& heading, const std::string& typeId);
    std::string similarTo(const std::string& typeId, const Section& section);

    const Entries& entries_;
    std::map<const Section*, std::vector<std::string_view>> typeIds_;       // of each section that was asked for
    std::map<std::pair<const Section*, std::string>, std::string> similar_; // what was found, as many may miss the same
};

} // namespace Tool
