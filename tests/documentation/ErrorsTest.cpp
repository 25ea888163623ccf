#include "documentation/Pages.h"
#include "documentation/SourceMessages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <rapidjson/error/en.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

using Documentation::contentOf;
using testing::ElementsAre;
using testing::IsEmpty;

const std::filesystem::path top = OSTRA_SOURCE_DIR;

Documentation::SourceMessages messagesOfTheLibrary() {
    Documentation::SourceMessages all;
    for (const char* folder : {"src", "units"}) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top / folder)) {
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h") {
                auto found = Documentation::messagesIn(contentOf(entry.path()));
                all.patterns.merge(found.patterns);
                all.strays.merge(found.strays);
            }
        }
    }
    return all;
}

/// Returns those of some codes that are sentences, with "*" for what is inserted.
std::set<std::string> messagesAmong(const std::vector<std::string>& codes) {
    std::set<std::string> messages;
    for (const std::string& code : codes) {
        if (code.find(' ') != std::string::npos && code.back() == '.') {
            messages.insert(std::regex_replace(code, std::regex("<[^>]*>"), "*"));
        }
    }
    return messages;
}

std::set<std::string> messagesOfThePage() {
    auto codes = Documentation::codesOfFirstColumn(contentOf(top / "docs/errors.md"));
    auto messages = messagesAmong(codes);
    messages.insert("JSON parsing error at offset *: *"); // which is no sentence
    return messages;
}

/// Returns the reasons that the parser has for refusing a text.
std::set<std::string> reasonsOfTheParser() {
    std::set<std::string> reasons;
    for (int code = 1; code <= rapidjson::kParseErrorUnspecificSyntaxError + 1; ++code) {
        reasons.insert(rapidjson::GetParseError_En(static_cast<rapidjson::ParseErrorCode>(code)));
    }
    return reasons;
}

std::set<std::string> difference(const std::set<std::string>& a, const std::set<std::string>& b) {
    std::set<std::string> result;
    std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(result, result.end()));
    return result;
}

std::set<std::string> allMessages() {
    auto all = messagesOfTheLibrary().patterns;
    all.merge(reasonsOfTheParser());
    return all;
}

/// Returns the words that the kinds go by in messages.
std::set<std::string> wordsOfKinds() {
    std::set<std::string> words;
    const std::regex definition("string_view word = \"([^\"]*)\"");
    for (const auto& entry : std::filesystem::directory_iterator(top / "src/model")) {
        const std::string source = contentOf(entry.path());
        for (std::sregex_iterator found(source.begin(), source.end(), definition), end; found != end; ++found) {
            words.insert((*found)[1].str());
        }
    }
    return words;
}

TEST(PageOfErrors, ListsEveryMessageOfTheSources) {
    EXPECT_THAT(difference(allMessages(), messagesOfThePage()), IsEmpty());
}

TEST(PageOfErrors, ListsNoMessageThatTheSourcesDoNotHave) {
    EXPECT_THAT(difference(messagesOfThePage(), allMessages()), IsEmpty());
}

TEST(PageOfErrors, ListsTheWordOfEachKind) {
    const std::string page = contentOf(top / "docs/errors.md");
    const std::size_t begin = page.find("`<kind>` in \"Could not find\"");
    const auto codes = Documentation::codesOf(page.substr(begin, page.find("\n\n", begin) - begin));
    const std::set<std::string> listed(codes.begin() + 1, codes.end());
    EXPECT_EQ(listed, wordsOfKinds());
}

TEST(Guides, QuoteNoMessageThatTheSourcesDoNotHave) {
    for (const auto& entry : std::filesystem::directory_iterator(top / "docs")) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() == ".md") {
            EXPECT_THAT(difference(messagesAmong(Documentation::codesOf(contentOf(entry.path()))), allMessages()),
                        IsEmpty())
                << name;
        }
    }
}

TEST(SourcesOfTheLibrary, HaveNoSentenceThatIsNotSeenToBeThrown) {
    EXPECT_THAT(messagesOfTheLibrary().strays, ElementsAre("Family Type", "for storageUnit", "in applicableUnits"));
}

} // namespace
