#include "support/Picture.h"
#include "support/RowNames.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Parameters::BoolSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::groupText;
using Support::unitText;

static_assert(std::is_default_constructible_v<ParametersEngine>);
static_assert(std::is_copy_constructible_v<ParametersEngine>);
static_assert(std::is_copy_assignable_v<ParametersEngine>);
static_assert(std::is_nothrow_move_constructible_v<ParametersEngine>);
static_assert(std::is_nothrow_move_assignable_v<ParametersEngine>);

std::string pictureOf(const ParametersEngine& engine) {
    return Support::pictureOf(engine, {"d", "g", "s", "p", "u", "e", "f", "v", "w"});
}

/// Returns an engine with objects, pending schemas, and units of both states.
ParametersEngine loaded() {
    ParametersEngine engine;
    engine.registerSchemas({{"d", disciplineText("d", "Fire")}, {"s", boolSpecText("s", "d")}, {"u", unitText("u")}});
    engine.registerSchema(boolParameterText("p", "g", "s"));
    engine.registerSchema(groupText("g", "Doors"));
    engine.getUnitsEngine().registerSchema(unitText("v"));
    return engine;
}

struct Change {
    const char* name;
    void (*apply)(ParametersEngine& engine);
};

const Change changes[] = {
    {"RegisteringAnObject", [](ParametersEngine& e) { e.registerDiscipline(Taxon("e", "New")); }},
    {"RegisteringAnObjectThatNamesAnother",
     [](ParametersEngine& e) { e.registerBoolSpec(BoolSpec(SpecCore("e", "New", Taxon("d", "")))); }},
    {"RegisteringASchema", [](ParametersEngine& e) { e.registerSchema(disciplineText("e")); }},
    {"RegisteringABatch",
     [](ParametersEngine& e) {
         e.registerSchemas({{"e", disciplineText("e")}});
     }},
    {"Resolving", [](ParametersEngine& e) { e.resolveSchemas(); }},
    {"RegisteringAUnit", [](ParametersEngine& e) { e.getUnitsEngine().registerSchema(unitText("w")); }},
    {"ResolvingUnits", [](ParametersEngine& e) { e.getUnitsEngine().resolveSchemas(); }},
    {"Emptying", [](ParametersEngine& e) { e = ParametersEngine(); }},
    {"MovingAway", [](ParametersEngine& e) { const ParametersEngine other(std::move(e)); }},
};

class Copies : public testing::TestWithParam<Change> {};

TEST_P(Copies, DoNotSeeChangesOfTheOriginal) {
    ParametersEngine original = loaded();
    const ParametersEngine copy(original);
    GetParam().apply(original);
    EXPECT_EQ(pictureOf(copy), pictureOf(loaded()));
}

TEST_P(Copies, DoNotChangeTheOriginal) {
    const ParametersEngine original = loaded();
    ParametersEngine copy(original);
    GetParam().apply(copy);
    EXPECT_EQ(pictureOf(original), pictureOf(loaded()));
}

TEST_P(Copies, ByAssignmentDoNotSeeChangesOfTheOriginal) {
    ParametersEngine original = loaded();
    ParametersEngine copy;
    copy.registerDiscipline(Taxon("f", "Gone"));
    copy = original;
    GetParam().apply(original);
    EXPECT_EQ(pictureOf(copy), pictureOf(loaded()));
}

TEST_P(Copies, ByAssignmentDoNotChangeTheOriginal) {
    const ParametersEngine original = loaded();
    ParametersEngine copy;
    copy = original;
    GetParam().apply(copy);
    EXPECT_EQ(pictureOf(original), pictureOf(loaded()));
}

TEST_P(Copies, OfCopiesAreOnTheirOwn) {
    ParametersEngine original = loaded();
    ParametersEngine copy(original);
    const ParametersEngine copyOfCopy(copy);
    GetParam().apply(copy);
    EXPECT_EQ(pictureOf(copyOfCopy), pictureOf(loaded()));
    EXPECT_EQ(pictureOf(original), pictureOf(loaded()));
}

TEST_P(Copies, SurviveTheOriginal) {
    auto original = std::make_unique<ParametersEngine>(loaded());
    const ParametersEngine copy(*original);
    GetParam().apply(*original);
    original.reset();
    EXPECT_EQ(pictureOf(copy), pictureOf(loaded()));
}

INSTANTIATE_TEST_SUITE_P(Engines, Copies, testing::ValuesIn(changes), Support::nameOfRow);

TEST(CopyOfAnEngine, HasAllOfTheOriginal) {
    const ParametersEngine original = loaded();
    const ParametersEngine copy(original);
    EXPECT_EQ(pictureOf(copy), pictureOf(original));
    EXPECT_EQ(copy.getBoolSpec("s").getCore().getDiscipline().getName(), "Fire");
    EXPECT_TRUE(copy.isRegistered("p"));
    EXPECT_TRUE(copy.isRegistered("v"));
}

TEST(CopyOfAnEngine, ResolvesWhatWasPendingInTheOriginal) {
    const ParametersEngine original = loaded();
    ParametersEngine copy(original);
    copy.resolveSchemas();
    EXPECT_EQ(copy.getBoolParameter("p").getCore().getGroup().getName(), "Doors");
    EXPECT_EQ(copy.getUnitsEngine().getAllUnits().size(), 2U);
    EXPECT_TRUE(original.getAllBoolParameters().empty());
}

TEST(CopyOfAnEngine, ResolvesAfterTheOriginalIsGone) {
    auto original = std::make_unique<ParametersEngine>(loaded());
    ParametersEngine copy(*original);
    original.reset();
    copy.resolveSchemas();
    EXPECT_EQ(copy.getBoolParameter("p").getSpec().getCore().getDiscipline().getName(), "Fire");
}

TEST(CopyOfAnEngine, LetsBothGoOnInDifferentWays) {
    ParametersEngine original = loaded();
    ParametersEngine copy(original);
    original.registerDiscipline(Taxon("x", "Of the original"));
    copy.registerDiscipline(Taxon("x", "Of the copy"));
    original.resolveSchemas();
    copy.registerDomain(Taxon("y", "Of the copy"));
    EXPECT_EQ(original.getDiscipline("x").getName(), "Of the original");
    EXPECT_EQ(copy.getDiscipline("x").getName(), "Of the copy");
    EXPECT_FALSE(original.isRegistered("y"));
    EXPECT_TRUE(copy.getAllBoolParameters().empty());
}

TEST(CopyOfAnEngine, HasItsOwnUnitsEngine) {
    ParametersEngine original = loaded();
    ParametersEngine copy(original);
    EXPECT_NE(&copy.getUnitsEngine(), &original.getUnitsEngine());
}

TEST(CopyOfAnEngine, LeavesTheOriginalsUnitsEngineWhereItIs) {
    ParametersEngine original = loaded();
    Units::UnitsEngine& units = original.getUnitsEngine();
    ParametersEngine copy(original);
    copy.registerDiscipline(Taxon("x", "New"));
    original.registerDiscipline(Taxon("x", "New"));
    EXPECT_EQ(&original.getUnitsEngine(), &units);
}

TEST(CopyOfAnEngine, KeepsListsThatWereAskedForBefore) {
    ParametersEngine original;
    original.registerGroup(Taxon("b", "B"));
    EXPECT_EQ(original.getAllGroups().size(), 1U);
    original.registerGroup(Taxon("a", "A"));
    ParametersEngine copy(original);
    copy.registerGroup(Taxon("c", "C"));
    original.registerGroup(Taxon("aa", "AA"));
    EXPECT_EQ(copy.getAllGroups().size(), 3U);
    EXPECT_EQ(copy.getAllGroups().begin()->first, "a");
    EXPECT_EQ(original.getAllGroups().rbegin()->first, "b");
}

TEST(CopyOfAnEngine, MayBeMadeAgainAndAgainWhileTheOriginalGrows) {
    ParametersEngine original;
    std::vector<ParametersEngine> copies;
    for (int i = 0; i < 50; ++i) {
        copies.push_back(original);
        original.registerSchema(disciplineText("d" + std::to_string(i)));
        original.resolveSchemas();
    }
    for (std::size_t i = 0; i < copies.size(); ++i) {
        EXPECT_EQ(copies[i].getAllDisciplines().size(), i);
    }
}

TEST(AssignmentOfAnEngine, ReplacesEverything) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("f", "Gone"));
    engine.registerSchema(groupText("g", "Gone"));
    engine.getUnitsEngine().registerSchema(unitText("w"));
    engine = loaded();
    EXPECT_EQ(pictureOf(engine), pictureOf(loaded()));
}

TEST(AssignmentOfAnEngine, ToItselfChangesNothing) {
    ParametersEngine engine = loaded();
    const ParametersEngine& same = engine;
    engine = same;
    EXPECT_EQ(pictureOf(engine), pictureOf(loaded()));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Doors");
}

TEST(MoveOfAnEngine, TakesEverything) {
    ParametersEngine original = loaded();
    Units::UnitsEngine& units = original.getUnitsEngine();
    ParametersEngine moved(std::move(original));
    EXPECT_EQ(pictureOf(moved), pictureOf(loaded()));
    EXPECT_EQ(&moved.getUnitsEngine(), &units);
}

TEST(MoveOfAnEngine, ByAssignmentReplacesEverything) {
    ParametersEngine original = loaded();
    ParametersEngine target;
    target.registerDiscipline(Taxon("f", "Gone"));
    target = std::move(original);
    EXPECT_EQ(pictureOf(target), pictureOf(loaded()));
}

TEST(MoveOfAnEngine, ToItselfChangesNothing) {
    ParametersEngine engine = loaded();
    ParametersEngine& same = engine;
    engine = std::move(same);
    EXPECT_EQ(pictureOf(engine), pictureOf(loaded()));
}

TEST(MoveOfAnEngine, LeavesCopiesAlone) {
    ParametersEngine original = loaded();
    const ParametersEngine copy(original);
    ParametersEngine moved(std::move(original));
    moved.resolveSchemas();
    EXPECT_EQ(pictureOf(copy), pictureOf(loaded()));
}

TEST(MovedFromEngine, TakesANewValueByCopy) {
    ParametersEngine engine = loaded();
    const ParametersEngine moved(std::move(engine));
    engine = moved;
    EXPECT_EQ(pictureOf(engine), pictureOf(loaded()));
}

/// Returns all that is answered of the object of that typeid.
std::string objectIn(const ParametersEngine& engine, const std::string& typeId) {
    std::string result;
    Parameters::forEachKind([&](auto kind) {
        if (const auto object = kind.find(engine, typeId)) {
            result = Support::describe(*object);
        }
    });
    return result;
}

// What is pending may be made already and shared; only what it names is missing.
TEST(Copies, ResolveWhatWasPendingWithWhatEachHasForIt) {
    for (const Support::Shape& shape : Support::everyShape()) {
        for (const Support::Reference& changed : shape.form.references) {
            if (!changed.kind || !changed.base.empty()) {
                continue; // units have a test of their own; what must be of one base differs in nothing here
            }
            const std::string text = shape.text("x", "3", [&](const Support::Reference& reference) {
                return reference.id == changed.id ? std::string("named") : Support::nameTheLeast(reference);
            });
            ParametersEngine one;
            Support::stock(one, shape);
            one.registerSchema(text);
            ParametersEngine other(one);
            Parameters::forEachKind([&](auto kind) {
                if (kind.info == changed.kind) {
                    Support::addSample<decltype(kind)>(one, "named", "1");
                    Support::addSample<decltype(kind)>(other, "named", "2");
                }
            });
            ParametersEngine alone = other;
            one.resolveSchemas();
            const std::string first = objectIn(one, "x");
            other.resolveSchemas();
            EXPECT_EQ(objectIn(one, "x"), first) << shape.name << " " << changed.id;
            if (changed.id != std::string("parent")) { // which is kept by its typeid alone
                EXPECT_NE(objectIn(other, "x"), first) << shape.name << " " << changed.id;
            }
            one = ParametersEngine();
            EXPECT_TRUE(other.isRegistered("x"));
            alone.resolveSchemas();
            EXPECT_EQ(objectIn(alone, "x"), objectIn(other, "x")) << shape.name << " " << changed.id;
        }
    }
}

TEST(MovedFromEngine, TakesANewValueByMove) {
    ParametersEngine engine = loaded();
    ParametersEngine moved(std::move(engine));
    engine = std::move(moved);
    EXPECT_EQ(pictureOf(engine), pictureOf(loaded()));
}

TEST(MovedFromEngine, MayBeMovedToItselfAndThenTakeANewValue) {
    ParametersEngine engine = loaded();
    const ParametersEngine moved(std::move(engine));
    ParametersEngine& same = engine;
    engine = std::move(same);
    engine = moved;
    EXPECT_EQ(pictureOf(engine), pictureOf(loaded()));
}

TEST(PictureOfAnEngine, ShowsEveryChange) {
    std::set<std::string> pictures{pictureOf(loaded())};
    for (const Change& change : changes) {
        if (change.name == std::string("MovingAway")) {
            continue; // nothing can be asked of it
        }
        ParametersEngine engine = loaded();
        change.apply(engine);
        EXPECT_TRUE(pictures.insert(pictureOf(engine)).second) << change.name;
    }
}

TEST(Copies, KnowWhatTheyResolvedWhenTheOriginalIsGone) {
    auto original = std::make_unique<ParametersEngine>();
    original->registerSchema(boolParameterText("p", "norvex.parameter:group-1.0.0", "norvex.spec:spec.bool-1.0.0"));
    ParametersEngine copy = *original;
    copy.resolveSchemas();
    original.reset();
    ParametersEngine other; // whose parameters come to lie where that of the original was
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        other.registerSchema(
            boolParameterText(std::string(1, letter), "norvex.parameter:group-1.0.0", "norvex.spec:spec.bool-1.0.0"));
    }
    EXPECT_TRUE(copy.isRegistered("p"));
    EXPECT_EQ(copy.getBoolParameter("p").getCore().getTypeId(), "p");
}

} // namespace
