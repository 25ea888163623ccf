#pragma once

#include "generator/Names.h"
#include "generator/Random.h"
#include "generator/SchemaText.h"

#include <parameters/Kinds.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Bench {

namespace Kinds = Parameters::Kinds;

/// Stands for units where kinds are listed; they are none of the library's.
struct Unit {};

/// The place of a kind, or of units, among all that a catalogue has.
template <class Kind>
inline constexpr std::size_t placeOf = Kinds::indexOf<Kind>;
template <>
inline constexpr std::size_t placeOf<Unit> = Kinds::All::size;
inline constexpr std::size_t placeCount = Kinds::All::size + 1;

/// How many schemas of a kind a catalogue has, and what they are called.
struct Stock {
    std::uint32_t count;
    Vocabulary vocabulary;
};
using Stocks = std::array<Stock, placeCount>;

/// The base of a kind, the first of those that have several.
template <class Kind>
inline constexpr std::string_view baseOf = Kind::info.bases()[0];

/// Returns an identifier in another minor version, which means the same.
std::string inMinor(std::string_view identifier, int minor);

/// Makes up what schemas say.
class Generator {
public:
    Generator(const Stocks& stocks, Random& random) : stocks_(stocks), random_(random) {}

    /// True in so many of a hundred cases.
    bool percent(std::uint32_t percentage) { return random_.percent(percentage); }

    /// Picks a schema of a kind, and returns its typeid. Every second one alone may be picked, from the first on.
    template <class Kind>
    std::string oneOf(std::uint32_t step = 1) {
        return oneOf(stocks_[placeOf<Kind>], step);
    }

    void addDiscipline(SchemaText& schema);
    void addApplicableUnits(SchemaText& schema);
    void addParameterCore(SchemaText& schema, const Name& name);

    /// Adds the constants of a numeric range.
    template <class Range>
    void addBounds(SchemaText& schema) {
        addBounds(schema, isOfFloats<Range>);
    }
    /// Adds the range of a parameter.
    template <class Range>
    void addRange(SchemaText& schema) {
        if constexpr (std::is_same_v<Range, Kinds::StringRange>) {
            addStringRange(schema);
        } else {
            addNumericRange(schema, stocks_[placeOf<Range>], baseOf<Range>, isOfFloats<Range>);
        }
    }

    std::string allowedValues();
    std::string choices();
    std::string regex();

private:
    template <class Range>
    static constexpr bool isOfFloats =
        std::is_floating_point_v<decltype(std::declval<const typename Range::Value&>().getBottomBoundary())>;

    std::string oneOf(const Stock& stock, std::uint32_t step);
    void addBounds(SchemaText& schema, bool isFloat);
    void addNumericRange(SchemaText& schema, const Stock& ranges, std::string_view base, bool isFloat);
    void addStringRange(SchemaText& schema);
    std::pair<std::string, std::string> boundaries(bool isFloat);
    std::string boundary(bool isFloat);
    std::string sentence();

    Stocks stocks_;
    Random& random_;
};

} // namespace Bench
