#pragma once

#include "catalogue/Catalogue.h"
#include "output/Json.h"

#include <string>

namespace Tool {

/// Returns all that is to be told of an object, in lines for people: what it says, what it names and what names it.
std::string sheetOf(const Catalogue& catalogue, const Object& object);

/// Returns the same for programs.
Json jsonOf(const Catalogue& catalogue, const Object& object);

} // namespace Tool
