#pragma once

#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

/// The operations of one kind as functions of type identifiers, so that what holds for every kind is one test. This
/// fits the kinds whose schemas name nothing that must be there. An object's content ("1", "2" ...) is its name where
/// it has one.
struct KindOperations {
    const char* name;
    const char* base;
    const char* unknownX; // the message of a look-up of "x"
    std::string (*contentOf)(const Parameters::ParametersEngine& engine, const std::string& typeId);
    std::vector<std::string> (*typeIds)(const Parameters::ParametersEngine& engine);
    void (*add)(Parameters::ParametersEngine& engine, const std::string& typeId, const std::string& content);
    const char* bareX = "Schema x has an undefined name constant."; // the message of a schema "x" with its base alone
    std::string (*textOf)(const std::string& typeId, const std::string& base,
                          const std::string& content) = Support::namedText;

    /// Returns the schema text of an object.
    std::string text(const std::string& typeId, const std::string& content = "1") const {
        return textOf(typeId, base, content);
    }
    bool hasNames() const { return textOf == Support::namedText; }
    bool hasVersions() const { return std::string(base).find('-') != std::string::npos; }
};

namespace Detail {

using Engine = Parameters::ParametersEngine;

inline std::string contentOf(const Parameters::Taxon& taxon) { return taxon.getName(); }

inline std::string contentOf(const Parameters::Enumeration& enumeration) {
    return std::to_string(enumeration.getValues().at(0).second);
}

inline std::string contentOf(const Parameters::FloatRange& range) {
    return std::to_string(static_cast<int>(range.getBottomBoundary()));
}

inline std::string contentOf(const Parameters::IntRange& range) { return std::to_string(range.getBottomBoundary()); }

inline std::string contentOf(const Parameters::StringRange& range) {
    return range.getRegexStringRangeComponent()->getRegex();
}

template <class Object>
std::string contentOf(const Object& object) {
    return object.getCore().getName();
}

template <auto get>
std::string contentBy(const Engine& engine, const std::string& typeId) {
    return contentOf((engine.*get)(typeId));
}

template <auto getAll>
std::vector<std::string> typeIdsBy(const Engine& engine) {
    std::vector<std::string> typeIds;
    for (const auto& [typeId, object] : (engine.*getAll)()) {
        typeIds.push_back(typeId);
    }
    return typeIds;
}

inline std::string enumerationText(const std::string& typeId, const std::string& base, const std::string& content) {
    return R"({"typeid": )" + Support::quoted(typeId) + R"(, "inherits": [")" + base +
           R"("], "properties": [{"id": "value", "value": )" + content + "}]}";
}

inline std::string numericRangeText(const std::string& typeId, const std::string& base, const std::string& content) {
    return Support::schemaText(typeId, base,
                               R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": false}, )" +
                                   Support::constant("bottomBoundary", content));
}

inline std::string regexText(const std::string& typeId, const std::string& base, const std::string& content) {
    return Support::schemaText(typeId, base, Support::constant("regex", Support::quoted(content)));
}

inline void addEnumeration(Engine& engine, const std::string& typeId, const std::string& content) {
    engine.registerEnumeration({typeId, {{"value", std::stoi(content)}}});
}

template <class Range, auto add>
void addNumericRange(Engine& engine, const std::string& typeId, const std::string& content) {
    (engine.*add)(Range(typeId, true, std::stoi(content), false, 0));
}

inline void addStringRange(Engine& engine, const std::string& typeId, const std::string& content) {
    engine.registerStringRange({typeId, Parameters::RegexStringRangeComponent(content)});
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
    KindOperations{"Enumeration", "Enum", "Could not find enumeration with typeid x.",
                   Detail::contentBy<&Detail::Engine::getEnumeration>,
                   Detail::typeIdsBy<&Detail::Engine::getAllEnumerations>, Detail::addEnumeration,
                   "Enumeration schema x must specify at least one value.", Detail::enumerationText},
    KindOperations{"FloatRange", "norvex.range:range.float64.bounded.static-1.0.0",
                   "Could not find floating-point range with typeid x.",
                   Detail::contentBy<&Detail::Engine::getFloatRange>,
                   Detail::typeIdsBy<&Detail::Engine::getAllFloatRanges>,
                   Detail::addNumericRange<Parameters::FloatRange, &Detail::Engine::registerFloatRange>,
                   "Schema x has an undefined fromBottom constant.", Detail::numericRangeText},
    KindOperations{"IntRange", "norvex.range:range.int64.bounded.static-1.0.0",
                   "Could not find integer range with typeid x.", Detail::contentBy<&Detail::Engine::getIntRange>,
                   Detail::typeIdsBy<&Detail::Engine::getAllIntRanges>,
                   Detail::addNumericRange<Parameters::IntRange, &Detail::Engine::registerIntRange>,
                   "Schema x has an undefined fromBottom constant.", Detail::numericRangeText},
    KindOperations{"StringRange", "norvex.range:range.string.regex-1.0.0", "Could not find string range with typeid x.",
                   Detail::contentBy<&Detail::Engine::getStringRange>,
                   Detail::typeIdsBy<&Detail::Engine::getAllStringRanges>, Detail::addStringRange,
                   "Schema x has an undefined regex constant.", Detail::regexText},
    KindOperations{"Discipline", "norvex.spec:discipline-1.0.0", "Could not find discipline with typeid x.",
                   Detail::contentBy<&Detail::Engine::getDiscipline>,
                   Detail::typeIdsBy<&Detail::Engine::getAllDisciplines>,
                   Detail::addTaxon<&Detail::Engine::registerDiscipline>},
    KindOperations{"BoolSpec", "norvex.spec:spec.bool-1.0.0", "Could not find Boolean spec with typeid x.",
                   Detail::contentBy<&Detail::Engine::getBoolSpec>, Detail::typeIdsBy<&Detail::Engine::getAllBoolSpecs>,
                   Detail::addSpec<Parameters::BoolSpec, &Detail::Engine::registerBoolSpec>},
    KindOperations{"GeneralSpec", "norvex.spec:spec-1.0.0", "Could not find general spec with typeid x.",
                   Detail::contentBy<&Detail::Engine::getGeneralSpec>,
                   Detail::typeIdsBy<&Detail::Engine::getAllGeneralSpecs>,
                   Detail::addSpec<Parameters::GeneralSpec, &Detail::Engine::registerGeneralSpec>},
    KindOperations{"IntSpec", "norvex.spec:spec.int64-2.0.0", "Could not find integer spec with typeid x.",
                   Detail::contentBy<&Detail::Engine::getIntSpec>, Detail::typeIdsBy<&Detail::Engine::getAllIntSpecs>,
                   Detail::addSpec<Parameters::IntSpec, &Detail::Engine::registerIntSpec>},
    KindOperations{"ReferenceSpec", "norvex.spec:spec.reference-1.0.0", "Could not find reference spec with typeid x.",
                   Detail::contentBy<&Detail::Engine::getReferenceSpec>,
                   Detail::typeIdsBy<&Detail::Engine::getAllReferenceSpecs>, Detail::addReferenceSpec},
    KindOperations{"StringSpec", "norvex.spec:spec.string-2.0.0", "Could not find string spec with typeid x.",
                   Detail::contentBy<&Detail::Engine::getStringSpec>,
                   Detail::typeIdsBy<&Detail::Engine::getAllStringSpecs>,
                   Detail::addSpec<Parameters::StringSpec, &Detail::Engine::registerStringSpec>},
    KindOperations{"Group", "norvex.parameter:group-1.0.0", "Could not find group with typeid x.",
                   Detail::contentBy<&Detail::Engine::getGroup>, Detail::typeIdsBy<&Detail::Engine::getAllGroups>,
                   Detail::addTaxon<&Detail::Engine::registerGroup>},
    KindOperations{
        "BoolParameter", "norvex.parameter:parameter.bool-2.0.0", "Could not find Boolean parameter with typeid x.",
        Detail::contentBy<&Detail::Engine::getBoolParameter>, Detail::typeIdsBy<&Detail::Engine::getAllBoolParameters>,
        Detail::addParameter<Parameters::BoolParameter, &Detail::Engine::registerBoolParameter>},
    KindOperations{"IntParameter", "norvex.parameter:parameter.int64-3.0.0",
                   "Could not find integer parameter with typeid x.",
                   Detail::contentBy<&Detail::Engine::getIntParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllIntParameters>, Detail::addIntParameter},
    KindOperations{"ReferenceParameter", "norvex.parameter:parameter.reference.ranged-2.0.0",
                   "Could not find reference parameter with typeid x.",
                   Detail::contentBy<&Detail::Engine::getReferenceParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllReferenceParameters>, Detail::addReferenceParameter},
    KindOperations{"StringParameter", "norvex.parameter:parameter.string-3.0.0",
                   "Could not find string parameter with typeid x.",
                   Detail::contentBy<&Detail::Engine::getStringParameter>,
                   Detail::typeIdsBy<&Detail::Engine::getAllStringParameters>, Detail::addStringParameter},
    KindOperations{"Domain", "norvex.talmo.category:domain-1.0.0", "Could not find domain with typeid x.",
                   Detail::contentBy<&Detail::Engine::getDomain>, Detail::typeIdsBy<&Detail::Engine::getAllDomains>,
                   Detail::addTaxon<&Detail::Engine::registerDomain>},
};

/// Returns the kinds of which that holds.
inline std::vector<KindOperations> kindsThat(bool (KindOperations::*holds)() const) {
    std::vector<KindOperations> kinds;
    std::copy_if(everyKind.begin(), everyKind.end(), std::back_inserter(kinds),
                 [holds](const KindOperations& kind) { return (kind.*holds)(); });
    return kinds;
}
