#include "faults/Losses.h"

#include "catalogue/Catalogue.h"
#include "catalogue/Sections.h"
#include "output/Text.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace Tool {

namespace {

/// Codes of the library for what stands in a text and is passed over.
constexpr std::array<std::string_view, 5> unread{"member-unknown", "constant-unknown", "property-unknown",
                                                 "member-duplicate", "value-ignored"};

/// Returns what an object says of its own, for comparison.
std::vector<std::pair<std::string_view, std::vector<std::string>>> contentOf(const Object& object) {
    std::vector<std::pair<std::string_view, std::vector<std::string>>> content{{"name", {object.name}}};
    for (const Property& property : object.properties) {
        if (property.isOwn) {
            auto& values = content.emplace_back(property.name, std::vector<std::string>()).second;
            for (const Value& value : property.values) {
                values.push_back(value.identity());
            }
        }
    }
    return content;
}

/// Returns the typeid that an object has as a property; "" when it has none.
std::string_view typeIdIn(const Object& object, std::string_view name) {
    for (const Property& property : object.properties) {
        if (property.name == name && !property.values.front().typeId.empty()) {
            return property.values.front().typeId;
        }
    }
    return {};
}

template <class Number>
bool isSame(Number one, Number other) { // down to the sign of 0
    return one == other && std::signbit(static_cast<double>(one)) == std::signbit(static_cast<double>(other));
}

/// Compares one object after the other.
class Losses {
public:
    Losses(Catalogue& before, Catalogue& after) : before_(before), after_(after) {}

    std::vector<Finding> findings() {
        Parameters::forEachObject(before_.engine(), [&](auto kind, const auto& object) {
            if (const auto after = kind.find(after_.engine(), object.typeId())) {
                compareBoundaries(object, *after);
            }
        });
        for (const Object& object : before_.objects()) {
            compare(object);
        }
        for (const Finding& finding : before_.findings()) {
            const std::string& base = before_.headings().of(finding.source).base;
            const bool isUnread = std::find(unread.begin(), unread.end(), finding.code) != unread.end();
            if (isUnread && sectionOfBase(base) != &sectionOfUnits()) { // the texts of which stay as they are
                findings_.push_back(finding);
            }
        }
        std::stable_sort(findings_.begin(), findings_.end(), isReadBefore);
        return std::move(findings_);
    }

private:
    void compare(const Object& object) {
        const Object* const after = after_.find(object.typeId);
        if (after == nullptr) {
            addChanged(object);
            return;
        }
        if (object.section == after->section && contentOf(object) == contentOf(*after)) {
            return;
        }
        const std::string_view range = typeIdIn(object, "range");
        const std::string_view spec = typeIdIn(object, "spec");
        if (!range.empty() && typeIdIn(*after, "range").empty()) {
            add("range-not-written", object.typeId,
                fmt::format(" is written without its range {}, which limits nothing.", range));
        } else if (object.section->id == "string-range" && object.properties.front().name == "range") {
            add("any-text-not-written", object.typeId,
                " allows any text, and is written with an empty regular expression.");
        } else if (spec != typeIdIn(*after, "spec")) {
            add("version-not-written", object.typeId,
                fmt::format(" is written with {} in place of {}.", typeIdIn(*after, "spec"), spec));
        } else if (!told_.contains(object.typeId)) { // of a boundary of -0, which is seen
            addChanged(object);
        }
    }

    void compareBoundaries(const auto& before, const auto& after) {
        if constexpr (requires { before.isBoundFromBottom(); }) {
            compareBoundaries(before.typeId(), before, after);
        } else if constexpr (requires { before.range().isBoundFromBottom(); }) {
            const auto& range = before.range();
            const bool isOwn = before_.find(range.typeId()) == nullptr;
            if (isOwn && range.typeId() == after.range().typeId()) {
                compareBoundaries(before.typeId(), range, after.range());
            }
        }
    }

    void compareBoundaries(std::string_view typeId, const auto& before, const auto& after) {
        constexpr const char* sentence = " is written without its {}, which reads back as 0.";
        if (!isSame(before.getBottomBoundary(), after.getBottomBoundary())) {
            add("boundary-not-written", typeId, fmt::format(sentence, "bottomBoundary"));
        }
        if (!isSame(before.getTopBoundary(), after.getTopBoundary())) {
            add("boundary-not-written", typeId, fmt::format(sentence, "topBoundary"));
        }
    }

    void addChanged(const Object& object) { add("object-changed", object.typeId, " does not read back as it is."); }

    void add(const char* code, std::string_view typeId, const std::string& predicate) {
        const Object& object = *before_.find(typeId);
        Finding finding{.code = code,
                        .isError = false,
                        .message = capitalized(fmt::format("{} {}{}", object.section->label, typeId, predicate))};
        finding.source = *before_.headings().find(object.typeId);
        finding.place = beginningOf(before_.source(finding.source));
        finding.typeId = object.typeId;
        findings_.push_back(std::move(finding));
        told_.insert(object.typeId);
    }

    Catalogue& before_;
    Catalogue& after_;
    std::vector<Finding> findings_;
    std::set<std::string_view> told_; // typeids
};

} // namespace

std::vector<Finding> lossesBetween(Catalogue& before, Catalogue& after) { return Losses(before, after).findings(); }

} // namespace Tool
