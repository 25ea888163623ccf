#include "model/IntRange.h"

namespace Parameters {

IntRange::IntRange(const std::string& typeId, bool fromBottom, long long bottomBoundary, bool fromTop,
                   long long topBoundary)
    : IntRange(Internal::IntRangeKind::of({{typeId}, bottomBoundary, topBoundary, fromBottom, fromTop})) {}

IntRange::IntRange(bool fromBottom, long long bottomBoundary, bool fromTop, long long topBoundary)
    : IntRange(Internal::IntRangeKind::of(
          {Internal::IntRangeKind::baseTexts(), bottomBoundary, topBoundary, fromBottom, fromTop})) {}

std::string IntRange::getTypeId() const { return std::string(typeId()); }

std::string_view IntRange::typeId() const noexcept { return data_->typeId(); }

bool IntRange::isBoundFromBottom() const noexcept { return data_->fromBottom; }

long long IntRange::getBottomBoundary() const noexcept { return data_->bottomBoundary; }

bool IntRange::isBoundFromTop() const noexcept { return data_->fromTop; }

long long IntRange::getTopBoundary() const noexcept { return data_->topBoundary; }

PARAMETERS_COMPARE_BY_TYPEID(IntRange)

} // namespace Parameters
