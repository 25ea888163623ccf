#include "FailingAllocations.h"

#include "support/Picture.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Parameters::ParametersEngine;
using Support::Answers;
using Support::constant;
using Support::EveryAllocation;
using Support::Operation;
using Support::schemaText;
using Support::typedConstant;
using Support::typedConstants;
using Support::unitText;

// Too long for strings to keep them without memory, as all typeids here.
const std::string added = "the typeid of whatever an operation adds to the engine";

std::string baseTypeId(const std::string& kind) { return "the registered object of the kind " + kind; }

std::string pendingTypeId(const std::string& kind) { return "the schema that is pending of the kind " + kind; }

std::string named(const std::string& id, const std::string& kind) { return ", " + typedConstant(id, baseTypeId(kind)); }

/// One kind: how its schemas are written, and how its objects get from one engine into another.
struct Kind {
    std::string name;
    std::string base;
    std::string constants;
    void (*transfer)(const ParametersEngine& from, ParametersEngine& to);
    void (*list)(const ParametersEngine& engine);
    std::string properties;

    std::string text(const std::string& typeId) const {
        std::string schema = schemaText(typeId, base, constants);
        return schema.insert(schema.size() - 1, properties);
    }
};

template <auto get, auto add>
void transfer(const ParametersEngine& from, ParametersEngine& to) {
    (to.*add)((from.*get)(added));
}

template <auto getAll>
void list(const ParametersEngine& engine) {
    EXPECT_FALSE((engine.*getAll)().empty());
}

#define PARAMETERS_KIND(name, plural)                                                                                  \
    transfer<&ParametersEngine::get##name, &ParametersEngine::register##name>, list<&ParametersEngine::getAll##plural>

const std::string name = constant("name", "\"A name that strings cannot keep without memory\"");
const std::string bounds = constant("fromBottom", "true") + ", " + constant("fromTop", "false");
const std::string disciplined = name + named("discipline", "Discipline");
const std::string grouped = name + named("group", "Group");

/// In an order in which each names kinds before it.
const std::vector<Kind> kinds{
    {"Enumeration", "Enum", name, PARAMETERS_KIND(Enumeration, Enumerations),
     R"(, "properties": [{"id": "a value of an enumeration", "value": 1}])"},
    {"FloatRange", "norvex.range:range.float64.bounded.static-1.0.0", bounds, PARAMETERS_KIND(FloatRange, FloatRanges),
     ""},
    {"IntRange", "norvex.range:range.int64.bounded.static-1.0.0", bounds, PARAMETERS_KIND(IntRange, IntRanges), ""},
    {"StringRange", "norvex.range:range.string.set.static-1.0.0",
     constant("allowedValues", R"(["one value that is allowed", "another value that is allowed"])"),
     PARAMETERS_KIND(StringRange, StringRanges), ""},
    {"Discipline", "norvex.spec:discipline-1.0.0", name, PARAMETERS_KIND(Discipline, Disciplines), ""},
    {"Domain", "norvex.talmo.category:domain-1.0.0", name, PARAMETERS_KIND(Domain, Domains), ""},
    {"Group", "norvex.parameter:group-1.0.0", name, PARAMETERS_KIND(Group, Groups), ""},
    {"Category", "norvex.talmo.category:majorCategory-1.0.0",
     name + named("domain", "Domain") + ", " + typedConstants("disciplines", {baseTypeId("Discipline")}),
     PARAMETERS_KIND(Category, Categories), ""},
    {"SubCategory", "norvex.talmo.category:subCategory-1.0.0", name + named("parent", "Category"),
     PARAMETERS_KIND(Category, Categories), ""},
    {"BoolSpec", "norvex.spec:spec.bool-1.0.0", disciplined, PARAMETERS_KIND(BoolSpec, BoolSpecs), ""},
    {"GeneralSpec", "norvex.spec:spec-1.0.0", disciplined, PARAMETERS_KIND(GeneralSpec, GeneralSpecs), ""},
    {"IntSpec", "norvex.spec:spec.int64-2.0.0", disciplined, PARAMETERS_KIND(IntSpec, IntSpecs), ""},
    {"MeasurableSpec", "norvex.spec:spec.measurable-2.0.0",
     disciplined + ", " + typedConstants("applicableUnits", {baseTypeId("Unit")}) + named("storageUnit", "Unit"),
     PARAMETERS_KIND(MeasurableSpec, MeasurableSpecs), ""},
    {"ReferenceSpec", "norvex.spec:spec.reference-1.0.0", disciplined + named("category", "Category"),
     PARAMETERS_KIND(ReferenceSpec, ReferenceSpecs), ""},
    {"StringSpec", "norvex.spec:spec.string-2.0.0", disciplined, PARAMETERS_KIND(StringSpec, StringSpecs), ""},
    {"EnumerationParameter", "norvex.parameter:parameter-2.0.0", grouped + named("spec", "GeneralSpec"),
     PARAMETERS_KIND(EnumerationParameter, EnumerationParameters),
     R"(, "properties": [)" + typedConstant("value", baseTypeId("Enumeration")) + "]"},
    {"BoolParameter", "norvex.parameter:parameter.bool-2.0.0", grouped + named("spec", "BoolSpec"),
     PARAMETERS_KIND(BoolParameter, BoolParameters), ""},
    {"IntParameter", "norvex.parameter:parameter.int64-3.0.0",
     grouped + named("spec", "IntSpec") + named("range", "IntRange"), PARAMETERS_KIND(IntParameter, IntParameters), ""},
    {"MeasurableParameter", "norvex.parameter:parameter.measurable-3.0.0",
     grouped + named("spec", "MeasurableSpec") + named("range", "FloatRange"),
     PARAMETERS_KIND(MeasurableParameter, MeasurableParameters), ""},
    {"ReferenceParameter", "norvex.parameter:parameter.reference-2.0.0", grouped + named("spec", "ReferenceSpec"),
     PARAMETERS_KIND(ReferenceParameter, ReferenceParameters), ""},
    {"StringParameter", "norvex.parameter:parameter.string-3.0.0",
     grouped + named("spec", "StringSpec") + named("range", "StringRange"),
     PARAMETERS_KIND(StringParameter, StringParameters), ""},
};

/// Returns an engine that holds an object of each kind.
ParametersEngine base() {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(unitText(baseTypeId("Unit")));
    for (const Kind& kind : kinds) {
        engine.registerSchema(kind.text(baseTypeId(kind.name)));
    }
    engine.resolveSchemas();
    return engine;
}

/// Returns an engine that holds an object of each kind, and has a schema of each pending.
ParametersEngine prepared() {
    ParametersEngine engine = base();
    for (const Kind& kind : kinds) {
        engine.registerSchema(kind.text(pendingTypeId(kind.name)));
    }
    return engine;
}

std::string pictureOf(const ParametersEngine& engine) { return Support::pictureOf(engine, {added}); }

/// Returns a copy of an engine that shares nothing with it, which a mere copy does.
ParametersEngine unshared() {
    static const ParametersEngine original = prepared();
    ParametersEngine copy(original);
    copy.registerDiscipline(Parameters::Taxon("what makes the copy one of its own", "Name"));
    return copy;
}

/// An engine in which an object of each kind has the typeid of what is added.
ParametersEngine withAdded(const Kind& kind) {
    ParametersEngine engine = base();
    engine.registerSchema(kind.text(added));
    engine.resolveSchemas();
    return engine;
}

std::vector<Operation> changes() {
    std::vector<Operation> operations{{"ResolveSchemas", [](ParametersEngine& engine) {
                                           engine.resolveSchemas();
                                           return Answers();
                                       }}};
    for (const Kind& kind : kinds) {
        operations.push_back({"Register" + kind.name + "Text", [&kind](ParametersEngine& engine) {
                                  return engine.registerSchema(kind.text(added)).first;
                              }});
        operations.push_back({"Register" + kind.name, [donor = withAdded(kind), &kind](ParametersEngine& engine) {
                                  kind.transfer(donor, engine);
                                  return Answers();
                              }});
    }
    return operations;
}

class FailingChangeOfEachKind : public testing::TestWithParam<Operation> {};

TEST_P(FailingChangeOfEachKind, LeavesAnEngineAsItWas) {
    EveryAllocation(GetParam(), unshared, pictureOf, false).fail();
}

TEST_P(FailingChangeOfEachKind, LeavesAnEngineThatSharesItsStateAsItWas) {
    EveryAllocation(GetParam(), unshared, pictureOf, true).fail();
}

INSTANTIATE_TEST_SUITE_P(Allocation, FailingChangeOfEachKind, testing::ValuesIn(changes()), Support::nameOfRow);

TEST(FailingDiscard, LeavesAnEngineThatSharesItsStateAsItWas) {
    const Operation discard{"DiscardPending", [](ParametersEngine& engine) {
                                engine.discardPending(pendingTypeId("BoolSpec"));
                                return Answers();
                            }};
    EveryAllocation(discard, unshared, pictureOf, true).fail(); // one that shares nothing needs no memory for it
}

/// Adds what is asked of the kinds of parameters that can be read, and are asked about as objects.
template <auto read, auto get>
void addParameterQueries(std::vector<Operation>& operations, const std::string& kindName) {
    const auto kind = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& one) { return one.name == kindName; });
    operations.push_back({"Read" + kindName, [kind](ParametersEngine& engine) {
                              return Answers{(engine.*read)(kind->text(added)).getCore().getTypeId()};
                          }});
    operations.push_back({"ReadValueTypeOf" + kindName, [kind](ParametersEngine& engine) {
                              return Answers{std::to_string(engine.readValueType(kind->text(added)))};
                          }});
    const auto object = (withAdded(*kind).*get)(added);
    operations.push_back({"GetSchemaOfTheObject" + kindName,
                          [object](ParametersEngine& engine) { return Answers{engine.getSchema(object)}; }});
    operations.push_back({"GetDependenciesOfTheObject" + kindName,
                          [object](ParametersEngine& engine) { return engine.getDependencies(object); }});
}

void addQueries(std::vector<Operation>& operations, const Kind& kind) {
    operations.push_back({"GetSchemaOf" + kind.name, [&kind](ParametersEngine& engine) {
                              return Answers{engine.getSchema(baseTypeId(kind.name))};
                          }});
    operations.push_back({"GetDependenciesOf" + kind.name, [&kind](ParametersEngine& engine) {
                              try {
                                  return engine.getDependencies(baseTypeId(kind.name));
                              } catch (const Parameters::UnrecognizedIdentifierException& exception) {
                                  return Answers{exception.what()};
                              }
                          }});
    operations.push_back({"GetAllOf" + kind.name, [&kind](ParametersEngine& engine) {
                              kind.list(engine);
                              return Answers();
                          }});
}

std::vector<Operation> queries() {
    using Engine = ParametersEngine;
    std::vector<Operation> operations;
    operations.push_back(
        {"FindUnresolvable", [](Engine& engine) { return Support::keysOf(engine.findUnresolvable()); }});
    operations.push_back({"CopyOfAllKinds", [](Engine& engine) {
                              const Engine copy(engine);
                              return Answers{copy.getSchema(baseTypeId("StringParameter"))};
                          }});
    for (const Kind& kind : kinds) {
        addQueries(operations, kind);
    }
    addParameterQueries<&Engine::readBoolParameter, &Engine::getBoolParameter>(operations, "BoolParameter");
    addParameterQueries<&Engine::readIntParameter, &Engine::getIntParameter>(operations, "IntParameter");
    addParameterQueries<&Engine::readMeasurableParameter, &Engine::getMeasurableParameter>(operations,
                                                                                           "MeasurableParameter");
    addParameterQueries<&Engine::readReferenceParameter, &Engine::getReferenceParameter>(operations,
                                                                                         "ReferenceParameter");
    addParameterQueries<&Engine::readStringParameter, &Engine::getStringParameter>(operations, "StringParameter");
    return operations;
}

class FailingQueryOfEachKind : public testing::TestWithParam<Operation> {};

TEST_P(FailingQueryOfEachKind, LeavesAnEngineAsItWas) {
    EveryAllocation(GetParam(), unshared, pictureOf, false).fail();
}

INSTANTIATE_TEST_SUITE_P(Allocation, FailingQueryOfEachKind, testing::ValuesIn(queries()), Support::nameOfRow);

/// A fault is pending in each kind that can have one: what is found of them needs memory at many places.
TEST(FailingDiagnosis, LeavesAnEngineAsItWas) {
    const Operation find{"FindUnresolvable",
                         [](ParametersEngine& engine) { return Support::keysOf(engine.findUnresolvable()); }};
    const auto faulty = [] {
        ParametersEngine engine;
        for (const Kind& kind : kinds) {
            engine.registerSchema(kind.text(pendingTypeId(kind.name)));
        }
        return engine;
    };
    EveryAllocation(find, faulty, pictureOf, false).fail();
}

} // namespace
