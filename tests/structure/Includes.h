#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Structure {

/// Returns a line "file:line: include" for each include of a source that points the wrong way. The path is relative to
/// the project's folder and decides what the source may include: engine -> model -> schema, and the public headers from
/// everywhere but the documents, which know nothing of parameters.
std::vector<std::string> faultsOfIncludes(std::string_view path, std::string_view text);

} // namespace Structure
