#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/Texts.h"
#include "schema/Message.h"
#include "schema/Schema.h"

#include <parameters/Enumeration.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

struct EnumerationData {
    Texts texts;                        // typeid, then the identifiers of the values
    std::vector<std::int64_t> integers; // of the values

    std::string_view typeId() const { return texts[0]; }
    std::string_view identifier(std::size_t value) const { return texts[value + 1]; }
};

struct EnumerationKind : DescribedKind<Kinds::Enumeration> {
    using Names = KindList<>;
    using Record = EnumerationData;

    static constexpr auto messages = Ostra::Messages({
        {"enumeration-empty", "Enumeration schema <schema> must specify at least one value."},
        {"enumeration-id-empty", "ID of value in enumeration schema <schema> must not be empty."},
        {"enumeration-integer-missing", "Value <id> in enumeration schema <schema> must specify an integer value."},
        {"given-enumeration-empty", "Enumeration must specify at least one value."},
        {"given-enumeration-id-empty", "ID of value in enumeration must not be empty."},
    });

    /// A bare word without a version, matched as a whole.
    static constexpr std::string_view base = Public::info.bases()[0];

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const Enumeration& enumeration) { return Access::data(enumeration); }
    static Enumeration build(const Record& record, const Finder& finder, const Enumeration* given);
    static std::string write(const Enumeration& enumeration);
};

} // namespace Parameters::Internal
