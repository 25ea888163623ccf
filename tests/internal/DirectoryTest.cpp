#include "engine/Directory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
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
    directory.reserve(1);
    return directory.add(typeId, Directory::Key(typeId).hash, {place, kind, resolved});
}

/// Names a typeid as users of the directory do.
Directory::EntryId name(Directory& directory, std::string_view typeId) {
    directory.reserve(1);
    return directory.name(typeId);
}

TEST(Directory, FindsNothingAtFirst) {
    const Directory directory;
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find(""), nullptr);
}

TEST(Directory, FindsNothingInRoomThatWasOnlyReserved) {
    Directory directory;
    directory.reserve(1);
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find(""), nullptr);
}

TEST(Directory, FindsAnEntryWithAllThatItSays) {
    Directory directory;
    const auto id = add(directory, "x", 7, 3, true);
    const Directory::Subject* const subject = directory.find("x");
    ASSERT_NE(subject, nullptr);
    EXPECT_EQ(subject->place, 7U);
    EXPECT_EQ(subject->kind, 3);
    EXPECT_TRUE(subject->resolved);
    EXPECT_EQ(directory.find(id), subject);
    EXPECT_EQ(directory[id].typeId(), "x");
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
    directory[first].subject.place = 11;
    directory[first].subject.resolved = true;
    EXPECT_EQ(directory.find("first")->place, 11U);
    EXPECT_TRUE(directory.find("first")->resolved);
    EXPECT_EQ(directory.find("second")->place, 2U);
    EXPECT_EQ(&directory[second].subject, directory.find("second"));
}

TEST(Directory, FindsAnEntryWhoseTypeIdLivesElsewhereNow) {
    std::string before = "x";
    const std::string after = "x";
    Directory directory;
    const auto id = add(directory, before, 1);
    directory[id].setTypeId(after);
    before = "y";
    ASSERT_NE(directory.find("x"), nullptr);
    EXPECT_EQ(directory[id].typeId().data(), after.data());
    EXPECT_EQ(directory.find("y"), nullptr);
}

TEST(Directory, CopiesAreOnTheirOwn) {
    Directory directory;
    const auto id = add(directory, "x", 1);
    Directory copy(directory);
    copy[id].subject.place = 2;
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
        directory.reserve(4);
    }
    add(directory, "x", 1);
    directory.reserve(1000);
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

TEST(Directory, DoesNotFindWhatIsOnlyNamed) {
    Directory directory;
    const auto id = name(directory, "x");
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find(id), nullptr);
    EXPECT_EQ(directory[id].typeId(), "x");
    EXPECT_EQ(name(directory, "x"), id);
}

TEST(Directory, KeepsTheIdOfWhatWasNamedFirst) {
    Directory directory;
    std::string named = "x";
    const auto id = name(directory, named);
    named = "y";
    EXPECT_EQ(directory[id].typeId(), "x");
    const std::string typeId = "x";
    EXPECT_EQ(add(directory, typeId, 1, 2, true), id);
    ASSERT_NE(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find("x")->place, 1U);
    EXPECT_EQ(directory.find("x")->kind, 2);
    EXPECT_EQ(directory[id].typeId().data(), typeId.data());
    EXPECT_EQ(name(directory, "x"), id);
}

TEST(Directory, KeepsWhatIsNamedUntilTheLastHasForgottenIt) {
    Directory directory;
    const auto named = name(directory, "named");
    name(directory, "named");
    directory.forget(named);
    EXPECT_EQ(name(directory, "named"), named);
    directory.forget(named);
    directory.forget(named);
    EXPECT_EQ(add(directory, "another", 1), named); // which was free
    EXPECT_NE(name(directory, "named"), named);
}

TEST(Directory, ForgetsNothingThatStandsForSomething) {
    Directory directory;
    const auto id = name(directory, "x");
    add(directory, "x", 7);
    directory.forget(id);
    ASSERT_NE(directory.find("x"), nullptr);
    EXPECT_EQ(directory.find("x")->place, 7U);
    directory.remove(id);
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(add(directory, "y", 1), id); // which was free
}

TEST(Directory, KeepsTheNameOfWhatIsRemovedAsLongAsItIsNamed) {
    Directory directory;
    std::string typeId = "x";
    const auto id = add(directory, typeId, 7);
    name(directory, "x");
    directory.remove(id);
    typeId = "y";
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(directory[id].typeId(), "x");
    EXPECT_EQ(add(directory, "x", 8), id);
    EXPECT_EQ(directory.find("x")->place, 8U);
    directory.remove(id);
    directory.forget(id);
    EXPECT_EQ(add(directory, "another", 1), id); // which was free
}

TEST(Directory, CopiesHaveTheirOwnNames) {
    Directory directory;
    const auto id = name(directory, "x");
    Directory copy(directory);
    add(copy, "x", 1);
    EXPECT_EQ(directory.find("x"), nullptr);
    EXPECT_EQ(directory[id].typeId(), "x");
    directory.forget(id);
    EXPECT_NE(copy.find("x"), nullptr);
    EXPECT_EQ(copy.idOf("x"), id);
}

/// A directory and a map that are told the same.
class RandomOperations : public testing::TestWithParam<unsigned> {
protected:
    struct Known {
        Directory::EntryId id;
        int namings;
        bool isSomething;
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

    /// Adds an entry for a typeid that stands for nothing.
    void addRandomEntry(const std::string& typeId) {
        typeIds_.push_back(typeId);
        const auto named = model_.find(typeId);
        const int namings = named != model_.end() ? named->second.namings : 0;
        const auto place = static_cast<std::uint32_t>(random_());
        const auto kind = static_cast<std::uint8_t>(random_() % 20);
        const bool resolved = random_() % 2 == 0;
        const auto id = add(*directory_, typeIds_.back(), place, kind, resolved);
        if (named != model_.end()) {
            EXPECT_EQ(id, named->second.id);
        }
        model_[typeId] = {id, namings, true, place, kind, resolved};
    }

    void nameEntry(const std::string& typeId) {
        const auto id = name(*directory_, typeId);
        const auto [named, isNew] = model_.try_emplace(typeId, Known{id, 0, false, 0, 0, false});
        EXPECT_EQ(named->second.id, id);
        ++named->second.namings;
    }

    void forgetEntry(const std::string& typeId) {
        const auto named = model_.find(typeId);
        directory_->forget(named->second.id);
        --named->second.namings;
        dropUnused(named);
    }

    void changeEntry(Known& known) {
        known.place = static_cast<std::uint32_t>(random_());
        known.resolved = !known.resolved;
        (*directory_)[known.id].subject.place = known.place;
        (*directory_)[known.id].subject.resolved = known.resolved;
    }

    void removeEntry(const std::string& typeId) {
        const auto removed = model_.find(typeId);
        directory_->remove(removed->second.id);
        removed->second.isSomething = false;
        dropUnused(removed);
    }

    void dropUnused(std::map<std::string, Known>::iterator known) {
        if (!known->second.isSomething && known->second.namings == 0) {
            model_.erase(known);
        }
    }

    void expectEntry(const std::string& typeId) const {
        const auto known = model_.find(typeId);
        const Directory::Subject* const subject = directory_->find(typeId);
        ASSERT_EQ(subject != nullptr, known != model_.end() && known->second.isSomething);
        if (known != model_.end()) {
            ASSERT_EQ((*directory_)[known->second.id].typeId(), typeId);
            ASSERT_EQ(directory_->find(known->second.id), subject);
        }
        if (subject != nullptr) {
            ASSERT_EQ(subject->place, known->second.place);
            ASSERT_EQ(subject->kind, known->second.kind);
            ASSERT_EQ(subject->resolved, known->second.resolved);
        }
    }

    std::mt19937 random_{GetParam()};
    std::deque<std::string> typeIds_; // which the entries refer to
    std::unique_ptr<Directory> directory_ = std::make_unique<Directory>();
    std::map<std::string, Known> model_;
};

TEST_P(RandomOperations, GiveWhatAMapGives) {
    for (int i = 0; i < 10'000; ++i) {
        const std::string typeId = randomTypeId();
        ASSERT_NO_FATAL_FAILURE(expectEntry(typeId)) << "operation " << i;
        const auto known = model_.find(typeId);
        if (random_() % 4 == 0) {
            nameEntry(typeId);
        } else if (known != model_.end() && known->second.namings > 0 && random_() % 2 == 0) {
            forgetEntry(typeId);
        } else if (known == model_.end() || !known->second.isSomething) {
            addRandomEntry(typeId);
        } else if (random_() % 2 == 0) {
            changeEntry(known->second);
        } else {
            removeEntry(typeId);
        }
        ASSERT_NO_FATAL_FAILURE(expectEntry(typeId)) << "operation " << i;
        if (i % 1000 == 0) {
            directory_ = std::make_unique<Directory>(*directory_); // a copy stands in for the original at any time
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
            for (auto namings = random_() % 3; namings > 0; --namings) {
                nameEntry(typeId);
            }
        }
    }
    std::vector<std::string> typeIds(typeIds_.begin(), typeIds_.end());
    std::shuffle(typeIds.begin(), typeIds.end(), random_);
    for (const std::string& typeId : typeIds) {
        for (int namings = model_.at(typeId).namings; namings > 0; --namings) {
            forgetEntry(typeId);
        }
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
