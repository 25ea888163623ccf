#pragma once

#include "support/Messages.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <initializer_list>
#include <string>

namespace Support {

/// Returns the engine, an empty one by default, with the schemas registered one by one in the given order and resolved.
inline Parameters::ParametersEngine engineOf(std::initializer_list<std::string> texts,
                                             Parameters::ParametersEngine engine = {}) {
    for (const std::string& text : texts) {
        engine.registerSchema(text);
    }
    engine.resolveSchemas();
    return engine;
}

/// Returns an engine in which units of these typeids are registered and resolved.
inline Parameters::ParametersEngine engineWithUnits(std::initializer_list<std::string> typeIds) {
    Parameters::ParametersEngine engine;
    for (const std::string& typeId : typeIds) {
        engine.getUnitsEngine().registerSchema(unitText(typeId));
    }
    engine.getUnitsEngine().resolveSchemas();
    return engine;
}

/// Returns the message with which an empty engine refuses to register a schema.
inline std::string refusalOf(const std::string& text) {
    return messageOf<Parameters::ValidationException>([&] { Parameters::ParametersEngine().registerSchema(text); });
}

/// Returns the message with which resolving the schemas fails.
inline std::string failureOf(std::initializer_list<std::string> texts) {
    return messageOf<Parameters::ValidationException>([&] { engineOf(texts); });
}

/// Registers a schema in an engine that holds what it names, resolves, and returns the schema that is written then.
inline std::string rewritten(Parameters::ParametersEngine engine, const std::string& typeId, const std::string& text) {
    engine.registerSchema(text);
    engine.resolveSchemas();
    return engine.getSchema(typeId);
}

} // namespace Support
