#pragma once

#include <string_view>

/// The files of the report's page, as the build found them.
namespace Tool::Page {

extern const std::string_view html; ///< With the marks @STYLE@, @DATA@ and @SCRIPT@.
extern const std::string_view css;
extern const std::string_view js;

} // namespace Tool::Page
