// Registers schemas one by one as they are needed: each answers which others are missing.

#include <parameters/ParametersEngine.h>

#include <iostream>
#include <map>
#include <set>
#include <string>

using namespace Parameters;

namespace {

/// Stands for wherever schemas come from one at a time: a database, an archive, a network.
const std::map<std::string, std::string> archive = {
    {"pumps:parameter.head-1.0.0", R"({
        "typeid": "pumps:parameter.head-1.0.0",
        "inherits": ["norvex.parameter:parameter.measurable-3.0.0"],
        "constants": [
            {"id": "name", "value": "Delivery Head"},
            {"id": "group", "typedValue": {"typeid": "pumps:group.rating-1.0.0"}},
            {"id": "spec", "typedValue": {"typeid": "pumps:spec.head-1.0.0"}}
        ]
    })"},
    {"pumps:group.rating-1.0.0", R"({
        "typeid": "pumps:group.rating-1.0.0",
        "inherits": ["norvex.parameter:group-1.0.0"],
        "constants": [{"id": "name", "value": "Rating"}]
    })"},
    {"pumps:spec.head-1.0.0", R"({
        "typeid": "pumps:spec.head-1.0.0",
        "inherits": ["norvex.spec:spec.measurable-2.0.0"],
        "constants": [
            {"id": "name", "value": "Head"},
            {"id": "storageUnit", "typedValue": {"typeid": "pumps:unit.metre-1.0.0"}}
        ]
    })"},
    {"pumps:unit.metre-1.0.0", R"({
        "typeid": "pumps:unit.metre-1.0.0",
        "inherits": ["norvex.unit:unit-1.0.0"],
        "constants": [{"id": "name", "value": "Metre"}, {"id": "symbol", "value": "m"}]
    })"},
};

const std::string& fetch(const std::string& typeId) {
    std::cout << "fetching " << typeId << '\n';
    return archive.at(typeId);
}

} // namespace

int main() {
    ParametersEngine engine;
    //! [missing]
    std::set<std::string> wanted{"pumps:parameter.head-1.0.0"};
    while (!wanted.empty()) {
        const std::string typeId = wanted.extract(wanted.begin()).value();
        auto [missing, missingUnits] = engine.registerSchema(fetch(typeId));
        for (const std::string& unit : missingUnits) {
            engine.getUnitsEngine().registerSchema(fetch(unit));
        }
        wanted.merge(missing);
    }
    engine.resolveSchemas();
    //! [missing]
    const MeasurableParameter head = engine.getMeasurableParameter("pumps:parameter.head-1.0.0");
    std::cout << head.core().group().name() << ": " << head.name() << " in " << head.spec().storageUnit().getSymbol()
              << '\n';
}
