#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
template <class Number>
struct NumericRangeData;
} // namespace Internal

/// The bounds of the values of a measurable parameter.
///
/// A boundary is kept whatever its flag says, and the two are in no order: a range describes and tests nothing.
/// An application tests values itself:
/// @snippet parameter_dialog.cpp range
/// @ingroup values
class PARAMETERS_EXPORT FloatRange {
public:
    /// Makes a range to be registered under its own type identifier. Nothing is checked.
    FloatRange(const std::string& typeId, bool fromBottom, double bottomBoundary, bool fromTop, double topBoundary);
    /// Makes a range with the built-in type identifier: such a range belongs to the parameter that has it.
    FloatRange(bool fromBottom, double bottomBoundary, bool fromTop, double topBoundary);
    /// Copies share their data; moving copies.
    /// @{
    FloatRange(const FloatRange&) noexcept = default;
    FloatRange& operator=(const FloatRange&) noexcept = default;
    /// @}

    /// Returns the identifier by which the range is known.
    /// @{
    [[nodiscard]] std::string getTypeId() const;
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// @}
    /// Returns whether the values have a lower bound.
    [[nodiscard]] bool isBoundFromBottom() const noexcept;
    /// Returns the lower bound; it has a meaning only where isBoundFromBottom().
    [[nodiscard]] double getBottomBoundary() const noexcept;
    /// Returns whether the values have an upper bound.
    [[nodiscard]] bool isBoundFromTop() const noexcept;
    /// Returns the upper bound; it has a meaning only where isBoundFromTop().
    [[nodiscard]] double getTopBoundary() const noexcept;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const FloatRange& other) const noexcept;
    bool operator!=(const FloatRange& other) const noexcept;
    bool operator<(const FloatRange& other) const noexcept;
    bool operator>(const FloatRange& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(FloatRange& one, FloatRange& other) noexcept { one.data_.swap(other.data_); }

private:
    friend struct Internal::Access;
    FloatRange(Internal::Ref<const Internal::NumericRangeData<double>> data, Internal::Key) noexcept
        : data_(std::move(data)) {}

    Internal::Ref<const Internal::NumericRangeData<double>> data_;
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::FloatRange> : Parameters::Internal::TypeIdHash<Parameters::FloatRange> {};
