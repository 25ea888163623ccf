#include "support/Faults.h"
#include "support/Engines.h"
#include "support/KindTypes.h"
#include "support/Messages.h"
#include "support/Picture.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"
#include "support/Sentences.h"

#include <parameters/ParametersEngine.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Parameters::Fault;
using Parameters::ParametersEngine;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::constant;
using Support::disciplineText;
using Support::domainText;
using Support::engineWithUnits;
using Support::faultsOf;
using Support::groupText;
using Support::Lines;
using Support::linesOf;
using Support::majorCategoryText;
using Support::measurableSpecText;
using Support::pictureOf;
using Support::referenceSpecText;
using Support::schemaText;
using Support::subCategoryText;
using Support::Texts;
using Support::typedConstant;
using Support::unitText;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::is_nothrow_copy_constructible_v<Fault>);
static_assert(std::is_nothrow_copy_assignable_v<Fault>);
static_assert(!std::is_default_constructible_v<Fault>);

const std::string discipline = "norvex.spec:discipline-1.0.0";
const std::string name = R"({"id":"name","value":"N"})";

// What a fault is.

TEST(Fault, AnswersEverythingAboutItself) {
    const Texts texts{{"a file", boolSpecText("s", "d")}};
    const auto faults = ParametersEngine().findFaults(texts);
    ASSERT_EQ(faults.size(), 1U);
    const Fault& fault = faults[0];
    EXPECT_EQ(fault.code(), "dependency-missing");
    EXPECT_EQ(fault.severity(), Fault::Severity::error);
    EXPECT_TRUE(fault.isError());
    EXPECT_EQ(fault.message(), Support::unresolvable("d", "s"));
    EXPECT_EQ(fault.typeId(), "s");
    EXPECT_EQ(fault.place().text, "a file");
    EXPECT_EQ(fault.place().pointer, "/constants/1/typedValue/typeid");
    EXPECT_EQ(Support::bytesOf(fault.place(), texts), "\"d\"");
    EXPECT_EQ(fault.name(), "d");
    EXPECT_EQ(fault.expectedKind(), "discipline");
    EXPECT_EQ(fault.nearestName(), "");
    EXPECT_FALSE(fault.otherPlace());
    EXPECT_FALSE(fault.root());
}

TEST(Fault, OutlivesTheEngineAndItsCopies) {
    std::vector<Fault> faults;
    {
        const ParametersEngine engine;
        faults = engine.findFaults({{"t", groupText("g", "")}});
    }
    Fault copy = faults.at(0);
    Fault other = engineWithUnits({"u"}).findFaults({{"v", unitText("u")}}).at(0);
    faults.clear();
    EXPECT_EQ(copy.message(), "Expected a non-empty string.");
    other = std::move(copy);
    EXPECT_EQ(other.place().text, "t");
    EXPECT_EQ(copy.place().text, "t"); // moving copies
}

// Several faults at once.

TEST(FindFaults, FindsNothingInNothing) { EXPECT_THAT(ParametersEngine().findFaults({}), IsEmpty()); }

TEST(FindFaults, FindsNothingInSoundTexts) {
    EXPECT_EQ(faultsOf({{"1", boolParameterText("p", "g", "s")},
                        {"2", boolSpecText("s", "d")},
                        {"3", groupText("g")},
                        {"4", disciplineText("d")},
                        {"5", measurableSpecText("m", "u", {"u"})},
                        {"6", unitText("u")}}),
              Lines());
}

TEST(FindFaults, TellsEveryConstantThatIsWrongInTheOrderOfReading) {
    EXPECT_EQ(faultsOf({{"t", schemaText("x", "norvex.parameter:parameter.int64-3.0.0",
                                         constant("readOnly", "1") + "," + constant("name", "\"\"") + "," +
                                             constant("description", "2") + "," + constant("sampleText", "3") + "," +
                                             constant("group", "4") + "," + constant("spec", "5") + "," +
                                             constant("range", "{}"))}}),
              (Lines{"non-empty-string-expected name at t:/constants/1/value \"\"",
                     "string-expected description at t:/constants/2/value 2",
                     "string-expected sampleText at t:/constants/3/value 3",
                     "typed-value-object-expected group at t:/constants/4/value 4",
                     "boolean-expected readOnly at t:/constants/0/value 1",
                     "typed-value-object-expected spec at t:/constants/5/value 5",
                     "range-typeid-missing typeid at t:/constants/6/value {}"}));
}

TEST(FindFaults, TellsOfAConsequenceTheFirstFaultOfWhatIsNamed) {
    EXPECT_EQ(faultsOf({{"1", schemaText("g", "norvex.parameter:group-1.0.0", constant("name", "1") + ",2")},
                        {"2", boolParameterText("p", "g", "norvex.spec:spec.bool-1.0.0")}}),
              (Lines{"definition-object-expected at 1:/constants/1 2",
                     "non-empty-string-expected name at 1:/constants/0/value 1",
                     "dependency-missing g needs group at 2:/constants/1/typedValue/typeid \"g\" beside 1:/typeid "
                     "after 1:/constants/1"}));
}

TEST(FindFaults, TellsFaultsOfStructureConstantsAndNamesOfOneText) {
    const std::string text = R"({"typeid":"x","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[0,)"
                             R"({"id":"name"},{"value":1},{"id":"name","value":"N"},)"
                             R"({"id":"spec","typedValue":{"typeid":"s"}},{"id":"extra","value":[]}],)"
                             R"("properties":7,"more":{}})";
    EXPECT_EQ(faultsOf({{"t", text}}),
              (Lines{"definition-object-expected at t:/constants/0 0",
                     "definition-id-missing id at t:/constants/2 {\"value\":1}",
                     "definition-duplicate name at t:/constants/3/id \"name\" beside t:/constants/1/id",
                     "definitions-array-expected properties at t:/properties 7",
                     "definition-value-missing value at t:/constants/1 {\"id\":\"name\"}",
                     "warning constant-unknown extra at t:/constants/5/id \"extra\"",
                     "warning member-unknown more at t:/more {}",
                     "dependency-missing s needs Boolean spec at t:/constants/4/typedValue/typeid \"s\""}));
}

TEST(FindFaults, TellsThatNothingReadsAConstantThatStandsTwice) {
    EXPECT_EQ(faultsOf({{"t", schemaText("x", "norvex.parameter:group-1.0.0",
                                         name + R"(,{"id":"extra","value":1},{"id":"extra","value":2},)"
                                                R"({"id":"extras","value":3})")}}),
              (Lines{"definition-duplicate extra at t:/constants/2/id \"extra\" beside t:/constants/1/id",
                     "warning constant-unknown extra at t:/constants/1/id \"extra\"",
                     "warning constant-unknown extras at t:/constants/3/id \"extras\""}));
}

TEST(FindFaults, TellsEveryElementOfAListThatIsWrong) {
    const std::string disciplines = R"({"id":"disciplines","typedValue":[1,{"typeid":"d"},{"typeid":""},)"
                                    R"({"typeid":"norvex.spec:discipline-1.0.0"},{}]})";
    EXPECT_EQ(faultsOf({{"t", schemaText("x", "norvex.talmo.category:majorCategory-1.0.0", name + "," + disciplines)}}),
              (Lines{"typed-value-object-expected disciplines at t:/constants/1/typedValue/0 1",
                     "typed-value-typeid-empty disciplines at t:/constants/1/typedValue/2/typeid \"\"",
                     "typed-value-typeid-only disciplines at t:/constants/1/typedValue/4 {}",
                     "constant-undefined domain at t:/constants [" + name + "," + disciplines + "]",
                     "dependency-missing d needs discipline at t:/constants/1/typedValue/1/typeid \"d\""}));
}

TEST(FindFaults, TellsEveryChoiceThatIsWrongInTheOrderOfTheirIds) {
    EXPECT_EQ(faultsOf({{"t", R"({"typeid":"x","inherits":["Enum"],"properties":[{"id":"C","value":1.5},)"
                              R"({"id":"A"},{"id":"","value":null},{"id":"B","value":2}]})"}}),
              (Lines{"enumeration-id-empty at t:/properties/2/id \"\"",
                     "enumeration-integer-missing at t:/properties/2/value null",
                     "enumeration-integer-missing A at t:/properties/1 {\"id\":\"A\"}",
                     "enumeration-integer-missing C at t:/properties/0/value 1.5"}));
}

TEST(FindFaults, SaysNothingOfABoundaryOf0OnASideThatHasNoBound) {
    const std::string flags = constant("fromBottom", "false") + "," + constant("fromTop", "false") + ",";
    EXPECT_EQ(
        faultsOf(
            {{"1", schemaText("i", "norvex.range:range.int64.bounded.static-1.0.0",
                              flags + constant("bottomBoundary", "0") + "," + constant("topBoundary", "-0"))},
             {"2", schemaText("f", "norvex.range:range.float64.bounded.static-1.0.0",
                              flags + constant("bottomBoundary", "0.0") + "," + constant("topBoundary", "-0e7"))}}),
        Lines());
}

TEST(FindFaults, SaysNothingOfARangeOfOneNumber) {
    EXPECT_EQ(faultsOf({{"1", schemaText("i", "norvex.range:range.int64.bounded.static-1.0.0",
                                         constant("fromBottom", "true") + "," + constant("fromTop", "true") + "," +
                                             constant("bottomBoundary", "7") + "," + constant("topBoundary", "7"))}}),
              Lines());
}

TEST(FindFaults, TellsNothingOfWhatIsInAValueThatIsWrongAsAWhole) {
    EXPECT_EQ(faultsOf({{"t", schemaText("x", "norvex.parameter:group-1.0.0",
                                         R"({"id":"name","value":{"Value":{"more":1},"id":2}})")}}),
              (Lines{"non-empty-string-expected name at t:/constants/0/value {\"Value\":{\"more\":1},\"id\":2}"}));
}

TEST(FindFaults, ListsTextsByTheirKeys) {
    const Texts texts{{"b", "{"}, {"a", "["}, {"", "x"}, {"\xff", "1"}};
    std::vector<std::string> keys;
    for (const Fault& fault : ParametersEngine().findFaults(texts)) {
        keys.push_back(fault.place().text);
    }
    EXPECT_THAT(keys, ElementsAre("", "a", "b", "\xff"));
}

TEST(FindFaults, TellsNoMoreOfATextWithoutABaseThatIsKnown) {
    EXPECT_EQ(faultsOf({{"1", R"({"typeid":"x","inherits":["b"],"constants":[{"id":"name","valeu":1}],"more":1})"},
                        {"2", R"({"typeid":"y","constants":[0]})"}}),
              (Lines{"base-unrecognized b at 1:/inherits/0 \"b\"",
                     R"(inherits-missing inherits at 2: {"typeid":"y","constants":[0]})"}));
}

// What holds for every kind.

template <class Kind>
class FaultsOfKind : public testing::Test {};

TYPED_TEST_SUITE(FaultsOfKind, Support::TestedKinds<Parameters::Kinds::All>, Support::NameOfKind);

TYPED_TEST(FaultsOfKind, AreNoneInTheSamples) {
    for (const Support::Shape& shape : Support::shapesOf<TypeParam>()) {
        ParametersEngine engine;
        Support::stock(engine, shape);
        EXPECT_EQ(faultsOf({{"t", shape.text("x", "1", Support::nameTheLeast)}}, engine), Lines()) << shape.name;
    }
}

TYPED_TEST(FaultsOfKind, BeginWithTheOneThatIsThrown) {
    for (const std::string_view base : TypeParam::info.bases()) {
        const std::string text = R"({"typeid":"x","inherits":[")" + std::string(base) + "\"]}";
        ParametersEngine engine;
        const auto errors = Support::errorsAmong(engine.findFaults({{"t", text}}));
        std::string thrown;
        try {
            engine.registerSchemas({{"t", text}});
        } catch (const std::logic_error& exception) {
            thrown = exception.what();
        }
        EXPECT_EQ(errors.empty() ? "" : errors.front(), thrown) << base;
    }
}

/// Returns the typeid under which a reference names what is not there.
std::string missingId(const Support::Reference& reference) { return "no " + std::string(reference.id); }

TYPED_TEST(FaultsOfKind, NameEveryReferenceToWhatIsNotThereOnce) {
    for (const Support::Shape& shape : Support::shapesOf<TypeParam>()) {
        const Texts texts{{"t", shape.text("x", "1", missingId)}};
        std::vector<std::string> named;
        for (const Fault& fault : ParametersEngine().findFaults(texts)) {
            named.push_back(fault.name());
            EXPECT_EQ(Support::bytesOf(fault.place(), texts), Support::quoted(fault.name())) << shape.name;
            EXPECT_TRUE(fault.code() == "dependency-missing" || fault.code() == "unit-missing") << fault.code();
            const auto reference =
                std::find_if(shape.form.references.begin(), shape.form.references.end(),
                             [&](const Support::Reference& each) { return missingId(each) == fault.name(); });
            ASSERT_NE(reference, shape.form.references.end()) << fault.name();
            EXPECT_EQ(fault.expectedKind(), reference->kind ? reference->kind->word() : "unit") << shape.name;
        }
        std::vector<std::string> expected;
        for (const Support::Reference& reference : shape.form.references) {
            expected.push_back(missingId(reference));
        }
        EXPECT_THAT(named, testing::UnorderedElementsAreArray(expected)) << shape.name;
    }
}

TYPED_TEST(FaultsOfKind, TellWhatNothingReads) {
    for (const Support::Shape& shape : Support::shapesOf<TypeParam>()) {
        ParametersEngine engine;
        Support::stock(engine, shape);
        std::string text = shape.text("x", "1", Support::nameTheLeast);
        text.insert(1, R"("more":[{"id":"a"}],)");
        const std::string constants = R"("constants": [)";
        const std::size_t begin = text.find(constants) + constants.size();
        text.insert(begin, std::string(R"({"id":"qqqqqqqqqqqqq","value":{"a":1}})") + (text[begin] == ']' ? "" : ","));
        EXPECT_EQ(faultsOf({{"t", text}}, engine),
                  (Lines{"warning member-unknown more at t:/more [{\"id\":\"a\"}]",
                         "warning constant-unknown qqqqqqqqqqqqq at t:/constants/0/id \"qqqqqqqqqqqqq\""}))
            << text;
    }
}

TYPED_TEST(FaultsOfKind, AreToldOfATypeIdThatIsTaken) {
    for (const Support::Shape& shape : Support::shapesOf<TypeParam>()) {
        ParametersEngine engine;
        Support::stock(engine, shape);
        const std::string text = shape.text("x", "1", Support::nameTheLeast);
        EXPECT_EQ(faultsOf({{"1", text}, {"2", text}, {"3", text}}, engine),
                  (Lines{"typeid-taken x at 2:/typeid \"x\" beside 1:/typeid",
                         "typeid-taken x at 3:/typeid \"x\" beside 1:/typeid"}));
    }
}

TYPED_TEST(FaultsOfKind, KeepOutWhatHasThemAlone) {
    ParametersEngine engine;
    Support::stock(engine, Support::mainShapeOf<TypeParam>());
    const std::string sound = Support::sampleText<TypeParam>("sound");
    const Texts texts{{"1", Support::sampleText<TypeParam>("x").insert(1, "?")}, {"2", sound}, {"3", sound}};
    EXPECT_EQ(engine.registerSoundSchemas(texts).size(), 2U);
    EXPECT_THAT(Support::typeIdsIn<TypeParam>(engine), ElementsAre("sound"));
}

// What texts name.

TEST(FaultsOfNames, AreNoneWhereWhatIsNamedIsInTheEngine) {
    ParametersEngine engine = engineWithUnits({"u"});
    engine.registerDiscipline({"d", "D"});
    engine.registerSchema(domainText("pending domain"));
    EXPECT_EQ(faultsOf({{"1", boolSpecText("s", "d")},
                        {"2", majorCategoryText("m", "pending domain", {"d", discipline})},
                        {"3", measurableSpecText("ms", "u", {"u"})}},
                       engine),
              Lines());
}

TEST(FaultsOfNames, AreNoneWhereUnitsArePending) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(unitText("u"));
    EXPECT_EQ(faultsOf({{"1", measurableSpecText("m", "u", {"u"})}}, engine), Lines());
}

TEST(FaultsOfNames, SayWhatHadToBeThere) {
    EXPECT_EQ(faultsOf({{"1", measurableSpecText("m", "u", {"v"}, "d")}, {"2", referenceSpecText("r", "c")}}),
              (Lines{"unit-missing u needs unit at 1:/constants/3/typedValue/typeid \"u\"",
                     "unit-missing v needs unit at 1:/constants/2/typedValue/0/typeid \"v\"",
                     "dependency-missing d needs discipline at 1:/constants/1/typedValue/typeid \"d\"",
                     "dependency-missing c needs category at 2:/constants/1/typedValue/typeid \"c\""}));
}

TEST(FaultsOfNames, ShowWhatIsOfAnotherKind) {
    EXPECT_EQ(faultsOf({{"1", boolSpecText("s", "g")}, {"2", groupText("g")}}),
              (Lines{"dependency-missing g needs discipline at 1:/constants/1/typedValue/typeid \"g\" "
                     "beside 2:/typeid"}));
}

TEST(FaultsOfNames, OfAnotherKindAreNoConsequencesOfItsFaults) {
    EXPECT_EQ(faultsOf({{"1", boolSpecText("s", "g")}, {"2", groupText("g", "")}}),
              (Lines{"dependency-missing g needs discipline at 1:/constants/1/typedValue/typeid \"g\" "
                     "beside 2:/typeid",
                     "non-empty-string-expected name at 2:/constants/0/value \"\""}));
}

TEST(FaultsOfNames, AreConsequencesOfTheFaultsOfWhatIsNamed) {
    EXPECT_EQ(faultsOf({{"1", boolSpecText("s", "d")}, {"2", disciplineText("d", "")}}),
              (Lines{"dependency-missing d needs discipline at 1:/constants/1/typedValue/typeid \"d\" "
                     "beside 2:/typeid after 2:/constants/0/value",
                     "non-empty-string-expected name at 2:/constants/0/value \"\""}));
}

TEST(FaultsOfNames, AreConsequencesOfATextWithoutAKnownBase) {
    EXPECT_EQ(
        faultsOf({{"1", boolSpecText("s", "d")}, {"2", Support::namedText("d", "norvex.spec:disciplin-1.0.0", "N")}}),
        (Lines{"dependency-missing d needs discipline at 1:/constants/1/typedValue/typeid \"d\" "
               "beside 2:/typeid after 2:/inherits/0",
               "base-unrecognized norvex.spec:disciplin-1.0.0 at 2:/inherits/0 \"norvex.spec:disciplin-1.0.0\""}));
}

TEST(FaultsOfNames, AreNoConsequencesOfAFaultyUnitWhereSomethingElseHadToBe) {
    EXPECT_EQ(faultsOf({{"1", boolSpecText("s", "u")}, {"2", unitText("u", "")}}),
              (Lines{"dependency-missing u needs discipline at 1:/constants/1/typedValue/typeid \"u\" "
                     "beside 2:/typeid",
                     "non-empty-string-expected name at 2:/constants/0/value \"\""}));
}

TEST(FaultsOfNames, AreConsequencesOfUnitsThatAreFaulty) {
    EXPECT_EQ(faultsOf({{"1", measurableSpecText("m", "u", {"u"})}, {"2", unitText("u", "")}}),
              (Lines{"unit-missing u needs unit at 1:/constants/3/typedValue/typeid \"u\" beside 2:/typeid after "
                     "2:/constants/0/value",
                     "unit-missing u needs unit at 1:/constants/2/typedValue/0/typeid \"u\" beside 2:/typeid after "
                     "2:/constants/0/value",
                     "non-empty-string-expected name at 2:/constants/0/value \"\""}));
}

TEST(FaultsOfNames, AreNoConsequencesOfTextsThatHaveNoTypeid) {
    EXPECT_EQ(faultsOf({{"1", boolSpecText("s", "d")}, {"2", R"({"typeid": "d", )"}}),
              (Lines{"dependency-missing d needs discipline at 1:/constants/1/typedValue/typeid \"d\"",
                     "json-syntax at 2: "}));
}

TEST(FaultsOfNames, LeadThroughAChainToItsRoot) {
    EXPECT_EQ(faultsOf({{"1", schemaText("p", "norvex.parameter:parameter.reference-2.0.0",
                                         name + "," + typedConstant("spec", "r"))},
                        {"2", referenceSpecText("r", "sub")},
                        {"3", subCategoryText("sub", "major")},
                        {"4", majorCategoryText("major", "no")}}),
              (Lines{"dependency-missing r needs reference spec at 1:/constants/1/typedValue/typeid \"r\" "
                     "beside 2:/typeid after 4:/constants/1/typedValue/typeid",
                     "dependency-missing sub needs category at 2:/constants/1/typedValue/typeid \"sub\" "
                     "beside 3:/typeid after 4:/constants/1/typedValue/typeid",
                     "dependency-missing major needs category at 3:/constants/1/typedValue/typeid \"major\" "
                     "beside 4:/typeid after 4:/constants/1/typedValue/typeid",
                     "dependency-missing no needs domain at 4:/constants/1/typedValue/typeid \"no\""}));
}

TEST(FaultsOfNames, LeadToTheFaultThatIsNoConsequenceItself) {
    EXPECT_EQ(faultsOf({{"1", boolParameterText("p", "norvex.parameter:group-1.0.0", "s")},
                        {"2", boolSpecText("s", "d").insert(1, R"("more":1,)")},
                        {"3", disciplineText("d", "")}}),
              (Lines{"dependency-missing s needs Boolean spec at 1:/constants/2/typedValue/typeid \"s\" "
                     "beside 2:/typeid after 3:/constants/0/value",
                     "warning member-unknown more at 2:/more 1",
                     "dependency-missing d needs discipline at 2:/constants/1/typedValue/typeid \"d\" "
                     "beside 3:/typeid after 3:/constants/0/value",
                     "non-empty-string-expected name at 3:/constants/0/value \"\""}));
}

TEST(FaultsOfNames, PreferAFaultOfItsOwnForTheRoot) {
    // The spec has a consequence and a fault of its own: mending the discipline alone would not do.
    EXPECT_EQ(faultsOf({{"1", boolParameterText("p", "norvex.parameter:group-1.0.0", "s")},
                        {"2", schemaText("s", "norvex.spec:spec.bool-1.0.0", typedConstant("discipline", "d"))},
                        {"3", disciplineText("d", "")}}),
              (Lines{"dependency-missing s needs Boolean spec at 1:/constants/2/typedValue/typeid \"s\" "
                     "beside 2:/typeid after 2:/constants",
                     R"(constant-undefined name at 2:/constants [{"id": "discipline", "typedValue": {"typeid": "d"}}])",
                     "dependency-missing d needs discipline at 2:/constants/0/typedValue/typeid \"d\" "
                     "beside 3:/typeid after 3:/constants/0/value",
                     "non-empty-string-expected name at 3:/constants/0/value \"\""}));
}

TEST(FaultsOfNames, PreferALaterFaultOfItsOwnForTheRoot) {
    EXPECT_EQ(faultsOf({{"1", subCategoryText("sub", "major")},
                        {"2", majorCategoryText("major", "faulty", {"no"})},
                        {"3", domainText("faulty", "")}}),
              (Lines{"dependency-missing major needs category at 1:/constants/1/typedValue/typeid \"major\" "
                     "beside 2:/typeid after 2:/constants/2/typedValue/0/typeid",
                     "dependency-missing faulty needs domain at 2:/constants/1/typedValue/typeid \"faulty\" "
                     "beside 3:/typeid after 3:/constants/0/value",
                     "dependency-missing no needs discipline at 2:/constants/2/typedValue/0/typeid \"no\"",
                     "non-empty-string-expected name at 3:/constants/0/value \"\""}));
}

TEST(FaultsOfNames, AreFoundInTextsThatHaveOtherFaultsToo) {
    EXPECT_EQ(faultsOf({{"t", schemaText("s", "norvex.spec:spec.bool-1.0.0",
                                         constant("name", "\"\"") + "," + typedConstant("discipline", "d"))}}),
              (Lines{"non-empty-string-expected name at t:/constants/0/value \"\"",
                     "dependency-missing d needs discipline at t:/constants/1/typedValue/typeid \"d\""}));
}

TEST(FaultsOfNames, AreToldOfACategoryThatIsItsOwnParent) {
    EXPECT_EQ(
        faultsOf({{"t", subCategoryText("x", "x")}}),
        (Lines{"dependency-missing x needs category at t:/constants/1/typedValue/typeid \"x\" beside t:/typeid"}));
}

TEST(FaultsOfNames, AreToldOfTwoCategoriesThatAreEachOthersParent) {
    EXPECT_EQ(
        faultsOf({{"1", subCategoryText("a", "b")}, {"2", subCategoryText("b", "a")}}),
        (Lines{"dependency-missing b needs category at 1:/constants/1/typedValue/typeid \"b\" beside 2:/typeid",
               "dependency-missing a needs category at 2:/constants/1/typedValue/typeid \"a\" beside 1:/typeid"}));
}

TEST(FaultsOfNames, AreToldOfASubcategoryBelowAnother) {
    EXPECT_EQ(faultsOf({{"0", domainText("d")},
                        {"1", majorCategoryText("m", "d")},
                        {"2", subCategoryText("a", "m")},
                        {"3", subCategoryText("b", "a")}}),
              (Lines{"parent-not-major a needs category at 3:/constants/1/typedValue/typeid \"a\" beside 2:/typeid"}));
}

TEST(FaultsOfNames, OfOneTypeIdHaveEachTheirOwnPlace) {
    EXPECT_EQ(faultsOf({{"1", majorCategoryText("m", "x", {"x"})},
                        {"2", measurableSpecText("s", "u", {"v", "u"})},
                        {"3", boolParameterText("p", "y", "y")}}),
              (Lines{"dependency-missing x needs domain at 1:/constants/1/typedValue/typeid \"x\"",
                     "dependency-missing x needs discipline at 1:/constants/2/typedValue/0/typeid \"x\"",
                     "unit-missing u needs unit at 2:/constants/3/typedValue/typeid \"u\"",
                     "unit-missing v needs unit at 2:/constants/2/typedValue/0/typeid \"v\"",
                     "unit-missing u needs unit at 2:/constants/2/typedValue/1/typeid \"u\"",
                     "dependency-missing y needs group at 3:/constants/1/typedValue/typeid \"y\"",
                     "dependency-missing y needs Boolean spec at 3:/constants/2/typedValue/typeid \"y\""}));
}

TEST(FaultsOfNames, HaveTheirPlaceWhereADefaultHasTheSameTypeIdToo) {
    EXPECT_EQ(faultsOf({{"t", schemaText("p", "norvex.parameter:parameter.bool-2.0.0",
                                         name + "," + typedConstant("spec", "norvex.parameter:group-1.0.0"))}}),
              (Lines{"dependency-missing norvex.parameter:group-1.0.0 needs Boolean spec at "
                     "t:/constants/1/typedValue/typeid \"norvex.parameter:group-1.0.0\""}));
}

TEST(FaultsOfNames, ThatStandTwiceInAListAreToldTwice) {
    EXPECT_EQ(faultsOf({{"0", domainText("d")}, {"1", majorCategoryText("m", "d", {"x", "x"})}}),
              (Lines{"warning typeid-repeated x at 1:/constants/2/typedValue/1/typeid \"x\" beside "
                     "1:/constants/2/typedValue/0/typeid",
                     "dependency-missing x needs discipline at 1:/constants/2/typedValue/0/typeid \"x\"",
                     "dependency-missing x needs discipline at 1:/constants/2/typedValue/1/typeid \"x\""}));
}

// Typeids that are taken.

TEST(TypeIdsTaken, AreThoseOfWhatTheEngineHolds) {
    ParametersEngine engine = engineWithUnits({"unit"});
    engine.registerGroup({"object", "G"});
    engine.registerSchema(groupText("pending"));
    engine.getUnitsEngine().registerSchema(unitText("pending unit"));
    EXPECT_EQ(
        faultsOf({{"1", groupText("object")},
                  {"2", unitText("pending")},
                  {"3", groupText("unit")},
                  {"4", unitText("pending unit")},
                  {"5", disciplineText("norvex.parameter:group-1.0.0")}},
                 engine),
        (Lines{"typeid-taken object at 1:/typeid \"object\"", "typeid-taken pending at 2:/typeid \"pending\"",
               "typeid-taken unit at 3:/typeid \"unit\"", "typeid-taken pending unit at 4:/typeid \"pending unit\"",
               "typeid-taken norvex.parameter:group-1.0.0 at 5:/typeid \"norvex.parameter:group-1.0.0\""}));
}

TEST(TypeIdsTaken, AreThoseOfEarlierTextsUnitsIncluded) {
    EXPECT_EQ(faultsOf({{"1", unitText("x")}, {"2", groupText("x")}, {"3", unitText("x")}}),
              (Lines{"typeid-taken x at 2:/typeid \"x\" beside 1:/typeid",
                     "typeid-taken x at 3:/typeid \"x\" beside 1:/typeid"}));
}

TEST(TypeIdsTaken, AreThoseOfEarlierTextsThatAreFaulty) {
    EXPECT_EQ(faultsOf({{"1", groupText("x", "")}, {"2", groupText("x")}}),
              (Lines{"non-empty-string-expected name at 1:/constants/0/value \"\"",
                     "typeid-taken x at 2:/typeid \"x\" beside 1:/typeid"}));
}

TEST(TypeIdsTaken, AreToldBesideOtherFaults) {
    EXPECT_EQ(
        faultsOf({{"1", groupText("x")},
                  {"2", schemaText("x", "norvex.parameter:group-1.0.0", R"(0,{"id":"nam","value":1})")}}),
        (Lines{"definition-object-expected at 2:/constants/0 0", "typeid-taken x at 2:/typeid \"x\" beside 1:/typeid",
               "constant-undefined name near nam at 2:/constants/1/id \"nam\""}));
}

// What stays as it was.

ParametersEngine busyEngine() {
    ParametersEngine engine = engineWithUnits({"u"});
    engine.registerDiscipline({"d", "D"});
    engine.registerSchema(boolSpecText("pending", "d"));
    engine.registerSchema(boolSpecText("unresolvable", "later"));
    engine.getUnitsEngine().registerSchema(unitText("pending unit"));
    return engine;
}

const std::set<std::string> busyIds{"u", "d", "pending", "unresolvable", "later", "pending unit", "new", "bad", "v"};

/// Texts that are sound, faulty, of units, and one that an older pending schema waits for.
const Texts manyTexts{{"1", boolSpecText("new", "d")},
                      {"2", boolSpecText("bad", "no")},
                      {"3", unitText("v")},
                      {"4", unitText("w", "")},
                      {"5", disciplineText("later")},
                      {"6", "?JSON"},
                      {"7", boolSpecText("new", "d")},
                      {"8", measurableSpecText("m", "v", {"pending unit"})},
                      {"9", boolParameterText("p", "norvex.parameter:group-1.0.0", "pending")}};

const Lines faultsOfManyTexts{"dependency-missing no needs discipline at 2:/constants/1/typedValue/typeid \"no\"",
                              "non-empty-string-expected name at 4:/constants/0/value \"\"", "json-syntax at 6: ?JSON",
                              "typeid-taken new at 7:/typeid \"new\" beside 1:/typeid"};

TEST(FindFaults, ChangesNothing) {
    const ParametersEngine engine = busyEngine();
    const std::string before = pictureOf(engine, busyIds);
    EXPECT_EQ(faultsOf(manyTexts, engine), faultsOfManyTexts);
    EXPECT_EQ(pictureOf(engine, busyIds), before);
    EXPECT_EQ(faultsOf(manyTexts, engine), faultsOfManyTexts);
}

TEST(FindFaults, LeavesUnitsPending) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(unitText("u"));
    EXPECT_EQ(faultsOf({{"1", unitText("v")}}, engine), Lines());
    EXPECT_TRUE(engine.getUnitsEngine().getAllUnits().empty());
    EXPECT_FALSE(engine.isRegistered("v"));
}

TEST(FindFaults, SaysNothingOfWhatIsPendingInTheEngine) {
    ParametersEngine engine;
    engine.registerSchema(boolSpecText("pending", "no"));
    EXPECT_EQ(faultsOf({{"1", groupText("g")}}, engine), Lines());
}

TEST(FindFaults, TellsOfATextThatNamesWhatIsPendingAndCannotBeBuilt) {
    ParametersEngine engine;
    engine.registerSchema(boolSpecText("pending", "no"));
    EXPECT_EQ(faultsOf({{"1", boolParameterText("p", "norvex.parameter:group-1.0.0", "pending")}}, engine),
              (Lines{"dependency-missing pending needs Boolean spec at 1:/constants/2/typedValue/typeid \"pending\""}));
}

TEST(FindFaults, LetsTextsCompleteWhatIsPending) {
    ParametersEngine engine;
    engine.registerSchema(boolSpecText("pending", "d"));
    EXPECT_EQ(
        faultsOf({{"1", boolParameterText("p", "norvex.parameter:group-1.0.0", "pending")}, {"2", disciplineText("d")}},
                 engine),
        Lines());
}

TEST(RegisterSoundSchemas, RegistersWhatIsSoundAndReturnsTheFaultsOfTheRest) {
    ParametersEngine engine = busyEngine();
    EXPECT_EQ(linesOf(engine.registerSoundSchemas(manyTexts), manyTexts), faultsOfManyTexts);
    EXPECT_EQ(engine.getBoolSpec("new").getCore().getDiscipline().getName(), "D");
    EXPECT_EQ(engine.getMeasurableSpec("m").getStorageUnit().getTypeId(), "v");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getTypeId(), "pending");
    EXPECT_EQ(engine.getDiscipline("later").getName(), "Name");
    EXPECT_EQ(engine.getUnitsEngine().getAllUnits().size(), 3U); // u, pending unit, v
    EXPECT_FALSE(engine.isRegistered("bad"));
    EXPECT_FALSE(engine.isRegistered("w"));
    EXPECT_EQ(engine.findUnresolvable().size(), 0U);
}

TEST(RegisterSoundSchemas, ResolvesWhatWasPendingBefore) {
    ParametersEngine engine = busyEngine();
    engine.registerSoundSchemas({{"5", disciplineText("later")}});
    EXPECT_EQ(engine.getBoolSpec("pending").getCore().getDiscipline().getTypeId(), "d");
    EXPECT_EQ(engine.getBoolSpec("unresolvable").getCore().getDiscipline().getTypeId(), "later");
}

TEST(RegisterSoundSchemas, KeepsPendingWhatCannotBeResolvedYet) {
    ParametersEngine engine = busyEngine();
    EXPECT_EQ(engine.registerSoundSchemas({{"1", groupText("g")}}).size(), 0U);
    EXPECT_EQ(engine.getBoolSpec("pending").getCore().getDiscipline().getTypeId(), "d");
    EXPECT_EQ(engine.getGroup("g").getName(), "Name");
    EXPECT_TRUE(engine.isRegistered("unresolvable"));
    EXPECT_EQ(engine.findUnresolvable(), (Texts{{"unresolvable", Support::unresolvable("later", "unresolvable")}}));
    engine.registerSchema(disciplineText("later"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolSpec("unresolvable").getCore().getDiscipline().getTypeId(), "later");
}

TEST(RegisterSoundSchemas, LeavesPendingWhatMayBeWithdrawn) {
    ParametersEngine engine = busyEngine();
    engine.registerSoundSchemas(manyTexts);
    EXPECT_FALSE(engine.discardPending("bad"));
    EXPECT_FALSE(engine.discardPending("new"));
    engine = busyEngine();
    engine.registerSoundSchemas({{"1", groupText("g")}});
    EXPECT_TRUE(engine.discardPending("unresolvable"));
    engine.resolveSchemas();
}

TEST(RegisterSoundSchemas, RegistersNothingThatNamesWhatIsFaulty) {
    ParametersEngine engine;
    engine.registerSoundSchemas({{"1", boolParameterText("p", "g", "s")},
                                 {"2", boolSpecText("s", "d")},
                                 {"3", disciplineText("d", "")},
                                 {"4", groupText("g")}});
    EXPECT_FALSE(engine.isRegistered("p"));
    EXPECT_FALSE(engine.isRegistered("s"));
    EXPECT_FALSE(engine.isRegistered("d"));
    EXPECT_EQ(engine.getGroup("g").getName(), "Name");
}

TEST(RegisterSoundSchemas, RegistersTheFirstOfTwoTextsOfOneTypeId) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSoundSchemas({{"1", groupText("g", "First")}, {"2", groupText("g", "Second")}}).size(),
              1U);
    EXPECT_EQ(engine.getGroup("g").getName(), "First");
}

TEST(RegisterSoundSchemas, RegistersTextsWithWarnings) {
    ParametersEngine engine;
    const Texts texts{{"t", groupText("g").insert(1, R"("more":1,)")}};
    EXPECT_EQ(linesOf(engine.registerSoundSchemas(texts), texts), (Lines{"warning member-unknown more at t:/more 1"}));
    EXPECT_EQ(engine.getGroup("g").getName(), "Name");
}

TEST(RegisterSoundSchemas, MayBeCalledAgainWithWhatIsMended) {
    ParametersEngine engine;
    Texts texts{{"1", boolSpecText("s", "d")}, {"2", disciplineText("d", "")}};
    EXPECT_EQ(engine.registerSoundSchemas(texts).size(), 2U);
    texts.at("2") = disciplineText("d");
    EXPECT_THAT(engine.registerSoundSchemas(texts), IsEmpty());
    EXPECT_EQ(engine.getBoolSpec("s").getCore().getDiscipline().getName(), "Name");
}

TEST(RegisterSoundSchemas, LeavesCopiesAlone) {
    ParametersEngine engine = busyEngine();
    const ParametersEngine copy = engine;
    const std::string before = pictureOf(copy, busyIds);
    engine.registerSoundSchemas(manyTexts);
    EXPECT_EQ(pictureOf(copy, busyIds), before);
    const ParametersEngine later = engine;
    const std::string after = pictureOf(engine, busyIds);
    engine.registerSoundSchemas({{"1", groupText("another")}});
    EXPECT_EQ(pictureOf(later, busyIds), after);
    EXPECT_FALSE(later.isRegistered("another"));
}

TEST(RegisterSoundSchemas, KeepsTheUnitsEngineThatWasHandedOut) {
    ParametersEngine engine;
    Units::UnitsEngine& units = engine.getUnitsEngine();
    engine.registerSoundSchemas({{"1", unitText("u")}});
    EXPECT_EQ(units.getUnit("u").getName(), "Name");
}

TEST(RegisterSoundSchemas, MakesWhatRegisterSchemasMakesOfSoundTexts) {
    Texts texts;
    for (const Support::Shape& shape : Support::everyShape()) {
        texts.emplace(shape.name, shape.text(shape.name, "1", [](const Support::Reference&) { return std::string(); }));
    }
    ParametersEngine sound;
    const auto faults = sound.registerSoundSchemas(texts);
    for (const Fault& fault : faults) {
        texts.erase(fault.place().text);
    }
    EXPECT_GT(texts.size(), 10U);
    ParametersEngine engine;
    engine.registerSchemas(texts);
    EXPECT_EQ(pictureOf(sound), pictureOf(engine));
}

// Time in proportion: what is not would take minutes and more.

TEST(ManyFaults, OfOneTextAreAllTold) {
    std::string constants;
    for (int i = 0; i < 20'000; ++i) {
        constants += R"({"id":"name","value":"N"},{"id":"c)" + std::to_string(i) + R"(","Value":1},)";
    }
    const Texts texts{{"t", schemaText("x", "norvex.parameter:group-1.0.0", constants + "0")}};
    EXPECT_EQ(ParametersEngine().findFaults(texts).size(), 19'999U + 20'000U + 1U);
}

TEST(ManyFaults, OfOneDefinitionAreAllTold) {
    std::string members;
    for (int i = 0; i < 20'000; ++i) {
        members += R"("more":1,)";
    }
    const auto faults = ParametersEngine().findFaults(
        {{"t", schemaText("x", "norvex.parameter:group-1.0.0", "{" + members + R"("id":"name","value":"N"})")}});
    EXPECT_EQ(faults.size(), 20'000U);
}

TEST(ManyFaults, OfUnitsThatAreThereAlreadyAreAllTold) {
    Texts texts;
    for (int i = 0; i < 5'000; ++i) {
        texts.emplace(std::to_string(i), unitText(std::to_string(i)));
    }
    ParametersEngine engine;
    engine.registerSchemas(texts);
    for (auto& [key, text] : texts) {
        text.insert(1, R"("more":1,)");
    }
    EXPECT_EQ(engine.findFaults(texts).size(), 2 * texts.size());
}

TEST(ManyFaults, OfOneListAreAllTold) {
    std::string values;
    for (int i = 0; i < 2'000; ++i) {
        values += R"({"id":"c)" + std::to_string(i) + R"(","value":"1"},)";
    }
    const auto faults = ParametersEngine().findFaults(
        {{"t", R"({"typeid":"x","inherits":["Enum"],"properties":[)" + values + R"({"id":"last","value":1}]})"}});
    EXPECT_EQ(faults.size(), 2'000U);
}

TEST(ManyFaults, OfManyTextsAreAllTold) {
    Texts texts;
    for (int i = 0; i < 20'000; ++i) {
        const std::string number = std::to_string(i);
        texts.emplace(number, i % 2 == 0 ? boolSpecText(number, std::to_string(i + 1)) : disciplineText(number, ""));
    }
    EXPECT_EQ(ParametersEngine().findFaults(texts).size(), texts.size());
}

TEST(ManyFaults, OfATypeIdThatAllTextsShareAreAllTold) {
    Texts texts;
    for (int i = 0; i < 20'000; ++i) {
        texts.emplace(std::to_string(i), groupText("x"));
    }
    const auto faults = ParametersEngine().findFaults(texts);
    EXPECT_EQ(faults.size(), texts.size() - 1);
}

TEST(ManyFaults, OfManyNamesOfOneTextAreAllTold) {
    std::vector<std::string> named;
    for (int i = 0; i < 20'000; ++i) {
        named.push_back("d" + std::to_string(i % 10'000));
    }
    const auto faults =
        ParametersEngine().findFaults({{"1", domainText("d")}, {"2", majorCategoryText("m", "d", named)}});
    EXPECT_EQ(faults.size(), 20'000U + 10'000U);
}

TEST(ManyFaults, OfMembersThatNothingReadsAreAllTold) {
    std::string text = groupText("g");
    std::string members;
    for (int i = 0; i < 100'000; ++i) {
        members += "\"m" + std::to_string(i) + "\":0,";
    }
    EXPECT_EQ(ParametersEngine().findFaults({{"t", text.insert(1, members)}}).size(), 100'000U);
}

} // namespace
