#include "KindOperations.h"
#include "support/Messages.h"
#include "support/Picture.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

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
using Support::pictureOf;

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

struct RegisterSchemaOfEachKind : testing::TestWithParam<KindOperations> {
    ParametersEngine engine;
};

TEST_P(RegisterSchemaOfEachKind, MissesNothingForASchemaThatNamesNothing) {
    EXPECT_EQ(engine.registerSchema(GetParam().text("x")), nothing);
}

TEST_P(RegisterSchemaOfEachKind, RefusesATextTwice) {
    const std::string text = GetParam().text("x");
    engine.registerSchema(text);
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(text); }),
              "Schema with typeid x is already registered.");
    engine.resolveSchemas();
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(text); }),
              "Schema with typeid x is already registered.");
}

TEST_P(RegisterSchemaOfEachKind, RefusesATypeIdOfAnyKind) {
    for (const KindOperations& first : everyKind) {
        engine = ParametersEngine();
        engine.registerSchema(first.text("x", "1"));
        EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(GetParam().text("x", "2")); }),
                  "Schema with typeid x is already registered.")
            << first.name;
        engine.resolveSchemas();
        EXPECT_EQ(first.contentOf(engine, "x"), "1");
    }
}

TEST_P(RegisterSchemaOfEachKind, FilesNothingOfAMalformedSchema) {
    const std::string before = pictureOf(engine, {"x"});
    EXPECT_EQ(
        messageOf<ValidationException>([&] { engine.registerSchema(Support::schemaText("x", GetParam().base, "")); }),
        GetParam().bareX);
    EXPECT_EQ(pictureOf(engine, {"x"}), before);
}

TEST_P(RegisterSchemaOfEachKind, TakesATypeIdThatWasRefusedBefore) {
    messageOf<ValidationException>([&] { engine.registerSchema(Support::schemaText("x", GetParam().base, "")); });
    engine.registerSchema(GetParam().text("x", "1"));
    engine.resolveSchemas();
    EXPECT_EQ(GetParam().contentOf(engine, "x"), "1");
}

/// What holds for the kinds whose base has a version: all but enumerations.
struct RegisterSchemaOfAVersion : RegisterSchemaOfEachKind {
    const std::string base = GetParam().base;
};

TEST_P(RegisterSchemaOfAVersion, ReadsItsBaseInOtherMinorVersions) {
    engine.registerSchema(GetParam().textOf("x", base.substr(0, base.size() - 3) + "9.3", "1"));
    engine.resolveSchemas();
    EXPECT_EQ(GetParam().typeIds(engine), std::vector<std::string>{"x"});
}

TEST_P(RegisterSchemaOfAVersion, ReadsItsBaseInsideALongerText) {
    engine.registerSchema(GetParam().textOf("x", "our " + base + " of old", "1"));
    engine.resolveSchemas();
    EXPECT_EQ(GetParam().typeIds(engine), std::vector<std::string>{"x"});
}

TEST_P(RegisterSchemaOfAVersion, DoesNotReadAnotherMajorVersionOfItsBase) {
    const std::string text = GetParam().textOf("x", base.substr(0, base.size() - 5) + "7.0.0", "1");
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(text); }),
              "Inheritance from an unrecognized base schema.");
    EXPECT_FALSE(engine.isRegistered("x"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, RegisterSchemaOfEachKind, testing::ValuesIn(everyKind), Support::nameOfRow);
INSTANTIATE_TEST_SUITE_P(Kinds, RegisterSchemaOfAVersion, testing::ValuesIn(kindsThat(&KindOperations::hasVersions)),
                         Support::nameOfRow);

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

void PrintTo(const Fault& row, std::ostream* out) { *out << row.name; }

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
