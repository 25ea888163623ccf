#pragma once

#include <parameters/ParametersEngine.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The operations of one kind as functions of type identifiers, so that what holds for every kind is one test. This
/// fits the kinds whose objects have a name and whose schemas need nothing else.
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

inline void addIntParameter(Engine& engine, const std::string& typeId, const std::string& name) {
    engine.registerIntParameter({Parameters::ParameterCore(typeId, name, "", "", false), {true, 1, true, 2}});
}

inline void addReferenceSpec(Engine& engine, const std::string& typeId, const std::string& name) {
    engine.registerReferenceSpec({Parameters::SpecCore(typeId, name), std::nullopt});
}

inline void addReferenceParameter(Engine& engine, const std::string& typeId, const std::string& name) {
    engine.registerReferenceParameter({Parameters::ParameterCore(typeId, name, "", "", false), true});
}

inline void addStringParameter(Engine& engine, const std::string& typeId, const std::string& name) {
    engine.registerStringParameter({Parameters::ParameterCore(typeId, name, "", "", false), Parameters::StringRange()});
}

} // namespace Detail

/// Every kind that they fit, in the order of the stores.
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
    KindOperations{"IntSpec", "norvex.spec:spec.int64-2.0.0", "Could not find integer spec with typeid x.",
                   Detail::nameBy<&Detail::Engine::getIntSpec>, Detail::typeIdsBy<&Detail::Engine::getAllIntSpecs>,
                   Detail::addSpec<Parameters::IntSpec, &Detail::Engine::registerIntSpec>},
    KindOperations{"ReferenceSpec", "norvex.spec:spec.reference-1.0.0", "Could not find reference spec with typeid x.",
                   Detail::nameBy<&Detail::Engine::getReferenceSpec>,
                   Detail::typeIdsBy<&Detail::Engine::getAllReferenceSpecs>, Detail::addReferenceSpec},
    KindOperations{"StringSpec", "norvex.spec:spec.string-2.0.0", "Could not find string spec with typeid x.",
                   Detail::nameBy<&Detail::Engine::getStringSpec>,
                   Detail::typeIdsBy<&Detail::Engine::getAllStringSpecs>,
                   Detail::addSpec<Parameters::StringSpec, &Detail::Engine::registerStringSpec>},
    KindOperations{"Group", "norvex.parameter:group-1.0.0", "Could not find group with typeid x.",
                   Detail::nameBy<&Detail::Engine::getGroup>, Detail::typeIdsBy<&Detail::Engine::getAllGroups>,
                   Detail::addTaxon<&Detail::Engine::registerGroup>},
    KindOperations{"BoolParameter", "norvex.parameter:parameter.bool-2.0.0",
                   "Could not find Boolean parameter with typeid x.", Detail::nameBy<&Detail::Engine::getBoolParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllBoolParameters>,
                   Detail::addParameter<Parameters::BoolParameter, &Detail::Engine::registerBoolParameter>},
    KindOperations{"IntParameter", "norvex.parameter:parameter.int64-3.0.0",
                   "Could not find integer parameter with typeid x.", Detail::nameBy<&Detail::Engine::getIntParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllIntParameters>, Detail::addIntParameter},
    KindOperations{"ReferenceParameter", "norvex.parameter:parameter.reference.ranged-2.0.0",
                   "Could not find reference parameter with typeid x.",
                   Detail::nameBy<&Detail::Engine::getReferenceParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllReferenceParameters>, Detail::addReferenceParameter},
    KindOperations{"StringParameter", "norvex.parameter:parameter.string-3.0.0",
                   "Could not find string parameter with typeid x.",
                   Detail::nameBy<&Detail::Engine::getStringParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllStringParameters>, Detail::addStringParameter},
    KindOperations{"Domain", "norvex.talmo.category:domain-1.0.0", "Could not find domain with typeid x.",
                   Detail::nameBy<&Detail::Engine::getDomain>, Detail::typeIdsBy<&Detail::Engine::getAllDomains>,
                   Detail::addTaxon<&Detail::Engine::registerDomain>},
};

/// Names a test after its kind.
inline const auto kindName = [](const auto& test) { return std::string(test.param.name); };
