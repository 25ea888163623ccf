#pragma once

#include <deque>
#include <string>

namespace Tool {

/// Returns whether a file holds schemas, by its name.
bool isSchemaFile(const std::string& file);

/// Returns whether the one of two files in a folder or below is read first: folder by folder, by their names.
bool isNameBefore(const std::string& one, const std::string& other);

/// Puts copies behind all other files, so that a text that stands in both is faulty in the copy.
void putCopiesLast(std::deque<std::string>& files);

} // namespace Tool
