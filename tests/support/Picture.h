#pragma once

#include <parameters/ParametersEngine.h>

#include <cstdio>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

namespace Support {

namespace Detail {

using Engine = Parameters::ParametersEngine;

/// Returns the bytes between quotes, unprintable ones escaped, so that no two texts look alike.
inline std::string shown(const std::string& bytes) {
    std::string result = "\"";
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte >= 0x7F || character == '"' || character == '\\') {
            char escape[8] = {};
            std::snprintf(escape, sizeof escape, "\\x%02X", byte);
            result += escape;
        } else {
            result += character;
        }
    }
    return result + '"';
}

inline std::string contentOf(const Parameters::Taxon& taxon) {
    return "(" + shown(taxon.getTypeId()) + " " + shown(taxon.getName()) + ")";
}

inline std::string contentOf(const Parameters::SpecCore& core) {
    return "(" + shown(core.getTypeId()) + " " + shown(core.getName()) + " of " + contentOf(core.getDiscipline()) + ")";
}

inline std::string contentOf(const Parameters::ParameterCore& core) {
    return "(" + shown(core.getTypeId()) + " " + shown(core.getName()) + " in " + contentOf(core.getGroup()) +
           " described " + shown(core.getDescription()) + " sample " + shown(core.getSampleText()) +
           (core.isReadOnly() ? " read-only)" : " writable)");
}

inline std::string contentOf(const Parameters::BoolSpec& spec) { return contentOf(spec.getCore()); }

inline std::string contentOf(const Parameters::GeneralSpec& spec) { return contentOf(spec.getCore()); }

inline std::string contentOf(const Parameters::BoolParameter& parameter) {
    return contentOf(parameter.getCore()) + " with spec " + contentOf(parameter.getSpec());
}

template <class Range>
std::string contentOfNumericRange(const Range& range) {
    // All 17 digits that tell doubles apart; integers are written as they are.
    std::ostringstream text;
    text.precision(17);
    text << (range.isBoundFromBottom() ? " from " : " not from ") << range.getBottomBoundary()
         << (range.isBoundFromTop() ? " to " : " not to ") << range.getTopBoundary();
    return "(" + shown(range.getTypeId()) + text.str() + ")";
}

inline std::string contentOf(const Parameters::IntRange& range) { return contentOfNumericRange(range); }

inline std::string contentOf(const Parameters::FloatRange& range) { return contentOfNumericRange(range); }

inline std::string contentOf(const Parameters::StringRange& range) {
    std::string result = "(" + shown(range.getTypeId());
    if (const auto set = range.getSetStringRangeComponent()) {
        result += " one of";
        for (const std::string& value : set->getAllowedValues()) {
            result += " " + shown(value);
        }
    }
    if (const auto regex = range.getRegexStringRangeComponent()) {
        result += " matching " + shown(regex->getRegex());
    }
    return result + ")";
}

inline std::string contentOf(const Parameters::Enumeration& enumeration) {
    std::string result = "(" + shown(enumeration.getTypeId());
    for (const auto& [identifier, integer] : enumeration.getValues()) {
        result += " " + shown(identifier) + "=" + std::to_string(integer);
    }
    return result + ")";
}

inline std::string contentOf(const Parameters::IntSpec& spec) { return contentOf(spec.getCore()); }

inline std::string contentOf(const Parameters::StringSpec& spec) { return contentOf(spec.getCore()); }

template <class Parameter>
std::string contentOfRangedParameter(const Parameter& parameter) {
    return contentOf(parameter.getCore()) + " with spec " + contentOf(parameter.getSpec()) + " and range " +
           contentOf(parameter.getRange());
}

inline std::string contentOf(const Parameters::IntParameter& parameter) { return contentOfRangedParameter(parameter); }

inline std::string contentOf(const Parameters::StringParameter& parameter) {
    return contentOfRangedParameter(parameter);
}

inline std::string contentOf(const Parameters::EnumerationParameter& parameter) {
    return contentOf(parameter.getCore()) + " with spec " + contentOf(parameter.getSpec()) + " of " +
           contentOf(parameter.getEnumeration());
}

inline std::string contentOf(const Units::Unit& unit) {
    return "(" + shown(unit.getTypeId()) + " " + shown(unit.getName()) + " " + shown(unit.getSymbol()) + ")";
}

inline std::string contentOf(const Parameters::MeasurableSpec& spec) {
    std::string result = contentOf(spec.getCore()) + " in";
    for (const Units::Unit& unit : spec.getApplicableUnits()) {
        result += " " + contentOf(unit);
    }
    return result + " stored in " + contentOf(spec.getStorageUnit());
}

inline std::string contentOf(const Parameters::MeasurableParameter& parameter) {
    return contentOf(parameter.getCore()) + " with spec " + contentOf(parameter.getSpec()) + " and range " +
           contentOf(parameter.getRange());
}

inline std::string contentOf(const Parameters::Category& category) {
    std::string result = "(" + shown(category.getTypeId()) + " " + shown(category.getName());
    if (const auto major = category.getMajorCategoryComponent()) {
        result += " of " + contentOf(major->getDomain()) + " for";
        for (const Parameters::Taxon& discipline : major->getDisciplines()) {
            result += " " + contentOf(discipline);
        }
    }
    if (const auto sub = category.getSubCategoryComponent()) {
        result += " below " + shown(sub->getParentCategory());
    }
    return result + ")";
}

inline std::string contentOf(const Parameters::ReferenceSpec& spec) {
    const auto category = spec.getCategory();
    return contentOf(spec.getCore()) + (category ? " to " + contentOf(*category) : " to anything");
}

inline std::string contentOf(const Parameters::ReferenceParameter& parameter) {
    return contentOf(parameter.getCore()) + " with spec " + contentOf(parameter.getSpec()) +
           (parameter.isRanged() ? " ranged" : " not ranged");
}

inline std::string dependenciesOf(const Engine& engine, const std::string& typeId) {
    try {
        std::string result;
        for (const std::string& named : engine.getDependencies(typeId)) {
            result += " " + shown(named);
        }
        return result;
    } catch (const Parameters::UnrecognizedIdentifierException&) {
        return " not searched";
    }
}

/// Returns one kind's list with all that can be asked about each object in it.
template <class Object>
std::string kindOf(const Engine& engine, const char* kind, std::map<std::string, Object> (Engine::*getAll)() const,
                   Object (Engine::*get)(const std::string&) const) {
    std::string result;
    for (const auto& [typeId, object] : (engine.*getAll)()) {
        result += std::string(kind) + " " + shown(typeId) + "\n";
        result += "  listed  " + contentOf(object) + "\n";
        result += "  got     " + contentOf((engine.*get)(typeId)) + "\n";
        result += "  schema  " + shown(engine.getSchema(typeId)) + "\n";
        result += "  depends" + dependenciesOf(engine, typeId) + "\n";
    }
    return result;
}

inline std::string unitsOf(const Engine& engine) {
    Engine copy(engine); // the units engine is handed out for changing only
    std::string result;
    for (const auto& [typeId, unit] : copy.getUnitsEngine().getAllUnits()) {
        result += "unit " + shown(typeId) + "\n  listed  " + contentOf(unit) + "\n";
    }
    return result;
}

inline std::string resolvedOf(const Engine& engine) {
    return kindOf(engine, "enumeration", &Engine::getAllEnumerations, &Engine::getEnumeration) +
           kindOf(engine, "floating-point range", &Engine::getAllFloatRanges, &Engine::getFloatRange) +
           kindOf(engine, "integer range", &Engine::getAllIntRanges, &Engine::getIntRange) +
           kindOf(engine, "string range", &Engine::getAllStringRanges, &Engine::getStringRange) +
           kindOf(engine, "discipline", &Engine::getAllDisciplines, &Engine::getDiscipline) +
           kindOf(engine, "Boolean spec", &Engine::getAllBoolSpecs, &Engine::getBoolSpec) +
           kindOf(engine, "general spec", &Engine::getAllGeneralSpecs, &Engine::getGeneralSpec) +
           kindOf(engine, "integer spec", &Engine::getAllIntSpecs, &Engine::getIntSpec) +
           kindOf(engine, "measurable spec", &Engine::getAllMeasurableSpecs, &Engine::getMeasurableSpec) +
           kindOf(engine, "reference spec", &Engine::getAllReferenceSpecs, &Engine::getReferenceSpec) +
           kindOf(engine, "string spec", &Engine::getAllStringSpecs, &Engine::getStringSpec) +
           kindOf(engine, "group", &Engine::getAllGroups, &Engine::getGroup) +
           kindOf(engine, "enumeration parameter", &Engine::getAllEnumerationParameters,
                  &Engine::getEnumerationParameter) +
           kindOf(engine, "Boolean parameter", &Engine::getAllBoolParameters, &Engine::getBoolParameter) +
           kindOf(engine, "integer parameter", &Engine::getAllIntParameters, &Engine::getIntParameter) +
           kindOf(engine, "measurable parameter", &Engine::getAllMeasurableParameters,
                  &Engine::getMeasurableParameter) +
           kindOf(engine, "reference parameter", &Engine::getAllReferenceParameters, &Engine::getReferenceParameter) +
           kindOf(engine, "string parameter", &Engine::getAllStringParameters, &Engine::getStringParameter) +
           kindOf(engine, "domain", &Engine::getAllDomains, &Engine::getDomain) +
           kindOf(engine, "category", &Engine::getAllCategories, &Engine::getCategory) + unitsOf(engine);
}

inline std::string pendingOf(const Engine& engine) {
    Engine copy(engine);
    try {
        copy.resolveSchemas();
    } catch (const std::logic_error& exception) {
        return std::string("fails with ") + shown(exception.what()) + "\n";
    }
    return resolvedOf(copy);
}

} // namespace Detail

/// Returns everything that can be observed of an engine as one text: all lists and what their objects, schemas and
/// dependencies are, which of the given type identifiers are taken, and what resolving would make of what is pending.
/// Two engines with equal pictures cannot be told apart.
inline std::string pictureOf(const Parameters::ParametersEngine& engine, const std::set<std::string>& typeIds = {}) {
    std::string result = Detail::resolvedOf(engine);
    for (const std::string& typeId : typeIds) {
        result += (engine.isRegistered(typeId) ? "taken " : "free ") + Detail::shown(typeId) + "\n";
    }
    return result + "after resolution:\n" + Detail::pendingOf(engine);
}

} // namespace Support
