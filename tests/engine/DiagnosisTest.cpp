#include "support/Messages.h"
#include "support/Picture.h"
#include "support/SchemaTexts.h"
#include "support/Sentences.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace std::string_literals;
using Parameters::ParametersEngine;
using Parameters::ValidationException;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::constant;
using Support::disciplineText;
using Support::domainText;
using Support::groupText;
using Support::majorCategoryText;
using Support::measurableSpecText;
using Support::messageOf;
using Support::pictureOf;
using Support::schemaText;
using Support::subCategoryText;
using Support::typedConstant;
using Support::unitText;
using Support::unresolvable;

using Faults = std::map<std::string, std::string>;

const std::string boolSpec = "norvex.spec:spec.bool-1.0.0"; // which is built in

std::string named(const std::string& constants) { return constant("name", R"("Name")") + ", " + constants; }

std::string measurableParameterText(const std::string& typeId, const std::string& spec, const std::string& range) {
    return schemaText(typeId, "norvex.parameter:parameter.measurable-3.0.0",
                      named(typedConstant("spec", spec) + ", " + typedConstant("range", range)));
}

ParametersEngine engineWithPending(const std::vector<std::string>& texts) {
    ParametersEngine engine;
    for (const std::string& text : texts) {
        engine.registerSchema(text);
    }
    return engine;
}

std::string messageOfResolving(ParametersEngine engine) {
    return messageOf<ValidationException>([&] { engine.resolveSchemas(); });
}

TEST(FindUnresolvable, FindsNothingInAnEmptyEngine) { EXPECT_EQ(ParametersEngine().findUnresolvable(), Faults()); }

TEST(FindUnresolvable, FindsNothingWhereResolutionSucceeds) {
    const ParametersEngine engine = engineWithPending(
        {boolParameterText("p", "g", "s"), boolSpecText("s", "d"), groupText("g"), disciplineText("d")});
    EXPECT_EQ(engine.findUnresolvable(), Faults());
}

TEST(FindUnresolvable, NamesEveryFaultOfEveryKind) {
    const ParametersEngine engine = engineWithPending(
        {boolSpecText("s1", "no-discipline"), boolSpecText("s2", "no-discipline"),
         boolParameterText("p1", "no-group", "x"), boolParameterText("p2", "norvex.parameter:group-1.0.0", "no-spec"),
         majorCategoryText("c1", "no-domain"), subCategoryText("c2", "no-parent"), groupText("sound")});
    EXPECT_EQ(engine.findUnresolvable(), (Faults{{"c1", unresolvable("no-domain", "c1")},
                                                 {"c2", unresolvable("no-parent", "c2")},
                                                 {"p1", unresolvable("no-group", "p1")},
                                                 {"p2", unresolvable("no-spec", "p2")},
                                                 {"s1", unresolvable("no-discipline", "s1")},
                                                 {"s2", unresolvable("no-discipline", "s2")}}));
}

TEST(FindUnresolvable, NamesWhatIsOfAnotherKindAsMissing) {
    const ParametersEngine engine = engineWithPending({boolSpecText("s", "g"), groupText("g")});
    EXPECT_EQ(engine.findUnresolvable(), (Faults{{"s", unresolvable("g", "s")}}));
}

TEST(FindUnresolvable, TellsATypeIdWholeThatHasANul) {
    const ParametersEngine engine = engineWithPending({boolSpecText("s\0t"s, "d\0e"s), disciplineText("d")});
    EXPECT_EQ(engine.findUnresolvable(), (Faults{{"s\0t"s, unresolvable("d\0e"s, "s\0t"s)}}));
}

TEST(FindUnresolvable, ListsWhatNamesAFaultySchemaToo) {
    const ParametersEngine engine = engineWithPending(
        {boolParameterText("p", "norvex.parameter:group-1.0.0", "s"), boolSpecText("s", "no-discipline")});
    EXPECT_EQ(engine.findUnresolvable(),
              (Faults{{"p", unresolvable("s", "p")}, {"s", unresolvable("no-discipline", "s")}}));
}

TEST(FindUnresolvable, FollowsAChainOverFourKinds) {
    const ParametersEngine engine = engineWithPending(
        {majorCategoryText("major", "no-domain"), subCategoryText("sub", "major"),
         schemaText("spec", "norvex.spec:spec.reference-1.0.0", named(typedConstant("category", "sub"))),
         schemaText("parameter", "norvex.parameter:parameter.reference-2.0.0", named(typedConstant("spec", "spec")))});
    EXPECT_EQ(engine.findUnresolvable(), (Faults{{"major", unresolvable("no-domain", "major")},
                                                 {"parameter", unresolvable("spec", "parameter")},
                                                 {"spec", unresolvable("sub", "spec")},
                                                 {"sub", unresolvable("major", "sub")}}));
}

TEST(FindUnresolvable, NamesSubcategoriesOfSubcategories) {
    const ParametersEngine engine =
        engineWithPending({domainText("d"), majorCategoryText("major", "d"), subCategoryText("sub1", "major"),
                           subCategoryText("sub2", "sub1")});
    EXPECT_EQ(engine.findUnresolvable(),
              (Faults{{"sub2", "Parent sub1 of subcategory schema sub2 is not a major category."}}));
}

TEST(FindUnresolvable, NamesUnknownUnits) {
    ParametersEngine engine =
        engineWithPending({measurableSpecText("s1", "no-unit", {"u"}), measurableSpecText("s2", "u", {"no-unit"}),
                           measurableParameterText("p", "s1", "no-range")});
    engine.getUnitsEngine().registerSchema(unitText("u"));
    EXPECT_EQ(
        engine.findUnresolvable(),
        (Faults{
            {"p", unresolvable("s1", "p")},
            {"s1", "Typeid no-unit for storageUnit constant in measurable spec schema s1 does not belong to a unit."},
            {"s2", "Typeid no-unit in applicableUnits constant in measurable spec schema s2 does not belong to a "
                   "unit."}}));
}

TEST(FindUnresolvable, FindsUnitsThatArePendingThemselves) {
    ParametersEngine engine = engineWithPending({measurableSpecText("s", "u", {"u"})});
    engine.getUnitsEngine().registerSchema(unitText("u"));
    EXPECT_EQ(engine.findUnresolvable(), Faults());
}

TEST(FindUnresolvable, LeavesPendingUnitsPending) {
    ParametersEngine engine = engineWithPending({measurableSpecText("s", "u", {"u"})});
    engine.getUnitsEngine().registerSchema(unitText("u"));
    EXPECT_EQ(engine.findUnresolvable(), Faults());
    EXPECT_TRUE(engine.getUnitsEngine().getAllUnits().empty());
}

TEST(FindUnresolvable, SeesWhatIsRegisteredAlready) {
    ParametersEngine engine;
    engine.registerDiscipline({"d", "Discipline"});
    engine.registerSchema(boolSpecText("s", "d"));
    EXPECT_EQ(engine.findUnresolvable(), Faults());
}

TEST(FindUnresolvable, ChangesNothing) {
    ParametersEngine engine = engineWithPending({groupText("g"), disciplineText("d"), boolSpecText("s", "d")});
    engine.resolveSchemas();
    engine.registerSchema(boolParameterText("p1", "g", "s"));
    engine.registerSchema(boolParameterText("p2", "g", "no-spec"));
    engine.getUnitsEngine().registerSchema(unitText("u"));
    const std::string before = pictureOf(engine, {"p1", "p2", "u"});
    EXPECT_EQ(engine.findUnresolvable().size(), 1U);
    EXPECT_EQ(pictureOf(engine, {"p1", "p2", "u"}), before);
}

TEST(FindUnresolvable, FirstFaultInResolutionIsAmongThem) {
    const ParametersEngine engine =
        engineWithPending({boolSpecText("s2", "no-discipline"), boolSpecText("s1", "no-discipline"),
                           majorCategoryText("z", "no-domain")});
    EXPECT_EQ(messageOfResolving(engine), unresolvable("no-domain", "z"));
    EXPECT_EQ(engine.findUnresolvable().at("z"), unresolvable("no-domain", "z"));
}

TEST(DiscardPending, WithdrawsASchema) {
    ParametersEngine engine = engineWithPending({groupText("g")});
    EXPECT_TRUE(engine.discardPending("g"));
    EXPECT_FALSE(engine.isRegistered("g"));
    engine.resolveSchemas();
    EXPECT_TRUE(engine.getAllGroups().empty());
}

TEST(DiscardPending, FindsNothingUnderAnUnknownTypeId) { EXPECT_FALSE(ParametersEngine().discardPending("x")); }

TEST(DiscardPending, FindsNothingTheSecondTime) {
    ParametersEngine engine = engineWithPending({groupText("g")});
    engine.discardPending("g");
    EXPECT_FALSE(engine.discardPending("g"));
}

TEST(DiscardPending, LeavesResolvedObjectsAlone) {
    ParametersEngine engine = engineWithPending({groupText("g")});
    engine.resolveSchemas();
    EXPECT_FALSE(engine.discardPending("g"));
    EXPECT_EQ(engine.getGroup("g").getName(), "Name");
}

TEST(DiscardPending, LeavesUnitsAlone) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(unitText("u"));
    EXPECT_FALSE(engine.discardPending("u"));
    EXPECT_TRUE(engine.isRegistered("u"));
}

TEST(DiscardPending, FreesTheTypeIdForAnotherSchema) {
    ParametersEngine engine = engineWithPending({boolSpecText("x", "no-discipline")});
    engine.discardPending("x");
    engine.registerSchema(groupText("x", "Repaired"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getGroup("x").getName(), "Repaired");
}

TEST(DiscardPending, LeavesACopyAlone) {
    ParametersEngine engine = engineWithPending({groupText("g")});
    ParametersEngine copy = engine;
    engine.discardPending("g");
    copy.resolveSchemas();
    EXPECT_EQ(copy.getGroup("g").getName(), "Name");
    EXPECT_FALSE(engine.isRegistered("g"));
}

TEST(DiscardPending, OfAllFaultsMakesResolutionSucceed) {
    ParametersEngine engine = engineWithPending(
        {majorCategoryText("major", "no-domain"), subCategoryText("sub", "major"), groupText("g"), disciplineText("d"),
         boolSpecText("s", "d"), boolParameterText("p1", "g", "s"), boolParameterText("p2", "g", "no-spec"),
         measurableSpecText("m", "no-unit", {"no-unit"}), measurableParameterText("p3", "m", "no-range")});
    EXPECT_EQ(messageOfResolving(engine), unresolvable("no-domain", "major"));
    for (const auto& [typeId, message] : engine.findUnresolvable()) {
        EXPECT_TRUE(engine.discardPending(typeId)) << typeId << ": " << message;
    }
    EXPECT_EQ(engine.findUnresolvable(), Faults());
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllBoolParameters().size(), 1U);
    EXPECT_EQ(engine.getBoolParameter("p1").getSpec().getCore().getTypeId(), "s");
}

TEST(DiscardPending, LeavesWhatNamesItWaitingForAnother) {
    ParametersEngine engine = engineWithPending({groupText("g", "First"), boolParameterText("p", "g", boolSpec)});
    EXPECT_EQ(engine.findUnresolvable(), Faults());
    engine.discardPending("g");
    EXPECT_EQ(engine.findUnresolvable(), Faults({{"p", unresolvable("g", "p")}}));
    EXPECT_FALSE(engine.isRegistered("g"));
    EXPECT_EQ(engine.registerSchema(boolParameterText("p2", "g", boolSpec)).first, std::set<std::string>{"g"});
    engine.registerSchema(groupText("g", "Second"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Second");
    EXPECT_EQ(engine.getBoolParameter("p2").getCore().getGroup().getName(), "Second");
}

TEST(DiscardPending, OfWhatNamesLeavesWhatIsNamed) {
    ParametersEngine engine = engineWithPending(
        {boolParameterText("p1", "g", boolSpec), boolParameterText("p2", "g", boolSpec), groupText("other")});
    engine.discardPending("p1");
    EXPECT_EQ(engine.findUnresolvable(), Faults({{"p2", unresolvable("g", "p2")}}));
    engine.discardPending("p2");
    engine.registerSchema(groupText("g"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllGroups().size(), 2U);
}

TEST(DiscardPending, WithdrawsWhatNamesItself) {
    ParametersEngine engine = engineWithPending({boolParameterText("p", "p", "p")});
    EXPECT_EQ(engine.findUnresolvable(), Faults({{"p", unresolvable("p", "p")}}));
    EXPECT_TRUE(engine.discardPending("p"));
    EXPECT_FALSE(engine.isRegistered("p"));
    engine.registerSchema(groupText("p"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllGroups().size(), 1U);
}

TEST(DiscardPending, LeavesWhatIsNamedInACopyAlone) {
    ParametersEngine engine = engineWithPending({boolParameterText("p", "g", boolSpec)});
    ParametersEngine copy = engine;
    engine.discardPending("p");
    engine.registerSchema(groupText("another that takes its place"));
    copy.registerSchema(groupText("g", "Of the copy"));
    copy.resolveSchemas();
    EXPECT_EQ(copy.getBoolParameter("p").getCore().getGroup().getName(), "Of the copy");
}

// What is named and what names it come and go in any order, and are registered again under the same typeids.
TEST(DiscardPending, KeepsInStepWhatIsNamedAndWhatNamesIt) {
    std::mt19937 random(21);
    for (int round = 0; round < 20; ++round) {
        ParametersEngine engine;
        std::set<std::string> groups;
        std::map<std::string, std::string> parameters; // pending, to the group of each
        int count = 0;
        for (int step = 0; step < 200; ++step) {
            const std::string group = "g" + std::to_string(random() % 5);
            if (random() % 2 == 0) {
                const std::string parameter = "p" + std::to_string(random() % 10);
                if (parameters.contains(parameter)) {
                    ASSERT_TRUE(engine.discardPending(parameter));
                    parameters.erase(parameter);
                } else if (!engine.isRegistered(parameter)) {
                    const auto missing = engine.registerSchema(boolParameterText(parameter, group, boolSpec)).first;
                    ASSERT_NE(missing.contains(group), groups.contains(group));
                    parameters.emplace(parameter, group);
                }
            } else if (engine.discardPending(group)) {
                groups.erase(group);
            } else if (groups.insert(group).second) {
                engine.registerSchema(groupText(group, "Name " + std::to_string(++count)));
            }
            Faults faults;
            for (const auto& [parameter, named] : parameters) {
                if (!groups.contains(named)) {
                    faults.emplace(parameter, unresolvable(named, parameter));
                }
            }
            ASSERT_EQ(engine.findUnresolvable(), faults) << "round " << round << ", step " << step;
            if (faults.empty() && random() % 8 == 0) {
                engine.resolveSchemas();
                for (const auto& [parameter, named] : parameters) {
                    ASSERT_EQ(engine.getBoolParameter(parameter).getCore().getGroup().getName(),
                              engine.getGroup(named).getName());
                }
                parameters.clear();
            }
        }
    }
}

// The order in which schemas are withdrawn moves others about inside; each must still be found and resolved.
TEST(DiscardPending, KeepsTheOthersInWhateverOrderTheyAreWithdrawn) {
    std::mt19937 random(20);
    for (int round = 0; round < 50; ++round) {
        ParametersEngine engine;
        std::map<std::string, std::string> expected; // typeid to name
        for (int i = 0; i < 60; ++i) {
            const std::string typeId = "t" + std::to_string(i);
            const std::string text = i % 2 == 0 ? groupText(typeId, typeId) : disciplineText(typeId, typeId);
            engine.registerSchema(text);
            expected.emplace(typeId, i % 2 == 0 ? "group" : "discipline");
        }
        for (int i = 0; i < 30; ++i) {
            const auto withdrawn = std::next(expected.begin(), static_cast<long>(random() % expected.size()));
            ASSERT_TRUE(engine.discardPending(withdrawn->first)) << "round " << round;
            expected.erase(withdrawn);
        }
        engine.resolveSchemas();
        for (const auto& [typeId, kind] : expected) {
            const auto object = kind == "group" ? engine.getGroup(typeId) : engine.getDiscipline(typeId);
            ASSERT_EQ(object.getName(), typeId) << "round " << round;
        }
        ASSERT_EQ(engine.getAllGroups().size() + engine.getAllDisciplines().size(), 30U);
    }
}

} // namespace
