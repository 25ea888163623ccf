#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace Ostra {

/// Returns how many characters must be inserted, removed, replaced or swapped with their neighbour to make one text of
/// the other, or any greater number than the limit when that many do not suffice.
std::size_t distance(std::string_view one, std::string_view other, std::size_t limit);

/// Returns the candidates that are nearest to a text and near enough to be meant by it: those equally near, at most
/// three. Upper and lower case count as the same.
std::vector<std::string_view> nearest(std::string_view text, const std::vector<std::string_view>& candidates);

} // namespace Ostra
