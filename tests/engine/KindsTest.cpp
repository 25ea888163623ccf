#include <parameters/Kinds.h>

#include "support/Engines.h"
#include "support/SchemaTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Parameters {

static void PrintTo(KindInfo info, std::ostream* out) { *out << info.id(); }

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a kind says of itself, each line a literal: these names are promised to files and programs.
struct Promise {
    std::string_view id;
    std::string_view word;
    std::string_view plural;
    KindFamily family;
    std::vector<std::string_view> bases;
    std::string_view builtInName{};
};

const std::vector<Promise> promises{
    {"enumeration", "enumeration", "enumerations", KindFamily::enumeration, {"Enum"}},
    {"float-range",
     "floating-point range",
     "floating-point ranges",
     KindFamily::range,
     {"norvex.range:range.float64.bounded.static-1.0.0"}},
    {"int-range",
     "integer range",
     "integer ranges",
     KindFamily::range,
     {"norvex.range:range.int64.bounded.static-1.0.0"}},
    {"string-range",
     "string range",
     "string ranges",
     KindFamily::range,
     {"norvex.range:range.string-1.0.0", "norvex.range:range.string.set.static-1.0.0",
      "norvex.range:range.string.regex-1.0.0"}},
    {"discipline", "discipline", "disciplines", KindFamily::taxon, {"norvex.spec:discipline-1.0.0"}, "Common"},
    {"bool-spec", "Boolean spec", "Boolean specs", KindFamily::spec, {"norvex.spec:spec.bool-1.0.0"}, "Yes/No"},
    {"general-spec", "general spec", "general specs", KindFamily::spec, {"norvex.spec:spec-1.0.0"}},
    {"int-spec", "integer spec", "integer specs", KindFamily::spec, {"norvex.spec:spec.int64-2.0.0"}, "Integer"},
    {"measurable-spec", "measurable spec", "measurable specs", KindFamily::spec, {"norvex.spec:spec.measurable-2.0.0"}},
    {"reference-spec",
     "reference spec",
     "reference specs",
     KindFamily::spec,
     {"norvex.spec:spec.reference-1.0.0"},
     "Reference"},
    {"string-spec", "string spec", "string specs", KindFamily::spec, {"norvex.spec:spec.string-2.0.0"}, "Text"},
    {"group", "group", "groups", KindFamily::taxon, {"norvex.parameter:group-1.0.0"}, "Other"},
    {"enumeration-parameter",
     "enumeration parameter",
     "enumeration parameters",
     KindFamily::parameter,
     {"norvex.parameter:parameter-2.0.0"}},
    {"bool-parameter",
     "Boolean parameter",
     "Boolean parameters",
     KindFamily::parameter,
     {"norvex.parameter:parameter.bool-2.0.0"}},
    {"int-parameter",
     "integer parameter",
     "integer parameters",
     KindFamily::parameter,
     {"norvex.parameter:parameter.int64-3.0.0"}},
    {"measurable-parameter",
     "measurable parameter",
     "measurable parameters",
     KindFamily::parameter,
     {"norvex.parameter:parameter.measurable-3.0.0"}},
    {"reference-parameter",
     "reference parameter",
     "reference parameters",
     KindFamily::parameter,
     {"norvex.parameter:parameter.reference-2.0.0", "norvex.parameter:parameter.reference.ranged-2.0.0"}},
    {"string-parameter",
     "string parameter",
     "string parameters",
     KindFamily::parameter,
     {"norvex.parameter:parameter.string-3.0.0"}},
    {"domain", "domain", "domains", KindFamily::taxon, {"norvex.talmo.category:domain-1.0.0"}},
    {"category",
     "category",
     "categories",
     KindFamily::category,
     {"norvex.talmo.category:majorCategory-1.0.0", "norvex.talmo.category:subCategory-1.0.0"}},
};

std::vector<KindInfo> allInfos() {
    std::vector<KindInfo> infos;
    forEachKind([&](auto kind) { infos.push_back(kind.info); });
    return infos;
}

template <class... Ks>
std::vector<std::string_view> idsOf(Kinds::List<Ks...> kinds) {
    std::vector<std::string_view> ids;
    forEachKind(kinds, [&](auto kind) { ids.push_back(kind.info.id()); });
    return ids;
}

TEST(Kinds, AreDescribedAsIsPromised) {
    for (const Promise& promise : promises) {
        const auto info = findKindOfId(promise.id);
        ASSERT_TRUE(info) << promise.id;
        EXPECT_EQ(info->id(), promise.id);
        EXPECT_EQ(info->word(), promise.word);
        EXPECT_EQ(info->plural(), promise.plural);
        EXPECT_EQ(info->family(), promise.family);
        EXPECT_EQ(std::vector(info->bases().begin(), info->bases().end()), promise.bases);
        EXPECT_EQ(info->builtInName(), promise.builtInName);
    }
}

TEST(Kinds, StandInTheOrderThatIsPromised) {
    std::vector<std::string_view> expected;
    for (const Promise& promise : promises) {
        expected.push_back(promise.id);
    }
    std::vector<std::string_view> found;
    for (const std::string_view id : idsOf(Kinds::All{})) {
        if (std::find(expected.begin(), expected.end(), id) != expected.end()) {
            found.push_back(id);
        }
    }
    EXPECT_EQ(found, expected);
}

TEST(Kinds, HaveIdsWordsAndBasesOfTheirOwn) {
    std::set<std::string_view> ids;
    std::set<std::string_view> words;
    std::set<std::string_view> bases;
    for (const KindInfo info : allInfos()) {
        EXPECT_TRUE(ids.insert(info.id()).second) << info.id();
        EXPECT_TRUE(words.insert(info.word()).second && words.insert(info.plural()).second) << info.id();
        EXPECT_GT(info.bases().size(), 0U) << info.id();
        for (const std::string_view base : info.bases()) {
            EXPECT_TRUE(bases.insert(base).second) << base;
        }
    }
}

TEST(Kinds, AreOfOneFamilyEach) {
    EXPECT_THAT(idsOf(Kinds::Ranges{}), ElementsAre("float-range", "int-range", "string-range"));
    EXPECT_THAT(idsOf(Kinds::Taxa{}), ElementsAre("discipline", "group", "domain"));
    EXPECT_THAT(idsOf(Kinds::Specs{}), ElementsAre("bool-spec", "general-spec", "int-spec", "measurable-spec",
                                                   "reference-spec", "string-spec"));
    forEachKind([](auto kind) {
        EXPECT_EQ(kind.info.isParameter(), kind.info.family() == KindFamily::parameter);
        EXPECT_EQ(kind.info.isSpec(), kind.info.family() == KindFamily::spec);
        EXPECT_EQ(kind.info.isRange(), kind.info.family() == KindFamily::range);
    });
}

TEST(Kinds, ThatHaveAValueTypeAreReadable) {
    std::set<ValueType> types;
    forEachKind(Kinds::Readable{}, [&](auto kind) {
        EXPECT_TRUE(kind.info.isParameter());
        EXPECT_TRUE(types.insert(kind.valueType).second);
    });
    EXPECT_EQ(types.count(None), 0U);
    EXPECT_EQ(types.size(), Kinds::Readable::size);
}

TEST(Kinds, AreFoundByTheClassOfTheirObjects) {
    static_assert(std::is_same_v<Kinds::Of<BoolParameter>, Kinds::BoolParameter>);
    static_assert(std::is_same_v<Kinds::Of<StringRange>, Kinds::StringRange>);
    EXPECT_THAT(idsOf(Kinds::With<Taxon>{}), ElementsAre("discipline", "group", "domain"));
    EXPECT_THAT(idsOf(Kinds::With<ParameterCore>{}), IsEmpty());
}

TEST(Kinds, AreFoundByTheirIds) {
    for (const KindInfo info : allInfos()) {
        EXPECT_EQ(findKindOfId(info.id()), info);
    }
    EXPECT_EQ(findKindOfId(""), std::nullopt);
    EXPECT_EQ(findKindOfId("unit"), std::nullopt);
    EXPECT_EQ(findKindOfId("Boolean parameter"), std::nullopt);
}

TEST(Kinds, AreFoundByTheirBases) {
    for (const KindInfo info : allInfos()) {
        for (const std::string_view base : info.bases()) {
            EXPECT_EQ(findKindOfBase(base), info) << base;
        }
    }
    EXPECT_EQ(findKindOfBase(""), std::nullopt);
    EXPECT_EQ(findKindOfBase("norvex.unit:unit-1.0.0"), std::nullopt);
    EXPECT_EQ(findKindOfBase("pumps:group-1.0.0"), std::nullopt);
}

TEST(Kinds, AreFoundByAnyMinorVersionOfTheirBasesAnywhereInABase) {
    EXPECT_EQ(findKindOfBase("norvex.spec:spec.int64-2.7.1"), Kinds::IntSpec::info);
    EXPECT_EQ(findKindOfBase("see norvex.spec:spec.int64-2. there"), Kinds::IntSpec::info);
    EXPECT_EQ(findKindOfBase("norvex.spec:spec.int64-3.0.0"), std::nullopt);
    EXPECT_EQ(findKindOfBase("norvex.spec:spec.int64-20.0.0"), std::nullopt);
}

TEST(Kinds, WithoutAVersionAreFoundByTheirWholeBaseAlone) {
    EXPECT_EQ(findKindOfBase("Enum"), Kinds::Enumeration::info);
    EXPECT_EQ(findKindOfBase("Enum-1.0.0"), std::nullopt);
    EXPECT_EQ(findKindOfBase("anEnum"), std::nullopt);
}

/// Reading and finding must not part: where a base fits two kinds, they are asked in one order.
TEST(Kinds, AreFoundAsAnEngineFindsThem) {
    const std::string base = "norvex.spec:spec.bool-1.0.0 norvex.parameter:group-1.0.0";
    EXPECT_EQ(findKindOfBase(base), Kinds::Group::info);
    const auto engine = Support::engineOf({Support::schemaText("x", base, Support::constant("name", R"("Name")"))});
    EXPECT_EQ(Kinds::Group::getAll(engine).size(), 1U);
}

TEST(KindInfo, IsEqualToThatOfTheSameKindAlone) {
    static constexpr Internal::KindDescription same{KindFamily::taxon, "group", "", "", {}};
    EXPECT_TRUE(KindInfo(same) == Kinds::Group::info);
    EXPECT_FALSE(KindInfo(same) != Kinds::Group::info);
    EXPECT_FALSE(Kinds::Group::info == Kinds::Domain::info);
    EXPECT_TRUE(Kinds::Group::info != Kinds::Domain::info);
}

TEST(Kinds, AskAnEngineForTheirObjects) {
    using Kind = Kinds::BoolParameter;
    ParametersEngine engine;
    Kind::add(engine, BoolParameter(ParameterCore("flag", "Flag", "", "", false)));
    const BoolParameter flag = Kind::get(engine, "flag");
    EXPECT_EQ(flag.getCore().getName(), "Flag");
    EXPECT_EQ(Kind::typeIdOf(flag), "flag");
    EXPECT_EQ(Kind::getAll(engine).size(), 1U);
    EXPECT_EQ(Kind::getSchema(engine, flag), engine.getSchema("flag"));
    EXPECT_EQ(Kind::getDependencies(engine, flag), engine.getDependencies("flag"));
    EXPECT_EQ(Kind::read(engine, R"({"typeid": "x", "inherits": ["norvex.parameter:parameter.bool-2.0.0"],
                                     "constants": [{"id": "name", "value": "Read"}]})")
                  .getCore()
                  .getName(),
              "Read");
}

TEST(Kinds, ThatNameNothingHaveNoDependencies) {
    ParametersEngine engine;
    Kinds::Group::add(engine, Taxon("group", "Group"));
    EXPECT_THAT(Kinds::Group::getDependencies(engine, Kinds::Group::get(engine, "group")), IsEmpty());
    EXPECT_EQ(Kinds::Group::typeIdOf(Kinds::Group::get(engine, "group")), "group");
}

} // namespace

} // namespace Parameters
