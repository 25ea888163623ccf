#include "support/KindTypes.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"
#include "support/Sentences.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace Kinds = Parameters::Kinds;
using namespace std::string_literals;
using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::messageOf;

template <class Kind>
struct LookupOfEachKind : testing::Test {
    void add(const std::string& typeId, const std::string& content = "1") {
        Support::addSample<Kind>(engine, typeId, content);
    }
    std::string contentOf(const std::string& typeId) const { return Support::contentIn<Kind>(engine, typeId); }
    std::vector<std::string> typeIds() const { return Support::typeIdsIn<Kind>(engine); }

    void expectNoX(const std::string& context = "") const {
        EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { Kind::get(engine, "x"); }),
                  "Could not find " + std::string(Kind::info.word()) + " with typeid x.")
            << context;
    }

    ParametersEngine engine;
};

TYPED_TEST_SUITE(LookupOfEachKind, Support::TestedKinds<Kinds::All>, Support::NameOfKind);

TYPED_TEST(LookupOfEachKind, FindsNothingInAnEmptyEngine) {
    EXPECT_TRUE(TypeParam::getAll(this->engine).empty());
    this->expectNoX();
}

TYPED_TEST(LookupOfEachKind, FindsWhatWasRegistered) {
    this->add("x", "1");
    this->add("y", "2");
    EXPECT_EQ(this->contentOf("x"), "1");
    EXPECT_EQ(this->contentOf("y"), "2");
}

TYPED_TEST(LookupOfEachKind, TakesTheWholeTypeId) {
    this->add("xx", "1");
    this->add("X", "2");
    this->expectNoX();
}

TYPED_TEST(LookupOfEachKind, DoesNotFindObjectsOfOtherKinds) {
    Parameters::forEachKind([&](auto other) {
        if (other.info != TypeParam::info) {
            this->engine = ParametersEngine();
            Support::addSample<decltype(other)>(this->engine, "x");
            this->expectNoX(std::string(other.info.id()));
            EXPECT_TRUE(this->typeIds().empty()) << other.info.id();
        }
    });
}

TYPED_TEST(LookupOfEachKind, DoesNotFindWhatIsPending) {
    this->engine.registerSchema(Support::sampleText<TypeParam>("x"));
    EXPECT_TRUE(this->engine.isRegistered("x"));
    this->expectNoX();
    EXPECT_TRUE(this->typeIds().empty());
}

TYPED_TEST(LookupOfEachKind, FindsWhatWasResolved) {
    Support::stock(this->engine, Support::mainShapeOf<TypeParam>());
    this->engine.registerSchema(Support::sampleText<TypeParam>("x", "1"));
    this->engine.resolveSchemas();
    EXPECT_EQ(this->contentOf("x"), "1");
    EXPECT_EQ(this->typeIds(), std::vector<std::string>{"x"});
}

TYPED_TEST(LookupOfEachKind, ListsByTheBytesOfTheTypeIds) {
    for (const std::string& typeId : {"b"s, "\xff"s, "ab"s, "a"s, "a\0"s, " "s, "\x7f"s, "B"s, "a\0b"s}) {
        this->add(typeId);
    }
    EXPECT_EQ(this->typeIds(),
              (std::vector<std::string>{" "s, "B"s, "a"s, "a\0"s, "a\0b"s, "ab"s, "b"s, "\x7f"s, "\xff"s}));
}

TYPED_TEST(LookupOfEachKind, ListsByBytesHoweverOftenItIsAskedWhileTheListGrows) {
    std::set<std::string> expected;
    for (unsigned i = 0; i < 200; ++i) {
        const std::string typeId = "x" + std::to_string(i * 73 % 200);
        this->add(typeId);
        expected.insert(typeId);
        if (i % 7 < 3) { // one at a time, then several
            ASSERT_EQ(this->typeIds(), std::vector<std::string>(expected.begin(), expected.end()));
        }
    }
}

TYPED_TEST(LookupOfEachKind, ListsObjectsOfCodeAndOfSchemasTogether) {
    this->add("b", "1");
    this->engine.registerSchemas({{"c", Support::sampleText<TypeParam>("c", "3")}});
    this->add("a", "2");
    EXPECT_EQ(this->typeIds(), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(this->contentOf("c"), "3");
}

TYPED_TEST(LookupOfEachKind, FindsEachOfManyObjects) {
    for (int i = 0; i < 2000; ++i) {
        this->add("object " + std::to_string(i), std::to_string(i));
    }
    for (int i = 0; i < 2000; ++i) {
        ASSERT_EQ(this->contentOf("object " + std::to_string(i)), std::to_string(i));
    }
}

TYPED_TEST(LookupOfEachKind, FindsABaseOnlyWhereThereIsABuiltInObject) {
    for (const std::string_view base : TypeParam::info.bases()) {
        const std::string typeId(base);
        const std::string other = Support::ofMajorVersion(base, "7");
        EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { TypeParam::get(this->engine, other); }),
                  Support::notFound(TypeParam::info, other));
        if (TypeParam::info.builtInName().empty()) {
            EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { TypeParam::get(this->engine, typeId); }),
                      Support::notFound(TypeParam::info, typeId));
        } else {
            EXPECT_EQ(TypeParam::typeIdOf(TypeParam::get(this->engine, typeId)), typeId);
            EXPECT_EQ(this->contentOf(typeId), TypeParam::info.builtInName());
        }
    }
    EXPECT_TRUE(this->typeIds().empty());
}

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
    Parameters::KindInfo kind;
    std::string prefix; // of the typeids that it answers for
    const char* displayName;
};

const BuiltIn builtIns[] = {
    {"Discipline", Kinds::Discipline::info, "norvex.spec:discipline-1.", "Common"},
    {"Group", Kinds::Group::info, "norvex.parameter:group-1.", "Other"},
    {"BoolSpec", Kinds::BoolSpec::info, "norvex.spec:spec.bool-1.", "Yes/No"},
    {"IntSpec", Kinds::IntSpec::info, "norvex.spec:spec.int64-2.", "Integer"},
    {"ReferenceSpec", Kinds::ReferenceSpec::info, "norvex.spec:spec.reference-1.", "Reference"},
    {"StringSpec", Kinds::StringSpec::info, "norvex.spec:spec.string-2.", "Text"},
};

class BuiltInObject : public testing::TestWithParam<BuiltIn> {};

TEST_P(BuiltInObject, AnswersForItsIdentifierInAnyTextWithItsNameAndIsNotListed) {
    const ParametersEngine engine;
    const std::string& prefix = GetParam().prefix;
    for (const std::string& typeId : {prefix + "0.0", prefix + "12.3", prefix, "a " + prefix + "0.0 of ours",
                                      "norvex.talmo.spec:familyType-1.0.0 " + prefix, "our\0"s + prefix + "\0own"s}) {
        Parameters::forEachKind([&](auto each) {
            if (each.info == GetParam().kind) {
                EXPECT_EQ(Support::contentIn<decltype(each)>(engine, typeId), GetParam().displayName) << typeId;
                EXPECT_EQ(each.typeIdOf(each.get(engine, typeId)), typeId);
                EXPECT_TRUE(each.getAll(engine).empty());
            }
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Lookup, BuiltInObject, testing::ValuesIn(builtIns), Support::nameOfRow);

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
    {"IntegerSpecAsABooleanSpec", [](const ParametersEngine& e) { e.getBoolSpec("norvex.spec:spec.int64-2.0.0"); },
     "Could not find Boolean spec with typeid norvex.spec:spec.int64-2.0.0."},
    {"FamilyType", [](const ParametersEngine& e) { e.getReferenceSpec("norvex.talmo.spec:familyType-1.0.0"); },
     "Could not find reference spec with typeid norvex.talmo.spec:familyType-1.0.0."},
    {"Unit", [](const ParametersEngine& e) { e.getMeasurableSpec("norvex.unit:unit-1.0.0"); },
     "Could not find measurable spec with typeid norvex.unit:unit-1.0.0."},
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

TEST(UnitsEngineOfAnEngine, KnowsNoTypeIdThatOnlyTheEngineHas) {
    Parameters::forEachKind([](auto kind) {
        using Kind = decltype(kind);
        ParametersEngine engine;
        Support::addSample<Kind>(engine, "x", "1");
        engine.registerSchema(Support::groupText("pending"));
        Units::UnitsEngine& units = engine.getUnitsEngine();
        for (const char* typeId : {"x", "pending", "norvex.parameter:group-1.0.0"}) {
            EXPECT_FALSE(units.isRegistered(typeId)) << kind.info.id();
            units.registerSchema(Support::unitText(typeId, "The unit"));
        }
        engine.resolveSchemas();
        for (const char* typeId : {"x", "pending", "norvex.parameter:group-1.0.0"}) {
            EXPECT_EQ(units.getUnit(typeId).getName(), "The unit") << kind.info.id();
        }
        EXPECT_EQ(Support::contentIn<Kind>(engine, "x"), "1") << kind.info.id();
        EXPECT_EQ(engine.getGroup("pending").getName(), "Name");
        EXPECT_EQ(engine.getGroup("norvex.parameter:group-1.0.0").getName(), "Other");
    });
}

TEST(UnitsEngineOfAnEngine, IsEmptyAtFirst) { EXPECT_TRUE(ParametersEngine().getUnitsEngine().getAllUnits().empty()); }

} // namespace
