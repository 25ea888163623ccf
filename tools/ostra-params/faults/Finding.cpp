#include "faults/Finding.h"

#include "faults/Hints.h"
#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace Tool {

namespace {

using Parameters::Fault;

/// Returns what the tool finds itself.
std::vector<Finding> ownFindings(const Input& input) {
    std::vector<Finding> findings;
    for (const Input::Failure& failure : input.failures()) {
        findings.push_back({.code = "file-unreadable",
                            .message = fmt::format("The file cannot be read: {}.", failure.reason),
                            .source = failure.before,
                            .place = {failure.file}});
    }
    for (std::size_t number = 0; number < input.sources().size(); ++number) {
        const Source& source = input.sources()[number];
        const std::size_t offset = findInvalid(*source.text);
        const bool isUtf16 = source.text->starts_with("\xFF\xFE") || source.text->starts_with("\xFE\xFF");
        if (offset != std::string_view::npos && !isUtf16) {
            const auto byte = static_cast<unsigned char>((*source.text)[offset]);
            findings.push_back({.code = encodingInvalid,
                                .isError = false,
                                .message = fmt::format("The byte {:02X} is no UTF-8.", byte),
                                .source = number,
                                .place = Positions().placeOf(source, offset, offset + 1),
                                .hint = "save the file in UTF-8."});
        }
    }
    std::stable_sort(findings.begin(), findings.end(), isReadBefore);
    return findings;
}

} // namespace

std::vector<Finding> findingsOf(const Input& input, const Headings& headings, const std::vector<Fault>& faults) {
    std::vector<Finding> findings;
    std::vector<Hint> hints = hintsFor(input, headings, faults);
    Positions positions;
    Positions others; // which lie in other texts
    const auto place = [&](Positions& in, const Fault::Place& where) {
        Place found = in.placeOf(input.sources()[Input::numberOf(where.text)], where.begin, where.end);
        found.pointer = where.pointer;
        return found;
    };
    for (std::size_t i = 0; i < faults.size(); ++i) {
        const Fault& fault = faults[i];
        const std::size_t number = Input::numberOf(fault.place().text);
        if (fault.code() == "inherits-missing" && !findings.empty() && findings.back().code == "typeid-missing" &&
            findings.back().source == number) {
            continue; // it is no schema, and once is enough
        }
        Finding finding{.code = std::string(fault.code()),
                        .isError = fault.isError(),
                        .message = fault.message(),
                        .source = number,
                        .place = place(positions, fault.place()),
                        .typeId = fault.typeId(),
                        .name = fault.name(),
                        .expected = std::string(fault.expectedKind()),
                        .nearest = fault.nearestName(),
                        .hint = std::move(hints[i].text),
                        .misspelt = std::move(hints[i].misspelt),
                        .meant = std::move(hints[i].meant)};
        if (fault.otherPlace()) {
            finding.other = place(others, *fault.otherPlace());
        }
        if (fault.root()) {
            finding.root = place(others, *fault.root());
            finding.rootSource = Input::numberOf(fault.root()->text);
        }
        const bool isMissing = !finding.expected.empty() && !finding.other;
        if (const auto broken = isMissing ? headings.find(finding.name) : std::nullopt;
            broken && !headings.isSound(*broken)) { // a text that the library could not read so far
            finding.other = finding.root = beginningOf(input.sources()[*broken]);
            finding.rootSource = broken;
        }
        findings.push_back(std::move(finding));
    }
    std::vector<Finding> all = ownFindings(input); // before the others of a text
    addTo(all, std::move(findings));
    return all;
}

void addTo(std::vector<Finding>& findings, std::vector<Finding> more) {
    const auto middle = static_cast<std::ptrdiff_t>(findings.size());
    std::move(more.begin(), more.end(), std::back_inserter(findings));
    std::inplace_merge(findings.begin(), findings.begin() + middle, findings.end(), isReadBefore);
}

} // namespace Tool
