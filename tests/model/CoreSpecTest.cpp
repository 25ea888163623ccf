#include "support/Engines.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

// What the specs that are a core alone have in common. What they share with reference specs too is in SpecCoreTest.cpp.

namespace {

using Parameters::BoolSpec;
using Parameters::GeneralSpec;
using Parameters::IntSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::StringSpec;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::disciplineText;
using Support::engineOf;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;

template <class Spec>
struct Traits;

template <>
struct Traits<BoolSpec> {
    static constexpr const char* name = "Bool";
    static constexpr const char* base = "norvex.spec:spec.bool-1.0.0";
    static constexpr const char* ofAnotherMinorVersion = "norvex.spec:spec.bool-1.6.2";
    static constexpr const char* insideALongerText = "my norvex.spec:spec.bool-1.4.0";
    static constexpr const char* ofOtherMajorVersions[] = {"norvex.spec:spec.bool-2.0.0"};
    static constexpr const char* missed = "Could not find Boolean spec with typeid ";
    static constexpr const char* builtInName = "Yes/No";
    static constexpr auto get = &ParametersEngine::getBoolSpec;
};

template <>
struct Traits<GeneralSpec> {
    static constexpr const char* name = "General";
    static constexpr const char* base = "norvex.spec:spec-1.0.0";
    static constexpr const char* ofAnotherMinorVersion = "norvex.spec:spec-1.7.0";
    static constexpr const char* ofOtherMajorVersions[] = {"norvex.spec:spec-2.0.0"};
    static constexpr const char* missed = "Could not find general spec with typeid ";
    static constexpr auto get = &ParametersEngine::getGeneralSpec;
};

template <>
struct Traits<IntSpec> {
    static constexpr const char* name = "Int";
    static constexpr const char* base = "norvex.spec:spec.int64-2.0.0";
    static constexpr const char* ofAnotherMinorVersion = "norvex.spec:spec.int64-2.6.2";
    static constexpr const char* insideALongerText = "my norvex.spec:spec.int64-2.4.0";
    static constexpr const char* ofOtherMajorVersions[] = {"norvex.spec:spec.int64-1.0.0",
                                                           "norvex.spec:spec.int64-3.0.0"};
    static constexpr const char* missed = "Could not find integer spec with typeid ";
    static constexpr const char* builtInName = "Integer";
    static constexpr auto get = &ParametersEngine::getIntSpec;
};

template <>
struct Traits<StringSpec> {
    static constexpr const char* name = "String";
    static constexpr const char* base = "norvex.spec:spec.string-2.0.0";
    static constexpr const char* ofAnotherMinorVersion = "norvex.spec:spec.string-2.6.2";
    static constexpr const char* insideALongerText = "my norvex.spec:spec.string-2.4.0";
    static constexpr const char* ofOtherMajorVersions[] = {"norvex.spec:spec.string-1.0.0",
                                                           "norvex.spec:spec.string-3.0.0"};
    static constexpr const char* missed = "Could not find string spec with typeid ";
    static constexpr const char* builtInName = "Text";
    static constexpr auto get = &ParametersEngine::getStringSpec;
};

/// Returns the kinds of the specs that are listed, one entry a spec.
std::vector<std::string> kindsListedBy(const ParametersEngine& engine) {
    std::vector<std::string> kinds;
    kinds.insert(kinds.end(), engine.getAllBoolSpecs().size(), "Bool");
    kinds.insert(kinds.end(), engine.getAllGeneralSpecs().size(), "General");
    kinds.insert(kinds.end(), engine.getAllIntSpecs().size(), "Int");
    kinds.insert(kinds.end(), engine.getAllStringSpecs().size(), "String");
    return kinds;
}

template <class Spec>
struct CoreSpec : testing::Test {
    using T = Traits<Spec>;

    static Spec get(const ParametersEngine& engine, const std::string& typeId) { return (engine.*T::get)(typeId); }
    static std::string messageOfMissing(const std::string& typeId) {
        return messageOf<UnrecognizedIdentifierException>([&] { get(ParametersEngine(), typeId); });
    }
};

template <class Spec>
struct BuiltInCoreSpec : CoreSpec<Spec> {};

struct NameOfSpec {
    template <class Spec>
    static std::string GetName(int) { // NOLINT(readability-identifier-naming): GoogleTest calls it
        return Traits<Spec>::name;
    }
};

using CoreSpecs = testing::Types<BoolSpec, GeneralSpec, IntSpec, StringSpec>;
TYPED_TEST_SUITE(CoreSpec, CoreSpecs, NameOfSpec);

TYPED_TEST(CoreSpec, AnswersTheCoreItWasMadeFrom) {
    const TypeParam spec(SpecCore("open", "Open", Taxon("civil", "Civil Works")));
    EXPECT_EQ(spec.getCore().getTypeId(), "open");
    EXPECT_EQ(spec.getCore().getName(), "Open");
    EXPECT_EQ(spec.getCore().getDiscipline().getTypeId(), "civil");
    EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Civil Works");
}

TYPED_TEST(CoreSpec, HasACoreThatOutlivesIt) {
    const SpecCore core = [] { return TypeParam(SpecCore("open", "Open")).getCore(); }();
    EXPECT_EQ(core.getTypeId(), "open");
    EXPECT_EQ(core.getName(), "Open");
}

TYPED_TEST(CoreSpec, IsReadFromASchemaOfItsBase) {
    const ParametersEngine engine = engineOf({namedText("open", TestFixture::T::ofAnotherMinorVersion, "Open")});
    EXPECT_EQ(this->get(engine, "open").getCore().getName(), "Open");
    EXPECT_EQ(kindsListedBy(engine), std::vector<std::string>{TestFixture::T::name});
}

TYPED_TEST(CoreSpec, IsNotReadFromAnotherMajorVersionOfItsBase) {
    for (const char* base : TestFixture::T::ofOtherMajorVersions) {
        EXPECT_EQ(refusalOf(namedText("open", base, "Open")), "Inheritance from an unrecognized base schema.") << base;
    }
}

TYPED_TEST(CoreSpec, ReportsItsDisciplineAsMissing) {
    const auto missing = ParametersEngine().registerSchema(Support::schemaText(
        "open", TestFixture::T::base,
        R"({"id": "name", "value": "Open"}, {"id": "discipline", "typedValue": {"typeid": "civil"}})"));
    EXPECT_EQ(missing.first, (std::set<std::string>{"civil"}));
    EXPECT_TRUE(missing.second.empty());
}

TYPED_TEST(CoreSpec, IsWrittenFromASchema) {
    const ParametersEngine engine = engineOf(
        {disciplineText("civil"),
         R"({"constants": [{"typedValue": {"typeid": "civil"}, "id": "discipline"}, {"value": "Open", "id": "name"}],
             "inherits": [")" +
             std::string(TestFixture::T::ofAnotherMinorVersion) + R"("], "typeid": "plant.spec:open-1.0.0"})"});
    EXPECT_EQ(engine.getSchema("plant.spec:open-1.0.0"),
              R"({"typeid":"plant.spec:open-1.0.0","inherits":[")" + std::string(TestFixture::T::base) +
                  R"("],"constants":[)"
                  R"({"id":"name","value":"Open"},{"id":"discipline","typedValue":{"typeid":"civil"}}]})");
}

TYPED_TEST(CoreSpec, NamesItsDisciplineAsItsDependency) {
    EXPECT_EQ(engineOf({namedText("open", TestFixture::T::base, "Open")}).getDependencies("open"),
              (std::set<std::string>{"norvex.spec:discipline-1.0.0"}));
}

TYPED_TEST(CoreSpec, IsMissedByItsKind) {
    EXPECT_EQ(this->messageOfMissing("x"), std::string(TestFixture::T::missed) + "x.");
}

using BuiltInCoreSpecs = testing::Types<BoolSpec, IntSpec, StringSpec>;
TYPED_TEST_SUITE(BuiltInCoreSpec, BuiltInCoreSpecs, NameOfSpec);

TYPED_TEST(BuiltInCoreSpec, HasItsNameAndTheCommonDiscipline) {
    const SpecCore core = this->get(ParametersEngine(), TestFixture::T::base).getCore();
    EXPECT_EQ(core.getTypeId(), TestFixture::T::base);
    EXPECT_EQ(core.getName(), TestFixture::T::builtInName);
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TYPED_TEST(BuiltInCoreSpec, KeepsTheTypeIdAskedFor) {
    const SpecCore core = this->get(ParametersEngine(), TestFixture::T::insideALongerText).getCore();
    EXPECT_EQ(core.getTypeId(), TestFixture::T::insideALongerText);
    EXPECT_EQ(core.getName(), TestFixture::T::builtInName);
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
}

TYPED_TEST(BuiltInCoreSpec, HasNoOtherMajorVersion) {
    for (const char* typeId : TestFixture::T::ofOtherMajorVersions) {
        EXPECT_EQ(this->messageOfMissing(typeId), std::string(TestFixture::T::missed) + typeId + ".");
    }
}

TYPED_TEST(BuiltInCoreSpec, IsListedAndWrittenNowhere) {
    const std::string base = TestFixture::T::base;
    const ParametersEngine engine;
    this->get(engine, base);
    EXPECT_EQ(kindsListedBy(engine), std::vector<std::string>{});
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getSchema(base); }),
              "Could not find any object with typeid " + base + ".");
}

TEST(GeneralSpec, HasNoBuiltInObject) {
    EXPECT_EQ(
        messageOf<UnrecognizedIdentifierException>([] { ParametersEngine().getGeneralSpec("norvex.spec:spec-1.0.0"); }),
        "Could not find general spec with typeid norvex.spec:spec-1.0.0.");
}

/// A base that contains that of general specs too, and which of the two kinds of spec is read from it.
struct DoubleBase {
    const char* name;
    const char* base;
    const char* kind;
};

const DoubleBase doubleBases[] = {
    {"BeforeBool", "norvex.spec:spec-1.0.0 norvex.spec:spec.bool-1.0.0", "Bool"},
    {"BehindBool", "norvex.spec:spec.bool-1.0.0 norvex.spec:spec-1.0.0", "Bool"},
    {"BeforeInt", "norvex.spec:spec-1.0.0 norvex.spec:spec.int64-2.0.0", "General"},
    {"BehindInt", "norvex.spec:spec.int64-2.0.0 norvex.spec:spec-1.0.0", "General"},
    {"BeforeString", "norvex.spec:spec-1.0.0 norvex.spec:spec.string-2.0.0", "General"},
    {"BehindString", "norvex.spec:spec.string-2.0.0 norvex.spec:spec-1.0.0", "General"},
};

struct BaseOfGeneralSpecs : testing::TestWithParam<DoubleBase> {};

TEST_P(BaseOfGeneralSpecs, CountsAfterThatOfBooleanSpecsAndBeforeOthers) {
    EXPECT_EQ(kindsListedBy(engineOf({namedText("open", GetParam().base, "Open")})),
              std::vector<std::string>{GetParam().kind});
}

INSTANTIATE_TEST_SUITE_P(Bases, BaseOfGeneralSpecs, testing::ValuesIn(doubleBases), Support::nameOfRow);

} // namespace
