#pragma once

#include <parameters/ParametersEngine.h>

#include <string>

namespace Tool {

/// Registers a schema, or a unit schema, with an engine.
/// @throws std::logic_error if the engine or its units engine refuses it.
void registerWith(Parameters::ParametersEngine& engine, const std::string& text);

} // namespace Tool
