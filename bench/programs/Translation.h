#pragma once

#include "generator/Catalogue.h"

#include <rapidjson/document.h>

#include <string>
#include <string_view>
#include <vector>

/// The schemas of a catalogue in the languages of other libraries. Each fact of a schema has its like there: constants
/// and properties become fields, texts and numbers their defaults, inline values nested types.
namespace Bench {

/// Turns a text into a name that other languages allow.
std::string identifierOf(std::string_view text);

/// Returns the text of a number, a Boolean value or a string.
std::string scalarText(const rapidjson::Value& value);

/// Returns a FileDescriptorProto in text form for each schema, whose typeid is the name of the file. A typeid that is
/// named is an import and the type of a field, save that built-in ones are texts.
std::vector<std::string> protoFiles(const Catalogue& catalogue);

/// Returns a record schema for each schema. Typeids that are named are defaults of strings, since this library has no
/// references from one text to another.
std::vector<std::string> avroSchemas(const Catalogue& catalogue);

} // namespace Bench
