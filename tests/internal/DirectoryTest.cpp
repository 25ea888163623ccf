#include "engine/Directory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_view_literals;
using Parameters::Internal::Directory;

/// Adds an entry as its users do.
Directory::EntryId add(Directory& directory, std::string_view typeId, std::uint32_t place, std::uint8_t kind = 0,
                       bool resolved = false) {
    directory.reserveOne();
    return directory.add({typeId, place, kind, resolved}, Directory::Key(typeId).hash);
}

TEST(Directory, FindsNothingAtFirst) {
    const Directory directory;
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find(""), nullptr);
}

TEST(Directory, FindsNothingInRoomThatWasOnlyReserved) {
    Directory directory;
    directory.reserveOne();
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find(""), nullptr);
}

TEST(Directory, FindsAnEntryWithAllThatItSays) {
    Directory directory;
    add(directory, "x", 7, 3, true);
    const Directory::Entry* const entry = directory.find("x");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->typeId, "x");
    EXPECT_EQ(entry->place, 7U);
    EXPECT_EQ(entry->kind, 3);
    EXPECT_TRUE(entry->resolved);
}

TEST(Directory, FindsByBytesRatherThanByPlaceInMemory) {
    const std::string typeId = "a typeid";
    const std::string same = "a typeid";
    Directory directory;
    add(directory, typeId, 1);
    EXPECT_EQ(directory.find(same), directory.find(typeId));
    EXPECT_NE(directory.find(same), nullptr);
}

TEST(Directory, TellsBytesApart) {
    Directory directory;
    add(directory, "", 0);
    add(directory, "\0"sv, 1);
    add(directory, "\0\0"sv, 2);
    add(directory, "a\0"sv, 3);
    add(directory, "a", 4);
    EXPECT_EQ(directory.find("")->place, 0U);
    EXPECT_EQ(directory.find("\0"sv)->place, 1U);
    EXPECT_EQ(directory.find("\0\0"sv)->place, 2U);
    EXPECT_EQ(directory.find("a\0"sv)->place, 3U);
    EXPECT_EQ(directory.find("a")->place, 4U);
    EXPECT_EQ(directory.find("\0\0\0"sv), nullptr);
    EXPECT_EQ(directory.find("A"), nullptr);
}

TEST(Directory, HandsOutEntriesByTheirIdsForChanging) {
    Directory directory;
    const auto first = add(directory, "first", 1);
    const auto second = add(directory, "second", 2);
    directory[first].place = 11;
    directory[first].resolved = true;
    EXPECT_EQ(directory.find("first")->place, 11U);
    EXPECT_TRUE(directory.find("first")->resolved);
    EXPECT_EQ(directory.find("second")->place, 2U);
    EXPECT_EQ(&directory[second], directory.find("second"));
}

TEST(Directory, FindsAnEntryWhoseTypeIdLivesElsewhereNow) {
    std::string before = "x";
    const std::string after = "x";
    Directory directory;
    const auto id = add(directory, before, 1);
    directory[id].typeId = after;
    before = "y";
    ASSERT_NE(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find("x")->typeId.data(), after.data());
    EXPECT_EQ(directory.find("y"), nullptr);
}

TEST(Directory, CopiesAreOnTheirOwn) {
    Directory directory;
    const auto id = add(directory, "x", 1);
    Directory copy(directory);
    copy[id].place = 2;
    add(copy, "y", 3);
    add(directory, "z", 4);
    EXPECT_EQ(directory.find("x")->place, 1U);
    EXPECT_EQ(copy.find("x")->place, 2U);
    EXPECT_EQ(directory.find("y"), nullptr);
    EXPECT_EQ(copy.find("z"), nullptr);
}

TEST(Directory, ReservingMoreThanIsAddedDoesNoHarm) {
    Directory directory;
    for (int again = 0; again < 100; ++again) {
        directory.reserveOne();
    }
    add(directory, "x", 1);
    directory.reserveOne();
    EXPECT_EQ(directory.find("x")->place, 1U);
}

TEST(Directory, DoesNotFindWhatWasRemoved) {
    Directory directory;
    add(directory, "x", 1);
    directory.remove(directory.idOf("x"));
    EXPECT_EQ(directory.find("x"), nullptr);
    add(directory, "x", 2);
    EXPECT_EQ(directory.find("x")->place, 2U);
}

TEST(Directory, GivesIdsThatWereRemovedToTheNextEntries) {
    Directory directory;
    const auto first = add(directory, "first", 1);
    const auto second = add(directory, "second", 2);
    const auto third = add(directory, "third", 3);
    directory.remove(first);
    directory.remove(second);
    EXPECT_EQ(add(directory, "fourth", 4), second);
    EXPECT_EQ(add(directory, "fifth", 5), first);
    EXPECT_EQ(directory.idOf("third"), third);
    EXPECT_EQ(directory.find("fourth")->place, 4U);
    EXPECT_EQ(directory.find("fifth")->place, 5U);
    EXPECT_EQ(directory.find("first"), nullptr);
    EXPECT_GT(add(directory, "sixth", 6), third);
}

/// A directory and a map that are told the same.
class RandomOperations : public testing::TestWithParam<unsigned> {
protected:
    struct Known {
        Directory::EntryId id;
        std::uint32_t place;
        std::uint8_t kind;
        bool resolved;
    };

    std::string randomTypeId() {
        // Short ones meet again and again, long ones hardly ever.
        std::string typeId(random_() % 4, '\0');
        for (char& character : typeId) {
            character = static_cast<char>(random_() % 12);
        }
        return random_() % 8 == 0 ? typeId + std::to_string(random_()) : typeId;
    }

    void addRandomEntry(const std::string& typeId) {
        typeIds_.push_back(typeId);
        const auto place = static_cast<std::uint32_t>(random_());
        const auto kind = static_cast<std::uint8_t>(random_() % 20);
        const bool resolved = random_() % 2 == 0;
        model_[typeId] = {add(directory_, typeIds_.back(), place, kind, resolved), place, kind, resolved};
    }

    void changeEntry(Known& known) {
        known.place = static_cast<std::uint32_t>(random_());
        known.resolved = !known.resolved;
        directory_[known.id].place = known.place;
        directory_[known.id].resolved = known.resolved;
    }

    void removeEntry(const std::string& typeId) {
        const auto removed = model_.find(typeId);
        directory_.remove(removed->second.id);
        model_.erase(removed);
    }

    void expectEntry(const std::string& typeId) const {
        const auto known = model_.find(typeId);
        const Directory::Entry* const entry = directory_.find(typeId);
        ASSERT_EQ(entry != nullptr, known != model_.end());
        if (entry != nullptr) {
            ASSERT_EQ(entry->typeId, typeId);
            ASSERT_EQ(entry->place, known->second.place);
            ASSERT_EQ(entry->kind, known->second.kind);
            ASSERT_EQ(entry->resolved, known->second.resolved);
            ASSERT_EQ(entry, &directory_[known->second.id]);
        }
    }

    std::mt19937 random_{GetParam()};
    std::deque<std::string> typeIds_; // which the entries refer to
    Directory directory_;
    std::map<std::string, Known> model_;
};

TEST_P(RandomOperations, GiveWhatAMapGives) {
    for (int i = 0; i < 10'000; ++i) {
        const std::string typeId = randomTypeId();
        ASSERT_NO_FATAL_FAILURE(expectEntry(typeId)) << "operation " << i;
        const auto known = model_.find(typeId);
        if (known == model_.end()) {
            addRandomEntry(typeId);
        } else if (random_() % 2 == 0) {
            changeEntry(known->second);
        } else {
            removeEntry(typeId);
        }
        ASSERT_NO_FATAL_FAILURE(expectEntry(typeId)) << "operation " << i;
        if (i % 1000 == 0) {
            directory_ = Directory(directory_); // a copy stands in for the original at any time
        }
    }
    for (const std::string& typeId : typeIds_) {
        ASSERT_NO_FATAL_FAILURE(expectEntry(typeId));
    }
}

TEST_P(RandomOperations, EndWithNothingWhenAllIsRemoved) {
    while (model_.size() < 200) {
        const std::string typeId = randomTypeId();
        if (!model_.contains(typeId)) {
            addRandomEntry(typeId);
        }
    }
    std::vector<std::string> typeIds(typeIds_.begin(), typeIds_.end());
    std::shuffle(typeIds.begin(), typeIds.end(), random_);
    for (const std::string& typeId : typeIds) {
        removeEntry(typeId);
        for (const auto& [left, known] : model_) {
            ASSERT_NO_FATAL_FAILURE(expectEntry(left)) << typeId;
        }
        ASSERT_NO_FATAL_FAILURE(expectEntry(typeId));
    }
}

INSTANTIATE_TEST_SUITE_P(Directory, RandomOperations, testing::Values(1, 2, 3, 4, 5, 6, 7, 8),
                         [](const auto& test) { return "Seed" + std::to_string(test.param); });

} // namespace
