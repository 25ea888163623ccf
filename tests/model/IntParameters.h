#pragma once

#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>

/// What the tests of integer parameters share.
namespace IntParameters {

using Parameters::IntParameter;
using Parameters::IntRange;
using Parameters::IntSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;

inline constexpr const char* builtInSpec = "norvex.spec:spec.int64-2.0.0";
inline constexpr const char* builtInRange = "norvex.range:range.int64.bounded.static-1.0.0";

inline ParameterCore coreOf(const std::string& typeId, const std::string& group = "norvex.parameter:group-1.0.0") {
    return {typeId, "Name", Taxon(group, "Group"), "", "", false};
}

inline IntSpec specOf(const std::string& typeId) { return IntSpec(SpecCore(typeId, "Spec")); }

/// Returns the text of the parameter "p" with the given constants behind its name.
inline std::string textOf(const std::string& constants = "") {
    return Support::schemaText("p", "norvex.parameter:parameter.int64-3.0.0",
                               R"({"id": "name", "value": "Name"})" + (constants.empty() ? "" : ", " + constants));
}

inline std::string inlineText(const std::string& value, const std::string& typeId = builtInRange) {
    return textOf(R"({"id": "range", "typedValue": {"typeid": ")" + typeId + R"(", "value": )" + value + "}}");
}

inline std::string written(const std::string& more) {
    return R"({"typeid":"p","inherits":["norvex.parameter:parameter.int64-3.0.0"],"constants":[)"
           R"({"id":"name","value":"Name"})" +
           more + "]}";
}

/// Returns an engine with a group "g", a spec "s", ranges "r" and "unbounded", and objects of other kinds.
inline ParametersEngine stocked() {
    ParametersEngine engine;
    engine.registerGroup(Taxon("g", "The group"));
    engine.registerIntSpec(IntSpec(SpecCore("s", "The spec")));
    engine.registerIntRange(IntRange("r", true, -4, true, 8));
    engine.registerIntRange(IntRange("unbounded", false, 3, false, 4));
    engine.registerDiscipline(Taxon("discipline", "N"));
    engine.registerStringSpec(Parameters::StringSpec(SpecCore("stringSpec", "N")));
    engine.registerFloatRange({"floatRange", true, 1, true, 2});
    return engine;
}

inline IntParameter resolved(const std::string& text) {
    ParametersEngine engine = stocked();
    engine.registerSchema(text);
    engine.resolveSchemas();
    return engine.getIntParameter("p");
}

inline std::string writtenBy(const IntParameter& parameter) {
    ParametersEngine engine = stocked();
    engine.registerIntParameter(parameter);
    return engine.getSchema(parameter.getCore().getTypeId());
}

inline void expectRange(const IntRange& range, const std::string& typeId, bool fromBottom, long long bottom,
                        bool fromTop, long long top) {
    EXPECT_EQ(range.getTypeId(), typeId);
    EXPECT_EQ(range.isBoundFromBottom(), fromBottom);
    EXPECT_EQ(range.getBottomBoundary(), bottom);
    EXPECT_EQ(range.isBoundFromTop(), fromTop);
    EXPECT_EQ(range.getTopBoundary(), top);
}

} // namespace IntParameters
