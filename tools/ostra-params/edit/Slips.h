#pragma once

#include "edit/Edit.h"

#include <optional>
#include <string_view>

namespace Tool {

/// Returns what mends the slip at which a text ceases to be JSON: nothing where several things may be meant, or the
/// text would not be JSON further than before.
std::optional<Edit> mendingOfSlip(std::string_view text);

/// Returns what makes a text JSON by mending one slip after the other; nothing when it is JSON, or one cannot be
/// mended.
std::optional<Edit> mendingOfSlips(std::string_view text);

} // namespace Tool
