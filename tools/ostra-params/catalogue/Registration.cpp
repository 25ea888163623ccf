#include "catalogue/Registration.h"

#include <string_view>

namespace Tool {

void registerWith(Parameters::ParametersEngine& engine, const std::string& text) {
    try {
        engine.registerSchema(text);
    } catch (const Parameters::ValidationException& exception) {
        // What is none of the engine's kinds may be a unit; the units engine knows its own base.
        if (exception.what() != std::string_view("Inheritance from an unrecognized base schema.")) {
            throw;
        }
        engine.getUnitsEngine().registerSchema(text);
    }
}

} // namespace Tool
