#pragma once

#include "catalogue/Input.h"

#include <string>
#include <vector>

namespace Tool {

/// Returns the files of a catalogue as a revision of version control has them, in the order and under the names in
/// which an Input of these paths would read them. What was not there then is left out, and so are links. The program
/// git is asked for all of it.
/// @throws InputError if a path is standard input or in no repository, there is no such revision, or no git.
std::vector<KnownFile> filesOfRevision(const std::string& revision, const std::vector<std::string>& paths);

} // namespace Tool
