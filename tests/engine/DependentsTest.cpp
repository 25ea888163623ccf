#include "support/Engines.h"
#include "support/KindTypes.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::Identity;
using Parameters::ParametersEngine;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::groupText;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

std::vector<Identity> dependentsOf(const ParametersEngine& engine, std::string_view typeId) {
    const auto dependents = engine.dependentsOf(typeId);
    return {dependents.begin(), dependents.end()};
}

TEST(Dependents, AreNoneWhereNothingIsNamed) {
    ParametersEngine engine;
    EXPECT_THAT(dependentsOf(engine, "x"), IsEmpty());
    engine.registerGroup({"x", "X"});
    EXPECT_THAT(dependentsOf(engine, "x"), IsEmpty());
    EXPECT_THAT(dependentsOf(engine, ""), IsEmpty());
}

TEST(Dependents, AreByKindThenByTypeId) {
    const ParametersEngine engine = Support::engineOf(
        {disciplineText("d"), boolSpecText("s2", "d"), boolSpecText("s1", "d"), Support::generalSpecText("s0", "d"),
         boolParameterText("p2", "g", "s1"), groupText("g"), boolParameterText("p1", "g", "s1")});
    EXPECT_THAT(dependentsOf(engine, "d"),
                ElementsAre(Identity{"s1", Kinds::BoolSpec::info}, Identity{"s2", Kinds::BoolSpec::info},
                            Identity{"s0", Kinds::GeneralSpec::info}));
    EXPECT_THAT(dependentsOf(engine, "g"),
                ElementsAre(Identity{"p1", Kinds::BoolParameter::info}, Identity{"p2", Kinds::BoolParameter::info}));
    EXPECT_THAT(dependentsOf(engine, "p1"), IsEmpty());
}

TEST(Dependents, OfBuiltInObjectsAreToldByTheVeryIdentifier) {
    const ParametersEngine engine =
        Support::engineOf({boolParameterText("p", "norvex.parameter:group-1.2.0", "norvex.spec:spec.bool-1.0.0")});
    EXPECT_EQ(dependentsOf(engine, "norvex.parameter:group-1.0.0").size(), 0U);
    EXPECT_THAT(dependentsOf(engine, "norvex.parameter:group-1.2.0"),
                ElementsAre(Identity{"p", Kinds::BoolParameter::info}));
}

TEST(Dependents, OfAUnitAreSpecsThatNameItOnce) {
    ParametersEngine engine = Support::engineWithUnits({"m", "km"});
    const auto& units = engine.getUnitsEngine();
    engine.registerMeasurableSpec({Parameters::SpecCore("length", "Length"),
                                   {units.getUnit("m"), units.getUnit("km"), units.getUnit("m")},
                                   units.getUnit("m")});
    EXPECT_THAT(dependentsOf(engine, "m"), ElementsAre(Identity{"length", Kinds::MeasurableSpec::info}));
    EXPECT_THAT(dependentsOf(engine, "km"), ElementsAre(Identity{"length", Kinds::MeasurableSpec::info}));
}

TEST(Dependents, AreTheParametersOfAGroupThatAreThereAndNotPending) {
    ParametersEngine engine = Support::engineOf({groupText("g")});
    engine.registerSchema(boolParameterText("p", "g", "norvex.spec:spec.bool-1.0.0"));
    EXPECT_THAT(dependentsOf(engine, "g"), IsEmpty());
    engine.resolveSchemas();
    EXPECT_EQ(dependentsOf(engine, "g").size(), 1U);
    engine.registerBoolParameter(
        Parameters::BoolParameter(Parameters::ParameterCore("a", "A", engine.getGroup("g"), "", "", false)));
    EXPECT_THAT(dependentsOf(engine, "g"),
                ElementsAre(Identity{"a", Kinds::BoolParameter::info}, Identity{"p", Kinds::BoolParameter::info}));
}

TEST(Dependents, AreShownAgainWhileNothingIsAdded) {
    ParametersEngine engine =
        Support::engineOf({groupText("g"), boolParameterText("p", "g", "norvex.spec:spec.bool-1.0.0")});
    const auto first = engine.dependentsOf("g");
    engine.registerSchema(groupText("pending"));
    EXPECT_EQ(engine.dependentsOf("g").begin(), first.begin());
}

TEST(Dependents, OfACopyAreItsOwn) {
    ParametersEngine engine = Support::engineOf({groupText("g")});
    ParametersEngine copy(engine);
    copy.registerSchema(boolParameterText("p", "g", "norvex.spec:spec.bool-1.0.0"));
    copy.resolveSchemas();
    EXPECT_THAT(dependentsOf(engine, "g"), IsEmpty());
    EXPECT_EQ(dependentsOf(copy, "g").size(), 1U);
}

template <class Kind>
struct DependentsOfEachKind : testing::Test {};
TYPED_TEST_SUITE(DependentsOfEachKind, Support::TestedKinds<Kinds::All>, Support::NameOfKind);

TYPED_TEST(DependentsOfEachKind, AreWhatNamesIt) {
    ParametersEngine engine;
    Support::addSample<TypeParam>(engine, "x");
    const std::set<std::string> named = TypeParam::getDependencies(engine, TypeParam::get(engine, "x"));
    for (const std::string& typeId : named) {
        EXPECT_THAT(dependentsOf(engine, typeId), Contains(Identity{"x", TypeParam::info})) << typeId;
    }
    Parameters::forEachObject(engine, [&](auto, const auto& object) {
        if (!named.contains(std::string(object.typeId()))) {
            EXPECT_THAT(dependentsOf(engine, object.typeId()), Not(Contains(Identity{"x", TypeParam::info})));
        }
    });
}

TEST(Identity, IsPrintedWithItsKind) {
    std::ostringstream stream;
    stream << Identity{"a:x", Kinds::IntRange::info} << "; " << Kinds::Group::info;
    EXPECT_EQ(stream.str(), "int-range a:x; group");
}

TEST(Identity, IsComparedByBoth) {
    const Identity one{"x", Kinds::IntRange::info};
    EXPECT_TRUE(one == (Identity{std::string_view("xy").substr(0, 1), Kinds::IntRange::info}));
    EXPECT_TRUE(one != (Identity{"x", Kinds::FloatRange::info}));
    EXPECT_TRUE(one != (Identity{"y", Kinds::IntRange::info}));
    EXPECT_FALSE(one != one);
}

} // namespace
