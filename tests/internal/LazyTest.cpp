#include "engine/Lazy.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using Text = Parameters::Internal::Lazy<std::string>;

std::string never() { throw std::logic_error("asked to make a value that is there"); }

TEST(Lazy, HasNoValueAtFirst) { EXPECT_EQ(Text().peek(), nullptr); }

TEST(Lazy, MakesItsValueWhenAskedForIt) {
    const Text lazy;
    EXPECT_EQ(lazy.get([] { return "made"; }), "made");
    EXPECT_EQ(*lazy.peek(), "made");
}

TEST(Lazy, KeepsItsValue) {
    const Text lazy;
    const std::string* const first = &lazy.get([] { return "made"; });
    EXPECT_EQ(&lazy.get(never), first);
    EXPECT_EQ(lazy.peek(), first);
}

TEST(Lazy, HasNoValueWhenMakingItFails) {
    const Text lazy;
    EXPECT_THROW(lazy.get(never), std::logic_error);
    EXPECT_EQ(lazy.peek(), nullptr);
}

TEST(Lazy, HandsItsValueOutAndMakesAnother) {
    Text lazy;
    lazy.get([] { return "old"; });
    EXPECT_EQ(*lazy.take(), "old");
    EXPECT_EQ(lazy.peek(), nullptr);
    EXPECT_EQ(lazy.take(), nullptr);
    EXPECT_EQ(lazy.get([] { return "new"; }), "new");
}

TEST(Lazy, KeepsWhatIsCopiedFromTheSecondTimeOn) {
    Text lazy;
    const auto make = [] { return std::string("made"); };
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(lazy.copy(make), "made");
        EXPECT_EQ(lazy.peek(), nullptr);
        EXPECT_EQ(lazy.copy(make), "made");
        ASSERT_NE(lazy.peek(), nullptr);
        EXPECT_EQ(lazy.copy(never), "made");
        lazy.take(); // after which all begins again
    }
}

TEST(Lazy, CopiesWhatSomebodyElseAskedToKeep) {
    const Text lazy;
    lazy.get([] { return "made"; });
    EXPECT_EQ(lazy.copy(never), "made");
}

TEST(Lazy, LeavesItsValueToTheOriginalWhenCopied) {
    const Text lazy;
    lazy.get([] { return "made"; });
    const Text copy(lazy);
    EXPECT_EQ(copy.peek(), nullptr);
    EXPECT_EQ(copy.copy([] { return "of the copy"; }), "of the copy");
    EXPECT_EQ(copy.peek(), nullptr);
    EXPECT_EQ(copy.get([] { return "of the copy"; }), "of the copy");
    EXPECT_EQ(lazy.get(never), "made");
}

TEST(Lazy, IsOneAndTheSameForThreadsThatAskAtOnce) {
    const Text lazy;
    std::vector<const std::string*> answers(4);
    std::vector<std::thread> threads;
    threads.reserve(answers.size());
    for (const std::string*& answer : answers) {
        threads.emplace_back([&] { answer = &lazy.get([] { return std::string(1000, 'x'); }); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const std::string* const answer : answers) {
        EXPECT_EQ(answer, lazy.peek());
    }
}

} // namespace
