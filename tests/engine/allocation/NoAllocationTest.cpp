#include "ProjectFolder.h"
#include "schema/AllocationWatch.h"
#include "support/Catalogue.h"

#include <parameters/Kinds.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

// What reads an engine and its objects without a copy asks for no memory at all.

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::ParametersEngine;

ParametersEngine loaded() {
    std::map<std::string, std::string> batch;
    for (const std::string& text : Support::textsIn(OSTRA_SOURCE_DIR "/examples/catalogue")) {
        batch.emplace(std::to_string(batch.size()), text);
    }
    ParametersEngine engine;
    engine.registerSchemas(batch);
    return engine;
}

template <class Read>
long requestsOf(Read&& read) {
    const Ostra::AllocationWatch watch;
    read();
    return watch.requests();
}

class Reading : public testing::Test {
protected:
    void SetUp() override {
        if (!Ostra::AllocationWatch::sees([] { const ParametersEngine other; })) {
            GTEST_SKIP() << "requests for memory are not seen in this build";
        }
    }

    const ParametersEngine engine = loaded();
    std::size_t sum = 0; // of what is read, so that it is
};

TEST_F(Reading, WalksAllObjectsWithoutMemoryOnceTheirOrderIsKnown) {
    const auto walk = [this] {
        Parameters::forEachObject(engine, [this](auto, const auto& object) { sum += object.typeId().size(); });
    };
    EXPECT_GT(requestsOf(walk), 0); // the watch sees what the library asks for
    EXPECT_EQ(requestsOf(walk), 0);
    EXPECT_GT(sum, 1000U);
}

TEST_F(Reading, SeesAllThatParametersHoldWithoutMemory) {
    Parameters::forEachKind(Kinds::Parameters{}, [this](auto kind) {
        const auto objects = kind.all(engine);
        ASSERT_FALSE(objects.empty());
        EXPECT_EQ(requestsOf([&] {
                      for (const auto& object : objects) {
                          sum += object.name().size() + object.core().description().size() +
                                 object.core().sampleText().size() + object.core().group().name().size() +
                                 object.spec().name().size() + object.spec().core().discipline().name().size();
                      }
                  }),
                  0)
            << kind.info;
    });
    EXPECT_GT(sum, 1000U);
}

TEST_F(Reading, SeesAllThatOthersHoldWithoutMemory) {
    const auto enumerations = engine.allEnumerations();
    const auto ranges = engine.allStringRanges();
    const auto categories = engine.allCategories();
    const auto specs = engine.allMeasurableSpecs();
    const auto references = engine.allReferenceSpecs();
    ASSERT_FALSE(enumerations.empty() || ranges.empty() || categories.empty() || specs.empty() || references.empty());
    EXPECT_EQ(requestsOf([&] {
                  for (const auto& enumeration : enumerations) {
                      for (const auto [identifier, integer] : enumeration.values()) {
                          sum += identifier.size() + static_cast<std::size_t>(integer != 0);
                      }
                  }
                  for (const auto& range : ranges) {
                      if (const auto* set = range.setStringRangeComponent()) {
                          for (const std::string_view value : set->allowedValues()) {
                              sum += value.size();
                          }
                      }
                      if (const auto* regex = range.regexStringRangeComponent()) {
                          sum += regex->regex().size();
                      }
                  }
                  for (const auto& category : categories) {
                      if (const auto* major = category.majorCategoryComponent()) {
                          sum += major->domain().name().size() + major->disciplines().size();
                      } else {
                          sum += category.subCategoryComponent()->parentCategory().size();
                      }
                  }
                  for (const auto& spec : specs) {
                      for (const auto& unit : spec.applicableUnits()) {
                          sum += unit.symbol().size();
                      }
                      sum += spec.storageUnit().name().size();
                  }
                  for (const auto& spec : references) {
                      sum += spec.category() != nullptr ? spec.category()->name().size() : 0;
                  }
              }),
              0);
    EXPECT_GT(sum, 100U);
}

TEST_F(Reading, FindsWithoutMemory) {
    std::vector<std::string> typeIds{"not there at all, and too long to be kept in a string without memory", ""};
    Parameters::forEachObject(engine, [&](auto, const auto& object) { typeIds.emplace_back(object.typeId()); });
    std::size_t found = 0;
    EXPECT_EQ(requestsOf([&] {
                  for (const std::string& typeId : typeIds) {
                      const std::string_view view(typeId);
                      sum += engine.kindOf(view).has_value() && !engine.isPending(view) && engine.isTaken(view) ? 1 : 0;
                      Parameters::forEachKind([&](auto kind) { found += kind.find(engine, view).has_value() ? 1 : 0; });
                  }
                  sum += engine.isTaken("a literal that is too long to be kept in a string without memory") ? 1 : 0;
              }),
              0);
    EXPECT_EQ(found, engine.countObjects());
    EXPECT_EQ(sum, engine.countObjects());
}

TEST_F(Reading, ShowsDependentsWithoutMemoryOnceTheyAreGathered) {
    EXPECT_GT(requestsOf([&] { sum += engine.dependentsOf("").size(); }), 0);
    std::vector<std::string> typeIds;
    Parameters::forEachObject(engine, [&](auto, const auto& object) { typeIds.emplace_back(object.typeId()); });
    EXPECT_EQ(requestsOf([&] {
                  for (const std::string& typeId : typeIds) {
                      sum += engine.dependentsOf(typeId).size();
                  }
              }),
              0);
    EXPECT_GT(sum, 10U);
}

TEST_F(Reading, SortsAndHashesHandlesWithoutMemory) {
    const auto all = engine.allMeasurableParameters();
    std::vector<Parameters::MeasurableParameter> handles(all.begin(), all.end());
    ASSERT_GT(handles.size(), 1U);
    const std::hash<Parameters::MeasurableParameter> hash;
    EXPECT_EQ(requestsOf([&] {
                  std::sort(handles.begin(), handles.end(),
                            [](const auto& one, const auto& other) { return one.name() < other.name(); });
                  sum += hash(handles.front()) % 2 + 1;
              }),
              0);
    EXPECT_TRUE(std::is_sorted(handles.begin(), handles.end(),
                               [](const auto& one, const auto& other) { return one.name() < other.name(); }));
}

} // namespace
