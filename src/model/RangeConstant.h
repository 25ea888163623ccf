#pragma once

#include "model/Access.h"
#include "schema/Identifier.h"
#include "schema/JSON.h"
#include "schema/Schema.h"

#include <initializer_list>
#include <optional>
#include <string_view>

namespace Parameters::Internal {

/// The range of a parameter as its schema or its object has it.
template <class Range>
struct RangeReference {
    std::optional<std::string_view> named; // the typeid of a range that must be registered
    Range own;                             // inline, default, or given in code; none when one is named
};

/// A base of ranges that a parameter's schema may write inline, and how the inline value is read.
template <class Range>
struct InlineRangeBase {
    const Ostra::Identifier& identifier;
    Range (*readInline)(Ostra::JSONView value);
};

/// Returns the typeid that the typedValue of a range constant names.
std::string_view readRangeTypeId(const Ostra::Schema& schema, Ostra::JSONView typedValue);
/// Returns the inline value that must stand beside the typeid of a base, or nothing where faults are kept.
Ostra::MaybeView readInlineValue(std::string_view typeId, Ostra::JSONView typedValue);
/// Checks that no inline value stands beside the typeid of a registered range.
void refuseInlineValue(std::string_view typeId, Ostra::JSONView typedValue);

/// Reads the typedValue of a range constant. Where its typeid fits several bases, the last one's range counts. Where
/// faults are kept and it cannot be read, the range has no data.
template <class Range>
RangeReference<Range> readRangeConstant(const Ostra::Schema& schema, Ostra::JSONView typedValue,
                                        std::initializer_list<InlineRangeBase<Range>> bases) {
    const std::string_view typeId = readRangeTypeId(schema, typedValue);
    if (typeId.empty()) {
        typedValue.notePassedOver(); // what should stand beside it is not known
        return {std::nullopt, Access::none<Range>()};
    }
    std::optional<Range> own;
    for (const auto& base : bases) {
        if (base.identifier.isIn(typeId)) {
            const auto value = readInlineValue(typeId, typedValue);
            own = value ? base.readInline(*value) : Access::none<Range>();
        }
    }
    if (own) {
        return {std::nullopt, *own};
    }
    refuseInlineValue(typeId, typedValue);
    return {typeId, Access::none<Range>()};
}

} // namespace Parameters::Internal
