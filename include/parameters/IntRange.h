#pragma once

#include <parameters/Export.h>

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
template <class Number>
struct NumericRangeData;
} // namespace Internal

/// The bounds of the values of an integer parameter.
///
/// A boundary is kept whatever its flag says, and the two are in no order: a range describes and tests nothing.
/// An application tests values itself:
/// @snippet parameter_dialog.cpp range
/// @ingroup values
class PARAMETERS_EXPORT IntRange {
public:
    /// Makes a range to be registered under its own type identifier. Nothing is checked.
    IntRange(const std::string& typeId, bool fromBottom, long long bottomBoundary, bool fromTop, long long topBoundary);
    /// Makes a range with the built-in type identifier: such a range belongs to the parameter that has it.
    IntRange(bool fromBottom, long long bottomBoundary, bool fromTop, long long topBoundary);
    /// Copies share their data; moving copies.
    /// @{
    IntRange(const IntRange&) noexcept = default;
    IntRange& operator=(const IntRange&) noexcept = default;
    /// @}

    /// Returns the identifier by which the range is known.
    std::string getTypeId() const;
    /// Returns whether the values have a lower bound.
    bool isBoundFromBottom() const;
    /// Returns the lower bound; it has a meaning only where isBoundFromBottom().
    long long getBottomBoundary() const;
    /// Returns whether the values have an upper bound.
    bool isBoundFromTop() const;
    /// Returns the upper bound; it has a meaning only where isBoundFromTop().
    long long getTopBoundary() const;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const IntRange& other) const noexcept;
    bool operator!=(const IntRange& other) const noexcept;
    bool operator<(const IntRange& other) const noexcept;
    bool operator>(const IntRange& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit IntRange(std::shared_ptr<const Internal::NumericRangeData<long long>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::NumericRangeData<long long>> data_;
};

} // namespace Parameters
