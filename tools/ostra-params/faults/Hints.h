#pragma once

#include "catalogue/Headings.h"
#include "catalogue/Input.h"
#include "catalogue/Sections.h"

#include <parameters/Fault.h>

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Tool {

/// Says what may help to mend a fault.
class Hints {
public:
    Hints(const Input& input, const Headings& headings, const std::vector<Parameters::Fault>& faults);

    /// Returns a hint for one of the faults; empty when there is nothing to say.
    std::string hintFor(const Parameters::Fault& fault);

private:
    std::string forBase(const std::string& base) const;
    std::string forMissing(const Parameters::Fault& fault);
    std::string circleOf(const Parameters::Fault& fault) const;
    std::string similarTo(const std::string& typeId, const Section& section);
    std::string beginningOf(const Parameters::Fault::Place& place) const;

    const Input& input_;
    const Headings& headings_;
    std::unordered_map<std::string, const Parameters::Fault*> naming_; // what names a faulty schema, by its typeid
    std::unordered_set<std::string> properties_; // which nothing reads, behind the keys of their texts
    std::map<const Section*, std::vector<std::string_view>> typeIds_;       // of each section that was asked for
    std::map<std::pair<const Section*, std::string>, std::string> similar_; // what was found, as many may miss the same
};

/// Returns what is probably the matter where a text ceases to be JSON; empty when it is none of the usual slips.
std::string_view slipAt(std::string_view text, std::size_t offset);

} // namespace Tool
