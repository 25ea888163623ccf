#include "KindOperations.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace std::string_literals;
using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::messageOf;

struct LookupOfEachKind : testing::TestWithParam<KindOperations> {
    std::string messageOfLookingUpX() const {
        return messageOf<UnrecognizedIdentifierException>([&] { GetParam().contentOf(engine, "x"); });
    }

    ParametersEngine engine;
};

TEST_P(LookupOfEachKind, ListsNothingInAnEmptyEngine) { EXPECT_TRUE(GetParam().typeIds(engine).empty()); }

TEST_P(LookupOfEachKind, SaysWhatItDoesNotFindInAnEmptyEngine) {
    EXPECT_EQ(messageOfLookingUpX(), GetParam().unknownX);
}

TEST_P(LookupOfEachKind, FindsWhatWasRegistered) {
    GetParam().add(engine, "x", "1");
    GetParam().add(engine, "y", "2");
    EXPECT_EQ(GetParam().contentOf(engine, "x"), "1");
    EXPECT_EQ(GetParam().contentOf(engine, "y"), "2");
}

TEST_P(LookupOfEachKind, TakesTheWholeTypeId) {
    GetParam().add(engine, "xx", "1");
    GetParam().add(engine, "X", "2");
    EXPECT_EQ(messageOfLookingUpX(), GetParam().unknownX);
}

TEST_P(LookupOfEachKind, DoesNotFindObjectsOfOtherKinds) {
    for (const KindOperations& other : everyKind) {
        if (other.name == std::string(GetParam().name)) {
            continue;
        }
        engine = ParametersEngine();
        other.add(engine, "x", "1");
        EXPECT_EQ(messageOfLookingUpX(), GetParam().unknownX) << other.name;
        EXPECT_TRUE(GetParam().typeIds(engine).empty()) << other.name;
    }
}

TEST_P(LookupOfEachKind, DoesNotFindWhatIsPending) {
    engine.registerSchema(GetParam().text("x"));
    EXPECT_TRUE(engine.isRegistered("x"));
    EXPECT_EQ(messageOfLookingUpX(), GetParam().unknownX);
    EXPECT_TRUE(GetParam().typeIds(engine).empty());
}

TEST_P(LookupOfEachKind, FindsWhatWasResolved) {
    engine.registerSchema(GetParam().text("x", "1"));
    engine.resolveSchemas();
    EXPECT_EQ(GetParam().contentOf(engine, "x"), "1");
    EXPECT_EQ(GetParam().typeIds(engine), std::vector<std::string>{"x"});
}

TEST_P(LookupOfEachKind, ListsByTheBytesOfTheTypeIds) {
    for (const std::string& typeId : {"b"s, "\xff"s, "ab"s, "a"s, "a\0"s, " "s, "\x7f"s, "B"s, "a\0b"s}) {
        GetParam().add(engine, typeId, "1");
    }
    EXPECT_EQ(GetParam().typeIds(engine),
              (std::vector<std::string>{" "s, "B"s, "a"s, "a\0"s, "a\0b"s, "ab"s, "b"s, "\x7f"s, "\xff"s}));
}

TEST_P(LookupOfEachKind, ListsByBytesHoweverOftenItIsAskedWhileTheListGrows) {
    std::set<std::string> expected;
    for (unsigned i = 0; i < 200; ++i) {
        const std::string typeId = "x" + std::to_string(i * 73 % 200);
        GetParam().add(engine, typeId, "1");
        expected.insert(typeId);
        if (i % 7 < 3) { // one at a time, then several
            ASSERT_EQ(GetParam().typeIds(engine), std::vector<std::string>(expected.begin(), expected.end()));
        }
    }
}

TEST_P(LookupOfEachKind, ListsObjectsOfCodeAndOfSchemasTogether) {
    GetParam().add(engine, "b", "1");
    engine.registerSchemas({{"c", GetParam().text("c", "3")}});
    GetParam().add(engine, "a", "2");
    EXPECT_EQ(GetParam().typeIds(engine), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(GetParam().contentOf(engine, "c"), "3");
}

TEST_P(LookupOfEachKind, FindsEachOfManyObjects) {
    for (int i = 0; i < 2000; ++i) {
        GetParam().add(engine, "object " + std::to_string(i), std::to_string(i));
    }
    for (int i = 0; i < 2000; ++i) {
        ASSERT_EQ(GetParam().contentOf(engine, "object " + std::to_string(i)), std::to_string(i));
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, LookupOfEachKind, testing::ValuesIn(everyKind), Support::nameOfRow);

TEST(Lookup, ListsHoldTheObjectsThemselves) {
    ParametersEngine engine;
    engine.registerGroup(Taxon("g", "The group"));
    engine.registerBoolParameter(
        BoolParameter(ParameterCore("p", "The parameter", Taxon("g", ""), "About it", "Yes", true)));
    const BoolParameter parameter = engine.getAllBoolParameters().at("p");
    EXPECT_EQ(parameter.getCore().getTypeId(), "p");
    EXPECT_EQ(parameter.getCore().getName(), "The parameter");
    EXPECT_EQ(parameter.getCore().getDescription(), "About it");
    EXPECT_EQ(parameter.getCore().getSampleText(), "Yes");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_TRUE(parameter.getCore().isReadOnly());
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Yes/No");
}

TEST(Lookup, ListsOfOneClassAreSeparate) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("a", "Discipline"));
    engine.registerDomain(Taxon("b", "Domain"));
    engine.registerGroup(Taxon("c", "Group"));
    EXPECT_EQ(engine.getAllDisciplines().begin()->first, "a");
    EXPECT_EQ(engine.getAllDomains().begin()->first, "b");
    EXPECT_EQ(engine.getAllGroups().begin()->first, "c");
    EXPECT_EQ(engine.getAllDisciplines().size(), 1U);
    EXPECT_EQ(engine.getAllDomains().size(), 1U);
    EXPECT_EQ(engine.getAllGroups().size(), 1U);
}

TEST(Lookup, WhatWasHandedOutOutlivesTheEngine) {
    auto engine = std::make_unique<ParametersEngine>();
    engine->registerDiscipline(Taxon("d", "The discipline"));
    engine->registerBoolSpec(BoolSpec(SpecCore("s", "The spec", Taxon("d", ""))));
    const BoolSpec spec = engine->getBoolSpec("s");
    const auto disciplines = engine->getAllDisciplines();
    engine.reset();
    EXPECT_EQ(spec.getCore().getName(), "The spec");
    EXPECT_EQ(disciplines.at("d").getName(), "The discipline");
}

struct BuiltIn {
    const char* name;
    const char* kind;
    std::string typeId;
    const char* displayName;
};

void PrintTo(const BuiltIn& row, std::ostream* out) { *out << row.name; }

const BuiltIn builtIns[] = {
    {"Discipline", "Discipline", "norvex.spec:discipline-1.0.0", "Common"},
    {"DisciplineOfOtherVersion", "Discipline", "norvex.spec:discipline-1.12.3", "Common"},
    {"DisciplinePrefix", "Discipline", "norvex.spec:discipline-1.", "Common"},
    {"DisciplineInALongerText", "Discipline", "a norvex.spec:discipline-1.0.0 of ours", "Common"},
    {"DisciplineAmongOthers", "Discipline", "norvex.parameter:group-1.0.0 norvex.spec:discipline-1.0.0", "Common"},
    {"Group", "Group", "norvex.parameter:group-1.0.0", "Other"},
    {"GroupOfOtherVersion", "Group", "norvex.parameter:group-1.9", "Other"},
    {"GroupPrefix", "Group", "norvex.parameter:group-1.", "Other"},
    {"GroupInALongerText", "Group", "xnorvex.parameter:group-1.x", "Other"},
    {"BoolSpec", "BoolSpec", "norvex.spec:spec.bool-1.0.0", "Yes/No"},
    {"BoolSpecOfOtherVersion", "BoolSpec", "norvex.spec:spec.bool-1.4.0", "Yes/No"},
    {"BoolSpecPrefix", "BoolSpec", "norvex.spec:spec.bool-1.", "Yes/No"},
    {"IntSpec", "IntSpec", "norvex.spec:spec.int64-2.0.0", "Integer"},
    {"IntSpecOfOtherVersion", "IntSpec", "norvex.spec:spec.int64-2.4.0", "Integer"},
    {"IntSpecPrefix", "IntSpec", "norvex.spec:spec.int64-2.", "Integer"},
    {"ReferenceSpec", "ReferenceSpec", "norvex.spec:spec.reference-1.0.0", "Reference"},
    {"ReferenceSpecOfOtherVersion", "ReferenceSpec", "our norvex.spec:spec.reference-1.4.0", "Reference"},
    {"ReferenceSpecPrefix", "ReferenceSpec", "norvex.spec:spec.reference-1.", "Reference"},
    {"StringSpec", "StringSpec", "norvex.spec:spec.string-2.0.0", "Text"},
    {"StringSpecOfOtherVersion", "StringSpec", "our norvex.spec:spec.string-2.4.0", "Text"},
    {"StringSpecPrefix", "StringSpec", "norvex.spec:spec.string-2.", "Text"},
    {"BoolSpecInALongerText", "BoolSpec", "our\0norvex.spec:spec.bool-1.0.0\0own"s, "Yes/No"},
};

struct BuiltInObject : testing::TestWithParam<BuiltIn> {
    static const KindOperations& kind() {
        return *std::find_if(everyKind.begin(), everyKind.end(),
                             [](const KindOperations& row) { return row.name == std::string(GetParam().kind); });
    }

    ParametersEngine engine;
};

TEST_P(BuiltInObject, AnswersForItsIdentifierWithItsName) {
    EXPECT_EQ(kind().contentOf(engine, GetParam().typeId), GetParam().displayName);
}

TEST_P(BuiltInObject, IsNotListed) {
    kind().contentOf(engine, GetParam().typeId);
    EXPECT_TRUE(kind().typeIds(engine).empty());
}

INSTANTIATE_TEST_SUITE_P(Lookup, BuiltInObject, testing::ValuesIn(builtIns), Support::nameOfRow);

TEST(Lookup, BuiltInObjectsHaveTheTypeIdThatWasAskedFor) {
    const ParametersEngine engine;
    EXPECT_EQ(engine.getDiscipline("norvex.spec:discipline-1.7.0").getTypeId(), "norvex.spec:discipline-1.7.0");
    EXPECT_EQ(engine.getGroup("my norvex.parameter:group-1.0.0").getTypeId(), "my norvex.parameter:group-1.0.0");
    EXPECT_EQ(engine.getBoolSpec("norvex.spec:spec.bool-1.4.0").getCore().getTypeId(), "norvex.spec:spec.bool-1.4.0");
}

TEST(Lookup, TheBuiltInBooleanSpecHasTheCommonDiscipline) {
    const Taxon discipline = ParametersEngine().getBoolSpec("norvex.spec:spec.bool-1.4.0").getCore().getDiscipline();
    EXPECT_EQ(discipline.getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(discipline.getName(), "Common");
}

struct NotBuiltIn {
    const char* name;
    void (*look)(const ParametersEngine& engine);
    const char* message;
};

const NotBuiltIn notBuiltIn[] = {
    {"DisciplineOfAnotherMajorVersion",
     [](const ParametersEngine& e) { e.getDiscipline("norvex.spec:discipline-2.0.0"); },
     "Could not find discipline with typeid norvex.spec:discipline-2.0.0."},
    {"DisciplineOfMajorVersionTen", [](const ParametersEngine& e) { e.getDiscipline("norvex.spec:discipline-10.0.0"); },
     "Could not find discipline with typeid norvex.spec:discipline-10.0.0."},
    {"DisciplineWithoutTheDot", [](const ParametersEngine& e) { e.getDiscipline("norvex.spec:discipline-1"); },
     "Could not find discipline with typeid norvex.spec:discipline-1."},
    {"DisciplineInOtherCase", [](const ParametersEngine& e) { e.getDiscipline("Norvex.spec:discipline-1.0.0"); },
     "Could not find discipline with typeid Norvex.spec:discipline-1.0.0."},
    {"GroupAsADiscipline", [](const ParametersEngine& e) { e.getDiscipline("norvex.parameter:group-1.0.0"); },
     "Could not find discipline with typeid norvex.parameter:group-1.0.0."},
    {"DisciplineAsAGroup", [](const ParametersEngine& e) { e.getGroup("norvex.spec:discipline-1.0.0"); },
     "Could not find group with typeid norvex.spec:discipline-1.0.0."},
    {"GroupOfAnotherMajorVersion", [](const ParametersEngine& e) { e.getGroup("norvex.parameter:group-2.0.0"); },
     "Could not find group with typeid norvex.parameter:group-2.0.0."},
    {"BoolSpecOfAnotherMajorVersion", [](const ParametersEngine& e) { e.getBoolSpec("norvex.spec:spec.bool-2.0.0"); },
     "Could not find Boolean spec with typeid norvex.spec:spec.bool-2.0.0."},
    {"IntegerSpecAsABooleanSpec", [](const ParametersEngine& e) { e.getBoolSpec("norvex.spec:spec.int64-2.0.0"); },
     "Could not find Boolean spec with typeid norvex.spec:spec.int64-2.0.0."},
    {"IntSpecOfAnotherMajorVersion", [](const ParametersEngine& e) { e.getIntSpec("norvex.spec:spec.int64-1.0.0"); },
     "Could not find integer spec with typeid norvex.spec:spec.int64-1.0.0."},
    {"StringSpecOfAnotherMajorVersion",
     [](const ParametersEngine& e) { e.getStringSpec("norvex.spec:spec.string-1.0.0"); },
     "Could not find string spec with typeid norvex.spec:spec.string-1.0.0."},
    {"ReferenceSpecOfAnotherMajorVersion",
     [](const ParametersEngine& e) { e.getReferenceSpec("norvex.spec:spec.reference-2.0.0"); },
     "Could not find reference spec with typeid norvex.spec:spec.reference-2.0.0."},
    {"FamilyType", [](const ParametersEngine& e) { e.getReferenceSpec("norvex.talmo.spec:familyType-1.0.0"); },
     "Could not find reference spec with typeid norvex.talmo.spec:familyType-1.0.0."},
    {"MeasurableSpec", [](const ParametersEngine& e) { e.getMeasurableSpec("norvex.spec:spec.measurable-2.0.0"); },
     "Could not find measurable spec with typeid norvex.spec:spec.measurable-2.0.0."},
    {"MeasurableParameter",
     [](const ParametersEngine& e) { e.getMeasurableParameter("norvex.parameter:parameter.measurable-3.0.0"); },
     "Could not find measurable parameter with typeid norvex.parameter:parameter.measurable-3.0.0."},
    {"ReferenceParameter",
     [](const ParametersEngine& e) { e.getReferenceParameter("norvex.parameter:parameter.reference-2.0.0"); },
     "Could not find reference parameter with typeid norvex.parameter:parameter.reference-2.0.0."},
    {"MajorCategory", [](const ParametersEngine& e) { e.getCategory("norvex.talmo.category:majorCategory-1.0.0"); },
     "Could not find category with typeid norvex.talmo.category:majorCategory-1.0.0."},
    {"Unit", [](const ParametersEngine& e) { e.getMeasurableSpec("norvex.unit:unit-1.0.0"); },
     "Could not find measurable spec with typeid norvex.unit:unit-1.0.0."},
    {"IntRange", [](const ParametersEngine& e) { e.getIntRange("norvex.range:range.int64.bounded.static-1.0.0"); },
     "Could not find integer range with typeid norvex.range:range.int64.bounded.static-1.0.0."},
    {"FloatRange",
     [](const ParametersEngine& e) { e.getFloatRange("norvex.range:range.float64.bounded.static-1.0.0"); },
     "Could not find floating-point range with typeid norvex.range:range.float64.bounded.static-1.0.0."},
    {"StringRange", [](const ParametersEngine& e) { e.getStringRange("norvex.range:range.string-1.0.0"); },
     "Could not find string range with typeid norvex.range:range.string-1.0.0."},
    {"Enumeration", [](const ParametersEngine& e) { e.getEnumeration("Enum"); },
     "Could not find enumeration with typeid Enum."},
    {"IntParameter", [](const ParametersEngine& e) { e.getIntParameter("norvex.parameter:parameter.int64-3.0.0"); },
     "Could not find integer parameter with typeid norvex.parameter:parameter.int64-3.0.0."},
    {"StringParameter",
     [](const ParametersEngine& e) { e.getStringParameter("norvex.parameter:parameter.string-3.0.0"); },
     "Could not find string parameter with typeid norvex.parameter:parameter.string-3.0.0."},
    {"EnumerationParameter",
     [](const ParametersEngine& e) { e.getEnumerationParameter("norvex.parameter:parameter-2.0.0"); },
     "Could not find enumeration parameter with typeid norvex.parameter:parameter-2.0.0."},
    {"Domain", [](const ParametersEngine& e) { e.getDomain("norvex.talmo.category:domain-1.0.0"); },
     "Could not find domain with typeid norvex.talmo.category:domain-1.0.0."},
    {"GeneralSpec", [](const ParametersEngine& e) { e.getGeneralSpec("norvex.spec:spec-1.0.0"); },
     "Could not find general spec with typeid norvex.spec:spec-1.0.0."},
    {"BooleanParameter", [](const ParametersEngine& e) { e.getBoolParameter("norvex.parameter:parameter.bool-2.0.0"); },
     "Could not find Boolean parameter with typeid norvex.parameter:parameter.bool-2.0.0."},
    {"EmptyTypeId", [](const ParametersEngine& e) { e.getDomain(""); }, "Could not find domain with typeid ."},
};

class NoBuiltInObject : public testing::TestWithParam<NotBuiltIn> {};

TEST_P(NoBuiltInObject, IsNotFound) {
    const ParametersEngine engine;
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { GetParam().look(engine); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Lookup, NoBuiltInObject, testing::ValuesIn(notBuiltIn), Support::nameOfRow);

struct Question {
    const char* name;
    std::string typeId;
};

void PrintTo(const Question& row, std::ostream* out) { *out << row.name; }

const Question taken[] = {
    {"StringRange", "norvex.range:range.string-1.0.0"},
    {"SetStringRange", "norvex.range:range.string.set.static-1.0.0"},
    {"RegexStringRange", "norvex.range:range.string.regex-1.0.0"},
    {"FloatRange", "norvex.range:range.float64.bounded.static-1.0.0"},
    {"IntRange", "norvex.range:range.int64.bounded.static-1.0.0"},
    {"FamilyType", "norvex.talmo.spec:familyType-1.0.0"},
    {"BoolSpec", "norvex.spec:spec.bool-1.0.0"},
    {"IntSpec", "norvex.spec:spec.int64-2.0.0"},
    {"ReferenceSpec", "norvex.spec:spec.reference-1.0.0"},
    {"StringSpec", "norvex.spec:spec.string-2.0.0"},
    {"Discipline", "norvex.spec:discipline-1.0.0"},
    {"Group", "norvex.parameter:group-1.0.0"},
    {"OtherMinorVersion", "norvex.spec:spec.int64-2.7.1"},
    {"PrefixAlone", "norvex.spec:spec.int64-2."},
    {"InsideALongerText", "our\0norvex.parameter:group-1.0.0 and more"s},
    {"SeveralAtOnce", "norvex.spec:spec.bool-1.norvex.parameter:group-1."},
    {"AfterOneThatIsNot", "norvex.spec:spec.bool-2.0.0 norvex.spec:spec.bool-1.0.0"},
};

class TakenTypeId : public testing::TestWithParam<Question> {};

TEST_P(TakenTypeId, IsRegisteredInAnEmptyEngine) { EXPECT_TRUE(ParametersEngine().isRegistered(GetParam().typeId)); }

INSTANTIATE_TEST_SUITE_P(Lookup, TakenTypeId, testing::ValuesIn(taken), Support::nameOfRow);

const Question freeTypeIds[] = {
    {"Empty", ""},
    {"OtherMajorVersion", "norvex.spec:spec.int64-1.0.0"},
    {"MajorVersionOfTwoDigits", "norvex.spec:spec.int64-20.0.0"},
    {"WithoutTheDot", "norvex.spec:discipline-1"},
    {"OtherCase", "NORVEX.SPEC:DISCIPLINE-1.0.0"},
    {"Domain", "norvex.talmo.category:domain-1.0.0"},
    {"GeneralSpec", "norvex.spec:spec-1.0.0"},
    {"MeasurableSpec", "norvex.spec:spec.measurable-2.0.0"},
    {"EnumerationParameter", "norvex.parameter:parameter-2.0.0"},
    {"BoolParameter", "norvex.parameter:parameter.bool-2.0.0"},
    {"IntParameter", "norvex.parameter:parameter.int64-3.0.0"},
    {"MeasurableParameter", "norvex.parameter:parameter.measurable-3.0.0"},
    {"ReferenceParameter", "norvex.parameter:parameter.reference-2.0.0"},
    {"RangedReferenceParameter", "norvex.parameter:parameter.reference.ranged-2.0.0"},
    {"StringParameter", "norvex.parameter:parameter.string-3.0.0"},
    {"MajorCategory", "norvex.talmo.category:majorCategory-1.0.0"},
    {"SubCategory", "norvex.talmo.category:subCategory-1.0.0"},
    {"Enumeration", "Enum"},
    {"Unit", "norvex.unit:unit-1.0.0"},
};

class FreeTypeId : public testing::TestWithParam<Question> {};

TEST_P(FreeTypeId, IsNotRegisteredInAnEmptyEngine) { EXPECT_FALSE(ParametersEngine().isRegistered(GetParam().typeId)); }

INSTANTIATE_TEST_SUITE_P(Lookup, FreeTypeId, testing::ValuesIn(freeTypeIds), Support::nameOfRow);

TEST(IsRegistered, HoldsForPendingSchemasAndForTheirObjects) {
    ParametersEngine engine;
    engine.registerSchema(Support::disciplineText("d"));
    EXPECT_TRUE(engine.isRegistered("d"));
    engine.resolveSchemas();
    EXPECT_TRUE(engine.isRegistered("d"));
    EXPECT_FALSE(engine.isRegistered("D"));
}

TEST(IsRegistered, DoesNotHoldForWhatASchemaOnlyNames) {
    ParametersEngine engine;
    engine.registerSchema(Support::boolSpecText("s", "d"));
    EXPECT_FALSE(engine.isRegistered("d"));
}

TEST(IsRegistered, HoldsForUnitsResolvedOrNot) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText("u"));
    EXPECT_TRUE(engine.isRegistered("u"));
    engine.getUnitsEngine().resolveSchemas();
    EXPECT_TRUE(engine.isRegistered("u"));
}

TEST(UnitsEngineOfAnEngine, StaysWhereItIs) {
    ParametersEngine engine;
    Units::UnitsEngine& units = engine.getUnitsEngine();
    engine.registerSchemas({{"u", Support::unitText("u", "The unit")}});
    EXPECT_EQ(&engine.getUnitsEngine(), &units);
    EXPECT_EQ(units.getUnit("u").getName(), "The unit");
}

TEST(UnitsEngineOfAnEngine, IsEmptyAtFirst) { EXPECT_TRUE(ParametersEngine().getUnitsEngine().getAllUnits().empty()); }

} // namespace
