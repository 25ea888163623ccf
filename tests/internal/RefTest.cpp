#include "model/MakeRef.h"

#include <parameters/Taxon.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace Parameters::Internal {

namespace {

/// Counts how many of it there are.
struct Counted {
    explicit Counted(int number) : value(number) { ++alive; }
    Counted(Counted&& other) noexcept : value(other.value) { ++alive; }
    ~Counted() { --alive; }

    static inline std::atomic<int> alive = 0;
    int value;
};

struct Derived : Counted {
    using Counted::Counted;
    double more = 1.5;
};

static_assert(sizeof(Ref<const Counted>) == sizeof(void*));
static_assert(sizeof(Taxon) == sizeof(void*));
static_assert(std::is_nothrow_copy_constructible_v<Ref<const Counted>>);
static_assert(!std::is_constructible_v<Ref<const Derived>, Ref<const Counted>>);

TEST(Ref, HoldsItsDataUntilTheLastOneGoes) {
    {
        Ref<const Counted> outlives;
        EXPECT_FALSE(outlives);
        {
            const auto first = makeRef(Counted(7));
            EXPECT_EQ(Counted::alive, 1);
            outlives = first;
            EXPECT_EQ(&*outlives, &*first);
        }
        EXPECT_EQ(Counted::alive, 1);
        EXPECT_EQ(outlives->value, 7);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Ref, MovesWithoutCounting) {
    auto first = makeRef(Counted(7));
    const Ref<const Counted> second(std::move(first));
    EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move): that is what is tested
    EXPECT_EQ(second->value, 7);
    first = makeRef(Counted(8));
    EXPECT_EQ(Counted::alive, 2);
    first = Ref(second);
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_EQ(first->value, 7);
}

TEST(Ref, MayBeAssignedToItself) {
    auto ref = makeRef(Counted(7));
    const auto& same = ref;
    ref = same;
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_EQ(ref->value, 7);
}

TEST(Ref, ExchangesData) {
    auto one = makeRef(Counted(1));
    Ref<const Counted> none;
    one.swap(none);
    EXPECT_FALSE(one);
    EXPECT_EQ(none->value, 1);
}

TEST(Ref, DestroysWhatItWasMadeOf) {
    {
        Ref<const Counted> base(makeRef(Derived(3)));
        EXPECT_EQ(base->value, 3);
        base = makeRef(Counted(4));
        EXPECT_EQ(Counted::alive, 1);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Ref, IsCountedInSeveralThreads) {
    {
        const auto shared = makeRef(Counted(7));
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([copy = shared] {
                for (int round = 0; round < 10'000; ++round) {
                    const auto another = copy; // NOLINT(performance-unnecessary-copy-initialization): it is counted
                    ASSERT_EQ(another->value, 7);
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_EQ(Counted::alive, 1);
    }
    EXPECT_EQ(Counted::alive, 0);
}

// The thread sanitizer sees when one thread frees what another may still read.
TEST(Ref, IsLetGoByTheLastThreadThatReadIt) {
    for (int round = 0; round < 100; ++round) {
        std::vector<std::thread> threads;
        for (auto shared = makeRef(std::string("until both are through")); threads.size() < 2;) {
            threads.emplace_back([own = shared]() mutable {
                EXPECT_EQ(*own, "until both are through");
                own = {};
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
}

} // namespace

} // namespace Parameters::Internal
