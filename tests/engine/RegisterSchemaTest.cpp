#include "support/KindTypes.h"
#include "support/Messages.h"
#include "support/Picture.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::ParametersEngine;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::generalSpecText;
using Support::groupText;
using Support::measurableSpecText;
using Support::messageOf;
using Support::namedText;
using Support::nameTheLeast;
using Support::pictureOf;
using Support::Shape;
using Support::typeIdsIn;

using TypeIds = std::set<std::string>;
using Missing = std::pair<TypeIds, TypeIds>;

const Missing nothing;

TEST(MissingTypeIds, AreThoseThatASpecNames) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "d")), Missing({"d"}, {}));
    EXPECT_EQ(engine.registerSchema(generalSpecText("t", "e")), Missing({"e"}, {}));
}

TEST(MissingTypeIds, AreThoseThatAParameterNames) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(boolParameterText("p", "g", "s")), Missing({"g", "s"}, {}));
}

TEST(MissingTypeIds, AreReportedOnceHoweverOftenTheyAreNamed) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(boolParameterText("p", "x", "x")), Missing({"x"}, {}));
}

TEST(MissingTypeIds, AreReportedAgainForTheNextThatNamesThem) {
    ParametersEngine engine;
    engine.registerSchema(boolSpecText("s", "d"));
    EXPECT_EQ(engine.registerSchema(boolSpecText("t", "d")), Missing({"d"}, {}));
}

TEST(MissingTypeIds, AreOnlyThoseThatAreNotThere) {
    ParametersEngine engine;
    engine.registerSchema(groupText("g"));
    EXPECT_EQ(engine.registerSchema(boolParameterText("p", "g", "s")), Missing({"s"}, {}));
}

TEST(MissingTypeIds, AreNotThoseOfPendingSchemas) {
    ParametersEngine engine;
    engine.registerSchema(disciplineText("d"));
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "d")), nothing);
}

TEST(MissingTypeIds, AreNotThoseOfObjects) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("d", "Name"));
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "d")), nothing);
}

TEST(MissingTypeIds, AreNotThoseOfUnits) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText("u"));
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "u")), nothing);
}

TEST(MissingTypeIds, AreNotThoseOfOtherKinds) {
    ParametersEngine engine;
    engine.registerSchema(groupText("g"));
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "g")), nothing);
}

TEST(MissingTypeIds, AreNotTheSchemasOwn) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "s")), nothing);
    EXPECT_EQ(engine.registerSchema(boolParameterText("p", "g", "p")), Missing({"g"}, {}));
}

TEST(MissingTypeIds, OfUnitsStandApart) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(measurableSpecText("s", "u", {"u", "v", "Name"})), Missing({}, {"u", "v", "Name"}));
}

TEST(MissingTypeIds, OfUnitsAreNotTheSchemasOwn) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(measurableSpecText("s", "s", {"s"})), Missing({}, {}));
}

TEST(MissingTypeIds, AreNotBuiltIn) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "norvex.spec:discipline-1.3.0")), nothing);
    EXPECT_EQ(engine.registerSchema(boolSpecText("t", "my norvex.spec:discipline-1.0.0")), nothing);
    EXPECT_EQ(engine.registerSchema(boolSpecText("v", "norvex.parameter:group-1.0.0")), nothing);
    EXPECT_EQ(engine.registerSchema(boolParameterText("p", "norvex.parameter:group-1.0.0", "norvex.spec:spec.bool-1.")),
              nothing);
}

TEST(MissingTypeIds, AreThoseOfOtherMajorVersions) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "norvex.spec:discipline-2.0.0")),
              Missing({"norvex.spec:discipline-2.0.0"}, {}));
}

template <class Kind>
struct RegisterSchemaOfEachKind : testing::Test {
    RegisterSchemaOfEachKind() {
        for (const Shape& shape : shapes) {
            Support::stock(engine, shape);
        }
    }

    /// Expects that a text of another base is read as one of the kind.
    void expectRead(const Shape& shape, const std::string& base) {
        ParametersEngine copy(engine);
        copy.registerSchema(shape.textOfBase(base, "x", "1", nameTheLeast));
        copy.resolveSchemas();
        EXPECT_EQ(typeIdsIn<Kind>(copy), std::vector<std::string>{"x"}) << base;
        const std::string inherited = R"("inherits":[")" + base + R"("])";
        EXPECT_EQ(copy.getSchema("x").find(inherited), std::string::npos) << "is written with its full base";
    }
    void expectUnknown(const Shape& shape, const std::string& base) {
        EXPECT_EQ(Support::refusalOf(engine, shape.textOfBase(base, "x", "1", nameTheLeast)),
                  "Inheritance from an unrecognized base schema.")
            << base;
    }

    const std::vector<Shape> shapes = Support::shapesOf<Kind>();
    ParametersEngine engine;
};

TYPED_TEST_SUITE(RegisterSchemaOfEachKind, Support::TestedKinds<Kinds::All>, Support::NameOfKind);

TYPED_TEST(RegisterSchemaOfEachKind, MissesNothingThatIsThere) {
    for (const Shape& shape : this->shapes) {
        EXPECT_EQ(this->engine.registerSchema(shape.text(shape.name, "1", nameTheLeast)), nothing) << shape.base;
    }
}

TYPED_TEST(RegisterSchemaOfEachKind, RefusesATextTwice) {
    for (const Shape& shape : this->shapes) {
        const std::string text = shape.text(shape.name, "1", nameTheLeast);
        const std::string message = "Schema with typeid " + shape.name + " is already registered.";
        this->engine.registerSchema(text);
        EXPECT_EQ(messageOf<ValidationException>([&] { this->engine.registerSchema(text); }), message);
        this->engine.resolveSchemas();
        EXPECT_EQ(messageOf<ValidationException>([&] { this->engine.registerSchema(text); }), message);
    }
}

TYPED_TEST(RegisterSchemaOfEachKind, RefusesATypeIdOfAnyKind) {
    Parameters::forEachKind([&](auto first) {
        using First = decltype(first);
        ParametersEngine fresh;
        Support::stock(fresh, Support::mainShapeOf<First>());
        fresh.registerSchema(Support::sampleText<First>("x", "1"));
        EXPECT_EQ(
            messageOf<ValidationException>([&] { fresh.registerSchema(Support::sampleText<TypeParam>("x", "2")); }),
            "Schema with typeid x is already registered.")
            << first.info.id();
        fresh.resolveSchemas();
        EXPECT_EQ(Support::contentIn<First>(fresh, "x"), "1");
    });
}

TYPED_TEST(RegisterSchemaOfEachKind, FilesNothingOfAMalformedSchema) {
    const std::string base = Support::mainShapeOf<TypeParam>().base;
    EXPECT_EQ(Support::refusalOf(this->engine, Support::schemaText("x", base, "")),
              Support::Sample<TypeParam>::bareFault);
    EXPECT_FALSE(this->engine.isRegistered("x"));
}

TYPED_TEST(RegisterSchemaOfEachKind, TakesATypeIdThatWasRefusedBefore) {
    const std::string base = Support::mainShapeOf<TypeParam>().base;
    messageOf<ValidationException>([&] { this->engine.registerSchema(Support::schemaText("x", base, "")); });
    this->engine.registerSchema(Support::sampleText<TypeParam>("x", "1"));
    this->engine.resolveSchemas();
    EXPECT_EQ(Support::contentIn<TypeParam>(this->engine, "x"), "1");
}

TYPED_TEST(RegisterSchemaOfEachKind, ReadsOtherMinorVersionsOfItsBasesAlsoInsideALongerText) {
    for (const Shape& shape : this->shapes) {
        if (const std::string prefix = Support::versionPrefixOf(shape.base); prefix != shape.base) {
            this->expectRead(shape, prefix + "9.3");
            this->expectRead(shape, prefix);
            this->expectRead(shape, "our " + shape.base + " of old");
        }
    }
}

TYPED_TEST(RegisterSchemaOfEachKind, DoesNotReadOtherMajorVersionsOfItsBases) {
    for (const Shape& shape : this->shapes) {
        for (const char* version : {"0", "4", "7", "10", "20", "21", "30"}) {
            this->expectUnknown(shape, Support::ofMajorVersion(shape.base, version));
        }
        this->expectUnknown(shape, "x" + shape.base.substr(1));
        this->expectUnknown(shape, shape.base.substr(0, shape.base.rfind('-')) + "-");
    }
}

/// A base in which the bases of two kinds are found.
struct TwoBases {
    const char* name;
    const char* base;
    void (*lookUpX)(const ParametersEngine& engine); // in the kind that is offered the schema first
};

const TwoBases twoBases[] = {
    {"FloatRangeBeforeIntRange",
     "norvex.range:range.int64.bounded.static-1. norvex.range:range.float64.bounded.static-1.",
     [](const ParametersEngine& engine) { engine.getFloatRange("x"); }},
    {"IntRangeBeforeStringRange", "norvex.range:range.string-1. norvex.range:range.int64.bounded.static-1.",
     [](const ParametersEngine& engine) { engine.getIntRange("x"); }},
    {"StringRangeBeforeDiscipline", "norvex.spec:discipline-1. norvex.range:range.string-1.",
     [](const ParametersEngine& engine) { engine.getStringRange("x"); }},
    {"DisciplineBeforeGroup", "norvex.parameter:group-1. norvex.spec:discipline-1.",
     [](const ParametersEngine& engine) { engine.getDiscipline("x"); }},
    {"GroupBeforeDomain", "norvex.talmo.category:domain-1. norvex.parameter:group-1.",
     [](const ParametersEngine& engine) { engine.getGroup("x"); }},
    {"DomainBeforeBoolSpec", "norvex.spec:spec.bool-1. norvex.talmo.category:domain-1.",
     [](const ParametersEngine& engine) { engine.getDomain("x"); }},
    {"BoolSpecBeforeGeneralSpec", "norvex.spec:spec-1. norvex.spec:spec.bool-1.",
     [](const ParametersEngine& engine) { engine.getBoolSpec("x"); }},
    {"GeneralSpecBeforeIntSpec", "norvex.spec:spec.int64-2. norvex.spec:spec-1.",
     [](const ParametersEngine& engine) { engine.getGeneralSpec("x"); }},
    {"IntSpecBeforeMeasurableSpec", "norvex.spec:spec.measurable-2. norvex.spec:spec.int64-2.",
     [](const ParametersEngine& engine) { engine.getIntSpec("x"); }},
    {"MeasurableSpecBeforeReferenceSpec", "norvex.spec:spec.reference-1. norvex.spec:spec.measurable-2.",
     [](const ParametersEngine& engine) { engine.getMeasurableSpec("x"); }},
    {"ReferenceSpecBeforeStringSpec", "norvex.spec:spec.string-2. norvex.spec:spec.reference-1.",
     [](const ParametersEngine& engine) { engine.getReferenceSpec("x"); }},
    {"IntSpecBeforeStringSpec", "norvex.spec:spec.string-2. norvex.spec:spec.int64-2.",
     [](const ParametersEngine& engine) { engine.getIntSpec("x"); }},
    {"StringSpecBeforeEnumerationParameter", "norvex.parameter:parameter-2. norvex.spec:spec.string-2.",
     [](const ParametersEngine& engine) { engine.getStringSpec("x"); }},
    {"BoolParameterBeforeIntParameter", "norvex.parameter:parameter.int64-3. norvex.parameter:parameter.bool-2.",
     [](const ParametersEngine& engine) { engine.getBoolParameter("x"); }},
    {"IntParameterBeforeMeasurableParameter",
     "norvex.parameter:parameter.measurable-3. norvex.parameter:parameter.int64-3.",
     [](const ParametersEngine& engine) { engine.getIntParameter("x"); }},
    {"ReferenceParameterBeforeStringParameter",
     "norvex.parameter:parameter.string-3. norvex.parameter:parameter.reference-2.",
     [](const ParametersEngine& engine) { engine.getReferenceParameter("x"); }},
    {"StringParameterBeforeCategory", "norvex.talmo.category:majorCategory-1. norvex.parameter:parameter.string-3.",
     [](const ParametersEngine& engine) { engine.getStringParameter("x"); }},
    {"IntParameterBeforeStringParameter", "norvex.parameter:parameter.string-3. norvex.parameter:parameter.int64-3.",
     [](const ParametersEngine& engine) { engine.getIntParameter("x"); }},
    {"GeneralSpecBeforeBoolParameter", "norvex.parameter:parameter.bool-2. norvex.spec:spec-1.",
     [](const ParametersEngine& engine) { engine.getGeneralSpec("x"); }},
};

class Offering : public testing::TestWithParam<TwoBases> {};

TEST_P(Offering, GoesToTheFirstKindThatAccepts) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText("u"));
    engine.registerSchema(Support::schemaText("x", GetParam().base,
                                              R"({"id": "name", "value": "Name"}, {"id": "fromBottom", "value": true},
                                                 {"id": "fromTop", "value": true},
                                                 {"id": "storageUnit", "typedValue": {"typeid": "u"}})"));
    engine.resolveSchemas();
    EXPECT_NO_THROW(GetParam().lookUpX(engine));
}

INSTANTIATE_TEST_SUITE_P(RegisterSchema, Offering, testing::ValuesIn(twoBases), Support::nameOfRow);

TEST(RegisterSchema, OffersToMeasurableParametersBeforeReferenceParameters) {
    // A measurable parameter must name its spec, a reference parameter need not.
    EXPECT_EQ(messageOf<ValidationException>([] {
                  ParametersEngine().registerSchema(namedText(
                      "x", "norvex.parameter:parameter.reference-2. norvex.parameter:parameter.measurable-3.", "Name"));
              }),
              "Schema x has an undefined spec constant.");
}

TEST(RegisterSchema, EndsWithTheFirstKindThatRecognizesTheBase) {
    ParametersEngine engine;
    // Faulty as a general spec, by its discipline; a Boolean parameter would not look at that.
    const std::string text =
        Support::schemaText("x", "norvex.spec:spec-1. norvex.parameter:parameter.bool-2.",
                            R"({"id": "name", "value": "Name"}, {"id": "discipline", "value": 5})");
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(text); }), "A typedValue must be an object.");
    EXPECT_FALSE(engine.isRegistered("x"));
}

struct Fault {
    const char* name;
    std::string text;
    const char* message;
};

const Fault faults[] = {
    {"BaseOfNoKind", namedText("x", "some base", "Name"), "Inheritance from an unrecognized base schema."},
    {"BaseOfUnits", Support::unitText("x"), "Inheritance from an unrecognized base schema."},
    {"BaseThatIsARegisteredSchema", namedText("x", "known", "Name"), "Inheritance from an unrecognized base schema."},
    {"BaseThatIsTheSchemaItself", namedText("x", "x", "Name"), "Inheritance from an unrecognized base schema."},
    {"BaseWithoutTheDot", namedText("x", "norvex.spec:discipline-1", "Name"),
     "Inheritance from an unrecognized base schema."},
    {"BaseInOtherCase", namedText("x", "Norvex.spec:discipline-1.0.0", "Name"),
     "Inheritance from an unrecognized base schema."},
    {"TypeIdOfAnObject", groupText("known"), "Schema with typeid known is already registered."},
    {"TypeIdOfAPendingSchema", disciplineText("pending"), "Schema with typeid pending is already registered."},
    {"TypeIdOfAUnit", disciplineText("unit"), "Schema with typeid unit is already registered."},
    {"BuiltInTypeId", disciplineText("norvex.spec:discipline-1.0.0"),
     "Schema with typeid norvex.spec:discipline-1.0.0 is already registered."},
    {"BuiltInTypeIdInsideALongerText", groupText("our norvex.spec:spec.string-2.4.1"),
     "Schema with typeid our norvex.spec:spec.string-2.4.1 is already registered."},
    {"KnownTypeIdBeforeTheBase", namedText("known", "some base", "Name"),
     "Schema with typeid known is already registered."},
    {"KnownTypeIdBeforeTheKindsFaults", disciplineText("known", ""), "Schema with typeid known is already registered."},
    {"UnitsTypeIdBeforeTheKindsFaults", disciplineText("unit", ""), "Schema with typeid unit is already registered."},
    {"FaultsOfTheTextBeforeAKnownTypeId", R"({"typeid": "known"})", "Schema must specify an inheritance array."},
    {"EmptyTypeId", disciplineText(""), "The typeid string may not be empty."},
    {"NoObject", "[]", "Schema must specify a typeid string."},
    {"FaultOfADependentKind",
     Support::schemaText("x", "norvex.parameter:parameter.bool-2.0.0",
                         R"({"id": "name", "value": "Name"}, {"id": "readOnly", "value": 1})"),
     "Expected a Boolean value."},
    {"ConstantDefinedTwice",
     Support::schemaText("x", "norvex.spec:discipline-1.0.0",
                         R"({"id": "name", "value": "A"}, {"id": "name", "value": "B"})"),
     "Item name in constants array must be defined only once."},
};

class RefusedText : public testing::TestWithParam<Fault> {};

TEST_P(RefusedText, NamesTheFaultAndLeavesTheEngineAsItWas) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("known", "Name"));
    engine.registerSchema(groupText("pending"));
    engine.getUnitsEngine().registerSchema(Support::unitText("unit"));
    const TypeIds typeIds{"known", "pending", "unit", "x", ""};
    const std::string before = pictureOf(engine, typeIds);
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(GetParam().text); }), GetParam().message);
    EXPECT_EQ(pictureOf(engine, typeIds), before);
}

INSTANTIATE_TEST_SUITE_P(RegisterSchema, RefusedText, testing::ValuesIn(faults), Support::nameOfRow);

TEST(RegisterSchema, DoesNotLookWhetherWhatIsNamedIsOfTheRightKind) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("d", "Name"));
    EXPECT_NO_THROW(engine.registerSchema(boolParameterText("p", "d", "d")));
}

TEST(RegisterSchema, TakesASchemaInALoadedEngine) {
    ParametersEngine engine;
    engine.registerSchemas({{"d", disciplineText("d")}});
    EXPECT_EQ(engine.registerSchema(boolSpecText("s", "d")), nothing);
    EXPECT_EQ(engine.registerSchema(boolSpecText("t", "x")), Missing({"x"}, {}));
}

} // namespace
