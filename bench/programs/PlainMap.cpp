#include "programs/PlainMap.h"

#include "harness/Fixtures.h"

#include <parameters/Kinds.h>

namespace Bench {

namespace {

PlainParameter plain(const Parameters::MeasurableParameter& parameter) {
    const Parameters::ParameterCore core = parameter.getCore();
    return {core.getTypeId(),
            core.getName(),
            core.getDescription(),
            core.getSampleText(),
            core.getGroup().getTypeId(),
            parameter.getSpec().getCore().getTypeId(),
            core.isReadOnly()};
}

} // namespace

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
