#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Parameters {

namespace Internal {

struct Access;

/// What only the library has: a constructor that asks for it is no other's, and no braces are taken for it.
class Key {
    friend struct Access;
    explicit constexpr Key(int) noexcept {}
};

/// A class whose values are known by their type identifier.
template <class Value, class = void>
struct IsKnownByTypeId : std::false_type {};
template <class Value>
struct IsKnownByTypeId<Value, std::void_t<decltype(std::declval<const Value&>().typeId())>>
    : std::is_same<decltype(std::declval<const Value&>().typeId()), std::string_view> {};

/// What std::hash is for the value classes: as in comparisons, the type identifier alone decides.
template <class Value>
struct TypeIdHash {
    std::size_t operator()(const Value& value) const noexcept { return std::hash<std::string_view>()(value.typeId()); }
};

} // namespace Internal

/// Writes the type identifier of a value, for tests and logs.
/// @ingroup values
template <class Traits, class Value, class = std::enable_if_t<Internal::IsKnownByTypeId<Value>::value>>
std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& stream, const Value& value) {
    return stream << std::basic_string_view<char, Traits>(value.typeId().data(), value.typeId().size());
}

} // namespace Parameters
