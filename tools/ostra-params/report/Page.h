#pragma once

#include <string>

/// The files of the report's page, as the build found them.
namespace Tool::Page {

std::string html(); ///< With the marks @STYLE@, @DATA@ and @SCRIPT@.
std::string css();
std::string js();

} // namespace Tool::Page
