#include "model/FloatRange.h"

namespace Parameters {

FloatRange::FloatRange(const std::string& typeId, bool fromBottom, double bottomBoundary, bool fromTop,
                       double topBoundary)
    : FloatRange(Internal::FloatRangeKind::of({{typeId}, bottomBoundary, topBoundary, fromBottom, fromTop})) {}

FloatRange::FloatRange(bool fromBottom, double bottomBoundary, bool fromTop, double topBoundary)
    : FloatRange(Internal::FloatRangeKind::of(
          {Internal::FloatRangeKind::baseTexts(), bottomBoundary, topBoundary, fromBottom, fromTop})) {}

std::string FloatRange::getTypeId() const { return std::string(typeId()); }

std::string_view FloatRange::typeId() const noexcept { return data_->typeId(); }

bool FloatRange::isBoundFromBottom() const noexcept { return data_->fromBottom; }

double FloatRange::getBottomBoundary() const noexcept { return data_->bottomBoundary; }

bool FloatRange::isBoundFromTop() const noexcept { return data_->fromTop; }

double FloatRange::getTopBoundary() const noexcept { return data_->topBoundary; }

PARAMETERS_COMPARE_BY_TYPEID(FloatRange)

} // namespace Parameters
