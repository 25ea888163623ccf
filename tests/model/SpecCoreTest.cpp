#include <parameters/SpecCore.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace {

using Parameters::BoolSpec;
using Parameters::GeneralSpec;
using Parameters::IntSpec;
using Parameters::ParametersEngine;
using Parameters::ReferenceSpec;
using Parameters::SpecCore;
using Parameters::StringSpec;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::awkwardStrings;
using Support::constant;
using Support::disciplineText;
using Support::domainText;
using Support::engineOf;
using Support::failureOf;
using Support::Fault;
using Support::groupText;
using Support::messageOf;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;
using Support::typedConstant;

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

/// A kind of spec, as far as its core goes.
struct SpecKind {
    const char* name;
    std::string base;
    SpecCore (*get)(const ParametersEngine& engine, const std::string& typeId);
    void (*add)(ParametersEngine& engine, const SpecCore& core);
};

template <auto getter>
SpecCore coreBy(const ParametersEngine& engine, const std::string& typeId) {
    return (engine.*getter)(typeId).getCore();
}

template <class Spec, auto registrar>
void addBy(ParametersEngine& engine, const SpecCore& core) {
    (engine.*registrar)(Spec(core));
}

void addReferenceSpec(ParametersEngine& engine, const SpecCore& core) {
    engine.registerReferenceSpec(ReferenceSpec(core, std::nullopt));
}

const SpecKind specKinds[] = {
    {"BoolSpec", "norvex.spec:spec.bool-1.0.0", coreBy<&ParametersEngine::getBoolSpec>,
     addBy<BoolSpec, &ParametersEngine::registerBoolSpec>},
    {"GeneralSpec", "norvex.spec:spec-1.0.0", coreBy<&ParametersEngine::getGeneralSpec>,
     addBy<GeneralSpec, &ParametersEngine::registerGeneralSpec>},
    {"IntSpec", "norvex.spec:spec.int64-2.0.0", coreBy<&ParametersEngine::getIntSpec>,
     addBy<IntSpec, &ParametersEngine::registerIntSpec>},
    {"StringSpec", "norvex.spec:spec.string-2.0.0", coreBy<&ParametersEngine::getStringSpec>,
     addBy<StringSpec, &ParametersEngine::registerStringSpec>},
    {"ReferenceSpec", "norvex.spec:spec.reference-1.0.0", coreBy<&ParametersEngine::getReferenceSpec>,
     addReferenceSpec},
};

const std::string nameOnly = R"({"id": "name", "value": "Open"})";

/// Returns the text of the spec "open" of a kind with the given constants.
std::string textOf(const SpecKind& kind, const std::string& constants) {
    return schemaText("open", kind.base, constants);
}

/// Returns the text of the spec "open" of a kind, which names a discipline.
std::string textNaming(const SpecKind& kind, const std::string& discipline) {
    return textOf(kind, nameOnly + ", " + typedConstant("discipline", discipline));
}

class SpecCoreOfEachKind : public testing::TestWithParam<SpecKind> {
protected:
    static const SpecKind& kind() { return GetParam(); }
    static SpecCore coreIn(const ParametersEngine& engine) { return kind().get(engine, "open"); }

    /// Returns the schema of a spec "open" made in code.
    static std::string writtenOf(const SpecCore& core, ParametersEngine engine = {}) {
        kind().add(engine, core);
        return engine.getSchema("open");
    }

    /// Returns the message with which a spec made in code is refused.
    static std::string refusalOfObject(const SpecCore& core, ParametersEngine engine = {}) {
        return messageOf<ValidationException>([&] { kind().add(engine, core); });
    }

    /// Returns the text of a written spec "open" with the given constants behind its name.
    static std::string written(const std::string& more) {
        return R"({"typeid":"open","inherits":[")" + kind().base + R"("],"constants":[{"id":"name","value":"Open"})" +
               more + "]}";
    }
};

TEST_P(SpecCoreOfEachKind, HasTheNameOfItsSchema) {
    const SpecCore core = coreIn(engineOf({textOf(kind(), nameOnly)}));
    EXPECT_EQ(core.getTypeId(), "open");
    EXPECT_EQ(core.getName(), "Open");
}

TEST_P(SpecCoreOfEachKind, HasTheCommonDisciplineByDefault) {
    const SpecCore core = coreIn(engineOf({textOf(kind(), nameOnly)}));
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TEST_P(SpecCoreOfEachKind, NeedsNoDisciplineOfTheBuiltInMajorVersion) {
    const SpecCore core = coreIn(engineOf({textNaming(kind(), "norvex.spec:discipline-1.3.0")}));
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.3.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TEST_P(SpecCoreOfEachKind, NeedsNoDisciplineWhoseTypeIdContainsTheBuiltInOne) {
    const SpecCore core = coreIn(engineOf({textNaming(kind(), "my norvex.spec:discipline-1.x")}));
    EXPECT_EQ(core.getDiscipline().getTypeId(), "my norvex.spec:discipline-1.x");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TEST_P(SpecCoreOfEachKind, HasTheDisciplineRegisteredBefore) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("civil", "Civil Works"));
    engine.registerSchema(textNaming(kind(), "civil"));
    engine.resolveSchemas();
    EXPECT_EQ(coreIn(engine).getDiscipline().getTypeId(), "civil");
    EXPECT_EQ(coreIn(engine).getDiscipline().getName(), "Civil Works");
}

TEST_P(SpecCoreOfEachKind, HasTheDisciplineResolvedWithIt) {
    const SpecCore core = coreIn(engineOf({textNaming(kind(), "civil"), disciplineText("civil", "Civil Works")}));
    EXPECT_EQ(core.getDiscipline().getName(), "Civil Works");
}

TEST_P(SpecCoreOfEachKind, TakesItsDisciplineAsAPlainValueToo) {
    const std::string text = textOf(kind(), nameOnly + ", " + constant("discipline", R"({"typeid": "civil"})"));
    EXPECT_EQ(coreIn(engineOf({disciplineText("civil", "Civil Works"), text})).getDiscipline().getName(),
              "Civil Works");
}

TEST_P(SpecCoreOfEachKind, FailsToResolveWithoutItsDiscipline) {
    EXPECT_EQ(failureOf({textNaming(kind(), "civil")}),
              "Dependency civil in schema open is missing or does not represent an object of the expected type.");
}

TEST_P(SpecCoreOfEachKind, FailsToResolveWithADisciplineOfAnotherMajorVersion) {
    EXPECT_EQ(failureOf({textNaming(kind(), "norvex.spec:discipline-2.0.0")}),
              "Dependency norvex.spec:discipline-2.0.0 in schema open is missing or does not represent an object of "
              "the expected type.");
}

TEST_P(SpecCoreOfEachKind, FailsToResolveWithAGroupOrADomainAsItsDiscipline) {
    const char* const message =
        "Dependency civil in schema open is missing or does not represent an object of the expected type.";
    EXPECT_EQ(failureOf({textNaming(kind(), "civil"), groupText("civil")}), message);
    EXPECT_EQ(failureOf({textNaming(kind(), "civil"), domainText("civil")}), message);
}

TEST_P(SpecCoreOfEachKind, FailsToResolveWithTheBuiltInGroupAsItsDiscipline) {
    EXPECT_EQ(failureOf({textNaming(kind(), "norvex.parameter:group-1.0.0")}),
              "Dependency norvex.parameter:group-1.0.0 in schema open is missing or does not represent an object of "
              "the expected type.");
}

TEST_P(SpecCoreOfEachKind, FailsToResolveWithItselfAsItsDiscipline) {
    EXPECT_EQ(failureOf({textNaming(kind(), "open")}),
              "Dependency open in schema open is missing or does not represent an object of the expected type.");
}

TEST_P(SpecCoreOfEachKind, IsRefusedWithoutItsDiscipline) {
    EXPECT_EQ(refusalOfObject(SpecCore("open", "Open", Taxon("civil", "Civil Works"))),
              "Could not find discipline with typeid civil.");
}

TEST_P(SpecCoreOfEachKind, IsRefusedWithADisciplineThatIsOnlyPending) {
    ParametersEngine engine;
    engine.registerSchema(disciplineText("civil"));
    EXPECT_EQ(refusalOfObject(SpecCore("open", "Open", Taxon("civil", "Civil Works")), engine),
              "Could not find discipline with typeid civil.");
}

TEST_P(SpecCoreOfEachKind, IsRefusedWithADisciplineOfAnotherMajorVersion) {
    EXPECT_EQ(refusalOfObject(SpecCore("open", "Open", Taxon("norvex.spec:discipline-2.0.0", "Common"))),
              "Could not find discipline with typeid norvex.spec:discipline-2.0.0.");
}

TEST_P(SpecCoreOfEachKind, IsRefusedWithAGroupAsItsDiscipline) {
    EXPECT_EQ(refusalOfObject(SpecCore("open", "Open", Taxon("civil", "N")), engineOf({groupText("civil")})),
              "Could not find discipline with typeid civil.");
}

TEST_P(SpecCoreOfEachKind, IsRefusedForItsTypeIdBeforeItsDiscipline) {
    const Taxon missing("civil", "Civil Works");
    EXPECT_EQ(refusalOfObject(SpecCore("", "Open", missing)), "Typeid must not be empty.");
    EXPECT_EQ(refusalOfObject(SpecCore("open", "Open", missing), engineOf({groupText("open")})),
              "Schema with typeid open is already registered.");
}

TEST_P(SpecCoreOfEachKind, KeepsTheRegisteredDisciplineAsItWasGiven) {
    ParametersEngine engine = engineOf({disciplineText("civil", "Civil Works")});
    kind().add(engine, SpecCore("open", "Open", Taxon("civil", "Bau")));
    EXPECT_EQ(coreIn(engine).getDiscipline().getTypeId(), "civil");
    EXPECT_EQ(coreIn(engine).getDiscipline().getName(), "Bau");
}

TEST_P(SpecCoreOfEachKind, KeepsTheBuiltInDisciplineAsItWasGiven) {
    ParametersEngine engine;
    kind().add(engine, SpecCore("open", "Open", Taxon("norvex.spec:discipline-1.3.0", "Mine")));
    EXPECT_EQ(coreIn(engine).getDiscipline().getTypeId(), "norvex.spec:discipline-1.3.0");
    EXPECT_EQ(coreIn(engine).getDiscipline().getName(), "Mine");
}

TEST_P(SpecCoreOfEachKind, IsWrittenWithoutTheCommonDiscipline) {
    EXPECT_EQ(writtenOf(SpecCore("open", "Open")), written(""));
}

TEST_P(SpecCoreOfEachKind, IsWrittenWithoutTheCommonDisciplineWhateverItsName) {
    EXPECT_EQ(writtenOf(SpecCore("open", "Open", Taxon("norvex.spec:discipline-1.0.0", "Mine"))), written(""));
}

TEST_P(SpecCoreOfEachKind, IsWrittenWithTheCommonDisciplineInAnotherMinorVersion) {
    EXPECT_EQ(writtenOf(SpecCore("open", "Open", Taxon("norvex.spec:discipline-1.3.0", "Common"))),
              written(R"(,{"id":"discipline","typedValue":{"typeid":"norvex.spec:discipline-1.3.0"}})"));
}

TEST_P(SpecCoreOfEachKind, IsWrittenWithItsDisciplineBehindItsName) {
    EXPECT_EQ(writtenOf(SpecCore("open", "Open", Taxon("civil", "N")), engineOf({disciplineText("civil")})),
              written(R"(,{"id":"discipline","typedValue":{"typeid":"civil"}})"));
}

TEST_P(SpecCoreOfEachKind, IsWrittenWithItsNameEvenWhenThatIsEmpty) {
    EXPECT_EQ(writtenOf(SpecCore("open", "")),
              R"({"typeid":"open","inherits":[")" + kind().base + R"("],"constants":[{"id":"name","value":""}]})");
}

TEST_P(SpecCoreOfEachKind, LosesAnotherNameOfTheCommonDisciplineOnTheRoundTrip) {
    const std::string text = writtenOf(SpecCore("open", "Open", Taxon("norvex.spec:discipline-1.0.0", "Mine")));
    EXPECT_EQ(coreIn(engineOf({text})).getDiscipline().getName(), "Common");
}

TEST_P(SpecCoreOfEachKind, SurvivesTheRoundTripWithTheCommonDiscipline) {
    EXPECT_EQ(rewritten(ParametersEngine(), "open", written("")), written(""));
}

TEST_P(SpecCoreOfEachKind, SurvivesTheRoundTripWithADisciplineOfItsOwn) {
    const std::string text = written(R"(,{"id":"discipline","typedValue":{"typeid":"civil"}})");
    EXPECT_EQ(rewritten(engineOf({disciplineText("civil")}), "open", text), text);
}

TEST_P(SpecCoreOfEachKind, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    const std::string base = kind().base.substr(0, kind().base.size() - 3) + "8.2";
    const std::string text = R"({"note": [], "properties": [{"id": "p", "value": 1}], "inherits": [")" + base +
                             R"("], "typeid": "open", "constants": [)"
                             R"({"id": "discipline", "typedValue": {"typeid": "norvex.spec:discipline-1.0.0"}},)"
                             R"({"id": "extra", "value": 5}, {"id": "name", "value": "Open"}]})";
    EXPECT_EQ(rewritten(ParametersEngine(), "open", text), written(""));
}

TEST_P(SpecCoreOfEachKind, IsReadFromABaseInsideALongerText) {
    const std::string text = schemaText("open", "a " + kind().base + " b", nameOnly);
    EXPECT_EQ(coreIn(engineOf({text})).getName(), "Open");
}

TEST_P(SpecCoreOfEachKind, IsNotReadFromAnotherMajorVersionOfItsBase) {
    for (const char* version : {"4", "10", "21"}) {
        std::string other = kind().base;
        other.replace(other.size() - 5, 1, version);
        EXPECT_EQ(refusalOf(schemaText("open", other, nameOnly)), "Inheritance from an unrecognized base schema.")
            << other;
    }
}

INSTANTIATE_TEST_SUITE_P(Specs, SpecCoreOfEachKind, testing::ValuesIn(specKinds), Support::nameOfRow);

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

class RefusedSpec : public testing::TestWithParam<std::tuple<SpecKind, Fault>> {};

TEST_P(RefusedSpec, FailsWithTheFirstFault) {
    const auto& [kind, fault] = GetParam();
    EXPECT_EQ(refusalOf(textOf(kind, fault.text)), fault.message);
}

INSTANTIATE_TEST_SUITE_P(Constants, RefusedSpec,
                         testing::Combine(testing::ValuesIn(specKinds), testing::ValuesIn(constantFaults)),
                         Support::nameOfBothRows);

class AwkwardSpec : public testing::TestWithParam<std::tuple<SpecKind, Support::AwkwardString>> {
protected:
    static const SpecKind& kind() { return std::get<0>(GetParam()); }
    static const std::string& bytes() { return std::get<1>(GetParam()).bytes; }
    static const std::string& escaped() { return std::get<1>(GetParam()).escaped; }

    static ParametersEngine engineWithDiscipline() {
        ParametersEngine engine;
        engine.registerDiscipline(Taxon("d" + bytes(), "N"));
        return engine;
    }
    static std::string written() {
        return R"({"typeid":")" + escaped() + R"(","inherits":[")" + kind().base +
               R"("],"constants":[{"id":"name","value":")" + escaped() +
               R"("},{"id":"discipline","typedValue":{"typeid":"d)" + escaped() + R"("}}]})";
    }
};

TEST_P(AwkwardSpec, IsWrittenWithItsBytes) {
    ParametersEngine engine = engineWithDiscipline();
    kind().add(engine, SpecCore(bytes(), bytes(), Taxon("d" + bytes(), "")));
    EXPECT_EQ(engine.getSchema(bytes()), written());
}

TEST_P(AwkwardSpec, IsReadWithItsBytes) {
    ParametersEngine engine = engineWithDiscipline();
    engine.registerSchema(written());
    engine.resolveSchemas();
    const SpecCore core = kind().get(engine, bytes());
    EXPECT_EQ(core.getTypeId(), bytes());
    EXPECT_EQ(core.getName(), bytes());
    EXPECT_EQ(core.getDiscipline().getTypeId(), "d" + bytes());
}

TEST_P(AwkwardSpec, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(engineWithDiscipline(), bytes(), written()), written());
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardSpec,
                         testing::Combine(testing::ValuesIn(specKinds), testing::ValuesIn(awkwardStrings)),
                         Support::nameOfBothRows);

} // namespace
