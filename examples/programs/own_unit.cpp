// A unit of the application's own: registered like any other, and converted by the application.

#include <parameters/ParametersEngine.h>

#include <iostream>
#include <map>
#include <string>

using namespace Parameters;

namespace {

const std::string litre = "pumps:unit.litrePerMinute-1.0.0";
const std::string bucket = "pumps:unit.bucketPerHour-1.0.0";

/// The library knows units by name and symbol; what they are worth is the application's to know.
const std::map<std::string, double> litresPerMinute = {{litre, 1.0}, {bucket, 10.0 / 60}};

std::string unitText(const std::string& typeId, const std::string& name, const std::string& symbol) {
    return R"({"typeid": ")" + typeId + R"(", "inherits": ["norvex.unit:unit-1.0.0"], "constants": [)" +
           R"({"id": "name", "value": ")" + name + R"("}, {"id": "symbol", "value": ")" + symbol + R"("}]})";
}

double convert(double value, const Units::Unit& from, const Units::Unit& to) {
    return value * litresPerMinute.at(from.getTypeId()) / litresPerMinute.at(to.getTypeId());
}

} // namespace

int main() {
    ParametersEngine engine;
    //! [units]
    Units::UnitsEngine& units = engine.getUnitsEngine();
    units.registerSchema(unitText(litre, "Litre per Minute", "L/min"));
    units.registerSchema(unitText(bucket, "Bucket per Hour", "bkt/h"));
    units.resolveSchemas();
    //! [units]

    //! [objects]
    // Objects made in code need no schema text; they are there at once.
    const MeasurableSpec flow(SpecCore("pumps:spec.flow-1.0.0", "Flow"), {units.getUnit(litre), units.getUnit(bucket)},
                              units.getUnit(litre));
    engine.registerMeasurableSpec(flow);
    engine.registerMeasurableParameter(
        MeasurableParameter(ParameterCore("pumps:parameter.leakage-1.0.0", "Leakage", "", "", false), flow,
                            FloatRange(true, 0.0, true, 2.5)));
    //! [objects]

    const MeasurableParameter leakage = engine.getMeasurableParameter("pumps:parameter.leakage-1.0.0");
    for (const Units::Unit& unit : leakage.spec().applicableUnits()) {
        std::cout << leakage.name() << ": at most "
                  << convert(leakage.range().getTopBoundary(), leakage.spec().storageUnit(), unit) << ' '
                  << unit.getSymbol() << '\n';
    }
}
