#include "FailingAllocations.h"

#include "support/Picture.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Parameters::ParametersEngine;
using Support::Answers;
using Support::EveryAllocation;
using Support::Operation;
using Support::Reference;
using Support::Shape;

// Too long for strings to keep them without memory, as all typeids and contents here.
const std::string added = "the typeid of whatever an operation adds to the engine";
const std::string content = "1000000000000000000";

const std::vector<Shape> shapes = Support::everyShape();

std::string baseTypeId(const std::string& shape) { return "the registered object of the shape " + shape; }

std::string pendingTypeId(const std::string& shape) { return "the schema that is pending of the shape " + shape; }

/// Names all that can be named, by the objects that are registered.
std::string nameAll(const Reference& reference) {
    if (!reference.kind) {
        return baseTypeId(Support::unitShape().name);
    }
    const auto named = std::find_if(shapes.begin(), shapes.end(), [&](const Shape& shape) {
        return shape.kind == reference.kind && (reference.base.empty() || reference.base == shape.base);
    });
    return baseTypeId(named->name);
}

std::string textOf(const Shape& shape, const std::string& typeId) { return shape.text(typeId, content, nameAll); }

/// Returns an engine that holds an object of each shape.
ParametersEngine base() {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText(baseTypeId(Support::unitShape().name)));
    for (const Shape& shape : shapes) {
        engine.registerSchema(textOf(shape, baseTypeId(shape.name)));
    }
    engine.resolveSchemas();
    return engine;
}

/// Returns an engine that holds an object of each shape, and has a schema of each pending.
ParametersEngine prepared() {
    ParametersEngine engine = base();
    for (const Shape& shape : shapes) {
        engine.registerSchema(textOf(shape, pendingTypeId(shape.name)));
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

/// Returns an engine in which an object has the typeid of what is added.
ParametersEngine withAdded(const Shape& shape) {
    ParametersEngine engine = base();
    engine.registerSchema(textOf(shape, added));
    engine.resolveSchemas();
    return engine;
}

/// Calls visit(kind, shape) with each shape of each kind of a list.
template <class Kinds, class Visitor>
void forEachShape(Kinds kinds, Visitor&& visit) {
    Parameters::forEachKind(kinds, [&](auto kind) {
        for (const Shape& shape : Support::shapesOf<decltype(kind)>()) {
            visit(kind, shape);
        }
    });
}

std::vector<Operation> changes() {
    std::vector<Operation> operations{{"ResolveSchemas", [](ParametersEngine& engine) {
                                           engine.resolveSchemas();
                                           return Answers();
                                       }}};
    forEachShape(Parameters::Kinds::All{}, [&](auto kind, const Shape& shape) {
        operations.push_back(
            {"Register" + shape.name + "Text",
             [text = textOf(shape, added)](ParametersEngine& engine) { return engine.registerSchema(text).first; }});
        operations.push_back({"Register" + shape.name, [kind, donor = withAdded(shape)](ParametersEngine& engine) {
                                  kind.add(engine, kind.get(donor, added));
                                  return Answers();
                              }});
    });
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

/// What waits for it goes on waiting, under a typeid that nobody else has then.
TEST(FailingDiscard, OfWhatIsNamedLeavesAnEngineAsItWas) {
    const Operation discard{"DiscardPending", [](ParametersEngine& engine) {
                                engine.discardPending("named");
                                return Answers();
                            }};
    const auto waiting = [] {
        ParametersEngine engine;
        engine.registerSchema(Support::groupText("named"));
        engine.registerSchema(Support::boolParameterText("waits", "named", "norvex.spec:spec.bool-1.0.0"));
        return engine;
    };
    EveryAllocation(discard, waiting, pictureOf, false).fail();
    EveryAllocation(discard, waiting, pictureOf, true).fail();
}

std::vector<Operation> queries() {
    using Engine = ParametersEngine;
    std::vector<Operation> operations;
    operations.push_back(
        {"FindUnresolvable", [](Engine& engine) { return Support::keysOf(engine.findUnresolvable()); }});
    operations.push_back({"CopyOfAllKinds", [](Engine& engine) {
                              const Engine copy(engine);
                              return Answers{copy.getSchema(baseTypeId(shapes.back().name))};
                          }});
    forEachShape(Parameters::Kinds::All{}, [&](auto kind, const Shape& shape) {
        operations.push_back({"GetSchemaOf" + shape.name, [typeId = baseTypeId(shape.name)](Engine& engine) {
                                  return Answers{engine.getSchema(typeId)};
                              }});
        operations.push_back({"GetDependenciesOf" + shape.name, [typeId = baseTypeId(shape.name)](Engine& engine) {
                                  try {
                                      return engine.getDependencies(typeId);
                                  } catch (const Parameters::UnrecognizedIdentifierException& exception) {
                                      return Answers{exception.what()};
                                  }
                              }});
        operations.push_back({"GetAllOf" + shape.name, [kind](Engine& engine) {
                                  EXPECT_FALSE(kind.getAll(engine).empty());
                                  return Answers();
                              }});
    });
    forEachShape(Parameters::Kinds::All{}, [&](auto kind, const Shape& shape) {
        operations.push_back({"Walk" + shape.name, [kind](Engine& engine) {
                                  Answers typeIds;
                                  for (const auto& object : kind.all(engine)) {
                                      typeIds.emplace(object.typeId());
                                  }
                                  return typeIds;
                              }});
        operations.push_back({"DependentsOf" + shape.name, [typeId = baseTypeId(shape.name)](Engine& engine) {
                                  Answers typeIds;
                                  for (const auto& [dependent, named] : engine.dependentsOf(typeId)) {
                                      typeIds.emplace(dependent);
                                  }
                                  return typeIds;
                              }});
    });
    // The parameters that can be read are asked about as objects too.
    forEachShape(Parameters::Kinds::Readable{}, [&](auto kind, const Shape& shape) {
        const std::string text = textOf(shape, added);
        const auto object = kind.get(withAdded(shape), added);
        operations.push_back({"Read" + shape.name, [kind, text](Engine& engine) {
                                  return Answers{kind.typeIdOf(kind.read(engine, text))};
                              }});
        operations.push_back({"ReadValueTypeOf" + shape.name,
                              [text](Engine& engine) { return Answers{std::to_string(engine.readValueType(text))}; }});
        operations.push_back({"GetSchemaOfTheObject" + shape.name,
                              [object](Engine& engine) { return Answers{engine.getSchema(object)}; }});
        operations.push_back({"GetDependenciesOfTheObject" + shape.name,
                              [object](Engine& engine) { return engine.getDependencies(object); }});
    });
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
        for (const Shape& shape : shapes) {
            engine.registerSchema(textOf(shape, pendingTypeId(shape.name)));
        }
        return engine;
    };
    EveryAllocation(find, faulty, pictureOf, false).fail();
}

} // namespace
