#pragma once

#include "IntParameters.h"
#include "StringParameters.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <string>
#include <vector>

/// What integer and string parameters have in common, each with its own literals.
namespace RangedParameters {

using Parameters::IntParameter;
using Parameters::IntRange;
using Parameters::IntSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::StringParameter;
using Parameters::StringRange;
using Parameters::StringSpec;
using Support::typedConstant;

template <class Parameter>
struct Traits;

template <>
struct Traits<IntParameter> {
    using Spec = IntSpec;
    using Range = IntRange;
    static constexpr const char* name = "Int";
    static constexpr const char* base = "norvex.parameter:parameter.int64-3.0.0";
    static constexpr const char* ofAnotherMinorVersion = "norvex.parameter:parameter.int64-3.7.1";
    static constexpr const char* ofAnotherMajorVersion = "norvex.parameter:parameter.int64-2.0.0";
    static constexpr const char* builtInSpec = "norvex.spec:spec.int64-2.0.0";
    static constexpr const char* builtInSpecOfAnotherVersion = "norvex.spec:spec.int64-2.3.0";
    static constexpr const char* builtInSpecName = "Integer";
    static constexpr const char* namedRange = "r";
    static constexpr const char* namedRangeWithoutLimits = "unbounded";
    static constexpr const char* missedPendingRange = "Could not find integer range with typeid r.";
    static constexpr auto get = &ParametersEngine::getIntParameter;
    static constexpr auto getAll = &ParametersEngine::getAllIntParameters;
    static constexpr auto read = &ParametersEngine::readIntParameter;
    static constexpr auto add = &ParametersEngine::registerIntParameter;
    static constexpr auto stocked = &IntParameters::stocked;
    static constexpr auto textOf = &IntParameters::textOf;
    static constexpr auto resolved = &IntParameters::resolved;

    static std::string rangeText() {
        return Support::schemaText(namedRange, IntParameters::builtInRange,
                                   R"({"id": "fromBottom", "value": true}, {"id": "bottomBoundary", "value": -4},
                                      {"id": "fromTop", "value": true}, {"id": "topBoundary", "value": 8})");
    }
    static std::vector<std::string> textsWithARangeOfTheirOwn() {
        const std::string value = R"({"fromBottom": true, "fromTop": true})";
        return {IntParameters::inlineText(value),
                IntParameters::inlineText(value, "norvex.range:range.int64.bounded.static-1.3.0")};
    }
    static std::vector<IntRange> rangesOfTheirOwn() {
        return {IntRange(true, 1, true, 2),
                IntRange("norvex.range:range.int64.bounded.static-1.3.0", true, 1, true, 2)};
    }
    static IntRange rangeOf(const std::string& typeId) { return {typeId, true, 1, false, 2}; }
    static void expectRangeOf(const IntRange& range, const std::string& typeId) {
        IntParameters::expectRange(range, typeId, true, 1, false, 2);
    }
    static void expectNamedRange(const IntRange& range) { IntParameters::expectRange(range, "r", true, -4, true, 8); }
    static void expectDefaultRange(const IntRange& range) {
        IntParameters::expectRange(range, "norvex.range:range.int64.bounded.static-1.0.0", false, 0, false, 0);
    }
};

template <>
struct Traits<StringParameter> {
    using Spec = StringSpec;
    using Range = StringRange;
    static constexpr const char* name = "String";
    static constexpr const char* base = "norvex.parameter:parameter.string-3.0.0";
    static constexpr const char* ofAnotherMinorVersion = "norvex.parameter:parameter.string-3.7.1";
    static constexpr const char* ofAnotherMajorVersion = "norvex.parameter:parameter.string-2.0.0";
    static constexpr const char* builtInSpec = "norvex.spec:spec.string-2.0.0";
    static constexpr const char* builtInSpecOfAnotherVersion = "norvex.spec:spec.string-2.3.0";
    static constexpr const char* builtInSpecName = "Text";
    static constexpr const char* namedRange = "set";
    static constexpr const char* namedRangeWithoutLimits = "any";
    static constexpr const char* missedPendingRange = "Could not find string range with typeid set.";
    static constexpr auto get = &ParametersEngine::getStringParameter;
    static constexpr auto getAll = &ParametersEngine::getAllStringParameters;
    static constexpr auto read = &ParametersEngine::readStringParameter;
    static constexpr auto add = &ParametersEngine::registerStringParameter;
    static constexpr auto stocked = &StringParameters::stocked;
    static constexpr auto textOf = &StringParameters::textOf;
    static constexpr auto resolved = &StringParameters::resolved;

    static std::string rangeText() {
        return Support::schemaText(namedRange, StringParameters::setBase,
                                   R"({"id": "allowedValues", "value": ["b", "a"]})");
    }
    static std::vector<std::string> textsWithARangeOfTheirOwn() {
        return {StringParameters::inlineText("norvex.range:range.string-1.3.0", "{}"),
                StringParameters::inlineText(StringParameters::regexBase, R"({"regex": "a"})")};
    }
    static std::vector<StringRange> rangesOfTheirOwn() {
        return {StringRange(), StringParameters::setOf("norvex.range:range.string.set.static-1.4.2", {"a"})};
    }
    static StringRange rangeOf(const std::string& typeId) { return StringParameters::setOf(typeId, {"x"}); }
    static void expectRangeOf(const StringRange& range, const std::string& typeId) {
        StringParameters::expectSet(range, typeId, {"x"});
    }
    static void expectNamedRange(const StringRange& range) { StringParameters::expectSet(range, "set", {"b", "a"}); }
    static void expectDefaultRange(const StringRange& range) {
        StringParameters::expectAnyText(range, "norvex.range:range.string-1.0.0");
    }
};

/// Returns the text of the parameter "p" that names all that it can, in another order than that in which it is read.
template <class Parameter>
std::string textNaming(const std::string& group, const std::string& spec, const std::string& range) {
    return Traits<Parameter>::textOf(typedConstant("range", range) + ", " + typedConstant("spec", spec) + ", " +
                                     typedConstant("group", group));
}

/// Returns a parameter made in code with objects that it makes up.
template <class Parameter>
Parameter parameterNaming(const std::string& typeId, const std::string& group, const std::string& spec,
                          const std::string& range) {
    return {IntParameters::coreOf(typeId, group), typename Traits<Parameter>::Spec(SpecCore(spec, "Spec")),
            Traits<Parameter>::rangeOf(range)};
}

} // namespace RangedParameters
