#include "RangedParameters.h"
#include "support/NamingFault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>

// How integer and string parameters fail that name something in vain, or have a type identifier that is taken.

namespace {

using namespace RangedParameters;
using Support::NamingFault;
using Support::refusalBy;

/// What a kind of parameter is asked when it names something in vain.
struct KindOfParameter {
    const char* name;
    ParametersEngine (*stocked)();
    std::string (*textOf)(const NamingFault& names);
    void (*read)(const ParametersEngine& engine, const std::string& text);
    void (*add)(ParametersEngine& engine, const std::string& typeId, const NamingFault& names);
    void (*write)(const ParametersEngine& engine, const std::string& typeId, const NamingFault& names);
    void (*askForDependencies)(const ParametersEngine& engine, const std::string& typeId, const NamingFault& names);
};

template <class Parameter>
Parameter parameterOf(const std::string& typeId, const NamingFault& names) {
    return parameterNaming<Parameter>(typeId, names.group, names.spec, names.third);
}

template <class Parameter>
const KindOfParameter kindOf{
    Traits<Parameter>::name,
    Traits<Parameter>::stocked,
    [](const NamingFault& names) { return textNaming<Parameter>(names.group, names.spec, names.third); },
    [](const ParametersEngine& engine, const std::string& text) { (engine.*Traits<Parameter>::read)(text); },
    [](ParametersEngine& engine, const std::string& typeId, const NamingFault& names) {
        (engine.*Traits<Parameter>::add)(parameterOf<Parameter>(typeId, names));
    },
    [](const ParametersEngine& engine, const std::string& typeId, const NamingFault& names) {
        engine.getSchema(parameterOf<Parameter>(typeId, names));
    },
    [](const ParametersEngine& engine, const std::string& typeId, const NamingFault& names) {
        engine.getDependencies(parameterOf<Parameter>(typeId, names));
    },
};

const NamingFault intFaults[] = {
    {"Group", "x", "s", "r", "Could not find group with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"Spec", "g", "x", "r", "Could not find integer spec with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"Range", "g", "s", "x", "Could not find integer range with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"GroupBeforeSpecAndRange", "x", "y", "z", "Could not find group with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"RangeOrSpecFirst", "g", "y", "z", "Could not find integer range with typeid z.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"GroupOfAnotherKind", "discipline", "s", "r", "Could not find group with typeid discipline.",
     "Dependency discipline in schema p is missing or does not represent an object of the expected type."},
    {"SpecOfAnotherKind", "g", "stringSpec", "r", "Could not find integer spec with typeid stringSpec.",
     "Dependency stringSpec in schema p is missing or does not represent an object of the expected type."},
    {"RangeOfAnotherKind", "g", "s", "floatRange", "Could not find integer range with typeid floatRange.",
     "Dependency floatRange in schema p is missing or does not represent an object of the expected type."},
    {"Itself", "g", "s", "p", "Could not find integer range with typeid p.",
     "Dependency p in schema p is missing or does not represent an object of the expected type."},
    {"SpecOfAnotherMajorVersion", "g", "norvex.spec:spec.int64-1.0.0", "r",
     "Could not find integer spec with typeid norvex.spec:spec.int64-1.0.0.",
     "Dependency norvex.spec:spec.int64-1.0.0 in schema p is missing or does not represent an object of the expected "
     "type."},
    {"RangeOfAnotherMajorVersion", "g", "s", "norvex.range:range.int64.bounded.static-2.0.0",
     "Could not find integer range with typeid norvex.range:range.int64.bounded.static-2.0.0.",
     "Dependency norvex.range:range.int64.bounded.static-2.0.0 in schema p is missing or does not represent an object "
     "of the expected type."},
    {"BuiltInRangeOfAnotherKind", "g", "s", "norvex.range:range.float64.bounded.static-1.0.0",
     "Could not find integer range with typeid norvex.range:range.float64.bounded.static-1.0.0.",
     "Dependency norvex.range:range.float64.bounded.static-1.0.0 in schema p is missing or does not represent an "
     "object of the expected type."},
    {"BuiltInSpecOfAnotherKind", "g", "norvex.spec:spec.string-2.0.0", "r",
     "Could not find integer spec with typeid norvex.spec:spec.string-2.0.0.",
     "Dependency norvex.spec:spec.string-2.0.0 in schema p is missing or does not represent an object of the expected "
     "type."},
};

const NamingFault stringFaults[] = {
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
    {"Itself", "g", "s", "p", "Could not find string range with typeid p.",
     "Dependency p in schema p is missing or does not represent an object of the expected type."},
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
    {"BuiltInSpecOfAnotherKind", "g", "norvex.spec:spec.int64-2.0.0", "set",
     "Could not find string spec with typeid norvex.spec:spec.int64-2.0.0.",
     "Dependency norvex.spec:spec.int64-2.0.0 in schema p is missing or does not represent an object of the expected "
     "type."},
};

class RangedParameterNaming : public testing::TestWithParam<std::tuple<KindOfParameter, NamingFault>> {
protected:
    static const KindOfParameter& kind() { return std::get<0>(GetParam()); }
    static const NamingFault& fault() { return std::get<1>(GetParam()); }

    ParametersEngine engine = kind().stocked();
};

TEST_P(RangedParameterNaming, FailsResolution) {
    engine.registerSchema(kind().textOf(fault()));
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), fault().whenResolved);
}

TEST_P(RangedParameterNaming, FailsReading) {
    EXPECT_EQ(refusalBy(engine, [&] { kind().read(engine, kind().textOf(fault())); }), fault().whenBound);
}

TEST_P(RangedParameterNaming, FailsRegistration) {
    EXPECT_EQ(refusalBy(engine, [&] { kind().add(engine, "p", fault()); }), fault().whenBound);
}

TEST_P(RangedParameterNaming, FailsWriting) {
    EXPECT_EQ(refusalBy(engine, [&] { kind().write(engine, "p", fault()); }), fault().whenBound);
}

TEST_P(RangedParameterNaming, FailsTheQuestionForDependencies) {
    EXPECT_EQ(refusalBy(engine, [&] { kind().askForDependencies(engine, "p", fault()); }), fault().whenBound);
}

INSTANTIATE_TEST_SUITE_P(Int, RangedParameterNaming,
                         testing::Combine(testing::Values(kindOf<IntParameter>), testing::ValuesIn(intFaults)),
                         Support::nameOfBothRows);
INSTANTIATE_TEST_SUITE_P(String, RangedParameterNaming,
                         testing::Combine(testing::Values(kindOf<StringParameter>), testing::ValuesIn(stringFaults)),
                         Support::nameOfBothRows);

struct TypeIdFault {
    const char* name;
    const char* typeId;
    const char* message;
};

const TypeIdFault typeIdFaults[] = {
    {"Empty", "", "Typeid must not be empty."},
    {"Known", "g", "Schema with typeid g is already registered."},
    {"BuiltInSpec", "norvex.spec:spec.int64-2.0.0",
     "Schema with typeid norvex.spec:spec.int64-2.0.0 is already registered."},
    {"BuiltInRange", "norvex.range:range.string-1.0.0",
     "Schema with typeid norvex.range:range.string-1.0.0 is already registered."},
};

struct RangedParameterTypeId : testing::TestWithParam<std::tuple<KindOfParameter, TypeIdFault>> {};

TEST_P(RangedParameterTypeId, IsCheckedFirst) {
    const KindOfParameter& kind = std::get<0>(GetParam());
    const TypeIdFault& fault = std::get<1>(GetParam());
    const NamingFault allMissing{"", "x", "y", "z", "", ""};
    ParametersEngine engine = kind.stocked();
    EXPECT_EQ(refusalBy(engine, [&] { kind.add(engine, fault.typeId, allMissing); }), fault.message);
    EXPECT_EQ(refusalBy(engine, [&] { kind.write(engine, fault.typeId, allMissing); }), fault.message);
    EXPECT_EQ(refusalBy(engine, [&] { kind.askForDependencies(engine, fault.typeId, allMissing); }), fault.message);
}

INSTANTIATE_TEST_SUITE_P(Kinds, RangedParameterTypeId,
                         testing::Combine(testing::Values(kindOf<IntParameter>, kindOf<StringParameter>),
                                          testing::ValuesIn(typeIdFaults)),
                         Support::nameOfBothRows);

} // namespace
