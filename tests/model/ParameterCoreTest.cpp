#include <parameters/ParameterCore.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/KindTypes.h"
#include "support/Messages.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::constant;
using Support::disciplineText;
using Support::engineOf;
using Support::Fault;
using Support::groupText;
using Support::messageOf;
using Support::refusalOf;
using Support::rewritten;
using Support::Shape;

TEST(ParameterCore, AnswersWhatItWasMadeFrom) {
    const ParameterCore core("plant.parameter:gate-1.0.0", "Gate", Taxon("plant.group:safety-1.0.0", "Safety"),
                             "Whether the gate is open.", "Yes", true);
    EXPECT_EQ(core.getTypeId(), "plant.parameter:gate-1.0.0");
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(core.getDescription(), "Whether the gate is open.");
    EXPECT_EQ(core.getSampleText(), "Yes");
    EXPECT_EQ(core.getGroup().getTypeId(), "plant.group:safety-1.0.0");
    EXPECT_EQ(core.getGroup().getName(), "Safety");
    EXPECT_TRUE(core.isReadOnly());
}

TEST(ParameterCore, HasTheGroupOtherUnlessItIsGivenOne) {
    const ParameterCore core("plant.parameter:gate-1.0.0", "Gate", "Whether the gate is open.", "Yes", true);
    EXPECT_EQ(core.getTypeId(), "plant.parameter:gate-1.0.0");
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(core.getDescription(), "Whether the gate is open.");
    EXPECT_EQ(core.getSampleText(), "Yes");
    EXPECT_EQ(core.getGroup().getTypeId(), "norvex.parameter:group-1.0.0");
    EXPECT_EQ(core.getGroup().getName(), "Other");
    EXPECT_TRUE(core.isReadOnly());
}

TEST(ParameterCore, MayBeWritable) {
    EXPECT_FALSE(ParameterCore("gate", "Gate", "", "", false).isReadOnly());
    EXPECT_FALSE(ParameterCore("gate", "Gate", Taxon("safety", "Safety"), "", "", false).isReadOnly());
}

TEST(ParameterCore, ChecksNothingOfWhatItIsMadeFrom) {
    const ParameterCore core("", "", Taxon("", ""), "", "", false);
    EXPECT_EQ(core.getTypeId(), "");
    EXPECT_EQ(core.getName(), "");
    EXPECT_EQ(core.getDescription(), "");
    EXPECT_EQ(core.getSampleText(), "");
    EXPECT_EQ(core.getGroup().getTypeId(), "");
}

const std::string nameOnly = R"({"id": "name", "value": "Gate"})";

/// Returns a parameter core "gate" of a group.
ParameterCore coreOf(const Taxon& group) { return {"gate", "Gate", group, "", "", false}; }

/// What holds for the cores of all parameters, in each of the shapes that their schemas have.
template <class Kind>
struct ParameterCoreOfEachKind : testing::Test {
    /// Returns an engine with what the parameters must name, and a group "safety".
    static ParametersEngine plant() {
        ParametersEngine engine = engineOf({groupText("safety", "Dam Safety")});
        Support::stock(engine, Support::mainShapeOf<Kind>());
        return engine;
    }

    /// Returns the text of the parameter "gate" with the given constants of a core, and all else that it must have.
    static std::string textOf(const Shape& shape, const std::string& constants, const std::string& base) {
        Shape other = shape;
        other.form.constants = [](const std::string& given) { return given; };
        return other.textOfBase(base, "gate", constants, Support::nameTheLeast);
    }
    static std::string textOf(const Shape& shape, const std::string& constants) {
        return textOf(shape, constants, shape.base);
    }

    static ParameterCore coreIn(const ParametersEngine& engine) { return Kind::get(engine, "gate").getCore(); }
    /// Expects something of the core that the given constants make.
    template <class Expectation>
    void expectOf(const std::string& constants, Expectation&& expectation) {
        for (const Shape& shape : shapes) {
            SCOPED_TRACE(shape.base);
            expectation(coreIn(engineOf({textOf(shape, constants)}, plant())));
        }
    }

    static void add(ParametersEngine& engine, const ParameterCore& core) {
        Kind::add(engine, Support::Sample<Kind>::of(core));
    }
    static ParameterCore coreOfAdded(const ParameterCore& core) {
        ParametersEngine engine = plant();
        add(engine, core);
        return coreIn(engine);
    }
    /// Returns the schema of a parameter made in code.
    static std::string writtenOf(const ParameterCore& core, ParametersEngine engine = plant()) {
        add(engine, core);
        return engine.getSchema(core.getTypeId());
    }

    /// Returns the text of a written parameter with the given constants behind its name, which are as JSON has them.
    static std::string written(const Shape& shape, const std::string& more, const std::string& typeId = "gate",
                               const std::string& name = "Gate") {
        std::string constants = R"({"id":"name","value":")" + name + R"("})" + more;
        std::string properties;
        for (const Support::Reference& reference : shape.form.references) {
            if (reference.required) {
                const std::string named = R"({"id":")" + std::string(reference.id) + R"(","typedValue":{"typeid":")" +
                                          Support::sampleIdOf(reference.kind) + R"("}})";
                reference.property ? properties += named : constants += "," + named;
            }
        }
        return R"({"typeid":")" + typeId + R"(","inherits":[")" + shape.base + R"("],"constants":[)" + constants + "]" +
               (properties.empty() ? "" : R"(,"properties":[)" + properties + "]") + "}";
    }
    std::string written(const std::string& more) const { return written(shapes.front(), more); }

    void expectRoundTrip(const std::string& more) {
        for (const Shape& shape : shapes) {
            EXPECT_EQ(rewritten(plant(), "gate", written(shape, more)), written(shape, more));
        }
    }

    const std::vector<Shape> shapes = Support::shapesOf<Kind>();
};

TYPED_TEST_SUITE(ParameterCoreOfEachKind, Support::TestedKinds<Kinds::Parameters>, Support::NameOfKind);

TYPED_TEST(ParameterCoreOfEachKind, HasDefaultsForAllButItsName) {
    this->expectOf(nameOnly, [](const ParameterCore& core) {
        EXPECT_EQ(core.getTypeId(), "gate");
        EXPECT_EQ(core.getName(), "Gate");
        EXPECT_EQ(core.getDescription(), "");
        EXPECT_EQ(core.getSampleText(), "");
        EXPECT_EQ(core.getGroup().getTypeId(), "norvex.parameter:group-1.0.0");
        EXPECT_EQ(core.getGroup().getName(), "Other");
        EXPECT_FALSE(core.isReadOnly());
    });
}

TYPED_TEST(ParameterCoreOfEachKind, HasTheConstantsOfItsSchema) {
    const std::string constants = R"({"id": "readOnly", "value": true}, {"id": "sampleText", "value": "Yes"},
        {"id": "group", "typedValue": {"typeid": "safety"}}, {"id": "description", "value": "Whether it is open."},
        {"id": "name", "value": "Gate"})";
    this->expectOf(constants, [](const ParameterCore& core) {
        EXPECT_EQ(core.getName(), "Gate");
        EXPECT_EQ(core.getDescription(), "Whether it is open.");
        EXPECT_EQ(core.getSampleText(), "Yes");
        EXPECT_EQ(core.getGroup().getTypeId(), "safety");
        EXPECT_EQ(core.getGroup().getName(), "Dam Safety");
        EXPECT_TRUE(core.isReadOnly());
    });
}

TYPED_TEST(ParameterCoreOfEachKind, MayHaveEmptyTextsAndBeWritable) {
    const std::string constants = nameOnly + R"(, {"id": "description", "value": ""},
        {"id": "sampleText", "value": ""}, {"id": "readOnly", "value": false})";
    this->expectOf(constants, [](const ParameterCore& core) {
        EXPECT_EQ(core.getDescription(), "");
        EXPECT_EQ(core.getSampleText(), "");
        EXPECT_FALSE(core.isReadOnly());
    });
}

TYPED_TEST(ParameterCoreOfEachKind, TakesItsGroupAsAPlainValueToo) {
    this->expectOf(nameOnly + ", " + constant("group", R"({"typeid": "safety"})"),
                   [](const ParameterCore& core) { EXPECT_EQ(core.getGroup().getName(), "Dam Safety"); });
}

TYPED_TEST(ParameterCoreOfEachKind, TakesTheValueOfADefinitionThatHasATypedValueToo) {
    const std::string constants = R"({"id": "name", "typedValue": "Lock", "value": "Gate"},
        {"id": "group", "typedValue": {"typeid": "missing"}, "value": {"typeid": "safety"}})";
    this->expectOf(constants, [](const ParameterCore& core) {
        EXPECT_EQ(core.getName(), "Gate");
        EXPECT_EQ(core.getGroup().getName(), "Dam Safety");
    });
}

TYPED_TEST(ParameterCoreOfEachKind, IsRefusedForItsTypeIdBeforeItsGroup) {
    const auto refusal = [](const std::string& typeId) {
        ParametersEngine engine = engineOf({disciplineText("gate")}, TestFixture::plant());
        return messageOf<ValidationException>(
            [&] { TestFixture::add(engine, ParameterCore(typeId, "Gate", Taxon("missing", "M"), "", "", false)); });
    };
    EXPECT_EQ(refusal(""), "Typeid must not be empty.");
    EXPECT_EQ(refusal("gate"), "Schema with typeid gate is already registered.");
    EXPECT_EQ(refusal("new"), "Could not find group with typeid missing.");
}

TYPED_TEST(ParameterCoreOfEachKind, GetsTheRegisteredGroupForTheOneItWasGiven) {
    EXPECT_EQ(this->coreOfAdded(coreOf(Taxon("safety", "Mine"))).getGroup().getTypeId(), "safety");
    EXPECT_EQ(this->coreOfAdded(coreOf(Taxon("safety", "Mine"))).getGroup().getName(), "Dam Safety");
}

TYPED_TEST(ParameterCoreOfEachKind, GetsTheNameOtherForABuiltInGroupThatItWasGiven) {
    const Taxon group = this->coreOfAdded(coreOf(Taxon("norvex.parameter:group-1.3.0", "Mine"))).getGroup();
    EXPECT_EQ(group.getTypeId(), "norvex.parameter:group-1.3.0");
    EXPECT_EQ(group.getName(), "Other");
}

TYPED_TEST(ParameterCoreOfEachKind, KeepsWhatElseItWasGiven) {
    const ParameterCore core = this->coreOfAdded(ParameterCore("gate", "Gate", "Whether it is open.", "Yes", true));
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(core.getDescription(), "Whether it is open.");
    EXPECT_EQ(core.getSampleText(), "Yes");
    EXPECT_TRUE(core.isReadOnly());
}

TYPED_TEST(ParameterCoreOfEachKind, IsWrittenWithoutDefaults) {
    EXPECT_EQ(this->writtenOf(ParameterCore("gate", "Gate", "", "", false)), this->written(""));
    EXPECT_EQ(this->writtenOf(coreOf(Taxon("norvex.parameter:group-1.0.0", "Mine"))), this->written(""));
}

TYPED_TEST(ParameterCoreOfEachKind, IsWrittenWithTheGroupOtherInAnotherMinorVersion) {
    EXPECT_EQ(this->writtenOf(coreOf(Taxon("norvex.parameter:group-1.3.0", "Other"))),
              this->written(R"(,{"id":"group","typedValue":{"typeid":"norvex.parameter:group-1.3.0"}})"));
}

TYPED_TEST(ParameterCoreOfEachKind, IsWrittenWithAllItsConstantsInOneOrder) {
    const ParameterCore core("gate", "Gate", Taxon("safety", "Safety"), "Whether it is open.", "Yes", true);
    EXPECT_EQ(this->writtenOf(core),
              this->written(R"(,{"id":"description","value":"Whether it is open."},{"id":"sampleText","value":"Yes"},)"
                            R"({"id":"group","typedValue":{"typeid":"safety"}},{"id":"readOnly","value":true})"));
}

TYPED_TEST(ParameterCoreOfEachKind, IsWrittenWithEachConstantAlone) {
    EXPECT_EQ(this->writtenOf(ParameterCore("gate", "Gate", "Whether it is open.", "", false)),
              this->written(R"(,{"id":"description","value":"Whether it is open."})"));
    EXPECT_EQ(this->writtenOf(ParameterCore("gate", "Gate", "", "Yes", false)),
              this->written(R"(,{"id":"sampleText","value":"Yes"})"));
    EXPECT_EQ(this->writtenOf(coreOf(Taxon("safety", "Safety"))),
              this->written(R"(,{"id":"group","typedValue":{"typeid":"safety"}})"));
    EXPECT_EQ(this->writtenOf(ParameterCore("gate", "Gate", "", "", true)),
              this->written(R"(,{"id":"readOnly","value":true})"));
}

TYPED_TEST(ParameterCoreOfEachKind, IsWrittenWithItsNameEvenWhenThatIsEmpty) {
    EXPECT_EQ(this->writtenOf(ParameterCore("gate", "", "", "", false)),
              this->written(this->shapes.front(), "", "gate", ""));
}

TYPED_TEST(ParameterCoreOfEachKind, SurvivesTheRoundTrip) {
    this->expectRoundTrip("");
    this->expectRoundTrip(R"(,{"id":"description","value":"D"},{"id":"sampleText","value":"S"},)"
                          R"({"id":"group","typedValue":{"typeid":"safety"}},{"id":"readOnly","value":true})");
}

TYPED_TEST(ParameterCoreOfEachKind, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    for (const Shape& shape : this->shapes) {
        const std::string constants = R"({"id": "extra", "value": 5}, {"id": "readOnly", "value": false},
            {"id": "description", "value": ""}, {"id": "sampleText", "value": ""}, {"id": "name", "value": "Gate"},
            {"id": "group", "typedValue": {"typeid": "norvex.parameter:group-1.0.0"}})";
        std::string text = this->textOf(shape, constants, Support::versionPrefixOf(shape.base) + "8.2");
        text.insert(1, R"("note": [], )");
        if (text.find("properties") == std::string::npos) {
            text.insert(1, R"("properties": [{"id": "p", "value": 1}], )");
        }
        EXPECT_EQ(rewritten(this->plant(), "gate", text), this->written(shape, ""));
    }
}

/// Returns constants that are all malformed but for the first ones of their order.
std::string malformedFrom(std::size_t first) {
    const std::string sound[] = {R"({"id": "name", "value": "Gate"})", R"({"id": "description", "value": "D"})",
                                 R"({"id": "sampleText", "value": "S"})",
                                 R"({"id": "group", "typedValue": {"typeid": "safety"}})"};
    const std::string malformed[] = {R"({"id": "name", "value": ""})", R"({"id": "description", "value": 1})",
                                     R"({"id": "sampleText", "typedValue": null, "value": []})",
                                     R"({"id": "group", "typedValue": {}})"};
    std::string constants = R"({"id": "readOnly", "value": 0})"; // the text's order is not the order of checks
    for (std::size_t place = 4; place > 0; --place) {
        constants += ", " + (place - 1 < first ? sound : malformed)[place - 1];
    }
    return constants;
}

const std::vector<Fault> constantFaults = {
    {"NoName", "", "Schema gate has an undefined name constant."},
    {"NullAsName", R"({"id": "name", "value": null})", "Expected a non-empty string."},
    {"NumberAsName", R"({"id": "name", "value": 5})", "Expected a non-empty string."},
    {"EmptyName", R"({"id": "name", "value": ""})", "Expected a non-empty string."},
    {"NameWithoutAValue", R"({"id": "name"})", "A property definition must contain either a value or a typedValue."},
    {"NullAsDescription", nameOnly + R"(, {"id": "description", "value": null})", "Expected a string."},
    {"NumberAsDescription", nameOnly + R"(, {"id": "description", "value": 5})", "Expected a string."},
    {"DescriptionWithoutAValue", nameOnly + R"(, {"id": "description"})",
     "A property definition must contain either a value or a typedValue."},
    {"NullAsSampleText", nameOnly + R"(, {"id": "sampleText", "value": null})", "Expected a string."},
    {"TrueAsSampleText", nameOnly + R"(, {"id": "sampleText", "value": true})", "Expected a string."},
    {"SampleTextWithoutAValue", nameOnly + R"(, {"id": "sampleText"})",
     "A property definition must contain either a value or a typedValue."},
    {"StringAsGroup", nameOnly + R"(, {"id": "group", "typedValue": "safety"})", "A typedValue must be an object."},
    {"NullAsGroup", nameOnly + R"(, {"id": "group", "value": null})", "A typedValue must be an object."},
    {"EmptyGroup", nameOnly + R"(, {"id": "group", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"GroupWithAnotherMember", nameOnly + R"(, {"id": "group", "typedValue": {"typeid": "safety", "name": "N"}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"GroupWithoutATypeId", nameOnly + R"(, {"id": "group", "typedValue": {"name": "N"}})",
     "A typedValue did not contain a typeid attribute."},
    {"GroupWithAnEmptyTypeId", nameOnly + R"(, {"id": "group", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"GroupWithANumberAsTypeId", nameOnly + R"(, {"id": "group", "typedValue": {"typeid": 5}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"GroupWithoutAValue", nameOnly + R"(, {"id": "group"})",
     "A property definition must contain either a value or a typedValue."},
    {"NumberAsReadOnly", nameOnly + R"(, {"id": "readOnly", "value": 1})", "Expected a Boolean value."},
    {"StringAsReadOnly", nameOnly + R"(, {"id": "readOnly", "value": "true"})", "Expected a Boolean value."},
    {"NullAsReadOnly", nameOnly + R"(, {"id": "readOnly", "value": null})", "Expected a Boolean value."},
    {"ReadOnlyWithoutAValue", nameOnly + R"(, {"id": "readOnly"})",
     "A property definition must contain either a value or a typedValue."},
    {"NoNameBeforeDescription", R"({"id": "description", "value": 5})", "Schema gate has an undefined name constant."},
    {"NameFirst", malformedFrom(0), "Expected a non-empty string."},
    {"ThenDescription", malformedFrom(1), "Expected a string."},
    {"ThenSampleText", malformedFrom(2), "Expected a string."},
    {"ThenGroup", malformedFrom(3), "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"ThenReadOnly", malformedFrom(4), "Expected a Boolean value."},
    {"DescriptionBeforeSampleText", nameOnly + R"(, {"id": "sampleText", "value": 5}, {"id": "description"})",
     "A property definition must contain either a value or a typedValue."},
};

TYPED_TEST(ParameterCoreOfEachKind, IsRefusedForTheFirstOfItsFaults) {
    for (const Shape& shape : this->shapes) {
        for (const Fault& fault : constantFaults) {
            EXPECT_EQ(refusalOf(this->textOf(shape, fault.text)), fault.message) << shape.base << " " << fault.name;
        }
    }
}

TYPED_TEST(ParameterCoreOfEachKind, KeepsAnyBytes) {
    for (const Support::AwkwardString& string : Support::awkwardStrings) {
        const std::string& bytes = string.bytes;
        ParametersEngine engine = this->plant();
        engine.registerGroup(Taxon("g" + bytes, "N"));
        const std::string constants = R"(,{"id":"description","value":"d)" + string.escaped +
                                      R"("},{"id":"sampleText","value":"s)" + string.escaped +
                                      R"("},{"id":"group","typedValue":{"typeid":"g)" + string.escaped + R"("}})";
        EXPECT_EQ(this->writtenOf(ParameterCore(bytes, bytes, Taxon("g" + bytes, ""), "d" + bytes, "s" + bytes, false),
                                  engine),
                  this->written(this->shapes.front(), constants, string.escaped, string.escaped))
            << string.name;
        for (const Shape& shape : this->shapes) {
            const std::string text = this->written(shape, constants, string.escaped, string.escaped);
            const ParametersEngine read = engineOf({text}, engine);
            EXPECT_EQ(read.getSchema(bytes), text) << string.name;
            const ParameterCore core = TypeParam::get(read, bytes).getCore();
            EXPECT_EQ(core.getTypeId(), bytes);
            EXPECT_EQ(core.getName(), bytes);
            EXPECT_EQ(core.getDescription(), "d" + bytes);
            EXPECT_EQ(core.getSampleText(), "s" + bytes);
            EXPECT_EQ(core.getGroup().getTypeId(), "g" + bytes);
        }
    }
}

} // namespace
