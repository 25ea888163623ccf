#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

/// A text with its place in a sequence.
struct PlacedText {
    std::string_view text;
    std::uint32_t place;
};

/// Sorts texts in ascending byte order. Each text is looked at once for each eight bytes in which it does not agree
/// with those around it, since what costs is to fetch it: typeids begin alike and lie anywhere in memory. Does not
/// recurse.
void sortTexts(std::vector<PlacedText>& texts);

} // namespace Parameters::Internal
