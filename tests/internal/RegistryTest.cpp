#include "engine/Registry.h"

#include "engine/Resolution.h"

#include "model/Access.h"
#include "model/Taxon.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <map>
#include <new>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

namespace {

void addPending(Registry& registry, std::string_view typeId) {
    registry.addPending<GroupKind>({Texts{typeId, "Name"}}, Directory::Key(typeId), [](const auto&) {});
}

/// Puts objects in the place of the pending groups that are chosen; the others stay pending.
template <class Choose>
void commit(Registry& registry, Choose chosen) {
    const Units::UnitsEngine units;
    const RegistryFinder finder(registry, units);
    std::vector<Staged<GroupKind>> staged(registry.store<GroupKind>().pending.size());
    for (std::size_t place = 0; place < staged.size(); ++place) {
        const auto& record = registry.store<GroupKind>().pending[place].record;
        if (chosen(record.typeId())) {
            staged[place].make(record, finder);
        }
    }
    registry.prepareCommit();
    registry.commit<GroupKind>(staged);
}

/// Checks that a typeid leads to its object or its pending record.
void expectState(const Registry& registry, const std::string& typeId, bool isResolved) {
    const Directory::Subject* const subject = registry.find(typeId);
    ASSERT_NE(subject, nullptr) << typeId;
    ASSERT_EQ(subject->resolved, isResolved) << typeId;
    const auto& store = registry.store<GroupKind>();
    if (isResolved) {
        EXPECT_EQ(store.objects.at(subject->place).getTypeId(), typeId);
    } else {
        EXPECT_EQ(store.pending.at(subject->place).record.typeId(), typeId);
    }
}

TEST(Registry, CommitsAllThatIsPending) {
    Registry registry;
    addPending(registry, "a");
    addPending(registry, "b");
    commit(registry, [](std::string_view) { return true; });
    expectState(registry, "a", true);
    expectState(registry, "b", true);
    EXPECT_FALSE(registry.hasPending());
}

TEST(Registry, KeepsPendingWhatWasNotBuilt) {
    Registry registry;
    for (const char* typeId : {"a", "b", "c", "d", "e"}) {
        addPending(registry, typeId);
    }
    commit(registry, [](std::string_view typeId) { return typeId == "b" || typeId == "d"; });
    for (const char* typeId : {"a", "c", "e"}) {
        expectState(registry, typeId, false);
    }
    expectState(registry, "b", true);
    expectState(registry, "d", true);
    EXPECT_EQ(registry.store<GroupKind>().pending.size(), 3U);
    EXPECT_EQ(registry.store<GroupKind>().objects.size(), 2U);
}

TEST(Registry, KeepsAllPendingWhereNothingWasBuilt) {
    Registry registry;
    addPending(registry, "a");
    commit(registry, [](std::string_view) { return false; });
    expectState(registry, "a", false);
    EXPECT_TRUE(registry.store<GroupKind>().objects.empty());
}

TEST(Registry, FilesNothingWhenTheCheckFails) {
    Registry registry;
    const auto refuse = [](const auto& record) {
        EXPECT_EQ(record.typeId(), "a");
        throw std::bad_alloc();
    };
    EXPECT_THROW(registry.addPending<GroupKind>({Texts{"a", "Name"}}, Directory::Key("a"), refuse), std::bad_alloc);
    EXPECT_EQ(registry.find("a"), nullptr);
    EXPECT_FALSE(registry.hasPending());
}

TEST(Registry, StaysInStepWhateverIsCommittedAndWithdrawn) {
    std::mt19937 random(3);
    for (int round = 0; round < 100; ++round) {
        Registry registry;
        std::map<std::string, bool> resolved;
        for (int step = 0; step < 12; ++step) {
            for (int i = 0; i < 5; ++i) {
                const std::string typeId = "t" + std::to_string(step) + "." + std::to_string(i);
                addPending(registry, typeId);
                resolved.emplace(typeId, false);
            }
            const auto withdrawn = std::next(resolved.begin(), static_cast<std::ptrdiff_t>(random() % resolved.size()));
            if (!withdrawn->second) {
                registry.discardPending(withdrawn->first);
                resolved.erase(withdrawn);
            }
            commit(registry,
                   [&](std::string_view typeId) { return resolved.at(std::string(typeId)) = random() % 3 == 0; });
            for (const auto& [typeId, isResolved] : resolved) {
                expectState(registry, typeId, isResolved);
            }
            ASSERT_EQ(registry.store<GroupKind>().pending.size() + registry.store<GroupKind>().objects.size(),
                      resolved.size());
        }
    }
}

} // namespace

} // namespace Parameters::Internal
