#include "schema/Message.h"

#include "schema/ExceptionFactory.h"
#include "schema/JSON.h"
#include "schema/Schema.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Ostra::ExceptionFactoryOf;
using Ostra::Message;
using Ostra::Messages;
using Support::messageOf;

constexpr Messages table({
    {"plain", "Nothing is inserted."},
    {"one-in-the-middle", "Schema <typeid> is odd."},
    {"both-ends", "<first> and <the second one>"},
    {"side-by-side", "<a><b>"},
    {"many", "<a>, <b>, <c>, <d>."},
});

constexpr Messages placed({{"placed", "<schema>:<offset>: <reason> (<typeid>)"}});

TEST(Message, WithoutPlaceholdersIsItsSentence) { EXPECT_EQ(table("plain").with({}), "Nothing is inserted."); }

TEST(Message, HasWhatIsInsertedInPlaceOfItsPlaceholder) {
    EXPECT_EQ(table("one-in-the-middle").with({"a:b-1.0.0"}), "Schema a:b-1.0.0 is odd.");
}

TEST(Message, CanBeginAndEndWithPlaceholders) {
    EXPECT_EQ(table("both-ends").with({"left", "right"}), "left and right");
}

TEST(Message, CanHavePlaceholdersSideBySide) { EXPECT_EQ(table("side-by-side").with({"left", "right"}), "leftright"); }

TEST(Message, IsFilledInTheOrderOfItsPlaceholders) {
    EXPECT_EQ(table("many").with({"4", "3", "2", "1"}), "4, 3, 2, 1.");
}

TEST(Message, TakesEmptyTexts) { EXPECT_EQ(table("many").with({"", "3", "", ""}), ", 3, , ."); }

TEST(Message, TakesTextsByteForByte) {
    EXPECT_EQ(table("one-in-the-middle").with({"a\0b\xff\n"sv}), "Schema a\0b\xff\n is odd."s);
}

TEST(Message, IsAboutWhatIsInsertedFirstUnlessThatOnlyPlacesOrExplains) {
    EXPECT_EQ(table("both-ends").subjectOf({"left", "right"}), "left");
    EXPECT_EQ(placed("placed").subjectOf({"t", "7", "Because.", "it"}), "it");
    EXPECT_EQ(table("plain").subjectOf({}), "");
}

TEST(Message, DoesNotLookForPlaceholdersInWhatIsInserted) {
    EXPECT_EQ(table("many").with({"<b>", "<", ">", "<c><d>"}), "<b>, <, >, <c><d>.");
}

TEST(Messages, AreFoundByTheirCodes) {
    EXPECT_EQ(table("many").code, "many");
    EXPECT_EQ(&table("plain"), table.begin());
    EXPECT_EQ(&table("many"), table.end() - 1);
}

TEST(Messages, AreListedInTheOrderInWhichTheyAreStated) {
    std::vector<std::string_view> codes;
    for (const Message& message : table) {
        codes.push_back(message.code);
    }
    EXPECT_EQ(codes, (std::vector{"plain"sv, "one-in-the-middle"sv, "both-ends"sv, "side-by-side"sv, "many"sv}));
    EXPECT_EQ(table.size(), 5U);
}

/// Templates have a test of their own, because clang 14 does not manage all consteval operators in them.
template <class Number>
std::string messageOfTemplate(Number number) {
    return table("one-in-the-middle").with({std::to_string(number)});
}

TEST(Messages, AreFoundInTemplates) { EXPECT_EQ(messageOfTemplate(7), "Schema 7 is odd."); }

/// A literal that a template can be asked about.
template <std::size_t size>
struct Literal {
    char characters[size] = {}; // NOLINT(modernize-avoid-c-arrays): a literal is one

    consteval Literal(const char (&literal)[size]) { // NOLINT(modernize-avoid-c-arrays)
        std::copy_n(literal, size, characters);
    }
    constexpr std::string_view text() const { return {characters, size - 1}; }
};

template <Literal code>
concept IsKnown = requires {
    typename std::bool_constant<(table(code.text()).code == code.text())>;
};

static_assert(IsKnown<"plain">);
static_assert(!IsKnown<"plane">);
static_assert(!IsKnown<"plai">);
static_assert(!IsKnown<"">);

template <Literal code, Literal sentence = "A sentence.">
concept CanBeListed = requires {
    typename std::bool_constant<(Messages({{code.text(), sentence.text()}}).size() == 1)>;
};

static_assert(CanBeListed<"a">);
static_assert(CanBeListed<"string-expected">);
static_assert(CanBeListed<"a-b-z">);
static_assert(!CanBeListed<"">);
static_assert(!CanBeListed<"-">);
static_assert(!CanBeListed<"-a">);
static_assert(!CanBeListed<"a-">);
static_assert(!CanBeListed<"a--b">);
static_assert(!CanBeListed<"a b">);
static_assert(!CanBeListed<"a_b">);
static_assert(!CanBeListed<"aB">);
static_assert(!CanBeListed<"a\0b">);

static_assert(CanBeListed<"code", "<a>">);
static_assert(CanBeListed<"code", "<a><b> and <c>">);
static_assert(!CanBeListed<"code", "">);
static_assert(!CanBeListed<"code", "<">);
static_assert(!CanBeListed<"code", "A <b">);
static_assert(!CanBeListed<"code", "A <b> and <c">);
static_assert(!CanBeListed<"code", "A <b<c>">);
static_assert(!CanBeListed<"code", "A b>">);
static_assert(!CanBeListed<"code", "A <b>>">);

template <Literal first, Literal second>
concept CanBeListedTogether = requires {
    typename std::bool_constant<(Messages({{first.text(), "A."}, {"between", "B."}, {second.text(), "C."}}).size() ==
                                 3)>;
};

static_assert(CanBeListedTogether<"one", "two">);
static_assert(!CanBeListedTogether<"one", "one">);
static_assert(!CanBeListedTogether<"between", "two">);
static_assert(!CanBeListedTogether<"one", "between">);

TEST(ExceptionFactory, RaisesFilledMessages) {
    const auto& factory = ExceptionFactoryOf<std::range_error>::shared();
    EXPECT_EQ(messageOf<std::range_error>([&] { factory.raise(table("plain")); }), "Nothing is inserted.");
    EXPECT_EQ(messageOf<std::range_error>([&] { factory.raise(table("both-ends"), {"1", "2"}); }), "1 and 2");
}

TEST(JSONView, ReportsWithFilledMessages) {
    const std::string text = "[]";
    const Ostra::JSON json(text, ExceptionFactoryOf<std::range_error>::shared());
    EXPECT_EQ(messageOf<std::range_error>([&] { json.view().report(table("plain")); }), "Nothing is inserted.");
    EXPECT_EQ(messageOf<std::range_error>([&] { json.view().report(table("both-ends"), {"1", "2"}); }), "1 and 2");
}

} // namespace
