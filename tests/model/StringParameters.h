#pragma once

#include "StringRanges.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <string>

/// What the tests of string parameters share.
namespace StringParameters {

using namespace StringRanges;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::RegexStringRangeComponent;
using Parameters::SetStringRangeComponent;
using Parameters::SpecCore;
using Parameters::StringParameter;
using Parameters::StringSpec;
using Parameters::Taxon;

inline constexpr const char* builtInSpec = "norvex.spec:spec.string-2.0.0";

inline ParameterCore coreOf(const std::string& typeId, const std::string& group = "norvex.parameter:group-1.0.0") {
    return {typeId, "Name", Taxon(group, "Group"), "", "", false};
}

inline StringSpec specOf(const std::string& typeId) { return StringSpec(SpecCore(typeId, "Spec")); }

inline StringRange setOf(const std::string& typeId, const Strings& values) {
    return {typeId, SetStringRangeComponent(values)};
}

inline StringRange regexOf(const std::string& typeId, const std::string& regex) {
    return {typeId, RegexStringRangeComponent(regex)};
}

/// Returns the text of the parameter "p" with the given constants behind its name.
inline std::string textOf(const std::string& constants = "") {
    return Support::schemaText("p", "norvex.parameter:parameter.string-3.0.0",
                               R"({"id": "name", "value": "Name"})" + (constants.empty() ? "" : ", " + constants));
}

/// Returns the text of the parameter "p" with an inline value of its range.
inline std::string inlineText(const std::string& rangeTypeId, const std::string& value) {
    return textOf(R"({"id": "range", "typedValue": {"typeid": ")" + rangeTypeId + R"(", "value": )" + value + "}}");
}

inline std::string written(const std::string& more) {
    return R"({"typeid":"p","inherits":["norvex.parameter:parameter.string-3.0.0"],"constants":[)"
           R"({"id":"name","value":"Name"})" +
           more + "]}";
}

/// Returns an engine with a group "g", a spec "s", ranges "set", "empty", "regex" and "any", and objects of other
/// kinds.
inline ParametersEngine stocked() {
    ParametersEngine engine;
    engine.registerGroup(Taxon("g", "The group"));
    engine.registerStringSpec(StringSpec(SpecCore("s", "The spec")));
    engine.registerStringRange(setOf("set", {"b", "a"}));
    engine.registerStringRange(setOf("empty", {}));
    engine.registerStringRange(regexOf("regex", "a*"));
    engine.registerSchema(Support::schemaText("any", defaultBase, ""));
    engine.resolveSchemas();
    engine.registerDiscipline(Taxon("discipline", "N"));
    engine.registerIntSpec(Parameters::IntSpec(SpecCore("intSpec", "N")));
    engine.registerIntRange({"intRange", true, 1, true, 2});
    return engine;
}

inline StringParameter resolved(const std::string& text) {
    ParametersEngine engine = stocked();
    engine.registerSchema(text);
    engine.resolveSchemas();
    return engine.getStringParameter("p");
}

inline std::string writtenBy(const StringParameter& parameter) {
    ParametersEngine engine = stocked();
    engine.registerStringParameter(parameter);
    return engine.getSchema(parameter.getCore().getTypeId());
}

} // namespace StringParameters
