#include "Expect.h"

#include <parameters/ParametersEngine.h>
#include <units/UnitsEngine.h>

#include <stdexcept>
#include <string>

static_assert(__cplusplus == 201703L, "the public headers must do with C++17");

namespace {

const char* const valveText = R"({"typeid": "stranger:parameter.open-1.0.0",
    "inherits": ["norvex.parameter:parameter.bool-2.0.0"],
    "constants": [{"id": "name", "value": "Open"}, {"id": "readOnly", "value": true}]})";
const char* const unitText = R"({"typeid": "stranger.unit:cubit-1.0.0", "inherits": ["norvex.unit:unit-1.0.0"],
    "constants": [{"id": "name", "value": "Cubit"}]})";

} // namespace

// Uses something of each library, across whose borders objects and exceptions must pass.
int main() {
    Parameters::ParametersEngine engine;
    engine.registerSchemas({{"stranger:parameter.open-1.0.0", valveText}, {"stranger.unit:cubit-1.0.0", unitText}});
    expect(engine.getBoolParameter("stranger:parameter.open-1.0.0").getCore().isReadOnly(), "the parameter was read");
    expect(engine.getUnitsEngine().getUnit("stranger.unit:cubit-1.0.0").getName() == "Cubit", "the unit was read");
    try {
        engine.registerSchema("{");
        expect(false, "a broken text is refused");
    } catch (const Parameters::ValidationException& refusal) {
        expect(!std::string(refusal.what()).empty(), "the refusal says why");
    }
    try {
        static_cast<void>(engine.getUnitsEngine().getUnit("stranger.unit:ell-1.0.0"));
        expect(false, "an unknown unit is refused");
    } catch (const Units::ValidationException& refusal) {
        expect(!std::string(refusal.what()).empty(), "the refusal says why");
    }
    return failures == 0 ? 0 : 1;
}
