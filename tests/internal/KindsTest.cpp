#include "engine/Kinds.h"

#include "model/ValidationExceptionFactory.h"
#include "schema/Schema.h"

#include "ProjectFolder.h"
#include "support/Catalogue.h"
#include "support/SchemaTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

namespace {

template <class... Ks>
std::vector<std::string> idsOf(KindList<Ks...>) {
    return {std::string(Ks::Public::info.id())...};
}

using Ids = std::vector<std::string>;

/// Returns those of the ids that were promised: a kind that is added may stand anywhere among them.
Ids among(const Ids& promised, Ids ids) {
    std::erase_if(
        ids, [&](const std::string& id) { return std::find(promised.begin(), promised.end(), id) == promised.end(); });
    return ids;
}

// The orders as they were promised: what was built or offered first shows in which fault is reported.

TEST(StoreOrder, IsThatOfThePublicList) {
    Ids ids;
    Parameters::forEachKind([&](auto kind) { ids.emplace_back(kind.info.id()); });
    EXPECT_EQ(idsOf(StoreOrder{}), ids);
}

TEST(OfferingOrder, HasTheKindsThatNameNothingFirst) {
    const Ids promised{"enumeration",
                       "float-range",
                       "int-range",
                       "string-range",
                       "discipline",
                       "group",
                       "domain",
                       "bool-spec",
                       "general-spec",
                       "int-spec",
                       "measurable-spec",
                       "reference-spec",
                       "string-spec",
                       "enumeration-parameter",
                       "bool-parameter",
                       "int-parameter",
                       "measurable-parameter",
                       "reference-parameter",
                       "string-parameter",
                       "category"};
    EXPECT_EQ(among(promised, idsOf(OfferingOrder{})), promised);
}

/// Returns the id of the one kind that can accept a schema of that base, or nothing.
std::string soleKindOf(const std::string& base) {
    const std::string text = Support::schemaText("x", base, "");
    const Ostra::Schema schema(text, ValidationExceptionFactory::shared());
    std::string id;
    if (const auto kind = soleKindFor(schema)) {
        withKind(*kind, [&]<class K>() { id = K::Public::info.id(); });
    }
    return id;
}

TEST(TheSoleKindForASchema, IsThatWithWhoseBaseItsOwnBegins) {
    forEachKind(StoreOrder{}, []<class K>() {
        for (const std::string_view base : K::Public::info.bases()) {
            const bool hasVersion = base != EnumerationKind::base;
            const std::string_view id = hasVersion ? K::Public::info.id() : "";
            EXPECT_EQ(soleKindOf(std::string(base)), id) << base;
            EXPECT_EQ(soleKindOf(std::string(base.substr(0, base.size() - 3)) + "7.3 and more"), id) << base;
        }
    });
}

TEST(TheSoleKindForASchema, IsNotKnownWhereItsBaseMayBeSeveral) {
    EXPECT_EQ(soleKindOf("norvex.spec:discipline-1.0.0 norvex.talmo.category:domain-1.0.0"), "");
    EXPECT_EQ(soleKindOf("a norvex.spec:discipline-1.0.0"), "");
    EXPECT_EQ(soleKindOf("something else"), "");
    EXPECT_EQ(soleKindOf("norvex.spec:discipline-2.0.0"), "");
}

TEST(ResolutionOrder, HasWhatIsNamedFirst) {
    const Ids promised{"enumeration",
                       "float-range",
                       "int-range",
                       "string-range",
                       "discipline",
                       "domain",
                       "group",
                       "category",
                       "bool-spec",
                       "general-spec",
                       "int-spec",
                       "measurable-spec",
                       "reference-spec",
                       "string-spec",
                       "enumeration-parameter",
                       "bool-parameter",
                       "int-parameter",
                       "measurable-parameter",
                       "reference-parameter",
                       "string-parameter"};
    EXPECT_EQ(among(promised, idsOf(ResolutionOrder{})), promised);
}

TEST(ValueTypeOrder, HasTheReadableParameters) {
    const Ids promised{"bool-parameter", "int-parameter", "measurable-parameter", "reference-parameter",
                       "string-parameter"};
    EXPECT_EQ(among(promised, idsOf(ValueTypeOrder{})), promised);
}

/// What kinds say they name is what the order of resolution is checked against: it must be all that they name.
TEST(Names, AreTheKindsOfAllThatTheExampleCatalogueNames) {
    std::map<std::string, std::string> texts;
    for (const std::string& text : Support::textsIn(OSTRA_SOURCE_DIR "/examples/catalogue")) {
        texts.emplace(std::to_string(texts.size()), text);
    }
    ParametersEngine engine;
    engine.registerSchemas(texts);
    std::map<std::string, std::string_view> kindOfTypeId;
    Parameters::forEachKind([&](auto kind) {
        for (const auto& [typeId, object] : kind.getAll(engine)) {
            kindOfTypeId.emplace(typeId, kind.info.id());
        }
    });
    forEachKind(StoreOrder{}, [&]<class K>() {
        std::set<std::string> promised;
        for (const std::string& id : idsOf(typename K::Names{})) {
            promised.insert(id);
        }
        std::set<std::string> named;
        for (const auto& [typeId, object] : K::Public::getAll(engine)) {
            for (const std::string& dependency : K::Public::getDependencies(engine, object)) {
                if (const auto found = kindOfTypeId.find(dependency); found != kindOfTypeId.end()) {
                    named.emplace(found->second);
                }
            }
        }
        EXPECT_EQ(named, promised) << K::word;
    });
}

} // namespace

} // namespace Parameters::Internal
