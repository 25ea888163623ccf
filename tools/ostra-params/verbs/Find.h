#pragma once

#include "catalogue/Describe.h"

#include <stdexcept>
#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace Tool {

class Catalogue;

/// There is no object of a typeid. Its message names those that may be meant.
class NotFound : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Adds the typeid of an object to a verb.
void addTypeId(CLI::App& verb, std::string& typeId);

/// Returns the object of a typeid, or the only one whose typeid has the text in it.
/// @throws NotFound
const Object& findObject(const Catalogue& catalogue, const std::string& text);

} // namespace Tool
