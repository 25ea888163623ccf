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

/// The bounds of the values of a measurable parameter. Copies share their data.
///
/// A boundary is kept whatever its flag says, and the two are in no order: a range describes and tests nothing.
class PARAMETERS_EXPORT FloatRange {
public:
    FloatRange(const std::string& typeId, bool fromBottom, double bottomBoundary, bool fromTop, double topBoundary);
    /// The type identifier is the built-in one: such a range belongs to the parameter that has it.
    FloatRange(bool fromBottom, double bottomBoundary, bool fromTop, double topBoundary);
    FloatRange(const FloatRange&) noexcept = default;
    FloatRange& operator=(const FloatRange&) noexcept = default;

    std::string getTypeId() const;
    bool isBoundFromBottom() const;
    /// Returns the lower bound; it has a meaning only where isBoundFromBottom().
    double getBottomBoundary() const;
    bool isBoundFromTop() const;
    /// Returns the upper bound; it has a meaning only where isBoundFromTop().
    double getTopBoundary() const;

    /// Comparisons are by identity: the bytes of the type identifier alone decide, nothing else takes part.
    bool operator==(const FloatRange& other) const noexcept;
    bool operator!=(const FloatRange& other) const noexcept;
    bool operator<(const FloatRange& other) const noexcept;
    bool operator>(const FloatRange& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit FloatRange(std::shared_ptr<const Internal::NumericRangeData<double>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::NumericRangeData<double>> data_;
};

} // namespace Parameters
