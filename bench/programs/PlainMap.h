#pragma once

#include "generator/Catalogue.h"
#include "harness/Fixtures.h"

#include <parameters/Kinds.h>

#include <map>
#include <memory>
#include <string>

namespace Bench {

/// What a registry without an engine would hold of a parameter.
struct PlainParameter {
    std::string typeId;
    std::string name;
    std::string description;
    std::string sampleText;
    std::string group;
    std::string spec;
    bool readOnly;
};

using PlainRecord = std::shared_ptr<const PlainParameter>;

/// What such a registry would hold of one kind.
using PlainMap = std::map<std::string, PlainRecord>;

/// What such a registry would hold of a parameter of an engine.
template <class Parameter>
PlainParameter plain(const Parameter& parameter) {
    const Parameters::ParameterCore core = parameter.getCore();
    return {core.getTypeId(),
            core.getName(),
            core.getDescription(),
            core.getSampleText(),
            core.getGroup().getTypeId(),
            parameter.getSpec().getCore().getTypeId(),
            core.isReadOnly()};
}

/// Calls visit(parameter) with each parameter of a catalogue, whatever its kind, in the order of the catalogue.
template <class Visitor>
void forEachParameter(const Catalogue& catalogue, Visitor visit) {
    const Parameters::ParametersEngine& engine = resolvedEngine(catalogue);
    for (const Schema& schema : catalogue) {
        Parameters::forEachKind([&](auto kind) {
            if constexpr (decltype(kind)::info.isParameter()) {
                if (schema.kind == kind.info) {
                    visit(kind.get(engine, schema.typeId));
                }
            }
        });
    }
}

/// The measurable parameters of a catalogue, put into a map in the order of the catalogue.
const PlainMap& plainMap(const Catalogue& catalogue);

} // namespace Bench
