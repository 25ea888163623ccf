// Registers one schema and looks at the parameter that comes of it.

#include <parameters/ParametersEngine.h>

#include <iostream>

int main() {
    Parameters::ParametersEngine engine;
    engine.registerSchema(R"({
        "typeid": "pumps:parameter.stages-1.0.0",
        "inherits": ["norvex.parameter:parameter.int64-3.0.0"],
        "constants": [{"id": "name", "value": "Stages"}]
    })");
    engine.resolveSchemas();

    const Parameters::IntParameter stages = engine.getIntParameter("pumps:parameter.stages-1.0.0");
    std::cout << stages.name() << ", listed under " << stages.core().group().name() << ", with values of the spec "
              << stages.spec().name() << '\n';
}
