#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/KindTypes.h"
#include "support/Refusal.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>
#include <vector>

// What the parameters with a range have in common: what they are made of, how they find what they name, and how they
// are written; and what those with a range of numbers have in common besides.

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::IntParameter;
using Parameters::IntRange;
using Parameters::IntSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Support::describe;
using Support::engineOf;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Support::Sample;
using Support::typedConstant;

using TypeIds = std::set<std::string>;

std::string inlineRange(const std::string& typeId, const std::string& value) {
    return R"({"id": "range", "typedValue": {"typeid": ")" + typeId + R"(", "value": )" + value + "}}";
}

/// What the kinds do not have in common.
template <class Kind>
struct Traits;

template <class Kind, class NumericRange>
struct NumericTraits {
    using Range = NumericRange;
    static constexpr const char* shownRange = R"(("r" from 4 not to 0))";

    static std::string textWithoutLimits() {
        return Support::schemaText("unlimited", std::string(Range::info.bases()[0]),
                                   R"({"id": "fromBottom", "value": false}, {"id": "bottomBoundary", "value": 3},
                                      {"id": "fromTop", "value": false}, {"id": "topBoundary", "value": 4})");
    }
    static std::vector<std::string> rangesOfTheirOwn() {
        const std::string value = R"({"fromBottom": true, "fromTop": true})";
        return {inlineRange(Traits<Kind>::base, value), inlineRange(Traits<Kind>::minor, value)};
    }
    static typename Range::Value rangeOf(const std::string& typeId) { return {typeId, true, 1, false, 2}; }
};

template <>
struct Traits<Kinds::IntParameter> : NumericTraits<Kinds::IntParameter, Kinds::IntRange> {
    using Spec = Kinds::IntSpec;
    static constexpr const char* missedFirst = "Could not find integer range with typeid z.";
    static constexpr const char* shownDefault =
        R"(("norvex.range:range.int64.bounded.static-1.0.0" not from 0 not to 0))";
    static constexpr const char* notANumber = "Expected an integer.";
    static constexpr const char* base = "norvex.range:range.int64.bounded.static-1.0.0";
    static constexpr const char* minor = "norvex.range:range.int64.bounded.static-1.3.0";
    static constexpr const char* inLongerText = "my norvex.range:range.int64.bounded.static-1.x";
};

template <>
struct Traits<Kinds::MeasurableParameter> : NumericTraits<Kinds::MeasurableParameter, Kinds::FloatRange> {
    using Spec = Kinds::MeasurableSpec;
    static constexpr const char* missedFirst = "Could not find measurable spec with typeid y.";
    static constexpr const char* shownDefault =
        R"(("norvex.range:range.float64.bounded.static-1.0.0" not from 0 not to 0))";
    static constexpr const char* notANumber = "Expected a number.";
    static constexpr const char* base = "norvex.range:range.float64.bounded.static-1.0.0";
    static constexpr const char* minor = "norvex.range:range.float64.bounded.static-1.3.0";
    static constexpr const char* inLongerText = "my norvex.range:range.float64.bounded.static-1.x";
};

template <>
struct Traits<Kinds::StringParameter> {
    using Spec = Kinds::StringSpec;
    using Range = Kinds::StringRange;
    static constexpr const char* missedFirst = "Could not find string range with typeid z.";
    static constexpr const char* shownRange = R"(("r" matching "4"))";
    static constexpr const char* shownDefault = R"(("norvex.range:range.string-1.0.0"))";
    static constexpr const char* base = "norvex.range:range.string.set.static-1.0.0";
    static constexpr const char* minor = "norvex.range:range.string.set.static-1.4.2";
    static constexpr const char* inLongerText = "my norvex.range:range.string.set.static-1.x";

    static std::string textWithoutLimits() {
        return Support::schemaText("unlimited", "norvex.range:range.string-1.0.0", "");
    }
    static std::vector<std::string> rangesOfTheirOwn() {
        return {inlineRange("norvex.range:range.string-1.3.0", "{}"),
                inlineRange("norvex.range:range.string.regex-1.0.0", R"({"regex": "a"})")};
    }
    static Parameters::StringRange rangeOf(const std::string& typeId) {
        return {typeId, Parameters::SetStringRangeComponent({"x"})};
    }
};

ParameterCore coreOf(const std::string& typeId, const std::string& group = "norvex.parameter:group-1.0.0") {
    return {typeId, "Name", Taxon(group, "Mine"), "", "", false};
}

template <class Kind>
struct RangedParameter : testing::Test {
    using Spec = typename Traits<Kind>::Spec;
    using Range = typename Traits<Kind>::Range::Value;
    using Parameter = typename Kind::Value;

    /// Returns an engine with a group "g", a spec "s", and ranges "r" and "unlimited".
    static ParametersEngine stocked() {
        ParametersEngine engine;
        Support::addSample<Kinds::Group>(engine, "g", "The group");
        Support::addSample<Spec>(engine, "s", "The spec");
        Support::addSample<typename Traits<Kind>::Range>(engine, "r", "4");
        return engineOf({Traits<Kind>::textWithoutLimits()}, engine);
    }
    static typename Spec::Value specOf(const std::string& typeId) { return Sample<Spec>::make(typeId, "Spec"); }

    static std::string base() { return std::string(Kind::info.bases()[0]); }
    static std::string textOf(const std::string& constants) {
        return Support::schemaText("p", base(), R"({"id": "name", "value": "Name"}, )" + constants);
    }
    /// Returns the text of a parameter with the spec "s" and a range constant.
    static std::string textOfRange(const std::string& constant) {
        return textOf(constant + ", " + typedConstant("spec", "s"));
    }
    /// Returns the text of a parameter that names all that it can, in another order than that in which it is read.
    static std::string textNaming(const std::string& group, const std::string& spec, const std::string& range) {
        return textOf(typedConstant("range", range) + ", " + typedConstant("spec", spec) + ", " +
                      typedConstant("group", group));
    }
    /// Returns a parameter made in code with objects that it makes up.
    static Parameter parameterNaming(const std::string& typeId, const std::string& group, const std::string& spec,
                                     const std::string& range) {
        return {coreOf(typeId, group), specOf(spec), Traits<Kind>::rangeOf(range)};
    }
    static Parameter parameterWith(const Range& range) { return {coreOf("p"), specOf("s"), range}; }
    Parameter resolved(const std::string& text) { return Kind::get(engineOf({text}, stock), "p"); }

    /// Expects the objects of the engine with a stock.
    static void expectNamedObjects(const Parameter& parameter) {
        EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
        EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
        EXPECT_EQ(describe(parameter.getRange()), Traits<Kind>::shownRange);
    }
    static void expectBuiltInSpec(const Parameter& parameter) {
        EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), Spec::info.bases()[0]);
        EXPECT_EQ(parameter.getSpec().getCore().getName(), Spec::info.builtInName());
        EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
    }

    /// Returns the text of a written parameter with the given constants behind its name.
    static std::string written(const std::string& more) {
        return R"({"typeid":"p","inherits":[")" + base() + R"("],"constants":[{"id":"name","value":"Name"})" + more +
               "]}";
    }
    /// Returns the text of a written parameter with the spec "s" and the given constant behind it.
    static std::string writtenRange(const std::string& more) {
        return written(R"(,{"id":"spec","typedValue":{"typeid":"s"}})" + more);
    }
    static std::string writtenBy(const Parameter& parameter, ParametersEngine engine = stocked()) {
        Kind::add(engine, parameter);
        return engine.getSchema(parameter.getCore().getTypeId());
    }

    /// Expects that a parameter made in code is refused in all ways in which it can be asked about.
    void expectRefused(const Parameter& parameter, const std::string& message) {
        EXPECT_EQ(refusalBy(stock, [&] { Kind::add(stock, parameter); }), message);
        EXPECT_EQ(refusalBy(stock, [&] { stock.getSchema(parameter); }), message);
        EXPECT_EQ(refusalBy(stock, [&] { stock.getDependencies(parameter); }), message);
    }

    ParametersEngine stock = stocked();
};

using RangedKinds = Kinds::List<Kinds::IntParameter, Kinds::MeasurableParameter, Kinds::StringParameter>;
TYPED_TEST_SUITE(RangedParameter, Support::TestedKinds<RangedKinds>, Support::NameOfKind);

TYPED_TEST(RangedParameter, KeepsWhatItIsMadeWith) {
    const auto range = Traits<TypeParam>::rangeOf("r");
    const typename TypeParam::Value parameter(ParameterCore("p", "Name", Taxon("g", "Group"), "D", "S", true),
                                              this->specOf("s"), range);
    EXPECT_EQ(describe(parameter.getCore()), R"(("p" "Name" in ("g" "Group") described "D" sample "S" read-only))");
    EXPECT_EQ(describe(parameter.getSpec()), describe(this->specOf("s")));
    EXPECT_EQ(describe(parameter.getRange()), describe(range));
}

TYPED_TEST(RangedParameter, HasPartsThatOutliveIt) {
    const auto core = [] { return TestFixture::parameterNaming("p", "g", "s", "r").getCore(); }();
    const auto spec = [] { return TestFixture::parameterNaming("p", "g", "s", "r").getSpec(); }();
    const auto range = [] { return TestFixture::parameterNaming("p", "g", "s", "r").getRange(); }();
    EXPECT_EQ(core.getName(), "Name");
    EXPECT_EQ(describe(spec), describe(this->specOf("s")));
    EXPECT_EQ(describe(range), describe(Traits<TypeParam>::rangeOf("r")));
}

TYPED_TEST(RangedParameter, HasTheBuiltInSpecWhenItIsGivenNone) {
    if constexpr (!Traits<TypeParam>::Spec::info.builtInName().empty()) {
        const typename TypeParam::Value parameter(coreOf("p"), Traits<TypeParam>::rangeOf("r"));
        this->expectBuiltInSpec(parameter);
        EXPECT_EQ(describe(parameter.getRange()), describe(Traits<TypeParam>::rangeOf("r")));
        this->expectBuiltInSpec(this->resolved(Support::namedText("p", this->base(), "Name")));
        this->expectBuiltInSpec(TypeParam::read(this->stock, Support::namedText("p", this->base(), "Name")));
    }
}

TYPED_TEST(RangedParameter, HasTheDefaultRangeByDefault) {
    const std::string text = this->textOf(typedConstant("spec", "s"));
    EXPECT_EQ(describe(this->resolved(text).getRange()), Traits<TypeParam>::shownDefault);
    EXPECT_EQ(describe(TypeParam::read(this->stock, text).getRange()), Traits<TypeParam>::shownDefault);
}

TYPED_TEST(RangedParameter, HasItsNameBeforeAllElse) {
    EXPECT_EQ(refusalOf(Support::schemaText("p", this->base(),
                                            R"({"id": "spec", "typedValue": 5}, {"id": "range", "typedValue": 5})")),
              "Schema p has an undefined name constant.");
}

TYPED_TEST(RangedParameter, FindsWhatIsThereOrResolvedWithItOrRegisteredInPlaceOfItsOwn) {
    using Named = typename Traits<TypeParam>::Spec;
    const std::string text = this->textNaming("g", "s", "r");
    this->expectNamedObjects(this->resolved(text));
    this->expectNamedObjects(TypeParam::read(this->stock, text));
    EXPECT_FALSE(this->stock.isRegistered("p"));
    ParametersEngine engine;
    Support::stock(engine, Support::mainShapeOf<Named>());
    this->expectNamedObjects(TypeParam::get(
        engineOf({text, Support::groupText("g", "The group"), Support::sampleText<Named>("s", "The spec"),
                  Support::sampleText<typename Traits<TypeParam>::Range>("r", "4")},
                 engine),
        "p"));
    TypeParam::add(this->stock, this->parameterNaming("p", "g", "s", "r"));
    this->expectNamedObjects(TypeParam::get(this->stock, "p"));
    this->expectNamedObjects(TypeParam::getAll(this->stock).at("p"));
}

TYPED_TEST(RangedParameter, MissesItsGroupFirst) {
    this->expectRefused(this->parameterNaming("p", "x", "y", "z"), "Could not find group with typeid x.");
    const std::string text = this->textNaming("x", "y", "z");
    EXPECT_EQ(refusalBy(this->stock, [&] { TypeParam::read(this->stock, text); }),
              "Could not find group with typeid x.");
    this->stock.registerSchema(text);
    EXPECT_EQ(refusalBy(this->stock, [&] { this->stock.resolveSchemas(); }),
              "Dependency x in schema p is missing or does not represent an object of the expected type.");
}

TYPED_TEST(RangedParameter, MissesItsSpecFirstWhenItIsResolvedButPerhapsItsRangeWhenItIsBound) {
    const std::string message = Traits<TypeParam>::missedFirst;
    this->expectRefused(this->parameterNaming("p", "g", "y", "z"), message);
    const std::string text = this->textNaming("g", "y", "z");
    EXPECT_EQ(refusalBy(this->stock, [&] { TypeParam::read(this->stock, text); }), message);
    this->stock.registerSchema(text);
    EXPECT_EQ(refusalBy(this->stock, [&] { this->stock.resolveSchemas(); }),
              "Dependency y in schema p is missing or does not represent an object of the expected type.");
}

TYPED_TEST(RangedParameter, HasItsTypeIdCheckedFirst) {
    this->expectRefused(this->parameterNaming("", "x", "y", "z"), "Typeid must not be empty.");
    for (const std::string typeId : {"g", "norvex.spec:spec.int64-2.0.0", "norvex.range:range.string-1.0.0"}) {
        this->expectRefused(this->parameterNaming(typeId, "x", "y", "z"),
                            "Schema with typeid " + typeId + " is already registered.");
    }
}

TYPED_TEST(RangedParameter, NeedsNothingForARangeOfItsOwn) {
    const TypeIds others{"norvex.parameter:group-1.0.0", "s"};
    for (const std::string& range : Traits<TypeParam>::rangesOfTheirOwn()) {
        ParametersEngine engine = this->stock;
        const auto missing = engine.registerSchema(this->textOfRange(range));
        EXPECT_TRUE(missing.first.empty() && missing.second.empty()) << range;
        engine.resolveSchemas();
        EXPECT_EQ(engine.getDependencies("p"), others) << range;
    }
}

TYPED_TEST(RangedParameter, KeepsARangeOfItsOwnOfAnyVersion) {
    using T = Traits<TypeParam>;
    for (const char* typeId : {T::base, T::minor, T::inLongerText}) {
        const auto parameter = this->parameterWith(T::rangeOf(typeId));
        ParametersEngine engine = this->stock;
        EXPECT_EQ(engine.getDependencies(parameter), (TypeIds{"norvex.parameter:group-1.0.0", "s"}));
        TypeParam::add(engine, parameter);
        EXPECT_EQ(describe(TypeParam::get(engine, "p").getRange()), describe(T::rangeOf(typeId)));
    }
}

TYPED_TEST(RangedParameter, DependsOnANamedRangeWithoutLimits) {
    EXPECT_EQ(engineOf({this->textOfRange(typedConstant("range", "unlimited"))}, this->stock).getDependencies("p"),
              (TypeIds{"norvex.parameter:group-1.0.0", "s", "unlimited"}));
}

TYPED_TEST(RangedParameter, IsWrittenWithAllItsConstantsInOrder) {
    const typename TypeParam::Value parameter(ParameterCore("p", "Name", Taxon("g", ""), "About it", "7", true),
                                              this->specOf("s"), Traits<TypeParam>::rangeOf("r"));
    const std::string expected =
        this->written(R"(,{"id":"description","value":"About it"},{"id":"sampleText","value":"7"},)"
                      R"({"id":"group","typedValue":{"typeid":"g"}},{"id":"readOnly","value":true},)"
                      R"({"id":"spec","typedValue":{"typeid":"s"}},{"id":"range","typedValue":{"typeid":"r"}})");
    EXPECT_EQ(this->stock.getSchema(parameter), expected);
    EXPECT_EQ(this->writtenBy(parameter), expected);
    EXPECT_EQ(rewritten(this->stock, "p", expected), expected);
}

TYPED_TEST(RangedParameter, NamesItsRangeByAnyBytes) {
    for (const Support::AwkwardString& string : Support::awkwardStrings) {
        ParametersEngine engine = this->stock;
        Support::addSample<typename Traits<TypeParam>::Range>(engine, string.bytes);
        const std::string expected =
            this->writtenRange(R"(,{"id":"range","typedValue":{"typeid":")" + string.escaped + R"("}})");
        EXPECT_EQ(engine.getSchema(this->parameterWith(Traits<TypeParam>::rangeOf(string.bytes))), expected);
        EXPECT_EQ(rewritten(engine, "p", expected), expected);
    }
}

template <class Kind>
struct NumericParameter : RangedParameter<Kind> {
    /// Returns the text of a parameter with an inline range.
    static std::string inlineText(const std::string& value, const std::string& typeId = Traits<Kind>::base) {
        return NumericParameter::textOfRange(inlineRange(typeId, value));
    }
    static std::string writtenInline(const std::string& value) {
        return NumericParameter::writtenRange(R"(,{"id":"range","typedValue":{"typeid":")" +
                                              std::string(Traits<Kind>::base) + R"(","value":{)" + value + "}}}");
    }
};

using NumericKinds = Kinds::List<Kinds::IntParameter, Kinds::MeasurableParameter>;
TYPED_TEST_SUITE(NumericParameter, Support::TestedKinds<NumericKinds>, Support::NameOfKind);

struct Inline {
    const char* value;
    bool fromBottom;
    int bottom;
    bool fromTop;
    int top;
    const char* integers; // as they are written
    const char* numbers;
};

const Inline inlineValues[] = {
    {R"({"fromTop": true, "fromBottom": true})", true, 0, true, 0,
     R"("fromBottom":true,"bottomBoundary":0,"fromTop":true,"topBoundary":0)",
     R"("fromBottom":true,"bottomBoundary":0.0,"fromTop":true,"topBoundary":0.0)"},
    {R"({"fromBottom": true, "bottomBoundary": -5, "fromTop": false})", true, -5, false, 0,
     R"("fromBottom":true,"bottomBoundary":-5,"fromTop":false,"topBoundary":0)",
     R"("fromBottom":true,"bottomBoundary":-5.0,"fromTop":false,"topBoundary":0.0)"},
    {R"({"topBoundary": 9, "fromBottom": false, "fromTop": true})", false, 0, true, 9,
     R"("fromBottom":false,"bottomBoundary":0,"fromTop":true,"topBoundary":9)",
     R"("fromBottom":false,"bottomBoundary":0.0,"fromTop":true,"topBoundary":9.0)"},
    {R"({"fromBottom": false, "bottomBoundary": 7, "fromTop": true})", false, 7, true, 0,
     R"("fromBottom":false,"bottomBoundary":7,"fromTop":true,"topBoundary":0)",
     R"("fromBottom":false,"bottomBoundary":7.0,"fromTop":true,"topBoundary":0.0)"},
    {R"({"fromBottom": true, "bottomBoundary": 2, "fromTop": true, "topBoundary": 1})", true, 2, true, 1,
     R"("fromBottom":true,"bottomBoundary":2,"fromTop":true,"topBoundary":1)",
     R"("fromBottom":true,"bottomBoundary":2.0,"fromTop":true,"topBoundary":1.0)"},
    {R"({"x": [], "fromBottom": true, "fromTop": false, "fromBottom": 5, "allowedValues": 1})", true, 0, false, 0,
     R"("fromBottom":true,"bottomBoundary":0,"fromTop":false,"topBoundary":0)",
     R"("fromBottom":true,"bottomBoundary":0.0,"fromTop":false,"topBoundary":0.0)"},
};

TYPED_TEST(NumericParameter, HasTheInlineRangeOfItsSchemaAndIsWrittenWithAllFourMembers) {
    using T = Traits<TypeParam>;
    for (const Inline& row : inlineValues) {
        SCOPED_TRACE(row.value);
        const typename TestFixture::Range range(row.fromBottom, row.bottom, row.fromTop, row.top);
        for (const char* typeId : {T::base, T::minor, T::inLongerText}) {
            const std::string text = this->inlineText(row.value, typeId);
            EXPECT_EQ(describe(this->resolved(text).getRange()), describe(range));
            EXPECT_EQ(describe(TypeParam::read(this->stock, text).getRange()), describe(range));
            EXPECT_EQ(this->stock.readValueType(text), TypeParam::valueType);
        }
        const std::string written =
            this->writtenInline(TypeParam::valueType == Parameters::Int ? row.integers : row.numbers);
        EXPECT_EQ(rewritten(this->stock, "p", this->inlineText(row.value)), written);
        EXPECT_EQ(rewritten(this->stock, "p", written), written);
        EXPECT_EQ(this->writtenBy(this->parameterWith(range)), written);
        EXPECT_EQ(this->stock.getSchema(this->parameterWith(range)), written);
    }
}

struct InlineFault {
    const char* value;
    const char* message; // null: that of a boundary that is no number
};

const char* const noFromBottom =
    "Inline value override in range constant typedValue must specify a Boolean value for constant fromBottom.";
const char* const noFromTop =
    "Inline value override in range constant typedValue must specify a Boolean value for constant fromTop.";

const InlineFault inlineFaults[] = {
    {"{}", noFromBottom},
    {R"({"fromTop": true})", noFromBottom},
    {R"({"fromBottom": 1, "fromTop": true})", noFromBottom},
    {R"({"fromBottom": null, "fromTop": true})", noFromBottom},
    {R"({"fromBottom": true, "bottomBoundary": -5})", noFromTop},
    {R"({"fromBottom": true, "fromTop": "true"})", noFromTop},
    {R"({"fromBottom": true, "bottomBoundary": "0", "fromTop": true})", nullptr},
    {R"({"fromBottom": false, "bottomBoundary": null, "fromTop": true})", nullptr},
    {R"({"fromBottom": true, "fromTop": true, "topBoundary": "5"})", nullptr},
    {R"({"fromBottom": true, "fromTop": false, "topBoundary": null})", nullptr},
    // The first of several faults.
    {R"({"bottomBoundary": "1", "fromTop": true})", noFromBottom},
    {R"({"fromTop": 1, "fromBottom": true, "bottomBoundary": "1"})", nullptr},
    {R"({"topBoundary": "1", "fromBottom": true, "bottomBoundary": 1})", noFromTop},
};

TYPED_TEST(NumericParameter, IsRefusedForTheFirstFaultOfItsInlineRange) {
    for (const InlineFault& fault : inlineFaults) {
        SCOPED_TRACE(fault.value);
        const std::string text = this->inlineText(fault.value);
        const std::string message = fault.message != nullptr ? fault.message : Traits<TypeParam>::notANumber;
        EXPECT_EQ(refusalOf(this->stock, text), message);
        EXPECT_EQ(refusalBy(this->stock, [&] { TypeParam::read(this->stock, text); }), message);
        EXPECT_EQ(this->stock.readValueType(text), Parameters::None);
    }
}

TYPED_TEST(NumericParameter, LosesARangeThatIsUnboundedOnBothSides) {
    for (const auto& parameter :
         {this->parameterWith({false, 7, false, 8}), this->parameterWith({"unlimited", true, 1, true, 2})}) {
        const std::string text = this->writtenBy(parameter);
        EXPECT_EQ(text, this->writtenRange(""));
        EXPECT_EQ(describe(this->resolved(text).getRange()), Traits<TypeParam>::shownDefault);
    }
    EXPECT_EQ(rewritten(this->stock, "p", this->textOfRange(typedConstant("range", "unlimited"))),
              this->writtenRange(""));
}

TYPED_TEST(NumericParameter, IsWrittenWithoutTheValueOfABuiltInRangeOfAnotherVersion) {
    const std::string typeId = Traits<TypeParam>::minor;
    const std::string text = this->writtenBy(this->parameterWith({typeId, true, 1, true, 2}));
    EXPECT_EQ(text, this->writtenRange(R"(,{"id":"range","typedValue":{"typeid":")" + typeId + R"("}})"));
    EXPECT_EQ(refusalOf(text), "Inline value override is required when specifying range schema " + typeId +
                                   " in range constant typedValue.");
}

// What holds for integer parameters alone.

using IntegerParameter = NumericParameter<Kinds::IntParameter>;

TEST_F(IntegerParameter, MayHaveTheLimitsOfIntegersInline) {
    const std::string text = writtenInline(R"("fromBottom":true,"bottomBoundary":-9223372036854775808,)"
                                           R"("fromTop":true,"topBoundary":9223372036854775807)");
    EXPECT_EQ(rewritten(stock, "p", text), text);
    const IntRange range = resolved(text).getRange();
    EXPECT_EQ(range.getBottomBoundary(), std::numeric_limits<long long>::min());
    EXPECT_EQ(range.getTopBoundary(), std::numeric_limits<long long>::max());
    for (const char* number : {"2.0", "9223372036854775808"}) {
        EXPECT_EQ(refusalOf(inlineText(R"({"fromBottom": true, "fromTop": true, "bottomBoundary": )" +
                                       std::string(number) + "}")),
                  "Expected an integer.");
    }
}

TEST_F(IntegerParameter, KeepsItsOwnSpecOfABuiltInVersion) {
    const IntSpec spec(SpecCore("norvex.spec:spec.int64-2.5.0", "Spec"));
    Kinds::IntParameter::add(stock, {coreOf("p"), spec, IntRange(false, 0, false, 0)});
    EXPECT_EQ(describe(stock.getIntParameter("p").getSpec()), describe(spec));
}

TEST_F(IntegerParameter, KeepsTheVersionOfTheBuiltInSpecThatItsSchemaNamesWhenItIsRead) {
    const IntParameter parameter =
        ParametersEngine().readIntParameter(textOf(typedConstant("spec", "norvex.spec:spec.int64-2.3.0")));
    EXPECT_EQ(describe(parameter.getSpec()),
              R"(("norvex.spec:spec.int64-2.3.0" "Integer" of ("norvex.spec:discipline-1.0.0" "Common")))");
}

TEST_F(IntegerParameter, IsWrittenWithoutTheBuiltInSpecWhateverItsName) {
    EXPECT_EQ(writtenBy({coreOf("p"), specOf("norvex.spec:spec.int64-2.0.0"), IntRange(false, 0, false, 0)}),
              written(""));
}

TEST_F(IntegerParameter, IsWrittenWithABuiltInSpecOfAnotherVersion) {
    const std::string expected = written(R"(,{"id":"spec","typedValue":{"typeid":"norvex.spec:spec.int64-2.3.0"}})");
    EXPECT_EQ(writtenBy({coreOf("p"), specOf("norvex.spec:spec.int64-2.3.0"), IntRange(false, 0, false, 0)}), expected);
    EXPECT_EQ(rewritten(ParametersEngine(), "p", expected), expected);
}

} // namespace
