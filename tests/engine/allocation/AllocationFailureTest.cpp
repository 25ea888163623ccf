#include "FailingAllocations.h"

#include "support/Picture.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <map>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::GeneralSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::domainText;
using Support::Ending;
using Support::endingOf;
using Support::generalSpecText;
using Support::groupText;
using Support::keysOf;
using Support::Operation;
using Support::unitText;

// Too long for strings to keep them without memory.
const std::string discipline = "the discipline that specs of this engine name";
const std::string group = "the group that parameters of this engine name";
const std::string spec = "the Boolean spec that parameters of this engine name";
const std::string parameter = "the parameter that names the group and the Boolean spec";
const std::string added = "the typeid of whatever an operation adds to the engine";

std::string pictureOf(const ParametersEngine& engine) {
    return Support::pictureOf(engine, {discipline, group, spec, parameter, added, "pending", "pending spec"});
}

/// Texts that are sound, faulty in every way that differs inside, of units, and one that waits for another.
const std::map<std::string, std::string> faultyBatch{
    {"a", boolParameterText(added, group, spec)},
    {"b", boolSpecText("a spec that names what is not there", "a discipline that is not there")},
    {"c", unitText("a unit of the batch that is sound")},
    {"d", unitText("a unit of the batch that is faulty", "")},
    {"e", disciplineText(discipline, "Another")},
    {"f", "? this text is no JSON, and longer than short"},
    {"g", Support::schemaText("a group with a misspelt constant", "norvex.parameter:group-1.0.0",
                              R"({"id": "Name", "value": 1, "more": {}}, {"id": "other"})")},
    {"h", boolParameterText("a parameter that names a faulty spec", group, "a spec that names what is not there")}};

Support::Answers answersOf(const std::vector<Parameters::Fault>& faults) {
    Support::Answers answers;
    for (const Parameters::Fault& fault : faults) {
        answers.insert(fault.place().text + fault.place().pointer + " " + fault.message());
    }
    return answers;
}

/// Returns an engine with objects and pending schemas, and so many more objects: the tables grow at 8 and at 12
/// typeids.
ParametersEngine prepared(int more) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon(discipline, "Name"));
    engine.registerGroup(Taxon(group, "Name"));
    engine.registerSchemas(
        {{spec, boolSpecText(spec, discipline)}, {"parameter", boolParameterText(parameter, group, spec)}});
    engine.registerSchema(groupText("pending"));
    engine.registerSchema(generalSpecText("pending spec", discipline));
    for (int i = 0; i < more; ++i) {
        engine.registerDomain(Taxon("domain " + std::to_string(i), "Name"));
    }
    return engine;
}

BoolParameter newParameter() {
    return {ParameterCore(added, "Name", Taxon(group, ""), "", "", false), BoolSpec(SpecCore(spec, ""))};
}

using Answers = Support::Answers;

void failEach(const Operation& operation, int moreObjects, bool shared) {
    Support::EveryAllocation(
        operation, [=] { return prepared(moreObjects); }, pictureOf, shared)
        .fail();
}

class FailingChange : public testing::TestWithParam<Operation> {};

TEST_P(FailingChange, LeavesAnEngineAsItWas) { failEach(GetParam(), 0, false); }

TEST_P(FailingChange, LeavesAnEngineThatSharesItsStateAsItWas) { failEach(GetParam(), 0, true); }

TEST_P(FailingChange, LeavesAnEngineWithoutRoomForEntriesAsItWas) { failEach(GetParam(), 2, false); }

TEST_P(FailingChange, LeavesAnEngineWithoutRoomForSlotsAsItWas) { failEach(GetParam(), 6, false); }

const Operation changes[] = {
    {"RegisterSchema", [](ParametersEngine& engine) { return engine.registerSchema(disciplineText(added)).first; }},
    {"RegisterSchemaThatMissesOthers",
     [](ParametersEngine& engine) {
         return engine.registerSchema(boolParameterText(added, "a missing group", "a missing spec")).first;
     }},
    {"ResolveSchemas",
     [](ParametersEngine& engine) {
         engine.resolveSchemas();
         return Answers();
     }},
    {"RegisterSoundSchemas",
     [](ParametersEngine& engine) {
         engine.registerSoundSchemas(faultyBatch);
         return Answers();
     }},
    {"RegisterDiscipline",
     [](ParametersEngine& engine) {
         engine.registerDiscipline(Taxon(added, "Name"));
         return Answers();
     }},
    {"RegisterDomain",
     [](ParametersEngine& engine) {
         engine.registerDomain(Taxon(added, "Name"));
         return Answers();
     }},
    {"RegisterGroup",
     [](ParametersEngine& engine) {
         engine.registerGroup(Taxon(added, "Name"));
         return Answers();
     }},
    {"RegisterBoolSpec",
     [](ParametersEngine& engine) {
         engine.registerBoolSpec(BoolSpec(SpecCore(added, "Name", Taxon(discipline, ""))));
         return Answers();
     }},
    {"RegisterGeneralSpec",
     [](ParametersEngine& engine) {
         engine.registerGeneralSpec(GeneralSpec(SpecCore(added, "Name")));
         return Answers();
     }},
    {"RegisterBoolParameter",
     [](ParametersEngine& engine) {
         engine.registerBoolParameter(newParameter());
         return Answers();
     }},
    {"Assignment",
     [](ParametersEngine& engine) {
         ParametersEngine source;
         source.registerDomain(Taxon(added, "Name"));
         source.registerSchema(disciplineText(discipline));
         engine = source;
         return Answers();
     }},
};

INSTANTIATE_TEST_SUITE_P(Allocation, FailingChange, testing::ValuesIn(changes), Support::nameOfRow);

class FailingQuery : public testing::TestWithParam<Operation> {};

TEST_P(FailingQuery, LeavesAnEngineAsItWas) { failEach(GetParam(), 0, false); }

const Operation queries[] = {
    {"RefusedSchema",
     [](ParametersEngine& engine) {
         Answers answers;
         try {
             engine.registerSchema(disciplineText(added, ""));
         } catch (const Parameters::ValidationException& exception) {
             answers.insert(exception.what());
         }
         return answers;
     }},
    {"FindFaults", [](ParametersEngine& engine) { return answersOf(engine.findFaults(faultyBatch)); }},
    {"RefusedObject",
     [](ParametersEngine& engine) {
         Answers answers;
         try {
             engine.registerBoolParameter({ParameterCore(added, "Name", "", "", false), BoolSpec(SpecCore("x", ""))});
         } catch (const Parameters::ValidationException& exception) {
             answers.insert(exception.what());
         }
         return answers;
     }},
    {"ReadBoolParameter",
     [](ParametersEngine& engine) {
         return Answers{
             engine.readBoolParameter(boolParameterText(added, group, spec)).getSpec().getCore().getTypeId()};
     }},
    {"ReadValueType",
     [](ParametersEngine& engine) {
         return Answers{std::to_string(engine.readValueType(boolParameterText(added, group, spec)))};
     }},
    {"IsRegistered", [](ParametersEngine& engine) { return Answers{std::to_string(engine.isRegistered(added))}; }},
    {"GetDiscipline", [](ParametersEngine& engine) { return Answers{engine.getDiscipline(discipline).getTypeId()}; }},
    {"GetBoolSpec", [](ParametersEngine& engine) { return Answers{engine.getBoolSpec(spec).getCore().getTypeId()}; }},
    {"GetBuiltInBoolSpec",
     [](ParametersEngine& engine) {
         return Answers{engine.getBoolSpec("norvex.spec:spec.bool-1.4.0").getCore().getTypeId()};
     }},
    {"GetBoolParameter",
     [](ParametersEngine& engine) { return Answers{engine.getBoolParameter(parameter).getCore().getTypeId()}; }},
    {"GetWhatIsNotThere",
     [](ParametersEngine& engine) {
         Answers answers;
         try {
             engine.getDomain(added);
         } catch (const Parameters::UnrecognizedIdentifierException& exception) {
             answers.insert(exception.what());
         }
         return answers;
     }},
    {"GetAllDisciplines", [](ParametersEngine& engine) { return keysOf(engine.getAllDisciplines()); }},
    {"GetAllBoolParameters", [](ParametersEngine& engine) { return keysOf(engine.getAllBoolParameters()); }},
    {"GetSchema", [](ParametersEngine& engine) { return Answers{engine.getSchema(parameter)}; }},
    {"GetSchemaOfAnObject", [](ParametersEngine& engine) { return Answers{engine.getSchema(newParameter())}; }},
    {"GetDependencies", [](ParametersEngine& engine) { return engine.getDependencies(parameter); }},
    {"GetDependenciesOfAnObject", [](ParametersEngine& engine) { return engine.getDependencies(newParameter()); }},
    {"Copy",
     [](ParametersEngine& engine) {
         const ParametersEngine copy(engine);
         return Answers{copy.getBoolParameter(parameter).getCore().getTypeId()};
     }},
    {"CopyByAssignment",
     [](ParametersEngine& engine) {
         ParametersEngine target;
         target = engine;
         return Answers{target.getBoolParameter(parameter).getCore().getTypeId()};
     }},
};

INSTANTIATE_TEST_SUITE_P(Allocation, FailingQuery, testing::ValuesIn(queries), Support::nameOfRow);

/// A batch of schemas that name each other and a unit, with keys in the order of names.
const std::map<std::string, std::string> batch{{"a", boolParameterText("a", "b", "c")},
                                               {"b", groupText("b")},
                                               {"c", boolSpecText("c", discipline)},
                                               {"d", unitText("d")},
                                               {"e", domainText("e")}};

std::string pictureOfBatch(const ParametersEngine& engine) {
    return Support::pictureOf(engine, {"a", "b", "c", "d", "e", "pending", "pending spec"});
}

/// Returns the pictures that an engine shows while a batch is being registered: after each entry, and after the units
/// are resolved.
std::set<std::string> picturesOnTheWay() {
    ParametersEngine engine = prepared(0);
    std::set<std::string> pictures{pictureOfBatch(engine)};
    for (const auto& [key, text] : batch) {
        if (key == "d") {
            engine.getUnitsEngine().registerSchema(text);
        } else {
            engine.registerSchema(text);
        }
        pictures.insert(pictureOfBatch(engine));
    }
    engine.getUnitsEngine().resolveSchemas();
    pictures.insert(pictureOfBatch(engine));
    return pictures;
}

TEST(FailingBatch, LeavesEntriesPendingAndLetsTheBatchBeRegisteredAgain) {
    const std::set<std::string> onTheWay = picturesOnTheWay();
    ParametersEngine complete = prepared(0);
    complete.registerSchemas(batch);
    const std::string after = pictureOfBatch(complete);
    std::set<std::string> seen;
    bool reached = true;
    for (long request = 0; reached; ++request) {
        ParametersEngine engine = prepared(0);
        const Ending ending = endingOf([&] { engine.registerSchemas(batch); }, request);
        reached = ending.reached;
        if (ending.outOfMemory) {
            ASSERT_EQ(onTheWay.count(pictureOfBatch(engine)), 1U) << "request " << request;
            seen.insert(pictureOfBatch(engine));
            engine.registerSchemas(batch);
        }
        ASSERT_EQ(pictureOfBatch(engine), after) << "request " << request;
    }
    // Every state was met but that with all entries pending and unresolved units: resolving those needs no memory.
    EXPECT_EQ(seen.size(), onTheWay.size() - 1);
}

TEST(FailingResolution, DoesNotUndoThatOfTheUnitsEngine) {
    bool reached = true;
    for (long request = 0; reached; ++request) {
        ParametersEngine engine = prepared(0);
        engine.getUnitsEngine().registerSchema(unitText("u"));
        const Ending ending = endingOf([&] { engine.resolveSchemas(); }, request);
        reached = ending.reached;
        EXPECT_EQ(engine.getUnitsEngine().getAllUnits().size(), 1U) << "request " << request;
        ASSERT_EQ(engine.getAllGroups().size(), ending.outOfMemory ? 1U : 2U) << "request " << request;
    }
}

TEST(FailingResolution, KeepsWhatIsPendingWhenThereIsAFaultToo) {
    bool reached = true;
    for (long request = 0; reached; ++request) {
        ParametersEngine engine = prepared(0);
        engine.registerSchema(boolSpecText(added, "a discipline that nobody has registered"));
        const std::string before = pictureOf(engine);
        bool faulty = false;
        const auto resolve = [&] {
            try {
                engine.resolveSchemas();
            } catch (const Parameters::ValidationException&) {
                faulty = true;
            }
        };
        const Ending ending = endingOf(resolve, request);
        reached = ending.reached;
        EXPECT_NE(faulty, ending.outOfMemory) << "request " << request;
        ASSERT_EQ(pictureOf(engine), before) << "request " << request;
    }
}

TEST(Resolution, OfNothingLetsACopyGoOnSharingItsTables) {
    ParametersEngine engine = prepared(0);
    engine.resolveSchemas();
    ParametersEngine copy = engine;
    const Ostra::AllocationWatch watch;
    copy.resolveSchemas();
    EXPECT_EQ(watch.requests(), 0);
}

/// Leaves out all tests of the program where it cannot let requests for memory fail.
class Requirement : public testing::Environment {
public:
    void SetUp() override {
        if (!Ostra::AllocationWatch::sees([] { const ParametersEngine engine; })) {
            GTEST_SKIP() << "requests for memory are not seen in this build";
        }
    }
};

const testing::Environment* const requirement = testing::AddGlobalTestEnvironment(new Requirement);

} // namespace
