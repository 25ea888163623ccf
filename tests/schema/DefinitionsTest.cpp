#include "schema/Definitions.h"

#include "support/Complaint.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace Ostra {

namespace {

/// Definitions with the elements of an array of integers, which are found again by their values.
class DefinitionsOf : public testing::TestWithParam<int> {
protected:
    DefinitionsOf() {
        for (int element = 0; element < GetParam(); ++element) {
            ids.push_back("id " + std::to_string((element * 7919) % 10'007));
        }
        text = "[";
        for (std::size_t element = 0; element < ids.size(); ++element) {
            text += (element == 0 ? "" : ",") + std::to_string(element);
        }
        text += "]";
        array = std::make_unique<JSON>(text, Support::Complaints::shared());
        std::size_t element = 0;
        array->view().forEachElement([&](JSONView value) { EXPECT_TRUE(definitions.add(ids[element++], value)); });
    }

    std::vector<std::string> ids;
    std::string text;
    std::unique_ptr<JSON> array;
    Arena memory;
    Definitions definitions{memory};
};

TEST_P(DefinitionsOf, AreFoundByTheirIds) {
    for (std::size_t element = 0; element < ids.size(); ++element) {
        const auto found = definitions.find(ids[element]);
        ASSERT_TRUE(found) << ids[element];
        EXPECT_EQ(found->integer(), static_cast<std::int64_t>(element));
    }
}

TEST_P(DefinitionsOf, AreNotFoundByOtherIds) {
    for (const char* other : {"", "i", "id", "id 10008", "id 0 "}) {
        EXPECT_FALSE(definitions.find(other)) << other;
    }
}

TEST_P(DefinitionsOf, KeepTheFirstOfTwoOfOneId) {
    for (std::size_t element = 0; element < ids.size(); ++element) {
        EXPECT_FALSE(definitions.add(ids[element], array->view()));
        EXPECT_EQ(definitions.find(ids[element])->integer(), static_cast<std::int64_t>(element));
    }
    EXPECT_EQ(definitions.size(), ids.size());
}

TEST_P(DefinitionsOf, AreListedInTheOrderOfAdding) {
    std::vector<std::string> listed;
    for (const auto& [id, definition] : definitions) {
        listed.emplace_back(id);
    }
    EXPECT_EQ(listed, ids);
}

TEST_P(DefinitionsOf, AreSortedByTheBytesOfTheirIds) {
    const auto sorted = definitions.sorted();
    ASSERT_EQ(sorted.size(), ids.size());
    for (std::size_t place = 1; place < sorted.size(); ++place) {
        EXPECT_LT(sorted[place - 1].id, sorted[place].id);
    }
}

INSTANTIATE_TEST_SUITE_P(Count, DefinitionsOf, testing::Values(0, 1, 15, 16, 17, 18, 1000),
                         testing::PrintToStringParamName());

} // namespace

} // namespace Ostra
