#pragma once

#include <string_view>
#include <vector>

namespace Tool {

/// A schema text in pieces, which it has in common with many others, and what makes it another one.
struct CutText {
    std::vector<std::string_view> pieces; ///< One more than there are values.
    std::vector<std::string_view> values; ///< Strings and numbers, as they are written; each comes behind a piece.
};

/// Cuts a well-formed text without blanks, which must outlive the result. Names of members and constants stay in the
/// pieces, and so does what the schema inherits.
CutText cut(std::string_view schemaText);

} // namespace Tool
