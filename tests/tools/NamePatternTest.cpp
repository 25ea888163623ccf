#include "verbs/NamePattern.h"

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#ifdef __GLIBC__
#include <fnmatch.h>

#include <clocale>
#endif

namespace {

struct Match {
    const char* name;
    const char* pattern;
    std::vector<const char*> taken;
    std::vector<const char*> others;
};

class Pattern : public testing::TestWithParam<Match> {};

TEST_P(Pattern, TakesSomeNamesAndNoOthers) {
    const Tool::NamePattern pattern(GetParam().pattern);
    for (const char* name : GetParam().taken) {
        EXPECT_TRUE(pattern.matches(name)) << name;
    }
    for (const char* name : GetParam().others) {
        EXPECT_FALSE(pattern.matches(name)) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(
    NamePattern, Pattern,
    testing::Values(
        Match{"OfLetters", "aB", {"ab", "AB"}, {"", "a", "abc"}},
        Match{"OfAnyText", "a*c*", {"ac", "abcd"}, {"ab", "bc"}}, Match{"OfNothing", "", {""}, {"a"}},
        Match{"OfManyTexts", "*a*a*a*b", {"aaab"}, {"aaaaaaaaaaaaaaaaaaaa"}},
        Match{"OfACharacter", "?", {"a", "\u00e9", "\U0001F600", "\xFF"}, {"", "ab"}},
        Match{"OfScripts", "\u00c9\u0416\u03a9", {"\u00e9\u0436\u03c9", "\u00c9\u0416\u03a9"}, {"e\u0436\u03c9"}},
        Match{"OfASet", "[bC]", {"b", "B", "c", "C"}, {"a", "", "bc"}},
        Match{"OfARange", "[B-d]", {"b", "C", "d", "D"}, {"a", "e"}},
        Match{"OfARangeBeyondAscii", "[\u00e0-\u00fc]", {"\u00e9", "\u00c9"}, {"e"}},
        Match{"OfARangeBackwards", "[d-b]", {}, {"b", "c", "d"}},
        Match{"OfAllOthers", "[!b-d]", {"a", "E"}, {"c", "C"}}, Match{"OfAllOthersInAnotherWay", "[^b]", {"a"}, {"B"}},
        Match{"OfABracketInASet", "[]a]", {"]", "A"}, {"["}}, Match{"OfNoBracket", "[!]]", {"a"}, {"]"}},
        Match{"OfAHyphen", "[a-]", {"a", "-"}, {"b"}}, Match{"OfAnEscapedSign", "\\*\\?", {"*?"}, {"a?", "\\*\\?"}},
        Match{"OfAnEscapedLetter", "\\x", {"X"}, {"\\"}}, Match{"OfAnEscapeInASet", "[\\]b]", {"]", "b"}, {"\\"}},
        Match{"OfABracketThatIsNotClosed", "[ab", {"[AB"}, {"a"}},
        Match{"OfAClass", "[[:digit:]_]", {"7", "_"}, {"a", ":", "d"}},
        Match{"OfCapitals", "[[:upper:]]", {"B", "\u00c9"}, {"b", "\u00e9"}},
        Match{"OfSmallLetters", "[[:lower:]]", {"b", "\u00e9"}, {"B", "\u00c9", "1"}},
        Match{"OfLettersOfAClass", "[[:alpha:]]", {"b", "\u00c9"}, {"1", "\u2013"}},
        Match{"OfAClassThatThereIsNot", "[[:foo:]]", {}, {"f", ":", "[[:foo:]]"}},
        Match{"OfSignsWithNames", "[[.-.][=a=]]", {"-", "a"}, {".", "="}}),
    Support::nameOfRow);

#ifdef __GLIBC__
std::string madeOf(const std::vector<const char*>& parts, std::size_t count, std::mt19937& random) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += parts[random() % parts.size()];
    }
    return text;
}

TEST(NamePattern, TakesWhatThePatternsOfTheSystemTake) {
    const std::string before = std::setlocale(LC_CTYPE, nullptr);
    if (std::setlocale(LC_CTYPE, "C.UTF-8") == nullptr) {
        GTEST_SKIP() << "The system has no C.UTF-8.";
    }
    const std::vector<const char*> parts{
        "a",         "B",    "\u00e9",      "\u00c9",        "-",      "*",         "?",
        "*",         "\\*",  "\\a",         "[ab]",          "[!a]",   "[A-B]",     "[a-c\u00e9-]",
        "[^\u00c9]", "[]a]", "[[:upper:]]", "[![:alpha:]-]", "[\\]b]", "[a-[.c.]]", "]",
        "[!]a]"};
    const std::vector<const char*> letters{"a", "b", "c", "A", "B", "\u00e9", "\u00c9", "-", "]", "*", "\\"};
    std::mt19937 random(1);
    int taken = 0;
    for (int i = 0; i < 200000; ++i) {
        const std::string pattern = madeOf(parts, 1 + random() % 4, random);
        const std::string name = madeOf(letters, random() % 5, random);
        const bool isTaken = ::fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD) == 0;
        const bool isAscii = name.find_first_of("\u00e9\u00c9") == std::string::npos;
        if (isAscii || !isTaken) { // in others, the system also lets ? take a byte, which is no character
            ASSERT_EQ(Tool::NamePattern(pattern).matches(name), isTaken) << pattern << " and " << name;
        }
        taken += isTaken ? 1 : 0;
    }
    EXPECT_GT(taken, 10000);
    std::setlocale(LC_CTYPE, before.c_str());
}
#endif

} // namespace
