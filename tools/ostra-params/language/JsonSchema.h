#pragma once

#include "output/Json.h"

namespace Tool::Language {

/// Returns the JSON schema (draft-07) of a schema text, with what editors that know more than the draft show and offer:
/// descriptions, snippets and messages. It refuses no text that the library takes without a warning.
Json jsonSchema();

} // namespace Tool::Language
