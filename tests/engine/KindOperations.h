#pragma once

#include <parameters/ParametersEngine.h>

#include <array>
#include <string>
#include <vector>

/// The operations of one kind as functions of type identifiers, so that what holds for every kind is one test.
struct KindOperations {
    const char* name;
    const char* base;
    const char* unknownX; // the message of a look-up of "x"
    std::string (*nameOf)(const Parameters::ParametersEngine& engine, const std::string& typeId);
    std::vector<std::string> (*typeIds)(const Parameters::ParametersEngine& engine);
    void (*add)(Parameters::ParametersEngine& engine, const std::string& typeId, const std::string& name);
};

namespace Detail {

using Engine = Parameters::ParametersEngine;

inline std::string nameOf(const Parameters::Taxon& taxon) { return taxon.getName(); }

template <class Object>
std::string nameOf(const Object& object) {
    return object.getCore().getName();
}

template <auto get>
std::string nameBy(const Engine& engine, const std::string& typeId) {
    return nameOf((engine.*get)(typeId));
}

template <auto getAll>
std::vector<std::string> typeIdsBy(const Engine& engine) {
    std::vector<std::string> typeIds;
    for (const auto& [typeId, object] : (engine.*getAll)()) {
        typeIds.push_back(typeId);
    }
    return typeIds;
}

template <auto add>
void addTaxon(Engine& engine, const std::string& typeId, const std::string& name) {
    (engine.*add)(Parameters::Taxon(typeId, name));
}

template <class Spec, auto add>
void addSpec(Engine& engine, const std::string& typeId, const std::string& name) {
    (engine.*add)(Spec(Parameters::SpecCore(typeId, name)));
}

template <class Parameter, auto add>
void addParameter(Engine& engine, const std::string& typeId, const std::string& name) {
    (engine.*add)(Parameter(Parameters::ParameterCore(typeId, name, "", "", false)));
}

} // namespace Detail

/// Every kind, in the order of the stores.
inline const std::array everyKind{
    KindOperations{"Discipline", "norvex.spec:discipline-1.0.0", "Could not find discipline with typeid x.",
                   Detail::nameBy<&Detail::Engine::getDiscipline>,
                   Detail::typeIdsBy<&Detail::Engine::getAllDisciplines>,
                   Detail::addTaxon<&Detail::Engine::registerDiscipline>},
    KindOperations{"BoolSpec", "norvex.spec:spec.bool-1.0.0", "Could not find Boolean spec with typeid x.",
                   Detail::nameBy<&Detail::Engine::getBoolSpec>, Detail::typeIdsBy<&Detail::Engine::getAllBoolSpecs>,
                   Detail::addSpec<Parameters::BoolSpec, &Detail::Engine::registerBoolSpec>},
    KindOperations{"GeneralSpec", "norvex.spec:spec-1.0.0", "Could not find general spec with typeid x.",
                   Detail::nameBy<&Detail::Engine::getGeneralSpec>,
                   Detail::typeIdsBy<&Detail::Engine::getAllGeneralSpecs>,
                   Detail::addSpec<Parameters::GeneralSpec, &Detail::Engine::registerGeneralSpec>},
    KindOperations{"Group", "norvex.parameter:group-1.0.0", "Could not find group with typeid x.",
                   Detail::nameBy<&Detail::Engine::getGroup>, Detail::typeIdsBy<&Detail::Engine::getAllGroups>,
                   Detail::addTaxon<&Detail::Engine::registerGroup>},
    KindOperations{"BoolParameter", "norvex.parameter:parameter.bool-2.0.0",
                   "Could not find Boolean parameter with typeid x.", Detail::nameBy<&Detail::Engine::getBoolParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllBoolParameters>,
                   Detail::addParameter<Parameters::BoolParameter, &Detail::Engine::registerBoolParameter>},
    KindOperations{"Domain", "norvex.talmo.category:domain-1.0.0", "Could not find domain with typeid x.",
                   Detail::nameBy<&Detail::Engine::getDomain>, Detail::typeIdsBy<&Detail::Engine::getAllDomains>,
                   Detail::addTaxon<&Detail::Engine::registerDomain>},
};

/// Names a test after its kind.
inline const auto kindName = [](const auto& test) { return std::string(test.param.name); };
