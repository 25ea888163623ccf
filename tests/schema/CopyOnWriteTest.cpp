#include "schema/CopyOnWrite.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Ostra::CopyOnWrite;
using Text = CopyOnWrite<std::string>;

static_assert(std::is_nothrow_copy_constructible_v<Text>);

TEST(CopyOnWrite, StartsWithTheDefaultValue) { EXPECT_EQ(Text().read(), ""); }

TEST(CopyOnWrite, ReadsWhatWasWritten) {
    Text text;
    text.write() = "written";
    EXPECT_EQ(text.read(), "written");
}

TEST(CopyOnWrite, WritesInPlaceWhileNothingIsShared) {
    Text text;
    const std::string* const place = &text.read();
    EXPECT_EQ(&text.write(), place);
    EXPECT_EQ(&text.write(), place);
}

TEST(CopyOnWrite, SharesItsValueWithACopy) {
    Text text;
    text.write() = "shared";
    const Text copy(text);
    EXPECT_EQ(&copy.read(), &text.read());
}

TEST(CopyOnWrite, WritingLeavesTheCopyAlone) {
    Text text;
    text.write() = "shared";
    const Text copy(text);
    text.write() = "changed";
    EXPECT_EQ(copy.read(), "shared");
    EXPECT_EQ(text.read(), "changed");
}

TEST(CopyOnWrite, WritingACopyLeavesTheOriginalAlone) {
    Text text;
    text.write() = "shared";
    Text copy(text);
    copy.write() = "changed";
    EXPECT_EQ(text.read(), "shared");
    EXPECT_EQ(copy.read(), "changed");
}

TEST(CopyOnWrite, WritesOnFromTheSharedValue) {
    Text text;
    text.write() = "shared";
    Text copy(text);
    copy.write() += " and changed";
    EXPECT_EQ(copy.read(), "shared and changed");
}

TEST(CopyOnWrite, WritesInPlaceAgainAfterItsFirstWrite) {
    Text text;
    const Text copy(text);
    const std::string* const place = &text.write();
    EXPECT_NE(place, &copy.read());
    EXPECT_EQ(&text.write(), place);
}

TEST(CopyOnWrite, BothSidesMayWrite) {
    Text text;
    text.write() = "shared";
    Text copy(text);
    text.write() += " original";
    copy.write() += " copy";
    text.write() += " again";
    EXPECT_EQ(text.read(), "shared original again");
    EXPECT_EQ(copy.read(), "shared copy");
}

TEST(CopyOnWrite, SharesAgainAfterAWrite) {
    Text text;
    const Text first(text);
    text.write() = "changed";
    const Text second(text);
    text.write() = "changed again";
    EXPECT_EQ(first.read(), "");
    EXPECT_EQ(second.read(), "changed");
    EXPECT_EQ(text.read(), "changed again");
}

TEST(CopyOnWrite, CopiesOfCopiesAreOnTheirOwn) {
    Text text;
    text.write() = "shared";
    Text copy(text);
    Text copyOfCopy(copy);
    copy.write() = "copy";
    copyOfCopy.write() = "copy of copy";
    EXPECT_EQ(text.read(), "shared");
    EXPECT_EQ(copy.read(), "copy");
    EXPECT_EQ(copyOfCopy.read(), "copy of copy");
}

TEST(CopyOnWrite, ACopyOutlivesItsOriginal) {
    auto text = std::make_unique<Text>();
    text->write() = "shared";
    Text copy(*text);
    text.reset();
    EXPECT_EQ(copy.read(), "shared");
    copy.write() += " once";
    EXPECT_EQ(copy.read(), "shared once");
}

TEST(CopyOnWrite, TakesAnotherValueInThePlaceOfItsOwn) {
    Text text;
    text.write() = "old";
    text.replace(std::make_shared<std::string>("new"));
    EXPECT_EQ(text.read(), "new");
}

TEST(CopyOnWrite, LeavesCopiesTheirValueWhenItTakesAnother) {
    Text text;
    text.write() = "old";
    const Text copy(text);
    text.replace(std::make_shared<std::string>("new"));
    EXPECT_EQ(copy.read(), "old");
    EXPECT_EQ(text.read(), "new");
}

TEST(CopyOnWrite, WritesInPlaceWhenItHasTakenAnotherValue) {
    Text text;
    const Text before(text);
    text.replace(std::make_shared<std::string>("new"));
    const std::string* const place = &text.read();
    EXPECT_EQ(&text.write(), place);
    const Text after(text);
    EXPECT_NE(&text.write(), place);
    EXPECT_EQ(after.read(), "new");
}

TEST(CopyOnWrite, StillCopiesBeforeItsCopyWritesWhenItHasTakenAnotherValue) {
    Text text;
    text.write() = "old";
    Text copy(text);
    Text copyOfCopy(copy);
    text.replace(std::make_shared<std::string>("new"));
    copy.write() += " changed";
    EXPECT_EQ(copyOfCopy.read(), "old");
}

static_assert(noexcept(std::declval<Text&>().replace(nullptr)));

/// A value that may refuse to be copied.
struct Stubborn {
    Stubborn() = default;
    Stubborn(const Stubborn& other) : number(other.number) {
        if (other.refuses) {
            throw std::runtime_error("refused");
        }
    }
    Stubborn& operator=(const Stubborn&) = delete;
    ~Stubborn() = default;

    int number = 0;
    bool refuses = false;
};

TEST(CopyOnWrite, KeepsItsValueWhenAWriteCannotCopyIt) {
    CopyOnWrite<Stubborn> value;
    value.write().number = 1;
    value.write().refuses = true;
    const CopyOnWrite<Stubborn> copy(value);
    EXPECT_THROW(value.write(), std::runtime_error);
    EXPECT_EQ(&value.read(), &copy.read());
    EXPECT_EQ(value.read().number, 1);
    EXPECT_THROW(value.write(), std::runtime_error); // still shared
}

TEST(CopyOnWrite, IsCopiedReadAndWrittenInSeveralThreads) {
    Text text;
    text.write() = "shared";
    const Text& shared = text;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&shared, i] {
            for (int again = 0; again < 200; ++again) {
                Text copy(shared);
                copy.write() += std::to_string(i);
                ASSERT_EQ(copy.read(), "shared" + std::to_string(i));
                ASSERT_EQ(shared.read(), "shared");
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(text.read(), "shared");
}

} // namespace
