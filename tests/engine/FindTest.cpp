#include "support/KindTypes.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

namespace Kinds = Parameters::Kinds;
using namespace std::string_view_literals;
using Parameters::KindInfo;
using Parameters::ParametersEngine;
using testing::ElementsAre;

template <class Kind>
struct FindingOfEachKind : testing::Test {
    void add(const std::string& typeId, const std::string& content = "1") {
        Support::addSample<Kind>(engine, typeId, content);
    }
    std::optional<typename Kind::Value> find(std::string_view typeId) const { return Kind::find(engine, typeId); }

    /// The typeids that the view shows, without what the samples name.
    std::vector<std::string> shown() const {
        std::vector<std::string> typeIds;
        for (const auto& object : Kind::all(engine)) {
            if (object.typeId() != Support::sampleIdOf(Kind::info)) {
                typeIds.emplace_back(object.typeId());
            }
        }
        return typeIds;
    }

    ParametersEngine engine;
};

TYPED_TEST_SUITE(FindingOfEachKind, Support::TestedKinds<Kinds::All>, Support::NameOfKind);

TYPED_TEST(FindingOfEachKind, FindsWhatIsThere) {
    this->add("x", "1");
    this->add("y", "2");
    EXPECT_EQ(Support::Sample<TypeParam>::contentOf(this->find("x").value()), "1");
    EXPECT_EQ(Support::Sample<TypeParam>::contentOf(this->find("y").value()), "2");
}

TYPED_TEST(FindingOfEachKind, FindsByAViewThatDoesNotEndWhereItsBytesDo) {
    this->add("x");
    EXPECT_TRUE(this->find("xyz"sv.substr(0, 1)).has_value());
    EXPECT_FALSE(this->find("xyz"sv.substr(0, 2)).has_value());
}

TYPED_TEST(FindingOfEachKind, FindsNothingWhereNothingIs) {
    EXPECT_FALSE(this->find("x").has_value());
    this->add("y");
    EXPECT_FALSE(this->find("x").has_value());
    EXPECT_FALSE(this->find("").has_value());
    EXPECT_FALSE(this->find({}).has_value());
}

TYPED_TEST(FindingOfEachKind, FindsNoObjectOfAnotherKindAndNothingThatIsPending) {
    Parameters::forEachKind([&](auto other) {
        if (other.info != TypeParam::info) {
            this->engine = ParametersEngine();
            Support::addSample<decltype(other)>(this->engine, "x");
            EXPECT_FALSE(this->find("x").has_value()) << other.info.id();
        }
    });
    this->engine = ParametersEngine();
    this->engine.registerSchema(Support::sampleText<TypeParam>("x"));
    EXPECT_FALSE(this->find("x").has_value());
}

TYPED_TEST(FindingOfEachKind, FindsTheBuiltInObjectUnderTheVeryIdentifier) {
    const std::string typeId = std::string(TypeParam::info.bases()[0]) + "7";
    const auto found = this->find(typeId);
    ASSERT_EQ(found.has_value(), !TypeParam::info.builtInName().empty());
    if (found) {
        EXPECT_EQ(found->typeId(), typeId);
        EXPECT_EQ(Support::describe(*found), Support::describe(TypeParam::get(this->engine, typeId)));
    }
}

TYPED_TEST(FindingOfEachKind, ShowsAllByTheBytesOfTheTypeIds) {
    EXPECT_TRUE(this->shown().empty());
    for (const char* typeId : {"b", "\xff", "ab", "a", "B"}) {
        this->add(typeId);
        EXPECT_EQ(this->shown(), Support::typeIdsIn<TypeParam>(this->engine)) << typeId;
    }
    EXPECT_THAT(this->shown(), ElementsAre("B", "a", "ab", "b", "\xff"));
}

TYPED_TEST(FindingOfEachKind, ShowsTheVeryObjects) {
    this->add("x", "3");
    this->engine.registerSchemas({{"y", Support::sampleText<TypeParam>("y", "4")}});
    for (const auto& object : TypeParam::all(this->engine)) {
        const auto found = this->find(object.typeId());
        ASSERT_TRUE(found.has_value());
        EXPECT_EQ(found->typeId().data(), object.typeId().data());
        EXPECT_EQ(Support::describe(*found), Support::describe(object));
    }
}

TYPED_TEST(FindingOfEachKind, ShowsAgainWhatItShowedWhileNothingIsAdded) {
    this->add("x");
    const auto first = TypeParam::all(this->engine);
    this->engine.registerSchema(Support::sampleText<TypeParam>("pending"));
    EXPECT_TRUE(this->engine.discardPending("pending"));
    EXPECT_EQ(TypeParam::all(this->engine).begin(), first.begin());
}

TYPED_TEST(FindingOfEachKind, CountsWhatItShows) {
    EXPECT_EQ(TypeParam::count(this->engine), 0U);
    this->add("x");
    this->add("y");
    this->engine.registerSchema(Support::sampleText<TypeParam>("pending"));
    EXPECT_EQ(TypeParam::count(this->engine), TypeParam::all(this->engine).size());
    EXPECT_EQ(TypeParam::count(this->engine), TypeParam::getAll(this->engine).size());
    EXPECT_EQ(this->engine.countObjects(TypeParam::info), TypeParam::count(this->engine));
    std::size_t sum = 0;
    Parameters::forEachKind([&](auto kind) { sum += kind.count(this->engine); });
    EXPECT_EQ(this->engine.countObjects(), sum);
}

TYPED_TEST(FindingOfEachKind, CopiesOfAnEngineShowWhatTheyHold) {
    this->add("x");
    EXPECT_THAT(this->shown(), ElementsAre("x"));
    ParametersEngine copy(this->engine);
    this->add("y");
    EXPECT_THAT(this->shown(), ElementsAre("x", "y"));
    this->engine = copy;
    EXPECT_THAT(this->shown(), ElementsAre("x"));
}

TYPED_TEST(FindingOfEachKind, TellsTheKindOfWhatIsRegisteredAndOfWhatIsPending) {
    EXPECT_EQ(this->engine.kindOf("x"), std::nullopt);
    this->add("x");
    EXPECT_EQ(this->engine.kindOf("x"), TypeParam::info);
    EXPECT_FALSE(this->engine.isPending("x"));
    this->engine.registerSchema(Support::sampleText<TypeParam>("y"));
    EXPECT_EQ(this->engine.kindOf("y"), TypeParam::info);
    EXPECT_TRUE(this->engine.isPending("y"));
    this->engine.resolveSchemas();
    EXPECT_EQ(this->engine.kindOf("y"), TypeParam::info);
    EXPECT_FALSE(this->engine.isPending("y"));
}

TYPED_TEST(FindingOfEachKind, TellsNoKindOfWhatIsDiscardedOrBuiltIn) {
    this->engine.registerSchema(Support::sampleText<TypeParam>("y"));
    this->engine.discardPending("y");
    EXPECT_EQ(this->engine.kindOf("y"), std::nullopt);
    EXPECT_FALSE(this->engine.isPending("y"));
    EXPECT_EQ(this->engine.kindOf(TypeParam::info.bases()[0]), std::nullopt);
}

TYPED_TEST(FindingOfEachKind, IsVisitedByTheValueOfItsKind) {
    std::string visited;
    Parameters::visitKind(TypeParam::info, [&](auto kind) {
        EXPECT_TRUE((std::is_same_v<decltype(kind), TypeParam>));
        visited += kind.info.id();
    });
    EXPECT_EQ(visited, TypeParam::info.id());
}

TEST(KindOf, OfAUnitOrNothingIsNone) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText("unit"));
    engine.getUnitsEngine().resolveSchemas();
    EXPECT_EQ(engine.kindOf("unit"), std::nullopt);
    EXPECT_FALSE(engine.isPending("unit"));
    EXPECT_EQ(engine.kindOf(""), std::nullopt);
    EXPECT_EQ(engine.kindOf({}), std::nullopt);
    EXPECT_TRUE(noexcept(engine.kindOf(std::string_view())));
}

TEST(IsTaken, IsWhatIsRegisteredTells) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText("unit"));
    engine.registerSchema(Support::groupText("pending"));
    engine.registerDomain({"domain", "D"});
    for (const std::string typeId :
         {"unit", "pending", "domain", "x", "", "norvex.spec:discipline-1.7.0", "a norvex.parameter:group-1.0.0"}) {
        EXPECT_EQ(engine.isTaken(typeId), engine.isRegistered(typeId)) << typeId;
    }
    EXPECT_TRUE(engine.isTaken("unit"));
    EXPECT_TRUE(engine.isTaken("pending"));
    EXPECT_TRUE(engine.isTaken("norvex.spec:discipline-1.7.0"));
    EXPECT_FALSE(engine.isTaken("domai"));
    EXPECT_TRUE(engine.isTaken("domain and more"sv.substr(0, 6)));
}

TEST(ForEachObject, WalksKindByKindAndByTypeIdWithinAKind) {
    ParametersEngine engine;
    engine.registerDomain({"b", "B"});
    engine.registerDomain({"a", "A"});
    engine.registerGroup({"d", "D"});
    engine.registerGroup({"c", "C"});
    std::vector<std::string> walked;
    Parameters::forEachObject(engine, [&](auto kind, const auto& object) {
        walked.push_back(std::string(kind.info.id()) + " " + std::string(object.typeId()));
    });
    EXPECT_THAT(walked, ElementsAre("group c", "group d", "domain a", "domain b"));
    walked.clear();
    Parameters::forEachObject(engine, Kinds::List<Kinds::Domain>{},
                              [&](auto, const auto& object) { walked.emplace_back(object.name()); });
    EXPECT_THAT(walked, ElementsAre("A", "B"));
}

} // namespace
