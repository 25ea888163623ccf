#pragma once

#include "schema/Schema.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Ostra {

// Readers of one value. Each knows its type and its message; strings refer into the document.

struct String {
    using Value = std::string_view;
    static Value read(JSONView value);
};

struct NonEmptyString {
    using Value = std::string_view;
    static Value read(JSONView value);
};

struct Boolean {
    using Value = bool;
    static Value read(JSONView value);
};

/// A JSON integer that fits 64 bits with sign.
struct Integer {
    using Value = std::int64_t;
    static Value read(JSONView value);
};

/// Any JSON number, as a double.
struct Number {
    using Value = double;
    static Value read(JSONView value);
};

/// The object {"typeid": T}, with that one member only; its value is T, the typeid of an object that the schema names.
struct TypedValue {
    using Value = std::string_view;
    static Value read(JSONView value);
};

/// An array of typedValue objects; its value is their typeids in order.
struct TypedValues {
    using Value = std::vector<std::string_view>;
    static Value read(JSONView value);
};

/// An array of strings of which no two are equal, in order.
struct UniqueStrings {
    using Value = std::vector<std::string_view>;
    static Value read(JSONView value);
};

/// Returns the typeid that is the "typeid" of a typedValue of a looser form, and names an object; a wrong type and an
/// empty string have messages of their own here.
std::string_view readTypeId(JSONView typeId);

/// The constants of a schema, read one by one. The order of the calls is the order in which faults are reported.
class Constants {
public:
    explicit Constants(const Schema& schema) : schema_(schema) {}

    /// Returns the value of a constant; fails when it is not defined.
    template <class Reader>
    typename Reader::Value required(std::string_view id) const {
        const auto value = find(id);
        return value ? Reader::read(*value) : typename Reader::Value(failUndefined(id));
    }

    /// Returns the value of a constant, or the default when it is not defined.
    template <class Reader>
    typename Reader::Value optional(std::string_view id, typename Reader::Value defaultValue) const {
        const auto value = find(id);
        return value ? Reader::read(*value) : defaultValue;
    }

    /// Returns the value of a constant for a reader of its own, or nothing when it is not defined.
    MaybeView find(std::string_view id) const {
        const auto definition = schema_.constants().find(id);
        return definition ? Schema::valueOf(*definition) : std::nullopt;
    }

private:
    Nothing failUndefined(std::string_view id) const;

    const Schema& schema_;
};

} // namespace Ostra
