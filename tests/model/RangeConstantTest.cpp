#include "support/Fault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

// How a parameter's schema names its range, as far as all kinds of range do it alike.

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::ParametersEngine;
using Support::Fault;
using Support::refusalBy;
using Support::refusalOf;

/// A kind of parameter and a base of its ranges.
struct RangeBase {
    const char* name;
    const char* parameterBase;
    const char* typeId;
    const char* ofAnotherMinorVersion;
    const char* spec; // the spec constant that it must have
    void (*read)(const ParametersEngine& engine, const std::string& text);
    void (*addNamedRange)(ParametersEngine& engine);
};

template <class Kind>
void read(const ParametersEngine& engine, const std::string& text) {
    Kind::read(engine, text);
}

template <class Range>
void addNamedRange(ParametersEngine& engine) {
    Support::addSample<Kinds::MeasurableSpec>(engine, "s");
    Support::addSample<Range>(engine, "r");
}

constexpr const char* stringParameter = "norvex.parameter:parameter.string-3.0.0";

const RangeBase rangeBases[] = {
    {"Int", "norvex.parameter:parameter.int64-3.0.0", "norvex.range:range.int64.bounded.static-1.0.0",
     "norvex.range:range.int64.bounded.static-1.3.0", "", read<Kinds::IntParameter>, addNamedRange<Kinds::IntRange>},
    {"DefaultString", stringParameter, "norvex.range:range.string-1.0.0", "norvex.range:range.string-1.3.0", "",
     read<Kinds::StringParameter>, addNamedRange<Kinds::StringRange>},
    {"Measurable", "norvex.parameter:parameter.measurable-3.0.0", "norvex.range:range.float64.bounded.static-1.0.0",
     "norvex.range:range.float64.bounded.static-1.3.0", R"(, {"id": "spec", "typedValue": {"typeid": "s"}})",
     read<Kinds::MeasurableParameter>, addNamedRange<Kinds::FloatRange>},
    {"SetString", stringParameter, "norvex.range:range.string.set.static-1.0.0",
     "norvex.range:range.string.set.static-1.4.2", "", read<Kinds::StringParameter>, addNamedRange<Kinds::StringRange>},
    {"RegexString", stringParameter, "norvex.range:range.string.regex-1.0.0", "norvex.range:range.string.regex-1.3.0",
     "", read<Kinds::StringParameter>, addNamedRange<Kinds::StringRange>},
};

/// Returns the text of the parameter "p" with the given constants behind its name.
std::string textOf(const RangeBase& base, const std::string& constants) {
    const bool hasSpec = constants.find(R"("id": "spec")") != std::string::npos;
    return Support::schemaText("p", base.parameterBase,
                               R"({"id": "name", "value": "Name"}, )" + constants + (hasSpec ? "" : base.spec));
}

std::string rangeConstant(const std::string& typedValue) {
    return R"({"id": "range", "typedValue": )" + typedValue + "}";
}

/// Puts the typeids of the base into a text or a message.
std::string withBase(const RangeBase& base, std::string text) {
    for (const auto& [mark, typeId] :
         {std::tuple("BASE", base.typeId), std::tuple("MINOR", base.ofAnotherMinorVersion)}) {
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark)) {
            text.replace(at, std::string(mark).size(), typeId);
        }
    }
    return text;
}

const char* const noTypeId = "Schema p must specify a typeid string attribute in its range constant typedValue.";
const char* const noObject = "Inline value override in range constant typedValue must be an object.";
const char* const notEmpty =
    "Inline value override for range schema r in range constant typedValue, if present, must be an empty object.";

const std::vector<Fault> rangeFaults = {
    {"NoTypeId", rangeConstant(R"({"value": {}})"), noTypeId},
    {"EmptyTypedValue", rangeConstant("{}"), noTypeId},
    {"TypedValueAsAText", rangeConstant(R"("BASE")"), noTypeId},
    {"TypedValueAsAnArray", rangeConstant(R"([{"typeid": "BASE", "value": {}}])"), noTypeId},
    {"TypedValueNull", rangeConstant("null"), noTypeId},
    {"TypeIdInOtherCase", rangeConstant(R"({"typeId": "r"})"), noTypeId},
    {"PlainValueAsANumber", R"({"id": "range", "value": 5})", noTypeId},
    {"PlainValueBeforeTypedValue", R"({"id": "range", "value": {}, "typedValue": {"typeid": "r"}})", noTypeId},
    {"NoValueAtAll", R"({"id": "range"})", "A property definition must contain either a value or a typedValue."},
    {"TypeIdAsANumber", rangeConstant(R"({"typeid": 5})"), "Expected a string."},
    {"TypeIdNull", rangeConstant(R"({"typeid": null, "value": 3})"), "Expected a string."},
    {"TypeIdAsAnObject", rangeConstant(R"({"typeid": {"typeid": "r"}})"), "Expected a string."},
    {"TypeIdEmpty", rangeConstant(R"({"typeid": "", "value": 3})"), "Expected a non-empty string."},
    {"FirstOfTwoTypeIds", rangeConstant(R"({"typeid": 5, "typeid": "r"})"), "Expected a string."},
    {"BaseWithoutValue", rangeConstant(R"({"typeid": "BASE"})"),
     "Inline value override is required when specifying range schema BASE in range constant typedValue."},
    {"BaseOfAnotherMinorVersionWithoutValue", rangeConstant(R"({"typeid": "MINOR"})"),
     "Inline value override is required when specifying range schema MINOR in range constant typedValue."},
    {"BaseInALongerTextWithoutValue", rangeConstant(R"({"typeid": "our MINOR too"})"),
     "Inline value override is required when specifying range schema our MINOR too in range constant typedValue."},
    {"BaseWithAnArray", rangeConstant(R"({"typeid": "BASE", "value": []})"), noObject},
    {"BaseWithNull", rangeConstant(R"({"typeid": "MINOR", "value": null})"), noObject},
    {"BaseWithAText", rangeConstant(R"({"typeid": "BASE", "value": "{}"})"), noObject},
    {"NamedWithANumber", rangeConstant(R"({"typeid": "r", "value": 3})"), notEmpty},
    {"NamedWithAnArray", rangeConstant(R"({"typeid": "r", "value": []})"), notEmpty},
    {"NamedWithNull", rangeConstant(R"({"typeid": "r", "value": null})"), notEmpty},
    {"NamedWithAMember", rangeConstant(R"({"typeid": "r", "value": {"fromBottom": true}})"), notEmpty},
    {"SpecBeforeRange", R"({"id": "range", "typedValue": {}}, {"id": "spec", "typedValue": 5})",
     "A typedValue must be an object."},
    {"FlagBeforeSpecAndRange",
     R"({"id": "range", "typedValue": {}}, {"id": "spec", "typedValue": 5}, {"id": "readOnly", "value": 0})",
     "Expected a Boolean value."},
};

struct RangeConstant : testing::TestWithParam<std::tuple<RangeBase, Fault>> {
    RangeConstant() { base().addNamedRange(engine); }

    static const RangeBase& base() { return std::get<RangeBase>(GetParam()); }
    static std::string text() { return withBase(base(), textOf(base(), std::get<Fault>(GetParam()).text)); }
    static std::string message() { return withBase(base(), std::get<Fault>(GetParam()).message); }

    ParametersEngine engine;
};

TEST_P(RangeConstant, IsRefusedWithTheFirstFaultAndLeavesItsParameterWithoutAValueType) {
    EXPECT_EQ(refusalOf(engine, text()), message());
    EXPECT_EQ(refusalBy(engine, [&] { base().read(engine, text()); }), message());
    EXPECT_EQ(engine.readValueType(text()), Parameters::ValueType::None);
}

INSTANTIATE_TEST_SUITE_P(Kinds, RangeConstant,
                         testing::Combine(testing::ValuesIn(rangeBases), testing::ValuesIn(rangeFaults)),
                         Support::nameOfBothRows);

struct Accepted {
    const char* name;
    std::string constant;
};

const Accepted accepted[] = {
    {"TypeIdAlone", rangeConstant(R"({"typeid": "r"})")},
    {"EmptyValue", rangeConstant(R"({"typeid": "r", "value": {}})")},
    {"FurtherMembers", rangeConstant(R"({"comment": 5, "value": {}, "values": [], "typeid": "r", "typeId": ""})")},
    {"PlainValue", R"({"id": "range", "value": {"typeid": "r"}})"},
    {"PlainValueBeforeTypedValue", R"({"id": "range", "typedValue": 5, "value": {"typeid": "r"}})"},
    {"FirstOfTwoValues", rangeConstant(R"({"typeid": "r", "value": {}, "value": 5})")},
};

class NamedRangeConstant : public testing::TestWithParam<std::tuple<RangeBase, Accepted>> {};

TEST_P(NamedRangeConstant, NamesARegisteredRange) {
    const auto& [base, accept] = GetParam();
    ParametersEngine engine;
    base.addNamedRange(engine);
    engine.registerSchema(textOf(base, accept.constant));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getDependencies("p").count("r"), 1U);
    EXPECT_NE(engine.getSchema("p").find(R"({"id":"range","typedValue":{"typeid":"r"}}]})"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Kinds, NamedRangeConstant,
                         testing::Combine(testing::Values(rangeBases[0], rangeBases[1], rangeBases[2]),
                                          testing::ValuesIn(accepted)),
                         Support::nameOfBothRows);

} // namespace
