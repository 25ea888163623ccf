#include "model/IntRange.h"

namespace Parameters {

IntRange::IntRange(const std::string& typeId, bool fromBottom, long long bottomBoundary, bool fromTop,
                   long long topBoundary)
    : IntRange(Internal::IntRangeKind::of({{typeId}, fromBottom, bottomBoundary, fromTop, topBoundary})) {}

IntRange::IntRange(bool fromBottom, long long bottomBoundary, bool fromTop, long long topBoundary)
    : IntRange(Internal::IntRangeKind::of(
          {Internal::IntRangeKind::baseTexts(), fromBottom, bottomBoundary, fromTop, topBoundary})) {}

std::string IntRange::getTypeId() const { return std::string(data_->typeId()); }

bool IntRange::isBoundFromBottom() const { return data_->fromBottom; }

long long IntRange::getBottomBoundary() const { return data_->bottomBoundary; }

bool IntRange::isBoundFromTop() const { return data_->fromTop; }

long long IntRange::getTopBoundary() const { return data_->topBoundary; }

PARAMETERS_COMPARE_BY_TYPEID(IntRange)

} // namespace Parameters
