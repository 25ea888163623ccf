#include <parameters/Kinds.h>

#include "ProjectFolder.h"
#include "support/Catalogue.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace Parameters {

namespace {

// In this program, functions and constants of equal bytes have one address.

TEST(KindsOfAFoldedProgram, AreApart) {
    forEachKind([](auto one) {
        std::size_t equal = 0;
        forEachKind([&](auto other) { equal += one.info == other.info ? 1 : 0; });
        EXPECT_EQ(equal, 1U) << one.info.id();
    });
}

TEST(KindsOfAFoldedProgram, HoldTheirOwnObjectsAlone) {
    std::map<std::string, std::string> texts;
    std::map<std::string_view, std::size_t> counts;
    for (const std::string& text : Support::textsIn(OSTRA_SOURCE_DIR "/examples/catalogue")) {
        texts.emplace(std::to_string(texts.size()), text);
        if (const auto kind = findKindOfBase(Support::baseOf(text))) {
            ++counts[kind->id()];
        }
    }
    ParametersEngine engine;
    engine.registerSchemas(texts);
    forEachKind([&](auto kind) {
        EXPECT_GT(counts[kind.info.id()], 0U) << kind.info.id();
        EXPECT_EQ(kind.getAll(engine).size(), counts[kind.info.id()]) << kind.info.id();
        EXPECT_EQ(engine.countObjects(kind.info), counts[kind.info.id()]) << kind.info.id();
    });
}

} // namespace

} // namespace Parameters
