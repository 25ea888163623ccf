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

/// The bounds of the values of an integer parameter. Copies share their data.
///
/// A boundary is kept whatever its flag says, and the two are in no order: a range describes and tests nothing.
class PARAMETERS_EXPORT IntRange {
public:
    IntRange(const std::string& typeId, bool fromBottom, long long bottomBoundary, bool fromTop, long long topBoundary);
    /// The type identifier is the built-in one: such a range belongs to the parameter that has it.
    IntRange(bool fromBottom, long long bottomBoundary, bool fromTop, long long topBoundary);
    IntRange(const IntRange&) noexcept = default;
    IntRange& operator=(const IntRange&) noexcept = default;

    std::string getTypeId() const;
    bool isBoundFromBottom() const;
    /// Returns the lower bound; it has a meaning only where isBoundFromBottom().
    long long getBottomBoundary() const;
    bool isBoundFromTop() const;
    /// Returns the upper bound; it has a meaning only where isBoundFromTop().
    long long getTopBoundary() const;

    /// Comparisons are by identity: the bytes of the type identifier alone decide, nothing else takes part.
    bool operator==(const IntRange& other) const noexcept;
    bool operator!=(const IntRange& other) const noexcept;
    bool operator<(const IntRange& other) const noexcept;
    bool operator>(const IntRange& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit IntRange(std::shared_ptr<const Internal::NumericRangeData<long long>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::NumericRangeData<long long>> data_;
};

} // namespace Parameters
