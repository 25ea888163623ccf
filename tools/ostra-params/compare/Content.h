#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tool {

class Catalogue;
struct Object;

} // namespace Tool

/// Compares catalogues: what changed, as data, and whom it breaks. Nothing is printed here.
namespace Tool::Compare {

/// Names an object.
struct Reference {
    std::string typeId;
    bool operator==(const Reference&) const = default;
};

/// A choice of an enumeration.
struct Choice {
    std::string id;
    std::int64_t integer = 0;
    bool operator==(const Choice&) const = default;
};

using Texts = std::vector<std::string>;
using References = std::vector<Reference>;
using Choices = std::vector<Choice>;

/// What a constant, or an element of its list, says: nothing where it has no value, such as a limit that is not there.
using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string, Reference, Choice, Texts,
                           References, Choices>;

constexpr bool isNothing(const Value& value) { return std::holds_alternative<std::monostate>(value); }

/// One thing that is said of an object, with what stands for it where the author left it out.
///
/// Its id is that which authors write, within a range or a spec of a parameter's own, too. But "inherits" stands for
/// the base, in the version of the documents; "choices" for the properties of an enumeration; and of the constants of a
/// range of numbers "bottomBoundary" and "topBoundary" alone are there, with nothing where there is no such limit.
struct Constant {
    std::string_view id;
    Value value = {};
    /// The id of the constant that names the object which says this, such as the spec of a storage unit; empty for what
    /// an object says itself.
    std::string_view from = {};
};

/// Returns all that is said of an object of a catalogue: of one kind always the same constants in the same order.
/// Schemas that mean the same have the same content, however they are written.
std::vector<Constant> contentOf(const Catalogue& catalogue, const Object& object);

/// Returns the constant of an id; nullptr when there is none.
const Constant* find(const std::vector<Constant>& content, std::string_view id);

} // namespace Tool::Compare
