#include <parameters/SpecCore.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/KindTypes.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::disciplineText;
using Support::engineOf;
using Support::Fault;
using Support::groupText;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;
using Support::rewritten;
using Support::Shape;

TEST(SpecCore, AnswersWhatItWasMadeFrom) {
    const SpecCore core("plant.spec:open-1.0.0", "Open", Taxon("plant.discipline:civil-1.0.0", "Civil Works"));
    EXPECT_EQ(core.getTypeId(), "plant.spec:open-1.0.0");
    EXPECT_EQ(core.getName(), "Open");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "plant.discipline:civil-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Civil Works");
}

TEST(SpecCore, HasTheCommonDisciplineUnlessItIsGivenOne) {
    const SpecCore core("plant.spec:open-1.0.0", "Open");
    EXPECT_EQ(core.getTypeId(), "plant.spec:open-1.0.0");
    EXPECT_EQ(core.getName(), "Open");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TEST(SpecCore, ChecksNothingOfWhatItIsMadeFrom) {
    const SpecCore core("", "", Taxon("", ""));
    EXPECT_EQ(core.getTypeId(), "");
    EXPECT_EQ(core.getName(), "");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "");
}

const std::string nameOnly = R"({"id": "name", "value": "Open"})";

/// What holds for the cores of all specs.
template <class Kind>
struct SpecCoreOfEachKind : testing::Test {
    using Value = typename Kind::Value;

    /// Returns an engine with what the specs must name, and a discipline "civil".
    static ParametersEngine plant() {
        ParametersEngine engine = engineOf({disciplineText("civil", "Civil Works")});
        Support::stock(engine, Support::mainShapeOf<Kind>());
        return engine;
    }

    /// Returns the text of the spec "open" with the given constants of a core, and all else that it must have.
    static std::string textOf(const std::string& constants, const std::string& base = baseOfKind()) {
        Shape shape = Support::mainShapeOf<Kind>();
        shape.form.constants = [](const std::string& given) { return given; };
        return shape.textOfBase(base, "open", constants, Support::nameTheLeast);
    }
    static std::string baseOfKind() { return Support::mainShapeOf<Kind>().base; }

    static Value of(const SpecCore& core) { return Support::Sample<Kind>::of(core); }
    static SpecCore coreIn(const ParametersEngine& engine) { return Kind::get(engine, "open").getCore(); }
    static SpecCore coreFrom(const std::string& constants) { return coreIn(engineOf({textOf(constants)}, plant())); }
    static SpecCore coreOfAdded(const SpecCore& core) {
        ParametersEngine engine = plant();
        Kind::add(engine, of(core));
        return coreIn(engine);
    }
    /// Returns the schema of a spec made in code.
    static std::string writtenOf(const SpecCore& core, ParametersEngine engine = plant()) {
        Kind::add(engine, of(core));
        return engine.getSchema(core.getTypeId());
    }

    /// Returns the text of a written spec with the given constants behind its name.
    static std::string written(const std::string& more, const std::string& typeId = "open",
                               const std::string& name = "Open") {
        std::string constants = R"({"id":"name","value":")" + name + R"("})" + more;
        for (const Support::Reference& reference : Support::mainShapeOf<Kind>().form.references) {
            if (reference.required) {
                constants += R"(,{"id":")" + std::string(reference.id) + R"(","typedValue":{"typeid":")" +
                             Support::sampleIdOf(reference.kind) + R"("}})";
            }
        }
        return R"({"typeid":")" + typeId + R"(","inherits":[")" + baseOfKind() + R"("],"constants":[)" + constants +
               "]}";
    }
};

TYPED_TEST_SUITE(SpecCoreOfEachKind, Support::TestedKinds<Kinds::Specs>, Support::NameOfKind);

TYPED_TEST(SpecCoreOfEachKind, IsWhatASpecIsMadeFrom) {
    const auto spec = this->of(SpecCore("open", "Open", Taxon("civil", "Civil Works")));
    EXPECT_EQ(spec.getCore().getTypeId(), "open");
    EXPECT_EQ(spec.getCore().getName(), "Open");
    EXPECT_EQ(spec.getCore().getDiscipline().getTypeId(), "civil");
    EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Civil Works");
}

TYPED_TEST(SpecCoreOfEachKind, OutlivesItsSpec) {
    const SpecCore core = [] { return TestFixture::of(SpecCore("open", "Open")).getCore(); }();
    EXPECT_EQ(core.getTypeId(), "open");
    EXPECT_EQ(core.getName(), "Open");
}

TYPED_TEST(SpecCoreOfEachKind, HasTheNameOfItsSchemaAndTheCommonDisciplineByDefault) {
    const SpecCore core = this->coreFrom(nameOnly);
    EXPECT_EQ(core.getTypeId(), "open");
    EXPECT_EQ(core.getName(), "Open");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TYPED_TEST(SpecCoreOfEachKind, HasTheDisciplineOfItsSchemaAsAPlainValueToo) {
    for (const char* value : {"typedValue", "value"}) {
        const SpecCore core =
            this->coreFrom(nameOnly + R"(, {"id": "discipline", ")" + value + R"(": {"typeid": "civil"}})");
        EXPECT_EQ(core.getDiscipline().getTypeId(), "civil");
        EXPECT_EQ(core.getDiscipline().getName(), "Civil Works");
    }
}

TYPED_TEST(SpecCoreOfEachKind, IsRefusedForItsTypeIdBeforeItsDiscipline) {
    const auto refusal = [](const std::string& typeId) {
        ParametersEngine engine = engineOf({groupText("open")}, TestFixture::plant());
        return messageOf<ValidationException>(
            [&] { TypeParam::add(engine, TestFixture::of(SpecCore(typeId, "Open", Taxon("missing", "M")))); });
    };
    EXPECT_EQ(refusal(""), "Typeid must not be empty.");
    EXPECT_EQ(refusal("open"), "Schema with typeid open is already registered.");
    EXPECT_EQ(refusal("new"), "Could not find discipline with typeid missing.");
}

TYPED_TEST(SpecCoreOfEachKind, KeepsItsDisciplineAsItWasGiven) {
    for (const char* typeId : {"civil", "norvex.spec:discipline-1.3.0"}) {
        const Taxon discipline = this->coreOfAdded(SpecCore("open", "Open", Taxon(typeId, "Mine"))).getDiscipline();
        EXPECT_EQ(discipline.getTypeId(), typeId);
        EXPECT_EQ(discipline.getName(), "Mine");
    }
}

TYPED_TEST(SpecCoreOfEachKind, IsWrittenWithoutTheCommonDisciplineWhateverItsName) {
    EXPECT_EQ(this->writtenOf(SpecCore("open", "Open")), this->written(""));
    const std::string text = this->writtenOf(SpecCore("open", "Open", Taxon("norvex.spec:discipline-1.0.0", "Mine")));
    EXPECT_EQ(text, this->written(""));
    EXPECT_EQ(this->coreIn(engineOf({text}, this->plant())).getDiscipline().getName(), "Common");
}

TYPED_TEST(SpecCoreOfEachKind, IsWrittenWithTheCommonDisciplineInAnotherMinorVersion) {
    EXPECT_EQ(this->writtenOf(SpecCore("open", "Open", Taxon("norvex.spec:discipline-1.3.0", "Common"))),
              this->written(R"(,{"id":"discipline","typedValue":{"typeid":"norvex.spec:discipline-1.3.0"}})"));
}

TYPED_TEST(SpecCoreOfEachKind, IsWrittenWithItsDisciplineBehindItsName) {
    EXPECT_EQ(this->writtenOf(SpecCore("open", "Open", Taxon("civil", "N"))),
              this->written(R"(,{"id":"discipline","typedValue":{"typeid":"civil"}})"));
}

TYPED_TEST(SpecCoreOfEachKind, IsWrittenWithItsNameEvenWhenThatIsEmpty) {
    EXPECT_EQ(this->writtenOf(SpecCore("open", "")), this->written("", "open", ""));
}

TYPED_TEST(SpecCoreOfEachKind, SurvivesTheRoundTrip) {
    for (const char* more : {"", R"(,{"id":"discipline","typedValue":{"typeid":"civil"}})"}) {
        EXPECT_EQ(rewritten(this->plant(), "open", this->written(more)), this->written(more));
    }
}

TYPED_TEST(SpecCoreOfEachKind, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    const std::string constants = R"({"id": "discipline", "typedValue": {"typeid": "norvex.spec:discipline-1.0.0"}},
        {"id": "extra", "value": 5}, {"id": "name", "value": "Open"})";
    std::string text = this->textOf(constants, Support::versionPrefixOf(this->baseOfKind()) + "8.2");
    text.insert(1, R"("note": [], "properties": [{"id": "p", "value": 1}], )");
    EXPECT_EQ(rewritten(this->plant(), "open", text), this->written(""));
}

TYPED_TEST(SpecCoreOfEachKind, IsCommonWhereItIsBuiltIn) {
    if (TypeParam::info.builtInName().empty()) {
        return;
    }
    const std::string base = this->baseOfKind();
    for (const std::string& typeId : {base, "my " + Support::versionPrefixOf(base) + "4.0"}) {
        const ParametersEngine engine;
        const SpecCore core = TypeParam::get(engine, typeId).getCore();
        EXPECT_EQ(core.getTypeId(), typeId);
        EXPECT_EQ(core.getName(), TypeParam::info.builtInName());
        EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
        EXPECT_EQ(core.getDiscipline().getName(), "Common");
        EXPECT_EQ(messageOf<Parameters::UnrecognizedIdentifierException>([&] { engine.getSchema(typeId); }),
                  "Could not find any object with typeid " + typeId + ".");
    }
}

const std::vector<Fault> constantFaults = {
    {"NoName", "", "Schema open has an undefined name constant."},
    {"NullAsName", R"({"id": "name", "value": null})", "Expected a non-empty string."},
    {"NumberAsName", R"({"id": "name", "value": 5})", "Expected a non-empty string."},
    {"ArrayAsName", R"({"id": "name", "value": ["Open"]})", "Expected a non-empty string."},
    {"EmptyName", R"({"id": "name", "value": ""})", "Expected a non-empty string."},
    {"NameWithoutAValue", R"({"id": "name"})", "A property definition must contain either a value or a typedValue."},
    {"StringAsDiscipline", nameOnly + R"(, {"id": "discipline", "typedValue": "civil"})",
     "A typedValue must be an object."},
    {"NullAsDiscipline", nameOnly + R"(, {"id": "discipline", "value": null})", "A typedValue must be an object."},
    {"ArrayAsDiscipline", nameOnly + R"(, {"id": "discipline", "typedValue": [{"typeid": "civil"}]})",
     "A typedValue must be an object."},
    {"EmptyDiscipline", nameOnly + R"(, {"id": "discipline", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"DisciplineWithAnotherMember",
     nameOnly + R"(, {"id": "discipline", "typedValue": {"typeid": "civil", "name": "N"}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"DisciplineWithoutATypeId", nameOnly + R"(, {"id": "discipline", "typedValue": {"name": "N"}})",
     "A typedValue did not contain a typeid attribute."},
    {"DisciplineWithAnEmptyTypeId", nameOnly + R"(, {"id": "discipline", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"DisciplineWithANumberAsTypeId", nameOnly + R"(, {"id": "discipline", "typedValue": {"typeid": 5}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"DisciplineWithoutAValue", nameOnly + R"(, {"id": "discipline"})",
     "A property definition must contain either a value or a typedValue."},
    {"NoNameBeforeDiscipline", R"({"id": "discipline", "typedValue": 5})",
     "Schema open has an undefined name constant."},
    {"NameBeforeDiscipline", R"({"id": "discipline", "typedValue": 5}, {"id": "name", "value": ""})",
     "Expected a non-empty string."},
};

TYPED_TEST(SpecCoreOfEachKind, IsRefusedForTheFirstOfItsFaults) {
    for (const Fault& fault : constantFaults) {
        EXPECT_EQ(refusalOf(this->textOf(fault.text)), fault.message) << fault.name;
    }
}

TYPED_TEST(SpecCoreOfEachKind, KeepsAnyBytes) {
    for (const Support::AwkwardString& string : Support::awkwardStrings) {
        const std::string& bytes = string.bytes;
        ParametersEngine engine = this->plant();
        engine.registerDiscipline(Taxon("d" + bytes, "N"));
        const std::string text =
            this->written(R"(,{"id":"discipline","typedValue":{"typeid":"d)" + string.escaped + R"("}})",
                          string.escaped, string.escaped);
        EXPECT_EQ(this->writtenOf(SpecCore(bytes, bytes, Taxon("d" + bytes, "")), engine), text) << string.name;
        const ParametersEngine read = engineOf({text}, engine);
        EXPECT_EQ(read.getSchema(bytes), text) << string.name;
        const SpecCore core = TypeParam::get(read, bytes).getCore();
        EXPECT_EQ(core.getTypeId(), bytes);
        EXPECT_EQ(core.getName(), bytes);
        EXPECT_EQ(core.getDiscipline().getTypeId(), "d" + bytes);
    }
}

/// A base that contains that of general specs too, and which of the two kinds of spec is read from it.
struct DoubleBase {
    const char* name;
    const char* base;
    Parameters::KindInfo kind;
};

const DoubleBase doubleBases[] = {
    {"BeforeBool", "norvex.spec:spec-1.0.0 norvex.spec:spec.bool-1.0.0", Kinds::BoolSpec::info},
    {"BehindBool", "norvex.spec:spec.bool-1.0.0 norvex.spec:spec-1.0.0", Kinds::BoolSpec::info},
    {"BeforeInt", "norvex.spec:spec-1.0.0 norvex.spec:spec.int64-2.0.0", Kinds::GeneralSpec::info},
    {"BehindInt", "norvex.spec:spec.int64-2.0.0 norvex.spec:spec-1.0.0", Kinds::GeneralSpec::info},
    {"BeforeString", "norvex.spec:spec-1.0.0 norvex.spec:spec.string-2.0.0", Kinds::GeneralSpec::info},
    {"BehindString", "norvex.spec:spec.string-2.0.0 norvex.spec:spec-1.0.0", Kinds::GeneralSpec::info},
};

struct BaseOfGeneralSpecs : testing::TestWithParam<DoubleBase> {};

TEST_P(BaseOfGeneralSpecs, CountsAfterThatOfBooleanSpecsAndBeforeOthers) {
    const ParametersEngine engine = engineOf({namedText("open", GetParam().base, "Open")});
    Parameters::forEachKind([&](auto kind) {
        EXPECT_EQ(kind.getAll(engine).size(), kind.info == GetParam().kind ? 1U : 0U) << kind.info.id();
    });
}

INSTANTIATE_TEST_SUITE_P(Bases, BaseOfGeneralSpecs, testing::ValuesIn(doubleBases), Support::nameOfRow);

} // namespace
