#include "programs/PlainMap.h"

#include "harness/Fixtures.h"

namespace Bench {

const PlainMap& plainMap(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        const Parameters::ParametersEngine& engine = resolvedEngine(schemas);
        PlainMap map;
        for (const Schema& schema : schemas) {
            if (schema.kind == Kind::measurableParameter) {
                map.emplace(schema.typeId, std::make_shared<const Parameters::MeasurableParameter>(
                                               engine.getMeasurableParameter(schema.typeId)));
            }
        }
        return map;
    });
}

} // namespace Bench
