#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/RangeConstant.h"
#include "model/Texts.h"
#include "schema/Constants.h"
#include "schema/Message.h"
#include "schema/Schema.h"
#include "schema/SchemaWriter.h"

#include <parameters/StringRange.h>

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace Parameters::Internal {

struct SetStringRangeComponentData {
    Texts allowedValues;
};

struct RegexStringRangeComponentData {
    Texts regex; // one
};

struct StringRangeData {
    Texts texts; // typeid
    std::variant<std::monostate, SetStringRangeComponent, RegexStringRangeComponent> limitation;

    std::string_view typeId() const { return texts[0]; }
    const SetStringRangeComponent* set() const { return std::get_if<SetStringRangeComponent>(&limitation); }
    const RegexStringRangeComponent* regex() const { return std::get_if<RegexStringRangeComponent>(&limitation); }
};

struct StringRangeKind : DescribedKind<Kinds::StringRange> {
    using Names = KindList<>;
    using Record = StringRangeData;

    static constexpr auto messages = Ostra::Messages({
        {"inline-range-values-missing", "Inline value override in range constant typedValue must specify a non-empty "
                                        "array of unique string values for constant allowedValues."},
        {"inline-range-regex-missing",
         "Inline value override in range constant typedValue must specify a string value for constant regex."},
        {"inline-range-not-empty", "Inline value override for default string range in range constant typedValue, if "
                                   "present, must be an empty object."},
        {"given-range-limited",
         "String range using base schema typeid <typeid> may not specify a limited range of values."},
        {"given-range-values-missing",
         "String range using base schema typeid <typeid> must specify an explicit set of allowed values."},
        {"given-range-regex-missing",
         "String range using base schema typeid <typeid> must specify a regular expression matching permitted values."},
    });

    static constexpr Ostra::Identifier anyBase{Public::info.bases()[0]};
    static constexpr Ostra::Identifier setBase{Public::info.bases()[1]};
    static constexpr Ostra::Identifier regexBase{Public::info.bases()[2]};

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const StringRange& range) { return Access::data(range); }
    static StringRange build(const Record& record, const Finder& finder, const StringRange* given);
    static std::string write(const StringRange& range);

    /// Reads the range constant of a parameter; without it any text is allowed.
    static RangeReference<StringRange> readConstant(const Ostra::Schema& schema, const Ostra::Constants& constants);
    /// Returns what a parameter made in code says of its range.
    static RangeReference<StringRange> referenceTo(const StringRange& range);
    /// Writes the range constant of a parameter. The default range is what stands there when nothing is written.
    static void writeConstant(Ostra::SchemaWriter& writer, const StringRange& range);

    /// Checks a range made in code: its allowed values must be unique, and its limitation that of the base it names.
    static void check(const StringRange& range);
};

} // namespace Parameters::Internal
