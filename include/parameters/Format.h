#pragma once

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <string_view>
#include <type_traits>

// For applications that use {fmt}, which the library itself does not need: values are formatted as their type
// identifiers, kinds as their ids. All that a string may be given, such as a width, is allowed.

namespace fmt {

/// Formats a value, of the objects of a kind or a core, as its type identifier.
template <class Value>
struct formatter<
    Value, char,
    std::enable_if_t<(Parameters::Kinds::With<Value>::size > 0) || std::is_same_v<Value, Parameters::ParameterCore> ||
                     std::is_same_v<Value, Parameters::SpecCore>>> : formatter<std::string_view> {
    /// Writes the type identifier.
    template <class Context>
    auto format(const Value& value, Context& context) const {
        return formatter<std::string_view>::format(value.typeId(), context);
    }
};

/// Formats a unit as its type identifier.
template <>
struct formatter<Units::Unit> : formatter<std::string_view> {
    /// Writes the type identifier.
    template <class Context>
    auto format(const Units::Unit& unit, Context& context) const {
        return formatter<std::string_view>::format(unit.getTypeId(), context);
    }
};

/// Formats a kind as its id.
template <>
struct formatter<Parameters::KindInfo> : formatter<std::string_view> {
    /// Writes the id.
    template <class Context>
    auto format(Parameters::KindInfo kind, Context& context) const {
        return formatter<std::string_view>::format(kind.id(), context);
    }
};

/// Formats an identity as the id of its kind and its type identifier.
template <>
struct formatter<Parameters::Identity> : formatter<std::string_view> {
    /// Writes both, a blank between them.
    template <class Context>
    auto format(const Parameters::Identity& identity, Context& context) const {
        return formatter<std::string_view>::format(fmt::format("{} {}", identity.kind, identity.typeId), context);
    }
};

} // namespace fmt
