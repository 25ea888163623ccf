#include "programs/PlainMap.h"

namespace Bench {

const PlainMap& plainMap(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        const Parameters::ParametersEngine& engine = resolvedEngine(schemas);
        PlainMap map;
        for (const Schema& schema : schemas) {
            if (schema.kind == Parameters::Kinds::MeasurableParameter::info) {
                map.emplace(schema.typeId, std::make_shared<const PlainParameter>(
                                               plain(engine.getMeasurableParameter(schema.typeId))));
            }
        }
        return map;
    });
}

} // namespace Bench
