#include <parameters/Taxon.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/KindTypes.h"
#include "support/Refusal.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using Parameters::ParametersEngine;
using Parameters::Taxon;
using Support::constant;
using Support::engineOf;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;

TEST(Taxon, AnswersWhatItWasMadeFrom) {
    const Taxon taxon("plant.group:safety-1.0.0", "Safety");
    EXPECT_EQ(taxon.getTypeId(), "plant.group:safety-1.0.0");
    EXPECT_EQ(taxon.getName(), "Safety");
}

TEST(Taxon, ChecksNothingOfWhatItIsMadeFrom) {
    const Taxon taxon("", "");
    EXPECT_EQ(taxon.getTypeId(), "");
    EXPECT_EQ(taxon.getName(), "");
}

template <class Kind>
struct TaxonOfEachKind : testing::Test {
    static std::string base() { return std::string(Kind::info.bases()[0]); }
    static std::string textWith(const std::string& constants) { return schemaText("plant", base(), constants); }
    static std::string written(const std::string& typeId, const std::string& name) {
        return R"({"typeid":")" + typeId + R"(","inherits":[")" + base() + R"("],"constants":[{"id":"name","value":")" +
               name + R"("}]})";
    }
    static std::string writtenOf(const Taxon& taxon) {
        ParametersEngine engine;
        Kind::add(engine, taxon);
        return engine.getSchema(taxon.getTypeId());
    }
};

TYPED_TEST_SUITE(TaxonOfEachKind, Support::TestedKinds<Parameters::Kinds::Taxa>, Support::NameOfKind);

TYPED_TEST(TaxonOfEachKind, IsNotReadFromAnotherTaxon) {
    ParametersEngine engine = engineOf({this->textWith(constant("name", R"("N")"))});
    EXPECT_EQ(refusalOf(engine, Support::namedText("c", "plant", "N")),
              "Inheritance from an unrecognized base schema.");
}

TYPED_TEST(TaxonOfEachKind, NeedsItsNameAmongTheConstants) {
    EXPECT_EQ(refusalOf(this->textWith("")), "Schema plant has an undefined name constant.");
    EXPECT_EQ(refusalOf(R"({"typeid": "plant", "inherits": [")" + this->base() +
                        R"("], "properties": [{"id": "name", "value": "N"}], "name": "N"})"),
              "Schema plant has an undefined name constant.");
}

TYPED_TEST(TaxonOfEachKind, RefusesANameThatIsNoStringOrEmpty) {
    for (const char* value : {R"("")", "null", "true", "5", "1.5", "[]", R"(["N"])", "{}", R"({"typeid": "N"})"}) {
        EXPECT_EQ(refusalOf(this->textWith(constant("name", value))), "Expected a non-empty string.") << value;
    }
}

TYPED_TEST(TaxonOfEachKind, RefusesANameWithoutAValue) {
    EXPECT_EQ(refusalOf(this->textWith(R"({"id": "name"})")),
              "A property definition must contain either a value or a typedValue.");
}

TYPED_TEST(TaxonOfEachKind, TakesItsNameFromATypedValueToo) {
    const ParametersEngine engine = engineOf({this->textWith(R"({"id": "name", "typedValue": "N"})")});
    EXPECT_EQ(TypeParam::get(engine, "plant").getName(), "N");
}

TYPED_TEST(TaxonOfEachKind, IsWrittenWithItsNameEvenWhenThatIsEmpty) {
    EXPECT_EQ(this->writtenOf(Taxon("plant", "Water Ways")), this->written("plant", "Water Ways"));
    EXPECT_EQ(this->writtenOf(Taxon("plant", "")), this->written("plant", ""));
}

TYPED_TEST(TaxonOfEachKind, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    const std::string text =
        R"({"note": 5, "typeid": "plant", "inherits": [")" + Support::versionPrefixOf(this->base()) + R"(7.1"],
        "constants": [{"id": "extra", "value": 5}, {"id": "name", "value": "N", "note": "x"}],
        "properties": [{"id": "p", "value": 1}]})";
    EXPECT_EQ(rewritten(ParametersEngine(), "plant", text), this->written("plant", "N"));
}

TYPED_TEST(TaxonOfEachKind, KeepsAnyBytes) {
    for (const Support::AwkwardString& string : Support::awkwardStrings) {
        const std::string text = this->written(string.escaped, string.escaped);
        EXPECT_EQ(this->writtenOf(Taxon(string.bytes, string.bytes)), text) << string.name;
        EXPECT_EQ(rewritten(ParametersEngine(), string.bytes, text), text) << string.name;
        const Taxon taxon = TypeParam::get(engineOf({text}), string.bytes);
        EXPECT_EQ(taxon.getTypeId(), string.bytes);
        EXPECT_EQ(taxon.getName(), string.bytes);
    }
}

TYPED_TEST(TaxonOfEachKind, IsOfItsTypeIdAndItsNameWhereItIsBuiltIn) {
    if (TypeParam::info.builtInName().empty()) {
        return;
    }
    for (const std::string& typeId : {this->base(), "my " + Support::versionPrefixOf(this->base()) + "2.7"}) {
        EXPECT_EQ(TypeParam::get(ParametersEngine(), typeId).getTypeId(), typeId);
        EXPECT_EQ(TypeParam::get(ParametersEngine(), typeId).getName(), TypeParam::info.builtInName());
    }
}

} // namespace
