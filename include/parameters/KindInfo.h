#pragma once

#include <parameters/Export.h>

#include <array>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string_view>

namespace Parameters {

/// What sort of thing the objects of a kind are.
enum class KindFamily {
    enumeration, ///< Enumerations.
    range,       ///< The ranges of integers, of floating-point numbers and of strings.
    taxon,       ///< Disciplines, groups and domains.
    category,    ///< Categories.
    spec,        ///< The specs of all parameters.
    parameter    ///< The parameters.
};

namespace Internal {

/// What a kind says of itself. What is added one day stands behind what is there: programs that are older than the
/// library read this.
struct KindDescription {
    KindFamily family;
    std::string_view id;
    std::string_view word;
    std::string_view plural;
    std::array<std::string_view, 3> bases; // those that are there come first
    std::string_view builtInName = {};
};

} // namespace Internal

/// What a kind of object is called, and how its schemas are known. All kinds stand in parameters/Kinds.h.
///
/// A handle to a description that lasts as long as the library; copies cost nothing.
/// @ingroup kinds
class KindInfo {
public:
    /// Identifiers, to be walked in their order.
    class Bases {
    public:
        /// Refers to those of the identifiers that are not empty.
        constexpr explicit Bases(const std::array<std::string_view, 3>& identifiers) noexcept
            : identifiers_(&identifiers) {}
        /// Returns where the first identifier is.
        constexpr const std::string_view* begin() const noexcept { return identifiers_->data(); }
        /// Returns where the identifiers end.
        constexpr const std::string_view* end() const noexcept { return begin() + size(); }
        /// Returns how many there are: one, two or three.
        constexpr std::size_t size() const noexcept {
            std::size_t size = 0;
            while (size < identifiers_->size() && !(*identifiers_)[size].empty()) {
                ++size;
            }
            return size;
        }
        /// Returns one of them, counted from 0.
        constexpr std::string_view operator[](std::size_t place) const noexcept { return (*identifiers_)[place]; }

    private:
        const std::array<std::string_view, 3>* identifiers_;
    };

    /// Refers to the description of one of the library's kinds.
    constexpr explicit KindInfo(const Internal::KindDescription& description) noexcept : description_(&description) {}

    /// Returns what sort of thing the objects are.
    constexpr KindFamily family() const noexcept { return description_->family; }
    /// Returns whether the objects are parameters.
    constexpr bool isParameter() const noexcept { return family() == KindFamily::parameter; }
    /// Returns whether the objects are specs.
    constexpr bool isSpec() const noexcept { return family() == KindFamily::spec; }
    /// Returns whether the objects are ranges.
    constexpr bool isRange() const noexcept { return family() == KindFamily::range; }
    /// Returns whether the objects name others. Only then does an engine tell their dependencies.
    constexpr bool hasDependencies() const noexcept {
        return isParameter() || isSpec() || family() == KindFamily::category;
    }

    /// Returns the name for files, options and logs, such as "bool-parameter". It stays the same for good.
    constexpr std::string_view id() const noexcept { return description_->id; }
    /// Returns what messages call one object, such as "Boolean parameter".
    constexpr std::string_view word() const noexcept { return description_->word; }
    /// Returns what heads a list of objects, such as "Boolean parameters".
    constexpr std::string_view plural() const noexcept { return description_->plural; }

    /// Returns the identifiers that schemas of the kind inherit, with their whole versions. A schema may inherit any
    /// other minor or patch version of one; the base of enumerations has no version.
    constexpr Bases bases() const noexcept { return Bases(description_->bases); }
    /// Returns the name of the kind's built-in object, whose type identifier is the one base; empty where there is
    /// none.
    constexpr std::string_view builtInName() const noexcept { return description_->builtInName; }

    /// Returns whether a schema that inherits this is of the kind.
    PARAMETERS_EXPORT bool isInheritedBy(std::string_view base) const noexcept;

    /// Compares the kinds that are described.
    /// @{
    friend constexpr bool operator==(KindInfo one, KindInfo other) noexcept { return one.id() == other.id(); }
    friend constexpr bool operator!=(KindInfo one, KindInfo other) noexcept { return !(one == other); }
    /// @}

private:
    const Internal::KindDescription* description_;
};

/// Writes the id of a kind, for tests and logs.
/// @ingroup kinds
template <class Traits>
std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& stream, KindInfo kind) {
    return stream << std::basic_string_view<char, Traits>(kind.id().data(), kind.id().size());
}

} // namespace Parameters

/// Hashes the id of the kind.
template <>
struct std::hash<Parameters::KindInfo> {
    /// Returns the hash.
    std::size_t operator()(Parameters::KindInfo kind) const noexcept {
        return std::hash<std::string_view>()(kind.id());
    }
};
