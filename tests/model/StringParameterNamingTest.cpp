#include "StringParameters.h"
#include "support/Engines.h"
#include "support/NamingFault.h"
#include "support/Refusal.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>

// What a string parameter names, how that is found, and how its own range must fit the base that it names.

namespace {

using namespace StringParameters;
using Support::engineOf;
using Support::NamingFault;
using Support::refusalBy;
using Support::typedConstant;

const NamingFault namingFaults[] = {
    {"Group", "x", "s", "set", "Could not find group with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"Spec", "g", "x", "set", "Could not find string spec with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"Range", "g", "s", "x", "Could not find string range with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"GroupBeforeSpecAndRange", "x", "y", "z", "Could not find group with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"RangeOrSpecFirst", "g", "y", "z", "Could not find string range with typeid z.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"GroupOfAnotherKind", "discipline", "s", "set", "Could not find group with typeid discipline.",
     "Dependency discipline in schema p is missing or does not represent an object of the expected type."},
    {"SpecOfAnotherKind", "g", "intSpec", "set", "Could not find string spec with typeid intSpec.",
     "Dependency intSpec in schema p is missing or does not represent an object of the expected type."},
    {"RangeOfAnotherKind", "g", "s", "intRange", "Could not find string range with typeid intRange.",
     "Dependency intRange in schema p is missing or does not represent an object of the expected type."},
    {"SpecOfAnotherMajorVersion", "g", "norvex.spec:spec.string-1.0.0", "set",
     "Could not find string spec with typeid norvex.spec:spec.string-1.0.0.",
     "Dependency norvex.spec:spec.string-1.0.0 in schema p is missing or does not represent an object of the expected "
     "type."},
    {"RangeOfAnotherMajorVersion", "g", "s", "norvex.range:range.string.set.static-2.0.0",
     "Could not find string range with typeid norvex.range:range.string.set.static-2.0.0.",
     "Dependency norvex.range:range.string.set.static-2.0.0 in schema p is missing or does not represent an object of "
     "the expected type."},
    {"BuiltInRangeOfAnotherKind", "g", "s", "norvex.range:range.int64.bounded.static-1.0.0",
     "Could not find string range with typeid norvex.range:range.int64.bounded.static-1.0.0.",
     "Dependency norvex.range:range.int64.bounded.static-1.0.0 in schema p is missing or does not represent an object "
     "of the expected type."},
};

struct StringParameterNaming : testing::TestWithParam<NamingFault> {
    static StringParameter parameter() {
        return StringParameter(coreOf("p", GetParam().group), specOf(GetParam().spec), setOf(GetParam().third, {"a"}));
    }
    static std::string text() {
        return textOf(typedConstant("range", GetParam().third) + ", " + typedConstant("spec", GetParam().spec) + ", " +
                      typedConstant("group", GetParam().group));
    }

    ParametersEngine engine = stocked();
};

TEST_P(StringParameterNaming, FailsResolution) {
    engine.registerSchema(text());
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().whenResolved);
}

TEST_P(StringParameterNaming, FailsReading) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.readStringParameter(text()); }), GetParam().whenBound);
}

TEST_P(StringParameterNaming, FailsRegistration) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerStringParameter(parameter()); }), GetParam().whenBound);
}

TEST_P(StringParameterNaming, FailsWriting) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter()); }), GetParam().whenBound);
}

TEST_P(StringParameterNaming, FailsTheQuestionForDependencies) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter()); }), GetParam().whenBound);
}

INSTANTIATE_TEST_SUITE_P(StringParameter, StringParameterNaming, testing::ValuesIn(namingFaults),
                         [](const auto& test) { return test.param.name; });

struct UnfitRange {
    const char* name;
    const char* group;
    const char* spec;
    StringRange range;
    const char* message;

    friend void PrintTo(const UnfitRange& row, std::ostream* out) { *out << row.name; }
};

const UnfitRange unfitRanges[] = {
    {"DefaultWithSet", "g", "s", setOf("norvex.range:range.string-1.4.0", {"a"}),
     "String range using base schema typeid norvex.range:range.string-1.4.0 may not specify a limited range of "
     "values."},
    {"DefaultWithEmptySet", "g", "s", setOf("norvex.range:range.string-1.0.0", {}),
     "String range using base schema typeid norvex.range:range.string-1.0.0 may not specify a limited range of "
     "values."},
    {"DefaultWithExpression", "g", "s", regexOf("my norvex.range:range.string-1.x", "a"),
     "String range using base schema typeid my norvex.range:range.string-1.x may not specify a limited range of "
     "values."},
    {"SetWithExpression", "g", "s", regexOf("norvex.range:range.string.set.static-1.0.0", "a"),
     "String range using base schema typeid norvex.range:range.string.set.static-1.0.0 must specify an explicit set of "
     "allowed values."},
    {"SetWithoutValues", "g", "s", setOf("norvex.range:range.string.set.static-1.4.2", {}),
     "String range using base schema typeid norvex.range:range.string.set.static-1.4.2 must specify an explicit set of "
     "allowed values."},
    {"RegexWithSet", "g", "s", setOf("norvex.range:range.string.regex-1.3.0", {"a"}),
     "String range using base schema typeid norvex.range:range.string.regex-1.3.0 must specify a regular expression "
     "matching permitted values."},
    {"DefaultBeforeSet", "g", "s",
     regexOf("norvex.range:range.string.set.static-1.0.0 norvex.range:range.string-1.0.0", "a"),
     "String range using base schema typeid norvex.range:range.string.set.static-1.0.0 "
     "norvex.range:range.string-1.0.0 may not specify a limited range of values."},
    {"SetBeforeRegex", "g", "s",
     regexOf("norvex.range:range.string.regex-1.0.0 norvex.range:range.string.set.static-1.0.0", "a"),
     "String range using base schema typeid norvex.range:range.string.regex-1.0.0 "
     "norvex.range:range.string.set.static-1.0.0 must specify an explicit set of allowed values."},
    {"RegexBehindSet", "g", "s",
     setOf("norvex.range:range.string.set.static-1.0.0 norvex.range:range.string.regex-1.0.0", {"a"}),
     "String range using base schema typeid norvex.range:range.string.set.static-1.0.0 "
     "norvex.range:range.string.regex-1.0.0 must specify a regular expression matching permitted values."},
    {"RepeatedValue", "g", "s", setOf("norvex.range:range.string.set.static-1.0.0", {"a", "b", "c", "b", "a"}),
     "Value b must appear only once."},
    {"RepeatedValueOfANamedRange", "g", "s", setOf("set", {"a", "a"}), "Value a must appear only once."},
    {"RepeatedValueBeforeTheBase", "g", "s", setOf("norvex.range:range.string-1.0.0", {"a", "a"}),
     "Value a must appear only once."},
    {"RepeatedValueBeforeRange", "g", "x", setOf("y", {"a", "a"}), "Value a must appear only once."},
    {"GroupBeforeRepeatedValue", "x", "s", setOf("set", {"a", "a"}), "Could not find group with typeid x."},
    {"GroupBeforeTheBase", "x", "s", setOf("norvex.range:range.string-1.4.0", {"a"}),
     "Could not find group with typeid x."},
    {"TheBaseBeforeSpec", "g", "x", regexOf("norvex.range:range.string-1.4.0", "a"),
     "String range using base schema typeid norvex.range:range.string-1.4.0 may not specify a limited range of "
     "values."},
};

struct UnfitStringRange : testing::TestWithParam<UnfitRange> {
    const StringParameter parameter{coreOf("p", GetParam().group), specOf(GetParam().spec), GetParam().range};
    ParametersEngine engine = stocked();
};

TEST_P(UnfitStringRange, FailsRegistration) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerStringParameter(parameter); }), GetParam().message);
}

TEST_P(UnfitStringRange, FailsWriting) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter); }), GetParam().message);
}

TEST_P(UnfitStringRange, FailsTheQuestionForDependencies) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(StringParameter, UnfitStringRange, testing::ValuesIn(unfitRanges),
                         [](const auto& test) { return test.param.name; });

struct TypeIdFault {
    const char* name;
    const char* typeId;
    const char* message;
};

const TypeIdFault typeIdFaults[] = {
    {"Empty", "", "Typeid must not be empty."},
    {"Known", "g", "Schema with typeid g is already registered."},
    {"BuiltIn", "norvex.range:range.string-1.0.0",
     "Schema with typeid norvex.range:range.string-1.0.0 is already registered."},
};

struct StringParameterTypeId : testing::TestWithParam<TypeIdFault> {
    // All that it names is missing, too, and its own range repeats a value.
    const StringParameter parameter{coreOf(GetParam().typeId, "x"), specOf("y"), setOf("z", {"a", "a"})};
    ParametersEngine engine = stocked();
};

TEST_P(StringParameterTypeId, IsCheckedFirst) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerStringParameter(parameter); }), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter); }), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(StringParameter, StringParameterTypeId, testing::ValuesIn(typeIdFaults),
                         [](const auto& test) { return test.param.name; });

TEST(StringParameter, FindsWhatIsResolvedWithIt) {
    const StringParameter parameter =
        engineOf({textOf(typedConstant("spec", "s") + ", " + typedConstant("range", "r") + ", " +
                         typedConstant("group", "g")),
                  Support::groupText("g", "The group"), Support::namedText("s", builtInSpec, "The spec"),
                  Support::schemaText("r", regexBase, R"({"id": "regex", "value": "a*"})")})
            .getStringParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    expectRegex(parameter.getRange(), "r", "a*");
}

TEST(StringParameter, IsBoundToTheRegisteredObjectsInPlaceOfItsOwn) {
    ParametersEngine engine = stocked();
    engine.registerStringParameter({coreOf("p", "g"), specOf("s"), regexOf("set", "not it")});
    const StringParameter parameter = engine.getStringParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    expectSet(parameter.getRange(), "set", {"b", "a"});
    expectSet(engine.getAllStringParameters().at("p").getRange(), "set", {"b", "a"});
}

TEST(StringParameter, KeepsItsOwnRangeOfAnyVersionOfABase) {
    ParametersEngine engine;
    engine.registerStringParameter({coreOf("set"), setOf("norvex.range:range.string.set.static-1.4.2", {"b", "a"})});
    engine.registerStringParameter({coreOf("regex"), regexOf("my norvex.range:range.string.regex-1.x", "((")});
    engine.registerStringParameter({coreOf("any"), StringRange()});
    expectSet(engine.getStringParameter("set").getRange(), "norvex.range:range.string.set.static-1.4.2", {"b", "a"});
    expectRegex(engine.getStringParameter("regex").getRange(), "my norvex.range:range.string.regex-1.x", "((");
    expectAnyText(engine.getStringParameter("any").getRange(), defaultBase);
}

TEST(StringParameter, IsBoundToTheFullBuiltInSpecWhateverVersionItHas) {
    ParametersEngine engine;
    engine.registerStringParameter({coreOf("p"), specOf("norvex.spec:spec.string-2.3.0"), StringRange()});
    for (const StringParameter& parameter :
         {engine.getStringParameter("p"),
          engine.readStringParameter(Support::schemaText(
              "q", "norvex.parameter:parameter.string-3.0.0",
              R"({"id": "name", "value": "Name"}, )" + typedConstant("spec", "norvex.spec:spec.string-2.3.0")))}) {
        EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), builtInSpec);
        EXPECT_EQ(parameter.getSpec().getCore().getName(), "Text");
        EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    }
}

TEST(StringParameter, KeepsTheVersionOfTheBuiltInSpecThatItsSchemaNames) {
    const StringParameter parameter = resolved(textOf(typedConstant("spec", "norvex.spec:spec.string-2.3.0")));
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.string-2.3.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Text");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
}

TEST(StringParameter, IsReadWithoutBeingRegistered) {
    ParametersEngine engine = stocked();
    const StringParameter parameter = engine.readStringParameter(textOf(
        typedConstant("spec", "s") + ", " + typedConstant("range", "regex") + ", " + typedConstant("group", "g")));
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    expectRegex(parameter.getRange(), "regex", "a*");
    EXPECT_FALSE(engine.isRegistered("p"));
    EXPECT_TRUE(engine.getAllStringParameters().empty());
}

TEST(StringParameter, IsReadWithTheDefaultRange) {
    expectAnyText(ParametersEngine().readStringParameter(textOf()).getRange(), defaultBase);
}

TEST(StringParameter, ReportsWhatItNamesAndIsNotThere) {
    ParametersEngine engine = stocked();
    const auto missing = engine.registerSchema(textOf(typedConstant("spec", "missing spec") + ", " +
                                                      typedConstant("range", "missing range") + ", " +
                                                      typedConstant("group", "missing group")));
    EXPECT_EQ(missing.first, (std::set<std::string>{"missing group", "missing range", "missing spec"}));
    EXPECT_TRUE(missing.second.empty());
}

TEST(StringParameter, DoesNotReportBuiltInObjectsAsMissing) {
    const auto missing = ParametersEngine().registerSchema(inlineText("norvex.range:range.string-1.3.0", "{}"));
    EXPECT_TRUE(missing.first.empty());
    EXPECT_TRUE(missing.second.empty());
}

TEST(StringParameter, DependsOnGroupSpecAndNamedRange) {
    ParametersEngine engine = stocked();
    const StringParameter parameter(coreOf("p", "g"), specOf("s"), setOf("set", {"x"}));
    const std::set<std::string> expected{"g", "s", "set"};
    EXPECT_EQ(engine.getDependencies(parameter), expected);
    engine.registerStringParameter(parameter);
    EXPECT_EQ(engine.getDependencies("p"), expected);
}

TEST(StringParameter, DependsOnANamedRangeWithoutLimitation) {
    ParametersEngine engine = stocked();
    engine.registerSchema(textOf(typedConstant("range", "any")));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getDependencies("p"),
              (std::set<std::string>{"any", "norvex.parameter:group-1.0.0", "norvex.spec:spec.string-2.0.0"}));
}

TEST(StringParameter, DoesNotDependOnARangeOfItsOwn) {
    const std::set<std::string> builtIns{"norvex.parameter:group-1.0.0", "norvex.spec:spec.string-2.0.0"};
    const ParametersEngine engine;
    EXPECT_EQ(engineOf({textOf()}).getDependencies("p"), builtIns);
    EXPECT_EQ(engineOf({inlineText(regexBase, R"({"regex": "a"})")}).getDependencies("p"), builtIns);
    EXPECT_EQ(engine.getDependencies(StringParameter(coreOf("p"), StringRange())), builtIns);
    EXPECT_EQ(engine.getDependencies(
                  StringParameter(coreOf("p"), setOf("norvex.range:range.string.set.static-1.4.2", {"a"}))),
              builtIns);
}

} // namespace
