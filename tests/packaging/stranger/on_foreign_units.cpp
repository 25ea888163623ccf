#include "Expect.h"

#include <parameters/ParametersEngine.h>
#include <units/UnitsEngine.h>

#include <map>
#include <set>
#include <string>
#include <vector>

using Parameters::Fault;
using Parameters::ParametersEngine;

namespace {

const std::string cubit = "stranger.unit:cubit-1.0.0";
const std::string palm = "stranger.unit:palm-1.0.0";
const std::string height = "stranger:spec.height-1.0.0";
const std::string ark = "stranger:parameter.ark-1.0.0";

std::string unitText(const std::string& typeId, const std::string& name) {
    return R"({"typeid": ")" + typeId + R"(", "inherits": ["norvex.unit:unit-1.0.0"], "constants": [
        {"id": "name", "value": ")" +
           name + R"("}, {"id": "symbol", "value": "s"}]})";
}

const std::string heightText = R"({"typeid": "stranger:spec.height-1.0.0",
    "inherits": ["norvex.spec:spec.measurable-2.0.0"], "constants": [{"id": "name", "value": "Height"},
        {"id": "applicableUnits", "typedValue": [{"typeid": "stranger.unit:palm-1.0.0"}]},
        {"id": "storageUnit", "typedValue": {"typeid": "stranger.unit:cubit-1.0.0"}}]})";
const std::string arkText = R"({"typeid": "stranger:parameter.ark-1.0.0",
    "inherits": ["norvex.parameter:parameter.measurable-3.0.0"], "constants": [{"id": "name", "value": "Ark"},
        {"id": "spec", "typedValue": {"typeid": "stranger:spec.height-1.0.0"}}]})";

void looksUp() {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(unitText(cubit, "Cubit"));
    expect(engine.isRegistered(cubit), "a unit is registered at once");
    expect(!engine.isRegistered(palm), "another one is not");
    expect(engine.registerSchema(heightText).second == std::set<std::string>{palm}, "the other one is missing");
    engine.registerSchemas({{palm, unitText(palm, "Palm")}, {ark, arkText}});
    const Parameters::MeasurableSpec spec = engine.getMeasurableParameter(ark).getSpec();
    expect(spec.getStorageUnit().getName() == "Cubit", "the storage unit is there");
    expect(spec.getApplicableUnits() == std::vector<Units::Unit>{engine.getUnitsEngine().getUnit(palm)},
           "so are the applicable units");
    expect(engine.getDependencies(height) == std::set<std::string>{"norvex.spec:discipline-1.0.0", cubit, palm},
           "the spec depends on its units");
}

void binds() {
    ParametersEngine engine;
    engine.registerSchemas({{cubit, unitText(cubit, "Cubit")}});
    const Units::Unit known = engine.getUnitsEngine().getUnit(cubit);
    const Units::Unit unknown(palm, "Palm", "p");
    const Parameters::SpecCore core(height, "Height");
    try {
        engine.registerMeasurableSpec(Parameters::MeasurableSpec(core, {unknown}, known));
        expect(false, "a spec with an unknown unit is refused");
    } catch (const Parameters::ValidationException& refusal) {
        expect(refusal.what() == "Could not find unit with typeid " + palm + ".", "the refusal names the unit");
    }
    engine.registerMeasurableSpec(Parameters::MeasurableSpec(core, {known}, known));
    expect(engine.getMeasurableSpec(height).getStorageUnit() == known, "a spec with known units is registered");
}

void expectRefusal(const std::vector<Fault>& faults, const std::string& text, const std::string& message) {
    expect(faults.size() == 1, "there is one fault");
    if (faults.size() == 1) {
        expect(faults[0].code() == "unit-refused", "its code is that of a refused unit");
        expect(faults[0].message() == message, "its message is that of the units library");
        expect(faults[0].severity() == Fault::Severity::error, "it is an error");
        expect(faults[0].typeId() == cubit, "it is of that typeid");
        expect(faults[0].place().pointer.empty() && faults[0].place().end == text.size(), "its place is the text");
    }
}

void tellsFaults() {
    ParametersEngine engine;
    const std::string nameless = unitText(cubit, "");
    expectRefusal(engine.findFaults({{cubit, nameless}}), nameless, "Not a unit to us: " + cubit);
    const std::map<std::string, std::string> sound = {
        {cubit, unitText(cubit, "Cubit")}, {palm, unitText(palm, "Palm")}, {height, heightText}};
    expect(engine.findFaults(sound).empty(), "sound texts have no faults");
    expect(!engine.isRegistered(cubit), "and are not registered by a look for faults");

    expectRefusal(engine.registerSoundSchemas({{cubit, nameless}}), nameless, "Not a unit to us: " + cubit);
    expect(!engine.isRegistered(cubit), "what is refused is not registered");
    expect(engine.registerSoundSchemas(sound).empty(), "what is sound is registered");
    expect(engine.getMeasurableSpec(height).getStorageUnit().getTypeId() == cubit, "with its units");
    const auto faults = engine.findFaults({{cubit, nameless}});
    expect(faults.size() == 1 && faults[0].code() == "typeid-taken", "a unit that is there is not asked for again");
}

void tellsConsequences() {
    const auto faults = ParametersEngine().findFaults(
        {{cubit, unitText(cubit, "")}, {palm, unitText(palm, "Palm")}, {height, heightText}});
    expect(faults.size() == 2 && faults[1].code() == "unit-missing" && faults[1].root().has_value(),
           "that a spec lacks its unit is the consequence of the unit's refusal");
}

} // namespace

// What a library does that was built on a units library which has no more than it must.
int main() {
    looksUp();
    binds();
    tellsFaults();
    tellsConsequences();
    return failures == 0 ? 0 : 1;
}
