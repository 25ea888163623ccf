#pragma once

#include <string>
#include <string_view>

namespace Tool::Lsp {

/// Returns the path of a file's URI, with / between its parts: that of "file:///C%3A/a" is "C:/a", that of
/// "file://host/a" is "//host/a". Of a URI of another sort, nothing.
std::string pathOf(std::string_view uri);

/// Returns the URI of a path from a root on.
std::string uriOf(std::string_view path);

} // namespace Tool::Lsp
